#pragma once

#include "db/MemoryDataBase.h"

#include <QString>

#include <memory>

namespace kesto::workbench {

// Opens a drawing file into an in-memory database. Formats: DXF (.dxf) and the workbench's XML
// drawing (.xml, see docs/drawing-format.md). Null when nothing of it could be read. What could
// not be read (the file, the line and the reason) is in *message, also when the drawing opened
// in part; message is empty when all of it was read.
std::unique_ptr<CMemoryDataBase> openDrawing(const QString& path, QString* message);

} // namespace kesto::workbench
