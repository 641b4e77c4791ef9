// What is read out in the panels: what can be seen, and each thing once.
#include "document/selection.h"
#include "panels/behaviour_buttons.h"
#include "panels/condition_panel.h"
#include "panels/create_panel.h"
#include "panels/elements_panel.h"
#include "panels/layout_panel.h"
#include "panels/modifier_panel.h"
#include "panels/position_panel.h"
#include "panels/timer_panel.h"
#include "support/access_support.h"
#include "support/property_support.h"
#include "support/ui_test.h"

#include <QAction>
#include <QTest>

#include <functional>
#include <memory>

namespace tarvel {

namespace {

using MakeWidget = std::function<std::unique_ptr<QWidget>()>;

struct Case {
    const char* name;
    QStringList captions; // of some of its buttons
    MakeWidget make;
};

} // namespace

class PanelNamesTest : public QObject {
    Q_OBJECT

  private slots:
    void readsOutWhatCanBeSeen_data();
    void readsOutWhatCanBeSeen();
    void positionFieldsAreReadOutByTheirKind();

  private:
    std::unique_ptr<QWidget> propertiesOf(ElementKind kind);
    std::unique_ptr<QWidget> position(ControlKind kind);
    std::vector<Case> cases();

    SkinDocument document_;
    Selection selection_{document_};
    test::ScriptedPrompts prompts_;
    PictureCache pictures_;
    std::array<QAction, BehaviourButtons::count> entries_;
};

std::unique_ptr<QWidget> PanelNamesTest::propertiesOf(ElementKind kind) {
    auto panel = std::make_unique<PropertyPanel>(document_, prompts_, pictures_);
    panel->showElement(test::elementOfKind(kind));
    return panel;
}

std::unique_ptr<QWidget> PanelNamesTest::position(ControlKind kind) {
    auto panel = std::make_unique<PositionPanel>();
    ElementControl control;
    control.kind = kind;
    panel->setPos(control);
    return panel;
}

std::vector<Case> PanelNamesTest::cases() {
    return {
        {"box",
         {"clear (no border)", "clear (no fill)", "Apply Changes"},
         [this] { return propertiesOf(ElementKind::Box); }},
        {"line", {"clear (no border)"}, [this] { return propertiesOf(ElementKind::Line); }},
        {"image", {"Resource Manager"}, [this] { return propertiesOf(ElementKind::Image); }},
        {"text", {"Font"}, [this] { return propertiesOf(ElementKind::Text); }},
        {"menu", {"Glow Selected items"}, [this] { return propertiesOf(ElementKind::Menu); }},
        {"modifier",
         {"OK", "Alpha"},
         [this] { return std::make_unique<ModifierPanel>(document_, prompts_, "."); }},
        {"timers", {"OK"}, [this] { return std::make_unique<TimerPanel>(document_); }},
        {"condition", {"OK"}, [this] { return std::make_unique<ConditionPanel>(document_); }},
        {"behaviours",
         {"Modifiers", "Timers", "Condition"},
         [this] {
             return std::make_unique<BehaviourButtons>(
                 std::array<QAction*, BehaviourButtons::count>{&entries_[0], &entries_[1],
                                                               &entries_[2]});
         }},
        {"tools", {"Box", "Image/Video"}, [] { return std::make_unique<CreatePanel>(); }},
        {"screens",
         {"Menu", "JukeBox"},
         [this] { return std::make_unique<LayoutPanel>(document_); }},
        {"elements",
         {},
         [this] { return std::make_unique<ElementsPanel>(document_, selection_, pictures_); }},
        {"position", {}, [this] { return position(ControlKind::box); }},
        {"position of a line", {}, [this] { return position(ControlKind::lin); }},
    };
}

void PanelNamesTest::readsOutWhatCanBeSeen_data() {
    QTest::addColumn<std::size_t>("index");
    const auto all = cases();
    for (std::size_t i = 0; i < all.size(); ++i) {
        QTest::newRow(all[i].name) << i;
    }
}

void PanelNamesTest::readsOutWhatCanBeSeen() {
    QFETCH(std::size_t, index);
    const Case wanted = cases().at(index);
    const auto panel = wanted.make();
    QStringList captions;
    for (const QAbstractButton* button : test::captionedButtons(*panel)) {
        captions << test::captionOf(*button);
    }
    for (const QString& caption : wanted.captions) {
        QVERIFY2(captions.contains(caption), qPrintable(caption));
    }
    QCOMPARE(test::buttonsReadOutOtherwise(*panel).join(QLatin1Char('\n')), QString());
    QCOMPARE(test::unheardLabels(*panel).join(QLatin1Char('\n')), QString());
    QCOMPARE(test::saidTwice(*panel).join(QLatin1Char('\n')), QString());
}

void PanelNamesTest::positionFieldsAreReadOutByTheirKind() {
    const auto read = [this](ControlKind kind) {
        const auto panel = position(kind);
        QStringList names;
        for (const char* name : {"txtL", "txtT", "txtW", "txtH"}) {
            names << test::readOut(test::control<QWidget>(*panel, QLatin1String(name)));
        }
        return names;
    };
    QCOMPARE(read(ControlKind::box), (QStringList{"Left edge", "Top edge", "Width", "Height"}));
    QCOMPARE(read(ControlKind::lin), (QStringList{"X1", "Y1", "X2", "Y2"}));
}

} // namespace tarvel

TARVEL_UI_TEST(tarvel::PanelNamesTest)
#include "panel_names_test.moc"
