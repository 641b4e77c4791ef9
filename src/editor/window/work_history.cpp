// Leads the window back to where a step was made, and decides whose keys Undo and Redo are.
#include "window/work_history.h"

#include "editing/step_names.h"
#include "panels/property_panel.h"
#include "surface/selection_marks.h"
#include "widgets/qt_text.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>

#include <algorithm>

namespace tarvel {

namespace {

// Whether a text field has something to undo or redo itself; for all other widgets true, so that
// what they do with a key stays theirs.
bool keepsKeys(const QObject& widget) {
    if (const auto* line = qobject_cast<const QLineEdit*>(&widget)) {
        return line->isUndoAvailable() || line->isRedoAvailable();
    }
    if (const auto* text = qobject_cast<const QTextEdit*>(&widget)) {
        return text->document()->isUndoAvailable() || text->document()->isRedoAvailable();
    }
    if (const auto* text = qobject_cast<const QPlainTextEdit*>(&widget)) {
        return text->document()->isUndoAvailable() || text->document()->isRedoAvailable();
    }
    return true;
}

void name(QAction& entry, const QString& verb, const std::string& step) {
    entry.setText(step.empty() ? verb : verb + QLatin1Char(' ') + qtText(step));
}

} // namespace

WorkHistory::WorkHistory(const Parts& parts)
    : parts_(parts)
    , history_(parts.document, *this)
    , watch_(history_.watch(*this)) {
    connect(&parts_.undo, &QAction::triggered, this, [this] {
        const std::string undone = history_.undoName();
        history_.undo();
        if (undone == step::loadSkin) {
            emit loadUndone();
        }
        emit told(tr("Undone: %1").arg(qtText(undone)));
    });
    connect(&parts_.redo, &QAction::triggered, this, [this] {
        const std::string redone = history_.redoName();
        history_.redo();
        if (redone == step::loadSkin) {
            emit loadRedone();
        }
        emit told(tr("Redone: %1").arg(qtText(redone)));
    });
    QApplication::instance()->installEventFilter(this);
    refresh();
}

void WorkHistory::refresh() {
    parts_.undo.setEnabled(parts_.isOpen() && history_.canUndo());
    parts_.redo.setEnabled(parts_.isOpen() && history_.canRedo());
    name(parts_.undo, tr("Undo"), history_.undoName());
    name(parts_.redo, tr("Redo"), history_.redoName());
}

void WorkHistory::loaded(const SkinDocument& before) {
    if (before.holdsTheSame(SkinDocument())) {
        history_.markSaved();
    }
}

void WorkHistory::historyChanged() {
    refresh();
    emit changed();
}

WorkPlace WorkHistory::place() const {
    return {.screen = parts_.document.currentLayout(),
            .selected = parts_.selection.ids(),
            .leading = parts_.selection.curNum(),
            .panel = parts_.properties.values()};
}

void WorkHistory::goTo(const WorkPlace& place) {
    parts_.properties.takeValues(place.panel); // also what the selected element has no part in
    parts_.selection.selectIds(place.selected);
    if (place.leading != 0 && parts_.document.element(place.leading).elementLocked) {
        parts_.marks.hideSels(); // what is locked is a part of the ground
    }
}

// Text fields claim the keys even when they have nothing to undo.
bool WorkHistory::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride && !keepsKeys(*watched) &&
        isOurs(*static_cast<QKeyEvent*>(event))) {
        event->ignore();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

bool WorkHistory::isOurs(const QKeyEvent& event) const {
    const auto is = [&](const QAction& entry) {
        const QList<QKeySequence> keys = entry.shortcuts();
        return entry.isEnabled() &&
               std::any_of(keys.begin(), keys.end(), [&](const QKeySequence& key) {
                   return key == QKeySequence(event.keyCombination());
               });
    };
    return is(parts_.undo) || is(parts_.redo);
}

} // namespace tarvel
