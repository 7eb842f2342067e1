#pragma once

#include "observer/Subject.h"
#include "types/KsLineWidth.h"

#include <QComboBox>

#include <vector>

namespace kesto::ui::setting {
class CLineWidthSetting;
}

namespace kesto::ui::control {

// The host's line width combo box: an optional by-layer entry, the three fixed widths thin,
// bold and extra bold, then the system's line width table. With the by-layer entry the index
// tells the kind: 0 by layer, 1 to 3 thin to extra bold, 4 and above an explicit width.
// Observers get EVENT_WIDTH_CHANGED when the user picks a width.
class SelectLineWidthComboBox : public QComboBox, public kesto::Subject {
    Q_OBJECT

public:
    enum EEvent { EVENT_WIDTH_CHANGED = 0 };

    explicit SelectLineWidthComboBox(QWidget* parent = nullptr);

    // Text of the by-layer entry; takes effect with init().
    void setLWidthByLayer(const QString& text);
    // Fills the entries. The fixed widths show the open drawing's thin, bold and extra bold
    // when a drawing is open, else the table's; the table is the host configuration's unless
    // one is given.
    void init(const setting::CLineWidthSetting* widths = nullptr);

    // Selects by kind (by layer, thin, bold, extra bold) or, for an explicit width, the table
    // entry of that width, adding one when the table has none. Returns the index, -1 when the
    // kind has no entry.
    int selectLineWidth(int kind, double width);
    int selectLineWidth(const KsLineWidth& lineWidth)
    {
        return selectLineWidth(lineWidth.getKind(), lineWidth.getWidth());
    }

    // Width in millimetres of an entry (0 for none and for the by-layer entry).
    double getWidth(int index) const;
    // KsLineWidth kind of an entry (Explicit for none).
    int getKind(int index) const;
    KsLineWidth getLineWidth(int index) const;
    KsLineWidth getCurLineWidth() const { return getLineWidth(currentIndex()); }

private:
    void addEntry(const KsLineWidth& width, const QString& text);

    QString m_byLayerText;
    std::vector<KsLineWidth> m_entries;
};

} // namespace kesto::ui::control
