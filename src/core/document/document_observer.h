// What those who watch a document are told.
#pragma once

#include "document/observers.h"

#include <string>

namespace tarvel {

/// One change. `screen` and `elementId` are -1 where they do not matter.
struct DocumentChange {
    enum class What {
        everything,    ///< another document took the place of this one
        settings,      ///< skin-wide settings
        currentLayout, ///< another screen is shown
        rows,          ///< rows of `screen` came, went or changed places
        rowText,       ///< the text of the row of `elementId` on `screen`
        element,       ///< the record of `elementId`
        elements,      ///< records of many elements, on whatever screens
        rowTexts,      ///< texts of many rows, on whatever screens
        counts         ///< screenElementCount or lockCount of `screen`
    };
    What what = What::everything;
    int screen = -1;
    int elementId = -1;
};

class DocumentObserver {
  public:
    virtual ~DocumentObserver() = default;
    /// The document has changed already.
    virtual void documentChanged(const DocumentChange& change) = 0;
    /// What follows, up to editEnded(), is one step of that name.
    virtual void editBegan(const std::string& /*name*/) {}
    /// `takenBack`: the document is as it was before, but for ids that were handed out.
    virtual void editEnded(bool /*takenBack*/) {}
};

using DocumentWatch = Observers<DocumentObserver>::Watch;

} // namespace tarvel
