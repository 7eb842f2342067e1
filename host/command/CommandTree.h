#pragma once

#include "core/IMainFrame.h"

#include <Qt>

class QTreeWidget;
class QTreeWidgetItem;

namespace kesto::utility {
class CCommandTable;
}

namespace kesto::ui::helper {

// What a command tree is for; it decides which commands are offered.
enum ESCTMode {
    SCT_ALL = 0,      // every command
    SCT_MENU = 1,     // the menu bar
    SCT_TOOLBAR = 2,  // command panels and the ribbon
    SCT_SHORTCUT = 3, // shortcut keys: commands that take a key
};

// The item data role that carries a command's number (a group's number is 0 or less).
constexpr int kCommandNumberRole = Qt::UserRole;

// Fills the tree with the table's groups and, under each, the commands that exist in the frame
// mode and suit the mode. Groups left without a command are not shown.
void setupCommandTree(QTreeWidget& tree, const utility::CCommandTable* table, ESCTMode mode,
                      core::IMainFrame::EFrameMode frameMode);

// The number an item carries.
int commandNumberOf(const QTreeWidgetItem* item);

} // namespace kesto::ui::helper
