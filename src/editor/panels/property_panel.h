// The property panel: shows the element that is selected, or the settings of the next one drawn.
#pragma once

#include "document/document_observer.h"
#include "editing/several_values.h"

#include <QWidget>

class QHBoxLayout;
class QPushButton;

namespace tarvel {

class ImageFrame;
class MenuSettingsFrame;
class PageStack;
class PictureCache;
class Prompts;
class SharedFrame;
class SkinDocument;
class TextFrame;

/// Keeps its values whatever is shown. The document, the
/// prompts and the cache of pictures are not owned; the document is only read, in the calls below,
/// when its resources change and when the user chooses one.
class PropertyPanel : public QWidget, private DocumentObserver {
    Q_OBJECT

  public:
    PropertyPanel(const SkinDocument& document, Prompts& prompts, PictureCache& pictures,
                  QWidget* parent = nullptr);

    /// What the controls hold now; of what is various, the leading element's.
    [[nodiscard]] PanelValues values() const { return withLeading(values_, various_, leading_); }
    /// While several elements are shown: what applyChanged() takes.
    [[nodiscard]] const PanelValues& valuesBefore() const { return before_; }
    [[nodiscard]] const PanelValues& valuesNow() const { return values_; }

    /// The values of the next element drawn, as they were when they were asked for.
    void takeValues(const PanelValues& values);

    /// An element became current: takes its values over.
    void showElement(const Element& element);
    /// Several elements became current: shows what they have in common, and of the last one, which
    /// leads, what else it has.
    void showElements(const std::vector<int>& ids);
    /// A tool was chosen: shows the frames of the kind that it draws.
    void showKind(ElementKind kind);
    /// Neither element nor tool: shows no frames.
    void showNothing();
    /// The skin has other resources. The one chosen stays chosen, by its name.
    void resourcesChanged();
    /// Menus drawn from now on have these settings.
    void takeMenuSettings(const MenuSettings& settings);
    /// Gives the focus to the control that a message is about, one of document/kinds/panel_texts.h.
    void focusFault(std::string_view message);
    /// Whether applying would change the element that is shown; the button tells it.
    void setDiffers(bool differs);
    /// Stops the video of the preview until a resource is chosen or the frame is shown anew.
    void stopPreview();

    /// The row of cmdApply, which may be taken out of the panel to stand elsewhere.
    [[nodiscard]] QWidget* commands() { return commands_; }
    /// Puts a control beside cmdApply; it becomes a child.
    void addBeside(QWidget* control);
    /// What shows the frames of a kind at a time.
    [[nodiscard]] PageStack& pages() { return *frames_; }

  signals:
    /// The user changed a value.
    void changed();
    void applyClicked();
    void addResourceClicked();

  private:
    void documentChanged(const DocumentChange& change) override;
    void buildFrames();
    void buildRow();
    void showFrames(const PanelLayout& layout);
    void setVarious(const VariousParts& various);

    const SkinDocument& document_;
    DocumentWatch watch_;
    PanelValues values_;
    VariousParts various_; // nothing, but for several elements
    PanelValues leading_;  // of these: the values of the one that leads
    PanelValues before_;   // and what the controls held when they were shown
    PanelLayout shown_;
    PageStack* frames_ = nullptr;
    QWidget* nothing_ = nullptr;
    QWidget* colorsAndText_ = nullptr;
    SharedFrame* fraShared_ = nullptr;
    TextFrame* fraText_ = nullptr;
    ImageFrame* fraImg_ = nullptr;
    MenuSettingsFrame* fraQor_ = nullptr;
    QWidget* commands_ = nullptr;
    QHBoxLayout* row_ = nullptr;
    QPushButton* cmdApply_ = nullptr;
};

} // namespace tarvel
