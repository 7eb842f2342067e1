#include "framework/DialogBinding.h"

#include "framework/MessageBox.h"

#include <QAbstractItemView>
#include <QButtonGroup>

namespace kesto::ui::framework {

int checkedRadio(const std::vector<QAbstractButton*>& buttons)
{
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        if (buttons[i] && buttons[i]->isChecked())
            return static_cast<int>(i);
    }
    return -1;
}

// Exclusive buttons cannot all be unchecked one by one, so exclusivity is lifted meanwhile.
void checkRadio(const std::vector<QAbstractButton*>& buttons, int index)
{
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        QAbstractButton* b = buttons[i];
        if (!b)
            continue;
        const bool on = static_cast<int>(i) == index;
        const bool exclusive = b->autoExclusive();
        QButtonGroup* group = b->group();
        const bool groupExclusive = group && group->exclusive();
        b->setAutoExclusive(false);
        if (group)
            group->setExclusive(false);
        b->setChecked(on);
        b->setAutoExclusive(exclusive);
        if (group)
            group->setExclusive(groupExclusive);
    }
}

void reportInvalidField(QWidget* dialog, const SInvalidField& invalid)
{
    QWidget* control = invalid.control;
    const SFieldProblem& problem = invalid.problem;
    if (auto* view = qobject_cast<QAbstractItemView*>(control); view && problem.row >= 0) {
        const QModelIndex cell = view->model()->index(problem.row, std::max(problem.column, 0));
        view->selectionModel()->setCurrentIndex(
            cell, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        view->scrollTo(cell);
    }
    if (control)
        control->setFocus();
    MessageBox(dialog, problem.text, problem.caption, MB_OK | MB_ICONWARNING);
}

} // namespace kesto::ui::framework
