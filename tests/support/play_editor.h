// The main window with a screen that plays by a clock of the test.
#pragma once

#include "panels/time_line.h"
#include "support/behaviour_editor.h"
#include "surface/pic.h"
#include "widgets/tick_label.h"
#include "window/play_session.h"

#include <QComboBox>
#include <QLabel>
#include <QToolButton>

#include <array>
#include <optional>

namespace tarvel::test {

/// Shown without elements; time passes only when it is told to.
class PlayEditor : public BehaviourEditor {
  public:
    PlayEditor()
        : BehaviourEditor(0) {
        window.playBy({.elapsed = [this] { return clock_; },
                       .wall = [] { return WallClock{2026, 11, 21, 20, 15, 0}; }});
    }

    [[nodiscard]] bool isPlaying() { return strip().isVisible(); }
    QWidget& strip() { return at<QWidget>("fraPlay"); }
    QWidget& timePanel() { return at<QWidget>("fraTime"); }
    TimeLine& timeLine() { return at<TimeLine>("timeLine"); }
    [[nodiscard]] PlayTime time() { return timeLine().time(); }
    QString timeText() { return at<TickLabel>("lblTime").text(); }
    QString runText() { return at<TickLabel>("lblRun").text(); }
    QToolButton& condition(int row) {
        return at<QToolButton>(QStringLiteral("cmdCondition(%1)").arg(row));
    }

    /// Presses F5, or Shift+F5, where the focus is.
    bool play(Qt::KeyboardModifiers keys = {}) {
        QTest::keyClick(window.windowHandle(), Qt::Key_F5, keys);
        settle();
        return isPlaying();
    }
    void playKey(Qt::Key which, Qt::KeyboardModifiers keys = {}) {
        QTest::keyClick(window.windowHandle(), which, keys);
        settle();
    }
    /// Lets time pass on the clock, and waits until the window has seen it.
    bool pass(PlayTime time) {
        const PlayTime expected = this->time() + time;
        clock_ += time;
        return QTest::qWaitFor([&] { return this->time() >= expected; });
    }
    /// The same for a time that no screen shows, as one that is held.
    void passUnseen(PlayTime time) {
        clock_ += time;
        QTest::qWait(3 * PlaySession::lookPause);
    }

    /// The surface as it is seen.
    QImage picture() { return pic()->grab().toImage().convertToFormat(QImage::Format_RGB32); }
    /// Its colour at a skin pixel.
    QColor colorAt(int x, int y) {
        const QPointF point = at<Pic>("Pic").mapping().toWidget(QPointF(x + 0.5, y + 0.5));
        const QImage image = picture();
        return image.pixelColor((point * image.devicePixelRatio()).toPoint());
    }
    bool shows(int x, int y) { return colorAt(x, y) != QColor(Qt::black); }

  private:
    PlayTime clock_ = 1'000'000;
};

/// An opaque red box with timers: Delay, CycleOn, CycleOff, Lifetime.
inline Element timedBox(const std::array<std::int32_t, timerSlots>& timers, float left = 100) {
    Element box = boxAt(left, 100, 40, 40, 100);
    box.elementTimers = timers;
    return box;
}

/// A text of the dashboard.
inline Element fieldText(const std::string& field, float top) {
    Element text = boxAt(10, top, 300, 30, 100);
    text.elementKind = ElementKind::Text;
    text.elementControl.kind = ControlKind::txt;
    text.elementControl.caption = field;
    text.elementControl.textColor = makeColor(255, 255, 255);
    text.label = "Text: " + field;
    return text;
}

/// A menu of so many items at a time.
inline Element listOf(int itemsShown) {
    Element menu = boxAt(330, 10, 300, 240, 100);
    menu.elementKind = ElementKind::Menu;
    menu.elementControl.kind = ControlKind::qor;
    MenuSettings settings;
    settings.itemsShown = static_cast<std::int16_t>(itemsShown);
    menu.menuSettings = SharedValue(settings);
    menu.label = "Menu";
    return menu;
}

} // namespace tarvel::test
