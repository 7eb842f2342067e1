#include "utility/NumberFormat.h"

#include <cmath>

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

double roundToDecimals(double value, int decimals)
{
    return QString::number(value, 'f', decimals).toDouble();
}

} // namespace kesto::utility
