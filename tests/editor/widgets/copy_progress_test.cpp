// The progress of long copies: late to come, alive, to be cancelled.
#include "support/editor.h"
#include "support/ui_test.h"
#include "widgets/copy_progress.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QPushButton>

#include <fstream>
#include <functional>

using namespace tarvel;
using namespace tarvel::test;

namespace {

// Takes a step again and again until the dialog is there. `before` is called before each.
bool waitForIt(
    CopyProgress& progress, const char* file, std::uintmax_t done, std::uintmax_t total,
    const std::function<void()>& before = [] {}) {
    return QTest::qWaitFor([&] {
        before();
        return progress.step(file, done, total) && progress.isVisible();
    });
}

} // namespace

class CopyProgressTest : public QObject {
    Q_OBJECT

  private slots:
    void staysAwayFromShortCopies();
    void comesAfterHalfASecond();
    void namesNeitherWidenItNorAreMarkup();
    void cancelling();
    void savingBigMediaCanBeCancelled();
};

void CopyProgressTest::staysAwayFromShortCopies() {
    CopyProgress progress(nullptr);
    QVERIFY(progress.step("a.png", 10, 100));
    QVERIFY(!progress.isVisible());
}

void CopyProgressTest::comesAfterHalfASecond() {
    QElapsedTimer clock;
    clock.start();
    CopyProgress progress(nullptr);
    bool alive = false;
    QVERIFY(waitForIt(progress, "clip.wmv", 512, 2048, [&] {
        alive = false;
        QTimer::singleShot(0, qApp, [&] { alive = true; });
    }));
    QVERIFY(clock.elapsed() >= CopyProgress::delayMs);
    QVERIFY(progress.isModal());
    QVERIFY(alive);
    QVERIFY(progress.labelText().startsWith("Copying clip.wmv\n512 bytes of 2"));
    QCOMPARE(progress.value(), 250);
    QTRY_COMPARE((progress.step("empty", 0, 0), progress.value()), 1000);
}

void CopyProgressTest::namesNeitherWidenItNorAreMarkup() {
    CopyProgress progress(nullptr);
    QVERIFY(waitForIt(progress, "<b>x</b>.wmv", 1, 100));
    const auto* label = progress.findChild<QLabel*>();
    QCOMPARE(label->textFormat(), Qt::PlainText);
    QVERIFY(label->text().startsWith("Copying <b>x</b>.wmv\n"));
    const int width = progress.width();
    const std::string longName = "start" + std::string(200, 'm') + "end.wmv";
    QTRY_VERIFY((progress.step(longName, 2, 100), label->text().startsWith("Copying start")));
    const QString name = label->text().section('\n', 0, 0);
    QVERIFY2(name.endsWith("end.wmv"), qPrintable(name));
    QCOMPARE(progress.width(), width);
}

void CopyProgressTest::cancelling() {
    CopyProgress progress(nullptr);
    QVERIFY(waitForIt(progress, "a", 1, 100));
    QTest::mouseClick(progress.findChild<QPushButton*>(), Qt::LeftButton);
    QVERIFY(!progress.step("a", 2, 100));
    QVERIFY(!progress.step("a", 3, 100)); // and never again
    QVERIFY(!progress.isVisible());
}

void CopyProgressTest::savingBigMediaCanBeCancelled() {
    Editor editor;
    editor.nameSkin("Big");
    // Sparse files: much to copy that takes little room.
    for (const char* name : {"one.bin", "two.bin", "three.bin"}) {
        std::ofstream(hostPathOf(editor.path(name))).close();
        std::filesystem::resize_file(hostPathOf(editor.path(name)), std::uintmax_t{900} << 20);
        editor.document().addRes(name, documentPath(hostPathOf(editor.path(name))));
    }
    const QString out = editor.newFolder("out");
    editor.prompts.folders << out;
    bool seen = false;
    auto* poll = new QTimer(qApp);
    connect(poll, &QTimer::timeout, poll, [&] {
        if (auto* dialog = qobject_cast<CopyProgress*>(QApplication::activeModalWidget())) {
            seen = true;
            poll->stop();
            dialog->cancel();
        }
    });
    poll->start(5);
    editor.entry("mnuSave")->trigger();
    delete poll;
    QVERIFY(seen);
    QCOMPARE(editor.prompts.messages, QStringList());
    QVERIFY(!QFile::exists(out + "/Media/three.bin"));
    for (const QString& name :
         QDir(out + "/Media").entryList(QDir::Files | QDir::Hidden)) { // nothing half copied
        QCOMPARE(QFileInfo(out + "/Media/" + name).size(), qint64{900} << 20);
    }
}

TARVEL_UI_TEST(CopyProgressTest)
#include "copy_progress_test.moc"
