#pragma once

#include "observer/Subject.h"
#include "types/KsColor.h"

#include <QComboBox>

#include <vector>

namespace kesto::ui::setting {
class CColorSetting;
class ISystemColorSetting;
} // namespace kesto::ui::setting

namespace kesto::ui::control {

// The host's colour combo box: an optional by-layer entry first, the system colours, the
// colours the user mixed, and an optional last entry that opens the colour picker. A mixed
// colour is kept in the custom colours of a CColorSetting (the host configuration's unless
// another is given). Observers get EVENT_COLOR_CHANGED when the user picks a colour.
class CSystemColorComboBox : public QComboBox, public kesto::Subject {
    Q_OBJECT

public:
    enum EEvent { EVENT_COLOR_CHANGED = 0 };
    enum EEntry { EntryByLayer, EntrySystem, EntryCustom, EntryOther };

    explicit CSystemColorComboBox(QWidget* parent = nullptr);

    // Text of the first, by-layer entry; an empty text removes the entry.
    void setTextByLayer(const QString& text);
    // Text of the last entry, which opens the colour picker; an empty text removes it.
    void setTextOtherColor(const QString& text);
    // The system colours to offer (default: the host configuration's).
    void setSystemColors(const setting::ISystemColorSetting* colors);
    // Where mixed colours are kept (default: the host configuration's CColorSetting).
    void setColorSetting(setting::CColorSetting* colors);

    // Selects the entry of a colour: the by-layer entry for a by-layer colour, else the entry
    // with its RGB; a colour not offered yet is added before the last entry. -1 when the
    // colour cannot be shown (by layer without a by-layer entry).
    int selectColor(const KsColor& color);
    // The colour of an entry; getInvalidColor() for the picker entry and for no entry.
    KsColor getColor(int index) const;
    KsColor getCurColor() const { return getColor(currentIndex()); }
    EEntry getEntryKind(int index) const;
    int getOtherColorIndex() const;
    static KsColor getInvalidColor();

    // What a user's choice of an entry does (the picker entry opens the picker).
    void chooseEntry(int index);

private:
    struct SEntry {
        EEntry kind;
        KsColor color;
    };
    void rebuild();
    std::vector<SEntry> collectEntries() const;
    void addEntry(const SEntry& entry, const QString& text);
    void pickOtherColor();
    setting::CColorSetting* colorSetting() const;
    const setting::ISystemColorSetting* systemColors() const;

    QString m_byLayerText;
    QString m_otherText;
    const setting::ISystemColorSetting* m_systemColors = nullptr;
    setting::CColorSetting* m_colorSetting = nullptr;
    std::vector<KsColor> m_shownColors; // colours selected from outside, not in any table
    std::vector<SEntry> m_entries;
    int m_lastColorIndex = -1;
};

// The colour combo box family's name for the same control (getInvalidColor and the like).
using CColorComboBox = CSystemColorComboBox;

} // namespace kesto::ui::control
