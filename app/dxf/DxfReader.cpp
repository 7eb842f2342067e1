#include "dxf/DxfReader.h"

#include "dxf/DxfCollector.h"
#include "dxf/DxfStream.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <dl_dxf.h>

#include <istream>

namespace kesto::workbench::dxf {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("kesto::workbench::dxf", text);
}

std::unique_ptr<CMemoryDataBase> read(QIODevice& source, const QString& title,
                                      utility::CReadReport& report)
{
    if (source.peek(18) == "AutoCAD Binary DXF") {
        report.refuse(tr("バイナリ DXF は読めません。ASCII DXF で保存し直してください"));
        return nullptr;
    }
    CDxfCollector collector;
    CDxfStreamBuf text(source, collector);
    std::istream stream(&text);
    try {
        DL_Dxf parser;
        parser.in(stream, &collector);
    } catch (const std::exception& e) {
        report.refuse(
            tr("DXF の読み込みに失敗しました (%1)").arg(QString::fromLocal8Bit(e.what())));
        return nullptr;
    }
    if (text.recordsGiven() == 0) {
        report.refuse(text.stopReason(), text.stopLine());
        return nullptr;
    }
    if (!text.readToEnd())
        report.stop(text.stopLine(), text.stopReason());
    auto db = std::make_unique<CMemoryDataBase>(title.toStdWString());
    collector.build(*db);
    return db;
}

} // namespace

std::unique_ptr<CMemoryDataBase> readDxfText(const QByteArray& text, const QString& title,
                                             utility::CReadReport& report)
{
    QBuffer buffer;
    buffer.setData(text);
    buffer.open(QIODevice::ReadOnly);
    return read(buffer, title, report);
}

std::unique_ptr<CMemoryDataBase> readDxfDrawing(const QString& path, utility::CReadReport& report)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        report.refuse(tr("ファイルを開けません (%1)").arg(file.errorString()));
        return nullptr;
    }
    if (file.size() > kMaxDxfFileSize) {
        report.refuse(tr("ファイルが大きすぎます (%1 バイト。上限は %2 バイト)")
                          .arg(file.size())
                          .arg(kMaxDxfFileSize));
        return nullptr;
    }
    return read(file, QFileInfo(path).fileName(), report);
}

} // namespace kesto::workbench::dxf
