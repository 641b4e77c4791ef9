// Reads the heads of PNG, JPEG and BMP files.
#include "skinfile/picture_size.h"

#include "files/host_files.h"
#include "files/open_file.h"

#include <algorithm>
#include <array>

namespace tarvel {

namespace {

// The longest piece that is read at once.
constexpr std::size_t pieceBytes = 32;

// A few bytes of a file, of which there may be fewer than asked for.
struct Piece {
    std::array<unsigned char, pieceBytes> bytes{};
    std::size_t size = 0;

    // Numbers at a place that is there.
    [[nodiscard]] std::uint32_t big(std::size_t at, std::size_t count) const {
        std::uint32_t number = 0;
        for (std::size_t i = 0; i < count; ++i) {
            number = number << 8U | bytes[at + i];
        }
        return number;
    }
    [[nodiscard]] std::uint32_t little(std::size_t at, std::size_t count) const {
        std::uint32_t number = 0;
        for (std::size_t i = count; i > 0; --i) {
            number = number << 8U | bytes[at + i - 1];
        }
        return number;
    }
    [[nodiscard]] bool starts(std::string_view with) const {
        return size >= with.size() &&
               std::equal(with.begin(), with.end(), bytes.begin(), [](char a, unsigned char b) {
                   return static_cast<unsigned char>(a) == b;
               });
    }
};

class BytesSource {
  public:
    explicit BytesSource(std::string_view bytes)
        : bytes_(bytes) {}

    [[nodiscard]] Piece at(std::uint64_t place) const {
        Piece piece;
        if (place < bytes_.size()) {
            piece.size = std::min(pieceBytes, bytes_.size() - static_cast<std::size_t>(place));
            std::copy_n(bytes_.begin() + static_cast<std::ptrdiff_t>(place), piece.size,
                        piece.bytes.begin());
        }
        return piece;
    }

  private:
    std::string_view bytes_;
};

class FileSource {
  public:
    explicit FileSource(const OpenFile& file)
        : file_(file) {}

    [[nodiscard]] Piece at(std::uint64_t place) const {
        std::array<char, pieceBytes> read{};
        Piece piece;
        piece.size = file_.readAt(place, read.data(), read.size());
        std::copy_n(read.begin(), piece.size, piece.bytes.begin());
        return piece;
    }

  private:
    const OpenFile& file_;
};

std::optional<PictureSize> sizeOf(std::uint32_t width, std::uint32_t height) {
    constexpr std::uint32_t largest = INT32_MAX;
    if (width == 0 || height == 0 || width > largest || height > largest) {
        return std::nullopt;
    }
    return PictureSize{width, height};
}

std::optional<PictureSize> pngSize(const Piece& head) {
    constexpr std::size_t afterSize = 24;
    constexpr std::string_view signature("\x89PNG\r\n\x1A\n\0\0\0\rIHDR", 16);
    return head.starts(signature) && head.size >= afterSize
               ? sizeOf(head.big(16, 4), head.big(20, 4))
               : std::nullopt;
}

// A negative height is that of a picture with its first line on top.
std::uint32_t unsignedHeight(std::uint32_t height) {
    return height > INT32_MAX ? 0 - height : height;
}

std::optional<PictureSize> bmpSize(const Piece& head) {
    constexpr std::size_t afterSize = 26;
    constexpr std::uint32_t oldHeader = 12;
    constexpr std::uint32_t header = 40;
    if (head.size < afterSize) {
        return std::nullopt;
    }
    const std::uint32_t headerBytes = head.little(14, 4);
    if (headerBytes == oldHeader) {
        return sizeOf(head.little(18, 2), head.little(20, 2));
    }
    return headerBytes >= header ? sizeOf(head.little(18, 4), unsignedHeight(head.little(22, 4)))
                                 : std::nullopt;
}

// Whether the segment begins a frame, whose size it tells; the three others of these numbers hold
// tables.
bool isFrame(unsigned marker) {
    return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

// Segment by segment to the first frame.
template <class Source> std::optional<PictureSize> jpegSize(const Source& source) {
    constexpr int mostSegments = 4096;
    constexpr std::size_t frameBytes = 9;
    constexpr unsigned fill = 0xFF;
    std::uint64_t place = 2;
    for (int segment = 0; segment < mostSegments; ++segment) {
        const Piece piece = source.at(place);
        if (piece.size < 4 || piece.bytes[0] != fill) {
            return std::nullopt;
        }
        const unsigned marker = piece.bytes[1];
        if (marker == fill) { // before a marker
            ++place;
            continue;
        }
        const std::uint32_t length = piece.big(2, 2);
        constexpr unsigned restart = 0xD0;
        constexpr unsigned scan = 0xDA;
        if ((marker >= restart && marker <= scan) || marker <= 1) {
            return std::nullopt; // the picture's data begin, or this is no JPEG
        }
        if (isFrame(marker)) {
            return piece.size >= frameBytes ? sizeOf(piece.big(7, 2), piece.big(5, 2))
                                            : std::nullopt;
        }
        place += 2 + length;
    }
    return std::nullopt;
}

template <class Source> std::optional<PictureSize> sizeFrom(const Source& source) {
    const Piece head = source.at(0);
    if (head.starts("\xFF\xD8")) {
        return jpegSize(source);
    }
    return head.starts("BM") ? bmpSize(head) : pngSize(head);
}

} // namespace

std::optional<PictureSize> pictureSize(std::string_view bytes) {
    return sizeFrom(BytesSource(bytes));
}

std::optional<PictureSize> pictureSizeOfFile(const std::filesystem::path& file) {
    try {
        const OpenFile open(file, Opening::read);
        return open.status().kind == FileKind::regular ? sizeFrom(FileSource(open)) : std::nullopt;
    } catch (const FileError&) {
        return std::nullopt;
    }
}

} // namespace tarvel
