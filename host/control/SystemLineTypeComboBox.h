#pragma once

#include "observer/Subject.h"
#include "types/KsLineType.h"

#include <QComboBox>

#include <functional>
#include <optional>
#include <vector>

namespace kesto::ui::setting {
class ISystemLineTypeSetting;
}

namespace kesto::ui::control {

// Chooses a line type that the combo box does not offer (its "他の線種" entry): by default a
// list of the candidates; tests and scripted hosts replace it.
class LineTypeChooserHook {
public:
    using Handler = std::function<std::optional<KsLineType>(
        QWidget* parent, const std::vector<KsLineType>& candidates)>;
    // Returns the previous handler; an empty handler shows the real list.
    static Handler setHandler(Handler handler);
    static std::optional<KsLineType> choose(QWidget* parent,
                                            const std::vector<KsLineType>& candidates);
};

// The host's line type combo box: an optional by-layer entry first, the system line types,
// and an optional last entry offering the open drawing's other line types ("LTYPE").
// Observers get EVENT_LINETYPE_CHANGED when the user picks a line type.
class CSystemLineTypeComboBox : public QComboBox, public kesto::Subject {
    Q_OBJECT

public:
    enum EEvent { EVENT_LINETYPE_CHANGED = 0 };

    explicit CSystemLineTypeComboBox(QWidget* parent = nullptr);

    // Text of the by-layer entry; an empty text removes it.
    void setTextByLayer(const QString& text);
    // Text of the last entry; an empty text removes it.
    void setTextOtherLineType(const QString& text);
    // The system line types to offer (default: the host configuration's).
    void setSystemLineTypes(const setting::ISystemLineTypeSetting* lineTypes);

    // Selects the by-layer entry for a by-layer line type, else the entry of that name (or
    // id); a line type not offered yet is added before the last entry.
    int selectLineType(const KsLineType& lineType);
    // The line type of the current entry, null for the "other" entry or no entry.
    const KsLineType* getCurLType() const { return getLineType(currentIndex()); }
    const KsLineType* getLineType(int index) const;
    bool isOtherEntry(int index) const;

    // What a user's choice of an entry does (the "other" entry opens the chooser).
    void chooseEntry(int index);

private:
    void rebuild();
    std::vector<KsLineType> candidatesForOther() const;
    const setting::ISystemLineTypeSetting* systemLineTypes() const;

    QString m_byLayerText;
    QString m_otherText;
    const setting::ISystemLineTypeSetting* m_systemLineTypes = nullptr;
    std::vector<KsLineType> m_extra; // line types chosen or selected from outside the table
    std::vector<KsLineType> m_entries;
    int m_lastIndex = -1;
};

} // namespace kesto::ui::control
