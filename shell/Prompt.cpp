#include "Prompt.h"

namespace android {
namespace dumpbrel {

int runPrompt(DumpBrel&) {
    return 0;
}

}  // namespace dumpbrel
}  // namespace android
