#pragma once

namespace kesto::ui::framework {

// Dialog results and the ids of the standard buttons.
enum EDialogResult : int {
    IDFAILED = -1,
    IDOK = 1,
    IDCANCEL = 2,
    IDABORT = 3,
    IDRETRY = 4,
    IDIGNORE = 5,
    IDYES = 6,
    IDNO = 7,
};

} // namespace kesto::ui::framework
