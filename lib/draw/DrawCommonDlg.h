#pragma once

#include "config/DialogData.h"
#include "config/ModalProtocol.h"
#include "draw/DrawCommonRules.h"
#include "setting/DrawCommonSetting.h"
#include "setting/SystemColorSetting.h"
#include "tooltip/DlgToolTipManager.h"

#include <array>

class QCheckBox;
class QComboBox;
class QPushButton;

namespace kesto::ui::control {
class CArrowComboBox;
class CSystemColorComboBox;
class CSystemLineTypeComboBox;
class SelectLineWidthComboBox;
} // namespace kesto::ui::control

namespace kesto::ui::config {

// "共通設定": what every new drawing element takes (coordinate system, scale and layer to draw
// on, colour, line type, line width, line ends, virtual element). "図面参照" ends the dialog so
// that the host can let the user pick an element and open it again with what was picked.
class CDrawCommonDlg : public TSettingDialog<setting::CDrawCommonSetting> {
    Q_OBJECT

public:
    CDrawCommonDlg();

    // The caller's record (may be null): the three names, the request code and the flag that
    // allows "図面参照".
    void setDlgData(SDrawCommonDlgData* data) { m_data = data; }
    SDrawCommonDlgData* getDlgData() const { return m_data; }

protected:
    bool OnInitDialog() override;
    bool afterStore() override;
    void OnCancel() override;

private:
    bool findControls();
    void setupNameLists();
    void setupLookControls();
    void setupLineEnds();
    void bindControls();
    void bindLooks();
    void registerToolTips();

    void OnBnClickedReference();
    void OnBnClickedHelp();

    SDrawCommonDlgData* m_data = nullptr;
    framework::TDialogBinding<SDrawCommonDlgData> m_dataBinding;
    // The host's custom colours while the dialog is open; written back on OK.
    setting::CColorSetting m_colorSetting;
    tooltip::DlgToolTipManager m_toolTips;

    std::array<QComboBox*, drawcommonrules::ListCount> m_lists{};
    control::CSystemColorComboBox* m_color = nullptr;
    control::CSystemLineTypeComboBox* m_lineType = nullptr;
    control::SelectLineWidthComboBox* m_lineWidth = nullptr;
    control::CArrowComboBox* m_startLineEnd = nullptr;
    control::CArrowComboBox* m_endLineEnd = nullptr;
    QCheckBox* m_virtual = nullptr;
    QPushButton* m_reference = nullptr;
};

} // namespace kesto::ui::config
