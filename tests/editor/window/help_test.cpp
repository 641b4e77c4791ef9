// The menu "Help": the guide with its search, links and pictures, the keys, and the program itself.
#include "support/behaviour_editor.h"
#include "support/program_version.h"
#include "support/ui_test.h"
#include "widgets/style/palettes.h"
#include "window/guide_view.h"
#include "window/guide_window.h"
#include "window/help_windows.h"
#include "window/key_table.h"

#include <QAbstractTextDocumentLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTreeWidget>
#include <QWheelEvent>

using namespace tarvel;
using namespace tarvel::test;

namespace {

GuideWindow* shownGuide() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        auto* guide = qobject_cast<GuideWindow*>(window);
        if (guide != nullptr && guide->isVisible()) {
            return guide;
        }
    }
    return nullptr;
}

QString shownChapter(GuideWindow& guide) {
    const auto* item = guide.findChild<QTreeWidget*>("lstContents")->currentItem();
    return item == nullptr ? QString() : item->text(0);
}

/// Whether the guide takes keys. A window that a dialog blocks gets none; a window manager may give
/// them to the dialog once more.
bool takesKeys(GuideWindow& guide) {
    auto& txtFind = control<QLineEdit>(guide, "txtFind");
    txtFind.clear();
    return QTest::qWaitFor([&] {
        guide.activateWindow();
        QCoreApplication::processEvents();
        QTest::keyClick(guide.windowHandle(), Qt::Key_F, Qt::ControlModifier);
        QTest::keyClick(guide.windowHandle(), 'q');
        return txtFind.text().contains('q');
    });
}

/// The headings that are not drawn below the one before.
QStringList misplacedHeadings(GuideView& view) {
    QStringList misplaced;
    double last = -1;
    for (const GuideView::Heading& heading : view.headings()) {
        const QTextBlock block = view.document()->findBlockByNumber(heading.block);
        const QRectF place = view.document()->documentLayout()->blockBoundingRect(block);
        if (place.height() <= 0 || place.top() <= last || block.layout()->lineCount() == 0) {
            misplaced << heading.text;
        }
        last = place.top();
    }
    return misplaced;
}

QList<QPair<QString, QTextImageFormat>> picturesOf(const QTextDocument& document) {
    QList<QPair<QString, QTextImageFormat>> pictures;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto at = block.begin(); !at.atEnd(); ++at) {
            const QTextImageFormat format = at.fragment().charFormat().toImageFormat();
            if (format.isValid()) {
                pictures.append({format.name(), format});
            }
        }
    }
    return pictures;
}

} // namespace

class HelpTest : public QObject {
    Q_OBJECT

  private slots:
    void guideOpensByF1();
    void guideHasItsContents();
    void guideFinds();
    void guideFollowsLinks();
    void everyLinkLeadsSomewhere();
    void picturesFitTheWindow();
    void picturesAreOfTheShadeOfTheWindow();
    void textIsZoomed();
    void chaptersOfDialogsAreThere();
    void f1InADialog();
    void f1InAPanel();
    void guideIsOpenBeforeADialog();
    void keysAreThoseOfTheEntries();
    void guideListsAllKeys();
    void keysAreShown();
    void aboutTellsVersions();
};

void HelpTest::guideOpensByF1() {
    Editor editor;
    editor.show();
    QVERIFY(shownGuide() == nullptr);
    QTest::keyClick(editor.pic(), Qt::Key_F1);
    GuideWindow* guide = shownGuide();
    QVERIFY(guide != nullptr);
    QVERIFY(guide->view().toPlainText().startsWith("Laying out a skin with Tarvel"));
    QVERIFY(!guide->isModal());
    QVERIFY(!guide->testAttribute(Qt::WA_QuitOnClose));
    editor.entry("mnuGuide")->trigger();
    QCOMPARE(shownGuide(), guide); // the same one
    QTest::keyClick(guide, Qt::Key_Escape);
    QVERIFY(shownGuide() == nullptr);
}

void HelpTest::guideHasItsContents() {
    GuideWindow guide([](const QUrl&) {});
    QVERIFY(open(guide));
    auto& contents = control<QTreeWidget>(guide, "lstContents");
    int entries = 0;
    for (QTreeWidgetItemIterator item(&contents); *item != nullptr; ++item) {
        ++entries;
        contents.setFocus();
        contents.setCurrentItem(*item);
        const QTextBlock block = guide.view().textCursor().block();
        QCOMPARE(block.text(), (*item)->text(0));
        QVERIFY(guide.view().viewport()->rect().contains(guide.view().cursorRect().center()));
    }
    QVERIFY(entries > 30);
    QCOMPARE(entries + 1, static_cast<int>(guide.view().headings().size())); // and the title
    guide.view().setFocus();
    guide.view().verticalScrollBar()->setValue(0);
    QVERIFY(guide.showChapter("snapping"));
    QCOMPARE(shownChapter(guide), QString("Snapping"));
    QVERIFY(!guide.showChapter("nothing-of-that-kind"));
}

void HelpTest::guideFinds() {
    GuideWindow guide([](const QUrl&) {});
    QVERIFY(open(guide));
    auto& found = control<QLabel>(guide, "lblFound");
    auto& next = control<QPushButton>(guide, "cmdNext");
    auto& txtFind = control<QLineEdit>(guide, "txtFind");
    QVERIFY(!next.isEnabled());
    QTest::keyClick(&guide.view(), Qt::Key_F, Qt::ControlModifier);
    QCOMPARE(QApplication::focusWidget(), &txtFind);
    QTest::keyClicks(&txtFind, "RUBBER band");
    QCOMPARE(found.text(), QString("1 of 1"));
    QCOMPARE(guide.view().textCursor().selectedText(), QString("rubber band"));
    QTest::keyClicks(&txtFind, "s and more");
    QCOMPARE(found.text(), QString("Not found in the guide"));
    QVERIFY(!next.isEnabled());
    QVERIFY(!guide.view().textCursor().hasSelection());
    txtFind.clear();
    QCOMPARE(found.text(), QString());
    QTest::keyClicks(&txtFind, "undo");
    const int all = static_cast<int>(guide.view().toPlainText().count("undo", Qt::CaseInsensitive));
    QVERIFY(all > 3);
    QCOMPARE(guide.view().matches(), all);
    QCOMPARE(guide.view().extraSelections().size(), all);
    const int first = guide.view().shownMatch();
    const auto after = [&](int step) { return (first - 1 + step + all) % all + 1; };
    QTest::keyClick(&txtFind, Qt::Key_Return);
    QCOMPARE(guide.view().shownMatch(), after(1));
    QTest::keyClick(&txtFind, Qt::Key_F3);
    QCOMPARE(guide.view().shownMatch(), after(2));
    QTest::keyClick(&txtFind, Qt::Key_F3, Qt::ShiftModifier);
    QCOMPARE(guide.view().shownMatch(), after(1));
    test::click(control<QPushButton>(guide, "cmdPrevious"));
    test::click(control<QPushButton>(guide, "cmdPrevious"));
    QCOMPARE(found.text(), QString("%1 of %2").arg(after(-1)).arg(all));
}

void HelpTest::guideFollowsLinks() {
    QList<QUrl> opened;
    GuideWindow guide([&](const QUrl& link) { opened << link; });
    QVERIFY(open(guide));
    emit guide.view().anchorClicked(QUrl("#what-surprises-people"));
    QCOMPARE(guide.view().textCursor().block().text(), QString("What surprises people"));
    QVERIFY(opened.isEmpty());
    emit guide.view().anchorClicked(QUrl("https://example.org/skins"));
    QCOMPARE(opened, QList<QUrl>({QUrl("https://example.org/skins")}));
    QCOMPARE(guide.view().textCursor().block().text(), QString("What surprises people"));
}

void HelpTest::everyLinkLeadsSomewhere() {
    GuideWindow guide([](const QUrl&) {});
    int links = 0;
    QTextDocument* document = guide.view().document();
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        for (auto at = block.begin(); !at.atEnd(); ++at) {
            const QUrl link(at.fragment().charFormat().anchorHref());
            if (at.fragment().charFormat().isAnchor() && link.scheme().isEmpty()) {
                ++links;
                QVERIFY2(guide.showChapter(link.fragment()), qPrintable(link.toString()));
            }
        }
    }
    QVERIFY(links >= 2);
    for (const auto& [name, format] : picturesOf(*document)) {
        QVERIFY2(!QPixmap(":/tarvel/docs/" + name).isNull(), qPrintable(name));
        const QString dark = QString(name).replace("images/", "images/dark/");
        QVERIFY2(!QPixmap(":/tarvel/docs/" + dark).isNull(), qPrintable(dark));
    }
    QStringList anchors;
    for (const GuideView::Heading& heading : guide.view().headings()) {
        QVERIFY2(!anchors.contains(heading.anchor), qPrintable(heading.anchor));
        anchors << heading.anchor;
    }
}

void HelpTest::picturesAreOfTheShadeOfTheWindow() {
    GuideWindow guide([](const QUrl&) {});
    QVERIFY(open(guide));
    QTextDocument* document = guide.view().document();
    // The menu bar's ground, in the corner of the first picture.
    const auto isDark = [&] {
        const QString name = picturesOf(*document).front().first;
        const auto picture =
            document->resource(QTextDocument::ImageResource, QUrl(name)).value<QPixmap>();
        return picture.toImage().pixelColor(2, 2).lightness() < 128;
    };
    for (const Shade shade : {Shade::dark, Shade::light}) {
        guide.setPalette(paletteOf(shade));
        QTRY_COMPARE(isDark(), shade == Shade::dark);
    }
}

void HelpTest::picturesFitTheWindow() {
    GuideWindow guide([](const QUrl&) {});
    QVERIFY(open(guide));
    for (const int width : {520, 2400, 960}) {
        guide.resize(width, 700);
        QTRY_COMPARE(guide.width(), width);
        const int room = guide.view().viewport()->width();
        const auto pictures = picturesOf(*guide.view().document());
        QVERIFY(pictures.size() >= 2);
        for (const auto& [name, format] : pictures) {
            const int natural = QPixmap(":/tarvel/docs/" + name).width();
            QVERIFY(format.width() <= room && format.width() <= natural);
            QVERIFY(format.width() > std::min(room, natural) * 3 / 4);
        }
        QCOMPARE(guide.view().horizontalScrollBar()->maximum(), 0);
        QCOMPARE(misplacedHeadings(guide.view()), QStringList());
    }
}

void HelpTest::textIsZoomed() {
    GuideWindow guide([](const QUrl&) {});
    QVERIFY(open(guide));
    const double usual = guide.view().font().pointSizeF();
    const auto size = [&] { return guide.view().document()->defaultFont().pointSizeF() / usual; };
    QTest::keyClick(&guide, Qt::Key_Plus, Qt::ControlModifier);
    QTest::keyClick(&guide, Qt::Key_Equal, Qt::ControlModifier);
    QCOMPARE(guide.view().zoom(), 120);
    QVERIFY(qAbs(size() - 1.2) < 0.01);
    QTest::keyClick(&guide, Qt::Key_0, Qt::ControlModifier);
    QCOMPARE(misplacedHeadings(guide.view()), QStringList());
    QCOMPARE(size(), 1.0);
    QTest::keyClick(&guide, Qt::Key_Minus, Qt::ControlModifier);
    QCOMPARE(guide.view().zoom(), 90);
    const auto turn = [&](int by) {
        const QPoint at = guide.view().viewport()->rect().center();
        QWheelEvent wheel(at, guide.view().viewport()->mapToGlobal(at), {}, {0, by}, Qt::NoButton,
                          Qt::ControlModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(guide.view().viewport(), &wheel);
    };
    turn(120);
    QCOMPARE(guide.view().zoom(), 100);
    for (int i = 0; i < 40; ++i) {
        turn(-120);
    }
    QCOMPARE(guide.view().zoom(), GuideView::smallestZoom);
    for (int i = 0; i < 40; ++i) {
        turn(120);
    }
    QCOMPARE(guide.view().zoom(), GuideView::largestZoom);
}

void HelpTest::chaptersOfDialogsAreThere() {
    Editor editor;
    GuideWindow guide([](const QUrl&) {});
    for (const auto& [name, chapter] : HelpWindows::chapters()) {
        QVERIFY2(guide.showChapter(chapter), qPrintable(chapter));
    }
    // No dialog of the window without one.
    for (const QDialog* dialog : editor.window.findChildren<QDialog*>()) {
        QVERIFY2(std::any_of(HelpWindows::chapters().begin(), HelpWindows::chapters().end(),
                             [&](const auto& each) { return each.first == dialog->objectName(); }),
                 qPrintable(dialog->objectName()));
    }
}

void HelpTest::f1InADialog() {
    Editor editor;
    editor.show();
    QVERIFY(inDialog(editor, "mnuResource", "frmResources", [&](QWidget& dialog) {
        QVERIFY(activate(dialog));
        QTest::keyClick(dialog.focusWidget(), Qt::Key_F1);
        GuideWindow* guide = shownGuide();
        QVERIFY(guide != nullptr);
        QCOMPARE(shownChapter(*guide), QString("Resource Manager"));
        QVERIFY(dialog.isVisible());
        // It can be used: a blocked window would get no keys.
        QVERIFY(takesKeys(*guide));
        QVERIFY(activate(dialog));
    }));
    GuideWindow* guide = shownGuide(); // it stays
    QVERIFY(guide != nullptr);
    QTRY_VERIFY(guide->windowHandle()->transientParent() == nullptr);
}

void HelpTest::f1InAPanel() {
    BehaviourEditor editor;
    editor.selectRow(1, 0);
    QVERIFY(editor.openPanel(1));
    QTest::keyClick(editor.window.focusWidget(), Qt::Key_F1);
    QVERIFY(shownGuide() != nullptr);
    QCOMPARE(shownChapter(*shownGuide()), QString("Timers"));
    QCOMPARE(editor.shown(), QList<int>({1}));
    QVERIFY(activate(editor.window));
    editor.ok(1);
}

void HelpTest::guideIsOpenBeforeADialog() {
    Editor editor;
    editor.show();
    editor.entry("mnuGuide")->trigger();
    GuideWindow* guide = shownGuide();
    QVERIFY(activate(editor.window));
    QVERIFY(inDialog([&] { editor.entry("mnuDelays")->trigger(); }, "frmDelays",
                     [&](QWidget& dialog) {
                         QTRY_COMPARE(guide->windowHandle()->transientParent(),
                                      dialog.windowHandle());
                         QVERIFY(takesKeys(*guide));
                         QVERIFY(activate(dialog));
                     }));
}

// In both directions: no key of an entry is missing, and none is told that is not there.
void HelpTest::keysAreThoseOfTheEntries() {
    Editor editor;
    QMap<QString, QString> told;
    for (const KeyGroup& group : keyTable()) {
        for (const KeyRow& row : group.rows) {
            if (!row.action.isEmpty()) {
                told[row.action] = row.keys;
                QVERIFY2(row.deed.startsWith(editor.caption(row.action.toLatin1())),
                         qPrintable(row.deed));
            }
        }
    }
    QMap<QString, QString> real;
    for (const QAction* entry : editor.window.findChildren<QAction*>()) {
        QStringList keys;
        for (const QKeySequence& key : entry->shortcuts()) {
            keys << key.toString(QKeySequence::PortableText);
        }
        if (!keys.isEmpty()) {
            real[entry->objectName()] = keys.join(" or ");
        }
    }
    QVERIFY(real.size() > 10);
    QCOMPARE(told, real);
}

void HelpTest::guideListsAllKeys() {
    const QString guide = GuideWindow::guideText();
    QString expected;
    for (const KeyGroup& group : keyTable()) {
        expected += QString("\n### %1\n\n| Keys | do |\n|---|---|\n").arg(group.where);
        for (const KeyRow& row : group.rows) {
            expected += QString("| %1 | %2 |\n").arg(row.keys, row.deed);
        }
    }
    QCOMPARE(guide.mid(guide.indexOf("\n## Keys\n") + 9), expected);
}

void HelpTest::keysAreShown() {
    Editor editor;
    editor.show();
    editor.entry("mnuKeys")->trigger();
    auto* dialog = editor.find<QDialog>("frmKeys");
    QVERIFY(dialog != nullptr && dialog->isVisible());
    const auto& browser = control<QTextBrowser>(*dialog, "txtKeys");
    QCOMPARE(browser.cursorWidth(), 0); // it cannot be written in
    const QString page = browser.toPlainText();
    for (const KeyGroup& group : keyTable()) {
        QVERIFY2(page.contains(group.where), qPrintable(group.where));
        for (const KeyRow& row : group.rows) {
            QVERIFY2(page.contains(row.keys) && page.contains(row.deed), qPrintable(row.keys));
        }
    }
    QTest::keyClick(dialog, Qt::Key_Escape);
    QVERIFY(!dialog->isVisible());
}

void HelpTest::aboutTellsVersions() {
    Editor editor;
    editor.show();
    editor.entry("mnuAbout")->trigger();
    auto* dialog = editor.find<QDialog>("frmAbout");
    QVERIFY(dialog != nullptr && dialog->isVisible());
    const auto& label = control<QLabel>(*dialog, "lblAbout");
    const std::string version = "Tarvel " + test::programVersion();
    for (const char* text : {version.c_str(), "MIT license", "Qt " QT_VERSION_STR, "pugixml 1."}) {
        QVERIFY2(label.text().contains(text), text);
    }
    QVERIFY(label.textInteractionFlags().testFlag(Qt::TextSelectableByMouse));
    QVERIFY(label.textInteractionFlags().testFlag(Qt::TextSelectableByKeyboard));
    QTest::keyClick(dialog, Qt::Key_Return);
    QVERIFY(!dialog->isVisible());
}

TARVEL_UI_TEST(HelpTest)
#include "help_test.moc"
