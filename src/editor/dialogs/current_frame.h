// The list of the skin's resources, and what can be done to those that it has.
#pragma once

#include "dialogs/resource_notes.h"
#include "files/file_search.h"

#include <QGroupBox>

class QListWidget;
class QPushButton;

namespace tarvel {

class PictureCache;
class Prompts;
class ResourceRowDelegate;
class ResourceThumbnails;

/// The rows carry a small picture, how many elements use the resource, and a mark when its file is
/// missing. The selected one can be renamed, which its elements follow, given another file, or
/// removed, with its elements after a question; missing files of the skin can be looked for.
class CurrentFrame : public QGroupBox {
    Q_OBJECT

  public:
    /// `owner` is the window that questions stand over. Nothing is owned, all of it outlives the
    /// frame.
    CurrentFrame(SkinDocument& document, Prompts& prompts, PictureCache& pictures, QWidget* owner);

    /// Lists all resources anew, with none selected.
    void readDocument();
    /// Lists what was added at the end, and looks anew at what uses the resources.
    void listNewResources();
    void selectLast();
    void selectNone();
    /// Makes no more small pictures.
    void stop();
    /// A search for files shows its progress after so many milliseconds, at first half a second.
    void showProgressAfter(int milliseconds) { progressDelay_ = milliseconds; }
    /// It looks at no more than so many entries of folders, at first `mostEntries`.
    void searchAtMost(std::size_t entries) { mostSearched_ = entries; }

  signals:
    /// Another row was selected, or the selected one has other content; -1 when its resource went
    /// and none is left.
    void chosen(int row);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void build();
    void addRows();
    [[nodiscard]] int selectedRow() const;
    void lstRes_Click();
    void cmdRename_Click();
    void cmdReplace_Click();
    void cmdRemove_Click();
    void cmdLocate_Click();
    void rename(int row, const QString& name);
    void tellOfRefusedName(int row, const QString& name, const QString& why);
    [[nodiscard]] bool mayRemove(int row);
    void takeRow(int row);
    void showLocated(const LocatedFiles& located, std::size_t wanted);
    void renewRow(int row);
    void renewNotes();
    void showCommands();

    SkinDocument& document_;
    Prompts& prompts_;
    QWidget* owner_;
    ResourceNotes notes_;
    QListWidget* lstRes_;
    ResourceRowDelegate* rows_;
    ResourceThumbnails* thumbnails_;
    QPushButton* cmdRename_;
    QPushButton* cmdReplace_;
    QPushButton* cmdRemove_;
    QPushButton* cmdLocate_;
    int progressDelay_;
    std::size_t mostSearched_ = mostEntries;
};

} // namespace tarvel
