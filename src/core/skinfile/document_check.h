// What is worth knowing about a skin that is open, before it goes to the console.
#pragma once

#include "document/skin_document.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvel {

enum class Severity : std::uint8_t {
    error,   ///< a part of the skin will not be shown, or not be saved
    warning, ///< something is probably not what is meant
    note     ///< good to know
};

/// Something worth knowing.
struct Finding {
    std::string text;             ///< one line for the user
    std::optional<int> screen;    ///< of the element that it is about
    std::optional<int> elementId; ///< set when the screen is
    Severity severity = Severity::warning;

    /// The same thing about the same element. How bad it is follows from that.
    bool operator==(const Finding& other) const {
        return text == other.text && screen == other.screen && elementId == other.elementId;
    }
};

/// In the order of the skin: resource files that are missing, lie outside or have one name; sources
/// that name no resource, and texts that name no field of the dashboard; elements off the screen or
/// hidden by others; pictures that are much too large; characters outside Windows-1252. `folder` is
/// the skin's, or empty: then nothing is told about saving over it. Reads the heads of pictures and
/// writes nothing.
[[nodiscard]] std::vector<Finding> checkDocument(const SkinDocument& document,
                                                 const std::filesystem::path& folder);

// The parts of it: all but the characters, and these in the text that the writer makes.
void findInDocument(const SkinDocument& document, const std::filesystem::path& folder,
                    std::vector<Finding>& findings);
void findCharacters(std::string_view writtenText, std::vector<Finding>& findings);

/// Adds a finding; line breaks in the text become blanks.
void addFinding(std::vector<Finding>& findings, std::string text,
                Severity severity = Severity::warning);

/// A name as findings show it.
[[nodiscard]] std::string inQuotes(std::string_view text);

} // namespace tarvel
