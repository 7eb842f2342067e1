#include "refdlg/RefDlgData.h"

namespace kesto::ui::refDlg {

void SRefDlgData::clear()
{
    requestCode = RequestNone;
    referenceEnabled = false;
    pickedElement.reset();
}

} // namespace kesto::ui::refDlg
