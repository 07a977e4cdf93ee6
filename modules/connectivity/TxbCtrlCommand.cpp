#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "framework/ListCommand.h"
#include "framework/Rows.h"
#include "service/ITxbCtrl.h"

namespace android {
namespace dumpbrel {

class TxbCtrlCommand : public ListCommand {
public:
    explicit TxbCtrlCommand(DumpBrel& parent);
    std::string getName() const override { return mName; }
    std::string getSimpleDescription() const override { return "TxbCtrl Module"; }
    Status registerAllOptions() override;

private:
    std::string mName;
    sp<ITxbCtrl> mTxbCtrl;
};

TxbCtrlCommand::TxbCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("TxbCtrl"),
      mTxbCtrl(connect(&IBrelManager::getTxbCtrl, "getTxbCtrl() fail\n")) {}

Status TxbCtrlCommand::registerAllOptions() {
    addHelp();
    // num,state: both fields echoed as typed; ", ret" runs into the digit.
    add("m:", "setTxbSensorMuteState", kRequired, mTxbCtrl, [](ITxbCtrl& txb, const Input& in) {
        std::vector<std::string> field = in.fields(2);
        bool ret = txb.setTxbSensorMuteState(atoi(field[0].c_str()), atoi(field[1].c_str()) != 0);
        std::cout << "setTxbSensorMuteState num: " << field[0] << ", state: " << field[1]
                  << ", ret" << ret << '\n';
        return OK;
    });
    add("g", "getTxbSensorMuteState", kNone, mTxbCtrl,
        printResult("getTxbSensorMuteState: ", &ITxbCtrl::getTxbSensorMuteState));
    // The values run together on one line. A count beyond the array prints the whole array.
    add("t", "getTxbSensorSelfTestState", kNone, mTxbCtrl, [](ITxbCtrl& txb, const Input&) {
        int values[kTxbSelfTestValues] = {};
        int len = txb.getTxbSensorSelfTestState(values);
        std::cout << "self test len: " << len << '\n';
        for (int i = 0; i < std::min(len, kTxbSelfTestValues); ++i) std::cout << values[i];
        std::cout << '\n';
        return OK;
    });
    // count,value1,value2,...: the count counts element 0 too, which stays 0, so the first
    // value typed lands in element 1.
    add("s:", "setTxbSensorSelfTestState", kRequired, mTxbCtrl,
        [](ITxbCtrl& txb, const Input& in) {
            std::vector<std::string> field = in.commaList();
            if (field.empty()) {
                in.refuse("no count given");
                return USAGE;
            }
            int len = atoi(field[0].c_str());
            if (len > kTxbSelfTestValues) {
                in.refuse("count over 32", field[0]);
                return USAGE;
            }
            if (len > static_cast<int>(field.size())) {
                in.refuse("fewer fields than the count", in.text);
                return USAGE;
            }
            int values[kTxbSelfTestValues] = {};
            for (int i = 1; i < len; ++i) values[i] = atoi(field[i].c_str());
            bool ret = txb.setTxbSensorSelfTestState(values, len);
            std::cout << "setTxbSensorSelfTestState: " << ret << '\n';
            return OK;
        });
    return OK;
}

std::unique_ptr<ListCommand> newTxbCtrlCommand(DumpBrel& parent) {
    return std::make_unique<TxbCtrlCommand>(parent);
}

}  // namespace dumpbrel
}  // namespace android
