// Any bytes as copied elements, under the right seal too, and as a text that is pasted.
#include "editing/paste.h"

#include <cstdint>
#include <cstdlib>

namespace {

using namespace tarvel;

// What came in can be pasted, copied and read again.
void expectToPaste(const ClipboardContent& content) {
    SkinDocument document;
    const std::vector<int> ids = pasteElements(document, content, {10, 10});
    if (ids.size() != content.elements.size()) {
        std::abort();
    }
    const ClipboardContent copied = copyElements(document, ids);
    const std::string bytes = clipboardBytes(copied);
    if (clipboardBytes(readClipboardBytes(bytes)) != bytes) {
        std::abort();
    }
    static_cast<void>(readClipboardText(clipboardText(copied)));
}

void read(std::string_view bytes) {
    try {
        expectToPaste(readClipboardBytes(bytes));
    } catch (const SealedBytesError&) {
        return;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size); // NOLINT
    read(bytes);
    read(sealed(clipboardSeal, bytes));
    if (const auto content = readClipboardText(bytes)) {
        expectToPaste(*content);
    }
    return 0;
}
