// Rebuilds a document out of what a skin file carries of it.
#include "document/normalised.h"

#include "document/element_kinds.h"
#include "document/layout_screens.h"
#include "text/number_format.h"
#include "text/text_case.h"

#include <algorithm>

namespace tarvel {

namespace {

constexpr std::string_view backgroundName = "bground";

SkinSettings keptSettings(const SkinSettings& settings) {
    SkinSettings kept = settings;
    std::erase_if(kept.information, [](const InformationField& field) {
        return field.value.empty() || equalsIgnoringCase(field.name, "madeusing");
    });
    kept.music = {};
    if (settings.music.hasMusic) {
        kept.music.hasMusic = true;
        kept.music.playGlobal = settings.music.playGlobal;
        kept.music.playRandom = settings.music.playRandom;
    }
    kept.systemColors.opacityTexts = SystemColors{}.opacityTexts;
    kept.background = {};
    if (settings.background.loaded) {
        kept.resources.insert(kept.resources.begin(),
                              {std::string(backgroundName), settings.background.path, true, false});
    }
    for (Resource& resource : kept.resources) {
        resource.outside = false;
        if (resource.isFile) {
            resource.content = "Media\\" + std::string(trimtofile(resource.content));
        }
    }
    return kept;
}

Element keptElement(const Element& element, const SkinDocument& resources) {
    const KindRules& rules = rulesOf(element.elementKind);
    Element kept;
    kept.elementKind = rules.kind;
    rules.keep(kept, element, resources);
    if (!isNoCondition(element.elementCondition)) {
        kept.elementCondition = element.elementCondition;
    }
    kept.elementTimers = element.elementTimers;
    kept.elementModifiers = element.elementModifiers;
    setPlace(kept.elementControl, placeOf(element.elementControl));
    return kept;
}

Element backgroundElement(const SkinDocument& resources) {
    Element background;
    background.elementKind = ElementKind::Image;
    background.imageSource = backgroundName;
    background.elementControl.width = skinWidth;
    background.elementControl.height = skinHeight;
    return keptElement(background, resources);
}

} // namespace

SkinDocument normalised(const SkinDocument& document) {
    SkinDocument kept;
    kept.editSettings(
        [&](SkinSettings& settings) { settings = keptSettings(document.settings()); });
    for (int screen = 0; screen < screenCount; ++screen) {
        if (document.screenElementCount(screen) == 0) {
            continue;
        }
        kept.setCurrentLayout(screen);
        if (screen == menuScreen && document.settings().background.loaded) {
            kept.addElement(backgroundElement(kept));
        }
        for (int row = 0; row < document.rowCount(screen); ++row) {
            kept.addElement(keptElement(document.element(document.itemData(screen, row)), kept));
        }
    }
    kept.setCurrentLayout(menuScreen);
    return kept;
}

} // namespace tarvel
