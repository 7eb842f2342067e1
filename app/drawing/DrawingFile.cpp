#include "drawing/DrawingFile.h"

#include "drawing/XmlDrawing.h"
#include "dxf/DxfReader.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace kesto::workbench {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("kesto::workbench::DrawingFile", text);
}

std::unique_ptr<CMemoryDataBase> read(const QString& path, utility::CReadReport& report)
{
    const QString suffix = QFileInfo(path).suffix();
    if (suffix.compare(QStringLiteral("xml"), Qt::CaseInsensitive) == 0)
        return readXmlDrawing(path, report);
    if (suffix.compare(QStringLiteral("dxf"), Qt::CaseInsensitive) == 0)
        return dxf::readDxfDrawing(path, report);
    report.refuse(
        tr("形式がわかりません。DXF (.dxf) かワークベンチの XML 図面 (.xml) を選んでください"));
    return nullptr;
}

} // namespace

std::unique_ptr<CMemoryDataBase> openDrawing(const QString& path, QString* message)
{
    const QString shown = QDir::toNativeSeparators(path);
    utility::CReadReport report;
    std::unique_ptr<CMemoryDataBase> db;
    if (!QFileInfo(path).isFile())
        report.refuse(tr("ファイルがありません"));
    else
        db = read(path, report);
    QString text;
    if (!db)
        text = tr("図面 %1 を開けません。\n%2").arg(shown, report.details());
    else if (!report.isComplete())
        text = tr("図面 %1 には読めない部分がありました。読めた部分を開きます。\n%2")
                   .arg(shown, report.details());
    if (message)
        *message = text;
    return db;
}

} // namespace kesto::workbench
