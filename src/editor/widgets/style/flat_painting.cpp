// Paints flat grounds, fields and marks in the colours of an option's palette.
#include "widgets/style/flat_painting.h"

#include "widgets/style/contrast.h"

#include <array>

namespace tarvel {

namespace {

constexpr double corner = 3; // pixels: the radius

bool is(const QStyleOption& option, QStyle::StateFlag state) {
    return option.state.testFlag(state);
}

} // namespace

void paintFlat(QPainter& painter, const QRect& rect, const QColor& fill, const QColor& edge,
               double edgeWidth) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(edge.isValid() ? QPen(edge, edgeWidth) : QPen(Qt::NoPen));
    painter.setBrush(fill.isValid() ? QBrush(fill) : QBrush(Qt::NoBrush));
    const double inset = edge.isValid() ? edgeWidth / 2 : 0;
    painter.drawRoundedRect(QRectF(rect).adjusted(inset, inset, -inset, -inset), corner, corner);
    painter.restore();
}

void paintButtonGround(QPainter& painter, const QStyleOption& option, bool isDefault) {
    const QPalette& palette = option.palette;
    const QColor accent = palette.color(QPalette::Highlight);
    const QColor text = palette.color(QPalette::ButtonText);
    QColor fill = palette.color(QPalette::Button);
    QColor edge = palette.color(QPalette::Mid);
    if (!is(option, QStyle::State_Enabled)) {
        const bool isOn = is(option, QStyle::State_On);
        paintFlat(painter, option.rect, isOn ? fill : QColor(),
                  mixed(palette.color(QPalette::Window), edge, 0.5));
        return;
    }
    if (is(option, QStyle::State_On)) {
        fill = edge = accent;
    } else if (is(option, QStyle::State_Sunken)) {
        fill = mixed(fill, text, 0.2);
    } else if (is(option, QStyle::State_MouseOver)) {
        fill = mixed(fill, text, 0.08);
    }
    const bool hasFocus = is(option, QStyle::State_HasFocus);
    paintFlat(painter, option.rect, fill, isDefault || hasFocus ? accent : edge, hasFocus ? 2 : 1);
    if (hasFocus && is(option, QStyle::State_On)) {
        paintFlat(painter, option.rect.adjusted(2, 2, -2, -2), {},
                  palette.color(QPalette::HighlightedText));
    }
}

void paintField(QPainter& painter, const QStyleOption& option) {
    const QPalette& palette = option.palette;
    const bool isOpen = is(option, QStyle::State_Enabled);
    const bool hasFocus = isOpen && is(option, QStyle::State_HasFocus);
    const QColor edge = palette.color(QPalette::Mid);
    const QColor window = palette.color(QPalette::Window);
    paintFlat(painter, option.rect, isOpen ? palette.color(QPalette::Base) : window,
              hasFocus ? palette.color(QPalette::Highlight)
                       : (isOpen ? edge : mixed(window, edge, 0.5)),
              hasFocus ? 2 : 1);
}

void paintCheckMark(QPainter& painter, const QStyleOption& option, bool round) {
    const QPalette& palette = option.palette;
    const bool isOpen = is(option, QStyle::State_Enabled);
    const bool isHalf = is(option, QStyle::State_NoChange);
    const bool isOn = is(option, QStyle::State_On) || isHalf;
    const QColor edge = palette.color(isOpen ? QPalette::Mid : QPalette::WindowText);
    const QColor accent = isOpen ? palette.color(QPalette::Highlight) : edge;
    QColor ground = palette.color(isOpen ? QPalette::Base : QPalette::Window);
    if (is(option, QStyle::State_Sunken) && isOpen) {
        ground = palette.color(QPalette::Button);
    }
    const QColor mark = isOpen ? palette.color(QPalette::HighlightedText) : ground;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const double side = std::min(option.rect.width(), option.rect.height()) - 1;
    QRectF box(0, 0, side, side);
    box.moveCenter(QRectF(option.rect).center());
    painter.setPen(QPen(isOn ? accent : edge, 1));
    painter.setBrush(isOn ? accent : ground);
    if (round) {
        painter.drawEllipse(box);
    } else {
        painter.drawRoundedRect(box, corner - 1, corner - 1);
    }
    const auto at = [&](double x, double y) {
        return QPointF(box.left() + x * side, box.top() + y * side);
    };
    if (isOn && round) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(mark);
        painter.drawEllipse(box.center(), side / 5, side / 5);
    } else if (isHalf) {
        painter.setPen(QPen(mark, 2));
        painter.drawLine(at(0.25, 0.5), at(0.75, 0.5));
    } else if (isOn) {
        painter.setPen(QPen(mark, 2));
        const std::array<QPointF, 3> tick = {at(0.2, 0.5), at(0.42, 0.72), at(0.8, 0.28)};
        painter.drawPolyline(tick.data(), static_cast<int>(tick.size()));
    }
    painter.restore();
}

void paintFocus(QPainter& painter, const QStyleOption& option) {
    paintFlat(painter, option.rect, {}, option.palette.color(QPalette::Highlight));
}

void paintArrow(QPainter& painter, const QRect& rect, Qt::ArrowType direction,
                const QColor& color) {
    constexpr double reach = 4; // pixels from the middle
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(QRectF(rect).center());
    switch (direction) {
    case Qt::UpArrow:
        painter.rotate(180);
        break;
    case Qt::LeftArrow:
        painter.rotate(90);
        break;
    case Qt::RightArrow:
        painter.rotate(-90);
        break;
    case Qt::DownArrow:
    case Qt::NoArrow:
        break;
    }
    painter.setPen(QPen(color, 1.5));
    const std::array<QPointF, 3> points = {QPointF(-reach, -reach / 2), QPointF(0, reach / 2),
                                           QPointF(reach, -reach / 2)};
    painter.drawPolyline(points.data(), static_cast<int>(points.size()));
    painter.restore();
}

} // namespace tarvel
