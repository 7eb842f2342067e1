// Every settings file the workbench reads, as it may be found on disk. The first byte picks the
// setting, the rest is its file. Whatever the bytes, reading ends; what was read and saved reads
// back in full, and saving it again gives the same bytes.
#include "FuzzInput.h"

#include "topics/Topic.h"

#include "setting/SettingBase.h"
#include "utility/ReadReport.h"

#include <QDir>

using namespace kesto;

namespace {

const std::vector<workbench::SettingFactory>& factories()
{
    static const std::vector<workbench::SettingFactory> all = [] {
        std::vector<workbench::SettingFactory> list = workbench::hostSettings();
        for (const workbench::Topic& topic : workbench::allTopics())
            list.push_back(topic.makeDefault);
        return list;
    }();
    return all;
}

QByteArray savedBytes(const ui::setting::CSettingBase& setting, const QString& path)
{
    require(setting.saveXML(path.toStdWString()));
    QFile file(path);
    require(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    const workbench::SettingFactory& makeDefault = factories()[data[0] % factories().size()];
    const std::unique_ptr<ui::setting::CSettingBase> setting = makeDefault();
    utility::CReadReport report;
    setting->readXML(writeInput(bytesOf(data + 1, size - 1)).toStdWString(), report);

    const QString path = writeInput({}, QStringLiteral("saved.xml"));
    const QByteArray saved = savedBytes(*setting, path);
    const std::unique_ptr<ui::setting::CSettingBase> again = makeDefault();
    QString error;
    require(again->loadXML(path.toStdWString(), &error));
    require(savedBytes(*again, path) == saved);
    return 0;
}
