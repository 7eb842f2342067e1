// A DXF file as it may be found on disk, through the one reading path (the checked stream handed
// to dxflib): whatever the bytes, reading ends, a drawing read in part names where it stopped,
// and nothing after EOF is read.
#include "FuzzInput.h"

#include "dxf/DxfReader.h"

using namespace kesto;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray input = bytesOf(data, size);
    utility::CReadReport report;
    const auto db = workbench::dxf::readDxfText(input, QStringLiteral("fuzz.dxf"), report);
    require(db || !report.isComplete()); // nothing opened without a reason
    // Whatever follows EOF is never read.
    const qsizetype end = input.indexOf("\n0\nEOF\n");
    if (db && end >= 0) {
        utility::CReadReport same;
        require(bool(workbench::dxf::readDxfText(input.left(end + 7) + "0\nLWPOLYLINE\n90\n-1\n",
                                                 QStringLiteral("fuzz.dxf"), same)));
    }
    return 0;
}
