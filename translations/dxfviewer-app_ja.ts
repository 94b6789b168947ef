<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Appearance</name>
    <message>
        <source>&amp;Dark</source>
        <translation>ダーク(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>ライト(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;White</source>
        <translation>白(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Background</source>
        <translation>背景(&amp;B)</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>FILE</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>GROUND</source>
        <translation>背景</translation>
    </message>
    <message>
        <source>Start in edit mode.</source>
        <translation>編集モードで起動します。</translation>
    </message>
    <message>
        <source>Write a picture of the drawing to FILE (.png, .svg or .pdf) and exit.</source>
        <translation>図面の画像をファイル（.png、.svg、.pdf）に保存して終了します。</translation>
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
        <source>The picture cannot be written.</source>
        <translation>画像を保存できません。</translation>
    </message>
    <message>
        <source>The report cannot be written.</source>
        <translation>レポートを書き込めません。</translation>
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
    <message>
        <source>What a picture lies on: dark, light or white (the default).</source>
        <translation>画像の背景: dark (ダーク)、light (ライト)、white (白、既定値)。</translation>
    </message>
    <message>
        <source>Print a line for each drawing, with tabs between: the file, the length of all lines, the least x and y, the greatest x and y, and how many objects of which kind are not shown.</source>
        <translation>図面ごとに、タブで区切った 1 行を出力します: ファイル、すべての線の長さ、x と y の最小値、x と y の最大値、表示できないものの種類ごとの数。</translation>
    </message>
    <message>
        <source>Print what is read and left out.</source>
        <translation>読み込んだものと除いたものを出力します。</translation>
    </message>
    <message>
        <source>The ground of a picture is dark, light or white.</source>
        <translation>画像の背景は dark、light、white のいずれかです。</translation>
    </message>
    <message>
        <source>There is no drawing to report on.</source>
        <translation>報告する図面がありません。</translation>
    </message>
</context>
<context>
    <name>DrawingFile</name>
    <message>
        <source>The file is empty.</source>
        <translation>ファイルが空です。</translation>
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
    <message>
        <source>It is a binary file, but no DXF drawing.</source>
        <translation>バイナリファイルですが、DXF 図面ではありません。</translation>
    </message>
</context>
<context>
    <name>DrawingFiles</name>
    <message>
        <source>&amp;Open…</source>
        <translation>開く(&amp;O)…</translation>
    </message>
    <message>
        <source>The drawing cannot be opened.</source>
        <translation>図面を開けません。</translation>
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
        <source>Open &amp;Recent</source>
        <translation>最近使ったファイル(&amp;R)</translation>
    </message>
    <message>
        <source>Re&amp;load</source>
        <translation>再読み込み(&amp;L)</translation>
    </message>
</context>
<context>
    <name>DrawingSaver</name>
    <message>
        <source>Save &amp;As…</source>
        <translation>名前を付けて保存(&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>DXF drawings (*.dxf *.DXF)</source>
        <translation>DXF 図面 (*.dxf *.DXF)</translation>
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
    <message>
        <source>Another program has changed it since it was saved. These changes are lost.</source>
        <translation>保存した後に別のプログラムが変更しました。その変更は失われます。</translation>
    </message>
    <message>
        <source>What it holds now is lost.</source>
        <translation>現在の内容は失われます。</translation>
    </message>
</context>
<context>
    <name>DrawingRead</name>
    <message>
        <source>It cannot be read.</source>
        <translation>読み込めません。</translation>
    </message>
    <message>
        <source>It has more lines and curves than can be shown.</source>
        <translation>線や曲線が多すぎるため表示できません。</translation>
    </message>
    <message>
        <source>There is not enough memory for the drawing.</source>
        <translation>メモリ不足のため図面を読み込めません。</translation>
    </message>
</context>
<context>
    <name>EditHistory</name>
    <message>
        <source>The stroke was too long: its first part can no longer be undone.</source>
        <translation>ストロークが長すぎました。最初の部分は元に戻せません。</translation>
    </message>
    <message>
        <source>The edits stay in the drawing, but they can no longer be undone.</source>
        <translation>編集内容は図面に残りますが、元に戻すことはできません。</translation>
    </message>
</context>
<context>
    <name>HelpMenu</name>
    <message>
        <source>How to &amp;Erase</source>
        <translation>消し方(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>このアプリケーションについて(&amp;A)</translation>
    </message>
    <message>
        <source>How to Erase</source>
        <translation>消し方</translation>
    </message>
    <message>
        <source>Switch “Edit .dxf” on (Ctrl+E), hold the left button and sweep over the lines. What comes under the round eraser is erased, piece by piece: a piece reaches from one corner to the next.</source>
        <translation>「.dxf を編集」をオンにし(Ctrl+E)、左ボタンを押したまま線の上をなぞります。丸い消しゴムの下に入ったものが一区間ずつ消えます。一区間は角から次の角までです。</translation>
    </message>
    <message>
        <source>Zoom in first where lines are close: the eraser has the same size at every zoom. Ctrl and the wheel zoom, the middle button moves the drawing.</source>
        <translation>線が込み入った所では先に拡大してください。消しゴムの大きさはどの倍率でも同じです。Ctrl とホイールで拡大・縮小し、中ボタンで図面を動かします。</translation>
    </message>
    <message>
        <source>Ctrl+Z takes a whole stroke back, Ctrl+Y takes it up again.</source>
        <translation>Ctrl+Z で一回のストローク全体を元に戻し、Ctrl+Y でやり直します。</translation>
    </message>
    <message>
        <source>Escape ends erasing. The edits stay, but they can no longer be undone then.</source>
        <translation>Esc で消去を終えます。編集内容は残りますが、以後は元に戻せません。</translation>
    </message>
    <message>
        <source>Ctrl+S saves. The first time it asks for a name, so that the drawing that was opened stays as it is.</source>
        <translation>Ctrl+S で保存します。初回は名前を尋ねるので、開いた図面はそのまま残ります。</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>%1 について</translation>
    </message>
    <message>
        <source>Views DXF drawings and erases parts of them.</source>
        <translation>DXF 図面を表示し、その一部を消去します。</translation>
    </message>
    <message>
        <source>Qt %1, dxflib %2</source>
        <translation>Qt %1, dxflib %2</translation>
    </message>
    <message>
        <source>Licence: GNU General Public License, version 2 or later. It comes without any warranty.</source>
        <translation>ライセンス: GNU General Public License バージョン 2 以降。いかなる保証もありません。</translation>
    </message>
</context>
<context>
    <name>KindWords</name>
    <message>
        <source>1 line</source>
        <translation>1 個の線分</translation>
    </message>
    <message numerus="yes">
        <source>%n lines</source>
        <translation>
            <numerusform>%n 個の線分</numerusform>
        </translation>
    </message>
    <message>
        <source>1 arc</source>
        <translation>1 個の円弧</translation>
    </message>
    <message numerus="yes">
        <source>%n arcs</source>
        <translation>
            <numerusform>%n 個の円弧</numerusform>
        </translation>
    </message>
    <message>
        <source>1 circle</source>
        <translation>1 個の円</translation>
    </message>
    <message numerus="yes">
        <source>%n circles</source>
        <translation>
            <numerusform>%n 個の円</numerusform>
        </translation>
    </message>
    <message>
        <source>1 ellipse</source>
        <translation>1 個の楕円</translation>
    </message>
    <message numerus="yes">
        <source>%n ellipses</source>
        <translation>
            <numerusform>%n 個の楕円</numerusform>
        </translation>
    </message>
    <message>
        <source>1 spline</source>
        <translation>1 個のスプライン</translation>
    </message>
    <message numerus="yes">
        <source>%n splines</source>
        <translation>
            <numerusform>%n 個のスプライン</numerusform>
        </translation>
    </message>
    <message>
        <source>1 point</source>
        <translation>1 個の点</translation>
    </message>
    <message numerus="yes">
        <source>%n points</source>
        <translation>
            <numerusform>%n 個の点</numerusform>
        </translation>
    </message>
    <message>
        <source>1 block</source>
        <translation>1 個のブロック</translation>
    </message>
    <message numerus="yes">
        <source>%n blocks</source>
        <translation>
            <numerusform>%n 個のブロック</numerusform>
        </translation>
    </message>
    <message>
        <source>1 dimension</source>
        <translation>1 個の寸法</translation>
    </message>
    <message numerus="yes">
        <source>%n dimensions</source>
        <translation>
            <numerusform>%n 個の寸法</numerusform>
        </translation>
    </message>
    <message>
        <source>1 text</source>
        <translation>1 個の文字列</translation>
    </message>
    <message numerus="yes">
        <source>%n texts</source>
        <translation>
            <numerusform>%n 個の文字列</numerusform>
        </translation>
    </message>
    <message>
        <source>1 leader</source>
        <translation>1 個の引出線</translation>
    </message>
    <message numerus="yes">
        <source>%n leaders</source>
        <translation>
            <numerusform>%n 個の引出線</numerusform>
        </translation>
    </message>
    <message>
        <source>1 filled area</source>
        <translation>1 個の塗りつぶし</translation>
    </message>
    <message numerus="yes">
        <source>%n filled areas</source>
        <translation>
            <numerusform>%n 個の塗りつぶし</numerusform>
        </translation>
    </message>
    <message>
        <source>1 face</source>
        <translation>1 個の面</translation>
    </message>
    <message numerus="yes">
        <source>%n faces</source>
        <translation>
            <numerusform>%n 個の面</numerusform>
        </translation>
    </message>
    <message>
        <source>1 hatch</source>
        <translation>1 個のハッチング</translation>
    </message>
    <message numerus="yes">
        <source>%n hatches</source>
        <translation>
            <numerusform>%n 個のハッチング</numerusform>
        </translation>
    </message>
    <message>
        <source>1 image</source>
        <translation>1 個の画像</translation>
    </message>
    <message numerus="yes">
        <source>%n images</source>
        <translation>
            <numerusform>%n 個の画像</numerusform>
        </translation>
    </message>
    <message>
        <source>1 infinite line</source>
        <translation>1 個の無限直線</translation>
    </message>
    <message numerus="yes">
        <source>%n infinite lines</source>
        <translation>
            <numerusform>%n 個の無限直線</numerusform>
        </translation>
    </message>
    <message>
        <source>1 other object</source>
        <translation>その他 1 個</translation>
    </message>
    <message numerus="yes">
        <source>%n other objects</source>
        <translation>
            <numerusform>その他 %n 個</numerusform>
        </translation>
    </message>
    <message>
        <source>, </source>
        <extracomment>Between the parts of a list.</extracomment>
        <translation>、</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <extracomment>The end of a list: all parts but the last, and the last.</extracomment>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>Not shown: %1</source>
        <translation>表示できないもの: %1</translation>
    </message>
    <message>
        <source>It is the drawing that was opened.</source>
        <translation>開いた図面そのものです。</translation>
    </message>
    <message>
        <source>%1 becomes polylines.</source>
        <translation>%1はポリラインになります。</translation>
    </message>
    <message>
        <source>%1 become polylines.</source>
        <translation>%1はポリラインになります。</translation>
    </message>
    <message>
        <source>%1 is lost.</source>
        <translation>%1は失われます。</translation>
    </message>
    <message>
        <source>%1 are lost.</source>
        <translation>%1は失われます。</translation>
    </message>
    <message>
        <source>Only layers, line types and polylines are saved.</source>
        <translation>保存されるのは画層、線種、ポリラインだけです。</translation>
    </message>
    <message>
        <source>It is the drawing that was opened. Only layers, line types and polylines are saved. Everything else that the file holds is lost: lines, arcs, texts, dimensions, hatches, blocks and the colours of single polylines. Once anything was erased, closed polylines lose their closing edge, and bulges become straight.</source>
        <translation>開いた図面そのものです。保存されるのは画層、線種、ポリラインだけです。ファイルの他の内容（線分、円弧、文字、寸法、ハッチング、ブロック、個々のポリラインの色）は失われます。何かを消すと、閉じたポリラインでは閉じる線分が失われ、ポリラインの円弧部分は直線になります。</translation>
    </message>
    <message>
        <source>What lies on layouts is lost.</source>
        <translation>レイアウト上のものは失われます。</translation>
    </message>
    <message>
        <source>What is invisible is lost.</source>
        <translation>非表示のものは失われます。</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Export Picture…</source>
        <translation>画像をエクスポート(&amp;E)…</translation>
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
        <source>No drawing</source>
        <translation>図面なし</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>印刷(&amp;P)…</translation>
    </message>
    <message>
        <source>Print Pre&amp;view…</source>
        <translation>印刷プレビュー(&amp;V)…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>Open a drawing, or drop one here</source>
        <translation>図面を開くか、ここにドロップしてください</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>There is nothing in this drawing that can be shown.</source>
        <translation>この図面には表示できるものがありません。</translation>
    </message>
    <message>
        <source>The drawing&apos;s coordinates are too large to be shown.</source>
        <translation>座標が大きすぎるため図面を表示できません。</translation>
    </message>
</context>
<context>
    <name>Navigation</name>
    <message>
        <source>As &amp;Stored (y Downwards)</source>
        <translation>保存されたまま (y 軸が下向き)(&amp;S)</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>拡大(&amp;I)</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>縮小(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Fit in Window</source>
        <translation>ウィンドウに合わせる(&amp;F)</translation>
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
    <message>
        <source>There is nothing in this drawing that can be shown.</source>
        <translation>この図面には表示できるものがありません。</translation>
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
    <name>Printing</name>
    <message>
        <source>Print</source>
        <translation>印刷</translation>
    </message>
    <message>
        <source>The drawing cannot be printed.</source>
        <translation>図面を印刷できません。</translation>
    </message>
    <message>
        <source>The printer does not take it.</source>
        <translation>プリンターが受け付けません。</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>%1 に書き込めません。</translation>
    </message>
    <message>
        <source>%1 could not be written to its end. The disk may be full.</source>
        <translation>%1 を最後まで書き込めませんでした。ディスクがいっぱいかもしれません。</translation>
    </message>
</context>
<context>
    <name>Questions</name>
    <message>
        <source>Save the edited drawing?</source>
        <translation>編集した図面を保存しますか？</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>置き換える</translation>
    </message>
    <message>
        <source>Replace the file?</source>
        <translation>ファイルを置き換えますか？</translation>
    </message>
</context>
<context>
    <name>ReadingBar</name>
    <message>
        <source>Reading %1</source>
        <translation>%1 を読み込み中</translation>
    </message>
</context>
<context>
    <name>RecentFiles</name>
    <message>
        <source>No drawing was opened yet</source>
        <translation>まだ図面を開いていません</translation>
    </message>
    <message>
        <source>Clear List</source>
        <translation>リストを消去</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Polylines: %1, segments: %2</source>
        <translation>ポリライン: %1、線分: %2</translation>
    </message>
    <message>
        <source>Drag with the left mouse button to erase, with the middle one to move the drawing.</source>
        <translation>左ボタンのドラッグで消去、中ボタンのドラッグで図面を移動します。</translation>
    </message>
</context>
<context>
    <name>StrokeHistory</name>
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
    <name>ViewChoices</name>
    <message>
        <source>&amp;Texts</source>
        <translation>文字列(&amp;T)</translation>
    </message>
    <message>
        <source>Only &amp;Polylines</source>
        <translation>ポリラインのみ(&amp;P)</translation>
    </message>
</context>
</TS>
