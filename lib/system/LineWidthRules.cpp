#include "system/LineWidthRules.h"

#include "setting/SystemColorSetting.h"

#include <algorithm>

namespace kesto::ui::config::linewidthrules {

using setting::SLineWidth;

SLineWidth newEntry(std::uint32_t backgroundRgb)
{
    SLineWidth entry;
    entry.clear();
    if ((backgroundRgb & 0xFFFFFFu) == 0xFFFFFFu) {
        entry.setColor(0x000000);
        entry.setColorName(L"黒");
    }
    return entry;
}

QString markText(const SLineWidth& width)
{
    return width.isSystemDefault() ? QStringLiteral("*") : QString();
}

bool widthTaken(const std::vector<SLineWidth>& widths, double width, const SLineWidth* except)
{
    return std::any_of(widths.begin(), widths.end(), [&](const SLineWidth& w) {
        return &w != except && w.getWidth() == width;
    });
}

KsColor colorOfRgb(std::uint32_t rgb, const setting::ISystemColorSetting* system)
{
    if (const KsColor* known = system ? system->findByRGB(rgb) : nullptr)
        return KsColor(known->getRGB(), KsColor::System, known->getName());
    return KsColor(rgb, KsColor::User);
}

bool takeColor(SLineWidth& width, std::uint32_t rgb, const setting::ISystemColorSetting* system)
{
    const KsColor chosen = colorOfRgb(rgb, system);
    if (width.getColor() == chosen.getRGB() && width.getColorType() == chosen.getColorType()
        && width.getColorName() == chosen.getName())
        return false;
    width.setColor(chosen.getRGB());
    width.setColorType(chosen.getColorType());
    width.setColorName(chosen.getName());
    return true;
}

bool takeColor(SDrawingWidth& width, std::uint32_t rgb, const setting::ISystemColorSetting* system)
{
    if ((rgb & 0xFFFFFFu) == width.value.getColor())
        return false;
    const KsColor chosen = colorOfRgb(rgb, system);
    width.value.setColor(chosen.getRGB());
    width.value.setColorType(chosen.getColorType());
    width.value.setColorName(chosen.getName());
    width.edited = true;
    return true;
}

SLineWidth fromDrawingWidth(const KsLineWidth& width)
{
    return SLineWidth(width.getWidth(), width.getColor(), width.getColorType(),
                      width.getColorName());
}

KsLineWidth toDrawingWidth(const SLineWidth& width, int kind)
{
    KsLineWidth out(width.getWidth(), kind);
    out.setColor(width.getColor());
    out.setColorType(width.getColorType());
    out.setColorName(width.getColorName());
    return out;
}

int indexOfWidthName(const QStringList& names, double width)
{
    return static_cast<int>(names.indexOf(QString::fromStdWString(KsLineWidth::makeName(width))));
}

} // namespace kesto::ui::config::linewidthrules
