// Draws the card.
#include "panels/side_card.h"

#include "widgets/style/heading.h"

#include <QLabel>
#include <QPainter>

namespace tarvel {

namespace {

constexpr qreal cornerRadius = 6;

QColor between(const QColor& a, const QColor& b, float share) {
    const auto mixed = [share](float from, float to) { return from + (to - from) * share; };
    return QColor::fromRgbF(mixed(a.redF(), b.redF()), mixed(a.greenF(), b.greenF()),
                            mixed(a.blueF(), b.blueF()));
}

} // namespace

SideCard::SideCard(QWidget* parent)
    : QFrame(parent) {}

QLabel* SideCard::headingOf(const QString& text) {
    auto* heading = new QLabel(text);
    heading->setFont(headingFont(heading->font()));
    return heading;
}

void SideCard::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor window = palette().color(QPalette::Window);
    painter.setBrush(window);
    painter.setPen(between(window, palette().color(QPalette::WindowText), 0.45F));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), cornerRadius,
                            cornerRadius);
}

} // namespace tarvel
