<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>Velmora</name>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Do you want to delete all tags from &quot;%@&quot;?</source>
        <translation>Möchten Sie alle Tags aus „%@“ löschen?</translation>
    </message>
    <message>
        <source>What other programs read goes, too, and so do the changes that you have made here. This can&#x27;t be undone.</source>
        <translation>Auch was andere Programme lesen, geht verloren, und ebenso Ihre Änderungen hier. Das lässt sich nicht rückgängig machen.</translation>
    </message>
    <message>
        <source>Delete All Tags</source>
        <translation>Alle Tags löschen</translation>
    </message>
    <message>
        <source>All tags of &quot;%@&quot; are deleted.</source>
        <translation>Alle Tags von „%@“ sind gelöscht.</translation>
    </message>
    <message>
        <source>&quot;%@&quot; keeps its tags.</source>
        <translation>„%@“ behält seine Tags.</translation>
    </message>
    <message>
        <source>The cover is deleted here. A save in place leaves it in the file.</source>
        <translation>Das Titelbild ist hier gelöscht. Beim Speichern an Ort und Stelle bleibt es in der Datei.</translation>
    </message>
    <message>
        <source>Deleted all tags of &quot;%@&quot;</source>
        <translation>Alle Tags von „%@“ gelöscht</translation>
    </message>
    <message>
        <source>This is no number, and is stored as no year</source>
        <translation>Das ist keine Zahl; gespeichert wird kein Jahr</translation>
    </message>
    <message>
        <source>The cover was taken from folder.jpg, which counts as a change: a save writes it into the file.</source>
        <translation>Das Titelbild stammt aus folder.jpg und gilt deshalb als Änderung: Beim Speichern wird es in die Datei geschrieben.</translation>
    </message>
    <message>
        <source>What was filled in from the web is not stored yet: a save writes only the fields that were typed in.</source>
        <translation>Was aus dem Web eingetragen wurde, ist noch nicht übernommen: Beim Speichern werden nur die Felder geschrieben, in die getippt wurde.</translation>
    </message>
    <message>
        <source>Store Filled Fields</source>
        <translation>Eingetragenes übernehmen</translation>
    </message>
    <message>
        <source>Take all filled fields for changes, which a save writes</source>
        <translation>Alle ausgefüllten Felder als Änderungen übernehmen, damit sie gespeichert werden</translation>
    </message>
    <message>
        <source>The filled fields count as changes now: a save writes them.</source>
        <translation>Die ausgefüllten Felder gelten jetzt als Änderungen: Beim Speichern werden sie geschrieben.</translation>
    </message>
    <message>
        <source>The cover is cut from the form only, and stays in the file.</source>
        <translation>Das Titelbild ist nur im Formular ausgeschnitten und bleibt in der Datei.</translation>
    </message>
    <message>
        <source>The pasted cover is shown only: a save does not write it.</source>
        <translation>Das eingefügte Titelbild wird nur angezeigt: Beim Speichern wird es nicht geschrieben.</translation>
    </message>
    <message>
        <source>Store Cover</source>
        <translation>Titelbild übernehmen</translation>
    </message>
    <message>
        <source>Take the cover for a change, which a save writes</source>
        <translation>Das Titelbild als Änderung übernehmen, damit es gespeichert wird</translation>
    </message>
    <message>
        <source>No file is open</source>
        <translation>Es ist keine Datei geöffnet</translation>
    </message>
    <message>
        <source>Not stored in files of this kind</source>
        <translation>Wird in Dateien dieser Art nicht gespeichert</translation>
    </message>
    <message>
        <source>No file is open: what is typed here goes nowhere</source>
        <translation>Es ist keine Datei geöffnet: Was hier getippt wird, geht verloren</translation>
    </message>
    <message>
        <source>open in the form</source>
        <translation>im Formular geöffnet</translation>
    </message>
    <message>
        <source>Unable to open file &quot;%@&quot;.</source>
        <translation>Die Datei „%@“ kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>KORVANE Velmora</source>
        <translation>KORVANE Velmora</translation>
    </message>
    <message>
        <source>Velmora can only open local files.</source>
        <translation>Velmora kann nur lokale Dateien öffnen.</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>Die Datei ist nicht vorhanden.</translation>
    </message>
    <message>
        <source>&quot;%@&quot; was not added.</source>
        <translation>„%@“ wurde nicht hinzugefügt.</translation>
    </message>
    <message>
        <source>Files that could not be added: %@</source>
        <translation>Dateien, die nicht hinzugefügt werden konnten: %@</translation>
    </message>
    <message>
        <source>Please ensure the file is readable and is a valid media file.</source>
        <translation>Bitte stellen Sie sicher, dass die Datei lesbar und eine gültige Mediendatei ist.</translation>
    </message>
    <message>
        <source>Do you want to save the changes you made?</source>
        <translation>Möchten Sie Ihre Änderungen speichern?</translation>
    </message>
    <message>
        <source>Your changes to &quot;%@&quot; will be lost if you don&#x27;t save them.</source>
        <translation>Ihre Änderungen an „%@“ gehen verloren, wenn Sie sie nicht speichern.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>%@.</source>
        <translation>%@.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Don&#x27;t Save</source>
        <translation>Nicht speichern</translation>
    </message>
    <message>
        <source>Add Files</source>
        <translation>Dateien hinzufügen</translation>
    </message>
    <message>
        <source>Add Folders</source>
        <translation>Ordner hinzufügen</translation>
    </message>
    <message>
        <source>Load Cover Art</source>
        <translation>Titelbild laden</translation>
    </message>
    <message>
        <source>Search Done.</source>
        <translation>Suche beendet.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>Adults Only</source>
        <translation>Nur für Erwachsene</translation>
    </message>
    <message>
        <source>Animated</source>
        <translation>Animation</translation>
    </message>
    <message>
        <source>Art</source>
        <translation>Kunst</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Business / Financial</source>
        <translation>Wirtschaft / Finanzen</translation>
    </message>
    <message>
        <source>Children</source>
        <translation>Kinder</translation>
    </message>
    <message>
        <source>Comedy</source>
        <translation>Komödie</translation>
    </message>
    <message>
        <source>Consumer</source>
        <translation>Verbraucher</translation>
    </message>
    <message>
        <source>Cooking</source>
        <translation>Kochen</translation>
    </message>
    <message>
        <source>Crime</source>
        <translation>Krimi</translation>
    </message>
    <message>
        <source>Documentary</source>
        <translation>Dokumentation</translation>
    </message>
    <message>
        <source>Drama</source>
        <translation>Drama</translation>
    </message>
    <message>
        <source>Educational</source>
        <translation>Bildung</translation>
    </message>
    <message>
        <source>Game Show</source>
        <translation>Spielshow</translation>
    </message>
    <message>
        <source>Gay / Lesbian</source>
        <translation>Schwul / Lesbisch</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Gesundheit</translation>
    </message>
    <message>
        <source>Holiday</source>
        <translation>Feiertage</translation>
    </message>
    <message>
        <source>House / Garden</source>
        <translation>Haus / Garten</translation>
    </message>
    <message>
        <source>Mystery</source>
        <translation>Mystery</translation>
    </message>
    <message>
        <source>Nature</source>
        <translation>Natur</translation>
    </message>
    <message>
        <source>News</source>
        <translation>Nachrichten</translation>
    </message>
    <message>
        <source>Performing Arts</source>
        <translation>Darstellende Kunst</translation>
    </message>
    <message>
        <source>Reality</source>
        <translation>Reality</translation>
    </message>
    <message>
        <source>Romance</source>
        <translation>Liebesfilm</translation>
    </message>
    <message>
        <source>Science Fiction</source>
        <translation>Science-Fiction</translation>
    </message>
    <message>
        <source>Self Improvement</source>
        <translation>Selbsthilfe</translation>
    </message>
    <message>
        <source>Soap</source>
        <translation>Seifenoper</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Spanisch</translation>
    </message>
    <message>
        <source>Special</source>
        <translation>Sondersendung</translation>
    </message>
    <message>
        <source>Sports</source>
        <translation>Sport</translation>
    </message>
    <message>
        <source>Talk</source>
        <translation>Talkshow</translation>
    </message>
    <message>
        <source>Travel</source>
        <translation>Reisen</translation>
    </message>
    <message>
        <source>Western</source>
        <translation>Western</translation>
    </message>
    <message>
        <source>Artist:</source>
        <translation>Interpret:</translation>
    </message>
    <message>
        <source>Album:</source>
        <translation>Album:</translation>
    </message>
    <message>
        <source>Cast:</source>
        <translation>Besetzung:</translation>
    </message>
    <message>
        <source>Director:</source>
        <translation>Regie:</translation>
    </message>
    <message>
        <source>Cover art</source>
        <translation>Titelbild</translation>
    </message>
    <message>
        <source>Cover art: drop an image here to store it</source>
        <translation>Titelbild: Bild hier ablegen, um es zu übernehmen</translation>
    </message>
    <message>
        <source>too large to show</source>
        <translation>zu groß zum Anzeigen</translation>
    </message>
    <message>
        <source>Drop an image here</source>
        <translation>Bild hier ablegen</translation>
    </message>
    <message>
        <source>Unable to write tags to file &quot;%@&quot;.</source>
        <translation>Die Tags können nicht in die Datei „%@“ geschrieben werden.</translation>
    </message>
    <message>
        <source>Be sure you have permissions to write to the file, and that it is a valid media file.</source>
        <translation>Stellen Sie sicher, dass Sie Schreibrechte für die Datei haben und dass sie eine gültige Mediendatei ist.</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Preview picture</source>
        <translation>Vorschaubild</translation>
    </message>
    <message>
        <source>Preview of the selected file</source>
        <translation>Vorschau der ausgewählten Datei</translation>
    </message>
    <message>
        <source>Play or pause the preview</source>
        <translation>Vorschau abspielen oder anhalten</translation>
    </message>
    <message>
        <source>Position in the preview</source>
        <translation>Position in der Vorschau</translation>
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
        <source>Search a site to see its pages here</source>
        <translation>Suchen Sie auf einer Website, um ihre Seiten hier zu sehen</translation>
    </message>
    <message>
        <source>The web browser component is not installed.</source>
        <translation>Die Browserkomponente ist nicht installiert.</translation>
    </message>
    <message>
        <source>Waiting for the cover …</source>
        <translation>Warten auf das Titelbild …</translation>
    </message>
    <message>
        <source>Waiting for the cover from %1 …</source>
        <translation>Warten auf das Titelbild von %1 …</translation>
    </message>
    <message>
        <source>Web pages are not shown when the program is run by the system administrator.</source>
        <translation>Webseiten werden nicht angezeigt, wenn das Programm mit Administratorrechten läuft.</translation>
    </message>
    <message>
        <source>Looking for films and music…</source>
        <translation>Filme und Musik werden gesucht …</translation>
    </message>
    <message>
        <source>No media files yet. Add files, or a folder to search, with the buttons above.</source>
        <translation>Noch keine Mediendateien. Fügen Sie mit den Schaltflächen oben Dateien oder einen zu durchsuchenden Ordner hinzu.</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Clear the field</source>
        <translation>Das Feld leeren</translation>
    </message>
    <message>
        <source>Parts of the window</source>
        <translation>Teile des Fensters</translation>
    </message>
    <message>
        <source>Divider</source>
        <translation>Trennleiste</translation>
    </message>
    <message>
        <source>Gives the parts of the window more or less room</source>
        <translation>Gibt den Teilen des Fensters mehr oder weniger Platz</translation>
    </message>
    <message>
        <source>No cover art; drop an image here</source>
        <translation>Kein Titelbild; legen Sie hier ein Bild ab</translation>
    </message>
    <message>
        <source>An image of %@ pixels</source>
        <translation>Ein Bild mit %@ Pixeln</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Song</source>
        <translation>Lied</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>Other file</source>
        <translation>Andere Datei</translation>
    </message>
    <message>
        <source>Alt+J</source>
        <translation>Alt+R</translation>
    </message>
    <message>
        <source>Alt+Q</source>
        <translation>Alt+Q</translation>
    </message>
    <message>
        <source>Alt+X</source>
        <translation>Alt+X</translation>
    </message>
    <message>
        <source>Alt+Z</source>
        <translation>Alt+Y</translation>
    </message>
    <message>
        <source>Alt+W</source>
        <translation>Alt+A</translation>
    </message>
    <message>
        <source>Usage: velmora [FILE|FOLDER]...</source>
        <translation>Aufruf: velmora [DATEI|ORDNER]...</translation>
    </message>
    <message>
        <source>Edits titles, artists, covers and more of films and music.</source>
        <translation>Bearbeitet Titel, Interpreten, Titelbilder und mehr von Filmen und Musik.</translation>
    </message>
    <message>
        <source>  FILE       is listed; a single one is opened</source>
        <translation>  DATEI      wird aufgelistet; eine einzelne wird geöffnet</translation>
    </message>
    <message>
        <source>  FOLDER     is searched for films and music</source>
        <translation>  ORDNER     wird nach Filmen und Musik durchsucht</translation>
    </message>
    <message>
        <source>  --help     prints this and ends</source>
        <translation>  --help     gibt diese Hilfe aus und beendet sich</translation>
    </message>
    <message>
        <source>  --version  prints the version and ends</source>
        <translation>  --version  gibt die Version aus und beendet sich</translation>
    </message>
    <message>
        <source>velmora: unknown option %@; --help tells the others</source>
        <translation>velmora: unbekannte Option %@; --help nennt die gültigen</translation>
    </message>
    <message>
        <source>Files of this kind carry no tag</source>
        <translation>Dateien dieser Art tragen kein Tag</translation>
    </message>
    <message>
        <source>Files of this kind have no such field</source>
        <translation>Dateien dieser Art haben dieses Feld nicht</translation>
    </message>
    <message>
        <source>The file is damaged</source>
        <translation>Die Datei ist beschädigt</translation>
    </message>
    <message>
        <source>The file is of a sort that can&#x27;t be saved safely</source>
        <translation>Dateien dieser Sorte lassen sich nicht sicher speichern</translation>
    </message>
    <message>
        <source>Something is too large for this kind of file</source>
        <translation>Etwas ist für diese Art von Datei zu groß</translation>
    </message>
    <message>
        <source>It is no ordinary file</source>
        <translation>Es ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>The file is write-protected</source>
        <translation>Die Datei ist schreibgeschützt</translation>
    </message>
    <message>
        <source>The file has further hard links, which would keep the old contents</source>
        <translation>Die Datei hat weitere Hardlinks, die den alten Inhalt behalten würden</translation>
    </message>
    <message>
        <source>Another program changed the file meanwhile</source>
        <translation>Ein anderes Programm hat die Datei inzwischen geändert</translation>
    </message>
    <message>
        <source>No space is left for the new file</source>
        <translation>Für die neue Datei ist kein Platz mehr</translation>
    </message>
    <message>
        <source>The new file would have lost something</source>
        <translation>Die neue Datei hätte etwas verloren</translation>
    </message>
    <message>
        <source>The system could not confirm that the folder is on the disk</source>
        <translation>Das System konnte nicht bestätigen, dass der Ordner auf den Datenträger geschrieben ist</translation>
    </message>
    <message>
        <source>The save was cancelled</source>
        <translation>Das Speichern wurde abgebrochen</translation>
    </message>
    <message>
        <source>The file&#x27;s old contents can&#x27;t be kept for an undo: %@</source>
        <translation>Der alte Inhalt der Datei kann nicht zum Rückgängigmachen aufbewahrt werden: %@</translation>
    </message>
    <message>
        <source>Its tag can&#x27;t be changed in place</source>
        <translation>Das Tag der Datei lässt sich nicht an Ort und Stelle ändern</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Close this notice</source>
        <translation>Diesen Hinweis schließen</translation>
    </message>
    <message>
        <source>Saving &quot;%@&quot;…</source>
        <translation>„%@“ wird gespeichert …</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Leave the file as it was</source>
        <translation>Die Datei unverändert lassen</translation>
    </message>
    <message>
        <source>The portable tags of &quot;%@&quot; can&#x27;t be read.</source>
        <translation>Die portablen Tags von „%@“ lassen sich nicht lesen.</translation>
    </message>
    <message>
        <source>Other programs see more in this file</source>
        <translation>Andere Programme sehen mehr in dieser Datei</translation>
    </message>
    <message>
        <source>Show It</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>Switch to the tags that other programs read</source>
        <translation>Zu den Tags wechseln, die andere Programme lesen</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>Immer</translation>
    </message>
    <message>
        <source>Switch to these tags, now and at each start</source>
        <translation>Zu diesen Tags wechseln, jetzt und bei jedem Start</translation>
    </message>
    <message>
        <source>&quot;%@&quot; was not saved.</source>
        <translation>„%@“ wurde nicht gespeichert.</translation>
    </message>
    <message>
        <source>&quot;%@&quot; was saved, but not all of it can be read back.</source>
        <translation>„%@“ wurde gespeichert, aber nicht alles lässt sich zurücklesen.</translation>
    </message>
    <message>
        <source>Save With Portable Tags</source>
        <translation>Mit portablen Tags speichern</translation>
    </message>
    <message>
        <source>Write the changes into the tags that other programs read, and replace the file in one step</source>
        <translation>Die Änderungen in die Tags schreiben, die andere Programme lesen, und die Datei in einem Schritt ersetzen</translation>
    </message>
    <message>
        <source>Save so, and do so from now on, also after the next start</source>
        <translation>So speichern, und zwar von jetzt an immer, auch nach dem nächsten Start</translation>
    </message>
    <message>
        <source>Saved. Other programs see it: %@</source>
        <translation>Gespeichert. Andere Programme sehen es: %@</translation>
    </message>
    <message>
        <source>Saved. Other programs read no tag in files of this kind: %@</source>
        <translation>Gespeichert. Andere Programme lesen in Dateien dieser Art kein Tag: %@</translation>
    </message>
    <message>
        <source>Replace Anyway</source>
        <translation>Trotzdem ersetzen</translation>
    </message>
    <message>
        <source>The other links keep the old contents</source>
        <translation>Die anderen Hardlinks behalten den alten Inhalt</translation>
    </message>
    <message>
        <source>&quot;%@&quot; was not saved; its edits are kept.</source>
        <translation>„%@“ wurde nicht gespeichert; die Änderungen bleiben erhalten.</translation>
    </message>
    <message>
        <source>Restore Unsaved Edits</source>
        <translation>Nicht gespeicherte Änderungen wiederherstellen</translation>
    </message>
    <message>
        <source>Open the file again whose edits could not be saved, and put them back</source>
        <translation>Die Datei, deren Änderungen nicht gespeichert werden konnten, wieder öffnen und die Änderungen wieder eintragen</translation>
    </message>
    <message>
        <source>The edits of &quot;%@&quot; are back, and not saved yet.</source>
        <translation>Die Änderungen an „%@“ sind wieder da und noch nicht gespeichert.</translation>
    </message>
    <message>
        <source>A percent sign stands alone. Write %% for a percent sign.</source>
        <translation>Ein Prozentzeichen steht allein. Schreiben Sie %% für ein Prozentzeichen.</translation>
    </message>
    <message>
        <source>There is no field &quot;%@&quot;.</source>
        <translation>Es gibt kein Feld „%@“.</translation>
    </message>
    <message>
        <source>The name does not fit the pattern</source>
        <translation>Der Name passt nicht zum Muster</translation>
    </message>
    <message>
        <source>Files of this kind have no such field: %@</source>
        <translation>Dateien dieser Art haben dieses Feld nicht: %@</translation>
    </message>
    <message>
        <source>It says so already</source>
        <translation>Das steht dort schon</translation>
    </message>
    <message>
        <source>It has that name already</source>
        <translation>Sie heißt schon so</translation>
    </message>
    <message>
        <source>The name is cut: it would be too long</source>
        <translation>Der Name ist gekürzt: Er wäre zu lang</translation>
    </message>
    <message>
        <source>No value: %@</source>
        <translation>Kein Wert: %@</translation>
    </message>
    <message>
        <source>No name is left of the values</source>
        <translation>Von den Werten bleibt kein Name übrig</translation>
    </message>
    <message>
        <source>The file keeps its name: its tag lies in another file that goes by it</source>
        <translation>Die Datei behält ihren Namen: Ihr Tag liegt in einer anderen Datei, die über diesen Namen zu ihr gehört</translation>
    </message>
    <message>
        <source>Another row has that name or is to get it</source>
        <translation>Eine andere Zeile hat diesen Namen oder soll ihn bekommen</translation>
    </message>
    <message>
        <source>There is a file of that name</source>
        <translation>Es gibt schon eine Datei dieses Namens</translation>
    </message>
    <message>
        <source>Its tags have not been read yet</source>
        <translation>Ihre Tags wurden noch nicht gelesen</translation>
    </message>
    <message>
        <source>Its tags can't be read</source>
        <translation>Ihre Tags können nicht gelesen werden</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Tags from Names</source>
        <translation>Tags aus Namen</translation>
    </message>
    <message>
        <source>Names from Tags</source>
        <translation>Namen aus Tags</translation>
    </message>
    <message>
        <source>&amp;Pattern:</source>
        <translation>&amp;Muster:</translation>
    </message>
    <message>
        <source>Fields between percent signs, and the text between them</source>
        <translation>Felder zwischen Prozentzeichen und der Text dazwischen</translation>
    </message>
    <message>
        <source>&amp;Insert Field</source>
        <translation>Feld &amp;einfügen</translation>
    </message>
    <message>
        <source>Put a field into the pattern</source>
        <translation>Ein Feld in das Muster einfügen</translation>
    </message>
    <message>
        <source>%skip% stands for text that is left out, a slash for a folder.</source>
        <translation>%skip% steht für Text, der ausgelassen wird, ein Schrägstrich für einen Ordner.</translation>
    </message>
    <message>
        <source>%folder% stands for the name of the file's folder.</source>
        <translation>%folder% steht für den Namen des Ordners der Datei.</translation>
    </message>
    <message>
        <source>What becomes of every file</source>
        <translation>Was aus jeder Datei wird</translation>
    </message>
    <message>
        <source>Show only files that something is &amp;wrong with</source>
        <translation>Nur Dateien &amp;zeigen, bei denen etwas nicht stimmt</translation>
    </message>
    <message>
        <source>Hide the files that the pattern fits</source>
        <translation>Die Dateien ausblenden, zu denen das Muster passt</translation>
    </message>
    <message>
        <source>&amp;Set Tags</source>
        <translation>Tags &amp;setzen</translation>
    </message>
    <message>
        <source>&amp;Set Names</source>
        <translation>Namen &amp;setzen</translation>
    </message>
    <message>
        <source>Make these edits of the table; no file changes before they are applied</source>
        <translation>Als Änderungen in die Tabelle übernehmen; die Dateien ändern sich erst beim Anwenden</translation>
    </message>
    <message>
        <source>Leave everything as it is</source>
        <translation>Alles unverändert lassen</translation>
    </message>
    <message>
        <source>New Name</source>
        <translation>Neuer Name</translation>
    </message>
    <message>
        <source>The preview is being made.</source>
        <translation>Die Vorschau wird erstellt.</translation>
    </message>
    <message>
        <source>Files that change: %@.</source>
        <translation>Dateien, die sich ändern: %@.</translation>
    </message>
    <message>
        <source>Files that something is wrong with: %@; they are left alone.</source>
        <translation>Dateien, bei denen etwas nicht stimmt: %@; sie bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>&amp;Tags from Names…</source>
        <translation>&amp;Tags aus Namen …</translation>
    </message>
    <message>
        <source>Take the tags of the selected files from their names, by a pattern</source>
        <translation>Die Tags der ausgewählten Dateien nach einem Muster aus ihren Namen nehmen</translation>
    </message>
    <message>
        <source>&amp;Names from Tags…</source>
        <translation>&amp;Namen aus Tags …</translation>
    </message>
    <message>
        <source>Give the selected files names made of their tags, by a pattern</source>
        <translation>Den ausgewählten Dateien nach einem Muster Namen aus ihren Tags geben</translation>
    </message>
    <message>
        <source>The pattern is empty.</source>
        <translation>Das Muster ist leer.</translation>
    </message>
    <message>
        <source>There is nothing beside a slash.</source>
        <translation>Neben einem Schrägstrich steht nichts.</translation>
    </message>
    <message>
        <source>Nothing divides one field from the next.</source>
        <translation>Zwischen zwei Feldern steht nichts, das sie trennt.</translation>
    </message>
    <message>
        <source>A field comes twice.</source>
        <translation>Ein Feld kommt zweimal vor.</translation>
    </message>
    <message>
        <source>%skip% has no place in a new name.</source>
        <translation>%skip% ist in einem neuen Namen nicht möglich.</translation>
    </message>
    <message>
        <source>A name has no slash: files stay in their folders.</source>
        <translation>Ein Name enthält keinen Schrägstrich: Die Dateien bleiben in ihren Ordnern.</translation>
    </message>
    <message>
        <source>There is no field in the pattern.</source>
        <translation>Im Muster ist kein Feld.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s)</source>
        <translation>
            <numerusform>%Ln Datei</numerusform>
            <numerusform>%Ln Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>%@ not applied</source>
        <translation>%@ nicht angewendet</translation>
    </message>
    <message>
        <source>%@ selected</source>
        <translation>%@ ausgewählt</translation>
    </message>
    <message>
        <source>%@ shown</source>
        <translation>%@ angezeigt</translation>
    </message>
    <message>
        <source>%@ to be read</source>
        <translation>noch %@ zu lesen</translation>
    </message>
    <message>
        <source>%@, not applied</source>
        <translation>%@, nicht angewendet</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>Album / Director</source>
        <translation>Album / Regie</translation>
    </message>
    <message>
        <source>Artist / Cast</source>
        <translation>Interpret / Besetzung</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Titelbild</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>Genre</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>Bibliothek</translation>
    </message>
    <message>
        <source>Library Table</source>
        <translation>Bibliothekstabelle</translation>
    </message>
    <message>
        <source>Rating</source>
        <translation>Freigabe</translation>
    </message>
    <message>
        <source>Synopsis / Comment</source>
        <translation>Inhalt / Kommentar</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Tags</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Jahr</translation>
    </message>
    <message>
        <source>User Guide</source>
        <translation>Handbuch</translation>
    </message>
    <message>
        <source>The guide&#x27;s text</source>
        <translation>Der Text des Handbuchs</translation>
    </message>
    <message>
        <source>&amp;Go to:</source>
        <translation>&amp;Gehe zu:</translation>
    </message>
    <message>
        <source>Go to a heading of the guide</source>
        <translation>Zu einer Überschrift des Handbuchs gehen</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>&amp;Suchen:</translation>
    </message>
    <message>
        <source>Find words in the guide; Return goes to the next place</source>
        <translation>Wörter im Handbuch suchen; die Eingabetaste geht zur nächsten Stelle</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Nicht gefunden</translation>
    </message>
    <message>
        <source>The user guide is not installed.</source>
        <translation>Das Handbuch ist nicht installiert.</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Taste</translation>
    </message>
    <message>
        <source>What it does</source>
        <translation>Was sie bewirkt</translation>
    </message>
    <message>
        <source>Every key and what it does</source>
        <translation>Alle Tasten und was sie bewirken</translation>
    </message>
    <message>
        <source>Close this window</source>
        <translation>Dieses Fenster schließen</translation>
    </message>
    <message>
        <source>%@ menu</source>
        <translation>Menü „%@“</translation>
    </message>
    <message>
        <source>Letters, in the list</source>
        <translation>Buchstaben, in der Liste</translation>
    </message>
    <message>
        <source>The next name that begins with them</source>
        <translation>Der nächste Name, der so beginnt</translation>
    </message>
    <message>
        <source>In the list: the file above, below</source>
        <translation>In der Liste: die Datei darüber, darunter</translation>
    </message>
    <message>
        <source>On the cover: cut it</source>
        <translation>Auf dem Titelbild: ausschneiden</translation>
    </message>
    <message>
        <source>On the cover: copy it</source>
        <translation>Auf dem Titelbild: kopieren</translation>
    </message>
    <message>
        <source>On the cover: paste one</source>
        <translation>Auf dem Titelbild: einfügen</translation>
    </message>
    <message>
        <source>The next control</source>
        <translation>Das nächste Bedienelement</translation>
    </message>
    <message>
        <source>The control before</source>
        <translation>Das vorige Bedienelement</translation>
    </message>
    <message>
        <source>The menus</source>
        <translation>Die Menüs</translation>
    </message>
    <message>
        <source>The buttons of the line above the form</source>
        <translation>Die Schaltflächen der Zeile über dem Formular</translation>
    </message>
    <message>
        <source>Ends the wait for a page or a cover; closes the line above the form</source>
        <translation>Beendet das Warten auf eine Seite oder ein Titelbild; schließt die Zeile über dem Formular</translation>
    </message>
    <message>
        <source>About Velmora</source>
        <translation>Über Velmora</translation>
    </message>
    <message>
        <source>MIT licence: free to use, to change and to pass on, without any warranty.</source>
        <translation>MIT-Lizenz: frei zu nutzen, zu ändern und weiterzugeben, ohne jede Gewähr.</translation>
    </message>
    <message>
        <source>Built on Qt %@ with its web engine and multimedia, TagLib, GStreamer, libjpeg and libpng, each under its own licence.</source>
        <translation>Basiert auf Qt %@ mit Web-Engine und Multimedia, TagLib, GStreamer, libjpeg und libpng, jeweils unter eigener Lizenz.</translation>
    </message>
    <message>
        <source>What Velmora is and what it is built on</source>
        <translation>Was Velmora ist und worauf es basiert</translation>
    </message>
    <message>
        <source>The window will look like this at each start.</source>
        <translation>Das Fenster sieht künftig bei jedem Start so aus.</translation>
    </message>
    <message>
        <source>The layout can&#x27;t be remembered: the settings file can&#x27;t be written.</source>
        <translation>Das Layout lässt sich nicht merken: Die Einstellungsdatei kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Nothing is remembered any more: there is no settings file.</source>
        <translation>Alles ist vergessen: Es gibt keine Einstellungsdatei mehr.</translation>
    </message>
    <message>
        <source>The settings file can&#x27;t be removed.</source>
        <translation>Die Einstellungsdatei kann nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>The next start will not know of it: the settings file can&#x27;t be written.</source>
        <translation>Beim nächsten Start ist das vergessen: Die Einstellungsdatei kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>You have no permission to write to it</source>
        <translation>Sie haben keine Schreibrechte für die Datei</translation>
    </message>
    <message>
        <source>It lies on a disk that can only be read</source>
        <translation>Die Datei liegt auf einem Datenträger, der nur gelesen werden kann</translation>
    </message>
    <message>
        <source>No space is left on its disk</source>
        <translation>Auf dem Datenträger ist kein Platz mehr</translation>
    </message>
    <message>
        <source>It would become too large</source>
        <translation>Die Datei würde zu groß</translation>
    </message>
    <message>
        <source>It is not there any more</source>
        <translation>Die Datei ist nicht mehr vorhanden</translation>
    </message>
    <message>
        <source>You have no permission for that</source>
        <translation>Sie haben keine Rechte dafür</translation>
    </message>
    <message>
        <source>You have no permission to put a new file into its folder</source>
        <translation>Sie haben keine Schreibrechte für den Ordner der Datei</translation>
    </message>
    <message>
        <source>Another program is using it</source>
        <translation>Ein anderes Programm benutzt die Datei</translation>
    </message>
    <message>
        <source>Its disk reports a fault</source>
        <translation>Der Datenträger meldet einen Fehler</translation>
    </message>
    <message>
        <source>Its name is too long</source>
        <translation>Der Dateiname ist zu lang</translation>
    </message>
    <message>
        <source>What was to be copied is not there any more</source>
        <translation>Die Datei, die kopiert werden sollte, ist nicht mehr vorhanden</translation>
    </message>
    <message>
        <source>Its folder is not there</source>
        <translation>Den Ordner dafür gibt es nicht</translation>
    </message>
    <message>
        <source>Its header can&#x27;t be read</source>
        <translation>Der Dateikopf kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Its tag can&#x27;t be written</source>
        <translation>Das Tag der Datei kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>It is empty</source>
        <translation>Die Datei ist leer</translation>
    </message>
    <message>
        <source>Too little media lies behind its header for the header to grow or shrink</source>
        <translation>Hinter dem Dateikopf liegen zu wenige Mediendaten, als dass er wachsen oder schrumpfen könnte</translation>
    </message>
    <message>
        <source>It consists of several RIFF chunks, which a save in place can&#x27;t change</source>
        <translation>Die Datei besteht aus mehreren RIFF-Blöcken, die sich beim Speichern an Ort und Stelle nicht ändern lassen</translation>
    </message>
    <message>
        <source>There is no file for its tag yet, and a save in place makes none</source>
        <translation>Für das Tag gibt es noch keine Datei, und beim Speichern an Ort und Stelle wird keine angelegt</translation>
    </message>
    <message>
        <source>A copy needs another name or another folder</source>
        <translation>Eine Kopie braucht einen anderen Namen oder einen anderen Ordner</translation>
    </message>
    <message>
        <source>Save as a Copy…</source>
        <translation>Als Kopie speichern …</translation>
    </message>
    <message>
        <source>Save as a Copy</source>
        <translation>Als Kopie speichern</translation>
    </message>
    <message>
        <source>Choose another place, and save the file there with the changes</source>
        <translation>Einen anderen Ort wählen und die Datei dort mit den Änderungen speichern</translation>
    </message>
    <message>
        <source>What the last save did</source>
        <translation>Ergebnis des letzten Speicherns</translation>
    </message>
    <message>
        <source>What the last search found</source>
        <translation>Ergebnis der letzten Suche</translation>
    </message>
    <message>
        <source>Saved &quot;%@&quot;</source>
        <translation>„%@“ gespeichert</translation>
    </message>
    <message>
        <source>Files found: %@</source>
        <translation>Gefundene Dateien: %@</translation>
    </message>
    <message>
        <source>folders that could not be read: %@</source>
        <translation>nicht lesbare Ordner: %@</translation>
    </message>
    <message>
        <source>Looked in:</source>
        <translation>Gesucht in:</translation>
    </message>
    <message>
        <source>%@ (not there)</source>
        <translation>%@ (nicht vorhanden)</translation>
    </message>
    <message>
        <source>&quot;%@&quot; can&#x27;t be written.</source>
        <translation>„%@“ kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>%@ a second</source>
        <translation>%@ pro Sekunde</translation>
    </message>
    <message>
        <source>%@ changed since and left alone</source>
        <translation>%@ inzwischen geändert und nicht angerührt</translation>
    </message>
    <message>
        <source>%@ done</source>
        <translation>%@ erledigt</translation>
    </message>
    <message>
        <source>%@ failed</source>
        <translation>%@ fehlgeschlagen</translation>
    </message>
    <message>
        <source>%@ left</source>
        <translation>noch %@</translation>
    </message>
    <message>
        <source>%@ not reached</source>
        <translation>%@ nicht erreicht</translation>
    </message>
    <message>
        <source>%@ unchanged</source>
        <translation>%@ unverändert</translation>
    </message>
    <message>
        <source>&amp;Artist or cast:</source>
        <translation>&amp;Interpret oder Besetzung:</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>Wä&amp;hlen …</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Genre:</source>
        <translation>&amp;Genre:</translation>
    </message>
    <message>
        <source>&amp;Revert</source>
        <translation>Zurück&amp;setzen</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titel:</translation>
    </message>
    <message>
        <source>&amp;Year:</source>
        <translation>&amp;Jahr:</translation>
    </message>
    <message>
        <source>A&amp;pply</source>
        <translation>An&amp;wenden</translation>
    </message>
    <message>
        <source>Al&amp;bum or director:</source>
        <translation>Alb&amp;um oder Regie:</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>C&amp;over:</source>
        <translation>Tite&amp;lbild:</translation>
    </message>
    <message>
        <source>Cancelled before its turn</source>
        <translation>Abgebrochen, bevor die Datei an der Reihe war</translation>
    </message>
    <message>
        <source>Changed since, left alone</source>
        <translation>Inzwischen geändert, nicht angerührt</translation>
    </message>
    <message>
        <source>Choose a Cover</source>
        <translation>Titelbild wählen</translation>
    </message>
    <message>
        <source>Choose a picture as the cover of the selected files</source>
        <translation>Ein Bild als Titelbild der ausgewählten Dateien wählen</translation>
    </message>
    <message>
        <source>Close the summary</source>
        <translation>Die Zusammenfassung schließen</translation>
    </message>
    <message>
        <source>Copy the current column of the selected rows</source>
        <translation>Die aktuelle Spalte der ausgewählten Zeilen kopieren</translation>
    </message>
    <message>
        <source>Copy the paths of the selected files</source>
        <translation>Die Pfade der ausgewählten Dateien kopieren</translation>
    </message>
    <message>
        <source>Copy the selected rows with the columns that are shown, for a spreadsheet</source>
        <translation>Die ausgewählten Zeilen mit den angezeigten Spalten für eine Tabellenkalkulation kopieren</translation>
    </message>
    <message>
        <source>Do you want to remove files with edits that are not applied?</source>
        <translation>Möchten Sie Dateien entfernen, deren Änderungen nicht angewendet sind?</translation>
    </message>
    <message numerus="yes">
        <source>The edits of %Ln file(s) will be lost.</source>
        <translation>
            <numerusform>Die Änderungen an %Ln Datei gehen verloren.</numerusform>
            <numerusform>Die Änderungen an %Ln Dateien gehen verloren.</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>A file is still being saved in the main window. Try again when that is done.</source>
        <translation>Im Hauptfenster wird noch eine Datei gespeichert. Versuchen Sie es danach noch einmal.</translation>
    </message>
    <message>
        <source>Drop Them</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Drop what was edited in the selected files and not applied</source>
        <translation>Verwerfen, was in den ausgewählten Dateien bearbeitet und nicht angewendet wurde</translation>
    </message>
    <message>
        <source>Edit the text of the current cell</source>
        <translation>Den Text der aktuellen Zelle bearbeiten</translation>
    </message>
    <message>
        <source>Edits in the library table are not applied yet.</source>
        <translation>Änderungen in der Bibliothekstabelle sind noch nicht angewendet.</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Files that were not changed</source>
        <translation>Dateien, die nicht geändert wurden</translation>
    </message>
    <message>
        <source>Give the files of the last apply their old values and names back</source>
        <translation>Den Dateien der letzten Anwendung ihre alten Werte und Namen zurückgeben</translation>
    </message>
    <message>
        <source>Move Column Left</source>
        <translation>Spalte nach links verschieben</translation>
    </message>
    <message>
        <source>Move Column Right</source>
        <translation>Spalte nach rechts verschieben</translation>
    </message>
    <message>
        <source>Open the file in the program&#x27;s main window</source>
        <translation>Die Datei im Hauptfenster des Programms öffnen</translation>
    </message>
    <message>
        <source>Open the folder in which the file is</source>
        <translation>Den Ordner öffnen, in dem die Datei liegt</translation>
    </message>
    <message>
        <source>Put the cells of the clipboard into the table from the current cell on</source>
        <translation>Die Zellen der Zwischenablage ab der aktuellen Zelle in die Tabelle einfügen</translation>
    </message>
    <message>
        <source>Rat&amp;ing:</source>
        <translation>&amp;Freigabe:</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>Entf&amp;ernen</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Grund</translation>
    </message>
    <message>
        <source>Remove the cover from the selected files</source>
        <translation>Das Titelbild aus den ausgewählten Dateien entfernen</translation>
    </message>
    <message>
        <source>Show only the files that have these words in any column; artist:, year:1990-1999, missing:cover and the like look closer</source>
        <translation>Nur Dateien zeigen, die diese Wörter in irgendeiner Spalte haben; mit artist:, year:1990-1999, missing:cover und Ähnlichem wird genauer gesucht</translation>
    </message>
    <message>
        <source>Stop; each file is as it was or as it was to be</source>
        <translation>Anhalten; jede Datei ist, wie sie war oder wie sie werden sollte</translation>
    </message>
    <message>
        <source>Sy&amp;nopsis or comment:</source>
        <translation>I&amp;nhalt oder Kommentar:</translation>
    </message>
    <message>
        <source>Take the selected files off the list; they stay where they are</source>
        <translation>Die ausgewählten Dateien aus der Liste nehmen; sie bleiben, wo sie sind</translation>
    </message>
    <message>
        <source>The album of the selected songs, the director of the selected films</source>
        <translation>Das Album der ausgewählten Lieder, die Regie der ausgewählten Filme</translation>
    </message>
    <message>
        <source>The artist of the selected songs, the cast of the selected films</source>
        <translation>Der Interpret der ausgewählten Lieder, die Besetzung der ausgewählten Filme</translation>
    </message>
    <message>
        <source>The cover of the selected files: drop a picture here, or paste one</source>
        <translation>Das Titelbild der ausgewählten Dateien: ein Bild hierher ziehen oder einfügen</translation>
    </message>
    <message>
        <source>The files that were not changed, and why</source>
        <translation>Die Dateien, die nicht geändert wurden, und warum</translation>
    </message>
    <message>
        <source>The genre: choose one or type your own</source>
        <translation>Das Genre: Wählen Sie eines oder geben Sie ein eigenes ein</translation>
    </message>
    <message>
        <source>The parental rating of the selected films</source>
        <translation>Die Altersfreigabe der ausgewählten Filme</translation>
    </message>
    <message>
        <source>The table could not be exported.</source>
        <translation>Die Tabelle konnte nicht exportiert werden.</translation>
    </message>
    <message>
        <source>The tags are right, the name is the old one: %@</source>
        <translation>Die Tags stimmen, der Name ist der alte: %@</translation>
    </message>
    <message>
        <source>The title of the selected files</source>
        <translation>Der Titel der ausgewählten Dateien</translation>
    </message>
    <message>
        <source>The year of release, of up to four digits</source>
        <translation>Das Erscheinungsjahr, bis zu vier Ziffern</translation>
    </message>
    <message>
        <source>They are lost when the program ends.</source>
        <translation>Sie gehen verloren, wenn das Programm endet.</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>Try the files again that were not changed</source>
        <translation>Die nicht geänderten Dateien noch einmal versuchen</translation>
    </message>
    <message>
        <source>Type what is to be shown</source>
        <translation>Eingeben, was gezeigt werden soll</translation>
    </message>
    <message>
        <source>Undo Apply</source>
        <translation>Anwenden rückgängig machen</translation>
    </message>
    <message>
        <source>What the selected films are about, or a comment on the songs</source>
        <translation>Wovon die ausgewählten Filme handeln, oder ein Kommentar zu den Liedern</translation>
    </message>
    <message>
        <source>Words, artist:name, year:1990-1999, missing:cover</source>
        <translation>Wörter, artist:Name, year:1990-1999, missing:cover</translation>
    </message>
    <message>
        <source>Write the rows and columns that are shown into a file, as CSV or JSON</source>
        <translation>Die angezeigten Zeilen und Spalten als CSV oder JSON in eine Datei schreiben</translation>
    </message>
    <message>
        <source>Write what was edited into the files</source>
        <translation>Die Änderungen in die Dateien schreiben</translation>
    </message>
    <message>
        <source>Writing…</source>
        <translation>Wird geschrieben …</translation>
    </message>
    <message>
        <source>several covers</source>
        <translation>verschiedene Titelbilder</translation>
    </message>
    <message>
        <source>several values</source>
        <translation>verschiedene Werte</translation>
    </message>
    <message>
        <source>%@ files</source>
        <translation>%@ Dateien</translation>
    </message>
    <message>
        <source>Name&amp;s</source>
        <translation>Na&amp;men</translation>
    </message>
    <message>
        <source>Ro&amp;w</source>
        <translation>&amp;Zeile</translation>
    </message>
    <message>
        <source>Fi&amp;lter:</source>
        <translation>Filte&amp;r:</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Anwenden</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Exportieren …</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>&amp;Undo Apply</source>
        <translation>Anwenden &amp;rückgängig machen</translation>
    </message>
    <message>
        <source>&amp;Edit Cell</source>
        <translation>Zelle &amp;bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Copy Rows</source>
        <translation>Zeilen &amp;kopieren</translation>
    </message>
    <message>
        <source>Copy Co&amp;lumn</source>
        <translation>S&amp;palte kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste Cells</source>
        <translation>Zellen &amp;einfügen</translation>
    </message>
    <message>
        <source>&amp;Filter</source>
        <translation>&amp;Filter</translation>
    </message>
    <message>
        <source>&amp;Sort By</source>
        <translation>&amp;Sortieren nach</translation>
    </message>
    <message>
        <source>&amp;Then By</source>
        <translation>&amp;Dann nach</translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation>S&amp;palten</translation>
    </message>
    <message>
        <source>&amp;Open in Editor</source>
        <translation>Im &amp;Editor öffnen</translation>
    </message>
    <message>
        <source>&amp;Show in Folder</source>
        <translation>Im &amp;Ordner anzeigen</translation>
    </message>
    <message>
        <source>&amp;Copy Path</source>
        <translation>&amp;Pfad kopieren</translation>
    </message>
    <message>
        <source>&amp;Remove from List</source>
        <translation>Aus der &amp;Liste entfernen</translation>
    </message>
    <message>
        <source>The listed files and what their tags say</source>
        <translation>Die Dateien der Liste und was in ihren Tags steht</translation>
    </message>
    <message>
        <source>Locate File…</source>
        <translation>Datei suchen …</translation>
    </message>
    <message>
        <source>Show where the file is now: it is opened there with your edits, which are not saved yet</source>
        <translation>Zeigen, wo die Datei jetzt liegt: Sie wird dort mit Ihren Änderungen geöffnet, die noch nicht gespeichert sind</translation>
    </message>
    <message>
        <source>Locate &quot;%@&quot;</source>
        <translation>„%@“ suchen</translation>
    </message>
    <message>
        <source>Cells that can't take what was pasted: %@</source>
        <translation>Zellen, die das Eingefügte nicht aufnehmen können: %@</translation>
    </message>
</context>
<context>
    <name>MyDocument</name>
    <message>
        <source>&amp;Paste and Store Cover</source>
        <translation>Titelbild ein&amp;fügen und übernehmen</translation>
    </message>
    <message>
        <source>Make the image that was copied the cover, which a save writes</source>
        <translation>Das kopierte Bild zum Titelbild machen, das ein Speichern schreibt</translation>
    </message>
    <message>
        <source>&amp;Trim Border</source>
        <translation>&amp;Rand abschneiden</translation>
    </message>
    <message>
        <source>Trim a border of one colour off the cover art</source>
        <translation>Einen einfarbigen Rand vom Titelbild abschneiden</translation>
    </message>
    <message>
        <source>&amp;Delete Cover</source>
        <translation>Titelbild l&amp;öschen</translation>
    </message>
    <message>
        <source>Take the cover away, which a save with portable tags writes</source>
        <translation>Das Titelbild löschen, was beim Speichern mit portablen Tags geschrieben wird</translation>
    </message>
    <message>
        <source>Delete &amp;All Tags from File…</source>
        <translation>&amp;Alle Tags aus der Datei löschen …</translation>
    </message>
    <message>
        <source>Delete every tag of the file, for all programs</source>
        <translation>Alle Tags der Datei löschen, für alle Programme</translation>
    </message>
    <message>
        <source>&amp;Add Files…</source>
        <translation>Dateien hinz&amp;ufügen …</translation>
    </message>
    <message>
        <source>Add F&amp;older…</source>
        <translation>&amp;Ordner hinzufügen …</translation>
    </message>
    <message>
        <source>&amp;Revert</source>
        <translation>&amp;Zurücksetzen</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Find in List</source>
        <translation>In der Liste &amp;suchen</translation>
    </message>
    <message>
        <source>&amp;Load Cover Art…</source>
        <translation>Titelbild &amp;laden …</translation>
    </message>
    <message>
        <source>Look &amp;Up on the Web</source>
        <translation>Im &amp;Web nachschlagen</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>Sort by &amp;Name</source>
        <translation>Nach &amp;Name sortieren</translation>
    </message>
    <message>
        <source>Sort by &amp;Size</source>
        <translation>Nach &amp;Größe sortieren</translation>
    </message>
    <message>
        <source>Sort by &amp;Date</source>
        <translation>Nach &amp;Datum sortieren</translation>
    </message>
    <message>
        <source>&amp;Portable Tags</source>
        <translation>&amp;Portable Tags</translation>
    </message>
    <message>
        <source>Open and save with the tags that other programs read</source>
        <translation>Mit den Tags öffnen und speichern, die andere Programme lesen</translation>
    </message>
    <message>
        <source>Restore Unsaved &amp;Edits</source>
        <translation>Nicht gespeicherte Ä&amp;nderungen wiederherstellen</translation>
    </message>
    <message>
        <source>Open the file again whose edits could not be saved, and put them back</source>
        <translation>Die Datei, deren Änderungen nicht gespeichert werden konnten, wieder öffnen und die Änderungen wieder eintragen</translation>
    </message>
    <message>
        <source>&amp;Library Table</source>
        <translation>&amp;Bibliothekstabelle</translation>
    </message>
    <message>
        <source>Show all files of the list with their tags, and edit many at once</source>
        <translation>Alle Dateien der Liste mit ihren Tags zeigen und viele auf einmal bearbeiten</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>&amp;User Guide</source>
        <translation>&amp;Handbuch</translation>
    </message>
    <message>
        <source>&amp;Keyboard</source>
        <translation>&amp;Tastenkürzel</translation>
    </message>
    <message>
        <source>&amp;About Velmora</source>
        <translation>Ü&amp;ber Velmora</translation>
    </message>
    <message>
        <source>&amp;Remember This Layout</source>
        <translation>Dieses &amp;Layout merken</translation>
    </message>
    <message>
        <source>Start with this size, division, column widths and sorting from now on</source>
        <translation>Künftig mit dieser Größe, Aufteilung, Spaltenbreite und Sortierung starten</translation>
    </message>
    <message>
        <source>&amp;Forget Everything</source>
        <translation>&amp;Alles vergessen</translation>
    </message>
    <message>
        <source>Remove the settings file, with the layout and the choice of portable tags</source>
        <translation>Die Einstellungsdatei mit dem Layout und der Wahl portabler Tags löschen</translation>
    </message>
</context>
<context>
    <name>MediaList</name>
    <message>
        <source>&amp;Add Files…</source>
        <translation>Dateien hinz&amp;ufügen …</translation>
    </message>
    <message>
        <source>Add files to the list</source>
        <translation>Dateien zur Liste hinzufügen</translation>
    </message>
    <message>
        <source>Add F&amp;older…</source>
        <translation>&amp;Ordner hinzufügen …</translation>
    </message>
    <message>
        <source>Search a folder for media files</source>
        <translation>Einen Ordner nach Mediendateien durchsuchen</translation>
    </message>
    <message>
        <source>Turns while folders are searched</source>
        <translation>Dreht sich, während Ordner durchsucht werden</translation>
    </message>
    <message>
        <source>Search in progress</source>
        <translation>Suche läuft</translation>
    </message>
    <message>
        <source>The folder that is being searched</source>
        <translation>Der Ordner, der gerade durchsucht wird</translation>
    </message>
    <message>
        <source>Sto&amp;p</source>
        <translation>Sto&amp;pp</translation>
    </message>
    <message>
        <source>Stop the search</source>
        <translation>Die Suche anhalten</translation>
    </message>
    <message>
        <source>The media files found; type a name to find one</source>
        <translation>Die gefundenen Mediendateien; tippen Sie einen Namen, um eine zu finden</translation>
    </message>
    <message>
        <source>Media files</source>
        <translation>Mediendateien</translation>
    </message>
</context>
<context>
    <name>TagForm</name>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titel:</translation>
    </message>
    <message>
        <source>The title of the film or song</source>
        <translation>Der Titel des Films oder Lieds</translation>
    </message>
    <message>
        <source>&amp;Year:</source>
        <translation>&amp;Jahr:</translation>
    </message>
    <message>
        <source>The year of release</source>
        <translation>Das Erscheinungsjahr</translation>
    </message>
    <message>
        <source>Artist:</source>
        <translation>Interpret:</translation>
    </message>
    <message>
        <source>The artist of a song, the cast of a film</source>
        <translation>Der Interpret eines Lieds, die Besetzung eines Films</translation>
    </message>
    <message>
        <source>&amp;Genre:</source>
        <translation>&amp;Genre:</translation>
    </message>
    <message>
        <source>The genre: choose one or type your own</source>
        <translation>Das Genre: Wählen Sie eines oder geben Sie ein eigenes ein</translation>
    </message>
    <message>
        <source>Album:</source>
        <translation>Album:</translation>
    </message>
    <message>
        <source>The album of a song, the director of a film</source>
        <translation>Das Album eines Lieds, die Regie eines Films</translation>
    </message>
    <message>
        <source>Rat&amp;ing:</source>
        <translation>&amp;Freigabe:</translation>
    </message>
    <message>
        <source>The parental rating of a film</source>
        <translation>Die Altersfreigabe eines Films</translation>
    </message>
    <message>
        <source>Sy&amp;nopsis:</source>
        <translation>I&amp;nhalt:</translation>
    </message>
    <message>
        <source>What the film is about</source>
        <translation>Wovon der Film handelt</translation>
    </message>
    <message>
        <source>&amp;Date:</source>
        <translation>Datu&amp;m:</translation>
    </message>
    <message>
        <source>The date, for information: it is not written into the file</source>
        <translation>Das Datum, nur zur Information: Es wird nicht in die Datei geschrieben</translation>
    </message>
    <message>
        <source>&amp;Cover Art:</source>
        <translation>T&amp;itelbild:</translation>
    </message>
    <message>
        <source>The cover art; drop an image here</source>
        <translation>Das Titelbild; legen Sie ein Bild hier ab</translation>
    </message>
    <message>
        <source>&amp;Load…</source>
        <translation>&amp;Laden …</translation>
    </message>
    <message>
        <source>Load cover art from an image file</source>
        <translation>Das Titelbild aus einer Bilddatei laden</translation>
    </message>
    <message>
        <source>Tri&amp;m</source>
        <translation>Bes&amp;chneiden</translation>
    </message>
    <message>
        <source>Trim a border of one colour off the cover art</source>
        <translation>Einen einfarbigen Rand vom Titelbild abschneiden</translation>
    </message>
    <message>
        <source>Remo&amp;ve Tag</source>
        <translation>Tag &amp;verwerfen</translation>
    </message>
    <message>
        <source>Forget the changes without writing them</source>
        <translation>Die Änderungen vergessen, ohne sie zu schreiben</translation>
    </message>
    <message>
        <source>&amp;Revert</source>
        <translation>&amp;Zurücksetzen</translation>
    </message>
    <message>
        <source>Read the file again and drop the changes</source>
        <translation>Die Datei neu lesen und die Änderungen verwerfen</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Write the changes into the file (Ctrl+S)</source>
        <translation>Die Änderungen in die Datei schreiben (Strg+S)</translation>
    </message>
    <message>
        <source>for information only</source>
        <translation>nur zur Info</translation>
    </message>
</context>
<context>
    <name>MoviePreview</name>
    <message>
        <source>Preview:</source>
        <translation>Vorschau:</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>A preview of the file</source>
        <translation>Eine Vorschau der Datei</translation>
    </message>
    <message>
        <source>This file can’t be previewed.</source>
        <translation>Für diese Datei gibt es keine Vorschau.</translation>
    </message>
    <message>
        <source>Ta&amp;ke Frame</source>
        <translation>&amp;Einzelbild nehmen</translation>
    </message>
    <message>
        <source>Take the frame shown as cover art</source>
        <translation>Das gezeigte Einzelbild als Titelbild verwenden</translation>
    </message>
</context>
<context>
    <name>TagWebBrowser</name>
    <message>
        <source>Look &amp;up:</source>
        <translation>Im &amp;Web:</translation>
    </message>
    <message>
        <source>The site to search</source>
        <translation>Die Website, auf der gesucht wird</translation>
    </message>
    <message>
        <source>The text to search for</source>
        <translation>Der gesuchte Text</translation>
    </message>
    <message>
        <source>Searc&amp;h</source>
        <translation>Suc&amp;hen</translation>
    </message>
    <message>
        <source>Search the site for the text</source>
        <translation>Auf der Website nach dem Text suchen</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>Zurüc&amp;k</translation>
    </message>
    <message>
        <source>Go back to the page before</source>
        <translation>Zur vorigen Seite zurückgehen</translation>
    </message>
    <message>
        <source>Turns while a page loads</source>
        <translation>Dreht sich, während eine Seite geladen wird</translation>
    </message>
    <message>
        <source>Page loading</source>
        <translation>Seite wird geladen</translation>
    </message>
    <message>
        <source>Fill Form</source>
        <translation>Formular ausfüllen</translation>
    </message>
    <message>
        <source>Fill the form from the page shown</source>
        <translation>Das Formular aus der gezeigten Seite ausfüllen</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Adresse:</translation>
    </message>
    <message>
        <source>The address of the page shown</source>
        <translation>Die Adresse der gezeigten Seite</translation>
    </message>
    <message>
        <source>Address of the page</source>
        <translation>Adresse der Seite</translation>
    </message>
    <message>
        <source>What the form fill waits for</source>
        <translation>Worauf das Ausfüllen des Formulars wartet</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Fill the form without the cover (Esc)</source>
        <translation>Das Formular ohne das Titelbild ausfüllen (Esc)</translation>
    </message>
    <message>
        <source>The page</source>
        <translation>Die Seite</translation>
    </message>
    <message>
        <source>Web page</source>
        <translation>Webseite</translation>
    </message>
    <message>
        <source>The page could not be loaded.</source>
        <translation>Die Seite konnte nicht geladen werden.</translation>
    </message>
    <message>
        <source>Site:</source>
        <translation>Website:</translation>
    </message>
</context>
</TS>
