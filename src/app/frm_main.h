// The main window: composes the panels and keeps them in line with the document.
#pragma once

#include "app/skin_file_commands.h"
#include "canvas/picture_cache.h"
#include "document/skin_document.h"

#include <QMainWindow>

#include <filesystem>

class QLabel;

namespace tarvel {

class BehaviourButtons;
class CreatePanel;
class ElementsPanel;
class FrmInfo;
class LayoutPanel;
class MainMenus;
class PanelSlide;
class Pic;
class PositionPanel;
class Prompts;

/// Owns the one document of a run. Asks the user through `prompts`, which outlives the window.
class FrmMain : public QMainWindow, private DocumentObserver {
    Q_OBJECT

  public:
    /// `programFolder` holds the program's own files: "temp.xml" while a skin is saved.
    FrmMain(Prompts& prompts, std::filesystem::path programFolder);
    ~FrmMain() override;

    [[nodiscard]] SkinDocument& document() { return document_; }

    /// Shows a screen, with nothing selected.
    void optScreen_Click(int index);
    /// Makes the screen whose button is checked the current one.
    void SetCurLayout();
    /// Marks the screens that hold elements.
    void setLayoutBolds();
    /// Marks the behaviours that the selected element carries.
    void setBolds();
    /// Id of the selected element; 0 when none is selected.
    [[nodiscard]] int curNum() const;

    /// Asks whether to save, and saves. False when the window is to stay open.
    bool Form_Unload();

  protected:
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void documentChanged(const DocumentChange& change) override;
    void showCurrentLayout();
    void showSelection();

    void buildCentre();
    QWidget* buildLeftSide();
    QWidget* buildRightSide();
    void connectMenus();
    void slideIn();

    Prompts& prompts_;
    SkinDocument document_;
    PictureCache pictures_;
    SkinFileCommands files_;

    MainMenus* menus_ = nullptr;
    FrmInfo* frmInfo_ = nullptr;
    Pic* pic_ = nullptr;
    QWidget* surface_ = nullptr; // the frame around Pic
    QLabel* lblPos_ = nullptr;
    QWidget* fraNote_ = nullptr;
    CreatePanel* fraCreate_ = nullptr;
    LayoutPanel* fraLayout_ = nullptr;
    ElementsPanel* fraElements_ = nullptr;
    PositionPanel* fraPos_ = nullptr;
    BehaviourButtons* behaviours_ = nullptr;
    PanelSlide* slide_ = nullptr;
    bool slidIn_ = false;
};

} // namespace tarvel
