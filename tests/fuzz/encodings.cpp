// Any bytes for what decodes files and single values.
#include "text/text_encoding.h"
#include "text/value_encodings.h"

#include <cstdint>
#include <cstdlib>
#include <stdexcept>

namespace {

using namespace tarvel;

// A text that neither claims an encoding nor holds references comes back from the file's bytes.
void expectToComeBack(const std::string& text) {
    const bool speaksOfItself = text.starts_with("<?") || text.starts_with("\xEF\xBB\xBF") ||
                                text.find("&#") != std::string::npos ||
                                text.find('\0') != std::string::npos;
    const std::string bytes = encodeWindows1252(text);
    const DecodedText again = decodeText(bytes);
    if (!isValidUtf8(again.text)) {
        std::abort();
    }
    std::string back;
    appendWithReferencesDecoded(back, again.text);
    if (!speaksOfItself && again.encoding != TextEncoding::utf16LittleEndian &&
        again.encoding != TextEncoding::utf16BigEndian && back != text) {
        std::abort();
    }
}

void readValues(std::string_view text) {
    const float number = toSingle(val(text));
    if (toSingle(val(numberText(number))) != number) {
        std::abort(); // a written number reads back as itself
    }
    static_cast<void>(getColor(text));
    static_cast<void>(getAlpha(text));
    static_cast<void>(trimtofile(text));
    static_cast<void>(reverseBool(text));
    static_cast<void>(reverseOnOff(text));
    static_cast<void>(isPngFile(text));
    static_cast<void>(isOtherFile(text));
    static_cast<void>(withSlash(text));
    try {
        static_cast<void>(hextodec(text));
    } catch (const std::overflow_error&) {
    }
    try {
        static_cast<void>(fileBaseName(text));
    } catch (const std::length_error&) {
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size); // NOLINT
    const DecodedText decoded = decodeText(bytes);
    if (!isValidUtf8(decoded.text)) {
        std::abort();
    }
    expectToComeBack(decoded.text);
    readValues(bytes);
    readValues(decoded.text);
    return 0;
}
