// Lays the words over the list's viewport and follows its model.
#include "widgets/empty_hint.h"

#include <QAbstractItemView>
#include <QEvent>
#include <QPainter>

namespace tarvel {

EmptyHint::EmptyHint(QAbstractItemView& list, const QString& words)
    : QWidget(list.viewport())
    , list_(list) {
    setObjectName(QStringLiteral("emptyHint"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setWords(words);
    const QAbstractItemModel* model = list.model();
    connect(model, &QAbstractItemModel::rowsInserted, this, &EmptyHint::showOrHide);
    connect(model, &QAbstractItemModel::rowsRemoved, this, &EmptyHint::showOrHide);
    connect(model, &QAbstractItemModel::modelReset, this, &EmptyHint::showOrHide);
    list.viewport()->installEventFilter(this);
    showOrHide();
}

void EmptyHint::setWords(const QString& words) {
    words_ = words;
    setAccessibleName(words);
    update();
    showOrHide();
}

bool EmptyHint::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize) {
        setGeometry(list_.viewport()->rect());
    }
    return QWidget::eventFilter(watched, event);
}

void EmptyHint::paintEvent(QPaintEvent* /*event*/) {
    constexpr int margin = 8; // pixels
    QPainter painter(this);
    painter.setPen(list_.palette().color(QPalette::PlaceholderText));
    painter.drawText(rect().adjusted(margin, margin, -margin, -margin),
                     static_cast<int>(Qt::AlignCenter) | static_cast<int>(Qt::TextWordWrap),
                     words_);
}

void EmptyHint::showOrHide() {
    const bool isEmpty = list_.model()->rowCount() == 0;
    setGeometry(list_.viewport()->rect());
    setVisible(isEmpty && !words_.isEmpty());
    list_.setAccessibleDescription(isVisibleTo(list_.viewport()) ? words_ : QString());
}

} // namespace tarvel
