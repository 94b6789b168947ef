<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>CommandLine</name>
    <message>
        <source>Start in edit mode.</source>
        <translation>編集モードで起動します。</translation>
    </message>
    <message>
        <source>Write a picture of the drawing to FILE (.png, .svg or .pdf) and exit.</source>
        <translation>図面の画像をファイル（.png、.svg、.pdf）に保存して終了します。</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Views DXF drawings and erases parts of them.</source>
        <translation>DXF 図面を表示し、その一部を消去します。</translation>
    </message>
    <message>
        <source>A .dxf file to open.</source>
        <translation>開く .dxf ファイル。</translation>
    </message>
    <message>
        <source>%1
%2
%3</source>
        <translation>%1
%2
%3</translation>
    </message>
    <message>
        <source>The drawing cannot be opened.</source>
        <translation>図面を開けません。</translation>
    </message>
    <message>
        <source>It cannot be read.</source>
        <translation>読み込めません。</translation>
    </message>
    <message>
        <source>The picture cannot be written.</source>
        <translation>画像を保存できません。</translation>
    </message>
    <message>
        <source>DXF Viewer</source>
        <translation>DXF ビューアー</translation>
    </message>
    <message>
        <source>Only one drawing can be opened.</source>
        <translation>開ける図面は 1 つだけです。</translation>
    </message>
    <message>
        <source>There is no drawing to make a picture of.</source>
        <translation>画像にする図面がありません。</translation>
    </message>
</context>
<context>
    <name>DrawingFile</name>
    <message>
        <source>The file is empty.</source>
        <translation>ファイルが空です。</translation>
    </message>
    <message>
        <source>It is a binary file. Only the text form of DXF can be read.</source>
        <translation>バイナリファイルです。読み込めるのはテキスト形式 (ASCII) の DXF だけです。</translation>
    </message>
    <message>
        <source>It is not a DXF drawing.</source>
        <translation>DXF 図面ではありません。</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>ファイルが存在しません。</translation>
    </message>
    <message>
        <source>It is not a regular file.</source>
        <translation>通常のファイルではありません。</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <translation>ファイルが大きすぎます。</translation>
    </message>
</context>
<context>
    <name>DrawingFiles</name>
    <message>
        <source>&amp;Open…</source>
        <translation>開く(&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Save As…</source>
        <translation>名前を付けて保存(&amp;S)…</translation>
    </message>
    <message>
        <source>The drawing cannot be opened.</source>
        <translation>図面を開けません。</translation>
    </message>
    <message>
        <source>It cannot be read.</source>
        <translation>読み込めません。</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>DXF drawings (*.dxf *.DXF)</source>
        <translation>DXF 図面 (*.dxf *.DXF)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>名前を付けて保存</translation>
    </message>
    <message>
        <source>The drawing could not be written to a temporary file. The folder for temporary files may be full.</source>
        <translation>図面を一時ファイルに書き込めませんでした。一時ファイルのフォルダーがいっぱいの可能性があります。</translation>
    </message>
    <message>
        <source>The drawing cannot be saved.</source>
        <translation>図面を保存できません。</translation>
    </message>
</context>
<context>
    <name>EditHistory</name>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直す</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>Export &amp;Picture…</source>
        <translation>画像をエクスポート(&amp;P)…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>There are no polylines in this drawing, so nothing is shown.</source>
        <translation>この図面にはポリラインがないため、何も表示されません。</translation>
    </message>
    <message>
        <source>No drawing</source>
        <translation>図面なし</translation>
    </message>
</context>
<context>
    <name>Picture</name>
    <message>
        <source>The name of a picture must end in .png, .svg or .pdf.</source>
        <translation>画像の拡張子は .png、.svg、.pdf のいずれかにしてください。</translation>
    </message>
    <message>
        <source>The drawing&apos;s coordinates are too large for a picture.</source>
        <translation>座標が大きすぎるため画像を作成できません。</translation>
    </message>
    <message>
        <source>There is not enough memory for the picture.</source>
        <translation>メモリ不足のため画像を作成できません。</translation>
    </message>
</context>
<context>
    <name>PictureExport</name>
    <message>
        <source>%1 pictures (*.%2)</source>
        <translation>%1 画像 (*.%2)</translation>
    </message>
    <message>
        <source>Export Picture</source>
        <translation>画像をエクスポート</translation>
    </message>
    <message>
        <source>The picture cannot be written.</source>
        <translation>画像を保存できません。</translation>
    </message>
</context>
<context>
    <name>Questions</name>
    <message>
        <source>Save the edited drawing?</source>
        <translation>編集した図面を保存しますか？</translation>
    </message>
    <message>
        <source>Replace the drawing that was opened?</source>
        <translation>開いた図面を置き換えますか？</translation>
    </message>
    <message>
        <source>%1

Only layers, line types and polylines are saved. Everything else that the file holds is lost: lines, arcs, texts, dimensions, hatches, blocks and the colours of single polylines. Once anything was erased, closed polylines lose their closing edge, and bulges become straight.</source>
        <translation>%1

保存されるのは画層、線種、ポリラインだけです。ファイル内のそれ以外のもの（線分、円弧、文字、寸法、ハッチング、ブロック、個々のポリラインの色）は失われます。一度でも消去すると、閉じたポリラインでは閉じる線分が失われ、ポリラインの円弧部分は直線になります。</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>置き換える</translation>
    </message>
</context>
</TS>
