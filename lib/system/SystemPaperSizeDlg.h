#pragma once

#include "config/ModalProtocol.h"
#include "config/TableEditor.h"
#include "setting/SystemPaperSizeSetting.h"

#include <memory>

class QComboBox;

namespace kesto::ui::config {

// "用紙サイズの設定": the system's paper sizes and the one new drawings start with.
class CSystemPaperSizeDlg : public TSettingDialog<setting::CSystemPaperSizeSetting> {
    Q_OBJECT

public:
    CSystemPaperSizeDlg();
    ~CSystemPaperSizeDlg() override;

protected:
    bool OnInitDialog() override;
    bool afterStore() override;
    void OnCancel() override;

private:
    void addColumns();
    void bindControls();
    void saveColumnWidths();
    void OnBnClickedReset();
    void OnBnClickedHelp();

    control::CKsListCtrl* m_list = nullptr;
    QComboBox* m_initName = nullptr;
    std::unique_ptr<TTableEditor<setting::SPaperSize>> m_table;
};

} // namespace kesto::ui::config
