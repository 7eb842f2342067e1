// dialogdata.xml as it may be found on disk: whatever the bytes, loading and saving the drawing
// hatch never crash, a file that cannot be read is never written, and a saved file is stable.
#include "core/Application.h"
#include "hatch/DrawingHatch.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cstdint>
#include <cstdlib>
#include <memory>

using namespace kesto;

namespace {

struct Host {
    Host()
    {
        config->setSettingFolder(dir.path().toStdWString());
        core::Application::getInstance()->setSystemConfig(config);
    }
    QString file() const { return dir.filePath(QStringLiteral("dialogdata.xml")); }

    QTemporaryDir dir;
    std::shared_ptr<core::CSystemConfig> config = std::make_shared<core::CSystemConfig>();
};

QByteArray readAll(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static Host host;
    const QByteArray input(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    {
        QFile file(host.file());
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)
            || file.write(input) != input.size())
            std::abort();
    }
    ui::config::SDrawingHatch hatch;
    hatch.initByDefault();
    hatch.loadDialogData();
    ui::config::SDrawingHatch saved;
    saved.initByDefault();
    if (!saved.saveDialogData()) {
        if (readAll(host.file()) != input)
            std::abort(); // a failed save wrote something
        return 0;
    }
    // What was saved can be read back, and saving it again changes nothing.
    ui::config::SDrawingHatch again;
    if (!again.loadDialogData())
        std::abort();
    const QByteArray once = readAll(host.file());
    if (!saved.saveDialogData() || readAll(host.file()) != once)
        std::abort();
    return 0;
}
