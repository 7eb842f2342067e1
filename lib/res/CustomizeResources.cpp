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

constexpr char kContext[] = "CustomizeResources";

const framework::StringEntry kStrings[] = {
    {IDS_SHORTCUT_COLUMN_KEY, QT_TRANSLATE_NOOP("CustomizeResources", "割り当てキー")},
    {IDS_SHORTCUT_COLUMN_NAME, QT_TRANSLATE_NOOP("CustomizeResources", "コマンド名")},
    //: %s: the command the key is bound to now
    {IDS_SHORTCUT_OWNER, QT_TRANSLATE_NOOP("CustomizeResources", "現在の割り当て\n%s")},
    {IDS_MOUSE_NONE, QT_TRANSLATE_NOOP("CustomizeResources", "なし")},
    {IDS_MOUSE_CREATE_FAILED,
     QT_TRANSLATE_NOOP("CustomizeResources", "マウスの設定ダイアログ作成に失敗しました。")},
    {IDS_MOUSE_RESET_QUESTION,
     QT_TRANSLATE_NOOP("CustomizeResources", "マウスの設定を初期化します。\nよろしいですか？")},
    {IDS_MOUSE_RESET_CAPTION, QT_TRANSLATE_NOOP("CustomizeResources", "設定初期化")},
    {IDS_MOUSE_VIEW_2D, QT_TRANSLATE_NOOP("CustomizeResources", "2Dビュー")},
    {IDS_MOUSE_VIEW_3D, QT_TRANSLATE_NOOP("CustomizeResources", "3Dビュー")},
    //: View for red-line (correction) drawing
    {IDS_MOUSE_VIEW_RED, QT_TRANSLATE_NOOP("CustomizeResources", "朱書きビュー")},
    //: Tab captions, one a line: keep the line count
    {IDS_MOUSE_BUTTON_TABS_2D,
     QT_TRANSLATE_NOOP("CustomizeResources", "右ボタン\n左右ボタン\nホイール")},
    //: Tab captions, one a line: keep the line count
    {IDS_MOUSE_BUTTON_TABS_3D,
     QT_TRANSLATE_NOOP("CustomizeResources", "右ボタン\n左ボタン\n左右ボタン\nホイール")},
    //: Group title, then two captions, one a line: keep the line count
    {IDS_MOUSE_LEFT_PAGE_CAPTIONS,
     QT_TRANSLATE_NOOP("CustomizeResources", "ドラッグ時\n回転\nスムーズスクロール")},
    //: Group title, then two captions, one a line: keep the line count
    {IDS_MOUSE_BOTH_PAGE_CAPTIONS,
     QT_TRANSLATE_NOOP("CustomizeResources", "ドラッグ時\nスムーズスクロール\n回転")},
    //: Group title, then two captions, one a line: keep the line count
    {IDS_MOUSE_WHEEL_PAGE_CAPTIONS,
     QT_TRANSLATE_NOOP("CustomizeResources", "回転時\nステップズーム\nＸ軸まわりに回転")},
    //: Separator row of the command list
    {IDS_MOUSE_SEPARATOR_ROW, QT_TRANSLATE_NOOP("CustomizeResources", "────────────")},
    //: %s: a command name; the mark refers to the note "only in direct editing"
    {IDS_MOUSE_DIRECT_EDIT_ROW, QT_TRANSLATE_NOOP("CustomizeResources", "%s ※")},
    {IDS_MOUSE_ROW_RANGE_DISPLAY, QT_TRANSLATE_NOOP("CustomizeResources", "表示範囲")},
    {IDS_MOUSE_ROW_ROTATE_DISPLAY, QT_TRANSLATE_NOOP("CustomizeResources", "回転表示")},
    {IDS_MOUSE_ROW_TEXT_CONTENTS, QT_TRANSLATE_NOOP("CustomizeResources", "文字内容編集 ※")},
    {IDS_MOUSE_ROW_HYPERLINK, QT_TRANSLATE_NOOP("CustomizeResources", "ハイパーリンクの設定 ※")},
};

} // namespace

bool registerCustomizeResources(framework::ResourceModule& module)
{
    return module.addStrings(kStrings, std::size(kStrings), kContext)
           && module.addLayout(IDD_SHORTCUT, &buildLayout<Ui::Dlg2086>)
           && module.addLayout(IDD_MOUSE, &buildLayout<Ui::Dlg2096>)
           && module.addLayout(IDD_MOUSE_RIGHT_BUTTON, &buildLayout<Ui::Dlg2097>)
           && module.addLayout(IDD_MOUSE_BOTH_BUTTONS, &buildLayout<Ui::Dlg2098>)
           && module.addLayout(IDD_MOUSE_WHEEL, &buildLayout<Ui::Dlg2099>)
           && module.addLayout(IDD_MOUSE_SIMPLE, &buildLayout<Ui::Dlg2100>);
}

} // namespace kesto::ui::config::res
