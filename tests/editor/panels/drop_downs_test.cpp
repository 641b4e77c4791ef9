// The drop-down lists of the panels under the wheel.
#include "panels/modifier_panel.h"
#include "support/behaviour_support.h"
#include "support/document_support.h"
#include "support/panel_support.h"
#include "support/property_support.h"
#include "support/ui_test.h"

#include <QTest>
#include <QWheelEvent>
#include <QtTest/qtestspontaneevent.h>

namespace tarvel {

namespace {

// Turns the wheel one step down over the middle of a list. True when somebody took it.
bool turn(QComboBox& list) {
    // The line of an editable list lies over it.
    QWidget* below = list.lineEdit() != nullptr ? static_cast<QWidget*>(list.lineEdit()) : &list;
    const QPointF middle = below->rect().center();
    QWheelEvent event(middle, below->mapToGlobal(middle), {}, {0, -120}, {}, {}, Qt::NoScrollPhase,
                      false);
    // As from the system; others would neither go on to what lies below nor bring the focus.
    QSpontaneKeyEvent::setSpontaneous(&event);
    QApplication::instance()->notify(below, &event);
    return event.isAccepted();
}

// Over a list without the focus the wheel does nothing; with it, it goes on by a row.
void expectWheelWithFocusOnly(QComboBox& list, QWidget& other) {
    other.setFocus();
    QVERIFY(other.hasFocus());
    const int before = list.currentIndex();
    QVERIFY(before + 1 < list.count());
    QVERIFY(!turn(list));
    QCOMPARE(list.currentIndex(), before);
    QVERIFY(other.hasFocus());
    list.setFocus();
    QVERIFY(turn(list));
    QCOMPARE(list.currentIndex(), before + 1);
}

} // namespace

class DropDownsTest : public QObject {
    Q_OBJECT

  private slots:
    void propertiesTakeTheWheelWithTheFocusOnly_data();
    void propertiesTakeTheWheelWithTheFocusOnly();
    void modifiersTakeTheWheelWithTheFocusOnly();
};

void DropDownsTest::propertiesTakeTheWheelWithTheFocusOnly_data() {
    QTest::addColumn<ElementKind>("kind");
    QTest::addColumn<QString>("name");
    QTest::newRow("lstR") << ElementKind::Image << "lstR";
    QTest::newRow("txtText") << ElementKind::Text << "txtText";
    QTest::newRow("cmbTitleAlign") << ElementKind::Menu << "cmbTitleAlign";
    QTest::newRow("cmbDescAlign") << ElementKind::Menu << "cmbDescAlign";
}

void DropDownsTest::propertiesTakeTheWheelWithTheFocusOnly() {
    QFETCH(ElementKind, kind);
    QFETCH(QString, name);
    SkinDocument document;
    for (const char* resource : {"a", "b", "c"}) {
        document.addcRes("<File>::Logo</File>", resource);
    }
    test::ShownPanel shown(document);
    Element element = test::elementOfKind(kind);
    element.imageSource = "a";
    shown.panel.showElement(element);
    auto& list = shown.find<QComboBox>(name);
    if (kind == ElementKind::Menu) {
        test::chooseEntry(list, 0);
    }
    expectWheelWithFocusOnly(list, shown.find<QWidget>("cmdApply"));
}

void DropDownsTest::modifiersTakeTheWheelWithTheFocusOnly() {
    SkinDocument document = test::fourBoxes();
    test::ScriptedPrompts prompts;
    ModifierPanel panel(document, prompts, test::assetsFolder());
    test::PanelWindow window(panel);
    QVERIFY(window.openPanel(1));
    auto& ok = test::control<QWidget>(panel, "cmdModifierOK");
    expectWheelWithFocusOnly(test::control<QComboBox>(panel, "lstMods"), ok);
    auto& targets = test::control<QComboBox>(panel, "lstTargets");
    QVERIFY(targets.isVisible());
    expectWheelWithFocusOnly(targets, ok);
}

} // namespace tarvel

TARVEL_UI_TEST(tarvel::DropDownsTest)
#include "drop_downs_test.moc"
