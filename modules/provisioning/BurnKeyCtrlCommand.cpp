#include <cstdlib>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include <utils/String8.h>

#include "framework/ListCommand.h"
#include "framework/Rows.h"
#include "service/IBurnKeyCtrl.h"

namespace android {
namespace dumpbrel {

class BurnKeyCtrlCommand : public ListCommand {
public:
    explicit BurnKeyCtrlCommand(DumpBrel& parent);
    std::string getName() const override { return mName; }
    std::string getSimpleDescription() const override { return "BurnKeyCtrl Module"; }
    Status registerAllOptions() override;

private:
    std::string mName;
    sp<IBurnKeyCtrl> mBurnKeyCtrl;
};

BurnKeyCtrlCommand::BurnKeyCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("BurnKeyCtrl"),
      mBurnKeyCtrl(connect(&IBrelManager::getBurnKeyCtrl, "getBurnKeyCtrl() fail\n")) {}

// Every row below with an argument has a colon behind its letter and no shared letter, so getopt
// always hands it a text.
Status BurnKeyCtrlCommand::registerAllOptions() {
    addHelp();
    // What the list holds is printed whatever the call answered.
    add("l", "getSupportBurnKeyList", kNone, mBurnKeyCtrl, [](IBurnKeyCtrl& burn, const Input&) {
        std::vector<EntitySwKey> list;
        burn.getSupportBurnKeyList(list);
        for (const EntitySwKey& key : list) {
            std::cout << "KeyType: " << key.KeyType << '\n'
                      << "CurrentValue: " << key.CurrentValue << '\n'
                      << "CurrentVersion: " << key.CurrentVersion << '\n'
                      << "IsSupportUsbBurn: " << key.IsSupportUsbBurn << '\n'
                      << "UsbBurnKeyBinName: " << key.UsbBurnKeyBinName << '\n'
                      << "NeedRebootWhenBurned: " << key.NeedRebootWhenBurned << '\n';
        }
        return OK;
    });
    // mode,keypath: the path is the service's to open; the call is made whatever it holds.
    add("s:", "setBurnKey", kRequired, mBurnKeyCtrl, [](IBurnKeyCtrl& burn, const Input& in) {
        std::vector<std::string> field = in.fields(2);
        bool ret = burn.setBurnKey(atoi(field[0].c_str()), String16(field[1].c_str()));
        std::cout << "setBurnKey mode = " << field[0] << " keypath: " << field[1]
                  << ", ret = " << ret << '\n';
        return OK;
    });
    add("c:", "setCleanBurnKey", kRequired, mBurnKeyCtrl,
        printAtoiAndResult("setCleanBurnKey mode = ", &IBurnKeyCtrl::setCleanBurnKey, ", ret = "));
    add("g:", "getBurnKey", kRequired, mBurnKeyCtrl, [](IBurnKeyCtrl& burn, const Input& in) {
        int mode = atoi(in.text);
        String16 key = burn.getBurnKey(mode);
        std::cout << "getBurnKey mode = " << mode << ", ret = " << String8(key).c_str() << '\n';
        return OK;
    });
    add("v:", "getBurnKeyVersion", kRequired, mBurnKeyCtrl,
        [](IBurnKeyCtrl& burn, const Input& in) {
            int mode = atoi(in.text);
            String16 version = burn.getBurnKeyVersion(mode);
            std::cout << "getBurnKeyVersion mode = " << mode
                      << ", ret = " << String8(version).c_str() << '\n';
            return OK;
        });
    return OK;
}

std::unique_ptr<ListCommand> newBurnKeyCtrlCommand(DumpBrel& parent) {
    return std::make_unique<BurnKeyCtrlCommand>(parent);
}

}  // namespace dumpbrel
}  // namespace android
