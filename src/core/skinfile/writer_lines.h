// The forms of all lines that the skin writer writes.
#pragma once

#include "text/line_forms.h"

namespace tarvel {

struct WrittenLines {
    LineForms forms;
    Section file{}; ///< outside of everything
    Section resource{};
    Section element{};
};

[[nodiscard]] const WrittenLines& writtenLines();

} // namespace tarvel
