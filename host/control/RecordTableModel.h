#pragma once

#include "control/KsTableModel.h"
#include "utility/NumberFormat.h"

#include <functional>
#include <utility>
#include <vector>

namespace kesto::ui::control {

// A column over rows of type Row: how a cell shows its row and how an edit changes it. The
// read functions return whether the row changed; a column without them is read-only.
template <class Row>
struct TTableColumn {
    SListColumn look;
    std::function<QString(const Row&)> text;
    std::function<bool(Row&, const QString&)> read;
    std::function<QRgb(const Row&)> color;
    std::function<bool(Row&, QRgb)> readColor;
    std::function<QVariant(const Row&)> value;
    std::function<bool(Row&, const QVariant&)> readValue;
    std::function<bool(const Row&)> editable; // per row; none: every row
};

// Rows that are records: the grid shows them through their columns and every edit is read
// once, by the column, into the record. Rows keep a key of their own across moves.
template <class Row>
class TRecordTableModel : public CKsTableModel {
public:
    using Column = TTableColumn<Row>;

    explicit TRecordTableModel(QObject* parent = nullptr)
        : CKsTableModel(parent)
    {}

    int addColumn(Column column)
    {
        m_columns.push_back(std::move(column));
        return CKsTableModel::addColumn(m_columns.back().look);
    }

    int rowCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
    }
    const std::vector<Row>& rows() const { return m_rows; }
    const Row& row(int index) const { return m_rows[static_cast<std::size_t>(index)]; }
    std::uint64_t rowKey(int index) const override
    {
        return m_keys[static_cast<std::size_t>(index)];
    }

    void setRows(std::vector<Row> rows)
    {
        beginResetModel();
        m_rows = std::move(rows);
        m_keys.resize(m_rows.size());
        for (std::uint64_t& key : m_keys)
            key = m_nextKey++;
        endResetModel();
    }
    // Before row at (at the end when at is the row count); returns where it went.
    int insertRecord(int at, Row row)
    {
        at = std::clamp(at, 0, rowCount());
        beginInsertRows({}, at, at);
        m_rows.insert(m_rows.begin() + at, std::move(row));
        m_keys.insert(m_keys.begin() + at, m_nextKey++);
        endInsertRows();
        return at;
    }
    bool removeRecord(int at)
    {
        if (!isValidRow(at))
            return false;
        beginRemoveRows({}, at, at);
        m_rows.erase(m_rows.begin() + at);
        m_keys.erase(m_keys.begin() + at);
        endRemoveRows();
        return true;
    }
    bool moveRecord(int from, int to)
    {
        if (!isValidRow(from) || !isValidRow(to) || from == to)
            return false;
        beginMoveRows({}, from, from, {}, to > from ? to + 1 : to);
        moveWithin(m_rows, from, to);
        moveWithin(m_keys, from, to);
        endMoveRows();
        return true;
    }
    // Changes a row in place and repaints it.
    template <class F>
    void modify(int at, F&& change)
    {
        if (!isValidRow(at))
            return;
        std::forward<F>(change)(m_rows[static_cast<std::size_t>(at)]);
        rowsChanged(at, at);
    }
    // Changes every row in place (without resetting the view) and repaints them.
    template <class F>
    void modifyAll(F&& change)
    {
        for (Row& r : m_rows)
            change(r);
        rowsChanged(0, rowCount() - 1);
    }

    QString cellText(int r, int c) const override
    {
        const Column& col = m_columns[static_cast<std::size_t>(c)];
        return isValidCell(r, c) && col.text ? col.text(row(r)) : QString();
    }
    QRgb cellColor(int r, int c) const override
    {
        const Column& col = m_columns[static_cast<std::size_t>(c)];
        return isValidCell(r, c) && col.color ? col.color(row(r)) : 0;
    }
    QVariant cellValue(int r, int c) const override
    {
        const Column& col = m_columns[static_cast<std::size_t>(c)];
        return isValidCell(r, c) && col.value ? col.value(row(r)) : QVariant(cellText(r, c));
    }

protected:
    bool rowCellEditable(int r, int c) const override
    {
        const Column& col = m_columns[static_cast<std::size_t>(c)];
        const bool readable = col.read || col.readColor || col.readValue;
        return readable && (!col.editable || col.editable(row(r)));
    }
    bool storeText(int r, int c, const QString& text) override
    {
        const Column& col = m_columns[static_cast<std::size_t>(c)];
        return col.read && col.read(m_rows[static_cast<std::size_t>(r)], text);
    }
    bool storeColor(int r, int c, QRgb color) override
    {
        const Column& col = m_columns[static_cast<std::size_t>(c)];
        return col.readColor && col.readColor(m_rows[static_cast<std::size_t>(r)], color);
    }
    bool storeValue(int r, int c, const QVariant& value) override
    {
        const Column& col = m_columns[static_cast<std::size_t>(c)];
        if (col.readValue)
            return col.readValue(m_rows[static_cast<std::size_t>(r)], value);
        return storeText(r, c, value.toString());
    }

private:
    template <class T>
    static void moveWithin(std::vector<T>& items, int from, int to)
    {
        T moved = std::move(items[static_cast<std::size_t>(from)]);
        items.erase(items.begin() + from);
        items.insert(items.begin() + to, std::move(moved));
    }

    std::vector<Column> m_columns;
    std::vector<Row> m_rows;
    std::vector<std::uint64_t> m_keys;
    std::uint64_t m_nextKey = 1;
};

// Column makers. A field is a data member pointer or a callable giving a reference to the
// field of a row (callable with Row& and const Row&).
namespace columns {

inline SListColumn look(const QString& title, int width, EColumnType type,
                        Qt::Alignment alignment = Qt::AlignLeft)
{
    SListColumn c;
    c.title = title;
    c.width = width;
    c.type = type;
    c.alignment = alignment | Qt::AlignVCenter;
    return c;
}

// Assigns value to the field; true when it changed.
template <class T>
bool assign(T& field, const T& value)
{
    if (field == value)
        return false;
    field = value;
    return true;
}

// A name: std::wstring shown and typed as is.
template <class Row, class Field>
TTableColumn<Row> text(const QString& title, int width, Field field, bool editable = true)
{
    TTableColumn<Row> c{look(title, width, EColumnType::Text)};
    c.text = [field](const Row& r) { return QString::fromStdWString(std::invoke(field, r)); };
    if (editable)
        c.read = [field](Row& r, const QString& typed) {
            return assign(std::invoke(field, r), typed.toStdWString());
        };
    return c;
}

// An integer shown with "%d"; typed text is read as an integer (utility::readInteger).
template <class Row, class Field>
TTableColumn<Row> integer(const QString& title, int width, Field field)
{
    TTableColumn<Row> c{look(title, width, EColumnType::Integer, Qt::AlignRight)};
    c.text = [field](const Row& r) { return QString::number(std::invoke(field, r)); };
    c.read = [field](Row& r, const QString& typed) {
        return assign(std::invoke(field, r), utility::readInteger(typed));
    };
    return c;
}

// A number; typed text is read (utility::readNumber), then passed through keep, which
// may refuse it (nullopt) or change it before it is stored.
template <class Row, class Field, class Show, class Keep>
TTableColumn<Row> real(const QString& title, int width, Field field, Show show, Keep keep)
{
    TTableColumn<Row> c{look(title, width, EColumnType::Real, Qt::AlignRight)};
    c.text = [field, show](const Row& r) { return show(std::invoke(field, r)); };
    c.read = [field, keep](Row& r, const QString& typed) {
        const std::optional<double> kept = keep(r, utility::readNumber(typed));
        return kept && assign(std::invoke(field, r), *kept);
    };
    return c;
}

// A yes/no choice shown as yes or no; a cell is true only when it reads yes.
template <class Row, class Field>
TTableColumn<Row> choice(const QString& title, int width, Field field, const QString& yes,
                         const QString& no)
{
    TTableColumn<Row> c{look(title, width, EColumnType::Combo, Qt::AlignCenter)};
    c.look.items = {yes, no};
    c.text = [field, yes, no](const Row& r) { return std::invoke(field, r) ? yes : no; };
    c.read = [field, yes](Row& r, const QString& typed) {
        return assign<bool>(std::invoke(field, r), typed == yes);
    };
    return c;
}

} // namespace columns

} // namespace kesto::ui::control
