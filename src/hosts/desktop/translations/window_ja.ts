<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Commands</name>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Action</source>
        <translation>操作(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>テーマ(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Open Site...</source>
        <translation>サイトを開く(&amp;O)...</translation>
    </message>
    <message>
        <source>Work on another server, in a folder</source>
        <translation>フォルダー内の別のサーバーで作業します</translation>
    </message>
    <message>
        <source>Make &amp;Sample Server...</source>
        <translation>サンプル サーバーを作成(&amp;S)...</translation>
    </message>
    <message>
        <source>Make a server to try things on, in a new folder</source>
        <translation>試用するためのサーバーを新しいフォルダーに作成します</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>Close the tool</source>
        <translation>ツールを閉じます</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>最新の情報に更新(&amp;R)</translation>
    </message>
    <message>
        <source>Read again what is shown</source>
        <translation>表示中の内容を読み直します</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>Copy the selected rows, one line each</source>
        <translation>選択した行を 1 行ずつコピーします</translation>
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
        <source>Select &amp;All</source>
        <translation>すべて選択(&amp;A)</translation>
    </message>
    <message>
        <source>Select every row on show</source>
        <translation>表示中のすべての行を選択します</translation>
    </message>
    <message>
        <source>&amp;Find...</source>
        <translation>検索(&amp;F)...</translation>
    </message>
    <message>
        <source>Look for a text in the log</source>
        <translation>ログ内の文字列を検索します</translation>
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
        <source>&amp;Go to Time...</source>
        <translation>時刻へ移動(&amp;G)...</translation>
    </message>
    <message>
        <source>Go to the line of a time of day</source>
        <translation>指定した時刻の行へ移動します</translation>
    </message>
    <message>
        <source>End the filter</source>
        <translation>フィルターを解除します</translation>
    </message>
    <message>
        <source>&amp;Bookmark</source>
        <translation>ブックマーク(&amp;B)</translation>
    </message>
    <message>
        <source>Mark the current line, or take its mark away</source>
        <translation>現在の行にブックマークを付けるか、外します</translation>
    </message>
    <message>
        <source>Next Boo&amp;kmark</source>
        <translation>次のブックマーク(&amp;K)</translation>
    </message>
    <message>
        <source>Go to the next marked line</source>
        <translation>次のブックマークの行へ移動します</translation>
    </message>
    <message>
        <source>Previo&amp;us Bookmark</source>
        <translation>前のブックマーク(&amp;U)</translation>
    </message>
    <message>
        <source>Go to the marked line before</source>
        <translation>前のブックマークの行へ移動します</translation>
    </message>
    <message>
        <source>Cl&amp;ear Bookmarks</source>
        <translation>ブックマークをすべて解除(&amp;E)</translation>
    </message>
    <message>
        <source>Take every mark of this log away</source>
        <translation>このログのブックマークをすべて外します</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>詳細(&amp;D)</translation>
    </message>
    <message>
        <source>Show all of the current line below the log</source>
        <translation>現在の行の全体をログの下に表示します</translation>
    </message>
    <message>
        <source>&amp;Other Pane</source>
        <translation>もう一方のペイン(&amp;O)</translation>
    </message>
    <message>
        <source>Go from the tree to the view, or back</source>
        <translation>ツリーとビューの間を移動します</translation>
    </message>
    <message>
        <source>&amp;Larger Text</source>
        <translation>文字を大きく(&amp;L)</translation>
    </message>
    <message>
        <source>Show traces in larger letters</source>
        <translation>トレースの文字を大きくします</translation>
    </message>
    <message>
        <source>&amp;Smaller Text</source>
        <translation>文字を小さく(&amp;S)</translation>
    </message>
    <message>
        <source>Show traces in smaller letters</source>
        <translation>トレースの文字を小さくします</translation>
    </message>
    <message>
        <source>&amp;Normal Text</source>
        <translation>標準の文字サイズ(&amp;N)</translation>
    </message>
    <message>
        <source>Show traces in letters of the usual size</source>
        <translation>トレースの文字を標準の大きさにします</translation>
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
        <source>&amp;Help Topics</source>
        <translation>ヘルプ トピック(&amp;H)</translation>
    </message>
    <message>
        <source>Open the manual</source>
        <translation>マニュアルを開きます</translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <translation>キー一覧(&amp;K)</translation>
    </message>
    <message>
        <source>Show every key of the tool</source>
        <translation>ツールのすべてのキーを表示します</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>バージョン情報(&amp;A)...</translation>
    </message>
    <message>
        <source>Version and interface language</source>
        <translation>バージョンと表示言語</translation>
    </message>
    <message>
        <source>&amp;Log</source>
        <translation>ログ(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Mark This Text</source>
        <translation>この文字列に色を付ける(&amp;M)</translation>
    </message>
    <message>
        <source>Keep the text that is looked for marked in a colour of its own</source>
        <translation>検索中の文字列に専用の色を付けたままにします</translation>
    </message>
    <message>
        <source>Next Err&amp;or</source>
        <translation>次のエラー(&amp;O)</translation>
    </message>
    <message>
        <source>Go to the next line of an error</source>
        <translation>次のエラー行へ移動します</translation>
    </message>
    <message>
        <source>P&amp;revious Error</source>
        <translation>前のエラー(&amp;R)</translation>
    </message>
    <message>
        <source>Go to the line of an error before</source>
        <translation>前のエラー行へ移動します</translation>
    </message>
    <message>
        <source>Next &amp;Warning</source>
        <translation>次の警告(&amp;W)</translation>
    </message>
    <message>
        <source>Go to the next line of a warning</source>
        <translation>次の警告行へ移動します</translation>
    </message>
    <message>
        <source>Prev&amp;ious Warning</source>
        <translation>前の警告(&amp;I)</translation>
    </message>
    <message>
        <source>Go to the line of a warning before</source>
        <translation>前の警告行へ移動します</translation>
    </message>
    <message>
        <source>&amp;Filter...</source>
        <translation>フィルター(&amp;F)...</translation>
    </message>
    <message>
        <source>Show or hide lines by what is in their columns</source>
        <translation>列の内容で行を表示または非表示にします</translation>
    </message>
    <message>
        <source>Show &amp;All Rows</source>
        <translation>すべての行を表示(&amp;A)</translation>
    </message>
    <message>
        <source>F&amp;ollow</source>
        <translation>追従(&amp;O)</translation>
    </message>
    <message>
        <source>Show lines as they come, while the last line is the current one</source>
        <translation>最後の行が選ばれている間、届いた行を順に表示します</translation>
    </message>
    <message>
        <source>Open in &amp;Viewer</source>
        <translation>ビューアーで開く(&amp;V)</translation>
    </message>
    <message>
        <source>Open this log in the viewer, which shows logs of any size</source>
        <translation>このログを、どのサイズのログも表示できるビューアーで開きます</translation>
    </message>
    <message>
        <source>Filter by &amp;Column...</source>
        <translation>列でフィルター(&amp;C)...</translation>
    </message>
    <message>
        <source>Show or hide lines by the values of a further column</source>
        <translation>別の列の値で行を表示または非表示にします</translation>
    </message>
    <message>
        <source>Saved Fil&amp;ters...</source>
        <translation>保存したフィルター(&amp;T)...</translation>
    </message>
    <message>
        <source>Take a filter that was saved by a name, here or in the viewer</source>
        <translation>ここまたはビューアーで名前を付けて保存したフィルターを使います</translation>
    </message>
    <message>
        <source>&amp;Save Filter...</source>
        <translation>フィルターを保存(&amp;S)...</translation>
    </message>
    <message>
        <source>Save the filter by a name, in a file that others can open</source>
        <translation>他の人も開けるファイルに、フィルターを名前を付けて保存します</translation>
    </message>
    <message>
        <source>O&amp;pen Filter File...</source>
        <translation>フィルター ファイルを開く(&amp;P)...</translation>
    </message>
    <message>
        <source>Take a filter from a file that somebody gave</source>
        <translation>受け取ったファイルのフィルターを使います</translation>
    </message>
</context>
<context>
    <name>FilterFiles</name>
    <message>
        <source>No filter was saved yet</source>
        <translation>保存したフィルターはまだありません</translation>
    </message>
    <message>
        <source>Save Filter</source>
        <translation>フィルターの保存</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>名前:</translation>
    </message>
    <message>
        <source>Open Filter File</source>
        <translation>フィルター ファイルを開く</translation>
    </message>
    <message>
        <source>Filters (*.json)</source>
        <translation>フィルター (*.json)</translation>
    </message>
    <message>
        <source>Saved as %1, without the values of times and traces.</source>
        <translation>%1 として保存しました。時刻とトレースの値は含まれません。</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>%1 として保存しました。</translation>
    </message>
    <message>
        <source>The filter was not saved: %1.</source>
        <translation>フィルターを保存できませんでした: %1。</translation>
    </message>
    <message>
        <source>The filter&apos;s times and processes hold in the viewer, not in a single log.</source>
        <translation>フィルターの時刻とプロセスはビューアーで有効で、1 つのログでは使われません。</translation>
    </message>
    <message>
        <source>The filter was not taken: %1.</source>
        <translation>フィルターを使えませんでした: %1。</translation>
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
    <name>FrameNeeds</name>
    <message>
        <source>End with the Newest Log</source>
        <translation>最新のログの終わりまでにする</translation>
    </message>
    <message>
        <source>Looking at the logs...</source>
        <translation>ログを調べています...</translation>
    </message>
    <message>
        <source>No logs were found in the server&apos;s log folder.</source>
        <translation>サーバーのログ フォルダーにログが見つかりません。</translation>
    </message>
    <message>
        <source>The logs run from %1 to %2.</source>
        <translation>ログの範囲: %1 から %2 まで。</translation>
    </message>
    <message>
        <source>No log has lines of this time frame.</source>
        <translation>この期間の行があるログはありません。</translation>
    </message>
    <message>
        <source>This time frame takes 1 log, %1.</source>
        <translation>この期間で集めるログ: 1 個、%1。</translation>
    </message>
    <message>
        <source>This time frame takes %1 logs, %2.</source>
        <translation>この期間で集めるログ: %1 個、%2。</translation>
    </message>
</context>
<context>
    <name>GatherReport</name>
    <message>
        <source>The server names no current log of %1.</source>
        <translation>サーバーに %1 の現在のログがありません。</translation>
    </message>
    <message>
        <source>The current log of %1, %2, is not there.</source>
        <translation>%1 の現在のログ %2 が見つかりません。</translation>
    </message>
    <message>
        <source>The current log of %1, %2, can&apos;t be looked at: %3.</source>
        <translation>%1 の現在のログ %2 を参照できません: %3。</translation>
    </message>
    <message>
        <source>The server&apos;s log folder %1 is not there.</source>
        <translation>サーバーのログ フォルダー %1 が見つかりません。</translation>
    </message>
    <message>
        <source>The logs in %1 could not be listed: %2.</source>
        <translation>%1 のログを一覧できませんでした: %2。</translation>
    </message>
    <message>
        <source>%1 was passed over: %2.</source>
        <translation>%1 は対象から外されました: %2。</translation>
    </message>
    <message>
        <source>%1 was not gathered: it is not in %2.</source>
        <translation>%1 は収集されませんでした。%2 にありません。</translation>
    </message>
    <message>
        <source>%1 was not copied: %2.</source>
        <translation>%1 はコピーされませんでした: %2。</translation>
    </message>
    <message>
        <source>%1 was copied in part: %2.</source>
        <translation>%1 は一部だけコピーされました: %2。</translation>
    </message>
    <message>
        <source>%1 was not gathered as a whole: %2.</source>
        <translation>%1 は全体が収集されませんでした: %2。</translation>
    </message>
    <message>
        <source>%1 was read as far as line %3: %2.</source>
        <translation>%1 は %3 行目まで読み取られました: %2。</translation>
    </message>
    <message>
        <source>Lines of %1 that were not stored: %3 (%2).</source>
        <translation>%1 の保存されなかった行: %3 (%2)。</translation>
    </message>
    <message>
        <source>%1 was cut while it was read.</source>
        <translation>%1 は読み取り中に切り詰められました。</translation>
    </message>
    <message>
        <source>%1 was taken away while it was read.</source>
        <translation>%1 は読み取り中になくなりました。</translation>
    </message>
    <message>
        <source>%1 logs were not gathered as a whole, the first of them %2: %3.</source>
        <translation>%1 個のログは全体が収集されませんでした。最初は %2 です: %3。</translation>
    </message>
    <message>
        <source>%1 has too many malformed lines, and was read no further than the eleventh.</source>
        <translation>%1 には不正な行が多すぎるため、11 行目までしか読み取られませんでした。</translation>
    </message>
    <message>
        <source>The %1 event log was not captured: %2.</source>
        <translation>イベント ログ %1 は取得されませんでした: %2。</translation>
    </message>
    <message>
        <source>The destination %1 can&apos;t be made: %2.</source>
        <translation>保存先 %1 を作成できません: %2。</translation>
    </message>
    <message>
        <source>The destination %1 has gone.</source>
        <translation>保存先 %1 がなくなりました。</translation>
    </message>
    <message>
        <source>No trace database was made: %1.</source>
        <translation>トレース データベースは作成されませんでした: %1。</translation>
    </message>
    <message>
        <source>The trace database is not complete: %1.</source>
        <translation>トレース データベースは完全ではありません: %1。</translation>
    </message>
    <message>
        <source>The macro trace definitions could not all be stored: %1.</source>
        <translation>マクロ トレースの定義の一部を保存できませんでした: %1。</translation>
    </message>
    <message>
        <source>The filters could not all be stored: %1.</source>
        <translation>フィルターの一部を保存できませんでした: %1。</translation>
    </message>
    <message>
        <source>No cabinet was made.</source>
        <translation>キャビネットは作成されませんでした。</translation>
    </message>
    <message>
        <source>No cabinet was made: the cabinet maker %1 is missing.</source>
        <translation>キャビネットは作成されませんでした。作成プログラム %1 がありません。</translation>
    </message>
    <message>
        <source>No cabinet was made: %1.</source>
        <translation>キャビネットは作成されませんでした。%1。</translation>
    </message>
    <message>
        <source>The site&apos;s cabinet maker is not the installed one, which made the cabinet in its place.</source>
        <translation>サイトの cabmaker はインストールされているものと異なるため、インストールされているものがキャビネットを作成しました。</translation>
    </message>
    <message>
        <source>%1 in the destination %2 would be lost: the gather makes a file or folder of that name and removes it again.</source>
        <translation>保存先 %2 の %1 は失われます。収集ではこの名前のファイルまたはフォルダーを作成し、後で削除します。</translation>
    </message>
    <message>
        <source>%1 in the destination %2 is not a plain file, and nothing is written to such a one.</source>
        <translation>保存先 %2 の %1 は通常のファイルではないため、書き込みは行われません。</translation>
    </message>
    <message>
        <source>Another gather is writing to %1; wait until it has ended, or name another folder.</source>
        <translation>別の収集が %1 に書き込んでいます。終了するまで待つか、別のフォルダーを指定してください。</translation>
    </message>
    <message>
        <source>The gather was cancelled.</source>
        <translation>収集はキャンセルされました。</translation>
    </message>
    <message>
        <source>No line lies in the time frame.</source>
        <translation>この期間に該当する行はありません。</translation>
    </message>
    <message>
        <source>What was gathered is kept in %1.</source>
        <translation>収集された内容は %1 に残されています。</translation>
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
    <name>NoticeBar</name>
    <message>
        <source>Close this notice</source>
        <translation>この通知を閉じます</translation>
    </message>
</context>
<context>
    <name>PaneKeys</name>
    <message>
        <source>In lists and pages</source>
        <translation>リストとページ</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Opens the log or the node of the current row</source>
        <translation>現在の行のログまたはノードを開きます</translation>
    </message>
    <message>
        <source>Open or close a node</source>
        <translation>ノードを開閉</translation>
    </message>
    <message>
        <source>Right, Left</source>
        <translation>→、←</translation>
    </message>
    <message>
        <source>In a tree</source>
        <translation>ツリーで使います</translation>
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
        <source>Ticks or clears the current node of a page&apos;s tree</source>
        <translation>ページのツリーで現在のノードのチェックを付けるか、外します</translation>
    </message>
    <message>
        <source>Help on a page</source>
        <translation>ページのヘルプ</translation>
    </message>
    <message>
        <source>In a wizard or a sheet, and in the about box</source>
        <translation>ウィザード、プロパティ シート、バージョン情報で使います</translation>
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
        <source>In a list</source>
        <translation>リストで使います</translation>
    </message>
    <message>
        <source>Close find or filter</source>
        <translation>検索またはフィルターを閉じる</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Closes the bar in which the cursor is</source>
        <translation>カーソルのあるバーを閉じます</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Diagnostic logs (diag_*.txt data_*.txt *.log);;All files (*)</source>
        <translation>診断ログ (diag_*.txt data_*.txt *.log);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>More</source>
        <translation>増やす</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>減らす</translation>
    </message>
    <message>
        <source>This site has no %1 to show.</source>
        <translation>このサイトには、表示する %1 がありません。</translation>
    </message>
    <message>
        <source>The site %1 could not be opened: %2. Choose another one with Ctrl+Shift+O.</source>
        <translation>サイト %1 を開けませんでした: %2。Ctrl+Shift+O で別のサイトを選択してください。</translation>
    </message>
    <message>
        <source>The manual is not beside the tool. Install it again to read it.</source>
        <translation>マニュアルがツールと同じ場所にありません。読むには、もう一度インストールしてください。</translation>
    </message>
    <message>
        <source>it has no site.ini, registry.reg or drive_c in it</source>
        <translation>site.ini、registry.reg、drive_c のいずれもありません</translation>
    </message>
    <message>
        <source>No sample server could be made in %1: %2. Choose a new folder.</source>
        <translation>%1 にサンプル サーバーを作成できませんでした: %2。新しいフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>No sample server could be made in %1: %2. Choose another folder.</source>
        <translation>%1 にサンプル サーバーを作成できませんでした: %2。別のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>The site was not closed cleanly: %1. The language of its event log may not be the first one; open it again.</source>
        <translation>サイトを正しく閉じられませんでした: %1。イベント ログの言語が元に戻っていない可能性があります。もう一度開いてください。</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>概要</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進行状況</translation>
    </message>
    <message>
        <source>Choices</source>
        <translation>選択肢</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a date, so %2 stays. Type a date as it is written there.</source>
        <translation>「%1」は日付ではないため、%2 のままです。同じ形式で日付を入力してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a time, so %2 stays. Type a time as it is written there.</source>
        <translation>「%1」は時刻ではないため、%2 のままです。同じ形式で時刻を入力してください。</translation>
    </message>
    <message>
        <source>%1 can&apos;t be chosen here. The field now holds %2.</source>
        <translation>%1 はここでは選択できません。現在の値は %2 です。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number of megabytes, so the space for diagnostic files stays as it was.</source>
        <translation>「%1」はメガバイト数ではないため、診断ファイルの容量は変更されません。</translation>
    </message>
    <message>
        <source>Not all of it was done: %1.</source>
        <translation>一部が実行されませんでした: %1。</translation>
    </message>
    <message>
        <source>%1 can be read with the viewer (orvandiag-viewer), which is not installed here.</source>
        <translation>%1 はビューアー (orvandiag-viewer) で読めますが、ここにはインストールされていません。</translation>
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
    <name>ResultPlace</name>
    <message>
        <source>On this machine: %1</source>
        <translation>このコンピューター上: %1</translation>
    </message>
    <message>
        <source>No file manager was found on this machine. The results are in %1.</source>
        <translation>このコンピューターにはファイル マネージャーが見つかりません。結果は %1 にあります。</translation>
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
    <name>SelectionNeeds</name>
    <message>
        <source>unknown</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>1 server log is chosen, %1. Free at the destination: %2.</source>
        <translation>サーバー ログ 1 個を選択、%1。保存先の空き: %2。</translation>
    </message>
    <message>
        <source>%1 server logs are chosen, %2. Free at the destination: %3.</source>
        <translation>サーバー ログ %1 個を選択、%2。保存先の空き: %3。</translation>
    </message>
    <message>
        <source>That is not enough room.</source>
        <translation>空きが足りません。</translation>
    </message>
</context>
<context>
    <name>StartPage</name>
    <message>
        <source>Open a Site</source>
        <translation>サイトを開く</translation>
    </message>
    <message>
        <source>The folder of a server, or of a copy of one. A folder that is dropped here is opened, too.</source>
        <translation>サーバーまたはそのコピーのフォルダーです。ここにドロップしたフォルダーも開かれます。</translation>
    </message>
    <message>
        <source>Make a Sample Server</source>
        <translation>サンプル サーバーを作る</translation>
    </message>
    <message>
        <source>A server with made-up logs, to try things on, in a new folder.</source>
        <translation>架空のログを持つ試用のサーバーを、新しいフォルダーに作ります。</translation>
    </message>
    <message>
        <source>Read the Manual</source>
        <translation>マニュアルを読む</translation>
    </message>
    <message>
        <source>What the tool does, and how to go about it.</source>
        <translation>このツールでできることと、その使い方です。</translation>
    </message>
    <message>
        <source>No site is open</source>
        <translation>サイトが開かれていません</translation>
    </message>
    <message>
        <source>A site is a server in a folder, with its logs and settings.</source>
        <translation>サイトとは、ログと設定を含めてフォルダーに収めたサーバーです。</translation>
    </message>
</context>
<context>
    <name>desktop::ConsolePane</name>
    <message>
        <source>Server tree</source>
        <translation>サーバーのツリー</translation>
    </message>
    <message>
        <source>Processes</source>
        <translation>プロセス</translation>
    </message>
    <message>
        <source>Log files</source>
        <translation>ログ ファイル</translation>
    </message>
    <message>
        <source>The tool is still finishing what was cancelled. One moment.</source>
        <translation>キャンセルされた処理を終了しています。しばらくお待ちください。</translation>
    </message>
    <message>
        <source>That did not work: %1. Press F5 to renew what is shown, and try again.</source>
        <translation>操作を完了できませんでした: %1。F5 キーを押して表示を更新し、もう一度実行してください。</translation>
    </message>
</context>
<context>
    <name>desktop::DetailsPane</name>
    <message>
        <source>Fields of the line</source>
        <translation>行の項目</translation>
    </message>
    <message>
        <source>Trace of the line</source>
        <translation>行のトレース</translation>
    </message>
    <message>
        <source>Select a line to read all of it here.</source>
        <translation>行を選択すると、その全体がここに表示されます。</translation>
    </message>
</context>
<context>
    <name>desktop::FilterBar</name>
    <message>
        <source>Only rows with this text</source>
        <translation>この文字列を含む行のみ</translation>
    </message>
    <message>
        <source>Filter by text</source>
        <translation>文字列でフィルター</translation>
    </message>
    <message>
        <source>hide &amp;matches</source>
        <translation>一致する行を隠す(&amp;M)</translation>
    </message>
    <message>
        <source>Hide the rows with the text instead of showing them</source>
        <translation>文字列を含む行を表示する代わりに非表示にします</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>すべて表示</translation>
    </message>
    <message>
        <source>Show every row again (Ctrl+Shift+A)</source>
        <translation>すべての行を再び表示します (Ctrl+Shift+A)</translation>
    </message>
    <message>
        <source>Close the filter bar and show every row (Esc)</source>
        <translation>フィルター バーを閉じて、すべての行を表示します (Esc)</translation>
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
        <source>Filter by a further column (Ctrl+Alt+F)</source>
        <translation>別の列でフィルター (Ctrl+Alt+F)</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>他 %1 件</translation>
    </message>
    <message>
        <source>not %1</source>
        <translation>%1 以外</translation>
    </message>
    <message>
        <source>Let go: %1</source>
        <translation>解除: %1</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>正規表現</translation>
    </message>
</context>
<context>
    <name>desktop::FilterButton</name>
    <message>
        <source>(none)</source>
        <translation>(なし)</translation>
    </message>
    <message>
        <source>&amp;Hide the ticked ones</source>
        <translation>選択した項目を隠す(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Untick all</source>
        <translation>すべて選択解除(&amp;U)</translation>
    </message>
    <message>
        <source>all</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 他 %2 件</translation>
    </message>
    <message>
        <source>not %1</source>
        <translation>%1 以外</translation>
    </message>
    <message>
        <source>%1: %2 </source>
        <translation>%1: %2 </translation>
    </message>
    <message>
        <source>Filter by %1: %2</source>
        <translation>%1 でフィルター: %2</translation>
    </message>
    <message>
        <source>Show or hide rows by %1</source>
        <translation>%1 で行を表示または非表示にします</translation>
    </message>
    <message>
        <source>Values with this text</source>
        <translation>この文字列を含む値</translation>
    </message>
    <message>
        <source>Look among the values</source>
        <translation>値の中を探す</translation>
    </message>
    <message>
        <source>%1 more: type to look among them</source>
        <translation>他に %1 個: 入力して探してください</translation>
    </message>
</context>
<context>
    <name>desktop::FindBar</name>
    <message>
        <source>Fi&amp;nd:</source>
        <translation>検索(&amp;N):</translation>
    </message>
    <message>
        <source>Go to &amp;time:</source>
        <translation>時刻へ移動(&amp;T):</translation>
    </message>
    <message>
        <source>Text in any column</source>
        <translation>いずれかの列の文字列</translation>
    </message>
    <message>
        <source>Text to find</source>
        <translation>検索する文字列</translation>
    </message>
    <message>
        <source>such as 15:23:07</source>
        <translation>例: 15:23:07</translation>
    </message>
    <message>
        <source>Time to go to</source>
        <translation>移動先の時刻</translation>
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
        <source>Close the find bar (Esc)</source>
        <translation>検索バーを閉じます (Esc)</translation>
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
        <source>Keep this text marked (Ctrl+M)</source>
        <translation>この文字列に色を付けたままにする (Ctrl+M)</translation>
    </message>
    <message>
        <source>Type the text to keep marked</source>
        <translation>色を付ける文字列を入力してください</translation>
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
    <name>desktop::GrowthBar</name>
    <message>
        <source>New lines</source>
        <translation>新しい行</translation>
    </message>
    <message>
        <source>Read the log again, to its present end (F5)</source>
        <translation>ログを現在の末尾まで読み直します (F5)</translation>
    </message>
    <message>
        <source>Open in Vie&amp;wer</source>
        <translation>ビューアーで開く(&amp;W)</translation>
    </message>
    <message>
        <source>Open this log in the viewer, which shows logs of any size</source>
        <translation>このログを、どのサイズのログも表示できるビューアーで開きます</translation>
    </message>
    <message>
        <source>Foll&amp;ow</source>
        <translation>追従(&amp;O)</translation>
    </message>
    <message>
        <source>Show lines as they come, while the last line is the current one</source>
        <translation>最後の行が選ばれている間、届いた行を順に表示します</translation>
    </message>
    <message>
        <source>Read A&amp;gain</source>
        <translation>再読み込み(&amp;G)</translation>
    </message>
</context>
<context>
    <name>desktop::LogView</name>
    <message>
        <source>Log lines</source>
        <translation>ログの行</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not in these lines.</source>
        <translation>&quot;%1&quot; はこれらの行にありません。</translation>
    </message>
    <message>
        <source>Went on from the top.</source>
        <translation>先頭から検索を続けました。</translation>
    </message>
    <message>
        <source>Went on from the end.</source>
        <translation>末尾から検索を続けました。</translation>
    </message>
    <message>
        <source>Type a time such as 15:23</source>
        <translation>15:23 のように時刻を入力</translation>
    </message>
    <message>
        <source>No line at %1 or later</source>
        <translation>%1 以降の行はありません</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>行 %1</translation>
    </message>
    <message>
        <source>Line %1 is marked.</source>
        <translation>行 %1 にブックマークを付けました。</translation>
    </message>
    <message>
        <source>Line %1 is not marked any more.</source>
        <translation>行 %1 のブックマークを外しました。</translation>
    </message>
    <message>
        <source>No line of this log is marked. Ctrl+B marks one.</source>
        <translation>このログにブックマークはありません。Ctrl+B で付けることができます。</translation>
    </message>
    <message>
        <source>The marked lines are hidden by the filter.</source>
        <translation>ブックマークの行はフィルターで非表示になっています。</translation>
    </message>
    <message>
        <source>No line of this log is marked any more.</source>
        <translation>このログのブックマークをすべて外しました。</translation>
    </message>
    <message>
        <source>&amp;Show only %1 %2</source>
        <translation>%1 %2 のみ表示(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Hide %1 %2</source>
        <translation>%1 %2 を隠す(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Bookmark</source>
        <translation>ブックマーク(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>Copy as CS&amp;V</source>
        <translation>CSV としてコピー(&amp;V)</translation>
    </message>
    <message>
        <source>Marked line %1: %2</source>
        <translation>ブックマークの行 %1: %2</translation>
    </message>
    <message>
        <source>Hit in line %1: %2</source>
        <translation>一致する行 %1: %2</translation>
    </message>
    <message>
        <source>Error in line %1: %2</source>
        <translation>エラーの行 %1: %2</translation>
    </message>
    <message>
        <source>Warning in line %1: %2</source>
        <translation>警告の行 %1: %2</translation>
    </message>
    <message>
        <source>bookmark</source>
        <translation>ブックマーク</translation>
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
        <source>No line on show tells of an error.</source>
        <translation>表示中の行にエラーはありません。</translation>
    </message>
    <message>
        <source>No line on show tells of a warning.</source>
        <translation>表示中の行に警告はありません。</translation>
    </message>
    <message>
        <source>This log has grown past the %1 bytes that the tool shows.</source>
        <translation>このログは、ツールが表示できる %1 バイトを超えました。</translation>
    </message>
    <message>
        <source>This log was begun anew.</source>
        <translation>このログは新しく始められました。</translation>
    </message>
    <message>
        <source>Following: lines are shown as they come.</source>
        <translation>追従中: 届いた行を順に表示します。</translation>
    </message>
    <message>
        <source>%1 new lines wait. Go to the last line to see them.</source>
        <translation>新しい行が %1 行あります。最後の行へ移動すると表示されます。</translation>
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
    <name>desktop::MainWindow</name>
    <message>
        <source>This site is read-only: logs can be read, but traces and settings cannot be changed. Make its folder writable, or open a copy.</source>
        <translation>このサイトは読み取り専用です。ログは読み取れますが、トレースと設定は変更できません。フォルダーを書き込み可能にするか、コピーを開いてください。</translation>
    </message>
    <message>
        <source>The server&apos;s database could not be opened: %1. Logs can be read and gathered, but traces and settings cannot be changed.</source>
        <translation>サーバーのデータベースを開けませんでした: %1。ログの読み取りと収集はできますが、トレースと設定は変更できません。</translation>
    </message>
    <message>
        <source>The site %1 is no longer there. Put the folder back and press F5, or open another site with Ctrl+Shift+O.</source>
        <translation>サイト %1 が見つからなくなりました。フォルダーを元に戻して F5 キーを押すか、Ctrl+Shift+O で別のサイトを開いてください。</translation>
    </message>
    <message>
        <source>The catalogue of your language (%1) is missing or damaged, so the tool&apos;s texts are in English. Choose another language in the about box (Ctrl+F1).</source>
        <translation>お使いの言語 (%1) のカタログが見つからないか壊れているため、ツールの表示は英語になります。バージョン情報 (Ctrl+F1) で別の言語を選択してください。</translation>
    </message>
    <message>
        <source>The tool&apos;s own log can&apos;t be written: %1. The tool goes on without it.</source>
        <translation>ツール自身のログに書き込めません: %1。ツールはログなしで続行します。</translation>
    </message>
    <message>
        <source>Orvan Diagnostic Tool</source>
        <translation>Orvan 診断ツール</translation>
    </message>
    <message>
        <source>1 row copied.</source>
        <translation>1 行をコピーしました。</translation>
    </message>
    <message>
        <source>%1 rows copied.</source>
        <translation>%1 行をコピーしました。</translation>
    </message>
    <message>
        <source>Open Site: the folder of a server, with site.ini, registry.reg or drive_c</source>
        <translation>サイトを開く: site.ini、registry.reg、または drive_c を含むサーバーのフォルダー</translation>
    </message>
    <message>
        <source>Make Sample Server in a New Folder</source>
        <translation>新しいフォルダーにサンプル サーバーを作成</translation>
    </message>
    <message>
        <source>The language was not changed: %1. Choose it again.</source>
        <translation>言語は変更されませんでした: %1。もう一度選択してください。</translation>
    </message>
    <message>
        <source>The gather is being ended. The window closes in a moment.</source>
        <translation>ログの収集を終了しています。ウィンドウはまもなく閉じます。</translation>
    </message>
    <message>
        <source>&amp;Recent Sites</source>
        <translation>最近使ったサイト(&amp;R)</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>ツール バー</translation>
    </message>
    <message>
        <source>Tool &amp;Bar</source>
        <translation>ツール バー(&amp;B)</translation>
    </message>
    <message>
        <source>Show or hide the buttons below the menus</source>
        <translation>メニューの下のボタンを表示または非表示にします</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>The site on show: %1</source>
        <translation>表示中のサイト: %1</translation>
    </message>
    <message>
        <source>The gather is being ended. Try again in a moment.</source>
        <translation>ログの収集を終了しています。しばらくしてから、もう一度実行してください。</translation>
    </message>
    <message>
        <source>This site is read-only: choose a destination outside of it.</source>
        <translation>このサイトは読み取り専用です。サイトの外の保存先を選択してください。</translation>
    </message>
    <message>
        <source>This site is read-only: what is chosen here is not written.</source>
        <translation>このサイトは読み取り専用です。ここで選択した内容は書き込まれません。</translation>
    </message>
    <message>
        <source>The server was not told to start new log files: the signal in its registry stayed what it was.</source>
        <translation>サーバーに新しいログ ファイルの開始が伝えられませんでした。レジストリのシグナルは変わりませんでした。</translation>
    </message>
    <message>
        <source>%1 (not there)</source>
        <translation>%1 (ありません)</translation>
    </message>
    <message>
        <source>&amp;Forget Folders That Are Not There</source>
        <translation>存在しないフォルダーを一覧から消す(&amp;F)</translation>
    </message>
    <message>
        <source>Sample Server</source>
        <translation>サンプル サーバー</translation>
    </message>
    <message>
        <source>Col&amp;umns</source>
        <translation>列(&amp;U)</translation>
    </message>
    <message>
        <source>Sample server: %1</source>
        <translation>サンプル サーバー: %1</translation>
    </message>
</context>
<context>
    <name>desktop::MomentField</name>
    <message>
        <source>Calendar</source>
        <translation>カレンダー</translation>
    </message>
    <message>
        <source>Pick a day from a calendar (F4)</source>
        <translation>カレンダーから日を選択します (F4)</translation>
    </message>
    <message>
        <source>M/d/yyyy</source>
        <translation>yyyy/MM/dd</translation>
    </message>
    <message>
        <source>h:mm:ss AP</source>
        <translation>H:mm:ss</translation>
    </message>
    <message>
        <source>en_US</source>
        <extracomment>The language and country by which a calendar names its days.</extracomment>
        <translation>ja_JP</translation>
    </message>
</context>
<context>
    <name>desktop::ScopeModel</name>
    <message>
        <source>d MMM yyyy</source>
        <translation>yyyy年M月d日</translation>
    </message>
    <message>
        <source>d MMM</source>
        <translation>M月d日</translation>
    </message>
    <message>
        <source>%1 · current</source>
        <translation>%1 · 現在</translation>
    </message>
</context>
<context>
    <name>desktop::SheetDialog</name>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; 戻る(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>次へ(&amp;N) &gt;</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>完了(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>適用(&amp;A)</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>That did not work: %1. Try again, or press Cancel.</source>
        <translation>操作を完了できませんでした: %1。もう一度実行するか、[キャンセル] をクリックしてください。</translation>
    </message>
</context>
<context>
    <name>desktop::TooLargePane</name>
    <message>
        <source>This log has %1 bytes, and the tool shows logs of up to %2. The viewer shows logs of any size.</source>
        <translation>このログは %1 バイトあり、ツールが表示できるのは %2 バイトまでです。ビューアーはどのサイズのログも表示します。</translation>
    </message>
    <message>
        <source>Open in Vie&amp;wer</source>
        <translation>ビューアーで開く(&amp;W)</translation>
    </message>
</context>
</TS>
