// Takes the steps of a save in their order: the text, the folders, and the copies of all media.
#include "skinfile/skin_folder.h"

#include "document/layout_screens.h"
#include "files/folder_hold.h"
#include "files/host_files.h"
#include "files/path_text.h"
#include "files/replacement.h"
#include "skinfile/save_plan.h"
#include "skinfile/skin_reader.h"
#include "text/text_encoding.h"

#include <algorithm>
#include <exception>
#include <utility>

namespace tarvel {

namespace {

class SaveRun {
  public:
    SaveRun(const std::filesystem::path& folder, SavePlan plan, const SaveHooks& hooks)
        : folder_(folder)
        , prefix_(withSlash(documentPath(folder)))
        , plan_(std::move(plan))
        , hooks_(hooks) {}

    SaveOutcome run(std::string_view xmlText) {
        outcome_.leftOut = std::move(plan_.leftOut);
        removeLeftovers(folder_);
        writeText(xmlText);
        makeFolder(mediaFolder);
        makeFolder(musicFolder);
        outcome_.stopped = !std::all_of(plan_.copies.begin(), plan_.copies.end(),
                                        [this](const auto& planned) { return carryOut(planned); });
        if (!outcome_.stopped) {
            outcome_.sharedNames = std::move(plan_.sharedNames);
        }
        return std::move(outcome_);
    }

  private:
    void writeText(std::string_view xmlText) {
        try {
            const auto target = hostPath(prefix_ + std::string(skinFileName));
            writeFile(writtenPath(folder_, target), skinFileBytes(xmlText));
            outcome_.textWritten = true;
        } catch (const std::exception& error) {
            outcome_.writeProblem = error.what();
        }
    }

    void makeFolder(std::string_view name) {
        // Without its slash: a link to a folder that is gone is in the way of a new one.
        const auto path = hostPath(prefix_ + std::string(name.substr(0, name.size() - 1)));
        try {
            createFolder(path);
            removeLeftovers(path);
        } catch (const std::exception& error) {
            outcome_.folderProblems.emplace_back(error.what());
            showProblem(error.what());
        }
    }

    // False when the save ends here.
    bool carryOut(const PlannedCopy& planned) {
        try {
            return copy(planned);
        } catch (const std::exception& error) {
            if (planned.what == PlannedCopy::What::background) {
                return true; // one that cannot be copied does not keep the rest from the folder
            }
            showProblem(error.what());
            return false;
        }
    }

    // False when cancelled.
    bool copy(const PlannedCopy& planned) {
        CopyStep progress;
        if (hooks_.progress) {
            progress = [&](std::uintmax_t done, std::uintmax_t total) {
                return hooks_.progress(planned.name, done, total);
            };
        }
        return copyFile(planned.from, planned.to, progress);
    }

    void showProblem(const std::string& description) const {
        if (hooks_.showProblem) {
            hooks_.showProblem(description);
        }
    }

    const std::filesystem::path& folder_;
    std::string prefix_;
    SavePlan plan_;
    const SaveHooks& hooks_;
    SaveOutcome outcome_;
};

SaveOutcome notBegun(std::string problem, const SaveHooks& hooks) {
    if (hooks.showProblem) {
        hooks.showProblem(problem);
    }
    SaveOutcome outcome;
    outcome.writeProblem = std::move(problem);
    outcome.stopped = true;
    return outcome;
}

} // namespace

SaveOutcome saveSkin(SkinDocument& document, SkinWriter& writer,
                     const std::filesystem::path& folder, const SaveHooks& hooks) {
    std::string problem = folderProblem(folder);
    if (!problem.empty()) {
        return notBegun(std::move(problem), hooks);
    }
    try {
        writer.generateXML(document);
    } catch (const std::exception& error) {
        document.setCurrentLayout(menuScreen); // it stood at the screen that could not be written
        return notBegun(error.what(), hooks);
    }
    const FolderHold hold(folder);
    if (hold.isTaken()) {
        return notBegun("Somebody is saving into this folder at the moment: " + utf8Of(folder),
                        hooks);
    }
    SavePlan plan = planSave(document.settings(), folder);
    if (!plan.obstacle.empty()) {
        return notBegun("Nothing was saved: " + plan.obstacle, hooks);
    }
    return SaveRun(folder, std::move(plan), hooks).run(writer.xmlText());
}

std::string sharedNamesMessage(const std::vector<std::string>& names) {
    return listMessage("These file names stand for two files each, and the later one was kept: ",
                       names);
}

std::string skinFileBytes(std::string_view xmlText) {
    return encodeWindows1252(std::string(xmlText) + "\r\n");
}

} // namespace tarvel
