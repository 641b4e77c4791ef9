// Pictures of a skin that take more of the console's memory than their places need.
#pragma once

#include "document/skin_document.h"
#include "files/host_paths.h"
#include "skinfile/picture_size.h"

#include <cstdint>
#include <vector>

namespace tarvel {

/// A picture that is more than twice as wide and more than twice as high as it is shown anywhere:
/// half of its lines and columns can never be seen.
struct LargePicture {
    int resource; ///< place in the skin's list
    PictureSize size;
    int screen; ///< of the largest place that shows it
    int row;
};

struct PictureReport {
    std::vector<LargePicture> large; ///< in the order of the resources
    std::uint64_t decodedBytes = 0;  ///< of all pictures of the skin, each file once
};

/// Looks at the heads of all picture files of the skin, the background among them. Places without
/// a width or height show nothing and do not count; what lies outside of the skin is not opened.
[[nodiscard]] PictureReport checkPictures(const SkinDocument& document, FileFinder& files);

} // namespace tarvel
