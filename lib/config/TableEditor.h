#pragma once

#include "config/TableEditRules.h"
#include "control/KsListCtrl.h"
#include "control/RecordTableModel.h"
#include "framework/KsDialog.h"

#include <QAbstractButton>

#include <functional>

namespace kesto::ui::config {

// The buttons of a table; 0 for a button the dialog does not have.
struct STableButtonIds {
    int add = 0;
    int insert = 0;
    int remove = 0;
    int up = 0;
    int down = 0;
};

// The one table-editing shape of the dialogs: a grid of records with "追加", "挿入", "削除",
// "上へ" and "下へ". It owns the rows (model()), keeps the buttons' states by the rules of
// tableedit::buttonStates, and tells the dialog after every change of rows or cells.
template <class Row>
class TTableEditor {
public:
    struct SRules {
        std::function<Row()> newRow;
        std::function<bool(const Row&)> fixed; // rows that stay where they are; none when empty
    };

    TTableEditor(framework::CKsDialog& dialog, control::CKsListCtrl& list, STableButtonIds ids,
                 SRules rules)
        : m_dialog(dialog)
        , m_list(list)
        , m_model(new control::TRecordTableModel<Row>(&list))
        , m_ids(ids)
        , m_rules(std::move(rules))
    {
        m_list.setTableModel(m_model);
        connectButton(ids.add, "OnBnClickedAdd", [this] { insertNew(m_model->rowCount()); });
        connectButton(ids.insert, "OnBnClickedInsert", [this] { insertNew(m_list.getSelectedRow()); });
        connectButton(ids.remove, "OnBnClickedDelete", [this] { removeSelected(); });
        connectButton(ids.up, "OnBnClickedMoveUp", [this] { moveSelected(-1); });
        connectButton(ids.down, "OnBnClickedMoveDown", [this] { moveSelected(+1); });
        QObject::connect(&m_list, &control::CKsListCtrl::selectedRowChanged, &m_dialog,
                         [this] { refresh(); });
        QObject::connect(&m_list, &control::CKsListCtrl::cellEdited, &m_dialog, [this] {
            if (m_list.tableModel() == m_model)
                changed();
        });
    }

    control::TRecordTableModel<Row>& model() { return *m_model; }
    const control::TRecordTableModel<Row>& model() const { return *m_model; }

    // Shows the editor's rows again after the list showed another model.
    void show() { m_list.setTableModel(m_model); }
    // Whether the rows take additions, removals and moves (not while the list shows another
    // model, such as a drawing's table).
    void setEditable(bool editable)
    {
        m_editable = editable;
        refresh();
    }
    void setChangedHandler(std::function<void()> handler) { m_onChanged = std::move(handler); }
    // Whether "追加" added a row since the rows were last set.
    bool hasAdded() const { return m_added; }
    void setRows(std::vector<Row> rows)
    {
        m_model->setRows(std::move(rows));
        m_list.clearSelection();
        m_added = false;
        changed();
    }

    tableedit::SButtonStates states() const
    {
        const bool shown = m_editable && m_list.tableModel() == m_model;
        const auto fixed = [this](int row) { return m_rules.fixed && m_rules.fixed(m_model->row(row)); };
        return tableedit::buttonStates(m_model->rowCount(), m_list.getSelectedRow(), shown, fixed);
    }
    void refresh()
    {
        const tableedit::SButtonStates s = states();
        const std::pair<int, bool> buttons[] = {
            {m_ids.add, s.add}, {m_ids.insert, s.insert}, {m_ids.remove, s.remove},
            {m_ids.up, s.up},   {m_ids.down, s.down}};
        for (const auto& [id, enabled] : buttons) {
            if (QWidget* button = id ? m_dialog.GetDlgItem(id) : nullptr)
                button->setEnabled(enabled);
        }
    }

private:
    template <class F>
    void connectButton(int id, const char* handler, F action)
    {
        auto* button = id ? m_dialog.dlgItem<QAbstractButton>(id) : nullptr;
        if (!button)
            return;
        QObject::connect(button, &QAbstractButton::clicked, &m_dialog, [this, handler, action] {
            framework::guardHandler(m_dialog.handlerClass(), QString::fromLatin1(handler), action);
        });
    }
    void insertNew(int at)
    {
        const tableedit::SButtonStates s = states();
        const bool append = at == m_model->rowCount();
        if (!(append ? s.add : s.insert) || at < 0 || !m_rules.newRow)
            return;
        m_list.selectRow(m_model->insertRecord(at, m_rules.newRow()));
        m_added = m_added || append;
        changed();
    }
    void removeSelected()
    {
        const int row = m_list.getSelectedRow();
        if (!states().remove || !m_model->removeRecord(row))
            return;
        if (m_model->rowCount() > 0)
            m_list.selectRow(std::min(row, m_model->rowCount() - 1));
        changed();
    }
    void moveSelected(int offset)
    {
        const int row = m_list.getSelectedRow();
        const tableedit::SButtonStates s = states();
        if (!(offset < 0 ? s.up : s.down) || !m_model->moveRecord(row, row + offset))
            return;
        m_list.selectRow(row + offset);
        changed();
    }
    void changed()
    {
        refresh();
        if (m_onChanged)
            m_onChanged();
    }

    framework::CKsDialog& m_dialog;
    control::CKsListCtrl& m_list;
    control::TRecordTableModel<Row>* m_model;
    STableButtonIds m_ids;
    SRules m_rules;
    std::function<void()> m_onChanged;
    bool m_editable = true;
    bool m_added = false;
};

} // namespace kesto::ui::config
