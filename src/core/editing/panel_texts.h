// The fixed texts of the property panel: captions by the names of their controls, messages, and the
// fields of the dashboard that a Text element can show.
#pragma once

#include <array>
#include <string_view>

namespace tarvel {

namespace caption {

inline constexpr std::string_view fraShared = "Shared";
inline constexpr std::string_view fraText = "Text";
inline constexpr std::string_view lblBorderColor = "Border Color:"; ///< until a kind is chosen
inline constexpr std::string_view borderColor = "Border Color";
inline constexpr std::string_view lineColor = "Line Color";
inline constexpr std::string_view cmdClearL = "clear (no border)";
inline constexpr std::string_view lblFillColor = "Fill Color:"; ///< until a kind is chosen
inline constexpr std::string_view fillColor = "Fill Color";
inline constexpr std::string_view fontColor = "Font Color";
inline constexpr std::string_view cmdClearF = "clear (no fill)";
inline constexpr std::string_view lblAlpha = "Opacity %";
inline constexpr std::string_view lblText = "Select predefined text below, or enter custom text:";
inline constexpr std::string_view cmdFont = "Font";
inline constexpr std::string_view lblRes = "Select Resource Below:";
inline constexpr std::string_view cmdAddRes = "Resource Manager";
inline constexpr std::string_view lblPreview = "Resource Preview";
inline constexpr std::string_view cmdApply = "Apply Changes";
inline constexpr std::string_view cmdStop = "Stop Vids";

// The frame of the item menu.
inline constexpr std::string_view chkThumbVis = "Thumbnails visible";
inline constexpr std::string_view chkSmoothScroll = "Smooth Scrolling";
inline constexpr std::string_view lblScrollFactor = "Scroll Factor";
inline constexpr std::string_view lblNumItems = "# of games shown at a time";
inline constexpr std::string_view chkSelGlow = "Glow Selected items";
inline constexpr std::string_view chkShowDesc = "Show Game Description";
inline constexpr std::string_view lblSelTitle = "Selected Title";
inline constexpr std::string_view lblUnselTitle = "Unselected Title";
inline constexpr std::string_view lblSelDesc = "Selected Description";
inline constexpr std::string_view lblUnselDesc = "Unselected Description";
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

/// The entries of txtText, in their order. The spelling is the dashboard's, odd ones included.
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

} // namespace tarvel
