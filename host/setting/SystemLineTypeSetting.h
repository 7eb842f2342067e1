#pragma once

#include "setting/SettingBase.h"
#include "types/KsLineType.h"

#include <vector>

namespace kesto::ui::setting {

// The system's table of line types, as settings records and dialogs resolve stored names.
class ISystemLineTypeSetting {
public:
    virtual ~ISystemLineTypeSetting() = default;
    virtual const std::vector<KsLineType>& getLineTypes() const = 0;
    // Null when the table has no line type of that name (or id).
    virtual const KsLineType* findByName(const std::wstring& name) const = 0;
    virtual const KsLineType* findById(int id) const = 0;
};

// Line types after JIS Z 8312, as a civil-engineering office uses them.
class CSystemLineTypeSetting : public TSetting<CSystemLineTypeSetting>,
                               public ISystemLineTypeSetting {
public:
    static CSystemLineTypeSetting makeDefault();

    const std::vector<KsLineType>& getLineTypes() const override { return m_lineTypes; }
    const KsLineType* findByName(const std::wstring& name) const override;
    const KsLineType* findById(int id) const override;
    // Ids must be unique and above 0, names unique and not empty; false leaves the table.
    bool setLineTypes(const std::vector<KsLineType>& lineTypes);

    bool isSame(const CSystemLineTypeSetting& other) const
    {
        return m_lineTypes == other.m_lineTypes;
    }

    QString xmlRootName() const override { return QStringLiteral("SystemLineTypeSetting"); }
    bool loadXMLNode(const QDomElement& element) override;
    void saveXMLNode(QDomDocument& doc, QDomElement& element) const override;

private:
    std::vector<KsLineType> m_lineTypes;
};

} // namespace kesto::ui::setting
