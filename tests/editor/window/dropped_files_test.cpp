// Files dropped onto the surface, and what the resources dialog keeps of them when it closes.
#include "support/menu_support.h"
#include "support/resources_support.h"
#include "support/ui_test.h"

#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <qtestspontaneevent.h>

using namespace tarvel;
using namespace tarvel::test;

class DroppedFilesTest : public QObject, protected ResourcesFixture {
    Q_OBJECT

  private slots:
    void initTestCase();
    void init() { startAfresh(); }
    void cleanup() { dialog_.reset(); }
    void surfaceRefusesWhatIsNoFile_data();
    void surfaceRefusesWhatIsNoFile();
    void surfaceTakesTheFileAmongOtherThings();
    void eachDroppedFileGetsItsOwnName();
    void closingForgetsWhatWasFilledIn_data();
    void closingForgetsWhatWasFilledIn();
    void hidingByTheSystemForgetsNothing();
    void aFileTakenAfterClosingArrives();

  private:
    void fillIn();
    [[nodiscard]] QStringList filledIn() const;
    [[nodiscard]] QUrl url(const char* name) const { return QUrl::fromLocalFile(inFolder(name)); }
};

void DroppedFilesTest::initTestCase() {
    folder_.folder("folder");
    picture("alpha.png", Qt::red);
    picture("beta.png", Qt::blue);
}

void DroppedFilesTest::surfaceRefusesWhatIsNoFile_data() {
    QTest::addColumn<QList<QUrl>>("urls");
    const QUrl web(QStringLiteral("https://example.org/alpha.png"));
    QTest::newRow("nothing") << QList<QUrl>();
    QTest::newRow("folder") << QList<QUrl>{url("folder")};
    QTest::newRow("missing file") << QList<QUrl>{url("gone.png")};
    QTest::newRow("web address") << QList<QUrl>{web};
    QTest::newRow("all of them") << QList<QUrl>{url("folder"), url("gone.png"), web};
}

void DroppedFilesTest::surfaceRefusesWhatIsNoFile() {
    QFETCH(QList<QUrl>, urls);
    Editor editor;
    editor.show();
    QStringList dialogs;
    QTimer poll; // a dialog would hold the test up
    connect(&poll, &QTimer::timeout, [&] {
        if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
            dialogs << dialog->objectName();
            dialog->reject();
        }
    });
    poll.start(10);
    QVERIFY(!dropUrls(*editor.pic(), urls));
    QMimeData data;
    data.setUrls(urls);
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(editor.pic(), &drop); // by a source that did not ask first
    QVERIFY(!drop.isAccepted());
    settle();
    QCOMPARE(dialogs, QStringList());
    QVERIFY(editor.document() == SkinDocument());
}

void DroppedFilesTest::surfaceTakesTheFileAmongOtherThings() {
    Editor editor;
    editor.show();
    const QList<QUrl> urls = {QUrl(QStringLiteral("https://example.org/a.png")), url("folder"),
                              url("gone.png"), url("beta.png"), url("alpha.png")};
    bool dropped = false;
    QVERIFY(inDialog([&] { dropped = dropUrls(*editor.pic(), urls); }, "frmResources",
                     [&](QWidget& dialog) {
                         QCOMPARE(test::control<QLabel>(dialog, "lblFile").text(),
                                  inFolder("beta.png"));
                     }));
    QVERIFY(dropped);
}

void DroppedFilesTest::eachDroppedFileGetsItsOwnName() {
    Editor editor;
    editor.show();
    const auto drop = [&](const char* name) {
        return [&, name] { dropUrls(*editor.pic(), {url(name)}); };
    };
    QVERIFY(inDialog(drop("alpha.png"), "frmResources", [](QWidget& dialog) {
        QCOMPARE(test::control<QLineEdit>(dialog, "txtRes").text(), QStringLiteral("alpha"));
    }));
    QVERIFY(activate(editor.window)); // the dialog is quite gone then
    settle();
    QVERIFY(inDialog(drop("beta.png"), "frmResources", [](QWidget& dialog) {
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Return); // Add
    }));
    const auto& added = editor.document().settings().resources;
    QCOMPARE(added.size(), std::size_t{1});
    QCOMPARE(added.front(), (Resource{"beta", folder_.document("beta.png"), true, false}));
}

// Every field of both frames.
void DroppedFilesTest::fillIn() {
    open();
    click(at<QWidget>("optPreset"));
    clickRow(at<QListWidget>("lstResDef"), 4);
    typeOver(at<QLineEdit>("txtResDef"), "Disc");
    QVERIFY(dropFiles(*dialog_, {inFolder("alpha.png")}));
    click(at<QWidget>("optPreset"));
    QCOMPARE(filledIn(), (QStringList{"alpha", inFolder("alpha.png"), "Disc", "---", "::ICO_DVD"}));
}

QStringList DroppedFilesTest::filledIn() const {
    QStringList presets;
    for (const QListWidgetItem* item : at<QListWidget>("lstResDef").selectedItems()) {
        presets << item->text();
    }
    return {at<QLineEdit>("txtRes").text(), at<QLabel>("lblFile").text(),
            at<QLineEdit>("txtResDef").text(), at<QLabel>("lblDesc").text(),
            presets.join(QLatin1Char(' '))};
}

void DroppedFilesTest::closingForgetsWhatWasFilledIn_data() {
    QTest::addColumn<QString>("how");
    for (const char* how : {"OK", "Escape", "close button"}) {
        QTest::newRow(how) << how;
    }
}

void DroppedFilesTest::closingForgetsWhatWasFilledIn() {
    QFETCH(QString, how);
    fillIn();
    if (how == "OK") {
        click(at<QWidget>("cmdOK"));
    } else if (how == "Escape") {
        QTest::keyClick(dialog_.get(), Qt::Key_Escape);
    }
    QVERIFY(test::close(*dialog_));
    open();
    QCOMPARE(filledIn(), (QStringList{"", "", "", "", ""}));
    QVERIFY(at<QLabel>("lblFile").toolTip().isEmpty());
    QVERIFY(at<QWidget>("fraCustom").isVisible());
    QVERIFY(!at<QWidget>("fraPreset").isVisible());
    QVERIFY(at<QRadioButton>("optCustom").isChecked());
    QVERIFY(at<QRadioButton>("optCustom2").isChecked());
    QCOMPARE(dialog_->focusWidget()->objectName(), QStringLiteral("optCustom"));
    QVERIFY(at<QPushButton>("cmdOK").isDefault());
    QTest::keyClick(dialog_->focusWidget(), Qt::Key_Return);
    QVERIFY(!dialog_->isVisible());
    QVERIFY(resources().empty());
}

// As when the window is minimised.
void DroppedFilesTest::hidingByTheSystemForgetsNothing() {
    fillIn();
    const QStringList before = filledIn();
    QHideEvent hidden;
    QSpontaneKeyEvent::setSpontaneous(&hidden);
    QApplication::instance()->notify(dialog_.get(), &hidden);
    QCOMPARE(filledIn(), before);
    QVERIFY(at<QWidget>("fraPreset").isVisible());
}

void DroppedFilesTest::aFileTakenAfterClosingArrives() {
    fillIn();
    QVERIFY(test::close(*dialog_));
    dialog_->takeFile(inFolder("beta.png"));
    open();
    QCOMPARE(filledIn(), (QStringList{"beta", inFolder("beta.png"), "", "", ""}));
    QCOMPARE(dialog_->focusWidget()->objectName(), QStringLiteral("cmdAdd"));
    QTest::keyClick(dialog_->focusWidget(), Qt::Key_Return);
    QCOMPARE(resources().size(), std::size_t{1});
    QCOMPARE(resources().front().name, std::string("beta"));
}

TARVEL_UI_TEST(DroppedFilesTest)
#include "dropped_files_test.moc"
