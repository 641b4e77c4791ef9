// Values as bytes and back for files of our own: little-endian, texts with their length before
// them, the whole under a seal that tells a damaged file from a whole one.
#pragma once

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

/// Puts values one behind the other.
class ByteWriter {
  public:
    /// A number, truth value or enumerator by its bits; floats keep theirs, those of a NaN
    /// included.
    template <class T>
    requires std::is_arithmetic_v<T> || std::is_enum_v<T>
    void value(T value) {
        static_assert(std::endian::native == std::endian::little);
        char bits[sizeof(T)]; // NOLINT: for memcpy
        std::memcpy(bits, &value, sizeof(T));
        bytes_.append(bits, sizeof(T));
    }
    /// A count of what follows; throws std::length_error beyond 32 bits.
    void count(std::size_t count);
    /// A text of any bytes; throws std::length_error beyond 4 GB.
    void text(std::string_view text);

    [[nodiscard]] const std::string& bytes() const { return bytes_; }
    void reserve(std::size_t bytes) { bytes_.reserve(bytes); }

  private:
    std::string bytes_;
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

/// The content behind its seal: magic, version, length and checksum.
[[nodiscard]] std::string sealed(const Seal& seal, std::string_view content);

/// The content of sealed bytes, a view into them. Throws SealedBytesError when they are foreign, of
/// another version, cut short, longer than they should be, or damaged anywhere.
[[nodiscard]] std::string_view unsealed(const Seal& seal, std::string_view bytes);

} // namespace tarvel
