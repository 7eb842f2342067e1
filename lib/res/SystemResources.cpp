#include "res/ResourceTables.h"
#include "res/SystemResource.h"

#include "ui_2039.h"

#include <iterator>

namespace kesto::ui::config::res {

namespace {

const framework::StringEntry kStrings[] = {
    {IDS_SAME_LINEWIDTH_EXISTS, "既に同じ線幅がシステム設定に存在しています。"},
    {IDS_SAME_SCALE_EXISTS, "既に同じスケールがシステム設定に存在しています。"},
    {IDS_SCALE_COLUMN_NAME, "名称"},
    {IDS_SCALE_COLUMN_NUMERATOR, "分子"},
    {IDS_SCALE_COLUMN_DENOMINATOR, "分母"},
    {IDS_SCALE_VALUE_NOT_POSITIVE, "%d 行目の%sには 0 より大きい数値を入力してください。"},
};

} // namespace

bool registerSystemResources(framework::ResourceModule& module)
{
    return module.addStrings(kStrings, std::size(kStrings))
           && module.addLayout(IDD_SYSTEM_SCALE, &buildLayout<Ui::Dlg2039>);
}

} // namespace kesto::ui::config::res
