#pragma once

#include "KsSystemConfigDlgExport.h"
#include "element/ILayerFlagView.h"
#include "framework/KsDialog.h"
#include "observer/Subject.h"

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

class IDataBase;
class IView;

namespace kesto::ui::config {

// The one design of the layer show/hide and reference dialogs: a list of the drawing's layers
// with a flag per layer, previewed live in the host's view and undone when the dialog closes.
class KSCONFIGDLG_EXPORT CEditLayersDlgBase : public framework::CKsDialog, public kesto::IObserver {
    Q_OBJECT

public:
    ~CEditLayersDlgBase() override;

    // For a new view (mode 1).
    bool setup(IDataBase* db, IView* view, const std::map<std::wstring, char>& flags);
    bool isForCreate() const;

    // Merges the result into flags; true when an entry was written.
    bool modifyLayerFlgs(std::map<std::wstring, char>& flags) const;
    // The result as (layer name, flag) in list order.
    void getLayerFlgArray(std::vector<std::pair<std::wstring, char>>& out) const;
    // Previews every row's flag.
    void updateLayers();

    void update(kesto::Subject* subject, int event, void* data) override;
    QString handlerClass() const override;

protected:
    enum EKind { ViewPorts, CrossSectionViews };

    explicit CEditLayersDlgBase(EKind kind);
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
    class Private;

    void setupList();
    bool updateByRowChange(int row);
    void widenToShowColumns();
    void changeComboboxInSelectedRow(const QString& text);
    void restoreColumnWidths();
    void saveColumnWidths();
    int dialogUnits(int units) const;

    std::unique_ptr<Private> d;
};

} // namespace kesto::ui::config
