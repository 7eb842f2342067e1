#pragma once

#include <functional>

// The one shape of editing a table of rows, free of widgets: which of "追加", "挿入", "削除",
// "上へ" and "下へ" can act. Fixed rows (a table's defaults) are never removed, moved or
// moved past, and nothing is inserted before them.
namespace kesto::ui::config::tableedit {

struct SButtonStates {
    bool add = false;
    bool insert = false;
    bool remove = false;
    bool up = false;
    bool down = false;

    bool operator==(const SButtonStates&) const = default;
};

// selected is -1 without a selection; editable is false where the table takes no edits (the
// drawing's tab); fixed may be empty (no fixed rows).
SButtonStates buttonStates(int rowCount, int selected, bool editable,
                           const std::function<bool(int row)>& fixed);

} // namespace kesto::ui::config::tableedit
