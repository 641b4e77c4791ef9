// What is remembered from run to run, and what stands in for what cannot be read.
#include "support/ui_test.h"
#include "widgets/remembered.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace tarvel;

namespace {

constexpr RememberedSwitch snap{"snap", true};
constexpr RememberedNumber grid{"grid", 8, 2, 64};

} // namespace

class RememberedTest : public QObject {
    Q_OBJECT

  private slots:
    void firstStart();
    void valuesComeBack();
    void whatCannotBeUnderstoodIsAsAtTheFirstStart_data();
    void whatCannotBeUnderstoodIsAsAtTheFirstStart();
    void anUnreadableFileIsAFirstStart();
    void skinFoldersNewestFirst();
    void runsKnowOfEachOthersFolders();

  private:
    void write(const QByteArray& content) const {
        QFile file(path());
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(content), content.size());
    }
    [[nodiscard]] QString path() const {
        return folder_.filePath(QLatin1String(QTest::currentTestFunction()) + "/" +
                                QLatin1String(QTest::currentDataTag()) + "/settings.ini");
    }

    QTemporaryDir folder_;
};

void RememberedTest::firstStart() {
    Remembered remembered(path());
    QCOMPARE(remembered.value(snap), true);
    QCOMPARE(remembered.value(grid), 8);
    QCOMPARE(remembered.lastFolder(), QString());
    QCOMPARE(remembered.recentFolders(), QStringList());
    QVERIFY(!QFile::exists(path()));
}

void RememberedTest::valuesComeBack() {
    {
        Remembered remembered(path());
        remembered.remember(snap, false);
        remembered.remember(grid, 64);
        remembered.rememberLastFolder("/skins/näch, \"st\\er");
        remembered.rememberSkinFolder("/skins/a, b/");
        QCOMPARE(remembered.value(snap), false);
        QCOMPARE(remembered.value(grid), 64);
    }
    Remembered again(path());
    QCOMPARE(again.value(snap), false);
    QCOMPARE(again.value(grid), 64);
    QCOMPARE(again.lastFolder(), QString("/skins/näch, \"st\\er"));
    QCOMPARE(again.recentFolders(), QStringList("/skins/a, b"));
    again.remember(snap, true);
    QCOMPARE(again.value(snap), true);
}

void RememberedTest::whatCannotBeUnderstoodIsAsAtTheFirstStart_data() {
    QTest::addColumn<QByteArray>("content");
    const auto row = [](const char* name, const QByteArray& value) {
        QByteArray content = "[General]\n";
        for (const char* key : {"snap", "grid", "lastFolder", "recentFolders"}) {
            content += QByteArray(key) + "=" + value + "\n";
        }
        QTest::newRow(name) << content;
    };
    row("nothing", "");
    row("words", "some words");
    row("a list", "maybe, 7 apples, none");
    row("below the range", "1");
    row("beyond the range", "65");
    row("beyond numbers", "99999999999999999999");
    row("a fraction", "8.5");
    row("bytes", QByteArray("\x00\xff\xfe\x80\"", 5));
    row("an invalid value", "@Invalid()");
    row("a value of another type", "@Rect(1 2 3 4)");
    row("a torn value", "@Variant(\\0\\0\\0\\x7f\\xff");
    QTest::newRow("no sections") << QByteArray("snap grid lastFolder = = [[[ ;");
    QTest::newRow("no text") << QByteArray(4096, '\xc3');
}

void RememberedTest::whatCannotBeUnderstoodIsAsAtTheFirstStart() {
    QFETCH(QByteArray, content);
    QVERIFY(QDir().mkpath(QFileInfo(path()).path()));
    write(content);
    Remembered remembered(path());
    QCOMPARE(remembered.value(snap), true);
    QCOMPARE(remembered.value(grid), 8);
    QCOMPARE(remembered.lastFolder(), QString());
    QCOMPARE(remembered.recentFolders(), QStringList());
    remembered.remember(grid, 2); // and goes on from there
    remembered.rememberSkinFolder("/skins/a");
    QCOMPARE(remembered.value(grid), 2);
    QCOMPARE(Remembered(path()).recentFolders(), QStringList("/skins/a"));
}

void RememberedTest::anUnreadableFileIsAFirstStart() {
    QVERIFY(QDir().mkpath(path())); // a folder in its place
    for (int run = 0; run < 2; ++run) {
        Remembered remembered(path());
        QCOMPARE(remembered.value(snap), true);
        QCOMPARE(remembered.value(grid), 8);
        QCOMPARE(remembered.recentFolders(), QStringList());
        remembered.remember(grid, 9); // which the next run knows nothing of
        remembered.rememberSkinFolder("/skins/a");
    }
    QVERIFY(QFileInfo(path()).isDir());
}

void RememberedTest::skinFoldersNewestFirst() {
    Remembered remembered(path());
    for (int i = 0; i < 12; ++i) {
        remembered.rememberSkinFolder(QStringLiteral("/skins/%1").arg(i));
    }
    remembered.rememberSkinFolder("/skins/5/"); // one of them once more
    QCOMPARE(remembered.recentFolders(),
             QStringList({"/skins/5", "/skins/11", "/skins/10", "/skins/9", "/skins/8", "/skins/7",
                          "/skins/6", "/skins/4", "/skins/3", "/skins/2"}));
}

void RememberedTest::runsKnowOfEachOthersFolders() {
    Remembered one(path());
    one.rememberSkinFolder("/skins/one");
    write("[General]\nrecentFolders=/skins/other, /skins/one\n"); // what another run has written
    QCOMPARE(one.recentFolders(), QStringList({"/skins/other", "/skins/one"}));
    write("[General]\nrecentFolders=/skins/third\n");
    one.rememberSkinFolder("/skins/one");
    QCOMPARE(one.recentFolders(), QStringList({"/skins/one", "/skins/third"}));
}

TARVEL_UI_TEST(RememberedTest)
#include "remembered_test.moc"
