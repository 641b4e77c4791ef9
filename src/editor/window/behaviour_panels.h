// The panels for modifiers, timers and condition, of which one at a time lies over the window.
#pragma once

#include "document/skin_document.h"
#include "window/side_room.h"

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <array>
#include <filesystem>
#include <functional>

namespace tarvel {

class BehaviourPanel;
class Prompts;
class WindowGate;

/// Opens a panel over a side of the window and lets nothing else be worked with until it closes;
/// then the focus goes back to where it was.
/// Document, prompts and gate are not owned and outlive it.
class BehaviourPanels : public QObject {
    Q_OBJECT

  public:
    static constexpr std::size_t count = 3;

    /// The panels are children of `ground`, which holds the room. The modifier catalogue is looked
    /// for in `programFolder`.
    BehaviourPanels(SkinDocument& document, Prompts& prompts, WindowGate& gate, SideRoom room,
                    QWidget& ground, const std::filesystem::path& programFolder);

    /// Opens panel 0 modifiers, 1 timers or 2 condition for elements, the last of which
    /// leads; without any nothing happens.
    void cmdModifier_Click(int index, const std::vector<int>& elementIds);
    [[nodiscard]] bool isOpen() const;
    /// All of them, open or not.
    [[nodiscard]] std::vector<QWidget*> panels() const;
    /// Takes an open panel over that was changed since it opened, and leaves it open; a panel only
    /// looked at stores nothing. Returns what takes that back; it may be empty.
    [[nodiscard]] std::function<void()> storeChanged();

  signals:
    /// A panel was closed by its OK button.
    void closed();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void place(BehaviourPanel& panel);
    void panelClosed();

    WindowGate& gate_;
    SideRoom room_;
    QWidget& ground_;
    std::array<BehaviourPanel*, count> panels_{};
    QPointer<QWidget> focusBefore_; // gets the focus back from the open panel
};

} // namespace tarvel
