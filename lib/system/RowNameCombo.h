#pragma once

#include <QString>

class QComboBox;

namespace kesto::ui::control {
class CKsListCtrl;
struct SListRow;
} // namespace kesto::ui::control

namespace kesto::ui::config {

// A combo box offering the names of a list's rows ("名称" of "新規図面初期値"). Each item
// carries its row's data key, so the chosen row stays chosen while rows are renamed, added,
// removed or moved; a removed row leaves the combo box without a choice.
void fillRowNameCombo(QComboBox& combo, const control::CKsListCtrl& list, int nameColumn);
// Chooses the first row of that name; no choice when no row has it.
void selectRowName(QComboBox& combo, const QString& name);

// Inserts a row before at (appends when at is the row count), selects it and refreshes the
// names.
void insertNamedRow(control::CKsListCtrl& list, QComboBox& names, int nameColumn, int at,
                    control::SListRow row);
// Removes the selected row, selects the next and refreshes the names; false without a selection.
bool removeSelectedNamedRow(control::CKsListCtrl& list, QComboBox& names, int nameColumn);

} // namespace kesto::ui::config
