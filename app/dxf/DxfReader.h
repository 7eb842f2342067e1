#pragma once

#include "db/MemoryDataBase.h"

#include <QByteArray>
#include <QString>

#include <memory>

namespace kesto::workbench::dxf {

// The largest DXF file the workbench opens.
constexpr qint64 kMaxDxfFileSize = 512ll * 1024 * 1024;

// Reads a DXF drawing (ASCII, R12 and later) into a database: the LAYER table as KsLayers,
// the LTYPE table as KsLineTypes, the line weights in use as KsLineWidths, and every entity
// as a KsFigure on its layer, so the layers that hold figures are known. Null with a reason
// for a file that cannot be read.
std::unique_ptr<CMemoryDataBase> readDxfDrawing(const QString& path, QString* error);
// The same from the file's bytes.
std::unique_ptr<CMemoryDataBase> readDxfText(QByteArray text, const QString& title, QString* error);

} // namespace kesto::workbench::dxf
