// Elements that are copied: what goes along, and its forms as bytes and as text.
//
// The bytes carry everything and are for Tarvel alone. The text has the elements' lines as a skin
// file has them, without what no skin file carries, and can be typed by hand.
#pragma once

#include "document/skin_document.h"
#include "skinfile/sealed_bytes.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvel {

/// Copied elements and the resources that they use. The elements have the row texts of fresh ones
/// and no locks; their elementLayout is the screen that they come from.
struct ClipboardContent {
    std::vector<Element> elements;   ///< back to front
    std::vector<Resource> resources; ///< in the order of the skin, each name in use once

    bool operator==(const ClipboardContent&) const = default;
};

/// The elements of these ids that stand on a screen, in stacking order, screen by screen; of an id
/// given twice one. Takes time as the document's rows, the ids and the resources grow.
[[nodiscard]] ClipboardContent copyElements(const SkinDocument& document,
                                            const std::vector<int>& ids);

/// What the bytes are called where a clipboard names its formats.
inline constexpr std::string_view clipboardFormat = "application/x-tarvel-elements";
inline constexpr Seal clipboardSeal{.magic = "\x89TVCLIP\n", .version = 1};

/// Throws std::length_error for a text beyond 4 GB.
[[nodiscard]] std::string clipboardBytes(const ClipboardContent& content);

/// The content in the bytes, which may come from anywhere: throws SealedBytesError for anything
/// else, for places that are no numbers, and for modifiers deeper than a skin file may have them.
/// Takes memory by what is there and not by what the bytes claim.
[[nodiscard]] ClipboardContent readClipboardBytes(std::string_view bytes);

/// The resources, with the full paths of their files, and then the elements, as lines that end with
/// CR LF; escapes nothing, as a skin file.
[[nodiscard]] std::string clipboardText(const ClipboardContent& content);

/// The elements in a text (UTF-8) that somebody copied or typed: LayoutElement nodes, with Resource
/// nodes before or between them or without any, whole Layout nodes, or a whole skin. Nothing for a
/// text that is anything else, or that holds no element that could be made.
///
/// A file that is named by a relative path lies in `folder`, the skin's, under the rules of a
/// loaded skin. Without a folder such a resource is left out, and the elements name it all the
/// same.
[[nodiscard]] std::optional<ClipboardContent>
readClipboardText(std::string_view text, const std::filesystem::path& folder = {});

} // namespace tarvel
