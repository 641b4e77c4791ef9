// XML text into an XmlTree, by way of pugixml.
#pragma once

#include "text/xml_node.h"

#include <stdexcept>
#include <string>
#include <string_view>

namespace tarvel {

/// Text that is no XML. what() says what is wrong, without the line.
class XmlError : public std::runtime_error {
  public:
    XmlError(const std::string& problem, int line)
        : std::runtime_error(problem)
        , line_(line) {}

    /// Line of the text, counted from 1.
    [[nodiscard]] int line() const { return line_; }

  private:
    int line_;
};

/// Parses UTF-8 text. Entities and character references are replaced, CR LF within text becomes LF,
/// raw "&" and ">" are accepted. Throws XmlError.
[[nodiscard]] XmlTree parseXml(std::string text);

/// Appends the elements of a piece of XML under parent, for text that has no single root. White
/// space is kept as it stands. Throws XmlError, with the tree as it was.
void parseFragmentInto(XmlTree& tree, XmlTree::Index parent, std::string_view fragment);

/// The number of the line (from 1) that holds the byte at offset.
[[nodiscard]] int lineAt(std::string_view text, std::size_t offset);

/// The version of the library that parses, such as "1.13".
[[nodiscard]] std::string xmlLibraryVersion();

} // namespace tarvel
