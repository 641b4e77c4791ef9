// What the command line of `render` asks for.
#pragma once

#include "playing/played_screen.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>

namespace tarvel::tool {

/// An option that cannot be followed; what() is one sentence about it.
class OptionError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// By the ending of the file.
enum class PictureFormat { png, webp, gif };

/// The moments of an animation. They are counted from its beginning, so that nothing adds up; a
/// still is one moment.
struct Moments {
    PlayTime from = 0;
    double perSecond = 20;
    std::size_t count = 1;

    /// The time that the frame shows, to the millisecond.
    [[nodiscard]] PlayTime at(std::size_t frame) const;
    /// Until when it is shown, in seconds from the beginning of the animation.
    [[nodiscard]] double until(std::size_t frame) const;
};

struct RenderOptions {
    std::filesystem::path folder;
    std::optional<std::string> screen; ///< as it was named; nothing: all of them
    std::filesystem::path out;
    PictureFormat format = PictureFormat::png;
    bool isPlayed = false; ///< otherwise the screens are drawn at rest
    Moments moments;
    std::size_t selected = 0; ///< item of the sample list, counted from 0
    decltype(PlayChoices::forced) forced;

    /// What a screen with this menu (nullptr for none) is played with.
    [[nodiscard]] PlayChoices choicesWith(const MenuSettings* menu) const;
};

/// What clocks on the screens show at the time 0: always the same, so that pictures can be
/// compared.
inline constexpr WallClock sampleClock{
    .year = 2026, .month = 3, .day = 15, .hour = 20, .minute = 15, .second = 0};

inline constexpr double latestSecond = 1'000'000;
inline constexpr double mostFramesPerSecond = 50;
inline constexpr std::size_t mostFrames = 3000; ///< of an animation

/// Reads what follows the word "render". Throws OptionError; nothing when the arguments that are no
/// options are too few or too many.
[[nodiscard]] std::optional<RenderOptions> renderOptions(std::span<const std::string> arguments);

} // namespace tarvel::tool
