// Where the controls of the music dialog stand, and how they get there.
#include "dialogs/frm_music.h"

#include <QCheckBox>
#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>

#include <algorithm>
#include <cmath>

namespace tarvel {

namespace {

constexpr int narrowest = 420; // pixels inside the margins
constexpr int indent = 22;     // of what belongs to an option

struct Spacing {
    int margin;
    int gap;
};

Spacing spacingOf(const QWidget& widget) {
    const QStyle& style = *widget.style();
    return {std::max(9, style.pixelMetric(QStyle::PM_LayoutLeftMargin, nullptr, &widget)),
            std::max(6, style.pixelMetric(QStyle::PM_LayoutVerticalSpacing, nullptr, &widget))};
}

int rounded(double value) {
    return static_cast<int>(std::lround(value));
}

void place(QWidget& widget, int left, int top) {
    widget.setGeometry(QRect(QPoint(left, top), widget.sizeHint()));
}

} // namespace

// Sets all sizes, and the places that are the same in every state.
void FrmMusic::measure() {
    const auto [margin, gap] = spacingOf(*this);
    const int width = std::max({narrowest, indent + chkGlobal_->sizeHint().width(),
                                indent + chkRandom_->sizeHint().width()});
    setFixedWidth(width + 2 * margin);

    place(*caption_, margin, margin);
    place(*optYesMusic_, margin, caption_->geometry().bottom() + 1 + gap);
    place(*optNoMusic_, margin, optYesMusic_->geometry().bottom() + 1 + gap);
    fraStuff_->setGeometry(margin, optNoMusic_->geometry().bottom() + 1 + gap, width,
                           fraStuff_->height());
    place(*chkGlobal_, indent, 0);
    place(*chkCustom_, indent, chkGlobal_->height() + gap);
    fraMusic_->setGeometry(2 * indent, chkCustom_->geometry().bottom() + 1 + gap,
                           width - 2 * indent, fraMusic_->height());
    musicInside_->setGeometry(0, 0, fraMusic_->width(), musicInside_->sizeHint().height());
    place(*chkRandom_, indent, chkRandom_->y());
    const QSize ok = cmdOK_->sizeHint();
    cmdOK_->setGeometry(margin + width - ok.width(), cmdOK_->y(), ok.width(), ok.height());
}

FrmMusic::Plan FrmMusic::plan() const {
    const auto [margin, gap] = spacingOf(*this);
    Plan plan{};
    plan.stuffShown = optYesMusic_->isChecked();
    plan.musicShown = chkCustom_->isChecked();
    plan.musicHeight = plan.musicShown ? musicInside_->height() : 0;
    plan.randomTop = fraMusic_->y() + (plan.musicShown ? plan.musicHeight + gap : 0);
    plan.stuffHeight = plan.stuffShown ? plan.randomTop + chkRandom_->height() : 0;
    plan.okTop = fraStuff_->y() + (plan.stuffShown ? plan.stuffHeight + gap : 0) + gap;
    plan.formHeight = plan.okTop + cmdOK_->height() + margin;
    return plan;
}

void FrmMusic::layOut(bool animated) {
    const Plan to = plan();
    if (!to.stuffShown) {
        fraStuff_->resize(fraStuff_->width(), 0);
    }
    if (!to.musicShown) {
        fraMusic_->resize(fraMusic_->width(), 0);
    }
    if (!to.stuffShown || !to.musicShown) {
        player_->stop(); // the button that stops it is hidden with the list
    }
    fraStuff_->setVisible(to.stuffShown);
    fraMusic_->setVisible(to.musicShown);
    easing_.start({growToHeight(to.musicHeight, fraMusic_), moveToY(to.randomTop, chkRandom_),
                   growToHeight(to.stuffHeight, fraStuff_), moveToY(to.okTop, cmdOK_),
                   growForm(to.formHeight)});
    if (!animated || !isVisible()) {
        easing_.finish();
    }
}

Easing::Move FrmMusic::moveToY(int y, QWidget* control) {
    return {double(control->y()), double(y),
            [control](double top) { control->move(control->x(), rounded(top)); }};
}

Easing::Move FrmMusic::growToHeight(int height, QWidget* control) {
    return {double(control->height()), double(height),
            [control](double now) { control->resize(control->width(), rounded(now)); }};
}

// The form's own height.
Easing::Move FrmMusic::growForm(int height) {
    return {double(this->height()), double(height),
            [this](double now) { setFixedHeight(rounded(now)); }};
}

} // namespace tarvel
