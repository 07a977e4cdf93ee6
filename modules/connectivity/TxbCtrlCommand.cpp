#include "modules/Modules.h"

namespace android {
namespace dumpbrel {

TxbCtrlCommand::TxbCtrlCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("TxbCtrl"),
      mTxbCtrl(connect(&IBrelManager::getTxbCtrl, "getTxbCtrl() fail\n")) {}

std::string TxbCtrlCommand::getSimpleDescription() const {
    return "TxbCtrl Module";
}

Status TxbCtrlCommand::registerAllOptions() {
    addHelp();
    return OK;
}

}  // namespace dumpbrel
}  // namespace android
