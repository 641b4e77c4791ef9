// A layout whose items go on in another row where one row is too narrow.
#pragma once

#include <QLayout>

#include <algorithm>
#include <initializer_list>
#include <limits>
#include <memory>
#include <vector>

namespace tarvel {

/// Lays its items out from left to right, each as wide as it wants to be, and below each other what
/// has no room left. Rows are as high as their highest item. Owns its items, as every layout does.
class WrapLayout : public QLayout {
    Q_OBJECT

  public:
    enum class Fill {
        none,  ///< items keep their widths, and what is left stays free
        evenly ///< items are of one width and fill the row; rows hold the same number
    };

    explicit WrapLayout(Fill fill, QWidget* parent = nullptr);
    ~WrapLayout() override;

    /// No row gets more items than this, however wide it is.
    void setMostPerRow(std::size_t most) { most_ = most; }

    void addItem(QLayoutItem* item) override;
    /// Takes the layout as one item.
    void addLayout(QLayout* layout);
    /// A row of widgets that stay together, as a caption and its field.
    void addTogether(std::initializer_list<QWidget*> widgets);

    [[nodiscard]] int count() const override;
    [[nodiscard]] QLayoutItem* itemAt(int index) const override;
    [[nodiscard]] QLayoutItem* takeAt(int index) override;
    [[nodiscard]] Qt::Orientations expandingDirections() const override { return {}; }
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;
    /// All items in one row.
    [[nodiscard]] QSize sizeHint() const override;
    /// The widest item alone.
    [[nodiscard]] QSize minimumSize() const override;
    void setGeometry(const QRect& rect) override;

  private:
    /// The items of a row: from `first` up to `end`.
    struct Row {
        std::size_t first;
        std::size_t end;
        int height;
    };
    [[nodiscard]] std::vector<std::size_t> shown() const;
    [[nodiscard]] std::vector<Row> rowsFor(const std::vector<std::size_t>& items, int width) const;
    [[nodiscard]] std::size_t perRow(const std::vector<std::size_t>& items, int width) const;
    [[nodiscard]] int widest(const std::vector<std::size_t>& items) const;
    [[nodiscard]] int gap() const { return std::max(0, spacing()); }
    void place(const Row& row, const std::vector<std::size_t>& items, const QRect& place);

    Fill fill_;
    std::size_t most_ = std::numeric_limits<std::size_t>::max();
    std::vector<std::unique_ptr<QLayoutItem>> items_;
};

} // namespace tarvel
