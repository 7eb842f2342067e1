#pragma once

#include "db/MemoryDataBase.h"

#include <QString>

#include <memory>

namespace kesto::workbench {

// Reads the workbench's XML drawing (docs/drawing-format.md); null with a message on failure.
std::unique_ptr<CMemoryDataBase> readXmlDrawing(const QString& path, QString* error);

} // namespace kesto::workbench
