#pragma once

#include "setting/SettingBase.h"

#include <string>
#include <vector>

namespace kesto::ui::setting {

struct SSystemScale {
    std::wstring name = L"1/1";
    double numerator = 1.0;
    double denominator = 1.0;

    // Whether this scale has the given values (compared to the six decimals that are stored).
    bool isSame(double otherNumerator, double otherDenominator) const;
    bool operator==(const SSystemScale& other) const = default;
};

// The system list of scales offered for drawings.
class CSystemScaleSetting : public TSetting<CSystemScaleSetting> {
public:
    CSystemScaleSetting() = default;

    // Scales a Japanese civil-engineering office starts with.
    static CSystemScaleSetting makeDefault();

    const std::vector<SSystemScale>& getSystemScales() const { return m_scales; }
    void copySystemScales(std::vector<SSystemScale>& out) const { out = m_scales; }
    void setSystemScales(const std::vector<SSystemScale>& scales) { m_scales = scales; }

    bool isSame(const CSystemScaleSetting& other) const { return m_scales == other.m_scales; }

    QString xmlRootName() const override { return QStringLiteral("SystemScaleSetting"); }
    bool loadXMLNode(const QDomElement& element) override;
    void saveXMLNode(QDomDocument& doc, QDomElement& element) const override;

private:
    std::vector<SSystemScale> m_scales;
};

} // namespace kesto::ui::setting
