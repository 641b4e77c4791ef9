// The panel of the item menu's settings over several selected menus.
#include "support/captions.h"
#include "support/dialog_support.h"
#include "support/editor.h"
#include "support/ui_test.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace tarvel;
using namespace tarvel::test;

namespace {

// Menu 1 with the settings of a new one, and menu 2 with other ones, both selected; 1 leads.
struct TwoMenus : Editor {
    TwoMenus() {
        add(menu({}));
        add(menu({.thumbnailsVisible = false,
                  .scrollFactor = 9,
                  .titleAlignment = "Center",
                  .selectedTitleColor = "255"}));
        show();
        window.document().setCurrentLayout(1);
        pic()->setFocus();
        QTest::keyClick(pic(), Qt::Key_A, Qt::ControlModifier);
        ctrlClick(2); // both are there, 1 leads
        ctrlClick(2);
        ctrlClick(1);
        ctrlClick(1);
    }
    static Element menu(const MenuSettings& settings) {
        Element element;
        element.elementKind = ElementKind::Menu;
        element.label = "Menu";
        element.elementControl.kind = ControlKind::qor;
        element.elementControl.width = 100;
        element.elementControl.height = 100;
        element.menuSettings = SharedValue(settings);
        return element;
    }
    void ctrlClick(int id) {
        QListView* list = lst(1);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::ControlModifier,
                          list->visualRect(list->model()->index(id - 1, 0)).center());
    }
    const MenuSettings& settings(int id) { return *document().element(id).menuSettings; }
    void apply() { test::click(*find<QPushButton>("cmdApply")); }
};

} // namespace

class SeveralMenusTest : public QObject {
    Q_OBJECT

  private slots:
    void whatDiffersIsVarious();
    void oneOfThemShowsItsOwn();
    void aBoxThatWasVariousGoesToAll_data();
    void aBoxThatWasVariousGoesToAll();
    void onlyWhatWasChosenGoesToAll();
};

void SeveralMenusTest::whatDiffersIsVarious() {
    TwoMenus editor;
    QCOMPARE(editor.window.curNum(), 1);
    const auto* box = editor.find<QCheckBox>("chkThumbVis");
    QCOMPARE(box->checkState(), Qt::PartiallyChecked);
    QCOMPARE(box->accessibleDescription(), QString("various"));
    QCOMPARE(editor.find<QCheckBox>("chkSmoothScroll")->checkState(), Qt::Checked);
    const auto* factor = editor.find<QLineEdit>("txtScrollFactor");
    QCOMPARE(factor->text(), QString());
    QCOMPARE(factor->placeholderText(), QString("various"));
    QVERIFY(factor->fontMetrics().horizontalAdvance("various") < factor->width());
    QCOMPARE(editor.find<QLineEdit>("txtNumItems")->text(), QString("5"));
    const auto* titles = editor.find<QComboBox>("cmbTitleAlign");
    QCOMPARE(titles->currentIndex(), -1);
    QCOMPARE(titles->placeholderText(), QString("various"));
    QCOMPARE(editor.find<QComboBox>("cmbDescAlign")->currentText(), QString("Right"));
    QCOMPARE(editor.find<QLabel>("lblSelTitle")->text(), QString("various"));
    QCOMPARE(editor.find<QLabel>("lblUnselTitle")->text(), QString("Unselected Title"));
    QVERIFY(!editor.find<QPushButton>("cmdApply")->font().bold());
    const SkinDocument before = editor.document();
    editor.apply();
    QVERIFY(editor.document() == before);
}

void SeveralMenusTest::oneOfThemShowsItsOwn() {
    TwoMenus editor;
    editor.ctrlClick(1); // only 2 is left
    QCOMPARE(editor.window.curNum(), 2);
    const auto* box = editor.find<QCheckBox>("chkThumbVis");
    QCOMPARE(box->checkState(), Qt::Unchecked);
    QVERIFY(!box->isTristate());
    QCOMPARE(box->accessibleDescription(), QString());
    QCOMPARE(editor.find<QLineEdit>("txtScrollFactor")->text(), QString("9"));
    QCOMPARE(editor.find<QComboBox>("cmbTitleAlign")->currentText(), QString("Center"));
    QCOMPARE(editor.find<QLabel>("lblSelTitle")->text(), QString("Selected Title"));
}

void SeveralMenusTest::aBoxThatWasVariousGoesToAll_data() {
    QTest::addColumn<int>("clicks");
    QTest::addColumn<bool>("on");
    QTest::newRow("as the leading one has it") << 1 << true;
    QTest::newRow("as the other one has it") << 2 << false;
    QTest::newRow("there and back") << 3 << true;
}

void SeveralMenusTest::aBoxThatWasVariousGoesToAll() {
    QFETCH(const int, clicks);
    QFETCH(const bool, on);
    TwoMenus editor;
    auto* box = editor.find<QCheckBox>("chkThumbVis");
    for (int i = 0; i < clicks; ++i) {
        QTest::keyClick(box, Qt::Key_Space);
    }
    QCOMPARE(box->checkState(), on ? Qt::Checked : Qt::Unchecked);
    QVERIFY(editor.find<QPushButton>("cmdApply")->font().bold());
    editor.apply();
    for (const int id : {1, 2}) {
        QCOMPARE(editor.settings(id).thumbnailsVisible, on);
    }
    QCOMPARE(int{editor.settings(2).scrollFactor}, 9);
}

void SeveralMenusTest::onlyWhatWasChosenGoesToAll() {
    TwoMenus editor;
    const SkinDocument before = editor.document();
    auto* titles = editor.find<QComboBox>("cmbTitleAlign");
    titles->setFocus();
    QTest::keyClick(titles, Qt::Key_Down);
    QCOMPARE(titles->currentText(), QString("Left"));
    editor.prompts.colors << QColor(1, 2, 3);
    QTest::mouseClick(editor.find<QWidget>("colSelTitle"), Qt::LeftButton);
    QCOMPARE(editor.find<QLabel>("lblSelTitle")->text(), QString("Selected Title"));
    editor.apply();
    MenuSettings first = *before.element(1).menuSettings;
    MenuSettings second = *before.element(2).menuSettings;
    first.selectedTitleColor = "197121"; // its titles are left already, as it spells it
    second.selectedTitleColor = "197121";
    second.titleAlignment = "Left";
    QVERIFY(editor.settings(1) == first);
    QVERIFY(editor.settings(2) == second);
    QCOMPARE(captionOf(*editor.entry("mnuUndo")), QString("Undo apply changes to 2 elements"));
}

TARVEL_UI_TEST(SeveralMenusTest)
#include "several_menus_test.moc"
