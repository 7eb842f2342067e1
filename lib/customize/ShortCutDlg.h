#pragma once

#include "config/ModalProtocol.h"
#include "core/IMainFrame.h"
#include "observer/Subject.h"
#include "setting/ShortCutSetting.h"

#include <QHash>

class QLabel;
class QTreeWidget;
class QTreeWidgetItem;

namespace kesto::utility {
class CCommandTable;
}

namespace kesto::ui::control {
class CKsListCtrl;
template <class Row>
class TRecordTableModel;
} // namespace kesto::ui::control

namespace kesto::ui::config {

class CShortCutEdit;

// "ショートカットキーの設定": binds keys to the commands of the command tree. Every change goes
// into the working copy at once; a key belongs to one command, the newest assignment wins.
class CShortCutDlg : public TSettingDialog<setting::CShortCutSetting>, public kesto::IObserver {
    Q_OBJECT

public:
    CShortCutDlg();
    ~CShortCutDlg() override;

    void setCommandTable(const utility::CCommandTable* commands) { m_commands = commands; }
    void setFrameMode(core::IMainFrame::EFrameMode mode) { m_frameMode = mode; }

    void update(kesto::Subject* subject, int event, void* data) override;

protected:
    bool OnInitDialog() override;

private:
    void setupLists();
    void indexTree();
    void fillAllKeys();
    void fillCurrentKeys(int commandNumber);
    void selectTreeItem(int commandNumber);
    void selectAllKeysRow(int row);
    void followSelectedRow();
    int selectedCommand() const;
    int rowNumber(int row) const;
    int rowOfNumber(int commandNumber) const;
    int rowOfKey(const setting::SShortCut& key) const;
    QString commandName(const setting::SShortCut& binding) const;
    void refreshOwner();
    void refreshButtons();

    void OnChangeShortCut();
    void OnTvnSelchangedTree();
    void OnLvnItemchangedAllKeys();
    void OnBnClickedAssign();
    void OnBnClickedDelete();
    void OnBnClickedReset();
    void OnBnClickedHelp();

    const utility::CCommandTable* m_commands = nullptr;
    core::IMainFrame::EFrameMode m_frameMode = core::IMainFrame::FrameMode2D;
    QHash<int, QTreeWidgetItem*> m_treeItems;
    bool m_following = false;

    QTreeWidget* m_tree = nullptr;
    CShortCutEdit* m_edit = nullptr;
    control::CKsListCtrl* m_currentKeys = nullptr;
    control::CKsListCtrl* m_allKeys = nullptr;
    control::TRecordTableModel<setting::SShortCut>* m_allRows = nullptr;
    control::TRecordTableModel<setting::SShortCut>* m_currentRows = nullptr;
    QLabel* m_owner = nullptr;
};

} // namespace kesto::ui::config
