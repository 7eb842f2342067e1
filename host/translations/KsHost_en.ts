<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="ja">
<context>
    <name>LineTypeChooser</name>
    <message>
        <source>線種の選択</source>
        <translation>Select Line Type</translation>
    </message>
    <message>
        <source>図面の線種:</source>
        <translation>Line types of the drawing:</translation>
    </message>
    <message>
        <source>開いている図面には、一覧にない線種がありません。</source>
        <translation>The open drawing has no line types other than those listed.</translation>
    </message>
</context>
<context>
    <name>MessageBox</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>キャンセル</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>はい</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>いいえ</source>
        <translation>No</translation>
    </message>
</context>
<context>
    <name>SelectLineWidthComboBox</name>
    <message>
        <source>細線</source>
        <translation>Thin</translation>
    </message>
    <message>
        <source>太線</source>
        <translation>Bold</translation>
    </message>
    <message>
        <source>極太線</source>
        <translation>Extra bold</translation>
    </message>
</context>
<context>
    <name>kesto::ui::setting::CSettingBase</name>
    <message>
        <source>ルート要素が &lt;%1&gt; ではありません</source>
        <translation>the root element is not &lt;%1&gt;</translation>
    </message>
    <message>
        <source>&lt;%1&gt; の内容を読めません</source>
        <translation>the contents of &lt;%1&gt; cannot be read</translation>
    </message>
</context>
<context>
    <name>kesto::utility::CFileLock</name>
    <message>
        <source>フォルダ %1 に書き込めません。</source>
        <translation>Cannot write into the folder %1.</translation>
    </message>
    <message>
        <source>%1 はほかのプログラムが書き込み中です。</source>
        <translation>%1 is being written by another program.</translation>
    </message>
</context>
<context>
    <name>kesto::utility::CReadReport</name>
    <message>
        <source>ほか %1 件</source>
        <translation>and %1 more</translation>
    </message>
    <message>
        <source>%1 行目: %2</source>
        <translation>line %1: %2</translation>
    </message>
</context>
<context>
    <name>kesto::utility::xml</name>
    <message>
        <source>ファイルが途中で終わっています</source>
        <translation>the file ends too early</translation>
    </message>
    <message>
        <source>XML の書き方が正しくありません (%1)</source>
        <translation>the XML is not well formed (%1)</translation>
    </message>
    <message>
        <source>&lt;%1&gt; を読み飛ばしました (値が正しくないか、重複しています)</source>
        <translation>&lt;%1&gt; was skipped (a wrong or repeated value)</translation>
    </message>
    <message>
        <source>%1 は書き込み禁止です。</source>
        <translation>%1 is read-only.</translation>
    </message>
    <message>
        <source>%1 に書き込めません (%2)。</source>
        <translation>Cannot write %1 (%2).</translation>
    </message>
</context>
<context>
    <name>kesto::utility::xml::CReader</name>
    <message>
        <source>ファイルを開けません (%1)</source>
        <translation>the file cannot be opened (%1)</translation>
    </message>
    <message>
        <source>ファイルが大きすぎます (%1 バイト。上限は %2 バイト)</source>
        <translation>the file is too large (%1 bytes; the limit is %2 bytes)</translation>
    </message>
    <message>
        <source>要素の入れ子が深すぎます (上限 %1 段)</source>
        <translation>elements are nested too deeply (limit %1 levels)</translation>
    </message>
    <message>
        <source>ファイルが上限の %1 バイトを超えました</source>
        <translation>the file exceeded the limit of %1 bytes</translation>
    </message>
    <message>
        <source>DTD (&lt;!DOCTYPE&gt;) と実体宣言は受け付けません</source>
        <translation>DTDs (&lt;!DOCTYPE&gt;) and entity declarations are not accepted</translation>
    </message>
    <message>
        <source>実体参照 &amp;%1; は受け付けません</source>
        <translation>the entity reference &amp;%1; is not accepted</translation>
    </message>
    <message>
        <source>要素と属性が多すぎます (上限 %1 個)</source>
        <translation>too many elements and attributes (limit %1)</translation>
    </message>
</context>
</TS>
