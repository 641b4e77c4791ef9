// Zoom, rulers and safe area, as chosen in the menu "Options" and remembered.
#pragma once

#include <QObject>

class QAction;
class QMenu;
class QToolButton;

namespace tarvel {

class Pic;
class Remembered;
class SurfaceController;
class SurfacePan;
class SurfaceRoom;

/// Adds its entries to the menu, gives the same zooms to the button that shows the zoom, and lets
/// the surface be panned. What it is given is not owned and outlives it.
class ZoomChoice : public QObject {
    Q_OBJECT

  public:
    struct Parts {
        QMenu& menu;
        QAction& before; ///< the entry of the menu that the new ones stand before
        QToolButton& display;
        SurfaceRoom& room;
        Pic& surface;
        SurfaceController& controller;
        Remembered& remembered;
    };

    explicit ZoomChoice(const Parts& parts);

    [[nodiscard]] SurfacePan& pan() { return *pan_; }

  private:
    void addZooms();
    void addViews();
    QAction* addEntry(QMenu& menu, const char* name, const QString& caption);
    void takeRemembered();
    void showZoom();
    void remember();

    Parts parts_;
    SurfacePan* pan_;
    QAction* mnuZoomIn_ = nullptr;
    QAction* mnuZoomOut_ = nullptr;
    QAction* mnuZoomFit_ = nullptr;
};

} // namespace tarvel
