// The dialog for the background music.
#pragma once

#include "dialogs/skin_dialog.h"
#include "dialogs/track_player.h"
#include "widgets/easing.h"

#include <memory>

class QCheckBox;
class QFrame;
class QLabel;
class QRadioButton;

namespace tarvel {

class MusicList;
class PlayButton;

/// Grows and shrinks with what its options show. The files of the list can be listened to.
class FrmMusic : public SkinDialog {
    Q_OBJECT

  public:
    FrmMusic(SkinDocument& document, Prompts& prompts, QWidget* parent = nullptr,
             std::unique_ptr<TrackPlayer> player = makeTrackPlayer());

  protected:
    void readDocument() override;
    void hideEvent(QHideEvent* event) override;

  private:
    /// Tops and heights that belong to a state of the options, in pixels.
    struct Plan {
        bool stuffShown;
        bool musicShown;
        int musicHeight; ///< of fraMusic
        int randomTop;   ///< of chkRandom, in fraStuff
        int stuffHeight; ///< of fraStuff
        int okTop;       ///< of cmdOK
        int formHeight;
    };

    void buildMusic();
    void connectControls();
    void measure();
    [[nodiscard]] Plan plan() const;
    /// Lays the controls out below one another as the options have it.
    void layOut(bool animated);
    [[nodiscard]] static Easing::Move moveToY(int y, QWidget* control);
    [[nodiscard]] static Easing::Move growToHeight(int height, QWidget* control);
    [[nodiscard]] Easing::Move growForm(int height);

    void showList();
    void addFiles(QStringList files);
    void cmdAdd_Click();
    void removeSelected();
    void playSelected();
    void playOrStop();
    void showPlaying();
    template <class Edit> void editMusic(Edit&& edit) {
        document().editSettings([&](SkinSettings& settings) { edit(settings.music); });
    }

    QLabel* caption_;
    QRadioButton* optYesMusic_;
    QRadioButton* optNoMusic_;
    QFrame* fraStuff_;
    QCheckBox* chkGlobal_;
    QCheckBox* chkCustom_;
    QFrame* fraMusic_;
    QWidget* musicInside_; // what fraMusic uncovers as it grows
    QPushButton* cmdAdd_;
    PlayButton* cmdPlay_;
    QLabel* lblPlaying_;
    MusicList* lstMusic_;
    QCheckBox* chkRandom_;
    QPushButton* cmdOK_;
    std::unique_ptr<TrackPlayer> player_;
    Easing easing_;
};

} // namespace tarvel
