// The bytes of a QOR_Skin.xml into a tree, whether Tarvel wrote them or a person did.
#pragma once

#include "text/text_encoding.h"
#include "text/xml_parse.h"

#include <cstdint>
#include <string>
#include <vector>

namespace tarvel {

/// Bytes of the longest text that is read: a tree counts its characters in 32 bits, those that
/// decoding adds included.
inline constexpr std::uint32_t largestSkinText = UINT32_MAX / 2;

/// How a skin's text had to be read.
struct SkinTextNotes {
    TextEncoding encoding = TextEncoding::utf8;
    /// Every line is one that the writer writes, and was read by its form.
    bool writerForm = false;
    /// Lines (from 1) with raw XML characters that were taken by their form in a file that is no
    /// XML.
    std::vector<int> mendedLines;
};

/// Reads a skin's text in up to three ways: by the writer's line forms, values verbatim; as XML; as
/// XML with the lines of a writer's form taken by it. Throws XmlError when none succeeds.
[[nodiscard]] XmlTree readSkinText(std::string bytes, SkinTextNotes& notes);

} // namespace tarvel
