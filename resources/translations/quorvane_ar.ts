<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Backends</name>
    <message>
        <source>This desktop does not let Quorvane type: Insert copies the text instead.</source>
        <translation>لا يسمح سطح المكتب هذا لتطبيق Quorvane بالكتابة: زر «إدراج» ينسخ النص بدلًا من ذلك.</translation>
    </message>
    <message>
        <source>This desktop does not let Quorvane take a shortcut: bind one to it in the desktop&apos;s own settings.</source>
        <translation>لا يسمح سطح المكتب هذا لتطبيق Quorvane بحجز اختصار: اربط اختصارًا به في إعدادات سطح المكتب.</translation>
    </message>
    <message>
        <source>This desktop does not tell which window is in front: Insert goes to the one that gets the keyboard when the panel has closed.</source>
        <translation>لا يُعلِم سطح المكتب هذا بالنافذة الأمامية: يكتب زر «إدراج» في النافذة التي تنتقل إليها لوحة المفاتيح بعد إغلاق اللوحة.</translation>
    </message>
    <message>
        <source>The desktop places the panel, and does not keep it above other windows or on all virtual desktops.</source>
        <translation>يحدد سطح المكتب مكان اللوحة، ولا يبقيها فوق النوافذ الأخرى ولا على جميع أسطح المكتب الافتراضية.</translation>
    </message>
    <message>
        <source>Quorvane types once you have allowed it under “Insert into Other Apps”; until then Insert copies the text.</source>
        <translation>يكتب Quorvane بعد أن تسمح له بذلك في «الإدراج في تطبيقات أخرى»؛ وحتى ذلك الحين ينسخ زر «إدراج» النص.</translation>
    </message>
    <message>
        <source>This desktop does not let Quorvane take a shortcut by itself: it is added under “Keyboard Shortcut”.</source>
        <translation>لا يسمح سطح المكتب هذا لتطبيق Quorvane بحجز اختصار من تلقاء نفسه: يُضاف في قسم «اختصار لوحة المفاتيح».</translation>
    </message>
    <message>
        <source>Copy works while a window of Quorvane has the keyboard. What the clipboard held before an Insert cannot be given back.</source>
        <translation>يعمل زر «نسخ» ما دامت لوحة المفاتيح لدى إحدى نوافذ Quorvane. ولا يمكن استعادة ما كان في الحافظة قبل الإدراج.</translation>
    </message>
    <message>
        <source>The desktop shares the clipboard with Quorvane once you have allowed typing under “Insert into Other Apps”, and as long as that lasts. Without it, Copy works while a window of Quorvane has the keyboard.</source>
        <translation>يشارك سطح المكتب الحافظة مع Quorvane بعد أن تسمح بالكتابة في «الإدراج في تطبيقات أخرى»، وما دام السماح قائمًا. ومن دونه يعمل زر «نسخ» ما دامت لوحة المفاتيح لدى إحدى نوافذ Quorvane.</translation>
    </message>
</context>
<context>
    <name>DateFormatPreset</name>
    <message>
        <source>Long</source>
        <translation>طويل</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>متوسط</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>قصير</translation>
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
        <translation>التاريخ فقط</translation>
    </message>
    <message>
        <source>Time Only</source>
        <translation>الوقت فقط</translation>
    </message>
    <message>
        <source>Day of Week</source>
        <translation>يوم الأسبوع</translation>
    </message>
    <message>
        <source>Unix Timestamp</source>
        <translation>طابع يونكس الزمني</translation>
    </message>
    <message>
        <source>Custom…</source>
        <translation>مخصّص…</translation>
    </message>
</context>
<context>
    <name>FavoriteTZRow</name>
    <message>
        <source>%1, %2</source>
        <extracomment>The offset and the name of a time zone: &quot;UTC-5, EST&quot;</extracomment>
        <translation>%1، %2</translation>
    </message>
</context>
<context>
    <name>FoundZones</name>
    <message>
        <source>1 time zone: %1</source>
        <translation>منطقة زمنية واحدة: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 time zones, first %2</source>
        <translation>
            <numerusform>%1 منطقة زمنية، أولها %2</numerusform>
            <numerusform>منطقة زمنية واحدة، أولها %2</numerusform>
            <numerusform>منطقتان زمنيتان، أولاهما %2</numerusform>
            <numerusform>%1 مناطق زمنية، أولها %2</numerusform>
            <numerusform>%1 منطقةً زمنية، أولها %2</numerusform>
            <numerusform>%1 منطقة زمنية، أولها %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KGlobalAccel</name>
    <message>
        <source>Show or Hide</source>
        <translation>إظهار أو إخفاء</translation>
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
        <translation>المسافة</translation>
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
        <translation>الفاصلة العشرية في لوحة الأرقام</translation>
    </message>
    <message>
        <source>Keypad Multiply</source>
        <translation>الضرب في لوحة الأرقام</translation>
    </message>
    <message>
        <source>Keypad Plus</source>
        <translation>الجمع في لوحة الأرقام</translation>
    </message>
    <message>
        <source>Num Lock</source>
        <translation>Num Lock</translation>
    </message>
    <message>
        <source>Keypad Divide</source>
        <translation>القسمة في لوحة الأرقام</translation>
    </message>
    <message>
        <source>Keypad Enter</source>
        <translation>Enter في لوحة الأرقام</translation>
    </message>
    <message>
        <source>Keypad Minus</source>
        <translation>الطرح في لوحة الأرقام</translation>
    </message>
    <message>
        <source>Keypad Equals</source>
        <translation>يساوي في لوحة الأرقام</translation>
    </message>
    <message>
        <source>Keypad 0</source>
        <translation>0 في لوحة الأرقام</translation>
    </message>
    <message>
        <source>Keypad 1</source>
        <translation>1 في لوحة الأرقام</translation>
    </message>
    <message>
        <source>Keypad 2</source>
        <translation>2 في لوحة الأرقام</translation>
    </message>
    <message>
        <source>Keypad 3</source>
        <translation>3 في لوحة الأرقام</translation>
    </message>
    <message>
        <source>Keypad 4</source>
        <translation>4 في لوحة الأرقام</translation>
    </message>
    <message>
        <source>Keypad 5</source>
        <translation>5 في لوحة الأرقام</translation>
    </message>
    <message>
        <source>Keypad 6</source>
        <translation>6 في لوحة الأرقام</translation>
    </message>
    <message>
        <source>Keypad 7</source>
        <translation>7 في لوحة الأرقام</translation>
    </message>
    <message>
        <source>Keypad 8</source>
        <translation>8 في لوحة الأرقام</translation>
    </message>
    <message>
        <source>Keypad 9</source>
        <translation>9 في لوحة الأرقام</translation>
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
        <translation>السهم الأيسر</translation>
    </message>
    <message>
        <source>Right Arrow</source>
        <translation>السهم الأيمن</translation>
    </message>
    <message>
        <source>Down Arrow</source>
        <translation>السهم السفلي</translation>
    </message>
    <message>
        <source>Up Arrow</source>
        <translation>السهم العلوي</translation>
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
        <translation>القائمة</translation>
    </message>
    <message>
        <source>Key %1</source>
        <translation>المفتاح %1</translation>
    </message>
</context>
<context>
    <name>LineEditMenu</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;تراجع</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>إعا&amp;دة</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;قص</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;نسخ</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;لصق</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>حذف</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>تحديد الكل</translation>
    </message>
</context>
<context>
    <name>MultiZoneLayout</name>
    <message>
        <source>Inline</source>
        <translation>متتابع</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>أسطر</translation>
    </message>
</context>
<context>
    <name>PatternGuide</name>
    <message>
        <source>24 hours</source>
        <translation>24 ساعة</translation>
    </message>
    <message>
        <source>12 hours</source>
        <translation>12 ساعة</translation>
    </message>
    <message>
        <source>Long date</source>
        <translation>تاريخ طويل</translation>
    </message>
    <message>
        <source>ISO week</source>
        <translation>أسبوع ISO</translation>
    </message>
    <message>
        <source>Quarter</source>
        <translation>ربع السنة</translation>
    </message>
    <message>
        <source>Words in quotes</source>
        <translation>كلمات بين علامات اقتباس</translation>
    </message>
    <message>
        <source>An apostrophe</source>
        <translation>فاصلة عليا</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>اسم ملف</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>السنة</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>الشهر</translation>
    </message>
    <message>
        <source>Month, short</source>
        <translation>الشهر، مختصرًا</translation>
    </message>
    <message>
        <source>Month, number</source>
        <translation>الشهر، رقمًا</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>اليوم</translation>
    </message>
    <message>
        <source>Weekday</source>
        <translation>يوم الأسبوع</translation>
    </message>
    <message>
        <source>Weekday, short</source>
        <translation>يوم الأسبوع، مختصرًا</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>الأسبوع</translation>
    </message>
    <message>
        <source>Hour of 24</source>
        <translation>الساعة (24)</translation>
    </message>
    <message>
        <source>Hour of 12</source>
        <translation>الساعة (12)</translation>
    </message>
    <message>
        <source>AM or PM</source>
        <translation>ص أو م</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>الدقيقة</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>الثانية</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>المنطقة الزمنية</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>فرق التوقيت</translation>
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
        <translation>%1&#xa0;ي</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1&#xa0;س</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1&#xa0;د</translation>
    </message>
    <message>
        <source>Begins and ends on the same day</source>
        <translation>يبدأ وينتهي في اليوم نفسه</translation>
    </message>
    <message>
        <source>Ends %1 before it begins</source>
        <translation>ينتهي قبل بدايته بمقدار %1</translation>
    </message>
    <message>
        <source>Lasts %1</source>
        <translation>المدة %1</translation>
    </message>
</context>
<context>
    <name>ZoneTexts</name>
    <message>
        <source>%1, %2</source>
        <extracomment>A place and its offset: &quot;Toronto, UTC−5&quot;</extracomment>
        <translation>%1، %2</translation>
    </message>
</context>
<context>
    <name>quorvane::ActionBar</name>
    <message>
        <source>Insert</source>
        <translation>إدراج</translation>
    </message>
    <message>
        <source>Copy (%1)</source>
        <translation>نسخ (%1)</translation>
    </message>
    <message>
        <source>Insert (%1)</source>
        <translation>إدراج (%1)</translation>
    </message>
    <message>
        <source>Insert into %1 (%2)</source>
        <translation>إدراج في %1 (%2)</translation>
    </message>
</context>
<context>
    <name>quorvane::CalendarPicker</name>
    <message>
        <source>Today</source>
        <translation>اليوم</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>الشهر السابق</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>الشهر التالي</translation>
    </message>
    <message>
        <source>Not a date</source>
        <translation>ليس تاريخًا</translation>
    </message>
    <message>
        <source>Before %1</source>
        <translation>قبل %1</translation>
    </message>
</context>
<context>
    <name>quorvane::CopyButton</name>
    <message>
        <source>Copy</source>
        <translation>نسخ</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>تم النسخ</translation>
    </message>
    <message>
        <source>Could not copy</source>
        <translation>تعذّر النسخ</translation>
    </message>
</context>
<context>
    <name>quorvane::DateLine</name>
    <message>
        <source>Type a date</source>
        <translation>اكتب تاريخًا</translation>
    </message>
</context>
<context>
    <name>quorvane::DateSection</name>
    <message>
        <source>When</source>
        <translation>متى</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>التاريخ</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>الوقت</translation>
    </message>
    <message>
        <source>to</source>
        <translation>إلى</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>الآن</translation>
    </message>
    <message>
        <source>Start date</source>
        <translation>تاريخ البدء</translation>
    </message>
    <message>
        <source>Start time</source>
        <translation>وقت البدء</translation>
    </message>
    <message>
        <source>End date</source>
        <translation>تاريخ الانتهاء</translation>
    </message>
    <message>
        <source>End time</source>
        <translation>وقت الانتهاء</translation>
    </message>
    <message>
        <source>(in local time %1)</source>
        <translation>(بالتوقيت المحلي %1)</translation>
    </message>
    <message>
        <source>Return to the present moment (Alt+N)</source>
        <translation>العودة إلى اللحظة الحالية (Alt+N)</translation>
    </message>
</context>
<context>
    <name>quorvane::DeliveryNotice</name>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>Copied instead</source>
        <translation>تم النسخ بدلًا من ذلك</translation>
    </message>
    <message>
        <source>There was no window to type into. Paste with your usual keys.</source>
        <translation>لم تكن هناك نافذة للكتابة فيها. ألصق النص بالمفاتيح المعتادة.</translation>
    </message>
    <message>
        <source>This desktop does not let Quorvane type. Paste with your usual keys.</source>
        <translation>لا يسمح سطح المكتب هذا لتطبيق Quorvane بالكتابة. ألصق النص بالمفاتيح المعتادة.</translation>
    </message>
    <message>
        <source>Allow typing…</source>
        <translation>السماح بالكتابة…</translation>
    </message>
</context>
<context>
    <name>quorvane::DesktopSection</name>
    <message>
        <source>Shortcut</source>
        <translation>الاختصار</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>إدراج</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>الحافظة</translation>
    </message>
    <message>
        <source>Window in front</source>
        <translation>النافذة الأمامية</translation>
    </message>
    <message>
        <source>Panel</source>
        <translation>اللوحة</translation>
    </message>
    <message>
        <source>Tray icon</source>
        <translation>أيقونة صينية النظام</translation>
    </message>
    <message>
        <source>This Desktop</source>
        <translation>سطح المكتب هذا</translation>
    </message>
</context>
<context>
    <name>quorvane::FavoriteSuggestionChip</name>
    <message>
        <source>Add</source>
        <translation>إضافة</translation>
    </message>
</context>
<context>
    <name>quorvane::FavoritesSection</name>
    <message>
        <source>Favorite Time Zones</source>
        <translation>المناطق الزمنية المفضلة</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>بحث</translation>
    </message>
    <message>
        <source>%1 removed from favorites</source>
        <translation>أُزيلت %1 من المفضلة</translation>
    </message>
    <message>
        <source>%1 added to favorites</source>
        <translation>أُضيفت %1 إلى المفضلة</translation>
    </message>
    <message>
        <source>Favorites appear as one-click chips in the popover.</source>
        <translation>تظهر المناطق المفضلة في اللوحة بحيث تُختار بنقرة واحدة.</translation>
    </message>
    <message>
        <source>No favorite time zones</source>
        <translation>لا توجد مناطق زمنية مفضلة</translation>
    </message>
</context>
<context>
    <name>quorvane::FormatSection</name>
    <message>
        <source>Format</source>
        <translation>التنسيق</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>التخطيط</translation>
    </message>
</context>
<context>
    <name>quorvane::GeneralSection</name>
    <message>
        <source>General</source>
        <translation>عام</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>البدء عند تسجيل الدخول</translation>
    </message>
    <message>
        <source>Remember format and zones</source>
        <translation>تذكّر التنسيق والمناطق الزمنية</translation>
    </message>
    <message>
        <source>Waiting for your answer</source>
        <translation>بانتظار إجابتك</translation>
    </message>
    <message>
        <source>Your desktop did not allow this.</source>
        <translation>لم يسمح سطح المكتب بذلك.</translation>
    </message>
</context>
<context>
    <name>quorvane::HintLine</name>
    <message>
        <source>Do not show this again</source>
        <translation>عدم الإظهار مجددًا</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>تلميح</translation>
    </message>
</context>
<context>
    <name>quorvane::IconsSection</name>
    <message>
        <source>Tray &amp; Taskbar</source>
        <translation>صينية النظام وشريط المهام</translation>
    </message>
    <message>
        <source>Show icon in system tray</source>
        <translation>إظهار أيقونة في صينية النظام</translation>
    </message>
    <message>
        <source>Show windows in taskbar</source>
        <translation>إظهار النوافذ في شريط المهام</translation>
    </message>
    <message>
        <source>Open Quorvane from the applications menu to reach Preferences.</source>
        <translation>افتح Quorvane من قائمة التطبيقات للوصول إلى الإعدادات.</translation>
    </message>
</context>
<context>
    <name>quorvane::ListedShortcut</name>
    <message>
        <source>Remove</source>
        <translation>إزالة</translation>
    </message>
    <message>
        <source>Takes Quorvane out of the shortcuts of %1</source>
        <translation>يزيل Quorvane من اختصارات %1</translation>
    </message>
    <message>
        <source>To use this shortcut, add it to the shortcuts of %1.</source>
        <translation>لاستخدام هذا الاختصار، أضِفه إلى اختصارات %1.</translation>
    </message>
    <message>
        <source>It is in the shortcuts of %1.</source>
        <translation>إنه موجود في اختصارات %1.</translation>
    </message>
    <message>
        <source>The shortcuts of %1 still have %2 for Quorvane.</source>
        <translation>لا يزال %2 مخصصًا لتطبيق Quorvane في اختصارات %1.</translation>
    </message>
    <message>
        <source>In the shortcuts of %1, this one belongs to “%2”.</source>
        <translation>في اختصارات %1، هذا الاختصار مخصص لـ «%2».</translation>
    </message>
    <message>
        <source>This keyboard has no such key.</source>
        <translation>لا تحتوي لوحة المفاتيح هذه على هذا المفتاح.</translation>
    </message>
    <message>
        <source>Add to %1 shortcuts</source>
        <translation>الإضافة إلى اختصارات %1</translation>
    </message>
    <message>
        <source>Change in %1 shortcuts</source>
        <translation>التغيير في اختصارات %1</translation>
    </message>
    <message>
        <source>Record another shortcut</source>
        <translation>تسجيل اختصار آخر</translation>
    </message>
</context>
<context>
    <name>quorvane::MainMenu</name>
    <message>
        <source>Edit</source>
        <translation>تحرير</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>البحث عن تحديثات…</translation>
    </message>
    <message>
        <source>Quit Quorvane</source>
        <translation>إنهاء Quorvane</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>تراجع</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>إعادة</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>قص</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>نسخ</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>لصق</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>تحديد الكل</translation>
    </message>
</context>
<context>
    <name>quorvane::NothingFound</name>
    <message>
        <source>No time zone matches “%1”</source>
        <translation>لا توجد منطقة زمنية تطابق «%1»</translation>
    </message>
</context>
<context>
    <name>quorvane::OutputPreview</name>
    <message>
        <source>Preview</source>
        <translation>معاينة</translation>
    </message>
    <message>
        <source>Copy “%1”</source>
        <translation>نسخ «%1»</translation>
    </message>
</context>
<context>
    <name>quorvane::PatternEntry</name>
    <message>
        <source>Custom format</source>
        <translation>تنسيق مخصّص</translation>
    </message>
    <message>
        <source>e.g. yyyy-MM-dd HH:mm zzz</source>
        <translation>مثلًا yyyy-MM-dd HH:mm zzz</translation>
    </message>
</context>
<context>
    <name>quorvane::PatternField</name>
    <message>
        <source>The text ends at “%1”, which is no letter of a date. Words stand in quotes: &apos;at&apos;</source>
        <translation>ينتهي النص عند «%1»، وهو ليس من حروف التاريخ. تُكتب الكلمات بين علامتي اقتباس: &apos;في&apos;</translation>
    </message>
</context>
<context>
    <name>quorvane::PatternHelpButton</name>
    <message>
        <source>Letters of a pattern</source>
        <translation>حروف النمط</translation>
    </message>
</context>
<context>
    <name>quorvane::PatternPage</name>
    <message>
        <source>Ready patterns</source>
        <translation>أنماط جاهزة</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>الحروف</translation>
    </message>
</context>
<context>
    <name>quorvane::PopoverHeader</name>
    <message>
        <source>More</source>
        <translation>المزيد</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>Open as panel</source>
        <translation>الفتح كلوحة</translation>
    </message>
    <message>
        <source>Open as popover at the tray icon</source>
        <translation>الفتح كنافذة منبثقة عند أيقونة صينية النظام</translation>
    </message>
</context>
<context>
    <name>quorvane::PopoverView</name>
    <message>
        <source>Preferences…</source>
        <translation>الإعدادات…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>البحث عن تحديثات…</translation>
    </message>
    <message>
        <source>Quit Quorvane</source>
        <translation>إنهاء Quorvane</translation>
    </message>
</context>
<context>
    <name>quorvane::PortalAutostart</name>
    <message>
        <source>Quorvane starts when you log in, so that its shortcut is there.</source>
        <translation>يبدأ Quorvane عند تسجيل الدخول كي يكون اختصاره متاحًا.</translation>
    </message>
</context>
<context>
    <name>quorvane::PortalShortcut</name>
    <message>
        <source>the desktop</source>
        <translation>سطح المكتب</translation>
    </message>
    <message>
        <source>Show Quorvane</source>
        <translation>إظهار Quorvane</translation>
    </message>
</context>
<context>
    <name>quorvane::PreferencesWindow</name>
    <message>
        <source>Quorvane Preferences</source>
        <translation>إعدادات Quorvane</translation>
    </message>
</context>
<context>
    <name>quorvane::PreviewSection</name>
    <message>
        <source>Preview</source>
        <translation>معاينة</translation>
    </message>
    <message>
        <source>Choose a time zone</source>
        <translation>اختر منطقة زمنية</translation>
    </message>
</context>
<context>
    <name>quorvane::SampleRow</name>
    <message>
        <source>%1, %2</source>
        <extracomment>Letters of a pattern, then what they make: &quot;yyyy, 2026&quot;</extracomment>
        <translation>%1، %2</translation>
    </message>
</context>
<context>
    <name>quorvane::SearchField</name>
    <message>
        <source>Clear</source>
        <translation>مسح</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>بحث</translation>
    </message>
</context>
<context>
    <name>quorvane::ShortcutHint</name>
    <message>
        <source>No shortcut opens Quorvane yet.</source>
        <translation>لا يوجد بعدُ اختصار يفتح Quorvane.</translation>
    </message>
    <message>
        <source>%1 opens Quorvane in any application.</source>
        <translation>يفتح %1 تطبيق Quorvane من أي تطبيق.</translation>
    </message>
    <message>
        <source>Change…</source>
        <translation>تغيير…</translation>
    </message>
    <message>
        <source>The shortcut that opens Quorvane does not work here.</source>
        <translation>لا يعمل هنا الاختصار الذي يفتح Quorvane.</translation>
    </message>
    <message>
        <source>Set Up…</source>
        <translation>إعداد…</translation>
    </message>
</context>
<context>
    <name>quorvane::ShortcutLine</name>
    <message>
        <source>Another desktop</source>
        <translation>سطح مكتب آخر</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>نسخ</translation>
    </message>
    <message>
        <source>Window manager</source>
        <translation>مدير النوافذ</translation>
    </message>
    <message>
        <source>This configuration has no name for that key: record another shortcut.</source>
        <translation>ليس لهذا المفتاح اسم في هذا الإعداد: سجّل اختصارًا آخر.</translation>
    </message>
    <message>
        <source>In the keyboard settings of your desktop, have the shortcut run this command:</source>
        <translation>في إعدادات لوحة المفاتيح في سطح المكتب، اجعل الاختصار يشغّل هذا الأمر:</translation>
    </message>
    <message>
        <source>Add this line to its configuration:</source>
        <translation>أضِف هذا السطر إلى إعداداته:</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>تم النسخ</translation>
    </message>
    <message>
        <source>Could not copy</source>
        <translation>تعذّر النسخ</translation>
    </message>
</context>
<context>
    <name>quorvane::ShortcutRecorder</name>
    <message>
        <source>Shortcut</source>
        <translation>الاختصار</translation>
    </message>
    <message>
        <source>Recording a new shortcut</source>
        <translation>جارٍ تسجيل اختصار جديد</translation>
    </message>
    <message>
        <source>Press a key together with Control, Alt, Shift or Super. Escape cancels.</source>
        <translation>اضغط مفتاحًا مع Ctrl أو Alt أو Shift أو Super. يلغي Esc التسجيل.</translation>
    </message>
    <message>
        <source>Waiting for a key</source>
        <translation>بانتظار مفتاح</translation>
    </message>
    <message>
        <source>Another program holds this shortcut.</source>
        <translation>يستخدم برنامج آخر هذا الاختصار.</translation>
    </message>
    <message>
        <source>%1 holds this shortcut.</source>
        <translation>يستخدم %1 هذا الاختصار.</translation>
    </message>
    <message>
        <source>This keyboard has no such key.</source>
        <translation>لا تحتوي لوحة المفاتيح هذه على هذا المفتاح.</translation>
    </message>
    <message>
        <source>Global shortcuts are not available on this desktop.</source>
        <translation>الاختصارات العامة غير متاحة على سطح المكتب هذا.</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1، %2</translation>
    </message>
    <message>
        <source>While this is the shortcut, you cannot type a capital %1 anywhere.</source>
        <translation>ما دام هذا هو الاختصار، لا يمكنك كتابة الحرف الكبير %1 في أي مكان.</translation>
    </message>
    <message>
        <source>While this is the shortcut, you cannot type what Shift+%1 types.</source>
        <translation>ما دام هذا هو الاختصار، لا يمكنك كتابة ما ينتج عن Shift+%1.</translation>
    </message>
    <message>
        <source>If your desktop opens a menu on Super alone, press Super last: pressed first, it opens that menu instead.</source>
        <translation>إذا كان سطح المكتب يفتح قائمة عند ضغط Super وحده، فاضغط Super أخيرًا: إن ضُغط أولًا فُتحت تلك القائمة.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Record new shortcut</source>
        <translation>تسجيل اختصار جديد</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>Recording: %1</source>
        <translation>جارٍ التسجيل: %1</translation>
    </message>
</context>
<context>
    <name>quorvane::ShortcutSection</name>
    <message>
        <source>Keyboard Shortcut</source>
        <translation>اختصار لوحة المفاتيح</translation>
    </message>
    <message>
        <source>Invoke Quorvane</source>
        <translation>فتح Quorvane</translation>
    </message>
    <message>
        <source>Requires at least one modifier key (Ctrl, Alt, Shift, Super).</source>
        <translation>يتطلب مفتاح تحكّم واحدًا على الأقل (Ctrl أو Alt أو Shift أو Super).</translation>
    </message>
</context>
<context>
    <name>quorvane::StarredFilter</name>
    <message>
        <source>Show starred only</source>
        <translation>إظهار المفضلة فقط</translation>
    </message>
</context>
<context>
    <name>quorvane::TimePickerPopover</name>
    <message>
        <source>Hour</source>
        <translation>الساعة</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>الدقيقة</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>الآن</translation>
    </message>
    <message>
        <source>AM or PM</source>
        <translation>صباحًا أو مساءً</translation>
    </message>
    <message>
        <source>Not an hour</source>
        <translation>ليست ساعة</translation>
    </message>
    <message>
        <source>Not a minute</source>
        <translation>ليست دقيقة</translation>
    </message>
    <message>
        <source>AM</source>
        <translation>ص</translation>
    </message>
    <message>
        <source>PM</source>
        <translation>م</translation>
    </message>
</context>
<context>
    <name>quorvane::TimeZoneChip</name>
    <message>
        <source>Remove</source>
        <translation>إزالة</translation>
    </message>
</context>
<context>
    <name>quorvane::TimeZonePickerView</name>
    <message>
        <source>Time Zones</source>
        <translation>المناطق الزمنية</translation>
    </message>
    <message>
        <source>Search by name, city, or abbreviation</source>
        <translation>البحث بالاسم أو المدينة أو الاختصار</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>تم</translation>
    </message>
    <message>
        <source>%1 stays, because it is the only time zone</source>
        <translation>تبقى %1 لأنها المنطقة الزمنية الوحيدة</translation>
    </message>
    <message>
        <source>%1 removed</source>
        <translation>أُزيلت %1</translation>
    </message>
    <message>
        <source>%1 added</source>
        <translation>أُضيفت %1</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>المفضلة</translation>
    </message>
    <message>
        <source>All Time Zones</source>
        <translation>كل المناطق الزمنية</translation>
    </message>
</context>
<context>
    <name>quorvane::TimeZoneSection</name>
    <message>
        <source>Time Zones</source>
        <translation>المناطق الزمنية</translation>
    </message>
    <message>
        <source>Add time zone</source>
        <translation>إضافة منطقة زمنية</translation>
    </message>
</context>
<context>
    <name>quorvane::TrayIcon</name>
    <message>
        <source>Preferences…</source>
        <translation>الإعدادات…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>البحث عن تحديثات…</translation>
    </message>
    <message>
        <source>Quit Quorvane</source>
        <translation>إنهاء Quorvane</translation>
    </message>
    <message>
        <source>Show Quorvane</source>
        <translation>إظهار Quorvane</translation>
    </message>
</context>
<context>
    <name>quorvane::TypingSection</name>
    <message>
        <source>Allowed</source>
        <translation>مسموح</translation>
    </message>
    <message>
        <source>Not allowed yet; Insert copies instead</source>
        <translation>غير مسموح بعد؛ زر «إدراج» ينسخ بدلًا من ذلك</translation>
    </message>
    <message>
        <source>Waiting for your answer</source>
        <translation>بانتظار إجابتك</translation>
    </message>
    <message>
        <source>Not allowed; Insert copies instead</source>
        <translation>غير مسموح؛ زر «إدراج» ينسخ بدلًا من ذلك</translation>
    </message>
    <message>
        <source>Stopped by your desktop; Insert copies instead</source>
        <translation>أوقفه سطح المكتب؛ زر «إدراج» ينسخ بدلًا من ذلك</translation>
    </message>
    <message>
        <source>Not available; Insert copies instead</source>
        <translation>غير متاح؛ زر «إدراج» ينسخ بدلًا من ذلك</translation>
    </message>
    <message>
        <source>Insert into Other Apps</source>
        <translation>الإدراج في تطبيقات أخرى</translation>
    </message>
    <message>
        <source>Allow…</source>
        <translation>السماح…</translation>
    </message>
    <message>
        <source>Your desktop may show a mark while Quorvane can type. You can end it there.</source>
        <translation>قد يُظهر سطح المكتب علامة ما دام Quorvane قادرًا على الكتابة. ويمكنك إيقافه من هناك.</translation>
    </message>
    <message>
        <source>Your desktop will ask you to allow remote interaction, and may show a mark while Quorvane can type.</source>
        <translation>سيطلب منك سطح المكتب السماح بالتفاعل عن بُعد، وقد يُظهر علامة ما دام Quorvane قادرًا على الكتابة.</translation>
    </message>
</context>
<context>
    <name>quorvane::UpdaterController</name>
    <message>
        <source>Updates</source>
        <translation>التحديثات</translation>
    </message>
    <message>
        <source>Your package manager updates Quorvane.</source>
        <translation>يحدّث مدير الحزم تطبيق Quorvane.</translation>
    </message>
    <message>
        <source>Flatpak updates Quorvane.</source>
        <translation>يحدّث Flatpak تطبيق Quorvane.</translation>
    </message>
    <message>
        <source>This Quorvane is updated by hand.</source>
        <translation>يُحدَّث هذا الإصدار من Quorvane يدويًا.</translation>
    </message>
    <message>
        <source>It was installed as a Debian package.</source>
        <translation>ثُبِّت كحزمة دبيان.</translation>
    </message>
    <message>
        <source>It was installed as a Flatpak.</source>
        <translation>ثُبِّت كحزمة Flatpak.</translation>
    </message>
    <message>
        <source>It runs in the folder %1, where it was built.</source>
        <translation>يعمل في المجلد %1 الذي بُني فيه.</translation>
    </message>
    <message>
        <source>It was installed into the folder %1.</source>
        <translation>ثُبِّت في المجلد %1.</translation>
    </message>
    <message>
        <source>This is version %1 of %2.</source>
        <translation>هذا هو الإصدار %1 بتاريخ %2.</translation>
    </message>
</context>
<context>
    <name>quorvane::ZoneChip</name>
    <message>
        <source>%1. %2</source>
        <extracomment>The place and offset of a time zone, then what a click does: &quot;Toronto, UTC−5. Remove&quot;</extracomment>
        <translation>%1. %2</translation>
    </message>
</context>
<context>
    <name>quorvane::ZoneList</name>
    <message>
        <source>Time Zones</source>
        <translation>المناطق الزمنية</translation>
    </message>
</context>
<context>
    <name>quorvane::ZoneListModel</name>
    <message>
        <source>%1, %2</source>
        <translation>%1، %2</translation>
    </message>
    <message>
        <source>for %1</source>
        <extracomment>Why a search found a time zone, after its name: &quot;New York, for Boston&quot;</extracomment>
        <translation>لأجل %1</translation>
    </message>
</context>
</TS>
