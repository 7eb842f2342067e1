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
</TS>
