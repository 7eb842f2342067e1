#include "drawing/XmlDrawing.h"

#include "types/KsCoordinateSystem.h"

#include "types/KsFigure.h"
#include "types/KsLayer.h"
#include "types/KsScale.h"
#include "utility/NumberFormat.h"
#include "utility/Xml.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <cmath>
#include <unordered_map>

namespace kesto::workbench {

namespace {

// What the reader has met so far, by name: layers and the line type table.
struct SXmlDrawing {
    CMemoryDataBase& db;
    std::unordered_map<QString, KsLayer*> layers;
    std::unordered_map<QString, KsLineType*> lineTypes;
    int nextLineTypeId = KsLineType::kFirstDrawingId;
};

QString tr(const char* text)
{
    return QCoreApplication::translate("XmlDrawing", text);
}

bool fail(QString* error, const QString& text)
{
    if (error)
        *error = text;
    return false;
}

QString at(const QDomElement& e, const QString& text)
{
    return tr("%1 行目: %2").arg(e.lineNumber()).arg(text);
}

bool isByLayer(const QString& value)
{
    return value.isEmpty() || value.compare(QStringLiteral("bylayer"), Qt::CaseInsensitive) == 0;
}

// The table's line type of that name, added (solid) when the drawing has not listed it.
KsLineType* lineTypeNamed(SXmlDrawing& d, const QString& name,
                          const std::vector<double>& dashes = {})
{
    if (const auto found = d.lineTypes.find(name); found != d.lineTypes.end())
        return found->second;
    const int kind = dashes.empty() ? KsLineType::Solid : KsLineType::Pattern;
    auto* lineType = d.db.add<KsLineType>(d.nextLineTypeId++, name.toStdWString(), kind, dashes);
    d.lineTypes.emplace(name, lineType);
    return lineType;
}

bool readLineType(const QDomElement& e, SXmlDrawing& d, QString* error)
{
    const QString name = e.attribute(QStringLiteral("name"));
    if (name.isEmpty() || isByLayer(name))
        return fail(error, at(e, tr("線種には bylayer 以外の名前が必要です")));
    if (d.lineTypes.count(name))
        return fail(error, at(e, tr("線種 %1 が二度書かれています").arg(name)));
    std::vector<double> dashes;
    for (const QString& part :
         e.attribute(QStringLiteral("dashes")).split(u' ', Qt::SkipEmptyParts)) {
        const std::optional<double> dash = utility::parseDecimal(part);
        if (!dash || !std::isfinite(*dash) || *dash == 0)
            return fail(error, at(e, tr("dashes は 0 以外の長さ (mm) です: %1").arg(part)));
        dashes.push_back(*dash);
    }
    lineTypeNamed(d, name, dashes);
    return true;
}

bool readScale(const QDomElement& e, SXmlDrawing& d, QString* error)
{
    double numerator = 0;
    double denominator = 0;
    if (!utility::xml::readDoubleAttribute(e, QStringLiteral("numerator"), numerator)
        || !utility::xml::readDoubleAttribute(e, QStringLiteral("denominator"), denominator)
        || numerator <= 0 || denominator <= 0)
        return fail(error, at(e, tr("縮尺には 0 より大きい numerator と denominator が必要です")));
    auto* scale = d.db.add<KsScale>(numerator, denominator);
    if (e.hasAttribute(QStringLiteral("name")))
        scale->setName(e.attribute(QStringLiteral("name")).toStdWString());
    return true;
}

bool readLayer(const QDomElement& e, SXmlDrawing& d, QString* error)
{
    const QString name = e.attribute(QStringLiteral("name"));
    if (name.isEmpty())
        return fail(error, at(e, tr("レイヤには名前が必要です")));
    auto* layer = d.db.add<KsLayer>(name.toStdWString());
    d.layers.emplace(name, layer);
    const QColor color(e.attribute(QStringLiteral("color"), QStringLiteral("#000000")));
    layer->setColor(KsColor(color.isValid() ? color.rgb() : 0, KsColor::System));
    const QString lineType = e.attribute(QStringLiteral("linetype"));
    layer->setLineType(lineType.isEmpty() ? KsLineType(0, {}) : *lineTypeNamed(d, lineType));
    layer->setLineWidth(KsLineWidth(e.attribute(QStringLiteral("width")).toDouble()));
    layer->setComment(e.attribute(QStringLiteral("comment")).toStdWString());
    layer->visible(e.attribute(QStringLiteral("visible"), QStringLiteral("1")) != u"0");
    layer->reference(e.attribute(QStringLiteral("reference"), QStringLiteral("1")) != u"0");
    layer->editable(e.attribute(QStringLiteral("editable"), QStringLiteral("1")) != u"0");
    return true;
}

bool readCoordinateSystem(const QDomElement& e, SXmlDrawing& d, QString* error)
{
    const QString name = e.attribute(QStringLiteral("name"));
    if (name.isEmpty())
        return fail(error, at(e, tr("座標系には名前が必要です")));
    d.db.add<KsCoordinateSystem>(name.toStdWString());
    return true;
}

bool readLineWidth(const QDomElement& e, SXmlDrawing& d, QString* error)
{
    double width = 0;
    if (!utility::xml::readDoubleAttribute(e, QStringLiteral("width"), width) || width <= 0)
        return fail(error, at(e, tr("線幅には 0 より大きい width が必要です")));
    const QColor color(e.attribute(QStringLiteral("color"), QStringLiteral("#FFFFFF")));
    if (!color.isValid())
        return fail(error, at(e, tr("色は #RRGGBB で書きます")));
    auto* lineWidth = d.db.add<KsLineWidth>(width);
    lineWidth->setColor(color.rgb());
    lineWidth->setColorType(KsColor::System);
    lineWidth->setColorName(e.attribute(QStringLiteral("colorName")).toStdWString());
    return true;
}

// Thin, bold and extra bold of the drawing; each attribute is optional.
bool readWidthKinds(const QDomElement& e, SXmlDrawing& d, QString* error)
{
    const std::pair<const char*, int> kinds[] = {{"thin", KsLineWidth::Thin},
                                                 {"bold", KsLineWidth::Bold},
                                                 {"extrabold", KsLineWidth::ExtraBold}};
    for (const auto& [name, kind] : kinds) {
        const QString attribute = QString::fromLatin1(name);
        if (!e.hasAttribute(attribute))
            continue;
        double width = 0;
        if (!utility::xml::readDoubleAttribute(e, attribute, width) || width <= 0)
            return fail(error, at(e, tr("%1 は 0 より大きい線幅です").arg(attribute)));
        d.db.setLineWidthOfKind(kind, KsLineWidth(width, kind));
    }
    return true;
}

// A figure's width: bylayer, thin, bold, extrabold (the drawing's) or millimetres.
bool readFigureWidth(const QDomElement& e, SXmlDrawing& d, KsFigure& figure, QString* error)
{
    const QString text = e.attribute(QStringLiteral("width")).trimmed().toLower();
    if (isByLayer(text))
        return true;
    const std::pair<const char*, int> kinds[] = {{"thin", KsLineWidth::Thin},
                                                 {"bold", KsLineWidth::Bold},
                                                 {"extrabold", KsLineWidth::ExtraBold}};
    for (const auto& [name, kind] : kinds) {
        KsLineWidth width;
        if (text == QLatin1String(name) && d.db.getLineWidthOfKind(kind, width)) {
            figure.setLineWidth(width.getWidth(), kind);
            return true;
        }
    }
    const std::optional<double> width = utility::parseDecimal(text);
    if (!width || !(*width >= 0 && *width <= KsFigure::kMaxWidth))
        return fail(error, at(e, tr("要素の線幅は bylayer, thin, bold, extrabold "
                                    "か 0 から 65.535 mm です (%1 ではありません)")
                                     .arg(text)));
    figure.setLineWidth(*width);
    return true;
}

// A figure on one of the layers listed before it, with its own look where it says so.
bool readFigure(const QDomElement& e, SXmlDrawing& d, QString* error)
{
    const auto layer = d.layers.find(e.attribute(QStringLiteral("layer")));
    if (layer == d.layers.end())
        return fail(error, at(e, tr("要素には、それより前に書かれた"
                                    "レイヤの名前が必要です")));
    const QString colorText = e.attribute(QStringLiteral("color"));
    const QColor color(colorText);
    if (!isByLayer(colorText) && !color.isValid())
        return fail(error, at(e, tr("要素の色は bylayer か #RRGGBB です")));
    auto* figure = d.db.add<KsFigure>(
        e.attribute(QStringLiteral("kind"), QStringLiteral("LINE")).toStdWString(), layer->second);
    if (!isByLayer(colorText))
        figure->setColor(KsColor(color.rgb(), KsColor::User));
    const QString lineType = e.attribute(QStringLiteral("linetype"));
    if (!isByLayer(lineType))
        figure->setLineType(lineTypeNamed(d, lineType));
    return readFigureWidth(e, d, *figure, error);
}

bool readElement(const QDomElement& e, SXmlDrawing& d, QString* error)
{
    using Reader = bool (*)(const QDomElement&, SXmlDrawing&, QString*);
    static const std::pair<const char*, Reader> readers[] = {
        {"scale", readScale},
        {"layer", readLayer},
        {"coordsys", readCoordinateSystem},
        {"linewidth", readLineWidth},
        {"linewidthkinds", readWidthKinds},
        {"linetype", readLineType},
        {"figure", readFigure},
    };
    for (const auto& [tag, reader] : readers) {
        if (e.tagName() == QLatin1String(tag))
            return reader(e, d, error);
    }
    return true; // unknown elements are left alone
}

} // namespace

std::unique_ptr<CMemoryDataBase> readXmlDrawing(const QString& path, QString* error)
{
    QDomDocument doc;
    QString reason;
    if (!utility::xml::load(doc, path.toStdWString(), &reason)) {
        fail(error, QStringLiteral("%1: %2").arg(path, reason));
        return nullptr;
    }
    const QDomElement root = doc.documentElement();
    if (root.tagName() != u"drawing") {
        fail(error, tr("%1: ルート要素は <drawing> です").arg(path));
        return nullptr;
    }
    auto db = std::make_unique<CMemoryDataBase>(
        root.attribute(QStringLiteral("title"), QFileInfo(path).fileName()).toStdWString());
    SXmlDrawing drawing{*db, {}, {}};
    for (QDomElement e = root.firstChildElement(); !e.isNull(); e = e.nextSiblingElement()) {
        if (!readElement(e, drawing, &reason)) {
            fail(error, QStringLiteral("%1: %2").arg(path, reason));
            return nullptr;
        }
    }
    return db;
}

} // namespace kesto::workbench
