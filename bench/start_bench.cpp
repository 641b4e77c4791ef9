// One process for bench/start_window to time: shows a window and leaves as soon as it is painted.
//
// Usage: tarvel_start_bench editor
//        tarvel_start_bench tree
//        tarvel_start_bench bare TREE
// The first shows the editor's window, with its panels at their places. The second prints what
// widgets it is made of, the hidden ones and the dialogs among them. The third shows a window of
// Qt's own widgets of the same kinds in the same tree, with the same texts, the plain look, and
// nothing behind them.
#include "files/host_files.h"
#include "paint_watch.h"
#include "support/scripted_prompts.h"
#include "widgets/panel_slide.h"
#include "widgets/remembered.h"
#include "window/frm_main.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSizeGrip>
#include <QSpinBox>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTextEdit>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace tarvel::bench {

namespace {

/// Tells how many widgets there are and ends the process; taking them apart is no part of the
/// start.
[[noreturn]] void leave(const QWidget& window, int code) {
    std::fprintf(stderr, "%d widgets\n", static_cast<int>(window.findChildren<QWidget*>().size()));
    std::fflush(nullptr);
    std::_Exit(code);
}

/// A widget, or an entry of a menu, of the tree that is printed and read.
struct Node {
    int depth = 0;
    std::string kind; // the class of Qt
    bool isHidden = false;
    bool hasLayout = false;
    QString text;
};

void print(const Node& node) {
    std::printf("%d %s %d %d %s\n", node.depth, node.kind.c_str(), node.isHidden ? 1 : 0,
                node.hasLayout ? 1 : 0, qPrintable(node.text.simplified()));
}

std::vector<Node> readTree(const std::string& path) {
    std::ifstream file(path);
    std::vector<Node> nodes;
    Node node;
    std::string text;
    while (file >> node.depth >> node.kind >> node.isHidden >> node.hasLayout &&
           std::getline(file, text)) {
        node.text = QString::fromStdString(text).trimmed();
        nodes.push_back(node);
    }
    return nodes;
}

/// A label whose text is broken into lines, which takes measuring.
constexpr auto wrappedLabel = "QLabel/wrapped";

/// The nearest class that is Qt's.
std::string kindOf(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget);
        label != nullptr && label->wordWrap()) {
        return wrappedLabel;
    }
    const QMetaObject* type = widget.metaObject();
    while (type->className()[0] != 'Q') {
        type = type->superClass();
    }
    return type->className();
}

/// In place of the text of a drop-down list: its list has been made; it can be typed into.
const QString hasPopup = QStringLiteral("popup");
const QString isEditable = QStringLiteral("editable");

QString textOf(const QWidget& widget) {
    if (const auto* list = qobject_cast<const QComboBox*>(&widget)) {
        return (list->isEditable() ? isEditable : QString()) +
               (list->findChild<QAbstractItemView*>() == nullptr ? QString() : hasPopup);
    }
    return widget.property(qobject_cast<const QGroupBox*>(&widget) != nullptr ? "title" : "text")
        .toString();
}

/// What Qt itself makes with the widget that holds it.
bool comesWithItsHolder(const QWidget& widget) {
    return widget.objectName().startsWith(QLatin1String("qt_")) ||
           qobject_cast<const QSplitterHandle*>(&widget) != nullptr ||
           qobject_cast<const QSizeGrip*>(&widget) != nullptr;
}

bool isWhole(const QWidget& widget) {
    return qobject_cast<const QComboBox*>(&widget) != nullptr ||
           qobject_cast<const QAbstractSpinBox*>(&widget) != nullptr ||
           qobject_cast<const QLineEdit*>(&widget) != nullptr;
}

void printTree(const QWidget& widget, int depth);

void printChildren(const QWidget& widget, int depth) {
    for (const QObject* child : widget.children()) {
        if (child->isWidgetType() && !comesWithItsHolder(*static_cast<const QWidget*>(child))) {
            printTree(*static_cast<const QWidget*>(child), depth);
        }
    }
}

void printTree(const QWidget& widget, int depth) {
    print({depth, kindOf(widget), widget.isHidden(), widget.layout() != nullptr, textOf(widget)});
    if (qobject_cast<const QMenu*>(&widget) != nullptr) {
        for (const QAction* entry : widget.actions()) {
            print({depth + 1, entry->isSeparator() ? "separator" : "entry", false, false,
                   entry->text()});
        }
    }
    if (isWhole(widget)) {
        return;
    }
    printChildren(widget, depth + 1);
    if (const auto* area = qobject_cast<const QAbstractScrollArea*>(&widget)) {
        printChildren(*area->viewport(), depth + 1);
    }
}

[[noreturn]] void showEditor(bool prints) {
    test::ScriptedPrompts prompts;
    QTemporaryDir settings;
    Remembered remembered(settings.filePath(QStringLiteral("settings.ini")));
    FrmMain window(prompts, programFolder(), remembered);
    const PaintWatch watch(*window.findChild<QWidget*>(QStringLiteral("Pic")));
    window.show();
    // Once the panels have begun to slide in: they are painted where they stay.
    auto* slide = window.findChild<PanelSlide*>();
    QTimer::singleShot(0, slide, &PanelSlide::finish);
    const int code = QApplication::exec();
    if (prints) {
        printTree(window, 0);
    }
    settings.remove();
    leave(window, code);
}

QWidget* makeDropDown(const QString& text) {
    auto* list = new QComboBox;
    list->setEditable(text.contains(isEditable));
    if (text.contains(hasPopup)) {
        list->view();
    }
    return list;
}

QWidget* makeWrappedLabel(const QString& text) {
    auto* label = new QLabel(text);
    label->setWordWrap(true);
    return label;
}

QWidget* made(const std::string& kind, const QString& text) {
    using Maker = QWidget* (*)(const QString&);
    static const std::vector<std::pair<std::string, Maker>> makers = {
        {"QLabel", [](const QString& t) -> QWidget* { return new QLabel(t); }},
        {wrappedLabel, makeWrappedLabel},
        {"QPushButton", [](const QString& t) -> QWidget* { return new QPushButton(t); }},
        {"QCheckBox", [](const QString& t) -> QWidget* { return new QCheckBox(t); }},
        {"QRadioButton", [](const QString& t) -> QWidget* { return new QRadioButton(t); }},
        {"QLineEdit", [](const QString& t) -> QWidget* { return new QLineEdit(t); }},
        {"QGroupBox", [](const QString& t) -> QWidget* { return new QGroupBox(t); }},
        {"QMenu", [](const QString&) -> QWidget* { return new QMenu; }},
        {"QToolButton", [](const QString&) -> QWidget* { return new QToolButton; }},
        {"QAbstractButton", [](const QString& t) -> QWidget* { return new QPushButton(t); }},
        {"QComboBox", makeDropDown},
        {"QSpinBox", [](const QString&) -> QWidget* { return new QSpinBox; }},
        {"QListView", [](const QString&) -> QWidget* { return new QListView; }},
        {"QListWidget", [](const QString&) -> QWidget* { return new QListWidget; }},
        {"QAbstractScrollArea", [](const QString&) -> QWidget* { return new QScrollArea; }},
        {"QScrollArea", [](const QString&) -> QWidget* { return new QScrollArea; }},
        {"QScrollBar", [](const QString&) -> QWidget* { return new QScrollBar; }},
        {"QSplitter", [](const QString&) -> QWidget* { return new QSplitter; }},
        {"QStackedWidget", [](const QString&) -> QWidget* { return new QStackedWidget; }},
        {"QTextEdit", [](const QString&) -> QWidget* { return new QTextEdit; }},
        {"QDialog", [](const QString&) -> QWidget* { return new QDialog; }},
        {"QMenuBar", [](const QString&) -> QWidget* { return new QMenuBar; }},
        {"QStatusBar", [](const QString&) -> QWidget* { return new QStatusBar; }},
        {"QFrame", [](const QString&) -> QWidget* { return new QFrame; }},
        {"QWidget", [](const QString&) -> QWidget* { return new QWidget; }},
    };
    for (const auto& [name, make] : makers) {
        if (name == kind) {
            return make(text);
        }
    }
    throw std::runtime_error("no such kind of widget: " + kind);
}

/// Makes the widgets of a tree.
class BareTree {
  public:
    explicit BareTree(std::vector<Node> nodes)
        : nodes_(std::move(nodes)) {}

    void fill(QWidget& holder) {
        const Node& own = nodes_.at(next_++);
        while (next_ < nodes_.size() && nodes_[next_].depth > own.depth) {
            const Node& node = nodes_[next_];
            if (node.kind == "entry" || node.kind == "separator") {
                auto* entry = new QAction(node.text, &holder);
                entry->setSeparator(node.kind == "separator");
                holder.addAction(entry);
                ++next_;
                continue;
            }
            QWidget* child = made(node.kind, node.text);
            place(*child, holder, own.hasLayout, node.isHidden);
            fill(*child);
        }
    }

  private:
    static void place(QWidget& child, QWidget& holder, bool hasLayout, bool isHidden) {
        if (child.isWindow() && (qobject_cast<QDialog*>(&child) != nullptr ||
                                 qobject_cast<QMenu*>(&child) != nullptr)) {
            child.setParent(&holder, child.windowFlags());
            if (auto* bar = qobject_cast<QMenuBar*>(&holder)) {
                bar->addMenu(static_cast<QMenu*>(&child))->setText(QStringLiteral("Menu"));
            }
            return;
        }
        if (auto* window = qobject_cast<QMainWindow*>(&holder)) {
            if (auto* bar = qobject_cast<QMenuBar*>(&child)) {
                window->setMenuBar(bar);
            } else if (auto* status = qobject_cast<QStatusBar*>(&child)) {
                window->setStatusBar(status);
            } else {
                window->setCentralWidget(&child);
            }
        } else if (auto* area = qobject_cast<QScrollArea*>(&holder)) {
            area->setWidgetResizable(true);
            area->setWidget(&child);
        } else if (auto* splitter = qobject_cast<QSplitter*>(&holder)) {
            splitter->addWidget(&child);
        } else if (auto* stack = qobject_cast<QStackedWidget*>(&holder)) {
            stack->addWidget(&child);
        } else if (hasLayout) {
            if (holder.layout() == nullptr) {
                new QVBoxLayout(&holder);
            }
            holder.layout()->addWidget(&child);
        } else {
            child.setParent(&holder);
        }
        child.setHidden(isHidden);
    }

    std::vector<Node> nodes_;
    std::size_t next_ = 0;
};

[[noreturn]] void showBare(const std::string& path) {
    QMainWindow window;
    BareTree(readTree(path)).fill(window);
    const PaintWatch watch(*window.centralWidget());
    window.show();
    leave(window, QApplication::exec());
}

} // namespace

} // namespace tarvel::bench

int main(int argc, char* argv[]) {
    const std::string_view what = argc > 1 ? argv[1] : "";
    QApplication application(argc, argv);
    if (what == "bare" && argc == 3) {
        tarvel::bench::showBare(argv[2]);
    }
    tarvel::bench::showEditor(what == "tree");
}
