// Bytes to text and back: which encoding a file has, Windows-1252, character references.
#include "text/text_encoding.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <string_view>

namespace tarvel {

static void PrintTo(TextEncoding encoding, std::ostream* out) {
    constexpr std::array<const char*, 4> names = {"UTF-8", "Windows-1252", "UTF-16LE", "UTF-16BE"};
    *out << names.at(static_cast<std::size_t>(encoding));
}

namespace {

using namespace std::string_literals;
using namespace std::string_view_literals;

std::string utf8(char32_t codePoint) {
    std::string text;
    appendUtf8(text, codePoint);
    return text;
}

std::string referencesDecoded(std::string_view source) {
    std::string text;
    appendWithReferencesDecoded(text, source);
    return text;
}

TEST(DecodeText, FindsTheEncoding) {
    struct Case {
        std::string bytes;
        std::string text;
        TextEncoding encoding;
    };
    using enum TextEncoding;
    const Case cases[] = {
        {"", "", utf8},
        {"<a/>", "<a/>", utf8},
        {"\xC3\xA4", "\xC3\xA4", utf8},
        {"\xE4", "\xC3\xA4", windows1252},
        {"\x80 \x93x\x94", "\xE2\x82\xAC \xE2\x80\x9Cx\xE2\x80\x9D", windows1252},
        {"\xC3\xA4 \xE4", "\xC3\x83\xC2\xA4 \xC3\xA4", windows1252},
        // A byte order mark decides.
        {"\xEF\xBB\xBF\xC3\xA4", "\xC3\xA4", utf8},
        {"\xEF\xBB\xBF", "", utf8},
        {"\xEF\xBB\xBF\xE4", "\xC3\xA4", windows1252},
        {"\xEF\xBB\xBF<?xml encoding=\"windows-1252\"?>\xC3\xA4",
         "<?xml encoding=\"windows-1252\"?>\xC3\xA4", utf8},
        {"\xFF\xFE<\0a\0\xE4\0"s, "<a\xC3\xA4", utf16LittleEndian},
        {"\xFE\xFF\0<\0a\0\xE4"s, "<a\xC3\xA4", utf16BigEndian},
        {"\xFF\xFE", "", utf16LittleEndian},
        {"\xFE\xFF", "", utf16BigEndian},
        // UTF-16 without a mark shows by the first "<".
        {"<\0a\0"s, "<a", utf16LittleEndian},
        {"\0<\0a"s, "<a", utf16BigEndian},
        // A declaration decides, too.
        {"<?xml version=\"1.0\" encoding=\"Windows-1252\"?>\xC3\xA4",
         "<?xml version=\"1.0\" encoding=\"Windows-1252\"?>\xC3\x83\xC2\xA4", windows1252},
        {"<?xml encoding='ISO-8859-1'?>\xC3\xA4\x80",
         "<?xml encoding='ISO-8859-1'?>\xC3\x83\xC2\xA4\xE2\x82\xAC", windows1252},
        {"<?xml encoding = \"cp1252\" ?>\xC3\xA4", "<?xml encoding = \"cp1252\" ?>\xC3\x83\xC2\xA4",
         windows1252},
        {"<?xml encoding=\"utf-8\"?>\xC3\xA4", "<?xml encoding=\"utf-8\"?>\xC3\xA4", utf8},
        {"<?xml encoding=\"utf-8\"?>\xE4", "<?xml encoding=\"utf-8\"?>\xC3\xA4", windows1252},
        {"<?xml version=\"1.0\"?>\xC3\xA4", "<?xml version=\"1.0\"?>\xC3\xA4", utf8},
        {"<?xml version=\"1.0\"?>\xE4", "<?xml version=\"1.0\"?>\xC3\xA4", windows1252},
        // What only looks like a declaration does not.
        {"<a/><?xml encoding=\"windows-1252\"?>\xC3\xA4",
         "<a/><?xml encoding=\"windows-1252\"?>\xC3\xA4", utf8},
        {"<?xml?><a encoding=\"windows-1252\"/>\xC3\xA4",
         "<?xml?><a encoding=\"windows-1252\"/>\xC3\xA4", utf8},
        {"<?xml encoding=\"windows-1252?>\xC3\xA4", "<?xml encoding=\"windows-1252?>\xC3\xA4",
         utf8},
        {"<?xml encoding", "<?xml encoding", utf8},
        {"<?xml encoding=", "<?xml encoding=", utf8},
    };
    for (const auto& c : cases) {
        const DecodedText decoded = decodeText(c.bytes);
        EXPECT_EQ(decoded.text, c.text) << testing::PrintToString(c.bytes);
        EXPECT_EQ(decoded.encoding, c.encoding) << testing::PrintToString(c.bytes);
    }
}

TEST(DecodeText, ReadsSurrogatesAndReplacesUnpairedOnes) {
    struct Case {
        std::string_view bytes;
        std::string_view text;
    };
    constexpr Case cases[] = {
        {"\xFF\xFE\x3C\xD8\xAE\xDF"sv, "\xF0\x9F\x8E\xAE"},
        {"\xFE\xFF\xD8\x3C\xDF\xAE"sv, "\xF0\x9F\x8E\xAE"},
        {"\xFF\xFE\x3C\xD8"sv, "\xEF\xBF\xBD"},
        {"\xFF\xFE\x3C\xD8\x78\0"sv, "\xEF\xBF\xBDx"},
        {"\xFF\xFE\xAE\xDF\x78\0"sv, "\xEF\xBF\xBDx"},
        {"\xFF\xFE\x78\0\x79"sv, "x"}, // half a character at the end
    };
    for (const auto& c : cases) {
        EXPECT_EQ(decodeText(std::string(c.bytes)).text, c.text);
    }
}

TEST(DecodeText, NamesEveryByteOfWindows1252) {
    const std::string high =
        "\xE2\x82\xAC|\xC2\x81|\xE2\x80\x9A|\xC6\x92|\xE2\x80\x9E|\xE2\x80\xA6|"
        "\xE2\x80\xA0|\xE2\x80\xA1|\xCB\x86|\xE2\x80\xB0|\xC5\xA0|\xE2\x80\xB9|"
        "\xC5\x92|\xC2\x8D|\xC5\xBD|\xC2\x8F|\xC2\x90|\xE2\x80\x98|\xE2\x80\x99|"
        "\xE2\x80\x9C|\xE2\x80\x9D|\xE2\x80\xA2|\xE2\x80\x93|\xE2\x80\x94|"
        "\xCB\x9C|\xE2\x84\xA2|\xC5\xA1|\xE2\x80\xBA|\xC5\x93|\xC2\x9D|"
        "\xC5\xBE|\xC5\xB8|";
    std::string bytes;
    for (int byte = 0x80; byte <= 0x9F; ++byte) {
        bytes += static_cast<char>(byte);
        bytes += '|';
    }
    EXPECT_EQ(decodeText(bytes).text, high);
    EXPECT_EQ(encodeWindows1252(high), bytes);

    for (int byte = 0xA0; byte <= 0xFF; ++byte) {
        const std::string text = utf8(static_cast<char32_t>(byte));
        EXPECT_EQ(decodeText(std::string(1, static_cast<char>(byte))).text, text);
        EXPECT_EQ(encodeWindows1252(text), std::string(1, static_cast<char>(byte)));
    }
}

TEST(DecodeText, MakesValidUtf8OfAnyBytes) {
    for (unsigned first = 0; first < 256; ++first) {
        for (unsigned second = 0; second < 256; ++second) {
            for (const auto& tail : {""s, "\x80"s, "\xBF\xBF"s, "x\0"s}) {
                std::string bytes{static_cast<char>(first), static_cast<char>(second)};
                bytes += tail;
                ASSERT_TRUE(isValidUtf8(decodeText(bytes).text)) << testing::PrintToString(bytes);
            }
        }
    }
}

TEST(IsValidUtf8, KnowsTheWellFormedSequences) {
    struct Case {
        std::string_view bytes;
        bool valid;
    };
    constexpr Case cases[] = {
        {"", true},
        {"plain"sv, true},
        {"a\0b"sv, true},
        {"12345678\xC3\xA4"sv, true},
        {"12345678\xE4"sv, false},
        {"1234567\xE4"sv, false},
        {"\xC2\x80"sv, true},
        {"\xC1\xBF"sv, false}, // overlong
        {"\xC0\x80"sv, false},
        {"\xE0\xA0\x80"sv, true},
        {"\xE0\x9F\xBF"sv, false}, // overlong
        {"\xED\x9F\xBF"sv, true},
        {"\xED\xA0\x80"sv, false}, // surrogates
        {"\xED\xBF\xBF"sv, false},
        {"\xEE\x80\x80"sv, true},
        {"\xF0\x90\x80\x80"sv, true},
        {"\xF0\x8F\xBF\xBF"sv, false}, // overlong
        {"\xF4\x8F\xBF\xBF"sv, true},
        {"\xF4\x90\x80\x80"sv, false}, // beyond Unicode
        {"\xF5\x80\x80\x80"sv, false},
        {"\xFF"sv, false},
        {"\x80"sv, false},
        {"\xC3"sv, false}, // cut short
        {"\xE2\x82"sv, false},
        {"\xF0\x9F\x8E"sv, false},
        {"\xC3x"sv, false},
        {"\xE2\x82x"sv, false},
        {"\xE2x\x82"sv, false},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(isValidUtf8(c.bytes), c.valid) << testing::PrintToString(c.bytes);
    }
}

TEST(EncodeWindows1252, WritesWhatHasNoByteAsAReference) {
    struct Case {
        std::string text;
        std::string bytes;
    };
    const Case cases[] = {
        {"", ""},
        {"plain <&> \t\r\n", "plain <&> \t\r\n"},
        {"a\0b"s, "a\0b"s},
        {"\xC3\xA4", "\xE4"},
        {"\xE2\x82\xAC", "\x80"},
        {"\xCE\xA9", "&#937;"},
        {"x\xF0\x9F\x8E\xAEy\xC3\xA4", "x&#127918;y\xE4"},
        {"\xC2\x80", "&#128;"}, // the control character, whose byte is taken by the euro sign
        {"\xC2\x81", "\x81"},
        {"&#937; &amp;", "&#937; &amp;"},
        // Bytes that would also be UTF-8 are avoided: all beyond ASCII as references.
        {"\xC3\x83\xC2\xA4", "&#195;&#164;"},
        {"\xC3\x83\xC2\xA4 \xCE\xA9", "&#195;&#164; &#937;"},
        {"\xC3\x83\xC2\xA4 \xC3\xA4", "\xC3\xA4 \xE4"},
        // Bytes that are no text.
        {"a\xFFz", "a&#65533;z"},
        {"\xC3", "&#65533;"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(encodeWindows1252(c.text), c.bytes) << c.text;
    }
}

TEST(EncodeWindows1252, LosesNoCharacter) {
    for (char32_t codePoint = 1; codePoint <= 0x10FFFF; codePoint += codePoint < 0x3000 ? 1 : 251) {
        if (codePoint >= 0xD800 && codePoint <= 0xDFFF) {
            continue;
        }
        std::string text = "<";
        appendUtf8(text, codePoint);
        appendUtf8(text, 0xE4);
        const std::string bytes = encodeWindows1252(text);
        ASSERT_EQ(referencesDecoded(decodeText(bytes).text), text)
            << "code point " << static_cast<unsigned>(codePoint);
    }
}

TEST(EncodeWindows1252, GivesTheSameTextForEveryPairOfBytes) {
    for (unsigned first = 0x80; first < 256; ++first) {
        for (unsigned second = 0x80; second < 256; ++second) {
            std::string text = "<Skin>";
            appendUtf8(text, first);
            appendUtf8(text, second);
            ASSERT_EQ(referencesDecoded(decodeText(encodeWindows1252(text)).text), text);
        }
    }
}

TEST(EncodeWindows1252, WritesNoByteOrderMarkForLetters) {
    for (const char* mark : {"\u00EF\u00BB\u00BF", "\u00FF\u00FE", "\u00FE\u00FF"}) {
        const std::string text = std::string(mark) + "\u00BC<Skin>";
        ASSERT_EQ(referencesDecoded(decodeText(encodeWindows1252(text)).text), text);
    }
}

TEST(FitsWindows1252, IsTrueWhenEveryCharacterHasAByte) {
    struct Case {
        std::string_view text;
        bool fits;
    };
    constexpr Case cases[] = {
        {"", true},
        {"plain", true},
        {"\xC3\xA4\xE2\x82\xAC\xC2\x81", true},
        {"\xC3\x83\xC2\xA4", true}, // although it is written with references
        {"\xCE\xA9", false},
        {"a long text before \xF0\x9F\x8E\xAE", false},
        {"\xC2\x80", false},
        {"\xFF", false},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(fitsWindows1252(c.text), c.fits) << c.text;
    }
}

TEST(AppendUtf8, ReplacesWhatIsNoCodePoint) {
    EXPECT_EQ(utf8('x'), "x");
    EXPECT_EQ(utf8(0), "\0"s);
    EXPECT_EQ(utf8(0x7F), "\x7F");
    EXPECT_EQ(utf8(0x80), "\xC2\x80");
    EXPECT_EQ(utf8(0x7FF), "\xDF\xBF");
    EXPECT_EQ(utf8(0x800), "\xE0\xA0\x80");
    EXPECT_EQ(utf8(0xFFFF), "\xEF\xBF\xBF");
    EXPECT_EQ(utf8(0x10000), "\xF0\x90\x80\x80");
    EXPECT_EQ(utf8(0x10FFFF), "\xF4\x8F\xBF\xBF");
    for (const char32_t wrong : {0xD800U, 0xDFFFU, 0x110000U, 0xFFFFFFFFU}) {
        EXPECT_EQ(utf8(wrong), "\xEF\xBF\xBD");
    }
}

TEST(References, AreDecodedBeyondAsciiOnly) {
    struct Case {
        std::string_view source;
        std::string_view text;
    };
    constexpr Case cases[] = {
        {"", ""},
        {"plain", "plain"},
        {"&#228;", "\xC3\xA4"},
        {"&#xE4;&#Xe4;", "\xC3\xA4\xC3\xA4"},
        {"a&#937;b&#127918;c", "a\xCE\xA9"
                               "b\xF0\x9F\x8E\xAE"
                               "c"},
        {"&#000000000228;", "\xC3\xA4"},
        {"&#128;", "\xC2\x80"},
        {"&#127; &#38; &#60; &#10; &#0;", "&#127; &#38; &#60; &#10; &#0;"},
        {"&amp; &lt; &quot; &auml;", "&amp; &lt; &quot; &auml;"},
        {"& &# &#; &#x; &#228", "& &# &#; &#x; &#228"},
        {"&#-228; &#+228; &# 228; &#228 ;", "&#-228; &#+228; &# 228; &#228 ;"},
        {"&#22g; &#xg;", "&#22g; &#xg;"},
        {"&#55296; &#xDFFF; &#1114112;", "&#55296; &#xDFFF; &#1114112;"}, // no code points
        {"&#99999999999;", "&#99999999999;"},
        {"&#1114111;", "\xF4\x8F\xBF\xBF"},
        {"&#&#228;", "&#\xC3\xA4"},
        {"&&#228;;", "&\xC3\xA4;"},
        {"&amp;#228;", "&amp;#228;"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(referencesDecoded(c.source), c.text) << c.source;
    }
}

TEST(References, AreAppended) {
    std::string text = "before ";
    appendWithReferencesDecoded(text, "&#228;");
    EXPECT_EQ(text, "before \xC3\xA4");
}

TEST(References, WithoutAnEndAreTakenInTheirStride) {
    std::string openEnded;
    for (int i = 0; i < 500'000; ++i) {
        openEnded += "&#";
    }
    EXPECT_EQ(referencesDecoded(openEnded), openEnded);
    const std::string digits = "&#" + std::string(1'000'000, '1');
    EXPECT_EQ(referencesDecoded(digits), digits);
}

TEST(References, KeepNulCharactersAroundThem) {
    EXPECT_EQ(referencesDecoded("a\0&#228;\0&#\0;"sv), "a\0\xC3\xA4\0&#\0;"s);
}

} // namespace
} // namespace tarvel
