// What the parts of the main window do together: tool and selection, keys wherever the focus is,
// menus, marks, the pointer's shape, and the entrance of the panels.
#include "support/editor.h"
#include "support/ui_test.h"

#include <QAbstractButton>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QStatusBar>
#include <QStatusTipEvent>

#include <algorithm>

using namespace tarvel;
using namespace tarvel::test;

namespace {

// Notes where a widget stands in its window when it is shown and each time it is painted.
class PaintLog : public QObject {
  public:
    explicit PaintLog(QWidget& watched)
        : watched_(watched) {
        watched.installEventFilter(this);
    }
    QList<int> lefts;

  protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::Show || event->type() == QEvent::Paint) {
            lefts << watched_.mapTo(watched_.window(), QPoint()).x();
        }
        return false;
    }

  private:
    QWidget& watched_;
};

// Events as the window system sends them: Qt finds the widget below the pointer.
struct WindowPointer {
    Editor& editor;

    QPoint inWindow(QPoint onSurface) const {
        return editor.pic()->mapTo(&editor.window, onSurface);
    }
    void press(QPoint at) const {
        QTest::mousePress(editor.window.windowHandle(), Qt::LeftButton, {}, inWindow(at));
    }
    void move(QPoint to) const {
        QTest::mouseMove(editor.window.windowHandle(), inWindow(to));
        QApplication::processEvents();
    }
    void release(QPoint at) const {
        QTest::mouseRelease(editor.window.windowHandle(), Qt::LeftButton, {}, inWindow(at));
    }
};

void hover(Editor& editor, QPoint at) {
    QMouseEvent move(QEvent::MouseMove, at, editor.pic()->mapToGlobal(at), Qt::NoButton,
                     Qt::NoButton, {});
    QApplication::sendEvent(editor.pic(), &move);
}

// Sends a key where the focus is.
void keyInFocus(Editor& editor, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(editor.window.focusWidget(), key, modifiers);
}

} // namespace

class WindowWorkTest : public QObject {
    Q_OBJECT

  private slots:
    void selectingLetsTheToolGo_data();
    void selectingLetsTheToolGo();
    void selectingDuringTheCoverShowsTheElement();
    void pressDuringTheCoverDraws();
    void pressAfterALostReleaseStartsAnew();
    void escapeLetsAToolGoWhereverTheFocusIs_data();
    void escapeLetsAToolGoWhereverTheFocusIs();
    void escapeTakesADragBackWithTheFocusElsewhere();
    void escapeTakesBackWhatWasTyped();
    void shiftF10OpensTheMenu_data();
    void shiftF10OpensTheMenu();
    void menuOfARowOutOfSightOpensBesideTheList();
    void statusLineOutlastsTheMenus();
    void marksOfFarElementsStayWithinBounds_data();
    void marksOfFarElementsStayWithinBounds();
    void endsFarOutHaveNoMarks();
    void lockedElementsKeepTheirPlace();
    void pointerFollowsWhatIsBelowIt();
    void surfaceShowsItsFocus();
    void toolTipsOfRowsShowTheTextAsItStands();
    void panelsComeFromBesideTheWindow_data();
    void panelsComeFromBesideTheWindow();
};

void WindowWorkTest::selectingLetsTheToolGo_data() {
    QTest::addColumn<bool>("byList");
    QTest::newRow("list") << true;
    QTest::newRow("right button") << false;
}

void WindowWorkTest::selectingLetsTheToolGo() {
    QFETCH(bool, byList);
    Editor editor;
    editor.show();
    editor.add(boxAt(100, 100, 100, 50));
    editor.chooseTool("optText");
    QVERIFY(editor.find<QWidget>("fraText")->isVisible());
    if (byList) {
        editor.selectRow(1, 0);
    } else {
        QTest::mouseClick(editor.pic(), Qt::RightButton, {}, {150, 125});
        editor.find<QMenu>("mnuRight")->close();
    }
    QCOMPARE(editor.selectedRow(1), 0);
    QVERIFY(!editor.find<QAbstractButton>("optText")->isChecked());
    QVERIFY(!editor.find<QWidget>("fraText")->isVisible());
    editor.pressDragRelease({300, 300}, {400, 400}); // picks, and draws nothing
    QCOMPARE(editor.document().rowCount(1), 1);
    QCOMPARE(editor.prompts.messages, QStringList());
}

void WindowWorkTest::selectingDuringTheCoverShowsTheElement() {
    Editor editor;
    editor.show();
    editor.add(lineFrom(100, 100, 200, 100));
    QTest::mouseClick(editor.find<QWidget>("optText"), Qt::LeftButton);
    editor.selectRow(1, 0);
    QTRY_VERIFY(editor.find<QWidget>("picBox")->isHidden());
    settle();
    QVERIFY(!editor.find<QWidget>("fraText")->isVisible());
    QVERIFY(editor.find<QPushButton>("cmdApply")->isEnabled());
}

void WindowWorkTest::pressDuringTheCoverDraws() {
    Editor editor;
    editor.show();
    const WindowPointer pointer{editor};
    QTest::mouseClick(editor.find<QWidget>("optBox"), Qt::LeftButton);
    QTRY_VERIFY(editor.find<QWidget>("picBox")->isVisible());
    pointer.press({100, 100});
    QTRY_VERIFY(editor.find<QWidget>("picBox")->isHidden());
    QCOMPARE(editor.document().rowCount(1), 1);
    pointer.move({150, 130});
    pointer.move({200, 160});
    pointer.release({200, 160});
    const ElementControl& control = editor.control(1);
    QCOMPARE(QRectF(control.left, control.top, control.width, control.height),
             QRectF(100, 100, 100, 60));
    QVERIFY(!editor.find<QAbstractButton>("optBox")->isChecked());
}

void WindowWorkTest::pressAfterALostReleaseStartsAnew() {
    Editor editor;
    editor.show();
    const int id = editor.add(boxAt(100, 100, 50, 50));
    editor.press({120, 120});
    editor.drag({220, 120});
    QCOMPARE(editor.control(id).left, 200.0F);
    editor.press({400, 400}); // without a release before
    QCOMPARE(editor.control(id).left, 100.0F);
    QCOMPARE(editor.selectedRow(1), -1);
    editor.release({400, 400});
}

void WindowWorkTest::escapeLetsAToolGoWhereverTheFocusIs_data() {
    QTest::addColumn<QString>("focus");
    for (const char* name : {"optBox", "lst(1)", "Pic", "optScreen(1)"}) {
        QTest::newRow(name) << QString::fromLatin1(name);
    }
}

void WindowWorkTest::escapeLetsAToolGoWhereverTheFocusIs() {
    QFETCH(QString, focus);
    Editor editor;
    editor.show();
    editor.chooseTool("optBox");
    editor.window.findChild<QWidget*>(focus)->setFocus();
    keyInFocus(editor, Qt::Key_Escape);
    QVERIFY(!editor.find<QAbstractButton>("optBox")->isChecked());
    editor.pressDragRelease({100, 100}, {200, 200});
    QCOMPARE(editor.document().rowCount(1), 0);
}

void WindowWorkTest::escapeTakesADragBackWithTheFocusElsewhere() {
    Editor editor;
    editor.show();
    const int id = editor.add(boxAt(100, 100, 50, 50));
    editor.press({120, 120});
    editor.drag({220, 120});
    editor.lst(1)->setFocus();
    keyInFocus(editor, Qt::Key_Escape);
    QCOMPARE(editor.control(id).left, 100.0F);
    editor.drag({300, 120});
    editor.release({300, 120});
    QCOMPARE(editor.control(id).left, 100.0F);
}

void WindowWorkTest::escapeTakesBackWhatWasTyped() {
    Editor editor;
    editor.show();
    const int id = editor.add(boxAt(100, 100, 50, 50));
    editor.selectRow(1, 0);
    auto* txtW = editor.find<QLineEdit>("txtW");
    QTest::mouseClick(txtW, Qt::LeftButton);
    QTest::keyClicks(txtW, "5x");
    QTest::keyClick(txtW, Qt::Key_Escape);
    QCOMPARE(txtW->text(), "50");
    editor.lst(1)->setFocus();
    QCOMPARE(editor.control(id).width, 50.0F);
}

void WindowWorkTest::shiftF10OpensTheMenu_data() {
    QTest::addColumn<QString>("focus");
    QTest::addColumn<bool>("selected");
    QTest::newRow("surface") << "Pic" << true;
    QTest::newRow("surface, nothing selected") << "Pic" << false;
    QTest::newRow("list") << "lst(1)" << true;
    QTest::newRow("list, nothing selected") << "lst(1)" << false;
}

void WindowWorkTest::shiftF10OpensTheMenu() {
    QFETCH(QString, focus);
    QFETCH(bool, selected);
    Editor editor;
    editor.show();
    editor.add(boxAt(100, 100, 50, 50));
    editor.window.findChild<QWidget*>(focus)->setFocus();
    if (selected) {
        editor.selectRow(1, 0);
    } else {
        editor.lst(1)->selectionModel()->clear();
    }
    keyInFocus(editor, Qt::Key_F10, Qt::ShiftModifier);
    QCOMPARE(editor.find<QMenu>("mnuRight")->isVisible(), selected);
    QCOMPARE(editor.find<QMenu>("mnuRight2")->isVisible(), !selected);
    editor.find<QMenu>(selected ? "mnuRight" : "mnuRight2")->close();
}

void WindowWorkTest::menuOfARowOutOfSightOpensBesideTheList() {
    Editor editor;
    editor.show();
    for (int i = 0; i < 60; ++i) {
        editor.add(boxAt(100, 100, 50, 50));
    }
    QListView* list = editor.lst(1);
    editor.selectRow(1, 0);
    list->scrollToBottom();
    const QPoint row = list->visualRect(list->model()->index(0, 0)).center();
    QVERIFY(row.y() < 0);
    QContextMenuEvent event(QContextMenuEvent::Keyboard, row, list->viewport()->mapToGlobal(row));
    QApplication::sendEvent(list->viewport(), &event);
    auto* menu = editor.find<QMenu>("mnuRight");
    QVERIFY(menu->isVisible());
    QVERIFY(menu->y() >= list->viewport()->mapToGlobal(QPoint()).y());
    menu->close();
}

void WindowWorkTest::statusLineOutlastsTheMenus() {
    Editor editor;
    editor.show();
    editor.prompts.folders << QStringLiteral(TARVEL_EXAMPLES_DIR "/aurora");
    editor.entry("mnuLoad")->trigger();
    const QString told = editor.window.statusBar()->currentMessage();
    QVERIFY(told.startsWith("Loaded from "));
    QStatusTipEvent pointed{QString()}; // what a menu entry without a hint sends
    QApplication::sendEvent(&editor.window, &pointed);
    QCOMPARE(editor.window.statusBar()->currentMessage(), told);
}

void WindowWorkTest::marksOfFarElementsStayWithinBounds_data() {
    QTest::addColumn<float>("left");
    QTest::addColumn<float>("width");
    QTest::newRow("far right") << 1e30F << 50.0F;
    QTest::newRow("far left") << -3e9F << 50.0F;
    QTest::newRow("beyond the limit") << 40000.0F << 50.0F;
    QTest::newRow("wide") << 10.0F << 3e9F;
    QTest::newRow("all over") << -1e30F << 3e38F;
}

void WindowWorkTest::marksOfFarElementsStayWithinBounds() {
    QFETCH(float, left);
    QFETCH(float, width);
    Editor editor;
    editor.show();
    editor.add(boxAt(left, 100, width, 50));
    editor.selectRow(1, 0);
    const QRect mark = editor.find<QWidget>("fraSel")->geometry();
    QVERIFY(mark.width() > 0);
    QVERIFY(QRect(-20'000, 0, 40'000, 480).contains(mark));
    QCOMPARE(mark.intersects(editor.pic()->rect()), left <= 640 && left + width > 0);
}

void WindowWorkTest::endsFarOutHaveNoMarks() {
    Editor editor;
    editor.show();
    editor.add(lineFrom(100, 100, 1e30F, 100));
    editor.selectRow(1, 0);
    QVERIFY(editor.find<QWidget>("fraResize1")->isVisible());
    QVERIFY(!editor.find<QWidget>("fraResize2")->isVisible());
}

void WindowWorkTest::lockedElementsKeepTheirPlace() {
    Editor editor;
    editor.show();
    editor.add(boxAt(100, 100, 50, 50));
    editor.selectRow(1, 0);
    QVERIFY(editor.find<QWidget>("txtL")->isEnabled());
    editor.entry("mnuLocked")->trigger();
    editor.selectRow(1, 0);
    for (const char* name : {"txtL", "txtT", "txtW", "txtH"}) {
        QVERIFY2(!editor.find<QWidget>(name)->isEnabled(), name);
    }
    editor.entry("mnuUnlock")->trigger();
    editor.selectRow(1, 0);
    QVERIFY(editor.find<QWidget>("txtL")->isEnabled());
}

void WindowWorkTest::pointerFollowsWhatIsBelowIt() {
    Editor editor;
    editor.show();
    editor.add(boxAt(100, 100, 50, 50));
    editor.selectRow(1, 0);
    hover(editor, {125, 125});
    QCOMPARE(editor.pic()->cursor().shape(), Qt::SizeAllCursor);
    editor.pic()->setEnabled(false); // as while a panel is open
    QTRY_COMPARE(editor.pic()->cursor().shape(), Qt::ArrowCursor);
    editor.pic()->setEnabled(true);
    QTRY_COMPARE(editor.pic()->cursor().shape(), Qt::SizeAllCursor);
    editor.entry("mnuDelete")->trigger();
    QTRY_COMPARE(editor.pic()->cursor().shape(), Qt::ArrowCursor);
}

void WindowWorkTest::surfaceShowsItsFocus() {
    Editor editor;
    editor.show();
    QWidget* frame = editor.pic()->parentWidget();
    editor.find<QWidget>("optBox")->setFocus();
    const QImage without = frame->grab().toImage();
    editor.pic()->setFocus();
    const QImage with = frame->grab().toImage();
    QCOMPARE(with.pixelColor(0, 100), editor.window.palette().color(QPalette::Highlight));
    QVERIFY(without.pixelColor(0, 100) != with.pixelColor(0, 100));
    QCOMPARE(with.copy(editor.pic()->geometry()), without.copy(editor.pic()->geometry()));
}

void WindowWorkTest::toolTipsOfRowsShowTheTextAsItStands() {
    Editor editor;
    Element element = boxAt(0, 0, 10, 10);
    element.label = "Text: <b>x</b> & y";
    editor.add(std::move(element));
    editor.add(boxAt(0, 0, 10, 10));
    const auto tip = [&](int row) {
        return editor.lst(1)->model()->index(row, 0).data(Qt::ToolTipRole).toString();
    };
    QCOMPARE(tip(0), "<span>Text: &lt;b&gt;x&lt;/b&gt; &amp; y</span>");
    QCOMPARE(tip(1), "Box: Alpha 80");
}

void WindowWorkTest::panelsComeFromBesideTheWindow_data() {
    QTest::addColumn<QString>("panel");
    QTest::addColumn<bool>("fromLeft");
    for (const char* name : {"fraCreate", "fraNote"}) {
        QTest::newRow(name) << QString::fromLatin1(name) << true;
    }
    for (const char* name : {"fraLayout", "fraElements", "fraPos", "fraBehaviour"}) {
        QTest::newRow(name) << QString::fromLatin1(name) << false;
    }
}

void WindowWorkTest::panelsComeFromBesideTheWindow() {
    QFETCH(QString, panel);
    QFETCH(bool, fromLeft);
    Editor editor;
    PaintLog log(*editor.window.findChild<QWidget*>(panel));
    editor.window.show();
    QSignalSpy arrived(editor.window.findChild<PanelSlide*>(), &PanelSlide::finished);
    QTRY_COMPARE(arrived.size(), 1);
    QVERIFY(log.lefts.size() > 1);
    const QWidget* shown = editor.window.findChild<QWidget*>(panel);
    const int first = log.lefts.front();
    QVERIFY(fromLeft ? first + shown->width() <= 0 : first >= editor.window.width());
    QVERIFY(fromLeft ? std::is_sorted(log.lefts.begin(), log.lefts.end())
                     : std::is_sorted(log.lefts.rbegin(), log.lefts.rend()));
}

TARVEL_UI_TEST(WindowWorkTest)
#include "window_work_test.moc"
