// Asks the style and the settings files of the desktop.
#include "widgets/motion.h"

#include <QApplication>
#include <QSettings>
#include <QStandardPaths>
#include <QStyle>

namespace tarvel {

namespace {

bool switchedOffByGtk() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    for (const char* version : {"gtk-4.0", "gtk-3.0"}) {
        const QSettings settings(
            QStringLiteral("%1/%2/settings.ini").arg(folder, QLatin1String(version)),
            QSettings::IniFormat);
        const QVariant value = settings.value(QStringLiteral("Settings/gtk-enable-animations"));
        if (value.isValid()) {
            const QString text = value.toString().toLower();
            return text == QStringLiteral("0") || text == QStringLiteral("false");
        }
    }
    return false;
}

} // namespace

bool motionWanted() {
    return QApplication::style()->styleHint(QStyle::SH_Widget_Animation_Duration) > 0 &&
           !switchedOffByGtk();
}

} // namespace tarvel
