// Which parts of the surface a change touches.
#include "support/surface_support.h"
#include "support/ui_test.h"
#include "surface/surface_damage.h"
#include "surface/surface_painter.h"

#include <QTest>

using namespace tarvel;
using namespace tarvel::test;

namespace {

QRectF placeOf(int number) {
    return {20.0 * number, 10, 15, 15};
}

QRectF boundsOf(int number) {
    return elementBounds(boxOf(placeOf(number), red));
}

// Boxes with ids 1 to `count` on "Menu".
SkinDocument boxes(int count) {
    SkinDocument document;
    for (int number = 1; number <= count; ++number) {
        document.addElement(boxOf(placeOf(number), red));
    }
    return document;
}

} // namespace

class SurfaceDamageTest : public QObject {
    Q_OBJECT

  private slots:
    void firstLookIsEverything();
    void anotherScreenIsEverything();
    void nothingChanged();
    void addedRows();
    void removedRows();
    void movedRow_data();
    void movedRow();
    void manyRowsAreEverything();
    void movedElementIsItsOldAndNewPlace();
    void elementOfAnotherScreenIsNothing();
    void elementThatIsGoneIsNothing();
};

void SurfaceDamageTest::firstLookIsEverything() {
    SurfaceDamage damage;
    QVERIFY(damage.rowsChanged(boxes(3), 1).whole);
}

void SurfaceDamageTest::anotherScreenIsEverything() {
    SurfaceDamage damage;
    const SkinDocument document = boxes(3);
    (void)damage.rowsChanged(document, 1);
    QVERIFY(damage.rowsChanged(document, 2).whole);
    QVERIFY(damage.placeOf(1).isEmpty());
}

void SurfaceDamageTest::nothingChanged() {
    SurfaceDamage damage;
    const SkinDocument document = boxes(3);
    (void)damage.rowsChanged(document, 1);
    QVERIFY(damage.rowsChanged(document, 1).empty());
    QCOMPARE(damage.placeOf(2), boundsOf(2));
}

void SurfaceDamageTest::addedRows() {
    SurfaceDamage damage;
    SkinDocument document = boxes(3);
    (void)damage.rowsChanged(document, 1);
    document.addElement(boxOf(placeOf(4), red));
    document.addElement(boxOf(placeOf(5), red));
    const Damage found = damage.rowsChanged(document, 1);
    QVERIFY(!found.whole);
    QCOMPARE(found.rects, (std::vector<QRectF>{boundsOf(4), boundsOf(5)}));
}

void SurfaceDamageTest::removedRows() {
    SurfaceDamage damage;
    SkinDocument document = boxes(5);
    (void)damage.rowsChanged(document, 1);
    document.delItem(1);
    QCOMPARE(damage.rowsChanged(document, 1).rects, std::vector<QRectF>{boundsOf(2)});
    document.delItem(3);
    document.delItem(0);
    const Damage found = damage.rowsChanged(document, 1);
    QRectF all;
    for (const QRectF& rect : found.rects) {
        all |= rect;
    }
    QVERIFY(all.contains(boundsOf(1)));
    QVERIFY(all.contains(boundsOf(5)));
}

void SurfaceDamageTest::movedRow_data() {
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::newRow("to the front") << 0 << 39;
    QTest::newRow("to the back") << 39 << 0;
    QTest::newRow("forward") << 10 << 11;
    QTest::newRow("backward") << 11 << 10;
    QTest::newRow("far") << 3 << 30;
}

void SurfaceDamageTest::movedRow() {
    QFETCH(int, from);
    QFETCH(int, to);
    SurfaceDamage damage;
    SkinDocument document = boxes(40);
    (void)damage.rowsChanged(document, 1);
    document.moveRow(1, from, to);
    const Damage found = damage.rowsChanged(document, 1);
    QVERIFY(!found.whole);
    QCOMPARE(found.rects.size(), std::size_t{1});
    // Neighbours that change places: either of them will do.
    const bool neighbours = std::abs(from - to) == 1;
    QVERIFY(found.rects.front() == boundsOf(from + 1) ||
            (neighbours && found.rects.front() == boundsOf(to + 1)));
}

void SurfaceDamageTest::manyRowsAreEverything() {
    SurfaceDamage damage;
    SkinDocument document = boxes(3);
    (void)damage.rowsChanged(document, 1);
    for (int number = 0; number < 100; ++number) {
        document.addElement(boxOf(placeOf(number), red));
    }
    QVERIFY(damage.rowsChanged(document, 1).whole);
}

void SurfaceDamageTest::movedElementIsItsOldAndNewPlace() {
    SurfaceDamage damage;
    SkinDocument document = boxes(3);
    (void)damage.rowsChanged(document, 1);
    for (const int number : {8, 9}) {
        const QRectF before = damage.placeOf(2);
        document.editElement(2, [&](Element& element) {
            element.elementControl.left = static_cast<float>(placeOf(number).left());
        });
        const Damage found = damage.elementChanged(document, 2);
        QVERIFY(!found.whole);
        QCOMPARE(found.rects, (std::vector<QRectF>{before, boundsOf(number)}));
    }
}

void SurfaceDamageTest::elementOfAnotherScreenIsNothing() {
    SurfaceDamage damage;
    const SkinDocument document = boxes(3);
    (void)damage.rowsChanged(document, 0);
    QVERIFY(damage.elementChanged(document, 2).empty());
}

void SurfaceDamageTest::elementThatIsGoneIsNothing() {
    SurfaceDamage damage;
    SkinDocument document = boxes(3);
    document.delItem(1);
    (void)damage.rowsChanged(document, 1);
    QVERIFY(damage.elementChanged(document, 2).empty());
    QVERIFY(damage.placeOf(2).isEmpty());
}

TARVEL_UI_TEST(SurfaceDamageTest)
#include "surface_damage_test.moc"
