#include <iostream>
#include <memory>
#include <string>

#include "framework/ListCommand.h"
#include "service/IVgaAdjust.h"

namespace android {
namespace dumpbrel {

class VgaAdjustCommand : public ListCommand {
public:
    explicit VgaAdjustCommand(DumpBrel& parent);
    std::string getName() const override { return mName; }
    std::string getSimpleDescription() const override { return "VgaAdjust Module"; }
    Status registerAllOptions() override;

private:
    std::string mName;
    sp<IVgaAdjust> mVgaAdjust;
};

VgaAdjustCommand::VgaAdjustCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("VgaAdjust"),
      mVgaAdjust(connect(&IBrelManager::getVgaAdjust, "getVgaAdjust() fail\n")) {}

Status VgaAdjustCommand::registerAllOptions() {
    addHelp();
    // The long forms of both rows take no argument; only -g and -s carry one.
    add("g:", "getvgaAdjustData", kNone, mVgaAdjust, [](IVgaAdjust& vga, const Input& in) {
        int type = 0;
        if (!in.toInt(type)) return USAGE;
        int status = vga.getvgaAdjustData(type);
        std::cout << "type: " << in.text << ", status: " << status << '\n';
        return OK;
    });
    add("s:", "setvgaAdjustData", kNone, mVgaAdjust, [](IVgaAdjust& vga, const Input& in) {
        if (in.missing()) return USAGE;
        // type:value; anything behind a second colon is ignored.
        std::vector<std::string> field = in.fields(2, ':');
        int type = 0;
        int val = 0;
        if (!in.toInt(field[0], type) || !in.toInt(field[1], val)) return USAGE;
        int status = vga.setvgaAdjustData(type, val);
        std::cout << "type: " << field[0] << ", val: " << field[1] << ", status: " << status
                  << '\n';
        return OK;
    });
    return OK;
}

std::unique_ptr<ListCommand> newVgaAdjustCommand(DumpBrel& parent) {
    return std::make_unique<VgaAdjustCommand>(parent);
}

}  // namespace dumpbrel
}  // namespace android
