// "Locate..." in the Resources dialog: missing files are looked for, taken, and told of.
#include "dialogs/current_frame.h"
#include "dialogs/resource_thumbnails.h"
#include "document/image_source.h"
#include "support/access_support.h"
#include "support/document_support.h"
#include "support/resources_support.h"
#include "support/ui_test.h"
#include "widgets/qt_text.h"
#include "widgets/search_progress.h"

#include <QLabel>
#include <QPushButton>
#include <QTimer>

#include <fstream>

namespace tarvel {

using test::click;
using test::clickRow;

class FrmResourcesLocateTest : public QObject, protected test::ResourcesFixture {
    Q_OBJECT

  private slots:
    void init();
    void cleanup() { dialog_.reset(); }
    void findsMissingFiles_data();
    void findsMissingFiles();
    void showsWhatWasFound();
    void findsMusicAndBackground();
    void aFileThatCameBackIsNotLookedFor();
    void cancelledChoiceChangesNothing();
    void theSearchCanBeCancelled();
    void saysWhenTooMuchIsThere();
    void progressCountsAndStaysAway();

  private:
    [[nodiscard]] QListWidget& list() const { return at<QListWidget>("lstRes"); }
    [[nodiscard]] QString spoken(int row) const {
        return list().item(row)->data(Qt::AccessibleTextRole).toString();
    }
    [[nodiscard]] std::string path(const char* name) const { return folder_.document(name); }
    void locateIn(const char* folder) {
        prompts_->folders = {inFolder(folder)};
        click(at<QWidget>("cmdLocate"));
    }
};

// A fresh folder with sky.png in it; logo.png and clip.wmv, which the skin names too, are missing.
void FrmResourcesLocateTest::init() {
    startAfresh();
    for (const char* name : {"elsewhere", "skin"}) {
        std::filesystem::remove_all(folder_ / name);
        folder_.folder(name);
    }
    folder_.file("skin/sky.png", "");
    document_.addRes("sky", path("skin/sky.png"));
    document_.addRes("logo", path("skin/logo.png"));
    document_.addRes("clip", path("skin/clip.wmv"));
    Element element;
    element.elementKind = ElementKind::Image;
    element.imageSource = "logo";
    element.label = "Image: logo";
    attachSource(document_, "logo", element.elementControl);
    document_.addElement(std::move(element));
}

void FrmResourcesLocateTest::findsMissingFiles_data() {
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QString>("logo"); // where it is found
    QTest::addColumn<QString>("clip");
    QTest::addColumn<QString>("message");
    const auto found = [](int count) {
        return QStringLiteral("Missing files that were found: %1 of 2.").arg(count);
    };
    QTest::newRow("none") << QStringList{"other.png"} << ""
                          << "" << found(0);
    QTest::newRow("one") << QStringList{"logo.png"} << "logo.png"
                         << "" << found(1);
    QTest::newRow("both") << QStringList{"logo.png", "clip.wmv"} << "logo.png"
                          << "clip.wmv" << found(2);
    QTest::newRow("other letters' case") << QStringList{"LOGO.Png"} << "LOGO.Png"
                                         << "" << found(1);
    QTest::newRow("below") << QStringList{"a/b/c/logo.png"} << "a/b/c/logo.png"
                           << "" << found(1);
    QTest::newRow("what is not missing") << QStringList{"sky.png"} << ""
                                         << "" << found(0);
}

void FrmResourcesLocateTest::findsMissingFiles() {
    QFETCH(QStringList, files);
    QFETCH(QString, logo);
    QFETCH(QString, clip);
    QFETCH(QString, message);
    SkinDocument expected = document_;
    const auto at = [&](const QString& name) {
        return folder_.document(("elsewhere/" + name).toStdString());
    };
    expected.editSettings([&](SkinSettings& settings) {
        settings.resources[1].content = logo.isEmpty() ? path("skin/logo.png") : at(logo);
        settings.resources[2].content = clip.isEmpty() ? path("skin/clip.wmv") : at(clip);
    });
    expected.editElement(1, [&](Element& element) {
        element.elementControl.file = expected.settings().resources[1].content;
    });
    for (const QString& file : files) {
        folder_.file(("elsewhere/" + file).toStdString(), "");
    }
    open();
    locateIn("elsewhere");
    QCOMPARE(prompts_->folderTitles.size(), 1);
    QCOMPARE(prompts_->messages, QStringList{message});
    QCOMPARE(prompts_->lastOwner, dialog_.get());
    QCOMPARE(document_, expected);
    QCOMPARE(spoken(1).contains("missing"), logo.isEmpty());
    QCOMPARE(spoken(2).contains("missing"), clip.isEmpty());
    QCOMPARE(FrmResourcesLocateTest::at<QWidget>("cmdLocate").isEnabled(),
             logo.isEmpty() || clip.isEmpty());
    QVERIFY(list().hasFocus());
}

void FrmResourcesLocateTest::showsWhatWasFound() {
    picture("elsewhere/logo.png", Qt::green);
    open();
    clickRow(list(), 1);
    auto& thumbnails = *dialog_->findChild<ResourceThumbnails*>();
    QTRY_VERIFY_WITH_TIMEOUT(thumbnails.isDone(), 20'000);
    const auto middle = [&] {
        return list().item(1)->icon().pixmap(ResourceThumbnails::size).toImage().pixelColor(20, 15);
    };
    QVERIFY(middle() != QColor(Qt::green));
    QCOMPARE(at<QLabel>("lblPreview").text(), "logo.png");
    locateIn("elsewhere");
    QTRY_COMPARE_WITH_TIMEOUT(middle(), QColor(Qt::green), 20'000);
    QCOMPARE(at<QLabel>("lblPreview").text(), "logo.png, 60 x 40");
    QCOMPARE(list().item(1)->toolTip(), inFolder("elsewhere/logo.png"));
    QVERIFY(list().item(1)->isSelected());
}

void FrmResourcesLocateTest::findsMusicAndBackground() {
    document_ = SkinDocument();
    document_.editSettings([&](SkinSettings& settings) {
        settings.background = {true, path("skin/back.png")};
        settings.music.musicFiles = {path("skin/song.wma")};
        settings.music.rows = {0};
    });
    folder_.file("elsewhere/back.png", "");
    folder_.file("elsewhere/song.wma", "");
    open();
    locateIn("elsewhere");
    QCOMPARE(prompts_->messages, QStringList{"Missing files that were found: 2 of 2."});
    QCOMPARE(document_.settings().background.path, path("elsewhere/back.png"));
    QCOMPARE(document_.settings().music.musicFiles.front(), path("elsewhere/song.wma"));
    QVERIFY(!at<QWidget>("cmdLocate").isEnabled());
}

void FrmResourcesLocateTest::aFileThatCameBackIsNotLookedFor() {
    const SkinDocument before = document_;
    open();
    folder_.file("skin/logo.png", "");
    folder_.file("skin/clip.wmv", "");
    click(at<QWidget>("cmdLocate"));
    QCOMPARE(prompts_->folderTitles, QStringList());
    QCOMPARE(prompts_->messages, QStringList{"No file of the skin is missing any more."});
    QCOMPARE(document_, before);
    QCOMPARE(spoken(1), "logo, 1 use");
    QVERIFY(!at<QWidget>("cmdLocate").isEnabled());
}

void FrmResourcesLocateTest::cancelledChoiceChangesNothing() {
    const SkinDocument before = document_;
    open();
    click(at<QWidget>("cmdLocate"));
    QCOMPARE(prompts_->folderTitles.size(), 1);
    QCOMPARE(prompts_->messages, QStringList());
    QCOMPARE(document_, before);
}

// The file lies where it would be found first; the search goes on for the other.
void FrmResourcesLocateTest::theSearchCanBeCancelled() {
    folder_.file("elsewhere/logo.png", "");
    for (int i = 0; i < 1100; ++i) { // the search looks up at 1000
        const std::ofstream other((folder_ / "elsewhere") / std::to_string(i));
    }
    const SkinDocument before = document_;
    open();
    dialog_->current().showProgressAfter(0);
    bool wasThere = false;
    QTimer watch;
    connect(&watch, &QTimer::timeout, this, [&] {
        if (auto* progress = qobject_cast<SearchProgress*>(QApplication::activeModalWidget())) {
            wasThere = true;
            click(*progress->findChild<QPushButton*>());
        }
    });
    watch.start(0);
    locateIn("elsewhere");
    QVERIFY(wasThere);
    QCOMPARE(prompts_->messages, QStringList());
    QCOMPARE(document_, before);
    QVERIFY(dialog_->isVisible());
    QVERIFY(dialog_->findChild<SearchProgress*>() == nullptr);
    watch.stop();
    locateIn("elsewhere"); // to its end
    QCOMPARE(prompts_->messages, QStringList{"Missing files that were found: 1 of 2."});
}

void FrmResourcesLocateTest::saysWhenTooMuchIsThere() {
    for (int i = 0; i < 30; ++i) {
        folder_.file("elsewhere/" + std::to_string(i), "");
    }
    open();
    dialog_->current().searchAtMost(20);
    locateIn("elsewhere");
    QCOMPARE(prompts_->messages,
             QStringList{"Missing files that were found: 0 of 2.\n"
                         "There is so much in the folder that not all of it was looked at."});
}

void FrmResourcesLocateTest::progressCountsAndStaysAway() {
    SearchProgress quick(nullptr);
    QVERIFY(quick.step(1000));
    QVERIFY(!quick.isVisible());
    SearchProgress slow(nullptr, 0);
    QTRY_VERIFY(slow.step(2000) && slow.isVisible());
    QVERIFY(slow.isModal());
    QVERIFY(slow.labelText().contains(QLocale().toString(2000)));
    slow.cancel();
    QTRY_VERIFY(!slow.step(3000));
}

} // namespace tarvel

TARVEL_UI_TEST(tarvel::FrmResourcesLocateTest)
#include "frm_resources_locate_test.moc"
