// Menu: a picture of a list of games, or the list itself while the screen plays.
#include "surface/element_looks.h"
#include "surface/played_list_painting.h"
#include "surface/surface_pass.h"

namespace tarvel {

namespace {

constexpr std::string_view gameListPicture = ":/tarvel/gamelist.png";

void paint(SurfacePass& pass, int /*id*/, const Element& element) {
    const QRectF rect = controlRect(element.elementControl);
    if (pass.targetOf(rect).isEmpty()) {
        return;
    }
    if (pass.playedList() == nullptr) {
        pass.paintStretched(rect, gameListPicture);
    } else {
        paintPlayedList(pass.painter(), nearSurface(rect), *element.menuSettings,
                        *pass.playedList());
    }
}

} // namespace

const KindLook menuLook = {.tool = {.name = "optQor",
                                    .caption = "Game List (QOR Menu)",
                                    .icon = IconName::menu,
                                    .tip = "Place the list of games"},
                           .paint = paint,
                           .bounds = rectangleBounds,
                           .naturalSize = noNaturalSize};

} // namespace tarvel
