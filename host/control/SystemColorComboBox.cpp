#include "control/SystemColorComboBox.h"

#include "control/ComboSamples.h"
#include "core/Application.h"
#include "framework/ColorChooser.h"
#include "setting/SystemColorSetting.h"

#include <QSignalBlocker>

#include <algorithm>

namespace kesto::ui::control {

namespace {

QString rgbLabel(std::uint32_t rgb)
{
    return QStringLiteral("RGB(%1,%2,%3)")
        .arg((rgb >> 16) & 0xFF)
        .arg((rgb >> 8) & 0xFF)
        .arg(rgb & 0xFF);
}

template <class T>
T* configSetting()
{
    const core::CSystemConfig* config = core::Application::getInstance()->getSystemConfig();
    return config ? config->getSetting<T>() : nullptr;
}

} // namespace

CSystemColorComboBox::CSystemColorComboBox(QWidget* parent)
    : QComboBox(parent)
{
    setIconSize(samples::kSwatchSize);
    setMaxVisibleItems(20);
    connect(this, &QComboBox::activated, this, [this](int index) { chooseEntry(index); });
    connect(this, &QComboBox::currentIndexChanged, this, [this](int index) {
        if (index >= 0 && getEntryKind(index) != EntryOther)
            m_lastColorIndex = index;
    });
    rebuild();
}

void CSystemColorComboBox::setTextByLayer(const QString& text)
{
    m_byLayerText = text;
    rebuild();
}

void CSystemColorComboBox::setTextOtherColor(const QString& text)
{
    m_otherText = text;
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

std::vector<CSystemColorComboBox::SEntry> CSystemColorComboBox::collectEntries() const
{
    std::vector<SEntry> entries;
    if (!m_byLayerText.isEmpty())
        entries.push_back({EntryByLayer, KsColor::byLayer()});
    if (const setting::ISystemColorSetting* system = systemColors()) {
        for (const KsColor& color : system->getColors())
            entries.push_back(
                {EntrySystem, KsColor(color.getRGB(), KsColor::System, color.getName())});
    }
    auto offered = [&](std::uint32_t rgb) {
        return std::any_of(entries.begin(), entries.end(), [&](const SEntry& e) {
            return e.kind != EntryByLayer && e.color.getRGB() == rgb;
        });
    };
    std::vector<std::uint32_t> custom;
    if (const setting::CColorSetting* colors = colorSetting())
        custom = colors->getCustomColors();
    for (const KsColor& shown : m_shownColors)
        custom.push_back(shown.getRGB());
    for (std::uint32_t rgb : custom) {
        if (!offered(rgb))
            entries.push_back({EntryCustom, KsColor(rgb, KsColor::User)});
    }
    if (!m_otherText.isEmpty())
        entries.push_back({EntryOther, getInvalidColor()});
    return entries;
}

void CSystemColorComboBox::addEntry(const SEntry& entry, const QString& text)
{
    switch (entry.kind) {
    case EntryByLayer:
        addItem(samples::byLayerSwatch(), text);
        break;
    case EntryOther:
        addItem(samples::otherColorSwatch(), text);
        break;
    default:
        addItem(samples::colorSwatch(entry.color.toQColor()), text);
        break;
    }
    m_entries.push_back(entry);
}

void CSystemColorComboBox::rebuild()
{
    const KsColor current = getCurColor();
    const QSignalBlocker blocker(this);
    clear();
    m_entries.clear();
    for (const SEntry& entry : collectEntries()) {
        QString text = QString::fromStdWString(entry.color.getName());
        if (entry.kind == EntryByLayer)
            text = m_byLayerText;
        else if (entry.kind == EntryOther)
            text = m_otherText;
        else if (text.isEmpty())
            text = rgbLabel(entry.color.getRGB());
        addEntry(entry, text);
    }
    m_lastColorIndex = -1;
    if (!(current == getInvalidColor()))
        selectColor(current);
}

int CSystemColorComboBox::selectColor(const KsColor& color)
{
    auto find = [&]() -> int {
        for (std::size_t i = 0; i < m_entries.size(); ++i) {
            const SEntry& e = m_entries[i];
            if (color.isByLayer() ? e.kind == EntryByLayer
                                  : e.kind != EntryByLayer && e.kind != EntryOther
                                        && e.color.getRGB() == color.getRGB())
                return static_cast<int>(i);
        }
        return -1;
    };
    int index = find();
    if (index < 0 && !color.isByLayer()) {
        m_shownColors.push_back(color);
        rebuild();
        index = find();
    }
    const QSignalBlocker blocker(this);
    setCurrentIndex(index);
    m_lastColorIndex = index;
    return index;
}

KsColor CSystemColorComboBox::getColor(int index) const
{
    if (index < 0 || index >= static_cast<int>(m_entries.size()))
        return getInvalidColor();
    return m_entries[static_cast<std::size_t>(index)].color;
}

CSystemColorComboBox::EEntry CSystemColorComboBox::getEntryKind(int index) const
{
    if (index < 0 || index >= static_cast<int>(m_entries.size()))
        return EntryOther;
    return m_entries[static_cast<std::size_t>(index)].kind;
}

int CSystemColorComboBox::getOtherColorIndex() const
{
    return m_entries.empty() || m_entries.back().kind != EntryOther
               ? -1
               : static_cast<int>(m_entries.size()) - 1;
}

KsColor CSystemColorComboBox::getInvalidColor()
{
    return KsColor(0xFFFFFF, -1);
}

void CSystemColorComboBox::chooseEntry(int index)
{
    if (index < 0 || index >= count())
        return;
    if (getEntryKind(index) == EntryOther) {
        pickOtherColor();
        return;
    }
    if (currentIndex() != index) {
        const QSignalBlocker blocker(this);
        setCurrentIndex(index);
    }
    m_lastColorIndex = index;
    notify(EVENT_COLOR_CHANGED);
}

// "他の色": the picker starts from the colour chosen last; Cancel goes back to it.
void CSystemColorComboBox::pickOtherColor()
{
    const int previous = m_lastColorIndex;
    const KsColor start = getColor(previous);
    const QColor initial =
        start == getInvalidColor() || start.isByLayer() ? QColor(Qt::white) : start.toQColor();
    const std::optional<QColor> chosen = framework::chooseColor(this, initial);
    if (!chosen) {
        const QSignalBlocker blocker(this);
        setCurrentIndex(previous);
        return;
    }
    const std::uint32_t rgb = chosen->rgb() & 0xFFFFFFu;
    if (setting::CColorSetting* colors = colorSetting())
        colors->addCustomColor(rgb);
    rebuild();
    selectColor(KsColor(rgb, KsColor::User));
    notify(EVENT_COLOR_CHANGED);
}

} // namespace kesto::ui::control
