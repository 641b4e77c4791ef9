// Which screen of a skin shows when, and the pace of its time.
#include "playing/skin_run.h"

#include <gtest/gtest.h>

#include <limits>
#include <string_view>
#include <vector>

namespace tarvel {
namespace {

enum Screen { title, menu, load, saver };

// Where a run stands.
struct Stand {
    int screen;
    PlayTime at;
    std::optional<PlayTime> remaining;

    bool operator==(const Stand&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Stand& stand) {
    return out << "screen " << stand.screen << " at " << stand.at << ", "
               << stand.remaining.value_or(-1) << " more";
}

Stand standOf(const SkinRun& run) {
    return {run.screen(), run.at(), run.remaining()};
}

// Title, Load, Saver.
SkinRun skin(double titleDelay, double loadDelay, double saverDelay) {
    return SkinRun::ofSkin({titleDelay, loadDelay, saverDelay});
}

TEST(SkinRun, OfAScreenStaysOnIt) {
    SkinRun run = SkinRun::ofScreen(4);
    EXPECT_EQ(standOf(run), (Stand{4, 0, {}}));
    run.pass(PlayTime{1} << 40);
    run.key();
    EXPECT_EQ(standOf(run), (Stand{4, PlayTime{1} << 40, {}}));
    EXPECT_FALSE(run.heedsKeys());
}

TEST(SkinRun, GoesFromScreenToScreen) {
    const SkinRun begun = skin(2000, 500, 3000);
    const std::vector<std::pair<PlayTime, Stand>> cases = {
        {0, {load, 0, 500}},      {499, {load, 499, 1}},          {500, {title, 0, 2000}},
        {2499, {title, 1999, 1}}, {2500, {menu, 0, 3000}},        {5499, {menu, 2999, 1}},
        {5500, {saver, 0, {}}},   {100'000, {saver, 94'500, {}}},
    };
    for (const auto& [time, expected] : cases) {
        SkinRun run = begun;
        run.pass(time);
        EXPECT_EQ(standOf(run), expected) << time;
        SkinRun inSteps = begun;
        for (PlayTime i = 0; i < time; ++i) {
            inSteps.pass(1);
        }
        EXPECT_EQ(inSteps, run) << time;
    }
}

TEST(SkinRun, PassesScreensWithoutADelayAtOnce) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(standOf(skin(10, 0, 10)), (Stand{title, 0, 10}));
    EXPECT_EQ(standOf(skin(0, 10, 10)), (Stand{load, 0, 10}));
    EXPECT_EQ(standOf(skin(0, 0, 10)), (Stand{menu, 0, 10}));
    EXPECT_EQ(standOf(skin(0, 0, 0)), (Stand{menu, 0, {}})); // and no saver comes
    EXPECT_EQ(standOf(skin(-5, -5, -5)), (Stand{menu, 0, {}}));
    SkinRun run = skin(0, 10, 10);
    run.pass(10);
    EXPECT_EQ(standOf(run), (Stand{menu, 0, 10}));
    EXPECT_EQ(standOf(skin(0, 0.25, 1e300)), (Stand{load, 0, 1}));
    EXPECT_EQ(standOf(skin(nan, 0, 0)).screen, menu);
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(standOf(skin(0, infinity, 0)), (Stand{load, 0, PlayTime{1'000'000'000'000'000}}));
    EXPECT_EQ(standOf(skin(-infinity, -0.0, 0.5)), (Stand{menu, 0, 1}));
    run = skin(infinity, infinity, infinity);
    for (int i = 0; i < 3; ++i) { // two screens, and the key that puts the saver off
        run.goTo(*run.remaining() - 1);
        run.key();
        run.pass(1);
    }
    EXPECT_EQ(run.screen(), menu);
    EXPECT_EQ(run.remaining(), PlayTime{1'000'000'000'000'000} - 1);
}

TEST(SkinRun, KeysEndTheSaverOrPutItOff) {
    SkinRun run = skin(0, 100, 1000);
    run.key(); // "Load" heeds none
    EXPECT_EQ(standOf(run), (Stand{load, 0, 100}));
    EXPECT_FALSE(run.heedsKeys());
    run.pass(100 + 900);
    EXPECT_TRUE(run.heedsKeys());
    run.key();
    EXPECT_EQ(standOf(run), (Stand{menu, 900, 1000}));
    run.pass(999);
    EXPECT_EQ(standOf(run), (Stand{menu, 1899, 1}));
    run.pass(1);
    EXPECT_EQ(standOf(run), (Stand{saver, 0, {}}));
    EXPECT_TRUE(run.heedsKeys());
    run.pass(70);
    run.key();
    EXPECT_EQ(standOf(run), (Stand{menu, 0, 1000}));
}

TEST(SkinRun, GoesBackToTheBeginningOfItsScreen) {
    SkinRun run = skin(0, 100, 1000);
    run.pass(600);
    run.pass(-200);
    EXPECT_EQ(standOf(run), (Stand{menu, 300, 700}));
    run.key();
    run.pass(-100);
    EXPECT_EQ(standOf(run), (Stand{menu, 200, 1000})); // before the key: none was pressed yet
    run.pass(-5000);
    EXPECT_EQ(standOf(run), (Stand{menu, 0, 1000}));
    run.goTo(999);
    EXPECT_EQ(standOf(run), (Stand{menu, 999, 1}));
    run.goTo(1250);
    EXPECT_EQ(standOf(run), (Stand{saver, 250, {}}));
}

TEST(PlayPace, LosesNothing) {
    for (const int quarters : {1, 2, 3, 4, 8, 16}) {
        PlayPace pace;
        pace.setQuarters(quarters);
        PlayTime time = 0;
        for (int i = 0; i < 1001; ++i) {
            time += pace.passed(1);
        }
        EXPECT_EQ(time, 1001 * quarters / 4) << quarters;
    }
    PlayPace pace;
    pace.setQuarters(0);
    EXPECT_EQ(pace.quarters(), 1);
    pace.setQuarters(99);
    EXPECT_EQ(pace.quarters(), 16);
}

} // namespace
} // namespace tarvel
