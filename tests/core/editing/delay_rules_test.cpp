// What typed delays come to, and how delays are shown.
#include "editing/delay_rules.h"

#include <gtest/gtest.h>

namespace tarvel {
namespace {

using Delays = std::array<double, 3>;

TEST(DelayFields, AreTheThreeScreensInOrder) {
    EXPECT_EQ(delayFields, (std::array<std::string_view, 3>{"Title", "Load", "Saver"}));
}

TEST(SetDelay, ReadsTheNumberThatTheTextBeginsWith) {
    struct Case {
        std::string_view text;
        double delay;
        std::string_view shown;
    };
    constexpr Case cases[] = {
        {"2.5e3", 2500, "2500"}, {"abc", 0, "0"},         {"", 0, "0"},
        {" 750 ms", 750, "750"}, {"1.25", 1.25, "1.25"},  {"-40", -40, "-40"},
        {"1,5", 1, "1"},         {".5", 0.5, "0.5"},      {"1e", 1, "1"},
        {"0x10", 0, "0"},        {"+3000", 3000, "3000"},
    };
    for (const auto& c : cases) {
        SkinSettings settings;
        settings.delays = {7, 8, 9};
        setDelay(settings, 0, c.text);
        EXPECT_EQ(settings.delays, (Delays{c.delay, 8, 9})) << c.text;
        EXPECT_EQ(delayText(settings, 0), c.shown) << c.text;
    }
}

TEST(SetDelay, ChangesTheFieldThatIsMeant) {
    SkinSettings settings;
    setDelay(settings, 1, "20");
    setDelay(settings, 2, "30");
    EXPECT_EQ(settings.delays, (Delays{0, 20, 30}));
    EXPECT_EQ(delayText(settings, 1), "20");
    EXPECT_EQ(delayText(settings, 2), "30");
}

TEST(SetDelay, KnowsNoOtherFields) {
    SkinSettings settings;
    setDelay(settings, -1, "5");
    setDelay(settings, 3, "5");
    EXPECT_EQ(settings, SkinSettings{});
}

} // namespace
} // namespace tarvel
