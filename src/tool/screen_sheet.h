// All screens of a skin in one picture, with their names.
#pragma once

#include "tool/screen_picture.h"

#include <QImage>
#include <QRect>
#include <QSize>

#include <memory>
#include <vector>

namespace tarvel::tool {

/// Three screens beside each other and two rows of them, each with its name below. In pixels.
inline constexpr QSize sheetSize(2048, 1144);

/// Where a screen (0 to 5) is in the sheet, in its own size.
[[nodiscard]] QRect placeOnSheet(int screen);

/// Needs a QGuiApplication. What is given outlives this.
class ScreenSheet {
  public:
    ScreenSheet(const SkinDocument& document, PictureCache& pictures,
                const ModifierCatalogue& catalogue, const RenderOptions& options);

    /// The sheet at a time, which is of no account at rest.
    [[nodiscard]] QImage at(PlayTime time);

  private:
    std::vector<std::unique_ptr<ScreenPicture>> screens_;
};

} // namespace tarvel::tool
