// The frame of the resource that an image shows.
#pragma once

#include "editing/several_values.h"

#include <QGroupBox>

#include <optional>

class QComboBox;

namespace tarvel {

class PictureCache;
class ResourcePreview;
class SkinDocument;

/// Shows the resource of the values with a preview, and puts into them what the user chooses. The
/// values, the document and the cache of pictures are not owned.
class ImageFrame : public QGroupBox {
    Q_OBJECT

  public:
    ImageFrame(PanelValues& values, const SkinDocument& document, PictureCache& pictures,
               QWidget* parent = nullptr);

    /// Shows the values. The preview begins anew only when it shows another resource than before.
    void refresh();
    /// What no resource means: that several elements have various ones.
    void setVarious(const VariousParts& various);
    /// The frame is out of sight: nothing plays.
    void leave();
    /// The skin has other resources: the chosen one stays chosen, by its name.
    void resourcesChanged();
    void stopPreview();

  signals:
    /// The user chose a resource.
    void changed();
    void addResourceClicked();

  private:
    void buildPicker();
    void fillPicker();
    void showPlaceholder();
    void lstR_Click();
    [[nodiscard]] const Resource* chosen() const;

    PanelValues& values_;
    const SkinDocument& document_;
    QComboBox* lstR_ = nullptr;
    ResourcePreview* preview_ = nullptr;
    bool various_ = false;
    std::optional<Resource> previewed_; // none while the frame is out of sight
};

} // namespace tarvel
