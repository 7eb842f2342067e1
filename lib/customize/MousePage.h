#pragma once

#include "customize/MouseRules.h"
#include "framework/KsDialog.h"
#include "tooltip/DlgToolTipManager.h"

namespace kesto::ui::config {

// A page of the mouse settings dialog: a layout of its own, embedded in the dialog's inner tab
// strip. It moves its view's fields between the record and its controls.
class CMousePage : public framework::CKsDialog {
    Q_OBJECT

public:
    CMousePage(int templateId, QWidget* parent);

    // The command table and the view's candidates (menu candidates for the right-button page,
    // action candidates for the others); before the first load.
    virtual void setCommands(const utility::CCommandTable* commands,
                             const setting::SMouseCommands* candidates);
    // Fields of the view between record and controls; pages whose choice the dialog maps
    // itself leave these alone.
    virtual void loadFrom(const setting::SMouseSetting& view);
    virtual void storeTo(setting::SMouseSetting& view) const;

protected:
    // Escape and Enter belong to the dialog, not to the page.
    void keyPressEvent(QKeyEvent* event) override;
    // The tool tip of a key for the control and for the label that names it.
    void addToolTip(int controlId, const QString& key);
    // Enables a control and the label that names it.
    void setControlEnabled(int controlId, bool enabled);

    tooltip::DlgToolTipManager m_toolTips;

private:
    QList<QWidget*> controlWithLabels(int controlId) const;
};

} // namespace kesto::ui::config
