// The fixed texts of the property panel: captions, messages, and the fields of the dashboard that a
// Text element can show.
#pragma once

#include <algorithm>
#include <array>
#include <string_view>

namespace tarvel {

namespace caption {

inline constexpr std::string_view shared = "Shared";
inline constexpr std::string_view text = "Text";
inline constexpr std::string_view anyBorderColor = "Border Color:"; ///< until a kind is chosen
inline constexpr std::string_view borderColor = "Border Color";
inline constexpr std::string_view lineColor = "Line Color";
inline constexpr std::string_view clearBorder = "clear (no border)";
inline constexpr std::string_view anyFillColor = "Fill Color:"; ///< until a kind is chosen
inline constexpr std::string_view fillColor = "Fill Color";
inline constexpr std::string_view fontColor = "Font Color";
inline constexpr std::string_view clearFill = "clear (no fill)";
inline constexpr std::string_view opacity = "Opacity %";
inline constexpr std::string_view chooseText =
    "Select predefined text below, or enter custom text:";
inline constexpr std::string_view font = "Font";
inline constexpr std::string_view chooseResource = "Select Resource Below:";
inline constexpr std::string_view resourceManager = "Resource Manager";
inline constexpr std::string_view resourcePreview = "Resource Preview";
inline constexpr std::string_view applyChanges = "Apply Changes";
inline constexpr std::string_view stopVideos = "Stop Vids";

// The frame of the item menu.
inline constexpr std::string_view thumbnailsVisible = "Thumbnails visible";
inline constexpr std::string_view smoothScroll = "Smooth Scrolling";
inline constexpr std::string_view scrollFactor = "Scroll Factor";
inline constexpr std::string_view itemsShown = "# of games shown at a time";
inline constexpr std::string_view glowSelected = "Glow Selected items";
inline constexpr std::string_view showDescription = "Show Game Description";
inline constexpr std::string_view selectedTitle = "Selected Title";
inline constexpr std::string_view unselectedTitle = "Unselected Title";
inline constexpr std::string_view selectedDescription = "Selected Description";
inline constexpr std::string_view unselectedDescription = "Unselected Description";
inline constexpr std::string_view preview = "Preview:";
inline constexpr std::string_view alignment = "Alignment:";
inline constexpr std::string_view gameTitle = "Game Title";
inline constexpr std::string_view gameDescription = "Game Description";

} // namespace caption

namespace message {

inline constexpr std::string_view noBoxColor = "Choose a color for either the border or the fill";
inline constexpr std::string_view badOpacity = "Select an opacity from 1-100";
inline constexpr std::string_view badAlpha = "Alpha value should be from 0 to 255";
inline constexpr std::string_view noLineColor = "Choose a line color";
inline constexpr std::string_view noResource = "Select a resource";
inline constexpr std::string_view noText = "Enter some text";

} // namespace message

/// The texts to choose from, in their order. The spelling is the dashboard's, odd ones included.
inline constexpr std::array<std::string_view, 54> predefinedTexts = {"DiscTitle",
                                                                     "DiscSubTitle",
                                                                     "CGTitle",
                                                                     "CGDescr",
                                                                     "ShortDriveCSize",
                                                                     "DriveCSize",
                                                                     "ShortDriveESize",
                                                                     "DriveESize",
                                                                     "ShortDriveFSize",
                                                                     "DriveFSize",
                                                                     "ShortDriveCFree",
                                                                     "DriveCFree",
                                                                     "ShortDriveECFree",
                                                                     "DriveEFree",
                                                                     "ShortDriveFFree",
                                                                     "DriveFFree",
                                                                     "ActualPath",
                                                                     "IP",
                                                                     "Time",
                                                                     "Date",
                                                                     "DateTime",
                                                                     "QORVersion",
                                                                     "ConfigValue",
                                                                     "SkinValue",
                                                                     "CGEntryValue",
                                                                     "CGEntryValueDWORD",
                                                                     "CGEntryMode",
                                                                     "MAC",
                                                                     "XboxVersion",
                                                                     "SerialNumber",
                                                                     "VideoStandard",
                                                                     "TempSys",
                                                                     "TempCPU",
                                                                     "TempSysF",
                                                                     "TempSysC",
                                                                     "TempCPUF",
                                                                     "TempCPUC",
                                                                     "BIOSMD5",
                                                                     "BIOSName",
                                                                     "KernelVersion",
                                                                     "CurrentSubMenu",
                                                                     "TrayState",
                                                                     "DVDType",
                                                                     "Name",
                                                                     "CurrentSong",
                                                                     "CurrentSoundtrack",
                                                                     "NumFTPUsers",
                                                                     "DefaultGateway",
                                                                     "SubnetMask",
                                                                     "DNS1",
                                                                     "DNS2",
                                                                     "FlashID",
                                                                     "NewsFeed",
                                                                     "LaunchMode"};

/// Whether the text is an entry of the list, in its very spelling.
[[nodiscard]] constexpr bool isPredefinedText(std::string_view text) {
    return std::find(predefinedTexts.begin(), predefinedTexts.end(), text) != predefinedTexts.end();
}

} // namespace tarvel
