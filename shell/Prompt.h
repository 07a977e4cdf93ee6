#pragma once

namespace android {
namespace dumpbrel {

class DumpBrel;

// The interactive road: reads lines at "dumpbrel > " and dispatches each until "exit", "q" or
// the end of input. Returns the exit status.
int runPrompt(DumpBrel& dumpBrel);

}  // namespace dumpbrel
}  // namespace android
