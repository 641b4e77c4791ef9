// A table that grows at its end and whose copies share all blocks that neither side has changed.
#pragma once

#include "document/shared_value.h"

#include <cstddef>
#include <utility>
#include <vector>

namespace tarvel {

/// A sequence of T with cheap copies: a copy costs one pointer, the first change after it one spine
/// of block pointers and one block of blockSize values.
template <class T> class SharedTable {
  public:
    static constexpr std::size_t blockSize = 32;

    [[nodiscard]] std::size_t size() const { return size_; }
    [[nodiscard]] bool empty() const { return size_ == 0; }

    /// index < size().
    [[nodiscard]] const T& operator[](std::size_t index) const {
        return (*(*spine_)[index / blockSize])[index % blockSize];
    }

    /// The value at index for writing; index < size(). Stays valid until the next push or copy.
    [[nodiscard]] T& edit(std::size_t index) {
        return spine_.edit()[index / blockSize].edit()[index % blockSize];
    }

    void push_back(T&& value) {
        auto& spine = spine_.edit();
        if (size_ % blockSize == 0) {
            spine.emplace_back();
            spine.back().edit().reserve(blockSize);
        }
        spine.back().edit().push_back(std::move(value));
        ++size_;
    }

    friend bool operator==(const SharedTable& a, const SharedTable& b) {
        return a.size_ == b.size_ && a.spine_ == b.spine_;
    }

  private:
    using Block = SharedValue<std::vector<T>>;

    SharedValue<std::vector<Block>> spine_;
    std::size_t size_ = 0;
};

} // namespace tarvel
