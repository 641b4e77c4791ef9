// The style: contrast of all that it paints, the system's shade, headings, and the grid.
#include "support/ui_test.h"
#include "widgets/faint_text.h"
#include "widgets/style/contrast.h"
#include "widgets/style/palettes.h"
#include "widgets/style/tarvel_style.h"

#include <QCheckBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>

using namespace tarvel;

namespace {

struct Pair {
    const char* name;
    QColor over;
    QColor ground;
    double least;
};

// Everything that is read or told apart, on every ground that it stands on.
std::vector<Pair> pairsOf(const QPalette& palette) {
    const QColor window = palette.color(QPalette::Window);
    const QColor base = palette.color(QPalette::Base);
    const QColor button = palette.color(QPalette::Button);
    const QColor panel = panelGround(palette);
    const QColor text = palette.color(QPalette::Text);
    const QColor accent = palette.color(QPalette::Highlight);
    const QColor edge = palette.color(QPalette::Mid);
    const QColor off = palette.color(QPalette::Disabled, QPalette::WindowText);
    const QColor faint = faintText(palette);
    const auto over = [&](const QColor& ground) {
        return mixed(ground, faint, static_cast<double>(faint.alphaF()));
    };
    return {
        {"text on window", palette.color(QPalette::WindowText), window, textContrast},
        {"text on panel", palette.color(QPalette::WindowText), panel, textContrast},
        {"text on base", text, base, textContrast},
        {"text on alternate base", text, palette.color(QPalette::AlternateBase), textContrast},
        {"text on button", palette.color(QPalette::ButtonText), button, textContrast},
        {"text on button below the pointer", text, mixed(button, text, 0.08), textContrast},
        {"text on pressed button", text, mixed(button, text, 0.2), textContrast},
        {"text on accent", palette.color(QPalette::HighlightedText), accent, textContrast},
        {"text of tool tip", palette.color(QPalette::ToolTipText),
         palette.color(QPalette::ToolTipBase), textContrast},
        {"text of marked row", text, mixed(base, accent, 0.15), textContrast},
        {"hint on base", palette.color(QPalette::PlaceholderText), base, textContrast},
        {"faint on base", over(base), base, textContrast},
        {"faint on window", over(window), window, textContrast},
        {"faint on panel", over(panel), panel, textContrast},
        {"link on base", palette.color(QPalette::Link), base, textContrast},
        {"link on window", palette.color(QPalette::Link), window, textContrast},
        {"visited link on base", palette.color(QPalette::LinkVisited), base, textContrast},
        {"alarm on base", alarmColor(palette), base, textContrast},
        {"alarm on window", alarmColor(palette), window, textContrast},
        {"disabled on window", off, window, markContrast},
        {"disabled on panel", off, panel, markContrast},
        {"disabled on button", off, button, markContrast},
        {"disabled, selected", palette.color(QPalette::Disabled, QPalette::HighlightedText),
         palette.color(QPalette::Disabled, QPalette::Highlight), textContrast},
        {"edge on window", edge, window, markContrast},
        {"edge on panel", edge, panel, markContrast},
        {"edge on base", edge, base, markContrast},
        {"accent on window", accent, window, markContrast},
        {"accent on panel", accent, panel, markContrast},
        {"accent on base", accent, base, markContrast},
        {"accent on button", accent, button, markContrast},
        {"tick on accent", palette.color(QPalette::HighlightedText), accent, markContrast},
    };
}

QImage imageOf(QWidget& widget) {
    return widget.grab().toImage();
}

// What stands out in a part of a picture from the ground of that role.
QRect marksIn(const QImage& image, QPalette::ColorRole role, const QRect& part) {
    const QColor ground = QApplication::palette().color(role);
    QRect marks;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x) {
            if (contrast(image.pixelColor(x, y), ground) > markContrast) {
                marks |= QRect(x, y, 1, 1);
            }
        }
    }
    return marks;
}

} // namespace

class TarvelStyleTest : public QObject {
    Q_OBJECT

  private slots:
    void contrastIsEnough_data();
    void contrastIsEnough();
    void inactiveWindowsHaveTheSameColours();
    void theSystemsShadeIsTaken_data();
    void theSystemsShadeIsTaken();
    void checkedToolsHaveTheAccent();
    void captionsOfToolsStandInTheMiddle();
    void buttonsOfMenusHaveAnArrow();
    void framesAreWholeAtTheirCorners();
    void headingsAreBold();
    void focusIsSeen_data();
    void focusIsSeen();
    void distancesAreOnTheGrid();
    void dialogButtonsHaveOneOrder();
    void init() { QApplication::setStyle(new TarvelStyle); }
    void cleanup() { QApplication::setPalette({}); }
};

void TarvelStyleTest::contrastIsEnough_data() {
    QTest::addColumn<QColor>("over");
    QTest::addColumn<QColor>("ground");
    QTest::addColumn<double>("least");
    for (const Shade shade : {Shade::light, Shade::dark}) {
        for (const Pair& pair : pairsOf(paletteOf(shade))) {
            QTest::addRow("%s, %s", shade == Shade::light ? "light" : "dark", pair.name)
                << pair.over << pair.ground << pair.least;
        }
    }
}

void TarvelStyleTest::contrastIsEnough() {
    QFETCH(QColor, over);
    QFETCH(QColor, ground);
    QFETCH(double, least);
    const double found = contrast(over, ground);
    QVERIFY2(found >= least,
             qPrintable(QStringLiteral("%1 on %2: %3").arg(over.name(), ground.name()).arg(found)));
}

void TarvelStyleTest::inactiveWindowsHaveTheSameColours() {
    for (const Shade shade : {Shade::light, Shade::dark}) {
        const QPalette& palette = paletteOf(shade);
        for (int role = 0; role < QPalette::NColorRoles; ++role) {
            const auto asked = static_cast<QPalette::ColorRole>(role);
            QCOMPARE(palette.color(QPalette::Inactive, asked),
                     palette.color(QPalette::Active, asked));
        }
    }
}

void TarvelStyleTest::theSystemsShadeIsTaken_data() {
    QTest::addColumn<QColor>("ground");
    QTest::addColumn<QColor>("text");
    QTest::addColumn<Shade>("shade");
    QTest::newRow("light") << QColor(239, 239, 239) << QColor(Qt::black) << Shade::light;
    QTest::newRow("dark") << QColor(49, 54, 59) << QColor(239, 240, 241) << Shade::dark;
    QTest::newRow("black on white") << QColor(Qt::white) << QColor(Qt::black) << Shade::light;
    QTest::newRow("yellow on black") << QColor(Qt::black) << QColor(Qt::yellow) << Shade::dark;
}

void TarvelStyleTest::theSystemsShadeIsTaken() {
    QFETCH(QColor, ground);
    QFETCH(QColor, text);
    QFETCH(Shade, shade);
    QPalette palette;
    palette.setColor(QPalette::Window, ground);
    palette.setColor(QPalette::WindowText, text);
    QApplication::style()->polish(palette); // as Qt does with what the system gives
    QCOMPARE(palette, paletteOf(shade));
}

void TarvelStyleTest::checkedToolsHaveTheAccent() {
    for (const Shade shade : {Shade::light, Shade::dark}) {
        QApplication::setPalette(paletteOf(shade));
        QToolButton button;
        button.setText(QStringLiteral("Box"));
        button.setCheckable(true);
        button.resize(80, 30);
        const QColor idle = imageOf(button).pixelColor(40, 4);
        QCOMPARE(idle, paletteOf(shade).color(QPalette::Button));
        button.setChecked(true);
        QCOMPARE(imageOf(button).pixelColor(40, 4), paletteOf(shade).color(QPalette::Highlight));
    }
}

void TarvelStyleTest::captionsOfToolsStandInTheMiddle() {
    QToolButton button;
    QPixmap icon(16, 16);
    icon.fill(Qt::black);
    button.setIcon(icon);
    button.setIconSize({16, 16});
    button.setText(QStringLiteral("HHH"));
    button.setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button.resize(button.sizeHint());
    const QRect marks =
        marksIn(imageOf(button), QPalette::Button, button.rect().adjusted(3, 3, -3, -3));
    const int before = marks.left();
    const int behind = button.width() - 1 - marks.right();
    QVERIFY2(std::abs(before - behind) <= 3, qPrintable(QString("%1, %2").arg(before).arg(behind)));
}

void TarvelStyleTest::buttonsOfMenusHaveAnArrow() {
    QToolButton plain;
    QToolButton button;
    QMenu menu;
    button.setMenu(&menu);
    button.setPopupMode(QToolButton::InstantPopup);
    for (QToolButton* each : {&plain, &button}) {
        each->setText(QStringLiteral("HHH"));
        each->resize(each->sizeHint());
    }
    const int more = button.width() - plain.width();
    QVERIFY(more >= 12);
    const QRect arrow = marksIn(imageOf(button), QPalette::Button,
                                {button.width() - more, 3, more - 3, button.height() - 6});
    QVERIFY2(arrow.width() >= 7 && arrow.width() < more,
             qPrintable(QString::number(arrow.width())));
    QVERIFY(std::abs(arrow.center().y() - button.rect().center().y()) <= 1);
}

void TarvelStyleTest::framesAreWholeAtTheirCorners() {
    QListWidget list;
    list.resize(100, 80);
    const QImage image = imageOf(list);
    const QPalette palette = list.palette();
    const QColor edge = palette.color(QPalette::Mid);
    const QColor base = palette.color(QPalette::Base);
    QCOMPARE(image.pixelColor(0, 40), edge);
    QCOMPARE(image.pixelColor(50, 40), base);
    for (const QPoint corner : {QPoint(1, 1), QPoint(98, 1), QPoint(1, 78), QPoint(98, 78)}) {
        QVERIFY(contrast(image.pixelColor(corner), base) > contrast(edge, base) / 2);
    }
}

void TarvelStyleTest::headingsAreBold() {
    QGroupBox box(QStringLiteral("HEADING OF A PANEL"));
    QFont bold = box.font();
    bold.setBold(true);
    QVERIFY(box.minimumSizeHint().width() >= QFontMetrics(bold).horizontalAdvance(box.title()));
    auto* inside = new QLabel(QStringLiteral("text"));
    auto* column = new QVBoxLayout(&box);
    column->addWidget(inside);
    box.resize(300, 100);
    const QImage image = imageOf(box); // which lays it out
    QCOMPARE(inside->font().bold(), false);
    QVERIFY(inside->y() >= QFontMetrics(bold).height());
    // The heading takes the room of bold letters.
    const int textWidth = QFontMetrics(bold).horizontalAdvance(box.title());
    int last = 0;
    for (int x = 0; x < image.width(); ++x) {
        for (int y = 0; y < QFontMetrics(bold).height(); ++y) {
            if (contrast(image.pixelColor(x, y), panelGround(box.palette())) > markContrast) {
                last = x;
            }
        }
    }
    constexpr int margin = 8;
    QVERIFY(std::abs(last - (margin + textWidth)) <= 3);
}

void TarvelStyleTest::focusIsSeen_data() {
    QTest::addColumn<QString>("kind");
    for (const char* kind : {"QPushButton", "QToolButton", "QLineEdit", "QCheckBox"}) {
        QTest::newRow(kind) << QString::fromLatin1(kind);
    }
}

void TarvelStyleTest::focusIsSeen() {
    QFETCH(QString, kind);
    QWidget window;
    auto* column = new QVBoxLayout(&window);
    QWidget* control = nullptr;
    if (kind == QStringLiteral("QPushButton")) {
        control = new QPushButton(QStringLiteral("Caption"));
    } else if (kind == QStringLiteral("QToolButton")) {
        control = new QToolButton;
        control->setFocusPolicy(Qt::StrongFocus);
    } else if (kind == QStringLiteral("QLineEdit")) {
        control = new QLineEdit(QStringLiteral("text"));
    } else {
        control = new QCheckBox(QStringLiteral("Caption"));
    }
    auto* other = new QPushButton(QStringLiteral("Other"));
    column->addWidget(other);
    column->addWidget(control);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    other->setFocus(Qt::TabFocusReason);
    const QColor accent = window.palette().color(QPalette::Highlight);
    const auto accented = [&] {
        const QImage image = imageOf(*control);
        int count = 0;
        for (int x = 0; x < image.width(); ++x) {
            for (int y = 0; y < image.height(); ++y) {
                count += static_cast<int>(image.pixelColor(x, y) == accent);
            }
        }
        return count;
    };
    QCOMPARE(accented(), 0);
    QTest::keyClick(other, Qt::Key_Tab);
    QCOMPARE(window.focusWidget(), control);
    QVERIFY(accented() >= control->width() / 2);
}

void TarvelStyleTest::distancesAreOnTheGrid() {
    const QDialog dialog;
    const QWidget window;
    for (const QWidget* widget : {static_cast<const QWidget*>(&dialog), &window}) {
        for (const auto metric :
             {QStyle::PM_LayoutLeftMargin, QStyle::PM_LayoutTopMargin, QStyle::PM_LayoutRightMargin,
              QStyle::PM_LayoutBottomMargin, QStyle::PM_LayoutHorizontalSpacing,
              QStyle::PM_LayoutVerticalSpacing}) {
            const int distance = widget->style()->pixelMetric(metric, nullptr, widget);
            QVERIFY(distance == TarvelStyle::gridStep || distance == 2 * TarvelStyle::gridStep);
        }
    }
}

void TarvelStyleTest::dialogButtonsHaveOneOrder() {
    QDialogButtonBox buttons(QDialogButtonBox::Cancel | QDialogButtonBox::Ok);
    buttons.resize(400, 40);
    buttons.show();
    QVERIFY(buttons.button(QDialogButtonBox::Ok)->x() <
            buttons.button(QDialogButtonBox::Cancel)->x());
}

TARVEL_UI_TEST(TarvelStyleTest)
#include "tarvel_style_test.moc"
