// The Information dialog: the name, the fields and their values.
#include "dialogs/frm_info.h"
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

class FrmInfoTest : public QObject {
    Q_OBJECT

  private slots:
    void init();
    void showsItsTexts();
    void showsTheDocumentEachTimeItIsOpened();
    void nameGoesToTheDocumentAtOnce();
    void nameIsSelectedWhenItGetsTheFocus();
    void clickOnAFieldShowsItsValueAndMovesTheFocus();
    void valuesGoToTheirFields();
    void clickSelectsTheWholeValue();
    void valueWithoutAFieldCannotBeTyped();
    void fieldsThatAreNoMoreAreLeftAlone();
    void deselectedFieldShowsNoValue();
    void aFieldIsAdded_data();
    void aFieldIsAdded();
    void noFieldIsAdded_data();
    void noFieldIsAdded();
    void addedFieldTakesAValue();
    void deleteRemovesNothing();
    void worksByKeysAlone();
    void closes_data();
    void closes();
    void controlsHaveAccessibleNames();

  private:
    const std::vector<InformationField>& information() const {
        return document_.settings().information;
    }
    QString skinName() const { return QString::fromStdString(document_.settings().skinName); }

    SkinDocument document_;
    test::ScriptedPrompts prompts_;
};

void FrmInfoTest::init() {
    document_ = SkinDocument();
    prompts_.messages.clear();
    prompts_.inputPrompts.clear();
    prompts_.inputs.clear();
}

void FrmInfoTest::showsItsTexts() {
    FrmInfo dialog(document_, prompts_);
    QVERIFY(!dialog.isVisible());
    QVERIFY(dialog.isModal());
    QCOMPARE(dialog.objectName(), "frmInfo");
    QCOMPARE(dialog.findChild<QGroupBox*>()->title(), "Optional Info");
    QCOMPARE(control<QPushButton>(dialog, "cmdAdd").text(), "Add Field");
    QStringList labels;
    for (const QLabel* label : dialog.findChildren<QLabel*>()) {
        labels << label->text();
    }
    labels.sort();
    QCOMPARE(labels, (QStringList{"*Remove fields by pressing delete", "Field (select one)",
                                  "Skin Name:", "Value"}));
    QVERIFY(test::open(dialog));
    QCOMPARE(test::rowTexts(control<QListWidget>(dialog, "lstFields")),
             (QStringList{"Author", "Version", "Copyright"}));
}

void FrmInfoTest::showsTheDocumentEachTimeItIsOpened() {
    FrmInfo dialog(document_, prompts_);
    for (const std::string name : {"First", "Second"}) {
        document_.editSettings([&](SkinSettings& settings) {
            settings.skinName = name;
            settings.information = {{"Of_" + name, "value of " + name}};
        });
        QVERIFY(test::open(dialog));
        const auto& txtName = control<QLineEdit>(dialog, "txtName");
        QCOMPARE(txtName.text(), QString::fromStdString(name));
        QVERIFY(txtName.hasFocus());
        QCOMPARE(txtName.selectedText(), txtName.text());
        auto& list = control<QListWidget>(dialog, "lstFields");
        QCOMPARE(test::rowTexts(list), QStringList{QString::fromStdString("Of_" + name)});
        QVERIFY(list.selectedItems().isEmpty());
        QCOMPARE(control<QLineEdit>(dialog, "txtData").text(), "");
        clickRow(list, 0);
        QCOMPARE(control<QLineEdit>(dialog, "txtData").text(),
                 QString::fromStdString("value of " + name));
        QVERIFY(test::close(dialog));
    }
}

void FrmInfoTest::nameGoesToTheDocumentAtOnce() {
    FrmInfo dialog(document_, prompts_);
    QVERIFY(test::open(dialog));
    auto& txtName = control<QLineEdit>(dialog, "txtName");
    QVERIFY(txtName.hasFocus());
    QTest::keyClicks(&txtName, "R&D <1>");
    QCOMPARE(skinName(), "R&D <1>");
    typeOver(txtName, "");
    QCOMPARE(skinName(), "");
    QVERIFY(dialog.isVisible());
}

void FrmInfoTest::nameIsSelectedWhenItGetsTheFocus() {
    document_.editSettings([](SkinSettings& settings) { settings.skinName = "Aurora"; });
    FrmInfo dialog(document_, prompts_);
    QVERIFY(test::open(dialog));
    auto& txtName = control<QLineEdit>(dialog, "txtName");
    QCOMPARE(txtName.selectedText(), "Aurora");
    click(txtName);
    QCOMPARE(txtName.selectedText(), "Aurora");
    click(txtName); // a second click places the caret
    QVERIFY(!txtName.hasSelectedText());
    clickRow(control<QListWidget>(dialog, "lstFields"), 0);
    QVERIFY(!txtName.hasFocus());
    click(txtName);
    QCOMPARE(txtName.selectedText(), "Aurora");
    click(control<QLineEdit>(dialog, "txtData"));
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(txtName.hasFocus());
    QCOMPARE(txtName.selectedText(), "Aurora");
}

void FrmInfoTest::clickOnAFieldShowsItsValueAndMovesTheFocus() {
    document_.editSettings([](SkinSettings& settings) {
        settings.information = {{"Author", "somebody"}, {"Version", "2"}};
    });
    FrmInfo dialog(document_, prompts_);
    QVERIFY(test::open(dialog));
    auto& list = control<QListWidget>(dialog, "lstFields");
    auto& txtData = control<QLineEdit>(dialog, "txtData");
    for (const int row : {1, 0, 0}) { // the last click is on the field that is selected already
        clickRow(list, row);
        QCOMPARE(txtData.text(), row == 0 ? "somebody" : "2");
        QVERIFY(txtData.hasFocus());
        QCOMPARE(txtData.selectedText(), txtData.text());
        click(control<QLineEdit>(dialog, "txtName"));
    }
    QCOMPARE(information()[0].value, "somebody");
    QCOMPARE(information()[1].value, "2");
}

void FrmInfoTest::valuesGoToTheirFields() {
    FrmInfo dialog(document_, prompts_);
    QVERIFY(test::open(dialog));
    auto& list = control<QListWidget>(dialog, "lstFields");
    auto& txtData = control<QLineEdit>(dialog, "txtData");
    clickRow(list, 0);
    QTest::keyClicks(&txtData, "Ann <ann@example.org>");
    clickRow(list, 2);
    QCOMPARE(txtData.text(), "");
    QTest::keyClicks(&txtData, "& Co");
    const std::vector<InformationField> expected = {
        {"Author", "Ann <ann@example.org>"}, {"Version", ""}, {"Copyright", "& Co"}};
    QCOMPARE(information(), expected);
    clickRow(list, 0);
    QTest::keyClick(&txtData, Qt::Key_Delete); // over the selected whole
    QCOMPARE(information()[0].value, "");
}

void FrmInfoTest::clickSelectsTheWholeValue() {
    document_.editSettings([](SkinSettings& settings) { settings.information[1].value = "1.0"; });
    FrmInfo dialog(document_, prompts_);
    QVERIFY(test::open(dialog));
    clickRow(control<QListWidget>(dialog, "lstFields"), 1);
    auto& txtData = control<QLineEdit>(dialog, "txtData");
    click(txtData);
    QTest::keyClicks(&txtData, "2");
    QCOMPARE(information()[1].value, "2");
}

void FrmInfoTest::valueWithoutAFieldCannotBeTyped() {
    FrmInfo dialog(document_, prompts_);
    QVERIFY(test::open(dialog));
    auto& txtData = control<QLineEdit>(dialog, "txtData");
    QVERIFY(!txtData.isEnabled());
    typeOver(txtData, "lost");
    QCOMPARE(txtData.text(), "");
    QCOMPARE(document_, SkinDocument());
    prompts_.inputs = {"Size"};
    click(control<QPushButton>(dialog, "cmdAdd"));
    QVERIFY(txtData.isEnabled());
}

void FrmInfoTest::fieldsThatAreNoMoreAreLeftAlone() {
    FrmInfo dialog(document_, prompts_);
    QVERIFY(test::open(dialog));
    auto& list = control<QListWidget>(dialog, "lstFields");
    auto& txtData = control<QLineEdit>(dialog, "txtData");
    clickRow(list, 2);
    document_.editSettings([](SkinSettings& settings) { settings.information.resize(1); });
    const SkinDocument before = document_;
    QTest::keyClicks(&txtData, "x");
    clickRow(list, 1);
    QCOMPARE(txtData.text(), "");
    QTest::keyClicks(&txtData, "y");
    QCOMPARE(document_, before);
    clickRow(list, 0);
    QTest::keyClicks(&txtData, "z");
    QCOMPARE(information()[0].value, "z");
}

void FrmInfoTest::deselectedFieldShowsNoValue() {
    document_.editSettings([](SkinSettings& settings) {
        settings.information = {{"Author", "somebody"}, {"Version", "2"}};
    });
    const SkinDocument before = document_;
    FrmInfo dialog(document_, prompts_);
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
    QCOMPARE(document_, before);
    clickRow(list, 1);
    QCOMPARE(txtData.text(), "2");
}

void FrmInfoTest::aFieldIsAdded_data() {
    QTest::addColumn<QString>("answer");
    QTest::addColumn<QString>("name");
    QTest::newRow("blanks") << "Skin Web Page"
                            << "Skin_Web_Page";
    QTest::newRow("brackets") << "<Size>"
                              << "Size";
    QTest::newRow("there already") << "Author"
                                   << "Author";
    QTest::newRow("ampersand") << "R&D"
                               << "R&D";
}

void FrmInfoTest::aFieldIsAdded() {
    QFETCH(QString, answer);
    QFETCH(QString, name);
    FrmInfo dialog(document_, prompts_);
    QVERIFY(test::open(dialog));
    prompts_.inputs = {answer};
    click(control<QPushButton>(dialog, "cmdAdd"));
    QCOMPARE(prompts_.inputPrompts, QStringList{"Enter name of field"});
    QCOMPARE(prompts_.lastOwner, &dialog);
    auto& list = control<QListWidget>(dialog, "lstFields");
    QCOMPARE(test::rowTexts(list), (QStringList{"Author", "Version", "Copyright", name}));
    QVERIFY(list.item(3)->isSelected());
    QVERIFY(control<QLineEdit>(dialog, "txtData").hasFocus());
    QCOMPARE(information().size(), 4U);
    QCOMPARE(information()[3], (InformationField{name.toStdString(), ""}));
}

void FrmInfoTest::noFieldIsAdded_data() {
    QTest::addColumn<QStringList>("inputs");
    QTest::newRow("cancelled") << QStringList();
    QTest::newRow("empty") << QStringList("");
    QTest::newRow("nothing left") << QStringList("<>");
}

void FrmInfoTest::noFieldIsAdded() {
    QFETCH(QStringList, inputs);
    FrmInfo dialog(document_, prompts_);
    QVERIFY(test::open(dialog));
    clickRow(control<QListWidget>(dialog, "lstFields"), 1);
    prompts_.inputs = inputs;
    click(control<QPushButton>(dialog, "cmdAdd"));
    QCOMPARE(prompts_.inputPrompts.size(), 1);
    QCOMPARE(control<QListWidget>(dialog, "lstFields").count(), 3);
    QVERIFY(control<QListWidget>(dialog, "lstFields").item(1)->isSelected());
    QCOMPARE(document_, SkinDocument());
}

void FrmInfoTest::addedFieldTakesAValue() {
    document_.editSettings([](SkinSettings& settings) { settings.information[2].value = "2026"; });
    FrmInfo dialog(document_, prompts_);
    QVERIFY(test::open(dialog));
    clickRow(control<QListWidget>(dialog, "lstFields"), 2);
    prompts_.inputs = {"Home page"};
    click(control<QPushButton>(dialog, "cmdAdd"));
    auto& txtData = control<QLineEdit>(dialog, "txtData");
    QCOMPARE(txtData.text(), "");
    QTest::keyClicks(&txtData, "example.org");
    QCOMPARE(information()[3], (InformationField{"Home_page", "example.org"}));
    QCOMPARE(information()[2].value, "2026");
}

void FrmInfoTest::deleteRemovesNothing() {
    FrmInfo dialog(document_, prompts_);
    QVERIFY(test::open(dialog));
    auto& list = control<QListWidget>(dialog, "lstFields");
    clickRow(list, 0);
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Delete);
    QTest::keyClick(&list, Qt::Key_Backspace);
    QCOMPARE(test::rowTexts(list), (QStringList{"Author", "Version", "Copyright"}));
    QCOMPARE(document_, SkinDocument());
}

void FrmInfoTest::worksByKeysAlone() {
    FrmInfo dialog(document_, prompts_);
    QVERIFY(test::open(dialog));
    const auto press = [&](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(dialog.focusWidget(), key, modifiers);
    };
    QTest::keyClicks(dialog.focusWidget(), "Name");
    press(Qt::Key_Tab);
    QVERIFY(control<QListWidget>(dialog, "lstFields").hasFocus());
    QVERIFY(control<QListWidget>(dialog, "lstFields").selectedItems().isEmpty());
    press(Qt::Key_Down);
    QTest::keyClicks(dialog.focusWidget(), "Ann");
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    press(Qt::Key_Down);
    QTest::keyClicks(dialog.focusWidget(), "1.0");
    press(Qt::Key_Tab);
    QVERIFY(control<QPushButton>(dialog, "cmdAdd").hasFocus());
    press(Qt::Key_Tab);
    QVERIFY(control<QPushButton>(dialog, "cmdOK").hasFocus());
    press(Qt::Key_Space);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(skinName(), "Name");
    QCOMPARE(information()[0].value, "Ann");
    QCOMPARE(information()[1].value, "1.0");
}

void FrmInfoTest::closes_data() {
    QTest::addColumn<QString>("how");
    for (const char* how : {"OK", "Enter", "Escape", "close button"}) {
        QTest::newRow(how) << how;
    }
}

void FrmInfoTest::closes() {
    QFETCH(QString, how);
    FrmInfo dialog(document_, prompts_);
    QTimer::singleShot(0, &dialog, [&] {
        auto& txtData = control<QLineEdit>(dialog, "txtData");
        clickRow(control<QListWidget>(dialog, "lstFields"), 0);
        QTest::keyClicks(&txtData, "kept");
        if (how == "OK") {
            click(control<QPushButton>(dialog, "cmdOK"));
        } else if (how == "close button") {
            dialog.close();
        } else {
            QTest::keyClick(&txtData, how == "Enter" ? Qt::Key_Return : Qt::Key_Escape);
        }
    });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QCOMPARE(information()[0].value, "kept");
}

void FrmInfoTest::controlsHaveAccessibleNames() {
    const FrmInfo dialog(document_, prompts_);
    QCOMPARE(test::withoutAccessibleName(dialog), QStringList());
}

} // namespace tarvel

TARVEL_UI_TEST(tarvel::FrmInfoTest)
#include "frm_info_test.moc"
