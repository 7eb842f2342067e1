// The command table file: whatever the bytes, loading ends, and a table that fails to load is
// left as it was.
#include "FuzzInput.h"

#include "command/CommandTable.h"

using namespace kesto;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    utility::CCommandTable table;
    table.addGroup(L"before");
    QString error;
    if (!table.loadXML(writeInput(bytesOf(data, size)).toStdWString(), &error))
        require(table.groups().size() == 1 && table.size() == 0 && !error.isEmpty());
    return 0;
}
