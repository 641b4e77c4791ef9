// Collects what goes along with copied elements, and seals it as bytes.
#include "skinfile/clipboard.h"

#include "document/element_kinds.h"
#include "document/image_source.h"
#include "skinfile/element_bytes.h"
#include "skinfile/skin_reader.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace tarvel {

namespace {

Element copied(const Element& element) {
    Element copy = element;
    copy.elementLocked = false;
    copy.label = rulesOf(copy.elementControl.kind).label(copy);
    return copy;
}

// Whether an id is among those, by id.
std::vector<bool> membersOf(const std::vector<int>& ids, int lastId) {
    std::vector<bool> isMember(static_cast<std::size_t>(lastId) + 1);
    for (const int id : ids) {
        if (id > 0 && id <= lastId) {
            isMember[static_cast<std::size_t>(id)] = true;
        }
    }
    return isMember;
}

std::vector<Resource> usedResources(const SkinDocument& document,
                                    const std::vector<Element>& elements) {
    const std::vector<Resource>& all = document.settings().resources;
    std::vector<bool> isUsed(all.size());
    for (const Element& element : elements) {
        if (!rulesOf(element.elementKind).namesResource) {
            continue;
        }
        if (const Resource* resource = resourceOf(document, element.imageSource)) {
            isUsed[static_cast<std::size_t>(resource - all.data())] = true;
        }
    }
    std::vector<Resource> used;
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (isUsed[i]) {
            used.push_back(all[i]);
        }
    }
    return used;
}

// What the surface cannot place: no skin file gives such numbers.
bool isSane(const Element& element) {
    const ElementControl& control = element.elementControl;
    const std::array numbers = {control.left,   control.top, control.width,
                                control.height, control.X1,  control.Y1,
                                control.X2,     control.Y2,  control.font->size};
    return std::all_of(numbers.begin(), numbers.end(),
                       [](float number) { return std::isfinite(number); }) &&
           !isTooDeep(element.elementModifiers->document());
}

} // namespace

ClipboardContent copyElements(const SkinDocument& document, const std::vector<int>& ids) {
    const std::vector<bool> isWanted = membersOf(ids, document.lastElementId());
    ClipboardContent content;
    for (int screen = 0; screen < screenCount; ++screen) {
        for (int row = 0; row < document.rowCount(screen); ++row) {
            const int id = document.itemData(screen, row);
            if (isWanted[static_cast<std::size_t>(id)]) {
                content.elements.push_back(copied(document.element(id)));
            }
        }
    }
    content.resources = usedResources(document, content.elements);
    return content;
}

std::string clipboardBytes(const ClipboardContent& content) {
    std::string buffer;
    ByteWriter out(buffer);
    out.room(sealSize);
    out.count(content.elements.size());
    for (const Element& element : content.elements) {
        writeElement(out, element);
    }
    writeResources(out, content.resources);
    const std::size_t size = out.bytes().size();
    putSeal(buffer.data(), clipboardSeal, out.bytes().substr(sealSize));
    buffer.resize(size);
    return buffer;
}

ClipboardContent readClipboardBytes(std::string_view bytes) {
    ByteReader in(unsealed(clipboardSeal, bytes));
    ClipboardContent content;
    for (std::size_t left = in.count(elementBytes); left > 0; --left) {
        content.elements.push_back(copied(readElement(in)));
        if (!isSane(content.elements.back())) {
            ByteReader::damaged();
        }
    }
    readResources(in, content.resources);
    in.end();
    return content;
}

} // namespace tarvel
