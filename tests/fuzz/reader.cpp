// Any bytes as a QOR_Skin.xml: they are refused with a message, or make a document that can be kept
// and brought back.
#include "skinfile/recovery.h"
#include "skinfile/skin_reader.h"

#include <cstdint>
#include <cstdlib>

namespace {

// The same bytes even where numbers are NaN, which equals nothing.
void expectToComeBack(const tarvel::SkinDocument& document) {
    tarvel::WorkState work;
    work.document = document;
    const std::string bytes = tarvel::recoveryBytes(work);
    if (tarvel::recoveryBytes(tarvel::readRecovery(bytes)) != bytes) {
        std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    tarvel::SkinReadNotes notes;
    tarvel::SkinDocument document;
    try {
        const tarvel::XmlTree tree = tarvel::readSkinText(
            std::string(reinterpret_cast<const char*>(data), size), notes.text); // NOLINT
        tarvel::readSkinTree(document, tree.root(), "/nowhere", notes);
    } catch (const tarvel::XmlError&) {
        return 0;
    } catch (const tarvel::SkinReadError&) {
        return 0;
    }
    expectToComeBack(document);
    return 0;
}
