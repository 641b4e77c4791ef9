// Shows that files are being looked for, where it takes long.
#pragma once

#include "widgets/late_progress.h"

#include <cstddef>

namespace tarvel {

/// Appears after `delay` milliseconds. How far the search has come cannot be known.
class SearchProgress : public LateProgress {
    Q_OBJECT

  public:
    explicit SearchProgress(QWidget* parent, int delay = delayMs);

    /// Shows how many entries of folders were looked at. Lets pending events run. False once the
    /// user has cancelled.
    bool step(std::size_t entries);
};

} // namespace tarvel
