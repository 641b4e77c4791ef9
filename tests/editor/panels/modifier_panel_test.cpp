// The modifier panel: lists, frames, storing, and the labels of the colour values.
#include "document/layout_screens.h"
#include "panels/color_name_label.h"
#include "panels/modifier_panel.h"
#include "panels/value_label.h"
#include "support/behaviour_support.h"
#include "support/document_support.h"
#include "support/panel_support.h"
#include "support/scripted_prompts.h"
#include "support/ui_test.h"

#include <QCheckBox>
#include <QDragEnterEvent>
#include <QGroupBox>
#include <QLabel>
#include <QMimeData>
#include <QPushButton>
#include <QSignalSpy>

#include <optional>

namespace tarvel {

using test::chooseRow;
using test::click;
using test::control;
using test::parse;
using test::typeOver;

namespace {

constexpr std::string_view catalogueText = R"(<m>
  <types>
    <Fade>Range</Fade> <Slide>Bounds</Slide> <Tint>Color</Tint> <Wobble/> <Low>range</Low>
    <Bare>Range</Bare>
  </types>
  <supports>
    <box type="1">
      <Fade>Fill,Border,(Both)</Fade> <Slide>Place,(Both)</Slide> <Tint>Fill,Border</Tint>
      <Wobble>(All),Place</Wobble> <Low>Fill</Low> <Unlisted>Fill</Unlisted> <Bare></Bare>
    </box>
    <line type="2"><Fade>Ends</Fade></line>
  </supports></m>)";

// Rows of the types of a box.
enum Row { None, Fade, Slide, Tint, Wobble, Low, Unlisted, Bare };

const std::string tint =
    R"(<Modifier Type="Tint" Target="Border"><Alpha Enable="True" Min="10" Max="200" Period="1000"/>)"
    R"(<Red Enable="False" Min="20" Max="210" Period="2000"/>)"
    R"(<Green Enable="true" Min="30" Max="220" Period="3000"/>)"
    R"(<Blue Enable="no" Min="40" Max="230" Period="4000"/></Modifier>)";

} // namespace

class ModifierPanelTest : public QObject {
    Q_OBJECT

  private slots:
    void init();
    void cleanup();

    void showsItsTexts();
    void staysHiddenUntilItIsOpened();
    void offersTheTypesOfTheKind();
    void readsTheCatalogueOnEachOpening();
    void opensWithoutACatalogue_data();
    void opensWithoutACatalogue();
    void typesHaveTheirTargetsAndFrame_data();
    void typesHaveTheirTargetsAndFrame();
    void frameFollowsTheTarget();

    void showsAStoredRange();
    void showsStoredColors();
    void keepsTheBoundsBoxes();
    void opensOnNone_data();
    void opensOnNone();
    void tellsWhatNoneMeans_data();
    void tellsWhatNoneMeans();
    void tellsWhatNoneMeansOnceItIsChosen();
    void showsRowsWhateverIsTakenFromTheLists();
    void tellsWhatCannotBeShown();
    void keepsWhatItShowsFromElementToElement();

    void storesARange();
    void storesBounds();
    void storesColors();
    void storesATypeWithoutValues();
    void noneRemovesTheModifier();
    void keepsFurtherModifiers();
    void tellsTheDocumentsObserver();
    void keysCloseIt_data();
    void keysCloseIt();

    void controlsHaveAccessibleNames();

  private:
    bool openFor(int id) { return window_->openPanel(id); }
    bool openWith(const std::string& modifiers) {
        setModifiers(modifiers.empty() ? XmlTree() : parse(modifiers));
        return openFor(1);
    }
    void setModifiers(const XmlTree& modifiers) {
        document_.editElement(
            1, [&](Element& element) { element.elementModifiers = SharedValue(modifiers); });
    }
    const XmlTree& modifiers() const { return document_.element(1).elementModifiers.get(); }
    void ok() { click(control<QPushButton>(*panel_, "cmdModifierOK")); }

    QComboBox& lstMods() const { return control<QComboBox>(*panel_, "lstMods"); }
    QComboBox& lstTargets() const { return control<QComboBox>(*panel_, "lstTargets"); }
    QLineEdit& box(const char* name) const { return control<QLineEdit>(*panel_, name); }
    ValueLabel& value(const char* name, int channel) const {
        return control<ValueLabel>(*panel_, QStringLiteral("%1(%2)").arg(name).arg(channel));
    }
    // The frame that is to be seen; "" for none.
    QString visibleFrame() const {
        QStringList frames;
        for (const char* name : {"fraRange", "fraBounds", "fraColor"}) {
            if (control<QGroupBox>(*panel_, name).isVisible()) {
                frames << name;
            }
        }
        return frames.join(QLatin1Char(' '));
    }
    // Values of a channel as "Min Max Period", with "+" when it is ticked.
    QString channel(int index) const {
        const auto& check = control<QCheckBox>(*panel_, QStringLiteral("chkColr(%1)").arg(index));
        return value("lblMin", index).text() + QLatin1Char(' ') + value("lblMax", index).text() +
               QLatin1Char(' ') + value("lblPeriod", index).text() +
               (check.isChecked() ? QStringLiteral(" +") : QString());
    }
    QStringList channels() const { return {channel(0), channel(1), channel(2), channel(3)}; }

    SkinDocument document_;
    test::ScriptedPrompts prompts_;
    std::optional<test::ScratchFolder> folder_;
    std::unique_ptr<ModifierPanel> panel_;
    std::unique_ptr<test::PanelWindow> window_;
};

void ModifierPanelTest::init() {
    document_ = test::fourBoxes();
    document_.editElement(2, [](Element& element) { element.elementKind = ElementKind::Line; });
    document_.editElement(3, [](Element& element) { element.elementKind = ElementKind::Menu; });
    prompts_.messages.clear();
    folder_.emplace();
    (void)folder_->file("modifiers.xml", catalogueText);
    panel_ = std::make_unique<ModifierPanel>(document_, prompts_, folder_->path());
    window_ = std::make_unique<test::PanelWindow>(*panel_);
}

void ModifierPanelTest::cleanup() {
    window_.reset();
    panel_.reset();
    folder_.reset();
}

void ModifierPanelTest::showsItsTexts() {
    QCOMPARE(panel_->objectName(), "fraModifier(0)");
    QCOMPARE(control<QPushButton>(*panel_, "cmdModifierOK").text(), "OK");
    QCOMPARE(control<QGroupBox>(*panel_, "fraRange").title(), "RANGE");
    QCOMPARE(control<QGroupBox>(*panel_, "fraBounds").title(), "BOUNDS");
    QCOMPARE(control<QGroupBox>(*panel_, "fraColor").title(), "COLOR");
    QStringList labels;
    for (const QLabel* label : panel_->findChildren<QLabel*>()) {
        labels << label->text();
    }
    for (const char* text :
         {"MODIFIER:", "X", "Y", "Left", "Top", "Right", "Bottom",
          "Hint: To copy values from one color to another, drag the color name to another color "
          "name. Also, you can drag the color name onto a value name (min, max, or period) to copy "
          "a single value"}) {
        QVERIFY2(labels.contains(QLatin1String(text)), text);
    }
}

void ModifierPanelTest::staysHiddenUntilItIsOpened() {
    window_->show();
    QVERIFY(!panel_->isVisible());
    for (const int noElement : {0, -1, 5}) {
        panel_->open(noElement);
        QVERIFY(!panel_->isVisible());
    }
    panel_->open(1);
    QVERIFY(panel_->isVisible());
}

void ModifierPanelTest::offersTheTypesOfTheKind() {
    QVERIFY(openFor(1));
    QCOMPARE(test::rowTexts(lstMods()),
             (QStringList{"None", "Fade", "Slide", "Tint", "Wobble", "Low", "Unlisted", "Bare"}));
    QCOMPARE(lstMods().currentIndex(), 0);
    QVERIFY(openFor(2));
    QCOMPARE(test::rowTexts(lstMods()), (QStringList{"None", "Fade"}));
    QVERIFY(openFor(3));
    QCOMPARE(test::rowTexts(lstMods()), (QStringList{"None", "box", "line"}));
    QCOMPARE(prompts_.messages, QStringList());
}

void ModifierPanelTest::readsTheCatalogueOnEachOpening() {
    QVERIFY(openFor(1));
    (void)folder_->file("modifiers.xml",
                        "<m><supports><e type='1'><New>x</New></e></supports></m>");
    QVERIFY(openFor(1));
    QCOMPARE(test::rowTexts(lstMods()), (QStringList{"None", "New"}));
}

void ModifierPanelTest::opensWithoutACatalogue_data() {
    QTest::addColumn<QString>("text");
    QTest::newRow("missing") << QString();
    QTest::newRow("empty") << "";
    QTest::newRow("broken") << "<m><supports>";
    QTest::newRow("no XML") << "none of this is XML";
    QTest::newRow("without sections") << "<m/>";
    QTest::newRow("without supports") << "<m><types><Tint>Color</Tint></types></m>";
}

void ModifierPanelTest::opensWithoutACatalogue() {
    QFETCH(QString, text);
    const auto file = folder_->file("modifiers.xml", text.toStdString());
    if (text.isNull()) {
        QVERIFY(std::filesystem::remove(file));
    }
    QVERIFY(openWith(tint));
    QCOMPARE(test::rowTexts(lstMods()), QStringList{"None"});
    QVERIFY(!lstTargets().isVisible());
    QCOMPARE(visibleFrame(), "");
    QCOMPARE(prompts_.messages, QStringList());
    ok();
    QVERIFY(!panel_->isVisible());
    QVERIFY(modifiers().empty());
}

void ModifierPanelTest::typesHaveTheirTargetsAndFrame_data() {
    QTest::addColumn<int>("row");
    QTest::addColumn<QStringList>("targets");
    QTest::addColumn<QString>("frame");
    QTest::newRow("Fade") << int{Fade} << QStringList{"Fill", "Border", "(Both)"} << "fraRange";
    QTest::newRow("Slide") << int{Slide} << QStringList{"Place", "(Both)"} << "fraBounds";
    QTest::newRow("Tint") << int{Tint} << QStringList{"Fill", "Border"} << "fraColor";
    QTest::newRow("Wobble") << int{Wobble} << QStringList{"(All)", "Place"} << "";
    QTest::newRow("Low") << int{Low} << QStringList{"Fill"} << "";
    QTest::newRow("Unlisted") << int{Unlisted} << QStringList{"Fill"} << "";
    QTest::newRow("Bare") << int{Bare} << QStringList() << "";
}

void ModifierPanelTest::typesHaveTheirTargetsAndFrame() {
    QFETCH(int, row);
    QFETCH(QStringList, targets);
    QFETCH(QString, frame);
    QVERIFY(openFor(1));
    QVERIFY(!lstTargets().isVisible());
    chooseRow(lstMods(), row);
    QVERIFY(lstTargets().isVisible());
    QCOMPARE(test::rowTexts(lstTargets()), targets);
    QCOMPARE(lstTargets().currentIndex(), targets.isEmpty() ? -1 : 0);
    QCOMPARE(visibleFrame(), frame);
    chooseRow(lstMods(), None);
    QVERIFY(!lstTargets().isVisible());
    QCOMPARE(lstTargets().count(), 0);
    QCOMPARE(visibleFrame(), "");
}

void ModifierPanelTest::frameFollowsTheTarget() {
    QVERIFY(openFor(1));
    chooseRow(lstMods(), Fade);
    for (const int target : {1, 2, 0}) {
        chooseRow(lstTargets(), target);
        QCOMPARE(lstTargets().currentIndex(), target);
        QCOMPARE(visibleFrame(), "fraRange");
    }
}

void ModifierPanelTest::showsAStoredRange() {
    QVERIFY(openWith(R"(<Modifier Type="Fade" Target="Border"><Range X="1.5" Y="a"/></Modifier>)"));
    QCOMPARE(lstMods().currentIndex(), int{Fade});
    QCOMPARE(lstTargets().currentText(), "Border");
    QCOMPARE(visibleFrame(), "fraRange");
    QCOMPARE(box("txtRangeX").text(), "1.5");
    QCOMPARE(box("txtRangeY").text(), "a");
    // A panel named in another letter case fills the boxes of a frame that is not shown.
    QVERIFY(openWith(R"(<Modifier Type="Low" Target="Fill"><Range X="7" Y="8"/></Modifier>)"));
    QCOMPARE(visibleFrame(), "");
    QCOMPARE(box("txtRangeX").text(), "7");
}

void ModifierPanelTest::showsStoredColors() {
    QVERIFY(openWith(tint));
    QCOMPARE(lstMods().currentText(), "Tint");
    QCOMPARE(lstTargets().currentText(), "Border");
    QCOMPARE(visibleFrame(), "fraColor");
    QCOMPARE(channels(),
             (QStringList{"10 200 1000 +", "20 210 2000", "30 220 3000 +", "40 230 4000"}));
    QVERIFY(openWith(R"(<Modifier Type="Tint"><Alpha Min="1.5" Max="x" Period="-9"/></Modifier>)"));
    QCOMPARE(channels(), (QStringList{"1.5 0 -9", "20 210 2000", "30 220 3000 +", "40 230 4000"}));
}

void ModifierPanelTest::keepsTheBoundsBoxes() {
    QVERIFY(openFor(1));
    chooseRow(lstMods(), Slide);
    typeOver(box("txtBoundsL"), "left as typed");
    QVERIFY(openWith(R"(<Modifier Type="Slide" Target="Place"><Bounds L="1" T="2" R="3" B="4"/>)"
                     R"(</Modifier>)"));
    QCOMPARE(visibleFrame(), "fraBounds");
    QCOMPARE(box("txtBoundsL").text(), "left as typed");
    QCOMPARE(box("txtBoundsT").text(), "0");
    QCOMPARE(prompts_.messages, QStringList());
}

void ModifierPanelTest::opensOnNone_data() {
    QTest::addColumn<QString>("stored");
    QTest::newRow("no parameters") << R"(<Modifier Type="Wobble" Target="Place"/>)";
    QTest::newRow("unknown type") << R"(<Modifier Type="Burn" Target="Fill"><x/></Modifier>)";
    QTest::newRow("other letter case") << R"(<Modifier Type="fade"><Range X="1"/></Modifier>)";
    QTest::newRow("without a type") << R"(<Modifier><Range X="1"/></Modifier>)";
}

void ModifierPanelTest::opensOnNone() {
    QFETCH(QString, stored);
    QVERIFY(openWith(stored.toStdString()));
    QCOMPARE(lstMods().currentIndex(), 0);
    QVERIFY(!lstTargets().isVisible());
    QCOMPARE(visibleFrame(), "");
    QCOMPARE(prompts_.messages, QStringList());
    QCOMPARE(modifiers(), parse(stored.toStdString()));
    ok();
    QCOMPARE(modifiers(), XmlTree());
}

void ModifierPanelTest::tellsWhatNoneMeans_data() {
    QTest::addColumn<QStringList>("stored");
    QTest::addColumn<QString>("text");
    QTest::newRow("none") << QStringList() << "The element has no modifier.";
    QTest::newRow("one") << QStringList{R"(<Modifier Type="Wobble" Target="Place"/>)"}
                         << R"(The element has the modifier "Wobble". OK removes it.)";
    QTest::newRow("like markup") << QStringList{R"(<Modifier Type="&lt;b&gt;x&lt;/b&gt;"/>)"}
                                 << R"(The element has the modifier "<b>x</b>". OK removes it.)";
    QTest::newRow("without a type")
        << QStringList{R"(<Modifier><Range X="1"/></Modifier>)"}
        << "The element has the modifier without a type. OK removes it.";
    QTest::newRow("several")
        << QStringList{R"(<Modifier Type="Burn"><x/></Modifier>)", R"(<Modifier Type="Wobble"/>)"}
        << R"(The element has the modifiers "Burn", "Wobble". OK removes the first of them.)";
}

void ModifierPanelTest::tellsWhatNoneMeans() {
    QFETCH(QStringList, stored);
    QFETCH(QString, text);
    XmlTree all;
    for (const QString& modifier : stored) {
        const XmlTree tree = parse(modifier.toStdString());
        all.addCopy(XmlTree::top, tree.root());
    }
    setModifiers(all);
    QVERIFY(openFor(1));
    QCOMPARE(lstMods().currentText(), "None");
    const auto& label = control<QLabel>(*panel_, "lblNoValues");
    QVERIFY(label.isVisible());
    QCOMPARE(label.text(), text);
    QCOMPARE(label.textFormat(), Qt::PlainText);
    ok(); // as it says
    QVERIFY(openFor(1));
    QCOMPARE(label.text().contains("has no modifier"), stored.size() < 2);
    QVERIFY(openFor(4));
    QCOMPARE(label.text(), "The element has no modifier.");
}

void ModifierPanelTest::tellsWhatNoneMeansOnceItIsChosen() {
    QVERIFY(openWith(tint));
    const auto& label = control<QLabel>(*panel_, "lblNoValues");
    QVERIFY(!label.isVisible());
    chooseRow(lstMods(), None);
    QVERIFY(label.isVisible());
    QCOMPARE(label.text(), R"(The element has the modifier "Tint". OK removes it.)");
    ok();
    QVERIFY(modifiers().empty());
}

void ModifierPanelTest::showsRowsWhateverIsTakenFromTheLists() {
    QVERIFY(openWith(tint));
    lstTargets().setCurrentIndex(-1);
    QCOMPARE(lstTargets().currentText(), "Border");
    lstMods().setCurrentIndex(-1);
    QCOMPARE(lstMods().currentText(), "None");
    ok();
    QVERIFY(modifiers().empty());
}

void ModifierPanelTest::tellsWhatCannotBeShown() {
    QVERIFY(openWith(R"(<Modifier Type="Bare"><Range X="1"/></Modifier>)"));
    QCOMPARE(prompts_.messages,
             QStringList{R"(The modifier "Bare" has no targets in modifiers.xml)"});
    QCOMPARE(prompts_.lastOwner, window_.get());
    QCOMPARE(lstMods().currentText(), "Bare");
    QCOMPARE(lstTargets().count(), 0);
    QCOMPARE(visibleFrame(), "");
}

void ModifierPanelTest::keepsWhatItShowsFromElementToElement() {
    QVERIFY(openWith(tint));
    ok();
    QVERIFY(openFor(4));
    chooseRow(lstMods(), Tint);
    QCOMPARE(channel(3), "40 230 4000");
}

void ModifierPanelTest::storesARange() {
    QVERIFY(openFor(1));
    QSignalSpy closed(panel_.get(), &BehaviourPanel::closed);
    chooseRow(lstMods(), Fade);
    typeOver(box("txtRangeX"), "-1.5 or so");
    typeOver(box("txtRangeY"), "");
    QVERIFY(modifiers().empty());
    ok();
    QCOMPARE(modifiers(), parse(R"(<Modifier Type="Fade" Target="Fill">)"
                                R"(<Range X="-1.5 or so" Y=""/></Modifier>)"));
    QCOMPARE(closed.count(), 1);
    QVERIFY(!panel_->isVisible());
    QVERIFY(behaviourMarks(document_.element(1)).modifiers);
    QCOMPARE(prompts_.messages, QStringList());
}

void ModifierPanelTest::storesBounds() {
    QVERIFY(openFor(1));
    chooseRow(lstMods(), Slide);
    chooseRow(lstTargets(), 1); // in brackets
    typeOver(box("txtBoundsL"), "1");
    typeOver(box("txtBoundsT"), "2");
    typeOver(box("txtBoundsR"), "3");
    typeOver(box("txtBoundsB"), "4");
    ok();
    QCOMPARE(modifiers(),
             parse(R"(<Modifier Type="Slide"><Bounds L="1" T="2" R="3" B="4"/></Modifier>)"));
}

void ModifierPanelTest::storesColors() {
    QVERIFY(openWith(tint));
    click(control<QCheckBox>(*panel_, "chkColr(0)"));
    click(control<QCheckBox>(*panel_, "chkColr(1)"));
    chooseRow(lstTargets(), 0);
    test::Pointer pointer(*window_);
    pointer.dragBy(value("lblMin", 0), -50);
    pointer.dragBy(value("lblMax", 1), 7);
    pointer.dragBy(value("lblPeriod", 2), 9);
    auto& lblBlue = control<QWidget>(*panel_, "lblColr(3)");
    QVERIFY(test::drop(lblBlue, *channelData(1)));
    ok();
    QCOMPARE(modifiers(), parse(R"(<Modifier Type="Tint" Target="Fill">)"
                                R"(<Alpha Enable="False" Min="0" Max="200" Period="1000"/>)"
                                R"(<Red Enable="True" Min="20" Max="217" Period="2000"/>)"
                                R"(<Green Enable="True" Min="30" Max="220" Period="3090"/>)"
                                R"(<Blue Enable="False" Min="20" Max="217" Period="2000"/>)"
                                R"(</Modifier>)"));
}

void ModifierPanelTest::storesATypeWithoutValues() {
    QVERIFY(openFor(1));
    chooseRow(lstMods(), Wobble);
    chooseRow(lstTargets(), 1);
    ok();
    QCOMPARE(modifiers(), parse(R"(<Modifier Type="Wobble" Target="Place"/>)"));
}

void ModifierPanelTest::noneRemovesTheModifier() {
    QVERIFY(openWith(tint));
    chooseRow(lstMods(), None);
    ok();
    QVERIFY(modifiers().empty());
    QVERIFY(!behaviourMarks(document_.element(1)).modifiers);
    QCOMPARE(document_.element(1), test::fourBoxes().element(1));
}

void ModifierPanelTest::keepsFurtherModifiers() {
    const XmlTree further = parse(R"(<Modifier Type="Burn"><x y="1">z</x></Modifier>)");
    XmlTree both = parse(tint);
    both.addCopy(XmlTree::top, further.root());
    setModifiers(both);
    QVERIFY(openFor(1));
    chooseRow(lstMods(), Low);
    ok();
    XmlTree expected = parse(R"(<Modifier Type="Low" Target="Fill"/>)");
    expected.addCopy(XmlTree::top, further.root());
    QCOMPARE(modifiers(), expected);
    QVERIFY(openFor(1)); // opens on "None"
    ok();
    QCOMPARE(modifiers(), further);
}

void ModifierPanelTest::tellsTheDocumentsObserver() {
    test::RecordingObserver observer;
    auto watch = document_.watch(observer);
    QVERIFY(openFor(4));
    chooseRow(lstMods(), Tint);
    QVERIFY(observer.notes.empty());
    ok();
    watch.end();
    QCOMPARE(observer.notes, std::vector<std::string>{"element 1 4"});
}

void ModifierPanelTest::keysCloseIt_data() {
    QTest::addColumn<QString>("focus");
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("closes");
    for (const char* focus :
         {"lstMods", "lstTargets", "chkColr(0)", "lblMin(0)", "cmdModifierOK"}) {
        QTest::addRow("Return in %s", focus) << focus << int{Qt::Key_Return} << true;
        QTest::addRow("Enter in %s", focus) << focus << int{Qt::Key_Enter} << true;
        QTest::addRow("Escape in %s", focus) << focus << int{Qt::Key_Escape} << false;
    }
}

void ModifierPanelTest::keysCloseIt() {
    QFETCH(QString, focus);
    QFETCH(int, key);
    QFETCH(bool, closes);
    QVERIFY(openWith(tint));
    QVERIFY(lstMods().hasFocus());
    QSignalSpy closed(panel_.get(), &BehaviourPanel::closed);
    auto& focused = control<QWidget>(*panel_, focus);
    focused.setFocus();
    QTest::keyClick(&focused, static_cast<Qt::Key>(key));
    QCOMPARE(panel_->isVisible(), !closes);
    QCOMPARE(closed.count(), closes ? 1 : 0);
}

void ModifierPanelTest::controlsHaveAccessibleNames() {
    QVERIFY(!panel_->accessibleName().isEmpty());
    QCOMPARE(test::withoutAccessibleName(*panel_), QStringList());
}

} // namespace tarvel

TARVEL_UI_TEST(tarvel::ModifierPanelTest)
#include "modifier_panel_test.moc"
