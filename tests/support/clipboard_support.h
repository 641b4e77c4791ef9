// The clipboard in tests: what is put onto it, and that nothing stays on it.
#pragma once

#include "skinfile/clipboard.h"
#include "support/editor.h"

#include <QClipboard>
#include <QMimeData>
#include <QStatusBar>

namespace tarvel::test {

inline constexpr auto elementsFormat = "application/x-tarvel-elements";

inline QClipboard& clipboard() {
    return *QGuiApplication::clipboard();
}

/// Puts something onto the clipboard in one or more forms.
inline void putOnClipboard(const std::function<void(QMimeData&)>& fill) {
    auto* data = new QMimeData;
    fill(*data);
    clipboard().setMimeData(data);
}

inline QString statusOf(Editor& editor) {
    return editor.window.statusBar()->currentMessage();
}

/// The ids on a screen from the back to the front.
inline std::vector<int> idsOn(Editor& editor, int screen) {
    std::vector<int> ids;
    for (int row = 0; row < editor.document().rowCount(screen); ++row) {
        ids.push_back(editor.document().itemData(screen, row));
    }
    return ids;
}

/// Adds a row to those that are selected, or takes it away, as a click with Ctrl does.
inline void ctrlClickRow(Editor& editor, int screen, int row) {
    QListView* list = editor.lst(screen);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::ControlModifier,
                      list->visualRect(list->model()->index(row, 0)).center());
}

/// Selects rows of a screen; the last one leads.
inline void selectRows(Editor& editor, int screen, const std::vector<int>& rows) {
    editor.lst(screen)->clearSelection();
    for (const int row : rows) {
        ctrlClickRow(editor, screen, row);
    }
}

/// The rows that are selected in a screen's list.
inline QList<int> selectedRows(Editor& editor, int screen) {
    QList<int> rows;
    const auto indexes = editor.lst(screen)->selectionModel()->selectedIndexes();
    for (const QModelIndex& index : indexes) {
        rows << index.row();
    }
    std::sort(rows.begin(), rows.end());
    return rows;
}

} // namespace tarvel::test
