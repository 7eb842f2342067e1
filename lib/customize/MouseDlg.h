#pragma once

#include "config/ModalProtocol.h"
#include "customize/MouseRules.h"
#include "setting/MouseCommands.h"
#include "setting/MouseSetting.h"

#include <array>
#include <vector>

class QTabBar;

namespace kesto::utility {
class CCommandTable;
}

namespace kesto::ui::config {

class CMousePage;
class CSimplePage;

// "マウスの設定": the right button's shortcut menu, both buttons and the wheel, per view. Two
// tab strips choose the page; edits stay in the pages until OK.
class CMouseDlg : public TSettingDialog<setting::CMouseSetting> {
    Q_OBJECT

public:
    CMouseDlg();
    ~CMouseDlg() override;

    void setCommandTable(const utility::CCommandTable* commands) { m_commands = commands; }
    // Reads the candidate commands of the views from the file.
    void loadMouseCommands(const std::wstring& path);
    void setMouseCommands(std::vector<setting::SMouseCommands> list) { m_mouseCommands = list; }
    bool isTwoDimensionalOnly() const { return m_twoDimensionalOnly; }

    // A page, or null when it is not built (3-D pages in a two-dimensional-only dialog).
    CMousePage* page(mouserules::EPage page) const { return m_pages[page]; }
    mouserules::EPage shownPage() const { return m_shownPage; }

protected:
    bool OnInitDialog() override;

private:
    bool createPages();
    CSimplePage* createSimplePage(int captionsId);
    void setupViewTabs();
    void fillButtonTabs();
    void bindPages();
    void bind3DPage(mouserules::EPage page, bool mouserules::S3DControls::*choice);
    void showPage();

    void OnTcnSelchangeViewTab();
    void OnTcnSelchangeButtonTab();
    void OnBnClickedReset();
    void OnBnClickedHelp();

    const utility::CCommandTable* m_commands = nullptr;
    std::vector<setting::SMouseCommands> m_mouseCommands;
    bool m_twoDimensionalOnly = false;
    bool m_fillingTabs = false;
    std::array<CMousePage*, mouserules::PageCount> m_pages{};
    mouserules::EPage m_shownPage = mouserules::Right2D;

    QTabBar* m_viewTab = nullptr;
    QTabBar* m_buttonTab = nullptr;
};

} // namespace kesto::ui::config
