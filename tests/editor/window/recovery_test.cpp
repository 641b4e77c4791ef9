// The work of a run that did not end properly: kept while it runs, and brought back by the next
// one.
#include "files/host_files.h"
#include "skinfile/recovery_store.h"
#include "support/editor.h"
#include "support/full_document.h"
#include "support/ui_test.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QStatusBar>

#include <chrono>
#include <fstream>

using namespace tarvel;
using namespace tarvel::test;
namespace fs = std::filesystem;

namespace {

constexpr auto question = "The last run ended before your work was saved. Bring it back?";

WorkState workNamed(const std::string& name) {
    WorkState work{.document = {}, .selected = {2}, .leading = 2, .folder = "/skins/" + name};
    for (int i = 0; i < 4; ++i) {
        work.document.addElement(boxAt(20 + 100 * static_cast<float>(i), 20, 80, 50));
    }
    work.document.editSettings([&](SkinSettings& settings) { settings.skinName = name; });
    return work;
}

std::vector<fs::path> filesIn(const fs::path& folder, const std::string& suffix) {
    std::vector<fs::path> found;
    std::error_code none;
    for (const auto& entry : fs::directory_iterator(folder, none)) {
        if (entry.path().extension() == suffix) {
            found.push_back(entry.path());
        }
    }
    return found;
}

struct KeptEditor : Editor {
    fs::path kept = hostPathOf(path("kept"));

    void begin() {
        window.keepWorkIn(kept);
        show();
    }
    std::vector<fs::path> files() { return filesIn(kept, ".recovery"); }
    /// What a run leaves that was killed so many seconds ago.
    fs::path lose(const WorkState& work, int age) const {
        RecoveryStore store(kept);
        store.keep(work);
        fs::last_write_time(store.file(),
                            fs::file_time_type::clock::now() - std::chrono::seconds(age));
        return store.file();
    }
    void draw() {
        chooseTool("optBox");
        pressDragRelease({300, 300}, {380, 360});
    }
    bool endProperly() {
        prompts.answers << Prompts::Answer::No;
        return window.close();
    }
};

} // namespace

class RecoveryTest : public QObject {
    Q_OBJECT

  private slots:
    void keepsAChangeWithinTwoSeconds();
    void keepsWhatIsBeingDrawn();
    void keepsNothingThatIsSaved();
    void keepsTheWorkAtOnceWhenAsked();
    void keepsNothingAtOnceThatWasUndone();
    void endsWithoutAFile();
    void staysOpenWithItsFile();
    void bringsBackWhatWasLost();
    void bringsBackEverythingThatADocumentHolds();
    void offersTheNewestFirst();
    void noKeepsTheFileUntilAProperEnd();
    void yesLeavesTheOthersToTheNextRun();
    void leavesRunsThatLiveAlone();
    void setsAsideWhatCannotBeRead();
    void tellsThatNothingCanBeKept();
};

void RecoveryTest::keepsAChangeWithinTwoSeconds() {
    KeptEditor editor;
    editor.begin();
    QVERIFY(editor.files().empty());
    QElapsedTimer since;
    editor.draw();
    since.start();
    QTRY_VERIFY(!editor.files().empty());
    QVERIFY2(since.elapsed() <= 2000, "later than two seconds");
    const auto read = [&] { return RecoveryStore::read(editor.files().front()); };
    QVERIFY(read().document == editor.document());
    QCOMPARE(read().leading, editor.window.curNum());
    QCOMPARE(read().selected, std::vector<int>{editor.window.curNum()});
    editor.clickScreen(3); // where one looks belongs to the work
    QTRY_COMPARE(read().document.currentLayout(), 3);
    QCOMPARE(read().leading, 0);
}

void RecoveryTest::keepsWhatIsBeingDrawn() {
    KeptEditor editor;
    editor.begin();
    editor.chooseTool("optBox");
    editor.press({300, 300});
    editor.drag({380, 360});
    QTRY_VERIFY(!editor.files().empty());
    QCOMPARE(RecoveryStore::read(editor.files().front()).document.rowCount(1), 1);
    editor.key(Qt::Key_Escape);
    editor.release({380, 360});
    QTRY_VERIFY(editor.files().empty()); // it was taken back: there is nothing to lose
}

void RecoveryTest::keepsNothingThatIsSaved() {
    KeptEditor editor;
    editor.begin();
    editor.nameSkin("Nova");
    editor.draw();
    QTRY_VERIFY(!editor.files().empty());
    QStringList seen;
    closeNextDialog(seen);
    editor.prompts.folders << editor.newFolder("out");
    editor.entry("mnuSave")->trigger();
    QTRY_VERIFY(editor.files().empty());
    editor.entry("mnuUndo")->trigger();
    QTRY_VERIFY(!editor.files().empty());
    QCOMPARE(QString::fromStdString(RecoveryStore::read(editor.files().front()).folder),
             editor.path("out") + QLatin1Char('/'));
}

void RecoveryTest::keepsTheWorkAtOnceWhenAsked() {
    KeptEditor editor;
    editor.begin();
    editor.draw();
    editor.window.keepWorkNow();
    QCOMPARE(editor.files().size(), std::size_t{1});
    QVERIFY(RecoveryStore::read(editor.files().front()).document == editor.document());
}

void RecoveryTest::keepsNothingAtOnceThatWasUndone() {
    KeptEditor editor;
    editor.begin();
    editor.draw();
    editor.window.keepWorkNow();
    QCOMPARE(editor.files().size(), std::size_t{1});
    editor.entry("mnuUndo")->trigger();
    editor.window.keepWorkNow(); // as for a signal in the same moment
    QVERIFY(editor.files().empty());
}

void RecoveryTest::endsWithoutAFile() {
    KeptEditor editor;
    editor.begin();
    editor.draw();
    editor.window.keepWorkNow();
    QVERIFY(!editor.files().empty());
    QVERIFY(editor.endProperly());
    QVERIFY(editor.files().empty());
    QVERIFY(filesIn(editor.kept, ".lock").empty());
    editor.window.keepWorkNow();
    QVERIFY(editor.files().empty());
}

void RecoveryTest::staysOpenWithItsFile() {
    KeptEditor editor;
    editor.begin();
    editor.draw();
    editor.window.keepWorkNow();
    editor.prompts.answers << Prompts::Answer::Cancel;
    QVERIFY(!editor.window.close());
    QCOMPARE(editor.files().size(), std::size_t{1});
}

void RecoveryTest::bringsBackWhatWasLost() {
    KeptEditor editor;
    const WorkState lost = workNamed("Nova");
    const fs::path file = editor.lose(lost, 0);
    editor.begin();
    editor.draw(); // forgotten: what was lost takes its place
    editor.prompts.answers << Prompts::Answer::Yes;
    editor.window.offerLostWork();
    QCOMPARE(editor.prompts.questions, QStringList(question));
    QCOMPARE(editor.prompts.lastOwner, static_cast<QWidget*>(&editor.window));
    QVERIFY(editor.document() == lost.document);
    QCOMPARE(editor.window.curNum(), 2);
    QCOMPARE(editor.selectedRow(1), 1);
    QCOMPARE(editor.find<QLabel>("lblUnsaved")->text(), QString("Unsaved changes"));
    QVERIFY(!editor.entry("mnuUndo")->isEnabled());
    QVERIFY(!fs::exists(file));
    QCOMPARE(editor.files().size(), std::size_t{1}); // this run's own
    const WorkState again = RecoveryStore::read(editor.files().front());
    QVERIFY(again.document == lost.document);
    QCOMPARE(again.folder, lost.folder);
    editor.draw();
    QCOMPARE(editor.window.curNum(), 5); // ids go on
    editor.entry("mnuUndo")->trigger();
    QVERIFY(editor.document().holdsTheSame(lost.document));
    QCOMPARE(editor.find<QLabel>("lblUnsaved")->text(), QString("Unsaved changes"));
    QVERIFY(!editor.entry("mnuUndo")->isEnabled());
}

void RecoveryTest::bringsBackEverythingThatADocumentHolds() {
    KeptEditor editor;
    WorkState lost{.document = fullDocument(), .selected = {}, .leading = 0, .folder = {}};
    editor.lose(lost, 0);
    editor.begin();
    editor.prompts.answers << Prompts::Answer::Yes;
    editor.window.offerLostWork();
    QVERIFY(editor.document() == lost.document);
    for (int screen = 0; screen < screenCount; ++screen) {
        QCOMPARE(editor.lst(screen)->model()->rowCount(), lost.document.rowCount(screen));
    }
}

void RecoveryTest::offersTheNewestFirst() {
    KeptEditor editor;
    editor.lose(workNamed("oldest"), 300);
    editor.lose(workNamed("newest"), 0);
    editor.lose(workNamed("middle"), 30);
    editor.begin();
    editor.prompts.answers << Prompts::Answer::No << Prompts::Answer::Yes;
    editor.window.offerLostWork();
    QCOMPARE(editor.prompts.questions, QStringList({question, question}));
    QCOMPARE(editor.document().settings().skinName, std::string("middle"));
}

void RecoveryTest::noKeepsTheFileUntilAProperEnd() {
    KeptEditor editor;
    const fs::path file = editor.lose(workNamed("Nova"), 0);
    {
        KeptEditor other;
        other.kept = editor.kept;
        other.begin();
        other.prompts.answers << Prompts::Answer::No;
        other.window.offerLostWork();
        QVERIFY(other.document() == SkinDocument());
        QVERIFY(fs::exists(file));
    } // a run that is killed
    QVERIFY(fs::exists(file));
    editor.begin();
    editor.prompts.answers << Prompts::Answer::No;
    editor.window.offerLostWork();
    QCOMPARE(editor.prompts.questions.size(), 1);
    QVERIFY(editor.endProperly());
    QVERIFY(!fs::exists(file));
}

void RecoveryTest::yesLeavesTheOthersToTheNextRun() {
    KeptEditor editor;
    editor.lose(workNamed("newest"), 0);
    const fs::path older = editor.lose(workNamed("older"), 30);
    {
        KeptEditor other;
        other.kept = editor.kept;
        other.begin();
        other.prompts.answers << Prompts::Answer::Yes;
        other.window.offerLostWork();
        QCOMPARE(other.prompts.questions.size(), 1);
        QVERIFY(other.endProperly());
    }
    QVERIFY(fs::exists(older));
    editor.begin();
    editor.prompts.answers << Prompts::Answer::Yes;
    editor.window.offerLostWork();
    QCOMPARE(editor.document().settings().skinName, std::string("older"));
}

void RecoveryTest::leavesRunsThatLiveAlone() {
    KeptEditor editor;
    editor.begin();
    editor.draw();
    editor.window.keepWorkNow();
    const fs::path file = editor.files().front();
    KeptEditor other;
    other.kept = editor.kept;
    other.begin();
    other.window.offerLostWork();
    QCOMPARE(other.prompts.questions, QStringList());
    other.draw();
    other.window.keepWorkNow();
    QCOMPARE(editor.files().size(), std::size_t{2});
    QVERIFY(other.endProperly());
    QCOMPARE(editor.files(), std::vector<fs::path>{file});
}

void RecoveryTest::setsAsideWhatCannotBeRead() {
    KeptEditor editor;
    const fs::path broken = editor.lose(workNamed("broken"), 0);
    editor.lose(workNamed("whole"), 30);
    fs::resize_file(broken, fs::file_size(broken) / 2);
    editor.begin();
    editor.prompts.answers << Prompts::Answer::Yes;
    editor.window.offerLostWork();
    QCOMPARE(editor.prompts.questions.size(), 1);
    QCOMPARE(editor.document().settings().skinName, std::string("whole"));
    QCOMPARE(editor.prompts.messages.size(), 1);
    QVERIFY(!fs::exists(broken));
    const auto aside = filesIn(editor.kept, ".unreadable");
    QCOMPARE(aside.size(), std::size_t{1});
    QVERIFY(editor.prompts.messages.front().contains(qtText(aside.front().string())));
}

void RecoveryTest::tellsThatNothingCanBeKept() {
    KeptEditor editor;
    std::ofstream(editor.kept) << "a file in the way";
    QVERIFY_THROWS_EXCEPTION(FileError, editor.window.keepWorkIn(editor.kept));
    fs::remove(editor.kept);
    editor.begin();
    fs::remove_all(editor.kept);
    editor.draw();
    QTRY_VERIFY(editor.window.statusBar()->currentMessage().startsWith(
        "The work cannot be kept for the case of a crash: "));
    QCOMPARE(editor.document().rowCount(1), 1);
}

TARVEL_UI_TEST(RecoveryTest)

#include "recovery_test.moc"
