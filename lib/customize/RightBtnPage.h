#pragma once

#include "customize/MousePage.h"
#include "observer/Subject.h"

class QListWidget;

namespace kesto::ui::config {

// The right-button page: whether the button opens the shortcut menu, and the menu's commands
// and separators, chosen from the view's candidates.
class CRightBtnPage : public CMousePage, public kesto::IObserver {
    Q_OBJECT

public:
    // Observer event: the command table's names changed; the rows are written anew.
    static constexpr int EVENT_COMMANDS_CHANGED = 0;

    explicit CRightBtnPage(QWidget* parent);

    void setCommands(const utility::CCommandTable* commands,
                     const setting::SMouseCommands* candidates) override;
    void loadFrom(const setting::SMouseSetting& view) override;
    void storeTo(setting::SMouseSetting& view) const override;

    // The menu as edited, separators as items of their own.
    const control::CContextMenuData& menu() const { return m_menu; }

    void update(kesto::Subject* subject, int event, void* data) override;

private:
    void fillCommandList();
    void fillMenuList();
    int selectedCommand() const;
    int selectedItem() const;
    void selectItem(int pos);
    // The selected candidate as a command, unless the menu holds it already.
    std::optional<utility::SCommand> commandToAdd() const;
    void refreshButtons();

    void OnBnClickedAdd();
    void OnBnClickedInsert();
    void OnBnClickedDelete();
    void OnBnClickedUp();
    void OnBnClickedDown();
    void OnBnClickedSeparator();
    void OnBnClickedRecent(bool on);

    const utility::CCommandTable* m_commands = nullptr;
    std::vector<mouserules::SCandidate> m_candidates;
    control::CContextMenuData m_menu;
    QListWidget* m_commandList = nullptr;
    QListWidget* m_menuList = nullptr;
};

} // namespace kesto::ui::config
