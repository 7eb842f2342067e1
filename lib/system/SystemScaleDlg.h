#pragma once

#include "config/ModalProtocol.h"
#include "observer/Subject.h"
#include "setting/SystemScaleSetting.h"

#include <vector>

class QPushButton;
class QTabBar;

namespace kesto::ui::control {
class CKsListCtrl;
}

namespace kesto::ui::config {

// "スケールの設定": the system scales, and the open drawing's scales from which one can be
// registered into the system list.
class CSystemScaleDlg : public TSettingDialog<setting::CSystemScaleSetting>,
                        public kesto::IObserver {
    Q_OBJECT

public:
    enum ETab { TabSystem = 0, TabDrawing = 1 };

    CSystemScaleDlg();
    ~CSystemScaleDlg() override;

    // In add mode an OK without "追加" ends as a cancel.
    void setAddMode(bool addMode) { m_addMode = addMode; }

    void update(kesto::Subject* subject, int event, void* data) override;

protected:
    bool OnInitDialog() override;
    void OnOK() override;

private:
    void setupList();
    void fillList();
    void refreshButtons();
    bool onDrawingTab() const;

    void OnTcnSelchangeTab();
    void OnBnClickedAdd();
    void OnBnClickedInsert();
    void OnBnClickedDelete();
    void OnBnClickedReset();
    void OnBnClickedRegister();
    void OnBnClickedHelp();
    void onCellChanged(int row, int column, const QString& text);

    bool m_addMode = false;
    bool m_added = false;
    std::vector<setting::SSystemScale> m_scales;
    std::vector<setting::SSystemScale> m_drawingScales;
    bool m_hasDrawing = false;

    QTabBar* m_tab = nullptr;
    control::CKsListCtrl* m_list = nullptr;
};

} // namespace kesto::ui::config
