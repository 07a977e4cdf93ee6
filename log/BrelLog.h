/*
 * The program's log facility: messages to the Android log, filtered by a level that is kept in
 * the persistent property persist.vendor.brel.loglevel. Usable from C and C++; the functions and
 * the key constant are exported from the program under these plain names.
 */
#ifndef DUMPBREL_LOG_BRELLOG_H
#define DUMPBREL_LOG_BRELLOG_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Levels: the same numbers as the Android log's priorities. */
enum {
    BREL_LOG_UNKNOWN = 0,
    BREL_LOG_DEFAULT = 1,
    BREL_LOG_VERBOSE = 2,
    BREL_LOG_DEBUG = 3,
    BREL_LOG_INFO = 4,
    BREL_LOG_WARN = 5,
    BREL_LOG_ERROR = 6,
    BREL_LOG_FATAL = 7,
    BREL_LOG_BUTT = 8 /* end marker; as property text: no level stored */
};

/* What getLogLevel() reports. */
#define BRLE_LOG_LEVEL_BUILD 1
#define BRLE_LOG_LEVEL_CURRENT 2

#define BREL_LOG_EXPORT __attribute__((visibility("default")))

/* The property key, zero-filled to 32 bytes. */
BREL_LOG_EXPORT extern const char PROP_BREL_SER_LOG_LEVEL[32];

/* Resets the current level to the build level, then takes the level named by the property. */
BREL_LOG_EXPORT void Brel_Log_Init(void);

/* Writes "[file:line] message" at the level's priority; 0 when written, -1 when dropped (no tag,
 * or a level below the current one). The message is cut to 1023 bytes. */
BREL_LOG_EXPORT int BrelLog(uint32_t level, const char* tag, const char* file, int line,
                            const char* format, ...) __attribute__((format(printf, 5, 6)));

/* Sets the current level (0 to 7) and stores its name in the property; -1 for any other level. */
BREL_LOG_EXPORT int setLogLevel(uint32_t level);

/* BRLE_LOG_LEVEL_BUILD or BRLE_LOG_LEVEL_CURRENT; -1 for any other type. */
BREL_LOG_EXPORT int getLogLevel(int type);

#ifdef __cplusplus
}
#endif

#endif /* DUMPBREL_LOG_BRELLOG_H */
