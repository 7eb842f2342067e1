#pragma once

#include "config/ModalProtocol.h"
#include "control/ListTypes.h"
#include "observer/Subject.h"
#include "setting/SystemPaperSizeSetting.h"

#include <cstdint>
#include <vector>

class QComboBox;

namespace kesto::ui::control {
class CKsListCtrl;
}

namespace kesto::ui::config {

// "用紙サイズの設定": the system's paper sizes and the one new drawings start with.
class CSystemPaperSizeDlg : public TSettingDialog<setting::CSystemPaperSizeSetting>,
                            public kesto::IObserver {
    Q_OBJECT

public:
    CSystemPaperSizeDlg();
    ~CSystemPaperSizeDlg() override;

    void update(kesto::Subject* subject, int event, void* data) override;

protected:
    bool OnInitDialog() override;
    void OnOK() override;
    void OnCancel() override;

private:
    void setupList();
    void fillList();
    void refreshButtons();
    control::SListRow newRow(const setting::SPaperSize& size);
    bool reportProblem();
    void saveColumnWidths();

    void OnBnClickedAdd();
    void OnBnClickedInsert();
    void OnBnClickedDelete();
    void OnBnClickedReset();
    void OnBnClickedHelp();
    void onCellChanged(int row, int column, const QString& text);

    control::CKsListCtrl* m_list = nullptr;
    QComboBox* m_initName = nullptr;
    std::uint64_t m_nextRowKey = 1;
};

} // namespace kesto::ui::config
