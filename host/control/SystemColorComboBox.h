#pragma once

#include "control/ValueComboBox.h"
#include "types/KsColor.h"

namespace kesto::ui::setting {
class CColorSetting;
class ISystemColorSetting;
} // namespace kesto::ui::setting

namespace kesto::ui::control {

// The host's colour combo box: an optional by-layer entry first, the system colours, the
// colours the user mixed, and an optional last entry that opens the colour picker. A mixed
// colour is kept in the custom colours of a CColorSetting (the host configuration's unless
// another is given). Observers get EVENT_COLOR_CHANGED when the user picks a colour.
class CSystemColorComboBox : public TValueComboBox<KsColor> {
    Q_OBJECT

public:
    enum EEvent { EVENT_COLOR_CHANGED = 0 };
    enum EEntry { EntryByLayer, EntrySystem, EntryCustom, EntryOther };

    explicit CSystemColorComboBox(QWidget* parent = nullptr);

    // Text of the last entry, which opens the colour picker; an empty text removes it.
    void setTextOtherColor(const QString& text) { setTextOther(text); }
    // The system colours to offer (default: the host configuration's).
    void setSystemColors(const setting::ISystemColorSetting* colors);
    // Where mixed colours are kept (default: the host configuration's CColorSetting).
    void setColorSetting(setting::CColorSetting* colors);

    // Selects the by-layer entry for a by-layer colour, else the entry with its RGB; a colour
    // not offered yet is added. -1 when the colour cannot be shown.
    int selectColor(const KsColor& color) { return selectValue(color); }
    // The colour of an entry; getInvalidColor() for the picker entry and for no entry.
    KsColor getColor(int index) const;
    KsColor getCurColor() const { return getColor(currentIndex()); }
    EEntry getEntryKind(int index) const;
    int getOtherColorIndex() const { return otherEntryIndex(); }
    static KsColor getInvalidColor();

protected:
    std::vector<KsColor> tableValues() const override;
    KsColor byLayerValue() const override { return KsColor::byLayer(); }
    bool isByLayer(const KsColor& color) const override { return color.isByLayer(); }
    bool sameValue(const KsColor& a, const KsColor& b) const override;
    QString textOf(const KsColor& color) const override;
    QIcon iconOf(const KsColor& color) const override;
    QIcon byLayerIcon() const override;
    QIcon otherIcon() const override;
    std::optional<KsColor> chooseOther(const KsColor* previous) override;

private:
    setting::CColorSetting* colorSetting() const;
    const setting::ISystemColorSetting* systemColors() const;

    const setting::ISystemColorSetting* m_systemColors = nullptr;
    setting::CColorSetting* m_colorSetting = nullptr;
};

// The colour combo box family's name for the same control (getInvalidColor and the like).
using CColorComboBox = CSystemColorComboBox;

} // namespace kesto::ui::control
