#include "setting/HatchXml.h"

#include "setting/SystemLineTypeSetting.h"

#include <QColor>
#include <QLocale>

#include <cmath>

namespace kesto::ui::setting::hatchxml {

bool readBool(const QDomElement& e, const QString& name, bool& out)
{
    if (!e.hasAttribute(name))
        return true;
    const QString text = e.attribute(name).trimmed();
    if (text == u'1' || text == u"true")
        out = true;
    else if (text == u'0' || text == u"false")
        out = false;
    else
        return false;
    return true;
}

bool readInt(const QDomElement& e, const QString& name, int& out, int min, int max)
{
    if (!e.hasAttribute(name))
        return true;
    bool ok = false;
    const int value = e.attribute(name).trimmed().toInt(&ok, 10);
    if (!ok || value < min || value > max)
        return false;
    out = value;
    return true;
}

bool readDouble(const QDomElement& e, const QString& name, double& out, double min, double max)
{
    if (!e.hasAttribute(name))
        return true;
    bool ok = false;
    const double value = e.attribute(name).trimmed().toDouble(&ok);
    if (!ok || !std::isfinite(value) || value < min || value > max)
        return false;
    out = value;
    return true;
}

void readText(const QDomElement& e, const QString& name, std::wstring& out)
{
    if (e.hasAttribute(name))
        out = e.attribute(name).toStdWString();
}

bool readColor(const QDomElement& e, KsColor& out)
{
    KsColor color = out;
    if (e.hasAttribute(QStringLiteral("color"))) {
        const QString text = e.attribute(QStringLiteral("color")).trimmed();
        const QColor parsed(text);
        if (!text.startsWith(u'#') || text.size() != 7 || !parsed.isValid())
            return false;
        color.setRGB(parsed.rgb() & 0xFFFFFFu);
    }
    int type = color.getColorType();
    if (!readInt(e, QStringLiteral("colorType"), type, 0, 255))
        return false;
    color.setColorType(type);
    std::wstring name = color.getName();
    readText(e, QStringLiteral("colorName"), name);
    color.setName(name);
    out = color;
    return true;
}

void writeBool(QDomElement& e, const QString& name, bool value)
{
    e.setAttribute(name, value ? QStringLiteral("1") : QStringLiteral("0"));
}

void writeDouble(QDomElement& e, const QString& name, double value)
{
    e.setAttribute(name, QString::number(value, 'g', QLocale::FloatingPointShortest));
}

void writeText(QDomElement& e, const QString& name, const std::wstring& value)
{
    e.setAttribute(name, QString::fromStdWString(value));
}

void writeColor(QDomElement& e, const KsColor& color)
{
    e.setAttribute(QStringLiteral("color"), QColor::fromRgb(color.getRGB()).name().toUpper());
    e.setAttribute(QStringLiteral("colorType"), color.getColorType());
    writeText(e, QStringLiteral("colorName"), color.getName());
}

void resolveLineType(std::wstring& name, bool byLayer, const ISystemLineTypeSetting* lineTypes)
{
    if (byLayer || !lineTypes || lineTypes->getLineTypes().empty())
        return;
    if (!lineTypes->findByName(name))
        name = lineTypes->getLineTypes().front().getName();
}

} // namespace kesto::ui::setting::hatchxml
