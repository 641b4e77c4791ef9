// XML text into trees: what counts as content, what is accepted, and how errors are told.
#include "support/xml_support.h"
#include "text/xml_parse.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace tarvel {
namespace {

using namespace std::string_literals;
using test::depthOf;
using test::nestedXml;

TEST(ParseXml, JoinsTheOwnTextOfAnElement) {
    struct Case {
        std::string xml;
        std::string content;
    };
    const Case cases[] = {
        {"<a/>", ""},
        {"<a></a>", ""},
        {"<a>text</a>", "text"},
        {"<a> text </a>", " text "},
        {"<a> </a>", " "},
        {"<a>\t\n</a>", "\t\n"},
        {"<a><![CDATA[<b>&amp;</b>]]></a>", "<b>&amp;</b>"},
        {"<a><![CDATA[]]></a>", ""},
        {"<a>one<![CDATA[ two ]]>three</a>", "one two three"},
        {"<a>one<b>not this</b>two</a>", "onetwo"},
        {"<a> <b/> </a>", "  "},
        {"<a>one<!-- not this -->two<?nor this?>three</a>", "onetwothree"},
        {"<a>l1\r\nl2\rl3\nl4</a>", "l1\nl2\nl3\nl4"},
        {"<a>&amp;&lt;&gt;&quot;&apos;</a>", "&<>\"'"},
        {"<a>&#228;&#xE4;&#x1F3AE;</a>", "\xC3\xA4\xC3\xA4\xF0\x9F\x8E\xAE"},
        {"<a>&auml; &unknown; &; & && &amp</a>", "&auml; &unknown; &; & && &amp"},
        {"<a>R&D</a>", "R&D"},
        {"<a>x > y ]]></a>", "x > y ]]>"},
        {"<a>\xC3\xA4</a>", "\xC3\xA4"},
        {"<a>&amp;<b/>&amp;</a>", "&&"},
        {"<a>" + std::string(100'000, 'x') + "<b/>" + std::string(100'000, 'y') + "</a>",
         std::string(100'000, 'x') + std::string(100'000, 'y')},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(parseXml(c.xml).root().content(), c.content) << c.xml.substr(0, 80);
    }
}

TEST(ParseXml, KeepsAttributesInOrder) {
    using Attributes = std::vector<std::pair<std::string, std::string>>;
    struct Case {
        std::string xml;
        Attributes attributes;
    };
    const Case cases[] = {
        {"<a/>", {}},
        {"<a x=\"1\" y='2'/>", {{"x", "1"}, {"y", "2"}}},
        {"<a x = '1'\n\ty='2' />", {{"x", "1"}, {"y", "2"}}},
        {"<a x='1' X='2' x='3'/>", {{"x", "1"}, {"X", "2"}, {"x", "3"}}},
        {"<a x=''/>", {{"x", ""}}},
        {"<a x=' 1 '/>", {{"x", " 1 "}}},
        {"<a x='\"' y=\"'\"/>", {{"x", "\""}, {"y", "'"}}},
        {"<a x='&lt;&amp;&#10;'/>", {{"x", "<&\n"}}},
        {"<a x='R&D > 1'/>", {{"x", "R&D > 1"}}},
        {"<a x='1\t2\n3'/>", {{"x", "1 2 3"}}},
    };
    for (const auto& c : cases) {
        const XmlTree tree = parseXml(c.xml);
        Attributes attributes;
        for (std::size_t i = 0; i < tree.root().attributeCount(); ++i) {
            attributes.emplace_back(tree.root().attributeName(i), tree.root().attributeValue(i));
        }
        EXPECT_EQ(attributes, c.attributes) << c.xml;
    }
}

TEST(ParseXml, BuildsTheTree) {
    const XmlTree tree =
        parseXml("\xEF\xBB\xBF<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n"
                 "<!DOCTYPE Skin>\r\n<!-- comment -->\r\n"
                 "<Skin name=\"x\">\r\n\t<A><B k='1'>v</B></A>\r\n\t<C/>\r\n</Skin>"
                 "\r\n<!-- end -->\r\n");
    XmlTree expected;
    const auto skin = expected.addChild(XmlTree::top, "Skin", "\n\t\n\t\n");
    expected.addAttribute(skin, "name", "x");
    const auto a = expected.addChild(skin, "A");
    expected.addAttribute(expected.addChild(a, "B", "v"), "k", "1");
    expected.addChild(skin, "C");
    EXPECT_EQ(tree, expected);
}

TEST(ParseXml, TakesSeveralTopLevelElements) {
    const XmlTree tree = parseXml("<a/><b/>");
    EXPECT_EQ(tree.document().childCount(), 2U);
    EXPECT_EQ(tree.root().tag(), "a");
    EXPECT_EQ(tree.root().nextSibling().tag(), "b");
}

TEST(ParseXml, TellsWhatIsWrongAndWhere) {
    struct Case {
        std::string xml;
        std::string problem;
        int line;
    };
    const Case cases[] = {
        {"", "no XML element is in it", 1},
        {" \n ", "no XML element is in it", 2},
        {"no markup", "no XML element is in it", 1},
        {"<!-- only -->", "no XML element is in it", 1},
        {"<a>", "it ends before its elements are closed", 1},
        {"<a>\n<b></b>\n", "it ends before its elements are closed", 2},
        {"<a>\n<b>\n</a>", "an end tag does not match its start tag", 3},
        {"<a></b>", "an end tag does not match its start tag", 1},
        {"</a>", "an end tag does not match its start tag", 1},
        {"<a>\r\n<b x=1/>\r\n</a>", "a broken element attribute", 2},
        {"<a>\n\n<b x='1/>\n</a>", "a broken element attribute", 3},
        {"<a>\n< b/></a>", "a \"<\" that begins no tag", 2},
        {"<a>1 < 2</a>", "a \"<\" that begins no tag", 1},
        {"<a>\n<!-- open</a>", "a broken comment", 2},
        {"<a>\n<![CDATA[ open</a>", "a broken CDATA section", 2},
        {"<a>\n\n<?pi</a>", "a broken document declaration/processing instruction", 3},
        {"<a></a", "a broken end element tag", 1},
    };
    for (const auto& c : cases) {
        try {
            (void)parseXml(c.xml);
            ADD_FAILURE() << c.xml << " was parsed";
        } catch (const XmlError& error) {
            EXPECT_EQ(error.what(), c.problem) << c.xml;
            EXPECT_EQ(error.line(), c.line) << c.xml;
        }
    }
}

TEST(ParseXml, StandsVeryDeepNesting) {
    constexpr int levels = 100'000;
    const XmlTree tree = parseXml(nestedXml(levels, ""));
    EXPECT_EQ(depthOf(tree), levels);
    XmlTree fragment;
    parseFragmentInto(fragment, XmlTree::top, nestedXml(levels, ""));
    EXPECT_TRUE(fragment == tree);
    EXPECT_THROW((void)parseXml(nestedXml(levels, "</b>")), XmlError);
    EXPECT_THROW((void)parseXml(nestedXml(levels, "").substr(0, 3 * levels)), XmlError);
}

TEST(ParseXml, TakesOpenReferencesInItsStride) {
    std::string references;
    for (int i = 0; i < 500'000; ++i) {
        references += "&#";
    }
    EXPECT_EQ(parseXml("<a>" + references + "</a>").root().content(), references);
    EXPECT_EQ(parseXml("<a b='" + references + "'/>").root().attributeValue(0), references);
}

TEST(ParseXml, StandsNulCharacters) {
    for (const std::string& xml :
         {"\0"s, "<a>\0</a>"s, "<a\0/>"s, "<a b='\0'/>"s, "<\0"s, "<a/>\0<b/>"s, "\0<a/>"s}) {
        try {
            const XmlTree tree = parseXml(xml);
            EXPECT_EQ(tree.root().tag(), "a") << testing::PrintToString(xml);
        } catch (const XmlError& error) {
            EXPECT_EQ(error.line(), 1) << testing::PrintToString(xml);
        }
    }
    const XmlTree referenced = parseXml("<a b='1&#0;2'>3&#0;4</a>");
    EXPECT_EQ(referenced.root().attributeValue(0).front(), '1');
    EXPECT_EQ(referenced.root().content().front(), '3');
}

TEST(ParseXml, StandsAnyCutOfAFile) {
    const std::string xml =
        "<?xml version='1.0'?><a b='1&amp;2'>x<!-- c --><![CDATA[d]]>&#228;<e/></a>";
    for (std::size_t length = 0; length < xml.size(); ++length) {
        EXPECT_THROW((void)parseXml(xml.substr(0, length)), XmlError) << xml.substr(0, length);
    }
    EXPECT_EQ(parseXml(xml).root().content(), "xd\xC3\xA4");
}

TEST(ParseXml, StandsBytesThatAreNoText) {
    const XmlTree tree = parseXml("<a b='\xFF\xC3'>\x80\xE4\xF0</a>");
    EXPECT_EQ(tree.root().content(), "\x80\xE4\xF0");
    EXPECT_EQ(tree.root().attributeValue(0), "\xFF\xC3");
}

TEST(ParseFragment, AppendsItsElementsUnderTheParent) {
    XmlTree tree;
    const auto skin = tree.addChild(XmlTree::top, "Skin");
    tree.addChild(skin, "First");
    parseFragmentInto(tree, skin, "<b>1</b> text between <c x='&amp;'/>");
    parseFragmentInto(tree, skin, "");
    parseFragmentInto(tree, skin, "  no elements  ");
    parseFragmentInto(tree, skin, "<d/>");
    EXPECT_EQ(tree, parseXml("<Skin><First/><b>1</b><c x='&amp;'/><d/></Skin>"));
}

TEST(ParseFragment, KeepsTextAsItStands) {
    for (const char* xml : {"<m> </m>", "<m> x </m>", "<m>\r\n\t<a> 1 </a>\r\n</m>",
                            "<m> <![CDATA[ x ]]> <a/> y </m>"}) {
        XmlTree tree;
        parseFragmentInto(tree, XmlTree::top, xml);
        EXPECT_EQ(tree, parseXml(xml));
    }
}

TEST(ParseFragment, TellsWhatIsWrongAndWhere) {
    XmlTree tree;
    try {
        parseFragmentInto(tree, XmlTree::top, "<a>\n<b>\n</a>");
        ADD_FAILURE() << "it was parsed";
    } catch (const XmlError& error) {
        EXPECT_STREQ(error.what(), "an end tag does not match its start tag");
        EXPECT_EQ(error.line(), 3);
    }
    EXPECT_TRUE(tree.empty());
}

TEST(LineAt, CountsLineFeedsFromOne) {
    const std::string_view text = "a\nbc\r\n\nd";
    constexpr std::array<int, 9> lines = {1, 1, 2, 2, 2, 2, 3, 4, 4};
    for (std::size_t offset = 0; offset < lines.size(); ++offset) {
        EXPECT_EQ(lineAt(text, offset), lines.at(offset)) << offset;
    }
    EXPECT_EQ(lineAt("", 0), 1);
}

} // namespace
} // namespace tarvel
