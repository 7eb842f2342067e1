#include "control/SystemColorComboBox.h"

#include "control/ComboSamples.h"
#include "core/Application.h"
#include "framework/ColorChooser.h"
#include "setting/SystemColorSetting.h"

namespace kesto::ui::control {

namespace {

template <class T>
T* configSetting()
{
    const core::CSystemConfig* config = core::Application::getInstance()->getSystemConfig();
    return config ? config->getSetting<T>() : nullptr;
}

} // namespace

CSystemColorComboBox::CSystemColorComboBox(QWidget* parent)
    : TValueComboBox(parent, samples::kSwatchSize)
{
    rebuild();
}

void CSystemColorComboBox::setSystemColors(const setting::ISystemColorSetting* colors)
{
    m_systemColors = colors;
    rebuild();
}

void CSystemColorComboBox::setColorSetting(setting::CColorSetting* colors)
{
    m_colorSetting = colors;
    rebuild();
}

setting::CColorSetting* CSystemColorComboBox::colorSetting() const
{
    return m_colorSetting ? m_colorSetting : configSetting<setting::CColorSetting>();
}

const setting::ISystemColorSetting* CSystemColorComboBox::systemColors() const
{
    return m_systemColors ? m_systemColors : configSetting<setting::CSystemColorSetting>();
}

// The system colours, then the mixed ones they do not have.
std::vector<KsColor> CSystemColorComboBox::tableValues() const
{
    std::vector<KsColor> colors;
    if (const setting::ISystemColorSetting* system = systemColors()) {
        for (const KsColor& color : system->getColors())
            colors.emplace_back(color.getRGB(), KsColor::System, color.getName());
    }
    if (const setting::CColorSetting* custom = colorSetting()) {
        for (std::uint32_t rgb : custom->getCustomColors()) {
            const KsColor mixed(rgb, KsColor::User);
            if (std::none_of(colors.begin(), colors.end(),
                             [&](const KsColor& c) { return sameValue(c, mixed); }))
                colors.push_back(mixed);
        }
    }
    return colors;
}

bool CSystemColorComboBox::sameValue(const KsColor& a, const KsColor& b) const
{
    return a.getRGB() == b.getRGB();
}

QString CSystemColorComboBox::textOf(const KsColor& color) const
{
    if (!color.getName().empty())
        return QString::fromStdWString(color.getName());
    const std::uint32_t rgb = color.getRGB();
    return QStringLiteral("RGB(%1,%2,%3)")
        .arg((rgb >> 16) & 0xFF)
        .arg((rgb >> 8) & 0xFF)
        .arg(rgb & 0xFF);
}

QIcon CSystemColorComboBox::iconOf(const KsColor& color) const
{
    return samples::colorSwatch(color.toQColor());
}

QIcon CSystemColorComboBox::byLayerIcon() const
{
    return samples::byLayerSwatch();
}

QIcon CSystemColorComboBox::otherIcon() const
{
    return samples::otherColorSwatch();
}

KsColor CSystemColorComboBox::getColor(int index) const
{
    const KsColor* color = valueAt(index);
    return color ? *color : getInvalidColor();
}

CSystemColorComboBox::EEntry CSystemColorComboBox::getEntryKind(int index) const
{
    const KsColor* color = valueAt(index);
    if (!color)
        return EntryOther;
    if (color->isByLayer())
        return EntryByLayer;
    return color->getColorType() == KsColor::System ? EntrySystem : EntryCustom;
}

KsColor CSystemColorComboBox::getInvalidColor()
{
    return KsColor(0xFFFFFF, -1);
}

// "他の色": the picker starts from the colour chosen last; the mixed colour is kept.
std::optional<KsColor> CSystemColorComboBox::chooseOther(const KsColor* previous)
{
    const QColor initial =
        !previous || previous->isByLayer() ? QColor(Qt::white) : previous->toQColor();
    const std::optional<QColor> chosen = framework::chooseColor(this, initial);
    if (!chosen)
        return std::nullopt;
    const std::uint32_t rgb = chosen->rgb() & 0xFFFFFFu;
    if (setting::CColorSetting* colors = colorSetting())
        colors->addCustomColor(rgb);
    return KsColor(rgb, KsColor::User);
}

} // namespace kesto::ui::control
