#pragma once

#include "customize/MousePage.h"
#include "framework/DialogBinding.h"

class QComboBox;

namespace kesto::ui::config {

// The two-dimensional view's both-buttons page: run the command of the release corner,
// scroll, or nothing.
class CRLBtnPage : public CMousePage {
    Q_OBJECT

public:
    explicit CRLBtnPage(QWidget* parent);

    void setCommands(const utility::CCommandTable* commands,
                     const setting::SMouseCommands* candidates) override;
    void loadFrom(const setting::SMouseSetting& view) override;
    void storeTo(setting::SMouseSetting& view) const override;

private:
    QComboBox* corner(std::size_t index) const;
    void refreshEnabled();

    std::vector<mouserules::SCandidate> m_candidates;
    framework::TDialogBinding<mouserules::SBothButtonsControls> m_binding;
};

} // namespace kesto::ui::config
