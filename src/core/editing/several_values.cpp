// Compares elements by what the panel would show of each, and takes single values from it.
#include "editing/several_values.h"

#include "document/element_kinds.h"
#include "editing/element_update.h"
#include "editing/stacking.h"

#include <tuple>
#include <utility>

namespace tarvel {

namespace {

constexpr ColorNumber noColor = 0x01000000U; // one more than the last colour
constexpr Swatch noSwatch{FillStyle::solid, noColor};
constexpr int noResource = -2; // not even none
constexpr int noEntry = -1;

PanelValues valuesOf(const SkinDocument& document, const Element& element) {
    PanelValues values;
    (void)showEditControls(element, document.settings().resources, values);
    return values;
}

PanelLayout layoutOf(const Element& element) {
    PanelValues values;
    return editControls(element.elementControl.kind, values);
}

// Menu is a MenuFrame, constant or not.
template <class Menu> auto settingsOf(Menu& menu) {
    return std::tie(menu.thumbnailsVisible, menu.smoothScroll, menu.glowSelected,
                    menu.showDescription, menu.scrollFactor, menu.itemsShown, menu.titleAlignment,
                    menu.descriptionAlignment, menu.selectedTitleColor, menu.unselectedTitleColor,
                    menu.selectedDescriptionColor, menu.unselectedDescriptionColor);
}

auto partsOf(MenuFrame& menu) {
    return std::tuple_cat(settingsOf(menu), std::tie(menu.titlePreview, menu.descPreview));
}

// Calls `visit` with each setting's position, and with it in all of the frames.
template <class Visit, class... Menus> void forEachSetting(Visit&& visit, Menus&... menus) {
    [&]<std::size_t... i>(std::index_sequence<i...> /*settings*/) {
        const auto at = [&]<std::size_t which>(std::integral_constant<std::size_t, which>) {
            visit(which, std::get<which>(settingsOf(menus))...);
        };
        (at(std::integral_constant<std::size_t, i>()), ...);
    }
    (std::make_index_sequence<std::tuple_size_v<decltype(VariousParts::menu)>>());
}

void becomeVarious(CheckValue& check) {
    check = CheckValue::various();
}
void becomeVarious(std::string& number) {
    number.clear();
}
void becomeVarious(int& entry) {
    entry = noEntry;
}
void becomeVarious(ColorNumber& color) {
    color = noColor;
}

void note(VariousParts& various, const PanelLayout& layout, const PanelValues& values,
          const PanelValues& leading) {
    various.border |= layout.borderColor && values.border != leading.border;
    various.fill |= layout.fillColor && values.fill != leading.fill;
    various.opacity |= layout.opacity && values.opacity != leading.opacity;
    various.text |= layout.text && values.text != leading.text;
    various.font |= layout.text && !(values.font == leading.font);
    various.resource |= layout.resource && values.resource != leading.resource;
    if (layout.menu) {
        forEachSetting([&](std::size_t at, const auto& value,
                           const auto& leads) { various.menu.at(at) |= !(value == leads); },
                       values.menu, leading.menu);
    }
}

template <class T> void takeChange(T& value, const T& before, const T& now) {
    if (!(before == now)) {
        value = now;
    }
}

auto partsOf(PanelValues& values) {
    return std::tie(values.border, values.fill, values.opacity, values.text, values.textIsEntry,
                    values.font, values.resource);
}

auto partsOf(MenuSettings& menu) {
    return std::tie(menu.thumbnailsVisible, menu.smoothScroll, menu.scrollFactor, menu.itemsShown,
                    menu.glowSelected, menu.showDescription, menu.titleAlignment,
                    menu.descriptionAlignment, menu.selectedTitleColor, menu.unselectedTitleColor,
                    menu.selectedDescriptionColor, menu.unselectedDescriptionColor);
}

// What the panel gives to an element.
auto partsOf(Element& element) {
    ElementControl& control = element.elementControl;
    return std::tie(element.textIsConstant, element.elementAlpha, element.imageSource, control.kind,
                    control.fillStyle, control.borderStyle, control.alignment, control.picture,
                    control.left, control.top, control.width, control.height, control.fillColor,
                    control.borderColor, control.textColor, control.caption, control.file,
                    control.font);
}

// Each part of `values` that differs between the other two.
template <class Record> void takeChanges(Record& values, Record before, Record now) {
    auto targets = partsOf(values);
    const auto olds = partsOf(before);
    const auto news = partsOf(now);
    [&]<std::size_t... i>(std::index_sequence<i...> /*parts*/) {
        (takeChange(std::get<i>(targets), std::get<i>(olds), std::get<i>(news)), ...);
    }
    (std::make_index_sequence<std::tuple_size_v<decltype(targets)>>());
}

Element changed(const SkinDocument& document, const Element& element, const PanelValues& before,
                const PanelValues& now) {
    const PanelValues own = valuesOf(document, element);
    PanelValues wanted = own;
    takeChanges(wanted, before, now);
    takeChanges(wanted.menu, before.menu, now.menu);
    // The panel shows some values otherwise than they are, so applying alone may change an element.
    Element untouched = element;
    Element taken = element;
    takePanel(own, document.settings().resources, untouched);
    takePanel(wanted, document.settings().resources, taken);
    Element after = element;
    takeChanges(after, untouched, taken);
    if (!(untouched.menuSettings == taken.menuSettings)) {
        takeChanges(after.menuSettings.edit(), untouched.menuSettings.get(),
                    taken.menuSettings.get());
    }
    if (after == element) {
        return after;
    }
    after.label = freshLabel(after);
    if (element.label.starts_with(lockPrefix)) {
        after.label.insert(0, lockPrefix);
    }
    return after;
}

} // namespace

bool isVarious(const Swatch& swatch) {
    return swatch == noSwatch;
}

bool isVarious(ColorNumber color) {
    return color == noColor;
}

bool isVarious(const FontChoice& font) {
    return font.family.empty();
}

VariousParts variousParts(const SkinDocument& document, const std::vector<int>& ids,
                          const PanelValues& leading) {
    VariousParts various;
    if (ids.empty()) {
        return various;
    }
    const PanelLayout shown = layoutOf(document.element(ids.back()));
    for (const int id : ids) {
        const Element& element = document.element(id);
        note(various, layoutOf(element), valuesOf(document, element), leading);
    }
    various.border &= shown.borderColor;
    various.fill &= shown.fillColor;
    various.opacity &= shown.opacity;
    various.text &= shown.text;
    various.font &= shown.text;
    various.resource &= shown.resource;
    if (!shown.menu) {
        various.menu = {};
    }
    return various;
}

PanelValues withoutVarious(const PanelValues& values, const VariousParts& various) {
    PanelValues result = values;
    result.border = various.border ? noSwatch : values.border;
    result.fill = various.fill ? noSwatch : values.fill;
    result.resource = various.resource ? noResource : values.resource;
    if (various.opacity) {
        result.opacity.clear();
    }
    if (various.text) {
        result.text.clear();
        result.textIsEntry = false;
    }
    if (various.font) {
        result.font.family.clear();
    }
    const auto replace = [&](std::size_t at, auto& setting) {
        if (various.menu.at(at)) {
            becomeVarious(setting);
        }
    };
    forEachSetting(replace, result.menu);
    return result;
}

PanelValues withLeading(PanelValues values, const VariousParts& various,
                        const PanelValues& leading) {
    const PanelValues none = withoutVarious(leading, various);
    const auto putBack = [&](bool isVarious, auto PanelValues::*part) {
        if (isVarious && values.*part == none.*part) {
            values.*part = leading.*part;
        }
    };
    putBack(various.text && values.text.empty(), &PanelValues::textIsEntry);
    putBack(various.border, &PanelValues::border);
    putBack(various.fill, &PanelValues::fill);
    putBack(various.opacity, &PanelValues::opacity);
    putBack(various.text, &PanelValues::text);
    putBack(various.font, &PanelValues::font);
    putBack(various.resource, &PanelValues::resource);
    const auto putSettingBack = [&](std::size_t at, auto& setting, const auto& shown,
                                    const auto& leads) {
        if (various.menu.at(at) && setting == shown) {
            setting = leads;
        }
    };
    forEachSetting(putSettingBack, values.menu, none.menu, leading.menu);
    return values;
}

bool applyChanged(SkinDocument& document, const std::vector<int>& ids, const PanelValues& before,
                  const PanelValues& now) {
    std::vector<int> differing;
    std::vector<Element> results;
    for (const int id : ids) {
        Element after = changed(document, document.element(id), before, now);
        if (after != document.element(id)) {
            differing.push_back(id);
            results.push_back(std::move(after));
        }
    }
    if (differing.empty()) {
        return false;
    }
    auto result = results.begin();
    document.editElements(differing, [&](Element& element) { element = std::move(*result++); });
    return true;
}

} // namespace tarvel
