// Commands on several rows or elements at once: stacking, deleting, position fields, applying.
#include "document/element_kinds.h"
#include "editing/element_update.h"
#include "editing/position_fields.h"
#include "editing/several_values.h"
#include "editing/stacking.h"
#include "editing/step_names.h"
#include "support/document_support.h"

#include <gtest/gtest.h>

#include <map>

namespace tarvel {
namespace {

using Ids = std::vector<int>;

// Rows of the ids 1 to 6 on "Menu", the first so many locked.
SkinDocument sixBoxes(int locked = 0) {
    SkinDocument document;
    for (int i = 0; i < 6; ++i) {
        test::addBox(document, std::string(1, static_cast<char>('A' + i)));
    }
    lockRows(document, locked - 1);
    return document;
}

TEST(RestackRows, KeepsTheirOrderAmongEachOther) {
    struct Case {
        int locked;
        Ids rows;
        StackingCommand command;
        Ids order;
    };
    using enum StackingCommand;
    const Case cases[] = {
        {0, {1, 3}, Front, {1, 3, 5, 6, 2, 4}},
        {0, {1, 3}, Back, {2, 4, 1, 3, 5, 6}},
        {0, {1, 3}, Forward, {1, 3, 2, 5, 4, 6}},
        {0, {1, 3}, Backward, {2, 1, 4, 3, 5, 6}},
        {0, {4, 5}, Forward, {1, 2, 3, 4, 5, 6}}, // nothing to pass
        {0, {3, 5}, Forward, {1, 2, 3, 5, 4, 6}}, // the last stays
        {0, {0, 1}, Backward, {1, 2, 3, 4, 5, 6}},
        {0, {0, 2}, Backward, {1, 3, 2, 4, 5, 6}},
        {0, {2, 3}, Forward, {1, 2, 5, 3, 4, 6}}, // together
        {0, {2, 3}, Backward, {1, 3, 4, 2, 5, 6}},
        {0, {0, 1, 2, 3, 4, 5}, Front, {1, 2, 3, 4, 5, 6}},
        {2, {3, 5}, Back, {1, 2, 4, 6, 3, 5}}, // never behind the locked ones
        {2, {2, 4}, Backward, {1, 2, 3, 5, 4, 6}},
        {2, {0, 1, 3}, Front, {1, 2, 3, 5, 6, 4}}, // nor are these moved
        {6, {1, 3}, Front, {1, 2, 3, 4, 5, 6}},
    };
    for (const Case& c : cases) {
        SkinDocument document = sixBoxes(c.locked);
        const bool changed = restackRows(document, c.rows, c.command);
        EXPECT_EQ(test::rowIds(document, 1), c.order) << testing::PrintToString(c.rows);
        EXPECT_EQ(changed, c.order != Ids({1, 2, 3, 4, 5, 6}));
    }
}

TEST(RestackRows, MovesASingleRowAsItsOwnCommandDoes) {
    using enum StackingCommand;
    for (const StackingCommand command : {Front, Back, Forward, Backward}) {
        for (int locked = 0; locked < 3; ++locked) {
            for (int row = 0; row < 6; ++row) {
                SkinDocument one = sixBoxes(locked);
                SkinDocument several = one;
                restack(one, row, command);
                restackRows(several, {row}, command);
                EXPECT_EQ(several, one) << row;
            }
        }
    }
}

TEST(DeleteRows, TakesAllAndCountsThem) {
    SkinDocument document = sixBoxes(2);
    test::RecordingObserver observer;
    const DocumentWatch watch = document.watch(observer);
    EXPECT_TRUE(deleteRows(document, {0, 3, 5}));
    EXPECT_EQ(test::rowIds(document, 1), (Ids{2, 3, 5}));
    EXPECT_EQ(document.screenElementCount(1), 3);
    EXPECT_EQ(document.lockCount(1), 1);
    EXPECT_EQ(observer.notes.front(), "rows 1 -1"); // of all at once
    EXPECT_FALSE(deleteRows(document, {1, 2}));
    EXPECT_EQ(document.lockCount(1), 1);
}

TEST(ManyElements, AreToldOfAtOnce) {
    SkinDocument document;
    constexpr int many = 65;
    for (int i = 0; i < many; ++i) {
        test::addBox(document, "A");
    }
    test::RecordingObserver observer;
    const DocumentWatch watch = document.watch(observer);
    lockRows(document, many - 2);
    EXPECT_EQ(observer.notes.size(), 2U * (many - 1) + 1); // one by one
    observer.notes.clear();
    unlockRows(document);
    lockRows(document, many - 1);
    EXPECT_EQ(observer.notes.back(), "counts 1 -1");
    observer.notes.clear();
    unlockRows(document);
    EXPECT_EQ(observer.notes,
              (std::vector<std::string>{"elements -1 -1", "rowTexts -1 -1", "counts 1 -1"}));
    EXPECT_EQ(document.rowText(1, 3), "A");
}

// Of id 1 a box, of id 2 a line, of id 3 a locked box, of id 4 another box, of id 5 another line.
SkinDocument places() {
    SkinDocument document;
    const auto add = [&](ControlKind kind, Place place) {
        Element element;
        element.elementKind = kind == ControlKind::lin ? ElementKind::Line : ElementKind::Box;
        element.elementControl.kind = kind;
        setPlace(element.elementControl, place);
        document.addElement(std::move(element));
    };
    add(ControlKind::box, {10, 20, 30, 40});
    add(ControlKind::lin, {1, 2, 3, 4});
    add(ControlKind::box, {50, 60, 70, 80});
    add(ControlKind::box, {100, 200, 5, 6});
    add(ControlKind::lin, {11, 12, 13, 14});
    document.editElement(3, [](Element& element) { element.elementLocked = true; });
    return document;
}

TEST(EnterPositions, TakesTheOthersAlong) {
    struct Case {
        const char* what;
        Ids ids;
        PositionField field;
        const char* text;
        std::map<int, Place> after; // of those that change
    };
    const Case cases[] = {
        {"left",
         {2, 4, 1},
         PositionField::L,
         "15",
         {{1, {15, 20, 30, 40}}, {2, {6, 2, 8, 4}}, {4, {105, 200, 5, 6}}}},
        {"top",
         {2, 4, 1},
         PositionField::T,
         "10",
         {{1, {10, 10, 30, 40}}, {2, {1, -8, 3, -6}}, {4, {100, 190, 5, 6}}}},
        {"width",
         {2, 4, 1},
         PositionField::W,
         "32",
         {{1, {10, 20, 32, 40}}, {2, {1, 2, 5, 4}}, {4, {100, 200, 7, 6}}}},
        {"height, never below nothing",
         {2, 4, 1},
         PositionField::H,
         "10",
         {{1, {10, 20, 30, 10}}, {2, {1, 2, 3, -26}}, {4, {100, 200, 5, 0}}}},
        {"first end",
         {5, 4, 2},
         PositionField::L,
         "0",
         {{2, {0, 2, 3, 4}}, {4, {99, 200, 5, 6}}, {5, {10, 12, 13, 14}}}},
        {"second end",
         {5, 4, 2},
         PositionField::H,
         "9",
         {{2, {1, 2, 3, 9}}, {4, {100, 200, 5, 11}}, {5, {11, 12, 13, 19}}}},
        {"locked ones stay", {3, 1}, PositionField::L, "11", {{1, {11, 20, 30, 40}}}},
        {"a locked one does not lead", {1, 3}, PositionField::L, "11", {}},
        {"the same number", {4, 1}, PositionField::L, "10", {}},
        {"one alone", {1}, PositionField::W, "-3", {{1, {10, 20, 0, 40}}}},
        {"none", {}, PositionField::W, "3", {}},
    };
    for (const Case& c : cases) {
        SkinDocument document = places();
        EXPECT_EQ(enterPositions(document, c.ids, c.field, c.text), !c.after.empty()) << c.what;
        SkinDocument expected = places();
        for (const auto& [id, place] : c.after) {
            expected.editElement(
                id, [&, at = place](Element& element) { setPlace(element.elementControl, at); });
        }
        EXPECT_EQ(document, expected) << c.what;
    }
}

// A red and a blue box, a text with words, a line; the box 2 is locked.
SkinDocument colours() {
    SkinDocument document;
    const auto add = [&](ElementKind kind, ControlKind control, ColorNumber color, int alpha) {
        Element element;
        element.elementKind = kind;
        element.elementAlpha = static_cast<std::int16_t>(alpha);
        element.elementControl.kind = control;
        element.elementControl.borderColor = color;
        element.elementControl.borderStyle = BorderStyle::solid;
        element.elementControl.textColor = color;
        element.elementControl.caption = kind == ElementKind::Text ? "words" : "";
        element.textIsConstant = kind == ElementKind::Text;
        element.label = rulesOf(kind).label(element);
        document.addElement(std::move(element));
    };
    add(ElementKind::Box, ControlKind::box, makeColor(255, 0, 0), 50);
    add(ElementKind::Box, ControlKind::box, makeColor(0, 0, 255), 80);
    add(ElementKind::Text, ControlKind::txt, makeColor(1, 2, 3), 50);
    add(ElementKind::Line, ControlKind::lin, makeColor(0, 0, 255), 100);
    return document;
}

PanelValues panelOf(const SkinDocument& document, int id) {
    PanelValues values;
    (void)showEditControls(document.element(id), document.settings().resources, values);
    return values;
}

SkinDocument menus(const std::vector<MenuSettings>& settings) {
    SkinDocument document;
    for (const MenuSettings& each : settings) {
        Element menu;
        menu.elementKind = ElementKind::Menu;
        menu.elementControl.kind = ControlKind::qor;
        menu.menuSettings = SharedValue(each);
        document.addElement(std::move(menu));
    }
    return document;
}

VariousParts variousOf(const SkinDocument& document, const Ids& ids) {
    return variousParts(document, ids, panelOf(document, ids.back()));
}

TEST(SeveralValues, TellsWhatDiffersOfWhatTheLeadingOneHas) {
    const SkinDocument document = colours();
    EXPECT_EQ(variousOf(document, {1}), VariousParts{});
    EXPECT_EQ(variousOf(document, {1, 2}), (VariousParts{.border = true, .opacity = true}));
    EXPECT_EQ(variousOf(document, {4, 2}), VariousParts{}); // a line has no opacity
    EXPECT_EQ(variousOf(document, {2, 3}), (VariousParts{.fill = true, .opacity = true}));
    EXPECT_EQ(variousParts(document, {}, PanelValues()), VariousParts{});
}

TEST(SeveralValues, ShowsNothingThatCouldBeChosenInItsPlace) {
    const SkinDocument document = colours();
    const VariousParts all{true, true, true, true, true, true};
    const PanelValues leading = panelOf(document, 1);
    const PanelValues shown = withoutVarious(leading, all);
    EXPECT_TRUE(isVarious(shown.border));
    EXPECT_TRUE(isVarious(shown.fill));
    EXPECT_TRUE(isVarious(shown.font));
    EXPECT_EQ(shown.opacity, "");
    EXPECT_EQ(withLeading(shown, all, leading), leading);
    PanelValues chosen = shown;
    clearFill(chosen);
    EXPECT_FALSE(isVarious(chosen.fill));
    chosen.border = {FillStyle::solid, makeColor(9, 9, 9)};
    const PanelValues back = withLeading(chosen, all, leading);
    EXPECT_EQ(back.border, chosen.border);
    EXPECT_EQ(back.opacity, "100"); // clearing a fill sets it
    EXPECT_EQ(back.resource, leading.resource);
    EXPECT_EQ(withoutVarious(leading, {}), leading);
}

TEST(SeveralValues, TellWhichSettingsOfMenusDiffer) {
    const MenuSettings first;
    struct Case {
        const char* name;
        std::size_t part;
        void (*change)(MenuSettings&);
    };
    constexpr auto other = "255";
    const std::vector<Case> cases = {
        {"thumbnails", 0, [](MenuSettings& menu) { menu.thumbnailsVisible ^= true; }},
        {"scrolling", 1, [](MenuSettings& menu) { menu.smoothScroll ^= true; }},
        {"glow", 2, [](MenuSettings& menu) { menu.glowSelected ^= true; }},
        {"descriptions", 3, [](MenuSettings& menu) { menu.showDescription ^= true; }},
        {"factor", 4, [](MenuSettings& menu) { menu.scrollFactor = 7; }},
        {"items", 5, [](MenuSettings& menu) { menu.itemsShown = 8; }},
        {"titles", 6, [](MenuSettings& menu) { menu.titleAlignment = "Center"; }},
        {"descriptions' alignment", 7,
         [](MenuSettings& menu) { menu.descriptionAlignment = "Center"; }},
        {"selected title", 8, [](MenuSettings& menu) { menu.selectedTitleColor = other; }},
        {"other titles", 9, [](MenuSettings& menu) { menu.unselectedTitleColor = other; }},
        {"selected description", 10,
         [](MenuSettings& menu) { menu.selectedDescriptionColor = other; }},
        {"other descriptions", 11,
         [](MenuSettings& menu) { menu.unselectedDescriptionColor = other; }},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.name);
        MenuSettings second = first;
        each.change(second);
        const SkinDocument document = menus({first, second, first});
        const PanelValues leading = panelOf(document, 1);
        VariousParts expected;
        expected.menu.at(each.part) = true;
        const VariousParts various = variousOf(document, {2, 3, 1});
        EXPECT_EQ(various, expected);
        const PanelValues shown = withoutVarious(leading, various);
        EXPECT_FALSE(shown.menu == leading.menu);
        EXPECT_EQ(withLeading(shown, various, leading), leading);
    }
}

TEST(ApplyChanged, GivesMenusWhatTheLeadingOneHasAlready) {
    MenuSettings second;
    second.glowSelected = !second.glowSelected;
    SkinDocument document = menus({MenuSettings(), second});
    const PanelValues leading = panelOf(document, 2);
    const PanelValues before = withoutVarious(leading, variousOf(document, {1, 2}));
    EXPECT_TRUE(before.menu.glowSelected.isVarious());
    PanelValues now = before;
    now.menu.glowSelected = second.glowSelected;
    EXPECT_TRUE(applyChanged(document, {1, 2}, before, now));
    EXPECT_EQ(document.element(1).menuSettings, document.element(2).menuSettings);
    EXPECT_EQ(document.element(1).menuSettings->glowSelected, second.glowSelected);
}

TEST(ApplyChanged, GivesOnlyWhatWasChangedToThoseThatHaveIt) {
    SkinDocument document = colours();
    const Ids ids = {3, 4, 2, 1};
    const PanelValues leading = panelOf(document, 1);
    const PanelValues before = withoutVarious(leading, variousParts(document, ids, leading));
    EXPECT_FALSE(applyChanged(document, ids, before, before));
    EXPECT_EQ(document, colours());

    PanelValues now = before;
    now.opacity = "30";
    EXPECT_TRUE(applyChanged(document, ids, before, now));
    SkinDocument expected = colours();
    for (const int id : {1, 2, 3, 4}) {
        // The panel's opacity is taken by every kind, as by a single one.
        Element alone = expected.element(id);
        PanelValues own = panelOf(expected, id);
        own.opacity = "30";
        takePanel(own, {}, alone);
        expected.editElement(id, [&](Element& element) {
            element.elementAlpha = alone.elementAlpha;
            element.label = freshLabel(element);
        });
    }
    EXPECT_EQ(document, expected);
    EXPECT_EQ(document.element(3).elementControl.textColor, makeColor(1, 2, 3));
    EXPECT_EQ(document.element(2).elementControl.borderColor, makeColor(0, 0, 255));
}

TEST(ApplyChanged, KeepsThePrefixOfLockedRows) {
    SkinDocument document = colours();
    lockRows(document, 1);
    const PanelValues leading = panelOf(document, 2);
    PanelValues now = leading;
    now.border.color = makeColor(7, 7, 7);
    EXPECT_TRUE(applyChanged(document, {1, 2}, leading, now));
    EXPECT_TRUE(document.rowText(1, 0).starts_with(lockPrefix));
    EXPECT_EQ(document.element(1).elementControl.borderColor, makeColor(7, 7, 7));
}

TEST(ApplyChanged, TakesSingleSettingsOfMenus) {
    SkinDocument document = menus({{.itemsShown = 4}, {.itemsShown = 9}});
    const PanelValues leading = panelOf(document, 2);
    PanelValues now = leading;
    now.menu.glowSelected = !now.menu.glowSelected;
    EXPECT_TRUE(applyChanged(document, {1, 2}, leading, now));
    for (const int id : {1, 2}) {
        EXPECT_EQ(document.element(id).menuSettings->glowSelected, now.menu.glowSelected);
    }
    EXPECT_EQ(document.element(1).menuSettings->itemsShown, 4);
    EXPECT_EQ(document.element(2).menuSettings->itemsShown, 9);
}

TEST(StepNames, CountSeveralElements) {
    const SkinDocument document = colours();
    EXPECT_EQ(stepName(step::move, document, {3}), "move Text");
    EXPECT_EQ(stepName(step::move, document, {3, 1}), "move 2 elements");
}

} // namespace
} // namespace tarvel
