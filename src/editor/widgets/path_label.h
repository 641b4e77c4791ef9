// A label for a path.
#pragma once

#include <QLabel>

namespace tarvel {

/// Shortens a path in its middle to the room that there is; text() stays whole.
class PathLabel : public QLabel {
    Q_OBJECT

  public:
    explicit PathLabel(QWidget* parent = nullptr);

    /// Shows a path, and the whole of it as the tool tip.
    void setPath(const QString& path);

    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] QSize sizeHint() const override { return minimumSizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace tarvel
