// Fills the list of findings, and leads from a finding to its element.
#include "window/check_window.h"

#include "widgets/control_names.h"
#include "widgets/empty_hint.h"
#include "widgets/icons.h"
#include "widgets/qt_text.h"
#include "widgets/wait_cursor.h"
#include "window/window_place.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace tarvel {

namespace {

const QIcon& iconOf(Severity severity) {
    static const QIcon error = icon(IconName::error);
    static const QIcon warning = icon(IconName::warning);
    static const QIcon note = icon(IconName::note);
    return severity == Severity::error ? error : severity == Severity::note ? note : warning;
}

} // namespace

CheckWindow::CheckWindow(const SkinDocument& document, std::function<QString()> folder,
                         QWidget* parent)
    : QDialog(parent)
    , document_(document)
    , folder_(std::move(folder))
    , lblResult_(new QLabel)
    , lblStale_(new QLabel(tr("The skin has changed since this check.")))
    , lstFindings_(named(new QListWidget, QStringLiteral("lstFindings"), tr("Findings")))
    , hint_(new EmptyHint(*lstFindings_, {}))
    , watch_(document.watch(*this)) {
    setObjectName(QStringLiteral("frmCheck"));
    setWindowTitle(tr("Check"));
    lblResult_->setObjectName(QStringLiteral("lblResult"));
    lblStale_->setObjectName(QStringLiteral("lblStale"));
    lblStale_->setVisible(false);
    lstFindings_->setUniformItemSizes(true); // there may be thousands
    auto* cmdAgain = named(new QPushButton(tr("Check Again")), QStringLiteral("cmdCheckAgain"));
    cmdAgain->setAutoDefault(false); // Return is the list's
    cmdAgain->setToolTip(tr("Look at the skin as it is now"));
    lstFindings_->setToolTip(tr("A click, or Return, selects the element that the finding is "
                                "about"));
    lstFindings_->setIconSize({smallIcon, smallIcon});
    auto* bottom = new QHBoxLayout;
    bottom->addWidget(lblStale_, 1);
    bottom->addWidget(cmdAgain, 0, Qt::AlignRight);
    auto* column = new QVBoxLayout(this);
    column->addWidget(lblResult_);
    column->addWidget(lstFindings_, 1);
    column->addLayout(bottom);
    placeWithin(*this, {640, 320});

    connect(cmdAgain, &QPushButton::clicked, this, &CheckWindow::check);
    connect(lstFindings_, &QListWidget::itemClicked, this,
            [this](QListWidgetItem* item) { choose(lstFindings_->row(item)); });
    connect(lstFindings_, &QListWidget::itemActivated, this,
            [this](QListWidgetItem* item) { choose(lstFindings_->row(item)); });
}

void CheckWindow::check() {
    const WaitCursor waiting;
    findings_ = checkDocument(document_, hostPathOf(folder_()));
    lstFindings_->clear();
    for (const Finding& finding : findings_) {
        auto* item = new QListWidgetItem(qtText(finding.text), lstFindings_);
        item->setToolTip(plainToolTip(item->text()));
        item->setIcon(iconOf(finding.severity));
    }
    hint_->setWords(tr("Nothing to mend.\nCheck again when you have changed the skin."));
    lblResult_->setText(findings_.empty() ? tr("Nothing found.")
                                          : tr("Click a finding to see the element."));
    lblStale_->setVisible(false);
}

void CheckWindow::documentChanged(const DocumentChange& change) {
    if (change.what == DocumentChange::What::currentLayout) {
        return;
    }
    if (change.what == DocumentChange::What::everything) {
        findings_.clear(); // the ids may be those of other elements
        lstFindings_->clear();
        hint_->setWords(tr("Another skin is open.\nChoose \"Check Again\" to look at it."));
        lblResult_->clear();
    }
    lblStale_->setVisible(true);
}

void CheckWindow::choose(int row) {
    if (row >= 0 && row < static_cast<int>(findings_.size())) {
        const Finding finding = findings_[static_cast<std::size_t>(row)]; // the list may go
        emit chosen(finding);
    }
}

} // namespace tarvel
