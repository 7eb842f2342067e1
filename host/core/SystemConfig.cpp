#include "core/SystemConfig.h"

#include <QDir>

#include <typeinfo>

namespace kesto::core {

void CSystemConfig::setSettingFolder(const std::wstring& folder)
{
    if (folder.empty()) {
        m_settingFolder.clear();
        return;
    }
    QString native = QDir::toNativeSeparators(QString::fromStdWString(folder));
    if (!native.endsWith(QDir::separator()))
        native += QDir::separator();
    m_settingFolder = native.toStdWString();
}

ui::setting::CSettingBase*
CSystemConfig::putSetting(std::unique_ptr<ui::setting::CSettingBase> setting)
{
    if (!setting)
        return nullptr;
    for (auto& existing : m_settings) {
        if (typeid(*existing) == typeid(*setting)) {
            existing = std::move(setting);
            return existing.get();
        }
    }
    m_settings.push_back(std::move(setting));
    return m_settings.back().get();
}

} // namespace kesto::core
