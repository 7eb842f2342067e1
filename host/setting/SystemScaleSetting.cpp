#include "setting/SystemScaleSetting.h"

#include "types/KsScale.h"
#include "utility/NumberFormat.h"
#include "utility/Xml.h"

#include <cmath>

namespace kesto::ui::setting {

namespace {
constexpr double kStoredPrecision = 0.5e-6;

QString scaleTag()
{
    return QStringLiteral("Scale");
}
} // namespace

bool SSystemScale::isSame(double otherNumerator, double otherDenominator) const
{
    return std::fabs(numerator - otherNumerator) < kStoredPrecision
           && std::fabs(denominator - otherDenominator) < kStoredPrecision;
}

CSystemScaleSetting CSystemScaleSetting::makeDefault()
{
    static const double denominators[] = {1, 2, 5, 10, 20, 50, 100, 200, 250, 500, 1000};
    std::vector<SSystemScale> scales;
    for (double denominator : denominators)
        scales.push_back({KsScale::makeName(1.0, denominator), 1.0, denominator});
    scales.push_back({KsScale::makeName(2.0, 1.0), 2.0, 1.0});
    CSystemScaleSetting setting;
    setting.setSystemScales(scales);
    return setting;
}

bool CSystemScaleSetting::loadXMLNode(const QDomElement& element)
{
    std::vector<SSystemScale> scales;
    for (QDomElement e = element.firstChildElement(scaleTag()); !e.isNull();
         e = e.nextSiblingElement(scaleTag())) {
        SSystemScale scale;
        if (!utility::xml::readDoubleAttribute(e, QStringLiteral("numerator"), scale.numerator)
            || !utility::xml::readDoubleAttribute(e, QStringLiteral("denominator"),
                                                  scale.denominator)
            || scale.numerator <= 0.0 || scale.denominator <= 0.0) {
            if (utility::xml::skipEntry(e))
                continue;
            return false;
        }
        scale.name = e.attribute(QStringLiteral("name")).toStdWString();
        if (scale.name.empty())
            scale.name = KsScale::makeName(scale.numerator, scale.denominator);
        scales.push_back(std::move(scale));
    }
    m_scales = std::move(scales);
    return true;
}

void CSystemScaleSetting::saveXMLNode(QDomDocument& doc, QDomElement& element) const
{
    using utility::formatDecimal;
    for (const SSystemScale& scale : m_scales) {
        QDomElement e = doc.createElement(scaleTag());
        e.setAttribute(QStringLiteral("name"), QString::fromStdWString(scale.name));
        e.setAttribute(QStringLiteral("numerator"), formatDecimal(scale.numerator, 10));
        e.setAttribute(QStringLiteral("denominator"), formatDecimal(scale.denominator, 10));
        element.appendChild(e);
    }
}

} // namespace kesto::ui::setting
