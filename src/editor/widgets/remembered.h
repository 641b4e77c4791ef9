// What the program remembers from one run to the next.
#pragma once

#include <QSettings>
#include <QString>
#include <QStringList>

namespace tarvel {

/// A switch that is remembered.
struct RememberedSwitch {
    const char* key; ///< in the file, where no other value has it
    bool first;      ///< at the first start
};

/// A whole number that is remembered.
struct RememberedNumber {
    const char* key;
    int first;
    int lowest;
    int highest;
};

/// A file of values, shared with all other runs. What the file does not say, or says in a way that
/// cannot be understood, is as at the first start; a file that cannot be written remembers nothing.
class Remembered {
  public:
    static constexpr int mostRecentFolders = 10;

    /// `file` is made, with its folder, once there is something to remember.
    explicit Remembered(const QString& file);
    /// The file in which the program remembers for the user who runs it.
    [[nodiscard]] static QString usersFile();

    [[nodiscard]] bool value(const RememberedSwitch& entry) const;
    [[nodiscard]] int value(const RememberedNumber& entry) const;
    void remember(const RememberedSwitch& entry, bool value);
    void remember(const RememberedNumber& entry, int value);

    /// Where dialogs start that choose files and folders; empty for nowhere in particular.
    [[nodiscard]] QString lastFolder() const;
    void rememberLastFolder(const QString& folder);

    /// Where the main window was, as QWidget::saveGeometry() tells it; empty when it was nowhere
    /// yet.
    [[nodiscard]] QByteArray windowPlace() const;
    void rememberWindowPlace(const QByteArray& place);

    /// Folders that skins were loaded from or saved to by any run, the newest first.
    [[nodiscard]] QStringList recentFolders();
    void rememberSkinFolder(const QString& folder);

  private:
    QSettings settings_;
};

} // namespace tarvel
