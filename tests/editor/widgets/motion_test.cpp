// Motion is off where the desktop says so.
#include "support/ui_test.h"
#include "widgets/easing.h"
#include "widgets/motion.h"
#include "widgets/panel_slide.h"

#include <QFile>
#include <QProxyStyle>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace tarvel;

namespace {

class Style : public QProxyStyle {
  public:
    explicit Style(int milliseconds)
        : milliseconds_(milliseconds) {}
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override {
        return hint == SH_Widget_Animation_Duration
                   ? milliseconds_
                   : QProxyStyle::styleHint(hint, option, widget, data);
    }

  private:
    int milliseconds_;
};

} // namespace

class MotionTest : public QObject {
    Q_OBJECT

  private slots:
    void desktopsAreObeyed_data();
    void desktopsAreObeyed();
    void easingsAreThereAtOnce();
    void panelsAreThereAtOnce();

  private:
    void writeSettings(const QString& version, const QByteArray& lines);
    QTemporaryDir config_;
};

void MotionTest::writeSettings(const QString& version, const QByteArray& lines) {
    QDir(config_.path()).mkpath(version);
    QFile file(config_.filePath(version + QStringLiteral("/settings.ini")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[Settings]\n" + lines);
}

void MotionTest::desktopsAreObeyed_data() {
    QTest::addColumn<int>("duration");
    QTest::addColumn<QByteArray>("gtk3");
    QTest::addColumn<QByteArray>("gtk4");
    QTest::addColumn<bool>("wanted");
    const QByteArray none;
    QTest::newRow("nothing said") << 200 << none << none << true;
    QTest::newRow("style without") << 0 << none << none << false;
    QTest::newRow("off") << 200 << QByteArray("gtk-enable-animations=0\n") << none << false;
    QTest::newRow("off in a word")
        << 200 << none << QByteArray("gtk-enable-animations=false\n") << false;
    QTest::newRow("on") << 200 << QByteArray("gtk-enable-animations=1\n") << none << true;
    QTest::newRow("the newer one holds") << 200 << QByteArray("gtk-enable-animations=0\n")
                                         << QByteArray("gtk-enable-animations=true\n") << true;
    QTest::newRow("another setting") << 200 << QByteArray("gtk-font-name=Sans 0\n") << none << true;
}

void MotionTest::desktopsAreObeyed() {
    QFETCH(int, duration);
    QFETCH(QByteArray, gtk3);
    QFETCH(QByteArray, gtk4);
    QFETCH(bool, wanted);
    qputenv("XDG_CONFIG_HOME", config_.path().toLocal8Bit());
    writeSettings(QStringLiteral("gtk-3.0"), gtk3);
    writeSettings(QStringLiteral("gtk-4.0"), gtk4);
    QApplication::setStyle(new Style(duration));
    QCOMPARE(motionWanted(), wanted);
}

void MotionTest::easingsAreThereAtOnce() {
    QApplication::setStyle(new Style(0));
    Easing easing(15, 3);
    const QSignalSpy finished(&easing, &Easing::finished);
    std::vector<double> seen;
    easing.start(
        {{.from = 0, .to = 100.25, .apply = [&](double value) { seen.push_back(value); }}});
    QCOMPARE(seen, std::vector<double>({100.25}));
    QCOMPARE(finished.size(), 1);
    QVERIFY(!easing.isRunning());
}

void MotionTest::panelsAreThereAtOnce() {
    QApplication::setStyle(new Style(0));
    QWidget window;
    window.resize(300, 200);
    auto* panel = new QWidget(&window);
    panel->setGeometry(40, 30, 100, 50);
    panel->setVisible(false);
    window.show();
    PanelSlide slide;
    slide.movetoX(panel, true);
    slide.start();
    QCOMPARE(panel->geometry(), QRect(40, 30, 100, 50));
    QVERIFY(panel->isVisible());
}

TARVEL_UI_TEST(MotionTest)
#include "motion_test.moc"
