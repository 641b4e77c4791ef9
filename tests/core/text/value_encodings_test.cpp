// The text forms of single values: words, colours, opacity, numbers, file names, one-line tags.
#include "text/value_encodings.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <limits>
#include <stdexcept>
#include <string>
#include <string_view>

namespace tarvel {
namespace {

constexpr double largest = std::numeric_limits<double>::max();

TEST(BoolWords, AreWrittenWithACapital) {
    EXPECT_EQ(boolText(true), "True");
    EXPECT_EQ(boolText(false), "False");
    EXPECT_EQ(onOff(true), "On");
    EXPECT_EQ(onOff(false), "Off");
}

TEST(BoolWords, AreReadInAnyLetterCaseAndNothingElseIsTrue) {
    struct Case {
        std::string_view text;
        bool asBool;
        bool asOnOff;
    };
    constexpr Case cases[] = {
        {"true", true, false},   {"TRUE", true, false},      {"True", true, false},
        {"tRuE", true, false},   {"on", false, true},        {"ON", false, true},
        {"On", false, true},     {"", false, false},         {"yes", false, false},
        {"1", false, false},     {"-1", false, false},       {" true", false, false},
        {"true ", false, false}, {"on ", false, false},      {"false", false, false},
        {"off", false, false},   {"truetrue", false, false},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(reverseBool(c.text), c.asBool) << '"' << c.text << '"';
        EXPECT_EQ(reverseOnOff(c.text), c.asOnOff) << '"' << c.text << '"';
    }
}

TEST(HexToDec, CountsOtherCharactersAsZeroInTheirPlace) {
    struct Case {
        std::string text;
        std::int32_t value;
    };
    const Case cases[] = {
        {"", 0},
        {"0", 0},
        {"FF", 255},
        {"ff", 255},
        {"fF", 255},
        {"0x1A", 26},
        {"0X1a", 26},
        {"1g", 16},
        {"g1", 1},
        {" 1", 1},
        {"1 ", 16},
        {"1 1", 257},
        {"-1", 1},
        {"zz", 0},
        {"\u00E41", 1}, // one character of two bytes
        {"1\u00E4", 16},
        {"1\u4E2D\u00E41", 0x1001},
        {"\u00E4\u00E4\u00E4\u00E4\u00E4\u00E4\u00E4\u00E41", 1},
        {"123456", 0x123456},
        {"789abc", 0x789ABC},
        {"DEF0", 0xDEF0},
        {"7FFFFFFF", 0x7FFFFFFF},
        {"x7FFFFFFF", 0x7FFFFFFF},
        {std::string(1000, '0') + "1", 1},
        {std::string(1000, 'x'), 0},
        {std::string("\0"
                     "1\0",
                     3),
         16},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(hextodec(c.text), c.value) << '"' << c.text << '"';
    }
}

TEST(HexToDec, ThrowsBeyondThirtyTwoBits) {
    for (const std::string& text :
         {std::string("80000000"), std::string("FFFFFFFF"), std::string("100000000"),
          std::string("1gggggggg"), "1" + std::string(2000, '0')}) {
        EXPECT_THROW((void)hextodec(text), std::overflow_error) << text;
    }
}

TEST(Alpha, IsWrittenExactlyWithHalvesToEven) {
    struct Case {
        int opacity;
        std::string_view digits;
    };
    constexpr Case cases[] = {
        {0, "00"},    {1, "03"},    {2, "05"},        {3, "08"},  {10, "1A"}, // 25.5
        {30, "4C"},   {50, "80"},   {70, "B2"},       {90, "E6"}, {99, "FC"},  {100, "FF"},
        {101, "102"}, {200, "1FE"}, {32767, "14664"}, {-1, "00"}, {-50, "00"}, {-32768, "00"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(makeAlpha(c.opacity), c.digits) << c.opacity;
    }
}

TEST(Alpha, IsReadFromTheThirdAndFourthCharacter) {
    struct Case {
        std::string_view text;
        int opacity;
    };
    constexpr Case cases[] = {
        {"", 100},
        {"0xFF000000", 100},
        {"0xff000000", 100},
        {"0x80123456", 50},
        {"0x00FFFFFF", 0},
        {"0x7FFFFFFF", 50},
        {"0x01FFFFFF", 0},
        {"0x02FFFFFF", 1},
        {"0x", 0},
        {"0", 0},
        {"0xF", 6},
        {"0xFF", 100},
        {"0xZZ000000", 0},
        {"0x8Z000000", 50},
        {"..80......", 50},
        {"FFFF", 100},
        {"#80FF00", 6}, // the digits 0F
        {"\u00E4\u00E480FF0000", 50},
        {"0x\u00E48FF0000", 3}, // the digits 08
        {"0x8\u00E4FF0000", 50},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(getAlpha(c.text), c.opacity) << '"' << c.text << '"';
    }
}

TEST(Alpha, IsReadRoundedForEveryPairOfDigits) {
    for (int alpha = 0; alpha <= 255; ++alpha) {
        std::string digits = rgbHex(makeColor(static_cast<unsigned>(alpha), 0, 0)).substr(0, 2);
        EXPECT_EQ(getAlpha("0x" + digits + "000000"), std::lround(alpha * 100.0 / 255.0)) << digits;
    }
}

TEST(Alpha, ComesBackForEveryOpacity) {
    for (int opacity = 0; opacity <= 100; ++opacity) {
        const std::string digits = makeAlpha(opacity);
        EXPECT_EQ(digits.size(), 2U) << opacity;
        EXPECT_EQ(getAlpha("0x" + digits + "102030"), opacity);
    }
}

TEST(Color, KeepsRedInTheLowByte) {
    EXPECT_EQ(makeColor(0x12, 0x34, 0x56), 0x563412U);
    EXPECT_EQ(redOf(0x563412), 0x12U);
    EXPECT_EQ(greenOf(0x563412), 0x34U);
    EXPECT_EQ(blueOf(0x563412), 0x56U);
    EXPECT_EQ(makeColor(255, 0, 0), 255U);
}

TEST(Color, IsReadFromTheFifthToTenthCharacter) {
    struct Case {
        std::string_view text;
        ColorNumber color;
    };
    constexpr Case cases[] = {
        {"", 0},
        {"0xFF00FF00", makeColor(0, 255, 0)},
        {"0xFF123456", makeColor(0x12, 0x34, 0x56)},
        {"0x00abcdef", makeColor(0xAB, 0xCD, 0xEF)},
        {"zzzz102030", makeColor(0x10, 0x20, 0x30)},
        {"0xFFGG2G30", makeColor(0, 0x20, 0x30)},
        {"0xFF1020304050", makeColor(0x10, 0x20, 0x30)},
        {"0xFF", 0},
        {"0xFF1", makeColor(1, 0, 0)},
        {"0xFF10", makeColor(0x10, 0, 0)},
        {"0xFF10203", makeColor(0x10, 0x20, 3)},
        {"x", 0},
        {"0xFF\u00E4\u00E912\u00F64", makeColor(0, 0x12, 4)},
        {"\u00E4\u00E4FF102030", makeColor(0x10, 0x20, 0x30)},
        {"0xFF\u4E2D", 0},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(getColor(c.text), c.color) << '"' << c.text << '"';
    }
}

TEST(Color, IsWrittenFromItsLowTwentyFourBits) {
    struct Case {
        ColorNumber color;
        std::string_view digits;
    };
    constexpr Case cases[] = {
        {0, "000000"},
        {255, "FF0000"},
        {makeColor(0x12, 0x34, 0x56), "123456"},
        {makeColor(0, 0, 0xAB), "0000AB"},
        {0xFFFFFF, "FFFFFF"},
        {0xFF563412, "123456"},
        {0xFFFFFFFF, "FFFFFF"},
        {0x01000000, "000000"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(rgbHex(c.color), c.digits) << c.color;
        EXPECT_EQ(getColor("0x00" + rgbHex(c.color)), c.color & 0xFFFFFF) << c.color;
    }
}

TEST(FileNames, AreCutOutOfPaths) {
    struct Case {
        std::string_view path;
        std::string_view file;
    };
    constexpr Case cases[] = {
        {"pic.png", "pic.png"},
        {"C:\\skins\\Media\\pic.png", "pic.png"},
        {"a\\b.c\\d", "d"},
        {"C:\\skins\\", ""},
        {"\\", ""},
        {"", ""},
        {"a/b.png", "a/b.png"},
        {"Media\\\xC3\xA4.png", "\xC3\xA4.png"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(trimtofile(c.path), c.file) << c.path;
    }
}

TEST(FileNames, LoseTheirLastFourCharactersWhateverTheyAre) {
    struct Case {
        std::string_view path;
        std::string_view base;
    };
    constexpr Case cases[] = {
        {"C:\\skins\\pic.png", "pic"}, {"pic.jpeg", "pic."},
        {"noextension", "noexten"},    {".png", ""},
        {"C:\\a\\.png", ""},           {"a.b.png", "a.b"},
        {"C:\\a.b\\long", ""},         {"C:\\folder.x\\abcde", "a"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(fileBaseName(c.path), c.base) << c.path;
    }
    for (const std::string_view path : {"", "abc", "C:\\folder\\abc", "C:\\folder\\"}) {
        EXPECT_THROW((void)fileBaseName(path), std::length_error) << path;
    }
}

TEST(FileNames, TellTheKindOfAFileByTheirLastThreeCharacters) {
    struct Case {
        std::string_view name;
        bool png;
        bool video;
    };
    constexpr Case cases[] = {
        {"a.png", true, false},    {"A.PNG", true, false},   {"apng", true, false},
        {"png", true, false},      {"a.wmv", false, true},   {"a.WmV", false, true},
        {"a.jpg", false, false},   {"a.jpeg", false, false}, {"ng", false, false},
        {"", false, false},        {"a.png ", false, false}, {"a.wmvx", false, false},
        {"png.bmp", false, false},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(isPngFile(c.name), c.png) << c.name;
        EXPECT_EQ(isVideoFile(c.name), c.video) << c.name;
        EXPECT_EQ(isOtherFile(c.name), !c.png && !c.video) << c.name;
    }
}

TEST(FolderNames, EndInExactlyOneBackslash) {
    EXPECT_EQ(withSlash("C:\\skins"), "C:\\skins\\");
    EXPECT_EQ(withSlash("C:\\skins\\"), "C:\\skins\\");
    EXPECT_EQ(withSlash("C:/skins/"), "C:/skins/\\");
    EXPECT_EQ(withSlash(""), "\\");
}

TEST(Tags, PasteTheirPartsAsTheyAre) {
    EXPECT_EQ(makeTag("Title", "500"), "<Title>500</Title>");
    EXPECT_EQ(makeTag("", ""), "<></>");
    EXPECT_EQ(makeTag("a b", "x & <y> \"z\""), "<a b>x & <y> \"z\"</a b>");
    EXPECT_EQ(makeTagAttr("Timer", "500", "Type=\"Delay\""), "<Timer Type=\"Delay\">500</Timer>");
    EXPECT_EQ(makeTagAttr("a", "<", ""), "<a ><</a>");
}

TEST(Val, ReadsTheLeadingNumberAndNothingElse) {
    struct Case {
        std::string_view text;
        double value;
    };
    constexpr Case cases[] = {
        {"12", 12},    {"-5", -5},  {"+7", 7},       {"2.5", 2.5},   {".5", 0.5},   {"-.5", -0.5},
        {"5.", 5},     {"007", 7},  {"2.5e3", 2500}, {"25E-1", 2.5}, {"1e+2", 100}, {"1e", 1},
        {"1e+", 1},    {"1ex", 1},  {"1.2.3", 1.2},  {"12abc", 12},  {"1,5", 1},    {"1 000", 1},
        {"- 5", 0},    {"--5", 0},  {"+-5", 0},      {"-+5", 0},     {"abc", 0},    {"", 0},
        {"   ", 0},    {" 12", 12}, {"\t\r\n 3", 3}, {"12 ", 12},    {"&H10", 0},   {"0x10", 0},
        {"1d2", 1},    {".", 0},    {"-", 0},        {"+", 0},       {"-.", 0},     {"e5", 0},
        {".e5", 0},    {"nan", 0},  {"-nan", 0},     {"inf", 0},     {"-inf", 0},   {"infinity", 0},
        {"NaN(1)", 0}, {"$5", 0},   {"(5)", 0},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(val(c.text), c.value) << '"' << c.text << '"';
    }
}

TEST(Val, IsExactWhereverThePointStands) {
    const std::string digits = "12345678901234567890";
    for (std::size_t length = 1; length <= digits.size(); ++length) {
        for (std::size_t point = 0; point <= length; ++point) {
            std::string text = digits.substr(0, length);
            text.insert(text.begin() + static_cast<std::ptrdiff_t>(point), '.');
            EXPECT_EQ(val(text), std::strtod(text.c_str(), nullptr)) << text;
            EXPECT_EQ(val(text + "x"), val(text)) << text;
            EXPECT_EQ(val(std::string("-").append(text)), -val(text)) << text;
        }
    }
    for (int thousandths = 0; thousandths < 2000; ++thousandths) {
        const std::string text = std::to_string(thousandths) + "e-3";
        EXPECT_EQ(val(text), thousandths / 1000.0) << text;
    }
}

TEST(Val, StopsAtANulCharacter) {
    EXPECT_EQ(val(std::string_view("1\0002", 3)), 1);
    EXPECT_EQ(val(std::string_view("\0002", 2)), 0);
}

TEST(Val, HoldsNumbersAtTheLimitsOfADouble) {
    const std::string zeros(400, '0');
    struct Case {
        std::string text;
        double value;
    };
    const Case cases[] = {
        {"1e999", largest},
        {"-1e999", -largest},
        {"1" + zeros, largest},
        {"0" + std::string(400, '9'), largest},
        {"1e-999", 0},
        {"-1e-999", 0},
        {"0." + zeros + "1", 0},
        {"." + zeros + "1", 0},
        {"00." + zeros + "1e5", 0},
        {"1" + zeros + "e-5", largest},
        {"0." + zeros + "1e9999", largest},
        {"1" + zeros + "e-9999", 0},
        {"1e99999999999999999999", largest},
        {"1e-99999999999999999999", 0},
        {"0e999", 0},
        {"2e308", largest},
        {"0.0002e312", largest},
        {"1e-325", 0},
        {"20000e-330", 0},
        {"1" + zeros + "e-400", 1},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(val(c.text), c.value) << c.text;
    }
}

TEST(Rounding, HoldsWholeNumbersAtTheirLimitsWithHalvesToEven) {
    struct Case {
        double value;
        std::int16_t asInt16;
        std::int32_t asInt32;
    };
    const Case cases[] = {
        {0, 0, 0},
        {0.5, 0, 0},
        {1.5, 2, 2},
        {2.5, 2, 2},
        {3.5, 4, 4},
        {-0.5, 0, 0},
        {-1.5, -2, -2},
        {-2.5, -2, -2},
        {2.500001, 3, 3},
        {-5, -5, -5},
        {32767, 32767, 32767},
        {32767.4, 32767, 32767},
        {32768, 32767, 32768},
        {-32768, -32768, -32768},
        {-32769, -32768, -32769},
        {2147483647, 32767, 2147483647},
        {2147483648.0, 32767, 2147483647},
        {-2147483649.0, -32768, std::numeric_limits<std::int32_t>::min()},
        {largest, 32767, 2147483647},
        {-largest, -32768, std::numeric_limits<std::int32_t>::min()},
        {std::numeric_limits<double>::infinity(), 32767, 2147483647},
        {std::nan(""), 0, 0},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(toInt16(c.value), c.asInt16) << c.value;
        EXPECT_EQ(toInt32(c.value), c.asInt32) << c.value;
    }
}

TEST(Rounding, HoldsPositionsAtTheLimitsOfASingle) {
    constexpr float limit = std::numeric_limits<float>::max();
    EXPECT_EQ(toSingle(2.5), 2.5F);
    EXPECT_EQ(toSingle(0.1), 0.1F);
    EXPECT_EQ(toSingle(-5), -5.0F);
    EXPECT_EQ(toSingle(1e300), limit);
    EXPECT_EQ(toSingle(-1e300), -limit);
    EXPECT_EQ(toSingle(std::numeric_limits<double>::infinity()), limit);
    EXPECT_EQ(toSingle(1e-300), 0.0F);
    EXPECT_EQ(toSingle(std::nan("")), 0.0F);
}

TEST(NumberText, HasTheFewestDigitsAndNoExponent) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(numberText(0), "0");
    EXPECT_EQ(numberText(-2147483647 - 1), "-2147483648");
    EXPECT_EQ(numberText(0.1F), "0.1");
    EXPECT_EQ(numberText(0.1), "0.1");
    EXPECT_EQ(numberText(static_cast<double>(0.1F)), "0.10000000149011612");
    EXPECT_EQ(numberText(100.0F), "100");
    EXPECT_EQ(numberText(-12.5F), "-12.5");
    EXPECT_EQ(numberText(1.0F / 3), "0.33333334");
    EXPECT_EQ(numberText(0.0F), "0");
    EXPECT_EQ(numberText(-0.0F), "0");
    EXPECT_EQ(numberText(-0.0), "0");
    EXPECT_EQ(numberText(1e-7), "0.0000001");
    EXPECT_EQ(numberText(3e9F), "3000000000");
    EXPECT_EQ(numberText(1e21), "1000000000000000000000");
    EXPECT_EQ(numberText(std::nan("")), "0");
    EXPECT_EQ(numberText(infinity), numberText(largest));
    EXPECT_EQ(numberText(-infinity), numberText(-largest));
}

TEST(NumberText, ReadsBackToTheSameNumber) {
    using Single = std::numeric_limits<float>;
    for (const float value : {0.1F, 1.0F / 3, 639.99994F, 16777216.0F, 1e-20F, Single::max(),
                              Single::lowest(), Single::min(), Single::denorm_min()}) {
        EXPECT_EQ(toSingle(val(numberText(value))), value) << value;
    }
    using Double = std::numeric_limits<double>;
    for (const double value : {0.1, 1.0 / 3, 2500.0, 1e23, 9007199254740993.0, Double::max(),
                               Double::lowest(), Double::min(), Double::denorm_min()}) {
        const std::string text = numberText(value);
        EXPECT_EQ(val(text), value) << value;
        EXPECT_EQ(text.find_first_not_of("-.0123456789"), std::string::npos) << text;
        EXPECT_NE(text.front(), '.');
    }
}

} // namespace
} // namespace tarvel
