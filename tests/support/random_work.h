// Somebody who works at random: by mouse and keys on the real window, one action after the other.
#pragma once

#include "support/behaviour_editor.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>

#include <array>
#include <random>
#include <vector>

namespace tarvel::test {

/// Each action is at most one step. The window is shown and owned by the caller.
class RandomWork {
  public:
    RandomWork(BehaviourEditor& editor, unsigned seed)
        : editor_(editor)
        , random_(seed) {}

    [[nodiscard]] int below(int limit) {
        return static_cast<int>(random_() % static_cast<unsigned>(limit));
    }

    /// Does something and returns its name, for messages.
    const char* act() {
        struct Action {
            const char* name;
            void (RandomWork::*act)();
            int weight;
        };
        static constexpr std::array actions = {
            Action{"draw", &RandomWork::draw, 4},
            Action{"draw in the middle", &RandomWork::drawInTheMiddle, 1},
            Action{"give a drawing up", &RandomWork::giveADrawingUp, 1},
            Action{"drag", &RandomWork::drag, 6},
            Action{"give a drag up", &RandomWork::giveADragUp, 1},
            Action{"nudge", &RandomWork::nudge, 3},
            Action{"delete", &RandomWork::remove, 2},
            Action{"menu entry", &RandomWork::menuEntry, 4},
            Action{"select a row", &RandomWork::selectARow, 3},
            Action{"switch screens", &RandomWork::switchScreens, 1},
            Action{"apply", &RandomWork::apply, 3},
            Action{"enter a position", &RandomWork::enterAPosition, 2},
            Action{"store a condition", &RandomWork::storeACondition, 1},
            Action{"store timers", &RandomWork::storeTimers, 1},
            Action{"background", &RandomWork::background, 1},
            Action{"load", &RandomWork::load, 1},
        };
        int total = 0;
        for (const Action& action : actions) {
            total += action.weight;
        }
        int chosen = below(total);
        for (const Action& action : actions) {
            if ((chosen -= action.weight) < 0) {
                (this->*action.act)();
                editor_.document().endRun(); // as a second of rest does
                return action.name;
            }
        }
        return "";
    }

    void key(Qt::Key which, Qt::KeyboardModifiers keys = {}) {
        editor_.pic()->setFocus();
        editor_.key(which, keys);
    }

  private:
    QPoint point() { return {below(skinWidth), below(skinHeight)}; }
    int screen() { return editor_.document().currentLayout(); }
    void chooseTool() {
        static constexpr std::array tools = {"optBox", "optLine", "optText", "optQor"};
        click(*editor_.find<QWidget>(tools[static_cast<std::size_t>(below(tools.size()))]));
    }
    void draw() {
        chooseTool();
        editor_.pressDragRelease(point(), point());
        letGo();
    }
    void drawInTheMiddle() {
        chooseTool();
        key(Qt::Key_Return);
        letGo();
    }
    void giveADrawingUp() {
        chooseTool();
        editor_.press(point());
        const QPoint end = point();
        editor_.drag(end);
        key(Qt::Key_Escape);
        editor_.release(end);
        letGo();
    }
    // A tool that refused to draw stays chosen.
    void letGo() { key(Qt::Key_Escape); }
    // Mostly on an element, so that something is moved.
    QPoint somewhere() {
        const int rows = editor_.document().rowCount(screen());
        if (rows == 0 || below(4) == 0) {
            return point();
        }
        const int id = editor_.document().itemData(screen(), below(rows));
        const ElementControl& control = editor_.control(id);
        const bool isLine = control.kind == ControlKind::lin;
        const QPointF at(isLine ? control.X1 : control.left + control.width / 2,
                         isLine ? control.Y1 : control.top + control.height / 2);
        return QRect(0, 0, skinWidth, skinHeight).contains(at.toPoint()) ? at.toPoint() : point();
    }
    void drag() { editor_.pressDragRelease(somewhere(), point()); }
    void giveADragUp() {
        editor_.press(somewhere());
        const QPoint end = point();
        editor_.drag(end);
        key(Qt::Key_Escape);
        editor_.release(end);
    }
    void nudge() {
        static constexpr std::array keys = {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down};
        static constexpr std::array<Qt::KeyboardModifiers, 3> held = {
            Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier};
        const auto with = held[static_cast<std::size_t>(below(held.size()))];
        for (int time = below(4); time >= 0; --time) {
            key(keys[static_cast<std::size_t>(below(keys.size()))], with);
        }
    }
    void remove() { key(Qt::Key_Delete); }
    void menuEntry() {
        static constexpr std::array entries = {"mnuFront",  "mnuBack",  "mnuForward", "mnuBackward",
                                               "mnuLocked", "mnuDeSel", "mnuUnlock"};
        const char* name = entries[static_cast<std::size_t>(below(entries.size()))];
        const QString entry = QLatin1String(name);
        // Only what the menu of the right button offers now.
        if ((editor_.window.curNum() == 0) == (entry == QLatin1String("mnuUnlock"))) {
            editor_.entry(name)->trigger();
        }
    }
    void selectARow() {
        if (const int rows = editor_.document().rowCount(screen()); rows > 0) {
            editor_.selectRow(screen(), below(rows));
        }
    }
    void switchScreens() { editor_.clickScreen(below(screenCount)); }
    void apply() {
        auto* opacity = editor_.find<QLineEdit>("txtAlpha");
        if (editor_.window.curNum() != 0 && opacity->isVisible() && opacity->isEnabled()) {
            typeOver(*opacity, QString::number(below(101)));
            click(*editor_.find<QPushButton>("cmdApply"));
        }
    }
    void enterAPosition() {
        static constexpr std::array fields = {"txtL", "txtT", "txtW", "txtH"};
        auto* field =
            editor_.find<QLineEdit>(fields[static_cast<std::size_t>(below(fields.size()))]);
        if (field->isEnabled() && !field->isReadOnly()) {
            typeOver(*field, QString::number(below(400)));
            QTest::keyClick(field, Qt::Key_Return);
        }
    }
    void storeACondition() {
        if (editor_.window.curNum() != 0 && editor_.openPanel(2)) {
            clickRow(editor_.at<QListWidget>("lstCond"), below(4));
            editor_.ok(2);
        }
    }
    void storeTimers() {
        if (editor_.window.curNum() != 0 && editor_.openPanel(1)) {
            typeOver(editor_.at<QLineEdit>("txtTimer(0)"), QString::number(below(9999)));
            editor_.ok(1);
        }
    }
    void background() {
        editor_.prompts.fileChoices << QStringList(editor_.path(QString::number(below(3))));
        editor_.entry(below(2) == 0 ? "mnuLoadBg" : "mnuUnloadBg")->trigger();
        editor_.prompts.fileChoices.clear();
    }
    void load() {
        constexpr int enough = 3;
        if (loads_ < enough) {
            ++loads_;
            editor_.prompts.folders << QStringLiteral(TARVEL_EXAMPLES_DIR "/aurora");
            editor_.entry("mnuLoad")->trigger();
        }
    }

    BehaviourEditor& editor_;
    std::mt19937 random_;
    int loads_ = 0;
};

} // namespace tarvel::test
