// The commands that save, load and show the skin, and those for its background picture.
#pragma once

#include "document/skin_document.h"

#include <QObject>
#include <QString>

#include <filesystem>
#include <functional>
#include <vector>

class QWidget;

namespace tarvel {

class Prompts;
class Remembered;

/// Works on the document that it is given and asks the user through Prompts; owns neither.
class SkinFileCommands : public QObject {
    Q_OBJECT

  public:
    /// What the commands need of the rest of the program.
    struct Surroundings {
        /// The window that questions stand over; also the parent of windows that commands open.
        QWidget* window = nullptr;
        /// Keeps the folders of skins.
        Remembered& remembered;
        /// Where modifiers pass through "temp.xml".
        std::filesystem::path programFolder;
        /// Shows the Information dialog and returns when it is closed.
        std::function<void()> showInformation;
    };

    SkinFileCommands(SkinDocument& document, Prompts& prompts, Surroundings surroundings);

    /// Skin > Save: asks for a folder and saves into it. True when the skin was saved.
    bool mnuSave_Click();
    /// Skin > Save Again: saves into skinFolder() and leaves everything as it is. Does what Save
    /// does where there is no such folder or the skin has no name. True when the skin was saved.
    bool mnuSaveAgain_Click();
    /// Skin > Load: asks for a folder and adds its skin to the document.
    void mnuLoad_Click();
    /// Adds the skin in a folder to the document, as Load does.
    void openFolder(const QString& folder);
    /// Skin > View XML: opens a window with the text of the skin.
    void mnuView_Click();
    void mnuLoadBg_Click();
    void mnuUnloadBg_Click();

    /// The folder of the last save, with a closing separator; empty before the first.
    [[nodiscard]] const QString& saveFolder() const { return saveFolder_; }
    /// The folder that the skin was last saved to or loaded from; empty for none yet.
    [[nodiscard]] const QString& skinFolder() const { return skinFolder_; }
    void setSkinFolder(const QString& folder);
    /// A load was undone: the skin's folder is the one that it was before, unless it is another one
    /// since.
    void loadUndone();
    void loadRedone();

  signals:
    void saved();
    void skinFolderChanged();
    /// A skin was read into the document, which was `before` until then; the edit is still open.
    void loaded(const tarvel::SkinDocument& before);
    /// One line on how a command went, for the status line.
    void told(const QString& text);

  private:
    // What a load made of the document and of the skin's folder.
    struct Load {
        SkinDocument before;
        SkinDocument after;
        QString folderBefore;
        QString folderAfter;
    };

    [[nodiscard]] bool saveInto(const QString& folder, SkinDocument& document);
    void adviseBeforeLoading();
    bool loadFrom(const QString& folder);

    SkinDocument& document_;
    Prompts& prompts_;
    Surroundings surroundings_;
    QString saveFolder_;
    QString skinFolder_;
    std::vector<Load> loads_; // the copies share what they do not differ in
};

} // namespace tarvel
