#include "draw/DrawCommonRules.h"

#include "db/IDataBase.h"
#include "types/KsCoordinateSystem.h"
#include "types/KsLayer.h"
#include "types/KsScale.h"

namespace kesto::ui::config::drawcommonrules {

using setting::CDrawCommonSetting;

KsColor colorToSelect(const CDrawCommonSetting& setting)
{
    if (setting.getColorMode() == CDrawCommonSetting::ColorModeByLayer)
        return KsColor::byLayer();
    return setting.getColor();
}

KsLineType lineTypeToSelect(const CDrawCommonSetting& setting, const IDataBase* drawing)
{
    if (setting.getLineTypeMode() == CDrawCommonSetting::LineTypeModeByLayer)
        return KsLineType::byLayer();
    KsLineType lineType(setting.getLineTypeMode(), setting.getLineTypeName());
    if (!drawing || lineType.getName().empty())
        return lineType;
    for (const KsLineType* own : drawing->elementsOf<KsLineType>(L"LTYPE")) {
        if (own->getName() == lineType.getName() && !own->isByLayer()) {
            lineType.setKind(own->getKind());
            lineType.setDashes(own->getDashes());
            break;
        }
    }
    return lineType;
}

KsLineWidth lineWidthToSelect(const CDrawCommonSetting& setting)
{
    const int kind = setting.getWidthKind();
    const bool known = kind >= KsLineWidth::Explicit && kind <= KsLineWidth::ExtraBold;
    return KsLineWidth(setting.getWidth(), known ? kind : KsLineWidth::Explicit);
}

void storeColor(CDrawCommonSetting& setting, int index, const KsColor& entry,
                const KsColor& invalidColor)
{
    if (index == kByLayerIndex) {
        setting.setColorMode(CDrawCommonSetting::ColorModeByLayer);
    } else if (index > kByLayerIndex && !(entry == invalidColor)) {
        setting.setColorMode(CDrawCommonSetting::ColorModeColor);
        setting.setColor(entry);
    }
}

void storeLineType(CDrawCommonSetting& setting, int index, const KsLineType* entry)
{
    if (index == kByLayerIndex) {
        setting.setLineTypeMode(CDrawCommonSetting::LineTypeModeByLayer);
    } else if (index > kByLayerIndex && entry) {
        setting.setLineTypeMode(entry->getId());
        setting.setLineTypeName(entry->getName());
    }
}

void storeLineWidth(CDrawCommonSetting& setting, int index, double entryWidth)
{
    setting.setWidth(entryWidth);
    if (index >= kFirstExplicitWidthIndex)
        setting.setWidthKind(CDrawCommonSetting::WidthExplicit);
    else if (index >= 0)
        setting.setWidthKind(index + CDrawCommonSetting::WidthByLayer);
}

std::array<std::wstring, ListCount> recordNames(const SDrawCommonDlgData& record)
{
    return {record.coordinateSystemName, record.scaleName, record.layerName};
}

void storeName(SDrawCommonDlgData& record, int list, const SListChoice& choice)
{
    std::wstring* names[ListCount] = {&record.coordinateSystemName, &record.scaleName,
                                      &record.layerName};
    if (list >= 0 && list < ListCount && choice.index >= 0)
        *names[list] = choice.text;
}

bool canReferToDrawing(const SDrawCommonDlgData* record)
{
    return record && record->referenceEnabled;
}

namespace {

template <class T>
QStringList namesOf(const IDataBase& db, const wchar_t* type)
{
    QStringList names;
    const std::vector<T*> elements = db.elementsOf<T>(type);
    names.reserve(static_cast<qsizetype>(elements.size()));
    for (const T* element : elements) {
        if (!element->getName().empty())
            names << QString::fromStdWString(element->getName());
    }
    return names;
}

} // namespace

std::array<QStringList, ListCount> drawingLists(const IDataBase* db)
{
    if (!db)
        return {};
    return {namesOf<KsCoordinateSystem>(*db, L"COORDSYS"), namesOf<KsScale>(*db, L"SCALE"),
            namesOf<KsLayer>(*db, L"LAYER")};
}

} // namespace kesto::ui::config::drawcommonrules
