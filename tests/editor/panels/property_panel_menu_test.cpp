// The item menu's settings in the property panel.
#include "support/property_support.h"
#include "support/ui_test.h"
#include "widgets/color_well.h"

#include <QCheckBox>
#include <QLabel>
#include <QTest>

using namespace tarvel;
using namespace tarvel::test;

namespace {

Element menuElement(const MenuSettings& settings) {
    Element menu = elementOfKind(ElementKind::Menu);
    menu.menuSettings.edit() = settings;
    return menu;
}

MenuSettings settingsIn(const ShownPanel& shown) {
    return menuSettingsOf(shown.panel.values().menu);
}

QColor textColor(const QLabel& label) {
    return label.palette().color(QPalette::WindowText);
}

Qt::Alignment across(const QLabel& label) {
    return label.alignment() & Qt::AlignHorizontal_Mask;
}

} // namespace

class PropertyPanelMenuTest : public QObject {
    Q_OBJECT

  private slots:
    void fixedTexts_data();
    void fixedTexts();
    void captionsWithoutANameOfTheirOwn();
    void newFrameHoldsTheFirstSettings();
    void settingsAreShown();
    void alignmentsAreFoundWithoutRegardToCase();
    void checkBoxes_data();
    void checkBoxes();
    void numbers_data();
    void numbers();
    void alignmentsAreChosen();
    void previewsFollowOnlyTheUser();
    void colorIsChosen_data();
    void colorIsChosen();
    void cancelledColorChangesNothing();
    void previewsAreReadableInEveryColor_data();
    void previewsAreReadableInEveryColor();
};

void PropertyPanelMenuTest::fixedTexts_data() {
    QTest::addColumn<QString>("text");
    const auto row = [](const char* name, const char* text) {
        QTest::newRow(name) << QString::fromLatin1(text);
    };
    row("chkThumbVis", "Thumbnails visible");
    row("chkSmoothScroll", "Smooth Scrolling");
    row("lblScrollFactor", "Scroll Factor");
    row("lblNumItems", "# of games shown at a time");
    row("chkSelGlow", "Glow Selected items");
    row("chkShowDesc", "Show Game Description");
    row("lblSelTitle", "Selected Title");
    row("lblUnselTitle", "Unselected Title");
    row("lblSelDesc", "Selected Description");
    row("lblUnselDesc", "Unselected Description");
}

void PropertyPanelMenuTest::fixedTexts() {
    QFETCH(QString, text);
    ShownPanel shown;
    shown.panel.showKind(ElementKind::Menu);
    auto& control = shown.find<QWidget>(QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(control.property("text").toString(), text);
    QVERIFY(control.isVisible());
    QVERIFY(control.width() >= control.sizeHint().width());
}

void PropertyPanelMenuTest::captionsWithoutANameOfTheirOwn() {
    ShownPanel shown;
    shown.panel.showKind(ElementKind::Menu);
    QStringList texts;
    const auto labels = shown.find<QWidget>("fraQor").findChildren<QLabel*>();
    for (const QLabel* label : labels) {
        texts << label->text();
        if (label->text() == "Game Title" || label->text() == "Game Description") {
            QCOMPARE(label->font().family(), "Tahoma");
        }
    }
    for (const char* text : {"Preview:", "Alignment:", "Game Title", "Game Description"}) {
        QVERIFY2(texts.contains(QString::fromLatin1(text)), text);
    }
    for (const char* name : {"cmbTitleAlign", "cmbDescAlign"}) {
        const auto& list = shown.find<QComboBox>(QString::fromLatin1(name));
        QCOMPARE(list.count(), 3);
        QCOMPARE(list.itemText(0), "Left");
        QCOMPARE(list.itemText(1), "Right");
        QCOMPARE(list.itemText(2), "Center");
    }
}

void PropertyPanelMenuTest::newFrameHoldsTheFirstSettings() {
    ShownPanel shown;
    QCOMPARE(shown.find<QLineEdit>("txtScrollFactor").text(), "3");
    QCOMPARE(shown.find<QLineEdit>("txtNumItems").text(), "5");
    QVERIFY(shown.find<QCheckBox>("chkThumbVis").isChecked());
    QVERIFY(!shown.find<QCheckBox>("chkSelGlow").isChecked());
    QCOMPARE(shown.find<QComboBox>("cmbTitleAlign").currentText(), "Left");
    QCOMPARE(shown.find<QComboBox>("cmbDescAlign").currentText(), "Right");
    QCOMPARE(across(shown.find<QLabel>("lblSelTitle")), Qt::AlignLeft);
    QCOMPARE(across(shown.find<QLabel>("lblSelDesc")), Qt::AlignRight);
}

void PropertyPanelMenuTest::settingsAreShown() {
    ShownPanel shown;
    const MenuSettings settings{.thumbnailsVisible = false,
                                .smoothScroll = false,
                                .scrollFactor = -7,
                                .itemsShown = 12,
                                .glowSelected = true,
                                .showDescription = false,
                                .titleAlignment = "Right",
                                .descriptionAlignment = "Center",
                                .selectedTitleColor = "255",
                                .unselectedTitleColor = "65280",
                                .selectedDescriptionColor = "16711680",
                                .unselectedDescriptionColor = "65535"};
    shown.panel.showElement(menuElement(settings));
    QVERIFY(!shown.find<QCheckBox>("chkThumbVis").isChecked());
    QVERIFY(!shown.find<QCheckBox>("chkSmoothScroll").isChecked());
    QVERIFY(shown.find<QCheckBox>("chkSelGlow").isChecked());
    QVERIFY(!shown.find<QCheckBox>("chkShowDesc").isChecked());
    QCOMPARE(shown.find<QLineEdit>("txtScrollFactor").text(), "-7");
    QCOMPARE(shown.find<QLineEdit>("txtNumItems").text(), "12");
    QCOMPARE(shown.find<QComboBox>("cmbTitleAlign").currentText(), "Right");
    QCOMPARE(shown.find<QComboBox>("cmbDescAlign").currentText(), "Center");
    QCOMPARE(shown.find<ColorWell>("colSelTitle").swatch().color, makeColor(255, 0, 0));
    QCOMPARE(shown.find<ColorWell>("colUnselTitle").swatch().color, makeColor(0, 255, 0));
    QCOMPARE(shown.find<ColorWell>("colSelDesc").swatch().color, makeColor(0, 0, 255));
    QCOMPARE(shown.find<ColorWell>("colUnselDesc").swatch().color, makeColor(255, 255, 0));
    QCOMPARE(textColor(shown.find<QLabel>("lblSelTitle")), QColor(Qt::red));
    QCOMPARE(textColor(shown.find<QLabel>("lblUnselTitle")), QColor(Qt::green));
    QCOMPARE(textColor(shown.find<QLabel>("lblSelDesc")), QColor(Qt::blue));
    QCOMPARE(textColor(shown.find<QLabel>("lblUnselDesc")), QColor(Qt::yellow));
    QCOMPARE(settingsIn(shown), settings);
}

void PropertyPanelMenuTest::alignmentsAreFoundWithoutRegardToCase() {
    ShownPanel shown;
    shown.panel.showElement(menuElement({.titleAlignment = "center", .descriptionAlignment = "x"}));
    QCOMPARE(shown.find<QComboBox>("cmbTitleAlign").currentText(), "Center");
    QCOMPARE(shown.find<QComboBox>("cmbDescAlign").currentText(), "Left");
}

void PropertyPanelMenuTest::checkBoxes_data() {
    QTest::addColumn<int>("changed");
    QTest::newRow("chkThumbVis") << 0;
    QTest::newRow("chkSmoothScroll") << 1;
    QTest::newRow("chkSelGlow") << 2;
    QTest::newRow("chkShowDesc") << 3;
}

void PropertyPanelMenuTest::checkBoxes() {
    QFETCH(int, changed);
    static constexpr std::array fields = {&MenuSettings::thumbnailsVisible,
                                          &MenuSettings::smoothScroll, &MenuSettings::glowSelected,
                                          &MenuSettings::showDescription};
    ShownPanel shown;
    shown.panel.showKind(ElementKind::Menu);
    MenuSettings expected = settingsIn(shown);
    bool& value = expected.*fields.at(static_cast<std::size_t>(changed));
    auto& box = shown.find<QCheckBox>(QString::fromLatin1(QTest::currentDataTag()));
    QTest::keyClick(&box, Qt::Key_Space);
    value = !value;
    QCOMPARE(settingsIn(shown), expected);
    QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(8, box.height() / 2));
    value = !value;
    QCOMPARE(settingsIn(shown), expected);
}

void PropertyPanelMenuTest::numbers_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("stored");
    QTest::newRow("zero") << "0" << 1;
    QTest::newRow("empty") << "" << 1;
    QTest::newRow("unreadable") << "x" << 1;
    QTest::newRow("half down") << "2.5" << 2;
    QTest::newRow("half up") << "3.5" << 4;
    QTest::newRow("negative") << "-3" << -3;
    QTest::newRow("leading number") << " 7 games" << 7;
    QTest::newRow("too large") << "99999" << 32767;
}

void PropertyPanelMenuTest::numbers() {
    QFETCH(QString, text);
    QFETCH(int, stored);
    ShownPanel shown;
    shown.panel.showKind(ElementKind::Menu);
    auto& txtNumItems = shown.find<QLineEdit>("txtNumItems");
    auto& txtScrollFactor = shown.find<QLineEdit>("txtScrollFactor");
    typeOver(txtNumItems, text);
    QCOMPARE(settingsIn(shown).itemsShown, stored);
    QCOMPARE(settingsIn(shown).scrollFactor, 3);
    typeOver(txtScrollFactor, text);
    QCOMPARE(settingsIn(shown).scrollFactor, stored);
    QCOMPARE(txtNumItems.text(), text); // stays as typed
    QVERIFY(shown.prompts.messages.isEmpty());
}

void PropertyPanelMenuTest::alignmentsAreChosen() {
    ShownPanel shown;
    shown.panel.showKind(ElementKind::Menu);
    static constexpr std::array alignments = {Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter};
    static constexpr std::array texts = {"Left", "Right", "Center"};
    for (const int position : {2, 1, 0}) {
        const auto index = static_cast<std::size_t>(position);
        chooseEntry(shown.find<QComboBox>("cmbTitleAlign"), position);
        QCOMPARE(across(shown.find<QLabel>("lblSelTitle")), alignments.at(index));
        QCOMPARE(across(shown.find<QLabel>("lblUnselTitle")), alignments.at(index));
        QCOMPARE(across(shown.find<QLabel>("lblSelDesc")), Qt::AlignRight);
        QCOMPARE(settingsIn(shown).titleAlignment, texts.at(index));
    }
    for (const int position : {0, 2}) {
        const auto index = static_cast<std::size_t>(position);
        chooseEntry(shown.find<QComboBox>("cmbDescAlign"), position);
        QCOMPARE(across(shown.find<QLabel>("lblSelDesc")), alignments.at(index));
        QCOMPARE(across(shown.find<QLabel>("lblUnselDesc")), alignments.at(index));
        QCOMPARE(across(shown.find<QLabel>("lblSelTitle")), Qt::AlignLeft);
        QCOMPARE(settingsIn(shown).descriptionAlignment, texts.at(index));
    }
}

void PropertyPanelMenuTest::previewsFollowOnlyTheUser() {
    ShownPanel shown;
    shown.panel.showElement(
        menuElement({.titleAlignment = "Center", .descriptionAlignment = "Left"}));
    QCOMPARE(shown.find<QComboBox>("cmbTitleAlign").currentText(), "Center");
    QCOMPARE(across(shown.find<QLabel>("lblSelTitle")), Qt::AlignLeft);
    QCOMPARE(across(shown.find<QLabel>("lblSelDesc")), Qt::AlignRight);
    // Choosing the entry that is shown already brings the preview into line.
    chooseInPopup(shown.find<QComboBox>("cmbTitleAlign"), 2);
    QCOMPARE(across(shown.find<QLabel>("lblSelTitle")), Qt::AlignHCenter);
}

void PropertyPanelMenuTest::colorIsChosen_data() {
    QTest::addColumn<QString>("preview");
    QTest::addColumn<int>("field");
    QTest::newRow("colSelTitle") << "lblSelTitle" << 0;
    QTest::newRow("colUnselTitle") << "lblUnselTitle" << 1;
    QTest::newRow("colSelDesc") << "lblSelDesc" << 2;
    QTest::newRow("colUnselDesc") << "lblUnselDesc" << 3;
}

void PropertyPanelMenuTest::colorIsChosen() {
    QFETCH(QString, preview);
    QFETCH(int, field);
    static constexpr std::array fields = {
        &MenuSettings::selectedTitleColor, &MenuSettings::unselectedTitleColor,
        &MenuSettings::selectedDescriptionColor, &MenuSettings::unselectedDescriptionColor};
    ShownPanel shown;
    shown.panel.showKind(ElementKind::Menu);
    MenuSettings expected = settingsIn(shown);
    shown.prompts.colors << QColor(Qt::red);
    auto& well = shown.find<ColorWell>(QString::fromLatin1(QTest::currentDataTag()));
    click(well);
    expected.*fields.at(static_cast<std::size_t>(field)) = "255";
    QCOMPARE(settingsIn(shown), expected);
    QCOMPARE(well.swatch(), (Swatch{FillStyle::solid, makeColor(255, 0, 0)}));
    int reds = 0;
    for (const char* name : {"lblSelTitle", "lblUnselTitle", "lblSelDesc", "lblUnselDesc"}) {
        reds += textColor(shown.find<QLabel>(QString::fromLatin1(name))) == QColor(Qt::red) ? 1 : 0;
    }
    QCOMPARE(reds, 1);
    QCOMPARE(textColor(shown.find<QLabel>(preview)), QColor(Qt::red));
    QCOMPARE(shown.prompts.initialColors, QList{QColor(Qt::white)});
}

void PropertyPanelMenuTest::cancelledColorChangesNothing() {
    ShownPanel shown;
    shown.panel.showKind(ElementKind::Menu);
    const PanelValues before = shown.panel.values();
    click(shown.find<ColorWell>("colSelTitle"));
    QCOMPARE(shown.prompts.initialColors.size(), 1);
    QCOMPARE(shown.panel.values(), before);
}

void PropertyPanelMenuTest::previewsAreReadableInEveryColor_data() {
    QTest::addColumn<QString>("number");
    QTest::newRow("white") << "16777215";
    QTest::newRow("black") << "0";
    QTest::newRow("dark grey") << "3158064";
    QTest::newRow("red") << "255";
    QTest::newRow("blue") << "16711680";
}

void PropertyPanelMenuTest::previewsAreReadableInEveryColor() {
    QFETCH(QString, number);
    ShownPanel shown;
    shown.panel.showElement(menuElement({.selectedTitleColor = number.toStdString()}));
    const QPalette palette = shown.find<QLabel>("lblSelTitle").palette();
    const int text = qGray(palette.color(QPalette::WindowText).rgb());
    const int ground = qGray(palette.color(QPalette::Window).rgb());
    QVERIFY(std::abs(text - ground) >= 70);
}

TARVEL_UI_TEST(PropertyPanelMenuTest)
#include "property_panel_menu_test.moc"
