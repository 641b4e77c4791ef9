// The list of the Resources dialog: what it says of each resource; renaming, replacing, removing.
#include "dialogs/resource_thumbnails.h"
#include "document/image_source.h"
#include "editing/resource_uses.h"
#include "support/access_support.h"
#include "support/document_support.h"
#include "support/resources_support.h"
#include "support/ui_test.h"
#include "widgets/qt_text.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QPushButton>

namespace tarvel {

using test::click;
using test::clickRow;
using test::rowTexts;

namespace {

int addImage(SkinDocument& document, const std::string& source) {
    Element element;
    element.elementKind = ElementKind::Image;
    element.imageSource = source;
    element.label = "Image: " + source;
    attachSource(document, source, element.elementControl);
    return document.addElement(std::move(element));
}

} // namespace

class FrmResourcesListTest : public QObject, protected test::ResourcesFixture {
    Q_OBJECT

  private slots:
    void init();
    void cleanup() { dialog_.reset(); }
    void rowsSayWhatTheyAre();
    void notesAreSeen();
    void longNamesLeaveRoomForTheNotes();
    void commandsNeedARow();
    void renames_data();
    void renames();
    void renamingIsOfferedByAButton();
    void aRefusedNameCanBeMended();
    void renamingEndsWithTheDialog_data();
    void renamingEndsWithTheDialog();
    void tabEndsRenamingInItsRow();
    void replaces_data();
    void replaces();
    void refusedFilesReplaceNothing();
    void removes_data();
    void removes();
    void removingGoesOnWithTheNextRow();
    void deleteWhileRenamingEditsTheName();
    void severalFilesAreAdded_data();
    void severalFilesAreAdded();
    void addingSeveralKeepsWhatIsFilledIn();
    void aFileThatWentBeforeItWasAddedIsMissing();
    void opensAnewAfterAChangeIsTakenBack();
    void worksByKeysAlone();
    void staysUsableWithVeryManyResources();

  private:
    enum Row : std::uint8_t { sky, logo, gone, unused };

    [[nodiscard]] QListWidget& list() const { return at<QListWidget>("lstRes"); }
    [[nodiscard]] QString spoken(int row) const {
        return list().item(row)->data(Qt::AccessibleTextRole).toString();
    }
    // The box for a new name while it is worked in.
    [[nodiscard]] QLineEdit* editor() const {
        auto* edit = qobject_cast<QLineEdit*>(dialog_->focusWidget());
        return edit != nullptr && edit->objectName() == "txtRename" ? edit : nullptr;
    }
    void press(Qt::Key key) {
        QVERIFY(dialog_->focusWidget() != nullptr);
        QTest::keyClick(dialog_->focusWidget(), key);
    }
    // F2 on the row, and another name typed over its own.
    void typeName(int row, const QString& name) {
        clickRow(list(), row);
        press(Qt::Key_F2);
        QVERIFY(editor() != nullptr);
        editor()->selectAll();
        press(Qt::Key_Delete);
        QTest::keyClicks(editor(), name);
    }
    [[nodiscard]] std::string path(const char* name) const { return folder_.document(name); }
};

// Resources sky (3 uses on two screens), logo of the dashboard (1), gone (1, its file is missing)
// and unused.
void FrmResourcesListTest::init() {
    startAfresh();
    picture("sky.png", Qt::blue);
    picture("unused.png", Qt::red);
    document_.addRes("sky", path("sky.png"));
    document_.addcRes("<File>::Logo</File>", "logo");
    document_.addRes("gone", path("gone.png"));
    document_.addRes("unused", path("unused.png"));
    addImage(document_, "sky");
    addImage(document_, "::Sky");
    addImage(document_, "logo");
    document_.setCurrentLayout(3);
    addImage(document_, "sky");
    addImage(document_, "gone");
    document_.setCurrentLayout(1);
}

void FrmResourcesListTest::rowsSayWhatTheyAre() {
    open();
    QCOMPARE(rowTexts(list()), (QStringList{"sky", "logo", "gone", "unused"}));
    QCOMPARE(spoken(sky), "sky, 3 uses");
    QCOMPARE(spoken(logo), "logo, 1 use");
    QCOMPARE(spoken(gone), "gone, file missing, 1 use");
    QCOMPARE(spoken(unused), "unused, unused");
    QCOMPARE(list().item(gone)->toolTip(), inFolder("gone.png"));
    QCOMPARE(list().item(logo)->toolTip(), "<File>::Logo</File>");
    const auto* read = QAccessible::queryAccessibleInterface(&list())->child(gone);
    QVERIFY(read != nullptr);
    QCOMPARE(read->text(QAccessible::Name), "gone, file missing, 1 use");
}

// The right ends of the rows differ where the notes do.
void FrmResourcesListTest::notesAreSeen() {
    document_.addRes("gone too", path("gone too.png"));
    document_.addRes("unused too", path("unused.png"));
    open();
    const auto end = [&](int row) {
        const QRect rect = list().visualItemRect(list().item(row));
        return list().viewport()->grab(rect.adjusted(rect.width() * 2 / 3, 0, 0, 0)).toImage();
    };
    constexpr int goneToo = 4;
    constexpr int unusedToo = 5;
    QCOMPARE(end(unused), end(unusedToo));
    QVERIFY(end(unused) != end(sky));
    QVERIFY(end(unused) != end(goneToo)); // both unused
    QVERIFY(end(gone) != end(logo));      // both of one use
}

void FrmResourcesListTest::longNamesLeaveRoomForTheNotes() {
    document_ = SkinDocument();
    document_.addRes("short", path("sky.png"));
    document_.addRes(std::string(300, 'W'), path("sky.png")); // the list goes by its last row
    open();
    QCOMPARE(list().visualItemRect(list().item(0)).width(), list().viewport()->width());
    const auto end = [&](int row) {
        const QRect rect = list().visualItemRect(list().item(row));
        const int words = list().fontMetrics().horizontalAdvance("unused") + 8;
        return list().viewport()->grab(rect.adjusted(rect.width() - words, 0, 0, 0)).toImage();
    };
    QCOMPARE(end(0), end(1));
}

void FrmResourcesListTest::commandsNeedARow() {
    const auto enabled = [&] {
        QStringList names;
        for (const char* name : {"cmdRename", "cmdReplace", "cmdRemove", "cmdLocate"}) {
            if (at<QPushButton>(name).isEnabled()) {
                names << name;
            }
        }
        return names;
    };
    open();
    QCOMPARE(enabled(), QStringList{"cmdLocate"});
    clickRow(list(), sky);
    QCOMPARE(enabled(), (QStringList{"cmdRename", "cmdReplace", "cmdRemove", "cmdLocate"}));
    document_.editSettings([&](SkinSettings& settings) { settings.resources.resize(1); });
    clickRow(list(), logo); // stands for nothing any more
    QCOMPARE(enabled(), QStringList{"cmdLocate"});
    press(Qt::Key_Delete);
    QCOMPARE(resources().size(), 1U);
    dialog_->close();
    open(); // with nothing missing
    QCOMPARE(enabled(), QStringList());
}

void FrmResourcesListTest::renames_data() {
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("message"); // "" when it is done
    const QString taken = "Enter a unique resource name";
    QTest::newRow("another") << int(sky) << "night"
                             << "";
    QTest::newRow("of the dashboard's") << int(logo) << "Brand"
                                        << "";
    QTest::newRow("other letters' case") << int(sky) << "SKY"
                                         << "";
    QTest::newRow("the same") << int(sky) << "sky"
                              << "";
    QTest::newRow("like markup") << int(sky) << "<b>&"
                                 << "";
    QTest::newRow("taken") << int(sky) << "logo" << taken;
    QTest::newRow("taken in other case") << int(sky) << "LOGO" << taken;
    QTest::newRow("reserved") << int(sky) << "bground"
                              << "Use a different resource name";
    QTest::newRow("none") << int(sky) << ""
                          << "Enter a resource name";
}

void FrmResourcesListTest::renames() {
    QFETCH(int, row);
    QFETCH(QString, name);
    QFETCH(QString, message);
    SkinDocument expected = document_;
    renameResource(expected, row, coreText(name));
    const QString before = qtText(resources()[std::size_t(row)].name);
    open();
    typeName(row, name);
    press(Qt::Key_Return);
    QTRY_COMPARE(prompts_->messages, message.isEmpty() ? QStringList() : QStringList{message});
    test::settle();
    QCOMPARE(document_, expected);
    QVERIFY(dialog_->isVisible());
    QCOMPARE(list().item(row)->text(), message.isEmpty() ? name : before);
    QCOMPARE(list().currentRow(), row);
    QCOMPARE(editor() != nullptr, !message.isEmpty());
    QVERIFY(dialog_->focusWidget() ==
            (editor() == nullptr ? static_cast<QWidget*>(&list()) : editor()));
}

void FrmResourcesListTest::renamingIsOfferedByAButton() {
    open();
    clickRow(list(), unused);
    click(at<QWidget>("cmdRename"));
    QVERIFY(editor() != nullptr);
    QVERIFY(editor()->hasFocus());
    QCOMPARE(editor()->text(), "unused");
    QCOMPARE(test::withoutAccessibleName(*dialog_), QStringList());
    QTest::keyClicks(editor(), "used"); // over what is selected
    press(Qt::Key_Escape);
    QTRY_VERIFY(editor() == nullptr);
    QVERIFY(dialog_->isVisible());
    QCOMPARE(resources()[unused].name, "unused");
}

void FrmResourcesListTest::aRefusedNameCanBeMended() {
    open();
    typeName(sky, "logo");
    press(Qt::Key_Return);
    QTRY_COMPARE(prompts_->messages.size(), 1);
    QCOMPARE(prompts_->lastOwner, dialog_.get());
    test::settle();
    QVERIFY(editor() != nullptr);
    QCOMPARE(editor()->text(), "logo");
    press(Qt::Key_End);
    QTest::keyClicks(editor(), "s");
    press(Qt::Key_Return);
    test::settle();
    QCOMPARE(resources()[sky].name, "logos");
    QCOMPARE(prompts_->messages.size(), 1);
    press(Qt::Key_F2); // starts with the name again
    QCOMPARE(editor()->text(), "logos");
}

void FrmResourcesListTest::renamingEndsWithTheDialog_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("messages");
    QTest::newRow("free") << "night"
                          << "night" << QStringList();
    QTest::newRow("taken") << "logo"
                           << "sky" << QStringList{"Enter a unique resource name"};
}

// As a press on OK takes the name, so do the other ways to close.
void FrmResourcesListTest::renamingEndsWithTheDialog() {
    QFETCH(QString, typed);
    QFETCH(QString, name);
    QFETCH(QStringList, messages);
    open();
    typeName(sky, typed);
    bool isInTime = false; // the step of the dialog ends with it
    connect(dialog_.get(), &QDialog::finished, this,
            [&] { isInTime = qtText(resources()[sky].name) == name; });
    QVERIFY(test::close(*dialog_));
    QVERIFY(isInTime);
    QTRY_COMPARE(prompts_->messages, messages);
    open();
    QCOMPARE(rowTexts(list()).front(), name);
    QVERIFY(editor() == nullptr);
}

void FrmResourcesListTest::tabEndsRenamingInItsRow() {
    open();
    typeName(sky, "night");
    press(Qt::Key_Tab);
    test::settle();
    QVERIFY(editor() == nullptr);
    QCOMPARE(resources()[sky].name, "night");
    QCOMPARE(list().currentRow(), int(sky));
}

void FrmResourcesListTest::replaces_data() {
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("file");
    QTest::addColumn<bool>("done");
    QTest::newRow("a picture") << int(sky) << "unused.png" << true;
    QTest::newRow("by a video") << int(sky) << "clip.wmv" << true;
    QTest::newRow("a missing one") << int(gone) << "unused.png" << true;
    QTest::newRow("the dashboard's") << int(logo) << "unused.png" << true;
    QTest::newRow("by itself") << int(sky) << "sky.png" << false;
    QTest::newRow("cancelled") << int(sky) << "" << false;
}

void FrmResourcesListTest::replaces() {
    QFETCH(int, row);
    QFETCH(QString, file);
    QFETCH(bool, done);
    folder_.file("clip.wmv", "no video really");
    SkinDocument expected = document_;
    if (done) {
        replaceResourceFile(expected, row, path(qPrintable(file)));
    }
    open();
    clickRow(list(), row);
    if (!file.isEmpty()) {
        prompts_->fileChoices = {{inFolder(qPrintable(file))}};
    }
    click(at<QWidget>("cmdReplace"));
    QCOMPARE(prompts_->severals, QList<bool>{false});
    QCOMPARE(prompts_->lastOwner, dialog_.get());
    QCOMPARE(document_, expected);
    QCOMPARE(spoken(row).contains("missing"), false);
    if (done) {
        QCOMPARE(list().item(row)->toolTip(), inFolder(qPrintable(file)));
        QVERIFY(at<QLabel>("lblPreview").text().startsWith(file));
        QCOMPARE(at<QPushButton>("cmdLocate").isEnabled(), row != int(gone));
    }
    QVERIFY(list().hasFocus());
}

void FrmResourcesListTest::refusedFilesReplaceNothing() {
    const SkinDocument before = document_;
    open();
    clickRow(list(), sky);
    prompts_->fileChoices = {{picture("a\\b.png", Qt::red)}};
    click(at<QWidget>("cmdReplace"));
    QTRY_COMPARE(prompts_->messages.size(), 1);
    QCOMPARE(document_, before);
}

void FrmResourcesListTest::removes_data() {
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("question"); // "" for none
    QTest::addColumn<bool>("yes");
    const QString three = "3 elements use \"sky\". Remove them together with the resource?";
    const QString one = "1 element uses \"gone\". Remove it together with the resource?";
    QTest::newRow("unused") << int(unused) << "" << true;
    QTest::newRow("three, Yes") << int(sky) << three << true;
    QTest::newRow("three, No") << int(sky) << three << false;
    QTest::newRow("one, Yes") << int(gone) << one << true;
}

void FrmResourcesListTest::removes() {
    QFETCH(int, row);
    QFETCH(QString, question);
    QFETCH(bool, yes);
    SkinDocument expected = document_;
    if (yes) {
        removeResource(expected, row, true);
    }
    for (const bool byKey : {true, false}) {
        const SkinDocument before = document_;
        prompts_->questions.clear();
        prompts_->answers = {yes ? Prompts::Answer::Yes : Prompts::Answer::No};
        open();
        clickRow(list(), row);
        if (byKey) {
            press(Qt::Key_Delete);
        } else {
            click(at<QWidget>("cmdRemove"));
        }
        QCOMPARE(prompts_->questions, question.isEmpty() ? QStringList() : QStringList{question});
        QVERIFY(document_.holdsTheSame(expected));
        QCOMPARE(list().count(), yes ? 3 : 4);
        QVERIFY(list().hasFocus());
        QVERIFY(test::close(*dialog_));
        document_.showVersion(before, 1); // as undo does
    }
}

void FrmResourcesListTest::removingGoesOnWithTheNextRow() {
    open();
    clickRow(list(), gone);
    prompts_->answers = {Prompts::Answer::Yes, Prompts::Answer::Yes, Prompts::Answer::Yes};
    press(Qt::Key_Delete);
    QCOMPARE(rowTexts(list()), (QStringList{"sky", "logo", "unused"}));
    QVERIFY(list().item(2)->isSelected());
    QCOMPARE(at<QLabel>("lblPreview").text(), "unused.png, 60 x 40");
    QVERIFY(!at<QPushButton>("cmdLocate").isEnabled()); // nothing is missing any more
    press(Qt::Key_Delete);                              // the last row
    QCOMPARE(list().currentRow(), 1);
    press(Qt::Key_Delete);
    press(Qt::Key_Delete);
    QCOMPARE(list().count(), 0);
    QVERIFY(resources().empty());
    QCOMPARE(document_.rowCount(1), 0);
    QCOMPARE(at<QLabel>("lblPreview").text(), "");
    QVERIFY(!at<QPushButton>("cmdRemove").isEnabled());
    press(Qt::Key_Delete); // of nothing
    QVERIFY(list().hasFocus());
}

void FrmResourcesListTest::deleteWhileRenamingEditsTheName() {
    open();
    clickRow(list(), unused);
    press(Qt::Key_F2);
    press(Qt::Key_Home);
    press(Qt::Key_Delete);
    press(Qt::Key_End);
    press(Qt::Key_Delete); // has nothing to delete
    press(Qt::Key_Return);
    test::settle();
    QCOMPARE(rowTexts(list()).back(), "nused");
    QCOMPARE(resources().size(), 4U);
}

void FrmResourcesListTest::severalFilesAreAdded_data() {
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QStringList>("added");
    QTest::addColumn<QString>("message");
    QTest::newRow("free names") << QStringList{"a.png", "b.png"} << QStringList{"a", "b"} << "";
    QTest::newRow("taken") << QStringList{"a.png", "logo.png"} << QStringList{"a", "logo 2"} << "";
    QTest::newRow("of one name") << QStringList{"a.png", "a.jpg"} << QStringList{"a", "a 2"} << "";
    QTest::newRow("reserved") << QStringList{"bground.png", "a.png"}
                              << QStringList{"bground 2", "a"} << "";
    QTest::newRow("one is there") << QStringList{"sky.png", "a.png"} << QStringList{"a"}
                                  << "Files that the skin has already: 1 of 2.";
    QTest::newRow("all are there") << QStringList{"sky.png", "unused.png"} << QStringList()
                                   << "Files that the skin has already: 2 of 2.";
    QTest::newRow("one cannot be")
        << QStringList{"a.png", "x\\y.png"} << QStringList{"a"}
        << "The path of a skin's file cannot hold a backslash: " + inFolder("x\\y.png");
}

void FrmResourcesListTest::severalFilesAreAdded() {
    QFETCH(QStringList, files);
    QFETCH(QStringList, added);
    QFETCH(QString, message);
    open();
    QStringList chosen;
    for (const QString& file : files) {
        chosen << picture(qPrintable(file), Qt::green);
    }
    prompts_->fileChoices = {chosen};
    click(at<QWidget>("cmdBrowse"));
    QTRY_COMPARE(prompts_->messages, message.isEmpty() ? QStringList() : QStringList{message});
    QCOMPARE(rowTexts(list()), (QStringList{"sky", "logo", "gone", "unused"} + added));
    QCOMPARE(qsizetype(resources().size()), 4 + added.size());
    QCOMPARE(at<QLabel>("lblFile").text(), "");
    QCOMPARE(at<QLineEdit>("txtRes").text(), "");
    if (!added.isEmpty()) {
        QCOMPARE(qtText(resources().back().name), added.back());
        QVERIFY(list().item(list().count() - 1)->isSelected());
        QVERIFY(at<QPushButton>("cmdOK").hasFocus());
    }
    QVERIFY(dialog_->isVisible());
}

void FrmResourcesListTest::addingSeveralKeepsWhatIsFilledIn() {
    open();
    dialog_->takeFile(picture("mine.png", Qt::red));
    prompts_->fileChoices = {{picture("a.png", Qt::red), picture("b.png", Qt::red)}};
    click(at<QWidget>("cmdBrowse"));
    QCOMPARE(resources().size(), 6U);
    QCOMPARE(at<QLabel>("lblFile").text(), inFolder("mine.png"));
    QCOMPARE(at<QLineEdit>("txtRes").text(), "mine");
    press(Qt::Key_Return); // never closes over it
    QVERIFY(dialog_->isVisible());
    QCOMPARE(resources().size(), 7U);
    QCOMPARE(resources().back().name, "mine");
}

void FrmResourcesListTest::aFileThatWentBeforeItWasAddedIsMissing() {
    open();
    dialog_->takeFile(picture("brief.png", Qt::red));
    QVERIFY(QFile::remove(inFolder("brief.png")));
    click(at<QWidget>("cmdAdd"));
    QCOMPARE(spoken(4), "brief, file missing, unused");
    prompts_->fileChoices = {{inFolder("sky.png")}};
    click(at<QWidget>("cmdReplace"));
    QCOMPARE(spoken(4), "brief, unused");
}

void FrmResourcesListTest::opensAnewAfterAChangeIsTakenBack() {
    const SkinDocument before = document_;
    open();
    prompts_->fileChoices = {{picture("a.png", Qt::red), picture("b.png", Qt::red)}};
    click(at<QWidget>("cmdBrowse"));
    typeName(sky, "night");
    press(Qt::Key_Return);
    test::settle();
    const SkinDocument after = document_;
    QCOMPARE(rowTexts(list()), (QStringList{"night", "logo", "gone", "unused", "a", "b"}));
    QVERIFY(test::close(*dialog_));
    document_.showVersion(before, 1);
    open();
    QCOMPARE(rowTexts(list()), (QStringList{"sky", "logo", "gone", "unused"}));
    QCOMPARE(spoken(sky), "sky, 3 uses");
    QVERIFY(list().selectedItems().isEmpty());
    QVERIFY(!at<QPushButton>("cmdRemove").isEnabled());
    QVERIFY(test::close(*dialog_));
    document_.showVersion(after, 1);
    open();
    QCOMPARE(spoken(sky), "night, 3 uses");
    QCOMPARE(list().count(), 6);
}

void FrmResourcesListTest::worksByKeysAlone() {
    open();
    list().setFocus();
    press(Qt::Key_Down);
    QStringList visited;
    for (int i = 0; i < 5; ++i) {
        press(Qt::Key_Tab);
        visited << dialog_->focusWidget()->objectName();
    }
    QCOMPARE(visited, (QStringList{"cmdRename", "cmdReplace", "cmdRemove", "cmdLocate", "cmdOK"}));
    at<QWidget>("cmdRemove").setFocus();
    prompts_->answers = {Prompts::Answer::No};
    press(Qt::Key_Return);
    QCOMPARE(prompts_->questions.size(), 1);
    QVERIFY(list().hasFocus());
    press(Qt::Key_Return); // asks and removes no more
    QVERIFY(!dialog_->isVisible());
    QCOMPARE(prompts_->questions.size(), 1);
}

void FrmResourcesListTest::staysUsableWithVeryManyResources() {
    constexpr int many = 80'000;
    document_.editSettings([&](SkinSettings& settings) {
        for (int i = 0; i < many; ++i) {
            const std::string name = "picture " + std::to_string(i);
            settings.resources.push_back({name, path("there/") + name + ".png"});
        }
    });
    QElapsedTimer clock;
    clock.start();
    open();
    const qint64 opened = clock.restart();
    list().scrollToBottom();
    test::settle();
    QCOMPARE(spoken(many + 3), "picture 79999, file missing, unused");
    clickRow(list(), many / 2);
    const qint64 scrolled = clock.restart();
    press(Qt::Key_Delete);
    test::settle();
    const qint64 removed = clock.restart();
    QCOMPARE(list().count(), many + 3);
    typeName(many / 2, "renamed");
    press(Qt::Key_Return);
    test::settle();
    const qint64 renamed = clock.restart();
    QCOMPARE(list().item(many / 2)->text(), "renamed");
    QTRY_VERIFY_WITH_TIMEOUT(dialog_->findChild<ResourceThumbnails*>()->isDone(), 20'000);
    const qint64 pictured = clock.restart();
    qInfo("opened %lld, scrolled %lld, removed %lld, renamed %lld, thumbnails %lld ms", opened,
          scrolled, removed, renamed, pictured);
    // A walk over all rows for each row takes minutes.
    QVERIFY(opened + scrolled + removed + renamed < 20'000);
}

} // namespace tarvel

TARVEL_UI_TEST(tarvel::FrmResourcesListTest)
#include "frm_resources_list_test.moc"
