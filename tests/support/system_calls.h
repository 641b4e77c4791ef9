// What the tests of the core see of the system's calls, and which of them they let fail. The calls
// themselves are taken over in core/files/interrupted_calls_test.cpp.
#pragma once

#include <map>
#include <string>

namespace tarvel {

struct SystemCalls {
    int flushes = 0;   // of files, through fsync
    int failFlush = 0; // the one of them that finds the disk full; 0 for none
    int folderFlushes = 0;
    int opens = 0; // of files and folders
    int writes = 0;
    int cuts = 0;                            // by ftruncate
    bool interrupted = false;                // a signal breaks into every other call of each kind
    std::map<std::string, int> signalsTaken; // by the call
};

inline SystemCalls systemCalls; // NOLINT: the calls take no argument that could carry it

} // namespace tarvel
