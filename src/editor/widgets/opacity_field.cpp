// Places the opacity box in the gap of its label.
#include "widgets/opacity_field.h"

#include "editing/color_rules.h"
#include "widgets/field_edit.h"
#include "widgets/qt_text.h"

#include <QFontMetricsF>
#include <QLabel>

#include <algorithm>
#include <cmath>

namespace tarvel {

namespace {

constexpr double boxWidth = 56; // pixels
constexpr double distance = 6;  // pixels between box and words
constexpr std::string_view gap = "            ";
constexpr std::string_view beforeGap = " Opacity";

// The blank before the word stands left of the edge, so that the word is in line with others.
double leadingBlank(const QFontMetricsF& metrics) {
    const QString text = qtText(beforeGap);
    return metrics.horizontalAdvance(text) - metrics.horizontalAdvance(text.trimmed());
}

} // namespace

OpacityField::OpacityField(FieldEdit* edit, QWidget* parent)
    : QWidget(parent)
    , label_(new QLabel(qtText(opacityLabel), this))
    , edit_(edit) {
    edit_->setParent(this);
    label_->setBuddy(edit_);
    // The blanks make room for the box; word spacing is added once to a run of them.
    QFont font = label_->font();
    const double blanks = QFontMetricsF(font).horizontalAdvance(qtText(gap));
    font.setWordSpacing(std::max(0.0, boxWidth + 2 * distance - blanks));
    label_->setFont(font);
    label_->setIndent(0);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize OpacityField::sizeHint() const {
    const QFontMetricsF metrics(label_->font());
    const double width = metrics.horizontalAdvance(label_->text()) - leadingBlank(metrics);
    return {static_cast<int>(std::ceil(width)) + 1,
            std::max(label_->sizeHint().height(), edit_->sizeHint().height())};
}

void OpacityField::resizeEvent(QResizeEvent* /*event*/) {
    const QFontMetricsF metrics(label_->font());
    const double blank = leadingBlank(metrics);
    label_->setGeometry(rect().adjusted(-static_cast<int>(std::lround(blank)), 0, 0, 0));
    const double left = metrics.horizontalAdvance(qtText(beforeGap)) - blank + distance;
    const int height = edit_->sizeHint().height();
    edit_->setGeometry(static_cast<int>(std::lround(left)), (this->height() - height) / 2,
                       static_cast<int>(boxWidth), height);
}

} // namespace tarvel
