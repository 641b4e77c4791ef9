// Finds elements and handles under a point, by sums in doubles, where they are exact.
#include "editing/hit_test.h"

#include "document/element_kinds.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tarvel {

namespace {

// A side of the selection box.
struct Side {
    double start;
    double length;
};

Side horizontal(const ElementControl& control) {
    return {control.left, std::max(control.width, 0.0F)};
}

Side vertical(const ElementControl& control) {
    return {control.top, std::max(control.height, 0.0F)};
}

double centreAlong(const Side& side, int edge) {
    return side.start + side.length * (edge + 1) / 2;
}

bool reaches(const Side& side, int edge, double at, double zoom) {
    const double fromCentre = at - centreAlong(side, edge);
    const double reach = handleReach / zoom;
    const double inward = edge == 0 ? reach : std::min(reach, side.length / 4);
    const double before = edge > 0 ? inward : reach;
    const double after = edge < 0 ? inward : reach;
    return fromCentre >= -before && fromCentre <= after;
}

// How far an end of a line is from a point.
struct Way {
    double x;
    double y;

    [[nodiscard]] bool isWithin(double reach) const {
        return std::abs(x) < reach && std::abs(y) < reach;
    }
    [[nodiscard]] double length() const { return std::hypot(x, y); }
};

Way wayTo(float endX, float endY, SkinPoint point, double zoom) {
    const double shift = lineEndShift(zoom);
    return {endX + shift - point.x, endY + shift - point.y};
}

Handle lineEndAt(const ElementControl& line, SkinPoint point, double zoom) {
    const Way toFirst = wayTo(line.X1, line.Y1, point, zoom);
    const Way toSecond = wayTo(line.X2, line.Y2, point, zoom);
    const bool atFirst = toFirst.isWithin(lineEndReach / zoom);
    const bool atSecond = toSecond.isWithin(lineEndReach / zoom);
    if (atFirst && atSecond) {
        const double first = toFirst.length();
        const double second = toSecond.length();
        return first < second ? Handle::firstEnd : Handle::secondEnd;
    }
    if (atFirst) {
        return Handle::firstEnd;
    }
    return atSecond ? Handle::secondEnd : Handle::none;
}

} // namespace

bool onElement(float x, float y, const ElementControl& control) {
    const double right = static_cast<double>(control.left) + control.width;
    const double bottom = static_cast<double>(control.top) + control.height;
    return x >= control.left && x <= right && y >= control.top && y <= bottom;
}

bool onElementLine(float x, float y, const ElementControl& line, double zoom) {
    return lineEndAt(line, {x, y}, zoom) != Handle::none;
}

bool isAt(const Element& element, SkinPoint point, double zoom) {
    const ElementControl& control = element.elementControl;
    const bool hit = hasEnds(control) ? onElementLine(point.x, point.y, control, zoom)
                                      : onElement(point.x, point.y, control);
    return hit && !element.elementLocked;
}

int rowAt(const SkinDocument& document, SkinPoint point, double zoom) {
    const int screen = document.currentLayout();
    for (int row = document.rowCount(screen) - 1; row >= 0; --row) {
        if (isAt(document.element(document.itemData(screen, row)), point, zoom)) {
            return row;
        }
    }
    return -1;
}

HandleEdges edgesOf(Handle handle) {
    switch (handle) {
    case Handle::topLeft:
        return {-1, -1};
    case Handle::top:
        return {0, -1};
    case Handle::topRight:
        return {1, -1};
    case Handle::right:
        return {1, 0};
    case Handle::bottomRight:
        return {1, 1};
    case Handle::bottom:
        return {0, 1};
    case Handle::bottomLeft:
        return {-1, 1};
    case Handle::left:
        return {-1, 0};
    case Handle::none:
    case Handle::firstEnd:
    case Handle::secondEnd:
        break;
    }
    return {};
}

bool hasHandle(const Element& element, Handle handle, double zoom) {
    const ElementControl& control = element.elementControl;
    if (element.elementLocked || handle == Handle::none) {
        return false;
    }
    const auto [x, y] = edgesOf(handle);
    const bool isEnd = x == 0 && y == 0;
    if (isEnd || hasEnds(control)) {
        return isEnd && hasEnds(control);
    }
    return (x != 0 || control.width * zoom >= shortestSideWithMiddle) &&
           (y != 0 || control.height * zoom >= shortestSideWithMiddle);
}

SkinPoint handleCentre(const ElementControl& control, Handle handle) {
    if (handle == Handle::firstEnd) {
        return {control.X1, control.Y1};
    }
    if (handle == Handle::secondEnd) {
        return {control.X2, control.Y2};
    }
    const auto [x, y] = edgesOf(handle);
    return {toSingle(centreAlong(horizontal(control), x)),
            toSingle(centreAlong(vertical(control), y))};
}

Handle handleAt(const Element& element, SkinPoint point, double zoom) {
    const ElementControl& control = element.elementControl;
    if (hasEnds(control)) {
        return element.elementLocked ? Handle::none : lineEndAt(control, point, zoom);
    }
    constexpr std::array<Handle, 8> order = {
        Handle::bottomRight, Handle::topRight, Handle::bottomLeft, Handle::topLeft,
        Handle::right,       Handle::bottom,   Handle::left,       Handle::top};
    const auto found = std::find_if(order.begin(), order.end(), [&](Handle handle) {
        const auto [x, y] = edgesOf(handle);
        return hasHandle(element, handle, zoom) && reaches(horizontal(control), x, point.x, zoom) &&
               reaches(vertical(control), y, point.y, zoom);
    });
    return found == order.end() ? Handle::none : *found;
}

} // namespace tarvel
