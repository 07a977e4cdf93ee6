#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include <utils/String16.h>

#include "framework/ListCommand.h"
#include "service/IKeyboardCtrl.h"

namespace android {
namespace dumpbrel {

class KeyboardCtrlCommand : public ListCommand {
public:
    explicit KeyboardCtrlCommand(DumpBrel& parent);
    std::string getName() const override { return mName; }
    std::string getSimpleDescription() const override { return "KeyboardCtrl Module"; }
    Status registerAllOptions() override;

private:
    std::string mName;
    sp<IKeyboardCtrl> mKeyboardCtrl;
};

KeyboardCtrlCommand::KeyboardCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("KeyboardCtrl"),
      mKeyboardCtrl(connect(&IBrelManager::getKeyboardCtrl, "getKeyboardCtrl() fail\n")) {}

Status KeyboardCtrlCommand::registerAllOptions() {
    addHelp();
    add("n:", "getKeyboardByName", kRequired, mKeyboardCtrl,
        [](IKeyboardCtrl& keyboard, const Input& in) {
            if (in.missing()) return USAGE;
            int status = keyboard.getKeyboardByName(String16(in.text));
            std::cout << "keyboard = " << in.text << " status = " << status << "\n";
            return OK;
        });
    // vid,pid in hexadecimal, with or without 0x; echoed as typed.
    add("i:", "getKeyboardByID", kRequired, mKeyboardCtrl,
        [](IKeyboardCtrl& keyboard, const Input& in) {
            if (in.missing()) return USAGE;
            std::vector<std::string> field = in.fields(2);
            int vid = 0;
            int pid = 0;
            if (!in.toInt(field[0], vid, 16) || !in.toInt(field[1], pid, 16)) return USAGE;
            int status = keyboard.getKeyboardByID(vid, pid);
            std::cout << "vid: " << field[0] << ",pid: " << field[1] << ",status: " << status
                      << "\n";
            return OK;
        });
    return OK;
}

std::unique_ptr<ListCommand> newKeyboardCtrlCommand(DumpBrel& parent) {
    return std::make_unique<KeyboardCtrlCommand>(parent);
}

}  // namespace dumpbrel
}  // namespace android
