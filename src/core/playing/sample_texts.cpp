// The one table of sample values, and the fields that change while a screen plays.
#include "playing/sample_texts.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>

namespace tarvel {

namespace {

struct Sample {
    std::string_view field;
    std::string_view text;
};

constexpr std::array samples = {
    Sample{"DiscTitle", "Harbour Nights"},
    Sample{"DiscSubTitle", "Disc 1"},
    Sample{"ShortDriveCSize", "500M"},
    Sample{"DriveCSize", "500 MB"},
    Sample{"ShortDriveESize", "4.8G"},
    Sample{"DriveESize", "4.8 GB"},
    Sample{"ShortDriveFSize", "112G"},
    Sample{"DriveFSize", "112 GB"},
    Sample{"ShortDriveCFree", "212M"},
    Sample{"DriveCFree", "212 MB free"},
    Sample{"ShortDriveECFree", "1.9G"},
    Sample{"DriveEFree", "1.9 GB free"},
    Sample{"ShortDriveFFree", "37G"},
    Sample{"DriveFFree", "37 GB free"},
    Sample{"ActualPath", "F:\\Games\\Harbour"},
    Sample{"IP", "192.168.0.20"},
    Sample{"QORVersion", "5.0"},
    Sample{"ConfigValue", "On"},
    Sample{"SkinValue", "Aurora"},
    Sample{"CGEntryValue", "3"},
    Sample{"CGEntryValueDWORD", "0x00000003"},
    Sample{"CGEntryMode", "Number"},
    Sample{"MAC", "00:50:F2:12:34:56"},
    Sample{"XboxVersion", "1.4"},
    Sample{"SerialNumber", "612345 20901"},
    Sample{"VideoStandard", "PAL-I"},
    Sample{"TempSys", "38 C"},
    Sample{"TempCPU", "46 C"},
    Sample{"TempSysF", "100 F"},
    Sample{"TempSysC", "38 C"},
    Sample{"TempCPUF", "115 F"},
    Sample{"TempCPUC", "46 C"},
    Sample{"BIOSMD5", "9F2B6E0C41D7A853"},
    Sample{"BIOSName", "Unknown BIOS"},
    Sample{"KernelVersion", "1.0.5838.1"},
    Sample{"CurrentSubMenu", "Games"},
    Sample{"TrayState", "Ready to play"},
    Sample{"DVDType", "Game"},
    Sample{"CurrentSong", "Slow Tide"},
    Sample{"CurrentSoundtrack", "Evening"},
    Sample{"NumFTPUsers", "1"},
    Sample{"DefaultGateway", "192.168.0.1"},
    Sample{"SubnetMask", "255.255.255.0"},
    Sample{"DNS1", "192.168.0.1"},
    Sample{"DNS2", "192.168.0.2"},
    Sample{"FlashID", "0x01D5"},
    Sample{"NewsFeed", "Nothing new today"},
    Sample{"LaunchMode", "Normal"},
};

template <class... Numbers> std::string formatted(const char* form, Numbers... numbers) {
    constexpr std::size_t longest = 64;
    std::array<char, longest> text{};
    const int length = std::snprintf(text.data(), text.size(), form, numbers...); // NOLINT
    return {text.data(), static_cast<std::size_t>(std::clamp(length, 0, 63))};
}

std::string timeText(const WallClock& clock) {
    return formatted("%02d:%02d:%02d", clock.hour, clock.minute, clock.second);
}

std::string dateText(const WallClock& clock) {
    return formatted("%02d/%02d/%04d", clock.month, clock.day, clock.year);
}

} // namespace

WallClock later(const WallClock& clock, PlayTime time) {
    using namespace std::chrono;
    constexpr PlayTime longest = PlayTime{10'000} * 365 * 24 * 3600 * 1000;
    const sys_days day = year(clock.year) / month(static_cast<unsigned>(clock.month)) /
                         std::chrono::day(static_cast<unsigned>(clock.day));
    const auto now = day + hours(clock.hour) + minutes(clock.minute) + seconds(clock.second) +
                     floor<seconds>(milliseconds(std::clamp(time, -longest, longest)));
    const sys_days today = floor<days>(now);
    const year_month_day date(today);
    const hh_mm_ss within(now - today);
    return {.year = static_cast<int>(date.year()),
            .month = static_cast<int>(static_cast<unsigned>(date.month())),
            .day = static_cast<int>(static_cast<unsigned>(date.day())),
            .hour = static_cast<int>(within.hours().count()),
            .minute = static_cast<int>(within.minutes().count()),
            .second = static_cast<int>(within.seconds().count())};
}

std::string playedText(std::string_view field, const WallClock& clock, const ListItem* item) {
    if (field == "Time") {
        return timeText(clock);
    }
    if (field == "Date") {
        return dateText(clock);
    }
    if (field == "DateTime") {
        return dateText(clock) + ' ' + timeText(clock);
    }
    if (field == "CGTitle" || field == "Name") {
        return item == nullptr ? std::string() : std::string(item->title);
    }
    if (field == "CGDescr") {
        return item == nullptr ? std::string() : std::string(item->description);
    }
    const auto* const found =
        std::find_if(samples.begin(), samples.end(),
                     [&](const Sample& sample) { return sample.field == field; });
    return std::string(found == samples.end() ? field : found->text);
}

} // namespace tarvel
