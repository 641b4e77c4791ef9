// A row of the list of resources: how it looks, what is read out, and its renaming.
#pragma once

#include <QListWidgetItem>
#include <QStyledItemDelegate>

namespace tarvel {

class ResourceNotes;
class ResourceThumbnails;

/// A row of a QListWidget that asks for all that is wanted of it but its name. Whom it asks is not
/// owned and outlives it.
class ResourceRow : public QListWidgetItem {
  public:
    ResourceRow(const QString& name, const ResourceNotes& notes,
                const ResourceThumbnails& thumbnails);

    [[nodiscard]] QVariant data(int role) const override;

  private:
    const ResourceNotes& notes_;
    const ResourceThumbnails& thumbnails_;
};

/// Paints the notes at the right of each row, and lets the name be edited in the row. Rows are
/// never wider than the list.
class ResourceRowDelegate : public QStyledItemDelegate {
    Q_OBJECT

  public:
    /// The notes are not owned and outlive it.
    explicit ResourceRowDelegate(const ResourceNotes& notes, QObject* parent = nullptr);

    /// The next editor starts with this text instead of the name.
    void startWith(const QString& text) { start_ = text; }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;

  signals:
    /// A name was typed over that of the row.
    void nameTyped(int row, const QString& name) const;

  protected:
    bool eventFilter(QObject* editor, QEvent* event) override;

  private:
    const ResourceNotes& notes_;
    mutable QString start_;
};

} // namespace tarvel
