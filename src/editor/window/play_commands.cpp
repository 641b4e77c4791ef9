// Opens and closes the window around a screen that plays, and shows its time and conditions.
#include "window/play_commands.h"

#include "document/layout_screens.h"
#include "panels/play_panel.h"
#include "panels/time_line_access.h"
#include "panels/time_panel.h"
#include "surface/pic.h"
#include "widgets/qt_text.h"
#include "window/window_gate.h"

#include <QAbstractButton>
#include <QAction>
#include <QEvent>
#include <QStringList>

#include <algorithm>
#include <utility>

namespace tarvel {

namespace {

constexpr PlayTime tenth = 100;
constexpr double quartersPerWhole = 4;

// Panels that slide in keep their places while they are hidden; these are to give them away.
void hideAway(QWidget& widget) {
    QSizePolicy policy = widget.sizePolicy();
    policy.setRetainSizeWhenHidden(false);
    widget.setSizePolicy(policy);
    widget.hide();
}

// The types and rows, as many as are asked for, and how many more there are.
QString listed(const std::vector<PlayedScreen::Still>& still, std::size_t most,
               const QString& separator) {
    QStringList parts;
    for (std::size_t i = 0; i < std::min(most, still.size()); ++i) {
        parts << QStringLiteral("%1 (%2)").arg(qtText(still[i].type), qtText(still[i].row));
    }
    if (still.size() > most) {
        parts << PlayCommands::tr("and %1 more").arg(still.size() - most);
    }
    return parts.join(separator);
}

} // namespace

PlayCommands::PlayCommands(const Parts& parts)
    : parts_(parts)
    , session_(parts.document, machineClock())
    , input_({.window = parts.window,
              .room = parts.room,
              .strips = {&parts.strip, &parts.time},
              .home = parts.time.timeLine(),
              .usable = parts.usable})
    , watch_(parts.document.watch(*this)) {
    parts_.strip.hide();
    parts_.side.side.installEventFilter(this);
    connect(&parts_.play, &QAction::triggered, this, &PlayCommands::play);
    connect(&parts_.playSkin, &QAction::triggered, this, &PlayCommands::playSkin);
    connect(&parts_.button, &QAbstractButton::clicked, this, &PlayCommands::play);
    connectSession();
    connectStrip();
}

PlayCommands::~PlayCommands() = default;

void PlayCommands::connectSession() {
    connect(&session_, &PlaySession::screenChanged, this, &PlayCommands::screenChanged);
    connect(&session_, &PlaySession::changed, this, &PlayCommands::showState);
    connect(&session_, &PlaySession::elementChanged, &parts_.surface, &Pic::playedChanged);
    connect(&session_, &PlaySession::timeSet, this, [this] {
        parts_.surface.videos().goTo(session_.run().at());
        tellTime(parts_.time.timeLine());
    });
    connect(&input_, &PlayInput::endWanted, this, &PlayCommands::end);
    connect(&input_, &PlayInput::holdWanted, &session_, &PlaySession::toggleHold);
    connect(&input_, &PlayInput::stepWanted, this,
            [this](int tenths) { session_.step(tenths * tenth); });
    connect(&input_, &PlayInput::itemWanted, &session_, &PlaySession::moveItem);
    connect(&input_, &PlayInput::speedWanted, this, &PlayCommands::changeSpeed);
    connect(&input_, &PlayInput::keyPressed, &session_, &PlaySession::key);
}

void PlayCommands::connectStrip() {
    PlayPanel& strip = parts_.strip;
    connect(&strip, &PlayPanel::holdClicked, &session_, &PlaySession::toggleHold);
    connect(&strip, &PlayPanel::stepped, this,
            [this](int tenths) { session_.step(tenths * tenth); });
    connect(&strip, &PlayPanel::speedChosen, &session_, &PlaySession::setSpeed);
    connect(&strip, &PlayPanel::conditionClicked, this, &PlayCommands::conditionClicked);
    connect(&strip, &PlayPanel::endClicked, this, &PlayCommands::end);
    TimeLine& line = parts_.time.timeLine();
    connect(&line, &TimeLine::dragged, &session_, &PlaySession::suspend);
    connect(&line, &TimeLine::timeChosen, &session_, &PlaySession::goTo);
}

void PlayCommands::play() {
    start(false);
}

void PlayCommands::playSkin() {
    start(true);
}

void PlayCommands::start(bool wholeSkin) {
    if (isPlaying() || parts_.gate.isClosed()) {
        return;
    }
    parts_.endWork();
    focusBefore_ = parts_.window.focusWidget();
    for (QWidget* widget : parts_.covered) {
        if (!widget->isHidden()) {
            covered_.emplace_back(widget);
            hideAway(*widget);
        }
    }
    parts_.strip.show();
    parts_.time.show();
    parts_.time.raise();
    // A field that loses the focus enters its text, which is a part of what plays.
    parts_.time.timeLine().setFocus(Qt::OtherFocusReason);
    parts_.gate.disablex({&parts_.strip, &parts_.time});
    input_.setActive(true);
    const SkinSettings& settings = parts_.document.settings();
    session_.start(wholeSkin ? SkinRun::ofSkin(settings.delays)
                             : SkinRun::ofScreen(parts_.document.currentLayout()),
                   parts_.catalogue());
}

void PlayCommands::end() {
    if (!isPlaying()) {
        return;
    }
    input_.setActive(false);
    parts_.surface.showPlayed(nullptr);
    session_.end();
    parts_.gate.enableAll();
    parts_.strip.hide();
    parts_.time.hide();
    for (const auto& widget : std::exchange(covered_, {})) {
        if (widget) {
            widget->show();
        }
    }
    if (focusBefore_) {
        focusBefore_->setFocus(Qt::OtherFocusReason);
    }
}

void PlayCommands::placeTime() {
    parts_.time.setGeometry(placeOver(parts_.side, parts_.ground, parts_.time));
}

bool PlayCommands::eventFilter(QObject* watched, QEvent* event) {
    if (isPlaying() && (event->type() == QEvent::Resize || event->type() == QEvent::Move)) {
        placeTime();
    }
    return QObject::eventFilter(watched, event);
}

// Nothing can change it by hand meanwhile; whatever does, ends the playing.
void PlayCommands::documentChanged(const DocumentChange& /*change*/) {
    end();
}

void PlayCommands::screenChanged() {
    const PlayedFrame& frame = session_.frame();
    parts_.surface.showPlayed(&frame);
    const SkinDocument& document = parts_.document;
    const int screen = frame.screen().screen();
    parts_.time.timeLine().setRows(document.rowCount(screen), [&document, screen](int row) {
        const Element& element = document.element(document.itemData(screen, row));
        return TimeLine::Row{qtText(document.rowText(screen, row)), element.elementTimers};
    });
    placeTime(); // for which the rows count
    constexpr std::size_t mostInLine = 6;
    constexpr std::size_t mostInTip = 40;
    const auto& still = frame.screen().still();
    parts_.strip.setNotShown(
        still.empty() ? QString()
                      : tr("not shown: %1").arg(listed(still, mostInLine, QStringLiteral(", "))),
        listed(still, mostInTip, QStringLiteral("\n")));
}

QString PlayCommands::runText() const {
    const SkinRun& run = session_.run();
    const QString screen = qtText(layoutScreens.at(static_cast<std::size_t>(run.screen())).caption);
    if (const auto remaining = run.remaining()) {
        const QString time = playTimeText(*remaining);
        return run.screen() == menuScreen ? tr("%1: saver in %2").arg(screen, time)
                                          : tr("%1: %2 left").arg(screen, time);
    }
    return run.heedsKeys() ? tr("%1: until a key").arg(screen) : screen;
}

void PlayCommands::showState() {
    PlayPanel& strip = parts_.strip;
    strip.setTime(session_.run().at());
    parts_.time.timeLine().setTime(session_.run().at());
    strip.setRun(runText());
    strip.setHeld(session_.isHeld());
    strip.setSpeed(session_.speed());
    PlayPanel::Conditions conditions;
    for (std::size_t row = 1; row < conditions.size(); ++row) {
        conditions.at(row) = {
            .holds = PlayedScreen::holds(conditionRows.at(row).text, session_.choices()),
            .forced = session_.choices().forced.at(row)};
    }
    strip.setConditions(conditions);
    VideoStage& videos = parts_.surface.videos();
    videos.setHeld(session_.isHeld() || session_.isSuspended());
    videos.setRate(session_.speed() / quartersPerWhole);
}

void PlayCommands::changeSpeed(int step) {
    const int quarters = step > 0 ? session_.speed() * 2 : session_.speed() / 2;
    session_.setSpeed(quarters);
}

// On, off, as the list says.
void PlayCommands::conditionClicked(int row) {
    const std::optional<bool> now = session_.choices().forced.at(static_cast<std::size_t>(row));
    session_.force(row, !now ? std::optional(true) : *now ? std::optional(false) : std::nullopt);
}

} // namespace tarvel
