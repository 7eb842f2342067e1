#pragma once

#include "element/ILayerFlagView.h"
#include "view/IView.h"

#include <QString>

#include <vector>

class CMemoryDataBase;
class KsCrossSectionView;
class KsViewPort;

namespace kesto::workbench {

// The workbench's view of the drawing: nothing is drawn, each redraw is counted and logged.
class CWorkbenchView : public IView {
public:
    void redraw() override;
    int redrawCount() const { return m_redraws; }

private:
    int m_redraws = 0;
};

// The views kept with a drawing, in the order they were made.
std::vector<KsViewPort*> viewPortsOf(const CMemoryDataBase& db);
std::vector<KsCrossSectionView*> crossSectionViewsOf(const CMemoryDataBase& db);
// Gives a drawing without views two viewports and two cross-section views to work on.
void addStarterViews(CMemoryDataBase& db);

// The flags the views share, 3 ("keep") where they differ.
element::LayerFlagMap commonFlags(const std::vector<const element::ILayerFlagView*>& views);
// "ビューポート1: 非表示 2, 表示 1"
QString describeView(const element::ILayerFlagView& view);

struct SLayerDialogOutcome {
    bool applied = false;
    QString message; // what happened, for the status bar
};

// Each runs its layer dialog on the drawing and keeps the result with the views: a new view is
// added with the chosen flags; edited views get the result merged into their own flags.
SLayerDialogOutcome createViewPort(CMemoryDataBase& db, IView& view);
SLayerDialogOutcome editViewPorts(CMemoryDataBase& db, IView& view,
                                  const std::vector<KsViewPort*>& viewports);
SLayerDialogOutcome createCrossSectionView(CMemoryDataBase& db, IView& view);
SLayerDialogOutcome editCrossSectionViews(CMemoryDataBase& db, IView& view,
                                          const std::vector<KsCrossSectionView*>& views);

} // namespace kesto::workbench
