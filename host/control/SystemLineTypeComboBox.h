#pragma once

#include "control/ValueComboBox.h"
#include "types/KsLineType.h"

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
class CSystemLineTypeComboBox : public TValueComboBox<KsLineType> {
    Q_OBJECT

public:
    enum EEvent { EVENT_LINETYPE_CHANGED = 0 };

    explicit CSystemLineTypeComboBox(QWidget* parent = nullptr);

    // Text of the last entry; an empty text removes it.
    void setTextOtherLineType(const QString& text) { setTextOther(text); }
    // The system line types to offer (default: the host configuration's).
    void setSystemLineTypes(const setting::ISystemLineTypeSetting* lineTypes);

    // Selects the by-layer entry for a by-layer line type, else the entry of that name (or
    // id); a line type not offered yet is added before the last entry.
    int selectLineType(const KsLineType& lineType) { return selectValue(lineType); }
    // The line type of the current entry, null for the "other" entry or no entry.
    const KsLineType* getCurLType() const { return getLineType(currentIndex()); }
    const KsLineType* getLineType(int index) const { return valueAt(index); }

protected:
    std::vector<KsLineType> tableValues() const override;
    KsLineType byLayerValue() const override { return KsLineType::byLayer(); }
    bool isByLayer(const KsLineType& type) const override { return type.isByLayer(); }
    bool sameValue(const KsLineType& a, const KsLineType& b) const override;
    bool canAdd(const KsLineType& type) const override;
    QString textOf(const KsLineType& type) const override;
    QIcon iconOf(const KsLineType& type) const override;
    QIcon byLayerIcon() const override;
    QIcon otherIcon() const override;
    std::optional<KsLineType> chooseOther(const KsLineType* previous) override;

private:
    std::vector<KsLineType> candidatesForOther() const;
    const setting::ISystemLineTypeSetting* systemLineTypes() const;

    const setting::ISystemLineTypeSetting* m_systemLineTypes = nullptr;
};

} // namespace kesto::ui::control
