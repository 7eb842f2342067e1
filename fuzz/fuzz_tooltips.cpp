// The tool tip file: whatever the bytes, loading ends.
#include "FuzzInput.h"

#include "tooltip/DlgToolTipManager.h"

using namespace kesto;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    auto& catalog = ui::tooltip::ToolTipCatalog::instance();
    catalog.clear();
    QString error;
    if (!catalog.loadXML(writeInput(bytesOf(data, size)), &error))
        require(!error.isEmpty());
    return 0;
}
