// Adds files and presets to the skin's resources, by what is filled in.
#include "dialogs/resource_frames.h"

#include "editing/resource_rules.h"
#include "panels/resource_looks.h"
#include "surface/picture_cache.h"
#include "widgets/control_names.h"
#include "widgets/icons.h"
#include "widgets/path_label.h"
#include "widgets/prompts.h"
#include "widgets/shown_path.h"
#include "widgets/usable_files.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>

#include <utility>

namespace tarvel {

namespace {

constexpr QSize presetIcon{64, 48}; // pixels

} // namespace

SourceButtons::SourceButtons(const QString& suffix, QWidget* parent)
    : QWidget(parent)
    , optCustom_(named(new QRadioButton(QStringLiteral("Custom (from file)")),
                       QStringLiteral("optCustom") + suffix))
    , optPreset_(named(new QRadioButton(QStringLiteral("Preset (in QOR)")),
                       QStringLiteral("optPreset") + suffix)) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(18);
    row->addWidget(optCustom_);
    row->addWidget(optPreset_);
    row->addStretch();
    connect(optPreset_, &QRadioButton::toggled, this, &SourceButtons::chosen);
}

void SourceButtons::setPreset(bool preset) {
    const QSignalBlocker quiet(optPreset_);
    (preset ? optPreset_ : optCustom_)->setChecked(true);
}

void SourceButtons::focusChosen() {
    (optPreset_->isChecked() ? optPreset_ : optCustom_)->setFocus();
}

CustomFrame::CustomFrame(SkinDocument& document, Prompts& prompts, QWidget* owner)
    : QGroupBox(QStringLiteral("ADD RESOURCE"))
    , document_(document)
    , prompts_(prompts)
    , owner_(owner)
    , source_(new SourceButtons({}))
    , txtRes_(named(new QLineEdit, QStringLiteral("txtRes"), tr("Resource Name")))
    , lblFile_(new PathLabel)
    , cmdBrowse_(named(new QPushButton(QStringLiteral("Browse")), QStringLiteral("cmdBrowse"),
                       tr("Browse for a file")))
    , cmdAdd_(named(new QPushButton(QStringLiteral("Add")), QStringLiteral("cmdAdd"),
                    tr("Add the file as a resource"))) {
    setObjectName(QStringLiteral("fraCustom"));
    lblFile_->setObjectName(QStringLiteral("lblFile"));
    buildGrid();
    connect(txtRes_, &QLineEdit::textChanged, this, &CustomFrame::inputChanged);
    cmdBrowse_->setIcon(icon(IconName::open));
    cmdAdd_->setIcon(icon(IconName::add));
    connect(cmdBrowse_, &QPushButton::clicked, this, &CustomFrame::cmdBrowse_Click);
    connect(cmdAdd_, &QPushButton::clicked, this, &CustomFrame::cmdAdd_Click);
}

void CustomFrame::buildGrid() {
    txtRes_->setAcceptDrops(false); // files are for the dialog
    auto* lblRes = new QLabel(QStringLiteral("Resource Name:"));
    lblRes->setBuddy(txtRes_);
    auto* note = new QLabel(QStringLiteral("*The resource can either be a video or a picture.  "
                                           "Both are referred to as \"images\"."));
    note->setWordWrap(true);
    auto* grid = new QGridLayout(this);
    grid->addWidget(source_, 0, 0, 1, 3);
    grid->addWidget(lblRes, 1, 0);
    grid->addWidget(txtRes_, 1, 1, 1, 2);
    grid->addWidget(new QLabel(QStringLiteral("File:")), 2, 0);
    grid->addWidget(lblFile_, 2, 1);
    grid->addWidget(cmdBrowse_, 2, 2);
    grid->addWidget(note, 3, 0, 1, 2);
    grid->addWidget(cmdAdd_, 3, 2, Qt::AlignTop);
    grid->setColumnStretch(1, 1);
}

void CustomFrame::cmdBrowse_Click() {
    const QStringList files = prompts_.files(owner_, QLatin1String(resourceFileFilter), true);
    if (files.size() > 1) {
        addFiles(files);
    } else if (!files.isEmpty() && !files.front().isEmpty()) {
        takeFile(files.front());
    }
}

// What is filled in stays: it is for a file of its own.
void CustomFrame::addFiles(const QStringList& files) {
    const QStringList usable = usableFiles(files, prompts_, owner_);
    std::vector<std::string> paths;
    for (const QString& file : usable) {
        paths.push_back(documentPath(hostPathOf(file)));
    }
    const int added = addCustomResources(document_, paths);
    if (added > 0) {
        emit done(true);
    }
    if (added < usable.size()) {
        prompts_.message(owner_, tr("Files that the skin has already: %1 of %2.")
                                     .arg(usable.size() - added)
                                     .arg(usable.size()));
    }
}

void CustomFrame::takeFile(const QString& file) {
    if (usableFiles({file}, prompts_, owner_).isEmpty()) {
        return;
    }
    lblFile_->setPath(file);
    if (txtRes_->text().isEmpty()) {
        txtRes_->setText(qtText(suggestedName(documentPath(hostPathOf(file)))));
    }
    emit inputChanged(); // Add is the default button now
    cmdAdd_->setFocus();
    emit fileTaken(file);
}

void CustomFrame::cmdAdd_Click() {
    const QString file = lblFile_->text();
    const std::string path = file.isEmpty() ? std::string() : documentPath(hostPathOf(file));
    const AddOutcome outcome = addCustomResource(document_, coreText(txtRes_->text()), path);
    if (outcome == AddOutcome::reserved) {
        prompts_.message(owner_, qtText(reservedNameMessage));
        return;
    }
    if (outcome == AddOutcome::taken) {
        prompts_.message(owner_, qtText(takenNameMessage));
        txtRes_->setFocus();
        return;
    }
    const bool added = outcome == AddOutcome::added;
    if (added) {
        clear();
    }
    emit done(added);
}

bool CustomFrame::hasFile() const {
    return !lblFile_->text().isEmpty();
}

bool CustomFrame::hasName() const {
    return !txtRes_->text().isEmpty();
}

void CustomFrame::takeReturn() {
    if (isComplete()) {
        cmdAdd_Click();
    } else if (hasFile()) {
        txtRes_->setFocus();
    } else {
        cmdBrowse_->setFocus();
    }
}

void CustomFrame::clear() {
    lblFile_->setPath({});
    txtRes_->clear();
}

PresetFrame::PresetFrame(SkinDocument& document, PictureCache& pictures, QWidget* parent)
    : QGroupBox(QStringLiteral("ADD PRESET RESOURCE"), parent)
    , document_(document)
    , pictures_(pictures)
    , source_(new SourceButtons(QStringLiteral("2")))
    , lstResDef_(named(new QListWidget, QStringLiteral("lstResDef"), tr("Preset resources")))
    , imgDefault_(named(new QLabel, QStringLiteral("imgDefault"),
                        tr("The picture that stands for presets")))
    , lblDesc_(new QLabel)
    , txtResDef_(named(new QLineEdit, QStringLiteral("txtResDef"), tr("Resource name")))
    , cmdAddDef_(
          named(new QPushButton(QStringLiteral("Add Resource")), QStringLiteral("cmdAddDef"))) {
    setObjectName(QStringLiteral("fraPreset"));
    lblDesc_->setObjectName(QStringLiteral("lblDesc"));
    cmdAddDef_->setIcon(icon(IconName::add));
    for (const auto& preset : presetResources) {
        lstResDef_->addItem(qtText(preset.entry));
    }
    lstResDef_->setCurrentIndex({}); // the focus alone is to choose nothing
    buildGrid();
    connect(lstResDef_, &QListWidget::itemSelectionChanged, this, &PresetFrame::lstResDef_Click);
    connect(lstResDef_, &QListWidget::itemClicked, this, &PresetFrame::lstResDef_Click);
    connect(lstResDef_, &QListWidget::itemSelectionChanged, this, &PresetFrame::inputChanged);
    connect(cmdAddDef_, &QPushButton::clicked, this, &PresetFrame::cmdAddDef_Click);
}

void PresetFrame::buildGrid() {
    lblDesc_->setWordWrap(true);
    lblDesc_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    lblDesc_->setMinimumHeight(3 * lblDesc_->fontMetrics().lineSpacing());
    lstResDef_->setFixedHeight(150);
    txtResDef_->setAcceptDrops(false);
    imgDefault_->setFixedSize(presetIcon);
    QPixmap room(presetIcon);
    room.fill(Qt::transparent);
    imgDefault_->setPixmap(room);
    auto* lblName = new QLabel(QStringLiteral("Resource name"));
    lblName->setBuddy(txtResDef_);
    auto* grid = new QGridLayout(this);
    grid->addWidget(source_, 0, 0, 1, 2);
    grid->addWidget(lstResDef_, 1, 0, 3, 1);
    grid->addWidget(imgDefault_, 1, 1);
    grid->addWidget(new QLabel(QStringLiteral("Description:")), 2, 1);
    grid->addWidget(lblDesc_, 3, 1, Qt::AlignTop);
    auto* nameRow = new QHBoxLayout;
    nameRow->addWidget(lblName);
    nameRow->addWidget(txtResDef_, 1);
    nameRow->addWidget(cmdAddDef_);
    grid->addLayout(nameRow, 4, 0, 1, 2);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(3, 1);
}

// Decoded when it is to be seen: not when the program starts.
void PresetFrame::showEvent(QShowEvent* event) {
    QGroupBox::showEvent(event);
    if (!std::exchange(isPictureShown_, true)) {
        const Resource anyPreset{.name = {}, .content = {}, .isFile = false};
        imgDefault_->setPixmap(QPixmap::fromImage(
            thumbnailOf(anyPreset, pictures_, presetIcon, imgDefault_->devicePixelRatioF())));
    }
}

int PresetFrame::selectedPreset() const {
    const auto selected = lstResDef_->selectedItems();
    return selected.isEmpty() ? -1 : lstResDef_->row(selected.front());
}

void PresetFrame::lstResDef_Click() {
    const int preset = selectedPreset();
    if (preset < 0) {
        return;
    }
    const PresetResource& chosen = presetResources.at(static_cast<std::size_t>(preset));
    lblDesc_->setText(qtText(chosen.description));
    txtResDef_->setText(qtText(presetName(chosen.entry)));
}

void PresetFrame::clear() {
    lstResDef_->setCurrentIndex({});
    lblDesc_->clear();
    txtResDef_->clear();
}

bool PresetFrame::hasName() const {
    return !txtResDef_->text().isEmpty();
}

void PresetFrame::takeReturn() {
    if (isComplete()) {
        cmdAddDef_Click();
    } else {
        lstResDef_->setFocus();
    }
}

void PresetFrame::cmdAddDef_Click() {
    const auto outcome =
        addPresetResource(document_, selectedPreset(), coreText(txtResDef_->text()));
    if (outcome != AddOutcome::taken) {
        emit done();
    }
}

} // namespace tarvel
