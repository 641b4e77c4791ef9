// The resource of an image in the property panel, and its previews.
#include "files/host_files.h"
#include "panels/video_preview.h"
#include "support/property_support.h"
#include "support/surface_support.h"
#include "support/ui_test.h"

#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

using namespace tarvel;
using namespace tarvel::test;

namespace {

constexpr int patience = 20'000; // milliseconds

QString media(const char* name) {
    return QStringLiteral(TARVEL_EXAMPLES_DIR "/aurora/Media/") + QString::fromLatin1(name);
}

void addFile(SkinDocument& document, const char* name, const QString& path) {
    document.addRes(name, documentPath(path.toStdString()));
}

Element imageNamed(const char* resource) {
    Element image = elementOfKind(ElementKind::Image);
    image.imageSource = resource;
    return image;
}

QStringList entries(const QComboBox& list) {
    QStringList texts;
    for (int row = 0; row < list.count(); ++row) {
        texts << list.itemText(row);
    }
    return texts;
}

QString shownPreview(ShownPanel& shown) {
    QStringList visible;
    for (const char* name : {"imgPreview", "imgPng", "vidPreview"}) {
        if (shown.sees(QString::fromLatin1(name))) {
            visible << QString::fromLatin1(name);
        }
    }
    return visible.join(QLatin1Char(' '));
}

// The look of the preview that is in sight.
QImage lookOfPreview(ShownPanel& shown) {
    return shown.find<QWidget>(shownPreview(shown))
        .grab()
        .toImage()
        .convertToFormat(QImage::Format_RGB32);
}

QColor middleOf(const QImage& look, QPoint away = {}) {
    return look.pixelColor(look.rect().center() + away);
}

} // namespace

class PropertyPanelImageTest : public QObject {
    Q_OBJECT

  private slots:
    void listShowsTheNamesOfTheResources();
    void withoutResourcesThereIsNothingToChoose();
    void chosenResourceIsItsPosition();
    void elementChoosesItsResource_data();
    void elementChoosesItsResource();
    void chosenResourceStaysByItsName();
    void resourcesOfTheSameNameStayByTheirPlace();
    void takenAwayResourceIsNoLongerChosen();
    void managerIsAskedFor();

    void controlSuitsTheFile_data();
    void controlSuitsTheFile();
    void pictureIsFittedIn();
    void smallPictureKeepsItsSize();
    void pngLetsACheckerboardThrough();
    void presetShowsTheProgramIcon();
    void unreadableFileSaysSo_data();
    void unreadableFileSaysSo();
    void fileOutsideTheSkinIsNotOpened();
    void videoOutsideTheSkinIsNotOpened();
    void nothingChosenShowsAnEmptyPlace();
    void replacedResourceIsPreviewedAnew();

    void videoPlays();
    void videoStopsAndPlaysAgain();
    void shownAgainAStoppedVideoStaysStopped();
    void videoPlaysOnlyInSight();
    void missingVideoSaysSo();
    void everyContentIsTheFileNameOfThePlayer();

  private:
    // Three files and a resource that the dashboard supplies.
    static SkinDocument skin();

    PictureFolder folder_;
};

SkinDocument PropertyPanelImageTest::skin() {
    SkinDocument document;
    addFile(document, "Sky", media("aurora.jpg"));
    addFile(document, "Logo", media("logo.png"));
    addFile(document, "Film", media("lights.wmv"));
    document.addcRes("<Image/>", "Preset");
    return document;
}

void PropertyPanelImageTest::listShowsTheNamesOfTheResources() {
    ShownPanel shown(skin());
    shown.panel.showKind(ElementKind::Image);
    const auto& lstR = shown.find<QComboBox>("lstR");
    QCOMPARE(entries(lstR), (QStringList{"Sky", "Logo", "Film", "Preset"}));
    QCOMPARE(lstR.currentIndex(), -1);
    QCOMPARE(shown.panel.values().resource, -1);
    addFile(shown.document, "Clock", media("clock.png"));
    shown.panel.resourcesChanged();
    QCOMPARE(lstR.count(), 5);
    QCOMPARE(lstR.itemText(4), "Clock");
    QCOMPARE(lstR.currentIndex(), -1);
}

void PropertyPanelImageTest::withoutResourcesThereIsNothingToChoose() {
    ShownPanel shown;
    shown.panel.showElement(imageNamed("gone"));
    const auto& lstR = shown.find<QComboBox>("lstR");
    QVERIFY(!lstR.isEnabled());
    QCOMPARE(shown.panel.values().resource, -1);
    shown.document = skin();
    shown.panel.resourcesChanged();
    QVERIFY(lstR.isEnabled());
    QCOMPARE(shown.panel.values().resource, -1);
}

void PropertyPanelImageTest::chosenResourceIsItsPosition() {
    ShownPanel shown(skin());
    shown.panel.showKind(ElementKind::Image);
    chooseEntry(shown.find<QComboBox>("lstR"), 1);
    QCOMPARE(shown.panel.values().resource, 1);
    chooseInPopup(shown.find<QComboBox>("lstR"), 3);
    QCOMPARE(shown.panel.values().resource, 3);
}

void PropertyPanelImageTest::elementChoosesItsResource_data() {
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<int>("position");
    QTest::newRow("same") << QByteArray("Logo") << 1;
    QTest::newRow("other letter case") << QByteArray("lOGO") << 1;
    QTest::newRow("with the mark") << QByteArray("::Preset") << 3;
    QTest::newRow("taken away") << QByteArray("gone") << 0;
}

void PropertyPanelImageTest::elementChoosesItsResource() {
    QFETCH(QByteArray, source);
    QFETCH(int, position);
    ShownPanel shown(skin());
    shown.panel.showElement(imageNamed("Film"));
    shown.panel.showElement(imageNamed(source.constData()));
    QCOMPARE(shown.find<QComboBox>("lstR").currentIndex(), position);
    QCOMPARE(shown.panel.values().resource, position);
}

void PropertyPanelImageTest::chosenResourceStaysByItsName() {
    ShownPanel shown(skin());
    shown.panel.showElement(imageNamed("Logo"));
    shown.document.editSettings(
        [](SkinSettings& settings) { settings.resources.erase(settings.resources.begin()); });
    shown.panel.resourcesChanged();
    QCOMPARE(shown.panel.values().resource, 0);
    QCOMPARE(shown.find<QComboBox>("lstR").currentText(), "Logo");
    QCOMPARE(shownPreview(shown), "imgPng");
}

void PropertyPanelImageTest::resourcesOfTheSameNameStayByTheirPlace() {
    SkinDocument document = skin();
    addFile(document, "Sky", media("violet.jpg"));
    ShownPanel shown(document);
    shown.panel.showElement(imageNamed("Sky"));
    QCOMPARE(shown.panel.values().resource, 4);
    addFile(shown.document, "Last", media("clock.png"));
    shown.panel.resourcesChanged();
    QCOMPARE(shown.panel.values().resource, 4);
}

void PropertyPanelImageTest::takenAwayResourceIsNoLongerChosen() {
    ShownPanel shown(skin());
    shown.panel.showElement(imageNamed("Sky"));
    shown.document.editSettings(
        [](SkinSettings& settings) { settings.resources.erase(settings.resources.begin()); });
    shown.panel.resourcesChanged();
    QCOMPARE(shown.panel.values().resource, -1);
    QCOMPARE(shown.find<QComboBox>("lstR").currentIndex(), -1);
}

void PropertyPanelImageTest::managerIsAskedFor() {
    ShownPanel shown(skin());
    shown.panel.showKind(ElementKind::Image);
    const QSignalSpy asked(&shown.panel, &PropertyPanel::addResourceClicked);
    click(shown.find<QPushButton>("cmdAddRes"));
    QCOMPARE(asked.size(), 1);
}

void PropertyPanelImageTest::controlSuitsTheFile_data() {
    QTest::addColumn<QString>("preview");
    QTest::newRow("Sky") << "imgPreview";
    QTest::newRow("Logo") << "imgPng";
    QTest::newRow("Film") << "vidPreview";
    QTest::newRow("Preset") << "imgPreview";
}

void PropertyPanelImageTest::controlSuitsTheFile() {
    QFETCH(QString, preview);
    ShownPanel byElement(skin());
    byElement.panel.showElement(imageNamed(QTest::currentDataTag()));
    QCOMPARE(shownPreview(byElement), preview);
    ShownPanel byUser(skin());
    byUser.panel.showKind(ElementKind::Image);
    auto& lstR = byUser.find<QComboBox>("lstR");
    chooseInPopup(lstR, lstR.findText(QString::fromLatin1(QTest::currentDataTag())));
    QCOMPARE(shownPreview(byUser), preview);
}

void PropertyPanelImageTest::pictureIsFittedIn() {
    for (const char* file : {"wide.bmp", "wide.png"}) {
        SkinDocument document;
        addFile(document, "wide",
                folder_.save(plainPicture({2000, 100}, Qt::red), QString::fromLatin1(file)));
        ShownPanel shown(document);
        shown.panel.showElement(imageNamed("wide"));
        const QImage look = lookOfPreview(shown);
        const int half = look.width() / 2;
        QCOMPARE(middleOf(look), QColor(Qt::red));
        QCOMPARE(middleOf(look, {half - 6, 0}), QColor(Qt::red));
        QCOMPARE(middleOf(look, {-half + 6, 0}), QColor(Qt::red));
        QVERIFY(middleOf(look, {0, 20}) != QColor(Qt::red));
    }
}

void PropertyPanelImageTest::smallPictureKeepsItsSize() {
    for (const char* file : {"small.bmp", "small.png"}) {
        SkinDocument document;
        addFile(document, "small",
                folder_.save(plainPicture({20, 20}, Qt::red), QString::fromLatin1(file)));
        ShownPanel shown(document);
        shown.panel.showElement(imageNamed("small"));
        const QImage look = lookOfPreview(shown);
        QCOMPARE(middleOf(look), QColor(Qt::red));
        for (const QPoint away : {QPoint(13, 0), QPoint(-13, 0), QPoint(0, 13), QPoint(0, -13)}) {
            QVERIFY(middleOf(look, away) != QColor(Qt::red));
        }
    }
}

void PropertyPanelImageTest::pngLetsACheckerboardThrough() {
    SkinDocument document;
    addFile(document, "glass",
            folder_.save(halvesPicture({100, 60}, Qt::red, Qt::transparent), "glass.png"));
    ShownPanel shown(document);
    shown.panel.showElement(imageNamed("glass"));
    const QImage look = lookOfPreview(shown);
    QCOMPARE(middleOf(look, {-25, 0}), QColor(Qt::red));
    QSet<QRgb> through;
    for (int x = 4; x < 46; ++x) {
        through << middleOf(look, {x, 0}).rgb();
    }
    QCOMPARE(through.size(), 2);
}

void PropertyPanelImageTest::presetShowsTheProgramIcon() {
    SkinDocument document;
    document.addcRes("<Image/>", "Preset");
    addFile(document, "Icon", folder_.save(QImage(":/tarvel/imgCustom.png"), "icon.png"));
    ShownPanel shown(document);
    shown.panel.showElement(imageNamed("Icon"));
    const QImage icon = lookOfPreview(shown);
    shown.panel.showElement(imageNamed("Preset"));
    QCOMPARE(shownPreview(shown), "imgPreview");
    QCOMPARE(lookOfPreview(shown), icon);
}

void PropertyPanelImageTest::unreadableFileSaysSo_data() {
    QTest::addColumn<QString>("file");
    QTest::newRow("missing picture") << "gone.jpg";
    QTest::newRow("missing png") << "gone.png";
    QTest::newRow("no picture") << "text.bmp";
    QTest::newRow("no png") << "text.png";
}

void PropertyPanelImageTest::unreadableFileSaysSo() {
    QFETCH(QString, file);
    const QString path = folder_.path(file);
    if (file.startsWith("text")) {
        writeFile(path.toStdString(), "no picture");
    }
    SkinDocument document;
    document.addcRes("<Image/>", "Preset");
    addFile(document, "bad", path);
    ShownPanel shown(document);
    shown.panel.showKind(ElementKind::Image);
    const QImage empty = lookOfPreview(shown);
    shown.panel.showElement(imageNamed("bad"));
    const QImage look = lookOfPreview(shown);
    QVERIFY(look != empty);
    // Words in the middle, in more than one colour, and none at the side.
    QSet<QRgb> words;
    for (int x = -25; x < 25; ++x) {
        words << middleOf(look, {x, -5}).rgb() << middleOf(look, {x, 5}).rgb();
    }
    QVERIFY(words.size() > 3);
    QVERIFY(shown.prompts.messages.isEmpty());
}

void PropertyPanelImageTest::fileOutsideTheSkinIsNotOpened() {
    const QString path = folder_.save(plainPicture({300, 200}, Qt::red), "outside.png");
    SkinDocument document;
    document.addRes("outside", documentPath(path.toStdString()), true);
    ShownPanel shown(document);
    shown.panel.showElement(imageNamed("outside"));
    const QImage look = lookOfPreview(shown);
    for (int x = 0; x < look.width(); ++x) {
        QVERIFY(look.pixelColor(x, look.height() / 3) != QColor(Qt::red));
    }
}

void PropertyPanelImageTest::videoOutsideTheSkinIsNotOpened() {
    const std::string path = documentPath(media("lights.wmv").toStdString());
    SkinDocument document;
    document.addRes("outside", path, true);
    ShownPanel shown(document);
    shown.panel.showElement(imageNamed("outside"));
    const auto& vidPreview = shown.find<VideoPreview>("vidPreview");
    QCOMPARE(vidPreview.fileName(), path);
    QVERIFY(!vidPreview.isPlaying());
    QCOMPARE(shownPreview(shown), "imgPreview");
}

void PropertyPanelImageTest::nothingChosenShowsAnEmptyPlace() {
    ShownPanel shown(skin());
    shown.panel.showKind(ElementKind::Image);
    QCOMPARE(shownPreview(shown), "imgPreview");
    const QImage look = lookOfPreview(shown);
    const QColor base = shown.panel.palette().color(QPalette::Base);
    for (int x = 3; x < look.width() - 3; ++x) {
        QCOMPARE(look.pixelColor(x, look.height() / 2), base);
    }
}

void PropertyPanelImageTest::replacedResourceIsPreviewedAnew() {
    SkinDocument document;
    addFile(document, "picture", folder_.save(plainPicture({50, 50}, Qt::red), "one.bmp"));
    ShownPanel shown(document);
    shown.panel.showElement(imageNamed("picture"));
    const std::string other =
        documentPath(folder_.save(plainPicture({50, 50}, Qt::blue), "two.bmp").toStdString());
    shown.document.editSettings(
        [&](SkinSettings& settings) { settings.resources[0].content = other; });
    shown.panel.resourcesChanged();
    QCOMPARE(middleOf(lookOfPreview(shown)), QColor(Qt::blue));
}

void PropertyPanelImageTest::videoPlays() {
    ShownPanel shown(skin());
    shown.panel.showElement(imageNamed("Film"));
    const auto& vidPreview = shown.find<VideoPreview>("vidPreview");
    QCOMPARE(vidPreview.fileName(), documentPath(media("lights.wmv").toStdString()));
    QVERIFY(vidPreview.isPlaying());
    const QImage pending = lookOfPreview(shown);
    QTRY_VERIFY_WITH_TIMEOUT(lookOfPreview(shown) != pending, patience);
}

void PropertyPanelImageTest::videoStopsAndPlaysAgain() {
    ShownPanel shown(skin());
    shown.panel.showKind(ElementKind::Image);
    auto& lstR = shown.find<QComboBox>("lstR");
    const auto& vidPreview = shown.find<VideoPreview>("vidPreview");
    chooseInPopup(lstR, 2);
    QVERIFY(vidPreview.isPlaying());
    shown.panel.stopPreview();
    QVERIFY(!vidPreview.isPlaying());
    QCOMPARE(shownPreview(shown), "vidPreview");
    chooseInPopup(lstR, 2);
    QVERIFY(vidPreview.isPlaying());
    chooseEntry(lstR, 1);
    QVERIFY(!vidPreview.isPlaying());
}

void PropertyPanelImageTest::shownAgainAStoppedVideoStaysStopped() {
    ShownPanel shown(skin());
    shown.panel.showElement(imageNamed("Film"));
    shown.panel.stopPreview();
    shown.panel.showElement(imageNamed("Film"));
    QVERIFY(!shown.find<VideoPreview>("vidPreview").isPlaying());
    shown.panel.showNothing();
    shown.panel.showElement(imageNamed("Film"));
    QVERIFY(shown.find<VideoPreview>("vidPreview").isPlaying());
}

void PropertyPanelImageTest::videoPlaysOnlyInSight() {
    ShownPanel shown(skin());
    const auto& vidPreview = shown.find<VideoPreview>("vidPreview");
    shown.panel.showElement(imageNamed("Film"));
    shown.panel.showElement(elementOfKind(ElementKind::Box));
    QVERIFY(!vidPreview.isPlaying());
    shown.panel.showKind(ElementKind::Image);
    QVERIFY(vidPreview.isPlaying());
    shown.panel.showNothing();
    QVERIFY(!vidPreview.isPlaying());
    QCOMPARE(shown.panel.values().resource, 2);
}

void PropertyPanelImageTest::missingVideoSaysSo() {
    SkinDocument document;
    addFile(document, "gone", folder_.path("gone.wmv"));
    ShownPanel shown(document);
    shown.panel.showElement(imageNamed("gone"));
    QCOMPARE(shownPreview(shown), "vidPreview");
    QVERIFY(!shown.find<VideoPreview>("vidPreview").isPlaying());
    const QImage look = lookOfPreview(shown);
    QSet<QRgb> words;
    for (int x = -25; x < 25; ++x) {
        words << middleOf(look, {x, -5}).rgb() << middleOf(look, {x, 5}).rgb();
    }
    QVERIFY(words.size() > 3);
}

void PropertyPanelImageTest::everyContentIsTheFileNameOfThePlayer() {
    ShownPanel shown(skin());
    shown.panel.showKind(ElementKind::Image);
    auto& lstR = shown.find<QComboBox>("lstR");
    const auto& vidPreview = shown.find<VideoPreview>("vidPreview");
    QCOMPARE(vidPreview.fileName(), "");
    for (const int row : {0, 1, 2, 3, 2, 1, 3, 0}) {
        chooseEntry(lstR, row);
        QCOMPARE(vidPreview.fileName(),
                 shown.document.settings().resources.at(static_cast<std::size_t>(row)).content);
        QCOMPARE(vidPreview.isPlaying(), row == 2);
    }
    shown.panel.showKind(ElementKind::Box);
    QCOMPARE(vidPreview.fileName(), "");
}

TARVEL_UI_TEST(PropertyPanelImageTest)
#include "property_panel_image_test.moc"
