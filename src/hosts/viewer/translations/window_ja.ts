<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Commands</name>
    <message>
        <source>Show all rows and first columns, and forget how these sources were seen last; bookmarks and notes stay</source>
        <translation>すべての行と初めの列を表示し、これらのソースの前回の表示を忘れます。ブックマークとメモは残ります</translation>
    </message>
    <message>
        <source>Start &amp;Afresh</source>
        <translation>最初からやり直す(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>移動(&amp;G)</translation>
    </message>
    <message>
        <source>Fi&amp;lter</source>
        <translation>フィルター(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Only</source>
        <translation>これだけ表示(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Hide</source>
        <translation>隠す(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>T&amp;imes</source>
        <translation>時刻(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>テーマ(&amp;T)</translation>
    </message>
    <message>
        <source>Lan&amp;guage</source>
        <translation>言語(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Open Files...</source>
        <translation>ファイルを開く(&amp;O)...</translation>
    </message>
    <message>
        <source>Add logs, trace databases or cabinets to what is on show</source>
        <translation>ログ、トレース データベース、キャビネットを表示に加えます</translation>
    </message>
    <message>
        <source>Open &amp;Folder...</source>
        <translation>フォルダーを開く(&amp;F)...</translation>
    </message>
    <message>
        <source>Add all logs of a folder to what is on show</source>
        <translation>フォルダー内のすべてのログを表示に加えます</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>エクスポート(&amp;E)...</translation>
    </message>
    <message>
        <source>Write the rows on show to a file: CSV, JSON or text</source>
        <translation>表示中の行を CSV、JSON、またはテキストのファイルに書き出します</translation>
    </message>
    <message>
        <source>&amp;Stop Reading</source>
        <translation>読み込みを中止(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>Close the viewer</source>
        <translation>ビューアーを閉じます</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>Copy the selected rows as they are shown, one line each</source>
        <translation>選択した行を表示どおりに 1 行ずつコピーします</translation>
    </message>
    <message>
        <source>Copy &amp;Lines</source>
        <translation>元の行をコピー(&amp;L)</translation>
    </message>
    <message>
        <source>Copy the lines of the selected rows as they stand in their files</source>
        <translation>選択した行をファイルにあるままコピーします</translation>
    </message>
    <message>
        <source>Copy as CS&amp;V</source>
        <translation>CSV としてコピー(&amp;V)</translation>
    </message>
    <message>
        <source>Copy the selected rows with their headers, for a spreadsheet</source>
        <translation>選択した行を見出しと一緒に表計算用にコピーします</translation>
    </message>
    <message>
        <source>Copy Val&amp;ue</source>
        <translation>値をコピー(&amp;U)</translation>
    </message>
    <message>
        <source>Copy the field or the part of the trace that is selected in the details</source>
        <translation>詳細で選択したフィールドまたはトレースの一部をコピーします</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>すべて選択(&amp;A)</translation>
    </message>
    <message>
        <source>Select every row on show</source>
        <translation>表示中のすべての行を選択します</translation>
    </message>
    <message>
        <source>&amp;Bookmark</source>
        <translation>ブックマーク(&amp;B)</translation>
    </message>
    <message>
        <source>Set a bookmark on the current row, or take it away</source>
        <translation>現在の行にブックマークを付けるか、外します</translation>
    </message>
    <message>
        <source>&amp;Note...</source>
        <translation>メモ(&amp;N)...</translation>
    </message>
    <message>
        <source>Keep a text with the current row, in a file beside its log</source>
        <translation>現在の行に付けるメモを、ログの隣のファイルに保存します</translation>
    </message>
    <message>
        <source>Cl&amp;ear Bookmarks</source>
        <translation>ブックマークをすべて解除(&amp;E)</translation>
    </message>
    <message>
        <source>Take every bookmark away; notes stay</source>
        <translation>すべてのブックマークを外します。メモは残ります</translation>
    </message>
    <message>
        <source>&amp;Find...</source>
        <translation>検索(&amp;F)...</translation>
    </message>
    <message>
        <source>Look for a text in the rows on show</source>
        <translation>表示中の行から文字列を検索します</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>次を検索(&amp;N)</translation>
    </message>
    <message>
        <source>Go to the next hit</source>
        <translation>次の一致箇所へ移動します</translation>
    </message>
    <message>
        <source>Find &amp;Previous</source>
        <translation>前を検索(&amp;P)</translation>
    </message>
    <message>
        <source>Go to the hit before</source>
        <translation>前の一致箇所へ移動します</translation>
    </message>
    <message>
        <source>&amp;Keep Text Marked</source>
        <translation>色を付けたままにする(&amp;K)</translation>
    </message>
    <message>
        <source>Mark the text that is looked for in a colour of its own from now on</source>
        <translation>検索中の文字列に今後も専用の色を付けます</translation>
    </message>
    <message>
        <source>Next &amp;Error</source>
        <translation>次のエラー(&amp;E)</translation>
    </message>
    <message>
        <source>Go to the next row of an error</source>
        <translation>次のエラーの行へ移動します</translation>
    </message>
    <message>
        <source>Pre&amp;vious Error</source>
        <translation>前のエラー(&amp;V)</translation>
    </message>
    <message>
        <source>Go to the row of an error before</source>
        <translation>前のエラーの行へ移動します</translation>
    </message>
    <message>
        <source>Next &amp;Warning</source>
        <translation>次の警告(&amp;W)</translation>
    </message>
    <message>
        <source>Go to the next row of a warning</source>
        <translation>次の警告の行へ移動します</translation>
    </message>
    <message>
        <source>Previous W&amp;arning</source>
        <translation>前の警告(&amp;A)</translation>
    </message>
    <message>
        <source>Go to the row of a warning before</source>
        <translation>前の警告の行へ移動します</translation>
    </message>
    <message>
        <source>&amp;Time...</source>
        <translation>時刻(&amp;T)...</translation>
    </message>
    <message>
        <source>Go to the rows of a time</source>
        <translation>指定した時刻の行へ移動します</translation>
    </message>
    <message>
        <source>Next Bookma&amp;rk</source>
        <translation>次のブックマーク(&amp;K)</translation>
    </message>
    <message>
        <source>Go to the next row with a bookmark or a note</source>
        <translation>次のブックマークまたはメモの行へ移動します</translation>
    </message>
    <message>
        <source>Previo&amp;us Bookmark</source>
        <translation>前のブックマーク(&amp;U)</translation>
    </message>
    <message>
        <source>Go to the row with a bookmark or a note before</source>
        <translation>前のブックマークまたはメモの行へ移動します</translation>
    </message>
    <message>
        <source>&amp;Bookmarks and Notes...</source>
        <translation>ブックマークとメモ(&amp;B)...</translation>
    </message>
    <message>
        <source>List all bookmarks and notes, to go to one</source>
        <translation>ブックマークとメモを一覧し、選んだものへ移動します</translation>
    </message>
    <message>
        <source>&amp;Texts...</source>
        <translation>文字列(&amp;T)...</translation>
    </message>
    <message>
        <source>Show rows that have a text, or that have it not</source>
        <translation>文字列を含む行、または含まない行を表示します</translation>
    </message>
    <message>
        <source>Show &amp;All Rows</source>
        <translation>すべての行を表示(&amp;A)</translation>
    </message>
    <message>
        <source>End the filter</source>
        <translation>フィルターを解除します</translation>
    </message>
    <message>
        <source>&amp;Macro Traces...</source>
        <translation>マクロ トレース(&amp;M)...</translation>
    </message>
    <message>
        <source>Show what a macro trace of the opened databases turned on</source>
        <translation>開いたデータベースのマクロ トレースで有効にした行を表示します</translation>
    </message>
    <message>
        <source>Sa&amp;ved Filters...</source>
        <translation>保存したフィルター(&amp;V)...</translation>
    </message>
    <message>
        <source>Take a filter that was saved by a name</source>
        <translation>名前を付けて保存したフィルターを使います</translation>
    </message>
    <message>
        <source>&amp;Save Filter...</source>
        <translation>フィルターを保存(&amp;S)...</translation>
    </message>
    <message>
        <source>Save the filter by a name, in a file that others can open</source>
        <translation>フィルターに名前を付け、ほかの人も開けるファイルに保存します</translation>
    </message>
    <message>
        <source>O&amp;pen Filter File...</source>
        <translation>フィルターのファイルを開く(&amp;P)...</translation>
    </message>
    <message>
        <source>Take a filter from a file that somebody gave</source>
        <translation>受け取ったファイルのフィルターを使います</translation>
    </message>
    <message>
        <source>&amp;Narrow Times</source>
        <translation>時間を狭める(&amp;N)</translation>
    </message>
    <message>
        <source>Show half of the time, around the current row</source>
        <translation>現在の行を中心に半分の時間を表示します</translation>
    </message>
    <message>
        <source>&amp;Widen Times</source>
        <translation>時間を広げる(&amp;W)</translation>
    </message>
    <message>
        <source>Show twice the time, around the current row</source>
        <translation>現在の行を中心に 2 倍の時間を表示します</translation>
    </message>
    <message>
        <source>All T&amp;imes</source>
        <translation>すべての時間(&amp;I)</translation>
    </message>
    <message>
        <source>Show rows of all times</source>
        <translation>すべての時間の行を表示します</translation>
    </message>
    <message>
        <source>This &amp;Process</source>
        <translation>このプロセス(&amp;P)</translation>
    </message>
    <message>
        <source>Show the rows of the current row&apos;s process alone</source>
        <translation>現在の行と同じプロセスの行だけを表示します</translation>
    </message>
    <message>
        <source>This &amp;Component</source>
        <translation>このコンポーネント(&amp;C)</translation>
    </message>
    <message>
        <source>Show the rows of the current row&apos;s component alone</source>
        <translation>現在の行と同じコンポーネントの行だけを表示します</translation>
    </message>
    <message>
        <source>This &amp;Source</source>
        <translation>このソース(&amp;S)</translation>
    </message>
    <message>
        <source>Show the rows of the current row&apos;s source alone</source>
        <translation>現在の行と同じソースの行だけを表示します</translation>
    </message>
    <message>
        <source>This &amp;Level</source>
        <translation>このレベル(&amp;L)</translation>
    </message>
    <message>
        <source>Show the rows of the current row&apos;s level alone</source>
        <translation>現在の行と同じレベルの行だけを表示します</translation>
    </message>
    <message>
        <source>This C&amp;all</source>
        <translation>この呼(&amp;A)</translation>
    </message>
    <message>
        <source>Show the rows of the current row&apos;s call alone, in all processes</source>
        <translation>現在の行と同じ呼の行だけを、すべてのプロセスから表示します</translation>
    </message>
    <message>
        <source>This P&amp;ort</source>
        <translation>このポート(&amp;O)</translation>
    </message>
    <message>
        <source>Show the rows of the current row&apos;s port alone</source>
        <translation>現在の行と同じポートの行だけを表示します</translation>
    </message>
    <message>
        <source>This &amp;Thread</source>
        <translation>このスレッド(&amp;T)</translation>
    </message>
    <message>
        <source>Show the rows of the current row&apos;s thread alone</source>
        <translation>現在の行と同じスレッドの行だけを表示します</translation>
    </message>
    <message>
        <source>Hide the rows of the current row&apos;s process</source>
        <translation>現在の行と同じプロセスの行を隠します</translation>
    </message>
    <message>
        <source>Hide the rows of the current row&apos;s component</source>
        <translation>現在の行と同じコンポーネントの行を隠します</translation>
    </message>
    <message>
        <source>Hide the rows of the current row&apos;s source</source>
        <translation>現在の行と同じソースの行を隠します</translation>
    </message>
    <message>
        <source>Hide the rows of the current row&apos;s level</source>
        <translation>現在の行と同じレベルの行を隠します</translation>
    </message>
    <message>
        <source>&amp;Values</source>
        <translation>値(&amp;V)</translation>
    </message>
    <message>
        <source>Show the values of processes, components, sources and levels beside the rows</source>
        <translation>プロセス、コンポーネント、ソース、レベルの値を行の横に表示します</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>詳細(&amp;D)</translation>
    </message>
    <message>
        <source>Show all of the current row below the rows</source>
        <translation>現在の行の全内容を一覧の下に表示します</translation>
    </message>
    <message>
        <source>C&amp;alls</source>
        <translation>呼(&amp;A)</translation>
    </message>
    <message>
        <source>List the calls of the rows on show below them</source>
        <translation>表示中の行に含まれる呼を下に一覧します</translation>
    </message>
    <message>
        <source>T&amp;his Call</source>
        <translation>この呼(&amp;H)</translation>
    </message>
    <message>
        <source>Show the lines of the current row&apos;s call over time, in all processes</source>
        <translation>現在の行の呼について、すべてのプロセスの行を時間順に表示します</translation>
    </message>
    <message>
        <source>&amp;Other Pane</source>
        <translation>もう一方のペイン(&amp;O)</translation>
    </message>
    <message>
        <source>Go from the rows to the values, or back</source>
        <translation>行と値の間を移動します</translation>
    </message>
    <message>
        <source>&amp;Follow</source>
        <translation>追従(&amp;F)</translation>
    </message>
    <message>
        <source>Show rows that come to the logs as they grow, and keep the end in sight</source>
        <translation>ログに届いた行を順に表示し、末尾が見えるようにします</translation>
    </message>
    <message>
        <source>&amp;Columns...</source>
        <translation>列(&amp;C)...</translation>
    </message>
    <message>
        <source>Show or hide columns of the table</source>
        <translation>表の列を表示または非表示にします</translation>
    </message>
    <message>
        <source>&amp;Larger Text</source>
        <translation>文字を大きく(&amp;L)</translation>
    </message>
    <message>
        <source>Show rows in larger letters</source>
        <translation>行の文字を大きくします</translation>
    </message>
    <message>
        <source>&amp;Smaller Text</source>
        <translation>文字を小さく(&amp;S)</translation>
    </message>
    <message>
        <source>Show rows in smaller letters</source>
        <translation>行の文字を小さくします</translation>
    </message>
    <message>
        <source>&amp;Normal Text</source>
        <translation>標準の文字サイズ(&amp;N)</translation>
    </message>
    <message>
        <source>Show rows in letters of the usual size</source>
        <translation>行の文字を標準の大きさにします</translation>
    </message>
    <message>
        <source>&amp;Clock</source>
        <translation>時刻(&amp;C)</translation>
    </message>
    <message>
        <source>Show when each row was written</source>
        <translation>各行が書き込まれた時刻を表示します</translation>
    </message>
    <message>
        <source>Since Row &amp;Before</source>
        <translation>前の行からの時間(&amp;B)</translation>
    </message>
    <message>
        <source>Show how long after the row above each row was written</source>
        <translation>上の行からの経過時間を表示します</translation>
    </message>
    <message>
        <source>Since &amp;Marked Row</source>
        <translation>基準の行からの時間(&amp;M)</translation>
    </message>
    <message>
        <source>Show how long before or after the marked row each row was written</source>
        <translation>基準の行との時間差を表示します</translation>
    </message>
    <message>
        <source>Mar&amp;k This Row</source>
        <translation>この行を基準にする(&amp;K)</translation>
    </message>
    <message>
        <source>Tell times from the current row</source>
        <translation>現在の行を時間の基準にします</translation>
    </message>
    <message>
        <source>As the &amp;Desktop</source>
        <translation>デスクトップに合わせる(&amp;D)</translation>
    </message>
    <message>
        <source>Light or dark as the desktop is</source>
        <translation>デスクトップの明暗に合わせます</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>ライト(&amp;L)</translation>
    </message>
    <message>
        <source>Dark letters on a light ground</source>
        <translation>明るい背景に暗い文字で表示します</translation>
    </message>
    <message>
        <source>Da&amp;rk</source>
        <translation>ダーク(&amp;R)</translation>
    </message>
    <message>
        <source>Light letters on a dark ground</source>
        <translation>暗い背景に明るい文字で表示します</translation>
    </message>
    <message>
        <source>Show all texts of the window in this language</source>
        <translation>画面の文字をこの言語で表示します</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>バージョン情報(&amp;A)...</translation>
    </message>
    <message>
        <source>Tell the version</source>
        <translation>バージョンを表示します</translation>
    </message>
    <message>
        <source>&amp;Help Topics</source>
        <translation>ヘルプ トピック(&amp;H)</translation>
    </message>
    <message>
        <source>Open the manual at the page of the viewer</source>
        <translation>マニュアルのビューアーのページを開きます</translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <translation>キー一覧(&amp;K)</translation>
    </message>
    <message>
        <source>Show every key of the viewer</source>
        <translation>ビューアーのすべてのキーを表示します</translation>
    </message>
    <message>
        <source>End what is being opened, read, copied or exported; the rows so far stay</source>
        <translation>開く処理、読み込み、コピー、エクスポートを終えます。読み込んだ行は残ります</translation>
    </message>
</context>
<context>
    <name>FileTarget</name>
    <message>
        <source>%1 can&apos;t be written: %2</source>
        <translation>%1 を書き込めません: %2</translation>
    </message>
</context>
<context>
    <name>FilterTexts</name>
    <message>
        <source>&quot;%1&quot; of a filter is of another kind</source>
        <translation>フィルターの「%1」は種類が違います</translation>
    </message>
    <message>
        <source>there is no column &quot;%1&quot; to filter by</source>
        <translation>「%1」という列はなく、フィルターに使えません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of a filter is no time</source>
        <translation>フィルターの「%1」は時刻ではありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no regular expression: %2</source>
        <translation>「%1」は正規表現ではありません: %2</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>Help - Orvan Diagnostic Tool</source>
        <translation>ヘルプ - Orvan 診断ツール</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>マニュアル</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>進む</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>目次</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>KeyList</name>
    <message>
        <source>Keys</source>
        <translation>キー一覧</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>キー</translation>
    </message>
    <message>
        <source>What it does</source>
        <translation>動作</translation>
    </message>
</context>
<context>
    <name>NoteTexts</name>
    <message>
        <source>a note is no object</source>
        <translation>オブジェクトでないメモがあります</translation>
    </message>
    <message>
        <source>a note has no bookmark or text</source>
        <translation>ブックマークか文章のないメモがあります</translation>
    </message>
    <message>
        <source>it is none of notes</source>
        <translation>メモのファイルではありません</translation>
    </message>
    <message>
        <source>it has no version</source>
        <translation>バージョンがありません</translation>
    </message>
    <message>
        <source>it has no notes</source>
        <translation>メモがありません</translation>
    </message>
</context>
<context>
    <name>NotesFile</name>
    <message>
        <source>The notes in %1 can&apos;t be read, and stay as they are: %2</source>
        <translation>%1 のメモを読み込めないため、そのままにしてあります: %2</translation>
    </message>
    <message>
        <source>The notes in %1 are those of a newer viewer, and are not shown</source>
        <translation>%1 のメモは新しいビューアーのものなので、表示しません</translation>
    </message>
    <message>
        <source>The notes in %1 can&apos;t be read: %2</source>
        <translation>%1 のメモを読み込めません: %2</translation>
    </message>
    <message>
        <source>Somebody else has changed the note on line %1 of %2, too: both texts are kept</source>
        <translation>%2 の %1 行目のメモはほかの人も変更しました。両方の文章を残します</translation>
    </message>
    <message>
        <source>No notes can be written beside %1 (%2). They are kept in %3.</source>
        <translation>%1 の隣にメモを書き込めません (%2)。%3 に保存します。</translation>
    </message>
    <message>
        <source>The notes on %1 can&apos;t be kept, neither beside it (%2) nor in %3 (%4)</source>
        <translation>%1 のメモを、隣 (%2) にも %3 (%4) にも保存できません</translation>
    </message>
    <message>
        <source>The damaged notes are kept in %1</source>
        <translation>壊れたメモは %1 に残してあります</translation>
    </message>
    <message>
        <source>The notes in %1 stay there, though those beside the log go on: %2</source>
        <translation>%1 のメモはそのまま残し、今後はログの隣のメモを使います: %2</translation>
    </message>
    <message>
        <source>a newer viewer has written there</source>
        <translation>より新しいビューアーが書き込んでいます</translation>
    </message>
    <message>
        <source>it can&apos;t be read</source>
        <translation>読み取れません</translation>
    </message>
    <message>
        <source>%1 does not say what was written to it</source>
        <translation>%1 の内容が書き込んだものと一致しません</translation>
    </message>
</context>
<context>
    <name>NoticeBar</name>
    <message>
        <source>Close this notice</source>
        <translation>この通知を閉じます</translation>
    </message>
</context>
<context>
    <name>PaneKeys</name>
    <message>
        <source>In the rows</source>
        <translation>行の表で</translation>
    </message>
    <message>
        <source>First and last row</source>
        <translation>先頭の行と末尾の行</translation>
    </message>
    <message>
        <source>Home, End</source>
        <translation>Home、End</translation>
    </message>
    <message>
        <source>End stays at the end of logs that are followed</source>
        <translation>End で追従中のログの末尾に留まります</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>選択</translation>
    </message>
    <message>
        <source>Shift+Up, Shift+Down</source>
        <translation>Shift+↑、Shift+↓</translation>
    </message>
    <message>
        <source>Selects rows from the current one on</source>
        <translation>現在の行から行を選択します</translation>
    </message>
    <message>
        <source>Sideways</source>
        <translation>左右へ</translation>
    </message>
    <message>
        <source>Left, Right</source>
        <translation>←、→</translation>
    </message>
    <message>
        <source>Shows the rest of long rows</source>
        <translation>長い行の続きを表示します</translation>
    </message>
    <message>
        <source>Menu of the row</source>
        <translation>行のメニュー</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>What can be done with the current row</source>
        <translation>現在の行に対してできること</translation>
    </message>
    <message>
        <source>In the values</source>
        <translation>値の一覧で</translation>
    </message>
    <message>
        <source>Tick</source>
        <translation>チェック</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Space</translation>
    </message>
    <message>
        <source>Shows or hides the rows of the value</source>
        <translation>この値の行を表示または非表示にします</translation>
    </message>
    <message>
        <source>Only This</source>
        <translation>この値のみ</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Shows the rows of the value alone, or all again</source>
        <translation>この値の行だけを表示するか、すべてに戻します</translation>
    </message>
    <message>
        <source>Open or close a group</source>
        <translation>グループを開閉</translation>
    </message>
    <message>
        <source>Right, Left</source>
        <translation>→、←</translation>
    </message>
    <message>
        <source>Such as all components</source>
        <translation>例: すべてのコンポーネント</translation>
    </message>
    <message>
        <source>In the bars of find and filter</source>
        <translation>検索とフィルターのバーで</translation>
    </message>
    <message>
        <source>Next and previous hit</source>
        <translation>次と前の一致</translation>
    </message>
    <message>
        <source>Enter, Shift+Enter</source>
        <translation>Enter、Shift+Enter</translation>
    </message>
    <message>
        <source>In the text to find</source>
        <translation>検索する文字列の欄で</translation>
    </message>
    <message>
        <source>Close find</source>
        <translation>検索を閉じる</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Ends the marks of the text, but for those kept</source>
        <translation>保持したもの以外の文字列の強調を終えます</translation>
    </message>
    <message>
        <source>Back to the rows</source>
        <translation>行へ戻る</translation>
    </message>
    <message>
        <source>Enter, Esc</source>
        <translation>Enter、Esc</translation>
    </message>
    <message>
        <source>In the texts of the filter</source>
        <translation>フィルターの文字列の欄で</translation>
    </message>
    <message>
        <source>In the lanes of a call</source>
        <translation>呼のレーンで</translation>
    </message>
    <message>
        <source>Line before and after</source>
        <translation>前と次の行</translation>
    </message>
    <message>
        <source>In all lanes, by time</source>
        <translation>全レーンで時刻順に</translation>
    </message>
    <message>
        <source>Within the lane</source>
        <translation>レーンの中</translation>
    </message>
    <message>
        <source>Ctrl+Left, Ctrl+Right</source>
        <translation>Ctrl+←、Ctrl+→</translation>
    </message>
    <message>
        <source>The line before and after of the same process</source>
        <translation>同じプロセスの前と次の行</translation>
    </message>
    <message>
        <source>Other lane</source>
        <translation>別のレーン</translation>
    </message>
    <message>
        <source>Up, Down</source>
        <translation>↑、↓</translation>
    </message>
    <message>
        <source>The line of another process that is nearest</source>
        <translation>別のプロセスの最も近い行</translation>
    </message>
    <message>
        <source>First and last line</source>
        <translation>最初と最後の行</translation>
    </message>
    <message>
        <source>Of the call; with Ctrl of the lane</source>
        <translation>呼の両端。Ctrl を付けるとレーンの両端</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>拡大・縮小</translation>
    </message>
    <message>
        <source>Plus, Minus, 0</source>
        <translation>+、-、0</translation>
    </message>
    <message>
        <source>0 shows the whole call</source>
        <translation>0 で呼全体を表示します</translation>
    </message>
    <message>
        <source>Go to the row</source>
        <translation>行へ移動</translation>
    </message>
    <message>
        <source>Shows the line among all rows</source>
        <translation>その行を表の中で表示します</translation>
    </message>
    <message>
        <source>The lanes stay open</source>
        <translation>レーンは開いたままです</translation>
    </message>
    <message>
        <source>In the lists of calls and bookmarks</source>
        <translation>呼とブックマークの一覧で</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Shows the lanes of the call, or the row of the mark</source>
        <translation>呼のレーン、または印の行を表示します</translation>
    </message>
    <message>
        <source>Remove a mark</source>
        <translation>印を削除</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Del</translation>
    </message>
    <message>
        <source>In the list of bookmarks and notes</source>
        <translation>ブックマークとメモの一覧で</translation>
    </message>
    <message>
        <source>In the list of calls; it stays open</source>
        <translation>呼の一覧で。一覧は開いたままです</translation>
    </message>
</context>
<context>
    <name>Reasons</name>
    <message>
        <source>Device I/O error</source>
        <translation>デバイスの入出力エラー</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>ディスクがいっぱいです</translation>
    </message>
    <message>
        <source>File already exists</source>
        <translation>ファイルは既に存在します</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>ファイルが見つかりません</translation>
    </message>
    <message>
        <source>Input past end of file</source>
        <translation>ファイルの終わりを越えた読み取り</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>メモリが足りません</translation>
    </message>
    <message>
        <source>Out of string space</source>
        <translation>文字列領域が足りません</translation>
    </message>
    <message>
        <source>Path not found</source>
        <translation>パスが見つかりません</translation>
    </message>
    <message>
        <source>Path/File access error</source>
        <translation>パスまたはファイルにアクセスできません</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>アクセスが拒否されました</translation>
    </message>
</context>
<context>
    <name>RowColumns</name>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>Process</source>
        <translation>プロセス</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>ソース</translation>
    </message>
    <message>
        <source>Component</source>
        <translation>コンポーネント</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>レベル</translation>
    </message>
    <message>
        <source>Thread</source>
        <translation>スレッド</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>ポート</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>呼</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>番号</translation>
    </message>
    <message>
        <source>Trace</source>
        <translation>トレース</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>行</translation>
    </message>
</context>
<context>
    <name>RowTexts</name>
    <message>
        <source>the time of a row is no time</source>
        <translation>行の時刻が時刻ではありません</translation>
    </message>
    <message>
        <source>the day of a row is no day</source>
        <translation>行の日付が日付ではありません</translation>
    </message>
    <message>
        <source>a row has no file</source>
        <translation>ファイルのない行があります</translation>
    </message>
    <message>
        <source>a row has no line</source>
        <translation>行番号のない行があります</translation>
    </message>
    <message>
        <source>a row has no hash</source>
        <translation>ハッシュのない行があります</translation>
    </message>
</context>
<context>
    <name>SavedFilters</name>
    <message>
        <source>&quot;%1&quot; can&apos;t be the name of a filter</source>
        <translation>「%1」はフィルターの名前にできません</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written: %2</source>
        <translation>%1 を書き込めません: %2</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read: %2</source>
        <translation>%1 を読み取れません: %2</translation>
    </message>
    <message>
        <source>%1 is no filter</source>
        <translation>%1 はフィルターではありません</translation>
    </message>
</context>
<context>
    <name>TimeText</name>
    <message>
        <source>%1 d </source>
        <translation>%1 日 </translation>
    </message>
</context>
<context>
    <name>viewer::CallListModel</name>
    <message>
        <source>Call</source>
        <translation>呼</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>長さ</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>行数</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Processes</source>
        <translation>プロセス</translation>
    </message>
</context>
<context>
    <name>viewer::CallListPane</name>
    <message>
        <source>Calls</source>
        <translation>呼</translation>
    </message>
    <message>
        <source>State of the list of calls</source>
        <translation>呼の一覧の状態</translation>
    </message>
    <message>
        <source>Looking for calls...</source>
        <translation>呼を検索中...</translation>
    </message>
    <message>
        <source>No call was found until it was stopped.</source>
        <translation>中止するまでに呼は見つかりませんでした。</translation>
    </message>
    <message>
        <source>No call is known: the lines of the open logs are of a form without call ids.</source>
        <translation>呼の情報がありません。開いているログの行には呼 ID が含まれていません。</translation>
    </message>
    <message>
        <source>No row on show has a call id.</source>
        <translation>表示中の行に呼 ID はありません。</translation>
    </message>
    <message>
        <source>Calls of the rows on show: %1</source>
        <translation>表示中の行の呼: %1</translation>
    </message>
    <message>
        <source>, the first of more; a filter brings others</source>
        <translation> (先頭の一部。フィルターで絞り込むとほかも表示できます)</translation>
    </message>
    <message>
        <source>, %1 % of the rows so far</source>
        <translation> (行の %1 % まで確認済み)</translation>
    </message>
    <message>
        <source>, stopped after %1 % of the rows</source>
        <translation> (行の %1 % で中止)</translation>
    </message>
    <message>
        <source>&amp;Show This Call</source>
        <translation>この呼を表示(&amp;S)</translation>
    </message>
    <message>
        <source>Sort &amp;by</source>
        <translation>並べ替え(&amp;B)</translation>
    </message>
</context>
<context>
    <name>viewer::CallPane</name>
    <message>
        <source>The call</source>
        <translation>呼</translation>
    </message>
    <message>
        <source>The selected line</source>
        <translation>選択した行</translation>
    </message>
    <message>
        <source>Text of the selected line</source>
        <translation>選択した行の文字列</translation>
    </message>
    <message>
        <source>Looking for the lines of the call...</source>
        <translation>呼の行を検索中...</translation>
    </message>
    <message>
        <source>No line of the call was found.</source>
        <translation>この呼の行は見つかりませんでした。</translation>
    </message>
    <message>
        <source>Call %1. Lines: %2, processes: %3, errors: %4, warnings: %5</source>
        <translation>呼 %1。行: %2、プロセス: %3、エラー: %4、警告: %5</translation>
    </message>
    <message>
        <source>, length: %1</source>
        <translation>、長さ: %1</translation>
    </message>
    <message>
        <source>; it has more, which are not shown</source>
        <translation>。これ以上の行は表示していません</translation>
    </message>
    <message>
        <source>; looking for more, %1 %</source>
        <translation>。検索中、%1 %</translation>
    </message>
    <message>
        <source>; stopped after %1 %</source>
        <translation>。%1 % で中止</translation>
    </message>
    <message>
        <source>level %1</source>
        <translation>レベル %1</translation>
    </message>
    <message>
        <source>error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>port %1</source>
        <translation>ポート %1</translation>
    </message>
    <message>
        <source>thread %1</source>
        <translation>スレッド %1</translation>
    </message>
</context>
<context>
    <name>viewer::CallTabs</name>
    <message>
        <source>Calls</source>
        <translation>呼</translation>
    </message>
    <message>
        <source>This Call</source>
        <translation>この呼</translation>
    </message>
    <message>
        <source>Close the calls</source>
        <translation>呼を閉じる</translation>
    </message>
</context>
<context>
    <name>viewer::DetailsPane</name>
    <message>
        <source>Fields of the row</source>
        <translation>行のフィールド</translation>
    </message>
    <message>
        <source>Trace of the row</source>
        <translation>行のトレース</translation>
    </message>
    <message>
        <source>Select a row to read all of it here.</source>
        <translation>行を選択すると、ここに全体が表示されます。</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>メモ</translation>
    </message>
    <message>
        <source>Show all %1 characters of the trace</source>
        <translation>トレースの全 %1 文字を表示</translation>
    </message>
</context>
<context>
    <name>viewer::FacetPane</name>
    <message>
        <source>Values</source>
        <translation>値</translation>
    </message>
    <message>
        <source>Processes</source>
        <translation>プロセス</translation>
    </message>
    <message>
        <source>Components</source>
        <translation>コンポーネント</translation>
    </message>
    <message>
        <source>Sources</source>
        <translation>ソース</translation>
    </message>
    <message>
        <source>Levels</source>
        <translation>レベル</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(なし)</translation>
    </message>
    <message>
        <source>&amp;Only This</source>
        <translation>これだけ(&amp;O)</translation>
    </message>
    <message>
        <source>Show &amp;All Values</source>
        <translation>すべての値を表示(&amp;A)</translation>
    </message>
</context>
<context>
    <name>viewer::FilterBar</name>
    <message>
        <source>Rows &amp;with:</source>
        <translation>含む(&amp;W):</translation>
    </message>
    <message>
        <source>with&amp;out:</source>
        <translation>含まない(&amp;O):</translation>
    </message>
    <message>
        <source>Text that rows have</source>
        <translation>行に含まれる文字列</translation>
    </message>
    <message>
        <source>Text that rows do not have</source>
        <translation>行に含まれない文字列</translation>
    </message>
    <message>
        <source>E&amp;xpression</source>
        <translation>正規表現(&amp;X)</translation>
    </message>
    <message>
        <source>Take the texts for regular expressions</source>
        <translation>文字列を正規表現として扱います</translation>
    </message>
    <message>
        <source>&amp;Aa</source>
        <translation>Aa(&amp;A)</translation>
    </message>
    <message>
        <source>Match case</source>
        <translation>大文字と小文字を区別する</translation>
    </message>
    <message>
        <source>Tell capital letters from small ones</source>
        <translation>大文字と小文字を区別します</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>すべて表示</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>フィルター</translation>
    </message>
    <message>
        <source>without &quot;%1&quot;</source>
        <translation>「%1」を含まない</translation>
    </message>
    <message>
        <source>with &quot;%1&quot;</source>
        <translation>「%1」を含む</translation>
    </message>
    <message>
        <source>%1 is not %2</source>
        <translation>%1 が %2 以外</translation>
    </message>
    <message>
        <source>%1 is %2</source>
        <translation>%1 が %2</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>なし</translation>
    </message>
    <message>
        <source> or </source>
        <translation> または </translation>
    </message>
    <message>
        <source>from %1</source>
        <translation>%1 から</translation>
    </message>
    <message>
        <source>to %1</source>
        <translation>%1 まで</translation>
    </message>
</context>
<context>
    <name>viewer::FindBar</name>
    <message>
        <source>Fi&amp;nd:</source>
        <translation>検索(&amp;N):</translation>
    </message>
    <message>
        <source>Text of a line</source>
        <translation>行の文字列</translation>
    </message>
    <message>
        <source>Text to find</source>
        <translation>検索する文字列</translation>
    </message>
    <message>
        <source>Ex&amp;pression</source>
        <translation>正規表現(&amp;P)</translation>
    </message>
    <message>
        <source>Take the text for a regular expression</source>
        <translation>文字列を正規表現として扱います</translation>
    </message>
    <message>
        <source>Aa</source>
        <translation>Aa</translation>
    </message>
    <message>
        <source>Match case</source>
        <translation>大文字と小文字を区別する</translation>
    </message>
    <message>
        <source>Hits</source>
        <translation>一致</translation>
    </message>
    <message>
        <source>Find previous (Shift+F3)</source>
        <translation>前を検索 (Shift+F3)</translation>
    </message>
    <message>
        <source>Find next (F3)</source>
        <translation>次を検索 (F3)</translation>
    </message>
    <message>
        <source>Keep this text marked (Ctrl+M)</source>
        <translation>この文字列に色を付けたままにする (Ctrl+M)</translation>
    </message>
    <message>
        <source>Close the find bar (Esc)</source>
        <translation>検索バーを閉じます (Esc)</translation>
    </message>
    <message>
        <source>%1 hits so far</source>
        <translation>これまでに %1 件一致</translation>
    </message>
    <message>
        <source>No hits</source>
        <translation>一致なし</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>%1 hits</source>
        <translation>%1 件一致</translation>
    </message>
    <message>
        <source>No further colour is free</source>
        <translation>空いている色がありません</translation>
    </message>
    <message>
        <source>Mark %1 no more</source>
        <translation>%1 の色を外す</translation>
    </message>
</context>
<context>
    <name>viewer::FollowBar</name>
    <message>
        <source>Go to the last row, and keep the end in sight (End)</source>
        <translation>最後の行へ移動し、末尾を表示し続けます (End)</translation>
    </message>
    <message>
        <source>1 new line</source>
        <translation>新しい行が 1 行</translation>
    </message>
    <message>
        <source>%1 new lines</source>
        <translation>新しい行が %1 行</translation>
    </message>
</context>
<context>
    <name>viewer::LaneView</name>
    <message>
        <source>Lines of call %1 over time</source>
        <translation>呼 %1 の行の時間経過</translation>
    </message>
    <message>
        <source>Lines of a call over time</source>
        <translation>呼の行の時間経過</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(なし)</translation>
    </message>
    <message>
        <source>Line %1 of %2</source>
        <translation>行 %1 / %2</translation>
    </message>
    <message>
        <source>error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>level %1</source>
        <translation>レベル %1</translation>
    </message>
    <message>
        <source>%1 lines here</source>
        <translation>ここに %1 行</translation>
    </message>
</context>
<context>
    <name>viewer::MainWindow</name>
    <message>
        <source>The filter of last time is on and hides rows; Ctrl+Shift+A shows all.</source>
        <translation>前回のフィルターが有効で、隠れている行があります。Ctrl+Shift+A ですべて表示します。</translation>
    </message>
    <message>
        <source>The current row has no such value</source>
        <translation>現在の行にはこの値がありません</translation>
    </message>
    <message>
        <source>There is no further one</source>
        <translation>これより先にはありません</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>ほか %1 件</translation>
    </message>
    <message>
        <source>Writing: %1 of %2 rows</source>
        <translation>書き込み中: %1 / %2 行</translation>
    </message>
    <message>
        <source>Reading: %1 rows so far</source>
        <translation>読み込み中: %1 行</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>%1 行</translation>
    </message>
    <message>
        <source>%1 of %2 rows</source>
        <translation>%1 / %2 行</translation>
    </message>
    <message>
        <source>, row %1</source>
        <translation>、%1 行目</translation>
    </message>
    <message>
        <source>, following</source>
        <translation>、追従中</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>ツール バー</translation>
    </message>
    <message>
        <source>No source is open.

Drop logs, trace databases or cabinets here, or open them with Ctrl+O.</source>
        <translation>何も開いていません。

ログ、トレース データベース、キャビネットをここにドロップするか、Ctrl+O で開いてください。</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Go to Time</source>
        <translation>時刻へ移動</translation>
    </message>
    <message>
        <source>Time, such as 15:23:07:</source>
        <translation>時刻 (例 15:23:07):</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>エクスポート</translation>
    </message>
    <message>
        <source>Comma-separated text (*.csv)</source>
        <translation>コンマ区切りテキスト (*.csv)</translation>
    </message>
    <message>
        <source>JSON, an object a line (*.json)</source>
        <translation>JSON、1 行に 1 オブジェクト (*.json)</translation>
    </message>
    <message>
        <source>Text (*.txt)</source>
        <translation>テキスト (*.txt)</translation>
    </message>
    <message>
        <source>%1 rows written</source>
        <translation>%1 行を書き込みました</translation>
    </message>
    <message>
        <source>The export was given up, and left no file</source>
        <translation>エクスポートを中止しました。ファイルは残っていません</translation>
    </message>
    <message>
        <source>Open Files</source>
        <translation>ファイルを開く</translation>
    </message>
    <message>
        <source>Logs, databases and cabinets (*.txt *.log *.mdb *.cab *.csv)</source>
        <translation>ログ、データベース、キャビネット (*.txt *.log *.mdb *.cab *.csv)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>フォルダーを開く</translation>
    </message>
    <message>
        <source>%1 rows copied</source>
        <translation>%1 行をコピーしました</translation>
    </message>
    <message>
        <source>About</source>
        <translation>バージョン情報</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>No call is shown. %1 shows the call of the current row.</source>
        <translation>呼は表示していません。%1 で現在の行の呼を表示します。</translation>
    </message>
    <message>
        <source>The current row has no call id. Lines of some forms have none; where there is one, %1 shows the call.</source>
        <translation>現在の行には呼 ID がありません。形式によっては含まれません。呼 ID のある行では %1 で呼を表示します。</translation>
    </message>
    <message>
        <source>All Traces</source>
        <translation>すべてのトレース</translation>
    </message>
    <message>
        <source>No filter was saved yet</source>
        <translation>保存したフィルターはまだありません</translation>
    </message>
    <message>
        <source>Save Filter</source>
        <translation>フィルターを保存</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>名前:</translation>
    </message>
    <message>
        <source>Open Filter File</source>
        <translation>フィルターのファイルを開く</translation>
    </message>
    <message>
        <source>Filters (*.json)</source>
        <translation>フィルター (*.json)</translation>
    </message>
    <message>
        <source>Nothing that is open can be followed: only logs in files of their own grow. Trace databases, cabinets and what comes through a pipe do not.</source>
        <translation>開いているものはどれも追従できません。大きくなるのは単独のファイルのログだけで、トレース データベース、キャビネット、パイプからの入力は追従できません。</translation>
    </message>
    <message>
        <source>What is no log of its own is shown, and not followed</source>
        <translation>単独のログ以外は表示しますが、追従しません</translation>
    </message>
    <message>
        <source>No row has a bookmark any more.</source>
        <translation>ブックマークの付いた行はなくなりました。</translation>
    </message>
    <message>
        <source>The row has a bookmark.</source>
        <translation>行にブックマークを付けました。</translation>
    </message>
    <message>
        <source>The row has no bookmark any more.</source>
        <translation>行のブックマークを外しました。</translation>
    </message>
    <message>
        <source>No row has a bookmark or a note. Ctrl+B sets a bookmark.</source>
        <translation>ブックマークやメモの付いた行はありません。Ctrl+B でブックマークを付けます。</translation>
    </message>
    <message>
        <source>The rows with bookmarks and notes are hidden by the filter.</source>
        <translation>ブックマークやメモの行はフィルターで非表示になっています。</translation>
    </message>
    <message>
        <source>The row is hidden by the filter; Ctrl+Shift+A shows all.</source>
        <translation>この行はフィルターで非表示になっています。Ctrl+Shift+A ですべて表示します。</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>メモ</translation>
    </message>
    <message>
        <source>Text for this row; an empty one takes the note away:</source>
        <translation>この行のメモ (空にするとメモを削除します):</translation>
    </message>
    <message>
        <source>The text is %1 characters too long for a note:</source>
        <translation>メモの文章が %1 文字長すぎます:</translation>
    </message>
    <message>
        <source>The note can&apos;t be kept: %1</source>
        <translation>メモを保存できません: %1</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進行状況</translation>
    </message>
    <message>
        <source>%1 of %2 selected rows copied; an export has all that are on show</source>
        <translation>選択した %2 行のうち %1 行をコピーしました。表示中のすべての行はエクスポートで保存できます</translation>
    </message>
    <message>
        <source>The manual is not beside the viewer. Install it again to read it.</source>
        <translation>マニュアルがビューアーと同じ場所にありません。読むには再インストールしてください。</translation>
    </message>
    <message>
        <source>Copying was given up; the clipboard is as it was</source>
        <translation>コピーを中止しました。クリップボードは元のままです</translation>
    </message>
    <message>
        <source>Copying: %1 of %2 rows</source>
        <translation>コピー中: %1 / %2 行</translation>
    </message>
</context>
<context>
    <name>viewer::MarkGutter</name>
    <message>
        <source>Bookmarks and notes</source>
        <translation>ブックマークとメモ</translation>
    </message>
</context>
<context>
    <name>viewer::MarkList</name>
    <message>
        <source>Bookmarks and Notes</source>
        <translation>ブックマークとメモ</translation>
    </message>
    <message>
        <source>Bookmarks and notes</source>
        <translation>ブックマークとメモ</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>ソース</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>メモ</translation>
    </message>
    <message>
        <source>Trace</source>
        <translation>トレース</translation>
    </message>
    <message>
        <source>The row of this note was not found in what is open.</source>
        <translation>このメモの行は、開いているものの中に見つかりませんでした。</translation>
    </message>
    <message>
        <source>Ctrl+B sets a bookmark on the current row, Ctrl+N gives it a note.</source>
        <translation>Ctrl+B で現在の行にブックマーク、Ctrl+N でメモを付けます。</translation>
    </message>
    <message>
        <source>Enter goes to the row, Delete takes the bookmark and the note away.</source>
        <translation>Enter で行へ移動し、Delete でブックマークとメモを削除します。</translation>
    </message>
</context>
<context>
    <name>viewer::Marks</name>
    <message>
        <source>Bookmark</source>
        <translation>ブックマーク</translation>
    </message>
    <message>
        <source>Bookmarks and notes on rows that come through a pipe are not kept</source>
        <translation>パイプから届いた行のブックマークとメモは保存されません</translation>
    </message>
</context>
<context>
    <name>viewer::RowModel</name>
    <message>
        <source>error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Since row before</source>
        <translation>前の行から</translation>
    </message>
    <message>
        <source>Since marked row</source>
        <translation>基準の行から</translation>
    </message>
</context>
<context>
    <name>viewer::RowTable</name>
    <message>
        <source>&amp;Reset Columns</source>
        <translation>列を元に戻す(&amp;R)</translation>
    </message>
</context>
<context>
    <name>viewer::TimeStrip</name>
    <message>
        <source>Rows over time</source>
        <translation>時間ごとの行数</translation>
    </message>
    <message>
        <source>Errors, warnings and other rows on show, over time</source>
        <translation>表示中のエラー、警告、そのほかの行の時間ごとの数</translation>
    </message>
    <message>
        <source>%1 hits</source>
        <translation>%1 件一致</translation>
    </message>
    <message>
        <source>%1: %2 rows, %3 errors, %4 warnings</source>
        <translation>%1: %2 行、エラー %3 件、警告 %4 件</translation>
    </message>
</context>
</TS>
