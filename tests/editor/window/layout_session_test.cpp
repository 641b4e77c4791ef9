// A whole sitting: a screen of thirty elements laid out several at a time, saved to exact bytes,
// and undone back to the empty document.
#include "support/clipboard_support.h"
#include "support/menu_support.h"
#include "support/skin_head.h"
#include "support/ui_test.h"

#include <QAbstractButton>
#include <QComboBox>

#include <array>

using namespace tarvel;
using namespace tarvel::test;

namespace {

constexpr int mainScreen = 1;

enum class Kind : std::uint8_t { box, line, text };

// An element of the file: a box has its fill and its border as colours, a line its own, and a text
// its caption and its colour. The place is left, top, width and height, or both ends.
struct Wanted {
    Kind kind;
    const char* first;
    const char* second;
    std::array<int, 4> place;
};

constexpr auto panelFill = "0x80285078";   // 50 %
constexpr auto thinFill = "0x40285078";    // 25 %
constexpr auto panelBorder = "0xFF7896C8"; // 120, 150, 200
constexpr auto lightBorder = "0xFFC8DCFF"; // 200, 220, 255
constexpr auto slotFill = "0xBF5A3C78";    // 75 % of 90, 60, 120
constexpr auto slotBorder = "0xFFE6C8FF";  // 230, 200, 255
constexpr auto lineColor = "0xFF00A000";
constexpr auto itemColor = "0xFFFFD25A"; // 255, 210, 90
constexpr auto white = "0xFFFFFFFF";

// From the back to the front. Everything but the locked ground went 10 down at the end.
constexpr std::array<Wanted, 30> screen = {{
    {Kind::box, "0xFF080C1E", "0xFF102040", {0, 0, 640, 480}}, // fills the screen, at the back
    {Kind::box, "0xFF143C78", panelBorder, {20, 30, 600, 50}},
    // The first column: as large as the first one, aligned to it, with gaps of 25.
    {Kind::box, panelFill, panelBorder, {40, 110, 90, 50}},
    {Kind::box, panelFill, panelBorder, {40, 185, 90, 50}},
    {Kind::box, panelFill, panelBorder, {40, 260, 90, 50}},
    {Kind::box, panelFill, panelBorder, {40, 335, 90, 50}},
    // As wide as the first one, their right ends at its own, and with gaps of 12.
    {Kind::line, lineColor, nullptr, {40, 430, 600, 430}},
    {Kind::line, lineColor, nullptr, {40, 442, 600, 442}},
    {Kind::line, lineColor, nullptr, {40, 454, 600, 460}},
    // Two texts drawn and four pasted, amid each other: 28 from top to top, then 1.25 times that.
    {Kind::text, "Open", itemColor, {520, 110, 100, 25}},
    {Kind::text, "Open", itemColor, {520, 215, 100, 25}},
    // The second column snapped to the right end of the title and to the tops of the first one.
    {Kind::box, thinFill, lightBorder, {150, 110, 90, 50}},
    {Kind::box, thinFill, lightBorder, {150, 185, 90, 50}},
    {Kind::box, thinFill, lightBorder, {150, 260, 90, 50}},
    {Kind::box, thinFill, lightBorder, {150, 335, 90, 50}},
    // The third one to the gap of 20 that is between the others.
    {Kind::box, thinFill, lightBorder, {260, 110, 90, 50}},
    {Kind::box, thinFill, lightBorder, {260, 185, 90, 50}},
    {Kind::box, thinFill, lightBorder, {260, 260, 90, 50}},
    {Kind::box, thinFill, lightBorder, {260, 335, 90, 50}},
    {Kind::text, "Open", itemColor, {520, 145, 100, 25}},
    {Kind::text, "Open", itemColor, {520, 250, 100, 25}},
    {Kind::text, "Open", itemColor, {520, 180, 100, 25}},
    {Kind::text, "Open", itemColor, {520, 285, 100, 25}},
    // Drawn between edges of the others, then copied to a place that was typed, and up from there.
    {Kind::box, slotFill, slotBorder, {520, 335, 100, 50}},
    {Kind::box, slotFill, slotBorder, {410, 335, 100, 50}},
    {Kind::box, slotFill, slotBorder, {410, 260, 100, 50}},
    {Kind::box, slotFill, slotBorder, {410, 185, 100, 50}},
    {Kind::box, slotFill, slotBorder, {410, 110, 100, 50}},
    // The shadow of the title, and the title brought before it.
    {Kind::text, "Night sky", "0x80000000", {42, 40, 200, 32}},
    {Kind::text, "Night sky", white, {40, 38, 200, 32}},
}};

const QString fileBeginning = skinHead("Thirty") + QStringLiteral(R"(	<Layout Screen="Menu">
)");
const QString fileEnd = QStringLiteral("\t</Layout>\n</Skin>\n\n");

QString leaf(const char* name, const char* value) {
    return QStringLiteral("\t\t\t<%1>%2</%1>\n").arg(QLatin1String(name), QLatin1String(value));
}

QString position(const std::array<const char*, 4>& names, const std::array<int, 4>& place) {
    QString line = QStringLiteral("\t\t\t<Pos");
    for (std::size_t i = 0; i < names.size(); ++i) {
        line += QStringLiteral(" %1=\"%2\"").arg(QLatin1String(names.at(i))).arg(place.at(i));
    }
    return line + QStringLiteral("/>\n");
}

QString linesOf(const Wanted& element) {
    const QString area = position({"L", "T", "W", "H"}, element.place);
    switch (element.kind) {
    case Kind::box:
        return leaf("Color", element.first) + leaf("BorderColor", element.second) + area;
    case Kind::line:
        return position({"X1", "Y1", "X2", "Y2"}, element.place) + leaf("Color", element.first);
    case Kind::text:
        break;
    }
    return leaf("Constant", element.first) + leaf("TextColor", element.second) + area;
}

QByteArray expectedFile() {
    constexpr std::array types = {"Box", "Line", "Text"};
    QString text = fileBeginning;
    for (const Wanted& element : screen) {
        const auto* type = types.at(static_cast<std::size_t>(element.kind));
        text += QStringLiteral("\t\t<LayoutElement Type=\"%1\">\n").arg(QLatin1String(type)) +
                linesOf(element) + QStringLiteral("\t\t</LayoutElement>\n");
    }
    text += fileEnd;
    return text.replace(QLatin1Char('\n'), QStringLiteral("\r\n")).toUtf8();
}

QByteArray fileIn(const QString& folder) {
    QFile file(folder + QStringLiteral("/QOR_Skin.xml"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QList<QByteArray> linesIn(const QByteArray& file) {
    return file.split('\n');
}

/// The hands of the user.
struct Hands : Editor {
    void menu(const char* name) {
        QVERIFY2(choose(*this, name), name);
        QVERIFY2(activate(window), name); // a menu takes the keys for a while
    }
    void menus(std::initializer_list<const char*> names) {
        for (const char* name : names) {
            menu(name);
        }
    }
    void keyOnSurface(Qt::Key which, Qt::KeyboardModifiers keys = Qt::ControlModifier) {
        pic()->setFocus();
        key(which, keys);
    }
    void color(const char* well, const QColor& color) {
        prompts.colors << color;
        test::click(*find<QWidget>(well));
        QVERIFY2(prompts.colors.isEmpty(), well);
    }
    void opacity(const char* percent) { typeOver(*find<QLineEdit>("txtAlpha"), percent); }
    void area(const QColor& fill, const QColor& border, const char* percent) {
        color("fColor", fill);
        color("lColor", border);
        opacity(percent);
    }
    void caption(const char* text) { typeOver(*find<QComboBox>("txtText")->lineEdit(), text); }
    void enter(const char* field, const char* text) {
        typeOver(*find<QLineEdit>(field), text);
        QTest::keyClick(find<QWidget>(field), Qt::Key_Return);
    }
    void apply() { test::click(*find<QWidget>("cmdApply")); }
    /// Chooses a tool for several elements.
    void keepTool(const char* name) {
        auto* button = find<QAbstractButton>(name);
        QTest::mouseClick(button, Qt::LeftButton);
        QTest::mouseDClick(button, Qt::LeftButton);
        QTRY_VERIFY(find<QWidget>("picBox")->isHidden());
    }
    void letToolGo(const char* name) {
        keyOnSurface(Qt::Key_Escape, {});
        QVERIFY2(!find<QAbstractButton>(name)->isChecked(), name);
    }
    void ctrlClick(QPoint at) { QTest::mouseClick(pic(), Qt::LeftButton, Qt::ControlModifier, at); }
    void dragWith(Qt::KeyboardModifier held, QPoint from, QPoint to) {
        QTest::mousePress(pic(), Qt::LeftButton, held, from);
        drag((from + to) / 2, held);
        drag(to, held);
        QTest::mouseRelease(pic(), Qt::LeftButton, held, to);
    }
    void compareCounts(int elements, int selected) {
        QCOMPARE(document().rowCount(mainScreen), elements);
        QCOMPARE(static_cast<int>(selectedRows(*this, mainScreen).size()), selected);
    }
    void saveAs(const QString& skinFolder) {
        prompts.folders << skinFolder;
        QStringList dialogs;
        closeNextDialog(dialogs);
        menu("mnuSave");
        QCOMPARE(dialogs, QStringList("frmInstructions"));
        QCOMPARE(prompts.messages, QStringList());
        QVERIFY(activate(window));
    }
};

} // namespace

class LayoutSessionTest : public QObject {
    Q_OBJECT

  private slots:
    void cleanup() { clipboard().clear(); }
    void laidOutSavedAndUndone();

  private:
    static void drawHeader(Hands& user);
    static void drawColumn(Hands& user);
    static void drawLines(Hands& user);
    static void drawItems(Hands& user);
    static void arrangeColumn(Hands& user);
    static void copyColumn(Hands& user);
    static void pasteItems(Hands& user);
    static void arrangeItems(Hands& user);
    static void arrangeLines(Hands& user);
    static void drawSlots(Hands& user);
    static void layGround(Hands& user);
    static void thinColumns(Hands& user);
    static void shadeTitle(Hands& user);
    static void moveAll(Hands& user);
    static void nameIt(Hands& user);
    static void layOut(Hands& user);
    static int walk(Hands& user, const char* entry, Qt::Key key);
};

void LayoutSessionTest::drawHeader(Hands& user) {
    user.chooseTool("optBox");
    user.area(QColor(20, 60, 120), QColor(120, 150, 200), "100");
    user.pressDragRelease({20, 20}, {620, 70});
    user.chooseTool("optText");
    user.caption("Night sky");
    user.color("fColor", Qt::white);
    user.opacity("100");
    user.pressDragRelease({40, 28}, {240, 60});
    user.compareCounts(2, 1);
}

void LayoutSessionTest::drawColumn(Hands& user) {
    user.keepTool("optBox");
    user.area(QColor(40, 80, 120), QColor(120, 150, 200), "50");
    user.pressDragRelease({40, 100}, {130, 150});
    user.pressDragRelease({45, 170}, {125, 210});
    user.pressDragRelease({60, 235}, {150, 275});
    user.pressDragRelease({38, 325}, {138, 385});
    user.letToolGo("optBox");
    user.compareCounts(6, 1);
}

void LayoutSessionTest::drawLines(Hands& user) {
    user.keepTool("optLine");
    user.color("lColor", QColor(0, 160, 0));
    user.pressDragRelease({40, 420}, {600, 420});
    user.pressDragRelease({60, 430}, {580, 430});
    user.pressDragRelease({50, 444}, {600, 450});
    user.letToolGo("optLine");
}

void LayoutSessionTest::drawItems(Hands& user) {
    user.keepTool("optText");
    user.caption("Open");
    user.color("fColor", Qt::white);
    user.opacity("100");
    user.pressDragRelease({500, 100}, {580, 120});
    user.pressDragRelease({500, 220}, {580, 240});
    user.letToolGo("optText");
    user.compareCounts(11, 1);
}

void LayoutSessionTest::arrangeColumn(Hands& user) {
    user.click({85, 190});
    user.ctrlClick({105, 255});
    user.ctrlClick({88, 355});
    user.ctrlClick({85, 125}); // which leads
    user.compareCounts(11, 4);
    user.menus({"mnuSameSize", "mnuAlignLeft", "mnuDistributeDown"});
}

void LayoutSessionTest::copyColumn(Hands& user) {
    user.menu("mnuSnapElements");
    user.keyOnSurface(Qt::Key_D);
    user.compareCounts(15, 4);
    user.pressDragRelease({95, 140}, {198, 131});           // to 153, 101 without snapping
    user.dragWith(Qt::AltModifier, {195, 125}, {302, 126}); // to 257, 101
    user.menu("mnuSnapElements");
    user.compareCounts(19, 4);
}

void LayoutSessionTest::pasteItems(Hands& user) {
    user.click({540, 110});
    user.ctrlClick({540, 230});
    user.keyOnSurface(Qt::Key_C);
    user.keyOnSurface(Qt::Key_V);
    user.keyOnSurface(Qt::Key_V);
    user.compareCounts(23, 2);
}

void LayoutSessionTest::arrangeItems(Hands& user) {
    user.pressDragRelease({480, 90}, {630, 170}); // rubber bands
    user.compareCounts(23, 3);
    user.dragWith(Qt::ControlModifier, {480, 200}, {630, 270});
    user.compareCounts(23, 6);
    user.menus({"mnuAlignLeft", "mnuDistributeDown"});
    user.pressDragRelease({600, 260}, {620, 300}); // the corner of the frame around them
    user.color("fColor", QColor(255, 210, 90));
    user.apply();
}

void LayoutSessionTest::arrangeLines(Hands& user) {
    selectRows(user, mainScreen, {7, 8, 6}); // the first one leads
    user.menus({"mnuSameWidth", "mnuAlignRight", "mnuDistributeDown"});
}

void LayoutSessionTest::drawSlots(Hands& user) {
    user.menu("mnuSnapElements");
    user.chooseTool("optBox");
    user.area(QColor(90, 60, 120), QColor(230, 200, 255), "75");
    user.pressDragRelease({517, 322}, {617, 378}); // within 3 of edges on all sides
    user.menu("mnuSnapElements");
    user.keyOnSurface(Qt::Key_D);
    user.enter("txtL", "410");
    user.enter("txtT", "325");
    for (const int y : {350, 275, 200}) {
        user.dragWith(Qt::AltModifier, {460, y}, {460, y - 75});
    }
    user.compareCounts(28, 1);
}

void LayoutSessionTest::layGround(Hands& user) {
    user.chooseTool("optBox");
    user.area(QColor(8, 12, 30), QColor(16, 32, 64), "100");
    user.pressDragRelease({400, 390}, {440, 410});
    user.menus({"mnuFillScreen", "mnuBack", "mnuLocked"});
    QCOMPARE(user.document().lockCount(mainScreen), 1);
    QCOMPARE(user.selectedRow(mainScreen), 0);
}

void LayoutSessionTest::thinColumns(Hands& user) {
    user.pressDragRelease({30, 400}, {355, 90});
    user.compareCounts(29, 12);
    for (const int y : {125, 200, 275, 350}) {
        user.ctrlClick({85, y}); // not the first column
    }
    user.compareCounts(29, 8);
    user.color("lColor", QColor(200, 220, 255));
    user.opacity("25");
    user.apply();
}

void LayoutSessionTest::shadeTitle(Hands& user) {
    user.click({140, 44});
    user.keyOnSurface(Qt::Key_D);
    user.enter("txtL", "42");
    user.enter("txtT", "30");
    user.color("fColor", Qt::black);
    user.opacity("50");
    user.apply();
    selectRows(user, mainScreen, {2});
    user.menu("mnuFront");
    user.compareCounts(30, 1);
}

void LayoutSessionTest::moveAll(Hands& user) {
    user.keyOnSurface(Qt::Key_A);
    user.compareCounts(30, 29); // not the locked ground
    user.keyOnSurface(Qt::Key_Down, {});
    user.keyOnSurface(Qt::Key_Down, Qt::ShiftModifier); // 9 more
}

void LayoutSessionTest::nameIt(Hands& user) {
    QVERIFY(inDialog(user, "mnuInfo", "frmInfo", [](QWidget& dialog) {
        typeOver(control<QLineEdit>(dialog, "txtName"), "Thirty");
    }));
    QVERIFY(activate(user.window));
}

void LayoutSessionTest::layOut(Hands& user) {
    const auto parts = {drawHeader, drawColumn,  drawLines,    drawItems,    arrangeColumn,
                        copyColumn, pasteItems,  arrangeItems, arrangeLines, drawSlots,
                        layGround,  thinColumns, shadeTitle,   moveAll,      nameIt};
    for (const auto part : parts) {
        part(user);
        if (QTest::currentTestFailed()) {
            return;
        }
    }
}

// Presses the key of Undo or Redo until the entry cannot be chosen; how often that was.
int LayoutSessionTest::walk(Hands& user, const char* entry, Qt::Key key) {
    constexpr int enough = 200;
    int steps = 0;
    while (user.entry(entry)->isEnabled() && steps < enough) {
        user.keyOnSurface(key);
        ++steps;
    }
    return steps;
}

void LayoutSessionTest::laidOutSavedAndUndone() {
    // 11 elements drawn, 3 arranged, 2 columns copied with a drag between, 2 pastes, 4 for the
    // items, 3 for the lines, 7 for the slots, 4 for the ground, 1 for the columns, 5 for the
    // title, the move of all, and the name.
    constexpr int wantedSteps = 11 + 3 + 3 + 2 + 4 + 3 + 7 + 4 + 1 + 5 + 1 + 1;
    Hands user;
    user.show();
    layOut(user);
    if (QTest::currentTestFailed()) {
        return;
    }
    const QString folder = user.newFolder(QStringLiteral("skin"));
    user.saveAs(folder);
    const QByteArray saved = fileIn(folder);
    QCOMPARE(linesIn(saved), linesIn(expectedFile()));
    const SkinDocument laidOut = user.document();

    QCOMPARE(walk(user, "mnuUndo", Qt::Key_Z), wantedSteps);
    QVERIFY(user.document().holdsTheSame(SkinDocument()));
    QCOMPARE(walk(user, "mnuRedo", Qt::Key_Y), wantedSteps);
    QVERIFY(user.document().holdsTheSame(laidOut));
    QCOMPARE(fileIn(folder), saved);
    const QString again = user.newFolder(QStringLiteral("again"));
    user.saveAs(again);
    QCOMPARE(fileIn(again), saved);
}

TARVEL_UI_TEST(LayoutSessionTest)
#include "layout_session_test.moc"
