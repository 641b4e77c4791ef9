// Elements and resources as bytes and back, for all files of our own that hold them.
#pragma once

#include "document/element.h"
#include "document/skin_settings.h"
#include "skinfile/sealed_bytes.h"

#include <vector>

namespace tarvel {

/// The least that an element takes.
inline constexpr std::size_t elementBytes = 96;

/// Everything of the element, locks, fonts and its screen included. Floats keep every bit.
void writeElement(ByteWriter& out, const Element& element);
/// Throws SealedBytesError for a screen or a choice that there is not; a kind's code may be any.
[[nodiscard]] Element readElement(ByteReader& in);

void writeResources(ByteWriter& out, const std::vector<Resource>& resources);
/// Appends what writeResources() wrote. Throws SealedBytesError.
void readResources(ByteReader& in, std::vector<Resource>& resources);

} // namespace tarvel
