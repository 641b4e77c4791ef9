// Finds screens by their names, and tells which screens and behaviours get a mark.
#include "document/layout_screens.h"

#include "text/text_case.h"

#include <algorithm>

namespace tarvel {

int getLayoutNum(std::string_view name) {
    int found = 0;
    for (int screen = 0; screen < screenCount; ++screen) {
        if (lowerCased(layoutScreens[static_cast<std::size_t>(screen)].caption) == name) {
            found = screen;
        }
    }
    return found;
}

bool isLayoutBold(const SkinDocument& document, int screen) {
    constexpr int neverMarked = 5;
    return screen != neverMarked && document.screenElementCount(screen) > 0;
}

BehaviourMarks behaviourMarks(const Element& element) {
    const auto isSet = [](std::int32_t timer) { return timer != 0; };
    return {.modifiers = !element.elementModifiers->empty(),
            .timers =
                std::any_of(element.elementTimers.begin(), element.elementTimers.end(), isSet),
            .condition = !isNoCondition(element.elementCondition)};
}

bool isNoCondition(std::string_view condition) {
    return condition.empty() || equalsIgnoringCase(condition, "none");
}

} // namespace tarvel
