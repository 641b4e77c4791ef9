// When commands on the selected elements may work, and when that may have become another answer.
#pragma once

#include "document/selection.h"

#include <QObject>

#include <functional>

namespace tarvel {

class WindowGate;

/// Watches document, selection and gate, which outlive it.
class CommandWatch : public QObject, private DocumentObserver, private SelectionObserver {
  public:
    /// `refresh` enables the entries for what can be done now; it is not called here yet.
    CommandWatch(SkinDocument& document, Selection& selection, WindowGate& gate,
                 std::function<void()> refresh);

    /// False while a panel or dialog is open or the pointer is at work; a run of arrow keys is no
    /// hindrance, it ends with the next command.
    [[nodiscard]] bool mayWork() const;

  private:
    void documentChanged(const DocumentChange& change) override;
    void editBegan(const std::string& name) override;
    void editEnded(bool takenBack) override;
    void selectionChanged() override;
    void refresh();

    SkinDocument& document_;
    WindowGate& gate_;
    std::function<void()> refresh_;
    bool mightWork_ = false; // when the entries were refreshed last
    DocumentWatch documentWatch_;
    SelectionWatch selectionWatch_;
};

} // namespace tarvel
