// Values as bytes and back for files of our own: little-endian, texts with their length before
// them, the whole under a seal that tells a damaged file from a whole one.
#pragma once

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>

namespace tarvel {

/// Bytes that are not what they should be; what() is one sentence for the user.
class SealedBytesError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Puts values one behind the other into a buffer that is not its own: a buffer that is used again
/// spares the system from finding and clearing megabytes each time.
class ByteWriter {
  public:
    /// What the buffer holds is overwritten. It has to outlive the writer.
    explicit ByteWriter(std::string& buffer)
        : buffer_(buffer) {}

    /// A number, truth value or enumerator by its bits; floats keep theirs, those of a NaN
    /// included.
    template <class T>
    requires std::is_arithmetic_v<T> || std::is_enum_v<T>
    void value(T value) {
        static_assert(std::endian::native == std::endian::little);
        std::memcpy(room(sizeof(T)), &value, sizeof(T));
    }
    /// A count of what follows; throws std::length_error beyond 32 bits.
    void count(std::size_t count) { value(counted(count)); }
    /// A text of any bytes; throws std::length_error beyond 4 GB.
    void text(std::string_view text) {
        const std::uint32_t size = counted(text.size());
        char* place = room(sizeof size + text.size());
        std::memcpy(place, &size, sizeof size);
        std::copy(text.begin(), text.end(), place + sizeof size);
    }

    /// Room for `size` bytes that are written later.
    char* room(std::size_t size) {
        if (size > buffer_.size() - used_) {
            buffer_.resize(2 * (used_ + size));
        }
        char* place = buffer_.data() + used_;
        used_ += size;
        return place;
    }
    /// What was put, until more is.
    [[nodiscard]] std::string_view bytes() const {
        return std::string_view(buffer_).substr(0, used_);
    }

  private:
    static std::uint32_t counted(std::size_t count) {
        if (count > UINT32_MAX) {
            throw std::length_error("more than 4 billion in one place");
        }
        return static_cast<std::uint32_t>(count);
    }
    std::string& buffer_; ///< longer than what was put
    std::size_t used_ = 0;
};

/// Takes values out again, in the order in which they were put in. Throws SealedBytesError rather
/// than read beyond the end, whatever the bytes say.
class ByteReader {
  public:
    /// The bytes have to outlive the reader.
    explicit ByteReader(std::string_view bytes)
        : rest_(bytes) {}

    template <class T>
    requires std::is_arithmetic_v<T>
    [[nodiscard]] T value() {
        T result{};
        std::memcpy(&result, take(sizeof(T)).data(), sizeof(T));
        return result;
    }
    [[nodiscard]] bool truth();
    /// An enumerator from 0 to `last`.
    template <class Enum> [[nodiscard]] Enum enumerator(Enum last) {
        const auto code = value<std::underlying_type_t<Enum>>();
        if (code > static_cast<std::underlying_type_t<Enum>>(last)) {
            damaged();
        }
        return static_cast<Enum>(code);
    }
    /// A count of things that take at least `bytesEach` bytes. Never more than can still follow, so
    /// that memory may be set aside for them.
    [[nodiscard]] std::size_t count(std::size_t bytesEach);
    [[nodiscard]] std::string_view text();
    /// A number from `least` to `most`.
    [[nodiscard]] int intBetween(int least, int most);

    /// Throws when anything is left.
    void end() const;
    [[noreturn]] static void damaged();

  private:
    std::string_view take(std::size_t size);

    std::string_view rest_;
};

/// What stands at the front of a sealed file.
struct Seal {
    std::string_view magic; ///< 8 bytes
    std::uint32_t version = 1;
};

/// Bytes that a seal takes at the front.
inline constexpr std::size_t sealSize = 28;

/// Puts the seal (magic, version, length and checksum) of `content` at `place`, which has sealSize
/// bytes.
void putSeal(char* place, const Seal& seal, std::string_view content);

/// The content behind its seal.
[[nodiscard]] std::string sealed(const Seal& seal, std::string_view content);

/// The content of sealed bytes, a view into them. Throws SealedBytesError when they are foreign, of
/// another version, cut short, longer than they should be, or damaged anywhere.
[[nodiscard]] std::string_view unsealed(const Seal& seal, std::string_view bytes);

} // namespace tarvel
