#pragma once

#include "db/MemoryDataBase.h"

#include <QString>

#include <memory>

namespace kesto::workbench {

// Opens a drawing file into an in-memory database; null with a message on failure.
// Formats: DXF (.dxf) and the workbench's XML drawing (.xml, see docs/drawing-format.md).
std::unique_ptr<CMemoryDataBase> openDrawing(const QString& path, QString* error);

} // namespace kesto::workbench
