// Several selected elements in the window: how they are picked, and what works on all of them.
#include "support/behaviour_editor.h"
#include "support/ui_test.h"

#include <QComboBox>
#include <QLabel>
#include <QRubberBand>

#include <algorithm>

using namespace tarvel;
using namespace tarvel::test;

namespace {

using Ids = QList<int>;

// Boxes with the ids 1 to 4 beside each other, from 20, 140, 260 and 380 on, 100 by 50 at 20.
struct FourBoxes : BehaviourEditor {
    explicit FourBoxes(int boxes = 4)
        : BehaviourEditor(boxes) {}
    static QPoint on(int id) { return {70 + 120 * (id - 1), 45}; }
    void ctrlClick(int id) {
        QTest::mouseClick(pic(), Qt::LeftButton, Qt::ControlModifier, on(id));
    }
    /// Clicks each with Ctrl held, the first one alone.
    void pick(const Ids& ids) {
        click(on(ids.front()));
        for (const int id : ids.mid(1)) {
            ctrlClick(id);
        }
    }
    void clickRow(int row, Qt::KeyboardModifiers keys = {}) {
        QListView* list = lst(1);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, keys,
                          list->visualRect(list->model()->index(row, 0)).center());
    }
    /// What the list shows as selected, as ids, by row.
    Ids inList() {
        QList<int> rows;
        for (const QModelIndex& index : lst(1)->selectionModel()->selectedIndexes()) {
            rows << index.row();
        }
        std::sort(rows.begin(), rows.end());
        Ids ids;
        for (const int row : rows) {
            ids << document().itemData(1, row);
        }
        return ids;
    }
    int leading() { return window.curNum(); }
    QRect marks() { return find<QWidget>("groupMarks")->geometry(); }
    bool marksShown() { return find<QWidget>("groupMarks")->isVisible(); }
    QList<float> lefts() {
        QList<float> values;
        for (int id = 1; id <= 4; ++id) {
            values << control(id).left;
        }
        return values;
    }
    void undo() {
        pic()->setFocus();
        key(Qt::Key_Z, Qt::ControlModifier);
    }
    bool isUndone(const SkinDocument& before) {
        undo();
        return document().holdsTheSame(before);
    }
};

} // namespace

class SeveralSelectedTest : public QObject {
    Q_OBJECT

  private slots:
    void ctrlAddsAndTakesAway();
    void theListAddsTakesAwayAndRanges();
    void aRubberBandSelectsWhatItTouches();
    void aRubberBandCanBeGivenUp();
    void aRubberBandWithCtrlAdds();
    void escapeSelectsNothing();
    void aClickOnAnEmptyPlaceSelectsNothing();
    void oneLeads();
    void dragMovesAll();
    void aClickWithoutADragSelectsOne();
    void aDragGivenUpMovesNothing();
    void handlesScaleAll();
    void arrowKeysMoveAll();
    void deleteTakesAll();
    void stackingKeepsTheirOrder();
    void lockLocksUpToTheFrontmost();
    void unselectSelectsNothing();
    void positionFieldsMoveAll();
    void panelShowsWhatDiffersAsVarious();
    void applyGivesOnlyWhatWasChanged();
    void drawingAfterVariousTakesTheLeadingValues();
    void behavioursGoToAll();
    void modifiersGoToThoseWhoseKindHasThem();
    void undoBringsTheSelectionBack();
    void rightClickKeepsThem();
};

void SeveralSelectedTest::ctrlAddsAndTakesAway() {
    FourBoxes editor;
    editor.pick({2, 4, 1});
    QCOMPARE(editor.inList(), Ids({1, 2, 4}));
    QCOMPARE(editor.leading(), 1);
    QVERIFY(editor.marksShown());
    editor.ctrlClick(4);
    QCOMPARE(editor.inList(), Ids({1, 2}));
    QCOMPARE(editor.leading(), 1);
    editor.ctrlClick(1);
    QCOMPARE(editor.leading(), 2);
    QVERIFY(!editor.marksShown());
    QVERIFY(editor.find<QWidget>("fraSel")->isVisible());
    editor.ctrlClick(2);
    QCOMPARE(editor.inList(), Ids());
    QCOMPARE(editor.leading(), 0);
    QVERIFY(!editor.entry("mnuUndo")->isEnabled()); // selecting is no step
}

void SeveralSelectedTest::theListAddsTakesAwayAndRanges() {
    FourBoxes editor;
    editor.clickRow(1);
    editor.clickRow(3, Qt::ControlModifier);
    QCOMPARE(editor.inList(), Ids({2, 4}));
    QCOMPARE(editor.leading(), 4);
    editor.clickRow(3, Qt::ControlModifier);
    QCOMPARE(editor.inList(), Ids({2}));
    QCOMPARE(editor.leading(), 2);
    editor.clickRow(0);
    editor.clickRow(2, Qt::ShiftModifier);
    QCOMPARE(editor.inList(), Ids({1, 2, 3}));
    QCOMPARE(editor.leading(), 3);
    editor.clickRow(1, Qt::ShiftModifier);
    QCOMPARE(editor.inList(), Ids({1, 2}));
    QTest::keyClick(editor.lst(1), Qt::Key_Down, Qt::ShiftModifier);
    QCOMPARE(editor.inList(), Ids({1, 2, 3}));
    QCOMPARE(editor.leading(), 3);
    editor.clickRow(2);
    QCOMPARE(editor.inList(), Ids({3}));
}

void SeveralSelectedTest::aRubberBandSelectsWhatItTouches() {
    FourBoxes editor;
    editor.selectRow(1, 0);
    editor.entry("mnuLocked")->trigger();
    editor.press({130, 200});
    QCOMPARE(editor.leading(), 0);
    editor.drag({10, 60});
    const auto* band = editor.find<QRubberBand>("selectBand");
    QVERIFY(band != nullptr && band->isVisible());
    QCOMPARE(band->geometry().united(QRect(10, 60, 120, 140)), band->geometry());
    QCOMPARE(editor.inList(), Ids()); // locked elements never
    editor.drag({260, 60});
    QCOMPARE(editor.inList(), Ids({2, 3})); // the edge of the third is touched
    QCOMPARE(editor.leading(), 3);
    editor.drag({250, 60});
    QCOMPARE(editor.inList(), Ids({2}));
    editor.drag({900, 20}); // out of the surface
    editor.release({900, 20});
    QCOMPARE(editor.inList(), Ids({2, 3, 4}));
    QVERIFY(editor.find<QRubberBand>("selectBand") == nullptr);
    QCOMPARE(editor.caption("mnuUndo"), QString("Undo lock up to Box"));
}

void SeveralSelectedTest::aRubberBandCanBeGivenUp() {
    FourBoxes editor;
    editor.pick({1, 2});
    editor.press({300, 300});
    editor.drag({500, 20});
    QCOMPARE(editor.inList(), Ids({3, 4}));
    editor.key(Qt::Key_Escape);
    QCOMPARE(editor.inList(), Ids({1, 2}));
    QCOMPARE(editor.leading(), 2);
    editor.release({500, 20});
    QCOMPARE(editor.inList(), Ids({1, 2}));
}

void SeveralSelectedTest::aRubberBandWithCtrlAdds() {
    FourBoxes editor;
    editor.pick({1});
    QTest::mousePress(editor.pic(), Qt::LeftButton, Qt::ControlModifier, {500, 300});
    editor.drag({390, 60}, Qt::ControlModifier);
    QTest::mouseRelease(editor.pic(), Qt::LeftButton, Qt::ControlModifier, {390, 60});
    QCOMPARE(editor.inList(), Ids({1, 4}));
    QCOMPARE(editor.leading(), 4);
}

void SeveralSelectedTest::escapeSelectsNothing() {
    FourBoxes editor;
    editor.pick({1, 2});
    editor.key(Qt::Key_Escape);
    QCOMPARE(editor.inList(), Ids());
    editor.clickRow(1);
    QTest::keyClick(editor.lst(1), Qt::Key_Escape);
    QCOMPARE(editor.leading(), 0);
    // With a tool chosen Escape lets the tool go, and with a field in use it is the field's.
    editor.pick({3});
    QTest::keyClick(editor.find<QLineEdit>("txtL"), Qt::Key_Escape);
    QCOMPARE(editor.leading(), 3);
}

void SeveralSelectedTest::aClickOnAnEmptyPlaceSelectsNothing() {
    FourBoxes editor;
    editor.pick({1, 2});
    editor.click({300, 300});
    QCOMPARE(editor.inList(), Ids());
    editor.pick({1, 2});
    QTest::mouseClick(editor.pic(), Qt::LeftButton, Qt::ControlModifier, {300, 300});
    QCOMPARE(editor.inList(), Ids({1, 2})); // adds nothing
}

void SeveralSelectedTest::oneLeads() {
    FourBoxes editor;
    editor.pick({1, 3});
    QCOMPARE(editor.find<QLineEdit>("txtL")->text(), QString("260"));
    QVERIFY(editor.find<QWidget>("fraSel")->geometry().contains(QRect(260, 20, 100, 50)));
    editor.click(FourBoxes::on(1)); // alone
    editor.ctrlClick(3);
    editor.press(FourBoxes::on(1)); // one of them pressed leads
    QCOMPARE(editor.leading(), 1);
    editor.key(Qt::Key_Escape);
    editor.release(FourBoxes::on(1));
    QCOMPARE(editor.inList(), Ids({1, 3}));
}

void SeveralSelectedTest::dragMovesAll() {
    FourBoxes editor;
    editor.pick({1, 3});
    const SkinDocument before = editor.document();
    editor.pressDragRelease(FourBoxes::on(1), FourBoxes::on(1) + QPoint(30, 40));
    QCOMPARE(editor.lefts(), QList<float>({50, 140, 290, 380}));
    QCOMPARE(editor.control(3).top, 60.0F);
    QCOMPARE(editor.inList(), Ids({1, 3}));
    QCOMPARE(editor.caption("mnuUndo"), QString("Undo move 2 elements"));
    QVERIFY(editor.isUndone(before));
    QCOMPARE(editor.inList(), Ids({1, 3}));
}

void SeveralSelectedTest::aClickWithoutADragSelectsOne() {
    FourBoxes editor;
    editor.pick({1, 2, 3});
    editor.click(FourBoxes::on(2));
    QCOMPARE(editor.inList(), Ids({2}));
}

void SeveralSelectedTest::aDragGivenUpMovesNothing() {
    FourBoxes editor;
    editor.pick({1, 2});
    const SkinDocument before = editor.document();
    editor.press(FourBoxes::on(2));
    editor.drag({400, 400});
    QVERIFY(editor.document() != before);
    editor.key(Qt::Key_Escape);
    editor.release({400, 400});
    QVERIFY(editor.document() == before);
    QVERIFY(!editor.entry("mnuUndo")->isEnabled());
}

void SeveralSelectedTest::handlesScaleAll() {
    FourBoxes editor;
    editor.document().editElement(2, [](Element& element) { element.elementControl.top = 120; });
    const int line = editor.add(lineFrom(20, 20, 120, 70));
    editor.selectRow(1, 0);
    editor.pick({1});
    editor.clickRow(1, Qt::ControlModifier);
    editor.clickRow(editor.document().rowOf(1, line), Qt::ControlModifier);
    const SkinDocument before = editor.document();
    // All of them cover 220 by 150 from 20, 20 on; twice as large from the corner.
    editor.pressDragRelease({240, 170}, {460, 320});
    QCOMPARE(editor.control(1).width, 200.0F);
    QCOMPARE(editor.control(1).height, 100.0F);
    QCOMPARE(editor.control(2).left, 260.0F);
    QCOMPARE(editor.control(2).top, 220.0F);
    QCOMPARE(editor.control(line).X2, 220.0F);
    QCOMPARE(editor.control(line).Y2, 120.0F);
    QCOMPARE(editor.caption("mnuUndo"), QString("Undo size 3 elements"));
    QVERIFY(editor.isUndone(before));
    // With Shift both sides grow alike.
    editor.press({240, 170});
    editor.drag({350, 170}, Qt::ShiftModifier);
    editor.release({350, 170});
    QCOMPARE(editor.control(1).width, 150.0F);
    QCOMPARE(editor.control(1).height, 75.0F);
}

void SeveralSelectedTest::arrowKeysMoveAll() {
    FourBoxes editor;
    const int line = editor.add(lineFrom(20, 200, 120, 270));
    editor.pick({1, 2});
    editor.clickRow(editor.document().rowOf(1, line), Qt::ControlModifier);
    const SkinDocument before = editor.document();
    editor.key(Qt::Key_Right);
    editor.key(Qt::Key_Right, Qt::ShiftModifier);
    editor.key(Qt::Key_Up, Qt::ControlModifier);
    QCOMPARE(editor.lefts(), QList<float>({30, 150, 260, 380}));
    QCOMPARE(editor.control(1).top, 3.0F);
    QCOMPARE(editor.control(line).X1, 30.0F);
    QCOMPARE(editor.control(line).Y2, 253.0F);
    QVERIFY(editor.isUndone(before)); // one run
}

void SeveralSelectedTest::deleteTakesAll() {
    FourBoxes editor;
    editor.pick({1, 3, 4});
    const SkinDocument before = editor.document();
    editor.key(Qt::Key_Delete);
    QCOMPARE(editor.document().rowCount(1), 1);
    QCOMPARE(editor.document().itemData(1, 0), 2);
    QCOMPARE(editor.document().screenElementCount(1), 1);
    QCOMPARE(editor.leading(), 0);
    QCOMPARE(editor.caption("mnuUndo"), QString("Undo delete 3 elements"));
    QVERIFY(editor.isUndone(before));
    QCOMPARE(editor.inList(), Ids({1, 3, 4}));
    QCOMPARE(editor.leading(), 4);
}

void SeveralSelectedTest::stackingKeepsTheirOrder() {
    FourBoxes editor;
    editor.pick({3, 1});
    const SkinDocument before = editor.document();
    const auto order = [&] {
        Ids ids;
        for (int row = 0; row < 4; ++row) {
            ids << editor.document().itemData(1, row);
        }
        return ids;
    };
    const QList<std::pair<const char*, Ids>> table = {{"mnuFront", {2, 4, 1, 3}},
                                                      {"mnuBack", {1, 3, 2, 4}},
                                                      {"mnuForward", {2, 1, 4, 3}},
                                                      {"mnuBackward", {1, 3, 2, 4}}};
    for (const auto& [entry, expected] : table) {
        editor.entry(entry)->trigger();
        QCOMPARE(order(), expected);
        QCOMPARE(editor.inList().size(), 2);
        QCOMPARE(editor.leading(), 1);
        QVERIFY2(editor.isUndone(before), entry);
    }
}

void SeveralSelectedTest::lockLocksUpToTheFrontmost() {
    FourBoxes editor;
    editor.pick({3, 1});
    const SkinDocument before = editor.document();
    editor.entry("mnuLocked")->trigger();
    QCOMPARE(editor.document().lockCount(1), 3);
    QCOMPARE(editor.inList(), Ids({1, 3}));
    QVERIFY(!editor.marksShown());
    QVERIFY(editor.isUndone(before));
}

void SeveralSelectedTest::unselectSelectsNothing() {
    FourBoxes editor;
    editor.pick({3, 1});
    editor.entry("mnuDeSel")->trigger();
    QCOMPARE(editor.inList(), Ids());
    QVERIFY(!editor.marksShown());
}

void SeveralSelectedTest::positionFieldsMoveAll() {
    FourBoxes editor;
    editor.pick({1, 3});
    const SkinDocument before = editor.document();
    const auto enter = [&](const char* name, const char* text) {
        auto* field = editor.find<QLineEdit>(name);
        typeOver(*field, text);
        QTest::keyClick(field, Qt::Key_Return);
    };
    enter("txtL", "250");
    QCOMPARE(editor.lefts(), QList<float>({10, 140, 250, 380}));
    QCOMPARE(editor.caption("mnuUndo"), QString("Undo position of 2 elements"));
    enter("txtH", "60");
    QCOMPARE(editor.control(1).height, 60.0F);
    QCOMPARE(editor.control(2).height, 50.0F);
    editor.undo();
    QVERIFY(editor.isUndone(before));
}

void SeveralSelectedTest::panelShowsWhatDiffersAsVarious() {
    FourBoxes editor;
    editor.document().editElement(2, [](Element& element) {
        element.elementAlpha = 30;
        element.elementControl.fillColor = makeColor(1, 2, 3);
    });
    editor.pick({1, 2});
    auto* opacity = editor.find<QLineEdit>("txtAlpha");
    QCOMPARE(opacity->text(), QString());
    QCOMPARE(opacity->placeholderText(), QString("various"));
    QCOMPARE(editor.find<QLabel>("lblF")->text(), QString("various"));
    QVERIFY(editor.find<QLabel>("lblL")->text() != QString("various")); // all alike
    QVERIFY(!editor.find<QPushButton>("cmdApply")->font().bold());
    editor.ctrlClick(1);
    QCOMPARE(opacity->text(), QString("30"));
    QCOMPARE(opacity->placeholderText(), QString());
    QVERIFY(editor.find<QLabel>("lblF")->text() != QString("various"));
}

void SeveralSelectedTest::applyGivesOnlyWhatWasChanged() {
    FourBoxes editor;
    editor.document().editElement(2, [](Element& element) {
        element.elementAlpha = 30;
        element.elementControl.fillColor = makeColor(1, 2, 3);
    });
    editor.pick({1, 2});
    const SkinDocument before = editor.document();
    auto* apply = editor.find<QPushButton>("cmdApply");
    click(*apply);
    QVERIFY(editor.document() == before); // nothing was changed in the panel
    editor.prompts.colors << QColor(9, 8, 7);
    QTest::mouseClick(editor.find<QWidget>("lColor"), Qt::LeftButton);
    QVERIFY(apply->font().bold());
    click(*apply);
    QVERIFY(!apply->font().bold());
    for (const int id : {1, 2}) {
        QCOMPARE(editor.control(id).borderColor, makeColor(9, 8, 7));
    }
    QCOMPARE(int{editor.document().element(1).elementAlpha}, 80);
    QCOMPARE(int{editor.document().element(2).elementAlpha}, 30);
    QCOMPARE(editor.control(2).fillColor, makeColor(1, 2, 3));
    typeOver(*editor.find<QLineEdit>("txtAlpha"), "55");
    click(*apply);
    QCOMPARE(int{editor.document().element(1).elementAlpha}, 55);
    QCOMPARE(int{editor.document().element(2).elementAlpha}, 55);
    QCOMPARE(int{editor.document().element(3).elementAlpha}, 80);
    QCOMPARE(editor.caption("mnuUndo"), QString("Undo apply changes to 2 elements"));
    editor.undo();
    QVERIFY(editor.isUndone(before));
    QCOMPARE(editor.find<QLineEdit>("txtAlpha")->placeholderText(), QString("various"));
}

void SeveralSelectedTest::drawingAfterVariousTakesTheLeadingValues() {
    FourBoxes editor;
    editor.document().editElement(2, [](Element& element) { element.elementAlpha = 30; });
    editor.pick({1, 2});
    editor.chooseTool("optBox");
    editor.pressDragRelease({300, 300}, {380, 360});
    QCOMPARE(editor.prompts.messages, QStringList());
    QCOMPARE(int{editor.document().element(5).elementAlpha}, 30);
}

void SeveralSelectedTest::behavioursGoToAll() {
    FourBoxes editor;
    editor.pick({1, 3});
    const SkinDocument before = editor.document();
    QVERIFY(editor.openPanel(1));
    typeOver(editor.at<QLineEdit>("txtTimer(3)"), "5000");
    editor.ok(1);
    for (int id = 1; id <= 4; ++id) {
        QCOMPARE(editor.document().element(id).elementTimers[3], id % 2 == 1 ? 5000 : 0);
    }
    QCOMPARE(editor.caption("mnuUndo"), QString("Undo timers of 2 elements"));
    QVERIFY(editor.isUndone(before));
    QVERIFY(editor.openPanel(2));
    test::clickRow(editor.at<QListWidget>("lstCond"), 2);
    editor.ok(2);
    QCOMPARE(editor.document().element(1).elementCondition, std::string("ItemNext "));
    QCOMPARE(editor.document().element(3).elementCondition, std::string("ItemNext "));
    QCOMPARE(editor.document().element(2).elementCondition, std::string());
}

void SeveralSelectedTest::modifiersGoToThoseWhoseKindHasThem() {
    FourBoxes editor;
    QFile catalogue(editor.path("modifiers.xml"));
    QVERIFY(catalogue.open(QIODevice::WriteOnly | QIODevice::Truncate));
    catalogue.write("<modifiers><supports><box type='1'><Fade>Fill</Fade><Wave>Fill</Wave></box>"
                    "<line type='2'><Wave>Fill</Wave></line></supports>"
                    "<types><Fade>Range</Fade><Wave>Range</Wave></types></modifiers>");
    catalogue.close();
    Element line = lineFrom(20, 200, 120, 270);
    const int id = editor.add(line);
    const auto has = [&](int element) {
        return !editor.document().element(element).elementModifiers->empty();
    };
    const int boxCode = static_cast<int>(editor.document().element(1).elementKind);
    const int lineCode = static_cast<int>(editor.document().element(id).elementKind);
    QVERIFY(catalogue.open(QIODevice::WriteOnly | QIODevice::Truncate));
    catalogue.write(QStringLiteral("<modifiers><supports><box type='%1'><Fade>Fill</Fade>"
                                   "<Wave>Fill</Wave></box><line type='%2'><Wave>Fill</Wave></line>"
                                   "</supports><types><Fade>Range</Fade><Wave>Range</Wave></types>"
                                   "</modifiers>")
                        .arg(boxCode)
                        .arg(lineCode)
                        .toUtf8());
    catalogue.close();
    const auto attach = [&](const char* type) {
        editor.clickRow(editor.document().rowOf(1, id));
        editor.clickRow(0, Qt::ControlModifier); // a box leads
        editor.attachModifier(type, 0);
        editor.ok(0);
    };
    attach("Fade");
    QVERIFY(has(1));
    QVERIFY(!has(id));
    editor.undo();
    QVERIFY(!has(1));
    attach("Wave");
    QVERIFY(has(1));
    QVERIFY(has(id));
}

void SeveralSelectedTest::undoBringsTheSelectionBack() {
    FourBoxes editor;
    editor.pick({4, 2});
    editor.key(Qt::Key_Right);
    editor.click({300, 300});
    editor.undo();
    QCOMPARE(editor.inList(), Ids({2, 4}));
    QCOMPARE(editor.leading(), 2);
    editor.clickScreen(3);
    editor.key(Qt::Key_Y, Qt::ControlModifier);
    QCOMPARE(editor.inList(), Ids({2, 4}));
    QCOMPARE(editor.lefts(), QList<float>({20, 141, 260, 381}));
}

void SeveralSelectedTest::rightClickKeepsThem() {
    FourBoxes editor;
    editor.pick({1, 2});
    QTimer::singleShot(0, [] {
        if (QWidget* popup = QApplication::activePopupWidget()) {
            popup->close();
        }
    });
    QTest::mouseClick(editor.pic(), Qt::RightButton, {}, FourBoxes::on(1));
    settle();
    QCOMPARE(editor.inList(), Ids({1, 2}));
    QCOMPARE(editor.leading(), 1);
    QTest::mouseClick(editor.pic(), Qt::RightButton, {}, FourBoxes::on(3));
    settle();
    if (QWidget* popup = QApplication::activePopupWidget()) {
        popup->close();
    }
    QCOMPARE(editor.inList(), Ids({3}));
}

TARVEL_UI_TEST(SeveralSelectedTest)

#include "several_selected_test.moc"
