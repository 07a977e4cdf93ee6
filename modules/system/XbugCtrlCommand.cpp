#include <cstdlib>
#include <iostream>
#include <memory>
#include <string>

#include "framework/ListCommand.h"
#include "framework/Rows.h"
#include "service/IXbugCtrl.h"

namespace android {
namespace dumpbrel {

class XbugCtrlCommand : public ListCommand {
public:
    explicit XbugCtrlCommand(DumpBrel& parent);
    std::string getName() const override { return mName; }
    std::string getSimpleDescription() const override { return "XbugCtrl Module"; }
    Status registerAllOptions() override;

private:
    std::string mName;
    sp<IXbugCtrl> mXbugCtrl;
};

XbugCtrlCommand::XbugCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("XbugCtrl"),
      mXbugCtrl(connect(&IBrelManager::getXbugCtrl, "getXbugCtrl() fail\n")) {}

Status XbugCtrlCommand::registerAllOptions() {
    addHelp();
    // The service's own level, not the one of this program's log facility.
    add("l:", "setBrelServiceLogLevel", kRequired, mXbugCtrl,
        [](IXbugCtrl& xbug, const Input& in) {
            if (in.missing()) return USAGE;
            int level = atoi(in.text);
            if (level < 0) return USAGE;
            int result = xbug.setBrelServiceLogLevel(level);
            std::cout << "setBrelServiceLogLevel= " << level << " ret= " << result << "\n";
            return OK;
        },
        "0-8:\n--0:BREL_LOG_UNKNOWN\n--1:BREL_LOG_DEFAULT\n--2:BREL_LOG_VERBOSE\n"
        "--3:BREL_LOG_DEBUG\n--4:BREL_LOG_INFO\n--5:BREL_LOG_WARN\n--6:BREL_LOG_ERROR\n"
        "--7:BREL_LOG_FATAL\n--8:BREL_LOG_BUTT\n");
    add("g:", "getBrelServiceLogLevel", kRequired, mXbugCtrl,
        [](IXbugCtrl& xbug, const Input& in) {
            if (in.missing()) return USAGE;
            int type = atoi(in.text);
            int level = xbug.getBrelServiceLogLevel(type);
            std::cout << "type: " << type << "  ret: " << level << "\n";
            if (type == 2) {
                std::cout << "brel service current log level now is :" << level << "\n";
                return OK;
            }
            if (type == 1) {
                std::cout << "brel service build log level is :" << level << "\n";
                return OK;
            }
            std::cout << "Can not support this funtion, pram error! " << "\n";
            return USAGE;
        },
        "1-2:\n--1:BRLE_LOG_LEVEL_BUILD\n--2:BRLE_LOG_LEVEL_CURRENT\n");
    add("s:", "setBrelFuntionChkBaseTime", kRequired, mXbugCtrl,
        [](IXbugCtrl& xbug, const Input& in) {
            if (in.missing()) return USAGE;
            int time = atoi(in.text);
            if (time < 0) return USAGE;
            int result = xbug.setBrelFuntionChkBaseTime(time);
            std::cout << "setBrelFuntionChkBaseTime " << time << " ret= " << result << "\n";
            return OK;
        },
        "unsigned int");
    add("t", "getBrelFuntionChkBaseTime", kNone, mXbugCtrl,
        printResult("getBrelFuntionChkBaseTime is ", &IXbugCtrl::getBrelFuntionChkBaseTime));
    add("u", "getBrelFuntionTimeOutList", kNone, mXbugCtrl,
        [](IXbugCtrl& xbug, const Input&) {
            int result = xbug.getBrelFuntionTimeOutList();
            std::cout << "brel module funtion run time out , dump ok. " << result << "\n";
            std::cout << "please check result by < logcat | grep Brel_Module_Fnc_TimeOutChk_Dump > "
                      << "\n";
            return OK;
        },
        "result by logcat");
    add("i:", "getNodeInfo", kRequired, mXbugCtrl,
        [](IXbugCtrl& xbug, const Input& in) {
            if (in.missing()) return USAGE;
            std::cout << "---info begin-----\n";
            std::string info = xbug.getNodeInfo(std::string(in.text));
            std::cout << info << "\n"
                      << "---info end-----\n";
            return OK;
        },
        "std::string");
    return OK;
}

std::unique_ptr<ListCommand> newXbugCtrlCommand(DumpBrel& parent) {
    return std::make_unique<XbugCtrlCommand>(parent);
}

}  // namespace dumpbrel
}  // namespace android
