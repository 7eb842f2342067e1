#pragma once

#include "db/MemoryDataBase.h"
#include "element/KsCrossSectionView.h"
#include "element/KsViewPort.h"
#include "types/KsFigure.h"
#include "types/KsLayer.h"
#include "view/IView.h"

#include <stdexcept>

namespace kesto::test {

// Counts the redraws it is asked for.
class CountingView : public IView {
public:
    void redraw() override { ++redraws; }
    int redraws = 0;
};

// A view whose redraw fails, to see how handlers report it.
class FailingView : public IView {
public:
    void redraw() override { throw std::runtime_error("the view could not be drawn"); }
};

// A civil drawing: "道路中心線" and "構造物" hold figures (one only inside a block),
// "旧地形" is hidden and holds figures, "予備" and "寸法" hold none, "寸法" is locked and
// not referenced.
struct LayerDrawing {
    // The layers' rows in the layer dialogs.
    enum Row { Center, Structure, OldGround, Spare, Dimension };
    CMemoryDataBase db{L"道路改良平面図"};
    KsLayer* center = nullptr;
    KsLayer* structure = nullptr;
    KsLayer* oldGround = nullptr;
    KsLayer* spare = nullptr;
    KsLayer* dimension = nullptr;

    LayerDrawing()
    {
        center = addLayer(L"道路中心線", 0xFF0000, L"一点鎖線", 0.18, L"中心");
        structure = addLayer(L"構造物", 0x0000FF, L"実線", 0.35, L"");
        oldGround = addLayer(L"旧地形", 0x808080, L"破線", 0.13, L"現況");
        spare = addLayer(L"予備", 0x00FF00, L"実線", 0.25, L"");
        dimension = addLayer(L"寸法", 0x008000, L"実線", 0.13, L"寸法線と文字");
        oldGround->visible(false);
        dimension->editable(false);
        dimension->reference(false);
        db.add<KsFigure>(L"LINE", center);
        db.add<KsFigure>(L"LINE", center);
        db.add<KsFigure>(L"ARC", structure, true);
        db.add<KsFigure>(L"POLYLINE", oldGround);
    }

    KsLayer* addLayer(const wchar_t* name, std::uint32_t rgb, const wchar_t* lineType, double width,
                      const wchar_t* comment)
    {
        auto* layer = db.add<KsLayer>(name);
        layer->setColor(KsColor(rgb, KsColor::System));
        layer->setLineType(KsLineType(0, lineType));
        KsLineWidth lineWidth;
        lineWidth.setWidth(width);
        layer->setLineWidth(lineWidth);
        layer->setComment(comment);
        return layer;
    }
};

} // namespace kesto::test
