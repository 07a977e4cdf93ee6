#include "log/BrelLog.h"

#include <stdarg.h>
#include <stdio.h>
#include <string.h>

#include <android/log.h>
#include <cutils/properties.h>

// Clang's AddressSanitizer would pad the constant with a red zone and grow its symbol; the
// exported object must keep its 32 bytes.
#if defined(__clang__)
#define BREL_LOG_NO_ASAN __attribute__((no_sanitize("address")))
#else
#define BREL_LOG_NO_ASAN
#endif

extern "C" BREL_LOG_EXPORT BREL_LOG_NO_ASAN const char PROP_BREL_SER_LOG_LEVEL[32] =
        "persist.vendor.brel.loglevel";

namespace {

// The level fixed at build time, and the one in force.
const uint32_t kBuildLevel = BREL_LOG_WARN;
uint32_t gCurrentLevel = BREL_LOG_WARN;

// The names of levels 0 to 7, as the property stores them.
const char* const kLevelNames[] = {
        "BREL_LOG_UNKNOWN", "BREL_LOG_DEFAULT", "BREL_LOG_VERBOSE", "BREL_LOG_DEBUG",
        "BREL_LOG_INFO",    "BREL_LOG_WARN",    "BREL_LOG_ERROR",   "BREL_LOG_FATAL",
};
const char kNoLevel[] = "BREL_LOG_BUTT";

const size_t kMessageSize = 1024;
const size_t kInitValueSize = 256;

}  // namespace

extern "C" void Brel_Log_Init(void) {
    gCurrentLevel = kBuildLevel;
    char value[kInitValueSize] = {};
    property_get(PROP_BREL_SER_LOG_LEVEL, value, kNoLevel);
    if (strcmp(value, kNoLevel) == 0) return;
    for (uint32_t level = BREL_LOG_UNKNOWN; level <= BREL_LOG_FATAL; ++level) {
        if (strcmp(value, kLevelNames[level]) == 0) {
            gCurrentLevel = level;
            return;
        }
    }
}

extern "C" int BrelLog(uint32_t level, const char* tag, const char* file, int line,
                       const char* format, ...) {
    if (tag == nullptr) return -1;
    if (level < gCurrentLevel) return -1;

    char message[kMessageSize] = {};
    if (format != nullptr) {
        va_list args;
        va_start(args, format);
        vsnprintf(message, sizeof message, format, args);
        va_end(args);
    }
    const char* where = file != nullptr ? file : "(null)";

    // The message always travels as an argument, never as a format.
    switch (level) {
        case BREL_LOG_UNKNOWN:
        case BREL_LOG_DEFAULT:
        case BREL_LOG_VERBOSE:
        case BREL_LOG_DEBUG:
            __android_log_print(static_cast<int>(level), tag, "[%s:%d] %s", where, line, message);
            break;
        case BREL_LOG_INFO:
            __android_log_print(ANDROID_LOG_INFO, tag, "\033[36m[%s:%d] %s\033[0m", where, line,
                                message);
            break;
        case BREL_LOG_WARN:
            __android_log_print(ANDROID_LOG_WARN, tag, "\033[35m[%s:%d] %s\033[0m", where, line,
                                message);
            break;
        case BREL_LOG_ERROR:
        case BREL_LOG_FATAL:
            __android_log_print(static_cast<int>(level), tag, "\033[31m[%s:%d] %s\033[0m", where,
                                line, message);
            break;
        default:
            __android_log_print(ANDROID_LOG_UNKNOWN, tag, "[%s:%d] %s", where, line, message);
            break;
    }
    return 0;
}

extern "C" int setLogLevel(uint32_t level) {
    if (level > BREL_LOG_FATAL) return -1;
    gCurrentLevel = level;
    char value[PROPERTY_VALUE_MAX] = {};
    snprintf(value, sizeof value, "%s", kLevelNames[level]);
    property_set(PROP_BREL_SER_LOG_LEVEL, value);
    return 0;
}

extern "C" int getLogLevel(int type) {
    switch (type) {
        case BRLE_LOG_LEVEL_BUILD:
            return static_cast<int>(kBuildLevel);
        case BRLE_LOG_LEVEL_CURRENT:
            return static_cast<int>(gCurrentLevel);
        default:
            return -1;
    }
}
