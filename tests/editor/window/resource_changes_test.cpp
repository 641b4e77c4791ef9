// What is done to resources in their dialog, as the rest of the window shows it; all of it one
// step.
#include "document/image_source.h"
#include "support/document_support.h"
#include "support/menu_support.h"
#include "support/temporary_folder.h"
#include "support/ui_test.h"

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

using namespace tarvel;
using namespace tarvel::test;

namespace {

int addImage(Editor& editor, const std::string& source, int screen = 1) {
    Element element;
    element.elementKind = ElementKind::Image;
    element.imageSource = source;
    element.label = "Image: " + source;
    element.elementControl.left = 100;
    element.elementControl.top = 100;
    element.elementControl.width = 200;
    element.elementControl.height = 100;
    attachSource(editor.document(), source, element.elementControl);
    return editor.add(std::move(element), screen);
}

QStringList pickerTexts(Editor& editor) {
    QStringList texts;
    const auto* picker = editor.find<QComboBox>("lstR");
    for (int row = 0; row < picker->count(); ++row) {
        texts << picker->itemText(row);
    }
    return texts;
}

QStringList rowsOf(Editor& editor, int screen) {
    QStringList texts;
    const auto* model = editor.lst(screen)->model();
    for (int row = 0; row < model->rowCount(); ++row) {
        texts << model->index(row, 0).data().toString();
    }
    return texts;
}

void press(QWidget& dialog, Qt::Key key) {
    QVERIFY(dialog.focusWidget() != nullptr);
    QTest::keyClick(dialog.focusWidget(), key);
}

} // namespace

class ResourceChangesTest : public QObject {
    Q_OBJECT

  private slots:
    void aNewNameReachesPickerAndRows();
    void aNewNameOutlastsChangesOfItsRow();
    void elementsGoWithTheirResource();
    void allIsOneStep();
    void aFoundFileIsSeenOnTheSurface();

  private:
    // "sky" with images 1 on "Menu" and 3 on "Saver", "logo" with image 2.
    void fill(Editor& editor) {
        picture("sky.png", Qt::blue);
        picture("logo.png", Qt::red);
        editor.document().addRes("sky", folder_.document("sky.png"));
        editor.document().addRes("logo", folder_.document("logo.png"));
        addImage(editor, "sky");
        addImage(editor, "logo");
        addImage(editor, "sky", 3);
        editor.document().setCurrentLayout(1);
        editor.show();
    }
    QString picture(const char* name, const QColor& color) {
        QImage image(20, 10, QImage::Format_RGB32);
        image.fill(color);
        const QString path = QString::fromStdString((folder_ / name).string());
        if (!image.save(path)) {
            qFatal("cannot write %s", qPrintable(path));
        }
        return path;
    }

    TemporaryFolder folder_;
};

void ResourceChangesTest::aNewNameReachesPickerAndRows() {
    Editor editor;
    fill(editor);
    QVERIFY(inDialog(editor, "mnuResource", "frmResources", [&](QWidget& dialog) {
        clickRow(control<QListWidget>(dialog, "lstRes"), 0);
        press(dialog, Qt::Key_F2);
        QTest::keyClicks(dialog.focusWidget(), "night");
        press(dialog, Qt::Key_Return);
        QTRY_COMPARE(pickerTexts(editor), (QStringList{"night", "logo"}));
    }));
    QCOMPARE(rowsOf(editor, 1), (QStringList{"Image: night", "Image: logo"}));
    QCOMPARE(rowsOf(editor, 3), QStringList{"Image: night"});
}

void ResourceChangesTest::aNewNameOutlastsChangesOfItsRow() {
    Editor editor;
    fill(editor);
    QVERIFY(inDialog(editor, "mnuResource", "frmResources", [&](QWidget& dialog) {
        auto& list = control<QListWidget>(dialog, "lstRes");
        clickRow(list, 0);
        press(dialog, Qt::Key_F2);
        QTest::keyClicks(dialog.focusWidget(), "night");
        list.item(0)->setData(Qt::UserRole, 1); // as when a thumbnail arrives
        press(dialog, Qt::Key_Return);
        QTRY_COMPARE(pickerTexts(editor), (QStringList{"night", "logo"}));
    }));
}

void ResourceChangesTest::elementsGoWithTheirResource() {
    Editor editor;
    fill(editor);
    editor.selectRow(1, 0);
    editor.prompts.answers = {Prompts::Answer::Yes};
    QVERIFY(inDialog(editor, "mnuResource", "frmResources", [&](QWidget& dialog) {
        clickRow(control<QListWidget>(dialog, "lstRes"), 0);
        press(dialog, Qt::Key_Delete);
    }));
    QCOMPARE(editor.prompts.questions,
             QStringList{"2 elements use \"sky\". Remove them together with the resource?"});
    QCOMPARE(pickerTexts(editor), QStringList{"logo"});
    QCOMPARE(rowsOf(editor, 1), QStringList{"Image: logo"});
    QCOMPARE(rowsOf(editor, 3), QStringList());
    QCOMPARE(editor.selectedRow(1), -1);
}

void ResourceChangesTest::allIsOneStep() {
    Editor editor;
    fill(editor);
    const SkinDocument before = editor.document();
    editor.prompts.fileChoices = {{picture("other.png", Qt::green)},
                                  {picture("a.png", Qt::red), picture("b.png", Qt::red)}};
    editor.prompts.answers = {Prompts::Answer::Yes};
    QVERIFY(inDialog(editor, "mnuResource", "frmResources", [&](QWidget& dialog) {
        auto& list = control<QListWidget>(dialog, "lstRes");
        clickRow(list, 0);
        click(control<QPushButton>(dialog, "cmdReplace"));
        click(control<QPushButton>(dialog, "cmdBrowse"));
        clickRow(list, 1);
        click(control<QPushButton>(dialog, "cmdRemove"));
        clickRow(list, 0);
        press(dialog, Qt::Key_F2);
        QTest::keyClicks(dialog.focusWidget(), "night");
        // OK takes what is typed.
    }));
    const SkinDocument after = editor.document();
    QCOMPARE(pickerTexts(editor), (QStringList{"night", "a", "b"}));
    QCOMPARE(rowsOf(editor, 1), QStringList{"Image: night"});
    QCOMPARE(editor.control(1).file, folder_.document("other.png"));
    QCOMPARE(editor.caption("mnuUndo"), QString("Undo change resources"));
    editor.entry("mnuUndo")->trigger();
    QVERIFY(editor.document().holdsTheSame(before));
    QCOMPARE(pickerTexts(editor), (QStringList{"sky", "logo"}));
    QVERIFY(inDialog(editor, "mnuResource", "frmResources", [&](QWidget& dialog) {
        QCOMPARE(rowTexts(control<QListWidget>(dialog, "lstRes")), (QStringList{"sky", "logo"}));
    }));
    editor.entry("mnuRedo")->trigger();
    QVERIFY(editor.document().holdsTheSame(after));
}

void ResourceChangesTest::aFoundFileIsSeenOnTheSurface() {
    Editor editor;
    fill(editor);
    editor.document().addRes("gone", folder_.document("gone.png"));
    const int id = addImage(editor, "gone");
    folder_.folder("below");
    picture("below/GONE.png", Qt::green);
    editor.prompts.folders = {QString::fromStdString((folder_ / "below").string())};
    const auto middle = [&] {
        const QImage shown = editor.pic()->grab().toImage();
        return shown.pixelColor(shown.width() * 110 / 640, shown.height() * 105 / 480);
    };
    QVERIFY(middle() != QColor(Qt::green));
    QVERIFY(inDialog(editor, "mnuResource", "frmResources",
                     [](QWidget& dialog) { click(control<QPushButton>(dialog, "cmdLocate")); }));
    QCOMPARE(editor.prompts.messages, QStringList{"Missing files that were found: 1 of 1."});
    QCOMPARE(editor.control(id).file, folder_.document("below/GONE.png"));
    QTRY_COMPARE(middle(), QColor(Qt::green));
}

TARVEL_UI_TEST(ResourceChangesTest)
#include "resource_changes_test.moc"
