// The arguments of the editor: folders, options and what is answered to them.
#include "support/program_version.h"
#include "support/ui_test.h"
#include "window/arguments.h"

#include <QDir>
#include <QTest>

using namespace tarvel;

class ArgumentsTest : public QObject {
    Q_OBJECT

  private slots:
    void folders_data();
    void folders();
    void replies_data();
    void replies();
};

void ArgumentsTest::folders_data() {
    QTest::addColumn<QStringList>("given");
    QTest::addColumn<QStringList>("folders");
    const QString here = QDir::currentPath();
    const auto row = [](const char* name, const QStringList& given, const QStringList& folders) {
        QTest::newRow(name) << given << folders;
    };
    row("none", {}, {});
    row("one", {"/skins/nova"}, {"/skins/nova"});
    row("several", {"/skins/b", "/skins/a"}, {"/skins/b", "/skins/a"});
    row("the same again", {"/skins/a", "/skins/b", "/skins/a/"}, {"/skins/a", "/skins/b"});
    row("relative", {"nova", "./x/../y", "."}, {here + "/nova", here + "/y", here});
    row("beyond ASCII", {"/skins/größe ☃"}, {"/skins/größe ☃"});
    row("a lone dash", {"-"}, {here + "/-"});
    row("after two dashes", {"--", "--help", "-x", "--"},
        {here + "/--help", here + "/-x", here + "/--"});
    row("the library's options", {"-platform", "offscreen", "--style=fusion", "-reverse", "/a"},
        {"/a"});
    row("the library's option at the end", {"/a", "-session"}, {"/a"});
}

void ArgumentsTest::folders() {
    QFETCH(QStringList, given);
    QFETCH(QStringList, folders);
    std::vector<std::string> arguments;
    for (const QString& each : given) {
        arguments.push_back(each.toStdString());
    }
    const Arguments parsed = parseArguments(arguments);
    QCOMPARE(parsed.folders, folders);
    QVERIFY(!parsed.reply);
}

void ArgumentsTest::replies_data() {
    QTest::addColumn<QStringList>("given");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("exitCode");
    const QString help = "usage: tarvel [FOLDER ...]\n"
                         "       tarvel --help | --version\n"
                         "\n"
                         "Opens each skin folder in a window of its own, or without a folder an "
                         "empty skin.\n";
    const auto unknown = [](const QString& option) {
        return QStringLiteral("tarvel: the option %1 is unknown; \"tarvel --help\" tells what it "
                              "takes.\n")
            .arg(option);
    };
    QTest::newRow("help") << QStringList("--help") << help << 0;
    QTest::newRow("help among others") << QStringList({"/a", "--help", "-x"}) << help << 0;
    QTest::newRow("version") << QStringList("--version")
                             << QString::fromStdString("tarvel " + test::programVersion() + "\n")
                             << 0;
    QTest::newRow("unknown") << QStringList({"/a", "--frobnicate"}) << unknown("--frobnicate") << 2;
    QTest::newRow("unknown letter") << QStringList("-h") << unknown("-h") << 2;
    QTest::newRow("only dashes") << QStringList("---") << unknown("---") << 2;
    QTest::newRow("unknown with a value") << QStringList("--a=b") << unknown("--a=b") << 2;
    QTest::newRow("the first of two") << QStringList({"--one", "--help"}) << unknown("--one") << 2;
    QTest::newRow("empty") << QStringList(QString(""))
                           << "tarvel: an empty argument names no folder; \"tarvel --help\" tells "
                              "what it takes.\n"
                           << 2;
}

void ArgumentsTest::replies() {
    QFETCH(QStringList, given);
    std::vector<std::string> arguments;
    for (const QString& each : given) {
        arguments.push_back(each.toStdString());
    }
    const Arguments parsed = parseArguments(arguments);
    QVERIFY(parsed.reply);
    QTEST(QString::fromStdString(parsed.reply->text), "text");
    QTEST(parsed.reply->exitCode, "exitCode");
}

TARVEL_UI_TEST(ArgumentsTest)
#include "arguments_test.moc"
