#pragma once

#include "dxf/DxfText.h"

#include "types/KsColor.h"

#include <dl_creationadapter.h>

#include <array>
#include <cstdint>
#include <set>
#include <string>
#include <unordered_map>
#include <vector>

class CMemoryDataBase;
class KsFigure;
class KsLayer;
class KsLineType;

namespace kesto::workbench::dxf {

// The system palette's colours of ACI 1 to 7.
using SystemPalette = std::array<KsColor, 7>;

// Collects what the workbench keeps of a DXF drawing while the parser reads it, then builds
// the database. The parser gives the header, the line types and the layers; the group codes it
// does not keep (a layer's description, an entity's layer for kinds it does not know) are
// taken from the pairs as they pass.
class CDxfCollector : public DL_CreationAdapter {
public:
    using DL_CreationAdapter::processCodeValuePair;
    using DL_CreationAdapter::setVariableInt;
    using DL_CreationAdapter::setVariableString;

    void processCodeValuePair(unsigned int code, const std::string& value) override;
    void setVariableString(const std::string& key, const std::string& value, int code) override;
    void setVariableInt(const std::string& key, int value, int code) override;
    void addLinetype(const DL_LinetypeData& data) override;
    void addLinetypeDash(double length) override;
    void addLayer(const DL_LayerData& data) override;

    void build(CMemoryDataBase& db);

private:
    struct SLineType {
        std::string name;
        std::string description;
        std::vector<double> dashes;
    };
    struct SLayer {
        std::string name;
        int color = 7; // negative: off
        int trueColor = -1;
        int lineWeight = -3;
        std::string lineType;
        int flags = 0;
        std::string description;
        std::string handle;
    };
    struct SRecord {
        std::string kind;
        std::string layer;
        std::string xdataApp;
        std::vector<std::string> xdataStrings;
        std::vector<double> dashes;
        int lineWeight = -1; // by layer unless the record says otherwise
        int color = 256;     // ACI; 256 by layer, 0 by block
        int trueColor = -1;
        std::string lineType;
        std::string handle;
        int viewportId = 0;
        std::vector<std::string> frozenHandles; // layers frozen in a viewport (R2000 and later)
        std::vector<std::string> frozenNames;   // the same by name (R12 extended data)
    };
    // A viewport of a layout (ID 2 and up; ID 1 is the sheet itself).
    struct SViewport {
        std::string handle;
        std::vector<std::string> frozenHandles;
        std::vector<std::string> frozenNames;
    };
    struct SFigure {
        int kind;
        int layer; // index into m_layerKeys
        bool inBlock;
        int viewport;        // index into m_viewports, or -1
        int lineType;        // index into m_figureLineTypes, or -1 for by layer
        int trueColor;       // -1 for none
        std::int16_t color;  // ACI
        std::int16_t weight; // 1/100 mm; -1 by layer, -2 by block, -3 the default
    };

    void endRecord();
    void readViewportPair(unsigned int code, const std::string& value);
    int keyIndex(const std::string& rawName);
    int kindIndex(const std::string& kind);
    int figureLineTypeIndex(const std::string& rawName);
    std::vector<KsLineType*> addLineTypes(CMemoryDataBase& db) const;
    std::vector<const KsLineType*> lineTypesOfFigures(const std::vector<KsLineType*>& table) const;
    void styleFigure(KsFigure& figure, const SFigure& source,
                     const std::vector<const KsLineType*>& lineTypes) const;
    KsLayer* addLayer(CMemoryDataBase& db, const SLayer& layer) const;
    void addFigures(CMemoryDataBase& db, std::vector<KsLayer*>& layerOfKey,
                    const std::vector<const KsLineType*>& lineTypes);
    void addViewport(CMemoryDataBase& db, const SViewport& viewport, const KsLayer* layer,
                     bool inBlock) const;
    void addLineWidths(CMemoryDataBase& db) const;

    CTextDecoder m_decoder;
    std::string m_section;
    bool m_expectSectionName = false;
    SRecord m_record;
    SRecord m_previous; // the record the parser reports last, once the next one has begun
    std::vector<SLineType> m_lineTypes;
    std::vector<SLayer> m_layers;
    std::vector<SFigure> m_figures;
    std::vector<SViewport> m_viewports;
    std::vector<std::string> m_kinds;
    std::unordered_map<std::string, int> m_kindIndex;
    std::vector<std::string> m_layerKeys; // raw layer names of figures, as first written
    std::unordered_map<std::string, int> m_keyIndex;
    std::vector<std::string> m_figureLineTypes; // line type keys figures name
    std::unordered_map<std::string, int> m_figureLineTypeIndex;
    std::set<int> m_lineWeights;
    std::string m_currentLayer;
    int m_defaultLineWeight = 25;
    SystemPalette m_palette;
};

} // namespace kesto::workbench::dxf
