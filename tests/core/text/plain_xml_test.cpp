// Plain XML: the same tree as parseXml's where it takes a text, and no trace where it does not.
#include "text/plain_xml.h"
#include "text/xml_parse.h"

#include <gtest/gtest.h>

#include <string>

namespace tarvel {
namespace {

// A tree with an element and a text of its own, and the text to parse behind that.
struct Fixture {
    explicit Fixture(const std::string& xml)
        : tree("before " + xml) {
        parent = tree.addChild(XmlTree::top, "parent");
        tree.addAttribute(tree.addChild(parent, "first", "kept"), "a", "1");
        from = std::string("before ").size();
        to = from + xml.size();
    }
    bool parse() { return PlainXmlReader().parse(tree, parent, from, to); }

    XmlTree tree;
    XmlTree::Index parent = 0;
    std::size_t from = 0;
    std::size_t to = 0;
};

XmlTree expectedTree(const std::string& xml) {
    XmlTree tree;
    const auto parent = tree.addChild(XmlTree::top, "parent");
    tree.addAttribute(tree.addChild(parent, "first", "kept"), "a", "1");
    const XmlTree parsed = parseXml("<!DOCTYPE x>" + xml); // which is not plain
    // Not addCopy, which drops indentation.
    const auto add = [&tree](const auto& self, XmlTree::Index under, XmlNode node) -> void {
        const auto copy = tree.addChild(under, node.tag(), node.content());
        for (std::size_t i = 0; i < node.attributeCount(); ++i) {
            tree.addAttribute(copy, node.attributeName(i), node.attributeValue(i));
        }
        for (const XmlNode child : node.children()) {
            self(self, copy, child);
        }
    };
    for (const XmlNode node : parsed.document().children()) {
        add(add, parent, node);
    }
    return tree;
}

TEST(PlainXml, GivesTheSameTreeAsTheGeneralParser) {
    for (const std::string& xml : std::initializer_list<std::string>{
             "<a/>",
             "<a />",
             "<a></a>",
             "<a\n></a\r\n>",
             "<a/><b/>",
             " \r\n<a/>\t",
             "<a>text</a>",
             "<a> </a>",
             "<a>\r\n\t</a>",
             "<a>l1\r\nl2\rl3\nl4\r</a>",
             "<a>\r<!-- x -->\n</a>",
             "<a> x <b> y </b> z <b/>\r\n</a>",
             "<a><b><c>1</c>2</b>3</a>",
             "<a>&amp;&lt;&gt;&quot;&apos;</a>",
             "<a>&auml; &unknown; &; & && &amp &Amp;</a>",
             "<a>R&D</a>",
             "<a>x > y ]]></a>",
             "<a>\xC3\xA4\xFF</a>",
             "<a x=\"1\" y='2'/>",
             "<a x = '1'\n\ty='2' />",
             "<a x='1' X='2' x='3'></a>",
             "<a x=''/>",
             "<a x=' \" > / = ' y=\"'\"/>",
             "<a x='&lt;&amp;&quot;' y='R&D &'/>",
             "<a x='\xC3\xA4'/>",
             "<A.b-c:d_9 _x.='1'></A.b-c:d_9>",
             "<!-- a --><a><!----><!-- <b> -- > --></a><!-- c -->",
             "<a>&amp;<b k='&gt;'>&lt;</b>&amp;<b>\r\n</b></a>",
             "<a>" + std::string(5000, 'x') + "&amp;</a>",
         }) {
        Fixture fixture(xml);
        EXPECT_TRUE(fixture.parse()) << xml;
        EXPECT_EQ(fixture.tree, expectedTree(xml)) << xml;
    }
}

TEST(PlainXml, LeavesTheRestAloneAndTheTreeAsItWas) {
    for (const std::string& xml : std::initializer_list<std::string>{
             // XML, but not plain.
             "<a><![CDATA[x]]></a>",
             "<!DOCTYPE a><a/>",
             "<a/><?pi x?>",
             "<a>&#65;</a>",
             "<a x='&#65;'/>",
             "<\xC3\xA4/>",
             "<a\xC3\xA4/>",
             "<a></a\xC3\xA4>",
             "<a \xC3\xA4='1'/>",
             "<a x='1\n2'/>",
             "<a x='1\t2'/>",
             "<a x='<'/>",
             "text<a/>",
             "<a/>text",
             // No XML.
             "<a>",
             "<a><b></a>",
             "</a>",
             "<a></b>",
             "<a></ab>",
             "<ab></a>",
             "<a></a",
             "<a",
             "<",
             "<a><",
             "<a></",
             "<a/",
             "<a / >",
             "<a x/>",
             "<a x=1/>",
             "<a x='1/>",
             "<a x='1'y='2'/>",
             "<a 'x'/>",
             "< a/>",
             "<1/>",
             "<a>1 < 2</a>",
             "<a><!-- open</a>",
             "<a><!- x -></a>",
             "<a>one</a><b>\r\n&amp;",
         }) {
        Fixture fixture(xml);
        const XmlTree before = fixture.tree;
        const std::string text(before.text());
        EXPECT_FALSE(fixture.parse()) << xml;
        EXPECT_EQ(fixture.tree, before) << xml;
        EXPECT_EQ(fixture.tree.text(), text) << xml;
    }
}

TEST(PlainXml, TakesADeclarationAtTheVeryStart) {
    const std::string xml = "<?xml version='1.0'?>\n<a>1</a>";
    XmlTree tree(xml);
    EXPECT_TRUE(PlainXmlReader().parse(tree, XmlTree::top, 0, xml.size()));
    EXPECT_EQ(tree, parseXml("<a>1</a>"));
    for (const std::string& other :
         std::initializer_list<std::string>{"\n" + xml, "<?xml-x?><a/>", "<?xml ><a/>"}) {
        XmlTree untouched(other);
        EXPECT_FALSE(PlainXmlReader().parse(untouched, XmlTree::top, 0, other.size())) << other;
    }
}

TEST(PlainXml, ReadsNoFurtherThanItIsTold) {
    const std::string xml = "<a><b></b></a>";
    for (std::size_t length = 1; length < xml.size(); ++length) {
        XmlTree tree(xml);
        EXPECT_FALSE(PlainXmlReader().parse(tree, XmlTree::top, 0, length)) << length;
    }
}

TEST(PlainXml, StandsVeryDeepNesting) {
    constexpr int levels = 100'000;
    std::string xml;
    for (int i = 0; i < levels; ++i) {
        xml += "<b>";
    }
    for (int i = 0; i < levels; ++i) {
        xml += "</b>";
    }
    XmlTree tree(xml);
    ASSERT_TRUE(PlainXmlReader().parse(tree, XmlTree::top, 0, xml.size()));
    int depth = 0;
    for (XmlNode node = tree.root(); node; node = node.firstChild()) {
        ++depth;
    }
    EXPECT_EQ(depth, levels);
}

TEST(PlainXml, AReaderCanBeUsedAgain) {
    PlainXmlReader reader;
    XmlTree broken("<a><b>1 2<c>");
    EXPECT_FALSE(reader.parse(broken, XmlTree::top, 0, broken.text().size()));
    XmlTree tree("<a>x</a>");
    EXPECT_TRUE(reader.parse(tree, XmlTree::top, 0, tree.text().size()));
    EXPECT_EQ(tree, parseXml("<a>x</a>"));
}

} // namespace
} // namespace tarvel
