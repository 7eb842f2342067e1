#pragma once

#include "customize/MousePage.h"
#include "framework/DialogBinding.h"

class QComboBox;

namespace kesto::ui::config {

// The two-dimensional view's wheel page: what turning, dragging and clicking the wheel do,
// alone or with Ctrl or Shift, and the step zoom.
class CWheelPage : public CMousePage {
    Q_OBJECT

public:
    explicit CWheelPage(QWidget* parent);

    void setCommands(const utility::CCommandTable* commands,
                     const setting::SMouseCommands* candidates) override;
    void loadFrom(const setting::SMouseSetting& view) override;
    void storeTo(setting::SMouseSetting& view) const override;

private:
    void bindControls();
    int comboIndex(int id) const;
    void setComboIndex(int id, int index);
    void refreshEnabled();
    void followDirection(int changedId, int otherId);

    std::vector<mouserules::SCandidate> m_candidates;
    framework::TDialogBinding<mouserules::SWheelControls> m_binding;
};

} // namespace kesto::ui::config
