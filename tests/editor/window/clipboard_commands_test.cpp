// Cut, Copy, Paste, Duplicate, Delete and Select All with elements, by their keys and entries.
#include "editing/stacking.h"
#include "support/behaviour_editor.h"
#include "support/clipboard_support.h"
#include "support/element_support.h"
#include "support/ui_test.h"

#include <QComboBox>
#include <QElapsedTimer>
#include <QLineEdit>

using namespace tarvel;
using namespace tarvel::test;

namespace {

constexpr auto entries = {"mnuCut",       "mnuCopy",           "mnuPaste",
                          "mnuDuplicate", "mnuDeleteSelected", "mnuSelectAll"};

// Which of the entries can be chosen: "CcPDds" for all.
QString enabled(Editor& editor) {
    constexpr std::string_view letters = "CcPDds";
    QString shown;
    std::size_t at = 0;
    for (const char* name : entries) {
        shown += QLatin1Char(editor.entry(name)->isEnabled() ? letters[at] : '-');
        ++at;
    }
    return shown;
}

// Everything that is known of an element, and nothing that is not copied.
Element richBox() {
    Element box = boxAt(30, 40, 80, 60, 37);
    box.elementTimers = {100, 200, 300, 400};
    box.elementCondition = "IsDVD";
    box.elementModifiers.edit() = parse(R"(<Modifier Type="Fade" Target="Alpha"/>)");
    return box;
}

QPointF placeOn(Editor& editor, int id) {
    return {editor.control(id).left, editor.control(id).top};
}

} // namespace

class ClipboardCommandsTest : public QObject {
    Q_OBJECT

  private slots:
    void cleanup() { clipboard().clear(); }
    void entriesHaveTheirKeys();
    void enabledForWhatCanBeDone();
    void disabledMeanwhile();
    void worksInARunOfArrowKeys();
    void copyTakesEverythingAlong();
    void pasteOnTheSameScreenShifts();
    void pasteOnAnotherScreenKeepsThePlace();
    void aNewCopyShiftsFromAnew();
    void duplicateShiftsAndSelects();
    void cutLeavesWhatIsLocked();
    void selectAllTakesTheUnlocked();
    void deleteEntryDeletes();
    void everyCommandIsOneStep_data();
    void everyCommandIsOneStep();
    void keysReachFromEverywhereButFields();
    void fieldsKeepTheirKeys_data();
    void fieldsKeepTheirKeys();
    void betweenTwoWindows();
    void tenThousand();
};

void ClipboardCommandsTest::entriesHaveTheirKeys() {
    Editor editor;
    const QList<std::pair<const char*, QKeySequence>> keys = {
        {"mnuCut", Qt::CTRL | Qt::Key_X},       {"mnuCopy", Qt::CTRL | Qt::Key_C},
        {"mnuPaste", Qt::CTRL | Qt::Key_V},     {"mnuDuplicate", Qt::CTRL | Qt::Key_D},
        {"mnuSelectAll", Qt::CTRL | Qt::Key_A}, {"mnuDeleteSelected", QKeySequence()}};
    for (const auto& [name, key] : keys) {
        QCOMPARE(editor.entry(name)->shortcut(), key);
    }
    QStringList captions;
    for (const QAction* action : editor.find<QMenu>("mnuEdit")->actions()) {
        captions << (action->isSeparator() ? QStringLiteral("-") : captionOf(*action));
    }
    QCOMPARE(captions, QStringList({"Undo", "Redo", "-", "Cut", "Copy", "Paste", "Duplicate",
                                    "Delete\tDel", "Select All"}));
}

void ClipboardCommandsTest::enabledForWhatCanBeDone() {
    BehaviourEditor editor(3);
    QCOMPARE(enabled(editor), QString("--P--s"));
    editor.selectRow(1, 1);
    QCOMPARE(enabled(editor), QString("CcPDds"));
    editor.entry("mnuLocked")->trigger();
    QCOMPARE(enabled(editor), QString("-cPDds")); // of three boxes one is not locked
    selectRows(editor, 1, {1, 2});
    QCOMPARE(enabled(editor), QString("CcPDds"));
    editor.clickScreen(2);
    QCOMPARE(enabled(editor), QString("--P---"));
    editor.clickScreen(1);
    editor.selectRow(1, 2);
    editor.entry("mnuLocked")->trigger();
    editor.entry("mnuDeSel")->trigger();
    QCOMPARE(enabled(editor), QString("--P---"));
    editor.entry("mnuUnlock")->trigger();
    QCOMPARE(enabled(editor), QString("--P--s"));
}

void ClipboardCommandsTest::disabledMeanwhile() {
    BehaviourEditor editor(2);
    editor.selectRow(1, 1);
    const QString none = "------";
    const QString all = "CcPDds";
    QVERIFY(editor.openPanel(1));
    QCOMPARE(enabled(editor), none);
    const SkinDocument before = editor.document();
    editor.keyInFocus(Qt::Key_D, Qt::ControlModifier);
    QVERIFY(editor.document() == before);
    editor.ok(1);
    QCOMPARE(enabled(editor), all);
    QVERIFY(inDialog(editor, "mnuDelays", "frmDelays",
                     [&](QWidget&) { QCOMPARE(enabled(editor), none); }));
    QVERIFY(activate(editor.window));
    QCOMPARE(enabled(editor), all);
    editor.press({160, 40});
    editor.drag({170, 50});
    QCOMPARE(enabled(editor), none);
    editor.key(Qt::Key_V, Qt::ControlModifier);
    editor.key(Qt::Key_Escape);
    editor.release({170, 50});
    QCOMPARE(enabled(editor), all);
    editor.chooseTool("optBox");
    editor.press({300, 300});
    editor.drag({330, 330});
    QCOMPARE(enabled(editor), none);
    editor.release({330, 330});
    QCOMPARE(enabled(editor), all);
}

void ClipboardCommandsTest::worksInARunOfArrowKeys() {
    BehaviourEditor editor(1);
    editor.selectRow(1, 0);
    editor.key(Qt::Key_Right);
    QVERIFY(editor.document().isRunOpen());
    QCOMPARE(enabled(editor), QString("CcPDds"));
    editor.key(Qt::Key_D, Qt::ControlModifier);
    QCOMPARE(placeOn(editor, 2), QPointF(31, 30));
    editor.entry("mnuUndo")->trigger();
    QCOMPARE(placeOn(editor, 1), QPointF(21, 20)); // the run is a step of its own
}

void ClipboardCommandsTest::copyTakesEverythingAlong() {
    Editor editor;
    editor.document().addRes("Sky", "\\skies\\sky.png");
    editor.document().addRes("Unused", "\\skies\\none.png");
    editor.add(richBox());
    Element image;
    image.elementKind = ElementKind::Image;
    image.imageSource = "Sky";
    image.elementControl.kind = ControlKind::png;
    image.elementControl.file = "\\skies\\sky.png";
    image.elementAlpha = 55;
    image.label = imageKind.label(image);
    editor.add(image);
    editor.show();
    selectRows(editor, 1, {1, 0});
    const ClipboardContent content = copyElements(editor.document(), {1, 2});
    editor.key(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(statusOf(editor), QString("Copied 2 elements"));
    const QMimeData* data = clipboard().mimeData();
    const QByteArray bytes = data->data(elementsFormat);
    QVERIFY(readClipboardBytes(bytes.toStdString()) == content);
    QCOMPARE(content.resources.size(), std::size_t{1});
    QCOMPARE(data->text(), qtText(clipboardText(content)));

    editor.clickScreen(3);
    editor.key(Qt::Key_V, Qt::ControlModifier);
    for (const int id : {1, 2}) {
        Element wanted = editor.document().element(id);
        wanted.elementLayout = 3;
        QVERIFY(editor.document().element(id + 2) == wanted);
    }
    QCOMPARE(selectedRows(editor, 3), QList<int>({0, 1}));
    QCOMPARE(statusOf(editor), QString("Paste 2 elements"));
    QCOMPARE(editor.document().settings().resources.size(), std::size_t{2});
}

void ClipboardCommandsTest::pasteOnTheSameScreenShifts() {
    BehaviourEditor editor(2);
    editor.selectRow(1, 1);
    editor.key(Qt::Key_C, Qt::ControlModifier);
    for (int time = 1; time <= 3; ++time) {
        editor.key(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(editor.document().rowCount(1), 2 + time);
        QCOMPARE(placeOn(editor, 2 + time), QPointF(140 + 10 * time, 20 + 10 * time));
        QCOMPARE(selectedRows(editor, 1), QList<int>({1 + time}));
        QCOMPARE(editor.window.curNum(), 2 + time);
    }
}

void ClipboardCommandsTest::pasteOnAnotherScreenKeepsThePlace() {
    BehaviourEditor editor(2);
    editor.selectRow(1, 1);
    editor.key(Qt::Key_C, Qt::ControlModifier);
    editor.clickScreen(4);
    editor.key(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(placeOn(editor, 3), QPointF(140, 20));
    QCOMPARE(editor.document().rowCount(4), 1);
    editor.key(Qt::Key_V, Qt::ControlModifier); // where there is one already it goes beside it
    QCOMPARE(placeOn(editor, 4), QPointF(150, 30));
    editor.clickScreen(1);
    editor.key(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(placeOn(editor, 5), QPointF(150, 30));
}

void ClipboardCommandsTest::aNewCopyShiftsFromAnew() {
    BehaviourEditor editor(2);
    editor.selectRow(1, 0);
    editor.key(Qt::Key_C, Qt::ControlModifier);
    editor.key(Qt::Key_V, Qt::ControlModifier);
    editor.key(Qt::Key_V, Qt::ControlModifier);
    editor.selectRow(1, 0);
    editor.key(Qt::Key_C, Qt::ControlModifier);
    editor.key(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(placeOn(editor, 5), QPointF(30, 30));
}

void ClipboardCommandsTest::duplicateShiftsAndSelects() {
    BehaviourEditor editor(2);
    editor.add(lineFrom(5, 6, 70, 80));
    putOnClipboard([](QMimeData& data) { data.setText("stays"); });
    selectRows(editor, 1, {0, 2});
    editor.key(Qt::Key_D, Qt::ControlModifier);
    QCOMPARE(placeOn(editor, 4), QPointF(30, 30));
    QCOMPARE(editor.control(5).X1, 15.0F);
    QCOMPARE(editor.control(5).Y2, 90.0F);
    QCOMPARE(selectedRows(editor, 1), QList<int>({3, 4}));
    editor.key(Qt::Key_D, Qt::ControlModifier);
    QCOMPARE(placeOn(editor, 6), QPointF(40, 40));
    QCOMPARE(clipboard().text(), QString("stays"));
}

void ClipboardCommandsTest::cutLeavesWhatIsLocked() {
    BehaviourEditor editor(3);
    editor.selectRow(1, 0);
    editor.entry("mnuLocked")->trigger();
    selectRows(editor, 1, {0, 1, 2});
    editor.key(Qt::Key_X, Qt::ControlModifier);
    QCOMPARE(idsOn(editor, 1), std::vector<int>{1});
    QCOMPARE(selectedRows(editor, 1), QList<int>());
    QCOMPARE(statusOf(editor), QString("Cut 2 elements"));
    editor.key(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(idsOn(editor, 1), (std::vector<int>{1, 4, 5}));
    selectRows(editor, 1, {0}); // a locked one can be copied, and its copy is free
    editor.key(Qt::Key_X, Qt::ControlModifier);
    QCOMPARE(idsOn(editor, 1), (std::vector<int>{1, 4, 5}));
    editor.key(Qt::Key_C, Qt::ControlModifier);
    editor.key(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(idsOn(editor, 1), (std::vector<int>{1, 4, 5, 6}));
    QVERIFY(!editor.document().element(6).elementLocked);
}

void ClipboardCommandsTest::selectAllTakesTheUnlocked() {
    BehaviourEditor editor(4);
    editor.selectRow(1, 1);
    editor.entry("mnuLocked")->trigger();
    editor.key(Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(selectedRows(editor, 1), QList<int>({2, 3}));
    QCOMPARE(editor.window.curNum(), 4);
    QVERIFY(!editor.document().isEditOpen());
    QCOMPARE(editor.caption("mnuUndo"), QString("Undo lock up to Box")); // no step
}

void ClipboardCommandsTest::deleteEntryDeletes() {
    BehaviourEditor editor(3);
    editor.selectRow(1, 1);
    QVERIFY(choose(editor, "mnuDeleteSelected"));
    QCOMPARE(idsOn(editor, 1), (std::vector<int>{1, 3}));
}

void ClipboardCommandsTest::everyCommandIsOneStep_data() {
    QTest::addColumn<QString>("entry");
    QTest::addColumn<std::vector<int>>("rows");
    QTest::addColumn<QString>("step");
    QTest::newRow("cut one") << "mnuCut" << std::vector{1} << "cut Box";
    QTest::newRow("cut three") << "mnuCut" << std::vector{0, 1, 2} << "cut 3 elements";
    QTest::newRow("paste one") << "mnuPaste" << std::vector{1} << "paste Box";
    QTest::newRow("paste two") << "mnuPaste" << std::vector{0, 2} << "paste 2 elements";
    QTest::newRow("duplicate one") << "mnuDuplicate" << std::vector{1} << "duplicate Box";
    QTest::newRow("duplicate two") << "mnuDuplicate" << std::vector{2, 1} << "duplicate 2 elements";
    QTest::newRow("delete one") << "mnuDeleteSelected" << std::vector{1} << "delete Box";
}

void ClipboardCommandsTest::everyCommandIsOneStep() {
    QFETCH(QString, entry);
    QFETCH(std::vector<int>, rows);
    QFETCH(QString, step);
    BehaviourEditor editor(3);
    selectRows(editor, 1, rows);
    editor.entry("mnuCopy")->trigger();
    QVERIFY(!editor.entry("mnuUndo")->isEnabled()); // which is no step
    const QList<int> selected = selectedRows(editor, 1);
    const SkinDocument before = editor.document();
    editor.window.findChild<QAction*>(entry)->trigger();
    const SkinDocument after = editor.document();
    const QList<int> selectedAfter = selectedRows(editor, 1);
    QVERIFY(!after.holdsTheSame(before));
    QCOMPARE(editor.caption("mnuUndo"), "Undo " + step);
    editor.entry("mnuUndo")->trigger();
    QVERIFY(editor.document().holdsTheSame(before));
    QCOMPARE(selectedRows(editor, 1), selected);
    QVERIFY(!editor.entry("mnuUndo")->isEnabled());
    editor.entry("mnuRedo")->trigger();
    QVERIFY(editor.document().holdsTheSame(after));
    QCOMPARE(selectedRows(editor, 1), selectedAfter);
}

void ClipboardCommandsTest::keysReachFromEverywhereButFields() {
    BehaviourEditor editor(2);
    int rows = 2;
    for (const char* name : {"lst(1)", "cmdApply", "optScreen(1)", "optBox", "Pic"}) {
        selectRows(editor, 1, {1});
        auto* widget = editor.find<QWidget>(name);
        widget->setFocus();
        QVERIFY2(widget->hasFocus(), name);
        clipboard().clear();
        QTest::keyClick(widget, Qt::Key_C, Qt::ControlModifier);
        QVERIFY2(clipboard().mimeData()->hasFormat(elementsFormat), name);
        QTest::keyClick(widget, Qt::Key_V, Qt::ControlModifier);
        QTest::keyClick(widget, Qt::Key_D, Qt::ControlModifier);
        rows += 2;
        QCOMPARE(QStringLiteral("%1 %2").arg(name).arg(editor.document().rowCount(1)),
                 QStringLiteral("%1 %2").arg(name).arg(rows));
        QTest::keyClick(widget, Qt::Key_A, Qt::ControlModifier);
        QVERIFY2(selectedRows(editor, 1).size() == rows, name);
    }
}

void ClipboardCommandsTest::fieldsKeepTheirKeys_data() {
    QTest::addColumn<QString>("name");
    for (const char* name : {"txtAlpha", "txtL"}) {
        QTest::newRow(name) << name;
    }
}

void ClipboardCommandsTest::fieldsKeepTheirKeys() {
    QFETCH(QString, name);
    BehaviourEditor editor(2);
    editor.selectRow(1, 1);
    auto& field = editor.at<QLineEdit>(name);
    field.setFocus();
    field.setText("123");
    field.deselect();
    QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(field.selectedText(), QString("123"));
    QCOMPARE(selectedRows(editor, 1), QList<int>({1}));
    QTest::keyClick(&field, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(clipboard().text(), QString("123"));
    QTest::keyClick(&field, Qt::Key_X, Qt::ControlModifier);
    QCOMPARE(field.text(), QString());
    QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(field.text(), QString("123"));
    QCOMPARE(editor.document().rowCount(1), 2);
    QTest::keyClick(&field, Qt::Key_D, Qt::ControlModifier); // which a field has no use for
    QCOMPARE(field.text(), QString("123"));
    QCOMPARE(editor.document().rowCount(1), 2);
    QTest::keyClick(&field, Qt::Key_Escape);
    editor.pic()->setFocus();
}

// A picture that the other skin lacks comes along, and gets a name that is free there.
void ClipboardCommandsTest::betweenTwoWindows() {
    Editor first;
    Editor second;
    first.document().addRes("Sky", "\\one\\sky.png");
    second.document().addRes("sky", "\\two\\other.png");
    Element image;
    image.elementKind = ElementKind::Image;
    image.imageSource = "Sky";
    image.elementControl.kind = ControlKind::png;
    image.elementControl.file = "\\one\\sky.png";
    image.elementControl.left = 12;
    first.add(image);
    first.show();
    first.selectRow(1, 0);
    first.key(Qt::Key_C, Qt::ControlModifier);
    second.show();
    second.key(Qt::Key_V, Qt::ControlModifier);
    const auto resources = [&] { return second.document().settings().resources; };
    QCOMPARE(resources().size(), std::size_t{2});
    QCOMPARE(resources().back(), (Resource{"Sky 2", "\\one\\sky.png", true, false}));
    const Element& pasted = second.document().element(1);
    QCOMPARE(pasted.imageSource, std::string("Sky 2"));
    QCOMPARE(pasted.elementControl.left, 12.0F); // there it is on another screen
    second.key(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(second.control(2).left, 22.0F);
    QCOMPARE(resources().size(), std::size_t{2});
    second.entry("mnuUndo")->trigger();
    second.entry("mnuUndo")->trigger();
    QCOMPARE(resources().size(), std::size_t{1});
    QCOMPARE(second.document().rowCount(1), 0);
}

void ClipboardCommandsTest::tenThousand() {
    Editor editor;
    constexpr int many = 10'000;
    SkinDocument large;
    for (int i = 0; i < many; ++i) {
        large.addElement(
            boxAt(static_cast<float>(i % 100) * 5, static_cast<float>(i / 100) * 4, 4, 3));
    }
    editor.document() = large;
    editor.show();
    const auto timed = [&](const char* what, Qt::Key key) {
        QElapsedTimer timer;
        timer.start();
        editor.key(key, Qt::ControlModifier);
        qInfo("%s of %d elements: %lld ms", what, many, static_cast<long long>(timer.elapsed()));
    };
    timed("Select All", Qt::Key_A);
    QCOMPARE(editor.lst(1)->selectionModel()->selectedIndexes().size(), many);
    timed("Copy", Qt::Key_C);
    timed("Paste", Qt::Key_V);
    QCOMPARE(editor.document().rowCount(1), 2 * many);
    QCOMPARE(editor.control(2 * many).left, editor.control(many).left + 10);
    timed("Cut", Qt::Key_X);
    QCOMPARE(editor.document().rowCount(1), many);
}

TARVEL_UI_TEST(ClipboardCommandsTest)
#include "clipboard_commands_test.moc"
