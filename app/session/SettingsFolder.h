#pragma once

#include <QString>

#include <functional>

namespace kesto::workbench {

// Asks the user for another settings folder (told the one that failed); empty when they give up.
using FolderChooser = std::function<QString(const QString& failed)>;

// Creates the settings folder when it is missing and returns it. When it cannot be created, a
// window says which folder and why and, with a chooser, offers to choose another one (asked
// again while the choice fails too). Empty when there is no folder to use; problem then says why.
QString settleSettingsFolder(const QString& folder, const FolderChooser& choose, QString* problem);

// The folder dialog of the workbench.
QString chooseSettingsFolder(const QString& failed);

} // namespace kesto::workbench
