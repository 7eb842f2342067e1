#include "picking/CommonReference.h"

#include "config/DrawEntries.h"
#include "core/Application.h"
#include "db/IDataBase.h"
#include "db/KsLayerManager.h"
#include "setting/SystemColorSetting.h"
#include "setting/SystemLineTypeSetting.h"
#include "types/KsCoordinateSystem.h"
#include "types/KsFigure.h"
#include "types/KsLayer.h"
#include "types/KsScale.h"

#include <algorithm>

namespace kesto::workbench {

using ui::config::SDrawCommonDlgData;
using ui::setting::CDrawCommonSetting;

namespace {

template <class T>
const T* findNamed(const std::vector<T*>& elements, const std::wstring& name)
{
    const auto found = std::find_if(elements.begin(), elements.end(),
                                    [&](const T* e) { return e->getName() == name; });
    return found == elements.end() ? nullptr : *found;
}

// Keeps name when the drawing has it, else takes the fallback's name (or empties it).
template <class T>
void keepOrReplace(std::wstring& name, const std::vector<T*>& elements, const T* fallback)
{
    if (!name.empty() && findNamed(elements, name))
        return;
    name = fallback ? fallback->getName() : std::wstring();
}

template <class T>
const T* firstOf(const std::vector<T*>& elements)
{
    return elements.empty() ? nullptr : elements.front();
}

KsColor namedColor(const KsColor& color, const ui::setting::ISystemColorSetting* system)
{
    if (const KsColor* known = system ? system->findByRGB(color.getRGB()) : nullptr)
        return KsColor(known->getRGB(), KsColor::System, known->getName());
    return KsColor(color.getRGB(), KsColor::User);
}

void applyLineType(const KsLineType* lineType, CDrawCommonSetting& setting,
                   const ui::setting::ISystemLineTypeSetting* system)
{
    if (!lineType) {
        setting.setLineTypeMode(CDrawCommonSetting::LineTypeModeByLayer);
        return;
    }
    const KsLineType* known = system ? system->findByName(lineType->getName()) : nullptr;
    const KsLineType& chosen = known ? *known : *lineType;
    setting.setLineTypeMode(chosen.getId());
    setting.setLineTypeName(chosen.getName());
}

} // namespace

void prepareCommonRecord(SDrawCommonDlgData& record, const IDataBase* drawing)
{
    record.referenceEnabled = drawing != nullptr;
    record.requestCode = SDrawCommonDlgData::RequestNone;
    if (!drawing)
        return;
    const auto systems = drawing->elementsOf<KsCoordinateSystem>(L"COORDSYS");
    const auto scales = drawing->elementsOf<KsScale>(L"SCALE");
    const auto layers = drawing->elementsOf<KsLayer>(L"LAYER");
    const KsLayerManager* manager = drawing->getLayerManager();
    const KsLayer* current = manager ? manager->getCurrentLayer() : nullptr;
    keepOrReplace(record.coordinateSystemName, systems, firstOf(systems));
    keepOrReplace(record.scaleName, scales, firstOf(scales));
    keepOrReplace(record.layerName, layers, current ? current : firstOf(layers));
}

void applyPickedFigure(const KsFigure& figure, CDrawCommonSetting& setting,
                       SDrawCommonDlgData& record,
                       const ui::setting::ISystemColorSetting* systemColors,
                       const ui::setting::ISystemLineTypeSetting* systemLineTypes)
{
    if (figure.isColorByLayer()) {
        setting.setColorMode(CDrawCommonSetting::ColorModeByLayer);
    } else {
        setting.setColorMode(CDrawCommonSetting::ColorModeColor);
        setting.setColor(namedColor(figure.getColor(), systemColors));
    }
    applyLineType(figure.getLineType(), setting, systemLineTypes);
    const KsLineWidth width = figure.getLineWidth();
    setting.setWidthKind(width.getKind());
    setting.setWidth(width.getWidth());
    if (const KsLayer* layer = figure.getLayer())
        record.layerName = layer->getName();
}

bool editCommonSettings(CDrawCommonSetting& setting, SDrawCommonDlgData& record,
                        const IDataBase* drawing, const FigurePicker& pick)
{
    CDrawCommonSetting working = setting;
    SDrawCommonDlgData data = record;
    prepareCommonRecord(data, drawing);
    const core::CSystemConfig* config = core::Application::getInstance()->getSystemConfig();
    for (;;) {
        data.requestCode = SDrawCommonDlgData::RequestNone;
        if (ui::config::doDrawCommonDlg(working, &data)) {
            setting = working;
            record = data;
            return true;
        }
        if (data.requestCode != SDrawCommonDlgData::RequestReference || !drawing)
            return false;
        if (const KsFigure* picked = pick(*drawing)) {
            applyPickedFigure(
                *picked, working, data,
                config ? config->getSetting<ui::setting::CSystemColorSetting>() : nullptr,
                config ? config->getSetting<ui::setting::CSystemLineTypeSetting>() : nullptr);
            core::Application::getInstance()->log().info(describePick(*picked));
        }
    }
}

QString describePick(const KsFigure& figure)
{
    const KsLayer* layer = figure.getLayer();
    return QStringLiteral("図面参照: %1 (レイヤ %2)")
        .arg(QString::fromStdWString(figure.getKind()),
             layer ? QString::fromStdWString(layer->getName()) : QStringLiteral("-"));
}

} // namespace kesto::workbench
