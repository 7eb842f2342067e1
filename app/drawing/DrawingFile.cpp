#include "drawing/DrawingFile.h"

#include "drawing/XmlDrawing.h"
#include "dxf/DxfReader.h"

#include <QFileInfo>

namespace kesto::workbench {

namespace {
std::unique_ptr<CMemoryDataBase> fail(QString* error, const QString& text)
{
    if (error)
        *error = text;
    return nullptr;
}
} // namespace

std::unique_ptr<CMemoryDataBase> openDrawing(const QString& path, QString* error)
{
    const QFileInfo info(path);
    if (!info.isFile()) {
        return fail(error, QStringLiteral("%1: no such file").arg(path));
    }
    if (info.suffix().compare(QStringLiteral("xml"), Qt::CaseInsensitive) == 0)
        return readXmlDrawing(path, error);
    if (info.suffix().compare(QStringLiteral("dxf"), Qt::CaseInsensitive) == 0)
        return dxf::readDxfDrawing(path, error);
    return fail(error,
                QStringLiteral("%1: unknown drawing format (expected .xml or .dxf)").arg(path));
}

} // namespace kesto::workbench
