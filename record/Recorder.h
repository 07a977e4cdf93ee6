#pragma once

// The recorder (libbrel_record.so), preloaded in front of the vendor's client library: with
// BREL_RECORD=<file> its BrelCreator::create() hands the tool the library's manager wrapped, so
// that every accessor and every operation goes through to the library's own and what the panel
// answered is written into the file as a profile of the simulated panel.

#include <string>

namespace android {
class IBrelManager;
}

namespace record __attribute__((visibility("hidden"))) {

// A call passed through: its trace line without the answer, where its last in-argument begins
// (0: none), the result's JSON text ("" when it has none) and the answer as a profile holds it
// ("" when there is nothing to hold: no result and no out-parameter).
void answered(const char* iface, const char* op, const std::string& line, size_t last,
              const std::string& result, const std::string& answer);

// create() or an accessor answered null: `word` ("manager", "getPQCtrl") joins "absent".
void absent(const char* word);

// The library's manager with every accessor and operation passing through the recorder
// (record/Forward.cpp); null stays null.
android::IBrelManager* wrap(android::IBrelManager* real);

}  // namespace record
