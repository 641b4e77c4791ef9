// Further windows, each of which is a run of the program of its own.
#pragma once

class QString;

namespace tarvel {

/// Starts the program once more, to open a folder, or nothing where that is empty. False when it
/// cannot be started.
bool startRun(const QString& folder);

} // namespace tarvel
