#pragma once

#include "config/ModalProtocol.h"
#include "observer/Subject.h"
#include "setting/LineWidthSetting.h"
#include "types/KsLineWidth.h"

#include <array>
#include <vector>

class IDataBase;
class QComboBox;
class QStandardItemModel;
class QTabBar;

namespace kesto::ui::control {
class CKsListCtrl;
}

namespace kesto::ui::config {

// "線幅の設定": the system's line widths and, with a drawing, the drawing's own ("LWIDTH"),
// and which widths count as thin, bold and extra bold.
class CLineWidthDlg : public TSettingDialog<setting::CLineWidthSetting>, public kesto::IObserver {
    Q_OBJECT

public:
    enum ETab { TabSystem = 0, TabDrawing = 1 };

    CLineWidthDlg();
    ~CLineWidthDlg() override;

    // The drawing whose line widths the second tab edits; null for none.
    void setDataBase(IDataBase* db) { m_db = db; }

    void update(kesto::Subject* subject, int event, void* data) override;

protected:
    bool OnInitDialog() override;
    void OnOK() override;

private:
    // A drawing's line width: the element, the value edited here, and whether it changed.
    struct SDrawingWidth {
        KsLineWidth* element;
        KsLineWidth value;
        bool edited;
    };

    void loadDrawingWidths();
    void setupList();
    void fillList();
    void refreshButtons();
    void refreshChoiceCombos();
    bool onDrawingTab() const;
    int selectedSystemRow() const;
    void addNewEntry(int at);
    void moveSelected(int offset);
    void writeDrawing();

    void OnTcnSelchangeTab();
    void OnBnClickedAdd();
    void OnBnClickedInsert();
    void OnBnClickedDelete();
    void OnBnClickedMoveUp();
    void OnBnClickedMoveDown();
    void OnBnClickedReset();
    void OnBnClickedRegister();
    void OnBnClickedHelp();
    void OnCbnSelchangeChoice(int choice, int index);
    void onCellChanged(int row, int column, const QString& text, QRgb color);
    void onSystemCellChanged(int row, int column, const QString& text, QRgb color);
    void onDrawingCellChanged(int row, int column, const QString& text, QRgb color);
    void refuseWidth(int row);

    IDataBase* m_db = nullptr;
    std::vector<setting::SLineWidth> m_widths;
    std::vector<SDrawingWidth> m_drawingWidths;
    std::array<setting::SLineWidth, 3> m_choices; // thin, bold, extra bold

    QTabBar* m_tab = nullptr;
    control::CKsListCtrl* m_list = nullptr;
    std::array<QComboBox*, 3> m_choiceCombos{};
    QStandardItemModel* m_choiceModel = nullptr;
};

} // namespace kesto::ui::config
