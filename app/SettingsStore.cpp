#include "SettingsStore.h"

#include "core/SystemConfig.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace kesto::workbench {

SettingsStore::SettingsStore(QString folder)
    : m_folder(std::move(folder))
{}

QString SettingsStore::fileOf(const ui::setting::CSettingBase& setting) const
{
    return QDir(m_folder).filePath(setting.xmlRootName() + QStringLiteral(".xml"));
}

std::vector<SettingsStore::Problem>
SettingsStore::loadAll(const std::vector<SettingFactory>& factories, core::CSystemConfig& config)
{
    std::vector<Problem> problems;
    for (const SettingFactory& makeDefault : factories) {
        std::unique_ptr<ui::setting::CSettingBase> setting = makeDefault();
        const QString file = fileOf(*setting);
        if (QFileInfo::exists(file)) {
            QString reason;
            if (!setting->loadXML(file.toStdWString(), &reason)) {
                problems.push_back(setAside(file, reason));
                setting = makeDefault();
            }
        }
        config.putSetting(std::move(setting));
    }
    return problems;
}

SettingsStore::Problem SettingsStore::setAside(const QString& file, const QString& reason)
{
    const QString stamp = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    const QString backup = file + QStringLiteral(".broken-") + stamp;
    if (QFile::rename(file, backup))
        return {file, reason, backup};
    m_blocked.insert(file);
    return {file, reason, QString()};
}

bool SettingsStore::save(const ui::setting::CSettingBase& setting, QString* error)
{
    const QString file = fileOf(setting);
    if (m_blocked.contains(file)) {
        if (error)
            *error = QStringLiteral("読み込めなかった %1 を退避できなかったため、上書きしません。")
                         .arg(file);
        return false;
    }
    return setting.saveXML(file.toStdWString(), error);
}

} // namespace kesto::workbench
