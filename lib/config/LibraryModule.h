#pragma once

#include "KsSystemConfigDlgExport.h"
#include "framework/Resources.h"

namespace kesto::ui::config {

// The library's own resource module (string table, dialog layouts and their translations),
// registered with the host's resource chain when the library loads; the host's language
// decides which translation is installed. Entry functions make it current while their dialog
// runs.
KSCONFIGDLG_EXPORT framework::ResourceHandle libraryResourceHandle();

} // namespace kesto::ui::config
