#pragma once

// What the panel's units share inside the library (sim/Panel.cpp, sim/Memory.cpp): the JSON,
// the problem lines and the reading of a profile's file.

#include <string>

#include "Panel.h"

// The JSON library's instances stay inside, like the rest of the mechanism (Panel.h). The C
// library's headers it uses come first: a C function first declared inside the hidden region is
// taken to be this library's own (assert's __assert_fail, in a build without NDEBUG) and the
// link fails. The C++ library's headers mark their own declarations visible.
#include <cassert>
#include <cctype>
#include <clocale>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#pragma GCC visibility push(hidden)
#include <nlohmann/json.hpp>
#pragma GCC visibility pop

namespace sim __attribute__((visibility("hidden"))) {

using Json = nlohmann::json;

// One problem line on standard error, "dumpbrel: simulated panel: <line>", written once per run
// however often the operation behind it is called.
void say(std::string line);

// The profile in the file `path`, its names checked against the service's when `check`, or null
// after the one line that says why it cannot be used. With `memory`, a file that does not exist
// or is empty is an empty profile.
Json readProfile(const char* path, bool memory, bool check = true);

// From now on, problem lines about values name `source`.
void blame(const std::string& source);

// The memory (sim/Memory.cpp): what the BREL_SIM_STATE file holds, read on the first question
// of a run; null without the variable or when the file cannot be used. forget() drops it.
const Json* recalled();
void forget();

}  // namespace sim
