// Makes names of information fields that a tag can hold, and adds the fields.
#include "editing/information_rules.h"

#include <algorithm>
#include <utility>

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

std::string_view fieldValue(const SkinSettings& settings, int field) {
    const auto index = static_cast<std::size_t>(field); // a negative one is too large
    return index < settings.information.size() ? settings.information[index].value
                                               : std::string_view();
}

void setFieldValue(SkinSettings& settings, int field, std::string value) {
    const auto index = static_cast<std::size_t>(field);
    if (index < settings.information.size()) {
        settings.information[index].value = std::move(value);
    }
}

} // namespace tarvel
