// Turns a whole document into the text of QOR_Skin.xml.
#pragma once

#include "document/skin_document.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace tarvel {

/// Writes line by line and escapes nothing: names, captions and paths go between quotes or tags as
/// they stand.
class SkinWriter {
  public:
    /// `folder` is where modifiers pass through "temp.xml".
    explicit SkinWriter(std::filesystem::path folder)
        : folder_(std::move(folder)) {}

    /// Fills xmlText with the document's text (UTF-8, TAB indentation, CR LF after every line). The
    /// document's currentLayout follows the screen being written and ends at the "Menu" screen.
    /// Throws FileError when a modifier cannot pass through "temp.xml".
    void generateXML(SkinDocument& document);

    /// Appends one line with the indentation of the moment and CR LF. A line that starts with "</"
    /// goes one level up first; one with a "<" but neither "/>" nor "</" opens a level after it.
    void writeLine(std::string_view line);

    /// The last generated text.
    [[nodiscard]] const std::string& xmlText() const { return xmlText_; }
    /// Levels of indentation of the next line; can fall below 0. Stays at the limits of its type.
    [[nodiscard]] std::int16_t xmlIndent() const { return xmlIndent_; }

  private:
    template <class... Pieces> void line(const Pieces&... pieces);
    template <class Value> void tagLine(std::string_view name, const Value& value);
    void colorLine(std::string_view name, ColorNumber color);

    void writeInformation(const SkinSettings& settings);
    void writeMusic(const MusicSettings& music);
    void writeDelays(const SkinSettings& settings);
    void writeSystemColors(const SystemColors& colors);
    void writeResources(const SkinSettings& settings);
    void writeLayout(const SkinDocument& document, int screen);
    void writeElement(const Element& element);
    void writeOpening(const Element& element);
    void writeBox(const Element& element);
    void writeMenu(const MenuSettings& settings);
    void writeMenuItems(const MenuSettings& settings);
    void writeTail(const Element& element);
    void writeModifiers(const XmlTree& modifiers);

    std::filesystem::path folder_;
    std::string xmlText_;
    std::string line_; // the line that is being put together
    std::int16_t xmlIndent_ = 0;
};

/// What is spliced into the skin's text for a modifier tree that was saved as `fileText`: without
/// the declaration and the last character, lines broken at CR LF.
[[nodiscard]] std::string splicedModifiers(std::string fileText);

} // namespace tarvel
