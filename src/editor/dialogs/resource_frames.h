// The two ways to add a resource: from a file, or out of what the dashboard supplies.
#pragma once

#include "document/skin_document.h"

#include <QGroupBox>

class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QRadioButton;

namespace tarvel {

class PathLabel;
class PictureCache;
class Prompts;

/// What is offered where a file of a resource is chosen, for Prompts.
inline constexpr const char* resourceFileFilter =
    "Pictures and videos|*.png *.jpg *.jpeg *.bmp *.gif *.wmv|All files|*";

/// The choice between the two ways. It stands in both frames and shows the same in both.
class SourceButtons : public QWidget {
    Q_OBJECT

  public:
    /// The names optCustom and optPreset get the suffix.
    explicit SourceButtons(const QString& suffix, QWidget* parent = nullptr);

    /// Shows a choice without telling of it.
    void setPreset(bool preset);
    /// Gives the focus to the chosen one.
    void focusChosen();

  signals:
    void chosen(bool preset);

  private:
    QRadioButton* optCustom_;
    QRadioButton* optPreset_;
};

/// fraCustom: adds files. One is filled in first; several are added at once, each named after
/// itself.
class CustomFrame : public QGroupBox {
    Q_OBJECT

  public:
    /// `owner` is the window that questions stand over.
    CustomFrame(SkinDocument& document, Prompts& prompts, QWidget* owner);

    /// Takes a file of the host as if it had been browsed to.
    void takeFile(const QString& file);
    [[nodiscard]] bool hasFile() const;
    [[nodiscard]] bool isStarted() const { return hasFile() || hasName(); }
    /// Whether there is a file and a name to add it by.
    [[nodiscard]] bool isComplete() const { return hasFile() && hasName(); }
    /// What the Return key does with what is started: it adds, or gives the focus to what is
    /// missing.
    void takeReturn();
    /// Empties name and file.
    void clear();
    [[nodiscard]] QPushButton* cmdAdd() const { return cmdAdd_; }
    [[nodiscard]] SourceButtons* source() const { return source_; }

  signals:
    void fileTaken(const QString& file);
    /// Another name or file.
    void inputChanged();
    /// Add was pressed, and not refused.
    void done(bool added);

  private:
    void buildGrid();
    [[nodiscard]] bool hasName() const;
    void cmdBrowse_Click();
    void addFiles(const QStringList& files);
    void cmdAdd_Click();

    SkinDocument& document_;
    Prompts& prompts_;
    QWidget* owner_;
    SourceButtons* source_;
    QLineEdit* txtRes_;
    PathLabel* lblFile_;
    QPushButton* cmdBrowse_;
    QPushButton* cmdAdd_;
};

/// fraPreset: adds presets.
class PresetFrame : public QGroupBox {
    Q_OBJECT

  public:
    PresetFrame(SkinDocument& document, PictureCache& pictures, QWidget* parent = nullptr);

    [[nodiscard]] bool isStarted() const { return isComplete() || hasName(); }
    /// Whether a preset is chosen.
    [[nodiscard]] bool isComplete() const { return selectedPreset() >= 0; }
    /// What the Return key does with what is started: it adds, or gives the focus to the list.
    void takeReturn();
    /// Chooses nothing, with neither a name nor a description.
    void clear();
    [[nodiscard]] QPushButton* cmdAddDef() const { return cmdAddDef_; }
    [[nodiscard]] SourceButtons* source() const { return source_; }

  signals:
    /// Add was pressed, and the name is not taken.
    void done();
    /// Another preset, or none.
    void inputChanged();

  private:
    void showEvent(QShowEvent* event) override;
    [[nodiscard]] bool hasName() const;
    void buildGrid();
    void lstResDef_Click();
    void cmdAddDef_Click();
    [[nodiscard]] int selectedPreset() const;

    SkinDocument& document_;
    PictureCache& pictures_;
    SourceButtons* source_;
    QListWidget* lstResDef_;
    QLabel* imgDefault_;
    bool isPictureShown_ = false; // in it
    QLabel* lblDesc_;
    QLineEdit* txtResDef_;
    QPushButton* cmdAddDef_;
};

} // namespace tarvel
