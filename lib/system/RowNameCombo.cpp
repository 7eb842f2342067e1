#include "system/RowNameCombo.h"

#include "control/KsTableModel.h"

#include <QComboBox>
#include <QSignalBlocker>

namespace kesto::ui::config {

void fillRowNameCombo(QComboBox& combo, const control::CKsTableModel& rows, int nameColumn)
{
    const QVariant chosen = combo.currentData();
    const QSignalBlocker blocker(&combo);
    combo.clear();
    for (int row = 0; row < rows.rowCount(); ++row)
        combo.addItem(rows.cellText(row, nameColumn),
                      QVariant::fromValue<qulonglong>(rows.rowKey(row)));
    combo.setCurrentIndex(chosen.isValid() ? combo.findData(chosen) : -1);
}

void selectRowName(QComboBox& combo, const QString& name)
{
    const QSignalBlocker blocker(&combo);
    combo.setCurrentIndex(combo.findText(name, Qt::MatchExactly | Qt::MatchCaseSensitive));
}

} // namespace kesto::ui::config
