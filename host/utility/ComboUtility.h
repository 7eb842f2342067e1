#pragma once

#include <QString>

class QComboBox;

namespace kesto::ui::utility {

// Selects the entry whose text equals text exactly; -1 (and the selection unchanged) when
// there is none.
int ComboSelectStringExact(QComboBox& combo, const QString& text);

} // namespace kesto::ui::utility
