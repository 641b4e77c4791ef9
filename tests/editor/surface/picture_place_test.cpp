// What stands in for a missing picture: the file's name wherever there is room for it.
#include "support/ui_test.h"
#include "surface/picture_place.h"

#include <QImage>
#include <QTest>

namespace tarvel {

namespace {

constexpr QRectF surface{0, 0, 640, 480};

QImage painted(const QRectF& rect, const QString& name, const QString& reason,
               const QRectF& visible = surface) {
    QImage image(640, 480, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::black);
    QPainter painter(&image);
    paintMissingPicture(painter, rect, visible, name, reason);
    return image;
}

} // namespace

class PicturePlaceTest : public QObject {
    Q_OBJECT

  private slots:
    void namesTheFileWhereThereIsRoom_data();
    void namesTheFileWhereThereIsRoom();
    void textsStayInside();
};

void PicturePlaceTest::namesTheFileWhereThereIsRoom_data() {
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<bool>("name");
    QTest::addColumn<bool>("reason");
    QTest::newRow("large") << QRectF(10, 10, 200, 100) << true << true;
    QTest::newRow("as large as both") << QRectF(10, 10, 60, 32) << true << true;
    QTest::newRow("one line") << QRectF(10, 10, 60, 18) << true << false;
    QTest::newRow("low") << QRectF(10, 10, 200, 12) << true << false;
    QTest::newRow("too low") << QRectF(10, 10, 200, 6) << false << false;
    QTest::newRow("too narrow") << QRectF(10, 10, 20, 100) << false << false;
    QTest::newRow("a corner in sight") << QRectF(600, 470, 200, 100) << true << false;
    QTest::newRow("out of sight") << QRectF(700, 10, 200, 100) << false << false;
}

void PicturePlaceTest::namesTheFileWhereThereIsRoom() {
    QFETCH(QRectF, rect);
    QFETCH(bool, name);
    QFETCH(bool, reason);
    const QImage image = painted(rect, "a.png", "not found");
    QCOMPARE(image != painted(rect, "x.png", "not found"), name);
    QCOMPARE(image != painted(rect, "a.png", "too large"), reason);
}

void PicturePlaceTest::textsStayInside() {
    for (const double height : {100.0, 18.0, 12.0}) {
        const QRectF rect(10, 10, 60, height);
        QImage image = painted(rect, QString(200, 'W'), QString(200, 'W'));
        QPainter(&image).fillRect(rect, Qt::black);
        QImage black(image.size(), image.format());
        black.fill(Qt::black);
        QCOMPARE(image, black);
    }
}

} // namespace tarvel

TARVEL_UI_TEST(tarvel::PicturePlaceTest)
#include "picture_place_test.moc"
