// Screens as they play: what the painter makes of the looks of a moment.
#include "playing/played_frame.h"
#include "support/surface_support.h"
#include "support/ui_test.h"
#include "surface/picture_cache.h"
#include "surface/played_list_painting.h"
#include "text/xml_parse.h"

#include <QTest>

using namespace tarvel;
using namespace tarvel::test;

namespace {

constexpr int mainScreen = 1;

ModifierCatalogue catalogue() {
    return ModifierCatalogue(
        parseXml("<modifiers><types><Fade preview='opacity'>Range</Fade><Pulse "
                 "preview='scale'>Range</Pulse><Slide preview='move'>Bounds</Slide><Tint>Color"
                 "</Tint></types></modifiers>"));
}

Element withModifier(Element element, const std::string& modifier) {
    element.elementModifiers = SharedValue(parseXml(modifier));
    return element;
}

// A picture of elements at a time.
struct Played {
    explicit Played(std::vector<Element> elements) {
        document.setCurrentLayout(mainScreen);
        document.addElements(std::move(elements));
    }
    QImage at(PlayTime time, const QRectF& dirty = wholeSurface, double scale = 1) {
        const PlayedScreen screen(document, mainScreen, catalogue());
        PlayedFrame frame(screen, choices);
        frame.show(time, choices, [](const auto*, const auto*) {});
        QImage image(QSize(skinWidth, skinHeight) * scale, QImage::Format_RGB32);
        image.fill(Qt::black);
        QPainter target(&image);
        target.scale(scale, scale);
        PictureCache pictures;
        SurfacePainter(pictures).paint(target, document, mainScreen, dirty, {.played = &frame});
        return image;
    }

    SkinDocument document;
    PlayChoices choices;
};

// Where a picture differs from black.
QRect shownPart(const QImage& image) {
    QRegion region;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != 0xff000000) {
                region += QRect(x, y, 1, 1);
            }
        }
    }
    return region.boundingRect();
}

} // namespace

class PlayedPaintingTest : public QObject {
    Q_OBJECT

  private slots:
    void opacityIsOfTheWhole();
    void colorsAreThoseOfTheMoment();
    void scalesAboutTheMiddle();
    void everyKindScales_data();
    void everyKindScales();
    void travels();
    void whatWasOutsideComesIn();
    void onlyWhatIsDirtyIsPainted();
    void boundsHoldWhatIsPainted();
    void menusShowTheirList();
    void listsFollowTheirSettings_data();
    void listsFollowTheirSettings();
    void listsOfAnySizeArePainted();
};

void PlayedPaintingTest::opacityIsOfTheWhole() {
    Played played({boxOf({0, 0, 640, 480}, blue),
                   withModifier(boxOf({100, 100, 50, 50}, red),
                                "<Modifier Type='Fade'><Range X='0' Y='100'/></Modifier>")});
    QCOMPARE(played.at(0).pixelColor(120, 120), QColor(0, 0, 255));
    const QColor half = played.at(500).pixelColor(120, 120);
    QVERIFY(std::abs(half.red() - 128) <= 2 && std::abs(half.blue() - 128) <= 2);
    QCOMPARE(played.at(1000).pixelColor(120, 120), QColor(255, 0, 0));
    QCOMPARE(played.at(500).pixelColor(20, 20), QColor(0, 0, 255));
}

void PlayedPaintingTest::colorsAreThoseOfTheMoment() {
    Played played(
        {withModifier(boxOf({100, 100, 50, 50}, makeColor(0, 40, 60)),
                      "<Modifier Type='Tint'><Alpha Enable='False'/><Red Enable='True' Min='0' "
                      "Max='200' Period='1000'/><Green Enable='False'/><Blue Enable='False'/>"
                      "</Modifier>")});
    QCOMPARE(played.at(0).pixelColor(120, 120), QColor(0, 40, 60));
    QCOMPARE(played.at(250).pixelColor(120, 120), QColor(100, 40, 60));
    QCOMPARE(played.at(500).pixelColor(120, 120), QColor(200, 40, 60));
}

void PlayedPaintingTest::scalesAboutTheMiddle() {
    Played played({withModifier(boxOf({100, 100, 40, 20}, red),
                                "<Modifier Type='Pulse'><Range X='50' Y='150'/></Modifier>")});
    const auto near = [](const QRect& a, const QRect& b) {
        return a.adjusted(-1, -1, 1, 1).contains(b) && b.adjusted(-1, -1, 1, 1).contains(a);
    };
    QVERIFY(near(shownPart(played.at(0)), {110, 105, 20, 10}));
    QVERIFY(near(shownPart(played.at(500)), {100, 100, 40, 20}));
    QVERIFY(near(shownPart(played.at(1000)), {90, 95, 60, 30}));
    QVERIFY(near(shownPart(played.at(1000, wholeSurface, 0.5)), {45, 47, 30, 16}));
}

void PlayedPaintingTest::everyKindScales_data() {
    QTest::addColumn<QString>("kind");
    for (const char* kind : {"box", "line", "image", "text", "menu"}) {
        QTest::newRow(kind) << QString(kind);
    }
}

void PlayedPaintingTest::everyKindScales() {
    QFETCH(QString, kind);
    constexpr QRectF place(200, 200, 100, 80);
    const Element element =
        kind == "box"    ? boxOf(place, red)
        : kind == "line" ? lineOf({place.topLeft(), place.bottomRight()}, red)
        : kind == "text" ? textOf(place, "Wide text in a box", red)
        : kind == "menu" ? menuOf(place)
                         : imageOf(ControlKind::img, place, "/nothing.png"); // a crossed frame
    Played rest({element});
    const QRect before = shownPart(rest.at(0));
    QVERIFY(!before.isEmpty());
    Played larger(
        {withModifier(element, "<Modifier Type='Pulse'><Range X='200' Y='200'/></Modifier>")});
    const QRect after = shownPart(larger.at(0));
    constexpr int smoothing = 4; // pixels at the edges
    QVERIFY(std::abs(after.width() - 2 * before.width()) <= smoothing);
    QVERIFY(std::abs(after.height() - 2 * before.height()) <= smoothing);
}

void PlayedPaintingTest::travels() {
    Played played({withModifier(boxOf({100, 100, 40, 20}, red),
                                "<Modifier Type='Slide'><Bounds L='0' T='100' R='640' B='120'/>"
                                "</Modifier>")});
    QCOMPARE(shownPart(played.at(0)), QRect(100, 100, 40, 20));
    QCOMPARE(shownPart(played.at(1000)), QRect(160, 100, 40, 20));
}

// What lies far off at rest is in sight while it travels, or when it is scaled.
void PlayedPaintingTest::whatWasOutsideComesIn() {
    Played played({withModifier(boxOf({900, 600, 40, 20}, red),
                                "<Modifier Type='Slide'><Bounds L='10' T='10' R='50' B='30'/>"
                                "</Modifier>"),
                   withModifier(boxOf({650, 100, 40, 20}, green),
                                "<Modifier Type='Pulse'><Range X='1000' Y='1000'/></Modifier>")});
    const QImage image = played.at(0);
    QCOMPARE(image.pixelColor(20, 20), QColor(255, 0, 0));
    QCOMPARE(image.pixelColor(600, 110), QColor(0, 255, 0));
}

void PlayedPaintingTest::onlyWhatIsDirtyIsPainted() {
    Played played({boxOf({0, 0, 640, 480}, blue),
                   withModifier(boxOf({100, 100, 40, 20}, red),
                                "<Modifier Type='Pulse'><Range X='100' Y='300'/></Modifier>")});
    for (const QRectF dirty :
         {QRectF(90, 90, 30, 30), QRectF(0, 0, 60, 60), QRectF(170, 80, 9, 70)}) {
        const QImage part = played.at(1000, dirty);
        QImage expected(part.size(), part.format());
        expected.fill(Qt::black);
        QPainter painter(&expected);
        painter.drawImage(dirty, played.at(1000), dirty);
        painter.end();
        QCOMPARE(part, expected);
    }
}

void PlayedPaintingTest::boundsHoldWhatIsPainted() {
    Played played({withModifier(lineOf({100, 100, 180, 140}, red),
                                "<Modifier Type='Pulse'><Range X='50' Y='250'/></Modifier>")});
    const PlayedScreen screen(played.document, mainScreen, catalogue());
    for (PlayTime time = 0; time < 2000; time += 130) {
        const auto now = screen.at(1, time, {});
        QVERIFY(elementBounds(*now).contains(QRectF(shownPart(played.at(time)))));
    }
}

void PlayedPaintingTest::menusShowTheirList() {
    Played played({menuOf({100, 100, 300, 200})});
    const QImage first = played.at(0);
    played.choices.list.selected = 1;
    const QImage second = played.at(0);
    QVERIFY(first != second);
    QVERIFY(QRect(100, 100, 300, 200).contains(shownPart(first)));
    // The picture of a list is for the screen at rest.
    PictureCache pictures;
    QImage rest(skinWidth, skinHeight, QImage::Format_RGB32);
    QPainter target(&rest);
    SurfacePainter(pictures).paint(target, played.document, mainScreen, wholeSurface);
    target.end();
    QVERIFY(rest != first && rest != second);
}

void PlayedPaintingTest::listsFollowTheirSettings_data() {
    QTest::addColumn<QString>("setting");
    for (const char* setting :
         {"thumbnailsVisible", "itemsShown", "glowSelected", "showDescription", "titleAlignment",
          "titleCentered", "descriptionAlignment", "selectedTitleColor", "unselectedTitleColor",
          "selectedDescriptionColor", "unselectedDescriptionColor"}) {
        QTest::newRow(setting) << QString(setting);
    }
}

void PlayedPaintingTest::listsFollowTheirSettings() {
    QFETCH(QString, setting);
    const auto listOf = [](const MenuSettings& settings) {
        QImage image(300, 200, QImage::Format_RGB32);
        image.fill(Qt::black);
        QPainter painter(&image);
        paintPlayedList(painter, {0, 0, 300, 200}, settings,
                        {.selected = 1, .first = 0, .glow = settings.glowSelected ? 1.0 : 0.0});
        return image;
    };
    const MenuSettings usual;
    MenuSettings changed;
    const std::string otherColor = std::to_string(makeColor(0, 255, 0));
    if (setting == "thumbnailsVisible") {
        changed.thumbnailsVisible = false;
    } else if (setting == "itemsShown") {
        changed.itemsShown = 3;
    } else if (setting == "glowSelected") {
        changed.glowSelected = true;
    } else if (setting == "showDescription") {
        changed.showDescription = false;
    } else if (setting == "titleAlignment") {
        changed.titleAlignment = "Right"; // in any letter case
    } else if (setting == "titleCentered") {
        changed.titleAlignment = "center";
    } else if (setting == "descriptionAlignment") {
        changed.descriptionAlignment = "left";
    } else if (setting == "selectedTitleColor") {
        changed.selectedTitleColor = otherColor;
    } else if (setting == "unselectedTitleColor") {
        changed.unselectedTitleColor = otherColor;
    } else if (setting == "selectedDescriptionColor") {
        changed.selectedDescriptionColor = otherColor;
    } else {
        changed.unselectedDescriptionColor = otherColor;
    }
    QVERIFY(listOf(changed) != listOf(usual));
    // A row is as high as the menu holds items; the selected one is the second.
    const QRect selectedRow(0, 40, 300, 40);
    if (setting.startsWith("selected")) {
        const QImage a = listOf(changed);
        const QImage b = listOf(usual);
        for (int y = 0; y < 200; ++y) {
            for (int x = 0; x < 300; ++x) {
                QVERIFY(selectedRow.contains(x, y) || a.pixel(x, y) == b.pixel(x, y));
            }
        }
    }
}

// Any number of items and any place.
void PlayedPaintingTest::listsOfAnySizeArePainted() {
    for (const int shown : {-5, 0, 1, 9, 50, 32767}) {
        for (const QSizeF size :
             {QSizeF(1, 1), QSizeF(300, 2), QSizeF(2, 300), QSizeF(640, 480), QSizeF(8000, 8000)}) {
            MenuSettings settings;
            settings.itemsShown = static_cast<std::int16_t>(shown);
            settings.glowSelected = true;
            QImage image(skinWidth, skinHeight, QImage::Format_RGB32);
            image.fill(Qt::black);
            QPainter painter(&image);
            paintPlayedList(painter, QRectF({0, 0}, size), settings,
                            {.selected = 8, .first = 3.5, .glow = 0.5});
            painter.end();
            const QRect part = shownPart(image);
            QVERIFY(part.isEmpty() || QRectF({0, 0}, size).toAlignedRect().contains(part));
        }
    }
}

TARVEL_UI_TEST(PlayedPaintingTest)
#include "played_painting_test.moc"
