// All keys of the program, in one table: for the window "Keys", and for the guide.
#pragma once

#include <QString>

#include <vector>

namespace tarvel {

struct KeyRow {
    QString keys;   ///< as they are shown; several with " or " between them
    QString deed;   ///< what they do, in plain words
    QString action; ///< object name of the menu's entry that has these keys, or empty
};

struct KeyGroup {
    QString where;
    std::vector<KeyRow> rows;
};

[[nodiscard]] const std::vector<KeyGroup>& keyTable();

/// The table as a page to be shown.
[[nodiscard]] QString keyPage();

} // namespace tarvel
