// Chooses among the forms that the clipboard offers, the richest first.
#include "window/clipboard_commands.h"

#include "document/open_edit.h"
#include "editing/paste.h"
#include "editing/select_rules.h"
#include "editing/stacking.h"
#include "editing/step_names.h"
#include "files/host_files.h"
#include "widgets/qt_text.h"
#include "widgets/shown_path.h"
#include "widgets/wait_cursor.h"
#include "window/foreign_content.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QTextEdit>

#include <algorithm>
#include <memory>

namespace tarvel {

namespace {

QString formatName() {
    return QString::fromLatin1(clipboardFormat.data(),
                               static_cast<qsizetype>(clipboardFormat.size()));
}

std::string_view viewOf(const QByteArray& bytes) {
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

bool isTextField(const QObject& widget) {
    return qobject_cast<const QLineEdit*>(&widget) != nullptr ||
           qobject_cast<const QTextEdit*>(&widget) != nullptr ||
           qobject_cast<const QPlainTextEdit*>(&widget) != nullptr;
}

// As stepName() of elements that are no document's yet.
std::string nameOfStep(std::string_view what, const std::vector<Element>& elements) {
    return elements.size() == 1
               ? stepName(what, elements.front())
               : std::string(what) + ' ' + std::to_string(elements.size()) + " elements";
}

// The rows that are selected and not locked.
std::vector<int> rowsToCut(const SkinDocument& document, const Selection& selection) {
    std::vector<int> rows = selection.rows();
    std::erase_if(rows, [&](int row) {
        return document.element(document.itemData(document.currentLayout(), row)).elementLocked;
    });
    return rows;
}

std::vector<int> idsOf(const SkinDocument& document, const std::vector<int>& rows) {
    std::vector<int> ids(rows.size());
    std::transform(rows.begin(), rows.end(), ids.begin(),
                   [&](int row) { return document.itemData(document.currentLayout(), row); });
    return ids;
}

} // namespace

ClipboardCommands::ClipboardCommands(const Parts& parts)
    : parts_(parts)
    , watch_(parts.document, parts.selection, parts.gate, [this] { refresh(); }) {
    const Entries& entries = parts_.entries;
    connect(&entries.cut, &QAction::triggered, this, &ClipboardCommands::cut);
    connect(&entries.copy, &QAction::triggered, this, &ClipboardCommands::copy);
    connect(&entries.paste, &QAction::triggered, this, &ClipboardCommands::paste);
    connect(&entries.duplicate, &QAction::triggered, this, &ClipboardCommands::duplicate);
    connect(&entries.selectAll, &QAction::triggered, this, &ClipboardCommands::selectAll);
    QGuiApplication::instance()->installEventFilter(this);
    refresh();
}

// Whoever types expects no element to be made, and the field's text to stay.
bool ClipboardCommands::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride && isTextField(*watched)) {
        const QKeySequence keys(static_cast<QKeyEvent*>(event)->keyCombination());
        if (keys == parts_.entries.duplicate.shortcut()) {
            event->accept();
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

// Paste is always worth a try: not every platform tells when the clipboard changes.
void ClipboardCommands::refresh() {
    const SkinDocument& document = parts_.document;
    const std::vector<int>& ids = parts_.selection.ids();
    const bool mayWork = watch_.mayWork();
    const bool isAnySelected = mayWork && !ids.empty();
    const bool isAnyUnlocked = mayWork && std::any_of(ids.begin(), ids.end(), [&](int id) {
                                   return !document.element(id).elementLocked;
                               });
    const int screen = document.currentLayout();
    parts_.entries.cut.setEnabled(isAnyUnlocked);
    parts_.entries.copy.setEnabled(isAnySelected);
    parts_.entries.paste.setEnabled(mayWork);
    parts_.entries.duplicate.setEnabled(isAnySelected);
    parts_.entries.deleteSelected.setEnabled(isAnySelected);
    parts_.entries.selectAll.setEnabled(mayWork &&
                                        document.rowCount(screen) > document.lockCount(screen));
}

void ClipboardCommands::offer(const ClipboardContent& content) {
    const std::string bytes = clipboardBytes(content);
    auto data = std::make_unique<QMimeData>();
    pasted_ = {.content = QByteArray(bytes.data(), static_cast<qsizetype>(bytes.size()))};
    pasted_.times.at(static_cast<std::size_t>(parts_.document.currentLayout())) = 1;
    data->setData(formatName(), pasted_.content);
    data->setText(qtText(clipboardText(content)));
    QGuiApplication::clipboard()->setMimeData(data.release()); // which it owns from now on
}

void ClipboardCommands::copy() {
    const std::vector<int>& ids = parts_.selection.ids();
    offer(copyElements(parts_.document, ids));
    emit told(qtText(stepName("Copied", parts_.document, ids)));
}

void ClipboardCommands::cut() {
    const std::vector<int> rows = rowsToCut(parts_.document, parts_.selection);
    const std::vector<int> ids = idsOf(parts_.document, rows);
    offer(copyElements(parts_.document, ids));
    const OpenEdit edit(parts_.document, stepName(step::cut, parts_.document, ids));
    parts_.selection.clear();
    deleteRows(parts_.document, rows);
}

void ClipboardCommands::duplicate() {
    const std::vector<int> ids = parts_.selection.ids();
    const OpenEdit edit(parts_.document, stepName(step::duplicate, parts_.document, ids));
    parts_.selection.selectIds(pasteElements(parts_.document, copyElements(parts_.document, ids),
                                             {pasteShift, pasteShift}));
}

void ClipboardCommands::selectAll() {
    parts_.selection.selectIds(idsOf(parts_.document, unlockedRows(parts_.document)));
}

void ClipboardCommands::paste() {
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    try {
        const WaitCursor waiting;
        if (data == nullptr || !(pasteElementBytes(*data) || pasteElementText(*data) ||
                                 pasteFile(*data) || pastePicture(*data) || pasteText(*data))) {
            emit told(tr("The clipboard holds nothing that could be pasted."));
        }
    } catch (const FileError& error) { // nothing was changed yet
        emit told(tr("Nothing was pasted: %1").arg(qtText(error.what())));
    }
}

bool ClipboardCommands::pasteElementBytes(const QMimeData& data) {
    const QByteArray bytes = data.data(formatName());
    if (bytes.isEmpty()) {
        return false;
    }
    try {
        const ClipboardContent content = readClipboardBytes(viewOf(bytes));
        put(content, bytes);
        return !content.elements.empty();
    } catch (const SealedBytesError&) {
        return false; // there may be a text beside it
    }
}

bool ClipboardCommands::pasteElementText(const QMimeData& data) {
    if (!data.hasText()) {
        return false;
    }
    const QByteArray text = data.text().toUtf8();
    const auto content = readClipboardText(viewOf(text), hostPathOf(parts_.skinFolder()));
    if (content) {
        put(*content, text);
    }
    return content.has_value();
}

// The dialog opens when all this is over: it may lie open for long.
bool ClipboardCommands::pasteFile(const QMimeData& data) {
    const QList<QUrl> urls = data.urls();
    if (std::none_of(urls.begin(), urls.end(), [](const QUrl& url) { return url.isLocalFile(); })) {
        return false;
    }
    QString problem = tr("there is no file on the clipboard that could be read.");
    const QStringList files = draggedFiles(data);
    for (const QString& file : files) {
        const std::string refusal = fileProblem(hostPathOf(file));
        if (refusal.empty()) {
            QMetaObject::invokeMethod(
                this, [this, file] { emit filePasted(file); }, Qt::QueuedConnection);
            return true;
        }
        problem = qtText(refusal);
    }
    emit told(tr("Nothing was pasted: %1").arg(problem));
    return true;
}

bool ClipboardCommands::pastePicture(const QMimeData& data) {
    const auto picture = data.hasImage() ? qvariant_cast<QImage>(data.imageData()) : QImage();
    if (picture.isNull()) {
        return false;
    }
    const ClipboardContent content = pictureContent(picture, pastedPictures(), parts_.pictures);
    put(content, QByteArray::fromStdString(content.resources.front().content));
    return true;
}

bool ClipboardCommands::pasteText(const QMimeData& data) {
    const QString text = data.text();
    const auto content = textContent(text, parts_.panelValues(), parts_.pictures);
    if (content) {
        put(*content, text.toUtf8());
    } else if (text.size() > longestPastedText) {
        emit told(tr("Nothing was pasted: the text is too long for an element."));
        return true;
    }
    return content.has_value();
}

void ClipboardCommands::put(const ClipboardContent& content, const QByteArray& source) {
    if (content.elements.empty()) {
        return;
    }
    const SkinPoint shift = nextShift(source);
    const OpenEdit edit(parts_.document, nameOfStep(step::paste, content.elements));
    parts_.selection.selectIds(pasteElements(parts_.document, content, shift));
}

// Onto a screen that has the content already, be it what was copied, it goes beside that.
SkinPoint ClipboardCommands::nextShift(const QByteArray& source) {
    if (pasted_.content != source) {
        pasted_ = {.content = source};
    }
    int& times = pasted_.times.at(static_cast<std::size_t>(parts_.document.currentLayout()));
    const float shift = pasteShift * static_cast<float>(times++);
    return {shift, shift};
}

} // namespace tarvel
