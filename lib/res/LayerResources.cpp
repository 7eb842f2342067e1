#include "res/LayerResource.h"
#include "res/ResourceTables.h"

#include "ui_9020.h"
#include "ui_9033.h"

#include <iterator>

namespace kesto::ui::config::res {

namespace {

const framework::StringEntry kStrings[] = {
    {IDS_LAYER_VISIBLE, "表示"},
    {IDS_LAYER_HIDDEN, "非表示"},
    {IDS_LAYER_REFERENCE, "参照"},
    {IDS_LAYER_NO_REFERENCE, "非参照"},
    {IDS_LAYER_KEEP, "(そのまま)"},
    {IDS_LAYER_COLUMN_VIEWPORT, "表示・非表示"},
    {IDS_LAYER_COLUMN_SECTION, "参照・非参照"},
    {IDS_LAYER_COLUMN_FIGURE, "図形"},
    {IDS_LAYER_COLUMN_EDITABLE, "編集"},
    {IDS_LAYER_COLUMN_NAME, "レイヤ名称"},
    {IDS_LAYER_COLUMN_COLOR, "色"},
    {IDS_LAYER_COLUMN_LINETYPE, "線種"},
    {IDS_LAYER_COLUMN_LINEWIDTH, "線幅"},
    {IDS_LAYER_COLUMN_COMMENT, "コメント"},
    {IDS_LAYER_MARK_FIGURE, "*"},
    {IDS_LAYER_MARK_TRUE, "○"},
    {IDS_LAYER_MARK_FALSE, "×"},
};

} // namespace

bool registerLayerResources(framework::ResourceModule& module)
{
    return module.addStrings(kStrings, std::size(kStrings))
           && module.addLayout(IDD_EDIT_VIEWPORT_LAYERS, &buildLayout<Ui::Dlg9020>)
           && module.addLayout(IDD_EDIT_CROSSSECTION_LAYERS, &buildLayout<Ui::Dlg9033>);
}

} // namespace kesto::ui::config::res
