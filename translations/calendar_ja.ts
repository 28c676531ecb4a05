<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>AllDayStrip</name>
    <message>
        <location filename="../src/ui/AllDayStrip.cpp" line="187"/>
        <location filename="../src/ui/TimelineView.cpp" line="123"/>
        <source>all-day</source>
        <translation>終日</translation>
    </message>
    <message>
        <location filename="../src/ui/AllDayStrip.cpp" line="235"/>
        <source>+%1 more</source>
        <translation>他%1件</translation>
    </message>
    <message>
        <location filename="../src/ui/AllDayStrip.cpp" line="237"/>
        <source>+%1</source>
        <translation>+%1</translation>
    </message>
</context>
<context>
    <name>Application</name>
    <message>
        <location filename="../src/app/Application.cpp" line="97"/>
        <source>Database Error</source>
        <translation>データベースエラー</translation>
    </message>
    <message>
        <location filename="../src/app/Application.cpp" line="98"/>
        <source>Failed to initialize the database.

Data directory: %1

Please check file permissions and try again.</source>
        <translation>データベースを初期化できませんでした。

データフォルダ: %1

ファイルのアクセス権を確認して、もう一度お試しください。</translation>
    </message>
</context>
<context>
    <name>CalendarChoice</name>
    <message>
        <location filename="../src/storage/CalendarChoice.cpp" line="27"/>
        <source>There is no calendar %1.</source>
        <translation>カレンダー %1 はありません。</translation>
    </message>
    <message>
        <location filename="../src/storage/CalendarChoice.cpp" line="29"/>
        <source>The calendar %1 is read-only.</source>
        <translation>カレンダー %1 は読み取り専用です。</translation>
    </message>
    <message>
        <location filename="../src/storage/CalendarChoice.cpp" line="48"/>
        <source>There is no calendar to add events to.</source>
        <translation>イベントを追加できるカレンダーがありません。</translation>
    </message>
</context>
<context>
    <name>CalendarList</name>
    <message>
        <location filename="../src/ui/CalendarList.cpp" line="19"/>
        <source>Calendars</source>
        <translation>カレンダー</translation>
    </message>
    <message>
        <location filename="../src/ui/CalendarList.cpp" line="118"/>
        <source>%1: shown (click to hide)</source>
        <translation>%1: 表示中 (クリックで非表示)</translation>
    </message>
    <message>
        <location filename="../src/ui/CalendarList.cpp" line="119"/>
        <source>%1: hidden (click to show)</source>
        <translation>%1: 非表示 (クリックで表示)</translation>
    </message>
    <message>
        <location filename="../src/ui/CalendarList.cpp" line="121"/>
        <source>Read-only</source>
        <translation>読み取り専用</translation>
    </message>
</context>
<context>
    <name>ColorSwatchPicker</name>
    <message>
        <location filename="../src/ui/ColorSwatchPicker.cpp" line="35"/>
        <location filename="../src/ui/ColorSwatchPicker.cpp" line="103"/>
        <source>Event colour</source>
        <translation>イベントの色</translation>
    </message>
    <message>
        <location filename="../src/ui/ColorSwatchPicker.cpp" line="223"/>
        <source>Calendar colour</source>
        <translation>カレンダーの色</translation>
    </message>
    <message>
        <location filename="../src/ui/ColorSwatchPicker.cpp" line="225"/>
        <source>Other colour…</source>
        <translation>その他の色…</translation>
    </message>
</context>
<context>
    <name>EventEditor</name>
    <message>
        <location filename="../src/ui/EventEditor.cpp" line="98"/>
        <source>The event no longer exists.</source>
        <translation>このイベントはもう存在しません。</translation>
    </message>
    <message>
        <location filename="../src/ui/EventEditor.cpp" line="113"/>
        <source>The series of this event no longer exists.</source>
        <translation>このイベントの繰り返しシリーズはもう存在しません。</translation>
    </message>
    <message>
        <location filename="../src/ui/EventEditor.cpp" line="121"/>
        <location filename="../src/ui/EventEditor.cpp" line="144"/>
        <location filename="../src/ui/EventEditor.cpp" line="271"/>
        <location filename="../src/ui/EventEditor.cpp" line="319"/>
        <location filename="../src/ui/EventEditor.cpp" line="336"/>
        <source>The event &quot;%1&quot; could not be saved.</source>
        <translation>イベント &quot;%1&quot; を保存できませんでした。</translation>
    </message>
    <message>
        <location filename="../src/ui/EventEditor.cpp" line="155"/>
        <source>Moved &quot;%1&quot;</source>
        <translation>&quot;%1&quot; を移動</translation>
    </message>
    <message>
        <location filename="../src/ui/EventEditor.cpp" line="162"/>
        <source>Resized &quot;%1&quot;</source>
        <translation>&quot;%1&quot; の時間を変更</translation>
    </message>
    <message>
        <location filename="../src/ui/EventEditor.cpp" line="372"/>
        <source>Deleted &quot;%1&quot;</source>
        <translation>&quot;%1&quot; を削除</translation>
    </message>
    <message>
        <location filename="../src/ui/EventEditor.cpp" line="377"/>
        <source>The event &quot;%1&quot; could not be deleted.</source>
        <translation>イベント &quot;%1&quot; を削除できませんでした。</translation>
    </message>
</context>
<context>
    <name>EventFormDialog</name>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="181"/>
        <source>Add title</source>
        <translation>タイトルを追加</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="188"/>
        <source>Templates</source>
        <translation>テンプレート</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="225"/>
        <source>A repeat rule: FREQ=DAILY, WEEKLY, MONTHLY or YEARLY, with INTERVAL, COUNT, UNTIL and BYDAY</source>
        <translation>繰り返しルール: FREQ=DAILY、WEEKLY、MONTHLY、YEARLY のいずれかに INTERVAL、COUNT、UNTIL、BYDAY を組み合わせます</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="260"/>
        <location filename="../src/ui/EventFormDialog.cpp" line="790"/>
        <source>Add location</source>
        <translation>場所を追加</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="267"/>
        <location filename="../src/ui/EventFormDialog.cpp" line="791"/>
        <source>Add description</source>
        <translation>説明を追加</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="284"/>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="411"/>
        <source>Does not repeat</source>
        <translation>繰り返さない</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="413"/>
        <source>Custom…</source>
        <translation>カスタム…</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="415"/>
        <source>Every weekday (Monday to Friday)</source>
        <translation>毎週平日 (月曜日～金曜日)</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="475"/>
        <source>There is no calendar to add events to.</source>
        <translation>イベントを追加できるカレンダーがありません。</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="481"/>
        <source>This calendar repeats by FREQ=DAILY, FREQ=WEEKLY, FREQ=MONTHLY or FREQ=YEARLY; start the rule with one of them.</source>
        <translation>このカレンダーの繰り返しは FREQ=DAILY、FREQ=WEEKLY、FREQ=MONTHLY、FREQ=YEARLY のいずれかで指定します。ルールはそのいずれかで始めてください。</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="512"/>
        <source>(No title)</source>
        <translation>(タイトルなし)</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="616"/>
        <source>Save repeating event</source>
        <translation>繰り返しイベントを保存</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="619"/>
        <source>A new repeat applies to this and following events, or to all events.</source>
        <translation>新しい繰り返し設定は、このイベント以降、またはすべてのイベントに適用されます。</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="636"/>
        <location filename="../src/ui/EventFormDialog.cpp" line="647"/>
        <source>New Event</source>
        <translation>新規イベント</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="747"/>
        <source>Event Details</source>
        <translation>イベントの詳細</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="747"/>
        <source>Edit Event</source>
        <translation>イベントを編集</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="763"/>
        <source>A repeating event stays in its calendar.</source>
        <translation>繰り返しイベントは別のカレンダーに移動できません。</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="786"/>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="786"/>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="801"/>
        <source>This event is in &quot;%1&quot;, which is read-only.</source>
        <translation>このイベントは読み取り専用の &quot;%1&quot; にあります。</translation>
    </message>
</context>
<context>
    <name>EventImport</name>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="52"/>
        <source>Could not read the calendar %1: %2</source>
        <translation>カレンダー %1 を読み取れませんでした: %2</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="54"/>
        <source>There is no calendar %1.</source>
        <translation>カレンダー %1 はありません。</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="56"/>
        <source>The calendar %1 is read-only.</source>
        <translation>カレンダー %1 は読み取り専用です。</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="144"/>
        <source>The file %1 is empty.</source>
        <translation>ファイル %1 は空です。</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="148"/>
        <source>The file %1 is not an iCalendar file.</source>
        <translation>ファイル %1 は iCalendar ファイルではありません。</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="153"/>
        <source>The file %1 holds no events.</source>
        <translation>ファイル %1 にはイベントがありません。</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="180"/>
        <source>Could not start the import: %1</source>
        <translation>インポートを開始できませんでした: %1</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="212"/>
        <source>Could not store the event &quot;%1&quot; from %2; nothing was imported.</source>
        <translation>%2 のイベント &quot;%1&quot; を保存できなかったため、何もインポートされませんでした。</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="220"/>
        <source>Could not save the import: %1</source>
        <translation>インポート結果を保存できませんでした: %1</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="231"/>
        <source>Cannot read %1: %2</source>
        <translation>%1 を読み取れません: %2</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="239"/>
        <source>Imported 1 event into %1.</source>
        <translation>%1 にイベントを1件インポートしました。</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="240"/>
        <source>Imported %1 events into %2.</source>
        <translation>%2 にイベントを%1件インポートしました。</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="244"/>
        <source>Updated 1 existing event in %1.</source>
        <translation>%1 の既存のイベントを1件更新しました。</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="245"/>
        <source>Updated %1 existing events in %2.</source>
        <translation>%2 の既存のイベントを%1件更新しました。</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="247"/>
        <source>Imported %1 and updated %2 in %3.</source>
        <translation>%3 に%1件をインポートし、%2件を更新しました。</translation>
    </message>
</context>
<context>
    <name>EventPopover</name>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="72"/>
        <source>Going</source>
        <translation>参加</translation>
    </message>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="74"/>
        <source>Not going</source>
        <translation>不参加</translation>
    </message>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="76"/>
        <source>Maybe</source>
        <translation>未定</translation>
    </message>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="78"/>
        <source>Delegated</source>
        <translation>委任</translation>
    </message>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="79"/>
        <source>Awaiting reply</source>
        <translation>返信待ち</translation>
    </message>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="204"/>
        <location filename="../src/ui/EventPopover.cpp" line="432"/>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="206"/>
        <source>Delete this event (Delete)</source>
        <translation>このイベントを削除 (Delete)</translation>
    </message>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="207"/>
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="209"/>
        <source>Open the event to change it (Enter)</source>
        <translation>イベントを開いて変更 (Enter)</translation>
    </message>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="315"/>
        <source>%1 (read-only)</source>
        <translation>%1 (読み取り専用)</translation>
    </message>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="325"/>
        <source>Join online meeting</source>
        <translation>オンライン会議に参加</translation>
    </message>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="342"/>
        <source>and %1 more</source>
        <translation>他%1人</translation>
    </message>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="425"/>
        <source>Delete repeating event</source>
        <translation>繰り返しイベントを削除</translation>
    </message>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="428"/>
        <source>Delete event?</source>
        <translation>イベントを削除しますか?</translation>
    </message>
</context>
<context>
    <name>EventTimeEditor</name>
    <message>
        <location filename="../src/ui/EventTimeEditor.cpp" line="48"/>
        <source>ddd, MMM d, yyyy</source>
        <translation>yyyy年M月d日(ddd)</translation>
    </message>
    <message>
        <location filename="../src/ui/EventTimeEditor.cpp" line="75"/>
        <source>All day</source>
        <translation>終日</translation>
    </message>
    <message>
        <location filename="../src/ui/EventTimeEditor.cpp" line="87"/>
        <source>Time zone of the event: its times are shown and edited in it</source>
        <translation>イベントのタイムゾーン: 時刻はこのタイムゾーンで表示・編集されます</translation>
    </message>
    <message>
        <location filename="../src/ui/EventTimeEditor.cpp" line="254"/>
        <location filename="../src/ui/EventTimeEditor.cpp" line="258"/>
        <source>The event ends before it starts.</source>
        <translation>イベントの終了が開始より前になっています。</translation>
    </message>
    <message>
        <location filename="../src/ui/EventTimeEditor.cpp" line="256"/>
        <source>&quot;%1&quot; is not a time zone this computer knows.</source>
        <translation>&quot;%1&quot; はこのコンピュータが認識できないタイムゾーンです。</translation>
    </message>
    <message>
        <location filename="../src/ui/EventTimeEditor.cpp" line="388"/>
        <source>%1 in your time zone</source>
        <translation>あなたのタイムゾーンでは %1</translation>
    </message>
</context>
<context>
    <name>EventWording</name>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="107"/>
        <source>%1 · All day</source>
        <translation>%1 · 終日</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="108"/>
        <source>%1 – %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="113"/>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="119"/>
        <source>%1 · %2 – %3</source>
        <translation>%1 · %2 – %3</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="123"/>
        <source>%1, %2 – %3, %4</source>
        <translation>%1 %2 – %3 %4</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="148"/>
        <source>Every %1 days, on %2</source>
        <translation>%1日ごと (%2)</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="70"/>
        <location filename="../src/ui/EventWording.cpp" line="153"/>
        <source>Every day</source>
        <translation>毎日</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="28"/>
        <source>%1, %2 %3</source>
        <translation>%2%3日 (%1)</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="29"/>
        <source>%1, %2 %3, %4</source>
        <translation>%4年%2%3日 (%1)</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="34"/>
        <source>%1 %2</source>
        <translation>%1%2日</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="46"/>
        <source>%1 and %2</source>
        <translation>%1と%2</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="46"/>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="70"/>
        <source>Every %1 days</source>
        <translation>%1日ごと</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="72"/>
        <source>Every weekday</source>
        <translation>毎週平日</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="74"/>
        <source>Every week on %1</source>
        <translation>毎週%1</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="75"/>
        <source>Every %1 weeks on %2</source>
        <translation>%1週間ごとの%2</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="153"/>
        <source>Every %1 weeks, every day</source>
        <translation>%1週間ごと、毎日</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="158"/>
        <source>Every month on day %1</source>
        <translation>毎月%1日</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="159"/>
        <source>Every %1 months on day %2</source>
        <translation>%1か月ごとの%2日</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="162"/>
        <source>Every year on %1</source>
        <translation>毎年%1</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="163"/>
        <source>Every %1 years on %2</source>
        <translation>%1年ごとの%2</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="169"/>
        <source>%1, once</source>
        <translation>%1、1回</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="171"/>
        <source>%1, %2 times</source>
        <translation>%1、%2回</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="173"/>
        <source>%1, until %2</source>
        <translation>%1、%2まで</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="174"/>
        <source>MMMM d, yyyy</source>
        <translation>yyyy年M月d日</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="180"/>
        <source>Delete &quot;%1&quot;? You can undo with %2.</source>
        <translation>&quot;%1&quot; を削除しますか? %2 で元に戻せます。</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="186"/>
        <source>(No title)</source>
        <translation>(タイトルなし)</translation>
    </message>
</context>
<context>
    <name>IcsImportFlow</name>
    <message>
        <location filename="../src/ui/IcsImportFlow.cpp" line="53"/>
        <source>Import 1 event from &quot;%1&quot; into:</source>
        <translation>&quot;%1&quot; のイベント1件のインポート先:</translation>
    </message>
    <message>
        <location filename="../src/ui/IcsImportFlow.cpp" line="54"/>
        <source>Import %1 events from &quot;%2&quot; into:</source>
        <translation>&quot;%2&quot; のイベント%1件のインポート先:</translation>
    </message>
    <message>
        <location filename="../src/ui/IcsImportFlow.cpp" line="66"/>
        <source>Import</source>
        <translation>インポート</translation>
    </message>
    <message>
        <location filename="../src/ui/IcsImportFlow.cpp" line="82"/>
        <source>Import Calendar File</source>
        <translation>カレンダーファイルをインポート</translation>
    </message>
    <message>
        <location filename="../src/ui/IcsImportFlow.cpp" line="84"/>
        <source>iCalendar files (*.ics *.ICS);;All files (*)</source>
        <translation>iCalendar ファイル (*.ics *.ICS);;すべてのファイル (*)</translation>
    </message>
    <message>
        <location filename="../src/ui/IcsImportFlow.cpp" line="92"/>
        <source>Couldn&apos;t open file</source>
        <translation>ファイルを開けませんでした</translation>
    </message>
    <message>
        <location filename="../src/ui/IcsImportFlow.cpp" line="93"/>
        <source>Couldn&apos;t open &quot;%1&quot; for reading.</source>
        <translation>&quot;%1&quot; を読み取り用に開けませんでした。</translation>
    </message>
    <message>
        <location filename="../src/ui/IcsImportFlow.cpp" line="101"/>
        <source>Nothing to import</source>
        <translation>インポートするものがありません</translation>
    </message>
    <message>
        <location filename="../src/ui/IcsImportFlow.cpp" line="102"/>
        <source>No events found in &quot;%1&quot;.</source>
        <translation>&quot;%1&quot; にイベントが見つかりませんでした。</translation>
    </message>
    <message>
        <location filename="../src/ui/IcsImportFlow.cpp" line="111"/>
        <source>No calendars configured</source>
        <translation>カレンダーが設定されていません</translation>
    </message>
    <message>
        <location filename="../src/ui/IcsImportFlow.cpp" line="112"/>
        <source>Add a writable calendar first; then re-import &quot;%1&quot;.</source>
        <translation>先に書き込み可能なカレンダーを追加してから、&quot;%1&quot; をもう一度インポートしてください。</translation>
    </message>
    <message>
        <location filename="../src/ui/IcsImportFlow.cpp" line="124"/>
        <source>Importing events…</source>
        <translation>イベントをインポートしています…</translation>
    </message>
    <message>
        <location filename="../src/ui/IcsImportFlow.cpp" line="51"/>
        <location filename="../src/ui/IcsImportFlow.cpp" line="125"/>
        <location filename="../src/ui/IcsImportFlow.cpp" line="134"/>
        <location filename="../src/ui/IcsImportFlow.cpp" line="137"/>
        <source>Import events</source>
        <translation>イベントのインポート</translation>
    </message>
</context>
<context>
    <name>KettUpdate::UpdateDialog</name>
    <message>
        <location filename="../src/ui/UpdateDialog.cpp" line="17"/>
        <source>Update available</source>
        <translation>アップデートがあります</translation>
    </message>
    <message>
        <location filename="../src/ui/UpdateDialog.cpp" line="19"/>
        <source>%1 %2 is available. You have %3.</source>
        <translation>%1 %2 が利用可能です。現在のバージョンは %3 です。</translation>
    </message>
    <message>
        <location filename="../src/ui/UpdateDialog.cpp" line="28"/>
        <source>Download</source>
        <translation>ダウンロード</translation>
    </message>
    <message>
        <location filename="../src/ui/UpdateDialog.cpp" line="29"/>
        <source>Later</source>
        <translation>後で</translation>
    </message>
</context>
<context>
    <name>MainToolbar</name>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="24"/>
        <source>Show or hide the sidebar</source>
        <translation>サイドバーの表示/非表示</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="26"/>
        <source>Today</source>
        <translation>今日</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="28"/>
        <source>Go to today (T)</source>
        <translation>今日に移動 (T)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="29"/>
        <source>Previous (Left)</source>
        <translation>前へ (Left)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="30"/>
        <source>Next (Right)</source>
        <translation>次へ (Right)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="33"/>
        <source>Back (Alt+Left)</source>
        <translation>戻る (Alt+Left)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="34"/>
        <source>Forward (Alt+Right)</source>
        <translation>進む (Alt+Right)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="47"/>
        <source>Day</source>
        <translation>日</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="47"/>
        <source>Day view (D)</source>
        <translation>日表示 (D)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="48"/>
        <source>Week</source>
        <translation>週</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="48"/>
        <source>Week view (W)</source>
        <translation>週表示 (W)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="49"/>
        <source>Month</source>
        <translation>月</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="49"/>
        <source>Month view (M)</source>
        <translation>月表示 (M)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="53"/>
        <source> days</source>
        <translation> 日間</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="54"/>
        <source>Number of days in the multi-day view</source>
        <translation>複数日表示の日数</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="59"/>
        <source>Quick add: Lunch with Sam tomorrow at 12:30</source>
        <translation>クイック追加: Lunch with Sam tomorrow at 12:30</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="57"/>
        <location filename="../src/ui/MainWindow.cpp" line="407"/>
        <source>Kettlebrook Calendar</source>
        <translation>Kettlebrook Calendar</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="105"/>
        <source>%1 hidden by filter rules</source>
        <translation>フィルタールールで非表示: %1件</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="108"/>
        <source>Undone: %1</source>
        <translation>元に戻しました: %1</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="150"/>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="151"/>
        <source>&amp;New Event…</source>
        <translation>新規イベント(&amp;N)…</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="153"/>
        <source>&amp;Import Calendar File…</source>
        <translation>カレンダーファイルをインポート(&amp;I)…</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="159"/>
        <source>&amp;Manage Calendars…</source>
        <translation>カレンダーを管理(&amp;M)…</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="161"/>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="164"/>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="165"/>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="170"/>
        <source>&amp;Quick Add</source>
        <translation>クイック追加(&amp;Q)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="176"/>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="183"/>
        <source>&amp;Today</source>
        <translation>今日(&amp;T)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="184"/>
        <source>&amp;Previous</source>
        <translation>前へ(&amp;P)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="185"/>
        <source>&amp;Next</source>
        <translation>次へ(&amp;N)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="187"/>
        <source>&amp;Day</source>
        <translation>日(&amp;D)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="188"/>
        <source>&amp;Week</source>
        <translation>週(&amp;W)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="189"/>
        <source>&amp;Month</source>
        <translation>月(&amp;M)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="191"/>
        <source>&amp;Back</source>
        <translation>戻る(&amp;B)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="192"/>
        <source>&amp;Forward</source>
        <translation>進む(&amp;F)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="193"/>
        <source>Zoom &amp;In</source>
        <translation>拡大(&amp;I)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="194"/>
        <source>Zoom &amp;Out</source>
        <translation>縮小(&amp;O)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="197"/>
        <source>Show Week &amp;Numbers</source>
        <translation>週番号(&amp;K)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="202"/>
        <source>24-Hour Clock</source>
        <translation>24時間表示</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="209"/>
        <source>T&amp;heme</source>
        <translation>テーマ(&amp;H)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="212"/>
        <source>Light</source>
        <translation>ライト</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="212"/>
        <source>Dark</source>
        <translation>ダーク</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="212"/>
        <source>System</source>
        <translation>システム</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="221"/>
        <source>&amp;Tools</source>
        <translation>ツール(&amp;T)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="222"/>
        <source>Add &amp;Sample Data</source>
        <translation>サンプルデータを追加(&amp;S)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="223"/>
        <source>&amp;Clear Sample Data…</source>
        <translation>サンプルデータを削除(&amp;C)…</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="225"/>
        <source>Send &amp;Test Notification</source>
        <translation>テスト通知を送信(&amp;T)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="229"/>
        <source>Notifications need a system tray, and this desktop has none.</source>
        <translation>通知にはシステムトレイが必要ですが、このデスクトップにはありません。</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="232"/>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="233"/>
        <source>&amp;About Kettlebrook Calendar</source>
        <translation>Kettlebrook Calendar について(&amp;A)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="234"/>
        <source>About Kettlebrook Calendar</source>
        <translation>Kettlebrook Calendar について</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="235"/>
        <source>&lt;b&gt;Kettlebrook Calendar&lt;/b&gt; %1&lt;br&gt;Your calendars and tasks, on your desktop.</source>
        <translation>&lt;b&gt;Kettlebrook Calendar&lt;/b&gt; %1&lt;br&gt;カレンダーとタスクを、あなたのデスクトップに。</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="281"/>
        <source>Kettlebrook Calendar is still running</source>
        <translation>Kettlebrook Calendar は実行中です</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="282"/>
        <source>Reminders keep coming. Click the tray icon to open the calendar.</source>
        <translation>リマインダーは引き続き通知されます。トレイアイコンをクリックするとカレンダーが開きます。</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="388"/>
        <source>MMMM yyyy</source>
        <extracomment>Date format (QDate::toString) of the month view&apos;s title</extracomment>
        <translation>yyyy年M月</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="391"/>
        <source>dddd, MMMM d, yyyy</source>
        <extracomment>Date format (QDate::toString) of the day view&apos;s title</extracomment>
        <translation>yyyy年M月d日 dddd</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="397"/>
        <location filename="../src/ui/MainWindow.cpp" line="398"/>
        <source>MMM d, yyyy</source>
        <extracomment>Date format (QDate::toString) of both ends of a range across two years</extracomment>
        <translation>yyyy年M月d日</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="400"/>
        <source>MMM d</source>
        <comment>first day of a range across two months</comment>
        <translation>yyyy年M月d日</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="401"/>
        <source>MMM d, yyyy</source>
        <comment>last day of a range across two months</comment>
        <translation>M月d日</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="403"/>
        <source>MMMM d</source>
        <comment>first day of a range within one month</comment>
        <translation>yyyy年M月d日</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="404"/>
        <source>d, yyyy</source>
        <comment>last day of a range within one month</comment>
        <translation>d日</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="448"/>
        <source>Quick-add ignored: no calendars configured.</source>
        <translation>クイック追加を無視しました: カレンダーが設定されていません。</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="453"/>
        <source>Quick-add couldn&apos;t parse: &quot;%1&quot;</source>
        <translation>クイック追加で解釈できませんでした: &quot;%1&quot;</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="457"/>
        <source>Quick-add couldn&apos;t save: &quot;%1&quot;</source>
        <translation>クイック追加で保存できませんでした: &quot;%1&quot;</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="460"/>
        <source>Added: %1</source>
        <translation>追加しました: %1</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="517"/>
        <source>Nothing to sync: this calendar has no remote accounts yet.</source>
        <translation>同期するものがありません: このカレンダーにはまだリモートアカウントがありません。</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="523"/>
        <source>Sample data added.</source>
        <translation>サンプルデータを追加しました。</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="528"/>
        <source>Clear sample data?</source>
        <translation>サンプルデータを削除しますか?</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="529"/>
        <source>This removes the sample calendars with all their events and tasks.</source>
        <translation>サンプルカレンダーを、そのすべてのイベントとタスクとともに削除します。</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="538"/>
        <source>Removed %1 sample items.</source>
        <translation>サンプル項目を%1件削除しました。</translation>
    </message>
</context>
<context>
    <name>ManageSourcesDialog</name>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="75"/>
        <source>Calendars</source>
        <translation>カレンダー</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="79"/>
        <source>Calendar</source>
        <translation>カレンダー</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="86"/>
        <source>New Calendar…</source>
        <translation>新規カレンダー…</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="87"/>
        <source>Edit…</source>
        <translation>編集…</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="88"/>
        <source>Make Default</source>
        <translation>デフォルトに設定</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="89"/>
        <source>Delete…</source>
        <translation>削除…</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="122"/>
        <source>Default</source>
        <translation>デフォルト</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="149"/>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="171"/>
        <source>New Calendar</source>
        <translation>新規カレンダー</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="155"/>
        <source>On This Device</source>
        <translation>このデバイス</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="171"/>
        <source>The calendar could not be saved.</source>
        <translation>カレンダーを保存できませんでした。</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="180"/>
        <source>Edit Calendar</source>
        <translation>カレンダーを編集</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="199"/>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="214"/>
        <source>Delete calendar?</source>
        <translation>カレンダーを削除しますか?</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="200"/>
        <source>Delete &quot;%1&quot; with all its events and tasks? This cannot be undone.</source>
        <translation>&quot;%1&quot; をすべてのイベントとタスクとともに削除しますか? この操作は元に戻せません。</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="214"/>
        <source>The calendar could not be deleted.</source>
        <translation>カレンダーを削除できませんでした。</translation>
    </message>
</context>
<context>
    <name>MiniMonth</name>
    <message>
        <location filename="../src/ui/MiniMonth.cpp" line="48"/>
        <source>Month calendar</source>
        <translation>月カレンダー</translation>
    </message>
    <message>
        <location filename="../src/ui/MiniMonth.cpp" line="59"/>
        <source>Previous month</source>
        <translation>前の月</translation>
    </message>
    <message>
        <location filename="../src/ui/MiniMonth.cpp" line="61"/>
        <source>Next month</source>
        <translation>次の月</translation>
    </message>
    <message>
        <location filename="../src/ui/MiniMonth.cpp" line="278"/>
        <source>MMMM yyyy</source>
        <extracomment>Date format (QDate::toString) of the title of the small month calendar</extracomment>
        <translation>yyyy年M月</translation>
    </message>
</context>
<context>
    <name>MonthView</name>
    <message>
        <location filename="../src/ui/MonthPainter.cpp" line="339"/>
        <source>All day</source>
        <translation>終日</translation>
    </message>
    <message>
        <location filename="../src/ui/MonthView.cpp" line="187"/>
        <source>MMM d</source>
        <extracomment>Date format (QDate::toString) of the first day of a month in its cell</extracomment>
        <translation>M月d日</translation>
    </message>
    <message numerus="yes">
        <location filename="../src/ui/MonthView.cpp" line="232"/>
        <source>+%n more</source>
        <translation>
            <numerusform>他%n件</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../src/ui/MonthView.cpp" line="322"/>
        <source>Move repeating event</source>
        <translation>繰り返しイベントを移動</translation>
    </message>
</context>
<context>
    <name>NLParser</name>
    <message>
        <location filename="../src/ical/NLParser.cpp" line="391"/>
        <source>the reference time is not valid</source>
        <translation>基準時刻が無効です</translation>
    </message>
    <message>
        <location filename="../src/ical/NLParser.cpp" line="393"/>
        <source>&quot;%1&quot; is not a valid date</source>
        <translation>&quot;%1&quot; は有効な日付ではありません</translation>
    </message>
    <message>
        <location filename="../src/ical/NLParser.cpp" line="395"/>
        <source>&quot;%1&quot; is not a valid time</source>
        <translation>&quot;%1&quot; は有効な時刻ではありません</translation>
    </message>
    <message>
        <location filename="../src/ical/NLParser.cpp" line="397"/>
        <source>&quot;%1&quot; is too long</source>
        <translation>&quot;%1&quot; は長すぎます</translation>
    </message>
    <message>
        <location filename="../src/ical/NLParser.cpp" line="400"/>
        <source>&quot;%1&quot; falls outside the years 1 to 9999</source>
        <translation>&quot;%1&quot; は1年から9999年の範囲外です</translation>
    </message>
    <message>
        <location filename="../src/ical/NLParser.cpp" line="401"/>
        <source>the event would fall outside the years 1 to 9999</source>
        <translation>イベントが1年から9999年の範囲外になります</translation>
    </message>
</context>
<context>
    <name>NotificationService</name>
    <message>
        <location filename="../src/app/NotificationService.cpp" line="66"/>
        <source>Starting now (%1)</source>
        <translation>まもなく開始 (%1)</translation>
    </message>
    <message>
        <location filename="../src/app/NotificationService.cpp" line="68"/>
        <source>In %1 minutes (%2)</source>
        <translation>%1分後 (%2)</translation>
    </message>
    <message>
        <location filename="../src/app/NotificationService.cpp" line="70"/>
        <source>In %1h (%2)</source>
        <translation>%1時間後 (%2)</translation>
    </message>
    <message>
        <location filename="../src/app/NotificationService.cpp" line="72"/>
        <source>Tomorrow at %1</source>
        <translation>明日 %1</translation>
    </message>
    <message>
        <location filename="../src/app/NotificationService.cpp" line="78"/>
        <source>Reminder</source>
        <translation>リマインダー</translation>
    </message>
    <message>
        <location filename="../src/app/NotificationService.cpp" line="114"/>
        <source>Test reminder</source>
        <translation>テストリマインダー</translation>
    </message>
    <message>
        <location filename="../src/app/NotificationService.cpp" line="115"/>
        <source>If you can see this, your desktop notifications are wired up correctly. Real reminders look just like this one.</source>
        <translation>これが表示されていれば、デスクトップ通知は正しく設定されています。実際のリマインダーもこのように表示されます。</translation>
    </message>
    <message>
        <location filename="../src/app/NotificationService.cpp" line="125"/>
        <source>At time of event</source>
        <translation>開始時刻</translation>
    </message>
    <message>
        <location filename="../src/app/NotificationService.cpp" line="127"/>
        <source>%1 min before</source>
        <translation>%1分前</translation>
    </message>
    <message>
        <location filename="../src/app/NotificationService.cpp" line="129"/>
        <source>%1 hour(s) before</source>
        <translation>%1時間前</translation>
    </message>
    <message>
        <location filename="../src/app/NotificationService.cpp" line="130"/>
        <source>%1 day(s) before</source>
        <translation>%1日前</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="50"/>
        <source>Calendar colour</source>
        <translation>カレンダーの色</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="56"/>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="57"/>
        <source>Colour</source>
        <translation>色</translation>
    </message>
</context>
<context>
    <name>RecurrenceScopeDialog</name>
    <message>
        <location filename="../src/ui/RecurrenceScopeDialog.cpp" line="43"/>
        <source>This is one event of a repeating series. Apply to:</source>
        <translation>これは繰り返しイベントの1つです。適用先:</translation>
    </message>
    <message>
        <location filename="../src/ui/RecurrenceScopeDialog.cpp" line="57"/>
        <source>Only this event</source>
        <translation>このイベントのみ</translation>
    </message>
    <message>
        <location filename="../src/ui/RecurrenceScopeDialog.cpp" line="58"/>
        <source>This and following events</source>
        <translation>このイベント以降</translation>
    </message>
    <message>
        <location filename="../src/ui/RecurrenceScopeDialog.cpp" line="59"/>
        <source>All events</source>
        <translation>すべてのイベント</translation>
    </message>
</context>
<context>
    <name>ReminderListEditor</name>
    <message>
        <location filename="../src/ui/ReminderListEditor.cpp" line="32"/>
        <source>Add reminder</source>
        <translation>リマインダーを追加</translation>
    </message>
    <message>
        <location filename="../src/ui/ReminderListEditor.cpp" line="113"/>
        <source>No reminders</source>
        <translation>リマインダーなし</translation>
    </message>
    <message>
        <location filename="../src/ui/ReminderListEditor.cpp" line="132"/>
        <source>Remove this reminder</source>
        <translation>このリマインダーを削除</translation>
    </message>
    <message>
        <location filename="../src/ui/ReminderListEditor.cpp" line="133"/>
        <source>Remove reminder %1</source>
        <translation>リマインダー %1 を削除</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <location filename="../src/ui/Sidebar.cpp" line="110"/>
        <source>Views</source>
        <translation>ビュー</translation>
    </message>
    <message>
        <location filename="../src/ui/Sidebar.cpp" line="113"/>
        <source>Calendars</source>
        <translation>カレンダー</translation>
    </message>
</context>
<context>
    <name>TimelineHeader</name>
    <message>
        <location filename="../src/ui/TimelineHeader.cpp" line="94"/>
        <source>W%1</source>
        <translation>第%1週</translation>
    </message>
</context>
<context>
    <name>TimelineView</name>
    <message>
        <location filename="../src/ui/TimelineView.cpp" line="221"/>
        <source>Resize repeating event</source>
        <translation>繰り返しイベントの時間を変更</translation>
    </message>
    <message>
        <location filename="../src/ui/TimelineView.cpp" line="221"/>
        <source>Move repeating event</source>
        <translation>繰り返しイベントを移動</translation>
    </message>
    <message>
        <location filename="../src/ui/TimelineMath.cpp" line="129"/>
        <source>%1 AM</source>
        <translation>午前%1</translation>
    </message>
    <message>
        <location filename="../src/ui/TimelineMath.cpp" line="129"/>
        <source>%1 PM</source>
        <translation>午後%1</translation>
    </message>
</context>
<context>
    <name>TrayManager</name>
    <message>
        <location filename="../src/ui/TrayManager.cpp" line="25"/>
        <source>Kettlebrook Calendar</source>
        <translation>Kettlebrook Calendar</translation>
    </message>
    <message>
        <location filename="../src/ui/TrayManager.cpp" line="28"/>
        <source>Open Calendar</source>
        <translation>カレンダーを開く</translation>
    </message>
    <message>
        <location filename="../src/ui/TrayManager.cpp" line="35"/>
        <source>New Event…</source>
        <translation>新規イベント…</translation>
    </message>
    <message>
        <location filename="../src/ui/TrayManager.cpp" line="36"/>
        <source>Sync Now</source>
        <translation>今すぐ同期</translation>
    </message>
    <message>
        <location filename="../src/ui/TrayManager.cpp" line="38"/>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
</context>
<context>
    <name>ViewList</name>
    <message>
        <location filename="../src/ui/ViewList.cpp" line="16"/>
        <source>Views</source>
        <translation>ビュー</translation>
    </message>
</context>
<context>
    <name>kbcal</name>
    <message>
        <location filename="../src/cli/CommandContext.cpp" line="53"/>
        <source>cannot create the data folder %1</source>
        <translation>データフォルダ %1 を作成できません</translation>
    </message>
    <message>
        <location filename="../src/cli/CommandContext.cpp" line="61"/>
        <source>cannot open the calendar database in %1: %2</source>
        <translation>%1 のカレンダーデータベースを開けません: %2</translation>
    </message>
    <message>
        <location filename="../src/cli/CommandContext.cpp" line="63"/>
        <source>cannot prepare the calendar database in %1: %2</source>
        <translation>%1 のカレンダーデータベースを準備できません: %2</translation>
    </message>
    <message>
        <location filename="../src/cli/InitCommand.cpp" line="14"/>
        <source>Create or migrate the database.</source>
        <translation>データベースを作成または移行します。</translation>
    </message>
    <message>
        <location filename="../src/cli/InitCommand.cpp" line="15"/>
        <source>Creates the calendar database in the data folder, or brings an existing one up to date.</source>
        <translation>データフォルダにカレンダーデータベースを作成するか、既存のデータベースを最新の状態にします。</translation>
    </message>
    <message>
        <location filename="../src/cli/InitCommand.cpp" line="28"/>
        <source>Database ready: %1 (schema version %2)</source>
        <translation>データベースの準備ができました: %1 (スキーマバージョン %2)</translation>
    </message>
    <message>
        <location filename="../src/cli/AccountsCommand.cpp" line="23"/>
        <source>enabled</source>
        <translation>有効</translation>
    </message>
    <message>
        <location filename="../src/cli/AccountsCommand.cpp" line="23"/>
        <source>disabled</source>
        <translation>無効</translation>
    </message>
    <message>
        <location filename="../src/cli/AccountsCommand.cpp" line="25"/>
        <source>last sync %1</source>
        <translation>最終同期 %1</translation>
    </message>
    <message>
        <location filename="../src/cli/AccountsCommand.cpp" line="27"/>
        <location filename="../src/cli/CalendarsCommand.cpp" line="35"/>
        <source>sync error: %1</source>
        <translation>同期エラー: %1</translation>
    </message>
    <message>
        <location filename="../src/cli/AccountsCommand.cpp" line="38"/>
        <source>List the accounts.</source>
        <translation>アカウントを一覧表示します。</translation>
    </message>
    <message>
        <location filename="../src/cli/AccountsCommand.cpp" line="39"/>
        <source>Lists the accounts (calendar sources) in the order the desktop program shows them. Removed accounts whose removal has not been synced yet are not listed. With --json, prints the account records.</source>
        <translation>アカウント (カレンダーのソース) をデスクトッププログラムと同じ順序で一覧表示します。削除がまだ同期されていないアカウントは表示されません。--json を付けると、アカウントのレコードを出力します。</translation>
    </message>
    <message>
        <location filename="../src/cli/AccountsCommand.cpp" line="52"/>
        <source>No accounts.</source>
        <translation>アカウントはありません。</translation>
    </message>
    <message>
        <location filename="../src/cli/AccountsCommand.cpp" line="55"/>
        <location filename="../src/cli/CalendarsCommand.cpp" line="66"/>
        <source>NAME</source>
        <translation>名前</translation>
    </message>
    <message>
        <location filename="../src/cli/AccountsCommand.cpp" line="55"/>
        <location filename="../src/cli/CalendarsCommand.cpp" line="66"/>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <location filename="../src/cli/AccountsCommand.cpp" line="55"/>
        <source>TYPE</source>
        <translation>種類</translation>
    </message>
    <message>
        <location filename="../src/cli/AccountsCommand.cpp" line="55"/>
        <source>SERVER</source>
        <translation>サーバー</translation>
    </message>
    <message>
        <location filename="../src/cli/AccountsCommand.cpp" line="55"/>
        <source>USER</source>
        <translation>ユーザー</translation>
    </message>
    <message>
        <location filename="../src/cli/AccountsCommand.cpp" line="56"/>
        <location filename="../src/cli/CalendarsCommand.cpp" line="66"/>
        <source>STATE</source>
        <translation>状態</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="27"/>
        <source>yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="27"/>
        <source>no</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="43"/>
        <source>Title:    %1</source>
        <translation>件名:     %1</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="44"/>
        <source>Start:    %1</source>
        <translation>開始:     %1</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="45"/>
        <source>End:      %1</source>
        <translation>終了:     %1</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="46"/>
        <source>All day:  %1</source>
        <translation>終日:     %1</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="47"/>
        <source>Has time: %1</source>
        <translation>時刻指定: %1</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="57"/>
        <source>Add an event from one line of text (quick-add).</source>
        <translation>1行のテキストからイベントを追加します (クイック追加)。</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="58"/>
        <source>Joins the words into one line and reads it as the desktop quick-add box does, for example:
  kbcal add Lunch with Sam tomorrow at 12:30 for 45 min
T is an ISO 8601 date-time (2024-01-05T09:00:00Z, 2024-01-05T10:00:00+01:00, or local time without an offset) or a date (2024-01-05, local midnight). With --dry-run nothing is stored and the reading is printed. Put -- before the text when one of its words begins with a dash.</source>
        <translation>単語を1行につなげ、デスクトッププログラムのクイック追加欄と同じように解釈します。例:
  kbcal add Lunch with Sam tomorrow at 12:30 for 45 min
T は ISO 8601 の日時 (2024-01-05T09:00:00Z、2024-01-05T10:00:00+01:00、またはオフセットなしのローカル時刻) か日付 (2024-01-05、ローカル時刻の午前0時) です。--dry-run を付けると何も保存せず、解釈結果を出力します。テキスト中にダッシュで始まる単語がある場合は、テキストの前に -- を置いてください。</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="65"/>
        <source>Add the event to the calendar with this id.</source>
        <translation>この ID のカレンダーにイベントを追加します。</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="67"/>
        <source>Read the text as if it were this time (default: now).</source>
        <translation>この時刻を現在とみなしてテキストを解釈します (既定: 現在時刻)。</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="69"/>
        <source>Print how the text is read; store nothing.</source>
        <translation>テキストの解釈結果を出力し、何も保存しません。</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="76"/>
        <source>the text of the event is empty</source>
        <translation>イベントのテキストが空です</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="82"/>
        <source>&apos;%1&apos; is not a date or date-time for --now</source>
        <translation>&apos;%1&apos; は --now に指定できる日付または日時ではありません</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="104"/>
        <source>the event could not be stored in %1</source>
        <translation>イベントを %1 に保存できませんでした</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="113"/>
        <source>Added &quot;%1&quot; on %2 to %3</source>
        <translation>&quot;%1&quot; (%2) を %3 に追加しました</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="57"/>
        <location filename="../src/cli/IcsExpandCommand.cpp" line="26"/>
        <location filename="../src/cli/IcsParseCommand.cpp" line="103"/>
        <source>all day</source>
        <translation>終日</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="84"/>
        <source>No events from %1 to %2.</source>
        <translation>%1 から %2 までのイベントはありません。</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="100"/>
        <location filename="../src/cli/IcsParseCommand.cpp" line="94"/>
        <source>(no title)</source>
        <translation>(タイトルなし)</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="106"/>
        <source>(dimmed)</source>
        <translation>(淡色表示)</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="108"/>
        <source>(reminders off)</source>
        <translation>(リマインダーオフ)</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="114"/>
        <source>1 event hidden by filter rules.</source>
        <translation>フィルタールールにより1件のイベントが非表示です。</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="115"/>
        <source>%1 events hidden by filter rules.</source>
        <translation>フィルタールールにより%1件のイベントが非表示です。</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="141"/>
        <source>Show the events of a span of days.</source>
        <translation>指定した期間のイベントを表示します。</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="142"/>
        <source>Shows the occurrences of the stored events from --from (default: today at 00:00 local time) up to, not including, --to, or for --days days (default: 7), exactly as the calendar views show them: recurring events expanded, and the enabled filter rules applied (hidden events are counted, dimmed ones marked). A date without a time is local midnight. Without --calendar, the visible calendars are shown.</source>
        <translation>保存されたイベントの発生を、--from (既定: 今日のローカル時刻 00:00) から --to の直前まで、または --days 日間 (既定: 7) にわたり、カレンダーのビューと同じように表示します。繰り返しイベントは展開され、有効なフィルタールールが適用されます (非表示のイベントは件数を示し、淡色表示のイベントには印を付けます)。時刻のない日付はローカル時刻の午前0時を表します。--calendar を指定しない場合は、表示中のカレンダーが対象です。</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="148"/>
        <source>Start of the span (date or date-time).</source>
        <translation>範囲の開始 (日付または日時)。</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="150"/>
        <source>End of the span, not included (date or date-time).</source>
        <translation>範囲の終了。この時点は含みません (日付または日時)。</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="152"/>
        <source>Length of the span in days (1 to 36600).</source>
        <translation>範囲の日数 (1～36600)。</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="154"/>
        <source>Show this calendar (repeatable).</source>
        <translation>このカレンダーを表示します (複数指定可)。</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="164"/>
        <source>invalid date for --from: &apos;%1&apos;</source>
        <translation>--from の日付が無効です: &apos;%1&apos;</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="167"/>
        <source>--to and --days cannot be used together</source>
        <translation>--to と --days は同時に指定できません</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="173"/>
        <source>invalid date for --to: &apos;%1&apos;</source>
        <translation>--to の日付が無効です: &apos;%1&apos;</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="175"/>
        <source>--to must be later than the start of the span</source>
        <translation>--to は範囲の開始より後にしてください</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="181"/>
        <source>invalid number of days: &apos;%1&apos;</source>
        <translation>日数が無効です: &apos;%1&apos;</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="200"/>
        <source>no calendar with the id %1</source>
        <translation>ID が %1 のカレンダーはありません</translation>
    </message>
    <message>
        <location filename="../src/cli/CalendarsCommand.cpp" line="25"/>
        <source>default</source>
        <translation>デフォルト</translation>
    </message>
    <message>
        <location filename="../src/cli/CalendarsCommand.cpp" line="27"/>
        <source>hidden</source>
        <translation>非表示</translation>
    </message>
    <message>
        <location filename="../src/cli/CalendarsCommand.cpp" line="29"/>
        <source>read-only</source>
        <translation>読み取り専用</translation>
    </message>
    <message>
        <location filename="../src/cli/CalendarsCommand.cpp" line="31"/>
        <source>shared</source>
        <translation>共有</translation>
    </message>
    <message>
        <location filename="../src/cli/CalendarsCommand.cpp" line="33"/>
        <source>shared with me</source>
        <translation>共有されたカレンダー</translation>
    </message>
    <message>
        <location filename="../src/cli/CalendarsCommand.cpp" line="46"/>
        <source>List the calendars.</source>
        <translation>カレンダーを一覧表示します。</translation>
    </message>
    <message>
        <location filename="../src/cli/CalendarsCommand.cpp" line="47"/>
        <source>Lists every calendar in the order the desktop program shows them, with its account, colour and state. With --json, prints the calendar records.</source>
        <translation>すべてのカレンダーを、デスクトッププログラムと同じ順序で、アカウント、色、状態とともに一覧表示します。--json を付けると、カレンダーのレコードを出力します。</translation>
    </message>
    <message>
        <location filename="../src/cli/CalendarsCommand.cpp" line="59"/>
        <source>No calendars.</source>
        <translation>カレンダーはありません。</translation>
    </message>
    <message>
        <location filename="../src/cli/CalendarsCommand.cpp" line="66"/>
        <source>ACCOUNT</source>
        <translation>アカウント</translation>
    </message>
    <message>
        <location filename="../src/cli/CalendarsCommand.cpp" line="66"/>
        <source>COLOUR</source>
        <translation>色</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="24"/>
        <source>Print exactly one JSON document on standard output.</source>
        <translation>標準出力に JSON ドキュメントを1つだけ出力します。</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="29"/>
        <source>Report progress of long work on standard error.</source>
        <translation>時間のかかる処理の進行状況を標準エラー出力に表示します。</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="34"/>
        <source>Use the calendar data in DIR.</source>
        <translation>DIR のカレンダーデータを使用します。</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="40"/>
        <source>Show this help.</source>
        <translation>このヘルプを表示します。</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="92"/>
        <source>missing value for --data-dir</source>
        <translation>--data-dir の値がありません</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="97"/>
        <source>unknown option &apos;%1&apos;</source>
        <translation>不明なオプション &apos;%1&apos;</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="101"/>
        <source>missing command</source>
        <translation>コマンドがありません</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="115"/>
        <source>unknown command &apos;%1&apos;</source>
        <translation>不明なコマンド &apos;%1&apos;</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="140"/>
        <source>Options:</source>
        <translation>オプション:</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="155"/>
        <source>missing argument</source>
        <translation>引数がありません</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="158"/>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>予期しない引数 &apos;%1&apos;</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="168"/>
        <source>The command-line companion of Kettlebrook Calendar: the same calendar store, from a terminal.</source>
        <translation>Kettlebrook Calendar のコマンドライン版: 同じカレンダーデータをターミナルから扱えます。</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="170"/>
        <source>Commands:</source>
        <translation>コマンド:</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="174"/>
        <source>Global options:</source>
        <translation>グローバルオプション:</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="176"/>
        <source>Use the calendar data in DIR (default: CALENDAR_DATA_DIR, else the desktop program&apos;s data folder).</source>
        <translation>DIR のカレンダーデータを使用します (既定: CALENDAR_DATA_DIR、未設定ならデスクトッププログラムのデータフォルダ)。</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="179"/>
        <source>Show the program&apos;s log output on standard error.</source>
        <translation>プログラムのログを標準エラー出力に表示します。</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="180"/>
        <source>Show the version.</source>
        <translation>バージョンを表示します。</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="182"/>
        <source>Run &apos;kbcal COMMAND --help&apos; for the options of a command.</source>
        <translation>コマンドのオプションは &apos;kbcal COMMAND --help&apos; で確認できます。</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="191"/>
        <source>Run &apos;kbcal --help&apos; for the list of commands.</source>
        <translation>コマンドの一覧は &apos;kbcal --help&apos; で確認できます。</translation>
    </message>
    <message>
        <location filename="../src/cli/ExportCommand.cpp" line="81"/>
        <source>Write the stored events as one iCalendar object.</source>
        <translation>保存されたイベントを1つの iCalendar オブジェクトとして書き出します。</translation>
    </message>
    <message>
        <location filename="../src/cli/ExportCommand.cpp" line="82"/>
        <source>Writes the events of the named calendars (every calendar when none is named) to standard output as one iCalendar object, each event in the text it was stored with.</source>
        <translation>指定したカレンダー (指定がなければすべて) のイベントを 1つの iCalendar オブジェクトとして標準出力に書き出します。各イベントは保存時のテキストのまま出力されます。</translation>
    </message>
    <message>
        <location filename="../src/cli/ExportCommand.cpp" line="85"/>
        <source>Export the calendar ID (may be repeated).</source>
        <translation>カレンダー ID をエクスポートします (複数指定可)。</translation>
    </message>
    <message>
        <location filename="../src/cli/ExportCommand.cpp" line="101"/>
        <location filename="../src/cli/TasksCommand.cpp" line="57"/>
        <source>there is no calendar %1</source>
        <translation>カレンダー %1 はありません</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsExpandCommand.cpp" line="57"/>
        <source>Expand the events of iCalendar text over a span.</source>
        <translation>iCalendar テキストのイベントを指定範囲で展開します。</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsExpandCommand.cpp" line="59"/>
        <source>Reads iCalendar text from FILE, or from standard input when FILE is &apos;-&apos; or absent, and lists the occurrences of its events in the span [--from, --to) exactly as the calendar views show them: single events first, then each series&apos; occurrences with changed occurrences in place. T is an ISO 8601 date-time or a date (local midnight). No database is used.</source>
        <translation>FILE から (FILE が &apos;-&apos; または省略時は標準入力から) iCalendar テキストを読み込み、範囲 [--from, --to) に含まれるイベントの発生を、カレンダーのビューと同じように一覧表示します。単発のイベントが先に、続いて各シリーズの発生が、変更された発生をその位置に含めて表示されます。T は ISO 8601 の日時または日付 (ローカル時刻の午前0時) です。データベースは使用しません。</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsExpandCommand.cpp" line="65"/>
        <source>Start of the span (included).</source>
        <translation>範囲の開始 (この時点を含む)。</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsExpandCommand.cpp" line="66"/>
        <source>End of the span (excluded).</source>
        <translation>範囲の終了 (この時点を含まない)。</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsExpandCommand.cpp" line="72"/>
        <source>both --from and --to are required</source>
        <translation>--from と --to の両方が必要です</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsExpandCommand.cpp" line="75"/>
        <location filename="../src/cli/IcsExpandCommand.cpp" line="78"/>
        <source>invalid time &apos;%1&apos;</source>
        <translation>無効な時刻 &apos;%1&apos;</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsExpandCommand.cpp" line="80"/>
        <source>the span is empty: --to must be after --from</source>
        <translation>範囲が空です: --to は --from より後にしてください</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsExpandCommand.cpp" line="89"/>
        <location filename="../src/cli/IcsParseCommand.cpp" line="134"/>
        <location filename="../src/cli/IcsParseCommand.cpp" line="137"/>
        <source>cannot read %1: %2</source>
        <translation>%1 を読み取れません: %2</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsParseCommand.cpp" line="105"/>
        <source>repeats %1</source>
        <translation>繰り返し %1</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsParseCommand.cpp" line="107"/>
        <source>changed occurrence %1</source>
        <translation>変更された発生 %1</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsParseCommand.cpp" line="108"/>
        <location filename="../src/cli/IcsParseCommand.cpp" line="119"/>
        <source>uid %1</source>
        <translation>uid %1</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsParseCommand.cpp" line="116"/>
        <source>due %1</source>
        <translation>期限 %1</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsParseCommand.cpp" line="118"/>
        <source>categories %1</source>
        <translation>カテゴリ %1</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsParseCommand.cpp" line="159"/>
        <source>No events or tasks found.</source>
        <translation>イベントもタスクも見つかりませんでした。</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsParseCommand.cpp" line="171"/>
        <source>Read iCalendar text and print its events and tasks.</source>
        <translation>iCalendar テキストを読み込み、そのイベントとタスクを出力します。</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsParseCommand.cpp" line="173"/>
        <source>Reads iCalendar text from FILE, or from standard input when FILE is - or absent, with the calendar&apos;s own reader, and prints the events and the tasks it finds, each in the order of the text. The calendar database is not touched.</source>
        <translation>FILE から (FILE が - または省略時は標準入力から) カレンダー自身のリーダーで iCalendar テキストを読み込み、見つかったイベントとタスクをテキスト中の順序で出力します。カレンダーのデータベースには触れません。</translation>
    </message>
    <message>
        <location filename="../src/cli/ImportCommand.cpp" line="27"/>
        <source>Import the events of an iCalendar file.</source>
        <translation>iCalendar ファイルのイベントをインポートします。</translation>
    </message>
    <message>
        <location filename="../src/cli/ImportCommand.cpp" line="29"/>
        <source>Imports the events of FILE into a calendar: --calendar, else the calendar chosen for new events (the preference ui/defaultCalendarId, else the default calendar, else the first one). An event already in the calendar (same UID and recurrence id) is updated, any other is added. Either the whole file is imported or, on an error, nothing.</source>
        <translation>FILE のイベントをカレンダーにインポートします。インポート先は --calendar、未指定なら新規イベント用のカレンダー (設定 ui/defaultCalendarId、なければデフォルトカレンダー、それもなければ最初のカレンダー) です。カレンダーにすでにあるイベント (UID と繰り返し ID が同じもの) は更新され、それ以外は追加されます。ファイル全体がインポートされるか、エラー時には何もインポートされません。</translation>
    </message>
    <message>
        <location filename="../src/cli/ImportCommand.cpp" line="34"/>
        <source>Import into the calendar ID.</source>
        <translation>カレンダー ID にインポートします。</translation>
    </message>
    <message>
        <location filename="../src/cli/ImportCommand.cpp" line="51"/>
        <source>Importing: %1 of %2 events</source>
        <translation>インポート中: %2件中%1件</translation>
    </message>
    <message>
        <location filename="../src/cli/SampleDataCommand.cpp" line="36"/>
        <source>Add a sample week of events and tasks.</source>
        <translation>サンプルの1週間分のイベントとタスクを追加します。</translation>
    </message>
    <message>
        <location filename="../src/cli/SampleDataCommand.cpp" line="38"/>
        <source>Adds the account &quot;Sample Data&quot; with four calendars, a week of events around today and a few tasks, to show what the calendar looks like. Whatever of it is already there is left as it is. &apos;kbcal sample-data remove&apos; takes it away again.</source>
        <translation>アカウント &quot;Sample Data&quot; を、4つのカレンダー、今日の前後1週間分のイベント、いくつかのタスクとともに追加し、カレンダーの見た目を確認できるようにします。すでにあるものはそのままにします。&apos;kbcal sample-data remove&apos; で再び削除できます。</translation>
    </message>
    <message>
        <location filename="../src/cli/SampleDataCommand.cpp" line="64"/>
        <source>Sample data: %1 calendars, %2 events, %3 tasks.</source>
        <translation>サンプルデータ: カレンダー%1件、イベント%2件、タスク%3件。</translation>
    </message>
    <message>
        <location filename="../src/cli/SampleDataCommand.cpp" line="80"/>
        <source>Remove the sample events, tasks, calendars and account.</source>
        <translation>サンプルのイベント、タスク、カレンダー、アカウントを削除します。</translation>
    </message>
    <message>
        <location filename="../src/cli/SampleDataCommand.cpp" line="81"/>
        <source>Deletes everything &apos;kbcal sample-data add&apos; created and prints how many rows went.</source>
        <translation>&apos;kbcal sample-data add&apos; で作成したものをすべて削除し、削除した行数を出力します。</translation>
    </message>
    <message>
        <location filename="../src/cli/SampleDataCommand.cpp" line="90"/>
        <source>Removed %1 sample rows.</source>
        <translation>サンプルの行を%1行削除しました。</translation>
    </message>
    <message>
        <location filename="../src/cli/TaskCommand.cpp" line="34"/>
        <source>there is no task %1</source>
        <translation>タスク %1 はありません</translation>
    </message>
    <message>
        <location filename="../src/cli/TaskCommand.cpp" line="36"/>
        <source>could not change the task %1</source>
        <translation>タスク %1 を変更できませんでした</translation>
    </message>
    <message>
        <location filename="../src/cli/TaskCommand.cpp" line="44"/>
        <source>Reopened: %1</source>
        <translation>再開しました: %1</translation>
    </message>
    <message>
        <location filename="../src/cli/TaskCommand.cpp" line="46"/>
        <source>Completed: %1</source>
        <translation>完了しました: %1</translation>
    </message>
    <message>
        <location filename="../src/cli/TaskCommand.cpp" line="48"/>
        <source>Done; next due %1: %2</source>
        <translation>完了。次の期限 %1: %2</translation>
    </message>
    <message>
        <location filename="../src/cli/TaskCommand.cpp" line="50"/>
        <source>Done; next start %1: %2</source>
        <translation>完了。次の開始日 %1: %2</translation>
    </message>
    <message>
        <location filename="../src/cli/TaskCommand.cpp" line="78"/>
        <source>Complete a task.</source>
        <translation>タスクを完了にします。</translation>
    </message>
    <message>
        <location filename="../src/cli/TaskCommand.cpp" line="79"/>
        <source>Marks the task ID as completed. A repeating task is not closed: it moves on to its next date and stays open. Prints the task after the change.</source>
        <translation>タスク ID を完了にします。繰り返しタスクは閉じられず、次の日付に進んで未完了のまま残ります。変更後のタスクを出力します。</translation>
    </message>
    <message>
        <location filename="../src/cli/TaskCommand.cpp" line="86"/>
        <source>Reopen a completed task.</source>
        <translation>完了したタスクを再開します。</translation>
    </message>
    <message>
        <location filename="../src/cli/TaskCommand.cpp" line="87"/>
        <source>Marks the task ID as not completed. Prints the task after the change.</source>
        <translation>タスク ID を未完了にします。変更後のタスクを出力します。</translation>
    </message>
    <message>
        <location filename="../src/cli/TasksCommand.cpp" line="40"/>
        <source>List tasks.</source>
        <translation>タスクを一覧表示します。</translation>
    </message>
    <message>
        <location filename="../src/cli/TasksCommand.cpp" line="42"/>
        <source>Lists the tasks of the calendar ID, or of every calendar, by due date; tasks without a due date come last in each calendar. Deleted tasks are not listed.</source>
        <translation>カレンダー ID (または全カレンダー) のタスクを期限順に一覧表示します。期限のないタスクは各カレンダーの最後に表示されます。削除済みのタスクは表示されません。</translation>
    </message>
    <message>
        <location filename="../src/cli/TasksCommand.cpp" line="45"/>
        <source>List the tasks of the calendar ID.</source>
        <translation>カレンダー ID のタスクを一覧表示します。</translation>
    </message>
</context>
</TS>
