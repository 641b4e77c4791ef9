// The main window's composition and its reactions.
#include "app/frm_main.h"

#include "app/behaviour_buttons.h"
#include "app/create_panel.h"
#include "app/elements_panel.h"
#include "app/layout_panel.h"
#include "app/main_menus.h"
#include "app/panel_slide.h"
#include "app/position_panel.h"
#include "app/prompts.h"
#include "app/text.h"
#include "app/version.h"
#include "behaviour/layout_screens.h"
#include "canvas/pic.h"
#include "dialogs/frm_info.h"

#include <QAction>
#include <QCloseEvent>
#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QRandomGenerator>
#include <QStatusBar>
#include <QTimer>
#include <QVBoxLayout>

namespace tarvel {

namespace {

constexpr auto noteText = "Note: Most TV's cut off edges of the screen, so make sure you leave some "
                          "extra room around your layout.";

// Panels that slide in keep their place in the layout while they are still hidden.
template <class Panel> Panel* sliding(Panel* panel) {
    QSizePolicy policy = panel->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    panel->setSizePolicy(policy);
    panel->setVisible(false);
    return panel;
}

std::string randomSkinName() {
    constexpr int names = 350;
    return "myskin" + std::to_string(QRandomGenerator::global()->bounded(names));
}

} // namespace

FrmMain::FrmMain(Prompts& prompts, std::filesystem::path programFolder)
    : prompts_(prompts)
    , files_(document_, prompts,
             {.window = this,
              .programFolder = std::move(programFolder),
              .showInformation = [this] { frmInfo_->exec(); }}) {
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(
        QStringLiteral(":: TARVEL %1.%2 :: by varnokelt ").arg(versionMajor).arg(versionMinor));
    setWindowIcon(QIcon(QStringLiteral(":/tarvel/tarvel.png")));
    menus_ = new MainMenus(*this);
    frmInfo_ = new FrmInfo(document_, prompts, this);
    buildCentre();
    connectMenus();
    connect(&files_, &SkinFileCommands::told, statusBar(),
            [this](const QString& text) { statusBar()->showMessage(text); });
    document_.setObserver(this);
    pic_->setDocument(&document_);
    fraLayout_->setCurrent(menuScreen);
    optScreen_Click(menuScreen);
}

FrmMain::~FrmMain() {
    document_.setObserver(nullptr);
    pic_->setDocument(nullptr); // the document goes before the widgets do
}

void FrmMain::buildCentre() {
    auto* centre = new QWidget;
    auto* columns = new QHBoxLayout(centre);
    columns->addWidget(buildLeftSide());
    columns->addWidget(buildRightSide(), 1);
    setCentralWidget(centre);
    slide_ = new PanelSlide(this);
}

QWidget* FrmMain::buildLeftSide() {
    auto* side = new QWidget;
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);

    auto* frame = new QFrame;
    frame->setFrameStyle(static_cast<int>(QFrame::Box) | static_cast<int>(QFrame::Plain));
    auto* inside = new QVBoxLayout(frame);
    inside->setContentsMargins(0, 0, 0, 0);
    pic_ = new Pic(pictures_);
    inside->addWidget(pic_);
    surface_ = sliding(frame);

    lblPos_ = new QLabel(QStringLiteral("X: 0 Y: 0"));
    lblPos_->setObjectName(QStringLiteral("lblPos"));
    lblPos_->setAccessibleName(tr("Position of the pointer"));
    connect(pic_, &Pic::pointerMoved, this, [this](QPointF point) {
        lblPos_->setText(QStringLiteral("X: %1    Y: %2").arg(point.x()).arg(point.y()));
    });

    fraCreate_ = sliding(new CreatePanel);
    fraCreate_->setEnabled(false); // there is nothing yet to draw with
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
    behaviours_ = new BehaviourButtons({menus_->entry(QStringLiteral("mnuModifier(0)")),
                                        menus_->entry(QStringLiteral("mnuModifier(1)")),
                                        menus_->entry(QStringLiteral("mnuModifier(2)"))});
    behaviours_->setEnabled(false);
    auto* cmdStop = new QPushButton(QStringLiteral("Stop Vids"));
    cmdStop->setObjectName(QStringLiteral("cmdStop"));
    cmdStop->setAccessibleName(tr("Stop the videos of this screen"));
    connect(cmdStop, &QPushButton::clicked, pic_, &Pic::stopAllVids);
    connect(fraLayout_, &LayoutPanel::screenClicked, this, &FrmMain::optScreen_Click);
    connect(fraElements_, &ElementsPanel::listIndexChanged, this, &FrmMain::showSelection);

    auto* top = new QHBoxLayout;
    top->addWidget(fraLayout_);
    top->addWidget(fraElements_, 1);
    auto* bottom = new QHBoxLayout;
    bottom->addWidget(behaviours_, 1);
    bottom->addWidget(cmdStop);
    column->addLayout(top, 1);
    column->addWidget(fraPos_);
    column->addLayout(bottom);
    side->setMinimumWidth(380);
    return side;
}

void FrmMain::connectMenus() {
    const auto on = [this](const char* name, auto&& handler) {
        connect(menus_->entry(QLatin1String(name)), &QAction::triggered, this, handler);
    };
    on("mnuSave", [this] { files_.mnuSave_Click(); });
    on("mnuLoad", [this] { files_.mnuLoad_Click(); });
    on("mnuView", [this] { files_.mnuView_Click(); });
    on("mnuLoadBg", [this] { files_.mnuLoadBg_Click(); });
    on("mnuUnloadBg", [this] { files_.mnuUnloadBg_Click(); });
    on("mnuInfo", [this] { frmInfo_->exec(); });
    for (const char* name : {"mnuDelays", "mnuColors", "mnuAudio", "mnuResource"}) {
        menus_->entry(QLatin1String(name))->setEnabled(false);
    }
}

void FrmMain::optScreen_Click(int index) {
    document_.setCurrentLayout(index);
}

void FrmMain::SetCurLayout() {
    document_.setCurrentLayout(fraLayout_->current());
}

void FrmMain::setLayoutBolds() {
    fraLayout_->setLayoutBolds(document_);
}

void FrmMain::setBolds() {
    behaviours_->setBolds(behaviourMarks(document_.element(curNum())));
}

int FrmMain::curNum() const {
    const int screen = document_.currentLayout();
    const int row = fraElements_->listIndex(screen);
    return row < 0 ? 0 : document_.itemData(screen, row);
}

void FrmMain::documentChanged(const DocumentChange& change) {
    fraElements_->documentChanged(change);
    pic_->documentChanged(change);
    switch (change.what) {
    case DocumentChange::What::everything:
    case DocumentChange::What::currentLayout:
        showCurrentLayout();
        break;
    case DocumentChange::What::counts:
        setLayoutBolds();
        break;
    case DocumentChange::What::rows:
    case DocumentChange::What::element:
        showSelection();
        break;
    default:
        break;
    }
}

void FrmMain::showCurrentLayout() {
    const int screen = document_.currentLayout();
    fraLayout_->setCurrent(screen);
    fraElements_->setListIndex(screen, -1);
    fraElements_->showScreen(screen);
    setLayoutBolds();
    showSelection();
}

void FrmMain::showSelection() {
    const int id = curNum();
    if (id == 0) {
        fraPos_->clear();
    } else if (document_.element(id).elementKind == ElementKind::Line) {
        fraPos_->setPosLine(document_.element(id).elementControl);
    } else {
        fraPos_->setPos(document_.element(id).elementControl);
    }
    setBolds();
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
    return saved;
}

void FrmMain::closeEvent(QCloseEvent* event) {
    event->setAccepted(Form_Unload());
}

void FrmMain::showEvent(QShowEvent* event) {
    QMainWindow::showEvent(event);
    if (!slidIn_) {
        slidIn_ = true;
        // Once the window has its size, and with it the panels their places.
        QTimer::singleShot(0, this, &FrmMain::slideIn);
    }
}

void FrmMain::resizeEvent(QResizeEvent* event) {
    slide_->finish();
    QMainWindow::resizeEvent(event);
}

void FrmMain::slideIn() {
    for (QWidget* panel : {surface_, fraNote_, static_cast<QWidget*>(fraCreate_)}) {
        slide_->movetoX(panel, true);
    }
    for (QWidget* panel : {static_cast<QWidget*>(fraLayout_), static_cast<QWidget*>(fraElements_),
                           static_cast<QWidget*>(fraPos_)}) {
        slide_->movetoX(panel, false);
    }
    slide_->start();
}

} // namespace tarvel
