// The column beside the surface: panels that scroll when the window is low, above what always
// stays.
#pragma once

#include <QWidget>

namespace tarvel {

class ContentScroll;
class PageStack;

/// Its smallest width is that of its contents; its height may be any.
class SideColumn : public QWidget {
    Q_OBJECT

  public:
    /// Takes both in: `panels` scroll up and down, `floor` stays below them. `pages`, somewhere in
    /// the panels, keep room for the highest one only where nothing has to scroll for it.
    SideColumn(ContentScroll* panels, QWidget* floor, PageStack& pages, QWidget* parent = nullptr);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void shareRoom();

    ContentScroll& scroll_;
    PageStack& pages_;
};

} // namespace tarvel
