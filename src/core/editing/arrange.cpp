// Works out the places of each command from those at its beginning, then sets those that differ.
#include "editing/arrange.h"

#include "editing/group_places.h"
#include "editing/manipulation.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <tuple>
#include <vector>

namespace tarvel {

namespace {

using Command = ArrangeCommand;

// What the commands do.
enum class Work : std::uint8_t { align, distribute, size, centre, fill, round };

constexpr double atStart = 0;
constexpr double atMiddle = 0.5;
constexpr double atEnd = 1;

struct Rule {
    Command command;
    std::string_view step;
    Work work;
    bool across;
    bool down;
    double anchor = atStart; // of align: where in an extent the point is that is aligned
};

constexpr std::array<Rule, 15> rules = {{
    {Command::alignLeft, step::alignLeft, Work::align, true, false, atStart},
    {Command::alignCentre, step::alignCentre, Work::align, true, false, atMiddle},
    {Command::alignRight, step::alignRight, Work::align, true, false, atEnd},
    {Command::alignTop, step::alignTop, Work::align, false, true, atStart},
    {Command::alignMiddle, step::alignMiddle, Work::align, false, true, atMiddle},
    {Command::alignBottom, step::alignBottom, Work::align, false, true, atEnd},
    {Command::distributeAcross, step::distributeAcross, Work::distribute, true, false},
    {Command::distributeDown, step::distributeDown, Work::distribute, false, true},
    {Command::sameWidth, step::sameWidth, Work::size, true, false},
    {Command::sameHeight, step::sameHeight, Work::size, false, true},
    {Command::sameSize, step::sameSize, Work::size, true, true},
    {Command::centreAcross, step::centreAcross, Work::centre, true, false},
    {Command::centreDown, step::centreDown, Work::centre, false, true},
    {Command::fillScreen, step::fillScreen, Work::fill, true, true},
    {Command::wholePixels, step::wholePixels, Work::round, true, true},
}};

static_assert(std::is_sorted(rules.begin(), rules.end(), [](const Rule& a, const Rule& b) {
    return static_cast<int>(a.command) < static_cast<int>(b.command);
}));

const Rule& ruleOf(Command command) {
    return rules.at(static_cast<std::size_t>(command));
}

// The elements that a command is about.
struct Group {
    std::vector<StartPlace> parts;
    std::optional<Bounds> leading; // without a place that could be worked with there is none
    bool leadsOthers = false;      // besides the leading one there are parts
};

Group groupOf(const SkinDocument& document, std::span<const int> ids, int leading) {
    Group group{startPlaces(document, ids), std::nullopt, false};
    group.leadsOthers = std::any_of(group.parts.begin(), group.parts.end(),
                                    [&](const auto& part) { return part.elementId != leading; });
    const bool isElement = leading > 0 && leading <= document.lastElementId() &&
                           std::find(ids.begin(), ids.end(), leading) != ids.end();
    if (isElement) {
        const ElementControl& control = document.element(leading).elementControl;
        const Place place = placeOf(control);
        if (isFinite(place)) {
            group.leading = boundsOf(place, rulesOf(control.kind).placeForm);
        }
    }
    return group;
}

// What the group is aligned to; nothing when several have no leading one.
std::optional<Bounds> alignedTo(const Group& group) {
    const bool alone = group.parts.size() == 1 && !(group.leading && group.leadsOthers);
    return alone ? screenBounds : group.leading;
}

bool canDo(const Group& group, Work work) {
    constexpr std::size_t fewestToDistribute = 3;
    switch (work) {
    case Work::align:
        return !group.parts.empty() && alignedTo(group).has_value();
    case Work::distribute:
        return group.parts.size() >= fewestToDistribute;
    case Work::size:
        return group.leading.has_value() && group.leadsOthers;
    case Work::centre:
    case Work::fill:
    case Work::round:
        break;
    }
    return !group.parts.empty();
}

double pointIn(const Extent& extent, double anchor) {
    return extent.start + extent.length * anchor;
}

void align(Group& group, Axis axis, double anchor) {
    const Bounds target = *alignedTo(group);
    const double goal = pointIn(target.along(axis), anchor);
    for (StartPlace& part : group.parts) {
        const double now = pointIn(boundsOf(part).along(axis), anchor);
        part.place = movedAlong(part, axis, goal - now);
    }
}

void distribute(Group& group, Axis axis) {
    const auto extentOf = [&](const StartPlace& part) { return boundsOf(part).along(axis); };
    std::vector<StartPlace>& parts = group.parts;
    std::sort(parts.begin(), parts.end(), [&](const StartPlace& a, const StartPlace& b) {
        const Extent first = extentOf(a);
        const Extent second = extentOf(b);
        return std::tuple(first.middle(), first.start, a.elementId) <
               std::tuple(second.middle(), second.start, b.elementId);
    });
    const std::span<StartPlace> between = std::span(parts).subspan(1, parts.size() - 2);
    const double begin = extentOf(parts.front()).end();
    double room = extentOf(parts.back()).start - begin;
    for (const StartPlace& part : between) {
        room -= extentOf(part).length;
    }
    const double gap = room / static_cast<double>(between.size() + 1);
    double at = begin;
    for (StartPlace& part : between) {
        const Extent extent = extentOf(part);
        part.place = movedAlong(part, axis, at + gap - extent.start);
        at += gap + extent.length;
    }
}

void size(Group& group, int leading, Axis axis) {
    const double length = std::max<double>(group.leading->along(axis).length, smallestSide);
    for (StartPlace& part : group.parts) {
        if (part.elementId != leading) {
            part.place = fittedAlong(part, axis, {boundsOf(part).along(axis).start, length});
        }
    }
}

void centre(Group& group, Axis axis) {
    const double by =
        screenBounds.along(axis).middle() - commonBounds(group.parts).along(axis).middle();
    for (StartPlace& part : group.parts) {
        part.place = movedAlong(part, axis, by);
    }
}

void fill(Group& group, Axis axis) {
    for (StartPlace& part : group.parts) {
        part.place = fittedAlong(part, axis, screenBounds.along(axis));
    }
}

void bringToWhole(Group& group, Axis axis) {
    for (StartPlace& part : group.parts) {
        float& first = part.place.at(static_cast<std::size_t>(axis));
        float& second = part.place.at(static_cast<std::size_t>(axis) + 2);
        const bool isSide = part.form == PlaceForm::rectangle && second > 0;
        first = std::nearbyint(first);
        second = isSide ? std::max(smallestSide, std::nearbyint(second)) : std::nearbyint(second);
    }
}

void workOut(Group& group, int leading, const Rule& rule, Axis axis) {
    switch (rule.work) {
    case Work::align:
        return align(group, axis, rule.anchor);
    case Work::distribute:
        return distribute(group, axis);
    case Work::size:
        return size(group, leading, axis);
    case Work::centre:
        return centre(group, axis);
    case Work::fill:
        return fill(group, axis);
    case Work::round:
        return bringToWhole(group, axis);
    }
}

} // namespace

std::string_view arrangeStep(ArrangeCommand command) {
    return ruleOf(command).step;
}

bool arrange(SkinDocument& document, std::span<const int> ids, int leading,
             ArrangeCommand command) {
    const Rule& rule = ruleOf(command);
    Group group = groupOf(document, ids, leading);
    if (!canDo(group, rule.work)) {
        return false;
    }
    if (rule.across) {
        workOut(group, leading, rule, Axis::across);
    }
    if (rule.down) {
        workOut(group, leading, rule, Axis::down);
    }
    return placeAll(document, group.parts);
}

bool isPossible(const SkinDocument& document, std::span<const int> ids, int leading,
                ArrangeCommand command) {
    return canDo(groupOf(document, ids, leading), ruleOf(command).work);
}

} // namespace tarvel
