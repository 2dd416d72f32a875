<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AchievementCard</name>
    <message>
        <source>Unlocked</source>
        <translation>Freigeschaltet</translation>
    </message>
    <message>
        <source>Locked, %1 of %2</source>
        <translation>Gesperrt, %1 von %2</translation>
    </message>
</context>
<context>
    <name>AppState</name>
    <message>
        <source>Another capture is running.</source>
        <translation>Eine andere Aufnahme läuft gerade.</translation>
    </message>
    <message>
        <source>This kind of capture is not available.</source>
        <translation>Diese Art von Aufnahme ist nicht verfügbar.</translation>
    </message>
    <message>
        <source>The screen may not be captured yet.</source>
        <translation>Der Bildschirm darf noch nicht aufgenommen werden.</translation>
    </message>
    <message>
        <source>Capture failed</source>
        <translation>Aufnahme fehlgeschlagen</translation>
    </message>
    <message>
        <source>Select the text to copy</source>
        <translation>Text zum Kopieren auswählen</translation>
    </message>
    <message>
        <source>No window to capture</source>
        <translation>Kein Fenster zum Aufnehmen</translation>
    </message>
    <message>
        <source>Click the window you want first, then press the shortcut.</source>
        <translation>Erst das gewünschte Fenster anklicken, dann das Tastenkürzel drücken.</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Kopiert</translation>
    </message>
    <message>
        <source>Save failed</source>
        <translation>Nicht gespeichert</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Gespeichert</translation>
    </message>
    <message>
        <source>Couldn&apos;t read text</source>
        <translation>Text nicht lesbar</translation>
    </message>
    <message>
        <source>No text found</source>
        <translation>Kein Text gefunden</translation>
    </message>
    <message>
        <source>Try selecting a larger or sharper area.</source>
        <translation>Vielleicht klappt es mit einem größeren oder schärferen Bereich.</translation>
    </message>
</context>
<context>
    <name>ColorWell</name>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Other Colour…</source>
        <translation>Andere Farbe&#xa0;…</translation>
    </message>
</context>
<context>
    <name>Countdown</name>
    <message>
        <source>Countdown</source>
        <translation>Countdown</translation>
    </message>
</context>
<context>
    <name>DiagnosisView</name>
    <message>
        <source>Run</source>
        <translation>Starten</translation>
    </message>
    <message>
        <source>Copy Report</source>
        <translation>Bericht kopieren</translation>
    </message>
    <message>
        <source>Takes some seconds and shows a small pattern on each screen.</source>
        <translation>Dauert einige Sekunden und zeigt auf jedem Bildschirm ein kleines Muster.</translation>
    </message>
    <message>
        <source>Does everything work here?</source>
        <translation>Funktioniert hier alles?</translation>
    </message>
    <message>
        <source>Examining…</source>
        <translation>Es wird untersucht&#xa0;…</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>Braucht Aufmerksamkeit</translation>
    </message>
    <message>
        <source>Works</source>
        <translation>Funktioniert</translation>
    </message>
    <message>
        <source>Run Again</source>
        <translation>Erneut starten</translation>
    </message>
</context>
<context>
    <name>EditorCanvas</name>
    <message>
        <source>%1 × %2 at %3, %4</source>
        <translation>%1 × %2 bei %3, %4</translation>
    </message>
</context>
<context>
    <name>EditorCommands</name>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Pin</source>
        <translation>Anheften</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Teilen</translation>
    </message>
    <message>
        <source>Sticker</source>
        <translation>Sticker</translation>
    </message>
    <message>
        <source>Emoji and text stickers</source>
        <translation>Emoji- und Textsticker</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>EditorFun</name>
    <message>
        <source>Stickers</source>
        <translation>Sticker</translation>
    </message>
    <message>
        <source>Meme caption added — double-click a line to edit it</source>
        <translation>Meme-Text hinzugefügt&#xa0;– Doppelklick auf eine Zeile ändert sie</translation>
    </message>
    <message>
        <source>Looking for faces…</source>
        <translation>Gesichter werden gesucht&#xa0;…</translation>
    </message>
    <message>
        <source>Face detection failed</source>
        <translation>Gesichtserkennung fehlgeschlagen</translation>
    </message>
</context>
<context>
    <name>EditorNotice</name>
    <message>
        <source>Try Again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Speichern unter&#xa0;…</translation>
    </message>
    <message>
        <source>Discard Edit</source>
        <translation>Bearbeitung verwerfen</translation>
    </message>
    <message>
        <source>Not closed, as the edit could not be kept: %1</source>
        <translation>Nicht geschlossen, da die Bearbeitung nicht gesichert werden konnte: %1</translation>
    </message>
</context>
<context>
    <name>EditorToolbar</name>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>Colour…</source>
        <translation>Farbe&#xa0;…</translation>
    </message>
    <message>
        <source>Thickness</source>
        <translation>Strichstärke</translation>
    </message>
    <message>
        <source>%1 px</source>
        <translation>%1&#xa0;px</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Text style</source>
        <translation>Textstil</translation>
    </message>
    <message>
        <source>Text style (TikTok, neon, meme…)</source>
        <translation>Textstil (TikTok, Neon, Meme&#xa0;…)</translation>
    </message>
    <message>
        <source>Meme caption, emoji face cover</source>
        <translation>Meme-Text, Emoji auf Gesichter</translation>
    </message>
</context>
<context>
    <name>EditorWindow</name>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Magnification</source>
        <translation>Vergrößerung</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Copied to clipboard</source>
        <translation>In die Zwischenablage kopiert</translation>
    </message>
</context>
<context>
    <name>FunMenu</name>
    <message>
        <source>Fun</source>
        <translation>Spaß</translation>
    </message>
    <message>
        <source>🐸  Meme caption…</source>
        <translation>🐸  Meme-Text&#xa0;…</translation>
    </message>
    <message>
        <source>🥸  Cover faces with emoji</source>
        <translation>🥸  Gesichter mit Emoji verdecken</translation>
    </message>
    <message>
        <source>🎲  Random mix</source>
        <translation>🎲  Bunt gemischt</translation>
    </message>
    <message>
        <source>😎  Emoji sticker…</source>
        <translation>😎  Emoji-Sticker&#xa0;…</translation>
    </message>
</context>
<context>
    <name>GalleryView</name>
    <message>
        <source>Achievements  •  %1 of %2</source>
        <translation>Erfolge  •  %1 von %2</translation>
    </message>
    <message>
        <source>Pet and achievements</source>
        <translation>Haustier und Erfolge</translation>
    </message>
</context>
<context>
    <name>HistoryActions</name>
    <message>
        <source>No picture</source>
        <translation>Kein Bild</translation>
    </message>
    <message>
        <source>Copied 1 capture</source>
        <translation>1 Aufnahme kopiert</translation>
    </message>
    <message numerus="yes">
        <source>Copied %Ln captures</source>
        <translation>
            <numerusform>%Ln Aufnahme kopiert</numerusform>
            <numerusform>%Ln Aufnahmen kopiert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Remove %Ln captures from the history?</source>
        <translation>
            <numerusform>%Ln Aufnahme aus dem Verlauf entfernen?</numerusform>
            <numerusform>%Ln Aufnahmen aus dem Verlauf entfernen?</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Remove the only capture from the history?</source>
        <translation>Die einzige Aufnahme aus dem Verlauf entfernen?</translation>
    </message>
    <message numerus="yes">
        <source>Remove all %Ln captures from the history?</source>
        <translation>
            <numerusform>%Ln Aufnahme aus dem Verlauf entfernen?</numerusform>
            <numerusform>Alle %Ln Aufnahmen aus dem Verlauf entfernen?</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear History</source>
        <translation>Verlauf leeren</translation>
    </message>
    <message>
        <source>Files that you saved stay where they are. Captures that are only here are gone then.</source>
        <translation>Gespeicherte Dateien bleiben, wo sie sind. Aufnahmen, die es nur hier gibt, sind dann weg.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open the folder</source>
        <translation>Ordner konnte nicht geöffnet werden</translation>
    </message>
    <message>
        <source>Open in Editor</source>
        <translation>Im Editor öffnen</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Pin to Screen</source>
        <translation>An den Bildschirm heften</translation>
    </message>
    <message>
        <source>Remove from History</source>
        <translation>Aus dem Verlauf entfernen</translation>
    </message>
</context>
<context>
    <name>HistoryGrid</name>
    <message>
        <source>Captures</source>
        <translation>Aufnahmen</translation>
    </message>
</context>
<context>
    <name>HistoryView</name>
    <message>
        <source>No screenshots yet</source>
        <translation>Noch keine Screenshots</translation>
    </message>
    <message>
        <source>Captures appear here as you take them.</source>
        <translation>Hier erscheinen die Aufnahmen, sobald es welche gibt.</translation>
    </message>
    <message>
        <source>Capture Region</source>
        <translation>Bereich aufnehmen</translation>
    </message>
    <message>
        <source>No matches</source>
        <translation>Keine Treffer</translation>
    </message>
    <message>
        <source>Clear Search</source>
        <translation>Suche leeren</translation>
    </message>
    <message>
        <source>Search app, file or date</source>
        <translation>App, Datei oder Datum suchen</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>Clear History</source>
        <translation>Verlauf leeren</translation>
    </message>
    <message>
        <source>Open in Editor</source>
        <translation>Im Editor öffnen</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Pin to Screen</source>
        <translation>An den Bildschirm heften</translation>
    </message>
    <message>
        <source>Nothing in your history matches “%1”.</source>
        <translation>Nichts im Verlauf passt zu „%1“.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suche</translation>
    </message>
</context>
<context>
    <name>HistoryWindow</name>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
</context>
<context>
    <name>HttpGet</name>
    <message>
        <source>the server sends from one address to the next</source>
        <translation>der Server verweist von einer Adresse zur nächsten</translation>
    </message>
    <message>
        <source>the server did not answer in time</source>
        <translation>der Server hat nicht rechtzeitig geantwortet</translation>
    </message>
</context>
<context>
    <name>KeptEdits</name>
    <message>
        <source>An edit made Pixmallow crash twice and is not opened again.</source>
        <translation>Eine Bearbeitung hat Pixmallow zweimal abstürzen lassen und wird nicht wieder geöffnet.</translation>
    </message>
    <message>
        <source>Couldn’t reopen an edit. %1</source>
        <translation>Eine Bearbeitung konnte nicht wieder geöffnet werden. %1</translation>
    </message>
</context>
<context>
    <name>MemeDialog</name>
    <message>
        <source>Meme caption</source>
        <translation>Meme-Text</translation>
    </message>
    <message>
        <source>Meme — top text</source>
        <translation>Meme&#xa0;– Text oben</translation>
    </message>
    <message>
        <source>Meme — bottom text</source>
        <translation>Meme&#xa0;– Text unten</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
</context>
<context>
    <name>OverflowRow</name>
    <message>
        <source>More</source>
        <translation>Mehr</translation>
    </message>
</context>
<context>
    <name>PanelView</name>
    <message>
        <source>Allow capture…</source>
        <translation>Aufnahmen erlauben&#xa0;…</translation>
    </message>
    <message>
        <source>Edit last capture</source>
        <translation>Letzte Aufnahme bearbeiten</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Achievements</source>
        <translation>Erfolge</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Einstellungen&#xa0;…</translation>
    </message>
    <message>
        <source>Quit Pixmallow</source>
        <translation>Pixmallow beenden</translation>
    </message>
</context>
<context>
    <name>PermissionView</name>
    <message>
        <source>Get Started</source>
        <translation>Los geht’s</translation>
    </message>
    <message>
        <source>Open System Settings</source>
        <translation>Systemeinstellungen öffnen</translation>
    </message>
    <message>
        <source>Restart Pixmallow</source>
        <translation>Pixmallow neu starten</translation>
    </message>
    <message>
        <source>You&apos;re all set</source>
        <translation>Alles bereit</translation>
    </message>
    <message>
        <source>Allow screen capture</source>
        <translation>Bildschirmaufnahmen erlauben</translation>
    </message>
</context>
<context>
    <name>PermissionWindow</name>
    <message>
        <source>Welcome to Pixmallow</source>
        <translation>Willkommen bei Pixmallow</translation>
    </message>
</context>
<context>
    <name>PetCard</name>
    <message>
        <source>Rename your pet</source>
        <translation>Haustier umbenennen</translation>
    </message>
    <message>
        <source>Name of your pet</source>
        <translation>Name des Haustiers</translation>
    </message>
    <message>
        <source>Captures</source>
        <translation>Aufnahmen</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>Edits</source>
        <translation>Bearbeitet</translation>
    </message>
    <message>
        <source>%1  •  Level %2</source>
        <translation>%1  •  Level %2</translation>
    </message>
    <message>
        <source>%1, %2, level %3</source>
        <translation>%1, %2, Level %3</translation>
    </message>
</context>
<context>
    <name>PetRow</name>
    <message>
        <source>%1, level %2: %3</source>
        <translation>%1, Level %2: %3</translation>
    </message>
    <message>
        <source>Lv %1</source>
        <translation>Lv %1</translation>
    </message>
</context>
<context>
    <name>PinWindow</name>
    <message>
        <source>Pinned capture</source>
        <translation>Angeheftete Aufnahme</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Open in Editor</source>
        <translation>Im Editor öffnen</translation>
    </message>
    <message>
        <source>Actual Size</source>
        <translation>Originalgröße</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>PortalRequest</name>
    <message>
        <source>The desktop&apos;s portal has ended.</source>
        <translation>Das Portal des Desktops wurde beendet.</translation>
    </message>
    <message>
        <source>The desktop&apos;s portal could not do it.</source>
        <translation>Das Portal des Desktops konnte es nicht ausführen.</translation>
    </message>
</context>
<context>
    <name>Prefs</name>
    <message>
        <source>The preference “%1” takes values of another type.</source>
        <translation>Die Einstellung „%1“ verlangt Werte eines anderen Typs.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write “%1”: another program is writing it.</source>
        <translation>„%1“ konnte nicht geschrieben werden: Ein anderes Programm schreibt gerade.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write “%1”: its folder takes no files.</source>
        <translation>„%1“ konnte nicht geschrieben werden: Der Ordner nimmt keine Dateien an.</translation>
    </message>
</context>
<context>
    <name>PreviewView</name>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Speichern unter&#xa0;…</translation>
    </message>
    <message>
        <source>Pin on top</source>
        <translation>Oben anheften</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Teilen</translation>
    </message>
    <message>
        <source>Click to edit • Drag into any app</source>
        <translation>Klick: bearbeiten • In jede App ziehbar</translation>
    </message>
    <message>
        <source>Drag into any app</source>
        <translation>In jede App ziehbar</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Screenshot: %1</source>
        <translation>Screenshot: %1</translation>
    </message>
</context>
<context>
    <name>RecentActions</name>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Pin</source>
        <translation>Anheften</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Speichern unter&#xa0;…</translation>
    </message>
</context>
<context>
    <name>RecentThumbnail</name>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Pin</source>
        <translation>Anheften</translation>
    </message>
</context>
<context>
    <name>RegionOverlay</name>
    <message>
        <source>%1 × %2 at %3, %4</source>
        <translation>%1 × %2 bei %3, %4</translation>
    </message>
</context>
<context>
    <name>ReopenOffer</name>
    <message>
        <source>Reopen edits</source>
        <translation>Bearbeitungen wieder öffnen</translation>
    </message>
</context>
<context>
    <name>ReopenView</name>
    <message>
        <source>Not Now</source>
        <translation>Jetzt nicht</translation>
    </message>
    <message>
        <source>Ask again at the next start</source>
        <translation>Beim nächsten Start wieder fragen</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Remove what was kept for good</source>
        <translation>Gesichertes endgültig entfernen</translation>
    </message>
    <message>
        <source>Reopen</source>
        <translation>Wieder öffnen</translation>
    </message>
    <message>
        <source>Go on where you were</source>
        <translation>An derselben Stelle weitermachen</translation>
    </message>
</context>
<context>
    <name>SaveFolderControl</name>
    <message>
        <source>Choose…</source>
        <translation>Auswählen&#xa0;…</translation>
    </message>
    <message>
        <source>Save captures in</source>
        <translation>Aufnahmen speichern in</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>Aufnahme</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Ton</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Fun</source>
        <translation>Spaß</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Updates</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Diagnosis</source>
        <translation>Diagnose</translation>
    </message>
</context>
<context>
    <name>ShareMenu</name>
    <message>
        <source>Mail…</source>
        <translation>E-Mail&#xa0;…</translation>
    </message>
    <message>
        <source>Attached to a new mail</source>
        <translation>An eine neue E-Mail angehängt</translation>
    </message>
    <message>
        <source>Open With…</source>
        <translation>Öffnen mit&#xa0;…</translation>
    </message>
    <message>
        <source>Opened in another program</source>
        <translation>In einem anderen Programm geöffnet</translation>
    </message>
    <message>
        <source>Copy File</source>
        <translation>Datei kopieren</translation>
    </message>
    <message>
        <source>File copied to clipboard</source>
        <translation>Datei in die Zwischenablage kopiert</translation>
    </message>
</context>
<context>
    <name>ShortcutRecorder</name>
    <message>
        <source>Type shortcut…</source>
        <translation>Tasten drücken&#xa0;…</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keins</translation>
    </message>
</context>
<context>
    <name>ShortcutSettings</name>
    <message>
        <source>“%1” has the same keys.</source>
        <translation>„%1“ hat dieselben Tasten.</translation>
    </message>
    <message>
        <source>Your desktop or another program has these keys.</source>
        <translation>Der Desktop oder ein anderes Programm belegt diese Tasten.</translation>
    </message>
</context>
<context>
    <name>SoundChoice</name>
    <message>
        <source>Choose Your Own…</source>
        <translation>Eigenen Ton wählen&#xa0;…</translation>
    </message>
    <message>
        <source>Choose a sound</source>
        <translation>Ton wählen</translation>
    </message>
    <message>
        <source>Sounds (%1)</source>
        <translation>Töne (%1)</translation>
    </message>
    <message>
        <source>Screen Capture</source>
        <translation>Bildschirmaufnahme</translation>
    </message>
</context>
<context>
    <name>StatsView</name>
    <message>
        <source>Captures</source>
        <translation>Aufnahmen</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>Days in a row</source>
        <translation>Tage in Folge</translation>
    </message>
    <message>
        <source>Best streak</source>
        <translation>Beste Serie</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Level</translation>
    </message>
</context>
<context>
    <name>StreakCalendarView</name>
    <message>
        <source>No streak yet</source>
        <translation>Noch keine Serie</translation>
    </message>
    <message>
        <source>Longest: 1 day</source>
        <translation>Längste: 1 Tag</translation>
    </message>
    <message numerus="yes">
        <source>Longest: %Ln days</source>
        <translation>
            <numerusform>Längste: %Ln Tag</numerusform>
            <numerusform>Längste: %Ln Tage</numerusform>
        </translation>
    </message>
    <message>
        <source>A capture a day keeps it going</source>
        <translation>Eine Aufnahme am Tag hält sie am Laufen</translation>
    </message>
    <message>
        <source>No captures on %1</source>
        <translation>Keine Aufnahmen am %1</translation>
    </message>
    <message>
        <source>1 capture on %1</source>
        <translation>1 Aufnahme am %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln captures on %1</source>
        <translation>
            <numerusform>%Ln Aufnahme am %1</numerusform>
            <numerusform>%Ln Aufnahmen am %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n-day streak</source>
        <translation>
            <numerusform>%n-Tages-Serie</numerusform>
            <numerusform>%n-Tage-Serie</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Surfaces</name>
    <message>
        <source>Update to %1</source>
        <translation>Auf %1 aktualisieren</translation>
    </message>
</context>
<context>
    <name>TrayItem</name>
    <message>
        <source>Settings…</source>
        <translation>Einstellungen&#xa0;…</translation>
    </message>
    <message>
        <source>Quit Pixmallow</source>
        <translation>Pixmallow beenden</translation>
    </message>
</context>
<context>
    <name>UpdatePanel</name>
    <message>
        <source>Pixmallow Update</source>
        <translation>Pixmallow-Update</translation>
    </message>
</context>
<context>
    <name>UpdateView</name>
    <message>
        <source>Skip This Version</source>
        <translation>Version überspringen</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Später</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installieren</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Download</translation>
    </message>
    <message>
        <source>Pixmallow %1 is available.</source>
        <translation>Pixmallow %1 ist da.</translation>
    </message>
    <message>
        <source>You have %1.</source>
        <translation>Installiert ist %1.</translation>
    </message>
    <message>
        <source>Released %1. %2</source>
        <translation>Erschienen: %1. %2</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>What is new</source>
        <translation>Was neu ist</translation>
    </message>
</context>
<context>
    <name>Updater</name>
    <message>
        <source>Checking…</source>
        <translation>Es wird nachgesehen&#xa0;…</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates: %1</source>
        <translation>Updates konnten nicht gesucht werden: %1</translation>
    </message>
    <message>
        <source>You&apos;re up to date — Pixmallow %1 is the latest version.</source>
        <translation>Alles aktuell&#xa0;– Pixmallow %1 ist die neueste Version.</translation>
    </message>
    <message>
        <source>Pixmallow %1 is available.</source>
        <translation>Pixmallow %1 ist da.</translation>
    </message>
    <message>
        <source>Downloading…</source>
        <translation>Wird heruntergeladen&#xa0;…</translation>
    </message>
    <message>
        <source>Update failed: %1</source>
        <translation>Update fehlgeschlagen: %1</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>Text copied — 1 line</source>
        <translation>Text kopiert&#xa0;– 1 Zeile</translation>
    </message>
    <message numerus="yes">
        <source>Text copied — %n lines</source>
        <translation>
            <numerusform>Text kopiert&#xa0;– %n Zeile</numerusform>
            <numerusform>Text kopiert&#xa0;– %n Zeilen</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn&apos;t lock “%1”: %2.</source>
        <translation>„%1“ konnte nicht gesperrt werden: %2.</translation>
    </message>
    <message>
        <source>Pixmallow is running already.</source>
        <translation>Pixmallow läuft bereits.</translation>
    </message>
    <message>
        <source>ok </source>
        <translation>ok </translation>
    </message>
    <message>
        <source>FIX</source>
        <translation>!!!</translation>
    </message>
    <message>
        <source>All is well.</source>
        <translation>Alles in Ordnung.</translation>
    </message>
    <message>
        <source>One thing needs attention.</source>
        <translation>Eine Sache braucht Aufmerksamkeit.</translation>
    </message>
    <message numerus="yes">
        <source>%n things need attention.</source>
        <translation>
            <numerusform>%n Sache braucht Aufmerksamkeit.</numerusform>
            <numerusform>%n Dinge brauchen Aufmerksamkeit.</numerusform>
        </translation>
    </message>
    <message>
        <source>Preferences not saved</source>
        <translation>Einstellungen nicht gespeichert</translation>
    </message>
    <message>
        <source>Edits are not safe</source>
        <translation>Bearbeitungen sind nicht gesichert</translation>
    </message>
    <message>
        <source>Cannot be opened</source>
        <translation>Lässt sich nicht öffnen</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 gespeichert</translation>
    </message>
    <message>
        <source>Copied to clipboard</source>
        <translation>In die Zwischenablage kopiert</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Speichern unter&#xa0;…</translation>
    </message>
    <message>
        <source>The picture could not be written to a file.</source>
        <translation>Das Bild konnte nicht in eine Datei geschrieben werden.</translation>
    </message>
    <message>
        <source>No text found in “%1”.</source>
        <translation>Kein Text in „%1“ gefunden.</translation>
    </message>
    <message>
        <source>The picture could not be read.</source>
        <translation>Das Bild konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>a file of that name exists already</source>
        <translation>eine Datei dieses Namens gibt es schon</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>es ist ein Ordner</translation>
    </message>
    <message>
        <source>the folder “%1” does not exist</source>
        <translation>den Ordner „%1“ gibt es nicht</translation>
    </message>
    <message>
        <source>Couldn&apos;t write “%1”: %2.</source>
        <translation>„%1“ konnte nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>Capture region</source>
        <translation>Bereich aufnehmen</translation>
    </message>
    <message>
        <source>Capture window</source>
        <translation>Fenster aufnehmen</translation>
    </message>
    <message>
        <source>Capture screen</source>
        <translation>Bildschirm aufnehmen</translation>
    </message>
    <message>
        <source>Delayed capture (%1 s)</source>
        <translation>Aufnahme mit Verzögerung (%1&#xa0;s)</translation>
    </message>
    <message>
        <source>Copy text</source>
        <translation>Text kopieren</translation>
    </message>
    <message>
        <source>The line is not JSON: %1.</source>
        <translation>Die Zeile ist kein JSON: %1.</translation>
    </message>
    <message>
        <source>The line is not a JSON object.</source>
        <translation>Die Zeile ist kein JSON-Objekt.</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>that is no text</source>
        <translation>der kein Text ist</translation>
    </message>
    <message>
        <source>A path is a text.</source>
        <translation>Ein Pfad ist ein Text.</translation>
    </message>
    <message>
        <source>There is nothing to open.</source>
        <translation>Es gibt nichts zu öffnen.</translation>
    </message>
    <message>
        <source>The answer is too long to be sent.</source>
        <translation>Die Antwort ist zu lang, um gesendet zu werden.</translation>
    </message>
    <message>
        <source>There is no command %1.</source>
        <translation>Es gibt keinen Befehl %1.</translation>
    </message>
    <message>
        <source>There is no capture %1.</source>
        <translation>Es gibt keine Aufnahme %1.</translation>
    </message>
    <message>
        <source>“wait” is either true or false.</source>
        <translation>„wait“ ist entweder true oder false.</translation>
    </message>
    <message>
        <source>The line has no known outcome.</source>
        <translation>Die Zeile nennt kein bekanntes Ergebnis.</translation>
    </message>
    <message>
        <source>Pixmallow&apos;s answer was not understood. %1</source>
        <translation>Die Antwort von Pixmallow war nicht verständlich. %1</translation>
    </message>
    <message>
        <source>Pixmallow runs but gave no answer within %1 seconds.</source>
        <translation>Pixmallow läuft, hat aber innerhalb von %1 Sekunden nicht geantwortet.</translation>
    </message>
    <message>
        <source>Pixmallow ended before it answered.</source>
        <translation>Pixmallow wurde beendet, bevor es geantwortet hat.</translation>
    </message>
    <message>
        <source>Pixmallow&apos;s answer does not end.</source>
        <translation>Die Antwort von Pixmallow hört nicht auf.</translation>
    </message>
    <message>
        <source>Pixmallow has not ended within %1 seconds.</source>
        <translation>Pixmallow hat sich innerhalb von %1 Sekunden nicht beendet.</translation>
    </message>
    <message>
        <source>Couldn&apos;t use the folder “%1”: %2.</source>
        <translation>Der Ordner „%1“ ist nicht benutzbar: %2.</translation>
    </message>
    <message>
        <source>it is a file</source>
        <translation>es ist eine Datei</translation>
    </message>
    <message>
        <source>it belongs to another user</source>
        <translation>er gehört jemand anderem</translation>
    </message>
    <message>
        <source>Couldn&apos;t use the socket “%1”: %2.</source>
        <translation>Der Socket „%1“ ist nicht benutzbar: %2.</translation>
    </message>
    <message>
        <source>its path has %1 bytes and the system allows %2; a shorter XDG_RUNTIME_DIR helps</source>
        <translation>sein Pfad hat %1 Bytes, das System erlaubt %2; ein kürzeres XDG_RUNTIME_DIR hilft</translation>
    </message>
    <message>
        <source>Couldn&apos;t read “%1”: it is no file.</source>
        <translation>„%1“ konnte nicht gelesen werden: Es ist keine Datei.</translation>
    </message>
    <message>
        <source>Couldn&apos;t read “%1”: %2.</source>
        <translation>„%1“ konnte nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>Couldn&apos;t set the damaged file “%1” aside.</source>
        <translation>Die beschädigte Datei „%1“ konnte nicht beiseitegelegt werden.</translation>
    </message>
    <message>
        <source>Click to cancel</source>
        <translation>Klick bricht ab</translation>
    </message>
    <message>
        <source>Couldn&apos;t encode the image.</source>
        <translation>Das Bild konnte nicht kodiert werden.</translation>
    </message>
    <message>
        <source>There is no file “%1”.</source>
        <translation>Die Datei „%1“ gibt es nicht.</translation>
    </message>
    <message>
        <source>“%1” is not a file.</source>
        <translation>„%1“ ist keine Datei.</translation>
    </message>
    <message>
        <source>“%1” may not be read.</source>
        <translation>„%1“ darf nicht gelesen werden.</translation>
    </message>
    <message>
        <source>“%1” is too large to be opened: it has %2 × %3 pixels.</source>
        <translation>„%1“ ist zu groß zum Öffnen: Es hat %2 × %3 Pixel.</translation>
    </message>
    <message>
        <source>“%1” is no picture that can be read: %2.</source>
        <translation>„%1“ ist kein lesbares Bild: %2.</translation>
    </message>
    <message>
        <source>Install Pixmallow again, with all of its parts.</source>
        <translation>Pixmallow erneut und mit allen Teilen installieren.</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation>Arabisch</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>Chinesisch</translation>
    </message>
    <message>
        <source>Czech</source>
        <translation>Tschechisch</translation>
    </message>
    <message>
        <source>Danish</source>
        <translation>Dänisch</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>Niederländisch</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Englisch</translation>
    </message>
    <message>
        <source>Finnish</source>
        <translation>Finnisch</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Französisch</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Deutsch</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation>Griechisch</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation>Hebräisch</translation>
    </message>
    <message>
        <source>Hindi</source>
        <translation>Hindi</translation>
    </message>
    <message>
        <source>Hungarian</source>
        <translation>Ungarisch</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>Italienisch</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Japanisch</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>Koreanisch</translation>
    </message>
    <message>
        <source>Norwegian Bokmål</source>
        <translation>Norwegisch (Bokmål)</translation>
    </message>
    <message>
        <source>Polish</source>
        <translation>Polnisch</translation>
    </message>
    <message>
        <source>Portuguese</source>
        <translation>Portugiesisch</translation>
    </message>
    <message>
        <source>Romanian</source>
        <translation>Rumänisch</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>Russisch</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Spanisch</translation>
    </message>
    <message>
        <source>Swedish</source>
        <translation>Schwedisch</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>Türkisch</translation>
    </message>
    <message>
        <source>Ukrainian</source>
        <translation>Ukrainisch</translation>
    </message>
    <message>
        <source>Vietnamese</source>
        <translation>Vietnamesisch</translation>
    </message>
    <message>
        <source>Delayed capture</source>
        <translation>Aufnahme mit Verzögerung</translation>
    </message>
    <message>
        <source>Shortcut “%1”</source>
        <translation>Tastenkürzel „%1“</translation>
    </message>
    <message>
        <source>Choose another shortcut: no keyboard has this key.</source>
        <translation>Ein anderes Tastenkürzel wählen: Diese Taste hat keine Tastatur.</translation>
    </message>
    <message>
        <source>Choose another shortcut: two captures cannot have the same one.</source>
        <translation>Ein anderes Tastenkürzel wählen: Zwei Aufnahmen können nicht dasselbe haben.</translation>
    </message>
    <message>
        <source>Choose another shortcut in the settings, or take it from the other program and restart Pixmallow with &apos;pixmallow --replace&apos;.</source>
        <translation>In den Einstellungen ein anderes Tastenkürzel wählen, oder es dem anderen Programm wegnehmen und Pixmallow mit ‚pixmallow --replace‘ neu starten.</translation>
    </message>
    <message>
        <source>Choose another shortcut in the settings, or take it from the other program.</source>
        <translation>In den Einstellungen ein anderes Tastenkürzel wählen oder es dem anderen Programm wegnehmen.</translation>
    </message>
    <message>
        <source>None is set.</source>
        <translation>Keins ist gesetzt.</translation>
    </message>
    <message>
        <source>Pixmallow runs, but does not tell: %1</source>
        <translation>Pixmallow läuft, gibt aber keine Auskunft: %1</translation>
    </message>
    <message>
        <source>Restart it with &apos;pixmallow --replace&apos;.</source>
        <translation>Mit ‚pixmallow --replace‘ neu starten.</translation>
    </message>
    <message>
        <source>%1 was refused by the system; most likely another program has it.</source>
        <translation>%1 hat das System abgelehnt; vermutlich belegt es ein anderes Programm.</translation>
    </message>
    <message>
        <source>%1 works.</source>
        <translation>%1 funktioniert.</translation>
    </message>
    <message>
        <source>%1 is free.</source>
        <translation>%1 ist frei.</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>Zwischenablage</translation>
    </message>
    <message>
        <source>Restart the session; until then captures reach files only.</source>
        <translation>Die Sitzung neu starten; bis dahin gelangen Aufnahmen nur in Dateien.</translation>
    </message>
    <message>
        <source>A copy reaches other programs, and a clipboard manager keeps it.</source>
        <translation>Kopiertes erreicht andere Programme, und eine Zwischenablageverwaltung behält es.</translation>
    </message>
    <message>
        <source>A copy reaches other programs, as long as Pixmallow runs.</source>
        <translation>Kopiertes erreicht andere Programme, solange Pixmallow läuft.</translation>
    </message>
    <message>
        <source>Tray</source>
        <translation>Infobereich</translation>
    </message>
    <message>
        <source>There is a tray, which shows Pixmallow&apos;s icon.</source>
        <translation>Es gibt einen Infobereich, der das Symbol von Pixmallow zeigt.</translation>
    </message>
    <message>
        <source>No tray is there to show Pixmallow&apos;s icon.</source>
        <translation>Es gibt keinen Infobereich, der das Symbol von Pixmallow zeigen könnte.</translation>
    </message>
    <message>
        <source>Add a tray to your panel. Without one, start Pixmallow again to open its menu.</source>
        <translation>Der Leiste einen Infobereich hinzufügen. Ohne ihn öffnet ein erneuter Start von Pixmallow das Menü.</translation>
    </message>
    <message>
        <source>Compositor</source>
        <translation>Compositor</translation>
    </message>
    <message>
        <source>One runs, so cards have shadows and effects are whole.</source>
        <translation>Einer läuft; Karten haben also Schatten, und Effekte sind vollständig.</translation>
    </message>
    <message>
        <source>None runs, so cards have no shadows and effects are plain. Captures do not need one.</source>
        <translation>Keiner läuft; Karten haben also keine Schatten, und Effekte sind schlicht. Aufnahmen brauchen keinen.</translation>
    </message>
    <message>
        <source>Permission</source>
        <translation>Berechtigung</translation>
    </message>
    <message>
        <source>The screen may not be captured.</source>
        <translation>Der Bildschirm darf nicht aufgenommen werden.</translation>
    </message>
    <message>
        <source>Permit Pixmallow to capture the screen in the settings of the system.</source>
        <translation>Pixmallow in den Systemeinstellungen erlauben, den Bildschirm aufzunehmen.</translation>
    </message>
    <message>
        <source>Screens</source>
        <translation>Bildschirme</translation>
    </message>
    <message>
        <source>The desktop has no screen.</source>
        <translation>Der Desktop hat keinen Bildschirm.</translation>
    </message>
    <message>
        <source>Connect or switch on a screen.</source>
        <translation>Einen Bildschirm anschließen oder einschalten.</translation>
    </message>
    <message>
        <source>Faces</source>
        <translation>Gesichter</translation>
    </message>
    <message>
        <source>They can be found in captures.</source>
        <translation>Sie können in Aufnahmen gefunden werden.</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Desktop</translation>
    </message>
    <message>
        <source>Run this in a terminal of the desktop that is to be captured.</source>
        <translation>Dies in einem Terminal des Desktops ausführen, der aufgenommen werden soll.</translation>
    </message>
    <message>
        <source>Screen %1 (%2)</source>
        <translation>Bildschirm %1 (%2)</translation>
    </message>
    <message>
        <source>%1 pixels at scale %2.</source>
        <translation>%1 Pixel bei Skalierung %2.</translation>
    </message>
    <message>
        <source>Restart the session. If that does not help, see the requirements: the desktop may lack something.</source>
        <translation>Die Sitzung neu starten. Hilft das nicht, die Voraussetzungen ansehen: Vielleicht fehlt dem Desktop etwas.</translation>
    </message>
    <message>
        <source>A pattern was captured exactly as it was drawn.</source>
        <translation>Ein Muster wurde genau so aufgenommen, wie es gezeichnet war.</translation>
    </message>
    <message>
        <source>What is captured is black.</source>
        <translation>Was aufgenommen wird, ist schwarz.</translation>
    </message>
    <message>
        <source>Something keeps the screen from being read, such as a screen lock or a remote desktop; end it and try again.</source>
        <translation>Etwas verhindert, dass der Bildschirm gelesen wird, etwa eine Bildschirmsperre oder ein entfernter Desktop; dies beenden und erneut versuchen.</translation>
    </message>
    <message>
        <source>Colours are captured up to %1 of 255 steps off.</source>
        <translation>Farben weichen in der Aufnahme bis zu %1 von 255 Stufen ab.</translation>
    </message>
    <message>
        <source>Set the screen to a colour depth of 24 bits, and switch off what changes its colours.</source>
        <translation>Den Bildschirm auf eine Farbtiefe von 24&#xa0;Bit einstellen und abschalten, was seine Farben verändert.</translation>
    </message>
    <message>
        <source>Of a pattern of %1 pixels, %2 were captured differently.</source>
        <translation>Von einem Muster aus %1 Pixeln wurden %2 anders aufgenommen.</translation>
    </message>
    <message>
        <source>Something covers the top left corner of this screen, or changes how windows look; close it and try again.</source>
        <translation>Etwas verdeckt die linke obere Ecke dieses Bildschirms oder verändert das Aussehen von Fenstern; dies schließen und erneut versuchen.</translation>
    </message>
    <message>
        <source>Text recognition</source>
        <translation>Texterkennung</translation>
    </message>
    <message>
        <source>The data of no language is installed.</source>
        <translation>Es sind für keine Sprache Daten installiert.</translation>
    </message>
    <message>
        <source>Install the Debian package %1.</source>
        <translation>Das Debian-Paket %1 installieren.</translation>
    </message>
    <message>
        <source>Install the data of these languages again: %1.</source>
        <translation>Die Daten dieser Sprachen erneut installieren: %1.</translation>
    </message>
    <message>
        <source>Reads %1.</source>
        <translation>Liest %1.</translation>
    </message>
    <message>
        <source>Cannot read %1.</source>
        <translation>Kann %1 nicht lesen.</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Ton</translation>
    </message>
    <message>
        <source>The sound server answers: %1.</source>
        <translation>Der Soundserver antwortet: %1.</translation>
    </message>
    <message>
        <source>Start a sound server such as PipeWire, or switch the sound off in the settings.</source>
        <translation>Einen Soundserver wie PipeWire starten oder den Ton in den Einstellungen abschalten.</translation>
    </message>
    <message>
        <source>Sound is switched off anyway.</source>
        <translation>Der Ton ist ohnehin abgeschaltet.</translation>
    </message>
    <message>
        <source>“%1” can be written to.</source>
        <translation>In „%1“ kann geschrieben werden.</translation>
    </message>
    <message>
        <source>“%1” cannot be used. %2</source>
        <translation>„%1“ ist nicht benutzbar. %2</translation>
    </message>
    <message>
        <source>Make room there, or give yourself the right to write there.</source>
        <translation>Dort Platz schaffen oder sich Schreibrechte geben.</translation>
    </message>
    <message>
        <source>Free space</source>
        <translation>Freier Platz</translation>
    </message>
    <message>
        <source>How much room there is for captures is not known.</source>
        <translation>Wie viel Platz für Aufnahmen bleibt, ist nicht bekannt.</translation>
    </message>
    <message>
        <source>There is room for %1 in “%2”.</source>
        <translation>In „%2“ ist Platz für %1.</translation>
    </message>
    <message>
        <source>Delete something, or choose another folder for captures.</source>
        <translation>Etwas löschen oder einen anderen Ordner für Aufnahmen wählen.</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Updates</translation>
    </message>
    <message>
        <source>“%1” is no safe address.</source>
        <translation>„%1“ ist keine sichere Adresse.</translation>
    </message>
    <message>
        <source>Correct the address in PIXMALLOW_UPDATE_FEED: it has to begin with https.</source>
        <translation>Die Adresse in PIXMALLOW_UPDATE_FEED berichtigen: Sie muss mit https beginnen.</translation>
    </message>
    <message>
        <source>“%1” is a safe address. With --online it is asked.</source>
        <translation>„%1“ ist eine sichere Adresse. Mit --online wird sie gefragt.</translation>
    </message>
    <message>
        <source>“%1” is a safe address. Looking for updates is switched off.</source>
        <translation>„%1“ ist eine sichere Adresse. Die Suche nach Updates ist abgeschaltet.</translation>
    </message>
    <message>
        <source>Asking “%1” failed: %2</source>
        <translation>Die Anfrage bei „%1“ ist fehlgeschlagen: %2</translation>
    </message>
    <message>
        <source>See whether this computer is connected to the network, and try again later.</source>
        <translation>Nachsehen, ob dieser Rechner mit dem Netz verbunden ist, und es später erneut versuchen.</translation>
    </message>
    <message>
        <source>“%1” answers; it has no version for this system.</source>
        <translation>„%1“ antwortet; eine Version für dieses System gibt es dort nicht.</translation>
    </message>
    <message>
        <source>“%1” answers; it has version %2.</source>
        <translation>„%1“ antwortet; dort gibt es Version %2.</translation>
    </message>
    <message>
        <source>It is of another version.</source>
        <translation>Es ist eine andere Version.</translation>
    </message>
    <message>
        <source>Folder of preferences</source>
        <translation>Ordner der Einstellungen</translation>
    </message>
    <message>
        <source>Folder of history</source>
        <translation>Ordner des Verlaufs</translation>
    </message>
    <message>
        <source>Folder of captures</source>
        <translation>Ordner der Aufnahmen</translation>
    </message>
    <message>
        <source>“%1” is not a folder.</source>
        <translation>„%1“ ist kein Ordner.</translation>
    </message>
    <message>
        <source>It is missing and cannot be made in “%1”.</source>
        <translation>Er fehlt und kann in „%1“ nicht angelegt werden.</translation>
    </message>
    <message>
        <source>Nothing can be written there: %1.</source>
        <translation>Dort kann nichts geschrieben werden: %1.</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Teal</source>
        <translation>Blaugrün</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Lila</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>Pink</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Weiß</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Schwarz</translation>
    </message>
    <message>
        <source>“%1” may not be changed.</source>
        <translation>„%1“ darf nicht geändert werden.</translation>
    </message>
    <message>
        <source>%1 — Edited</source>
        <translation>%1&#xa0;– Bearbeitet</translation>
    </message>
    <message>
        <source>No faces found in this image</source>
        <translation>In diesem Bild sind keine Gesichter</translation>
    </message>
    <message>
        <source>Covered 1 face — select one to move or swap it</source>
        <translation>1 Gesicht verdeckt&#xa0;– zum Verschieben oder Tauschen auswählen</translation>
    </message>
    <message numerus="yes">
        <source>Covered %n faces — select one to move or swap it</source>
        <translation>
            <numerusform>%n Gesicht verdeckt&#xa0;– zum Verschieben oder Tauschen auswählen</numerusform>
            <numerusform>%n Gesichter verdeckt&#xa0;– zum Verschieben oder Tauschen eins auswählen</numerusform>
        </translation>
    </message>
    <message>
        <source>There are too many marks to keep them editable.</source>
        <translation>Es sind zu viele Markierungen, um sie bearbeitbar zu halten.</translation>
    </message>
    <message>
        <source>The record of an edit is missing.</source>
        <translation>Die Aufzeichnung einer Bearbeitung fehlt.</translation>
    </message>
    <message>
        <source>The picture of an edit is missing or damaged.</source>
        <translation>Das Bild einer Bearbeitung fehlt oder ist beschädigt.</translation>
    </message>
    <message>
        <source>The record of an edit is damaged.</source>
        <translation>Die Aufzeichnung einer Bearbeitung ist beschädigt.</translation>
    </message>
    <message>
        <source>The record of an edit is of a newer version of Pixmallow.</source>
        <translation>Die Aufzeichnung einer Bearbeitung stammt von einer neueren Version von Pixmallow.</translation>
    </message>
    <message>
        <source>Reopen your edit?</source>
        <translation>Bearbeitung wieder öffnen?</translation>
    </message>
    <message numerus="yes">
        <source>Reopen your %n edits?</source>
        <translation>
            <numerusform>%n Bearbeitung wieder öffnen?</numerusform>
            <numerusform>%n Bearbeitungen wieder öffnen?</numerusform>
        </translation>
    </message>
    <message>
        <source>Pixmallow ended while you were editing. Your picture and all its marks were kept.</source>
        <translation>Pixmallow wurde mitten im Bearbeiten beendet. Das Bild und alle Markierungen sind noch da.</translation>
    </message>
    <message>
        <source>Pixmallow ended while you were editing. Your pictures and all their marks were kept.</source>
        <translation>Pixmallow wurde mitten im Bearbeiten beendet. Die Bilder und alle Markierungen sind noch da.</translation>
    </message>
    <message>
        <source>Stickers</source>
        <translation>Sticker</translation>
    </message>
    <message>
        <source>Emoji</source>
        <translation>Emoji</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation>Klassisch</translation>
    </message>
    <message>
        <source>outline</source>
        <translation>Kontur</translation>
    </message>
    <message>
        <source>Bubble</source>
        <translation>Blase</translation>
    </message>
    <message>
        <source>TikTok label</source>
        <translation>TikTok-Etikett</translation>
    </message>
    <message>
        <source>Neon</source>
        <translation>Neon</translation>
    </message>
    <message>
        <source>glow</source>
        <translation>Leuchten</translation>
    </message>
    <message>
        <source>Typewriter</source>
        <translation>Schreibmaschine</translation>
    </message>
    <message>
        <source>label</source>
        <translation>Etikett</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>rainbow</source>
        <translation>Regenbogen</translation>
    </message>
    <message>
        <source>Meme</source>
        <translation>Meme</translation>
    </message>
    <message>
        <source>Impact</source>
        <translation>Impact</translation>
    </message>
    <message>
        <source>Select (V)</source>
        <translation>Auswählen (V)</translation>
    </message>
    <message>
        <source>Arrow (A)</source>
        <translation>Pfeil (A)</translation>
    </message>
    <message>
        <source>Rectangle (R)</source>
        <translation>Rechteck (R)</translation>
    </message>
    <message>
        <source>Ellipse (E)</source>
        <translation>Ellipse (E)</translation>
    </message>
    <message>
        <source>Line (L)</source>
        <translation>Linie (L)</translation>
    </message>
    <message>
        <source>Pen (P)</source>
        <translation>Stift (P)</translation>
    </message>
    <message>
        <source>Highlighter (H)</source>
        <translation>Textmarker (H)</translation>
    </message>
    <message>
        <source>Text (T)</source>
        <translation>Text (T)</translation>
    </message>
    <message>
        <source>Numbered step (N)</source>
        <translation>Nummerierter Schritt (N)</translation>
    </message>
    <message>
        <source>Emoji sticker (S)</source>
        <translation>Emoji-Sticker (S)</translation>
    </message>
    <message>
        <source>Blur (B)</source>
        <translation>Verpixeln (B)</translation>
    </message>
    <message>
        <source>Redact (X)</source>
        <translation>Schwärzen (X)</translation>
    </message>
    <message>
        <source>Crop (C)</source>
        <translation>Zuschneiden (C)</translation>
    </message>
    <message>
        <source>it&apos;s late… go to sleep</source>
        <translation>schon spät&#xa0;… ab ins Bett</translation>
    </message>
    <message>
        <source>First Snap</source>
        <translation>Der erste Klick</translation>
    </message>
    <message>
        <source>Take your first screenshot</source>
        <translation>Den ersten Screenshot machen</translation>
    </message>
    <message>
        <source>Snap Happy</source>
        <translation>Schnappschütze</translation>
    </message>
    <message>
        <source>Take 50 screenshots</source>
        <translation>50 Screenshots machen</translation>
    </message>
    <message>
        <source>Lore Keeper</source>
        <translation>Chronist</translation>
    </message>
    <message>
        <source>Take 1,000 screenshots</source>
        <translation>1.000 Screenshots machen</translation>
    </message>
    <message>
        <source>Screenshot Goblin</source>
        <translation>Screenshot-Kobold</translation>
    </message>
    <message>
        <source>50 screenshots in one day</source>
        <translation>50 Screenshots an einem Tag</translation>
    </message>
    <message>
        <source>Night Owl</source>
        <translation>Nachteule</translation>
    </message>
    <message>
        <source>25 captures between midnight and 5 am</source>
        <translation>25 Aufnahmen zwischen Mitternacht und 5&#xa0;Uhr</translation>
    </message>
    <message>
        <source>Early Bird</source>
        <translation>Früher Vogel</translation>
    </message>
    <message>
        <source>10 captures between 5 and 8 am</source>
        <translation>10 Aufnahmen zwischen 5 und 8&#xa0;Uhr</translation>
    </message>
    <message>
        <source>On Fire</source>
        <translation>Feuer und Flamme</translation>
    </message>
    <message>
        <source>Keep a 7-day streak</source>
        <translation>7 Tage in Folge durchhalten</translation>
    </message>
    <message>
        <source>Unstoppable</source>
        <translation>Nicht zu bremsen</translation>
    </message>
    <message>
        <source>Keep a 30-day streak</source>
        <translation>30 Tage in Folge durchhalten</translation>
    </message>
    <message>
        <source>Text Grabber</source>
        <translation>Textfischer</translation>
    </message>
    <message>
        <source>Copy text from 10 captures</source>
        <translation>Text aus 10 Aufnahmen kopieren</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Künstlerseele</translation>
    </message>
    <message>
        <source>Edit 25 screenshots</source>
        <translation>25 Screenshots bearbeiten</translation>
    </message>
    <message>
        <source>Meme Lord</source>
        <translation>Meme-Fürst</translation>
    </message>
    <message>
        <source>Make 10 memes</source>
        <translation>10 Memes basteln</translation>
    </message>
    <message>
        <source>Incognito</source>
        <translation>Inkognito</translation>
    </message>
    <message>
        <source>Cover 20 faces with emoji</source>
        <translation>20 Gesichter mit Emoji verdecken</translation>
    </message>
    <message>
        <source>Sticker Bomb</source>
        <translation>Sticker-Bombe</translation>
    </message>
    <message>
        <source>Drop 50 stickers</source>
        <translation>50 Sticker setzen</translation>
    </message>
    <message>
        <source>Share Bear</source>
        <translation>Teilbärchi</translation>
    </message>
    <message>
        <source>Share 10 screenshots</source>
        <translation>10 Screenshots teilen</translation>
    </message>
    <message>
        <source>Pet Parent</source>
        <translation>Haustier-Profi</translation>
    </message>
    <message>
        <source>Raise your pet to level 5</source>
        <translation>Das Haustier auf Level 5 bringen</translation>
    </message>
    <message>
        <source>%1-day streak!</source>
        <translation>%1-Tage-Serie!</translation>
    </message>
    <message>
        <source>welcome back</source>
        <translation>schön, dass du wieder da bist</translation>
    </message>
    <message>
        <source>Your pet evolved!</source>
        <translation>Dein Haustier ist gewachsen!</translation>
    </message>
    <message>
        <source>%1 is now a %2</source>
        <translation>%1 ist jetzt: %2</translation>
    </message>
    <message>
        <source>Level up!</source>
        <translation>Level geschafft!</translation>
    </message>
    <message>
        <source>%1 reached level %2</source>
        <translation>%1 hat Level %2 erreicht</translation>
    </message>
    <message>
        <source>Achievement unlocked</source>
        <translation>Erfolg freigeschaltet</translation>
    </message>
    <message>
        <source>missed you… take a screenshot?</source>
        <translation>hab dich vermisst&#xa0;… Screenshot?</translation>
    </message>
    <message>
        <source>hatch me with your first screenshot</source>
        <translation>ein Screenshot, und ich schlüpfe</translation>
    </message>
    <message>
        <source>%1-day streak, don&apos;t break it</source>
        <translation>%1-Tage-Serie, bloß nicht abreißen lassen</translation>
    </message>
    <message>
        <source>Achievements</source>
        <translation>Erfolge</translation>
    </message>
    <message>
        <source>Fully evolved</source>
        <translation>Ausgewachsen</translation>
    </message>
    <message>
        <source>Evolves into %1 at level %2</source>
        <translation>Wird mit Level %2 zu: %1</translation>
    </message>
    <message>
        <source>Egg</source>
        <translation>Ei</translation>
    </message>
    <message>
        <source>Hatchling</source>
        <translation>Schlüpfling</translation>
    </message>
    <message>
        <source>Chick</source>
        <translation>Küken</translation>
    </message>
    <message>
        <source>Wise Owl</source>
        <translation>Weise Eule</translation>
    </message>
    <message>
        <source>Legendary Dragon</source>
        <translation>Legendärer Drache</translation>
    </message>
    <message>
        <source>ate that</source>
        <translation>abgeliefert</translation>
    </message>
    <message>
        <source>caught in 4K</source>
        <translation>in 4K erwischt</translation>
    </message>
    <message>
        <source>certified screenshot moment</source>
        <translation>amtlich beglaubigter Screenshot</translation>
    </message>
    <message>
        <source>that&apos;s going in the lore</source>
        <translation>das geht in die Geschichte ein</translation>
    </message>
    <message>
        <source>W capture</source>
        <translation>Volltreffer</translation>
    </message>
    <message>
        <source>pixel perfect, bestie</source>
        <translation>pixelgenau, Digga</translation>
    </message>
    <message>
        <source>main character energy</source>
        <translation>voll die Hauptrolle</translation>
    </message>
    <message>
        <source>saved for the receipts</source>
        <translation>als Beweis gesichert</translation>
    </message>
    <message>
        <source>slay</source>
        <translation>wild</translation>
    </message>
    <message>
        <source>no thoughts, just pixels</source>
        <translation>kein Gedanke, nur Pixel</translation>
    </message>
    <message>
        <source>it&apos;s giving evidence</source>
        <translation>riecht nach Beweisstück</translation>
    </message>
    <message>
        <source>core memory unlocked</source>
        <translation>unvergesslich, ab ins Langzeitgedächtnis</translation>
    </message>
    <message>
        <source>feed me screenshots</source>
        <translation>füttere mich mit Screenshots</translation>
    </message>
    <message>
        <source>I live in your menu bar now</source>
        <translation>ich wohne jetzt in deiner Leiste</translation>
    </message>
    <message>
        <source>what are we capturing today?</source>
        <translation>was knipsen wir heute?</translation>
    </message>
    <message>
        <source>one more snap won&apos;t hurt</source>
        <translation>einer geht noch</translation>
    </message>
    <message>
        <source>I&apos;m not a screenshot goblin, you are</source>
        <translation>Screenshot-Kobold? selber einer</translation>
    </message>
    <message>
        <source>pet me again</source>
        <translation>noch mal streicheln</translation>
    </message>
    <message>
        <source>*happy pixel noises*</source>
        <translation>*glückliches Pixelgeräusch*</translation>
    </message>
    <message>
        <source>lowkey proud of us</source>
        <translation>irgendwie stolz auf uns</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Gestern</translation>
    </message>
    <message>
        <source>“%1” makes no sense as an index of captures.</source>
        <translation>„%1“ ergibt als Verzeichnis der Aufnahmen keinen Sinn.</translation>
    </message>
    <message>
        <source>Couldn&apos;t keep a copy of “%1”: this is no name for one.</source>
        <translation>Von „%1“ konnte keine Kopie behalten werden: So darf sie nicht heißen.</translation>
    </message>
    <message>
        <source>Pixmallow runs but does not answer.</source>
        <translation>Pixmallow läuft, antwortet aber nicht.</translation>
    </message>
    <message>
        <source>Drag to select   •   Click a window   •   Space: whole screen   •   Esc: cancel</source>
        <translation>Ziehen: auswählen   •   Klick: Fenster   •   Leertaste: ganzer Bildschirm   •   Esc: abbrechen</translation>
    </message>
    <message>
        <source>Couldn&apos;t remove “%1”: %2.</source>
        <translation>„%1“ konnte nicht entfernt werden: %2.</translation>
    </message>
    <message>
        <source>Couldn&apos;t make the folder “%1”.</source>
        <translation>Der Ordner „%1“ konnte nicht angelegt werden.</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Im Ordner zeigen</translation>
    </message>
    <message>
        <source>Your desktop does not let Pixmallow take screenshots yet. Allow it in the settings, where they say what apps may do, then restart Pixmallow.</source>
        <translation>Der Desktop lässt Pixmallow noch keine Screenshots machen. In den Einstellungen dort erlauben, wo steht, was Apps dürfen, dann Pixmallow neu starten.</translation>
    </message>
    <message>
        <source>Pixmallow lives in the tray. Press %1 to capture a region, or click its icon for more.</source>
        <translation>Pixmallow wohnt im Infobereich. %1 nimmt einen Bereich auf, ein Klick auf das Symbol zeigt mehr.</translation>
    </message>
    <message>
        <source>Pixmallow lives in the tray. Click its icon to capture.</source>
        <translation>Pixmallow wohnt im Infobereich. Ein Klick auf das Symbol, und es kann losgehen.</translation>
    </message>
    <message>
        <source>Pixmallow waits in the background. Press %1 to capture a region, or start it again for more.</source>
        <translation>Pixmallow wartet im Hintergrund. %1 nimmt einen Bereich auf, ein erneuter Start zeigt mehr.</translation>
    </message>
    <message>
        <source>Pixmallow waits in the background. Start it again to capture.</source>
        <translation>Pixmallow wartet im Hintergrund. Einfach erneut starten, um etwas aufzunehmen.</translation>
    </message>
    <message>
        <source>Click a shortcut, then press the keys you want. Delete clears it, Esc cancels. Keys that your desktop uses itself, such as Print, stay with it until you turn them off in its keyboard settings.</source>
        <translation>Ein Tastenkürzel anklicken, dann die gewünschten Tasten drücken. Entf löscht es, Esc bricht ab. Tasten, die der Desktop selbst benutzt, etwa Druck, behält er, bis sie in seinen Tastatureinstellungen abgeschaltet werden.</translation>
    </message>
    <message>
        <source>Opened %1 — quit Pixmallow, install the new one in place of the old one, then open it again.</source>
        <translation>%1 ist geöffnet&#xa0;– Pixmallow beenden, die neue Version anstelle der alten installieren und wieder starten.</translation>
    </message>
    <message>
        <source>There is no program to show “%1” with.</source>
        <translation>Kein Programm kann „%1“ anzeigen.</translation>
    </message>
    <message>
        <source>The file “%1” cannot be read.</source>
        <translation>Die Datei „%1“ kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>No mail program could be started.</source>
        <translation>Es konnte kein E-Mail-Programm gestartet werden.</translation>
    </message>
    <message>
        <source>No program could be started to open the file with.</source>
        <translation>Es konnte kein Programm gestartet werden, das die Datei öffnet.</translation>
    </message>
    <message>
        <source>The settings of this desktop could not be opened.</source>
        <translation>Die Einstellungen dieses Desktops konnten nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Faces cannot be looked for: %1.</source>
        <translation>Gesichter können nicht gesucht werden: %1.</translation>
    </message>
    <message>
        <source>Pixmallow was installed without its part &apos;%1&apos;.</source>
        <translation>Pixmallow wurde ohne seinen Teil ‚%1‘ installiert.</translation>
    </message>
    <message>
        <source>A part of Pixmallow cannot be loaded: %1.</source>
        <translation>Ein Teil von Pixmallow kann nicht geladen werden: %1.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is not of this version of Pixmallow.</source>
        <translation>Die Datei ‚%1‘ gehört nicht zu dieser Version von Pixmallow.</translation>
    </message>
    <message>
        <source>Faces cannot be looked for. %1</source>
        <translation>Gesichter können nicht gesucht werden. %1</translation>
    </message>
    <message>
        <source>Pixmallow was updated while it ran; quit it and start it again.</source>
        <translation>Pixmallow wurde im laufenden Betrieb aktualisiert; beenden und neu starten.</translation>
    </message>
    <message>
        <source>Text recognition is not available. %1</source>
        <translation>Die Texterkennung ist nicht verfügbar. %1</translation>
    </message>
    <message>
        <source>its format is not supported</source>
        <translation>das Format wird nicht unterstützt</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>die Datei ist beschädigt</translation>
    </message>
    <message>
        <source>Couldn&apos;t play the sound “%1”: %2.</source>
        <translation>Der Ton „%1“ konnte nicht abgespielt werden: %2.</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>die Datei gibt es nicht</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>es ist keine Datei</translation>
    </message>
    <message>
        <source>it can&apos;t be read</source>
        <translation>die Datei kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>Keine Antwort</translation>
    </message>
    <message>
        <source>No sound server can be reached: %1.</source>
        <translation>Kein Soundserver ist erreichbar: %1.</translation>
    </message>
    <message>
        <source>No language that text recognition knows is installed; install the Debian package %1.</source>
        <translation>Es ist keine Sprache installiert, die die Texterkennung kennt; das Debian-Paket %1 installieren.</translation>
    </message>
    <message>
        <source> or </source>
        <comment>between packages</comment>
        <translation> oder </translation>
    </message>
    <message>
        <source>The picture is too large to be read, longer than %1 pixels.</source>
        <translation>Das Bild ist zu groß zum Lesen, länger als %1 Pixel.</translation>
    </message>
    <message>
        <source>The language data for text recognition (%1) cannot be loaded.</source>
        <translation>Die Sprachdaten der Texterkennung (%1) können nicht geladen werden.</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>Im Finder zeigen</translation>
    </message>
    <message>
        <source>macOS needs your permission before any app can take screenshots. Turn on Pixmallow in System Settings › Privacy &amp; Security › Screen &amp; System Audio Recording, then restart Pixmallow.</source>
        <translation>macOS verlangt für Screenshots eine Erlaubnis. Pixmallow unter Systemeinstellungen › Datenschutz &amp; Sicherheit › Bildschirm- &amp; Systemaudioaufnahme einschalten, dann neu starten.</translation>
    </message>
    <message>
        <source>Pixmallow lives in the menu bar. Press %1 to capture a region, or click the camera icon for more.</source>
        <translation>Pixmallow wohnt in der Menüleiste. %1 nimmt einen Bereich auf, ein Klick auf die Kamera zeigt mehr.</translation>
    </message>
    <message>
        <source>Pixmallow lives in the menu bar. Click the camera icon to capture.</source>
        <translation>Pixmallow wohnt in der Menüleiste. Ein Klick auf die Kamera, und es kann losgehen.</translation>
    </message>
    <message>
        <source>Click a shortcut, then press the keys you want. Delete clears it, Esc cancels. ⇧⌘3/4/5 belong to the macOS screenshot tool — turn those off in System Settings › Keyboard › Keyboard Shortcuts › Screenshots if you want to use them here.</source>
        <translation>Ein Tastenkürzel anklicken, dann die gewünschten Tasten drücken. Entf löscht es, Esc bricht ab. ⇧⌘3/4/5 gehören macOS selbst&#xa0;– um sie hier zu benutzen, unter Systemeinstellungen › Tastatur › Tastaturkurzbefehle › Bildschirmfotos abschalten.</translation>
    </message>
    <message>
        <source>Opened %1 — quit Pixmallow, drag the new one into Applications (Replace), then open it again.</source>
        <translation>%1 ist geöffnet&#xa0;– Pixmallow beenden, die neue Version in „Programme“ ziehen (Ersetzen) und wieder starten.</translation>
    </message>
    <message>
        <source>The display has no memory left for a picture of this size.</source>
        <translation>Der Anzeige fehlt der Speicher für ein Bild dieser Größe.</translation>
    </message>
    <message>
        <source>The window is gone.</source>
        <translation>Das Fenster ist weg.</translation>
    </message>
    <message>
        <source>The display did not hand over the picture.</source>
        <translation>Die Anzeige hat das Bild nicht herausgegeben.</translation>
    </message>
    <message>
        <source>The X server does not let programs offer copies.</source>
        <translation>Der X-Server lässt Programme nichts zum Kopieren anbieten.</translation>
    </message>
    <message>
        <source>A program that offers a copy is not asked for it.</source>
        <translation>Ein Programm, das etwas zum Kopieren anbietet, wird nicht danach gefragt.</translation>
    </message>
    <message>
        <source>What a program copies does not reach another one.</source>
        <translation>Was ein Programm kopiert, erreicht kein anderes.</translation>
    </message>
    <message>
        <source>The display cannot capture a single window (no COMPOSITE).</source>
        <translation>Die Anzeige kann kein einzelnes Fenster aufnehmen (COMPOSITE fehlt).</translation>
    </message>
    <message>
        <source>The window is covered and its program does not answer, so it cannot be captured.</source>
        <translation>Das Fenster ist verdeckt, und sein Programm antwortet nicht; so kann es nicht aufgenommen werden.</translation>
    </message>
    <message>
        <source>There is no desktop to capture: DISPLAY is not set.</source>
        <translation>Es gibt keinen Desktop zum Aufnehmen: DISPLAY ist nicht gesetzt.</translation>
    </message>
    <message>
        <source>Cannot connect to the display %1.</source>
        <translation>Keine Verbindung zur Anzeige %1.</translation>
    </message>
    <message>
        <source>The display %1 has a colour depth other than 24 bits, which is not supported.</source>
        <translation>Die Anzeige %1 hat eine andere Farbtiefe als 24&#xa0;Bit; das wird nicht unterstützt.</translation>
    </message>
    <message>
        <source>The connection to the display was lost.</source>
        <translation>Die Verbindung zur Anzeige ist abgerissen.</translation>
    </message>
    <message>
        <source>What a program copies reaches another one changed.</source>
        <translation>Was ein Programm kopiert, kommt beim anderen verändert an.</translation>
    </message>
    <message>
        <source>The area lies outside all screens.</source>
        <translation>Der Bereich liegt außerhalb aller Bildschirme.</translation>
    </message>
    <message>
        <source>There is no window %1.</source>
        <translation>Es gibt kein Fenster %1.</translation>
    </message>
    <message>
        <source>The window is not on screen: it is minimised or on another desktop.</source>
        <translation>Das Fenster ist nicht zu sehen: Es ist minimiert oder auf einer anderen Arbeitsfläche.</translation>
    </message>
    <message>
        <source>The window shows nothing that could be captured.</source>
        <translation>Das Fenster zeigt nichts, das aufgenommen werden könnte.</translation>
    </message>
    <message>
        <source>The windows of this program are not on an X server.</source>
        <translation>Die Fenster dieses Programms sind nicht auf einem X-Server.</translation>
    </message>
    <message>
        <source>Accent</source>
        <translation>Akzent</translation>
    </message>
    <message>
        <source>Rainbow</source>
        <translation>Regenbogen</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Abendrot</translation>
    </message>
    <message>
        <source>Ocean</source>
        <translation>Ozean</translation>
    </message>
    <message>
        <source>Aurora</source>
        <translation>Polarlicht</translation>
    </message>
    <message>
        <source>Candy</source>
        <translation>Bonbon</translation>
    </message>
    <message>
        <source>Mint</source>
        <translation>Minze</translation>
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
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Runter</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Rücktaste</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
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
        <source>Print</source>
        <translation>Druck</translation>
    </message>
    <message>
        <source>Scroll Lock</source>
        <translation>Rollen</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Leertaste</translation>
    </message>
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
        <source>Super</source>
        <translation>Super</translation>
    </message>
    <message>
        <source>macOS</source>
        <translation>macOS</translation>
    </message>
    <message>
        <source>Your system appearance and accent colour</source>
        <translation>Aussehen und Akzentfarbe des Systems</translation>
    </message>
    <message>
        <source>Kawaii Pastel</source>
        <translation>Kawaii Pastell</translation>
    </message>
    <message>
        <source>Soft pink, bubbly pops and sparkles</source>
        <translation>Zartes Rosa, Blubberblasen und Glitzer</translation>
    </message>
    <message>
        <source>Cyber Neon</source>
        <translation>Cyber-Neon</translation>
    </message>
    <message>
        <source>Dark purple, neon cyan, laser zaps</source>
        <translation>Dunkles Lila, Neontürkis, Laserblitze</translation>
    </message>
    <message>
        <source>Matcha</source>
        <translation>Matcha</translation>
    </message>
    <message>
        <source>Calm greens and quiet clicks</source>
        <translation>Ruhiges Grün und leise Klicks</translation>
    </message>
    <message>
        <source>Midnight</source>
        <translation>Mitternacht</translation>
    </message>
    <message>
        <source>Deep indigo with a gentle chime</source>
        <translation>Tiefes Indigo mit sanftem Glockenklang</translation>
    </message>
    <message>
        <source>Warm dusk tones and confetti</source>
        <translation>Warme Abendtöne und Konfetti</translation>
    </message>
    <message>
        <source>Y2K</source>
        <translation>Y2K</translation>
    </message>
    <message>
        <source>Chrome blue, 8-bit coins, early-internet energy</source>
        <translation>Chromblau, 8-Bit-Münzen, Internet wie damals</translation>
    </message>
    <message>
        <source>There is no sound named “%1”.</source>
        <translation>Einen Ton namens „%1“ gibt es nicht.</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>Lizenz</translation>
    </message>
    <message>
        <source>Free software under the MIT licence.</source>
        <translation>Freie Software unter der MIT-Lizenz.</translation>
    </message>
    <message>
        <source>Your captures stay with you</source>
        <translation>Aufnahmen bleiben privat</translation>
    </message>
    <message>
        <source>Pixmallow sends neither them nor what you do with it anywhere.</source>
        <translation>Pixmallow schickt weder sie noch irgendetwas über seine Benutzung fort.</translation>
    </message>
    <message>
        <source>With thanks to</source>
        <translation>Mit Dank an</translation>
    </message>
    <message>
        <source>Phosphor Icons, Fluent Emoji, Anton, Qt, Tesseract and ISA-L.</source>
        <translation>Phosphor Icons, Fluent Emoji, Anton, Qt, Tesseract und ISA-L.</translation>
    </message>
    <message>
        <source>Selecting a region</source>
        <translation>Auswahl eines Bereichs</translation>
    </message>
    <message>
        <source>Magnifier</source>
        <translation>Lupe</translation>
    </message>
    <message>
        <source>With the position and the colour under the pointer.</source>
        <translation>Mit Position und Farbe unter dem Zeiger.</translation>
    </message>
    <message>
        <source>Crosshair across the screen</source>
        <translation>Fadenkreuz über den Bildschirm</translation>
    </message>
    <message>
        <source>In the picture</source>
        <translation>Im Bild</translation>
    </message>
    <message>
        <source>Mouse pointer</source>
        <translation>Mauszeiger</translation>
    </message>
    <message>
        <source>Shadow around windows</source>
        <translation>Schatten um Fenster</translation>
    </message>
    <message>
        <source>Count down from</source>
        <translation>Herunterzählen von</translation>
    </message>
    <message>
        <source>Shortcuts work while a menu is open</source>
        <translation>Tastenkürzel auch bei offenem Menü</translation>
    </message>
    <message>
        <source>For that Pixmallow listens to every key you press. It keeps none of them.</source>
        <translation>Dafür hört Pixmallow auf jede gedrückte Taste. Es merkt sich keine davon.</translation>
    </message>
    <message>
        <source>Animation</source>
        <translation>Animation</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ohne</translation>
    </message>
    <message>
        <source>Flash</source>
        <translation>Blitz</translation>
    </message>
    <message>
        <source>Confetti</source>
        <translation>Konfetti</translation>
    </message>
    <message>
        <source>Sparkles</source>
        <translation>Glitzer</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>Pixel</translation>
    </message>
    <message>
        <source>Fly away</source>
        <translation>Wegfliegen</translation>
    </message>
    <message>
        <source>When a capture is taken</source>
        <translation>Bei einer Aufnahme</translation>
    </message>
    <message>
        <source>Try</source>
        <translation>Ausprobieren</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Reset all achievements, streaks and your pet&apos;s level?</source>
        <translation>Alle Erfolge, Serien und das Level des Haustiers zurücksetzen?</translation>
    </message>
    <message>
        <source>Skin</source>
        <translation>Skin</translation>
    </message>
    <message>
        <source>A skin sets the colours, preview effect, capture sound and animation in one go. Pick macOS to go back to your system look.</source>
        <translation>Ein Skin setzt Farben, Vorschaueffekt, Aufnahmeton und Animation auf einen Schlag. macOS stellt das Aussehen des Systems wieder her.</translation>
    </message>
    <message>
        <source>Pet</source>
        <translation>Haustier</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Show the pet in the tray</source>
        <translation>Haustier im Infobereich zeigen</translation>
    </message>
    <message>
        <source>Tell about achievements and new levels</source>
        <translation>Erfolge und neue Level melden</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistik</translation>
    </message>
    <message>
        <source>Start over</source>
        <translation>Von vorn anfangen</translation>
    </message>
    <message>
        <source>Your pet keeps its name.</source>
        <translation>Das Haustier behält seinen Namen.</translation>
    </message>
    <message>
        <source>Reset…</source>
        <translation>Zurücksetzen&#xa0;…</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>Beim Anmelden starten</translation>
    </message>
    <message>
        <source>Saving</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save every capture</source>
        <translation>Jede Aufnahme speichern</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Copy every capture</source>
        <translation>Jede Aufnahme kopieren</translation>
    </message>
    <message>
        <source>After a capture</source>
        <translation>Nach einer Aufnahme</translation>
    </message>
    <message>
        <source>Show a preview</source>
        <translation>Vorschau zeigen</translation>
    </message>
    <message>
        <source>Open the editor</source>
        <translation>Editor öffnen</translation>
    </message>
    <message>
        <source>Do nothing</source>
        <translation>Nichts tun</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Keep a history of captures</source>
        <translation>Verlauf der Aufnahmen führen</translation>
    </message>
    <message>
        <source>At most</source>
        <translation>Höchstens</translation>
    </message>
    <message>
        <source>The oldest go first. Your saved files stay.</source>
        <translation>Die ältesten gehen zuerst. Gespeicherte Dateien bleiben.</translation>
    </message>
    <message>
        <source>Keep edits editable</source>
        <translation>Bearbeitungen änderbar halten</translation>
    </message>
    <message>
        <source>Drawings can be changed later. What they cover stays on disk.</source>
        <translation>Gezeichnetes lässt sich später ändern. Was es verdeckt, bleibt auf der Platte.</translation>
    </message>
    <message>
        <source>Find captures by their text</source>
        <translation>Aufnahmen an ihrem Text finden</translation>
    </message>
    <message>
        <source>Reads the text in captures, on this computer only.</source>
        <translation>Liest den Text in Aufnahmen, nur auf diesem Rechner.</translation>
    </message>
    <message>
        <source>1 second</source>
        <translation>1 Sekunde</translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n Sekunde</numerusform>
            <numerusform>%n Sekunden</numerusform>
        </translation>
    </message>
    <message>
        <source>Closes after</source>
        <translation>Schließt nach</translation>
    </message>
    <message>
        <source>It stays while the pointer is on it.</source>
        <translation>Sie bleibt, solange der Zeiger darauf ist.</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Rand</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>Effekt</translation>
    </message>
    <message>
        <source>Comet</source>
        <translation>Komet</translation>
    </message>
    <message>
        <source>Pulse</source>
        <translation>Puls</translation>
    </message>
    <message>
        <source>Spin</source>
        <translation>Kreisel</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>The pet reacts</source>
        <translation>Das Haustier reagiert</translation>
    </message>
    <message>
        <source>A line and its points on each new capture.</source>
        <translation>Ein Spruch und seine Punkte bei jeder neuen Aufnahme.</translation>
    </message>
    <message>
        <source>Play a sound at each capture</source>
        <translation>Bei jeder Aufnahme einen Ton spielen</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Lautstärke</translation>
    </message>
    <message>
        <source>Not checked yet.</source>
        <translation>Noch nicht nachgesehen.</translation>
    </message>
    <message>
        <source>Last checked %1.</source>
        <translation>Zuletzt nachgesehen: %1.</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>Automatisch nach Updates suchen</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>Jetzt suchen</translation>
    </message>
    <message>
        <source>You chose to skip this version.</source>
        <translation>Diese Version wird übersprungen.</translation>
    </message>
    <message>
        <source>Offer it again</source>
        <translation>Wieder anbieten</translation>
    </message>
    <message>
        <source>the update file is incomplete</source>
        <translation>die Update-Datei ist unvollständig</translation>
    </message>
    <message>
        <source>updates must use HTTPS</source>
        <translation>Updates müssen HTTPS benutzen</translation>
    </message>
    <message>
        <source>the download didn&apos;t match its checksum, so it wasn&apos;t opened. Try again later.</source>
        <translation>der Download passt nicht zu seiner Prüfsumme und wurde nicht geöffnet. Später erneut versuchen.</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Bildschirm</translation>
    </message>
    <message>
        <source>Only one of --screen, --window and --area can be given.</source>
        <translation>Von --screen, --window und --area kann nur eins angegeben werden.</translation>
    </message>
    <message>
        <source>--screen takes a number from 1, not &apos;%1&apos;.</source>
        <translation>--screen nimmt eine Zahl ab 1, nicht ‚%1‘.</translation>
    </message>
    <message>
        <source>--window takes a number as &apos;pixmallow list windows&apos; shows, not &apos;%1&apos;.</source>
        <translation>--window nimmt eine Nummer, wie sie ‚pixmallow list windows‘ zeigt, nicht ‚%1‘.</translation>
    </message>
    <message>
        <source>--area takes X,Y,WxH in pixels, not &apos;%1&apos;.</source>
        <translation>--area nimmt X,Y,WxH in Pixeln, nicht ‚%1‘.</translation>
    </message>
    <message>
        <source>--output needs a file name, or - for standard output.</source>
        <translation>--output braucht einen Dateinamen oder - für die Standardausgabe.</translation>
    </message>
    <message>
        <source>--json and --output - both want standard output.</source>
        <translation>--json und --output - wollen beide auf die Standardausgabe.</translation>
    </message>
    <message>
        <source>--shadow goes with --window.</source>
        <translation>--shadow gehört zu --window.</translation>
    </message>
    <message>
        <source>&apos;shot&apos; writes PNG files; choose a name that ends in .png.</source>
        <translation>‚shot‘ schreibt PNG-Dateien; ein Name muss auf .png enden.</translation>
    </message>
    <message>
        <source>&apos;list&apos; takes &apos;screens&apos;, &apos;windows&apos; or &apos;history&apos;.</source>
        <translation>‚list‘ nimmt ‚screens‘, ‚windows‘ oder ‚history‘.</translation>
    </message>
    <message>
        <source>--search goes with &apos;list history&apos;.</source>
        <translation>--search gehört zu ‚list history‘.</translation>
    </message>
    <message>
        <source>&apos;capture&apos; takes one of %1.</source>
        <translation>‚capture‘ nimmt eins von %1.</translation>
    </message>
    <message>
        <source>&apos;capture&apos; takes one of %1, not &apos;%2&apos;.</source>
        <translation>‚capture‘ nimmt eins von %1, nicht ‚%2‘.</translation>
    </message>
    <message>
        <source>&apos;pin&apos; takes one or more image files.</source>
        <translation>‚pin‘ nimmt eine oder mehrere Bilddateien.</translation>
    </message>
    <message>
        <source>&apos;edit&apos; takes one or more image files.</source>
        <translation>‚edit‘ nimmt eine oder mehrere Bilddateien.</translation>
    </message>
    <message>
        <source>&apos;text&apos; takes one or more picture files.</source>
        <translation>‚text‘ nimmt eine oder mehrere Bilddateien.</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>Unerwartetes Argument ‚%1‘.</translation>
    </message>
    <message>
        <source>--%1 is given twice.</source>
        <translation>--%1 ist zweimal angegeben.</translation>
    </message>
    <message>
        <source>Unknown command &apos;%1&apos;.</source>
        <translation>Unbekannter Befehl ‚%1‘.</translation>
    </message>
    <message>
        <source>Another capture is running.</source>
        <translation>Eine andere Aufnahme läuft gerade.</translation>
    </message>
    <message>
        <source>%1 See &apos;pixmallow --help&apos;.</source>
        <translation>%1 Siehe ‚pixmallow --help‘.</translation>
    </message>
    <message>
        <source>Cannot write to standard output: %1.</source>
        <translation>Auf die Standardausgabe kann nicht geschrieben werden: %1.</translation>
    </message>
    <message>
        <source>The program &apos;%1&apos; is neither beside this one nor in PATH.</source>
        <translation>Das Programm ‚%1‘ liegt weder neben diesem noch in PATH.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start &apos;%1&apos;: %2.</source>
        <translation>‚%1‘ konnte nicht gestartet werden: %2.</translation>
    </message>
    <message>
        <source>it ended at once with exit code %1; &apos;pixmallow&apos; in a terminal may tell why</source>
        <translation>es endete sofort mit dem Exitcode %1; ‚pixmallow‘ in einem Terminal verrät vielleicht, warum</translation>
    </message>
    <message>
        <source>it ended at once by signal %1; &apos;pixmallow&apos; in a terminal may tell why</source>
        <translation>es endete sofort durch das Signal %1; ‚pixmallow‘ in einem Terminal verrät vielleicht, warum</translation>
    </message>
    <message>
        <source>it could not be asked within %1 seconds</source>
        <translation>es war innerhalb von %1 Sekunden nicht ansprechbar</translation>
    </message>
    <message>
        <source>There is no window 0x%1.</source>
        <translation>Es gibt kein Fenster 0x%1.</translation>
    </message>
    <message>
        <source>There is no screen to capture.</source>
        <translation>Es gibt keinen Bildschirm zum Aufnehmen.</translation>
    </message>
    <message>
        <source>There is only one screen.</source>
        <translation>Es gibt nur einen Bildschirm.</translation>
    </message>
    <message numerus="yes">
        <source>There are only %n screens.</source>
        <translation>
            <numerusform>Es gibt nur %n Bildschirm.</numerusform>
            <numerusform>Es gibt nur %n Bildschirme.</numerusform>
        </translation>
    </message>
    <message>
        <source>Standard output is a terminal; a picture is not written to it.</source>
        <translation>Die Standardausgabe ist ein Terminal; dorthin wird kein Bild geschrieben.</translation>
    </message>
    <message>
        <source>Pixmallow takes screenshots.

usage:
  pixmallow [--replace] [--background]
  pixmallow capture KIND [--wait] [--json]
  pixmallow pin FILE...
  pixmallow edit FILE...
  pixmallow history
  pixmallow gallery
  pixmallow settings
  pixmallow quit
  pixmallow shot [--output FILE|-] [--screen N | --window ID | --area X,Y,WxH]
                 [--cursor] [--shadow] [--json]
  pixmallow list screens|windows [--json]
  pixmallow list history [--search WORDS] [--json]
  pixmallow text FILE... [--json]
  pixmallow doctor [--online] [--json]
  pixmallow --version | --help

Without a command Pixmallow starts, stays in the background and opens its panel;
if it runs already, it opens the panel of the one that does.
  --replace      end the one that runs and take its place
  --background   do not open the panel

capture  Begins a capture as its shortcut would, and starts Pixmallow if it does
       not run. KIND is region, window, screen, delayed or text.
  --wait         return when the capture has ended, and print the path of the
                 file, or the text
  --json         print how it ended and what there is to know about it

pin    Shows image files above all windows, and starts Pixmallow if it does not
       run. The wheel zooms, with Ctrl it fades, Escape closes.

edit   Opens image files in the editor, and starts Pixmallow if it does not run.
       Closing keeps the edit: PNG and JPEG files are replaced, for others there
       is a new PNG file beside them.

history, gallery, settings
       Opens the window of past captures, of achievements and the pet, or of
       all that can be set, and starts Pixmallow if it does not run.

quit   Ends Pixmallow, if it runs.

shot   Writes a picture of the whole desktop to a PNG file and nothing else: no
       history, no clipboard, no window. Made for scripts.
  --output FILE  replace FILE, or make it; - is standard output. Without it the
                 file gets a dated name in the current folder, which is printed.
  --screen N     one screen, as numbered by &apos;list screens&apos;
  --window ID    one window by itself, even if others cover it
  --area X,Y,WxH part of the desktop, in device pixels from its top left corner
  --cursor       with the mouse pointer
  --shadow       with the window&apos;s shadow
  --json         print where the picture is and what it shows

list   Prints the screens, the windows on screen with the front-most first, or
       the past captures with the newest first.
  --search WORDS only captures with WORDS in the name of their program or file,
                 in their date, or in the text they show

text   Prints the text of pictures, or what the QR and bar codes in them say if
       there is no other text. With several files each text has a heading.
  --json         print a line of JSON for each file

doctor Examines how well Pixmallow can work here and says what to do about what is
       not well: screens, of which each shows a small pattern for a moment,
       shortcuts, clipboard, tray, text recognition, sound, folders, updates.
       Exit code 0 if all is well, 1 if something needs attention.
  --online       ask the address of updates, too
  --json         print a list of what was found

Exit code: 0 done, 1 cancelled by the user, 2 failed, 3 another capture is
running, 64 wrong arguments.
</source>
        <translation>Pixmallow macht Screenshots.

Aufruf:
  pixmallow [--replace] [--background]
  pixmallow capture ART [--wait] [--json]
  pixmallow pin DATEI...
  pixmallow edit DATEI...
  pixmallow history
  pixmallow gallery
  pixmallow settings
  pixmallow quit
  pixmallow shot [--output DATEI|-] [--screen N | --window ID | --area X,Y,WxH]
                 [--cursor] [--shadow] [--json]
  pixmallow list screens|windows [--json]
  pixmallow list history [--search WÖRTER] [--json]
  pixmallow text DATEI... [--json]
  pixmallow doctor [--online] [--json]
  pixmallow --version | --help

Ohne Befehl startet Pixmallow, bleibt im Hintergrund und öffnet sein Menü; läuft
es schon, öffnet sich das Menü dessen, das läuft.
  --replace      das laufende beenden und an seine Stelle treten
  --background   das Menü nicht öffnen

capture  Beginnt eine Aufnahme, wie es ihr Tastenkürzel täte, und startet Pixmallow,
       wenn es nicht läuft. ART ist region, window, screen, delayed oder text.
  --wait         erst zurückkehren, wenn die Aufnahme zu Ende ist, und den Pfad
                 der Datei oder den Text ausgeben
  --json         ausgeben, wie sie endete und was es über sie zu wissen gibt

pin    Zeigt Bilddateien über allen Fenstern und startet Pixmallow, wenn es nicht
       läuft. Das Mausrad zoomt, mit Strg blendet es aus, Escape schließt.

edit   Öffnet Bilddateien im Editor und startet Pixmallow, wenn es nicht läuft.
       Beim Schließen bleibt die Bearbeitung erhalten: PNG- und JPEG-Dateien
       werden ersetzt, neben anderen entsteht eine neue PNG-Datei.

history, gallery, settings
       Öffnet das Fenster der früheren Aufnahmen, der Erfolge und des Haustiers
       oder all dessen, was sich einstellen lässt, und startet Pixmallow, wenn es
       nicht läuft.

quit   Beendet Pixmallow, wenn es läuft.

shot   Schreibt ein Bild des ganzen Desktops in eine PNG-Datei und tut sonst nichts:
       kein Verlauf, keine Zwischenablage, kein Fenster. Für Skripte gemacht.
  --output DATEI DATEI ersetzen oder anlegen; - ist die Standardausgabe. Ohne dies
                 bekommt die Datei einen Namen mit Datum im aktuellen Ordner, der
                 ausgegeben wird.
  --screen N     ein Bildschirm mit der Nummer aus ‚list screens‘
  --window ID    ein Fenster für sich, auch wenn andere es verdecken
  --area X,Y,WxH ein Teil des Desktops, in Gerätepixeln von seiner linken oberen
                 Ecke aus
  --cursor       mit dem Mauszeiger
  --shadow       mit dem Schatten des Fensters
  --json         ausgeben, wo das Bild ist und was es zeigt

list   Gibt die Bildschirme aus, die sichtbaren Fenster, das vorderste zuerst, oder
       die früheren Aufnahmen, die neueste zuerst.
  --search WÖRTER nur Aufnahmen mit WÖRTER im Namen ihres Programms oder ihrer
                 Datei, in ihrem Datum oder im Text, den sie zeigen

text   Gibt den Text von Bildern aus oder, wenn es keinen anderen Text gibt, was ihre
       QR- und Strichcodes sagen. Bei mehreren Dateien hat jeder Text eine
       Überschrift.
  --json         für jede Datei eine Zeile JSON ausgeben

doctor Untersucht, wie gut Pixmallow hier arbeiten kann, und sagt, was gegen das zu tun
       ist, was nicht in Ordnung ist: Bildschirme, von denen jeder einen Moment
       lang ein kleines Muster zeigt, Tastenkürzel, Zwischenablage, Infobereich,
       Texterkennung, Ton, Ordner, Updates. Exitcode 0, wenn alles in Ordnung ist,
       1, wenn etwas Aufmerksamkeit braucht.
  --online       auch die Adresse der Updates fragen
  --json         eine Liste dessen ausgeben, was gefunden wurde

Exitcode: 0 erledigt, 1 vom Benutzer abgebrochen, 2 fehlgeschlagen, 3 eine andere
Aufnahme läuft, 64 falsche Argumente.
</translation>
    </message>
    <message>
        <source>The history has no entry “%1”.</source>
        <translation>Der Verlauf hat keinen Eintrag „%1“.</translation>
    </message>
    <message>
        <source>“%1” cannot be read.</source>
        <translation>„%1“ kann nicht gelesen werden.</translation>
    </message>
    <message numerus="yes">
        <source>%n captures</source>
        <translation>
            <numerusform>%n Aufnahme</numerusform>
            <numerusform>%n Aufnahmen</numerusform>
        </translation>
    </message>
    <message>
        <source>The examination ended without a report.</source>
        <translation>Die Untersuchung endete ohne Bericht.</translation>
    </message>
</context>
</TS>
