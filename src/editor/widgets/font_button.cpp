// Shows the chosen font on its button.
#include "widgets/font_button.h"

#include "widgets/qt_text.h"
#include "widgets/skin_fonts.h"

#include <QFontInfo>
#include <QFontMetrics>
#include <QStyleOptionButton>
#include <QStylePainter>

#include <algorithm>

namespace tarvel {

namespace {

constexpr int smallestShown = 11; // pixels
constexpr int largestShown = 19;
constexpr int roomAcross = 36;
constexpr int roomDown = 12;

QFont shownFont(const QFont& font) {
    QFont shown = font;
    shown.setPixelSize(std::clamp(QFontInfo(font).pixelSize(), smallestShown, largestShown));
    return shown;
}

} // namespace

FontButton::FontButton(const QString& text, QWidget* parent)
    : QPushButton(text, parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setChoice({});
}

void FontButton::setChoice(const FontChoice& choice) {
    setFont(fontOf(choice));
    setToolTip(describeFont(choice));
    setAccessibleDescription(describeFont(choice));
}

// The same for every font, so that nothing moves when another is chosen.
QSize FontButton::sizeHint() const {
    QFont largest;
    largest.setPixelSize(largestShown);
    const QFontMetrics metrics(largest);
    return {metrics.size(Qt::TextShowMnemonic, text()).width() + roomAcross,
            metrics.height() + roomDown};
}

void FontButton::paintEvent(QPaintEvent* /*event*/) {
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    painter.setFont(shownFont(font()));
    painter.drawControl(QStyle::CE_PushButton, option);
}

FontChoice choiceOf(const QFont& font) {
    constexpr double pointsPerPixel = 72.0 / 96.0;
    const double points =
        font.pointSizeF() > 0 ? font.pointSizeF() : font.pixelSize() * pointsPerPixel;
    return {.family = coreText(font.family()),
            .size = static_cast<float>(points),
            .bold = font.bold(),
            .underline = font.underline()};
}

QFont fontOf(const FontChoice& choice) {
    QFont font = skinFont(choice);
    if (choice.size > 0) {
        font.setPointSizeF(double{choice.size});
    }
    return font;
}

QString describeFont(const FontChoice& choice) {
    QString text = QStringLiteral("%1, %2 pt").arg(qtText(choice.family)).arg(double{choice.size});
    if (choice.bold) {
        text += QStringLiteral(", bold");
    }
    if (choice.underline) {
        text += QStringLiteral(", underlined");
    }
    return text;
}

} // namespace tarvel
