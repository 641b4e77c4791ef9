// Finds a text among choices without regard to letter case.
#include "text/list_index.h"

#include "text/text_case.h"

namespace tarvel {

int getListIndex(std::span<const std::string_view> list, std::string_view text) {
    int index = 0;
    for (std::size_t i = 0; i < list.size(); ++i) {
        if (equalsIgnoringCase(list[i], text)) {
            index = static_cast<int>(i);
        }
    }
    return index;
}

} // namespace tarvel
