// Lays the guide out by Qt's Markdown, and adds what that lacks: anchors, fitting pictures, room.
#include "window/guide_view.h"

#include "widgets/style/palettes.h"

#include <QAbstractTextDocumentLayout>
#include <QFile>
#include <QPalette>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocumentFragment>
#include <QTextTable>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <utility>

namespace tarvel {

namespace {

constexpr int zoomStep = 10;    // percent
constexpr int textMargin = 20;  // pixels
constexpr int firstColumn = 30; // percent of a table's width

// As the places that show such texts on the web make them.
QString anchorOf(const QString& heading) {
    QString anchor;
    for (const QChar each : heading.toLower()) {
        if (each.isLetterOrNumber() || each == QLatin1Char('-') || each == QLatin1Char('_')) {
            anchor += each;
        } else if (each.isSpace()) {
            anchor += QLatin1Char('-');
        }
    }
    return anchor;
}

bool isDark(const QPalette& palette) {
    return shadeOf(palette) == Shade::dark;
}

QColor foundGround(const QPalette& palette) {
    return isDark(palette) ? QColor(104, 84, 0) : QColor(255, 232, 130);
}

} // namespace

GuideView::GuideView(QString markdown, QString folder, QWidget* parent)
    : QTextBrowser(parent)
    , markdown_(std::move(markdown))
    , folder_(std::move(folder))
    , plainSize_(font().pointSizeF()) {
    setOpenLinks(false);
    setUndoRedoEnabled(false);
    setTextInteractionFlags(Qt::TextBrowserInteraction | Qt::TextSelectableByKeyboard);
    setCursorWidth(0); // nothing can be typed
    connect(this, &QTextBrowser::anchorClicked, this, &GuideView::followLink);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, &GuideView::scrolled);
    render();
}

void GuideView::render() {
    const QScopedValueRollback rendering(rendering_, true);
    const int at = headings_.empty() ? -1 : shownHeading();
    document()->setDocumentMargin(textMargin);
    setMarkdown(markdown_);
    noteHeadings();
    styleText();
    fitPictures();
    if (at >= 0) {
        scrollTo(headings_[static_cast<std::size_t>(at)].block);
    }
    search(searched_);
}

void GuideView::noteHeadings() {
    headings_.clear();
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        if (const int level = block.blockFormat().headingLevel(); level > 0) {
            headings_.push_back({block.text(), anchorOf(block.text()), level, block.blockNumber()});
        }
    }
}

// Qt leaves no room above headings and in tables.
void GuideView::styleText() {
    QTextCursor cursor(document());
    cursor.beginEditBlock();
    for (const Heading& heading : headings_) {
        cursor.setPosition(document()->findBlockByNumber(heading.block).position());
        QTextBlockFormat room;
        room.setTopMargin(heading.level == 1 ? 4 : heading.level == 2 ? 26 : 16);
        room.setBottomMargin(6);
        cursor.mergeBlockFormat(room);
    }
    for (QTextFrame* frame : document()->rootFrame()->childFrames()) {
        if (auto* table = qobject_cast<QTextTable*>(frame)) {
            QTextTableFormat format = table->format();
            format.setCellPadding(5);
            format.setCellSpacing(0);
            format.setBorder(1);
            format.setBorderCollapse(true);
            format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
            format.setBorderBrush(palette().color(QPalette::Mid));
            format.setWidth(QTextLength(QTextLength::PercentageLength, 100));
            if (table->columns() == 2) {
                format.setColumnWidthConstraints(
                    {QTextLength(QTextLength::PercentageLength, firstColumn),
                     QTextLength(QTextLength::PercentageLength, 100 - firstColumn)});
            }
            table->setFormat(format);
        }
    }
    cursor.endEditBlock();
}

QVariant GuideView::loadResource(int type, const QUrl& name) {
    return type == QTextDocument::ImageResource ? pictureOf(name.path()) : QVariant();
}

// On dark ground the one from the folder of dark pictures beside it, where there is one.
QPixmap GuideView::pictureOf(const QString& name) {
    QString file = folder_ + name;
    const auto slash = file.lastIndexOf(QLatin1Char('/')) + 1;
    const QString dark = file.left(slash) + QStringLiteral("dark/") + file.mid(slash);
    if (isDark(palette()) && QFile::exists(dark)) {
        file = dark;
    }
    if (!pictures_.contains(file)) {
        pictures_.insert(file, QPixmap(file));
    }
    return pictures_.value(file);
}

void GuideView::fitPictures() {
    const int room = std::max(1, viewport()->width() - 2 * textMargin);
    struct Picture {
        int position;
        QTextImageFormat format;
    };
    std::vector<Picture> pictures;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        for (auto at = block.begin(); !at.atEnd(); ++at) {
            const QTextImageFormat format = at.fragment().charFormat().toImageFormat();
            if (format.isValid()) {
                pictures.push_back({at.fragment().position(), format});
            }
        }
    }
    QTextCursor cursor(document());
    cursor.beginEditBlock();
    for (Picture& picture : pictures) {
        const QString name = picture.format.name();
        const QPixmap whole = pictureOf(name);
        const int width = std::max(1, std::min(whole.width(), room));
        if (whole.isNull() || qRound(picture.format.width()) == width) {
            continue;
        }
        // Qt would draw it smaller without smoothing it.
        QPixmap fitting =
            whole.scaledToWidth(qRound(width * devicePixelRatioF()), Qt::SmoothTransformation);
        fitting.setDevicePixelRatio(devicePixelRatioF());
        document()->addResource(QTextDocument::ImageResource, QUrl(name), fitting);
        picture.format.setWidth(width);
        cursor.setPosition(picture.position);
        cursor.setPosition(picture.position + 1, QTextCursor::KeepAnchor);
        cursor.setCharFormat(picture.format);
    }
    cursor.endEditBlock();
    layOutWhole();
}

// Laid out piece by piece, as it comes into sight, the text between tables would be left out.
void GuideView::layOutWhole() {
    document()->markContentsDirty(0, document()->characterCount());
    (void)document()->size();
}

void GuideView::resizeEvent(QResizeEvent* event) {
    const int at = shownHeading();
    QTextBrowser::resizeEvent(event);
    fitPictures();
    if (at >= 0 && event->oldSize().width() != event->size().width() &&
        verticalScrollBar()->value() > 0) {
        scrollTo(headings_[static_cast<std::size_t>(at)].block);
    }
}

void GuideView::changeEvent(QEvent* event) {
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && !rendering_) {
        render(); // links keep the colour that they had when they were laid out
    }
}

void GuideView::wheelEvent(QWheelEvent* event) {
    if (!event->modifiers().testFlag(Qt::ControlModifier)) {
        QTextBrowser::wheelEvent(event);
        return;
    }
    const int turned = event->angleDelta().y();
    setZoom(zoom_ + (turned > 0 ? zoomStep : turned < 0 ? -zoomStep : 0));
    event->accept();
}

void GuideView::setZoom(int percent) {
    zoom_ = std::clamp(percent, smallestZoom, largestZoom);
    const int at = shownHeading();
    QFont larger = font();
    larger.setPointSizeF(plainSize_ * zoom_ / 100);
    setFont(larger);
    layOutWhole();
    if (at >= 0) {
        scrollTo(headings_[static_cast<std::size_t>(at)].block);
    }
}

int GuideView::shownHeading() const {
    const int top = cursorForPosition({textMargin, textMargin}).block().blockNumber();
    const auto after = std::find_if(headings_.begin(), headings_.end(),
                                    [&](const Heading& heading) { return heading.block > top; });
    return static_cast<int>(after - headings_.begin()) - 1;
}

bool GuideView::showHeading(const QString& anchor) {
    const auto found =
        std::find_if(headings_.begin(), headings_.end(),
                     [&](const Heading& heading) { return heading.anchor == anchor; });
    if (found == headings_.end()) {
        return false;
    }
    scrollTo(found->block);
    return true;
}

// The cursor goes along, for screen readers and for the next search.
void GuideView::scrollTo(int block) {
    const QTextBlock target = document()->findBlockByNumber(block);
    setTextCursor(QTextCursor(target));
    const double top = document()->documentLayout()->blockBoundingRect(target).top();
    verticalScrollBar()->setValue(static_cast<int>(std::floor(top)) - 2);
    emit scrolled();
}

void GuideView::followLink(const QUrl& link) {
    if (link.scheme().isEmpty() && link.path().isEmpty()) {
        showHeading(link.fragment());
    } else {
        emit linkChosen(link);
    }
}

void GuideView::search(const QString& text) {
    searched_ = text;
    matches_.clear();
    shownMatch_ = -1;
    const int from = textCursor().selectionStart();
    QTextCursor found = text.isEmpty() ? QTextCursor() : document()->find(text, 0);
    while (!found.isNull()) {
        if (shownMatch_ < 0 && found.selectionStart() >= from) {
            shownMatch_ = matches();
        }
        matches_.push_back(found);
        found = document()->find(text, found);
    }
    if (matches_.empty()) {
        QTextCursor plain = textCursor();
        plain.setPosition(from);
        setTextCursor(plain);
    } else if (!rendering_) {
        shownMatch_ = std::max(shownMatch_, 0);
        goToMatch();
    }
    markMatches();
}

void GuideView::showMatch(int step) {
    if (!matches_.empty()) {
        shownMatch_ = (shownMatch_ + step + matches()) % matches();
        goToMatch();
        markMatches();
    }
}

// Somewhat above the middle, with what stands around it.
void GuideView::goToMatch() {
    setTextCursor(matches_[static_cast<std::size_t>(shownMatch_)]);
    const QRect place = cursorRect();
    const int height = viewport()->height();
    if (place.top() < height / 8 || place.bottom() > height * 3 / 4) {
        verticalScrollBar()->setValue(verticalScrollBar()->value() + place.top() - height / 3);
    }
}

void GuideView::markMatches() {
    QList<ExtraSelection> marks;
    for (std::size_t i = 0; i < matches_.size(); ++i) {
        const bool isShown = static_cast<int>(i) == shownMatch_;
        ExtraSelection mark;
        mark.cursor = matches_[i];
        mark.format.setBackground(isShown ? palette().color(QPalette::Active, QPalette::Highlight)
                                          : foundGround(palette()));
        mark.format.setForeground(palette().color(
            QPalette::Active, isShown ? QPalette::HighlightedText : QPalette::Text));
        marks << mark;
    }
    setExtraSelections(marks);
}

} // namespace tarvel
