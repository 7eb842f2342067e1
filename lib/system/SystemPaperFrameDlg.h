#pragma once

#include "config/ModalProtocol.h"
#include "control/ListTypes.h"
#include "observer/Subject.h"
#include "setting/SystemPaperFrameSetting.h"

#include <array>
#include <cstdint>
#include <unordered_map>
#include <vector>

class QComboBox;

namespace kesto::ui::control {
class CKsListCtrl;
class CSystemColorComboBox;
class CSystemLineTypeComboBox;
class SelectLineWidthComboBox;
} // namespace kesto::ui::control

namespace kesto::ui::config {

class CPaperFrameDiagram;

// "図面枠の設定": the system's drawing frames, how their three lines are drawn and the frame
// new drawings start with.
class CSystemPaperFrameDlg : public TSettingDialog<setting::CSystemPaperFrameSetting>,
                             public kesto::IObserver {
    Q_OBJECT

public:
    CSystemPaperFrameDlg();
    ~CSystemPaperFrameDlg() override;

    void update(kesto::Subject* subject, int event, void* data) override;

protected:
    bool OnInitDialog() override;
    void OnOK() override;

private:
    // The colour, line type and line width combo boxes of one frame line.
    struct SLookControls {
        control::CSystemColorComboBox* color = nullptr;
        control::CSystemLineTypeComboBox* lineType = nullptr;
        control::SelectLineWidthComboBox* lineWidth = nullptr;
    };

    bool findControls();
    void setupList();
    void setupLookControls();
    void fillList();
    void fillLookControls();
    void storeLookControls();
    void refreshButtons();
    void refreshPicture();
    control::SListRow newRow(const setting::SPaperFrame& frame);
    void addNewFrame(int at);
    bool reportProblem();

    void OnBnClickedAdd();
    void OnBnClickedInsert();
    void OnBnClickedDelete();
    void OnBnClickedReset();
    void OnBnClickedHelp();
    void onCellChanged(int row, int column, const QString& text);
    void onDimensionChanged(int row, int dimension, const QString& text);

    control::CKsListCtrl* m_list = nullptr;
    QComboBox* m_initName = nullptr;
    CPaperFrameDiagram* m_picture = nullptr;
    std::array<SLookControls, setting::CSystemPaperFrameSetting::FrameLineCount> m_looks;
    QString m_yes;
    QString m_no;
    std::uint64_t m_nextRowKey = 1;
    // The dimensions each row last had, by row key: a refused entry shows them again.
    std::unordered_map<std::uint64_t, std::array<int, setting::SPaperFrame::kDimensionCount>>
        m_dimensions;
};

} // namespace kesto::ui::config
