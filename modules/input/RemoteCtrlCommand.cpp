#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include <utils/String16.h>
#include <utils/String8.h>

#include "framework/ListCommand.h"
#include "framework/Rows.h"
#include "service/IRemoteCtrl.h"

namespace android {
namespace dumpbrel {

class RemoteCtrlCommand : public ListCommand {
public:
    explicit RemoteCtrlCommand(DumpBrel& parent);
    std::string getName() const override { return mName; }
    std::string getSimpleDescription() const override { return "RemoteCtrl Module"; }
    Status registerAllOptions() override;

private:
    std::string mName;
    sp<IRemoteCtrl> mRemoteCtrl;
};

RemoteCtrlCommand::RemoteCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("RemoteCtrl"),
      mRemoteCtrl(connect(&IBrelManager::getRemoteCtrl, "getRemoteCtrl() fail\n")) {}

Status RemoteCtrlCommand::registerAllOptions() {
    addHelp();
    add("d", "disableRemoteCtrl", kNone, mRemoteCtrl,
        printResult("disableRemoteCtrl: ", &IRemoteCtrl::disableRemoteCtrl));
    add("e", "enableRemoteCtrl", kNone, mRemoteCtrl,
        printResult("enableRemoteCtrl: ", &IRemoteCtrl::enableRemoteCtrl));
    add("g:", "getParameter", kRequired, mRemoteCtrl, [](IRemoteCtrl& remote, const Input& in) {
        String16 value = remote.getParameter(String16(in.text));
        std::cout << "getParameter: " << in.text << "value: " << String8(value).c_str() << '\n';
        return OK;
    });
    // Key and value go on as typed, empty or not.
    add("s:", "setParameter", kRequired, mRemoteCtrl, [](IRemoteCtrl& remote, const Input& in) {
        if (in.missing()) return USAGE;
        std::vector<std::string> field = in.fields(2);
        const std::string& key = field[0];
        const std::string& value = field[1];
        bool ret = remote.setParameter(String16(key.c_str()), String16(value.c_str()));
        std::cout << "setParameter: (" << key << ": " << value << ", retval= " << ret << '\n';
        return OK;
    });
    return OK;
}

std::unique_ptr<ListCommand> newRemoteCtrlCommand(DumpBrel& parent) {
    return std::make_unique<RemoteCtrlCommand>(parent);
}

}  // namespace dumpbrel
}  // namespace android
