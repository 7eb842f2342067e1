#include "DrawingFile.h"

#include "DxfDrawing.h"
#include "types/KsCoordinateSystem.h"

#include "types/KsFigure.h"
#include "types/KsLayer.h"
#include "types/KsScale.h"
#include "utility/Xml.h"

#include <QFileInfo>

#include <algorithm>

namespace kesto::workbench {

namespace {

bool fail(QString* error, const QString& text)
{
    if (error)
        *error = text;
    return false;
}

bool readScale(const QDomElement& e, CMemoryDataBase& db, QString* error)
{
    double numerator = 0;
    double denominator = 0;
    if (!utility::xml::readDoubleAttribute(e, QStringLiteral("numerator"), numerator)
        || !utility::xml::readDoubleAttribute(e, QStringLiteral("denominator"), denominator)
        || numerator <= 0 || denominator <= 0)
        return fail(error, QStringLiteral("line %1: a scale needs numerator and denominator "
                                          "greater than zero")
                               .arg(e.lineNumber()));
    auto* scale = db.add<KsScale>(numerator, denominator);
    if (e.hasAttribute(QStringLiteral("name")))
        scale->setName(e.attribute(QStringLiteral("name")).toStdWString());
    return true;
}

bool readLayer(const QDomElement& e, CMemoryDataBase& db, QString* error)
{
    const QString name = e.attribute(QStringLiteral("name"));
    if (name.isEmpty())
        return fail(error, QStringLiteral("line %1: a layer needs a name").arg(e.lineNumber()));
    auto* layer = db.add<KsLayer>(name.toStdWString());
    const QColor color(e.attribute(QStringLiteral("color"), QStringLiteral("#000000")));
    layer->setColor(KsColor(color.isValid() ? color.rgb() : 0, KsColor::System));
    layer->setLineType(KsLineType(0, e.attribute(QStringLiteral("linetype")).toStdWString()));
    layer->setLineWidth(KsLineWidth(e.attribute(QStringLiteral("width")).toDouble()));
    layer->setComment(e.attribute(QStringLiteral("comment")).toStdWString());
    layer->visible(e.attribute(QStringLiteral("visible"), QStringLiteral("1")) != u"0");
    layer->reference(e.attribute(QStringLiteral("reference"), QStringLiteral("1")) != u"0");
    layer->editable(e.attribute(QStringLiteral("editable"), QStringLiteral("1")) != u"0");
    return true;
}

bool readCoordinateSystem(const QDomElement& e, CMemoryDataBase& db, QString* error)
{
    const QString name = e.attribute(QStringLiteral("name"));
    if (name.isEmpty())
        return fail(
            error, QStringLiteral("line %1: a coordinate system needs a name").arg(e.lineNumber()));
    db.add<KsCoordinateSystem>(name.toStdWString());
    return true;
}

bool readLineWidth(const QDomElement& e, CMemoryDataBase& db, QString* error)
{
    double width = 0;
    if (!utility::xml::readDoubleAttribute(e, QStringLiteral("width"), width) || width <= 0)
        return fail(error, QStringLiteral("line %1: a line width needs a width greater than zero")
                               .arg(e.lineNumber()));
    const QColor color(e.attribute(QStringLiteral("color"), QStringLiteral("#FFFFFF")));
    if (!color.isValid())
        return fail(error,
                    QStringLiteral("line %1: the colour must be #RRGGBB").arg(e.lineNumber()));
    auto* lineWidth = db.add<KsLineWidth>(width);
    lineWidth->setColor(color.rgb());
    lineWidth->setColorType(KsColor::System);
    lineWidth->setColorName(e.attribute(QStringLiteral("colorName")).toStdWString());
    return true;
}

// Thin, bold and extra bold of the drawing; each attribute is optional.
bool readWidthKinds(const QDomElement& e, CMemoryDataBase& db, QString* error)
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
            return fail(error, QStringLiteral("line %1: %2 must be a width greater than zero")
                                   .arg(e.lineNumber())
                                   .arg(attribute));
        db.setLineWidthOfKind(kind, KsLineWidth(width, kind));
    }
    return true;
}

// A figure on one of the layers listed before it.
bool readFigure(const QDomElement& e, CMemoryDataBase& db, QString* error)
{
    const std::wstring name = e.attribute(QStringLiteral("layer")).toStdWString();
    const auto layers = db.elementsOf<KsLayer>(L"LAYER");
    const auto found = std::find_if(layers.begin(), layers.end(),
                                    [&](const KsLayer* layer) { return layer->getName() == name; });
    if (found == layers.end())
        return fail(error, QStringLiteral("line %1: a figure needs the name of a layer listed "
                                          "before it")
                               .arg(e.lineNumber()));
    db.add<KsFigure>(e.attribute(QStringLiteral("kind"), QStringLiteral("LINE")).toStdWString(),
                     *found);
    return true;
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
        fail(error, QStringLiteral("%1: the root element must be <drawing>").arg(path));
        return nullptr;
    }
    auto db = std::make_unique<CMemoryDataBase>(
        root.attribute(QStringLiteral("title"), QFileInfo(path).fileName()).toStdWString());
    for (QDomElement e = root.firstChildElement(); !e.isNull(); e = e.nextSiblingElement()) {
        bool ok = true;
        if (e.tagName() == u"scale")
            ok = readScale(e, *db, &reason);
        else if (e.tagName() == u"layer")
            ok = readLayer(e, *db, &reason);
        else if (e.tagName() == u"coordsys")
            ok = readCoordinateSystem(e, *db, &reason);
        else if (e.tagName() == u"linewidth")
            ok = readLineWidth(e, *db, &reason);
        else if (e.tagName() == u"linewidthkinds")
            ok = readWidthKinds(e, *db, &reason);
        else if (e.tagName() == u"figure")
            ok = readFigure(e, *db, &reason);
        if (!ok) {
            fail(error, QStringLiteral("%1: %2").arg(path, reason));
            return nullptr;
        }
    }
    return db;
}

std::unique_ptr<CMemoryDataBase> openDrawing(const QString& path, QString* error)
{
    const QFileInfo info(path);
    if (!info.isFile()) {
        fail(error, QStringLiteral("%1: no such file").arg(path));
        return nullptr;
    }
    if (info.suffix().compare(QStringLiteral("xml"), Qt::CaseInsensitive) == 0)
        return readXmlDrawing(path, error);
    if (info.suffix().compare(QStringLiteral("dxf"), Qt::CaseInsensitive) == 0)
        return dxf::readDxfDrawing(path, error);
    fail(error, QStringLiteral("%1: unknown drawing format (expected .xml or .dxf)").arg(path));
    return nullptr;
}

} // namespace kesto::workbench
