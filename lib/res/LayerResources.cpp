#include "res/LayerResource.h"
#include "res/ResourceTables.h"

#include "ui_9020.h"
#include "ui_9033.h"

#include <iterator>

namespace kesto::ui::config::res {

namespace {

constexpr char kContext[] = "LayerResources";

const framework::StringEntry kStrings[] = {
    //: Cell value: the layer is shown in the view
    {IDS_LAYER_VISIBLE, QT_TRANSLATE_NOOP("LayerResources", "表示")},
    {IDS_LAYER_HIDDEN, QT_TRANSLATE_NOOP("LayerResources", "非表示")},
    //: Cell value: the layer is referenced by the cross-section view
    {IDS_LAYER_REFERENCE, QT_TRANSLATE_NOOP("LayerResources", "参照")},
    {IDS_LAYER_NO_REFERENCE, QT_TRANSLATE_NOOP("LayerResources", "非参照")},
    //: Cell value when several views differ: left as each view has it
    {IDS_LAYER_KEEP, QT_TRANSLATE_NOOP("LayerResources", "(そのまま)")},
    {IDS_LAYER_COLUMN_VIEWPORT, QT_TRANSLATE_NOOP("LayerResources", "表示・非表示")},
    {IDS_LAYER_COLUMN_SECTION, QT_TRANSLATE_NOOP("LayerResources", "参照・非参照")},
    //: Column: whether the layer has figures
    {IDS_LAYER_COLUMN_FIGURE, QT_TRANSLATE_NOOP("LayerResources", "図形")},
    {IDS_LAYER_COLUMN_EDITABLE, QT_TRANSLATE_NOOP("LayerResources", "編集")},
    {IDS_LAYER_COLUMN_NAME, QT_TRANSLATE_NOOP("LayerResources", "レイヤ名称")},
    {IDS_LAYER_COLUMN_COLOR, QT_TRANSLATE_NOOP("LayerResources", "色")},
    {IDS_LAYER_COLUMN_LINETYPE, QT_TRANSLATE_NOOP("LayerResources", "線種")},
    {IDS_LAYER_COLUMN_LINEWIDTH, QT_TRANSLATE_NOOP("LayerResources", "線幅")},
    {IDS_LAYER_COLUMN_COMMENT, QT_TRANSLATE_NOOP("LayerResources", "コメント")},
    //: Mark of a layer with figures: keep the symbol
    {IDS_LAYER_MARK_FIGURE, QT_TRANSLATE_NOOP("LayerResources", "*")},
    //: Yes mark of a cell: keep the symbol
    {IDS_LAYER_MARK_TRUE, QT_TRANSLATE_NOOP("LayerResources", "○")},
    //: No mark of a cell: keep the symbol
    {IDS_LAYER_MARK_FALSE, QT_TRANSLATE_NOOP("LayerResources", "×")},
};

} // namespace

bool registerLayerResources(framework::ResourceModule& module)
{
    return module.addStrings(kStrings, std::size(kStrings), kContext)
           && module.addLayout(IDD_EDIT_VIEWPORT_LAYERS, &buildLayout<Ui::Dlg9020>)
           && module.addLayout(IDD_EDIT_CROSSSECTION_LAYERS, &buildLayout<Ui::Dlg9033>);
}

} // namespace kesto::ui::config::res
