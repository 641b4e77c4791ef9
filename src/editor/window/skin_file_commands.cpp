// Saves, loads and shows the skin, sets its background, and tells how each of them went.
#include "window/skin_file_commands.h"

#include "dialogs/frm_instructions.h"
#include "document/layout_screens.h"
#include "document/open_edit.h"
#include "editing/step_names.h"
#include "files/host_files.h"
#include "skinfile/skin_folder.h"
#include "skinfile/skin_reader.h"
#include "skinfile/skin_writer.h"
#include "widgets/copy_progress.h"
#include "widgets/prompts.h"
#include "widgets/qt_text.h"
#include "widgets/remembered.h"
#include "widgets/usable_files.h"
#include "widgets/wait_cursor.h"
#include "window/xml_window.h"

#include <QDir>

#include <algorithm>
#include <exception>

namespace tarvel {

namespace {

QString withSeparator(const QString& folder) {
    return folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/');
}

bool isSame(const QString& folder, const QString& other) {
    return QDir::cleanPath(folder) == QDir::cleanPath(other);
}

} // namespace

SkinFileCommands::SkinFileCommands(SkinDocument& document, Prompts& prompts,
                                   Surroundings surroundings)
    : document_(document)
    , prompts_(prompts)
    , surroundings_(std::move(surroundings)) {}

bool SkinFileCommands::mnuSave_Click() {
    if (document_.settings().skinName.empty()) {
        prompts_.message(surroundings_.window, qtText(enterNameMessage));
        surroundings_.showInformation();
        return false;
    }
    saveFolder_ = prompts_.folder(surroundings_.window, qtText(saveFolderTitle));
    if (saveFolder_.isEmpty()) {
        return false;
    }
    saveFolder_ = withSeparator(saveFolder_);
    if (!saveInto(saveFolder_, document_)) {
        return false;
    }
    FrmInstructions(saveFolder_, surroundings_.window).exec();
    return true;
}

bool SkinFileCommands::mnuSaveAgain_Click() {
    if (document_.settings().skinName.empty() || skinFolder_.isEmpty() ||
        !QDir(skinFolder_).exists()) {
        return mnuSave_Click();
    }
    SkinDocument copy = document_; // a save moves the shown screen along
    return saveInto(withSeparator(skinFolder_), copy);
}

bool SkinFileCommands::saveInto(const QString& folder, SkinDocument& document) {
    SkinWriter writer(surroundings_.programFolder);
    CopyProgress progress(surroundings_.window);
    const SaveHooks hooks{
        .showProblem =
            [&](const std::string& description) {
                progress.hide();
                prompts_.message(surroundings_.window, qtText(description));
            },
        .progress = [&](std::string_view file, std::uintmax_t done,
                        std::uintmax_t total) { return progress.step(file, done, total); }};
    const SaveOutcome outcome = saveSkin(document, writer, hostPathOf(folder), hooks);
    progress.hide();
    for (const std::string& message :
         {outsideMessage(outcome.leftOut), sharedNamesMessage(outcome.sharedNames)}) {
        if (!message.empty()) {
            prompts_.message(surroundings_.window, qtText(message));
        }
    }
    if (!outcome.succeeded()) {
        emit told(outcome.writeProblem.empty()
                      ? tr("The skin was not saved completely.")
                      : tr("The skin was not saved: %1").arg(qtText(outcome.writeProblem)));
        return false;
    }
    setSkinFolder(folder);
    surroundings_.remembered.rememberSkinFolder(folder);
    emit saved();
    emit told(tr("Saved to %1").arg(QDir::toNativeSeparators(folder)));
    return true;
}

void SkinFileCommands::setSkinFolder(const QString& folder) {
    skinFolder_ = folder;
    emit skinFolderChanged();
}

void SkinFileCommands::loadUndone() {
    const auto load = std::find_if(loads_.rbegin(), loads_.rend(), [this](const Load& each) {
        return isSame(each.folderAfter, skinFolder_) && each.before.holdsTheSame(document_);
    });
    if (load != loads_.rend()) {
        setSkinFolder(load->folderBefore);
    }
}

void SkinFileCommands::loadRedone() {
    const auto load = std::find_if(loads_.rbegin(), loads_.rend(), [this](const Load& each) {
        return isSame(each.folderBefore, skinFolder_) && each.after.holdsTheSame(document_);
    });
    if (load != loads_.rend()) {
        setSkinFolder(load->folderAfter);
    }
}

void SkinFileCommands::adviseBeforeLoading() {
    if (document_.holdsAnything()) {
        prompts_.message(surroundings_.window, qtText(loadAdvice));
    }
}

void SkinFileCommands::openFolder(const QString& folder) {
    adviseBeforeLoading();
    if (!loadFrom(folder)) {
        document_.setCurrentLayout(menuScreen);
    }
}

void SkinFileCommands::mnuLoad_Click() {
    adviseBeforeLoading();
    const QString folder = prompts_.folder(surroundings_.window, qtText(loadFolderTitle));
    if (folder.isEmpty() || !loadFrom(folder)) {
        document_.setCurrentLayout(menuScreen);
    }
}

bool SkinFileCommands::loadFrom(const QString& folder) {
    SkinReadNotes notes;
    const SkinDocument before = document_;
    try {
        const WaitCursor waiting;
        const OpenEdit edit(document_, std::string(step::loadSkin));
        notes = readSkin(document_, hostPathOf(folder));
        document_.setCurrentLayout(menuScreen);
        emit loaded(before);
    } catch (const std::exception& error) { // a message box tells of it; the document is as before
        prompts_.message(surroundings_.window, qtText(error.what()));
        return false;
    }
    loads_.push_back({before, document_, skinFolder_, folder});
    setSkinFolder(folder);
    surroundings_.remembered.rememberSkinFolder(folder);
    surroundings_.remembered.rememberLastFolder(folder);
    emit told(tr("Loaded from %1").arg(QDir::toNativeSeparators(folder)));
    if (!notes.outside.empty()) {
        prompts_.message(surroundings_.window, qtText(outsideMessage(notes.outside)));
    }
    return true;
}

void SkinFileCommands::mnuView_Click() {
    SkinWriter writer;
    try {
        writer.generateXML(document_);
        auto* window = new XmlWindow(qtText(writer.xmlText()), surroundings_.window);
        window->setAttribute(Qt::WA_DeleteOnClose);
        window->show();
    } catch (const std::exception& error) {
        document_.setCurrentLayout(menuScreen);
        prompts_.message(surroundings_.window, qtText(error.what()));
    }
}

void SkinFileCommands::mnuLoadBg_Click() {
    const QStringList files =
        prompts_.files(surroundings_.window, QStringLiteral("JPG|*.jpg|BMP|*.bmp"), false);
    if (files.isEmpty() || files.front().isEmpty() ||
        usableFiles(files, prompts_, surroundings_.window).isEmpty()) {
        return;
    }
    const OpenEdit edit(document_, std::string(step::loadBackground));
    document_.editSettings([&](SkinSettings& settings) {
        settings.background = {true, documentPath(hostPathOf(files.front()))};
    });
}

void SkinFileCommands::mnuUnloadBg_Click() {
    const OpenEdit edit(document_, std::string(step::unloadBackground));
    document_.editSettings([](SkinSettings& settings) { settings.background.loaded = false; });
}

} // namespace tarvel
