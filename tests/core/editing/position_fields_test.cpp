// The position panel's texts, and what typing into them does.
#include "editing/position_fields.h"
#include "support/place_support.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace tarvel {
namespace {

using test::add;
using test::boxAt;
using test::lineAt;
using test::placeOf;
using test::RecordingObserver;
using test::setLocked;
using enum PositionField;

TEST(PositionTexts, AreTheElementsNumbers) {
    EXPECT_EQ(positionTexts(boxAt({1, -2, 3.5F, 0}).elementControl),
              (PositionTexts{"1", "-2", "3.5", "0"}));
    EXPECT_EQ(positionTexts(lineAt({10, 20, 30.25F, 40}).elementControl),
              (PositionTexts{"10", "20", "30.25", "40"}));
    EXPECT_EQ(positionTexts(boxAt({0.1F, 0, 0, 0}).elementControl)[0], "0.1");
}

TEST(PositionCaptions, NameTheEndsOfALine) {
    using Captions = std::array<std::string_view, positionFields>;
    EXPECT_EQ(positionCaptions(ControlKind::txt), (Captions{"L", "T", "W", "H"}));
    EXPECT_EQ(positionCaptions(ControlKind::lin), (Captions{"X1", "Y1", "X2", "Y2"}));
}

TEST(EnterPosition, MovesAndSizesLeniently) {
    constexpr float largest = std::numeric_limits<float>::max();
    struct Case {
        PositionField field;
        std::string text;
        Place place;
    };
    const Case cases[] = {
        {L, "5", {5, 20, 30, 40}},
        {T, "6", {10, 6, 30, 40}},
        {W, "7", {10, 20, 7, 40}},
        {H, "8", {10, 20, 30, 8}},
        {L, "-5", {-5, 20, 30, 40}},
        {L, "12.5 px", {12.5F, 20, 30, 40}},
        {T, "  7", {10, 7, 30, 40}},
        {L, "", {0, 20, 30, 40}},
        {W, "wide", {10, 20, 0, 40}},
        {W, "-5", {10, 20, 0, 40}}, // no size is negative
        {H, "-0.5", {10, 20, 30, 0}},
        {L, "1e60", {largest, 20, 30, 40}},
        {T, "-1e60", {10, -largest, 30, 40}},
        {W, "1e60", {10, 20, largest, 40}},
        {L, "2000", {2000, 20, 30, 40}}, // beyond the screen
    };
    for (const auto& c : cases) {
        SkinDocument document;
        const int id = add(document, boxAt({10, 20, 30, 40}));
        EXPECT_TRUE(enterPosition(document, id, c.field, c.text)) << c.text;
        EXPECT_EQ(placeOf(document, id), c.place) << c.text;
    }
}

TEST(EnterPosition, MovesTheEndsOfALine) {
    SkinDocument document;
    const int id = add(document, lineAt({10, 20, 30, 40}));
    EXPECT_TRUE(enterPosition(document, id, L, "1"));
    EXPECT_TRUE(enterPosition(document, id, T, "2"));
    EXPECT_TRUE(enterPosition(document, id, W, "-3"));
    EXPECT_TRUE(enterPosition(document, id, H, "900"));
    EXPECT_EQ(placeOf(document, id), (Place{1, 2, -3, 900}));
}

TEST(EnterPosition, LeavesTheOtherNumbersAsTheyAre) {
    SkinDocument document;
    const int id = add(document, boxAt({0.1F, 0.2F, -30, 40}));
    EXPECT_TRUE(enterPosition(document, id, L, "5"));
    EXPECT_EQ(placeOf(document, id), (Place{5, 0.2F, -30, 40}));
}

TEST(EnterPosition, TellsNothingWhereNothingChanges) {
    SkinDocument document;
    const int id = add(document, boxAt({0.1F, 20, 30, 40}));
    RecordingObserver observer;
    const auto watch = document.watch(observer);
    const PositionTexts texts = positionTexts(document.element(id).elementControl);
    for (const auto field : {L, T, W, H}) {
        EXPECT_FALSE(enterPosition(document, id, field, texts.at(static_cast<std::size_t>(field))));
    }
    EXPECT_FALSE(enterPosition(document, 0, L, "5"));
    EXPECT_FALSE(enterPosition(document, -1, L, "5"));
    EXPECT_TRUE(observer.notes.empty());
}

TEST(EnterPosition, LeavesLockedElements) {
    SkinDocument document;
    const int id = add(document, boxAt({10, 20, 30, 40}));
    setLocked(document, id, true);
    EXPECT_FALSE(enterPosition(document, id, L, "5"));
    EXPECT_EQ(placeOf(document, id), (Place{10, 20, 30, 40}));
}

} // namespace
} // namespace tarvel
