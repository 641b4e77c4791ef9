// XML without its rarer parts, read in one walk over the text that the tree already holds.
//
// A tree of pugixml's costs as much again to walk as it cost to build: bench/README.md tells what
// that would make of reading. Most skins and all modifiers are plain: what is not goes to pugixml.
#pragma once

#include "text/xml_node.h"

#include <cstddef>
#include <string>
#include <vector>

namespace tarvel {

/// Reads plain XML. Keeps its memory from one text to the next.
class PlainXmlReader {
  public:
    /// Appends the elements in the bytes [from, to) of the tree's own text under parent, with the
    /// same result as parseXml. False, with the tree as it was, when the text is not plain: for
    /// CDATA, document types, processing instructions, numeric references, names beyond ASCII, line
    /// ends or "<" in attributes, text outside elements, and for whatever is no XML.
    bool parse(XmlTree& tree, XmlTree::Index parent, std::size_t from, std::size_t to);

    /// An element whose end tag is still to come.
    struct Open {
        XmlTree::Index node = 0;
        XmlTree::Span name;
        std::size_t firstPiece = 0;
    };
    /// Text between two tags.
    struct Piece {
        XmlTree::Span span;
        bool asItIs = true; ///< without entities and CR
    };

  private:
    std::vector<Open> open_;
    std::vector<Piece> pieces_; // of all open elements, innermost last
    std::string joined_;
};

} // namespace tarvel
