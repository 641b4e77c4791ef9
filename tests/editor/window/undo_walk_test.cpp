// Undo and redo after anything: actions at random through the real window, with a random walk of
// undo and redo after each, and every version compared with the one that was there.
//
// TARVEL_ACTIONS sets their number; the long run has 10,000.
#include "panels/property_panel.h"
#include "support/random_work.h"
#include "support/ui_test.h"

using namespace tarvel;
using namespace tarvel::test;

namespace {

constexpr int usualActions = 300;
constexpr int actionsOfASession = 1000; // no more steps than the history keeps

struct Moment {
    SkinDocument document;
    int screen = 0;
    int selected = 0;
    PanelValues panel;
};

// Writes down what there is before and after each step.
class Record : private DocumentObserver {
  public:
    struct Step {
        std::string name;
        Moment before;
        Moment after;
    };

    explicit Record(BehaviourEditor& editor)
        : editor_(editor)
        , watch_(editor.document().watch(*this)) {}

    [[nodiscard]] Moment now() const {
        Moment moment{.document = editor_.document(),
                      .screen = editor_.document().currentLayout(),
                      .selected = editor_.window.curNum(),
                      .panel = editor_.find<PropertyPanel>("")->values()};
        return moment;
    }

    std::vector<Step> steps;
    std::size_t done = 0;
    int made = 0; // those included that another future has taken the place of

  private:
    void documentChanged(const DocumentChange& /*change*/) override {}
    void editBegan(const std::string& name) override { open_ = {name, now(), {}}; }
    void editEnded(bool takenBack) override {
        open_.after = now();
        if (!takenBack && !open_.after.document.holdsTheSame(open_.before.document)) {
            steps.resize(done);
            steps.push_back(open_);
            ++made;
            done = steps.size();
        }
    }

    BehaviourEditor& editor_;
    Step open_;
    DocumentWatch watch_;
};

// The panel as it stands when the selected element is shown: what was typed and not applied is
// lost.
PanelValues shown(const Moment& moment) {
    PanelValues panel = moment.panel;
    if (moment.selected != 0) {
        (void)showEditControls(moment.document.element(moment.selected),
                               moment.document.settings().resources, panel);
    }
    return panel;
}

// What differs from the moment, in words.
QString difference(const Moment& now, const Moment& wanted) {
    QStringList words;
    if (!now.document.holdsTheSame(wanted.document)) {
        words << QStringLiteral("document");
    }
    if (now.screen != wanted.screen) {
        words << QStringLiteral("screen %1 for %2").arg(now.screen).arg(wanted.screen);
    }
    if (now.selected != wanted.selected) {
        words << QStringLiteral("selected %1 for %2").arg(now.selected).arg(wanted.selected);
    }
    if (!(now.panel == shown(wanted))) {
        words << QStringLiteral("panel");
    }
    return words.join(QLatin1String(", "));
}

} // namespace

class UndoWalkTest : public QObject {
    Q_OBJECT

  private slots:
    void everyVersionComesBack_data();
    void everyVersionComesBack();

  private:
    static QString undo(BehaviourEditor& editor, Record& record);
    static QString redo(BehaviourEditor& editor, Record& record);
};

QString UndoWalkTest::undo(BehaviourEditor& editor, Record& record) {
    const Record::Step& step = record.steps[--record.done];
    if (editor.caption("mnuUndo") != QLatin1String("Undo ") + qtText(step.name)) {
        return QStringLiteral("\"%1\" for %2").arg(editor.caption("mnuUndo"), qtText(step.name));
    }
    editor.pic()->setFocus();
    editor.key(Qt::Key_Z, Qt::ControlModifier);
    return difference(record.now(), step.before);
}

QString UndoWalkTest::redo(BehaviourEditor& editor, Record& record) {
    const Record::Step& step = record.steps[record.done++];
    editor.pic()->setFocus();
    editor.key(Qt::Key_Y, Qt::ControlModifier);
    return difference(record.now(), step.after);
}

void UndoWalkTest::everyVersionComesBack_data() {
    QTest::addColumn<int>("actions");
    bool isNumber = false;
    int left = qEnvironmentVariableIntValue("TARVEL_ACTIONS", &isNumber);
    left = isNumber ? left : usualActions;
    for (int session = 0; left > 0; ++session, left -= actionsOfASession) {
        QTest::addRow("%d", session) << std::min(left, actionsOfASession);
    }
}

void UndoWalkTest::everyVersionComesBack() {
    QFETCH(int, actions);
    BehaviourEditor editor(0);
    RandomWork work(editor,
                    static_cast<unsigned>(QByteArray(QTest::currentDataTag()).toUInt()) + 1);
    Record record(editor);
    const auto check = [&](const QString& problem, const char* after, int action) {
        if (!problem.isEmpty()) {
            qWarning("%s after action %d, %s", qPrintable(problem), action, after);
        }
        return problem.isEmpty();
    };
    for (int action = 0; action < actions; ++action) {
        const std::size_t before = record.steps.size();
        const char* name = work.act();
        QVERIFY2(record.done <= before + 1, name);
        QCOMPARE(editor.entry("mnuUndo")->isEnabled(), record.done > 0);
        QCOMPARE(editor.entry("mnuRedo")->isEnabled(), record.done < record.steps.size());
        for (int step = work.below(4); step > 0; --step) {
            if (work.below(2) == 0 && record.done > 0) {
                QVERIFY(check(undo(editor, record), name, action));
            } else if (record.done < record.steps.size()) {
                QVERIFY(check(redo(editor, record), name, action));
            }
        }
        while (work.below(3) > 0 && record.done < record.steps.size()) {
            QVERIFY(check(redo(editor, record), name, action)); // or the steps would stay few
        }
    }
    QVERIFY(record.made > actions / 4); // others refuse, select or are given up
    while (record.done > 0) {
        QVERIFY(check(undo(editor, record), "on the way back", static_cast<int>(record.done)));
    }
    QVERIFY(editor.document().holdsTheSame(SkinDocument()));
    while (record.done < record.steps.size()) {
        QVERIFY(check(redo(editor, record), "on the way forth", static_cast<int>(record.done)));
    }
}

TARVEL_UI_TEST(UndoWalkTest)

#include "undo_walk_test.moc"
