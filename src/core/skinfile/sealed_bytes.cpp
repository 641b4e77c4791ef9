// Lengths that are checked against what is there, and the checksum.
#include "skinfile/sealed_bytes.h"

#include <algorithm>

namespace tarvel {

namespace {

// Changes with each bit of the content, and at every single damaged byte for certain: each step can
// be undone, so that what differs once never becomes equal again by the same bytes.
std::uint64_t checksum(std::string_view bytes, std::uint32_t version) {
    constexpr std::uint64_t factor = 0x9E3779B97F4A7C15U;
    std::uint64_t sum = (bytes.size() + version) * factor;
    const auto mix = [&sum](std::uint64_t word) {
        sum = (sum ^ word) * factor;
        sum ^= sum >> 29U;
    };
    while (!bytes.empty()) {
        std::uint64_t word = 0;
        const std::size_t size = std::min(bytes.size(), sizeof word);
        std::memcpy(&word, bytes.data(), size);
        bytes.remove_prefix(size);
        mix(word);
    }
    return sum;
}

} // namespace

bool ByteReader::truth() {
    const auto byte = value<std::uint8_t>();
    if (byte > 1) {
        damaged();
    }
    return byte == 1;
}

std::size_t ByteReader::count(std::size_t bytesEach) {
    const std::size_t count = value<std::uint32_t>();
    if (count > rest_.size() / bytesEach) {
        damaged();
    }
    return count;
}

std::string_view ByteReader::text() {
    return take(count(1));
}

int ByteReader::intBetween(int least, int most) {
    const auto number = value<std::int32_t>();
    if (number < least || number > most) {
        damaged();
    }
    return number;
}

void ByteReader::end() const {
    if (!rest_.empty()) {
        damaged();
    }
}

void ByteReader::damaged() {
    throw SealedBytesError("The file is damaged");
}

std::string_view ByteReader::take(std::size_t size) {
    if (size > rest_.size()) {
        damaged();
    }
    const auto taken = rest_.substr(0, size);
    rest_.remove_prefix(size);
    return taken;
}

void putSeal(char* place, const Seal& seal, std::string_view content) {
    const std::uint64_t size = content.size();
    const std::uint64_t sum = checksum(content, seal.version);
    std::copy(seal.magic.begin(), seal.magic.end(), place);
    place += seal.magic.size();
    std::memcpy(place, &seal.version, sizeof seal.version);
    std::memcpy(place + sizeof seal.version, &size, sizeof size);
    std::memcpy(place + sizeof seal.version + sizeof size, &sum, sizeof sum);
}

std::string sealed(const Seal& seal, std::string_view content) {
    std::string bytes(sealSize, '\0');
    putSeal(bytes.data(), seal, content);
    return bytes.append(content);
}

std::string_view unsealed(const Seal& seal, std::string_view bytes) {
    if (!bytes.starts_with(seal.magic)) {
        throw SealedBytesError(seal.magic.starts_with(bytes) ? "The file is cut short"
                                                             : "The file is of another kind");
    }
    if (bytes.size() < sealSize) {
        throw SealedBytesError("The file is cut short");
    }
    ByteReader head(bytes.substr(seal.magic.size()));
    const auto version = head.value<std::uint32_t>();
    const auto size = head.value<std::uint64_t>();
    const auto sum = head.value<std::uint64_t>();
    bytes.remove_prefix(sealSize);
    if (version != seal.version) {
        throw SealedBytesError("The file is of another version of Tarvel");
    }
    if (bytes.size() < size) {
        throw SealedBytesError("The file is cut short");
    }
    if (bytes.size() > size || checksum(bytes, version) != sum) {
        ByteReader::damaged();
    }
    return bytes;
}

} // namespace tarvel
