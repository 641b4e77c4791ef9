// The main window: composes the panels around the one document of a run.
#pragma once

#include "document/selection.h"
#include "editing/position_fields.h"
#include "surface/picture_cache.h"
#include "window/element_commands.h"
#include "window/skin_file_commands.h"

#include <QMainWindow>

#include <filesystem>
#include <functional>
#include <memory>

class QLabel;
class QToolButton;

namespace tarvel {

class ArrangeCommands;
class BehaviourButtons;
class BehaviourPanels;
class ChangeTeller;
class CheckWindow;
class ClipboardCommands;
class CreatePanel;
class ElementsPanel;
class LayoutPanel;
class LockedGround;
class MainMenus;
class PanelSlide;
class Pic;
class PictureWatch;
class PlayCommands;
class PlayPanel;
class PositionPanel;
class Prompts;
class PropertyPanel;
class RecentMenu;
class RecoveryKeeper;
class Remembered;
class SelectionMarks;
class SelectionViews;
class SkinDialogs;
class SnapChoice;
class SkinStatus;
class StyleChoice;
class SurfaceRoom;
class TimePanel;
class ToolChoice;
class WindowGate;
class WindowKeys;
class WorkHistory;
class ZoomChoice;
struct Finding;
struct PlayClock;
struct SideRoom;

/// Owns the document and what is selected in it. Asks the user through `prompts`, which outlives
/// the window, as `remembered` does.
class FrmMain : public QMainWindow {
    Q_OBJECT

  public:
    /// `programFolder` holds the program's own files: the modifier catalogue, and "temp.xml" while
    /// a skin is saved.
    FrmMain(Prompts& prompts, const std::filesystem::path& programFolder, Remembered& remembered);
    ~FrmMain() override;

    [[nodiscard]] SkinDocument& document() { return document_; }
    /// Id of the selected element; 0 when none is selected.
    [[nodiscard]] int curNum() const { return selection_.curNum(); }

    /// Shows a screen, with nothing selected.
    void optScreen_Click(int index);
    /// Makes the screen whose button is checked the current one.
    void SetCurLayout();
    /// Marks the behaviours that the selected element carries.
    void setBolds();

    /// Asks whether to save, and saves. False when the window is to stay open.
    bool Form_Unload();

    /// Keeps the work in a folder from now on, for a run that does not end by closing the window.
    /// Throws FileError when nothing can be kept there.
    void keepWorkIn(const std::filesystem::path& folder);
    /// How a further run is started, with a folder to open or with an empty text; false when that
    /// cannot be done.
    void startRunsBy(std::function<bool(const QString& folder)> start);
    /// Asks whether to bring back what lost runs have kept there. True when something is back.
    bool offerLostWork();
    /// Begins a run that was started with folders of skins: asks about lost work, opens the first
    /// folder, and starts a run for each further one. Work that was brought back stays alone: then
    /// the first folder, too, has a run of its own, unless the work is of that folder.
    void begin(const QStringList& folders);
    /// Where playing takes its time from, from its next start on.
    void playBy(PlayClock clock);
    /// Keeps the work as it is now: the program is about to end.
    void keepWorkNow();

  protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void build(const std::filesystem::path& programFolder);
    QWidget* buildLeftSide();
    SurfaceRoom* buildSurface();
    QWidget* buildReadout();
    QWidget* buildRightSide();
    void buildPanels(QWidget& panels);
    QWidget* buildStopButton();
    void buildReactions();
    void connectPanels();
    void connectMenus();
    void buildEditCommands();
    void buildHistory();
    void buildStatus();
    void watchPictures();
    void buildPlaying(const SideRoom& side, QWidget& ground,
                      const std::filesystem::path& programFolder);
    void buildKeyboard();
    void slideIn();
    void popupMenu(QPoint globalPosition);
    void enterPosition(PositionField field, const QString& text);
    void applyChanges();
    void load();
    void openFolder(const QString& folder);
    void saveAgain();
    void newWindow(const QString& folder);
    void check();
    void showFinding(const Finding& finding);
    void loaded(const SkinDocument& before);
    void deleteSelected();

    Prompts& prompts_;
    Remembered& remembered_;
    SkinDocument document_;
    Selection selection_{document_};
    PictureCache pictures_;
    SkinFileCommands files_;
    ElementCommands commands_{document_, selection_};

    std::unique_ptr<MainMenus> menus_;
    std::unique_ptr<StyleChoice> style_;
    Pic* pic_ = nullptr;
    SurfaceRoom* surface_ = nullptr; // the room around Pic
    QToolButton* cmdZoom_ = nullptr;
    QToolButton* cmdPlay_ = nullptr;
    QLabel* lblPos_ = nullptr;
    QWidget* fraNote_ = nullptr;
    CreatePanel* fraCreate_ = nullptr;
    PlayPanel* fraPlay_ = nullptr;
    TimePanel* fraTime_ = nullptr;
    LayoutPanel* fraLayout_ = nullptr;
    ElementsPanel* fraElements_ = nullptr;
    PositionPanel* fraPos_ = nullptr;
    PropertyPanel* properties_ = nullptr;
    BehaviourButtons* behaviours_ = nullptr;
    QWidget* cmdStop_ = nullptr;
    BehaviourPanels* behaviourPanels_ = nullptr;
    PanelSlide* slide_ = nullptr;
    WindowGate* gate_ = nullptr;
    SelectionMarks* marks_ = nullptr;
    std::unique_ptr<ToolChoice> tools_;
    std::unique_ptr<SelectionViews> views_;
    std::unique_ptr<WindowKeys> keys_;
    std::unique_ptr<SnapChoice> snapping_;
    std::unique_ptr<ZoomChoice> zoom_;
    std::unique_ptr<ChangeTeller> changes_;
    std::unique_ptr<WorkHistory> history_;
    std::unique_ptr<SkinStatus> status_;
    std::unique_ptr<RecentMenu> recent_;
    CheckWindow* frmCheck_ = nullptr; // made when it is wanted
    std::unique_ptr<ClipboardCommands> clipboard_;
    std::unique_ptr<ArrangeCommands> arranging_;
    std::unique_ptr<LockedGround> ground_;
    std::unique_ptr<SkinDialogs> dialogs_;
    std::unique_ptr<PictureWatch> watch_;
    std::unique_ptr<RecoveryKeeper> keeper_;
    std::unique_ptr<PlayCommands> playing_;
    std::function<bool(const QString&)> startRun_;
    bool wasShown_ = false;
    bool hasSlidIn_ = false;
};

} // namespace tarvel
