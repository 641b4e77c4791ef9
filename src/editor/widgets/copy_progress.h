// Shows how far the copying of a save has come, where it takes long.
#pragma once

#include <QElapsedTimer>
#include <QProgressDialog>

#include <cstdint>
#include <string_view>

class QLabel;

namespace tarvel {

/// A modal dialog that appears after half a second, and keeps the rest of the program alive.
class CopyProgress : public QProgressDialog {
    Q_OBJECT

  public:
    static constexpr int delayMs = 500;

    explicit CopyProgress(QWidget* parent);

    /// Shows a step of a copy: the file's name, bytes done, bytes in all. Lets pending events run.
    /// False once the user has cancelled.
    bool step(std::string_view file, std::uintmax_t done, std::uintmax_t total);

  private:
    QLabel* label_; // child
    QElapsedTimer since_;
    QElapsedTimer lastTurn_;
};

} // namespace tarvel
