// The menus of the main window: every entry by its name.
#pragma once

#include <QString>

#include <array>

class QAction;
class QMainWindow;
class QMenu;

namespace tarvel {

/// Fills the window's menu bar and makes its two context menus. Entries and menus carry their names
/// as object names, and belong to the window.
class MainMenus {
  public:
    explicit MainMenus(QMainWindow& window);

    QAction* mnuSave = nullptr;
    QAction* mnuLoad = nullptr;
    QAction* mnuView = nullptr;
    QAction* mnuNewWindow = nullptr;
    QAction* mnuSaveAgain = nullptr;
    QAction* mnuRecent = nullptr; ///< holds a menu, which is empty
    QAction* mnuCheck = nullptr;
    QAction* mnuPlay = nullptr;
    QAction* mnuPlaySkin = nullptr;
    QAction* mnuDelays = nullptr;
    QAction* mnuInfo = nullptr;
    QAction* mnuColors = nullptr;
    QAction* mnuAudio = nullptr;
    QAction* mnuResource = nullptr;
    QAction* mnuLoadBg = nullptr;
    QAction* mnuUnloadBg = nullptr;
    QAction* mnuUnlock = nullptr;
    QAction* mnuFront = nullptr;
    QAction* mnuBack = nullptr;
    QAction* mnuForward = nullptr;
    QAction* mnuBackward = nullptr;
    QAction* mnuDeSel = nullptr;
    QAction* mnuLocked = nullptr;
    QAction* mnuDelete = nullptr;
    QAction* mnuCover = nullptr;
    QAction* mnuSnapElements = nullptr;
    QAction* mnuSnapGrid = nullptr;
    QAction* mnuSystemStyle = nullptr;
    QAction* mnuUndo = nullptr;
    QAction* mnuRedo = nullptr;
    QAction* mnuCut = nullptr;
    QAction* mnuCopy = nullptr;
    QAction* mnuPaste = nullptr;
    QAction* mnuDuplicate = nullptr;
    QAction* mnuDeleteSelected = nullptr;
    QAction* mnuSelectAll = nullptr;
    QAction* mnuGuide = nullptr;
    QAction* mnuKeys = nullptr;
    QAction* mnuAbout = nullptr;

    /// Modifiers, timers and condition of the selected element.
    [[nodiscard]] std::array<QAction*, 3> mnuModifier() const {
        return {mnuModifier0_, mnuModifier1_, mnuModifier2_};
    }
    /// In the menu bar; empty here, see ArrangeCommands.
    [[nodiscard]] QMenu& mnuArrange() const { return *mnuArrange_; }
    /// Shown for a selected element.
    [[nodiscard]] QMenu& mnuRight() const { return *mnuRight_; }
    /// Shown where no element is selected.
    [[nodiscard]] QMenu& mnuRight2() const { return *mnuRight2_; }

  private:
    struct Entry;
    struct Table;
    void fill(QMainWindow& window, QMenu& menu);
    void setKeys();

    QAction* mnuModifier0_ = nullptr;
    QAction* mnuModifier1_ = nullptr;
    QAction* mnuModifier2_ = nullptr;
    QMenu* mnuArrange_ = nullptr;
    QMenu* mnuRight_;
    QMenu* mnuRight2_;
};

} // namespace tarvel
