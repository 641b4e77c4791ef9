// Finds a condition of the dashboard, and tells its meaning.
#include "document/conditions.h"

#include "text/text_case.h"

#include <cstddef>

namespace tarvel {

int getcondNum(std::string_view text) {
    int found = 0;
    for (std::size_t row = 0; row < conditionRows.size(); ++row) {
        if (equalsIgnoringCase(conditionRows[row].text, text)) {
            found = static_cast<int>(row);
        }
    }
    return found;
}

} // namespace tarvel
