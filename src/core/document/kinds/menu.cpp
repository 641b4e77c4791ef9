// Menu: the dashboard's list of games. What has a code that no kind has is written as an empty one.
#include "document/kinds/kind_parts.h"
#include "text/number_format.h"
#include "text/tag_scanner.h"

namespace tarvel {

namespace {

constexpr std::string_view opening = R"(<LayoutElement Type="Menu" Source="QOR">)";

std::string label(const Element& /*element*/) {
    return "Menu";
}

SkinSize defaultSize(std::optional<SkinSize> /*natural*/) {
    return {400, 240};
}

void readText(std::string& target, std::string_view text) {
    if (!text.empty()) {
        target = text;
    }
}

void readNumber(std::int16_t& target, std::string_view text) {
    if (!text.empty()) {
        target = toInt16(val(text));
    }
}

// Menu colours are kept as the decimal text of their number.
void readColor(std::string& target, std::string_view text) {
    if (!text.empty()) {
        target.clear();
        appendNumber(target, getColor(text));
    }
}

// The colours of a menu's selected or unselected items.
void readItemColors(XmlNode items, std::string& title, std::string& description) {
    if (!items) {
        return;
    }
    readColor(title, getContent(items, "TextColor"));
    if (const XmlNode secondary = childTagged(items, "Secondary")) {
        readColor(description, getContent(secondary, "TextColor"));
    }
}

void readSettings(MenuSettings& settings, XmlNode node) {
    readNumber(settings.itemsShown, getContent(node, "NumItems"));
    readNumber(settings.scrollFactor, getContent(node, "ScrollFactor"));
    settings.smoothScroll = reverseBool(getContent(node, "SmoothScroll"));
    settings.showDescription = reverseBool(getContent(node, "DrawSecondary"));
    settings.thumbnailsVisible = reverseBool(getContent(node, "Thumbnails"));
    if (const XmlNode primary = childTagged(node, "Primary")) {
        readText(settings.titleAlignment, getContent(primary, "JustifyX"));
    }
    if (const XmlNode secondary = childTagged(node, "Secondary")) {
        readText(settings.descriptionAlignment, getContent(secondary, "JustifyX"));
    }
    const XmlNode selection = childTagged(node, "Selection");
    settings.glowSelected = selection && reverseBool(getContent(selection, "DoGlow"));
    readItemColors(selection, settings.selectedTitleColor, settings.selectedDescriptionColor);
    readItemColors(childTagged(node, "UnSelItem"), settings.unselectedTitleColor,
                   settings.unselectedDescriptionColor);
}

void read(Element& element, const ElementDescription& description) {
    element.elementControl.kind = ControlKind::qor;
    element.label = label(element);
    element.elementAlpha = opacityIn(description.color);
    readSettings(element.menuSettings.edit(), description.node);
}

ColorNumber colorOf(std::string_view decimal) {
    return static_cast<ColorNumber>(toInt32(val(decimal)));
}

void writeColor(std::string_view decimal, LineWriter& lines) {
    lines.colorLine("TextColor", colorOf(decimal));
}

void writeItems(const MenuSettings& settings, LineWriter& lines) {
    lines.writeLine("<Selection>");
    lines.tagLine("DoGlow", boolText(settings.glowSelected));
    writeColor(settings.selectedTitleColor, lines);
    lines.writeLine("<Secondary>");
    writeColor(settings.selectedDescriptionColor, lines);
    lines.writeLine("</Secondary>");
    lines.writeLine("</Selection>");
    lines.writeLine("<UnSelItem>");
    writeColor(settings.unselectedTitleColor, lines);
    lines.writeLine("<Secondary>");
    writeColor(settings.unselectedDescriptionColor, lines);
    lines.writeLine("</Secondary>");
    lines.writeLine("</UnSelItem>");
}

void writeSettings(const MenuSettings& settings, LineWriter& lines) {
    lines.line(R"(<Thumbnails Align="Left">)", boolText(settings.thumbnailsVisible),
               "</Thumbnails>");
    lines.writeLine(R"(<Primary Source="Title">)");
    lines.tagLine("OffsetY", 0);
    lines.tagLine("JustifyX", settings.titleAlignment);
    lines.writeLine("</Primary>");
    lines.writeLine(R"(<Secondary Source="Descr">)");
    lines.tagLine("OffsetY", 0);
    lines.tagLine("JustifyX", settings.descriptionAlignment);
    lines.writeLine("</Secondary>");
    writeItems(settings, lines);
    lines.tagLine("NumItems", settings.itemsShown);
    lines.tagLine("SelPos", 0);
    lines.tagLine("ScrollFactor", settings.scrollFactor);
    lines.tagLine("SmoothScroll", boolText(settings.smoothScroll));
    lines.tagLine("DrawSecondary", boolText(settings.showDescription));
}

void write(const Element& element, LineWriter& lines) {
    lines.writeLine(opening);
    if (element.elementKind == ElementKind::Menu) {
        writeSettings(element.menuSettings.get(), lines);
    }
    writeRectangle(element.elementControl, lines);
}

void addTextLineForms(const ElementForms& element, std::string_view start, std::string_view end) {
    LineForms& forms = element.forms;
    const Section line = forms.newSection();
    forms.open(element.element, start, line);
    forms.leaf(line, LineForm::Values::number, "<OffsetY>", "</OffsetY>");
    forms.leaf(line, LineForm::Values::text, "<JustifyX>", "</JustifyX>");
    forms.close(line, end);
}

Section addItemForms(const ElementForms& element, std::string_view start, std::string_view end) {
    LineForms& forms = element.forms;
    const Section items = forms.newSection();
    const Section secondary = forms.newSection();
    forms.open(element.element, start, items);
    forms.leaf(items, LineForm::Values::color, "<TextColor>", "</TextColor>");
    forms.open(items, "<Secondary>", secondary);
    forms.leaf(secondary, LineForm::Values::color, "<TextColor>", "</TextColor>");
    forms.close(secondary, "</Secondary>");
    forms.close(items, end);
    return items;
}

void addForms(const ElementForms& element) {
    LineForms& forms = element.forms;
    const Section own = element.element;
    forms.open(element.layout, opening, own);
    forms.leaf(own, LineForm::Values::word, R"(<Thumbnails Align="Left">)", "</Thumbnails>");
    addTextLineForms(element, R"(<Primary Source="Title">)", "</Primary>");
    addTextLineForms(element, R"(<Secondary Source="Descr">)", "</Secondary>");
    const Section selection = addItemForms(element, "<Selection>", "</Selection>");
    forms.leaf(selection, LineForm::Values::word, "<DoGlow>", "</DoGlow>");
    addItemForms(element, "<UnSelItem>", "</UnSelItem>");
    forms.leaf(own, LineForm::Values::number, "<NumItems>", "</NumItems>");
    forms.leaf(own, LineForm::Values::number, "<SelPos>", "</SelPos>");
    forms.leaf(own, LineForm::Values::number, "<ScrollFactor>", "</ScrollFactor>");
    forms.leaf(own, LineForm::Values::word, "<SmoothScroll>", "</SmoothScroll>");
    forms.leaf(own, LineForm::Values::word, "<DrawSecondary>", "</DrawSecondary>");
    addRectangleForm(element);
}

MenuSettings keptSettings(const MenuSettings& settings) {
    MenuSettings kept = settings;
    for (auto* color : {&kept.selectedTitleColor, &kept.unselectedTitleColor,
                        &kept.selectedDescriptionColor, &kept.unselectedDescriptionColor}) {
        *color = numberText(static_cast<int>(keptColor(colorOf(*color))));
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

void keep(Element& record, const Element& element, const SkinDocument& /*kept*/) {
    record.elementControl.kind = ControlKind::qor;
    record.label = label(record);
    record.menuSettings.edit() = keptSettings(element.menuSettings.get());
}

PanelLayout panel(ControlKind /*control*/, PanelValues& /*values*/) {
    PanelLayout layout;
    layout.kindFlag = ElementKind::Menu;
    layout.menu = true;
    return layout;
}

void show(const Element& element, const std::vector<Resource>& /*resources*/, PanelValues& values) {
    showMenuSettings(element.menuSettings.get(), values.menu);
}

void take(const PanelValues& values, const std::vector<Resource>& /*resources*/, Element& element) {
    element.menuSettings.edit() = menuSettingsOf(values.menu);
}

// Everything will do.
std::vector<std::string_view> faults(const PanelValues& /*values*/) {
    return {};
}

constexpr std::array controls = {NamedControl{ControlKind::qor, "qor"}};

} // namespace

const KindRules menuKind = {.kind = ElementKind::Menu,
                            .typeName = "Menu",
                            .controls = controls,
                            .placeForm = PlaceForm::rectangle,
                            .namesResource = false,
                            .label = label,
                            .defaultSize = defaultSize,
                            .readPlace = joinedPlace,
                            .read = read,
                            .write = write,
                            .addForms = addForms,
                            .keep = keep,
                            .panel = panel,
                            .show = show,
                            .take = take,
                            .faults = faults};

} // namespace tarvel
