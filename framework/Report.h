#pragma once

// What a run prints for a script, and the recorder. With BREL_OUTPUT=json the tool writes to
// standard output, instead of its text, one JSON object per line for each step of a dispatch: an
// option run, or something printed outside any option (the usage, an option list, "unknown
// option: ..."). Each holds the text the plain run prints for the step and the calls the panel
// received during it. Those calls are taken by the recorder's library (record/), which the run
// loads then, or with BREL_RECORD or BREL_RECORD_TRACE, and only then: without any of them
// nothing here costs more than reading the variables.

#include <cstdint>  // before utils/StrongPointer.h, which needs it and lacks it

#include <utils/StrongPointer.h>

#include "Command.h"
#include "service/IBrelManager.h"

namespace android {
namespace dumpbrel {
namespace report {

// BrelCreator::create(), through the recorder when the run asks for it.
sp<IBrelManager> createManager();

// A step ended: the row of long name `option` ran with `argument`, or, with both null, something
// was printed outside any option; it gave `status`. Outside an option a step that printed nothing
// is none.
void step(const char* option, const char* argument, Status status);

// BREL_OUTPUT=json with lines piped in: the prompt reads a batch, no prompt shown.
bool batch();

// The batch's line that the next steps belong to, 1 for the first.
void line(long number);

// The run's exit status: with BREL_OUTPUT=json, 1 when a step's status was not 0.
int exitStatus(int status);

// Forgets what the environment said: the next question reads it again. For a process that runs
// the tool's entry more than once (the tests' forked runs).
void reset();

}  // namespace report
}  // namespace dumpbrel
}  // namespace android
