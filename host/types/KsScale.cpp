#include "types/KsScale.h"

#include "utility/NumberFormat.h"

KsScale::KsScale(double numerator, double denominator)
{
    setScale(numerator, denominator);
}

KsScale::KsScale(std::wstring name, double numerator, double denominator)
    : m_name(std::move(name))
    , m_numerator(numerator)
    , m_denominator(denominator)
{}

void KsScale::setScale(double numerator, double denominator)
{
    m_numerator = numerator;
    m_denominator = denominator;
    m_name = makeName(numerator, denominator);
}

std::wstring KsScale::makeName(double numerator, double denominator)
{
    using kesto::utility::formatDecimal;
    return (formatDecimal(numerator, 6) + u'/' + formatDecimal(denominator, 6)).toStdWString();
}
