#pragma once

// The tool runs only as root or the shell user (it checks getuid()). A test that starts it as
// somebody else, on a workstation, gives its child that identity in a user namespace of its own,
// as `unshare --user --map-root-user` does: no privilege needed, nothing outside changes.
// Used by the end-to-end fixtures, the argument sweep and the fuzzers' replay alike.

#include <fcntl.h>
#include <sched.h>
#include <unistd.h>

#include <cstring>
#include <string>
#include <vector>

extern char** environ;

namespace dumpbrel_test {

// Makes this process run as `uid`: root switches to it; anybody else (or root in a user
// namespace without `uid`) enters a new user namespace in which their own account is `uid`.
// False when neither can be done.
inline bool runAs(uid_t uid) {
    const uid_t outerUid = getuid();
    const gid_t outerGid = getgid();
    if (outerUid == uid) return true;
    if (outerUid == 0 && setgid(uid) == 0 && setuid(uid) == 0) return true;
    auto put = [](const char* path, const std::string& text) {
        int fd = open(path, O_WRONLY | O_CLOEXEC);
        if (fd < 0) return false;
        bool whole = write(fd, text.data(), text.size()) == static_cast<ssize_t>(text.size());
        close(fd);
        return whole;
    };
    return unshare(CLONE_NEWUSER) == 0 && put("/proc/self/setgroups", "deny") &&
           put("/proc/self/uid_map", std::to_string(uid) + " " + std::to_string(outerUid) + " 1") &&
           put("/proc/self/gid_map", std::to_string(uid) + " " + std::to_string(outerGid) + " 1");
}

// None of the user's BREL_* variables left; `properties`, if any, the property store.
inline void clearBrelEnvironment(const std::string& properties = "") {
    std::vector<std::string> names;
    for (char** each = environ; *each; ++each)
        if (strncmp(*each, "BREL_", 5) == 0) names.emplace_back(*each, strcspn(*each, "="));
    for (const std::string& name : names) unsetenv(name.c_str());
    if (!properties.empty()) setenv("BREL_PROPERTY_DIR", properties.c_str(), 1);
}

// runAs(0) unless this process may already run the tool.
inline bool runAsToolUser() {
    return getuid() == 0 || getuid() == 2000 || runAs(0);
}

}  // namespace dumpbrel_test
