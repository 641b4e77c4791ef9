// A whole sitting without a mouse: a skin drawn, set up, saved, loaded and undone by keys alone.
#include "support/behaviour_editor.h"
#include "support/focus_keys.h"
#include "support/ui_test.h"
#include "widgets/mnemonics.h"

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>

using namespace tarvel;
using namespace tarvel::test;

namespace {

void type(const QString& text) {
    QVERIFY(QApplication::focusWidget() != nullptr);
    QTest::keyClicks(QApplication::focusWidget(), text);
}

void toSurface() {
    constexpr int parts = 4;
    for (int i = 0; i < parts && focusName() != "Pic"; ++i) {
        press(Qt::Key_F6);
    }
    QCOMPARE(focusName(), QString("Pic"));
}

/// Leads the focus there: by F6 to a part, then by Tab. Not over the surface, where Tab selects.
void goTo(const QString& name) {
    constexpr int otherParts = 3;
    constexpr int mostControls = 40;
    for (int part = 1; part <= otherParts; ++part) {
        toSurface();
        for (int i = 0; i < part; ++i) {
            press(Qt::Key_F6);
        }
        for (int i = 0; i < mostControls && focusName() != name && focusName() != "Pic"; ++i) {
            press(Qt::Key_Tab);
        }
        if (focusName() == name) {
            return;
        }
    }
    QCOMPARE(focusName(), name);
}

/// In a dialog or an open panel: by Tab alone.
void tabTo(const QString& name) {
    constexpr int mostControls = 40;
    for (int i = 0; i < mostControls && focusName() != name; ++i) {
        press(Qt::Key_Tab);
    }
    QCOMPARE(focusName(), name);
}

} // namespace

class KeyboardSessionTest : public QObject {
    Q_OBJECT

  private slots:
    void aWholeSitting();

  private:
    void addPicture();
    void fillInformation();
    void drawOneOfEach();
    void moveSizeAndColor();
    void lockAndStack();
    void addBehaviours();
    void saveAndLoad();
    void undoEverything();

    void choose(const char* name);
    void withDialog(const char* entry, const QString& name, const std::function<void()>& work);
    void drawWith(const char* tool, const std::function<void()>& choose);
    [[nodiscard]] int row(int id) const { return document().rowOf(1, id); }
    [[nodiscard]] SkinDocument& document() const { return editor_->document(); }
    [[nodiscard]] const Element& element(int id) const { return document().element(id); }

    std::unique_ptr<BehaviourEditor> editor_;
    QString picture_;
    QString folder_;
};

/// An entry of the menu bar, by its letters.
void KeyboardSessionTest::choose(const char* name) {
    QAction* entry = editor_->entry(name);
    QMenu* menu = menuOf(*editor_, entry);
    QVERIFY(menu != nullptr);
    const auto letter = [](const QString& text) { return mnemonicOf(text).toLatin1(); };
    QTest::keyClick(editor_->window.windowHandle(), letter(menu->menuAction()->text()),
                    Qt::AltModifier);
    QTRY_VERIFY(menu->isVisible());
    QTest::keyClick(menu, letter(entry->text()));
    QTRY_VERIFY(!menu->isVisible());
}

void KeyboardSessionTest::withDialog(const char* entry, const QString& name,
                                     const std::function<void()>& work) {
    bool done = false;
    QTimer poll;
    connect(&poll, &QTimer::timeout, this, [&] {
        QWidget* dialog = QApplication::activeModalWidget();
        if (dialog == nullptr || dialog->objectName() != name) {
            return;
        }
        poll.stop();
        QVERIFY(activate(*dialog)); // as the application knows it, too
        work();
        press(Qt::Key_Escape);
        done = !dialog->isVisible();
        if (!done) {
            static_cast<QDialog*>(dialog)->done(0);
        }
    });
    poll.start(10);
    choose(entry);
    QTRY_VERIFY(!poll.isActive());
    QVERIFY(done);
    QVERIFY(activate(editor_->window));
    settle();
}

void KeyboardSessionTest::drawWith(const char* tool, const std::function<void()>& choose) {
    goTo(QLatin1String(tool));
    press(Qt::Key_Space);
    QVERIFY(editor_->find<QAbstractButton>(tool)->isChecked());
    QTRY_VERIFY(editor_->find<QWidget>("picBox")->isHidden());
    choose();
    toSurface();
    press(Qt::Key_Return);
}

void KeyboardSessionTest::addPicture() {
    picture_ = editor_->path("logo.png");
    QImage image(40, 30, QImage::Format_ARGB32);
    image.fill(Qt::green);
    QVERIFY(image.save(picture_));
    editor_->prompts.fileChoices = {{picture_}};
    withDialog("mnuResource", "frmResources", [] {
        tabTo("cmdBrowse");
        press(Qt::Key_Space);
        tabTo("txtRes");
        press(Qt::Key_A, Qt::ControlModifier);
        type("sky");
        tabTo("cmdAdd");
        press(Qt::Key_Space);
    });
    QCOMPARE(document().settings().resources.size(), std::size_t{1});
}

void KeyboardSessionTest::fillInformation() {
    editor_->prompts.inputs = {"Web site"};
    withDialog("mnuInfo", "frmInfo", [] {
        QCOMPARE(focusName(), QString("txtName"));
        type("Keys");
        tabTo("cmdAdd");
        press(Qt::Key_Space);
        QCOMPARE(focusName(), QString("txtData")); // of the new field
        type("example.org");
    });
    QCOMPARE(document().settings().skinName, std::string("Keys"));
    QCOMPARE(document().settings().information.back().name, std::string("Web_site"));
    QCOMPARE(document().settings().information.back().value, std::string("example.org"));
}

// What the panel holds for the kind is chosen between tool and surface.
void KeyboardSessionTest::drawOneOfEach() {
    drawWith("optBox", [] {});
    drawWith("optLine", [] {});
    drawWith("optImg", [] {
        goTo("lstR");
        press(Qt::Key_Down);
    });
    drawWith("optText", [] {
        goTo("txtText");
        type("Hello");
    });
    drawWith("optQor", [] {});
    QStringList kinds;
    for (int row = 0; row < document().rowCount(1); ++row) {
        kinds << QString::number(
            static_cast<int>(element(document().itemData(1, row)).elementKind));
    }
    QCOMPARE(kinds, QStringList({"1", "2", "3", "4", "5"}));
    QCOMPARE(element(3).imageSource, std::string("sky"));
}

void KeyboardSessionTest::moveSizeAndColor() {
    press(Qt::Key_Escape);
    QCOMPARE(focusName(), QString("Pic"));
    press(Qt::Key_Tab);
    QCOMPARE(editor_->window.curNum(), 1);
    const ElementControl before = editor_->control(1);
    press(Qt::Key_Left);
    press(Qt::Key_Up, Qt::ShiftModifier);
    QCOMPARE(editor_->control(1).left, before.left - 1);
    QCOMPARE(editor_->control(1).top, before.top - 9);
    goTo("txtW");
    type("200");
    press(Qt::Key_Tab);
    QCOMPARE(focusName(), QString("txtH"));
    type("90");
    press(Qt::Key_Return);
    QCOMPARE(editor_->control(1).width, 200.0F);
    QCOMPARE(editor_->control(1).height, 90.0F);
    editor_->prompts.colors = {QColor(10, 20, 30)};
    goTo("fColor");
    press(Qt::Key_Space);
    QTest::keyClick(editor_->window.windowHandle(), 'p', Qt::AltModifier); // Apply Changes
    QTRY_COMPARE(editor_->control(1).fillColor, makeColor(10, 20, 30));
}

void KeyboardSessionTest::lockAndStack() {
    goTo("lst(1)");
    press(Qt::Key_End);
    QCOMPARE(editor_->window.curNum(), 5);
    choose("mnuBackward");
    QCOMPARE(row(5), 3);
    press(Qt::Key_Home);
    press(Qt::Key_F10, Qt::ShiftModifier); // the menu of the element
    auto* right = editor_->find<QMenu>("mnuRight");
    QTRY_VERIFY(right->isVisible());
    const QString lock = editor_->entry("mnuLocked")->text();
    QTest::keyClick(right, mnemonicOf(lock).toLatin1());
    QVERIFY(element(1).elementLocked);
    QVERIFY(!element(2).elementLocked);
}

void KeyboardSessionTest::addBehaviours() {
    goTo("lst(1)");
    press(Qt::Key_Down);
    QCOMPARE(editor_->window.curNum(), 2);
    const auto inPanel = [&](int index, const std::function<void()>& work) {
        goTo(QStringLiteral("cmdModifier(%1)").arg(index));
        press(Qt::Key_Space);
        QTRY_VERIFY(editor_->panel(index).isVisible());
        work();
        press(Qt::Key_Return);
        QTRY_VERIFY(!editor_->panel(index).isVisible());
    };
    inPanel(0, [] {
        tabTo("lstMods");
        press(Qt::Key_Down);
    });
    inPanel(1, [] {
        tabTo("txtTimer(0)");
        type("1500");
    });
    inPanel(2, [] {
        tabTo("lstCond");
        press(Qt::Key_Down);
    });
    QVERIFY(!element(2).elementModifiers->empty());
    QCOMPARE(element(2).elementTimers[0], 1500);
    QCOMPARE(element(2).elementCondition, std::string("ItemPrev"));
}

void KeyboardSessionTest::saveAndLoad() {
    folder_ = editor_->newFolder("saved");
    editor_->prompts.folders = {folder_, folder_};
    QStringList dialogs;
    closeNextDialog(dialogs);
    press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(dialogs, QStringList({"frmInstructions"}));
    QVERIFY(QFile::exists(folder_ + "/QOR_Skin.xml") && QFile::exists(folder_ + "/Media/logo.png"));
    QVERIFY(activate(editor_->window));
    settle();
    press(Qt::Key_O, Qt::ControlModifier); // adds to what is open
    QTRY_COMPARE(document().rowCount(1), 10);
}

void KeyboardSessionTest::undoEverything() {
    editor_->find<QWidget>("Pic")->setFocus();
    press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(document().rowCount(1), 5);
    constexpr int mostSteps = 60;
    for (int i = 0; i < mostSteps && editor_->entry("mnuUndo")->isEnabled(); ++i) {
        press(Qt::Key_Z, Qt::ControlModifier);
    }
    QCOMPARE(document().rowCount(1), 0);
    QVERIFY(document().settings().resources.empty() && document().settings().skinName.empty());
    press(Qt::Key_Y, Qt::ControlModifier);
    QCOMPARE(document().settings().resources.size(), std::size_t{1});
}

void KeyboardSessionTest::aWholeSitting() {
    editor_ = std::make_unique<BehaviourEditor>(0);
    addPicture();
    fillInformation();
    drawOneOfEach();
    moveSizeAndColor();
    lockAndStack();
    addBehaviours();
    saveAndLoad();
    undoEverything();
    editor_.reset();
}

TARVEL_UI_TEST(KeyboardSessionTest)
#include "keyboard_session_test.moc"
