#include "utility/ComboUtility.h"

#include <QComboBox>

namespace kesto::ui::utility {

int ComboSelectStringExact(QComboBox& combo, const QString& text)
{
    const int index = combo.findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (index >= 0)
        combo.setCurrentIndex(index);
    return index;
}

} // namespace kesto::ui::utility
