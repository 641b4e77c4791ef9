// The Resources dialog.
#include "canvas/picture_cache.h"
#include "dialogs/frm_resources.h"
#include "dialogs/resource_preview.h"
#include "dialogs/resource_rules.h"
#include "dialogs/resource_thumbnails.h"
#include "support/dialog_support.h"
#include "support/scripted_prompts.h"
#include "support/temporary_folder.h"

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

namespace tarvel {

using test::click;
using test::clickRow;
using test::control;
using test::typeOver;

namespace {

constexpr int patience = 20'000; // milliseconds

QString shown(const std::filesystem::path& path) {
    return QString::fromStdString(path.string());
}

// The colour in the middle of a row's picture.
QColor thumbnailColor(const QListWidget& list, int row) {
    const QSize size = ResourceThumbnails::size;
    return list.item(row)->icon().pixmap(size).toImage().pixelColor(size.width() / 2,
                                                                    size.height() / 2);
}

QColor centreColor(QWidget& widget) {
    const QImage image = widget.grab().toImage();
    return image.pixelColor(image.rect().center());
}

} // namespace

class FrmResourcesTest : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase();
    void init();
    void cleanup() { dialog_.reset(); }
    void showsItsTexts();
    void presetsAreListedInOrder();
    void showsTheDocumentEachTimeItIsOpened();
    void optionsSwitchTheFrames();
    void heightFitsTheFrame();
    void heightThatTheUserAddsStays();
    void browsingFillsTheFields();
    void browsingLeavesATypedNameAlone();
    void cancelledBrowsingChangesNothing_data();
    void cancelledBrowsingChangesNothing();
    void aFileIsAdded();
    void reservedNameIsRefused();
    void takenNameIsRefused();
    void nothingIsAddedWithoutNameAndFile_data();
    void nothingIsAddedWithoutNameAndFile();
    void clickOnAPresetDescribesIt_data();
    void clickOnAPresetDescribesIt();
    void aPresetIsAdded();
    void presetWithATakenNameIsSilentlyNotAdded();
    void noPresetIsAddedWithoutAChoice();
    void presetMayHaveTheReservedName();
    void droppedFileIsFilledIn();
    void droppedFileShowsTheCustomFrame();
    void otherDropsAreRefused();
    void aFileMayBeFilledInBeforeOpening();
    void rowsGetThumbnails();
    void visibleRowsGetThumbnailsFirst();
    void listStaysAliveWhileThumbnailsAreMade();
    void addedResourceGetsAThumbnail();
    void badFilesAreShownAsSuch_data();
    void badFilesAreShownAsSuch();
    void previewShowsAPicture();
    void previewShowsTransparencyOnACheckerboard();
    void previewPlaysAVideo();
    void previewShowsTheIconPictureForPresets();
    void outsideFilesAreNotOpened();
    void previewShowsTheFileThatIsFilledIn();
    void worksByKeysAlone();
    void closes_data();
    void closes();
    void controlsHaveAccessibleNames();

  private:
    const std::vector<Resource>& resources() const { return document_.settings().resources; }
    // Writes a picture of one colour and returns its host path.
    QString picture(const char* name, const QColor& color, QSize size = {60, 40});
    void open();
    template <class Control> Control& at(const char* name) {
        return control<Control>(*dialog_, QLatin1String(name));
    }
    void choosePresets() {
        click(at<QWidget>("optPreset"));
        QVERIFY(at<QGroupBox>("fraPreset").isVisible());
    }

    SkinDocument document_;
    std::unique_ptr<test::ScriptedPrompts> prompts_;
    std::unique_ptr<PictureCache> pictures_;
    std::unique_ptr<FrmResources> dialog_;
    TemporaryFolder folder_;
};

void FrmResourcesTest::initTestCase() {
    QVERIFY(QFile::exists(":/tarvel/imgCustom.png"));
}

void FrmResourcesTest::init() {
    document_ = SkinDocument();
    prompts_ = std::make_unique<test::ScriptedPrompts>();
    pictures_ = std::make_unique<PictureCache>();
    dialog_ = std::make_unique<FrmResources>(document_, *prompts_, *pictures_);
}

QString FrmResourcesTest::picture(const char* name, const QColor& color, QSize size) {
    QImage image(size, QImage::Format_ARGB32);
    image.fill(color);
    const QString path = shown(folder_ / name);
    if (!image.save(path)) {
        qFatal("cannot write %s", qPrintable(path));
    }
    return path;
}

void FrmResourcesTest::open() {
    QVERIFY(test::open(*dialog_));
}

void FrmResourcesTest::showsItsTexts() {
    QVERIFY(!dialog_->isVisible());
    QVERIFY(dialog_->isModal());
    QCOMPARE(dialog_->objectName(), "frmResources");
    QCOMPARE(at<QGroupBox>("fraCustom").title(), "ADD RESOURCE");
    QCOMPARE(at<QGroupBox>("fraPreset").title(), "ADD PRESET RESOURCE");
    const auto text = [&](const char* name) { return at<QAbstractButton>(name).text(); };
    QCOMPARE(text("optCustom"), "Custom (from file)");
    QCOMPARE(text("optCustom2"), "Custom (from file)");
    QCOMPARE(text("optPreset"), "Preset (in QOR)");
    QCOMPARE(text("optPreset2"), "Preset (in QOR)");
    QCOMPARE(text("cmdBrowse"), "Browse");
    QCOMPARE(text("cmdAdd"), "Add");
    QCOMPARE(text("cmdAddDef"), "Add Resource");
    const auto labels = [&](const char* frame) {
        QStringList texts;
        for (const QLabel* label : at<QGroupBox>(frame).findChildren<QLabel*>()) {
            texts << label->text();
        }
        texts.removeAll(QString());
        texts.sort();
        return texts;
    };
    QCOMPARE(labels("fraCustom"),
             (QStringList{"*The resource can either be a video or a picture.  Both are referred to "
                          "as \"images\".",
                          "File:", "Resource Name:"}));
    QCOMPARE(labels("fraPreset"), (QStringList{"Description:", "Resource name"}));
    const auto* list = at<QListWidget>("lstRes").parentWidget();
    QCOMPARE(qobject_cast<const QGroupBox*>(list)->title(), "CURRENT RESOURCES");
    QVERIFY(!at<QLabel>("imgDefault").pixmap().isNull());
    QCOMPARE(at<QLabel>("lblFile").text(), "");
}

void FrmResourcesTest::presetsAreListedInOrder() {
    QCOMPARE(test::rowTexts(at<QListWidget>("lstResDef")),
             (QStringList{"PreviewMedia", "GameIcon", "::ICO_ACTION", "::ICO_DIR", "::ICO_DVD",
                          "::ICO_EMU", "::ICO_FILE", "::ICO_HD", "::ICO_LOCK", "::ICO_MEDIA",
                          "::ICO_MUSIC", "::ICO_WAVE", "::ICO_XBE", "::SkyTile", "::Logo",
                          "::HelpGCScreen", "::HelpKBScreen", "::HelpIRScreen"}));
}

void FrmResourcesTest::showsTheDocumentEachTimeItIsOpened() {
    open();
    QCOMPARE(at<QListWidget>("lstRes").count(), 0);
    dialog_->close();
    document_.addRes("First", "\\somewhere\\Folder\\a.png");
    document_.addcRes("<File>::Logo</File>", "<b>Second</b>");
    open();
    auto& list = at<QListWidget>("lstRes");
    QCOMPARE(test::rowTexts(list), (QStringList{"First", "<b>Second</b>"}));
    QVERIFY(list.selectedItems().isEmpty());
    QCOMPARE(list.item(0)->toolTip(), "/somewhere/Folder/a.png"); // as this system spells it
    dialog_->close();
    document_ = SkinDocument();
    open();
    QCOMPARE(list.count(), 0);
}

void FrmResourcesTest::optionsSwitchTheFrames() {
    open();
    const auto expectPreset = [&](bool wanted) {
        QCOMPARE(at<QWidget>("fraPreset").isVisible(), wanted);
        QCOMPARE(at<QWidget>("lstResDef").isVisible(), wanted);
        QCOMPARE(at<QWidget>("cmdAddDef").isVisible(), wanted);
        QCOMPARE(at<QWidget>("txtRes").isVisible(), !wanted);
        QCOMPARE(at<QWidget>("cmdBrowse").isVisible(), !wanted);
        for (const char* name : {"optPreset", "optPreset2"}) {
            QCOMPARE(at<QRadioButton>(name).isChecked(), wanted);
        }
        for (const char* name : {"optCustom", "optCustom2"}) {
            QCOMPARE(at<QRadioButton>(name).isChecked(), !wanted);
        }
    };
    expectPreset(false);
    click(at<QWidget>("optPreset"));
    expectPreset(true);
    QVERIFY(at<QWidget>("optPreset2").hasFocus()); // the choice can be taken back by keys
    click(at<QWidget>("optCustom2"));
    expectPreset(false);
    QVERIFY(at<QWidget>("optCustom").hasFocus());
}

void FrmResourcesTest::heightFitsTheFrame() {
    open();
    const QSize custom = dialog_->size();
    click(at<QWidget>("optPreset"));
    const QSize preset = dialog_->size();
    QVERIFY(preset.height() > custom.height());
    QCOMPARE(preset.width(), custom.width());
    const auto& frame = at<QGroupBox>("fraPreset");
    QVERIFY(frame.height() >= frame.minimumSizeHint().height());
    click(at<QWidget>("optCustom2"));
    QCOMPARE(dialog_->size(), custom);
    click(at<QWidget>("optPreset"));
    QCOMPARE(dialog_->size(), preset);
    dialog_->close();
    open();
    QCOMPARE(dialog_->size(), preset);
}

void FrmResourcesTest::heightThatTheUserAddsStays() {
    open();
    const QSize custom = dialog_->size();
    dialog_->resize(custom.width() + 50, custom.height() + 80);
    click(at<QWidget>("optPreset"));
    click(at<QWidget>("optCustom2"));
    QCOMPARE(dialog_->size(), custom + QSize(50, 80));
}

void FrmResourcesTest::browsingFillsTheFields() {
    open();
    const QString file = picture("My Logo.png", Qt::red);
    prompts_->fileChoices = {{file}};
    click(at<QWidget>("cmdBrowse"));
    QCOMPARE(prompts_->severals, QList<bool>{false});
    QCOMPARE(prompts_->lastOwner, dialog_.get());
    QCOMPARE(at<QLabel>("lblFile").text(), file);
    QCOMPARE(at<QLabel>("lblFile").toolTip(), file);
    QCOMPARE(at<QLineEdit>("txtRes").text(), "My Logo");
    QVERIFY(at<QPushButton>("cmdAdd").isDefault());
    QVERIFY(at<QPushButton>("cmdAdd").hasFocus());
    QCOMPARE(document_, SkinDocument());
}

void FrmResourcesTest::browsingLeavesATypedNameAlone() {
    open();
    typeOver(at<QLineEdit>("txtRes"), "mine");
    prompts_->fileChoices = {{picture("a.png", Qt::red)}, {picture("b.png", Qt::red)}};
    click(at<QWidget>("cmdBrowse"));
    click(at<QWidget>("cmdBrowse"));
    QCOMPARE(at<QLineEdit>("txtRes").text(), "mine");
    QCOMPARE(at<QLabel>("lblFile").text(), shown(folder_ / "b.png"));
}

void FrmResourcesTest::cancelledBrowsingChangesNothing_data() {
    QTest::addColumn<QList<QStringList>>("choices");
    QTest::newRow("cancelled") << QList<QStringList>();
    QTest::newRow("no name") << QList<QStringList>{{""}};
}

void FrmResourcesTest::cancelledBrowsingChangesNothing() {
    QFETCH(QList<QStringList>, choices);
    open();
    prompts_->fileChoices = choices;
    click(at<QWidget>("cmdBrowse"));
    QCOMPARE(prompts_->filters.size(), 1);
    QCOMPARE(at<QLabel>("lblFile").text(), "");
    QCOMPARE(at<QLineEdit>("txtRes").text(), "");
    typeOver(at<QLineEdit>("txtRes"), "");
    QVERIFY(at<QPushButton>("cmdOK").isDefault());
}

void FrmResourcesTest::aFileIsAdded() {
    document_.addRes("old", "\\old.png");
    open();
    prompts_->fileChoices = {{picture("new.png", Qt::red)}};
    click(at<QWidget>("cmdBrowse"));
    QTest::keyClick(dialog_->focusWidget(), Qt::Key_Return); // Add is the default button
    QCOMPARE(resources().size(), 2U);
    QCOMPARE(resources()[1], (Resource{"new", folder_.document("new.png"), true, false}));
    auto& list = at<QListWidget>("lstRes");
    QCOMPARE(test::rowTexts(list), (QStringList{"old", "new"}));
    QVERIFY(list.item(1)->isSelected());
    QCOMPARE(at<QLabel>("lblFile").text(), "");
    QCOMPARE(at<QLineEdit>("txtRes").text(), "");
    QVERIFY(at<QPushButton>("cmdOK").isDefault());
    QVERIFY(dialog_->isVisible());
    QCOMPARE(prompts_->messages, QStringList());
    QTest::keyClick(dialog_->focusWidget(), Qt::Key_Return);
    QVERIFY(!dialog_->isVisible());
}

void FrmResourcesTest::reservedNameIsRefused() {
    open();
    prompts_->fileChoices = {{picture("bground.png", Qt::red)}};
    click(at<QWidget>("cmdBrowse"));
    QCOMPARE(at<QLineEdit>("txtRes").text(), "bground");
    click(at<QWidget>("cmdAdd"));
    QCOMPARE(prompts_->messages, QStringList{"Use a different resource name"});
    QCOMPARE(prompts_->lastOwner, dialog_.get());
    QVERIFY(resources().empty());
    QCOMPARE(at<QLineEdit>("txtRes").text(), "bground");
    typeOver(at<QLineEdit>("txtRes"), "Bground");
    click(at<QWidget>("cmdAdd"));
    QCOMPARE(prompts_->messages.size(), 1);
    QCOMPARE(resources().front().name, "Bground");
}

void FrmResourcesTest::takenNameIsRefused() {
    document_.addRes("Logo", "\\old.png");
    open();
    prompts_->fileChoices = {{picture("Logo.png", Qt::red)}};
    click(at<QWidget>("cmdBrowse"));
    click(at<QWidget>("cmdAdd"));
    QCOMPARE(prompts_->messages, QStringList{"Enter a unique resource name"});
    QCOMPARE(prompts_->lastOwner, dialog_.get());
    QVERIFY(at<QLineEdit>("txtRes").hasFocus());
    QCOMPARE(at<QLineEdit>("txtRes").text(), "Logo");
    QCOMPARE(at<QLabel>("lblFile").text(), shown(folder_ / "Logo.png"));
    QCOMPARE(resources().size(), 1U);
    typeOver(at<QLineEdit>("txtRes"), "logo"); // case counts
    click(at<QWidget>("cmdAdd"));
    QCOMPARE(prompts_->messages.size(), 1);
    QCOMPARE(resources().size(), 2U);
}

void FrmResourcesTest::nothingIsAddedWithoutNameAndFile_data() {
    QTest::addColumn<bool>("name");
    QTest::addColumn<bool>("file");
    QTest::newRow("neither") << false << false;
    QTest::newRow("name only") << true << false;
    QTest::newRow("file only") << false << true;
}

void FrmResourcesTest::nothingIsAddedWithoutNameAndFile() {
    QFETCH(bool, name);
    QFETCH(bool, file);
    open();
    if (file) {
        prompts_->fileChoices = {{picture("a.png", Qt::red)}};
        click(at<QWidget>("cmdBrowse"));
    }
    typeOver(at<QLineEdit>("txtRes"), name ? "a name" : "");
    click(at<QWidget>("cmdAdd"));
    QCOMPARE(document_, SkinDocument());
    QCOMPARE(prompts_->messages, QStringList());
    QCOMPARE(at<QLineEdit>("txtRes").text(), name ? "a name" : "");
    QCOMPARE(at<QLabel>("lblFile").text().isEmpty(), !file);
    QVERIFY(at<QPushButton>("cmdOK").isDefault());
}

void FrmResourcesTest::clickOnAPresetDescribesIt_data() {
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("description");
    QTest::addColumn<QString>("name");
    QTest::newRow("media") << 0 << "This shows each game's preview video or screenshot"
                           << "PreviewMedia";
    QTest::newRow("icon") << 1 << "This shows each game's icon"
                          << "GameIcon";
    QTest::newRow("dvd") << 4 << "---"
                         << "ICO_DVD";
    QTest::newRow("last") << 17 << "---"
                          << "HelpIRScreen";
}

void FrmResourcesTest::clickOnAPresetDescribesIt() {
    QFETCH(int, row);
    QFETCH(QString, description);
    QFETCH(QString, name);
    open();
    choosePresets();
    QCOMPARE(at<QLabel>("lblDesc").text(), "");
    QCOMPARE(at<QLineEdit>("txtResDef").text(), "");
    clickRow(at<QListWidget>("lstResDef"), row);
    QCOMPARE(at<QLabel>("lblDesc").text(), description);
    QCOMPARE(at<QLineEdit>("txtResDef").text(), name);
    typeOver(at<QLineEdit>("txtResDef"), "other");
    clickRow(at<QListWidget>("lstResDef"), row); // suggests again
    QCOMPARE(at<QLineEdit>("txtResDef").text(), name);
}

void FrmResourcesTest::aPresetIsAdded() {
    document_.addRes("old", "\\old.png");
    open();
    choosePresets();
    clickRow(at<QListWidget>("lstResDef"), 17);
    click(at<QWidget>("cmdAddDef"));
    QCOMPARE(resources().size(), 2U);
    QCOMPARE(resources()[1],
             (Resource{"HelpIRScreen", "<File>::HelpIRScreen</File>", false, false}));
    auto& list = at<QListWidget>("lstRes");
    QCOMPARE(test::rowTexts(list), (QStringList{"old", "HelpIRScreen"}));
    QVERIFY(list.item(1)->isSelected());
    QVERIFY(at<QPushButton>("cmdOK").isDefault());
    QVERIFY(at<QRadioButton>("optCustom").isChecked()); // as at the start
    QVERIFY(at<QWidget>("fraCustom").isVisible());
    QTest::keyClick(dialog_->focusWidget(), Qt::Key_Return);
    QVERIFY(!dialog_->isVisible());
}

void FrmResourcesTest::presetWithATakenNameIsSilentlyNotAdded() {
    document_.addRes("Logo", "\\old.png");
    const SkinDocument before = document_;
    open();
    choosePresets();
    clickRow(at<QListWidget>("lstResDef"), 14);
    click(at<QWidget>("cmdAddDef"));
    QCOMPARE(document_, before);
    QCOMPARE(prompts_->messages, QStringList());
    QVERIFY(at<QWidget>("fraPreset").isVisible());
    typeOver(at<QLineEdit>("txtResDef"), "logo");
    click(at<QWidget>("cmdAddDef"));
    QCOMPARE(resources().size(), 2U);
    QCOMPARE(resources()[1], (Resource{"logo", "<File>::Logo</File>", false, false}));
}

void FrmResourcesTest::noPresetIsAddedWithoutAChoice() {
    document_.addRes("old", "\\old.png");
    const SkinDocument before = document_;
    open();
    choosePresets();
    typeOver(at<QLineEdit>("txtResDef"), "name");
    click(at<QWidget>("cmdAddDef"));
    QCOMPARE(document_, before);
    QVERIFY(at<QListWidget>("lstRes").item(0)->isSelected());
    QVERIFY(at<QPushButton>("cmdOK").isDefault());
    QVERIFY(at<QRadioButton>("optCustom").isChecked());
}

void FrmResourcesTest::presetMayHaveTheReservedName() {
    open();
    choosePresets();
    clickRow(at<QListWidget>("lstResDef"), 0);
    typeOver(at<QLineEdit>("txtResDef"), "bground");
    click(at<QWidget>("cmdAddDef"));
    QCOMPARE(resources().front(),
             (Resource{"bground", "<EntryNamed>Media</EntryNamed>", false, false}));
}

void FrmResourcesTest::droppedFileIsFilledIn() {
    open();
    const QString first = picture("first.png", Qt::red);
    const QString second = picture("second.png", Qt::red);
    for (const char* target : {"txtRes", "lstRes", "imgPreview", "fraCustom"}) {
        at<QLineEdit>("txtRes").clear();
        auto& widget = at<QWidget>(target);
        QVERIFY2(test::dropFiles(widget, {first, second}), target);
        QCOMPARE(at<QLabel>("lblFile").text(), first);
        QCOMPARE(at<QLineEdit>("txtRes").text(), "first");
        QVERIFY(at<QPushButton>("cmdAdd").isDefault());
    }
    QVERIFY(test::dropFiles(*dialog_, {second}));
    QCOMPARE(at<QLabel>("lblFile").text(), second);
    QCOMPARE(at<QLineEdit>("txtRes").text(), "first"); // was not empty
    QVERIFY(resources().empty());
}

void FrmResourcesTest::droppedFileShowsTheCustomFrame() {
    open();
    choosePresets();
    QVERIFY(test::dropFiles(at<QWidget>("fraPreset"), {picture("a.png", Qt::red)}));
    QVERIFY(at<QWidget>("fraCustom").isVisible());
    QVERIFY(!at<QWidget>("fraPreset").isVisible());
    QCOMPARE(at<QLineEdit>("txtRes").text(), "a");
}

void FrmResourcesTest::otherDropsAreRefused() {
    open();
    QVERIFY(!test::dropFiles(*dialog_, {}));
    QVERIFY(!test::dropFiles(*dialog_, {shown(folder_.path()), shown(folder_ / "none.png")}));
    QCOMPARE(at<QLabel>("lblFile").text(), "");
}

void FrmResourcesTest::aFileMayBeFilledInBeforeOpening() {
    const QString file = picture("surface.png", Qt::blue);
    dialog_->takeFile(file);
    open();
    QCOMPARE(at<QLabel>("lblFile").text(), file);
    QCOMPARE(at<QLineEdit>("txtRes").text(), "surface");
    QVERIFY(at<QPushButton>("cmdAdd").hasFocus());
    QCOMPARE(centreColor(at<QWidget>("imgPreview")), QColor(Qt::blue));
    QTest::keyClick(dialog_->focusWidget(), Qt::Key_Return);
    QCOMPARE(resources().size(), 1U);
}

void FrmResourcesTest::rowsGetThumbnails() {
    picture("wide.png", Qt::red, {600, 100});
    picture("photo.jpg", Qt::blue, {300, 300});
    document_.addRes("wide", folder_.document("wide.png"));
    document_.addRes("photo", folder_.document("photo.jpg"));
    document_.addRes("clip", folder_.document("clip.WMV")); // need not even be there
    document_.addcRes("<Entry>default.xbe</Entry>", "icon");
    open();
    const auto& list = at<QListWidget>("lstRes");
    QTRY_VERIFY_WITH_TIMEOUT(dialog_->findChild<ResourceThumbnails*>()->isDone(), patience);
    QCOMPARE(thumbnailColor(list, 0), QColor(Qt::red));
    const QColor blue = thumbnailColor(list, 1);
    QVERIFY(blue.blue() > 240 && blue.red() < 20);
    // The wide picture keeps its shape, and its row the height of the others.
    const QImage wide = list.item(0)->icon().pixmap(ResourceThumbnails::size).toImage();
    QCOMPARE(wide.size(), ResourceThumbnails::size);
    QCOMPARE(wide.pixelColor(20, 5).alpha(), 0);
    // A strip of film, and the icon picture.
    const QImage film = list.item(2)->icon().pixmap(ResourceThumbnails::size).toImage();
    QVERIFY(film.pixelColor(1, 1) != film.pixelColor(4, 3));
    QCOMPARE(film.pixelColor(20, 15), QColor(Qt::white));
    const QImage icon = list.item(3)->icon().pixmap(ResourceThumbnails::size).toImage();
    QVERIFY(icon != film);
    QVERIFY(icon.pixelColor(20, 15).alpha() == 255);
}

void FrmResourcesTest::visibleRowsGetThumbnailsFirst() {
    picture("large.png", Qt::red, {1600, 1200});
    for (int i = 0; i < 40; ++i) {
        const std::string name = "copy" + std::to_string(i) + ".png";
        std::filesystem::copy_file(folder_ / "large.png", folder_ / name,
                                   std::filesystem::copy_options::overwrite_existing);
        document_.addRes(name, folder_.document(name));
    }
    open();
    auto& list = at<QListWidget>("lstRes");
    const int last = list.count() - 1;
    list.scrollToBottom();
    const QColor none = thumbnailColor(list, last);
    QTRY_VERIFY_WITH_TIMEOUT(thumbnailColor(list, last) != none, patience);
    QVERIFY(!dialog_->findChild<ResourceThumbnails*>()->isDone());
    QVERIFY(thumbnailColor(list, 20) == none);
    QTRY_VERIFY_WITH_TIMEOUT(dialog_->findChild<ResourceThumbnails*>()->isDone(), patience);
    QCOMPARE(thumbnailColor(list, 20), QColor(Qt::red));
}

void FrmResourcesTest::listStaysAliveWhileThumbnailsAreMade() {
    picture("photo.png", Qt::green, {800, 600});
    for (int i = 0; i < 60; ++i) {
        const std::string name = "photo" + std::to_string(i) + ".png";
        std::filesystem::copy_file(folder_ / "photo.png", folder_ / name,
                                   std::filesystem::copy_options::overwrite_existing);
        document_.addRes(name, folder_.document(name));
    }
    open();
    auto& list = at<QListWidget>("lstRes");
    auto& thumbnails = *dialog_->findChild<ResourceThumbnails*>();
    QVERIFY(!thumbnails.isDone());
    int ticks = 0;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&] { ticks += thumbnails.isDone() ? 0 : 1; });
    timer.start(0);
    clickRow(list, 1);
    QVERIFY(list.item(1)->isSelected());
    QVERIFY(!thumbnails.isDone());
    QTRY_VERIFY_WITH_TIMEOUT(thumbnails.isDone(), patience);
    QVERIFY2(ticks >= 10, qPrintable(QString::number(ticks)));
    QCOMPARE(thumbnailColor(list, 59), QColor(Qt::green));
}

void FrmResourcesTest::addedResourceGetsAThumbnail() {
    document_.addRes("old", "\\old.png");
    open();
    auto& thumbnails = *dialog_->findChild<ResourceThumbnails*>();
    QTRY_VERIFY_WITH_TIMEOUT(thumbnails.isDone(), patience);
    dialog_->takeFile(picture("new.png", Qt::green));
    click(at<QWidget>("cmdAdd"));
    QTRY_VERIFY_WITH_TIMEOUT(thumbnails.isDone(), patience);
    QCOMPARE(thumbnailColor(at<QListWidget>("lstRes"), 1), QColor(Qt::green));
}

void FrmResourcesTest::badFilesAreShownAsSuch_data() {
    QTest::addColumn<QString>("file");
    QTest::newRow("missing") << "nowhere.png";
    QTest::newRow("no picture") << "text.png";
    QTest::newRow("truncated") << "half.jpg";
    QTest::newRow("empty video") << "empty.wmv";
    QTest::newRow("folder") << "folder.png";
    QTest::newRow("far too large") << "bomb.png";
}

void FrmResourcesTest::badFilesAreShownAsSuch() {
    QFETCH(QString, file);
    folder_.file("text.png", "this is no picture");
    folder_.file("empty.wmv", "");
    folder_.folder("folder.png");
    picture("whole.jpg", Qt::red, {400, 300});
    folder_.file("half.jpg", readFile(folder_ / "whole.jpg").substr(0, 200));
    // A PNG that says it has 20,000 x 20,000 pixels.
    picture("small.png", Qt::red, {4, 4});
    std::string bomb = readFile(folder_ / "small.png");
    const std::string side("\x00\x00\x4E\x20", 4);
    bomb.replace(16, 8, side + side);
    folder_.file("bomb.png", bomb);

    document_.addRes("bad", folder_.document(file.toStdString()));
    open();
    QTRY_VERIFY_WITH_TIMEOUT(dialog_->findChild<ResourceThumbnails*>()->isDone(), patience);
    auto& preview = at<QWidget>("imgPreview");
    const QImage before = preview.grab().toImage();
    clickRow(at<QListWidget>("lstRes"), 0);
    // A crossed frame, whose diagonals meet the corners.
    QTRY_VERIFY_WITH_TIMEOUT(
        preview.grab().toImage().pixelColor(10, 10) != before.pixelColor(10, 10), patience);
    QVERIFY(at<QLabel>("lblPreview").text().startsWith(file));
}

void FrmResourcesTest::previewShowsAPicture() {
    picture("small.png", Qt::red, {80, 50});
    picture("large.png", Qt::blue, {2000, 1000});
    document_.addRes("small", folder_.document("small.png"));
    document_.addRes("large", folder_.document("large.png"));
    open();
    auto& preview = at<ResourcePreview>("imgPreview");
    const auto extent = [&](const QColor& color) {
        const QImage image = preview.grab().toImage();
        int width = 0;
        for (int x = 0; x < image.width(); ++x) {
            width += image.pixelColor(x, image.height() / 2) == color ? 1 : 0;
        }
        int height = 0;
        for (int y = 0; y < image.height(); ++y) {
            height += image.pixelColor(image.width() / 2, y) == color ? 1 : 0;
        }
        return QSize(width, height);
    };
    clickRow(at<QListWidget>("lstRes"), 0);
    QCOMPARE(extent(Qt::red), QSize(80, 50)); // its own size
    QCOMPARE(at<QLabel>("lblPreview").text(), "small.png, 80 x 50");
    QVERIFY(!preview.isPlaying());
    clickRow(at<QListWidget>("lstRes"), 1);
    const QSize fitted = extent(Qt::blue); // between the edges of the preview, in its own shape
    QCOMPARE(fitted.width(), preview.width() - 2);
    QVERIFY(std::abs(fitted.height() - fitted.width() / 2) <= 1);
    QCOMPARE(at<QLabel>("lblPreview").text(), "large.png, 2000 x 1000");
}

void FrmResourcesTest::previewShowsTransparencyOnACheckerboard() {
    picture("clear.png", Qt::transparent, {96, 96});
    document_.addRes("clear", folder_.document("clear.png"));
    open();
    clickRow(at<QListWidget>("lstRes"), 0);
    auto& preview = at<QWidget>("imgPreview");
    const QImage image = preview.grab().toImage();
    QList<QRgb> colors;
    const int y = image.height() / 2;
    for (int x = image.width() / 2 - 40; x < image.width() / 2 + 40; ++x) {
        if (!colors.contains(image.pixel(x, y))) {
            colors << image.pixel(x, y);
        }
    }
    QCOMPARE(colors.size(), 2);
    const int x = image.width() / 2;
    QVERIFY(image.pixel(x, y) != image.pixel(x + 8, y));
    QCOMPARE(image.pixel(x, y), image.pixel(x + 16, y));
    QCOMPARE(image.pixel(x, y), image.pixel(x + 8, y + 8));
}

void FrmResourcesTest::previewPlaysAVideo() {
    const QString film = QStringLiteral(TARVEL_EXAMPLES_DIR "/aurora/Media/lights.wmv");
    document_.addRes("film", documentPath(film.toStdString()));
    picture("still.png", Qt::red);
    document_.addRes("still", folder_.document("still.png"));
    open();
    auto& preview = at<ResourcePreview>("imgPreview");
    clickRow(at<QListWidget>("lstRes"), 0);
    QTRY_VERIFY_WITH_TIMEOUT(preview.isPlaying(), patience);
    const QImage waiting = preview.grab().toImage();
    QTRY_VERIFY_WITH_TIMEOUT(preview.grab().toImage() != waiting, patience);
    const QImage frame = preview.grab().toImage();
    QTRY_VERIFY_WITH_TIMEOUT(preview.grab().toImage() != frame, patience); // it moves
    clickRow(at<QListWidget>("lstRes"), 1);
    QVERIFY(!preview.isPlaying());
    QCOMPARE(centreColor(preview), QColor(Qt::red));
    clickRow(at<QListWidget>("lstRes"), 0);
    QTRY_VERIFY_WITH_TIMEOUT(preview.isPlaying(), patience);
    dialog_->close();
    QVERIFY(!preview.isPlaying());
}

void FrmResourcesTest::previewShowsTheIconPictureForPresets() {
    document_.addcRes("<File>::ICO_DVD</File>", "dvd");
    open();
    auto& preview = at<QWidget>("imgPreview");
    clickRow(at<QListWidget>("lstRes"), 0);
    const QImage image = preview.grab().toImage();
    const QImage icon(":/tarvel/imgCustom.png");
    QList<QRgb> colors;
    for (int x = 0; x < image.width(); ++x) {
        if (!colors.contains(image.pixel(x, image.height() / 2))) {
            colors << image.pixel(x, image.height() / 2);
        }
    }
    QVERIFY(colors.size() > 10);
    QVERIFY(icon.width() < image.width());
    QCOMPARE(at<QLabel>("lblPreview").text(), "Supplied by the dashboard");
}

void FrmResourcesTest::outsideFilesAreNotOpened() {
    picture("secret.png", Qt::green, {200, 200});
    document_.addRes("secret", folder_.document("secret.png"), true);
    open();
    QTRY_VERIFY_WITH_TIMEOUT(dialog_->findChild<ResourceThumbnails*>()->isDone(), patience);
    QVERIFY(thumbnailColor(at<QListWidget>("lstRes"), 0) != QColor(Qt::green));
    clickRow(at<QListWidget>("lstRes"), 0);
    auto& preview = at<QWidget>("imgPreview");
    const QImage image = preview.grab().toImage();
    for (int x = 0; x < image.width(); ++x) {
        QVERIFY(image.pixelColor(x, image.height() / 2) != QColor(Qt::green));
    }
    QVERIFY(at<QLabel>("lblPreview").text().contains("not opened"));
}

void FrmResourcesTest::previewShowsTheFileThatIsFilledIn() {
    picture("old.png", Qt::red);
    document_.addRes("old", folder_.document("old.png"));
    open();
    auto& list = at<QListWidget>("lstRes");
    clickRow(list, 0);
    QCOMPARE(centreColor(at<QWidget>("imgPreview")), QColor(Qt::red));
    prompts_->fileChoices = {{picture("new.png", Qt::blue)}};
    click(at<QWidget>("cmdBrowse"));
    QCOMPARE(centreColor(at<QWidget>("imgPreview")), QColor(Qt::blue));
    QVERIFY(list.selectedItems().isEmpty());
    clickRow(list, 0);
    QCOMPARE(centreColor(at<QWidget>("imgPreview")), QColor(Qt::red));
}

void FrmResourcesTest::worksByKeysAlone() {
    open();
    const auto press = [&](Qt::Key key) { QTest::keyClick(dialog_->focusWidget(), key); };
    const auto focus = [&] { return dialog_->focusWidget()->objectName(); };
    prompts_->fileChoices = {{picture("keys.png", Qt::red)}};
    QCOMPARE(focus(), "optCustom");
    QStringList visited;
    for (int i = 0; i < 5; ++i) {
        press(Qt::Key_Tab);
        visited << focus();
    }
    QCOMPARE(visited, (QStringList{"txtRes", "cmdBrowse", "cmdAdd", "lstRes", "cmdOK"}));
    at<QWidget>("cmdBrowse").setFocus();
    press(Qt::Key_Space);
    press(Qt::Key_Return); // Add
    at<QWidget>("optCustom").setFocus();
    press(Qt::Key_Right);
    QCOMPARE(focus(), "optPreset2");
    visited.clear();
    for (int i = 0; i < 3; ++i) {
        press(Qt::Key_Tab);
        visited << focus();
    }
    QCOMPARE(visited, (QStringList{"lstResDef", "txtResDef", "cmdAddDef"}));
    at<QWidget>("lstResDef").setFocus();
    press(Qt::Key_Down);
    at<QWidget>("cmdAddDef").setFocus();
    press(Qt::Key_Return);
    QCOMPARE(resources().size(), 2U);
    QCOMPARE(resources()[0].name, "keys");
    QCOMPARE(resources()[1].name, "PreviewMedia");
    press(Qt::Key_Return);
    QVERIFY(!dialog_->isVisible());
}

void FrmResourcesTest::closes_data() {
    QTest::addColumn<QString>("how");
    for (const char* how : {"OK", "Enter", "Escape", "close button"}) {
        QTest::newRow(how) << how;
    }
}

void FrmResourcesTest::closes() {
    QFETCH(QString, how);
    QTimer::singleShot(0, dialog_.get(), [&] {
        auto& edit = at<QLineEdit>("txtRes");
        if (how == "OK") {
            click(at<QWidget>("cmdOK"));
        } else if (how == "close button") {
            dialog_->close();
        } else {
            QTest::keyClick(&edit, how == "Enter" ? Qt::Key_Return : Qt::Key_Escape);
        }
    });
    QCOMPARE(dialog_->exec(), int(QDialog::Accepted));
}

void FrmResourcesTest::controlsHaveAccessibleNames() {
    QCOMPARE(test::withoutAccessibleName(*dialog_), QStringList());
}

} // namespace tarvel

QTEST_MAIN(tarvel::FrmResourcesTest)
#include "frm_resources_test.moc"
