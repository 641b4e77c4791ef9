// Rebuilds a document out of what a skin file carries of it.
#include "document/normalised.h"

#include "document/element_factory.h"
#include "document/layout_screens.h"
#include "text/number_format.h"
#include "text/text_case.h"

#include <algorithm>

namespace tarvel {

namespace {

constexpr std::string_view backgroundName = "bground";

std::string colorText(std::string_view decimal) {
    return numberText(
        static_cast<int>(static_cast<ColorNumber>(toInt32(val(decimal))) & 0xFFFFFFU));
}

// A colour with opacity in its form of the file, where an opacity over 100 shifts the colour's
// digits.
std::string fileColor(std::int16_t opacity, ColorNumber color) {
    return std::string("0x").append(makeAlpha(opacity)).append(rgbHex(color));
}

SkinSettings keptSettings(const SkinSettings& settings) {
    SkinSettings kept = settings;
    std::erase_if(kept.information, [](const InformationField& field) {
        return field.value.empty() || equalsIgnoringCase(field.name, "madeusing");
    });
    kept.music = {};
    if (settings.music.optYesMusic) {
        kept.music.optYesMusic = true;
        kept.music.chkGlobal = settings.music.chkGlobal;
        kept.music.chkRandom = settings.music.chkRandom;
    }
    kept.systemColors.txtAlpha = SystemColors{}.txtAlpha;
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

MenuSettings keptMenu(const MenuSettings& settings) {
    MenuSettings kept = settings;
    for (auto* color : {&kept.selectedTitleColor, &kept.unselectedTitleColor,
                        &kept.selectedDescriptionColor, &kept.unselectedDescriptionColor}) {
        *color = colorText(*color);
    }
    const MenuSettings fresh;
    if (kept.titleAlignment.empty()) {
        kept.titleAlignment = fresh.titleAlignment;
    }
    if (kept.descriptionAlignment.empty()) {
        kept.descriptionAlignment = fresh.descriptionAlignment;
    }
    return kept;
}

void keepBox(Element& kept, const Element& element) {
    const ElementControl& control = element.elementControl;
    kept.elementControl.fillStyle = control.fillStyle;
    kept.elementControl.borderStyle = control.borderStyle;
    if (control.fillStyle == FillStyle::solid) {
        const std::string text = fileColor(element.elementAlpha, control.fillColor);
        kept.elementControl.fillColor = getColor(text);
        kept.elementAlpha = static_cast<std::int16_t>(getAlpha(text));
    }
    if (control.borderStyle == BorderStyle::solid) {
        kept.elementControl.borderColor = control.borderColor & 0xFFFFFFU;
    }
    kept.label = boxLabel(kept.elementAlpha);
}

// A text without a constant and without a source has the default caption.
void keepText(Element& kept, const Element& element) {
    const std::string& caption = element.elementControl.caption;
    kept.textIsConstant = element.textIsConstant || caption.empty();
    kept.elementControl.kind = ControlKind::txt;
    const bool isNamed = element.textIsConstant || !caption.empty();
    kept.elementControl.caption = isNamed ? caption : std::string(defaultCaption);
    const std::string text = fileColor(element.elementAlpha, element.elementControl.textColor);
    kept.elementControl.textColor = getColor(text);
    kept.elementAlpha = static_cast<std::int16_t>(getAlpha(text));
    kept.label = textLabel(kept.elementControl.caption);
}

void keepGeometry(ElementControl& kept, const ElementControl& control, bool line) {
    if (line) {
        kept.X1 = control.X1;
        kept.Y1 = control.Y1;
        kept.X2 = control.X2;
        kept.Y2 = control.Y2;
    } else {
        kept.left = control.left;
        kept.top = control.top;
        kept.width = control.width;
        kept.height = control.height;
    }
}

Element keptElement(const Element& element, const SkinDocument& resources) {
    Element kept;
    kept.elementKind = element.elementKind;
    switch (element.elementKind) {
    case ElementKind::Box:
        keepBox(kept, element);
        break;
    case ElementKind::Line:
        kept.elementControl.kind = ControlKind::lin;
        kept.elementControl.borderColor = element.elementControl.borderColor & 0xFFFFFFU;
        kept.label = "Line";
        break;
    case ElementKind::Image:
        kept.imageSource = element.imageSource;
        kept.label = imageLabel(element.imageSource);
        attachSource(resources, element.imageSource, kept.elementControl);
        break;
    case ElementKind::Text:
        keepText(kept, element);
        break;
    case ElementKind::Menu:
    default: // opens like a menu and is read as one
        kept.elementKind = ElementKind::Menu;
        kept.elementControl.kind = ControlKind::qor;
        kept.label = "Menu";
        kept.menuSettings.edit() = keptMenu(element.menuSettings.get());
    }
    if (!isNoCondition(element.elementCondition)) {
        kept.elementCondition = element.elementCondition;
    }
    kept.elementTimers = element.elementTimers;
    kept.elementModifiers = element.elementModifiers;
    keepGeometry(kept.elementControl, element.elementControl,
                 kept.elementKind == ElementKind::Line);
    return kept;
}

Element backgroundElement(const SkinDocument& resources) {
    Element element;
    element.elementKind = ElementKind::Image;
    element.imageSource = backgroundName;
    element.label = imageLabel(backgroundName);
    attachSource(resources, backgroundName, element.elementControl);
    element.elementControl.width = skinWidth;
    element.elementControl.height = skinHeight;
    return element;
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
