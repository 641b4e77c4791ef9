// The dialog for the skin's resources.
#pragma once

#include "dialogs/skin_dialog.h"

namespace tarvel {

class CurrentFrame;
class CustomFrame;
class PathLabel;
class PictureCache;
class PresetFrame;
class ResourcePreview;

/// Lists the resources with what can be done to them, shows the selected one in large and adds new
/// ones, from files or presets. Files can be dropped anywhere onto it. What was filled in but not
/// added is forgotten when it closes; the Return key does not close it then.
class FrmResources : public SkinDialog {
    Q_OBJECT

  public:
    /// `pictures` outlives the dialog.
    FrmResources(SkinDocument& document, Prompts& prompts, PictureCache& pictures,
                 QWidget* parent = nullptr);

    /// Fills in a file of the host, as browsing to it does. May be called before exec().
    void takeFile(const QString& file);
    /// The list of resources.
    [[nodiscard]] CurrentFrame& current() const { return *fraCurrent_; }

  protected:
    void readDocument() override;
    void hideEvent(QHideEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void buildColumns();
    QWidget* makePreviewFrame();
    void showSource(bool preset);
    void keepFocusVisible();
    void showDefault();
    bool takeReturn();
    [[nodiscard]] int addedHeight() const;
    void resizeForm(int added);
    void forgetInput();
    void finishAdding(bool added);
    void showChosen(int row);
    void preview(const Resource& resource);

    CustomFrame* fraCustom_;
    PresetFrame* fraPreset_;
    CurrentFrame* fraCurrent_;
    ResourcePreview* imgPreview_;
    PathLabel* lblPreview_;
    PictureCache& pictures_;
    QPushButton* cmdOK_;
    int fitted_ = 0; // the height that resizeForm found last
    int added_ = 0;  // what the user had added to it when the dialog closed
};

} // namespace tarvel
