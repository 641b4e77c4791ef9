// Adds to the findings of a document what its file tells: what loading passed over, and what a save
// would change.
#include "skinfile/skin_check.h"

#include "document/element_kinds.h"
#include "document/layout_screens.h"
#include "files/host_files.h"
#include "skinfile/skin_folder.h"
#include "skinfile/skin_reader.h"
#include "text/tag_scanner.h"
#include "text/text_case.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tarvel {

namespace {

class SkinCheck {
  public:
    explicit SkinCheck(const std::filesystem::path& folder)
        : folder_(folder)
        , notes_(readSkin(document_, folder))
        , bytes_(readFile(skinFilePath(folder)))
        , tree_(readSkinText(bytes_, notes_.text)) {}

    std::vector<Finding> run() {
        findInDocument(document_, folder_, findings_);
        checkDropped();
        tree_ = {}; // a large one takes as much memory as what follows
        checkSave();
        return std::move(findings_);
    }

  private:
    void find(std::string text) { addFinding(findings_, std::move(text)); }

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
        findCharacters(text, findings_);
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

    const std::filesystem::path& folder_;
    SkinDocument document_;
    SkinReadNotes notes_;
    std::string bytes_;
    XmlTree tree_;
    std::vector<Finding> findings_;
};

} // namespace

std::vector<Finding> checkSkin(const std::filesystem::path& folder) {
    return SkinCheck(folder).run();
}

} // namespace tarvel
