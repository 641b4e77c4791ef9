// The panel "POSITION": where the selected element lies.
#pragma once

#include "document/element.h"

#include <QGroupBox>

#include <array>

class QLineEdit;

namespace tarvel {

/// Shows left, top, width and height of an element in skin pixels, of a line its two ends.
class PositionPanel : public QGroupBox {
    Q_OBJECT

  public:
    explicit PositionPanel(QWidget* parent = nullptr);

    void setPos(const ElementControl& control);
    void setPosLine(const ElementControl& control);
    /// Shows that nothing is selected.
    void clear();

  private:
    void show(const std::array<float, 4>& values);

    std::array<QLineEdit*, 4> fields_{};
};

} // namespace tarvel
