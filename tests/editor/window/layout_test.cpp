// Nothing in the main window is cut, overlaps or lies outside, at all sizes and fonts.
#include "support/layout_support.h"
#include "support/menu_support.h"
#include "support/play_editor.h"
#include "support/ui_test.h"
#include "text/xml_parse.h"

#include <QApplication>
#include <QScrollArea>
#include <QScrollBar>

using namespace tarvel;
using namespace tarvel::test;

namespace {

// What window managers leave of displays.
QSize clientOf(const QSize& display) {
    return display - QSize(4, 32);
}

const QList<QSize> displays{{1024, 640}, {1366, 768}, {1920, 1080}, {3840, 2160}};
const QList<int> fonts{8, 9, 11, 14, 18};

// The application's font for a while.
class FontOf {
  public:
    explicit FontOf(int points) {
        QFont font = QApplication::font();
        font.setPointSize(points);
        QApplication::setFont(font);
    }
    ~FontOf() { QApplication::setFont(before_); }
    FontOf(const FontOf&) = delete;
    FontOf& operator=(const FontOf&) = delete;

  private:
    QFont before_ = QApplication::font();
};

} // namespace

class LayoutTest : public QObject {
    Q_OBJECT

  private slots:
    void nothingIsCutOrOverprinted_data();
    void nothingIsCutOrOverprinted();
    void dialogsFitTheSmallestDisplay_data();
    void dialogsFitTheSmallestDisplay();
};

void LayoutTest::nothingIsCutOrOverprinted_data() {
    QTest::addColumn<QSize>("display");
    QTest::addColumn<int>("points");
    for (const QSize& display : displays) {
        for (const int points : fonts) {
            QTest::addRow("%d x %d, %d points", display.width(), display.height(), points)
                << display << points;
        }
    }
}

void LayoutTest::nothingIsCutOrOverprinted() {
    QFETCH(const QSize, display);
    QFETCH(const int, points);
    const FontOf font(points);
    PlayEditor editor;
    editor.add(boxAt(20, 20, 100, 50));
    Element wobbling = boxAt(20, 20, 100, 50);
    wobbling.elementModifiers = SharedValue(parseXml("<Modifier Type='Wobble'/>"));
    editor.add(wobbling);
    QMainWindow& window = editor.window;
    const QSize room = clientOf(display);
    window.resize(room);
    QTest::qWait(0);
    QVERIFY2(window.width() <= room.width() && window.height() <= room.height(),
             qPrintable(QString("%1 x %2").arg(window.width()).arg(window.height())));
    const auto look = [&](const QString& state) {
        QStringList faults;
        // A layout takes some turns of the event loop.
        const bool isFine =
            QTest::qWaitFor([&] { return (faults = layoutFaults(window)).isEmpty(); }, 500);
        if (!isFine) {
            qWarning().noquote() << state << "\n   " << faults.join("\n    ");
        }
        return isFine;
    };
    bool isRight = look("nothing selected");
    for (const char* tool : {"optBox", "optLine", "optImg", "optText", "optQor"}) {
        editor.chooseTool(tool);
        isRight = look(tool) && isRight;
    }
    editor.chooseTool("optQor");
    editor.selectRow(1, 0);
    isRight = look("a box") && isRight;
    for (int panel = 0; panel < 3; ++panel) {
        QVERIFY(editor.openPanel(panel));
        isRight = look(QString("panel %1").arg(panel)) && isRight;
        const auto* across = editor.panel(panel).findChild<QScrollArea*>()->horizontalScrollBar();
        QVERIFY2(across->maximum() == 0, qPrintable(QString("panel %1").arg(panel)));
        editor.ok(panel);
    }
    QVERIFY(editor.play());
    QVERIFY(!editor.find<QLabel>("lblNotShown")->text().isEmpty());
    isRight = look("playing") && isRight;
    editor.playKey(Qt::Key_Escape);
    QVERIFY(isRight);
    // The panels end where the column does, those beside each other as one.
    const auto* screens = editor.find<QWidget>("fraLayout");
    const auto* elements = editor.find<QWidget>("fraElements");
    const auto* position = editor.find<QWidget>("fraPos");
    QCOMPARE(screens->x(), position->x());
    QCOMPARE(elements->geometry().right(), position->geometry().right());
    if (screens->y() < elements->y()) {
        QCOMPARE(screens->width(), elements->width());
    }
}

void LayoutTest::dialogsFitTheSmallestDisplay_data() {
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("points");
    const QList<std::pair<const char*, const char*>> dialogs{{"mnuDelays", "frmDelays"},
                                                             {"mnuInfo", "frmInfo"},
                                                             {"mnuColors", "frmColors"},
                                                             {"mnuAudio", "frmMusic"},
                                                             {"mnuResource", "frmResources"}};
    for (const auto& [entry, name] : dialogs) {
        for (const int points : fonts) {
            QTest::addRow("%s, %d points", name, points) << entry << name << points;
        }
    }
}

void LayoutTest::dialogsFitTheSmallestDisplay() {
    QFETCH(const QString, entry);
    QFETCH(const QString, name);
    QFETCH(const int, points);
    const FontOf font(points);
    BehaviourEditor editor(1);
    const QSize room = clientOf(displays.front());
    QVERIFY(inDialog(
        [&] { choose(editor, qPrintable(entry)); }, name,
        [&](QWidget& dialog) {
            const auto look = [&](const char* state) {
                dialog.resize(dialog.size().boundedTo(room)); // as on a low display
                QStringList faults;
                const bool isFine =
                    QTest::qWaitFor([&] { return (faults = layoutFaults(dialog)).isEmpty(); }, 500);
                QVERIFY2(isFine, qPrintable(state + (": " + faults.join("\n    "))));
                QVERIFY2(dialog.width() <= room.width() && dialog.height() <= room.height(),
                         qPrintable(QString("%1: %2 x %3")
                                        .arg(state)
                                        .arg(dialog.width())
                                        .arg(dialog.height())));
            };
            look("as opened");
            for (const char* more : {"optPreset", "optYesMusic", "chkCustom"}) {
                if (auto* button = dialog.findChild<QAbstractButton*>(more)) {
                    button->click();
                    look(more);
                }
            }
        }));
}

TARVEL_UI_TEST(LayoutTest)
#include "layout_test.moc"
