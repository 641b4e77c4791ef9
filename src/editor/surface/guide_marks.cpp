// Paints guides and grid.
#include "surface/guide_marks.h"

#include "surface/mark_painting.h"
#include "surface/pic.h"

#include <QPaintEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace tarvel {

namespace {

const QColor gridColor(160, 160, 160, 190);
constexpr double tick = 3; // pixels: half of the strokes at the ends of a gap

} // namespace

GuideMarks::GuideMarks(Pic& surface)
    : QWidget(&surface)
    , surface_(surface) {
    setObjectName(QStringLiteral("guideMarks"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setVisible(false);
    connect(&surface, &Pic::mappingChanged, this, &GuideMarks::showOrHide);
}

void GuideMarks::showGuides(const std::vector<Guide>& guides) {
    if (guides != guides_) {
        guides_ = guides;
        showOrHide();
    }
}

void GuideMarks::showGrid(int grid) {
    if (grid != grid_) {
        grid_ = grid;
        showOrHide();
    }
}

void GuideMarks::showOrHide() {
    setGeometry(surface_.rect());
    setVisible(grid_ > 0 || !guides_.empty());
    update();
}

void GuideMarks::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    if (grid_ > 0) {
        paintGrid(painter, event->rect());
    }
    for (const Guide& guide : guides_) {
        paintGuide(painter, guide);
    }
}

// A dot at each crossing; of a grid too fine to be seen every second, fourth and so on.
void GuideMarks::paintGrid(QPainter& painter, const QRect& part) const {
    constexpr double finest = 6; // pixels between dots
    const ViewMapping& mapping = surface_.mapping();
    int step = grid_;
    while (step * mapping.scale() < finest) {
        step *= 2;
    }
    const QRectF visible = mapping.toSkin(QRectF(part));
    const auto firstFrom = [&](double from) {
        return std::max(0, static_cast<int>(std::floor(from / step)) * step);
    };
    const double right = std::min<double>(skinWidth, visible.right() + step);
    const double bottom = std::min<double>(skinHeight, visible.bottom() + step);
    painter.setPen(QPen(gridColor, 1));
    std::vector<QPointF> dots;
    for (int y = firstFrom(visible.top()); y < bottom; y += step) {
        for (int x = firstFrom(visible.left()); x < right; x += step) {
            dots.push_back(mapping.toWidget(QPointF(x, y)));
        }
    }
    painter.drawPoints(dots.data(), static_cast<int>(dots.size()));
}

void GuideMarks::paintGuide(QPainter& painter, const Guide& guide) const {
    const bool upright = (guide.axis == Axis::across) == (guide.kind == GuideKind::line);
    const auto at = [&](double along, double across) {
        return surface_.mapping().toWidget(upright ? QPointF(across, along)
                                                   : QPointF(along, across));
    };
    const QPointF first = at(guide.from, guide.position);
    const QPointF second = at(guide.to, guide.position);
    const MarkTones tones = guideTones();
    if (guide.kind == GuideKind::line) {
        painter.setPen(QPen(tones.dark, 1));
        painter.drawLine(first, second);
        painter.setPen(QPen(tones.light, 1, Qt::DashLine));
        painter.drawLine(first, second);
        return;
    }
    const QPointF stroke = upright ? QPointF(tick, 0) : QPointF(0, tick);
    for (const QPen& pen : {QPen(tones.dark, 3), QPen(tones.light, 1)}) {
        painter.setPen(pen);
        painter.drawLine(first, second);
        painter.drawLine(first - stroke, first + stroke);
        painter.drawLine(second - stroke, second + stroke);
    }
}

} // namespace tarvel
