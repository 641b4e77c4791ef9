// Appends lines with the indentation of the moment, and keeps count of it.
#include "text/line_writer.h"

#include <algorithm>

namespace tarvel {

namespace {

bool opensLevel(std::string_view line) {
    if (line.find('<') == std::string_view::npos) {
        return false;
    }
    for (auto slash = line.find('/'); slash != std::string_view::npos;
         slash = line.find('/', slash + 1)) {
        const bool ends = slash > 0 && line[slash - 1] == '<';
        const bool closes = slash + 1 < line.size() && line[slash + 1] == '>';
        if (ends || closes) {
            return false;
        }
    }
    return true;
}

} // namespace

void LineWriter::writeLine(std::string_view line) {
    if (line.starts_with("</")) {
        xmlIndent_ = static_cast<std::int16_t>(std::max(xmlIndent_ - 1, INT16_MIN));
    }
    if (xmlIndent_ > 0) {
        xmlText_.append(static_cast<std::size_t>(xmlIndent_), '\t');
    }
    if (opensLevel(line)) {
        xmlIndent_ = static_cast<std::int16_t>(std::min(xmlIndent_ + 1, INT16_MAX));
    }
    xmlText_.append(line);
    xmlText_.append("\r\n");
}

void LineWriter::clear() {
    xmlText_.clear();
    xmlIndent_ = 0;
}

} // namespace tarvel
