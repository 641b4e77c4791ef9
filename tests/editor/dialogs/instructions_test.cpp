// The Instructions dialog: its text, and how it closes.
#include "dialogs/frm_instructions.h"
#include "support/dialog_support.h"
#include "support/ui_test.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

using namespace tarvel;
using namespace tarvel::test;

namespace {

const QString folder = QStringLiteral("/home/somebody/skins/Aurora/");

} // namespace

class InstructionsTest : public QObject {
    Q_OBJECT

  private slots:
    void readsLineByLine();
    void namesTheFolder();
    void textIsReadOnlyAndWhollyVisible();
    void closes_data();
    void closes();
    void controlsHaveAccessibleNames();
};

void InstructionsTest::readsLineByLine() {
    FrmInstructions dialog(folder);
    QCOMPARE(dialog.objectName(), "frmInstructions");
    const QStringList lines = {
        "The skin files have been generated in the folder you selected",
        "-Copy the skin folder into the QOR Skins folder on your Xbox",
        "-Restart QOR, and select your skin",
        "-Use QOR safe mode with default skin if the skin doesn't work as expected"};
    QCOMPARE(control<QPlainTextEdit>(dialog, "txtIns").toPlainText().split('\n'), lines);
}

void InstructionsTest::namesTheFolder() {
    FrmInstructions dialog(folder);
    QVERIFY(open(dialog));
    const auto& lblFolder = control<QLabel>(dialog, "lblFolder");
    QVERIFY(lblFolder.isVisible());
    QCOMPARE(lblFolder.text(), folder);
    QVERIFY(lblFolder.width() > dialog.width() / 2);
    FrmInstructions deep(QString(300, QLatin1Char('x')));
    QVERIFY(open(deep));
    QCOMPARE(deep.size(), dialog.size()); // a long path is shortened
    QCOMPARE(control<QLabel>(deep, "lblFolder").toolTip().size(), 300);
}

void InstructionsTest::textIsReadOnlyAndWhollyVisible() {
    FrmInstructions dialog(folder);
    QVERIFY(open(dialog));
    auto& text = control<QPlainTextEdit>(dialog, "txtIns");
    QVERIFY(text.isReadOnly());
    QCOMPARE(text.verticalScrollBar()->maximum(), 0);
    QCOMPARE(text.horizontalScrollBar()->maximum(), 0);
}

void InstructionsTest::closes_data() {
    QTest::addColumn<QString>("focus");
    QTest::addColumn<int>("key");
    QTest::newRow("button") << "" << 0;
    for (const char* focus : {"txtIns", "Command1"}) {
        QTest::addRow("Enter in %s", focus) << focus << int{Qt::Key_Return};
        QTest::addRow("Enter of the number pad in %s", focus) << focus << int{Qt::Key_Enter};
        QTest::addRow("Escape in %s", focus) << focus << int{Qt::Key_Escape};
    }
}

void InstructionsTest::closes() {
    QFETCH(QString, focus);
    QFETCH(int, key);
    FrmInstructions dialog(folder);
    QTimer::singleShot(0, &dialog, [&] {
        QVERIFY(dialog.isModal());
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        if (key == 0) {
            click(control<QPushButton>(dialog, "Command1"));
            return;
        }
        auto& target = control<QWidget>(dialog, focus);
        target.setFocus();
        QTest::keyClick(&target, static_cast<Qt::Key>(key));
    });
    dialog.exec();
    QVERIFY(!dialog.isVisible());
}

void InstructionsTest::controlsHaveAccessibleNames() {
    const FrmInstructions dialog(folder);
    QCOMPARE(withoutAccessibleName(dialog), QStringList());
}

TARVEL_UI_TEST(InstructionsTest)
#include "instructions_test.moc"
