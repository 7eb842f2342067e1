#pragma once

#include "KsSystemConfigDlgExport.h"
#include "framework/KsDialog.h"
#include "layer/LayerFlagRules.h"
#include "observer/Subject.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

class IDataBase;
class IView;

namespace kesto::ui::control {
class CKsListCtrl;
struct SListRow;
} // namespace kesto::ui::control

namespace kesto::ui::config {

// What tells the viewport and the cross-section dialog apart.
struct SLayerFlagsDlgProfile {
    int templateId;
    const char* className; // in log lines, and the key of the saved placement
    int flagColumnTitle;   // string ids
    int onText;
    int offText;
};

// The one design of the layer show/hide and reference dialogs: a list of the drawing's layers
// with a flag per layer, previewed live in the host's view and undone when the dialog closes.
class KSCONFIGDLG_EXPORT CEditLayersDlgBase : public framework::CKsDialog, public kesto::IObserver {
    Q_OBJECT

public:
    ~CEditLayersDlgBase() override;

    // For a new view (mode 1).
    bool setup(IDataBase* db, IView* view, const std::map<std::wstring, char>& flags);
    bool isForCreate() const { return m_editor.isCreateMode(); }

    // Merges the result into flags; true when an entry was written.
    bool modifyLayerFlgs(std::map<std::wstring, char>& flags) const;
    // The result as (layer name, flag) in list order.
    void getLayerFlgArray(std::vector<std::pair<std::wstring, char>>& out) const;
    // Previews every row's flag.
    void updateLayers();

    void update(kesto::Subject* subject, int event, void* data) override;

protected:
    explicit CEditLayersDlgBase(const SLayerFlagsDlgProfile& profile);
    bool setupViews(IDataBase* db, IView* view, const std::map<std::wstring, char>& flags,
                    std::vector<const element::ILayerFlagView*> views);

    bool OnInitDialog() override;
    void OnOK() override;
    void OnCancel() override;
    void OnDestroy();
    void done(int result) override;
    void resizeEvent(QResizeEvent* event) override;

    void OnBnClickedDisp();
    void OnBnClickedUnDisp();
    void OnBnClickedIgnore();
    void OnBnClickedKeep();

private:
    void setupList();
    void addColumns();
    void widenToShowColumns();
    control::SListRow makeRow(std::size_t index) const;
    bool updateByRowChange(const QString& text, const control::SListRow& row);
    void changeComboboxInSelectedRow(const QString& text);
    void restoreColumnWidths();
    void saveColumnWidths();
    int dialogUnits(int units) const;
    template <class F>
    decltype(auto) guard(const char* method, F&& handler);

    SLayerFlagsDlgProfile m_profile;
    layerflags::CLayerFlagEditor m_editor;
    layerflags::SFlagTexts m_flagTexts;
    QString m_figureMark;
    QString m_noFigureMark;
    QString m_trueMark;
    QString m_falseMark;
    control::CKsListCtrl* m_list = nullptr;
    bool m_destroyed = false;
};

} // namespace kesto::ui::config
