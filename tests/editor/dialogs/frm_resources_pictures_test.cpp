// Thumbnails and preview of the Resources dialog.
#include "dialogs/resource_thumbnails.h"
#include "panels/resource_preview.h"
#include "support/resources_support.h"
#include "support/ui_test.h"

#include <QLabel>
#include <QSignalSpy>
#include <QTimer>

namespace tarvel {

using test::click;
using test::clickRow;
using test::control;

namespace {

constexpr int patience = 20'000; // milliseconds

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

class FrmResourcesPicturesTest : public QObject, protected test::ResourcesFixture {
    Q_OBJECT

  private slots:
    void initTestCase();
    void init() { startAfresh(); }
    void cleanup() { dialog_.reset(); }
    void rowsGetThumbnails();
    void visibleRowsGetThumbnailsFirst();
    void listStaysAliveWhileThumbnailsAreMade();
    void addedResourceGetsAThumbnail();
    void thumbnailsFollowTheirRows();
    void farThumbnailsAreGivenUp();
    void badFilesAreShownAsSuch_data();
    void badFilesAreShownAsSuch();
    void previewShowsAPicture();
    void previewShowsTransparencyOnACheckerboard();
    void previewPlaysAVideo();
    void previewShowsTheIconPictureForPresets();
    void outsideFilesAreNotOpened();
    void previewShowsTheFileThatIsFilledIn();
};

void FrmResourcesPicturesTest::initTestCase() {
    QVERIFY(QFile::exists(":/tarvel/imgCustom.png"));
}

void FrmResourcesPicturesTest::rowsGetThumbnails() {
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

void FrmResourcesPicturesTest::visibleRowsGetThumbnailsFirst() {
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

void FrmResourcesPicturesTest::listStaysAliveWhileThumbnailsAreMade() {
    picture("photo.png", Qt::green, {1600, 1200});
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

void FrmResourcesPicturesTest::addedResourceGetsAThumbnail() {
    document_.addRes("old", "\\old.png");
    open();
    auto& thumbnails = *dialog_->findChild<ResourceThumbnails*>();
    QTRY_VERIFY_WITH_TIMEOUT(thumbnails.isDone(), patience);
    dialog_->takeFile(picture("new.png", Qt::green));
    click(at<QWidget>("cmdAdd"));
    QTRY_VERIFY_WITH_TIMEOUT(thumbnails.isDone(), patience);
    QCOMPARE(thumbnailColor(at<QListWidget>("lstRes"), 1), QColor(Qt::green));
}

void FrmResourcesPicturesTest::thumbnailsFollowTheirRows() {
    for (const auto& [name, color] :
         {std::pair("red", Qt::red), std::pair("blue", Qt::blue), std::pair("gray", Qt::gray)}) {
        const QByteArray file = QByteArray(name) + ".png";
        picture(file, color);
        document_.addRes(name, folder_.document(file.toStdString()));
    }
    open();
    auto& list = at<QListWidget>("lstRes");
    auto& thumbnails = *dialog_->findChild<ResourceThumbnails*>();
    QTRY_VERIFY_WITH_TIMEOUT(thumbnails.isDone(), patience);
    clickRow(list, 0);
    click(at<QWidget>("cmdRemove"));
    QTRY_VERIFY_WITH_TIMEOUT(thumbnails.isDone(), patience);
    QCOMPARE(thumbnailColor(list, 0), QColor(Qt::blue));
    QCOMPARE(thumbnailColor(list, 1), QColor(Qt::gray));
    prompts_->fileChoices = {{picture("green.png", Qt::green)}};
    click(at<QWidget>("cmdReplace")); // of the row that came into its place
    QTRY_VERIFY_WITH_TIMEOUT(thumbnails.isDone(), patience);
    QCOMPARE(thumbnailColor(list, 0), QColor(Qt::green));
    QCOMPARE(thumbnailColor(list, 1), QColor(Qt::gray));
}

void FrmResourcesPicturesTest::farThumbnailsAreGivenUp() {
    constexpr int many = 6000;
    document_.editSettings([&](SkinSettings& settings) {
        for (int i = 0; i < many; ++i) {
            settings.resources.push_back(
                {std::to_string(i), folder_.document("none" + std::to_string(i) + ".png")});
        }
    });
    auto& list = at<QListWidget>("lstRes");
    open();
    const QSignalSpy changed(list.model(), &QAbstractItemModel::dataChanged);
    auto& thumbnails = *dialog_->findChild<ResourceThumbnails*>();
    const qint64 none = thumbnails.icon(-1).cacheKey();
    for (int row = 0; row < many; row += 2 * ResourceThumbnails::near) {
        list.scrollToItem(list.item(row), QAbstractItemView::PositionAtTop);
        QTRY_VERIFY_WITH_TIMEOUT(thumbnails.isDone(), patience);
        QVERIFY(thumbnails.icon(row).cacheKey() != none);
        int made = 0;
        for (int each = 0; each < many; ++each) {
            made += thumbnails.icon(each).cacheKey() != none ? 1 : 0;
        }
        QVERIFY2(made <= ResourceThumbnails::most + 1, qPrintable(QString::number(made)));
    }
    QVERIFY(thumbnails.icon(0).cacheKey() == none);
    list.scrollToTop();
    QTRY_VERIFY_WITH_TIMEOUT(thumbnails.isDone(), patience);
    QVERIFY(thumbnails.icon(0).cacheKey() != none); // made again
    QCOMPARE(changed.size(), 0);                    // each would be a layout of all rows
}

void FrmResourcesPicturesTest::badFilesAreShownAsSuch_data() {
    QTest::addColumn<QString>("file");
    QTest::newRow("missing") << "nowhere.png";
    QTest::newRow("no picture") << "text.png";
    QTest::newRow("truncated") << "half.jpg";
    QTest::newRow("empty video") << "empty.wmv";
    QTest::newRow("folder") << "folder.png";
    QTest::newRow("far too large") << "bomb.png";
}

void FrmResourcesPicturesTest::badFilesAreShownAsSuch() {
    QFETCH(QString, file);
    folder_.file("text.png", "this is no picture");
    folder_.file("empty.wmv", "");
    folder_.folder("folder.png");
    picture("whole.jpg", Qt::red, {400, 300});
    folder_.file("half.jpg", readFile(folder_ / "whole.jpg").substr(0, 200));
    if (file == "bomb.png") {
        QImage bomb(20'000, 20'000, QImage::Format_Mono); // small on disk, 1.6 GB when decoded
        bomb.fill(0);
        QVERIFY(bomb.save(inFolder("bomb.png")));
    }

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

void FrmResourcesPicturesTest::previewShowsAPicture() {
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

void FrmResourcesPicturesTest::previewShowsTransparencyOnACheckerboard() {
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

void FrmResourcesPicturesTest::previewPlaysAVideo() {
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

void FrmResourcesPicturesTest::previewShowsTheIconPictureForPresets() {
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

void FrmResourcesPicturesTest::outsideFilesAreNotOpened() {
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

void FrmResourcesPicturesTest::previewShowsTheFileThatIsFilledIn() {
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

} // namespace tarvel

TARVEL_UI_TEST(tarvel::FrmResourcesPicturesTest)
#include "frm_resources_pictures_test.moc"
