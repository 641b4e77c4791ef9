// What an empty list says: what to do.
#pragma once

#include <QString>
#include <QWidget>

class QAbstractItemView;

namespace tarvel {

/// Words in the middle of a list as long as it has no rows. Belongs to the list, lets the pointer
/// through, and is read out as the list's description. The list's model is set already and stays.
class EmptyHint : public QWidget {
    Q_OBJECT

  public:
    EmptyHint(QAbstractItemView& list, const QString& words);

    void setWords(const QString& words);
    [[nodiscard]] const QString& text() const { return words_; }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void showOrHide();

    QAbstractItemView& list_;
    QString words_;
};

} // namespace tarvel
