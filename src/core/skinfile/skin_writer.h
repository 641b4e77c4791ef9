// Turns a whole document into the text of QOR_Skin.xml.
#pragma once

#include "document/skin_document.h"
#include "text/line_writer.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace tarvel {

/// Escapes nothing: names, captions and paths go between quotes or tags as they stand.
class SkinWriter : private LineWriter {
  public:
    /// For a text that is not saved: modifiers are composed without a file.
    SkinWriter() = default;
    /// `folder` is where modifiers pass through "temp.xml".
    explicit SkinWriter(std::filesystem::path folder)
        : tempFolder_(std::move(folder)) {}

    /// Fills xmlText with the document's text (UTF-8, TAB indentation, CR LF after every line).
    /// Throws FileError when a modifier cannot pass through "temp.xml".
    void write(const SkinDocument& document) { write(document, {}); }

    /// Does the same for the save command, which shows what it is at: the document's currentLayout
    /// follows the screen being written, where it stays when this throws, and ends at the "Menu"
    /// screen.
    void generateXML(SkinDocument& document);

    /// Adds the lines of one element, or of one resource whose File line, if it has one, names
    /// `file`. Throws as write() does.
    void writeElement(const Element& element);
    void writeResource(const Resource& resource, std::string_view file);

    // Lines that others add, and the last generated text.
    using LineWriter::writeLine;
    using LineWriter::xmlIndent;
    using LineWriter::xmlText;

  private:
    /// Told of each screen before its lines are written.
    using ScreenBegins = std::function<void(int screen)>;

    void write(const SkinDocument& document, const ScreenBegins& screenBegins);
    void writeInformation(const SkinSettings& settings);
    void writeMusic(const MusicSettings& music);
    void writeDelays(const SkinSettings& settings);
    void writeSystemColors(const SystemColors& colors);
    void writeResources(const SkinSettings& settings);
    void writeLayout(const SkinDocument& document, int screen);
    void writeTail(const Element& element);
    void writeModifiers(const XmlTree& modifiers);

    std::optional<std::filesystem::path> tempFolder_;
};

/// What is spliced into the skin's text for a modifier tree that was saved as `fileText`: without
/// the declaration and the last character, lines broken at CR LF.
[[nodiscard]] std::string splicedModifiers(std::string fileText);

} // namespace tarvel
