// What the modifier panel shows of a stored modifier, and what it stores.
#include "document/layout_screens.h"
#include "editing/modifier_editor.h"
#include "support/xml_support.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace tarvel {
namespace {

using test::parse;
using Texts = std::vector<std::string>;

// Boxes have a type of every panel, one in another letter case, one that is not under "types", one
// without targets, and one that is listed twice. Texts have one type.
ModifierCatalogue catalogue() {
    return ModifierCatalogue(parse(R"(<m>
      <types>
        <Fade>Range</Fade> <Slide>Bounds</Slide> <Tint>Color</Tint> <Wobble/>
        <Low>range</Low> <Twice>Range</Twice> <Bare>Range</Bare>
      </types>
      <supports>
        <box type="1">
          <Fade>Fill,Border,(Both)</Fade> <Slide>Place,(Both)</Slide> <Tint>Fill,Border</Tint>
          <Wobble>(All),Place</Wobble> <Low>Fill</Low> <Unlisted>Fill,Fill</Unlisted>
          <Bare></Bare> <Twice>A</Twice> <Twice>B</Twice>
        </box>
        <text type="4"><Fade>Letters</Fade></text>
      </supports></m>)"));
}

ModifierEditor opened(const std::string& xml, ElementKind kind = ElementKind::Box) {
    ModifierEditor editor;
    editor.open(catalogue(), kind, xml.empty() ? XmlTree() : parse(xml));
    return editor;
}

// An editor in which a type and a target are chosen by their rows.
ModifierEditor chosen(std::string_view type, int target) {
    ModifierEditor editor = opened("");
    editor.chooseType(editor.getModNum(type));
    editor.chooseTarget(target);
    return editor;
}

// Rows and frame of an editor in one line.
std::string shown(const ModifierEditor& editor) {
    constexpr std::string_view frames[] = {"no frame", "range", "bounds", "color"};
    const auto targetRow = editor.targetRow();
    return editor.mods().at(static_cast<std::size_t>(editor.modRow())) + " > " +
           (targetRow < 0 ? "-" : editor.targets().at(static_cast<std::size_t>(targetRow))) +
           (editor.targetsShown() ? ", " : ", no targets, ") +
           std::string(frames[static_cast<std::size_t>(editor.frame())]);
}

const std::string tint = R"(<Modifier Type="Tint" Target="Border">
    <Alpha Enable="True" Min="1" Max="2" Period="3"/><Red Enable="False" Min="4" Max="5" Period="6"/>
    <Green Enable="TRUE" Min="7" Max="8" Period="9"/><Blue Enable="yes" Min="10" Max="11" Period="12"/>
    </Modifier>)";

TEST(NewEditor, ShowsNone) {
    const ModifierEditor editor;
    EXPECT_EQ(shown(editor), "None > -, no targets, no frame");
    EXPECT_EQ(editor.stored({}), XmlTree());
}

TEST(Opening, ShowsTheStoredTypeAndTarget) {
    struct Case {
        std::string modifier;
        std::string shown;
    };
    const std::string range = R"(<Range X="1" Y="2"/></Modifier>)";
    const std::string none = "None > -, no targets, no frame";
    const Case cases[] = {
        {"", none},
        {R"(<Modifier Type="Fade" Target="Border">)" + range, "Fade > Border, range"},
        {R"(<Modifier type="Fade" TARGET="Border">)" + range, "Fade > Border, range"},
        {R"x(<Modifier Type="Fade" Target="(Both)">)x" + range, "Fade > (Both), range"},
        // An unknown or missing target falls back to the first.
        {R"(<Modifier Type="Fade" Target="border">)" + range, "Fade > Fill, range"},
        {R"(<Modifier Type="Fade" Target="Sky">)" + range, "Fade > Fill, range"},
        {R"(<Modifier Type="Fade">)" + range, "Fade > Fill, range"},
        // The last of several rows of a text counts.
        {R"(<Modifier Type="Twice" Target="A">)" + range, "Twice > B, range"},
        // An unknown type is none.
        {R"(<Modifier Type="fade" Target="Fill">)" + range, none},
        {R"(<Modifier Type="Burn" Target="Fill">)" + range, none},
        {R"(<Modifier Type="None" Target="Fill">)" + range, none},
        {R"(<Modifier Target="Fill">)" + range, none},
        // So is one that has nothing but its type and target.
        {R"(<Modifier Type="Fade" Target="Border"/>)", none},
        {R"(<Modifier Type="Wobble" Target="Place"></Modifier>)", none},
        {R"(<Modifier Type="Wobble" Target="Place">text</Modifier>)", none},
        {R"(<Modifier Type="Wobble" Target="Place"><x/></Modifier>)", "Wobble > Place, no frame"},
        {R"(<Modifier Type="Slide"><Bounds L="1"/></Modifier>)", "Slide > Place, bounds"},
        {R"(<Modifier Type="Low">)" + range, "Low > Fill, no frame"},
        {R"(<Modifier Type="Unlisted">)" + range, "Unlisted > Fill, no frame"},
        {tint, "Tint > Border, color"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(shown(opened(c.modifier)), c.shown) << c.modifier;
    }
}

TEST(Opening, ChoosesTheTypeAmongThoseOfTheKind) {
    const std::string fade = R"(<Modifier Type="Fade" Target="Letters"><Range/></Modifier>)";
    EXPECT_EQ(shown(opened(fade, ElementKind::Text)), "Fade > Letters, range");
    EXPECT_EQ(opened(fade, ElementKind::Text).mods(), (Texts{"None", "Fade"}));
    EXPECT_EQ(shown(opened(tint, ElementKind::Text)), "None > -, no targets, no frame");
    // Without an entry for the kind, the entries stand in for types.
    EXPECT_EQ(opened(fade, ElementKind::Menu).mods(), (Texts{"None", "box", "text"}));
    EXPECT_EQ(shown(opened(fade, ElementKind::Menu)), "None > -, no targets, no frame");
}

TEST(Opening, FillsTheRangeBoxes) {
    struct Case {
        std::string inside;
        std::array<std::string, 2> range;
    };
    const Case cases[] = {
        {R"(<Range X="1" Y="2"/>)", {"1", "2"}},
        {R"(<range y="2" x=" 1.5 px"/>)", {" 1.5 px", "2"}},
        {R"(<Range Y="2"/>)", {"", "2"}},
        {R"(<Range/>)", {"", ""}},
        {R"(<Range X="1"/><Range X="3"/>)", {"1", ""}},
        {R"(<Bounds L="1"/>)", {"0", "0"}},
    };
    for (const std::string type : {"Fade", "Low"}) {
        for (const Case& c : cases) {
            const auto editor =
                opened("<Modifier Type=\"" + type + "\">" + c.inside + "</Modifier>");
            ModifierValues expected;
            expected.range = c.range;
            EXPECT_EQ(editor.values().range, c.range) << type << c.inside;
            EXPECT_EQ(editor.values(), expected) << type << c.inside;
        }
    }
}

TEST(Opening, FillsTheChannels) {
    ModifierValues expected;
    expected.channels = {ColorChannel{true, 1, 2, 3}, ColorChannel{false, 4, 5, 6},
                         ColorChannel{true, 7, 8, 9}, ColorChannel{false, 10, 11, 12}};
    EXPECT_EQ(opened(tint).values(), expected);
}

TEST(Opening, FillsTheChannelsUpToTheFirstThatIsMissing) {
    struct Case {
        std::string inside;
        std::vector<ColorChannel> channels; // those that change
    };
    const Case cases[] = {
        {"<Alpha/>", {{false, 0, 0, 0}}},
        {R"(<alpha ENABLE="true" min="9"/>)", {{true, 9, 0, 0}}},
        {R"(<Alpha Min="-1.5" Max="300 or so" Period="long"/>)", {{false, -1.5, 300, 0}}},
        {R"(<Alpha Min="1"/><Alpha Min="2"/>)", {{false, 1, 0, 0}}},
        {R"(<Blue Min="2"/><Red Max="1"/><Alpha Min="1"/>)", {{false, 1, 0, 0}, {false, 0, 1, 0}}},
        {R"(<Red Min="1"/><Green Min="1"/><Blue Min="1"/>)", {}},
        {R"(<Range X="1" Y="2"/>)", {}},
    };
    for (const Case& c : cases) {
        const auto editor = opened("<Modifier Type=\"Tint\">" + c.inside + "</Modifier>");
        ModifierValues expected;
        std::copy(c.channels.begin(), c.channels.end(), expected.channels.begin());
        EXPECT_EQ(editor.values(), expected) << c.inside;
    }
}

TEST(Opening, LeavesTheBoundsBoxesAsTheyWere) {
    ModifierEditor editor = chosen("Slide", 0);
    editor.values().bounds = {"1", "2", "3", "4"};
    const XmlTree stored = editor.stored({});
    editor.values().bounds = {"5", "6", "7", "8"};
    editor.open(catalogue(), ElementKind::Box, stored);
    EXPECT_EQ(shown(editor), "Slide > Place, bounds");
    EXPECT_EQ(editor.values().bounds, (std::array<std::string, 4>{"5", "6", "7", "8"}));
    EXPECT_NE(editor.stored(stored), stored);
}

TEST(Opening, KeepsTheBoxesThatAnElementHasNothingFor) {
    ModifierEditor editor = opened(tint);
    editor.values().range = {"8", "9"};
    const ModifierValues before = editor.values();
    editor.open(catalogue(), ElementKind::Box, {});
    EXPECT_EQ(shown(editor), "None > -, no targets, no frame");
    EXPECT_EQ(editor.values(), before);
}

TEST(Opening, ShowsTheFirstOfSeveralModifiers) {
    XmlTree modifiers;
    for (const char* xml : {R"(<Modifier Type="Fade" Target="Border"><Range X="1"/></Modifier>)",
                            R"(<Modifier Type="Low"><Range X="2"/></Modifier>)"}) {
        modifiers.addCopy(XmlTree::top, parse(xml).root());
    }
    ModifierEditor editor;
    editor.open(catalogue(), ElementKind::Box, modifiers);
    EXPECT_EQ(shown(editor), "Fade > Border, range");
    EXPECT_EQ(editor.values().range[0], "1");
}

TEST(ModifierTypes, AreThoseOfAllNodesInTheirOrder) {
    XmlTree all = parse(R"(<Modifier Type="Fade"><Range X="1"/></Modifier>)");
    EXPECT_EQ(modifierTypes(all), Texts{"Fade"});
    for (const char* further : {"<Modifier/>", R"(<Modifier Type="Burn" Target="Fill"/>)"}) {
        const XmlTree tree = parse(further);
        all.addCopy(XmlTree::top, tree.root());
    }
    EXPECT_EQ(modifierTypes(all), (Texts{"Fade", "", "Burn"}));
    EXPECT_EQ(modifierTypes(XmlTree()), Texts());
}

TEST(Opening, TellsWhenAStoredTypeHasNoTargets) {
    ModifierEditor editor;
    const XmlTree stored = parse(R"(<Modifier Type="Bare"><Range X="1"/></Modifier>)");
    try {
        editor.open(catalogue(), ElementKind::Box, stored);
        FAIL() << "nothing was told";
    } catch (const ModifierShowError& error) {
        EXPECT_STREQ(error.what(), R"(The modifier "Bare" has no targets in modifiers.xml)");
    }
    EXPECT_EQ(shown(editor), "Bare > -, no frame");
    EXPECT_EQ(editor.values(), ModifierValues());
}

TEST(Opening, OffersNothingWithoutACatalogue) {
    ModifierEditor editor;
    editor.open({}, ElementKind::Box, parse(tint));
    EXPECT_EQ(editor.mods(), Texts{"None"});
    EXPECT_EQ(shown(editor), "None > -, no targets, no frame");
    EXPECT_EQ(editor.values(), ModifierValues());
}

TEST(Choosing, OfferTheTargetsAndTheFrameOfTheType) {
    struct Case {
        std::string type;
        Texts targets;
        std::string shown;
    };
    const Case cases[] = {
        {"Fade", {"Fill", "Border", "(Both)"}, "Fade > Fill, range"},
        {"Slide", {"Place", "(Both)"}, "Slide > Place, bounds"},
        {"Tint", {"Fill", "Border"}, "Tint > Fill, color"},
        {"Wobble", {"(All)", "Place"}, "Wobble > (All), no frame"},
        {"Low", {"Fill"}, "Low > Fill, no frame"},
        {"Unlisted", {"Fill", "Fill"}, "Unlisted > Fill, no frame"},
        {"Bare", {}, "Bare > -, no frame"},
        {"None", {}, "None > -, no targets, no frame"},
    };
    ModifierEditor editor = opened(tint);
    for (const Case& c : cases) {
        editor.chooseType(editor.getModNum(c.type));
        EXPECT_EQ(editor.targets(), c.targets) << c.type;
        EXPECT_EQ(shown(editor), c.shown);
    }
    editor.chooseType(editor.getModNum("Fade"));
    editor.chooseTarget(2);
    EXPECT_EQ(shown(editor), "Fade > (Both), range");
}

TEST(Rows, AreFoundByTheirExactText) {
    ModifierEditor editor = opened("");
    const Texts mods = {"None", "Fade",     "Slide", "Tint",  "Wobble",
                        "Low",  "Unlisted", "Bare",  "Twice", "Twice"};
    EXPECT_EQ(editor.mods(), mods);
    EXPECT_EQ(editor.getModNum("Slide"), 2);
    EXPECT_EQ(editor.getModNum("slide"), 0);
    EXPECT_EQ(editor.getModNum("Twice"), 9);
    EXPECT_EQ(editor.getModNum(""), 0);
    EXPECT_EQ(editor.getTarNum("Fill"), 0);
    editor.chooseType(editor.getModNum("Unlisted"));
    EXPECT_EQ(editor.getTarNum("Fill"), 1);
    EXPECT_EQ(editor.getTarNum("fill"), 0);
}

TEST(Storing, WritesTypeTargetAndTheValuesOfTheFrame) {
    struct Case {
        std::string type;
        int target;
        std::string stored;
    };
    const std::string channels = R"(<Alpha Enable="True" Min="0" Max="255" Period="1000"/>)"
                                 R"(<Red Enable="False" Min="12.5" Max="-3" Period="7"/>)"
                                 R"(<Green Enable="False" Min="0" Max="255" Period="1000"/>)"
                                 R"(<Blue Enable="False" Min="0" Max="255" Period="10000000"/>)";
    const Case cases[] = {
        {"Fade", 0, R"(<Modifier Type="Fade" Target="Fill"><Range X="a" Y=""/></Modifier>)"},
        {"Fade", 1, R"(<Modifier Type="Fade" Target="Border"><Range X="a" Y=""/></Modifier>)"},
        {"Fade", 2, R"(<Modifier Type="Fade"><Range X="a" Y=""/></Modifier>)"},
        {"Slide", 1, R"(<Modifier Type="Slide"><Bounds L="1" T=" 2 " R="x" B="-4"/></Modifier>)"},
        {"Tint", 1, R"(<Modifier Type="Tint" Target="Border">)" + channels + "</Modifier>"},
        {"Wobble", 0, R"(<Modifier Type="Wobble"/>)"},
        {"Wobble", 1, R"(<Modifier Type="Wobble" Target="Place"/>)"},
        {"Low", 0, R"(<Modifier Type="Low" Target="Fill"/>)"},
        {"Unlisted", 1, R"(<Modifier Type="Unlisted" Target="Fill"/>)"},
    };
    for (const Case& c : cases) {
        ModifierEditor editor = chosen(c.type, c.target);
        editor.values().range = {"a", ""};
        editor.values().bounds = {"1", " 2 ", "x", "-4"};
        editor.values().channels[0].Enable = true;
        editor.values().channels[1] = {false, 12.5, -3, 7};
        editor.values().channels[3].Period = 1e7;
        EXPECT_EQ(editor.stored({}), parse(c.stored)) << c.type << ' ' << c.target;
        EXPECT_EQ(editor.stored(parse(tint)), parse(c.stored)) << c.type << ' ' << c.target;
    }
}

TEST(Storing, RemovesTheModifierWhereNoTargetIsChosen) {
    const std::string bare = R"(<Modifier Type="Wobble" Target="Place"/>)";
    EXPECT_EQ(opened(bare).stored(parse(bare)), XmlTree()); // opens on "None"
    ModifierEditor editor = opened(tint);
    for (const std::string_view type : {"None", "Bare"}) {
        editor.chooseType(editor.getModNum(type));
        EXPECT_EQ(editor.stored(parse(tint)), XmlTree()) << type;
        EXPECT_EQ(editor.stored({}), XmlTree()) << type;
    }
}

TEST(Storing, GivesBackWhatWasShown) {
    for (const std::string modifier :
         {R"(<Modifier Type="Fade" Target="Border"><Range X="1" Y="2"/></Modifier>)",
          R"(<Modifier Type="Tint" Target="Fill"><Alpha Enable="True" Min="1" Max="2" Period="3"/>)"
          R"(<Red Enable="False" Min="4.5" Max="5" Period="60"/>)"
          R"(<Green Enable="True" Min="-7" Max="8" Period="9"/>)"
          R"(<Blue Enable="False" Min="10" Max="400" Period="12"/></Modifier>)"}) {
        const XmlTree tree = parse(modifier);
        EXPECT_EQ(opened(modifier).stored(tree), tree);
    }
}

TEST(Storing, KeepsTheOtherModifiers) {
    const std::string others[] = {R"(<Modifier Type="Odd"><x y="1">text<z/></x></Modifier>)",
                                  R"(<Modifier Type="Fade"/>)"};
    XmlTree before = parse(tint);
    XmlTree without;
    XmlTree with = parse(R"(<Modifier Type="Low" Target="Fill"/>)");
    for (const auto& other : others) {
        for (XmlTree* tree : {&before, &without, &with}) {
            tree->addCopy(XmlTree::top, parse(other).root());
        }
    }
    EXPECT_EQ(chosen("Low", 0).stored(before), with);
    EXPECT_EQ(opened("").stored(before), without);
    // One after the other can be taken away so.
    EXPECT_EQ(opened("").stored(without), parse(others[1]));
}

TEST(Storing, DecidesTheMark) {
    Element element;
    element.elementModifiers = SharedValue(chosen("Wobble", 0).stored({}));
    EXPECT_TRUE(behaviourMarks(element).modifiers);
    element.elementModifiers = SharedValue(opened("").stored(*element.elementModifiers));
    EXPECT_FALSE(behaviourMarks(element).modifiers);
}

} // namespace
} // namespace tarvel
