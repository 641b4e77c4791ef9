// A playing screen from moment to moment, against each moment made by itself.
#include "playing/played_frame.h"
#include "text/xml_parse.h"

#include <gtest/gtest.h>

#include <set>

namespace tarvel {
namespace {

constexpr int screenOfTests = 1;

ModifierCatalogue catalogue() {
    return ModifierCatalogue(parseXml("<modifiers><types><Fade preview='opacity'>Range</Fade>"
                                      "</types></modifiers>"));
}

// One of every kind of change: timers, a condition, a clock, an item's text, a list, a motion, and
// one that is always the same.
class FrameOfAll : public testing::Test {
  protected:
    FrameOfAll() {
        document.setCurrentLayout(screenOfTests);
        Element blinking = element(ElementKind::Box);
        blinking.elementTimers = {300, 200, 100, 2500};
        timed = document.addElement(std::move(blinking));
        Element conditional = element(ElementKind::Box);
        conditional.elementCondition = "ItemPrev";
        ifPrevious = document.addElement(std::move(conditional));
        clock = document.addElement(text("Time"));
        title = document.addElement(text("CGTitle"));
        Element list = element(ElementKind::Menu);
        MenuSettings settings;
        settings.itemsShown = 2;
        list.menuSettings = SharedValue(settings);
        menu = document.addElement(std::move(list));
        Element fading = element(ElementKind::Box);
        fading.elementTimers = {0, 0, 0, 1500};
        fading.elementModifiers =
            SharedValue(parseXml("<Modifier Type='Fade'><Range X='0' Y='100'/></Modifier>"));
        moving = document.addElement(std::move(fading));
        still = document.addElement(element(ElementKind::Box));
        choices.itemsShown = 2;
    }

    static Element element(ElementKind kind) {
        Element made;
        made.elementKind = kind;
        return made;
    }
    static Element text(const std::string& field) {
        Element made = element(ElementKind::Text);
        made.elementControl.caption = field;
        return made;
    }
    // The ids that were told of; the frame is compared with each element made by itself.
    std::set<int> showAt(PlayedFrame& frame, PlayTime time) {
        std::set<const PlayedElement*> changed;
        int hidden = 0;
        frame.show(time, choices, [&](const PlayedElement* before, const PlayedElement* now) {
            EXPECT_TRUE(before != nullptr || now != nullptr);
            EXPECT_FALSE(before != nullptr && now != nullptr && *before == *now);
            changed.insert(now);
            hidden += now == nullptr ? 1 : 0;
        });
        std::set<int> ids;
        for (int id = 1; id <= document.lastElementId(); ++id) {
            const auto expected = frame.screen().at(id, time, choices);
            const PlayedFrame::Look look = frame.lookOf(id);
            if (look.isAtRest) {
                EXPECT_EQ(expected, PlayedElement{document.element(id)}) << id;
            } else {
                EXPECT_EQ(expected.has_value(), look.played != nullptr) << id << " at " << time;
                EXPECT_TRUE(!expected || *expected == *look.played) << id << " at " << time;
                if (look.played != nullptr && changed.contains(look.played)) {
                    ids.insert(id);
                }
            }
        }
        return ids;
    }

    SkinDocument document;
    PlayChoices choices;
    int timed = 0, ifPrevious = 0, clock = 0, title = 0, menu = 0, moving = 0, still = 0;
};

TEST_F(FrameOfAll, IsAtEachMomentWhatTheScreenIs) {
    const PlayedScreen screen(document, screenOfTests, catalogue());
    PlayedFrame frame(screen, choices);
    for (const int time : {0, 16, 299, 300, 301, 500, 600, 2499, 2500, 9000, 2450, 400, 0}) {
        showAt(frame, time);
    }
    for (int i = 0; i < 12; ++i) {
        moveList(choices, i < 9 ? 1 : -1, screen.menu(), 100 * i);
        showAt(frame, 100 * i + 50);
    }
    choices.forced[1] = true;
    showAt(frame, 5000);
    choices.forced[1] = false;
    showAt(frame, 5000);
}

TEST_F(FrameOfAll, TellsOnlyOfWhatChanged) {
    const PlayedScreen screen(document, screenOfTests, catalogue());
    PlayedFrame frame(screen, choices);
    EXPECT_EQ(showAt(frame, 0), (std::set<int>{}));
    EXPECT_EQ(showAt(frame, 100), (std::set<int>{moving}));
    EXPECT_EQ(showAt(frame, 300), (std::set<int>{timed, moving}));
    EXPECT_EQ(showAt(frame, 1000), (std::set<int>{clock, moving}));
    EXPECT_EQ(showAt(frame, 1600), (std::set<int>{})); // the fading one has gone
    moveList(choices, 1, screen.menu(), 1600);
    EXPECT_EQ(showAt(frame, 1650), (std::set<int>{title, menu}));
    moveList(choices, 1, screen.menu(), 1650); // the list scrolls from now on
    EXPECT_EQ(showAt(frame, 1700), (std::set<int>{ifPrevious, title, menu}));
    EXPECT_EQ(showAt(frame, 1750), (std::set<int>{menu}));
    EXPECT_EQ(showAt(frame, 1820), (std::set<int>{timed, menu})); // there, at its end
    EXPECT_EQ(showAt(frame, 1830), (std::set<int>{}));
}

TEST_F(FrameOfAll, KnowsWhenToLookAgain) {
    const PlayedScreen screen(document, screenOfTests, catalogue());
    PlayedFrame frame(screen, choices);
    EXPECT_TRUE(frame.isMoving());
    EXPECT_EQ(frame.nextChange(), 300);
    showAt(frame, 310);
    EXPECT_EQ(frame.nextChange(), 500);
    showAt(frame, 1500);
    EXPECT_FALSE(frame.isMoving()); // what moved is hidden
    showAt(frame, 2850);
    EXPECT_EQ(frame.nextChange(), 3000); // the clock
    document.delItem(document.rowOf(screenOfTests, clock));
    const PlayedScreen without(document, screenOfTests, catalogue());
    PlayedFrame rest(without, choices);
    showAt(rest, 2850);
    EXPECT_EQ(rest.nextChange(), never);
}

TEST_F(FrameOfAll, LeavesWhatNeverChangesToTheDocument) {
    const PlayedScreen screen(document, screenOfTests, catalogue());
    const PlayedFrame frame(screen, choices);
    EXPECT_TRUE(frame.lookOf(still).isAtRest);
    EXPECT_EQ(screen.live().size(), 6U);
}

} // namespace
} // namespace tarvel
