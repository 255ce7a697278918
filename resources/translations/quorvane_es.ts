<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Backends</name>
    <message>
        <source>This desktop does not let Quorvane type: Insert copies the text instead.</source>
        <translation>Este escritorio no permite que Quorvane escriba: «Insertar» copia el texto en su lugar.</translation>
    </message>
    <message>
        <source>This desktop does not let Quorvane take a shortcut: bind one to it in the desktop&apos;s own settings.</source>
        <translation>Este escritorio no permite que Quorvane reserve un atajo: asígnele uno en la configuración del escritorio.</translation>
    </message>
    <message>
        <source>This desktop does not tell which window is in front: Insert goes to the one that gets the keyboard when the panel has closed.</source>
        <translation>Este escritorio no indica qué ventana está delante: «Insertar» escribe en la que recibe el teclado cuando se cierra el panel.</translation>
    </message>
    <message>
        <source>The desktop places the panel, and does not keep it above other windows or on all virtual desktops.</source>
        <translation>El escritorio decide dónde aparece el panel y no lo mantiene encima de otras ventanas ni en todos los escritorios virtuales.</translation>
    </message>
    <message>
        <source>Quorvane types once you have allowed it under “Insert into Other Apps”; until then Insert copies the text.</source>
        <translation>Quorvane escribirá cuando usted lo permita en «Insertar en otras aplicaciones»; hasta entonces, «Insertar» copia el texto.</translation>
    </message>
    <message>
        <source>This desktop does not let Quorvane take a shortcut by itself: it is added under “Keyboard Shortcut”.</source>
        <translation>Este escritorio no permite que Quorvane reserve un atajo por sí mismo: se añade en «Atajo de teclado».</translation>
    </message>
    <message>
        <source>Copy works while a window of Quorvane has the keyboard. What the clipboard held before an Insert cannot be given back.</source>
        <translation>«Copiar» funciona mientras una ventana de Quorvane tiene el teclado. Lo que había en el portapapeles antes de insertar no se puede restaurar.</translation>
    </message>
    <message>
        <source>The desktop shares the clipboard with Quorvane once you have allowed typing under “Insert into Other Apps”, and as long as that lasts. Without it, Copy works while a window of Quorvane has the keyboard.</source>
        <translation>El escritorio comparte el portapapeles con Quorvane cuando usted permite la escritura en «Insertar en otras aplicaciones», y mientras eso dure. Sin ello, «Copiar» funciona mientras una ventana de Quorvane tiene el teclado.</translation>
    </message>
</context>
<context>
    <name>DateFormatPreset</name>
    <message>
        <source>Long</source>
        <translation>Largo</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Medio</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>Corto</translation>
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
        <translation>Solo fecha</translation>
    </message>
    <message>
        <source>Time Only</source>
        <translation>Solo hora</translation>
    </message>
    <message>
        <source>Day of Week</source>
        <translation>Día de la semana</translation>
    </message>
    <message>
        <source>Unix Timestamp</source>
        <translation>Marca de tiempo Unix</translation>
    </message>
    <message>
        <source>Custom…</source>
        <translation>Personalizado…</translation>
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
        <translation>1 zona horaria: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 time zones, first %2</source>
        <translation>
            <numerusform>%1 zona horaria, la primera: %2</numerusform>
            <numerusform>%1 zonas horarias, la primera: %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KGlobalAccel</name>
    <message>
        <source>Show or Hide</source>
        <translation>Mostrar u ocultar</translation>
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
        <translation>Mayús</translation>
    </message>
    <message>
        <source>Super</source>
        <translation>Super</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Intro</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espacio</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Retroceso</translation>
    </message>
    <message>
        <source>Escape</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Keypad Decimal</source>
        <translation>Decimal del teclado numérico</translation>
    </message>
    <message>
        <source>Keypad Multiply</source>
        <translation>Multiplicar del teclado numérico</translation>
    </message>
    <message>
        <source>Keypad Plus</source>
        <translation>Más del teclado numérico</translation>
    </message>
    <message>
        <source>Num Lock</source>
        <translation>Bloq Num</translation>
    </message>
    <message>
        <source>Keypad Divide</source>
        <translation>Dividir del teclado numérico</translation>
    </message>
    <message>
        <source>Keypad Enter</source>
        <translation>Intro del teclado numérico</translation>
    </message>
    <message>
        <source>Keypad Minus</source>
        <translation>Menos del teclado numérico</translation>
    </message>
    <message>
        <source>Keypad Equals</source>
        <translation>Igual del teclado numérico</translation>
    </message>
    <message>
        <source>Keypad 0</source>
        <translation>0 del teclado numérico</translation>
    </message>
    <message>
        <source>Keypad 1</source>
        <translation>1 del teclado numérico</translation>
    </message>
    <message>
        <source>Keypad 2</source>
        <translation>2 del teclado numérico</translation>
    </message>
    <message>
        <source>Keypad 3</source>
        <translation>3 del teclado numérico</translation>
    </message>
    <message>
        <source>Keypad 4</source>
        <translation>4 del teclado numérico</translation>
    </message>
    <message>
        <source>Keypad 5</source>
        <translation>5 del teclado numérico</translation>
    </message>
    <message>
        <source>Keypad 6</source>
        <translation>6 del teclado numérico</translation>
    </message>
    <message>
        <source>Keypad 7</source>
        <translation>7 del teclado numérico</translation>
    </message>
    <message>
        <source>Keypad 8</source>
        <translation>8 del teclado numérico</translation>
    </message>
    <message>
        <source>Keypad 9</source>
        <translation>9 del teclado numérico</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Insert</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Page Up</source>
        <translation>Re Pág</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supr</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Page Down</source>
        <translation>Av Pág</translation>
    </message>
    <message>
        <source>Left Arrow</source>
        <translation>Flecha izquierda</translation>
    </message>
    <message>
        <source>Right Arrow</source>
        <translation>Flecha derecha</translation>
    </message>
    <message>
        <source>Down Arrow</source>
        <translation>Flecha abajo</translation>
    </message>
    <message>
        <source>Up Arrow</source>
        <translation>Flecha arriba</translation>
    </message>
    <message>
        <source>Print Screen</source>
        <translation>Impr Pant</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menú</translation>
    </message>
    <message>
        <source>Key %1</source>
        <translation>Tecla %1</translation>
    </message>
</context>
<context>
    <name>LineEditMenu</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cor&amp;tar</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Pegar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
</context>
<context>
    <name>MultiZoneLayout</name>
    <message>
        <source>Inline</source>
        <translation>En línea</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Líneas</translation>
    </message>
</context>
<context>
    <name>PatternGuide</name>
    <message>
        <source>24 hours</source>
        <translation>24 horas</translation>
    </message>
    <message>
        <source>12 hours</source>
        <translation>12 horas</translation>
    </message>
    <message>
        <source>Long date</source>
        <translation>Fecha larga</translation>
    </message>
    <message>
        <source>ISO week</source>
        <translation>Semana ISO</translation>
    </message>
    <message>
        <source>Quarter</source>
        <translation>Trimestre</translation>
    </message>
    <message>
        <source>Words in quotes</source>
        <translation>Palabras entre comillas</translation>
    </message>
    <message>
        <source>An apostrophe</source>
        <translation>Un apóstrofo</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nombre de archivo</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Año</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Mes</translation>
    </message>
    <message>
        <source>Month, short</source>
        <translation>Mes, abreviado</translation>
    </message>
    <message>
        <source>Month, number</source>
        <translation>Mes, número</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Día</translation>
    </message>
    <message>
        <source>Weekday</source>
        <translation>Día de la semana</translation>
    </message>
    <message>
        <source>Weekday, short</source>
        <translation>Día, abreviado</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Semana</translation>
    </message>
    <message>
        <source>Hour of 24</source>
        <translation>Hora (24)</translation>
    </message>
    <message>
        <source>Hour of 12</source>
        <translation>Hora (12)</translation>
    </message>
    <message>
        <source>AM or PM</source>
        <translation>a. m. o p. m.</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minuto</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>Segundo</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>Zona horaria</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Desfase</translation>
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
        <translation>Mayús</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Intro</translation>
    </message>
</context>
<context>
    <name>RangeLength</name>
    <message>
        <source>%1 d</source>
        <translation>%1&#xa0;d</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1&#xa0;h</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1&#xa0;min</translation>
    </message>
    <message>
        <source>Begins and ends on the same day</source>
        <translation>Empieza y termina el mismo día</translation>
    </message>
    <message>
        <source>Ends %1 before it begins</source>
        <translation>Termina %1 antes de empezar</translation>
    </message>
    <message>
        <source>Lasts %1</source>
        <translation>Dura %1</translation>
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
        <translation>Insertar</translation>
    </message>
    <message>
        <source>Copy (%1)</source>
        <translation>Copiar (%1)</translation>
    </message>
    <message>
        <source>Insert (%1)</source>
        <translation>Insertar (%1)</translation>
    </message>
    <message>
        <source>Insert into %1 (%2)</source>
        <translation>Insertar en %1 (%2)</translation>
    </message>
</context>
<context>
    <name>quorvane::CalendarPicker</name>
    <message>
        <source>Today</source>
        <translation>Hoy</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Mes anterior</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Mes siguiente</translation>
    </message>
    <message>
        <source>Not a date</source>
        <translation>No es una fecha</translation>
    </message>
    <message>
        <source>Before %1</source>
        <translation>Antes de %1</translation>
    </message>
</context>
<context>
    <name>quorvane::CopyButton</name>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Copiado</translation>
    </message>
    <message>
        <source>Could not copy</source>
        <translation>No se pudo copiar</translation>
    </message>
</context>
<context>
    <name>quorvane::DateLine</name>
    <message>
        <source>Type a date</source>
        <translation>Escribir una fecha</translation>
    </message>
</context>
<context>
    <name>quorvane::DateSection</name>
    <message>
        <source>When</source>
        <translation>Cuándo</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>to</source>
        <translation>hasta</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Ahora</translation>
    </message>
    <message>
        <source>Start date</source>
        <translation>Fecha de inicio</translation>
    </message>
    <message>
        <source>Start time</source>
        <translation>Hora de inicio</translation>
    </message>
    <message>
        <source>End date</source>
        <translation>Fecha de fin</translation>
    </message>
    <message>
        <source>End time</source>
        <translation>Hora de fin</translation>
    </message>
    <message>
        <source>(in local time %1)</source>
        <translation>(hora local %1)</translation>
    </message>
    <message>
        <source>Return to the present moment (Alt+N)</source>
        <translation>Volver al momento presente (Alt+N)</translation>
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
        <translation>Copiado en su lugar</translation>
    </message>
    <message>
        <source>There was no window to type into. Paste with your usual keys.</source>
        <translation>No había ninguna ventana en la que escribir. Péguelo con sus teclas habituales.</translation>
    </message>
    <message>
        <source>This desktop does not let Quorvane type. Paste with your usual keys.</source>
        <translation>Este escritorio no permite que Quorvane escriba. Péguelo con sus teclas habituales.</translation>
    </message>
    <message>
        <source>Allow typing…</source>
        <translation>Permitir escribir…</translation>
    </message>
</context>
<context>
    <name>quorvane::DesktopSection</name>
    <message>
        <source>Shortcut</source>
        <translation>Atajo</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Insertar</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>Portapapeles</translation>
    </message>
    <message>
        <source>Window in front</source>
        <translation>Ventana activa</translation>
    </message>
    <message>
        <source>Panel</source>
        <translation>Panel</translation>
    </message>
    <message>
        <source>Tray icon</source>
        <translation>Icono de la bandeja</translation>
    </message>
    <message>
        <source>This Desktop</source>
        <translation>Este escritorio</translation>
    </message>
</context>
<context>
    <name>quorvane::FavoriteSuggestionChip</name>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
</context>
<context>
    <name>quorvane::FavoritesSection</name>
    <message>
        <source>Favorite Time Zones</source>
        <translation>Zonas horarias favoritas</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>%1 removed from favorites</source>
        <translation>%1: eliminada de las favoritas</translation>
    </message>
    <message>
        <source>%1 added to favorites</source>
        <translation>%1: añadida a las favoritas</translation>
    </message>
    <message>
        <source>Favorites appear as one-click chips in the popover.</source>
        <translation>Las favoritas aparecen en el panel, a un clic.</translation>
    </message>
    <message>
        <source>No favorite time zones</source>
        <translation>Ninguna zona horaria favorita</translation>
    </message>
</context>
<context>
    <name>quorvane::FormatSection</name>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Disposición</translation>
    </message>
</context>
<context>
    <name>quorvane::GeneralSection</name>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>Abrir al iniciar sesión</translation>
    </message>
    <message>
        <source>Remember format and zones</source>
        <translation>Recordar el formato y las zonas</translation>
    </message>
    <message>
        <source>Waiting for your answer</source>
        <translation>Esperando su respuesta</translation>
    </message>
    <message>
        <source>Your desktop did not allow this.</source>
        <translation>Su escritorio no lo ha permitido.</translation>
    </message>
</context>
<context>
    <name>quorvane::HintLine</name>
    <message>
        <source>Do not show this again</source>
        <translation>No volver a mostrar</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>Sugerencia</translation>
    </message>
</context>
<context>
    <name>quorvane::IconsSection</name>
    <message>
        <source>Tray &amp; Taskbar</source>
        <translation>Bandeja y barra de tareas</translation>
    </message>
    <message>
        <source>Show icon in system tray</source>
        <translation>Mostrar el icono en la bandeja</translation>
    </message>
    <message>
        <source>Show windows in taskbar</source>
        <translation>Mostrar las ventanas en la barra de tareas</translation>
    </message>
    <message>
        <source>Open Quorvane from the applications menu to reach Preferences.</source>
        <translation>Abra Quorvane desde el menú de aplicaciones para llegar a las preferencias.</translation>
    </message>
</context>
<context>
    <name>quorvane::ListedShortcut</name>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Takes Quorvane out of the shortcuts of %1</source>
        <translation>Quita Quorvane de los atajos de %1</translation>
    </message>
    <message>
        <source>To use this shortcut, add it to the shortcuts of %1.</source>
        <translation>Para usar este atajo, añádalo a los atajos de %1.</translation>
    </message>
    <message>
        <source>It is in the shortcuts of %1.</source>
        <translation>Está en los atajos de %1.</translation>
    </message>
    <message>
        <source>The shortcuts of %1 still have %2 for Quorvane.</source>
        <translation>Los atajos de %1 todavía tienen %2 para Quorvane.</translation>
    </message>
    <message>
        <source>In the shortcuts of %1, this one belongs to “%2”.</source>
        <translation>En los atajos de %1, este pertenece a «%2».</translation>
    </message>
    <message>
        <source>This keyboard has no such key.</source>
        <translation>Este teclado no tiene esa tecla.</translation>
    </message>
    <message>
        <source>Add to %1 shortcuts</source>
        <translation>Añadir a los atajos de %1</translation>
    </message>
    <message>
        <source>Change in %1 shortcuts</source>
        <translation>Cambiar en los atajos de %1</translation>
    </message>
    <message>
        <source>Record another shortcut</source>
        <translation>Grabar otro atajo</translation>
    </message>
</context>
<context>
    <name>quorvane::MainMenu</name>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Buscar actualizaciones…</translation>
    </message>
    <message>
        <source>Quit Quorvane</source>
        <translation>Salir de Quorvane</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Cortar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Pegar</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
</context>
<context>
    <name>quorvane::NothingFound</name>
    <message>
        <source>No time zone matches “%1”</source>
        <translation>Ninguna zona horaria coincide con «%1»</translation>
    </message>
</context>
<context>
    <name>quorvane::OutputPreview</name>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Copy “%1”</source>
        <translation>Copiar «%1»</translation>
    </message>
</context>
<context>
    <name>quorvane::PatternEntry</name>
    <message>
        <source>Custom format</source>
        <translation>Formato personalizado</translation>
    </message>
    <message>
        <source>e.g. yyyy-MM-dd HH:mm zzz</source>
        <translation>p. ej. yyyy-MM-dd HH:mm zzz</translation>
    </message>
</context>
<context>
    <name>quorvane::PatternField</name>
    <message>
        <source>The text ends at “%1”, which is no letter of a date. Words stand in quotes: &apos;at&apos;</source>
        <translation>El texto termina en «%1», que no es una letra de fecha. Las palabras van entre comillas simples: &apos;a las&apos;</translation>
    </message>
</context>
<context>
    <name>quorvane::PatternHelpButton</name>
    <message>
        <source>Letters of a pattern</source>
        <translation>Letras de un patrón</translation>
    </message>
</context>
<context>
    <name>quorvane::PatternPage</name>
    <message>
        <source>Ready patterns</source>
        <translation>Patrones listos</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>Letras</translation>
    </message>
</context>
<context>
    <name>quorvane::PopoverHeader</name>
    <message>
        <source>More</source>
        <translation>Más</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Open as panel</source>
        <translation>Abrir como panel</translation>
    </message>
    <message>
        <source>Open as popover at the tray icon</source>
        <translation>Abrir desplegado junto al icono de la bandeja</translation>
    </message>
</context>
<context>
    <name>quorvane::PopoverView</name>
    <message>
        <source>Preferences…</source>
        <translation>Preferencias…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Buscar actualizaciones…</translation>
    </message>
    <message>
        <source>Quit Quorvane</source>
        <translation>Salir de Quorvane</translation>
    </message>
</context>
<context>
    <name>quorvane::PortalAutostart</name>
    <message>
        <source>Quorvane starts when you log in, so that its shortcut is there.</source>
        <translation>Quorvane se inicia al iniciar sesión para que su atajo esté disponible.</translation>
    </message>
</context>
<context>
    <name>quorvane::PortalShortcut</name>
    <message>
        <source>the desktop</source>
        <translation>su escritorio</translation>
    </message>
    <message>
        <source>Show Quorvane</source>
        <translation>Mostrar Quorvane</translation>
    </message>
</context>
<context>
    <name>quorvane::PreferencesWindow</name>
    <message>
        <source>Quorvane Preferences</source>
        <translation>Preferencias de Quorvane</translation>
    </message>
</context>
<context>
    <name>quorvane::PreviewSection</name>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Choose a time zone</source>
        <translation>Elija una zona horaria</translation>
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
        <translation>Limpiar</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
</context>
<context>
    <name>quorvane::ShortcutHint</name>
    <message>
        <source>No shortcut opens Quorvane yet.</source>
        <translation>Ningún atajo abre Quorvane todavía.</translation>
    </message>
    <message>
        <source>%1 opens Quorvane in any application.</source>
        <translation>%1 abre Quorvane en cualquier aplicación.</translation>
    </message>
    <message>
        <source>Change…</source>
        <translation>Cambiar…</translation>
    </message>
    <message>
        <source>The shortcut that opens Quorvane does not work here.</source>
        <translation>El atajo que abre Quorvane no funciona aquí.</translation>
    </message>
    <message>
        <source>Set Up…</source>
        <translation>Configurar…</translation>
    </message>
</context>
<context>
    <name>quorvane::ShortcutLine</name>
    <message>
        <source>Another desktop</source>
        <translation>Otro escritorio</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Window manager</source>
        <translation>Gestor de ventanas</translation>
    </message>
    <message>
        <source>This configuration has no name for that key: record another shortcut.</source>
        <translation>Esta configuración no tiene nombre para esa tecla: grabe otro atajo.</translation>
    </message>
    <message>
        <source>In the keyboard settings of your desktop, have the shortcut run this command:</source>
        <translation>En la configuración del teclado de su escritorio, haga que el atajo ejecute esta orden:</translation>
    </message>
    <message>
        <source>Add this line to its configuration:</source>
        <translation>Añada esta línea a su configuración:</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Copiado</translation>
    </message>
    <message>
        <source>Could not copy</source>
        <translation>No se pudo copiar</translation>
    </message>
</context>
<context>
    <name>quorvane::ShortcutRecorder</name>
    <message>
        <source>Shortcut</source>
        <translation>Atajo</translation>
    </message>
    <message>
        <source>Recording a new shortcut</source>
        <translation>Grabando un atajo nuevo</translation>
    </message>
    <message>
        <source>Press a key together with Control, Alt, Shift or Super. Escape cancels.</source>
        <translation>Pulse una tecla junto con Ctrl, Alt, Mayús o Super. Esc cancela.</translation>
    </message>
    <message>
        <source>Waiting for a key</source>
        <translation>Esperando una tecla</translation>
    </message>
    <message>
        <source>Another program holds this shortcut.</source>
        <translation>Otro programa usa este atajo.</translation>
    </message>
    <message>
        <source>%1 holds this shortcut.</source>
        <translation>%1 usa este atajo.</translation>
    </message>
    <message>
        <source>This keyboard has no such key.</source>
        <translation>Este teclado no tiene esa tecla.</translation>
    </message>
    <message>
        <source>Global shortcuts are not available on this desktop.</source>
        <translation>Este escritorio no ofrece atajos globales.</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>While this is the shortcut, you cannot type a capital %1 anywhere.</source>
        <translation>Mientras este sea el atajo, no podrá escribir una %1 mayúscula en ningún sitio.</translation>
    </message>
    <message>
        <source>While this is the shortcut, you cannot type what Shift+%1 types.</source>
        <translation>Mientras este sea el atajo, no podrá escribir lo que da Mayús+%1.</translation>
    </message>
    <message>
        <source>If your desktop opens a menu on Super alone, press Super last: pressed first, it opens that menu instead.</source>
        <translation>Si su escritorio abre un menú con la tecla Super sola, púlsela la última: pulsada la primera, abre ese menú.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Record new shortcut</source>
        <translation>Grabar un atajo nuevo</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>Recording: %1</source>
        <translation>Grabando: %1</translation>
    </message>
</context>
<context>
    <name>quorvane::ShortcutSection</name>
    <message>
        <source>Keyboard Shortcut</source>
        <translation>Atajo de teclado</translation>
    </message>
    <message>
        <source>Invoke Quorvane</source>
        <translation>Abrir Quorvane</translation>
    </message>
    <message>
        <source>Requires at least one modifier key (Ctrl, Alt, Shift, Super).</source>
        <translation>Requiere al menos una tecla modificadora (Ctrl, Alt, Mayús, Super).</translation>
    </message>
</context>
<context>
    <name>quorvane::StarredFilter</name>
    <message>
        <source>Show starred only</source>
        <translation>Mostrar solo las favoritas</translation>
    </message>
</context>
<context>
    <name>quorvane::TimePickerPopover</name>
    <message>
        <source>Hour</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minuto</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Ahora</translation>
    </message>
    <message>
        <source>AM or PM</source>
        <translation>a. m. o p. m.</translation>
    </message>
    <message>
        <source>Not an hour</source>
        <translation>No es una hora</translation>
    </message>
    <message>
        <source>Not a minute</source>
        <translation>No es un minuto</translation>
    </message>
    <message>
        <source>AM</source>
        <translation>a.&#xa0;m.</translation>
    </message>
    <message>
        <source>PM</source>
        <translation>p.&#xa0;m.</translation>
    </message>
</context>
<context>
    <name>quorvane::TimeZoneChip</name>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
</context>
<context>
    <name>quorvane::TimeZonePickerView</name>
    <message>
        <source>Time Zones</source>
        <translation>Zonas horarias</translation>
    </message>
    <message>
        <source>Search by name, city, or abbreviation</source>
        <translation>Buscar por nombre, ciudad o abreviatura</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Hecho</translation>
    </message>
    <message>
        <source>%1 stays, because it is the only time zone</source>
        <translation>%1 se queda, porque es la única zona horaria</translation>
    </message>
    <message>
        <source>%1 removed</source>
        <translation>%1: quitada</translation>
    </message>
    <message>
        <source>%1 added</source>
        <translation>%1: añadida</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>Favoritas</translation>
    </message>
    <message>
        <source>All Time Zones</source>
        <translation>Todas las zonas horarias</translation>
    </message>
</context>
<context>
    <name>quorvane::TimeZoneSection</name>
    <message>
        <source>Time Zones</source>
        <translation>Zonas horarias</translation>
    </message>
    <message>
        <source>Add time zone</source>
        <translation>Añadir una zona horaria</translation>
    </message>
</context>
<context>
    <name>quorvane::TrayIcon</name>
    <message>
        <source>Preferences…</source>
        <translation>Preferencias…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Buscar actualizaciones…</translation>
    </message>
    <message>
        <source>Quit Quorvane</source>
        <translation>Salir de Quorvane</translation>
    </message>
    <message>
        <source>Show Quorvane</source>
        <translation>Mostrar Quorvane</translation>
    </message>
</context>
<context>
    <name>quorvane::TypingSection</name>
    <message>
        <source>Allowed</source>
        <translation>Permitido</translation>
    </message>
    <message>
        <source>Not allowed yet; Insert copies instead</source>
        <translation>Aún no permitido; «Insertar» copia en su lugar</translation>
    </message>
    <message>
        <source>Waiting for your answer</source>
        <translation>Esperando su respuesta</translation>
    </message>
    <message>
        <source>Not allowed; Insert copies instead</source>
        <translation>No permitido; «Insertar» copia en su lugar</translation>
    </message>
    <message>
        <source>Stopped by your desktop; Insert copies instead</source>
        <translation>Detenido por su escritorio; «Insertar» copia en su lugar</translation>
    </message>
    <message>
        <source>Not available; Insert copies instead</source>
        <translation>No disponible; «Insertar» copia en su lugar</translation>
    </message>
    <message>
        <source>Insert into Other Apps</source>
        <translation>Insertar en otras aplicaciones</translation>
    </message>
    <message>
        <source>Allow…</source>
        <translation>Permitir…</translation>
    </message>
    <message>
        <source>Your desktop may show a mark while Quorvane can type. You can end it there.</source>
        <translation>Puede que su escritorio muestre un indicador mientras Quorvane pueda escribir. Desde ahí puede detenerlo.</translation>
    </message>
    <message>
        <source>Your desktop will ask you to allow remote interaction, and may show a mark while Quorvane can type.</source>
        <translation>Su escritorio le pedirá que permita la interacción remota y puede mostrar un indicador mientras Quorvane pueda escribir.</translation>
    </message>
</context>
<context>
    <name>quorvane::UpdaterController</name>
    <message>
        <source>Updates</source>
        <translation>Actualizaciones</translation>
    </message>
    <message>
        <source>Your package manager updates Quorvane.</source>
        <translation>Su gestor de paquetes actualiza Quorvane.</translation>
    </message>
    <message>
        <source>Flatpak updates Quorvane.</source>
        <translation>Flatpak actualiza Quorvane.</translation>
    </message>
    <message>
        <source>This Quorvane is updated by hand.</source>
        <translation>Este Quorvane se actualiza a mano.</translation>
    </message>
    <message>
        <source>It was installed as a Debian package.</source>
        <translation>Se instaló como paquete Debian.</translation>
    </message>
    <message>
        <source>It was installed as a Flatpak.</source>
        <translation>Se instaló como Flatpak.</translation>
    </message>
    <message>
        <source>It runs in the folder %1, where it was built.</source>
        <translation>Se ejecuta en la carpeta %1, donde se compiló.</translation>
    </message>
    <message>
        <source>It was installed into the folder %1.</source>
        <translation>Se instaló en la carpeta %1.</translation>
    </message>
    <message>
        <source>This is version %1 of %2.</source>
        <translation>Esta es la versión %1 del %2.</translation>
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
        <translation>Zonas horarias</translation>
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
        <translation>por %1</translation>
    </message>
</context>
</TS>
