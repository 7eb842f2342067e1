#pragma once

#include "setting/SettingBase.h"
#include "types/KsColor.h"

#include <string>

namespace kesto::ui::setting {

// The attributes every new drawing element takes: colour, line type, line width, line ends
// and whether it is made a virtual element.
class CDrawCommonSetting : public TSetting<CDrawCommonSetting> {
public:
    enum EColorMode { ColorModeColor = 1, ColorModeByLayer = 2 };
    // Line-type mode values up to 10 are modes; above that the value is a line type's id.
    enum ELineTypeMode { LineTypeModeByLayer = 3 };
    enum EWidthKind {
        WidthExplicit = 0,
        WidthByLayer = 1,
        WidthThin = 2,
        WidthBold = 3,
        WidthExtraBold = 4
    };

    int getColorMode() const { return m_colorMode; }
    void setColorMode(int mode) { m_colorMode = mode; }
    const KsColor& getColor() const { return m_color; }
    void setColor(const KsColor& color) { m_color = color; }

    int getLineTypeMode() const { return m_lineTypeMode; }
    void setLineTypeMode(int mode) { m_lineTypeMode = mode; }
    const std::wstring& getLineTypeName() const { return m_lineTypeName; }
    void setLineTypeName(std::wstring name) { m_lineTypeName = std::move(name); }

    double getWidth() const { return m_width; }
    void setWidth(double width) { m_width = width; }
    int getWidthKind() const { return m_widthKind; }
    void setWidthKind(int kind) { m_widthKind = kind; }

    const std::wstring& getStartLineEndName() const { return m_startLineEnd; }
    void setStartLineEndName(std::wstring name) { m_startLineEnd = std::move(name); }
    const std::wstring& getEndLineEndName() const { return m_endLineEnd; }
    void setEndLineEndName(std::wstring name) { m_endLineEnd = std::move(name); }

    bool isVirtualElement() const { return m_virtualElement; }
    void setVirtualElement(bool on) { m_virtualElement = on; }

    bool isSame(const CDrawCommonSetting& other) const;

    QString xmlRootName() const override { return QStringLiteral("DrawCommonSetting"); }
    bool loadXMLNode(const QDomElement& element) override;
    void saveXMLNode(QDomDocument& doc, QDomElement& element) const override;

private:
    // The parts of the file form; false, and out unchanged, when the part cannot be read.
    static bool readColorPart(const QDomElement& e, CDrawCommonSetting& out);
    static bool readLineTypePart(const QDomElement& e, CDrawCommonSetting& out);
    static bool readWidthPart(const QDomElement& e, CDrawCommonSetting& out);
    static bool readEndsPart(const QDomElement& e, CDrawCommonSetting& out);

    int m_colorMode = ColorModeByLayer;
    KsColor m_color = KsColor(0x000000, KsColor::System, L"黒");
    int m_lineTypeMode = LineTypeModeByLayer;
    std::wstring m_lineTypeName;
    double m_width = 0.0;
    int m_widthKind = WidthByLayer;
    std::wstring m_startLineEnd = L"なし";
    std::wstring m_endLineEnd = L"なし";
    bool m_virtualElement = false;
};

} // namespace kesto::ui::setting
