#pragma once

namespace android {
namespace dumpbrel {

class DumpBrel;

// Builds every sub-service, in the order of the listing, and registers it with `dumpBrel`.
// The entry below does this on every run; tools that walk the registry (the argument sweep,
// the fuzzers' seed corpus) call it on a DumpBrel of their own.
void registerModules(DumpBrel& dumpBrel);

// The whole run of the tool for one command line: the one-shot road with words, the prompt
// without. Returns the process's exit status.
int dumpbrelMain(int argc, char** argv);

}  // namespace dumpbrel
}  // namespace android
