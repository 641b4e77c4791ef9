// The Return key in the Resources dialog: it adds what is filled in, and closes over nothing else.
#include "support/resources_support.h"
#include "support/ui_test.h"

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

namespace tarvel {

using test::click;
using test::clickRow;
using test::control;
using test::typeOver;

class FrmResourcesReturnTest : public QObject, protected test::ResourcesFixture {
    Q_OBJECT

  private slots:
    void init() { startAfresh(); }
    void cleanup() { dialog_.reset(); }
    void returnNeverClosesOverAFileAndName_data();
    void returnNeverClosesOverAFileAndName();
    void returnAddsWhenTheNameIsTypedLast();
    void returnLeadsToWhatIsMissing();
    void returnShowsTheFileBehindThePresets();
    void returnInThePresetFrameAdds_data();
    void returnInThePresetFrameAdds();
    void returnWithoutAPresetLeadsToTheList();

  private:
    void browseTo(const char* name) {
        prompts_->fileChoices = {{picture(name, Qt::red)}};
        click(at<QWidget>("cmdBrowse"));
        QCOMPARE(at<QLabel>("lblFile").text(), inFolder(name));
    }
    void pressReturnIn(const QString& name) {
        auto& widget = control<QWidget>(*dialog_, name);
        widget.setFocus();
        QVERIFY(widget.hasFocus());
        QTest::keyClick(&widget, Qt::Key_Return);
    }
    void choosePresets() {
        click(at<QWidget>("optPreset"));
        QVERIFY(at<QGroupBox>("fraPreset").isVisible());
    }
};

void FrmResourcesReturnTest::returnNeverClosesOverAFileAndName_data() {
    QTest::addColumn<QString>("focus");
    for (const char* focus : {"txtRes", "lstRes", "optCustom", "cmdAdd", "cmdOK"}) {
        QTest::newRow(focus) << focus;
    }
}

void FrmResourcesReturnTest::returnNeverClosesOverAFileAndName() {
    QFETCH(QString, focus);
    document_.addRes("old", "\\old.png");
    open();
    browseTo("new.png");
    pressReturnIn(focus);
    QVERIFY(dialog_->isVisible());
    QCOMPARE(resources().size(), 2U);
    QCOMPARE(resources()[1], (Resource{"new", folder_.document("new.png"), true, false}));
    pressReturnIn("cmdOK");
    QVERIFY(!dialog_->isVisible());
    QCOMPARE(resources().size(), 2U);
}

void FrmResourcesReturnTest::returnAddsWhenTheNameIsTypedLast() {
    open();
    browseTo("a.png");
    typeOver(at<QLineEdit>("txtRes"), "");
    click(at<QWidget>("cmdAdd")); // adds nothing
    QVERIFY(at<QPushButton>("cmdOK").isDefault());
    typeOver(at<QLineEdit>("txtRes"), "mine");
    QVERIFY(at<QPushButton>("cmdAdd").isDefault());
    QTest::keyClick(dialog_->focusWidget(), Qt::Key_Return);
    QVERIFY(dialog_->isVisible());
    QCOMPARE(resources().size(), 1U);
    QCOMPARE(resources().front().name, "mine");
    QVERIFY(at<QPushButton>("cmdOK").isDefault());
}

void FrmResourcesReturnTest::returnLeadsToWhatIsMissing() {
    open();
    browseTo("a.png");
    typeOver(at<QLineEdit>("txtRes"), "");
    for (const char* focus : {"lstRes", "cmdOK", "txtRes"}) {
        pressReturnIn(focus);
        QVERIFY(dialog_->isVisible());
        QVERIFY(at<QLineEdit>("txtRes").hasFocus());
        QCOMPARE(at<QLabel>("lblFile").text(), inFolder("a.png"));
    }
    dialog_->close();
    open();
    typeOver(at<QLineEdit>("txtRes"), "only a name");
    QTest::keyClick(dialog_->focusWidget(), Qt::Key_Enter);
    QVERIFY(dialog_->isVisible());
    QVERIFY(at<QWidget>("cmdBrowse").hasFocus());
    QCOMPARE(at<QLineEdit>("txtRes").text(), "only a name");
    QCOMPARE(document_, SkinDocument());
    click(at<QWidget>("cmdOK")); // the mouse closes all the same
    QVERIFY(!dialog_->isVisible());
}

void FrmResourcesReturnTest::returnShowsTheFileBehindThePresets() {
    open();
    browseTo("a.png");
    choosePresets();
    pressReturnIn("lstRes");
    QVERIFY(dialog_->isVisible());
    QVERIFY(at<QWidget>("fraCustom").isVisible());
    QCOMPARE(at<QLabel>("lblFile").text(), inFolder("a.png"));
    QVERIFY(resources().empty());
    pressReturnIn("lstRes");
    QCOMPARE(resources().size(), 1U);
}

void FrmResourcesReturnTest::returnInThePresetFrameAdds_data() {
    QTest::addColumn<QString>("focus");
    for (const char* focus : {"lstResDef", "txtResDef", "optPreset2", "cmdAddDef", "cmdOK"}) {
        QTest::newRow(focus) << focus;
    }
}

void FrmResourcesReturnTest::returnInThePresetFrameAdds() {
    QFETCH(QString, focus);
    open();
    choosePresets();
    clickRow(at<QListWidget>("lstResDef"), 4);
    QVERIFY(at<QPushButton>("cmdAddDef").isDefault());
    pressReturnIn(focus);
    QVERIFY(dialog_->isVisible());
    QCOMPARE(resources(),
             (std::vector<Resource>{{"ICO_DVD", "<File>::ICO_DVD</File>", false, false}}));
    QTest::keyClick(dialog_->focusWidget(), Qt::Key_Return);
    QVERIFY(!dialog_->isVisible());
}

void FrmResourcesReturnTest::returnWithoutAPresetLeadsToTheList() {
    open();
    choosePresets();
    typeOver(at<QLineEdit>("txtResDef"), "mine");
    QTest::keyClick(dialog_->focusWidget(), Qt::Key_Return);
    QVERIFY(dialog_->isVisible());
    QVERIFY(at<QListWidget>("lstResDef").hasFocus());
    QVERIFY(at<QListWidget>("lstResDef").selectedItems().isEmpty());
    QCOMPARE(at<QLineEdit>("txtResDef").text(), "mine");
    typeOver(at<QLineEdit>("txtResDef"), "");
    QTest::keyClick(dialog_->focusWidget(), Qt::Key_Return); // over nothing
    QVERIFY(!dialog_->isVisible());
}

} // namespace tarvel

TARVEL_UI_TEST(tarvel::FrmResourcesReturnTest)
#include "frm_resources_return_test.moc"
