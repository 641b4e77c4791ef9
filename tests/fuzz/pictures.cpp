// Any bytes as a picture file: whatever size they tell is one.
#include "skinfile/picture_size.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size); // NOLINT
    if (const auto told = tarvel::pictureSize(bytes)) {
        if (told->width == 0 || told->height == 0 ||
            tarvel::decodedBytes(*told) / told->width / told->height != 4) {
            std::abort();
        }
    }
    return 0;
}
