// A session on what belongs to the whole skin: every value through its dialog, saved and loaded.
#include "document/normalised.h"
#include "support/menu_support.h"
#include "support/program_version.h"
#include "support/ui_test.h"
#include "widgets/color_swatch.h"
#include "widgets/easing.h"

#include <QComboBox>
#include <QImage>
#include <QPlainTextEdit>
#include <QPushButton>

#include <array>

using namespace tarvel;
using namespace tarvel::test;

namespace {

// The colours that the session chooses, by colour box, and the names that the file has for them.
struct ChosenColor {
    const char* box;
    const char* tag;
    const char* rgb;
};
constexpr std::array<ChosenColor, 4> messageBox = {{{"fColor(0)", "BoxColor", "010203"},
                                                    {"bColor(0)", "BorderColor", "A1B2C3"},
                                                    {"Col(0)", "TextColor", "FFFFFF"},
                                                    {"Col(1)", "ShadowColor", "000001"}}};
constexpr std::array<ChosenColor, 6> systemMenu = {{{"fColor(1)", "BoxColor", "102030"},
                                                    {"bColor(1)", "BorderColor", "405060"},
                                                    {"Col(4)", "TextColor", "708090"},
                                                    {"Col(2)", "SelectColor", "A0B0C0"},
                                                    {"Col(5)", "ValueColor", "D0E0F0"},
                                                    {"Col(3)", "SelectValueColor", "FF8000"}}};

QString colorLines(const ChosenColor& color) {
    return QStringLiteral("\t\t<%1>0xFF%2</%1>\r\n").arg(color.tag, color.rgb);
}

QByteArray bytesOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no such file");
}

QStringList filesIn(const QString& folder) {
    return QDir(folder).entryList(QDir::Files, QDir::Name);
}

// A file of the user's, in a folder of its own.
QString userFile(Editor& editor, const QString& name) {
    return editor.newFolder("mine") + QLatin1Char('/') + name;
}

void writePicture(const QString& path, const QColor& color) {
    QImage image(32, 24, QImage::Format_RGB32);
    image.fill(color);
    if (!image.save(path)) {
        qFatal("cannot write %s", qPrintable(path));
    }
}

void writeMusic(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(path.toUtf8()) < 0) {
        qFatal("cannot write %s", qPrintable(path));
    }
}

QStringList asked(const Editor& editor) {
    const ScriptedPrompts& prompts = editor.prompts;
    return prompts.messages + prompts.questions + prompts.inputPrompts + prompts.folderTitles +
           prompts.filters;
}

} // namespace

class SettingsSessionTest : public QObject {
    Q_OBJECT

  private slots:
    void entriesOpenTheirDialogs_data();
    void entriesOpenTheirDialogs();
    void entriesOfFilesAsk();
    void inertEntriesDoNothing_data();
    void inertEntriesDoNothing();
    void everySettingIsSavedAndLoaded();

  private:
    static void setInformation(Editor& editor);
    static void setDelays(Editor& editor);
    static void setColors(Editor& editor);
    static void setMusic(Editor& editor);
    static void setResources(Editor& editor);
    static void addPreset(QWidget& dialog, int row, const QString& name);
    static void checkPanelsLast(Editor& editor, const QString& name);
    static void setBackground(Editor& editor);
    static void setEverything(Editor& editor);
    static QString expectedText();
    static void checkFiles(Editor& editor, const QString& out);
    static void checkDialogs(Editor& editor);
    static void checkMoreDialogs(Editor& editor);
};

void SettingsSessionTest::entriesOpenTheirDialogs_data() {
    QTest::addColumn<QString>("dialog");
    QTest::newRow("mnuDelays") << "frmDelays";
    QTest::newRow("mnuInfo") << "frmInfo";
    QTest::newRow("mnuColors") << "frmColors";
    QTest::newRow("mnuAudio") << "frmMusic";
    QTest::newRow("mnuResource") << "frmResources";
}

void SettingsSessionTest::entriesOpenTheirDialogs() {
    QFETCH(QString, dialog);
    Editor editor;
    editor.show();
    const SkinDocument before = editor.document();
    for (int time = 0; time < 2; ++time) { // a dialog can be opened again
        bool overWindow = false;
        QVERIFY(inDialog(editor, QTest::currentDataTag(), qPrintable(dialog), [&](QWidget& opened) {
            overWindow = opened.isModal() && opened.parentWidget() == &editor.window;
        }));
        QVERIFY(overWindow);
        QCOMPARE(shownWindows(), QStringList("frmMain"));
    }
    QVERIFY(editor.document() == before);
    QCOMPARE(asked(editor), QStringList());
}

void SettingsSessionTest::entriesOfFilesAsk() {
    Editor editor;
    editor.show();
    QVERIFY(choose(editor, "mnuLoad"));
    QCOMPARE(asked(editor), QStringList("Select skin folder to open"));
    editor.prompts.folderTitles.clear();
    QVERIFY(choose(editor, "mnuLoadBg"));
    QCOMPARE(asked(editor), QStringList("JPG|*.jpg|BMP|*.bmp"));
    editor.prompts.filters.clear();
    QVERIFY(editor.document() == SkinDocument());
    // A skin without a name cannot be saved; the dialog that names it opens.
    QVERIFY(inDialog(editor, "mnuSave", "frmInfo", [](QWidget& dialog) {
        typeOver(control<QLineEdit>(dialog, "txtName"), "Nova");
    }));
    QCOMPARE(asked(editor), QStringList("Enter a name for the skin, and then click save again"));
    editor.prompts.messages.clear();
    QVERIFY(choose(editor, "mnuSave"));
    QCOMPARE(asked(editor), QStringList("Select an EMPTY folder to save your skin in"));
}

void SettingsSessionTest::inertEntriesDoNothing_data() {
    QTest::addColumn<bool>("ticked");
    QTest::newRow("mnuCover") << true; // shows its tick and no more
    QTest::newRow("mnuBorders") << false;
}

void SettingsSessionTest::inertEntriesDoNothing() {
    QFETCH(bool, ticked);
    Editor editor;
    editor.show();
    editor.add(boxAt(10, 10, 100, 50));
    editor.selectRow(1, 0);
    const SkinDocument before = editor.document();
    const QImage surface = editor.pic()->grab().toImage();
    QVERIFY(choose(editor, QTest::currentDataTag()));
    QCOMPARE(editor.entry(QTest::currentDataTag())->isChecked(), ticked);
    settle();
    QVERIFY(editor.document() == before);
    QCOMPARE(editor.selectedRow(1), 0);
    QCOMPARE(editor.pic()->grab().toImage(), surface);
    QCOMPARE(asked(editor), QStringList());
    QCOMPARE(shownWindows(), QStringList("frmMain"));
}

void SettingsSessionTest::setInformation(Editor& editor) {
    editor.prompts.inputs << "Skin Web Page";
    QVERIFY(inDialog(editor, "mnuInfo", "frmInfo", [](QWidget& dialog) {
        typeOver(control<QLineEdit>(dialog, "txtName"), "Nova & friends");
        auto& fields = control<QListWidget>(dialog, "lstFields");
        auto& txtData = control<QLineEdit>(dialog, "txtData");
        clickRow(fields, 0);
        QTest::keyClicks(&txtData, "A. Writer");
        clickRow(fields, 2); // "Version" stays empty
        QTest::keyClicks(&txtData, "<none>");
        click(control<QPushButton>(dialog, "cmdAdd"));
        QCOMPARE(rowTexts(fields),
                 QStringList({"Author", "Version", "Copyright", "Skin_Web_Page"}));
        QTest::keyClicks(&txtData, "example.org/?a=1&b=2");
    }));
    QCOMPARE(editor.prompts.inputPrompts, QStringList("Enter name of field"));
}

void SettingsSessionTest::setDelays(Editor& editor) {
    QVERIFY(inDialog(editor, "mnuDelays", "frmDelays", [](QWidget& dialog) {
        const QStringList delays = {"2.5e3", "1500.5 and more", "300000"};
        for (int field = 0; field < delays.size(); ++field) {
            clickRow(control<QListWidget>(dialog, "lstFields"), field);
            QTest::keyClicks(&control<QLineEdit>(dialog, "txtData"), delays[field]);
        }
    }));
}

void SettingsSessionTest::setColors(Editor& editor) {
    const auto chooseColor = [&](QWidget& dialog, const ChosenColor& color) {
        editor.prompts.colors << QColor(QLatin1Char('#') + QLatin1String(color.rgb));
        click(control<ColorSwatch>(dialog, QLatin1String(color.box)));
    };
    QVERIFY(inDialog(editor, "mnuColors", "frmColors", [&](QWidget& dialog) {
        for (const ChosenColor& color : messageBox) {
            chooseColor(dialog, color);
        }
        for (const ChosenColor& color : systemMenu) {
            chooseColor(dialog, color);
        }
        typeOver(control<QLineEdit>(dialog, "txtAlpha(0)"), "70");
        typeOver(control<QLineEdit>(dialog, "txtAlpha(1)"), "250");
    }));
    QCOMPARE(editor.prompts.colors.size(), 0);
    const auto& opacities = editor.document().settings().systemColors.opacityTexts;
    QCOMPARE(opacities[0], std::string("70"));
    QCOMPARE(opacities[1], std::string("250"));
}

void SettingsSessionTest::setMusic(Editor& editor) {
    QStringList files;
    for (const char* name : {"dawn.wma", "noon.wma", "dusk.wma"}) {
        files << userFile(editor, QLatin1String(name));
        writeMusic(files.back());
    }
    editor.prompts.fileChoices << files;
    QVERIFY(inDialog(editor, "mnuAudio", "frmMusic", [](QWidget& dialog) {
        click(control<QAbstractButton>(dialog, "optYesMusic"));
        endGliding(dialog);
        click(control<QAbstractButton>(dialog, "chkCustom"));
        endGliding(dialog);
        click(control<QAbstractButton>(dialog, "chkGlobal"));
        click(control<QAbstractButton>(dialog, "chkRandom"));
        click(control<QPushButton>(dialog, "cmdAdd"));
        auto& list = control<QListWidget>(dialog, "lstMusic");
        QCOMPARE(list.count(), 3);
        clickRow(list, 1);
        QTest::keyClick(&list, Qt::Key_Delete);
        QCOMPARE(list.count(), 2);
    }));
    const MusicSettings& music = editor.document().settings().music;
    QVERIFY(music.hasMusic && music.playGlobal && music.customMusic && music.playRandom);
    QCOMPARE(music.rows, std::vector<int>({0, 2}));
}

void SettingsSessionTest::addPreset(QWidget& dialog, int row, const QString& name) {
    click(control<QAbstractButton>(dialog, "optPreset"));
    clickRow(control<QListWidget>(dialog, "lstResDef"), row);
    if (!name.isEmpty()) {
        typeOver(control<QLineEdit>(dialog, "txtResDef"), name);
    }
    click(control<QPushButton>(dialog, "cmdAddDef"));
}

// The property panel lists a new resource last, too.
void SettingsSessionTest::checkPanelsLast(Editor& editor, const QString& name) {
    const auto* lstR = editor.find<QComboBox>("lstR");
    QCOMPARE(lstR->itemText(lstR->count() - 1), name);
    QCOMPARE(lstR->count(), static_cast<int>(editor.document().settings().resources.size()));
}

void SettingsSessionTest::setResources(Editor& editor) {
    const QString logo = userFile(editor, "logo.png");
    const QString photo = userFile(editor, "photo.bmp");
    writePicture(logo, Qt::red);
    writePicture(photo, Qt::blue);
    editor.prompts.fileChoices << QStringList(logo);
    QVERIFY(inDialog(editor, "mnuResource", "frmResources", [&](QWidget& dialog) {
        click(control<QPushButton>(dialog, "cmdBrowse"));
        QCOMPARE(control<QLineEdit>(dialog, "txtRes").text(), QStringLiteral("logo"));
        click(control<QPushButton>(dialog, "cmdAdd"));
        checkPanelsLast(editor, "logo");
        addPreset(dialog, 0, {});
        checkPanelsLast(editor, "PreviewMedia");
        addPreset(dialog, 1, {});
        addPreset(dialog, 4, "Disc");
        checkPanelsLast(editor, "Disc");
    }));
    // A picture dropped onto the surface opens the dialog with it filled in.
    bool dropped = false;
    const auto drop = [&] { dropped = dropFiles(*editor.pic(), {photo}); };
    QVERIFY(inDialog(drop, "frmResources", [](QWidget& dialog) {
        typeOver(control<QLineEdit>(dialog, "txtRes"), "Lake <1>");
        click(control<QPushButton>(dialog, "cmdAdd"));
        QCOMPARE(rowTexts(control<QListWidget>(dialog, "lstRes")),
                 QStringList({"logo", "PreviewMedia", "GameIcon", "Disc", "Lake <1>"}));
    }));
    QVERIFY(dropped);
    checkPanelsLast(editor, "Lake <1>");
}

void SettingsSessionTest::setBackground(Editor& editor) {
    const QString picture = userFile(editor, "sky.jpg");
    writePicture(picture, Qt::cyan);
    editor.prompts.fileChoices << QStringList(picture);
    QVERIFY(choose(editor, "mnuLoadBg"));
    QVERIFY(choose(editor, "mnuUnloadBg"));
    QVERIFY(!editor.document().settings().background.loaded);
    editor.prompts.fileChoices << QStringList(picture);
    QVERIFY(choose(editor, "mnuLoadBg"));
    QVERIFY(editor.document().settings().background.loaded);
}

void SettingsSessionTest::setEverything(Editor& editor) {
    setInformation(editor);
    setDelays(editor);
    setColors(editor);
    setMusic(editor);
    setResources(editor);
    setBackground(editor);
    QCOMPARE(editor.prompts.messages, QStringList());
    editor.add(boxAt(10, 20, 100, 50)); // the background shows only on a screen with elements
}

QString SettingsSessionTest::expectedText() {
    QString text = "<Skin name=\"Nova & friends\">\r\n"
                   "\t<Information>\r\n"
                   "\t\t<Author>A. Writer</Author>\r\n"
                   "\t\t<Copyright><none></Copyright>\r\n"
                   "\t\t<Skin_Web_Page>example.org/?a=1&b=2</Skin_Web_Page>\r\n"
                   "\t\t<MadeUsing>Tarvel @VERSION@</MadeUsing>\r\n"
                   "\t</Information>\r\n"
                   "\t<Music>\r\n"
                   "\t\t<PlayGlobal>On</PlayGlobal>\r\n"
                   "\t\t<PlayRandom>On</PlayRandom>\r\n"
                   "\t</Music>\r\n"
                   "\t<Delays>\r\n"
                   "\t\t<Title>2500</Title>\r\n"
                   "\t\t<Load>1500.5</Load>\r\n"
                   "\t\t<Saver>300000</Saver>\r\n"
                   "\t</Delays>\r\n"
                   "\t<MessageBox>\r\n";
    for (const ChosenColor& color : messageBox) {
        text += colorLines(color);
    }
    text += "\t</MessageBox>\r\n\t<SystemMenu>\r\n";
    for (const ChosenColor& color : systemMenu) {
        text += colorLines(color);
    }
    text += "\t</SystemMenu>\r\n";
    const auto resource = [&](const QString& name, const QString& content) {
        text += "\t<Resource Type=\"Image\" Name=\"" + name + "\">\r\n\t\t" + content +
                "\r\n\t</Resource>\r\n";
    };
    resource("bground", "<File>Media\\sky.jpg</File>");
    resource("logo", "<File>Media\\logo.png</File>");
    resource("PreviewMedia", "<EntryNamed>Media</EntryNamed>");
    resource("GameIcon", "<Entry>default.xbe</Entry>");
    resource("Disc", "<File>::ICO_DVD</File>");
    resource("Lake <1>", "<File>Media\\photo.bmp</File>");
    text += "\t<Layout Screen=\"Menu\">\r\n"
            "\t\t<LayoutElement Type=\"Image\" Source=\"bground\">\r\n"
            "\t\t\t<Pos L=\"0\"  T=\"0\" W=\"640\"  H=\"480\"/>\r\n"
            "\t\t</LayoutElement>\r\n"
            "\t\t<LayoutElement Type=\"Box\">\r\n"
            "\t\t\t<Color>0xCCC82828</Color>\r\n"
            "\t\t\t<Pos L=\"10\" T=\"20\" W=\"100\" H=\"50\"/>\r\n"
            "\t\t</LayoutElement>\r\n"
            "\t</Layout>\r\n"
            "</Skin>\r\n"
            "\r\n";
    return text.replace("@VERSION@", QString::fromStdString(programVersion()));
}

void SettingsSessionTest::checkFiles(Editor& editor, const QString& out) {
    const QString saved = QString::fromLatin1(bytesOf(out + "/QOR_Skin.xml"));
    QCOMPARE(saved.split("\r\n"), expectedText().split("\r\n"));
    QCOMPARE(filesIn(out), QStringList("QOR_Skin.xml"));
    QCOMPARE(filesIn(out + "/Media"), QStringList({"logo.png", "photo.bmp", "sky.jpg"}));
    QCOMPARE(filesIn(out + "/Music"), QStringList({"dawn.wma", "dusk.wma"}));
    for (const char* name : {"Media/logo.png", "Media/photo.bmp", "Media/sky.jpg", "Music/dawn.wma",
                             "Music/dusk.wma"}) {
        const QString copy = out + QLatin1Char('/') + QLatin1String(name);
        QCOMPARE(bytesOf(copy), bytesOf(userFile(editor, QFileInfo(copy).fileName())));
    }
}

// The dialogs show what was loaded.
void SettingsSessionTest::checkDialogs(Editor& editor) {
    QVERIFY(inDialog(editor, "mnuInfo", "frmInfo", [](QWidget& dialog) {
        QCOMPARE(control<QLineEdit>(dialog, "txtName").text(), QStringLiteral("Nova & friends"));
        auto& fields = control<QListWidget>(dialog, "lstFields");
        QCOMPARE(rowTexts(fields),
                 QStringList({"Author", "Copyright", "Skin_Web_Page", "MadeUsing"}));
        clickRow(fields, 2);
        QCOMPARE(control<QLineEdit>(dialog, "txtData").text(),
                 QStringLiteral("example.org/?a=1&b=2"));
    }));
    QVERIFY(inDialog(editor, "mnuDelays", "frmDelays", [](QWidget& dialog) {
        const QStringList delays = {"2500", "1500.5", "300000"};
        for (int field = 0; field < delays.size(); ++field) {
            clickRow(control<QListWidget>(dialog, "lstFields"), field);
            QCOMPARE(control<QLineEdit>(dialog, "txtData").text(), delays[field]);
        }
    }));
    const auto checkColor = [](QWidget& dialog, const ChosenColor& color) {
        const auto& swatch = control<ColorSwatch>(dialog, QLatin1String(color.box));
        QCOMPARE(rgbHex(swatch.color()), std::string(color.rgb));
    };
    QVERIFY(inDialog(editor, "mnuColors", "frmColors", [&](QWidget& dialog) {
        for (const ChosenColor& color : messageBox) {
            checkColor(dialog, color);
        }
        for (const ChosenColor& color : systemMenu) {
            checkColor(dialog, color);
        }
        // Skin files have no place for these.
        QCOMPARE(control<QLineEdit>(dialog, "txtAlpha(0)").text(), QStringLiteral("100"));
        QCOMPARE(control<QLineEdit>(dialog, "txtAlpha(1)").text(), QStringLiteral("100"));
    }));
}

void SettingsSessionTest::checkMoreDialogs(Editor& editor) {
    QVERIFY(inDialog(editor, "mnuAudio", "frmMusic", [](QWidget& dialog) {
        const auto isChecked = [&](const char* name) {
            return control<QAbstractButton>(dialog, QLatin1String(name)).isChecked();
        };
        QVERIFY(isChecked("optYesMusic") && isChecked("chkGlobal") && isChecked("chkRandom"));
        QVERIFY(!isChecked("optNoMusic") && !isChecked("chkCustom")); // nor for this one
        QCOMPARE(control<QListWidget>(dialog, "lstMusic").count(), 0);
    }));
    QVERIFY(inDialog(editor, "mnuResource", "frmResources", [](QWidget& dialog) {
        QCOMPARE(rowTexts(control<QListWidget>(dialog, "lstRes")),
                 QStringList({"bground", "logo", "PreviewMedia", "GameIcon", "Disc", "Lake <1>"}));
    }));
}

void SettingsSessionTest::everySettingIsSavedAndLoaded() {
    Editor editor;
    editor.show();
    setEverything(editor);
    if (QTest::currentTestFailed()) {
        return;
    }
    const QString out = editor.newFolder("out");
    editor.prompts.folders << out;
    QStringList dialogs;
    closeNextDialog(dialogs);
    QVERIFY(choose(editor, "mnuSave"));
    QCOMPARE(dialogs, QStringList("frmInstructions"));
    QCOMPARE(editor.prompts.messages, QStringList());
    checkFiles(editor, out);
    QVERIFY(choose(editor, "mnuView"));
    QCOMPARE(editor.find<QPlainTextEdit>("txtXml")->toPlainText().replace("\n", "\r\n") + "\r\n",
             expectedText());

    Editor second;
    second.show();
    second.prompts.folders << out;
    QVERIFY(choose(second, "mnuLoad"));
    QCOMPARE(second.prompts.messages, QStringList());
    QVERIFY(normalised(second.document()) == normalised(editor.document()));
    checkDialogs(second);
    checkMoreDialogs(second);
    // Looking changes nothing.
    QVERIFY(normalised(second.document()) == normalised(editor.document()));
}

TARVEL_UI_TEST(SettingsSessionTest)
#include "settings_session_test.moc"
