/* A program that reads the log level, written in C to keep the header usable from C.
 * Runs its words in order and prints one line for each:
 *   init     Brel_Log_Init(), then the build and the current level
 *   log N    BrelLog(N, ...) and its result */
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "log/BrelLog.h"

int main(int argc, char** argv) {
    for (int i = 1; i < argc; ++i) {
        if (strcmp(argv[i], "init") == 0) {
            Brel_Log_Init();
            printf("%d %d\n", getLogLevel(BRLE_LOG_LEVEL_BUILD), getLogLevel(BRLE_LOG_LEVEL_CURRENT));
        } else if (strcmp(argv[i], "log") == 0 && i + 1 < argc) {
            uint32_t level = (uint32_t)strtoul(argv[++i], NULL, 10);
            printf("%d\n", BrelLog(level, "probe", __FILE__, __LINE__, "from %s", "C"));
        } else {
            fprintf(stderr, "probe: unknown word %s\n", argv[i]);
            return 2;
        }
    }
    return 0;
}
