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
    <name>Screenshots</name>
    <message>
        <source>画像のフォルダ %1 を作成できません。</source>
        <translation>Cannot create the picture folder %1.</translation>
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
    <name>kesto::workbench</name>
    <message>
        <source>%1: ファイルがありません</source>
        <translation>%1: no such file</translation>
    </message>
    <message>
        <source>%1: 図面の形式が分かりません (.xml か .dxf の図面を開けます)</source>
        <translation>%1: unknown drawing format (.xml and .dxf drawings can be opened)</translation>
    </message>
    <message>
        <source>%1 行目: %2</source>
        <translation>line %1: %2</translation>
    </message>
    <message>
        <source>線種には bylayer 以外の名前が必要です</source>
        <translation>a line type needs a name other than bylayer</translation>
    </message>
    <message>
        <source>線種 %1 が二度書かれています</source>
        <translation>line type %1 is written twice</translation>
    </message>
    <message>
        <source>dashes は 0 以外の長さ (mm) です: %1</source>
        <translation>dashes are lengths (mm) other than 0: %1</translation>
    </message>
    <message>
        <source>縮尺には 0 より大きい numerator と denominator が必要です</source>
        <translation>a scale needs a numerator and a denominator above 0</translation>
    </message>
    <message>
        <source>レイヤには名前が必要です</source>
        <translation>a layer needs a name</translation>
    </message>
    <message>
        <source>座標系には名前が必要です</source>
        <translation>a coordinate system needs a name</translation>
    </message>
    <message>
        <source>線幅には 0 より大きい width が必要です</source>
        <translation>a line width needs a width above 0</translation>
    </message>
    <message>
        <source>色は #RRGGBB で書きます</source>
        <translation>colours are written as #RRGGBB</translation>
    </message>
    <message>
        <source>%1 は 0 より大きい線幅です</source>
        <translation>%1 must be a line width above 0</translation>
    </message>
    <message>
        <source>要素の線幅は bylayer, thin, bold, extrabold か 0 から 65.535 mm です (%1 ではありません)</source>
        <translation>an element&apos;s line width is bylayer, thin, bold, extrabold or 0 to 65.535 mm (not %1)</translation>
    </message>
    <message>
        <source>要素には、それより前に書かれたレイヤの名前が必要です</source>
        <translation>an element needs the name of a layer written before it</translation>
    </message>
    <message>
        <source>要素の色は bylayer か #RRGGBB です</source>
        <translation>an element&apos;s colour is bylayer or #RRGGBB</translation>
    </message>
    <message>
        <source>%1: ルート要素は &lt;drawing&gt; です</source>
        <translation>%1: the root element must be &lt;drawing&gt;</translation>
    </message>
    <message>
        <source>書き込みが許可されていません</source>
        <translation>writing is not permitted</translation>
    </message>
    <message>
        <source>読み取り専用の場所です</source>
        <translation>the location is read-only</translation>
    </message>
    <message>
        <source>同じ名前のファイルがあります</source>
        <translation>a file of that name exists</translation>
    </message>
    <message>
        <source>パスの途中にフォルダでないものがあります</source>
        <translation>a part of the path is not a folder</translation>
    </message>
    <message>
        <source>空き容量がありません</source>
        <translation>the disk is full</translation>
    </message>
    <message>
        <source>作成できませんでした</source>
        <translation>it could not be created</translation>
    </message>
    <message>
        <source>設定フォルダ %1 を作成できません (%2)。</source>
        <translation>Cannot create the settings folder %1 (%2).</translation>
    </message>
    <message>
        <source>別のフォルダを選びますか？</source>
        <translation>Choose another folder?</translation>
    </message>
    <message>
        <source>設定フォルダ</source>
        <translation>Settings folder</translation>
    </message>
    <message>
        <source>設定フォルダを選ぶ</source>
        <translation>Choose the settings folder</translation>
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
