// Undo and redo in the window: every command is one step, and goes back and forth exactly.
#include "panels/property_panel.h"
#include "support/behaviour_editor.h"
#include "support/ui_test.h"

#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QPlainTextEdit>

#include <vector>

using namespace tarvel;
using namespace tarvel::test;

namespace {

constexpr auto aurora = TARVEL_EXAMPLES_DIR "/aurora";

// All that undo and redo bring back.
struct Shown {
    SkinDocument document;
    int screen;
    int selected;
    PanelValues panel;
    QList<int> rowsSelected;

    explicit Shown(BehaviourEditor& editor)
        : document(editor.document())
        , screen(document.currentLayout())
        , selected(editor.window.curNum())
        , panel(editor.find<PropertyPanel>("")->values()) {
        panel.position = {}; // shown by the position fields, from the element
        for (int each = 0; each < screenCount; ++each) {
            rowsSelected << (each == screen ? editor.selectedRow(each) : -1);
        }
    }
};

// What differs, in words; empty for nothing.
QString difference(const Shown& now, const Shown& wanted) {
    QStringList words;
    const auto note = [&](bool same, const char* what) {
        if (!same) {
            words << QLatin1String(what);
        }
    };
    note(now.document.holdsTheSame(wanted.document), "document");
    note(now.screen == wanted.screen, "screen");
    note(now.selected == wanted.selected, "selection");
    note(now.panel == wanted.panel, "panel");
    note(now.rowsSelected == wanted.rowsSelected, "row");
    return words.join(QLatin1Char(' '));
}

QLabel& unsaved(BehaviourEditor& editor) {
    return *editor.find<QLabel>("lblUnsaved");
}

void closeDialogWith(BehaviourEditor& editor, const char* entry, const char* name,
                     const Work& work) {
    QVERIFY(inDialog(editor, entry, name, work));
    QVERIFY(activate(editor.window));
}

struct Act {
    const char* name; // of the step
    int boxes;        // on "Menu" before it
    int selectedRow;  // -1 for none
    std::function<void(BehaviourEditor&)> act;
    std::function<void(BehaviourEditor&)> prepare = {};
};

void chooseEntry(BehaviourEditor& editor, const char* name) {
    editor.entry(name)->trigger();
}

const std::vector<Act>& acts() {
    static const std::vector<Act> table = {
        {"draw Box", 1, -1,
         [](auto& editor) {
             editor.chooseTool("optBox");
             editor.pressDragRelease({300, 300}, {380, 360});
         }},
        {"draw Line", 0, -1,
         [](auto& editor) {
             editor.chooseTool("optLine");
             editor.pressDragRelease({300, 300}, {380, 360});
         }},
        {"draw Box", 2, -1,
         [](auto& editor) {
             editor.chooseTool("optBox");
             editor.key(Qt::Key_Return);
         }},
        {"move Box", 2, 1,
         [](auto& editor) {
             editor.pressDragRelease({180, 40}, {160, 240});
         }},
        {"size Box", 2, 0,
         [](auto& editor) {
             editor.pressDragRelease({120, 70}, {170, 90});
         }},
        {"move end of Line", 0, 0,
         [](auto& editor) {
             editor.pressDragRelease({200, 200}, {250, 220});
         },
         [](auto& editor) { editor.add(lineFrom(100, 100, 200, 200)); }},
        {"move Box", 1, 0,
         [](auto& editor) {
             for (const auto key : {Qt::Key_Right, Qt::Key_Down, Qt::Key_Right}) {
                 editor.key(key);
             }
         }},
        {"delete Box", 3, 1, [](auto& editor) { editor.key(Qt::Key_Delete); }},
        {"bring to front Box", 4, 1, [](auto& editor) { chooseEntry(editor, "mnuFront"); }},
        {"send to back Box", 4, 2, [](auto& editor) { chooseEntry(editor, "mnuBack"); }},
        {"bring forward Box", 4, 1, [](auto& editor) { chooseEntry(editor, "mnuForward"); }},
        {"send backward Box", 4, 2, [](auto& editor) { chooseEntry(editor, "mnuBackward"); }},
        {"lock up to Box", 3, 1, [](auto& editor) { chooseEntry(editor, "mnuLocked"); }},
        {"unlock all", 3, -1, [](auto& editor) { chooseEntry(editor, "mnuUnlock"); },
         [](auto& editor) {
             editor.selectRow(1, 1);
             chooseEntry(editor, "mnuLocked");
             chooseEntry(editor, "mnuDeSel");
         }},
        {"apply changes to Box", 2, 1,
         [](auto& editor) {
             typeOver(*editor.template find<QLineEdit>("txtAlpha"), "35");
             click(*editor.template find<QPushButton>("cmdApply"));
         }},
        {"position of Box", 1, 0,
         [](auto& editor) {
             auto& field = *editor.template find<QLineEdit>("txtL");
             typeOver(field, "77");
             QTest::keyClick(&field, Qt::Key_Return);
         }},
        {"modifier of Box", 1, 0,
         [](auto& editor) {
             editor.attachModifier("Fade", 0);
             editor.ok(0);
         }},
        {"timers of Box", 1, 0,
         [](auto& editor) {
             QVERIFY(editor.openPanel(1));
             typeOver(editor.template at<QLineEdit>("txtTimer(3)"), "5000");
             editor.ok(1);
         }},
        {"condition of Box", 1, 0,
         [](auto& editor) {
             QVERIFY(editor.openPanel(2));
             clickRow(editor.template at<QListWidget>("lstCond"), 2);
             editor.ok(2);
         }},
        {"change delays", 1, 0,
         [](auto& editor) {
             closeDialogWith(editor, "mnuDelays", "frmDelays", [](QWidget& dialog) {
                 for (const int row : {0, 1}) {
                     clickRow(control<QListWidget>(dialog, "lstFields"), row);
                     QTest::keyClicks(&control<QLineEdit>(dialog, "txtData"), "12");
                 }
             });
         }},
        {"change skin info", 1, 0,
         [](auto& editor) {
             closeDialogWith(editor, "mnuInfo", "frmInfo", [](QWidget& dialog) {
                 typeOver(control<QLineEdit>(dialog, "txtName"), "Nova");
             });
         }},
        {"change system colors", 1, 0,
         [](auto& editor) {
             editor.prompts.colors << QColor(1, 2, 3);
             closeDialogWith(editor, "mnuColors", "frmColors",
                             [](QWidget& dialog) { click(control<QWidget>(dialog, "fColor(0)")); });
         }},
        {"load background", 0, -1,
         [](auto& editor) {
             const QString file = editor.path("back.bmp");
             QVERIFY(QImage(8, 8, QImage::Format_RGB32).save(file));
             editor.prompts.fileChoices << QStringList(file);
             chooseEntry(editor, "mnuLoadBg");
         }},
        {"unload background", 0, -1, [](auto& editor) { chooseEntry(editor, "mnuUnloadBg"); },
         [](auto& editor) {
             editor.document().editSettings([](SkinSettings& settings) {
                 settings.background = {true, "x.bmp"};
             });
         }},
        {"load skin", 2, 1,
         [](auto& editor) {
             editor.prompts.folders << aurora;
             chooseEntry(editor, "mnuLoad");
         },
         [](auto& editor) { editor.clickScreen(3); }},
    };
    return table;
}

QString textOf(BehaviourEditor& editor, const char* entry) {
    return editor.caption(entry);
}

} // namespace

class UndoTest : public QObject {
    Q_OBJECT

  private slots:
    void everyCommandIsOneStep_data();
    void everyCommandIsOneStep();
    void aDropIsOneStep();
    void aStepThatChangesNothingIsNone_data();
    void aStepThatChangesNothingIsNone();
    void nudgesAreOneRunUntilSomethingElse();
    void idsAreNotHandedOutTwice();
    void leadsToTheScreenOfTheStep();
    void bothAreDisabledMeanwhile();
    void keysBelongToAFieldThatHasChanges();
    void aPositionThatWasEnteredIsTheDocuments();
    void keysReachTheDocumentFromEverywhere();
    void unsavedChangesAreTold();
    void loadingOverWorkLeavesItUnsaved();
    void filesStayAsTheyAre();
    void savingKeepsTheSteps();
};

void UndoTest::everyCommandIsOneStep_data() {
    QTest::addColumn<int>("index");
    for (std::size_t i = 0; i < acts().size(); ++i) {
        QTest::addRow("%s, case %d", acts()[i].name, static_cast<int>(i)) << static_cast<int>(i);
    }
}

void UndoTest::everyCommandIsOneStep() {
    QFETCH(int, index);
    const Act& act = acts()[static_cast<std::size_t>(index)];
    BehaviourEditor editor(act.boxes);
    if (act.prepare) {
        act.prepare(editor);
    }
    const int screen = editor.document().currentLayout();
    if (act.selectedRow >= 0 && editor.document().rowCount(screen) > 0) {
        editor.selectRow(screen, act.selectedRow);
    }
    editor.pic()->setFocus();
    const QString earlier = textOf(editor, "mnuUndo");
    const Shown before(editor);
    const int ids = before.document.lastElementId();
    act.act(editor);
    const Shown after(editor);
    QVERIFY(!after.document.holdsTheSame(before.document));
    QCOMPARE(textOf(editor, "mnuUndo"), QStringLiteral("Undo %1").arg(act.name));
    QVERIFY(editor.entry("mnuUndo")->isEnabled());
    QVERIFY(!editor.entry("mnuRedo")->isEnabled());

    for (int time = 0; time < 2; ++time) {
        editor.pic()->setFocus();
        editor.key(Qt::Key_Z, Qt::ControlModifier);
        const Shown undone(editor);
        QCOMPARE(difference(undone, before), QString());
        QCOMPARE(textOf(editor, "mnuUndo"), earlier);
        QCOMPARE(textOf(editor, "mnuRedo"), QStringLiteral("Redo %1").arg(act.name));
        if (time == 0) {
            editor.key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        } else {
            editor.key(Qt::Key_Y, Qt::ControlModifier);
        }
        QCOMPARE(difference(Shown(editor), after), QString());
        QCOMPARE(textOf(editor, "mnuRedo"), QString("Redo"));
    }
    QVERIFY(editor.document().lastElementId() >= ids);
}

void UndoTest::aDropIsOneStep() {
    BehaviourEditor editor(1);
    const QString file = editor.path("drop.png");
    QVERIFY(QImage(8, 8, QImage::Format_RGB32).save(file));
    const Shown before(editor);
    const bool closed =
        inDialog([&] { dropFiles(*editor.pic(), {file}); }, "frmResources",
                 [](QWidget& dialog) { click(control<QPushButton>(dialog, "cmdAdd")); });
    QVERIFY(closed);
    QVERIFY(activate(editor.window));
    QCOMPARE(editor.document().settings().resources.size(), std::size_t{1});
    QCOMPARE(textOf(editor, "mnuUndo"), QString("Undo change resources"));
    editor.entry("mnuUndo")->trigger();
    QCOMPARE(difference(Shown(editor), before), QString());
    editor.entry("mnuRedo")->trigger();
    QCOMPARE(editor.document().settings().resources.size(), std::size_t{1});
}

void UndoTest::aStepThatChangesNothingIsNone_data() {
    QTest::addColumn<int>("which");
    const QStringList names = {"apply",         "position",       "dialog",        "panel",
                               "drag and back", "drag given up",  "draw given up", "front of all",
                               "screens",       "cancelled load", "failed load"};
    for (int i = 0; i < names.size(); ++i) {
        QTest::newRow(qPrintable(names[i])) << i;
    }
}

void UndoTest::aStepThatChangesNothingIsNone() {
    QFETCH(int, which);
    BehaviourEditor editor(2);
    editor.selectRow(1, 1);
    const std::vector<std::function<void()>> table = {
        [&] { click(*editor.find<QPushButton>("cmdApply")); },
        [&] { QTest::keyClick(editor.find<QLineEdit>("txtL"), Qt::Key_Return); },
        [&] { closeDialogWith(editor, "mnuDelays", "frmDelays", [](QWidget&) {}); },
        [&] {
            QVERIFY(editor.openPanel(1));
            editor.ok(1);
        },
        [&] {
            editor.press({160, 40});
            editor.drag({260, 90});
            editor.drag({160, 40});
            editor.release({160, 40});
        },
        [&] {
            editor.press({160, 40});
            editor.drag({260, 90});
            editor.key(Qt::Key_Escape);
            editor.release({260, 90});
        },
        [&] {
            editor.chooseTool("optBox");
            editor.press({300, 300});
            editor.drag({360, 390});
            editor.key(Qt::Key_Escape);
            editor.release({360, 390});
        },
        [&] { chooseEntry(editor, "mnuFront"); },
        [&] {
            editor.clickScreen(2);
            editor.clickScreen(1);
        },
        [&] { chooseEntry(editor, "mnuLoad"); },
        [&] {
            editor.prompts.folders << editor.newFolder("no skin");
            chooseEntry(editor, "mnuLoad");
        }};
    table[static_cast<std::size_t>(which)]();
    QVERIFY(!editor.entry("mnuUndo")->isEnabled());
    QCOMPARE(textOf(editor, "mnuUndo"), QString("Undo"));
}

void UndoTest::nudgesAreOneRunUntilSomethingElse() {
    BehaviourEditor editor(2);
    editor.selectRow(1, 0);
    editor.key(Qt::Key_Right);
    editor.key(Qt::Key_Right);
    editor.selectRow(1, 1); // another box of the same name
    editor.key(Qt::Key_Right);
    editor.entry("mnuUndo")->trigger();
    QCOMPARE(editor.control(2).left, 140.0F);
    QCOMPARE(editor.control(1).left, 22.0F);
    QCOMPARE(editor.window.curNum(), 2);
    editor.entry("mnuUndo")->trigger();
    QCOMPARE(editor.control(1).left, 20.0F);
    QCOMPARE(editor.window.curNum(), 1);
    // A second later it is another run.
    editor.key(Qt::Key_Down);
    QTRY_VERIFY(!editor.document().isEditOpen());
    editor.key(Qt::Key_Down);
    editor.entry("mnuUndo")->trigger();
    QCOMPARE(editor.control(1).top, 21.0F);
    editor.entry("mnuUndo")->trigger();
    QCOMPARE(editor.control(1).top, 20.0F);
}

void UndoTest::idsAreNotHandedOutTwice() {
    BehaviourEditor editor(1);
    const auto draw = [&] {
        editor.chooseTool("optBox");
        editor.pressDragRelease({300, 300}, {380, 360});
        return editor.window.curNum();
    };
    QCOMPARE(draw(), 2);
    editor.entry("mnuUndo")->trigger();
    QCOMPARE(draw(), 3);
    QCOMPARE(editor.document().rowCount(1), 2);
    editor.entry("mnuUndo")->trigger();
    editor.entry("mnuRedo")->trigger();
    QCOMPARE(editor.window.curNum(), 3);
    QCOMPARE(draw(), 4);
}

void UndoTest::leadsToTheScreenOfTheStep() {
    BehaviourEditor editor(2);
    editor.selectRow(1, 1);
    editor.pressDragRelease({160, 40}, {260, 140});
    editor.clickScreen(4);
    editor.entry("mnuUndo")->trigger();
    QCOMPARE(editor.document().currentLayout(), 1);
    QVERIFY(editor.optScreen(1)->isChecked());
    QVERIFY(editor.lst(1)->isVisible());
    QCOMPARE(editor.selectedRow(1), 1);
    QCOMPARE(editor.find<QLineEdit>("txtL")->text(), QString("140"));
    editor.clickScreen(0);
    editor.entry("mnuRedo")->trigger();
    QCOMPARE(editor.document().currentLayout(), 1);
    QCOMPARE(editor.find<QLineEdit>("txtL")->text(), QString("240"));
}

void UndoTest::bothAreDisabledMeanwhile() {
    BehaviourEditor editor(2);
    editor.selectRow(1, 1);
    for (int step = 0; step < 2; ++step) {
        editor.pressDragRelease({160, 40}, {180, 40});
        editor.pressDragRelease({180, 40}, {160, 40});
    }
    editor.entry("mnuUndo")->trigger();
    const auto enabled = [&] {
        return editor.entry("mnuUndo")->isEnabled() && editor.entry("mnuRedo")->isEnabled();
    };
    const auto disabled = [&] {
        return !editor.entry("mnuUndo")->isEnabled() && !editor.entry("mnuRedo")->isEnabled();
    };
    QVERIFY(enabled());
    const SkinDocument before = editor.document();
    QVERIFY(editor.openPanel(1));
    QVERIFY(disabled());
    editor.keyInFocus(Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(editor.document() == before);
    editor.ok(1);
    QVERIFY(enabled());

    closeDialogWith(editor, "mnuDelays", "frmDelays", [&](QWidget& dialog) {
        QVERIFY(disabled());
        QTest::keyClick(&dialog, Qt::Key_Z, Qt::ControlModifier);
    });
    QVERIFY(editor.document() == before);
    QVERIFY(enabled());

    const float left = editor.control(2).left;
    const QPoint on(static_cast<int>(left) + 20, 40);
    editor.press(on);
    editor.drag(on + QPoint(5, 5));
    QVERIFY(disabled());
    editor.key(Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(editor.document() != before);
    editor.key(Qt::Key_Escape);
    editor.release(on);
    QVERIFY(enabled());
    QVERIFY(editor.document() == before);
}

void UndoTest::keysBelongToAFieldThatHasChanges() {
    BehaviourEditor editor(1);
    editor.selectRow(1, 0);
    editor.pressDragRelease({60, 40}, {90, 40});
    auto& field = *editor.find<QLineEdit>("txtAlpha");
    field.setFocus();
    typeOver(field, "35");
    QTest::keyClick(&field, Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(field.text() != QString("35"));
    QCOMPARE(editor.control(1).left, 50.0F);
    QTest::keyClick(&field, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(field.text(), QString("35"));
    QCOMPARE(editor.control(1).left, 50.0F);
}

void UndoTest::aPositionThatWasEnteredIsTheDocuments() {
    BehaviourEditor editor(1);
    editor.selectRow(1, 0);
    auto& field = *editor.find<QLineEdit>("txtL");
    typeOver(field, "77");
    QTest::keyClick(&field, Qt::Key_Return);
    QCOMPARE(editor.control(1).left, 77.0F);
    field.setFocus();
    QTest::keyClick(&field, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(editor.control(1).left, 20.0F);
    QCOMPARE(field.text(), QString("20"));
}

void UndoTest::keysReachTheDocumentFromEverywhere() {
    BehaviourEditor editor(1);
    editor.selectRow(1, 0);
    int reached = 0;
    for (const char* name : {"txtAlpha", "txtL", "cmdApply", "lst(1)", "optScreen(1)", "Pic"}) {
        editor.pressDragRelease({60, 40}, {90, 40});
        auto* widget = editor.find<QWidget>(name);
        widget->setFocus();
        QVERIFY2(widget->hasFocus(), name);
        QTest::keyClick(widget, Qt::Key_Z, Qt::ControlModifier);
        QVERIFY2(editor.control(1).left == 20.0F, name);
        ++reached;
    }
    QCOMPARE(reached, 6);
}

void UndoTest::unsavedChangesAreTold() {
    BehaviourEditor editor(0);
    QCOMPARE(unsaved(editor).text(), QString());
    editor.nameSkin("Nova");
    editor.chooseTool("optBox");
    editor.pressDragRelease({300, 300}, {380, 360});
    QVERIFY(unsaved(editor).isVisible());
    QCOMPARE(unsaved(editor).text(), QString("Unsaved changes"));
    QStringList seen;
    closeNextDialog(seen);
    editor.prompts.folders << editor.newFolder("out");
    chooseEntry(editor, "mnuSave");
    QVERIFY(QFile::exists(editor.path("out/QOR_Skin.xml")));
    QCOMPARE(unsaved(editor).text(), QString());
    editor.entry("mnuUndo")->trigger();
    QCOMPARE(unsaved(editor).text(), QString("Unsaved changes"));
    editor.entry("mnuRedo")->trigger();
    QCOMPARE(unsaved(editor).text(), QString());
    editor.clickScreen(4);
    QCOMPARE(unsaved(editor).text(), QString());
}

void UndoTest::loadingOverWorkLeavesItUnsaved() {
    BehaviourEditor editor(0);
    editor.prompts.folders << aurora << aurora;
    chooseEntry(editor, "mnuLoad");
    QVERIFY(editor.document().rowCount(1) > 0);
    QCOMPARE(unsaved(editor).text(), QString());
    chooseEntry(editor, "mnuLoad"); // both together are in no folder
    QCOMPARE(unsaved(editor).text(), QString("Unsaved changes"));
    editor.entry("mnuUndo")->trigger();
    QCOMPARE(unsaved(editor).text(), QString());
    editor.entry("mnuUndo")->trigger(); // the folder holds what is not shown any more
    QCOMPARE(unsaved(editor).text(), QString("Unsaved changes"));
}

void UndoTest::filesStayAsTheyAre() {
    BehaviourEditor editor(1);
    editor.nameSkin("Nova");
    editor.selectRow(1, 0);
    editor.pressDragRelease({60, 40}, {90, 40});
    QStringList seen;
    closeNextDialog(seen);
    const QString folder = editor.newFolder("out");
    editor.prompts.folders << folder;
    chooseEntry(editor, "mnuSave");
    const auto saved = [&] {
        QFile file(folder + "/QOR_Skin.xml");
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    const QByteArray text = saved();
    QVERIFY(!text.isEmpty());
    editor.entry("mnuUndo")->trigger();
    QCOMPARE(saved(), text);
    editor.entry("mnuRedo")->trigger();
    QCOMPARE(saved(), text);
}

void UndoTest::savingKeepsTheSteps() {
    BehaviourEditor editor(1);
    editor.nameSkin("Nova");
    editor.selectRow(1, 0);
    editor.pressDragRelease({60, 40}, {90, 40});
    QStringList seen;
    closeNextDialog(seen);
    editor.prompts.folders << editor.newFolder("out");
    chooseEntry(editor, "mnuSave");
    QCOMPARE(textOf(editor, "mnuUndo"), QString("Undo move Box"));
    editor.entry("mnuUndo")->trigger();
    QCOMPARE(editor.control(1).left, 20.0F);
}

TARVEL_UI_TEST(UndoTest)

#include "undo_test.moc"
