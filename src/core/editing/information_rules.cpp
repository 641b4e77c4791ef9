// Names of information fields.
#include "editing/information_rules.h"

#include <algorithm>

namespace tarvel {

std::string fieldName(std::string_view answer) {
    std::string name(answer);
    std::erase_if(name, [](char c) { return c == '<' || c == '>'; });
    std::replace(name.begin(), name.end(), ' ', '_');
    return name;
}

bool addField(SkinSettings& settings, std::string_view answer) {
    std::string name = fieldName(answer);
    if (name.empty()) {
        return false;
    }
    settings.information.push_back({std::move(name), {}});
    return true;
}

} // namespace tarvel
