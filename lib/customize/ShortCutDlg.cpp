#include "customize/ShortCutDlg.h"

#include "command/CommandTable.h"
#include "command/CommandTree.h"
#include "control/KsListCtrl.h"
#include "core/Application.h"
#include "customize/ShortCutEdit.h"
#include "customize/ShortCutRules.h"
#include "framework/HandlerGuard.h"
#include "res/CustomizeResource.h"

#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QTreeWidget>

#include <algorithm>

namespace kesto::ui::config {

using namespace res;
using framework::guardHandler;
using framework::loadString;
using shortcut::SKeyStroke;

namespace {
const char* const kClass = "CShortCutDlg";
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
    return guardHandler(kClass, "OnInitDialog", [&] {
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

void CShortCutDlg::setupLists()
{
    using control::EColumnType;
    const QString keyTitle = loadString(IDS_SHORTCUT_COLUMN_KEY);
    m_allKeys->addColumn(loadString(IDS_SHORTCUT_COLUMN_NAME), 140, EColumnType::Text,
                         Qt::AlignLeft, false);
    m_allKeys->addColumn(keyTitle, 100, EColumnType::Text, Qt::AlignLeft, false);
    m_allKeys->addColumn(QString(), 0, EColumnType::Text, Qt::AlignLeft, false);
    m_allKeys->setColumnHidden(shortcut::ColumnNumber, true);
    m_allKeys->setEditable(false);
    m_allKeys->horizontalHeader()->setStretchLastSection(true);
    m_currentKeys->addColumn(keyTitle, 100, EColumnType::Text, Qt::AlignLeft, false);
    m_currentKeys->setEditable(false);
    m_currentKeys->horizontalHeader()->setStretchLastSection(true);
}

QString CShortCutDlg::commandName(const setting::SShortCut& binding) const
{
    const utility::SCommand* command =
        m_commands ? m_commands->findCommand(binding.commandNumber) : nullptr;
    return QString::fromStdWString(command ? command->name : binding.name);
}

void CShortCutDlg::fillAllKeys()
{
    std::vector<control::SListRow> rows;
    rows.reserve(m_setting.items().size());
    for (const setting::SShortCut& binding : m_setting.items()) {
        const SKeyStroke key{binding.flags, binding.key};
        rows.emplace_back(shortcut::rowTexts(commandName(binding), key, binding.commandNumber),
                          static_cast<std::uint64_t>(binding.commandNumber));
    }
    FollowGuard guard(m_following);
    m_allKeys->setRows(std::move(rows));
    m_allKeys->fitColumnToContents(shortcut::ColumnName);
    m_allKeys->setColumnWidth(shortcut::ColumnName,
                              std::max(m_allKeys->columnWidth(shortcut::ColumnName), 140));
    m_allKeys->setColumnWidth(shortcut::ColumnKey, 100);
}

void CShortCutDlg::fillCurrentKeys(int commandNumber)
{
    std::vector<setting::SShortCut> bindings;
    if (commandNumber > 0)
        m_setting.findItemsById(bindings, commandNumber);
    std::vector<control::SListRow> rows;
    for (const setting::SShortCut& binding : bindings)
        rows.emplace_back(QStringList{QString::fromStdWString(binding.makeShortCutSz())});
    m_currentKeys->setRows(std::move(rows));
}

int CShortCutDlg::selectedCommand() const
{
    const QTreeWidgetItem* item = m_tree->currentItem();
    return item && item->isSelected() ? helper::commandNumberOf(item) : 0;
}

int CShortCutDlg::rowNumber(int row) const
{
    return m_allKeys->getCellText(row, shortcut::ColumnNumber).toInt();
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
    m_owner->setText(owner ? shortcut::ownerText(commandName(*owner)) : QString());
}

void CShortCutDlg::refreshButtons()
{
    const SKeyStroke& key = m_edit->captured();
    const auto states =
        shortcut::buttonStates(selectedCommand(), key, m_setting.findByShortCut(key.flags, key.key),
                               m_allKeys->getSelectedRow() >= 0);
    GetDlgItem(IDC_ASSIGN)->setEnabled(states.assignEnabled);
    GetDlgItem(IDC_DELETE)->setEnabled(states.deleteEnabled);
}

void CShortCutDlg::update(kesto::Subject* subject, int event, void* /*data*/)
{
    if (subject != m_edit || event != CShortCutEdit::EVENT_CAPTURE_CHANGED)
        return;
    guardHandler(kClass, "OnChangeShortCut", [&] {
        refreshOwner();
        refreshButtons();
    });
}

void CShortCutDlg::OnTvnSelchangedTree()
{
    if (m_following)
        return;
    guardHandler(kClass, "OnTvnSelchangedTree", [&] {
        const int number = selectedCommand();
        selectAllKeysRow(
            number > 0 ? m_allKeys->findRow(shortcut::ColumnNumber, QString::number(number)) : -1);
        fillCurrentKeys(number);
        const SKeyStroke& key = m_edit->captured();
        if (key.key != 0
            && m_allKeys->findRow(shortcut::ColumnKey,
                                  utility::keys::keyStrokeText(key.flags, key.key))
                   >= 0)
            m_edit->clearCapture();
        refreshButtons();
    });
}

void CShortCutDlg::OnLvnItemchangedAllKeys()
{
    if (m_following)
        return;
    guardHandler(kClass, "OnLvnItemchangedAllKeys", [&] {
        followSelectedRow();
        refreshButtons();
    });
}

void CShortCutDlg::OnBnClickedAssign()
{
    guardHandler(kClass, "OnBnClickedAssign", [&] {
        const int number = selectedCommand();
        const SKeyStroke key = m_edit->captured();
        const utility::SCommand* command = m_commands ? m_commands->findCommand(number) : nullptr;
        if (!command || key.key == 0)
            return;
        const QString keyText = utility::keys::keyStrokeText(key.flags, key.key);
        FollowGuard guard(m_following);
        if (m_setting.deleteItem(key.flags, key.key))
            m_allKeys->removeRow(m_allKeys->findRow(shortcut::ColumnKey, keyText));
        m_setting.addItem(key.flags, key.key, number, command->id.c_str(), command->name.c_str());
        m_allKeys->insertRow(
            0, control::SListRow(
                   shortcut::rowTexts(QString::fromStdWString(command->name), key, number),
                   static_cast<std::uint64_t>(number)));
        selectAllKeysRow(0);
        followSelectedRow();
        m_edit->clearCapture();
    });
}

void CShortCutDlg::OnBnClickedDelete()
{
    guardHandler(kClass, "OnBnClickedDelete", [&] {
        const int row = m_allKeys->getSelectedRow();
        if (row < 0)
            return;
        const QString keyText = m_allKeys->getCellText(row, shortcut::ColumnKey);
        {
            FollowGuard guard(m_following);
            m_allKeys->removeRow(row);
            m_setting.deleteItem(keyText.toStdWString().c_str());
            selectAllKeysRow(std::min(row, m_allKeys->getRowCount() - 1));
            followSelectedRow();
        }
        m_edit->clearCapture();
    });
}

void CShortCutDlg::OnBnClickedReset()
{
    guardHandler(kClass, "OnBnClickedReset", [&] {
        m_setting = m_resetSetting;
        {
            FollowGuard guard(m_following);
            m_allKeys->removeAllRows();
            m_currentKeys->removeAllRows();
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
