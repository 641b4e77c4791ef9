// Turns keys, clicks and drops on the music list into what the user wants.
#include "dialogs/music_list.h"

#include "editing/music_rules.h"
#include "widgets/shown_path.h"

#include <QDropEvent>
#include <QKeyEvent>
#include <QMouseEvent>

namespace tarvel {

namespace {

QStringList draggedMusic(const QDropEvent& event) {
    QStringList music;
    const QStringList files = draggedFiles(*event.mimeData());
    for (const QString& file : files) {
        if (isMusicFile(coreText(file))) {
            music << file;
        }
    }
    return music;
}

// Copying, whatever the other side would like best: dropping must not move a file.
void take(QDropEvent& event) {
    event.setDropAction(Qt::CopyAction);
    event.accept();
}

} // namespace

MusicList::MusicList(QWidget* parent)
    : QListWidget(parent) {
    setAcceptDrops(true);
    setTextElideMode(Qt::ElideMiddle);
    setUniformItemSizes(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(this, &QListWidget::itemDoubleClicked, this, &MusicList::playWanted);
}

void MusicList::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Delete) {
        emit removeWanted();
    } else if (event->key() == Qt::Key_Space) {
        emit playOrStopWanted();
    } else {
        QListWidget::keyPressEvent(event);
    }
}

void MusicList::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::RightButton) {
        QListWidget::mousePressEvent(event);
    } else if (QListWidgetItem* entry = itemAt(event->position().toPoint())) {
        setCurrentItem(entry, QItemSelectionModel::ClearAndSelect);
        emit removeWanted();
    }
}

void MusicList::dragEnterEvent(QDragEnterEvent* event) {
    if (draggedMusic(*event).isEmpty()) {
        event->ignore();
    } else {
        take(*event);
    }
}

void MusicList::dragMoveEvent(QDragMoveEvent* event) {
    take(*event); // looked at on entering
}

void MusicList::dropEvent(QDropEvent* event) {
    const QStringList music = draggedMusic(*event);
    if (!music.isEmpty()) {
        take(*event);
        emit musicDropped(music);
    }
}

} // namespace tarvel
