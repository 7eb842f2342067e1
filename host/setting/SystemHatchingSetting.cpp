#include "setting/SystemHatchingSetting.h"

#include "setting/HatchXml.h"
#include "utility/Xml.h"

#include <algorithm>
#include <set>

namespace kesto::ui::setting {

namespace {

template <class T>
const T* findNamed(const std::vector<T>& list, const std::wstring& name)
{
    const auto it =
        std::find_if(list.begin(), list.end(), [&](const T& item) { return item.name == name; });
    return it == list.end() ? nullptr : &*it;
}

template <class T>
bool namesAreValid(const std::vector<T>& list)
{
    std::set<std::wstring> names;
    for (const T& item : list) {
        if (item.name.empty() || !names.insert(item.name).second)
            return false;
    }
    return true;
}

bool inUnitSquare(const SBaseFigure::Segment& s)
{
    const auto unit = [](double v) { return v >= 0.0 && v <= 1.0; };
    return unit(s.x1) && unit(s.y1) && unit(s.x2) && unit(s.y2);
}

void saveBaseFigure(QDomDocument& doc, QDomElement& parent, const SBaseFigure& figure)
{
    QDomElement e = doc.createElement(QStringLiteral("BaseFigure"));
    hatchxml::writeText(e, QStringLiteral("name"), figure.name);
    for (const SBaseFigure::Segment& s : figure.segments) {
        QDomElement se = doc.createElement(QStringLiteral("Segment"));
        hatchxml::writeDouble(se, QStringLiteral("x1"), s.x1);
        hatchxml::writeDouble(se, QStringLiteral("y1"), s.y1);
        hatchxml::writeDouble(se, QStringLiteral("x2"), s.x2);
        hatchxml::writeDouble(se, QStringLiteral("y2"), s.y2);
        e.appendChild(se);
    }
    parent.appendChild(e);
}

bool loadBaseFigure(const QDomElement& e, SBaseFigure& figure)
{
    hatchxml::readText(e, QStringLiteral("name"), figure.name);
    for (QDomElement se = e.firstChildElement(QStringLiteral("Segment")); !se.isNull();
         se = se.nextSiblingElement(QStringLiteral("Segment"))) {
        SBaseFigure::Segment s;
        const bool ok = hatchxml::readDouble(se, QStringLiteral("x1"), s.x1, 0.0, 1.0)
                        && hatchxml::readDouble(se, QStringLiteral("y1"), s.y1, 0.0, 1.0)
                        && hatchxml::readDouble(se, QStringLiteral("x2"), s.x2, 0.0, 1.0)
                        && hatchxml::readDouble(se, QStringLiteral("y2"), s.y2, 0.0, 1.0);
        if (!ok)
            return false;
        figure.segments.push_back(s);
    }
    return true;
}

// Patterns of one kind under a list element.
template <class Pattern>
void savePatterns(QDomDocument& doc, QDomElement& root, const QString& listName,
                  const std::vector<Pattern>& patterns)
{
    QDomElement list = doc.createElement(listName);
    root.appendChild(list);
    for (const Pattern& pattern : patterns)
        pattern.saveXMLNode(list, doc);
}

// Each pattern starts from its defaults; one without a name of its own is not read.
template <class Pattern>
bool loadPatterns(const QDomElement& root, const QString& listName, std::vector<Pattern>& out)
{
    const QString tag = Pattern().getNodeName();
    const QDomElement list = root.firstChildElement(listName);
    std::set<std::wstring> names;
    for (QDomElement e = list.firstChildElement(tag); !e.isNull(); e = e.nextSiblingElement(tag)) {
        Pattern pattern;
        if (!pattern.loadXMLNode(e, nullptr) || pattern.name.empty()
            || !names.insert(pattern.name).second) {
            if (utility::xml::skipEntry(e))
                continue;
            return false;
        }
        out.push_back(pattern);
    }
    return true;
}

} // namespace

const SBaseFigure* CSystemHatchingSetting::findBaseFigure(const std::wstring& name) const
{
    return findNamed(m_baseFigures, name);
}

const SFigurePattern* CSystemHatchingSetting::findFigurePattern(const std::wstring& name) const
{
    return findNamed(m_figurePatterns, name);
}

const SSlantPattern* CSystemHatchingSetting::findSlantPattern(const std::wstring& name) const
{
    return findNamed(m_slantPatterns, name);
}

const SCoatingPattern* CSystemHatchingSetting::findCoatingPattern(const std::wstring& name) const
{
    return findNamed(m_coatingPatterns, name);
}

bool CSystemHatchingSetting::setBaseFigures(const std::vector<SBaseFigure>& figures)
{
    for (const SBaseFigure& figure : figures) {
        if (!std::all_of(figure.segments.begin(), figure.segments.end(), inUnitSquare))
            return false;
    }
    if (!namesAreValid(figures))
        return false;
    m_baseFigures = figures;
    return true;
}

bool CSystemHatchingSetting::setFigurePatterns(const std::vector<SFigurePattern>& patterns)
{
    if (!namesAreValid(patterns))
        return false;
    m_figurePatterns = patterns;
    return true;
}

bool CSystemHatchingSetting::setSlantPatterns(const std::vector<SSlantPattern>& patterns)
{
    if (!namesAreValid(patterns))
        return false;
    m_slantPatterns = patterns;
    return true;
}

bool CSystemHatchingSetting::setCoatingPatterns(const std::vector<SCoatingPattern>& patterns)
{
    if (!namesAreValid(patterns))
        return false;
    m_coatingPatterns = patterns;
    return true;
}

bool CSystemHatchingSetting::isSame(const CSystemHatchingSetting& other) const
{
    return m_baseFigures == other.m_baseFigures && m_figurePatterns == other.m_figurePatterns
           && m_slantPatterns == other.m_slantPatterns
           && m_coatingPatterns == other.m_coatingPatterns;
}

bool CSystemHatchingSetting::loadXMLNode(const QDomElement& element)
{
    std::vector<SBaseFigure> figures;
    std::set<std::wstring> names;
    const QDomElement figureList = element.firstChildElement(QStringLiteral("BaseFigures"));
    for (QDomElement e = figureList.firstChildElement(QStringLiteral("BaseFigure")); !e.isNull();
         e = e.nextSiblingElement(QStringLiteral("BaseFigure"))) {
        SBaseFigure figure;
        if (!loadBaseFigure(e, figure) || figure.name.empty()
            || !names.insert(figure.name).second) {
            if (utility::xml::skipEntry(e))
                continue;
            return false;
        }
        figures.push_back(std::move(figure));
    }
    CSystemHatchingSetting read;
    std::vector<SFigurePattern> figurePatterns;
    std::vector<SSlantPattern> slantPatterns;
    std::vector<SCoatingPattern> coatingPatterns;
    if (!loadPatterns(element, QStringLiteral("FigurePatterns"), figurePatterns)
        || !loadPatterns(element, QStringLiteral("SlantPatterns"), slantPatterns)
        || !loadPatterns(element, QStringLiteral("CoatingPatterns"), coatingPatterns)
        || !read.setBaseFigures(figures) || !read.setFigurePatterns(figurePatterns)
        || !read.setSlantPatterns(slantPatterns) || !read.setCoatingPatterns(coatingPatterns))
        return false;
    *this = read;
    return true;
}

void CSystemHatchingSetting::saveXMLNode(QDomDocument& doc, QDomElement& element) const
{
    QDomElement figures = doc.createElement(QStringLiteral("BaseFigures"));
    element.appendChild(figures);
    for (const SBaseFigure& figure : m_baseFigures)
        saveBaseFigure(doc, figures, figure);
    savePatterns(doc, element, QStringLiteral("FigurePatterns"), m_figurePatterns);
    savePatterns(doc, element, QStringLiteral("SlantPatterns"), m_slantPatterns);
    savePatterns(doc, element, QStringLiteral("CoatingPatterns"), m_coatingPatterns);
}

} // namespace kesto::ui::setting
