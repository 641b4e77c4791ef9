// Forms of lines that a LineWriter writes, by which a reader recognises them.
//
// The writer escapes nothing, so a value may hold quotes, tags and ampersands. Within a line of
// known form the first and the last delimiter tell where the value lies.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string_view>
#include <vector>

namespace tarvel {

/// The element of the file that a line stands in: a number that LineForms gives out.
enum class Section : std::uint8_t {};

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

    Section in{};
    Action action = Action::leaf;
    Values values = Values::none;
    Section enters{}; ///< of Action::open
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

/// All forms, by section and, because a load matches every line, by the character after the "<".
/// Of the forms of a section that begin alike, those that were added first are tried first.
class LineForms {
  public:
    using Action = LineForm::Action;
    using Values = LineForm::Values;
    using Pieces = std::initializer_list<std::string_view>;

    [[nodiscard]] Section newSection();

    /// Adds a form, unless its section has it already; the texts are kept as views. Two pieces or
    /// more have values between them. A piece in front that begins with "<" tells the tag and the
    /// attributes.
    void add(Section in, Action action, Values values, Pieces pieces, Section enters = {});
    /// A line that opens a section, without a value or with a text as its last attribute.
    void open(Section in, std::string_view line, Section enters);
    void openNamed(Section in, std::string_view start, Section enters);
    void close(Section in, std::string_view line);
    void leaf(Section in, Values values, std::string_view start, std::string_view end);
    /// The tags of a section are the user's: any `<name>anything</name>` up to the line that closes
    /// it. For a section without forms.
    void anyTags(Section in, std::string_view end);

    /// Matches a line of at least three characters, without indentation and line end, against the
    /// forms of a section.
    bool match(std::string_view line, Section section, WriterLine& match) const;
    /// Matches a line against those forms of every section that hold text of the user's.
    /// `inTagLists` tells whether the forms of anyTags() count.
    bool matchText(std::string_view line, bool inTagLists, WriterLine& match) const;

  private:
    static constexpr std::size_t buckets = 32;

    struct SectionForms {
        std::array<std::vector<LineForm>, buckets> bySecond;
        std::vector<LineForm> ofAnyTag; // all of a section whose tags the user names
        bool takesAnyTag = false;
    };
    std::vector<SectionForms> sections_;
    std::vector<LineForm> textForms_;
};

/// The stretch of the line that a place names, given where each piece starts.
struct LineLayout {
    std::array<std::size_t, LineForm::mostValues + 1> pieceStart{};
};
[[nodiscard]] LineLayout layoutOf(const WriterLine& line, std::string_view text);

} // namespace tarvel
