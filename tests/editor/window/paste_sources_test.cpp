// Pasting what other programs, hands and editors put onto the clipboard.
#include "editing/manipulation.h"
#include "support/behaviour_editor.h"
#include "support/clipboard_support.h"
#include "support/ui_test.h"
#include "window/foreign_content.h"

#include <QLabel>

using namespace tarvel;
using namespace tarvel::test;

namespace {

using Fill = std::function<void(QMimeData&)>;

constexpr auto nothingStatus = "The clipboard holds nothing that could be pasted.";
constexpr auto typedBox =
    R"(  <LayoutElement Type="Box"><Color>0xFF010203</Color><Pos L="1" T="2" W="3" H="4"/></LayoutElement>)";

ClipboardContent twoBoxes() {
    SkinDocument document;
    document.addElement(boxAt(10, 20, 30, 40));
    document.addElement(boxAt(50, 60, 70, 80));
    return copyElements(document, {1, 2});
}

QByteArray bytesOf(const ClipboardContent& content) {
    return QByteArray::fromStdString(clipboardBytes(content));
}

QByteArray broken(QByteArray bytes) {
    bytes[bytes.size() / 2] = static_cast<char>(bytes[bytes.size() / 2] ^ 0x55);
    return bytes;
}

QImage picture() {
    QImage image(120, 80, QImage::Format_RGB32);
    image.fill(QColor(10, 200, 30));
    return image;
}

struct Source {
    const char* name;
    Fill fill;
    QString status; ///< what the status line says afterwards
    int rows;       ///< that came
};

std::vector<Source> sources() {
    const QUrl web(QStringLiteral("https://example.org/a.png"));
    return {
        {"text", [](QMimeData& data) { data.setText("Hello"); }, "Paste Text", 1},
        {"bytes", [](QMimeData& data) { data.setData(elementsFormat, bytesOf(twoBoxes())); },
         "Paste 2 elements", 2},
        {"bytes before everything",
         [](QMimeData& data) {
             data.setText("Hello");
             data.setImageData(picture());
             data.setData(elementsFormat, bytesOf(twoBoxes()));
         },
         "Paste 2 elements", 2},
        {"broken bytes beside text of elements",
         [](QMimeData& data) {
             data.setData(elementsFormat, broken(bytesOf(twoBoxes())));
             data.setText(typedBox);
         },
         "Paste Box", 1},
        {"broken bytes alone",
         [](QMimeData& data) { data.setData(elementsFormat, broken(bytesOf(twoBoxes()))); },
         nothingStatus, 0},
        {"bytes of no elements",
         [](QMimeData& data) { data.setData(elementsFormat, bytesOf(ClipboardContent())); },
         nothingStatus, 0},
        {"copied text of elements",
         [](QMimeData& data) { data.setText(qtText(clipboardText(twoBoxes()))); },
         "Paste 2 elements", 2},
        {"typed element", [](QMimeData& data) { data.setText(typedBox); }, "Paste Box", 1},
        {"text that only begins like an element",
         [](QMimeData& data) { data.setText("<LayoutElement"); }, "Paste Text", 1},
        {"picture", [](QMimeData& data) { data.setImageData(picture()); }, "Paste Image", 1},
        {"picture before text",
         [](QMimeData& data) {
             data.setText("Hello");
             data.setImageData(picture());
         },
         "Paste Image", 1},
        {"web address",
         [web](QMimeData& data) {
             data.setUrls({web});
             data.setText(web.toString());
         },
         "Paste Text", 1},
        {"missing file",
         [](QMimeData& data) { data.setUrls({QUrl::fromLocalFile("/nowhere/gone.png")}); },
         "Nothing was pasted: there is no file on the clipboard that could be read.", 0},
        {"folder", [](QMimeData& data) { data.setUrls({QUrl::fromLocalFile("/")}); },
         "Nothing was pasted: there is no file on the clipboard that could be read.", 0},
        {"empty picture", [](QMimeData& data) { data.setImageData(QImage()); }, nothingStatus, 0},
        {"blank text", [](QMimeData& data) { data.setText(" \r\n\t "); }, nothingStatus, 0},
        {"control characters", [](QMimeData& data) { data.setText(QString(3, QChar(1))); },
         nothingStatus, 0},
        {"a whole book",
         [](QMimeData& data) { data.setText(QString(longestPastedText + 1, u'a')); },
         "Nothing was pasted: the text is too long for an element.", 0},
        {"unknown format", [](QMimeData& data) { data.setData("application/x-other", "abc"); },
         nothingStatus, 0},
        {"nothing", [](QMimeData&) {}, nothingStatus, 0},
    };
}

} // namespace

class PasteSourcesTest : public QObject {
    Q_OBJECT

  private slots:
    void init() { qputenv("XDG_DATA_HOME", data_.path().toUtf8()); }
    void cleanup() {
        clipboard().clear();
        qunsetenv("XDG_DATA_HOME");
    }
    void everySource_data();
    void everySource();
    void typedTextKeepsItsPlaceAndThenShifts();
    void relativeFilesOfTypedElements();
    void textTakesThePanelsValues();
    void textIsCleaned();
    void pictureIsKept();
    void pictureThatCannotBeKept();
    void largePicturesFitTheScreen();
    void firstUsableFileOpensTheDialog();

  private:
    QTemporaryDir data_;
};

void PasteSourcesTest::everySource_data() {
    QTest::addColumn<int>("which");
    int at = 0;
    for (const Source& source : sources()) {
        QTest::newRow(source.name) << at++;
    }
}

void PasteSourcesTest::everySource() {
    QFETCH(int, which);
    const Source source = sources()[static_cast<std::size_t>(which)];
    BehaviourEditor editor(1);
    const SkinDocument before = editor.document();
    putOnClipboard(source.fill);
    editor.key(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(statusOf(editor), source.status);
    QCOMPARE(editor.document().rowCount(1), 1 + source.rows);
    QCOMPARE(editor.entry("mnuUndo")->isEnabled(), source.rows > 0);
    QCOMPARE(editor.prompts.messages, QStringList());
    if (source.rows == 0) {
        QVERIFY(editor.document() == before);
        return;
    }
    QList<int> wanted;
    for (int row = 1; row <= source.rows; ++row) {
        wanted << row;
    }
    QCOMPARE(selectedRows(editor, 1), wanted);
    const SkinDocument after = editor.document();
    editor.entry("mnuUndo")->trigger();
    QVERIFY(editor.document().holdsTheSame(before));
    editor.entry("mnuRedo")->trigger();
    QVERIFY(editor.document().holdsTheSame(after));
}

void PasteSourcesTest::typedTextKeepsItsPlaceAndThenShifts() {
    BehaviourEditor editor(0);
    putOnClipboard([](QMimeData& data) { data.setText(typedBox); });
    editor.key(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(placeOf(editor.control(1)), (Place{1, 2, 3, 4}));
    QCOMPARE(editor.control(1).fillColor, makeColor(1, 2, 3));
    editor.key(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(placeOf(editor.control(2)), (Place{11, 12, 3, 4}));
}

// They lie in the folder of the skin that is open.
void PasteSourcesTest::relativeFilesOfTypedElements() {
    BehaviourEditor editor(0);
    const QString skin = QStringLiteral(TARVEL_EXAMPLES_DIR "/aurora");
    editor.prompts.folders << skin;
    editor.entry("mnuLoad")->trigger();
    const auto count = editor.document().settings().resources.size();
    putOnClipboard([](QMimeData& data) {
        data.setText(
            "<Resource Type=\"Image\" Name=\"typed one\"><File>Media\\typed.png</File></Resource>"
            "<LayoutElement Type=\"Image\" Source=\"typed one\"><Pos L=\"1\" T=\"2\" "
            "W=\"3\" H=\"4\"/></LayoutElement>");
    });
    editor.key(Qt::Key_V, Qt::ControlModifier);
    const auto& resources = editor.document().settings().resources;
    QCOMPARE(resources.size(), count + 1);
    QCOMPARE(resources.back().name, std::string("typed one"));
    QCOMPARE(resources.back().content, documentPath(hostPathOf(skin + "/Media/typed.png")));
}

void PasteSourcesTest::textTakesThePanelsValues() {
    BehaviourEditor editor(0);
    editor.chooseTool("optText");
    typeOver(*editor.find<QLineEdit>("txtAlpha"), "45");
    editor.prompts.colors << QColor(1, 2, 250);
    click(*editor.find<QWidget>("fColor"));
    editor.key(Qt::Key_Escape);
    putOnClipboard([](QMimeData& data) { data.setText("Hello"); });
    editor.key(Qt::Key_V, Qt::ControlModifier);
    const Element& text = editor.document().element(1);
    QVERIFY(text.textIsConstant);
    QCOMPARE(text.elementControl.caption, std::string("Hello"));
    QCOMPARE(text.elementControl.textColor, makeColor(1, 2, 250));
    QCOMPARE(int{text.elementAlpha}, 45);
    const Place place = placeOf(text.elementControl);
    QVERIFY(place[2] > 10 && place[3] > 5); // the text's own size
    QCOMPARE(place, middlePlace(ElementKind::Text, SkinSize{place[2], place[3]}));
    editor.key(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(editor.control(2).left, place[0] + 10);
}

void PasteSourcesTest::textIsCleaned() {
    BehaviourEditor editor(0);
    putOnClipboard([](QMimeData& data) {
        data.setText(QStringLiteral("\r\n  one\ttwo\r\nthree") + QChar(7) + QStringLiteral("  \n"));
    });
    editor.key(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(editor.control(1).caption, std::string("one two\nthree"));
    QCOMPARE(editor.control(1).textColor, makeColor(255, 255, 255)); // no colour was chosen yet
}

void PasteSourcesTest::pictureIsKept() {
    BehaviourEditor editor(0);
    putOnClipboard([](QMimeData& data) { data.setImageData(picture()); });
    editor.key(Qt::Key_V, Qt::ControlModifier);
    const Element& image = editor.document().element(1);
    QCOMPARE(image.elementKind, ElementKind::Image);
    QCOMPARE(placeOf(image.elementControl), (Place{260, 200, 120, 80}));
    const auto resources = [&] { return editor.document().settings().resources; };
    QCOMPARE(resources().size(), std::size_t{1});
    QCOMPARE(resources().front().name, std::string("Picture"));
    const QString file = qtText(hostPath(resources().front().content).string());
    QVERIFY2(file.startsWith(data_.path()) && file.contains("/pasted/"), qPrintable(file));
    QVERIFY(file.endsWith(".png"));
    QCOMPARE(QImage(file).convertToFormat(QImage::Format_RGB32), picture());
    // The same one again is the same file; another one has a name of its own.
    editor.key(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(placeOf(editor.control(2)), (Place{270, 210, 120, 80}));
    QCOMPARE(resources().size(), std::size_t{1});
    putOnClipboard([](QMimeData& data) { data.setImageData(picture().copy(0, 0, 50, 20)); });
    editor.key(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(resources().size(), std::size_t{2});
    QCOMPARE(resources().back().name, std::string("Picture 2"));
    QVERIFY(resources().back().content != resources().front().content);
    QCOMPARE(placeOf(editor.control(3)), (Place{295, 230, 50, 20}));
}

void PasteSourcesTest::pictureThatCannotBeKept() {
    BehaviourEditor editor(1);
    const SkinDocument before = editor.document();
    QFile file(editor.path("file"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    qputenv("XDG_DATA_HOME", editor.path("file").toUtf8()); // no folder
    putOnClipboard([](QMimeData& data) { data.setImageData(picture()); });
    editor.key(Qt::Key_V, Qt::ControlModifier);
    QVERIFY2(statusOf(editor).startsWith("Nothing was pasted: "), qPrintable(statusOf(editor)));
    QVERIFY(statusOf(editor).contains(editor.path("file")));
    QVERIFY(editor.document() == before);
    QVERIFY(!editor.entry("mnuUndo")->isEnabled());
}

void PasteSourcesTest::largePicturesFitTheScreen() {
    BehaviourEditor editor(0);
    QImage large(1280, 800, QImage::Format_RGB32);
    large.fill(Qt::blue);
    putOnClipboard([&](QMimeData& data) { data.setImageData(large); });
    editor.key(Qt::Key_V, Qt::ControlModifier);
    const Place place = placeOf(editor.control(1));
    QCOMPARE(place, middlePlace(ElementKind::Image, SkinSize{1280, 800}));
    QVERIFY(place[0] >= 0 && place[2] <= skinWidth);
}

void PasteSourcesTest::firstUsableFileOpensTheDialog() {
    BehaviourEditor editor(0);
    const QString usable = editor.path("usable.png");
    QVERIFY(picture().save(editor.path("bad\\name.png")) && picture().save(usable));
    putOnClipboard([&](QMimeData& data) {
        data.setUrls({QUrl::fromLocalFile(editor.folder.path()),
                      QUrl::fromLocalFile(editor.path("bad\\name.png")),
                      QUrl::fromLocalFile(usable)});
        data.setText(usable); // as file managers do
    });
    QVERIFY(inDialog([&] { editor.key(Qt::Key_V, Qt::ControlModifier); }, "frmResources",
                     [&](QWidget& dialog) {
                         QCOMPARE(test::control<QLabel>(dialog, "lblFile").text(), usable);
                         QTest::keyClick(dialog.focusWidget(), Qt::Key_Return); // Add
                     }));
    QCOMPARE(editor.document().settings().resources.size(), std::size_t{1});
    QCOMPARE(editor.document().rowCount(1), 0);
    QVERIFY(activate(editor.window));
    putOnClipboard([&](QMimeData& data) {
        data.setUrls({QUrl::fromLocalFile(editor.path("bad\\name.png"))});
    });
    editor.key(Qt::Key_V, Qt::ControlModifier);
    QVERIFY2(statusOf(editor).startsWith("Nothing was pasted: "), qPrintable(statusOf(editor)));
    QVERIFY(statusOf(editor).contains("bad\\name.png"));
}

TARVEL_UI_TEST(PasteSourcesTest)
#include "paste_sources_test.moc"
