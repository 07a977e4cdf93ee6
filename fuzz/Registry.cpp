#include "Registry.h"

#include "framework/DumpBrel.h"
#include "framework/ListCommand.h"

namespace dumpbrel_fuzz {

std::vector<Module> walkRegistry() {
    using android::dumpbrel::Command;
    using android::dumpbrel::DumpBrel;
    using android::dumpbrel::ListCommand;

    DumpBrel dumpBrel;
    android::dumpbrel::registerModules(dumpBrel);
    std::vector<Module> modules;
    dumpBrel.forEachCommand([&](const Command* command) {
        const ListCommand* table = dumpBrel.selectCommand(command->getName());
        if (table != command) return;  // a later module of the same name is never reached
        Module module{command->getName(), {}};
        for (const auto& option : table->getOptions())
            module.rows.push_back({std::string(option.shortOption),
                                   std::string(option.longOption), option.hasArg,
                                   std::string(option.help), std::string(option.argument)});
        modules.push_back(std::move(module));
    });
    return modules;
}

}  // namespace dumpbrel_fuzz
