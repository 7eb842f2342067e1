#pragma once

#include "framework/KsDialog.h"

class IDataBase;
class KsFigure;
class QComboBox;
class QLabel;
class QTableView;

namespace kesto::workbench {

class CFigureListModel;

// "図面参照 - 要素の選択": the drawing's figures with their layer, colour, line type and width;
// the user picks one (OK, Enter or a double click); the first row is chosen when it opens. Only
// one layer's figures when a layer is chosen.
class CFigurePickDlg : public ui::framework::CKsDialog {
    Q_OBJECT

public:
    explicit CFigurePickDlg(const IDataBase& drawing);
    ~CFigurePickDlg() override;

    // Runs the dialog on the workbench's resources; the picked figure, or null on Cancel.
    static const KsFigure* pick(const IDataBase& drawing);

    const KsFigure* pickedFigure() const { return m_picked; }
    CFigureListModel* model() const { return m_model; }

protected:
    bool OnInitDialog() override;
    void OnOK() override;

private:
    void fillLayers();
    void showCount();
    void chooseFirstRow();
    void refreshOk();
    const KsFigure* selectedFigure() const;

    const IDataBase& m_drawing;
    CFigureListModel* m_model = nullptr;
    const KsFigure* m_picked = nullptr;
    QComboBox* m_layer = nullptr;
    QTableView* m_list = nullptr;
    QLabel* m_count = nullptr;
};

} // namespace kesto::workbench
