#pragma once

// What the panel's units share (sim/Panel.cpp, sim/Memory.cpp): the problem lines and the
// reading of a profile's file.

#include <string>

#include <json/value.h>

#include "adaptor/Adaptor.h"

namespace sim __attribute__((visibility("hidden"))) {

// One problem line on standard error, "dumpbrel: simulated panel: <line>", written once per run
// however often the operation behind it is called.
void say(std::string line);

// The profile in the file `path`, its names checked against the service's when `check`, or null
// after the one line that says why it cannot be used. With `memory`, a file that does not exist
// or is empty is an empty profile.
Json::Value readProfile(const char* path, bool memory, bool check = true);

// The memory (sim/Memory.cpp): what the BREL_SIM_STATE file holds, read on the first question
// of a run; null without the variable or when the file cannot be used. `path` is its file.
const Json::Value* recalled(std::string& path);
// A setter's call that pairs with a getter stores its last in-argument as the getter's answer.
void remember(const adaptor::Call& call);
void forget();

}  // namespace sim
