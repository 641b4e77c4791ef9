// Boxes, lines, texts and what holds for all kinds when a screen is painted.
#include "support/surface_support.h"
#include "support/ui_test.h"
#include "surface/picture_cache.h"
#include "surface/surface_painter.h"
#include "widgets/skin_fonts.h"

#include <QStaticText>
#include <QTest>
#include <QTextOption>

#include <functional>
#include <limits>
#include <vector>

using namespace tarvel;
using namespace tarvel::test;

Q_DECLARE_METATYPE(std::vector<tarvel::Element>)
Q_DECLARE_METATYPE(std::function<void(QPainter&)>)

namespace {

using Elements = std::vector<Element>;
using Drawing = std::function<void(QPainter&)>;

constexpr float hugest = std::numeric_limits<float>::max();

Element transparent(Element element) {
    element.elementControl.fillStyle = FillStyle::transparent;
    return element;
}

Element bordered(Element element, ColorNumber border) {
    element.elementControl.borderStyle = BorderStyle::solid;
    element.elementControl.borderColor = border;
    return element;
}

Element aligned(Element element, TextAlignment alignment) {
    element.elementControl.alignment = alignment;
    return element;
}

Element withOpacity(Element element, int percent) {
    element.elementAlpha = static_cast<std::int16_t>(percent);
    return element;
}

Element withFont(Element element, const FontChoice& font) {
    element.elementControl.font = SharedValue<FontChoice>(font);
    return element;
}

SkinDocument documentOf(const Elements& elements) {
    SkinDocument document;
    for (const Element& element : elements) {
        document.addElement(Element(element));
    }
    return document;
}

QImage drawn(const Drawing& drawing) {
    QImage image = blackSurface();
    QPainter painter(&image);
    drawing(painter);
    return image;
}

// The caption drawn by other means than the painter's.
Drawing textDrawing(const QRectF& rect, const QString& caption, const QColor& color,
                    const FontChoice& font = {}, Qt::Alignment alignment = Qt::AlignLeft) {
    return [=](QPainter& painter) {
        QTextOption option(alignment);
        option.setWrapMode(QTextOption::WordWrap);
        QStaticText text(caption);
        text.setTextFormat(Qt::PlainText);
        text.setTextOption(option);
        text.setTextWidth(rect.width());
        painter.setFont(skinFont(font));
        painter.setPen(color);
        painter.drawStaticText(rect.topLeft(), text);
    };
}

Drawing fills(const std::vector<std::pair<QRect, QColor>>& rects) {
    return [=](QPainter& painter) {
        for (const auto& [rect, color] : rects) {
            painter.fillRect(rect, color);
        }
    };
}

void addRow(const char* name, const Elements& elements, const Drawing& expected) {
    QTest::newRow(name) << elements << expected;
}

void addColumns() {
    QTest::addColumn<Elements>("elements");
    QTest::addColumn<Drawing>("expected");
}

// The smallest rectangle around everything that is not black.
QRect painting(const QImage& image) {
    QRect result;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != qRgb(0, 0, 0)) {
                result |= QRect(x, y, 1, 1);
            }
        }
    }
    return result;
}

} // namespace

class SurfacePainterTest : public QObject {
    Q_OBJECT

  private slots:
    void paintsBoxes_data();
    void paintsBoxes() { comparesWithDrawing(); }
    void paintsLines_data();
    void paintsLines() { comparesWithDrawing(); }
    void paintsTexts_data();
    void paintsTexts() { comparesWithDrawing(); }
    void rowsArePaintedBackToFront();
    void paintsTheRowsOfOneScreen();
    void lineBreaksOfCaptionsAreDrawn_data();
    void lineBreaksOfCaptionsAreDrawn();
    void textStaysWithinItsElement();
    void textFollowsItsElement_data();
    void textFollowsItsElement();
    void fontSizesAreWholePixelsAt96Dpi();
    void partsMakeUpTheWhole();
    void leavesWhatIsNotDirty();
    void leavesThePaintersState();
    void rowsCanBeLeftOut();
    void groundCanBeReplaced();
    void bordersAreSharpOnFinerDisplays();
    void extremeGeometryIsHarmless_data();
    void extremeGeometryIsHarmless();
    void boundsHoldEverythingPainted_data();
    void boundsHoldEverythingPainted();

  private:
    void comparesWithDrawing();

    PictureCache pictures_;
    SurfacePainter surface_{pictures_};
};

void SurfacePainterTest::paintsBoxes_data() {
    addColumns();
    const QRect rect(20, 30, 100, 50);
    addRow("nothing", {}, fills({}));
    addRow("opaque box", {boxOf(rect, red)}, fills({{rect, Qt::red}}));
    addRow("half opaque box", {boxOf(rect, red, 50)}, fills({{rect, QColor(255, 0, 0, 128)}}));
    addRow("box without opacity", {boxOf(rect, red, 0)}, fills({}));
    addRow("negative opacity counts as none", {boxOf(rect, red, -5)}, fills({}));
    addRow("opacity above 100 counts as 100", {boxOf(rect, red, 300)}, fills({{rect, Qt::red}}));
    addRow("box without fill and border", {transparent(boxOf(rect, red))}, fills({}));
    addRow("border lies within the box and is opaque", {bordered(boxOf(rect, red, 0), green)},
           fills({{{20, 30, 100, 1}, Qt::green},
                  {{20, 79, 100, 1}, Qt::green},
                  {{20, 30, 1, 50}, Qt::green},
                  {{119, 30, 1, 50}, Qt::green}}));
    addRow("fill and border", {bordered(boxOf(rect, red, 50), green)},
           fills({{rect, Qt::green},
                  {{21, 31, 98, 48}, Qt::black},
                  {{21, 31, 98, 48}, {255, 0, 0, 128}}}));
    addRow("box of two pixels is all border", {bordered(boxOf({5, 5, 2, 2}, red), green)},
           fills({{{5, 5, 2, 2}, Qt::green}}));
    addRow("edges between pixels go to the nearest", {boxOf({20.4, 29.6, 99.9, 50.2}, red)},
           fills({{rect, Qt::red}}));
    addRow("no width", {boxOf({20, 30, 0, 50}, red)}, fills({}));
    addRow("negative height", {boxOf({20, 30, 50, -10}, red)}, fills({}));
    addRow("outside the screen", {boxOf({700, 30, 50, 10}, red)}, fills({}));
}

void SurfacePainterTest::paintsLines_data() {
    addColumns();
    addRow("level line, both ends included", {lineOf({10, 20, 50, 20}, green)},
           fills({{{10, 20, 41, 1}, Qt::green}}));
    addRow("upright line from the lower end", {lineOf({10, 90, 10, 20}, green)},
           fills({{{10, 20, 1, 71}, Qt::green}}));
    addRow("line of no length", {lineOf({10, 20, 10, 20}, green)},
           fills({{{10, 20, 1, 1}, Qt::green}}));
    addRow("line that is half transparent in the document",
           {withOpacity(lineOf({1, 2, 9, 2}, red), 50)}, fills({{{1, 2, 9, 1}, Qt::red}}));
    addRow("slanted line", {lineOf({10, 20, 90, 55}, green)}, [](QPainter& painter) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::green);
        painter.drawLine(QLineF(10.5, 20.5, 90.5, 55.5));
    });
}

void SurfacePainterTest::paintsTexts_data() {
    addColumns();
    const QRectF rect(20, 30, 200, 60);
    addRow("text", {textOf(rect, "DriveCFree", red)}, textDrawing(rect, "DriveCFree", Qt::red));
    addRow("half opaque text", {withOpacity(textOf(rect, "Time", red), 50)},
           textDrawing(rect, "Time", QColor(255, 0, 0, 128)));
    addRow("text to the right", {aligned(textOf(rect, "Date", red), TextAlignment::right)},
           textDrawing(rect, "Date", Qt::red, {}, Qt::AlignRight));
    addRow("text in the middle", {aligned(textOf(rect, "Date", red), TextAlignment::center)},
           textDrawing(rect, "Date", Qt::red, {}, Qt::AlignHCenter));
    addRow("markup is not read", {textOf(rect, "<b>x</b> & y", red)},
           textDrawing(rect, "<b>x</b> & y", Qt::red));
    const FontChoice large{.size = 20, .bold = true, .underline = true};
    addRow("font", {withFont(textOf(rect, "MAC", red), large)},
           textDrawing(rect, "MAC", Qt::red, large));
    addRow("empty caption", {textOf(rect, "", red)}, fills({}));
}

void SurfacePainterTest::comparesWithDrawing() {
    QFETCH(Elements, elements);
    QFETCH(Drawing, expected);
    QCOMPARE(painted(surface_, documentOf(elements)), drawn(expected));
}

void SurfacePainterTest::rowsArePaintedBackToFront() {
    SkinDocument document = documentOf({boxOf({0, 0, 20, 20}, red), boxOf({10, 0, 20, 20}, green)});
    QCOMPARE(painted(surface_, document).pixelColor(15, 5), QColor(Qt::green));
    document.moveRow(1, 0, 1);
    QCOMPARE(painted(surface_, document).pixelColor(15, 5), QColor(Qt::red));
}

void SurfacePainterTest::paintsTheRowsOfOneScreen() {
    SkinDocument document = documentOf({boxOf({0, 0, 20, 20}, red)});
    document.setCurrentLayout(0);
    document.addElement(boxOf({30, 0, 20, 20}, green));
    QCOMPARE(painted(surface_, document, 0), drawn(fills({{{30, 0, 20, 20}, Qt::green}})));
    QCOMPARE(painted(surface_, document, 1), drawn(fills({{{0, 0, 20, 20}, Qt::red}})));
    QCOMPARE(painted(surface_, document, 5), drawn(fills({})));
}

void SurfacePainterTest::lineBreaksOfCaptionsAreDrawn_data() {
    QTest::addColumn<QString>("caption");
    QTest::newRow("line feed") << "one\ntwo";
    QTest::newRow("both") << "one\r\ntwo";
    QTest::newRow("carriage return") << "one\rtwo";
}

// The second line lies where the text of an element one line further down would.
void SurfacePainterTest::lineBreaksOfCaptionsAreDrawn() {
    QFETCH(QString, caption);
    const QRectF rect(20, 20, 200, 60);
    const QImage two = painted(surface_, documentOf({textOf(rect, caption.toStdString(), red)}));
    const double lineHeight = QFontMetricsF(skinFont({})).lineSpacing();
    const QRectF below = rect.translated(0, lineHeight);
    const QImage expected =
        painted(surface_, documentOf({textOf(rect, "one", red), textOf(below, "two", red)}));
    QCOMPARE(two, expected);
}

void SurfacePainterTest::textStaysWithinItsElement() {
    const QRect rect(20, 30, 40, 20);
    const SkinDocument document =
        documentOf({textOf(rect, "several words that take more lines than there is room for", red),
                    textOf({100, 30, 15, 40}, "unbreakable", red)});
    const QImage image = painted(surface_, document);
    const QRect around = painting(image);
    QVERIFY(around.top() >= 30);
    QVERIFY(around.left() >= 20);
    QVERIFY(around.bottom() <= 69);
    QVERIFY(around.right() <= 114);
    QVERIFY(!painting(image.copy(rect)).isEmpty());
    QVERIFY(painting(image.copy(60, 0, 40, 480)).isEmpty());
    QVERIFY(painting(image.copy(0, 50, 100, 430)).isEmpty());
}

void SurfacePainterTest::textFollowsItsElement_data() {
    QTest::addColumn<Elements>("after");
    const Element before = textOf({20, 30, 200, 60}, "one two three", red);
    Element element = before;
    element.elementControl.caption = "four";
    QTest::newRow("caption") << Elements{element};
    element = before;
    element.elementControl.width = 30;
    QTest::newRow("width") << Elements{element};
    element = before;
    element.elementControl.height = 5;
    QTest::newRow("height") << Elements{element};
    element = before;
    element.elementControl.left = 50;
    QTest::newRow("place") << Elements{element};
    element = before;
    element.elementControl.textColor = blue;
    QTest::newRow("colour") << Elements{element};
    QTest::newRow("alignment") << Elements{aligned(before, TextAlignment::right)};
    QTest::newRow("font") << Elements{withFont(before, {.size = 14})};
    QTest::newRow("opacity") << Elements{withOpacity(before, 40)};
}

void SurfacePainterTest::textFollowsItsElement() {
    QFETCH(Elements, after);
    SkinDocument document = documentOf({textOf({20, 30, 200, 60}, "one two three", red)});
    const QImage before = painted(surface_, document);
    document.editElement(1, [&](Element& element) { element = after.front(); });
    const QImage image = painted(surface_, document);
    SurfacePainter fresh(pictures_);
    QCOMPARE(image, painted(fresh, document));
    QVERIFY(image != before);
}

void SurfacePainterTest::fontSizesAreWholePixelsAt96Dpi() {
    QCOMPARE(skinFont({.size = 8.25F}).pixelSize(), 11);
    QCOMPARE(skinFont({.size = 12}).pixelSize(), 16);
    QCOMPARE(skinFont({.size = 0}).pixelSize(), 1);
    QCOMPARE(skinFont({.size = -3}).pixelSize(), 1);
    QCOMPARE(skinFont({.size = hugest}).pixelSize(), 1024);
    QVERIFY(skinFont({.bold = true}).bold());
    QVERIFY(skinFont({.underline = true}).underline());
    QVERIFY(!skinFont({}).italic());
}

namespace {

Elements someOfEach() {
    return {boxOf({10.3, 10, 200, 100}, red, 60),
            frameOf({50, 50, 300, 200}, green),
            lineOf({0, 0, 639, 479}, blue),
            lineOf({320, 0, 320, 479}, blue),
            textOf({60, 60, 90, 30}, "words that overflow their element by far, and wrap", green),
            menuOf({200, 200, 300, 200}),
            imageOf(ControlKind::img, {400, 20, 200, 150}, "/nowhere/there is no such file.jpg"),
            imageOf(ControlKind::vid, {500, 300, 130, 100}, "/nowhere/film.wmv")};
}

} // namespace

void SurfacePainterTest::partsMakeUpTheWhole() {
    const SkinDocument document = documentOf(someOfEach());
    QImage image = blackSurface();
    image.fill(Qt::magenta);
    QPainter painter(&image);
    constexpr int side = 97;
    for (int y = 0; y < skinHeight; y += side) {
        for (int x = 0; x < skinWidth; x += side) {
            surface_.paint(painter, document, 1, QRect(x, y, side, side));
        }
    }
    painter.end();
    QCOMPARE(image, painted(surface_, document));
}

void SurfacePainterTest::leavesWhatIsNotDirty() {
    const SkinDocument document = documentOf(someOfEach());
    QImage image = blackSurface();
    image.fill(Qt::magenta);
    const QRect dirty(100, 100, 200, 150);
    {
        QPainter painter(&image);
        surface_.paint(painter, document, 1, dirty);
        surface_.paint(painter, document, 1, QRectF(-50, -50, 40, 40));
    }
    QImage expected = painted(surface_, document).copy(dirty);
    QCOMPARE(image.copy(dirty), expected);
    QPainter(&image).fillRect(dirty, Qt::magenta);
    QImage untouched = blackSurface();
    untouched.fill(Qt::magenta);
    QCOMPARE(image, untouched);
}

void SurfacePainterTest::leavesThePaintersState() {
    const SkinDocument document = documentOf(someOfEach());
    QImage image = blackSurface();
    QPainter painter(&image);
    painter.setPen(Qt::cyan);
    painter.setClipRect(QRect(5, 5, 300, 300));
    const QFont font = painter.font();
    const auto hints = painter.renderHints();
    surface_.paint(painter, document, 1, wholeSurface);
    QCOMPARE(painter.pen().color(), QColor(Qt::cyan));
    QCOMPARE(painter.clipBoundingRect(), QRectF(5, 5, 300, 300));
    QCOMPARE(painter.font(), font);
    QCOMPARE(painter.renderHints(), hints);
    painter.end();
    QVERIFY(painting(image.copy(0, 305, 640, 175)).isEmpty());
}

void SurfacePainterTest::rowsCanBeLeftOut() {
    const SkinDocument document = documentOf(
        {boxOf({0, 0, 10, 10}, red), boxOf({20, 0, 10, 10}, green), boxOf({40, 0, 10, 10}, blue)});
    QCOMPARE(painted(surface_, document, 1, 1, {.firstRow = 1}),
             drawn(fills({{{20, 0, 10, 10}, Qt::green}, {{40, 0, 10, 10}, Qt::blue}})));
    QCOMPARE(painted(surface_, document, 1, 1, {.endRow = 2}),
             drawn(fills({{{0, 0, 10, 10}, Qt::red}, {{20, 0, 10, 10}, Qt::green}})));
    QCOMPARE(painted(surface_, document, 1, 1, {.firstRow = 7}), blackSurface());
}

void SurfacePainterTest::groundCanBeReplaced() {
    const SkinDocument document = documentOf({boxOf({0, 0, 10, 10}, red)});
    const QImage ground = plainPicture({skinWidth, skinHeight}, Qt::blue);
    QCOMPARE(painted(surface_, document, 1, 1, {.ground = &ground}),
             drawn(fills({{{0, 0, 640, 480}, Qt::blue}, {{0, 0, 10, 10}, Qt::red}})));
}

void SurfacePainterTest::bordersAreSharpOnFinerDisplays() {
    const SkinDocument document =
        documentOf({frameOf({10, 10, 20, 20}, green), lineOf({50, 5, 50, 9}, red)});
    const QImage doubled = painted(surface_, document, 1, 2);
    QImage expected = blackSurface(2);
    {
        QPainter painter(&expected);
        painter.fillRect(20, 20, 40, 40, Qt::green);
        painter.fillRect(22, 22, 36, 36, Qt::black);
        painter.fillRect(100, 10, 2, 10, Qt::red);
    }
    QCOMPARE(doubled, expected);
    // At one and a quarter, too, every pixel is either the border's colour or the ground's.
    const QImage odd = painted(surface_, documentOf({frameOf({10, 10, 21, 21}, green)}), 1, 1.25);
    for (int y = 0; y < odd.height(); ++y) {
        for (int x = 0; x < odd.width(); ++x) {
            const QRgb pixel = odd.pixel(x, y);
            QVERIFY(pixel == qRgb(0, 0, 0) || pixel == qRgb(0, 255, 0));
        }
    }
    QCOMPARE(painting(odd), QRect(13, 13, 26, 26));
}

void SurfacePainterTest::extremeGeometryIsHarmless_data() {
    QTest::addColumn<Elements>("elements");
    QTest::addColumn<bool>("coversAll");
    constexpr double far = hugest;
    const QRectF all(-1e30, -1e30, 3e30, 3e30);
    QTest::newRow("box") << Elements{boxOf(all, green)} << true;
    QTest::newRow("box from far left") << Elements{boxOf({-far, -far, far, far}, green)} << false;
    QTest::newRow("box to far right") << Elements{boxOf({0, 0, far, far}, green)} << true;
    QTest::newRow("box far out") << Elements{boxOf({far, far, far, far}, green)} << false;
    QTest::newRow("frame") << Elements{frameOf(all, green)} << false;
    QTest::newRow("level line") << Elements{lineOf({-far, 5, far, 5}, green)} << false;
    QTest::newRow("slanted line") << Elements{lineOf({-far, -far, far, far}, green)} << false;
    QTest::newRow("line far out") << Elements{lineOf({far, 0, far, 100}, green)} << false;
    QTest::newRow("text") << Elements{textOf(all, "a b c", green)} << false;
    QTest::newRow("long text") << Elements{textOf({0, 0, 600, 400}, std::string(5'000'000, 'x'),
                                                  green)}
                               << false;
    QTest::newRow("large font") << Elements{withFont(textOf({0, 0, 600, 400}, "x", green),
                                                     {.size = hugest})}
                                << false;
    QTest::newRow("menu") << Elements{menuOf(all)} << false;
    QTest::newRow("missing picture")
        << Elements{imageOf(ControlKind::img, all, "/nowhere/a.jpg")} << false;
    QTest::newRow("video") << Elements{imageOf(ControlKind::vid, all, "/nowhere/a.wmv")} << false;
    QTest::newRow("thinner than a pixel")
        << Elements{menuOf({5.1, 5.1, 0.1, 0.1}), boxOf({9.1, 5.1, 0.1, 0.1}, red)} << false;
}

void SurfacePainterTest::extremeGeometryIsHarmless() {
    QFETCH(Elements, elements);
    QFETCH(bool, coversAll);
    const QImage image = painted(surface_, documentOf(elements));
    if (coversAll) {
        QCOMPARE(image, drawn(fills({{{0, 0, 640, 480}, Qt::green}})));
    }
    QVERIFY(!elementBounds(elements.front()).contains(QRectF(-1e6, -1e6, 3e6, 3e6)));
}

void SurfacePainterTest::boundsHoldEverythingPainted_data() {
    QTest::addColumn<Elements>("elements");
    int number = 0;
    for (const Element& element : someOfEach()) {
        QTest::addRow("element %d", number++) << Elements{element};
    }
    QTest::newRow("steep line") << Elements{lineOf({100.7, 20.2, 90.4, 200.9}, red)};
    QTest::newRow("dot") << Elements{lineOf({100, 20, 100, 20}, red)};
    QTest::newRow("between pixels") << Elements{boxOf({10.5, 10.5, 5, 5}, red)};
}

void SurfacePainterTest::boundsHoldEverythingPainted() {
    QFETCH(Elements, elements);
    const QRect bounds = elementBounds(elements.front()).toAlignedRect();
    for (const double scale : {1.0, 2.0}) {
        const QRect around = painting(painted(surface_, documentOf(elements), 1, scale));
        QVERIFY(!around.isEmpty());
        const QRectF inSkinPixels(QPointF(around.topLeft()) / scale, QSizeF(around.size()) / scale);
        QVERIFY(QRectF(bounds).contains(inSkinPixels));
    }
}

TARVEL_UI_TEST(SurfacePainterTest)
#include "surface_painter_test.moc"
