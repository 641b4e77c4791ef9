// The list of music files.
#pragma once

#include <QListWidget>

namespace tarvel {

/// Says what the user wants with the selected entry, and takes files that are dropped onto it.
class MusicList : public QListWidget {
    Q_OBJECT

  public:
    explicit MusicList(QWidget* parent = nullptr);

  signals:
    /// The Delete key, or a click with the right button, which selects its entry first.
    void removeWanted();
    /// A double click.
    void playWanted();
    /// The space bar.
    void playOrStopWanted();
    /// Music files by their host paths, in the order in which they were dragged.
    void musicDropped(const QStringList& files);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
};

} // namespace tarvel
