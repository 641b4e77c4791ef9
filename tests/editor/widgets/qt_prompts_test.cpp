// The questions that the program asks by Qt's dialogs, answered in them.
#include "support/dialog_support.h"
#include "support/ui_test.h"
#include "widgets/qt_prompts.h"
#include "widgets/remembered.h"

#include <QColorDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFontDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include <functional>

using namespace tarvel;
using namespace tarvel::test;

namespace {

// Asks, and works in the dialog of that kind that comes. False when another or none came.
template <class Dialog>
bool asking(const std::function<void()>& ask, const std::function<void(Dialog&)>& work) {
    bool right = false;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr || !dialog->isVisible()) {
            return;
        }
        poll.stop();
        if (auto* wanted = qobject_cast<Dialog*>(dialog)) {
            right = true;
            work(*wanted);
        }
        if (QApplication::activeModalWidget() == dialog) {
            right = false; // it would hold the test up
            dialog->reject();
        }
    });
    poll.start(10);
    ask();
    return right;
}

void press(QDialog& dialog, QDialogButtonBox::StandardButton button) {
    click(*dialog.findChild<QDialogButtonBox*>()->button(button));
}

// Types names into a file dialog and takes them.
void take(QFileDialog& dialog, const QString& names,
          QDialogButtonBox::StandardButton button = QDialogButtonBox::Open) {
    control<QLineEdit>(dialog, "fileNameEdit").setText(names);
    press(dialog, button);
}

void cancel(QFileDialog& dialog) {
    press(dialog, QDialogButtonBox::Cancel);
}

} // namespace

class QtPromptsTest : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase();
    void init() { owner_.show(); }
    void filtersAreSpeltAsQtDoes_data();
    void filtersAreSpeltAsQtDoes();
    void messageIsPlainTextWithOkOnly();
    void questionHasThreeAnswers_data();
    void questionHasThreeAnswers();
    void inputGivesTheLine();
    void oneFile();
    void severalFiles();
    void cancelledFileChooserGivesNone();
    void folderIsChosen();
    void choosersStartWhereTheLastOneEnded();
    void choosersStartWhereATypedPathLed();
    void choosersStartWhereThoseOfARunBeforeEnded();
    void colorIsChosen();
    void fontIsChosen();

  private:
    [[nodiscard]] QString path(const char* name) const { return folder_.filePath(name); }

    QTemporaryDir folder_;
    QWidget owner_;
};

void QtPromptsTest::initTestCase() {
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    for (const char* name : {"a.jpg", "b.jpg", "sub/c.jpg"}) {
        QDir().mkpath(QFileInfo(path(name)).path());
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
}

void QtPromptsTest::filtersAreSpeltAsQtDoes_data() {
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QString>("spelt");
    QTest::newRow("none") << ""
                          << "";
    QTest::newRow("one") << "All files|*"
                         << "All files (*)";
    QTest::newRow("two") << "JPG|*.jpg|BMP|*.bmp"
                         << "JPG (*.jpg);;BMP (*.bmp)";
    QTest::newRow("several endings") << "Music|*.wma *.mp3|All files|*"
                                     << "Music (*.wma *.mp3);;All files (*)";
    QTest::newRow("cut off") << "JPG|*.jpg|BMP"
                             << "JPG (*.jpg)";
}

void QtPromptsTest::filtersAreSpeltAsQtDoes() {
    QFETCH(QString, filter);
    QFETCH(QString, spelt);
    QCOMPARE(qtFilter(filter), spelt);
}

void QtPromptsTest::messageIsPlainTextWithOkOnly() {
    QtPrompts prompts;
    const QString text = QStringLiteral("Cannot read <b>x</b> & more\nat all");
    QVERIFY(asking<QMessageBox>([&] { prompts.message(&owner_, text); },
                                [&](QMessageBox& box) {
                                    QCOMPARE(box.text(), text);
                                    QCOMPARE(box.textFormat(), Qt::PlainText);
                                    QCOMPARE(box.standardButtons(), QMessageBox::Ok);
                                    QCOMPARE(box.buttons().size(), 1);
                                    QCOMPARE(box.parentWidget(), &owner_);
                                    QVERIFY(box.isModal());
                                    click(*box.button(QMessageBox::Ok));
                                }));
    QVERIFY(asking<QMessageBox>([&] { prompts.message(nullptr, text); },
                                [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); }));
}

void QtPromptsTest::questionHasThreeAnswers_data() {
    QTest::addColumn<int>("button");
    QTest::addColumn<int>("answer");
    QTest::newRow("Yes") << int(QMessageBox::Yes) << int(Prompts::Answer::Yes);
    QTest::newRow("No") << int(QMessageBox::No) << int(Prompts::Answer::No);
    QTest::newRow("Cancel") << int(QMessageBox::Cancel) << int(Prompts::Answer::Cancel);
    QTest::newRow("Escape") << 0 << int(Prompts::Answer::Cancel);
}

void QtPromptsTest::questionHasThreeAnswers() {
    QFETCH(int, button);
    QFETCH(int, answer);
    QtPrompts prompts;
    auto given = Prompts::Answer::Yes;
    const auto work = [&](QMessageBox& box) {
        QCOMPARE(box.text(), QStringLiteral("Save <it>?"));
        QCOMPARE(box.textFormat(), Qt::PlainText);
        QCOMPARE(box.standardButtons(), QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
        if (button == 0) {
            QTest::keyClick(&box, Qt::Key_Escape);
        } else {
            click(*box.button(static_cast<QMessageBox::StandardButton>(button)));
        }
    };
    QVERIFY(asking<QMessageBox>([&] { given = prompts.question(&owner_, "Save <it>?"); }, work));
    QCOMPARE(int(given), answer);
}

void QtPromptsTest::inputGivesTheLine() {
    QtPrompts prompts;
    QString line;
    const auto ask = [&] { line = prompts.input(&owner_, "Enter name of field"); };
    QVERIFY(asking<QInputDialog>(ask, [&](QInputDialog& dialog) {
        QCOMPARE(dialog.labelText(), QStringLiteral("Enter name of field"));
        QCOMPARE(dialog.textValue(), QString());
        QCOMPARE(dialog.parentWidget(), &owner_);
        QTest::keyClicks(dialog.findChild<QLineEdit*>(), "Skin Web Page");
        press(dialog, QDialogButtonBox::Ok);
    }));
    QCOMPARE(line, QStringLiteral("Skin Web Page"));
    QVERIFY(asking<QInputDialog>(ask, [](QInputDialog& dialog) {
        QTest::keyClicks(dialog.findChild<QLineEdit*>(), "forgotten");
        press(dialog, QDialogButtonBox::Cancel);
    }));
    QCOMPARE(line, QString());
}

void QtPromptsTest::oneFile() {
    QtPrompts prompts;
    QStringList chosen;
    const auto ask = [&] { chosen = prompts.files(&owner_, "JPG|*.jpg|BMP|*.bmp", false); };
    QVERIFY(asking<QFileDialog>(ask, [&](QFileDialog& dialog) {
        QCOMPARE(dialog.nameFilters(), (QStringList{"JPG (*.jpg)", "BMP (*.bmp)"}));
        QCOMPARE(dialog.selectedNameFilter(), QStringLiteral("JPG (*.jpg)"));
        QCOMPARE(dialog.fileMode(), QFileDialog::ExistingFile);
        QCOMPARE(dialog.acceptMode(), QFileDialog::AcceptOpen);
        QCOMPARE(dialog.parentWidget(), &owner_);
        dialog.setDirectory(folder_.path());
        take(dialog, "a.jpg");
    }));
    QCOMPARE(chosen, QStringList(path("a.jpg")));
}

void QtPromptsTest::severalFiles() {
    QtPrompts prompts;
    QStringList chosen;
    const auto ask = [&] { chosen = prompts.files(&owner_, {}, true); };
    QVERIFY(asking<QFileDialog>(ask, [&](QFileDialog& dialog) {
        QCOMPARE(dialog.fileMode(), QFileDialog::ExistingFiles);
        dialog.setDirectory(folder_.path());
        take(dialog, "\"a.jpg\" \"b.jpg\"");
    }));
    QCOMPARE(chosen, (QStringList{path("a.jpg"), path("b.jpg")}));
}

void QtPromptsTest::cancelledFileChooserGivesNone() {
    QtPrompts prompts;
    QStringList chosen = {"something"};
    const auto ask = [&] { chosen = prompts.files(&owner_, "JPG|*.jpg", true); };
    QVERIFY(asking<QFileDialog>(ask, [&](QFileDialog& dialog) {
        dialog.setDirectory(folder_.path());
        cancel(dialog);
    }));
    QCOMPARE(chosen, QStringList());
}

void QtPromptsTest::folderIsChosen() {
    QtPrompts prompts;
    QString chosen;
    const auto ask = [&] { chosen = prompts.folder(&owner_, "Select skin folder to open"); };
    QVERIFY(asking<QFileDialog>(ask, [&](QFileDialog& dialog) {
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Select skin folder to open"));
        QCOMPARE(dialog.fileMode(), QFileDialog::Directory);
        QVERIFY(dialog.testOption(QFileDialog::ShowDirsOnly));
        QCOMPARE(dialog.parentWidget(), &owner_);
        take(dialog, path("sub"));
    }));
    QCOMPARE(chosen, path("sub"));
    QVERIFY(asking<QFileDialog>(ask, cancel));
    QCOMPARE(chosen, QString());
}

void QtPromptsTest::choosersStartWhereTheLastOneEnded() {
    QtPrompts prompts;
    QString start;
    const auto noteAndCancel = [&](QFileDialog& dialog) {
        start = dialog.directory().absolutePath();
        dialog.setDirectory(QDir::rootPath()); // to no effect
        cancel(dialog);
    };
    const auto askFiles = [&] { prompts.files(&owner_, {}, false); };
    const auto askFolder = [&] { prompts.folder(&owner_, "Folder"); };
    QVERIFY(asking<QFileDialog>(askFiles, [&](QFileDialog& dialog) {
        dialog.setDirectory(folder_.path());
        take(dialog, "a.jpg");
    }));
    QVERIFY(asking<QFileDialog>(askFiles, noteAndCancel));
    QCOMPARE(start, folder_.path());
    QVERIFY(asking<QFileDialog>(askFolder, noteAndCancel));
    QCOMPARE(start, folder_.path());
    QVERIFY(
        asking<QFileDialog>(askFolder, [&](QFileDialog& dialog) { take(dialog, path("sub")); }));
    QVERIFY(asking<QFileDialog>(askFiles, noteAndCancel));
    QCOMPARE(start, path("sub"));
    QtPrompts another; // within a run of the program there is only one
    QVERIFY(asking<QFileDialog>([&] { another.files(&owner_, {}, false); }, noteAndCancel));
    QVERIFY(start != path("sub"));
}

void QtPromptsTest::choosersStartWhereATypedPathLed() {
    struct Case {
        const char* shown; // folder when the path is typed
        QString typed;
    };
    for (const Case& c : {Case{"", path("sub/c.jpg")}, Case{"", "sub/c.jpg"},
                          Case{"", "\"" + path("sub/c.jpg") + "\""}}) {
        QtPrompts prompts;
        QStringList chosen;
        const auto ask = [&] { chosen = prompts.files(&owner_, {}, false); };
        QVERIFY(asking<QFileDialog>(ask, [&](QFileDialog& dialog) {
            dialog.setDirectory(path(c.shown));
            take(dialog, c.typed);
        }));
        QCOMPARE(chosen, QStringList(path("sub/c.jpg")));
        QString start;
        QVERIFY(asking<QFileDialog>(ask, [&](QFileDialog& dialog) {
            start = dialog.directory().absolutePath();
            cancel(dialog);
        }));
        QCOMPARE(start, path("sub"));
    }
}

void QtPromptsTest::choosersStartWhereThoseOfARunBeforeEnded() {
    const QString file = path("settings.ini");
    QString start;
    const auto startOf = [&](QtPrompts& prompts) {
        start.clear();
        return asking<QFileDialog>([&] { prompts.folder(&owner_, "Folder"); },
                                   [&](QFileDialog& dialog) {
                                       start = dialog.directory().absolutePath();
                                       cancel(dialog);
                                   });
    };
    {
        Remembered remembered(file);
        QtPrompts prompts(&remembered);
        QVERIFY(asking<QFileDialog>([&] { prompts.files(&owner_, {}, false); },
                                    [&](QFileDialog& dialog) { take(dialog, path("sub/c.jpg")); }));
    }
    Remembered remembered(file);
    QtPrompts prompts(&remembered);
    QVERIFY(startOf(prompts));
    QCOMPARE(start, path("sub"));
    QVERIFY(asking<QFileDialog>([&] { prompts.folder(&owner_, "Folder"); },
                                [&](QFileDialog& dialog) { take(dialog, folder_.path()); }));
    QCOMPARE(remembered.lastFolder(), folder_.path());
    remembered.rememberLastFolder(path("gone")); // meanwhile
    QVERIFY(startOf(prompts));
    QVERIFY2(QDir(start).exists(), qPrintable(start));
}

void QtPromptsTest::colorIsChosen() {
    QtPrompts prompts;
    std::optional<QColor> chosen;
    const auto ask = [&] { chosen = prompts.color(&owner_, QColor(1, 2, 3)); };
    QVERIFY(asking<QColorDialog>(ask, [&](QColorDialog& dialog) {
        QCOMPARE(dialog.currentColor(), QColor(1, 2, 3));
        QCOMPARE(dialog.parentWidget(), &owner_);
        dialog.setCurrentColor(QColor(200, 100, 50));
        press(dialog, QDialogButtonBox::Ok);
    }));
    QCOMPARE(chosen, std::optional(QColor(200, 100, 50)));
    QVERIFY(asking<QColorDialog>(
        ask, [](QColorDialog& dialog) { press(dialog, QDialogButtonBox::Cancel); }));
    QVERIFY(!chosen);
}

void QtPromptsTest::fontIsChosen() {
    QtPrompts prompts;
    std::optional<QFont> chosen;
    QFont initial = QApplication::font();
    initial.setPointSize(23);
    const auto ask = [&] { chosen = prompts.font(&owner_, initial); };
    QVERIFY(asking<QFontDialog>(ask, [&](QFontDialog& dialog) {
        QCOMPARE(dialog.currentFont().pointSize(), 23);
        QCOMPARE(dialog.parentWidget(), &owner_);
        press(dialog, QDialogButtonBox::Ok);
    }));
    QVERIFY(chosen);
    QCOMPARE(chosen->pointSize(), 23);
    QVERIFY(asking<QFontDialog>(
        ask, [](QFontDialog& dialog) { press(dialog, QDialogButtonBox::Cancel); }));
    QVERIFY(!chosen);
}

TARVEL_UI_TEST(QtPromptsTest)
#include "qt_prompts_test.moc"
