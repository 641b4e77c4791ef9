// The rows of one screen's list for a view.
#pragma once

#include "document/skin_document.h"

#include <QAbstractListModel>

#include <vector>

namespace tarvel {

/// The role of whether a row's element is locked.
inline constexpr int lockedRole = Qt::UserRole + 1;

/// Shows the rows straight from the document; opening thousands of rows costs one pass over their
/// ids. The document is not owned and outlives the model.
class ElementListModel : public QAbstractListModel {
    Q_OBJECT

  public:
    ElementListModel(const SkinDocument& document, int screen, QObject* parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    /// Qt::DisplayRole is the row's text, Qt::UserRole its item data, the element's id.
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

    /// Brings the views into line with the document. Rows that stay keep their selection.
    void sync();
    /// The texts of all rows may be other ones.
    void textsChanged();
    /// The text of the row of this element is another one.
    void rowTextChanged(int elementId);

  private:
    void removeRun(std::size_t from, std::size_t count);
    void insertRun(std::size_t from, std::size_t count, const std::vector<int>& ids);

    const SkinDocument& document_;
    int screen_;
    std::vector<int> ids_; // as the views know them
};

} // namespace tarvel
