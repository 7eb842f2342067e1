#include "drawing/DrawingFile.h"

#include "drawing/XmlDrawing.h"
#include "dxf/DxfReader.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace kesto::workbench {

namespace {
QString tr(const char* text)
{
    return QCoreApplication::translate("DrawingFile", text);
}

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
        return fail(error, tr("%1: ファイルがありません").arg(path));
    }
    if (info.suffix().compare(QStringLiteral("xml"), Qt::CaseInsensitive) == 0)
        return readXmlDrawing(path, error);
    if (info.suffix().compare(QStringLiteral("dxf"), Qt::CaseInsensitive) == 0)
        return dxf::readDxfDrawing(path, error);
    return fail(error,
                tr("%1: 図面の形式が分かりません (.xml か .dxf の図面を開けます)").arg(path));
}

} // namespace kesto::workbench
