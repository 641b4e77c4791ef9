// Icons: every one is drawn on both grids, crisp, and in the colours of the palette.
#include "support/ui_test.h"
#include "widgets/icons.h"
#include "widgets/style/palettes.h"

#include <QFile>
#include <QPainter>
#include <QPushButton>
#include <QTest>

#include <algorithm>

using namespace tarvel;

namespace {

// How many pixels have about that colour and are opaque.
int pixelsOf(const QImage& image, const QColor& color) {
    constexpr int tolerance = 8;
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            count += static_cast<int>(pixel.alpha() == 255 &&
                                      std::abs(pixel.red() - color.red()) < tolerance &&
                                      std::abs(pixel.green() - color.green()) < tolerance &&
                                      std::abs(pixel.blue() - color.blue()) < tolerance);
        }
    }
    return count;
}

QImage imageOf(IconName name, int side, QIcon::Mode mode = QIcon::Normal) {
    return icon(name).pixmap(QSize(side, side), 1, mode).toImage();
}

void setShade(Shade shade) {
    QApplication::setPalette(paletteOf(shade));
}

} // namespace

class IconsTest : public QObject {
    Q_OBJECT

  private slots:
    void everyIconIsDrawnOnBothGrids();
    void inksAreThoseOfThePalette_data();
    void inksAreThoseOfThePalette();
    void aButtonFollowsThePalette();
    void strokesAreCrispAtEachSize();
    void finerDisplaysHaveFinerIcons();
    void cleanup() { QApplication::setPalette({}); }
};

void IconsTest::everyIconIsDrawnOnBothGrids() {
    setShade(Shade::light);
    for (int i = 0; i < iconCount; ++i) {
        const auto name = static_cast<IconName>(i);
        for (const int grid : {16, 24}) {
            const QString file =
                QStringLiteral(":/tarvel/icons/%1/%2.svg").arg(grid).arg(iconFile(name));
            QVERIFY2(QFile::exists(file), qPrintable(file));
            const QImage image = imageOf(name, grid);
            QCOMPARE(image.size(), QSize(grid, grid));
            int inked = 0;
            for (int y = 0; y < grid; ++y) {
                for (int x = 0; x < grid; ++x) {
                    inked += static_cast<int>(image.pixelColor(x, y).alpha() > 127);
                }
            }
            QVERIFY2(inked >= grid, qPrintable(file));
        }
    }
}

void IconsTest::inksAreThoseOfThePalette_data() {
    QTest::addColumn<Shade>("shade");
    QTest::addColumn<QIcon::Mode>("mode");
    QTest::addColumn<QColor>("text");
    QTest::addColumn<QColor>("accent");
    for (const Shade shade : {Shade::light, Shade::dark}) {
        const QPalette& colors = paletteOf(shade);
        const char* words = shade == Shade::light ? "light" : "dark";
        const QColor text = colors.color(QPalette::WindowText);
        const QColor accent = colors.color(QPalette::Highlight);
        const QColor off = colors.color(QPalette::Disabled, QPalette::WindowText);
        const QColor marked = colors.color(QPalette::HighlightedText);
        QTest::addRow("%s", words) << shade << QIcon::Normal << text << accent;
        QTest::addRow("%s, below the pointer", words) << shade << QIcon::Active << text << accent;
        QTest::addRow("%s, disabled", words) << shade << QIcon::Disabled << off << off;
        QTest::addRow("%s, selected", words) << shade << QIcon::Selected << marked << marked;
    }
}

void IconsTest::inksAreThoseOfThePalette() {
    QFETCH(Shade, shade);
    QFETCH(QIcon::Mode, mode);
    QFETCH(QColor, text);
    QFETCH(QColor, accent);
    setShade(shade);
    const QImage image = imageOf(IconName::box, 16, mode);
    QCOMPARE(image.pixelColor(1, 2), text);   // the frame
    QCOMPARE(image.pixelColor(8, 8), accent); // what fills it
}

void IconsTest::aButtonFollowsThePalette() {
    setShade(Shade::light);
    QPushButton button;
    button.setFlat(true);
    button.setIcon(icon(IconName::stop));
    button.setIconSize({16, 16});
    button.show();
    const auto shown = [&](Shade shade) {
        return pixelsOf(button.grab().toImage(), paletteOf(shade).color(QPalette::WindowText));
    };
    QVERIFY(shown(Shade::light) >= 100);
    setShade(Shade::dark);
    QVERIFY(shown(Shade::dark) >= 100);
    QCOMPARE(shown(Shade::light), 0);
}

// Of what runs across and down alone, each pixel is inked wholly or not at all.
void IconsTest::strokesAreCrispAtEachSize() {
    setShade(Shade::light);
    for (const IconName name : {IconName::box, IconName::menu, IconName::alignLeft, IconName::add,
                                IconName::alignTop, IconName::distributeAcross, IconName::text,
                                IconName::bringForward, IconName::zoomFit, IconName::save}) {
        for (const int side : {16, 24, 32, 48}) {
            const QImage image = imageOf(name, side);
            int soft = 0;
            for (int y = 0; y < side; ++y) {
                for (int x = 0; x < side; ++x) {
                    const int alpha = image.pixelColor(x, y).alpha();
                    soft += static_cast<int>(alpha > 8 && alpha < 247);
                }
            }
            constexpr int corners = 60; // of the one with a cut corner, at the largest size
            QVERIFY2(
                soft <= (name == IconName::save ? corners : 0),
                qPrintable(QStringLiteral("%1 at %2: %3").arg(iconFile(name)).arg(side).arg(soft)));
        }
    }
}

void IconsTest::finerDisplaysHaveFinerIcons() {
    const QPixmap fine = icon(IconName::undo).pixmap(QSize(16, 16), 2);
    QCOMPARE(fine.size(), QSize(32, 32));
    QCOMPARE(fine.devicePixelRatio(), 2.0);
    QImage page(32, 32, QImage::Format_ARGB32_Premultiplied);
    page.setDevicePixelRatio(2);
    page.fill(Qt::transparent);
    QPainter painter(&page);
    icon(IconName::undo).paint(&painter, QRect(0, 0, 16, 16));
    painter.end();
    QCOMPARE(page.convertToFormat(QImage::Format_ARGB32), [&] {
        QImage same = fine.toImage().convertToFormat(QImage::Format_ARGB32);
        return same;
    }());
}

TARVEL_UI_TEST(IconsTest)
#include "icons_test.moc"
