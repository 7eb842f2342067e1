#include "dxf/DxfReader.h"

#include "dxf/DxfCollector.h"
#include "dxf/DxfScan.h"

#include <QFile>
#include <QFileInfo>

#include <dl_dxf.h>

#include <cstdio>
#include <memory>

namespace kesto::workbench::dxf {

namespace {

bool fail(QString* error, const QString& text)
{
    if (error)
        *error = text;
    return false;
}

// The parser reads the checked text where it lies, through a memory stream (its stream reader
// does not report the pairs it reads, its file reader does).
bool parse(QByteArray& text, CDxfCollector& collector, QString* error)
{
    const std::unique_ptr<FILE, int (*)(FILE*)> stream(
        fmemopen(text.data(), static_cast<std::size_t>(text.size()), "r"), &std::fclose);
    if (!stream)
        return fail(error, QStringLiteral("the drawing could not be read from memory"));
    try {
        DL_Dxf parser;
        while (parser.readDxfGroups(stream.get(), &collector)) {
        }
    } catch (const std::exception& e) {
        return fail(error, QStringLiteral("the DXF parser failed: %1").arg(e.what()));
    }
    return true;
}

} // namespace

std::unique_ptr<CMemoryDataBase> readDxfText(QByteArray text, const QString& title, QString* error)
{
    if (!checkDxfText(text, error))
        return nullptr;
    CDxfCollector collector;
    if (!parse(text, collector, error))
        return nullptr;
    auto db = std::make_unique<CMemoryDataBase>(title.toStdWString());
    collector.build(*db);
    return db;
}

std::unique_ptr<CMemoryDataBase> readDxfDrawing(const QString& path, QString* error)
{
    QFile file(path);
    const auto failWith = [&](const QString& reason) {
        fail(error, QStringLiteral("%1: %2").arg(path, reason));
        return nullptr;
    };
    if (file.size() > kMaxDxfFileSize)
        return failWith(
            QStringLiteral("the file is larger than %1 MB").arg(kMaxDxfFileSize / (1024 * 1024)));
    if (!file.open(QIODevice::ReadOnly))
        return failWith(file.errorString());
    QByteArray text = file.read(kMaxDxfFileSize + 1);
    if (file.error() != QFileDevice::NoError)
        return failWith(file.errorString());
    QString reason;
    auto db = readDxfText(std::move(text), QFileInfo(path).fileName(), &reason);
    if (!db)
        return failWith(reason);
    return db;
}

} // namespace kesto::workbench::dxf
