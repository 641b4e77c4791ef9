// Keeps the labels of the status line in line with the document and its folder.
#include "window/skin_status.h"

#include "widgets/path_label.h"
#include "widgets/qt_text.h"

#include <QDir>
#include <QEvent>
#include <QLabel>
#include <QStatusBar>

namespace tarvel {

namespace {

// As wide as its text where there is room, and as high as its neighbours, for one line of letters.
class SkinLabel : public PathLabel {
  public:
    SkinLabel() { setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred); }

    [[nodiscard]] QSize sizeHint() const override {
        return {fontMetrics().horizontalAdvance(text()) + 1, fontMetrics().height()};
    }
    [[nodiscard]] QSize minimumSizeHint() const override {
        return sizeHint().boundedTo(PathLabel::minimumSizeHint());
    }
};

} // namespace

SkinStatus::SkinStatus(const SkinDocument& document, QStatusBar& line)
    : document_(document)
    , line_(line)
    , lblSkin_(new SkinLabel)
    , lblUnsaved_(new QLabel)
    , watch_(document.watch(*this)) {
    lblSkin_->setObjectName(QStringLiteral("lblSkin"));
    lblSkin_->setAccessibleDescription(tr("Skin and its folder")); // its text is its name
    lblUnsaved_->setObjectName(QStringLiteral("lblUnsaved"));
    line.addPermanentWidget(lblSkin_);
    line.addPermanentWidget(lblUnsaved_);
    line.installEventFilter(this);
    showSkin();
}

void SkinStatus::setFolder(const QString& folder) {
    folder_ = folder.isEmpty() ? QString() : QDir::toNativeSeparators(QDir::cleanPath(folder));
    showSkin();
}

void SkinStatus::setUnsaved(bool unsaved) {
    lblUnsaved_->setText(unsaved ? tr("Unsaved changes") : QString());
}

bool SkinStatus::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &line_ && event->type() == QEvent::Resize) {
        lblSkin_->setMaximumWidth(line_.width() / 2);
    }
    return QObject::eventFilter(watched, event);
}

void SkinStatus::documentChanged(const DocumentChange& change) {
    if (change.what == DocumentChange::What::settings ||
        change.what == DocumentChange::What::everything) {
        showSkin();
    }
}

void SkinStatus::showSkin() {
    const QString name = qtText(document_.settings().skinName);
    QString text = name.isEmpty() ? tr("Untitled") : name;
    if (!folder_.isEmpty()) {
        text += QStringLiteral(" (%1)").arg(folder_);
    }
    if (text != lblSkin_->text()) {
        lblSkin_->setPath(text);
    }
}

} // namespace tarvel
