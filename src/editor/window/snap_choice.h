// What is snapped to, as chosen in the menu "Options" and remembered.
#pragma once

#include "editing/snap_drag.h"

#include <QObject>

class QAction;
class QMenu;
class QSpinBox;

namespace tarvel {

class Remembered;

/// Takes the two entries of the menu and puts a box for the size of the grid below them. Menu,
/// entries and what remembers are not owned and outlive it.
class SnapChoice : public QObject {
    Q_OBJECT

  public:
    SnapChoice(QMenu& menu, QAction& toElements, QAction& toGrid, Remembered& remembered);

    [[nodiscard]] SnapOptions options() const;

  signals:
    void changed(const tarvel::SnapOptions& options);

  private:
    void addGridSize(QMenu& menu);
    void remember();

    QAction& toElements_;
    QAction& toGrid_;
    Remembered& remembered_;
    QSpinBox* txtGrid_ = nullptr;
};

} // namespace tarvel
