// A whole sitting: a skin drawn by mouse and keys alone, saved, and loaded again.
#include "document/normalised.h"
#include "skinfile/skin_folder.h"
#include "support/editor.h"
#include "support/skin_head.h"
#include "support/ui_test.h"

#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>

#include <functional>

using namespace tarvel;
using namespace tarvel::test;

namespace {

constexpr int titleScreen = 0;
constexpr int mainScreen = 1;
constexpr int filesScreen = 5;

const QString skinBeginning =
    skinHead("One sitting") + QStringLiteral(R"(	<Resource Type="Image" Name="logo">
		<File>Media\logo.png</File>
	</Resource>
	<Resource Type="Image" Name="photo">
		<File>Media\photo.bmp</File>
	</Resource>
)");

const QString titleLayout = QStringLiteral(R"(	<Layout Screen="Title">
		<LayoutElement Type="Image" Source="logo">
			<Scaling X="True" Y="True"/>
			<Pos L="10" T="10" W="192" H="96"/>
		</LayoutElement>
		<LayoutElement Type="Image" Source="photo">
			<Scaling X="True" Y="True"/>
			<Pos L="400" T="300" W="64" H="32"/>
		</LayoutElement>
	</Layout>
)");

const QString mainLayout = QStringLiteral(R"(	<Layout Screen="Menu">
		<LayoutElement Type="Text">
			<Constant>Hello, "console" & all</Constant>
			<TextColor>0xFFFFFFFF</TextColor>
			<Pos L="300" T="60" W="200" H="30"/>
		</LayoutElement>
		<LayoutElement Type="Box">
			<Color>0x80C82828</Color>
			<BorderColor>0xFF102040</BorderColor>
			<Pos L="138" T="49" W="160" H="100"/>
		</LayoutElement>
		<LayoutElement Type="Line">
			<Pos X1="20" Y1="470" X2="620" Y2="440"/>
			<Color>0xFF00A000</Color>
		</LayoutElement>
		<LayoutElement Type="Text" Source="Time">
			<TextColor>0xBFFFD25A</TextColor>
			<Pos L="300" T="20" W="120" H="30"/>
		</LayoutElement>
	</Layout>
)");

const QString filesLayout = QStringLiteral(R"(	<Layout Screen="FileManager">
		<LayoutElement Type="Menu" Source="QOR">
			<Thumbnails Align="Left">True</Thumbnails>
			<Primary Source="Title">
				<OffsetY>0</OffsetY>
				<JustifyX>Center</JustifyX>
			</Primary>
			<Secondary Source="Descr">
				<OffsetY>0</OffsetY>
				<JustifyX>Right</JustifyX>
			</Secondary>
			<Selection>
				<DoGlow>True</DoGlow>
				<TextColor>0xFFFFE010</TextColor>
				<Secondary>
					<TextColor>0xFFFFFFFF</TextColor>
				</Secondary>
			</Selection>
			<UnSelItem>
				<TextColor>0xFFFFFFFF</TextColor>
				<Secondary>
					<TextColor>0xFFFFFFFF</TextColor>
				</Secondary>
			</UnSelItem>
			<NumItems>7</NumItems>
			<SelPos>0</SelPos>
			<ScrollFactor>3</ScrollFactor>
			<SmoothScroll>True</SmoothScroll>
			<DrawSecondary>True</DrawSecondary>
			<Pos L="20.5" T="120" W="400" H="240"/>
		</LayoutElement>
	</Layout>
</Skin>

)");

QStringList expectedLines() {
    return (skinBeginning + titleLayout + mainLayout + filesLayout).split(QLatin1Char('\n'));
}

QByteArray fileIn(const QString& folder) {
    QFile file(folder + QStringLiteral("/QOR_Skin.xml"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Calls `answer` with the next modal dialog and checks afterwards that it is gone.
void answerNextDialog(std::function<void(QWidget*)> answer) {
    auto* poll = new QTimer(qApp);
    QObject::connect(poll, &QTimer::timeout, poll, [poll, answer = std::move(answer)] {
        if (QWidget* dialog = QApplication::activeModalWidget()) {
            poll->stop();
            poll->deleteLater();
            answer(dialog);
        }
    });
    poll->start(10);
}

/// The hands of the user: everything goes through events.
struct Sitting {
    Editor editor;

    void press(const char* name) { QTest::mouseClick(editor.find<QWidget>(name), Qt::LeftButton); }
    void chooseColor(const char* well, const QColor& color) {
        editor.prompts.colors << color;
        press(well);
        QVERIFY2(editor.prompts.colors.isEmpty(), well);
    }
    void type(QWidget* field, const QString& text) {
        QTest::mouseClick(field, Qt::LeftButton);
        QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(field, text);
    }
    void type(const char* field, const QString& text) { type(editor.find<QWidget>(field), text); }
    /// Steps through a drop-down with the arrow keys.
    void step(const char* name, const QString& entry, Qt::Key key = Qt::Key_Down) {
        auto* list = editor.find<QComboBox>(name);
        list->setFocus(Qt::TabFocusReason);
        for (int i = 0; i < list->count() && list->currentText() != entry; ++i) {
            QTest::keyClick(list, key);
        }
        QCOMPARE(list->currentText(), entry);
    }
    void save(const QString& folder) {
        editor.prompts.folders << folder;
        QStringList dialogs;
        closeNextDialog(dialogs);
        editor.entry("mnuSave")->trigger();
        QCOMPARE(dialogs, QStringList("frmInstructions"));
    }
    void load(const QString& folder) {
        editor.prompts.folders << folder;
        editor.entry("mnuLoad")->trigger();
    }
};

} // namespace

class DrawingSessionTest : public QObject {
    Q_OBJECT

  private slots:
    void drawnSavedAndLoaded();

  private:
    static void addResources(Editor& editor);
    static void drawBox(Sitting& user);
    static void drawLine(Sitting& user);
    static void drawTexts(Sitting& user);
    static void drawImages(Sitting& user);
    static void drawItemMenu(Sitting& user);
    static void deleteOne(Sitting& user);
    static void stackAndLock(Sitting& user);
    static void nameIt(Sitting& user);
};

void DrawingSessionTest::addResources(Editor& editor) {
    QImage picture(64, 32, QImage::Format_RGB32);
    picture.fill(Qt::darkCyan);
    for (const char* name : {"logo.png", "photo.bmp"}) {
        const QString file = editor.path(QLatin1String(name));
        QVERIFY(picture.save(file));
        editor.document().addRes(coreText(QFileInfo(file).baseName()),
                                 documentPath(hostPathOf(file)));
    }
}

void DrawingSessionTest::drawBox(Sitting& user) {
    Editor& editor = user.editor;
    editor.chooseTool("optBox");
    user.chooseColor("fColor", QColor(200, 40, 40));
    user.chooseColor("lColor", QColor(16, 32, 64));
    user.type("txtAlpha", QStringLiteral("50"));
    editor.pressDragRelease({260, 150}, {100, 50});
    editor.key(Qt::Key_Right);
    editor.key(Qt::Key_Down, Qt::ShiftModifier);
    editor.key(Qt::Key_Right, Qt::ControlModifier);
    editor.pressDragRelease({150, 100}, {170, 90});
    QCOMPARE(editor.find<QLineEdit>("txtL")->text(), QStringLiteral("138"));
}

void DrawingSessionTest::drawLine(Sitting& user) {
    user.editor.chooseTool("optLine");
    user.chooseColor("lColor", QColor(0, 160, 0));
    user.editor.pressDragRelease({20, 470}, {600, 460});
    user.editor.pressDragRelease({600, 460}, {620, 440}); // its second end
}

void DrawingSessionTest::drawTexts(Sitting& user) {
    Editor& editor = user.editor;
    editor.chooseTool("optText");
    user.step("txtText", QStringLiteral("Time"));
    user.chooseColor("fColor", QColor(255, 210, 90));
    user.type("txtAlpha", QStringLiteral("75"));
    editor.pressDragRelease({300, 20}, {420, 50});
    editor.chooseTool("optText");
    user.type(editor.find<QComboBox>("txtText")->lineEdit(),
              QStringLiteral("Hello, \"console\" & all"));
    user.chooseColor("fColor", Qt::blue);
    user.type("txtAlpha", QStringLiteral("100"));
    editor.pressDragRelease({300, 60}, {500, 90});
    user.chooseColor("fColor", Qt::white); // thought better of it
    user.press("cmdApply");
}

void DrawingSessionTest::drawImages(Sitting& user) {
    Editor& editor = user.editor;
    editor.clickScreen(titleScreen);
    editor.chooseTool("optImg");
    user.step("lstR", QStringLiteral("logo"));
    editor.pressDragRelease({10, 10}, {106, 58});
    editor.pressDragRelease({106, 58}, {202, 106}); // its corner
    editor.chooseTool("optImg");
    user.step("lstR", QStringLiteral("photo"));
    editor.click({400, 300}); // the picture's own size
}

void DrawingSessionTest::drawItemMenu(Sitting& user) {
    Editor& editor = user.editor;
    editor.clickScreen(filesScreen);
    editor.chooseTool("optQor");
    QTest::keyClick(editor.find<QWidget>("chkSelGlow"), Qt::Key_Space);
    user.type("txtNumItems", QStringLiteral("7"));
    user.step("cmbTitleAlign", QStringLiteral("Center"));
    user.chooseColor("colSelTitle", QColor(255, 224, 16));
    editor.key(Qt::Key_Return); // into the middle
    user.type("txtL", QStringLiteral("20.5 or so"));
    QTest::keyClick(editor.find<QWidget>("txtL"), Qt::Key_Return);
}

void DrawingSessionTest::deleteOne(Sitting& user) {
    Editor& editor = user.editor;
    editor.chooseTool("optLine");
    editor.click({50, 400});
    QCOMPARE(editor.document().rowCount(mainScreen), 5);
    editor.key(Qt::Key_Delete);
    QCOMPARE(editor.document().rowCount(mainScreen), 4);
}

void DrawingSessionTest::stackAndLock(Sitting& user) {
    Editor& editor = user.editor;
    editor.click({350, 75});
    QCOMPARE(editor.selectedRow(mainScreen), 3);
    editor.entry("mnuBack")->trigger();
    QCOMPARE(editor.selectedRow(mainScreen), 0);
    auto* list = editor.lst(mainScreen);
    list->setFocus(Qt::TabFocusReason);
    QTest::keyClick(list, Qt::Key_Down);
    editor.entry("mnuLocked")->trigger();
    QCOMPARE(editor.document().lockCount(mainScreen), 2);
    editor.pressDragRelease({200, 100}, {260, 160}); // locked: it stays
    editor.entry("mnuDeSel")->trigger();
}

void DrawingSessionTest::nameIt(Sitting& user) {
    bool answered = false;
    answerNextDialog([&](QWidget* dialog) {
        answered = true;
        user.type(dialog->findChild<QLineEdit*>("txtName"), QStringLiteral("One sitting"));
        QTest::mouseClick(dialog->findChild<QPushButton*>("cmdOK"), Qt::LeftButton);
    });
    user.editor.entry("mnuInfo")->trigger();
    QVERIFY(answered);
    QCOMPARE(user.editor.document().settings().skinName, std::string("One sitting"));
}

void DrawingSessionTest::drawnSavedAndLoaded() {
    Sitting user;
    user.editor.show();
    addResources(user.editor);
    drawBox(user);
    drawLine(user);
    drawTexts(user);
    drawImages(user);
    drawItemMenu(user);
    user.editor.clickScreen(mainScreen);
    deleteOne(user);
    stackAndLock(user);
    nameIt(user);
    const QString folder = user.editor.newFolder(QStringLiteral("skin"));
    user.save(folder);
    QCOMPARE(user.editor.prompts.messages, QStringList());
    QCOMPARE(QString::fromUtf8(fileIn(folder)).split(QStringLiteral("\r\n")), expectedLines());
    QVERIFY(QFile::exists(folder + QStringLiteral("/Media/logo.png")));
    QVERIFY(QFile::exists(folder + QStringLiteral("/Media/photo.bmp")));

    Sitting another;
    another.editor.show();
    another.load(folder);
    QCOMPARE(another.editor.prompts.messages, QStringList());
    const SkinDocument& drawn = user.editor.document();
    const SkinDocument& loaded = another.editor.document();
    QCOMPARE(loaded.lastElementId(), 7); // the deleted line is not among them
    QVERIFY(normalised(loaded) == normalised(drawn));
    const QString copy = another.editor.newFolder(QStringLiteral("copy"));
    another.save(copy);
    QCOMPARE(fileIn(copy), fileIn(folder));
}

TARVEL_UI_TEST(DrawingSessionTest)
#include "drawing_session_test.moc"
