// The host's property store: one file per key in a directory, the value and a newline.
// On the device libcutils answers these calls instead.

#include <cutils/properties.h>

#include <errno.h>
#include <fcntl.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>
#include <unistd.h>

#include <string>

#ifndef BREL_PROPERTY_DEFAULT_DIR
#define BREL_PROPERTY_DEFAULT_DIR "properties"
#endif

namespace {

// Taken anew on every call, so that a test may point each case at a directory of its own.
std::string directory() {
    const char* dir = getenv("BREL_PROPERTY_DIR");
    return dir != nullptr && *dir != '\0' ? dir : BREL_PROPERTY_DEFAULT_DIR;
}

bool validKey(const char* key) {
    return key != nullptr && *key != '\0' && strchr(key, '/') == nullptr;
}

// The value of `key` as stored, its final newline dropped; false when there is none.
bool readValue(const char* key, std::string& value) {
    if (!validKey(key)) return false;
    std::string path = directory() + "/" + key;
    int fd = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) return false;
    value.clear();
    char buffer[256];
    for (;;) {
        ssize_t n = read(fd, buffer, sizeof buffer);
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) break;
        value.append(buffer, static_cast<size_t>(n));
        if (value.size() > PROPERTY_VALUE_MAX) break;  // the rest would be cut anyway
    }
    close(fd);
    if (!value.empty() && value.back() == '\n') value.pop_back();
    return true;
}

// Creates `dir` and its missing parents.
bool makeDirectory(const std::string& dir) {
    for (size_t at = 1; at <= dir.size(); ++at) {
        if (at != dir.size() && dir[at] != '/') continue;
        std::string part = dir.substr(0, at);
        if (mkdir(part.c_str(), 0777) != 0 && errno != EEXIST) return false;
    }
    return true;
}

bool writeAll(int fd, const std::string& text) {
    size_t done = 0;
    while (done < text.size()) {
        ssize_t n = write(fd, text.data() + done, text.size() - done);
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) return false;
        done += static_cast<size_t>(n);
    }
    return true;
}

int cannotWrite(const std::string& path, int error) {
    fprintf(stderr, "property_set: cannot write %s: %s\n", path.c_str(), strerror(error));
    return -1;
}

}  // namespace

extern "C" int property_get(const char* key, char* value, const char* default_value) {
    if (value == nullptr) return 0;
    std::string stored;
    const char* source = default_value != nullptr ? default_value : "";
    if (readValue(key, stored) && !stored.empty()) source = stored.c_str();
    size_t length = strnlen(source, PROPERTY_VALUE_MAX - 1);
    memcpy(value, source, length);
    value[length] = '\0';
    return static_cast<int>(length);
}

extern "C" int property_set(const char* key, const char* value) {
    if (!validKey(key) || value == nullptr) return -1;
    if (strlen(value) >= PROPERTY_VALUE_MAX) return -1;

    std::string dir = directory();
    std::string path = dir + "/" + key;
    if (!makeDirectory(dir)) return cannotWrite(dir, errno);

    // A temporary file renamed over the old one: a reader sees the old value or the new one.
    std::string temporary = dir + "/." + key + ".XXXXXX";
    int fd = mkostemp(&temporary[0], O_CLOEXEC);
    if (fd < 0) return cannotWrite(temporary, errno);
    fchmod(fd, 0644);
    bool written = writeAll(fd, std::string(value) + "\n");
    int error = errno;
    if (close(fd) != 0 && written) {
        written = false;
        error = errno;
    }
    if (!written) {
        unlink(temporary.c_str());
        return cannotWrite(temporary, error);
    }
    if (rename(temporary.c_str(), path.c_str()) != 0) {
        error = errno;
        unlink(temporary.c_str());
        return cannotWrite(path, error);
    }
    return 0;
}
