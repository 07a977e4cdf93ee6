#include <iostream>
#include <memory>
#include <string>

#include <utils/String8.h>

#include "framework/ListCommand.h"
#include "framework/Rows.h"
#include "service/IAtCfgControl.h"

namespace android {
namespace dumpbrel {

class AtCfgControlCommand : public ListCommand {
public:
    explicit AtCfgControlCommand(DumpBrel& parent);
    std::string getName() const override { return mName; }
    std::string getSimpleDescription() const override { return "AtCfgControl Module"; }
    Status registerAllOptions() override;

private:
    std::string mName;
    sp<IAtCfgControl> mAtCfgControl;
};

AtCfgControlCommand::AtCfgControlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("AtCfgControl"),
      mAtCfgControl(connect(&IBrelManager::getAtCfgControl, "getAtCfgControl() fail\n")) {}

// Key texts go through as typed, with no test of their form.
Status AtCfgControlCommand::registerAllOptions() {
    addHelp();
    // Shares its letter with readAttestationKey, which takes -r: reached by its long name only.
    add("r", "readWidevinevKey", kNone, mAtCfgControl, [](IAtCfgControl& cfg, const Input&) {
        String16 key = cfg.readWidevinevKey();
        std::cout << "readWidevinevKey: ";
        if (key.size() == 0)
            std::cout << "null";
        else
            std::cout << String8(key).c_str();
        std::cout << '\n';
        return OK;
    });
    add("i:", "installWidevineKey", kRequired, mAtCfgControl,
        [](IAtCfgControl& cfg, const Input& in) {
            if (in.missing()) return USAGE;
            bool ret = cfg.installWidevineKey(String16(in.text));
            std::cout << "installWidevineKey ret = " << ret << '\n';
            return OK;
        });
    add("d", "deleteWidevineKey", kNone, mAtCfgControl,
        printResult("deleteWidevineKey ret = ", &IAtCfgControl::deleteWidevineKey));
    add("r", "readAttestationKey", kNone, mAtCfgControl,
        printResult("readAttestationKey: ", &IAtCfgControl::readAttestationKey));
    add("k:", "installAttestationKey", kRequired, mAtCfgControl,
        [](IAtCfgControl& cfg, const Input& in) {
            if (in.missing()) return USAGE;
            bool ret = cfg.installAttestationKey(String16(in.text));
            std::cout << "installAttestationKey ret = " << ret << '\n';
            return OK;
        });
    add("a", "deleteAttestationKey", kNone, mAtCfgControl,
        printResult("deleteAttestationKey ret = ", &IAtCfgControl::deleteAttestationKey));
    return OK;
}

std::unique_ptr<ListCommand> newAtCfgControlCommand(DumpBrel& parent) {
    return std::make_unique<AtCfgControlCommand>(parent);
}

}  // namespace dumpbrel
}  // namespace android
