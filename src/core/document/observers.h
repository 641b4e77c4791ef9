// Lists of those who are told of changes, in the order in which they began to watch.
#pragma once

#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

namespace tarvel {

/// The observers of one object. They belong to the object and not to its value: copies begin with
/// none, and assignments leave both lists as they are.
///
/// An observer may begin or end watching while it is told. Either side may go first.
template <class Observer> class Observers {
    struct List {
        std::vector<Observer*> targets; // nullptr: gone while somebody is being told
        int telling = 0;
    };

  public:
    /// Lets an observer watch as long as it lives.
    class [[nodiscard]] Watch {
      public:
        Watch() = default;
        Watch(Watch&& other) noexcept
            : list_(std::move(other.list_))
            , target_(std::exchange(other.target_, nullptr)) {}
        Watch& operator=(Watch&& other) noexcept {
            if (this != &other) {
                end();
                list_ = std::move(other.list_);
                target_ = std::exchange(other.target_, nullptr);
            }
            return *this;
        }
        Watch(const Watch&) = delete;
        Watch& operator=(const Watch&) = delete;
        ~Watch() { end(); }

        /// The observer is told nothing from now on.
        void end() noexcept {
            if (const auto list = list_.lock(); list && target_ != nullptr) {
                remove(*list, target_);
            }
            list_.reset();
            target_ = nullptr;
        }

      private:
        friend class Observers;
        Watch(const std::shared_ptr<List>& list, Observer* target)
            : list_(list)
            , target_(target) {}

        std::weak_ptr<List> list_;
        Observer* target_ = nullptr;
    };

    Observers() = default;
    Observers(const Observers& /*other*/) {}
    Observers(Observers&& /*other*/) noexcept {}
    // NOLINTNEXTLINE: takes nothing, so an assignment to itself is one like any other
    Observers& operator=(const Observers& /*other*/) { return *this; }
    Observers& operator=(Observers&& /*other*/) noexcept { return *this; }
    ~Observers() = default;

    Watch add(Observer& observer) {
        if (!list_) {
            list_ = std::make_shared<List>();
        }
        list_->targets.push_back(&observer);
        return Watch(list_, &observer);
    }

    /// Calls tell(Observer&) for each, in their order. Those who come meanwhile are told next time.
    template <class Tell> void each(Tell&& tell) const {
        const std::shared_ptr<List> list = list_; // its owner may end while it tells
        if (!list) {
            return;
        }
        const Telling telling(*list);
        const std::size_t count = list->targets.size();
        for (std::size_t i = 0; i < count; ++i) {
            if (Observer* target = list->targets[i]) {
                tell(*target);
            }
        }
    }

  private:
    class Telling {
      public:
        explicit Telling(List& list)
            : list_(list) {
            ++list_.telling;
        }
        ~Telling() {
            if (--list_.telling == 0) {
                std::erase(list_.targets, nullptr);
            }
        }
        Telling(const Telling&) = delete;
        Telling& operator=(const Telling&) = delete;

      private:
        List& list_;
    };

    static void remove(List& list, Observer* target) noexcept {
        for (Observer*& each : list.targets) {
            if (each == target) {
                each = nullptr;
                break;
            }
        }
        if (list.telling == 0) {
            std::erase(list.targets, nullptr);
        }
    }

    std::shared_ptr<List> list_;
};

} // namespace tarvel
