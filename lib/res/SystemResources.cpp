#include "res/ResourceTables.h"
#include "res/SystemResource.h"

#include "ui_2011.h"
#include "ui_2036.h"
#include "ui_2038.h"
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
    {IDS_FRAME_NO_DATA, "図面データがありません！\n１つ以上の図面データを設定してください。"},
    {IDS_FRAME_NO_NAME, "%d 行目のデータに名前がありません！"},
    {IDS_FRAME_NEW_NAME, "新規枠"},
    {IDS_LINEWIDTH_COLUMN_WIDTH, "幅"},
    {IDS_LINEWIDTH_COLUMN_COLOR, "色"},
    {IDS_PAPER_COLUMN_HEIGHT, "高さ(mm)"},
    {IDS_PAPER_COLUMN_WIDTH, "幅(mm)"},
    {IDS_PAPER_NO_NAME, "%d 行目のデータに名前がありません"},
    {IDS_PAPER_HEIGHT_TOO_SMALL, "%d 行目の高さが小さすぎです\n0 よりも大きくしてください"},
    {IDS_PAPER_WIDTH_TOO_SMALL, "%d 行目の幅が小さすぎです\n0 よりも大きくしてください"},
    {IDS_PAPER_DUPLICATE_NAME, "%d 行目\n名前が重複しています"},
    {IDS_PAPER_INIT_MISSING, "初期値指定した用紙サイズデータがありません"},
    {IDS_FRAME_COLUMN_DRAW, "図面枠"},
    {IDS_FRAME_COLUMN_INNER, "内枠線"},
    {IDS_FRAME_COLUMN_CUT, "切取線"},
    {IDS_FRAME_YES, "○"},
    {IDS_FRAME_NO, "×"},
    {IDS_FRAME_DUPLICATE_NAME, "%d 行目\n名称が重複しています\n重複名：%s"},
};

} // namespace

bool registerSystemResources(framework::ResourceModule& module)
{
    return module.addStrings(kStrings, std::size(kStrings))
           && module.addLayout(IDD_SYSTEM_SCALE, &buildLayout<Ui::Dlg2039>)
           && module.addLayout(IDD_LINE_WIDTH, &buildLayout<Ui::Dlg2038>)
           && module.addLayout(IDD_SYSTEM_PAPER_SIZE, &buildLayout<Ui::Dlg2011>)
           && module.addLayout(IDD_SYSTEM_PAPER_FRAME, &buildLayout<Ui::Dlg2036>);
}

} // namespace kesto::ui::config::res
