// The library that is preloaded, libbrel_record.so: in front of the vendor's BrelCreator::create().
// Without BREL_RECORD or BREL_RECORD_TRACE it hands on the library's manager untouched, and the
// program pays only for loading this small object; with either, it loads the recorder itself
// (libbrel_record_core.so, beside this library), which wraps the manager.

#include <dlfcn.h>

#include <cstdio>
#include <cstdlib>
#include <string>

#include "service/BrelCreator.h"

namespace {

using Create = android::IBrelManager* (*)();
using Wrap = android::IBrelManager* (*)(android::IBrelManager*);

void say(const char* what) {
    fprintf(stderr, "dumpbrel: recorder: %s\n", what);
}

bool named(const char* variable) {
    const char* value = getenv(variable);
    return value != nullptr && *value != '\0';
}

// The recorder's entry, loaded once; null, after its line, when it cannot be loaded.
Wrap recorder() {
    static const Wrap wrap = []() -> Wrap {
        Dl_info self{};
        std::string path = dladdr(reinterpret_cast<void*>(&say), &self) && self.dli_fname
                                   ? self.dli_fname
                                   : "";
        path = path.substr(0, path.rfind('/') + 1) + "libbrel_record_core.so";
        void* core = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
        Wrap entry = core ? reinterpret_cast<Wrap>(dlsym(core, "brel_record_wrap")) : nullptr;
        if (entry == nullptr) say(dlerror());
        return entry;
    }();
    return wrap;
}

}  // namespace

android::IBrelManager* android::BrelCreator::create() {
    static const Create next =
            reinterpret_cast<Create>(dlsym(RTLD_NEXT, "_ZN7android11BrelCreator6createEv"));
    if (next == nullptr) {
        say("no vendor library behind the recorder");
        return nullptr;
    }
    IBrelManager* manager = next();
    if (!named("BREL_RECORD") && !named("BREL_RECORD_TRACE")) return manager;
    Wrap wrap = recorder();
    return wrap ? wrap(manager) : manager;
}
