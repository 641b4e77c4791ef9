// Keeps the guide usable whatever is open, and finds the chapter for what has the focus.
#include "window/help_windows.h"

#include "window/guide_window.h"
#include "window/help_pages.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace tarvel {

namespace {

void bringForward(QWidget& window) {
    window.show();
    window.raise();
    window.activateWindow();
}

// Of the innermost window or panel that has one.
QString chapterFor(const QWidget* widget) {
    const auto& chapters = HelpWindows::chapters();
    for (; widget != nullptr; widget = widget->parentWidget()) {
        const auto found = std::find_if(chapters.begin(), chapters.end(), [&](const auto& each) {
            return each.first == widget->objectName();
        });
        if (found != chapters.end()) {
            return found->second;
        }
    }
    return {};
}

} // namespace

const std::vector<QPair<QString, QString>>& HelpWindows::chapters() {
    static const std::vector<QPair<QString, QString>> table = {
        {"fraModifier(0)", "modifiers"}, {"fraModifier(1)", "timers"},
        {"fraModifier(2)", "condition"}, {"fraPlay", "playing"},
        {"fraTime", "playing"},          {"frmDelays", "delays"},
        {"frmInfo", "skin-info"},        {"frmColors", "system-colors"},
        {"frmMusic", "audio-settings"},  {"frmResources", "resource-manager"},
        {"frmInstructions", "saving"},   {"frmCheck", "checking"},
        {"frmXml", "view-xml"},          {"frmKeys", "keys"},
    };
    return table;
}

HelpWindows::HelpWindows(QWidget& window, std::function<void(const QUrl&)> open)
    : QObject(&window)
    , window_(window)
    , open_(std::move(open)) {
    QApplication::instance()->installEventFilter(this);
}

HelpWindows::~HelpWindows() {
    QApplication::instance()->removeEventFilter(this);
}

void HelpWindows::showGuide(const QString& chapter) {
    if (guide_ == nullptr) {
        guide_ = std::make_unique<GuideWindow>(open_);
        guide_->setWindowIcon(window_.windowIcon());
    }
    standAboveDialog();
    bringForward(*guide_);
    guide_->showChapter(chapter);
}

// A dialog blocks every window but those that belong to it. The guide belongs to the one that is
// open, and to none afterwards.
void HelpWindows::standAboveDialog() {
    guide_->winId(); // makes the native window
    QWidget* dialog = QApplication::activeModalWidget();
    guide_->windowHandle()->setTransientParent(dialog == nullptr ? nullptr
                                                                 : dialog->windowHandle());
}

void HelpWindows::showKeys() {
    if (keys_ == nullptr) {
        keys_ = new FrmKeys(&window_);
    }
    bringForward(*keys_);
}

void HelpWindows::showAbout() {
    if (about_ == nullptr) {
        about_ = new FrmAbout(&window_);
    }
    bringForward(*about_);
}

bool HelpWindows::eventFilter(QObject* watched, QEvent* event) {
    const bool isBlocked = event->type() == QEvent::WindowBlocked;
    const bool mayBeFree =
        event->type() == QEvent::Hide && qobject_cast<QDialog*>(watched) != nullptr;
    if (guide_ != nullptr && guide_->isVisible() &&
        ((isBlocked && watched == guide_.get()) || (mayBeFree && watched != guide_.get()))) {
        // Once the dialog is among those that block, or no longer.
        QMetaObject::invokeMethod(this, &HelpWindows::standAboveDialog, Qt::QueuedConnection);
    }
    if (event->type() == QEvent::KeyPress) {
        const auto& key = static_cast<const QKeyEvent&>(*event);
        auto* widget = qobject_cast<QWidget*>(watched);
        const bool asks = key.key() == Qt::Key_F1 && key.modifiers() == Qt::NoModifier;
        if (asks && widget != nullptr && widget->window() != guide_.get()) {
            showGuide(chapterFor(widget));
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

} // namespace tarvel
