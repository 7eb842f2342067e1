#pragma once

#include <QString>

#include <optional>

namespace kesto::utility {

// Fixed notation with at most maxDecimals decimals, trailing zeros (and a bare point) removed.
QString formatDecimal(double value, int maxDecimals);

// Parses a number typed by a user: surrounding blanks and full-width digits are accepted.
std::optional<double> parseDecimal(const QString& text);

// value written out with the given decimals and read back.
double roundToDecimals(double value, int decimals);

} // namespace kesto::utility
