// A thin frame that shows whether what is in it has the focus.
#pragma once

#include <QFrame>

namespace tarvel {

/// Takes the widget in. For widgets that paint nothing of their own focus.
class FocusFrame : public QFrame {
    Q_OBJECT

  public:
    explicit FocusFrame(QWidget& inside, QWidget* parent = nullptr);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void showFocus(bool focused);
};

} // namespace tarvel
