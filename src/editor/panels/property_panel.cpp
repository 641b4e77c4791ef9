// Composes the frames of the property panel, and shows those that a kind of element has.
#include "panels/property_panel.h"

#include "document/kinds/panel_texts.h"
#include "document/skin_document.h"
#include "editing/new_element.h"
#include "panels/image_frame.h"
#include "panels/menu_settings_frame.h"
#include "panels/shared_frame.h"
#include "panels/text_frame.h"
#include "widgets/control_names.h"
#include "widgets/page_stack.h"
#include "widgets/qt_text.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace tarvel {

namespace {

QString applyTip(bool differs) {
    return differs ? PropertyPanel::tr("Take the values of the panel over into the element, from "
                                       "which they differ")
                   : PropertyPanel::tr("Take the values of the panel over into the element");
}

} // namespace

PropertyPanel::PropertyPanel(const SkinDocument& document, Prompts& prompts, PictureCache& pictures,
                             QWidget* parent)
    : QWidget(parent)
    , document_(document)
    , watch_(document.watch(*this))
    , fraShared_(new SharedFrame(values_, prompts))
    , fraText_(new TextFrame(values_, prompts))
    , fraImg_(new ImageFrame(values_, document, pictures))
    , fraQor_(new MenuSettingsFrame(values_.menu, prompts)) {
    setAccessibleName(tr("Properties"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    buildFrames();
    column->addLayout(frames_, 1);
    buildRow();
    column->addWidget(commands_);
    connect(fraImg_, &ImageFrame::addResourceClicked, this, &PropertyPanel::addResourceClicked);
    connect(fraShared_, &SharedFrame::changed, this, &PropertyPanel::changed);
    connect(fraText_, &TextFrame::changed, this, &PropertyPanel::changed);
    connect(fraImg_, &ImageFrame::changed, this, &PropertyPanel::changed);
    connect(fraQor_, &MenuSettingsFrame::changed, this, &PropertyPanel::changed);
    showNothing();
}

// Pages on top of each other: the area is as high as the highest of them.
void PropertyPanel::buildFrames() {
    auto* hint = new QLabel(tr("Select an element to change it, or choose a tool to draw one."));
    hint->setAlignment(Qt::AlignCenter);
    hint->setWordWrap(true);
    nothing_ = hint;
    colorsAndText_ = new QWidget;
    auto* column = new QVBoxLayout(colorsAndText_);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(fraShared_);
    column->addWidget(fraText_);
    column->addStretch();
    colorsAndText_->setMinimumWidth(fraShared_->minimumWidth()); // shown or hidden
    frames_ = new PageStack;
    for (QWidget* page : {nothing_, colorsAndText_, static_cast<QWidget*>(fraImg_),
                          static_cast<QWidget*>(fraQor_)}) {
        frames_->addWidget(page);
    }
}

void PropertyPanel::buildRow() {
    cmdApply_ = named(new QPushButton(qtText(caption::applyChanges)), QStringLiteral("cmdApply"));
    cmdApply_->setToolTip(applyTip(false));
    connect(cmdApply_, &QPushButton::clicked, this, &PropertyPanel::applyClicked);
    commands_ = new QWidget;
    row_ = new QHBoxLayout(commands_);
    row_->setContentsMargins(0, 0, 0, 0);
    row_->addWidget(cmdApply_, 1);
}

void PropertyPanel::addBeside(QWidget* control) {
    row_->addWidget(control);
}

void PropertyPanel::showElement(const Element& element) {
    setVarious({});
    showFrames(showEditControls(element, document_.settings().resources, values_));
    cmdApply_->setEnabled(true);
}

void PropertyPanel::showElements(const std::vector<int>& ids) {
    setVarious({});
    const Element& element = document_.element(ids.back());
    const PanelLayout layout = showEditControls(element, document_.settings().resources, values_);
    leading_ = values_;
    setVarious(variousParts(document_, ids, leading_));
    values_ = before_ = withoutVarious(leading_, various_);
    showFrames(layout);
    cmdApply_->setEnabled(true);
}

// What was various and is not shown any more is the leading element's again.
void PropertyPanel::setVarious(const VariousParts& various) {
    values_ = values();
    various_ = various;
    fraShared_->setVarious(various);
    fraText_->setVarious(various);
    fraImg_->setVarious(various);
}

void PropertyPanel::showKind(ElementKind kind) {
    setVarious({});
    showFrames(editControls(newControl(kind), values_));
    cmdApply_->setEnabled(false); // nothing is there yet to apply to
}

void PropertyPanel::showNothing() {
    setVarious({});
    showFrames(PanelLayout{});
    cmdApply_->setEnabled(false);
}

void PropertyPanel::documentChanged(const DocumentChange& change) {
    if (change.what == DocumentChange::What::everything ||
        change.what == DocumentChange::What::settings) {
        resourcesChanged();
    }
}

void PropertyPanel::resourcesChanged() {
    fraImg_->resourcesChanged();
}

void PropertyPanel::takeMenuSettings(const MenuSettings& settings) {
    showMenuSettings(settings, values_.menu);
    fraQor_->refresh();
}

void PropertyPanel::takeValues(const PanelValues& values) {
    setVarious({});
    values_ = values;
    showFrames(shown_);
}

void PropertyPanel::focusFault(std::string_view message) {
    // Without resources there is none to choose, but one to add.
    const bool anyResource = !document_.settings().resources.empty();
    const char* control = message == message::noResource   ? (anyResource ? "lstR" : "cmdAddRes")
                          : message == message::noText     ? "txtText"
                          : message == message::badOpacity ? "txtAlpha"
                                                           : "lColor";
    if (auto* found = findChild<QWidget*>(QLatin1String(control))) {
        found->setFocus(Qt::OtherFocusReason);
    }
}

void PropertyPanel::setDiffers(bool differs) {
    QFont font = cmdApply_->font();
    if (font.bold() == differs) {
        return;
    }
    font.setBold(differs);
    cmdApply_->setFont(font);
    cmdApply_->setAccessibleDescription(differs ? tr("The panel differs from the element")
                                                : QString());
    cmdApply_->setToolTip(applyTip(differs));
}

void PropertyPanel::stopPreview() {
    fraImg_->stopPreview();
}

void PropertyPanel::showFrames(const PanelLayout& layout) {
    shown_ = layout;
    fraShared_->setVisible(layout.colors);
    fraShared_->refresh(layout);
    fraText_->setVisible(layout.text);
    fraText_->refresh();
    fraQor_->refresh();
    if (layout.resource) {
        fraImg_->refresh();
        frames_->setCurrentWidget(fraImg_);
        return;
    }
    fraImg_->leave();
    frames_->setCurrentWidget(layout.menu ? fraQor_ : layout.colors ? colorsAndText_ : nothing_);
}

} // namespace tarvel
