// What happens when one thing begins before another is over: drawing under the cover, loading while
// drawing, closing with an open panel.
#include "document/kinds/menu_frame.h"
#include "support/behaviour_editor.h"
#include "support/ui_test.h"

#include <QComboBox>

#include <cmath>

using namespace tarvel;
using namespace tarvel::test;

namespace {

constexpr int mainScreen = 1;
constexpr auto aurora = TARVEL_EXAMPLES_DIR "/aurora";

Element redText() {
    Element text;
    text.elementKind = ElementKind::Text;
    text.textIsConstant = true;
    text.label = "Text: old";
    ElementControl& control = text.elementControl;
    control.kind = ControlKind::txt;
    control.caption = "old";
    control.textColor = makeColor(255, 0, 0);
    control.left = control.top = 20;
    control.width = 100;
    control.height = 30;
    return text;
}

QByteArray savedText(const QString& folder) {
    QFile file(folder + "/QOR_Skin.xml");
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// A lasting modifier that the panel does not show for this kind of element.
void giveForeignModifier(SkinDocument& document, int id) {
    XmlTree tree;
    const auto node = tree.addChild(XmlTree::top, "Modifier");
    tree.addAttribute(node, "Type", "NotInTheCatalogue");
    document.editElement(
        id, [&](Element& element) { element.elementModifiers = SharedValue(std::move(tree)); });
}

} // namespace

class InterruptedWorkTest : public QObject {
    Q_OBJECT

  private slots:
    void whatIsDrawnUnderTheCoverIsOfItsTool();
    void loadingEndsTheDrawing();
    void menusAfterLoadingHaveTheLoadedSettings();
    void textsAreConstantUnlessAnEntryIsChosen();
    void aTextOfTwoLinesIsAsHighAsTwo();
    void messagesLeadToTheFieldAtFault_data();
    void messagesLeadToTheFieldAtFault();
    void closingStoresOnlyAChangedPanel_data();
    void closingStoresOnlyAChangedPanel();
    void failedSaveLeavesTheElementAndThePanel();
};

void InterruptedWorkTest::whatIsDrawnUnderTheCoverIsOfItsTool() {
    Editor editor;
    editor.add(redText());
    editor.show();
    editor.click({40, 30});
    QTest::mouseClick(editor.find<QWidget>("optText"), Qt::LeftButton);
    QVERIFY(editor.find<QWidget>("picBox")->isVisible());
    editor.pressDragRelease({200, 200}, {300, 260});
    QCOMPARE(editor.document().lastElementId(), 2);
    QCOMPARE(editor.control(2).textColor, makeColor(255, 255, 255));
    QCOMPARE(editor.window.curNum(), 2);
    QTRY_VERIFY(editor.find<QWidget>("picBox")->isHidden());
    QCOMPARE(editor.window.curNum(), 2); // the end of the cover changes nothing any more
    QVERIFY(editor.find<QPushButton>("cmdApply")->isEnabled());
}

void InterruptedWorkTest::loadingEndsTheDrawing() {
    Editor editor;
    editor.show();
    editor.chooseTool("optLine");
    editor.press({100, 100});
    editor.drag({180, 160});
    editor.prompts.folders << aurora;
    editor.entry("mnuLoad")->trigger();
    const ElementControl& line = editor.control(1);
    QCOMPARE(line.kind, ControlKind::lin);
    QCOMPARE(line.X2, 180.0F);
    QCOMPARE(line.Y2, 160.0F);
    QVERIFY(editor.document().lastElementId() > 1);
    const SkinDocument loaded = editor.document();
    editor.drag({300, 300}); // the button is still down
    editor.release({300, 300});
    QVERIFY(editor.document() == loaded);
    QVERIFY(!editor.find<QAbstractButton>("optLine")->isChecked());
}

void InterruptedWorkTest::menusAfterLoadingHaveTheLoadedSettings() {
    Editor editor;
    const QString folder = editor.newFolder("skin");
    QFile file(folder + "/QOR_Skin.xml");
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(R"(<Skin name="x"><Layout Screen="Menu">
<LayoutElement Type="Menu" Source="QOR"><NumItems>4</NumItems></LayoutElement>
<LayoutElement Type="Menu" Source="QOR"><NumItems>9</NumItems><ScrollFactor>2</ScrollFactor>
<SmoothScroll>True</SmoothScroll><Primary><JustifyX>right</JustifyX></Primary></LayoutElement>
</Layout></Skin>)");
    file.close();
    editor.show();
    editor.prompts.folders << folder;
    editor.entry("mnuLoad")->trigger();
    QCOMPARE(editor.document().lastElementId(), 2);
    editor.chooseTool("optQor");
    editor.pressDragRelease({50, 50}, {300, 300});
    MenuFrame loaded;
    MenuFrame drawn;
    showMenuSettings(*editor.document().element(2).menuSettings, loaded);
    showMenuSettings(*editor.document().element(3).menuSettings, drawn);
    QVERIFY(drawn == loaded);
    QCOMPARE(int{editor.document().element(3).menuSettings->itemsShown}, 9);
}

void InterruptedWorkTest::textsAreConstantUnlessAnEntryIsChosen() {
    Editor editor;
    Element unknown = redText();
    unknown.textIsConstant = false;
    unknown.elementControl.caption = "NoSuchField";
    editor.add(unknown);
    editor.show();
    editor.click({40, 30});
    click(*editor.find<QPushButton>("cmdApply"));
    QVERIFY(!editor.document().element(1).textIsConstant); // unchanged, it stays a source
    editor.chooseTool("optText");
    editor.pressDragRelease({200, 200}, {300, 260});
    QCOMPARE(QString::fromStdString(editor.control(2).caption), QString("NoSuchField"));
    QVERIFY(editor.document().element(2).textIsConstant);
}

void InterruptedWorkTest::aTextOfTwoLinesIsAsHighAsTwo() {
    Editor editor;
    Element two = redText();
    two.elementControl.caption = "wide line\nx";
    editor.add(two);
    Element one = redText();
    one.elementControl.caption = "wide line";
    one.elementControl.top = 100;
    editor.add(one);
    editor.show();
    for (const QPoint shown : {QPoint(40, 30), QPoint(40, 110)}) {
        editor.click(shown);
        editor.chooseTool("optText");
        editor.click({300, 200 + shown.y()});
    }
    // Each height is rounded up to whole pixels.
    QVERIFY(std::abs(editor.control(3).height - 2 * editor.control(4).height) <= 1);
    QCOMPARE(editor.control(3).width, editor.control(4).width);
}

void InterruptedWorkTest::messagesLeadToTheFieldAtFault_data() {
    QTest::addColumn<QString>("tool");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("field");
    QTest::newRow("text") << "optText"
                          << "Enter some text"
                          << "txtText";
    QTest::newRow("image") << "optImg"
                           << "Select a resource"
                           << "cmdAddRes";
    QTest::newRow("box") << "optBox"
                         << "Select an opacity from 1-100"
                         << "txtAlpha";
}

void InterruptedWorkTest::messagesLeadToTheFieldAtFault() {
    QFETCH(QString, tool);
    QFETCH(QString, message);
    QFETCH(QString, field);
    Editor editor;
    editor.show();
    editor.chooseTool(qPrintable(tool));
    auto* txtAlpha = editor.find<QLineEdit>("txtAlpha");
    if (txtAlpha->isVisible()) {
        typeOver(*txtAlpha, "abc");
    }
    editor.pressDragRelease({200, 200}, {300, 260});
    QCOMPARE(editor.prompts.messages, QStringList(message));
    QWidget* focus = editor.window.focusWidget();
    QVERIFY(focus != nullptr);
    auto* wanted = editor.window.findChild<QWidget*>(field);
    QVERIFY2(focus == wanted || wanted->isAncestorOf(focus), qPrintable(focus->objectName()));
}

void InterruptedWorkTest::closingStoresOnlyAChangedPanel_data() {
    QTest::addColumn<int>("panel");
    QTest::newRow("modifier") << 0;
    QTest::newRow("timers") << 1;
    QTest::newRow("condition") << 2;
}

void InterruptedWorkTest::closingStoresOnlyAChangedPanel() {
    QFETCH(int, panel);
    BehaviourEditor editor;
    giveForeignModifier(editor.document(), 1);
    editor.nameSkin("x");
    editor.selectRow(mainScreen, 0);
    QVERIFY(editor.openPanel(panel));
    const SkinDocument before = editor.document();
    const QString out = editor.newFolder("out");
    editor.prompts.answers << Prompts::Answer::Yes;
    editor.prompts.folders << out;
    QStringList dialogs;
    closeNextDialog(dialogs);
    QVERIFY(editor.window.close());
    QVERIFY(savedText(out).contains("NotInTheCatalogue"));
    QVERIFY(editor.document() == before);
}

void InterruptedWorkTest::failedSaveLeavesTheElementAndThePanel() {
    BehaviourEditor editor;
    editor.selectRow(mainScreen, 0);
    QVERIFY(editor.openPanel(1));
    typeOver(editor.at<QLineEdit>("txtTimer(3)"), "5000");
    const SkinDocument before = editor.document();
    editor.prompts.answers << Prompts::Answer::Yes; // and then no folder is chosen
    QVERIFY(!editor.window.close());
    QVERIFY(editor.document() == before);
    QCOMPARE(editor.shown(), QList<int>({1}));
    QCOMPARE(editor.at<QLineEdit>("txtTimer(3)").text(), QString("5000"));
    editor.ok(1);
    QCOMPARE(editor.document().element(1).elementTimers[3], 5000);
}

TARVEL_UI_TEST(InterruptedWorkTest)

#include "interrupted_work_test.moc"
