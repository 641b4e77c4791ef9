// The main window: composes the panels and keeps them in line with the document.
#pragma once

#include "document/skin_document.h"
#include "surface/canvas_tool.h"
#include "surface/picture_cache.h"
#include "window/element_commands.h"
#include "window/skin_file_commands.h"

#include <QMainWindow>

#include <filesystem>
#include <memory>

class QLabel;

namespace tarvel {

class BehaviourButtons;
class BehaviourPanels;
class CreatePanel;
class ElementsPanel;
class LayoutPanel;
class LockedGround;
class MainMenus;
class PanelSlide;
class Pic;
class PictureWatch;
class PositionPanel;
class Prompts;
class PropertyPanel;
class SelectionMarks;
class SkinDialogs;
class SurfaceController;
class SurfaceCover;
class WindowGate;

/// Owns the one document of a run. Asks the user through `prompts`, which outlives the window.
class FrmMain : public QMainWindow, private DocumentObserver, private ToolHost {
    Q_OBJECT

  public:
    /// `programFolder` holds the program's own files: the modifier catalogue, and "temp.xml" while
    /// a skin is saved.
    FrmMain(Prompts& prompts, const std::filesystem::path& programFolder);
    ~FrmMain() override;

    [[nodiscard]] SkinDocument& document() override { return document_; }
    /// Id of the selected element; 0 when none is selected.
    [[nodiscard]] int curNum() const override;

    /// Shows a screen, with nothing selected.
    void optScreen_Click(int index);
    /// Makes the screen whose button is checked the current one.
    void SetCurLayout();
    /// Marks the screens that hold elements.
    void setLayoutBolds();
    /// Marks the behaviours that the selected element carries.
    void setBolds();

    /// Asks whether to save, and saves. False when the window is to stay open.
    bool Form_Unload();

  protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void documentChanged(const DocumentChange& change) override;

    // What the surface's tools see.
    [[nodiscard]] int selectedRow() const override;
    void selectRow(int row) override;
    [[nodiscard]] PanelValues panelValues() const override;
    [[nodiscard]] std::optional<SkinSize> naturalSize(ElementKind kind) const override;
    void drawingEnded() override;

    void showCurrentLayout();
    void showSelection();
    void setCurrentSel();
    void chooseTool(std::optional<ElementKind> kind);
    void refuseInvalid(ElementKind kind, bool& refuse);
    bool windowKey(QKeyEvent& event, bool pressed);
    bool menuKey(const QKeyEvent& event, QWidget& widget);
    void popupMenu(QPoint globalPosition, bool onElement);

    void build(const std::filesystem::path& programFolder);
    QWidget* buildLeftSide();
    QWidget* buildSurface();
    QWidget* buildRightSide();
    void connectSurface();
    void connectPanels();
    void connectMenus();
    void watchPictures();
    void slideIn();

    Prompts& prompts_;
    SkinDocument document_;
    PictureCache pictures_;
    SkinFileCommands files_;
    ElementCommands commands_{*this};

    MainMenus* menus_ = nullptr;
    Pic* pic_ = nullptr;
    QWidget* surface_ = nullptr; // the frame around Pic
    QLabel* lblPos_ = nullptr;
    QWidget* fraNote_ = nullptr;
    CreatePanel* fraCreate_ = nullptr;
    LayoutPanel* fraLayout_ = nullptr;
    ElementsPanel* fraElements_ = nullptr;
    PositionPanel* fraPos_ = nullptr;
    PropertyPanel* properties_ = nullptr;
    BehaviourButtons* behaviours_ = nullptr;
    BehaviourPanels* behaviourPanels_ = nullptr;
    PanelSlide* slide_ = nullptr;
    WindowGate* gate_ = nullptr;
    SelectionMarks* marks_ = nullptr;
    std::unique_ptr<SurfaceController> controller_;
    std::unique_ptr<SurfaceCover> cover_;
    std::unique_ptr<LockedGround> ground_;
    std::unique_ptr<SkinDialogs> dialogs_;
    std::unique_ptr<PictureWatch> watch_;
    bool slidIn_ = false;
};

} // namespace tarvel
