#include <cstdlib>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include <utils/String8.h>

#include "framework/ListCommand.h"
#include "service/IBurnMacCtrl.h"

namespace android {
namespace dumpbrel {

class BurnMacCtrlCommand : public ListCommand {
public:
    explicit BurnMacCtrlCommand(DumpBrel& parent);
    std::string getName() const override { return mName; }
    std::string getSimpleDescription() const override { return "BurnMacCtrl Module"; }
    Status registerAllOptions() override;

private:
    std::string mName;
    sp<IBurnMacCtrl> mBurnMacCtrl;
};

BurnMacCtrlCommand::BurnMacCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("BurnMacCtrl"),
      mBurnMacCtrl(connect(&IBrelManager::getBurnMacCtrl, "getBurnMacCtrl() fail\n")) {}

// The address goes through as typed: its form is the service's business.
Status BurnMacCtrlCommand::registerAllOptions() {
    addHelp();
    // What the list holds is printed whatever the call answered.
    add("l", "getSupportBurnMacList", kNone, mBurnMacCtrl, [](IBurnMacCtrl& burn, const Input&) {
        std::vector<EntitySwMac> list;
        burn.getSupportBurnMacList(list);
        for (const EntitySwMac& mac : list) {
            std::cout << "KeyType: " << mac.KeyType << '\n'
                      << "CurrentVersion: " << mac.CurrentVersion << '\n'
                      << "IsSupportUsbBurn: " << mac.IsSupportUsbBurn << '\n'
                      << "UsbBurnKeyBinName: " << mac.UsbBurnKeyBinName << '\n'
                      << "NeedRebootWhenBurned: " << mac.NeedRebootWhenBurned << '\n';
        }
        return OK;
    });
    // type,value
    add("k:", "setBurnMac", kRequired, mBurnMacCtrl, [](IBurnMacCtrl& burn, const Input& in) {
        if (in.missing()) return USAGE;
        std::vector<std::string> field = in.fields(2);
        bool ret = burn.setBurnMac(atoi(field[0].c_str()), String16(field[1].c_str()));
        std::cout << "setBurnMac ret= " << ret << '\n';
        return OK;
    });
    // type,value,extra; prints the same words as setBurnMac.
    add("b:", "setBurnMac2", kRequired, mBurnMacCtrl, [](IBurnMacCtrl& burn, const Input& in) {
        if (in.missing()) return USAGE;
        std::vector<std::string> field = in.fields(3);
        bool ret = burn.setBurnMac2(atoi(field[0].c_str()), field[1].c_str(),
                                    atoi(field[2].c_str()));
        std::cout << "setBurnMac ret= " << ret << '\n';
        return OK;
    });
    add("g:", "getBurnMac", kRequired, mBurnMacCtrl, [](IBurnMacCtrl& burn, const Input& in) {
        if (in.missing()) return USAGE;
        String16 mac = burn.getBurnMac(atoi(in.text));
        std::cout << "getBurnMac ret= " << String8(mac).c_str() << '\n';
        return OK;
    });
    return OK;
}

std::unique_ptr<ListCommand> newBurnMacCtrlCommand(DumpBrel& parent) {
    return std::make_unique<BurnMacCtrlCommand>(parent);
}

}  // namespace dumpbrel
}  // namespace android
