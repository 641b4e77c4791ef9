// What the tests of the music dialog share: a dialog whose player only notes what it is told.
#pragma once

#include "dialogs/frm_music.h"
#include "support/dialog_support.h"
#include "support/scripted_prompts.h"
#include "support/temporary_folder.h"

#include <memory>

namespace tarvel::test {

/// The four options, and no files.
inline MusicSettings musicOptions(bool yes, bool global, bool custom, bool random) {
    MusicSettings settings;
    settings.hasMusic = yes;
    settings.playGlobal = global;
    settings.customMusic = custom;
    settings.playRandom = random;
    return settings;
}

/// Notes "play <file>" and "stop", and tells the state that a test wants.
class FakePlayer : public TrackPlayer {
  public:
    explicit FakePlayer(QStringList& log)
        : log_(log) {}

    void play(const QString& file) override {
        log_ << "play " + file;
        setState({.playing = true, .file = file});
    }
    void stop() override {
        log_ << "stop";
        setState({});
    }
    void tell(const State& state) { setState(state); }

  private:
    QStringList& log_;
};

/// Base of test classes.
class MusicFixture {
  protected:
    void startAfresh() {
        document_ = SkinDocument();
        prompts_ = std::make_unique<ScriptedPrompts>();
        log_.clear();
    }
    [[nodiscard]] const MusicSettings& music() const { return document_.settings().music; }
    void setMusic(const MusicSettings& value) {
        document_.editSettings([&](SkinSettings& settings) { settings.music = value; });
    }
    /// Music on, custom, with the files a.wma, b.wma and c.wma, which exist.
    void setThreeFiles() {
        MusicSettings value = musicOptions(true, false, true, false);
        for (const char* name : {"a.wma", "b.wma", "c.wma"}) {
            folder_.file(name, "music");
            value.musicFiles.push_back(folder_.document(name));
        }
        value.rows = {0, 1, 2};
        setMusic(value);
    }
    /// The dialog, whose player is player_ until the next one is made.
    std::unique_ptr<FrmMusic> makeDialog() {
        auto player = std::make_unique<FakePlayer>(log_);
        player_ = player.get();
        return std::make_unique<FrmMusic>(document_, *prompts_, nullptr, std::move(player));
    }
    /// The host path of a file in the folder.
    [[nodiscard]] QString inFolder(const char* name) const {
        return QString::fromStdString((folder_ / name).string());
    }

    SkinDocument document_;
    std::unique_ptr<ScriptedPrompts> prompts_;
    QStringList log_;
    FakePlayer* player_ = nullptr;
    TemporaryFolder folder_;
};

} // namespace tarvel::test
