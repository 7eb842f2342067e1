#include "res/CustomizeResource.h"
#include "res/ResourceTables.h"

#include "ui_2086.h"
#include "ui_2096.h"
#include "ui_2097.h"
#include "ui_2098.h"
#include "ui_2099.h"
#include "ui_2100.h"

#include <iterator>

namespace kesto::ui::config::res {

namespace {

const framework::StringEntry kStrings[] = {
    {IDS_SHORTCUT_COLUMN_KEY, "割り当てキー"},
    {IDS_SHORTCUT_COLUMN_NAME, "コマンド名"},
    {IDS_SHORTCUT_OWNER, "現在の割り当て\n%s"},
    {IDS_MOUSE_NONE, "なし"},
    {IDS_MOUSE_CREATE_FAILED, "マウスの設定ダイアログ作成に失敗しました。"},
    {IDS_MOUSE_RESET_QUESTION, "マウスの設定を初期化します。\nよろしいですか？"},
    {IDS_MOUSE_RESET_CAPTION, "設定初期化"},
    {IDS_MOUSE_VIEW_2D, "2Dビュー"},
    {IDS_MOUSE_VIEW_3D, "3Dビュー"},
    {IDS_MOUSE_VIEW_RED, "朱書きビュー"},
    {IDS_MOUSE_BUTTON_TABS_2D, "右ボタン\n左右ボタン\nホイール"},
    {IDS_MOUSE_BUTTON_TABS_3D, "右ボタン\n左ボタン\n左右ボタン\nホイール"},
    {IDS_MOUSE_LEFT_PAGE_CAPTIONS, "ドラッグ時\n回転\nスムーズスクロール"},
    {IDS_MOUSE_BOTH_PAGE_CAPTIONS, "ドラッグ時\nスムーズスクロール\n回転"},
    {IDS_MOUSE_WHEEL_PAGE_CAPTIONS, "回転時\nステップズーム\nＸ軸まわりに回転"},
    {IDS_MOUSE_SEPARATOR_ROW, "────────────"},
    {IDS_MOUSE_DIRECT_EDIT_ROW, "%s ※"},
    {IDS_MOUSE_ROW_RANGE_DISPLAY, "表示範囲"},
    {IDS_MOUSE_ROW_ROTATE_DISPLAY, "回転表示"},
    {IDS_MOUSE_ROW_TEXT_CONTENTS, "文字内容編集 ※"},
    {IDS_MOUSE_ROW_HYPERLINK, "ハイパーリンクの設定 ※"},
};

} // namespace

bool registerCustomizeResources(framework::ResourceModule& module)
{
    return module.addStrings(kStrings, std::size(kStrings))
           && module.addLayout(IDD_SHORTCUT, &buildLayout<Ui::Dlg2086>)
           && module.addLayout(IDD_MOUSE, &buildLayout<Ui::Dlg2096>)
           && module.addLayout(IDD_MOUSE_RIGHT_BUTTON, &buildLayout<Ui::Dlg2097>)
           && module.addLayout(IDD_MOUSE_BOTH_BUTTONS, &buildLayout<Ui::Dlg2098>)
           && module.addLayout(IDD_MOUSE_WHEEL, &buildLayout<Ui::Dlg2099>)
           && module.addLayout(IDD_MOUSE_SIMPLE, &buildLayout<Ui::Dlg2100>);
}

} // namespace kesto::ui::config::res
