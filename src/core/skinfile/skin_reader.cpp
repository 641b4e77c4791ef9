// The sections of a skin file into the document's settings and screens.
#include "skinfile/skin_reader.h"

#include "document/image_source.h"
#include "document/layout_screens.h"
#include "files/host_files.h"
#include "files/windows_names.h"
#include "skinfile/screen_builder.h"
#include "text/tag_scanner.h"
#include "text/text_case.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <exception>
#include <new>

namespace tarvel {

namespace {

void readMusic(SkinSettings& settings, XmlNode section) {
    // A Directory element has no effect, and the list of music files is not in the file.
    settings.music.hasMusic = true;
    settings.music.playGlobal = reverseOnOff(getContent(section, "PlayGlobal"));
    settings.music.playRandom = reverseOnOff(getContent(section, "PlayRandom"));
}

void readInformation(SkinSettings& settings, XmlNode section) {
    for (const XmlNode field : section.children()) {
        settings.information.push_back({std::string(field.tag()), std::string(field.content())});
    }
}

void readTextColor(SystemColors& colors, XmlNode section, std::string_view tag, SampleText text) {
    colors.setTextColor(getContent(section, tag), static_cast<std::size_t>(text));
}

void readMessageBox(SkinSettings& settings, XmlNode section) {
    SystemColors& colors = settings.systemColors;
    colors.setBoxColor(getContent(section, "BoxColor"), 0);
    colors.setBorderColor(getContent(section, "BorderColor"), 0);
    readTextColor(colors, section, "TextColor", SampleText::messageText);
    readTextColor(colors, section, "ShadowColor", SampleText::messageShadow);
}

void readSystemMenu(SkinSettings& settings, XmlNode section) {
    SystemColors& colors = settings.systemColors;
    colors.setBoxColor(getContent(section, "BoxColor"), 1);
    colors.setBorderColor(getContent(section, "BorderColor"), 1);
    readTextColor(colors, section, "SelectColor", SampleText::menuSelect);
    readTextColor(colors, section, "SelectValueColor", SampleText::menuSelectValue);
    readTextColor(colors, section, "TextColor", SampleText::menuText);
    readTextColor(colors, section, "ValueColor", SampleText::menuValue);
}

void readDelays(SkinSettings& settings, XmlNode section) {
    settings.delays = {val(getContent(section, "Title")), val(getContent(section, "Load")),
                       val(getContent(section, "Saver"))};
}

// Adds the resources of a skin to the document.
class ResourceReader {
  public:
    ResourceReader(SkinDocument& document, const std::filesystem::path& folder,
                   std::vector<std::string>& outside)
        : document_(document)
        , folder_(folder)
        , prefix_(withSlash(documentPath(folder)))
        , outside_(outside) {}

    void read(XmlNode section) {
        std::optional<Resource> resource = describedResource(section);
        if (resource && resource->isFile) {
            addFile(resource->name, resource->content);
        } else if (resource) {
            document_.addcRes(std::move(resource->content), std::move(resource->name));
        }
    }

  private:
    void addFile(const std::string& name, const std::string& file) {
        const bool outside = files_.leadsOutside(folder_, file);
        if (outside) {
            outside_.push_back(outsideName(name, file));
        }
        document_.addRes(name, prefix_ + file, outside);
    }

    SkinDocument& document_;
    const std::filesystem::path& folder_;
    std::string prefix_;
    std::vector<std::string>& outside_;
    FileFinder files_;
};

void readSection(SkinDocument& document, XmlNode section, ResourceReader& resources) {
    struct Reader {
        std::string_view tag;
        void (*read)(SkinSettings&, XmlNode);
    };
    constexpr std::array<Reader, 5> readers = {{{"music", readMusic},
                                                {"information", readInformation},
                                                {"messagebox", readMessageBox},
                                                {"systemmenu", readSystemMenu},
                                                {"delays", readDelays}}};
    if (equalsIgnoringCase(section.tag(), "resource")) {
        resources.read(section);
        return;
    }
    for (const Reader& reader : readers) {
        if (equalsIgnoringCase(section.tag(), reader.tag)) {
            document.editSettings([&](SkinSettings& settings) { reader.read(settings, section); });
        }
    }
}

SkinReadError unreadable(const std::string& problem) {
    SkinReadError error(std::string(skinFileName) + " cannot be read: " + problem);
    return error;
}

// A modifier deeper than that would be written with as many tabs on each line.
constexpr std::size_t deepest = 1000;

XmlTree parsedSkin(const std::filesystem::path& folder, SkinTextNotes& notes) {
    try {
        const auto path = skinFilePath(folder);
        const auto status = statusOf(path); // reading tells what is wrong
        if (status && status->size > static_cast<std::int64_t>(largestSkinText)) {
            throw unreadable("the file is too large");
        }
        return readSkinText(readFile(path), notes);
    } catch (const XmlError& error) {
        throw unreadable(std::string(error.what()) + " (line " + std::to_string(error.line()) +
                         ")");
    } catch (const FileError& error) {
        throw unreadable(error.what());
    }
}

// What is there and cannot be looked at is for the reading to tell.
bool isMissing(const std::filesystem::path& file) {
    const auto status = statusOf(file);
    return status ? status->kind == FileKind::folder : errno == ENOENT || errno == ENOTDIR;
}

SkinDocument withSkin(SkinDocument document, const std::filesystem::path& folder,
                      SkinReadNotes& notes) {
    const XmlTree tree = parsedSkin(folder, notes.text);
    if (isTooDeep(tree.root())) {
        throw unreadable("its elements lie more than " + std::to_string(deepest) + " levels deep");
    }
    readSkinTree(document, tree.root(), folder, notes);
    return document;
}

} // namespace

std::filesystem::path skinFilePath(const std::filesystem::path& folder) {
    return hostPath(withSlash(documentPath(folder)).append(skinFileName));
}

void readSkinTree(SkinDocument& document, XmlNode root, const std::filesystem::path& folder,
                  SkinReadNotes& notes) {
    document.editSettings([root](SkinSettings& settings) {
        settings.skinName = getAttrib(root, "name");
        settings.information.clear();
    });
    ResourceReader resources(document, folder, notes.outside);
    for (const XmlNode section : root.children()) {
        readSection(document, section, resources);
    }
    for (const XmlNode section : root.children()) {
        if (equalsIgnoringCase(section.tag(), "layout")) {
            drawScreen(document, section);
        }
    }
    document.setCurrentLayout(menuScreen);
}

SkinReadNotes readSkin(SkinDocument& document, const std::filesystem::path& folder) {
    const std::string problem = folderProblem(folder);
    if (!problem.empty()) {
        throw SkinReadError(problem);
    }
    if (isMissing(skinFilePath(folder))) {
        throw SkinReadError(std::string(noSkinFile));
    }
    SkinReadNotes notes;
    SkinDocument next;
    try {
        next = withSkin(document, folder, notes);
    } catch (const SkinReadError&) {
        throw;
    } catch (const std::bad_alloc&) {
        throw unreadable("not enough memory to read it");
    } catch (const std::exception& error) {
        throw unreadable(error.what());
    }
    document = std::move(next);
    return notes;
}

std::optional<Resource> describedResource(XmlNode node) {
    if (!equalsIgnoringCase(getAttrib(node, "Type"), "image")) {
        return std::nullopt;
    }
    Resource resource{.name = std::string(getAttrib(node, "Name")), .content = {}};
    // Without a File child this is the last child, which then is the fragment.
    const XmlNode file = getTag(node, "File");
    resource.isFile = file && file.tag() == "File" && !isReference(file.content());
    if (resource.isFile) {
        resource.content = file.content();
        std::replace(resource.content.begin(), resource.content.end(), '/', '\\');
    } else if (file) {
        resource.content = makeTag(file.tag(), file.content());
    }
    return resource;
}

bool isTooDeep(XmlNode root) {
    std::vector<XmlNode> open{root}; // of each level the element at hand
    while (!open.empty()) {
        if (const XmlNode below = open.back().firstChild()) {
            open.push_back(below);
            if (open.size() > deepest) {
                return true;
            }
            continue;
        }
        while (!open.empty() && !(open.back() = open.back().nextSibling())) {
            open.pop_back();
        }
    }
    return false;
}

std::string listMessage(std::string_view beginning, const std::vector<std::string>& names) {
    std::string message;
    for (const std::string& name : names) {
        message.append(message.empty() ? beginning : ", ").append(name);
    }
    return message;
}

std::string outsideName(std::string_view name, std::string_view file) {
    const auto isDrive = [](std::string_view part) { return part.size() == 2 && part[1] == ':'; };
    if (isDrive(file.substr(0, 2))) {
        file.remove_prefix(2);
    }
    const auto part = hasWindowsNamesAlone() ? partWithoutWindowsName(file) : "";
    std::string told(name);
    if (!part.empty() && !isDrive(part)) { // behind the skin's folder the colon of a drive
        told.append(" (Windows cannot have the name \"").append(part).append("\")");
    }
    return told;
}

std::string outsideMessage(const std::vector<std::string>& names) {
    return listMessage("These resources lie outside the skin folder and are left out: ", names);
}

} // namespace tarvel
