// Composes the resources dialog: the two ways to add, the list, and the preview.
#include "dialogs/frm_resources.h"

#include "dialogs/current_frame.h"
#include "dialogs/resource_frames.h"
#include "panels/resource_looks.h"
#include "panels/resource_preview.h"
#include "surface/picture_cache.h"
#include "widgets/control_names.h"
#include "widgets/path_label.h"
#include "widgets/shown_path.h"

#include <QDropEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHideEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>

namespace tarvel {

namespace {

bool isReturn(const QEvent& event) {
    if (event.type() != QEvent::KeyPress) {
        return false;
    }
    const int key = static_cast<const QKeyEvent&>(event).key();
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

} // namespace

FrmResources::FrmResources(SkinDocument& document, Prompts& prompts, PictureCache& pictures,
                           QWidget* parent)
    : SkinDialog(QStringLiteral("frmResources"), QStringLiteral("  :: Resource Manager ::"),
                 document, prompts, parent)
    , fraCustom_(new CustomFrame(document, prompts, this))
    , fraPreset_(new PresetFrame(document, pictures))
    , fraCurrent_(new CurrentFrame(document, prompts, pictures, this))
    , imgPreview_(named(new ResourcePreview(pictures, {320, 240},
                                            tr("Select a resource to see it,\n"
                                               "or drop a file here to add it")),
                        QStringLiteral("imgPreview"), tr("Preview of the resource")))
    , lblPreview_(new PathLabel)
    , pictures_(pictures)
    , cmdOK_(makeOk()) {
    setAcceptDrops(true);
    buildColumns();
    cmdOK_->setAutoDefault(false); // the focus alone does not make it what Return presses
    cmdOK_->installEventFilter(this);
    connect(fraCurrent_, &CurrentFrame::chosen, this, &FrmResources::showChosen);
    connect(fraCustom_->source(), &SourceButtons::chosen, this, &FrmResources::showSource);
    connect(fraPreset_->source(), &SourceButtons::chosen, this, &FrmResources::showSource);
    connect(fraCustom_, &CustomFrame::fileTaken, this, [this](const QString& file) {
        fraCurrent_->selectNone(); // something else is previewed
        preview({.name = {}, .content = documentPath(hostPathOf(file))});
    });
    connect(fraCustom_, &CustomFrame::inputChanged, this, &FrmResources::showDefault);
    connect(fraPreset_, &PresetFrame::inputChanged, this, &FrmResources::showDefault);
    connect(fraCustom_, &CustomFrame::done, this, &FrmResources::finishAdding);
    connect(fraPreset_, &PresetFrame::done, this, [this] { finishAdding(true); });
    showSource(false);
}

void FrmResources::buildColumns() {
    auto* left = new QVBoxLayout;
    left->addWidget(fraCustom_);
    left->addWidget(fraPreset_);
    left->addWidget(fraCurrent_, 1);
    auto* right = new QVBoxLayout;
    right->addWidget(makePreviewFrame(), 1);
    auto* columns = new QHBoxLayout;
    columns->addLayout(left, 1);
    columns->addLayout(right, 1);
    auto* rows = new QVBoxLayout(this);
    rows->addLayout(columns, 1);
    rows->addWidget(cmdOK_, 0, Qt::AlignRight);
}

QWidget* FrmResources::makePreviewFrame() {
    auto* frame = new QGroupBox(tr("PREVIEW"));
    imgPreview_->setMinimumSize(240, 180);
    lblPreview_->setObjectName(QStringLiteral("lblPreview"));
    auto* box = new QVBoxLayout(frame);
    box->addWidget(imgPreview_, 1);
    box->addWidget(lblPreview_);
    return frame;
}

void FrmResources::readDocument() {
    fraCurrent_->readDocument();
    const int width = std::max(fraCustom_->sizeHint().width(), fraPreset_->sizeHint().width());
    fraCustom_->setMinimumWidth(width); // so that the choice between them moves nothing
    fraPreset_->setMinimumWidth(width);
    resizeForm(added_); // a hidden window may not have taken the size of another frame
    if (!fraCustom_->hasFile()) {
        fraCustom_->source()->focusChosen(); // not where the last work ended
    }
}

void FrmResources::hideEvent(QHideEvent* event) {
    SkinDialog::hideEvent(event);
    if (!event->spontaneous()) {
        fraCurrent_->stop();
        imgPreview_->showNothing();
        lblPreview_->setPath({});
        added_ = addedHeight();
        forgetInput();
    }
}

// The name of a file that was not added would otherwise be given to the next one.
void FrmResources::forgetInput() {
    fraCustom_->clear();
    fraPreset_->clear();
    showSource(false);
}

void FrmResources::showSource(bool preset) {
    const int added = addedHeight();      // before the frames change it
    const QWidget* focus = focusWidget(); // hiding would give it to whatever comes next
    const QWidget* leaving = preset ? static_cast<QWidget*>(fraCustom_) : fraPreset_;
    const bool focusGoes = focus != nullptr && leaving->isAncestorOf(focus);
    fraCustom_->source()->setPreset(preset);
    fraPreset_->source()->setPreset(preset);
    fraCustom_->setVisible(!preset);
    fraPreset_->setVisible(preset);
    if (focusGoes) {
        (preset ? fraPreset_->source() : fraCustom_->source())->focusChosen();
    }
    // An arrow key will still give the focus to the option that it chose, in the hidden frame.
    QTimer::singleShot(0, this, &FrmResources::keepFocusVisible);
    showDefault();
    if (isVisible()) { // otherwise it is fitted when it opens
        resizeForm(added);
    }
}

// The default button adds what is filled in to be added, and otherwise closes.
void FrmResources::showDefault() {
    QPushButton* next = cmdOK_;
    if (!fraPreset_->isHidden() && fraPreset_->isComplete()) {
        next = fraPreset_->cmdAddDef();
    } else if (!fraCustom_->isHidden() && fraCustom_->isComplete()) {
        next = fraCustom_->cmdAdd();
    }
    next->setDefault(true);
}

// The Return key closes only over what is not filled in. False when it may.
bool FrmResources::takeReturn() {
    if (!fraPreset_->isHidden() && fraPreset_->isStarted()) {
        fraPreset_->takeReturn();
    } else if (fraCustom_->isStarted() && fraCustom_->isHidden()) {
        showSource(false); // what would be lost is to be seen first
    } else if (fraCustom_->isStarted()) {
        fraCustom_->takeReturn();
    } else {
        return false;
    }
    return true;
}

void FrmResources::keyPressEvent(QKeyEvent* event) {
    if (!isReturn(*event) || !takeReturn()) {
        SkinDialog::keyPressEvent(event);
    }
}

bool FrmResources::eventFilter(QObject* watched, QEvent* event) {
    const bool pressesOk = watched == cmdOK_ && isReturn(*event);
    return (pressesOk && takeReturn()) || SkinDialog::eventFilter(watched, event);
}

// The focus goes from an option in the hidden frame to the same one in the other.
void FrmResources::keepFocusVisible() {
    const QWidget* focus = focusWidget();
    if (focus == nullptr) {
        return;
    }
    if (fraCustom_->isHidden() && fraCustom_->isAncestorOf(focus)) {
        fraPreset_->source()->focusChosen();
    } else if (fraPreset_->isHidden() && fraPreset_->isAncestorOf(focus)) {
        fraCustom_->source()->focusChosen();
    }
}

// What the user has added to the height.
int FrmResources::addedHeight() const {
    return fitted_ == 0 ? 0 : std::max(0, height() - fitted_);
}

// Fits the height to the frame that is shown.
void FrmResources::resizeForm(int added) {
    layout()->invalidate();
    layout()->activate();
    const QSize hint = layout()->totalSizeHint();
    const int wide = std::max(width(), hint.width());
    fitted_ = layout()->hasHeightForWidth() ? layout()->totalHeightForWidth(wide) : hint.height();
    const int least = layout()->hasHeightForWidth() ? layout()->totalMinimumHeightForWidth(wide)
                                                    : minimumSizeHint().height();
    constexpr int title = 40; // pixels of the window manager's
    const int highest = std::max(least, screen()->availableSize().height() - title);
    resize(wide, std::min(fitted_ + added, highest));
}

// Steps back to the start: OK is next, or another file.
void FrmResources::finishAdding(bool added) {
    fraCurrent_->listNewResources();
    if (added) {
        fraCurrent_->selectLast();
    }
    showSource(false);
    if (added) {
        cmdOK_->setFocus();
    }
}

void FrmResources::showChosen(int row) {
    const auto& resources = document().settings().resources;
    const auto index = static_cast<std::size_t>(row); // -1 is too large
    preview(index < resources.size() ? resources[index] : Resource{});
}

void FrmResources::preview(const Resource& resource) {
    imgPreview_->showResource(resource);
    lblPreview_->setPath(lineAbout(resource, pictures_));
}

void FrmResources::takeFile(const QString& file) {
    showSource(false);
    fraCustom_->takeFile(file);
}

void FrmResources::dragEnterEvent(QDragEnterEvent* event) {
    if (!draggedFiles(*event->mimeData()).isEmpty()) {
        event->setDropAction(Qt::CopyAction); // dropping must not move a file
        event->accept();
    }
}

void FrmResources::dropEvent(QDropEvent* event) {
    const QStringList files = draggedFiles(*event->mimeData());
    if (!files.isEmpty()) {
        event->setDropAction(Qt::CopyAction);
        event->accept();
        takeFile(files.front());
    }
}

} // namespace tarvel
