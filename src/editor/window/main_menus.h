// The menus of the main window: every entry by its name.
#pragma once

#include <QObject>
#include <QString>

class QAction;
class QMainWindow;
class QMenu;

namespace tarvel {

/// Fills the window's menu bar and makes its two context menus. The entries are QActions that carry
/// their names as object names and belong to the window.
class MainMenus {
  public:
    explicit MainMenus(QMainWindow& window);

    /// The entry of that name, such as "mnuSave" or "mnuModifier(0)"; it must exist.
    [[nodiscard]] QAction* entry(const QString& name) const;

    /// Shown for a selected element.
    [[nodiscard]] QMenu* mnuRight() const { return mnuRight_; }
    /// Shown where no element is selected.
    [[nodiscard]] QMenu* mnuRight2() const { return mnuRight2_; }

  private:
    void fill(QMenu& menu, const QString& menuName);

    QMainWindow& window_;
    QMenu* mnuRight_;
    QMenu* mnuRight2_;
};

} // namespace tarvel
