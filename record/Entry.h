#pragma once

// What the tool finds in the recorder's library, libbrel_record.so, which it loads only when a run
// asks for what the library does: BREL_RECORD, BREL_RECORD_TRACE or BREL_OUTPUT=json
// (framework/Report.cpp). The library is the adaptor written from service/ over the vendor's
// own, its backend recording, tracing and reporting each call as the run asks.

#include <cstddef>

namespace android {
class IBrelManager;
}

extern "C" {

struct BrelRecorder {
    // The vendor's manager behind the adaptor; null stays null, and is recorded absent.
    android::IBrelManager* (*wrap)(android::IBrelManager* real);
    // With BREL_OUTPUT=json, a step of a dispatch ended: its JSON line goes to standard output,
    // with `output` (`size` bytes, what the plain run would have printed for it) and the calls
    // the panel received since the last step. `option` and `argument` may be null; `line` is
    // the batch's line, 0 for none.
    void (*step)(const char* option, const char* argument, const char* output, size_t size,
                 int status, long line);
};

// The library's entry, by this name (dlsym).
const BrelRecorder* brel_recorder();
}
