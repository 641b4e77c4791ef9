// Keeps entries, button, room and what is remembered in line.
#include "window/zoom_choice.h"

#include "editing/zoom.h"
#include "surface/pic.h"
#include "surface/surface_controller.h"
#include "surface/surface_pan.h"
#include "surface/surface_room.h"
#include "widgets/remembered.h"

#include <QAction>
#include <QMenu>
#include <QToolButton>

namespace tarvel {

namespace {

constexpr int fitZoom = 0;
constexpr RememberedNumber zoomKey{"view/zoom", fitZoom, fitZoom, largestZoom};
constexpr RememberedSwitch rulersKey{"view/rulers", false};
constexpr RememberedSwitch safeAreaKey{"view/safeArea", false};

QString percentText(int zoom) {
    return QStringLiteral("%1 %").arg(zoom);
}

} // namespace

ZoomChoice::ZoomChoice(const Parts& parts)
    : parts_(parts)
    , pan_(new SurfacePan(parts.surface, parts.room, parts.controller)) {
    pan_->setParent(this);
    parts_.room.setBusyTest([this] { return parts_.controller.isWorking() || pan_->isPanning(); });
    parts_.menu.insertSeparator(&parts_.before);
    addZooms();
    addViews();
    parts_.menu.insertSeparator(&parts_.before);
    takeRemembered();
    connect(&parts_.room, &SurfaceRoom::zoomChanged, this, &ZoomChoice::showZoom);
    connect(&parts_.room, &SurfaceRoom::zoomChanged, this, &ZoomChoice::remember);
    showZoom();
}

QAction* ZoomChoice::addEntry(QMenu& menu, const char* name, const QString& caption) {
    QAction* entry = menu.addAction(caption);
    entry->setObjectName(QLatin1String(name));
    return entry;
}

void ZoomChoice::addZooms() {
    auto* zooms = new QMenu(tr("Zoom"), &parts_.menu);
    zooms->setObjectName(QStringLiteral("mnuZoom"));
    parts_.menu.insertMenu(&parts_.before, zooms);
    mnuZoomIn_ = addEntry(*zooms, "mnuZoomIn", tr("Zoom In"));
    mnuZoomIn_->setShortcuts({Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal});
    connect(mnuZoomIn_, &QAction::triggered, &parts_.room, &SurfaceRoom::zoomIn);
    mnuZoomOut_ = addEntry(*zooms, "mnuZoomOut", tr("Zoom Out"));
    mnuZoomOut_->setShortcut(Qt::CTRL | Qt::Key_Minus);
    connect(mnuZoomOut_, &QAction::triggered, &parts_.room, &SurfaceRoom::zoomOut);
    QAction* actual = addEntry(*zooms, "mnuZoomActual", percentText(actualZoom));
    actual->setShortcut(Qt::CTRL | Qt::Key_0);
    connect(actual, &QAction::triggered, &parts_.room, [this] { parts_.room.zoomTo(actualZoom); });
    mnuZoomFit_ = addEntry(*zooms, "mnuZoomFit", tr("Fit"));
    mnuZoomFit_->setShortcut(Qt::CTRL | Qt::Key_9);
    mnuZoomFit_->setCheckable(true);
    connect(mnuZoomFit_, &QAction::triggered, &parts_.room, &SurfaceRoom::fit);
    // Refused, or chosen once more, it stays as it is.
    connect(mnuZoomFit_, &QAction::triggered, this, &ZoomChoice::showZoom);
    parts_.display.setMenu(zooms);
}

void ZoomChoice::addViews() {
    const auto add = [this](const char* name, const QString& caption, const RememberedSwitch& key,
                            auto&& show) {
        auto* entry = new QAction(caption, &parts_.menu);
        entry->setObjectName(QLatin1String(name));
        entry->setCheckable(true);
        parts_.menu.insertAction(&parts_.before, entry);
        connect(entry, &QAction::toggled, this, [this, key, show](bool on) {
            show(on);
            parts_.remembered.remember(key, on);
        });
        entry->setChecked(parts_.remembered.value(key));
    };
    add("mnuRulers", tr("Rulers"), rulersKey, [this](bool on) { parts_.room.showRulers(on); });
    add("mnuSafeArea", tr("Safe Area"), safeAreaKey,
        [this](bool on) { parts_.surface.showSafeArea(on); });
}

void ZoomChoice::takeRemembered() {
    const int zoom = parts_.remembered.value(zoomKey);
    if (zoom >= smallestZoom) {
        parts_.room.zoomTo(zoom);
    }
}

void ZoomChoice::showZoom() {
    const SurfaceRoom& room = parts_.room;
    parts_.display.setText(percentText(room.zoom()));
    parts_.display.setAccessibleName(tr("%1: zoom of the screen").arg(parts_.display.text()));
    mnuZoomFit_->setChecked(room.isFit());
    mnuZoomIn_->setEnabled(room.zoom() < largestZoom);
    mnuZoomOut_->setEnabled(room.zoom() > smallestZoom);
}

void ZoomChoice::remember() {
    const SurfaceRoom& room = parts_.room;
    parts_.remembered.remember(zoomKey, room.isFit() ? fitZoom : room.zoom());
}

} // namespace tarvel
