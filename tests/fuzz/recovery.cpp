// Any bytes as a recovery file, and as what stands under the right seal of one.
#include "skinfile/recovery.h"

#include <cstdint>
#include <cstdlib>

namespace {

void read(std::string_view bytes) {
    try {
        const tarvel::WorkState work = tarvel::readRecovery(bytes);
        if (tarvel::readRecovery(tarvel::recoveryBytes(work)).document.lastElementId() !=
            work.document.lastElementId()) {
            std::abort();
        }
    } catch (const tarvel::SealedBytesError&) {
        return;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size); // NOLINT
    read(bytes);
    read(tarvel::sealed(tarvel::recoverySeal, bytes));
    return 0;
}
