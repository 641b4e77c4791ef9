// The main window for tests, with everything that it asks answered by a script.
#pragma once

#include "document/element_kinds.h"
#include "files/host_files.h"
#include "support/captions.h"
#include "support/scripted_prompts.h"
#include "support/settle.h"
#include "widgets/easing.h"
#include "widgets/panel_slide.h"
#include "widgets/qt_text.h"
#include "widgets/remembered.h"
#include "window/frm_main.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QListView>
#include <QMenu>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

namespace tarvel::test {

/// A filled box at a place, in skin pixels.
inline Element boxAt(float left, float top, float width, float height, int opacity = 80) {
    Element element;
    element.elementKind = ElementKind::Box;
    element.elementAlpha = static_cast<std::int16_t>(opacity);
    element.label = boxKind.label(element);
    ElementControl& control = element.elementControl;
    control.kind = ControlKind::box;
    control.fillStyle = FillStyle::solid;
    control.fillColor = makeColor(200, 40, 40);
    control.left = left;
    control.top = top;
    control.width = width;
    control.height = height;
    return element;
}

/// A line between two points, in skin pixels.
inline Element lineFrom(float x1, float y1, float x2, float y2) {
    Element element;
    element.elementKind = ElementKind::Line;
    element.label = "Line";
    ElementControl& control = element.elementControl;
    control.kind = ControlKind::lin;
    control.X1 = x1;
    control.Y1 = y1;
    control.X2 = x2;
    control.Y2 = y2;
    return element;
}

struct Editor {
    QTemporaryDir folder;
    ScriptedPrompts prompts;
    Remembered remembered{folder.filePath("settings.ini")};
    FrmMain window{prompts, hostPathOf(folder.path()), remembered};

    SkinDocument& document() { return window.document(); }
    template <class Widget> Widget* find(const char* name) {
        return window.findChild<Widget*>(QLatin1String(name));
    }
    QAction* entry(const char* name) { return find<QAction>(name); }
    /// What can be read on an entry.
    QString caption(const char* name) { return captionOf(*entry(name)); }
    QWidget* pic() { return find<QWidget>("Pic"); }
    QRadioButton* optScreen(int screen) {
        return window.findChild<QRadioButton*>(QStringLiteral("optScreen(%1)").arg(screen));
    }
    QListView* lst(int screen) {
        return window.findChild<QListView*>(QStringLiteral("lst(%1)").arg(screen));
    }
    /// Clicks a screen's button on its mark.
    void clickScreen(int screen) {
        QRadioButton* button = optScreen(screen);
        QTest::mouseClick(button, Qt::LeftButton, {}, {8, button->height() / 2});
    }
    QString path(const QString& name) const { return folder.filePath(name); }
    QString newFolder(const QString& name) const {
        QDir(folder.path()).mkpath(name);
        return path(name);
    }
    void nameSkin(const std::string& name) {
        document().editSettings([&](SkinSettings& settings) { settings.skinName = name; });
    }
    void selectRow(int screen, int row) {
        lst(screen)->setCurrentIndex(lst(screen)->model()->index(row, 0));
    }
    int selectedRow(int screen) {
        const auto rows = lst(screen)->selectionModel()->selectedIndexes();
        return rows.isEmpty() ? -1 : rows.front().row();
    }
    int add(Element element, int screen = 1) {
        document().setCurrentLayout(screen);
        return document().addElement(std::move(element));
    }
    const ElementControl& control(int id) { return document().element(id).elementControl; }

    /// Shows the window and takes its panels to where they slide.
    void show() {
        auto* slide = window.findChild<PanelSlide*>();
        const auto* gliding = slide->findChild<Easing*>();
        QSignalSpy finished(slide, &PanelSlide::finished);
        window.show();
        QTRY_VERIFY(gliding->isRunning() || !finished.isEmpty());
        slide->finish();
        QCOMPARE(finished.size(), 1);
        QVERIFY(QTest::qWaitForWindowActive(&window));
    }
    void press(QPoint at) { QTest::mousePress(pic(), Qt::LeftButton, {}, at); }
    void release(QPoint at) { QTest::mouseRelease(pic(), Qt::LeftButton, {}, at); }
    void click(QPoint at) { QTest::mouseClick(pic(), Qt::LeftButton, {}, at); }
    /// Moves the pointer with the left button held.
    void drag(QPoint to, Qt::KeyboardModifiers keys = {}) {
        QMouseEvent move(QEvent::MouseMove, to, pic()->mapToGlobal(to), Qt::NoButton,
                         Qt::LeftButton, keys);
        QApplication::sendEvent(pic(), &move);
    }
    void pressDragRelease(QPoint from, QPoint to) {
        press(from);
        drag((from + to) / 2);
        drag(to);
        release(to);
    }
    void key(Qt::Key which, Qt::KeyboardModifiers keys = {}) {
        QTest::keyClick(pic(), which, keys);
    }
    /// Chooses a tool with the mouse and waits until its frames are shown.
    void chooseTool(const char* name) {
        QTest::mouseClick(find<QWidget>(name), Qt::LeftButton);
        QTRY_VERIFY(find<QWidget>("picBox")->isHidden());
    }
};

/// Closes the next modal dialog with Enter and notes its name.
inline void closeNextDialog(QStringList& seen) {
    auto* poll = new QTimer(qApp);
    QObject::connect(poll, &QTimer::timeout, poll, [poll, &seen] {
        if (QWidget* dialog = QApplication::activeModalWidget()) {
            seen << dialog->objectName();
            poll->deleteLater();
            poll->stop();
            QTest::keyClick(dialog, Qt::Key_Return);
        }
    });
    poll->start(10);
}

} // namespace tarvel::test
