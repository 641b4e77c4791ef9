// What the behaviour panels of the real window store: marks, modifiers in the saved file, and what
// is offered without a catalogue.
#include "skinfile/skin_reader.h"
#include "support/behaviour_editor.h"
#include "support/ui_test.h"

#include <QGroupBox>

using namespace tarvel;
using namespace tarvel::test;

namespace {

void writeText(const QString& path, const QByteArray& text) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size()) {
        qFatal("cannot write %s", qPrintable(path));
    }
}

QByteArray bytesOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no such file");
}

} // namespace

class BehaviourStoredTest : public QObject {
    Q_OBJECT

  private slots:
    void marksFollowWhatIsStored();
    void marksAreRightAfterLoading();
    void unusableCatalogueOffersNone_data();
    void unusableCatalogueOffersNone();
    void attachedModifierIsSaved_data();
    void attachedModifierIsSaved();
};

void BehaviourStoredTest::marksFollowWhatIsStored() {
    BehaviourEditor editor(2);
    editor.selectRow(1, 0);
    QCOMPARE(editor.marked(), QList<int>());
    editor.attachModifier("Fade", 0);
    QCOMPARE(editor.marked(), QList<int>()); // stored by OK only
    editor.ok(0);
    QCOMPARE(editor.marked(), QList<int>({0}));
    QVERIFY(editor.openPanel(1));
    typeOver(editor.at<QLineEdit>("txtTimer(3)"), "5000");
    editor.ok(1);
    QCOMPARE(editor.marked(), QList<int>({0, 1}));
    QVERIFY(editor.openPanel(2));
    clickRow(editor.at<QListWidget>("lstCond"), 2);
    editor.ok(2);
    QCOMPARE(editor.marked(), QList<int>({0, 1, 2}));
    const Element& element = editor.document().element(1);
    QCOMPARE(element.elementTimers[3], 5000);
    QCOMPARE(element.elementCondition, std::string("ItemNext "));
    QVERIFY(!element.elementModifiers.get().empty());
    editor.selectRow(1, 1);
    QCOMPARE(editor.marked(), QList<int>());
    editor.selectRow(1, 0);
    QCOMPARE(editor.marked(), QList<int>({0, 1, 2}));
    QVERIFY(editor.openPanel(2));
    clickRow(editor.at<QListWidget>("lstCond"), 0);
    editor.ok(2);
    QCOMPARE(editor.marked(), QList<int>({0, 1}));
    QVERIFY(editor.openPanel(1));
    typeOver(editor.at<QLineEdit>("txtTimer(3)"), "");
    editor.ok(1);
    QVERIFY(editor.openPanel(0));
    chooseRow(editor.at<QComboBox>("lstMods"), 0);
    editor.ok(0);
    QCOMPARE(editor.marked(), QList<int>());
}

void BehaviourStoredTest::marksAreRightAfterLoading() {
    BehaviourEditor editor(0);
    const QString folder = editor.newFolder("skin");
    const auto box = [](const char* content) {
        return QByteArray("<LayoutElement Type='Box'><Pos L='0' T='0' W='9' H='9'/>") + content +
               "</LayoutElement>";
    };
    writeText(folder + "/QOR_Skin.xml",
              "<Skin name='x'><Layout Screen='Menu'>" +
                  box("<Modifier Type='Fade'><Range X='1' Y='2'/></Modifier>") +
                  box("<Timer Type='CycleOff'>-1</Timer>") +
                  box("<Condition>ItemEntry</Condition>") + box("<Condition>NONE</Condition>") +
                  box("<Modifier Type='Burn'/><Timer Type='Delay'>7</Timer>"
                      "<Condition>odd</Condition>") +
                  box("<Timer Type='Delay'>0</Timer>") + "</Layout></Skin>");
    editor.prompts.folders << folder;
    QVERIFY(choose(editor, "mnuLoad"));
    QCOMPARE(editor.prompts.messages, QStringList());
    QCOMPARE(editor.marked(), QList<int>()); // nothing is selected
    const QList<QList<int>> expected = {{0}, {1}, {2}, {}, {0, 1, 2}, {}};
    QCOMPARE(editor.document().rowCount(1), static_cast<int>(expected.size()));
    for (int row = 0; row < expected.size(); ++row) {
        editor.selectRow(1, row);
        QCOMPARE(editor.marked(), expected[row]);
    }
    editor.selectRow(1, 4);
    editor.clickScreen(0);
    QCOMPARE(editor.marked(), QList<int>());
}

void BehaviourStoredTest::unusableCatalogueOffersNone_data() {
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("missing") << QByteArray();
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("broken") << QByteArray("<modifiers><supports><box type='1'><Fade>Fill");
    QTest::newRow("no XML") << QByteArray("Fade Pulse\x00\xff\xfe", 13);
    QTest::newRow("without supports") << QByteArray("<m><types><Fade>Range</Fade></types></m>");
}

void BehaviourStoredTest::unusableCatalogueOffersNone() {
    QFETCH(QByteArray, text);
    BehaviourEditor editor;
    editor.selectRow(1, 0);
    QVERIFY(editor.openPanel(0));
    auto& mods = editor.at<QComboBox>("lstMods");
    QVERIFY(mods.count() > 1); // with the starter catalogue
    editor.ok(0);
    const QString catalogue = editor.path("modifiers.xml");
    QVERIFY(QFile::remove(catalogue));
    if (!text.isNull()) {
        writeText(catalogue, text);
    }
    QVERIFY(editor.openPanel(0));
    QCOMPARE(rowTexts(mods), QStringList("None"));
    QVERIFY(!editor.at<QWidget>("lstTargets").isVisible());
    editor.ok(0);
    QCOMPARE(editor.prompts.messages, QStringList());
    QCOMPARE(editor.shown(), QList<int>());
    QCOMPARE(editor.marked(), QList<int>());
}

void BehaviourStoredTest::attachedModifierIsSaved_data() {
    QTest::addColumn<QString>("type");
    QTest::addColumn<int>("target");
    QTest::addColumn<QString>("frame");
    QTest::addColumn<QStringList>("typed"); // names of text boxes, each before its text
    QTest::addColumn<QStringList>("block");
    QTest::newRow("Range") << "Fade" << 2 << "fraRange"
                           << QStringList({"txtRangeX", "-0.5", "txtRangeY", "12"})
                           << QStringList({"<Modifier Type=\"Fade\" Target=\"Border\">",
                                           "\t<Range X=\"-0.5\" Y=\"12\"></Range>", "\t",
                                           "</Modifier>", ""});
    QTest::newRow("Bounds") << "Slide" << 0 << "fraBounds"
                            << QStringList({"txtBoundsL", "1", "txtBoundsT", "2", "txtBoundsR", "3",
                                            "txtBoundsB", "4"})
                            << QStringList({"<Modifier Type=\"Slide\">",
                                            "\t<Bounds L=\"1\" T=\"2\" R=\"3\" B=\"4\"></Bounds>",
                                            "\t", "</Modifier>", ""});
    const QString channel = "\t<%1 Enable=\"%2\" Min=\"%3\" Max=\"255\" Period=\"1000\"></%1>";
    QTest::newRow("Color") << "Tint" << 1 << "fraColor" << QStringList()
                           << QStringList({"<Modifier Type=\"Tint\" Target=\"Fill\">",
                                           channel.arg("Alpha", "False", "0"),
                                           channel.arg("Red", "True", "25"),
                                           channel.arg("Green", "False", "0"),
                                           channel.arg("Blue", "False", "0"), "\t", "</Modifier>",
                                           ""});
    QTest::newRow("without values")
        << "Wobble" << 1 << QString() << QStringList()
        << QStringList({"<Modifier Type=\"Wobble\" Target=\"Position\"></Modifier>", ""});
}

void BehaviourStoredTest::attachedModifierIsSaved() {
    QFETCH(QString, type);
    QFETCH(int, target);
    QFETCH(QString, frame);
    QFETCH(QStringList, typed);
    QFETCH(QStringList, block);
    BehaviourEditor editor;
    editor.nameSkin("Nova");
    editor.selectRow(1, 0);
    editor.attachModifier(type, target);
    for (const char* each : {"fraRange", "fraBounds", "fraColor"}) {
        QCOMPARE(editor.at<QGroupBox>(each).isVisible(), frame == QLatin1String(each));
    }
    for (int i = 0; i < typed.size(); i += 2) {
        typeOver(editor.at<QLineEdit>(typed[i]), typed[i + 1]);
    }
    if (frame == "fraColor") {
        click(editor.at<QAbstractButton>("chkColr(1)"));
        Pointer(editor.window).dragBy(editor.at<QWidget>("lblMin(1)"), 25);
    }
    editor.ok(0);
    const QString out = editor.newFolder("out");
    editor.prompts.folders << out;
    QStringList dialogs;
    closeNextDialog(dialogs);
    QVERIFY(choose(editor, "mnuSave"));
    QStringList lines = QString::fromLatin1(bytesOf(out + "/QOR_Skin.xml")).split("\r\n");
    const auto from = lines.indexOf(QStringLiteral("\t\t\t") + block.front());
    QVERIFY2(from > 0, qPrintable(lines.join('\n')));
    const auto end = lines.indexOf(QStringLiteral("\t\t</LayoutElement>"));
    QStringList written = lines.mid(from, end - from);
    for (QString& line : written) {
        QVERIFY2(line.startsWith("\t\t\t"), qPrintable(line));
        line.remove(0, 3);
    }
    QCOMPARE(written, block);
    SkinDocument again;
    readSkin(again, hostPathOf(out));
    QCOMPARE(again.element(1).elementModifiers, editor.document().element(1).elementModifiers);
}

TARVEL_UI_TEST(BehaviourStoredTest)
#include "behaviour_stored_test.moc"
