// When pictures' files are looked at again, and what is painted then.
#pragma once

#include <QObject>

class QWidget;

namespace tarvel {

class PictureCache;

/// Looks when a window of the program becomes active, as after work in another program, and before
/// a dialog is shown. Owns neither; both outlive it.
class PictureWatch : public QObject {
    Q_OBJECT

  public:
    /// `window`: what is painted again, with all that is in it and its dialogs.
    PictureWatch(PictureCache& pictures, QWidget& window);

    void look();

  signals:
    /// Pictures changed: images made of them are out of date.
    void changed();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    PictureCache& pictures_;
    QWidget& window_;
};

} // namespace tarvel
