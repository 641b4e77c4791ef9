// Paints rows with their notes, and makes the box for a new name.
#include "dialogs/resource_row.h"

#include "dialogs/resource_notes.h"
#include "dialogs/resource_thumbnails.h"
#include "widgets/control_names.h"
#include "widgets/faint_text.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>

#include <algorithm>

namespace tarvel {

namespace {

constexpr int gap = 8; // pixels between the words of a row
constexpr auto filled = "filled";

// Red enough to be seen, and still to be read, on light and on dark ground.
QColor missingColor(const QPalette& palette) {
    return palette.color(QPalette::Base).lightness() > 127 ? QColor(176, 28, 12)
                                                           : QColor(255, 150, 130);
}

// A word at the right end of a row.
struct Note {
    QString text;
    QColor color;
};

QList<Note> notesOf(const ResourceNotes& notes, int row, const QStyleOptionViewItem& option) {
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    const auto group =
        option.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
    const QColor marked = option.palette.color(group, QPalette::HighlightedText);
    QList<Note> words{{notes.usesText(row), isSelected ? marked : faintText(option.palette)}};
    if (notes.isMissing(row)) {
        words.append({ResourceRowDelegate::tr("missing"),
                      isSelected ? marked : missingColor(option.palette)});
    }
    return words;
}

} // namespace

ResourceRow::ResourceRow(const QString& name, const ResourceNotes& notes,
                         const ResourceThumbnails& thumbnails)
    : QListWidgetItem(name, nullptr, UserType)
    , notes_(notes)
    , thumbnails_(thumbnails) {
    setFlags(flags() | Qt::ItemIsEditable);
}

QVariant ResourceRow::data(int role) const {
    switch (role) {
    case Qt::DecorationRole:
        return thumbnails_.icon(listWidget()->row(this));
    case Qt::ToolTipRole:
        return notes_.contentText(listWidget()->row(this));
    case Qt::AccessibleTextRole:
        return notes_.spokenText(listWidget()->row(this));
    default:
        return QListWidgetItem::data(role);
    }
}

ResourceRowDelegate::ResourceRowDelegate(const ResourceNotes& notes, QObject* parent)
    : QStyledItemDelegate(parent)
    , notes_(notes) {}

void ResourceRowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                const QModelIndex& index) const {
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    QStyle& style = *(row.widget == nullptr ? QApplication::style() : row.widget->style());
    const QRect words = style.subElementRect(QStyle::SE_ItemViewItemText, &row, row.widget);
    const QList<Note> notes = notesOf(notes_, index.row(), row);
    int taken = 0;
    for (const Note& note : notes) {
        taken += gap + row.fontMetrics.horizontalAdvance(note.text);
    }
    row.text = row.fontMetrics.elidedText(row.text, row.textElideMode,
                                          std::max(0, words.width() - taken - gap));
    style.drawControl(QStyle::CE_ItemViewItem, &row, painter, row.widget);
    painter->save();
    painter->setFont(row.font);
    QRect room = row.rect.adjusted(gap, 0, -gap, 0);
    for (const Note& note : notes) {
        painter->setPen(note.color);
        painter->drawText(room, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, note.text);
        room.setRight(room.right() - row.fontMetrics.horizontalAdvance(note.text) - gap);
    }
    painter->restore();
}

QSize ResourceRowDelegate::sizeHint(const QStyleOptionViewItem& option,
                                    const QModelIndex& index) const {
    return {0, QStyledItemDelegate::sizeHint(option, index).height()};
}

QWidget* ResourceRowDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                                           const QModelIndex& /*index*/) const {
    auto* editor = named(new QLineEdit(parent), QStringLiteral("txtRename"), tr("New name"));
    editor->setAcceptDrops(false); // files are for the dialog
    return editor;
}

void ResourceRowDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
    if (editor->property(filled).toBool()) {
        return; // the row changed meanwhile, as when its thumbnail arrives: what is typed stays
    }
    editor->setProperty(filled, true);
    auto* edit = static_cast<QLineEdit*>(editor);
    edit->setText(start_.isNull() ? index.data(Qt::EditRole).toString() : start_);
    start_ = {};
}

void ResourceRowDelegate::setModelData(QWidget* editor, QAbstractItemModel* /*model*/,
                                       const QModelIndex& index) const {
    emit nameTyped(index.row(), static_cast<QLineEdit*>(editor)->text());
}

// The Tab key would go on to the name of the next row.
bool ResourceRowDelegate::eventFilter(QObject* editor, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Tab || key == Qt::Key_Backtab) {
            auto* widget = static_cast<QWidget*>(editor);
            emit commitData(widget);
            emit closeEditor(widget);
            return true;
        }
    }
    return QStyledItemDelegate::eventFilter(editor, event);
}

} // namespace tarvel
