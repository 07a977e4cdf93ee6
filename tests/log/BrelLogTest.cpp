// The log facility in-process. The test is linked with --wrap=__android_log_print, so every
// call into liblog passes the recorder below on its way to the real one.

#include "log/BrelLog.h"

#include <stdarg.h>
#include <stdlib.h>
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include <android/log.h>
#include <cutils/properties.h>
#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace {

struct LogCall {
    int priority;
    std::string tag;
    std::string format;
    std::string file;
    int line;
    std::string text;
};

std::vector<LogCall> gCalls;

}  // namespace

extern "C" int __real___android_log_print(int priority, const char* tag, const char* format, ...);

extern "C" int __wrap___android_log_print(int priority, const char* tag, const char* format,
                                          ...) {
    va_list args;
    va_start(args, format);
    const char* file = va_arg(args, const char*);
    int line = va_arg(args, int);
    const char* text = va_arg(args, const char*);
    va_end(args);
    gCalls.push_back({priority, tag, format, file, line, text});
    return __real___android_log_print(priority, tag, format, file, line, text);
}

namespace {

const char kKey[] = "persist.vendor.brel.loglevel";
const char* const kNames[] = {"BREL_LOG_UNKNOWN", "BREL_LOG_DEFAULT", "BREL_LOG_VERBOSE",
                              "BREL_LOG_DEBUG",   "BREL_LOG_INFO",    "BREL_LOG_WARN",
                              "BREL_LOG_ERROR",   "BREL_LOG_FATAL"};

// Each test on a property directory of its own, with the level back at the build level.
class BrelLogTest : public ::testing::Test {
protected:
    void SetUp() override {
        char dir[] = "/tmp/brel-log-test-XXXXXX";
        ASSERT_NE(mkdtemp(dir), nullptr);
        mDir = dir;
        setenv("BREL_PROPERTY_DIR", mDir.c_str(), 1);
        Brel_Log_Init();
        ASSERT_EQ(getLogLevel(BRLE_LOG_LEVEL_CURRENT), BREL_LOG_WARN);
        gCalls.clear();
    }
    void TearDown() override {
        unsetenv("BREL_PROPERTY_DIR");
        std::error_code ignored;
        fs::remove_all(mDir, ignored);
    }

    fs::path propertyFile() const { return fs::path(mDir) / kKey; }

    std::string storedLevel() const {
        std::ifstream in(propertyFile(), std::ios::binary);
        std::stringstream text;
        text << in.rdbuf();
        return text.str();
    }

    void storeLevelText(const std::string& text) const {
        std::ofstream out(propertyFile(), std::ios::binary | std::ios::trunc);
        out << text;
    }

    // The probe's standard output, run as a process of its own on this test's directory.
    static std::string probe(const std::string& words) {
        std::string command = std::string(DUMPBREL_EMULATOR) + " " + LOG_PROBE + " " + words;
        FILE* pipe = popen(command.c_str(), "r");
        if (pipe == nullptr) return "popen failed";
        std::string out;
        char buffer[256];
        size_t n;
        while ((n = fread(buffer, 1, sizeof buffer, pipe)) > 0) out.append(buffer, n);
        int status = pclose(pipe);
        if (status != 0) out += "[status " + std::to_string(status) + "]";
        return out;
    }

    std::string mDir;
};

TEST_F(BrelLogTest, KeyConstantIsThirtyTwoBytes) {
    static_assert(sizeof PROP_BREL_SER_LOG_LEVEL == 32, "the key is a 32-byte array");
    char expected[32] = {};
    memcpy(expected, kKey, strlen(kKey));
    EXPECT_EQ(strlen(kKey), 28u);
    EXPECT_EQ(memcmp(PROP_BREL_SER_LOG_LEVEL, expected, sizeof expected), 0);
}

TEST_F(BrelLogTest, WithoutInitBothLevelsAreWarn) {
    EXPECT_EQ(probe("levels"), "5 5\n");
    // Not even a stored level changes that: only Brel_Log_Init reads it.
    storeLevelText("BREL_LOG_DEBUG\n");
    EXPECT_EQ(probe("levels"), "5 5\n");
}

TEST_F(BrelLogTest, GetLogLevelByType) {
    ASSERT_EQ(setLogLevel(BREL_LOG_DEBUG), 0);
    EXPECT_EQ(getLogLevel(BRLE_LOG_LEVEL_BUILD), 5);
    EXPECT_EQ(getLogLevel(BRLE_LOG_LEVEL_CURRENT), 3);
    EXPECT_EQ(getLogLevel(0), -1);
    EXPECT_EQ(getLogLevel(3), -1);
    EXPECT_EQ(getLogLevel(-1), -1);
}

TEST_F(BrelLogTest, BelowTheCurrentLevelIsDropped) {
    EXPECT_EQ(BrelLog(BREL_LOG_INFO, "BrelLogTest", "f.c", 1, "dropped"), -1);
    EXPECT_TRUE(gCalls.empty());
    EXPECT_EQ(BrelLog(BREL_LOG_WARN, "BrelLogTest", "f.c", 2, "written"), 0);
    ASSERT_EQ(gCalls.size(), 1u);
    EXPECT_EQ(gCalls[0].text, "written");

    ASSERT_EQ(setLogLevel(BREL_LOG_VERBOSE), 0);
    gCalls.clear();
    EXPECT_EQ(BrelLog(BREL_LOG_DEFAULT, "BrelLogTest", "f.c", 3, "dropped"), -1);
    EXPECT_EQ(BrelLog(BREL_LOG_VERBOSE, "BrelLogTest", "f.c", 4, "written"), 0);
    EXPECT_EQ(gCalls.size(), 1u);
}

TEST_F(BrelLogTest, NullTagIsDroppedBeforeLiblog) {
    ASSERT_EQ(setLogLevel(BREL_LOG_UNKNOWN), 0);
    EXPECT_EQ(BrelLog(BREL_LOG_FATAL, nullptr, "f.c", 1, "text"), -1);
    EXPECT_TRUE(gCalls.empty());
}

TEST_F(BrelLogTest, ColourAndPriorityByLevel) {
    ASSERT_EQ(setLogLevel(BREL_LOG_UNKNOWN), 0);
    const std::string plain = "[%s:%d] %s";
    const std::string cyan = "\033[36m[%s:%d] %s\033[0m";
    const std::string magenta = "\033[35m[%s:%d] %s\033[0m";
    const std::string red = "\033[31m[%s:%d] %s\033[0m";
    struct {
        uint32_t level;
        int priority;
        std::string format;
    } const expected[] = {
            {0, ANDROID_LOG_UNKNOWN, plain}, {1, ANDROID_LOG_DEFAULT, plain},
            {2, ANDROID_LOG_VERBOSE, plain}, {3, ANDROID_LOG_DEBUG, plain},
            {4, ANDROID_LOG_INFO, cyan},     {5, ANDROID_LOG_WARN, magenta},
            {6, ANDROID_LOG_ERROR, red},     {7, ANDROID_LOG_FATAL, red},
            {8, ANDROID_LOG_UNKNOWN, plain}, {9, ANDROID_LOG_UNKNOWN, plain},
            {UINT32_MAX, ANDROID_LOG_UNKNOWN, plain},
    };
    for (const auto& row : expected) {
        SCOPED_TRACE("level " + std::to_string(row.level));
        gCalls.clear();
        EXPECT_EQ(BrelLog(row.level, "BrelLogTest", "f.c", 7, "level test"), 0);
        ASSERT_EQ(gCalls.size(), 1u);
        EXPECT_EQ(gCalls[0].priority, row.priority);
        EXPECT_EQ(gCalls[0].tag, "BrelLogTest");
        EXPECT_EQ(gCalls[0].format, row.format);
    }
}

TEST_F(BrelLogTest, UnsignedLevelAboveFatalPassesAnyFilter) {
    ASSERT_EQ(setLogLevel(BREL_LOG_FATAL), 0);
    EXPECT_EQ(BrelLog(UINT32_MAX, "BrelLogTest", "f.c", 1, "passes"), 0);
    ASSERT_EQ(gCalls.size(), 1u);
    EXPECT_EQ(gCalls[0].priority, ANDROID_LOG_UNKNOWN);
    EXPECT_EQ(gCalls[0].format, "[%s:%d] %s");
}

TEST_F(BrelLogTest, FileLineAndTextAreTheArguments) {
    EXPECT_EQ(BrelLog(BREL_LOG_ERROR, "BrelLogTest", "dir/f.c", 42, "%d%% of %s", 50, "100%"),
              0);
    ASSERT_EQ(gCalls.size(), 1u);
    EXPECT_EQ(gCalls[0].file, "dir/f.c");
    EXPECT_EQ(gCalls[0].line, 42);
    // The formatted text travels as an argument: its '%' stays as it is.
    EXPECT_EQ(gCalls[0].text, "50% of 100%");
}

TEST_F(BrelLogTest, NullFileAndNullFormat) {
    EXPECT_EQ(BrelLog(BREL_LOG_ERROR, "BrelLogTest", nullptr, 1, "text"), 0);
    const char* noFormat = nullptr;
    EXPECT_EQ(BrelLog(BREL_LOG_ERROR, "BrelLogTest", "f.c", 2, noFormat), 0);
    ASSERT_EQ(gCalls.size(), 2u);
    EXPECT_EQ(gCalls[0].file, "(null)");
    EXPECT_EQ(gCalls[0].text, "text");
    EXPECT_EQ(gCalls[1].text, "");
}

TEST_F(BrelLogTest, LongMessageIsCutTo1023) {
    std::string message(2000, 'x');
    EXPECT_EQ(BrelLog(BREL_LOG_WARN, "BrelLogTest", "f.c", 1, "%s", message.c_str()), 0);
    ASSERT_EQ(gCalls.size(), 1u);
    EXPECT_EQ(gCalls[0].text, std::string(1023, 'x'));
}

TEST_F(BrelLogTest, SetLogLevelStoresTheName) {
    for (uint32_t level = 0; level <= 7; ++level) {
        SCOPED_TRACE("level " + std::to_string(level));
        EXPECT_EQ(setLogLevel(level), 0);
        EXPECT_EQ(getLogLevel(BRLE_LOG_LEVEL_CURRENT), static_cast<int>(level));
        EXPECT_EQ(storedLevel(), std::string(kNames[level]) + "\n");
        char value[PROPERTY_VALUE_MAX] = {};
        property_get(kKey, value, "");
        EXPECT_STREQ(value, kNames[level]);
    }
}

TEST_F(BrelLogTest, SetLogLevelRefusesButtAndAbove) {
    ASSERT_EQ(setLogLevel(BREL_LOG_INFO), 0);
    EXPECT_EQ(setLogLevel(BREL_LOG_BUTT), -1);
    EXPECT_EQ(setLogLevel(UINT32_MAX), -1);
    EXPECT_EQ(getLogLevel(BRLE_LOG_LEVEL_CURRENT), 4);
    EXPECT_EQ(storedLevel(), "BREL_LOG_INFO\n");

    fs::remove(propertyFile());
    EXPECT_EQ(setLogLevel(8), -1);
    EXPECT_FALSE(fs::exists(propertyFile()));
}

TEST_F(BrelLogTest, InitTakesAnExactName) {
    for (uint32_t level = 0; level <= 7; ++level) {
        SCOPED_TRACE(kNames[level]);
        storeLevelText(std::string(kNames[level]) + "\n");
        Brel_Log_Init();
        EXPECT_EQ(getLogLevel(BRLE_LOG_LEVEL_CURRENT), static_cast<int>(level));
    }
}

TEST_F(BrelLogTest, InitResetsToTheBuildLevel) {
    const std::string refused[] = {
            "BREL_LOG_BUTT\n", "\n", "", "brel_log_info\n", "4\n", "BREL_LOG_INFO \n",
            "BREL_LOG_INFO" + std::string(187, 'x'),
    };
    for (const std::string& text : refused) {
        SCOPED_TRACE("stored \"" + text + "\"");
        ASSERT_EQ(setLogLevel(BREL_LOG_DEBUG), 0);
        storeLevelText(text);
        Brel_Log_Init();
        EXPECT_EQ(getLogLevel(BRLE_LOG_LEVEL_CURRENT), 5);
    }
    ASSERT_EQ(setLogLevel(BREL_LOG_DEBUG), 0);
    fs::remove(propertyFile());
    Brel_Log_Init();
    EXPECT_EQ(getLogLevel(BRLE_LOG_LEVEL_CURRENT), 5);
}

TEST_F(BrelLogTest, LevelSetInOneProcessIsFoundByALaterOne) {
    EXPECT_EQ(probe("set 3"), "0\n");
    EXPECT_EQ(probe("levels init"), "5 5\n5 3\n");
    Brel_Log_Init();
    EXPECT_EQ(getLogLevel(BRLE_LOG_LEVEL_CURRENT), 3);
}

TEST_F(BrelLogTest, HeaderWorksFromC) {
    // The probe is C; its call passes the filter at level 6 and is dropped at 4.
    EXPECT_EQ(probe("log 6 log 4"), "0\n-1\n");
}

TEST_F(BrelLogTest, ErrorLineReachesStandardError) {
    ::testing::internal::CaptureStderr();
    EXPECT_EQ(BrelLog(BREL_LOG_ERROR, "BrelLogTest", "f.c", 12, "text"), 0);
    std::string err = ::testing::internal::GetCapturedStderr();
    EXPECT_NE(err.find("BrelLogTest"), std::string::npos) << err;
    EXPECT_NE(err.find("\033[31m[f.c:12] text\033[0m"), std::string::npos) << err;
}

}  // namespace
