// Fuzz target over keystrokes: the input is what a user types at the prompt, byte by byte.
// The prompt loop runs through the binary's own entry with no words, dispatching every line it
// reads; "exit" or "q" ends that input, and so does the end of the bytes.

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstdlib>

#include "Harness.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    dumpbrel_fuzz::setUp();

    // The keys stand in a file of their own that becomes descriptor 0 for the run.
    int keys = memfd_create("dumpbrel-keys", MFD_CLOEXEC);
    if (keys < 0) {
        dumpbrel_fuzz::report("dumpbrel fuzz: memfd_create failed");
        abort();
    }
    for (size_t done = 0; done < size;) {
        ssize_t n = write(keys, data + done, size - done);
        if (n <= 0) {
            dumpbrel_fuzz::report("dumpbrel fuzz: cannot write the keys");
            abort();
        }
        done += static_cast<size_t>(n);
    }
    lseek(keys, 0, SEEK_SET);
    dup2(keys, 0);
    close(keys);

    dumpbrel_fuzz::useProfile(dumpbrel_fuzz::Profile::kBuiltIn);
    dumpbrel_fuzz::runTool({});

    int null = open("/dev/null", O_RDONLY);
    dup2(null, 0);
    close(null);
    return 0;
}
