// Finding values by name in one level of a tree, and resources by name.
#include "document/skin_document.h"
#include "support/xml_support.h"
#include "text/tag_scanner.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace tarvel {
namespace {

using test::parse;

TEST(GetContent, GivesTheLastChildOfTheTag) {
    struct Case {
        std::string xml;
        std::string_view tag;
        std::string_view content;
    };
    const Case cases[] = {
        {"<n/>", "Color", ""},
        {"<n>own</n>", "n", ""},
        {"<n><Color>1</Color></n>", "Color", "1"},
        {"<n><Color>1</Color></n>", "cOLOR", "1"},
        {"<n><color>1</color></n>", "Color", "1"},
        {"<n><Color>1</Color><Color>2</Color></n>", "Color", "2"},
        {"<n><Color>1</Color><COLOR>2</COLOR><Other>3</Other></n>", "color", "2"},
        {"<n><Color>1</Color><Color/></n>", "Color", ""},
        {"<n><Other>1</Other></n>", "Color", ""},
        {"<n><In><Color>1</Color></In></n>", "Color", ""}, // one level only
        {"<n><Color>1</Color></n>", "Color ", ""},
        {"<n><Color>1</Color></n>", " Color", ""},
        {"<n><Color>1</Color></n>", "", ""},
        {"<n><Color> 1 </Color></n>", "Color", " 1 "},
        {"<n><\xC3\x84>1</\xC3\x84></n>", "\xC3\xA4", "1"},
    };
    for (const auto& c : cases) {
        const XmlTree tree = parse(c.xml);
        EXPECT_EQ(getContent(tree.root(), c.tag), c.content) << c.xml << ' ' << c.tag;
    }
}

TEST(GetContentInTag, LooksAtTheFirstAttributeOnly) {
    struct Case {
        std::string xml;
        std::string_view value;
        std::string_view tag;
        std::string_view content;
    };
    const Case cases[] = {
        {"<n/>", "Delay", "Timer", ""},
        {"<n><Timer Type='Delay'>5</Timer></n>", "Delay", "Timer", "5"},
        {"<n><Timer Type='Delay'>5</Timer></n>", "DELAY", "tIMER", "5"},
        {"<n><TIMER Type='dELAY'>5</TIMER></n>", "Delay", "Timer", "5"},
        {"<n><Timer Whatever='Delay'>5</Timer></n>", "Delay", "Timer", "5"},
        {"<n><Timer Unit='ms' Type='Delay'>5</Timer></n>", "Delay", "Timer", ""},
        {"<n><Timer Type='Delay' Unit='ms'>5</Timer></n>", "Delay", "Timer", "5"},
        {"<n><Timer>5</Timer></n>", "Delay", "Timer", ""},
        {"<n><Timer>5</Timer></n>", "", "Timer", ""}, // no attributes is not an empty one
        {"<n><Timer Type=''>5</Timer></n>", "", "Timer", "5"},
        {"<n><Timer Type='Delay '>5</Timer></n>", "Delay", "Timer", ""},
        {"<n><Other Type='Delay'>5</Other></n>", "Delay", "Timer", ""},
        {"<n><Timer Type='CycleOn'>5</Timer></n>", "Delay", "Timer", ""},
        {"<n><Timer Type='Delay'>5</Timer><Timer Type='Delay'>6</Timer></n>", "Delay", "Timer",
         "6"},
        {"<n><Timer Type='Delay'>5</Timer><Timer Type='CycleOn'>6</Timer></n>", "Delay", "Timer",
         "5"},
        {"<n><Timer Type='Delay'>5</Timer><Timer Type='Delay'/></n>", "Delay", "Timer", ""},
        {"<n><In><Timer Type='Delay'>5</Timer></In></n>", "Delay", "Timer", ""},
    };
    for (const auto& c : cases) {
        const XmlTree tree = parse(c.xml);
        EXPECT_EQ(getContentInTag(tree.root(), c.value, c.tag), c.content) << c.xml;
    }
}

TEST(GetAttrib, GivesTheLastAttributeOfTheName) {
    struct Case {
        std::string xml;
        std::string_view name;
        std::string_view value;
    };
    const Case cases[] = {
        {"<n/>", "source", ""},
        {"<n Source='x'/>", "source", "x"},
        {"<n source='x'/>", "SOURCE", "x"},
        {"<n Source='x' Type='y'/>", "Type", "y"},
        {"<n Source='x' source='y'/>", "Source", "y"},
        {"<n Source='x' Source='y' Type='z'/>", "Source", "y"},
        {"<n Source='x' source=''/>", "Source", ""},
        {"<n Source='x'/>", "Source ", ""},
        {"<n Source='x'/>", "Sourc", ""},
        {"<n Source=' x '/>", "Source", " x "},
        {"<n><in Source='x'/></n>", "Source", ""},
    };
    for (const auto& c : cases) {
        const XmlTree tree = parse(c.xml);
        EXPECT_EQ(getAttrib(tree.root(), c.name), c.value) << c.xml;
    }
}

TEST(GetTag, GivesTheFirstChildOfTheTagOrElseTheLastChild) {
    struct Case {
        std::string xml;
        std::string_view tag;
        int child; // -1: an empty node
        bool tagged;
    };
    const Case cases[] = {
        {"<n/>", "Pos", -1, false},
        {"<n>text</n>", "Pos", -1, false},
        {"<n><Pos/></n>", "Pos", 0, true},
        {"<n><pOS/></n>", "Pos", 0, true},
        {"<n><A/><Pos/><B/></n>", "POS", 1, true},
        {"<n><Pos/><A/><Pos/></n>", "Pos", 0, true},
        {"<n><A/><B/></n>", "Pos", 1, false},
        {"<n><A/></n>", "Pos", 0, false},
        {"<n><A/><B><Pos/></B></n>", "Pos", 1, false},
        {"<n><Pos/><B/></n>", "Pos ", 1, false},
    };
    for (const auto& c : cases) {
        const XmlTree tree = parse(c.xml);
        const XmlNode found = getTag(tree.root(), c.tag);
        const XmlNode tagged = childTagged(tree.root(), c.tag);
        EXPECT_EQ(static_cast<bool>(tagged), c.tagged) << c.xml;
        if (c.child < 0) {
            EXPECT_FALSE(found) << c.xml;
            continue;
        }
        const XmlNode expected = tree.root().child(static_cast<std::size_t>(c.child));
        ASSERT_TRUE(found) << c.xml;
        EXPECT_EQ(found.tag().data(), expected.tag().data()) << c.xml; // the very node
        EXPECT_EQ(tagged ? tagged.tag().data() : nullptr,
                  c.tagged ? expected.tag().data() : nullptr)
            << c.xml;
    }
}

TEST(ResF, GivesTheLastResourceOfTheName) {
    SkinDocument document;
    EXPECT_EQ(resF(document, "logo"), "");
    EXPECT_EQ(findResource(document, "logo"), nullptr);
    document.addRes("Logo", "C:\\first.png");
    document.addRes("intro", "C:\\intro.wmv");
    document.addRes("lOGO", "C:\\second.png", true);
    document.addcRes("<Preset>x</Preset>", "piece");

    EXPECT_EQ(resF(document, "logo"), "C:\\second.png");
    EXPECT_EQ(resF(document, "LOGO"), "C:\\second.png");
    EXPECT_EQ(resF(document, "Intro"), "C:\\intro.wmv");
    EXPECT_EQ(resF(document, "PIECE"), "<Preset>x</Preset>");
    EXPECT_EQ(resF(document, "logo "), "");
    EXPECT_EQ(resF(document, ""), "");
    EXPECT_EQ(resF(document, "::logo"), "");
    EXPECT_EQ(findResource(document, "logo"), &document.settings().resources[2]);
    EXPECT_EQ(findResource(document, "other"), nullptr);
}

} // namespace
} // namespace tarvel
