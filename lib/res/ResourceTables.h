#pragma once

#include "framework/Resources.h"

#include <QDialog>

// Each subsystem adds its strings and layouts to the library module; false on a clash.
namespace kesto::ui::config::res {

bool registerCommonResources(framework::ResourceModule& module);
bool registerSystemResources(framework::ResourceModule& module);
bool registerCustomizeResources(framework::ResourceModule& module);
bool registerLayerResources(framework::ResourceModule& module);
bool registerHatchResources(framework::ResourceModule& module);
bool registerDrawResources(framework::ResourceModule& module);

// A layout made by uic: the controls are children of the dialog, the Ui object is not kept.
template <class Ui>
void buildLayout(QDialog* dialog)
{
    Ui ui;
    ui.setupUi(dialog);
}

} // namespace kesto::ui::config::res
