// The menu of the folders that skins were loaded from or saved to last.
#pragma once

#include <QObject>

#include <functional>

class QMenu;

namespace tarvel {

class Remembered;

/// Fills the menu each time that it opens: the newest first, and those that are gone out of use.
/// Menu and memory are not owned and outlive this.
class RecentMenu : public QObject {
    Q_OBJECT

  public:
    RecentMenu(QMenu& menu, Remembered& remembered,
               std::function<void(const QString& folder)> open);

  private:
    void fill();
    void addFolder(const QString& folder, int place);

    QMenu& menu_;
    Remembered& remembered_;
    std::function<void(const QString&)> open_;
};

} // namespace tarvel
