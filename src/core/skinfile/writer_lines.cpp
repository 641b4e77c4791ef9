// The table of line forms, and matching against it.
#include "skinfile/writer_lines.h"

#include <algorithm>
#include <initializer_list>

namespace tarvel {

namespace {

using Action = LineForm::Action;
using Values = LineForm::Values;
using Pieces = std::initializer_list<std::string_view>;

constexpr std::size_t sectionCount = static_cast<std::size_t>(Section::itemSecondary) + 1;

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

// All forms by section and, because a load matches every line, by the character after the "<".
// Within one of these the most frequent come first.
class FormTable {
  public:
    FormTable() {
        addSkinSections();
        addElementSections();
        addMenuSections();
    }

    /// The forms that a line with this second character can have.
    [[nodiscard]] const std::vector<LineForm>& of(Section section, char second) const {
        const auto& forms = forms_[static_cast<std::size_t>(section)];
        return forms.ofAnyTag.empty() ? forms.bySecond[bucket(second)] : forms.ofAnyTag;
    }
    /// The forms that hold text of the user's.
    [[nodiscard]] const std::vector<LineForm>& ofText() const { return textForms_; }

  private:
    void add(Section in, Action action, Values values, Pieces pieces,
             Section enters = Section::file) {
        LineForm form;
        form.in = in;
        form.action = action;
        form.values = values;
        form.enters = enters;
        std::copy(pieces.begin(), pieces.end(), form.pieces.begin());
        form.pieceCount = pieces.size();
        PlaceFinder(form).find();
        SectionForms& forms = forms_[static_cast<std::size_t>(in)];
        const bool anyTag = in == Section::information || in == Section::resource;
        (anyTag ? forms.ofAnyTag : forms.bySecond[bucket(form.pieces[0][1])]).push_back(form);
        if (values == Values::text || values == Values::tag) {
            textForms_.push_back(form);
        }
    }
    void open(Section in, std::string_view line, Section enters) {
        add(in, Action::open, Values::none, {line}, enters);
    }
    void openNamed(Section in, std::string_view start, Section enters) {
        add(in, Action::open, Values::text, {start, "\">"}, enters);
    }
    void close(Section in, std::string_view line) { add(in, Action::close, Values::none, {line}); }
    void leaf(Section in, Values values, std::string_view start, std::string_view end) {
        add(in, Action::leaf, values, {start, end});
    }

    void addSkinSections() {
        openNamed(Section::file, "<Skin name=\"", Section::skin);
        open(Section::skin, "<Information>", Section::information);
        open(Section::skin, "<Music>", Section::music);
        open(Section::skin, "<Delays>", Section::delays);
        open(Section::skin, "<MessageBox>", Section::messageBox);
        open(Section::skin, "<SystemMenu>", Section::systemMenu);
        openNamed(Section::skin, R"(<Resource Type="Image" Name=")", Section::resource);
        openNamed(Section::skin, R"(<Layout Screen=")", Section::layout);
        close(Section::skin, "</Skin>");
        // A field can be called "/x", so the section's own end tag is tried before any tag.
        close(Section::information, "</Information>");
        add(Section::information, Action::leaf, Values::tag, {""});
        leaf(Section::music, Values::word, "<PlayGlobal>", "</PlayGlobal>");
        leaf(Section::music, Values::word, "<PlayRandom>", "</PlayRandom>");
        leaf(Section::music, Values::word, "<Directory>", "</Directory>");
        close(Section::music, "</Music>");
        leaf(Section::delays, Values::number, "<Title>", "</Title>");
        leaf(Section::delays, Values::number, "<Load>", "</Load>");
        leaf(Section::delays, Values::number, "<Saver>", "</Saver>");
        close(Section::delays, "</Delays>");
        for (const Section section : {Section::messageBox, Section::systemMenu}) {
            leaf(section, Values::color, "<BoxColor>", "</BoxColor>");
            leaf(section, Values::color, "<BorderColor>", "</BorderColor>");
            leaf(section, Values::color, "<TextColor>", "</TextColor>");
        }
        leaf(Section::messageBox, Values::color, "<ShadowColor>", "</ShadowColor>");
        close(Section::messageBox, "</MessageBox>");
        leaf(Section::systemMenu, Values::color, "<SelectColor>", "</SelectColor>");
        leaf(Section::systemMenu, Values::color, "<ValueColor>", "</ValueColor>");
        leaf(Section::systemMenu, Values::color, "<SelectValueColor>", "</SelectValueColor>");
        close(Section::systemMenu, "</SystemMenu>");
        close(Section::resource, "</Resource>");
        add(Section::resource, Action::leaf, Values::tag, {""});
    }

    void addElementSections() {
        open(Section::layout, R"(<LayoutElement Type="Box">)", Section::element);
        openNamed(Section::layout, R"(<LayoutElement Type="Image" Source=")", Section::element);
        open(Section::layout, R"(<LayoutElement Type="Text">)", Section::element);
        openNamed(Section::layout, R"(<LayoutElement Type="Text" Source=")", Section::element);
        open(Section::layout, R"(<LayoutElement Type="Line">)", Section::element);
        open(Section::layout, R"(<LayoutElement Type="Menu" Source="QOR">)", Section::element);
        close(Section::layout, "</Layout>");

        constexpr auto element = Section::element;
        close(element, "</LayoutElement>");
        add(element, Action::single, Values::number,
            {R"(<Pos L=")", R"(" T=")", R"(" W=")", R"(" H=")", R"("/>)"});
        leaf(element, Values::color, "<Color>", "</Color>");
        leaf(element, Values::color, "<BorderColor>", "</BorderColor>");
        leaf(element, Values::color, "<TextColor>", "</TextColor>");
        leaf(element, Values::text, "<Constant>", "</Constant>");
        add(element, Action::single, Values::none, {R"(<Scaling X="True" Y="True"/>)"});
        add(element, Action::single, Values::number,
            {R"(<Pos X1=")", R"(" Y1=")", R"(" X2=")", R"(" Y2=")", R"("/>)"});
        leaf(element, Values::text, "<Condition>", "</Condition>");
        leaf(element, Values::number, R"(<Timer Type="Delay">)", "</Timer>");
        leaf(element, Values::number, R"(<Timer Type="CycleOn">)", "</Timer>");
        leaf(element, Values::number, R"(<Timer Type="CycleOff">)", "</Timer>");
        leaf(element, Values::number, R"(<Timer Type="Lifetime">)", "</Timer>");
        add(element, Action::single, Values::none, {R"(<Pos L="0"  T="0" W="640"  H="480"/>)"});
    }

    void addMenuSections() {
        constexpr auto element = Section::element;
        leaf(element, Values::word, R"(<Thumbnails Align="Left">)", "</Thumbnails>");
        open(element, R"(<Primary Source="Title">)", Section::primary);
        open(element, R"(<Secondary Source="Descr">)", Section::secondary);
        open(element, "<Selection>", Section::selection);
        open(element, "<UnSelItem>", Section::unselected);
        leaf(element, Values::number, "<NumItems>", "</NumItems>");
        leaf(element, Values::number, "<SelPos>", "</SelPos>");
        leaf(element, Values::number, "<ScrollFactor>", "</ScrollFactor>");
        leaf(element, Values::word, "<SmoothScroll>", "</SmoothScroll>");
        leaf(element, Values::word, "<DrawSecondary>", "</DrawSecondary>");
        for (const Section section : {Section::primary, Section::secondary}) {
            leaf(section, Values::number, "<OffsetY>", "</OffsetY>");
            leaf(section, Values::text, "<JustifyX>", "</JustifyX>");
        }
        close(Section::primary, "</Primary>");
        close(Section::secondary, "</Secondary>");
        leaf(Section::selection, Values::word, "<DoGlow>", "</DoGlow>");
        for (const Section section : {Section::selection, Section::unselected}) {
            leaf(section, Values::color, "<TextColor>", "</TextColor>");
            open(section, "<Secondary>", Section::itemSecondary);
        }
        close(Section::selection, "</Selection>");
        close(Section::unselected, "</UnSelItem>");
        leaf(Section::itemSecondary, Values::color, "<TextColor>", "</TextColor>");
        close(Section::itemSecondary, "</Secondary>");
    }

    static constexpr std::size_t buckets = 32;
    static std::size_t bucket(char second) { return static_cast<unsigned char>(second) % buckets; }

    struct SectionForms {
        std::array<std::vector<LineForm>, buckets> bySecond;
        std::vector<LineForm> ofAnyTag; // all of a section whose tags the user names
    };
    std::array<SectionForms, sectionCount> forms_;
    std::vector<LineForm> textForms_;
};

const FormTable& table() {
    static const FormTable forms;
    return forms;
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

bool matchLine(std::string_view line, Section section, WriterLine& match) {
    for (const LineForm& form : table().of(section, line[1])) {
        if (startsLike(line, form) && matchForm(line, form, match)) {
            return true;
        }
    }
    return false;
}

bool matchTextLine(std::string_view line, bool inTagLists, WriterLine& match) {
    for (const LineForm& form : table().ofText()) {
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
