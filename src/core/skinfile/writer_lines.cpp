// The sections of a written file; what is in an element is told by the kinds.
#include "skinfile/writer_lines.h"

#include "document/element_kinds.h"

namespace tarvel {

namespace {

using Values = LineForms::Values;

void addMusic(LineForms& forms, Section skin) {
    const Section music = forms.newSection();
    forms.open(skin, "<Music>", music);
    forms.leaf(music, Values::word, "<PlayGlobal>", "</PlayGlobal>");
    forms.leaf(music, Values::word, "<PlayRandom>", "</PlayRandom>");
    forms.leaf(music, Values::word, "<Directory>", "</Directory>");
    forms.close(music, "</Music>");
}

void addDelays(LineForms& forms, Section skin) {
    const Section delays = forms.newSection();
    forms.open(skin, "<Delays>", delays);
    forms.leaf(delays, Values::number, "<Title>", "</Title>");
    forms.leaf(delays, Values::number, "<Load>", "</Load>");
    forms.leaf(delays, Values::number, "<Saver>", "</Saver>");
    forms.close(delays, "</Delays>");
}

void addSystemColors(LineForms& forms, Section skin) {
    const Section messageBox = forms.newSection();
    const Section systemMenu = forms.newSection();
    forms.open(skin, "<MessageBox>", messageBox);
    forms.open(skin, "<SystemMenu>", systemMenu);
    for (const Section section : {messageBox, systemMenu}) {
        forms.leaf(section, Values::color, "<BoxColor>", "</BoxColor>");
        forms.leaf(section, Values::color, "<BorderColor>", "</BorderColor>");
        forms.leaf(section, Values::color, "<TextColor>", "</TextColor>");
    }
    forms.leaf(messageBox, Values::color, "<ShadowColor>", "</ShadowColor>");
    forms.close(messageBox, "</MessageBox>");
    forms.leaf(systemMenu, Values::color, "<SelectColor>", "</SelectColor>");
    forms.leaf(systemMenu, Values::color, "<ValueColor>", "</ValueColor>");
    forms.leaf(systemMenu, Values::color, "<SelectValueColor>", "</SelectValueColor>");
    forms.close(systemMenu, "</SystemMenu>");
}

// What the kinds write, and what follows it in every element.
void addElements(LineForms& forms, Section layout, Section element) {
    for (const KindRules* rules : elementKinds) {
        rules->addForms({forms, layout, element});
    }
    forms.leaf(element, Values::text, "<Condition>", "</Condition>");
    forms.leaf(element, Values::number, R"(<Timer Type="Delay">)", "</Timer>");
    forms.leaf(element, Values::number, R"(<Timer Type="CycleOn">)", "</Timer>");
    forms.leaf(element, Values::number, R"(<Timer Type="CycleOff">)", "</Timer>");
    forms.leaf(element, Values::number, R"(<Timer Type="Lifetime">)", "</Timer>");
    forms.close(element, "</LayoutElement>");
    // Of the background.
    forms.add(element, LineForms::Action::single, Values::none,
              {R"(<Pos L="0"  T="0" W="640"  H="480"/>)"});
}

WrittenLines allLines() {
    WrittenLines lines;
    LineForms& forms = lines.forms;
    lines.file = forms.newSection();
    lines.resource = forms.newSection();
    lines.element = forms.newSection();
    const Section skin = forms.newSection();
    const Section information = forms.newSection();
    const Section layout = forms.newSection();
    forms.openNamed(lines.file, "<Skin name=\"", skin);
    forms.open(skin, "<Information>", information);
    forms.anyTags(information, "</Information>");
    addMusic(forms, skin);
    addDelays(forms, skin);
    addSystemColors(forms, skin);
    forms.openNamed(skin, R"(<Resource Type="Image" Name=")", lines.resource);
    forms.anyTags(lines.resource, "</Resource>");
    forms.openNamed(skin, R"(<Layout Screen=")", layout);
    forms.close(skin, "</Skin>");
    addElements(forms, layout, lines.element);
    forms.close(layout, "</Layout>");
    return lines;
}

} // namespace

const WrittenLines& writtenLines() {
    static const WrittenLines lines = allLines();
    return lines;
}

} // namespace tarvel
