#include "utility/NumberFormat.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>

namespace kesto::utility {

QString formatDecimal(double value, int maxDecimals)
{
    QString text = QString::number(value, 'f', maxDecimals);
    if (text.contains(u'.')) {
        while (text.endsWith(u'0'))
            text.chop(1);
        if (text.endsWith(u'.'))
            text.chop(1);
    }
    if (text == u"-0")
        text = QStringLiteral("0");
    return text;
}

static QString toHalfWidth(const QString& text)
{
    QString out;
    out.reserve(text.size());
    for (QChar c : text) {
        const char16_t u = c.unicode();
        if (u >= u'０' && u <= u'９')
            out += QChar(u'0' + (u - u'０'));
        else if (u == u'．')
            out += u'.';
        else if (u == u'－' || u == u'ー' || u == u'−')
            out += u'-';
        else if (u == u'＋')
            out += u'+';
        else
            out += c;
    }
    return out;
}

std::optional<double> parseDecimal(const QString& text)
{
    bool ok = false;
    const double value = toHalfWidth(text.trimmed()).toDouble(&ok);
    if (!ok || !std::isfinite(value))
        return std::nullopt;
    return value;
}

// The text after leading blanks, in ASCII, with a leading "+" dropped.
static std::string numberPart(const QString& text)
{
    const QString half = toHalfWidth(text).trimmed();
    std::string ascii = half.toLatin1().toStdString();
    if (!ascii.empty() && ascii.front() == '+' && (ascii.size() < 2 || ascii[1] != '-'))
        ascii.erase(0, 1);
    return ascii;
}

double readNumber(const QString& text)
{
    const std::string ascii = numberPart(text);
    double value = 0;
    const auto [end, error] = std::from_chars(ascii.data(), ascii.data() + ascii.size(), value,
                                              std::chars_format::general);
    if (error != std::errc() || !std::isfinite(value) || end == ascii.data())
        return 0;
    return value;
}

int readInteger(const QString& text)
{
    const std::string ascii = numberPart(text);
    long long value = 0;
    const auto [end, error] =
        std::from_chars(ascii.data(), ascii.data() + ascii.size(), value, 10);
    if (error == std::errc::result_out_of_range)
        return ascii.front() == '-' ? std::numeric_limits<int>::min()
                                    : std::numeric_limits<int>::max();
    if (error != std::errc())
        return 0;
    return static_cast<int>(std::clamp<long long>(value, std::numeric_limits<int>::min(),
                                                  std::numeric_limits<int>::max()));
}

double roundToDecimals(double value, int decimals)
{
    return QString::number(value, 'f', decimals).toDouble();
}

} // namespace kesto::utility
