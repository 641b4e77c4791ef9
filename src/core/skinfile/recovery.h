// The state of the work as bytes, and back: what a run that did not end properly leaves to the next
// one.
//
// Unlike a skin's own file it carries everything: fonts, locks, ids, records of deleted elements,
// settings that no skin file knows.
#pragma once

#include "document/skin_document.h"
#include "skinfile/sealed_bytes.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tarvel {

/// What is being worked at.
struct WorkState {
    SkinDocument document;
    std::vector<int> selected; ///< ids of the selected elements, in the order of selection
    int leading = 0;           ///< id of the selected element that leads; 0 for none
    std::string folder;        ///< the skin's folder as the host spells it; "" for none yet
    std::int64_t keptAt = 0;   ///< milliseconds since 1970, UTC

    bool operator==(const WorkState&) const = default;
};

inline constexpr Seal recoverySeal{.magic = "\x89TARVEL\n", .version = 1};

/// The bytes of a recovery file, a view into the buffer, which grows as it has to. Floats keep
/// every bit. Throws std::length_error for a text beyond 4 GB.
[[nodiscard]] std::string_view recoveryBytes(const WorkState& work, std::string& buffer);
[[nodiscard]] std::string recoveryBytes(const WorkState& work);

/// The state in the bytes of a recovery file, equal to the one that was written. Throws
/// SealedBytesError for anything else; takes memory by what is there and not by what the bytes
/// claim.
[[nodiscard]] WorkState readRecovery(std::string_view bytes);

} // namespace tarvel
