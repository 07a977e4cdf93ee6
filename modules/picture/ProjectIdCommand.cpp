#include "modules/Modules.h"

namespace android {
namespace dumpbrel {

ProjectIdCommand::ProjectIdCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("ProjectId"),
      mProjectId(connect(&IBrelManager::getProjectId, "getProjectId() fail\n")) {}

std::string ProjectIdCommand::getSimpleDescription() const {
    return "ProjectId Module";
}

Status ProjectIdCommand::registerAllOptions() {
    addHelp();
    return OK;
}

}  // namespace dumpbrel
}  // namespace android
