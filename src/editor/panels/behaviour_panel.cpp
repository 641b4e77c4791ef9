// Builds the heading, the rows and the OK button that the behaviour panels share.
#include "panels/behaviour_panel.h"

#include "document/open_edit.h"
#include "editing/step_names.h"
#include "widgets/content_scroll.h"
#include "widgets/control_names.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <iterator>

namespace tarvel {

BehaviourPanel::BehaviourPanel(SkinDocument& document, std::string_view step, const QString& name,
                               const QString& heading, QWidget* parent)
    : SideCard(parent)
    , document_(document)
    , step_(step)
    , column_(new QVBoxLayout(this)) {
    hide();
    setObjectName(name);
    column_->setContentsMargins(margin, margin, margin, margin);
    column_->setSpacing(spacing);
    auto* content = new QWidget;
    rows_ = new QVBoxLayout(content);
    rows_->setContentsMargins(0, 0, 0, 0);
    rows_->setSpacing(spacing);
    column_->addWidget(new ContentScroll(content, ContentScroll::Ways::both), 1);
    rows_->addWidget(headingOf(heading));
}

void BehaviourPanel::addOk(const QString& name, const QString& deed) {
    const auto caption = QStringLiteral("OK");
    cmdOK_ = named(new QPushButton(caption), name, QStringLiteral("%1: %2").arg(caption, deed));
    connect(cmdOK_, &QPushButton::clicked, this, &BehaviourPanel::ok);
    rows_->addStretch(1);
    column_->addWidget(cmdOK_, 0, Qt::AlignRight);
}

void BehaviourPanel::open(const std::vector<int>& elementIds) {
    if (elementIds.empty() || elementIds.back() < 1 ||
        elementIds.back() > document_.lastElementId()) {
        return;
    }
    elementIds_ = elementIds;
    fill(document_.element(shownId()));
    untouched_ = stored();
    show();
    raise();
    if (firstControl_ != nullptr) {
        firstControl_->setFocus(Qt::OtherFocusReason);
    }
}

void BehaviourPanel::ok() {
    if (hasElement()) {
        const OpenEdit edit(document_, stepName(step_, document_, elementIds_));
        storeToAll();
    }
    hide();
    emit closed();
}

// The document may have been replaced.
bool BehaviourPanel::hasElement() const {
    return std::all_of(elementIds_.begin(), elementIds_.end(),
                       [this](int id) { return id <= document_.lastElementId(); });
}

void BehaviourPanel::storeToAll() {
    std::vector<int> suited;
    std::copy_if(
        elementIds_.begin(), elementIds_.end(), std::back_inserter(suited),
        [this](int id) { return id == shownId() || suits(document_.element(id).elementKind); });
    document_.editElements(suited, [this](Element& element) { store(element); });
}

Element BehaviourPanel::stored() const {
    Element element = document_.element(shownId());
    store(element);
    return element;
}

bool BehaviourPanel::isChanged() const {
    return hasElement() && stored() != untouched_;
}

void BehaviourPanel::storeNow() {
    before_.clear();
    for (const int id : elementIds_) {
        before_.push_back(document_.element(id));
    }
    storeToAll();
}

void BehaviourPanel::takeBack() {
    auto before = before_.begin();
    document_.editElements(elementIds_, [&](Element& element) { element = *before++; });
}

void BehaviourPanel::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        cmdOK_->click();
        break;
    case Qt::Key_Escape:
        break; // goes no further: what lies below the panel is out of use
    default:
        QFrame::keyPressEvent(event);
    }
}

} // namespace tarvel
