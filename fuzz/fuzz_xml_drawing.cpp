// An XML drawing as it may be found on disk: whatever the bytes, reading ends; a drawing that
// opens with problems names each with its line.
#include "FuzzInput.h"

#include "drawing/XmlDrawing.h"

using namespace kesto;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    utility::CReadReport report;
    const auto db = workbench::readXmlDrawing(bytesOf(data, size), QStringLiteral("fuzz"), report);
    require(db || !report.isComplete());
    for (const auto& problem : report.problems())
        require(!problem.text.isEmpty());
    return 0;
}
