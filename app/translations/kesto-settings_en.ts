<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="ja">
<context>
    <name>LayerViews</name>
    <message>
        <source>図面にレイヤがありません。</source>
        <translation>The drawing has no layers.</translation>
    </message>
    <message>
        <source>キャンセルしました。</source>
        <translation>Cancelled.</translation>
    </message>
    <message>
        <source>「%1」を作成しました。</source>
        <translation>Created &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>編集するビューがありません。</source>
        <translation>There are no views to edit.</translation>
    </message>
    <message>
        <source>%1 個のビューを変更しました。</source>
        <translation>Changed %1 view(s).</translation>
    </message>
    <message>
        <source>ビューは変更されていません。</source>
        <translation>No view was changed.</translation>
    </message>
    <message>
        <source>表示</source>
        <translation>shown</translation>
    </message>
    <message>
        <source>参照</source>
        <translation>referenced</translation>
    </message>
    <message>
        <source>非表示</source>
        <translation>hidden</translation>
    </message>
    <message>
        <source>非参照</source>
        <translation>not referenced</translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>図面を開いてください。</source>
        <translation>Open a drawing first.</translation>
    </message>
</context>
<context>
    <name>Topics</name>
    <message>
        <source>ユーザーインターフェース</source>
        <translation>User Interface</translation>
    </message>
    <message>
        <source>ショートカットキーの設定</source>
        <translation>Shortcut Key Settings</translation>
    </message>
    <message>
        <source>マウスの設定</source>
        <translation>Mouse Settings</translation>
    </message>
    <message>
        <source>要素の作図設定</source>
        <translation>Element Drawing Settings</translation>
    </message>
    <message>
        <source>共通設定</source>
        <translation>Common Settings</translation>
    </message>
    <message>
        <source>図面のレイヤ</source>
        <translation>Layers of the Drawing</translation>
    </message>
    <message>
        <source>表示・非表示レイヤの設定 (新しいビューポート)</source>
        <translation>Layer Visibility Settings (new viewport)</translation>
    </message>
    <message>
        <source>表示・非表示レイヤの設定 (ビューポートの編集)</source>
        <translation>Layer Visibility Settings (edit viewports)</translation>
    </message>
    <message>
        <source>参照・非参照レイヤの設定 (新しい断面ビュー)</source>
        <translation>Layer Reference Settings (new cross-section view)</translation>
    </message>
    <message>
        <source>参照・非参照レイヤの設定 (断面ビューの編集)</source>
        <translation>Layer Reference Settings (edit cross-section views)</translation>
    </message>
    <message>
        <source>システム設定</source>
        <translation>System Settings</translation>
    </message>
    <message>
        <source>スケールの設定</source>
        <translation>Scale Settings</translation>
    </message>
    <message>
        <source>線幅の設定</source>
        <translation>Line Width Settings</translation>
    </message>
    <message>
        <source>用紙サイズの設定</source>
        <translation>Paper Size Settings</translation>
    </message>
    <message>
        <source>図面枠の設定</source>
        <translation>Drawing Frame Settings</translation>
    </message>
</context>
<context>
    <name>WorkbenchResources</name>
    <message>
        <source>図面参照 - 要素の選択</source>
        <translation>Pick from Drawing - Choose an Element</translation>
    </message>
    <message>
        <source>属性を取り込む要素を選んでください。</source>
        <translation>Choose the element whose attributes are taken over.</translation>
    </message>
    <message>
        <source>レイヤ</source>
        <translation>Layer</translation>
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
    <name>kesto::workbench::CFigureListModel</name>
    <message>
        <source>レイヤ依存</source>
        <translation>By Layer</translation>
    </message>
    <message>
        <source>No.</source>
        <extracomment>Column: the figure&apos;s number in the drawing</extracomment>
        <translation>No.</translation>
    </message>
    <message>
        <source>種類</source>
        <translation>Kind</translation>
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
        <translation>Line Type</translation>
    </message>
    <message>
        <source>線幅</source>
        <translation>Line Width</translation>
    </message>
    <message>
        <source>細線 (%1)</source>
        <translation>Thin (%1)</translation>
    </message>
    <message>
        <source>太線 (%1)</source>
        <translation>Bold (%1)</translation>
    </message>
    <message>
        <source>極太線 (%1)</source>
        <translation>Extra bold (%1)</translation>
    </message>
</context>
<context>
    <name>kesto::workbench::CFigurePickDlg</name>
    <message>
        <source>すべてのレイヤ</source>
        <translation>All layers</translation>
    </message>
    <message>
        <source>%1 個の要素</source>
        <translation>%1 elements</translation>
    </message>
</context>
<context>
    <name>kesto::workbench::WorkbenchWindow</name>
    <message>
        <source>設定ワークベンチ - kesto-settings</source>
        <translation>Settings Workbench - kesto-settings</translation>
    </message>
    <message>
        <source>開く</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>図面のビュー (選んだビューを編集します):</source>
        <translation>Views of the drawing (the selected views are edited):</translation>
    </message>
    <message>
        <source>設定フォルダ: %1</source>
        <translation>Settings folder: %1</translation>
    </message>
    <message>
        <source>ファイル(&amp;F)</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>図面を開く(&amp;O)...</source>
        <translation>&amp;Open Drawing...</translation>
    </message>
    <message>
        <source>図面を閉じる(&amp;C)</source>
        <translation>&amp;Close Drawing</translation>
    </message>
    <message>
        <source>終了(&amp;X)</source>
        <translation>E&amp;xit</translation>
    </message>
    <message>
        <source>%1 (再描画 %2 回)</source>
        <translation>%1 (%2 redraws)</translation>
    </message>
    <message>
        <source>設定を保存できませんでした。
%1</source>
        <translation>The settings could not be saved.
%1</translation>
    </message>
    <message>
        <source>「%1」を保存しました。</source>
        <translation>Saved &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>「%1」は変更されていません。</source>
        <translation>&quot;%1&quot; is unchanged.</translation>
    </message>
    <message>
        <source>コマンド(&amp;C)</source>
        <translation>Co&amp;mmands</translation>
    </message>
    <message>
        <source>コマンド「%1」(%2) を実行しました。</source>
        <translation>Ran the command &quot;%1&quot; (%2).</translation>
    </message>
    <message>
        <source>図面を開く</source>
        <translation>Open Drawing</translation>
    </message>
    <message>
        <source>図面 (*.dxf *.xml);;DXF 図面 (*.dxf);;ワークベンチ図面 (*.xml);;すべてのファイル (*)</source>
        <extracomment>File type filters: keep the patterns in parentheses and the &quot;;;&quot; between them</extracomment>
        <translation>Drawings (*.dxf *.xml);;DXF drawings (*.dxf);;Workbench drawings (*.xml);;All files (*)</translation>
    </message>
    <message>
        <source>図面を開けませんでした。
%1</source>
        <translation>The drawing could not be opened.
%1</translation>
    </message>
    <message>
        <source>図面: %1</source>
        <translation>Drawing: %1</translation>
    </message>
    <message>
        <source>図面: (開いていません)</source>
        <translation>Drawing: (none open)</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>設定ファイル %1 を読み込めませんでした (%2)。既定値を使います。</source>
        <translation>The settings file %1 could not be read (%2). The defaults are used.</translation>
    </message>
    <message>
        <source>
元のファイルは %1 に退避しました。</source>
        <translation>
The original file was moved aside to %1.</translation>
    </message>
    <message>
        <source>
元のファイルを退避できなかったため、この設定は保存されません。</source>
        <translation>
The original file could not be moved aside, so this setting will not be saved.</translation>
    </message>
    <message>
        <source>図面を開けませんでした: %1</source>
        <translation>The drawing could not be opened: %1</translation>
    </message>
</context>
</TS>
