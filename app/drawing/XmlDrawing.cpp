#include "drawing/XmlDrawing.h"

#include "types/KsCoordinateSystem.h"
#include "types/KsFigure.h"
#include "types/KsLayer.h"
#include "types/KsScale.h"
#include "utility/XmlReader.h"

#include <QColor>
#include <QCoreApplication>
#include <QFileInfo>

#include <cmath>
#include <optional>
#include <unordered_map>

namespace kesto::workbench {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("kesto::workbench::XmlDrawing", text);
}

// One element under the root: its attributes and its line.
struct SEntry {
    const QXmlStreamAttributes& attributes;
    qint64 line;

    bool has(const char* name) const { return attributes.hasAttribute(QLatin1String(name)); }
    QString text(const char* name, const QString& fallback = {}) const
    {
        return has(name) ? attributes.value(QLatin1String(name)).toString() : fallback;
    }
};

// What the reader has met so far, by name: layers and the line type table.
struct SXmlDrawing {
    CMemoryDataBase& db;
    utility::CReadReport& report;
    std::unordered_map<QString, KsLayer*> layers;
    std::unordered_map<QString, KsLineType*> lineTypes;
    int nextLineTypeId = KsLineType::kFirstDrawingId;

    void problem(const SEntry& e, const QString& text) { report.skip(e.line, text); }
};

std::optional<double> finiteNumber(const QString& text)
{
    bool ok = false;
    const double value = text.trimmed().toDouble(&ok);
    return ok && std::isfinite(value) ? std::optional<double>(value) : std::nullopt;
}

// A width in millimetres: a finite number, 0 or more (0 is a width real drawings use).
std::optional<double> widthOf(const QString& text)
{
    const std::optional<double> width = finiteNumber(text);
    return width && *width >= 0 ? width : std::nullopt;
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

void readLineType(const SEntry& e, SXmlDrawing& d)
{
    const QString name = e.text("name");
    if (name.isEmpty() || isByLayer(name))
        return d.problem(e, tr("線種には bylayer 以外の名前 (name) が要ります"));
    if (d.lineTypes.count(name))
        return d.problem(e, tr("線種「%1」が重複しています").arg(name));
    std::vector<double> dashes;
    for (const QString& part : e.text("dashes").split(u' ', Qt::SkipEmptyParts)) {
        const std::optional<double> dash = finiteNumber(part);
        if (!dash || *dash == 0)
            return d.problem(
                e, tr("線種「%1」の dashes は 0 でない長さ (mm) の並びです: %2").arg(name, part));
        dashes.push_back(*dash);
    }
    lineTypeNamed(d, name, dashes);
}

void readScale(const SEntry& e, SXmlDrawing& d)
{
    const std::optional<double> numerator = finiteNumber(e.text("numerator"));
    const std::optional<double> denominator = finiteNumber(e.text("denominator"));
    if (!numerator || !denominator || *numerator <= 0 || *denominator <= 0)
        return d.problem(e, tr("縮尺には 0 より大きい分子 (numerator) と分母 (denominator) "
                               "が要ります"));
    auto* scale = d.db.add<KsScale>(*numerator, *denominator);
    if (e.has("name"))
        scale->setName(e.text("name").toStdWString());
}

// A layer's colour; black, named in the report, when it cannot be read.
std::uint32_t layerColor(const SEntry& e, SXmlDrawing& d, const QString& layer)
{
    const QColor color(e.text("color", QStringLiteral("#000000")));
    if (color.isValid())
        return color.rgb() & 0xFFFFFFu;
    d.problem(
        e,
        tr("レイヤ「%1」の色「%2」を読めません (#RRGGBB)。黒にします").arg(layer, e.text("color")));
    return 0;
}

// A layer's width; 0, named in the report, when it is not a width.
double layerWidth(const SEntry& e, SXmlDrawing& d, const QString& layer)
{
    if (!e.has("width"))
        return 0;
    if (const std::optional<double> width = widthOf(e.text("width")))
        return *width;
    d.problem(e, tr("レイヤ「%1」の線幅「%2」は 0 以上の数 (mm) ではありません。0 にします")
                     .arg(layer, e.text("width")));
    return 0;
}

void readLayer(const SEntry& e, SXmlDrawing& d)
{
    const QString name = e.text("name");
    if (name.isEmpty())
        return d.problem(e, tr("レイヤには名前 (name) が要ります"));
    if (d.layers.count(name))
        return d.problem(e, tr("レイヤ名「%1」が重複しています").arg(name));
    auto* layer = d.db.add<KsLayer>(name.toStdWString());
    d.layers.emplace(name, layer);
    layer->setColor(KsColor(layerColor(e, d, name), KsColor::System));
    const QString lineType = e.text("linetype");
    layer->setLineType(lineType.isEmpty() ? KsLineType(0, {}) : *lineTypeNamed(d, lineType));
    layer->setLineWidth(KsLineWidth(layerWidth(e, d, name)));
    layer->setComment(e.text("comment").toStdWString());
    layer->visible(e.text("visible", QStringLiteral("1")) != u"0");
    layer->reference(e.text("reference", QStringLiteral("1")) != u"0");
    layer->editable(e.text("editable", QStringLiteral("1")) != u"0");
}

void readCoordinateSystem(const SEntry& e, SXmlDrawing& d)
{
    const QString name = e.text("name");
    if (name.isEmpty())
        return d.problem(e, tr("座標系には名前 (name) が要ります"));
    d.db.add<KsCoordinateSystem>(name.toStdWString());
}

void readLineWidth(const SEntry& e, SXmlDrawing& d)
{
    const std::optional<double> width = widthOf(e.text("width"));
    if (!width)
        return d.problem(e, tr("線幅 (width) は 0 以上の数 (mm) です: %1").arg(e.text("width")));
    const QColor color(e.text("color", QStringLiteral("#FFFFFF")));
    if (!color.isValid())
        return d.problem(e, tr("線幅の色「%1」を読めません (#RRGGBB)").arg(e.text("color")));
    auto* lineWidth = d.db.add<KsLineWidth>(*width);
    lineWidth->setColor(color.rgb());
    lineWidth->setColorType(KsColor::System);
    lineWidth->setColorName(e.text("colorName").toStdWString());
}

// Thin, bold and extra bold of the drawing; each attribute is optional.
void readWidthKinds(const SEntry& e, SXmlDrawing& d)
{
    const std::pair<const char*, int> kinds[] = {{"thin", KsLineWidth::Thin},
                                                 {"bold", KsLineWidth::Bold},
                                                 {"extrabold", KsLineWidth::ExtraBold}};
    for (const auto& [name, kind] : kinds) {
        if (!e.has(name))
            continue;
        if (const std::optional<double> width = widthOf(e.text(name)))
            d.db.setLineWidthOfKind(kind, KsLineWidth(*width, kind));
        else
            d.problem(e, tr("%1 は 0 以上の線幅 (mm) です: %2").arg(name, e.text(name)));
    }
}

// A figure's width: bylayer, thin, bold, extrabold (the drawing's) or millimetres.
bool readFigureWidth(const QString& value, SXmlDrawing& d, KsFigure& figure)
{
    const QString text = value.trimmed().toLower();
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
    const std::optional<double> width = widthOf(text);
    if (!width || *width > KsFigure::kMaxWidth)
        return false;
    figure.setLineWidth(*width);
    return true;
}

// A figure on one of the layers listed before it, with its own look where it says so; a look
// that cannot be read is left to the layer.
void readFigure(const SEntry& e, SXmlDrawing& d)
{
    const auto layer = d.layers.find(e.text("layer"));
    if (layer == d.layers.end())
        return d.problem(e, tr("図形のレイヤ「%1」は、その前に定義されたレイヤではありません")
                                .arg(e.text("layer")));
    auto* figure =
        d.db.add<KsFigure>(e.text("kind", QStringLiteral("LINE")).toStdWString(), layer->second);
    const QString colorText = e.text("color");
    if (!isByLayer(colorText)) {
        const QColor color(colorText);
        if (color.isValid())
            figure->setColor(KsColor(color.rgb(), KsColor::User));
        else
            d.problem(
                e, tr("図形の色「%1」を読めません (#RRGGBB)。レイヤの色にします").arg(colorText));
    }
    const QString lineType = e.text("linetype");
    if (!isByLayer(lineType))
        figure->setLineType(lineTypeNamed(d, lineType));
    if (!readFigureWidth(e.text("width"), d, *figure))
        d.problem(e, tr("図形の線幅「%1」は bylayer, thin, bold, extrabold か 0〜65.535 mm です。"
                        "レイヤの線幅にします")
                         .arg(e.text("width")));
}

void readElement(QStringView tag, const SEntry& e, SXmlDrawing& d)
{
    using Reader = void (*)(const SEntry&, SXmlDrawing&);
    static const std::pair<const char*, Reader> readers[] = {
        {"scale", readScale},
        {"layer", readLayer},
        {"coordsys", readCoordinateSystem},
        {"linewidth", readLineWidth},
        {"linewidthkinds", readWidthKinds},
        {"linetype", readLineType},
        {"figure", readFigure},
    };
    for (const auto& [name, reader] : readers) {
        if (tag == QLatin1String(name))
            return reader(e, d);
    }
    // unknown elements are left alone
}

std::unique_ptr<CMemoryDataBase> readDrawing(utility::xml::CReader& reader, const QString& title,
                                             utility::CReadReport& report)
{
    QXmlStreamReader& xml = reader.xml();
    std::unique_ptr<CMemoryDataBase> db;
    std::optional<SXmlDrawing> drawing;
    while (reader.next()) {
        if (xml.tokenType() != QXmlStreamReader::StartElement || reader.depth() > 2)
            continue;
        const QXmlStreamAttributes attributes = xml.attributes();
        if (reader.depth() == 2) {
            readElement(xml.name(), SEntry{attributes, reader.line()}, *drawing);
            continue;
        }
        if (xml.name() != u"drawing") {
            report.refuse(tr("ルート要素が <drawing> ではありません"));
            return nullptr;
        }
        const SEntry root{attributes, reader.line()};
        db = std::make_unique<CMemoryDataBase>(root.text("title", title).toStdWString());
        drawing.emplace(SXmlDrawing{*db, report, {}, {}});
    }
    return db;
}

utility::xml::SLimits drawingLimits()
{
    utility::xml::SLimits limits;
    limits.maxBytes = kMaxXmlDrawingBytes;
    limits.maxNodes = kMaxXmlDrawingBytes; // read as a stream, never held as nodes
    return limits;
}

} // namespace

std::unique_ptr<CMemoryDataBase> readXmlDrawing(const QString& path, utility::CReadReport& report)
{
    utility::xml::CReader reader(drawingLimits());
    if (!reader.open(path, report))
        return nullptr;
    return readDrawing(reader, QFileInfo(path).fileName(), report);
}

std::unique_ptr<CMemoryDataBase> readXmlDrawing(const QByteArray& bytes, const QString& title,
                                                utility::CReadReport& report)
{
    utility::xml::CReader reader(drawingLimits());
    if (!reader.open(bytes, report))
        return nullptr;
    return readDrawing(reader, title, report);
}

} // namespace kesto::workbench
