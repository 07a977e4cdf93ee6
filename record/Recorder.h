#pragma once

// The recorder's library (libbrel_record.so): what its units share.

#include <string>

#include "adaptor/Adaptor.h"

namespace record __attribute__((visibility("hidden"))) {

// The variable's value, or null when it is unset or empty.
const char* envOrNull(const char* name);

// One line on standard error, "dumpbrel: recorder: <what>", once per run.
void say(const std::string& what);

// BREL_RECORD (Recorder.cpp): the call's answer into the file, before the call returns.
void recordAnswer(const adaptor::Call& call);
// create() or an accessor answered null: `word` ("manager", "getPQCtrl") joins "absent".
void recordAbsent(const char* word);

}  // namespace record
