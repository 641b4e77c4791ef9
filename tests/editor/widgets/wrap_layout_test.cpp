// Rows of a layout that wraps, parts that turn, and pages that keep room.
#include "support/ui_test.h"
#include "widgets/content_scroll.h"
#include "widgets/page_stack.h"
#include "widgets/turning_layout.h"
#include "widgets/wrap_layout.h"

#include <QScrollBar>
#include <QVBoxLayout>

using namespace tarvel;

namespace {

// A widget of a size that does not depend on the style.
class Block : public QWidget {
  public:
    explicit Block(QSize hint, QSize smallest = {})
        : hint_(hint)
        , smallest_(smallest.isEmpty() ? hint : smallest) {}
    [[nodiscard]] QSize sizeHint() const override { return hint_; }
    [[nodiscard]] QSize minimumSizeHint() const override { return smallest_; }
    void become(QSize size) {
        hint_ = smallest_ = size;
        updateGeometry();
    }

  private:
    QSize hint_;
    QSize smallest_;
};

using Rects = QList<QRect>;

Rects placesIn(const QWidget& window) {
    Rects places;
    for (const QObject* child : window.children()) {
        if (const auto* widget = qobject_cast<const QWidget*>(child);
            widget != nullptr && !widget->isHidden()) {
            places << widget->geometry();
        }
    }
    return places;
}

} // namespace

class WrapLayoutTest : public QObject {
    Q_OBJECT

  private slots:
    void rows_data();
    void rows();
    void asksForOneRowAndNeedsTheWidestItem();
    void hiddenItemsTakeNoRoom();
    void partsTurnWhereTheyAreTooWide();
    void pagesKeepRoomForTheHighest();
    void contentScrollsInLessThanItsSize();
};

void WrapLayoutTest::rows_data() {
    using Fill = WrapLayout::Fill;
    QTest::addColumn<int>("fill");
    QTest::addColumn<int>("most");
    QTest::addColumn<int>("width");
    QTest::addColumn<Rects>("places");
    const int none = static_cast<int>(Fill::none);
    const int evenly = static_cast<int>(Fill::evenly);
    const int any = 99;
    QTest::newRow("one row") << none << any << 200
                             << Rects{{0, 0, 40, 20}, {50, 0, 60, 20}, {120, 0, 50, 20}};
    QTest::newRow("exactly") << none << any << 170
                             << Rects{{0, 0, 40, 20}, {50, 0, 60, 20}, {120, 0, 50, 20}};
    QTest::newRow("one too narrow")
        << none << any << 169 << Rects{{0, 0, 40, 20}, {50, 0, 60, 20}, {0, 30, 50, 20}};
    QTest::newRow("each alone") << none << any << 60
                                << Rects{{0, 0, 40, 20}, {0, 30, 60, 20}, {0, 60, 50, 20}};
    QTest::newRow("at most two") << none << 2 << 200
                                 << Rects{{0, 0, 40, 20}, {50, 0, 60, 20}, {0, 30, 50, 20}};
    QTest::newRow("evenly in one row")
        << evenly << any << 230 << Rects{{0, 0, 70, 20}, {80, 0, 70, 20}, {160, 0, 70, 20}};
    QTest::newRow("evenly in two rows")
        << evenly << any << 190 << Rects{{0, 0, 90, 20}, {100, 0, 90, 20}, {0, 30, 90, 20}};
    QTest::newRow("evenly each alone")
        << evenly << any << 129 << Rects{{0, 0, 129, 20}, {0, 30, 129, 20}, {0, 60, 129, 20}};
}

void WrapLayoutTest::rows() {
    QFETCH(const int, fill);
    QFETCH(const int, most);
    QFETCH(const int, width);
    QFETCH(const Rects, places);
    QWidget window;
    auto* layout = new WrapLayout(static_cast<WrapLayout::Fill>(fill), &window);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(10);
    layout->setMostPerRow(static_cast<std::size_t>(most));
    for (const int wide : {40, 60, 50}) {
        layout->addWidget(new Block({wide, 20}));
    }
    layout->setGeometry({0, 0, width, 200});
    QCOMPARE(placesIn(window), places);
    QCOMPARE(layout->heightForWidth(width), places.last().bottom() + 1);
}

void WrapLayoutTest::asksForOneRowAndNeedsTheWidestItem() {
    QWidget window;
    auto* layout = new WrapLayout(WrapLayout::Fill::none, &window);
    layout->setContentsMargins(1, 2, 3, 4);
    layout->setSpacing(10);
    QCOMPARE(layout->sizeHint(), QSize(4, 6));
    layout->addWidget(new Block({40, 20}));
    layout->addTogether({new Block({20, 30}), new Block({30, 10})});
    const int together = layout->itemAt(1)->sizeHint().width();
    QVERIFY(together >= 50);
    QCOMPARE(layout->sizeHint(), QSize(40 + 10 + together + 4, 30 + 6));
    QCOMPARE(layout->minimumSize(), QSize(together + 4, 30 + 6));
}

void WrapLayoutTest::hiddenItemsTakeNoRoom() {
    QWidget window;
    auto* layout = new WrapLayout(WrapLayout::Fill::evenly, &window);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(10);
    auto* hidden = new Block({80, 20});
    layout->addWidget(new Block({40, 20}));
    layout->addWidget(hidden);
    hidden->hide();
    QCOMPARE(layout->sizeHint(), QSize(40, 20));
    layout->setGeometry({0, 0, 100, 100});
    QCOMPARE(placesIn(window), Rects({{0, 0, 100, 20}}));
}

void WrapLayoutTest::partsTurnWhereTheyAreTooWide() {
    QWidget window;
    auto* layout = new TurningLayout(new Block({100, 50}), new Block({200, 40}, QSize(120, 30)));
    layout->setSpacing(10);
    window.setLayout(layout);
    QCOMPARE(layout->sizeHint(), QSize(310, 50));
    QCOMPARE(layout->minimumSize(), QSize(120, 50));
    QCOMPARE(layout->heightForWidth(230), 50);
    QCOMPARE(layout->heightForWidth(229), 100);
    layout->setGeometry({0, 0, 300, 60});
    const Rects beside = placesIn(window);
    QCOMPARE(beside.at(1).left(), beside.at(0).right() + 1 + 10);
    QCOMPARE(beside.at(1).right(), 299);
    layout->setGeometry({0, 0, 200, 140});
    const Rects below = placesIn(window);
    QCOMPARE(below.at(1).top(), below.at(0).bottom() + 1 + 10);
    QCOMPARE(below.at(1).bottom(), 139);
    QCOMPARE(below.at(1).width(), 200);
}

void WrapLayoutTest::pagesKeepRoomForTheHighest() {
    QWidget window;
    auto* pages = new PageStack;
    window.setLayout(pages);
    auto* first = new Block({100, 20});
    pages->addWidget(first);
    pages->addWidget(new Block({60, 90}));
    QCOMPARE(pages->sizeHint(), QSize(100, 90));
    QCOMPARE(pages->minimumSize(), QSize(100, 90));
    first->become({100, 120}); // what is known of the pages is no longer true
    QCOMPARE(pages->sizeHint(), QSize(100, 120));
    first->become({100, 20});
    pages->keepRoom(false);
    QCOMPARE(pages->sizeHint(), QSize(100, 20));
    QCOMPARE(pages->minimumSize(), QSize(100, 20));
    QCOMPARE(pages->highest(100), 90);
    pages->setCurrentIndex(1);
    QCOMPARE(pages->sizeHint(), QSize(100, 90));
}

void WrapLayoutTest::contentScrollsInLessThanItsSize() {
    QWidget window;
    auto* row = new QVBoxLayout(&window);
    row->setContentsMargins(0, 0, 0, 0);
    auto* scroll = new ContentScroll(new Block({300, 400}), ContentScroll::Ways::down);
    row->addWidget(scroll);
    QCOMPARE(scroll->sizeHint(), QSize(300, 400));
    window.show();
    window.resize(320, 400);
    QTRY_VERIFY(!scroll->verticalScrollBar()->isVisible());
    window.resize(320, 200);
    QTRY_VERIFY(scroll->verticalScrollBar()->isVisible());
    QVERIFY(!scroll->horizontalScrollBar()->isVisible());
    window.resize(10, 10);
    QTRY_VERIFY(scroll->viewport()->width() >= 300); // it scrolls only up and down
}

TARVEL_UI_TEST(WrapLayoutTest)
#include "wrap_layout_test.moc"
