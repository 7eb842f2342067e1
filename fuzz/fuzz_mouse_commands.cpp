// The mouse's candidate-command file: whatever the bytes, reading ends, and every view read has
// its name and commands with identifiers.
#include "FuzzInput.h"

#include "customize/MouseRules.h"

using namespace kesto;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto views =
        ui::config::mouserules::readMouseCommands(writeInput(bytesOf(data, size)).toStdWString());
    for (const auto& view : views) {
        require(!view.viewName.empty());
        for (const auto& id : view.menuCommands)
            require(!id.empty());
    }
    return 0;
}
