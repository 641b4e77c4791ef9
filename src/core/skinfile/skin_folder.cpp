// The steps of a save, in order.
#include "skinfile/skin_folder.h"

#include "document/layout_screens.h"
#include "files/host_files.h"
#include "skinfile/skin_reader.h"
#include "text/text_encoding.h"

#include <exception>
#include <utility>

namespace tarvel {

namespace {

class SaveRun {
  public:
    SaveRun(const SkinDocument& document, const std::filesystem::path& folder,
            const SaveHooks& hooks)
        : settings_(document.settings())
        , folder_(withSlash(documentPath(folder)))
        , hooks_(hooks) {}

    SaveOutcome run(std::string_view xmlText) {
        writeText(xmlText);
        makeFolder("Media\\");
        makeFolder("Music\\");
        outcome_.stopped = !copyResources() || !copyBackground() || !copyMusic();
        return std::move(outcome_);
    }

  private:
    void writeText(std::string_view xmlText) {
        try {
            writeFile(hostPath(folder_ + std::string(skinFileName)), skinFileBytes(xmlText));
            outcome_.textWritten = true;
        } catch (const std::exception& error) {
            outcome_.writeProblem = error.what();
        }
    }

    void makeFolder(std::string_view name) {
        try {
            createFolder(hostPath(folder_ + std::string(name)));
        } catch (const std::exception& error) {
            showProblem(error.what());
        }
    }

    // False when the save ends here.
    bool copyResources() {
        for (const Resource& resource : settings_.resources) {
            if (!resource.isFile) {
                continue;
            }
            if (resource.outside) {
                outcome_.leftOut.push_back(resource.name);
            } else if (!copyReported(resource.content, "Media\\")) {
                return false;
            }
        }
        return true;
    }

    bool copyBackground() {
        if (!settings_.background.loaded) {
            return true;
        }
        try {
            return copy(settings_.background.path, "Media\\");
        } catch (const std::exception&) {
            return true; // a background that cannot be copied does not keep the rest from the
                         // folder
        }
    }

    bool copyMusic() {
        for (const int index : settings_.music.rows) {
            const auto& file = settings_.music.musicFiles.at(static_cast<std::size_t>(index));
            if (!copyReported(file, "Music\\")) {
                return false;
            }
        }
        return true;
    }

    bool copyReported(const std::string& source, std::string_view below) {
        try {
            return copy(source, below);
        } catch (const std::exception& error) {
            showProblem(error.what());
            return false;
        }
    }

    // False when cancelled.
    bool copy(const std::string& source, std::string_view below) {
        const auto name = trimtofile(source);
        const std::string target = std::string(folder_).append(below).append(name);
        if (target == source) {
            return true;
        }
        CopyStep progress;
        if (hooks_.progress) {
            progress = [&](std::uintmax_t done, std::uintmax_t total) {
                return hooks_.progress(name, done, total);
            };
        }
        return copyFile(hostPath(source), hostPath(target), progress);
    }

    void showProblem(const std::string& description) const {
        if (hooks_.showProblem) {
            hooks_.showProblem(description);
        }
    }

    const SkinSettings settings_; // a copy: the window stays alive while files are copied
    std::string folder_;
    const SaveHooks& hooks_;
    SaveOutcome outcome_;
};

SaveOutcome notBegun(std::string problem, const SaveHooks& hooks) {
    if (hooks.showProblem) {
        hooks.showProblem(problem);
    }
    return {
        .textWritten = false, .writeProblem = std::move(problem), .stopped = true, .leftOut = {}};
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
    return SaveRun(document, folder, hooks).run(writer.xmlText());
}

std::string skinFileBytes(std::string_view xmlText) {
    return encodeWindows1252(std::string(xmlText) + "\r\n");
}

} // namespace tarvel
