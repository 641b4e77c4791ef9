// A label for a path.
#pragma once

#include "widgets/elided_label.h"

namespace tarvel {

/// Shortens a path in its middle.
class PathLabel : public ElidedLabel {
    Q_OBJECT

  public:
    explicit PathLabel(QWidget* parent = nullptr)
        : ElidedLabel(Qt::ElideMiddle, parent) {}

    /// Shows a path, and the whole of it as the tool tip.
    void setPath(const QString& path);
};

} // namespace tarvel
