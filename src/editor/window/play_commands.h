// Playing in the main window: "Play", "Play Skin", and the strip below the surface.
#pragma once

#include "document/modifier_catalogue.h"
#include "document/skin_document.h"
#include "window/play_input.h"
#include "window/play_session.h"
#include "window/side_room.h"

#include <QObject>
#include <QPointer>

#include <functional>
#include <vector>

class QAbstractButton;
class QAction;
class QWidget;

namespace tarvel {

class Pic;
class PlayPanel;
class TimePanel;
class WindowGate;

/// While a screen plays, the window is closed but for the strip, and the document stays as it is.
/// What it is given is not owned and outlives it.
class PlayCommands : public QObject, private DocumentObserver {
    Q_OBJECT

  public:
    struct Parts {
        QWidget& window;
        const SkinDocument& document;
        Pic& surface;
        QWidget& room; ///< around the surface
        PlayPanel& strip;
        TimePanel& time;
        SideRoom side;   ///< that the time panel covers
        QWidget& ground; ///< of the time panel and the side
        WindowGate& gate;
        QAction& play;
        QAction& playSkin;
        QAbstractButton& button;
        /// What makes room for the strip meanwhile.
        std::vector<QWidget*> covered;
        /// What is worked with meanwhile besides the strip.
        std::vector<QWidget*> usable;
        /// Ends what goes on before a screen plays.
        std::function<void()> endWork;
        std::function<ModifierCatalogue()> catalogue;
    };

    explicit PlayCommands(const Parts& parts);
    ~PlayCommands() override;

    /// Takes the time from another clock from the next start on.
    void playBy(PlayClock clock) { session_.setClock(std::move(clock)); }

    [[nodiscard]] bool isPlaying() const { return session_.isPlaying(); }
    void play();
    void playSkin();
    /// Back to work; nothing happens when nothing plays.
    void end();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void documentChanged(const DocumentChange& change) override;
    void start(bool wholeSkin);
    void connectSession();
    void connectStrip();
    void placeTime();
    void screenChanged();
    void showState();
    void changeSpeed(int step);
    void conditionClicked(int row);
    [[nodiscard]] QString runText() const;

    Parts parts_;
    PlaySession session_;
    PlayInput input_;
    DocumentWatch watch_;
    QPointer<QWidget> focusBefore_;
    std::vector<QPointer<QWidget>> covered_; // those that were shown
};

} // namespace tarvel
