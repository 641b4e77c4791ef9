// The timer panel: its boxes, the warning, and what it stores.
#include "document/layout_screens.h"
#include "panels/timer_panel.h"
#include "support/behaviour_editor.h"
#include "support/document_support.h"
#include "support/panel_support.h"
#include "support/ui_test.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>

namespace tarvel {

using test::click;
using test::control;
using test::typeOver;

namespace {

const QString warning =
    QStringLiteral("The values are in milliseconds.  i.e. 1s = 1000 ms.  Double-check your values");

} // namespace

class TimerPanelTest : public QObject {
    Q_OBJECT

  private slots:
    void init();
    void showsItsTexts();
    void staysHiddenUntilItIsOpened();
    void showsTheTimersOfTheElement();
    void takesDigitsOnly_data();
    void takesDigitsOnly();
    void pastesNumbersOnly_data();
    void pastesNumbersOnly();
    void pastesIntoANumber();
    void menuPastesAsTheKeysDo();
    void inputMethodsTypeDigitsOnly_data();
    void inputMethodsTypeDigitsOnly();
    void inputMethodsMayReplaceWhatIsThere();
    void selectsTheTextOfABoxThatGetsTheFocus();
    void warnsOfSmallValues_data();
    void warnsOfSmallValues();
    void warnsOnOpening();
    void storesTheBoxes_data();
    void storesTheBoxes();
    void takesTheMarkAwayWithTheLastTimer();
    void keysCloseIt_data();
    void keysCloseIt();
    void controlsHaveAccessibleNames();
    void panelsLeaveTheSurfaceFree();

  private:
    void setTimers(const TimerValues& timers) {
        document_.editElement(1, [&](Element& element) { element.elementTimers = timers; });
    }
    const TimerValues& timers() const { return document_.element(1).elementTimers; }
    static QLineEdit& box(const QWidget& panel, int slot) {
        return control<QLineEdit>(panel, QStringLiteral("txtTimer(%1)").arg(slot));
    }
    static QStringList texts(const QWidget& panel) {
        QStringList texts;
        for (int slot = 0; slot < static_cast<int>(timerSlots); ++slot) {
            texts << box(panel, slot).text();
        }
        return texts;
    }

    SkinDocument document_;
};

void TimerPanelTest::init() {
    document_ = test::fourBoxes();
}

void TimerPanelTest::showsItsTexts() {
    const TimerPanel panel(document_);
    QCOMPARE(panel.objectName(), "fraModifier(1)");
    QCOMPARE(control<QPushButton>(panel, "cmdTimersOK").text(), "OK");
    QStringList labels;
    for (const QLabel* label : panel.findChildren<QLabel*>()) {
        labels << label->text();
    }
    for (const TimerText& text : timerTexts) {
        QVERIFY(labels.contains(QLatin1String(text.caption.data())));
        QVERIFY(labels.contains(QLatin1String(text.help.data())));
    }
    QVERIFY(labels.contains("Liftime"));
    QCOMPARE(box(panel, 3).accessibleName(), "Lifetime in milliseconds");
}

void TimerPanelTest::staysHiddenUntilItIsOpened() {
    TimerPanel panel(document_);
    test::PanelWindow window(panel);
    window.show();
    QVERIFY(!panel.isVisible());
    panel.open(0);
    QVERIFY(!panel.isVisible());
    panel.open(1);
    QVERIFY(panel.isVisible());
}

void TimerPanelTest::showsTheTimersOfTheElement() {
    TimerPanel panel(document_);
    test::PanelWindow window(panel);
    QVERIFY(window.openPanel(1));
    QCOMPARE(texts(panel), (QStringList{"0", "0", "0", "0"}));
    setTimers({500, -5, 2147483647, 30});
    QVERIFY(window.openPanel(1));
    QCOMPARE(texts(panel), (QStringList{"500", "-5", "2147483647", "30"}));
    QVERIFY(window.openPanel(2));
    QCOMPARE(texts(panel), (QStringList{"0", "0", "0", "0"}));
}

void TimerPanelTest::takesDigitsOnly_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("text");
    QTest::newRow("digits") << "0123456789"
                            << "0123456789";
    QTest::newRow("letters") << "1a2b3e4"
                             << "1234";
    QTest::newRow("minus") << "-5"
                           << "5";
    QTest::newRow("plus") << "+5"
                          << "5";
    QTest::newRow("point") << "1.5"
                           << "15";
    QTest::newRow("comma") << "1,5"
                           << "15";
    QTest::newRow("blank") << " 7 "
                           << "7";
    QTest::newRow("backspace") << "12\b3"
                               << "13";
    QTest::newRow("letters alone") << "abc"
                                   << "0";
}

void TimerPanelTest::takesDigitsOnly() {
    QFETCH(QString, typed);
    QFETCH(QString, text);
    TimerPanel panel(document_);
    test::PanelWindow window(panel);
    QVERIFY(window.openPanel(1));
    for (int slot = 0; slot < 4; ++slot) {
        QLineEdit& edit = box(panel, slot);
        if (!edit.hasFocus()) {
            click(edit);
        }
        for (const QChar c : typed) {
            if (c == QLatin1Char('\b')) {
                QTest::keyClick(&edit, Qt::Key_Backspace);
            } else {
                QTest::keyClick(&edit, c.toLatin1());
            }
        }
        QCOMPARE(edit.text(), text);
    }
    QVERIFY(panel.isVisible());
}

void TimerPanelTest::pastesNumbersOnly_data() {
    QTest::addColumn<QString>("pasted");
    QTest::addColumn<QString>("text");
    QTest::newRow("digits") << "1500"
                            << "1500";
    QTest::newRow("negative") << "-20"
                              << "-20";
    QTest::newRow("blank before") << " 5000"
                                  << "5000";
    QTest::newRow("line end") << "5000\n"
                              << "5000";
    QTest::newRow("tabs") << "\t-20\r\n"
                          << "-20";
    QTest::newRow("blank alone") << " \n"
                                 << "7";
    QTest::newRow("nothing") << ""
                             << "7";
    QTest::newRow("blank within") << "5 000"
                                  << "7";
    QTest::newRow("two lines") << "50\n60"
                               << "7";
    QTest::newRow("letters") << "abc"
                             << "7";
    QTest::newRow("mixed") << "5s"
                           << "7";
}

void TimerPanelTest::pastesNumbersOnly() {
    QFETCH(QString, pasted);
    QFETCH(QString, text);
    TimerPanel panel(document_);
    test::PanelWindow window(panel);
    setTimers({7, 0, 0, 0});
    QVERIFY(window.openPanel(1));
    QGuiApplication::clipboard()->setText(pasted);
    QTest::keySequence(&box(panel, 0), QKeySequence::Paste);
    QCOMPARE(box(panel, 0).text(), text);
}

void TimerPanelTest::pastesIntoANumber() {
    TimerPanel panel(document_);
    test::PanelWindow window(panel);
    setTimers({79, 0, 0, 0});
    QVERIFY(window.openPanel(1));
    QLineEdit& edit = box(panel, 0);
    QGuiApplication::clipboard()->setText(" 8\n");
    edit.setCursorPosition(1);
    QTest::keySequence(&edit, QKeySequence::Paste);
    QCOMPARE(edit.text(), "789");
    QTest::keySequence(&edit, QKeySequence::Undo);
    QCOMPARE(edit.text(), "79");
}

void TimerPanelTest::menuPastesAsTheKeysDo() {
    TimerPanel panel(document_);
    test::PanelWindow window(panel);
    QVERIFY(window.openPanel(1));
    QGuiApplication::clipboard()->setText(" 5000\n");
    QLineEdit& edit = box(panel, 0);
    QContextMenuEvent event(QContextMenuEvent::Keyboard, {5, 5}, edit.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&edit, &event);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    QVERIFY(menu != nullptr);
    QAction* paste = nullptr;
    for (QAction* entry : menu->actions()) {
        paste = entry->text().contains("Paste") ? entry : paste;
    }
    QVERIFY(paste != nullptr);
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(paste).center());
    QCOMPARE(edit.text(), "5000");
    QTRY_VERIFY(edit.findChildren<QMenu*>().isEmpty());
}

void TimerPanelTest::inputMethodsTypeDigitsOnly_data() {
    QTest::addColumn<QString>("committed");
    QTest::addColumn<QString>("text"); // of a box that holds 7, selected
    QTest::newRow("digits") << "12"
                            << "12";
    QTest::newRow("negative") << "-12"
                              << "12";
    QTest::newRow("minus") << "-"
                           << "7";
    QTest::newRow("letters") << "1a\b2"
                             << "12";
    QTest::newRow("other digits") << QStringLiteral("\uFF11\u0662") << "7";
}

void TimerPanelTest::inputMethodsTypeDigitsOnly() {
    QFETCH(QString, committed);
    QFETCH(QString, text);
    TimerPanel panel(document_);
    test::PanelWindow window(panel);
    setTimers({7, 0, 0, 0});
    QVERIFY(window.openPanel(1));
    QInputMethodEvent event;
    event.setCommitString(committed);
    QApplication::sendEvent(&box(panel, 0), &event);
    QCOMPARE(box(panel, 0).text(), text);
}

void TimerPanelTest::inputMethodsMayReplaceWhatIsThere() {
    TimerPanel panel(document_);
    test::PanelWindow window(panel);
    setTimers({1234, 0, 0, 0});
    QVERIFY(window.openPanel(1));
    QLineEdit& edit = box(panel, 0);
    edit.setCursorPosition(4);
    QInputMethodEvent event;
    event.setCommitString("-9", -2, 2);
    QApplication::sendEvent(&edit, &event);
    QCOMPARE(edit.text(), "129");
}

void TimerPanelTest::selectsTheTextOfABoxThatGetsTheFocus() {
    TimerPanel panel(document_);
    test::PanelWindow window(panel);
    setTimers({10, 200, 3000, 40000});
    QVERIFY(window.openPanel(1));
    QVERIFY(box(panel, 0).hasFocus());
    QCOMPARE(box(panel, 0).selectedText(), "10");
    for (const int slot : {3, 1, 2}) {
        click(box(panel, slot));
        QCOMPARE(box(panel, slot).selectedText(), box(panel, slot).text());
    }
    QTest::keyClick(&box(panel, 2), Qt::Key_Tab);
    QVERIFY(box(panel, 3).hasFocus());
    QCOMPARE(box(panel, 3).selectedText(), "40000");
    QTest::keyClicks(&box(panel, 3), "6");
    QCOMPARE(box(panel, 3).text(), "6");
}

void TimerPanelTest::warnsOfSmallValues_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<bool>("warns");
    QTest::newRow("empty") << "" << false;
    QTest::newRow("0") << "0" << false;
    QTest::newRow("1") << "1" << true;
    QTest::newRow("5") << "5" << true;
    QTest::newRow("29") << "29" << true;
    QTest::newRow("30") << "30" << false;
    QTest::newRow("5000") << "5000" << false;
}

void TimerPanelTest::warnsOfSmallValues() {
    QFETCH(QString, typed);
    QFETCH(bool, warns);
    TimerPanel panel(document_);
    test::PanelWindow window(panel);
    QVERIFY(window.openPanel(1));
    for (int slot = 0; slot < 4; ++slot) {
        typeOver(box(panel, slot), warns ? "30" : "29");
        typeOver(box(panel, slot), typed);
        QCOMPARE(control<QLabel>(panel, "lblTimersMsg").text(), warns ? warning : QString());
        typeOver(box(panel, slot), "0");
        QCOMPARE(control<QLabel>(panel, "lblTimersMsg").text(), "");
    }
}

void TimerPanelTest::warnsOnOpening() {
    TimerPanel panel(document_);
    test::PanelWindow window(panel);
    setTimers({500, 0, 12, 0});
    QVERIFY(window.openPanel(1));
    QCOMPARE(control<QLabel>(panel, "lblTimersMsg").text(), warning);
    QVERIFY(window.openPanel(2));
    QCOMPARE(control<QLabel>(panel, "lblTimersMsg").text(), "");
}

void TimerPanelTest::storesTheBoxes_data() {
    QTest::addColumn<QStringList>("typed");
    QTest::addColumn<QList<int>>("stored");
    QTest::newRow("values") << QStringList{"500", "1000", "250", "60000"}
                            << QList<int>{500, 1000, 250, 60000};
    QTest::newRow("warned of") << QStringList{"5", "0", "0", "0"} << QList<int>{5, 0, 0, 0};
    QTest::newRow("empty") << QStringList{"", "1", "", "2"} << QList<int>{0, 1, 0, 2};
    QTest::newRow("too large") << QStringList{"99999999999", "0", "0", "0"}
                               << QList<int>{2147483647, 0, 0, 0};
}

void TimerPanelTest::storesTheBoxes() {
    QFETCH(QStringList, typed);
    QFETCH(QList<int>, stored);
    TimerPanel panel(document_);
    test::PanelWindow window(panel);
    QVERIFY(window.openPanel(1));
    QSignalSpy closed(&panel, &BehaviourPanel::closed);
    test::RecordingObserver observer;
    auto watch = document_.watch(observer);
    for (int slot = 0; slot < 4; ++slot) {
        typeOver(box(panel, slot), typed.at(slot));
    }
    QCOMPARE(timers(), TimerValues{});
    click(control<QPushButton>(panel, "cmdTimersOK"));
    watch.end();
    QCOMPARE((QList<int>{timers()[0], timers()[1], timers()[2], timers()[3]}), stored);
    QCOMPARE(observer.notes, std::vector<std::string>{"element 1 1"});
    QCOMPARE(closed.count(), 1);
    QVERIFY(!panel.isVisible());
    QVERIFY(behaviourMarks(document_.element(1)).timers);
}

void TimerPanelTest::takesTheMarkAwayWithTheLastTimer() {
    TimerPanel panel(document_);
    test::PanelWindow window(panel);
    setTimers({500, -5, 30, 4});
    QVERIFY(window.openPanel(1));
    for (int slot = 0; slot < 4; ++slot) {
        QVERIFY(behaviourMarks(document_.element(1)).timers);
        typeOver(box(panel, slot), "");
    }
    click(control<QPushButton>(panel, "cmdTimersOK"));
    QCOMPARE(timers(), TimerValues{});
    QVERIFY(!behaviourMarks(document_.element(1)).timers);
}

void TimerPanelTest::keysCloseIt_data() {
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("closes");
    QTest::newRow("Return") << int{Qt::Key_Return} << true;
    QTest::newRow("Enter") << int{Qt::Key_Enter} << true;
    QTest::newRow("Escape") << int{Qt::Key_Escape} << false;
}

void TimerPanelTest::keysCloseIt() {
    QFETCH(int, key);
    QFETCH(bool, closes);
    TimerPanel panel(document_);
    test::PanelWindow window(panel);
    QVERIFY(window.openPanel(1));
    QSignalSpy closed(&panel, &BehaviourPanel::closed);
    QTest::keyClicks(panel.window()->focusWidget(), "75");
    QTest::keyClick(panel.window()->focusWidget(), static_cast<Qt::Key>(key));
    QCOMPARE(panel.isVisible(), !closes);
    QCOMPARE(closed.count(), closes ? 1 : 0);
    QCOMPARE(timers()[0], closes ? 75 : 0);
}

void TimerPanelTest::controlsHaveAccessibleNames() {
    const TimerPanel panel(document_);
    QVERIFY(!panel.accessibleName().isEmpty());
    QCOMPARE(test::withoutAccessibleName(panel), QStringList());
}

void TimerPanelTest::panelsLeaveTheSurfaceFree() {
    test::BehaviourEditor editor;
    editor.selectRow(1, 0);
    const QRect surface = editor.inWindow(*editor.pic());
    for (int index = 0; index < test::panelCount; ++index) {
        QVERIFY(editor.openPanel(index));
        QCoreApplication::processEvents();
        const QRect place = editor.inWindow(editor.panel(index));
        QVERIFY2(!place.intersects(surface), qPrintable(editor.panel(index).objectName()));
        for (const QLabel* label : editor.panel(index).findChildren<QLabel*>()) {
            const bool whole = !label->isVisible() || !label->wordWrap() ||
                               label->height() >= label->heightForWidth(label->width());
            QVERIFY2(whole, qPrintable(label->text()));
        }
        editor.ok(index);
    }
}

} // namespace tarvel

TARVEL_UI_TEST(tarvel::TimerPanelTest)
#include "timer_panel_test.moc"
