// Reads what is remembered with a fall-back for each value, and writes it.
#include "widgets/remembered.h"

#include <QDir>
#include <QStandardPaths>
#include <QVariant>

namespace tarvel {

namespace {

constexpr QLatin1String lastFolderKey("lastFolder");
constexpr QLatin1String recentFoldersKey("recentFolders");
constexpr QLatin1String windowPlaceKey("windowPlace");

} // namespace

Remembered::Remembered(const QString& file)
    : settings_(file, QSettings::IniFormat) {}

QString Remembered::usersFile() {
    return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) +
           QStringLiteral("/settings.ini");
}

bool Remembered::value(const RememberedSwitch& entry) const {
    const QString text = settings_.value(QLatin1String(entry.key)).toString();
    const bool isKnown = text == QLatin1String("true") || text == QLatin1String("false");
    return isKnown ? text == QLatin1String("true") : entry.first;
}

int Remembered::value(const RememberedNumber& entry) const {
    bool isNumber = false;
    const int number = settings_.value(QLatin1String(entry.key)).toString().toInt(&isNumber);
    return isNumber && number >= entry.lowest && number <= entry.highest ? number : entry.first;
}

void Remembered::remember(const RememberedSwitch& entry, bool value) {
    settings_.setValue(QLatin1String(entry.key), value);
}

void Remembered::remember(const RememberedNumber& entry, int value) {
    settings_.setValue(QLatin1String(entry.key), value);
}

QString Remembered::lastFolder() const {
    const QString folder = settings_.value(lastFolderKey).toString();
    return QDir::isAbsolutePath(folder) ? folder : QString();
}

void Remembered::rememberLastFolder(const QString& folder) {
    settings_.setValue(lastFolderKey, folder);
}

QByteArray Remembered::windowPlace() const {
    return settings_.value(windowPlaceKey).toByteArray();
}

void Remembered::rememberWindowPlace(const QByteArray& place) {
    settings_.setValue(windowPlaceKey, place);
}

QStringList Remembered::recentFolders() {
    settings_.sync(); // other runs have loaded and saved, too
    QStringList folders;
    const QStringList kept = settings_.value(recentFoldersKey).toStringList();
    for (const QString& folder : kept) {
        if (QDir::isAbsolutePath(folder) && !folders.contains(folder) &&
            folders.size() < mostRecentFolders) {
            folders << folder;
        }
    }
    return folders;
}

void Remembered::rememberSkinFolder(const QString& folder) {
    const QString path = QDir::cleanPath(QDir(folder).absolutePath());
    QStringList folders = recentFolders();
    folders.removeAll(path);
    folders.prepend(path);
    settings_.setValue(recentFoldersKey, folders.mid(0, mostRecentFolders));
    settings_.sync(); // for a run that starts now
}

} // namespace tarvel
