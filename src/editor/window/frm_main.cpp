// The main window's reactions; its composition is in frm_main_build.cpp.
#include "window/frm_main.h"

#include "document/layout_screens.h"
#include "editing/panel_check.h"
#include "panels/behaviour_buttons.h"
#include "panels/create_panel.h"
#include "panels/elements_panel.h"
#include "panels/layout_panel.h"
#include "panels/position_panel.h"
#include "panels/property_panel.h"
#include "surface/locked_ground.h"
#include "surface/pic.h"
#include "surface/picture_watch.h"
#include "surface/selection_marks.h"
#include "surface/surface_controller.h"
#include "surface/surface_cover.h"
#include "widgets/panel_slide.h"
#include "widgets/prompts.h"
#include "widgets/qt_text.h"
#include "widgets/skin_fonts.h"
#include "window/behaviour_panels.h"
#include "window/main_menus.h"
#include "window/skin_dialogs.h"
#include "window/window_gate.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QFontMetricsF>
#include <QMenu>
#include <QRandomGenerator>
#include <QTimer>

#include <cmath>

namespace tarvel {

namespace {

std::string randomSkinName() {
    constexpr int names = 350;
    return "myskin" + std::to_string(QRandomGenerator::global()->bounded(names));
}

} // namespace

FrmMain::FrmMain(Prompts& prompts, const std::filesystem::path& programFolder)
    : prompts_(prompts)
    , files_(document_, prompts,
             {.window = this, .programFolder = programFolder, .showInformation = [this] {
                  dialogs_->mnuInfo_Click();
              }}) {
    build(programFolder);
    document_.setObserver(this);
    pic_->setDocument(&document_);
    fraLayout_->setCurrent(menuScreen);
    optScreen_Click(menuScreen);
    QApplication::instance()->installEventFilter(this);
}

FrmMain::~FrmMain() {
    QApplication::instance()->removeEventFilter(this);
    document_.setObserver(nullptr);
    pic_->setDocument(nullptr); // the document goes before the widgets do
}

void FrmMain::optScreen_Click(int index) {
    controller_->cancelWork();
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
    const int row = selectedRow();
    return row < 0 ? 0 : document_.itemData(document_.currentLayout(), row);
}

int FrmMain::selectedRow() const {
    return fraElements_->listIndex(document_.currentLayout());
}

void FrmMain::selectRow(int row) {
    fraElements_->setListIndex(document_.currentLayout(), row);
}

PanelValues FrmMain::panelValues() const {
    return properties_->values();
}

std::optional<SkinSize> FrmMain::naturalSize(ElementKind kind) const {
    const PanelValues values = properties_->values();
    if (kind == ElementKind::Text) {
        const QSizeF size = QFontMetricsF(skinFont(values.cmdFont)).size(0, qtText(values.txtText));
        return SkinSize{static_cast<float>(std::ceil(size.width()) + 1),
                        static_cast<float>(std::ceil(size.height()))};
    }
    const auto& resources = document_.settings().resources;
    if (kind != ElementKind::Image || values.lstR < 0 ||
        values.lstR >= static_cast<int>(resources.size())) {
        return std::nullopt;
    }
    const Resource& resource = resources[static_cast<std::size_t>(values.lstR)];
    if (!resource.isFile || resource.outside || isVideoFile(resource.content)) {
        return std::nullopt;
    }
    // Reading a size fills the cache, which is no part of the window's state.
    const QSize size = const_cast<PictureCache&>(pictures_).pictureSize(resource.content); // NOLINT
    return size.isEmpty() ? std::nullopt
                          : std::optional(SkinSize{static_cast<float>(size.width()),
                                                   static_cast<float>(size.height())});
}

void FrmMain::drawingEnded() {
    chooseTool(std::nullopt);
    fraCreate_->releaseTool();
    showSelection();
}

void FrmMain::documentChanged(const DocumentChange& change) {
    using What = DocumentChange::What;
    controller_->documentChanged(change);
    fraElements_->documentChanged(change);
    pic_->documentChanged(change);
    ground_->documentChanged(change);
    switch (change.what) {
    case What::everything:
        properties_->resourcesChanged();
        showCurrentLayout();
        break;
    case What::currentLayout:
        showCurrentLayout();
        break;
    case What::settings:
        properties_->resourcesChanged();
        break;
    case What::counts:
        setLayoutBolds();
        break;
    case What::rows:
        showSelection();
        break;
    case What::element:
        if (change.elementId == curNum()) {
            setCurrentSel();
            setBolds();
        }
        break;
    case What::rowText:
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
    setCurrentSel();
    setBolds();
    if (id != 0) {
        properties_->showElement(document_.element(id));
    } else if (!fraCreate_->tool()) {
        properties_->showNothing();
    }
}

void FrmMain::setCurrentSel() {
    const int id = curNum();
    if (id == 0) {
        marks_->hideSels();
        fraPos_->clear();
        return;
    }
    const Element& element = document_.element(id);
    marks_->setCurrentSel(element);
    if (element.elementKind == ElementKind::Line) {
        fraPos_->setPosLine(element.elementControl);
    } else {
        fraPos_->setPos(element.elementControl);
    }
    fraPos_->setEditable(!element.elementLocked);
}

void FrmMain::chooseTool(std::optional<ElementKind> kind) {
    controller_->cancelWork();
    controller_->setTool(kind);
    if (!kind) {
        cover_->uncover();
        return;
    }
    selectRow(-1);
    cover_->cover([this, kind] {
        if (fraCreate_->tool() == kind) {
            properties_->showKind(*kind);
        }
    });
}

void FrmMain::refuseInvalid(ElementKind kind, bool& refuse) {
    for (const std::string_view text : isInvalid(kind, properties_->values())) {
        prompts_.message(this, qtText(text));
        refuse = true;
    }
}

void FrmMain::popupMenu(QPoint globalPosition, bool onElement) {
    if (onElement) {
        menus_->entry(QStringLiteral("mnuLocked"))
            ->setChecked(document_.element(curNum()).elementLocked);
        menus_->mnuRight()->popup(globalPosition);
    } else {
        menus_->mnuRight2()->popup(globalPosition);
    }
}

// Keys that work wherever the focus is in this window, but for its open panels and dialogs.
bool FrmMain::eventFilter(QObject* watched, QEvent* event) {
    const bool pressed = event->type() == QEvent::KeyPress;
    if (pressed || event->type() == QEvent::ShortcutOverride) {
        auto* widget = qobject_cast<QWidget*>(watched);
        if (widget != nullptr && widget->window() == this && !gate_->isClosed() &&
            (windowKey(*static_cast<QKeyEvent*>(event), pressed) ||
             (pressed && menuKey(*static_cast<QKeyEvent*>(event), *widget)))) {
            return true;
        }
    }
    return QMainWindow::eventFilter(watched, event);
}

// False when the key is the widget's. A key that is but announced is claimed from shortcuts.
bool FrmMain::windowKey(QKeyEvent& event, bool pressed) {
    const bool working = controller_->isWorking() || fraCreate_->tool();
    const bool escape = event.key() == Qt::Key_Escape && working;
    if (!escape && !(event.key() == Qt::Key_Delete && selectedRow() >= 0)) {
        return false;
    }
    if (!pressed) {
        event.accept();
    } else if (!escape) {
        controller_->cancelWork();
        commands_.mnuDelete_Click();
    } else if (controller_->isWorking()) {
        controller_->cancelWork();
    } else {
        drawingEnded();
    }
    return true;
}

// Not every platform takes Shift+F10 for the menu key.
bool FrmMain::menuKey(const QKeyEvent& event, QWidget& widget) {
    if (event.key() != Qt::Key_F10 || event.modifiers() != Qt::ShiftModifier) {
        return false;
    }
    const QPoint at = widget.inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
    QContextMenuEvent menu(QContextMenuEvent::Keyboard, at, widget.mapToGlobal(at));
    QApplication::sendEvent(&widget, &menu);
    return true;
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
    behaviourPanels_->ok(); // what is typed in an open panel belongs to the skin
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

} // namespace tarvel
