// Lays captions out, and keeps the layouts that were used last.
#include "surface/text_cache.h"

#include "widgets/qt_text.h"
#include "widgets/skin_fonts.h"

#include <QTextOption>

#include <algorithm>
#include <string_view>

namespace tarvel {

namespace {

// More texts than any one screen shows; beyond it everything is forgotten rather than kept for
// elements that may be gone.
constexpr std::size_t largestCount = 20'000;
constexpr std::size_t largestFonts = 256;
// A caption of this many bytes covers the whole screen; what follows it cannot be seen.
constexpr std::size_t largestCaption = 20'000;
constexpr float largestWidth = 100'000;

Qt::Alignment alignmentOf(TextAlignment alignment) {
    switch (alignment) {
    case TextAlignment::right:
        return Qt::AlignRight;
    case TextAlignment::center:
        return Qt::AlignHCenter;
    case TextAlignment::left:
        break;
    }
    return Qt::AlignLeft;
}

bool isLaidOutFrom(const LaidOutText& entry, const ElementControl& control) {
    return entry.width == control.width && entry.alignment == control.alignment &&
           entry.caption == control.caption && entry.choice == control.font;
}

} // namespace

QString brokenLines(std::string_view caption) {
    QString text = qtText(caption);
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    return text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
}

const LaidOutText& TextCache::laidOut(int elementId, const ElementControl& control) {
    const auto known = texts_.find(elementId);
    if (known != texts_.end() && isLaidOutFrom(known->second, control)) {
        return known->second;
    }
    if (texts_.size() >= largestCount || fonts_.size() >= largestFonts) {
        clear();
    }
    LaidOutText& entry = texts_[elementId];
    layOut(entry, control);
    return entry;
}

void TextCache::clear() {
    texts_.clear();
    fonts_.clear();
}

int TextCache::fontIndex(const FontChoice& choice) {
    const auto known = std::find_if(fonts_.begin(), fonts_.end(),
                                    [&](const KnownFont& entry) { return entry.choice == choice; });
    if (known != fonts_.end()) {
        return static_cast<int>(known - fonts_.begin());
    }
    fonts_.push_back({choice, skinFont(choice)});
    return static_cast<int>(fonts_.size()) - 1;
}

void TextCache::layOut(LaidOutText& entry, const ElementControl& control) {
    entry.caption = control.caption;
    entry.choice = control.font;
    entry.width = control.width;
    entry.alignment = control.alignment;
    entry.font = fontIndex(*control.font);

    QTextOption option(alignmentOf(control.alignment));
    option.setWrapMode(QTextOption::WordWrap);
    entry.text = QStaticText();
    entry.text.setTextFormat(Qt::PlainText);
    entry.text.setTextOption(option);
    entry.text.setTextWidth(std::min(double{control.width}, double{largestWidth}));
    // Static texts know no line feeds.
    entry.text.setText(brokenLines(std::string_view(entry.caption).substr(0, largestCaption))
                           .replace(QLatin1Char('\n'), QChar::LineSeparator));
    entry.text.prepare({}, font(entry.font));
    entry.size = entry.text.size();
}

} // namespace tarvel
