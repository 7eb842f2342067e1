#include "dxf/DxfCollector.h"

#include "core/Application.h"
#include "db/MemoryDataBase.h"
#include "element/KsViewPort.h"
#include "setting/SystemColorSetting.h"
#include "types/KsFigure.h"
#include "types/KsLayer.h"

#include <dl_codes.h>

#include <QColor>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <unordered_set>

namespace kesto::workbench::dxf {

namespace {

// Layer names compare without case, as in the file format; non-ASCII bytes compare as they are.
std::string keyOf(const std::string& name)
{
    if (name.empty())
        return std::string(1, '0'); // an entity without a layer lies on layer 0
    std::string key(name.size(), ' ');
    std::transform(name.begin(), name.end(), key.begin(), [](unsigned char c) {
        return c < 0x80 ? static_cast<char>(std::toupper(c)) : static_cast<char>(c);
    });
    return key;
}

// Numbers as files write them, often right-aligned ("    69").
int toInt(const std::string& value, int fallback)
{
    const char* begin = value.data();
    const char* end = begin + value.size();
    while (begin < end && (*begin == ' ' || *begin == '\t'))
        ++begin;
    while (end > begin && (end[-1] == ' ' || end[-1] == '\t' || end[-1] == '\r'))
        --end;
    int result = fallback;
    const auto [stop, ec] = std::from_chars(begin, end, result);
    return ec == std::errc() && stop == end ? result : fallback;
}

bool isFigure(const std::string& kind)
{
    static const std::unordered_set<std::string> notFigures{"",      "SECTION", "ENDSEC", "EOF",
                                                            "BLOCK", "ENDBLK",  "SEQEND", "VERTEX"};
    return notFigures.count(kind) == 0;
}

// The system palette's colours that ACI 1 to 7 stand for, by their names in the palette. ACI 7
// is the drawing's foreground: black on our white sheets.
SystemPalette systemPalette()
{
    static const wchar_t* const names[] = {L"赤", L"黄", L"緑", L"水色", L"青", L"紫", L"黒"};
    const auto defaults = ui::setting::CSystemColorSetting::makeDefault();
    const core::CSystemConfig* config = core::Application::getInstance()->getSystemConfig();
    const auto* current = config ? config->getSetting<ui::setting::CSystemColorSetting>() : nullptr;
    SystemPalette palette;
    for (std::size_t i = 0; i < palette.size(); ++i) {
        const KsColor* named = current ? current->findByName(names[i]) : nullptr;
        palette[i] = named ? *named : *defaults.findByName(names[i]);
    }
    return palette;
}

// A true colour as it is; ACI 1 to 7 as the system palette's colours, others in the standard
// RGB. The ACI read is kept with the colour, so that it can be written back.
KsColor colorOf(int aci, int trueColor, const SystemPalette& palette)
{
    aci = std::abs(aci);
    if (aci < 1 || aci > 255)
        aci = 7;
    const auto rgb = static_cast<std::uint32_t>(trueColor) & 0xFFFFFFu;
    KsColor color;
    if (trueColor >= 0 && !(aci == 7 && rgb == 0xFFFFFFu)) {
        color = KsColor(rgb, KsColor::User,
                        QColor::fromRgb(rgb).name(QColor::HexRgb).toUpper().toStdWString());
    } else if (aci <= static_cast<int>(palette.size())) {
        color = palette[static_cast<std::size_t>(aci - 1)];
    } else {
        auto channel = [&](int i) {
            return static_cast<std::uint32_t>(std::lround(dxfColors[aci][i] * 255.0));
        };
        color = KsColor((channel(0) << 16) | (channel(1) << 8) | channel(2), KsColor::System,
                        std::to_wstring(aci));
    }
    color.setNumber(aci);
    return color;
}

KsLineType::EKind lineTypeKind(const std::string& key, bool hasDashes)
{
    if (key == "BYLAYER")
        return KsLineType::ByLayer;
    if (key == "BYBLOCK")
        return KsLineType::ByBlock;
    return hasDashes ? KsLineType::Pattern : KsLineType::Solid;
}

} // namespace

void CDxfCollector::processCodeValuePair(unsigned int code, const std::string& value)
{
    if (code == 0) {
        endRecord();
        m_record.kind = value;
        if (value == "SECTION")
            m_expectSectionName = true;
        else if (value == "ENDSEC")
            m_section.clear();
        return;
    }
    if (m_expectSectionName && code == 2) {
        m_section = value;
        m_expectSectionName = false;
    } else if (code == 8) {
        m_record.layer = value;
    } else if (code == 370) {
        m_record.lineWeight = toInt(value, -3);
    } else if (code == 62) {
        m_record.color = toInt(value, 256);
    } else if (code == 420) {
        m_record.trueColor = toInt(value, -1);
    } else if (code == 6) {
        m_record.lineType = value;
    } else if (code == 1001) {
        m_record.xdataApp = value;
    } else if (code == 1000 && m_record.xdataApp == "AcAecLayerStandard") {
        m_record.xdataStrings.push_back(value);
    } else if (code == 5) {
        m_record.handle = value;
    } else if (m_record.kind == "VIEWPORT") {
        readViewportPair(code, value);
    }
}

void CDxfCollector::readViewportPair(unsigned int code, const std::string& value)
{
    if (code == 69)
        m_record.viewportId = toInt(value, 0);
    else if (code == 331)
        m_record.frozenHandles.push_back(value);
    else if (code == 1003 && m_record.xdataApp == "ACAD")
        m_record.frozenNames.push_back(value);
}

void CDxfCollector::endRecord()
{
    const bool inEntities = m_section == "ENTITIES";
    const bool inBlocks = m_section == "BLOCKS";
    if ((inEntities || inBlocks) && isFigure(m_record.kind)) {
        int viewport = -1;
        if (m_record.kind == "VIEWPORT" && m_record.viewportId >= 2) {
            viewport = static_cast<int>(m_viewports.size());
            m_viewports.push_back({m_record.handle, std::move(m_record.frozenHandles),
                                   std::move(m_record.frozenNames)});
        }
        const auto weight = static_cast<std::int16_t>(std::clamp(m_record.lineWeight, -3, 211));
        const auto color = static_cast<std::int16_t>(std::clamp(m_record.color, -256, 256));
        m_figures.push_back({kindIndex(m_record.kind), keyIndex(m_record.layer), inBlocks, viewport,
                             figureLineTypeIndex(m_record.lineType), m_record.trueColor, color,
                             weight});
        if (m_record.lineWeight >= 0)
            m_lineWeights.insert(m_record.lineWeight);
    }
    m_previous = std::move(m_record);
    m_record = SRecord();
}

int CDxfCollector::keyIndex(const std::string& rawName)
{
    std::string key = keyOf(rawName);
    if (const auto found = m_keyIndex.find(key); found != m_keyIndex.end())
        return found->second;
    const int index = static_cast<int>(m_layerKeys.size());
    m_layerKeys.push_back(rawName.empty() ? std::string("0") : rawName);
    m_keyIndex.emplace(std::move(key), index);
    return index;
}

int CDxfCollector::kindIndex(const std::string& kind)
{
    if (const auto found = m_kindIndex.find(kind); found != m_kindIndex.end())
        return found->second;
    const int index = static_cast<int>(m_kinds.size());
    m_kinds.push_back(kind);
    m_kindIndex.emplace(kind, index);
    return index;
}

// BYLAYER, BYBLOCK and no name at all are -1: the figure takes its layer's line type.
int CDxfCollector::figureLineTypeIndex(const std::string& rawName)
{
    if (rawName.empty())
        return -1;
    std::string key = keyOf(rawName);
    if (key == "BYLAYER" || key == "BYBLOCK")
        return -1;
    if (const auto found = m_figureLineTypeIndex.find(key); found != m_figureLineTypeIndex.end())
        return found->second;
    const int index = static_cast<int>(m_figureLineTypes.size());
    m_figureLineTypes.push_back(key);
    m_figureLineTypeIndex.emplace(std::move(key), index);
    return index;
}

void CDxfCollector::setVariableString(const std::string& key, const std::string& value, int code)
{
    if (key == "$ACADVER")
        m_decoder.setVersion(value);
    else if (key == "$DWGCODEPAGE")
        m_decoder.setCodePage(value);
    else if (key == "$CLAYER")
        m_currentLayer = value;
    else if (key == "$LWDEFAULT") // the parser passes group code 370 as text
        setVariableInt(key, toInt(value, m_defaultLineWeight), code);
}

void CDxfCollector::setVariableInt(const std::string& key, int value, int)
{
    if (key == "$LWDEFAULT" && value >= 0 && value <= 211)
        m_defaultLineWeight = value;
}

// Like a layer, a line type is reported once the next record has begun; its dashes come
// while it is read.
void CDxfCollector::addLinetype(const DL_LinetypeData& data)
{
    m_lineTypes.push_back({data.name, data.description, m_previous.dashes});
}

void CDxfCollector::addLinetypeDash(double length)
{
    if (std::isfinite(length))
        m_record.dashes.push_back(length);
}

// Called once the next record has begun, so the layer's own pairs are in m_previous.
void CDxfCollector::addLayer(const DL_LayerData& data)
{
    const DL_Attributes attributes = getAttributes();
    SLayer layer;
    layer.name = data.name;
    layer.flags = data.flags;
    layer.color = attributes.getColor();
    layer.trueColor = attributes.getColor24();
    layer.lineWeight = attributes.getWidth();
    layer.lineType = attributes.getLinetype();
    if (m_previous.kind == "LAYER") {
        layer.handle = m_previous.handle.empty() ? std::string() : keyOf(m_previous.handle);
        if (m_previous.xdataStrings.size() >= 2)
            layer.description = m_previous.xdataStrings[1];
    }
    m_layers.push_back(std::move(layer));
}

std::vector<KsLineType*> CDxfCollector::addLineTypes(CMemoryDataBase& db) const
{
    std::vector<KsLineType*> added;
    int id = KsLineType::kFirstDrawingId;
    for (const SLineType& lineType : m_lineTypes) {
        const auto kind = lineTypeKind(keyOf(lineType.name), !lineType.dashes.empty());
        added.push_back(db.add<KsLineType>(id++, m_decoder.decode(lineType.name).toStdWString(),
                                           kind, lineType.dashes));
    }
    return added;
}

// The table's line type for each name figures use; null where the table lacks the name.
std::vector<const KsLineType*>
CDxfCollector::lineTypesOfFigures(const std::vector<KsLineType*>& table) const
{
    std::vector<const KsLineType*> out;
    out.reserve(m_figureLineTypes.size());
    for (const std::string& key : m_figureLineTypes) {
        const auto found = std::find_if(m_lineTypes.begin(), m_lineTypes.end(),
                                        [&](const SLineType& t) { return keyOf(t.name) == key; });
        out.push_back(found == m_lineTypes.end()
                          ? nullptr
                          : table[static_cast<std::size_t>(found - m_lineTypes.begin())]);
    }
    return out;
}

// ACI 256 is by layer; by block counts as by layer too, since a figure is shown on its own.
void CDxfCollector::styleFigure(KsFigure& figure, const SFigure& source,
                                const std::vector<const KsLineType*>& lineTypes) const
{
    const bool colorByLayer = source.trueColor < 0 && (source.color == 256 || source.color == 0);
    if (!colorByLayer)
        figure.setColor(colorOf(source.color, source.trueColor, m_palette));
    if (source.lineType >= 0)
        figure.setLineType(lineTypes[static_cast<std::size_t>(source.lineType)]);
    if (source.weight >= 0)
        figure.setLineWidth(source.weight / 100.0);
    else if (source.weight == -3)
        figure.setLineWidth(m_defaultLineWeight / 100.0);
}

KsLayer* CDxfCollector::addLayer(CMemoryDataBase& db, const SLayer& source) const
{
    auto* layer = db.add<KsLayer>(m_decoder.decode(source.name).toStdWString());
    layer->setColor(colorOf(source.color, source.trueColor, m_palette));
    const std::string lineTypeKey = keyOf(source.lineType);
    const auto found = std::find_if(m_lineTypes.begin(), m_lineTypes.end(),
                                    [&](const auto& t) { return keyOf(t.name) == lineTypeKey; });
    const std::wstring lineTypeName = m_decoder.decode(source.lineType).toStdWString();
    if (found != m_lineTypes.end())
        layer->setLineType(KsLineType(
            static_cast<int>(found - m_lineTypes.begin()) + KsLineType::kFirstDrawingId,
            lineTypeName, lineTypeKind(lineTypeKey, !found->dashes.empty()), found->dashes));
    else
        layer->setLineType(KsLineType(0, lineTypeName));
    KsLineWidth width(source.lineWeight >= 0 ? source.lineWeight / 100.0
                                             : m_defaultLineWeight / 100.0);
    if (source.lineWeight < 0)
        width.setName(L"既定");
    layer->setLineWidth(width);
    layer->setComment(m_decoder.decode(source.description).toStdWString());
    const bool off = source.color < 0;
    const bool frozen = (source.flags & 1) != 0;
    layer->visible(!off && !frozen);
    layer->reference(!frozen);
    layer->editable((source.flags & 4) == 0);
    return layer;
}

void CDxfCollector::addFigures(CMemoryDataBase& db, std::vector<KsLayer*>& layerOfKey,
                               const std::vector<const KsLineType*>& lineTypes)
{
    std::vector<std::wstring> kindNames;
    kindNames.reserve(m_kinds.size());
    for (const std::string& kind : m_kinds)
        kindNames.push_back(QString::fromLatin1(kind.c_str()).toStdWString());
    for (const SFigure& figure : m_figures) {
        auto& layer = layerOfKey[static_cast<std::size_t>(figure.layer)];
        if (!layer) { // a layer the table does not list: the drawing still has it
            SLayer implicit;
            implicit.name = m_layerKeys[static_cast<std::size_t>(figure.layer)];
            layer = addLayer(db, implicit);
        }
        if (figure.viewport >= 0)
            addViewport(db, m_viewports[static_cast<std::size_t>(figure.viewport)], layer,
                        figure.inBlock);
        else
            styleFigure(*db.add<KsFigure>(kindNames[static_cast<std::size_t>(figure.kind)], layer,
                                          figure.inBlock),
                        figure, lineTypes);
    }
}

// A viewport keeps the layers frozen in it as hidden there (flag 2).
void CDxfCollector::addViewport(CMemoryDataBase& db, const SViewport& viewport,
                                const KsLayer* layer, bool inBlock) const
{
    element::LayerFlagMap flags;
    for (const std::string& handle : viewport.frozenHandles) {
        const auto found = std::find_if(m_layers.begin(), m_layers.end(), [&](const SLayer& l) {
            return !l.handle.empty() && l.handle == keyOf(handle);
        });
        if (found != m_layers.end())
            flags[m_decoder.decode(found->name).toStdWString()] = element::LayerFlagOff;
    }
    for (const std::string& name : viewport.frozenNames)
        flags[m_decoder.decode(name).toStdWString()] = element::LayerFlagOff;
    const QString name = QStringLiteral("ビューポート ")
                         + (viewport.handle.empty()
                                ? QString::number(db.elementsOf<KsViewPort>(L"VIEWPORT").size() + 1)
                                : QString::fromStdString(viewport.handle));
    auto* created = db.add<KsViewPort>(name.toStdWString(), layer, inBlock);
    created->setLayerFlgs(std::move(flags));
}

void CDxfCollector::addLineWidths(CMemoryDataBase& db) const
{
    std::set<int> weights = m_lineWeights;
    for (const SLayer& layer : m_layers) {
        if (layer.lineWeight >= 0)
            weights.insert(layer.lineWeight);
    }
    for (int weight : weights)
        db.add<KsLineWidth>(weight / 100.0);
}

void CDxfCollector::build(CMemoryDataBase& db)
{
    endRecord();
    m_palette = systemPalette();
    const std::vector<const KsLineType*> figureLineTypes = lineTypesOfFigures(addLineTypes(db));
    std::unordered_map<std::string, KsLayer*> layerOfName;
    std::unordered_map<std::wstring, KsLayer*> layerOfText; // \U+ written one way, read another
    for (const SLayer& source : m_layers) {
        if (source.name.empty() || layerOfName.count(keyOf(source.name)))
            continue; // a second layer of the same name cannot be told apart
        KsLayer* layer = addLayer(db, source);
        layerOfName.emplace(keyOf(source.name), layer);
        layerOfText.emplace(QString::fromStdWString(layer->getName()).toUpper().toStdWString(),
                            layer);
    }
    std::vector<KsLayer*> layerOfKey;
    layerOfKey.reserve(m_layerKeys.size());
    for (const std::string& raw : m_layerKeys) {
        KsLayer* layer = nullptr;
        if (const auto found = layerOfName.find(keyOf(raw)); found != layerOfName.end())
            layer = found->second;
        else if (const auto text = layerOfText.find(m_decoder.decode(raw).toUpper().toStdWString());
                 text != layerOfText.end())
            layer = text->second;
        layerOfKey.push_back(layer);
    }
    addFigures(db, layerOfKey, figureLineTypes);
    addLineWidths(db);
    const auto current = layerOfName.find(keyOf(m_currentLayer));
    if (!m_currentLayer.empty() && current != layerOfName.end())
        db.getLayerManager()->setCurrentLayer(current->second);
}

} // namespace kesto::workbench::dxf
