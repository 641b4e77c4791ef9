// Shows a delay as text, and sets it from a text.
#include "editing/delay_rules.h"

namespace tarvel {

std::string delayText(const SkinSettings& settings, int field) {
    return numberText(settings.delays.at(static_cast<std::size_t>(field)));
}

void setDelay(SkinSettings& settings, int field, std::string_view text) {
    const auto index = static_cast<std::size_t>(field); // a negative one is too large
    if (index < settings.delays.size()) {
        settings.delays[index] = val(text);
    }
}

} // namespace tarvel
