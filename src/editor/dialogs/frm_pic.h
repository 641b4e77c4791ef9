// A window that shows one PNG picture.
#pragma once

#include <QWidget>

namespace tarvel {

class PngView;

/// A click anywhere in the window draws the picture again.
class FrmPic : public QWidget {
    Q_OBJECT

  public:
    explicit FrmPic(QWidget* parent = nullptr);

    /// The control "UserControl11"; belongs to the window, which it fills.
    [[nodiscard]] PngView& picture() { return *picture_; }

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void click();

    PngView* picture_;
};

} // namespace tarvel
