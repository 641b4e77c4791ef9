// The condition panel: what it shows of an element, and what it stores.
#include "document/conditions.h"
#include "document/layout_screens.h"
#include "panels/condition_panel.h"
#include "support/document_support.h"
#include "support/panel_support.h"
#include "support/ui_test.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>

namespace tarvel {

using test::click;
using test::clickRow;
using test::control;

class ConditionPanelTest : public QObject {
    Q_OBJECT

  private slots:
    void init();
    void showsItsTexts();
    void staysHiddenUntilItIsOpened();
    void opensOnTheStoredCondition_data();
    void opensOnTheStoredCondition();
    void rowsShowTheirDescriptionAndAreStored_data();
    void rowsShowTheirDescriptionAndAreStored();
    void worksByKeysAlone();
    void selectedRowStaysSelected_data();
    void selectedRowStaysSelected();
    void withoutARowTheConditionStays();
    void escapeDoesNothing();
    void tellsTheDocumentsObserver();
    void storesIntoTheElementThatItWasOpenedFor();
    void closesWithoutItsElement();
    void controlsHaveAccessibleNames();

  private:
    QString condition(int id = 1) const {
        return QString::fromStdString(document_.element(id).elementCondition);
    }
    void setCondition(const std::string& text) {
        document_.editElement(1, [&](Element& element) { element.elementCondition = text; });
    }

    SkinDocument document_;
};

void ConditionPanelTest::init() {
    document_ = test::fourBoxes();
}

void ConditionPanelTest::showsItsTexts() {
    const ConditionPanel panel(document_);
    QCOMPARE(panel.objectName(), "fraModifier(2)");
    QStringList labels;
    for (const QLabel* label : panel.findChildren<QLabel*>()) {
        labels << label->text();
    }
    QVERIFY(labels.contains("CONDITION:"));
    QCOMPARE(control<QPushButton>(panel, "cmdConditionOK").text(), "OK");
    QCOMPARE(test::rowTexts(control<QListWidget>(panel, "lstCond")),
             (QStringList{"None", "ItemPrev", "ItemNext ", "ItemEntry", "ItemSubMenu",
                          "ItemPassCode", "ItemNoPassCode"}));
}

void ConditionPanelTest::staysHiddenUntilItIsOpened() {
    ConditionPanel panel(document_);
    test::PanelWindow window(panel);
    window.show();
    QVERIFY(!panel.isVisible());
    for (const int noElement : {0, -1, 5}) {
        panel.open(noElement);
        QVERIFY(!panel.isVisible());
    }
    panel.open(1);
    QVERIFY(panel.isVisible());
}

void ConditionPanelTest::opensOnTheStoredCondition_data() {
    QTest::addColumn<QString>("stored");
    QTest::addColumn<int>("row");
    QTest::newRow("empty") << "" << 0;
    QTest::newRow("none") << "nONE" << 0;
    QTest::newRow("exact") << "ItemPrev" << 1;
    QTest::newRow("lower case") << "itemsubmenu" << 4;
    QTest::newRow("without its blank") << "ItemNext" << 0;
    QTest::newRow("with its blank") << "ItemNext " << 2;
    QTest::newRow("unknown") << "Sunday" << 0;
}

void ConditionPanelTest::opensOnTheStoredCondition() {
    QFETCH(QString, stored);
    QFETCH(int, row);
    ConditionPanel panel(document_);
    test::PanelWindow window(panel);
    setCondition("ItemNoPassCode");
    QVERIFY(window.openPanel(1)); // what was shown before does not matter
    setCondition(stored.toStdString());
    QVERIFY(window.openPanel(1));
    QCOMPARE(control<QListWidget>(panel, "lstCond").currentRow(), row);
    QCOMPARE(condition(), stored);
}

void ConditionPanelTest::rowsShowTheirDescriptionAndAreStored_data() {
    QTest::addColumn<int>("row");
    for (int row = 0; row < static_cast<int>(conditionRows.size()); ++row) {
        QTest::addRow("row %d", row) << row;
    }
}

void ConditionPanelTest::rowsShowTheirDescriptionAndAreStored() {
    QFETCH(int, row);
    const ConditionRow& expected = conditionRows.at(static_cast<std::size_t>(row));
    ConditionPanel panel(document_);
    test::PanelWindow window(panel);
    setCondition(row == 0 ? "ItemPrev" : "");
    QVERIFY(window.openPanel(1));
    QSignalSpy closed(&panel, &BehaviourPanel::closed);
    clickRow(control<QListWidget>(panel, "lstCond"), row);
    QCOMPARE(control<QLabel>(panel, "lblConditionDesc").text().toStdString(),
             std::string(expected.description));
    QCOMPARE(condition(), row == 0 ? "ItemPrev" : "");
    click(control<QPushButton>(panel, "cmdConditionOK"));
    QCOMPARE(condition().toStdString(), std::string(expected.text));
    QCOMPARE(behaviourMarks(document_.element(1)).condition, row != 0);
    QVERIFY(!panel.isVisible());
    QCOMPARE(closed.count(), 1);
}

void ConditionPanelTest::worksByKeysAlone() {
    ConditionPanel panel(document_);
    test::PanelWindow window(panel);
    QVERIFY(window.openPanel(1));
    auto& lstCond = control<QListWidget>(panel, "lstCond");
    QVERIFY(lstCond.hasFocus());
    QTest::keyClick(&lstCond, Qt::Key_Down);
    QTest::keyClick(&lstCond, Qt::Key_Down);
    QTest::keyClick(&lstCond, Qt::Key_Return);
    QVERIFY(!panel.isVisible());
    QCOMPARE(condition(), "ItemNext ");
}

void ConditionPanelTest::selectedRowStaysSelected_data() {
    QTest::addColumn<int>("key"); // 0: a click
    QTest::newRow("Ctrl and click") << 0;
    QTest::newRow("Ctrl and Space") << int{Qt::Key_Space};
}

void ConditionPanelTest::selectedRowStaysSelected() {
    QFETCH(int, key);
    ConditionPanel panel(document_);
    test::PanelWindow window(panel);
    setCondition("ItemEntry");
    QVERIFY(window.openPanel(1));
    auto& lstCond = control<QListWidget>(panel, "lstCond");
    const QRect row = lstCond.visualItemRect(lstCond.item(3));
    for (int time = 0; time < 3; ++time) {
        if (key == 0) {
            QTest::mouseClick(lstCond.viewport(), Qt::LeftButton, Qt::ControlModifier,
                              row.center());
        } else {
            QTest::keyClick(&lstCond, static_cast<Qt::Key>(key), Qt::ControlModifier);
        }
        QCOMPARE(lstCond.selectedItems(), QList{lstCond.item(3)});
    }
    QTest::mouseClick(lstCond.viewport(), Qt::LeftButton, Qt::ControlModifier,
                      lstCond.visualItemRect(lstCond.item(5)).center());
    QCOMPARE(lstCond.selectedItems(), QList{lstCond.item(5)});
    click(control<QPushButton>(panel, "cmdConditionOK"));
    QCOMPARE(condition(), "ItemPassCode");
}

void ConditionPanelTest::withoutARowTheConditionStays() {
    setCondition("ItemEntry");
    ConditionPanel panel(document_);
    test::PanelWindow window(panel);
    QVERIFY(window.openPanel(1));
    control<QListWidget>(panel, "lstCond").setCurrentRow(-1);
    click(control<QPushButton>(panel, "cmdConditionOK"));
    QVERIFY(!panel.isVisible());
    QCOMPARE(condition(), "ItemEntry");
}

void ConditionPanelTest::escapeDoesNothing() {
    ConditionPanel panel(document_);
    test::PanelWindow window(panel);
    QVERIFY(window.openPanel(1));
    QSignalSpy closed(&panel, &BehaviourPanel::closed);
    QTest::keyClick(panel.window()->focusWidget(), Qt::Key_Escape);
    QVERIFY(panel.isVisible());
    QCOMPARE(closed.count(), 0);
}

void ConditionPanelTest::tellsTheDocumentsObserver() {
    ConditionPanel panel(document_);
    test::PanelWindow window(panel);
    test::RecordingObserver observer;
    auto watch = document_.watch(observer);
    QVERIFY(window.openPanel(3));
    QVERIFY(observer.notes.empty());
    click(control<QPushButton>(panel, "cmdConditionOK"));
    watch.end();
    QCOMPARE(observer.notes, std::vector<std::string>{"element 1 3"});
    QCOMPARE(condition(3), "None");
}

void ConditionPanelTest::storesIntoTheElementThatItWasOpenedFor() {
    ConditionPanel panel(document_);
    test::PanelWindow window(panel);
    for (const int id : {2, 4}) {
        QVERIFY(window.openPanel(id));
        clickRow(control<QListWidget>(panel, "lstCond"), id);
        click(control<QPushButton>(panel, "cmdConditionOK"));
    }
    QCOMPARE(condition(1), "");
    QCOMPARE(condition(2), "ItemNext ");
    QCOMPARE(condition(3), "");
    QCOMPARE(condition(4), "ItemSubMenu");
}

void ConditionPanelTest::closesWithoutItsElement() {
    ConditionPanel panel(document_);
    test::PanelWindow window(panel);
    QVERIFY(window.openPanel(4));
    document_ = SkinDocument();
    test::addBox(document_, "another");
    click(control<QPushButton>(panel, "cmdConditionOK"));
    QVERIFY(!panel.isVisible());
    QCOMPARE(condition(1), "");
}

void ConditionPanelTest::controlsHaveAccessibleNames() {
    const ConditionPanel panel(document_);
    QVERIFY(!panel.accessibleName().isEmpty());
    QCOMPARE(test::withoutAccessibleName(panel), QStringList());
}

} // namespace tarvel

TARVEL_UI_TEST(tarvel::ConditionPanelTest)
#include "condition_panel_test.moc"
