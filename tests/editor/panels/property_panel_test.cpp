// The property panel: its frames, captions, colours and opacity, and what it keeps.
#include "support/property_support.h"
#include "support/ui_test.h"
#include "widgets/color_well.h"

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

using namespace tarvel;
using namespace tarvel::test;

namespace {

constexpr ColorNumber red = makeColor(255, 0, 0);
constexpr ColorNumber blue = makeColor(0, 0, 255);
constexpr ColorNumber white = makeColor(255, 255, 255);
constexpr std::array kinds = {ElementKind::Box, ElementKind::Line, ElementKind::Image,
                              ElementKind::Text, ElementKind::Menu};

const QStringList borderControls{"lblBorderColor", "lColor", "lblL", "cmdClearL"};
const QStringList fillControls{"lblFillColor", "fColor", "lblF"};
const QStringList alphaControls{"lblAlpha", "txtAlpha"};
const QStringList textControls{"fraText", "lblText", "txtText", "cmdFont"};
const QStringList imageControls{"fraImg", "lblRes", "lstR", "cmdAddRes", "lblPreview"};
const QStringList menuControls{"fraQor",          "chkThumbVis",   "chkSmoothScroll", "chkSelGlow",
                               "chkShowDesc",     "cmbTitleAlign", "cmbDescAlign",    "colSelTitle",
                               "txtScrollFactor", "txtNumItems"};

const QStringList allControls = QStringList{"fraShared", "fraBox", "cmdClearF"} + borderControls +
                                fillControls + alphaControls + textControls + imageControls +
                                menuControls;

QStringList visibleControls(ShownPanel& shown) {
    QStringList visible;
    for (const QString& name : allControls) {
        if (shown.sees(name)) {
            visible << name;
        }
    }
    visible.sort();
    return visible;
}

QStringList sorted(QStringList names) {
    names.sort();
    return names;
}

QString textOf(QWidget& control) {
    if (const auto* frame = qobject_cast<QGroupBox*>(&control)) {
        return frame->title();
    }
    return control.property("text").toString();
}

Element boxElement() {
    Element box = elementOfKind(ElementKind::Box);
    box.elementControl.fillStyle = FillStyle::solid;
    box.elementControl.fillColor = red;
    box.elementControl.borderStyle = BorderStyle::none;
    box.elementControl.borderColor = blue;
    box.elementAlpha = 80;
    return box;
}

QColor middleOf(QWidget& control) {
    const QImage look = control.grab().toImage();
    return look.pixelColor(look.rect().center());
}

} // namespace

class PropertyPanelTest : public QObject {
    Q_OBJECT

  private slots:
    void framesOfAKind_data();
    void framesOfAKind();
    void pngShowsTheImageFrame();
    void nothingShowsNoFrames();
    void heightIsThatOfEveryKind();
    void fixedTexts_data();
    void fixedTexts();
    void captionsBeforeAKindIsChosen();
    void captionsOfAKind();

    void newPanelHoldsTheFirstValues();
    void boxIsShown();
    void lineIsShownSolid();
    void textShowsAWhiteSwatch();
    void colorIsChosen_data();
    void colorIsChosen();
    void colorIsChosenByKeys_data();
    void colorIsChosenByKeys();
    void cancelledColorChangesNothing();
    void rightButtonChoosesNoColor();
    void borderIsCleared();
    void fillIsClearedWithItsOpacity();
    void chosenColorMakesAClearSwatchSolid();
    void wellsShowTheirColor();
    void opacityTakesAnyText();

    void valuesStayWhenNothingIsSelected();
    void applyNeedsAnElement();
    void controlsStandBesideApply();
    void tabOrder_data();
    void tabOrder();
    void everyControlHasAnAccessibleName();
};

void PropertyPanelTest::framesOfAKind_data() {
    QTest::addColumn<ElementKind>("kind");
    QTest::addColumn<QStringList>("controls");
    QTest::newRow("box") << ElementKind::Box
                         << QStringList{"fraShared", "fraBox", "cmdClearF"} + borderControls +
                                fillControls + alphaControls;
    QTest::newRow("line") << ElementKind::Line << QStringList{"fraShared"} + borderControls;
    QTest::newRow("image") << ElementKind::Image << imageControls;
    QTest::newRow("text") << ElementKind::Text
                          << QStringList{"fraShared", "fraBox"} + fillControls + alphaControls +
                                 textControls;
    QTest::newRow("menu") << ElementKind::Menu << menuControls;
}

void PropertyPanelTest::framesOfAKind() {
    QFETCH(ElementKind, kind);
    QFETCH(QStringList, controls);
    ShownPanel tool;
    tool.panel.showKind(kind);
    QCOMPARE(visibleControls(tool), sorted(controls));
    ShownPanel selected;
    for (const ElementKind before : kinds) {
        selected.panel.showElement(elementOfKind(before));
        selected.panel.showElement(elementOfKind(kind));
        QCOMPARE(visibleControls(selected), sorted(controls));
    }
}

void PropertyPanelTest::pngShowsTheImageFrame() {
    ShownPanel shown;
    shown.panel.showElement(elementOfControl(ElementKind::Image, ControlKind::png));
    QCOMPARE(visibleControls(shown), sorted(imageControls));
}

void PropertyPanelTest::nothingShowsNoFrames() {
    ShownPanel shown;
    QCOMPARE(visibleControls(shown), QStringList());
    shown.panel.showElement(boxElement());
    shown.panel.showNothing();
    QCOMPARE(visibleControls(shown), QStringList());
    QVERIFY(shown.sees("cmdApply"));
}

void PropertyPanelTest::heightIsThatOfEveryKind() {
    ShownPanel shown;
    const QSize size = shown.panel.sizeHint();
    const QSize smallest = shown.panel.minimumSizeHint();
    const int apply = shown.find<QPushButton>("cmdApply").y();
    QVERIFY(shown.panel.minimumWidth() <= 400);
    QVERIFY(smallest.width() <= 400);
    for (const ElementKind kind : kinds) {
        shown.panel.showElement(elementOfKind(kind));
        QCoreApplication::processEvents();
        QCOMPARE(shown.panel.sizeHint(), size);
        QCOMPARE(shown.panel.minimumSizeHint(), smallest);
        QCOMPARE(shown.find<QPushButton>("cmdApply").y(), apply);
    }
}

void PropertyPanelTest::fixedTexts_data() {
    QTest::addColumn<QString>("text");
    const auto row = [](const char* name, const char* text) {
        QTest::newRow(name) << QString::fromLatin1(text);
    };
    row("fraShared", "Shared");
    row("fraText", "Text");
    row("cmdClearL", "clear (no border)");
    row("cmdClearF", "clear (no fill)");
    row("lblAlpha", "Opacity %");
    row("lblText", "Select predefined text below, or enter custom text:");
    row("cmdFont", "Font");
    row("lblRes", "Select Resource Below:");
    row("cmdAddRes", "Resource Manager");
    row("lblPreview", "Resource Preview");
    row("cmdApply", "Apply Changes");
}

void PropertyPanelTest::fixedTexts() {
    QFETCH(QString, text);
    ShownPanel shown;
    QCOMPARE(textOf(shown.find<QWidget>(QString::fromLatin1(QTest::currentDataTag()))), text);
}

void PropertyPanelTest::captionsBeforeAKindIsChosen() {
    ShownPanel shown;
    QCOMPARE(shown.find<QLabel>("lblBorderColor").text(), "Border Color:");
    QCOMPARE(shown.find<QLabel>("lblFillColor").text(), "Fill Color:");
}

void PropertyPanelTest::captionsOfAKind() {
    ShownPanel shown;
    const auto& border = shown.find<QLabel>("lblBorderColor");
    const auto& fill = shown.find<QLabel>("lblFillColor");
    shown.panel.showKind(ElementKind::Line);
    QCOMPARE(border.text(), "Line Color");
    shown.panel.showKind(ElementKind::Box);
    QCOMPARE(border.text(), "Border Color");
    QCOMPARE(fill.text(), "Fill Color");
    shown.panel.showKind(ElementKind::Text);
    QCOMPARE(fill.text(), "Font Color");
}

void PropertyPanelTest::newPanelHoldsTheFirstValues() {
    ShownPanel shown;
    QCOMPARE(shown.panel.values(), PanelValues());
    QCOMPARE(shown.find<QLineEdit>("txtAlpha").text(), "100");
    QCOMPARE(shown.find<QComboBox>("txtText").currentText(), QString());
    QCOMPARE(shown.find<QPushButton>("cmdFont").font().pointSizeF(), 8.25);
    QCOMPARE(shown.find<ColorWell>("lColor").swatch(), (Swatch{FillStyle::solid, white}));
    QCOMPARE(shown.find<ColorWell>("fColor").swatch().fillStyle, FillStyle::transparent);
}

void PropertyPanelTest::boxIsShown() {
    ShownPanel shown;
    shown.panel.showElement(boxElement());
    QCOMPARE(shown.find<ColorWell>("fColor").swatch(), (Swatch{FillStyle::solid, red}));
    QCOMPARE(shown.find<ColorWell>("lColor").swatch(), (Swatch{FillStyle::transparent, blue}));
    QCOMPARE(shown.find<QLabel>("lblF").text(), "#FF0000");
    QCOMPARE(shown.find<QLabel>("lblL").text(), "none");
    QCOMPARE(shown.find<QLineEdit>("txtAlpha").text(), "80");
}

void PropertyPanelTest::lineIsShownSolid() {
    ShownPanel shown;
    shown.panel.showElement(boxElement());
    Element line = elementOfKind(ElementKind::Line);
    line.elementControl.borderColor = red;
    line.elementAlpha = 35;
    shown.panel.showElement(line);
    QCOMPARE(shown.find<ColorWell>("lColor").swatch(), (Swatch{FillStyle::solid, red}));
    QCOMPARE(shown.panel.values().opacity, "35");
}

void PropertyPanelTest::textShowsAWhiteSwatch() {
    ShownPanel shown;
    shown.panel.showElement(textElement("Time", false));
    QCOMPARE(shown.find<ColorWell>("fColor").swatch(), (Swatch{FillStyle::solid, white}));
    QCOMPARE(shown.panel.values().fill, (Swatch{FillStyle::solid, white}));
}

void PropertyPanelTest::colorIsChosen_data() {
    QTest::addColumn<bool>("border");
    QTest::newRow("lColor") << true;
    QTest::newRow("lblL") << true;
    QTest::newRow("fColor") << false;
    QTest::newRow("lblF") << false;
}

void PropertyPanelTest::colorIsChosen() {
    QFETCH(bool, border);
    ShownPanel shown;
    Element box = boxElement();
    box.elementControl.borderStyle = BorderStyle::solid;
    shown.panel.showElement(box);
    shown.prompts.colors << QColor(1, 2, 3);
    click(shown.find<QWidget>(QString::fromLatin1(QTest::currentDataTag())));
    const Swatch chosen{FillStyle::solid, makeColor(1, 2, 3)};
    const Swatch otherBorder{FillStyle::solid, blue};
    const Swatch otherFill{FillStyle::solid, red};
    QCOMPARE(shown.panel.values().border, border ? chosen : otherBorder);
    QCOMPARE(shown.panel.values().fill, border ? otherFill : chosen);
    QCOMPARE(shown.find<ColorWell>("lColor").swatch(), shown.panel.values().border);
    QCOMPARE(shown.find<ColorWell>("fColor").swatch(), shown.panel.values().fill);
    QCOMPARE(shown.prompts.initialColors, QList{border ? QColor(Qt::blue) : QColor(Qt::red)});
    QCOMPARE(shown.prompts.lastOwner, &shown.panel);
}

void PropertyPanelTest::colorIsChosenByKeys_data() {
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("space") << Qt::Key_Space;
    QTest::newRow("return") << Qt::Key_Return;
    QTest::newRow("enter") << Qt::Key_Enter;
}

void PropertyPanelTest::colorIsChosenByKeys() {
    QFETCH(Qt::Key, key);
    ShownPanel shown;
    shown.panel.showKind(ElementKind::Box);
    shown.prompts.colors << QColor(Qt::red) << QColor(Qt::blue);
    QTest::keyClick(&shown.find<ColorWell>("lColor"), key);
    QTest::keyClick(&shown.find<ColorWell>("fColor"), key);
    QCOMPARE(shown.panel.values().border, (Swatch{FillStyle::solid, red}));
    QCOMPARE(shown.panel.values().fill, (Swatch{FillStyle::solid, blue}));
}

void PropertyPanelTest::cancelledColorChangesNothing() {
    ShownPanel shown;
    shown.panel.showElement(boxElement());
    const PanelValues before = shown.panel.values();
    click(shown.find<ColorWell>("lColor"));
    click(shown.find<ColorWell>("fColor"));
    QCOMPARE(shown.prompts.initialColors.size(), 2);
    QCOMPARE(shown.panel.values(), before);
}

void PropertyPanelTest::rightButtonChoosesNoColor() {
    ShownPanel shown;
    shown.panel.showElement(boxElement());
    QTest::mouseClick(&shown.find<QLabel>("lblL"), Qt::RightButton);
    QTest::mouseClick(&shown.find<ColorWell>("lColor"), Qt::RightButton);
    QVERIFY(shown.prompts.initialColors.isEmpty());
}

void PropertyPanelTest::borderIsCleared() {
    ShownPanel shown;
    shown.panel.showKind(ElementKind::Box);
    typeOver(shown.find<QLineEdit>("txtAlpha"), "30");
    click(shown.find<QPushButton>("cmdClearL"));
    QCOMPARE(shown.panel.values().border.fillStyle, FillStyle::transparent);
    QCOMPARE(shown.find<ColorWell>("lColor").swatch().fillStyle, FillStyle::transparent);
    QCOMPARE(shown.find<QLabel>("lblL").text(), "none");
    QCOMPARE(shown.panel.values().opacity, "30");
}

void PropertyPanelTest::fillIsClearedWithItsOpacity() {
    ShownPanel shown;
    shown.panel.showElement(boxElement());
    click(shown.find<QPushButton>("cmdClearF"));
    QCOMPARE(shown.panel.values().fill.fillStyle, FillStyle::transparent);
    QCOMPARE(shown.find<ColorWell>("fColor").swatch().fillStyle, FillStyle::transparent);
    QCOMPARE(shown.panel.values().opacity, "100");
    QCOMPARE(shown.find<QLineEdit>("txtAlpha").text(), "100");
}

void PropertyPanelTest::chosenColorMakesAClearSwatchSolid() {
    ShownPanel shown;
    shown.panel.showKind(ElementKind::Box);
    click(shown.find<QPushButton>("cmdClearL"));
    shown.prompts.colors << QColor(Qt::red);
    click(shown.find<ColorWell>("lColor"));
    QCOMPARE(shown.panel.values().border, (Swatch{FillStyle::solid, red}));
}

void PropertyPanelTest::wellsShowTheirColor() {
    ShownPanel shown;
    shown.panel.showElement(boxElement());
    auto& fill = shown.find<ColorWell>("fColor");
    QCOMPARE(middleOf(fill), QColor(Qt::red));
    click(shown.find<QPushButton>("cmdClearF"));
    const QImage clear = fill.grab().toImage();
    QSet<QRgb> colors;
    for (int x = 4; x < clear.width() - 4; ++x) {
        colors << clear.pixel(x, clear.height() / 3);
    }
    QVERIFY(colors.size() >= 3); // two squares and the stroke
}

void PropertyPanelTest::opacityTakesAnyText() {
    ShownPanel shown;
    shown.panel.showKind(ElementKind::Box);
    auto& txtAlpha = shown.find<QLineEdit>("txtAlpha");
    for (const char* text : {"0", "", "abc", "-5", "101", "50%", "1e400"}) {
        typeOver(txtAlpha, QString::fromLatin1(text));
        QCOMPARE(shown.panel.values().opacity, text);
    }
    QTest::keyClick(&txtAlpha, Qt::Key_Tab);
    QCOMPARE(shown.panel.values().opacity, "1e400");
    QVERIFY(shown.prompts.messages.isEmpty());
}

void PropertyPanelTest::valuesStayWhenNothingIsSelected() {
    ShownPanel shown;
    shown.panel.showElement(boxElement());
    typeOver(shown.find<QLineEdit>("txtAlpha"), "42");
    const PanelValues before = shown.panel.values();
    shown.panel.showNothing();
    QCOMPARE(shown.panel.values(), before);
    shown.panel.showKind(ElementKind::Box);
    QCOMPARE(shown.panel.values(), before);
    QCOMPARE(shown.find<QLineEdit>("txtAlpha").text(), "42");
    QCOMPARE(shown.find<ColorWell>("fColor").swatch(), (Swatch{FillStyle::solid, red}));
}

void PropertyPanelTest::applyNeedsAnElement() {
    ShownPanel shown;
    const QSignalSpy applied(&shown.panel, &PropertyPanel::applyClicked);
    auto& cmdApply = shown.find<QPushButton>("cmdApply");
    click(cmdApply);
    shown.panel.showKind(ElementKind::Box);
    click(cmdApply);
    QCOMPARE(applied.size(), 0);
    shown.panel.showElement(boxElement());
    click(cmdApply);
    QCOMPARE(applied.size(), 1);
    shown.panel.showNothing();
    click(cmdApply);
    QCOMPARE(applied.size(), 1);
}

void PropertyPanelTest::controlsStandBesideApply() {
    ShownPanel shown;
    auto* button = new QPushButton("Beside");
    shown.panel.addBeside(button);
    QTRY_VERIFY(button->isVisible());
    const auto& cmdApply = shown.find<QPushButton>("cmdApply");
    QTRY_VERIFY(button->x() > cmdApply.geometry().right());
    QCOMPARE(button->y(), cmdApply.y());
}

void PropertyPanelTest::tabOrder_data() {
    QTest::addColumn<ElementKind>("kind");
    QTest::addColumn<QStringList>("order");
    QTest::newRow("box") << ElementKind::Box << QStringList{"lColor",    "cmdClearL", "fColor",
                                                            "cmdClearF", "txtAlpha",  "cmdApply"};
    QTest::newRow("line") << ElementKind::Line << QStringList{"lColor", "cmdClearL", "cmdApply"};
    QTest::newRow("image") << ElementKind::Image << QStringList{"lstR", "cmdAddRes", "cmdApply"};
    QTest::newRow("text") << ElementKind::Text
                          << QStringList{"fColor", "txtAlpha", "txtText", "cmdFont", "cmdApply"};
    QTest::newRow("menu") << ElementKind::Menu
                          << QStringList{"chkThumbVis",   "chkSmoothScroll", "chkSelGlow",
                                         "chkShowDesc",   "txtScrollFactor", "txtNumItems",
                                         "cmbTitleAlign", "colSelTitle",     "colUnselTitle",
                                         "cmbDescAlign",  "colSelDesc",      "colUnselDesc",
                                         "cmdApply"};
}

void PropertyPanelTest::tabOrder() {
    QFETCH(ElementKind, kind);
    QFETCH(QStringList, order);
    SkinDocument document;
    document.addcRes("<a/>", "a");
    ShownPanel shown(document);
    shown.panel.showElement(elementOfKind(kind));
    shown.find<QPushButton>("cmdApply").setFocus();
    QStringList seen;
    for (qsizetype i = 0; i < order.size(); ++i) {
        QTest::keyClick(shown.panel.focusWidget(), Qt::Key_Tab);
        seen << shown.panel.focusWidget()->objectName();
    }
    QCOMPARE(seen, order);
}

void PropertyPanelTest::everyControlHasAnAccessibleName() {
    ShownPanel shown;
    QCOMPARE(withoutAccessibleName(shown.panel).join(QLatin1Char(',')), QString());
}

TARVEL_UI_TEST(PropertyPanelTest)
#include "property_panel_test.moc"
