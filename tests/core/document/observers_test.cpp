// Who is told, in which order, and what may happen meanwhile.
#include "document/observers.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

namespace tarvel {
namespace {

struct Listener {
    std::function<void()> hear;
};

using List = Observers<Listener>;

void tell(const List& list) {
    list.each([](Listener& listener) { listener.hear(); });
}

struct ObserversTest : testing::Test {
    Listener says(const char* name) {
        return {[this, name] { heard += name; }};
    }
    std::string heard;
    List list;
};

TEST_F(ObserversTest, AreToldInTheOrderInWhichTheyCame) {
    Listener a = says("a");
    Listener b = says("b");
    Listener c = says("c");
    const auto first = list.add(c);
    const auto second = list.add(a);
    const auto third = list.add(b);
    tell(list);
    EXPECT_EQ(heard, "cab");
}

TEST_F(ObserversTest, EndWithTheirWatch) {
    Listener a = says("a");
    Listener b = says("b");
    auto first = list.add(a);
    {
        const auto second = list.add(b);
        tell(list);
    }
    tell(list);
    auto moved = std::move(first);
    tell(list);
    moved.end();
    moved.end();
    tell(list);
    EXPECT_EQ(heard, "abaa");
}

TEST_F(ObserversTest, MayOutliveTheList) {
    Listener a = says("a");
    auto own = std::make_unique<List>();
    auto watch = own->add(a);
    own.reset();
    watch.end();
    EXPECT_EQ(heard, "");
}

TEST_F(ObserversTest, MayEndTheListThatTellsThem) {
    auto own = std::make_unique<List>();
    Listener a{[&] { own.reset(); }};
    Listener b = says("b");
    const auto first = own->add(a);
    const auto second = own->add(b);
    tell(*own);
    EXPECT_EQ(heard, "b");
}

TEST_F(ObserversTest, MayComeAndGoWhileTheyAreTold) {
    Listener late = says("late");
    Listener gone = says("gone");
    List::Watch lateWatch;
    List::Watch goneWatch;
    Listener a{[&] {
        heard += "a";
        goneWatch.end();
        lateWatch = list.add(late);
    }};
    const auto first = list.add(a);
    goneWatch = list.add(gone);
    tell(list);
    EXPECT_EQ(heard, "a");
    a.hear = [&] { heard += "a"; };
    tell(list);
    EXPECT_EQ(heard, "aalate");
}

TEST_F(ObserversTest, MayTellAgainWhileTheyAreTold) {
    bool again = true;
    Listener b = says("b");
    List::Watch second;
    Listener a{[&] {
        heard += "a";
        if (std::exchange(again, false)) {
            tell(list);
            second.end();
        }
    }};
    const auto first = list.add(a);
    second = list.add(b);
    tell(list);
    EXPECT_EQ(heard, "aab");
    tell(list);
    EXPECT_EQ(heard, "aaba");
}

TEST_F(ObserversTest, BelongToTheObject) {
    Listener a = says("a");
    const auto watch = list.add(a);
    const List copy(list);
    tell(copy);
    List other;
    other = list;
    tell(other);
    list = other;
    EXPECT_EQ(heard, "");
    tell(list);
    EXPECT_EQ(heard, "a");
}

} // namespace
} // namespace tarvel
