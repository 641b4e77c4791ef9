// Marks on the surface: they show on whatever picture is below them.
#include "support/ui_test.h"
#include "surface/mark_painting.h"
#include "widgets/style/contrast.h"

#include <QTest>

using namespace tarvel;

class MarkPaintingTest : public QObject {
    Q_OBJECT

  private slots:
    void marksShowOnAnyPicture_data();
    void marksShowOnAnyPicture();
    void bothTonesArePainted_data();
    void bothTonesArePainted();
};

void MarkPaintingTest::marksShowOnAnyPicture_data() {
    QTest::addColumn<QColor>("one");
    QTest::addColumn<QColor>("other");
    for (const auto& [name, tones] :
         std::initializer_list<std::pair<const char*, MarkTones>>{{"outline", outlineTones()},
                                                                  {"locked", lockedTones()},
                                                                  {"handle", handleTones()},
                                                                  {"several", groupTones()},
                                                                  {"hovered", hoverTones()},
                                                                  {"guide", guideTones()}}) {
        QTest::newRow(name) << tones.dark << tones.light;
    }
}

// Whatever is below it, one of the two tones stands out.
void MarkPaintingTest::marksShowOnAnyPicture() {
    QFETCH(QColor, one);
    QFETCH(QColor, other);
    constexpr int step = 15;
    for (int red = 0; red < 256; red += step) {
        for (int green = 0; green < 256; green += step) {
            for (int blue = 0; blue < 256; blue += step) {
                const QColor ground(red, green, blue);
                QVERIFY2(std::max(contrast(one, ground), contrast(other, ground)) >= markContrast,
                         qPrintable(ground.name()));
            }
        }
    }
}

void MarkPaintingTest::bothTonesArePainted_data() {
    QTest::addColumn<Qt::PenStyle>("style");
    QTest::newRow("dashed") << Qt::DashLine;
    QTest::newRow("solid") << Qt::SolidLine;
}

void MarkPaintingTest::bothTonesArePainted() {
    QFETCH(Qt::PenStyle, style);
    QImage image(60, 60, QImage::Format_RGB32);
    image.fill(Qt::darkGray);
    QPainter painter(&image);
    paintOutline(painter, QRectF(10.5, 10.5, 40, 40), outlineTones(), style);
    painter.end();
    int dark = 0;
    int light = 0;
    for (int x = 0; x < image.width(); ++x) {
        for (int y = 0; y < image.height(); ++y) {
            dark += static_cast<int>(image.pixelColor(x, y) == outlineTones().dark);
            light += static_cast<int>(image.pixelColor(x, y) == outlineTones().light);
        }
    }
    QVERIFY(dark >= 30);
    QVERIFY(light >= 30);
}

TARVEL_UI_TEST(MarkPaintingTest)
#include "mark_painting_test.moc"
