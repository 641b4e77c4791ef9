// The text and the font of a text in the property panel.
#include "support/property_support.h"
#include "support/ui_test.h"

#include <QLabel>
#include <QPushButton>
#include <QTest>

using namespace tarvel;
using namespace tarvel::test;

class PropertyPanelTextTest : public QObject {
    Q_OBJECT

  private slots:
    void entriesAreTheFieldsOfTheDashboard();
    void typedTextIsNoEntry();
    void typedTextStaysAsItIs();
    void chosenEntryIsOne();
    void entryIsOneAgainAfterTyping();
    void shownTextIsAnEntryWhenItIsASource();
    void fontIsCopiedWithoutItsSlant();
    void cancelledFontChangesNothing();
    void fontIsNotReadBack();
    void buttonKeepsItsSizeInAnyFont();
};

void PropertyPanelTextTest::entriesAreTheFieldsOfTheDashboard() {
    ShownPanel shown;
    const auto& txtText = shown.find<QComboBox>("txtText");
    QCOMPARE(txtText.count(), 54);
    QCOMPARE(txtText.itemText(0), "DiscTitle");
    QCOMPARE(txtText.itemText(12), "ShortDriveECFree");
    QCOMPARE(txtText.itemText(18), "Time");
    QCOMPARE(txtText.itemText(53), "LaunchMode");
}

void PropertyPanelTextTest::typedTextIsNoEntry() {
    ShownPanel shown;
    shown.panel.showElement(textElement("Time", false));
    QVERIFY(shown.panel.values().textIsEntry);
    auto& edit = *shown.find<QComboBox>("txtText").lineEdit();
    typeOver(edit, "My skin");
    QCOMPARE(shown.panel.values().text, "My skin");
    QVERIFY(!shown.panel.values().textIsEntry);
    typeOver(edit, "");
    QCOMPARE(shown.panel.values().text, "");
}

// Neither completed nor taken for the entry that it happens to spell.
void PropertyPanelTextTest::typedTextStaysAsItIs() {
    ShownPanel shown;
    shown.panel.showKind(ElementKind::Text);
    auto& txtText = shown.find<QComboBox>("txtText");
    for (const char* text : {"disc", "Time", "time"}) {
        typeOver(*txtText.lineEdit(), QString::fromLatin1(text));
        QTest::keyClick(txtText.lineEdit(), Qt::Key_Return);
        QTest::keyClick(txtText.lineEdit(), Qt::Key_Tab);
        QCOMPARE(txtText.currentText(), QString::fromLatin1(text));
        QCOMPARE(shown.panel.values().text, text);
        QVERIFY(!shown.panel.values().textIsEntry);
        QCOMPARE(txtText.count(), 54);
    }
}

void PropertyPanelTextTest::chosenEntryIsOne() {
    ShownPanel shown;
    shown.panel.showKind(ElementKind::Text);
    auto& txtText = shown.find<QComboBox>("txtText");
    chooseEntry(txtText, 2);
    QCOMPARE(txtText.currentText(), "CGTitle");
    QCOMPARE(shown.panel.values().text, "CGTitle");
    QVERIFY(shown.panel.values().textIsEntry);
}

void PropertyPanelTextTest::entryIsOneAgainAfterTyping() {
    ShownPanel shown;
    shown.panel.showKind(ElementKind::Text);
    auto& txtText = shown.find<QComboBox>("txtText");
    chooseInPopup(txtText, 18);
    QCOMPARE(shown.panel.values().text, "Time");
    typeOver(*txtText.lineEdit(), "Timer");
    QVERIFY(!shown.panel.values().textIsEntry);
    chooseInPopup(txtText, 18);
    QCOMPARE(txtText.currentText(), "Time");
    QCOMPARE(shown.panel.values().text, "Time");
    QVERIFY(shown.panel.values().textIsEntry);
}

void PropertyPanelTextTest::shownTextIsAnEntryWhenItIsASource() {
    ShownPanel shown;
    auto& txtText = shown.find<QComboBox>("txtText");
    shown.panel.showElement(textElement("Date", false));
    QCOMPARE(txtText.currentIndex(), 19);
    QCOMPARE(txtText.currentText(), "Date");
    QVERIFY(shown.panel.values().textIsEntry);
    // The same words as a fixed text.
    shown.panel.showElement(textElement("Date", true));
    QCOMPARE(txtText.currentIndex(), -1);
    QCOMPARE(txtText.currentText(), "Date");
    QVERIFY(!shown.panel.values().textIsEntry);
    // A source that the list does not have.
    shown.panel.showElement(textElement("Unlisted", false));
    QCOMPARE(txtText.currentText(), "Unlisted");
    QVERIFY(shown.panel.values().textIsEntry);
}

void PropertyPanelTextTest::fontIsCopiedWithoutItsSlant() {
    ShownPanel shown;
    shown.panel.showKind(ElementKind::Text);
    auto& cmdFont = shown.find<QPushButton>("cmdFont");
    QFont chosen("DejaVu Serif");
    chosen.setPointSizeF(20.5);
    chosen.setBold(true);
    chosen.setUnderline(true);
    chosen.setItalic(true);
    chosen.setStrikeOut(true);
    shown.prompts.fonts << chosen;
    click(cmdFont);
    QCOMPARE(
        shown.panel.values().font,
        (FontChoice{.family = "DejaVu Serif", .size = 20.5F, .bold = true, .underline = true}));
    QCOMPARE(cmdFont.font().family(), "DejaVu Serif");
    QCOMPARE(cmdFont.font().pointSizeF(), 20.5);
    QVERIFY(cmdFont.font().bold());
    QVERIFY(cmdFont.font().underline());
    QVERIFY(!cmdFont.font().italic());
    QVERIFY(!cmdFont.font().strikeOut());
    QCOMPARE(shown.find<QLabel>("fontName").text(), "DejaVu Serif, 20.5 pt, bold, underlined");
    // The chooser starts from the font chosen last.
    click(cmdFont);
    QCOMPARE(shown.prompts.initialFonts.size(), 2);
    QCOMPARE(shown.prompts.initialFonts.first().family(), "Tahoma");
    QCOMPARE(shown.prompts.initialFonts.first().pointSizeF(), 8.25);
    QCOMPARE(shown.prompts.initialFonts.last().family(), "DejaVu Serif");
    QVERIFY(shown.prompts.initialFonts.last().bold());
}

void PropertyPanelTextTest::cancelledFontChangesNothing() {
    ShownPanel shown;
    shown.panel.showKind(ElementKind::Text);
    const PanelValues before = shown.panel.values();
    click(shown.find<QPushButton>("cmdFont"));
    QCOMPARE(shown.prompts.initialFonts.size(), 1);
    QCOMPARE(shown.panel.values(), before);
}

void PropertyPanelTextTest::fontIsNotReadBack() {
    ShownPanel shown;
    Element text = textElement("Time", false);
    text.elementControl.font.edit() = {.family = "DejaVu Sans", .size = 30, .bold = true};
    shown.panel.showElement(text);
    QCOMPARE(shown.panel.values().font, FontChoice());
    QCOMPARE(shown.find<QPushButton>("cmdFont").font().family(), "Tahoma");
}

void PropertyPanelTextTest::buttonKeepsItsSizeInAnyFont() {
    ShownPanel shown;
    shown.panel.showKind(ElementKind::Text);
    auto& cmdFont = shown.find<QPushButton>("cmdFont");
    const QSize size = cmdFont.size();
    for (const double points : {1.0, 72.0, 400.0}) {
        QFont font("DejaVu Sans");
        font.setPointSizeF(points);
        shown.prompts.fonts << font;
        click(cmdFont);
        QCoreApplication::processEvents();
        QCOMPARE(cmdFont.font().pointSizeF(), points);
        QCOMPARE(cmdFont.size(), size);
    }
}

TARVEL_UI_TEST(PropertyPanelTextTest)
#include "property_panel_text_test.moc"
