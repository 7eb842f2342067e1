#include "system/TableTabs.h"

#include "framework/Resources.h"
#include "res/CommonResource.h"

#include <QTabBar>

namespace kesto::ui::config {

void setupTableTabs(QTabBar& tab, bool withDrawing)
{
    tab.setExpanding(false);
    tab.addTab(framework::loadString(res::IDS_TAB_SYSTEM));
    if (withDrawing)
        tab.addTab(framework::loadString(res::IDS_TAB_DRAWING));
}

} // namespace kesto::ui::config
