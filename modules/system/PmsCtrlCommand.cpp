#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include <utils/String8.h>

#include "framework/ListCommand.h"
#include "framework/Rows.h"
#include "service/IPmsCtrl.h"

namespace android {
namespace dumpbrel {

class PmsCtrlCommand : public ListCommand {
public:
    explicit PmsCtrlCommand(DumpBrel& parent);
    std::string getName() const override { return mName; }
    std::string getSimpleDescription() const override { return "PmsCtrl Module"; }
    Status registerAllOptions() override;

private:
    std::string mName;
    sp<IPmsCtrl> mPmsCtrl;
};

PmsCtrlCommand::PmsCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("PmsCtrl"),
      mPmsCtrl(connect(&IBrelManager::getPmsCtrl, "getPmsCtrl() fail\n")) {}

Status PmsCtrlCommand::registerAllOptions() {
    addHelp();
    // Both wake-up sources print the same label.
    add("g", "getWakeupSrc", kNone, mPmsCtrl,
        printResult("wakeup src: ", &IPmsCtrl::getWakeupSrc));
    add("u", "getWakeupSrcFromUboot", kNone, mPmsCtrl,
        printResult("wakeup src: ", &IPmsCtrl::getWakeupSrcFromUboot));
    // first,second
    add("r:", "readAssetData", kRequired, mPmsCtrl, [](IPmsCtrl& pms, const Input& in) {
        std::vector<std::string> fields = in.fields(2);
        int first = 0;
        int second = 0;
        if (!in.toInt(fields[0], first) || !in.toInt(fields[1], second)) return USAGE;
        String16 data = pms.readAssetData(first, second);
        std::cout << "readAssetData: " << String8(data).c_str() << "\n";
        return OK;
    });
    // A comma list of input sources; the whole list is read before anything is sent.
    add("w:", "setPmsWakeupSources", kRequired, mPmsCtrl, [](IPmsCtrl& pms, const Input& in) {
        std::vector<_BrelEnumInputSourceId_> sources;
        for (const std::string& field : in.commaList()) {
            int source = 0;
            if (!in.toInt(field, source)) return USAGE;
            sources.push_back(static_cast<_BrelEnumInputSourceId_>(source));
        }
        bool result = pms.setPmsWakeupSources(sources);
        std::cout << "setPmsWakeupSources result: " << trueFalse(result) << "\n";
        return OK;
    });
    return OK;
}

std::unique_ptr<ListCommand> newPmsCtrlCommand(DumpBrel& parent) {
    return std::make_unique<PmsCtrlCommand>(parent);
}

}  // namespace dumpbrel
}  // namespace android
