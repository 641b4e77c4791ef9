// Where the main window is at the next start, and how wide its columns are.
#include "support/editor.h"
#include "support/ui_test.h"
#include "window/window_columns.h"
#include "window/window_place.h"

#include <QAction>
#include <QDialog>
#include <QScreen>
#include <QSplitterHandle>

using namespace tarvel;
using namespace tarvel::test;

class WindowPlaceTest : public QObject {
    Q_OBJECT

  private slots:
    void takesThePlaceOfTheLastRun();
    void isNeverOffTheDisplay_data();
    void isNeverOffTheDisplay();
    void furtherWindowsFitTheDisplay();
    void whatCannotBeReadIsTheFirstStart();
    void closingRemembersThePlace();
    void theColumnIsAsWideAsItsContents();
    void theColumnCanBeDraggedWider();
    void theColumnsWidthIsRemembered();

  private:
    QTemporaryDir folder_;
    int files_ = 0;
    QString newFile() { return folder_.filePath(QString("settings%1.ini").arg(++files_)); }
    static QRect display() { return QGuiApplication::primaryScreen()->availableGeometry(); }
};

void WindowPlaceTest::takesThePlaceOfTheLastRun() {
    Remembered remembered(newFile());
    QWidget last;
    last.setGeometry(30, 50, 400, 300);
    last.show();
    keepPlace(last, remembered);
    QWidget next;
    takePlace(next, remembered);
    QCOMPARE(next.size(), QSize(400, 300));
    QCOMPARE(next.geometry().topLeft(), last.geometry().topLeft());
}

void WindowPlaceTest::isNeverOffTheDisplay_data() {
    QTest::addColumn<QRect>("last");
    QTest::newRow("beyond the right edge") << QRect(5000, 100, 400, 300);
    QTest::newRow("beyond the bottom") << QRect(100, 5000, 400, 300);
    QTest::newRow("beyond the left edge") << QRect(-5000, -5000, 400, 300);
    QTest::newRow("larger than the display") << QRect(0, 0, 9000, 9000);
}

void WindowPlaceTest::isNeverOffTheDisplay() {
    QFETCH(const QRect, last);
    Remembered remembered(newFile());
    QWidget before;
    before.setGeometry(last);
    keepPlace(before, remembered);
    QWidget next;
    takePlace(next, remembered);
    QVERIFY2(display().contains(next.geometry()),
             qPrintable(QString("%1, %2").arg(next.x()).arg(next.y())));
}

void WindowPlaceTest::furtherWindowsFitTheDisplay() {
    Editor editor;
    editor.show();
    for (const char* entry : {"mnuGuide", "mnuKeys", "mnuAbout", "mnuCheck", "mnuView"}) {
        editor.entry(entry)->trigger();
    }
    settle();
    int windows = 0;
    for (const QWidget* each : QApplication::topLevelWidgets()) {
        if (each->isVisible() && each != &editor.window && each->inherits("QDialog")) {
            ++windows;
            QVERIFY2(each->width() < display().width() && each->height() < display().height(),
                     qPrintable(each->objectName()));
        }
    }
    QCOMPARE(windows, 5);
    editor.window.move(0, -200);
    QDialog ofAWindow(&editor.window);
    QDialog ofNone;
    for (QDialog* dialog : {&ofAWindow, &ofNone}) {
        placeWithin(*dialog, {300, 5000});
        QCOMPARE(dialog->width(), 300);
        const QRect withTitle = dialog->geometry().adjusted(0, -30, 0, 0);
        QVERIFY(display().contains(withTitle));
    }
}

void WindowPlaceTest::whatCannotBeReadIsTheFirstStart() {
    Remembered remembered(newFile());
    remembered.rememberWindowPlace("nonsense");
    Editor editor;
    takePlace(editor.window, remembered);
    const QSize asked = editor.window.sizeHint();
    QVERIFY(editor.window.width() <= display().width());
    QCOMPARE(editor.window.width() < asked.width(), display().width() < asked.width() + 12);
}

void WindowPlaceTest::closingRemembersThePlace() {
    Editor editor;
    editor.show();
    editor.prompts.answers = {Prompts::Answer::Cancel, Prompts::Answer::No};
    editor.window.close();
    QVERIFY(editor.remembered.windowPlace().isEmpty()); // it stays open
    editor.window.close();
    QVERIFY(!editor.remembered.windowPlace().isEmpty());
}

void WindowPlaceTest::theColumnIsAsWideAsItsContents() {
    Editor editor;
    editor.show();
    auto* columns = editor.window.findChild<WindowColumns*>();
    const int wanted = columns->widget(1)->sizeHint().width();
    QCOMPARE(columns->sizes().at(1), wanted);
    editor.window.resize(editor.window.size() + QSize(500, 100));
    QTRY_COMPARE(columns->sizes().at(1), wanted); // all else is the surface's
    editor.window.resize(editor.window.minimumSizeHint());
    QTRY_VERIFY(columns->sizes().at(1) < wanted);
    QVERIFY(columns->sizes().at(1) >= columns->widget(1)->minimumSizeHint().width());
}

void WindowPlaceTest::theColumnCanBeDraggedWider() {
    Editor editor;
    editor.show();
    editor.window.resize(1600, 800);
    QTest::qWait(0);
    auto* columns = editor.window.findChild<WindowColumns*>();
    const int before = columns->sizes().at(1);
    QSplitterHandle* edge = columns->handle(1);
    const QPoint at = edge->rect().center();
    QTest::mousePress(edge, Qt::LeftButton, {}, at);
    QMouseEvent move(QEvent::MouseMove, at - QPoint(120, 0), edge->mapToGlobal(at - QPoint(120, 0)),
                     Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(edge, &move);
    QTest::mouseRelease(edge, Qt::LeftButton, {}, edge->rect().center());
    QCOMPARE(columns->sizes().at(1), before + 120);
    editor.window.resize(1700, 800);
    QTest::qWait(0);
    QCOMPARE(columns->sizes().at(1), before + 120);
}

void WindowPlaceTest::theColumnsWidthIsRemembered() {
    const QString file = newFile();
    {
        Remembered remembered(file);
        WindowColumns columns(remembered);
        auto* left = new QWidget;
        columns.setColumns(left, new QWidget, left);
        columns.resize(1000, 300);
        columns.show();
        columns.setSizes({600, 400});
        emit columns.splitterMoved(600, 1);
    }
    Remembered remembered(file);
    WindowColumns columns(remembered);
    auto* left = new QWidget;
    columns.setColumns(left, new QWidget, left);
    columns.resize(1000, 300);
    columns.show();
    QTRY_VERIFY(std::abs(columns.sizes().at(1) - 400) <= columns.handleWidth());
}

TARVEL_UI_TEST(WindowPlaceTest)
#include "window_place_test.moc"
