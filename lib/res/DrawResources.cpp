#include "res/DrawResource.h"
#include "res/ResourceTables.h"

#include "ui_2051.h"

namespace kesto::ui::config::res {

bool registerDrawResources(framework::ResourceModule& module)
{
    return module.addLayout(IDD_DRAW_COMMON, &buildLayout<Ui::Dlg2051>);
}

} // namespace kesto::ui::config::res
