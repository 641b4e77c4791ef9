// Makes boxes, texts and lines with timers and colour modifiers.
#include "playing_scenes.h"

#include "shown_window.h"

#include <random>
#include <string>
#include <string_view>
#include <utility>

namespace tarvel::bench {

namespace {

// Every so many milliseconds a group of them comes or goes.
constexpr int groups = 8;
constexpr int groupPause = 250;
constexpr int cycleOn = 3000;
constexpr int cycleOff = 1000;

ElementKind kindOf(int number) {
    switch (number % 3) {
    case 1:
        return ElementKind::Text;
    case 2:
        return ElementKind::Line;
    default:
        return ElementKind::Box;
    }
}

void setKind(Element& element, ElementKind kind, int number) {
    ElementControl& control = element.elementControl;
    element.elementKind = kind;
    if (kind == ElementKind::Text) {
        control.kind = ControlKind::txt;
        control.caption = "Free space " + std::to_string(number) + " MB";
        control.textColor = control.fillColor;
        control.width += 80;
        element.textIsConstant = true;
    } else if (kind == ElementKind::Line) {
        control.kind = ControlKind::lin;
        control.X1 = control.left;
        control.Y1 = control.top;
        control.X2 = control.left + control.width;
        control.Y2 = control.top + control.height;
        control.borderColor = control.fillColor;
    }
}

} // namespace

std::vector<SceneBox> sceneBoxes(int count) {
    std::mt19937 random(1); // NOLINT: the same boxes in every run
    const auto upTo = [&](int limit) {
        return static_cast<int>(random() % static_cast<unsigned>(limit));
    };
    std::vector<SceneBox> result;
    for (int number = 0; number < count; ++number) {
        const QRect rect(upTo(600), upTo(440), 10 + upTo(71), 10 + upTo(71));
        const QColor color(upTo(256), upTo(256), upTo(256), number % 2 == 0 ? 255 : 153);
        result.push_back({rect, color});
    }
    return result;
}

void addColors(Element& element, int number) {
    XmlTree& tree = element.elementModifiers.edit();
    const auto modifier = tree.addChild(XmlTree::top, "Modifier");
    tree.addAttribute(modifier, "Type", "Tint");
    int period = 1000 + number * 37 % 3000;
    for (const std::string_view name : {"Alpha", "Red", "Green", "Blue"}) {
        const auto channel = tree.addChild(modifier, name);
        const bool isOff = name == "Alpha" && number % 2 == 0; // half of them stay opaque
        tree.addAttribute(channel, "Enable", isOff ? "False" : "True");
        tree.addAttribute(channel, "Min", "60");
        tree.addAttribute(channel, "Max", "250");
        tree.addAttribute(channel, "Period", std::to_string(period));
        period += 170;
    }
}

SkinDocument sceneOf(int count, const Playing& playing) {
    SkinDocument document;
    int number = 0;
    for (const SceneBox& box : sceneBoxes(count)) {
        Element element = boxElement(box.rect, box.color);
        if (playing.otherKinds) {
            setKind(element, kindOf(number), number);
        }
        if (playing.timers) {
            element.elementTimers = {playing.atOnce ? 0 : number % groups * groupPause, cycleOn,
                                     cycleOff, 0};
        }
        if (playing.modifiers) {
            addColors(element, number);
        }
        document.addElement(std::move(element));
        ++number;
    }
    return document;
}

} // namespace tarvel::bench
