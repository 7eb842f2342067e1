#pragma once

#include "types/KsObject.h"

#include <string>

// A drawing scale numerator/denominator ("SCALE" element). Its name follows its values:
// "1/100", "2/1", "1/2.5".
class KsScale : public KsObject {
public:
    KsScale() = default;
    KsScale(double numerator, double denominator);
    KsScale(std::wstring name, double numerator, double denominator);

    std::wstring getType() const override { return L"SCALE"; }

    const std::wstring& getName() const { return m_name; }
    double getNumerator() const { return m_numerator; }
    double getDenominator() const { return m_denominator; }

    // Sets both values and renames the scale after them.
    void setScale(double numerator, double denominator);
    void setName(std::wstring name) { m_name = std::move(name); }

    static std::wstring makeName(double numerator, double denominator);

private:
    std::wstring m_name = L"1/1";
    double m_numerator = 1.0;
    double m_denominator = 1.0;
};
