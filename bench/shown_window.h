// What the benchmarks of the main window begin with: a program without a display, boxes, and the
// window at rest.
#pragma once

#include "document/element.h"
#include "widgets/panel_slide.h"
#include "window/frm_main.h"

#include <QApplication>
#include <QColor>
#include <QRect>

#include <string>

namespace tarvel::bench {

/// Unless a display is asked for; before there is an application.
inline void needNoDisplay() {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
}

/// A filled box, in skin pixels; one whose colour is not opaque has an opacity of 60 %.
inline Element boxElement(const QRect& rect, const QColor& color) {
    Element element;
    element.elementAlpha = color.alpha() == 255 ? 100 : 60;
    element.label = "Box: Alpha " + std::to_string(element.elementAlpha);
    ElementControl& control = element.elementControl;
    control.fillStyle = FillStyle::solid;
    control.fillColor =
        makeColor(static_cast<unsigned>(color.red()), static_cast<unsigned>(color.green()),
                  static_cast<unsigned>(color.blue()));
    control.left = static_cast<float>(rect.x());
    control.top = static_cast<float>(rect.y());
    control.width = static_cast<float>(rect.width());
    control.height = static_cast<float>(rect.height());
    return element;
}

/// Shows the window, and returns when its panels have slid in.
inline void showAtRest(FrmMain& window) {
    bool slid = false;
    QObject::connect(window.findChild<PanelSlide*>(), &PanelSlide::finished, [&] { slid = true; });
    window.show();
    while (!slid) {
        QApplication::processEvents();
    }
    QApplication::processEvents();
}

} // namespace tarvel::bench
