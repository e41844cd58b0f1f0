<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en">
<context>
    <name>Velmora</name>
    <message>
        <source>&quot;%@&quot; keeps its tags.</source>
        <translation>“%@” conserva i suoi tag.</translation>
    </message>
    <message>
        <source>%@ (not there)</source>
        <translation>%@ (non esiste)</translation>
    </message>
    <message>
        <source>A copy needs another name or another folder</source>
        <translation>Una copia richiede un altro nome o un’altra cartella</translation>
    </message>
    <message>
        <source>All tags of &quot;%@&quot; are deleted.</source>
        <translation>Tutti i tag di “%@” sono stati eliminati.</translation>
    </message>
    <message>
        <source>Choose another place, and save the file there with the changes</source>
        <translation>Scegli un’altra posizione e salva lì il file con le modifiche</translation>
    </message>
    <message>
        <source>Delete All Tags</source>
        <translation>Elimina tutti i tag</translation>
    </message>
    <message>
        <source>Deleted all tags of &quot;%@&quot;</source>
        <translation>Eliminati tutti i tag di “%@”</translation>
    </message>
    <message>
        <source>Do you want to delete all tags from &quot;%@&quot;?</source>
        <translation>Eliminare tutti i tag da “%@”?</translation>
    </message>
    <message>
        <source>Files found: %@</source>
        <translation>File trovati: %@</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informazione</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avviso</translation>
    </message>
    <message>
        <source>It consists of several RIFF chunks, which a save in place can&#x27;t change</source>
        <translation>È composto da più blocchi RIFF, che un salvataggio sul posto non può modificare</translation>
    </message>
    <message>
        <source>It is empty</source>
        <translation>È vuoto</translation>
    </message>
    <message>
        <source>It is not there any more</source>
        <translation>Non c’è più</translation>
    </message>
    <message>
        <source>You have no permission for that</source>
        <translation>Non se ne dispone del permesso</translation>
    </message>
    <message>
        <source>You have no permission to put a new file into its folder</source>
        <translation>Non si dispone del permesso di scrivere nella sua cartella</translation>
    </message>
    <message>
        <source>Another program is using it</source>
        <translation>Un altro programma lo sta usando</translation>
    </message>
    <message>
        <source>Its disk reports a fault</source>
        <translation>Il suo disco segnala un errore</translation>
    </message>
    <message>
        <source>Its name is too long</source>
        <translation>Il suo nome è troppo lungo</translation>
    </message>
    <message>
        <source>What was to be copied is not there any more</source>
        <translation>Il file da copiare non c’è più</translation>
    </message>
    <message>
        <source>Its folder is not there</source>
        <translation>La sua cartella non esiste</translation>
    </message>
    <message>
        <source>It lies on a disk that can only be read</source>
        <translation>Si trova su un disco di sola lettura</translation>
    </message>
    <message>
        <source>It would become too large</source>
        <translation>Diventerebbe troppo grande</translation>
    </message>
    <message>
        <source>Its header can&#x27;t be read</source>
        <translation>La sua intestazione non può essere letta</translation>
    </message>
    <message>
        <source>Its tag can&#x27;t be written</source>
        <translation>Il suo tag non può essere scritto</translation>
    </message>
    <message>
        <source>Looked in:</source>
        <translation>Cercato in:</translation>
    </message>
    <message>
        <source>No file is open</source>
        <translation>Nessun file aperto</translation>
    </message>
    <message>
        <source>No file is open: what is typed here goes nowhere</source>
        <translation>Nessun file aperto: ciò che si scrive qui va perso</translation>
    </message>
    <message>
        <source>No space is left on its disk</source>
        <translation>Non c’è più spazio sul suo disco</translation>
    </message>
    <message>
        <source>Not stored in files of this kind</source>
        <translation>Non si salva in file di questo tipo</translation>
    </message>
    <message>
        <source>Save as a Copy</source>
        <translation>Salva una copia</translation>
    </message>
    <message>
        <source>Save as a Copy…</source>
        <translation>Salva una copia…</translation>
    </message>
    <message>
        <source>Saved &quot;%@&quot;</source>
        <translation>“%@” salvato</translation>
    </message>
    <message>
        <source>Store Cover</source>
        <translation>Usa la copertina</translation>
    </message>
    <message>
        <source>Store Filled Fields</source>
        <translation>Usa i campi compilati</translation>
    </message>
    <message>
        <source>Take all filled fields for changes, which a save writes</source>
        <translation>Considera tutti i campi compilati come modifiche, scritte dal salvataggio</translation>
    </message>
    <message>
        <source>Take the cover for a change, which a save writes</source>
        <translation>Considera la copertina come una modifica, scritta dal salvataggio</translation>
    </message>
    <message>
        <source>The cover is cut from the form only, and stays in the file.</source>
        <translation>La copertina è stata tagliata solo dal modulo e resta nel file.</translation>
    </message>
    <message>
        <source>The cover is deleted here. A save in place leaves it in the file.</source>
        <translation>La copertina è stata eliminata qui. Un salvataggio sul posto la lascia nel file.</translation>
    </message>
    <message>
        <source>The cover was taken from folder.jpg, which counts as a change: a save writes it into the file.</source>
        <translation>La copertina proviene da folder.jpg e conta quindi come modifica: il salvataggio la scrive nel file.</translation>
    </message>
    <message>
        <source>The filled fields count as changes now: a save writes them.</source>
        <translation>I campi compilati contano ora come modifiche: il salvataggio li scrive.</translation>
    </message>
    <message>
        <source>The pasted cover is shown only: a save does not write it.</source>
        <translation>La copertina incollata viene solo mostrata: il salvataggio non la scrive.</translation>
    </message>
    <message>
        <source>There is no file for its tag yet, and a save in place makes none</source>
        <translation>Non c’è ancora un file per il suo tag, e un salvataggio sul posto non lo crea</translation>
    </message>
    <message>
        <source>This is no number, and is stored as no year</source>
        <translation>Non è un numero: non si salva alcun anno</translation>
    </message>
    <message>
        <source>Too little media lies behind its header for the header to grow or shrink</source>
        <translation>Dietro la sua intestazione ci sono troppo pochi dati multimediali perché questa possa cambiare dimensione</translation>
    </message>
    <message>
        <source>What other programs read goes, too, and so do the changes that you have made here. This can&#x27;t be undone.</source>
        <translation>Va perso anche ciò che leggono gli altri programmi, come pure le modifiche fatte qui. L’operazione non può essere annullata.</translation>
    </message>
    <message>
        <source>What the last save did</source>
        <translation>Risultato dell’ultimo salvataggio</translation>
    </message>
    <message>
        <source>What the last search found</source>
        <translation>Risultato dell’ultima ricerca</translation>
    </message>
    <message>
        <source>What was filled in from the web is not stored yet: a save writes only the fields that were typed in.</source>
        <translation>Ciò che è stato compilato dal web non conta ancora come modifica: il salvataggio scrive solo i campi in cui si è digitato.</translation>
    </message>
    <message>
        <source>You have no permission to write to it</source>
        <translation>Non si dispone del permesso di scriverci</translation>
    </message>
    <message>
        <source>folders that could not be read: %@</source>
        <translation>cartelle non leggibili: %@</translation>
    </message>
    <message>
        <source>open in the form</source>
        <translation>aperto nel modulo</translation>
    </message>
    <message>
        <source>Unable to open file &quot;%@&quot;.</source>
        <translation>Impossibile aprire il file “%@”.</translation>
    </message>
    <message>
        <source>KORVANE Velmora</source>
        <translation>KORVANE Velmora</translation>
    </message>
    <message>
        <source>Velmora can only open local files.</source>
        <translation>Velmora può aprire solo file locali.</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>Il file non esiste.</translation>
    </message>
    <message>
        <source>&quot;%@&quot; was not added.</source>
        <translation>“%@” non è stato aggiunto.</translation>
    </message>
    <message>
        <source>Files that could not be added: %@</source>
        <translation>File che non è stato possibile aggiungere: %@</translation>
    </message>
    <message>
        <source>Please ensure the file is readable and is a valid media file.</source>
        <translation>Verificare che il file sia leggibile e che sia un file multimediale valido.</translation>
    </message>
    <message>
        <source>Do you want to save the changes you made?</source>
        <translation>Salvare le modifiche apportate?</translation>
    </message>
    <message>
        <source>Your changes to &quot;%@&quot; will be lost if you don&#x27;t save them.</source>
        <translation>Le modifiche a “%@” andranno perse se non vengono salvate.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>%@.</source>
        <translation>%@.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Don&#x27;t Save</source>
        <translation>Non salvare</translation>
    </message>
    <message>
        <source>Add Files</source>
        <translation>Aggiungi file</translation>
    </message>
    <message>
        <source>Add Folders</source>
        <translation>Aggiungi cartelle</translation>
    </message>
    <message>
        <source>Load Cover Art</source>
        <translation>Carica copertina</translation>
    </message>
    <message>
        <source>Search Done.</source>
        <translation>Ricerca terminata.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Azione</translation>
    </message>
    <message>
        <source>Adults Only</source>
        <translation>Solo adulti</translation>
    </message>
    <message>
        <source>Animated</source>
        <translation>Animazione</translation>
    </message>
    <message>
        <source>Art</source>
        <translation>Arte</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Automobili</translation>
    </message>
    <message>
        <source>Business / Financial</source>
        <translation>Affari / Finanza</translation>
    </message>
    <message>
        <source>Children</source>
        <translation>Bambini</translation>
    </message>
    <message>
        <source>Comedy</source>
        <translation>Commedia</translation>
    </message>
    <message>
        <source>Consumer</source>
        <translation>Consumatori</translation>
    </message>
    <message>
        <source>Cooking</source>
        <translation>Cucina</translation>
    </message>
    <message>
        <source>Crime</source>
        <translation>Poliziesco</translation>
    </message>
    <message>
        <source>Documentary</source>
        <translation>Documentario</translation>
    </message>
    <message>
        <source>Drama</source>
        <translation>Drammatico</translation>
    </message>
    <message>
        <source>Educational</source>
        <translation>Educativo</translation>
    </message>
    <message>
        <source>Game Show</source>
        <translation>Gioco a premi</translation>
    </message>
    <message>
        <source>Gay / Lesbian</source>
        <translation>Gay / Lesbico</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Salute</translation>
    </message>
    <message>
        <source>Holiday</source>
        <translation>Festività</translation>
    </message>
    <message>
        <source>House / Garden</source>
        <translation>Casa / Giardino</translation>
    </message>
    <message>
        <source>Mystery</source>
        <translation>Giallo</translation>
    </message>
    <message>
        <source>Nature</source>
        <translation>Natura</translation>
    </message>
    <message>
        <source>News</source>
        <translation>Notizie</translation>
    </message>
    <message>
        <source>Performing Arts</source>
        <translation>Arti dello spettacolo</translation>
    </message>
    <message>
        <source>Reality</source>
        <translation>Reality</translation>
    </message>
    <message>
        <source>Romance</source>
        <translation>Sentimentale</translation>
    </message>
    <message>
        <source>Science Fiction</source>
        <translation>Fantascienza</translation>
    </message>
    <message>
        <source>Self Improvement</source>
        <translation>Crescita personale</translation>
    </message>
    <message>
        <source>Soap</source>
        <translation>Soap opera</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Spagnolo</translation>
    </message>
    <message>
        <source>Special</source>
        <translation>Speciale</translation>
    </message>
    <message>
        <source>Sports</source>
        <translation>Sport</translation>
    </message>
    <message>
        <source>Talk</source>
        <translation>Talk show</translation>
    </message>
    <message>
        <source>Travel</source>
        <translation>Viaggi</translation>
    </message>
    <message>
        <source>Western</source>
        <translation>Western</translation>
    </message>
    <message>
        <source>Artist:</source>
        <translation>Artista:</translation>
    </message>
    <message>
        <source>Album:</source>
        <translation>Album:</translation>
    </message>
    <message>
        <source>Cast:</source>
        <translation>Cast:</translation>
    </message>
    <message>
        <source>Director:</source>
        <translation>Regia:</translation>
    </message>
    <message>
        <source>Cover art</source>
        <translation>Copertina</translation>
    </message>
    <message>
        <source>Cover art: drop an image here to store it</source>
        <translation>Copertina: trascina qui un’immagine per usarla</translation>
    </message>
    <message>
        <source>too large to show</source>
        <translation>troppo grande per essere mostrata</translation>
    </message>
    <message>
        <source>Drop an image here</source>
        <translation>Trascina qui un’immagine</translation>
    </message>
    <message>
        <source>Unable to write tags to file &quot;%@&quot;.</source>
        <translation>Impossibile scrivere i tag nel file “%@”.</translation>
    </message>
    <message>
        <source>Be sure you have permissions to write to the file, and that it is a valid media file.</source>
        <translation>Verificare di avere il permesso di scrivere nel file e che sia un file multimediale valido.</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Anteprima</translation>
    </message>
    <message>
        <source>Preview picture</source>
        <translation>Immagine dell’anteprima</translation>
    </message>
    <message>
        <source>Preview of the selected file</source>
        <translation>Anteprima del file selezionato</translation>
    </message>
    <message>
        <source>Play or pause the preview</source>
        <translation>Riproduci o metti in pausa l’anteprima</translation>
    </message>
    <message>
        <source>Position in the preview</source>
        <translation>Posizione nell’anteprima</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Taglia</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copia</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Incolla</translation>
    </message>
    <message>
        <source>Search a site to see its pages here</source>
        <translation>Cerca in un sito per vederne qui le pagine</translation>
    </message>
    <message>
        <source>The web browser component is not installed.</source>
        <translation>Il componente del browser web non è installato.</translation>
    </message>
    <message>
        <source>Waiting for the cover …</source>
        <translation>In attesa della copertina…</translation>
    </message>
    <message>
        <source>Waiting for the cover from %1 …</source>
        <translation>In attesa della copertina da %1…</translation>
    </message>
    <message>
        <source>Web pages are not shown when the program is run by the system administrator.</source>
        <translation>Le pagine web non vengono mostrate quando il programma è eseguito dall’amministratore di sistema.</translation>
    </message>
    <message>
        <source>Looking for films and music…</source>
        <translation>Ricerca di film e musica…</translation>
    </message>
    <message>
        <source>No media files yet. Add files, or a folder to search, with the buttons above.</source>
        <translation>Ancora nessun file multimediale. Aggiungi dei file, o una cartella in cui cercare, con i pulsanti qui sopra.</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Cancella</translation>
    </message>
    <message>
        <source>Clear the field</source>
        <translation>Cancella il campo</translation>
    </message>
    <message>
        <source>Parts of the window</source>
        <translation>Parti della finestra</translation>
    </message>
    <message>
        <source>Divider</source>
        <translation>Divisore</translation>
    </message>
    <message>
        <source>Gives the parts of the window more or less room</source>
        <translation>Dà più o meno spazio alle parti della finestra</translation>
    </message>
    <message>
        <source>No cover art; drop an image here</source>
        <translation>Nessuna copertina; trascina qui un’immagine</translation>
    </message>
    <message>
        <source>An image of %@ pixels</source>
        <translation>Un’immagine di %@ pixel</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Riproduci</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Immagine</translation>
    </message>
    <message>
        <source>Song</source>
        <translation>Brano</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>Other file</source>
        <translation>Altro file</translation>
    </message>
    <message>
        <source>Alt+J</source>
        <translation>Alt+J</translation>
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
        <translation>Alt+K</translation>
    </message>
    <message>
        <source>Usage: velmora [FILE|FOLDER]...</source>
        <translation>Uso: velmora [FILE|CARTELLA]...</translation>
    </message>
    <message>
        <source>Edits titles, artists, covers and more of films and music.</source>
        <translation>Modifica titoli, artisti, copertine e altro di film e musica.</translation>
    </message>
    <message>
        <source>  FILE       is listed; a single one is opened</source>
        <translation>  FILE       viene aggiunto all’elenco; se è uno solo viene aperto</translation>
    </message>
    <message>
        <source>  FOLDER     is searched for films and music</source>
        <translation>  CARTELLA   viene esaminata alla ricerca di film e musica</translation>
    </message>
    <message>
        <source>  --help     prints this and ends</source>
        <translation>  --help     mostra questo testo ed esce</translation>
    </message>
    <message>
        <source>  --version  prints the version and ends</source>
        <translation>  --version  mostra la versione ed esce</translation>
    </message>
    <message>
        <source>velmora: unknown option %@; --help tells the others</source>
        <translation>velmora: opzione sconosciuta %@; --help elenca quelle valide</translation>
    </message>
    <message>
        <source>Files of this kind carry no tag</source>
        <translation>I file di questo tipo non contengono tag</translation>
    </message>
    <message>
        <source>Files of this kind have no such field</source>
        <translation>I file di questo tipo non hanno questo campo</translation>
    </message>
    <message>
        <source>The file is damaged</source>
        <translation>Il file è danneggiato</translation>
    </message>
    <message>
        <source>The file is of a sort that can&#x27;t be saved safely</source>
        <translation>Questo genere di file non può essere salvato in modo sicuro</translation>
    </message>
    <message>
        <source>Something is too large for this kind of file</source>
        <translation>Qualcosa è troppo grande per questo tipo di file</translation>
    </message>
    <message>
        <source>It is no ordinary file</source>
        <translation>Non è un file normale</translation>
    </message>
    <message>
        <source>The file is write-protected</source>
        <translation>Il file è protetto da scrittura</translation>
    </message>
    <message>
        <source>The file has further hard links, which would keep the old contents</source>
        <translation>Il file ha altri collegamenti fisici, che manterrebbero il vecchio contenuto</translation>
    </message>
    <message>
        <source>Another program changed the file meanwhile</source>
        <translation>Nel frattempo un altro programma ha modificato il file</translation>
    </message>
    <message>
        <source>No space is left for the new file</source>
        <translation>Non c’è più spazio per il nuovo file</translation>
    </message>
    <message>
        <source>The new file would have lost something</source>
        <translation>Il nuovo file avrebbe perso qualcosa</translation>
    </message>
    <message>
        <source>The system could not confirm that the folder is on the disk</source>
        <translation>Il sistema non ha potuto confermare che la cartella sia sul disco</translation>
    </message>
    <message>
        <source>The save was cancelled</source>
        <translation>Il salvataggio è stato annullato</translation>
    </message>
    <message>
        <source>The file&#x27;s old contents can&#x27;t be kept for an undo: %@</source>
        <translation>Il vecchio contenuto del file non può essere conservato in vista di un annullamento: %@</translation>
    </message>
    <message>
        <source>Its tag can&#x27;t be changed in place</source>
        <translation>Il suo tag non può essere modificato sul posto</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Close this notice</source>
        <translation>Chiudi questo avviso</translation>
    </message>
    <message>
        <source>Saving &quot;%@&quot;…</source>
        <translation>Salvataggio di “%@”…</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <source>Leave the file as it was</source>
        <translation>Lascia il file com’era</translation>
    </message>
    <message>
        <source>The portable tags of &quot;%@&quot; can&#x27;t be read.</source>
        <translation>I tag portabili di “%@” non possono essere letti.</translation>
    </message>
    <message>
        <source>Other programs see more in this file</source>
        <translation>Altri programmi vedono di più in questo file</translation>
    </message>
    <message>
        <source>Show It</source>
        <translation>Mostra</translation>
    </message>
    <message>
        <source>Switch to the tags that other programs read</source>
        <translation>Passa ai tag che leggono gli altri programmi</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>Sempre</translation>
    </message>
    <message>
        <source>Switch to these tags, now and at each start</source>
        <translation>Passa a questi tag, ora e a ogni avvio</translation>
    </message>
    <message>
        <source>&quot;%@&quot; was not saved.</source>
        <translation>“%@” non è stato salvato.</translation>
    </message>
    <message>
        <source>&quot;%@&quot; was saved, but not all of it can be read back.</source>
        <translation>“%@” è stato salvato, ma non tutto può essere riletto.</translation>
    </message>
    <message>
        <source>Save With Portable Tags</source>
        <translation>Salva con tag portabili</translation>
    </message>
    <message>
        <source>Write the changes into the tags that other programs read, and replace the file in one step</source>
        <translation>Scrivi le modifiche nei tag che leggono gli altri programmi e sostituisci il file in un solo passaggio</translation>
    </message>
    <message>
        <source>Save so, and do so from now on, also after the next start</source>
        <translation>Salva così, d’ora in poi e anche dopo il prossimo avvio</translation>
    </message>
    <message>
        <source>Saved. Other programs see it: %@</source>
        <translation>Salvato. Gli altri programmi lo vedono: %@</translation>
    </message>
    <message>
        <source>Saved. Other programs read no tag in files of this kind: %@</source>
        <translation>Salvato. Gli altri programmi non leggono tag in file di questo tipo: %@</translation>
    </message>
    <message>
        <source>Replace Anyway</source>
        <translation>Sostituisci comunque</translation>
    </message>
    <message>
        <source>The other links keep the old contents</source>
        <translation>Gli altri collegamenti mantengono il vecchio contenuto</translation>
    </message>
    <message>
        <source>&quot;%@&quot; was not saved; its edits are kept.</source>
        <translation>“%@” non è stato salvato; le sue modifiche sono conservate.</translation>
    </message>
    <message>
        <source>Restore Unsaved Edits</source>
        <translation>Recupera le modifiche non salvate</translation>
    </message>
    <message>
        <source>Open the file again whose edits could not be saved, and put them back</source>
        <translation>Riapri il file le cui modifiche non è stato possibile salvare e ripristinale</translation>
    </message>
    <message>
        <source>The edits of &quot;%@&quot; are back, and not saved yet.</source>
        <translation>Le modifiche di “%@” sono state recuperate e non sono ancora salvate.</translation>
    </message>
    <message>
        <source>A percent sign stands alone. Write %% for a percent sign.</source>
        <translation>C’è un segno di percentuale isolato. Scrivere %% per un segno di percentuale.</translation>
    </message>
    <message>
        <source>There is no field &quot;%@&quot;.</source>
        <translation>Non esiste un campo “%@”.</translation>
    </message>
    <message>
        <source>The name does not fit the pattern</source>
        <translation>Il nome non corrisponde al modello</translation>
    </message>
    <message>
        <source>Files of this kind have no such field: %@</source>
        <translation>I file di questo tipo non hanno questo campo: %@</translation>
    </message>
    <message>
        <source>It says so already</source>
        <translation>Il valore è già questo</translation>
    </message>
    <message>
        <source>It has that name already</source>
        <translation>Ha già questo nome</translation>
    </message>
    <message>
        <source>The name is cut: it would be too long</source>
        <translation>Il nome viene accorciato: sarebbe troppo lungo</translation>
    </message>
    <message>
        <source>No value: %@</source>
        <translation>Nessun valore: %@</translation>
    </message>
    <message>
        <source>No name is left of the values</source>
        <translation>Dai valori non si ricava alcun nome</translation>
    </message>
    <message>
        <source>The file keeps its name: its tag lies in another file that goes by it</source>
        <translation>Il file mantiene il suo nome: il suo tag si trova in un altro file che dipende da questo nome</translation>
    </message>
    <message>
        <source>Another row has that name or is to get it</source>
        <translation>Un’altra riga ha questo nome o sta per riceverlo</translation>
    </message>
    <message>
        <source>There is a file of that name</source>
        <translation>Esiste già un file con questo nome</translation>
    </message>
    <message>
        <source>Its tags have not been read yet</source>
        <translation>I suoi tag non sono ancora stati letti</translation>
    </message>
    <message>
        <source>Its tags can&#x27;t be read</source>
        <translation>I suoi tag non possono essere letti</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>Tags from Names</source>
        <translation>Tag dai nomi</translation>
    </message>
    <message>
        <source>Names from Tags</source>
        <translation>Nomi dai tag</translation>
    </message>
    <message>
        <source>&amp;Pattern:</source>
        <translation>&amp;Modello:</translation>
    </message>
    <message>
        <source>Fields between percent signs, and the text between them</source>
        <translation>I campi tra segni di percentuale e il testo che li separa</translation>
    </message>
    <message>
        <source>&amp;Insert Field</source>
        <translation>Inserisci &amp;campo</translation>
    </message>
    <message>
        <source>Put a field into the pattern</source>
        <translation>Inserisci un campo nel modello</translation>
    </message>
    <message>
        <source>%skip% stands for text that is left out, a slash for a folder.</source>
        <translation>%skip% indica testo da tralasciare, una barra una cartella.</translation>
    </message>
    <message>
        <source>%folder% stands for the name of the file&#x27;s folder.</source>
        <translation>%folder% indica il nome della cartella del file.</translation>
    </message>
    <message>
        <source>What becomes of every file</source>
        <translation>Che cosa diventa ogni file</translation>
    </message>
    <message>
        <source>Show only files that something is &amp;wrong with</source>
        <translation>Mostra solo i &amp;file con qualche problema</translation>
    </message>
    <message>
        <source>Hide the files that the pattern fits</source>
        <translation>Nascondi i file a cui il modello si adatta</translation>
    </message>
    <message>
        <source>&amp;Set Tags</source>
        <translation>&amp;Imposta tag</translation>
    </message>
    <message>
        <source>&amp;Set Names</source>
        <translation>Imposta &amp;nomi</translation>
    </message>
    <message>
        <source>Make these edits of the table; no file changes before they are applied</source>
        <translation>Riporta queste modifiche nella tabella; nessun file cambia finché non vengono applicate</translation>
    </message>
    <message>
        <source>Leave everything as it is</source>
        <translation>Lascia tutto com’è</translation>
    </message>
    <message>
        <source>New Name</source>
        <translation>Nuovo nome</translation>
    </message>
    <message>
        <source>The preview is being made.</source>
        <translation>L’anteprima è in preparazione.</translation>
    </message>
    <message>
        <source>Files that change: %@.</source>
        <translation>File che cambiano: %@.</translation>
    </message>
    <message>
        <source>Files that something is wrong with: %@; they are left alone.</source>
        <translation>File con qualche problema: %@; restano come sono.</translation>
    </message>
    <message>
        <source>&amp;Tags from Names…</source>
        <translation>&amp;Tag dai nomi…</translation>
    </message>
    <message>
        <source>Take the tags of the selected files from their names, by a pattern</source>
        <translation>Ricava i tag dei file selezionati dai loro nomi, secondo un modello</translation>
    </message>
    <message>
        <source>&amp;Names from Tags…</source>
        <translation>&amp;Nomi dai tag…</translation>
    </message>
    <message>
        <source>Give the selected files names made of their tags, by a pattern</source>
        <translation>Assegna ai file selezionati nomi formati dai loro tag, secondo un modello</translation>
    </message>
    <message>
        <source>The pattern is empty.</source>
        <translation>Il modello è vuoto.</translation>
    </message>
    <message>
        <source>There is nothing beside a slash.</source>
        <translation>Non c’è nulla accanto a una barra.</translation>
    </message>
    <message>
        <source>Nothing divides one field from the next.</source>
        <translation>Nulla separa un campo dal successivo.</translation>
    </message>
    <message>
        <source>A field comes twice.</source>
        <translation>Un campo compare due volte.</translation>
    </message>
    <message>
        <source>%skip% has no place in a new name.</source>
        <translation>%skip% non può stare in un nuovo nome.</translation>
    </message>
    <message>
        <source>A name has no slash: files stay in their folders.</source>
        <translation>Un nome non contiene barre: i file restano nelle loro cartelle.</translation>
    </message>
    <message>
        <source>There is no field in the pattern.</source>
        <translation>Il modello non contiene alcun campo.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s)</source>
        <translation>
            <numerusform>%Ln file</numerusform>
            <numerusform>%Ln file</numerusform>
        </translation>
    </message>
    <message>
        <source>%@ not applied</source>
        <translation>Non applicati: %@</translation>
    </message>
    <message>
        <source>%@ selected</source>
        <translation>Selezionati: %@</translation>
    </message>
    <message>
        <source>%@ shown</source>
        <translation>Mostrati: %@</translation>
    </message>
    <message>
        <source>%@ to be read</source>
        <translation>Da leggere: %@</translation>
    </message>
    <message>
        <source>%@, not applied</source>
        <translation>%@, non applicato</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Visualizza</translation>
    </message>
    <message>
        <source>Album / Director</source>
        <translation>Album / Regia</translation>
    </message>
    <message>
        <source>Artist / Cast</source>
        <translation>Artista / Cast</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Copertina</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Cartella</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>Genere</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>Libreria</translation>
    </message>
    <message>
        <source>Library Table</source>
        <translation>Tabella della libreria</translation>
    </message>
    <message>
        <source>Rating</source>
        <translation>Classificazione</translation>
    </message>
    <message>
        <source>Synopsis / Comment</source>
        <translation>Sinossi / Commento</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titolo</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Anno</translation>
    </message>
    <message>
        <source>User Guide</source>
        <translation>Guida per l’utente</translation>
    </message>
    <message>
        <source>The guide&#x27;s text</source>
        <translation>Il testo della guida</translation>
    </message>
    <message>
        <source>&amp;Go to:</source>
        <translation>&amp;Vai a:</translation>
    </message>
    <message>
        <source>Go to a heading of the guide</source>
        <translation>Vai a un titolo della guida</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>&amp;Trova:</translation>
    </message>
    <message>
        <source>Find words in the guide; Return goes to the next place</source>
        <translation>Cerca parole nella guida; Invio passa al risultato successivo</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Non trovato</translation>
    </message>
    <message>
        <source>The user guide is not installed.</source>
        <translation>La guida per l’utente non è installata.</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>Scorciatoie da tastiera</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Tasto</translation>
    </message>
    <message>
        <source>What it does</source>
        <translation>Che cosa fa</translation>
    </message>
    <message>
        <source>Every key and what it does</source>
        <translation>Tutti i tasti e che cosa fanno</translation>
    </message>
    <message>
        <source>Close this window</source>
        <translation>Chiudi questa finestra</translation>
    </message>
    <message>
        <source>%@ menu</source>
        <translation>Menu %@</translation>
    </message>
    <message>
        <source>Letters, in the list</source>
        <translation>Lettere, nell’elenco</translation>
    </message>
    <message>
        <source>The next name that begins with them</source>
        <translation>Il prossimo nome che inizia così</translation>
    </message>
    <message>
        <source>In the list: the file above, below</source>
        <translation>Nell’elenco: il file sopra, sotto</translation>
    </message>
    <message>
        <source>On the cover: cut it</source>
        <translation>Sulla copertina: tagliarla</translation>
    </message>
    <message>
        <source>On the cover: copy it</source>
        <translation>Sulla copertina: copiarla</translation>
    </message>
    <message>
        <source>On the cover: paste one</source>
        <translation>Sulla copertina: incollarne una</translation>
    </message>
    <message>
        <source>The next control</source>
        <translation>Il controllo successivo</translation>
    </message>
    <message>
        <source>The control before</source>
        <translation>Il controllo precedente</translation>
    </message>
    <message>
        <source>The menus</source>
        <translation>I menu</translation>
    </message>
    <message>
        <source>The buttons of the line above the form</source>
        <translation>I pulsanti della riga sopra il modulo</translation>
    </message>
    <message>
        <source>Ends the wait for a page or a cover; closes the line above the form</source>
        <translation>Termina l’attesa di una pagina o di una copertina; chiude la riga sopra il modulo</translation>
    </message>
    <message>
        <source>About Velmora</source>
        <translation>Informazioni su Velmora</translation>
    </message>
    <message>
        <source>MIT licence: free to use, to change and to pass on, without any warranty.</source>
        <translation>Licenza MIT: libero uso, modifica e ridistribuzione, senza alcuna garanzia.</translation>
    </message>
    <message>
        <source>Built on Qt %@ with its web engine and multimedia, TagLib, GStreamer, libjpeg and libpng, each under its own licence.</source>
        <translation>Basato su Qt %@ con il suo motore web e multimedia, TagLib, GStreamer, libjpeg e libpng, ciascuno con la propria licenza.</translation>
    </message>
    <message>
        <source>What Velmora is and what it is built on</source>
        <translation>Che cos’è Velmora e su che cosa si basa</translation>
    </message>
    <message>
        <source>The window will look like this at each start.</source>
        <translation>La finestra avrà questo aspetto a ogni avvio.</translation>
    </message>
    <message>
        <source>The layout can&#x27;t be remembered: the settings file can&#x27;t be written.</source>
        <translation>Impossibile ricordare la disposizione: il file delle impostazioni non può essere scritto.</translation>
    </message>
    <message>
        <source>Nothing is remembered any more: there is no settings file.</source>
        <translation>Non viene più ricordato nulla: non c’è alcun file delle impostazioni.</translation>
    </message>
    <message>
        <source>The settings file can&#x27;t be removed.</source>
        <translation>Il file delle impostazioni non può essere rimosso.</translation>
    </message>
    <message>
        <source>The next start will not know of it: the settings file can&#x27;t be written.</source>
        <translation>Il prossimo avvio non ne saprà nulla: il file delle impostazioni non può essere scritto.</translation>
    </message>
    <message>
        <source>&quot;%@&quot; can&#x27;t be written.</source>
        <translation>Impossibile scrivere “%@”.</translation>
    </message>
    <message>
        <source>%@ a second</source>
        <translation>%@ al secondo</translation>
    </message>
    <message>
        <source>%@ changed since and left alone</source>
        <translation>%@ modificati nel frattempo e lasciati così</translation>
    </message>
    <message>
        <source>%@ done</source>
        <translation>%@ completati</translation>
    </message>
    <message>
        <source>%@ failed</source>
        <translation>%@ non riusciti</translation>
    </message>
    <message>
        <source>%@ files</source>
        <translation>%@ file</translation>
    </message>
    <message>
        <source>%@ left</source>
        <translation>restano %@</translation>
    </message>
    <message>
        <source>%@ not reached</source>
        <translation>%@ non elaborati</translation>
    </message>
    <message>
        <source>%@ unchanged</source>
        <translation>%@ invariati</translation>
    </message>
    <message>
        <source>&amp;Artist or cast:</source>
        <translation>&amp;Artista o cast:</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>&amp;Scegli…</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Modifica</translation>
    </message>
    <message>
        <source>&amp;Genre:</source>
        <translation>G&amp;enere:</translation>
    </message>
    <message>
        <source>&amp;Revert</source>
        <translation>&amp;Ripristina</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titolo:</translation>
    </message>
    <message>
        <source>&amp;Year:</source>
        <translation>Ann&amp;o:</translation>
    </message>
    <message>
        <source>A&amp;pply</source>
        <translation>App&amp;lica</translation>
    </message>
    <message>
        <source>Al&amp;bum or director:</source>
        <translation>Al&amp;bum o regia:</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Applica</translation>
    </message>
    <message>
        <source>C&amp;over:</source>
        <translation>Co&amp;pertina:</translation>
    </message>
    <message>
        <source>Cancelled before its turn</source>
        <translation>Annullato prima del suo turno</translation>
    </message>
    <message>
        <source>Changed since, left alone</source>
        <translation>Modificato nel frattempo, lasciato così</translation>
    </message>
    <message>
        <source>Choose a Cover</source>
        <translation>Scegli una copertina</translation>
    </message>
    <message>
        <source>Choose a picture as the cover of the selected files</source>
        <translation>Scegli un’immagine come copertina dei file selezionati</translation>
    </message>
    <message>
        <source>Close the summary</source>
        <translation>Chiudi il riepilogo</translation>
    </message>
    <message>
        <source>Copy the current column of the selected rows</source>
        <translation>Copia la colonna corrente delle righe selezionate</translation>
    </message>
    <message>
        <source>Copy the paths of the selected files</source>
        <translation>Copia i percorsi dei file selezionati</translation>
    </message>
    <message>
        <source>Copy the selected rows with the columns that are shown, for a spreadsheet</source>
        <translation>Copia le righe selezionate con le colonne mostrate, per un foglio di calcolo</translation>
    </message>
    <message>
        <source>Do you want to remove files with edits that are not applied?</source>
        <translation>Rimuovere file con modifiche non ancora applicate?</translation>
    </message>
    <message numerus="yes">
        <source>The edits of %Ln file(s) will be lost.</source>
        <translation>
            <numerusform>Le modifiche di %Ln file andranno perse.</numerusform>
            <numerusform>Le modifiche di %Ln file andranno perse.</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>A file is still being saved in the main window. Try again when that is done.</source>
        <translation>La finestra principale sta ancora salvando un file. Riprova quando ha finito.</translation>
    </message>
    <message>
        <source>Drop Them</source>
        <translation>Scartale</translation>
    </message>
    <message>
        <source>Drop what was edited in the selected files and not applied</source>
        <translation>Scarta ciò che è stato modificato e non applicato nei file selezionati</translation>
    </message>
    <message>
        <source>Edit the text of the current cell</source>
        <translation>Modifica il testo della cella corrente</translation>
    </message>
    <message>
        <source>Edits in the library table are not applied yet.</source>
        <translation>Le modifiche nella tabella della libreria non sono ancora state applicate.</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Esporta</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Files that were not changed</source>
        <translation>File non modificati</translation>
    </message>
    <message>
        <source>Give the files of the last apply their old values and names back</source>
        <translation>Ripristina nei file i valori e i nomi precedenti all’ultimo “Applica”</translation>
    </message>
    <message>
        <source>Move Column Left</source>
        <translation>Sposta colonna a sinistra</translation>
    </message>
    <message>
        <source>Move Column Right</source>
        <translation>Sposta colonna a destra</translation>
    </message>
    <message>
        <source>Open the file in the program&#x27;s main window</source>
        <translation>Apri il file nella finestra principale del programma</translation>
    </message>
    <message>
        <source>Open the folder in which the file is</source>
        <translation>Apri la cartella in cui si trova il file</translation>
    </message>
    <message>
        <source>Put the cells of the clipboard into the table from the current cell on</source>
        <translation>Inserisci nella tabella le celle degli appunti a partire dalla cella corrente</translation>
    </message>
    <message>
        <source>Rat&amp;ing:</source>
        <translation>Classifica&amp;zione:</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>Rim&amp;uovi</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Motivo</translation>
    </message>
    <message>
        <source>Remove the cover from the selected files</source>
        <translation>Rimuovi la copertina dai file selezionati</translation>
    </message>
    <message>
        <source>Show only the files that have these words in any column; artist:, year:1990-1999, missing:cover and the like look closer</source>
        <translation>Mostra solo i file che hanno queste parole in una colonna; artist:, year:1990-1999, missing:cover e simili affinano la ricerca</translation>
    </message>
    <message>
        <source>Stop; each file is as it was or as it was to be</source>
        <translation>Interrompi; ogni file è com’era o come doveva essere</translation>
    </message>
    <message>
        <source>Sy&amp;nopsis or comment:</source>
        <translation>Sinossi o &amp;commento:</translation>
    </message>
    <message>
        <source>Take the selected files off the list; they stay where they are</source>
        <translation>Togli dall’elenco i file selezionati; restano dove sono</translation>
    </message>
    <message>
        <source>The album of the selected songs, the director of the selected films</source>
        <translation>L’album dei brani selezionati, la regia dei film selezionati</translation>
    </message>
    <message>
        <source>The artist of the selected songs, the cast of the selected films</source>
        <translation>L’artista dei brani selezionati, il cast dei film selezionati</translation>
    </message>
    <message>
        <source>The cover of the selected files: drop a picture here, or paste one</source>
        <translation>La copertina dei file selezionati: trascina o incolla qui un’immagine</translation>
    </message>
    <message>
        <source>The files that were not changed, and why</source>
        <translation>I file non modificati, e perché</translation>
    </message>
    <message>
        <source>The genre: choose one or type your own</source>
        <translation>Il genere: scegline uno o scrivi il tuo</translation>
    </message>
    <message>
        <source>The parental rating of the selected films</source>
        <translation>La classificazione per età dei film selezionati</translation>
    </message>
    <message>
        <source>The table could not be exported.</source>
        <translation>Impossibile esportare la tabella.</translation>
    </message>
    <message>
        <source>The tags are right, the name is the old one: %@</source>
        <translation>I tag sono giusti, il nome è quello vecchio: %@</translation>
    </message>
    <message>
        <source>The title of the selected files</source>
        <translation>Il titolo dei file selezionati</translation>
    </message>
    <message>
        <source>The year of release, of up to four digits</source>
        <translation>L’anno di uscita, fino a quattro cifre</translation>
    </message>
    <message>
        <source>They are lost when the program ends.</source>
        <translation>Vanno perse quando il programma termina.</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Riprova</translation>
    </message>
    <message>
        <source>Try the files again that were not changed</source>
        <translation>Riprova i file non modificati</translation>
    </message>
    <message>
        <source>Type what is to be shown</source>
        <translation>Scrivere che cosa mostrare</translation>
    </message>
    <message>
        <source>Undo Apply</source>
        <translation>Annulla “Applica”</translation>
    </message>
    <message>
        <source>What the selected films are about, or a comment on the songs</source>
        <translation>Di che cosa parlano i film selezionati, o un commento ai brani</translation>
    </message>
    <message>
        <source>Words, artist:name, year:1990-1999, missing:cover</source>
        <translation>Parole, artist:nome, year:1990-1999, missing:cover</translation>
    </message>
    <message>
        <source>Write the rows and columns that are shown into a file, as CSV or JSON</source>
        <translation>Scrivi in un file le righe e le colonne mostrate, come CSV o JSON</translation>
    </message>
    <message>
        <source>Write what was edited into the files</source>
        <translation>Scrivi nei file ciò che è stato modificato</translation>
    </message>
    <message>
        <source>Writing…</source>
        <translation>Scrittura…</translation>
    </message>
    <message>
        <source>several covers</source>
        <translation>più copertine</translation>
    </message>
    <message>
        <source>several values</source>
        <translation>più valori</translation>
    </message>
    <message>
        <source>Name&amp;s</source>
        <translation>&amp;Nomi</translation>
    </message>
    <message>
        <source>Ro&amp;w</source>
        <translation>Ri&amp;ga</translation>
    </message>
    <message>
        <source>Fi&amp;lter:</source>
        <translation>F&amp;iltro:</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Applica</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Esporta…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Chiudi</translation>
    </message>
    <message>
        <source>&amp;Undo Apply</source>
        <translation>&amp;Annulla “Applica”</translation>
    </message>
    <message>
        <source>&amp;Edit Cell</source>
        <translation>&amp;Modifica cella</translation>
    </message>
    <message>
        <source>&amp;Copy Rows</source>
        <translation>&amp;Copia righe</translation>
    </message>
    <message>
        <source>Copy Co&amp;lumn</source>
        <translation>Copia co&amp;lonna</translation>
    </message>
    <message>
        <source>&amp;Paste Cells</source>
        <translation>&amp;Incolla celle</translation>
    </message>
    <message>
        <source>&amp;Filter</source>
        <translation>&amp;Filtro</translation>
    </message>
    <message>
        <source>&amp;Sort By</source>
        <translation>&amp;Ordina per</translation>
    </message>
    <message>
        <source>&amp;Then By</source>
        <translation>&amp;Poi per</translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation>&amp;Colonne</translation>
    </message>
    <message>
        <source>&amp;Open in Editor</source>
        <translation>&amp;Apri nell’editor</translation>
    </message>
    <message>
        <source>&amp;Show in Folder</source>
        <translation>&amp;Mostra nella cartella</translation>
    </message>
    <message>
        <source>&amp;Copy Path</source>
        <translation>&amp;Copia percorso</translation>
    </message>
    <message>
        <source>&amp;Remove from List</source>
        <translation>&amp;Rimuovi dall’elenco</translation>
    </message>
    <message>
        <source>The listed files and what their tags say</source>
        <translation>I file dell’elenco e che cosa dicono i loro tag</translation>
    </message>
    <message>
        <source>Locate File…</source>
        <translation>Trova il file…</translation>
    </message>
    <message>
        <source>Show where the file is now: it is opened there with your edits, which are not saved yet</source>
        <translation>Indica dove si trova ora il file: viene aperto lì con le modifiche, non ancora salvate</translation>
    </message>
    <message>
        <source>Locate &quot;%@&quot;</source>
        <translation>Trova “%@”</translation>
    </message>
    <message>
        <source>Cells that can't take what was pasted: %@</source>
        <translation>Celle che non possono contenere ciò che è stato incollato: %@</translation>
    </message>
</context>
<context>
    <name>MyDocument</name>
    <message>
        <source>&amp;Paste and Store Cover</source>
        <translation>&amp;Incolla e usa la copertina</translation>
    </message>
    <message>
        <source>Make the image that was copied the cover, which a save writes</source>
        <translation>Fai dell’immagine copiata la copertina, scritta dal salvataggio</translation>
    </message>
    <message>
        <source>&amp;Trim Border</source>
        <translation>Rita&amp;glia il bordo</translation>
    </message>
    <message>
        <source>Trim a border of one colour off the cover art</source>
        <translation>Ritaglia dalla copertina un bordo di un solo colore</translation>
    </message>
    <message>
        <source>&amp;Delete Cover</source>
        <translation>&amp;Elimina la copertina</translation>
    </message>
    <message>
        <source>Take the cover away, which a save with portable tags writes</source>
        <translation>Togli la copertina, cosa che scrive un salvataggio con tag portabili</translation>
    </message>
    <message>
        <source>Delete &amp;All Tags from File…</source>
        <translation>Elimina t&amp;utti i tag dal file…</translation>
    </message>
    <message>
        <source>Delete every tag of the file, for all programs</source>
        <translation>Elimina ogni tag del file, per tutti i programmi</translation>
    </message>
    <message>
        <source>&amp;Add Files…</source>
        <translation>Aggiungi &amp;file…</translation>
    </message>
    <message>
        <source>Add F&amp;older…</source>
        <translation>&amp;Aggiungi cartella…</translation>
    </message>
    <message>
        <source>&amp;Revert</source>
        <translation>&amp;Ripristina</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Salva</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Modifica</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Chiudi</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Esci</translation>
    </message>
    <message>
        <source>&amp;Find in List</source>
        <translation>&amp;Trova nell’elenco</translation>
    </message>
    <message>
        <source>&amp;Load Cover Art…</source>
        <translation>&amp;Carica copertina…</translation>
    </message>
    <message>
        <source>Look &amp;Up on the Web</source>
        <translation>Cerca &amp;sul web</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Visualizza</translation>
    </message>
    <message>
        <source>Sort by &amp;Name</source>
        <translation>Ordina per &amp;nome</translation>
    </message>
    <message>
        <source>Sort by &amp;Size</source>
        <translation>Ordina &amp;per dimensione</translation>
    </message>
    <message>
        <source>Sort by &amp;Date</source>
        <translation>&amp;Ordina per data</translation>
    </message>
    <message>
        <source>&amp;Portable Tags</source>
        <translation>&amp;Tag portabili</translation>
    </message>
    <message>
        <source>Open and save with the tags that other programs read</source>
        <translation>Apri e salva con i tag che leggono gli altri programmi</translation>
    </message>
    <message>
        <source>Restore Unsaved &amp;Edits</source>
        <translation>&amp;Recupera le modifiche non salvate</translation>
    </message>
    <message>
        <source>Open the file again whose edits could not be saved, and put them back</source>
        <translation>Riapri il file le cui modifiche non si sono potute salvare e ripristinale</translation>
    </message>
    <message>
        <source>&amp;Library Table</source>
        <translation>&amp;Tabella della libreria</translation>
    </message>
    <message>
        <source>Show all files of the list with their tags, and edit many at once</source>
        <translation>Mostra tutti i file dell’elenco con i loro tag e modificane molti insieme</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>&amp;User Guide</source>
        <translation>&amp;Guida per l’utente</translation>
    </message>
    <message>
        <source>&amp;Keyboard</source>
        <translation>&amp;Scorciatoie da tastiera</translation>
    </message>
    <message>
        <source>&amp;About Velmora</source>
        <translation>&amp;Informazioni su Velmora</translation>
    </message>
    <message>
        <source>&amp;Remember This Layout</source>
        <translation>&amp;Ricorda questa disposizione</translation>
    </message>
    <message>
        <source>Start with this size, division, column widths and sorting from now on</source>
        <translation>Avvia d’ora in poi con queste dimensioni, questa suddivisione, queste larghezze di colonna e questo ordinamento</translation>
    </message>
    <message>
        <source>&amp;Forget Everything</source>
        <translation>&amp;Dimentica tutto</translation>
    </message>
    <message>
        <source>Remove the settings file, with the layout and the choice of portable tags</source>
        <translation>Rimuovi il file delle impostazioni, con la disposizione e la scelta dei tag portabili</translation>
    </message>
</context>
<context>
    <name>MediaList</name>
    <message>
        <source>&amp;Add Files…</source>
        <translation>Aggiu&amp;ngi file…</translation>
    </message>
    <message>
        <source>Add files to the list</source>
        <translation>Aggiungi file all’elenco</translation>
    </message>
    <message>
        <source>Add F&amp;older…</source>
        <translation>Aggiungi carte&amp;lla…</translation>
    </message>
    <message>
        <source>Search a folder for media files</source>
        <translation>Cerca file multimediali in una cartella</translation>
    </message>
    <message>
        <source>Turns while folders are searched</source>
        <translation>Gira durante la ricerca nelle cartelle</translation>
    </message>
    <message>
        <source>Search in progress</source>
        <translation>Ricerca in corso</translation>
    </message>
    <message>
        <source>The folder that is being searched</source>
        <translation>La cartella in cui si sta cercando</translation>
    </message>
    <message>
        <source>Sto&amp;p</source>
        <translation>&amp;Interrompi</translation>
    </message>
    <message>
        <source>Stop the search</source>
        <translation>Interrompi la ricerca</translation>
    </message>
    <message>
        <source>The media files found; type a name to find one</source>
        <translation>I file multimediali trovati; digita un nome per cercarne uno</translation>
    </message>
    <message>
        <source>Media files</source>
        <translation>File multimediali</translation>
    </message>
</context>
<context>
    <name>TagForm</name>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titolo:</translation>
    </message>
    <message>
        <source>The title of the film or song</source>
        <translation>Il titolo del film o del brano</translation>
    </message>
    <message>
        <source>&amp;Year:</source>
        <translation>&amp;Anno:</translation>
    </message>
    <message>
        <source>The year of release</source>
        <translation>L’anno di uscita</translation>
    </message>
    <message>
        <source>Artist:</source>
        <translation>Artista:</translation>
    </message>
    <message>
        <source>The artist of a song, the cast of a film</source>
        <translation>L’artista di un brano, il cast di un film</translation>
    </message>
    <message>
        <source>&amp;Genre:</source>
        <translation>&amp;Genere:</translation>
    </message>
    <message>
        <source>The genre: choose one or type your own</source>
        <translation>Il genere: scegline uno o scrivi il tuo</translation>
    </message>
    <message>
        <source>Album:</source>
        <translation>Album:</translation>
    </message>
    <message>
        <source>The album of a song, the director of a film</source>
        <translation>L’album di un brano, la regia di un film</translation>
    </message>
    <message>
        <source>Rat&amp;ing:</source>
        <translation>Classifica&amp;zione:</translation>
    </message>
    <message>
        <source>The parental rating of a film</source>
        <translation>La classificazione per età di un film</translation>
    </message>
    <message>
        <source>Sy&amp;nopsis:</source>
        <translation>&amp;Sinossi:</translation>
    </message>
    <message>
        <source>What the film is about</source>
        <translation>Di che cosa parla il film</translation>
    </message>
    <message>
        <source>&amp;Date:</source>
        <translation>&amp;Data:</translation>
    </message>
    <message>
        <source>The date, for information: it is not written into the file</source>
        <translation>La data, a titolo informativo: non viene scritta nel file</translation>
    </message>
    <message>
        <source>&amp;Cover Art:</source>
        <translation>Co&amp;pertina:</translation>
    </message>
    <message>
        <source>The cover art; drop an image here</source>
        <translation>La copertina; trascina qui un’immagine</translation>
    </message>
    <message>
        <source>&amp;Load…</source>
        <translation>&amp;Carica…</translation>
    </message>
    <message>
        <source>Load cover art from an image file</source>
        <translation>Carica la copertina da un file immagine</translation>
    </message>
    <message>
        <source>Tri&amp;m</source>
        <translation>Ritaglia &amp;bordo</translation>
    </message>
    <message>
        <source>Trim a border of one colour off the cover art</source>
        <translation>Ritaglia dalla copertina un bordo di un solo colore</translation>
    </message>
    <message>
        <source>Remo&amp;ve Tag</source>
        <translation>Rimuovi etic&amp;hetta</translation>
    </message>
    <message>
        <source>Forget the changes without writing them</source>
        <translation>Dimentica le modifiche senza scriverle</translation>
    </message>
    <message>
        <source>&amp;Revert</source>
        <translation>&amp;Ripristina</translation>
    </message>
    <message>
        <source>Read the file again and drop the changes</source>
        <translation>Rileggi il file e scarta le modifiche</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>Sal&amp;va</translation>
    </message>
    <message>
        <source>Write the changes into the file (Ctrl+S)</source>
        <translation>Scrivi le modifiche nel file (Ctrl+S)</translation>
    </message>
    <message>
        <source>for information only</source>
        <translation>solo a titolo informativo</translation>
    </message>
</context>
<context>
    <name>MoviePreview</name>
    <message>
        <source>Preview:</source>
        <translation>Anteprima:</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Anteprima</translation>
    </message>
    <message>
        <source>A preview of the file</source>
        <translation>Un’anteprima del file</translation>
    </message>
    <message>
        <source>This file can’t be previewed.</source>
        <translation>Anteprima non disponibile per questo file.</translation>
    </message>
    <message>
        <source>Ta&amp;ke Frame</source>
        <translation>&amp;Usa fotogramma</translation>
    </message>
    <message>
        <source>Take the frame shown as cover art</source>
        <translation>Usa il fotogramma mostrato come copertina</translation>
    </message>
</context>
<context>
    <name>TagWebBrowser</name>
    <message>
        <source>Look &amp;up:</source>
        <translation>Sul &amp;web:</translation>
    </message>
    <message>
        <source>The site to search</source>
        <translation>Il sito in cui cercare</translation>
    </message>
    <message>
        <source>The text to search for</source>
        <translation>Il testo da cercare</translation>
    </message>
    <message>
        <source>Searc&amp;h</source>
        <translation>C&amp;erca</translation>
    </message>
    <message>
        <source>Search the site for the text</source>
        <translation>Cerca il testo nel sito</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>Indietr&amp;o</translation>
    </message>
    <message>
        <source>Go back to the page before</source>
        <translation>Torna alla pagina precedente</translation>
    </message>
    <message>
        <source>Turns while a page loads</source>
        <translation>Gira durante il caricamento di una pagina</translation>
    </message>
    <message>
        <source>Page loading</source>
        <translation>Caricamento della pagina</translation>
    </message>
    <message>
        <source>Fill Form</source>
        <translation>Compila modulo</translation>
    </message>
    <message>
        <source>Fill the form from the page shown</source>
        <translation>Compila il modulo dalla pagina mostrata</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Indirizzo:</translation>
    </message>
    <message>
        <source>The address of the page shown</source>
        <translation>L’indirizzo della pagina mostrata</translation>
    </message>
    <message>
        <source>Address of the page</source>
        <translation>Indirizzo della pagina</translation>
    </message>
    <message>
        <source>What the form fill waits for</source>
        <translation>Che cosa attende la compilazione del modulo</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Fill the form without the cover (Esc)</source>
        <translation>Compila il modulo senza la copertina (Esc)</translation>
    </message>
    <message>
        <source>The page</source>
        <translation>La pagina</translation>
    </message>
    <message>
        <source>Web page</source>
        <translation>Pagina web</translation>
    </message>
    <message>
        <source>The page could not be loaded.</source>
        <translation>Impossibile caricare la pagina.</translation>
    </message>
    <message>
        <source>Site:</source>
        <translation>Sito:</translation>
    </message>
</context>
</TS>
