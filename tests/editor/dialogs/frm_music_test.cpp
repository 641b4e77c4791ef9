// The Music dialog: what its options set, show and hide, and how it grows.
#include "dialogs/music_list.h"
#include "support/music_support.h"
#include "support/ui_test.h"

#include <QCheckBox>
#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

namespace tarvel {

using test::click;
using test::control;
using test::endGliding;
using test::settle;
using test::waitForGliding;

namespace {

bool glides(const QWidget& dialog) {
    return dialog.findChild<Easing*>()->isRunning();
}

// Where everything stands, to compare states of the dialog.
QStringList geometries(const QWidget& dialog) {
    QStringList all;
    for (const char* name : {"optYesMusic", "optNoMusic", "fraStuff", "chkGlobal", "chkCustom",
                             "fraMusic", "cmdAdd", "lstMusic", "chkRandom", "cmdOK"}) {
        const auto& widget = control<QWidget>(dialog, QLatin1String(name));
        if (widget.isVisible()) {
            const QRect at = widget.geometry();
            all << QStringLiteral("%1 %2,%3 %4x%5")
                       .arg(QLatin1String(name))
                       .arg(at.x())
                       .arg(at.y())
                       .arg(at.width())
                       .arg(at.height());
        }
    }
    return all << QStringLiteral("form %1x%2").arg(dialog.width()).arg(dialog.height());
}

int bottomOf(const QWidget& dialog, const char* name) {
    const auto& widget = control<QWidget>(dialog, QLatin1String(name));
    return widget.mapTo(&dialog, QPoint(0, widget.height())).y();
}

int topOf(const QWidget& dialog, const char* name) {
    const auto& widget = control<QWidget>(dialog, QLatin1String(name));
    return widget.mapTo(&dialog, QPoint(0, 0)).y();
}

} // namespace

class FrmMusicTest : public QObject, protected test::MusicFixture {
    Q_OBJECT

  private slots:
    void init() { startAfresh(); }
    void showsItsTexts();
    void startsWithoutMusic();
    void showsTheDocumentEachTimeItIsOpened();
    void optionsGoToTheDocumentAtOnce();
    void controlsStandBelowOneAnother_data();
    void controlsStandBelowOneAnother();
    void growsAndShrinksToTheExactPlaces();
    void growsWhileEventsRun();
    void furtherClicksWhileItGrowsAreHarmless();
    void closingWhileItGrowsIsHarmless();
    void worksByKeysAlone();
    void closes_data();
    void closes();
    void controlsHaveAccessibleNames();
};

void FrmMusicTest::showsItsTexts() {
    const auto dialog = makeDialog();
    QVERIFY(!dialog->isVisible());
    QVERIFY(dialog->isModal());
    QCOMPARE(dialog->objectName(), "frmMusic");
    QCOMPARE(dialog->windowTitle(), "  :: Audio Settings ::");
    QCOMPARE(dialog->findChild<QLabel*>(QString(), Qt::FindDirectChildrenOnly)->text(),
             "BACKGROUND MUSIC");
    const auto text = [&](const char* name) {
        return control<QAbstractButton>(*dialog, QLatin1String(name)).text();
    };
    QCOMPARE(text("optYesMusic"), "Use Background Music");
    QCOMPARE(text("optNoMusic"), "No Music");
    QCOMPARE(text("chkGlobal"), "Use Global Music (from your xbox soundtracks)");
    QCOMPARE(text("chkCustom"), "Use Custom Music");
    QCOMPARE(text("chkRandom"), "Play Music in Random Order");
    QCOMPARE(text("cmdAdd"), "Add Files");
    QVERIFY(control<QFrame>(*dialog, "fraStuff")
                .isAncestorOf(&control<QCheckBox>(*dialog, "chkRandom")));
    QVERIFY(control<QFrame>(*dialog, "fraMusic")
                .isAncestorOf(&control<MusicList>(*dialog, "lstMusic")));
}

void FrmMusicTest::startsWithoutMusic() {
    const auto dialog = makeDialog();
    QVERIFY(test::open(*dialog));
    QVERIFY(control<QRadioButton>(*dialog, "optNoMusic").isChecked());
    QVERIFY(!control<QFrame>(*dialog, "fraStuff").isVisible());
    QCOMPARE(document_, SkinDocument());
}

void FrmMusicTest::showsTheDocumentEachTimeItIsOpened() {
    const auto dialog = makeDialog();
    QVERIFY(test::open(*dialog));
    QVERIFY(test::close(*dialog));
    setThreeFiles();
    MusicSettings value = music();
    value.playGlobal = true;
    value.rows = {2, 0};
    setMusic(value);
    QVERIFY(test::open(*dialog));
    QVERIFY(control<QRadioButton>(*dialog, "optYesMusic").isChecked());
    QVERIFY(control<QCheckBox>(*dialog, "chkGlobal").isChecked());
    QVERIFY(control<QCheckBox>(*dialog, "chkCustom").isChecked());
    QVERIFY(!control<QCheckBox>(*dialog, "chkRandom").isChecked());
    const auto& list = control<MusicList>(*dialog, "lstMusic");
    QCOMPARE(test::rowTexts(list), (QStringList{inFolder("c.wma"), inFolder("a.wma")}));
    QCOMPARE(list.item(0)->data(Qt::UserRole).toInt(), 2);
    QCOMPARE(list.item(1)->data(Qt::UserRole).toInt(), 0);
    QCOMPARE(music(), value);
    QVERIFY(test::close(*dialog));
    setMusic(test::musicOptions(false, false, false, true));
    QVERIFY(test::open(*dialog));
    QVERIFY(control<QRadioButton>(*dialog, "optNoMusic").isChecked());
    QVERIFY(control<QCheckBox>(*dialog, "chkRandom").isChecked());
    QVERIFY(!control<QCheckBox>(*dialog, "chkGlobal").isChecked());
    QCOMPARE(list.count(), 0);
}

void FrmMusicTest::optionsGoToTheDocumentAtOnce() {
    const auto dialog = makeDialog();
    QVERIFY(test::open(*dialog));
    MusicSettings expected;
    const auto press = [&](const char* name) {
        click(control<QWidget>(*dialog, QLatin1String(name)));
        endGliding(*dialog);
    };
    press("optYesMusic");
    expected.hasMusic = true;
    QCOMPARE(music(), expected);
    press("chkCustom");
    expected.customMusic = true;
    QCOMPARE(music(), expected);
    press("chkGlobal");
    press("chkRandom");
    expected.playGlobal = true;
    expected.playRandom = true;
    QCOMPARE(music(), expected);
    press("chkCustom");
    press("chkGlobal");
    press("optNoMusic");
    QCOMPARE(music(), test::musicOptions(false, false, false, true));
}

void FrmMusicTest::controlsStandBelowOneAnother_data() {
    QTest::addColumn<bool>("yes");
    QTest::addColumn<bool>("custom");
    QTest::addColumn<QStringList>("order");
    const QStringList options = {"optYesMusic", "optNoMusic"};
    QTest::newRow("none") << false << false << options + QStringList{"cmdOK"};
    QTest::newRow("none, though custom") << false << true << options + QStringList{"cmdOK"};
    QTest::newRow("no custom") << true << false
                               << options +
                                      QStringList{"chkGlobal", "chkCustom", "chkRandom", "cmdOK"};
    QTest::newRow("custom") << true << true
                            << options + QStringList{"chkGlobal", "chkCustom", "cmdAdd",
                                                     "lstMusic",  "chkRandom", "cmdOK"};
}

void FrmMusicTest::controlsStandBelowOneAnother() {
    QFETCH(bool, yes);
    QFETCH(bool, custom);
    QFETCH(QStringList, order);
    setMusic(test::musicOptions(yes, false, custom, false));
    const auto dialog = makeDialog();
    QVERIFY(test::open(*dialog));
    QCOMPARE(control<QFrame>(*dialog, "fraStuff").isVisible(), yes);
    QCOMPARE(control<QFrame>(*dialog, "fraMusic").isVisible(), yes && custom);
    for (int i = 1; i < order.size(); ++i) {
        const int distance =
            topOf(*dialog, qPrintable(order[i])) - bottomOf(*dialog, qPrintable(order[i - 1]));
        QVERIFY2(distance > 0 && distance < 30, qPrintable(order[i]));
    }
    const int margin = dialog->height() - bottomOf(*dialog, "cmdOK");
    QVERIFY(margin > 0 && margin < 30);
    for (const QString& name : order) {
        const auto& widget = control<QWidget>(*dialog, name);
        QVERIFY(widget.width() >= widget.minimumSizeHint().width());
        QVERIFY(!widget.visibleRegion().isEmpty());
        QCOMPARE(widget.visibleRegion().boundingRect(), widget.rect());
    }
}

void FrmMusicTest::growsAndShrinksToTheExactPlaces() {
    struct Step {
        const char* press;
        MusicSettings state;
    };
    const std::array<Step, 6> steps = {{
        {"optYesMusic", test::musicOptions(true, false, false, false)},
        {"chkCustom", test::musicOptions(true, false, true, false)},
        {"optNoMusic", test::musicOptions(false, false, true, false)},
        {"optYesMusic", test::musicOptions(true, false, true, false)},
        {"chkCustom", test::musicOptions(true, false, false, false)},
        {"optNoMusic", test::musicOptions(false, false, false, false)},
    }};
    const auto dialog = makeDialog();
    QVERIFY(test::open(*dialog));
    for (const auto& [press, state] : steps) {
        const int height = dialog->height();
        click(control<QWidget>(*dialog, QLatin1String(press)));
        QCOMPARE(music(), state);
        QCOMPARE(dialog->height(), height); // nothing jumps
        QVERIFY(waitForGliding(*dialog));
        SkinDocument same;
        same.editSettings([&, after = state](SkinSettings& settings) { settings.music = after; });
        FrmMusic fresh(same, *prompts_, nullptr, std::make_unique<test::FakePlayer>(log_));
        QVERIFY(test::open(fresh));
        QCOMPARE(geometries(*dialog), geometries(fresh));
    }
}

void FrmMusicTest::growsWhileEventsRun() {
    const auto dialog = makeDialog();
    QVERIFY(test::open(*dialog));
    const auto& ok = control<QPushButton>(*dialog, "cmdOK");
    const int small = dialog->height();
    const int upper = ok.y();
    QList<int> tops;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&] { tops << ok.y(); });
    timer.start(10);
    QElapsedTimer clock;
    clock.start();
    click(control<QWidget>(*dialog, "optYesMusic"));
    QVERIFY2(clock.elapsed() < 100, "the click waited for the animation");
    QVERIFY(waitForGliding(*dialog));
    timer.stop();
    const int lower = ok.y();
    QCOMPARE(dialog->height() - small, lower - upper);
    QVERIFY(lower > upper);
    const auto between = std::count_if(tops.begin(), tops.end(),
                                       [&](int top) { return top > upper && top < lower; });
    QVERIFY2(between >= 3, qPrintable(QString::number(between)));
    QVERIFY(std::is_sorted(tops.begin(), tops.end()));
}

void FrmMusicTest::furtherClicksWhileItGrowsAreHarmless() {
    const auto dialog = makeDialog();
    QVERIFY(test::open(*dialog));
    const QStringList small = geometries(*dialog);
    for (const char* press : {"optYesMusic", "optNoMusic", "optNoMusic", "optYesMusic"}) {
        const int before = dialog->height();
        click(control<QWidget>(*dialog, QLatin1String(press)));
        QTRY_VERIFY(dialog->height() != before || !glides(*dialog)); // on its way
    }
    const int before = dialog->height();
    click(control<QWidget>(*dialog, "chkCustom"));
    QTRY_VERIFY(dialog->height() > before);
    click(control<QWidget>(*dialog, "optNoMusic"));
    QVERIFY(waitForGliding(*dialog));
    QCOMPARE(geometries(*dialog), small);
    QCOMPARE(music().hasMusic, false);
}

void FrmMusicTest::closingWhileItGrowsIsHarmless() {
    const auto dialog = makeDialog();
    QVERIFY(test::open(*dialog));
    const int before = dialog->height();
    click(control<QWidget>(*dialog, "optYesMusic"));
    QTRY_VERIFY(dialog->height() > before);
    QVERIFY(glides(*dialog));
    dialog->close();
    QVERIFY(test::open(*dialog));
    const QStringList now = geometries(*dialog);
    QVERIFY(waitForGliding(*dialog));
    settle();
    QCOMPARE(geometries(*dialog), now);
    const auto fresh = makeDialog();
    QVERIFY(test::open(*fresh));
    QCOMPARE(now, geometries(*fresh));
}

void FrmMusicTest::worksByKeysAlone() {
    const auto dialog = makeDialog();
    QVERIFY(test::open(*dialog));
    const auto press = [&](Qt::Key key) { QTest::keyClick(dialog->focusWidget(), key); };
    QVERIFY(control<QWidget>(*dialog, "optNoMusic").hasFocus());
    press(Qt::Key_Up);
    QVERIFY(music().hasMusic);
    endGliding(*dialog);
    QStringList visited;
    press(Qt::Key_Tab);
    visited << dialog->focusWidget()->objectName();
    press(Qt::Key_Tab);
    visited << dialog->focusWidget()->objectName();
    press(Qt::Key_Space);
    QVERIFY(music().customMusic);
    endGliding(*dialog);
    prompts_->fileChoices = {{QString::fromStdString(folder_.file("k.wma", "x").string())}};
    press(Qt::Key_Tab);
    visited << dialog->focusWidget()->objectName();
    press(Qt::Key_Space);
    QCOMPARE(music().rows.size(), 1U);
    for (int i = 0; i < 4; ++i) {
        press(Qt::Key_Tab);
        visited << dialog->focusWidget()->objectName();
    }
    QCOMPARE(visited, (QStringList{"chkGlobal", "chkCustom", "cmdAdd", "cmdPlay", "lstMusic",
                                   "chkRandom", "cmdOK"}));
    press(Qt::Key_Return);
    QVERIFY(!dialog->isVisible());
}

void FrmMusicTest::closes_data() {
    QTest::addColumn<QString>("how");
    for (const char* how : {"OK", "Enter", "Escape", "close button"}) {
        QTest::newRow(how) << how;
    }
}

void FrmMusicTest::closes() {
    QFETCH(QString, how);
    const auto dialog = makeDialog();
    QTimer::singleShot(0, dialog.get(), [&] {
        click(control<QWidget>(*dialog, "optYesMusic"));
        if (how == "OK") {
            QVERIFY(waitForGliding(*dialog));
            click(control<QPushButton>(*dialog, "cmdOK"));
        } else if (how == "close button") {
            dialog->close();
        } else {
            QTest::keyClick(&control<QWidget>(*dialog, "chkGlobal"),
                            how == "Enter" ? Qt::Key_Return : Qt::Key_Escape);
        }
    });
    QCOMPARE(dialog->exec(), int(QDialog::Accepted));
    QVERIFY(music().hasMusic);
}

void FrmMusicTest::controlsHaveAccessibleNames() {
    QCOMPARE(test::withoutAccessibleName(*makeDialog()), QStringList());
}

} // namespace tarvel

TARVEL_UI_TEST(tarvel::FrmMusicTest)
#include "frm_music_test.moc"
