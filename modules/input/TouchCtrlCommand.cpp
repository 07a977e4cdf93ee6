#include "modules/Modules.h"

namespace android {
namespace dumpbrel {

TouchCtrlCommand::TouchCtrlCommand(DumpBrel& parent) : ListCommand(parent), mName("TouchCtrl") {
    // Both interfaces come from the one manager; only the first one's absence is reported.
    sp<IBrelManager> manager = mParent->getBrelManager();
    if (manager != nullptr) {
        mTouchCtrl = manager->getTouchCtrl();
        mFwTouchCtrl = manager->getFwTouchCtrl();
    }
    if (mTouchCtrl == nullptr) fputs("getTouchCtrl() fail\n", stderr);
}

std::string TouchCtrlCommand::getSimpleDescription() const {
    return "TouchCtrl Module";
}

Status TouchCtrlCommand::registerAllOptions() {
    addHelp();
    return OK;
}

}  // namespace dumpbrel
}  // namespace android
