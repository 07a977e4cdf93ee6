#include "adaptor/Files.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace adaptor {

const char kMissing[] = "no such file";

namespace {

// More than any profile of a panel: a file that reads on past it is no profile.
constexpr off_t kLargest = 16 << 20;

std::string failed(const char* doing) {
    return std::string(doing) + ": " + strerror(errno);
}

bool writeAll(int fd, const std::string& text) {
    for (size_t done = 0; done < text.size();) {
        ssize_t n = ::write(fd, text.data() + done, text.size() - done);
        if (n < 0 && errno != EINTR) return false;
        if (n > 0) done += static_cast<size_t>(n);
    }
    return true;
}

bool sameInode(const struct stat& a, const struct stat& b) {
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

// Why a file of this kind cannot be used, "" for a regular file that is none of the tool's own
// standard streams.
std::string kind(const struct stat& st) {
    if (S_ISDIR(st.st_mode)) return "a directory, not a regular file";
    if (S_ISFIFO(st.st_mode)) return "a FIFO, not a regular file";
    if (S_ISCHR(st.st_mode) || S_ISBLK(st.st_mode)) return "a device, not a regular file";
    if (S_ISSOCK(st.st_mode)) return "a socket, not a regular file";
    if (!S_ISREG(st.st_mode)) return "not a regular file";
    struct stat stream;
    if (fstat(1, &stream) == 0 && sameInode(st, stream)) return "the tool's own standard output";
    if (fstat(2, &stream) == 0 && sameInode(st, stream)) return "the tool's own standard error";
    return "";
}

}  // namespace

std::string target(const std::string& name) {
    std::string path = name;
    char link[4096];
    for (int hops = 0; hops < 40; ++hops) {
        ssize_t n = readlink(path.c_str(), link, sizeof link);
        if (n <= 0 || static_cast<size_t>(n) == sizeof link) break;
        std::string next(link, static_cast<size_t>(n));
        size_t slash = path.rfind('/');
        if (next[0] != '/' && slash != std::string::npos) next = path.substr(0, slash + 1) + next;
        path = std::move(next);
    }
    return path;
}

bool sameFile(const std::string& a, const std::string& b) {
    struct stat first, second;
    if (stat(a.c_str(), &first) == 0 && stat(b.c_str(), &second) == 0) return sameInode(first, second);
    return target(a) == target(b);
}

std::string unusable(const std::string& name, bool written) {
    struct stat st;
    if (stat(name.c_str(), &st) != 0) return errno == ENOENT ? "" : failed("cannot use it");
    std::string why = kind(st);
    if (why.empty() && written) {
        if ((st.st_mode & 0222) == 0) return "nobody may write it (no write bit)";
        if (access(name.c_str(), W_OK) != 0) return failed("cannot write it");
    }
    return why;
}

std::string readFile(const std::string& name, std::string& text) {
    text.clear();
    // Not blocking: opening a FIFO for reading waits for a writer otherwise.
    int fd = open(name.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (fd < 0) return errno == ENOENT ? kMissing : failed("cannot read it");
    struct stat st;
    std::string why = fstat(fd, &st) != 0 ? failed("cannot read it") : kind(st);
    char buffer[4096];
    ssize_t n = 0;
    while (why.empty() && (n = ::read(fd, buffer, sizeof buffer)) != 0) {
        if (n < 0 && errno != EINTR) why = failed("cannot read it");
        if (n > 0) text.append(buffer, static_cast<size_t>(n));
        if (static_cast<off_t>(text.size()) > kLargest)
            why = "larger than " + std::to_string(kLargest >> 20) + " MiB";
    }
    close(fd);
    if (!why.empty()) text.clear();
    return why;
}

std::string lockBeside(const std::string& name, int& lock) {
    const std::string path = target(name) + ".lock";
    // Read-only is enough for flock(), and lets every user who may read the lock take it.
    lock = open(path.c_str(), O_RDONLY | O_CREAT | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC, 0644);
    if (lock < 0) return failed(("cannot lock " + path).c_str());
    struct stat st;
    std::string why = fstat(lock, &st) != 0 ? failed("cannot lock") : kind(st);
    if (!why.empty()) why = path + ": " + why;
    while (why.empty() && flock(lock, LOCK_EX) != 0)
        if (errno != EINTR) why = failed(("cannot lock " + path).c_str());
    if (!why.empty()) {
        close(lock);
        lock = -1;
    }
    return why;
}

std::string replaceFile(const std::string& name, const std::string& text) {
    const std::string path = target(name), fresh = path + ".new";
    struct stat old;
    bool existed = stat(path.c_str(), &old) == 0;
    unlink(fresh.c_str());  // what a run killed while it wrote left behind
    int fd = open(fresh.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0644);
    if (fd < 0) return failed(("cannot write " + fresh).c_str());
    std::string why;
    struct stat made;
    if (existed && fstat(fd, &made) == 0 && (made.st_uid != old.st_uid || made.st_gid != old.st_gid) &&
        fchown(fd, old.st_uid, old.st_gid) != 0)
        why = failed("cannot give the new file its owner");
    else if (existed && fchmod(fd, old.st_mode & 07777) != 0)
        why = failed("cannot give the new file its mode");
    else if (!writeAll(fd, text) || fsync(fd) != 0)
        why = failed(("cannot write " + fresh).c_str());
    if (close(fd) != 0 && why.empty()) why = failed(("cannot write " + fresh).c_str());
    if (why.empty() && rename(fresh.c_str(), path.c_str()) != 0)
        why = failed(("cannot rename " + fresh).c_str());
    if (!why.empty()) unlink(fresh.c_str());
    return why;
}

std::string appendLine(const char* path, const std::string& line) {
    int fd = open(path, O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0644);
    if (fd < 0) return failed("cannot open it");
    std::string why = writeAll(fd, line + "\n") ? "" : failed("cannot write it");
    if (close(fd) != 0 && why.empty()) why = failed("cannot write it");
    return why;
}

}  // namespace adaptor
