// The log facility and the host property store. Linked with --wrap=__android_log_print: every
// call into liblog passes the recorder below on its way to the real one.

#include "log/BrelLog.h"

#include <stdarg.h>
#include <stdlib.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <cutils/properties.h>
#include <gtest/gtest.h>

namespace fs = std::filesystem;
using std::string;
using ::testing::internal::CaptureStderr;
using ::testing::internal::GetCapturedStderr;

// The priority, the format, and its arguments as "file:line text".
struct LogCall {
    int priority;
    string format, said;
};
static std::vector<LogCall> gCalls;

extern "C" int __real___android_log_print(int, const char*, const char*, ...);

extern "C" int __wrap___android_log_print(int priority, const char* tag, const char* format,
                                          ...) {
    va_list args;
    va_start(args, format);
    const char* file = va_arg(args, const char*);
    int line = va_arg(args, int);
    const char* text = va_arg(args, const char*);
    va_end(args);
    gCalls.push_back({priority, format, string(file) + ":" + std::to_string(line) + " " + text});
    return __real___android_log_print(priority, tag, format, file, line, text);
}

namespace {

const char kKey[32] = "persist.vendor.brel.loglevel";  // zero-filled
const string kNames[] = {"BREL_LOG_UNKNOWN", "BREL_LOG_DEFAULT", "BREL_LOG_VERBOSE",
                         "BREL_LOG_DEBUG",   "BREL_LOG_INFO",    "BREL_LOG_WARN",
                         "BREL_LOG_ERROR",   "BREL_LOG_FATAL"};

string fileText(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

int current() { return getLogLevel(BRLE_LOG_LEVEL_CURRENT); }

// Each case on a property directory of its own, not yet made, and at the build level.
class LogTest : public ::testing::Test {
protected:
    void SetUp() override {
        char dir[] = "/tmp/brel-log-test-XXXXXX";
        ASSERT_NE(mkdtemp(dir), nullptr);
        mRoot = dir;
        mDir = mRoot / "store";
        setenv("BREL_PROPERTY_DIR", mDir.c_str(), 1);
        Brel_Log_Init();
        ASSERT_EQ(current(), BREL_LOG_WARN);
        gCalls.clear();
    }
    void TearDown() override { fs::remove_all(mRoot); }

    void store(const char* key, const string& text) const {
        fs::create_directories(mDir);
        std::ofstream(mDir / key, std::ios::binary) << text;
    }
    // The value as property_get gives it, the returned length behind a '|'.
    static string get(const char* key, const char* fallback) {
        char value[PROPERTY_VALUE_MAX];
        memset(value, 0x55, sizeof value);
        int length = property_get(key, value, fallback);
        return string(value) + "|" + std::to_string(length);
    }

    fs::path mRoot, mDir;
};

TEST_F(LogTest, KeyIsZeroFilledTo32Bytes) {
    static_assert(sizeof PROP_BREL_SER_LOG_LEVEL == 32);
    EXPECT_EQ(memcmp(PROP_BREL_SER_LOG_LEVEL, kKey, sizeof kKey), 0);
}

TEST_F(LogTest, FilterPriorityAndFormatByLevel) {
    const char *plain = "[%s:%d] %s", *cyan = "\033[36m[%s:%d] %s\033[0m",
               *magenta = "\033[35m[%s:%d] %s\033[0m", *red = "\033[31m[%s:%d] %s\033[0m";
    // Priority -1: dropped.
    struct { uint32_t current, level; int priority; const char* format; } const rows[] = {
        {5, 4, -1, ""},   {2, 1, -1, ""},  {0, 0, 0, plain},   {0, 1, 1, plain}, {2, 2, 2, plain},
        {0, 3, 3, plain}, {0, 4, 4, cyan}, {5, 5, 5, magenta}, {0, 6, 6, red},   {7, 7, 7, red},
        {0, 8, 0, plain}, {0, 9, 0, plain}, {7, UINT32_MAX, 0, plain},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(::testing::Message() << row.current << "/" << row.level);
        ASSERT_EQ(setLogLevel(row.current), 0);
        gCalls.clear();
        EXPECT_EQ(BrelLog(row.level, "t", "f.c", 7, "text"), row.priority < 0 ? -1 : 0);
        ASSERT_EQ(gCalls.size(), row.priority < 0 ? 0u : 1u);
        if (row.priority < 0) continue;
        EXPECT_EQ(gCalls[0].priority, row.priority);
        EXPECT_EQ(gCalls[0].format, row.format);
    }
}

TEST_F(LogTest, FileLineAndTextAreArguments) {
    EXPECT_EQ(BrelLog(BREL_LOG_FATAL, nullptr, "f.c", 1, "no tag"), -1);
    CaptureStderr();
    EXPECT_EQ(BrelLog(BREL_LOG_ERROR, "t", "dir/f.c", 42, "%d%% of %s", 50, "100%"), 0);
    string err = GetCapturedStderr();  // the real liblog's line
    EXPECT_NE(err.find("\033[31m[dir/f.c:42] 50% of 100%\033[0m"), string::npos) << err;
    const string x(2000, 'x');
    EXPECT_EQ(BrelLog(BREL_LOG_ERROR, "t", nullptr, 1, "%s", x.c_str()), 0);
    const char* noFormat = nullptr;
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-security"  // no format at all, on purpose
    EXPECT_EQ(BrelLog(BREL_LOG_ERROR, "t", "f.c", 2, noFormat), 0);
#pragma GCC diagnostic pop
    ASSERT_EQ(gCalls.size(), 3u);
    // The formatted text travels as an argument: its '%' stays as it is.
    EXPECT_EQ(gCalls[0].said, "dir/f.c:42 50% of 100%");
    EXPECT_EQ(gCalls[1].said, "(null):1 " + x.substr(0, 1023));
    EXPECT_EQ(gCalls[2].said, "f.c:2 ");
}

// The build level stays; getLogLevel knows two types only.
TEST_F(LogTest, SetLogLevelStoresTheNameAndRefusesButt) {
    for (uint32_t level = 0; level <= 7; ++level) {
        EXPECT_EQ(setLogLevel(level), 0);
        EXPECT_EQ(current(), static_cast<int>(level));
        EXPECT_EQ(fileText(mDir / kKey), kNames[level] + "\n");
    }
    for (uint32_t level : {8u, 9u, UINT32_MAX}) EXPECT_EQ(setLogLevel(level), -1);
    EXPECT_EQ(current(), 7);
    EXPECT_EQ(fileText(mDir / kKey), "BREL_LOG_FATAL\n");
    EXPECT_EQ(getLogLevel(BRLE_LOG_LEVEL_BUILD), 5);
    for (int type : {-1, 0, 3}) EXPECT_EQ(getLogLevel(type), -1);
}

TEST_F(LogTest, InitTakesAnExactNameElseTheBuildLevel) {
    std::vector<std::pair<string, int>> rows = {{"BREL_LOG_BUTT\n", 5}, {"\n", 5},
                                                {"brel_log_info\n", 5}, {"4\n", 5},
                                                {"BREL_LOG_INFO \n", 5}};
    for (int level = 0; level <= 7; ++level) rows.push_back({kNames[level] + "\n", level});
    for (const auto& [text, level] : rows) {
        SCOPED_TRACE(text);
        ASSERT_EQ(setLogLevel(BREL_LOG_DEBUG), 0);
        store(kKey, text);
        Brel_Log_Init();
        EXPECT_EQ(current(), level);
    }
}

TEST_F(LogTest, PropertyRoundTrip) {
    const string m91(91, 'm');
    const std::pair<string, string> rows[] = {{"hi", "hi|2"}, {"", "-|1"}, {m91, m91 + "|91"}};
    for (const auto& [value, got] : rows) {
        ASSERT_EQ(property_set("p.key", value.c_str()), 0);
        EXPECT_EQ(fileText(mDir / "p.key"), value + "\n");
        EXPECT_EQ(get("p.key", "-"), got);
    }
}

TEST_F(LogTest, PropertyGetFromAHandWrittenFile) {
    const string d(200, 'd'), v(200, 'v');
    struct { const char *stored, *fallback; string got; } const rows[] = {  // stored null: no file
        {nullptr, "-", "-|1"},       {nullptr, nullptr, "|0"},   {"", "-", "-|1"},
        {"no newline", "", "no newline|10"}, {"two\n\n", "", "two\n|4"}, {" a \n", "", " a |3"},
        {nullptr, d.c_str(), d.substr(0, 91) + "|91"}, {v.c_str(), "", v.substr(0, 91) + "|91"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.got);
        fs::remove_all(mDir);
        if (row.stored) store("p.key", row.stored);
        EXPECT_EQ(get("p.key", row.fallback), row.got);
    }
}

TEST_F(LogTest, PropertyDirectoryIsTakenOnEveryCall) {
    store("p.key", "first\n");
    EXPECT_EQ(get("p.key", ""), "first|5");
    fs::path deep = mRoot / "a" / "b";
    setenv("BREL_PROPERTY_DIR", deep.c_str(), 1);
    EXPECT_EQ(get("p.key", "none"), "none|4");
    EXPECT_EQ(property_set("p.key", "second"), 0);  // makes the directory and its parents
    EXPECT_EQ(fileText(deep / "p.key"), "second\n");
}

TEST_F(LogTest, PropertySetRefusals) {
    EXPECT_EQ(property_set("p/key", "x"), -1);
    EXPECT_EQ(property_set("p.key", string(92, 'v').c_str()), -1);
    EXPECT_FALSE(fs::exists(mDir));
    EXPECT_EQ(get("p/key", "-"), "-|1");

    // A file that cannot be written: one line on standard error, and no temporary file stays.
    fs::create_directories(mDir / "p.dir" / "x");
    CaptureStderr();
    EXPECT_EQ(property_set("p.dir", "x"), -1);
    string err = GetCapturedStderr();
    EXPECT_EQ(std::count(err.begin(), err.end(), '\n'), 1) << err;
    EXPECT_EQ(std::distance(fs::directory_iterator(mDir), {}), 1);
}

}  // namespace
