#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "framework/ListCommand.h"
#include "service/IFwTouchCtrl.h"

namespace android {
namespace dumpbrel {

class FwTouchCtrlCommand : public ListCommand {
public:
    explicit FwTouchCtrlCommand(DumpBrel& parent);
    std::string getName() const override { return mName; }
    std::string getSimpleDescription() const override { return "FwTouchCtrl Module"; }
    Status registerAllOptions() override;

    void printFwTouchInfo(const std::vector<EntityFwTouch>& list);
    void printFwTouchDriverInfo(const std::vector<EntityFwTouchDriver>& list);

private:
    std::string mName;
    sp<IFwTouchCtrl> mFwTouchCtrl;
};

FwTouchCtrlCommand::FwTouchCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("FwTouchCtrl"),
      mFwTouchCtrl(connect(&IBrelManager::getFwTouchCtrl, "getFwTouchCtrl() fail\n")) {}

void FwTouchCtrlCommand::printFwTouchInfo(const std::vector<EntityFwTouch>& list) {
    for (const EntityFwTouch& fw : list) {
        std::cout << "touchModel: " << fw.touchModel << '\n';
        std::cout << "touchType: " << fw.touchType << '\n';
        std::cout << "fwTouchType: " << fw.fwTouchType << '\n';
        std::cout << "touchCurrentVersion: " << fw.touchCurrentVersion << '\n';
        std::cout << "isSupportUsbUpgrade: " << fw.isSupportUsbUpgrade << '\n';
        std::cout << "usbUpgradeTouchBinName: " << fw.usbUpgradeTouchBinName << '\n';
        std::cout << "isSupportOtaUpgrade: " << fw.isSupportOtaUpgrade << '\n';
        std::cout << "otaUpgradeTouchBinPath: " << fw.otaUpgradeTouchBinPath << '\n';
        std::cout << "otaTouchBasicBinVersion: " << fw.otaTouchBasicBinVersion << '\n';
        std::cout << "otaTouchKey: " << fw.otaTouchKey << '\n';
        std::cout << "needRebootWhenUpgraded: " << fw.needRebootWhenUpgraded << '\n';
    }
}

void FwTouchCtrlCommand::printFwTouchDriverInfo(const std::vector<EntityFwTouchDriver>& list) {
    for (const EntityFwTouchDriver& driver : list) {
        std::cout << "touchModel: " << driver.touchModel << '\n';
        std::cout << "touchType: " << driver.touchType << '\n';
        std::cout << "swTouchDriverType: " << driver.swTouchDriverType << '\n';
        std::cout << "touchDriverCurrentVersion: " << driver.touchDriverCurrentVersion << '\n';
        std::cout << "isSupportUsbUpgrade: " << driver.isSupportUsbUpgrade << '\n';
        std::cout << "usbUpgradeTouchDriverBinName: " << driver.usbUpgradeTouchDriverBinName
                  << '\n';
    }
}

Status FwTouchCtrlCommand::registerAllOptions() {
    addHelp();
    add("l", "getFwTouchList", kNone, mFwTouchCtrl, [this](IFwTouchCtrl& fwTouch, const Input&) {
        std::vector<EntityFwTouch> list;
        fwTouch.getFwTouchList(list);
        printFwTouchInfo(list);
        return OK;
    });
    add("d", "getFwTouchDriverInfoList", kNone, mFwTouchCtrl,
        [this](IFwTouchCtrl& fwTouch, const Input&) {
            std::vector<EntityFwTouchDriver> list;
            fwTouch.getFwTouchDriverInfoList(list);
            printFwTouchDriverInfo(list);
            return OK;
        });
    return OK;
}

std::unique_ptr<ListCommand> newFwTouchCtrlCommand(DumpBrel& parent) {
    return std::make_unique<FwTouchCtrlCommand>(parent);
}

}  // namespace dumpbrel
}  // namespace android
