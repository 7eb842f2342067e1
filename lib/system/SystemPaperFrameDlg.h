#pragma once

#include "config/ModalProtocol.h"
#include "config/TableEditor.h"
#include "setting/SystemPaperFrameSetting.h"

#include <memory>

class QComboBox;

namespace kesto::ui::config {

class CPaperFrameDiagram;

// "図面枠の設定": the system's drawing frames, how their three lines are drawn and the frame
// new drawings start with.
class CSystemPaperFrameDlg : public TSettingDialog<setting::CSystemPaperFrameSetting> {
    Q_OBJECT

public:
    CSystemPaperFrameDlg();
    ~CSystemPaperFrameDlg() override;

protected:
    bool OnInitDialog() override;

private:
    void addColumns();
    void setupLookControls();
    void bindControls();
    void bindLineLook(setting::CSystemPaperFrameSetting::EFrameLine line, const int ids[3]);
    void refreshPicture();
    void OnBnClickedReset();
    void OnBnClickedHelp();

    control::CKsListCtrl* m_list = nullptr;
    QComboBox* m_initName = nullptr;
    CPaperFrameDiagram* m_picture = nullptr;
    std::unique_ptr<TTableEditor<setting::SPaperFrame>> m_table;
};

} // namespace kesto::ui::config
