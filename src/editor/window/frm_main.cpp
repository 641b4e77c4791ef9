// Handles what reaches the main window itself; frm_main_build.cpp composes it.
#include "window/frm_main.h"

#include "document/layout_screens.h"
#include "document/open_edit.h"
#include "editing/element_update.h"
#include "editing/several_values.h"
#include "editing/step_names.h"
#include "panels/layout_panel.h"
#include "panels/position_panel.h"
#include "panels/property_panel.h"
#include "surface/locked_ground.h"
#include "surface/pic.h"
#include "surface/picture_watch.h"
#include "surface/surface_room.h"
#include "widgets/panel_slide.h"
#include "widgets/prompts.h"
#include "widgets/qt_text.h"
#include "window/arrange_commands.h"
#include "window/behaviour_panels.h"
#include "window/change_teller.h"
#include "window/check_window.h"
#include "window/clipboard_commands.h"
#include "window/main_menus.h"
#include "window/play_commands.h"
#include "window/recent_menu.h"
#include "window/recovery_keeper.h"
#include "window/selection_views.h"
#include "window/skin_dialogs.h"
#include "window/skin_status.h"
#include "window/snap_choice.h"
#include "window/style_choice.h"
#include "window/tool_choice.h"
#include "window/window_gate.h"
#include "window/window_keys.h"
#include "window/window_place.h"
#include "window/work_history.h"
#include "window/zoom_choice.h"

#include <QAction>
#include <QCloseEvent>
#include <QDir>
#include <QLabel>
#include <QMenu>
#include <QRandomGenerator>
#include <QStatusBar>
#include <QTimer>

#include <utility>

namespace tarvel {

namespace {

std::string randomSkinName() {
    constexpr int names = 350;
    return "myskin" + std::to_string(QRandomGenerator::global()->bounded(names));
}

} // namespace

FrmMain::FrmMain(Prompts& prompts, const std::filesystem::path& programFolder,
                 Remembered& remembered)
    : prompts_(prompts)
    , remembered_(remembered)
    , files_(document_, prompts,
             {.window = this,
              .remembered = remembered,
              .programFolder = programFolder,
              .showInformation = [this] { dialogs_->mnuInfo_Click(); }}) {
    build(programFolder);
    pic_->setDocument(&document_);
    optScreen_Click(menuScreen);
}

FrmMain::~FrmMain() {
    playing_->end();
    fraPos_->disconnect(this);  // a field that loses the focus with the widgets enters its text
    pic_->setDocument(nullptr); // the document goes before the widgets do
}

void FrmMain::optScreen_Click(int index) {
    tools_->cancelWork();
    document_.setCurrentLayout(index);
}

void FrmMain::SetCurLayout() {
    document_.setCurrentLayout(fraLayout_->current());
}

void FrmMain::setBolds() {
    views_->setBolds();
}

void FrmMain::enterPosition(PositionField field, const QString& text) {
    const OpenEdit edit(document_, stepName(step::place, document_, selection_.ids()));
    enterPositions(document_, selection_.ids(), field, coreText(text));
    views_->setCurrentSel(); // what was typed may read differently
}

void FrmMain::applyChanges() {
    const std::vector<int>& ids = selection_.ids();
    const OpenEdit edit(document_, stepName(step::apply, document_, ids));
    if (ids.size() > 1) {
        applyChanged(document_, ids, properties_->valuesBefore(), properties_->valuesNow());
        views_->showSelection();
    } else {
        updateControls(document_, selection_.curNum(), properties_->values());
    }
}

void FrmMain::load() {
    tools_->endWork();
    files_.mnuLoad_Click();
}

void FrmMain::openFolder(const QString& folder) {
    tools_->endWork();
    files_.openFolder(folder);
}

void FrmMain::saveAgain() {
    tools_->endWork();
    files_.mnuSaveAgain_Click();
}

void FrmMain::startRunsBy(std::function<bool(const QString&)> start) {
    startRun_ = std::move(start);
}

void FrmMain::newWindow(const QString& folder) {
    if (!startRun_ || !startRun_(folder)) {
        prompts_.message(this, tr("A new window cannot be opened."));
    }
}

void FrmMain::check() {
    if (frmCheck_ == nullptr) {
        frmCheck_ = new CheckWindow(
            document_, [this] { return files_.skinFolder(); }, this);
        connect(frmCheck_, &CheckWindow::chosen, this, &FrmMain::showFinding);
    }
    frmCheck_->check();
    frmCheck_->show();
    frmCheck_->raise();
    frmCheck_->activateWindow();
}

void FrmMain::playBy(PlayClock clock) {
    playing_->playBy(std::move(clock));
}

void FrmMain::showFinding(const Finding& finding) {
    if (!finding.screen || !finding.elementId) {
        return;
    }
    playing_->end();
    if (gate_->isClosed()) { // the open panel is one of the selected element
        statusBar()->showMessage(tr("Close the open panel first."));
        return;
    }
    tools_->endWork();
    const int row = document_.rowOf(*finding.screen, *finding.elementId);
    if (row < 0) {
        statusBar()->showMessage(tr("The element is no longer there."));
        return;
    }
    document_.setCurrentLayout(*finding.screen);
    selection_.select(row);
}

void FrmMain::begin(const QStringList& folders) {
    const bool isBack = offerLostWork();
    const QString work = files_.skinFolder();
    const QStringList others = isBack ? folders : folders.mid(1);
    for (const QString& folder : others) {
        if (work.isEmpty() || QDir(folder) != QDir(work)) {
            newWindow(folder);
        }
    }
    if (!isBack && !folders.isEmpty()) {
        openFolder(folders.front()); // last: it may have something to tell, and waits then
    }
}

void FrmMain::loaded(const SkinDocument& before) {
    if (const MenuSettings* last = lastMenuAfter(document_, before.lastElementId())) {
        properties_->takeMenuSettings(*last);
    }
    history_->loaded(before);
}

void FrmMain::deleteSelected() {
    tools_->cancelWork();
    commands_.mnuDelete_Click();
    pic_->setFocus(Qt::OtherFocusReason);
}

void FrmMain::popupMenu(QPoint globalPosition) {
    if (selection_.isEmpty()) {
        menus_->mnuRight2().popup(globalPosition);
        return;
    }
    menus_->mnuLocked->setChecked(document_.element(selection_.curNum()).elementLocked);
    menus_->mnuRight().popup(globalPosition);
}

bool FrmMain::event(QEvent* event) {
    // Menu entries have no hints of their own, and would only clear what the status line tells.
    return event->type() == QEvent::StatusTip || QMainWindow::event(event);
}

bool FrmMain::Form_Unload() {
    switch (prompts_.question(this, QStringLiteral("Save before exit?"))) {
    case Prompts::Answer::Cancel:
        return false;
    case Prompts::Answer::No:
        return true;
    case Prompts::Answer::Yes:
        break;
    }
    OpenEdit edit(document_, std::string(step::nameSkin));
    const auto takeBack = behaviourPanels_->storeChanged(); // it belongs to the skin
    const bool named = !document_.settings().skinName.empty();
    const auto rename = [this](std::string name) {
        document_.editSettings(
            [&](SkinSettings& settings) { settings.skinName = std::move(name); });
    };
    if (!named) {
        rename(randomSkinName());
    }
    const bool saved = files_.mnuSave_Click();
    if (!saved && !named) {
        rename({});
    }
    if (!saved && takeBack) {
        takeBack();
    }
    return saved;
}

void FrmMain::closeEvent(QCloseEvent* event) {
    playing_->end();
    event->setAccepted(Form_Unload());
    if (!event->isAccepted()) {
        return;
    }
    keepPlace(*this, remembered_);
    if (keeper_ != nullptr) {
        keeper_->endProperly();
    }
}

void FrmMain::keepWorkIn(const std::filesystem::path& folder) {
    const RecoveryKeeper::Work work{
        .document = document_,
        .selection = selection_,
        .history = history_->history(),
        .prompts = prompts_,
        .window = *this,
        .folder = [this] { return files_.skinFolder(); },
        .broughtBack =
            [this](const WorkState& state) { files_.setSkinFolder(qtText(state.folder)); }};
    keeper_ = std::make_unique<RecoveryKeeper>(work, folder);
    connect(keeper_.get(), &RecoveryKeeper::told, this,
            [this](const QString& text) { statusBar()->showMessage(text); });
}

bool FrmMain::offerLostWork() {
    return keeper_ != nullptr && keeper_->offerLost();
}

void FrmMain::keepWorkNow() {
    if (keeper_ != nullptr) {
        keeper_->keepNow();
    }
}

void FrmMain::showEvent(QShowEvent* event) {
    QMainWindow::showEvent(event);
    if (!std::exchange(wasShown_, true)) {
        // Once the window has its size, and with it the panels their places.
        QTimer::singleShot(0, this, &FrmMain::slideIn);
        pic_->setFocus(Qt::OtherFocusReason);
    }
}

void FrmMain::resizeEvent(QResizeEvent* event) {
    slide_->finish();
    QMainWindow::resizeEvent(event);
}

} // namespace tarvel
