#include "setting/SystemPaperFrameSetting.h"

#include "setting/SettingXml.h"
#include "utility/Xml.h"

namespace kesto::ui::setting {

namespace {

QString frameTag()
{
    return QStringLiteral("PaperFrame");
}

QString lineTag()
{
    return QStringLiteral("FrameLine");
}

const char* const kLineNames[] = {"draw", "inner", "cut"};
const char* const kFlagNames[] = {"drawFrame", "innerFrame", "cutLine"};

QString dimensionName(int index)
{
    return QString(QChar(u'a' + index));
}

bool readFrame(const QDomElement& e, SPaperFrame& out)
{
    SPaperFrame frame;
    frame.name = e.attribute(QStringLiteral("name")).toStdWString();
    if (frame.name.empty())
        return false;
    for (int i = 0; i < SPaperFrame::kDimensionCount; ++i) {
        if (!utility::xml::readIntAttribute(e, dimensionName(i), frame.dimensions[i]))
            return false;
    }
    bool* flags[] = {&frame.drawFrame, &frame.innerFrame, &frame.cutLine};
    for (int i = 0; i < 3; ++i) {
        if (!xmlform::readFlag(e, QString::fromLatin1(kFlagNames[i]), true, *flags[i]))
            return false;
    }
    out = std::move(frame);
    return true;
}

void writeFrame(QDomElement& e, const SPaperFrame& frame)
{
    e.setAttribute(QStringLiteral("name"), QString::fromStdWString(frame.name));
    for (int i = 0; i < SPaperFrame::kDimensionCount; ++i)
        e.setAttribute(dimensionName(i), frame.dimensions[i]);
    const bool flags[] = {frame.drawFrame, frame.innerFrame, frame.cutLine};
    for (int i = 0; i < 3; ++i)
        e.setAttribute(QString::fromLatin1(kFlagNames[i]), flags[i] ? 1 : 0);
}

SFrameLineLook look(KsColor color, int lineTypeId, const wchar_t* lineType, int widthKind,
                    double width)
{
    return {std::move(color), KsLineType(lineTypeId, lineType), KsLineWidth(width, widthKind)};
}

} // namespace

bool SFrameLineLook::operator==(const SFrameLineLook& other) const
{
    return color == other.color && lineType == other.lineType && lineWidth == other.lineWidth;
}

CSystemPaperFrameSetting CSystemPaperFrameSetting::makeDefault()
{
    using D = std::array<int, SPaperFrame::kDimensionCount>;
    CSystemPaperFrameSetting setting;
    setting.m_frames = {
        {L"A0", D{30, 20, 20, 20, 5, 5, 185, 60}, true, true, true},
        {L"A1", D{30, 20, 20, 20, 5, 5, 185, 60}, true, true, true},
        {L"A2", D{25, 10, 10, 10, 3, 3, 150, 50}, true, true, true},
        {L"A3", D{25, 10, 10, 10, 2, 2, 120, 40}, true, false, true},
        {L"A4", D{20, 10, 10, 10, 2, 2, 100, 30}, true, false, true},
        {L"A4縦", D{20, 10, 10, 10, 2, 2, 100, 30}, true, false, true},
        {L"B4", D{20, 10, 10, 10, 2, 2, 110, 35}, true, false, true},
    };
    setting.m_initFrameName = L"A1";
    setting.m_looks[DrawFrame] =
        look(KsColor(0xFFFFFF, KsColor::System, L"白"), 11, L"実線", KsLineWidth::Bold, 0.35);
    setting.m_looks[InnerFrame] =
        look(KsColor(0xFFFFFF, KsColor::System, L"白"), 11, L"実線", KsLineWidth::Thin, 0.18);
    setting.m_looks[CutFrame] =
        look(KsColor(0x808080, KsColor::System, L"灰"), 11, L"実線", KsLineWidth::Thin, 0.18);
    return setting;
}

bool CSystemPaperFrameSetting::isSame(const CSystemPaperFrameSetting& other) const
{
    return m_frames == other.m_frames && m_initFrameName == other.m_initFrameName
           && m_looks == other.m_looks;
}

bool CSystemPaperFrameSetting::loadXMLNode(const QDomElement& element)
{
    std::vector<SPaperFrame> frames;
    for (QDomElement e = element.firstChildElement(frameTag()); !e.isNull();
         e = e.nextSiblingElement(frameTag())) {
        SPaperFrame frame;
        if (!readFrame(e, frame)) {
            if (utility::xml::skipEntry(e))
                continue;
            return false;
        }
        frames.push_back(std::move(frame));
    }
    std::array<SFrameLineLook, FrameLineCount> looks = m_looks;
    for (QDomElement e = element.firstChildElement(lineTag()); !e.isNull();
         e = e.nextSiblingElement(lineTag())) {
        const QString kind = e.attribute(QStringLiteral("kind"));
        for (int i = 0; i < FrameLineCount; ++i) {
            SFrameLineLook read = looks[i];
            if (kind != QLatin1String(kLineNames[i]))
                continue;
            if (xmlform::readColor(e, read.color) && xmlform::readLineType(e, read.lineType)
                && xmlform::readLineWidth(e, read.lineWidth))
                looks[i] = read;
            else if (!utility::xml::skipEntry(e))
                return false;
        }
    }
    m_frames = std::move(frames);
    m_looks = looks;
    m_initFrameName = element.attribute(QStringLiteral("initial")).toStdWString();
    return true;
}

void CSystemPaperFrameSetting::saveXMLNode(QDomDocument& doc, QDomElement& element) const
{
    element.setAttribute(QStringLiteral("initial"), QString::fromStdWString(m_initFrameName));
    for (const SPaperFrame& frame : m_frames) {
        QDomElement e = doc.createElement(frameTag());
        writeFrame(e, frame);
        element.appendChild(e);
    }
    for (int i = 0; i < FrameLineCount; ++i) {
        QDomElement e = doc.createElement(lineTag());
        e.setAttribute(QStringLiteral("kind"), QString::fromLatin1(kLineNames[i]));
        xmlform::writeColor(e, m_looks[i].color);
        xmlform::writeLineType(e, m_looks[i].lineType);
        xmlform::writeLineWidth(e, m_looks[i].lineWidth);
        element.appendChild(e);
    }
}

} // namespace kesto::ui::setting
