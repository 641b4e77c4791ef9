// Copied elements as lines of a skin file, and such lines back, whoever wrote them.
#include "document/layout_screens.h"
#include "files/host_files.h"
#include "skinfile/clipboard.h"
#include "skinfile/screen_builder.h"
#include "skinfile/skin_reader.h"
#include "skinfile/skin_writer.h"
#include "text/tag_scanner.h"
#include "text/text_case.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace tarvel {

namespace {

constexpr std::string_view white = " \t\r\n";
constexpr std::string_view elementTag = "LayoutElement";
constexpr std::string_view layoutTag = "Layout";
constexpr std::string_view resourceTag = "Resource";

bool isBlank(std::string_view text) {
    return text.find_first_not_of(white) == std::string_view::npos;
}

std::string_view withoutIndent(std::string_view text) {
    return text.substr(std::min(text.find_first_not_of(white), text.size()));
}

// Whether the text begins with a tag of that name.
bool opens(std::string_view text, std::string_view tag) {
    const auto end = tag.size() + 1;
    return text.size() > end && text.front() == '<' &&
           equalsIgnoringCase(text.substr(1, tag.size()), tag) &&
           (text[end] == '>' || text[end] == '/' || white.find(text[end]) != white.npos);
}

// The text from its first tag on: without a mark of its encoding, which is known, declarations and
// comments before it.
std::string_view fromFirstTag(std::string_view text) {
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (text.starts_with(byteOrderMark)) {
        text.remove_prefix(byteOrderMark.size());
    }
    constexpr std::array<std::pair<std::string_view, std::string_view>, 2> asides = {
        {{"<?", "?>"}, {"<!--", "-->"}}};
    for (bool again = true; again;) {
        again = false;
        text = withoutIndent(text);
        for (const auto& [start, end] : asides) {
            if (text.starts_with(start)) {
                const auto at = text.find(end, start.size());
                text = at == text.npos ? std::string_view{} : text.substr(at + end.size());
                again = true;
            }
        }
    }
    return text;
}

// Where the line begins that opens the first element or layout; 0 where no line does.
std::size_t firstElementLine(std::string_view text) {
    for (std::size_t at = 0; at < text.size();
         at = std::min(text.find('\n', at), text.size()) + 1) {
        const auto line = withoutIndent(text.substr(at));
        if (opens(line, elementTag) || opens(line, layoutTag)) {
            return at;
        }
    }
    return 0;
}

// What the text is a part of a skin file of.
struct Whole {
    std::string text;     ///< with what is missing around it, in lines of the writer's form
    bool skin = false;    ///< nothing was missing
    bool layouts = false; ///< a screen was not missing
};

std::optional<Whole> completed(std::string_view text) {
    Whole whole;
    const std::string_view end = text.find("\r\n") != text.npos ? "\r\n" : "\n";
    const auto add = [&](std::string_view lines) {
        whole.text.append(lines);
        if (!lines.empty() && !lines.ends_with(end)) {
            whole.text.append(end);
        }
    };
    if (opens(text, "Skin")) {
        add(text);
        whole.skin = whole.layouts = true;
        return whole;
    }
    if (!opens(text, elementTag) && !opens(text, layoutTag) && !opens(text, resourceTag)) {
        return std::nullopt;
    }
    const auto elements = firstElementLine(text);
    whole.layouts = opens(withoutIndent(text.substr(elements)), layoutTag);
    add(R"(<Skin name="">)");
    add(text.substr(0, elements));
    if (!whole.layouts) {
        add(R"(<Layout Screen="Menu">)");
    }
    add(text.substr(elements));
    if (!whole.layouts) {
        add("</Layout>");
    }
    add("</Skin>");
    return whole;
}

// Builds what the text tells of in a document of its own.
class TextBuilder {
  public:
    TextBuilder(const Whole& whole, const std::filesystem::path& folder)
        : whole_(whole)
        , folder_(folder) {}

    // False for a tree that holds what is no part of elements.
    bool build(XmlNode skin) {
        if (!takeResources(skin)) {
            return false;
        }
        document_.editSettings(
            [this](SkinSettings& settings) { settings.resources = std::move(resources_); });
        for (const XmlNode layout : skin.children()) {
            if (equalsIgnoringCase(layout.tag(), layoutTag)) {
                document_.setCurrentLayout(getLayoutNum(lowerCased(getAttrib(layout, "Screen"))));
                drawElements(layout);
            }
        }
        return true;
    }

    [[nodiscard]] const SkinDocument& document() const { return document_; }

  private:
    bool takeResources(XmlNode skin) {
        if (!whole_.skin && !isBlank(skin.content())) {
            return false;
        }
        for (const XmlNode node : skin.children()) {
            const bool isLayout = equalsIgnoringCase(node.tag(), layoutTag);
            if (isResource(node)) {
                takeResource(node);
            } else if (isLayout ? !takeResourcesBetween(node) : !whole_.skin) {
                return false;
            }
        }
        return true;
    }

    // Those that were typed between elements.
    bool takeResourcesBetween(XmlNode layout) {
        if (!whole_.layouts && !isBlank(layout.content())) {
            return false;
        }
        for (const XmlNode node : layout.children()) {
            if (isResource(node)) {
                takeResource(node);
            } else if (!whole_.layouts && !equalsIgnoringCase(node.tag(), elementTag)) {
                return false;
            }
        }
        return true;
    }

    void drawElements(XmlNode layout) {
        for (const XmlNode node : layout.children()) {
            if (!isResource(node)) {
                drawElement(document_, node);
            }
        }
    }

    static bool isResource(XmlNode node) { return equalsIgnoringCase(node.tag(), resourceTag); }

    void takeResource(XmlNode node) {
        std::optional<Resource> resource = describedResource(node);
        if (!resource || (resource->isFile && !completePath(*resource))) {
            return;
        }
        resources_.push_back(std::move(*resource));
    }

    // False for a file of which nobody knows where it lies.
    bool completePath(Resource& resource) {
        if (resource.content.starts_with('\\')) {
            return true;
        }
        if (folder_.empty()) {
            return false;
        }
        try {
            resource.outside = files_.leadsOutside(folder_, resource.content);
        } catch (const FileError&) {
            return false;
        }
        resource.content.insert(0, withSlash(documentPath(folder_)));
        return true;
    }

    const Whole& whole_;
    const std::filesystem::path& folder_;
    FileFinder files_;
    std::vector<Resource> resources_;
    SkinDocument document_;
};

} // namespace

std::string clipboardText(const ClipboardContent& content) {
    SkinWriter writer;
    for (const Resource& resource : content.resources) {
        if (!resource.outside) { // a file that must not be opened stays so by not being named
            writer.writeResource(resource, resource.content);
        }
    }
    for (const Element& element : content.elements) {
        writer.writeElement(element);
    }
    return writer.xmlText();
}

std::optional<ClipboardContent> readClipboardText(std::string_view text,
                                                  const std::filesystem::path& folder) {
    const std::optional<Whole> whole = completed(fromFirstTag(text));
    if (!whole) {
        return std::nullopt;
    }
    TextBuilder builder(*whole, folder);
    try {
        SkinTextNotes notes;
        const XmlTree tree = readSkinText(whole->text, notes);
        if (isTooDeep(tree.root()) || !builder.build(tree.root())) {
            return std::nullopt;
        }
    } catch (const XmlError&) {
        return std::nullopt;
    }
    std::vector<int> all(static_cast<std::size_t>(builder.document().lastElementId()));
    std::iota(all.begin(), all.end(), 1);
    ClipboardContent content = copyElements(builder.document(), all);
    return content.elements.empty() ? std::nullopt : std::optional(std::move(content));
}

} // namespace tarvel
