<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Quillet</name>
    <message>
        <source>%1 at byte %2</source>
        <translation>%1 (%2 バイト目)</translation>
    </message>
    <message>
        <source>%1 event</source>
        <translation>%1 件の予定</translation>
    </message>
    <message>
        <source>%1 events</source>
        <translation>%1 件の予定</translation>
    </message>
    <message>
        <source>%1 events cannot be read</source>
        <translation>%1 件の予定を読み取れません</translation>
    </message>
    <message>
        <source>%1 events without a start</source>
        <translation>開始のない予定が %1 件</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1時間</translation>
    </message>
    <message>
        <source>%1 hour</source>
        <translation>%1 時間</translation>
    </message>
    <message>
        <source>%1 hours</source>
        <translation>%1 時間</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1分</translation>
    </message>
    <message>
        <source>%1 minute</source>
        <translation>%1 分</translation>
    </message>
    <message>
        <source>%1 minutes</source>
        <translation>%1 分</translation>
    </message>
    <message>
        <source>%1 more events are in other files too, in newer versions, which count</source>
        <translation>ほか %1 件の予定も別のファイルに新しい版があり、そちらを数えます</translation>
    </message>
    <message>
        <source>%1 more lines cannot be read</source>
        <translation>ほか %1 行を読み取れません</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%2 の%1</translation>
    </message>
    <message>
        <source>%1 of %2 choices</source>
        <translation>%2 中 %1</translation>
    </message>
    <message>
        <source>%1 of “%2”</source>
        <translation>「%2」の%1</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%2比%1</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>%1, line %2</source>
        <translation>%1、%2 行目</translation>
    </message>
    <message>
        <source>%1: %2. Please correct it in your calendar program.</source>
        <translation>%1: %2。カレンダーのプログラムで修正してください。</translation>
    </message>
    <message>
        <source>(no location)</source>
        <translation>(場所なし)</translation>
    </message>
    <message>
        <source>(no name)</source>
        <translation>（名前なし）</translation>
    </message>
    <message>
        <source>(no title)</source>
        <translation>(タイトルなし)</translation>
    </message>
    <message>
        <source>A folder holds a calendar with one file an event; a file holds a whole calendar.</source>
        <translation>フォルダーは 1 予定 1 ファイルのカレンダー、ファイルは 1 つのカレンダー全体です。</translation>
    </message>
    <message>
        <source>a folder that cannot be reached</source>
        <translation>アクセスできないフォルダー</translation>
    </message>
    <message>
        <source>A last row with the sums of the columns</source>
        <translation>列の合計を示す最後の行</translation>
    </message>
    <message>
        <source>a link that leads nowhere</source>
        <translation>リンク先がありません</translation>
    </message>
    <message>
        <source>A preset holds the switches and texts of the text report. Applying one sets them all; a new one takes them as they are now.</source>
        <translation>プリセットはテキストレポートの設定と文章を保持します。適用するとすべて設定され、新しいプリセットは現在の内容を保存します。</translation>
    </message>
    <message>
        <source>a spreadsheet would take the title “%1” for a formula</source>
        <translation>タイトル「%1」は表計算ソフトで数式と見なされます</translation>
    </message>
    <message>
        <source>a text or event that is too long was cut</source>
        <translation>長すぎる文章または予定を切り詰めました</translation>
    </message>
    <message>
        <source>&amp;About Quillet</source>
        <translation>Quillet について(&amp;A)</translation>
    </message>
    <message>
        <source>About Quillet</source>
        <translation>Quillet について</translation>
    </message>
    <message>
        <source>Above the Table</source>
        <translation>表の上</translation>
    </message>
    <message>
        <source>Access Denied</source>
        <translation>アクセスが拒否されました</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Add a folder or a file of calendars, or drop one here.</source>
        <translation>カレンダーのフォルダーまたはファイルを追加するか、ここにドロップしてください。</translation>
    </message>
    <message>
        <source>Add Calendar File</source>
        <translation>カレンダーファイルの追加</translation>
    </message>
    <message>
        <source>Add Calendar Folder</source>
        <translation>カレンダーフォルダーの追加</translation>
    </message>
    <message>
        <source>&amp;Add Calendar Folder or File…</source>
        <translation>カレンダーのフォルダーまたはファイルを追加(&amp;A)…</translation>
    </message>
    <message>
        <source>Add Calendar Folder or File…</source>
        <translation>カレンダーのフォルダーまたはファイルを追加…</translation>
    </message>
    <message>
        <source>Add these %1 files as calendars?</source>
        <translation>これら %1 個のファイルをカレンダーとして追加しますか？</translation>
    </message>
    <message>
        <source>Add “%1” as a calendar?</source>
        <translation>「%1」をカレンダーとして追加しますか？</translation>
    </message>
    <message>
        <source>All</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>All Calendars</source>
        <translation>すべてのカレンダー</translation>
    </message>
    <message>
        <source>All Events</source>
        <translation>すべての予定</translation>
    </message>
    <message>
        <source>All-day events are neither listed nor counted in totals and exports</source>
        <translation>終日の予定は一覧に表示されず、集計やエクスポートにも含まれません</translation>
    </message>
    <message>
        <source>All-day events:</source>
        <translation>終日の予定:</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>許可</translation>
    </message>
    <message>
        <source>Allow Calendar A&amp;ccess…</source>
        <translation>カレンダーへのアクセスを許可(&amp;C)…</translation>
    </message>
    <message>
        <source>Allow Calendar Access…</source>
        <translation>カレンダーへのアクセスを許可…</translation>
    </message>
    <message>
        <source>an all-day event, in days of 24 hours</source>
        <translation>終日の予定、24時間を1日とする</translation>
    </message>
    <message>
        <source>an empty file</source>
        <translation>空のファイル</translation>
    </message>
    <message>
        <source>an entry in it has no end</source>
        <translation>終わりのない項目があります</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>ほか%1件</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>適用(&amp;A)</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>Arranges the columns as the selected layout has them</source>
        <translation>選択したレイアウトどおりに列を並べます</translation>
    </message>
    <message>
        <source>as it is shown</source>
        <translation>表示される値</translation>
    </message>
    <message>
        <source>At least</source>
        <translation>最低</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>平均</translation>
    </message>
    <message>
        <source>&amp;Average time</source>
        <translation>平均時間(&amp;A)</translation>
    </message>
    <message>
        <source>Avg</source>
        <translation>平均</translation>
    </message>
    <message>
        <source>&amp;Beginning date</source>
        <translation>開始日(&amp;B)</translation>
    </message>
    <message>
        <source>Beginning Date</source>
        <translation>開始日</translation>
    </message>
    <message>
        <source>Billed</source>
        <translation>請求</translation>
    </message>
    <message>
        <source>Billed: %1 of “%2”</source>
        <translation>請求: 「%2」の%1</translation>
    </message>
    <message>
        <source>Bring column titles back, too</source>
        <translation>列のタイトルも元に戻す</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>カレンダー</translation>
    </message>
    <message>
        <source>Calendar Group</source>
        <translation>カレンダーグループ</translation>
    </message>
    <message>
        <source>Calendar Groups</source>
        <translation>カレンダーグループ</translation>
    </message>
    <message>
        <source>Calendar without a name</source>
        <translation>名前のないカレンダー</translation>
    </message>
    <message>
        <source>&amp;Calendars</source>
        <translation>カレンダー(&amp;C)</translation>
    </message>
    <message>
        <source>C&amp;alendars</source>
        <translation>カレンダー(&amp;A)</translation>
    </message>
    <message>
        <source>Calendars</source>
        <translation>カレンダー</translation>
    </message>
    <message>
        <source>Calendars (*.ics)</source>
        <translation>カレンダー (*.ics)</translation>
    </message>
    <message>
        <source>&amp;Calendars in Group</source>
        <translation>グループのカレンダー(&amp;C)</translation>
    </message>
    <message>
        <source>Calendars in Group</source>
        <translation>グループのカレンダー</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>cannot be reached: %1</source>
        <translation>アクセスできません: %1</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>読み取れません: %1</translation>
    </message>
    <message>
        <source>Cannot delete All Calendars</source>
        <translation>「すべてのカレンダー」は削除できません</translation>
    </message>
    <message>
        <source>Cannot delete Default layout</source>
        <translation>標準のレイアウトは削除できません</translation>
    </message>
    <message>
        <source>Cannot delete Default settings</source>
        <translation>標準の設定は削除できません</translation>
    </message>
    <message>
        <source>Check for &amp;Updates…</source>
        <translation>アップデートを確認(&amp;U)…</translation>
    </message>
    <message>
        <source>Choose what the report tells</source>
        <translation>レポートの内容を選択します</translation>
    </message>
    <message>
        <source>Choose where to search</source>
        <translation>検索する場所を選択します</translation>
    </message>
    <message>
        <source>Clear Search</source>
        <translation>検索をクリア</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>閉じる(&amp;L)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>&amp;Close Window</source>
        <translation>ウィンドウを閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>Column &amp;Layouts</source>
        <translation>列のレイアウト(&amp;L)</translation>
    </message>
    <message>
        <source>Column Layouts</source>
        <translation>列のレイアウト</translation>
    </message>
    <message>
        <source>Column &amp;Preferences…</source>
        <translation>列の設定(&amp;P)…</translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation>列(&amp;C)</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>列</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Completion date</source>
        <translation>完了日</translation>
    </message>
    <message>
        <source>Control-click ticks or clears all calendars</source>
        <translation>Ctrl を押しながらクリックすると、すべてのカレンダーのチェックを切り替えます</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>Cost</source>
        <translation>料金</translation>
    </message>
    <message>
        <source>Counts from</source>
        <translation>計算の開始</translation>
    </message>
    <message>
        <source>Counts until</source>
        <translation>計算の終了</translation>
    </message>
    <message>
        <source>CSV</source>
        <translation>CSV</translation>
    </message>
    <message>
        <source>CSV/TSV</source>
        <translation>CSV/TSV</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>現在</translation>
    </message>
    <message>
        <source>C&amp;ustom</source>
        <translation>任意(&amp;U)</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>任意</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>&amp;Day</source>
        <translation>日(&amp;D)</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>日</translation>
    </message>
    <message>
        <source>&amp;Days</source>
        <translation>日数(&amp;D)</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>日</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>Default layout cannot be deleted.</source>
        <translation>標準のレイアウトを削除することはできません。</translation>
    </message>
    <message>
        <source>Default settings cannot be deleted.</source>
        <translation>標準の設定を削除することはできません。</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>削除(&amp;D)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>&amp;Delete Layout</source>
        <translation>レイアウトを削除(&amp;D)</translation>
    </message>
    <message>
        <source>Delete the group?</source>
        <translation>グループを削除しますか？</translation>
    </message>
    <message>
        <source>Delete the record?</source>
        <translation>項目を削除しますか？</translation>
    </message>
    <message>
        <source>Deleted records cannot be restored.</source>
        <translation>削除した項目は元に戻せません。</translation>
    </message>
    <message>
        <source>Desktop calendars</source>
        <translation>デスクトップのカレンダー</translation>
    </message>
    <message>
        <source>Don’t Allow</source>
        <translation>許可しない</translation>
    </message>
    <message>
        <source>Due date</source>
        <translation>期限日</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>所要時間</translation>
    </message>
    <message>
        <source>each event is rounded by itself</source>
        <translation>予定ごとに丸めます</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>Edit Calendar Groups</source>
        <translation>カレンダーグループを編集</translation>
    </message>
    <message>
        <source>Edit calendar groups</source>
        <translation>カレンダーグループを編集します</translation>
    </message>
    <message>
        <source>Edit Calendar &amp;Groups…</source>
        <translation>カレンダーグループを編集(&amp;G)…</translation>
    </message>
    <message>
        <source>Edit Calendar Groups…</source>
        <translation>カレンダーグループを編集…</translation>
    </message>
    <message>
        <source>&amp;Edit Layouts…</source>
        <translation>レイアウトを編集(&amp;E)…</translation>
    </message>
    <message>
        <source>&amp;Encoding of saved files:</source>
        <translation>保存するファイルのエンコーディング(&amp;E):</translation>
    </message>
    <message>
        <source>End</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>End Date</source>
        <translation>終了日</translation>
    </message>
    <message>
        <source>End Time</source>
        <translation>終了時刻</translation>
    </message>
    <message>
        <source>End Weekday</source>
        <translation>終了曜日</translation>
    </message>
    <message>
        <source>E&amp;nding date</source>
        <translation>終了日(&amp;N)</translation>
    </message>
    <message>
        <source>Ending Date</source>
        <translation>終了日</translation>
    </message>
    <message>
        <source>ends in the middle</source>
        <translation>途中で終わっています</translation>
    </message>
    <message>
        <source>Event &amp;Notes</source>
        <translation>予定のメモ(&amp;N)</translation>
    </message>
    <message>
        <source>Event Notes</source>
        <translation>予定のメモ</translation>
    </message>
    <message>
        <source>event without a title</source>
        <translation>タイトルのない予定</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>予定</translation>
    </message>
    <message>
        <source>Events counted in more than one row: %1</source>
        <translation>複数の行で数えられた予定: %1</translation>
    </message>
    <message>
        <source>Events with notes: %1</source>
        <translation>メモのある予定: %1</translation>
    </message>
    <message>
        <source>Exact</source>
        <translation>正確な値</translation>
    </message>
    <message>
        <source>exact %1, billed %2</source>
        <translation>正確には%1、請求は%2</translation>
    </message>
    <message>
        <source>Exact sum</source>
        <translation>正確な合計</translation>
    </message>
    <message>
        <source>Export as:</source>
        <translation>エクスポート名:</translation>
    </message>
    <message>
        <source>F2 or a double click renames</source>
        <translation>F2 キーまたはダブルクリックで名前を変更します</translation>
    </message>
    <message>
        <source>Fetching Events</source>
        <translation>予定を取得中</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>F&amp;ile…</source>
        <translation>ファイル(&amp;I)…</translation>
    </message>
    <message>
        <source>Find &amp;In</source>
        <translation>検索する場所(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Find…</source>
        <translation>検索(&amp;F)…</translation>
    </message>
    <message>
        <source>&amp;Folder…</source>
        <translation>フォルダー(&amp;F)…</translation>
    </message>
    <message>
        <source>for each event that begins</source>
        <translation>開始する予定ごとに</translation>
    </message>
    <message>
        <source>for which an all-day event counts</source>
        <translation>終日の予定1日あたりの時間</translation>
    </message>
    <message>
        <source>General</source>
        <translation>全般</translation>
    </message>
    <message>
        <source>Gives every column its first title back</source>
        <translation>すべての列を最初のタイトルに戻します</translation>
    </message>
    <message>
        <source>&amp;Groups</source>
        <translation>グループ(&amp;G)</translation>
    </message>
    <message>
        <source>h</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>Hourly Rate</source>
        <translation>時間単価</translation>
    </message>
    <message>
        <source>Hourly &amp;rate (%1):</source>
        <translation>時間単価 (%1)(&amp;R):</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>Hours a day</source>
        <translation>1日の時間</translation>
    </message>
    <message>
        <source>&amp;Hours for each day:</source>
        <translation>1 日あたりの時間数(&amp;H):</translation>
    </message>
    <message>
        <source>Hours for money</source>
        <translation>料金計算の時間</translation>
    </message>
    <message>
        <source>hours times rate, exact</source>
        <translation>時間×単価、正確な値</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>識別子</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>無視</translation>
    </message>
    <message>
        <source>In Quotation Marks</source>
        <translation>引用符で囲む項目</translation>
    </message>
    <message>
        <source>in the zone %1</source>
        <translation>タイムゾーン%1で</translation>
    </message>
    <message>
        <source>In titles, notes, locations and calendars, for programs that take every line for an event</source>
        <translation>各行を 1 つの予定とみなすプログラムのために、タイトル、メモ、場所、カレンダーの改行を置き換えます</translation>
    </message>
    <message>
        <source>In&amp;spector</source>
        <translation>インスペクタ(&amp;S)</translation>
    </message>
    <message>
        <source>Install a calendar program, or choose one among the default applications of your desktop, to open events in it.</source>
        <translation>予定を開くには、カレンダーソフトをインストールするか、デスクトップの既定のアプリで選んでください。</translation>
    </message>
    <message>
        <source>Install a mail program, or choose one among the default applications of your desktop, and press Mail again.</source>
        <translation>メールソフトをインストールするか、デスクトップの既定のアプリで選び、もう一度「メール」を押してください。</translation>
    </message>
    <message>
        <source>Install the newer version in the way in which you installed Quillet.</source>
        <translation>Quillet をインストールしたときと同じ方法で新しいバージョンをインストールしてください。</translation>
    </message>
    <message>
        <source>is still being read</source>
        <translation>まだ読み込み中です</translation>
    </message>
    <message>
        <source>it is larger than %1 MB</source>
        <translation>%1 MB を超えています</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>ファイルではありません</translation>
    </message>
    <message>
        <source>It is not installed.</source>
        <translation>インストールされていません。</translation>
    </message>
    <message>
        <source>It is on the clipboard: paste it into the new message.</source>
        <translation>クリップボードにコピーしました。新しいメッセージに貼り付けてください。</translation>
    </message>
    <message>
        <source>its server is not reachable since %1, retrying</source>
        <translation>%1からサーバーに接続できません。再試行します</translation>
    </message>
    <message>
        <source>Keeps all this under a name, and brings it back</source>
        <translation>これらすべてに名前を付けて保存し、呼び出します</translation>
    </message>
    <message>
        <source>Keeps arrangements of the columns under names</source>
        <translation>列の並びに名前を付けて保存します</translation>
    </message>
    <message>
        <source>Keeps the columns as they are now</source>
        <translation>現在の列の状態を保存します</translation>
    </message>
    <message>
        <source>larger than 128 MB</source>
        <translation>128 MB を超えています</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>後で</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>レイアウト</translation>
    </message>
    <message>
        <source>&amp;Leave all-day events out</source>
        <translation>終日の予定を除外(&amp;L)</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>長さ</translation>
    </message>
    <message>
        <source>Line Breaks</source>
        <translation>改行</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>場所</translation>
    </message>
    <message>
        <source>&amp;Locations</source>
        <translation>場所(&amp;L)</translation>
    </message>
    <message>
        <source>Lock End Date</source>
        <translation>終了日をロック</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>ロック中</translation>
    </message>
    <message>
        <source>Longest</source>
        <translation>最長</translation>
    </message>
    <message>
        <source>&amp;Longest event</source>
        <translation>最長の予定(&amp;L)</translation>
    </message>
    <message>
        <source>Looking for newer versions…</source>
        <translation>新しいバージョンを探しています…</translation>
    </message>
    <message>
        <source>&amp;Mail</source>
        <translation>メール(&amp;M)</translation>
    </message>
    <message>
        <source>Mail</source>
        <translation>メール</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>最大</translation>
    </message>
    <message>
        <source>May Quillet read your calendars?</source>
        <translation>Quillet がカレンダーを読み取ることを許可しますか？</translation>
    </message>
    <message>
        <source>Min</source>
        <translation>最小</translation>
    </message>
    <message>
        <source>min</source>
        <translation>分</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>分</translation>
    </message>
    <message>
        <source>minutes divided by 60, rounded to two decimals</source>
        <translation>分÷60、小数2桁に丸めた値</translation>
    </message>
    <message>
        <source>minutes divided by 60, shown with two decimals</source>
        <translation>分÷60、小数2桁で表示</translation>
    </message>
    <message>
        <source>minutes times the rate of a minute, exact</source>
        <translation>分×1分の単価、正確な値</translation>
    </message>
    <message>
        <source>&amp;Money</source>
        <translation>金額(&amp;M)</translation>
    </message>
    <message>
        <source>money is switched off</source>
        <translation>料金はオフです</translation>
    </message>
    <message>
        <source>Money:</source>
        <translation>金額:</translation>
    </message>
    <message>
        <source>&amp;Month</source>
        <translation>月(&amp;M)</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>月</translation>
    </message>
    <message>
        <source>more than 300,000 events; the others are left out</source>
        <translation>予定が 300,000 件を超えているため、残りは省略されます</translation>
    </message>
    <message>
        <source>needs its password, which the calendar program asks for</source>
        <translation>パスワードが必要です。カレンダープログラムで入力してください</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>新規(&amp;N)</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新規</translation>
    </message>
    <message>
        <source>New Group</source>
        <translation>新規グループ</translation>
    </message>
    <message>
        <source>New Layout</source>
        <translation>新規レイアウト</translation>
    </message>
    <message>
        <source>New Settings</source>
        <translation>新規設定</translation>
    </message>
    <message>
        <source>Newer Version</source>
        <translation>新しいバージョン</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>次へ</translation>
    </message>
    <message>
        <source>No calendar in this group</source>
        <translation>このグループにカレンダーはありません</translation>
    </message>
    <message>
        <source>No calendar is ticked</source>
        <translation>チェックされたカレンダーがありません</translation>
    </message>
    <message>
        <source>No calendar program is set up</source>
        <translation>カレンダーソフトが設定されていません</translation>
    </message>
    <message>
        <source>No calendars</source>
        <translation>カレンダーがありません</translation>
    </message>
    <message>
        <source>No event of this period matches the search.</source>
        <translation>この期間には検索に一致する予定がありません。</translation>
    </message>
    <message>
        <source>No events in this period</source>
        <translation>この期間に予定はありません</translation>
    </message>
    <message>
        <source>No mail program could be reached</source>
        <translation>メールソフトに接続できませんでした</translation>
    </message>
    <message>
        <source>No mail program is set up</source>
        <translation>メールソフトが設定されていません</translation>
    </message>
    <message>
        <source>no rate is stored for the calendar “%1”</source>
        <translation>カレンダー「%1」の単価は保存されていません</translation>
    </message>
    <message>
        <source>No software centre was found</source>
        <translation>ソフトウェアセンターが見つかりません</translation>
    </message>
    <message>
        <source>not a calendar file</source>
        <translation>カレンダーファイルではありません</translation>
    </message>
    <message>
        <source>not a file</source>
        <translation>ファイルではありません</translation>
    </message>
    <message>
        <source>not reachable since %1, retrying</source>
        <translation>%1から接続できません。再試行します</translation>
    </message>
    <message>
        <source>not reachable, for there is no session bus</source>
        <translation>セッションバスがないため接続できません</translation>
    </message>
    <message>
        <source>&amp;Notes</source>
        <translation>メモ(&amp;N)</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>メモ</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>見つかりませんでした</translation>
    </message>
    <message>
        <source>N&amp;umber of events</source>
        <translation>予定の数(&amp;U)</translation>
    </message>
    <message>
        <source>Number of reminders</source>
        <translation>リマインダーの数</translation>
    </message>
    <message>
        <source>Occurrence</source>
        <translation>繰り返しの回</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>On how many days there are events</source>
        <translation>予定のある日数</translation>
    </message>
    <message>
        <source>one event cannot be read</source>
        <translation>1 件の予定を読み取れません</translation>
    </message>
    <message>
        <source>One event stands in two rows</source>
        <translation>1件の予定が2行にあります</translation>
    </message>
    <message>
        <source>one event without a start</source>
        <translation>開始のない予定が 1 件</translation>
    </message>
    <message>
        <source>one more line cannot be read</source>
        <translation>ほか 1 行を読み取れません</translation>
    </message>
    <message>
        <source>&amp;One rate for all calendars</source>
        <translation>すべてのカレンダーで同じ単価を使う(&amp;O)</translation>
    </message>
    <message>
        <source>one rate for all calendars</source>
        <translation>すべてのカレンダーに共通の単価</translation>
    </message>
    <message>
        <source>Only files on this computer can be added as calendars.</source>
        <translation>カレンダーとして追加できるのは、このコンピューター上のファイルだけです。</translation>
    </message>
    <message>
        <source>&amp;Open in Calendar</source>
        <translation>カレンダーで開く(&amp;O)</translation>
    </message>
    <message>
        <source>Open Software Centre</source>
        <translation>ソフトウェアセンターを開く</translation>
    </message>
    <message>
        <source>Op&amp;tions…</source>
        <translation>オプション(&amp;T)…</translation>
    </message>
    <message>
        <source>&amp;Period</source>
        <translation>期間(&amp;P)</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>期間</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>設定(&amp;P)…</translation>
    </message>
    <message>
        <source>Preparing the events…</source>
        <translation>予定を準備しています…</translation>
    </message>
    <message>
        <source>Preparing the text…</source>
        <translation>テキストを準備しています…</translation>
    </message>
    <message>
        <source>&amp;Presets…</source>
        <translation>プリセット(&amp;P)…</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>前へ</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>優先度</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>問題</translation>
    </message>
    <message>
        <source>Product</source>
        <translation>積</translation>
    </message>
    <message>
        <source>Put the report into a new message</source>
        <translation>レポートを新しいメールに挿入します</translation>
    </message>
    <message>
        <source>Quillet %1

The hours in your calendars, ready to bill.</source>
        <translation>Quillet %1

カレンダーの時間を、そのまま請求に。</translation>
    </message>
    <message>
        <source>Quillet %1 is available; you have version %2. Your system's software centre installs it.</source>
        <translation>Quillet %1 が利用できます (現在のバージョンは %2)。システムのソフトウェアセンターでインストールできます。</translation>
    </message>
    <message>
        <source>Quillet doesn't have access to your Calendars.</source>
        <translation>Quillet にはカレンダーへのアクセス権がありません。</translation>
    </message>
    <message>
        <source>Quillet is up to date</source>
        <translation>Quillet は最新です</translation>
    </message>
    <message>
        <source>Quillet lists the events of your calendars and adds up their hours. It reads them on this computer only, and changes nothing.</source>
        <translation>Quillet はカレンダーの予定を一覧にして時間を集計します。このコンピューター上で読み取るだけで、何も変更しません。</translation>
    </message>
    <message>
        <source>Quillet may not read your calendars yet</source>
        <translation>Quillet はまだカレンダーを読み取れません</translation>
    </message>
    <message>
        <source>Quillet reads calendars where they are and shows their events beside those of your other calendars. It changes nothing in them.</source>
        <translation>Quillet はカレンダーを元の場所で読み取り、その予定をほかのカレンダーの予定と並べて表示します。内容は変更しません。</translation>
    </message>
    <message>
        <source>Quillet will not be able to format the text for this email due to a known applescript issue caused by Safari 5.0.

If you would like to use the standard text format that Quillet uses, format the font of the new email message to Monaco, size 10.
</source>
        <translation>Safari 5.0 に起因する AppleScript の既知の問題により、このメールの書式を設定できません。

Quillet の標準の書式を使うには、新しいメールのフォントを Monaco、サイズ 10 に設定してください。
</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>Quit Anyway</source>
        <translation>それでも終了</translation>
    </message>
    <message>
        <source>Quoted fields may hold separators and quotation marks</source>
        <translation>引用符で囲まれた項目には、区切り文字や引用符を含められます</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>単価</translation>
    </message>
    <message>
        <source>Rate and cost, while money is shown</source>
        <translation>金額の表示中は単価と料金</translation>
    </message>
    <message>
        <source>Rate of a minute</source>
        <translation>1分の単価</translation>
    </message>
    <message>
        <source>Rates</source>
        <translation>単価</translation>
    </message>
    <message>
        <source>Rates and costs are shown in the window and in exports</source>
        <translation>単価と料金をウィンドウとエクスポートに表示します</translation>
    </message>
    <message>
        <source>Records</source>
        <translation>レコード</translation>
    </message>
    <message>
        <source>&amp;Release Notes</source>
        <translation>リリースノート(&amp;R)</translation>
    </message>
    <message>
        <source>Reminders</source>
        <translation>リマインダー</translation>
    </message>
    <message>
        <source>repetitions too many to show them all</source>
        <translation>繰り返しが多すぎてすべては表示できません</translation>
    </message>
    <message>
        <source>Replace line &amp;breaks by blanks</source>
        <translation>改行を空白に置き換える(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Reset All Titles</source>
        <translation>すべてのタイトルをリセット(&amp;R)</translation>
    </message>
    <message>
        <source>R&amp;estart Quillet</source>
        <translation>Quillet を再起動(&amp;E)</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>集計</translation>
    </message>
    <message>
        <source>rounded down</source>
        <translation>切り捨て</translation>
    </message>
    <message>
        <source>rounded once, at the end</source>
        <translation>丸めは最後に一度だけ</translation>
    </message>
    <message>
        <source>rounded to a whole minute, halves away from zero</source>
        <translation>1分単位に四捨五入</translation>
    </message>
    <message>
        <source>rounded to the nearest, halfway up</source>
        <translation>四捨五入</translation>
    </message>
    <message>
        <source>rounded up</source>
        <translation>切り上げ</translation>
    </message>
    <message>
        <source>Rounding: %1</source>
        <translation>丸め: %1</translation>
    </message>
    <message>
        <source>Safari 5.0 is installed on this Mac</source>
        <translation>この Mac には Safari 5.0 がインストールされています</translation>
    </message>
    <message>
        <source>&amp;Save as CSV…</source>
        <translation>CSV で保存(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Save as New Layout</source>
        <translation>新規レイアウトとして保存(&amp;S)</translation>
    </message>
    <message>
        <source>Save as &amp;TSV…</source>
        <translation>TSV で保存(&amp;T)…</translation>
    </message>
    <message>
        <source>Save Event &amp;Notes…</source>
        <translation>予定のメモを保存(&amp;N)…</translation>
    </message>
    <message>
        <source>Save Text &amp;Report…</source>
        <translation>テキストレポートを保存(&amp;R)…</translation>
    </message>
    <message>
        <source>Save the listed events as a CSV file</source>
        <translation>一覧の予定を CSV ファイルに保存します</translation>
    </message>
    <message>
        <source>Save the listed events as a TSV file</source>
        <translation>一覧の予定を TSV ファイルに保存します</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>保存(&amp;S)…</translation>
    </message>
    <message>
        <source>Say Totals A&amp;gain</source>
        <translation>合計をもう一度読み上げる(&amp;G)</translation>
    </message>
    <message>
        <source>Search Events</source>
        <translation>予定を検索</translation>
    </message>
    <message>
        <source>Search In</source>
        <translation>検索する場所</translation>
    </message>
    <message>
        <source>Search Menu</source>
        <translation>検索メニュー</translation>
    </message>
    <message>
        <source>Search Reminders</source>
        <translation>リマインダーを検索</translation>
    </message>
    <message>
        <source>Select a calendar to set its hourly rate</source>
        <translation>時間単価を設定するカレンダーを選択してください</translation>
    </message>
    <message>
        <source>Select a group to choose its calendars.</source>
        <translation>グループを選ぶと、そのカレンダーを指定できます。</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>すべて選択(&amp;A)</translation>
    </message>
    <message>
        <source>Select &amp;All Events</source>
        <translation>すべての予定を選択(&amp;A)</translation>
    </message>
    <message>
        <source>Selected Events</source>
        <translation>選択した予定</translation>
    </message>
    <message>
        <source>Settings cannot be saved to %1. They are kept until they can.</source>
        <translation>設定を %1 に保存できません。保存できるまで保持されます。</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>割合</translation>
    </message>
    <message>
        <source>Shortest</source>
        <translation>最短</translation>
    </message>
    <message>
        <source>S&amp;hortest event</source>
        <translation>最短の予定(&amp;H)</translation>
    </message>
    <message>
        <source>Show &amp;money</source>
        <translation>金額を表示(&amp;M)</translation>
    </message>
    <message>
        <source>Show the Current Period</source>
        <translation>現在の期間を表示</translation>
    </message>
    <message>
        <source>Show the listed events as a text report</source>
        <translation>一覧の予定をテキストレポートで表示します</translation>
    </message>
    <message>
        <source>Show the notes of the listed events</source>
        <translation>一覧の予定のメモを表示します</translation>
    </message>
    <message>
        <source>Show &amp;time as:</source>
        <translation>時間の表示(&amp;T):</translation>
    </message>
    <message>
        <source>shown with the decimals of the currency</source>
        <translation>通貨の桁数で表示</translation>
    </message>
    <message>
        <source>Shows the days to pick a period from</source>
        <translation>期間を選ぶための日付を表示します</translation>
    </message>
    <message>
        <source>Stands before everything else in the report</source>
        <translation>レポートの先頭に置かれます</translation>
    </message>
    <message>
        <source>Stands behind everything else in the report</source>
        <translation>レポートの末尾に置かれます</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Start Date</source>
        <translation>開始日</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>開始時刻</translation>
    </message>
    <message>
        <source>Start Weekday</source>
        <translation>開始曜日</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>単位</translation>
    </message>
    <message>
        <source>Sum of the rounded values</source>
        <translation>丸めた値の合計</translation>
    </message>
    <message>
        <source>&amp;Summary row</source>
        <translation>集計行(&amp;S)</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>表</translation>
    </message>
    <message>
        <source>Tell the calendar in each heading</source>
        <translation>各見出しにカレンダーを表示します</translation>
    </message>
    <message>
        <source>Tell the date in each heading</source>
        <translation>各見出しに日付を表示します</translation>
    </message>
    <message>
        <source>Tell the location in each heading</source>
        <translation>各見出しに場所を表示します</translation>
    </message>
    <message>
        <source>Tell the title in each heading</source>
        <translation>各見出しにタイトルを表示します</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>Te&amp;xt above the report:</source>
        <translation>レポートの前の文章(&amp;X):</translation>
    </message>
    <message>
        <source>Text below the repo&amp;rt:</source>
        <translation>レポートの後の文章(&amp;R):</translation>
    </message>
    <message>
        <source>&amp;Text Report</source>
        <translation>テキストレポート(&amp;T)</translation>
    </message>
    <message>
        <source>Text Report</source>
        <translation>テキストレポート</translation>
    </message>
    <message>
        <source>Te&amp;xt Report Preferences…</source>
        <translation>テキストレポートの設定(&amp;X)…</translation>
    </message>
    <message>
        <source>Text Report Presets</source>
        <translation>テキストレポートのプリセット</translation>
    </message>
    <message>
        <source>Text Report P&amp;resets…</source>
        <translation>テキストレポートのプリセット(&amp;R)…</translation>
    </message>
    <message>
        <source>Texts that are longer than their column go on in the next line; when off, they are cut</source>
        <translation>列より長い文章は次の行に続きます。オフのときは切り詰められます</translation>
    </message>
    <message>
        <source>the additional date “%1” cannot be read and is left out</source>
        <translation>追加の日付「%1」を読み取れないため除外しました</translation>
    </message>
    <message>
        <source>The calendar could not be added</source>
        <translation>カレンダーを追加できませんでした</translation>
    </message>
    <message>
        <source>the calendar “%1” has no rate, others have one</source>
        <translation>カレンダー「%1」には単価がなく、ほかにはあります</translation>
    </message>
    <message>
        <source>the calendar “%1” has the rate 0, others have more</source>
        <translation>カレンダー「%1」の単価は0で、ほかはそれより上です</translation>
    </message>
    <message>
        <source>The calendar's own identifier of the reminder</source>
        <translation>カレンダーがリマインダーに付けた識別子</translation>
    </message>
    <message>
        <source>The calendars of the chosen group are listed</source>
        <translation>選んだグループのカレンダーが表示されます</translation>
    </message>
    <message>
        <source>the clock changes during “%1”; %2 count</source>
        <translation>「%1」の間に時刻が切り替わります。計算に入るのは%2です</translation>
    </message>
    <message>
        <source>The disk does not take the settings. When Quillet quits now, it forgets what was changed since they were last saved.</source>
        <translation>設定をディスクに書き込めません。今 Quillet を終了すると、最後に保存した後の変更は失われます。</translation>
    </message>
    <message>
        <source>the end “%1” cannot be read and does not count</source>
        <translation>終了「%1」を読み取れないため無視しました</translation>
    </message>
    <message>
        <source>the end “%1” is before the start; no time is counted to it</source>
        <translation>終了「%1」が開始より前のため、時間に数えません</translation>
    </message>
    <message>
        <source>the event ends before it begins, or lies outside the period</source>
        <translation>予定が開始より前に終わるか、期間の外にあります</translation>
    </message>
    <message>
        <source>the exceptions “%1” cannot be followed; what they leave out is shown</source>
        <translation>例外「%1」を解釈できないため、除外される予定も表示します</translation>
    </message>
    <message>
        <source>The first column is the calendar's own identifier of the event</source>
        <translation>最初の列は、カレンダーが予定に付けた識別子です</translation>
    </message>
    <message>
        <source>The first day of the period</source>
        <translation>期間の最初の日</translation>
    </message>
    <message>
        <source>The first line of the file names the columns</source>
        <translation>ファイルの最初の行に列名を書き込みます</translation>
    </message>
    <message>
        <source>The folder “%1” cannot be reached.</source>
        <translation>フォルダー「%1」にアクセスできません。</translation>
    </message>
    <message>
        <source>The hours for which one day of an all-day event counts</source>
        <translation>終日の予定の 1 日分として数える時間数</translation>
    </message>
    <message>
        <source>The last day of the period</source>
        <translation>期間の最後の日</translation>
    </message>
    <message>
        <source>the left-out date “%1” cannot be read; what is on it is shown</source>
        <translation>除外する日付「%1」を読み取れないため、その日の予定も表示します</translation>
    </message>
    <message>
        <source>the length “%1” cannot be read and does not count</source>
        <translation>所要時間「%1」を読み取れないため無視しました</translation>
    </message>
    <message>
        <source>the length “%1” is below zero and counts as none</source>
        <translation>所要時間「%1」が負のため、0 として扱います</translation>
    </message>
    <message>
        <source>the length “%1” is over a hundred years and is cut to that</source>
        <translation>所要時間「%1」が 100 年を超えるため、100 年に切り詰めました</translation>
    </message>
    <message>
        <source>The list of versions cannot be reached. Are you connected to the Internet?</source>
        <translation>バージョンの一覧に接続できません。インターネットに接続していますか？</translation>
    </message>
    <message>
        <source>The list of versions did not come in time. Please try again later.</source>
        <translation>バージョンの一覧が時間内に届きませんでした。後でもう一度お試しください。</translation>
    </message>
    <message>
        <source>The list of versions is not where it should be.</source>
        <translation>バージョンの一覧が所定の場所にありません。</translation>
    </message>
    <message>
        <source>The list of versions was not read, as the connection to it is not secure.</source>
        <translation>接続が安全ではないため、バージョンの一覧を読み込みませんでした。</translation>
    </message>
    <message>
        <source>The mean of an event</source>
        <translation>予定 1 件あたりの平均</translation>
    </message>
    <message>
        <source>the period begins after the event</source>
        <translation>期間は予定より後に始まります</translation>
    </message>
    <message>
        <source>the period cuts “%1”: %2 of %3 count</source>
        <translation>期間が「%1」を切り取ります: %3のうち%2が計算に入ります</translation>
    </message>
    <message>
        <source>the period ends before the event</source>
        <translation>期間は予定より前に終わります</translation>
    </message>
    <message>
        <source>the rate divided by 60, rounded to fifteen decimals</source>
        <translation>単価÷60、小数15桁に丸めた値</translation>
    </message>
    <message>
        <source>The rate of an hour, while all calendars have the same</source>
        <translation>すべてのカレンダーで共通の、1 時間あたりの単価</translation>
    </message>
    <message>
        <source>the rate of the calendar “%1”</source>
        <translation>カレンダー「%1」の単価</translation>
    </message>
    <message>
        <source>the repetition “%1” cannot be followed; only the first event is shown</source>
        <translation>繰り返し「%1」を解釈できないため、最初の予定だけを表示します</translation>
    </message>
    <message>
        <source>the repetitions are too many to count; only the first event is shown</source>
        <translation>繰り返しが多すぎて数えられないため、最初の予定だけを表示します</translation>
    </message>
    <message>
        <source>The settings file %2 could not be read (%1) nor moved aside. Quillet starts with its first-run settings.</source>
        <translation>設定ファイル %2 を読み取ることも (%1)、移動することもできませんでした。Quillet は初回起動時の設定で起動します。</translation>
    </message>
    <message>
        <source>The settings file could not be read (%1). It was kept as %2, and Quillet starts with its first-run settings.</source>
        <translation>設定ファイルを読み取れませんでした (%1)。%2 として残し、Quillet は初回起動時の設定で起動します。</translation>
    </message>
    <message>
        <source>the start “%1” cannot be read; the event is left out</source>
        <translation>開始「%1」を読み取れないため、この予定を除外しました</translation>
    </message>
    <message>
        <source>The sum in hours, minutes or as a duration</source>
        <translation>時間、分、または所要時間での合計</translation>
    </message>
    <message>
        <source>The table has this column only while money is shown</source>
        <translation>この列は金額の表示中だけ表に現れます</translation>
    </message>
    <message>
        <source>The text cannot be written to “%1”: %2</source>
        <translation>テキストを「%1」に書き込めません: %2</translation>
    </message>
    <message>
        <source>the text is not a JSON object</source>
        <translation>テキストが JSON オブジェクトではありません</translation>
    </message>
    <message>
        <source>The text is too long to hand over to your mail program</source>
        <translation>テキストが長すぎてメールソフトに渡せません</translation>
    </message>
    <message>
        <source>The ticked calendars have no events on these days.</source>
        <translation>チェックされたカレンダーには、この期間の予定がありません。</translation>
    </message>
    <message>
        <source>the time zone is not certain; it was read as “%1”, which the calendar names elsewhere</source>
        <translation>タイムゾーンが確かではありません。カレンダーの別の箇所にある「%1」として読みました</translation>
    </message>
    <message>
        <source>The titles of the ticked calendars</source>
        <translation>チェックされたカレンダーのタイトル</translation>
    </message>
    <message>
        <source>There is a file named %1 already. Replace it?</source>
        <translation>%1 という名前のファイルがすでにあります。置き換えますか？</translation>
    </message>
    <message>
        <source>These hold for CSV and TSV files alike.</source>
        <translation>CSV ファイルと TSV ファイルの両方に適用されます。</translation>
    </message>
    <message>
        <source>This group stands for all calendars.</source>
        <translation>このグループはすべてのカレンダーを表します。</translation>
    </message>
    <message>
        <source>This version lists events only. What you choose here is kept for exports of reminders.</source>
        <translation>このバージョンが一覧にするのは予定だけです。ここでの選択は、リマインダーのエクスポートのために保存されます。</translation>
    </message>
    <message>
        <source>Tick All Calendars</source>
        <translation>すべてのカレンダーをチェック</translation>
    </message>
    <message>
        <source>&amp;Tick or Clear All</source>
        <translation>すべてのチェックを切り替え(&amp;T)</translation>
    </message>
    <message>
        <source>Tick the calendars that belong to it.</source>
        <translation>このグループに入れるカレンダーにチェックを付けてください。</translation>
    </message>
    <message>
        <source>Tick the calendars whose time counts.</source>
        <translation>時間を数えるカレンダーをチェックしてください。</translation>
    </message>
    <message>
        <source>Tick the columns that the table shows. Their titles also stand in reports and exports.</source>
        <translation>表に表示する列をチェックしてください。列のタイトルはレポートとエクスポートにも使われます。</translation>
    </message>
    <message>
        <source>Time as &amp;Duration</source>
        <translation>所要時間で表示(&amp;D)</translation>
    </message>
    <message>
        <source>Time as &amp;Hours</source>
        <translation>時間で表示(&amp;H)</translation>
    </message>
    <message>
        <source>Time as M&amp;inutes</source>
        <translation>分で表示(&amp;I)</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>Title of “%1”</source>
        <translation>「%1」のタイトル</translation>
    </message>
    <message>
        <source>&amp;Titles</source>
        <translation>タイトル(&amp;T)</translation>
    </message>
    <message>
        <source>too large for the memory that is left</source>
        <translation>残りのメモリーに収まりません</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>ツールバー</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>合計</translation>
    </message>
    <message>
        <source>&amp;Total time</source>
        <translation>合計時間(&amp;T)</translation>
    </message>
    <message>
        <source>Total: %1</source>
        <translation>合計: %1</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>再試行</translation>
    </message>
    <message>
        <source>TSV</source>
        <translation>TSV</translation>
    </message>
    <message>
        <source>unknown time zone “%1”, taken as local time</source>
        <translation>不明なタイムゾーン「%1」をローカル時刻として扱いました</translation>
    </message>
    <message>
        <source>Unlocked</source>
        <translation>ロック解除</translation>
    </message>
    <message>
        <source>Updating…</source>
        <translation>更新しています…</translation>
    </message>
    <message>
        <source>URL</source>
        <translation>URL</translation>
    </message>
    <message>
        <source>UTF-8 suits nearly every program; some spreadsheets want UTF-16</source>
        <translation>ほとんどのプログラムには UTF-8 が適していますが、一部の表計算ソフトには UTF-16 が必要です</translation>
    </message>
    <message>
        <source>Version %1 is the newest one.</source>
        <translation>バージョン %1 が最新です。</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Web Site</source>
        <translation>ウェブサイト(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Week</source>
        <translation>週(&amp;W)</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>週</translation>
    </message>
    <message>
        <source>what a day has of a title is rounded as one</source>
        <translation>同じ日の同じタイトルをまとめて丸めます</translation>
    </message>
    <message>
        <source>what adding up the rows as shown would give</source>
        <translation>表示された行を足した値</translation>
    </message>
    <message>
        <source>What came is no list of versions.</source>
        <translation>受信した内容はバージョンの一覧ではありません。</translation>
    </message>
    <message>
        <source>What came is too large for a list of versions.</source>
        <translation>受信した内容はバージョンの一覧としては大きすぎます。</translation>
    </message>
    <message>
        <source>What is new</source>
        <translation>新機能</translation>
    </message>
    <message>
        <source>what lasts past midnight is cut there</source>
        <translation>真夜中を越えるものはそこで分けられます</translation>
    </message>
    <message>
        <source>What would you like to add?</source>
        <translation>何を追加しますか？</translation>
    </message>
    <message>
        <source>When off, applying a layout leaves the titles as they are</source>
        <translation>オフのときは、レイアウトを適用してもタイトルは変わりません</translation>
    </message>
    <message>
        <source>When off, each calendar has a rate of its own: select the calendar in the main window to set it</source>
        <translation>オフのときは、カレンダーごとに単価があります。メインウィンドウでカレンダーを選択して設定してください</translation>
    </message>
    <message>
        <source>where the series has it</source>
        <translation>繰り返しでの位置</translation>
    </message>
    <message>
        <source>where the series has it; it was moved</source>
        <translation>繰り返しでの位置。移動されています</translation>
    </message>
    <message>
        <source>Whether the reminder is done</source>
        <translation>リマインダーが完了したかどうか</translation>
    </message>
    <message>
        <source>Whether there is a newer version could not be found out</source>
        <translation>新しいバージョンがあるかどうかを確認できませんでした</translation>
    </message>
    <message>
        <source>which occurrence it replaces cannot be read (“%1”); the series is shown without this change</source>
        <translation>どの回を置き換えるのか読み取れません（「%1」）。この変更なしで表示します</translation>
    </message>
    <message>
        <source>Which time column the table, the results and reports show</source>
        <translation>表、集計、レポートに表示する時間の列</translation>
    </message>
    <message>
        <source>While locked, the end moves with the start</source>
        <translation>ロック中は、終了日が開始日とともに動きます</translation>
    </message>
    <message>
        <source>&amp;Wrap long texts</source>
        <translation>長い文章を折り返す(&amp;W)</translation>
    </message>
    <message>
        <source>Write a &amp;header record</source>
        <translation>ヘッダー行を書き込む(&amp;H)</translation>
    </message>
    <message>
        <source>Write the event's &amp;identifier</source>
        <translation>予定の識別子を書き込む(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Year</source>
        <translation>年(&amp;Y)</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>年</translation>
    </message>
    <message>
        <source>Your desktop answered: %1</source>
        <translation>デスクトップからの応答: %1</translation>
    </message>
    <message>
        <source>Your events appear here once you allow it.</source>
        <translation>許可すると、ここに予定が表示されます。</translation>
    </message>
    <message>
        <source>Your last changes cannot be saved</source>
        <translation>最後の変更を保存できません</translation>
    </message>
    <message>
        <source>“%1” and “%2” overlap for %3</source>
        <translation>「%1」と「%2」が%3重なっています</translation>
    </message>
    <message>
        <source>“%1” cannot be added: %2</source>
        <translation>「%1」を追加できません: %2</translation>
    </message>
    <message>
        <source>“%1” cannot be read.</source>
        <translation>「%1」を読み取れません。</translation>
    </message>
    <message>
        <source>“%1” cannot be run.</source>
        <translation>「%1」を実行できません。</translation>
    </message>
    <message>
        <source>“%1” could not be started</source>
        <translation>「%1」を起動できませんでした</translation>
    </message>
    <message>
        <source>“%1” does not exist.</source>
        <translation>「%1」は存在しません。</translation>
    </message>
    <message>
        <source>“%1” ends before it begins</source>
        <translation>「%1」は開始より前に終わっています</translation>
    </message>
    <message>
        <source>“%1” has %2 at night</source>
        <translation>「%1」は夜間に%2あります</translation>
    </message>
    <message>
        <source>“%1” has %2 on a holiday</source>
        <translation>「%1」は祝日に%2あります</translation>
    </message>
    <message>
        <source>“%1” has %2 on a weekend</source>
        <translation>「%1」は週末に%2あります</translation>
    </message>
    <message>
        <source>“%1” has no length</source>
        <translation>「%1」には長さがありません</translation>
    </message>
    <message>
        <source>“%1” holds the calendars themselves.</source>
        <translation>「%1」はカレンダー自体の保存場所です。</translation>
    </message>
    <message>
        <source>“%1” is also in “%2”, in a newer version, which counts</source>
        <translation>「%1」は「%2」にも新しい版があり、そちらを数えます</translation>
    </message>
    <message>
        <source>“%1” is among the calendars already.</source>
        <translation>「%1」はすでにカレンダーに含まれています。</translation>
    </message>
    <message>
        <source>“%1” is in the calendars “%2” and “%3”</source>
        <translation>「%1」はカレンダー「%2」と「%3」にあります</translation>
    </message>
    <message>
        <source>“%1” is neither a folder nor an .ics file.</source>
        <translation>「%1」はフォルダーでも .ics ファイルでもありません。</translation>
    </message>
    <message>
        <source>“%1” is not a rate; the old one was kept.</source>
        <translation>「%1」は単価ではありません。前の値を残しました。</translation>
    </message>
    <message>
        <source>“%1” is there twice at once, for %2</source>
        <translation>「%1」が同時に2件あり、%2重なっています</translation>
    </message>
    <message>
        <source>“%1” lasts %2, longer than a working day of %3</source>
        <translation>「%1」は%2で、1日の勤務時間%3を超えています</translation>
    </message>
    <message>
        <source>“%1” lasts all day and counts %2</source>
        <translation>「%1」は終日で、%2と数えられます</translation>
    </message>
</context>
</TS>
