// The optional information fields of a skin: how they are named and added.
#pragma once

#include "document/skin_settings.h"

#include <string>
#include <string_view>

namespace tarvel {

inline constexpr std::string_view fieldPrompt = "Enter name of field";

/// The name that an answer to fieldPrompt gives a field: blanks become "_"; "<" and ">", which no
/// tag can hold, are left out.
[[nodiscard]] std::string fieldName(std::string_view answer);

/// Appends a field without a value. Returns false, and adds nothing, when no name is left of the
/// answer.
bool addField(SkinSettings& settings, std::string_view answer);

/// The value of a field by its place, from 0 on; "" where there is no such field.
[[nodiscard]] std::string_view fieldValue(const SkinSettings& settings, int field);
/// Nothing happens where there is no such field.
void setFieldValue(SkinSettings& settings, int field, std::string value);

} // namespace tarvel
