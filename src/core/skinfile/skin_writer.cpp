// The fixed form of the skin file, section by section.
#include "skinfile/skin_writer.h"

#include "document/element_kinds.h"
#include "document/layout_screens.h"
#include "files/host_files.h"
#include "skinfile/version.h"
#include "text/text_case.h"

namespace tarvel {

namespace {

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

ColorNumber sampleText(const SystemColors& colors, SampleText text) {
    return colors.texts[static_cast<std::size_t>(text)];
}

} // namespace

void SkinWriter::generateXML(SkinDocument& document) {
    write(document, [&](int screen) { document.setCurrentLayout(screen); });
    document.setCurrentLayout(menuScreen);
}

void SkinWriter::write(const SkinDocument& document, const ScreenBegins& screenBegins) {
    clear();
    const SkinSettings& settings = document.settings(); // good until the first screen begins
    line(R"(<Skin name=")", settings.skinName, R"(">)");
    writeInformation(settings);
    if (settings.music.hasMusic) {
        writeMusic(settings.music);
    }
    writeDelays(settings);
    writeSystemColors(settings.systemColors);
    writeResources(settings);
    for (int screen = 0; screen < screenCount; ++screen) {
        if (document.screenElementCount(screen) != 0) {
            if (screenBegins) {
                screenBegins(screen);
            }
            writeLayout(document, screen);
        }
    }
    writeLine("</Skin>");
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
    tagLine("PlayGlobal", onOff(music.playGlobal));
    tagLine("PlayRandom", onOff(music.playRandom));
    writeLine("</Music>"); // customMusic is not told: the dashboard finds the folder by itself
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
    std::string file;
    for (const Resource& resource : settings.resources) {
        file.assign(R"(Media\)").append(trimtofile(resource.content));
        writeResource(resource, file);
    }
}

void SkinWriter::writeResource(const Resource& resource, std::string_view file) {
    line(R"(<Resource Type="Image" Name=")", resource.name, R"(">)");
    if (resource.isFile) {
        tagLine("File", file);
    } else {
        writeLine(resource.content);
    }
    writeLine("</Resource>");
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
    rulesOf(element.elementKind).write(element, *this);
    writeTail(element);
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
    std::string text = modifiers.fileText();
    if (tempFolder_) {
        text = throughTempFile(*tempFolder_, text);
    }
    const std::string block = splicedModifiers(std::move(text));
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
