// The two columns of the main window, and how they share its width.
#pragma once

#include <QSplitter>

#include <optional>

namespace tarvel {

class Remembered;

/// The right column is as wide as its contents want it, or less where the left one needs the room,
/// until the user drags its edge; that width is remembered. All else is the left column's.
class WindowColumns : public QSplitter {
    Q_OBJECT

  public:
    /// `remembered` is not owned and outlives it.
    explicit WindowColumns(Remembered& remembered, QWidget* parent = nullptr);

    /// Takes the columns in. The right one comes first in the order of the Tab key. What the left
    /// one needs is the width that `most`, a part of it, asks for.
    void setColumns(QWidget* left, QWidget* right, QWidget* most);

    /// What both want, and the edge between them.
    [[nodiscard]] QSize sizeHint() const override;

  protected:
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;

  private:
    void share();
    void dragged();

    Remembered& remembered_;
    QWidget* most_ = nullptr;
    int chosen_; // the right column's width as it was dragged; 0 for none
};

} // namespace tarvel
