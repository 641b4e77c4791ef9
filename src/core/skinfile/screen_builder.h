// Fills a screen from the Layout node of a skin file.
#pragma once

#include "document/skin_document.h"
#include "text/xml_node.h"

namespace tarvel {

/// Makes an element on the current screen out of its description. Returns false, and makes none,
/// for an unknown Type or a node without children.
bool drawElement(SkinDocument& document, XmlNode node);

/// Makes one element for each child of the Layout node, in order, on the screen that the node names
/// (an unknown name: "Title"), which becomes the current one. Children of unknown Type or without
/// children of their own are left out.
///
/// Images and boxes add the two spellings of a coordinate (X and L, Y and T) as numbers; texts and
/// menus join them as text. A child without Pos takes the position from its last child.
void drawScreen(SkinDocument& document, XmlNode layout);

} // namespace tarvel
