// Modifiers in time: which motion a type has, and the look at chosen moments.
#include "playing/modifier_play.h"
#include "text/xml_parse.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace tarvel {
namespace {

constexpr Place atRest{100, 50, 40, 20}; // left, top, width, height

ModifierCatalogue catalogue() {
    return ModifierCatalogue(parseXml(
        "<modifiers><types><Tint>Color</Tint><Glow preview='color'>Color</Glow>"
        "<Fade preview='Opacity'>Range</Fade><Pulse preview='scale'>Range</Pulse>"
        "<Slide preview='move'>Bounds</Slide><Plain>Range</Plain>"
        "<Wrong preview='move'>Range</Wrong><Calm preview='none'>Color</Calm><Wobble/></types>"
        "</modifiers>"));
}

std::vector<Motion> motions(const std::string& modifier) {
    return motionsOf(parseXml(modifier), catalogue());
}

PlayLook look(const std::string& modifier, PlayTime at) {
    return lookAt(motions(modifier), atRest, at);
}

TEST(ModifierPreview, IsWhatTheTypeSays) {
    struct Case {
        const char* type;
        ModifierPreview preview;
    };
    for (const Case& each : {Case{"Tint", ModifierPreview::color},
                             {"Glow", ModifierPreview::color},
                             {"Fade", ModifierPreview::opacity},
                             {"Pulse", ModifierPreview::scale},
                             {"Slide", ModifierPreview::move},
                             {"Plain", ModifierPreview::still},
                             {"Wrong", ModifierPreview::still},
                             {"Calm", ModifierPreview::still},
                             {"Wobble", ModifierPreview::still},
                             {"unknown", ModifierPreview::still}}) {
        EXPECT_EQ(catalogue().previewOf(each.type), each.preview) << each.type;
    }
    EXPECT_EQ(ModifierCatalogue().previewOf("Tint"), ModifierPreview::still);
}

TEST(ModifierPreview, IsThereForTheTypesThatComeWithTheProgram) {
    const auto own =
        ModifierCatalogue::read(std::filesystem::path(TARVEL_ASSETS_DIR) / catalogueFileName);
    struct Case {
        const char* type;
        ModifierPreview preview;
    };
    for (const Case& each : {Case{"Fade", ModifierPreview::opacity},
                             {"Pulse", ModifierPreview::scale},
                             {"Slide", ModifierPreview::move},
                             {"Wander", ModifierPreview::move},
                             {"Tint", ModifierPreview::color},
                             {"Glow", ModifierPreview::color},
                             {"Wobble", ModifierPreview::still}}) {
        EXPECT_EQ(own.previewOf(each.type), each.preview) << each.type;
    }
}

TEST(Swing, GoesThereAndBackOnceAPeriod) {
    struct Case {
        double low;
        double high;
        double period;
        PlayTime at;
        double value;
    };
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    constexpr double largest = std::numeric_limits<double>::max();
    constexpr PlayTime far = PlayTime{1} << 31;
    for (const Case& each : {Case{0, 255, 1000, 0, 0},
                             {0, 255, 1000, 250, 127.5},
                             {0, 255, 1000, 500, 255},
                             {0, 255, 1000, 750, 127.5},
                             {0, 255, 1000, 1000, 0},
                             {200, 100, 1000, 500, 100},
                             {50, 50, 1000, 300, 50},
                             {0, 255, 0, 300, 0},
                             {0, 255, -5, 300, 0},
                             {0, 255, nan, 300, 0},
                             {0, 255, 1000, -1, 0},
                             {0, 10, 1024, far, 0},
                             {0, 10, 1024, far + 512, 10},
                             {0, 10, 0.5, 300, 0},
                             {50, 10, 1e300, far, 50},
                             {-largest, largest, 1000, 0, -largest},
                             {-largest, largest, 1000, 250, 0},
                             {-largest, largest, 1000, 500, largest}}) {
        EXPECT_DOUBLE_EQ(swing(each.low, each.high, each.period, each.at), each.value) << each.at;
    }
}

TEST(ColorMotion, SwingsTheEnabledChannels) {
    const std::string tint =
        "<Modifier Type='Tint'><Alpha Enable='False' Min='0' Max='255' Period='1000'/>"
        "<Red Enable='True' Min='0' Max='200' Period='1000'/>"
        "<Green Enable='True' Min='-50' Max='900' Period='500'/>"
        "<Blue Enable='True' Min='30' Max='30' Period='1000'/></Modifier>";
    using Channels = std::array<std::optional<int>, channelCount>;
    EXPECT_EQ(look(tint, 0).channels, (Channels{std::nullopt, 0, 0, 30}));
    EXPECT_EQ(look(tint, 250).channels, (Channels{std::nullopt, 100, 255, 30}));
    EXPECT_EQ(look(tint, 500).channels, (Channels{std::nullopt, 200, 0, 30}));
    EXPECT_TRUE(moves(motions(tint), atRest));
    EXPECT_FALSE(moves(motions("<Modifier Type='Tint'/>"), atRest));
    EXPECT_EQ(look("<Modifier Type='Tint'/>", 250), PlayLook());
}

TEST(ColorMotion, PlaysTheChannelsUpToOneThatIsMissing) {
    const PlayLook played =
        look("<Modifier Type='Glow'><Alpha Enable='True' Min='10' Max='20' Period='100'/>"
             "<Green Enable='True' Min='0' Max='255' Period='100'/></Modifier>",
             50);
    EXPECT_EQ(played.channels[0], 20);
    EXPECT_EQ(played.channels[2], std::nullopt);
}

TEST(RangeMotion, GoesBetweenItsPercentsInTwoSeconds) {
    const std::string fade = "<Modifier Type='Fade'><Range X='20' Y='80'/></Modifier>";
    EXPECT_DOUBLE_EQ(look(fade, 0).opacity, 0.2);
    EXPECT_DOUBLE_EQ(look(fade, 500).opacity, 0.5);
    EXPECT_DOUBLE_EQ(look(fade, 1000).opacity, 0.8);
    EXPECT_DOUBLE_EQ(look(fade, 2000).opacity, 0.2);
    const std::string pulse = "<Modifier Type='Pulse'><Range X='100' Y='150'/></Modifier>";
    EXPECT_DOUBLE_EQ(look(pulse, 1000).scale, 1.5);
    EXPECT_DOUBLE_EQ(look(pulse, 1000).opacity, 1);
    const std::string wild = "<Modifier Type='Fade'><Range X='-500' Y='1e30'/></Modifier>";
    EXPECT_DOUBLE_EQ(look(wild, 0).opacity, 0);
    EXPECT_DOUBLE_EQ(look(wild, 1000).opacity, 1);
    EXPECT_DOUBLE_EQ(look("<Modifier Type='Pulse'><Range X='0' Y='1e30'/></Modifier>", 1000).scale,
                     10);
    EXPECT_FALSE(moves(motions("<Modifier Type='Fade'><Range X='5' Y='5'/></Modifier>"), atRest));
}

TEST(MoveMotion, TravelsInsideItsBoundsAtEvenSpeed) {
    const std::string slide =
        "<Modifier Type='Slide'><Bounds L='80' T='40' R='260' B='100'/></Modifier>";
    PlayLook before = look(slide, 0);
    EXPECT_FLOAT_EQ(before.right, 0);
    EXPECT_FLOAT_EQ(before.down, 0);
    for (PlayTime at = 10; at < 20'000; at += 10) {
        const PlayLook now = look(slide, at);
        const float left = atRest[0] + now.right;
        const float top = atRest[1] + now.down;
        EXPECT_GE(left, 80);
        EXPECT_LE(left + atRest[2], 260.001F);
        EXPECT_GE(top, 40);
        EXPECT_LE(top + atRest[3], 100.001F);
        // 0.6 pixels in 10 ms, or less where it turns.
        EXPECT_LE(std::abs(now.right - before.right), 0.601F);
        EXPECT_LE(std::abs(now.down - before.down), 0.601F);
        before = now;
    }
    EXPECT_FLOAT_EQ(look(slide, 2000).right, 120); // at the far side, 120 pixels away
    EXPECT_FLOAT_EQ(look(slide, 2500).right, 90);
}

TEST(MoveMotion, StaysWhereThereIsNoRoom) {
    const std::string narrow =
        "<Modifier Type='Slide'><Bounds L='10' T='0' R='30' B='480'/></Modifier>";
    EXPECT_FLOAT_EQ(look(narrow, 0).right, -90);
    EXPECT_FLOAT_EQ(look(narrow, 700).right, -90);
    EXPECT_NE(look(narrow, 700).down, look(narrow, 0).down);
    const PlayLook none = look("<Modifier Type='Slide'/>", 500);
    EXPECT_FLOAT_EQ(none.right, -100); // bounds of 0 hold it in the corner
    EXPECT_FLOAT_EQ(none.down, -50);
    EXPECT_TRUE(moves(motions(narrow), atRest)); // up and down
    EXPECT_FALSE(moves(motions("<Modifier Type='Slide'/>"), atRest));
    EXPECT_FALSE(moves(motions("<Modifier Type='Slide'><Bounds L='300' T='200' R='20' B='10'/>"
                               "</Modifier>"),
                       atRest));
}

// Whatever a file holds, an element has a colour, a size and a place.
TEST(Motions, OfValuesBeyondAllNumbersAreNumbers) {
    for (const char* number :
         {"1e400", "-1e400", "1e300", "-1e300", "1e39", "nan", "inf", "", "-32769", "0.5"}) {
        for (const char* other : {"1e400", "-1e400", "0", "x"}) {
            const auto with = [&](std::string text) {
                for (auto at = text.find('#'); at != std::string::npos; at = text.find('#')) {
                    text.replace(at, 1, number);
                }
                for (auto at = text.find('~'); at != std::string::npos; at = text.find('~')) {
                    text.replace(at, 1, other);
                }
                return text;
            };
            const std::string all =
                with("<Modifier Type='Tint'><Alpha Enable='True' Min='#' Max='~' Period='700'/>"
                     "<Red Enable='True' Min='0' Max='255' Period='#'/></Modifier>"
                     "<Modifier Type='Fade'><Range X='#' Y='~'/></Modifier>"
                     "<Modifier Type='Pulse'><Range X='~' Y='#'/></Modifier>"
                     "<Modifier Type='Pulse'><Range X='#' Y='#'/></Modifier>"
                     "<Modifier Type='Slide'><Bounds L='#' T='~' R='~' B='#'/></Modifier>");
            SCOPED_TRACE(all);
            for (const PlayTime at : {PlayTime{0}, PlayTime{350}, PlayTime{1} << 31, never}) {
                const PlayLook played = look(all, at);
                for (const std::size_t channel : {0U, 1U}) {
                    EXPECT_GE(played.channels.at(channel), 0);
                    EXPECT_LE(played.channels.at(channel), 255);
                }
                EXPECT_TRUE(played.opacity >= 0 && played.opacity <= 1) << played.opacity;
                EXPECT_TRUE(played.scale >= 0 && played.scale <= 10) << played.scale;
                EXPECT_TRUE(std::isfinite(played.right)) << played.right;
                EXPECT_TRUE(std::isfinite(played.down)) << played.down;
            }
        }
    }
}

TEST(Motions, WorkTogether) {
    const std::vector<Motion> both =
        motions("<Modifier Type='Fade'><Range X='50' Y='50'/></Modifier>");
    std::vector<Motion> twice = both;
    twice.insert(twice.end(), both.begin(), both.end());
    EXPECT_DOUBLE_EQ(lookAt(twice, atRest, 0).opacity, 0.25);
    const std::vector<Motion> still = motions("<Modifier Type='Wobble'/>");
    ASSERT_EQ(still.size(), 1U);
    EXPECT_EQ(still.front().type, "Wobble");
    EXPECT_EQ(still.front().preview, ModifierPreview::still);
    EXPECT_EQ(lookAt(still, atRest, 700), PlayLook());
    EXPECT_FALSE(moves(still, atRest));
    EXPECT_TRUE(motionsOf(XmlTree(), catalogue()).empty());
}

} // namespace
} // namespace tarvel
