// Takes the path twice.
#include "widgets/path_label.h"

#include "widgets/qt_text.h"

namespace tarvel {

void PathLabel::setPath(const QString& path) {
    setText(path);
    setToolTip(plainToolTip(path));
}

} // namespace tarvel
