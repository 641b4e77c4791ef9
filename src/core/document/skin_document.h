// The one skin that is being edited: six screens of elements, and the skin-wide settings.
#pragma once

#include "document/document_observer.h"
#include "document/element.h"
#include "document/shared_table.h"
#include "document/skin_settings.h"

#include <array>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tarvel {

class ResourceIndex;

inline constexpr int screenCount = 6;
inline constexpr int skinWidth = 640;  // skin pixels
inline constexpr int skinHeight = 480; // skin pixels

/// All that a document holds, for one that is brought back as it was.
struct DocumentParts {
    int currentLayout = 1;
    std::array<int, screenCount> screenElementCount{};
    std::array<int, screenCount> lockCount{};
    std::array<std::vector<int>, screenCount> rows; ///< ids of `elements`, none of them twice
    SharedTable<Element> elements;                  ///< of id 1 onward, deleted ones included
    SkinSettings settings;
};

/// A regular value: copies are independent and cheap, because they share what neither changes.
///
/// Every element has an id from 1 upward that is never used again; id 0 is a slot without an
/// element. A screen's list fixes which elements it holds and their stacking order, row 0 at the
/// back. Deleting an element takes away its row only; its record keeps its last values.
///
/// Observers and the open edit belong to the object and not to the value: they are neither copied
/// nor compared.
class SkinDocument {
  public:
    SkinDocument() = default;
    explicit SkinDocument(DocumentParts&& parts);
    SkinDocument(const SkinDocument& other)
        : state_(other.state_) {}
    /// Leaves `other` as a new document.
    SkinDocument(SkinDocument&& other) noexcept;
    SkinDocument& operator=(const SkinDocument& other);
    SkinDocument& operator=(SkinDocument&& other); // NOLINT: observers may throw
    ~SkinDocument() = default;

    /// Tells the observer of every change while the result lives. Watching changes nothing, so
    /// whoever reads a document may. Observers are told in the order in which they began.
    DocumentWatch watch(DocumentObserver& observer) const { return observers_.add(observer); }

    /// Changes up to the matching endEdit() are one step. Edits within an edit are parts of it.
    /// OpenEdit does both. Ends a run before it begins.
    void beginEdit(std::string name);
    void endEdit(bool takenBack = false);
    /// A run is an edit without a fixed end, such as keys pressed one after the other: it goes on
    /// with the next call of the same name, and ends with endRun() or when another edit begins.
    void continueRun(const std::string& name);
    void endRun();
    [[nodiscard]] bool isEditOpen() const { return edit_.depth > 0; }
    [[nodiscard]] bool isRunOpen() const { return !edit_.run.empty(); }

    /// Takes the value of `version`, a copy of an earlier or later state of this very document,
    /// with `screen` shown, and tells of each thing that differs. Ids that were handed out stay
    /// handed out: records of elements that the version does not know stay, without a row.
    void showVersion(const SkinDocument& version, int screen);
    /// Whether both hold the same skin, whichever screen is shown and however many ids were handed
    /// out.
    [[nodiscard]] bool holdsTheSame(const SkinDocument& other) const;

    // Screens, by index 0 to 5.
    [[nodiscard]] int currentLayout() const { return state_.currentLayout; }
    void setCurrentLayout(int screen);
    [[nodiscard]] int screenElementCount(int screen) const;
    void setScreenElementCount(int screen, int count);
    /// How many rows from row 0 on are locked.
    [[nodiscard]] int lockCount(int screen) const;
    void setLockCount(int screen, int count);

    // Elements, by id.
    [[nodiscard]] int lastElementId() const { return state_.lastElementId; }
    /// id 0 to lastElementId(); id 0 is a slot that no element ever has.
    [[nodiscard]] const Element& element(int id) const;
    /// Calls edit(Element&) and tells the observers; id 1 to lastElementId().
    template <class Edit> void editElement(int id, Edit&& edit) {
        edit(state_.elements.edit(static_cast<std::size_t>(id) - 1));
        tell({DocumentChange::What::element, element(id).elementLayout, id});
    }
    /// Calls edit(Element&) for each of many elements; ids 1 to lastElementId(), none twice. Tells
    /// of few of them one by one, and of many at once.
    template <class Edit> void editElements(const std::vector<int>& ids, Edit&& edit) {
        std::vector<int> relabelled;
        for (const int id : ids) {
            Element& element = state_.elements.edit(static_cast<std::size_t>(id) - 1);
            const std::string label = element.label;
            edit(element);
            if (element.label != label) {
                relabelled.push_back(id);
            }
        }
        tellOfElements(ids, relabelled);
    }
    /// Gives the element the next id and the last row of the current screen, and counts it there.
    int addElement(Element&& element);
    /// The same with many, in their order. Tells of all at once. Returns their ids.
    std::vector<int> addElements(std::vector<Element>&& elements);

    // Rows of a screen's list.
    [[nodiscard]] int rowCount(int screen) const;
    [[nodiscard]] int itemData(int screen, int row) const;
    [[nodiscard]] const std::string& rowText(int screen, int row) const;
    /// The row that holds the element; -1 when none does.
    [[nodiscard]] int rowOf(int screen, int elementId) const;
    void setRowText(int screen, int row, std::string text);
    void moveRow(int screen, int from, int to);
    /// Gives the rows another order; `ids` are those of the list, each once.
    void setRowOrder(int screen, std::vector<int> ids);
    /// Takes the row out of the current screen's list, and with it the element off the screen.
    /// Leaves its record and the screen's count as they are.
    void delItem(int row);
    /// The same with several rows, from the back to the front.
    void delItems(const std::vector<int>& rows);

    [[nodiscard]] const SkinSettings& settings() const { return state_.settings.get(); }
    /// Calls edit(SkinSettings&) and tells the observers. Meanwhile resources are not looked up.
    template <class Edit> void editSettings(Edit&& edit) {
        resourceIndex_ = {};
        edit(state_.settings.edit());
        tell({DocumentChange::What::settings});
    }

    /// The last resource of that name, in whatever letter case; nullptr when there is none. Valid
    /// until the settings change.
    [[nodiscard]] const Resource* resourceNamed(std::string_view name) const;

    /// Appends a file resource.
    void addRes(std::string name, std::string path, bool outside = false);
    /// Appends a resource that is an XML fragment.
    void addcRes(std::string content, std::string name);

    /// True when anything was made or loaded: a resource, a row on any screen, a background.
    [[nodiscard]] bool holdsAnything() const;

    friend bool operator==(const SkinDocument& a, const SkinDocument& b) {
        return a.state_ == b.state_;
    }

  private:
    using Rows = std::vector<int>;

    struct State {
        int currentLayout = 1;
        int lastElementId = 0;
        std::array<int, screenCount> screenElementCount{};
        std::array<int, screenCount> lockCount{};
        std::array<SharedValue<Rows>, screenCount> lst;
        SharedTable<Element> elements; // of id 1 onward
        SharedValue<SkinSettings> settings;

        bool operator==(const State&) const = default;
    };

    struct Edit {
        int depth = 0;
        std::string run; // the name of the open run; "" for none
    };

    void tell(const DocumentChange& change) const {
        observers_.each([&](DocumentObserver& observer) { observer.documentChanged(change); });
    }
    [[nodiscard]] const Rows& rows(int screen) const;
    int append(Element&& element);
    void tellOfElements(const std::vector<int>& ids, const std::vector<int>& relabelled) const;

    // Made when it is worth it. It goes along with the settings that it was made of.
    struct IndexOfResources {
        int lookUps = 0;
        std::shared_ptr<const ResourceIndex> index;
    };

    State state_;
    mutable IndexOfResources resourceIndex_;
    mutable Observers<DocumentObserver> observers_;
    Edit edit_;
};

/// findResource() of the tag scanner for this document, which does not go through all of them each
/// time.
[[nodiscard]] inline const Resource* findResource(const SkinDocument& document,
                                                  std::string_view name) {
    return document.resourceNamed(name);
}

} // namespace tarvel
