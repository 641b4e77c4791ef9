// Decides when the work is kept, and asks about what lost runs have kept.
#include "window/recovery_keeper.h"

#include "files/host_files.h"
#include "widgets/prompts.h"
#include "widgets/qt_text.h"

#include <QDateTime>
#include <QWidget>

#include <algorithm>
#include <chrono>
#include <exception>
#include <memory>
#include <utility>

namespace tarvel {

namespace {

constexpr std::chrono::milliseconds keepAfter(800);

constexpr auto lostQuestion = "The last run ended before your work was saved. Bring it back?";

// What went wrong in words; empty when nothing did.
template <class Act> QString problemOf(Act&& act) {
    try {
        act();
    } catch (const std::exception& error) {
        return qtText(error.what());
    }
    return {};
}

} // namespace

RecoveryKeeper::RecoveryKeeper(const Work& work, const std::filesystem::path& folder)
    : work_(work)
    , store_(folder)
    , documentWatch_(work.document.watch(*this))
    , selectionWatch_(work.selection.watch(*this))
    , historyWatch_(work.history.watch(*this)) {
    thread_.setMaxThreadCount(1);
    soon_.setSingleShot(true);
    soon_.setInterval(keepAfter);
    connect(&soon_, &QTimer::timeout, this, &RecoveryKeeper::keepSoon);
}

RecoveryKeeper::~RecoveryKeeper() {
    thread_.waitForDone();
}

void RecoveryKeeper::documentChanged(const DocumentChange& /*change*/) {
    keepLater();
}

void RecoveryKeeper::selectionChanged() {
    keepLater();
}

void RecoveryKeeper::historyChanged() {
    keepLater();
}

void RecoveryKeeper::keepLater() {
    if (!ended_ && !soon_.isActive()) {
        soon_.start();
    }
}

WorkState RecoveryKeeper::stateNow() const {
    return {.document = work_.document,
            .selected = work_.selection.ids(),
            .leading = work_.selection.curNum(),
            .folder = coreText(work_.folder()),
            .keptAt = QDateTime::currentMSecsSinceEpoch()};
}

// The thread works on a copy of the document, which costs nothing to make.
void RecoveryKeeper::keepSoon() {
    if (keeping_) {
        keepLater();
        return;
    }
    std::shared_ptr<const WorkState> state;
    if (work_.history.isChanged()) {
        state = std::make_shared<const WorkState>(stateNow());
    }
    keeping_ = true;
    thread_.start([this, state = std::move(state)] {
        const QString problem = problemOf([&] {
            if (state != nullptr) {
                store_.keep(*state);
            } else {
                store_.keepNothing();
            }
        });
        QMetaObject::invokeMethod(
            this, [this, problem] { keepEnded(problem); }, Qt::QueuedConnection);
    });
}

void RecoveryKeeper::keepEnded(const QString& problem) {
    keeping_ = false;
    if (!problem.isEmpty() && problem != lastProblem_) {
        emit told(tr("The work cannot be kept for the case of a crash: %1").arg(problem));
    }
    lastProblem_ = problem;
}

bool RecoveryKeeper::keepNow() {
    soon_.stop();
    thread_.waitForDone();
    if (ended_) {
        return true;
    }
    keepEnded(problemOf([this] {
        if (work_.history.isChanged()) {
            store_.keep(stateNow());
        } else {
            store_.keepNothing(); // what was kept a moment ago is lost by nobody
        }
    }));
    return lastProblem_.isEmpty();
}

void RecoveryKeeper::endProperly() {
    ended_ = true;
    soon_.stop();
    thread_.waitForDone();
    store_.endProperly();
}

bool RecoveryKeeper::offerLost() {
    const auto lost = store_.takeLost();
    for (auto file = lost.begin(); file != lost.end(); ++file) {
        std::optional<WorkState> state = readOrSetAside(*file);
        if (!state || !work_.prompts.confirm(&work_.window, QLatin1String(lostQuestion))) {
            continue;
        }
        bringBack(std::move(*state));
        giveUp(*file);
        std::for_each(file + 1, lost.end(), [this](const auto& other) { store_.leave(other); });
        return true;
    }
    return false;
}

std::optional<WorkState> RecoveryKeeper::readOrSetAside(const std::filesystem::path& lost) {
    try {
        return RecoveryStore::read(lost);
    } catch (const std::exception& error) {
        std::filesystem::path place = lost;
        const QString problem = problemOf([&] { place = store_.setAside(lost); });
        work_.prompts.message(
            &work_.window,
            tr("What the last run kept cannot be read (%1). The file is left as %2.%3")
                .arg(qtText(error.what()), qtPath(place),
                     problem.isEmpty() ? QString() : QLatin1Char('\n') + problem));
    }
    return std::nullopt;
}

void RecoveryKeeper::bringBack(WorkState&& state) {
    SkinDocument& document = work_.document;
    document = std::move(state.document);
    work_.selection.selectIds(state.selected);
    work_.history.startOver(false);
    work_.broughtBack(state);
    emit told(tr("The work of the last run is back; it is not saved yet."));
}

// What was lost goes only when this run has kept it itself.
void RecoveryKeeper::giveUp(const std::filesystem::path& lost) {
    if (!keepNow()) {
        store_.leave(lost);
        return;
    }
    const QString problem = problemOf([&] { store_.forget(lost); });
    if (!problem.isEmpty()) {
        emit told(problem);
    }
}

} // namespace tarvel
