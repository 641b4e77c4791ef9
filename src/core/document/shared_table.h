// A table that grows at its end and whose copies share all blocks that neither side has changed.
#pragma once

#include "document/shared_value.h"

#include <algorithm>
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

    /// Takes over the values of `front`, which is no longer than this table, in the place of its
    /// own first ones, and shares them where whole blocks are alike in length. Calls changed(index)
    /// for each value that was another one. Costs little more than what differs.
    template <class Changed> void takeFront(const SharedTable& front, Changed&& changed) {
        for (std::size_t block = 0; block < front.spine_->size(); ++block) {
            const Block& theirs = (*front.spine_)[block];
            if (theirs.isSharedWith((*spine_)[block])) {
                continue;
            }
            const bool alikeInLength = theirs->size() == (*spine_)[block]->size();
            const std::size_t first = block * blockSize;
            for (std::size_t i = 0; i < theirs->size(); ++i) {
                if ((*theirs)[i] == (*this)[first + i]) {
                    continue;
                }
                if (!alikeInLength) {
                    edit(first + i) = (*theirs)[i];
                }
                changed(first + i);
            }
            if (alikeInLength) {
                spine_.edit()[block] = theirs;
            }
        }
    }

    /// Whether both are alike as far as the shorter of them goes.
    [[nodiscard]] bool isAlikeInFront(const SharedTable& other) const {
        const std::size_t blocks = std::min(spine_->size(), other.spine_->size());
        for (std::size_t block = 0; block < blocks; ++block) {
            const Block& ours = (*spine_)[block];
            const Block& theirs = (*other.spine_)[block];
            const auto common = static_cast<std::ptrdiff_t>(std::min(ours->size(), theirs->size()));
            if (!ours.isSharedWith(theirs) &&
                !std::equal(ours->begin(), ours->begin() + common, theirs->begin())) {
                return false;
            }
        }
        return true;
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
