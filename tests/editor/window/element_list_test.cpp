// The element list by hand: rows dragged to another place, found by typing, shown on the surface.
#include "support/behaviour_editor.h"
#include "support/clipboard_support.h"
#include "support/ui_test.h"
#include "surface/surface_room.h"

using namespace tarvel;
using namespace tarvel::test;

namespace {

// Boxes named A to E, 20 pixels apart, on "Menu".
void addFive(Editor& editor) {
    for (int i = 0; i < 5; ++i) {
        Element box = boxAt(20 + 20 * static_cast<float>(i), 30, 15, 40);
        box.label = std::string("Box ") + static_cast<char>('A' + i);
        editor.add(box);
    }
    editor.show();
}

// A point of a row, a part of its height below its top.
QPoint pointIn(Editor& editor, int row, double part) {
    const QListView* list = editor.lst(1);
    const QRect rect = list->visualRect(list->model()->index(row, 0));
    return {rect.left() + 10, rect.top() + static_cast<int>(part * rect.height())};
}

void moveTo(Editor& editor, QPoint at, Qt::MouseButtons held = Qt::LeftButton) {
    QWidget* target = editor.lst(1)->viewport();
    QMouseEvent move(QEvent::MouseMove, at, target->mapToGlobal(at), Qt::NoButton, held, {});
    QApplication::sendEvent(target, &move);
}

void press(Editor& editor, QPoint at) {
    QTest::mousePress(editor.lst(1)->viewport(), Qt::LeftButton, {}, at);
}

void release(Editor& editor, QPoint at) {
    QTest::mouseRelease(editor.lst(1)->viewport(), Qt::LeftButton, {}, at);
}

void dragRow(Editor& editor, int row, QPoint to) {
    press(editor, pointIn(editor, row, 0.5));
    moveTo(editor, (pointIn(editor, row, 0.5) + to) / 2);
    moveTo(editor, to);
    release(editor, to);
}

constexpr double above = 0.2;
constexpr double below = 0.8;
constexpr int endOfList = 5;

} // namespace

class ElementListTest : public QObject {
    Q_OBJECT

  private slots:
    void draggedRowsTakeTheirPlace_data();
    void draggedRowsTakeTheirPlace();
    void lockedRowsStay();
    void escapeEndsADrag();
    void aClickOnOneOfSeveralSelectsIt();
    void typingFindsTheNextRow();
    void rowBelowThePointerIsMarked();
    void whatIsSelectedComesIntoSight();
    void aDraggedRowEndsWellOverTheSurface();
};

void ElementListTest::draggedRowsTakeTheirPlace_data() {
    QTest::addColumn<std::vector<int>>("selected");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("target");
    QTest::addColumn<double>("part");
    QTest::addColumn<int>("locked");
    QTest::addColumn<std::vector<int>>("ids");
    using Rows = std::vector<int>;
    const auto row = [](const char* name, const Rows& selected, int dragged, int target,
                        double part, int locked, const Rows& ids) {
        QTest::newRow(name) << selected << dragged << target << part << locked << ids;
    };
    row("down", {}, 0, 2, below, 0, {2, 3, 1, 4, 5});
    row("up", {}, 4, 1, above, 0, {1, 5, 2, 3, 4});
    row("to the front", {}, 1, 4, below, 0, {1, 3, 4, 5, 2});
    row("beyond the last row", {}, 1, endOfList, 0, 0, {1, 3, 4, 5, 2});
    row("several", {0, 3}, 3, 1, below, 0, {2, 1, 4, 3, 5});
    row("another than the selected", {0, 1}, 3, 0, above, 0, {4, 1, 2, 3, 5});
    row("onto its place", {}, 2, 3, above, 0, {1, 2, 3, 4, 5});
    row("into the locked", {}, 4, 0, above, 2, {1, 2, 5, 3, 4});
    row("locked ones among them", {0, 3, 4}, 3, 2, above, 2, {1, 2, 4, 5, 3});
}

void ElementListTest::draggedRowsTakeTheirPlace() {
    QFETCH(std::vector<int>, selected);
    QFETCH(int, row);
    QFETCH(int, target);
    QFETCH(double, part);
    QFETCH(int, locked);
    QFETCH(std::vector<int>, ids);
    Editor editor;
    addFive(editor);
    if (locked > 0) {
        selectRows(editor, 1, {locked - 1});
        editor.entry("mnuLocked")->trigger();
        editor.entry("mnuDeSel")->trigger();
    }
    selectRows(editor, 1, selected);
    const int dragged = editor.document().itemData(1, row);
    const SkinDocument before = editor.document();
    const QString undo = editor.caption("mnuUndo");
    const QPoint to = target == endOfList ? pointIn(editor, 4, 1.5) : pointIn(editor, target, part);
    dragRow(editor, row, to);
    QCOMPARE(idsOn(editor, 1), ids);
    QCOMPARE(editor.document().lockCount(1), locked);
    const bool wasSelected = std::find(selected.begin(), selected.end(), row) != selected.end();
    const auto many = wasSelected ? selected.size() : 1;
    QCOMPARE(static_cast<std::size_t>(selectedRows(editor, 1).size()), many);
    QVERIFY(selectedRows(editor, 1).contains(editor.document().rowOf(1, dragged)));
    if (ids == std::vector<int>({1, 2, 3, 4, 5})) {
        QCOMPARE(editor.caption("mnuUndo"), undo); // no step
        return;
    }
    const QString what =
        many == 1 ? QStringLiteral("Box") : QStringLiteral("%1 elements").arg(many);
    QCOMPARE(editor.caption("mnuUndo"), "Undo reorder " + what);
    editor.entry("mnuUndo")->trigger();
    QVERIFY(editor.document().holdsTheSame(before));
    editor.entry("mnuRedo")->trigger();
    QCOMPARE(idsOn(editor, 1), ids);
}

void ElementListTest::lockedRowsStay() {
    Editor editor;
    addFive(editor);
    selectRows(editor, 1, {1});
    editor.entry("mnuLocked")->trigger();
    const SkinDocument before = editor.document();
    dragRow(editor, 0, pointIn(editor, 4, below));
    QVERIFY(editor.document() == before);
}

void ElementListTest::escapeEndsADrag() {
    Editor editor;
    addFive(editor);
    const SkinDocument before = editor.document();
    press(editor, pointIn(editor, 1, 0.5));
    moveTo(editor, pointIn(editor, 3, below));
    QTest::keyClick(editor.lst(1), Qt::Key_Escape);
    moveTo(editor, pointIn(editor, 4, below));
    release(editor, pointIn(editor, 4, below));
    QVERIFY(editor.document() == before);
    QCOMPARE(selectedRows(editor, 1), QList<int>({1})); // it stays selected
    dragRow(editor, 1, pointIn(editor, 4, below));      // the next one goes
    QCOMPARE(idsOn(editor, 1), (std::vector<int>{1, 3, 4, 5, 2}));
}

void ElementListTest::aClickOnOneOfSeveralSelectsIt() {
    Editor editor;
    addFive(editor);
    selectRows(editor, 1, {0, 2, 3});
    press(editor, pointIn(editor, 2, 0.5));
    QCOMPARE(selectedRows(editor, 1), QList<int>({0, 2, 3})); // they may be about to be dragged
    release(editor, pointIn(editor, 2, 0.5));
    QCOMPARE(selectedRows(editor, 1), QList<int>({2}));
}

void ElementListTest::typingFindsTheNextRow() {
    Editor editor;
    for (const char* label : {"Box", "Image Sky", "Box sky", "Line", "SKYLINE"}) {
        Element box = boxAt(20, 30, 15, 40);
        box.label = label;
        editor.add(box);
    }
    editor.show();
    auto* list = editor.lst(1);
    list->setFocus();
    const auto typed = [&](const char* letters) {
        // After a pause letters begin a new search.
        const int pause = QApplication::keyboardInputInterval();
        QApplication::setKeyboardInputInterval(0);
        QTest::keyClick(list, letters[0]);
        QApplication::setKeyboardInputInterval(100'000);
        QTest::keyClicks(list, letters + 1);
        QApplication::setKeyboardInputInterval(pause);
        return editor.window.curNum();
    };
    QCOMPARE(typed("sky"), 2);
    QCOMPARE(typed("s"), 3);
    QCOMPARE(typed("line"), 4);
    QCOMPARE(typed("sky"), 5);
    QCOMPARE(typed("sky"), 2); // from the top again
    QCOMPARE(typed("zz"), 2);  // nowhere
    QCOMPARE(selectedRows(editor, 1), QList<int>({1}));
}

void ElementListTest::rowBelowThePointerIsMarked() {
    Editor editor;
    addFive(editor);
    auto* mark = editor.find<QWidget>("hoverMark");
    QVERIFY(!mark->isVisible());
    moveTo(editor, pointIn(editor, 2, 0.5), Qt::NoButton);
    QVERIFY(mark->isVisible());
    QCOMPARE(mark->geometry(), QRect(60, 30, 15, 40).adjusted(-3, -3, 3, 3));
    QCOMPARE(editor.window.curNum(), 0); // which selects nothing
    editor.document().editElement(3, [](Element& box) { box.elementControl.left = 200; });
    QCOMPARE(mark->geometry().left(), 197);
    editor.document().delItem(2);
    QVERIFY(!mark->isVisible());
    moveTo(editor, pointIn(editor, 0, 0.5), Qt::NoButton);
    QVERIFY(mark->isVisible());
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(editor.lst(1)->viewport(), &leave);
    QVERIFY(!mark->isVisible());
    moveTo(editor, pointIn(editor, 0, 0.5), Qt::NoButton);
    editor.clickScreen(2);
    QVERIFY(!mark->isVisible());
}

// Also where the panel of its kind takes other room than the one before.
void ElementListTest::whatIsSelectedComesIntoSight() {
    Editor editor;
    for (int i = 0; i < 30; ++i) {
        editor.add(boxAt(16 * static_cast<float>(i), 30, 12, 40));
    }
    Element menu = boxAt(100, 200, 400, 240);
    menu.elementKind = ElementKind::Menu;
    editor.add(menu);
    editor.show();
    for (const QSize& size : {QSize(1020, 608), QSize(1360, 736), QSize(1900, 1040)}) {
        editor.window.resize(size);
        settle();
        for (const auto& [at, row] :
             {std::pair{QPoint(6, 50), 0}, {QPoint(300, 300), 30}, {QPoint(16 * 20 + 6, 50), 20}}) {
            editor.selectRow(1, -1);
            const auto& room = *editor.find<SurfaceRoom>("surfaceRoom");
            QTest::mouseClick(editor.pic(), Qt::LeftButton, {}, at * room.zoom() / 100);
            settle();
            QCOMPARE(editor.window.curNum(), row + 1);
            const QListView* list = editor.lst(1);
            const QRect place = list->visualRect(list->model()->index(row, 0));
            QVERIFY2(list->viewport()->rect().contains(place.center()),
                     qPrintable(QString("row %1, %2").arg(row).arg(size.width())));
        }
    }
}

// The marks of rows and elements below the pointer come and go meanwhile.
void ElementListTest::aDraggedRowEndsWellOverTheSurface() {
    Editor editor;
    addFive(editor);
    const auto order = [&] {
        std::vector<int> ids;
        for (int row = 0; row < 5; ++row) {
            ids.push_back(editor.document().itemData(1, row));
        }
        return ids;
    };
    press(editor, pointIn(editor, 0, 0.5));
    moveTo(editor, pointIn(editor, 2, 0.5));
    const QPoint onElement(87, 50); // box D
    QTest::mouseMove(editor.pic(), onElement);
    moveTo(editor, pointIn(editor, 3, below));
    editor.document().editElement(4, [](Element& box) { box.elementControl.left = 300; });
    QTest::mouseMove(editor.pic(), QPoint(500, 400));
    moveTo(editor, pointIn(editor, 4, below));
    release(editor, pointIn(editor, 4, below));
    QCOMPARE(order(), (std::vector<int>{2, 3, 4, 5, 1}));
    QCOMPARE(editor.window.curNum(), 1);
    moveTo(editor, pointIn(editor, 2, 0.5), Qt::NoButton);
    auto* mark = editor.find<QWidget>("hoverMark");
    QVERIFY(mark->isVisible());
    QCOMPARE(mark->geometry().left(), 297);
}

TARVEL_UI_TEST(ElementListTest)
#include "element_list_test.moc"
