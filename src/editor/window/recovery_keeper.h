// Keeps the work of a run where the next one finds it, and brings back what lost runs have kept.
#pragma once

#include "document/history.h"
#include "document/selection.h"
#include "skinfile/recovery_store.h"

#include <QObject>
#include <QThreadPool>
#include <QTimer>

#include <filesystem>
#include <functional>
#include <optional>

class QWidget;

namespace tarvel {

class Prompts;

/// Keeps the state of the work at most two seconds after a change, in a thread of its own; nothing
/// while there is nothing to lose. What it is given is not owned and outlives it.
class RecoveryKeeper : public QObject,
                       private DocumentObserver,
                       private SelectionObserver,
                       private HistoryObserver {
    Q_OBJECT

  public:
    struct Work {
        SkinDocument& document;
        Selection& selection;
        History& history;
        Prompts& prompts;
        QWidget& window;
        /// The skin's folder; "" for none yet.
        std::function<QString()> folder;
        /// Called with what was brought back: what else there is to show of it.
        std::function<void(const WorkState&)> broughtBack;
    };

    /// Throws FileError when nothing can be kept in `folder`.
    RecoveryKeeper(const Work& work, const std::filesystem::path& folder);
    /// Leaves what is kept to the next run, unless the run was ended properly.
    ~RecoveryKeeper() override;

    /// Asks for each lost run, the newest first, whether to bring it back, up to the first Yes; the
    /// others are left to the next run. True when something was brought back.
    bool offerLost();
    /// Keeps the work as it is, and returns when that is done; false when it cannot be kept.
    bool keepNow();
    /// The run ends: there is nothing to bring back.
    void endProperly();

  signals:
    /// One line, for the status line.
    void told(const QString& text);

  private:
    void documentChanged(const DocumentChange& change) override;
    void selectionChanged() override;
    void historyChanged() override;
    void keepSoon();
    void keepLater();
    void keepEnded(const QString& problem);
    [[nodiscard]] WorkState stateNow() const;
    [[nodiscard]] std::optional<WorkState> readOrSetAside(const std::filesystem::path& lost);
    void bringBack(WorkState&& state);
    void giveUp(const std::filesystem::path& lost);

    Work work_;
    RecoveryStore store_; // of the thread while keeping_
    QThreadPool thread_;
    QTimer soon_;
    bool keeping_ = false;
    bool ended_ = false;
    QString lastProblem_;
    DocumentWatch documentWatch_;
    SelectionWatch selectionWatch_;
    HistoryWatch historyWatch_;
};

} // namespace tarvel
