// The document: ids, rows, counts and settings.
#include "document/skin_document.h"
#include "skinfile/skin_writer.h"
#include "support/document_support.h"

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace tarvel {
namespace {

using test::addBox;
using test::fourBoxes;
using test::rowIds;
using test::rowTexts;
using Ids = std::vector<int>;
using Texts = std::vector<std::string>;

constexpr int title = 0;
constexpr int menu = 1;
constexpr ColorNumber white = makeColor(255, 255, 255);

TEST(NewDocument, HoldsNothingAndShowsTheMenuScreen) {
    const SkinDocument document;
    EXPECT_EQ(document.currentLayout(), menu);
    EXPECT_EQ(document.lastElementId(), 0);
    EXPECT_FALSE(document.holdsAnything());
    for (int screen = 0; screen < screenCount; ++screen) {
        EXPECT_EQ(document.rowCount(screen), 0);
        EXPECT_EQ(document.screenElementCount(screen), 0);
        EXPECT_EQ(document.lockCount(screen), 0);
    }
    EXPECT_EQ(document.element(0), Element{});
}

TEST(NewDocument, HasTheSettingsOfANewSkin) {
    const SkinDocument document;
    const SkinSettings& settings = document.settings();
    EXPECT_EQ(settings, SkinSettings{});
    EXPECT_EQ(settings.skinName, "");
    EXPECT_EQ(settings.information,
              (std::vector<InformationField>{{"Author", ""}, {"Version", ""}, {"Copyright", ""}}));
    EXPECT_EQ(settings.music, (MusicSettings{false, false, false, false, {}, {}}));
    EXPECT_EQ(settings.delays, (std::array<double, 3>{0, 0, 0}));
    EXPECT_EQ(settings.background, (Background{false, ""}));
    EXPECT_TRUE(settings.resources.empty());
    EXPECT_EQ(settings.systemColors.opacityTexts, (std::array<std::string, 2>{"100", "100"}));
}

TEST(NewDocument, HasReadableSystemColours) {
    const auto brightness = [](ColorNumber color) {
        return 0.3 * redOf(color) + 0.6 * greenOf(color) + 0.1 * blueOf(color);
    };
    const SystemColors colors;
    for (const auto sample :
         {SampleText::messageText, SampleText::menuSelect, SampleText::menuSelectValue,
          SampleText::menuText, SampleText::menuValue}) {
        const auto index = static_cast<std::size_t>(sample);
        for (const SampleBox& box : colors.boxes) {
            EXPECT_GT(brightness(colors.texts.at(index)), 100 + brightness(box.fillColor)) << index;
        }
    }
}

TEST(NewElement, HasTheDefaultsOfTheTemplates) {
    const Element element;
    EXPECT_EQ(element.elementAlpha, 100);
    EXPECT_FALSE(element.elementLocked);
    EXPECT_FALSE(element.textIsConstant);
    EXPECT_EQ(element.elementTimers, (std::array<std::int32_t, timerSlots>{0, 0, 0, 0}));
    EXPECT_EQ(element.elementCondition, "");
    EXPECT_TRUE(element.elementModifiers->empty());
    EXPECT_EQ(element.elementControl.font->family, "Tahoma");
    const MenuSettings settings;
    EXPECT_TRUE(settings.thumbnailsVisible && settings.smoothScroll && settings.showDescription);
    EXPECT_FALSE(settings.glowSelected);
    EXPECT_EQ(settings.itemsShown, 5);
    EXPECT_EQ(settings.scrollFactor, 3);
    EXPECT_EQ(settings.titleAlignment, "left");
    EXPECT_EQ(settings.descriptionAlignment, "right");
    for (const std::string& color :
         {settings.selectedTitleColor, settings.unselectedTitleColor,
          settings.selectedDescriptionColor, settings.unselectedDescriptionColor}) {
        EXPECT_EQ(color, numberText(static_cast<int>(white)));
    }
}

TEST(ControlNames, AreShort) {
    Texts names;
    for (const auto kind : {ControlKind::box, ControlKind::lin, ControlKind::img, ControlKind::png,
                            ControlKind::vid, ControlKind::txt, ControlKind::qor}) {
        names.emplace_back(controlName(kind));
    }
    EXPECT_EQ(names, (Texts{"box", "lin", "img", "png", "vid", "txt", "qor"}));
}

TEST(KindCodes, AreThoseThatAreKept) {
    EXPECT_EQ(static_cast<int>(ElementKind::Box), 1);
    EXPECT_EQ(static_cast<int>(ElementKind::Line), 2);
    EXPECT_EQ(static_cast<int>(ElementKind::Image), 3);
    EXPECT_EQ(static_cast<int>(ElementKind::Text), 4);
    EXPECT_EQ(static_cast<int>(ElementKind::Menu), 5);
    EXPECT_TRUE((std::is_same_v<std::underlying_type_t<ElementKind>, std::int16_t>));
}

TEST(Elements, GetIdsFromOneThatAreNeverUsedAgain) {
    SkinDocument document;
    EXPECT_EQ(addBox(document, "A"), 1);
    EXPECT_EQ(addBox(document, "B"), 2);
    EXPECT_EQ(addBox(document, "C"), 3);
    document.editElement(2, [](Element& element) {
        element.elementTimers = {1, 2, 3, 4};
        element.elementCondition = "MenuOpen";
    });
    const Element before = document.element(2);

    document.delItem(1);
    EXPECT_EQ(rowIds(document, menu), (Ids{1, 3}));
    EXPECT_EQ(document.element(2), before);
    EXPECT_EQ(document.lastElementId(), 3);

    EXPECT_EQ(addBox(document, "D"), 4);
    EXPECT_EQ(document.element(2), before);
    EXPECT_EQ(rowIds(document, menu), (Ids{1, 3, 4}));
    EXPECT_EQ(document.element(0), Element{});
}

TEST(Elements, BelongToTheScreenThatWasCurrent) {
    SkinDocument document;
    document.setCurrentLayout(title);
    const int id = addBox(document, "A");
    document.setCurrentLayout(menu);
    EXPECT_EQ(document.element(id).elementLayout, title);
    EXPECT_EQ(rowIds(document, title), (Ids{id}));
    EXPECT_EQ(rowIds(document, menu), Ids{});
    EXPECT_EQ(document.screenElementCount(title), 1);
    EXPECT_EQ(document.screenElementCount(menu), 0);
}

TEST(Elements, AreUnlockedAndOnTheCurrentScreenWhateverTheRecordSays) {
    SkinDocument document;
    document.setCurrentLayout(4);
    Element element;
    element.elementLocked = true;
    element.elementLayout = 2;
    element.label = "A";
    element.elementAlpha = 33;
    const int id = document.addElement(Element(element));
    element.elementLocked = false;
    element.elementLayout = 4;
    EXPECT_EQ(document.element(id), element);
}

TEST(Elements, MayBeMany) {
    SkinDocument document;
    constexpr int many = 40'000;
    for (int i = 0; i < many; ++i) {
        addBox(document, "A");
    }
    EXPECT_EQ(document.lastElementId(), many);
    EXPECT_EQ(document.screenElementCount(menu), many);
    EXPECT_EQ(document.itemData(menu, many - 1), many);
}

TEST(Rows, GiveTheLabelAndAreFoundById) {
    SkinDocument document = fourBoxes();
    EXPECT_EQ(rowTexts(document, menu), (Texts{"A", "B", "C", "D"}));
    EXPECT_EQ(document.rowOf(menu, 3), 2);
    EXPECT_EQ(document.rowOf(menu, 5), -1);
    EXPECT_EQ(document.rowOf(title, 3), -1);
    document.setRowText(menu, 2, "(L) C");
    EXPECT_EQ(rowTexts(document, menu), (Texts{"A", "B", "(L) C", "D"}));
    EXPECT_EQ(document.element(3).label, "(L) C");
}

TEST(Rows, MoveWithinTheirList) {
    struct Case {
        int from;
        int to;
        Ids ids;
    };
    const Case cases[] = {
        {0, 0, {1, 2, 3, 4}}, {0, 1, {2, 1, 3, 4}}, {0, 3, {2, 3, 4, 1}}, {3, 0, {4, 1, 2, 3}},
        {1, 2, {1, 3, 2, 4}}, {2, 1, {1, 3, 2, 4}}, {3, 3, {1, 2, 3, 4}}, {1, 3, {1, 3, 4, 2}},
    };
    for (const auto& c : cases) {
        SkinDocument document = fourBoxes();
        document.moveRow(menu, c.from, c.to);
        EXPECT_EQ(rowIds(document, menu), c.ids) << c.from << " to " << c.to;
        document.moveRow(menu, c.to, c.from);
        EXPECT_EQ(document, fourBoxes());
    }
}

TEST(Rows, FixTheOrderInTheFile) {
    SkinDocument document;
    for (const int left : {10, 20, 30}) {
        Element element;
        element.elementControl.left = static_cast<float>(left);
        document.addElement(std::move(element));
    }
    document.moveRow(menu, 2, 0);
    SkinWriter writer(".");
    writer.generateXML(document);
    const std::string& xml = writer.xmlText();
    const auto first = xml.find("L=\"10\"");
    const auto third = xml.find("L=\"30\"");
    ASSERT_NE(first, std::string::npos);
    ASSERT_NE(third, std::string::npos);
    EXPECT_LT(third, first);
}

TEST(DelItem, TakesTheRowOfTheCurrentScreenOnly) {
    SkinDocument document = fourBoxes();
    document.setCurrentLayout(title);
    addBox(document, "E");
    addBox(document, "F");
    document.setLockCount(title, 1);
    document.delItem(0);
    EXPECT_EQ(rowIds(document, title), (Ids{6}));
    EXPECT_EQ(rowIds(document, menu), (Ids{1, 2, 3, 4}));
    EXPECT_EQ(document.screenElementCount(title), 2); // the caller's to lower
    EXPECT_EQ(document.lockCount(title), 1);
    EXPECT_EQ(document.element(5).label, "E");
}

TEST(Screens, KeepTheirCountsApart) {
    SkinDocument document;
    document.setScreenElementCount(0, 200'000);
    document.setScreenElementCount(5, 3);
    document.setLockCount(5, 2);
    for (int screen = 0; screen < screenCount; ++screen) {
        EXPECT_EQ(document.screenElementCount(screen), screen == 0 ? 200'000 : screen == 5 ? 3 : 0);
        EXPECT_EQ(document.lockCount(screen), screen == 5 ? 2 : 0);
    }
}

TEST(Screens, OutsideTheSixAreRefused) {
    const SkinDocument document;
    for (const int screen : {-1, 6}) {
        EXPECT_THROW((void)document.screenElementCount(screen), std::out_of_range);
        EXPECT_THROW((void)document.lockCount(screen), std::out_of_range);
        EXPECT_THROW((void)document.rowCount(screen), std::out_of_range);
    }
}

TEST(HoldsAnything, IsTrueForResourcesRowsAndABackground) {
    struct Case {
        const char* what;
        std::function<void(SkinDocument&)> change;
        bool holds;
    };
    const Case cases[] = {
        {"file resource", [](SkinDocument& d) { d.addRes("n", "p"); }, true},
        {"fragment", [](SkinDocument& d) { d.addcRes("<a/>", "n"); }, true},
        {"row",
         [](SkinDocument& d) {
             d.setCurrentLayout(5);
             addBox(d, "A");
             d.setCurrentLayout(1);
         },
         true},
        {"deleted row",
         [](SkinDocument& d) {
             addBox(d, "A");
             d.delItem(0);
         },
         false},
        {"background",
         [](SkinDocument& d) {
             d.editSettings([](SkinSettings& s) { s.background = {true, "b.png"}; });
         },
         true},
        {"unloaded background",
         [](SkinDocument& d) {
             d.editSettings([](SkinSettings& s) { s.background = {false, "b.png"}; });
         },
         false},
        {"name", [](SkinDocument& d) { d.editSettings([](SkinSettings& s) { s.skinName = "x"; }); },
         false},
        {"screen", [](SkinDocument& d) { d.setCurrentLayout(3); }, false},
    };
    for (const auto& c : cases) {
        SkinDocument document;
        c.change(document);
        EXPECT_EQ(document.holdsAnything(), c.holds) << c.what;
    }
}

TEST(Resources, AreAppended) {
    SkinDocument document;
    document.addRes("logo", "C:\\logo.png");
    document.addcRes("<Preset/>", "piece");
    document.addRes("logo", "..\\x.png", true);
    EXPECT_EQ(document.settings().resources,
              (std::vector<Resource>{{"logo", "C:\\logo.png", true, false},
                                     {"piece", "<Preset/>", false, false},
                                     {"logo", "..\\x.png", true, true}}));
}

TEST(SystemColours, TakeColourTextsButNoEmptyOnes) {
    SystemColors colors;
    SystemColors expected;
    colors.setBoxColor("", 0);
    colors.setBorderColor("", 1);
    colors.setTextColor("", 5);
    EXPECT_EQ(colors, expected);

    colors.setBoxColor("0xFF102030", 0);
    colors.setBorderColor("0x80405060", 1);
    colors.setTextColor("0xFF708090", 5);
    expected.boxes[0].fillColor = makeColor(0x10, 0x20, 0x30);
    expected.boxes[1].borderColor = makeColor(0x40, 0x50, 0x60);
    expected.texts[5] = makeColor(0x70, 0x80, 0x90);
    EXPECT_EQ(colors, expected);

    EXPECT_THROW(colors.setBoxColor("0xFF102030", 2), std::out_of_range);
    EXPECT_THROW(colors.setBorderColor("0xFF102030", 2), std::out_of_range);
    EXPECT_THROW(colors.setTextColor("0xFF102030", 6), std::out_of_range);
    EXPECT_EQ(colors, expected);
}

} // namespace
namespace {

// The content of the resource by that name, asked for often enough for every way to find it.
std::string contentNamed(const SkinDocument& document, std::string_view name) {
    const Resource* first = findResource(document, name);
    for (int i = 0; i < 20; ++i) {
        EXPECT_EQ(findResource(document, name), first) << name;
    }
    return first == nullptr ? "none" : first->content;
}

} // namespace

TEST(ResourceNamed, IsTheLastOfItsNameInAnyLetterCase) {
    SkinDocument document;
    EXPECT_EQ(contentNamed(document, "a"), "none");
    document.addRes("a", "first");
    document.addRes("\u00C4", "umlaut");
    document.addRes("A", "second");
    EXPECT_EQ(contentNamed(document, "a"), "second");
    EXPECT_EQ(contentNamed(document, "A"), "second");
    EXPECT_EQ(contentNamed(document, "\u00E4"), "umlaut");
    EXPECT_EQ(contentNamed(document, "a "), "none");
    EXPECT_EQ(contentNamed(document, ""), "none");
    document.addRes("", "nameless");
    EXPECT_EQ(contentNamed(document, ""), "nameless");
}

TEST(ResourceNamed, FollowsEveryChange) {
    SkinDocument document;
    document.addRes("a", "first");
    EXPECT_EQ(contentNamed(document, "a"), "first");
    document.addcRes("second", "A");
    EXPECT_EQ(contentNamed(document, "a"), "second");
    document.editSettings([](SkinSettings& settings) { settings.resources.pop_back(); });
    EXPECT_EQ(contentNamed(document, "a"), "first");

    SkinDocument copy = document;
    copy.addRes("a", "of the copy");
    EXPECT_EQ(contentNamed(copy, "a"), "of the copy");
    EXPECT_EQ(contentNamed(document, "a"), "first");

    const SkinDocument moved = std::move(document);
    EXPECT_EQ(contentNamed(moved, "a"), "first");
    EXPECT_EQ(contentNamed(document, "a"), "none"); // NOLINT: a new document again

    document = copy;
    EXPECT_EQ(contentNamed(document, "a"), "of the copy");
    copy = SkinDocument();
    EXPECT_EQ(contentNamed(copy, "a"), "none");
    EXPECT_EQ(contentNamed(document, "a"), "of the copy");
}

namespace {

// Counts what is told.
struct ChangeCounter : DocumentObserver {
    void documentChanged(const DocumentChange& change) override {
        ++(change.what == DocumentChange::What::rows ? rows : others);
    }
    int rows = 0;
    int others = 0;
};

} // namespace

TEST(AddElements, DoesAsOneByOneAndTellsOnce) {
    constexpr std::size_t many = 300;
    SkinDocument oneByOne = fourBoxes();
    SkinDocument atOnce = oneByOne;
    std::vector<Element> elements(many);
    for (std::size_t i = 0; i < many; ++i) {
        elements[i].label = std::to_string(i);
        elements[i].elementLocked = true; // which a new one never is
        oneByOne.addElement(Element(elements[i]));
    }
    ChangeCounter told;
    const DocumentWatch watch = atOnce.watch(told);
    const Ids ids = atOnce.addElements(std::move(elements));
    EXPECT_TRUE(atOnce == oneByOne);
    EXPECT_EQ(ids.size(), many);
    EXPECT_EQ(ids.front(), 5);
    EXPECT_EQ(ids.back(), 304);
    EXPECT_EQ(told.rows, 1);
    EXPECT_EQ(told.others, 1); // the count
    EXPECT_EQ(atOnce.addElements({}), Ids());
    EXPECT_EQ(told.rows, 1);
}

} // namespace tarvel
