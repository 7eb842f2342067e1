#pragma once

#include "setting/SettingBase.h"
#include "types/KsColor.h"
#include "types/KsLineType.h"
#include "types/KsLineWidth.h"

#include <array>
#include <string>
#include <vector>

namespace kesto::ui::setting {

// A drawing frame, in whole millimetres on the paper:
//   A left margin (binding side), B right, C top, D bottom: cut line to drawing frame;
//   E left/right and F top/bottom: drawing frame to inner frame line;
//   G width and H height of the title block in the inner frame's lower right corner.
// The three flags say which of drawing frame, inner frame line and cut line are drawn.
struct SPaperFrame {
    static constexpr int kDimensionCount = 8;

    std::wstring name;
    std::array<int, kDimensionCount> dimensions{1, 1, 1, 1, 1, 1, 1, 1};
    bool drawFrame = true;
    bool innerFrame = true;
    bool cutLine = true;

    bool operator==(const SPaperFrame& other) const = default;
};

// How one of the frame's lines is drawn.
struct SFrameLineLook {
    KsColor color;
    KsLineType lineType;
    KsLineWidth lineWidth;

    bool operator==(const SFrameLineLook& other) const;
};

// The system's drawing frames, the look of their lines and the frame new drawings start with.
class CSystemPaperFrameSetting : public TSetting<CSystemPaperFrameSetting> {
public:
    enum EFrameLine { DrawFrame = 0, InnerFrame = 1, CutFrame = 2, FrameLineCount = 3 };

    // A frame per default paper size (JIS margins, binding margin on the left).
    static CSystemPaperFrameSetting makeDefault();

    const std::vector<SPaperFrame>& getPaperFrames() const { return m_frames; }
    void copyPaperFrames(std::vector<SPaperFrame>& out) const { out = m_frames; }
    void setPaperFrames(const std::vector<SPaperFrame>& frames) { m_frames = frames; }

    const std::wstring& getInitFrameName() const { return m_initFrameName; }
    void setInitFrameName(const std::wstring& name) { m_initFrameName = name; }

    const SFrameLineLook& getLineLook(EFrameLine line) const { return m_looks[line]; }
    void setLineLook(EFrameLine line, const SFrameLineLook& look) { m_looks[line] = look; }

    const KsColor& getDrawFrameColor() const { return m_looks[DrawFrame].color; }
    const KsLineType& getDrawFrameLineType() const { return m_looks[DrawFrame].lineType; }
    const KsLineWidth& getDrawFrameLineWidth() const { return m_looks[DrawFrame].lineWidth; }
    void setDrawFrameColor(const KsColor& color) { m_looks[DrawFrame].color = color; }
    void setDrawFrameLineType(const KsLineType& type) { m_looks[DrawFrame].lineType = type; }
    void setDrawFrameLineWidth(const KsLineWidth& width) { m_looks[DrawFrame].lineWidth = width; }

    const KsColor& getInnerFrameColor() const { return m_looks[InnerFrame].color; }
    const KsLineType& getInnerFrameLineType() const { return m_looks[InnerFrame].lineType; }
    const KsLineWidth& getInnerFrameLineWidth() const { return m_looks[InnerFrame].lineWidth; }
    void setInnerFrameColor(const KsColor& color) { m_looks[InnerFrame].color = color; }
    void setInnerFrameLineType(const KsLineType& type) { m_looks[InnerFrame].lineType = type; }
    void setInnerFrameLineWidth(const KsLineWidth& width) { m_looks[InnerFrame].lineWidth = width; }

    const KsColor& getCutFrameColor() const { return m_looks[CutFrame].color; }
    const KsLineType& getCutFrameLineType() const { return m_looks[CutFrame].lineType; }
    const KsLineWidth& getCutFrameLineWidth() const { return m_looks[CutFrame].lineWidth; }
    void setCutFrameColor(const KsColor& color) { m_looks[CutFrame].color = color; }
    void setCutFrameLineType(const KsLineType& type) { m_looks[CutFrame].lineType = type; }
    void setCutFrameLineWidth(const KsLineWidth& width) { m_looks[CutFrame].lineWidth = width; }

    bool isSame(const CSystemPaperFrameSetting& other) const;

    QString xmlRootName() const override { return QStringLiteral("SystemPaperFrameSetting"); }
    bool loadXMLNode(const QDomElement& element) override;
    void saveXMLNode(QDomDocument& doc, QDomElement& element) const override;

private:
    std::vector<SPaperFrame> m_frames;
    std::wstring m_initFrameName;
    std::array<SFrameLineLook, FrameLineCount> m_looks;
};

} // namespace kesto::ui::setting
