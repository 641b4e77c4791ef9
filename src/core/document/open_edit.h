// Edits of a document under a name: what a person would call one step, however many changes it is.
#pragma once

#include "document/skin_document.h"

#include <string>
#include <utility>

namespace tarvel {

/// One edit from its beginning to its end, which is that of the object: a command, a whole drag, a
/// dialog from opening to closing. What is begun while another is open is a part of that one. The
/// document outlives it.
class OpenEdit {
  public:
    /// `name` completes a menu entry that takes the step back: "move Box".
    OpenEdit(SkinDocument& document, std::string name)
        : document_(document) {
        document_.beginEdit(std::move(name));
    }
    ~OpenEdit() { document_.endEdit(takenBack_); }
    OpenEdit(const OpenEdit&) = delete;
    OpenEdit& operator=(const OpenEdit&) = delete;

    /// Whoever changed the document in this edit has put everything back.
    void takeBack() { takenBack_ = true; }

  private:
    SkinDocument& document_;
    bool takenBack_ = false;
};

} // namespace tarvel
