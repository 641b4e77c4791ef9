// Puts the lines of a skin file together: indentation, tags, colours.
#pragma once

#include "text/number_format.h"
#include "text/value_encodings.h"

#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>

namespace tarvel {

/// A colour as "0x" AA RRGGBB with the opacity as AA.
struct AlphaColor {
    int opacity; ///< percent
    ColorNumber color;
};

[[nodiscard]] constexpr AlphaColor opaque(ColorNumber color) {
    return {100, color};
}

inline void appendPiece(std::string& line, std::string_view text) {
    line.append(text);
}

template <class Number>
requires std::integral<Number> || std::floating_point<Number>
void appendPiece(std::string& line, Number number) {
    appendNumber(line, number);
}

inline void appendPiece(std::string& line, const AlphaColor& value) {
    line.append("0x");
    appendAlpha(line, value.opacity);
    appendRgbHex(line, value.color);
}

/// Writes line by line and escapes nothing: texts go between quotes or tags as they stand.
class LineWriter {
  public:
    /// Appends one line with the indentation of the moment (TAB) and CR LF. A line that starts with
    /// "</" goes one level up first; one with a "<" but neither "/>" nor "</" opens a level after
    /// it.
    void writeLine(std::string_view line);

    /// A line of texts, numbers and AlphaColors.
    template <class... Pieces> void line(const Pieces&... pieces) {
        line_.clear();
        (appendPiece(line_, pieces), ...);
        writeLine(line_);
    }

    /// `<name>value</name>`.
    template <class Value> void tagLine(std::string_view name, const Value& value) {
        line("<", name, ">", value, "</", name, ">");
    }
    void colorLine(std::string_view name, ColorNumber color) { tagLine(name, opaque(color)); }

    /// The lines so far.
    [[nodiscard]] const std::string& xmlText() const { return xmlText_; }
    /// Levels of indentation of the next line; can fall below 0. Stays at the limits of its type.
    [[nodiscard]] std::int16_t xmlIndent() const { return xmlIndent_; }
    /// Back to no lines and no indentation.
    void clear();

  private:
    std::string xmlText_;
    std::string line_; // the line that is being put together
    std::int16_t xmlIndent_ = 0;
};

} // namespace tarvel
