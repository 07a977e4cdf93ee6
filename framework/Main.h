#pragma once

namespace android {
namespace dumpbrel {

// The whole run of the tool for one command line: the one-shot road with words, the prompt
// without. Returns the process's exit status.
int dumpbrelMain(int argc, char** argv);

}  // namespace dumpbrel
}  // namespace android
