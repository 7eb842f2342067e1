#pragma once

#include "core/DialogRegistry.h"
#include "core/Log.h"
#include "core/PlacementStore.h"
#include "core/SystemConfig.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace kesto::utility {
class CCommandTable;
}

namespace kesto::core {

class IMainFrame;

// The host application's services as the library reaches them.
class Application {
public:
    static Application* getInstance();

    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

    // The settings holder; may be absent.
    CSystemConfig* getSystemConfig() const { return m_config.get(); }
    void setSystemConfig(std::shared_ptr<CSystemConfig> config) { m_config = std::move(config); }

    // The main frame; absent in tests and in hosts without a main window.
    IMainFrame* getMainFrame() const { return m_mainFrame; }
    void setMainFrame(IMainFrame* frame) { m_mainFrame = frame; }

    // The settings folder of the settings holder (empty without one).
    std::wstring getSettingFolder() const;
    const std::wstring& getResourceFolder() const { return m_resourceFolder; }
    void setResourceFolder(std::wstring folder) { m_resourceFolder = std::move(folder); }
    const std::wstring& getUserDataFolder() const { return m_userDataFolder; }
    void setUserDataFolder(std::wstring folder) { m_userDataFolder = std::move(folder); }

    // Background colour of the drawing views (0xRRGGBB); black unless the host sets it.
    std::uint32_t getBackgroundColor() const { return m_backgroundColor; }
    void setBackgroundColor(std::uint32_t rgb) { m_backgroundColor = rgb & 0xFFFFFFu; }

    Log& log() { return m_log; }
    PlacementStore& placements() { return m_placements; }
    DialogRegistry& dialogs() { return m_dialogs; }

    // Opens the help page of a topic key ("DLG_HLP_SYS_SCALE", ...).
    void OpenHtmlHelp(const QString& topic);
    using HelpHandler = std::function<void(const QString& topic)>;
    // Replaces how topics are shown; returns the previous handler.
    HelpHandler setHelpHandler(HelpHandler handler);

    // The application's command table; absent until the host has loaded one.
    const utility::CCommandTable* getCommandTable() const { return m_commandTable.get(); }
    void setCommandTable(std::shared_ptr<const utility::CCommandTable> table)
    {
        m_commandTable = std::move(table);
    }

private:
    Application();
    void openHelpPage(const QString& topic);

    std::shared_ptr<CSystemConfig> m_config;
    IMainFrame* m_mainFrame = nullptr;
    std::wstring m_resourceFolder;
    std::wstring m_userDataFolder;
    Log m_log;
    PlacementStore m_placements;
    DialogRegistry m_dialogs;
    HelpHandler m_helpHandler;
    std::uint32_t m_backgroundColor = 0x000000;
    std::shared_ptr<const utility::CCommandTable> m_commandTable;
};

} // namespace kesto::core
