// Reads a skin's text by the writer's forms, as XML, or as XML whose broken lines are mended.
#include "skinfile/skin_text.h"

#include "skinfile/writer_lines.h"
#include "text/plain_xml.h"
#include "text/text_case.h"

#include <algorithm>
#include <array>
#include <optional>

namespace tarvel {

namespace {

constexpr std::string_view lineEnd = "\r\n";
constexpr std::string_view modifierStart = "<Modifier";
constexpr std::string_view modifierEnd = "</Modifier>";

bool startsModifier(std::string_view line) {
    return line.starts_with(modifierStart) && line.size() > modifierStart.size() &&
           (line[modifierStart.size()] == ' ' || line[modifierStart.size()] == '>');
}

// The XML with the references beyond ASCII in the names of tags and attributes decoded: the
// writer's code page lacks such characters, and no XML parser takes a reference in a name.
std::string withNamesDecoded(std::string_view xml) {
    constexpr std::string_view endsNames = ">\"'";
    std::string result;
    std::string_view ends = "<"; // what ends the piece at hand
    while (!xml.empty()) {
        const auto end = std::min(xml.find_first_of(ends), xml.size());
        const bool names = ends == endsNames;
        if (names) {
            appendWithReferencesDecoded(result, xml.substr(0, end));
        } else {
            result.append(xml.substr(0, end));
        }
        const auto delimiter = xml.substr(end, 1);
        result.append(delimiter);
        // After the names of a tag comes text or an attribute's value, after those names again.
        ends = !names ? endsNames : delimiter == ">" ? "<" : delimiter;
        xml.remove_prefix(end + delimiter.size());
    }
    return result;
}

// Reads a text of which every line has a writer's form. The tree names most values in place.
class FormReader {
  public:
    explicit FormReader(XmlTree& tree)
        : tree_(tree)
        , size_(tree.text().size())
        , hasReferences_(tree.text().find("&#") != std::string_view::npos) {
        constexpr std::size_t bytesPerElement = 40; // of a written skin, roughly
        tree_.reserveElements(size_ / bytesPerElement);
    }

    // False at the first line that has no form; the tree is of no use then.
    bool read() {
        if (!endsAsWritten()) {
            return false;
        }
        while (at_ < size_) {
            const auto line = nextLine();
            if (!line || !take(*line)) {
                return false;
            }
        }
        return depth_ == 0 && tree_.root();
    }

  private:
    static constexpr std::size_t deepest = 8;
    struct Level {
        Section section{};
        XmlTree::Index node = XmlTree::top;
    };

    // Whether the last line is the writer's: most texts of others are told by that at once.
    [[nodiscard]] bool endsAsWritten() const {
        const auto text = tree_.text();
        const auto last = text.find_last_not_of("\t\r\n");
        return last != std::string_view::npos && text.substr(0, last + 1).ends_with("</Skin>");
    }

    // The line at at_ without indentation; nothing when no CR LF ends it.
    std::optional<std::string_view> nextLine() {
        const auto text = tree_.text();
        const auto end = text.substr(0, size_).find(lineEnd, at_);
        if (end == std::string_view::npos) {
            return std::nullopt;
        }
        auto line = text.substr(at_, end - at_);
        at_ = end + lineEnd.size();
        while (line.starts_with('\t')) {
            line.remove_prefix(1);
        }
        return line;
    }

    bool take(std::string_view line) {
        const Section section = levels_[depth_].section;
        if (line.empty()) {
            return section == written_.file || section == written_.resource ||
                   section == written_.element;
        }
        if (section == written_.element && startsModifier(line)) {
            return takeModifier(line);
        }
        if (line.size() < 3 || !written_.forms.match(line, section, match_)) {
            return false;
        }
        if (match_.form->action == LineForm::Action::close) {
            --depth_;
            return true;
        }
        const auto node = addNode(line, match_);
        if (match_.form->action == LineForm::Action::open) {
            levels_[++depth_] = {match_.form->enters, node};
        }
        return true;
    }

    XmlTree::Index addNode(std::string_view line, const WriterLine& match) {
        const LineForm& form = *match.form;
        const auto parent = levels_[depth_].node;
        // Places, not views: decoding a value may move the text.
        std::array<XmlTree::Span, LineForm::mostValues> values;
        for (std::size_t i = 0; i < match.valueCount; ++i) {
            values[i] = spanOf(match.values[i]);
        }
        if (form.values == LineForm::Values::tag) {
            const auto name = decoded(spanOf(match.name));
            return tree_.addChild(parent, name, decoded(values[0]));
        }
        const LineLayout layout = layoutOf(match, line);
        const auto start = spanOf(line).position;
        const auto literal = [&](const LineForm::Place& place) {
            return XmlTree::Span{
                start + static_cast<std::uint32_t>(layout.pieceStart[place.piece]) + place.offset,
                place.length};
        };
        const auto content = form.hasContent ? decoded(values[0]) : XmlTree::Span{};
        const auto node = tree_.addChild(parent, literal(form.tag), content);
        for (std::size_t i = 0; i < form.attributeCount; ++i) {
            const auto& [name, fixedValue, isFixed] = form.attributes[i];
            tree_.addAttribute(node, literal(name),
                               isFixed ? literal(fixedValue) : decoded(values[name.piece]));
        }
        return node;
    }

    [[nodiscard]] XmlTree::Span spanOf(std::string_view part) const {
        return {static_cast<std::uint32_t>(part.data() - tree_.text().data()),
                static_cast<std::uint32_t>(part.size())};
    }

    XmlTree::Span decoded(XmlTree::Span span) {
        const auto value = tree_.text().substr(span.position, span.length);
        if (!hasReferences_ || value.find("&#") == std::string_view::npos) {
            return span;
        }
        std::string text;
        appendWithReferencesDecoded(text, value);
        return tree_.addText(text);
    }

    // A modifier is the XML that an XML writer made of it, over several lines.
    bool takeModifier(std::string_view line) {
        const auto start = static_cast<std::size_t>(line.data() - tree_.text().data());
        int open = 0;
        for (std::optional<std::string_view> next = line; next; next = nextLine()) {
            open += startsModifier(*next) ? 1 : 0;
            open -= next->ends_with(modifierEnd) ? 1 : 0;
            if (open <= 0) {
                break;
            }
        }
        return open == 0 && takeXml(start);
    }

    // The XML from start up to at_.
    bool takeXml(std::size_t start) {
        const auto parent = levels_[depth_].node;
        if (plainXml_.parse(tree_, parent, start, at_)) {
            return true;
        }
        try {
            const std::string block = withNamesDecoded(tree_.text().substr(start, at_ - start));
            parseFragmentInto(tree_, parent, block);
            return true;
        } catch (const XmlError&) {
            return false;
        }
    }

    const WrittenLines& written_ = writtenLines();
    XmlTree& tree_;
    std::size_t size_;
    bool hasReferences_;
    std::size_t at_ = 0;
    std::array<Level, deepest> levels_{Level{written_.file}};
    std::size_t depth_ = 0;
    WriterLine match_; // of the line at hand
    PlainXmlReader plainXml_;
};

void appendXmlEscaped(std::string& text, std::string_view raw) {
    for (const char c : raw) {
        switch (c) {
        case '&':
            text += "&amp;";
            break;
        case '<':
            text += "&lt;";
            break;
        case '"':
            text += "&quot;";
            break;
        default:
            text += c;
        }
    }
}

// Whether a tag can have this name in XML. All characters beyond ASCII can stand in it.
bool isXmlName(std::string_view name) {
    const auto isStart = [](char c) {
        return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_' || c == ':' ||
               static_cast<unsigned char>(c) >= 0x80;
    };
    return !name.empty() && isStart(name.front()) &&
           std::all_of(name.begin(), name.end(), [isStart](char c) {
               return isStart(c) || (c >= '0' && c <= '9') || c == '-' || c == '.';
           });
}

// Turns the lines of a writer's form in a text that is no XML into XML, line by line.
class Mender {
  public:
    Mender(std::string_view text, std::vector<int>& mendedLines)
        : text_(text)
        , mendedLines_(mendedLines) {}

    std::string mend() {
        const bool written = text_.find(lineEnd) != std::string_view::npos;
        const std::string_view end = written ? lineEnd : "\n";
        int number = 1; // of the line in the file, where each line feed counts
        for (std::size_t at = 0, ending = 0; at < text_.size();) {
            if (ending <= at) {
                ending = std::min(text_.find(end, at), text_.size());
            }
            auto bare = text_.substr(at, ending - at);
            // A value can hold a line feed. One elsewhere ends a line that somebody added.
            const auto feed = written ? bare.find('\n') : std::string_view::npos;
            const bool added = feed != std::string_view::npos && !hasForm(bare);
            bare = added ? bare.substr(0, feed) : bare;
            const auto ended = text_.substr(at + bare.size(), added ? 1 : end.size());
            take(bare, ended, number);
            number += static_cast<int>(std::count(bare.begin(), bare.end(), '\n')) + 1;
            at += bare.size() + ended.size();
        }
        return std::move(result_);
    }

    // Gives the tags that could not stand in XML their names back.
    void restoreNames(XmlTree& tree) const {
        for (std::size_t i = 0; i < names_.size(); ++i) {
            tree.renameTags(placeholder(i), names_[i]);
        }
    }

  private:
    // A private-use character makes a name that no skin has.
    static std::string placeholder(std::size_t index) {
        return "\xEE\x80\x80" + std::to_string(index);
    }

    [[nodiscard]] static std::size_t indentOf(std::string_view bare) {
        return std::min(bare.find_first_not_of(" \t"), bare.size());
    }

    // False within a modifier, which is XML whatever its lines look like.
    bool matches(std::string_view line, WriterLine& match) const {
        return openModifiers_ == 0 && line.size() >= 3 &&
               writtenLines().forms.matchText(line, inTagLists_, match);
    }

    [[nodiscard]] bool hasForm(std::string_view bare) const {
        WriterLine match;
        return matches(bare.substr(indentOf(bare)), match);
    }

    void take(std::string_view bare, std::string_view ending, int number) {
        const auto indent = indentOf(bare);
        const auto line = bare.substr(indent);
        const std::string mended = mendedLine(line);
        if (mended != line) {
            mendedLines_.push_back(number);
        }
        result_.append(bare.substr(0, indent)).append(mended).append(ending);
    }

    std::string mendedLine(std::string_view line) {
        WriterLine match;
        if (matches(line, match)) {
            if (match.form->values != LineForm::Values::tag) { // a field can be called "/Resource"
                followLists(line);
            }
            return asXml(match);
        }
        followLists(line);
        return touchesModifier(line) ? withNamesDecoded(line) : std::string(line);
    }

    void followLists(std::string_view line) {
        const auto starts = [line](std::string_view tag) {
            return equalsIgnoringCase(line.substr(0, tag.size()), tag);
        };
        if (starts("<information") || starts("<resource")) {
            const std::string lower = lowerCased(line);
            inTagLists_ = !line.ends_with("/>") && lower.find("</information") == lower.npos &&
                          lower.find("</resource") == lower.npos;
        } else if (starts("</information") || starts("</resource")) {
            inTagLists_ = false;
        }
    }

    // Whether any of the line is in a modifier. Counts those that stay open after it.
    bool touchesModifier(std::string_view line) {
        const std::string lower = lowerCased(line);
        const std::string_view text = lower;
        if (text.starts_with("<layoutelement") || text.starts_with("</layoutelement")) {
            openModifiers_ = 0; // none reaches beyond its element, whatever its markup looked like
        }
        bool touched = openModifiers_ > 0;
        for (auto at = text.find('<'); at != text.npos; at = text.find('<', at + 1)) {
            const auto tag = text.substr(at, text.find('>', at) - at + 1);
            if (tag.starts_with("</modifier")) {
                openModifiers_ = std::max(openModifiers_ - 1, 0);
            } else if (tag.starts_with("<modifier")) {
                openModifiers_ += tag.ends_with("/>") ? 0 : 1;
                touched = true;
            }
        }
        return touched;
    }

    std::string asXml(const WriterLine& match) {
        std::string value;
        appendWithReferencesDecoded(value, match.values[0]);
        std::string line;
        if (match.form->values == LineForm::Values::tag) {
            std::string name;
            appendWithReferencesDecoded(name, match.name);
            if (!isXmlName(name)) {
                names_.push_back(name);
                name = placeholder(names_.size() - 1);
            }
            line.append("<").append(name).append(">");
            appendXmlEscaped(line, value);
            return line.append("</").append(name).append(">");
        }
        line.append(match.form->pieces[0]);
        appendXmlEscaped(line, value);
        return line.append(match.form->pieces[1]);
    }

    std::string_view text_;
    std::vector<int>& mendedLines_;
    std::vector<std::string> names_;
    std::string result_;
    bool inTagLists_ = false;
    int openModifiers_ = 0;
};

void requireText(std::string_view text) {
    if (text.find_first_not_of(" \t\r\n") == std::string_view::npos) {
        throw XmlError("the file is empty", 1);
    }
    const auto binary = text.find('\0');
    if (binary != std::string_view::npos) {
        throw XmlError("it is not a text file", lineAt(text, binary));
    }
}

// References can make a CR LF, which would end a line of the written file within the value.
XmlTree parsedXml(std::string text) {
    XmlTree tree = parseXml(std::move(text));
    tree.joinLineEnds();
    return tree;
}

XmlTree parseMended(std::string_view text, SkinTextNotes& notes) {
    Mender mender(text, notes.mendedLines);
    XmlTree tree = parsedXml(mender.mend());
    mender.restoreNames(tree);
    return tree;
}

} // namespace

XmlTree readSkinText(std::string bytes, SkinTextNotes& notes) {
    notes = {};
    DecodedText decoded = decodeText(std::move(bytes));
    notes.encoding = decoded.encoding;
    requireText(decoded.text);
    const auto size = decoded.text.size();
    if (size > largestSkinText) {
        throw XmlError("the file is too large", 1);
    }
    XmlTree tree(std::move(decoded.text));
    const auto empty = tree.mark(XmlTree::top);
    if (FormReader(tree).read()) {
        notes.writerForm = true;
        return tree;
    }
    tree.backTo(empty);
    // To XML a field called "!--" is a comment. No other text has such an end tag.
    const bool hidesField = tree.text().find("</!--") != std::string_view::npos;
    if (!hidesField && PlainXmlReader().parse(tree, XmlTree::top, 0, size) && tree.root()) {
        return tree;
    }
    const std::string text(tree.text().substr(0, size));
    try {
        return hidesField ? parseMended(text, notes) : parsedXml(text);
    } catch (const XmlError&) {
        notes.mendedLines.clear();
        return hidesField ? parsedXml(text) : parseMended(text, notes);
    }
}

} // namespace tarvel
