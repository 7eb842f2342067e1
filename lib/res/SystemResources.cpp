#include "res/ResourceTables.h"
#include "res/SystemResource.h"

#include "ui_2011.h"
#include "ui_2036.h"
#include "ui_2038.h"
#include "ui_2039.h"

#include <iterator>

namespace kesto::ui::config::res {

namespace {

constexpr char kContext[] = "SystemResources";

const framework::StringEntry kStrings[] = {
    {IDS_SAME_LINEWIDTH_EXISTS,
     QT_TRANSLATE_NOOP("SystemResources", "既に同じ線幅がシステム設定に存在しています。")},
    {IDS_SAME_SCALE_EXISTS,
     QT_TRANSLATE_NOOP("SystemResources", "既に同じスケールがシステム設定に存在しています。")},
    {IDS_SCALE_COLUMN_NAME, QT_TRANSLATE_NOOP("SystemResources", "名称")},
    {IDS_SCALE_COLUMN_NUMERATOR, QT_TRANSLATE_NOOP("SystemResources", "分子")},
    {IDS_SCALE_COLUMN_DENOMINATOR, QT_TRANSLATE_NOOP("SystemResources", "分母")},
    //: %d: row number, %s: column name (numerator or denominator)
    {IDS_SCALE_VALUE_NOT_POSITIVE,
     QT_TRANSLATE_NOOP("SystemResources", "%d 行目の%sには 0 より大きい数値を入力してください。")},
    {IDS_FRAME_NO_DATA,
     QT_TRANSLATE_NOOP("SystemResources",
                       "図面データがありません！\n１つ以上の図面データを設定してください。")},
    {IDS_FRAME_NO_NAME,
     QT_TRANSLATE_NOOP("SystemResources", "%d 行目のデータに名前がありません！")},
    //: Name given to a new paper frame row
    {IDS_FRAME_NEW_NAME, QT_TRANSLATE_NOOP("SystemResources", "新規枠")},
    //: Column of the line width table: the width in mm
    {IDS_LINEWIDTH_COLUMN_WIDTH, QT_TRANSLATE_NOOP("SystemResources", "幅")},
    {IDS_LINEWIDTH_COLUMN_COLOR, QT_TRANSLATE_NOOP("SystemResources", "色")},
    {IDS_PAPER_COLUMN_HEIGHT, QT_TRANSLATE_NOOP("SystemResources", "高さ(mm)")},
    {IDS_PAPER_COLUMN_WIDTH, QT_TRANSLATE_NOOP("SystemResources", "幅(mm)")},
    {IDS_PAPER_NO_NAME, QT_TRANSLATE_NOOP("SystemResources", "%d 行目のデータに名前がありません")},
    {IDS_PAPER_HEIGHT_TOO_SMALL,
     QT_TRANSLATE_NOOP("SystemResources",
                       "%d 行目の高さが小さすぎです\n0 よりも大きくしてください")},
    {IDS_PAPER_WIDTH_TOO_SMALL,
     QT_TRANSLATE_NOOP("SystemResources", "%d 行目の幅が小さすぎです\n0 よりも大きくしてください")},
    {IDS_PAPER_DUPLICATE_NAME,
     QT_TRANSLATE_NOOP("SystemResources", "%d 行目\n名前が重複しています")},
    {IDS_PAPER_INIT_MISSING,
     QT_TRANSLATE_NOOP("SystemResources", "初期値指定した用紙サイズデータがありません")},
    //: Header of a narrow column and legend of the frame diagram: keep it short
    {IDS_FRAME_COLUMN_DRAW, QT_TRANSLATE_NOOP("SystemResources", "図面枠")},
    //: Header of a narrow column and legend of the frame diagram: keep it short
    {IDS_FRAME_COLUMN_INNER, QT_TRANSLATE_NOOP("SystemResources", "内枠線")},
    //: Header of a narrow column and legend of the frame diagram: keep it short
    {IDS_FRAME_COLUMN_CUT, QT_TRANSLATE_NOOP("SystemResources", "切取線")},
    //: Cell mark for "drawn"; the table reads the mark back: keep the symbol
    {IDS_FRAME_YES, QT_TRANSLATE_NOOP("SystemResources", "○")},
    //: Cell mark for "not drawn"; the table reads the mark back: keep the symbol
    {IDS_FRAME_NO, QT_TRANSLATE_NOOP("SystemResources", "×")},
    {IDS_FRAME_DUPLICATE_NAME,
     QT_TRANSLATE_NOOP("SystemResources", "%d 行目\n名称が重複しています\n重複名：%s")},
};

} // namespace

bool registerSystemResources(framework::ResourceModule& module)
{
    return module.addStrings(kStrings, std::size(kStrings), kContext)
           && module.addLayout(IDD_SYSTEM_SCALE, &buildLayout<Ui::Dlg2039>)
           && module.addLayout(IDD_LINE_WIDTH, &buildLayout<Ui::Dlg2038>)
           && module.addLayout(IDD_SYSTEM_PAPER_SIZE, &buildLayout<Ui::Dlg2011>)
           && module.addLayout(IDD_SYSTEM_PAPER_FRAME, &buildLayout<Ui::Dlg2036>);
}

} // namespace kesto::ui::config::res
