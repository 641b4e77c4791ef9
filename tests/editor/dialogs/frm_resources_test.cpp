// The Resources dialog: adding files and presets, the list, drops and keys.
#include "support/resources_support.h"
#include "support/ui_test.h"

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

namespace tarvel {

using test::click;
using test::clickRow;
using test::control;
using test::typeOver;

namespace {

QColor centreColor(QWidget& widget) {
    const QImage image = widget.grab().toImage();
    return image.pixelColor(image.rect().center());
}

} // namespace

class FrmResourcesTest : public QObject, protected test::ResourcesFixture {
    Q_OBJECT

  private slots:
    void initTestCase();
    void init() { startAfresh(); }
    void cleanup() { dialog_.reset(); }
    void showsItsTexts();
    void presetsAreListedInOrder();
    void showsTheDocumentEachTimeItIsOpened();
    void optionsSwitchTheFrames();
    void heightFitsTheFrame();
    void heightThatTheUserAddsStays();
    void browsingFillsTheFields();
    void browsingLeavesATypedNameAlone();
    void cancelledBrowsingChangesNothing_data();
    void cancelledBrowsingChangesNothing();
    void aFileIsAdded();
    void reservedNameIsRefused();
    void takenNameIsRefused();
    void nothingIsAddedWithoutNameAndFile_data();
    void nothingIsAddedWithoutNameAndFile();
    void rowsThatAreNoMoreShowNothing();
    void clickOnAPresetDescribesIt_data();
    void clickOnAPresetDescribesIt();
    void aPresetIsAdded();
    void presetWithATakenNameIsSilentlyNotAdded();
    void noPresetIsAddedWithoutAChoice();
    void presetMayHaveTheReservedName();
    void droppedFileIsFilledIn();
    void droppedFileShowsTheCustomFrame();
    void otherDropsAreRefused();
    void filesThatASkinCannotHoldAreRefused();
    void aFileMayBeFilledInBeforeOpening();
    void worksByKeysAlone();
    void closes_data();
    void closes();
    void controlsHaveAccessibleNames();

  private:
    void choosePresets() {
        click(at<QWidget>("optPreset"));
        QVERIFY(at<QGroupBox>("fraPreset").isVisible());
        const QImage picture = at<QLabel>("imgDefault").pixmap().toImage();
        QVERIFY(picture.pixelColor(picture.rect().center()).alpha() > 0);
    }
};

void FrmResourcesTest::initTestCase() {
    QVERIFY(QFile::exists(":/tarvel/imgCustom.png"));
}

void FrmResourcesTest::showsItsTexts() {
    QVERIFY(!dialog_->isVisible());
    QVERIFY(dialog_->isModal());
    QCOMPARE(dialog_->objectName(), "frmResources");
    QCOMPARE(at<QGroupBox>("fraCustom").title(), "ADD RESOURCE");
    QCOMPARE(at<QGroupBox>("fraPreset").title(), "ADD PRESET RESOURCE");
    const auto text = [&](const char* name) { return at<QAbstractButton>(name).text(); };
    QCOMPARE(text("optCustom"), "Custom (from file)");
    QCOMPARE(text("optCustom2"), "Custom (from file)");
    QCOMPARE(text("optPreset"), "Preset (in QOR)");
    QCOMPARE(text("optPreset2"), "Preset (in QOR)");
    QCOMPARE(text("cmdBrowse"), "Browse");
    QCOMPARE(text("cmdAdd"), "Add");
    QCOMPARE(text("cmdAddDef"), "Add Resource");
    const auto labels = [&](const char* frame) {
        QStringList texts;
        for (const QLabel* label : at<QGroupBox>(frame).findChildren<QLabel*>()) {
            texts << label->text();
        }
        texts.removeAll(QString());
        texts.sort();
        return texts;
    };
    QCOMPARE(labels("fraCustom"),
             (QStringList{"*The resource can either be a video or a picture.  Both are referred to "
                          "as \"images\".",
                          "File:", "Resource Name:"}));
    QCOMPARE(labels("fraPreset"), (QStringList{"Description:", "Resource name"}));
    const auto* list = at<QListWidget>("lstRes").parentWidget();
    QCOMPARE(qobject_cast<const QGroupBox*>(list)->title(), "CURRENT RESOURCES");
    QVERIFY(!at<QLabel>("imgDefault").pixmap().isNull());
    QCOMPARE(at<QLabel>("lblFile").text(), "");
}

void FrmResourcesTest::presetsAreListedInOrder() {
    QCOMPARE(test::rowTexts(at<QListWidget>("lstResDef")),
             (QStringList{"PreviewMedia", "GameIcon", "::ICO_ACTION", "::ICO_DIR", "::ICO_DVD",
                          "::ICO_EMU", "::ICO_FILE", "::ICO_HD", "::ICO_LOCK", "::ICO_MEDIA",
                          "::ICO_MUSIC", "::ICO_WAVE", "::ICO_XBE", "::SkyTile", "::Logo",
                          "::HelpGCScreen", "::HelpKBScreen", "::HelpIRScreen"}));
}

void FrmResourcesTest::showsTheDocumentEachTimeItIsOpened() {
    open();
    QCOMPARE(at<QListWidget>("lstRes").count(), 0);
    dialog_->close();
    document_.addRes("First", "\\somewhere\\Folder\\a.png");
    document_.addcRes("<File>::Logo</File>", "<b>Second</b>");
    open();
    auto& list = at<QListWidget>("lstRes");
    QCOMPARE(test::rowTexts(list), (QStringList{"First", "<b>Second</b>"}));
    QVERIFY(list.selectedItems().isEmpty());
    QCOMPARE(list.item(0)->toolTip(), "/somewhere/Folder/a.png"); // as this system spells it
    dialog_->close();
    document_ = SkinDocument();
    open();
    QCOMPARE(list.count(), 0);
}

void FrmResourcesTest::optionsSwitchTheFrames() {
    open();
    const auto expectPreset = [&](bool wanted) {
        QCOMPARE(at<QWidget>("fraPreset").isVisible(), wanted);
        QCOMPARE(at<QWidget>("lstResDef").isVisible(), wanted);
        QCOMPARE(at<QWidget>("cmdAddDef").isVisible(), wanted);
        QCOMPARE(at<QWidget>("txtRes").isVisible(), !wanted);
        QCOMPARE(at<QWidget>("cmdBrowse").isVisible(), !wanted);
        for (const char* name : {"optPreset", "optPreset2"}) {
            QCOMPARE(at<QRadioButton>(name).isChecked(), wanted);
        }
        for (const char* name : {"optCustom", "optCustom2"}) {
            QCOMPARE(at<QRadioButton>(name).isChecked(), !wanted);
        }
    };
    expectPreset(false);
    click(at<QWidget>("optPreset"));
    expectPreset(true);
    QTRY_VERIFY(at<QWidget>("optPreset2").hasFocus()); // the choice can be taken back by keys
    click(at<QWidget>("optCustom2"));
    expectPreset(false);
    QTRY_VERIFY(at<QWidget>("optCustom").hasFocus());
}

void FrmResourcesTest::heightFitsTheFrame() {
    open();
    const QSize custom = dialog_->size();
    click(at<QWidget>("optPreset"));
    const QSize preset = dialog_->size();
    QVERIFY(preset.height() > custom.height());
    QCOMPARE(preset.width(), custom.width());
    const auto& frame = at<QGroupBox>("fraPreset");
    QVERIFY(frame.height() >= frame.minimumSizeHint().height());
    click(at<QWidget>("optCustom2"));
    QCOMPARE(dialog_->size(), custom);
    click(at<QWidget>("optPreset"));
    QCOMPARE(dialog_->size(), preset);
    QVERIFY(test::close(*dialog_));
    open();
    QCOMPARE(dialog_->size(), custom); // it starts there each time
}

void FrmResourcesTest::heightThatTheUserAddsStays() {
    open();
    const QSize custom = dialog_->size();
    dialog_->resize(custom.width() + 50, custom.height() + 80);
    click(at<QWidget>("optPreset"));
    click(at<QWidget>("optCustom2"));
    QCOMPARE(dialog_->size(), custom + QSize(50, 80));
}

void FrmResourcesTest::browsingFillsTheFields() {
    open();
    const QString file = picture("My Logo.png", Qt::red);
    prompts_->fileChoices = {{file}};
    click(at<QWidget>("cmdBrowse"));
    QCOMPARE(prompts_->severals, QList<bool>{true});
    QCOMPARE(prompts_->lastOwner, dialog_.get());
    QCOMPARE(at<QLabel>("lblFile").text(), file);
    QCOMPARE(at<QLabel>("lblFile").toolTip(), file);
    QCOMPARE(at<QLineEdit>("txtRes").text(), "My Logo");
    QVERIFY(at<QPushButton>("cmdAdd").isDefault());
    QVERIFY(at<QPushButton>("cmdAdd").hasFocus());
    QCOMPARE(document_, SkinDocument());
}

void FrmResourcesTest::browsingLeavesATypedNameAlone() {
    open();
    typeOver(at<QLineEdit>("txtRes"), "mine");
    prompts_->fileChoices = {{picture("a.png", Qt::red)}, {picture("b.png", Qt::red)}};
    click(at<QWidget>("cmdBrowse"));
    click(at<QWidget>("cmdBrowse"));
    QCOMPARE(at<QLineEdit>("txtRes").text(), "mine");
    QCOMPARE(at<QLabel>("lblFile").text(), inFolder("b.png"));
}

void FrmResourcesTest::cancelledBrowsingChangesNothing_data() {
    QTest::addColumn<QList<QStringList>>("choices");
    QTest::newRow("cancelled") << QList<QStringList>();
    QTest::newRow("no name") << QList<QStringList>{{""}};
}

void FrmResourcesTest::cancelledBrowsingChangesNothing() {
    QFETCH(QList<QStringList>, choices);
    open();
    prompts_->fileChoices = choices;
    click(at<QWidget>("cmdBrowse"));
    QCOMPARE(prompts_->filters.size(), 1);
    QCOMPARE(at<QLabel>("lblFile").text(), "");
    QCOMPARE(at<QLineEdit>("txtRes").text(), "");
    typeOver(at<QLineEdit>("txtRes"), "");
    QVERIFY(at<QPushButton>("cmdOK").isDefault());
}

void FrmResourcesTest::aFileIsAdded() {
    document_.addRes("old", "\\old.png");
    open();
    prompts_->fileChoices = {{picture("new.png", Qt::red)}};
    click(at<QWidget>("cmdBrowse"));
    QTest::keyClick(dialog_->focusWidget(), Qt::Key_Return); // Add is the default button
    QCOMPARE(resources().size(), 2U);
    QCOMPARE(resources()[1], (Resource{"new", folder_.document("new.png"), true, false}));
    auto& list = at<QListWidget>("lstRes");
    QCOMPARE(test::rowTexts(list), (QStringList{"old", "new"}));
    QVERIFY(list.item(1)->isSelected());
    QCOMPARE(at<QLabel>("lblFile").text(), "");
    QCOMPARE(at<QLineEdit>("txtRes").text(), "");
    QVERIFY(at<QPushButton>("cmdOK").isDefault());
    QVERIFY(dialog_->isVisible());
    QCOMPARE(prompts_->messages, QStringList());
    QTest::keyClick(dialog_->focusWidget(), Qt::Key_Return);
    QVERIFY(!dialog_->isVisible());
}

void FrmResourcesTest::reservedNameIsRefused() {
    open();
    prompts_->fileChoices = {{picture("bground.png", Qt::red)}};
    click(at<QWidget>("cmdBrowse"));
    QCOMPARE(at<QLineEdit>("txtRes").text(), "bground");
    click(at<QWidget>("cmdAdd"));
    QCOMPARE(prompts_->messages, QStringList{"Use a different resource name"});
    QCOMPARE(prompts_->lastOwner, dialog_.get());
    QVERIFY(resources().empty());
    QCOMPARE(at<QLineEdit>("txtRes").text(), "bground");
    typeOver(at<QLineEdit>("txtRes"), "Bground");
    click(at<QWidget>("cmdAdd"));
    QCOMPARE(prompts_->messages.size(), 1);
    QCOMPARE(resources().front().name, "Bground");
}

void FrmResourcesTest::takenNameIsRefused() {
    document_.addRes("Logo", "\\old.png");
    open();
    prompts_->fileChoices = {{picture("Logo.png", Qt::red)}};
    click(at<QWidget>("cmdBrowse"));
    click(at<QWidget>("cmdAdd"));
    QCOMPARE(prompts_->messages, QStringList{"Enter a unique resource name"});
    QCOMPARE(prompts_->lastOwner, dialog_.get());
    QVERIFY(at<QLineEdit>("txtRes").hasFocus());
    QCOMPARE(at<QLineEdit>("txtRes").text(), "Logo");
    QCOMPARE(at<QLabel>("lblFile").text(), inFolder("Logo.png"));
    QCOMPARE(resources().size(), 1U);
    typeOver(at<QLineEdit>("txtRes"), "logo"); // case counts
    click(at<QWidget>("cmdAdd"));
    QCOMPARE(prompts_->messages.size(), 1);
    QCOMPARE(resources().size(), 2U);
}

void FrmResourcesTest::nothingIsAddedWithoutNameAndFile_data() {
    QTest::addColumn<bool>("name");
    QTest::addColumn<bool>("file");
    QTest::newRow("neither") << false << false;
    QTest::newRow("name only") << true << false;
    QTest::newRow("file only") << false << true;
}

void FrmResourcesTest::nothingIsAddedWithoutNameAndFile() {
    QFETCH(bool, name);
    QFETCH(bool, file);
    open();
    if (file) {
        prompts_->fileChoices = {{picture("a.png", Qt::red)}};
        click(at<QWidget>("cmdBrowse"));
    }
    typeOver(at<QLineEdit>("txtRes"), name ? "a name" : "");
    click(at<QWidget>("cmdAdd"));
    QCOMPARE(document_, SkinDocument());
    QCOMPARE(prompts_->messages, QStringList());
    QCOMPARE(at<QLineEdit>("txtRes").text(), name ? "a name" : "");
    QCOMPARE(at<QLabel>("lblFile").text().isEmpty(), !file);
    QVERIFY(at<QPushButton>("cmdOK").isDefault());
}

void FrmResourcesTest::rowsThatAreNoMoreShowNothing() {
    document_.addRes("one", folder_.document("one.png"));
    document_.addRes("two", folder_.document("two.png"));
    picture("one.png", Qt::red);
    picture("two.png", Qt::blue);
    open();
    auto& list = at<QListWidget>("lstRes");
    clickRow(list, 0);
    QCOMPARE(centreColor(at<QWidget>("imgPreview")), QColor(Qt::red));
    document_.editSettings([](SkinSettings& settings) { settings.resources.resize(1); });
    clickRow(list, 1);
    QVERIFY(centreColor(at<QWidget>("imgPreview")) != QColor(Qt::red));
    QVERIFY(centreColor(at<QWidget>("imgPreview")) != QColor(Qt::blue));
    clickRow(list, 0);
    QCOMPARE(centreColor(at<QWidget>("imgPreview")), QColor(Qt::red));
}

void FrmResourcesTest::clickOnAPresetDescribesIt_data() {
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("description");
    QTest::addColumn<QString>("name");
    QTest::newRow("media") << 0 << "This shows each game's preview video or screenshot"
                           << "PreviewMedia";
    QTest::newRow("icon") << 1 << "This shows each game's icon"
                          << "GameIcon";
    QTest::newRow("dvd") << 4 << "---"
                         << "ICO_DVD";
    QTest::newRow("last") << 17 << "---"
                          << "HelpIRScreen";
}

void FrmResourcesTest::clickOnAPresetDescribesIt() {
    QFETCH(int, row);
    QFETCH(QString, description);
    QFETCH(QString, name);
    open();
    choosePresets();
    QCOMPARE(at<QLabel>("lblDesc").text(), "");
    QCOMPARE(at<QLineEdit>("txtResDef").text(), "");
    clickRow(at<QListWidget>("lstResDef"), row);
    QCOMPARE(at<QLabel>("lblDesc").text(), description);
    QCOMPARE(at<QLineEdit>("txtResDef").text(), name);
    typeOver(at<QLineEdit>("txtResDef"), "other");
    clickRow(at<QListWidget>("lstResDef"), row); // suggests again
    QCOMPARE(at<QLineEdit>("txtResDef").text(), name);
}

void FrmResourcesTest::aPresetIsAdded() {
    document_.addRes("old", "\\old.png");
    open();
    choosePresets();
    clickRow(at<QListWidget>("lstResDef"), 17);
    click(at<QWidget>("cmdAddDef"));
    QCOMPARE(resources().size(), 2U);
    QCOMPARE(resources()[1],
             (Resource{"HelpIRScreen", "<File>::HelpIRScreen</File>", false, false}));
    auto& list = at<QListWidget>("lstRes");
    QCOMPARE(test::rowTexts(list), (QStringList{"old", "HelpIRScreen"}));
    QVERIFY(list.item(1)->isSelected());
    QVERIFY(at<QPushButton>("cmdOK").isDefault());
    QVERIFY(at<QRadioButton>("optCustom").isChecked()); // as at the start
    QVERIFY(at<QWidget>("fraCustom").isVisible());
    QTest::keyClick(dialog_->focusWidget(), Qt::Key_Return);
    QVERIFY(!dialog_->isVisible());
}

void FrmResourcesTest::presetWithATakenNameIsSilentlyNotAdded() {
    document_.addRes("Logo", "\\old.png");
    const SkinDocument before = document_;
    open();
    choosePresets();
    clickRow(at<QListWidget>("lstResDef"), 14);
    click(at<QWidget>("cmdAddDef"));
    QCOMPARE(document_, before);
    QCOMPARE(prompts_->messages, QStringList());
    QVERIFY(at<QWidget>("fraPreset").isVisible());
    typeOver(at<QLineEdit>("txtResDef"), "logo");
    click(at<QWidget>("cmdAddDef"));
    QCOMPARE(resources().size(), 2U);
    QCOMPARE(resources()[1], (Resource{"logo", "<File>::Logo</File>", false, false}));
}

void FrmResourcesTest::noPresetIsAddedWithoutAChoice() {
    document_.addRes("old", "\\old.png");
    const SkinDocument before = document_;
    open();
    choosePresets();
    typeOver(at<QLineEdit>("txtResDef"), "name");
    click(at<QWidget>("cmdAddDef"));
    QCOMPARE(document_, before);
    QVERIFY(at<QListWidget>("lstRes").item(0)->isSelected());
    QVERIFY(at<QPushButton>("cmdOK").isDefault());
    QVERIFY(at<QRadioButton>("optCustom").isChecked());
}

void FrmResourcesTest::presetMayHaveTheReservedName() {
    open();
    choosePresets();
    clickRow(at<QListWidget>("lstResDef"), 0);
    typeOver(at<QLineEdit>("txtResDef"), "bground");
    click(at<QWidget>("cmdAddDef"));
    QCOMPARE(resources().front(),
             (Resource{"bground", "<EntryNamed>Media</EntryNamed>", false, false}));
}

void FrmResourcesTest::droppedFileIsFilledIn() {
    open();
    const QString first = picture("first.png", Qt::red);
    const QString second = picture("second.png", Qt::red);
    for (const char* target : {"txtRes", "lstRes", "imgPreview", "fraCustom"}) {
        at<QLineEdit>("txtRes").clear();
        auto& widget = at<QWidget>(target);
        QVERIFY2(test::dropFiles(widget, {first, second}), target);
        QCOMPARE(at<QLabel>("lblFile").text(), first);
        QCOMPARE(at<QLineEdit>("txtRes").text(), "first");
        QVERIFY(at<QPushButton>("cmdAdd").isDefault());
    }
    QVERIFY(test::dropFiles(*dialog_, {second}));
    QCOMPARE(at<QLabel>("lblFile").text(), second);
    QCOMPARE(at<QLineEdit>("txtRes").text(), "first"); // was not empty
    QVERIFY(resources().empty());
}

void FrmResourcesTest::droppedFileShowsTheCustomFrame() {
    open();
    choosePresets();
    QVERIFY(test::dropFiles(at<QWidget>("fraPreset"), {picture("a.png", Qt::red)}));
    QVERIFY(at<QWidget>("fraCustom").isVisible());
    QVERIFY(!at<QWidget>("fraPreset").isVisible());
    QCOMPARE(at<QLineEdit>("txtRes").text(), "a");
}

void FrmResourcesTest::filesThatASkinCannotHoldAreRefused() {
    open();
    const QString refused = picture("a\\b.png", Qt::red);
    const QString message = "The path of a skin's file cannot hold a backslash: " + refused;
    prompts_->fileChoices << QStringList(refused);
    test::click(at<QPushButton>("cmdBrowse"));
    QTRY_COMPARE(prompts_->messages, QStringList(message));
    QCOMPARE(prompts_->lastOwner, dialog_.get());
    QVERIFY(test::dropFiles(*dialog_, {refused}));
    QTRY_COMPARE(prompts_->messages, QStringList({message, message}));
    QCOMPARE(at<QLabel>("lblFile").text(), "");
    QCOMPARE(at<QLineEdit>("txtRes").text(), "");
    test::click(at<QPushButton>("cmdAdd"));
    QVERIFY(resources().empty());
}

void FrmResourcesTest::otherDropsAreRefused() {
    open();
    QVERIFY(!test::dropFiles(*dialog_, {}));
    QVERIFY(!test::dropFiles(*dialog_, {inFolder(""), inFolder("none.png")}));
    QCOMPARE(at<QLabel>("lblFile").text(), "");
}

void FrmResourcesTest::aFileMayBeFilledInBeforeOpening() {
    const QString file = picture("surface.png", Qt::blue);
    dialog_->takeFile(file);
    open();
    QCOMPARE(at<QLabel>("lblFile").text(), file);
    QCOMPARE(at<QLineEdit>("txtRes").text(), "surface");
    QVERIFY(at<QPushButton>("cmdAdd").hasFocus());
    QCOMPARE(centreColor(at<QWidget>("imgPreview")), QColor(Qt::blue));
    QTest::keyClick(dialog_->focusWidget(), Qt::Key_Return);
    QCOMPARE(resources().size(), 1U);
}

void FrmResourcesTest::worksByKeysAlone() {
    open();
    const auto press = [&](Qt::Key key) { QTest::keyClick(dialog_->focusWidget(), key); };
    const auto focus = [&] { return dialog_->focusWidget()->objectName(); };
    prompts_->fileChoices = {{picture("keys.png", Qt::red)}};
    QCOMPARE(focus(), "optCustom");
    QStringList visited;
    for (int i = 0; i < 5; ++i) {
        press(Qt::Key_Tab);
        visited << focus();
    }
    QCOMPARE(visited, (QStringList{"txtRes", "cmdBrowse", "cmdAdd", "lstRes", "cmdOK"}));
    at<QWidget>("cmdBrowse").setFocus();
    press(Qt::Key_Space);
    press(Qt::Key_Return); // Add
    at<QWidget>("optCustom").setFocus();
    press(Qt::Key_Right);
    QTRY_COMPARE(focus(), "optPreset2");
    visited.clear();
    for (int i = 0; i < 3; ++i) {
        press(Qt::Key_Tab);
        visited << focus();
    }
    QCOMPARE(visited, (QStringList{"lstResDef", "txtResDef", "cmdAddDef"}));
    at<QWidget>("lstResDef").setFocus();
    press(Qt::Key_Down);
    at<QWidget>("cmdAddDef").setFocus();
    press(Qt::Key_Return);
    QCOMPARE(resources().size(), 2U);
    QCOMPARE(resources()[0].name, "keys");
    QCOMPARE(resources()[1].name, "PreviewMedia");
    press(Qt::Key_Return);
    QVERIFY(!dialog_->isVisible());
}

void FrmResourcesTest::closes_data() {
    QTest::addColumn<QString>("how");
    for (const char* how : {"OK", "Enter", "Escape", "close button"}) {
        QTest::newRow(how) << how;
    }
}

void FrmResourcesTest::closes() {
    QFETCH(QString, how);
    QTimer::singleShot(0, dialog_.get(), [&] {
        auto& edit = at<QLineEdit>("txtRes");
        if (how == "OK") {
            click(at<QWidget>("cmdOK"));
        } else if (how == "close button") {
            dialog_->close();
        } else {
            QTest::keyClick(&edit, how == "Enter" ? Qt::Key_Return : Qt::Key_Escape);
        }
    });
    QCOMPARE(dialog_->exec(), int(QDialog::Accepted));
}

void FrmResourcesTest::controlsHaveAccessibleNames() {
    QCOMPARE(test::withoutAccessibleName(*dialog_), QStringList());
}

} // namespace tarvel

TARVEL_UI_TEST(tarvel::FrmResourcesTest)
#include "frm_resources_test.moc"
