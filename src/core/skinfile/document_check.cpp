// Collects what a document itself tells: its resources, its elements, its characters.
#include "skinfile/document_check.h"

#include "document/element_kinds.h"
#include "document/image_source.h"
#include "document/kinds/panel_texts.h"
#include "document/layout_screens.h"
#include "files/host_files.h"
#include "files/windows_names.h"
#include "skinfile/hidden_elements.h"
#include "skinfile/picture_check.h"
#include "skinfile/save_plan.h"
#include "skinfile/skin_writer.h"
#include "text/text_case.h"
#include "text/text_encoding.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace tarvel {

namespace {

bool isOffScreen(const ElementControl& control) {
    const bool line = hasEnds(control);
    const float left = line ? std::min(control.X1, control.X2) : control.left;
    const float top = line ? std::min(control.Y1, control.Y2) : control.top;
    const float right = line ? std::max(control.X1, control.X2) : left + control.width;
    const float bottom = line ? std::max(control.Y1, control.Y2) : top + control.height;
    const auto outside = [line](float from, float to, int size) {
        // A line at the very edge still has a pixel there.
        return line ? to < 0 || from > static_cast<float>(size)
                    : to <= 0 || from >= static_cast<float>(size);
    };
    return outside(left, right, skinWidth) || outside(top, bottom, skinHeight);
}

// A field in another letter case may be one to the dashboard.
bool isUnknownField(const Element& element) {
    const std::string& field = element.elementControl.caption;
    return element.elementKind == ElementKind::Text && !element.textIsConstant && !field.empty() &&
           std::none_of(predefinedTexts.begin(), predefinedTexts.end(),
                        [&](std::string_view known) { return equalsIgnoringCase(known, field); });
}

class DocumentCheck {
  public:
    DocumentCheck(const SkinDocument& document, const std::filesystem::path& folder,
                  std::vector<Finding>& findings)
        : document_(document)
        , folder_(folder)
        , prefix_(folder.empty() ? std::string() : withSlash(documentPath(folder)))
        , findings_(findings) {}

    void run() {
        if (document_.settings().skinName.empty()) {
            find("The skin has no name: it cannot be saved");
        }
        checkResources();
        checkBackgroundAndMusic();
        checkFileNames();
        for (int screen = 0; screen < screenCount; ++screen) {
            for (int row = 0; row < document_.rowCount(screen); ++row) {
                checkElement(screen, row);
            }
            for (const HiddenElement& hidden : hiddenElements(document_, screen)) {
                find(screen, hidden.row,
                     "is hidden completely behind " + named(screen, hidden.coverRow));
            }
        }
        findLargePictures();
    }

  private:
    void find(std::string text, Severity severity = Severity::warning) {
        addFinding(findings_, std::move(text), severity);
    }

    void find(int screen, int row, const std::string& text, Severity severity = Severity::warning) {
        const auto caption = layoutScreens[static_cast<std::size_t>(screen)].caption;
        find(std::string(caption).append(", ").append(named(screen, row)).append(": ") + text,
             severity);
        findings_.back().screen = screen;
        findings_.back().elementId = document_.itemData(screen, row);
    }

    // An element by its place and what its row says.
    [[nodiscard]] std::string named(int screen, int row) const {
        return "element " + std::to_string(row + 1) + " (" + document_.rowText(screen, row) + ")";
    }

    // The file as the skin names it, where it lies in the skin's folder.
    [[nodiscard]] std::string fileOf(const Resource& resource) const {
        const std::string& path = resource.content;
        return path.starts_with(prefix_) ? path.substr(prefix_.size()) : path;
    }

    // What is not in the skin's folder comes there by its own name alone.
    [[nodiscard]] std::string nameAfterSave(const Resource& resource) const {
        std::string file = fileOf(resource);
        const bool isInFolder = !resource.outside && file.size() < resource.content.size();
        return isInFolder ? file : std::string(trimtofile(resource.content));
    }

    void checkResources() {
        for (const Resource& resource : document_.settings().resources) {
            if (!resource.isFile) {
                continue;
            }
            const std::string subject = "Resource " + inQuotes(resource.name);
            if (trimtofile(resource.content).empty()) {
                find(subject + " names no file", Severity::error);
                continue;
            }
            checkName(subject, nameAfterSave(resource));
            if (resource.outside) {
                find(subject + ": " + fileOf(resource) + " lies outside the skin folder",
                     Severity::error);
            } else if (!files_.FileExists(resource.content)) {
                find(subject + ": " + fileOf(resource) + " is missing", Severity::error);
            }
        }
    }

    void checkName(const std::string& subject, std::string_view file) {
        if (const auto part = partWithoutWindowsName(file); !part.empty()) {
            find(subject + ": Windows cannot have the name " + inQuotes(part));
        }
    }

    // They have no names but those of their files.
    void checkBackgroundAndMusic() {
        const SkinSettings& settings = document_.settings();
        if (settings.background.loaded) {
            checkName("The background", trimtofile(settings.background.path));
        }
        for (const int index : settings.music.rows) {
            const auto& file = settings.music.musicFiles.at(static_cast<std::size_t>(index));
            checkName("The music", trimtofile(file));
        }
    }

    void checkFileNames() {
        std::unordered_map<std::string, const Resource*> firstUser; // by lower-cased file name
        for (const Resource& resource : document_.settings().resources) {
            if (!resource.isFile) {
                continue;
            }
            const auto name = trimtofile(resource.content);
            if (name.empty()) {
                continue;
            }
            const auto [first, isNew] = firstUser.try_emplace(lowerCased(name), &resource);
            if (!isNew && !isSameFile(*first->second, resource)) {
                find("Resources " + inQuotes(first->second->name) + " and " +
                     inQuotes(resource.name) + " have one file name, " + std::string(name) +
                     ": a save keeps one file");
            }
        }
        if (folder_.empty()) {
            return;
        }
        if (const auto plan = planSave(document_.settings(), folder_); !plan.obstacle.empty()) {
            find("A save over this folder is refused: " + plan.obstacle, Severity::error);
        }
    }

    bool isSameFile(const Resource& a, const Resource& b) {
        return a.content == b.content || files_.isSameFile(a.content, b.content);
    }

    void checkElement(int screen, int row) {
        const Element& element = document_.element(document_.itemData(screen, row));
        if (rulesOf(element.elementKind).namesResource &&
            resourceOf(document_, element.imageSource) == nullptr) {
            find(screen, row, "its source " + inQuotes(element.imageSource) + " names no resource",
                 Severity::error);
        }
        if (isUnknownField(element)) {
            find(screen, row,
                 "its source " + inQuotes(element.elementControl.caption) +
                     " names no field of the dashboard");
        }
        if (isOffScreen(element.elementControl)) {
            find(screen, row, "lies wholly off the 640 by 480 screen");
        }
    }

    void findLargePictures() {
        const PictureReport report = checkPictures(document_, files_);
        for (const LargePicture& picture : report.large) {
            const auto& resource =
                document_.settings().resources[static_cast<std::size_t>(picture.resource)];
            find(picture.screen, picture.row,
                 "its picture " + fileOf(resource) + " of " + std::to_string(picture.size.width) +
                     " by " + std::to_string(picture.size.height) +
                     " pixels is more than twice as wide and high as it is shown anywhere, and "
                     "takes " +
                     std::to_string(decodedBytes(picture.size)) + " bytes when decoded",
                 Severity::note);
        }
        if (!report.large.empty()) {
            find("All pictures together take " + std::to_string(report.decodedBytes) +
                     " bytes when decoded",
                 Severity::note);
        }
    }

    const SkinDocument& document_;
    const std::filesystem::path& folder_;
    std::string prefix_;
    FileFinder files_;
    std::vector<Finding>& findings_;
};

} // namespace

std::string inQuotes(std::string_view text) {
    return std::string("\"").append(text).append("\"");
}

void addFinding(std::vector<Finding>& findings, std::string text, Severity severity) {
    const auto isLineBreak = [](char c) { return c == '\n' || c == '\r'; };
    std::replace_if(text.begin(), text.end(), isLineBreak, ' ');
    findings.push_back(
        {.text = std::move(text), .screen = {}, .elementId = {}, .severity = severity});
}

void findInDocument(const SkinDocument& document, const std::filesystem::path& folder,
                    std::vector<Finding>& findings) {
    DocumentCheck(document, folder, findings).run();
}

void findCharacters(std::string_view writtenText, std::vector<Finding>& findings) {
    if (fitsWindows1252(writtenText)) {
        return;
    }
    while (!writtenText.empty()) {
        const auto end = std::min(writtenText.find("\r\n"), writtenText.size());
        const auto line = writtenText.substr(0, end);
        if (!fitsWindows1252(line)) {
            const auto visible = line.substr(std::min(line.find_first_not_of('\t'), end));
            addFinding(findings, "Characters outside Windows-1252 in " + std::string(visible));
        }
        writtenText.remove_prefix(std::min(end + 2, writtenText.size()));
    }
}

std::vector<Finding> checkDocument(const SkinDocument& document,
                                   const std::filesystem::path& folder) {
    std::vector<Finding> findings;
    findInDocument(document, folder, findings);
    SkinWriter writer;
    writer.write(document);
    findCharacters(writer.xmlText(), findings);
    return findings;
}

} // namespace tarvel
