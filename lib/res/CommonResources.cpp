#include "res/CommonResource.h"
#include "res/ResourceTables.h"

#include <iterator>

namespace kesto::ui::config::res {

namespace {
const framework::StringEntry kStrings[] = {
    {IDS_TAB_SYSTEM, "システム"},     {IDS_TAB_DRAWING, "図面内"},
    {IDS_ELEMENT_COLOR, "要素の色"},  {IDS_FRAME_COLOR, "枠の色"},
    {IDS_BY_LAYER, "レイヤ依存"},     {IDS_OTHER_COLOR, "他の色"},
    {IDS_OTHER_LINETYPE, "他の線種"}, {IDS_CAPTION_INPUT_ERROR, "入力値エラー"},
};
} // namespace

bool registerCommonResources(framework::ResourceModule& module)
{
    return module.addStrings(kStrings, std::size(kStrings));
}

} // namespace kesto::ui::config::res
