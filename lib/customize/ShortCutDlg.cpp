#include "customize/ShortCutDlg.h"

#include "command/CommandTable.h"
#include "command/CommandTree.h"
#include "control/KsListCtrl.h"
#include "control/RecordTableModel.h"
#include "core/Application.h"
#include "customize/ShortCutEdit.h"
#include "customize/ShortCutRules.h"
#include "res/CustomizeResource.h"

#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QTreeWidget>

#include <algorithm>

namespace kesto::ui::config {

using namespace res;
using framework::loadString;
using setting::SShortCut;
using shortcutrules::SKeyStroke;
namespace rules = shortcutrules;

namespace {
const QString kRegistryName = QStringLiteral("ShortCutDlg");

// Sets a flag for a scope, so that selection changes made by the dialog itself are not taken
// for the user's.
class FollowGuard {
public:
    explicit FollowGuard(bool& flag)
        : m_flag(flag)
        , m_previous(flag)
    {
        m_flag = true;
    }
    ~FollowGuard() { m_flag = m_previous; }
    FollowGuard(const FollowGuard&) = delete;
    FollowGuard& operator=(const FollowGuard&) = delete;

private:
    bool& m_flag;
    bool m_previous;
};
} // namespace

CShortCutDlg::CShortCutDlg()
    : TSettingDialog(IDD_SHORTCUT)
{
    setPlacementKey(kRegistryName);
    keepFirstSizeAsMinimum(true);
    m_tree = dlgItem<QTreeWidget>(IDC_COMMAND_TREE);
    m_edit = dlgItem<CShortCutEdit>(IDC_SHORTCUT_EDIT);
    m_currentKeys = dlgItem<control::CKsListCtrl>(IDC_CURRENT_KEYS);
    m_allKeys = dlgItem<control::CKsListCtrl>(IDC_ALL_KEYS);
    m_owner = dlgItem<QLabel>(IDC_KEY_OWNER);
    if (core::IMainFrame* frame = core::Application::getInstance()->getMainFrame())
        m_frameMode = frame->getFrameMode();
}

CShortCutDlg::~CShortCutDlg()
{
    if (m_edit)
        m_edit->detach(this);
    core::Application::getInstance()->dialogs().withdraw(kRegistryName, this);
}

bool CShortCutDlg::OnInitDialog()
{
    return guarded([&] {
        if (!m_tree || !m_edit || !m_currentKeys || !m_allKeys || !m_owner)
            return false;
        helper::setupCommandTree(*m_tree, m_commands, helper::SCT_SHORTCUT, m_frameMode);
        indexTree();
        setupLists();
        fillAllKeys();
        setWindowIcon(QApplication::windowIcon());
        m_edit->attach(this);
        connect(m_tree, &QTreeWidget::itemSelectionChanged, this,
                [this] { OnTvnSelchangedTree(); });
        connect(m_allKeys, &control::CKsListCtrl::selectedRowChanged, this,
                [this] { OnLvnItemchangedAllKeys(); });
        onClicked(IDC_ASSIGN, [this] { OnBnClickedAssign(); });
        onClicked(IDC_DELETE, [this] { OnBnClickedDelete(); });
        onClicked(IDC_RESET, [this] { OnBnClickedReset(); });
        onClicked(IDC_SHORTCUT_HELP, [this] { OnBnClickedHelp(); });
        refreshButtons();
        core::Application::getInstance()->dialogs().announce(kRegistryName, this);
        return true;
    });
}

void CShortCutDlg::indexTree()
{
    m_treeItems.clear();
    // Depth-first from the first root; the first item of a number wins.
    for (QTreeWidgetItemIterator it(m_tree); *it; ++it) {
        const int number = helper::commandNumberOf(*it);
        if (number > 0 && !m_treeItems.contains(number))
            m_treeItems.insert(number, *it);
    }
}

// Rows are the working copy's bindings; the texts are their views.
void CShortCutDlg::setupLists()
{
    using control::EColumnType;
    namespace columns = control::columns;
    const QString keyTitle = loadString(IDS_SHORTCUT_COLUMN_KEY);
    auto keyText = [](const SShortCut& b) { return QString::fromStdWString(b.makeShortCutSz()); };
    control::TTableColumn<SShortCut> name{
        columns::look(loadString(IDS_SHORTCUT_COLUMN_NAME), 140, EColumnType::Text)};
    name.text = [this](const SShortCut& b) { return commandName(b); };
    control::TTableColumn<SShortCut> key{columns::look(keyTitle, 100, EColumnType::Text)};
    key.text = keyText;
    m_allRows = new control::TRecordTableModel<SShortCut>(this);
    m_allRows->addColumn(name);
    m_allRows->addColumn(key);
    m_currentRows = new control::TRecordTableModel<SShortCut>(this);
    m_currentRows->addColumn(key);
    for (control::CKsListCtrl* list : {m_allKeys, m_currentKeys}) {
        list->setTableModel(list == m_allKeys ? m_allRows : m_currentRows);
        list->horizontalHeader()->setStretchLastSection(true);
    }
}

QString CShortCutDlg::commandName(const SShortCut& binding) const
{
    const utility::SCommand* command =
        m_commands ? m_commands->findCommand(binding.commandNumber) : nullptr;
    return QString::fromStdWString(command ? command->name : binding.name);
}

void CShortCutDlg::fillAllKeys()
{
    FollowGuard guard(m_following);
    m_allRows->setRows(m_setting.items());
    m_allKeys->fitColumnToContents(rules::ColumnName);
    m_allKeys->setColumnWidth(rules::ColumnName,
                              std::max(m_allKeys->columnWidth(rules::ColumnName), 140));
    m_allKeys->setColumnWidth(rules::ColumnKey, 100);
}

void CShortCutDlg::fillCurrentKeys(int commandNumber)
{
    std::vector<SShortCut> bindings;
    if (commandNumber > 0)
        m_setting.findItemsById(bindings, commandNumber);
    m_currentRows->setRows(std::move(bindings));
}

int CShortCutDlg::selectedCommand() const
{
    const QTreeWidgetItem* item = m_tree->currentItem();
    return item && item->isSelected() ? helper::commandNumberOf(item) : 0;
}

int CShortCutDlg::rowNumber(int row) const
{
    return m_allRows->isValidRow(row) ? m_allRows->row(row).commandNumber : 0;
}

int CShortCutDlg::rowOfNumber(int commandNumber) const
{
    for (int row = 0; row < m_allRows->rowCount(); ++row) {
        if (m_allRows->row(row).commandNumber == commandNumber)
            return row;
    }
    return -1;
}

int CShortCutDlg::rowOfKey(const SShortCut& key) const
{
    for (int row = 0; row < m_allRows->rowCount(); ++row) {
        const SShortCut& binding = m_allRows->row(row);
        if (binding.flags == key.flags && binding.key == key.key)
            return row;
    }
    return -1;
}

void CShortCutDlg::selectTreeItem(int commandNumber)
{
    FollowGuard guard(m_following);
    QTreeWidgetItem* item = m_treeItems.value(commandNumber);
    if (!item) {
        m_tree->clearSelection();
        m_tree->setCurrentItem(nullptr);
        return;
    }
    m_tree->setCurrentItem(item);
    m_tree->scrollToItem(item);
}

void CShortCutDlg::selectAllKeysRow(int row)
{
    FollowGuard guard(m_following);
    m_allKeys->selectRow(row);
    if (row >= 0)
        m_allKeys->scrollTo(m_allKeys->model()->index(row, 0));
}

// The tree and "現在のキー:" follow the selected row of "一覧".
void CShortCutDlg::followSelectedRow()
{
    const int row = m_allKeys->getSelectedRow();
    const int number = row >= 0 ? rowNumber(row) : 0;
    selectTreeItem(number);
    fillCurrentKeys(number);
}

void CShortCutDlg::refreshOwner()
{
    const SKeyStroke& key = m_edit->captured();
    const setting::SShortCut* owner = m_setting.findByShortCut(key.flags, key.key);
    m_owner->setText(owner ? rules::ownerText(commandName(*owner)) : QString());
}

void CShortCutDlg::refreshButtons()
{
    const SKeyStroke& key = m_edit->captured();
    const auto states =
        rules::buttonStates(selectedCommand(), key, m_setting.findByShortCut(key.flags, key.key),
                            m_allKeys->getSelectedRow() >= 0);
    GetDlgItem(IDC_ASSIGN)->setEnabled(states.assignEnabled);
    GetDlgItem(IDC_DELETE)->setEnabled(states.deleteEnabled);
}

void CShortCutDlg::update(kesto::Subject* subject, int event, void* /*data*/)
{
    if (subject != m_edit || event != CShortCutEdit::EVENT_CAPTURE_CHANGED)
        return;
    OnChangeShortCut();
}

void CShortCutDlg::OnChangeShortCut()
{
    guarded([&] {
        refreshOwner();
        refreshButtons();
    });
}

void CShortCutDlg::OnTvnSelchangedTree()
{
    if (m_following)
        return;
    guarded([&] {
        const int number = selectedCommand();
        selectAllKeysRow(number > 0 ? rowOfNumber(number) : -1);
        fillCurrentKeys(number);
        const SKeyStroke& key = m_edit->captured();
        if (key.key != 0 && rowOfKey({0, key.flags, key.key, {}, {}}) >= 0)
            m_edit->clearCapture();
        refreshButtons();
    });
}

void CShortCutDlg::OnLvnItemchangedAllKeys()
{
    if (m_following)
        return;
    guarded([&] {
        followSelectedRow();
        refreshButtons();
    });
}

void CShortCutDlg::OnBnClickedAssign()
{
    guarded([&] {
        const int number = selectedCommand();
        const SKeyStroke key = m_edit->captured();
        const utility::SCommand* command = m_commands ? m_commands->findCommand(number) : nullptr;
        if (!command || key.key == 0)
            return;
        FollowGuard guard(m_following);
        const SShortCut binding{number, key.flags, key.key, command->id, command->name};
        if (m_setting.deleteItem(key.flags, key.key))
            m_allRows->removeRecord(rowOfKey(binding));
        m_setting.addItem(key.flags, key.key, number, command->id.c_str(), command->name.c_str());
        m_allRows->insertRecord(0, binding);
        selectAllKeysRow(0);
        followSelectedRow();
        m_edit->clearCapture();
    });
}

void CShortCutDlg::OnBnClickedDelete()
{
    guarded([&] {
        const int row = m_allKeys->getSelectedRow();
        if (!m_allRows->isValidRow(row))
            return;
        const std::wstring keyText = m_allRows->row(row).makeShortCutSz();
        {
            FollowGuard guard(m_following);
            m_allRows->removeRecord(row);
            m_setting.deleteItem(keyText.c_str());
            selectAllKeysRow(std::min(row, m_allKeys->getRowCount() - 1));
            followSelectedRow();
        }
        m_edit->clearCapture();
    });
}

void CShortCutDlg::OnBnClickedReset()
{
    guarded([&] {
        m_setting = m_resetSetting;
        {
            FollowGuard guard(m_following);
            m_allRows->setRows({});
            m_currentRows->setRows({});
        }
        m_edit->clearCapture();
        fillAllKeys();
        refreshButtons();
    });
}

void CShortCutDlg::OnBnClickedHelp()
{
    core::Application::getInstance()->OpenHtmlHelp(QStringLiteral("DLG_HLP_SET_SHORTCUT"));
}

} // namespace kesto::ui::config
