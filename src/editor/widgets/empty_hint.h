// What an empty list says: what to do.
#pragma once

#include <QLabel>

class QAbstractItemView;

namespace tarvel {

/// Words in the middle of a list as long as it has no rows. Belongs to the list, lets the pointer
/// through, and is read out as the list's description. The list's model is set already and stays.
class EmptyHint : public QLabel {
    Q_OBJECT

  public:
    EmptyHint(QAbstractItemView& list, const QString& words);

    void setWords(const QString& words);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void showOrHide();

    QAbstractItemView& list_;
};

} // namespace tarvel
