#pragma once

#include "config/ModalProtocol.h"
#include "config/TableEditor.h"
#include "setting/LineWidthSetting.h"
#include "system/LineWidthRules.h"

#include <array>
#include <memory>

class IDataBase;
class QComboBox;
class QStandardItemModel;
class QTabBar;

namespace kesto::ui::config {

// "線幅の設定": the system's line widths and, with a drawing, the drawing's own ("LWIDTH"),
// and which widths count as thin, bold and extra bold.
class CLineWidthDlg : public TSettingDialog<setting::CLineWidthSetting> {
    Q_OBJECT

public:
    enum ETab { TabSystem = 0, TabDrawing = 1 };

    CLineWidthDlg();
    ~CLineWidthDlg() override;

    // The drawing whose line widths the second tab edits; null for none.
    void setDataBase(IDataBase* db) { m_db = db; }

protected:
    bool OnInitDialog() override;
    bool afterStore() override;

private:
    using SDrawingWidth = linewidthrules::SDrawingWidth;

    bool findControls();
    void addSystemColumns();
    void addDrawingColumns();
    void bindControls();
    void setupChoiceCombos();
    void refreshButtons();
    void refreshChoiceCombos();
    bool onDrawingTab() const;
    void writeDrawing();

    void OnTcnSelchangeTab();
    void OnBnClickedReset();
    void OnBnClickedRegister();
    void OnBnClickedHelp();
    void OnCbnSelchangeChoice(int choice, int index);

    IDataBase* m_db = nullptr;
    std::array<setting::SLineWidth, 3> m_choices; // thin, bold, extra bold

    QTabBar* m_tab = nullptr;
    control::CKsListCtrl* m_list = nullptr;
    std::array<QComboBox*, 3> m_choiceCombos{};
    QStandardItemModel* m_choiceModel = nullptr;
    std::unique_ptr<TTableEditor<setting::SLineWidth>> m_table;
    control::TRecordTableModel<SDrawingWidth>* m_drawingWidths = nullptr;
};

} // namespace kesto::ui::config
