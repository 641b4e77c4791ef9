// The line " Opacity            %" with a box in its gap.
#pragma once

#include <QWidget>

class QLabel;

namespace tarvel {

class FieldEdit;

class OpacityField : public QWidget {
    Q_OBJECT

  public:
    /// `edit` becomes a child.
    explicit OpacityField(FieldEdit* edit, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    QLabel* label_;
    FieldEdit* edit_;
};

} // namespace tarvel
