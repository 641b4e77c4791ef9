// Drags rows within the list by the pointer alone: nothing could take them elsewhere.
#include "panels/element_list_view.h"

#include "panels/element_list_model.h"

#include <QApplication>
#include <QDateTime>
#include <QKeyEvent>
#include <QPainter>
#include <QResizeEvent>
#include <QScrollBar>

#include <algorithm>
#include <utility>

namespace tarvel {

namespace {

constexpr int wantedLetters = 30;
constexpr int wantedRows = 9;
constexpr int fewestLetters = 12;
constexpr int fewestRows = 4;

} // namespace

ElementListView::ElementListView() {
    setMouseTracking(true);
}

QSize ElementListView::sizeHint() const {
    return sizeFor(wantedLetters, wantedRows);
}

QSize ElementListView::minimumSizeHint() const {
    return sizeFor(fewestLetters, fewestRows);
}

QSize ElementListView::sizeFor(int letters, int rows) const {
    const QFontMetrics metrics(font());
    const int frame = 2 * frameWidth();
    return {letters * metrics.averageCharWidth() + verticalScrollBar()->sizeHint().width() + frame,
            rows * metrics.lineSpacing() + frame};
}

std::vector<int> ElementListView::selectedRows() const {
    std::vector<int> rows;
    for (const QModelIndex& index : selectionModel()->selectedIndexes()) {
        rows.push_back(index.row());
    }
    std::sort(rows.begin(), rows.end());
    return rows;
}

void ElementListView::setSelectedRows(const std::vector<int>& rows, int leading) {
    if (rows.empty()) {
        selectionModel()->clear();
    } else if (rows != selectedRows() || leading != currentIndex().row()) {
        const QModelIndex index = model()->index(leading, 0);
        selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
        selectionModel()->select(rangesOf(rows), QItemSelectionModel::ClearAndSelect);
        scrollTo(index);
    }
}

// The panel of what was just selected may take room from the list.
void ElementListView::resizeEvent(QResizeEvent* event) {
    const QRect row = visualRect(currentIndex());
    const QRect before(QPoint(), QSize(viewport()->width(), event->oldSize().height()));
    QListView::resizeEvent(event);
    if (row.intersects(before)) {
        scrollTo(currentIndex());
    }
}

QItemSelection ElementListView::rangesOf(const std::vector<int>& rows) const {
    QItemSelection ranges;
    for (auto first = rows.begin(); first != rows.end();) {
        auto last = first;
        while (last + 1 != rows.end() && *(last + 1) == *last + 1) {
            ++last;
        }
        ranges.select(model()->index(*first, 0), model()->index(*last, 0));
        first = last + 1;
    }
    return ranges;
}

// The right button asks for the menu of what is selected. Without a row under it, it would take
// the selection away first. One of several selected rows may be about to be dragged with them.
void ElementListView::mousePressEvent(QMouseEvent* event) {
    const QModelIndex index = indexAt(event->position().toPoint());
    if (event->button() == Qt::RightButton && !index.isValid()) {
        return;
    }
    press_ = event->position().toPoint();
    isGivenUp_ = false;
    mayDrag_ = event->button() == Qt::LeftButton && event->modifiers() == Qt::NoModifier &&
               index.row() >= firstFree();
    if (mayDrag_ && selectionModel()->isSelected(index) && selectedRows().size() > 1) {
        held_.reset(event->clone());
        return;
    }
    QListView::mousePressEvent(event);
}

void ElementListView::mouseMoveEvent(QMouseEvent* event) {
    const QPoint at = event->position().toPoint();
    if (event->buttons() == Qt::NoButton) {
        emit rowHovered(rowAt(at));
    }
    if (isGivenUp_) {
        return; // it would select all rows that it passes
    }
    if (!mayDrag_ || !event->buttons().testFlag(Qt::LeftButton)) {
        QListView::mouseMoveEvent(event);
    } else if (isDragging() ||
               (at - press_).manhattanLength() >= QApplication::startDragDistance()) {
        dragTo(at);
    }
}

void ElementListView::dragTo(QPoint point) {
    const QRect inSight = viewport()->rect();
    if (point.y() < inSight.top() || point.y() > inSight.bottom()) {
        QScrollBar* bar = verticalScrollBar();
        bar->setValue(bar->value() + (point.y() < inSight.top() ? -1 : 1) * bar->singleStep());
    }
    dropRow_ = std::max(rowBefore(point), firstFree());
    viewport()->update();
}

void ElementListView::mouseReleaseEvent(QMouseEvent* event) {
    const int before = std::exchange(dropRow_, -1);
    const bool wasPressed = std::exchange(mayDrag_, false);
    isGivenUp_ = false;
    if (const auto press = std::move(held_); press != nullptr && before < 0 && wasPressed) {
        QListView::mousePressEvent(press.get());
    }
    QListView::mouseReleaseEvent(event);
    viewport()->update();
    if (before >= 0) {
        emit rowsDropped(before);
    }
}

void ElementListView::cancelDrag() {
    dropRow_ = -1;
    mayDrag_ = false;
    isGivenUp_ = true;
    held_.reset();
    viewport()->update();
}

// Rows of the back are locked as far as any are.
int ElementListView::firstFree() const {
    int row = 0;
    while (row < model()->rowCount() && model()->index(row, 0).data(lockedRole).toBool()) {
        ++row;
    }
    return row;
}

// Above the middle of a row it is before that one, below it before the next one.
int ElementListView::rowBefore(QPoint point) const {
    if (point.y() < 0) {
        return std::max(rowAt({0, 0}), 0);
    }
    const QModelIndex index = indexAt({0, point.y()});
    if (!index.isValid()) {
        return model()->rowCount();
    }
    return point.y() > visualRect(index).center().y() ? index.row() + 1 : index.row();
}

void ElementListView::paintEvent(QPaintEvent* event) {
    QListView::paintEvent(event);
    if (!isDragging() || model()->rowCount() == 0) {
        return;
    }
    const bool isFront = dropRow_ >= model()->rowCount();
    const QRect row = visualRect(model()->index(isFront ? model()->rowCount() - 1 : dropRow_, 0));
    const int y = isFront ? row.bottom() : std::max(row.top(), 1);
    QPainter painter(viewport());
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.drawLine(0, y, viewport()->width(), y);
}

bool ElementListView::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::Leave) {
        emit rowHovered(-1);
    }
    return QListView::viewportEvent(event);
}

// Where nothing is selected, a key that leads to another row begins at an end. Qt would begin at a
// row that it holds for the current one, and leave it unselected.
void ElementListView::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    const bool isDown = key == Qt::Key_Down || key == Qt::Key_Home || key == Qt::Key_PageDown;
    const bool isUp = key == Qt::Key_Up || key == Qt::Key_End || key == Qt::Key_PageUp;
    const int rows = model()->rowCount();
    if (!(isDown || isUp) || rows == 0 || selectionModel()->hasSelection()) {
        QListView::keyPressEvent(event);
        return;
    }
    selectionModel()->setCurrentIndex(model()->index(isDown ? 0 : rows - 1, 0),
                                      QItemSelectionModel::ClearAndSelect);
}

void ElementListView::keyboardSearch(const QString& letters) {
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    const bool goesOn = !typed_.isEmpty() && now - typedAt_ < QApplication::keyboardInputInterval();
    typedAt_ = now;
    const int current = currentIndex().row();
    if (goesOn && findNext(typed_ + letters, current)) {
        typed_ += letters;
        return;
    }
    typed_ = letters; // begun anew, or the same letter once more for the next row
    (void)findNext(typed_, current + 1);
}

bool ElementListView::findNext(const QString& letters, int from) {
    const int rows = model()->rowCount();
    for (int i = 0; i < rows && !letters.isEmpty(); ++i) {
        const QModelIndex index = model()->index((std::max(from, 0) + i) % rows, 0);
        if (index.data().toString().contains(letters, Qt::CaseInsensitive)) {
            selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
            scrollTo(index);
            return true;
        }
    }
    return false;
}

} // namespace tarvel
