#pragma once

#include "customize/MousePage.h"

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
    mouse::SBothButtonsControls controls() const;
    QComboBox* corner(std::size_t index) const;
    void refreshEnabled();

    std::vector<mouse::SCandidate> m_candidates;
};

} // namespace kesto::ui::config
