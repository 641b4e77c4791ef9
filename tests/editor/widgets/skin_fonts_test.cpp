// Fonts of skins where the stand-in for Tahoma is used.
#include "support/ui_test.h"
#include "widgets/skin_fonts.h"

#include <QFontDatabase>
#include <QTest>

using namespace tarvel;

class SkinFontsTest : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase();
    void boldTahomaIsSpacedOut_data();
    void boldTahomaIsSpacedOut();
};

void SkinFontsTest::initTestCase() {
    if (QFontDatabase::hasFamily("Tahoma")) {
        QSKIP("this machine has a Tahoma");
    }
    (void)skinFont({});
    QVERIFY2(QFontDatabase::hasFamily("Tahoma"), "the stand-in is missing");
}

void SkinFontsTest::boldTahomaIsSpacedOut_data() {
    QTest::addColumn<QString>("family");
    QTest::addColumn<bool>("bold");
    QTest::addColumn<double>("spacing"); // percent; 0 where the font's own is kept
    QTest::newRow("bold") << "Tahoma" << true << 114.0;
    QTest::newRow("in other letters") << "TAHOMA" << true << 114.0;
    QTest::newRow("plain") << "Tahoma" << false << 0.0;
    QTest::newRow("another bold font") << "DejaVu Sans" << true << 0.0;
}

void SkinFontsTest::boldTahomaIsSpacedOut() {
    QFETCH(QString, family);
    QFETCH(bool, bold);
    QFETCH(double, spacing);
    const QFont font = skinFont({.family = family.toStdString(), .bold = bold});
    QCOMPARE(font.letterSpacing(), spacing);
    QCOMPARE(font.letterSpacingType(), QFont::PercentageSpacing);
}

TARVEL_UI_TEST(SkinFontsTest)
#include "skin_fonts_test.moc"
