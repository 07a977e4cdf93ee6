#include <cstdlib>
#include <iostream>
#include <memory>
#include <string>

#include "framework/ListCommand.h"
#include "framework/Rows.h"
#include "service/ISourceCtrl.h"

namespace android {
namespace dumpbrel {

class SourceCtrlCommand : public ListCommand {
public:
    explicit SourceCtrlCommand(DumpBrel& parent);
    std::string getName() const override { return mName; }
    std::string getSimpleDescription() const override { return "SourceCtrl Module"; }
    Status registerAllOptions() override;

private:
    std::string mName;
    sp<ISourceCtrl> mSourceCtrl;
};

SourceCtrlCommand::SourceCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("SourceCtrl"),
      mSourceCtrl(connect(&IBrelManager::getSourceCtrl, "getSourceCtrl() fail\n")) {}

// The letters: -g is getCurInputSource (the last row starting with g), -s is getHdmiStandbyEn
// and takes no argument (its first place in the joined string is the second s of "gs");
// getChannelList and setCurInputSource are reached by their long names only.
Status SourceCtrlCommand::registerAllOptions() {
    addHelp();
    add("g", "getChannelList", kNone, mSourceCtrl,
        printResult("u4ChannelList = ", &ISourceCtrl::getChannelList));
    add("gs", "getCurInputSource", kNone, mSourceCtrl,
        printResult("getCurSocSource ID = ", &ISourceCtrl::getCurInputSource));
    add("ss", "setCurInputSource", kRequired, mSourceCtrl,
        [](ISourceCtrl& source, const Input& in) {
            if (in.missing()) return USAGE;
            int sourceId = atoi(in.text);
            // Out of range: no word of its own, the option list shows the range.
            if (sourceId < 0 || sourceId > 24) return USAGE;
            std::cout << "setCurInputSource ret = " << source.setCurInputSource(sourceId) << '\n';
            return OK;
        },
        "0-24:KSOL_SOURCE_ATV-KSOL_SOURCE_ANDROID,Define in customers/common/board/common/"
        "kso_define");
    add("a:", "setHdmiRxEdidVersion", kRequired, mSourceCtrl,
        [](ISourceCtrl& source, const Input& in) {
            if (in.missing()) return USAGE;
            std::vector<std::string> field = in.fields(2);
            std::cout << "Source = " << field[0] << " version:" << field[1] << '\n';
            source.setHdmiRxEdidVersion(atoi(field[0].c_str()), atoi(field[1].c_str()));
            return OK;
        },
        " exp:dumpbreal xxxx setHdmiRxEdidVersion \"x1 x2\"");
    add("b:", "getHdmiRxEdidVersion", kRequired, mSourceCtrl,
        [](ISourceCtrl& source, const Input& in) {
            int sourceId = atoi(in.text);
            std::cout << "sourceId :" << sourceId
                      << "verison :" << source.getHdmiRxEdidVersion(sourceId) << '\n';
            return OK;
        });
    add("s:", "getHdmiStandbyEn", kNone, mSourceCtrl,
        printResult("getHdmiStandbyEn :", &ISourceCtrl::getHdmiStandbyEn));
    add("e:", "setHdmiStandbyEn", kRequired, mSourceCtrl,
        [](ISourceCtrl& source, const Input& in) {
            bool enable = atoi(in.text) != 0;
            std::cout << "setHdmiStandbyEn :" << enable
                      << " ret :" << source.setHdmiStandbyEn(enable) << '\n';
            return OK;
        });
    return OK;
}

std::unique_ptr<ListCommand> newSourceCtrlCommand(DumpBrel& parent) {
    return std::make_unique<SourceCtrlCommand>(parent);
}

}  // namespace dumpbrel
}  // namespace android
