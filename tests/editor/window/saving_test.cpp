// Saving through the window when files are in the way: what is said, and what opens afterwards.
#include "support/editor.h"
#include "support/ui_test.h"

#include <QLabel>
#include <QStatusBar>

#include <chrono>
#include <fstream>
#include <thread>
#include <unistd.h>

using namespace tarvel;
using namespace tarvel::test;

namespace {

int flushMs = 0; // what a flush to the disk takes

// Notes the names of the modal dialogs that come, and closes those that the user has to close.
class DialogWatch {
  public:
    DialogWatch() {
        QObject::connect(&poll_, &QTimer::timeout, [this] {
            const auto* dialog = QApplication::activeModalWidget();
            if (dialog == nullptr) {
                return;
            }
            if (!seen_.contains(dialog->objectName())) {
                seen_ << dialog->objectName();
            }
            if (const auto* folder = dialog->findChild<QLabel*>(QStringLiteral("lblFolder"))) {
                folder_ = folder->text();
            }
            if (dialog->objectName() != QLatin1String("frmProgress")) {
                QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return);
            }
        });
        poll_.start(10);
    }
    [[nodiscard]] const QStringList& seen() const { return seen_; }
    /// The folder that the instructions named.
    [[nodiscard]] const QString& folder() const { return folder_; }

  private:
    QTimer poll_;
    QStringList seen_;
    QString folder_;
};

void write(const QString& path, const QByteArray& content) {
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("cannot write %s", qPrintable(path));
    }
}

QByteArray bytesOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no such file");
}

void addResource(Editor& editor, const QString& name) {
    editor.document().addRes(qPrintable(name), documentPath(hostPathOf(editor.path(name))));
}

void addMusic(Editor& editor, const QString& name) {
    editor.document().editSettings([&](SkinSettings& settings) {
        MusicSettings& music = settings.music;
        music.rows.push_back(static_cast<int>(music.musicFiles.size()));
        music.musicFiles.push_back(documentPath(hostPathOf(editor.path(name))));
    });
}

// Saves the skin into the folder "out".
void save(Editor& editor) {
    editor.nameSkin("Nova");
    editor.prompts.folders << editor.newFolder("out");
    editor.entry("mnuSave")->trigger();
}

QString status(const Editor& editor) {
    return editor.window.statusBar()->currentMessage();
}

} // namespace

// Takes the place of the system's: a slow disk, whatever the tests run on.
extern "C" int fsync(int descriptor) {
    std::this_thread::sleep_for(std::chrono::milliseconds(flushMs));
    return ::fdatasync(descriptor);
}

class SavingTest : public QObject {
    Q_OBJECT

  private slots:
    void init() { flushMs = 0; }
    void aFailingCopyIsToldAndEndsTheSave_data();
    void aFailingCopyIsToldAndEndsTheSave();
    void aClosedFolderIsTold();
    void aVanishedBackgroundIsPassedOver();
    void theLaterOfTwoFilesOfOneNameIsKept();
    void progressIsGoneWhenAFailureIsTold();
    void progressIsGoneWhenTheInstructionsOpen();

  private:
    static void addBigFile(Editor& editor);
};

void SavingTest::aFailingCopyIsToldAndEndsTheSave_data() {
    QTest::addColumn<bool>("isMusic");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("problem");
    QTest::newRow("missing picture") << false << "gone.png"
                                     << "No such file or directory";
    QTest::newRow("missing folder") << false << "gone/pic.png"
                                    << "No such file or directory";
    QTest::newRow("picture below a file") << false << "file/pic.png"
                                          << "Not a directory";
    QTest::newRow("folder in its place") << false << "folder"
                                         << "Is a directory";
    QTest::newRow("vanished music") << true << "gone.wma"
                                    << "No such file or directory";
    QTest::newRow("music below a file") << true << "file/song.wma"
                                        << "Not a directory";
}

void SavingTest::aFailingCopyIsToldAndEndsTheSave() {
    QFETCH(bool, isMusic);
    QFETCH(QString, file);
    QFETCH(QString, problem);
    Editor editor;
    editor.newFolder("folder");
    for (const char* name : {"file", "before.png", "after.png", "after.wma"}) {
        write(editor.path(name), name);
    }
    addResource(editor, "before.png");
    (isMusic ? addMusic : addResource)(editor, file);
    if (!isMusic) {
        addResource(editor, "after.png");
    }
    addMusic(editor, "after.wma");
    const SkinDocument before = editor.document();
    const DialogWatch watch;
    save(editor);
    settle();
    QCOMPARE(editor.prompts.messages, QStringList(problem + ": " + editor.path(file)));
    QCOMPARE(editor.prompts.lastOwner, &editor.window);
    QCOMPARE(watch.seen(), QStringList());
    QCOMPARE(status(editor), QStringLiteral("The skin was not saved completely."));
    QVERIFY(QFile::exists(editor.path("out/QOR_Skin.xml")));
    QCOMPARE(bytesOf(editor.path("out/Media/before.png")), QByteArray("before.png"));
    QVERIFY(!QFile::exists(editor.path("out/Media/after.png")));
    QVERIFY(QDir(editor.path("out/Music")).isEmpty());
    QCOMPARE(editor.document().settings().resources, before.settings().resources);
}

void SavingTest::aClosedFolderIsTold() {
    if (::geteuid() == 0) {
        QSKIP("nothing is closed to root");
    }
    Editor editor;
    write(editor.path("closed/pic.png"), "x");
    addResource(editor, "closed/pic.png");
    const auto closed = hostPathOf(editor.path("closed"));
    std::filesystem::permissions(closed, std::filesystem::perms::none);
    const DialogWatch watch;
    save(editor);
    std::filesystem::permissions(closed, std::filesystem::perms::owner_all);
    QCOMPARE(editor.prompts.messages,
             QStringList("Permission denied: " + editor.path("closed/pic.png")));
    QCOMPARE(watch.seen(), QStringList());
}

void SavingTest::aVanishedBackgroundIsPassedOver() {
    Editor editor;
    write(editor.path("song.wma"), "song");
    addMusic(editor, "song.wma");
    editor.document().editSettings([&](SkinSettings& settings) {
        settings.background = {true, documentPath(hostPathOf(editor.path("gone.jpg")))};
    });
    const DialogWatch watch;
    save(editor);
    QCOMPARE(editor.prompts.messages, QStringList());
    QCOMPARE(watch.seen(), QStringList("frmInstructions"));
    QCOMPARE(bytesOf(editor.path("out/Music/song.wma")), QByteArray("song"));
    QCOMPARE(status(editor), "Saved to " + editor.path("out/"));
    QCOMPARE(watch.folder(), editor.path("out/"));
}

void SavingTest::theLaterOfTwoFilesOfOneNameIsKept() {
    Editor editor;
    for (const char* name : {"one/pic.png", "two/pic.png"}) {
        write(editor.path(name), name);
        addResource(editor, name);
    }
    const DialogWatch watch;
    save(editor);
    QCOMPARE(editor.prompts.messages,
             QStringList("These file names stand for two files each, and the later one was kept: "
                         "pic.png"));
    QCOMPARE(watch.seen(), QStringList("frmInstructions"));
    QCOMPARE(QDir(editor.path("out/Media")).entryList(QDir::Files), QStringList("pic.png"));
    QCOMPARE(bytesOf(editor.path("out/Media/pic.png")), QByteArray("two/pic.png"));
}

// Takes longer to copy than the progress waits.
void SavingTest::addBigFile(Editor& editor) {
    write(editor.path("big.bin"), "");
    std::filesystem::resize_file(hostPathOf(editor.path("big.bin")), std::uintmax_t{34} << 20);
    addResource(editor, "big.bin");
    flushMs = 200;
}

void SavingTest::progressIsGoneWhenAFailureIsTold() {
    Editor editor;
    editor.show();
    addBigFile(editor);
    addMusic(editor, "gone.wma");
    QStringList besides;
    editor.prompts.onMessage = [&] {
        for (const QWidget* window : QApplication::topLevelWidgets()) {
            if (window->isVisible() && window != &editor.window) {
                besides << window->objectName();
            }
        }
    };
    const DialogWatch watch;
    save(editor);
    QCOMPARE(editor.prompts.messages,
             QStringList("No such file or directory: " + editor.path("gone.wma")));
    QCOMPARE(besides, QStringList());
    settle();
    QCOMPARE(watch.seen(), QStringList("frmProgress"));
    QVERIFY(QFile::exists(editor.path("out/Media/big.bin")));
}

void SavingTest::progressIsGoneWhenTheInstructionsOpen() {
    Editor editor;
    editor.show();
    addBigFile(editor);
    const DialogWatch watch;
    save(editor);
    QCOMPARE(editor.prompts.messages, QStringList());
    QCOMPARE(watch.seen(), (QStringList{"frmProgress", "frmInstructions"}));
    QVERIFY(QApplication::activeModalWidget() == nullptr);
}

TARVEL_UI_TEST(SavingTest)
#include "saving_test.moc"
