// Which names of information fields come of what is typed.
#include "editing/information_rules.h"

#include <gtest/gtest.h>

namespace tarvel {
namespace {

TEST(FieldName, TurnsEveryBlankIntoAnUnderscoreAndLeavesOutWhatNoTagCanHold) {
    struct Case {
        std::string_view answer;
        std::string_view name;
    };
    constexpr Case cases[] = {
        {"Skin Web Page", "Skin_Web_Page"},
        {"Homepage", "Homepage"},
        {" both  ends ", "_both__ends_"},
        {"R&D", "R&D"},
        {"a/b\"c", "a/b\"c"},
        {"<b>Size</b>", "bSize/b"},
        {"<>", ""},
        {"", ""},
        {" ", "_"},
        {"Gr\xC3\xB6\xC3\x9F"
         "e",
         "Gr\xC3\xB6\xC3\x9F"
         "e"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(fieldName(c.answer), c.name) << c.answer;
    }
}

TEST(AddField, AppendsAnEmptyField) {
    SkinSettings settings;
    EXPECT_TRUE(addField(settings, "Skin Web Page"));
    EXPECT_TRUE(addField(settings, "Author")); // names may be there twice
    const std::vector<InformationField> expected = {
        {"Author", ""}, {"Version", ""}, {"Copyright", ""}, {"Skin_Web_Page", ""}, {"Author", ""}};
    EXPECT_EQ(settings.information, expected);
}

TEST(AddField, AddsNothingWithoutAName) {
    for (const std::string_view answer : {"", "<>", "><<"}) {
        SkinSettings settings;
        EXPECT_FALSE(addField(settings, answer));
        EXPECT_EQ(settings, SkinSettings{}) << answer;
    }
}

TEST(FieldValue, IsThatOfTheField) {
    SkinSettings settings;
    setFieldValue(settings, 0, "Ann");
    setFieldValue(settings, 2, "2026");
    const std::vector<InformationField> expected = {
        {"Author", "Ann"}, {"Version", ""}, {"Copyright", "2026"}};
    EXPECT_EQ(settings.information, expected);
    EXPECT_EQ(fieldValue(settings, 0), "Ann");
    EXPECT_EQ(fieldValue(settings, 1), "");
}

TEST(FieldValue, IsLeftAloneWhereThereIsNoField) {
    for (const int field : {-1, 3, 1000}) {
        SkinSettings settings;
        setFieldValue(settings, field, "x");
        EXPECT_EQ(settings, SkinSettings{}) << field;
        EXPECT_EQ(fieldValue(settings, field), "") << field;
    }
}

} // namespace
} // namespace tarvel
