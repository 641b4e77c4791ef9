// The skin-wide settings of a skin, with the values of a new one.
#pragma once

#include "text/value_encodings.h"

#include <array>
#include <string>
#include <vector>

namespace tarvel {

/// A resource: a picture or video that Image elements name.
struct Resource {
    std::string name;
    /// isFile: the full path with backslashes; otherwise a ready-made XML fragment.
    std::string content;
    bool isFile = true;
    /// The path leads out of the skin's folder: the file is neither opened nor copied.
    bool outside = false;

    bool operator==(const Resource&) const = default;
};

/// An optional field of the Information section.
struct InformationField {
    std::string name;
    std::string value;

    bool operator==(const InformationField&) const = default;
};

struct MusicSettings {
    bool hasMusic = false;
    bool playGlobal = false;  ///< the music that the console has anyway
    bool customMusic = false; ///< the skin's own; its file does not tell of it
    bool playRandom = false;  ///< in random order
    /// Every path ever added; entries are never taken away.
    std::vector<std::string> musicFiles;
    /// The rows of the list: indexes into musicFiles.
    std::vector<int> rows;

    bool operator==(const MusicSettings&) const = default;
};

/// Delays of screens in milliseconds.
enum class DelaySlot : unsigned char { Title, Load, Saver };

/// A sample box of the system colours: 0 message box, 1 system menu.
struct SampleBox {
    ColorNumber fillColor = 0;
    ColorNumber borderColor = 0;

    bool operator==(const SampleBox&) const = default;
};

/// Sample texts of the system colours, by index.
enum class SampleText : unsigned char {
    messageText = 0,
    messageShadow = 1,
    menuSelect = 2,
    menuSelectValue = 3,
    menuText = 4,
    menuValue = 5
};

/// Colours of the dashboard's message box and system menu.
struct SystemColors {
    std::array<SampleBox, 2> boxes{SampleBox{makeColor(24, 32, 56), makeColor(120, 150, 200)},
                                   SampleBox{makeColor(20, 28, 48), makeColor(120, 150, 200)}};
    std::array<ColorNumber, 6> texts{makeColor(240, 244, 255), makeColor(0, 0, 0),
                                     makeColor(255, 210, 90),  makeColor(255, 232, 170),
                                     makeColor(240, 244, 255), makeColor(176, 200, 232)};
    /// Opacity boxes as typed, percent; not part of a skin file.
    std::array<std::string, 2> opacityTexts{"100", "100"};

    // Each takes a colour text of the file; an empty one changes nothing.
    void setBoxColor(std::string_view text, std::size_t index);
    void setBorderColor(std::string_view text, std::size_t index);
    void setTextColor(std::string_view text, std::size_t index);

    bool operator==(const SystemColors&) const = default;
};

struct Background {
    bool loaded = false;
    std::string path; ///< stays when the background is unloaded

    bool operator==(const Background&) const = default;
};

struct SkinSettings {
    std::string skinName;
    std::vector<InformationField> information{{"Author", ""}, {"Version", ""}, {"Copyright", ""}};
    MusicSettings music;
    std::array<double, 3> delays{}; ///< by DelaySlot
    SystemColors systemColors;
    Background background;
    std::vector<Resource> resources;

    bool operator==(const SkinSettings&) const = default;
};

} // namespace tarvel
