#include "adaptor/Files.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

namespace adaptor {

namespace {

bool writeAll(int fd, const std::string& text) {
    for (size_t done = 0; done < text.size();) {
        ssize_t n = ::write(fd, text.data() + done, text.size() - done);
        if (n < 0 && errno != EINTR) return false;
        if (n > 0) done += static_cast<size_t>(n);
    }
    return true;
}

// The file a path names, through its symbolic links.
std::string throughLinks(std::string path) {
    char target[4096];
    for (int hops = 0; hops < 40; ++hops) {
        ssize_t n = readlink(path.c_str(), target, sizeof target);
        if (n <= 0 || static_cast<size_t>(n) == sizeof target) break;
        std::string next(target, static_cast<size_t>(n));
        size_t slash = path.rfind('/');
        if (next[0] != '/' && slash != std::string::npos) next = path.substr(0, slash + 1) + next;
        path = std::move(next);
    }
    return path;
}

}  // namespace

bool readFile(const char* path, std::string& text) {
    int fd = open(path, O_RDONLY | O_CLOEXEC);
    if (fd < 0) return false;
    char buffer[4096];
    ssize_t n;
    while ((n = ::read(fd, buffer, sizeof buffer)) > 0) text.append(buffer, static_cast<size_t>(n));
    int error = errno;
    close(fd);
    errno = error;
    return n == 0;
}

int lockBeside(const std::string& path) {
    int lock = ::open((path + ".lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0644);
    while (lock >= 0 && flock(lock, LOCK_EX) != 0) {
        if (errno != EINTR) {
            int error = errno;
            close(lock);
            errno = error;
            lock = -1;
        }
    }
    return lock;
}

bool replaceFile(const std::string& link, const std::string& text) {
    std::string path = throughLinks(link);
    std::string fresh = path + ".new";
    struct stat old;
    bool existed = stat(path.c_str(), &old) == 0;
    int fd = open(fresh.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (fd < 0) return false;
    bool written = (!existed || fchmod(fd, old.st_mode & 07777) == 0) && writeAll(fd, text) &&
                   fsync(fd) == 0;
    int error = errno;
    close(fd);
    if (written && rename(fresh.c_str(), path.c_str()) == 0) return true;
    if (written) error = errno;
    unlink(fresh.c_str());
    errno = error;
    return false;
}

bool appendLine(const char* path, const std::string& line) {
    int fd = open(path, O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0644);
    if (fd < 0) return false;
    bool written = writeAll(fd, line + "\n");
    int error = errno;
    close(fd);
    errno = error;
    return written;
}

}  // namespace adaptor
