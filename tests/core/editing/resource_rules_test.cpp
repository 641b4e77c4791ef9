// Which resources may be added, and what the presets are.
#include "editing/resource_rules.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace tarvel {
namespace {

SkinDocument withResource(std::string name) {
    SkinDocument document;
    document.addRes(std::move(name), "\\pictures\\first.png");
    return document;
}

TEST(Presets, AreEighteenWithTheirContentsAndNames) {
    struct Case {
        std::string_view entry;
        std::string_view description;
        std::string_view content;
        std::string_view name;
    };
    constexpr std::array<Case, 18> cases = {{
        {"PreviewMedia", "This shows each game's preview video or screenshot",
         "<EntryNamed>Media</EntryNamed>", "PreviewMedia"},
        {"GameIcon", "This shows each game's icon", "<Entry>default.xbe</Entry>", "GameIcon"},
        {"::ICO_ACTION", "---", "<File>::ICO_ACTION</File>", "ICO_ACTION"},
        {"::ICO_DIR", "---", "<File>::ICO_DIR</File>", "ICO_DIR"},
        {"::ICO_DVD", "---", "<File>::ICO_DVD</File>", "ICO_DVD"},
        {"::ICO_EMU", "---", "<File>::ICO_EMU</File>", "ICO_EMU"},
        {"::ICO_FILE", "---", "<File>::ICO_FILE</File>", "ICO_FILE"},
        {"::ICO_HD", "---", "<File>::ICO_HD</File>", "ICO_HD"},
        {"::ICO_LOCK", "---", "<File>::ICO_LOCK</File>", "ICO_LOCK"},
        {"::ICO_MEDIA", "---", "<File>::ICO_MEDIA</File>", "ICO_MEDIA"},
        {"::ICO_MUSIC", "---", "<File>::ICO_MUSIC</File>", "ICO_MUSIC"},
        {"::ICO_WAVE", "---", "<File>::ICO_WAVE</File>", "ICO_WAVE"},
        {"::ICO_XBE", "---", "<File>::ICO_XBE</File>", "ICO_XBE"},
        {"::SkyTile", "---", "<File>::SkyTile</File>", "SkyTile"},
        {"::Logo", "---", "<File>::Logo</File>", "Logo"},
        {"::HelpGCScreen", "---", "<File>::HelpGCScreen</File>", "HelpGCScreen"},
        {"::HelpKBScreen", "---", "<File>::HelpKBScreen</File>", "HelpKBScreen"},
        {"::HelpIRScreen", "---", "<File>::HelpIRScreen</File>", "HelpIRScreen"},
    }};
    for (std::size_t i = 0; i < cases.size(); ++i) {
        EXPECT_EQ(presetResources[i].entry, cases[i].entry);
        EXPECT_EQ(presetResources[i].description, cases[i].description);
        EXPECT_EQ(presetContent(presetResources[i].entry), cases[i].content);
        EXPECT_EQ(presetName(presetResources[i].entry), cases[i].name);
    }
}

TEST(PresetContent, IsDecidedByTheFirstTwoCharacters) {
    EXPECT_EQ(presetContent("Gallery"), "<Entry>default.xbe</Entry>");
    EXPECT_EQ(presetContent("Print"), "<EntryNamed>Media</EntryNamed>");
    EXPECT_EQ(presetContent("gaLLERY"), "<File>gaLLERY</File>");
    EXPECT_EQ(presetContent("P"), "<File>P</File>");
}

TEST(PresetName, LosesEveryPairOfColons) {
    EXPECT_EQ(presetName("::a::b::"), "ab");
    EXPECT_EQ(presetName("a:b"), "a:b");
}

TEST(SuggestedName, IsTheFileWithoutFoldersAndExtension) {
    EXPECT_EQ(suggestedName("\\home\\me\\Logo.png"), "Logo");
    EXPECT_EQ(suggestedName("\\home\\me\\photo.jpeg"), "photo");
    EXPECT_EQ(suggestedName("\\my.files\\a.b.wmv"), "a.b");
    EXPECT_EQ(suggestedName("\\my.files\\noextension"), "noextension");
    EXPECT_EQ(suggestedName("\\me\\.png"), ".png");
    EXPECT_EQ(suggestedName("x"), "x");
    EXPECT_EQ(suggestedName(""), "");
}

TEST(AddCustomResource, AppendsAFile) {
    SkinDocument document = withResource("first");
    EXPECT_EQ(addCustomResource(document, "second", "\\clips\\a.wmv"), AddOutcome::added);
    const std::vector<Resource> expected = {{"first", "\\pictures\\first.png", true, false},
                                            {"second", "\\clips\\a.wmv", true, false}};
    EXPECT_EQ(document.settings().resources, expected);
}

TEST(AddCustomResource, RefusesTheReservedNameInThatSpellingOnly) {
    SkinDocument document;
    EXPECT_EQ(addCustomResource(document, "bground", "\\a.png"), AddOutcome::reserved);
    EXPECT_EQ(addCustomResource(document, "bground", ""), AddOutcome::reserved);
    EXPECT_TRUE(document.settings().resources.empty());
    EXPECT_EQ(addCustomResource(document, "Bground", "\\a.png"), AddOutcome::added);
    EXPECT_EQ(document.settings().resources.size(), 1U);
}

TEST(AddCustomResource, RefusesANameThatIsTakenWhereCaseCounts) {
    SkinDocument document = withResource("first");
    const SkinDocument before = document;
    EXPECT_EQ(addCustomResource(document, "first", "\\a.png"), AddOutcome::taken);
    EXPECT_EQ(addCustomResource(document, "first", ""), AddOutcome::taken);
    EXPECT_EQ(document, before);
    EXPECT_EQ(addCustomResource(document, "First", "\\a.png"), AddOutcome::added);
}

TEST(AddCustomResource, NeedsANameAndAFile) {
    SkinDocument document;
    EXPECT_EQ(addCustomResource(document, "", "\\a.png"), AddOutcome::incomplete);
    EXPECT_EQ(addCustomResource(document, "a", ""), AddOutcome::incomplete);
    EXPECT_EQ(document, SkinDocument{});
}

TEST(AddPresetResource, AppendsAFragment) {
    SkinDocument document = withResource("first");
    EXPECT_EQ(addPresetResource(document, 17, "HelpIRScreen"), AddOutcome::added);
    EXPECT_EQ(addPresetResource(document, 0, "bground"), AddOutcome::added);
    ASSERT_EQ(document.settings().resources.size(), 3U);
    EXPECT_EQ(document.settings().resources[1],
              (Resource{"HelpIRScreen", "<File>::HelpIRScreen</File>", false, false}));
    EXPECT_EQ(document.settings().resources[2],
              (Resource{"bground", "<EntryNamed>Media</EntryNamed>", false, false}));
}

TEST(AddPresetResource, AddsNothingUnderATakenNameOrWithoutAChoice) {
    SkinDocument document = withResource("Logo");
    const SkinDocument before = document;
    EXPECT_EQ(addPresetResource(document, 14, "Logo"), AddOutcome::taken);
    EXPECT_EQ(addPresetResource(document, -1, "New"), AddOutcome::incomplete);
    EXPECT_EQ(addPresetResource(document, 18, "New"), AddOutcome::incomplete);
    EXPECT_EQ(document, before);
    EXPECT_EQ(addPresetResource(document, 14, "logo"), AddOutcome::added);
}

TEST(AddCustomResources, NamesEachFileAfterItself) {
    struct Case {
        const char* what;
        std::vector<Resource> before;
        std::vector<std::string> paths;
        std::vector<Resource> added;
    };
    const std::string logo = "\\a\\Logo.png";
    const std::string other = "\\b\\logo.jpg";
    const std::vector<Case> cases = {
        {"none", {{"x", "\\x"}}, {}, {}},
        {"free", {}, {logo, "\\a\\clip.wmv"}, {{"Logo", logo}, {"clip", "\\a\\clip.wmv"}}},
        {"among each other", {}, {logo, other}, {{"Logo", logo}, {"logo 2", other}}},
        {"taken", {{"LOGO", "\\x"}}, {logo}, {{"Logo 2", logo}}},
        {"taken twice", {{"Logo", "\\x"}, {"logo 2", "\\y"}}, {logo}, {{"Logo 3", logo}}},
        {"taken by the dashboard's", {{"Logo", logo, false}}, {logo}, {{"Logo 2", logo}}},
        {"reserved", {}, {"\\a\\bground.png"}, {{"bground 2", "\\a\\bground.png"}}},
        {"there", {{"logo", logo}}, {logo, other}, {{"logo 2", other}}},
        {"there by another name", {{"mine", logo}}, {logo}, {{"Logo", logo}}},
        {"there by a number", {{"Logo", "\\x"}, {"Logo 7", logo}}, {logo}, {}},
        {"there twice over", {}, {logo, logo}, {{"Logo", logo}}},
        {"no number of its own", {{"5", "\\x"}}, {"\\a\\5.png"}, {{"5 2", "\\a\\5.png"}}},
    };
    for (const Case& tested : cases) {
        SkinDocument document;
        document.editSettings([&](SkinSettings& settings) { settings.resources = tested.before; });
        SkinDocument expected = document;
        expected.editSettings([&](SkinSettings& settings) {
            settings.resources.insert(settings.resources.end(), tested.added.begin(),
                                      tested.added.end());
        });
        EXPECT_EQ(addCustomResources(document, tested.paths), int(tested.added.size()))
            << tested.what;
        EXPECT_EQ(document, expected) << tested.what;
    }
}

TEST(AddCustomResources, KnowsAFileInAnotherSpelling) {
    const TemporaryFolder folder;
    folder.file("Logo.png", "x");
    SkinDocument document;
    document.addRes("logo", folder.document("LOGO.PNG"));
    const SkinDocument before = document;
    EXPECT_EQ(addCustomResources(document, {folder.document("Logo.png")}), 0);
    EXPECT_EQ(document, before);
}

TEST(AddCustomResources, TakesThousandsOfFilesOfOneName) {
    SkinDocument document;
    std::vector<std::string> paths;
    for (int i = 0; i < 20'000; ++i) {
        paths.push_back("\\" + std::to_string(i) + "\\logo.png");
    }
    EXPECT_EQ(addCustomResources(document, paths), 20'000);
    EXPECT_EQ(document.settings().resources.back().name, "logo 20000");
    EXPECT_EQ(addCustomResources(document, paths), 0); // all are there
}

} // namespace
} // namespace tarvel
