// The six screens: names, look-up, and the marks of screens and behaviours.
#include "document/layout_screens.h"
#include "support/document_support.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace tarvel {
namespace {

using test::addBox;

std::vector<bool> boldScreens(const SkinDocument& document) {
    std::vector<bool> bold;
    for (int screen = 0; screen < screenCount; ++screen) {
        bold.push_back(isLayoutBold(document, screen));
    }
    return bold;
}

TEST(LayoutScreens, HaveTheirNamesAndNotes) {
    constexpr std::array<std::string_view, 6> captions = {"Title", "Menu",    "Load",
                                                          "Saver", "JukeBox", "FileManager"};
    ASSERT_EQ(layoutScreens.size(), captions.size());
    for (std::size_t i = 0; i < captions.size(); ++i) {
        EXPECT_EQ(layoutScreens.at(i).caption, captions.at(i));
        EXPECT_EQ(layoutScreens.at(i).note, i >= 4 ? " (not used yet)" : "") << i;
    }
    EXPECT_EQ(layoutScreens.at(menuScreen).caption, "Menu");
    EXPECT_EQ(SkinDocument().currentLayout(), menuScreen);
}

TEST(GetLayoutNum, FindsLowerCasedCaptionsOnly) {
    struct Case {
        std::string_view name;
        int screen;
    };
    constexpr Case cases[] = {
        {"title", 0},        {"menu", 1},        {"load", 2},    {"saver", 3},
        {"jukebox", 4},      {"filemanager", 5}, {"Menu", 0},    {"MENU", 0},
        {"JukeBox", 0},      {"FileManager", 0}, {"options", 0}, {"", 0},
        {" menu", 0},        {"menu ", 0},       {"men", 0},     {"menus", 0},
        {"file manager", 0},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(getLayoutNum(c.name), c.screen) << '"' << c.name << '"';
    }
}

TEST(LayoutBolds, MarkTheScreensThatHoldElementsButNeverFileManager) {
    SkinDocument document;
    EXPECT_EQ(boldScreens(document), std::vector<bool>(6, false));
    for (int screen = 0; screen < screenCount; ++screen) {
        document = SkinDocument();
        document.setCurrentLayout(screen);
        addBox(document, "A");
        document.setCurrentLayout(menuScreen);
        std::vector<bool> expected(6, false);
        expected.at(static_cast<std::size_t>(screen)) = screen != 5;
        EXPECT_EQ(boldScreens(document), expected) << screen;

        document.setCurrentLayout(screen);
        document.delItem(0);
        document.setScreenElementCount(screen, 0);
        EXPECT_EQ(boldScreens(document), std::vector<bool>(6, false)) << screen;
    }
}

TEST(LayoutBolds, GoByTheCount) {
    SkinDocument document;
    document.setScreenElementCount(0, 2);
    document.setScreenElementCount(2, -1);
    document.setScreenElementCount(4, 1);
    document.setScreenElementCount(5, 9);
    EXPECT_EQ(boldScreens(document), (std::vector<bool>{true, false, false, false, true, false}));
}

TEST(NoCondition, IsTheEmptyTextOrNoneInAnyLetterCase) {
    for (const std::string_view text : {"", "none", "None", "NONE", "nOnE"}) {
        EXPECT_TRUE(isNoCondition(text)) << text;
    }
    for (const std::string_view text : {" ", "none ", " none", "nothing", "0", "ItemNext "}) {
        EXPECT_FALSE(isNoCondition(text)) << text;
    }
}

TEST(BehaviourMarks, ShowWhatAnElementCarries) {
    struct Case {
        const char* what;
        void (*give)(Element&);
        BehaviourMarks marks;
    };
    const Case cases[] = {
        {"nothing", [](Element&) {}, {}},
        {"modifier",
         [](Element& e) { e.elementModifiers.edit().addChild(XmlTree::top, "Modifier"); },
         {.modifiers = true}},
        {"empty modifier slot", [](Element& e) { e.elementModifiers.edit().shrinkToFit(); }, {}},
        {"delay", [](Element& e) { e.elementTimers[0] = 1; }, {.timers = true}},
        {"cycle on", [](Element& e) { e.elementTimers[1] = 1; }, {.timers = true}},
        {"cycle off", [](Element& e) { e.elementTimers[2] = -1; }, {.timers = true}},
        {"lifetime", [](Element& e) { e.elementTimers[3] = 500; }, {.timers = true}},
        {"timers that cancel",
         [](Element& e) {
             e.elementTimers = {1, -1, 0, 0};
         },
         {.timers = true}},
        {"condition", [](Element& e) { e.elementCondition = "ItemNext "; }, {.condition = true}},
        {"None", [](Element& e) { e.elementCondition = "None"; }, {}},
        {"NONE", [](Element& e) { e.elementCondition = "NONE"; }, {}},
        {"all",
         [](Element& e) {
             e.elementModifiers.edit().addChild(XmlTree::top, "Modifier");
             e.elementTimers = {1, 2, 3, 4};
             e.elementCondition = "MenuOpen";
         },
         {true, true, true}},
    };
    for (const auto& c : cases) {
        Element element;
        c.give(element);
        EXPECT_EQ(behaviourMarks(element), c.marks) << c.what;
    }
}

TEST(BehaviourMarks, AreAllPlainForTheSlotWithoutAnElement) {
    SkinDocument document;
    addBox(document, "A");
    document.editElement(1, [](Element& e) { e.elementTimers = {1, 2, 3, 4}; });
    EXPECT_EQ(behaviourMarks(document.element(0)), BehaviourMarks{});
    EXPECT_TRUE(behaviourMarks(document.element(1)).timers);
}

} // namespace
} // namespace tarvel
