// What each command does to the places of a few elements, and what it leaves alone.
#include "editing/arrange.h"
#include "support/place_support.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <random>
#include <set>
#include <string>
#include <vector>

namespace tarvel {
namespace {

using Command = ArrangeCommand;
using test::add;
using test::boxAt;
using test::lineAt;
using test::placeOf;
using Places = std::vector<Place>;

constexpr float infinity = std::numeric_limits<float>::infinity();
constexpr float noNumber = std::numeric_limits<float>::quiet_NaN();

constexpr Command allCommands[] = {
    Command::alignLeft,   Command::alignCentre, Command::alignRight,       Command::alignTop,
    Command::alignMiddle, Command::alignBottom, Command::distributeAcross, Command::distributeDown,
    Command::sameWidth,   Command::sameHeight,  Command::sameSize,         Command::centreAcross,
    Command::centreDown,  Command::fillScreen,  Command::wholePixels};

std::string nameOf(Command command) {
    return std::string(arrangeStep(command));
}

// Elements with the ids 1, 2, 3 ..., all of which a command is about.
struct Group {
    SkinDocument document;
    std::vector<int> ids;

    void add(Element element) { ids.push_back(test::add(document, std::move(element))); }
    bool arrange(int leading, Command command) {
        return tarvel::arrange(document, ids, leading, command);
    }
    [[nodiscard]] bool isPossible(int leading, Command command) const {
        return tarvel::isPossible(document, ids, leading, command);
    }
    [[nodiscard]] Places places() const {
        Places result;
        for (const int id : ids) {
            result.push_back(placeOf(document, id));
        }
        return result;
    }
};

Group boxes(const Places& places) {
    Group group;
    for (const Place& place : places) {
        group.add(boxAt(place));
    }
    return group;
}

TEST(Arrange, AlignsSeveralToTheLeadingOne) {
    // Two boxes and a line that rises to the right; the box in the middle leads.
    const Places start = {{10, 20, 30, 40}, {100, 200, 50, 60}, {300, 90, 340, 70}};
    struct Case {
        Command command;
        Places places;
    };
    const Case cases[] = {
        {Command::alignLeft, {{100, 20, 30, 40}, start[1], {100, 90, 140, 70}}},
        {Command::alignCentre, {{110, 20, 30, 40}, start[1], {105, 90, 145, 70}}},
        {Command::alignRight, {{120, 20, 30, 40}, start[1], {110, 90, 150, 70}}},
        {Command::alignTop, {{10, 200, 30, 40}, start[1], {300, 220, 340, 200}}},
        {Command::alignMiddle, {{10, 210, 30, 40}, start[1], {300, 240, 340, 220}}},
        {Command::alignBottom, {{10, 220, 30, 40}, start[1], {300, 260, 340, 240}}},
    };
    for (const auto& c : cases) {
        Group group = boxes({start[0], start[1]});
        group.add(lineAt(start[2]));
        EXPECT_TRUE(group.arrange(2, c.command));
        EXPECT_EQ(group.places(), c.places) << nameOf(c.command);
        EXPECT_FALSE(group.arrange(2, c.command)) << nameOf(c.command);
    }
}

TEST(Arrange, AlignsOneToTheScreen) {
    struct Case {
        Command command;
        Place box;
        Place line;
    };
    const Case cases[] = {
        {Command::alignLeft, {0, 20, 31, 40}, {40, 70, 0, 90}},
        {Command::alignCentre, {304.5F, 20, 31, 40}, {340, 70, 300, 90}},
        {Command::alignRight, {609, 20, 31, 40}, {640, 70, 600, 90}},
        {Command::alignTop, {10, 0, 31, 40}, {350, 0, 310, 20}},
        {Command::alignMiddle, {10, 220, 31, 40}, {350, 230, 310, 250}},
        {Command::alignBottom, {10, 440, 31, 40}, {350, 460, 310, 480}},
    };
    for (const auto& c : cases) {
        Group box = boxes({{10, 20, 31, 40}});
        EXPECT_TRUE(box.arrange(1, c.command));
        EXPECT_EQ(box.places(), Places{c.box}) << nameOf(c.command);
        Group line;
        line.add(lineAt({350, 70, 310, 90}));
        EXPECT_TRUE(line.arrange(1, c.command));
        EXPECT_EQ(line.places(), Places{c.line}) << nameOf(c.command);
    }
}

TEST(Arrange, DistributesWithEqualGapsBetweenTheOutermost) {
    struct Case {
        Places start;
        Places places;
    };
    const Case cases[] = {
        {{{0, 0, 10, 9}, {12, 5, 20, 9}, {100, 9, 30, 9}},
         {{0, 0, 10, 9}, {45, 5, 20, 9}, {100, 9, 30, 9}}},
        // The order is that of their middles, whichever was picked first.
        {{{98, 0, 10, 9}, {90, 0, 10, 9}, {0, 0, 10, 9}, {5, 0, 30, 9}},
         {{98, 0, 10, 9}, {72, 0, 10, 9}, {0, 0, 10, 9}, {26, 0, 30, 9}}},
        // Too little room: the gaps are negative, and equal.
        {{{0, 0, 50, 9}, {70, 0, 50, 9}, {60, 0, 50, 9}, {90, 0, 50, 9}},
         {{0, 0, 50, 9}, {60, 0, 50, 9}, {30, 0, 50, 9}, {90, 0, 50, 9}}},
        {{{0, 0, 10, 9}, {0, 0, 10, 9}, {0, 0, 10, 9}},
         {{0, 0, 10, 9}, {0, 0, 10, 9}, {0, 0, 10, 9}}},
        {{{0, 0, 10, 9}, {50, 0, -20, 9}, {100, 0, 10, 9}}, // a negative size counts as zero
         {{0, 0, 10, 9}, {55, 0, -20, 9}, {100, 0, 10, 9}}},
    };
    for (const auto& c : cases) {
        Group across = boxes(c.start);
        EXPECT_EQ(across.arrange(1, Command::distributeAcross), c.start != c.places);
        EXPECT_EQ(across.places(), c.places) << testing::PrintToString(c.start);
        const auto turned = [](Places places) {
            for (auto& place : places) {
                place = {place[1], place[0], place[3], place[2]};
            }
            return places;
        };
        Group down = boxes(turned(c.start));
        EXPECT_EQ(down.arrange(1, Command::distributeDown), c.start != c.places);
        EXPECT_EQ(down.places(), turned(c.places)) << testing::PrintToString(c.start);
    }
}

TEST(Arrange, DistributesLinesByBothEnds) {
    Group group = boxes({{0, 0, 10, 10}, {100, 0, 10, 10}});
    group.add(lineAt({30, 50, 20, 90}));
    EXPECT_TRUE(group.arrange(1, Command::distributeAcross));
    EXPECT_EQ(group.places(), (Places{{0, 0, 10, 10}, {100, 0, 10, 10}, {60, 50, 50, 90}}));
}

TEST(Arrange, MirroredElementsAreDistributedAsMirrored) {
    std::mt19937 random(7); // NOLINT: the same numbers in every run
    for (int round = 0; round < 200; ++round) {
        Places start;
        Places mirrored;
        for (int i = 0; i < 6; ++i) {
            const auto left = static_cast<float>(random() % 500);
            const auto width = static_cast<float>(random() % 100) + static_cast<float>(i) / 8;
            start.push_back({left, 0, width, 10});
            mirrored.push_back({640 - left - width, 0, width, 10});
        }
        Group one = boxes(start);
        Group other = boxes(mirrored);
        one.arrange(1, Command::distributeAcross);
        other.arrange(1, Command::distributeAcross);
        for (int i = 0; i < 6; ++i) {
            const Place place = one.places()[static_cast<std::size_t>(i)];
            const Place opposite = other.places()[static_cast<std::size_t>(i)];
            EXPECT_NEAR(place[0], 640 - opposite[0] - place[2], 1e-3) << round << ' ' << i;
        }
    }
}

TEST(Arrange, MakesSizesTheLeadingOnes) {
    struct Case {
        Command command;
        Place box;
        Place line;
        Place flat;
    };
    const Place start{10, 20, 30, 40};
    const Case cases[] = {
        {Command::sameWidth, {10, 20, 50, 40}, {350, 90, 300, 70}, {5, 6, 55, 6}},
        {Command::sameHeight, {10, 20, 30, 60}, {340, 130, 300, 70}, {5, 6, 9, 6}},
        {Command::sameSize, {10, 20, 50, 60}, {350, 130, 300, 70}, {5, 6, 55, 6}},
    };
    for (const auto& c : cases) {
        Group group = boxes({start, {100, 200, 50, 60}});
        group.add(lineAt({340, 90, 300, 70}));
        group.add(lineAt({5, 6, 9, 6}));
        EXPECT_TRUE(group.arrange(2, c.command));
        EXPECT_EQ(group.places(), (Places{c.box, {100, 200, 50, 60}, c.line, c.flat}))
            << nameOf(c.command);
    }
}

TEST(Arrange, MakesNoSideShorterThanAPixel) {
    Group group = boxes({{10, 20, 30, 40}, {10, 20, -5, 0.25F}});
    group.add(lineAt({9, 9, 5, 1}));
    EXPECT_TRUE(group.arrange(2, Command::sameSize));
    EXPECT_EQ(group.places(), (Places{{10, 20, 1, 1}, {10, 20, -5, 0.25F}, {6, 2, 5, 1}}));
}

TEST(Arrange, CentresTheGroupAsAWhole) {
    Group group = boxes({{10, 20, 30, 40}, {100, 200, 50, 61}});
    group.add(lineAt({140, 30, 120, 100}));
    EXPECT_TRUE(group.arrange(1, Command::centreAcross));
    EXPECT_EQ(group.places(), (Places{{250, 20, 30, 40}, {340, 200, 50, 61}, {380, 30, 360, 100}}));
    EXPECT_TRUE(group.arrange(1, Command::centreDown));
    EXPECT_EQ(group.places(),
              (Places{{250, 119.5F, 30, 40}, {340, 299.5F, 50, 61}, {380, 129.5F, 360, 199.5F}}));
    EXPECT_FALSE(group.arrange(1, Command::centreDown));
}

TEST(Arrange, FillsTheScreenWithEach) {
    Group group = boxes({{10, 20, 30, 40}, {900, -20, 0, -7}});
    group.add(lineAt({140, 30, 120, 100}));
    group.add(lineAt({140, 30, 160, 30})); // level: its height cannot be stretched
    group.add(lineAt({140, 30, 140, 30}));
    EXPECT_TRUE(group.arrange(1, Command::fillScreen));
    EXPECT_EQ(group.places(), (Places{{0, 0, 640, 480},
                                      {0, 0, 640, 480},
                                      {640, 0, 0, 480},
                                      {0, 30, 640, 30},
                                      {140, 30, 140, 30}}));
}

TEST(Arrange, BringsPlacesToWholePixels) {
    Group group = boxes({{10.5F, 11.5F, 30.4F, 40.6F},
                         {-0.5F, -1.25F, 0.2F, 0},
                         {-3.6F, 0, -2.5F, 1},
                         {1e30F, -1e30F, 3e9F, 1}});
    group.add(lineAt({1.4F, 2.6F, -3.5F, 4.5F}));
    EXPECT_TRUE(group.arrange(1, Command::wholePixels));
    EXPECT_EQ(group.places(), (Places{{10, 12, 30, 41},
                                      {0, -1, 1, 0},
                                      {-4, 0, -2, 1},
                                      {1e30F, -1e30F, 3e9F, 1},
                                      {1, 3, -4, 4}}));
    EXPECT_FALSE(group.arrange(1, Command::wholePixels));
}

TEST(Arrange, NeverChangesLockedElements) {
    for (const Command command : allCommands) {
        Group group =
            boxes({{10.5F, 20, 30, 40}, {100, 200.5F, 50, 60}, {300, 31, 7, 8}, {9, 9, 9, 9}});
        test::setLocked(group.document, 2, true);
        test::setLocked(group.document, 3, true);
        const Places before = group.places();
        group.arrange(1, command);
        EXPECT_EQ(group.places()[1], before[1]) << nameOf(command);
        EXPECT_EQ(group.places()[2], before[2]) << nameOf(command);
        test::setLocked(group.document, 1, true);
        test::setLocked(group.document, 4, true);
        const SkinDocument locked = group.document;
        EXPECT_FALSE(group.isPossible(1, command)) << nameOf(command);
        EXPECT_FALSE(group.arrange(1, command)) << nameOf(command);
        EXPECT_EQ(group.document, locked) << nameOf(command);
    }
}

TEST(Arrange, GoesByALockedLeadingElement) {
    Group group = boxes({{10, 20, 30, 40}, {100, 200, 50, 60}});
    test::setLocked(group.document, 2, true);
    EXPECT_TRUE(group.arrange(2, Command::alignLeft));
    EXPECT_TRUE(group.arrange(2, Command::sameWidth));
    EXPECT_EQ(group.places(), (Places{{100, 20, 50, 40}, {100, 200, 50, 60}}));
    // The other way round the one that is left is aligned to the screen.
    EXPECT_TRUE(group.arrange(1, Command::alignLeft));
    EXPECT_EQ(group.places()[0], (Place{0, 20, 50, 40}));
    EXPECT_FALSE(group.arrange(1, Command::sameHeight));
}

TEST(Arrange, LeavesOutWhatTakesPartInNothing) {
    Group group = boxes({{0, 0, 10, 9}, {20, 0, 10, 9}, {100, 0, 10, 9}, {40, 0, 10, 9}});
    test::setLocked(group.document, 4, true);
    EXPECT_TRUE(group.arrange(4, Command::distributeAcross)); // as if three were chosen
    EXPECT_EQ(group.places(),
              (Places{{0, 0, 10, 9}, {50, 0, 10, 9}, {100, 0, 10, 9}, {40, 0, 10, 9}}));
    EXPECT_TRUE(group.arrange(4, Command::centreAcross));
    EXPECT_EQ(group.places()[0], (Place{265, 0, 10, 9}));
}

// Compares numbers as they are kept, so that what is no number equals itself.
std::vector<std::string> texts(const Places& places) {
    std::vector<std::string> result;
    for (const Place& place : places) {
        result.push_back(testing::PrintToString(place));
    }
    return result;
}

TEST(Arrange, StandsBadInput) {
    const Places bad = {{noNumber, 1, 2, 3}, {1, infinity, 2, 3}, {1, 2, -infinity, 3}};
    for (const Command command : allCommands) {
        Group group = boxes(bad);
        group.add(lineAt({1, 2, noNumber, 3}));
        const Places before = group.places();
        for (const int leading : {0, 1, 4, -1, 99}) {
            EXPECT_FALSE(group.isPossible(leading, command)) << nameOf(command);
            EXPECT_FALSE(group.arrange(leading, command)) << nameOf(command);
        }
        EXPECT_EQ(texts(group.places()), texts(before)) << nameOf(command);

        const std::vector<int> none;
        EXPECT_FALSE(arrange(group.document, none, 0, command));
        const std::vector<int> nobody = {0, -1, 99};
        EXPECT_FALSE(arrange(group.document, nobody, 99, command));
        EXPECT_EQ(texts(group.places()), texts(before)) << nameOf(command);

        // Among good ones they are left as they are.
        group.add(boxAt({10.5F, 10.5F, 20, 20}));
        group.add(boxAt({3e38F, -3e38F, 3e38F, 3e38F}));
        group.add(boxAt({50, 50, 20, 20}));
        group.arrange(7, command);
        group.arrange(1, command);
        Places after = group.places();
        after.resize(before.size());
        EXPECT_EQ(texts(after), texts(before)) << nameOf(command);
    }
}

TEST(Arrange, AlignsAndSizesByTheLeadingOneOnly) {
    for (const int leading : {0, 99, 3}) { // none, no element, and one that is not chosen
        Group group = boxes({{10, 20, 30, 40}, {100, 200, 50, 60}});
        add(group.document, boxAt({1, 2, 3, 4}));
        const SkinDocument before = group.document;
        for (const Command command :
             {Command::alignLeft, Command::alignBottom, Command::sameSize}) {
            EXPECT_FALSE(group.isPossible(leading, command)) << nameOf(command);
            EXPECT_FALSE(group.arrange(leading, command)) << nameOf(command);
        }
        EXPECT_EQ(group.document, before);
    }
}

TEST(Arrange, GoesByNoLeadingElementWithoutAPlace) {
    Group group = boxes({{10, 20, 30, 40}, {100, 200, 50, 60}, {noNumber, 0, infinity, 4}});
    for (const Command command : {Command::alignCentre, Command::alignTop, Command::sameWidth}) {
        EXPECT_FALSE(group.isPossible(3, command)) << nameOf(command);
        EXPECT_FALSE(group.arrange(3, command)) << nameOf(command);
    }
    EXPECT_EQ(placeOf(group.document, 1), (Place{10, 20, 30, 40}));
    EXPECT_EQ(placeOf(group.document, 2), (Place{100, 200, 50, 60}));
}

TEST(Arrange, CountsAnElementOnce) {
    Group group = boxes({{0, 0, 10, 9}, {20, 0, 10, 9}});
    group.ids = {1, 2, 2, 1, 2};
    EXPECT_FALSE(group.isPossible(1, Command::distributeAcross));
    group.ids = {1, 1, 1};
    EXPECT_TRUE(group.arrange(1, Command::alignRight)); // one: to the screen
    EXPECT_EQ(placeOf(group.document, 1), (Place{630, 0, 10, 9}));
}

TEST(Arrange, TellsWhatIsPossible) {
    for (const Command command : allCommands) {
        const bool distributes =
            command == Command::distributeAcross || command == Command::distributeDown;
        const bool sizes = command == Command::sameWidth || command == Command::sameHeight ||
                           command == Command::sameSize;
        const std::size_t fewest = distributes ? 3 : sizes ? 2 : 1;
        Group group;
        for (std::size_t count = 0; count <= 4; ++count) {
            EXPECT_EQ(group.isPossible(1, command), count >= fewest)
                << nameOf(command) << ' ' << count;
            group.add(boxAt({10, 10, 20, 20}));
        }
    }
}

TEST(Arrange, TellsOnlyOfElementsThatChange) {
    Group group = boxes({{10, 20, 30, 40}, {100, 200, 50, 60}, {10, 90, 5, 5}});
    test::RecordingObserver observer;
    const auto watch = group.document.watch(observer);
    EXPECT_TRUE(group.arrange(1, Command::alignLeft));
    EXPECT_EQ(observer.notes.size(), 1U);
    EXPECT_FALSE(group.document.isEditOpen());
}

TEST(Arrange, HasAStepNameOfItsOwnForEachCommand) {
    std::set<std::string> names;
    for (const Command command : allCommands) {
        names.insert(nameOf(command));
    }
    EXPECT_EQ(names.size(), std::size(allCommands));
    EXPECT_EQ(arrangeStep(Command::alignLeft), "align left");
    EXPECT_EQ(arrangeStep(Command::distributeDown), "distribute down");
    EXPECT_EQ(arrangeStep(Command::sameHeight), "make same height");
    EXPECT_EQ(arrangeStep(Command::wholePixels), "bring to whole pixels");
}

} // namespace
} // namespace tarvel
