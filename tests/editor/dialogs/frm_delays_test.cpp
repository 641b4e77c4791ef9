// The Delays dialog: its fields, and what is typed into them.
#include "dialogs/frm_delays.h"
#include "support/dialog_support.h"
#include "support/scripted_prompts.h"
#include "support/ui_test.h"

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

namespace tarvel {

using test::click;
using test::clickRow;
using test::control;
using test::typeOver;

class FrmDelaysTest : public QObject {
    Q_OBJECT

  private slots:
    void init() { document_ = SkinDocument(); }
    void showsItsTexts();
    void showsTheDocumentEachTimeItIsOpened();
    void typedTextIsReadLeniently_data();
    void typedTextIsReadLeniently();
    void eachFieldHasItsDelay();
    void clickSelectsTheWholeValue();
    void typingAfterAClickReplacesTheValue();
    void valueWithoutAFieldCannotBeTyped();
    void deselectedFieldShowsNoValue();
    void worksByKeysAlone();
    void closes_data();
    void closes();
    void controlsHaveAccessibleNames();

  private:
    using Delays = std::array<double, 3>;

    const Delays& delays() const { return document_.settings().delays; }
    void setDelays(const Delays& values) {
        document_.editSettings([&](SkinSettings& settings) { settings.delays = values; });
    }

    SkinDocument document_;
    test::ScriptedPrompts prompts_;
};

void FrmDelaysTest::showsItsTexts() {
    FrmDelays dialog(document_, prompts_);
    QVERIFY(!dialog.isVisible());
    QVERIFY(dialog.isModal());
    QCOMPARE(dialog.objectName(), "frmDelays");
    QCOMPARE(dialog.findChild<QGroupBox*>()->title(), "Delays");
    QStringList labels;
    for (const QLabel* label : dialog.findChildren<QLabel*>()) {
        labels << label->text();
    }
    labels.sort();
    QCOMPARE(labels, (QStringList{"Field (select one)", "Value", "milliseconds"}));
    QVERIFY(test::open(dialog));
    QCOMPARE(test::rowTexts(control<QListWidget>(dialog, "lstFields")),
             (QStringList{"Title", "Load", "Saver"}));
}

void FrmDelaysTest::showsTheDocumentEachTimeItIsOpened() {
    FrmDelays dialog(document_, prompts_);
    auto& list = control<QListWidget>(dialog, "lstFields");
    for (const Delays& values : {Delays{1, 2.5, 3000}, Delays{0, 1e15, -7}}) {
        setDelays(values);
        QVERIFY(test::open(dialog));
        QVERIFY(list.selectedItems().isEmpty());
        QCOMPARE(control<QLineEdit>(dialog, "txtData").text(), "");
        QStringList shown;
        for (int row = 0; row < 3; ++row) {
            clickRow(list, row);
            shown << control<QLineEdit>(dialog, "txtData").text();
        }
        QCOMPARE(shown, values[0] == 1 ? (QStringList{"1", "2.5", "3000"})
                                       : (QStringList{"0", "1000000000000000", "-7"}));
        QCOMPARE(delays(), values); // looking changes nothing
        dialog.close();
    }
}

void FrmDelaysTest::typedTextIsReadLeniently_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("delay");
    QTest::newRow("exponent") << "2.5e3" << 2500.0;
    QTest::newRow("no number") << "abc" << 0.0;
    QTest::newRow("leading number") << "750 ms" << 750.0;
    QTest::newRow("negative") << "-40" << -40.0;
    QTest::newRow("empty") << "" << 0.0;
}

void FrmDelaysTest::typedTextIsReadLeniently() {
    QFETCH(QString, text);
    QFETCH(double, delay);
    setDelays({5, 6, 7});
    FrmDelays dialog(document_, prompts_);
    QVERIFY(test::open(dialog));
    clickRow(control<QListWidget>(dialog, "lstFields"), 0);
    auto& txtData = control<QLineEdit>(dialog, "txtData");
    typeOver(txtData, text);
    QCOMPARE(delays(), (Delays{delay, 6, 7}));
    QCOMPARE(txtData.text(), text); // as typed
}

void FrmDelaysTest::eachFieldHasItsDelay() {
    FrmDelays dialog(document_, prompts_);
    QVERIFY(test::open(dialog));
    for (int row = 2; row >= 0; --row) {
        clickRow(control<QListWidget>(dialog, "lstFields"), row);
        QTest::keyClicks(dialog.focusWidget(), QString::number(100 * (row + 1)));
    }
    QCOMPARE(delays(), (Delays{100, 200, 300}));
}

void FrmDelaysTest::clickSelectsTheWholeValue() {
    setDelays({1500, 0, 0});
    FrmDelays dialog(document_, prompts_);
    QVERIFY(test::open(dialog));
    auto& txtData = control<QLineEdit>(dialog, "txtData");
    clickRow(control<QListWidget>(dialog, "lstFields"), 0);
    QVERIFY(txtData.hasFocus());
    QCOMPARE(txtData.selectedText(), "1500");
    click(txtData);
    QCOMPARE(txtData.selectedText(), "1500");
    click(txtData); // a further click places the caret
    QVERIFY(!txtData.hasSelectedText());
    QTest::mouseClick(&txtData, Qt::RightButton);
    QVERIFY(!txtData.hasSelectedText());
    click(control<QListWidget>(dialog, "lstFields"));
    control<QPushButton>(dialog, "cmdOK").setFocus();
    click(txtData);
    QCOMPARE(txtData.selectedText(), "1500");
}

void FrmDelaysTest::typingAfterAClickReplacesTheValue() {
    FrmDelays dialog(document_, prompts_);
    QVERIFY(test::open(dialog));
    auto& txtData = control<QLineEdit>(dialog, "txtData");
    for (const int row : {0, 1}) {
        clickRow(control<QListWidget>(dialog, "lstFields"), row);
        click(txtData);
        QTest::keyClicks(&txtData, "9000");
        QCOMPARE(txtData.text(), "9000");
    }
    QCOMPARE(delays(), (Delays{9000, 9000, 0}));
}

void FrmDelaysTest::valueWithoutAFieldCannotBeTyped() {
    setDelays({1, 2, 3});
    FrmDelays dialog(document_, prompts_);
    auto& list = control<QListWidget>(dialog, "lstFields");
    auto& txtData = control<QLineEdit>(dialog, "txtData");
    for (int time = 0; time < 2; ++time) {
        QVERIFY(test::open(dialog));
        QVERIFY(list.hasFocus());
        QVERIFY(!txtData.isEnabled());
        typeOver(txtData, "900");
        QCOMPARE(txtData.text(), "");
        QCOMPARE(delays(), (Delays{1, 2, 3}));
        clickRow(list, 1);
        QVERIFY(txtData.isEnabled());
        QVERIFY(txtData.hasFocus());
        QVERIFY(test::close(dialog));
    }
}

void FrmDelaysTest::deselectedFieldShowsNoValue() {
    setDelays({1, 2, 3});
    FrmDelays dialog(document_, prompts_);
    QVERIFY(test::open(dialog));
    auto& list = control<QListWidget>(dialog, "lstFields");
    auto& txtData = control<QLineEdit>(dialog, "txtData");
    clickRow(list, 1);
    QCOMPARE(txtData.text(), "2");
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::ControlModifier,
                      list.visualItemRect(list.item(1)).center());
    QVERIFY(list.selectedItems().isEmpty());
    QCOMPARE(txtData.text(), "");
    QTest::keyClicks(&txtData, "9");
    QCOMPARE(delays(), (Delays{1, 2, 3}));
    clickRow(list, 1);
    QCOMPARE(txtData.text(), "2");
}

void FrmDelaysTest::worksByKeysAlone() {
    FrmDelays dialog(document_, prompts_);
    QVERIFY(test::open(dialog));
    QVERIFY(control<QListWidget>(dialog, "lstFields").hasFocus());
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Down);
    QTest::keyClicks(dialog.focusWidget(), "10");
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
    QTest::keyClick(dialog.focusWidget(), Qt::Key_End);
    QTest::keyClicks(dialog.focusWidget(), "30");
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(delays(), (Delays{10, 0, 30}));
}

void FrmDelaysTest::closes_data() {
    QTest::addColumn<QString>("how");
    for (const char* how : {"OK", "Enter", "Escape", "close button"}) {
        QTest::newRow(how) << how;
    }
}

void FrmDelaysTest::closes() {
    QFETCH(QString, how);
    FrmDelays dialog(document_, prompts_);
    QTimer::singleShot(0, &dialog, [&] {
        clickRow(control<QListWidget>(dialog, "lstFields"), 1);
        auto& txtData = control<QLineEdit>(dialog, "txtData");
        QTest::keyClicks(&txtData, "80");
        if (how == "OK") {
            click(control<QPushButton>(dialog, "cmdOK"));
        } else if (how == "close button") {
            dialog.close();
        } else {
            QTest::keyClick(&txtData, how == "Enter" ? Qt::Key_Enter : Qt::Key_Escape);
        }
    });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QCOMPARE(delays(), (Delays{0, 80, 0}));
}

void FrmDelaysTest::controlsHaveAccessibleNames() {
    const FrmDelays dialog(document_, prompts_);
    QCOMPARE(test::withoutAccessibleName(dialog), QStringList());
}

} // namespace tarvel

TARVEL_UI_TEST(tarvel::FrmDelaysTest)
#include "frm_delays_test.moc"
