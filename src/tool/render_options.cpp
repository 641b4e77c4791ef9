// Takes the arguments of `render` one by one, and then sees whether they go together.
#include "tool/render_options.h"

#include "files/path_text.h"
#include "text/text_case.h"

#include <array>
#include <charconv>
#include <cmath>
#include <string_view>
#include <vector>

namespace tarvel::tool {

namespace {

constexpr double millisecondsPerSecond = 1000;
constexpr double usualSeconds = 5;

struct Given {
    std::vector<std::string> places; // the arguments that are no options
    bool all = false;
    std::optional<double> at;
    std::optional<double> from;
    std::optional<double> to;
    std::optional<double> fps;
    std::optional<std::size_t> select;
    decltype(PlayChoices::forced) forced;
    bool hasForced = false;
};

std::string inQuotes(std::string_view text) {
    return '"' + std::string(text) + '"';
}

template <class Number> std::string shown(Number number) {
    return std::to_string(static_cast<long long>(number));
}

// The number that the whole text is: digits with at most one point, whatever the locale.
std::optional<double> numberIn(std::string_view text) {
    double number = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number, std::chars_format::fixed);
    if (error != std::errc{} || stop != end || !std::isfinite(number) || text.front() == '-') {
        return std::nullopt;
    }
    return number;
}

double secondsIn(std::string_view option, std::string_view text) {
    const auto number = numberIn(text);
    if (!number || *number > latestSecond) {
        throw OptionError(std::string(option) + " takes seconds from 0 to " + shown(latestSecond) +
                          ", not " + inQuotes(text));
    }
    return *number;
}

double frameRateIn(std::string_view text) {
    const auto number = numberIn(text);
    if (!number || *number < 1 || *number > mostFramesPerSecond) {
        throw OptionError("--fps takes 1 to " + shown(mostFramesPerSecond) +
                          " frames a second, not " + inQuotes(text));
    }
    return *number;
}

std::size_t itemIn(std::string_view text) {
    std::size_t item = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, item);
    if (error != std::errc{} || stop != end || item < 1 || item > sampleItems.size()) {
        throw OptionError("--select takes the number of an item, 1 to " +
                          shown(sampleItems.size()) + ", not " + inQuotes(text));
    }
    return item - 1;
}

std::string_view withoutLastBlank(std::string_view text) {
    return text.ends_with(' ') ? text.substr(0, text.size() - 1) : text;
}

// The row of a condition by its name; one that ends with a blank needs none here.
std::size_t conditionRow(std::string_view name) {
    for (std::size_t row = 0; row < conditionRows.size(); ++row) {
        const std::string_view stored = conditionRows.at(row).text;
        if (equalsIgnoringCase(stored, name) ||
            equalsIgnoringCase(withoutLastBlank(stored), name)) {
            return row;
        }
    }
    throw OptionError("there is no condition " + inQuotes(name));
}

void force(Given& given, std::string_view text) {
    const std::size_t sign = text.rfind('=');
    const std::string_view state =
        sign == std::string_view::npos ? std::string_view() : text.substr(sign + 1);
    const bool isOn = equalsIgnoringCase(state, "on");
    if (!isOn && !equalsIgnoringCase(state, "off")) {
        throw OptionError("--condition takes NAME=on or NAME=off, not " + inQuotes(text));
    }
    const std::string_view name = text.substr(0, sign);
    const std::size_t row = conditionRow(name);
    if (row == 0) {
        throw OptionError("the condition " + inQuotes(name) + " always holds");
    }
    if (given.forced.at(row)) {
        throw OptionError("the condition " + inQuotes(name) + " is given twice");
    }
    given.forced.at(row) = isOn;
    given.hasForced = true;
}

template <class Value>
void keepOnce(std::optional<Value>& kept, std::string_view option, Value value) {
    if (kept) {
        throw OptionError(std::string(option) + " is given twice");
    }
    kept = value;
}

void takeAll(Given& given) {
    if (given.all) {
        throw OptionError("--all is given twice");
    }
    given.all = true;
}

using Take = void (*)(Given&, std::string_view value);

struct Option {
    std::string_view name;
    Take take;
};

constexpr std::array options = {
    Option{"--at",
           [](Given& given, std::string_view value) {
               keepOnce(given.at, "--at", secondsIn("--at", value));
           }},
    Option{"--from",
           [](Given& given, std::string_view value) {
               keepOnce(given.from, "--from", secondsIn("--from", value));
           }},
    Option{"--to",
           [](Given& given, std::string_view value) {
               keepOnce(given.to, "--to", secondsIn("--to", value));
           }},
    Option{"--fps",
           [](Given& given, std::string_view value) {
               keepOnce(given.fps, "--fps", frameRateIn(value));
           }},
    Option{"--select",
           [](Given& given, std::string_view value) {
               keepOnce(given.select, "--select", itemIn(value));
           }},
    Option{"--condition", force},
};

bool isOption(std::string_view argument) {
    return argument.starts_with("--");
}

Take takerOf(std::string_view name) {
    for (const Option& option : options) {
        if (option.name == name) {
            return option.take;
        }
    }
    throw OptionError("render has no option " + inQuotes(name));
}

Given givenBy(std::span<const std::string> arguments) {
    Given given;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        if (!isOption(argument)) {
            given.places.push_back(argument);
        } else if (argument == "--all") {
            takeAll(given);
        } else {
            const Take take = takerOf(argument);
            if (i + 1 == arguments.size() || isOption(arguments[i + 1])) {
                throw OptionError(argument + " needs a value");
            }
            take(given, arguments[++i]);
        }
    }
    return given;
}

PictureFormat formatOf(const std::filesystem::path& out) {
    const std::string ending = lowerCased(utf8Of(out.extension()));
    if (ending == ".png") {
        return PictureFormat::png;
    }
    if (ending == ".webp") {
        return PictureFormat::webp;
    }
    if (ending == ".gif") {
        return PictureFormat::gif;
    }
    throw OptionError("a picture ends in .png and an animation in .webp or .gif, not as " +
                      inQuotes(utf8Of(out)) + " does");
}

PlayTime milliseconds(double seconds) {
    return std::llround(seconds * millisecondsPerSecond);
}

Moments animation(const Given& given) {
    if (given.at) {
        throw OptionError("--at is for a picture that ends in .png: an animation takes --from and "
                          "--to");
    }
    Moments moments{.from = milliseconds(given.from.value_or(0)),
                    .perSecond = given.fps.value_or(Moments{}.perSecond)};
    const PlayTime to =
        given.to ? milliseconds(*given.to) : moments.from + milliseconds(usualSeconds);
    if (to < moments.from) {
        throw OptionError("--to is a time before --from");
    }
    constexpr double tiny = 1e-6; // more than the division leaves, less than a millisecond
    const double frames = std::ceil(
        static_cast<double>(to - moments.from) * moments.perSecond / millisecondsPerSecond - tiny);
    if (frames > static_cast<double>(mostFrames)) {
        throw OptionError("an animation has at most " + shown(mostFrames) +
                          " frames, and this one would have " + shown(frames));
    }
    moments.count = frames < 1 ? 1 : static_cast<std::size_t>(frames);
    return moments;
}

Moments still(const Given& given) {
    for (const auto& [name, isGiven] :
         {std::pair("--from", given.from.has_value()), std::pair("--to", given.to.has_value()),
          std::pair("--fps", given.fps.has_value())}) {
        if (isGiven) {
            throw OptionError(std::string(name) +
                              " is for an animation, which ends in .webp or .gif");
        }
    }
    return {.from = milliseconds(given.at.value_or(0))};
}

} // namespace

PlayTime Moments::at(std::size_t frame) const {
    return from + std::llround(static_cast<double>(frame) * millisecondsPerSecond / perSecond);
}

double Moments::until(std::size_t frame) const {
    return static_cast<double>(frame + 1) / perSecond;
}

PlayChoices RenderOptions::choicesWith(const MenuSettings* menu) const {
    PlayChoices choices;
    if (menu != nullptr) {
        choices.itemsShown = itemsShownBy(*menu);
    }
    choices.forced = forced;
    choices.clock = sampleClock;
    selectItem(choices, selected);
    return choices;
}

std::optional<RenderOptions> renderOptions(std::span<const std::string> arguments) {
    constexpr std::size_t withScreen = 3; // FOLDER SCREEN OUT
    const Given given = givenBy(arguments);
    if (given.all && given.places.size() == withScreen) {
        throw OptionError("--all draws every screen, and " + inQuotes(given.places[1]) +
                          " is named besides");
    }
    if (given.places.size() != (given.all ? withScreen - 1 : withScreen)) {
        return std::nullopt;
    }
    RenderOptions render;
    render.folder = pathOf(given.places.front());
    render.out = pathOf(given.places.back());
    if (!given.all) {
        render.screen = given.places[1];
    }
    render.format = formatOf(render.out);
    const bool isStill = render.format == PictureFormat::png;
    render.moments = isStill ? still(given) : animation(given);
    render.isPlayed = !isStill || given.at || given.select || given.hasForced;
    render.selected = given.select.value_or(0);
    render.forced = given.forced;
    return render;
}

} // namespace tarvel::tool
