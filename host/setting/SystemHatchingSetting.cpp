#include "setting/SystemHatchingSetting.h"

#include "setting/HatchXml.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>
#include <unordered_set>
#include <utility>

namespace kesto::ui::setting {

namespace {

template <class T>
const T* findNamed(const std::vector<T>& list, const std::wstring& name)
{
    const auto it =
        std::find_if(list.begin(), list.end(), [&](const T& item) { return item.name == name; });
    return it == list.end() ? nullptr : &*it;
}

bool inUnitSquare(const SBaseFigure::Segment& s)
{
    const auto unit = [](double v) { return v >= 0.0 && v <= 1.0; };
    return unit(s.x1) && unit(s.y1) && unit(s.x2) && unit(s.y2);
}

template <class T>
bool namesAreValid(const std::vector<T>& list)
{
    std::unordered_set<std::wstring_view> names;
    names.reserve(list.size());
    for (const T& item : list) {
        if (item.name.empty() || !names.insert(item.name).second)
            return false;
    }
    return true;
}

bool baseFiguresAreValid(const std::vector<SBaseFigure>& figures)
{
    return namesAreValid(figures) && std::all_of(figures.begin(), figures.end(), [](const auto& f) {
               return std::all_of(f.segments.begin(), f.segments.end(), inUnitSquare);
           });
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

} // namespace

// The lists as they are read, before any of it is taken. Each item starts from its defaults and
// is read where it stays.
struct SReadLists {
    std::vector<SBaseFigure> figures;
    std::vector<SFigurePattern> figurePatterns;
    std::vector<SSlantPattern> slantPatterns;
    std::vector<SCoatingPattern> coatingPatterns;

    bool namesAreValid() const
    {
        return baseFiguresAreValid(figures) && setting::namesAreValid(figurePatterns)
               && setting::namesAreValid(slantPatterns) && setting::namesAreValid(coatingPatterns);
    }
};

namespace {

bool readFigure(SReadLists& lists, const QDomElement& e)
{
    return loadBaseFigure(e, lists.figures.emplace_back());
}

template <class Pattern, std::vector<Pattern> SReadLists::*list>
bool readPattern(SReadLists& lists, const QDomElement& e)
{
    return (lists.*list).emplace_back().loadXMLNode(e, nullptr);
}

// A list of the file, the elements of its items and how one is read. Other elements are left
// out, as are a list's second and later elements.
struct SListForm {
    QLatin1String list;
    QLatin1String item;
    bool (*read)(SReadLists&, const QDomElement&);
};

const SListForm kListForms[] = {
    {QLatin1String("BaseFigures"), QLatin1String("BaseFigure"), readFigure},
    {QLatin1String("FigurePatterns"), QLatin1String("FigurePattern"),
     readPattern<SFigurePattern, &SReadLists::figurePatterns>},
    {QLatin1String("SlantPatterns"), QLatin1String("SlantPattern"),
     readPattern<SSlantPattern, &SReadLists::slantPatterns>},
    {QLatin1String("CoatingPatterns"), QLatin1String("CoatingPattern"),
     readPattern<SCoatingPattern, &SReadLists::coatingPatterns>},
};

// The element the reader stands on, with its attributes and child elements, as an element of
// doc (not inserted into it, so it is gone with its last handle).
QDomElement copyElement(QXmlStreamReader& reader, QDomDocument& doc)
{
    QDomElement element = doc.createElement(reader.name().toString());
    for (const QXmlStreamAttribute& attribute : reader.attributes())
        element.setAttribute(attribute.name().toString(), attribute.value().toString());
    while (reader.readNextStartElement())
        element.appendChild(copyElement(reader, doc));
    return element;
}

// The items of the list element the reader stands on, each copied, read and dropped in turn.
bool streamList(QXmlStreamReader& reader, const SListForm& form, SReadLists& lists)
{
    QDomDocument doc;
    while (reader.readNextStartElement()) {
        if (reader.name() != form.item)
            reader.skipCurrentElement();
        else if (!form.read(lists, copyElement(reader, doc)))
            return false;
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
    if (!baseFiguresAreValid(figures))
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
    SReadLists lists;
    for (const SListForm& form : kListForms) {
        const QString tag = form.item;
        const QDomElement list = element.firstChildElement(form.list);
        for (QDomElement e = list.firstChildElement(tag); !e.isNull();
             e = e.nextSiblingElement(tag)) {
            if (!form.read(lists, e))
                return false;
        }
    }
    return take(lists);
}

// Registries run to thousands of patterns: the file is read one item at a time, so that time and
// memory grow with the file and no faster.
bool CSystemHatchingSetting::loadXMLStream(QXmlStreamReader& reader)
{
    SReadLists lists;
    std::array<bool, std::size(kListForms)> seen{};
    while (reader.readNextStartElement()) {
        const auto form = std::find_if(std::begin(kListForms), std::end(kListForms),
                                       [&](const SListForm& f) { return reader.name() == f.list; });
        const auto index = static_cast<std::size_t>(form - std::begin(kListForms));
        if (form == std::end(kListForms) || seen[index]) {
            reader.skipCurrentElement();
            continue;
        }
        seen[index] = true;
        if (!streamList(reader, *form, lists))
            return false;
    }
    return readToEnd(reader) && take(lists);
}

// Taken only whole, and moved, not copied.
bool CSystemHatchingSetting::take(SReadLists& lists)
{
    if (!lists.namesAreValid())
        return false;
    m_baseFigures = std::move(lists.figures);
    m_figurePatterns = std::move(lists.figurePatterns);
    m_slantPatterns = std::move(lists.slantPatterns);
    m_coatingPatterns = std::move(lists.coatingPatterns);
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
