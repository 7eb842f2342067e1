#pragma once

#include <QColor>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <vector>

namespace kesto::ui::control {

// How a column's cells are shown and edited.
enum class EColumnType {
    Text,      // edited in place as text
    Integer,   // typed as text, read as the column reads an integer
    Real,      // typed as text, read as the column reads a number
    Combo,     // edited by choosing one of the column's items ("○/×" and the like)
    Color,     // shows a colour swatch; edited through the host's colour chooser
    LineType,  // chosen from the host's line type combo box
    LineWidth, // chosen from the host's line width combo box
};
// Texts typed into these columns are edited with a line edit.
inline bool isTypedColumn(EColumnType type)
{
    return type == EColumnType::Text || type == EColumnType::Integer || type == EColumnType::Real;
}

struct SListColumn {
    QString title;
    int width = 100;
    EColumnType type = EColumnType::Text;
    Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignVCenter;
    bool editable = true;
    QStringList items; // choices of a combo column
    QColor background; // invalid: the view's own
};

struct SListCell {
    QString text;
    QRgb color = 0;       // swatch of a colour cell (0xRRGGBB)
    bool editable = true; // a cell may be locked inside an editable column
};

struct SListRow {
    std::vector<SListCell> cells;
    std::uint64_t data = 0; // the owner's key for the row (an index, a pointer)

    SListRow() = default;
    explicit SListRow(const QStringList& texts, std::uint64_t rowData = 0);
    const QString& text(int column) const;
};

// Events the list reports to its observers (kesto::Subject).
enum EListEvent {
    LIST_EVENT_CELL_CHANGED = 0,      // data: SListCellEvent*, after the cell was stored
    LIST_EVENT_SELECTION_CHANGED = 1, // data: nullptr
    LIST_EVENT_ROW_ACTIVATED = 2,     // data: SListCellEvent* of the double-clicked cell
    LIST_EVENT_ROW_COMBO_CHANGED = 9, // data: SListRowTextEvent*, combo set by the owner's buttons
};

struct SListCellEvent {
    int row = -1;
    int column = -1;
    QString text;
    QRgb color = 0;
};

// The cell change an observer was told of, or null for any other event.
inline const SListCellEvent* cellChangeOf(int event, void* data)
{
    return event == LIST_EVENT_CELL_CHANGED ? static_cast<const SListCellEvent*>(data) : nullptr;
}

struct SListRowTextEvent {
    int row = -1;
    QString text;
};

} // namespace kesto::ui::control
