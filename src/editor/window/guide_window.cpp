// Puts contents, text and search together.
#include "window/guide_window.h"

#include "widgets/accessible_roles.h"
#include "widgets/control_names.h"
#include "window/guide_view.h"
#include "window/window_place.h"

#include <QFile>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSplitter>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

#include <utility>

namespace tarvel {

namespace {

constexpr auto docs = ":/tarvel/docs/";
constexpr int zoomStep = 10; // percent

} // namespace

QString GuideWindow::guideText() {
    QFile file(QLatin1String(docs) + QLatin1String("user-guide.md"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

GuideWindow::GuideWindow(std::function<void(const QUrl&)> open, QWidget* parent)
    : QDialog(parent)
    , txtGuide_(named(new GuideView(guideText(), QLatin1String(docs)), QStringLiteral("txtGuide"),
                      tr("User guide")))
    , lstContents_(named(new QTreeWidget, QStringLiteral("lstContents"), tr("Contents")))
    , txtFind_(named(new QLineEdit, QStringLiteral("txtFind"), tr("Find in the guide")))
    , cmdPrevious_(named(new QPushButton(tr("Previous")), QStringLiteral("cmdPrevious")))
    , cmdNext_(named(new QPushButton(tr("Next")), QStringLiteral("cmdNext")))
    , lblFound_(new QLabel) {
    setObjectName(QStringLiteral("frmGuide"));
    setWindowTitle(tr("User Guide"));
    setWindowFlags(Qt::Window);
    setAttribute(Qt::WA_QuitOnClose, false);
    auto* parts = new QSplitter;
    parts->addWidget(lstContents_);
    parts->addWidget(txtGuide_);
    parts->setStretchFactor(1, 1);
    parts->setChildrenCollapsible(false);
    beHandle(*parts->handle(1)); // before its name is told
    named(parts->handle(1), QStringLiteral("handle"), tr("Width of the contents"));
    auto* column = new QVBoxLayout(this);
    column->addLayout(makeSearch());
    column->addWidget(parts, 1);
    placeWithin(*this, {960, 680});
    parts->setSizes({230, 730});
    fillContents();
    addKeys();
    connect(txtGuide_, &GuideView::linkChosen, this, std::move(open));
    connect(txtGuide_, &GuideView::scrolled, this, &GuideWindow::followView);
    connect(lstContents_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
        if (item != nullptr) {
            txtGuide_->showHeading(item->data(0, Qt::UserRole).toString());
        }
    });
    followView();
    txtGuide_->setFocus();
}

QLayout* GuideWindow::makeSearch() {
    txtFind_->setPlaceholderText(tr("Find in the guide (Ctrl+F)"));
    txtFind_->setClearButtonEnabled(true);
    lblFound_->setObjectName(QStringLiteral("lblFound"));
    lblFound_->setMinimumWidth(
        fontMetrics().horizontalAdvance(QStringLiteral("Not found in the guide")));
    auto* row = new QHBoxLayout;
    row->addWidget(txtFind_, 1);
    row->addWidget(cmdPrevious_);
    row->addWidget(cmdNext_);
    row->addWidget(lblFound_);
    for (QPushButton* button : {cmdPrevious_, cmdNext_}) {
        button->setAutoDefault(false); // Return is the text box's
    }
    connect(txtFind_, &QLineEdit::textChanged, this, [this](const QString& text) {
        txtGuide_->search(text);
        showFound();
    });
    connect(cmdNext_, &QPushButton::clicked, this, [this] { find(1); });
    connect(cmdPrevious_, &QPushButton::clicked, this, [this] { find(-1); });
    showFound();
    return row;
}

void GuideWindow::addKeys() {
    const auto on = [this](const QKeySequence& keys, auto&& work) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, work);
    };
    on(Qt::CTRL | Qt::Key_F, [this] {
        txtFind_->setFocus();
        txtFind_->selectAll();
    });
    on(Qt::Key_F3, [this] { find(1); });
    on(Qt::SHIFT | Qt::Key_F3, [this] { find(-1); });
    connect(txtFind_, &QLineEdit::returnPressed, this, [this] { find(1); });
    for (const auto key : {Qt::Key_Plus, Qt::Key_Equal}) {
        on(Qt::CTRL | key, [this] { txtGuide_->setZoom(txtGuide_->zoom() + zoomStep); });
    }
    on(Qt::CTRL | Qt::Key_Minus, [this] { txtGuide_->setZoom(txtGuide_->zoom() - zoomStep); });
    on(Qt::CTRL | Qt::Key_0, [this] { txtGuide_->setZoom(100); });
}

void GuideWindow::fillContents() {
    lstContents_->setHeaderHidden(true);
    lstContents_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    QTreeWidgetItem* chapter = nullptr;
    for (const GuideView::Heading& heading : txtGuide_->headings()) {
        if (heading.level == 1) {
            continue;
        }
        const bool isChapter = heading.level == 2 || chapter == nullptr;
        auto* item = new QTreeWidgetItem(QStringList(heading.text));
        item->setData(0, Qt::UserRole, heading.anchor);
        item->setToolTip(0, heading.text); // where the column is narrow
        if (isChapter) {
            lstContents_->addTopLevelItem(item);
            chapter = item;
        } else {
            chapter->addChild(item);
        }
    }
    lstContents_->collapseAll();
}

void GuideWindow::followView() {
    const int at = txtGuide_->shownHeading();
    // A chapter chosen near the end cannot come to the top, and stays the chosen one.
    if (at >= 0 && !lstContents_->hasFocus()) {
        markChapter(txtGuide_->headings()[static_cast<std::size_t>(at)].anchor);
    }
}

void GuideWindow::markChapter(const QString& anchor) {
    const QSignalBlocker quiet(lstContents_);
    for (QTreeWidgetItemIterator item(lstContents_); *item != nullptr; ++item) {
        if ((*item)->data(0, Qt::UserRole).toString() == anchor) {
            lstContents_->setCurrentItem(*item);
        }
    }
}

bool GuideWindow::showChapter(const QString& anchor) {
    const bool isThere = txtGuide_->showHeading(anchor);
    if (isThere) {
        markChapter(anchor);
    }
    return isThere;
}

void GuideWindow::find(int step) {
    txtGuide_->showMatch(step);
    showFound();
}

void GuideWindow::showFound() {
    const int found = txtGuide_->matches();
    cmdNext_->setEnabled(found > 0);
    cmdPrevious_->setEnabled(found > 0);
    if (txtFind_->text().isEmpty()) {
        lblFound_->clear();
    } else if (found == 0) {
        lblFound_->setText(tr("Not found in the guide"));
    } else {
        lblFound_->setText(tr("%1 of %2").arg(txtGuide_->shownMatch()).arg(found));
    }
}

} // namespace tarvel
