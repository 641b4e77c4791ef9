// Names that Windows cannot have.
#include "files/windows_names.h"

#include <gtest/gtest.h>

namespace tarvel {

TEST(WindowsNames, WhatNoFileCanBeCalled) {
    using namespace std::string_view_literals;
    for (const std::string_view name :
         {""sv,         "a:b"sv,      "a<b"sv,         "a>b"sv,        "a\"b"sv,   "a|b"sv,
          "a?b"sv,      "a*b"sv,      "a/b"sv,         "a\\b"sv,       "a\tb"sv,   "a\0b"sv,
          "a."sv,       "a "sv,       "..."sv,         " "sv,          "con"sv,    "CON"sv,
          "Con.png"sv,  "con .png"sv, "prn"sv,         "aux.tar.gz"sv, "NUL"sv,    "com1"sv,
          "COM9.txt"sv, "lpt3"sv,     "COM\xC2\xB9"sv, "CONIN$"sv,     "conout$"sv}) {
        EXPECT_TRUE(isNoWindowsName(name)) << '"' << name << '"';
    }
}

TEST(WindowsNames, WhatFilesAreCalled) {
    for (const std::string_view name : {"a",
                                        ".",
                                        "..",
                                        ".a",
                                        " a",
                                        "a b.png",
                                        "a.b",
                                        "console",
                                        "con1",
                                        "acon",
                                        "com",
                                        "com0",
                                        "com10",
                                        "lpt",
                                        "co",
                                        "nul_",
                                        "p\xC3\xA4r.png",
                                        "\xE5\xBD\xA9",
                                        "$",
                                        "a'b;c=[d]"}) {
        EXPECT_FALSE(isNoWindowsName(name)) << '"' << name << '"';
    }
}

TEST(WindowsNames, TheFirstPartOfAPathIsTold) {
    EXPECT_EQ(partWithoutWindowsName("Media\\aux\\b:c.png"), "aux");
    EXPECT_EQ(partWithoutWindowsName("Media/b:c.png"), "b:c.png");
    EXPECT_EQ(partWithoutWindowsName("Media\\dots.\\a.png"), "dots.");
    EXPECT_EQ(partWithoutWindowsName("..\\Media//./a.png"), "");
    EXPECT_EQ(partWithoutWindowsName(""), "");
}

} // namespace tarvel
