// The host's property store: one file per key, read on every call.

#include <cutils/properties.h>

#include <stdlib.h>

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace {

class PropertiesTest : public ::testing::Test {
protected:
    void SetUp() override {
        char dir[] = "/tmp/brel-properties-test-XXXXXX";
        ASSERT_NE(mkdtemp(dir), nullptr);
        mRoot = dir;
        mDir = mRoot / "store";
        setenv("BREL_PROPERTY_DIR", mDir.c_str(), 1);
    }
    void TearDown() override {
        unsetenv("BREL_PROPERTY_DIR");
        std::error_code ignored;
        fs::remove_all(mRoot, ignored);
    }

    std::string fileText(const fs::path& path) const {
        std::ifstream in(path, std::ios::binary);
        std::stringstream text;
        text << in.rdbuf();
        return text.str();
    }
    void writeFile(const std::string& key, const std::string& text) const {
        fs::create_directories(mDir);
        std::ofstream out(mDir / key, std::ios::binary | std::ios::trunc);
        out << text;
    }
    // The value as property_get gives it, the returned length behind a '|'.
    std::string get(const char* key, const char* fallback) const {
        char value[PROPERTY_VALUE_MAX];
        memset(value, 0x55, sizeof value);
        int length = property_get(key, value, fallback);
        return std::string(value) + "|" + std::to_string(length);
    }

    fs::path mRoot;
    fs::path mDir;
};

TEST_F(PropertiesTest, RoundTrip) {
    EXPECT_EQ(property_set("persist.test.value", "hello"), 0);
    EXPECT_EQ(fileText(mDir / "persist.test.value"), "hello\n");
    EXPECT_EQ(get("persist.test.value", "default"), "hello|5");
    EXPECT_EQ(property_set("persist.test.value", "again"), 0);
    EXPECT_EQ(get("persist.test.value", nullptr), "again|5");
    // No temporary file is left behind.
    size_t files = 0;
    for (const auto& entry : fs::directory_iterator(mDir)) {
        (void)entry;
        ++files;
    }
    EXPECT_EQ(files, 1u);
}

TEST_F(PropertiesTest, DefaultForMissingOrEmpty) {
    EXPECT_EQ(get("persist.test.none", "fallback"), "fallback|8");
    EXPECT_EQ(get("persist.test.none", nullptr), "|0");
    writeFile("persist.test.empty", "");
    EXPECT_EQ(get("persist.test.empty", "fallback"), "fallback|8");
    EXPECT_EQ(property_set("persist.test.cleared", ""), 0);
    EXPECT_EQ(fileText(mDir / "persist.test.cleared"), "\n");
    EXPECT_EQ(get("persist.test.cleared", "fallback"), "fallback|8");
    EXPECT_EQ(get("persist.test.none", std::string(200, 'd').c_str()),
              std::string(91, 'd') + "|91");
}

TEST_F(PropertiesTest, LongValueIsCutTo91) {
    writeFile("persist.test.long", std::string(200, 'v') + "\n");
    EXPECT_EQ(get("persist.test.long", ""), std::string(91, 'v') + "|91");
    EXPECT_EQ(property_set("persist.test.max", std::string(91, 'm').c_str()), 0);
    EXPECT_EQ(get("persist.test.max", ""), std::string(91, 'm') + "|91");
}

TEST_F(PropertiesTest, HandWrittenFile) {
    writeFile("persist.test.plain", "no newline");
    EXPECT_EQ(get("persist.test.plain", ""), "no newline|10");
    writeFile("persist.test.two", "two\n\n");
    EXPECT_EQ(get("persist.test.two", ""), "two\n|4");
    writeFile("persist.test.blank", " spaced \n");
    EXPECT_EQ(get("persist.test.blank", ""), " spaced |8");
}

TEST_F(PropertiesTest, ReadAnewOnEveryCall) {
    writeFile("persist.test.key", "first\n");
    EXPECT_EQ(get("persist.test.key", ""), "first|5");
    fs::path other = mRoot / "other";
    setenv("BREL_PROPERTY_DIR", other.c_str(), 1);
    EXPECT_EQ(get("persist.test.key", "none"), "none|4");
    EXPECT_EQ(property_set("persist.test.key", "second"), 0);
    EXPECT_EQ(fileText(other / "persist.test.key"), "second\n");
    EXPECT_EQ(fileText(mDir / "persist.test.key"), "first\n");
}

TEST_F(PropertiesTest, SetCreatesTheDirectory) {
    fs::path deep = mRoot / "a" / "b" / "c";
    setenv("BREL_PROPERTY_DIR", deep.c_str(), 1);
    EXPECT_EQ(property_set("persist.test.deep", "1"), 0);
    EXPECT_EQ(fileText(deep / "persist.test.deep"), "1\n");
}

TEST_F(PropertiesTest, BuildDirectoryWhenUnsetOrEmpty) {
    const char key[] = "persist.dumpbrel.test.default";
    fs::path stored = fs::path(BREL_PROPERTY_DEFAULT_DIR) / key;
    setenv("BREL_PROPERTY_DIR", "", 1);
    EXPECT_EQ(property_set(key, "here"), 0);
    EXPECT_EQ(fileText(stored), "here\n");
    unsetenv("BREL_PROPERTY_DIR");
    EXPECT_EQ(get(key, ""), "here|4");
    fs::remove(stored);
}

TEST_F(PropertiesTest, Refusals) {
    EXPECT_EQ(property_set("persist/test", "x"), -1);
    EXPECT_EQ(property_set("persist.test.long", std::string(92, 'v').c_str()), -1);
    EXPECT_EQ(property_set("persist.test.longer", std::string(300, 'v').c_str()), -1);
    EXPECT_FALSE(fs::exists(mDir));
    EXPECT_EQ(get("persist/test", "fallback"), "fallback|8");

    // A directory that cannot be made: one line on standard error, nothing written.
    fs::path blocker = mRoot / "file";
    { std::ofstream(blocker) << "x"; }
    fs::path below = blocker / "store";
    setenv("BREL_PROPERTY_DIR", below.c_str(), 1);
    ::testing::internal::CaptureStderr();
    EXPECT_EQ(property_set("persist.test.key", "x"), -1);
    std::string err = ::testing::internal::GetCapturedStderr();
    EXPECT_EQ(std::count(err.begin(), err.end(), '\n'), 1) << err;
    EXPECT_NE(err.find(below.string()), std::string::npos) << err;

    // A key that names a directory cannot be replaced by a file.
    setenv("BREL_PROPERTY_DIR", mDir.c_str(), 1);
    fs::create_directories(mDir / "persist.test.dir" / "inside");
    ::testing::internal::CaptureStderr();
    EXPECT_EQ(property_set("persist.test.dir", "x"), -1);
    err = ::testing::internal::GetCapturedStderr();
    EXPECT_EQ(std::count(err.begin(), err.end(), '\n'), 1) << err;
    size_t files = 0;
    for (const auto& entry : fs::directory_iterator(mDir)) {
        (void)entry;
        ++files;
    }
    EXPECT_EQ(files, 1u);  // the directory only: the temporary file is gone
}

}  // namespace
