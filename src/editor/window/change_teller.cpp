// Makes a sentence of the name of an edit.
#include "window/change_teller.h"

#include <utility>

namespace tarvel {

ChangeTeller::ChangeTeller(const SkinDocument& document,
                           std::function<void(const std::string&)> tell)
    : tell_(std::move(tell))
    , watch_(document.watch(*this)) {}

void ChangeTeller::documentChanged(const DocumentChange& change) {
    // Looking at another screen is no change of the skin.
    changed_ = changed_ || change.what != DocumentChange::What::currentLayout;
}

void ChangeTeller::editBegan(const std::string& name) {
    name_ = name;
    changed_ = false;
}

void ChangeTeller::editEnded(bool takenBack) {
    if (!changed_ || takenBack || name_.empty()) {
        return;
    }
    constexpr int toUpper = 'A' - 'a';
    std::string sentence = name_;
    if (sentence.front() >= 'a' && sentence.front() <= 'z') {
        sentence.front() = static_cast<char>(sentence.front() + toUpper);
    }
    tell_(sentence);
}

} // namespace tarvel
