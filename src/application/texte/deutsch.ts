<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- The German of the toolkit's own dialogs, menus and keys, as far as the program shows them. The
     texts are those of its German catalogue. -->
<TS version="2.1" language="de_DE">
<context>
    <name>QAbstractFileIconProvider</name>
    <message><source>File</source><translation>Datei</translation></message>
    <message><source>Alias</source><translation>Alias</translation></message>
    <message><source>Drive</source><translation>Laufwerk</translation></message>
    <message><source>File Folder</source><translation>Ordner</translation></message>
    <message><source>Folder</source><translation>Verzeichnis</translation></message>
    <message><source>Unknown</source><translation>Unbekannt</translation></message>
    <message><source>Shortcut</source><translation>Symbolischer Link</translation></message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message><source>Step &amp;down</source><translation>&amp;Dekrementieren</translation></message>
    <message><source>&amp;Step up</source><translation>&amp;Inkrementieren</translation></message>
    <message><source>&amp;Select All</source><translation>&amp;Alles auswählen</translation></message>
</context>
<context>
    <name>QAccessibleActionInterface</name>
    <message><source>Press</source><translation>Drücken</translation></message>
    <message><source>Shows the menu</source><translation>Zeigt das Menü an</translation></message>
    <message><source>Scrolls to the left</source><translation>Scrollt nach links</translation></message>
    <message><source>Scroll Down</source><translation>Nach unten scrollen</translation></message>
    <message><source>Scroll Left</source><translation>Nach links scrollen</translation></message>
    <message><source>Goes back a page</source><translation>Geht zur vorigen Seite</translation></message>
    <message><source>Triggers the action</source><translation>Aktion auslösen</translation></message>
    <message><source>Increase</source><translation>Erhöhen</translation></message>
    <message><source>Toggle</source><translation>Umschalten</translation></message>
    <message><source>Toggles the state</source><translation>Schaltet den Zustand um</translation></message>
    <message><source>Scrolls up</source><translation>Scrollt nach oben</translation></message>
    <message><source>Scrolls down</source><translation>Scrollt nach unten</translation></message>
    <message><source>Scroll Up</source><translation>Nach oben scrollen</translation></message>
    <message><source>Goes to the next page</source><translation>Geht zur nächsten Seite</translation></message>
    <message><source>Scrolls to the right</source><translation>Scrollt nach rechts</translation></message>
    <message><source>Increase the value</source><translation>Wert erhöhen</translation></message>
    <message><source>Decrease the value</source><translation>Wert absenken</translation></message>
    <message><source>Decrease</source><translation>Senken</translation></message>
    <message><source>Scroll Right</source><translation>Nach rechts scrollen</translation></message>
    <message><source>Previous Page</source><translation>Vorige Seite</translation></message>
    <message><source>Sets the focus</source><translation>Setzt den Fokus</translation></message>
    <message><source>SetFocus</source><translation>Fokus setzen</translation></message>
    <message><source>Next Page</source><translation>Nächste Seite</translation></message>
    <message><source>ShowMenu</source><translation>Menü anzeigen</translation></message>
</context>
<context>
    <name>QApplication</name>
    <message><source>Incompatible Qt Library Error</source><translation>Die Qt-Bibliothek ist inkompatibel</translation></message>
</context>
<context>
    <name>QComboBox</name>
    <message><source>True</source><translation>Wahr</translation></message>
    <message><source>False</source><translation>Falsch</translation></message>
    <message><source>Open the combo box selection popup</source><translation>Öffnet das Auswahlfenster der Combobox</translation></message>
</context>
<context>
    <name>QCupsJobWidget</name>
    <message><source>Job</source><translation>Druckauftrag</translation></message>
    <message><source>End:</source><translation>Ende:</translation></message>
    <message><source>None</source><translation>Keine</translation></message>
    <message><source>Banner Pages</source><translation>Kopfseiten</translation></message>
    <message><source>Night (18:00 to 05:59)</source><translation>Nachts (18:00 bis 05:59)</translation></message>
    <message><source>Specific Time</source><translation>Zu festgelegter Zeit</translation></message>
    <message><source>Billing information:</source><translation>Rechnungsinformation:</translation></message>
    <message><source>Scheduled printing:</source><translation>Zum Drucken vorgesehen:</translation></message>
    <message><source>Secret</source><translation>Geheim</translation></message>
    <message><source>Top Secret</source><translation>Streng geheim</translation></message>
    <message><source>Start:</source><translation>Anfang:</translation></message>
    <message><source>Day (06:00 to 17:59)</source><translation>Tagsüber (06:00 bis 17:59)</translation></message>
    <message><source>Second Shift (16:00 to 23:59)</source><translation>Zweite Schicht (16:00 bis 23:59)</translation></message>
    <message><source>Job Control</source><translation>Einstellungen zum Druckauftrag</translation></message>
    <message><source>Weekend (Saturday to Sunday)</source><translation>Wochenende (Samstag bis Sonntag)</translation></message>
    <message><source>Standard</source><translation>Vorgabe</translation></message>
    <message><source>Classified</source><translation>Nicht öffentlich</translation></message>
    <message><source>Third Shift (00:00 to 07:59)</source><translation>Dritte Schicht (00:00 bis 07:59)</translation></message>
    <message><source>Hold Indefinitely</source><translation>Unbegrenzt vorhalten</translation></message>
    <message><source>Print Immediately</source><translation>Sofort ausdrucken</translation></message>
    <message><source>Confidential</source><translation>Vertraulich</translation></message>
    <message><source>Job priority:</source><translation>Priorität des Druckauftrags:</translation></message>
    <message><source>Unclassified</source><translation>Öffentlich</translation></message>
</context>
<context>
    <name>QCupsPrinterSupport</name>
    <message><source>Authentication needed to use %1 on %2.</source><translation>Die Benutzung von %1 auf %2 erfordert eine Authentifizierung.</translation></message>
    <message><source>Authentication needed to use %1.</source><translation>Die Benutzung von %1 erfordert eine Authentifizierung.</translation></message>
    <message><source>Authentication Needed</source><translation>Authentifizierung erforderlich</translation></message>
    <message><source>Password:</source><translation>Passwort:</translation></message>
    <message><source>Username:</source><translation>Benutzername:</translation></message>
</context>
<context>
    <name>QDialog</name>
    <message><source>What's This?</source><translation>Direkthilfe</translation></message>
</context>
<context>
    <name>QDialogButtonBox</name>
    <message><source>OK</source><translation>OK</translation></message>
</context>
<context>
    <name>QErrorMessage</name>
    <message><source>&amp;OK</source><translation>&amp;OK</translation></message>
    <message><source>Fatal Error:</source><translation>Fataler Fehler:</translation></message>
    <message><source>&amp;Show this message again</source><translation>Diese Meldung wieder an&amp;zeigen</translation></message>
    <message><source>Critical Error:</source><translation>Kritischer Fehler:</translation></message>
    <message><source>Information:</source><translation>Information:</translation></message>
    <message><source>Debug Message:</source><translation>Debug-Ausgabe:</translation></message>
    <message><source>Warning:</source><translation>Warnung:</translation></message>
</context>
<context>
    <name>QFile</name>
    <message><source>Cannot remove source file</source><translation>Die Quelldatei kann nicht entfernt werden</translation></message>
    <message><source>Destination file is the same file.</source><translation>Die Zieldatei ist dieselbe Datei.</translation></message>
    <message><source>Cannot open %1 for input</source><translation>%1 kann nicht zum Lesen geöffnet werden</translation></message>
    <message><source>Destination file exists</source><translation>Die Zieldatei existiert bereits</translation></message>
    <message><source>Cannot open destination file: %1</source><translation>Die Zieldatei kann nicht geöffnet werden: %1</translation></message>
    <message><source>Cannot create %1 for output: %2</source><translation>%1 kann nicht erstellt werden: %2</translation></message>
    <message><source>Failure to write block: %1</source><translation>Der Datenblock konnte nicht geschrieben werden: %1</translation></message>
    <message><source>Will not rename sequential file using block copy</source><translation>Eine sequentielle Datei wird nicht durch blockweises Kopieren umbenannt</translation></message>
    <message><source>Error while renaming: %1</source><translation>Fehler beim Umbenennen: %1</translation></message>
    <message><source>Source file does not exist.</source><translation>Die Quelldatei existiert nicht.</translation></message>
    <message><source>Unable to restore from %1: %2</source><translation>Die Datei konnte nicht von %1 wieder hergestellt werden: %2</translation></message>
    <message><source>Cannot open for output: %1</source><translation>Kann nicht zum Schreiben geöffnet werden: %1</translation></message>
</context>
<context>
    <name>QFileDevice</name>
    <message><source>No file engine available or engine does not support UnMapExtension</source><translation>Es ist kein Backend verfügbar oder das gegenwärtig aktive Backend unterstützt die UnMap-Erweiterung nicht</translation></message>
    <message><source>No file engine available</source><translation>Es ist kein Backend verfügbar</translation></message>
</context>
<context>
    <name>QFileDialog</name>
    <message><source>Back</source><translation>Zurück</translation></message>
    <message><source>Open</source><translation>Öffnen</translation></message>
    <message><source>&amp;Open</source><translation>&amp;Öffnen</translation></message>
    <message><source>&amp;Save</source><translation>S&amp;peichern</translation></message>
    <message><source>Files</source><translation>Dateien</translation></message>
    <message><source>Show </source><translation>Anzeigen </translation></message>
    <message><source>'%1' is write protected.
Do you want to delete it anyway?</source><translation>'%1' ist schreibgeschützt.
Möchten Sie die Datei trotzdem löschen?</translation></message>
    <message><source>Are you sure you want to delete '%1'?</source><translation>Sind Sie sicher, dass Sie '%1' löschen möchten?</translation></message>
    <message><source>List of places and bookmarks</source><translation>Liste der Orte und Lesezeichen</translation></message>
    <message><source>File &amp;name:</source><translation>Datei&amp;name:</translation></message>
    <message><source>Alt+Left</source><translation>Alt+Left</translation></message>
    <message><source>Alt+Up</source><translation>Alt+Up</translation></message>
    <message><source>Delete</source><translation>Löschen</translation></message>
    <message><source>New Folder</source><translation>Neues Verzeichnis</translation></message>
    <message><source>Parent Directory</source><translation>Übergeordnetes Verzeichnis</translation></message>
    <message><source>&amp;New Folder</source><translation>&amp;Neues Verzeichnis</translation></message>
    <message><source>Remove</source><translation>Löschen</translation></message>
    <message><source>Look in:</source><translation>Suchen in:</translation></message>
    <message><source>Alt+Right</source><translation>Alt+Right</translation></message>
    <message><source>Create a New Folder</source><translation>Neuen Ordner erstellen</translation></message>
    <message><source>Files of type:</source><translation>Dateien des Typs:</translation></message>
    <message><source>Find Directory</source><translation>Verzeichnis suchen</translation></message>
    <message><source>Show &amp;hidden files</source><translation>&amp;Versteckte Dateien anzeigen</translation></message>
    <message><source>Save As</source><translation>Speichern unter</translation></message>
    <message><source>%1
Directory not found.
Please verify the correct directory name was given.</source><translation>%1
Das Verzeichnis konnte nicht gefunden werden.
Stellen Sie sicher, dass der Verzeichnisname richtig ist.</translation></message>
    <message><source>Sidebar</source><translation>Seitenleiste</translation></message>
    <message><source>List View</source><translation>Liste</translation></message>
    <message><source>&amp;Choose</source><translation>&amp;Auswählen</translation></message>
    <message><source>&amp;Delete</source><translation>&amp;Löschen</translation></message>
    <message><source>All files (*)</source><translation>Alle Dateien (*)</translation></message>
    <message><source>All Files (*)</source><translation>Alle Dateien (*)</translation></message>
    <message><source>Directories</source><translation>Verzeichnisse</translation></message>
    <message><source>&amp;Rename</source><translation>&amp;Umbenennen</translation></message>
    <message><source>Could not delete directory.</source><translation>Das Verzeichnis konnte nicht gelöscht werden.</translation></message>
    <message><source>Directory:</source><translation>Verzeichnis:</translation></message>
    <message><source>%1 already exists.
Do you want to replace it?</source><translation>Die Datei %1 existiert bereits.
Soll sie überschrieben werden?</translation></message>
    <message><source>Forward</source><translation>Vorwärts</translation></message>
    <message><source>Go forward</source><translation>Vor</translation></message>
    <message><source>Go to the parent directory</source><translation>Gehe zum übergeordneten Verzeichnis</translation></message>
    <message><source>Recent Places</source><translation>Zuletzt besucht</translation></message>
    <message><source>Go back</source><translation>Zurück</translation></message>
    <message><source>Change to detail view mode</source><translation>Wechsle zu Detailansicht</translation></message>
    <message><source>Create New Folder</source><translation>Neuen Ordner erstellen</translation></message>
    <message><source>Detail View</source><translation>Details</translation></message>
    <message><source>%1
File not found.
Please verify the correct file name was given.</source><translation>%1
Die Datei konnte nicht gefunden werden.
Stellen Sie sicher, dass der Dateiname richtig ist.</translation></message>
    <message><source>Change to list view mode</source><translation>Wechsle zu Listenansicht</translation></message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message><source>Kind</source><translation>Art</translation></message>
    <message><source>Name</source><translation>Name</translation></message>
    <message><source>Size</source><translation>Größe</translation></message>
    <message><source>Type</source><translation>Typ</translation></message>
    <message><source>My Computer</source><translation>Mein Computer</translation></message>
    <message><source>Computer</source><translation>Computer</translation></message>
    <message><source>Date Modified</source><translation>Änderungsdatum</translation></message>
</context>
<context>
    <name>QGnomeTheme</name>
    <message><source>&amp;OK</source><translation>&amp;OK</translation></message>
    <message><source>&amp;Save</source><translation>S&amp;peichern</translation></message>
    <message><source>&amp;Close</source><translation>Schl&amp;ießen</translation></message>
    <message><source>Close without Saving</source><translation>Schließen ohne zu Speichern</translation></message>
    <message><source>&amp;Cancel</source><translation>&amp;Abbrechen</translation></message>
</context>
<context>
    <name>QGuiApplication</name>
    <message><source>Alias for --qwindowicon.</source><translation>Alias für --qwindowicon.</translation></message>
    <message><source>Alias for --qwindowtitle.</source><translation>Alias für --qwindowtitle.</translation></message>
    <message><source>QPA plugin. See QGuiApplication documentation for available options for each plugin.</source><translation>QPA-Plugin. Siehe auch Dokumentation zu QGuiApplication zu den verfügbaren Optionen der einzelnen Plugins.</translation></message>
    <message><source>QT_LAYOUT_DIRECTION</source><translation>LTR</translation></message>
    <message><source>Restores the application from an earlier session.</source><translation>Stellt eine vorangegangene Sitzung wieder her.</translation></message>
    <message><source>Default window icon.</source><translation>Vorgabe-Window-Icon.</translation></message>
    <message><source>Instance name according to ICCCM 4.1.2.5.</source><translation>Name der Instanz nach ICCCM 4.1.2.5.</translation></message>
    <message><source>Disable mouse grabbing (useful in debuggers).</source><translation>Deaktiviere Mouse-Grabbing (Debug-Hilfe).</translation></message>
    <message><source>Path to the platform plugins.</source><translation>Pfad zu den Plattform-Plugins.</translation></message>
    <message><source>Title of the first window.</source><translation>Titel des ersten Fensters.</translation></message>
    <message><source>Window geometry for the main window, using the X11-syntax, like 100x100+50+50.</source><translation>Fenstergeometrie für das Hauptfenster in X11-Syntax, wie zum Beispiel 100x100+50+50.</translation></message>
    <message><source>ID of the X11 Visual to use.</source><translation>ID des X11-Visuals.</translation></message>
    <message><source>Alias for --qwindowgeometry.</source><translation>Alias für --qwindowgeometry.</translation></message>
    <message><source>Sets the application's layout direction to Qt::RightToLeft (debugging helper).</source><translation>Setzt die Layout-Richtung der Anwendung zu Qt::RightToLeft (Debug-Hilfe).</translation></message>
    <message><source>Additional plugins to load, can be specified multiple times.</source><translation>Zu ladende zusätzliche Plugins, kann mehrfach angegeben werden.</translation></message>
    <message><source>Display name, overrides $DISPLAY.</source><translation>Name des Displays, überschreibt $DISPLAY.</translation></message>
    <message><source>Force mouse grabbing (even when running in a debugger).</source><translation>Erzwinge Mouse-Grabbing (auch bei Ausführung im Debugger).</translation></message>
    <message><source>Platform theme.</source><translation>Plattform-Theme.</translation></message>
</context>
<context>
    <name>QIODevice</name>
    <message><source>No such file or directory</source><translation>Die Datei oder das Verzeichnis konnte nicht gefunden werden</translation></message>
    <message><source>Permission denied</source><translation>Zugriff verweigert</translation></message>
    <message><source>file to open is a directory</source><translation>die zu öffnende Datei ist ein Verzeichnis</translation></message>
    <message><source>No space left on device</source><translation>Kein freier Speicherplatz auf dem Gerät vorhanden</translation></message>
    <message><source>Unknown error</source><translation>Unbekannter Fehler</translation></message>
    <message><source>Too many open files</source><translation>Zu viele Dateien geöffnet</translation></message>
</context>
<context>
    <name>QInputDialog</name>
    <message><source>Enter a value:</source><translation>Geben Sie einen Wert ein:</translation></message>
</context>
<context>
    <name>QLineEdit</name>
    <message><source>Cu&amp;t</source><translation>&amp;Ausschneiden</translation></message>
    <message><source>&amp;Copy</source><translation>&amp;Kopieren</translation></message>
    <message><source>&amp;Redo</source><translation>Wieder&amp;herstellen</translation></message>
    <message><source>&amp;Undo</source><translation>&amp;Rückgängig</translation></message>
    <message><source>&amp;Paste</source><translation>Einf&amp;ügen</translation></message>
    <message><source>Delete</source><translation>Löschen</translation></message>
    <message><source>Select All</source><translation>Alles auswählen</translation></message>
</context>
<context>
    <name>QMessageBox</name>
    <message><source>Show Details...</source><translation>Details einblenden...</translation></message>
    <message><source>Hide Details...</source><translation>Details ausblenden...</translation></message>
</context>
<context>
    <name>QPageSetupWidget</name>
    <message><source>CC</source><translation>CC</translation></message>
    <message><source>DD</source><translation>DD</translation></message>
    <message><source>in</source><translation>Zoll</translation></message>
    <message><source>mm</source><translation>mm</translation></message>
    <message><source>pt</source><translation>pt</translation></message>
    <message><source>P̸</source><translation>P̸</translation></message>
    <message><source>Form</source><translation>Formular</translation></message>
    <message><source>bottom margin</source><translation>Unterer Rand</translation></message>
    <message><source>Paper</source><translation>Papier</translation></message>
    <message><source>Paper source:</source><translation>Papierquelle:</translation></message>
    <message><source>right margin</source><translation>Rechter Rand</translation></message>
    <message><source>Pica (P̸)</source><translation>Pica (P̸)</translation></message>
    <message><source>Margins</source><translation>Ränder</translation></message>
    <message><source>Custom</source><translation>Benutzerdefiniert</translation></message>
    <message><source>Landscape</source><translation>Querformat</translation></message>
    <message><source>Page Layout</source><translation>Seitenaufbau</translation></message>
    <message><source>Width:</source><translation>Breite:</translation></message>
    <message><source>Orientation</source><translation>Ausrichtung</translation></message>
    <message><source>Didot (DD)</source><translation>Didot (DD)</translation></message>
    <message><source>Portrait</source><translation>Hochformat</translation></message>
    <message><source>Page order:</source><translation>Reihenfolge der Seiten:</translation></message>
    <message><source>top margin</source><translation>Oberer Rand</translation></message>
    <message><source>left margin</source><translation>Linker Rand</translation></message>
    <message><source>Page size:</source><translation>Seitengröße:</translation></message>
    <message><source>Cicero (CC)</source><translation>Cicero (CC)</translation></message>
    <message><source>Reverse portrait</source><translation>Umgekehrtes Hochformat</translation></message>
    <message><source>Millimeters (mm)</source><translation>Millimeter (mm)</translation></message>
    <message><source>Points (pt)</source><translation>Punkte (pt)</translation></message>
    <message><source>Pages per sheet:</source><translation>Seiten pro Blatt:</translation></message>
    <message><source>Inches (in)</source><translation>Zoll (in)</translation></message>
    <message><source>Reverse landscape</source><translation>Umgekehrtes Querformat</translation></message>
    <message><source>Height:</source><translation>Höhe:</translation></message>
</context>
<context>
    <name>QPageSize</name>
    <message><source>A0</source><translation>A0</translation></message>
    <message><source>A1</source><translation>A1</translation></message>
    <message><source>A2</source><translation>A2</translation></message>
    <message><source>A3</source><translation>A3</translation></message>
    <message><source>A4</source><translation>A4</translation></message>
    <message><source>A5</source><translation>A5</translation></message>
    <message><source>A6</source><translation>A6</translation></message>
    <message><source>A7</source><translation>A7</translation></message>
    <message><source>A8</source><translation>A8</translation></message>
    <message><source>A9</source><translation>A9</translation></message>
    <message><source>B0</source><translation>B0</translation></message>
    <message><source>B1</source><translation>B1</translation></message>
    <message><source>B2</source><translation>B2</translation></message>
    <message><source>B3</source><translation>B3</translation></message>
    <message><source>B4</source><translation>B4</translation></message>
    <message><source>B5</source><translation>B5</translation></message>
    <message><source>B6</source><translation>B6</translation></message>
    <message><source>B7</source><translation>B7</translation></message>
    <message><source>B8</source><translation>B8</translation></message>
    <message><source>B9</source><translation>B9</translation></message>
    <message><source>A10</source><translation>A10</translation></message>
    <message><source>B10</source><translation>B10</translation></message>
    <message><source>Note</source><translation>Note</translation></message>
    <message><source>Letter / ANSI A</source><translation>Letter / ANSI A</translation></message>
    <message><source>Legal</source><translation>Legal</translation></message>
    <message><source>Envelope Monarch</source><translation>Umschlag Monarch</translation></message>
    <message><source>Architect A</source><translation>Architect A</translation></message>
    <message><source>Architect B</source><translation>Architect B</translation></message>
    <message><source>Architect C</source><translation>Architect C</translation></message>
    <message><source>Architect D</source><translation>Architect D</translation></message>
    <message><source>Architect E</source><translation>Architect E</translation></message>
    <message><source>Letter Extra</source><translation>Letter Extra</translation></message>
    <message><source>Letter Small</source><translation>Letter Klein</translation></message>
    <message><source>Envelope You 4</source><translation>Umschlag You 4</translation></message>
    <message><source>Envelope US 10</source><translation>Umschlag US 10</translation></message>
    <message><source>Envelope US 11</source><translation>Umschlag US 11</translation></message>
    <message><source>Envelope US 12</source><translation>Umschlag US 12</translation></message>
    <message><source>Envelope US 14</source><translation>Umschlag US 14</translation></message>
    <message><source>Envelope PRC 1</source><translation>Umschlag PRC 1</translation></message>
    <message><source>Envelope PRC 2</source><translation>Umschlag PRC 2</translation></message>
    <message><source>Envelope PRC 3</source><translation>Umschlag PRC 3</translation></message>
    <message><source>Envelope PRC 4</source><translation>Umschlag PRC 4</translation></message>
    <message><source>Envelope PRC 5</source><translation>Umschlag PRC 5</translation></message>
    <message><source>Envelope PRC 6</source><translation>Umschlag PRC 6</translation></message>
    <message><source>Envelope PRC 7</source><translation>Umschlag PRC 7</translation></message>
    <message><source>Envelope PRC 8</source><translation>Umschlag PRC 8</translation></message>
    <message><source>Envelope PRC 9</source><translation>Umschlag PRC 9</translation></message>
    <message><source>Envelope C65</source><translation>Umschlag C65</translation></message>
    <message><source>Envelope DL</source><translation>Umschlag DL</translation></message>
    <message><source>Envelope B4</source><translation>Umschlag B4</translation></message>
    <message><source>Envelope B5</source><translation>Umschlag B5</translation></message>
    <message><source>Envelope B6</source><translation>Umschlag B6</translation></message>
    <message><source>Envelope C0</source><translation>Umschlag C0</translation></message>
    <message><source>Envelope C1</source><translation>Umschlag C1</translation></message>
    <message><source>Envelope C2</source><translation>Umschlag C2</translation></message>
    <message><source>Envelope C3</source><translation>Umschlag C3</translation></message>
    <message><source>Envelope C4</source><translation>Umschlag C4</translation></message>
    <message><source>Envelope C5</source><translation>Umschlag C5</translation></message>
    <message><source>Envelope C6</source><translation>Umschlag C6</translation></message>
    <message><source>Envelope C7</source><translation>Umschlag C7</translation></message>
    <message><source>Executive (7.5 x 10 in)</source><translation>Executive (7,5 x 10 Zoll)</translation></message>
    <message><source>ANSI C</source><translation>ANSI C</translation></message>
    <message><source>ANSI D</source><translation>ANSI D</translation></message>
    <message><source>ANSI E</source><translation>ANSI E</translation></message>
    <message><source>A4 Plus</source><translation>A4 Plus</translation></message>
    <message><source>Custom</source><translation>Benutzerdefiniert</translation></message>
    <message><source>JIS B0</source><translation>JIS B0</translation></message>
    <message><source>JIS B1</source><translation>JIS B1</translation></message>
    <message><source>JIS B2</source><translation>JIS B2</translation></message>
    <message><source>JIS B3</source><translation>JIS B3</translation></message>
    <message><source>JIS B4</source><translation>JIS B4</translation></message>
    <message><source>JIS B5</source><translation>JIS B5</translation></message>
    <message><source>JIS B6</source><translation>JIS B6</translation></message>
    <message><source>JIS B7</source><translation>JIS B7</translation></message>
    <message><source>JIS B8</source><translation>JIS B8</translation></message>
    <message><source>JIS B9</source><translation>JIS B9</translation></message>
    <message><source>A3 Extra</source><translation>A3 Extra</translation></message>
    <message><source>PRC 16K</source><translation>PRC 16K</translation></message>
    <message><source>PRC 32K</source><translation>PRC 32K</translation></message>
    <message><source>Quarto</source><translation>Quarto</translation></message>
    <message><source>PRC 32K Big</source><translation>PRC 32K Groß</translation></message>
    <message><source>A4 Extra</source><translation>A4 Extra</translation></message>
    <message><source>A4 Small</source><translation>A4 Klein</translation></message>
    <message><source>Executive (7.25 x 10.5 in)</source><translation>Executive (7,25 x 10,5 Zoll)</translation></message>
    <message><source>Postcard</source><translation>Postkarte</translation></message>
    <message><source>Tabloid / ANSI B</source><translation>Tabloid / ANSI B</translation></message>
    <message><source>A5 Extra</source><translation>A5 Extra</translation></message>
    <message><source>B5 Extra</source><translation>B5 Extra</translation></message>
    <message><source>Envelope Invite</source><translation>Umschlag Einladung</translation></message>
    <message><source>Envelope Chou 3</source><translation>Umschlag Chou 3</translation></message>
    <message><source>Envelope Chou 4</source><translation>Umschlag Chou 4</translation></message>
    <message><source>Statement</source><translation>Statement</translation></message>
    <message><source>Fan-fold German (8.5 x 12 in)</source><translation>Endlosdruckpapier Deutsch (8,5 x 12 Zoll)</translation></message>
    <message><source>Envelope PRC 10</source><translation>Umschlag PRC 10</translation></message>
    <message><source>Envelope Kaku 2</source><translation>Umschlag Kaku 2</translation></message>
    <message><source>Envelope Kaku 3</source><translation>Umschlag Kaku 3</translation></message>
    <message><source>Envelope US 9</source><translation>Umschlag US 9</translation></message>
    <message><source>%1 x %2 in</source><translation>%1 x %2 Zoll</translation></message>
    <message><source>Super A</source><translation>Super A</translation></message>
    <message><source>Super B</source><translation>Super B</translation></message>
    <message><source>Fan-fold US (14.875 x 11 in)</source><translation>Endlosdruckpapier US (14,875 x 11 Zoll)</translation></message>
    <message><source>Fan-fold German Legal (8.5 x 13 in)</source><translation>Endlosdruckpapier Deutsch Legal (8,5 x 13 Zoll)</translation></message>
    <message><source>Custom (%1in x %2in)</source><translation>Benutzerdefiniert (%1 Zoll x %2 Zoll)</translation></message>
    <message><source>Custom (%1mm x %2mm)</source><translation>Benutzerdefiniert (%1mm x %2mm)</translation></message>
    <message><source>Custom (%1CC x %2CC)</source><translation>Benutzerdefiniert (%1CC x %2CC)</translation></message>
    <message><source>Custom (%1DD x %2DD)</source><translation>Benutzerdefiniert (%1DD x %2DD)</translation></message>
    <message><source>Custom (%1pc x %2pc)</source><translation>Benutzerdefiniert (%1pc x %2pc)</translation></message>
    <message><source>Custom (%1pt x %2pt)</source><translation>Benutzerdefiniert (%1pt x %2pt)</translation></message>
    <message><source>Letter Plus</source><translation>Letter Plus</translation></message>
    <message><source>Tabloid Extra</source><translation>Tabloid Extra</translation></message>
    <message><source>Envelope Italian</source><translation>Umschlag Italienisch</translation></message>
    <message><source>Double Postcard</source><translation>Doppelpostkarte</translation></message>
    <message><source>Legal Extra</source><translation>Legal Extra</translation></message>
    <message><source>Folio (8.27 x 13 in)</source><translation>Folio (8,27 x 13 Zoll)</translation></message>
    <message><source>Ledger / ANSI B</source><translation>Ledger / ANSI B</translation></message>
    <message><source>JIS B10</source><translation>JIS B10</translation></message>
    <message><source>Envelope Personal</source><translation>Umschlag Personal</translation></message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message><source>OK</source><translation>OK</translation></message>
    <message><source>&amp;No</source><translation>&amp;Nein</translation></message>
    <message><source>&amp;Yes</source><translation>&amp;Ja</translation></message>
    <message><source>Help</source><translation>Hilfe</translation></message>
    <message><source>Open</source><translation>Öffnen</translation></message>
    <message><source>Save</source><translation>Speichern</translation></message>
    <message><source>Abort</source><translation>Abbrechen</translation></message>
    <message><source>Apply</source><translation>Anwenden</translation></message>
    <message><source>Close</source><translation>Schließen</translation></message>
    <message><source>Reset</source><translation>Zurücksetzen</translation></message>
    <message><source>Retry</source><translation>Wiederholen</translation></message>
    <message><source>Restore Defaults</source><translation>Voreinstellungen</translation></message>
    <message><source>Cancel</source><translation>Abbrechen</translation></message>
    <message><source>Ignore</source><translation>Ignorieren</translation></message>
    <message><source>N&amp;o to All</source><translation>N&amp;ein, keine</translation></message>
    <message><source>Save All</source><translation>Alles speichern</translation></message>
    <message><source>Discard</source><translation>Verwerfen</translation></message>
    <message><source>Yes to &amp;All</source><translation>Ja, &amp;alle</translation></message>
</context>
<context>
    <name>QPrintDialog</name>
    <message><source>Even Pages</source><translation>Gerade Seiten</translation></message>
    <message><source>Print</source><translation>Drucken</translation></message>
    <message><source>&amp;Options &lt;&lt;</source><translation>&amp;Einstellungen &lt;&lt; </translation></message>
    <message><source>&amp;Options &gt;&gt;</source><translation>&amp;Einstellungen &gt;&gt;</translation></message>
    <message><source>Left to Right, Top to Bottom</source><translation>Von links nach rechts, von oben nach unten</translation></message>
    <message><source>Right to Left, Bottom to Top</source><translation>Von rechts nach links, von unten nach oben</translation></message>
    <message><source>Write PDF file</source><translation>PDF-Datei schreiben</translation></message>
    <message><source>&amp;Print</source><translation>&amp;Drucken</translation></message>
    <message><source>1 (1x1)</source><translation>1 (1x1)</translation></message>
    <message><source>Options 'Pages Per Sheet' and 'Page Set' cannot be used together.
Please turn one of those options off.</source><translation>Die Einstellungen "Seiten pro Blatt" und "Seiten-Satz" können nicht zusammen verwendet werden.
Bitte deaktivieren Sie eine der beiden.</translation></message>
    <message><source>%1 already exists.
Do you want to overwrite it?</source><translation>Die Datei %1 existiert bereits.
Soll sie überschrieben werden?</translation></message>
    <message><source>2 (2x1)</source><translation>2 (2x1)</translation></message>
    <message><source>Left to Right, Bottom to Top</source><translation>Von links nach rechts, von unten nach oben</translation></message>
    <message><source>4 (2x2)</source><translation>4 (2x2)</translation></message>
    <message><source>Odd Pages</source><translation>Ungerade Seiten</translation></message>
    <message><source>Local file</source><translation>Lokale Datei</translation></message>
    <message><source>6 (2x3)</source><translation>6 (2x3)</translation></message>
    <message><source>16 (4x4)</source><translation>16 (4x4)</translation></message>
    <message><source>There are conflicts in duplex settings. Do you want to fix them?</source><translation>Die Duplexeinstellungen sind widersprüchlich. Möchten Sie diese korrigieren?</translation></message>
    <message><source>Print to File (PDF)</source><translation>In PDF-Datei drucken</translation></message>
    <message><source>Print To File ...</source><translation>In Datei drucken ...</translation></message>
    <message><source>Invalid Pages Definition</source><translation>Ungültige Seitendefinition</translation></message>
    <message><source>%1 does not follow the correct syntax. Please use ',' to separate ranges and pages, '-' to define ranges and make sure ranges do not intersect with each other.</source><translation>%1 entspricht nicht der richtigen Schreibweise. Bitte benutzen Sie ',' um Bereiche und Seitennummern voneinander abzugrenzen, '-' um Bereiche festzulegen, und stellen Sie sicher, dass sich die Bereiche nicht überschneiden.</translation></message>
    <message><source>9 (3x3)</source><translation>9 (3x3)</translation></message>
    <message><source>Right to Left, Top to Bottom</source><translation>Von rechts nach links, von oben nach unten</translation></message>
    <message><source>Bottom to Top, Left to Right</source><translation>Von unten nach oben, von links nach rechts</translation></message>
    <message><source>The 'From' value cannot be greater than the 'To' value.</source><translation>Die Angabe für die erste Seite darf nicht größer sein als die für die letzte Seite.</translation></message>
    <message><source>All Pages</source><translation>Alle Seiten</translation></message>
    <message><source>Duplex Settings Conflicts</source><translation>Widersprüchliche Duplexeinstellungen</translation></message>
    <message><source>%1 is a directory.
Please choose a different file name.</source><translation>%1 ist ein Verzeichnis.
Bitte wählen Sie einen anderen Dateinamen.</translation></message>
    <message><source>File %1 is not writable.
Please choose a different file name.</source><translation>Die Datei %1 ist schreibgeschützt.
Bitte wählen Sie einen anderen Dateinamen.</translation></message>
    <message><source>Bottom to Top, Right to Left</source><translation>Von unten nach oben, von rechts nach links</translation></message>
    <message><source>Top to Bottom, Left to Right</source><translation>Von oben nach unten, von links nach rechts</translation></message>
    <message><source>Top to Bottom, Right to Left</source><translation>Von oben nach unten, von rechts nach links</translation></message>
</context>
<context>
    <name>QPrintPropertiesDialog</name>
    <message><source>Advanced Option Conflicts</source><translation>Widersprüchliche erweiterte Einstellungen</translation></message>
    <message><source>Job Options</source><translation>Einstellungen zum Druckauftrag</translation></message>
    <message><source>Page Setup Conflicts</source><translation>Widersprüchliche Seiteneinstellungen</translation></message>
    <message><source>There are conflicts in some advanced options. Do you want to fix them?</source><translation>Die erweiterten Einstellungen sind widersprüchlich. Möchten Sie diese korrigieren?</translation></message>
    <message><source>There are conflicts in page setup options. Do you want to fix them?</source><translation>Die Seiteneinstellungen sind widersprüchlich. Möchten Sie diese korrigieren?</translation></message>
    <message><source>Printer Properties</source><translation>Druckereigenschaften</translation></message>
</context>
<context>
    <name>QPrintPropertiesWidget</name>
    <message><source>Form</source><translation>Formular</translation></message>
    <message><source>Page</source><translation>Seite</translation></message>
    <message><source>There are conflicts in some options. Please fix them.</source><translation>Einige Einstellungen sind widersprüchlich. Bitte korrigieren Sie diese.</translation></message>
    <message><source>Advanced</source><translation>Erweitert</translation></message>
</context>
<context>
    <name>QPrintSettingsOutput</name>
    <message><source>to</source><translation>bis</translation></message>
    <message><source>Off</source><translation>Aus</translation></message>
    <message><source>Form</source><translation>Formular</translation></message>
    <message><source>Color</source><translation>Farbe</translation></message>
    <message><source>Print all</source><translation>Alles drucken</translation></message>
    <message><source>Pages</source><translation>Seiten</translation></message>
    <message><source>Current Page</source><translation>Aktuelle Seite</translation></message>
    <message><source>Selection</source><translation>Auswahl</translation></message>
    <message><source>Copies</source><translation>Anzahl Exemplare</translation></message>
    <message><source>Print range</source><translation>Bereich drucken</translation></message>
    <message><source>Color Mode</source><translation>Farbmodus</translation></message>
    <message><source>Options</source><translation>Optionen</translation></message>
    <message><source>Output Settings</source><translation>Ausgabeeinstellungen</translation></message>
    <message><source>Reverse</source><translation>Umgekehrt</translation></message>
    <message><source>Grayscale</source><translation>Graustufen</translation></message>
    <message><source>Collate</source><translation>Sortieren</translation></message>
    <message><source>Copies:</source><translation>Anzahl Exemplare:</translation></message>
    <message><source>Short side binding</source><translation>Kurze Seite</translation></message>
    <message><source>Specify pages or ranges separated by commas. Ranges are specified by two numbers separated by a hyphen. E.g: 3,5-7,9 prints pages 3, 5, 6, 7 and 9.</source><translation>Geben Sie die Seiten oder Bereiche durch Kommata getrennt ein. Bereiche werden durch zwei durch einen Bindestrich getrennte Zahlen festgelegt. Beispiel: 3,5-7,9 druckt die Seiten 3, 5, 6, 7 und 9.</translation></message>
    <message><source>Pages from</source><translation>Seiten von</translation></message>
    <message><source>Double Sided Printing</source><translation>Beidseitiger Druck</translation></message>
    <message><source>Page Set:</source><translation>Seiten-Satz:</translation></message>
    <message><source>Long side binding</source><translation>Lange Seite</translation></message>
</context>
<context>
    <name>QPrintWidget</name>
    <message><source>...</source><translation>...</translation></message>
    <message><source>Form</source><translation>Formular</translation></message>
    <message><source>Type:</source><translation>Typ:</translation></message>
    <message><source>&amp;Name:</source><translation>&amp;Name:</translation></message>
    <message><source>Output &amp;file:</source><translation>Ausgabe&amp;datei:</translation></message>
    <message><source>P&amp;roperties</source><translation>&amp;Eigenschaften</translation></message>
    <message><source>Preview</source><translation>Vorschau</translation></message>
    <message><source>Printer</source><translation>Drucker</translation></message>
    <message><source>Location:</source><translation>Standort:</translation></message>
</context>
<context>
    <name>QProgressDialog</name>
    <message><source>Cancel</source><translation>Abbrechen</translation></message>
</context>
<context>
    <name>QSaveFile</name>
    <message><source>Filename refers to a directory</source><translation>Dateiname bezeichnet ein Verzeichnis</translation></message>
    <message><source>Writing canceled by application</source><translation>Das Schreiben wurde von der Anwendung abgebrochen</translation></message>
    <message><source>QSaveFile cannot open '%1' without direct write fallback enabled.</source><translation>QSaveFile kann '%1' ohne den Direct-Write-Fallback nicht öffnen.</translation></message>
    <message><source>Existing file %1 is not writable</source><translation>Die existierende Datei %1 ist nicht schreibbar</translation></message>
</context>
<context>
    <name>QScrollBar</name>
    <message><source>Top</source><translation>Anfang</translation></message>
    <message><source>Scroll down</source><translation>Nach unten scrollen</translation></message>
    <message><source>Scroll here</source><translation>Hierher scrollen</translation></message>
    <message><source>Scroll left</source><translation>Nach links scrollen</translation></message>
    <message><source>Bottom</source><translation>Ende</translation></message>
    <message><source>Page up</source><translation>Eine Seite nach oben</translation></message>
    <message><source>Page right</source><translation>Eine Seite nach rechts</translation></message>
    <message><source>Scroll up</source><translation>Nach oben scrollen</translation></message>
    <message><source>Scroll right</source><translation>Nach rechts scrollen</translation></message>
    <message><source>Left edge</source><translation>Linker Rand</translation></message>
    <message><source>Page down</source><translation>Eine Seite nach unten</translation></message>
    <message><source>Page left</source><translation>Eine Seite nach links</translation></message>
    <message><source>Right edge</source><translation>Rechter Rand</translation></message>
</context>
<context>
    <name>QShortcut</name>
    <message><source>+</source><translation>+</translation></message>
    <message><source>Up</source><translation>Hoch</translation></message>
    <message><source>Alt</source><translation>Alt</translation></message>
    <message><source>F%1</source><translation>F%1</translation></message>
    <message><source>Del</source><translation>Entf</translation></message>
    <message><source>End</source><translation>Ende</translation></message>
    <message><source>Esc</source><translation>Esc</translation></message>
    <message><source>Ins</source><translation>Einfg</translation></message>
    <message><source>Num</source><translation>Zahlenblock</translation></message>
    <message><source>Tab</source><translation>Tab</translation></message>
    <message><source>Ctrl</source><translation>Strg</translation></message>
    <message><source>Down</source><translation>Herunter</translation></message>
    <message><source>Help</source><translation>Hilfe</translation></message>
    <message><source>Home</source><translation>Pos1</translation></message>
    <message><source>Left</source><translation>Links</translation></message>
    <message><source>Menu</source><translation>Menü</translation></message>
    <message><source>Meta</source><translation>Meta</translation></message>
    <message><source>PgUp</source><translation>Bild aufwärts</translation></message>
    <message><source>Clear</source><translation>Löschen</translation></message>
    <message><source>Enter</source><translation>Enter</translation></message>
    <message><source>Pause</source><translation>Pause</translation></message>
    <message><source>Print</source><translation>Druck</translation></message>
    <message><source>Right</source><translation>Rechts</translation></message>
    <message><source>Shift</source><translation>Umschalt</translation></message>
    <message><source>Space</source><translation>Leertaste</translation></message>
    <message><source>Print Screen</source><translation>Bildschirm drucken</translation></message>
    <message><source>Scroll Lock</source><translation>Rollen-Feststelltaste</translation></message>
    <message><source>Delete</source><translation>Löschen</translation></message>
    <message><source>Escape</source><translation>Escape</translation></message>
    <message><source>Insert</source><translation>Einfügen</translation></message>
    <message><source>PgDown</source><translation>Bild abwärts</translation></message>
    <message><source>Return</source><translation>Return</translation></message>
    <message><source>Select</source><translation>Auswählen</translation></message>
    <message><source>SysReq</source><translation>SysReq</translation></message>
    <message><source>NumLock</source><translation>Zahlen-Feststelltaste</translation></message>
    <message><source>ScrollLock</source><translation>Rollen-Feststelltaste</translation></message>
    <message><source>Page Up</source><translation>Bild aufwärts</translation></message>
    <message><source>Caps Lock</source><translation>Feststelltaste</translation></message>
    <message><source>System Request</source><translation>System Request</translation></message>
    <message><source>CapsLock</source><translation>Feststelltaste</translation></message>
    <message><source>Backtab</source><translation>Rück-Tab</translation></message>
    <message><source>Backspace</source><translation>Rücktaste</translation></message>
    <message><source>Num Lock</source><translation>Zahlen-Feststelltaste</translation></message>
    <message><source>Number Lock</source><translation>Zahlen-Feststelltaste</translation></message>
    <message><source>Page Down</source><translation>Bild abwärts</translation></message>
</context>
<context>
    <name>QTabBar</name>
    <message><source>Scroll Left</source><translation>Nach links scrollen</translation></message>
    <message><source>Scroll Right</source><translation>Nach rechts scrollen</translation></message>
</context>
<context>
    <name>QUnicodeControlCharacterMenu</name>
    <message><source>RLE Start of right-to-left embedding</source><translation>RLE Start of right-to-left embedding</translation></message>
    <message><source>ZWSP Zero width space</source><translation>ZWSP Zero width space</translation></message>
    <message><source>LRI Left-to-right isolate</source><translation>LRI Left-to-right isolate</translation></message>
    <message><source>Insert Unicode control character</source><translation>Unicode-Kontrollzeichen einfügen</translation></message>
    <message><source>LRO Start of left-to-right override</source><translation>LRO Start of left-to-right override</translation></message>
    <message><source>LRE Start of left-to-right embedding</source><translation>LRE Start of left-to-right embedding</translation></message>
    <message><source>RLI Right-to-left isolate</source><translation>RLI Right-to-left isolate</translation></message>
    <message><source>RLM Right-to-left mark</source><translation>RLM Right-to-left mark</translation></message>
    <message><source>PDF Pop directional formatting</source><translation>PDF Pop directional formatting</translation></message>
    <message><source>ZWNJ Zero width non-joiner</source><translation>ZWNJ Zero width non-joiner</translation></message>
    <message><source>RLO Start of right-to-left override</source><translation>RLO Start of right-to-left override</translation></message>
    <message><source>PDI Pop directional isolate</source><translation>PDI Pop directional isolate</translation></message>
    <message><source>ZWJ Zero width joiner</source><translation>ZWJ Zero width joiner</translation></message>
    <message><source>LRM Left-to-right mark</source><translation>LRM Left-to-right mark</translation></message>
    <message><source>FSI First strong isolate</source><translation>FSI First strong isolate</translation></message>
</context>
<context>
    <name>QWidget</name>
    <message><source>*</source><translation>*</translation></message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message><source>Cu&amp;t</source><translation>&amp;Ausschneiden</translation></message>
    <message><source>&amp;Copy</source><translation>&amp;Kopieren</translation></message>
    <message><source>&amp;Redo</source><translation>Wieder&amp;herstellen</translation></message>
    <message><source>&amp;Undo</source><translation>&amp;Rückgängig</translation></message>
    <message><source>&amp;Paste</source><translation>Einf&amp;ügen</translation></message>
    <message><source>Delete</source><translation>Löschen</translation></message>
    <message><source>Select All</source><translation>Alles auswählen</translation></message>
    <message><source>Copy &amp;Link Location</source><translation>&amp;Link-Adresse kopieren</translation></message>
</context>
</TS>
