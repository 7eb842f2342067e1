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
    <message>
        <source>形式がわかりません。DXF (.dxf) かワークベンチの XML 図面 (.xml) を選んでください</source>
        <translation>unknown format: choose a DXF drawing (.dxf) or a workbench XML drawing (.xml)</translation>
    </message>
    <message>
        <source>ファイルがありません</source>
        <translation>no such file</translation>
    </message>
    <message>
        <source>図面 %1 を開けません。
%2</source>
        <translation>Cannot open the drawing %1.
%2</translation>
    </message>
    <message>
        <source>図面 %1 には読めない部分がありました。読めた部分を開きます。
%2</source>
        <translation>Parts of the drawing %1 could not be read; what could be read is opened.
%2</translation>
    </message>
    <message>
        <source>線種には bylayer 以外の名前 (name) が要ります</source>
        <translation>a line type needs a name other than bylayer</translation>
    </message>
    <message>
        <source>線種「%1」が重複しています</source>
        <translation>the line type &quot;%1&quot; is repeated</translation>
    </message>
    <message>
        <source>線種「%1」の dashes は 0 でない長さ (mm) の並びです: %2</source>
        <translation>the dashes of line type &quot;%1&quot; are lengths (mm) other than 0: %2</translation>
    </message>
    <message>
        <source>縮尺には 0 より大きい分子 (numerator) と分母 (denominator) が要ります</source>
        <translation>a scale needs a numerator and a denominator above 0</translation>
    </message>
    <message>
        <source>レイヤ「%1」の線幅「%2」は 0 以上の数 (mm) ではありません。0 にします</source>
        <translation>the line width &quot;%2&quot; of layer &quot;%1&quot; is not a number of 0 or more (mm); 0 is used</translation>
    </message>
    <message>
        <source>レイヤには名前 (name) が要ります</source>
        <translation>a layer needs a name</translation>
    </message>
    <message>
        <source>レイヤ名「%1」が重複しています</source>
        <translation>the layer name &quot;%1&quot; is repeated</translation>
    </message>
    <message>
        <source>座標系には名前 (name) が要ります</source>
        <translation>a coordinate system needs a name</translation>
    </message>
    <message>
        <source>線幅 (width) は 0 以上の数 (mm) です: %1</source>
        <translation>a width is a number of 0 or more (mm): %1</translation>
    </message>
    <message>
        <source>線幅の色「%1」を読めません (#RRGGBB)</source>
        <translation>the colour &quot;%1&quot; of a line width cannot be read (#RRGGBB)</translation>
    </message>
    <message>
        <source>%1 は 0 以上の線幅 (mm) です: %2</source>
        <translation>%1 is a line width of 0 or more (mm): %2</translation>
    </message>
    <message>
        <source>図形のレイヤ「%1」は、その前に定義されたレイヤではありません</source>
        <translation>the figure&apos;s layer &quot;%1&quot; is not a layer defined before it</translation>
    </message>
    <message>
        <source>図形の色「%1」を読めません (#RRGGBB)。レイヤの色にします</source>
        <translation>the figure&apos;s colour &quot;%1&quot; cannot be read (#RRGGBB); the layer&apos;s colour is used</translation>
    </message>
    <message>
        <source>図形の線幅「%1」は bylayer, thin, bold, extrabold か 0〜65.535 mm です。レイヤの線幅にします</source>
        <translation>the figure&apos;s line width &quot;%1&quot; must be bylayer, thin, bold, extrabold or 0 to 65.535 mm; the layer&apos;s width is used</translation>
    </message>
    <message>
        <source>ルート要素が &lt;drawing&gt; ではありません</source>
        <translation>the root element is not &lt;drawing&gt;</translation>
    </message>
    <message>
        <source>設定ファイル %1 を読み込めませんでした。この設定は既定値を使います。</source>
        <translation>The settings file %1 could not be read. This setting uses its defaults.</translation>
    </message>
    <message>
        <source>設定ファイル %1 の一部を読み込めませんでした。読めた値を使い、残りは既定値にします。</source>
        <translation>Parts of the settings file %1 could not be read. What could be read is used, the rest comes from the defaults.</translation>
    </message>
    <message>
        <source>この設定を次に保存する前に、元のファイルを %1.bak-日時 として残します。</source>
        <translation>Before this setting is next saved, the original file is kept as %1.bak-DATE.</translation>
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
    <name>kesto::workbench::SettingsStore</name>
    <message>
        <source>元のファイルを %1 に残せなかったため、上書きしませんでした。</source>
        <translation>The original file could not be kept as %1, so it was not overwritten.</translation>
    </message>
    <message>
        <source>設定ファイル %1 を保存できませんでした。%2
フォルダの書き込み権限と空き容量を確かめるか、--settings で別の設定フォルダを指定してください。</source>
        <translation>The settings file %1 could not be saved. %2
Check the folder&apos;s write permission and free space, or give another settings folder with --settings.</translation>
    </message>
    <message>
        <source>ダイアログの記憶ファイル %1 を作れませんでした (%2)。ダイアログは前回の値を覚えません。設定フォルダの書き込み権限を確かめてください。</source>
        <translation>The dialogs&apos; memory file %1 could not be created (%2). Dialogs will not remember their last values. Check the write permission of the settings folder.</translation>
    </message>
    <message>
        <source>ルート要素がありません</source>
        <translation>there is no root element</translation>
    </message>
    <message>
        <source>ダイアログの記憶ファイル %1 を読み込めません。
%2
ファイルはそのまま残し、ダイアログは前回の値を読まず、このファイルに書きもしません。直すか別の名前に変えてから、ワークベンチを起動し直してください。</source>
        <translation>The dialogs&apos; memory file %1 cannot be read.
%2
The file is left as it is; dialogs neither read their last values from it nor write to it. Repair or rename it, then start the workbench again.</translation>
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
        <source>図面: %1</source>
        <translation>Drawing: %1</translation>
    </message>
    <message>
        <source>図面: (開いていません)</source>
        <translation>Drawing: (none open)</translation>
    </message>
    <message>
        <source>「%1」の変更を保存できなかったため、変更前の設定に戻しました。
%2</source>
        <translation>The changes to &quot;%1&quot; could not be saved, so the setting went back to what it was.
%2</translation>
    </message>
</context>
<context>
    <name>kesto::workbench::dxf</name>
    <message>
        <source>バイナリ DXF は読めません。ASCII DXF で保存し直してください</source>
        <translation>binary DXF cannot be read; save the drawing again as ASCII DXF</translation>
    </message>
    <message>
        <source>DXF の読み込みに失敗しました (%1)</source>
        <translation>reading the DXF failed (%1)</translation>
    </message>
    <message>
        <source>ファイルを開けません (%1)</source>
        <translation>the file cannot be opened (%1)</translation>
    </message>
    <message>
        <source>ファイルが大きすぎます (%1 バイト。上限は %2 バイト)</source>
        <translation>the file is too large (%1 bytes; the limit is %2 bytes)</translation>
    </message>
</context>
<context>
    <name>kesto::workbench::dxf::CDxfStreamBuf</name>
    <message>
        <source>グループコード %1 が -5 から 1071 の数ではありません</source>
        <translation>group code %1 is not a number from -5 to 1071</translation>
    </message>
    <message>
        <source>グループコード %1 に値がありません (ファイルが途中で切れています)</source>
        <translation>group code %1 has no value (the file is cut short)</translation>
    </message>
    <message>
        <source>図形や表の項目が多すぎます (上限 %1)</source>
        <translation>too many entities or table entries (limit %1)</translation>
    </message>
    <message>
        <source>セクション %1 が閉じないまま次のセクションが始まります</source>
        <translation>section %1 is not closed before the next one begins</translation>
    </message>
    <message>
        <source>ブロックの入れ子が深すぎます (上限 %1 段)</source>
        <translation>blocks are nested too deeply (limit %1 levels)</translation>
    </message>
    <message>
        <source>%1 (%2 行目から) の値が多すぎます (上限 %3)</source>
        <translation>%1 (from line %2) has too many values (limit %3)</translation>
    </message>
    <message>
        <source>%1 (%2 行目から) のグループコード %3 の個数 %4 が、その図形の値の数 %5 を超えています</source>
        <translation>%1 (from line %2): the count %4 of group code %3 exceeds the %5 values of the entity</translation>
    </message>
    <message>
        <source>ファイルが空です</source>
        <translation>the file is empty</translation>
    </message>
    <message>
        <source>ファイルが EOF で終わっていません (途中で切れています)</source>
        <translation>the file does not end with EOF (it is cut short)</translation>
    </message>
</context>
<context>
    <name>std</name>
    <message>
        <source>レイヤ「%1」の色「%2」を読めません (#RRGGBB)。黒にします</source>
        <translation>the colour &quot;%2&quot; of layer &quot;%1&quot; cannot be read (#RRGGBB); black is used</translation>
    </message>
</context>
</TS>
