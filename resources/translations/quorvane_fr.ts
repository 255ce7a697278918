<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Backends</name>
    <message>
        <source>This desktop does not let Quorvane type: Insert copies the text instead.</source>
        <translation>Ce bureau ne laisse pas Quorvane saisir du texte&#xa0;: «&#xa0;Insérer&#xa0;» copie le texte à la place.</translation>
    </message>
    <message>
        <source>This desktop does not let Quorvane take a shortcut: bind one to it in the desktop&apos;s own settings.</source>
        <translation>Ce bureau ne laisse pas Quorvane réserver un raccourci&#xa0;: attribuez-en un dans les paramètres du bureau.</translation>
    </message>
    <message>
        <source>This desktop does not tell which window is in front: Insert goes to the one that gets the keyboard when the panel has closed.</source>
        <translation>Ce bureau n’indique pas quelle fenêtre est au premier plan&#xa0;: «&#xa0;Insérer&#xa0;» écrit dans celle qui reçoit le clavier quand le panneau s’est fermé.</translation>
    </message>
    <message>
        <source>The desktop places the panel, and does not keep it above other windows or on all virtual desktops.</source>
        <translation>Le bureau choisit l’emplacement du panneau, et ne le garde ni au-dessus des autres fenêtres ni sur tous les bureaux virtuels.</translation>
    </message>
    <message>
        <source>Quorvane types once you have allowed it under “Insert into Other Apps”; until then Insert copies the text.</source>
        <translation>Quorvane saisira le texte dès que vous l’aurez autorisé dans «&#xa0;Insérer dans d’autres applications&#xa0;»&#xa0;; jusque-là, «&#xa0;Insérer&#xa0;» copie le texte.</translation>
    </message>
    <message>
        <source>This desktop does not let Quorvane take a shortcut by itself: it is added under “Keyboard Shortcut”.</source>
        <translation>Ce bureau ne laisse pas Quorvane réserver lui-même un raccourci&#xa0;: il s’ajoute dans «&#xa0;Raccourci clavier&#xa0;».</translation>
    </message>
    <message>
        <source>Copy works while a window of Quorvane has the keyboard. What the clipboard held before an Insert cannot be given back.</source>
        <translation>«&#xa0;Copier&#xa0;» fonctionne tant qu’une fenêtre de Quorvane a le clavier. Ce que contenait le presse-papiers avant une insertion ne peut pas être rétabli.</translation>
    </message>
    <message>
        <source>The desktop shares the clipboard with Quorvane once you have allowed typing under “Insert into Other Apps”, and as long as that lasts. Without it, Copy works while a window of Quorvane has the keyboard.</source>
        <translation>Le bureau partage le presse-papiers avec Quorvane dès que vous avez autorisé la saisie dans «&#xa0;Insérer dans d’autres applications&#xa0;», et tant que cela dure. Sans cela, «&#xa0;Copier&#xa0;» fonctionne tant qu’une fenêtre de Quorvane a le clavier.</translation>
    </message>
</context>
<context>
    <name>DateFormatPreset</name>
    <message>
        <source>Long</source>
        <translation>Long</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Moyen</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>Court</translation>
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
        <translation>Date seule</translation>
    </message>
    <message>
        <source>Time Only</source>
        <translation>Heure seule</translation>
    </message>
    <message>
        <source>Day of Week</source>
        <translation>Jour de la semaine</translation>
    </message>
    <message>
        <source>Unix Timestamp</source>
        <translation>Horodatage Unix</translation>
    </message>
    <message>
        <source>Custom…</source>
        <translation>Personnalisé…</translation>
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
        <translation>1 fuseau horaire&#xa0;: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 time zones, first %2</source>
        <translation>
            <numerusform>%1 fuseau horaire, le premier&#xa0;: %2</numerusform>
            <numerusform>%1 fuseaux horaires, le premier&#xa0;: %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KGlobalAccel</name>
    <message>
        <source>Show or Hide</source>
        <translation>Afficher ou masquer</translation>
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
        <translation>Contrôle</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Maj</translation>
    </message>
    <message>
        <source>Super</source>
        <translation>Super</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Entrée</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espace</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Retour arrière</translation>
    </message>
    <message>
        <source>Escape</source>
        <translation>Échap</translation>
    </message>
    <message>
        <source>Keypad Decimal</source>
        <translation>Pavé numérique décimal</translation>
    </message>
    <message>
        <source>Keypad Multiply</source>
        <translation>Pavé numérique multiplier</translation>
    </message>
    <message>
        <source>Keypad Plus</source>
        <translation>Pavé numérique plus</translation>
    </message>
    <message>
        <source>Num Lock</source>
        <translation>Verr Num</translation>
    </message>
    <message>
        <source>Keypad Divide</source>
        <translation>Pavé numérique diviser</translation>
    </message>
    <message>
        <source>Keypad Enter</source>
        <translation>Pavé numérique Entrée</translation>
    </message>
    <message>
        <source>Keypad Minus</source>
        <translation>Pavé numérique moins</translation>
    </message>
    <message>
        <source>Keypad Equals</source>
        <translation>Pavé numérique égal</translation>
    </message>
    <message>
        <source>Keypad 0</source>
        <translation>Pavé numérique 0</translation>
    </message>
    <message>
        <source>Keypad 1</source>
        <translation>Pavé numérique 1</translation>
    </message>
    <message>
        <source>Keypad 2</source>
        <translation>Pavé numérique 2</translation>
    </message>
    <message>
        <source>Keypad 3</source>
        <translation>Pavé numérique 3</translation>
    </message>
    <message>
        <source>Keypad 4</source>
        <translation>Pavé numérique 4</translation>
    </message>
    <message>
        <source>Keypad 5</source>
        <translation>Pavé numérique 5</translation>
    </message>
    <message>
        <source>Keypad 6</source>
        <translation>Pavé numérique 6</translation>
    </message>
    <message>
        <source>Keypad 7</source>
        <translation>Pavé numérique 7</translation>
    </message>
    <message>
        <source>Keypad 8</source>
        <translation>Pavé numérique 8</translation>
    </message>
    <message>
        <source>Keypad 9</source>
        <translation>Pavé numérique 9</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Inser</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>Page Up</source>
        <translation>Page préc.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Suppr</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Page Down</source>
        <translation>Page suiv.</translation>
    </message>
    <message>
        <source>Left Arrow</source>
        <translation>Flèche gauche</translation>
    </message>
    <message>
        <source>Right Arrow</source>
        <translation>Flèche droite</translation>
    </message>
    <message>
        <source>Down Arrow</source>
        <translation>Flèche bas</translation>
    </message>
    <message>
        <source>Up Arrow</source>
        <translation>Flèche haut</translation>
    </message>
    <message>
        <source>Print Screen</source>
        <translation>Impr. écran</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Key %1</source>
        <translation>Touche %1</translation>
    </message>
</context>
<context>
    <name>LineEditMenu</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Co&amp;uper</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>C&amp;oller</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
</context>
<context>
    <name>MultiZoneLayout</name>
    <message>
        <source>Inline</source>
        <translation>À la suite</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>En lignes</translation>
    </message>
</context>
<context>
    <name>PatternGuide</name>
    <message>
        <source>24 hours</source>
        <translation>24 heures</translation>
    </message>
    <message>
        <source>12 hours</source>
        <translation>12 heures</translation>
    </message>
    <message>
        <source>Long date</source>
        <translation>Date longue</translation>
    </message>
    <message>
        <source>ISO week</source>
        <translation>Semaine ISO</translation>
    </message>
    <message>
        <source>Quarter</source>
        <translation>Trimestre</translation>
    </message>
    <message>
        <source>Words in quotes</source>
        <translation>Mots entre apostrophes</translation>
    </message>
    <message>
        <source>An apostrophe</source>
        <translation>Une apostrophe</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nom de fichier</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Année</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Mois</translation>
    </message>
    <message>
        <source>Month, short</source>
        <translation>Mois, abrégé</translation>
    </message>
    <message>
        <source>Month, number</source>
        <translation>Mois, numéro</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Jour</translation>
    </message>
    <message>
        <source>Weekday</source>
        <translation>Jour de la semaine</translation>
    </message>
    <message>
        <source>Weekday, short</source>
        <translation>Jour, abrégé</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Semaine</translation>
    </message>
    <message>
        <source>Hour of 24</source>
        <translation>Heure (24)</translation>
    </message>
    <message>
        <source>Hour of 12</source>
        <translation>Heure (12)</translation>
    </message>
    <message>
        <source>AM or PM</source>
        <translation>AM ou PM</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minute</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>Seconde</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>Fuseau horaire</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Décalage</translation>
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
        <translation>Maj</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Entrée</translation>
    </message>
</context>
<context>
    <name>RangeLength</name>
    <message>
        <source>%1 d</source>
        <translation>%1&#xa0;j</translation>
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
        <translation>Commence et finit le même jour</translation>
    </message>
    <message>
        <source>Ends %1 before it begins</source>
        <translation>Finit %1 avant de commencer</translation>
    </message>
    <message>
        <source>Lasts %1</source>
        <translation>Dure %1</translation>
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
        <translation>Insérer</translation>
    </message>
    <message>
        <source>Copy (%1)</source>
        <translation>Copier (%1)</translation>
    </message>
    <message>
        <source>Insert (%1)</source>
        <translation>Insérer (%1)</translation>
    </message>
    <message>
        <source>Insert into %1 (%2)</source>
        <translation>Insérer dans %1 (%2)</translation>
    </message>
</context>
<context>
    <name>quorvane::CalendarPicker</name>
    <message>
        <source>Today</source>
        <translation>Aujourd’hui</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Mois précédent</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Mois suivant</translation>
    </message>
    <message>
        <source>Not a date</source>
        <translation>Pas une date</translation>
    </message>
    <message>
        <source>Before %1</source>
        <translation>Avant %1</translation>
    </message>
</context>
<context>
    <name>quorvane::CopyButton</name>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Copié</translation>
    </message>
    <message>
        <source>Could not copy</source>
        <translation>Copie impossible</translation>
    </message>
</context>
<context>
    <name>quorvane::DateLine</name>
    <message>
        <source>Type a date</source>
        <translation>Saisir une date</translation>
    </message>
</context>
<context>
    <name>quorvane::DateSection</name>
    <message>
        <source>When</source>
        <translation>Quand</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>to</source>
        <translation>jusqu’à</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Maintenant</translation>
    </message>
    <message>
        <source>Start date</source>
        <translation>Date de début</translation>
    </message>
    <message>
        <source>Start time</source>
        <translation>Heure de début</translation>
    </message>
    <message>
        <source>End date</source>
        <translation>Date de fin</translation>
    </message>
    <message>
        <source>End time</source>
        <translation>Heure de fin</translation>
    </message>
    <message>
        <source>(in local time %1)</source>
        <translation>(heure locale %1)</translation>
    </message>
    <message>
        <source>Return to the present moment (Alt+N)</source>
        <translation>Revenir à l’instant présent (Alt+N)</translation>
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
        <translation>Copié à la place</translation>
    </message>
    <message>
        <source>There was no window to type into. Paste with your usual keys.</source>
        <translation>Il n’y avait pas de fenêtre où saisir le texte. Collez-le avec vos touches habituelles.</translation>
    </message>
    <message>
        <source>This desktop does not let Quorvane type. Paste with your usual keys.</source>
        <translation>Ce bureau ne laisse pas Quorvane saisir du texte. Collez-le avec vos touches habituelles.</translation>
    </message>
    <message>
        <source>Allow typing…</source>
        <translation>Autoriser la saisie…</translation>
    </message>
</context>
<context>
    <name>quorvane::DesktopSection</name>
    <message>
        <source>Shortcut</source>
        <translation>Raccourci</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Insérer</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>Presse-papiers</translation>
    </message>
    <message>
        <source>Window in front</source>
        <translation>Fenêtre au premier plan</translation>
    </message>
    <message>
        <source>Panel</source>
        <translation>Panneau</translation>
    </message>
    <message>
        <source>Tray icon</source>
        <translation>Icône de la zone de notification</translation>
    </message>
    <message>
        <source>This Desktop</source>
        <translation>Ce bureau</translation>
    </message>
</context>
<context>
    <name>quorvane::FavoriteSuggestionChip</name>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
</context>
<context>
    <name>quorvane::FavoritesSection</name>
    <message>
        <source>Favorite Time Zones</source>
        <translation>Fuseaux horaires favoris</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>%1 removed from favorites</source>
        <translation>%1&#xa0;: retiré des favoris</translation>
    </message>
    <message>
        <source>%1 added to favorites</source>
        <translation>%1&#xa0;: ajouté aux favoris</translation>
    </message>
    <message>
        <source>Favorites appear as one-click chips in the popover.</source>
        <translation>Les favoris apparaissent dans le panneau, à portée d’un clic.</translation>
    </message>
    <message>
        <source>No favorite time zones</source>
        <translation>Aucun fuseau horaire favori</translation>
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
        <translation>Disposition</translation>
    </message>
</context>
<context>
    <name>quorvane::GeneralSection</name>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>Démarrer à l’ouverture de session</translation>
    </message>
    <message>
        <source>Remember format and zones</source>
        <translation>Mémoriser le format et les fuseaux</translation>
    </message>
    <message>
        <source>Waiting for your answer</source>
        <translation>En attente de votre réponse</translation>
    </message>
    <message>
        <source>Your desktop did not allow this.</source>
        <translation>Votre bureau ne l’a pas autorisé.</translation>
    </message>
</context>
<context>
    <name>quorvane::HintLine</name>
    <message>
        <source>Do not show this again</source>
        <translation>Ne plus afficher</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>Conseil</translation>
    </message>
</context>
<context>
    <name>quorvane::IconsSection</name>
    <message>
        <source>Tray &amp; Taskbar</source>
        <translation>Zone de notification et barre des tâches</translation>
    </message>
    <message>
        <source>Show icon in system tray</source>
        <translation>Icône dans la zone de notification</translation>
    </message>
    <message>
        <source>Show windows in taskbar</source>
        <translation>Fenêtres dans la barre des tâches</translation>
    </message>
    <message>
        <source>Open Quorvane from the applications menu to reach Preferences.</source>
        <translation>Ouvrez Quorvane depuis le menu des applications pour accéder aux préférences.</translation>
    </message>
</context>
<context>
    <name>quorvane::ListedShortcut</name>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Takes Quorvane out of the shortcuts of %1</source>
        <translation>Retire Quorvane des raccourcis de %1</translation>
    </message>
    <message>
        <source>To use this shortcut, add it to the shortcuts of %1.</source>
        <translation>Pour utiliser ce raccourci, ajoutez-le aux raccourcis de %1.</translation>
    </message>
    <message>
        <source>It is in the shortcuts of %1.</source>
        <translation>Il figure dans les raccourcis de %1.</translation>
    </message>
    <message>
        <source>The shortcuts of %1 still have %2 for Quorvane.</source>
        <translation>Les raccourcis de %1 ont encore %2 pour Quorvane.</translation>
    </message>
    <message>
        <source>In the shortcuts of %1, this one belongs to “%2”.</source>
        <translation>Dans les raccourcis de %1, celui-ci appartient à «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>This keyboard has no such key.</source>
        <translation>Ce clavier n’a pas cette touche.</translation>
    </message>
    <message>
        <source>Add to %1 shortcuts</source>
        <translation>Ajouter aux raccourcis de %1</translation>
    </message>
    <message>
        <source>Change in %1 shortcuts</source>
        <translation>Modifier dans les raccourcis de %1</translation>
    </message>
    <message>
        <source>Record another shortcut</source>
        <translation>Enregistrer un autre raccourci</translation>
    </message>
</context>
<context>
    <name>quorvane::MainMenu</name>
    <message>
        <source>Edit</source>
        <translation>Édition</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Rechercher des mises à jour…</translation>
    </message>
    <message>
        <source>Quit Quorvane</source>
        <translation>Quitter Quorvane</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Couper</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
</context>
<context>
    <name>quorvane::NothingFound</name>
    <message>
        <source>No time zone matches “%1”</source>
        <translation>Aucun fuseau horaire ne correspond à «&#xa0;%1&#xa0;»</translation>
    </message>
</context>
<context>
    <name>quorvane::OutputPreview</name>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Copy “%1”</source>
        <translation>Copier «&#xa0;%1&#xa0;»</translation>
    </message>
</context>
<context>
    <name>quorvane::PatternEntry</name>
    <message>
        <source>Custom format</source>
        <translation>Format personnalisé</translation>
    </message>
    <message>
        <source>e.g. yyyy-MM-dd HH:mm zzz</source>
        <translation>p. ex. yyyy-MM-dd HH:mm zzz</translation>
    </message>
</context>
<context>
    <name>quorvane::PatternField</name>
    <message>
        <source>The text ends at “%1”, which is no letter of a date. Words stand in quotes: &apos;at&apos;</source>
        <translation>Le texte s’arrête à «&#xa0;%1&#xa0;», qui n’est pas une lettre de date. Les mots se mettent entre apostrophes&#xa0;: &apos;à&apos;</translation>
    </message>
</context>
<context>
    <name>quorvane::PatternHelpButton</name>
    <message>
        <source>Letters of a pattern</source>
        <translation>Lettres d’un modèle</translation>
    </message>
</context>
<context>
    <name>quorvane::PatternPage</name>
    <message>
        <source>Ready patterns</source>
        <translation>Modèles prêts à l’emploi</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>Lettres</translation>
    </message>
</context>
<context>
    <name>quorvane::PopoverHeader</name>
    <message>
        <source>More</source>
        <translation>Plus</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Open as panel</source>
        <translation>Ouvrir comme panneau</translation>
    </message>
    <message>
        <source>Open as popover at the tray icon</source>
        <translation>Ouvrir en bulle sous l’icône de la zone de notification</translation>
    </message>
</context>
<context>
    <name>quorvane::PopoverView</name>
    <message>
        <source>Preferences…</source>
        <translation>Préférences…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Rechercher des mises à jour…</translation>
    </message>
    <message>
        <source>Quit Quorvane</source>
        <translation>Quitter Quorvane</translation>
    </message>
</context>
<context>
    <name>quorvane::PortalAutostart</name>
    <message>
        <source>Quorvane starts when you log in, so that its shortcut is there.</source>
        <translation>Quorvane démarre à l’ouverture de session, pour que son raccourci soit disponible.</translation>
    </message>
</context>
<context>
    <name>quorvane::PortalShortcut</name>
    <message>
        <source>the desktop</source>
        <translation>votre bureau</translation>
    </message>
    <message>
        <source>Show Quorvane</source>
        <translation>Afficher Quorvane</translation>
    </message>
</context>
<context>
    <name>quorvane::PreferencesWindow</name>
    <message>
        <source>Quorvane Preferences</source>
        <translation>Préférences de Quorvane</translation>
    </message>
</context>
<context>
    <name>quorvane::PreviewSection</name>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Choose a time zone</source>
        <translation>Choisissez un fuseau horaire</translation>
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
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
</context>
<context>
    <name>quorvane::ShortcutHint</name>
    <message>
        <source>No shortcut opens Quorvane yet.</source>
        <translation>Aucun raccourci n’ouvre encore Quorvane.</translation>
    </message>
    <message>
        <source>%1 opens Quorvane in any application.</source>
        <translation>%1 ouvre Quorvane dans n’importe quelle application.</translation>
    </message>
    <message>
        <source>Change…</source>
        <translation>Modifier…</translation>
    </message>
    <message>
        <source>The shortcut that opens Quorvane does not work here.</source>
        <translation>Le raccourci qui ouvre Quorvane ne fonctionne pas ici.</translation>
    </message>
    <message>
        <source>Set Up…</source>
        <translation>Configurer…</translation>
    </message>
</context>
<context>
    <name>quorvane::ShortcutLine</name>
    <message>
        <source>Another desktop</source>
        <translation>Un autre bureau</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Window manager</source>
        <translation>Gestionnaire de fenêtres</translation>
    </message>
    <message>
        <source>This configuration has no name for that key: record another shortcut.</source>
        <translation>Cette configuration n’a pas de nom pour cette touche&#xa0;: enregistrez un autre raccourci.</translation>
    </message>
    <message>
        <source>In the keyboard settings of your desktop, have the shortcut run this command:</source>
        <translation>Dans les paramètres du clavier de votre bureau, faites exécuter cette commande par le raccourci&#xa0;:</translation>
    </message>
    <message>
        <source>Add this line to its configuration:</source>
        <translation>Ajoutez cette ligne à sa configuration&#xa0;:</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Copié</translation>
    </message>
    <message>
        <source>Could not copy</source>
        <translation>Copie impossible</translation>
    </message>
</context>
<context>
    <name>quorvane::ShortcutRecorder</name>
    <message>
        <source>Shortcut</source>
        <translation>Raccourci</translation>
    </message>
    <message>
        <source>Recording a new shortcut</source>
        <translation>Enregistrement d’un nouveau raccourci</translation>
    </message>
    <message>
        <source>Press a key together with Control, Alt, Shift or Super. Escape cancels.</source>
        <translation>Appuyez sur une touche avec Ctrl, Alt, Maj ou Super. Échap annule.</translation>
    </message>
    <message>
        <source>Waiting for a key</source>
        <translation>En attente d’une touche</translation>
    </message>
    <message>
        <source>Another program holds this shortcut.</source>
        <translation>Un autre programme utilise ce raccourci.</translation>
    </message>
    <message>
        <source>%1 holds this shortcut.</source>
        <translation>%1 utilise ce raccourci.</translation>
    </message>
    <message>
        <source>This keyboard has no such key.</source>
        <translation>Ce clavier n’a pas cette touche.</translation>
    </message>
    <message>
        <source>Global shortcuts are not available on this desktop.</source>
        <translation>Ce bureau ne propose pas de raccourcis globaux.</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>While this is the shortcut, you cannot type a capital %1 anywhere.</source>
        <translation>Tant que ce raccourci est en place, vous ne pouvez taper un %1 majuscule nulle part.</translation>
    </message>
    <message>
        <source>While this is the shortcut, you cannot type what Shift+%1 types.</source>
        <translation>Tant que ce raccourci est en place, vous ne pouvez pas taper ce que donne Maj+%1.</translation>
    </message>
    <message>
        <source>If your desktop opens a menu on Super alone, press Super last: pressed first, it opens that menu instead.</source>
        <translation>Si votre bureau ouvre un menu avec la seule touche Super, appuyez sur Super en dernier&#xa0;: pressée en premier, elle ouvre ce menu.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Record new shortcut</source>
        <translation>Enregistrer un nouveau raccourci</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>Recording: %1</source>
        <translation>Enregistrement&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>quorvane::ShortcutSection</name>
    <message>
        <source>Keyboard Shortcut</source>
        <translation>Raccourci clavier</translation>
    </message>
    <message>
        <source>Invoke Quorvane</source>
        <translation>Ouvrir Quorvane</translation>
    </message>
    <message>
        <source>Requires at least one modifier key (Ctrl, Alt, Shift, Super).</source>
        <translation>Au moins une touche de modification est requise (Ctrl, Alt, Maj, Super).</translation>
    </message>
</context>
<context>
    <name>quorvane::StarredFilter</name>
    <message>
        <source>Show starred only</source>
        <translation>N’afficher que les favoris</translation>
    </message>
</context>
<context>
    <name>quorvane::TimePickerPopover</name>
    <message>
        <source>Hour</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minute</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Maintenant</translation>
    </message>
    <message>
        <source>AM or PM</source>
        <translation>AM ou PM</translation>
    </message>
    <message>
        <source>Not an hour</source>
        <translation>Pas une heure</translation>
    </message>
    <message>
        <source>Not a minute</source>
        <translation>Pas une minute</translation>
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
        <translation>Retirer</translation>
    </message>
</context>
<context>
    <name>quorvane::TimeZonePickerView</name>
    <message>
        <source>Time Zones</source>
        <translation>Fuseaux horaires</translation>
    </message>
    <message>
        <source>Search by name, city, or abbreviation</source>
        <translation>Rechercher un nom, une ville ou une abréviation</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>%1 stays, because it is the only time zone</source>
        <translation>%1 reste, car c’est le seul fuseau horaire</translation>
    </message>
    <message>
        <source>%1 removed</source>
        <translation>%1&#xa0;: retiré</translation>
    </message>
    <message>
        <source>%1 added</source>
        <translation>%1&#xa0;: ajouté</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>Favoris</translation>
    </message>
    <message>
        <source>All Time Zones</source>
        <translation>Tous les fuseaux horaires</translation>
    </message>
</context>
<context>
    <name>quorvane::TimeZoneSection</name>
    <message>
        <source>Time Zones</source>
        <translation>Fuseaux horaires</translation>
    </message>
    <message>
        <source>Add time zone</source>
        <translation>Ajouter un fuseau horaire</translation>
    </message>
</context>
<context>
    <name>quorvane::TrayIcon</name>
    <message>
        <source>Preferences…</source>
        <translation>Préférences…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Rechercher des mises à jour…</translation>
    </message>
    <message>
        <source>Quit Quorvane</source>
        <translation>Quitter Quorvane</translation>
    </message>
    <message>
        <source>Show Quorvane</source>
        <translation>Afficher Quorvane</translation>
    </message>
</context>
<context>
    <name>quorvane::TypingSection</name>
    <message>
        <source>Allowed</source>
        <translation>Autorisé</translation>
    </message>
    <message>
        <source>Not allowed yet; Insert copies instead</source>
        <translation>Pas encore autorisé&#xa0;; «&#xa0;Insérer&#xa0;» copie à la place</translation>
    </message>
    <message>
        <source>Waiting for your answer</source>
        <translation>En attente de votre réponse</translation>
    </message>
    <message>
        <source>Not allowed; Insert copies instead</source>
        <translation>Non autorisé&#xa0;; «&#xa0;Insérer&#xa0;» copie à la place</translation>
    </message>
    <message>
        <source>Stopped by your desktop; Insert copies instead</source>
        <translation>Arrêté par votre bureau&#xa0;; «&#xa0;Insérer&#xa0;» copie à la place</translation>
    </message>
    <message>
        <source>Not available; Insert copies instead</source>
        <translation>Non disponible&#xa0;; «&#xa0;Insérer&#xa0;» copie à la place</translation>
    </message>
    <message>
        <source>Insert into Other Apps</source>
        <translation>Insérer dans d’autres applications</translation>
    </message>
    <message>
        <source>Allow…</source>
        <translation>Autoriser…</translation>
    </message>
    <message>
        <source>Your desktop may show a mark while Quorvane can type. You can end it there.</source>
        <translation>Votre bureau peut afficher un indicateur tant que Quorvane peut saisir du texte. Vous pouvez y mettre fin à cet endroit.</translation>
    </message>
    <message>
        <source>Your desktop will ask you to allow remote interaction, and may show a mark while Quorvane can type.</source>
        <translation>Votre bureau vous demandera d’autoriser l’interaction à distance, et peut afficher un indicateur tant que Quorvane peut saisir du texte.</translation>
    </message>
</context>
<context>
    <name>quorvane::UpdaterController</name>
    <message>
        <source>Updates</source>
        <translation>Mises à jour</translation>
    </message>
    <message>
        <source>Your package manager updates Quorvane.</source>
        <translation>Votre gestionnaire de paquets met Quorvane à jour.</translation>
    </message>
    <message>
        <source>Flatpak updates Quorvane.</source>
        <translation>Flatpak met Quorvane à jour.</translation>
    </message>
    <message>
        <source>This Quorvane is updated by hand.</source>
        <translation>Cette version de Quorvane se met à jour à la main.</translation>
    </message>
    <message>
        <source>It was installed as a Debian package.</source>
        <translation>Elle a été installée sous forme de paquet Debian.</translation>
    </message>
    <message>
        <source>It was installed as a Flatpak.</source>
        <translation>Elle a été installée sous forme de Flatpak.</translation>
    </message>
    <message>
        <source>It runs in the folder %1, where it was built.</source>
        <translation>Elle fonctionne dans le dossier %1, où elle a été compilée.</translation>
    </message>
    <message>
        <source>It was installed into the folder %1.</source>
        <translation>Elle a été installée dans le dossier %1.</translation>
    </message>
    <message>
        <source>This is version %1 of %2.</source>
        <translation>Version installée&#xa0;: %1 du %2.</translation>
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
        <translation>Fuseaux horaires</translation>
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
        <translation>d’après %1</translation>
    </message>
</context>
</TS>
