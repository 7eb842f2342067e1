#pragma once

#include "setting/SettingBase.h"
#include "types/KsColor.h"

#include <vector>

namespace kesto::ui::setting {

// The system's named colours, offered first by every colour combo box.
class ISystemColorSetting {
public:
    virtual ~ISystemColorSetting() = default;
    virtual const std::vector<KsColor>& getColors() const = 0;
    // Null when no system colour has that RGB (or name).
    virtual const KsColor* findByRGB(std::uint32_t rgb) const = 0;
    virtual const KsColor* findByName(const std::wstring& name) const = 0;
};

class CSystemColorSetting : public TSetting<CSystemColorSetting>, public ISystemColorSetting {
public:
    static CSystemColorSetting makeDefault();

    const std::vector<KsColor>& getColors() const override { return m_colors; }
    const KsColor* findByRGB(std::uint32_t rgb) const override;
    const KsColor* findByName(const std::wstring& name) const override;
    // Names must be unique and not empty; false leaves the table.
    bool setColors(const std::vector<KsColor>& colors);

    bool isSame(const CSystemColorSetting& other) const { return m_colors == other.m_colors; }

    QString xmlRootName() const override { return QStringLiteral("SystemColorSetting"); }
    bool loadXMLNode(const QDomElement& element) override;
    void saveXMLNode(QDomDocument& doc, QDomElement& element) const override;

private:
    std::vector<KsColor> m_colors;
};

// Colours the user mixed in the colour picker ("他の色"), kept between dialogs.
class CColorSetting : public TSetting<CColorSetting> {
public:
    static constexpr std::size_t kMaxCustomColors = 16;

    const std::vector<std::uint32_t>& getCustomColors() const { return m_customColors; }
    // Keeps the newest first, without repeats, at most kMaxCustomColors.
    void addCustomColor(std::uint32_t rgb);
    void setCustomColors(const std::vector<std::uint32_t>& colors);

    bool isSame(const CColorSetting& other) const { return m_customColors == other.m_customColors; }

    QString xmlRootName() const override { return QStringLiteral("ColorSetting"); }
    bool loadXMLNode(const QDomElement& element) override;
    void saveXMLNode(QDomDocument& doc, QDomElement& element) const override;

private:
    std::vector<std::uint32_t> m_customColors;
};

} // namespace kesto::ui::setting
