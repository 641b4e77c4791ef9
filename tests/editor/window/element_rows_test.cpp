// Rows of the element list: kind, colour, picture and lock of an element; and the row of the
// element that is under the pointer on the surface.
#include "panels/element_row_delegate.h"
#include "support/clipboard_support.h"
#include "support/ui_test.h"
#include "widgets/icons.h"

#include <QScrollBar>

#include <algorithm>
#include <ctime>

using namespace tarvel;
using namespace tarvel::test;

namespace {

Element ofKind(ControlKind control) {
    Element element = boxAt(20, 20, 100, 60, 100);
    element.elementKind = rulesOf(control).kind;
    element.elementControl.kind = control;
    element.label = rulesOf(control).label(element);
    return element;
}

QRect rowRect(Editor& editor, int row) {
    return editor.lst(1)->visualRect(editor.lst(1)->model()->index(row, 0));
}

ElementRowDelegate::Places placesOf(Editor& editor, int row, bool locked = false) {
    return ElementRowDelegate::placesIn(rowRect(editor, row), locked);
}

QImage grabbed(Editor& editor) {
    return editor.lst(1)->viewport()->grab().toImage().convertToFormat(QImage::Format_RGB32);
}

// An icon as it is seen on the list's ground.
QImage onList(Editor& editor, IconName name, const QColor& ground, QIcon::Mode mode) {
    const double ratio = editor.window.devicePixelRatioF();
    QImage image(QSize(smallIcon, smallIcon) * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(ground);
    QPainter painter(&image);
    icon(name).paint(&painter, QRect(0, 0, smallIcon, smallIcon), Qt::AlignCenter, mode);
    return image;
}

bool shows(const QImage& list, const QRect& place, QImage expected) {
    expected.setDevicePixelRatio(1);
    return list.copy(place) == expected;
}

void moveOverSurface(Editor& editor, QPoint at) {
    QMouseEvent move(QEvent::MouseMove, at, editor.pic()->mapToGlobal(at), Qt::NoButton,
                     Qt::NoButton, {});
    QApplication::sendEvent(editor.pic(), &move);
}

int markedElement(Editor& editor) {
    return editor.window.findChild<ElementRowDelegate*>()->marked();
}

// A hundred boxes a row, and as many rows as they take.
SkinDocument boxesInRows(int count) {
    SkinDocument document;
    document.setCurrentLayout(1);
    for (int i = 0; i < count; ++i) {
        document.addElement(
            boxAt(static_cast<float>(i % 100) * 6, static_cast<float>(i / 100) * 4, 4, 3));
    }
    return document;
}

constexpr int workRuns = 5;

// Milliseconds of the processor that the quickest of some runs takes, however busy the machine is.
template <class Run> double leastWork(const Run& run) {
    double least = 0;
    for (int i = 0; i < workRuns; ++i) {
        const std::clock_t before = std::clock();
        run();
        const double work = 1000.0 * static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC;
        least = i == 0 ? work : std::min(least, work);
    }
    return least;
}

} // namespace

class ElementRowsTest : public QObject {
    Q_OBJECT

  private slots:
    void kindsHaveIcons_data();
    void kindsHaveIcons();
    void swatchesHaveTheColour();
    void lockedRowsHaveALock();
    void picturesHaveThumbnails();
    void thumbnailsAreFewAndOnlyOfRowsInSight();
    void changedColoursShow();
    void theRowOfTheElementBelowThePointerIsMarked();
    void theMarkFollowsTheDocument();
    void pickingOnAMoveIsQuick();
    void manyRowsAreQuick();
};

void ElementRowsTest::kindsHaveIcons_data() {
    QTest::addColumn<ControlKind>("control");
    QTest::addColumn<IconName>("name");
    QTest::newRow("box") << ControlKind::box << IconName::box;
    QTest::newRow("line") << ControlKind::lin << IconName::line;
    QTest::newRow("picture") << ControlKind::img << IconName::image;
    QTest::newRow("png") << ControlKind::png << IconName::image;
    QTest::newRow("video") << ControlKind::vid << IconName::video;
    QTest::newRow("text") << ControlKind::txt << IconName::text;
    QTest::newRow("menu") << ControlKind::qor << IconName::menu;
}

void ElementRowsTest::kindsHaveIcons() {
    QFETCH(ControlKind, control);
    QFETCH(IconName, name);
    Editor editor;
    editor.add(ofKind(control));
    editor.show();
    const QPalette palette = editor.lst(1)->palette();
    QVERIFY(shows(grabbed(editor), placesOf(editor, 0).kind,
                  onList(editor, name, palette.color(QPalette::Base), QIcon::Normal)));
    editor.selectRow(1, 0);
    QVERIFY(shows(grabbed(editor), placesOf(editor, 0).kind,
                  onList(editor, name, palette.color(QPalette::Highlight), QIcon::Selected)));
    QCOMPARE(editor.lst(1)->model()->index(0, 0).data().toString(),
             qtText(editor.document().rowText(1, 0))); // which is not touched
}

void ElementRowsTest::swatchesHaveTheColour() {
    Editor editor;
    Element box = ofKind(ControlKind::box);
    box.elementControl.fillColor = makeColor(10, 200, 30);
    editor.add(box);
    Element line = ofKind(ControlKind::lin);
    line.elementControl.borderColor = makeColor(200, 30, 40);
    editor.add(line);
    Element text = ofKind(ControlKind::txt);
    text.elementControl.textColor = makeColor(30, 40, 200);
    editor.add(text);
    Element menu = ofKind(ControlKind::qor);
    menu.menuSettings.edit().unselectedTitleColor = std::to_string(makeColor(90, 91, 92));
    editor.add(menu);
    editor.show();
    const QImage list = grabbed(editor);
    const QList<QColor> expected = {{10, 200, 30}, {200, 30, 40}, {30, 40, 200}, {90, 91, 92}};
    for (int row = 0; row < expected.size(); ++row) {
        QCOMPARE(list.pixelColor(placesOf(editor, row).look.center()), expected[row]);
    }
}

void ElementRowsTest::lockedRowsHaveALock() {
    Editor editor;
    editor.add(boxAt(20, 20, 50, 50));
    editor.add(boxAt(90, 20, 50, 50));
    editor.show();
    selectRows(editor, 1, {0});
    editor.entry("mnuLocked")->trigger();
    editor.entry("mnuDeSel")->trigger();
    const QColor ground = editor.lst(1)->palette().color(QPalette::Base);
    const QImage lock = onList(editor, IconName::lock, ground, QIcon::Normal);
    QVERIFY(shows(grabbed(editor), placesOf(editor, 0, true).lock, lock));
    QVERIFY(!shows(grabbed(editor), placesOf(editor, 1, true).lock, lock));
}

void ElementRowsTest::picturesHaveThumbnails() {
    Editor editor;
    QImage red(400, 300, QImage::Format_RGB32);
    red.fill(QColor(220, 10, 20));
    QVERIFY(red.save(editor.path("red.png")));
    Element image = ofKind(ControlKind::png);
    image.elementControl.file = coreText(editor.path("red.png").replace('/', '\\'));
    editor.add(image);
    editor.show();
    QTRY_COMPARE(grabbed(editor).pixelColor(placesOf(editor, 0).look.center()),
                 QColor(220, 10, 20));
}

void ElementRowsTest::thumbnailsAreFewAndOnlyOfRowsInSight() {
    Editor editor;
    constexpr int pictures = 600;
    QImage image(8, 8, QImage::Format_RGB32);
    for (int i = 0; i < pictures; ++i) {
        const QString file = editor.path(QStringLiteral("%1.png").arg(i));
        image.fill(QColor(i % 256, 10, 20));
        QVERIFY(image.save(file));
        Element element = ofKind(ControlKind::png);
        element.elementControl.left = 3000; // nothing for the surface
        element.elementControl.file = coreText(QString(file).replace('/', '\\'));
        editor.add(element);
    }
    editor.show();
    QListView* list = editor.lst(1);
    auto& thumbnails = editor.window.findChild<ElementRowDelegate*>()->thumbnails();
    const int inSight = list->viewport()->height() / rowRect(editor, 0).height() + 2;
    list->viewport()->repaint();
    QTRY_VERIFY(thumbnails.count() > 0);
    QTRY_COMPARE(list->viewport()->grab().isNull(), false);
    QVERIFY(thumbnails.count() <= inSight);
    for (int row = 0; row < pictures; row += inSight / 2) {
        list->scrollTo(list->model()->index(row, 0), QAbstractItemView::PositionAtTop);
        list->viewport()->repaint();
        QCoreApplication::processEvents();
    }
    QVERIFY(thumbnails.count() > inSight);
    QVERIFY(thumbnails.count() <= ElementThumbnails::most);
}

void ElementRowsTest::changedColoursShow() {
    Editor editor;
    const int id = editor.add(ofKind(ControlKind::box));
    editor.show();
    (void)grabbed(editor);
    editor.document().editElement(
        id, [](Element& box) { box.elementControl.fillColor = makeColor(1, 2, 250); });
    QCOMPARE(grabbed(editor).pixelColor(placesOf(editor, 0).look.center()), QColor(1, 2, 250));
}

void ElementRowsTest::theRowOfTheElementBelowThePointerIsMarked() {
    Editor editor;
    editor.add(boxAt(20, 20, 50, 50));
    const int second = editor.add(boxAt(120, 20, 50, 50));
    editor.show();
    const QImage before = grabbed(editor);
    moveOverSurface(editor, {140, 40});
    QCOMPARE(markedElement(editor), second);
    const QImage marked = grabbed(editor);
    QCOMPARE(marked.copy(rowRect(editor, 0)), before.copy(rowRect(editor, 0)));
    QVERIFY(marked.copy(rowRect(editor, 1)) != before.copy(rowRect(editor, 1)));
    QCOMPARE(editor.window.curNum(), 0); // which selects nothing
    moveOverSurface(editor, {300, 300});
    QCOMPARE(markedElement(editor), 0);
    QCOMPARE(grabbed(editor), before);
    moveOverSurface(editor, {40, 40});
    QVERIFY(markedElement(editor) != 0);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(editor.pic(), &leave);
    QCOMPARE(markedElement(editor), 0);
    QCOMPARE(grabbed(editor), before);
    editor.chooseTool("optBox"); // a press would draw
    moveOverSurface(editor, {40, 40});
    QCOMPARE(markedElement(editor), 0);
}

void ElementRowsTest::theMarkFollowsTheDocument() {
    Editor editor;
    const int below = editor.add(boxAt(20, 20, 50, 50));
    const int above = editor.add(boxAt(20, 20, 50, 50));
    editor.show();
    moveOverSurface(editor, {40, 40});
    QCOMPARE(markedElement(editor), above);
    editor.document().delItem(1);
    QTRY_COMPARE(markedElement(editor), below);
    editor.clickScreen(2);
    QTRY_COMPARE(markedElement(editor), 0);
}

// Moves on the surface from one element of the first hundred to the next.
void ElementRowsTest::pickingOnAMoveIsQuick() {
    const auto moving = [](int elements) {
        Editor editor;
        editor.document() = boxesInRows(elements);
        editor.show();
        moveOverSurface(editor, {1, 1}); // the index is made
        int marked = 0;
        const double work = leastWork([&] {
            for (int i = 0; i < 100; ++i) {
                moveOverSurface(editor, {i * 6 + 1, 1});
                marked += markedElement(editor) == i + 1 ? 1 : 0;
            }
        });
        return marked == 100 * workRuns ? work : -1;
    };
    const double few = moving(100);
    const double many = moving(10000);
    qInfo("100 moves: %.2f ms over 100 elements, %.2f ms over 10000", few, many);
    QVERIFY(few > 0 && many > 0);
    QVERIFY(many < 5 * few); // of a hundred times as many
}

void ElementRowsTest::manyRowsAreQuick() {
    const auto scrolling = [](int elements) {
        Editor editor;
        editor.document() = boxesInRows(elements);
        editor.show();
        QListView* list = editor.lst(1);
        return leastWork([&] {
            constexpr int places = 20;
            for (int i = 0; i < places; ++i) {
                const int end = list->verticalScrollBar()->maximum();
                list->verticalScrollBar()->setValue(i * end / places);
                list->viewport()->repaint();
            }
        });
    };
    const double few = scrolling(100);
    const double many = scrolling(80000);
    qInfo("20 looks: %.2f ms at 100 rows, %.2f ms at 80000", few, many);
    QVERIFY(many < 5 * few); // of eight hundred times as many
}

TARVEL_UI_TEST(ElementRowsTest)
#include "element_rows_test.moc"
