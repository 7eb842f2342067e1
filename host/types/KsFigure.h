#pragma once

#include "types/KsObject.h"

#include <string>
#include <string_view>

class KsLayer;

// A figure of the drawing (line, arc, text, hatch, insert, ...), lying on a layer. The kind is
// the element type; kinds are shared between figures, so a drawing of a million figures keeps
// one copy of each kind name.
class KsFigure : public KsObject {
public:
    KsFigure(std::wstring_view kind, const KsLayer* layer, bool inBlock = false);

    std::wstring getType() const override { return *m_kind; }
    const std::wstring& getKind() const { return *m_kind; }

    // The layer the figure lies on; null for none.
    const KsLayer* getLayer() const { return m_layer; }
    void setLayer(const KsLayer* layer) { m_layer = layer; }

    // Part of a block definition: shown wherever the block is placed.
    bool isInBlock() const { return m_inBlock; }

private:
    const std::wstring* m_kind;
    const KsLayer* m_layer;
    bool m_inBlock;
};
