// Keeps a table of line forms, and matches lines against it.
#include "text/line_forms.h"

#include <algorithm>
#include <utility>

namespace tarvel {

namespace {

using Action = LineForm::Action;
using Values = LineForm::Values;

// Reads tag and attributes out of the literal pieces, once per form.
class PlaceFinder {
  public:
    explicit PlaceFinder(LineForm& form)
        : form_(form) {}

    void find() {
        const auto first = form_.pieces[0];
        if (!first.starts_with('<') || form_.action == Action::close) {
            return;
        }
        const auto tagEnd = std::min(first.find_first_of(" />", 1), first.size());
        form_.tag = place(0, 1, tagEnd - 1);
        for (std::size_t piece = 0; piece < form_.pieceCount; ++piece) {
            findAttributes(piece, piece == 0 ? tagEnd : 0);
        }
        form_.hasContent = form_.pieceCount == 2 && first.ends_with('>');
    }

  private:
    void findAttributes(std::size_t piece, std::size_t from) {
        const auto text = form_.pieces[piece];
        for (auto equals = text.find("=\"", from); equals != std::string_view::npos;
             equals = text.find("=\"", from)) {
            const auto nameStart = text.rfind(' ', equals) + 1;
            auto& attribute = form_.attributes[form_.attributeCount++];
            attribute.name = place(piece, nameStart, equals - nameStart);
            const auto valueStart = equals + 2;
            attribute.isFixed = valueStart < text.size();
            from = valueStart;
            if (attribute.isFixed) {
                const auto valueEnd = text.find('"', valueStart);
                attribute.fixedValue = place(piece, valueStart, valueEnd - valueStart);
                from = valueEnd + 1;
            }
        }
    }

    static LineForm::Place place(std::size_t piece, std::size_t offset, std::size_t length) {
        return {static_cast<std::uint8_t>(piece), static_cast<std::uint8_t>(offset),
                static_cast<std::uint8_t>(length)};
    }

    LineForm& form_;
};

std::size_t bucketOf(char second, std::size_t buckets) {
    return static_cast<unsigned char>(second) % buckets;
}

LineForm formOf(Section in, Action action, Values values, LineForms::Pieces pieces,
                Section enters) {
    LineForm form;
    form.in = in;
    form.action = action;
    form.values = values;
    form.enters = enters;
    std::copy(pieces.begin(), pieces.end(), form.pieces.begin());
    form.pieceCount = pieces.size();
    PlaceFinder(form).find();
    return form;
}

bool holds(const std::vector<LineForm>& forms, const LineForm& form) {
    return std::any_of(forms.begin(), forms.end(), [&](const LineForm& other) {
        return other.in == form.in && other.values == form.values && other.pieces == form.pieces;
    });
}

// starts_with without a call: the pieces of a form are a few characters long.
bool startsWith(std::string_view text, std::string_view piece) {
    if (text.size() < piece.size()) {
        return false;
    }
    for (std::size_t i = 0; i < piece.size(); ++i) {
        if (text[i] != piece[i]) {
            return false;
        }
    }
    return true;
}

bool belongs(char c, Values values) {
    switch (values) {
    case Values::word:
        return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
    case Values::color:
        return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'F') || c == 'x';
    default:
        return (c >= '0' && c <= '9') || c == '-' || c == '.';
    }
}

// `<name>value</name>`, with the first ">" as the end of the name.
bool matchTag(std::string_view line, WriterLine& match) {
    const auto nameEnd = line.find('>');
    if (!line.starts_with('<') || nameEnd == std::string_view::npos || nameEnd < 2) {
        return false;
    }
    const auto name = line.substr(1, nameEnd - 1);
    const auto endTag = name.size() + 3; // </name>
    if (line.size() < nameEnd + 1 + endTag || !line.ends_with('>') ||
        line.substr(line.size() - endTag, 2) != "</" ||
        line.substr(line.size() - endTag + 2, name.size()) != name) {
        return false;
    }
    match.name = name;
    match.values[0] = line.substr(nameEnd + 1, line.size() - endTag - nameEnd - 1);
    match.valueCount = 1;
    return true;
}

bool matchText(std::string_view line, const LineForm& form, WriterLine& match) {
    const auto& [start, end] = std::pair(form.pieces[0], form.pieces[1]);
    if (line.size() < start.size() + end.size() || !line.ends_with(end)) {
        return false;
    }
    match.values[0] = line.substr(start.size(), line.size() - start.size() - end.size());
    match.valueCount = 1;
    return true;
}

bool matchConstrained(std::string_view line, const LineForm& form, WriterLine& match) {
    std::size_t at = form.pieces[0].size();
    for (std::size_t piece = 1; piece < form.pieceCount; ++piece) {
        const std::size_t start = at;
        while (at < line.size() && belongs(line[at], form.values)) {
            ++at;
        }
        const auto value = line.substr(start, at - start);
        if (value.empty() || (form.values == Values::color && !value.starts_with("0x")) ||
            !startsWith(line.substr(at), form.pieces[piece])) {
            return false;
        }
        match.values[match.valueCount++] = value;
        at += form.pieces[piece].size();
    }
    return at == line.size();
}

// The cheap part of a match. All starts have three characters or more, and most differ by them.
bool startsLike(std::string_view line, const LineForm& form) {
    const auto start = form.pieces[0];
    return form.values == Values::tag || (line.size() >= start.size() && line[1] == start[1] &&
                                          line[2] == start[2] && startsWith(line, start));
}

bool matchForm(std::string_view line, const LineForm& form, WriterLine& match) {
    match.form = &form;
    match.valueCount = 0;
    switch (form.values) {
    case Values::tag:
        return matchTag(line, match);
    case Values::none:
        return line.size() == form.pieces[0].size();
    case Values::text:
        return matchText(line, form, match);
    default:
        return matchConstrained(line, form, match);
    }
}

} // namespace

Section LineForms::newSection() {
    sections_.emplace_back();
    return static_cast<Section>(sections_.size() - 1);
}

void LineForms::add(Section in, Action action, Values values, Pieces pieces, Section enters) {
    const LineForm form = formOf(in, action, values, pieces, enters);
    SectionForms& section = sections_[static_cast<std::size_t>(in)];
    auto& forms = section.takesAnyTag ? section.ofAnyTag
                                      : section.bySecond[bucketOf(form.pieces[0][1], buckets)];
    if (holds(forms, form)) {
        return;
    }
    forms.push_back(form);
    if (values == Values::text || values == Values::tag) {
        textForms_.push_back(form);
    }
}

void LineForms::open(Section in, std::string_view line, Section enters) {
    add(in, Action::open, Values::none, {line}, enters);
}

void LineForms::openNamed(Section in, std::string_view start, Section enters) {
    add(in, Action::open, Values::text, {start, "\">"}, enters);
}

void LineForms::close(Section in, std::string_view line) {
    add(in, Action::close, Values::none, {line});
}

void LineForms::leaf(Section in, Values values, std::string_view start, std::string_view end) {
    add(in, Action::leaf, values, {start, end});
}

void LineForms::anyTags(Section in, std::string_view end) {
    sections_[static_cast<std::size_t>(in)].takesAnyTag = true;
    // A tag can be called "/x", so the section's own end is tried before any tag.
    close(in, end);
    add(in, Action::leaf, Values::tag, {""});
}

bool LineForms::match(std::string_view line, Section section, WriterLine& match) const {
    const SectionForms& forms = sections_[static_cast<std::size_t>(section)];
    const auto& candidates =
        forms.takesAnyTag ? forms.ofAnyTag : forms.bySecond[bucketOf(line[1], buckets)];
    for (const LineForm& form : candidates) {
        if (startsLike(line, form) && matchForm(line, form, match)) {
            return true;
        }
    }
    return false;
}

bool LineForms::matchText(std::string_view line, bool inTagLists, WriterLine& match) const {
    for (const LineForm& form : textForms_) {
        const bool counts = form.values == Values::text || inTagLists;
        if (counts && startsLike(line, form) && matchForm(line, form, match)) {
            return true;
        }
    }
    return false;
}

LineLayout layoutOf(const WriterLine& line, std::string_view text) {
    LineLayout layout;
    for (std::size_t value = 0; value < line.valueCount; ++value) {
        layout.pieceStart[value + 1] = static_cast<std::size_t>(
            line.values[value].data() + line.values[value].size() - text.data());
    }
    return layout;
}

} // namespace tarvel
