// The catalogue of modifier types: whole, partial, broken and missing files.
#include "document/modifier_catalogue.h"
#include "support/behaviour_support.h"
#include "support/temporary_folder.h"
#include "support/xml_support.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace tarvel {
namespace {

using test::ScratchFolder;
using Texts = std::vector<std::string>;

ModifierCatalogue catalogue(std::string xml) {
    return ModifierCatalogue(test::parse(std::move(xml)));
}

std::string supporting(const std::string& entries) {
    return "<m><types/><supports>" + entries + "</supports></m>";
}

TEST(KindEntry, IsTheFirstWhoseTypeIsTheKindsNumber) {
    struct Case {
        std::string entries;
        ElementKind kind;
        Texts types;
    };
    const std::string fallback = R"(<box type="1"><A/></box><text type="4"><B/></text>)";
    const Case cases[] = {
        {fallback, ElementKind::Box, {"None", "A"}},
        {fallback, ElementKind::Text, {"None", "B"}},
        {fallback, ElementKind::Line, {"None", "box", "text"}},
        {fallback, static_cast<ElementKind>(7), {"None", "box", "text"}},
        {R"(<e type="3"><A/></e>)", ElementKind::Image, {"None", "A"}},
        {R"(<e type="3.0"><A/></e>)", ElementKind::Image, {"None", "A"}},
        {R"(<e type="3.5"><A/></e>)", ElementKind::Image, {"None", "e"}},
        {R"(<e type="2nd"><A/></e>)", ElementKind::Line, {"None", "A"}},
        {R"(<e type=" 2 of them"><A/></e>)", ElementKind::Line, {"None", "A"}},
        {R"(<e type="22"><A/></e>)", ElementKind::Line, {"None", "e"}},
        {R"(<e type="two"><A/></e>)", ElementKind::Line, {"None", "e"}},
        {R"(<e type="two"><A/></e>)", static_cast<ElementKind>(0), {"None", "A"}},
        {R"(<e><A/></e>)", static_cast<ElementKind>(0), {"None", "A"}},
        {R"(<e TYPE="2"><A/></e>)", ElementKind::Line, {"None", "A"}},
        {R"(<e kind="2"><A/></e>)", ElementKind::Line, {"None", "e"}},
        {R"(<e type="5"><A/></e><e type="5"><B/></e>)", ElementKind::Menu, {"None", "A"}},
        {R"(<e type="5"></e><e type="5"><B/></e>)", ElementKind::Menu, {"None"}},
        {R"(<e type="1"><C/><A/><B/><A/></e>)", ElementKind::Box, {"None", "C", "A", "B", "A"}},
        {"<Fade>Fill</Fade>", ElementKind::Box, {"None", "Fade"}},
        {"", ElementKind::Box, {"None"}},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(catalogue(supporting(c.entries)).typesFor(c.kind), c.types)
            << c.entries << " for " << static_cast<int>(c.kind);
    }
}

TEST(Targets, AreSplitAtCommasAndNothingElse) {
    struct Case {
        std::string type; // as XML
        std::string name;
        Texts targets;
    };
    const Case cases[] = {
        {"<A>Fill</A>", "A", {"Fill"}},
        {"<A>Fill,Border,(Both)</A>", "A", {"Fill", "Border", "(Both)"}},
        {"<A>Fill, Border ,(Both) </A>", "A", {"Fill", " Border ", "(Both) "}},
        {"<A>Fill,,Border,</A>", "A", {"Fill", "", "Border", ""}},
        {"<A>,</A>", "A", {"", ""}},
        {"<A>a\\,b;c</A>", "A", {"a\\", "b;c"}},
        {"<A></A>", "A", {}},
        {"<A> \n\t</A>", "A", {}},
        {"<A>x</A>", "B", {}},
        {"<A>x</A>", "a", {"x"}},
        {"<A>x</A>", "None", {}},
        {"<A>x</A><A>y,z</A>", "A", {"y", "z"}},
        {"<A><B>x</B></A>", "A", {}},
        {"<A>caf&#233;,&amp;</A>", "A", {"caf\xC3\xA9", "&"}},
    };
    for (const Case& c : cases) {
        const auto read = catalogue(supporting("<e type='1'>" + c.type + "</e>"));
        EXPECT_EQ(read.targetsOf(ElementKind::Box, c.name), c.targets) << c.type << ' ' << c.name;
    }
}

TEST(Targets, ComeFromTheSupportsNodeWhereTheKindHasNoEntry) {
    const auto read = catalogue(supporting(R"(<A>x,y</A><box type="1"> <A>z</A> </box>)"));
    EXPECT_EQ(read.targetsOf(ElementKind::Line, "A"), (Texts{"x", "y"}));
    EXPECT_EQ(read.targetsOf(ElementKind::Line, "box"), Texts{});
    EXPECT_EQ(read.targetsOf(ElementKind::Box, "A"), Texts{"z"});
}

TEST(Targets, InBracketsArePlaceholders) {
    struct Case {
        std::string_view target;
        bool placeholder;
    };
    constexpr Case cases[] = {{"(Both)", true}, {"(", true},        {"(x", true},
                              {"", false},      {" (Both)", false}, {"Fill (x)", false},
                              {"Fill", false},  {"[Both]", false}};
    for (const Case& c : cases) {
        EXPECT_EQ(isPlaceholderTarget(c.target), c.placeholder) << c.target;
    }
}

TEST(Panel, IsNamedExactly) {
    struct Case {
        std::string word;
        ParameterPanel panel;
    };
    const Case cases[] = {{"Range", ParameterPanel::Range}, {"Bounds", ParameterPanel::Bounds},
                          {"Color", ParameterPanel::Color}, {"range", ParameterPanel::none},
                          {"BOUNDS", ParameterPanel::none}, {"color", ParameterPanel::none},
                          {" Range", ParameterPanel::none}, {"Range ", ParameterPanel::none},
                          {"Ranges", ParameterPanel::none}, {"Colour", ParameterPanel::none},
                          {"", ParameterPanel::none}};
    for (const Case& c : cases) {
        const auto read = catalogue("<m><types><A>" + c.word + "</A></types></m>");
        EXPECT_EQ(read.panelOf("A"), c.panel) << '"' << c.word << '"';
        EXPECT_EQ(read.panelName("A"), c.word);
        EXPECT_EQ(read.panelName("B"), "");
        EXPECT_EQ(read.panelOf("B"), ParameterPanel::none);
    }
}

TEST(Catalogue, OffersWhatIsThereOfAPartialFile) {
    struct Case {
        std::string xml;
        Texts types;
        Texts targets; // of "A"
        ParameterPanel panel = ParameterPanel::none;
    };
    const std::string types = "<types><A>Range</A></types>";
    const std::string supports = "<supports><e type='1'><A>x,y</A></e></supports>";
    const Case cases[] = {
        {"<m>" + types + supports + "</m>", {"None", "A"}, {"x", "y"}, ParameterPanel::Range},
        {"<m>" + supports + types + "</m>", {"None", "A"}, {"x", "y"}, ParameterPanel::Range},
        {"<m><TYPES><a>Range</a></TYPES><Supports><e type='1'><A>x</A></e></Supports></m>",
         {"None", "A"},
         {"x"},
         ParameterPanel::Range},
        {"<m>" + types + "</m>", {"None"}, {}, ParameterPanel::Range},
        {"<m>" + supports + "</m>", {"None", "A"}, {"x", "y"}},
        {"<m><types/>" + supports + "</m>", {"None", "A"}, {"x", "y"}},
        {"<m><types><B>Range</B></types>" + supports + "</m>", {"None", "A"}, {"x", "y"}},
        {"<m><other/><more>text</more></m>", {"None"}, {}},
        {"<m><other>" + types + supports + "</other></m>", {"None"}, {}},
        {"<m/>", {"None"}, {}},
        {"<m>text</m>", {"None"}, {}},
        {"<m><!-- <types/> -->" + supports + "<x/></m>", {"None", "A"}, {"x", "y"}},
    };
    for (const Case& c : cases) {
        const auto read = catalogue(c.xml);
        EXPECT_EQ(read.typesFor(ElementKind::Box), c.types) << c.xml;
        EXPECT_EQ(read.targetsOf(ElementKind::Box, "A"), c.targets) << c.xml;
        EXPECT_EQ(read.panelOf("A"), c.panel) << c.xml;
    }
}

TEST(Catalogue, OfAFileThatCannotBeReadOffersNone) {
    const ScratchFolder folder;
    const std::filesystem::path files[] = {
        folder.path() / "missing.xml",
        folder.path() / "missing" / "modifiers.xml",
        folder.path(),
        folder.file("empty.xml", ""),
        folder.file("text.xml", "no markup at all"),
        folder.file("cut.xml", "<m><supports><e type='1'><A>x</A></e>"),
        folder.file("crossed.xml", "<m><supports><e type='1'><A>x</e></A></supports></m>"),
        folder.file("bytes.xml", std::string_view("\x00\xFF\x01<", 4)),
    };
    for (const auto& file : files) {
        const auto read = ModifierCatalogue::read(file);
        EXPECT_EQ(read.typesFor(ElementKind::Box), Texts{"None"}) << file;
        EXPECT_EQ(read.targetsOf(ElementKind::Box, "A"), Texts{}) << file;
        EXPECT_EQ(read.panelName("A"), "") << file;
    }
}

TEST(Catalogue, IsReadInItsEncoding) {
    const ScratchFolder folder;
    const std::string rest = "<m><supports><e type='1'><A>caf";
    const std::string end = "</A></e></supports></m>";
    const std::string declaration = "<?xml version='1.0' encoding='windows-1252'?>";
    for (const auto& file : {folder.file("a.xml", rest + "\xC3\xA9" + end),
                             folder.file("b.xml", "\xEF\xBB\xBF" + rest + "\xC3\xA9" + end),
                             folder.file("c.xml", declaration + rest + "\xE9" + end)}) {
        EXPECT_EQ(ModifierCatalogue::read(file).targetsOf(ElementKind::Box, "A"),
                  Texts{"caf\xC3\xA9"})
            << file;
    }
}

TEST(StarterCatalogue, OffersEveryPanelAndSeveralTargetsToEveryKind) {
    const auto read =
        ModifierCatalogue::read(test::assetsFolder() / std::string(catalogueFileName));
    std::vector<bool> panels(4, false);
    for (int kind = 1; kind <= 5; ++kind) {
        const auto elementKind = static_cast<ElementKind>(kind);
        const Texts types = read.typesFor(elementKind);
        EXPECT_GT(types.size(), 2U) << kind;
        EXPECT_EQ(types.front(), "None");
        bool bracketed = false;
        for (std::size_t row = 1; row < types.size(); ++row) {
            const Texts targets = read.targetsOf(elementKind, types[row]);
            EXPECT_GT(targets.size(), 1U) << kind << ' ' << types[row];
            for (const auto& target : targets) {
                EXPECT_FALSE(target.empty() || target.front() == ' ' || target.back() == ' ')
                    << kind << ' ' << types[row] << " '" << target << '\'';
                bracketed = bracketed || isPlaceholderTarget(target);
            }
            panels.at(static_cast<std::size_t>(read.panelOf(types[row]))) = true;
        }
        EXPECT_TRUE(bracketed) << kind;
    }
    EXPECT_EQ(panels, std::vector<bool>(4, true));
}

} // namespace
TEST(CatalogueFile, LiesBesideTheProgramOrWhereItWasInstalled) {
    const TemporaryFolder folder;
    const auto bin = folder.folder("bin");
    EXPECT_EQ(catalogueFile(bin), bin / "modifiers.xml"); // and is missing
    EXPECT_EQ(ModifierCatalogue::read(catalogueFile(bin)).typesFor(ElementKind::Box),
              Texts{"None"});
    // Windows has what belongs to a program beside it.
    const bool isApart = std::filesystem::path::preferred_separator == '/';
    folder.file(isApart ? "share/tarvel/modifiers.xml" : "bin/modifiers.xml",
                "<m><supports><e type='1'><Installed>x</Installed></e></supports></m>");
    EXPECT_EQ(ModifierCatalogue::read(catalogueFile(bin)).typesFor(ElementKind::Box),
              (Texts{"None", "Installed"}));
    folder.file("bin/modifiers.xml", "<m><supports><e type='1'><Own>x</Own></e></supports></m>");
    EXPECT_EQ(ModifierCatalogue::read(catalogueFile(bin)).typesFor(ElementKind::Box),
              (Texts{"None", "Own"}));
}

TEST(StarterCatalogue, BeginsEachListOfTargetsWithTheOneInBrackets) {
    const auto starter =
        ModifierCatalogue::read(test::assetsFolder() / std::string(catalogueFileName));
    for (const auto kind : {ElementKind::Box, ElementKind::Line, ElementKind::Image,
                            ElementKind::Text, ElementKind::Menu}) {
        const Texts types = starter.typesFor(kind);
        EXPECT_GT(types.size(), 3U);
        for (std::size_t i = 1; i < types.size(); ++i) {
            const Texts targets = starter.targetsOf(kind, types[i]);
            ASSERT_GT(targets.size(), 1U) << types[i];
            EXPECT_TRUE(isPlaceholderTarget(targets.front())) << types[i];
        }
    }
}

} // namespace tarvel
