// The three ways to read a skin's text.
#include "skinfile/skin_text.h"
#include "support/line_ends.h"

#include <gtest/gtest.h>

namespace tarvel {

namespace {

// A written skin with one line in the place of every kind of text.
std::string written(const std::string& information, const std::string& resource,
                    const std::string& opening, const std::string& inside) {
    return withCrLf("<Skin name=\"n\">\n\t<Information>\n" + information +
                    "\t</Information>\n\t<Resource Type=\"Image\" Name=\"r\">\n" + resource +
                    "\t</Resource>\n\t<Layout Screen=\"Menu\">\n" + opening + inside +
                    "\t\t\t<Pos L=\"1\" T=\"2\" W=\"3\" H=\"4\"/>\n\t\t</LayoutElement>\n"
                    "\t</Layout>\n</Skin>\n\n");
}

std::string plainSkin() {
    return written("\t\t<Author>me</Author>\n", "\t\t<File>Media\\a.png</File>\n",
                   "\t\t<LayoutElement Type=\"Text\">\n", "\t\t\t<Constant>c</Constant>\n");
}

XmlNode elementIn(const XmlTree& tree) {
    return tree.root().child(2).child(0);
}

} // namespace

TEST(SkinText, WrittenLinesKeepTheirValuesVerbatim) {
    for (const std::string value :
         {"", " ", "plain", "a & b", "&amp;", "&#38; &#65;", "<b>x</b>", "</Constant>", "a > b",
          "\"q\" 'r'", "]]>", "<!-- no comment -->", "\ttab ", "&lt;", "100%"}) {
        const std::string text =
            written("\t\t<Author>" + value + "</Author>\n", "\t\t<Entry>" + value + "</Entry>\n",
                    "\t\t<LayoutElement Type=\"Text\" Source=\"" + value + "\">\n",
                    "\t\t\t<Constant>" + value + "</Constant>\n");
        SkinTextNotes notes;
        const XmlTree tree = readSkinText(text, notes);
        EXPECT_TRUE(notes.writerForm) << value;
        EXPECT_EQ(tree.root().child(0).child(0).content(), value);
        EXPECT_EQ(tree.root().child(1).child(0).content(), value);
        EXPECT_EQ(elementIn(tree).attributeValue(1), value);
        EXPECT_EQ(elementIn(tree).child(0).content(), value);
    }
}

TEST(SkinText, WrittenLinesBecomeTheSameTreeAsXml) {
    SkinTextNotes notes;
    const XmlTree byForms = readSkinText(plainSkin(), notes);
    EXPECT_TRUE(notes.writerForm);
    const XmlTree asXml = readSkinText("<!-- no form -->" + plainSkin(), notes);
    EXPECT_FALSE(notes.writerForm);
    // Only the white space between elements differs.
    EXPECT_EQ(byForms.root().tag(), asXml.root().tag());
    EXPECT_EQ(byForms.root().childCount(), asXml.root().childCount());
    EXPECT_EQ(elementIn(byForms).child(1).attributeName(3), "H");
    EXPECT_EQ(elementIn(byForms).child(1).attributeValue(3), "4");
    EXPECT_EQ(elementIn(byForms).attributeName(0), elementIn(asXml).attributeName(0));
    EXPECT_EQ(elementIn(byForms).child(1).attributeCount(),
              elementIn(asXml).child(1).attributeCount());
}

TEST(SkinText, TagsThatAreNoXmlNames) {
    SkinTextNotes notes;
    const std::string fields = "\t\t<R&D>x</R&D>\n\t\t<a\"b=c>y</a\"b=c>\n";
    const std::string text =
        written(fields, "\t\t<Entry>e</Entry>\n", "\t\t<LayoutElement Type=\"Box\">\n", "");
    const XmlTree tree = readSkinText(text, notes);
    EXPECT_TRUE(notes.writerForm);
    EXPECT_EQ(tree.root().child(0).child(0).tag(), "R&D");
    EXPECT_EQ(tree.root().child(0).child(1).tag(), "a\"b=c");
    // The same in a file that was edited by hand.
    const XmlTree mended = readSkinText(text + "<!-- edited -->\r\n", notes);
    EXPECT_FALSE(notes.writerForm);
    EXPECT_EQ(mended.root().child(0).child(0).tag(), "R&D");
    EXPECT_EQ(mended.root().child(0).child(1).tag(), "a\"b=c");
    EXPECT_EQ(notes.mendedLines, (std::vector<int>{3, 4}));
}

TEST(SkinText, AFieldCanHaveAnyName) {
    std::string fields;
    std::vector<std::string> names = {
        "/x", "!x",  "?x",  "/",   "!",        "?",   "/Information", "x/",         "2nd",
        "-x", "#1",  "@me", "(x)", "%y",       ".a",  "a+b",          "a*",         "[k]",
        "$",  "a=b", "a;",  "&",   "Resource", "!--", "\u00E9",       "Information"};
    for (const std::string& name : names) {
        fields.append("\t\t<").append(name).append(">a & <b></").append(name).append(">\n");
    }
    const std::string text = written(fields + "\t\t<&#345;>r</&#345;>\n", "\t\t<Entry>e</Entry>\n",
                                     "\t\t<LayoutElement Type=\"Box\">\n", "");
    names.emplace_back("\u0159");
    std::string commented = text;
    commented.insert(commented.find("\t<Resource"), "<!-- edited -->\r\n");
    std::string mixed = text; // by an editor that ends its lines by LF
    mixed.insert(mixed.find("\t\t<2nd>"), "\t\t<!-- edited -->\n");
    for (const std::string& variant : {text, text + "<!-- edited -->\r\n", commented, mixed,
                                       withLineFeeds(text), withLineFeeds(commented)}) {
        SkinTextNotes notes;
        const XmlTree tree = readSkinText(variant, notes);
        EXPECT_EQ(notes.writerForm, variant == text);
        const XmlNode information = tree.root().child(0);
        ASSERT_EQ(information.childCount(), names.size()) << variant;
        for (std::size_t i = 0; i < names.size(); ++i) {
            EXPECT_EQ(information.child(i).tag(), names[i]);
            EXPECT_EQ(information.child(i).content(), i + 1 < names.size() ? "a & <b>" : "r");
        }
        EXPECT_EQ(tree.root().child(1).child(0).content(), "e");
    }
}

TEST(SkinText, AFieldThatLooksLikeACommentIsKept) {
    for (const std::string name : {"!--", "!--x"}) {
        std::string field("\t\t<");
        field.append(name).append(">v</").append(name).append(">\n");
        const std::string text =
            written(field, "\t\t<Entry>e</Entry>\n", "\t\t<LayoutElement Type=\"Box\">\n", "");
        for (const std::string& variant : {text + "<!-- edited -->\r\n", withLineFeeds(text)}) {
            SkinTextNotes notes;
            const XmlTree tree = readSkinText(variant, notes);
            EXPECT_EQ(notes.mendedLines, std::vector<int>{3});
            ASSERT_EQ(tree.root().child(0).childCount(), 1U) << name;
            EXPECT_EQ(tree.root().child(0).child(0).tag(), name);
        }
    }
    SkinTextNotes notes;
    const XmlTree tree = readSkinText("<Skin name='n'><!-- </!-- --><a>&amp;</a></Skin>", notes);
    EXPECT_EQ(tree.root().child(0).content(), "&");
}

TEST(SkinText, AnAddedLineIsCountedInWhatWasMended) {
    const std::string text =
        written("<!-- one -->\n\t\t<a>1 < 2</a>\n", "\t\t<Entry>e</Entry>\n",
                "\t\t<LayoutElement Type=\"Text\">\n", "\t\t\t<Constant>x\n<y</Constant>\n");
    std::string mixed = text;
    mixed.erase(mixed.find("\r\n", mixed.find("one")), 1);      // an LF that ends a line
    mixed.erase(mixed.find("\r\n", mixed.find("Constant")), 1); // and one within a value
    SkinTextNotes notes;
    const XmlTree tree = readSkinText(mixed, notes);
    EXPECT_EQ(notes.mendedLines, (std::vector<int>{4, 11}));
    EXPECT_EQ(tree.root().child(0).child(0).content(), "1 < 2");
    EXPECT_EQ(elementIn(tree).child(0).content(), "x\n<y");
}

TEST(SkinText, ALastLineWithoutItsEndIsNoneOfTheWriters) {
    std::string text = written("\t\t<Author>1 < 2</Author>\n", "\t\t<Entry>e</Entry>\n",
                               "\t\t<LayoutElement Type=\"Box\">\n", "");
    SkinTextNotes notes;
    (void)readSkinText(text, notes);
    EXPECT_TRUE(notes.writerForm);
    text.resize(text.find("</Skin>") + std::string_view("</Skin>").size());
    const XmlTree tree = readSkinText(text, notes);
    EXPECT_FALSE(notes.writerForm);
    EXPECT_EQ(notes.mendedLines, std::vector<int>{3});
    EXPECT_EQ(tree.root().child(0).child(0).content(), "1 < 2");
}

TEST(SkinText, ReferencesBeyondAsciiAreDecoded) {
    const std::string value = "&#8364; &#xE4; &#65; &#1114112; &#55296; &# &#x; &#228";
    SkinTextNotes notes;
    const XmlTree tree =
        readSkinText(written("\t\t<Author>" + value + "</Author>\n", "\t\t<Entry>e</Entry>\n",
                             "\t\t<LayoutElement Type=\"Text\" Source=\"&#8364;&#8364;\">\n", ""),
                     notes);
    EXPECT_TRUE(notes.writerForm);
    EXPECT_EQ(tree.root().child(0).child(0).content(),
              "\u20AC \u00E4 &#65; &#1114112; &#55296; &# &#x; &#228");
    EXPECT_EQ(elementIn(tree).attributeValue(1), "\u20AC\u20AC");
    EXPECT_EQ(tree.root().child(1).child(0).content(), "e");
}

TEST(SkinText, ModifierBlocksAreXml) {
    SkinTextNotes notes;
    const std::string block =
        "\t\t\t<Modifier Type=\"a &amp; b\">\n\t\t\t\t<Range X=\"1\"></Range>\n"
        "\t\t\t\t\n\t\t\t</Modifier>\n\t\t\t\n"
        "\t\t\t<Modifier Type=\"plain\"></Modifier>\n\t\t\t\n";
    const XmlTree tree = readSkinText(
        written("", "\t\t<Entry>e</Entry>\n", "\t\t<LayoutElement Type=\"Box\">\n", block), notes);
    EXPECT_TRUE(notes.writerForm);
    const XmlNode element = elementIn(tree);
    EXPECT_EQ(element.childCount(), 3U);
    EXPECT_EQ(element.child(0).attributeValue(0), "a & b");
    EXPECT_EQ(element.child(0).child(0).attributeName(0), "X");
    EXPECT_EQ(element.child(1).attributeValue(0), "plain");
    EXPECT_EQ(element.child(2).tag(), "Pos");
}

TEST(SkinText, NamesInModifiersCanHaveReferences) {
    const std::string block =
        "\t\t\t<Modifier Type=\"&#345; &gt;\">\n"
        "\t\t\t\t<Ra&#345; X=\"&#345;\" &#20013;y=\"'\">5\" &#345; &amp;#345;</Ra&#345;>\n"
        "\t\t\t\t\n\t\t\t</Modifier>\n\t\t\t\n";
    const std::string text = written("\t\t<Author>me</Author>\n", "\t\t<Entry>e</Entry>\n",
                                     "\t\t<LayoutElement Type=\"Box\">\n", block);
    for (const std::string& variant : {text, text + "<!-- edited -->\r\n", withLineFeeds(text)}) {
        SkinTextNotes notes;
        const XmlTree tree = readSkinText(variant, notes);
        EXPECT_EQ(notes.writerForm, variant == text);
        EXPECT_EQ(notes.mendedLines, variant == text ? std::vector<int>{} : std::vector<int>{11});
        const XmlNode modifier = elementIn(tree).child(0);
        EXPECT_EQ(modifier.attributeValue(0), "\u0159 >");
        const XmlNode range = modifier.child(0);
        EXPECT_EQ(range.tag(), "Ra\u0159");
        EXPECT_EQ(range.attributeValue(0), "\u0159");
        EXPECT_EQ(range.attributeName(1), "\u4E2Dy");
        EXPECT_EQ(range.attributeValue(1), "'");
        EXPECT_EQ(range.content(), "5\" \u0159 &#345;");
    }
}

TEST(SkinText, LinesOfModifiersStayXmlWhereOthersAreMended) {
    const std::string block = "\t\t\t<Modifier Type=\"closed\"/>\n"
                              "\t\t\t<MODIFIER Type=\"outer\">\n"
                              "\t\t\t\t<Modifier Type=\"inner\"></Modifier>\n"
                              "\t\t\t\t<Condition>a &amp; b</Condition>\n"
                              "\t\t\t</MODIFIER>\n"
                              "\t\t\t<Condition>a &amp; b < c</Condition>\n";
    const std::string text =
        written("\t\t<Author>a < b</Author>\n", "\t\t<Entry>e</Entry>\n",
                "\t\t<LayoutElement Type=\"Text\" Source=\"<Modifier >\">\n", block);
    SkinTextNotes notes;
    const XmlTree tree = readSkinText(withLineFeeds(text), notes);
    EXPECT_EQ(notes.mendedLines, (std::vector<int>{3, 9, 15}));
    const XmlNode element = elementIn(tree);
    EXPECT_EQ(element.attributeValue(1), "<Modifier >");
    EXPECT_EQ(element.child(1).child(1).content(), "a & b");
    EXPECT_EQ(element.child(2).content(), "a &amp; b < c");
}

TEST(SkinText, AModifierReachesToTheEndOfItsElement) {
    const std::string text = "<Skin name=\"n\">\n<Layout Screen=\"Menu\">\n"
                             "<LayoutElement Type=\"Box\">\n"
                             "<Modifier Type=\"a > b\"/>\n"
                             "</LayoutElement>\n"
                             "<LayoutElement Type=\"Text\">\n"
                             "<Constant>a < b</Constant>\n</LayoutElement>\n</Layout>\n</Skin>\n";
    SkinTextNotes notes;
    const XmlTree tree = readSkinText(text, notes);
    EXPECT_EQ(notes.mendedLines, std::vector<int>{7});
    const XmlNode layout = tree.root().child(0);
    EXPECT_EQ(layout.child(0).child(0).attributeValue(0), "a > b");
    EXPECT_EQ(layout.child(1).child(0).content(), "a < b");
}

TEST(SkinText, ATagListEndsOnItsLine) {
    const std::string text = "<Skin name=\"n\">\n<Information><a>x</a></Information>\n"
                             "<Resource Type=\"Image\" Name=\"r\"/>\n"
                             "<Resource Type=\"Image\" Name=\"r\"><File>f</File></Resource>\n"
                             "<Other>&amp;</Other>\n"
                             "<Layout Screen=\"Menu\">\n<LayoutElement Type=\"Text\">\n"
                             "<Constant>a < b</Constant>\n</LayoutElement>\n</Layout>\n</Skin>\n";
    SkinTextNotes notes;
    const XmlTree tree = readSkinText(text, notes);
    EXPECT_EQ(notes.mendedLines, std::vector<int>{8});
    EXPECT_EQ(tree.root().child(3).content(), "&");
}

TEST(SkinText, ACrLfWithinAValueBecomesALineFeed) {
    SkinTextNotes notes;
    const XmlTree tree = readSkinText("<Skin name='a&#13;&#10;b'><c>1&#xD;\n2&#13;3&#13;</c>"
                                      "<d>&#13;&#13;&#10;&#10;&#13;<!-- -->\n</d></Skin>",
                                      notes);
    EXPECT_EQ(tree.root().attributeValue(0), "a\nb");
    EXPECT_EQ(tree.root().child(0).content(), "1\n2\r3\r");
    EXPECT_EQ(tree.root().child(1).content(), "\n\n\n");
}

TEST(SkinText, LinesWithoutAFormMakeItXml) {
    const std::string good = plainSkin();
    struct Case {
        const char* from;
        const char* to;
    };
    for (const auto& [from, to] : std::initializer_list<Case>{
             {"<Pos L=\"1\"", "<Pos  L=\"1\""},
             {"\t\t</LayoutElement>", "\t\t</LayoutElement >"},
             {"\t\t\t<Pos", "    <Pos"},
             {"</Skin>\r\n\r\n", "</Skin>\n"},
             {"</Skin>\r\n\r\n", "</Skin>"},
             {"<Layout Screen=\"Menu\">", "<Layout Screen='Menu'>"},
             {"L=\"1\"", "L=\"one\""},
         }) {
        std::string text = good;
        text.replace(text.find(from), std::string_view(from).size(), to);
        SkinTextNotes notes;
        const XmlTree tree = readSkinText(text, notes);
        EXPECT_FALSE(notes.writerForm) << to;
        EXPECT_EQ(tree.root().attributeValue(0), "n") << to;
    }
}

TEST(SkinText, MendsWrittenLinesInAFileThatIsNoXml) {
    std::string text = written("\t\t<Author>a < b &amp; c</Author>\n", "\t\t<Entry>e</Entry>\n",
                               "\t\t<LayoutElement Type=\"Text\" Source=\"x\"y<\">\n",
                               "\t\t\t<Constant></Constant> & \"</Constant>\n");
    text.insert(text.find("\t<Resource"), "\t<Note>by &amp; hand</Note>\r\n");
    for (const bool unixEnds : {false, true}) {
        SkinTextNotes notes;
        const XmlTree tree = readSkinText(unixEnds ? withLineFeeds(text) : text, notes);
        EXPECT_EQ(notes.mendedLines, (std::vector<int>{3, 10, 11}));
        EXPECT_EQ(tree.root().child(0).child(0).content(), "a < b &amp; c"); // verbatim
        EXPECT_EQ(tree.root().child(1).content(), "by & hand");              // XML
        const XmlNode element = tree.root().child(3).child(0);
        EXPECT_EQ(element.attributeValue(1), "x\"y<");
        EXPECT_EQ(element.child(0).content(), "</Constant> & \"");
    }
}

TEST(SkinText, NestedColoursOnOneLineStayXmlWhereLinesAreMended) {
    const std::string text = "<Skin name=\"a\"b<\">\n<Layout Screen=\"Menu\">\n"
                             "<LayoutElement Type=\"Text\">\n"
                             "<TextColor><Color>0xFF010203</Color></TextColor>\n"
                             "</LayoutElement>\n</Layout>\n</Skin>\n";
    SkinTextNotes notes;
    const XmlTree tree = readSkinText(text, notes);
    EXPECT_EQ(notes.mendedLines, std::vector<int>{1});
    EXPECT_EQ(tree.root().child(0).child(0).child(0).child(0).content(), "0xFF010203");
}

TEST(SkinText, WhatCannotBeReadIsDescribedWithItsLine) {
    struct Case {
        std::string text;
        const char* problem;
        int line;
    };
    const std::string cut = plainSkin().substr(0, plainSkin().find("</Layout>"));
    for (const auto& [text, problem, line] : std::vector<Case>{
             {"", "the file is empty", 1},
             {" \r\n\t", "the file is empty", 1},
             {std::string("<a>\nb\0c", 7), "it is not a text file", 2},
             {"just words\n", "no XML element is in it", 1},
             {"<a>\n<b>\n</a>\n</b>", "an end tag does not match its start tag", 3},
             {cut, "it ends before its elements are closed", 13},
             {"<a>\n<b", "it ends before its elements are closed", 2},
             {"<a>\n<b <", "a broken start element tag", 2},
             {"<a x=\"1>\n</a>", "a broken element attribute", 1},
         }) {
        SkinTextNotes notes;
        try {
            (void)readSkinText(text, notes);
            ADD_FAILURE() << "read: " << text;
        } catch (const XmlError& error) {
            EXPECT_STREQ(error.what(), problem) << text;
            EXPECT_EQ(error.line(), line) << text;
        }
    }
}

TEST(SkinText, EveryCutAndEveryChangedByteIsReadOrRefused) {
    const std::string good = plainSkin();
    for (std::size_t i = 0; i < good.size(); ++i) {
        for (std::string text : {good.substr(0, i), good}) {
            if (text.size() == good.size()) {
                text[i] = static_cast<char>(text[i] ^ 0x15);
            }
            SkinTextNotes notes;
            try {
                const XmlTree tree = readSkinText(text, notes);
                EXPECT_TRUE(tree.root());
            } catch (const XmlError& error) {
                EXPECT_GE(error.line(), 1);
            }
        }
    }
}

} // namespace tarvel
