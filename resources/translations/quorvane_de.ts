<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Backends</name>
    <message>
        <source>This desktop does not let Quorvane type: Insert copies the text instead.</source>
        <translation>Diese Arbeitsumgebung lässt Quorvane nicht tippen: „Einfügen“ kopiert den Text stattdessen.</translation>
    </message>
    <message>
        <source>This desktop does not let Quorvane take a shortcut: bind one to it in the desktop&apos;s own settings.</source>
        <translation>Diese Arbeitsumgebung lässt Quorvane kein Tastenkürzel belegen: Legen Sie eines in ihren eigenen Einstellungen fest.</translation>
    </message>
    <message>
        <source>This desktop does not tell which window is in front: Insert goes to the one that gets the keyboard when the panel has closed.</source>
        <translation>Diese Arbeitsumgebung teilt nicht mit, welches Fenster vorn ist: „Einfügen“ schreibt in das Fenster, das nach dem Schließen von Quorvane die Tastatur erhält.</translation>
    </message>
    <message>
        <source>The desktop places the panel, and does not keep it above other windows or on all virtual desktops.</source>
        <translation>Die Arbeitsumgebung bestimmt, wo das Fenster erscheint, und hält es weder über anderen Fenstern noch auf allen Arbeitsflächen.</translation>
    </message>
    <message>
        <source>Quorvane types once you have allowed it under “Insert into Other Apps”; until then Insert copies the text.</source>
        <translation>Quorvane tippt, sobald Sie es unter „In andere Anwendungen einfügen“ erlaubt haben; bis dahin kopiert „Einfügen“ den Text.</translation>
    </message>
    <message>
        <source>This desktop does not let Quorvane take a shortcut by itself: it is added under “Keyboard Shortcut”.</source>
        <translation>Diese Arbeitsumgebung lässt Quorvane nicht von sich aus ein Tastenkürzel belegen: Es wird unter „Tastenkürzel“ hinzugefügt.</translation>
    </message>
    <message>
        <source>Copy works while a window of Quorvane has the keyboard. What the clipboard held before an Insert cannot be given back.</source>
        <translation>„Kopieren“ wirkt, solange ein Fenster von Quorvane die Tastatur hat. Was vor dem Einfügen in der Zwischenablage war, kann nicht zurückgegeben werden.</translation>
    </message>
    <message>
        <source>The desktop shares the clipboard with Quorvane once you have allowed typing under “Insert into Other Apps”, and as long as that lasts. Without it, Copy works while a window of Quorvane has the keyboard.</source>
        <translation>Die Arbeitsumgebung teilt die Zwischenablage mit Quorvane, sobald Sie das Tippen unter „In andere Anwendungen einfügen“ erlaubt haben, und solange das gilt. Sonst wirkt „Kopieren“, solange ein Fenster von Quorvane die Tastatur hat.</translation>
    </message>
</context>
<context>
    <name>DateFormatPreset</name>
    <message>
        <source>Long</source>
        <translation>Lang</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>Kurz</translation>
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
        <translation>Nur Datum</translation>
    </message>
    <message>
        <source>Time Only</source>
        <translation>Nur Uhrzeit</translation>
    </message>
    <message>
        <source>Day of Week</source>
        <translation>Wochentag</translation>
    </message>
    <message>
        <source>Unix Timestamp</source>
        <translation>Unix-Zeitstempel</translation>
    </message>
    <message>
        <source>Custom…</source>
        <translation>Eigenes Format&#xa0;…</translation>
    </message>
</context>
<context>
    <name>FavoriteTZRow</name>
    <message>
        <source>%1, %2</source>
        <extracomment>The offset and the name of a time zone: &quot;UTC-5, EST&quot;</extracomment>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>FoundZones</name>
    <message>
        <source>1 time zone: %1</source>
        <translation>1 Zeitzone: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 time zones, first %2</source>
        <translation>
            <numerusform>%1 Zeitzone, zuerst %2</numerusform>
            <numerusform>%1 Zeitzonen, zuerst %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KGlobalAccel</name>
    <message>
        <source>Show or Hide</source>
        <translation>Anzeigen oder ausblenden</translation>
    </message>
</context>
<context>
    <name>KeyNames</name>
    <message>
        <source>Ctrl</source>
        <translation>Strg</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>Steuerung</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Umschalt</translation>
    </message>
    <message>
        <source>Super</source>
        <translation>Super</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Leertaste</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Rücktaste</translation>
    </message>
    <message>
        <source>Escape</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Keypad Decimal</source>
        <translation>Ziffernblock Komma</translation>
    </message>
    <message>
        <source>Keypad Multiply</source>
        <translation>Ziffernblock Mal</translation>
    </message>
    <message>
        <source>Keypad Plus</source>
        <translation>Ziffernblock Plus</translation>
    </message>
    <message>
        <source>Num Lock</source>
        <translation>Num</translation>
    </message>
    <message>
        <source>Keypad Divide</source>
        <translation>Ziffernblock Geteilt</translation>
    </message>
    <message>
        <source>Keypad Enter</source>
        <translation>Ziffernblock Eingabe</translation>
    </message>
    <message>
        <source>Keypad Minus</source>
        <translation>Ziffernblock Minus</translation>
    </message>
    <message>
        <source>Keypad Equals</source>
        <translation>Ziffernblock Gleich</translation>
    </message>
    <message>
        <source>Keypad 0</source>
        <translation>Ziffernblock 0</translation>
    </message>
    <message>
        <source>Keypad 1</source>
        <translation>Ziffernblock 1</translation>
    </message>
    <message>
        <source>Keypad 2</source>
        <translation>Ziffernblock 2</translation>
    </message>
    <message>
        <source>Keypad 3</source>
        <translation>Ziffernblock 3</translation>
    </message>
    <message>
        <source>Keypad 4</source>
        <translation>Ziffernblock 4</translation>
    </message>
    <message>
        <source>Keypad 5</source>
        <translation>Ziffernblock 5</translation>
    </message>
    <message>
        <source>Keypad 6</source>
        <translation>Ziffernblock 6</translation>
    </message>
    <message>
        <source>Keypad 7</source>
        <translation>Ziffernblock 7</translation>
    </message>
    <message>
        <source>Keypad 8</source>
        <translation>Ziffernblock 8</translation>
    </message>
    <message>
        <source>Keypad 9</source>
        <translation>Ziffernblock 9</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Einfg</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Pos1</translation>
    </message>
    <message>
        <source>Page Up</source>
        <translation>Bild auf</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Entf</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Page Down</source>
        <translation>Bild ab</translation>
    </message>
    <message>
        <source>Left Arrow</source>
        <translation>Pfeil links</translation>
    </message>
    <message>
        <source>Right Arrow</source>
        <translation>Pfeil rechts</translation>
    </message>
    <message>
        <source>Down Arrow</source>
        <translation>Pfeil ab</translation>
    </message>
    <message>
        <source>Up Arrow</source>
        <translation>Pfeil auf</translation>
    </message>
    <message>
        <source>Print Screen</source>
        <translation>Druck</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>Key %1</source>
        <translation>Taste %1</translation>
    </message>
</context>
<context>
    <name>LineEditMenu</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
</context>
<context>
    <name>MultiZoneLayout</name>
    <message>
        <source>Inline</source>
        <translation>Einzeilig</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Zeilen</translation>
    </message>
</context>
<context>
    <name>PatternGuide</name>
    <message>
        <source>24 hours</source>
        <translation>24 Stunden</translation>
    </message>
    <message>
        <source>12 hours</source>
        <translation>12 Stunden</translation>
    </message>
    <message>
        <source>Long date</source>
        <translation>Langes Datum</translation>
    </message>
    <message>
        <source>ISO week</source>
        <translation>ISO-Woche</translation>
    </message>
    <message>
        <source>Quarter</source>
        <translation>Quartal</translation>
    </message>
    <message>
        <source>Words in quotes</source>
        <translation>Wörter in Hochkommas</translation>
    </message>
    <message>
        <source>An apostrophe</source>
        <translation>Ein Apostroph</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Jahr</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Monat</translation>
    </message>
    <message>
        <source>Month, short</source>
        <translation>Monat, kurz</translation>
    </message>
    <message>
        <source>Month, number</source>
        <translation>Monat, Zahl</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>Weekday</source>
        <translation>Wochentag</translation>
    </message>
    <message>
        <source>Weekday, short</source>
        <translation>Wochentag, kurz</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Woche</translation>
    </message>
    <message>
        <source>Hour of 24</source>
        <translation>Stunde (24)</translation>
    </message>
    <message>
        <source>Hour of 12</source>
        <translation>Stunde (12)</translation>
    </message>
    <message>
        <source>AM or PM</source>
        <translation>AM oder PM</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minute</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>Sekunde</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>Zeitzone</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>UTC-Abstand</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>Ctrl</source>
        <translation>Strg</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Umschalt</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Eingabe</translation>
    </message>
</context>
<context>
    <name>RangeLength</name>
    <message>
        <source>%1 d</source>
        <translation>%1&#xa0;T</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1&#xa0;Std.</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1&#xa0;Min.</translation>
    </message>
    <message>
        <source>Begins and ends on the same day</source>
        <translation>Beginnt und endet am selben Tag</translation>
    </message>
    <message>
        <source>Ends %1 before it begins</source>
        <translation>Endet %1 vor dem Beginn</translation>
    </message>
    <message>
        <source>Lasts %1</source>
        <translation>Dauert %1</translation>
    </message>
</context>
<context>
    <name>ZoneTexts</name>
    <message>
        <source>%1, %2</source>
        <extracomment>A place and its offset: &quot;Toronto, UTC−5&quot;</extracomment>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>quorvane::ActionBar</name>
    <message>
        <source>Insert</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Copy (%1)</source>
        <translation>Kopieren (%1)</translation>
    </message>
    <message>
        <source>Insert (%1)</source>
        <translation>Einfügen (%1)</translation>
    </message>
    <message>
        <source>Insert into %1 (%2)</source>
        <translation>In %1 einfügen (%2)</translation>
    </message>
</context>
<context>
    <name>quorvane::CalendarPicker</name>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Vorheriger Monat</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Nächster Monat</translation>
    </message>
    <message>
        <source>Not a date</source>
        <translation>Kein Datum</translation>
    </message>
    <message>
        <source>Before %1</source>
        <translation>Vor %1</translation>
    </message>
</context>
<context>
    <name>quorvane::CopyButton</name>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Kopiert</translation>
    </message>
    <message>
        <source>Could not copy</source>
        <translation>Kopieren nicht möglich</translation>
    </message>
</context>
<context>
    <name>quorvane::DateLine</name>
    <message>
        <source>Type a date</source>
        <translation>Datum eintippen</translation>
    </message>
</context>
<context>
    <name>quorvane::DateSection</name>
    <message>
        <source>When</source>
        <translation>Wann</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Uhrzeit</translation>
    </message>
    <message>
        <source>to</source>
        <translation>bis</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>Start date</source>
        <translation>Anfangsdatum</translation>
    </message>
    <message>
        <source>Start time</source>
        <translation>Anfangszeit</translation>
    </message>
    <message>
        <source>End date</source>
        <translation>Enddatum</translation>
    </message>
    <message>
        <source>End time</source>
        <translation>Endzeit</translation>
    </message>
    <message>
        <source>(in local time %1)</source>
        <translation>(Ortszeit %1)</translation>
    </message>
    <message>
        <source>Return to the present moment (Alt+N)</source>
        <translation>Zum jetzigen Zeitpunkt zurückkehren (Alt+N)</translation>
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
        <translation>Stattdessen kopiert</translation>
    </message>
    <message>
        <source>There was no window to type into. Paste with your usual keys.</source>
        <translation>Es war kein Fenster zum Hineintippen da. Fügen Sie den Text mit den üblichen Tasten ein.</translation>
    </message>
    <message>
        <source>This desktop does not let Quorvane type. Paste with your usual keys.</source>
        <translation>Diese Arbeitsumgebung lässt Quorvane nicht tippen. Fügen Sie den Text mit den üblichen Tasten ein.</translation>
    </message>
    <message>
        <source>Allow typing…</source>
        <translation>Tippen erlauben&#xa0;…</translation>
    </message>
</context>
<context>
    <name>quorvane::DesktopSection</name>
    <message>
        <source>Shortcut</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>Zwischenablage</translation>
    </message>
    <message>
        <source>Window in front</source>
        <translation>Fenster im Vordergrund</translation>
    </message>
    <message>
        <source>Panel</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>Tray icon</source>
        <translation>Symbol in der Systemleiste</translation>
    </message>
    <message>
        <source>This Desktop</source>
        <translation>Diese Arbeitsumgebung</translation>
    </message>
</context>
<context>
    <name>quorvane::FavoriteSuggestionChip</name>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
</context>
<context>
    <name>quorvane::FavoritesSection</name>
    <message>
        <source>Favorite Time Zones</source>
        <translation>Bevorzugte Zeitzonen</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>%1 removed from favorites</source>
        <translation>%1 aus den Favoriten entfernt</translation>
    </message>
    <message>
        <source>%1 added to favorites</source>
        <translation>%1 zu den Favoriten hinzugefügt</translation>
    </message>
    <message>
        <source>Favorites appear as one-click chips in the popover.</source>
        <translation>Favoriten erscheinen im Fenster als Schaltflächen, ein Klick genügt.</translation>
    </message>
    <message>
        <source>No favorite time zones</source>
        <translation>Keine bevorzugten Zeitzonen</translation>
    </message>
</context>
<context>
    <name>quorvane::FormatSection</name>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Anordnung</translation>
    </message>
</context>
<context>
    <name>quorvane::GeneralSection</name>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>Bei der Anmeldung starten</translation>
    </message>
    <message>
        <source>Remember format and zones</source>
        <translation>Format und Zeitzonen merken</translation>
    </message>
    <message>
        <source>Waiting for your answer</source>
        <translation>Warten auf Ihre Antwort</translation>
    </message>
    <message>
        <source>Your desktop did not allow this.</source>
        <translation>Ihre Arbeitsumgebung hat dies nicht zugelassen.</translation>
    </message>
</context>
<context>
    <name>quorvane::HintLine</name>
    <message>
        <source>Do not show this again</source>
        <translation>Nicht mehr anzeigen</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>Hinweis</translation>
    </message>
</context>
<context>
    <name>quorvane::IconsSection</name>
    <message>
        <source>Tray &amp; Taskbar</source>
        <translation>System- &amp; Taskleiste</translation>
    </message>
    <message>
        <source>Show icon in system tray</source>
        <translation>Symbol in der Systemleiste anzeigen</translation>
    </message>
    <message>
        <source>Show windows in taskbar</source>
        <translation>Fenster in der Taskleiste anzeigen</translation>
    </message>
    <message>
        <source>Open Quorvane from the applications menu to reach Preferences.</source>
        <translation>Öffnen Sie Quorvane über das Anwendungsmenü, um zu den Einstellungen zu gelangen.</translation>
    </message>
</context>
<context>
    <name>quorvane::ListedShortcut</name>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Takes Quorvane out of the shortcuts of %1</source>
        <translation>Nimmt Quorvane aus den Tastenkürzeln von %1 heraus</translation>
    </message>
    <message>
        <source>To use this shortcut, add it to the shortcuts of %1.</source>
        <translation>Um dieses Tastenkürzel zu verwenden, fügen Sie es den Tastenkürzeln von %1 hinzu.</translation>
    </message>
    <message>
        <source>It is in the shortcuts of %1.</source>
        <translation>Es steht in den Tastenkürzeln von %1.</translation>
    </message>
    <message>
        <source>The shortcuts of %1 still have %2 for Quorvane.</source>
        <translation>In den Tastenkürzeln von %1 steht für Quorvane noch %2.</translation>
    </message>
    <message>
        <source>In the shortcuts of %1, this one belongs to “%2”.</source>
        <translation>In den Tastenkürzeln von %1 gehört dieses zu „%2“.</translation>
    </message>
    <message>
        <source>This keyboard has no such key.</source>
        <translation>Diese Tastatur hat keine solche Taste.</translation>
    </message>
    <message>
        <source>Add to %1 shortcuts</source>
        <translation>Zu Tastenkürzeln von %1 hinzufügen</translation>
    </message>
    <message>
        <source>Change in %1 shortcuts</source>
        <translation>In Tastenkürzeln von %1 ändern</translation>
    </message>
    <message>
        <source>Record another shortcut</source>
        <translation>Anderes Tastenkürzel aufnehmen</translation>
    </message>
</context>
<context>
    <name>quorvane::MainMenu</name>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Nach Aktualisierungen suchen&#xa0;…</translation>
    </message>
    <message>
        <source>Quit Quorvane</source>
        <translation>Quorvane beenden</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
</context>
<context>
    <name>quorvane::NothingFound</name>
    <message>
        <source>No time zone matches “%1”</source>
        <translation>Keine Zeitzone passt zu „%1“</translation>
    </message>
</context>
<context>
    <name>quorvane::OutputPreview</name>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Copy “%1”</source>
        <translation>„%1“ kopieren</translation>
    </message>
</context>
<context>
    <name>quorvane::PatternEntry</name>
    <message>
        <source>Custom format</source>
        <translation>Eigenes Format</translation>
    </message>
    <message>
        <source>e.g. yyyy-MM-dd HH:mm zzz</source>
        <translation>z.&#xa0;B. yyyy-MM-dd HH:mm zzz</translation>
    </message>
</context>
<context>
    <name>quorvane::PatternField</name>
    <message>
        <source>The text ends at “%1”, which is no letter of a date. Words stand in quotes: &apos;at&apos;</source>
        <translation>Der Text endet bei „%1“, das kein Buchstabe eines Datums ist. Wörter stehen in Hochkommas: &apos;um&apos;</translation>
    </message>
</context>
<context>
    <name>quorvane::PatternHelpButton</name>
    <message>
        <source>Letters of a pattern</source>
        <translation>Buchstaben eines Musters</translation>
    </message>
</context>
<context>
    <name>quorvane::PatternPage</name>
    <message>
        <source>Ready patterns</source>
        <translation>Fertige Muster</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>Buchstaben</translation>
    </message>
</context>
<context>
    <name>quorvane::PopoverHeader</name>
    <message>
        <source>More</source>
        <translation>Mehr</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Open as panel</source>
        <translation>Als eigenes Fenster öffnen</translation>
    </message>
    <message>
        <source>Open as popover at the tray icon</source>
        <translation>Am Symbol in der Systemleiste aufklappen</translation>
    </message>
</context>
<context>
    <name>quorvane::PopoverView</name>
    <message>
        <source>Preferences…</source>
        <translation>Einstellungen&#xa0;…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Nach Aktualisierungen suchen&#xa0;…</translation>
    </message>
    <message>
        <source>Quit Quorvane</source>
        <translation>Quorvane beenden</translation>
    </message>
</context>
<context>
    <name>quorvane::PortalAutostart</name>
    <message>
        <source>Quorvane starts when you log in, so that its shortcut is there.</source>
        <translation>Quorvane startet beim Anmelden, damit sein Tastenkürzel bereitsteht.</translation>
    </message>
</context>
<context>
    <name>quorvane::PortalShortcut</name>
    <message>
        <source>the desktop</source>
        <translation>der Arbeitsumgebung</translation>
    </message>
    <message>
        <source>Show Quorvane</source>
        <translation>Quorvane anzeigen</translation>
    </message>
</context>
<context>
    <name>quorvane::PreferencesWindow</name>
    <message>
        <source>Quorvane Preferences</source>
        <translation>Quorvane-Einstellungen</translation>
    </message>
</context>
<context>
    <name>quorvane::PreviewSection</name>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Choose a time zone</source>
        <translation>Zeitzone auswählen</translation>
    </message>
</context>
<context>
    <name>quorvane::SampleRow</name>
    <message>
        <source>%1, %2</source>
        <extracomment>Letters of a pattern, then what they make: &quot;yyyy, 2026&quot;</extracomment>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>quorvane::SearchField</name>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
</context>
<context>
    <name>quorvane::ShortcutHint</name>
    <message>
        <source>No shortcut opens Quorvane yet.</source>
        <translation>Noch öffnet kein Tastenkürzel Quorvane.</translation>
    </message>
    <message>
        <source>%1 opens Quorvane in any application.</source>
        <translation>%1 öffnet Quorvane in jeder Anwendung.</translation>
    </message>
    <message>
        <source>Change…</source>
        <translation>Ändern&#xa0;…</translation>
    </message>
    <message>
        <source>The shortcut that opens Quorvane does not work here.</source>
        <translation>Das Tastenkürzel, das Quorvane öffnet, funktioniert hier nicht.</translation>
    </message>
    <message>
        <source>Set Up…</source>
        <translation>Einrichten&#xa0;…</translation>
    </message>
</context>
<context>
    <name>quorvane::ShortcutLine</name>
    <message>
        <source>Another desktop</source>
        <translation>Andere Arbeitsumgebung</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Window manager</source>
        <translation>Fensterverwaltung</translation>
    </message>
    <message>
        <source>This configuration has no name for that key: record another shortcut.</source>
        <translation>Diese Konfiguration hat keinen Namen für die Taste: Nehmen Sie ein anderes Tastenkürzel auf.</translation>
    </message>
    <message>
        <source>In the keyboard settings of your desktop, have the shortcut run this command:</source>
        <translation>Lassen Sie das Tastenkürzel in den Tastatureinstellungen Ihrer Arbeitsumgebung diesen Befehl ausführen:</translation>
    </message>
    <message>
        <source>Add this line to its configuration:</source>
        <translation>Fügen Sie ihrer Konfiguration diese Zeile hinzu:</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Kopiert</translation>
    </message>
    <message>
        <source>Could not copy</source>
        <translation>Kopieren nicht möglich</translation>
    </message>
</context>
<context>
    <name>quorvane::ShortcutRecorder</name>
    <message>
        <source>Shortcut</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Recording a new shortcut</source>
        <translation>Neues Tastenkürzel wird aufgenommen</translation>
    </message>
    <message>
        <source>Press a key together with Control, Alt, Shift or Super. Escape cancels.</source>
        <translation>Drücken Sie eine Taste zusammen mit Strg, Alt, Umschalt oder Super. Esc bricht ab.</translation>
    </message>
    <message>
        <source>Waiting for a key</source>
        <translation>Warten auf eine Taste</translation>
    </message>
    <message>
        <source>Another program holds this shortcut.</source>
        <translation>Ein anderes Programm belegt dieses Tastenkürzel.</translation>
    </message>
    <message>
        <source>%1 holds this shortcut.</source>
        <translation>%1 belegt dieses Tastenkürzel.</translation>
    </message>
    <message>
        <source>This keyboard has no such key.</source>
        <translation>Diese Tastatur hat keine solche Taste.</translation>
    </message>
    <message>
        <source>Global shortcuts are not available on this desktop.</source>
        <translation>Diese Arbeitsumgebung bietet keine globalen Tastenkürzel.</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>While this is the shortcut, you cannot type a capital %1 anywhere.</source>
        <translation>Solange dies das Tastenkürzel ist, können Sie nirgends ein großes %1 tippen.</translation>
    </message>
    <message>
        <source>While this is the shortcut, you cannot type what Shift+%1 types.</source>
        <translation>Solange dies das Tastenkürzel ist, können Sie nicht tippen, was Umschalt+%1 ergibt.</translation>
    </message>
    <message>
        <source>If your desktop opens a menu on Super alone, press Super last: pressed first, it opens that menu instead.</source>
        <translation>Falls Ihre Arbeitsumgebung bei Super allein ein Menü öffnet, drücken Sie Super zuletzt: Zuerst gedrückt, öffnet es stattdessen dieses Menü.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Record new shortcut</source>
        <translation>Neues Tastenkürzel aufnehmen</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>Recording: %1</source>
        <translation>Aufnahme: %1</translation>
    </message>
</context>
<context>
    <name>quorvane::ShortcutSection</name>
    <message>
        <source>Keyboard Shortcut</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Invoke Quorvane</source>
        <translation>Quorvane aufrufen</translation>
    </message>
    <message>
        <source>Requires at least one modifier key (Ctrl, Alt, Shift, Super).</source>
        <translation>Braucht mindestens eine Sondertaste (Strg, Alt, Umschalt, Super).</translation>
    </message>
</context>
<context>
    <name>quorvane::StarredFilter</name>
    <message>
        <source>Show starred only</source>
        <translation>Nur markierte anzeigen</translation>
    </message>
</context>
<context>
    <name>quorvane::TimePickerPopover</name>
    <message>
        <source>Hour</source>
        <translation>Stunde</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minute</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>AM or PM</source>
        <translation>AM oder PM</translation>
    </message>
    <message>
        <source>Not an hour</source>
        <translation>Keine Stunde</translation>
    </message>
    <message>
        <source>Not a minute</source>
        <translation>Keine Minute</translation>
    </message>
    <message>
        <source>AM</source>
        <translation>AM</translation>
    </message>
    <message>
        <source>PM</source>
        <translation>PM</translation>
    </message>
</context>
<context>
    <name>quorvane::TimeZoneChip</name>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
</context>
<context>
    <name>quorvane::TimeZonePickerView</name>
    <message>
        <source>Time Zones</source>
        <translation>Zeitzonen</translation>
    </message>
    <message>
        <source>Search by name, city, or abbreviation</source>
        <translation>Name, Stadt oder Abkürzung suchen</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>%1 stays, because it is the only time zone</source>
        <translation>%1 bleibt, weil es die einzige Zeitzone ist</translation>
    </message>
    <message>
        <source>%1 removed</source>
        <translation>%1 entfernt</translation>
    </message>
    <message>
        <source>%1 added</source>
        <translation>%1 hinzugefügt</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>Favoriten</translation>
    </message>
    <message>
        <source>All Time Zones</source>
        <translation>Alle Zeitzonen</translation>
    </message>
</context>
<context>
    <name>quorvane::TimeZoneSection</name>
    <message>
        <source>Time Zones</source>
        <translation>Zeitzonen</translation>
    </message>
    <message>
        <source>Add time zone</source>
        <translation>Zeitzone hinzufügen</translation>
    </message>
</context>
<context>
    <name>quorvane::TrayIcon</name>
    <message>
        <source>Preferences…</source>
        <translation>Einstellungen&#xa0;…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Nach Aktualisierungen suchen&#xa0;…</translation>
    </message>
    <message>
        <source>Quit Quorvane</source>
        <translation>Quorvane beenden</translation>
    </message>
    <message>
        <source>Show Quorvane</source>
        <translation>Quorvane anzeigen</translation>
    </message>
</context>
<context>
    <name>quorvane::TypingSection</name>
    <message>
        <source>Allowed</source>
        <translation>Erlaubt</translation>
    </message>
    <message>
        <source>Not allowed yet; Insert copies instead</source>
        <translation>Noch nicht erlaubt; „Einfügen“ kopiert stattdessen</translation>
    </message>
    <message>
        <source>Waiting for your answer</source>
        <translation>Warten auf Ihre Antwort</translation>
    </message>
    <message>
        <source>Not allowed; Insert copies instead</source>
        <translation>Nicht erlaubt; „Einfügen“ kopiert stattdessen</translation>
    </message>
    <message>
        <source>Stopped by your desktop; Insert copies instead</source>
        <translation>Von Ihrer Arbeitsumgebung beendet; „Einfügen“ kopiert stattdessen</translation>
    </message>
    <message>
        <source>Not available; Insert copies instead</source>
        <translation>Nicht verfügbar; „Einfügen“ kopiert stattdessen</translation>
    </message>
    <message>
        <source>Insert into Other Apps</source>
        <translation>In andere Anwendungen einfügen</translation>
    </message>
    <message>
        <source>Allow…</source>
        <translation>Erlauben&#xa0;…</translation>
    </message>
    <message>
        <source>Your desktop may show a mark while Quorvane can type. You can end it there.</source>
        <translation>Ihre Arbeitsumgebung zeigt womöglich ein Zeichen an, solange Quorvane tippen darf. Dort können Sie es beenden.</translation>
    </message>
    <message>
        <source>Your desktop will ask you to allow remote interaction, and may show a mark while Quorvane can type.</source>
        <translation>Ihre Arbeitsumgebung bittet Sie, Fernsteuerung zu erlauben, und zeigt womöglich ein Zeichen an, solange Quorvane tippen darf.</translation>
    </message>
</context>
<context>
    <name>quorvane::UpdaterController</name>
    <message>
        <source>Updates</source>
        <translation>Aktualisierungen</translation>
    </message>
    <message>
        <source>Your package manager updates Quorvane.</source>
        <translation>Ihre Paketverwaltung aktualisiert Quorvane.</translation>
    </message>
    <message>
        <source>Flatpak updates Quorvane.</source>
        <translation>Flatpak aktualisiert Quorvane.</translation>
    </message>
    <message>
        <source>This Quorvane is updated by hand.</source>
        <translation>Dieses Quorvane wird von Hand aktualisiert.</translation>
    </message>
    <message>
        <source>It was installed as a Debian package.</source>
        <translation>Es wurde als Debian-Paket installiert.</translation>
    </message>
    <message>
        <source>It was installed as a Flatpak.</source>
        <translation>Es wurde als Flatpak installiert.</translation>
    </message>
    <message>
        <source>It runs in the folder %1, where it was built.</source>
        <translation>Es läuft im Ordner %1, in dem es gebaut wurde.</translation>
    </message>
    <message>
        <source>It was installed into the folder %1.</source>
        <translation>Es wurde in den Ordner %1 installiert.</translation>
    </message>
    <message>
        <source>This is version %1 of %2.</source>
        <translation>Dies ist Version %1 vom %2.</translation>
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
        <translation>Zeitzonen</translation>
    </message>
</context>
<context>
    <name>quorvane::ZoneListModel</name>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>for %1</source>
        <extracomment>Why a search found a time zone, after its name: &quot;New York, for Boston&quot;</extracomment>
        <translation>für %1</translation>
    </message>
</context>
</TS>
