#include "system/LineWidthRules.h"

#include "setting/SystemColorSetting.h"
#include "utility/NumberFormat.h"

#include <algorithm>

namespace kesto::ui::config::linewidthtable {

using setting::SLineWidth;

SButtonStates buttonStates(bool drawingTab, const std::vector<SLineWidth>& widths, int selectedRow)
{
    SButtonStates s;
    s.addEnabled = !drawingTab;
    s.resetEnabled = !drawingTab;
    s.registerVisible = drawingTab;
    s.registerEnabled = drawingTab && selectedRow >= 0;
    const int count = static_cast<int>(widths.size());
    if (drawingTab || selectedRow < 0 || selectedRow >= count)
        return s;
    auto isDefault = [&](int row) {
        return widths[static_cast<std::size_t>(row)].isSystemDefault();
    };
    if (isDefault(selectedRow))
        return s;
    s.insertEnabled = s.deleteEnabled = true;
    s.upEnabled = selectedRow > 0 && !isDefault(selectedRow - 1);
    s.downEnabled = selectedRow < count - 1 && !isDefault(selectedRow + 1);
    return s;
}

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

std::optional<double> readWidth(const QString& text)
{
    const std::optional<double> typed = utility::parseDecimal(text);
    if (!typed)
        return std::nullopt;
    const double stored = utility::roundToDecimals(*typed, 3);
    if (!(stored > 0.0))
        return std::nullopt;
    return stored;
}

bool widthTakenByOther(const std::vector<SLineWidth>& widths, int row, double width)
{
    for (std::size_t i = 0; i < widths.size(); ++i) {
        if (static_cast<int>(i) != row && widths[i].hasWidth(width))
            return true;
    }
    return false;
}

bool containsWidth(const std::vector<SLineWidth>& widths, double width)
{
    return widthTakenByOther(widths, -1, width);
}

KsColor colorOfRgb(std::uint32_t rgb, const setting::ISystemColorSetting* system)
{
    if (const KsColor* known = system ? system->findByRGB(rgb) : nullptr)
        return KsColor(known->getRGB(), KsColor::System, known->getName());
    return KsColor(rgb, KsColor::User);
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

} // namespace kesto::ui::config::linewidthtable
