<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Backends</name>
    <message>
        <source>This desktop does not let Quorvane type: Insert copies the text instead.</source>
        <translation>このデスクトップでは Quorvane から入力できません。「挿入」は代わりにテキストをコピーします。</translation>
    </message>
    <message>
        <source>This desktop does not let Quorvane take a shortcut: bind one to it in the desktop&apos;s own settings.</source>
        <translation>このデスクトップでは Quorvane がショートカットを取得できません。デスクトップの設定で割り当ててください。</translation>
    </message>
    <message>
        <source>This desktop does not tell which window is in front: Insert goes to the one that gets the keyboard when the panel has closed.</source>
        <translation>このデスクトップでは最前面のウィンドウがわかりません。「挿入」は、パネルを閉じたときにキーボード入力を受け取るウィンドウに入力します。</translation>
    </message>
    <message>
        <source>The desktop places the panel, and does not keep it above other windows or on all virtual desktops.</source>
        <translation>パネルの位置はデスクトップが決めます。パネルはほかのウィンドウより手前やすべての仮想デスクトップには保たれません。</translation>
    </message>
    <message>
        <source>Quorvane types once you have allowed it under “Insert into Other Apps”; until then Insert copies the text.</source>
        <translation>「ほかのアプリへの挿入」で許可すると Quorvane が入力できるようになります。それまでは「挿入」はテキストをコピーします。</translation>
    </message>
    <message>
        <source>This desktop does not let Quorvane take a shortcut by itself: it is added under “Keyboard Shortcut”.</source>
        <translation>このデスクトップでは Quorvane が自分でショートカットを取得できません。「キーボードショートカット」で追加します。</translation>
    </message>
    <message>
        <source>Copy works while a window of Quorvane has the keyboard. What the clipboard held before an Insert cannot be given back.</source>
        <translation>「コピー」は Quorvane のウィンドウにキーボードフォーカスがある間だけ使えます。挿入前のクリップボードの内容は元に戻せません。</translation>
    </message>
    <message>
        <source>The desktop shares the clipboard with Quorvane once you have allowed typing under “Insert into Other Apps”, and as long as that lasts. Without it, Copy works while a window of Quorvane has the keyboard.</source>
        <translation>「ほかのアプリへの挿入」で入力を許可すると、許可が続く間、デスクトップのクリップボードを Quorvane も使えます。許可がない間は、「コピー」は Quorvane のウィンドウにキーボードフォーカスがある間だけ使えます。</translation>
    </message>
</context>
<context>
    <name>DateFormatPreset</name>
    <message>
        <source>Long</source>
        <translation>長い形式</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>標準の形式</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>短い形式</translation>
    </message>
    <message>
        <source>ISO 8601</source>
        <translation>ISO 8601</translation>
    </message>
    <message>
        <source>RFC 2822</source>
        <translation>RFC 2822</translation>
    </message>
    <message>
        <source>Date Only</source>
        <translation>日付のみ</translation>
    </message>
    <message>
        <source>Time Only</source>
        <translation>時刻のみ</translation>
    </message>
    <message>
        <source>Day of Week</source>
        <translation>曜日</translation>
    </message>
    <message>
        <source>Unix Timestamp</source>
        <translation>Unix タイムスタンプ</translation>
    </message>
    <message>
        <source>Custom…</source>
        <translation>カスタム…</translation>
    </message>
</context>
<context>
    <name>FavoriteTZRow</name>
    <message>
        <source>%1, %2</source>
        <extracomment>The offset and the name of a time zone: &quot;UTC-5, EST&quot;</extracomment>
        <translation>%1、%2</translation>
    </message>
</context>
<context>
    <name>FoundZones</name>
    <message>
        <source>1 time zone: %1</source>
        <translation>1 件のタイムゾーン: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 time zones, first %2</source>
        <translation>
            <numerusform>%1 件のタイムゾーン、先頭は %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KGlobalAccel</name>
    <message>
        <source>Show or Hide</source>
        <translation>表示/非表示</translation>
    </message>
</context>
<context>
    <name>KeyNames</name>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>Control</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Shift</translation>
    </message>
    <message>
        <source>Super</source>
        <translation>Super</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>スペース</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Backspace</translation>
    </message>
    <message>
        <source>Escape</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Keypad Decimal</source>
        <translation>テンキー 小数点</translation>
    </message>
    <message>
        <source>Keypad Multiply</source>
        <translation>テンキー *</translation>
    </message>
    <message>
        <source>Keypad Plus</source>
        <translation>テンキー +</translation>
    </message>
    <message>
        <source>Num Lock</source>
        <translation>Num Lock</translation>
    </message>
    <message>
        <source>Keypad Divide</source>
        <translation>テンキー /</translation>
    </message>
    <message>
        <source>Keypad Enter</source>
        <translation>テンキー Enter</translation>
    </message>
    <message>
        <source>Keypad Minus</source>
        <translation>テンキー -</translation>
    </message>
    <message>
        <source>Keypad Equals</source>
        <translation>テンキー =</translation>
    </message>
    <message>
        <source>Keypad 0</source>
        <translation>テンキー 0</translation>
    </message>
    <message>
        <source>Keypad 1</source>
        <translation>テンキー 1</translation>
    </message>
    <message>
        <source>Keypad 2</source>
        <translation>テンキー 2</translation>
    </message>
    <message>
        <source>Keypad 3</source>
        <translation>テンキー 3</translation>
    </message>
    <message>
        <source>Keypad 4</source>
        <translation>テンキー 4</translation>
    </message>
    <message>
        <source>Keypad 5</source>
        <translation>テンキー 5</translation>
    </message>
    <message>
        <source>Keypad 6</source>
        <translation>テンキー 6</translation>
    </message>
    <message>
        <source>Keypad 7</source>
        <translation>テンキー 7</translation>
    </message>
    <message>
        <source>Keypad 8</source>
        <translation>テンキー 8</translation>
    </message>
    <message>
        <source>Keypad 9</source>
        <translation>テンキー 9</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Insert</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>Page Up</source>
        <translation>Page Up</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>End</source>
        <translation>End</translation>
    </message>
    <message>
        <source>Page Down</source>
        <translation>Page Down</translation>
    </message>
    <message>
        <source>Left Arrow</source>
        <translation>左矢印</translation>
    </message>
    <message>
        <source>Right Arrow</source>
        <translation>右矢印</translation>
    </message>
    <message>
        <source>Down Arrow</source>
        <translation>下矢印</translation>
    </message>
    <message>
        <source>Up Arrow</source>
        <translation>上矢印</translation>
    </message>
    <message>
        <source>Print Screen</source>
        <translation>Print Screen</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>メニュー</translation>
    </message>
    <message>
        <source>Key %1</source>
        <translation>キー %1</translation>
    </message>
</context>
<context>
    <name>LineEditMenu</name>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>やり直す(&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>切り取り(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>貼り付け(&amp;P)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべて選択</translation>
    </message>
</context>
<context>
    <name>MultiZoneLayout</name>
    <message>
        <source>Inline</source>
        <translation>1 行</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>複数行</translation>
    </message>
</context>
<context>
    <name>PatternGuide</name>
    <message>
        <source>24 hours</source>
        <translation>24 時間制</translation>
    </message>
    <message>
        <source>12 hours</source>
        <translation>12 時間制</translation>
    </message>
    <message>
        <source>Long date</source>
        <translation>長い日付</translation>
    </message>
    <message>
        <source>ISO week</source>
        <translation>ISO 週</translation>
    </message>
    <message>
        <source>Quarter</source>
        <translation>四半期</translation>
    </message>
    <message>
        <source>Words in quotes</source>
        <translation>引用符で囲んだ語</translation>
    </message>
    <message>
        <source>An apostrophe</source>
        <translation>アポストロフィ</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>ファイル名</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>年</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>月</translation>
    </message>
    <message>
        <source>Month, short</source>
        <translation>月 (短縮)</translation>
    </message>
    <message>
        <source>Month, number</source>
        <translation>月 (数字)</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>日</translation>
    </message>
    <message>
        <source>Weekday</source>
        <translation>曜日</translation>
    </message>
    <message>
        <source>Weekday, short</source>
        <translation>曜日 (短縮)</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>週</translation>
    </message>
    <message>
        <source>Hour of 24</source>
        <translation>時 (24 時間制)</translation>
    </message>
    <message>
        <source>Hour of 12</source>
        <translation>時 (12 時間制)</translation>
    </message>
    <message>
        <source>AM or PM</source>
        <translation>午前/午後</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>分</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>タイムゾーン</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>時差</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Shift</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Enter</translation>
    </message>
</context>
<context>
    <name>RangeLength</name>
    <message>
        <source>%1 d</source>
        <translation>%1日</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1時間</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1分</translation>
    </message>
    <message>
        <source>Begins and ends on the same day</source>
        <translation>開始と終了が同じ日です</translation>
    </message>
    <message>
        <source>Ends %1 before it begins</source>
        <translation>終了が開始より %1 前です</translation>
    </message>
    <message>
        <source>Lasts %1</source>
        <translation>長さは %1 です</translation>
    </message>
</context>
<context>
    <name>ZoneTexts</name>
    <message>
        <source>%1, %2</source>
        <extracomment>A place and its offset: &quot;Toronto, UTC−5&quot;</extracomment>
        <translation>%1、%2</translation>
    </message>
</context>
<context>
    <name>quorvane::ActionBar</name>
    <message>
        <source>Insert</source>
        <translation>挿入</translation>
    </message>
    <message>
        <source>Copy (%1)</source>
        <translation>コピー (%1)</translation>
    </message>
    <message>
        <source>Insert (%1)</source>
        <translation>挿入 (%1)</translation>
    </message>
    <message>
        <source>Insert into %1 (%2)</source>
        <translation>%1 に挿入 (%2)</translation>
    </message>
</context>
<context>
    <name>quorvane::CalendarPicker</name>
    <message>
        <source>Today</source>
        <translation>今日</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>前の月</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>次の月</translation>
    </message>
    <message>
        <source>Not a date</source>
        <translation>日付ではありません</translation>
    </message>
    <message>
        <source>Before %1</source>
        <translation>%1 より前です</translation>
    </message>
</context>
<context>
    <name>quorvane::CopyButton</name>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>コピーしました</translation>
    </message>
    <message>
        <source>Could not copy</source>
        <translation>コピーできません</translation>
    </message>
</context>
<context>
    <name>quorvane::DateLine</name>
    <message>
        <source>Type a date</source>
        <translation>日付を入力</translation>
    </message>
</context>
<context>
    <name>quorvane::DateSection</name>
    <message>
        <source>When</source>
        <translation>日時</translation>
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
        <source>to</source>
        <translation>終了日時</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>現在</translation>
    </message>
    <message>
        <source>Start date</source>
        <translation>開始日</translation>
    </message>
    <message>
        <source>Start time</source>
        <translation>開始時刻</translation>
    </message>
    <message>
        <source>End date</source>
        <translation>終了日</translation>
    </message>
    <message>
        <source>End time</source>
        <translation>終了時刻</translation>
    </message>
    <message>
        <source>(in local time %1)</source>
        <translation>(現地時刻 %1)</translation>
    </message>
    <message>
        <source>Return to the present moment (Alt+N)</source>
        <translation>現在の日時に戻す (Alt+N)</translation>
    </message>
</context>
<context>
    <name>quorvane::DeliveryNotice</name>
    <message>
        <source>%1. %2</source>
        <translation>%1。%2</translation>
    </message>
    <message>
        <source>Copied instead</source>
        <translation>代わりにコピーしました</translation>
    </message>
    <message>
        <source>There was no window to type into. Paste with your usual keys.</source>
        <translation>入力先のウィンドウがありませんでした。いつものキーで貼り付けてください。</translation>
    </message>
    <message>
        <source>This desktop does not let Quorvane type. Paste with your usual keys.</source>
        <translation>このデスクトップでは Quorvane から入力できません。いつものキーで貼り付けてください。</translation>
    </message>
    <message>
        <source>Allow typing…</source>
        <translation>入力を許可…</translation>
    </message>
</context>
<context>
    <name>quorvane::DesktopSection</name>
    <message>
        <source>Shortcut</source>
        <translation>ショートカット</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>挿入</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>クリップボード</translation>
    </message>
    <message>
        <source>Window in front</source>
        <translation>最前面のウィンドウ</translation>
    </message>
    <message>
        <source>Panel</source>
        <translation>パネル</translation>
    </message>
    <message>
        <source>Tray icon</source>
        <translation>トレイアイコン</translation>
    </message>
    <message>
        <source>This Desktop</source>
        <translation>このデスクトップ</translation>
    </message>
</context>
<context>
    <name>quorvane::FavoriteSuggestionChip</name>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
</context>
<context>
    <name>quorvane::FavoritesSection</name>
    <message>
        <source>Favorite Time Zones</source>
        <translation>お気に入りのタイムゾーン</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>%1 removed from favorites</source>
        <translation>%1 をお気に入りから外しました</translation>
    </message>
    <message>
        <source>%1 added to favorites</source>
        <translation>%1 をお気に入りに追加しました</translation>
    </message>
    <message>
        <source>Favorites appear as one-click chips in the popover.</source>
        <translation>お気に入りはパネルに表示され、1 回のクリックで選べます。</translation>
    </message>
    <message>
        <source>No favorite time zones</source>
        <translation>お気に入りのタイムゾーンはありません</translation>
    </message>
</context>
<context>
    <name>quorvane::FormatSection</name>
    <message>
        <source>Format</source>
        <translation>形式</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>配置</translation>
    </message>
</context>
<context>
    <name>quorvane::GeneralSection</name>
    <message>
        <source>General</source>
        <translation>全般</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>ログイン時に起動</translation>
    </message>
    <message>
        <source>Remember format and zones</source>
        <translation>形式とタイムゾーンを記憶</translation>
    </message>
    <message>
        <source>Waiting for your answer</source>
        <translation>応答を待っています</translation>
    </message>
    <message>
        <source>Your desktop did not allow this.</source>
        <translation>デスクトップがこれを許可しませんでした。</translation>
    </message>
</context>
<context>
    <name>quorvane::HintLine</name>
    <message>
        <source>Do not show this again</source>
        <translation>今後は表示しない</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>ヒント</translation>
    </message>
</context>
<context>
    <name>quorvane::IconsSection</name>
    <message>
        <source>Tray &amp; Taskbar</source>
        <translation>トレイとタスクバー</translation>
    </message>
    <message>
        <source>Show icon in system tray</source>
        <translation>システムトレイにアイコンを表示</translation>
    </message>
    <message>
        <source>Show windows in taskbar</source>
        <translation>タスクバーにウィンドウを表示</translation>
    </message>
    <message>
        <source>Open Quorvane from the applications menu to reach Preferences.</source>
        <translation>設定を開くには、アプリケーションメニューから Quorvane を起動してください。</translation>
    </message>
</context>
<context>
    <name>quorvane::ListedShortcut</name>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Takes Quorvane out of the shortcuts of %1</source>
        <translation>%1 のショートカットから Quorvane を取り除きます</translation>
    </message>
    <message>
        <source>To use this shortcut, add it to the shortcuts of %1.</source>
        <translation>このショートカットを使うには、%1 のショートカットに追加してください。</translation>
    </message>
    <message>
        <source>It is in the shortcuts of %1.</source>
        <translation>%1 のショートカットに登録されています。</translation>
    </message>
    <message>
        <source>The shortcuts of %1 still have %2 for Quorvane.</source>
        <translation>%1 のショートカットでは、まだ %2 が Quorvane に割り当てられています。</translation>
    </message>
    <message>
        <source>In the shortcuts of %1, this one belongs to “%2”.</source>
        <translation>%1 のショートカットでは、これは「%2」に割り当てられています。</translation>
    </message>
    <message>
        <source>This keyboard has no such key.</source>
        <translation>このキーボードにはこのキーがありません。</translation>
    </message>
    <message>
        <source>Add to %1 shortcuts</source>
        <translation>%1 のショートカットに追加</translation>
    </message>
    <message>
        <source>Change in %1 shortcuts</source>
        <translation>%1 のショートカットで変更</translation>
    </message>
    <message>
        <source>Record another shortcut</source>
        <translation>別のショートカットを記録</translation>
    </message>
</context>
<context>
    <name>quorvane::MainMenu</name>
    <message>
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>更新を確認…</translation>
    </message>
    <message>
        <source>Quit Quorvane</source>
        <translation>Quorvane を終了</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直す</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>切り取り</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>貼り付け</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべて選択</translation>
    </message>
</context>
<context>
    <name>quorvane::NothingFound</name>
    <message>
        <source>No time zone matches “%1”</source>
        <translation>「%1」に一致するタイムゾーンはありません</translation>
    </message>
</context>
<context>
    <name>quorvane::OutputPreview</name>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>Copy “%1”</source>
        <translation>「%1」をコピー</translation>
    </message>
</context>
<context>
    <name>quorvane::PatternEntry</name>
    <message>
        <source>Custom format</source>
        <translation>カスタム形式</translation>
    </message>
    <message>
        <source>e.g. yyyy-MM-dd HH:mm zzz</source>
        <translation>例: yyyy-MM-dd HH:mm zzz</translation>
    </message>
</context>
<context>
    <name>quorvane::PatternField</name>
    <message>
        <source>The text ends at “%1”, which is no letter of a date. Words stand in quotes: &apos;at&apos;</source>
        <translation>「%1」は日付の文字ではないため、テキストはそこで終わります。語は引用符で囲みます: &apos;から&apos;</translation>
    </message>
</context>
<context>
    <name>quorvane::PatternHelpButton</name>
    <message>
        <source>Letters of a pattern</source>
        <translation>パターンの文字</translation>
    </message>
</context>
<context>
    <name>quorvane::PatternPage</name>
    <message>
        <source>Ready patterns</source>
        <translation>用意されたパターン</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>文字</translation>
    </message>
</context>
<context>
    <name>quorvane::PopoverHeader</name>
    <message>
        <source>More</source>
        <translation>その他</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Open as panel</source>
        <translation>パネルとして開く</translation>
    </message>
    <message>
        <source>Open as popover at the tray icon</source>
        <translation>トレイアイコンの位置にポップオーバーで開く</translation>
    </message>
</context>
<context>
    <name>quorvane::PopoverView</name>
    <message>
        <source>Preferences…</source>
        <translation>設定…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>更新を確認…</translation>
    </message>
    <message>
        <source>Quit Quorvane</source>
        <translation>Quorvane を終了</translation>
    </message>
</context>
<context>
    <name>quorvane::PortalAutostart</name>
    <message>
        <source>Quorvane starts when you log in, so that its shortcut is there.</source>
        <translation>ショートカットを使えるように、ログイン時に Quorvane を起動します。</translation>
    </message>
</context>
<context>
    <name>quorvane::PortalShortcut</name>
    <message>
        <source>the desktop</source>
        <translation>デスクトップ</translation>
    </message>
    <message>
        <source>Show Quorvane</source>
        <translation>Quorvane を表示</translation>
    </message>
</context>
<context>
    <name>quorvane::PreferencesWindow</name>
    <message>
        <source>Quorvane Preferences</source>
        <translation>Quorvane の設定</translation>
    </message>
</context>
<context>
    <name>quorvane::PreviewSection</name>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>Choose a time zone</source>
        <translation>タイムゾーンを選択してください</translation>
    </message>
</context>
<context>
    <name>quorvane::SampleRow</name>
    <message>
        <source>%1, %2</source>
        <extracomment>Letters of a pattern, then what they make: &quot;yyyy, 2026&quot;</extracomment>
        <translation>%1、%2</translation>
    </message>
</context>
<context>
    <name>quorvane::SearchField</name>
    <message>
        <source>Clear</source>
        <translation>消去</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
</context>
<context>
    <name>quorvane::ShortcutHint</name>
    <message>
        <source>No shortcut opens Quorvane yet.</source>
        <translation>Quorvane を開くショートカットがまだありません。</translation>
    </message>
    <message>
        <source>%1 opens Quorvane in any application.</source>
        <translation>%1 でどのアプリケーションからでも Quorvane を開けます。</translation>
    </message>
    <message>
        <source>Change…</source>
        <translation>変更…</translation>
    </message>
    <message>
        <source>The shortcut that opens Quorvane does not work here.</source>
        <translation>Quorvane を開くショートカットはここでは機能しません。</translation>
    </message>
    <message>
        <source>Set Up…</source>
        <translation>設定…</translation>
    </message>
</context>
<context>
    <name>quorvane::ShortcutLine</name>
    <message>
        <source>Another desktop</source>
        <translation>ほかのデスクトップ</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Window manager</source>
        <translation>ウィンドウマネージャー</translation>
    </message>
    <message>
        <source>This configuration has no name for that key: record another shortcut.</source>
        <translation>この設定ファイルにはこのキーの名前がありません。別のショートカットを記録してください。</translation>
    </message>
    <message>
        <source>In the keyboard settings of your desktop, have the shortcut run this command:</source>
        <translation>デスクトップのキーボード設定で、ショートカットにこのコマンドを実行させてください:</translation>
    </message>
    <message>
        <source>Add this line to its configuration:</source>
        <translation>設定ファイルにこの行を追加してください:</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>コピーしました</translation>
    </message>
    <message>
        <source>Could not copy</source>
        <translation>コピーできません</translation>
    </message>
</context>
<context>
    <name>quorvane::ShortcutRecorder</name>
    <message>
        <source>Shortcut</source>
        <translation>ショートカット</translation>
    </message>
    <message>
        <source>Recording a new shortcut</source>
        <translation>新しいショートカットを記録中</translation>
    </message>
    <message>
        <source>Press a key together with Control, Alt, Shift or Super. Escape cancels.</source>
        <translation>Ctrl、Alt、Shift、Super のいずれかと一緒にキーを押してください。Esc で取り消します。</translation>
    </message>
    <message>
        <source>Waiting for a key</source>
        <translation>キー入力待ち</translation>
    </message>
    <message>
        <source>Another program holds this shortcut.</source>
        <translation>このショートカットは別のプログラムが使用しています。</translation>
    </message>
    <message>
        <source>%1 holds this shortcut.</source>
        <translation>このショートカットは %1 が使用しています。</translation>
    </message>
    <message>
        <source>This keyboard has no such key.</source>
        <translation>このキーボードにはこのキーがありません。</translation>
    </message>
    <message>
        <source>Global shortcuts are not available on this desktop.</source>
        <translation>このデスクトップではグローバルショートカットを使用できません。</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>While this is the shortcut, you cannot type a capital %1 anywhere.</source>
        <translation>これがショートカットである間は、どこでも大文字の %1 を入力できません。</translation>
    </message>
    <message>
        <source>While this is the shortcut, you cannot type what Shift+%1 types.</source>
        <translation>これがショートカットである間は、Shift+%1 の文字を入力できません。</translation>
    </message>
    <message>
        <source>If your desktop opens a menu on Super alone, press Super last: pressed first, it opens that menu instead.</source>
        <translation>デスクトップが Super キー単独でメニューを開く場合は、Super を最後に押してください。最初に押すとそのメニューが開きます。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Record new shortcut</source>
        <translation>新しいショートカットを記録</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1。%2</translation>
    </message>
    <message>
        <source>Recording: %1</source>
        <translation>記録中: %1</translation>
    </message>
</context>
<context>
    <name>quorvane::ShortcutSection</name>
    <message>
        <source>Keyboard Shortcut</source>
        <translation>キーボードショートカット</translation>
    </message>
    <message>
        <source>Invoke Quorvane</source>
        <translation>Quorvane を開く</translation>
    </message>
    <message>
        <source>Requires at least one modifier key (Ctrl, Alt, Shift, Super).</source>
        <translation>修飾キー (Ctrl、Alt、Shift、Super) が 1 つ以上必要です。</translation>
    </message>
</context>
<context>
    <name>quorvane::StarredFilter</name>
    <message>
        <source>Show starred only</source>
        <translation>お気に入りのみ表示</translation>
    </message>
</context>
<context>
    <name>quorvane::TimePickerPopover</name>
    <message>
        <source>Hour</source>
        <translation>時</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>分</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>現在</translation>
    </message>
    <message>
        <source>AM or PM</source>
        <translation>午前または午後</translation>
    </message>
    <message>
        <source>Not an hour</source>
        <translation>時ではありません</translation>
    </message>
    <message>
        <source>Not a minute</source>
        <translation>分ではありません</translation>
    </message>
    <message>
        <source>AM</source>
        <translation>午前</translation>
    </message>
    <message>
        <source>PM</source>
        <translation>午後</translation>
    </message>
</context>
<context>
    <name>quorvane::TimeZoneChip</name>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
</context>
<context>
    <name>quorvane::TimeZonePickerView</name>
    <message>
        <source>Time Zones</source>
        <translation>タイムゾーン</translation>
    </message>
    <message>
        <source>Search by name, city, or abbreviation</source>
        <translation>名前、都市、略称で検索</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>%1 stays, because it is the only time zone</source>
        <translation>%1 は唯一のタイムゾーンなので残ります</translation>
    </message>
    <message>
        <source>%1 removed</source>
        <translation>%1 を外しました</translation>
    </message>
    <message>
        <source>%1 added</source>
        <translation>%1 を追加しました</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>お気に入り</translation>
    </message>
    <message>
        <source>All Time Zones</source>
        <translation>すべてのタイムゾーン</translation>
    </message>
</context>
<context>
    <name>quorvane::TimeZoneSection</name>
    <message>
        <source>Time Zones</source>
        <translation>タイムゾーン</translation>
    </message>
    <message>
        <source>Add time zone</source>
        <translation>タイムゾーンを追加</translation>
    </message>
</context>
<context>
    <name>quorvane::TrayIcon</name>
    <message>
        <source>Preferences…</source>
        <translation>設定…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>更新を確認…</translation>
    </message>
    <message>
        <source>Quit Quorvane</source>
        <translation>Quorvane を終了</translation>
    </message>
    <message>
        <source>Show Quorvane</source>
        <translation>Quorvane を表示</translation>
    </message>
</context>
<context>
    <name>quorvane::TypingSection</name>
    <message>
        <source>Allowed</source>
        <translation>許可されています</translation>
    </message>
    <message>
        <source>Not allowed yet; Insert copies instead</source>
        <translation>まだ許可されていません。「挿入」は代わりにコピーします</translation>
    </message>
    <message>
        <source>Waiting for your answer</source>
        <translation>応答を待っています</translation>
    </message>
    <message>
        <source>Not allowed; Insert copies instead</source>
        <translation>許可されていません。「挿入」は代わりにコピーします</translation>
    </message>
    <message>
        <source>Stopped by your desktop; Insert copies instead</source>
        <translation>デスクトップによって停止されました。「挿入」は代わりにコピーします</translation>
    </message>
    <message>
        <source>Not available; Insert copies instead</source>
        <translation>使用できません。「挿入」は代わりにコピーします</translation>
    </message>
    <message>
        <source>Insert into Other Apps</source>
        <translation>ほかのアプリへの挿入</translation>
    </message>
    <message>
        <source>Allow…</source>
        <translation>許可…</translation>
    </message>
    <message>
        <source>Your desktop may show a mark while Quorvane can type. You can end it there.</source>
        <translation>Quorvane が入力できる間、デスクトップに印が表示されることがあります。そこから停止できます。</translation>
    </message>
    <message>
        <source>Your desktop will ask you to allow remote interaction, and may show a mark while Quorvane can type.</source>
        <translation>リモート操作の許可を求める画面がデスクトップに表示されます。Quorvane が入力できる間、印が表示されることがあります。</translation>
    </message>
</context>
<context>
    <name>quorvane::UpdaterController</name>
    <message>
        <source>Updates</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Your package manager updates Quorvane.</source>
        <translation>Quorvane はパッケージマネージャーで更新されます。</translation>
    </message>
    <message>
        <source>Flatpak updates Quorvane.</source>
        <translation>Quorvane は Flatpak で更新されます。</translation>
    </message>
    <message>
        <source>This Quorvane is updated by hand.</source>
        <translation>この Quorvane は手動で更新します。</translation>
    </message>
    <message>
        <source>It was installed as a Debian package.</source>
        <translation>Debian パッケージとしてインストールされています。</translation>
    </message>
    <message>
        <source>It was installed as a Flatpak.</source>
        <translation>Flatpak としてインストールされています。</translation>
    </message>
    <message>
        <source>It runs in the folder %1, where it was built.</source>
        <translation>ビルドしたフォルダー %1 で実行されています。</translation>
    </message>
    <message>
        <source>It was installed into the folder %1.</source>
        <translation>フォルダー %1 にインストールされています。</translation>
    </message>
    <message>
        <source>This is version %1 of %2.</source>
        <translation>バージョンは %1（%2）です。</translation>
    </message>
</context>
<context>
    <name>quorvane::ZoneChip</name>
    <message>
        <source>%1. %2</source>
        <extracomment>The place and offset of a time zone, then what a click does: &quot;Toronto, UTC−5. Remove&quot;</extracomment>
        <translation>%1。%2</translation>
    </message>
</context>
<context>
    <name>quorvane::ZoneList</name>
    <message>
        <source>Time Zones</source>
        <translation>タイムゾーン</translation>
    </message>
</context>
<context>
    <name>quorvane::ZoneListModel</name>
    <message>
        <source>%1, %2</source>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>for %1</source>
        <extracomment>Why a search found a time zone, after its name: &quot;New York, for Boston&quot;</extracomment>
        <translation>%1 で一致</translation>
    </message>
</context>
</TS>
