// Gives presses, moves, releases and keys of the surface to the tool at work.
#include "surface/surface_controller.h"

#include "editing/group_scale.h"
#include "editing/step_names.h"
#include "surface/draw_tools.h"
#include "surface/edit_tools.h"
#include "surface/guide_marks.h"
#include "surface/pic.h"
#include "surface/select_tool.h"
#include "surface/selection_marks.h"
#include "widgets/shown_path.h"

#include <QContextMenuEvent>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QScopedValueRollback>

#include <chrono>
#include <cmath>
#include <utility>

namespace tarvel {

namespace {

constexpr int unknownRow = -2; // to be told, whatever it is

int modifiersOf(const QKeyEvent& event) {
    const auto held = [&](Qt::KeyboardModifier key, int bit) {
        return event.modifiers().testFlag(key) ? bit : 0;
    };
    return held(Qt::ShiftModifier, shiftModifier) + held(Qt::ControlModifier, ctrlModifier) +
           held(Qt::AltModifier, altModifier);
}

Qt::CursorShape shapeOf(Handle handle) {
    switch (handle) {
    case Handle::topLeft:
    case Handle::bottomRight:
        return Qt::SizeFDiagCursor;
    case Handle::topRight:
    case Handle::bottomLeft:
        return Qt::SizeBDiagCursor;
    case Handle::top:
    case Handle::bottom:
        return Qt::SizeVerCursor;
    case Handle::left:
    case Handle::right:
        return Qt::SizeHorCursor;
    case Handle::firstEnd:
    case Handle::secondEnd:
        return Qt::SizeAllCursor;
    case Handle::none:
        break;
    }
    return Qt::ArrowCursor;
}

} // namespace

SurfaceController::SurfaceController(Pic& surface, ToolHost& host, SelectionMarks& marks)
    : surface_(surface)
    , host_(host)
    , marks_(marks)
    , watch_(host.document().watch(*this))
    , picksWatch_(host.document().watch(picks_))
    , guides_(new GuideMarks(surface)) {
    using namespace std::chrono_literals;
    nudgeEnd_.setSingleShot(true);
    nudgeEnd_.setInterval(1s);
    connect(&nudgeEnd_, &QTimer::timeout, this, [this] { host_.document().endRun(); });
    surface_.installEventFilter(this);
    surface_.setAcceptDrops(true);
}

SurfaceController::~SurfaceController() = default;

void SurfaceController::setTool(std::optional<ElementKind> kind) {
    kind_ = kind;
    restorePointer();
}

void SurfaceController::restorePointer() {
    surface_.setCursor(kind_ ? Qt::CrossCursor : Qt::ArrowCursor);
    showPointerLater();
}

void SurfaceController::documentChanged(const DocumentChange& change) {
    if (change.what == DocumentChange::What::everything ||
        change.what == DocumentChange::What::currentLayout) {
        (void)takeWork(); // what it worked on is not shown any more
    }
    hoveredRow_ = unknownRow;
    showPointerLater();
}

SkinPoint SurfaceController::pointOf(const QMouseEvent& event) const {
    return surface_.mapping().pixelAt(event.position());
}

double SurfaceController::zoom() const {
    return surface_.mapping().scale();
}

// At 100 per cent a place between pixels of the window, on finer displays, counts as its pixel.
SurfaceController::PointerAt SurfaceController::pointerOf(const QMouseEvent& event) const {
    const SkinPoint pixel = pointOf(event);
    if (zoom() == 1) {
        return {pixel, pixel};
    }
    const QPointF exact = surface_.mapping().toSkin(event.position());
    return {pixel, {static_cast<float>(exact.x()), static_cast<float>(exact.y())}};
}

void SurfaceController::setSnapping(const SnapOptions& options) {
    snapping_ = options;
    guides_->showGrid(options.toGrid ? options.grid : 0);
}

double SurfaceController::snapTolerance() const {
    return snapReach / zoom();
}

// Ctrl suspends snapping, and with Shift the other side decides.
SkinPoint SurfaceController::snappedPointOf(const QMouseEvent& event) {
    const SkinPoint point = pointOf(event);
    const auto subject = work_->snapSubject();
    const bool keepsProportions = event.modifiers().testFlag(Qt::ShiftModifier) && subject &&
                                  subject->what == SnapSubject::What::handle;
    if (!subject || !snapping_.isOn() || keepsProportions ||
        event.modifiers().testFlag(Qt::ControlModifier)) {
        guides_->showGuides({});
        return point;
    }
    if (!snap_) {
        snap_.emplace(host_.document(), *subject, snapping_);
    }
    const SkinPoint snapped = snap_->snapped(point, snapTolerance());
    guides_->showGuides(snap_->guides());
    return snapped;
}

std::unique_ptr<CanvasTool> SurfaceController::takeWork() {
    snap_.reset();
    drawnFrom_.reset();
    guides_->showGuides({});
    return std::move(work_);
}

void SurfaceController::cancelWork() {
    if (const auto work = takeWork()) {
        work->cancel();
    }
}

void SurfaceController::endWork() {
    if (const auto work = takeWork()) {
        work->release(lastPoint_);
    }
}

bool SurfaceController::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::EnabledChange) {
        showPointerLater();
    }
    if (!surface_.isEnabled()) { // filters see the events of disabled widgets, too
        return QObject::eventFilter(watched, event);
    }
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        press(*static_cast<QMouseEvent*>(event));
        return true;
    case QEvent::Leave:
        hover_.reset();
        tellHovered(-1);
        return false;
    case QEvent::MouseMove:
        move(*static_cast<QMouseEvent*>(event));
        return false; // the readout follows it, too
    case QEvent::MouseButtonRelease:
        release(*static_cast<QMouseEvent*>(event));
        return true;
    case QEvent::DragEnter:
    case QEvent::Drop:
        drop(*static_cast<QDropEvent*>(event));
        return true;
    case QEvent::KeyPress:
        return key(*static_cast<QKeyEvent*>(event));
    case QEvent::ContextMenu:
        return contextMenu(*static_cast<QContextMenuEvent*>(event));
    default:
        return QObject::eventFilter(watched, event);
    }
}

void SurfaceController::press(const QMouseEvent& event) {
    if (work_ != nullptr) {
        if (event.button() != Qt::LeftButton) {
            return; // another button while one is held
        }
        cancelWork(); // its release went elsewhere
    }
    surface_.setFocus(Qt::MouseFocusReason);
    const PointerAt at = pointerOf(event);
    lastPoint_ = at.pixel;
    pressedAt_ = event.position();
    emit pressed();
    if (event.button() == Qt::LeftButton) {
        pressLeft(at, event.modifiers());
    } else if (event.button() == Qt::RightButton) {
        if (!leadAt(at.exact)) {
            pick(at.exact);
        }
        emit menuWanted(event.globalPosition().toPoint());
    } else {
        host_.selection().clear();
    }
}

void SurfaceController::pressLeft(const PointerAt& at, Qt::KeyboardModifiers keys) {
    const bool copies = keys.testFlag(Qt::AltModifier);
    if (kind_) {
        draw(*kind_, at);
    } else if (keys.testFlag(Qt::ControlModifier)) {
        toggleAt(at);
    } else if (!pressSeveral(at, copies) && !pressSelected(at, copies)) {
        pressAnew(at, copies);
    }
}

// Several selected elements are moved by any of them, and scaled by the frame around them.
bool SurfaceController::pressSeveral(const PointerAt& at, bool copies) {
    const Selection& selection = host_.selection();
    if (selection.size() < 2) {
        return false;
    }
    const SkinDocument& document = host_.document();
    const Place frame = commonFrame(startPlaces(document, selection.ids()));
    if (const Handle handle = frameHandleAt(frame, at.exact, zoom()); handle != Handle::none) {
        work_ = std::make_unique<GroupScaleTool>(host_, handle, at.pixel);
        return true;
    }
    if (!leadAt(at.exact)) {
        return false;
    }
    if (copies) {
        work_ = std::make_unique<CopyMoveTool>(host_, at.pixel);
    } else {
        work_ = std::make_unique<GroupMoveTool>(host_, selection.curNum(), at.pixel);
    }
    return true;
}

// Lets the one of several selected elements lead that is at the point.
bool SurfaceController::leadAt(SkinPoint point) {
    const SkinDocument& document = host_.document();
    const int row = picks_.rowAt(document, point, zoom());
    const int id = row < 0 ? 0 : document.itemData(document.currentLayout(), row);
    if (host_.selection().size() < 2 || !host_.selection().contains(id)) {
        return false;
    }
    host_.selection().lead(id);
    return true;
}

// The selected element is sized by its handles. The ends of a line are all that it can be held by,
// so its copy is drawn from it by these.
bool SurfaceController::pressSelected(const PointerAt& at, bool copies) {
    const int selected = host_.selection().curNum();
    const Handle handle = handleAt(host_.document().element(selected), at.exact, zoom());
    if (selected == 0 || handle == Handle::none) {
        return false;
    }
    const bool isEnd = edgesOf(handle).x == 0 && edgesOf(handle).y == 0;
    if (isEnd && copies) {
        work_ = std::make_unique<CopyMoveTool>(host_, at.pixel);
    } else if (isEnd) {
        work_ = std::make_unique<LineEndTool>(host_, handle, at.pixel);
    } else {
        work_ = std::make_unique<ResizeTool>(host_, handle, at.pixel);
    }
    return true;
}

void SurfaceController::pressAnew(const PointerAt& at, bool copies) {
    const std::vector<int> before = host_.selection().ids();
    pick(at.exact);
    const int id = host_.selection().curNum();
    if (id == 0) {
        work_ = std::make_unique<SelectTool>(host_, surface_, at.pixel, before, false);
        return;
    }
    // A line is held by the end that was pressed.
    const Handle end = handleAt(host_.document().element(id), at.exact, zoom());
    if (copies) {
        work_ = std::make_unique<CopyMoveTool>(host_, at.pixel);
    } else if (end == Handle::firstEnd || end == Handle::secondEnd) {
        work_ = std::make_unique<LineEndTool>(host_, end, at.pixel);
    } else {
        work_ = std::make_unique<MoveTool>(host_, at.pixel);
    }
}

// With Ctrl: an element joins the others or leaves them, and so does what a rubber band touches.
void SurfaceController::toggleAt(const PointerAt& at) {
    const int row = picks_.rowAt(host_.document(), at.exact, zoom());
    if (row >= 0) {
        host_.selection().toggle(row);
    } else {
        work_ =
            std::make_unique<SelectTool>(host_, surface_, at.pixel, host_.selection().ids(), true);
    }
}

void SurfaceController::draw(ElementKind kind, const PointerAt& press) {
    host_.selection().clear();
    if (!refused(kind)) {
        const QScopedValueRollback making(making_, true);
        const SkinPoint from = snapping_.isOn() ? snappedPress(host_.document(), press.pixel,
                                                               snapping_, snapTolerance())
                                                : press.pixel;
        drawnFrom_ = {pressedAt_, from};
        work_ = startDrawing(host_, kind, from, zoom());
    }
}

void SurfaceController::pick(SkinPoint point) {
    const int row = picks_.rowAt(host_.document(), point, zoom());
    host_.selection().clear();
    host_.selection().select(row);
}

// Of the menu key: the pointer asks for its menu with the press.
bool SurfaceController::contextMenu(const QContextMenuEvent& event) {
    if (event.reason() == QContextMenuEvent::Keyboard && work_ == nullptr) {
        emit menuWanted(event.globalPos());
    }
    return true;
}

bool SurfaceController::refused(ElementKind kind) {
    bool refuse = false;
    emit aboutToDraw(kind, refuse);
    return refuse;
}

void SurfaceController::move(const QMouseEvent& event) {
    lastPoint_ = pointOf(event);
    hover_ = pointerOf(event).exact;
    if (work_ != nullptr && event.buttons().testFlag(Qt::LeftButton)) {
        lastPoint_ = snappedPointOf(event);
        work_->move(lastPoint_, event.modifiers().testFlag(Qt::ShiftModifier));
    } else if (event.buttons() == Qt::NoButton) {
        showPointer();
    }
}

void SurfaceController::release(const QMouseEvent& event) {
    if (event.button() == Qt::LeftButton) {
        if (work_ != nullptr) {
            // A press that was snapped is not drawn away from by a pointer that has not moved.
            const SkinPoint point =
                isStillAtPress(event) ? drawnFrom_->snapped : snappedPointOf(event);
            takeWork()->release(point);
        }
    }
}

// Of a press that draws. Where pixels of the window are parts of skin pixels, a hand that shakes
// may be on the next one.
bool SurfaceController::isStillAtPress(const QMouseEvent& event) const {
    if (!drawnFrom_) {
        return false;
    }
    const ViewMapping& mapping = surface_.mapping();
    const QPointF way = event.position() - drawnFrom_->pressed;
    return mapping.pixelAt(event.position()) == mapping.pixelAt(drawnFrom_->pressed) ||
           (zoom() > 1 && std::abs(way.x()) < drawThreshold && std::abs(way.y()) < drawThreshold);
}

void SurfaceController::drop(QDropEvent& event) {
    const QStringList files = draggedFiles(*event.mimeData());
    if (files.isEmpty()) {
        return;
    }
    event.setDropAction(Qt::CopyAction); // a source that proposes a move would delete its file
    event.accept();
    if (event.type() == QEvent::Drop) {
        // The drag is over before the dialog opens, or its source would wait for the dialog.
        QMetaObject::invokeMethod(
            this, [this, file = files.front()] { emit fileDropped(file); }, Qt::QueuedConnection);
    }
}

bool SurfaceController::key(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Escape:
        if (work_ != nullptr) {
            cancelWork();
        } else {
            emit toolGivenUp();
        }
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!kind_ || work_ != nullptr) {
            return false;
        }
        host_.selection().clear();
        if (!refused(*kind_)) {
            const QScopedValueRollback making(making_, true);
            placeInTheMiddle(host_, *kind_);
        }
        return true;
    default:
        return arrowKey(event);
    }
}

bool SurfaceController::arrowKey(const QKeyEvent& event) {
    std::optional<ArrowKey> arrow;
    switch (event.key()) {
    case Qt::Key_Left:
        arrow = ArrowKey::Left;
        break;
    case Qt::Key_Up:
        arrow = ArrowKey::Up;
        break;
    case Qt::Key_Right:
        arrow = ArrowKey::Right;
        break;
    case Qt::Key_Down:
        arrow = ArrowKey::Down;
        break;
    default:
        return false;
    }
    const bool isMoved = marks_.isBoxShown() || host_.selection().size() > 1;
    if (isMoved && work_ == nullptr) {
        nudge(*arrow, modifiersOf(event));
    }
    return true; // arrows never lead the focus away from the surface
}

// Keys pressed one soon after the other are one step.
void SurfaceController::nudge(ArrowKey key, int modifiers) {
    SkinDocument& document = host_.document();
    const std::vector<int>& ids = host_.selection().ids();
    document.continueRun(stepName(step::move, document, ids));
    if (ids.size() > 1) {
        moveAllByKey(document, startPlaces(document, ids), key, modifiers);
    } else {
        moveByKey(document, ids.front(), key, modifiers);
    }
    nudgeEnd_.start();
}

// Once after a run of changes. What is under the pointer may have changed without its moving.
void SurfaceController::showPointerLater() {
    if (hover_ && !std::exchange(pointerIsStale_, true)) {
        QMetaObject::invokeMethod(this, &SurfaceController::showPointer, Qt::QueuedConnection);
    }
}

void SurfaceController::showPointer() {
    pointerIsStale_ = false;
    if (!hover_ || work_ != nullptr) {
        return;
    }
    const bool isOpen = surface_.isEnabled();
    const int row = isOpen && !kind_ ? picks_.rowAt(host_.document(), *hover_, zoom()) : -1;
    tellHovered(row);
    const Qt::CursorShape shape = isOpen ? pointerAt(*hover_, row) : Qt::ArrowCursor;
    if (surface_.cursor().shape() != shape) {
        surface_.setCursor(shape);
    }
}

void SurfaceController::tellHovered(int row) {
    if (std::exchange(hoveredRow_, row) != row) {
        emit rowHovered(row);
    }
}

Qt::CursorShape SurfaceController::pointerAt(SkinPoint point, int row) {
    if (kind_) {
        return Qt::CrossCursor;
    }
    const SkinDocument& document = host_.document();
    const std::vector<int>& ids = host_.selection().ids();
    if (!ids.empty()) {
        const Handle handle =
            ids.size() > 1 ? frameHandleAt(commonFrame(startPlaces(document, ids)), point, zoom())
                           : handleAt(document.element(ids.front()), point, zoom());
        if (handle != Handle::none) {
            return shapeOf(handle);
        }
    }
    return row < 0 ? Qt::ArrowCursor : Qt::SizeAllCursor;
}

} // namespace tarvel
