#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

#include <utils/String8.h>

#include "framework/ListCommand.h"
#include "framework/Rows.h"
#include "service/IProjectId.h"

namespace android {
namespace dumpbrel {

class ProjectIdCommand : public ListCommand {
public:
    explicit ProjectIdCommand(DumpBrel& parent);
    std::string getName() const override { return mName; }
    std::string getSimpleDescription() const override { return "ProjectId Module"; }
    Status registerAllOptions() override;

private:
    std::string mName;
    sp<IProjectId> mProjectId;
};

namespace {

// The typed index is the panel size of the help text; the service counts its projects
// without the value 1.
constexpr int kProjectIds[] = {0, 2, 3, 4, 5};

}  // namespace

ProjectIdCommand::ProjectIdCommand(DumpBrel& parent)
    : ListCommand(parent),
      mName("ProjectId"),
      mProjectId(connect(&IBrelManager::getProjectId, "getProjectId() fail\n")) {}

Status ProjectIdCommand::registerAllOptions() {
    addHelp();
    add("s:", "setProjectIdByIndex", kRequired, mProjectId,
        [](IProjectId& project, const Input& in) {
            if (in.missing()) return USAGE;
            int index = atoi(in.text);
            if (index < 0 || index > 4) {
                fputs("Invalid ProjectId\n", stderr);
                return USAGE;
            }
            project.setProjectIdByIndex(kProjectIds[index]);
            return OK;
        },
        "0-4:\n0-PANNAL_SIZE_NONE\n1-PANNAL_SIZE_55\n2-PANNAL_SIZE_65\n3-PANNAL_SIZE_75\n"
        "4-PANNAL_SIZE_86");
    add("g", "getProjectIdIndex", kNone, mProjectId,
        printResult("mEnumProjectId = ", &IProjectId::getProjectIdIndex));
    add("e", "getEyePqFixedEnable", kNone, mProjectId,
        printResult("getEyePqFixedEnable = ", &IProjectId::getEyePqFixedEnable));
    // -v takes an argument that is never read; the long form takes none.
    add("v:", "getEyePqFixedValue", kNone, mProjectId,
        printResult("getEyePqFixedValue = ", &IProjectId::getEyePqFixedValue));
    return OK;
}

std::unique_ptr<ListCommand> newProjectIdCommand(DumpBrel& parent) {
    return std::make_unique<ProjectIdCommand>(parent);
}

}  // namespace dumpbrel
}  // namespace android
