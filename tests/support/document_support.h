// Documents for tests: quick elements, what an observer was told, elements in failure messages.
#pragma once

#include "document/element_factory.h"
#include "document/skin_document.h"
#include "support/xml_support.h"

#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace tarvel {

inline void PrintTo(const ElementControl& control, std::ostream* out) {
    *out << controlName(control.kind) << " fill " << static_cast<int>(control.fillStyle) << ' '
         << rgbHex(control.fillColor) << " border " << static_cast<int>(control.borderStyle) << ' '
         << rgbHex(control.borderColor) << " text " << rgbHex(control.textColor) << " align "
         << static_cast<int>(control.alignment) << " picture " << static_cast<int>(control.picture)
         << " at " << control.left << ',' << control.top << ' ' << control.width << 'x'
         << control.height << " line " << control.X1 << ',' << control.Y1 << ' ' << control.X2
         << ',' << control.Y2 << " caption '" << control.caption << "' file '" << control.file
         << "' font " << control.font->family << ' ' << control.font->size << ' '
         << control.font->bold << control.font->underline;
}

inline void PrintTo(const MenuSettings& settings, std::ostream* out) {
    *out << settings.thumbnailsVisible << settings.smoothScroll << settings.glowSelected
         << settings.showDescription << " factor " << settings.scrollFactor << " items "
         << settings.itemsShown << ' ' << settings.titleAlignment << ' '
         << settings.descriptionAlignment << " colours " << settings.selectedTitleColor << ' '
         << settings.unselectedTitleColor << ' ' << settings.selectedDescriptionColor << ' '
         << settings.unselectedDescriptionColor;
}

inline void PrintTo(const Element& element, std::ostream* out) {
    *out << "kind " << static_cast<int>(element.elementKind) << " '" << element.label << "' screen "
         << element.elementLayout << " locked " << element.elementLocked << " constant "
         << element.textIsConstant << " alpha " << element.elementAlpha << " source '"
         << element.imageSource << "' condition '" << element.elementCondition << "' timers";
    for (const auto timer : element.elementTimers) {
        *out << ' ' << timer;
    }
    *out << "\n  control: ";
    PrintTo(element.elementControl, out);
    *out << "\n  menu: ";
    PrintTo(*element.menuSettings, out);
    *out << "\n  modifiers: ";
    PrintTo(*element.elementModifiers, out);
}

inline void PrintTo(const SkinDocument& document, std::ostream* out) {
    *out << "current " << document.currentLayout() << " last id " << document.lastElementId();
    for (int screen = 0; screen < screenCount; ++screen) {
        *out << "\nscreen " << screen << " count " << document.screenElementCount(screen)
             << " locked " << document.lockCount(screen) << " rows";
        for (int row = 0; row < document.rowCount(screen); ++row) {
            *out << ' ' << document.itemData(screen, row);
        }
    }
    for (int id = 1; id <= document.lastElementId(); ++id) {
        *out << "\nelement " << id << ": ";
        PrintTo(document.element(id), out);
    }
}

} // namespace tarvel

namespace tarvel::test {

/// Adds a box without colours whose row reads `label`.
inline int addBox(SkinDocument& document, std::string label) {
    Element element;
    element.label = std::move(label);
    return document.addElement(std::move(element));
}

/// A document with rows A, B, C, D (ids 1 to 4) on "Menu".
inline SkinDocument fourBoxes() {
    SkinDocument document;
    for (const char* label : {"A", "B", "C", "D"}) {
        addBox(document, label);
    }
    return document;
}

/// The ids of a screen's rows, back to front.
inline std::vector<int> rowIds(const SkinDocument& document, int screen) {
    std::vector<int> ids;
    for (int row = 0; row < document.rowCount(screen); ++row) {
        ids.push_back(document.itemData(screen, row));
    }
    return ids;
}

/// The texts of a screen's rows, back to front.
inline std::vector<std::string> rowTexts(const SkinDocument& document, int screen) {
    std::vector<std::string> texts;
    for (int row = 0; row < document.rowCount(screen); ++row) {
        texts.push_back(document.rowText(screen, row));
    }
    return texts;
}

/// Notes each change as "what screen id".
class RecordingObserver : public DocumentObserver {
  public:
    void documentChanged(const DocumentChange& change) override {
        notes.push_back(std::string(name(change.what)) + ' ' + std::to_string(change.screen) + ' ' +
                        std::to_string(change.elementId));
    }

    std::vector<std::string> notes;

  private:
    static const char* name(DocumentChange::What what) {
        using What = DocumentChange::What;
        switch (what) {
        case What::everything:
            return "everything";
        case What::settings:
            return "settings";
        case What::currentLayout:
            return "currentLayout";
        case What::rows:
            return "rows";
        case What::rowText:
            return "rowText";
        case What::element:
            return "element";
        case What::elements:
            return "elements";
        case What::rowTexts:
            return "rowTexts";
        case What::counts:
            return "counts";
        }
        return "?";
    }
};

} // namespace tarvel::test
