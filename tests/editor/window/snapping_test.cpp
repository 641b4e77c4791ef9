// Snapping by hand: what is moved, sized and drawn meets elements or the grid, and what was met
// shows.
#include "support/behaviour_editor.h"
#include "support/menu_support.h"
#include "support/ui_test.h"
#include "surface/guide_marks.h"

#include <QSpinBox>

using namespace tarvel;
using namespace tarvel::test;

namespace {

// A box at 20, 20 with sides of 100 and 50, and one at 300, 200.
struct SnapEditor : BehaviourEditor {
    explicit SnapEditor(bool elements = true, bool grid = false)
        : BehaviourEditor(1) {
        add(boxAt(300, 200, 100, 50));
        set("mnuSnapElements", elements);
        set("mnuSnapGrid", grid);
    }
    void set(const char* name, bool on) {
        if (entry(name)->isChecked() != on) {
            entry(name)->trigger();
        }
    }
    GuideMarks& guides() { return *find<GuideMarks>("guideMarks"); }
};

} // namespace

class SnappingTest : public QObject {
    Q_OBJECT

  private slots:
    void isOffAtFirst();
    void aMovedElementMeetsAnEdge();
    void ctrlSuspendsIt();
    void aSizedElementMeetsAnEdge();
    void shiftKeepsProportionsInstead();
    void aDrawnElementMeetsEdges();
    void aPressWithoutADragStillPlaces();
    void aLineEndMeetsAnEdge();
    void severalMeetAsOne();
    void escapeHidesWhatWasMet();
    void theGridShowsAndIsMet();
    void theGridCanBeOfAnySize();
    void choicesAreRemembered();
    void nothingSnapsToWhatCannotBeRead();
};

void SnappingTest::isOffAtFirst() {
    BehaviourEditor editor(1);
    QVERIFY(!editor.entry("mnuSnapElements")->isChecked());
    QVERIFY(!editor.entry("mnuSnapGrid")->isChecked());
    editor.add(boxAt(300, 200, 100, 50));
    editor.pressDragRelease({350, 225}, {73, 325});
    QCOMPARE(editor.control(2).left, 23.0F);
    QVERIFY(!editor.find<QWidget>("guideMarks")->isVisible());
}

void SnappingTest::aMovedElementMeetsAnEdge() {
    SnapEditor editor;
    editor.press({350, 225});
    editor.drag({73, 325});
    QCOMPARE(editor.control(2).left, 20.0F);
    QCOMPARE(editor.control(2).top, 300.0F);
    QVERIFY(editor.guides().isVisible());
    QCOMPARE(editor.guides().guides().size(), std::size_t{3}); // both edges and the middle
    QCOMPARE(editor.guides().guides().front().position, 20.0);
    editor.drag({130, 325}); // far from everything
    QCOMPARE(editor.control(2).left, 80.0F);
    QVERIFY(!editor.guides().isVisible());
    editor.drag({73, 325});
    editor.release({73, 325});
    QCOMPARE(editor.control(2).left, 20.0F);
    QVERIFY(!editor.guides().isVisible());
    editor.entry("mnuUndo")->trigger();
    QCOMPARE(editor.control(2).left, 300.0F);
}

void SnappingTest::ctrlSuspendsIt() {
    SnapEditor editor;
    editor.press({350, 225});
    editor.drag({73, 325}, Qt::ControlModifier);
    QCOMPARE(editor.control(2).left, 23.0F);
    QVERIFY(!editor.guides().isVisible());
    editor.drag({73, 326});
    QCOMPARE(editor.control(2).left, 20.0F);
    editor.release({73, 326});
}

void SnappingTest::aSizedElementMeetsAnEdge() {
    SnapEditor editor;
    editor.selectRow(1, 1);
    editor.press({300, 225}); // the left edge
    editor.drag({123, 225});
    QCOMPARE(editor.control(2).left, 120.0F);
    QCOMPARE(editor.control(2).width, 280.0F);
    QCOMPARE(editor.control(2).top, 200.0F);
    editor.release({123, 225});
    QCOMPARE(editor.control(2).left, 120.0F);
}

void SnappingTest::shiftKeepsProportionsInstead() {
    SnapEditor editor;
    editor.selectRow(1, 1);
    editor.press({300, 200});
    editor.drag({124, 112}, Qt::ShiftModifier);
    QCOMPARE(editor.control(2).left, 124.0F);
    QVERIFY(!editor.guides().isVisible());
    editor.key(Qt::Key_Escape);
    editor.release({124, 112});
}

void SnappingTest::aDrawnElementMeetsEdges() {
    SnapEditor editor;
    editor.chooseTool("optBox");
    editor.pressDragRelease({123, 100}, {297, 196});
    const ElementControl& box = editor.control(3);
    QCOMPARE(box.left, 120.0F);
    QCOMPARE(box.left + box.width, 300.0F);
    QCOMPARE(box.top + box.height, 200.0F);
}

void SnappingTest::aPressWithoutADragStillPlaces() {
    SnapEditor plain(false);
    SnapEditor editor;
    for (SnapEditor* each : {&plain, &editor}) {
        each->chooseTool("optBox");
        each->press({124, 100});
        each->release({124, 100});
    }
    QCOMPARE(editor.control(3).left, 120.0F);
    QCOMPARE(editor.control(3).width, plain.control(3).width);
    QCOMPARE(editor.control(3).height, plain.control(3).height);
}

void SnappingTest::aLineEndMeetsAnEdge() {
    SnapEditor editor;
    const int line = editor.add(lineFrom(150, 300, 260, 400));
    editor.selectRow(1, 2);
    editor.press({260, 400});
    editor.drag({296, 405});
    QCOMPARE(editor.control(line).X2, 300.0F);
    QCOMPARE(editor.control(line).Y2, 405.0F);
    editor.release({296, 405});
}

void SnappingTest::severalMeetAsOne() {
    SnapEditor editor;
    const int third = editor.add(boxAt(420, 300, 60, 50));
    editor.click({350, 225});
    QTest::mouseClick(editor.pic(), Qt::LeftButton, Qt::ControlModifier, {450, 325});
    editor.press({450, 325});
    editor.drag({173, 325}); // the left edge of both together is at 23
    QCOMPARE(editor.control(2).left, 20.0F);
    QCOMPARE(editor.control(third).left, 140.0F);
    editor.release({173, 325});
}

void SnappingTest::escapeHidesWhatWasMet() {
    SnapEditor editor;
    editor.press({350, 225});
    editor.drag({73, 325});
    QVERIFY(editor.guides().isVisible());
    editor.key(Qt::Key_Escape);
    QVERIFY(!editor.guides().isVisible());
    QCOMPARE(editor.control(2).left, 300.0F);
    editor.release({73, 325});
}

void SnappingTest::theGridShowsAndIsMet() {
    SnapEditor editor(false, true);
    QVERIFY(editor.guides().isVisible());
    QCOMPARE(editor.guides().grid(), 8);
    const QImage shown = editor.pic()->grab().toImage();
    QVERIFY(shown.pixelColor(560, 400) != shown.pixelColor(563, 403)); // a dot on black
    editor.pressDragRelease({350, 225}, {423, 326});
    QCOMPARE(editor.control(2).left, 376.0F);
    QCOMPARE(editor.control(2).top, 304.0F);
    editor.set("mnuSnapGrid", false);
    QVERIFY(!editor.guides().isVisible());
}

void SnappingTest::theGridCanBeOfAnySize() {
    SnapEditor editor(false, true);
    auto* size = editor.find<QSpinBox>("txtGrid");
    QCOMPARE(size->minimum(), 2);
    QCOMPARE(size->maximum(), 64);
    size->setValue(50);
    QCOMPARE(editor.guides().grid(), 50);
    editor.pressDragRelease({350, 225}, {423, 326});
    QCOMPARE(editor.control(2).left, 350.0F);
    QCOMPARE(editor.control(2).top, 300.0F);
}

void SnappingTest::choicesAreRemembered() {
    SnapEditor editor(true, true);
    editor.find<QSpinBox>("txtGrid")->setValue(17);
    FrmMain next(editor.prompts, hostPathOf(editor.folder.path()), editor.remembered);
    QVERIFY(next.findChild<QAction*>("mnuSnapElements")->isChecked());
    QVERIFY(next.findChild<QAction*>("mnuSnapGrid")->isChecked());
    QCOMPARE(next.findChild<QSpinBox*>("txtGrid")->value(), 17);
    QCOMPARE(next.findChild<GuideMarks*>("guideMarks")->grid(), 17);
}

void SnappingTest::nothingSnapsToWhatCannotBeRead() {
    SnapEditor editor(true, false);
    editor.document().editElement(1, [](Element& element) {
        element.elementControl.left = std::numeric_limits<float>::quiet_NaN();
        element.elementControl.width = 1e30F;
    });
    editor.pressDragRelease({350, 225}, {453, 327});
    QCOMPARE(editor.control(2).left, 403.0F);
}

TARVEL_UI_TEST(SnappingTest)

#include "snapping_test.moc"
