// How single values look in a skin file, and how they are read back: words for booleans, colours
// with opacity, lenient numbers, file names out of paths, one-line tags. Pure functions without
// files.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tarvel {

/// A 24-bit colour number, red in the low byte: 0x00BBGGRR.
using ColorNumber = std::uint32_t;

[[nodiscard]] constexpr ColorNumber makeColor(unsigned red, unsigned green, unsigned blue) {
    return (red & 0xFFU) | (green & 0xFFU) << 8U | (blue & 0xFFU) << 16U;
}
[[nodiscard]] constexpr unsigned redOf(ColorNumber color) {
    return color & 0xFFU;
}
[[nodiscard]] constexpr unsigned greenOf(ColorNumber color) {
    return color >> 8U & 0xFFU;
}
[[nodiscard]] constexpr unsigned blueOf(ColorNumber color) {
    return color >> 16U & 0xFFU;
}

/// "True" or "False".
[[nodiscard]] std::string_view boolText(bool value);
/// "On" or "Off".
[[nodiscard]] std::string_view onOff(bool value);
/// True exactly for "true" in any letter case.
[[nodiscard]] bool reverseBool(std::string_view text);
/// True exactly for "on" in any letter case.
[[nodiscard]] bool reverseOnOff(std::string_view text);

/// Hexadecimal text to number. Characters that are no hexadecimal digit count as a zero in their
/// place, whatever number of bytes they take. Throws std::overflow_error when a running total
/// leaves the 32-bit signed range.
[[nodiscard]] std::int32_t hextodec(std::string_view text);

/// Opacity in percent to two (over 100 %: more) upper-case hexadecimal digits; negative gives "00".
[[nodiscard]] std::string makeAlpha(int opacity);
/// Opacity in percent out of the characters 3 and 4 of "0xAARRGGBB"; an empty text gives 100.
[[nodiscard]] int getAlpha(std::string_view text);
/// Colour out of the characters 5 to 10 of "0xAARRGGBB"; an empty text gives black.
[[nodiscard]] ColorNumber getColor(std::string_view text);
/// The low 24 bits as six upper-case hexadecimal digits RRGGBB.
[[nodiscard]] std::string rgbHex(ColorNumber color);

/// What follows the last backslash; the whole text where there is none.
[[nodiscard]] std::string_view trimtofile(std::string_view path);
/// File name without folder and without its last four characters, whatever these are. Throws
/// std::length_error for a file name shorter than four characters.
[[nodiscard]] std::string_view fileBaseName(std::string_view path);
/// True when the name ends in "png", in any letter case.
[[nodiscard]] bool isPngFile(std::string_view name);
/// True when the name ends in "wmv", in any letter case.
[[nodiscard]] bool isVideoFile(std::string_view name);
/// True when the name ends in neither "wmv" nor "png".
[[nodiscard]] bool isOtherFile(std::string_view name);
/// The folder path with a closing backslash.
[[nodiscard]] std::string withSlash(std::string_view path);

/// `<name>value</name>`; nothing is escaped.
[[nodiscard]] std::string makeTag(std::string_view name, std::string_view value);
/// `<name attributes>value</name>`; nothing is escaped.
[[nodiscard]] std::string makeTagAttr(std::string_view name, std::string_view value,
                                      std::string_view attributes);

/// The decimal number that the text begins with after blanks: sign, digits, point, exponent.
/// Anything else is 0, and a number too large for a double is held at the largest one. Never NaN.
[[nodiscard]] double val(std::string_view text);

// Numbers held at the limits of the type that stores them, NaN as 0; whole ones rounded with halves
// to even.
[[nodiscard]] float toSingle(double value);
[[nodiscard]] std::int16_t toInt16(double value);
[[nodiscard]] std::int32_t toInt32(double value);

/// The fewest digits that read back to the same number, without exponent, "0" for either zero.
[[nodiscard]] std::string numberText(float value);
[[nodiscard]] std::string numberText(double value);
[[nodiscard]] std::string numberText(int value);

} // namespace tarvel
