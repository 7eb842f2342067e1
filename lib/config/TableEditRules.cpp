#include "config/TableEditRules.h"

namespace kesto::ui::config::tableedit {

SButtonStates buttonStates(int rowCount, int selected, bool editable,
                           const std::function<bool(int row)>& fixed)
{
    SButtonStates s;
    s.add = editable;
    if (!editable || selected < 0 || selected >= rowCount)
        return s;
    auto isFixed = [&](int row) { return fixed && fixed(row); };
    if (isFixed(selected))
        return s;
    s.insert = s.remove = true;
    s.up = selected > 0 && !isFixed(selected - 1);
    s.down = selected < rowCount - 1 && !isFixed(selected + 1);
    return s;
}

} // namespace kesto::ui::config::tableedit
