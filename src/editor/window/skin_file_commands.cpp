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
#include "widgets/usable_files.h"
#include "widgets/wait_cursor.h"
#include "window/xml_window.h"

#include <exception>

namespace tarvel {

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
    if (!saveFolder_.endsWith(QLatin1Char('/'))) {
        saveFolder_ += QLatin1Char('/');
    }
    return saveInto(saveFolder_);
}

bool SkinFileCommands::saveInto(const QString& folder) {
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
    const SaveOutcome outcome = saveSkin(document_, writer, hostPathOf(folder), hooks);
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
    skinFolder_ = folder;
    emit saved();
    emit told(tr("Saved to %1").arg(folder));
    FrmInstructions(folder, surroundings_.window).exec();
    return true;
}

void SkinFileCommands::mnuLoad_Click() {
    if (document_.holdsAnything()) {
        prompts_.message(surroundings_.window, qtText(loadAdvice));
    }
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
    skinFolder_ = folder;
    emit told(tr("Loaded from %1").arg(folder));
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
