// Makes an entry of each folder, with its whole path as the tool tip.
#include "window/recent_menu.h"

#include "widgets/mnemonics.h"
#include "widgets/qt_text.h"
#include "widgets/remembered.h"

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QMenu>

#include <utility>

namespace tarvel {

namespace {

constexpr int widestPath = 480; // pixels

// A letter after "&" would be the entry's key.
QString caption(const QMenu& menu, const QString& path) {
    return menu.fontMetrics()
        .elidedText(path, Qt::ElideMiddle, widestPath)
        .replace(QLatin1Char('&'), QLatin1String("&&"));
}

} // namespace

RecentMenu::RecentMenu(QMenu& menu, Remembered& remembered,
                       std::function<void(const QString&)> open)
    : menu_(menu)
    , remembered_(remembered)
    , open_(std::move(open)) {
    menu_.setToolTipsVisible(true);
    connect(&menu_, &QMenu::aboutToShow, this, &RecentMenu::fill);
    fill(); // an empty menu would not open
}

void RecentMenu::fill() {
    menu_.clear();
    const QStringList folders = remembered_.recentFolders();
    for (const QString& folder : folders) {
        addFolder(folder, static_cast<int>(menu_.actions().size()));
    }
    if (folders.isEmpty()) {
        menu_.addAction(tr("No recent folders"))->setEnabled(false);
    }
    giveMnemonics(menu_.actions());
}

void RecentMenu::addFolder(const QString& folder, int place) {
    const QString shown = QDir::toNativeSeparators(folder);
    QAction* entry = menu_.addAction(caption(menu_, shown));
    entry->setObjectName(QStringLiteral("mnuRecent(%1)").arg(place));
    entry->setToolTip(plainToolTip(shown));
    entry->setEnabled(QFileInfo(folder).isDir());
    connect(entry, &QAction::triggered, this, [this, folder] { open_(folder); });
}

} // namespace tarvel
