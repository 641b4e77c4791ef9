// Remembers where the focus was in each part, and finds where it can go.
#include "window/focus_round.h"

#include <QAction>
#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <QShortcut>

#include <algorithm>
#include <utility>

namespace tarvel {

namespace {

bool isUsable(const QWidget& widget) {
    return widget.isVisible() && widget.isEnabled() && widget.focusProxy() == nullptr &&
           (widget.focusPolicy() & Qt::TabFocus) != 0;
}

bool holds(const QWidget& holder, const QWidget& widget) {
    return &holder == &widget || holder.isAncestorOf(&widget);
}

QWidget* firstUsable(QWidget& holder) {
    QWidget* each = &holder;
    do {
        if (holds(holder, *each) && isUsable(*each)) {
            return each;
        }
        each = each->nextInFocusChain();
    } while (each != &holder);
    return nullptr;
}

} // namespace

FocusRound::FocusRound(QMainWindow& window, std::vector<Part> parts)
    : QObject(&window)
    , window_(window) {
    for (Part& part : parts) {
        parts_.push_back({std::move(part), {}});
    }
    const auto on = [&](const QKeySequence& keys, auto&& work) {
        connect(new QShortcut(keys, &window), &QShortcut::activated, this, work);
    };
    on(Qt::Key_F6, [this] { go(1); });
    on(Qt::SHIFT | Qt::Key_F6, [this] { go(-1); });
    on(Qt::Key_F10, [this] { openMenuBar(); });
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget* /*old*/, QWidget* now) { noteFocus(now); });
}

void FocusRound::noteFocus(QWidget* widget) {
    const int part = widget == nullptr ? -1 : partOf(widget);
    if (part >= 0) {
        current_ = part;
        parts_[static_cast<std::size_t>(part)].last = widget;
    }
}

int FocusRound::partOf(const QWidget* widget) const {
    const auto found = std::find_if(parts_.begin(), parts_.end(), [&](const Place& place) {
        return std::any_of(place.holders.begin(), place.holders.end(),
                           [&](const QWidget* holder) { return holds(*holder, *widget); });
    });
    return found == parts_.end() ? -1 : static_cast<int>(found - parts_.begin());
}

QWidget* FocusRound::entryOf(const Place& place) {
    if (place.last && isUsable(*place.last)) {
        return place.last;
    }
    for (QWidget* holder : place.holders) {
        if (QWidget* found = firstUsable(*holder)) {
            return found;
        }
    }
    return nullptr;
}

void FocusRound::go(int step) {
    const int count = static_cast<int>(parts_.size());
    const int from = current_ >= 0 ? current_ : (step > 0 ? -1 : 0);
    for (int i = 1; i <= count; ++i) {
        const int part = (from + step * i + count * 2) % count;
        if (QWidget* entry = entryOf(parts_[static_cast<std::size_t>(part)])) {
            entry->setFocus(step > 0 ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            return;
        }
    }
}

void FocusRound::openMenuBar() {
    const QList<QAction*> menus = window_.menuBar()->actions();
    const auto first = std::find_if(menus.begin(), menus.end(), [](const QAction* menu) {
        return menu->isVisible() && menu->isEnabled();
    });
    if (first != menus.end()) {
        window_.menuBar()->setActiveAction(*first);
    }
}

} // namespace tarvel
