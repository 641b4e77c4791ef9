// The fixed form of the skin file, section by section.
#include "skinfile/skin_writer.h"

#include "document/layout_screens.h"
#include "files/host_files.h"
#include "skinfile/version.h"
#include "text/number_format.h"
#include "text/text_case.h"

#include <algorithm>
#include <concepts>
#include <cstdint>

namespace tarvel {

namespace {

// A colour as "0x" AA RRGGBB with the opacity as AA.
struct AlphaColor {
    int opacity; // percent
    ColorNumber color;
};

void append(std::string& line, std::string_view text) {
    line.append(text);
}

template <class Number>
requires std::integral<Number> || std::floating_point<Number>
void append(std::string& line, Number number) {
    appendNumber(line, number);
}

void append(std::string& line, const AlphaColor& value) {
    line.append("0x");
    appendAlpha(line, value.opacity);
    appendRgbHex(line, value.color);
}

bool opensLevel(std::string_view line) {
    if (line.find('<') == std::string_view::npos) {
        return false;
    }
    for (auto slash = line.find('/'); slash != std::string_view::npos;
         slash = line.find('/', slash + 1)) {
        const bool ends = slash > 0 && line[slash - 1] == '<';
        const bool closes = slash + 1 < line.size() && line[slash + 1] == '>';
        if (ends || closes) {
            return false;
        }
    }
    return true;
}

std::string replaced(std::string_view text, std::string_view what, std::string_view with) {
    std::string result;
    result.reserve(text.size() + text.size() / 8);
    for (;;) {
        const auto at = text.find(what);
        result.append(text.substr(0, at));
        if (at == std::string_view::npos) {
            return result;
        }
        result.append(with);
        text.remove_prefix(at + what.size());
    }
}

constexpr AlphaColor opaque(ColorNumber color) {
    return {100, color};
}

// A menu colour, which is kept as decimal text.
AlphaColor menuColor(std::string_view decimal) {
    return opaque(static_cast<ColorNumber>(toInt32(val(decimal))));
}

ColorNumber sampleText(const SystemColors& colors, SampleText text) {
    return colors.texts[static_cast<std::size_t>(text)];
}

} // namespace

void SkinWriter::writeLine(std::string_view line) {
    if (line.starts_with("</")) {
        xmlIndent_ = static_cast<std::int16_t>(std::max(xmlIndent_ - 1, INT16_MIN));
    }
    if (xmlIndent_ > 0) {
        xmlText_.append(static_cast<std::size_t>(xmlIndent_), '\t');
    }
    if (opensLevel(line)) {
        xmlIndent_ = static_cast<std::int16_t>(std::min(xmlIndent_ + 1, INT16_MAX));
    }
    xmlText_.append(line);
    xmlText_.append("\r\n");
}

template <class... Pieces> void SkinWriter::line(const Pieces&... pieces) {
    line_.clear();
    (append(line_, pieces), ...);
    writeLine(line_);
}

template <class Value> void SkinWriter::tagLine(std::string_view name, const Value& value) {
    line("<", name, ">", value, "</", name, ">");
}

void SkinWriter::colorLine(std::string_view name, ColorNumber color) {
    tagLine(name, opaque(color));
}

void SkinWriter::generateXML(SkinDocument& document) {
    xmlText_.clear();
    xmlIndent_ = 0;
    const SkinSettings settings = document.settings();
    line(R"(<Skin name=")", settings.skinName, R"(">)");
    writeInformation(settings);
    if (settings.music.optYesMusic) {
        writeMusic(settings.music);
    }
    writeDelays(settings);
    writeSystemColors(settings.systemColors);
    writeResources(settings);
    for (int screen = 0; screen < screenCount; ++screen) {
        if (document.screenElementCount(screen) != 0) {
            document.setCurrentLayout(screen);
            writeLayout(document, screen);
        }
    }
    writeLine("</Skin>");
    document.setCurrentLayout(menuScreen);
}

void SkinWriter::writeInformation(const SkinSettings& settings) {
    writeLine("<Information>");
    for (const auto& [name, value] : settings.information) {
        if (!value.empty() && !equalsIgnoringCase(name, "madeusing")) {
            tagLine(name, value);
        }
    }
    line("<MadeUsing>Tarvel ", versionMajor, ".", versionMinor, "</MadeUsing>");
    writeLine("</Information>");
}

void SkinWriter::writeMusic(const MusicSettings& music) {
    writeLine("<Music>");
    tagLine("PlayGlobal", onOff(music.chkGlobal));
    tagLine("PlayRandom", onOff(music.chkRandom));
    // The dashboard finds the folder by itself: a ticked box has the state 1, so the line never
    // comes.
    const int customState = music.chkCustom ? 1 : 0;
    if (!music.lstMusic.empty() && customState == -1) {
        tagLine("Directory", "Music");
    }
    writeLine("</Music>");
}

void SkinWriter::writeDelays(const SkinSettings& settings) {
    writeLine("<Delays>");
    tagLine("Title", settings.delays[0]);
    tagLine("Load", settings.delays[1]);
    tagLine("Saver", settings.delays[2]);
    writeLine("</Delays>");
}

void SkinWriter::writeSystemColors(const SystemColors& colors) {
    writeLine("<MessageBox>");
    colorLine("BoxColor", colors.boxes[0].fillColor);
    colorLine("BorderColor", colors.boxes[0].borderColor);
    colorLine("TextColor", sampleText(colors, SampleText::messageText));
    colorLine("ShadowColor", sampleText(colors, SampleText::messageShadow));
    writeLine("</MessageBox>");
    writeLine("<SystemMenu>");
    colorLine("BoxColor", colors.boxes[1].fillColor);
    colorLine("BorderColor", colors.boxes[1].borderColor);
    colorLine("TextColor", sampleText(colors, SampleText::menuText));
    colorLine("SelectColor", sampleText(colors, SampleText::menuSelect));
    colorLine("ValueColor", sampleText(colors, SampleText::menuValue));
    colorLine("SelectValueColor", sampleText(colors, SampleText::menuSelectValue));
    writeLine("</SystemMenu>");
}

void SkinWriter::writeResources(const SkinSettings& settings) {
    if (settings.background.loaded) {
        writeLine(R"(<Resource Type="Image" Name="bground">)");
        line(R"(<File>Media\)", trimtofile(settings.background.path), "</File>");
        writeLine("</Resource>");
    }
    for (const Resource& resource : settings.resources) {
        line(R"(<Resource Type="Image" Name=")", resource.name, R"(">)");
        if (resource.isFile) {
            line(R"(<File>Media\)", trimtofile(resource.content), "</File>");
        } else {
            writeLine(resource.content);
        }
        writeLine("</Resource>");
    }
}

void SkinWriter::writeLayout(const SkinDocument& document, int screen) {
    const auto caption = layoutScreens[static_cast<std::size_t>(screen)].caption;
    line(R"(<Layout Screen=")", caption, R"(">)");
    if (caption == "Menu" && document.settings().background.loaded) {
        writeLine(R"(<LayoutElement Type="Image" Source="bground">)");
        writeLine(R"(<Pos L="0"  T="0" W="640"  H="480"/>)");
        writeLine("</LayoutElement>");
    }
    for (int row = 0; row < document.rowCount(screen); ++row) {
        writeElement(document.element(document.itemData(screen, row)));
    }
    writeLine("</Layout>");
}

void SkinWriter::writeElement(const Element& element) {
    const ElementControl& control = element.elementControl;
    writeOpening(element);
    if (element.elementKind == ElementKind::Line) {
        line(R"(<Pos X1=")", control.X1, R"(" Y1=")", control.Y1, R"(" X2=")", control.X2,
             R"(" Y2=")", control.Y2, R"("/>)");
        colorLine("Color", control.borderColor);
    } else {
        if (element.elementKind == ElementKind::Box) {
            writeBox(element);
        } else if (element.elementKind == ElementKind::Text) {
            tagLine("TextColor", AlphaColor{element.elementAlpha, control.textColor});
        } else if (element.elementKind == ElementKind::Menu) {
            writeMenu(element.menuSettings.get());
        }
        line(R"(<Pos L=")", control.left, R"(" T=")", control.top, R"(" W=")", control.width,
             R"(" H=")", control.height, R"("/>)");
    }
    writeTail(element);
}

void SkinWriter::writeOpening(const Element& element) {
    switch (element.elementKind) {
    case ElementKind::Line:
        writeLine(R"(<LayoutElement Type="Line">)");
        break;
    case ElementKind::Box:
        writeLine(R"(<LayoutElement Type="Box">)");
        break;
    case ElementKind::Image:
        line(R"(<LayoutElement Type="Image" Source=")", element.imageSource, R"(">)");
        writeLine(R"(<Scaling X="True" Y="True"/>)");
        break;
    case ElementKind::Text:
        if (element.textIsConstant) {
            writeLine(R"(<LayoutElement Type="Text">)");
            tagLine("Constant", element.elementControl.caption);
        } else {
            line(R"(<LayoutElement Type="Text" Source=")", element.elementControl.caption, R"(">)");
        }
        break;
    case ElementKind::Menu:
    default: // whatever has no kind of its own opens like a menu
        writeLine(R"(<LayoutElement Type="Menu" Source="QOR">)");
    }
}

void SkinWriter::writeBox(const Element& element) {
    const ElementControl& control = element.elementControl;
    if (control.fillStyle == FillStyle::solid) {
        tagLine("Color", AlphaColor{element.elementAlpha, control.fillColor});
    }
    if (control.borderStyle == BorderStyle::solid) {
        colorLine("BorderColor", control.borderColor);
    }
}

void SkinWriter::writeMenu(const MenuSettings& settings) {
    line(R"(<Thumbnails Align="Left">)", boolText(settings.thumbnailsVisible), "</Thumbnails>");
    writeLine(R"(<Primary Source="Title">)");
    tagLine("OffsetY", 0);
    tagLine("JustifyX", settings.titleAlignment);
    writeLine("</Primary>");
    writeLine(R"(<Secondary Source="Descr">)");
    tagLine("OffsetY", 0);
    tagLine("JustifyX", settings.descriptionAlignment);
    writeLine("</Secondary>");
    writeMenuItems(settings);
    tagLine("NumItems", settings.itemsShown);
    tagLine("SelPos", 0);
    tagLine("ScrollFactor", settings.scrollFactor);
    tagLine("SmoothScroll", boolText(settings.smoothScroll));
    tagLine("DrawSecondary", boolText(settings.showDescription));
}

void SkinWriter::writeMenuItems(const MenuSettings& settings) {
    writeLine("<Selection>");
    tagLine("DoGlow", boolText(settings.glowSelected));
    tagLine("TextColor", menuColor(settings.selectedTitleColor));
    writeLine("<Secondary>");
    tagLine("TextColor", menuColor(settings.selectedDescriptionColor));
    writeLine("</Secondary>");
    writeLine("</Selection>");
    writeLine("<UnSelItem>");
    tagLine("TextColor", menuColor(settings.unselectedTitleColor));
    writeLine("<Secondary>");
    tagLine("TextColor", menuColor(settings.unselectedDescriptionColor));
    writeLine("</Secondary>");
    writeLine("</UnSelItem>");
}

void SkinWriter::writeTail(const Element& element) {
    if (!isNoCondition(element.elementCondition)) {
        tagLine("Condition", element.elementCondition);
    }
    constexpr std::array<std::string_view, timerSlots> starts = {
        R"(<Timer Type="Delay">)", R"(<Timer Type="CycleOn">)", R"(<Timer Type="CycleOff">)",
        R"(<Timer Type="Lifetime">)"};
    for (std::size_t slot = 0; slot < timerSlots; ++slot) {
        if (element.elementTimers[slot] != 0) {
            line(starts[slot], element.elementTimers[slot], "</Timer>");
        }
    }
    if (!element.elementModifiers->empty()) {
        writeModifiers(element.elementModifiers.get());
    }
    writeLine("</LayoutElement>");
}

void SkinWriter::writeModifiers(const XmlTree& modifiers) {
    const std::string block = splicedModifiers(throughTempFile(folder_, modifiers.fileText()));
    std::string_view rest = block;
    for (auto end = rest.find("\r\n"); end != std::string_view::npos; end = rest.find("\r\n")) {
        writeLine(rest.substr(0, end));
        rest.remove_prefix(end + 2);
    }
    writeLine(rest);
}

std::string splicedModifiers(std::string fileText) {
    if (fileText.starts_with("<?")) {
        // The last character goes as well: it is the line end of the file.
        const auto start = fileText.find('<', 1);
        fileText = fileText.substr(start, fileText.size() - start - 1);
    }
    std::string text = replaced(fileText, "\r", "\r\n");
    text = replaced(text, "\n", "\r\n");
    text = replaced(text, "><", ">\r\n<");
    text = replaced(text, ">\r\n</", "></");
    return replaced(text, "</Modifier>", "</Modifier>\r\n");
}

} // namespace tarvel
