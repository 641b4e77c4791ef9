// Each part of the work is written by one function and read by one beside it, fields in one order.
#include "skinfile/recovery.h"

#include "skinfile/element_bytes.h"

#include <array>
#include <utility>

namespace tarvel {

namespace {

// The least that one of these takes.
constexpr std::size_t textBytes = 4;
constexpr std::size_t idBytes = 4;

// Settings

void writeMusic(ByteWriter& out, const MusicSettings& music) {
    for (const bool choice :
         {music.hasMusic, music.playGlobal, music.customMusic, music.playRandom}) {
        out.value(choice);
    }
    out.count(music.musicFiles.size());
    for (const std::string& file : music.musicFiles) {
        out.text(file);
    }
    out.count(music.rows.size());
    for (const int index : music.rows) {
        out.value(index);
    }
}

void readMusic(ByteReader& in, MusicSettings& music) {
    for (bool* choice :
         {&music.hasMusic, &music.playGlobal, &music.customMusic, &music.playRandom}) {
        *choice = in.truth();
    }
    for (std::size_t left = in.count(textBytes); left > 0; --left) {
        music.musicFiles.emplace_back(in.text());
    }
    const int last = static_cast<int>(music.musicFiles.size()) - 1;
    for (std::size_t left = in.count(idBytes); left > 0; --left) {
        music.rows.push_back(in.intBetween(0, last));
    }
}

void writeColors(ByteWriter& out, const SystemColors& colors) {
    for (const SampleBox& box : colors.boxes) {
        out.value(box.fillColor);
        out.value(box.borderColor);
    }
    for (const ColorNumber color : colors.texts) {
        out.value(color);
    }
    for (const std::string& alpha : colors.opacityTexts) {
        out.text(alpha);
    }
}

void readColors(ByteReader& in, SystemColors& colors) {
    for (SampleBox& box : colors.boxes) {
        box.fillColor = in.value<ColorNumber>();
        box.borderColor = in.value<ColorNumber>();
    }
    for (ColorNumber& color : colors.texts) {
        color = in.value<ColorNumber>();
    }
    for (std::string& alpha : colors.opacityTexts) {
        alpha = in.text();
    }
}

void writeSettings(ByteWriter& out, const SkinSettings& settings) {
    out.text(settings.skinName);
    out.count(settings.information.size());
    for (const InformationField& field : settings.information) {
        out.text(field.name);
        out.text(field.value);
    }
    writeMusic(out, settings.music);
    for (const double delay : settings.delays) {
        out.value(delay);
    }
    writeColors(out, settings.systemColors);
    out.value(settings.background.loaded);
    out.text(settings.background.path);
    writeResources(out, settings.resources);
}

SkinSettings readSettings(ByteReader& in) {
    SkinSettings settings;
    settings.skinName = in.text();
    settings.information.clear();
    for (std::size_t left = in.count(2 * textBytes); left > 0; --left) {
        const auto name = in.text();
        settings.information.push_back({std::string(name), std::string(in.text())});
    }
    readMusic(in, settings.music);
    for (double& delay : settings.delays) {
        delay = in.value<double>();
    }
    readColors(in, settings.systemColors);
    settings.background.loaded = in.truth();
    settings.background.path = in.text();
    readResources(in, settings.resources);
    return settings;
}

// The document

void writeDocument(ByteWriter& out, const SkinDocument& document) {
    out.value(document.currentLayout());
    out.count(static_cast<std::size_t>(document.lastElementId()));
    for (int id = 1; id <= document.lastElementId(); ++id) {
        writeElement(out, document.element(id));
    }
    for (int screen = 0; screen < screenCount; ++screen) {
        out.count(static_cast<std::size_t>(document.rowCount(screen)));
        for (int row = 0; row < document.rowCount(screen); ++row) {
            out.value(document.itemData(screen, row));
        }
        out.value(document.screenElementCount(screen));
        out.value(document.lockCount(screen));
    }
    writeSettings(out, document.settings());
}

// A screen's rows; an element stands in one row of one screen.
std::vector<int> readRows(ByteReader& in, std::vector<bool>& placed) {
    std::vector<int> rows;
    const int lastId = static_cast<int>(placed.size()) - 1;
    for (std::size_t left = in.count(idBytes); left > 0; --left) {
        const int id = in.intBetween(1, lastId);
        if (placed[static_cast<std::size_t>(id)]) {
            ByteReader::damaged();
        }
        placed[static_cast<std::size_t>(id)] = true;
        rows.push_back(id);
    }
    return rows;
}

SkinDocument readDocument(ByteReader& in) {
    DocumentParts parts;
    parts.currentLayout = in.intBetween(0, screenCount - 1);
    const std::size_t elements = in.count(elementBytes);
    for (std::size_t i = 0; i < elements; ++i) {
        parts.elements.push_back(readElement(in));
    }
    std::vector<bool> placed(elements + 1);
    for (std::size_t screen = 0; screen < parts.rows.size(); ++screen) {
        parts.rows[screen] = readRows(in, placed);
        parts.screenElementCount[screen] = in.value<std::int32_t>();
        parts.lockCount[screen] = in.intBetween(0, static_cast<int>(parts.rows[screen].size()));
    }
    parts.settings = readSettings(in);
    return SkinDocument(std::move(parts));
}

} // namespace

std::string_view recoveryBytes(const WorkState& work, std::string& buffer) {
    ByteWriter out(buffer);
    out.room(sealSize);
    out.value(work.keptAt);
    out.text(work.folder);
    writeDocument(out, work.document);
    out.count(work.selected.size());
    for (const int id : work.selected) {
        out.value(id);
    }
    out.value(work.leading);
    putSeal(buffer.data(), recoverySeal, out.bytes().substr(sealSize));
    return out.bytes();
}

std::string recoveryBytes(const WorkState& work) {
    std::string buffer;
    return std::string(recoveryBytes(work, buffer));
}

WorkState readRecovery(std::string_view bytes) {
    ByteReader in(unsealed(recoverySeal, bytes));
    WorkState work;
    work.keptAt = in.value<std::int64_t>();
    work.folder = in.text();
    work.document = readDocument(in);
    const int lastId = work.document.lastElementId();
    for (std::size_t left = in.count(idBytes); left > 0; --left) {
        work.selected.push_back(in.intBetween(1, lastId));
    }
    work.leading = in.intBetween(0, lastId);
    in.end();
    return work;
}

} // namespace tarvel
