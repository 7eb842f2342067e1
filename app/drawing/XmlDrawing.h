#pragma once

#include "db/MemoryDataBase.h"

#include "utility/ReadReport.h"

#include <QString>

#include <memory>

namespace kesto::workbench {

// The largest XML drawing the workbench opens.
inline constexpr qint64 kMaxXmlDrawingBytes = 256LL * 1024 * 1024;

// Reads the workbench's XML drawing (docs/drawing-format.md) element by element, never the
// whole file at once. An entry that cannot be read is left out (or its attribute taken as
// absent) and named in the report with its line; a file that ends early gives what came before.
// Null when nothing of the file can be used.
std::unique_ptr<CMemoryDataBase> readXmlDrawing(const QString& path, utility::CReadReport& report);
// The same from the file's bytes; title when the drawing has none of its own.
std::unique_ptr<CMemoryDataBase> readXmlDrawing(const QByteArray& bytes, const QString& title,
                                                utility::CReadReport& report);

} // namespace kesto::workbench
