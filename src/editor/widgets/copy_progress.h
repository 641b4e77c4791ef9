// Shows how far the copying of a save has come, where it takes long.
#pragma once

#include "widgets/late_progress.h"

#include <cstdint>
#include <string_view>

namespace tarvel {

/// Appears after half a second.
class CopyProgress : public LateProgress {
    Q_OBJECT

  public:
    explicit CopyProgress(QWidget* parent);

    /// Shows a step of a copy: the file's name, bytes done, bytes in all. Lets pending events run.
    /// False once the user has cancelled.
    bool step(std::string_view file, std::uintmax_t done, std::uintmax_t total);

  private:
    void showStep(std::string_view file, std::uintmax_t done, std::uintmax_t total);
};

} // namespace tarvel
