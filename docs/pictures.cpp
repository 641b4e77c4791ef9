// Makes the pictures of the documents: the windows of the editor with an example open, each in
// light and dark.
#include "dialogs/frm_instructions.h"
#include "document/layout_screens.h"
#include "panels/behaviour_panel.h"
#include "surface/surface_room.h"
#include "widgets/qt_prompts.h"
#include "widgets/remembered.h"
#include "widgets/shown_path.h"
#include "widgets/style/palettes.h"
#include "window/frm_main.h"
#include "window/play_session.h"

#include <QAbstractScrollArea>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QListView>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QToolButton>

#include <cstdio>
#include <initializer_list>

namespace tarvel {

namespace {

// What is asked for on the command line.
struct Wish {
    QDir out;
    QString skin;   // its folder
    QSize size;     // of the main window; empty for the one that it asks for
    int points = 0; // of the application's font; 0 for the system's
};

void wait(int milliseconds) {
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < milliseconds) {
        QApplication::processEvents(QEventLoop::AllEvents, 10);
    }
}

// One run of the editor, in one shade, whose windows are pictured one by one.
class Studio {
  public:
    Studio(const Wish& wish, const QDir& out)
        : out_(out)
        , skin_(wish.skin) {
        window_.resize(wish.size.isEmpty() ? window_.sizeHint() : wish.size);
        window_.playBy(
            {.elapsed = [this] { return played_; },
             .wall = [] { return WallClock{.year = 2026, .month = 12, .day = 24, .hour = 20}; }});
        window_.show();
        wait(800); // the panels slide in
        take(QStringLiteral("start"), window_);
        window_.begin({wish.skin});
        wait(1500); // pictures are decoded
    }

    void takeAll() {
        select({{rowOf("Menu"), rowOf("Menu")}});
        take("main-window", window_);
        takePlaying();
        takeSelections();
        takePanels();
        takeDialogs();
        takeMenus();
        takeHelp();
        takeZoom();
    }

  private:
    template <class Widget> Widget& at(const char* name) {
        auto* found = window_.findChild<Widget*>(QLatin1String(name));
        if (found == nullptr) {
            qFatal("there is no %s", name);
        }
        return *found;
    }
    QAction& entry(const char* name) { return at<QAction>(name); }

    // Rows of the current screen, the last of which leads.
    void select(std::initializer_list<std::pair<int, int>> ranges) {
        QListView* list = nullptr;
        for (auto* each : window_.findChildren<QListView*>()) {
            if (each->objectName().startsWith(QLatin1String("lst(")) && each->isVisible()) {
                list = each;
            }
        }
        QItemSelection rows;
        QModelIndex last;
        for (const auto& [from, to] : ranges) {
            const int first = std::min(from, to);
            rows.select(list->model()->index(first, 0),
                        list->model()->index(std::max(from, to), 0));
            last = list->model()->index(to, 0);
        }
        list->selectionModel()->setCurrentIndex(last, QItemSelectionModel::NoUpdate);
        list->selectionModel()->select(rows, QItemSelectionModel::ClearAndSelect);
        list->scrollTo(last);
        wait(150);
    }

    void take(const QString& name, QWidget& widget) {
        wait(150);
        const QString file = out_.filePath(name + QStringLiteral(".png"));
        if (!widget.grab().toImage().convertToFormat(QImage::Format_RGB32).save(file)) {
            qFatal("cannot write %s", qPrintable(file));
        }
    }

    // The first row of the current screen whose text begins so; -1 for none.
    int rowOf(const QString& text) {
        const int screen = window_.document().currentLayout();
        for (int row = 0; row < window_.document().rowCount(screen); ++row) {
            if (QString::fromStdString(window_.document().rowText(screen, row)).startsWith(text)) {
                return row;
            }
        }
        return -1;
    }

    void takeSelections() {
        const int up = rowOf(QStringLiteral("Image: Up"));
        select({{up - 3, up}, {up + 1, up + 1}});
        take(QStringLiteral("several-elements"), window_);
        auto& panels = at<QWidget>("sidePanels");
        select({{1, 1}, {31, 35}}); // boxes that differ, and others
        take(QStringLiteral("panel-various"), panels);
        for (const auto& [name, row] : {std::pair{"panel-text", "Text: Time"},
                                        {"panel-image", "Image: Logo"},
                                        {"panel-menu", "Menu"},
                                        {"panel-line", "Line"}}) {
            const int found = rowOf(QLatin1String(row));
            select({{found, found}});
            wait(300);
            take(QLatin1String(name), panels);
        }
    }

    void takePanels() {
        const int box = rowOf(QStringLiteral("Box"));
        select({{box, box}});
        const SkinDocument before = window_.document();
        int index = 0;
        for (const char* name : {"modifiers", "timers", "condition"}) {
            at<QPushButton>(qPrintable(QStringLiteral("cmdModifier(%1)").arg(index))).click();
            QWidget* open = nullptr;
            for (auto* panel : window_.findChildren<BehaviourPanel*>()) {
                open = panel->isVisible() ? panel : open;
            }
            if (index == 0) {
                auto& types = at<QComboBox>("lstMods");
                types.setCurrentIndex(types.findText(QStringLiteral("Tint")));
            }
            take(QLatin1String(name), *open);
            take(QStringLiteral("window-") + QLatin1String(name), window_);
            static_cast<BehaviourPanel*>(open)->ok();
            ++index;
            if (!window_.document().holdsTheSame(before)) {
                entry("mnuUndo").trigger();
            }
        }
    }

    void takeDialogs() {
        for (const auto& [name, picture] : {std::pair{"frmResources", "resources"},
                                            {"frmAudio", "music"},
                                            {"frmMusic", "music"},
                                            {"frmColors", "colors"},
                                            {"frmDelays", "delays"},
                                            {"frmInfo", "information"}}) {
            auto* dialog = window_.findChild<QDialog*>(QLatin1String(name));
            if (dialog == nullptr) {
                continue;
            }
            dialog->show();
            wait(900); // thumbnails
            take(QLatin1String(picture), *dialog);
            dialog->hide();
        }
        takeCheck();
        entry("mnuView").trigger();
        takeWindow("frmXml", "xml");
        FrmInstructions instructions(skin_, &window_);
        instructions.show();
        take(QStringLiteral("instructions"), instructions);
    }

    // With something to be found.
    void takeCheck() {
        SkinDocument& document = window_.document();
        const SkinDocument before = document;
        const int screen = document.currentLayout();
        const int text = document.itemData(screen, rowOf(QStringLiteral("Text: Time")));
        document.editElement(text, [](Element& element) { element.elementControl.left = 800; });
        document.editSettings([](SkinSettings& settings) {
            settings.resources.front().content = "Media\\gone.png";
            settings.skinName += " \u2605";
        });
        entry("mnuCheck").trigger();
        takeWindow("frmCheck", "check");
        document.showVersion(before, screen);
        wait(500);
    }

    // A window that was opened, which is closed again.
    void takeWindow(const char* name, const char* picture) {
        wait(300);
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->isVisible() && window->objectName() == QLatin1String(name)) {
                take(QLatin1String(picture), *window);
                window->close();
                return;
            }
        }
        qFatal("%s does not open", name);
    }

    void takeMenus() {
        select({{5, 5}, {8, 8}});
        for (const auto& [name, picture] : {std::pair{"mnuSkin", "menu-skin"},
                                            {"mnuOptions", "menu-options"},
                                            {"mnuEdit", "menu-edit"},
                                            {"mnuArrange", "menu-arrange"},
                                            {"mnuRight", "menu-right"}}) {
            auto& menu = at<QMenu>(name);
            menu.popup(window_.pos() + QPoint(20, 40));
            take(QLatin1String(picture), menu);
            menu.close();
        }
        QMenu& recent = *entry("mnuRecent").menu();
        recent.popup(window_.pos() + QPoint(20, 40));
        take(QStringLiteral("menu-recent"), recent);
        recent.close();
    }

    void takeHelp() {
        entry("mnuGuide").trigger();
        takeWindow("frmGuide", "guide");
        entry("mnuKeys").trigger();
        takeWindow("frmKeys", "keys");
        entry("mnuAbout").trigger();
        takeWindow("frmAbout", "about");
    }

    void takeZoom() {
        const int logo = rowOf(QStringLiteral("Image: Logo"));
        select({{logo, logo}});
        entry("mnuRulers").trigger();
        entry("mnuSafeArea").trigger();
        take(QStringLiteral("rulers"), window_);
        for (int i = 0; i < 5; ++i) {
            entry("mnuZoomIn").trigger();
        }
        auto* room = window_.findChild<SurfaceRoom*>();
        room->horizontalScrollBar()->setValue(100);
        room->verticalScrollBar()->setValue(60);
        take(QStringLiteral("zoom"), window_);
        entry("mnuZoomFit").trigger();
        entry("mnuRulers").trigger();
        entry("mnuSafeArea").trigger();
    }

    void press(int key) {
        QWidget* focus = window_.focusWidget();
        QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(focus == nullptr ? &window_ : focus, &down);
        wait(150); // whatever looks at the time does so
    }

    // Goes to an item of the list, and on to a time in milliseconds.
    void playTo(int item, PlayTime time) {
        for (int i = 0; i < item; ++i) {
            press(Qt::Key_Down);
        }
        played_ += time;
        wait(300);
    }

    void takePlaying() {
        constexpr PlayTime moment = 3600;
        constexpr int lockedItem = 7;
        entry("mnuPlay").trigger();
        playTo(lockedItem, moment);
        take(QStringLiteral("playing"), window_);
        press(Qt::Key_Escape);

        constexpr PlayTime allTimers = 9050;
        constexpr int itemAmidOthers = 6;
        constexpr int jukeBoxScreen = 4;
        constexpr int firstWithTimers = 11;
        window_.document().setCurrentLayout(jukeBoxScreen);
        wait(900);
        entry("mnuPlay").trigger();
        at<QToolButton>("cmdCondition(4)").click();
        QScrollBar& rows = *at<QAbstractScrollArea>("timeLine").verticalScrollBar();
        rows.setValue(firstWithTimers * rows.singleStep());
        playTo(itemAmidOthers, allTimers);
        take(QStringLiteral("playing-timers"), window_);
        press(Qt::Key_F5);

        constexpr PlayTime inTitle = 2600;
        entry("mnuPlaySkin").trigger();
        playTo(0, inTitle);
        take(QStringLiteral("play-skin"), window_);
        press(Qt::Key_Escape);
        window_.document().setCurrentLayout(menuScreen);
        wait(900);
    }

    PlayTime played_ = 0; // what the clock of playing shows
    QDir out_;
    QString skin_; // its folder
    QTemporaryDir folder_;
    Remembered remembered_{folder_.filePath(QStringLiteral("settings.ini"))};
    QtPrompts prompts_{&remembered_};
    FrmMain window_{prompts_, hostPathOf(QCoreApplication::applicationDirPath()), remembered_};
};

// OUT SKIN [WIDTHxHEIGHT [POINTS]]
Wish wishOf(const QStringList& words) {
    Wish wish{.out = QDir(words.value(1)), .skin = words.value(2), .size = {}};
    const QStringList size = words.value(3).split(QLatin1Char('x'));
    if (size.size() == 2) {
        wish.size = {size[0].toInt(), size[1].toInt()};
    }
    wish.points = words.value(4).toInt();
    return wish;
}

} // namespace

} // namespace tarvel

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Tarvel"));
    const tarvel::Wish wish = tarvel::wishOf(QApplication::arguments());
    if (wish.skin.isEmpty()) {
        std::fputs("tarvel_pictures OUT SKIN [WIDTHxHEIGHT [POINTS]]\n", stderr);
        return 2;
    }
    if (wish.points > 0) {
        QFont font = QApplication::font();
        font.setPointSize(wish.points);
        QApplication::setFont(font);
    }
    for (const bool dark : {false, true}) {
        QApplication::setPalette(
            tarvel::paletteOf(dark ? tarvel::Shade::dark : tarvel::Shade::light));
        const QDir out(wish.out.filePath(dark ? QStringLiteral("dark") : QStringLiteral(".")));
        out.mkpath(QStringLiteral("."));
        tarvel::Studio(wish, out).takeAll();
    }
    return 0;
}
