#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "framework/ListCommand.h"
#include "framework/Rows.h"
#include "service/ILandscapeCtrl.h"

namespace android {
namespace dumpbrel {

class LandscapeCtrlCommand : public ListCommand {
public:
    explicit LandscapeCtrlCommand(DumpBrel& parent);
    std::string getName() const override { return mName; }
    std::string getSimpleDescription() const override { return "LandscapeCtrl Module"; }
    Status registerAllOptions() override;

private:
    std::string mName;
    sp<ILandscapeCtrl> mLandscapeCtrl;
};

LandscapeCtrlCommand::LandscapeCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("LandscapeCtrl"),
      mLandscapeCtrl(connect(&IBrelManager::getLandscapeCtrl, "getLandscapeCtrl() fail\n")) {}

Status LandscapeCtrlCommand::registerAllOptions() {
    addHelp();
    add("a", "getLandscapeApp", kNone, mLandscapeCtrl, [](ILandscapeCtrl& landscape, const Input&) {
        printLines(landscape.getLandscapeApp(), "getLandscapeApp: ");
        return OK;
    });
    add("l:", "setLandscapeAppList", kRequired, mLandscapeCtrl,
        [](ILandscapeCtrl& landscape, const Input& in) {
            // The whole argument is one application: commas and blanks are not split.
            std::vector<std::string> list;
            list.push_back(in.text);
            landscape.setLandscapeAppList(list);
            std::cout << "setLandscapeApp: " << in.text << '\n';
            return OK;
        });
    return OK;
}

std::unique_ptr<ListCommand> newLandscapeCtrlCommand(DumpBrel& parent) {
    return std::make_unique<LandscapeCtrlCommand>(parent);
}

}  // namespace dumpbrel
}  // namespace android
