// Keeps the document's tables and lists, and tells those who watch it of every change.
#include "document/skin_document.h"

#include "document/resource_index.h"
#include "text/tag_scanner.h"

#include <algorithm>
#include <utility>

namespace tarvel {

namespace {

std::size_t at(int index) {
    return static_cast<std::size_t>(index);
}

} // namespace

void SystemColors::setBoxColor(std::string_view text, std::size_t index) {
    if (!text.empty()) {
        boxes.at(index).fillColor = getColor(text);
    }
}

void SystemColors::setBorderColor(std::string_view text, std::size_t index) {
    if (!text.empty()) {
        boxes.at(index).borderColor = getColor(text);
    }
}

void SystemColors::setTextColor(std::string_view text, std::size_t index) {
    if (!text.empty()) {
        texts.at(index) = getColor(text);
    }
}

SkinDocument::SkinDocument(DocumentParts&& parts) {
    state_.currentLayout = parts.currentLayout;
    state_.lastElementId = static_cast<int>(parts.elements.size());
    state_.screenElementCount = parts.screenElementCount;
    state_.lockCount = parts.lockCount;
    for (std::size_t screen = 0; screen < parts.rows.size(); ++screen) {
        state_.lst[screen] = SharedValue(std::move(parts.rows[screen]));
    }
    state_.elements = std::move(parts.elements);
    state_.settings = SharedValue(std::move(parts.settings));
}

SkinDocument::SkinDocument(SkinDocument&& other) noexcept
    : state_(std::exchange(other.state_, {}))
    , resourceIndex_(std::exchange(other.resourceIndex_, {})) {}

SkinDocument& SkinDocument::operator=(const SkinDocument& other) {
    if (this != &other) {
        state_ = other.state_;
        resourceIndex_ = other.resourceIndex_;
        tell({DocumentChange::What::everything});
    }
    return *this;
}

SkinDocument& SkinDocument::operator=(SkinDocument&& other) { // NOLINT
    if (this != &other) {
        state_ = std::exchange(other.state_, {});
        resourceIndex_ = std::exchange(other.resourceIndex_, {});
        tell({DocumentChange::What::everything});
    }
    return *this;
}

void SkinDocument::beginEdit(std::string name) {
    if (edit_.depth == 0 || !edit_.run.empty()) {
        endRun();
        edit_.depth = 1;
        observers_.each([&](DocumentObserver& observer) { observer.editBegan(name); });
    } else {
        ++edit_.depth;
    }
}

void SkinDocument::endEdit(bool takenBack) {
    if (--edit_.depth == 0) {
        edit_.run.clear();
        observers_.each([&](DocumentObserver& observer) { observer.editEnded(takenBack); });
    }
}

void SkinDocument::continueRun(const std::string& name) {
    if (edit_.run == name || (edit_.depth > 0 && edit_.run.empty())) {
        return; // it goes on, or is a part of another edit
    }
    beginEdit(name);
    edit_.run = name;
}

void SkinDocument::endRun() {
    if (!edit_.run.empty()) {
        endEdit();
    }
}

// Everything is in its place before the first is told.
void SkinDocument::showVersion(const SkinDocument& version, int screen) {
    const State before = state_;
    const int lastElementId = state_.lastElementId;
    SharedTable<Element> elements = state_.elements;
    std::vector<int> changed;
    elements.takeFront(version.state_.elements,
                       [&](std::size_t index) { changed.push_back(static_cast<int>(index) + 1); });
    state_ = version.state_;
    state_.elements = std::move(elements);
    state_.lastElementId = lastElementId;
    state_.currentLayout = screen;
    resourceIndex_ = {};
    if (before.currentLayout != screen) {
        tell({DocumentChange::What::currentLayout, screen});
    }
    for (int each = 0; each < screenCount; ++each) {
        if (before.lst[at(each)] != state_.lst[at(each)]) {
            tell({DocumentChange::What::rows, each});
        }
        if (before.lockCount[at(each)] != state_.lockCount[at(each)] ||
            before.screenElementCount[at(each)] != state_.screenElementCount[at(each)]) {
            tell({DocumentChange::What::counts, each});
        }
    }
    if (before.settings != state_.settings) {
        tell({DocumentChange::What::settings});
    }
    tellOfElements(changed, changed);
}

void SkinDocument::tellOfElements(const std::vector<int>& ids,
                                  const std::vector<int>& relabelled) const {
    using What = DocumentChange::What;
    const auto tellOfAll = [this](const std::vector<int>& some, What one, What many) {
        constexpr std::size_t few = 64; // cost less one by one than all at once
        if (some.size() > few) {
            tell({many});
            return;
        }
        for (const int id : some) {
            tell({one, element(id).elementLayout, id});
        }
    };
    tellOfAll(ids, What::element, What::elements);
    tellOfAll(relabelled, What::rowText, What::rowTexts);
}

bool SkinDocument::holdsTheSame(const SkinDocument& other) const {
    const State& theirs = other.state_;
    return state_.screenElementCount == theirs.screenElementCount &&
           state_.lockCount == theirs.lockCount && state_.lst == theirs.lst &&
           state_.elements.isAlikeInFront(theirs.elements) && state_.settings == theirs.settings;
}

void SkinDocument::setCurrentLayout(int screen) {
    if (screen != state_.currentLayout) {
        endRun();
    }
    state_.currentLayout = screen;
    tell({DocumentChange::What::currentLayout, screen});
}

int SkinDocument::screenElementCount(int screen) const {
    return state_.screenElementCount.at(at(screen));
}

void SkinDocument::setScreenElementCount(int screen, int count) {
    state_.screenElementCount.at(at(screen)) = count;
    tell({DocumentChange::What::counts, screen});
}

int SkinDocument::lockCount(int screen) const {
    return state_.lockCount.at(at(screen));
}

void SkinDocument::setLockCount(int screen, int count) {
    state_.lockCount.at(at(screen)) = count;
    tell({DocumentChange::What::counts, screen});
}

const Element& SkinDocument::element(int id) const {
    static const Element slotZero{};
    return id == 0 ? slotZero : state_.elements[at(id) - 1];
}

int SkinDocument::append(Element&& element) {
    const int screen = state_.currentLayout;
    const int id = ++state_.lastElementId;
    element.elementLayout = static_cast<std::int16_t>(screen);
    element.elementLocked = false;
    state_.elements.push_back(std::move(element));
    state_.lst.at(at(screen)).edit().push_back(id);
    ++state_.screenElementCount.at(at(screen));
    return id;
}

int SkinDocument::addElement(Element&& element) {
    const int id = append(std::move(element));
    tell({DocumentChange::What::rows, state_.currentLayout, id});
    tell({DocumentChange::What::counts, state_.currentLayout});
    return id;
}

std::vector<int> SkinDocument::addElements(std::vector<Element>&& elements) {
    std::vector<int> ids;
    ids.reserve(elements.size());
    for (Element& element : elements) {
        ids.push_back(append(std::move(element)));
    }
    if (!ids.empty()) {
        const int only = ids.size() == 1 ? ids.front() : -1;
        tell({DocumentChange::What::rows, state_.currentLayout, only});
        tell({DocumentChange::What::counts, state_.currentLayout});
    }
    return ids;
}

const SkinDocument::Rows& SkinDocument::rows(int screen) const {
    return state_.lst.at(at(screen)).get();
}

int SkinDocument::rowCount(int screen) const {
    return static_cast<int>(rows(screen).size());
}

int SkinDocument::itemData(int screen, int row) const {
    return rows(screen)[at(row)];
}

const std::string& SkinDocument::rowText(int screen, int row) const {
    return element(itemData(screen, row)).label;
}

int SkinDocument::rowOf(int screen, int elementId) const {
    const auto& list = rows(screen);
    const auto found = std::find(list.begin(), list.end(), elementId);
    return found == list.end() ? -1 : static_cast<int>(found - list.begin());
}

void SkinDocument::setRowText(int screen, int row, std::string text) {
    const int id = itemData(screen, row);
    state_.elements.edit(at(id) - 1).label = std::move(text);
    tell({DocumentChange::What::rowText, screen, id});
}

void SkinDocument::moveRow(int screen, int from, int to) {
    auto& list = state_.lst.at(at(screen)).edit();
    const auto begin = list.begin();
    if (from < to) {
        std::rotate(begin + from, begin + from + 1, begin + to + 1);
    } else {
        std::rotate(begin + to, begin + from, begin + from + 1);
    }
    tell({DocumentChange::What::rows, screen});
}

void SkinDocument::delItem(int row) {
    const int screen = state_.currentLayout;
    auto& list = state_.lst.at(at(screen)).edit();
    list.erase(list.begin() + row);
    tell({DocumentChange::What::rows, screen});
}

void SkinDocument::delItems(const std::vector<int>& rows) {
    const int screen = state_.currentLayout;
    auto& list = state_.lst.at(at(screen)).edit();
    Rows kept;
    kept.reserve(list.size());
    auto next = rows.begin();
    for (int row = 0; row < static_cast<int>(list.size()); ++row) {
        if (next != rows.end() && *next == row) {
            ++next;
        } else {
            kept.push_back(list[at(row)]);
        }
    }
    list = std::move(kept);
    tell({DocumentChange::What::rows, screen});
}

void SkinDocument::setRowOrder(int screen, std::vector<int> ids) {
    state_.lst.at(at(screen)).edit() = std::move(ids);
    tell({DocumentChange::What::rows, screen});
}

const Resource* SkinDocument::resourceNamed(std::string_view name) const {
    const auto& resources = settings().resources;
    constexpr int fewLookUps = 8; // cost less than an index
    if (resourceIndex_.lookUps < fewLookUps) {
        ++resourceIndex_.lookUps;
        return findResource<SkinDocument>(*this, name);
    }
    if (!resourceIndex_.index) {
        resourceIndex_.index = std::make_shared<const ResourceIndex>(resources);
    }
    return resourceIndex_.index->find(name);
}

void SkinDocument::addRes(std::string name, std::string path, bool outside) {
    editSettings([&](SkinSettings& settings) {
        settings.resources.push_back({std::move(name), std::move(path), true, outside});
    });
}

void SkinDocument::addcRes(std::string content, std::string name) {
    editSettings([&](SkinSettings& settings) {
        settings.resources.push_back({std::move(name), std::move(content), false, false});
    });
}

bool SkinDocument::holdsAnything() const {
    const bool anyRow = std::any_of(state_.lst.begin(), state_.lst.end(),
                                    [](const auto& list) { return !list->empty(); });
    return anyRow || !settings().resources.empty() || settings().background.loaded;
}

} // namespace tarvel
