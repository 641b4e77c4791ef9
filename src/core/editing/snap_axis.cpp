// Sorts the edges and middles along an axis, and looks them up.
#include "editing/snap_axis.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <numeric>
#include <utility>

namespace tarvel {

namespace {

// A number whose order is that of the singles.
std::uint32_t orderOf(float value) {
    constexpr std::uint32_t sign = 1U << 31U;
    const auto bits = std::bit_cast<std::uint32_t>(value + 0.0F); // one zero
    return (bits & sign) != 0 ? ~bits : bits | sign;
}

// Orders by what keyOf() gives, a single, and leaves equal ones in their order. By digits, because
// comparing edges that stand in no order would take most of the time in which a drag begins.
template <class Value, class KeyOf> void sortBy(std::vector<Value>& values, KeyOf&& keyOf) {
    constexpr unsigned digitBits = 11;
    constexpr std::uint32_t digits = 1U << digitBits;
    std::vector<Value> sorted(values.size());
    for (unsigned shift = 0; shift < 32; shift += digitBits) {
        const auto digitOf = [&](const Value& value) {
            return (orderOf(keyOf(value)) >> shift) % digits;
        };
        std::array<std::size_t, digits + 1> places{};
        for (const Value& value : values) {
            ++places[digitOf(value) + 1];
        }
        std::partial_sum(places.begin(), places.end(), places.begin());
        for (const Value& value : values) {
            sorted[places[digitOf(value)]++] = value;
        }
        values.swap(sorted);
    }
}

constexpr auto startOf = [](const SnapItem& item) { return item.start; };
constexpr auto endOf = [](const SnapItem& item) { return item.end; };
constexpr auto positionOf = [](const SnapLine& line) { return line.position; };

bool liesBefore(const SnapLine& a, const SnapLine& b) {
    return a.position < b.position;
}

void unite(SnapLine& line, const SnapLine& other) {
    line.from = std::min(line.from, other.from);
    line.to = std::max(line.to, other.to);
}

SnapLine middleOf(const SnapItem& item) {
    return {toSingle((static_cast<double>(item.start) + item.end) / 2), item.from, item.to};
}

using Lines = std::vector<SnapLine>;

Lines merged(const Lines& a, const Lines& b) {
    Lines both;
    both.reserve(a.size() + b.size());
    std::merge(a.begin(), a.end(), b.begin(), b.end(), std::back_inserter(both), liesBefore);
    return both;
}

// Leaves one line of those at one position.
void uniteEqual(Lines& lines) {
    auto last = lines.begin();
    for (auto each = lines.begin(); each != lines.end(); ++each) {
        if (each == last) {
            continue;
        }
        if (each->position == last->position) {
            unite(*last, *each);
        } else {
            *++last = *each;
        }
    }
    if (!lines.empty()) {
        lines.erase(std::next(last), lines.end());
    }
}

template <class Range> bool shares(const Range& item, const Extent& cross) {
    return item.from < cross.end() && item.to > cross.start;
}

} // namespace

SnapAxis::SnapAxis(std::vector<SnapItem> elements, std::span<const SnapItem> others)
    : byStart_(std::move(elements)) {
    Lines middles;
    middles.reserve(byStart_.size() + 3 * others.size());
    for (const SnapItem& item : others) {
        middles.push_back({item.start, item.from, item.to});
        middles.push_back(middleOf(item));
        middles.push_back({item.end, item.from, item.to});
    }
    std::transform(byStart_.begin(), byStart_.end(), std::back_inserter(middles), middleOf);
    sortBy(byStart_, startOf);
    sortBy(byStart_, endOf);
    byEnd_ = byStart_;
    sortBy(byStart_, startOf); // and those that start together by their ends
    sortBy(middles, positionOf);

    Lines starts;
    Lines ends;
    starts.reserve(byStart_.size());
    ends.reserve(byEnd_.size());
    std::transform(byStart_.begin(), byStart_.end(), std::back_inserter(starts),
                   [](const SnapItem& item) {
                       return SnapLine{item.start, item.from, item.to};
                   });
    std::transform(byEnd_.begin(), byEnd_.end(), std::back_inserter(ends),
                   [](const SnapItem& item) {
                       return SnapLine{item.end, item.from, item.to};
                   });
    lines_ = merged(merged(starts, ends), middles);
    uniteEqual(lines_);
    startRuns_ = runsOf(byStart_);
    endRuns_ = runsOf(byEnd_);
}

std::vector<SnapAxis::Run> SnapAxis::runsOf(const std::vector<SnapItem>& items) {
    std::vector<Run> runs((items.size() + runLength - 1) / runLength);
    for (std::size_t i = 0; i < items.size(); ++i) {
        Run& run = runs[i / runLength];
        run.from = std::min(run.from, items[i].from);
        run.to = std::max(run.to, items[i].to);
    }
    return runs;
}

std::optional<double> SnapAxis::nearest(double position, double tolerance) const {
    const auto next =
        std::lower_bound(lines_.begin(), lines_.end(), position,
                         [](const SnapLine& line, double at) { return line.position < at; });
    std::optional<double> found;
    double distance = tolerance;
    const auto look = [&](const SnapLine& line, bool whenEqual) {
        const double way = std::abs(line.position - position);
        if (way < distance || (whenEqual && way == distance)) {
            distance = way;
            found = line.position;
        }
    };
    if (next != lines_.begin()) {
        look(*std::prev(next), true);
    }
    if (next != lines_.end()) {
        look(*next, !found);
    }
    return found;
}

std::optional<SnapLine> SnapAxis::lineAt(double position) const {
    auto each =
        std::lower_bound(lines_.begin(), lines_.end(), position - sameLine,
                         [](const SnapLine& line, double at) { return line.position < at; });
    std::optional<SnapLine> found;
    for (; each != lines_.end() && each->position <= position + sameLine; ++each) {
        if (found) {
            unite(*found, *each);
        } else {
            found = *each;
        }
    }
    return found;
}

const SnapItem* SnapAxis::before(double limit, const Extent& cross) const {
    const auto beyond =
        std::upper_bound(byEnd_.begin(), byEnd_.end(), limit,
                         [](double at, const SnapItem& item) { return at < item.end; });
    auto i = static_cast<std::size_t>(beyond - byEnd_.begin());
    while (i > 0) {
        const std::size_t run = (i - 1) / runLength;
        if (!shares(endRuns_[run], cross)) {
            i = run * runLength;
        } else if (shares(byEnd_[--i], cross)) {
            return &byEnd_[i];
        }
    }
    return nullptr;
}

const SnapItem* SnapAxis::after(double limit, const Extent& cross) const {
    const auto first =
        std::lower_bound(byStart_.begin(), byStart_.end(), limit,
                         [](const SnapItem& item, double at) { return item.start < at; });
    auto i = static_cast<std::size_t>(first - byStart_.begin());
    while (i < byStart_.size()) {
        const std::size_t run = i / runLength;
        if (!shares(startRuns_[run], cross)) {
            i = (run + 1) * runLength;
        } else if (shares(byStart_[i], cross)) {
            return &byStart_[i];
        } else {
            ++i;
        }
    }
    return nullptr;
}

} // namespace tarvel
