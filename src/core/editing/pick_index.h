// Finds the element under the pointer on screens of many thousands.
#pragma once

#include "document/element_place.h"
#include "document/skin_document.h"

#include <vector>

namespace tarvel {

/// Gives what rowAt() of the document gives, without a walk over scattered records: the pointer is
/// looked up on every move, to show what a press would do.
///
/// Remembers one screen. It has to be told every change of the document it is asked about, and
/// looks at the document again when asked the next time.
class PickIndex : public DocumentObserver {
  public:
    void documentChanged(const DocumentChange& change) override;

    /// Row of the frontmost unlocked element of the current screen at the point; -1 for none.
    /// Another `zoom` than the last time costs as much as other rows.
    [[nodiscard]] int rowAt(const SkinDocument& document, SkinPoint point, double zoom = 1);

  private:
    // A rectangle that holds all points of an element, or of one end of a line.
    struct Target {
        float left = 1;
        float top = 1;
        float right = -1;
        float bottom = -1;
    };
    static constexpr std::size_t targetsPerRow = 2;

    void refresh(const SkinDocument& document);
    void rebuild(const SkinDocument& document);
    void setTargets(int row, const Element& element);

    int screen_ = -1;
    double zoom_ = 1; // of the ends of lines
    bool stale_ = true;
    std::vector<Target> targets_; // two for each row
    std::vector<int> rows_;       // by element id; -1 for elements not on the screen
    std::vector<int> changed_;    // ids whose targets are out of date
};

} // namespace tarvel
