#pragma once

#include "framework/Resources.h"

// The workbench's own dialogs, in a resource module of their own on the host's resource chain.
namespace kesto::workbench {

enum WorkbenchTemplate : int {
    IDD_PICK_FIGURE = 60001, // "図面参照 - 要素の選択"
};

enum WorkbenchControl : int {
    IDC_PICK_LAYER = 60011, // which layer's figures are listed
    IDC_PICK_LIST = 60012,  // the figures
    IDC_PICK_COUNT = 60013, // how many are listed
};

// Registered on first use; kept for the life of the process.
ui::framework::ResourceHandle workbenchResourceHandle();

} // namespace kesto::workbench
