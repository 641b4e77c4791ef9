// Letters that choose an entry or a button with Alt held, each once in a menu or a window.
#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

class QAbstractButton;
class QAction;
class QWidget;

namespace tarvel {

/// The letter after a caption's "&", in lower case; null where it has none.
[[nodiscard]] QChar mnemonicOf(const QString& caption);

/// The captions with an "&" before a letter of each, no letter twice and none of `taken`, which is
/// in lower case. Captions that have a letter keep it. First letters of words are preferred; where
/// the letters do not suffice for all, the last captions stay as they are. What follows a tabulator
/// belongs to no caption.
[[nodiscard]] QStringList withMnemonics(QStringList captions, const QString& taken = {});

/// Gives the entries of one menu their letters.
void giveMnemonics(const QList<QAction*>& entries);
/// Gives buttons with a caption their letters; `taken` is used beside them. Returns what is taken
/// then.
QString giveMnemonics(const QList<QAbstractButton*>& buttons, const QString& taken = {});

/// Watches the whole application: gives dialogs letters when they are shown, and entries of menus
/// when their texts have changed.
class MnemonicKeeper : public QObject {
    Q_OBJECT

  public:
    explicit MnemonicKeeper(QObject* parent);
    ~MnemonicKeeper() override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool giving_ = false;
};

} // namespace tarvel
