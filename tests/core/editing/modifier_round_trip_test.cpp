// Modifiers of every type, target and kind of element through saving and loading.
#include "document/normalised.h"
#include "editing/modifier_editor.h"
#include "skinfile/skin_folder.h"
#include "skinfile/skin_reader.h"
#include "support/behaviour_support.h"
#include "support/document_support.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace tarvel {
namespace {

using test::parse;
using test::ScratchFolder;

ModifierCatalogue starterCatalogue() {
    return ModifierCatalogue::read(test::assetsFolder() / std::string(catalogueFileName));
}

int addElement(SkinDocument& document, ElementKind kind, XmlTree modifiers) {
    const XmlTree description =
        parse("<LayoutElement><Color>0x80102030</Color><Constant>Hello</Constant></LayoutElement>");
    const int id = makeElement(document, 1.0, 2.0, 3.0, 4.0, kind, "", description.root());
    document.editElement(id, [&](Element& element) {
        element.elementModifiers = SharedValue(std::move(modifiers));
    });
    return id;
}

// Values that differ from box to box.
void fill(ModifierValues& values, int seed) {
    values.range = {std::to_string(seed), "-0.5"};
    values.bounds = {std::to_string(seed), "\"<2>\" & more", "", " 4 "};
    for (ColorChannel& channel : values.channels) {
        channel = {seed % 2 == 0, static_cast<double>(seed), 200.0 - seed, 50.0 + seed};
        ++seed;
    }
}

void saveInto(const ScratchFolder& folder, SkinDocument document) {
    document.editSettings([](SkinSettings& settings) { settings.skinName = "test"; });
    SkinWriter writer(folder.path());
    const SaveOutcome outcome = saveSkin(document, writer, folder.path(), {});
    ASSERT_TRUE(outcome.succeeded()) << outcome.writeProblem;
}

std::string savedBlock(const SkinDocument& document) {
    const ScratchFolder folder;
    saveInto(folder, document);
    const std::string text = test::bytesOf(folder.path() / std::string(skinFileName));
    const auto start = text.find("\t\t<LayoutElement");
    return text.substr(start, text.find("\t</Layout>") - start);
}

void expectRoundTrip(SkinDocument document) {
    const ScratchFolder folder;
    saveInto(folder, document);
    SkinDocument loaded;
    readSkin(loaded, folder.path());
    document.editSettings([](SkinSettings& settings) { settings.skinName = "test"; });
    const SkinDocument expected = normalised(document);
    ASSERT_EQ(loaded.lastElementId(), expected.lastElementId());
    for (int id = 1; id <= expected.lastElementId(); ++id) {
        EXPECT_EQ(loaded.element(id), expected.element(id)) << id;
    }
    // The saved file names the program that made it as one of its fields.
    loaded.editSettings([&](SkinSettings& settings) {
        std::erase_if(settings.information,
                      [](const InformationField& field) { return field.name == "MadeUsing"; });
    });
    EXPECT_EQ(loaded, expected);
}

TEST(ModifierRoundTrip, ComesBackForEachTypeTargetAndKind) {
    const ModifierCatalogue catalogue = starterCatalogue();
    int modifiers = 0;
    for (int kind = 1; kind <= 5; ++kind) {
        const auto elementKind = static_cast<ElementKind>(kind);
        SkinDocument document;
        ModifierEditor editor;
        editor.open(catalogue, elementKind, {});
        for (int row = 1; row < static_cast<int>(editor.mods().size()); ++row) {
            editor.chooseType(row);
            for (int target = 0; target < static_cast<int>(editor.targets().size()); ++target) {
                editor.chooseTarget(target);
                fill(editor.values(), ++modifiers);
                addElement(document, elementKind, editor.stored({}));
            }
        }
        SCOPED_TRACE(kind);
        expectRoundTrip(document);
    }
    EXPECT_GT(modifiers, 60);
}

TEST(ModifierRoundTrip, LeavesUnknownTypesAndChildrenAlone) {
    const std::string unknown[] = {
        R"(<Modifier Type="Burn" Target="Sky"><Flame Heat="9"/></Modifier>)",
        R"(<Modifier Type="Tint" Target="Fill" Extra="&quot;1&quot;"><Alpha Enable="maybe"/>)"
        R"(<Deep><Deeper a="1" b="2">text &amp; more</Deeper><Deeper/></Deep></Modifier>)",
        R"(<Modifier/>)",
        R"(<Modifier Type="Wobble">words</Modifier>)",
    };
    SkinDocument document;
    XmlTree all;
    for (const auto& xml : unknown) {
        addElement(document, ElementKind::Box, parse(xml));
        all.addCopy(XmlTree::top, parse(xml).root());
    }
    addElement(document, ElementKind::Line, all);
    expectRoundTrip(document);
}

// A target, by its row, of a type of the starter catalogue, with default values, on a box.
XmlTree storedFor(std::string_view type, int target) {
    ModifierEditor editor;
    editor.open(starterCatalogue(), ElementKind::Box, {});
    editor.chooseType(editor.getModNum(type));
    editor.chooseTarget(target);
    return editor.stored({});
}

TEST(ModifierBlock, IsWrittenByteForByte) {
    struct Case {
        std::string_view type;
        int target;
        std::string_view block;
    };
    constexpr Case cases[] = {
        {"Fade", 1,
         "\t\t\t<Modifier Type=\"Fade\" Target=\"Fill\">\r\n"
         "\t\t\t\t<Range X=\"0\" Y=\"0\"></Range>\r\n"
         "\t\t\t\t\r\n"
         "\t\t\t</Modifier>\r\n"
         "\t\t\t\r\n"},
        {"Slide", 0,
         "\t\t\t<Modifier Type=\"Slide\">\r\n"
         "\t\t\t\t<Bounds L=\"0\" T=\"0\" R=\"0\" B=\"0\"></Bounds>\r\n"
         "\t\t\t\t\r\n"
         "\t\t\t</Modifier>\r\n"
         "\t\t\t\r\n"},
        {"Tint", 2,
         "\t\t\t<Modifier Type=\"Tint\" Target=\"Border\">\r\n"
         "\t\t\t\t<Alpha Enable=\"False\" Min=\"0\" Max=\"255\" Period=\"1000\"></Alpha>\r\n"
         "\t\t\t\t<Red Enable=\"False\" Min=\"0\" Max=\"255\" Period=\"1000\"></Red>\r\n"
         "\t\t\t\t<Green Enable=\"False\" Min=\"0\" Max=\"255\" Period=\"1000\"></Green>\r\n"
         "\t\t\t\t<Blue Enable=\"False\" Min=\"0\" Max=\"255\" Period=\"1000\"></Blue>\r\n"
         "\t\t\t\t\r\n"
         "\t\t\t</Modifier>\r\n"
         "\t\t\t\r\n"},
        {"Wobble", 1,
         "\t\t\t<Modifier Type=\"Wobble\" Target=\"Position\"></Modifier>\r\n"
         "\t\t\t\r\n"},
        {"Wobble", 0,
         "\t\t\t<Modifier Type=\"Wobble\"></Modifier>\r\n"
         "\t\t\t\r\n"},
    };
    for (const Case& c : cases) {
        SkinDocument document;
        const int id = addElement(document, ElementKind::Box, storedFor(c.type, c.target));
        document.editElement(id, [](Element& element) { element.elementTimers[0] = 500; });
        EXPECT_EQ(savedBlock(document), "\t\t<LayoutElement Type=\"Box\">\r\n"
                                        "\t\t\t<Color>0x80102030</Color>\r\n"
                                        "\t\t\t<Pos L=\"1\" T=\"2\" W=\"3\" H=\"4\"/>\r\n"
                                        "\t\t\t<Timer Type=\"Delay\">500</Timer>\r\n" +
                                            std::string(c.block) + "\t\t</LayoutElement>\r\n")
            << c.type << ' ' << c.target;
    }
}

TEST(ModifierBlock, HoldsAllModifiersOfAnElement) {
    XmlTree two = storedFor("Fade", 1);
    two.addCopy(XmlTree::top, storedFor("Wobble", 0).root());
    SkinDocument document;
    addElement(document, ElementKind::Line, two);
    EXPECT_EQ(savedBlock(document), "\t\t<LayoutElement Type=\"Line\">\r\n"
                                    "\t\t\t<Pos X1=\"1\" Y1=\"2\" X2=\"3\" Y2=\"4\"/>\r\n"
                                    "\t\t\t<Color>0xFF102030</Color>\r\n"
                                    "\t\t\t<Modifier Type=\"Fade\" Target=\"Fill\">\r\n"
                                    "\t\t\t\t<Range X=\"0\" Y=\"0\"></Range>\r\n"
                                    "\t\t\t\t\r\n"
                                    "\t\t\t</Modifier>\r\n"
                                    "\t\t\t\r\n"
                                    "\t\t\t<Modifier Type=\"Wobble\"></Modifier>\r\n"
                                    "\t\t\t\r\n"
                                    "\t\t</LayoutElement>\r\n");
}

} // namespace
} // namespace tarvel
