// Letters of captions: each once, in good places, and for as many captions as can have one.
#include "support/ui_test.h"
#include "widgets/mnemonics.h"

#include <QMenu>
#include <QTest>

using namespace tarvel;

class MnemonicsTest : public QObject {
    Q_OBJECT

  private slots:
    void choosesLetters_data();
    void choosesLetters();
    void readsLetters();
    void keepsUpWithTexts();
};

void MnemonicsTest::choosesLetters_data() {
    QTest::addColumn<QStringList>("captions");
    QTest::addColumn<QString>("taken");
    QTest::addColumn<QStringList>("expected");
    const auto row = [](const char* name, const QStringList& captions, const QString& taken,
                        const QStringList& expected) {
        QTest::newRow(name) << captions << taken << expected;
    };
    row("first letters", {"Save", "Load"}, "", {"&Save", "&Load"});
    row("first letters of words", {"Save", "Save Again"}, "", {"&Save", "Save &Again"});
    row("others then", {"Cut", "Copy"}, "", {"&Cut", "C&opy"});
    row("kept", {"L&ock", "Open"}, "", {"L&ock", "O&pen"});
    row("taken", {"Box", "Line"}, "bl", {"B&ox", "L&ine"});
    row("letter case", {"OK", "open"}, "", {"&OK", "o&pen"});
    row("given up for another", {"ab", "a"}, "", {"a&b", "&a"});
    row("a chain", {"ab", "bc", "a"}, "", {"a&b", "b&c", "&a"});
    row("too few letters", {"a", "A"}, "", {"&a", "A"});
    row("nothing to choose", {"", "..."}, "", {"", "..."});
    row("plain ampersands", {"R&&B", "b"}, "r", {"R&&&B", "b"});
    row("not the key", {"Delete\tDel", "Edit"}, "d", {"D&elete\tDel", "Ed&it"});
    row("only letters that can be typed",
        {QString::fromUtf8("\xc3\x9c"
                           "ber")},
        "", {QString::fromUtf8("\xc3\x9c&ber")});
}

void MnemonicsTest::choosesLetters() {
    QFETCH(QStringList, captions);
    QFETCH(QString, taken);
    QFETCH(QStringList, expected);
    QCOMPARE(withMnemonics(captions, taken), expected);
}

void MnemonicsTest::readsLetters() {
    QCOMPARE(mnemonicOf("&Save"), QChar('s'));
    QCOMPARE(mnemonicOf("Save &Again"), QChar('a'));
    QCOMPARE(mnemonicOf("R&&B &Co"), QChar('c'));
    QCOMPARE(mnemonicOf("R&&B"), QChar());
    QCOMPARE(mnemonicOf("End&"), QChar());
}

void MnemonicsTest::keepsUpWithTexts() {
    QMenu menu;
    QAction* undo = menu.addAction("Undo");
    QAction* redo = menu.addAction("Redo");
    menu.addSeparator();
    giveMnemonics(menu.actions());
    const MnemonicKeeper keeper(nullptr);
    undo->setText("Undo move Box");
    QCOMPARE(undo->text(), QString("&Undo move Box"));
    QCOMPARE(redo->text(), QString("&Redo"));
}

TARVEL_UI_TEST(MnemonicsTest)
#include "mnemonics_test.moc"
