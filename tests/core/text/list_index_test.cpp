// Where a text is found in lists of choices.
#include "text/list_index.h"

#include <gtest/gtest.h>

#include <string_view>
#include <vector>

namespace tarvel {
namespace {

TEST(GetListIndex, GivesTheLastMatchOrTheFirstEntry) {
    struct Case {
        std::vector<std::string_view> list;
        std::string_view text;
        int index;
    };
    const Case cases[] = {
        {{"A", "b", "a"}, "A", 2},
        {{"A", "b", "a"}, "a", 2},
        {{"A", "b", "a"}, "B", 1},
        {{"A", "b", "a"}, "z", 0},
        {{"A", "b", "a"}, "", 0},
        {{"A", "", "a"}, "", 1},
        {{"A", "b ", "c"}, "b", 0},
        {{"A", "\xC3\x84", "c"}, "\xC3\xA4", 1}, // capital and small a with dots
        {{}, "A", 0},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(getListIndex(c.list, c.text), c.index) << c.text;
    }
}

} // namespace
} // namespace tarvel
