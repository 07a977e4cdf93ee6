// Fuzz target over the text a user hands the panel: the input is at once the profile in force
// (BREL_SIM_PANEL) and the panel's memory (BREL_SIM_STATE, a copy of it), while commands run that
// reach every kind of answer: records, lists of records and of texts, out-parameters, an array
// the service fills, texts, floats, keys with arguments, answers in order, a setter that stores.
// A recording is such a text too ("recorded": true). What the reader takes, written back the way
// the panel writes its files, must read back the same.

#include <string>
#include <vector>

#include <json/value.h>

#include "Harness.h"
#include "adaptor/Json.h"

namespace {

// A command for each kind of answer, no more: each costs the building of every sub-service.
const std::vector<std::vector<std::string>> kCommands = {
    {"PQCtrl", "--getPresetColorTempMode=0,1", "--getBrightness", "--setBrightness", "70",
     "--getBrightness"},                                       // a record; a setter that stores
    {"AudioCtrl", "-c", "1", "-c", "1", "-c", "2"},              // keys with arguments, in order
    {"FwTouchCtrl", "--getFwTouchList"},                         // a list of records filled
    {"FwUpgrade", "-m", "7"},                                    // records of fixed-width texts
    {"DevicePortCtrl", "--listAllDevicePorts"},                  // a result and a list of texts
    {"TxbCtrl", "-t"},                                           // an array the service fills
    {"GpioCtrl", "-g", "3"},                                     // an out-parameter
    {"AiNoiseCtrl", "-g"},                                       // a float
    {"RemoteCtrl", "-g", "k", "-s", "k,v", "-g", "k"},           // texts, keyed by a text
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    dumpbrel_fuzz::setUp();
    const std::string text(reinterpret_cast<const char*>(data), size);

    Json::Value read, again;
    std::string error;
    if (adaptor::parse(text, read, error)) {
        const std::string written = adaptor::profileText(read);
        if (!adaptor::parse(written, again, error) || !(again == read)) {
            dumpbrel_fuzz::report("dumpbrel fuzz: what was read does not read back the same once "
                                  "written: %s", error.c_str());
            abort();
        }
    }
    dumpbrel_fuzz::useProfileText(text);
    for (const auto& words : kCommands) dumpbrel_fuzz::runTool(words);
    return 0;
}
