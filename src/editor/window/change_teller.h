// Says in words what the last change of the document was.
#pragma once

#include "document/skin_document.h"

#include <functional>
#include <string>

namespace tarvel {

/// Tells of each edit that changed something, when it is over: "Move Box". An edit that was taken
/// back is none. The document is not owned.
class ChangeTeller : private DocumentObserver {
  public:
    ChangeTeller(const SkinDocument& document, std::function<void(const std::string&)> tell);

  private:
    void documentChanged(const DocumentChange& change) override;
    void editBegan(const std::string& name) override;
    void editEnded(bool takenBack) override;

    std::function<void(const std::string&)> tell_;
    std::string name_;
    bool changed_ = false;
    DocumentWatch watch_;
};

} // namespace tarvel
