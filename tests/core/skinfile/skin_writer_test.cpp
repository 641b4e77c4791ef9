// The writer's lines, its sections as whole documents, and the splice of modifiers.
#include "document/element_factory.h"
#include "document/layout_screens.h"
#include "files/host_files.h"
#include "skinfile/skin_writer.h"
#include "support/line_ends.h"
#include "support/program_version.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>

namespace tarvel {

namespace {

class SkinWriterTest : public testing::Test {
  protected:
    // The text between two markers, line ends as "\n", which every test spells out.
    std::string generated() {
        writer_.generateXML(document_);
        return withLineFeeds(writer_.xmlText());
    }
    std::string section(const std::string& start, const std::string& end) {
        const std::string text = generated();
        const auto from = text.find(start);
        const auto to = text.find(end, from);
        return from == std::string::npos || to == std::string::npos
                   ? std::string{}
                   : text.substr(from, to + end.size() - from);
    }
    std::string layout() { return section("\t<Layout ", "\t</Layout>\n"); }
    void settings(const std::function<void(SkinSettings&)>& edit) { document_.editSettings(edit); }

    TemporaryFolder folder_;
    SkinDocument document_;
    SkinWriter writer_{folder_.path()};
};

Element ofKind(ElementKind kind) {
    Element element;
    element.elementKind = kind;
    element.elementControl.left = 1;
    element.elementControl.top = 2;
    element.elementControl.width = 3;
    element.elementControl.height = 4;
    return element;
}

// The screens that the document shows, in order, while this watches it.
struct Follower : DocumentObserver {
    explicit Follower(SkinDocument& watched)
        : document(watched)
        , watch(document.watch(*this)) {}
    ~Follower() override = default;
    Follower(const Follower&) = delete;
    Follower& operator=(const Follower&) = delete;
    void documentChanged(const DocumentChange& change) override {
        if (change.what == DocumentChange::What::currentLayout) {
            screens.push_back(document.currentLayout());
        }
        ++changes;
    }
    SkinDocument& document;
    DocumentWatch watch;
    std::vector<int> screens;
    int changes = 0;
};

constexpr auto position = "\t\t\t<Pos L=\"1\" T=\"2\" W=\"3\" H=\"4\"/>\n";

std::string elementOf(const std::string& layout) {
    const std::string opening = "\t<Layout Screen=\"Menu\">\n";
    const std::string closing = "\t</Layout>\n";
    EXPECT_TRUE(layout.starts_with(opening)) << layout;
    return layout.substr(opening.size(), layout.size() - opening.size() - closing.size());
}

} // namespace

TEST_F(SkinWriterTest, LinesAndTheirIndentation) {
    struct Case {
        const char* line;
        int before;
        int after;
    };
    int depth = 0;
    std::string expected;
    for (const auto& [line, before, after] : std::initializer_list<Case>{
             {"<Skin name=\"x\">", 0, 1},
             {"<Tag>v</Tag>", 1, 1},
             {"<Pos L=\"1\"/>", 1, 1},
             {"no tag at all", 1, 1},
             {"", 1, 1},
             {"a < b opens", 1, 2},
             {"<a/> <b>", 2, 2},
             {"<Open b=\"</\">", 2, 2},
             {"</Open>", 1, 1},
             {" </Skin>", 1, 1},
             {"</Skin>", 0, 0},
             {"</Skin>", -1, -1},
             {"</Skin>", -2, -2},
             {"<a>", -2, -1},
         }) {
        writer_.writeLine(line);
        expected +=
            std::string(static_cast<std::size_t>(std::max(before, 0)), '\t') + line + "\r\n";
        EXPECT_EQ(writer_.xmlText(), expected) << line;
        EXPECT_EQ(writer_.xmlIndent(), after) << line;
        depth = after;
    }
    EXPECT_EQ(depth, -1);
    (void)generated();
    EXPECT_EQ(writer_.xmlIndent(), 0); // starts anew
    EXPECT_TRUE(writer_.xmlText().starts_with("<Skin name=\"\">\r\n\t<Information>\r\n"));
}

TEST_F(SkinWriterTest, IndentationStaysAtItsLimits) {
    for (int i = 0; i < 33'000; ++i) {
        writer_.writeLine("</x>");
    }
    EXPECT_EQ(writer_.xmlIndent(), INT16_MIN);
    EXPECT_EQ(writer_.xmlText().find('\t'), std::string::npos);
    for (int i = 0; i < 40; ++i) {
        writer_.writeLine("<x>");
    }
    EXPECT_EQ(writer_.xmlIndent(), INT16_MIN + 40);
}

TEST_F(SkinWriterTest, CurrentLayoutFollowsTheScreenThatIsWritten) {
    for (const int screen : {5, 3, 0}) {
        document_.setCurrentLayout(screen);
        document_.addElement(ofKind(ElementKind::Box));
    }
    document_.setCurrentLayout(2);
    const Follower follower(document_);
    (void)generated();
    EXPECT_EQ(follower.screens, (std::vector<int>{0, 3, 5, menuScreen}));
}

TEST_F(SkinWriterTest, AFailureLeavesTheScreenThatWasBeingWritten) {
    Element element = ofKind(ElementKind::Box);
    element.elementModifiers.edit().addChild(XmlTree::top, "Modifier");
    document_.setCurrentLayout(3);
    document_.addElement(std::move(element));
    document_.setCurrentLayout(2);
    const Follower follower(document_);
    EXPECT_THROW(SkinWriter(folder_ / "missing").generateXML(document_), FileError);
    EXPECT_EQ(follower.screens, (std::vector<int>{3}));
}

TEST_F(SkinWriterTest, WritesTheSameTextOfADocumentThatMayNotChange) {
    for (const int screen : {5, 3, 0}) {
        document_.setCurrentLayout(screen);
        document_.addElement(ofKind(ElementKind::Box));
    }
    document_.setCurrentLayout(2);
    const SkinDocument before = document_;
    {
        const Follower follower(document_);
        writer_.write(document_);
        EXPECT_EQ(follower.changes, 0);
    }
    EXPECT_EQ(document_, before);
    EXPECT_EQ(withLineFeeds(writer_.xmlText()), generated());
}

TEST_F(SkinWriterTest, NewSkinWithoutElements) {
    settings([](SkinSettings& s) { s.skinName = "Bare"; });
    EXPECT_EQ(generated(), "<Skin name=\"Bare\">\n"
                           "\t<Information>\n"
                           "\t\t<MadeUsing>Tarvel " +
                               test::programVersion() +
                               "</MadeUsing>\n"
                               "\t</Information>\n"
                               "\t<Delays>\n"
                               "\t\t<Title>0</Title>\n"
                               "\t\t<Load>0</Load>\n"
                               "\t\t<Saver>0</Saver>\n"
                               "\t</Delays>\n"
                               "\t<MessageBox>\n"
                               "\t\t<BoxColor>0xFF182038</BoxColor>\n"
                               "\t\t<BorderColor>0xFF7896C8</BorderColor>\n"
                               "\t\t<TextColor>0xFFF0F4FF</TextColor>\n"
                               "\t\t<ShadowColor>0xFF000000</ShadowColor>\n"
                               "\t</MessageBox>\n"
                               "\t<SystemMenu>\n"
                               "\t\t<BoxColor>0xFF141C30</BoxColor>\n"
                               "\t\t<BorderColor>0xFF7896C8</BorderColor>\n"
                               "\t\t<TextColor>0xFFF0F4FF</TextColor>\n"
                               "\t\t<SelectColor>0xFFFFD25A</SelectColor>\n"
                               "\t\t<ValueColor>0xFFB0C8E8</ValueColor>\n"
                               "\t\t<SelectValueColor>0xFFFFE8AA</SelectValueColor>\n"
                               "\t</SystemMenu>\n"
                               "</Skin>\n");
}

TEST_F(SkinWriterTest, InformationLeavesOutEmptyFieldsAndMadeUsing) {
    settings([](SkinSettings& s) {
        s.information = {{"Author", "A & <b>"}, {"Version", ""},       {"MADEUSING", "a pencil"},
                         {"Web", "\"x\""},      {"madeUsing", "hand"}, {"Made", "y"}};
    });
    EXPECT_EQ(section("\t<Information>", "</Information>\n"), "\t<Information>\n"
                                                              "\t\t<Author>A & <b></Author>\n"
                                                              "\t\t<Web>\"x\"</Web>\n"
                                                              "\t\t<Made>y</Made>\n"
                                                              "\t\t<MadeUsing>Tarvel " +
                                                                  test::programVersion() +
                                                                  "</MadeUsing>\n"
                                                                  "\t</Information>\n");
}

TEST_F(SkinWriterTest, MusicOnlyWhenItIsOnAndNeverADirectory) {
    settings([](SkinSettings& s) {
        s.music.playGlobal = s.music.customMusic = true;
        s.music.musicFiles = {"\\m\\a.wma"};
        s.music.rows = {0};
    });
    EXPECT_EQ(generated().find("Music"), std::string::npos);
    settings([](SkinSettings& s) { s.music.hasMusic = true; });
    EXPECT_EQ(section("\t<Music>", "</Music>\n"), "\t<Music>\n"
                                                  "\t\t<PlayGlobal>On</PlayGlobal>\n"
                                                  "\t\t<PlayRandom>Off</PlayRandom>\n"
                                                  "\t</Music>\n");
}

TEST_F(SkinWriterTest, DelaysInShortestForm) {
    settings([](SkinSettings& s) { s.delays = {2500, 0.1, -3.25e-3}; });
    EXPECT_EQ(section("\t<Delays>", "</Delays>\n"), "\t<Delays>\n"
                                                    "\t\t<Title>2500</Title>\n"
                                                    "\t\t<Load>0.1</Load>\n"
                                                    "\t\t<Saver>-0.00325</Saver>\n"
                                                    "\t</Delays>\n");
}

TEST_F(SkinWriterTest, SystemColorsByTheirSamples) {
    settings([](SkinSettings& s) {
        s.systemColors.boxes = {SampleBox{0x01, 0x02}, SampleBox{0x03, 0x04}};
        s.systemColors.texts = {0x10, 0x11, 0x12, 0x13, 0x14, 0x15};
    });
    EXPECT_EQ(section("\t<MessageBox>", "</SystemMenu>\n"),
              "\t<MessageBox>\n"
              "\t\t<BoxColor>0xFF010000</BoxColor>\n"
              "\t\t<BorderColor>0xFF020000</BorderColor>\n"
              "\t\t<TextColor>0xFF100000</TextColor>\n"
              "\t\t<ShadowColor>0xFF110000</ShadowColor>\n"
              "\t</MessageBox>\n"
              "\t<SystemMenu>\n"
              "\t\t<BoxColor>0xFF030000</BoxColor>\n"
              "\t\t<BorderColor>0xFF040000</BorderColor>\n"
              "\t\t<TextColor>0xFF140000</TextColor>\n"
              "\t\t<SelectColor>0xFF120000</SelectColor>\n"
              "\t\t<ValueColor>0xFF150000</ValueColor>\n"
              "\t\t<SelectValueColor>0xFF130000</SelectValueColor>\n"
              "\t</SystemMenu>\n");
}

TEST_F(SkinWriterTest, ResourcesAfterTheBackground) {
    settings([](SkinSettings& s) { s.background = {true, "\\pics\\back.jpg"}; });
    document_.addRes("logo", "\\far\\away\\logo.png");
    document_.addcRes("<File>::SkyTile</File>", "tile");
    EXPECT_EQ(section("\t<Resource", "</Skin>\n"), "\t<Resource Type=\"Image\" Name=\"bground\">\n"
                                                   "\t\t<File>Media\\back.jpg</File>\n"
                                                   "\t</Resource>\n"
                                                   "\t<Resource Type=\"Image\" Name=\"logo\">\n"
                                                   "\t\t<File>Media\\logo.png</File>\n"
                                                   "\t</Resource>\n"
                                                   "\t<Resource Type=\"Image\" Name=\"tile\">\n"
                                                   "\t\t<File>::SkyTile</File>\n"
                                                   "\t</Resource>\n"
                                                   "</Skin>\n");
}

TEST_F(SkinWriterTest, BackgroundComesFirstOnMenuOnly) {
    settings([](SkinSettings& s) { s.background = {true, "\\pics\\back.jpg"}; });
    document_.setCurrentLayout(0);
    document_.addElement(ofKind(ElementKind::Box));
    document_.setCurrentLayout(1);
    document_.addElement(ofKind(ElementKind::Box));
    const std::string text = section("\t<Layout Screen=\"Title\">", "</Skin>\n");
    EXPECT_EQ(text, std::string("\t<Layout Screen=\"Title\">\n\t\t<LayoutElement Type=\"Box\">\n") +
                        position +
                        "\t\t</LayoutElement>\n\t</Layout>\n"
                        "\t<Layout Screen=\"Menu\">\n"
                        "\t\t<LayoutElement Type=\"Image\" Source=\"bground\">\n"
                        "\t\t\t<Pos L=\"0\"  T=\"0\" W=\"640\"  H=\"480\"/>\n"
                        "\t\t</LayoutElement>\n"
                        "\t\t<LayoutElement Type=\"Box\">\n" +
                        position + "\t\t</LayoutElement>\n\t</Layout>\n</Skin>\n");
    settings([](SkinSettings& s) { s.background.loaded = false; });
    EXPECT_EQ(generated().find("bground"), std::string::npos);
}

TEST_F(SkinWriterTest, ABackgroundAloneWritesNoScreen) {
    settings([](SkinSettings& s) { s.background = {true, "\\pics\\back.jpg"}; });
    EXPECT_EQ(generated().find("<Layout"), std::string::npos);
    EXPECT_NE(generated().find("bground"), std::string::npos);
}

TEST_F(SkinWriterTest, ScreensInOrderWithoutTheEmptyOnes) {
    for (const int screen : {5, 4, 2, 0}) {
        document_.setCurrentLayout(screen);
        document_.addElement(ofKind(ElementKind::Box));
    }
    document_.setCurrentLayout(4);
    document_.delItem(0);
    document_.setScreenElementCount(4, 0);
    const std::string text = generated();
    std::string screens;
    constexpr std::string_view opening = "<Layout Screen=\"";
    for (auto at = text.find(opening); at != std::string::npos; at = text.find(opening, at)) {
        at += opening.size();
        screens.append(text, at, text.find('"', at) - at).append(" ");
    }
    EXPECT_EQ(screens, "Title Load FileManager ");
    EXPECT_EQ(document_.currentLayout(), menuScreen);
}

TEST_F(SkinWriterTest, ElementsInRowOrder) {
    for (const char* caption : {"one", "two", "three"}) {
        Element element = ofKind(ElementKind::Text);
        element.elementControl.caption = caption;
        document_.addElement(std::move(element));
    }
    document_.moveRow(1, 2, 0);
    const std::string text = generated();
    EXPECT_LT(text.find("\"three\""), text.find("\"one\""));
    EXPECT_LT(text.find("\"one\""), text.find("\"two\""));
}

TEST_F(SkinWriterTest, EachKindOfElement) {
    struct Case {
        const char* what;
        std::function<Element()> make;
        std::string expected;
    };
    const auto box = [](bool filled, bool bordered) {
        return [=] {
            Element element = ofKind(ElementKind::Box);
            element.elementAlpha = 50;
            element.elementControl.fillStyle = filled ? FillStyle::solid : FillStyle::transparent;
            element.elementControl.borderStyle = bordered ? BorderStyle::solid : BorderStyle::none;
            element.elementControl.fillColor = makeColor(0x12, 0x34, 0x56);
            element.elementControl.borderColor = makeColor(0xAB, 0xCD, 0xEF);
            return element;
        };
    };
    const auto text = [](bool constant) {
        return [=] {
            Element element = ofKind(ElementKind::Text);
            element.textIsConstant = constant;
            element.elementAlpha = 1;
            element.elementControl.caption = "R&D <1>";
            element.elementControl.textColor = makeColor(255, 0, 0);
            return element;
        };
    };
    const std::vector<Case> cases = {
        {"clear box", box(false, false),
         std::string("\t\t<LayoutElement Type=\"Box\">\n") + position},
        {"filled box", box(true, false),
         std::string("\t\t<LayoutElement Type=\"Box\">\n\t\t\t<Color>0x80123456</Color>\n") +
             position},
        {"framed box", box(false, true),
         std::string("\t\t<LayoutElement Type=\"Box\">\n"
                     "\t\t\t<BorderColor>0xFFABCDEF</BorderColor>\n") +
             position},
        {"box", box(true, true),
         std::string("\t\t<LayoutElement Type=\"Box\">\n\t\t\t<Color>0x80123456</Color>\n"
                     "\t\t\t<BorderColor>0xFFABCDEF</BorderColor>\n") +
             position},
        {"line",
         [] {
             Element element = ofKind(ElementKind::Line);
             element.elementControl.X1 = 0.1F;
             element.elementControl.Y1 = -2;
             element.elementControl.X2 = 640;
             element.elementControl.Y2 = 1e10F;
             element.elementControl.borderColor = makeColor(1, 2, 3);
             return element;
         },
         "\t\t<LayoutElement Type=\"Line\">\n"
         "\t\t\t<Pos X1=\"0.1\" Y1=\"-2\" X2=\"640\" Y2=\"10000000000\"/>\n"
         "\t\t\t<Color>0xFF010203</Color>\n"},
        {"image",
         [] {
             Element element = ofKind(ElementKind::Image);
             element.imageSource = "::logo";
             return element;
         },
         std::string("\t\t<LayoutElement Type=\"Image\" Source=\"::logo\">\n"
                     "\t\t\t<Scaling X=\"True\" Y=\"True\"/>\n") +
             position},
        {"constant", text(true),
         std::string("\t\t<LayoutElement Type=\"Text\">\n"
                     "\t\t\t<Constant>R&D <1></Constant>\n"
                     "\t\t\t<TextColor>0x03FF0000</TextColor>\n") +
             position},
        {"source text", text(false),
         std::string("\t\t<LayoutElement Type=\"Text\" Source=\"R&D <1>\">\n"
                     "\t\t\t<TextColor>0x03FF0000</TextColor>\n") +
             position},
        {"no kind at all", [] { return ofKind(static_cast<ElementKind>(9)); },
         std::string("\t\t<LayoutElement Type=\"Menu\" Source=\"QOR\">\n") + position},
    };
    for (const auto& [what, make, expected] : cases) {
        document_ = SkinDocument();
        document_.addElement(make());
        EXPECT_EQ(elementOf(layout()), expected + "\t\t</LayoutElement>\n") << what;
    }
}

TEST_F(SkinWriterTest, MenuElement) {
    Element element = ofKind(ElementKind::Menu);
    element.menuSettings.edit() = {.thumbnailsVisible = false,
                                   .smoothScroll = true,
                                   .scrollFactor = -3,
                                   .itemsShown = 12,
                                   .glowSelected = true,
                                   .showDescription = false,
                                   .titleAlignment = "Center",
                                   .descriptionAlignment = "Right",
                                   .selectedTitleColor = "255",
                                   .unselectedTitleColor = "256.5", // halves to even
                                   .selectedDescriptionColor = "red",
                                   .unselectedDescriptionColor = "16711680"};
    document_.addElement(std::move(element));
    EXPECT_EQ(elementOf(layout()),
              std::string("\t\t<LayoutElement Type=\"Menu\" Source=\"QOR\">\n"
                          "\t\t\t<Thumbnails Align=\"Left\">False</Thumbnails>\n"
                          "\t\t\t<Primary Source=\"Title\">\n"
                          "\t\t\t\t<OffsetY>0</OffsetY>\n"
                          "\t\t\t\t<JustifyX>Center</JustifyX>\n"
                          "\t\t\t</Primary>\n"
                          "\t\t\t<Secondary Source=\"Descr\">\n"
                          "\t\t\t\t<OffsetY>0</OffsetY>\n"
                          "\t\t\t\t<JustifyX>Right</JustifyX>\n"
                          "\t\t\t</Secondary>\n"
                          "\t\t\t<Selection>\n"
                          "\t\t\t\t<DoGlow>True</DoGlow>\n"
                          "\t\t\t\t<TextColor>0xFFFF0000</TextColor>\n"
                          "\t\t\t\t<Secondary>\n"
                          "\t\t\t\t\t<TextColor>0xFF000000</TextColor>\n"
                          "\t\t\t\t</Secondary>\n"
                          "\t\t\t</Selection>\n"
                          "\t\t\t<UnSelItem>\n"
                          "\t\t\t\t<TextColor>0xFF000100</TextColor>\n"
                          "\t\t\t\t<Secondary>\n"
                          "\t\t\t\t\t<TextColor>0xFF0000FF</TextColor>\n"
                          "\t\t\t\t</Secondary>\n"
                          "\t\t\t</UnSelItem>\n"
                          "\t\t\t<NumItems>12</NumItems>\n"
                          "\t\t\t<SelPos>0</SelPos>\n"
                          "\t\t\t<ScrollFactor>-3</ScrollFactor>\n"
                          "\t\t\t<SmoothScroll>True</SmoothScroll>\n"
                          "\t\t\t<DrawSecondary>False</DrawSecondary>\n") +
                  position + "\t\t</LayoutElement>\n");
}

TEST_F(SkinWriterTest, ConditionAndTimers) {
    struct Case {
        const char* condition;
        std::array<std::int32_t, 4> timers;
        const char* expected;
    };
    for (const auto& [condition, timers, expected] : std::initializer_list<Case>{
             {"", {0, 0, 0, 0}, ""},
             {"None", {0, 0, 0, 0}, ""},
             {"nONE", {0, 0, 0, 0}, ""},
             {"ItemNext ", {0, 0, 0, 0}, "\t\t\t<Condition>ItemNext </Condition>\n"},
             {"",
              {500, 0, -1, 7},
              "\t\t\t<Timer Type=\"Delay\">500</Timer>\n"
              "\t\t\t<Timer Type=\"CycleOff\">-1</Timer>\n"
              "\t\t\t<Timer Type=\"Lifetime\">7</Timer>\n"},
             {"ItemPrev",
              {0, 20, 0, 0},
              "\t\t\t<Condition>ItemPrev</Condition>\n\t\t\t<Timer Type=\"CycleOn\">20</Timer>\n"},
         }) {
        document_ = SkinDocument();
        Element element = ofKind(ElementKind::Box);
        element.elementCondition = condition;
        element.elementTimers = timers;
        document_.addElement(std::move(element));
        EXPECT_EQ(elementOf(layout()), std::string("\t\t<LayoutElement Type=\"Box\">\n") +
                                           position + expected + "\t\t</LayoutElement>\n");
    }
}

TEST_F(SkinWriterTest, ModifierBlocks) {
    Element element = ofKind(ElementKind::Line);
    XmlTree& tree = element.elementModifiers.edit();
    const auto plain = tree.addChild(XmlTree::top, "Modifier");
    tree.addAttribute(plain, "Type", "Wobble");
    const auto range = tree.addChild(XmlTree::top, "Modifier");
    tree.addAttribute(range, "Type", "a\"<&>\n");
    tree.addAttribute(tree.addChild(range, "Range"), "X", "1");
    tree.addChild(range, "Text", "x > y");
    document_.addElement(std::move(element));
    const std::string text = elementOf(layout());
    EXPECT_EQ(text.substr(text.find("\t\t\t<Modifier")),
              "\t\t\t<Modifier Type=\"Wobble\"></Modifier>\n"
              "\t\t\t\n"
              "\t\t\t<Modifier Type=\"a&quot;&lt;&amp;&gt;&#10;\">\n"
              "\t\t\t\t<Range X=\"1\"></Range>\n"
              "\t\t\t\t<Text>x &gt; y</Text>\n"
              "\t\t\t\t\n"
              "\t\t\t</Modifier>\n"
              "\t\t\t\n"
              "\t\t</LayoutElement>\n");
    EXPECT_EQ(writer_.xmlIndent(), 0);
    EXPECT_FALSE(std::filesystem::exists(folder_ / "temp.xml"));
}

TEST(SplicedModifiers, FollowsItsSteps) {
    struct Case {
        const char* saved;
        const char* spliced;
    };
    for (const auto& [saved, spliced] : std::initializer_list<Case>{
             {"<?xml version=\"1.0\"?>\n<Modifier></Modifier>\n", "<Modifier></Modifier>\r\n"},
             {"<?xml?><a><b>", "<a>\r\n<b"},           // the last character always goes
             {"<Modifier/>\n", "<Modifier/>\r\n"},     // without a declaration it stays
             {"<a>\r</a>", "<a>\r\r\n</a>"},           // a CR becomes CR LF, and its LF again
             {"<a></a><b></b>", "<a></a>\r\n<b></b>"}, // joined back before an end tag
             {"<a>\n</a>", "<a></a>"},                 // the same for a line end of the file
             {"<a>\n\n</a>", "<a>\r\n\r\n</a>"},       // but not for an empty line
             {"</Modifier></Modifier>", "</Modifier>\r\n</Modifier>\r\n"},
         }) {
        EXPECT_EQ(splicedModifiers(saved), spliced) << saved;
    }
}

TEST_F(SkinWriterTest, AModifierThatCannotPassThroughTempXmlIsAnError) {
    SkinWriter writer(folder_ / "missing");
    EXPECT_NO_THROW(writer.generateXML(document_));
    Element element = ofKind(ElementKind::Box);
    element.elementModifiers.edit().addChild(XmlTree::top, "Modifier");
    document_.addElement(std::move(element));
    EXPECT_THROW(writer.generateXML(document_), FileError);
}

} // namespace tarvel
