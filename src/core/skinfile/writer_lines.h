// The lines that the skin writer can write, as forms by which the reader recognises them.
//
// The writer escapes nothing, so a value may hold quotes, tags and ampersands. Within a line of
// known form the first and the last delimiter tell where the value lies.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace tarvel {

/// The element of the file that a line stands in.
enum class Section : std::uint8_t {
    file,
    skin,
    information,
    music,
    delays,
    messageBox,
    systemMenu,
    resource,
    layout,
    element,
    primary,
    secondary,
    selection,
    unselected,
    itemSecondary
};

struct LineForm {
    enum class Action : std::uint8_t { open, close, leaf, single };
    enum class Values : std::uint8_t {
        none,
        text,   ///< anything at all
        word,   ///< letters
        color,  ///< 0x and hexadecimal digits
        number, ///< digits, minus sign, point
        tag     ///< a whole `<name>anything</name>`
    };
    static constexpr std::size_t mostValues = 4;

    /// A stretch of one of the literal pieces.
    struct Place {
        std::uint8_t piece = 0;
        std::uint8_t offset = 0;
        std::uint8_t length = 0;
    };
    struct AttributePlaces {
        Place name;
        Place fixedValue;
        bool isFixed = false; ///< otherwise the value after the name's piece
    };

    Section in = Section::file;
    Action action = Action::leaf;
    Values values = Values::none;
    Section enters = Section::file; ///< of Action::open
    /// The literal text before, between and after the values; with Values::none the whole line.
    std::array<std::string_view, mostValues + 1> pieces{};
    std::size_t pieceCount = 1;
    Place tag;
    std::array<AttributePlaces, mostValues> attributes{};
    std::size_t attributeCount = 0;
    bool hasContent = false; ///< the last value is the content
};

/// A line that has a writer's form. The views lie in the line.
struct WriterLine {
    const LineForm* form = nullptr;
    std::array<std::string_view, LineForm::mostValues> values{};
    std::size_t valueCount = 0;
    std::string_view name; ///< with Values::tag: the tag
};

/// Matches a line of at least three characters, without indentation and line end, against the forms
/// of a section.
[[nodiscard]] bool matchLine(std::string_view line, Section section, WriterLine& match);

/// Matches a line against those forms of every section that hold text of the user's. `inTagLists`
/// tells whether the forms of information fields and resource fragments count.
[[nodiscard]] bool matchTextLine(std::string_view line, bool inTagLists, WriterLine& match);

/// The stretch of the line that a place names, given where each piece starts.
struct LineLayout {
    std::array<std::size_t, LineForm::mostValues + 1> pieceStart{};
};
[[nodiscard]] LineLayout layoutOf(const WriterLine& line, std::string_view text);

} // namespace tarvel
