// The icons of menus, tools, lists and dialogs, drawn in the colours of the palette.
#pragma once

#include <QIcon>
#include <QString>

#include <cstdint>

namespace tarvel {

/// What there is an icon of, each in two drawings in assets/icons: on a grid of 16 and on one
/// of 24.
enum class IconName : std::uint8_t {
    box,
    line,
    image,
    video,
    text,
    menu,
    lock,
    undo,
    redo,
    cut,
    copy,
    paste,
    duplicate,
    deleteSelected,
    alignLeft,
    alignCentre,
    alignRight,
    alignTop,
    alignMiddle,
    alignBottom,
    distributeAcross,
    distributeDown,
    bringToFront,
    sendToBack,
    bringForward,
    sendBackward,
    save,
    open,
    play,
    stop,
    hold,
    stepBack,
    stepOn,
    holds,
    holdsNot,
    add,
    remove,
    rename,
    replace,
    locate,
    zoomIn,
    zoomOut,
    zoomFit,
    error,
    warning,
    note,
    help
};
inline constexpr int iconCount = static_cast<int>(IconName::help) + 1;

/// Sizes at which icons are crisp, in pixels: these and their multiples.
inline constexpr int smallIcon = 16;
inline constexpr int toolIcon = 24;

/// An icon in the text colour and the accent of the application's palette as it is when the icon is
/// painted: it follows a change of the palette. Disabled it is in the colour of disabled text, on
/// selected ground in that of selected text, both without the accent.
[[nodiscard]] QIcon icon(IconName name);

/// The icon of the program's windows. Its picture is read when the desktop asks for it.
[[nodiscard]] QIcon programIcon();

/// The file of an icon without folder and ending, "align-left".
[[nodiscard]] QString iconFile(IconName name);

} // namespace tarvel
