// Builds the main window's parts, and connects them to each other.
#include "document/kinds/panel_texts.h"
#include "editing/manipulation.h"
#include "panels/behaviour_buttons.h"
#include "panels/create_panel.h"
#include "panels/elements_panel.h"
#include "panels/layout_panel.h"
#include "panels/play_panel.h"
#include "panels/position_panel.h"
#include "panels/property_panel.h"
#include "panels/time_panel.h"
#include "skinfile/version.h"
#include "surface/hover_mark.h"
#include "surface/locked_ground.h"
#include "surface/pic.h"
#include "surface/picture_watch.h"
#include "surface/selection_marks.h"
#include "surface/surface_controller.h"
#include "surface/surface_pan.h"
#include "surface/surface_room.h"
#include "widgets/accessible_roles.h"
#include "widgets/content_scroll.h"
#include "widgets/control_names.h"
#include "widgets/icons.h"
#include "widgets/mnemonics.h"
#include "widgets/panel_slide.h"
#include "widgets/qt_text.h"
#include "widgets/skin_fonts.h"
#include "widgets/tool_tips.h"
#include "widgets/turning_layout.h"
#include "window/arrange_commands.h"
#include "window/behaviour_panels.h"
#include "window/change_teller.h"
#include "window/clipboard_commands.h"
#include "window/control_tips.h"
#include "window/element_walk.h"
#include "window/focus_round.h"
#include "window/frm_main.h"
#include "window/help_windows.h"
#include "window/main_menus.h"
#include "window/menu_icons.h"
#include "window/play_commands.h"
#include "window/recent_menu.h"
#include "window/recovery_keeper.h"
#include "window/selection_views.h"
#include "window/side_column.h"
#include "window/skin_dialogs.h"
#include "window/skin_status.h"
#include "window/snap_choice.h"
#include "window/style_choice.h"
#include "window/tool_choice.h"
#include "window/window_columns.h"
#include "window/window_gate.h"
#include "window/window_keys.h"
#include "window/window_mnemonics.h"
#include "window/work_history.h"
#include "window/zoom_choice.h"

#include <QAction>
#include <QDesktopServices>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSizeGrip>
#include <QStatusBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <initializer_list>
#include <utility>

namespace tarvel {

namespace {

constexpr auto noteText =
    "Note: Most TV's cut off edges of the screen, so make sure you leave some "
    "extra room around your layout.";

// Panels that slide in keep their place in the layout while they are still hidden.
template <class Panel> Panel* sliding(Panel* panel) {
    QSizePolicy policy = panel->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    panel->setSizePolicy(policy);
    panel->setVisible(false);
    return panel;
}

// Asks for the height that its texts take when they are broken at its width: the screen is not to
// make room for them.
class LeftColumn : public QWidget {
  public:
    [[nodiscard]] QSize sizeHint() const override {
        const QSize size = QWidget::sizeHint();
        return {size.width(), std::max(size.height(), heightForWidth(size.width()))};
    }
};

} // namespace

void FrmMain::build(const std::filesystem::path& programFolder) {
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(
        QStringLiteral(":: TARVEL %1.%2 :: by varnokelt ").arg(versionMajor).arg(versionMinor));
    setWindowIcon(programIcon());
    makeSkinFontsKnown();
    style_ = std::make_unique<StyleChoice>(remembered_);
    menus_ = std::make_unique<MainMenus>(*this);
    style_->offer(*menus_->mnuSystemStyle);
    gate_ = new WindowGate(*this);
    slide_ = new PanelSlide(this);
    dialogs_ = std::make_unique<SkinDialogs>(document_, prompts_, pictures_, this);

    auto* centre = new QWidget;
    auto* content = new QVBoxLayout(centre);
    auto* columns = new WindowColumns(remembered_);
    content->addWidget(columns);
    QWidget* left = buildLeftSide();
    QWidget* right = buildRightSide();
    columns->setColumns(left, right, surface_);
    setCentralWidget(centre);
    const SideRoom room{.side = *right, .roof = *fraPos_, .floor = *cmdStop_};
    behaviourPanels_ =
        new BehaviourPanels(document_, prompts_, *gate_, room, *centre, programFolder);
    buildReactions();
    buildHistory();
    buildStatus();
    connectPanels();
    connectMenus();
    buildEditCommands();
    watchPictures();
    buildPlaying(room, *centre, programFolder);
    buildKeyboard();
    setMenuIcons(*this);
    setControlTips(*this);
    new ToolTips(*this); // NOLINT: the window owns it
    resize(sizeHint());  // now that all parts can tell theirs
}

SurfaceRoom* FrmMain::buildSurface() {
    pic_ = new Pic(pictures_);
    auto* room = new SurfaceRoom(*pic_);
    marks_ = new SelectionMarks(*pic_);
    return room;
}

// Where the pointer is, how large the screen, and what lets it play.
QWidget* FrmMain::buildReadout() {
    auto* readout = new QWidget;
    auto* row = new QHBoxLayout(readout);
    row->setContentsMargins(0, 0, 0, 0);
    lblPos_ = new QLabel(qtText(initialReadout));
    lblPos_->setObjectName(QStringLiteral("lblPos"));
    lblPos_->setAccessibleDescription(tr("Position of the pointer")); // its text is its name
    cmdZoom_ = named(new QToolButton, QStringLiteral("cmdZoom"), tr("Zoom"));
    cmdZoom_->setToolTip(tr("Zoom: Ctrl and the wheel, Ctrl+Plus, Ctrl+Minus"));
    cmdZoom_->setPopupMode(QToolButton::InstantPopup);
    cmdZoom_->setAutoRaise(true);
    cmdZoom_->setFocusPolicy(Qt::NoFocus); // its entries are in the menu "Options", too
    cmdPlay_ = named(new QToolButton, QStringLiteral("cmdPlayScreen"), tr("Play"));
    cmdPlay_->setText(tr("Play"));
    cmdPlay_->setIcon(icon(IconName::play));
    cmdPlay_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    cmdPlay_->setToolTip(tr("Play this screen: what its elements do in time (F5)"));
    cmdPlay_->setAutoRaise(true);
    cmdPlay_->setFocusPolicy(Qt::NoFocus); // it is in the menu "Skin", too
    row->addWidget(lblPos_, 1);
    row->addWidget(cmdPlay_);
    row->addWidget(cmdZoom_);
    return readout;
}

QWidget* FrmMain::buildLeftSide() {
    auto* side = new LeftColumn;
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);
    surface_ = sliding(buildSurface());

    QWidget* readout = buildReadout();
    fraPlay_ = new PlayPanel;
    fraCreate_ = sliding(new CreatePanel);
    auto* note = new QLabel(QLatin1String(noteText));
    note->setObjectName(QStringLiteral("fraNote"));
    note->setWordWrap(true);
    fraNote_ = sliding(note);

    column->addWidget(surface_, 1);
    column->addWidget(readout);
    column->addWidget(fraPlay_);
    column->addWidget(fraCreate_);
    column->addWidget(fraNote_);
    return side;
}

QWidget* FrmMain::buildRightSide() {
    auto* panels = new ContentScroll(new QWidget, ContentScroll::Ways::down);
    buildPanels(*panels->widget());
    cmdStop_ = buildStopButton();
    properties_->addBeside(cmdStop_);
    auto* side = new SideColumn(panels, sliding(properties_->commands()), properties_->pages());
    // Saving is in the menu; this button does nothing and is not shown.
    auto* cmdSave = new QPushButton(side);
    cmdSave->setObjectName(QStringLiteral("cmdSave"));
    cmdSave->setVisible(false);
    return side;
}

void FrmMain::buildPanels(QWidget& panels) {
    auto* column = new QVBoxLayout(&panels);
    column->setContentsMargins(0, 0, 0, 0);
    fraLayout_ = sliding(new LayoutPanel(document_));
    fraElements_ = sliding(new ElementsPanel(document_, selection_, pictures_));
    fraPos_ = sliding(new PositionPanel);
    properties_ = sliding(new PropertyPanel(document_, prompts_, pictures_));
    behaviours_ = sliding(new BehaviourButtons(menus_->mnuModifier()));
    column->addLayout(new TurningLayout(fraLayout_, fraElements_), 1);
    column->addWidget(fraPos_);
    column->addWidget(behaviours_);
    column->addWidget(properties_);
}

QWidget* FrmMain::buildStopButton() {
    auto* cmdStop = named(new QPushButton(qtText(caption::stopVideos)), QStringLiteral("cmdStop"),
                          tr("Stop Vids: stop the videos of this screen"));
    connect(cmdStop, &QPushButton::clicked, pic_, &Pic::stopAllVids);
    connect(cmdStop, &QPushButton::clicked, properties_, &PropertyPanel::stopPreview);
    return cmdStop;
}

// Whoever is told of changes is told in the order of its making: the selection first, then lists
// and panels, tools, the marks and fields, and the ground of locked elements; the surface is last.
void FrmMain::buildReactions() {
    tools_ = std::make_unique<ToolChoice>(ToolChoice::Parts{.document = document_,
                                                            .selection = selection_,
                                                            .surface = *pic_,
                                                            .marks = *marks_,
                                                            .tools = *fraCreate_,
                                                            .properties = *properties_,
                                                            .pictures = pictures_,
                                                            .prompts = prompts_});
    views_ = std::make_unique<SelectionViews>(document_, selection_,
                                              SelectionViews::Views{.marks = *marks_,
                                                                    .room = *surface_,
                                                                    .position = *fraPos_,
                                                                    .behaviours = *behaviours_,
                                                                    .properties = *properties_,
                                                                    .tools = *fraCreate_});
    tools_->setViews(*views_);
    changes_ = std::make_unique<ChangeTeller>(
        document_, [this](const std::string& change) { statusBar()->showMessage(qtText(change)); });
    ground_ = std::make_unique<LockedGround>(document_, *pic_);
    keys_ = std::make_unique<WindowKeys>(
        *this, [this] { return !gate_->isClosed(); },
        std::vector<WindowKeys::Key>{
            {Qt::Key_Escape, [this] { return zoom_->pan().isPanning(); },
             [this] { zoom_->pan().cancel(); }},
            {Qt::Key_Escape, [this] { return fraElements_->isDragging(); },
             [this] { fraElements_->cancelDrag(); }},
            {Qt::Key_Escape, [this] { return tools_->isBusy(); }, [this] { tools_->giveUp(); }},
            {Qt::Key_Escape, [this] { return fraElements_->isAncestorOf(focusWidget()); },
             [this] { selection_.clear(); }},
            {Qt::Key_Delete, [this] { return !selection_.isEmpty(); },
             [this] { deleteSelected(); }}});
}

void FrmMain::buildHistory() {
    history_ = std::make_unique<WorkHistory>(
        WorkHistory::Parts{.document = document_,
                           .selection = selection_,
                           .properties = *properties_,
                           .marks = *marks_,
                           .undo = *menus_->mnuUndo,
                           .redo = *menus_->mnuRedo,
                           .isOpen = [this] { return !gate_->isClosed(); }});
    auto* history = history_.get();
    connect(history, &WorkHistory::told, this,
            [this](const QString& text) { statusBar()->showMessage(text); });
    connect(gate_, &WindowGate::changed, history, &WorkHistory::refresh);
    connect(&files_, &SkinFileCommands::saved, history,
            [history] { history->history().markSaved(); });
    connect(&files_, &SkinFileCommands::loaded, this, &FrmMain::loaded);
    connect(history, &WorkHistory::loadUndone, &files_, &SkinFileCommands::loadUndone);
    connect(history, &WorkHistory::loadRedone, &files_, &SkinFileCommands::loadRedone);
}

void FrmMain::buildStatus() {
    status_ = std::make_unique<SkinStatus>(document_, *statusBar());
    for (auto* grip : statusBar()->findChildren<QSizeGrip*>()) {
        beHandle(*grip); // before its name is told
        named(grip, QStringLiteral("sizeGrip"), tr("Size of the window"));
    }
    connect(history_.get(), &WorkHistory::changed, status_.get(),
            [this] { status_->setUnsaved(history_->history().isChanged()); });
    connect(&files_, &SkinFileCommands::skinFolderChanged, status_.get(),
            [this] { status_->setFolder(files_.skinFolder()); });
}

void FrmMain::connectPanels() {
    connect(pic_, &Pic::pointerMoved, this,
            [this](QPointF point) { lblPos_->setText(qtText(readoutText(pixelOf(point)))); });
    SurfaceController& controller = tools_->controller();
    snapping_ =
        std::make_unique<SnapChoice>(*menuBar()->findChild<QMenu*>("mnuOptions"),
                                     *menus_->mnuSnapElements, *menus_->mnuSnapGrid, remembered_);
    controller.setSnapping(snapping_->options());
    connect(snapping_.get(), &SnapChoice::changed, &controller, &SurfaceController::setSnapping);
    zoom_ = std::make_unique<ZoomChoice>(
        ZoomChoice::Parts{.menu = *menuBar()->findChild<QMenu*>("mnuOptions"),
                          .before = *menus_->mnuSystemStyle,
                          .display = *cmdZoom_,
                          .room = *surface_,
                          .surface = *pic_,
                          .controller = controller,
                          .remembered = remembered_});
    connect(&zoom_->pan(), &SurfacePan::clicked, this, [this] { selection_.clear(); });
    connect(&controller, &SurfaceController::menuWanted, this, &FrmMain::popupMenu);
    connect(&controller, &SurfaceController::fileDropped, this,
            [this](const QString& file) { dialogs_->addResource(file); });
    connect(fraLayout_, &LayoutPanel::screenClicked, this, &FrmMain::optScreen_Click);
    connect(fraElements_, &ElementsPanel::menuWanted, this, &FrmMain::popupMenu);
    connect(fraPos_, &PositionPanel::entered, this, &FrmMain::enterPosition);
    connect(properties_, &PropertyPanel::changed, this, [this] { views_->showDifference(); });
    connect(properties_, &PropertyPanel::applyClicked, this, &FrmMain::applyChanges);
    connect(properties_, &PropertyPanel::addResourceClicked, this,
            [this] { dialogs_->mnuResource_Click(); });
    connect(behaviours_, &BehaviourButtons::cmdModifier_Click, this,
            [this](int index) { behaviourPanels_->cmdModifier_Click(index, selection_.ids()); });
    connect(behaviourPanels_, &BehaviourPanels::closed, this, &FrmMain::setBolds);
    connect(&files_, &SkinFileCommands::told, statusBar(),
            [this](const QString& text) { statusBar()->showMessage(text); });
}

void FrmMain::connectMenus() {
    const auto on = [this](QAction* entry, auto&& handler) {
        connect(entry, &QAction::triggered, this, handler);
    };
    on(menus_->mnuSave, [this] { files_.mnuSave_Click(); });
    on(menus_->mnuLoad, [this] { load(); });
    on(menus_->mnuNewWindow, [this] { newWindow({}); });
    on(menus_->mnuSaveAgain, [this] { saveAgain(); });
    on(menus_->mnuCheck, [this] { check(); });
    recent_ = std::make_unique<RecentMenu>(*menus_->mnuRecent->menu(), remembered_,
                                           [this](const QString& folder) { openFolder(folder); });
    on(menus_->mnuView, [this] { files_.mnuView_Click(); });
    on(menus_->mnuDelays, [this] { dialogs_->mnuDelays_Click(); });
    on(menus_->mnuInfo, [this] { dialogs_->mnuInfo_Click(); });
    on(menus_->mnuColors, [this] { dialogs_->mnuColors_Click(); });
    on(menus_->mnuAudio, [this] { dialogs_->mnuAudio_Click(); });
    on(menus_->mnuResource, [this] { dialogs_->mnuResource_Click(); });
    on(menus_->mnuLoadBg, [this] { files_.mnuLoadBg_Click(); });
    on(menus_->mnuUnloadBg, [this] { files_.mnuUnloadBg_Click(); });
    on(menus_->mnuFront, [this] { commands_.mnuFront_Click(); });
    on(menus_->mnuBack, [this] { commands_.mnuBack_Click(); });
    on(menus_->mnuForward, [this] { commands_.mnuForward_Click(); });
    on(menus_->mnuBackward, [this] { commands_.mnuBackward_Click(); });
    on(menus_->mnuDeSel, [this] { commands_.mnuDeSel_Click(); });
    on(menus_->mnuLocked, [this] {
        commands_.mnuLocked_Click();
        views_->hideMarks(); // what is locked is a part of the ground now
    });
    on(menus_->mnuUnlock, [this] { commands_.mnuUnlock_Click(); });
    on(menus_->mnuDelete, [this] { deleteSelected(); });
}

void FrmMain::buildEditCommands() {
    clipboard_ = std::make_unique<ClipboardCommands>(
        ClipboardCommands::Parts{.document = document_,
                                 .selection = selection_,
                                 .gate = *gate_,
                                 .pictures = pictures_,
                                 .entries = {.cut = *menus_->mnuCut,
                                             .copy = *menus_->mnuCopy,
                                             .paste = *menus_->mnuPaste,
                                             .duplicate = *menus_->mnuDuplicate,
                                             .deleteSelected = *menus_->mnuDeleteSelected,
                                             .selectAll = *menus_->mnuSelectAll},
                                 .panelValues = [this] { return properties_->values(); },
                                 .skinFolder = [this] { return files_.skinFolder(); }});
    auto* clipboard = clipboard_.get();
    connect(menus_->mnuDeleteSelected, &QAction::triggered, this, &FrmMain::deleteSelected);
    connect(clipboard, &ClipboardCommands::told, this,
            [this](const QString& text) { statusBar()->showMessage(text); });
    connect(clipboard, &ClipboardCommands::filePasted, this,
            [this](const QString& file) { dialogs_->addResource(file); });
    arranging_ = std::make_unique<ArrangeCommands>(ArrangeCommands::Parts{
        .document = document_,
        .selection = selection_,
        .gate = *gate_,
        .menu = menus_->mnuArrange(),
        .stacking = {menus_->mnuFront, menus_->mnuBack, menus_->mnuForward, menus_->mnuBackward},
        .lock = *menus_->mnuLocked});
    connect(fraElements_, &ElementsPanel::rowsDropped, arranging_.get(), &ArrangeCommands::reorder);
    auto* hoverMark = new HoverMark(*pic_);
    connect(&tools_->controller(), &SurfaceController::rowHovered, fraElements_,
            &ElementsPanel::markRow);
    connect(fraElements_, &ElementsPanel::elementHovered, hoverMark,
            [this, hoverMark](int elementId) { hoverMark->mark(document_, elementId); });
}

void FrmMain::buildPlaying(const SideRoom& side, QWidget& ground,
                           const std::filesystem::path& programFolder) {
    fraTime_ = new TimePanel(&ground);
    playing_ = std::make_unique<PlayCommands>(PlayCommands::Parts{
        .window = *this,
        .document = document_,
        .surface = *pic_,
        .room = *surface_,
        .strip = *fraPlay_,
        .time = *fraTime_,
        .side = side,
        .ground = ground,
        .gate = *gate_,
        .play = *menus_->mnuPlay,
        .playSkin = *menus_->mnuPlaySkin,
        .button = *cmdPlay_,
        .covered = {fraCreate_, fraNote_},
        .usable = {cmdStop_},
        .endWork =
            [this] {
                slideIn();
                slide_->finish();
                tools_->endWork();
            },
        .catalogue =
            [programFolder] { return ModifierCatalogue::read(catalogueFile(programFolder)); }});
}

// Help, and the ways around the window without a pointer. Letters come last: they need every
// caption.
void FrmMain::buildKeyboard() {
    auto* help = new HelpWindows(*this, [](const QUrl& link) { QDesktopServices::openUrl(link); });
    connect(menus_->mnuGuide, &QAction::triggered, help, [help] { help->showGuide(); });
    connect(menus_->mnuKeys, &QAction::triggered, help, &HelpWindows::showKeys);
    connect(menus_->mnuAbout, &QAction::triggered, help, &HelpWindows::showAbout);
    new ElementWalk(*pic_, document_, selection_, [this] {
        if (tools_->controller().isWorking()) {
            return ElementWalk::Hand::holding;
        }
        return tools_->isBusy() ? ElementWalk::Hand::drawing : ElementWalk::Hand::free;
    });
    FocusRound::Part panel = behaviourPanels_->panels();
    panel.insert(panel.end(),
                 {fraTime_, fraPos_, behaviours_, properties_, properties_->commands()});
    new FocusRound(*this, {{pic_}, {fraElements_, fraLayout_}, panel, {fraCreate_, fraPlay_}});
    giveWindowMnemonics(*this);
    new MnemonicKeeper(this);
}

void FrmMain::watchPictures() {
    watch_ = std::make_unique<PictureWatch>(pictures_, *this);
    auto* watch = watch_.get();
    connect(&files_, &SkinFileCommands::told, watch, &PictureWatch::look); // a skin was loaded
    connect(watch, &PictureWatch::changed, this, [this] { ground_->picturesChanged(); });
    connect(watch, &PictureWatch::changed, fraElements_, &ElementsPanel::picturesChanged);
}

void FrmMain::slideIn() {
    if (std::exchange(hasSlidIn_, true)) {
        return;
    }
    for (QWidget* panel : std::initializer_list<QWidget*>{surface_, fraNote_, fraCreate_}) {
        slide_->movetoX(panel, true);
    }
    for (QWidget* panel :
         std::initializer_list<QWidget*>{fraLayout_, fraElements_, fraPos_, behaviours_,
                                         properties_, properties_->commands()}) {
        slide_->movetoX(panel, false);
    }
    slide_->start();
}

} // namespace tarvel
