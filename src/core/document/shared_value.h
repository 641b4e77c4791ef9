// A value that copies share until one of them is edited, so that copies of a large document stay
// cheap.
#pragma once

#include <atomic>
#include <memory>
#include <utility>

namespace tarvel {

/// Holds a T by value: copies are independent, but a T is really copied only when a shared one is
/// edited. A default-made SharedValue reads as a default T and owns no memory. One object is not
/// for several threads at once; copies of it are, one for each.
template <class T> class SharedValue {
  public:
    SharedValue() = default;
    explicit SharedValue(T value)
        : value_(std::make_shared<T>(std::move(value))) {}

    [[nodiscard]] const T& get() const { return value_ ? *value_ : empty(); }
    [[nodiscard]] const T& operator*() const { return get(); }
    [[nodiscard]] const T* operator->() const { return &get(); }

    /// The value for writing. References from get() may be outdated afterwards.
    [[nodiscard]] T& edit() {
        if (!value_) {
            value_ = std::make_shared<T>();
        } else if (value_.use_count() > 1) {
            value_ = std::make_shared<T>(*value_);
        } else {
            // What another thread read through the copy that it gave up lies before what follows.
            std::atomic_thread_fence(std::memory_order_acquire);
        }
        return *value_;
    }

    /// Whether both are one value in memory, so that they surely are equal.
    [[nodiscard]] bool isSharedWith(const SharedValue& other) const {
        return value_ == other.value_;
    }

    friend bool operator==(const SharedValue& a, const SharedValue& b) {
        return a.isSharedWith(b) || a.get() == b.get();
    }

  private:
    static const T& empty() {
        static const T value{};
        return value;
    }

    std::shared_ptr<T> value_;
};

} // namespace tarvel
