// The XML tree: reading nodes, building, copying, comparing, and its form as a file.
#include "support/xml_support.h"
#include "text/xml_node.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace tarvel {
namespace {

using test::depthOf;
using test::nestedXml;
using test::parse;

constexpr int veryDeep = 100'000;
const std::string declaration = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n";

// A tree with copies of the top-level elements.
XmlTree copyOf(const XmlTree& tree) {
    XmlTree copy;
    for (const XmlNode element : tree.document().children()) {
        copy.addCopy(XmlTree::top, element);
    }
    return copy;
}

TEST(XmlNode, IsEmptyByDefault) {
    const XmlNode none;
    EXPECT_FALSE(none);
    EXPECT_EQ(none.tag(), "");
    EXPECT_EQ(none.content(), "");
    EXPECT_EQ(none.attributeCount(), 0U);
    EXPECT_EQ(none.childCount(), 0U);
    EXPECT_FALSE(none.child(0));
    EXPECT_FALSE(none.firstChild());
    EXPECT_FALSE(none.nextSibling());
    EXPECT_FALSE(none.children().begin() != none.children().end());
}

TEST(XmlNode, GivesTagContentAttributesAndChildrenByIndex) {
    const XmlTree tree = parse("<Skin name='x' Name='y'><A>1</A><B/><A>2</A></Skin>");
    const XmlNode root = tree.root();
    ASSERT_TRUE(root);
    EXPECT_EQ(root.tag(), "Skin");
    EXPECT_EQ(root.content(), "");
    ASSERT_EQ(root.attributeCount(), 2U);
    EXPECT_EQ(root.attributeName(0), "name");
    EXPECT_EQ(root.attributeValue(0), "x");
    EXPECT_EQ(root.attributeName(1), "Name");
    EXPECT_EQ(root.attributeValue(1), "y");
    ASSERT_EQ(root.childCount(), 3U);
    EXPECT_EQ(root.child(0).tag(), "A");
    EXPECT_EQ(root.child(0).content(), "1");
    EXPECT_EQ(root.child(1).tag(), "B");
    EXPECT_EQ(root.child(1).content(), "");
    EXPECT_EQ(root.child(2).content(), "2");
    EXPECT_FALSE(root.child(3));
    EXPECT_FALSE(root.nextSibling());
    EXPECT_EQ(root.firstChild().nextSibling().tag(), "B");
}

TEST(XmlNode, IteratesItsChildrenInOrder) {
    const XmlTree tree = parse("<a><x/><y><deeper/></y><z/></a>");
    std::vector<std::string> tags;
    for (const XmlNode child : tree.root().children()) {
        tags.emplace_back(child.tag());
    }
    EXPECT_EQ(tags, (std::vector<std::string>{"x", "y", "z"}));
}

TEST(XmlTree, IsEmptyWithoutElements) {
    const XmlTree tree;
    EXPECT_TRUE(tree.empty());
    EXPECT_FALSE(tree.root());
    EXPECT_TRUE(tree.document());
    EXPECT_EQ(tree.document().childCount(), 0U);
    EXPECT_EQ(tree, XmlTree("text that no element names"));
    EXPECT_TRUE(XmlTree("text").empty());
    EXPECT_EQ(tree.fileText(), declaration);
}

TEST(XmlTree, IsBuiltNodeByNode) {
    XmlTree tree;
    const auto skin = tree.addChild(XmlTree::top, "Skin");
    const auto a = tree.addChild(skin, "A", "one");
    const auto b = tree.addChild(skin, "B");
    tree.addAttribute(a, "n", "1");
    tree.addChild(a, "Inner", "deep");
    tree.addChild(b, "C");
    EXPECT_FALSE(tree.empty());
    EXPECT_EQ(tree, parse("<Skin><A n='1'>one<Inner>deep</Inner></A><B><C/></B></Skin>"));
}

TEST(XmlTree, KeepsAttributesInOrderWhereverTheyWereAdded) {
    XmlTree tree;
    const auto a = tree.addChild(XmlTree::top, "a");
    const auto b = tree.addChild(a, "b");
    tree.addAttribute(a, "one", "1");
    tree.addAttribute(b, "x", "8");
    tree.addAttribute(a, "two", "2");
    tree.addAttribute(b, "y", "9");
    tree.addAttribute(a, "three", "3");
    tree.addAttribute(a, "four", "4");
    EXPECT_EQ(tree, parse("<a one='1' two='2' three='3' four='4'><b x='8' y='9'/></a>"));
}

TEST(XmlTree, TakesSpansOfItsOwnText) {
    XmlTree tree("Tagname=value");
    const auto node = tree.addChild(XmlTree::top, {0, 3}, {8, 5});
    tree.addAttribute(node, {3, 4}, {8, 0});
    EXPECT_EQ(tree, parse("<Tag name=''>value</Tag>"));
    const auto more = tree.addText("More");
    tree.addChild(node, more, {});
    EXPECT_EQ(tree, parse("<Tag name=''>value<More/></Tag>"));
    EXPECT_EQ(tree.text(), "Tagname=valueMore");
}

TEST(XmlTree, ChangesTagAndContent) {
    XmlTree tree = parse("<a x='1'>old<b/></a>");
    const auto node = XmlTree::top + 1;
    tree.setTag(node, "renamed");
    tree.setContent(node, "new");
    EXPECT_EQ(tree, parse("<renamed x='1'>new<b/></renamed>"));
    tree.setContent(node, "");
    EXPECT_EQ(tree, parse("<renamed x='1'><b/></renamed>"));
}

TEST(XmlTree, CopiesElementsWithAllBelowThem) {
    const XmlTree source = parse("<s><m t='1' u='2'>c<p>1</p><q><r z='3'/></q></m><after/></s>");
    XmlTree target;
    const auto list = target.addChild(XmlTree::top, "list");
    target.addCopy(list, source.root().child(0));
    target.addCopy(list, source.root().child(1));
    EXPECT_EQ(target, parse("<list><m t='1' u='2'>c<p>1</p><q><r z='3'/></q></m><after/></list>"));
}

TEST(XmlTree, LosesTheIndentationOfElementsWithChildrenInACopy) {
    struct Case {
        std::string xml;
        std::string copied;
    };
    const Case cases[] = {
        {"<m>\r\n\t<a>1</a>\r\n\t\r\n</m>", "<m><a>1</a></m>"},
        {"<m> <a> 1 </a> </m>", "<m><a> 1 </a></m>"},
        {"<m> </m>", "<m> </m>"},
        {"<m a=' '> x </m>", "<m a=' '> x </m>"},
        {"<m>\n text\n <a/> more\n</m>", "<m>text\n  more<a/></m>"},
        {"<m> <a> <b> <c> x </c> </b> </a> </m>", "<m><a><b><c> x </c></b></a></m>"},
        {"<m> <a/> </m><n> <b/> </n>", "<m><a/></m><n><b/></n>"},
        {"<m> <![CDATA[ x ]]> <a/></m>", "<m>x<a/></m>"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(copyOf(parse(c.xml)), parse(c.copied)) << c.xml;
    }
}

TEST(XmlTree, RenamesTagsOfOneSpelling) {
    XmlTree tree = parse("<m><M x='m'>m<m/></M><mm/><m><m/></m></m>");
    tree.renameTags("m", "Longer");
    EXPECT_EQ(tree,
              parse("<Longer><M x='m'>m<Longer/></M><mm/><Longer><Longer/></Longer></Longer>"));
    const XmlTree before = tree;
    tree.renameTags("absent", "x");
    EXPECT_EQ(tree, before);
}

TEST(XmlTree, CopiesElementsOfItself) {
    XmlTree tree = parse("<a><b n='1'>text<c/></b></a>");
    tree.addCopy(1, tree.root().child(0));
    EXPECT_EQ(tree, parse("<a><b n='1'>text<c/></b><b n='1'>text<c/></b></a>"));
    tree.addCopy(XmlTree::top + 1, tree.root());
    EXPECT_EQ(tree, parse("<a><b n='1'>text<c/></b><b n='1'>text<c/></b>"
                          "<a><b n='1'>text<c/></b><b n='1'>text<c/></b></a></a>"));
}

TEST(XmlTree, IsAValueOfItsOwn) {
    XmlTree tree = parse("<a>short</a>");
    XmlTree copy = tree;
    copy.setContent(1, "changed");
    EXPECT_EQ(tree, parse("<a>short</a>"));
    EXPECT_EQ(copy, parse("<a>changed</a>"));
    copy.shrinkToFit();
    EXPECT_EQ(copy, parse("<a>changed</a>"));
    const XmlTree moved = std::move(copy);
    EXPECT_EQ(moved, parse("<a>changed</a>"));
    tree = moved;
    EXPECT_EQ(tree, moved);
}

TEST(XmlTree, ComparesElementsAttributesAndContents) {
    const std::string base = "<a x='1' y='2'><b>t</b><c/></a>";
    EXPECT_EQ(parse(base), parse("<a x=\"1\"  y=\"2\" ><b><![CDATA[t]]></b><c></c></a>"));
    for (const char* other :
         {"<A x='1' y='2'><b>t</b><c/></A>", "<a x='1'><b>t</b><c/></a>",
          "<a y='2' x='1'><b>t</b><c/></a>", "<a x='1' y='3'><b>t</b><c/></a>",
          "<a x='1' z='2'><b>t</b><c/></a>", "<a x='1' y='2'><b>T</b><c/></a>",
          "<a x='1' y='2'><b>t</b></a>", "<a x='1' y='2'><c/><b>t</b></a>",
          "<a x='1' y='2'><b>t</b><c/><d/></a>", "<a x='1' y='2'><b>t<c/></b></a>",
          "<a x='1' y='2'><b>t</b><c/></a><a/>", "<a x='1' y='2'> <b>t</b><c/></a>"}) {
        EXPECT_FALSE(parse(base) == parse(other)) << other;
        EXPECT_FALSE(parse(other) == parse(base)) << other;
    }
    EXPECT_FALSE(parse("<a/>") == XmlTree());
    EXPECT_FALSE(XmlTree() == parse("<a/>"));
}

TEST(FileText, PutsStartTagsOnLinesOfTheirOwn) {
    struct Case {
        std::string xml;
        std::string lines;
    };
    const Case cases[] = {
        {"<a/>", "<a></a>\n"},
        {"<a>text</a>", "<a>text</a>\n"},
        {"<a x='1' y=''/>", "<a x=\"1\" y=\"\"></a>\n"},
        {"<a><b/></a>", "<a>\n<b></b>\n\n</a>\n"},
        {"<a><b>1</b><c d='2'><e/></c></a>",
         "<a>\n<b>1</b>\n<c d=\"2\">\n<e></e>\n\n</c>\n\n</a>\n"},
        {"<a>text<b/></a>", "<a>text\n<b></b>\n\n</a>\n"},
        {"<a/><b><c/></b>", "<a></a>\n<b>\n<c></c>\n\n</b>\n"},
        {"<a> </a>", "<a> </a>\n"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(parse(c.xml).fileText(), declaration + c.lines) << c.xml;
    }
}

TEST(FileText, EscapesWhatWouldNotComeBack) {
    XmlTree tree;
    const auto node = tree.addChild(XmlTree::top, "a", "<b> & \"q\" 'r'\r\n\t\xC3\xA4");
    tree.addAttribute(node, "v", "<b> & \"q\" 'r'\r\n\t\xC3\xA4");
    EXPECT_EQ(tree.fileText(),
              declaration + "<a v=\"&lt;b&gt; &amp; &quot;q&quot; 'r'&#13;&#10;&#9;\xC3\xA4\">"
                            "&lt;b&gt; &amp; \"q\" 'r'&#13;&#10;\t\xC3\xA4</a>\n");
    EXPECT_EQ(parse(tree.fileText()), tree);
}

TEST(FileText, ReadsBackAndIsCopiedToTheSameTree) {
    for (const char* xml :
         {"<m Type='Fade' Target='[Alpha]'><Range><Min>1</Min><Max> 2 </Max></Range></m>",
          "<m/><m a='1'/>", "<m>text<b/></m>", "<m><![CDATA[<&>]]></m>", "<m a='&#10; &quot;'/>",
          "<m><a><b><c/></b></a></m>"}) {
        const XmlTree tree = parse(xml);
        const XmlTree back = copyOf(parse(tree.fileText()));
        EXPECT_EQ(back, tree);
        EXPECT_EQ(back.fileText(), tree.fileText());
    }
}

TEST(XmlTree, StandsVeryDeepNesting) {
    const XmlTree tree = parse(nestedXml(veryDeep, "x"));
    EXPECT_EQ(depthOf(tree), veryDeep);
    XmlTree copy;
    copy.addCopy(XmlTree::top, tree.root());
    EXPECT_TRUE(copy == tree);
    copy.setContent(1, "other");
    EXPECT_FALSE(copy == tree);
    EXPECT_EQ(depthOf(parse(tree.fileText())), veryDeep);
}

TEST(XmlTree, StandsVeryManyChildren) {
    XmlTree tree;
    const auto root = tree.addChild(XmlTree::top, "a");
    for (int i = 0; i < veryDeep; ++i) {
        tree.addAttribute(tree.addChild(root, "b", "c"), "d", "e");
    }
    EXPECT_EQ(tree.root().childCount(), static_cast<std::size_t>(veryDeep));
    EXPECT_TRUE(parse(tree.fileText()).root().child(veryDeep - 1));
    XmlTree copy;
    copy.addCopy(XmlTree::top, tree.root());
    EXPECT_TRUE(copy == tree);
}

} // namespace
} // namespace tarvel
