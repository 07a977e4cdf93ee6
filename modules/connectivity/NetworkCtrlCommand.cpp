#include <cstdlib>
#include <iostream>
#include <memory>
#include <string>

#include <utils/String16.h>
#include <utils/String8.h>

#include "framework/ListCommand.h"
#include "framework/Rows.h"
#include "service/INetworkCtrl.h"

namespace android {
namespace dumpbrel {

class NetworkCtrlCommand : public ListCommand {
public:
    explicit NetworkCtrlCommand(DumpBrel& parent);
    std::string getName() const override { return mName; }
    std::string getSimpleDescription() const override { return "NetworkCtrl Module"; }
    Status registerAllOptions() override;

private:
    std::string mName;
    sp<INetworkCtrl> mNetworkCtrl;
};

namespace {

// A switch set by a std::stoi number (not 0: on): `label`, the argument as typed, ", ret = " and
// the result.
auto printTextAndFlagResult(const char* label, bool (INetworkCtrl::*op)(bool)) {
    return [label, op](INetworkCtrl& net, const Input& in) -> Status {
        bool on = false;
        if (!in.toFlag(on)) return USAGE;
        bool ret = (net.*op)(on);
        std::cout << label << in.text << ", ret = " << ret << '\n';
        return OK;
    };
}

}  // namespace

NetworkCtrlCommand::NetworkCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("NetworkCtrl"),
      mNetworkCtrl(connect(&IBrelManager::getNetworkCtrl, "getNetworkCtrl() fail\n")) {}

// Several letters stand twice in this table (d, e): the last row of a letter runs, and the first
// spec of the letter decides whether it takes an argument. GetWOLEnable, GetWOWEnable and
// getWifiDongleStatus take an argument by their letter that they do not read.
Status NetworkCtrlCommand::registerAllOptions() {
    addHelp();
    add("r:", "getAntennaRssi", kRequired, mNetworkCtrl, [](INetworkCtrl& net, const Input& in) {
        String8 rssi(net.getAntennaRssi(atoi(in.text)));
        std::cout << "antenna: " << in.text << ", rssi: " << rssi.c_str() << '\n';
        return OK;
    });
    add("i:", "setMcuDhcpIp", kRequired, mNetworkCtrl, [](INetworkCtrl& net, const Input& in) {
        std::cout << "setMcuDhcpIp ret = " << net.setMcuDhcpIp(String16(in.text)) << '\n';
        return OK;
    });
    add("g:", "setMcuDhcpGw", kRequired, mNetworkCtrl, [](INetworkCtrl& net, const Input& in) {
        std::cout << "setMcuDhcpGw ret = " << net.setMcuDhcpGw(String16(in.text)) << '\n';
        return OK;
    });
    add("m:", "setMcuDhcpMsk", kRequired, mNetworkCtrl, [](INetworkCtrl& net, const Input& in) {
        std::cout << "setMcuDhcpMsk ret = " << net.setMcuDhcpMsk(String16(in.text)) << '\n';
        return OK;
    });
    add("e:", "setMcuDhcpEnable", kRequired, mNetworkCtrl,
        [](INetworkCtrl& net, const Input& in) {
            bool enable = false;
            if (!in.toFlag(enable)) return USAGE;
            std::cout << "setMcuDhcpEnable ret = " << net.setMcuDhcpEnable(enable) << '\n';
            return OK;
        });
    add("l:", "SetWOLEnable", kRequired, mNetworkCtrl,
        printTextAndFlagResult("SetWOLEnable ", &INetworkCtrl::SetWOLEnable));
    add("s:", "GetWOLEnable", kNone, mNetworkCtrl,
        printResult("GetWOLEnable ret = ", &INetworkCtrl::GetWOLEnable));
    add("w:", "SetWOWEnable", kRequired, mNetworkCtrl,
        printTextAndFlagResult("SetWOWEnable ", &INetworkCtrl::SetWOWEnable));
    add("n:", "GetWOWEnable", kNone, mNetworkCtrl,
        printResult("GetWOWEnable ret = ", &INetworkCtrl::GetWOWEnable));
    add("d:", "getWifiDongleStatus", kNone, mNetworkCtrl,
        printResult("getWifiDongleStatus: ", &INetworkCtrl::getWifiDongleStatus, trueFalse));
    add("x:", "setMcuToControlMonitorNetwork", kRequired, mNetworkCtrl,
        printTextAndFlagResult("setMcuToControlMonitorNetwork ",
                               &INetworkCtrl::setMcuToControlMonitorNetwork));
    add("D:", "disableApUsbDevice", kRequired, mNetworkCtrl,
        printTextAndFlagResult("disableApUsbDevice ", &INetworkCtrl::disableApUsbDevice));
    add("d:", "setSharingDirection", kRequired, mNetworkCtrl,
        printTextAndFlagResult("setSharingDirection ", &INetworkCtrl::setSharingDirection));
    add("e", "getSharingDirection", kNone, mNetworkCtrl,
        printResult("getSharingDirection ret = ", &INetworkCtrl::getSharingDirection));
    add("a:", "setAndroidToPcSharing", kRequired, mNetworkCtrl,
        printTextAndFlagResult("setAndroidToPcSharing ", &INetworkCtrl::setAndroidToPcSharing));
    add("b", "getAndroidToPcSharing", kNone, mNetworkCtrl,
        printResult("getAndroidToPcSharing ret = ", &INetworkCtrl::getAndroidToPcSharing));
    add("J:", "setHotspotSharing", kRequired, mNetworkCtrl,
        printTextAndFlagResult("setHotspotSharing ", &INetworkCtrl::setHotspotSharing));
    // No blank before "ret" in this one line.
    add("j", "getHotspotSharing", kNone, mNetworkCtrl,
        printResult("getHotspotSharingret = ", &INetworkCtrl::getHotspotSharing));
    return OK;
}

std::unique_ptr<ListCommand> newNetworkCtrlCommand(DumpBrel& parent) {
    return std::make_unique<NetworkCtrlCommand>(parent);
}

}  // namespace dumpbrel
}  // namespace android
