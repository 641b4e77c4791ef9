// The four channels of a Color modifier: their values, and what dragging and copying do to them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tarvel {

inline constexpr std::size_t channelCount = 4;
/// In the order in which they are shown and written.
inline constexpr std::array<std::string_view, channelCount> channelNames = {"Alpha", "Red", "Green",
                                                                            "Blue"};

enum class ChannelValue : std::uint8_t { Min, Max, Period };
inline constexpr std::array<ChannelValue, 3> channelValues = {ChannelValue::Min, ChannelValue::Max,
                                                              ChannelValue::Period};
/// "Min", "Max" or "Period".
[[nodiscard]] std::string_view channelValueName(ChannelValue which);

/// A channel as the panel shows it. Dragging keeps Min and Max whole, within 0 to 255 and in order,
/// and Period whole and at least 50; values out of a file and copied ones stay as they are until
/// they are dragged.
struct ColorChannel {
    bool Enable = false;
    double Min = 0;
    double Max = 255;
    double Period = 1000; ///< milliseconds

    [[nodiscard]] double value(ChannelValue which) const;
    void setValue(ChannelValue which, double value);
    /// Makes a value whole and holds it at its limits. Half numbers are rounded to even.
    void change(ChannelValue which, double value);
    /// Changes a value by a distance in pixels, a Period by ten times that.
    void drag(ChannelValue which, double pixels);

    bool operator==(const ColorChannel&) const = default;
};

/// Turns pointer positions on the value labels into distances. All labels share one remembered
/// position.
class HandlePointer {
  public:
    /// A move to x, in pixels of the label under the pointer. Drags the value while `held`;
    /// remembers x in any case.
    void mouseMove(ColorChannel& channel, ChannelValue which, int x, bool held);

  private:
    int lastX_ = 0;
};

} // namespace tarvel
