// Lower-casing of UTF-8 text without a locale.
#include "text/text_case.h"
#include "text/text_encoding.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace tarvel {
namespace {

std::string utf8(char32_t codePoint) {
    std::string text;
    appendUtf8(text, codePoint);
    return text;
}

TEST(LowerCased, TurnsTheCapitalsOfASkinFileSmall) {
    struct Case {
        std::string_view text;
        std::string_view lower;
    };
    constexpr Case cases[] = {
        {"", ""},
        {"FileManager", "filemanager"},
        {"already small 123 _-\"", "already small 123 _-\""},
        {"@[`{", "@[`{"},                                         // the neighbours of the letters
        {"\xC3\x84\xC3\x96\xC3\x9C", "\xC3\xA4\xC3\xB6\xC3\xBC"}, // umlauts
        {"\xC3\x9F\xC3\xBF\xC3\xB7", "\xC3\x9F\xC3\xBF\xC3\xB7"}, // small already
        {"\xC3\x97", "\xC3\x97"},                                 // the multiplication sign
        {"\xC5\x92\xC5\xA0\xC5\xBD\xC5\xB8", "\xC5\x93\xC5\xA1\xC5\xBE\xC3\xBF"},
        {"\xCE\xA9", "\xCE\xA9"}, // a Greek capital stays
        {"\xE2\x82\xAC\xF0\x9F\x8E\xAE"
         "A",
         "\xE2\x82\xAC\xF0\x9F\x8E\xAE"
         "a"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(lowerCased(c.text), c.lower) << c.text;
    }
}

TEST(LowerCased, MapsLatin1AndTheFourFurtherCapitalsOnly) {
    for (char32_t codePoint = 1; codePoint < 0x3000; ++codePoint) {
        char32_t lower = codePoint;
        if ((codePoint >= 'A' && codePoint <= 'Z') ||
            (codePoint >= 0xC0 && codePoint <= 0xDE && codePoint != 0xD7)) {
            lower = codePoint + 0x20;
        } else if (codePoint == 0x152 || codePoint == 0x160 || codePoint == 0x17D) {
            lower = codePoint + 1;
        } else if (codePoint == 0x178) {
            lower = 0xFF;
        }
        EXPECT_EQ(lowerCased(utf8(codePoint)), utf8(lower))
            << "code point " << static_cast<unsigned>(codePoint);
    }
}

TEST(LowerCased, LeavesBytesThatAreNoTextAlone) {
    for (const std::string_view text : {"\xC3", "x\xC5", "\x80\xFF", "\xC3\xC3"}) {
        EXPECT_EQ(lowerCased(text), text);
    }
    const std::string withNul("A\0B", 3);
    EXPECT_EQ(lowerCased(withNul), std::string("a\0b", 3));
}

TEST(EqualsIgnoringCase, AgreesWithLowerCasing) {
    constexpr std::string_view texts[] = {
        "",
        "a",
        "A",
        "b",
        "source",
        "Source",
        "SOURCE",
        "source ",
        " source",
        "sourc",
        "\xC3\x84",
        "\xC3\xA4",
        "\xC3\x96",
        "\xC5\xB8",
        "\xC3\xBF",
        "\xC5\xA0",
        "\xC5\xA1",
        "\xC3",
        "\xC3"
        "a",
        "a\xC3\x84",
        "A\xC3\xA4",
        "\xC3\x84Z",
        "\xC3\xA4z",
        "\xC3\xA4y",
        "@",
        "`",
    };
    for (const auto a : texts) {
        for (const auto b : texts) {
            EXPECT_EQ(equalsIgnoringCase(a, b), lowerCased(a) == lowerCased(b))
                << '"' << a << "\" and \"" << b << '"';
        }
    }
    EXPECT_TRUE(equalsIgnoringCase("SOURCE", "source"));
    EXPECT_FALSE(equalsIgnoringCase("source", "source "));
    EXPECT_TRUE(equalsIgnoringCase("\xC5\xB8", "\xC3\xBF"));
}

} // namespace
} // namespace tarvel
