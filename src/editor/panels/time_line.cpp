// Paints the rows in sight, and repaints only the line when time passes.
#include "panels/time_line.h"

#include "panels/time_line_access.h"
#include "widgets/control_names.h"
#include "widgets/faint_text.h"

#include <QEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace tarvel {

namespace {

constexpr PlayTime second = 1000;
constexpr PlayTime numbered = 5 * second;
constexpr int mostLabelWidth = 200;
constexpr int labelShare = 3; // labels take at most this part of the width
constexpr int leastWidth = 160;
constexpr int gap = 6;
constexpr int barInset = 3; // above and below a bar
constexpr int rowsAtMost = 12;
constexpr int rowsAtLeast = 2;
constexpr int smallestBar = 2;
constexpr int halfTimeLine = 4; // of what is repainted around the line

} // namespace

TimeLine::TimeLine(QWidget* parent)
    : QAbstractScrollArea(parent) {
    beSliders();
    named(this, QStringLiteral("timeLine"), tr("Time line: when each element is shown"));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setBackgroundRole(QPalette::Base);
    measure();
}

void TimeLine::measure() {
    endWidth_ = fontMetrics().horizontalAdvance(QStringLiteral("30 s"));
}

void TimeLine::setRows(int count, std::function<Row(int)> row) {
    const bool fewer = count != count_;
    count_ = count;
    row_ = std::move(row);
    if (fewer) {
        updateGeometry();
    }
    showRange();
    viewport()->update();
}

void TimeLine::setTime(PlayTime time) {
    const int before = placeOf(time_);
    const bool wasBeyond = time_ > length;
    time_ = time;
    const int now = placeOf(time_);
    if (now == before && wasBeyond == (time_ > length)) {
        return; // by far most times, as it moves by some pixels a second
    }
    for (const int place : {before, now}) {
        viewport()->update(place - halfTimeLine, 0, 2 * halfTimeLine + 1, viewport()->height());
    }
}

int TimeLine::rowHeight() const {
    return fontMetrics().height() + 2;
}

int TimeLine::rulerHeight() const {
    return fontMetrics().height() + 4;
}

int TimeLine::labelWidth() const {
    return std::min(mostLabelWidth, viewport()->width() / labelShare);
}

int TimeLine::barWidth() const {
    return std::max(1, viewport()->width() - labelWidth() - 2 * gap - endWidth_ / 2);
}

int TimeLine::placeOf(PlayTime time) const {
    const double part =
        static_cast<double>(std::clamp<PlayTime>(time, 0, length)) / static_cast<double>(length);
    return labelWidth() + gap + static_cast<int>(std::lround(part * barWidth()));
}

QRect TimeLine::rowRect(int row) const {
    return {0, rulerHeight() + row * rowHeight() - verticalScrollBar()->value(),
            viewport()->width(), rowHeight()};
}

QSize TimeLine::sizeHint() const {
    const int rows = std::clamp(count_, rowsAtLeast, rowsAtMost);
    return {leastWidth, rulerHeight() + rows * rowHeight() + 2 * frameWidth() + 2};
}

QSize TimeLine::minimumSizeHint() const {
    return {leastWidth, rulerHeight() + rowsAtLeast * rowHeight() + 2 * frameWidth() + 2};
}

void TimeLine::showRange() {
    const int room = viewport()->height() - rulerHeight();
    verticalScrollBar()->setRange(0, std::max(0, count_ * rowHeight() - room));
    verticalScrollBar()->setPageStep(std::max(1, room));
    verticalScrollBar()->setSingleStep(rowHeight());
}

void TimeLine::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    painter.fillRect(event->rect(), palette().color(QPalette::Base));
    const int top = std::max(0, event->rect().top() - rulerHeight()) + verticalScrollBar()->value();
    const int bottom = event->rect().bottom() - rulerHeight() + verticalScrollBar()->value();
    const int last = std::min(count_ - 1, bottom < 0 ? -1 : bottom / rowHeight());
    painter.setClipRect(event->rect() & viewport()->rect().adjusted(0, rulerHeight(), 0, 0));
    for (int row = top / rowHeight(); row <= last; ++row) {
        paintRow(painter, row, event->rect());
    }
    painter.setClipRect(event->rect());
    paintRuler(painter, event->rect());
    paintTime(painter);
}

void TimeLine::paintRuler(QPainter& painter, const QRect& dirty) const {
    if (dirty.top() > rulerHeight()) {
        return;
    }
    painter.setPen(faintText(palette()));
    for (PlayTime at = 0; at <= length; at += second) {
        const int x = placeOf(at);
        const bool isNumbered = at % numbered == 0;
        painter.drawLine(x, rulerHeight() - (isNumbered ? 4 : 2), x, rulerHeight() - 1);
        if (isNumbered) {
            const QString text =
                at == length ? tr("%1 s").arg(at / second) : QString::number(at / second);
            const int width = fontMetrics().horizontalAdvance(text);
            painter.drawText(QRect(x - width / 2, 0, width + 1, rulerHeight() - 4),
                             Qt::AlignCenter | Qt::TextSingleLine, text);
        }
    }
}

void TimeLine::paintRow(QPainter& painter, int row, const QRect& dirty) const {
    const QRect place = rowRect(row);
    const Row shown = row_(row);
    const QRect label(gap, place.top(), labelWidth() - gap, place.height());
    if (label.intersects(dirty)) {
        painter.setPen(palette().color(QPalette::Text));
        painter.drawText(label, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                         fontMetrics().elidedText(shown.label, Qt::ElideRight, label.width()));
    }
    const PlayTime smallest = std::max<PlayTime>(1, length / barWidth());
    const QRect track(placeOf(0), place.top() + barInset, barWidth() + 1,
                      place.height() - 2 * barInset);
    QColor ground = palette().color(QPalette::Text);
    ground.setAlphaF(0.08F);
    painter.fillRect(track, ground);
    for (const ShownSpan& span : shownSpans(shown.timers, length, smallest)) {
        const int from = placeOf(span.from);
        const int width = std::max(smallestBar, placeOf(span.to) - from);
        painter.fillRect(QRect(from, track.top(), width, track.height()),
                         palette().color(QPalette::Highlight));
    }
}

// Two colours show on any bar.
void TimeLine::paintTime(QPainter& painter) const {
    const int x = placeOf(time_);
    const int bottom = viewport()->height();
    const QColor color = palette().color(QPalette::Text);
    painter.fillRect(QRect(x - 1, rulerHeight() - 4, 3, bottom), palette().color(QPalette::Base));
    painter.fillRect(QRect(x, rulerHeight() - 4, 1, bottom), color);
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    const double y = rulerHeight();
    if (time_ > length) {
        const std::array<QPointF, 3> right = {QPointF(x - 3, y - 9), QPointF(x + 3.5, y - 5.5),
                                              QPointF(x - 3, y - 2)};
        painter.drawPolygon(right.data(), static_cast<int>(right.size()));
    } else {
        const std::array<QPointF, 3> down = {QPointF(x - 3.5, y - 8), QPointF(x + 4.5, y - 8),
                                             QPointF(x + 0.5, y - 2)};
        painter.drawPolygon(down.data(), static_cast<int>(down.size()));
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
}

void TimeLine::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    showRange();
}

void TimeLine::changeEvent(QEvent* event) {
    QAbstractScrollArea::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        measure();
        updateGeometry();
        showRange();
    }
}

void TimeLine::chooseAt(int x) {
    const double part = static_cast<double>(x - labelWidth() - gap) / barWidth();
    emit timeChosen(static_cast<PlayTime>(std::lround(std::clamp(part, 0.0, 1.0) * length)));
}

void TimeLine::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        return;
    }
    isDragging_ = true;
    emit dragged(true);
    chooseAt(event->position().toPoint().x());
}

void TimeLine::mouseMoveEvent(QMouseEvent* event) {
    if (isDragging_) {
        chooseAt(event->position().toPoint().x());
    }
}

void TimeLine::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        endDrag();
    }
}

void TimeLine::hideEvent(QHideEvent* event) {
    QAbstractScrollArea::hideEvent(event);
    endDrag();
}

void TimeLine::endDrag() {
    if (std::exchange(isDragging_, false)) {
        emit dragged(false);
    }
}

void TimeLine::scrollContentsBy(int /*dx*/, int /*dy*/) {
    viewport()->update();
}

} // namespace tarvel
