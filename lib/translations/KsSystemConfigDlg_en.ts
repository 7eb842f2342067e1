<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="ja">
<context>
    <name>CommonResources</name>
    <message>
        <source>システム</source>
        <translation>System</translation>
    </message>
    <message>
        <source>図面内</source>
        <translation>In Drawing</translation>
    </message>
    <message>
        <source>要素の色</source>
        <translation>Element color</translation>
    </message>
    <message>
        <source>枠の色</source>
        <translation>Frame color</translation>
    </message>
    <message>
        <source>レイヤ依存</source>
        <translation>By Layer</translation>
    </message>
    <message>
        <source>他の色</source>
        <translation>Other color...</translation>
    </message>
    <message>
        <source>他の線種</source>
        <translation>Other line type...</translation>
    </message>
    <message>
        <source>入力値エラー</source>
        <translation>Input Error</translation>
    </message>
</context>
<context>
    <name>CustomizeResources</name>
    <message>
        <source>割り当てキー</source>
        <translation>Key</translation>
    </message>
    <message>
        <source>コマンド名</source>
        <translation>Command</translation>
    </message>
    <message>
        <source>現在の割り当て
%s</source>
        <extracomment>%s: the command the key is bound to now</extracomment>
        <translation>Currently assigned to
%s</translation>
    </message>
    <message>
        <source>なし</source>
        <translation>None</translation>
    </message>
    <message>
        <source>マウスの設定ダイアログ作成に失敗しました。</source>
        <translation>The mouse settings dialog could not be created.</translation>
    </message>
    <message>
        <source>マウスの設定を初期化します。
よろしいですか？</source>
        <translation>The mouse settings will be reset to their defaults.
Do you want to continue?</translation>
    </message>
    <message>
        <source>設定初期化</source>
        <translation>Reset Settings</translation>
    </message>
    <message>
        <source>2Dビュー</source>
        <translation>2D View</translation>
    </message>
    <message>
        <source>3Dビュー</source>
        <translation>3D View</translation>
    </message>
    <message>
        <source>朱書きビュー</source>
        <extracomment>View for red-line (correction) drawing</extracomment>
        <translation>Redline View</translation>
    </message>
    <message>
        <source>右ボタン
左右ボタン
ホイール</source>
        <extracomment>Tab captions, one a line: keep the line count</extracomment>
        <translation>Right Button
Both Buttons
Wheel</translation>
    </message>
    <message>
        <source>右ボタン
左ボタン
左右ボタン
ホイール</source>
        <extracomment>Tab captions, one a line: keep the line count</extracomment>
        <translation>Right Button
Left Button
Both Buttons
Wheel</translation>
    </message>
    <message>
        <source>ドラッグ時
回転
スムーズスクロール</source>
        <extracomment>Group title, then two captions, one a line: keep the line count</extracomment>
        <translation>When dragging
Rotate
Smooth scroll</translation>
    </message>
    <message>
        <source>ドラッグ時
スムーズスクロール
回転</source>
        <extracomment>Group title, then two captions, one a line: keep the line count</extracomment>
        <translation>When dragging
Smooth scroll
Rotate</translation>
    </message>
    <message>
        <source>回転時
ステップズーム
Ｘ軸まわりに回転</source>
        <extracomment>Group title, then two captions, one a line: keep the line count</extracomment>
        <translation>When the wheel turns
Step zoom
Rotate about the X axis</translation>
    </message>
    <message>
        <source>────────────</source>
        <extracomment>Separator row of the command list</extracomment>
        <translation>────────────</translation>
    </message>
    <message>
        <source>%s ※</source>
        <extracomment>%s: a command name; the mark refers to the note &quot;only in direct editing&quot;</extracomment>
        <translation>%s *</translation>
    </message>
    <message>
        <source>表示範囲</source>
        <translation>Display Range</translation>
    </message>
    <message>
        <source>回転表示</source>
        <translation>Rotate View</translation>
    </message>
    <message>
        <source>文字内容編集 ※</source>
        <translation>Edit Text Contents *</translation>
    </message>
    <message>
        <source>ハイパーリンクの設定 ※</source>
        <translation>Hyperlink Settings *</translation>
    </message>
</context>
<context>
    <name>Dlg2011</name>
    <message>
        <source>用紙サイズの設定</source>
        <translation>Paper Size Settings</translation>
    </message>
    <message>
        <source>追加</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>挿入</source>
        <translation>Insert</translation>
    </message>
    <message>
        <source>削除</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>初期化</source>
        <translation>Reset</translation>
    </message>
    <message>
        <source>新規図面初期値</source>
        <translation>Default for new drawings</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>キャンセル</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>ヘルプ</source>
        <translation>Help</translation>
    </message>
</context>
<context>
    <name>Dlg2036</name>
    <message>
        <source>図面枠の設定</source>
        <translation>Drawing Frame Settings</translation>
    </message>
    <message>
        <source>追加</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>挿入</source>
        <translation>Insert</translation>
    </message>
    <message>
        <source>削除</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>初期化</source>
        <translation>Reset</translation>
    </message>
    <message>
        <source>図面枠</source>
        <translation>Drawing frame</translation>
    </message>
    <message>
        <source>色</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>線種</source>
        <translation>Line type</translation>
    </message>
    <message>
        <source>線幅</source>
        <translation>Line width</translation>
    </message>
    <message>
        <source>内枠線</source>
        <translation>Inner frame</translation>
    </message>
    <message>
        <source>切取線</source>
        <translation>Trim line</translation>
    </message>
    <message>
        <source>表題欄</source>
        <extracomment>Drawn inside the small title block of the frame diagram: keep it short</extracomment>
        <translation>Title</translation>
    </message>
    <message>
        <source>新規図面の初期値</source>
        <translation>Default for new drawings</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>キャンセル</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>ヘルプ</source>
        <translation>Help</translation>
    </message>
</context>
<context>
    <name>Dlg2038</name>
    <message>
        <source>線幅の設定</source>
        <translation>Line Width Settings</translation>
    </message>
    <message>
        <source>追加</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>挿入</source>
        <translation>Insert</translation>
    </message>
    <message>
        <source>削除</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>上へ</source>
        <translation>Up</translation>
    </message>
    <message>
        <source>下へ</source>
        <translation>Down</translation>
    </message>
    <message>
        <source>初期化</source>
        <translation>Reset</translation>
    </message>
    <message>
        <source>システムに登録</source>
        <translation>Add to System</translation>
    </message>
    <message>
        <source>*はシステムの規定値であり、線幅の変更不可</source>
        <translation>* marks the system&apos;s standard widths; they cannot be changed</translation>
    </message>
    <message>
        <source>細線:</source>
        <translation>Thin:</translation>
    </message>
    <message>
        <source>太線:</source>
        <translation>Bold:</translation>
    </message>
    <message>
        <source>極太線:</source>
        <translation>Extra bold:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>キャンセル</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>ヘルプ</source>
        <translation>Help</translation>
    </message>
</context>
<context>
    <name>Dlg2039</name>
    <message>
        <source>スケールの設定</source>
        <translation>Scale Settings</translation>
    </message>
    <message>
        <source>追加</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>挿入</source>
        <translation>Insert</translation>
    </message>
    <message>
        <source>削除</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>初期化</source>
        <translation>Reset</translation>
    </message>
    <message>
        <source>システムへ登録</source>
        <translation>Add to System</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>キャンセル</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>ヘルプ</source>
        <translation>Help</translation>
    </message>
</context>
<context>
    <name>Dlg2051</name>
    <message>
        <source>共通設定</source>
        <translation>Common Settings</translation>
    </message>
    <message>
        <source>共通属性</source>
        <translation>Common attributes</translation>
    </message>
    <message>
        <source>座標系</source>
        <translation>Coordinate system</translation>
    </message>
    <message>
        <source>スケール</source>
        <translation>Scale</translation>
    </message>
    <message>
        <source>レイヤ</source>
        <translation>Layer</translation>
    </message>
    <message>
        <source>色</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>線種</source>
        <translation>Line type</translation>
    </message>
    <message>
        <source>線幅</source>
        <translation>Line width</translation>
    </message>
    <message>
        <source>図面参照</source>
        <translation>Pick from Drawing</translation>
    </message>
    <message>
        <source>端点タイプ</source>
        <translation>Line ends</translation>
    </message>
    <message>
        <source>始点:</source>
        <translation>Start:</translation>
    </message>
    <message>
        <source>終点:</source>
        <translation>End:</translation>
    </message>
    <message>
        <source>仮想要素にする</source>
        <translation>Make it a virtual element</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>キャンセル</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>ヘルプ</source>
        <translation>Help</translation>
    </message>
</context>
<context>
    <name>Dlg2086</name>
    <message>
        <source>ショートカットキーの設定</source>
        <translation>Shortcut Key Settings</translation>
    </message>
    <message>
        <source>コマンド</source>
        <translation>Commands</translation>
    </message>
    <message>
        <source>割り当てるキー:</source>
        <translation>New key:</translation>
    </message>
    <message>
        <source>現在のキー:</source>
        <translation>Current keys:</translation>
    </message>
    <message>
        <source>一覧</source>
        <translation>All keys</translation>
    </message>
    <message>
        <source>割り当て</source>
        <translation>Assign</translation>
    </message>
    <message>
        <source>削除</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>初期化</source>
        <translation>Reset</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>キャンセル</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>ヘルプ</source>
        <translation>Help</translation>
    </message>
</context>
<context>
    <name>Dlg2096</name>
    <message>
        <source>マウスの設定</source>
        <translation>Mouse Settings</translation>
    </message>
    <message>
        <source>初期化</source>
        <translation>Reset</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>キャンセル</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>ヘルプ</source>
        <translation>Help</translation>
    </message>
</context>
<context>
    <name>Dlg2097</name>
    <message>
        <source>右ボタンでショートカットメニューを表示する。</source>
        <translation>Show a shortcut menu with the right button.</translation>
    </message>
    <message>
        <source>コマンド</source>
        <translation>Commands</translation>
    </message>
    <message>
        <source>追加&gt;&gt;</source>
        <translation>Add &gt;&gt;</translation>
    </message>
    <message>
        <source>挿入&gt;&gt;</source>
        <translation>Insert &gt;&gt;</translation>
    </message>
    <message>
        <source>削除</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>セパレータ</source>
        <translation>Separator</translation>
    </message>
    <message>
        <source>ショートカットメニュー</source>
        <translation>Shortcut menu</translation>
    </message>
    <message>
        <source>１つ上へ</source>
        <translation>Move Up</translation>
    </message>
    <message>
        <source>１つ下へ</source>
        <translation>Move Down</translation>
    </message>
    <message>
        <source>最近使用したコマンド</source>
        <translation>Recently used commands</translation>
    </message>
    <message>
        <source>※ダイレクト編集時のみ有効</source>
        <translation>* Only in direct editing</translation>
    </message>
</context>
<context>
    <name>Dlg2098</name>
    <message>
        <source>左右ボタンを同時に押してコマンドを実行する。</source>
        <translation>Run commands by pressing both buttons together.</translation>
    </message>
    <message>
        <source>左上で放す</source>
        <translation>Release up-left</translation>
    </message>
    <message>
        <source>右上で放す</source>
        <translation>Release up-right</translation>
    </message>
    <message>
        <source>同一点で放す</source>
        <translation>Release in place</translation>
    </message>
    <message>
        <source>左下で放す</source>
        <translation>Release down-left</translation>
    </message>
    <message>
        <source>右下で放す</source>
        <translation>Release down-right</translation>
    </message>
    <message>
        <source>スムーズスクロール</source>
        <translation>Smooth scroll</translation>
    </message>
    <message>
        <source>左右ボタンを無効にする</source>
        <translation>Disable both buttons</translation>
    </message>
</context>
<context>
    <name>Dlg2099</name>
    <message>
        <source>ホイールの動作でコマンドを実行する。</source>
        <translation>Run commands with the wheel.</translation>
    </message>
    <message>
        <source>回転</source>
        <translation>Turn</translation>
    </message>
    <message>
        <source>なし</source>
        <translation>None</translation>
    </message>
    <message>
        <source>ステップズーム</source>
        <translation>Step zoom</translation>
    </message>
    <message>
        <source>縦スクロール</source>
        <translation>Vertical scroll</translation>
    </message>
    <message>
        <source>ツールパネルモード変更</source>
        <translation>Change tool panel mode</translation>
    </message>
    <message>
        <source>CTRL + 回転</source>
        <translation>Ctrl + turn</translation>
    </message>
    <message>
        <source>ドラッグ</source>
        <translation>Drag</translation>
    </message>
    <message>
        <source>スムーズスクロール</source>
        <translation>Smooth scroll</translation>
    </message>
    <message>
        <source>CTRL + ドラッグ</source>
        <translation>Ctrl + drag</translation>
    </message>
    <message>
        <source>クリック</source>
        <translation>Click</translation>
    </message>
    <message>
        <source>CTRL + クリック</source>
        <translation>Ctrl + click</translation>
    </message>
    <message>
        <source>SHIFT + 回転</source>
        <translation>Shift + turn</translation>
    </message>
    <message>
        <source>ズーム率</source>
        <translation>Zoom rate</translation>
    </message>
    <message>
        <source>縮小</source>
        <translation>Zoom out</translation>
    </message>
    <message>
        <source>拡大</source>
        <translation>Zoom in</translation>
    </message>
</context>
<context>
    <name>Dlg9020</name>
    <message>
        <source>表示・非表示レイヤの設定</source>
        <translation>Layer Visibility Settings</translation>
    </message>
    <message>
        <source>表示</source>
        <translation>Show</translation>
    </message>
    <message>
        <source>非表示</source>
        <translation>Hide</translation>
    </message>
    <message>
        <source>無記入</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>(そのまま)</source>
        <translation>(Keep)</translation>
    </message>
    <message>
        <source>表示:このビューポートでは、表示する
非表示:このビューポートでは、表示しない
無記入:レイヤの設定で表示・非表示
(そのまま):現在の設定を維持する</source>
        <translation>Show: shown in this viewport
Hide: not shown in this viewport
Clear: shown or hidden as the layer is set
(Keep): keeps the current setting</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>キャンセル</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>Dlg9033</name>
    <message>
        <source>参照・非参照レイヤの設定</source>
        <translation>Layer Reference Settings</translation>
    </message>
    <message>
        <source>参照</source>
        <translation>Reference</translation>
    </message>
    <message>
        <source>非参照</source>
        <translation>No Reference</translation>
    </message>
    <message>
        <source>無記入</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>(そのまま)</source>
        <translation>(Keep)</translation>
    </message>
    <message>
        <source>参照:この断面ビューでは、参照する
非参照:この断面ビューでは、参照しない
無記入:レイヤの設定で参照・非参照
(そのまま):現在の設定を維持する</source>
        <translation>Reference: referenced by this cross-section view
No Reference: not referenced by this cross-section view
Clear: referenced or not as the layer is set
(Keep): keeps the current setting</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>キャンセル</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>HatchResources</name>
    <message>
        <source>ハッチングパターンの設定</source>
        <translation>Hatch Pattern Settings</translation>
    </message>
    <message>
        <source>基本図形[%s]がシステムに登録されて
いないパターンハッチングは参照できません。</source>
        <translation>A pattern hatch whose base figure [%s] is not
registered in the system cannot be picked.</translation>
    </message>
</context>
<context>
    <name>LayerResources</name>
    <message>
        <source>表示</source>
        <extracomment>Cell value: the layer is shown in the view</extracomment>
        <translation>Shown</translation>
    </message>
    <message>
        <source>非表示</source>
        <translation>Hidden</translation>
    </message>
    <message>
        <source>参照</source>
        <extracomment>Cell value: the layer is referenced by the cross-section view</extracomment>
        <translation>Referenced</translation>
    </message>
    <message>
        <source>非参照</source>
        <translation>Not referenced</translation>
    </message>
    <message>
        <source>(そのまま)</source>
        <extracomment>Cell value when several views differ: left as each view has it</extracomment>
        <translation>(Keep)</translation>
    </message>
    <message>
        <source>表示・非表示</source>
        <translation>Shown/Hidden</translation>
    </message>
    <message>
        <source>参照・非参照</source>
        <translation>Reference</translation>
    </message>
    <message>
        <source>図形</source>
        <extracomment>Column: whether the layer has figures</extracomment>
        <translation>Figures</translation>
    </message>
    <message>
        <source>編集</source>
        <translation>Editable</translation>
    </message>
    <message>
        <source>レイヤ名称</source>
        <translation>Layer Name</translation>
    </message>
    <message>
        <source>色</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>線種</source>
        <translation>Line Type</translation>
    </message>
    <message>
        <source>線幅</source>
        <translation>Line Width</translation>
    </message>
    <message>
        <source>コメント</source>
        <translation>Comment</translation>
    </message>
    <message>
        <source>*</source>
        <extracomment>Mark of a layer with figures: keep the symbol</extracomment>
        <translation>*</translation>
    </message>
    <message>
        <source>○</source>
        <extracomment>Yes mark of a cell: keep the symbol</extracomment>
        <translation>○</translation>
    </message>
    <message>
        <source>×</source>
        <extracomment>No mark of a cell: keep the symbol</extracomment>
        <translation>×</translation>
    </message>
</context>
<context>
    <name>PaperRules</name>
    <message>
        <source>新サイズ</source>
        <translation>New size</translation>
    </message>
</context>
<context>
    <name>SystemResources</name>
    <message>
        <source>既に同じ線幅がシステム設定に存在しています。</source>
        <translation>The same line width already exists in the system settings.</translation>
    </message>
    <message>
        <source>既に同じスケールがシステム設定に存在しています。</source>
        <translation>The same scale already exists in the system settings.</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>分子</source>
        <translation>Numerator</translation>
    </message>
    <message>
        <source>分母</source>
        <translation>Denominator</translation>
    </message>
    <message>
        <source>%d 行目の%sには 0 より大きい数値を入力してください。</source>
        <extracomment>%d: row number, %s: column name (numerator or denominator)</extracomment>
        <translation>Row %d: enter a number greater than 0 as the %s.</translation>
    </message>
    <message>
        <source>図面データがありません！
１つ以上の図面データを設定してください。</source>
        <translation>There are no frames!
Set up at least one frame.</translation>
    </message>
    <message>
        <source>%d 行目のデータに名前がありません！</source>
        <translation>Row %d has no name!</translation>
    </message>
    <message>
        <source>新規枠</source>
        <extracomment>Name given to a new paper frame row</extracomment>
        <translation>New frame</translation>
    </message>
    <message>
        <source>幅</source>
        <extracomment>Column of the line width table: the width in mm</extracomment>
        <translation>Width</translation>
    </message>
    <message>
        <source>色</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>高さ(mm)</source>
        <translation>Height (mm)</translation>
    </message>
    <message>
        <source>幅(mm)</source>
        <translation>Width (mm)</translation>
    </message>
    <message>
        <source>%d 行目のデータに名前がありません</source>
        <translation>Row %d has no name</translation>
    </message>
    <message>
        <source>%d 行目の高さが小さすぎです
0 よりも大きくしてください</source>
        <translation>The height in row %d is too small.
Make it greater than 0.</translation>
    </message>
    <message>
        <source>%d 行目の幅が小さすぎです
0 よりも大きくしてください</source>
        <translation>The width in row %d is too small.
Make it greater than 0.</translation>
    </message>
    <message>
        <source>%d 行目
名前が重複しています</source>
        <translation>Row %d
This name is already used.</translation>
    </message>
    <message>
        <source>初期値指定した用紙サイズデータがありません</source>
        <translation>The paper size chosen as the default does not exist.</translation>
    </message>
    <message>
        <source>図面枠</source>
        <extracomment>Header of a narrow column and legend of the frame diagram: keep it short</extracomment>
        <translation>Frame</translation>
    </message>
    <message>
        <source>内枠線</source>
        <extracomment>Header of a narrow column and legend of the frame diagram: keep it short</extracomment>
        <translation>Inner</translation>
    </message>
    <message>
        <source>切取線</source>
        <extracomment>Header of a narrow column and legend of the frame diagram: keep it short</extracomment>
        <translation>Trim</translation>
    </message>
    <message>
        <source>○</source>
        <extracomment>Cell mark for &quot;drawn&quot;; the table reads the mark back: keep the symbol</extracomment>
        <translation>○</translation>
    </message>
    <message>
        <source>×</source>
        <extracomment>Cell mark for &quot;not drawn&quot;; the table reads the mark back: keep the symbol</extracomment>
        <translation>×</translation>
    </message>
    <message>
        <source>%d 行目
名称が重複しています
重複名：%s</source>
        <translation>Row %d
This name is already used.
Name: %s</translation>
    </message>
</context>
</TS>
