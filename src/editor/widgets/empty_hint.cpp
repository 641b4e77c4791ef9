// Lays the words over the list's viewport and follows its model.
#include "widgets/empty_hint.h"

#include <QAbstractItemView>
#include <QEvent>

namespace tarvel {

EmptyHint::EmptyHint(QAbstractItemView& list, const QString& words)
    : QLabel(list.viewport())
    , list_(list) {
    setObjectName(QStringLiteral("emptyHint"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAlignment(Qt::AlignCenter);
    setWordWrap(true);
    setTextFormat(Qt::PlainText);
    setForegroundRole(QPalette::PlaceholderText);
    constexpr int margin = 8; // pixels
    setMargin(margin);
    setWords(words);
    const QAbstractItemModel* model = list.model();
    connect(model, &QAbstractItemModel::rowsInserted, this, &EmptyHint::showOrHide);
    connect(model, &QAbstractItemModel::rowsRemoved, this, &EmptyHint::showOrHide);
    connect(model, &QAbstractItemModel::modelReset, this, &EmptyHint::showOrHide);
    list.viewport()->installEventFilter(this);
    showOrHide();
}

void EmptyHint::setWords(const QString& words) {
    setText(words);
    showOrHide();
}

bool EmptyHint::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize) {
        setGeometry(list_.viewport()->rect());
    }
    return QLabel::eventFilter(watched, event);
}

void EmptyHint::showOrHide() {
    const bool isEmpty = list_.model()->rowCount() == 0;
    setGeometry(list_.viewport()->rect());
    setVisible(isEmpty && !text().isEmpty());
    list_.setAccessibleDescription(isVisibleTo(list_.viewport()) ? text() : QString());
}

} // namespace tarvel
