// Paints the sample message box and the sample menu in the chosen colours.
#include "dialogs/color_samples.h"

#include "editing/color_rules.h"
#include "widgets/control_names.h"
#include "widgets/qt_text.h"

#include <QLabel>
#include <QPainter>

#include <algorithm>

namespace tarvel {

namespace {

constexpr int border = 2;        // pixels
constexpr int shadowOffset = 2;  // pixels, right and down
constexpr int groundMargin = 14; // pixels of the ground around the box
constexpr int textMargin = 14;   // pixels from the edge of the menu to its texts

// A stretch of colours such as a skin may have behind the box.
void paintGround(QPainter& painter, const QRect& rect) {
    QLinearGradient sky(rect.topLeft(), rect.bottomLeft());
    sky.setColorAt(0, QColor(58, 92, 140));
    sky.setColorAt(0.55, QColor(150, 176, 196));
    sky.setColorAt(0.56, QColor(66, 104, 84));
    sky.setColorAt(1, QColor(34, 60, 52));
    painter.fillRect(rect, sky);
}

} // namespace

ColorSample::ColorSample(std::size_t box, QWidget* parent)
    : QWidget(parent)
    , box_(box) {
    named(this, QStringLiteral("shp(%1)").arg(box),
          box == 0 ? tr("Sample of the message box") : tr("Sample of the system menu"));
    if (box == 0) {
        addText(SampleText::messageShadow);
        addText(SampleText::messageText); // in front of its shadow
    } else {
        addText(SampleText::menuSelect);
        addText(SampleText::menuSelectValue);
        addText(SampleText::menuText);
        addText(SampleText::menuValue);
    }
}

void ColorSample::addText(SampleText which) {
    const auto index = static_cast<std::size_t>(which);
    auto* label = new QLabel(qtText(sampleTexts.at(index)), this);
    label->setObjectName(QStringLiteral("txt(%1)").arg(index));
    QFont large = label->font();
    large.setPointSizeF(large.pointSizeF() * (box_ == 0 ? 1.6 : 1.2));
    large.setBold(true);
    label->setFont(large);
    texts_.push_back({index, label});
}

void ColorSample::showColors(const SystemColors& colors) {
    look_ = colors.boxes.at(box_);
    opacity_ = std::clamp(val(colors.opacityTexts.at(box_)) / 100, 0.0, 1.0);
    for (const auto& [index, label] : texts_) {
        QPalette palette = label->palette();
        palette.setColor(QPalette::WindowText, qtColor(colors.texts.at(index)));
        label->setPalette(palette);
    }
    update();
}

QSize ColorSample::sizeHint() const {
    const int line = texts_.front().label->sizeHint().height();
    return {270, box_ == 0 ? 4 * line : 5 * line};
}

QRect ColorSample::boxRect() const {
    return rect().adjusted(groundMargin, groundMargin, -groundMargin, -groundMargin);
}

void ColorSample::resizeEvent(QResizeEvent* /*event*/) {
    const QRect box = boxRect();
    if (box_ == 0) {
        const QSize size = texts_.back().label->sizeHint();
        QRect middle(QPoint(0, 0), size);
        middle.moveCenter(box.center());
        texts_.back().label->setGeometry(middle);
        texts_.front().label->setGeometry(middle.translated(shadowOffset, shadowOffset));
        return;
    }
    const QRect inside = box.adjusted(textMargin, 0, -textMargin, 0);
    for (std::size_t i = 0; i < texts_.size(); ++i) {
        QLabel* label = texts_[i].label;
        const QSize size = label->sizeHint();
        const bool upper = i < 2;
        const bool right = i % 2 == 1;
        const int middle = inside.top() + inside.height() * (upper ? 3 : 7) / 10;
        label->setGeometry(right ? inside.right() + 1 - size.width() : inside.left(),
                           middle - size.height() / 2, size.width(), size.height());
    }
}

void ColorSample::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    paintGround(painter, rect());
    const QRect box = boxRect();
    QColor fill = qtColor(look_.fillColor);
    fill.setAlphaF(static_cast<float>(opacity_));
    painter.fillRect(box, fill);
    const QColor frame = qtColor(look_.borderColor);
    painter.fillRect(box.left(), box.top(), box.width(), border, frame);
    painter.fillRect(box.left(), box.bottom() + 1 - border, box.width(), border, frame);
    painter.fillRect(box.left(), box.top(), border, box.height(), frame);
    painter.fillRect(box.right() + 1 - border, box.top(), border, box.height(), frame);
}

} // namespace tarvel
