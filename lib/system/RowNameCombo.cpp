#include "system/RowNameCombo.h"

#include "control/KsListCtrl.h"

#include <QComboBox>
#include <QSignalBlocker>

namespace kesto::ui::config {

void fillRowNameCombo(QComboBox& combo, const control::CKsListCtrl& list, int nameColumn)
{
    const QVariant chosen = combo.currentData();
    const QSignalBlocker blocker(&combo);
    combo.clear();
    for (int row = 0; row < list.getRowCount(); ++row)
        combo.addItem(list.getCellText(row, nameColumn),
                      QVariant::fromValue<qulonglong>(list.getRow(row).data));
    combo.setCurrentIndex(chosen.isValid() ? combo.findData(chosen) : -1);
}

void selectRowName(QComboBox& combo, const QString& name)
{
    const QSignalBlocker blocker(&combo);
    combo.setCurrentIndex(combo.findText(name, Qt::MatchExactly | Qt::MatchCaseSensitive));
}

void insertNamedRow(control::CKsListCtrl& list, QComboBox& names, int nameColumn, int at,
                    control::SListRow row)
{
    list.insertRow(at, std::move(row));
    list.selectRow(at);
    fillRowNameCombo(names, list, nameColumn);
}

bool removeSelectedNamedRow(control::CKsListCtrl& list, QComboBox& names, int nameColumn)
{
    if (!list.removeRowAndSelectNext(list.getSelectedRow()))
        return false;
    fillRowNameCombo(names, list, nameColumn);
    return true;
}

} // namespace kesto::ui::config
