// Moves, deletes and locks rows of the current screen, and keeps the counts with them.
#include "editing/stacking.h"

#include <algorithm>
#include <utility>

namespace tarvel {

namespace {

bool isLocked(const SkinDocument& document, int row) {
    return document.element(document.itemData(document.currentLayout(), row)).elementLocked;
}

std::vector<int> idsOf(const SkinDocument& document) {
    const int screen = document.currentLayout();
    std::vector<int> ids(static_cast<std::size_t>(document.rowCount(screen)));
    for (std::size_t row = 0; row < ids.size(); ++row) {
        ids[row] = document.itemData(screen, static_cast<int>(row));
    }
    return ids;
}

// Of the rows between `first` and the last: the chosen ones to the end of the list, or to `first`.
std::vector<int> gathered(const std::vector<int>& ids, const std::vector<bool>& isChosen,
                          std::size_t first, bool toEnd) {
    std::vector<int> order(ids.begin(), ids.begin() + static_cast<std::ptrdiff_t>(first));
    for (const bool chosen : {!toEnd, toEnd}) {
        for (std::size_t row = first; row < ids.size(); ++row) {
            if (isChosen[row] == chosen) {
                order.push_back(ids[row]);
            }
        }
    }
    return order;
}

// Each chosen row changes places with the next one that is not chosen, in one direction.
std::vector<int> shifted(std::vector<int> ids, std::vector<bool> isChosen, std::size_t first,
                         bool forward) {
    const std::size_t last = ids.size() - 1;
    for (std::size_t i = first; i < last; ++i) {
        // From the side that they move to, so that each finds its neighbour moved already.
        const std::size_t from = forward ? last - 1 - (i - first) : i + 1;
        const std::size_t to = forward ? from + 1 : from - 1;
        if (isChosen[from] && !isChosen[to]) {
            std::swap(ids[from], ids[to]);
            isChosen[from] = false;
            isChosen[to] = true;
        }
    }
    return ids;
}

} // namespace

int stackingTarget(const SkinDocument& document, int row, StackingCommand command) {
    const int screen = document.currentLayout();
    if (row < 0 || isLocked(document, row)) {
        return row;
    }
    const int last = document.rowCount(screen) - 1;
    const int rearmost = document.lockCount(screen);
    switch (command) {
    case StackingCommand::Front:
        return last;
    case StackingCommand::Back:
        return rearmost;
    case StackingCommand::Forward:
        return row < last ? row + 1 : row;
    case StackingCommand::Backward:
        return row > rearmost ? row - 1 : row;
    }
    return row;
}

int restack(SkinDocument& document, int row, StackingCommand command) {
    const int target = stackingTarget(document, row, command);
    if (target != row) {
        document.moveRow(document.currentLayout(), row, target);
    }
    return target;
}

bool restackRows(SkinDocument& document, const std::vector<int>& rows, StackingCommand command) {
    const std::vector<int> ids = idsOf(document);
    std::vector<bool> isChosen(ids.size());
    for (const int row : rows) {
        isChosen[static_cast<std::size_t>(row)] = !isLocked(document, row);
    }
    const int screen = document.currentLayout();
    const auto first = static_cast<std::size_t>(document.lockCount(screen));
    if (first >= ids.size()) {
        return false;
    }
    const bool forward = command == StackingCommand::Front || command == StackingCommand::Forward;
    const bool byOne = command == StackingCommand::Forward || command == StackingCommand::Backward;
    std::vector<int> order =
        byOne ? shifted(ids, isChosen, first, forward) : gathered(ids, isChosen, first, forward);
    if (order == ids) {
        return false;
    }
    document.setRowOrder(screen, std::move(order));
    return true;
}

bool moveRows(SkinDocument& document, const std::vector<int>& rows, int before) {
    const std::vector<int> ids = idsOf(document);
    const int screen = document.currentLayout();
    const auto at = static_cast<std::size_t>(
        std::clamp(before, document.lockCount(screen), document.rowCount(screen)));
    std::vector<bool> isChosen(ids.size());
    for (const int row : rows) {
        isChosen[static_cast<std::size_t>(row)] = !isLocked(document, row);
    }
    std::vector<int> order;
    order.reserve(ids.size());
    const auto take = [&](std::size_t from, std::size_t to, bool chosen) {
        for (std::size_t row = from; row < to; ++row) {
            if (isChosen[row] == chosen) {
                order.push_back(ids[row]);
            }
        }
    };
    take(0, at, false);
    take(0, ids.size(), true);
    take(at, ids.size(), false);
    if (order == ids) {
        return false;
    }
    document.setRowOrder(screen, std::move(order));
    return true;
}

bool deleteRow(SkinDocument& document, int row) {
    return row >= 0 && deleteRows(document, {row});
}

bool deleteRows(SkinDocument& document, const std::vector<int>& rows) {
    const int screen = document.currentLayout();
    const auto locked = static_cast<int>(
        std::count_if(rows.begin(), rows.end(), [&](int row) { return isLocked(document, row); }));
    document.delItems(rows);
    document.setScreenElementCount(screen, document.screenElementCount(screen) -
                                               static_cast<int>(rows.size()));
    if (locked > 0) {
        document.setLockCount(screen, document.lockCount(screen) - locked);
    }
    return locked > 0;
}

bool lockRows(SkinDocument& document, int row) {
    if (row < 0 || isLocked(document, row)) {
        return false;
    }
    std::vector<int> ids;
    for (int each = 0; each <= row; ++each) {
        if (!isLocked(document, each)) {
            ids.push_back(document.itemData(document.currentLayout(), each));
        }
    }
    document.editElements(ids, [](Element& element) {
        element.elementLocked = true;
        element.label.insert(0, lockPrefix);
    });
    document.setLockCount(document.currentLayout(), row + 1);
    return true;
}

bool unlockRows(SkinDocument& document) {
    const int screen = document.currentLayout();
    std::vector<int> ids;
    for (int row = 0; row < document.rowCount(screen); ++row) {
        if (isLocked(document, row)) {
            ids.push_back(document.itemData(screen, row));
        }
    }
    if (ids.empty()) {
        return false;
    }
    document.editElements(ids, [](Element& element) {
        element.elementLocked = false;
        element.label.erase(0, lockPrefix.size());
    });
    document.setLockCount(screen, 0);
    return true;
}

} // namespace tarvel
