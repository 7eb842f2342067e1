#include "res/HatchResource.h"
#include "res/ResourceTables.h"

#include <iterator>

namespace kesto::ui::config::res {

namespace {

constexpr char kContext[] = "HatchResources";

const framework::StringEntry kStrings[] = {
    {IDS_HATCH_CAPTION, QT_TRANSLATE_NOOP("HatchResources", "ハッチングパターンの設定")},
    {IDS_HATCH_BASE_FIGURE_UNREGISTERED,
     QT_TRANSLATE_NOOP(
         "HatchResources",
         "基本図形[%s]がシステムに登録されて\nいないパターンハッチングは参照できません。")},
};

} // namespace

bool registerHatchResources(framework::ResourceModule& module)
{
    return module.addStrings(kStrings, std::size(kStrings), kContext);
}

} // namespace kesto::ui::config::res
