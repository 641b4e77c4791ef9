// render at moments of playing: pictures against the surface's painter fed with the same moment.
#include "document/layout_screens.h"
#include "files/host_files.h"
#include "playing/played_frame.h"
#include "skinfile/skin_reader.h"
#include "support/render_program.h"
#include "surface/picture_cache.h"
#include "surface/surface_painter.h"
#include "tool/render_options.h"
#include "tool/screen_sheet.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

#include <optional>
#include <set>

namespace tarvel {

namespace {

namespace fs = std::filesystem;

const fs::path examples = TARVEL_EXAMPLES_DIR;
constexpr int loadScreen = 2;
constexpr int firstOfTheLast = 4; // of nine items, of which five are shown

// Painting needs fonts, and these an application.
void needFonts() {
    if (QGuiApplication::instance() == nullptr) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        static int count = 1;
        static std::string name = "tests";
        static char* argument = name.data();
        new QGuiApplication(count, &argument); // until the end of the tests
    }
}

// What the painter makes of a skin without videos; at rest without choices.
QImage painted(const fs::path& skin, int screen, PlayTime time,
               const std::optional<PlayChoices>& choices) {
    needFonts();
    SkinDocument document;
    readSkin(document, skin);
    const auto catalogue = ModifierCatalogue::read(catalogueFile(programFolder()));
    const PlayedScreen played(document, screen, catalogue);
    PlayedFrame frame(played, choices.value_or(PlayChoices{}));
    frame.show(time, choices.value_or(PlayChoices{}), [](auto, auto) {});
    SurfaceView view;
    view.played = choices ? &frame : nullptr;
    PictureCache pictures;
    SurfacePainter painter(pictures);
    QImage image(skinWidth, skinHeight, QImage::Format_RGB32);
    QPainter target(&image);
    painter.paint(target, document, screen, QRectF(0, 0, skinWidth, skinHeight), view);
    return image;
}

PlayChoices choicesWith(std::size_t selected, std::size_t shown = 5) {
    PlayChoices choices;
    choices.itemsShown = shown;
    choices.clock = tool::sampleClock;
    selectItem(choices, selected);
    return choices;
}

// A screen with everything that plays, but videos.
constexpr auto playing =
    "<Layout Screen='Load'>"
    "<LayoutElement Type='Box'><Color>0xFFFF0000</Color><Pos L='10' T='10' W='50' H='50'/>"
    "<Timer Type='Delay'>500</Timer><Timer Type='CycleOn'>300</Timer>"
    "<Timer Type='CycleOff'>200</Timer></LayoutElement>"
    "<LayoutElement Type='Box'><Color>0xFF00FF00</Color><Pos L='70' T='10' W='50' H='50'/>"
    "<Condition>ItemPrev</Condition></LayoutElement>"
    "<LayoutElement Type='Box'><Color>0xFF0000FF</Color><Pos L='130' T='10' W='50' H='50'/>"
    "<Condition>ItemNext </Condition></LayoutElement>"
    "<LayoutElement Type='Box'><Color>0xFFFFFFFF</Color><Pos L='190' T='10' W='50' H='50'/>"
    "<Modifier Type='Fade'><Range X='0' Y='100'/></Modifier></LayoutElement>"
    "<LayoutElement Type='Text' Source='DateTime'><TextColor>0xFFFFFFFF</TextColor>"
    "<Pos L='10' T='80' W='300' H='30'/></LayoutElement>"
    "<LayoutElement Type='Text' Source='CGTitle'><TextColor>0xFFFFFFFF</TextColor>"
    "<Pos L='10' T='120' W='300' H='30'/></LayoutElement>"
    "</Layout>";

constexpr QPoint inTimed(30, 30);
constexpr QPoint inIfPrevious(90, 30);
constexpr QPoint inIfNext(150, 30);
constexpr QPoint inFading(210, 30);

class RenderPlaying : public testing::Test {
  protected:
    RenderPlaying()
        : skin(skinOf(folder, playing)) {}

    [[nodiscard]] QImage at(const std::vector<std::string>& options) const {
        return renderedImage(skin, "Load", options);
    }

    const TemporaryFolder folder;
    const fs::path skin;
};

} // namespace

TEST_F(RenderPlaying, ThePictureIsThatOfThePainterAtTheTime) {
    EXPECT_EQ(at({}), painted(skin, loadScreen, 0, std::nullopt));
    for (const auto& [seconds, time] : std::initializer_list<std::pair<const char*, PlayTime>>{
             {"0", 0}, {"0.75", 750}, {"12.345", 12345}, {"1000000", 1'000'000'000}}) {
        EXPECT_EQ(at({"--at", seconds}), painted(skin, loadScreen, time, choicesWith(0)))
            << seconds;
    }
    EXPECT_NE(at({"--at", "0"}), at({}));
    EXPECT_NE(at({"--at", "0"}), at({"--at", "1"})); // the clock, for one
}

TEST_F(RenderPlaying, TimersChangeAtTheVeryMoment) {
    const QRgb red = qRgb(255, 0, 0);
    for (const auto& [seconds, isShown] :
         std::initializer_list<std::pair<const char*, bool>>{{"0", false},
                                                             {"0.499", false},
                                                             {"0.5", true},
                                                             {"0.799", true},
                                                             {"0.8", false},
                                                             {"0.999", false},
                                                             {"1", true}}) {
        EXPECT_EQ(at({"--at", seconds}).pixel(inTimed) == red, isShown) << seconds;
    }
}

TEST_F(RenderPlaying, ModifiersGoByTheCatalogueOfTheProgram) {
    EXPECT_EQ(at({"--at", "0"}).pixel(inFading), qRgb(0, 0, 0));
    EXPECT_EQ(at({"--at", "1"}).pixel(inFading), qRgb(255, 255, 255));
}

TEST_F(RenderPlaying, ConditionsGoByTheListUnlessTheyAreForced) {
    struct Case {
        std::vector<std::string> options;
        bool previous;
        bool next;
    };
    for (const Case& each : std::vector<Case>{
             {{"--at", "0"}, false, true},
             {{"--select", "5"}, false, true},
             {{"--select", "6"}, true, true},
             {{"--select", "9"}, true, false},
             {{"--condition", "itemprev=on"}, true, true},
             {{"--condition", "ItemNext=off"}, false, false},
             {{"--condition", "ItemNext =off"}, false, false},
             {{"--select", "9", "--condition", "ItemPrev=off", "--condition", "ItemNext=on"},
              false,
              true}}) {
        const QImage image = at(each.options);
        const auto name = testing::PrintToString(each.options);
        EXPECT_EQ(image.pixel(inIfPrevious) == qRgb(0, 255, 0), each.previous) << name;
        EXPECT_EQ(image.pixel(inIfNext) == qRgb(0, 0, 255), each.next) << name;
    }
}

TEST_F(RenderPlaying, TheSelectedItemFillsTheTexts) {
    PlayChoices forced = choicesWith(7);
    forced.forced.at(1) = false;
    EXPECT_EQ(forced.list.first, std::size_t{firstOfTheLast - 1});
    EXPECT_EQ(at({"--select", "8", "--condition", "ItemPrev=off"}),
              painted(skin, loadScreen, 0, forced));
    EXPECT_NE(at({"--select", "8"}), at({"--select", "9"}));
}

TEST_F(RenderPlaying, TheListOfTheScreensMenuHasItsOwnRoom) {
    // Aurora's title shows three games at a time, and has no video.
    const fs::path aurora = examples / "aurora";
    const QImage image = renderedImage(aurora, "Title", {"--at", "1", "--select", "4"});
    EXPECT_EQ(image, painted(aurora, 0, 1000, choicesWith(3, 3)));
    EXPECT_NE(image, painted(aurora, 0, 1000, choicesWith(3, 5)));
}

TEST_F(RenderPlaying, TheSameCommandGivesTheSameFile) {
    for (const std::vector<std::string>& options :
         {std::vector<std::string>{"--at", "2.34"}, std::vector<std::string>{"--at", "3.98"}}) {
        for (const char* name : {"1.png", "2.png"}) {
            ASSERT_EQ(render(examples / "aurora", "Menu", folder / name, options).code, 0);
        }
        EXPECT_EQ(readFile(folder / "1.png"), readFile(folder / "2.png"));
    }
}

TEST_F(RenderPlaying, VideosShowTheirFrameOfTheTimeAndGoRound) {
    folder.file("skin/Media/lights.wmv", readFile(examples / "aurora/Media/lights.wmv"));
    (void)skinOf(folder, "<Resource Type='Image' Name='v'><File>Media\\lights.wmv</File></Resource>"
                         "<Layout Screen='Load'><LayoutElement Type='Image' Source='v'>"
                         "<Pos L='0' T='0' W='640' H='480'/></LayoutElement></Layout>");
    const QImage rest = at({});
    EXPECT_GT(rest.pixelColor(320, 200).value(), 0);
    EXPECT_EQ(at({"--at", "0"}), rest);
    const QImage half = at({"--at", "2"});
    EXPECT_NE(half, rest);
    EXPECT_EQ(at({"--at", "6"}), half); // it lasts four seconds
    EXPECT_EQ(at({"--at", "402"}), half);
    EXPECT_NE(at({"--at", "3.5"}), half);
    // Its last frame, which the time after it has, too.
    const QImage last = at({"--at", "3.94"});
    EXPECT_EQ(at({"--at", "3.999"}), last);
    EXPECT_NE(last, rest);
}

TEST_F(RenderPlaying, AVideoThatIsNoneIsACrossedFrameWhilePlaying) {
    folder.file("skin/Media/c.wmv", "no video");
    (void)skinOf(folder, "<Resource Type='Image' Name='v'><File>Media\\c.wmv</File></Resource>"
                         "<Layout Screen='Load'><LayoutElement Type='Image' Source='v'>"
                         "<Pos L='0' T='0' W='640' H='480'/></LayoutElement></Layout>");
    EXPECT_EQ(at({"--at", "1"}), at({}));
}

TEST_F(RenderPlaying, TheSheetHoldsAllScreensWithTheirNames) {
    for (const std::vector<std::string>& options :
         {std::vector<std::string>{}, {"--at", "0.75"}, {"--select", "6"}}) {
        std::vector<std::string> command{skin.string(), "--all", (folder / "all.png").string()};
        command.insert(command.end(), options.begin(), options.end());
        const Rendered result = render(command);
        EXPECT_EQ(result.code, 0) << result.err;
        const QImage sheet = imageOf(folder / "all.png");
        ASSERT_EQ(sheet.size(), tool::sheetSize);
        const QRgb ground = sheet.pixel(0, 0);
        std::set<QByteArray> captions;
        for (int screen = 0; screen < screenCount; ++screen) {
            const auto name =
                std::string(layoutScreens.at(static_cast<std::size_t>(screen)).caption);
            const QRect place = tool::placeOnSheet(screen);
            EXPECT_EQ(sheet.copy(place), renderedImage(skin, name, options)) << name;
            const QImage caption = sheet.copy(place.left(), place.bottom() + 1, place.width(), 40);
            captions.insert(QByteArray(reinterpret_cast<const char*>(caption.constBits()),
                                       caption.sizeInBytes()));
            EXPECT_EQ(caption.pixel(0, 0), ground) << name;
        }
        EXPECT_EQ(captions.size(), std::size_t{screenCount}); // six different names
    }
}

} // namespace tarvel
