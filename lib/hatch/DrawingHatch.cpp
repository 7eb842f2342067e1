#include "hatch/DrawingHatch.h"

#include "config/DialogDataFile.h"
#include "core/Application.h"
#include "setting/SystemLineTypeSetting.h"
#include "utility/Xml.h"

namespace kesto::ui::config {

namespace xml = utility::xml;

namespace {

const QString& recordName()
{
    static const QString name = QStringLiteral("DrawingHatch");
    return name;
}

const QString& hatchTypeTag()
{
    static const QString tag = QStringLiteral("HatchType");
    return tag;
}

QString recordTag()
{
    return QString::fromLatin1(dialogdata::kRecordTag);
}

QString nameAttribute()
{
    return QString::fromLatin1(dialogdata::kRecordNameAttribute);
}

} // namespace

SDrawingHatch::SDrawingHatch() = default;

SDrawingHatch::SDrawingHatch(const SDrawingHatch& other)
{
    *this = other;
}

SDrawingHatch& SDrawingHatch::operator=(const SDrawingHatch& other)
{
    hatchType = other.hatchType;
    figurePattern = other.figurePattern;
    slantPattern = other.slantPattern;
    coatingPattern = other.coatingPattern;
    holdPattern = other.holdPattern;
    innerFrameAvailable = other.innerFrameAvailable;
    referenceElement = other.referenceElement;
    return *this;
}

SDrawingHatch::~SDrawingHatch() = default;

void SDrawingHatch::initByDefault()
{
    hatchType = HatchFigure;
    figurePattern.initByDefault();
    slantPattern.initByDefault();
    coatingPattern.initByDefault();
    holdPattern.initByDefault();
    innerFrameAvailable = 0;
    referenceElement = nullptr;
}

bool SDrawingHatch::saveDialogData() const
{
    try {
        return dialogdata::saveRecord(recordName(), [this](QDomElement& root, QDomDocument& doc) {
            return saveXMLNode(root, doc);
        });
    } catch (...) {
        return false;
    }
}

bool SDrawingHatch::loadDialogData()
{
    try {
        QDomDocument doc;
        QDomElement root;
        QDomElement record;
        if (!dialogdata::load(doc, root) || !dialogdata::findRecord(record, doc, recordName()))
            return false;
        const core::CSystemConfig* config = core::Application::getInstance()->getSystemConfig();
        const auto* lineTypes =
            config ? config->getSetting<setting::ISystemLineTypeSetting>() : nullptr;
        return loadXMLNode(record, lineTypes);
    } catch (...) {
        return false;
    }
}

bool SDrawingHatch::saveXMLNode(QDomNode& parent, QDomDocument& doc) const
{
    QDomElement record;
    QDomElement type;
    return xml::createElement(record, doc, recordTag()) && !parent.appendChild(record).isNull()
           && xml::writeAttributeText(record, nameAttribute(), recordName())
           && xml::writeIntElement(type, record, doc, hatchTypeTag(), hatchType)
           && figurePattern.saveXMLNode(record, doc) && slantPattern.saveXMLNode(record, doc)
           && coatingPattern.saveXMLNode(record, doc);
}

bool SDrawingHatch::loadXMLNode(const QDomNode& node,
                                const setting::ISystemLineTypeSetting* lineTypes)
{
    if (node.isNull())
        return false;
    const QDomNodeList children = node.childNodes();
    for (int i = 0; i < children.size(); ++i) {
        const QDomNode child = children.at(i);
        const QString name = child.nodeName();
        if (name == setting::SFigurePattern::getXMLNodeName())
            figurePattern.loadXMLNode(child, lineTypes);
        else if (name == slantPattern.getNodeName())
            slantPattern.loadXMLNode(child, lineTypes);
        else if (name == coatingPattern.getNodeName())
            coatingPattern.loadXMLNode(child, lineTypes);
        else if (name == hatchTypeTag())
            xml::readInt(hatchType, child.toElement());
    }
    return true;
}

} // namespace kesto::ui::config
