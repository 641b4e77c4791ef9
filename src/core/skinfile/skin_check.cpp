// Collects what is worth knowing about a skin, from its bytes to what a save would change.
#include "skinfile/skin_check.h"

#include "document/element_kinds.h"
#include "document/image_source.h"
#include "document/layout_screens.h"
#include "files/host_files.h"
#include "skinfile/save_plan.h"
#include "skinfile/skin_folder.h"
#include "skinfile/skin_reader.h"
#include "text/tag_scanner.h"
#include "text/text_case.h"

#include <algorithm>
#include <array>
#include <system_error>
#include <unordered_map>

namespace tarvel {

namespace {

std::string inQuotes(std::string_view text) {
    return std::string("\"").append(text).append("\"");
}

class SkinCheck {
  public:
    explicit SkinCheck(const std::filesystem::path& folder)
        : folder_(folder)
        , prefix_(withSlash(documentPath(folder)))
        , notes_(readSkin(document_, folder))
        , bytes_(readFile(skinFilePath(folder)))
        , tree_(readSkinText(bytes_, notes_.text)) {}

    std::vector<std::string> run() {
        if (document_.settings().skinName.empty()) {
            find("The skin has no name: it cannot be saved");
        }
        checkResources();
        checkFileNames();
        for (int screen = 0; screen < screenCount; ++screen) {
            for (int row = 0; row < document_.rowCount(screen); ++row) {
                checkElement(screen, row);
            }
        }
        checkDropped();
        tree_ = {}; // a large one takes as much memory as what follows
        checkSave();
        return std::move(findings_);
    }

  private:
    void find(std::string finding) {
        const auto isLineBreak = [](char c) { return c == '\n' || c == '\r'; };
        std::replace_if(finding.begin(), finding.end(), isLineBreak, ' ');
        findings_.push_back(std::move(finding));
    }

    void checkResources() {
        for (const Resource& resource : document_.settings().resources) {
            if (!resource.isFile) {
                continue;
            }
            const auto file = std::string_view(resource.content).substr(prefix_.size());
            const std::string named = "Resource " + inQuotes(resource.name);
            const std::string subject = named + ": " + std::string(file);
            if (trimtofile(resource.content).empty()) {
                find(named + " names no file");
            } else if (resource.outside) {
                find(subject + " lies outside the skin folder");
            } else if (!files_.FileExists(resource.content)) {
                find(subject + " is missing");
            }
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
        if (const auto plan = planSave(document_.settings(), folder_); !plan.obstacle.empty()) {
            find("A save over this folder is refused: " + plan.obstacle);
        }
    }

    bool isSameFile(const Resource& a, const Resource& b) {
        std::error_code error;
        return a.content == b.content ||
               (std::filesystem::equivalent(files_.hostPath(a.content), files_.hostPath(b.content),
                                            error) &&
                !error);
    }

    static bool isOffScreen(const ElementControl& control) {
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

    void checkElement(int screen, int row) {
        const Element& element = document_.element(document_.itemData(screen, row));
        std::string subject(layoutScreens[static_cast<std::size_t>(screen)].caption);
        subject.append(", element ").append(std::to_string(row + 1)).append(" (");
        subject.append(element.label).append("): ");
        if (rulesOf(element.elementKind).namesResource &&
            resourceOf(document_, element.imageSource) == nullptr) {
            find(subject + "its source " + inQuotes(element.imageSource) + " names no resource");
        }
        if (isOffScreen(element.elementControl)) {
            find(subject + "lies wholly off the 640 by 480 screen");
        }
    }

    // Parts of the file that loading passes over.
    void checkDropped() {
        constexpr std::array<std::string_view, 7> sections = {
            "music", "information", "messagebox", "systemmenu", "delays", "resource", "layout"};
        for (const XmlNode node : tree_.root().children()) {
            const std::string tag(node.tag());
            const bool known = std::any_of(sections.begin(), sections.end(), [&](auto section) {
                return equalsIgnoringCase(tag, section);
            });
            if (!known) {
                find("A save drops the unknown section " + inQuotes(tag));
            } else if (equalsIgnoringCase(tag, "resource") &&
                       !equalsIgnoringCase(getAttrib(node, "Type"), "image")) {
                find("A save drops the resource " + inQuotes(getAttrib(node, "Name")) +
                     " of type " + inQuotes(getAttrib(node, "Type")));
            } else if (equalsIgnoringCase(tag, "layout")) {
                checkLayout(node);
            }
        }
    }

    void checkLayout(XmlNode layout) {
        const std::string screen(getAttrib(layout, "Screen"));
        if (getLayoutNum(lowerCased(screen)) == 0 && !equalsIgnoringCase(screen, "Title")) {
            find("The screen " + inQuotes(screen) + " is unknown: a save moves it to \"Title\"");
        }
        for (const XmlNode node : layout.children()) {
            const auto type = getAttrib(node, "Type");
            const bool known = kindOfType(type) != nullptr;
            if (!known || !node.firstChild()) {
                find("A save drops an element of type " + inQuotes(type) + " on " +
                     inQuotes(screen) + (known ? ": it is empty" : ": the type is unknown"));
            }
        }
    }

    void checkSave() {
        SkinWriter writer;
        writer.write(document_);
        const std::string& text = writer.xmlText();
        if (!fitsWindows1252(text)) {
            checkCharacters(text);
        }
        for (const int line : notes_.text.mendedLines) {
            find("Line " + std::to_string(line) +
                 " is no XML and was read as the text that it shows");
        }
        const std::string saved = skinFileBytes(text);
        if (saved != bytes_) {
            const auto differing =
                std::mismatch(saved.begin(), saved.end(), bytes_.begin(), bytes_.end());
            const auto offset = static_cast<std::size_t>(differing.second - bytes_.begin());
            find("A save changes " + std::string(skinFileName) + " from line " +
                 std::to_string(lineAt(bytes_, offset)) + " on");
        }
    }

    void checkCharacters(std::string_view text) {
        while (!text.empty()) {
            const auto end = std::min(text.find("\r\n"), text.size());
            const auto line = text.substr(0, end);
            if (!fitsWindows1252(line)) {
                const auto visible = line.substr(std::min(line.find_first_not_of('\t'), end));
                find("Characters outside Windows-1252 in " + std::string(visible));
            }
            text.remove_prefix(std::min(end + 2, text.size()));
        }
    }

    const std::filesystem::path& folder_;
    std::string prefix_;
    FileFinder files_;
    SkinDocument document_;
    SkinReadNotes notes_;
    std::string bytes_;
    XmlTree tree_;
    std::vector<std::string> findings_;
};

} // namespace

std::vector<std::string> checkSkin(const std::filesystem::path& folder) {
    return SkinCheck(folder).run();
}

} // namespace tarvel
