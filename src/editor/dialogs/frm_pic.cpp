// Shows one PNG picture in a window that paints it again when it is clicked.
#include "dialogs/frm_pic.h"

#include "widgets/png_view.h"

#include <QMouseEvent>

namespace tarvel {

namespace {

constexpr int nudge = 10; // pixels

} // namespace

FrmPic::FrmPic(QWidget* parent)
    : QWidget(parent, Qt::Window)
    , picture_(new PngView(this)) {
    setObjectName("frmPic");
    setWindowTitle(tr("Picture"));
    setAccessibleName(tr("Picture window"));
    picture_->setObjectName("UserControl11");
    resize(320, 240);
}

void FrmPic::mousePressEvent(QMouseEvent* event) {
    // Taken, so that the release comes here too.
    event->accept();
}

void FrmPic::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) {
        click();
    }
}

void FrmPic::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    picture_->setGeometry(rect());
}

// The control ends where it was; moving it there and back makes it paint itself.
void FrmPic::click() {
    const QPoint place = picture_->pos();
    picture_->move(place + QPoint(nudge, 0));
    picture_->move(place);
    picture_->update();
    update();
}

} // namespace tarvel
