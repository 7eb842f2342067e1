#pragma once

#include "types/KsColor.h"
#include "types/KsLineType.h"
#include "types/KsLineWidth.h"

#include <string>

class KsLayerManager;

// A drawing layer ("LAYER" element) with its own look and states.
class KsLayer : public KsObject {
public:
    KsLayer() = default;
    explicit KsLayer(std::wstring name);

    std::wstring getType() const override { return L"LAYER"; }

    const std::wstring& getName() const { return m_name; }
    bool isNameEmpty() const { return m_name.empty(); }
    const std::wstring& getComment() const { return m_comment; }
    const KsColor& getColor() const { return m_color; }
    const KsLineType& getLineType() const { return m_lineType; }
    const KsLineWidth& getLineWidth() const { return m_lineWidth; }
    bool isVisible() const { return m_visible; }
    bool isReference() const { return m_reference; }
    bool isEditable() const { return m_editable; }
    // The states as the drawing's layer manager evaluates them (see KsLayerManager).
    bool isVisible(const KsLayerManager& manager) const;
    bool isReference(const KsLayerManager& manager) const;
    bool isEditable(const KsLayerManager& manager) const;

    void setName(std::wstring name) { m_name = std::move(name); }
    void setComment(std::wstring comment) { m_comment = std::move(comment); }
    void setColor(const KsColor& color) { m_color = color; }
    void setLineType(const KsLineType& lineType) { m_lineType = lineType; }
    void setLineWidth(const KsLineWidth& lineWidth) { m_lineWidth = lineWidth; }
    void visible(bool on) { m_visible = on; }
    void reference(bool on) { m_reference = on; }
    void editable(bool on) { m_editable = on; }

private:
    std::wstring m_name;
    std::wstring m_comment;
    KsColor m_color;
    KsLineType m_lineType;
    KsLineWidth m_lineWidth;
    bool m_visible = true;
    bool m_reference = true;
    bool m_editable = true;
};
