#pragma once

#include <QString>

class QComboBox;

namespace kesto::ui::control {
class CKsTableModel;
}

namespace kesto::ui::config {

// A combo box offering the names of a table's rows ("名称" of "新規図面初期値"). Each item
// carries its row's key, so the chosen row stays chosen while rows are renamed, added,
// removed or moved; a removed row leaves the combo box without a choice.
void fillRowNameCombo(QComboBox& combo, const control::CKsTableModel& rows, int nameColumn);
// Chooses the first row of that name; no choice when no row has it.
void selectRowName(QComboBox& combo, const QString& name);

} // namespace kesto::ui::config
