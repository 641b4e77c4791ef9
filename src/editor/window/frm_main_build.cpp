// What the main window consists of, and what is connected to what.
#include "editing/element_update.h"
#include "editing/manipulation.h"
#include "editing/panel_texts.h"
#include "panels/behaviour_buttons.h"
#include "panels/create_panel.h"
#include "panels/elements_panel.h"
#include "panels/layout_panel.h"
#include "panels/position_panel.h"
#include "panels/property_panel.h"
#include "skinfile/version.h"
#include "surface/locked_ground.h"
#include "surface/pic.h"
#include "surface/picture_watch.h"
#include "surface/selection_marks.h"
#include "surface/surface_controller.h"
#include "surface/surface_cover.h"
#include "widgets/focus_frame.h"
#include "widgets/panel_slide.h"
#include "widgets/qt_text.h"
#include "window/behaviour_panels.h"
#include "window/frm_main.h"
#include "window/main_menus.h"
#include "window/skin_dialogs.h"
#include "window/window_gate.h"

#include <QAction>
#include <QLabel>
#include <QPushButton>
#include <QStatusBar>
#include <QVBoxLayout>

#include <cmath>

namespace tarvel {

namespace {

constexpr auto stopName = "cmdStop";
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

} // namespace

void FrmMain::build(const std::filesystem::path& programFolder) {
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(
        QStringLiteral(":: TARVEL %1.%2 :: by varnokelt ").arg(versionMajor).arg(versionMinor));
    setWindowIcon(QIcon(QStringLiteral(":/tarvel/tarvel.png")));
    menus_ = new MainMenus(*this);
    gate_ = new WindowGate(*this);
    slide_ = new PanelSlide(this);
    dialogs_ = std::make_unique<SkinDialogs>(document_, prompts_, pictures_, this);

    auto* centre = new QWidget;
    auto* columns = new QHBoxLayout(centre);
    QWidget* left = buildLeftSide();
    QWidget* right = buildRightSide();
    // The tab order is that of coming in: screens, elements and panels, then surface and tools.
    columns->addWidget(right, 1);
    columns->insertWidget(0, left);
    setCentralWidget(centre);
    auto* floor = right->findChild<QWidget*>(QLatin1String(stopName));
    behaviourPanels_ =
        new BehaviourPanels(document_, prompts_, *gate_,
                            {.side = *right, .roof = *fraPos_, .floor = *floor}, programFolder);

    connectSurface();
    connectPanels();
    connectMenus();
    watchPictures();
}

QWidget* FrmMain::buildSurface() {
    pic_ = new Pic(pictures_);
    auto* frame = new FocusFrame(*pic_);
    marks_ = new SelectionMarks(*pic_);
    ToolHost& host = *this;
    controller_ = std::make_unique<SurfaceController>(*pic_, host, *marks_);
    cover_ = std::make_unique<SurfaceCover>(*pic_);
    ground_ = std::make_unique<LockedGround>(document_, *pic_);
    return frame;
}

QWidget* FrmMain::buildLeftSide() {
    auto* side = new QWidget;
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);
    surface_ = sliding(buildSurface());

    lblPos_ = new QLabel(QStringLiteral("X: 0 Y: 0"));
    lblPos_->setObjectName(QStringLiteral("lblPos"));
    lblPos_->setAccessibleName(tr("Position of the pointer"));
    fraCreate_ = sliding(new CreatePanel);
    auto* note = new QLabel(QLatin1String(noteText));
    note->setObjectName(QStringLiteral("fraNote"));
    note->setWordWrap(true);
    fraNote_ = sliding(note);

    column->addWidget(surface_, 0, Qt::AlignLeft);
    column->addWidget(lblPos_);
    column->addWidget(fraCreate_);
    column->addWidget(fraNote_);
    column->addStretch();
    return side;
}

QWidget* FrmMain::buildRightSide() {
    auto* side = new QWidget;
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);

    fraLayout_ = sliding(new LayoutPanel);
    fraElements_ = sliding(new ElementsPanel(document_));
    fraPos_ = sliding(new PositionPanel);
    properties_ = sliding(new PropertyPanel(document_, prompts_, pictures_));
    behaviours_ = sliding(new BehaviourButtons({menus_->entry(QStringLiteral("mnuModifier(0)")),
                                                menus_->entry(QStringLiteral("mnuModifier(1)")),
                                                menus_->entry(QStringLiteral("mnuModifier(2)"))}));
    auto* cmdStop = new QPushButton(qtText(caption::cmdStop));
    cmdStop->setObjectName(QLatin1String(stopName));
    cmdStop->setAccessibleName(tr("Stop the videos of this screen"));
    connect(cmdStop, &QPushButton::clicked, pic_, &Pic::stopAllVids);
    connect(cmdStop, &QPushButton::clicked, properties_, &PropertyPanel::stopPreview);
    // Saving is in the menu; this button does nothing and is not shown.
    auto* cmdSave = new QPushButton(side);
    cmdSave->setObjectName(QStringLiteral("cmdSave"));
    cmdSave->setVisible(false);

    auto* top = new QHBoxLayout;
    top->addWidget(fraLayout_);
    top->addWidget(fraElements_, 1);
    column->addLayout(top, 1);
    column->addWidget(fraPos_);
    column->addWidget(behaviours_);
    column->addWidget(properties_);
    properties_->addBeside(cmdStop);
    side->setMinimumWidth(450);
    return side;
}

void FrmMain::connectSurface() {
    connect(pic_, &Pic::pointerMoved, this, [this](QPointF point) {
        lblPos_->setText(qtText(readoutText({static_cast<float>(std::floor(point.x())),
                                             static_cast<float>(std::floor(point.y()))})));
    });
    connect(controller_.get(), &SurfaceController::pressed, properties_,
            &PropertyPanel::stopPreview);
    connect(controller_.get(), &SurfaceController::aboutToDraw, this, &FrmMain::refuseInvalid);
    connect(controller_.get(), &SurfaceController::menuWanted, this, &FrmMain::popupMenu);
    connect(controller_.get(), &SurfaceController::toolGivenUp, this, [this] {
        if (fraCreate_->tool()) {
            drawingEnded();
        }
    });
    connect(controller_.get(), &SurfaceController::fileDropped, this,
            [this](const QString& file) { dialogs_->addResource(file); });
    connect(cover_.get(), &SurfaceCover::aboutToCover, marks_, &SelectionMarks::hideSels);
}

void FrmMain::connectPanels() {
    connect(fraLayout_, &LayoutPanel::screenClicked, this, &FrmMain::optScreen_Click);
    connect(fraElements_, &ElementsPanel::listIndexChanged, this, [this](int screen) {
        if (screen != document_.currentLayout()) {
            return;
        }
        // Panel and tool are of one kind. What is being drawn is selected too, and keeps its tool.
        if (selectedRow() >= 0 && fraCreate_->tool() && !controller_->isMaking()) {
            drawingEnded();
        } else {
            showSelection();
        }
    });
    connect(fraElements_, &ElementsPanel::menuWanted, this, &FrmMain::popupMenu);
    connect(fraCreate_, &CreatePanel::toolChosen, this, [this](std::optional<ElementKind> kind) {
        chooseTool(kind);
        if (!kind) {
            showSelection();
        }
    });
    connect(fraPos_, &PositionPanel::entered, this,
            [this](PositionField field, const QString& text) {
                enterPosition(document_, curNum(), field, coreText(text));
                setCurrentSel(); // what was typed may read differently
            });
    connect(properties_, &PropertyPanel::applyClicked, this,
            [this] { updateControls(document_, curNum(), properties_->values()); });
    connect(properties_, &PropertyPanel::addResourceClicked, this,
            [this] { dialogs_->mnuResource_Click(); });
    connect(behaviours_, &BehaviourButtons::cmdModifier_Click, this,
            [this](int index) { behaviourPanels_->cmdModifier_Click(index, curNum()); });
    connect(behaviourPanels_, &BehaviourPanels::closed, this, &FrmMain::setBolds);
    connect(&files_, &SkinFileCommands::told, statusBar(),
            [this](const QString& text) { statusBar()->showMessage(text); });
}

void FrmMain::connectMenus() {
    const auto on = [this](const char* name, auto&& handler) {
        connect(menus_->entry(QLatin1String(name)), &QAction::triggered, this, handler);
    };
    on("mnuSave", [this] { files_.mnuSave_Click(); });
    on("mnuLoad", [this] { files_.mnuLoad_Click(); });
    on("mnuView", [this] { files_.mnuView_Click(); });
    on("mnuDelays", [this] { dialogs_->mnuDelays_Click(); });
    on("mnuInfo", [this] { dialogs_->mnuInfo_Click(); });
    on("mnuColors", [this] { dialogs_->mnuColors_Click(); });
    on("mnuAudio", [this] { dialogs_->mnuAudio_Click(); });
    on("mnuResource", [this] { dialogs_->mnuResource_Click(); });
    on("mnuLoadBg", [this] { files_.mnuLoadBg_Click(); });
    on("mnuUnloadBg", [this] { files_.mnuUnloadBg_Click(); });
    on("mnuFront", [this] { commands_.mnuFront_Click(); });
    on("mnuBack", [this] { commands_.mnuBack_Click(); });
    on("mnuForward", [this] { commands_.mnuForward_Click(); });
    on("mnuBackward", [this] { commands_.mnuBackward_Click(); });
    on("mnuDeSel", [this] { commands_.mnuDeSel_Click(); });
    on("mnuLocked", [this] { commands_.mnuLocked_Click(); });
    on("mnuUnlock", [this] { commands_.mnuUnlock_Click(); });
    on("mnuDelete", [this] { commands_.mnuDelete_Click(); });
}

void FrmMain::watchPictures() {
    watch_ = std::make_unique<PictureWatch>(pictures_, *this);
    auto* watch = watch_.get();
    connect(&files_, &SkinFileCommands::told, watch, &PictureWatch::look); // a skin was loaded
    connect(watch, &PictureWatch::changed, this,
            [this] { ground_->documentChanged({DocumentChange::What::settings}); });
}

void FrmMain::slideIn() {
    for (QWidget* panel : {surface_, fraNote_, static_cast<QWidget*>(fraCreate_)}) {
        slide_->movetoX(panel, true);
    }
    for (QWidget* panel : {static_cast<QWidget*>(fraLayout_), static_cast<QWidget*>(fraElements_),
                           static_cast<QWidget*>(fraPos_), static_cast<QWidget*>(behaviours_),
                           static_cast<QWidget*>(properties_)}) {
        slide_->movetoX(panel, false);
    }
    slide_->start();
}

} // namespace tarvel
