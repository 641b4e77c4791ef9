// The menus of the right button: what they open on, stacking and locking.
#include "support/editor.h"
#include "support/surface_support.h"
#include "support/ui_test.h"
#include "surface/picture_cache.h"

#include <functional>

using namespace tarvel;
using namespace tarvel::test;

namespace {

// What the surface shows, without the marks that lie over it.
QImage lookOf(Editor& editor) {
    QImage image(skinWidth, skinHeight, QImage::Format_RGB32);
    editor.pic()->render(&image, {}, {}, QWidget::RenderFlags());
    return image;
}

// What a surface without any flat ground shows.
QImage afresh(Editor& editor) {
    PictureCache pictures;
    SurfacePainter painter(pictures);
    return painted(painter, editor.document(), editor.document().currentLayout());
}

} // namespace

Q_DECLARE_METATYPE(std::function<void(Editor&)>)

class StackingMenuTest : public QObject {
    Q_OBJECT

  private slots:
    void rightButtonOpensTheMenus();
    void stackingCommands();
    void lockedElementsAreGround();
    void groundFollowsWhatIsInIt_data();
    void groundFollowsWhatIsInIt();
    void groundOfAnotherScreenIsNeverShown();
    void unlockShowsAllAgain();
};

void StackingMenuTest::rightButtonOpensTheMenus() {
    Editor editor;
    editor.show();
    editor.add(boxAt(100, 100, 50, 50));
    auto* right = editor.find<QMenu>("mnuRight");
    auto* right2 = editor.find<QMenu>("mnuRight2");
    QTest::mouseClick(editor.pic(), Qt::RightButton, {}, {120, 120});
    QVERIFY(right->isVisible() && !right2->isVisible());
    QCOMPARE(editor.selectedRow(1), 0);
    QVERIFY(!editor.entry("mnuLocked")->isChecked());
    right->close();
    QTest::mouseClick(editor.pic(), Qt::RightButton, {}, {400, 400});
    QVERIFY(!right->isVisible() && right2->isVisible());
    QCOMPARE(editor.selectedRow(1), -1);
    right2->close();
    auto* list = editor.lst(1);
    const QPoint row = list->visualRect(list->model()->index(0, 0)).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, row);
    QContextMenuEvent onRow(QContextMenuEvent::Mouse, row, list->viewport()->mapToGlobal(row));
    QApplication::sendEvent(list->viewport(), &onRow);
    QVERIFY(right->isVisible());
    right->close();
    // Below the rows it is the menu of what is selected.
    const QPoint below(row.x(), list->viewport()->height() - 3);
    QTest::mouseClick(list->viewport(), Qt::RightButton, {}, below);
    QCOMPARE(editor.selectedRow(1), 0);
    QContextMenuEvent onEmpty(QContextMenuEvent::Mouse, below,
                              list->viewport()->mapToGlobal(below));
    QApplication::sendEvent(list->viewport(), &onEmpty);
    QVERIFY(right->isVisible());
    right->close();
    list->selectionModel()->clear();
    QApplication::sendEvent(list->viewport(), &onEmpty);
    QVERIFY(!right->isVisible() && right2->isVisible());
    right2->close();
    // The entry tells whether the element is locked.
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, row);
    editor.entry("mnuLocked")->trigger();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, row);
    QApplication::sendEvent(list->viewport(), &onRow);
    QVERIFY(right->isVisible());
    QVERIFY(editor.entry("mnuLocked")->isChecked());
    right->close();
}

void StackingMenuTest::stackingCommands() {
    Editor editor;
    editor.show();
    for (int i = 0; i < 5; ++i) {
        editor.add(boxAt(static_cast<float>(i), 0, 50, 50));
    }
    const auto ids = [&] {
        QList<int> result;
        for (int row = 0; row < editor.document().rowCount(1); ++row) {
            result << editor.document().itemData(1, row);
        }
        return result;
    };
    editor.selectRow(1, 2);
    editor.entry("mnuForward")->trigger();
    QCOMPARE(ids(), QList<int>({1, 2, 4, 3, 5}));
    QCOMPARE(editor.selectedRow(1), 3); // the moved element stays selected
    editor.entry("mnuFront")->trigger();
    QCOMPARE(ids(), QList<int>({1, 2, 4, 5, 3}));
    editor.entry("mnuBackward")->trigger();
    QCOMPARE(ids(), QList<int>({1, 2, 4, 3, 5}));
    editor.entry("mnuBack")->trigger();
    QCOMPARE(ids(), QList<int>({3, 1, 2, 4, 5}));
    QCOMPARE(editor.selectedRow(1), 0);
    editor.entry("mnuBack")->trigger();
    QCOMPARE(ids(), QList<int>({3, 1, 2, 4, 5}));
    editor.entry("mnuDeSel")->trigger();
    QCOMPARE(editor.selectedRow(1), -1);
    editor.entry("mnuFront")->trigger(); // nothing is selected
    QCOMPARE(ids(), QList<int>({3, 1, 2, 4, 5}));
    editor.selectRow(1, 1);
    editor.entry("mnuDelete")->trigger();
    QCOMPARE(ids(), QList<int>({3, 2, 4, 5}));
}

void StackingMenuTest::lockedElementsAreGround() {
    Editor editor;
    editor.show();
    const int back = editor.add(boxAt(10, 10, 200, 200));
    editor.add(boxAt(100, 100, 50, 50));
    editor.selectRow(1, 0);
    editor.entry("mnuLocked")->trigger();
    QCOMPARE(editor.document().rowText(1, 0), std::string("(L) Box: Alpha 80"));
    QCOMPARE(editor.document().lockCount(1), 1);
    QVERIFY(editor.document().element(back).elementLocked);
    editor.click({20, 20});
    QCOMPARE(editor.selectedRow(1), -1); // it cannot be picked
    editor.selectRow(1, 0);
    const SkinDocument before = editor.document();
    editor.pressDragRelease({20, 20}, {60, 60});
    editor.selectRow(1, 0);
    editor.pic()->setFocus();
    editor.key(Qt::Key_Left);
    QVERIFY(editor.document() == before); // nor moved
    // It still shows, now as part of the flat ground.
    QTRY_COMPARE(editor.pic()->grab().toImage().pixelColor(30, 30).red() > 100, true);
    editor.selectRow(1, 0);
    editor.entry("mnuDelete")->trigger();
    QCOMPARE(editor.document().lockCount(1), 0);
    QTRY_COMPARE(editor.pic()->grab().toImage().pixelColor(30, 30), QColor(Qt::black));
}

void StackingMenuTest::groundFollowsWhatIsInIt_data() {
    using Change = std::function<void(Editor&)>;
    QTest::addColumn<Change>("change");
    QTest::newRow("background") << Change([](Editor& editor) {
        QImage picture(64, 48, QImage::Format_RGB32);
        picture.fill(Qt::cyan);
        const QString file = editor.path(QStringLiteral("back.bmp"));
        QVERIFY(picture.save(file));
        editor.document().editSettings([&](SkinSettings& settings) {
            settings.background = {true, documentPath(hostPathOf(file))};
        });
    });
    QTest::newRow("locked element") << Change([](Editor& editor) {
        editor.document().editElement(
            1, [](Element& element) { element.elementControl.fillColor = makeColor(0, 200, 0); });
    });
    QTest::newRow("another document") << Change([](Editor& editor) {
        SkinDocument other = editor.document();
        other.editElement(1, [](Element& element) { element.elementControl.left = 300; });
        editor.document() = other;
    });
}

void StackingMenuTest::groundFollowsWhatIsInIt() {
    using Change = std::function<void(Editor&)>;
    QFETCH(Change, change);
    Editor editor;
    editor.show();
    editor.add(boxAt(10, 10, 200, 200));
    editor.add(boxAt(100, 100, 50, 50));
    editor.selectRow(1, 0);
    editor.entry("mnuLocked")->trigger();
    editor.entry("mnuDeSel")->trigger();
    settle(); // the ground waits for the end of a command
    QCOMPARE(lookOf(editor), afresh(editor));
    const QImage before = lookOf(editor);
    change(editor);
    QVERIFY(afresh(editor) != before);
    settle();
    QCOMPARE(lookOf(editor), afresh(editor));
}

void StackingMenuTest::groundOfAnotherScreenIsNeverShown() {
    Editor editor;
    editor.show();
    editor.add(boxAt(300, 300, 50, 50), 0);
    editor.add(boxAt(10, 10, 200, 200), 1);
    editor.selectRow(1, 0);
    editor.entry("mnuLocked")->trigger();
    settle();
    QCOMPARE(lookOf(editor), afresh(editor));
    editor.clickScreen(0);
    QCOMPARE(lookOf(editor), afresh(editor)); // at once, before any event is dealt with
}

void StackingMenuTest::unlockShowsAllAgain() {
    Editor editor;
    editor.show();
    editor.add(boxAt(10, 10, 50, 50));
    editor.add(boxAt(100, 100, 50, 50));
    editor.selectRow(1, 1);
    editor.entry("mnuLocked")->trigger();
    QCOMPARE(editor.document().lockCount(1), 2);
    editor.entry("mnuUnlock")->trigger();
    QCOMPARE(editor.document().lockCount(1), 0);
    QCOMPARE(editor.document().rowText(1, 1), std::string("Box: Alpha 80"));
    editor.click({120, 120});
    QCOMPARE(editor.selectedRow(1), 1);
}

TARVEL_UI_TEST(StackingMenuTest)
#include "stacking_menu_test.moc"
