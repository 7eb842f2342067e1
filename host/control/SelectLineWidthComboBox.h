#pragma once

#include "control/ValueComboBox.h"
#include "types/KsLineWidth.h"

namespace kesto::ui::setting {
class CLineWidthSetting;
}

namespace kesto::ui::control {

// The host's line width combo box: an optional by-layer entry, the three fixed widths thin,
// bold and extra bold, then the system's line width table. With the by-layer entry the index
// tells the kind: 0 by layer, 1 to 3 thin to extra bold, 4 and above an explicit width.
// Observers get EVENT_WIDTH_CHANGED when the user picks a width.
class SelectLineWidthComboBox : public TValueComboBox<KsLineWidth> {
    Q_OBJECT

public:
    enum EEvent { EVENT_WIDTH_CHANGED = 0 };

    explicit SelectLineWidthComboBox(QWidget* parent = nullptr);

    // Text of the by-layer entry; takes effect with init().
    void setLWidthByLayer(const QString& text) { m_pendingByLayerText = text; }
    // Fills the entries. The fixed widths show the open drawing's thin, bold and extra bold
    // when a drawing is open, else the table's; the table is the host configuration's unless
    // one is given.
    void init(const setting::CLineWidthSetting* widths = nullptr);

    // Selects by kind (by layer, thin, bold, extra bold) or, for an explicit width, the table
    // entry of that width, adding one when the table has none. Returns the index, -1 when the
    // kind has no entry.
    int selectLineWidth(int kind, double width) { return selectValue(KsLineWidth(width, kind)); }
    int selectLineWidth(const KsLineWidth& lineWidth) { return selectValue(lineWidth); }

    // Width in millimetres of an entry (0 for none and for the by-layer entry).
    double getWidth(int index) const { return getLineWidth(index).getWidth(); }
    // KsLineWidth kind of an entry (Explicit for none).
    int getKind(int index) const { return getLineWidth(index).getKind(); }
    KsLineWidth getLineWidth(int index) const;
    KsLineWidth getCurLineWidth() const { return getLineWidth(currentIndex()); }

protected:
    std::vector<KsLineWidth> tableValues() const override;
    KsLineWidth byLayerValue() const override { return KsLineWidth(0.0, KsLineWidth::ByLayer); }
    bool isByLayer(const KsLineWidth& w) const override
    {
        return w.getKind() == KsLineWidth::ByLayer;
    }
    bool sameValue(const KsLineWidth& a, const KsLineWidth& b) const override;
    bool canAdd(const KsLineWidth& w) const override
    {
        return w.getKind() == KsLineWidth::Explicit;
    }
    QString textOf(const KsLineWidth& width) const override;
    QIcon iconOf(const KsLineWidth& width) const override;
    QIcon byLayerIcon() const override;

private:
    QString m_pendingByLayerText;
    const setting::CLineWidthSetting* m_widths = nullptr;
    bool m_initialized = false;
};

} // namespace kesto::ui::control
