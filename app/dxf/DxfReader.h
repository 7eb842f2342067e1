#pragma once

#include "db/MemoryDataBase.h"

#include "utility/ReadReport.h"

#include <QByteArray>
#include <QString>

#include <memory>

class QIODevice;

namespace kesto::workbench::dxf {

// The largest DXF file the workbench opens.
constexpr qint64 kMaxDxfFileSize = 512ll * 1024 * 1024;

// Reads a DXF drawing (ASCII, R12 and later) into a database: the LAYER table as KsLayers,
// the LTYPE table as KsLineTypes, the line weights in use as KsLineWidths, and every entity
// as a KsFigure on its layer, so the layers that hold figures are known. The file is streamed
// to dxflib through CDxfStreamBuf, never held whole. Where the text breaks a rule, what came
// before is kept and the report names the line and the reason; null when nothing of the file
// could be read.
std::unique_ptr<CMemoryDataBase> readDxfDrawing(const QString& path, utility::CReadReport& report);
// The same from the file's bytes.
std::unique_ptr<CMemoryDataBase> readDxfText(const QByteArray& text, const QString& title,
                                             utility::CReadReport& report);

} // namespace kesto::workbench::dxf
