// Gliding numbers: their steps, their time, and their exact ends.
#include "support/ui_test.h"
#include "widgets/easing.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <vector>

namespace tarvel {

class EasingTest : public QObject {
    Q_OBJECT

  private slots:
    void endsExactlyInTime_data();
    void endsExactlyInTime();
    void slowsDown();
    void stepsCoverAFixedPartOfWhatIsLeft();
    void movesStayTogether();
    void eventsRunInBetween();
    void aNewStartDropsTheOldMoves();
    void finishTakesTheTargets();
    void aMoveMayStartAnother();
    void theLastStepMayStartAnother();
    void nothingToMoveIsFinishedToo();
};

void EasingTest::endsExactlyInTime_data() {
    QTest::addColumn<double>("from");
    QTest::addColumn<double>("to");
    QTest::newRow("up") << 0.0 << 300.0;
    QTest::newRow("down") << 1500.0 << -20.5;
    QTest::newRow("near") << 7.0 << 9.0;
    QTest::newRow("nowhere") << 5.0 << 5.0;
    QTest::newRow("very far") << 0.0 << 1e9;
}

void EasingTest::endsExactlyInTime() {
    QFETCH(double, from);
    QFETCH(double, to);
    Easing easing(30, 3);
    QSignalSpy finished(&easing, &Easing::finished);
    std::vector<double> values;
    QElapsedTimer clock;
    clock.start();
    easing.start({{from, to, [&](double value) { values.push_back(value); }}});
    QVERIFY(easing.isRunning());
    QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 2000);
    QVERIFY(!easing.isRunning());
    QCOMPARE(values.back(), to);
    QVERIFY(Easing::duration <= 400);
    QVERIFY(clock.elapsed() >= Easing::duration);
    // No overshooting, no turning back.
    const double sign = to >= from ? 1 : -1;
    QVERIFY(std::is_sorted(values.begin(), values.end(),
                           [&](double a, double b) { return sign * a < sign * b; }));
    QVERIFY(sign * values.front() >= sign * from);
}

void EasingTest::slowsDown() {
    Easing easing(15, 3);
    QSignalSpy finished(&easing, &Easing::finished);
    QElapsedTimer clock;
    clock.start();
    double atHalfTime = -1;
    easing.start({{0, 1000, [&](double value) {
                       if (clock.elapsed() >= Easing::duration / 2 && atHalfTime < 0) {
                           atHalfTime = value;
                       }
                   }}});
    QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 2000);
    QVERIFY2(atHalfTime > 850, qPrintable(QString::number(atHalfTime)));
}

void EasingTest::stepsCoverAFixedPartOfWhatIsLeft() {
    Easing easing(15, 3);
    QSignalSpy finished(&easing, &Easing::finished);
    std::vector<double> rests;
    easing.start({{0, 1000, [&](double value) { rests.push_back(1000 - value); }}});
    QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 2000);
    for (const double rest : rests) {
        if (rest == 0) {
            continue;
        }
        QVERIFY2(rest > 3, qPrintable(QString::number(rest)));
        const double steps = std::log(rest / 1000) / std::log(14.0 / 15);
        QVERIFY2(std::abs(steps - std::round(steps)) < 1e-6 && steps > 0.5,
                 qPrintable(QString::number(steps)));
    }
    QCOMPARE(rests.back(), 0.0);
}

void EasingTest::movesStayTogether() {
    Easing easing(30, 0.2);
    QSignalSpy finished(&easing, &Easing::finished);
    std::vector<double> tops;
    std::vector<double> bottoms;
    easing.start({{0, 200, [&](double value) { tops.push_back(value); }},
                  {50, 250, [&](double value) { bottoms.push_back(value); }}});
    QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 2000);
    QCOMPARE(tops.size(), bottoms.size());
    for (std::size_t i = 0; i < tops.size(); ++i) {
        QVERIFY(std::abs(bottoms[i] - tops[i] - 50) < 1e-9);
    }
}

void EasingTest::eventsRunInBetween() {
    Easing easing(30, 0.2);
    QSignalSpy finished(&easing, &Easing::finished);
    int ticks = 0;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&] { ticks += easing.isRunning() ? 1 : 0; });
    timer.start(10);
    easing.start({{0, 1000, [](double) {}}});
    QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 2000);
    QVERIFY2(ticks >= 5, qPrintable(QString::number(ticks)));
}

void EasingTest::aNewStartDropsTheOldMoves() {
    Easing easing(30, 3);
    QSignalSpy finished(&easing, &Easing::finished);
    double old = 0;
    double now = 0;
    easing.start({{0, 1000, [&](double value) { old = value; }}});
    QTRY_VERIFY(old > 0);
    const double left = old;
    easing.start({{left, 0, [&](double value) { now = value; }}});
    QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 2000);
    QCOMPARE(old, left);
    QCOMPARE(now, 0.0);
    QVERIFY(!easing.isRunning()); // nothing more can come
}

void EasingTest::finishTakesTheTargets() {
    Easing easing(30, 3);
    QSignalSpy finished(&easing, &Easing::finished);
    int calls = 0;
    double value = 0;
    easing.start({{0, 1000, [&](double now) {
                       value = now;
                       ++calls;
                   }}});
    easing.finish();
    QCOMPARE(value, 1000.0);
    QCOMPARE(calls, 1);
    QCOMPARE(finished.count(), 1);
    easing.finish();
    QVERIFY(!easing.isRunning());
    QCOMPARE(calls, 1);
    QCOMPARE(finished.count(), 1);
}

void EasingTest::aMoveMayStartAnother() {
    Easing easing(30, 3);
    QSignalSpy finished(&easing, &Easing::finished);
    double second = 0;
    bool thirdCalled = false;
    easing.start({{0, 1000,
                   [&](double) {
                       easing.start({{0, 500, [&](double value) { second = value; }}});
                   }},
                  {0, 1000, [&](double) { thirdCalled = true; }}});
    QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 2000);
    QCOMPARE(second, 500.0);
    QVERIFY(!thirdCalled);
}

void EasingTest::theLastStepMayStartAnother() {
    Easing easing(30, 3);
    QSignalSpy finished(&easing, &Easing::finished);
    double second = 0;
    easing.start({{0, 1000, [&](double value) {
                       if (value == 1000) {
                           easing.start({{0, 500, [&](double now) { second = now; }}});
                       }
                   }}});
    easing.finish();
    QVERIFY(easing.isRunning());
    QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 2000);
    QCOMPARE(second, 500.0);
}

void EasingTest::nothingToMoveIsFinishedToo() {
    Easing easing(30, 3);
    QSignalSpy finished(&easing, &Easing::finished);
    easing.start({});
    QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 2000);
}

} // namespace tarvel

TARVEL_UI_TEST(tarvel::EasingTest)
#include "easing_test.moc"
