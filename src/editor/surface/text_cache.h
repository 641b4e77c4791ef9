// Laid out captions of Text elements, kept from one repaint to the next.
#pragma once

#include "document/element.h"

#include <QFont>
#include <QSizeF>
#include <QStaticText>

#include <string>
#include <unordered_map>
#include <vector>

namespace tarvel {

/// A caption as it is laid out and measured: each of the usual line ends breaks a line.
[[nodiscard]] QString brokenLines(std::string_view caption);

/// A caption wrapped by words within its element's width.
struct LaidOutText {
    QStaticText text;
    QSizeF size;  ///< what the text really takes up, in skin pixels; may exceed the element
    int font = 0; ///< index for TextCache::font

    // What it was laid out from.
    std::string caption;
    SharedValue<FontChoice> choice;
    float width = 0;
    TextAlignment alignment = TextAlignment::left;
};

/// Remembers one text for each element id, and lays it out again when what it depends on changed.
class TextCache {
  public:
    /// The text of a txt control; good until the next call.
    const LaidOutText& laidOut(int elementId, const ElementControl& control);
    [[nodiscard]] const QFont& font(int index) const {
        return fonts_[static_cast<std::size_t>(index)].font;
    }
    void clear();

  private:
    struct KnownFont {
        FontChoice choice;
        QFont font;
    };

    int fontIndex(const FontChoice& choice);
    void layOut(LaidOutText& entry, const ElementControl& control);

    std::unordered_map<int, LaidOutText> texts_;
    std::vector<KnownFont> fonts_;
};

} // namespace tarvel
