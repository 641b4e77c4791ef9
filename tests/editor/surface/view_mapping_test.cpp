// Skin pixels on the surface and back, at several scales.
#include "support/ui_test.h"
#include "surface/view_mapping.h"

#include <QTest>

using namespace tarvel;

class ViewMappingTest : public QObject {
    Q_OBJECT

  private slots:
    void isOneToOneAtFirst();
    void goesThereAndBack_data();
    void goesThereAndBack();
    void findsThePixelUnderAPoint_data();
    void findsThePixelUnderAPoint();
};

void ViewMappingTest::isOneToOneAtFirst() {
    const ViewMapping mapping;
    QCOMPARE(mapping.screen(), QRectF(0, 0, 640, 480));
    QCOMPARE(mapping.toWidget(QPointF(12.5, -3)), QPointF(12.5, -3));
    QVERIFY(mapping.toWidget().isIdentity());
}

void ViewMappingTest::goesThereAndBack_data() {
    QTest::addColumn<double>("scale");
    QTest::addColumn<QPointF>("origin");
    QTest::newRow("half") << 0.5 << QPointF(10, 20);
    QTest::newRow("one") << 1.0 << QPointF(-5, 7);
    QTest::newRow("four") << 4.0 << QPointF(-1000, 3);
}

void ViewMappingTest::goesThereAndBack() {
    QFETCH(double, scale);
    QFETCH(QPointF, origin);
    const ViewMapping mapping(scale, origin);
    const QRectF skin(16, 32, 64, 128);
    const QRectF widget = mapping.toWidget(skin);
    QCOMPARE(widget, QRectF(origin + QPointF(16, 32) * scale, QSizeF(64, 128) * scale));
    QCOMPARE(mapping.toSkin(widget), skin);
    QCOMPARE(mapping.toWidget().mapRect(skin), widget);
    QCOMPARE(mapping.scale(), scale);
}

void ViewMappingTest::findsThePixelUnderAPoint_data() {
    QTest::addColumn<QPointF>("point");
    QTest::addColumn<QPointF>("pixel");
    QTest::newRow("its corner") << QPointF(100, 100) << QPointF(0, 0);
    QTest::newRow("its last part") << QPointF(103.9, 103.9) << QPointF(0, 0);
    QTest::newRow("the next") << QPointF(104, 108) << QPointF(1, 2);
    QTest::newRow("outside") << QPointF(99.9, 95.9) << QPointF(-1, -2);
}

void ViewMappingTest::findsThePixelUnderAPoint() {
    QFETCH(QPointF, point);
    QFETCH(QPointF, pixel);
    const SkinPoint found = ViewMapping(4, QPointF(100, 100)).pixelAt(point);
    QCOMPARE(QPointF(found.x, found.y), pixel);
}

TARVEL_UI_TEST(ViewMappingTest)

#include "view_mapping_test.moc"
