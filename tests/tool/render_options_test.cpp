// The command line of render: what it asks for, and what it cannot ask for.
#include "support/temporary_folder.h"
#include "tool/render_options.h"
#include "tool/skin_commands.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <sstream>

namespace tarvel::tool {

namespace {

namespace fs = std::filesystem;
using Arguments = std::vector<std::string>;

const std::string aurora = (fs::path(TARVEL_EXAMPLES_DIR) / "aurora").string();

RenderOptions optionsOf(const Arguments& after, const std::string& out = "out.png") {
    Arguments arguments{"in", "Menu", out};
    arguments.insert(arguments.end(), after.begin(), after.end());
    const auto options = renderOptions(arguments);
    EXPECT_TRUE(options) << testing::PrintToString(after);
    return options.value_or(RenderOptions{});
}

std::string problemOf(const Arguments& arguments) {
    try {
        (void)renderOptions(arguments);
    } catch (const OptionError& error) {
        return error.what();
    }
    return {};
}

// The sentence about arguments for a picture, or for an animation.
std::string stillProblem(Arguments after) {
    after.insert(after.begin(), {"in", "Menu", "out.png"});
    return problemOf(after);
}

std::string animationProblem(Arguments after) {
    after.insert(after.begin(), {"in", "Menu", "out.gif"});
    return problemOf(after);
}

} // namespace

TEST(RenderOptions, WithoutOptionsTheScreenIsAtRest) {
    const RenderOptions options = optionsOf({});
    EXPECT_EQ(options.folder, "in");
    EXPECT_EQ(options.screen, "Menu");
    EXPECT_EQ(options.out, "out.png");
    EXPECT_EQ(options.format, PictureFormat::png);
    EXPECT_FALSE(options.isPlayed);
    EXPECT_EQ(options.moments.count, 1U);
}

TEST(RenderOptions, OptionsStandAnywhere) {
    const auto options = renderOptions(Arguments{"--at", "1.5", "in", "--all", "--select", "3",
                                                 "out.PNG", "--condition", "itemprev=ON"});
    ASSERT_TRUE(options);
    EXPECT_EQ(options->folder, "in");
    EXPECT_FALSE(options->screen);
    EXPECT_EQ(options->out, "out.PNG");
    EXPECT_TRUE(options->isPlayed);
    EXPECT_EQ(options->moments.at(0), 1500);
    EXPECT_EQ(options->selected, 2U);
    EXPECT_EQ(options->forced.at(1), true);
}

TEST(RenderOptions, EachOfThemPlays) {
    for (const Arguments& played : {Arguments{"--at", "0"}, Arguments{"--select", "1"},
                                    Arguments{"--condition", "ItemEntry=off"}}) {
        EXPECT_TRUE(optionsOf(played).isPlayed) << played.front();
        EXPECT_EQ(optionsOf(played).moments.at(0), 0) << played.front();
    }
    EXPECT_TRUE(optionsOf({}, "out.gif").isPlayed);
}

TEST(RenderOptions, TimesCountToTheMillisecond) {
    for (const auto& [text, time] :
         std::initializer_list<std::pair<const char*, PlayTime>>{{"0", 0},
                                                                 {"0.499", 499},
                                                                 {"0.5", 500},
                                                                 {".5", 500},
                                                                 {"5.", 5000},
                                                                 {"007", 7000},
                                                                 {"1000000", 1'000'000'000},
                                                                 {"0.0004", 0},
                                                                 {"0.0006", 1},
                                                                 {"1.0049", 1005}}) {
        EXPECT_EQ(optionsOf({"--at", text}).moments.at(0), time) << text;
    }
}

TEST(RenderOptions, AConditionIsNamedInAnyLetterCaseAndWithoutItsBlank) {
    for (const auto& [text, row] :
         std::initializer_list<std::pair<const char*, std::size_t>>{{"ItemPrev=on", 1},
                                                                    {"ItemNext=on", 2},
                                                                    {"ItemNext =on", 2},
                                                                    {"ITEMNEXT=On", 2},
                                                                    {"itementry=on", 3},
                                                                    {"ItemSubMenu=on", 4},
                                                                    {"ItemPassCode=on", 5},
                                                                    {"ItemNoPassCode=on", 6}}) {
        const auto forced = optionsOf({"--condition", text}).forced;
        for (std::size_t i = 0; i < forced.size(); ++i) {
            EXPECT_EQ(forced.at(i), i == row ? std::optional(true) : std::nullopt) << text << i;
        }
    }
    const auto both = optionsOf({"--condition", "ItemPrev=off", "--condition", "ItemNext=on"});
    EXPECT_EQ(both.forced.at(1), false);
    EXPECT_EQ(both.forced.at(2), true);
}

TEST(RenderOptions, TheListIsThatOfTheMenu) {
    MenuSettings settings;
    settings.itemsShown = 2;
    const RenderOptions options = optionsOf({"--select", "6"});
    const PlayChoices narrow = options.choicesWith(&settings);
    EXPECT_EQ(narrow.itemsShown, 2U);
    EXPECT_EQ(narrow.list, (ListPlace{.selected = 5, .first = 4}));
    EXPECT_EQ(narrow.scroll.from, 4); // there at once
    const PlayChoices usual = options.choicesWith(nullptr);
    EXPECT_EQ(usual.itemsShown, 5U);
    EXPECT_EQ(usual.list, (ListPlace{.selected = 5, .first = 1}));
    EXPECT_EQ(usual.clock, sampleClock);
}

TEST(RenderOptions, AnAnimationHasAFrameForEachMomentFromOneTimeToAnother) {
    struct Case {
        Arguments options;
        std::size_t count;
        PlayTime first;
        PlayTime last;
    };
    for (const Case& each : std::vector<Case>{
             {{}, 100, 0, 4950},
             {{"--from", "10"}, 100, 10000, 14950},
             {{"--to", "1"}, 20, 0, 950},
             {{"--fps", "1"}, 5, 0, 4000},
             {{"--fps", "12.5", "--to", "0.32"}, 4, 0, 240},
             {{"--from", "2", "--to", "2"}, 1, 2000, 2000},
             {{"--from", "0.8", "--to", "1.1", "--fps", "10"}, 3, 800, 1000},
             {{"--to", "0.301", "--fps", "10"}, 4, 0, 300},
             {{"--from", "999999", "--to", "1000000", "--fps", "3"}, 3, 999'999'000, 999'999'667},
             {{"--to", "1000", "--fps", "3"}, 3000, 0, 999'667},
             {{"--to", "60", "--fps", "50"}, 3000, 0, 59'980}}) {
        const Moments moments = optionsOf(each.options, "a.webp").moments;
        const auto name = testing::PrintToString(each.options);
        EXPECT_EQ(moments.count, each.count) << name;
        EXPECT_EQ(moments.at(0), each.first) << name;
        EXPECT_EQ(moments.at(moments.count - 1), each.last) << name;
    }
}

TEST(RenderOptions, MomentsDoNotDrift) {
    const Moments thirds{.from = 100, .perSecond = 3, .count = 3000};
    EXPECT_EQ(thirds.at(1), 433);
    EXPECT_EQ(thirds.at(2), 767);
    EXPECT_EQ(thirds.at(3), 1100);
    EXPECT_EQ(thirds.at(2999), 100 + 999'667);
    EXPECT_DOUBLE_EQ(thirds.until(0), 1.0 / 3);
    EXPECT_DOUBLE_EQ(thirds.until(2999), 1000);
}

TEST(RenderOptions, FormatsAreNamedByTheEndInAnyLetterCase) {
    EXPECT_EQ(optionsOf({}, "a.WebP").format, PictureFormat::webp);
    EXPECT_EQ(optionsOf({}, "a.b.GIF").format, PictureFormat::gif);
    EXPECT_EQ(optionsOf({}, "gif.Png").format, PictureFormat::png);
    for (const char* out : {"out", "out.jpg", "out.png.bak", ".png", "out.", "a.gif/out", ""}) {
        EXPECT_EQ(
            problemOf({"in", "Menu", out}),
            std::string("a picture ends in .png and an animation in .webp or .gif, not as \"") +
                out + "\" does");
    }
}

TEST(RenderOptions, NumbersThatAreNone) {
    for (const char* text :
         {"-1",  "-0",          "",        " ",
          "x",   "1x",          "1 ",      " 1",
          "+1",  "1,5",         "1e3",     "0x10",
          "nan", "inf",         "-inf",    "1.2.3",
          ".",   "1000000.001", "1000001", "99999999999999999999999999999999999999999",
          "1\n2"}) {
        const std::string rest =
            std::string(" takes seconds from 0 to 1000000, not \"") + text + '"';
        EXPECT_EQ(stillProblem({"--at", text}), "--at" + rest);
        EXPECT_EQ(animationProblem({"--from", text}), "--from" + rest);
        EXPECT_EQ(animationProblem({"--to", text}), "--to" + rest);
    }
    for (const char* text : {"0", "0.99", "50.01", "51", "-5", "nan", "inf", "1e1", "", "ten"}) {
        EXPECT_EQ(animationProblem({"--fps", text}),
                  std::string("--fps takes 1 to 50 frames a second, not \"") + text + '"');
    }
    for (const char* text : {"0", "10", "-1", "1.0", "", "one", "4294967297", "1 "}) {
        EXPECT_EQ(stillProblem({"--select", text}),
                  std::string("--select takes the number of an item, 1 to 9, not \"") + text + '"');
    }
}

TEST(RenderOptions, ConditionsThatAreNone) {
    for (const char* text : {"ItemPrev", "ItemPrev=", "ItemPrev=yes", "=", "", "ItemPrev=on "}) {
        EXPECT_EQ(stillProblem({"--condition", text}),
                  std::string("--condition takes NAME=on or NAME=off, not \"") + text + '"');
    }
    for (const char* name : {"Item", "", "ItemPrev ", " ItemPrev", "ItemNext  ", "ItemPrev=on"}) {
        EXPECT_EQ(stillProblem({"--condition", std::string(name) + "=off"}),
                  std::string("there is no condition \"") + name + '"');
    }
    EXPECT_EQ(stillProblem({"--condition", "None=on"}), "the condition \"None\" always holds");
    EXPECT_EQ(stillProblem({"--condition", "ItemNext=on", "--condition", "itemnext =off"}),
              "the condition \"itemnext \" is given twice");
}

TEST(RenderOptions, WhatDoesNotGoTogether) {
    EXPECT_EQ(stillProblem({"--from", "0"}),
              "--from is for an animation, which ends in .webp or .gif");
    EXPECT_EQ(stillProblem({"--to", "1"}), "--to is for an animation, which ends in .webp or .gif");
    EXPECT_EQ(stillProblem({"--at", "1", "--fps", "1"}),
              "--fps is for an animation, which ends in .webp or .gif");
    EXPECT_EQ(animationProblem({"--at", "1"}),
              "--at is for a picture that ends in .png: an animation takes --from and --to");
    EXPECT_EQ(animationProblem({"--from", "2", "--to", "1.999"}), "--to is a time before --from");
    EXPECT_EQ(animationProblem({"--to", "60.01", "--fps", "50"}),
              "an animation has at most 3000 frames, and this one would have 3001");
    EXPECT_EQ(animationProblem({"--to", "1000000", "--fps", "50"}),
              "an animation has at most 3000 frames, and this one would have 50000000");
    EXPECT_EQ(stillProblem({"--all"}), "--all draws every screen, and \"Menu\" is named besides");
    EXPECT_EQ(stillProblem({"--what"}), "render has no option \"--what\"");
    EXPECT_EQ(stillProblem({"--AT", "1"}), "render has no option \"--AT\"");
    EXPECT_EQ(stillProblem({"--at=1"}), "render has no option \"--at=1\"");
    EXPECT_EQ(stillProblem({"--at"}), "--at needs a value");
    EXPECT_EQ(stillProblem({"--at", "--select", "1"}), "--at needs a value");
    EXPECT_EQ(stillProblem({"--condition"}), "--condition needs a value");
    EXPECT_EQ(problemOf({"in", "--all", "out.png", "--all"}), "--all is given twice");
    for (const char* option : {"--from", "--to", "--fps"}) {
        EXPECT_EQ(animationProblem({option, "1", option, "1"}),
                  std::string(option) + " is given twice");
    }
    EXPECT_EQ(stillProblem({"--at", "1", "--at", "1"}), "--at is given twice");
    EXPECT_EQ(stillProblem({"--select", "1", "--select", "2"}), "--select is given twice");
}

TEST(RenderOptions, TooFewOrTooManyPlacesAreNoOptions) {
    for (const Arguments& arguments :
         {Arguments{}, Arguments{"in"}, Arguments{"in", "Menu"},
          Arguments{"in", "Menu", "a.png", "b"}, Arguments{"--all"}, Arguments{"--all", "in"},
          Arguments{"--all", "a", "b", "c", "d"}}) {
        EXPECT_FALSE(renderOptions(arguments)) << testing::PrintToString(arguments);
    }
}

// The command itself with one of each kind: nothing of a file is touched.
TEST(RenderOptions, AWrongCommandLineIsOneSentenceAndWritesNothing) {
    const TemporaryFolder folder;
    for (const char* name : {"out.png", "out.gif", "out.webp", "out.jpg"}) {
        folder.file(name, "kept");
    }
    const auto entries = [&] {
        std::set<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder.path())) {
            names.insert(entry.path().filename().string() + ": " + readFile(entry.path()));
        }
        return names;
    };
    const auto before = entries();
    const auto png = (folder / "out.png").string();
    const auto gif = (folder / "out.gif").string();
    for (const Arguments& arguments :
         std::vector<Arguments>{{aurora, "Lobby", png},
                                {aurora, "Menu", (folder / "out.jpg").string()},
                                {aurora, "Menu", (folder / "new").string()},
                                {aurora, "Menu", png, "--at", "-1"},
                                {aurora, "Menu", png, "--at", "1\n2"},
                                {aurora, "Menu", png, "--at"},
                                {aurora, "Menu", png, "--to", "1"},
                                {aurora, "Menu", png, "--select", "10"},
                                {aurora, "Menu", png, "--condition", "None=on"},
                                {aurora, "Menu", png, "--what"},
                                {aurora, "Menu", png, "--all"},
                                {aurora, "Menu", gif, "--at", "1"},
                                {aurora, "Menu", gif, "--from", "2", "--to", "1"},
                                {aurora, "Menu", (folder / "out.webp").string(), "--fps", "51"},
                                {folder.path().string(), "Menu", gif},
                                {folder.path().string(), "--all", png}}) {
        Arguments command{"render"};
        command.insert(command.end(), arguments.begin(), arguments.end());
        std::ostringstream out;
        std::ostringstream err;
        EXPECT_EQ(run(command, {out, err}), unreadable) << testing::PrintToString(arguments);
        const std::string line = err.str();
        EXPECT_EQ(out.str(), "");
        EXPECT_TRUE(line.starts_with("tarvel-skin: ")) << line;
        EXPECT_EQ(std::count(line.begin(), line.end(), '\n'), 1) << line;
        EXPECT_EQ(entries(), before) << line;
    }
}

} // namespace tarvel::tool
