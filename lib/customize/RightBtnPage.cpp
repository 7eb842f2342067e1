#include "customize/RightBtnPage.h"

#include "command/CommandTable.h"
#include "res/CustomizeResource.h"

#include <QApplication>
#include <QCheckBox>
#include <QListWidget>

namespace kesto::ui::config {

using namespace res;

namespace {

int selectedRowOf(const QListWidget* list)
{
    const QListWidgetItem* item = list->currentItem();
    return item && item->isSelected() ? list->row(item) : -1;
}
} // namespace

CRightBtnPage::CRightBtnPage(QWidget* parent)
    : CMousePage(IDD_MOUSE_RIGHT_BUTTON, parent)
{
    m_commandList = dlgItem<QListWidget>(IDC_COMMAND_LIST);
    m_menuList = dlgItem<QListWidget>(IDC_MENU_LIST);
    m_toolTips.init(QStringLiteral("Dia_setting"), QStringLiteral("Iddia_set_user_mause_right"));
    addToolTip(IDC_SHOW_SHORTCUT_MENU, QStringLiteral("short_cut"));
    addToolTip(IDC_RECENT_COMMANDS, QStringLiteral("recently_cmd"));
    addToolTip(IDC_COMMAND_LIST, QStringLiteral("org_cmd"));
    addToolTip(IDC_MENU_LIST, QStringLiteral("assign_cmd"));
    onClicked(IDC_MENU_ADD, [this] { OnBnClickedAdd(); });
    onClicked(IDC_MENU_INSERT, [this] { OnBnClickedInsert(); });
    onClicked(IDC_MENU_DELETE, [this] { OnBnClickedDelete(); });
    onClicked(IDC_MENU_UP, [this] { OnBnClickedUp(); });
    onClicked(IDC_MENU_DOWN, [this] { OnBnClickedDown(); });
    onClicked(IDC_MENU_SEPARATOR, [this] { OnBnClickedSeparator(); });
    if (auto* recent = dlgItem<QCheckBox>(IDC_RECENT_COMMANDS))
        connect(recent, &QCheckBox::toggled, this, [this](bool on) { OnBnClickedRecent(on); });
    for (QListWidget* list : {m_commandList, m_menuList}) {
        if (list)
            connect(list, &QListWidget::itemSelectionChanged, this, [this] { refreshButtons(); });
    }
    if (m_commandList)
        connect(m_commandList, &QListWidget::itemDoubleClicked, this, [this] { OnBnClickedAdd(); });
}

void CRightBtnPage::setCommands(const utility::CCommandTable* commands,
                                const setting::SMouseCommands* candidates)
{
    m_commands = commands;
    m_candidates = candidates ? mouserules::resolveCandidates(candidates->menuCommands, commands)
                              : std::vector<mouserules::SCandidate>();
    fillCommandList();
}

void CRightBtnPage::fillCommandList()
{
    if (!m_commandList)
        return;
    m_commandList->clear();
    for (const mouserules::SCandidate& candidate : m_candidates)
        m_commandList->addItem(mouserules::commandRowText(candidate.id, candidate.name));
    refreshButtons();
}

void CRightBtnPage::fillMenuList()
{
    if (!m_menuList)
        return;
    m_menuList->clear();
    for (const control::SContextMenuDataItem& item : m_menu.items())
        m_menuList->addItem(mouserules::menuItemRowText(item, m_commands));
    refreshButtons();
}

void CRightBtnPage::loadFrom(const setting::SMouseSetting& view)
{
    m_menu = view.shortcutMenu;
    m_menu.separateBreaks();
    if (auto* show = dlgItem<QCheckBox>(IDC_SHOW_SHORTCUT_MENU))
        show->setChecked(view.showShortcutMenu);
    if (auto* recent = dlgItem<QCheckBox>(IDC_RECENT_COMMANDS))
        recent->setChecked(m_menu.isRecentCommand());
    fillMenuList();
}

void CRightBtnPage::storeTo(setting::SMouseSetting& view) const
{
    const auto* show = dlgItem<QCheckBox>(IDC_SHOW_SHORTCUT_MENU);
    view.showShortcutMenu = show && show->isChecked();
    control::CContextMenuData menu = m_menu;
    menu.mergeBreaks();
    view.shortcutMenu = menu;
}

int CRightBtnPage::selectedCommand() const
{
    return m_commandList ? selectedRowOf(m_commandList) : -1;
}

int CRightBtnPage::selectedItem() const
{
    return m_menuList ? selectedRowOf(m_menuList) : -1;
}

void CRightBtnPage::selectItem(int pos)
{
    if (pos < 0 || pos >= m_menuList->count()) {
        m_menuList->clearSelection();
        m_menuList->setCurrentItem(nullptr);
    } else {
        m_menuList->setCurrentRow(pos);
    }
    refreshButtons();
}

std::optional<utility::SCommand> CRightBtnPage::commandToAdd() const
{
    const int row = selectedCommand();
    if (row < 0 || row >= static_cast<int>(m_candidates.size()))
        return std::nullopt;
    // The menu takes a command once.
    if (!m_menuList->findItems(m_commandList->item(row)->text(), Qt::MatchExactly).isEmpty()) {
        QApplication::beep();
        return std::nullopt;
    }
    const mouserules::SCandidate& candidate = m_candidates[static_cast<std::size_t>(row)];
    utility::SCommand command;
    if (!m_commands || !m_commands->GetCommand(candidate.id.c_str(), command)) {
        command.id = candidate.id;
        command.name = candidate.name.toStdWString();
    }
    return command;
}

void CRightBtnPage::refreshButtons()
{
    if (!m_commandList || !m_menuList)
        return;
    const auto states =
        mouserules::menuButtonStates(selectedCommand() >= 0, selectedItem(), m_menuList->count());
    const std::pair<int, bool> buttons[] = {
        {IDC_MENU_ADD, states.add},       {IDC_MENU_INSERT, states.insert},
        {IDC_MENU_DELETE, states.remove}, {IDC_MENU_UP, states.up},
        {IDC_MENU_DOWN, states.down},     {IDC_MENU_SEPARATOR, states.separator},
    };
    for (const auto& [id, enabled] : buttons) {
        if (QWidget* button = GetDlgItem(id))
            button->setEnabled(enabled);
    }
}

void CRightBtnPage::OnBnClickedAdd()
{
    guarded([&] {
        const std::optional<utility::SCommand> command = commandToAdd();
        if (!command)
            return;
        m_menu.addButton(*command, 0);
        m_menuList->addItem(mouserules::menuItemRowText(m_menu.items().back(), m_commands));
        selectItem(m_menuList->count() - 1);
    });
}

void CRightBtnPage::OnBnClickedInsert()
{
    guarded([&] {
        const int pos = selectedItem();
        const std::optional<utility::SCommand> command = pos >= 0 ? commandToAdd() : std::nullopt;
        if (!command || !m_menu.insertButton(pos, *command, 0))
            return;
        m_menuList->insertItem(pos, mouserules::menuItemRowText(*m_menu.getItem(pos), m_commands));
        selectItem(pos);
    });
}

void CRightBtnPage::OnBnClickedDelete()
{
    guarded([&] {
        const int pos = selectedItem();
        if (!m_menu.deleteItem(pos))
            return;
        delete m_menuList->takeItem(pos);
        selectItem(std::min(pos, m_menuList->count() - 1));
    });
}

void CRightBtnPage::OnBnClickedUp()
{
    guarded([&] {
        const int pos = selectedItem();
        if (!m_menu.moveItemPrev(pos))
            return;
        m_menuList->insertItem(pos - 1, m_menuList->takeItem(pos));
        selectItem(pos - 1);
    });
}

void CRightBtnPage::OnBnClickedDown()
{
    guarded([&] {
        const int pos = selectedItem();
        if (!m_menu.moveItemNext(pos))
            return;
        m_menuList->insertItem(pos + 1, m_menuList->takeItem(pos));
        selectItem(pos + 1);
    });
}

void CRightBtnPage::OnBnClickedSeparator()
{
    guarded([&] {
        const int pos = selectedItem();
        if (pos < 0 || !m_menu.insertBreak(pos))
            return;
        m_menuList->insertItem(pos, mouserules::menuItemRowText(*m_menu.getItem(pos), m_commands));
        selectItem(pos);
    });
}

void CRightBtnPage::OnBnClickedRecent(bool on)
{
    m_menu.setRecentCommand(on);
}

void CRightBtnPage::update(kesto::Subject* /*subject*/, int event, void* /*data*/)
{
    if (event != EVENT_COMMANDS_CHANGED)
        return;
    guarded([&] {
        const int pos = selectedItem();
        std::vector<std::wstring> ids;
        for (const mouserules::SCandidate& candidate : m_candidates)
            ids.push_back(candidate.id);
        m_candidates = mouserules::resolveCandidates(ids, m_commands);
        fillCommandList();
        fillMenuList();
        selectItem(pos);
    });
}

} // namespace kesto::ui::config
