// A label of one line for texts of any length.
#pragma once

#include <QLabel>

namespace tarvel {

/// Shortens its text to the room that there is; text() stays whole.
class ElidedLabel : public QLabel {
    Q_OBJECT

  public:
    /// `mode` is where texts are shortened.
    explicit ElidedLabel(Qt::TextElideMode mode, QWidget* parent = nullptr);

    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] QSize sizeHint() const override { return minimumSizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    Qt::TextElideMode mode_;
};

} // namespace tarvel
