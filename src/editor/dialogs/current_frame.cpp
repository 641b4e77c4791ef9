// Carries out what is done to the resources of the list.
#include "dialogs/current_frame.h"

#include "dialogs/resource_frames.h"
#include "dialogs/resource_row.h"
#include "dialogs/resource_thumbnails.h"
#include "editing/resource_uses.h"
#include "widgets/control_names.h"
#include "widgets/empty_hint.h"
#include "widgets/icons.h"
#include "widgets/prompts.h"
#include "widgets/search_progress.h"
#include "widgets/shown_path.h"
#include "widgets/usable_files.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>

namespace tarvel {

namespace {

constexpr int fewestRows = 90; // pixels

} // namespace

CurrentFrame::CurrentFrame(SkinDocument& document, Prompts& prompts, PictureCache& pictures,
                           QWidget* owner)
    : QGroupBox(QStringLiteral("CURRENT RESOURCES"))
    , document_(document)
    , prompts_(prompts)
    , owner_(owner)
    , notes_(document)
    , lstRes_(named(new QListWidget, QStringLiteral("lstRes"), tr("Resources of the skin")))
    , rows_(new ResourceRowDelegate(notes_, this))
    , thumbnails_(new ResourceThumbnails(document, notes_, pictures, *lstRes_, this))
    , cmdRename_(named(new QPushButton(tr("Rename")), QStringLiteral("cmdRename"),
                       tr("Rename the selected resource")))
    , cmdReplace_(named(new QPushButton(tr("Replace...")), QStringLiteral("cmdReplace"),
                        tr("Replace... the selected resource's file")))
    , cmdRemove_(named(new QPushButton(tr("Remove")), QStringLiteral("cmdRemove"),
                       tr("Remove the selected resource")))
    , cmdLocate_(named(new QPushButton(tr("Locate...")), QStringLiteral("cmdLocate"),
                       tr("Locate... missing files")))
    , progressDelay_(SearchProgress::delayMs) {
    build();
    connect(lstRes_, &QListWidget::itemSelectionChanged, this, &CurrentFrame::lstRes_Click);
    connect(rows_, &ResourceRowDelegate::nameTyped, this, &CurrentFrame::rename);
    connect(cmdRename_, &QPushButton::clicked, this, &CurrentFrame::cmdRename_Click);
    connect(cmdReplace_, &QPushButton::clicked, this, &CurrentFrame::cmdReplace_Click);
    connect(cmdRemove_, &QPushButton::clicked, this, &CurrentFrame::cmdRemove_Click);
    connect(cmdLocate_, &QPushButton::clicked, this, &CurrentFrame::cmdLocate_Click);
}

void CurrentFrame::build() {
    lstRes_->setUniformItemSizes(true);
    lstRes_->setTextElideMode(Qt::ElideMiddle);
    lstRes_->setMinimumHeight(fewestRows);
    lstRes_->setItemDelegate(rows_);
    lstRes_->setEditTriggers(QAbstractItemView::EditKeyPressed); // F2
    lstRes_->installEventFilter(this);
    cmdRename_->setIcon(icon(IconName::rename));
    cmdReplace_->setIcon(icon(IconName::replace));
    cmdRemove_->setIcon(icon(IconName::remove));
    cmdLocate_->setIcon(icon(IconName::locate));
    new EmptyHint(*lstRes_,
                  tr("No resources yet.\nChoose a file above, or drop one here.")); // NOLINT
    cmdRename_->setToolTip(tr("Give the resource another name (F2). Its elements follow."));
    cmdReplace_->setToolTip(tr("Give the resource another file. Its elements show that."));
    cmdRemove_->setToolTip(tr("Take the resource out of the skin (Delete)"));
    cmdLocate_->setToolTip(
        tr("Look for all missing files of the skin in a folder and those below it"));
    auto* commands = new QHBoxLayout;
    for (QPushButton* button : {cmdRename_, cmdReplace_, cmdRemove_, cmdLocate_}) {
        commands->addWidget(button, 1);
    }
    auto* box = new QVBoxLayout(this);
    box->addWidget(lstRes_, 1);
    box->addLayout(commands);
}

void CurrentFrame::readDocument() {
    {
        const QSignalBlocker quiet(lstRes_);
        lstRes_->clear();
    }
    notes_.lookForFiles();
    addRows();
    thumbnails_->restart();
    selectNone();
    renewNotes();
}

void CurrentFrame::listNewResources() {
    notes_.lookForFilesFrom(lstRes_->count());
    addRows();
    thumbnails_->addRows();
    renewNotes();
}

void CurrentFrame::addRows() {
    const auto& resources = document_.settings().resources;
    for (auto row = static_cast<std::size_t>(lstRes_->count()); row < resources.size(); ++row) {
        lstRes_->addItem(new ResourceRow(qtText(resources[row].name), notes_, *thumbnails_));
    }
}

void CurrentFrame::selectLast() {
    lstRes_->setCurrentRow(lstRes_->count() - 1);
}

void CurrentFrame::selectNone() {
    lstRes_->setCurrentIndex({});
}

void CurrentFrame::stop() {
    thumbnails_->stop();
}

// The selected row, as long as it stands for a resource; -1 for none.
int CurrentFrame::selectedRow() const {
    const auto selected = lstRes_->selectedItems();
    const int row = selected.isEmpty() ? -1 : lstRes_->row(selected.front());
    return row < static_cast<int>(document_.settings().resources.size()) ? row : -1;
}

void CurrentFrame::lstRes_Click() {
    showCommands();
    const auto selected = lstRes_->selectedItems();
    if (!selected.isEmpty()) {
        emit chosen(lstRes_->row(selected.front()));
    }
}

bool CurrentFrame::eventFilter(QObject* watched, QEvent* event) {
    if (watched == lstRes_ && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->matches(QKeySequence::Delete)) {
        cmdRemove_Click();
        return true;
    }
    return QGroupBox::eventFilter(watched, event);
}

void CurrentFrame::cmdRename_Click() {
    if (const int row = selectedRow(); row >= 0) {
        lstRes_->setFocus();
        lstRes_->editItem(lstRes_->item(row));
    }
}

void CurrentFrame::rename(int row, const QString& name) {
    if (row >= static_cast<int>(document_.settings().resources.size())) {
        return;
    }
    const std::string_view why = renameResource(document_, row, coreText(name));
    if (why.empty()) {
        renewRow(row);
        renewNotes();
        return;
    }
    // After the editor has closed, which a message would close a second time.
    QTimer::singleShot(
        0, this, [this, row, name, text = qtText(why)] { tellOfRefusedName(row, name, text); });
}

// Lets the user go on with what was typed.
void CurrentFrame::tellOfRefusedName(int row, const QString& name, const QString& why) {
    prompts_.message(owner_, why);
    if (isVisible() && row == selectedRow()) {
        rows_->startWith(name.isNull() ? QStringLiteral("") : name);
        lstRes_->setFocus();
        lstRes_->editItem(lstRes_->item(row));
    }
}

void CurrentFrame::cmdReplace_Click() {
    lstRes_->setFocus();
    const int row = selectedRow();
    if (row < 0) {
        return;
    }
    const QStringList files = usableFiles(
        prompts_.files(owner_, QLatin1String(resourceFileFilter), false), prompts_, owner_);
    if (files.isEmpty() || files.front().isEmpty()) {
        return;
    }
    if (replaceResourceFile(document_, row, documentPath(hostPathOf(files.front())))) {
        notes_.lookForFile(row);
        renewRow(row);
        renewNotes();
        emit chosen(row);
    }
}

void CurrentFrame::cmdRemove_Click() {
    lstRes_->setFocus(); // not where the Return key would remove the next one
    const int row = selectedRow();
    if (row >= 0 && mayRemove(row)) {
        removeResource(document_, row, true);
        takeRow(row);
    }
}

bool CurrentFrame::mayRemove(int row) {
    notes_.countUses();
    const int uses = notes_.uses(row);
    if (uses == 0) {
        return true;
    }
    const QString name = qtText(document_.settings().resources[static_cast<std::size_t>(row)].name);
    return prompts_.confirm(
        owner_, uses == 1
                    ? tr("1 element uses \"%1\". Remove it together with the resource?").arg(name)
                    : tr("%1 elements use \"%2\". Remove them together with the resource?")
                          .arg(QString::number(uses), name));
}

// The row that comes into the place of the one that went is selected.
void CurrentFrame::takeRow(int row) {
    {
        const QSignalBlocker quiet(lstRes_);
        delete lstRes_->takeItem(row);
        lstRes_->setCurrentRow(std::min(row, lstRes_->count() - 1));
    }
    notes_.removeRow(row);
    thumbnails_->removeRow(row);
    renewNotes();
    emit chosen(lstRes_->currentRow());
}

void CurrentFrame::cmdLocate_Click() {
    lstRes_->setFocus();
    const std::vector<MissingFile> missing = notes_.lookForFiles(); // some may have come back
    renewNotes();
    if (missing.empty()) {
        prompts_.message(owner_, tr("No file of the skin is missing any more."));
        return;
    }
    const QString folder = prompts_.folder(owner_, tr("Folder to look for the missing files in"));
    if (folder.isEmpty()) {
        return;
    }
    SearchProgress progress(owner_, progressDelay_);
    const LocatedFiles located =
        locate(missing, hostPathOf(folder), mostSearched_,
               [&](std::size_t entries) { return progress.step(entries); });
    const bool isCancelled = progress.wasCanceled();
    progress.hide();
    if (!isCancelled) {
        showLocated(located, missing.size());
    }
}

void CurrentFrame::showLocated(const LocatedFiles& located, std::size_t wanted) {
    const int used = useLocated(document_, located.files);
    notes_.lookForFiles();
    for (const LocatedFile& file : located.files) {
        if (file.missing.what == MissingFile::What::resource) {
            renewRow(file.missing.index);
        }
    }
    renewNotes();
    if (used > 0 && selectedRow() >= 0) {
        emit chosen(selectedRow());
    }
    QString text = tr("Missing files that were found: %1 of %2.").arg(used).arg(wanted);
    if (!located.complete) {
        text += QLatin1Char('\n') +
                tr("There is so much in the folder that not all of it was looked at.");
    }
    prompts_.message(owner_, text);
}

void CurrentFrame::renewRow(int row) {
    if (QListWidgetItem* item = lstRes_->item(row)) {
        item->setText(qtText(document_.settings().resources[static_cast<std::size_t>(row)].name));
        thumbnails_->renewRow(row);
    }
}

void CurrentFrame::renewNotes() {
    notes_.countUses();
    lstRes_->viewport()->update();
    showCommands();
}

void CurrentFrame::showCommands() {
    const bool isSelected = selectedRow() >= 0;
    for (QPushButton* button : {cmdRename_, cmdReplace_, cmdRemove_}) {
        button->setEnabled(isSelected);
    }
    cmdLocate_->setEnabled(notes_.isAnyMissing());
}

} // namespace tarvel
