// XML without its rarer parts, read in one walk over the text that the tree already holds.
//
// A tree of pugixml's costs as much again to walk as it cost to build. Most skins and all modifiers
// are plain: what is not goes to pugixml.
#pragma once

#include "skinfile/xml_node.h"

#include <cstddef>

namespace tarvel {

/// Appends the elements in the bytes [from, to) of the tree's own text under parent, with the same
/// result as parseXml. False, with the tree as it was, when the text is not plain: for CDATA,
/// document types, processing instructions, numeric references, names beyond ASCII, line ends or
/// "<" in attributes, text outside elements, and for whatever is no XML.
bool parsePlainXml(XmlTree& tree, XmlTree::Index parent, std::size_t from, std::size_t to);

} // namespace tarvel
