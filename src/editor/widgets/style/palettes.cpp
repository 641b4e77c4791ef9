// Fills the two palettes from a table of their colours.
#include "widgets/style/palettes.h"

#include "widgets/style/contrast.h"

namespace tarvel {

namespace {

struct Colors {
    QRgb window;
    QRgb base;
    QRgb alternate;
    QRgb button;
    QRgb text;
    QRgb faint; // of hints in fields
    QRgb off;   // of what is disabled
    QRgb accent;
    QRgb onAccent;
    QRgb visited;
    QRgb edge;
    QRgb light;
    QRgb dark;
    QRgb shadow;
};

constexpr Colors lightColors = {.window = 0xfff1f2f4,
                                .base = 0xffffffff,
                                .alternate = 0xfff6f7f9,
                                .button = 0xffe8eaee,
                                .text = 0xff1d2126,
                                .faint = 0xff5f6770,
                                .off = 0xff7b828b,
                                .accent = 0xff1a66c2,
                                .onAccent = 0xffffffff,
                                .visited = 0xff6b3fa0,
                                .edge = 0xff7d848d,
                                .light = 0xffffffff,
                                .dark = 0xff5c636b,
                                .shadow = 0xff2f343a};

constexpr Colors darkColors = {.window = 0xff25282c,
                               .base = 0xff1a1c1f,
                               .alternate = 0xff202327,
                               .button = 0xff363a40,
                               .text = 0xffe8eaed,
                               .faint = 0xffa3aab3,
                               .off = 0xff868d96,
                               .accent = 0xff7ab0f0,
                               .onAccent = 0xff10161d,
                               .visited = 0xffc8a6f0,
                               .edge = 0xff828a94,
                               .light = 0xff4a4f57,
                               .dark = 0xff14161a,
                               .shadow = 0xff000000};

QPalette made(const Colors& colors) {
    QPalette palette;
    const auto set = [&](QPalette::ColorRole role, QRgb color) {
        palette.setColor(QPalette::All, role, QColor::fromRgb(color));
    };
    set(QPalette::Window, colors.window);
    set(QPalette::WindowText, colors.text);
    set(QPalette::Base, colors.base);
    set(QPalette::AlternateBase, colors.alternate);
    set(QPalette::Text, colors.text);
    set(QPalette::PlaceholderText, colors.faint);
    set(QPalette::Button, colors.button);
    set(QPalette::ButtonText, colors.text);
    set(QPalette::BrightText, colors.onAccent);
    set(QPalette::Highlight, colors.accent);
    set(QPalette::HighlightedText, colors.onAccent);
    set(QPalette::Link, colors.accent);
    set(QPalette::LinkVisited, colors.visited);
    set(QPalette::ToolTipBase, colors.base);
    set(QPalette::ToolTipText, colors.text);
    set(QPalette::Light, colors.light);
    set(QPalette::Midlight, colors.button);
    set(QPalette::Mid, colors.edge);
    set(QPalette::Dark, colors.dark);
    set(QPalette::Shadow, colors.shadow);
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::PlaceholderText}) {
        palette.setColor(QPalette::Disabled, role, QColor::fromRgb(colors.off));
    }
    // What is selected in something disabled is marked by the ground alone.
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor::fromRgb(colors.button));
    palette.setColor(QPalette::Disabled, QPalette::HighlightedText, QColor::fromRgb(colors.text));
    return palette;
}

} // namespace

Shade shadeOf(const QPalette& palette) {
    const bool isDark =
        luminance(palette.color(QPalette::WindowText)) > luminance(palette.color(QPalette::Window));
    return isDark ? Shade::dark : Shade::light;
}

const QPalette& paletteOf(Shade shade) {
    static const QPalette light = made(lightColors);
    static const QPalette dark = made(darkColors);
    return shade == Shade::dark ? dark : light;
}

QColor panelGround(const QPalette& palette) {
    return shadeOf(palette) == Shade::dark
               ? mixed(palette.color(QPalette::Window), palette.color(QPalette::WindowText), 0.04)
               : mixed(palette.color(QPalette::Window), palette.color(QPalette::Base), 0.7);
}

QColor alarmColor(const QPalette& palette) {
    return shadeOf(palette) == Shade::dark ? QColor(255, 150, 130) : QColor(176, 28, 12);
}

} // namespace tarvel
