// Fills the picker of resources, and previews the chosen one.
#include "panels/image_frame.h"

#include "document/kinds/panel_texts.h"
#include "document/skin_document.h"
#include "panels/resource_preview.h"
#include "widgets/control_names.h"
#include "widgets/drop_down.h"
#include "widgets/qt_text.h"

#include <QAbstractItemView>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace tarvel {

namespace {

constexpr QSize previewSize{200, 150}; // pixels
constexpr int roomAcross = 12;         // pixels beside the text of a button, beyond the style's

QLabel* captionLabel(const char* name, std::string_view text) {
    auto* label = new QLabel(qtText(text));
    label->setObjectName(QLatin1String(name));
    return label;
}

} // namespace

ImageFrame::ImageFrame(PanelValues& values, const SkinDocument& document, PictureCache& pictures,
                       QWidget* parent)
    : QGroupBox(tr("Image"), parent)
    , values_(values)
    , document_(document) {
    named(this, QStringLiteral("fraImg"), title());
    auto* column = new QVBoxLayout(this);
    buildPicker();
    auto* lblRes = captionLabel("lblRes", caption::chooseResource);
    lblRes->setBuddy(lstR_);
    column->addWidget(lblRes);
    auto* cmdAddRes =
        named(new QPushButton(qtText(caption::resourceManager)), QStringLiteral("cmdAddRes"));
    cmdAddRes->setMinimumWidth(cmdAddRes->sizeHint().width() + roomAcross);
    connect(cmdAddRes, &QPushButton::clicked, this, &ImageFrame::addResourceClicked);
    auto* row = new QHBoxLayout;
    row->addWidget(lstR_, 1);
    row->addWidget(cmdAddRes);
    column->addLayout(row);
    column->addWidget(captionLabel("lblPreview", caption::resourcePreview));
    preview_ = new ResourcePreview(pictures, previewSize);
    preview_->nameParts();
    column->addWidget(preview_, 1);
    resourcesChanged();
}

void ImageFrame::buildPicker() {
    lstR_ = named(new DropDown, QStringLiteral("lstR"), tr("Select Resource Below"));
    lstR_->view()->setAccessibleName(tr("Resources of the skin"));
    lstR_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    lstR_->setMinimumContentsLength(12);
    connect(lstR_, &QComboBox::activated, this, &ImageFrame::lstR_Click);
}

void ImageFrame::fillPicker() {
    const QSignalBlocker silence(lstR_);
    const auto& resources = document_.settings().resources;
    lstR_->clear();
    QStringList names;
    for (const Resource& resource : resources) {
        names << qtText(resource.name);
    }
    lstR_->addItems(names);
    lstR_->setEnabled(!resources.empty());
    showPlaceholder();
}

void ImageFrame::showPlaceholder() {
    const QString choose = various_ ? qtText(variousText) : tr("Choose one");
    lstR_->setPlaceholderText(lstR_->count() == 0 ? tr("No resources yet") : choose);
}

void ImageFrame::setVarious(const VariousParts& various) {
    various_ = various.resource;
    showPlaceholder();
}

void ImageFrame::resourcesChanged() {
    const auto& resources = document_.settings().resources;
    const QString name = lstR_->currentText();
    const bool wasChosen = lstR_->currentIndex() >= 0;
    fillPicker();
    // Where several have the name, the one that is where the chosen one was.
    const bool sameRow = values_.resource >= 0 &&
                         static_cast<std::size_t>(values_.resource) < resources.size() &&
                         lstR_->itemText(values_.resource) == name;
    if (!wasChosen || !sameRow) {
        values_.resource =
            wasChosen ? lstR_->findText(name, Qt::MatchExactly | Qt::MatchCaseSensitive) : -1;
    }
    lstR_->setCurrentIndex(values_.resource);
    if (previewed_) {
        refresh();
    }
}

const Resource* ImageFrame::chosen() const {
    const auto& resources = document_.settings().resources;
    const bool valid =
        values_.resource >= 0 && static_cast<std::size_t>(values_.resource) < resources.size();
    return valid ? &resources[static_cast<std::size_t>(values_.resource)] : nullptr;
}

void ImageFrame::lstR_Click() {
    values_.resource = lstR_->currentIndex();
    previewed_.reset();
    refresh();
    emit changed();
}

void ImageFrame::refresh() {
    if (lstR_->currentIndex() != values_.resource) {
        lstR_->setCurrentIndex(values_.resource);
    }
    const Resource* resource = chosen();
    const Resource shown = resource != nullptr ? *resource : Resource{};
    if (previewed_ == shown) {
        return;
    }
    previewed_ = shown;
    if (resource != nullptr) {
        preview_->showResource(shown);
    } else {
        preview_->showNothing();
    }
}

void ImageFrame::leave() {
    previewed_.reset();
    preview_->showNothing();
}

void ImageFrame::stopPreview() {
    preview_->stop();
}

} // namespace tarvel
