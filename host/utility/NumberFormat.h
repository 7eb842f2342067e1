#pragma once

#include <QString>

#include <optional>

namespace kesto::utility {

// Fixed notation with at most maxDecimals decimals, trailing zeros (and a bare point) removed.
QString formatDecimal(double value, int maxDecimals);

// Parses a number typed by a user: surrounding blanks and full-width digits are accepted.
std::optional<double> parseDecimal(const QString& text);

// A number read from typed text the way the C library reads one: blanks, a sign and the
// longest leading decimal number ("." as the point, an exponent allowed); 0 when there is none.
// "nan", "inf" and overflows read as 0. Full-width digits and signs count as their ASCII forms.
double readNumber(const QString& text);
// The same for an integer: the leading digits only ("12.5" reads 12), clamped to int.
int readInteger(const QString& text);

// value written out with the given decimals and read back.
double roundToDecimals(double value, int decimals);

} // namespace kesto::utility
