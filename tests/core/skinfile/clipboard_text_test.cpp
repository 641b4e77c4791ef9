// Copied elements as text, and texts that somebody typed.
#include "document/normalised.h"
#include "skinfile/clipboard.h"
#include "skinfile/skin_text.h"
#include "skinfile/skin_writer.h"
#include "support/document_support.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace tarvel {
namespace {

constexpr const char* box =
    R"(<LayoutElement Type="Box"><Color>0xFF010203</Color><Pos L="1" T="2" W="3" H="4"/></LayoutElement>)";

// The row texts of the elements in a text, "" for one that holds none.
std::string rowsOf(std::string_view text, const std::filesystem::path& folder = {}) {
    const auto content = readClipboardText(text, folder);
    if (!content) {
        return "";
    }
    std::string rows;
    for (const Element& element : content->elements) {
        rows += element.label + "|";
    }
    return rows;
}

// One of each kind, with texts that XML would have to escape.
SkinDocument manyKinds() {
    SkinDocument document;
    document.addRes("R&D <b>", "\\pics\\a & b\\<x>.png");
    document.addcRes("<File>::Logo</File>", "logo");
    const auto add = [&](ElementKind kind, ControlKind control, auto&& change) {
        Element element;
        element.elementKind = kind;
        element.elementControl.kind = control;
        if (control == ControlKind::lin) {
            element.elementControl.X2 = 77;
        } else {
            element.elementControl.left = 1.5F;
            element.elementControl.width = 20;
        }
        change(element);
        document.addElement(std::move(element));
    };
    add(ElementKind::Box, ControlKind::box, [](Element& e) {
        e.elementControl.fillStyle = FillStyle::solid;
        e.elementAlpha = 50;
        e.elementTimers = {1, -2, 0, 4};
        e.elementModifiers.edit().addChild(XmlTree::top, "Modifier", "x");
    });
    add(ElementKind::Line, ControlKind::lin, [](Element& e) { e.elementControl.borderColor = 7; });
    add(ElementKind::Image, ControlKind::png, [](Element& e) {
        e.imageSource = "R&D <b>";
        e.elementControl.file = "\\pics\\a & b\\<x>.png";
        e.elementCondition = "ItemNext";
    });
    add(ElementKind::Image, ControlKind::img, [](Element& e) {
        e.imageSource = "::LOGO";
        e.elementControl.picture = PictureContent::programIcon;
    });
    add(ElementKind::Text, ControlKind::txt, [](Element& e) {
        e.textIsConstant = true;
        e.elementControl.caption = "a < b & \"c\"\n</Constant> \u4E2D";
        e.elementControl.textColor = 0xFFFFFF;
    });
    add(ElementKind::Text, ControlKind::txt, [](Element& e) {
        e.elementControl.caption = "Time";
        e.elementControl.textColor = 0x123456;
    });
    add(ElementKind::Menu, ControlKind::qor,
        [](Element& e) { e.menuSettings.edit().itemsShown = 9; });
    return document;
}

ClipboardContent allOf(const SkinDocument& document) {
    std::vector<int> ids;
    for (int id = 1; id <= document.lastElementId(); ++id) {
        ids.push_back(id);
    }
    return copyElements(document, ids);
}

TEST(ClipboardText, IsTheLinesOfASkinFile) {
    SkinDocument document;
    document.addRes("sky", "\\pics\\sky.png");
    document.addcRes("<File>::Logo</File>", "logo");
    document.addRes("barred", "\\etc\\barred.png", true);
    for (const char* source : {"sky", "logo", "barred"}) {
        Element image;
        image.elementKind = ElementKind::Image;
        image.elementControl.kind = ControlKind::png;
        image.imageSource = source;
        image.elementTimers[0] = source[0] == 's' ? 500 : 0;
        document.addElement(std::move(image));
    }
    const auto element = [](const std::string& source, const std::string& tail) {
        return "<LayoutElement Type=\"Image\" Source=\"" + source +
               "\">\r\n\t<Scaling X=\"True\" Y=\"True\"/>\r\n"
               "\t<Pos L=\"0\" T=\"0\" W=\"0\" H=\"0\"/>\r\n" +
               tail + "</LayoutElement>\r\n";
    };
    EXPECT_EQ(clipboardText(allOf(document)),
              "<Resource Type=\"Image\" Name=\"sky\">\r\n\t<File>\\pics\\sky.png</File>\r\n"
              "</Resource>\r\n"
              "<Resource Type=\"Image\" Name=\"logo\">\r\n\t<File>::Logo</File>\r\n"
              "</Resource>\r\n" +
                  element("sky", "\t<Timer Type=\"Delay\">500</Timer>\r\n") + element("logo", "") +
                  element("barred", ""));
}

// The element lines of a text are those of the file, whatever the kind.
TEST(ClipboardText, HasTheElementsAsTheWriterHasThem) {
    const SkinDocument document = manyKinds();
    const std::string text = clipboardText(allOf(document));
    std::string elements = text.substr(text.find("<LayoutElement"));
    SkinWriter writer;
    writer.write(document);
    std::string written;
    for (const char c : writer.xmlText()) {
        if (c != '\t') {
            written += c;
        }
    }
    std::erase(elements, '\t');
    EXPECT_NE(written.find(elements), std::string::npos) << elements;
}

TEST(ClipboardText, ReadsBackWhatASkinFileCarries) {
    const SkinDocument document = manyKinds();
    const ClipboardContent content = allOf(document);
    const auto back = readClipboardText(clipboardText(content));
    ASSERT_TRUE(back);
    EXPECT_EQ(back->resources, content.resources);
    SkinDocument again;
    again.editSettings([&](SkinSettings& settings) { settings.resources = back->resources; });
    for (Element element : back->elements) {
        again.addElement(std::move(element));
    }
    EXPECT_EQ(clipboardText(allOf(again)), clipboardText(content));
    const SkinDocument kept = normalised(document);
    ASSERT_EQ(again.lastElementId(), kept.lastElementId());
    for (int id = 1; id <= kept.lastElementId(); ++id) {
        Element expected = kept.element(id);
        expected.elementControl.file = document.element(id).elementControl.file;
        EXPECT_EQ(again.element(id), expected) << id;
    }
}

// XML would make characters of these.
TEST(ClipboardText, LeavesWhatLooksEscapedAsItIs) {
    SkinDocument document;
    document.addRes("a", "\\pics\\a &amp; b.png");
    Element image;
    image.elementKind = ElementKind::Image;
    image.imageSource = "a";
    document.addElement(std::move(image));
    Element text;
    text.elementKind = ElementKind::Text;
    text.elementControl.kind = ControlKind::txt;
    text.textIsConstant = true;
    text.elementControl.caption = "&lt;b&gt;";
    document.addElement(std::move(text));
    const auto back = readClipboardText(clipboardText(allOf(document)));
    ASSERT_TRUE(back);
    EXPECT_EQ(back->resources, document.settings().resources);
    EXPECT_EQ(back->elements.at(1).elementControl.caption, "&lt;b&gt;");
}

TEST(ClipboardText, IsReadHoweverItIsTyped) {
    const std::string text = box;
    const std::string line = R"(<layoutelement type="line"><pos x1="1"/></layoutelement>)";
    const std::pair<std::string, std::string> cases[] = {
        {text, "Box: Alpha 100|"},
        {"  \n\t" + text + "\n\n", "Box: Alpha 100|"},
        {text + line, "Box: Alpha 100|Line|"},
        {text + "\r\n" + line + "\r\n", "Box: Alpha 100|Line|"},
        {"<?xml version=\"1.0\" encoding=\"windows-1252\"?>\n<!-- mine -->\n" + text,
         "Box: Alpha 100|"},
        {"\xEF\xBB\xBF" + text, "Box: Alpha 100|"},
        {"<Layout Screen='Load'>" + text + "</Layout>", "Box: Alpha 100|"},
        {"<Layout Screen='Load'>" + line + "</Layout>\n<Layout Screen='Title'>" + text +
             "</Layout>",
         "Box: Alpha 100|Line|"}, // by screens
        {"<Skin name='x'><Delays/><Layout Screen='Load'>" + text + "</Layout></Skin>",
         "Box: Alpha 100|"},
        {"<Resource Type='Image' Name='a'><File>::Logo</File></Resource>" + text,
         "Box: Alpha 100|"},
        {"<LayoutElement Type=\"Text\">\n<Constant>a < b & c</Constant>\n<Pos/>\n</LayoutElement>",
         "Text: a < b & c|"},
        {"<LayoutElement Type=\"Text\">\n<Constant>caf\u00E9</Constant>\n<Pos/>\n</LayoutElement>",
         "Text: caf\u00E9|"},
    };
    for (const auto& [typed, rows] : cases) {
        EXPECT_EQ(rowsOf(typed), rows) << typed;
    }
}

TEST(ClipboardText, IsNothingElse) {
    const std::string text = box;
    const std::string cases[] = {
        "",
        "  ",
        "Hello",
        "5 < 6",
        "How do I write " + text,
        "<!-- " + text + " -->",
        "<!-- never ends " + text,
        "<LayoutElement",
        "<LayoutElement>",
        "<LayoutElements>" + text + "</LayoutElements>",
        "<LayoutElement Type='Box'/>",
        "<LayoutElement Type='Ball'><Pos/></LayoutElement>",
        "<LayoutElement Type='Box'><Pos></LayoutElement>",
        text + " and then some",
        text + "<p>more</p>",
        "<Layout Screen='Load'>" + text + "</Layout>and",
        "<Layout Screen='Load'>" + text + "</Layout><Delays/>",
        "<Resource Type='Image' Name='a'><File>::Logo</File></Resource>",
        "<html><body>" + text + "</body></html>",
        "<Skin name='x'/>",
        std::string("<LayoutElement Type='Box'><Pos/>\0</LayoutElement>", 48),
        "<LayoutElement Type='Box'><Pos/>" + test::nestedXml(1500, "x") + "</LayoutElement>",
    };
    for (const std::string& typed : cases) {
        EXPECT_EQ(readClipboardText(typed), std::nullopt) << typed.substr(0, 200);
    }
}

TEST(ClipboardText, FindsFilesInTheSkinsFolder) {
    const TemporaryFolder folder;
    folder.file("Media/sky.png", "x");
    const std::string image =
        R"(<LayoutElement Type="Image" Source="sky"><Pos W="3" H="4"/></LayoutElement>)";
    const auto resource = [](const std::string& file) {
        return R"(<Resource Type="Image" Name="sky"><File>)" + file + "</File></Resource>";
    };
    struct Case {
        std::string file;
        std::filesystem::path folder;
        std::vector<Resource> resources;
    };
    const Case cases[] = {
        {"Media/sky.png", folder.path(), {{"sky", folder.document("Media\\sky.png"), true, false}}},
        {"..\\sky.png", folder.path(), {{"sky", folder.document("..\\sky.png"), true, true}}},
        {"Media\\sky.png", {}, {}},
        {"/pics/sky.png", {}, {{"sky", "\\pics\\sky.png", true, false}}},
        {"\\pics\\sky.png", folder.path(), {{"sky", "\\pics\\sky.png", true, false}}},
        {"::Logo", {}, {{"sky", "<File>::Logo</File>", false, false}}},
    };
    for (const Case& each : cases) {
        for (const std::string& text : {resource(each.file) + image, image + resource(each.file)}) {
            const auto content = readClipboardText(text, each.folder);
            ASSERT_TRUE(content) << text;
            EXPECT_EQ(content->resources, each.resources) << text;
            ASSERT_EQ(content->elements.size(), 1U);
            const ElementControl& control = content->elements[0].elementControl;
            const bool isFile = !each.resources.empty() && each.resources[0].isFile;
            EXPECT_EQ(control.file, isFile ? each.resources[0].content : "") << text;
            EXPECT_EQ(content->elements[0].imageSource, "sky");
        }
    }
}

} // namespace
} // namespace tarvel
