// Sections of a skin into the document, and whole folders.
#include "document/element_factory.h"
#include "document/layout_screens.h"
#include "files/host_files.h"
#include "files/windows_names.h"
#include "skinfile/skin_reader.h"
#include "support/document_support.h"
#include "support/temporary_folder.h"
#include "support/xml_support.h"

#include <gtest/gtest.h>

namespace tarvel {

namespace {

class SkinReaderTest : public testing::Test {
  protected:
    SkinReadNotes read(const std::string& body) {
        folder_.file("QOR_Skin.xml", "<Skin name=\"Nova\">" + body + "</Skin>");
        return readSkin(document_, folder_.path());
    }
    const SkinSettings& settings() { return document_.settings(); }
    std::string failure() {
        try {
            readSkin(document_, folder_.path());
        } catch (const SkinReadError& error) {
            return error.what();
        }
        return "no failure";
    }

    TemporaryFolder folder_;
    SkinDocument document_;
};

} // namespace

TEST_F(SkinReaderTest, NameAndInformation) {
    read("<INFORMATION><Author>Kay</Author><MadeUsing>a pencil</MadeUsing><e/></INFORMATION>");
    EXPECT_EQ(settings().skinName, "Nova");
    EXPECT_EQ(
        settings().information,
        (std::vector<InformationField>{{"Author", "Kay"}, {"MadeUsing", "a pencil"}, {"e", ""}}));
    read(""); // the fields of before are cleared even when the skin has none
    EXPECT_TRUE(settings().information.empty());
}

TEST_F(SkinReaderTest, TheFieldsOfEveryInformationSection) {
    read("<Information><Author>Kay</Author></Information><Delays/>"
         "<Information><Author>Lee</Author><Web>w</Web></Information>");
    EXPECT_EQ(settings().information,
              (std::vector<InformationField>{{"Author", "Kay"}, {"Author", "Lee"}, {"Web", "w"}}));
}

TEST_F(SkinReaderTest, Music) {
    read("<MUSIC><playglobal>ON</playglobal><PlayRandom>off</PlayRandom></MUSIC>");
    EXPECT_TRUE(settings().music.hasMusic);
    EXPECT_TRUE(settings().music.playGlobal);
    EXPECT_FALSE(settings().music.playRandom);
    const MusicSettings before = settings().music;
    read("<Music><PlayGlobal>On</PlayGlobal><Directory>music</Directory></Music>");
    EXPECT_EQ(settings().music, before); // a Directory changes nothing
    read("<Music><PlayGlobal>yes</PlayGlobal><PlayRandom>On</PlayRandom></Music>");
    EXPECT_FALSE(settings().music.playGlobal);
    EXPECT_TRUE(settings().music.playRandom);
}

TEST_F(SkinReaderTest, WithoutMusicItStaysOff) {
    read("");
    EXPECT_EQ(settings().music, MusicSettings{});
}

TEST_F(SkinReaderTest, DelaysAreReadLeniently) {
    read("<delays><title> 2.5e3ms</title><Load>abc</Load><SAVER>-7</SAVER></delays>");
    EXPECT_EQ(settings().delays, (std::array<double, 3>{2500, 0, -7}));
}

TEST_F(SkinReaderTest, SystemColorsByName) {
    read("<MessageBox><BoxColor>0xFF000001</BoxColor><BorderColor>0xFF000002</BorderColor>"
         "<TextColor>0xFF000003</TextColor><ShadowColor>0xFF000004</ShadowColor></MessageBox>"
         "<SystemMenu><BoxColor>0xFF000005</BoxColor><BorderColor>0xFF000006</BorderColor>"
         "<SelectColor>0xFF000007</SelectColor><SelectValueColor>0xFF000008</SelectValueColor>"
         "<TextColor>0xFF000009</TextColor><ValueColor>0xFF00000A</ValueColor></SystemMenu>");
    const auto blue = [](unsigned value) { return makeColor(0, 0, value); };
    SystemColors expected;
    expected.boxes = {SampleBox{blue(1), blue(2)}, SampleBox{blue(5), blue(6)}};
    expected.texts = {blue(3), blue(4), blue(7), blue(8), blue(9), blue(10)};
    EXPECT_EQ(settings().systemColors, expected);
    read("<MessageBox><BoxColor></BoxColor></MessageBox><SystemMenu/>");
    EXPECT_EQ(settings().systemColors, expected); // an empty colour changes nothing
}

TEST_F(SkinReaderTest, Resources) {
    const auto notes = read("<Resource Type='IMAGE' Name='a'><File>Media/a.png</File></Resource>"
                            "<RESOURCE type='image' name='b'><File>::SkyTile</File></RESOURCE>"
                            "<Resource Type='Image' Name='c'><file>Media\\c.png</file></Resource>"
                            "<Resource Type='Image' Name='d'><X>1</X><Y>2</Y></Resource>"
                            "<Resource Type='Image' Name='e'/>"
                            "<Resource Type='Sound' Name='f'><File>f</File></Resource>"
                            "<Resource Type='Image' Name='g'><File>..\\g.png</File></Resource>"
                            "<Resource Type='Image' Name='h'><File>C:\\h.png</File></Resource>");
    EXPECT_EQ(
        settings().resources,
        (std::vector<Resource>{{"a", folder_.document("Media\\a.png"), true, false},
                               {"b", "<File>::SkyTile</File>", false, false},
                               {"c", "<file>Media\\c.png</file>", false, false},
                               {"d", "<Y>2</Y>", false, false},
                               {"e", "", false, false},
                               {"g", folder_.document("..\\g.png"), true, true},
                               {"h", documentPath(folder_.path()) + "\\C:\\h.png", true, true}}));
    EXPECT_EQ(notes.outside, (std::vector<std::string>{"g", "h"}));
    EXPECT_EQ(outsideMessage(notes.outside),
              "These resources lie outside the skin folder and are left out: g, h");
    EXPECT_EQ(outsideMessage({}), "");
}

// Where they can be had nothing is said of them.
TEST_F(SkinReaderTest, NamesThatWindowsCannotHaveAreToldAndLeftOutThere) {
    const std::string skin =
        "<Resource Type='Image' Name='a'><File>Media\\a:b.png</File></Resource>"
        "<Resource Type='Image' Name='b'><File>Con/b.png</File></Resource>"
        "<Resource Type='Image' Name='c'><File>Media\\c.</File></Resource>"
        "<Resource Type='Image' Name='d'><File>Media\\d.png</File></Resource>"
        "<Resource Type='Image' Name='e'><File>..\\e.png</File></Resource>"
        "<Resource Type='Image' Name='f'><File>C:\\f.png</File></Resource>";
    const auto barred = [&] {
        std::string names;
        for (const Resource& resource : settings().resources) {
            names += resource.outside ? resource.name : "";
        }
        return names;
    };
    {
        const HostNames ofWindows(true);
        EXPECT_EQ(read(skin).outside,
                  (std::vector<std::string>{"a (Windows cannot have the name \"a:b.png\")",
                                            "b (Windows cannot have the name \"Con\")",
                                            "c (Windows cannot have the name \"c.\")", "e", "f"}));
        EXPECT_EQ(barred(), "abcef");
    }
    document_ = {};
    const HostNames ofAnyKind(false);
    EXPECT_EQ(read(skin).outside, (std::vector<std::string>{"e", "f"}));
    EXPECT_EQ(barred(), "ef");
}

TEST_F(SkinReaderTest, AnEmptyFileTextNamesNoFile) {
    const auto notes = read("<Resource Type='Image' Name='a'><File></File></Resource>"
                            "<Layout Screen='Menu'><LayoutElement Type='Image' Source='a'>"
                            "<Pos L='1'/></LayoutElement></Layout>");
    EXPECT_EQ(settings().resources,
              (std::vector<Resource>{{"a", folder_.document(""), true, false}}));
    EXPECT_TRUE(notes.outside.empty());
    EXPECT_EQ(document_.rowCount(menuScreen), 1);
}

TEST_F(SkinReaderTest, IdsRowsAndCountsOfTwoScreens) {
    read("<Layout Screen='Menu'><LayoutElement Type='Box'><Color>0x80010203</Color><Pos/>"
         "</LayoutElement><LayoutElement Type='Box'><Pos/></LayoutElement></Layout>"
         "<Layout Screen='Title'><LayoutElement Type='Text' Source='IP'><Pos/></LayoutElement>"
         "</Layout>");
    EXPECT_EQ(document_.lastElementId(), 3);
    EXPECT_EQ(document_.itemData(1, 0), 1);
    EXPECT_EQ(document_.itemData(1, 1), 2);
    EXPECT_EQ(document_.itemData(0, 0), 3);
    EXPECT_EQ(document_.rowText(1, 0), "Box: Alpha 50");
    EXPECT_EQ(document_.rowText(1, 1), "Box: Alpha 100");
    EXPECT_EQ(document_.rowText(0, 0), "Text: IP");
    EXPECT_EQ(document_.screenElementCount(1), 2);
    EXPECT_EQ(document_.screenElementCount(0), 1);
}

TEST_F(SkinReaderTest, ElementsOfAllScreensWithTheirResources) {
    folder_.file("Media/A.png", "x");
    read("<Layout Screen='MENU'><LayoutElement Type='Image' Source='A'><Pos L='1'/></LayoutElement>"
         "<LayoutElement Type='Box'><Pos/></LayoutElement></Layout>"
         "<Layout Screen='Nowhere'><LayoutElement Type='Text' Source='IP'><Pos/></LayoutElement>"
         "</Layout>"
         "<Resource Type='Image' Name='a'><File>Media\\a.png</File></Resource>");
    EXPECT_EQ(document_.rowCount(1), 2);
    EXPECT_EQ(document_.rowCount(0), 1);
    EXPECT_EQ(document_.itemData(1, 0), 1);
    EXPECT_EQ(document_.itemData(0, 0), 3);
    EXPECT_EQ(document_.currentLayout(), menuScreen);
    const ElementControl& control = document_.element(1).elementControl;
    EXPECT_EQ(control.kind, ControlKind::png);
    EXPECT_EQ(control.file, folder_.document("Media\\a.png"));
}

TEST_F(SkinReaderTest, LoadingAddsToWhatIsThere) {
    document_.addElement(Element{});
    document_.addRes("own", "\\own.png");
    read("<Resource Type='Image' Name='a'><File>a.png</File></Resource>"
         "<Layout Screen='Menu'><LayoutElement Type='Box'><Pos/></LayoutElement></Layout>");
    EXPECT_EQ(document_.rowCount(1), 2);
    EXPECT_EQ(document_.itemData(1, 1), 2);
    EXPECT_EQ(settings().resources.size(), 2U);
}

TEST_F(SkinReaderTest, TheRootMayHaveAnyTag) {
    folder_.file("QOR_Skin.xml", "<anything NAME='x'/>");
    readSkin(document_, folder_.path());
    EXPECT_EQ(settings().skinName, "x");
}

TEST_F(SkinReaderTest, FindsTheFileInAnyLetterCase) {
    folder_.file("qor_skin.XML", "<Skin name='x'/>");
    readSkin(document_, folder_.path());
    EXPECT_EQ(settings().skinName, "x");
}

TEST_F(SkinReaderTest, AFailureLeavesTheDocumentAsItWas) {
    document_.setCurrentLayout(3);
    document_.addElement(Element{});
    const SkinDocument before = document_;
    EXPECT_EQ(failure(), "The selected folder does not contain a QOR_Skin.xml file");
    folder_.folder("QOR_Skin.xml");
    EXPECT_EQ(failure(), "The selected folder does not contain a QOR_Skin.xml file");
    std::filesystem::remove(folder_ / "QOR_Skin.xml");
    folder_.file("QOR_Skin.xml", "<Skin name='y'><Layout Screen='Menu'><Pos/>");
    EXPECT_EQ(failure(),
              "QOR_Skin.xml cannot be read: it ends before its elements are closed (line 1)");
    EXPECT_EQ(document_, before);
}

TEST_F(SkinReaderTest, AFolderThatCannotHoldASkinIsDescribed) {
    folder_.file("a\\b/QOR_Skin.xml", "<Skin name='wrong'/>");
    folder_.file("a/b/QOR_Skin.xml", "<Skin name='wrong'/>");
    // A backslash is part of a name, or it separates.
    using Paths = std::vector<std::filesystem::path>;
    const bool isName = std::filesystem::path::preferred_separator == '/';
    for (const auto& refused : isName ? Paths{folder_ / "a\\b", {}} : Paths{{}}) {
        try {
            readSkin(document_, refused);
            ADD_FAILURE() << "read " << refused;
        } catch (const SkinReadError& error) {
            EXPECT_EQ(error.what(), folderProblem(refused));
        }
    }
    EXPECT_EQ(document_, SkinDocument());
}

TEST_F(SkinReaderTest, AFileThatIsTooLargeIsNotReadAtAll) {
    const auto file = folder_.file("QOR_Skin.xml", "<Skin/>");
    constexpr std::uint64_t last = (std::uint64_t{3} << 30U) - 1;
    ASSERT_EQ(writeSomeAt(openFile(file, Opening::write), last, "", 1), 1); // nothing before it
    EXPECT_EQ(failure(), "QOR_Skin.xml cannot be read: the file is too large");
}

TEST_F(SkinReaderTest, AbsurdDepthIsRefused) {
    const auto nested = [](int levels) {
        std::string text;
        for (int i = 0; i < levels; ++i) {
            text += "<a>";
        }
        for (int i = 0; i < levels; ++i) {
            text += "</a>";
        }
        return "<Layout Screen='Menu'><LayoutElement Type='Box'><Pos/><Modifier>" + text +
               "</Modifier></LayoutElement></Layout><b/>";
    };
    read(nested(996));
    EXPECT_EQ(document_.rowCount(menuScreen), 1);
    folder_.file("QOR_Skin.xml", "<Skin>" + nested(997) + "</Skin>");
    EXPECT_EQ(failure(),
              "QOR_Skin.xml cannot be read: its elements lie more than 1000 levels deep");
    EXPECT_EQ(document_.rowCount(menuScreen), 1);
}

TEST_F(SkinReaderTest, ASkinOfManyElements) {
    std::string layout = "<Layout Screen='Load'>";
    for (int i = 0; i < 20'000; ++i) {
        layout += "<LayoutElement Type='Box'><Pos L='" + std::to_string(i) + "'/></LayoutElement>";
    }
    read(layout + "</Layout>");
    EXPECT_EQ(document_.screenElementCount(2), 20'000);
    EXPECT_EQ(document_.element(20'000).elementControl.left, 19'999.0F);
}

} // namespace tarvel
