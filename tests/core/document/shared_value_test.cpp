// Values and tables whose copies share what neither side has changed.
#include "document/shared_table.h"
#include "document/shared_value.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace tarvel {
namespace {

// Counts how often its values were really copied.
struct Counted {
    int value = 7;
    static inline int copies = 0;

    Counted() = default;
    explicit Counted(int number)
        : value(number) {}
    Counted(const Counted& other)
        : value(other.value) {
        ++copies;
    }
    Counted(Counted&& other) noexcept = default;
    Counted& operator=(const Counted& other) {
        value = other.value;
        ++copies;
        return *this;
    }
    Counted& operator=(Counted&& other) noexcept = default;
    ~Counted() = default;

    bool operator==(const Counted&) const = default;
};

using Shared = SharedValue<Counted>;
using Table = SharedTable<Counted>;

Table tableOf(int count) {
    Table table;
    for (int i = 0; i < count; ++i) {
        table.push_back(Counted(i));
    }
    return table;
}

std::vector<int> valuesOf(const Table& table) {
    std::vector<int> values;
    for (std::size_t i = 0; i < table.size(); ++i) {
        values.push_back(table[i].value);
    }
    return values;
}

std::vector<int> countingTo(int count) {
    std::vector<int> values;
    for (int i = 0; i < count; ++i) {
        values.push_back(i);
    }
    return values;
}

TEST(SharedValue, ReadsAsADefaultValueAtFirst) {
    const SharedValue<std::string> text;
    EXPECT_EQ(*text, "");
    EXPECT_TRUE(text->empty());
    EXPECT_EQ(Shared().get().value, 7);
    EXPECT_EQ(Shared(), Shared(Counted(7)));
    EXPECT_FALSE(Shared() == Shared(Counted(8)));
}

TEST(SharedValue, IsEditedInPlaceWhileUnshared) {
    Shared shared;
    Counted::copies = 0;
    shared.edit().value = 1;
    const Counted* const place = &shared.get();
    shared.edit().value = 2;
    EXPECT_EQ(&shared.get(), place);
    EXPECT_EQ(shared->value, 2);
    EXPECT_EQ(Counted::copies, 0);
    EXPECT_EQ(Shared()->value, 7); // the default stays what it is
}

TEST(SharedValue, IsCopiedByTheFirstEditOnly) {
    const Shared original(Counted(1));
    Counted::copies = 0;
    Shared copy = original;
    EXPECT_EQ(&copy.get(), &original.get());
    EXPECT_EQ(Counted::copies, 0);

    copy.edit().value = 2;
    copy.edit().value = 3;
    EXPECT_EQ(Counted::copies, 1);
    EXPECT_EQ(original->value, 1);
    EXPECT_EQ(copy->value, 3);
    EXPECT_FALSE(copy == original);

    copy.edit().value = 1;
    EXPECT_EQ(copy, original); // by value, no longer by place
}

TEST(SharedValue, MayBeEditedOnEitherSide) {
    Shared first(Counted(1));
    const Shared second = first;
    first.edit().value = 2;
    EXPECT_EQ(first->value, 2);
    EXPECT_EQ(second->value, 1);
}

TEST(SharedTable, GrowsAcrossItsBlocks) {
    for (const int count : {0, 1, 31, 32, 33, 64, 65, 1000}) {
        const Table table = tableOf(count);
        EXPECT_EQ(table.size(), static_cast<std::size_t>(count));
        EXPECT_EQ(table.empty(), count == 0);
        EXPECT_EQ(valuesOf(table), countingTo(count));
    }
}

TEST(SharedTable, HasIndependentCopies) {
    for (const int count : {1, 32, 33, 100}) {
        Table original = tableOf(count);
        Table copy = original;
        EXPECT_EQ(copy, original);
        for (int i = 0; i < count; ++i) {
            copy.edit(static_cast<std::size_t>(i)).value = -i - 1;
        }
        EXPECT_EQ(valuesOf(original), countingTo(count));
        EXPECT_EQ(copy[0].value, -1);
        EXPECT_FALSE(copy == original);

        copy = original;
        copy.push_back(Counted(5));
        original.push_back(Counted(6));
        original.edit(0).value = 99;
        EXPECT_EQ(copy.size(), original.size());
        EXPECT_EQ(copy[0].value, 0);
        EXPECT_EQ(copy[static_cast<std::size_t>(count)].value, 5);
        EXPECT_EQ(original[static_cast<std::size_t>(count)].value, 6);
    }
}

TEST(SharedTable, CopiesOneBlockForOneChange) {
    const Table original = tableOf(10 * static_cast<int>(Table::blockSize));
    Counted::copies = 0;
    Table copy = original;
    EXPECT_EQ(Counted::copies, 0);
    copy.edit(0).value = 1;
    copy.edit(1).value = 2;
    EXPECT_EQ(Counted::copies, static_cast<int>(Table::blockSize));
    EXPECT_EQ(&copy[Table::blockSize], &original[Table::blockSize]);
    EXPECT_NE(&copy[0], &original[0]);
}

TEST(SharedTable, ComparesSizeAndValues) {
    EXPECT_EQ(Table(), Table());
    EXPECT_EQ(tableOf(40), tableOf(40));
    EXPECT_FALSE(tableOf(40) == tableOf(41));
    EXPECT_FALSE(tableOf(0) == tableOf(1));
    Table other = tableOf(40);
    other.edit(39).value = 0;
    EXPECT_FALSE(tableOf(40) == other);
    other.edit(39).value = 39;
    EXPECT_EQ(tableOf(40), other);
}

} // namespace
} // namespace tarvel
