// A list of elements: rows that are selected together, dragged to another place and found by
// typing.
#pragma once

#include <QItemSelection>
#include <QListView>
#include <QMouseEvent>
#include <QPointer>

#include <memory>
#include <vector>

namespace tarvel {

/// Shows an ElementListModel. It changes no order itself.
class ElementListView : public QListView {
    Q_OBJECT

  public:
    ElementListView();

    /// The selected rows, from the back to the front.
    [[nodiscard]] std::vector<int> selectedRows() const;
    /// Selects rows, given from the back to the front; `leading` is one of them, or -1 for none.
    void setSelectedRows(const std::vector<int>& rows, int leading);

    [[nodiscard]] bool isDragging() const { return dropRow_ >= 0; }
    void cancelDrag();
    /// Selects the next row below the current one that contains the letters in whatever case, from
    /// the top again after the last. Letters typed soon one after the other belong together.
    void keyboardSearch(const QString& letters) override;
    void keyPressEvent(QKeyEvent* event) override;

    /// A few rows: the list takes more where there is room.
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  signals:
    /// The selected rows are to come before this one; the number of rows is the front.
    void rowsDropped(int before);
    /// The pointer is over this row; -1 for none.
    void rowHovered(int row);

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool viewportEvent(QEvent* event) override;

  private:
    [[nodiscard]] QItemSelection rangesOf(const std::vector<int>& rows) const;
    [[nodiscard]] bool findNext(const QString& letters, int from);
    [[nodiscard]] int rowAt(QPoint point) const { return indexAt(point).row(); }
    [[nodiscard]] int rowBefore(QPoint point) const;
    [[nodiscard]] int firstFree() const;
    void dragTo(QPoint point);
    [[nodiscard]] QSize sizeFor(int letters, int rows) const;

    std::unique_ptr<QMouseEvent> held_; // a press on one of several rows, which selects it late
    QPoint press_;
    bool mayDrag_ = false;   // the left button is held on a row that can be dragged
    bool isGivenUp_ = false; // but the button is still held
    int dropRow_ = -1;       // while rows are dragged: the row before which they would come
    QString typed_;
    qint64 typedAt_ = 0; // ms
};

} // namespace tarvel
