// Writes and reads the forms that single values have in a skin file.
#include "text/value_encodings.h"

#include "text/number_format.h"
#include "text/text_case.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <stdexcept>

namespace tarvel {

namespace {

constexpr int hexDigit(char c) {
    if (c >= '1' && c <= '9') {
        return c - '0';
    }
    if (c >= 'a' && c <= 'f') {
        return c - 'a' + 10;
    }
    return c >= 'A' && c <= 'F' ? c - 'A' + 10 : 0;
}

// True for the first byte of each character of a UTF-8 text.
constexpr bool beginsCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80;
}

// What follows the first `count` characters.
std::string_view afterCharacters(std::string_view text, std::size_t count) {
    std::size_t at = 0;
    for (; at < text.size(); ++at) {
        if (beginsCharacter(text[at]) && count-- == 0) {
            break;
        }
    }
    return text.substr(at);
}

// Two hexadecimal digits, from the character at `at` on, which the text may not reach.
int hexPair(std::string_view text, std::size_t at) {
    const auto rest = afterCharacters(text, at);
    return hextodec(rest.substr(0, rest.size() - afterCharacters(rest, 2).size()));
}

bool endsInIgnoringCase(std::string_view name, std::string_view lowerEnding) {
    return name.size() >= lowerEnding.size() &&
           equalsIgnoringCase(name.substr(name.size() - lowerEnding.size()), lowerEnding);
}

std::size_t fileNameStart(std::string_view path) {
    const auto slash = path.rfind('\\');
    return slash == std::string_view::npos ? 0 : slash + 1;
}

template <class Number> Number heldAtLimits(double value) {
    if (std::isnan(value)) {
        return 0;
    }
    const double rounded = std::nearbyint(value);
    if (rounded <= std::numeric_limits<Number>::min()) {
        return std::numeric_limits<Number>::min();
    }
    if (rounded >= std::numeric_limits<Number>::max()) {
        return std::numeric_limits<Number>::max();
    }
    return static_cast<Number>(rounded);
}

// Where a decimal number beyond the range of a double is held: at 0 or at the largest one, by the
// power of ten of its first digit that counts.
double atLimit(std::string_view number) {
    const auto exponentAt = number.find_first_of("eE");
    const auto digits = number.substr(0, exponentAt);
    const auto point = std::min(digits.find('.'), digits.size());
    const auto first = std::min(digits.find_first_not_of("0."), digits.size());
    std::int64_t power = static_cast<std::int64_t>(point) - static_cast<std::int64_t>(first);
    if (exponentAt != std::string_view::npos) {
        auto text = number.substr(exponentAt + 1);
        const bool negative = text.starts_with('-');
        text.remove_prefix(negative || text.starts_with('+') ? 1 : 0);
        std::int64_t exponent = std::numeric_limits<std::int32_t>::max(); // when it is too long
        std::from_chars(text.data(), text.data() + text.size(), exponent);
        exponent = std::min<std::int64_t>(exponent, std::numeric_limits<std::int32_t>::max());
        power += negative ? -exponent : exponent;
    }
    return power < 0 ? 0 : std::numeric_limits<double>::max();
}

// Plain digits with at most one point, few enough that the result is exact: most numbers of a skin.
// False when the text needs the general rule.
bool shortDecimal(std::string_view text, double& number) {
    constexpr std::size_t exactDigits = 15;
    constexpr std::array<double, exactDigits + 1> powers = {
        1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    if (text.size() > exactDigits) {
        return false;
    }
    std::int64_t digits = 0;
    std::size_t point = text.size();
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] >= '0' && text[i] <= '9') {
            digits = digits * 10 + (text[i] - '0');
        } else if (text[i] == '.' && point == text.size() && text.size() > 1) {
            point = i;
        } else {
            return false;
        }
    }
    const std::size_t decimals = point == text.size() ? 0 : text.size() - point - 1;
    number = static_cast<double>(digits) / powers[decimals];
    return true;
}

template <class Number> std::string textOf(Number value) {
    std::string text;
    appendNumber(text, value);
    return text;
}

} // namespace

std::string_view boolText(bool value) {
    return value ? "True" : "False";
}

std::string_view onOff(bool value) {
    return value ? "On" : "Off";
}

bool reverseBool(std::string_view text) {
    return equalsIgnoringCase(text, "true");
}

bool reverseOnOff(std::string_view text) {
    return equalsIgnoringCase(text, "on");
}

std::int32_t hextodec(std::string_view text) {
    constexpr std::size_t mostPlaces = 8;
    std::int64_t total = 0;
    auto place = static_cast<std::size_t>(std::count_if(text.begin(), text.end(), beginsCharacter));
    for (const char byte : text) {
        if (!beginsCharacter(byte)) {
            continue;
        }
        --place;
        const std::int64_t digit = hexDigit(byte);
        if (digit == 0) {
            continue;
        }
        total += place < mostPlaces ? digit << (4 * place) : std::int64_t{UINT32_MAX};
        if (total > std::numeric_limits<std::int32_t>::max()) {
            throw std::overflow_error("hexadecimal number beyond 32 bits");
        }
    }
    return static_cast<std::int32_t>(total);
}

std::string makeAlpha(int opacity) {
    std::string text;
    appendAlpha(text, opacity);
    return text;
}

int getAlpha(std::string_view text) {
    if (text.empty()) {
        return 100;
    }
    const int scaled = hexPair(text, 2) * 100;
    // 255 is odd, so no quotient lies exactly halfway.
    return (scaled * 2 + 255) / (2 * 255);
}

ColorNumber getColor(std::string_view text) {
    const auto part = [text](std::size_t at) { return static_cast<unsigned>(hexPair(text, at)); };
    return makeColor(part(4), part(6), part(8));
}

std::string rgbHex(ColorNumber color) {
    std::string text;
    appendRgbHex(text, color);
    return text;
}

std::string_view trimtofile(std::string_view path) {
    return path.substr(fileNameStart(path));
}

std::string_view fileBaseName(std::string_view path) {
    const auto name = trimtofile(path);
    if (name.size() < 4) {
        throw std::length_error("a file name shorter than four characters has no base name");
    }
    return name.substr(0, name.size() - 4);
}

bool isPngFile(std::string_view name) {
    return endsInIgnoringCase(name, "png");
}

bool isVideoFile(std::string_view name) {
    return endsInIgnoringCase(name, "wmv");
}

bool isOtherFile(std::string_view name) {
    return !isPngFile(name) && !isVideoFile(name);
}

std::string withSlash(std::string_view path) {
    std::string result(path);
    if (!result.ends_with('\\')) {
        result += '\\';
    }
    return result;
}

std::string makeTag(std::string_view name, std::string_view value) {
    std::string line;
    line.reserve(2 * name.size() + value.size() + 5);
    line.append("<").append(name).append(">").append(value).append("</").append(name).append(">");
    return line;
}

std::string makeTagAttr(std::string_view name, std::string_view value,
                        std::string_view attributes) {
    std::string line;
    line.append("<").append(name).append(" ").append(attributes).append(">").append(value);
    line.append("</").append(name).append(">");
    return line;
}

double val(std::string_view text) {
    const auto first = text.find_first_not_of(" \t\r\n");
    if (first == std::string_view::npos) {
        return 0;
    }
    const bool negative = text[first] == '-';
    text.remove_prefix(first + (negative || text[first] == '+' ? 1 : 0));
    // from_chars would also take a second sign and the words for infinity and NaN.
    if (text.empty() || (text.front() != '.' && (text.front() < '0' || text.front() > '9'))) {
        return 0;
    }
    double number = 0;
    if (shortDecimal(text, number)) {
        return negative ? -number : number;
    }
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error == std::errc::result_out_of_range) {
        number = atLimit({text.data(), static_cast<std::size_t>(end - text.data())});
    }
    return negative ? -number : number;
}

float toSingle(double value) {
    constexpr double limit = std::numeric_limits<float>::max();
    return std::isnan(value) ? 0 : static_cast<float>(std::clamp(value, -limit, limit));
}

std::int16_t toInt16(double value) {
    return heldAtLimits<std::int16_t>(value);
}

std::int32_t toInt32(double value) {
    return heldAtLimits<std::int32_t>(value);
}

std::string numberText(float value) {
    return textOf(value);
}

std::string numberText(double value) {
    return textOf(value);
}

std::string numberText(int value) {
    return textOf(value);
}

} // namespace tarvel
