// The marks of what is selected on the surface: a box with handles, or two line ends.
#pragma once

#include "document/skin_document.h"

#include <QWidget>

#include <string>
#include <vector>

namespace tarvel {

class GroupMarks;
class LineEndMark;
class Pic;
class SelectionBox;

/// Owns nothing; the marks are children of the surface and let the pointer through to it.
class SelectionMarks : public QObject {
    Q_OBJECT

  public:
    explicit SelectionMarks(Pic& surface);

    /// Puts the marks on an element: `fraSel` for boxes, images, texts and menus.
    void setSel(const Element& element);
    /// `fraResize1` and `fraResize2` for a line.
    void setSelLine(const Element& element);
    /// Whichever of the two suits the element.
    void setCurrentSel(const Element& element);
    /// Of several elements: thin frames, one with handles around all of them, and the marks of the
    /// last of `ids`, which leads.
    void setSeveral(const SkinDocument& document, const std::vector<int>& ids);
    void hideSels();
    /// Tells those who listen to the surface what is selected, in words.
    void describe(const std::string& words);
    /// Whether the selection box is shown, which arrow keys ask for.
    [[nodiscard]] bool isBoxShown() const;

  private:
    void placeAnew();

    Pic& surface_;
    SelectionBox* fraSel_;
    GroupMarks* group_ = nullptr;
    LineEndMark* fraResize1_;
    LineEndMark* fraResize2_;
};

} // namespace tarvel
