#pragma once

#include "setting/SettingBase.h"

#include <memory>
#include <string>
#include <vector>

class IDataBase;

namespace kesto::core {

// The host's settings holder: the current settings objects, the folder they live in and the
// drawing that is open in the application.
class CSystemConfig {
public:
    CSystemConfig() = default;
    CSystemConfig(const CSystemConfig&) = delete;
    CSystemConfig& operator=(const CSystemConfig&) = delete;

    // The settings folder, always ending with a separator (empty when none is set).
    const std::wstring& getSettingFolder() const { return m_settingFolder; }
    void setSettingFolder(const std::wstring& folder);

    IDataBase* getCurrentDataBase() const { return m_currentDataBase; }
    void setCurrentDataBase(IDataBase* db) { m_currentDataBase = db; }
    bool hasCurrentDrawing() const { return m_currentDataBase != nullptr; }

    // Stores a setting, replacing the one of the same class.
    ui::setting::CSettingBase* putSetting(std::unique_ptr<ui::setting::CSettingBase> setting);

    // The current setting object of a class, found by a run-time type check.
    template <class T>
    T* getSetting() const
    {
        for (const auto& setting : m_settings) {
            if (auto* typed = dynamic_cast<T*>(setting.get()))
                return typed;
        }
        return nullptr;
    }
    const std::vector<std::unique_ptr<ui::setting::CSettingBase>>& settings() const
    {
        return m_settings;
    }

private:
    std::wstring m_settingFolder;
    IDataBase* m_currentDataBase = nullptr;
    std::vector<std::unique_ptr<ui::setting::CSettingBase>> m_settings;
};

} // namespace kesto::core
