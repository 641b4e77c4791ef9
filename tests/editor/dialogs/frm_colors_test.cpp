// The System colours dialog: what its controls show, set and refuse.
#include "dialogs/frm_colors.h"
#include "support/dialog_support.h"
#include "support/scripted_prompts.h"
#include "support/ui_test.h"
#include "widgets/color_swatch.h"
#include "widgets/qt_text.h"

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

#include <algorithm>

namespace tarvel {

using test::click;
using test::control;
using test::typeOver;

namespace {

// The names of the widgets of a type in a group, from top to bottom.
template <class Widget> QStringList downward(const QGroupBox& group, QString (*text)(Widget*)) {
    auto found = group.findChildren<Widget*>(QString(), Qt::FindDirectChildrenOnly);
    std::stable_sort(found.begin(), found.end(), [](const Widget* a, const Widget* b) {
        return a->geometry().center().y() < b->geometry().center().y();
    });
    QStringList texts;
    for (Widget* widget : found) {
        texts << text(widget);
    }
    return texts;
}

QColor textColor(const QWidget& label) {
    return label.palette().color(QPalette::WindowText);
}

} // namespace

class FrmColorsTest : public QObject {
    Q_OBJECT

  private slots:
    void init();
    void showsItsTexts();
    void labelsArePairedByPosition();
    void showsTheDocumentEachTimeItIsOpened();
    void chosenColorGoesToItsPlace_data();
    void chosenColorGoesToItsPlace();
    void cancelledChooserChangesNothing();
    void samplesLookLikeWhatTheyStandFor();
    void opacityGoesToTheDocumentAtOnce();
    void opacityShowsInTheSample();
    void properOpacitiesClose_data();
    void properOpacitiesClose();
    void improperOpacityKeepsTheDialogOpen_data();
    void improperOpacityKeepsTheDialogOpen();
    void bothImproperGiveOneMessage();
    void everyWayOfClosingChecks_data();
    void everyWayOfClosingChecks();
    void worksByKeysAlone();
    void controlsHaveAccessibleNames();

  private:
    const SystemColors& colors() const { return document_.settings().systemColors; }
    void setColors(const SystemColors& value) {
        document_.editSettings([&](SkinSettings& settings) { settings.systemColors = value; });
    }

    SkinDocument document_;
    std::unique_ptr<test::ScriptedPrompts> prompts_;
};

void FrmColorsTest::init() {
    document_ = SkinDocument();
    prompts_ = std::make_unique<test::ScriptedPrompts>();
}

void FrmColorsTest::showsItsTexts() {
    FrmColors dialog(document_, *prompts_);
    QVERIFY(!dialog.isVisible());
    QVERIFY(dialog.isModal());
    QCOMPARE(dialog.objectName(), "frmColors");
    QCOMPARE(dialog.windowTitle(), "  :: System Colors ::");
    QVERIFY(test::open(dialog));
    const auto groups = dialog.findChildren<QGroupBox*>();
    QCOMPARE(groups.size(), 2);
    QCOMPARE(groups[0]->title(), "MESSAGE BOX:");
    QCOMPARE(groups[1]->title(), "SYSTEM MENU:");
    QVERIFY(groups[0]->y() < groups[1]->y());
    for (int box = 0; box < 2; ++box) {
        const auto& edit = control<QLineEdit>(dialog, QStringLiteral("txtAlpha(%1)").arg(box));
        QCOMPARE(edit.text(), "100");
        QVERIFY(groups[box]->isAncestorOf(&edit));
        const auto* label = edit.parentWidget()->findChild<QLabel*>();
        QCOMPARE(label->text(), " Opacity            %");
    }
    const QStringList samples = {"Text", "Text", "Selected", "Value", "Unselected", "Value"};
    for (int i = 0; i < samples.size(); ++i) {
        QCOMPARE(control<QLabel>(dialog, QStringLiteral("txt(%1)").arg(i)).text(), samples[i]);
    }
}

void FrmColorsTest::labelsArePairedByPosition() {
    FrmColors dialog(document_, *prompts_);
    QVERIFY(test::open(dialog));
    const auto groups = dialog.findChildren<QGroupBox*>();
    const auto labels = [&](int group) {
        return downward<QLabel>(*groups[group], [](QLabel* label) { return label->text(); });
    };
    const auto boxes = [&](int group) {
        return downward<ColorSwatch>(*groups[group],
                                     [](ColorSwatch* swatch) { return swatch->objectName(); });
    };
    QCOMPARE(labels(0), (QStringList{"Boder Color", "Text Color", "Shadow Color", "Box Color"}));
    QCOMPARE(boxes(0), (QStringList{"bColor(0)", "Col(0)", "Col(1)", "fColor(0)"}));
    QCOMPARE(labels(1), (QStringList{"Boder Color", "Text Color", "Select Color", "Value Color",
                                     "Select Value Color"}));
    QCOMPARE(boxes(1),
             (QStringList{"bColor(1)", "Col(4)", "Col(2)", "Col(5)", "Col(3)", "fColor(1)"}));
}

void FrmColorsTest::showsTheDocumentEachTimeItIsOpened() {
    FrmColors dialog(document_, *prompts_);
    for (const ColorNumber base : {0x102030U, 0x405060U}) {
        SystemColors value;
        value.boxes = {SampleBox{base, base + 1}, SampleBox{base + 2, base + 3}};
        for (unsigned i = 0; i < 6; ++i) {
            value.texts[i] = base + 4 + i;
        }
        value.opacityTexts = {"40", "050 %"};
        setColors(value);
        QVERIFY(test::open(dialog));
        const auto shown = [&](const char* name) {
            return control<ColorSwatch>(dialog, QLatin1String(name)).color();
        };
        QCOMPARE(shown("fColor(0)"), base);
        QCOMPARE(shown("bColor(0)"), base + 1);
        QCOMPARE(shown("fColor(1)"), base + 2);
        QCOMPARE(shown("bColor(1)"), base + 3);
        for (unsigned i = 0; i < 6; ++i) {
            const QString index = QString::number(i);
            QCOMPARE(shown(qPrintable("Col(" + index + ")")), base + 4 + i);
            QCOMPARE(textColor(control<QLabel>(dialog, "txt(" + index + ")")),
                     qtColor(base + 4 + i));
        }
        QCOMPARE(control<QLineEdit>(dialog, "txtAlpha(0)").text(), "40");
        QCOMPARE(control<QLineEdit>(dialog, "txtAlpha(1)").text(), "050 %");
        QCOMPARE(colors(), value); // looking changes nothing
        QVERIFY(test::close(dialog));
    }
}

void FrmColorsTest::chosenColorGoesToItsPlace_data() {
    QTest::addColumn<QString>("box");
    for (const char* box : {"bColor(0)", "fColor(0)", "bColor(1)", "fColor(1)", "Col(0)", "Col(1)",
                            "Col(2)", "Col(3)", "Col(4)", "Col(5)"}) {
        QTest::newRow(box) << box;
    }
}

void FrmColorsTest::chosenColorGoesToItsPlace() {
    QFETCH(QString, box);
    const auto index = static_cast<std::size_t>(box.at(box.size() - 2).digitValue());
    const QColor chosen(18, 52, 86);
    SystemColors expected;
    ColorNumber* place = &expected.texts.at(box.startsWith("Col") ? index : 0);
    if (box.startsWith('b')) {
        place = &expected.boxes.at(index).borderColor;
    } else if (box.startsWith('f')) {
        place = &expected.boxes.at(index).fillColor;
    }
    const ColorNumber before = *place;
    *place = makeColor(18, 52, 86);

    FrmColors dialog(document_, *prompts_);
    QVERIFY(test::open(dialog));
    prompts_->colors = {chosen};
    click(control<QWidget>(dialog, box));
    QCOMPARE(prompts_->initialColors, QList<QColor>{qtColor(before)});
    QCOMPARE(prompts_->lastOwner, &dialog);
    QCOMPARE(colors(), expected);
    QCOMPARE(control<ColorSwatch>(dialog, box).color(), *place);
    if (box.startsWith("Col")) {
        QCOMPARE(textColor(control<QLabel>(dialog, "txt(" + QString::number(index) + ")")), chosen);
    }
}

void FrmColorsTest::cancelledChooserChangesNothing() {
    FrmColors dialog(document_, *prompts_);
    QVERIFY(test::open(dialog));
    for (const char* box : {"bColor(0)", "fColor(1)", "Col(3)"}) {
        click(control<QWidget>(dialog, QLatin1String(box)));
    }
    QCOMPARE(prompts_->initialColors.size(), 3);
    QCOMPARE(colors(), SystemColors());
}

void FrmColorsTest::samplesLookLikeWhatTheyStandFor() {
    SystemColors value;
    value.boxes = {SampleBox{makeColor(255, 0, 0), makeColor(0, 255, 0)},
                   SampleBox{makeColor(0, 0, 255), makeColor(255, 255, 0)}};
    setColors(value);
    FrmColors dialog(document_, *prompts_);
    QVERIFY(test::open(dialog));
    for (int box = 0; box < 2; ++box) {
        auto& sample = control<QWidget>(dialog, QStringLiteral("shp(%1)").arg(box));
        const QImage image = sample.grab().toImage();
        const int middle = image.height() / 2;
        // From the left edge: the ground, two pixels of border, the fill.
        int x = 0;
        const QColor border = qtColor(value.boxes[std::size_t(box)].borderColor);
        while (x < image.width() && image.pixelColor(x, middle) != border) {
            ++x;
        }
        QVERIFY(x > 0 && x < image.width() / 4);
        QCOMPARE(image.pixelColor(x + 1, middle), border);
        QCOMPARE(image.pixelColor(x + 2, middle), qtColor(value.boxes[std::size_t(box)].fillColor));
    }
    // The shadow lies behind the text, a little to the right and below.
    const auto& text = control<QLabel>(dialog, "txt(0)");
    const auto& shadow = control<QLabel>(dialog, "txt(1)");
    QCOMPARE(shadow.geometry(), text.geometry().translated(2, 2));
    const auto& siblings = text.parentWidget()->children();
    QVERIFY(siblings.indexOf(&shadow) < siblings.indexOf(&text));
    // The menu has its values at the right of its lines.
    const auto place = [&](int index) {
        return control<QLabel>(dialog, QStringLiteral("txt(%1)").arg(index)).geometry();
    };
    QCOMPARE(place(2).top(), place(3).top());
    QCOMPARE(place(4).top(), place(5).top());
    QVERIFY(place(4).top() > place(2).bottom());
    QCOMPARE(place(2).left(), place(4).left());
    QCOMPARE(place(3).right(), place(5).right());
    QVERIFY(place(3).left() > place(4).right());
}

void FrmColorsTest::opacityGoesToTheDocumentAtOnce() {
    FrmColors dialog(document_, *prompts_);
    QVERIFY(test::open(dialog));
    typeOver(control<QLineEdit>(dialog, "txtAlpha(0)"), "75");
    typeOver(control<QLineEdit>(dialog, "txtAlpha(1)"), "x");
    QCOMPARE(colors().opacityTexts, (std::array<std::string, 2>{"75", "x"}));
    typeOver(control<QLineEdit>(dialog, "txtAlpha(1)"), "");
    QCOMPARE(colors().opacityTexts[1], "");
    SystemColors expected;
    expected.opacityTexts = {"75", ""};
    QCOMPARE(colors(), expected);
}

void FrmColorsTest::opacityShowsInTheSample() {
    FrmColors dialog(document_, *prompts_);
    QVERIFY(test::open(dialog));
    auto& edit = control<QLineEdit>(dialog, "txtAlpha(0)");
    auto& sample = control<QWidget>(dialog, "shp(0)");
    const auto inside = [&] {
        return sample.grab().toImage().pixelColor(sample.width() / 5, sample.height() / 2);
    };
    const QColor opaque = inside();
    QCOMPARE(opaque, qtColor(SystemColors().boxes[0].fillColor));
    typeOver(edit, "50");
    QVERIFY(inside() != opaque);
    typeOver(edit, "250");
    QCOMPARE(inside(), opaque);
}

void FrmColorsTest::properOpacitiesClose_data() {
    QTest::addColumn<QString>("text");
    for (const char* text : {"0", "1", "100", "250", "-5", "50%"}) {
        QTest::newRow(text) << text;
    }
}

void FrmColorsTest::properOpacitiesClose() {
    QFETCH(QString, text);
    FrmColors dialog(document_, *prompts_);
    QVERIFY(test::open(dialog));
    typeOver(control<QLineEdit>(dialog, "txtAlpha(0)"), text);
    typeOver(control<QLineEdit>(dialog, "txtAlpha(1)"), text);
    click(control<QPushButton>(dialog, "cmdOK"));
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(prompts_->messages, QStringList());
}

void FrmColorsTest::improperOpacityKeepsTheDialogOpen_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    for (const char* name : {"txtAlpha(0)", "txtAlpha(1)"}) {
        for (const char* text : {"", "0.0", "abc", "00"}) {
            QTest::addRow("%s '%s'", name, text) << name << text;
        }
    }
}

void FrmColorsTest::improperOpacityKeepsTheDialogOpen() {
    QFETCH(QString, name);
    QFETCH(QString, text);
    FrmColors dialog(document_, *prompts_);
    QVERIFY(test::open(dialog));
    auto& edit = control<QLineEdit>(dialog, name);
    typeOver(edit, text);
    click(control<QPushButton>(dialog, "cmdOK"));
    QVERIFY(dialog.isVisible());
    QCOMPARE(prompts_->messages, QStringList{"Enter a proper opacity value"});
    QCOMPARE(prompts_->lastOwner, &dialog);
    QVERIFY(edit.hasFocus());
    QCOMPARE(edit.selectedText(), text);
    QTest::keyClicks(&edit, "9");
    QTest::keyClick(&edit, Qt::Key_Return);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(prompts_->messages.size(), 1);
}

void FrmColorsTest::bothImproperGiveOneMessage() {
    FrmColors dialog(document_, *prompts_);
    QVERIFY(test::open(dialog));
    typeOver(control<QLineEdit>(dialog, "txtAlpha(0)"), "");
    typeOver(control<QLineEdit>(dialog, "txtAlpha(1)"), "");
    click(control<QPushButton>(dialog, "cmdOK"));
    QCOMPARE(prompts_->messages.size(), 1);
    QVERIFY(control<QLineEdit>(dialog, "txtAlpha(0)").hasFocus());
    QTest::keyClicks(dialog.focusWidget(), "60");
    click(control<QPushButton>(dialog, "cmdOK"));
    QCOMPARE(prompts_->messages.size(), 2);
    QVERIFY(control<QLineEdit>(dialog, "txtAlpha(1)").hasFocus());
    QVERIFY(dialog.isVisible());
}

void FrmColorsTest::everyWayOfClosingChecks_data() {
    QTest::addColumn<QString>("how");
    for (const char* how : {"Enter", "Escape", "close button"}) {
        QTest::newRow(how) << how;
    }
}

void FrmColorsTest::everyWayOfClosingChecks() {
    QFETCH(QString, how);
    FrmColors dialog(document_, *prompts_);
    const auto close = [&] {
        if (how == "close button") {
            dialog.close();
        } else {
            QTest::keyClick(dialog.focusWidget(), how == "Enter" ? Qt::Key_Return : Qt::Key_Escape);
        }
    };
    bool stayedOpen = false;
    QTimer::singleShot(0, &dialog, [&] {
        typeOver(control<QLineEdit>(dialog, "txtAlpha(1)"), "none");
        close();
        stayedOpen = dialog.isVisible();
        typeOver(control<QLineEdit>(dialog, "txtAlpha(1)"), "80");
        close();
    });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QVERIFY(stayedOpen);
    QCOMPARE(prompts_->messages, QStringList{"Enter a proper opacity value"});
    QCOMPARE(colors().opacityTexts[1], "80");
}

void FrmColorsTest::worksByKeysAlone() {
    FrmColors dialog(document_, *prompts_);
    QVERIFY(test::open(dialog));
    QStringList visited;
    for (int i = 0; i < 13; ++i) {
        visited << dialog.focusWidget()->objectName();
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(visited, (QStringList{"bColor(0)", "Col(0)", "Col(1)", "fColor(0)", "txtAlpha(0)",
                                   "bColor(1)", "Col(4)", "Col(2)", "Col(5)", "Col(3)", "fColor(1)",
                                   "txtAlpha(1)", "cmdOK"}));
    QVERIFY(control<QWidget>(dialog, "bColor(0)").hasFocus());
    prompts_->colors = {QColor(1, 2, 3)};
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Space);
    QCOMPARE(colors().boxes[0].borderColor, makeColor(1, 2, 3));
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
    QVERIFY(!dialog.isVisible());
}

void FrmColorsTest::controlsHaveAccessibleNames() {
    const FrmColors dialog(document_, *prompts_);
    QCOMPARE(test::withoutAccessibleName(dialog), QStringList());
}

} // namespace tarvel

TARVEL_UI_TEST(tarvel::FrmColorsTest)
#include "frm_colors_test.moc"
