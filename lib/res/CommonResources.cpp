#include "res/CommonResource.h"
#include "res/ResourceTables.h"

#include <iterator>

namespace kesto::ui::config::res {

namespace {

constexpr char kContext[] = "CommonResources";

const framework::StringEntry kStrings[] = {
    {IDS_TAB_SYSTEM, QT_TRANSLATE_NOOP("CommonResources", "システム")},
    {IDS_TAB_DRAWING, QT_TRANSLATE_NOOP("CommonResources", "図面内")},
    {IDS_ELEMENT_COLOR, QT_TRANSLATE_NOOP("CommonResources", "要素の色")},
    {IDS_FRAME_COLOR, QT_TRANSLATE_NOOP("CommonResources", "枠の色")},
    {IDS_BY_LAYER, QT_TRANSLATE_NOOP("CommonResources", "レイヤ依存")},
    {IDS_OTHER_COLOR, QT_TRANSLATE_NOOP("CommonResources", "他の色")},
    {IDS_OTHER_LINETYPE, QT_TRANSLATE_NOOP("CommonResources", "他の線種")},
    {IDS_CAPTION_INPUT_ERROR, QT_TRANSLATE_NOOP("CommonResources", "入力値エラー")},
};
} // namespace

bool registerCommonResources(framework::ResourceModule& module)
{
    return module.addStrings(kStrings, std::size(kStrings), kContext);
}

} // namespace kesto::ui::config::res
