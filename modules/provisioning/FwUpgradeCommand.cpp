#include <cstdlib>
#include <cstring>
#include <iostream>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <utils/String8.h>

#include "framework/ListCommand.h"
#include "service/IFwUpgrade.h"

namespace android {
namespace dumpbrel {

class FwUpgradeCommand : public ListCommand {
public:
    explicit FwUpgradeCommand(DumpBrel& parent);
    std::string getName() const override { return mName; }
    std::string getSimpleDescription() const override { return "FwUpgrade Module"; }
    Status registerAllOptions() override;

private:
    std::string mName;
    sp<IFwUpgrade> mFwUpgrade;
};

namespace {

// A text field of a firmware record: up to its zero, and never past its width.
template <size_t N>
std::string_view fixedText(const char (&field)[N]) {
    return std::string_view(field, strnlen(field, N));
}

void printMcu(const EntityFwInfoMcu& mcu) {
    std::cout << "------------------------------------\n"
              << "mcuType: " << mcu.mcuType << '\n'
              << "fwMcuType: " << mcu.fwMcuType << '\n'
              << "mcuCurrentVersion: " << fixedText(mcu.mcuCurrentVersion) << '\n'
              << "isSupportUsbUpgrade: " << mcu.isSupportUsbUpgrade << '\n'
              << "usbUpgradeMcuBinName: " << fixedText(mcu.usbUpgradeMcuBinName) << '\n'
              << "isSupportOtaUpgrade: " << mcu.isSupportOtaUpgrade << '\n'
              << "otaUpgradeMcuBinPath: " << fixedText(mcu.otaUpgradeMcuBinPath) << '\n'
              << "otaMcuBasicBinVersion: " << fixedText(mcu.otaMcuBasicBinVersion) << '\n'
              << "otaMcuKey: " << fixedText(mcu.otaMcuKey) << '\n'
              << "needRebootWhenUpgraded: " << mcu.needRebootWhenUpgraded << '\n';
}

}  // namespace

FwUpgradeCommand::FwUpgradeCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("FwUpgrade"),
      mFwUpgrade(connect(&IBrelManager::getFwUpgrade, "getFwUpgrade() fail\n")) {}

Status FwUpgradeCommand::registerAllOptions() {
    addHelp();
    // type,file: the file is the service's to open; the call is made whatever the fields hold.
    add("u:", "setFirmwareUpgrade", kRequired, mFwUpgrade, [](IFwUpgrade& fw, const Input& in) {
        if (in.missing()) return USAGE;
        std::vector<std::string> field = in.fields(2);
        bool status = fw.setFirmwareUpgrade(atoi(field[0].c_str()), String16(field[1].c_str()));
        std::cout << "type: " << field[0] << ", file: " << field[1] << ", status: " << status
                  << '\n';
        return OK;
    });
    // The next four lines end with the text, with no line end.
    add("m:", "getMcuBinNameToUp", kRequired, mFwUpgrade, [](IFwUpgrade& fw, const Input& in) {
        if (in.missing()) return USAGE;
        String16 result = fw.getMcuBinNameToUp(atoi(in.text));
        std::cout << "type: " << in.text << ", result: " << String8(result).c_str();
        return OK;
    });
    add("v:", "getFwVersion", kRequired, mFwUpgrade, [](IFwUpgrade& fw, const Input& in) {
        if (in.missing()) return USAGE;
        String16 result = fw.getFwVersion(atoi(in.text));
        std::cout << "type: " << in.text << ", result: " << String8(result).c_str();
        return OK;
    });
    add("k:", "getFwOtakey", kRequired, mFwUpgrade, [](IFwUpgrade& fw, const Input& in) {
        if (in.missing()) return USAGE;
        String16 result = fw.getFwOtakey(atoi(in.text));
        std::cout << "type: " << in.text << ", result: " << String8(result).c_str();
        return OK;
    });
    add("l", "getFwInfoTypecList", kNone, mFwUpgrade, [](IFwUpgrade& fw, const Input&) {
        String16 result = fw.getFwInfoTypecList();
        std::cout << "result: " << String8(result).c_str();
        return OK;
    });
    add("t:", "getFwTargetVersion", kRequired, mFwUpgrade, [](IFwUpgrade& fw, const Input& in) {
        if (in.missing()) return USAGE;
        String16 result = fw.getFwTargetVersion(atoi(in.text));
        std::cout << "type:" << in.text << ", result: " << String8(result).c_str() << '\n';
        return OK;
    });
    add("b:", "getFwTargetBinPath", kRequired, mFwUpgrade, [](IFwUpgrade& fw, const Input& in) {
        if (in.missing()) return USAGE;
        String16 result = fw.getFwTargetBinPath(atoi(in.text));
        std::cout << "type:" << in.text << ", result: " << String8(result).c_str() << '\n';
        return OK;
    });
    // Shares its letter with getMcuBinNameToUp: -m lands here and takes (and drops) an argument.
    add("m", "getFwMcuList", kNone, mFwUpgrade, [](IFwUpgrade& fw, const Input&) {
        std::vector<EntityFwInfoMcu> list;
        if (!fw.getFwMcuList(list)) {
            std::cout << "getFwMcuList fail\n";
            return OK;
        }
        std::cout << "mcu_list size: " << list.size() << '\n';
        for (const EntityFwInfoMcu& mcu : list) printMcu(mcu);
        std::cout << "list end --------\n";
        return OK;
    });
    return OK;
}

std::unique_ptr<ListCommand> newFwUpgradeCommand(DumpBrel& parent) {
    return std::make_unique<FwUpgradeCommand>(parent);
}

}  // namespace dumpbrel
}  // namespace android
