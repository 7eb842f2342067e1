#pragma once

#include "setting/SettingBase.h"

#include <string>
#include <vector>

namespace kesto::ui::setting {

// A paper size in whole millimetres.
struct SPaperSize {
    std::wstring name;
    int height = 1;
    int width = 1;

    bool operator==(const SPaperSize& other) const = default;
};

// The system's paper sizes and the one new drawings start with.
class CSystemPaperSizeSetting : public TSetting<CSystemPaperSizeSetting> {
public:
    // JIS A0 to A4 (landscape), A4 portrait and B4; new drawings start on A1.
    static CSystemPaperSizeSetting makeDefault();

    const std::vector<SPaperSize>& getPaperSizes() const { return m_sizes; }
    void copyPaperSize(std::vector<SPaperSize>& out) const { out = m_sizes; }
    void setPaperSize(const std::vector<SPaperSize>& sizes) { m_sizes = sizes; }
    const SPaperSize* findByName(const std::wstring& name) const;

    const std::wstring& getInitPaperName() const { return m_initPaperName; }
    void setInitPaperName(const std::wstring& name) { m_initPaperName = name; }
    // Takes the list and the initial paper, which must be one of its names; false (and
    // nothing changed) when it is not.
    bool setup(const std::wstring& initPaperName, const std::vector<SPaperSize>& sizes);

    bool isSame(const CSystemPaperSizeSetting& other) const;

    QString xmlRootName() const override { return QStringLiteral("SystemPaperSizeSetting"); }
    bool loadXMLNode(const QDomElement& element) override;
    void saveXMLNode(QDomDocument& doc, QDomElement& element) const override;

private:
    std::vector<SPaperSize> m_sizes;
    std::wstring m_initPaperName;
};

} // namespace kesto::ui::setting
