// The panel "POSITION": where the selected element lies, to be read and typed over.
#pragma once

#include "editing/position_fields.h"

#include <QGroupBox>

#include <array>

class QLabel;

namespace tarvel {

class FieldEdit;

/// Shows left, top, width and height of an element in skin pixels, of a line its two ends.
class PositionPanel : public QGroupBox {
    Q_OBJECT

  public:
    explicit PositionPanel(QWidget* parent = nullptr);

    void setPos(const ElementControl& control);
    void setPosLine(const ElementControl& control);
    /// Whether the fields take other values; they do after setPos and setPosLine.
    void setEditable(bool editable);
    /// Shows that nothing is selected.
    void clear();
    [[nodiscard]] PositionTexts texts() const;

  signals:
    /// A field was typed over and left, or Enter was pressed in it.
    void entered(tarvel::PositionField field, const QString& text);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void show(const ElementControl& control);
    void leave(std::size_t field);

    std::array<FieldEdit*, positionFields> fields_{};
    PositionTexts shown_; // as the element has them
    std::array<QLabel*, positionFields> captions_{};
};

} // namespace tarvel
