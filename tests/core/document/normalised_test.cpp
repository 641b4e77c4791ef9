// What is left of a document after saving and loading it.
#include "document/element_factory.h"
#include "document/normalised.h"
#include "skinfile/skin_folder.h"
#include "skinfile/skin_reader.h"
#include "support/document_support.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <random>

namespace tarvel {

namespace {

SkinDocument savedAndLoaded(SkinDocument document, const std::filesystem::path& folder) {
    SkinWriter writer(folder);
    EXPECT_TRUE(saveSkin(document, writer, folder, {}).succeeded());
    SkinDocument loaded;
    readSkin(loaded, folder);
    return loaded;
}

// Element by element, so that a failure shows which one differs.
void expectSame(const SkinDocument& actual, const SkinDocument& expected) {
    ASSERT_EQ(actual.lastElementId(), expected.lastElementId());
    for (int id = 1; id <= expected.lastElementId(); ++id) {
        ASSERT_EQ(actual.element(id), expected.element(id)) << "element " << id;
    }
    ASSERT_EQ(actual.settings().information, expected.settings().information);
    ASSERT_EQ(actual.settings().resources, expected.settings().resources);
    ASSERT_EQ(actual.settings().skinName, expected.settings().skinName);
    ASSERT_EQ(actual.settings().delays, expected.settings().delays);
    ASSERT_EQ(actual.settings().music, expected.settings().music);
    ASSERT_EQ(actual.settings().systemColors, expected.settings().systemColors);
    for (int screen = 0; screen < screenCount; ++screen) {
        ASSERT_EQ(actual.screenElementCount(screen), expected.screenElementCount(screen));
    }
    ASSERT_TRUE(actual == expected);
}

// Documents with every field at some value, the ones that a file loses among them.
class RandomSkin {
  public:
    explicit RandomSkin(unsigned seed)
        : random_(seed) {}

    SkinDocument make(const TemporaryFolder& folder) {
        SkinDocument document;
        folder.file("from/pic.bmp", "p");
        folder.file("from/clip.WMV", "v");
        folder.file("from/alpha.png", "a");
        document.addRes("pic", folder.document("from\\pic.bmp"));
        document.addRes("Clip", folder.document("from\\clip.WMV"));
        document.addRes("alpha <&\"", folder.document("from\\alpha.png"));
        document.addcRes("<Entry>default.xbe</Entry>", "icon");
        document.editSettings([&](SkinSettings& settings) { fill(settings, folder); });
        for (int i = 0; i < 60; ++i) {
            document.setCurrentLayout(below(screenCount));
            const int id = document.addElement(element());
            document.editElement(id, [&](Element& made) { made.elementLocked = chance(); });
            if (below(8) == 0) {
                const int screen = document.currentLayout();
                document.delItem(below(document.rowCount(screen)));
                document.setScreenElementCount(screen, document.screenElementCount(screen) - 1);
            }
        }
        document.setLockCount(2, 1);
        return document;
    }

  private:
    int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random_); }
    bool chance() { return below(2) == 0; }
    ColorNumber color() { return static_cast<ColorNumber>(below(0x1000000)); }
    std::string text() {
        static const std::vector<std::string> texts = {
            "",           "plain",      "R&D",      "a < b > c",
            "\"quoted\"", "&amp;",      "<b>x</b>", "\u00E4 \u20AC \u4E2D",
            " blanks ",   "</Constant>"};
        return texts[static_cast<std::size_t>(below(static_cast<int>(texts.size())))];
    }

    // Of a field.
    std::string name() {
        static const std::vector<std::string> names = {
            "/x", "!x", "?x",  "/",  "!--", "2nd_author", "-x",           "#1",     "@home",  "(x)",
            "%y", ".a", "a+b", "a*", "[k]", "$",          "/Information", "\u0159", "\u00E9", "a/"};
        return names[static_cast<std::size_t>(below(static_cast<int>(names.size())))];
    }
    // Of a tag or attribute in a modifier.
    std::string xmlName() {
        static const std::vector<std::string> names = {"Range",  "Ra\u0159", "\u4E2D",
                                                       "\u00E9", "_\u20AC",  "Modifier"};
        return names[static_cast<std::size_t>(below(static_cast<int>(names.size())))];
    }

    void fill(SkinSettings& settings, const TemporaryFolder& folder) {
        settings.skinName = "x" + text();
        settings.information = {{"Author", text()},
                                {"MadeUsing", "y"},
                                {"R&D", text()},
                                {name(), text()},
                                {name(), "z"}};
        settings.music = {.hasMusic = chance(),
                          .playGlobal = chance(),
                          .customMusic = chance(),
                          .playRandom = chance(),
                          .musicFiles = {folder.document("from\\pic.bmp")},
                          .rows = {0}};
        settings.delays = {0.1, -5, 1e9 + below(1000)};
        for (SampleBox& box : settings.systemColors.boxes) {
            box = {color(), color()};
        }
        for (ColorNumber& sample : settings.systemColors.texts) {
            sample = color();
        }
        settings.systemColors.opacityTexts = {"5", ""};
        settings.background = {chance(), folder.document("from\\pic.bmp")};
    }

    Element element() {
        static constexpr std::array<ControlKind, 5> controls = {ControlKind::box, ControlKind::lin,
                                                                ControlKind::img, ControlKind::txt,
                                                                ControlKind::qor};
        static const std::vector<std::string> sources = {"pic", "CLIP", "alpha <&\"", "::icon",
                                                         "nothing"};
        Element made;
        const int kind = below(5);
        made.elementKind = static_cast<ElementKind>(kind + 1);
        ElementControl& control = made.elementControl;
        control.kind = controls[static_cast<std::size_t>(kind)];
        control.left = static_cast<float>(below(7000)) / 10.0F - 30;
        control.top = static_cast<float>(below(500));
        control.width = static_cast<float>(below(300));
        control.height = 0.25F;
        control.X1 = 1.0F / 3;
        control.Y2 = static_cast<float>(below(480));
        control.fillStyle = chance() ? FillStyle::solid : FillStyle::transparent;
        control.borderStyle = chance() ? BorderStyle::solid : BorderStyle::none;
        control.fillColor = color();
        control.borderColor = color();
        control.textColor = color();
        control.caption = text();
        control.font.edit().bold = chance();
        made.textIsConstant = chance();
        made.imageSource = sources[static_cast<std::size_t>(below(5))];
        made.elementAlpha = static_cast<std::int16_t>(below(160) - 5);
        made.elementTimers = {below(2), -below(3), below(5000), 0};
        made.elementCondition = chance() ? "nOnE" : text();
        made.label = "(L) whatever";
        made.menuSettings.edit() = {.thumbnailsVisible = chance(),
                                    .smoothScroll = chance(),
                                    .scrollFactor = static_cast<std::int16_t>(below(9) - 3),
                                    .itemsShown = static_cast<std::int16_t>(below(9)),
                                    .glowSelected = chance(),
                                    .showDescription = chance(),
                                    .titleAlignment = text(),
                                    .descriptionAlignment = "Center",
                                    .selectedTitleColor = "255.7",
                                    .unselectedTitleColor = "",
                                    .selectedDescriptionColor = "-1",
                                    .unselectedDescriptionColor = std::to_string(color())};
        if (chance()) {
            XmlTree& tree = made.elementModifiers.edit();
            const auto modifier = tree.addChild(XmlTree::top, "Modifier", chance() ? "" : "t & u");
            tree.addAttribute(modifier, "Type", text());
            tree.addAttribute(tree.addChild(modifier, xmlName()), xmlName(), text());
        }
        return made;
    }

    std::mt19937 random_;
};

} // namespace

TEST(Normalised, IsWhatComesBack) {
    for (unsigned seed = 0; seed < 40; ++seed) {
        const TemporaryFolder folder;
        const SkinDocument document = RandomSkin(seed).make(folder);
        const SkinDocument loaded = savedAndLoaded(document, folder.folder("out"));
        SCOPED_TRACE("seed " + std::to_string(seed));
        expectSame(normalised(loaded), normalised(document));
        if (testing::Test::HasFatalFailure()) {
            return;
        }
    }
}

TEST(Normalised, ChangesNothingTheSecondTime) {
    for (unsigned seed = 100; seed < 110; ++seed) {
        const TemporaryFolder folder;
        const SkinDocument once = normalised(RandomSkin(seed).make(folder));
        expectSame(normalised(once), once);
    }
}

TEST(Normalised, TheFileStaysTheSameFromTheSecondSaveOn) {
    for (unsigned seed = 200; seed < 220; ++seed) {
        const TemporaryFolder folder;
        const SkinDocument document = RandomSkin(seed).make(folder);
        const SkinDocument first = savedAndLoaded(document, folder.folder("1"));
        const SkinDocument second = savedAndLoaded(first, folder.folder("2"));
        (void)savedAndLoaded(second, folder.folder("3"));
        const auto bytes = [&](const char* name) {
            return readFile(folder.path() / name / skinFileName);
        };
        EXPECT_EQ(bytes("2"), bytes("3")) << "seed " << seed;
    }
}

} // namespace tarvel
