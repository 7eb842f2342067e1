#pragma once

#include "config/ModalProtocol.h"
#include "config/TableEditor.h"
#include "setting/SystemScaleSetting.h"

#include <memory>

class QTabBar;

namespace kesto::ui::config {

// "スケールの設定": the system scales, and the open drawing's scales from which one can be
// registered into the system list.
class CSystemScaleDlg : public TSettingDialog<setting::CSystemScaleSetting> {
    Q_OBJECT

public:
    enum ETab { TabSystem = 0, TabDrawing = 1 };

    CSystemScaleDlg();
    ~CSystemScaleDlg() override;

    // In add mode an OK without "追加" ends as a cancel.
    void setAddMode(bool addMode) { m_addMode = addMode; }

protected:
    bool OnInitDialog() override;
    void OnOK() override;

private:
    void addColumns(control::TRecordTableModel<setting::SSystemScale>& model, bool editable);
    void refreshButtons();
    bool onDrawingTab() const;

    void OnTcnSelchangeTab();
    void OnBnClickedReset();
    void OnBnClickedRegister();
    void OnBnClickedHelp();

    bool m_addMode = false;
    QTabBar* m_tab = nullptr;
    control::CKsListCtrl* m_list = nullptr;
    std::unique_ptr<TTableEditor<setting::SSystemScale>> m_table;
    control::TRecordTableModel<setting::SSystemScale>* m_drawingScales = nullptr;
};

} // namespace kesto::ui::config
