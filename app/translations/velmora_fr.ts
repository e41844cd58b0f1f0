<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>Velmora</name>
    <message>
        <source>&quot;%@&quot; keeps its tags.</source>
        <translation>« %@ » conserve ses tags.</translation>
    </message>
    <message>
        <source>%@ (not there)</source>
        <translation>%@ (absent)</translation>
    </message>
    <message>
        <source>A copy needs another name or another folder</source>
        <translation>Une copie doit avoir un autre nom ou un autre dossier</translation>
    </message>
    <message>
        <source>All tags of &quot;%@&quot; are deleted.</source>
        <translation>Tous les tags de « %@ » sont supprimés.</translation>
    </message>
    <message>
        <source>Choose another place, and save the file there with the changes</source>
        <translation>Choisir un autre emplacement et y enregistrer le fichier avec les modifications</translation>
    </message>
    <message>
        <source>Delete All Tags</source>
        <translation>Supprimer tous les tags</translation>
    </message>
    <message>
        <source>Deleted all tags of &quot;%@&quot;</source>
        <translation>Tous les tags de « %@ » supprimés</translation>
    </message>
    <message>
        <source>Do you want to delete all tags from &quot;%@&quot;?</source>
        <translation>Voulez-vous supprimer tous les tags de « %@ » ?</translation>
    </message>
    <message>
        <source>Files found: %@</source>
        <translation>Fichiers trouvés : %@</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>It consists of several RIFF chunks, which a save in place can&#x27;t change</source>
        <translation>Il se compose de plusieurs blocs RIFF, qu’un enregistrement sur place ne peut pas modifier</translation>
    </message>
    <message>
        <source>It is empty</source>
        <translation>Il est vide</translation>
    </message>
    <message>
        <source>It is not there any more</source>
        <translation>Il n’existe plus</translation>
    </message>
    <message>
        <source>You have no permission for that</source>
        <translation>Vous n’en avez pas le droit</translation>
    </message>
    <message>
        <source>You have no permission to put a new file into its folder</source>
        <translation>Vous n’avez pas le droit d’écrire dans son dossier</translation>
    </message>
    <message>
        <source>Another program is using it</source>
        <translation>Un autre programme l’utilise</translation>
    </message>
    <message>
        <source>Its disk reports a fault</source>
        <translation>Son disque signale une erreur</translation>
    </message>
    <message>
        <source>Its name is too long</source>
        <translation>Son nom est trop long</translation>
    </message>
    <message>
        <source>What was to be copied is not there any more</source>
        <translation>Le fichier à copier n’existe plus</translation>
    </message>
    <message>
        <source>Its folder is not there</source>
        <translation>Son dossier n’existe pas</translation>
    </message>
    <message>
        <source>It lies on a disk that can only be read</source>
        <translation>Il se trouve sur un disque en lecture seule</translation>
    </message>
    <message>
        <source>It would become too large</source>
        <translation>Il deviendrait trop grand</translation>
    </message>
    <message>
        <source>Its header can&#x27;t be read</source>
        <translation>Son en-tête est illisible</translation>
    </message>
    <message>
        <source>Its tag can&#x27;t be written</source>
        <translation>Son tag ne peut pas être écrit</translation>
    </message>
    <message>
        <source>Looked in:</source>
        <translation>Dossiers parcourus :</translation>
    </message>
    <message>
        <source>No file is open</source>
        <translation>Aucun fichier ouvert</translation>
    </message>
    <message>
        <source>No file is open: what is typed here goes nowhere</source>
        <translation>Aucun fichier ouvert : ce qui est saisi ici est perdu</translation>
    </message>
    <message>
        <source>No space is left on its disk</source>
        <translation>Il n’y a plus de place sur son disque</translation>
    </message>
    <message>
        <source>Not stored in files of this kind</source>
        <translation>N’est pas enregistré dans ce type de fichier</translation>
    </message>
    <message>
        <source>Save as a Copy</source>
        <translation>Enregistrer une copie</translation>
    </message>
    <message>
        <source>Save as a Copy…</source>
        <translation>Enregistrer une copie…</translation>
    </message>
    <message>
        <source>Saved &quot;%@&quot;</source>
        <translation>« %@ » enregistré</translation>
    </message>
    <message>
        <source>Store Cover</source>
        <translation>Valider la jaquette</translation>
    </message>
    <message>
        <source>Store Filled Fields</source>
        <translation>Valider les champs remplis</translation>
    </message>
    <message>
        <source>Take all filled fields for changes, which a save writes</source>
        <translation>Traiter tous les champs remplis comme des modifications, écrites lors de l’enregistrement</translation>
    </message>
    <message>
        <source>Take the cover for a change, which a save writes</source>
        <translation>Traiter la jaquette comme une modification, écrite lors de l’enregistrement</translation>
    </message>
    <message>
        <source>The cover is cut from the form only, and stays in the file.</source>
        <translation>La jaquette n’est coupée que dans le formulaire et reste dans le fichier.</translation>
    </message>
    <message>
        <source>The cover is deleted here. A save in place leaves it in the file.</source>
        <translation>La jaquette est supprimée ici. Un enregistrement sur place la laisse dans le fichier.</translation>
    </message>
    <message>
        <source>The cover was taken from folder.jpg, which counts as a change: a save writes it into the file.</source>
        <translation>La jaquette vient de folder.jpg et compte donc comme une modification : l’enregistrement l’écrira dans le fichier.</translation>
    </message>
    <message>
        <source>The filled fields count as changes now: a save writes them.</source>
        <translation>Les champs remplis comptent maintenant comme des modifications : l’enregistrement les écrira.</translation>
    </message>
    <message>
        <source>The pasted cover is shown only: a save does not write it.</source>
        <translation>La jaquette collée est seulement affichée : l’enregistrement ne l’écrira pas.</translation>
    </message>
    <message>
        <source>There is no file for its tag yet, and a save in place makes none</source>
        <translation>Il n’y a pas encore de fichier pour son tag, et un enregistrement sur place n’en crée pas</translation>
    </message>
    <message>
        <source>This is no number, and is stored as no year</source>
        <translation>Ce n’est pas un nombre : aucune année n’est enregistrée</translation>
    </message>
    <message>
        <source>Too little media lies behind its header for the header to grow or shrink</source>
        <translation>Il y a trop peu de données multimédias derrière son en-tête pour que celui-ci change de taille</translation>
    </message>
    <message>
        <source>What other programs read goes, too, and so do the changes that you have made here. This can&#x27;t be undone.</source>
        <translation>Les tags que lisent d’autres programmes disparaîtront aussi, tout comme vos modifications ici. Cette action est irréversible.</translation>
    </message>
    <message>
        <source>What the last save did</source>
        <translation>Résultat du dernier enregistrement</translation>
    </message>
    <message>
        <source>What the last search found</source>
        <translation>Résultat de la dernière recherche</translation>
    </message>
    <message>
        <source>What was filled in from the web is not stored yet: a save writes only the fields that were typed in.</source>
        <translation>Ce qui a été rempli depuis le Web n’est pas encore validé : l’enregistrement n’écrit que les champs saisis à la main.</translation>
    </message>
    <message>
        <source>You have no permission to write to it</source>
        <translation>Vous n’avez pas le droit d’y écrire</translation>
    </message>
    <message>
        <source>folders that could not be read: %@</source>
        <translation>dossiers illisibles : %@</translation>
    </message>
    <message>
        <source>open in the form</source>
        <translation>ouvert dans le formulaire</translation>
    </message>
    <message>
        <source>Unable to open file &quot;%@&quot;.</source>
        <translation>Impossible d’ouvrir le fichier « %@ ».</translation>
    </message>
    <message>
        <source>KORVANE Velmora</source>
        <translation>KORVANE Velmora</translation>
    </message>
    <message>
        <source>Velmora can only open local files.</source>
        <translation>Velmora ne peut ouvrir que des fichiers locaux.</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>Le fichier n’existe pas.</translation>
    </message>
    <message>
        <source>&quot;%@&quot; was not added.</source>
        <translation>« %@ » n’a pas été ajouté.</translation>
    </message>
    <message>
        <source>Files that could not be added: %@</source>
        <translation>Fichiers qui n’ont pas pu être ajoutés : %@</translation>
    </message>
    <message>
        <source>Please ensure the file is readable and is a valid media file.</source>
        <translation>Vérifiez que le fichier est lisible et qu’il s’agit bien d’un fichier multimédia.</translation>
    </message>
    <message>
        <source>Do you want to save the changes you made?</source>
        <translation>Voulez-vous enregistrer les modifications effectuées ?</translation>
    </message>
    <message>
        <source>Your changes to &quot;%@&quot; will be lost if you don&#x27;t save them.</source>
        <translation>Vos modifications de « %@ » seront perdues si vous ne les enregistrez pas.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>%@.</source>
        <translation>%@.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Don&#x27;t Save</source>
        <translation>Ne pas enregistrer</translation>
    </message>
    <message>
        <source>Add Files</source>
        <translation>Ajouter des fichiers</translation>
    </message>
    <message>
        <source>Add Folders</source>
        <translation>Ajouter des dossiers</translation>
    </message>
    <message>
        <source>Load Cover Art</source>
        <translation>Charger une jaquette</translation>
    </message>
    <message>
        <source>Search Done.</source>
        <translation>Recherche terminée.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>Adults Only</source>
        <translation>Réservé aux adultes</translation>
    </message>
    <message>
        <source>Animated</source>
        <translation>Animation</translation>
    </message>
    <message>
        <source>Art</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Automobile</translation>
    </message>
    <message>
        <source>Business / Financial</source>
        <translation>Affaires / Finance</translation>
    </message>
    <message>
        <source>Children</source>
        <translation>Enfants</translation>
    </message>
    <message>
        <source>Comedy</source>
        <translation>Comédie</translation>
    </message>
    <message>
        <source>Consumer</source>
        <translation>Consommation</translation>
    </message>
    <message>
        <source>Cooking</source>
        <translation>Cuisine</translation>
    </message>
    <message>
        <source>Crime</source>
        <translation>Policier</translation>
    </message>
    <message>
        <source>Documentary</source>
        <translation>Documentaire</translation>
    </message>
    <message>
        <source>Drama</source>
        <translation>Drame</translation>
    </message>
    <message>
        <source>Educational</source>
        <translation>Éducatif</translation>
    </message>
    <message>
        <source>Game Show</source>
        <translation>Jeu télévisé</translation>
    </message>
    <message>
        <source>Gay / Lesbian</source>
        <translation>Gay / Lesbien</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Santé</translation>
    </message>
    <message>
        <source>Holiday</source>
        <translation>Fêtes</translation>
    </message>
    <message>
        <source>House / Garden</source>
        <translation>Maison / Jardin</translation>
    </message>
    <message>
        <source>Mystery</source>
        <translation>Mystère</translation>
    </message>
    <message>
        <source>Nature</source>
        <translation>Nature</translation>
    </message>
    <message>
        <source>News</source>
        <translation>Actualités</translation>
    </message>
    <message>
        <source>Performing Arts</source>
        <translation>Arts du spectacle</translation>
    </message>
    <message>
        <source>Reality</source>
        <translation>Téléréalité</translation>
    </message>
    <message>
        <source>Romance</source>
        <translation>Romance</translation>
    </message>
    <message>
        <source>Science Fiction</source>
        <translation>Science-fiction</translation>
    </message>
    <message>
        <source>Self Improvement</source>
        <translation>Développement personnel</translation>
    </message>
    <message>
        <source>Soap</source>
        <translation>Feuilleton</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Espagnol</translation>
    </message>
    <message>
        <source>Special</source>
        <translation>Émission spéciale</translation>
    </message>
    <message>
        <source>Sports</source>
        <translation>Sport</translation>
    </message>
    <message>
        <source>Talk</source>
        <translation>Débat</translation>
    </message>
    <message>
        <source>Travel</source>
        <translation>Voyages</translation>
    </message>
    <message>
        <source>Western</source>
        <translation>Western</translation>
    </message>
    <message>
        <source>Artist:</source>
        <translation>Artiste :</translation>
    </message>
    <message>
        <source>Album:</source>
        <translation>Album :</translation>
    </message>
    <message>
        <source>Cast:</source>
        <translation>Distribution :</translation>
    </message>
    <message>
        <source>Director:</source>
        <translation>Réalisation :</translation>
    </message>
    <message>
        <source>Cover art</source>
        <translation>Jaquette</translation>
    </message>
    <message>
        <source>Cover art: drop an image here to store it</source>
        <translation>Jaquette : déposez une image ici pour l’utiliser</translation>
    </message>
    <message>
        <source>too large to show</source>
        <translation>trop grande pour être affichée</translation>
    </message>
    <message>
        <source>Drop an image here</source>
        <translation>Déposez une image ici</translation>
    </message>
    <message>
        <source>Unable to write tags to file &quot;%@&quot;.</source>
        <translation>Impossible d’écrire les tags dans le fichier « %@ ».</translation>
    </message>
    <message>
        <source>Be sure you have permissions to write to the file, and that it is a valid media file.</source>
        <translation>Vérifiez que vous avez le droit d’écrire dans le fichier et qu’il s’agit bien d’un fichier multimédia.</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Preview picture</source>
        <translation>Image d’aperçu</translation>
    </message>
    <message>
        <source>Preview of the selected file</source>
        <translation>Aperçu du fichier sélectionné</translation>
    </message>
    <message>
        <source>Play or pause the preview</source>
        <translation>Lire l’aperçu ou le mettre en pause</translation>
    </message>
    <message>
        <source>Position in the preview</source>
        <translation>Position dans l’aperçu</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Couper</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>Cop&amp;ier</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Coll&amp;er</translation>
    </message>
    <message>
        <source>Search a site to see its pages here</source>
        <translation>Lancez une recherche : les pages du site s’affichent ici</translation>
    </message>
    <message>
        <source>The web browser component is not installed.</source>
        <translation>Le composant de navigation Web n’est pas installé.</translation>
    </message>
    <message>
        <source>Waiting for the cover …</source>
        <translation>En attente de la jaquette…</translation>
    </message>
    <message>
        <source>Waiting for the cover from %1 …</source>
        <translation>En attente de la jaquette de %1…</translation>
    </message>
    <message>
        <source>Web pages are not shown when the program is run by the system administrator.</source>
        <translation>Les pages Web ne sont pas affichées lorsque le programme est lancé par l’administrateur système.</translation>
    </message>
    <message>
        <source>Looking for films and music…</source>
        <translation>Recherche de films et de musique…</translation>
    </message>
    <message>
        <source>No media files yet. Add files, or a folder to search, with the buttons above.</source>
        <translation>Aucun fichier multimédia pour l’instant. Ajoutez des fichiers, ou un dossier à parcourir, avec les boutons ci-dessus.</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Clear the field</source>
        <translation>Effacer le champ</translation>
    </message>
    <message>
        <source>Parts of the window</source>
        <translation>Parties de la fenêtre</translation>
    </message>
    <message>
        <source>Divider</source>
        <translation>Séparateur</translation>
    </message>
    <message>
        <source>Gives the parts of the window more or less room</source>
        <translation>Donne plus ou moins de place aux parties de la fenêtre</translation>
    </message>
    <message>
        <source>No cover art; drop an image here</source>
        <translation>Pas de jaquette ; déposez une image ici</translation>
    </message>
    <message>
        <source>An image of %@ pixels</source>
        <translation>Une image de %@ pixels</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lecture</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Song</source>
        <translation>Morceau</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>Other file</source>
        <translation>Autre fichier</translation>
    </message>
    <message>
        <source>Alt+J</source>
        <translation>Alt+K</translation>
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
        <translation>Alt+Z</translation>
    </message>
    <message>
        <source>Alt+W</source>
        <translation>Alt+V</translation>
    </message>
    <message>
        <source>Usage: velmora [FILE|FOLDER]...</source>
        <translation>Utilisation : velmora [FICHIER|DOSSIER]...</translation>
    </message>
    <message>
        <source>Edits titles, artists, covers and more of films and music.</source>
        <translation>Modifie les titres, artistes, jaquettes et autres tags des films et de la musique.</translation>
    </message>
    <message>
        <source>  FILE       is listed; a single one is opened</source>
        <translation>  FICHIER    est ajouté à la liste ; un fichier seul est ouvert</translation>
    </message>
    <message>
        <source>  FOLDER     is searched for films and music</source>
        <translation>  DOSSIER    est parcouru à la recherche de films et de musique</translation>
    </message>
    <message>
        <source>  --help     prints this and ends</source>
        <translation>  --help     affiche ce texte et s’arrête</translation>
    </message>
    <message>
        <source>  --version  prints the version and ends</source>
        <translation>  --version  affiche la version et s’arrête</translation>
    </message>
    <message>
        <source>velmora: unknown option %@; --help tells the others</source>
        <translation>velmora : option inconnue %@ ; --help indique les options valides</translation>
    </message>
    <message>
        <source>Files of this kind carry no tag</source>
        <translation>Les fichiers de ce type ne portent pas de tag</translation>
    </message>
    <message>
        <source>Files of this kind have no such field</source>
        <translation>Les fichiers de ce type n’ont pas ce champ</translation>
    </message>
    <message>
        <source>The file is damaged</source>
        <translation>Le fichier est endommagé</translation>
    </message>
    <message>
        <source>The file is of a sort that can&#x27;t be saved safely</source>
        <translation>Ce type de fichier ne peut pas être enregistré sans risque</translation>
    </message>
    <message>
        <source>Something is too large for this kind of file</source>
        <translation>Un élément est trop grand pour ce type de fichier</translation>
    </message>
    <message>
        <source>It is no ordinary file</source>
        <translation>Ce n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>The file is write-protected</source>
        <translation>Le fichier est protégé en écriture</translation>
    </message>
    <message>
        <source>The file has further hard links, which would keep the old contents</source>
        <translation>Le fichier a d’autres liens physiques, qui garderaient l’ancien contenu</translation>
    </message>
    <message>
        <source>Another program changed the file meanwhile</source>
        <translation>Un autre programme a modifié le fichier entre-temps</translation>
    </message>
    <message>
        <source>No space is left for the new file</source>
        <translation>Il n’y a plus de place pour le nouveau fichier</translation>
    </message>
    <message>
        <source>The new file would have lost something</source>
        <translation>Le nouveau fichier aurait perdu quelque chose</translation>
    </message>
    <message>
        <source>The system could not confirm that the folder is on the disk</source>
        <translation>Le système n’a pas pu confirmer que le dossier est bien sur le disque</translation>
    </message>
    <message>
        <source>The save was cancelled</source>
        <translation>L’enregistrement a été annulé</translation>
    </message>
    <message>
        <source>The file&#x27;s old contents can&#x27;t be kept for an undo: %@</source>
        <translation>L’ancien contenu du fichier ne peut pas être conservé en vue d’une annulation : %@</translation>
    </message>
    <message>
        <source>Its tag can&#x27;t be changed in place</source>
        <translation>Son tag ne peut pas être modifié sur place</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Close this notice</source>
        <translation>Fermer cet avis</translation>
    </message>
    <message>
        <source>Saving &quot;%@&quot;…</source>
        <translation>Enregistrement de « %@ »…</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Leave the file as it was</source>
        <translation>Laisser le fichier tel qu’il était</translation>
    </message>
    <message>
        <source>The portable tags of &quot;%@&quot; can&#x27;t be read.</source>
        <translation>Les tags portables de « %@ » ne peuvent pas être lus.</translation>
    </message>
    <message>
        <source>Other programs see more in this file</source>
        <translation>D’autres programmes en voient plus dans ce fichier</translation>
    </message>
    <message>
        <source>Show It</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>Switch to the tags that other programs read</source>
        <translation>Passer aux tags que lisent les autres programmes</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>Toujours</translation>
    </message>
    <message>
        <source>Switch to these tags, now and at each start</source>
        <translation>Passer à ces tags, maintenant et à chaque démarrage</translation>
    </message>
    <message>
        <source>&quot;%@&quot; was not saved.</source>
        <translation>« %@ » n’a pas été enregistré.</translation>
    </message>
    <message>
        <source>&quot;%@&quot; was saved, but not all of it can be read back.</source>
        <translation>« %@ » a été enregistré, mais tout ne peut pas être relu.</translation>
    </message>
    <message>
        <source>Save With Portable Tags</source>
        <translation>Enregistrer avec des tags portables</translation>
    </message>
    <message>
        <source>Write the changes into the tags that other programs read, and replace the file in one step</source>
        <translation>Écrire les modifications dans les tags que lisent les autres programmes, et remplacer le fichier en une seule étape</translation>
    </message>
    <message>
        <source>Save so, and do so from now on, also after the next start</source>
        <translation>Enregistrer ainsi, désormais et aussi après le prochain démarrage</translation>
    </message>
    <message>
        <source>Saved. Other programs see it: %@</source>
        <translation>Enregistré. Les autres programmes le voient : %@</translation>
    </message>
    <message>
        <source>Saved. Other programs read no tag in files of this kind: %@</source>
        <translation>Enregistré. Les autres programmes ne lisent aucun tag dans ce type de fichiers : %@</translation>
    </message>
    <message>
        <source>Replace Anyway</source>
        <translation>Remplacer quand même</translation>
    </message>
    <message>
        <source>The other links keep the old contents</source>
        <translation>Les autres liens gardent l’ancien contenu</translation>
    </message>
    <message>
        <source>&quot;%@&quot; was not saved; its edits are kept.</source>
        <translation>« %@ » n’a pas été enregistré ; ses modifications sont conservées.</translation>
    </message>
    <message>
        <source>Restore Unsaved Edits</source>
        <translation>Restaurer les modifications non enregistrées</translation>
    </message>
    <message>
        <source>Open the file again whose edits could not be saved, and put them back</source>
        <translation>Rouvrir le fichier dont les modifications n’ont pas pu être enregistrées, et les y remettre</translation>
    </message>
    <message>
        <source>The edits of &quot;%@&quot; are back, and not saved yet.</source>
        <translation>Les modifications de « %@ » sont de retour, mais pas encore enregistrées.</translation>
    </message>
    <message>
        <source>A percent sign stands alone. Write %% for a percent sign.</source>
        <translation>Un signe pour cent est isolé. Écrivez %% pour un signe pour cent.</translation>
    </message>
    <message>
        <source>There is no field &quot;%@&quot;.</source>
        <translation>Il n’y a pas de champ « %@ ».</translation>
    </message>
    <message>
        <source>The name does not fit the pattern</source>
        <translation>Le nom ne correspond pas au modèle</translation>
    </message>
    <message>
        <source>Files of this kind have no such field: %@</source>
        <translation>Les fichiers de ce type n’ont pas ce champ : %@</translation>
    </message>
    <message>
        <source>It says so already</source>
        <translation>Cette valeur y figure déjà</translation>
    </message>
    <message>
        <source>It has that name already</source>
        <translation>Il porte déjà ce nom</translation>
    </message>
    <message>
        <source>The name is cut: it would be too long</source>
        <translation>Le nom est raccourci : il serait trop long</translation>
    </message>
    <message>
        <source>No value: %@</source>
        <translation>Pas de valeur : %@</translation>
    </message>
    <message>
        <source>No name is left of the values</source>
        <translation>Ces valeurs ne donnent aucun nom</translation>
    </message>
    <message>
        <source>The file keeps its name: its tag lies in another file that goes by it</source>
        <translation>Le fichier garde son nom : son tag se trouve dans un autre fichier qui en dépend</translation>
    </message>
    <message>
        <source>Another row has that name or is to get it</source>
        <translation>Une autre ligne porte ce nom ou va le recevoir</translation>
    </message>
    <message>
        <source>There is a file of that name</source>
        <translation>Un fichier porte déjà ce nom</translation>
    </message>
    <message>
        <source>Its tags have not been read yet</source>
        <translation>Ses tags n’ont pas encore été lus</translation>
    </message>
    <message>
        <source>Its tags can&#x27;t be read</source>
        <translation>Ses tags ne peuvent pas être lus</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Remarque</translation>
    </message>
    <message>
        <source>Tags from Names</source>
        <translation>Tags d’après les noms</translation>
    </message>
    <message>
        <source>Names from Tags</source>
        <translation>Noms d’après les tags</translation>
    </message>
    <message>
        <source>&amp;Pattern:</source>
        <translation>&amp;Modèle :</translation>
    </message>
    <message>
        <source>Fields between percent signs, and the text between them</source>
        <translation>Les champs entre signes pour cent, et le texte qui les sépare</translation>
    </message>
    <message>
        <source>&amp;Insert Field</source>
        <translation>&amp;Insérer un champ</translation>
    </message>
    <message>
        <source>Put a field into the pattern</source>
        <translation>Insérer un champ dans le modèle</translation>
    </message>
    <message>
        <source>%skip% stands for text that is left out, a slash for a folder.</source>
        <translation>%skip% désigne un texte à ignorer, une barre oblique un dossier.</translation>
    </message>
    <message>
        <source>%folder% stands for the name of the file&#x27;s folder.</source>
        <translation>%folder% désigne le nom du dossier du fichier.</translation>
    </message>
    <message>
        <source>What becomes of every file</source>
        <translation>Ce que devient chaque fichier</translation>
    </message>
    <message>
        <source>Show only files that something is &amp;wrong with</source>
        <translation>&amp;N’afficher que les fichiers posant problème</translation>
    </message>
    <message>
        <source>Hide the files that the pattern fits</source>
        <translation>Masquer les fichiers qui correspondent au modèle</translation>
    </message>
    <message>
        <source>&amp;Set Tags</source>
        <translation>&amp;Définir les tags</translation>
    </message>
    <message>
        <source>&amp;Set Names</source>
        <translation>Définir &amp;les noms</translation>
    </message>
    <message>
        <source>Make these edits of the table; no file changes before they are applied</source>
        <translation>En faire des modifications du tableau ; aucun fichier ne change tant qu’elles ne sont pas appliquées</translation>
    </message>
    <message>
        <source>Leave everything as it is</source>
        <translation>Tout laisser tel quel</translation>
    </message>
    <message>
        <source>New Name</source>
        <translation>Nouveau nom</translation>
    </message>
    <message>
        <source>The preview is being made.</source>
        <translation>L’aperçu est en préparation.</translation>
    </message>
    <message>
        <source>Files that change: %@.</source>
        <translation>Fichiers à modifier : %@.</translation>
    </message>
    <message>
        <source>Files that something is wrong with: %@; they are left alone.</source>
        <translation>Fichiers posant problème : %@ ; ils restent tels quels.</translation>
    </message>
    <message>
        <source>&amp;Tags from Names…</source>
        <translation>&amp;Tags d’après les noms…</translation>
    </message>
    <message>
        <source>Take the tags of the selected files from their names, by a pattern</source>
        <translation>Déduire les tags des fichiers sélectionnés de leurs noms, selon un modèle</translation>
    </message>
    <message>
        <source>&amp;Names from Tags…</source>
        <translation>&amp;Noms d’après les tags…</translation>
    </message>
    <message>
        <source>Give the selected files names made of their tags, by a pattern</source>
        <translation>Former les noms des fichiers sélectionnés à partir de leurs tags, selon un modèle</translation>
    </message>
    <message>
        <source>The pattern is empty.</source>
        <translation>Le modèle est vide.</translation>
    </message>
    <message>
        <source>There is nothing beside a slash.</source>
        <translation>Il n’y a rien à côté d’une barre oblique.</translation>
    </message>
    <message>
        <source>Nothing divides one field from the next.</source>
        <translation>Rien ne sépare un champ du suivant.</translation>
    </message>
    <message>
        <source>A field comes twice.</source>
        <translation>Un champ figure deux fois.</translation>
    </message>
    <message>
        <source>%skip% has no place in a new name.</source>
        <translation>%skip% n’a pas sa place dans un nouveau nom.</translation>
    </message>
    <message>
        <source>A name has no slash: files stay in their folders.</source>
        <translation>Un nom ne contient pas de barre oblique : les fichiers restent dans leurs dossiers.</translation>
    </message>
    <message>
        <source>There is no field in the pattern.</source>
        <translation>Le modèle ne contient aucun champ.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s)</source>
        <translation>
            <numerusform>%Ln fichier</numerusform>
            <numerusform>%Ln fichiers</numerusform>
        </translation>
    </message>
    <message>
        <source>%@ not applied</source>
        <translation>Non appliqués : %@</translation>
    </message>
    <message>
        <source>%@ selected</source>
        <translation>Sélectionnés : %@</translation>
    </message>
    <message>
        <source>%@ shown</source>
        <translation>Affichés : %@</translation>
    </message>
    <message>
        <source>%@ to be read</source>
        <translation>À lire : %@</translation>
    </message>
    <message>
        <source>%@, not applied</source>
        <translation>%@, non appliqué</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>Album / Director</source>
        <translation>Album / Réalisation</translation>
    </message>
    <message>
        <source>Artist / Cast</source>
        <translation>Artiste / Distribution</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Jaquette</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>Genre</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>Médiathèque</translation>
    </message>
    <message>
        <source>Library Table</source>
        <translation>Tableau de la médiathèque</translation>
    </message>
    <message>
        <source>Rating</source>
        <translation>Classification</translation>
    </message>
    <message>
        <source>Synopsis / Comment</source>
        <translation>Synopsis / Commentaire</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Tags</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Année</translation>
    </message>
    <message>
        <source>User Guide</source>
        <translation>Guide d’utilisation</translation>
    </message>
    <message>
        <source>The guide&#x27;s text</source>
        <translation>Le texte du guide</translation>
    </message>
    <message>
        <source>&amp;Go to:</source>
        <translation>&amp;Aller à :</translation>
    </message>
    <message>
        <source>Go to a heading of the guide</source>
        <translation>Aller à un titre du guide</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>&amp;Rechercher :</translation>
    </message>
    <message>
        <source>Find words in the guide; Return goes to the next place</source>
        <translation>Chercher des mots dans le guide ; Entrée passe au résultat suivant</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Introuvable</translation>
    </message>
    <message>
        <source>The user guide is not installed.</source>
        <translation>Le guide d’utilisation n’est pas installé.</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Touche</translation>
    </message>
    <message>
        <source>What it does</source>
        <translation>Effet</translation>
    </message>
    <message>
        <source>Every key and what it does</source>
        <translation>Toutes les touches et leur effet</translation>
    </message>
    <message>
        <source>Close this window</source>
        <translation>Fermer cette fenêtre</translation>
    </message>
    <message>
        <source>%@ menu</source>
        <translation>Menu %@</translation>
    </message>
    <message>
        <source>Letters, in the list</source>
        <translation>Lettres, dans la liste</translation>
    </message>
    <message>
        <source>The next name that begins with them</source>
        <translation>Le nom suivant qui commence ainsi</translation>
    </message>
    <message>
        <source>In the list: the file above, below</source>
        <translation>Dans la liste : le fichier au-dessus, au-dessous</translation>
    </message>
    <message>
        <source>On the cover: cut it</source>
        <translation>Sur la jaquette : la couper</translation>
    </message>
    <message>
        <source>On the cover: copy it</source>
        <translation>Sur la jaquette : la copier</translation>
    </message>
    <message>
        <source>On the cover: paste one</source>
        <translation>Sur la jaquette : en coller une</translation>
    </message>
    <message>
        <source>The next control</source>
        <translation>L’élément suivant</translation>
    </message>
    <message>
        <source>The control before</source>
        <translation>L’élément précédent</translation>
    </message>
    <message>
        <source>The menus</source>
        <translation>Les menus</translation>
    </message>
    <message>
        <source>The buttons of the line above the form</source>
        <translation>Les boutons de la ligne au-dessus du formulaire</translation>
    </message>
    <message>
        <source>Ends the wait for a page or a cover; closes the line above the form</source>
        <translation>Met fin à l’attente d’une page ou d’une jaquette ; ferme la ligne au-dessus du formulaire</translation>
    </message>
    <message>
        <source>About Velmora</source>
        <translation>À propos de Velmora</translation>
    </message>
    <message>
        <source>MIT licence: free to use, to change and to pass on, without any warranty.</source>
        <translation>Licence MIT : utilisation, modification et redistribution libres, sans aucune garantie.</translation>
    </message>
    <message>
        <source>Built on Qt %@ with its web engine and multimedia, TagLib, GStreamer, libjpeg and libpng, each under its own licence.</source>
        <translation>Repose sur Qt %@ avec son moteur Web et ses modules multimédias, TagLib, GStreamer, libjpeg et libpng, chacun sous sa propre licence.</translation>
    </message>
    <message>
        <source>What Velmora is and what it is built on</source>
        <translation>Ce qu’est Velmora et ce sur quoi il repose</translation>
    </message>
    <message>
        <source>The window will look like this at each start.</source>
        <translation>La fenêtre aura cet aspect à chaque démarrage.</translation>
    </message>
    <message>
        <source>The layout can&#x27;t be remembered: the settings file can&#x27;t be written.</source>
        <translation>La disposition ne peut pas être mémorisée : le fichier de réglages ne peut pas être écrit.</translation>
    </message>
    <message>
        <source>Nothing is remembered any more: there is no settings file.</source>
        <translation>Plus rien n’est mémorisé : il n’y a pas de fichier de réglages.</translation>
    </message>
    <message>
        <source>The settings file can&#x27;t be removed.</source>
        <translation>Le fichier de réglages ne peut pas être supprimé.</translation>
    </message>
    <message>
        <source>The next start will not know of it: the settings file can&#x27;t be written.</source>
        <translation>Le prochain démarrage n’en saura rien : le fichier de réglages ne peut pas être écrit.</translation>
    </message>
    <message>
        <source>&quot;%@&quot; can&#x27;t be written.</source>
        <translation>Impossible d’écrire « %@ ».</translation>
    </message>
    <message>
        <source>%@ a second</source>
        <translation>%@ par seconde</translation>
    </message>
    <message>
        <source>%@ changed since and left alone</source>
        <translation>%@ modifiés depuis et laissés tels quels</translation>
    </message>
    <message>
        <source>%@ done</source>
        <translation>%@ terminés</translation>
    </message>
    <message>
        <source>%@ failed</source>
        <translation>%@ en échec</translation>
    </message>
    <message>
        <source>%@ files</source>
        <translation>%@ fichiers</translation>
    </message>
    <message>
        <source>%@ left</source>
        <translation>reste %@</translation>
    </message>
    <message>
        <source>%@ not reached</source>
        <translation>%@ non traités</translation>
    </message>
    <message>
        <source>%@ unchanged</source>
        <translation>%@ inchangés</translation>
    </message>
    <message>
        <source>&amp;Artist or cast:</source>
        <translation>Arti&amp;ste ou distribution :</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>&amp;Choisir…</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;Genre:</source>
        <translation>&amp;Genre :</translation>
    </message>
    <message>
        <source>&amp;Revert</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titre :</translation>
    </message>
    <message>
        <source>&amp;Year:</source>
        <translation>A&amp;nnée :</translation>
    </message>
    <message>
        <source>A&amp;pply</source>
        <translation>A&amp;ppliquer</translation>
    </message>
    <message>
        <source>Al&amp;bum or director:</source>
        <translation>Al&amp;bum ou réalisation :</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>C&amp;over:</source>
        <translation>&amp;Jaquette :</translation>
    </message>
    <message>
        <source>Cancelled before its turn</source>
        <translation>Annulé avant son tour</translation>
    </message>
    <message>
        <source>Changed since, left alone</source>
        <translation>Modifié depuis, laissé tel quel</translation>
    </message>
    <message>
        <source>Choose a Cover</source>
        <translation>Choisir une jaquette</translation>
    </message>
    <message>
        <source>Choose a picture as the cover of the selected files</source>
        <translation>Choisir une image comme jaquette des fichiers sélectionnés</translation>
    </message>
    <message>
        <source>Close the summary</source>
        <translation>Fermer le résumé</translation>
    </message>
    <message>
        <source>Copy the current column of the selected rows</source>
        <translation>Copier la colonne actuelle des lignes sélectionnées</translation>
    </message>
    <message>
        <source>Copy the paths of the selected files</source>
        <translation>Copier les chemins des fichiers sélectionnés</translation>
    </message>
    <message>
        <source>Copy the selected rows with the columns that are shown, for a spreadsheet</source>
        <translation>Copier les lignes sélectionnées avec les colonnes affichées, pour un tableur</translation>
    </message>
    <message>
        <source>Do you want to remove files with edits that are not applied?</source>
        <translation>Voulez-vous retirer des fichiers dont les modifications ne sont pas appliquées ?</translation>
    </message>
    <message numerus="yes">
        <source>The edits of %Ln file(s) will be lost.</source>
        <translation>
            <numerusform>Les modifications de %Ln fichier seront perdues.</numerusform>
            <numerusform>Les modifications de %Ln fichiers seront perdues.</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>A file is still being saved in the main window. Try again when that is done.</source>
        <translation>La fenêtre principale enregistre encore un fichier. Réessayez quand elle aura terminé.</translation>
    </message>
    <message>
        <source>Drop Them</source>
        <translation>Les abandonner</translation>
    </message>
    <message>
        <source>Drop what was edited in the selected files and not applied</source>
        <translation>Abandonner ce qui a été modifié sans être appliqué dans les fichiers sélectionnés</translation>
    </message>
    <message>
        <source>Edit the text of the current cell</source>
        <translation>Modifier le texte de la cellule actuelle</translation>
    </message>
    <message>
        <source>Edits in the library table are not applied yet.</source>
        <translation>Des modifications du tableau de la médiathèque ne sont pas encore appliquées.</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Files that were not changed</source>
        <translation>Fichiers non modifiés</translation>
    </message>
    <message>
        <source>Give the files of the last apply their old values and names back</source>
        <translation>Rendre aux fichiers leurs valeurs et leurs noms d’avant la dernière commande « Appliquer »</translation>
    </message>
    <message>
        <source>Move Column Left</source>
        <translation>Déplacer la colonne vers la gauche</translation>
    </message>
    <message>
        <source>Move Column Right</source>
        <translation>Déplacer la colonne vers la droite</translation>
    </message>
    <message>
        <source>Open the file in the program&#x27;s main window</source>
        <translation>Ouvrir le fichier dans la fenêtre principale du programme</translation>
    </message>
    <message>
        <source>Open the folder in which the file is</source>
        <translation>Ouvrir le dossier où se trouve le fichier</translation>
    </message>
    <message>
        <source>Put the cells of the clipboard into the table from the current cell on</source>
        <translation>Mettre les cellules du presse-papiers dans le tableau à partir de la cellule actuelle</translation>
    </message>
    <message>
        <source>Rat&amp;ing:</source>
        <translation>Class&amp;ification :</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>Suppri&amp;mer</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Raison</translation>
    </message>
    <message>
        <source>Remove the cover from the selected files</source>
        <translation>Supprimer la jaquette des fichiers sélectionnés</translation>
    </message>
    <message>
        <source>Show only the files that have these words in any column; artist:, year:1990-1999, missing:cover and the like look closer</source>
        <translation>N’afficher que les fichiers qui contiennent ces mots dans une colonne ; artist:, year:1990-1999, missing:cover, etc. précisent la recherche</translation>
    </message>
    <message>
        <source>Stop; each file is as it was or as it was to be</source>
        <translation>Arrêter ; chaque fichier reste tel quel ou est déjà tel qu’il devait être</translation>
    </message>
    <message>
        <source>Sy&amp;nopsis or comment:</source>
        <translation>Synopsis o&amp;u commentaire :</translation>
    </message>
    <message>
        <source>Take the selected files off the list; they stay where they are</source>
        <translation>Retirer de la liste les fichiers sélectionnés ; ils restent où ils sont</translation>
    </message>
    <message>
        <source>The album of the selected songs, the director of the selected films</source>
        <translation>L’album des morceaux sélectionnés, la réalisation des films sélectionnés</translation>
    </message>
    <message>
        <source>The artist of the selected songs, the cast of the selected films</source>
        <translation>L’artiste des morceaux sélectionnés, la distribution des films sélectionnés</translation>
    </message>
    <message>
        <source>The cover of the selected files: drop a picture here, or paste one</source>
        <translation>La jaquette des fichiers sélectionnés : déposez ou collez une image ici</translation>
    </message>
    <message>
        <source>The files that were not changed, and why</source>
        <translation>Les fichiers non modifiés, et pourquoi</translation>
    </message>
    <message>
        <source>The genre: choose one or type your own</source>
        <translation>Le genre : choisissez-en un ou saisissez le vôtre</translation>
    </message>
    <message>
        <source>The parental rating of the selected films</source>
        <translation>La classification par âge des films sélectionnés</translation>
    </message>
    <message>
        <source>The table could not be exported.</source>
        <translation>Le tableau n’a pas pu être exporté.</translation>
    </message>
    <message>
        <source>The tags are right, the name is the old one: %@</source>
        <translation>Les tags sont corrects, mais le nom est toujours l’ancien : %@</translation>
    </message>
    <message>
        <source>The title of the selected files</source>
        <translation>Le titre des fichiers sélectionnés</translation>
    </message>
    <message>
        <source>The year of release, of up to four digits</source>
        <translation>L’année de sortie, quatre chiffres au plus</translation>
    </message>
    <message>
        <source>They are lost when the program ends.</source>
        <translation>Elles sont perdues quand le programme se termine.</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Try the files again that were not changed</source>
        <translation>Réessayer avec les fichiers non modifiés</translation>
    </message>
    <message>
        <source>Type what is to be shown</source>
        <translation>Saisir ce qui doit être affiché</translation>
    </message>
    <message>
        <source>Undo Apply</source>
        <translation>Annuler « Appliquer »</translation>
    </message>
    <message>
        <source>What the selected films are about, or a comment on the songs</source>
        <translation>Ce dont parlent les films sélectionnés, ou un commentaire sur les morceaux</translation>
    </message>
    <message>
        <source>Words, artist:name, year:1990-1999, missing:cover</source>
        <translation>Mots, artist:nom, year:1990-1999, missing:cover</translation>
    </message>
    <message>
        <source>Write the rows and columns that are shown into a file, as CSV or JSON</source>
        <translation>Écrire dans un fichier les lignes et colonnes affichées, en CSV ou JSON</translation>
    </message>
    <message>
        <source>Write what was edited into the files</source>
        <translation>Écrire les modifications dans les fichiers</translation>
    </message>
    <message>
        <source>Writing…</source>
        <translation>Écriture…</translation>
    </message>
    <message>
        <source>several covers</source>
        <translation>plusieurs jaquettes</translation>
    </message>
    <message>
        <source>several values</source>
        <translation>plusieurs valeurs</translation>
    </message>
    <message>
        <source>Name&amp;s</source>
        <translation>N&amp;oms</translation>
    </message>
    <message>
        <source>Ro&amp;w</source>
        <translation>&amp;Ligne</translation>
    </message>
    <message>
        <source>Fi&amp;lter:</source>
        <translation>Filtr&amp;e :</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Appliquer</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Exporter…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>&amp;Undo Apply</source>
        <translation>&amp;Annuler « Appliquer »</translation>
    </message>
    <message>
        <source>&amp;Edit Cell</source>
        <translation>&amp;Modifier la cellule</translation>
    </message>
    <message>
        <source>&amp;Copy Rows</source>
        <translation>&amp;Copier les lignes</translation>
    </message>
    <message>
        <source>Copy Co&amp;lumn</source>
        <translation>Copier la c&amp;olonne</translation>
    </message>
    <message>
        <source>&amp;Paste Cells</source>
        <translation>Co&amp;ller les cellules</translation>
    </message>
    <message>
        <source>&amp;Filter</source>
        <translation>&amp;Filtre</translation>
    </message>
    <message>
        <source>&amp;Sort By</source>
        <translation>&amp;Trier par</translation>
    </message>
    <message>
        <source>&amp;Then By</source>
        <translation>&amp;Puis par</translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation>&amp;Colonnes</translation>
    </message>
    <message>
        <source>&amp;Open in Editor</source>
        <translation>&amp;Ouvrir dans l’éditeur</translation>
    </message>
    <message>
        <source>&amp;Show in Folder</source>
        <translation>&amp;Afficher dans le dossier</translation>
    </message>
    <message>
        <source>&amp;Copy Path</source>
        <translation>&amp;Copier le chemin</translation>
    </message>
    <message>
        <source>&amp;Remove from List</source>
        <translation>&amp;Retirer de la liste</translation>
    </message>
    <message>
        <source>The listed files and what their tags say</source>
        <translation>Les fichiers de la liste et ce que disent leurs tags</translation>
    </message>
    <message>
        <source>Locate File…</source>
        <translation>Localiser le fichier…</translation>
    </message>
    <message>
        <source>Show where the file is now: it is opened there with your edits, which are not saved yet</source>
        <translation>Indiquer où se trouve maintenant le fichier : il y est ouvert avec vos modifications, pas encore enregistrées</translation>
    </message>
    <message>
        <source>Locate &quot;%@&quot;</source>
        <translation>Localiser « %@ »</translation>
    </message>
    <message>
        <source>Cells that can't take what was pasted: %@</source>
        <translation>Cellules qui ne peuvent pas recevoir ce qui a été collé : %@</translation>
    </message>
</context>
<context>
    <name>MyDocument</name>
    <message>
        <source>&amp;Paste and Store Cover</source>
        <translation>Coller et &amp;valider la jaquette</translation>
    </message>
    <message>
        <source>Make the image that was copied the cover, which a save writes</source>
        <translation>Faire de l’image copiée la jaquette, écrite lors de l’enregistrement</translation>
    </message>
    <message>
        <source>&amp;Trim Border</source>
        <translation>R&amp;ogner la bordure</translation>
    </message>
    <message>
        <source>Trim a border of one colour off the cover art</source>
        <translation>Rogner une bordure unie de la jaquette</translation>
    </message>
    <message>
        <source>&amp;Delete Cover</source>
        <translation>&amp;Supprimer la jaquette</translation>
    </message>
    <message>
        <source>Take the cover away, which a save with portable tags writes</source>
        <translation>Retirer la jaquette, ce qu’un enregistrement avec des tags portables écrit dans le fichier</translation>
    </message>
    <message>
        <source>Delete &amp;All Tags from File…</source>
        <translation>Supprimer &amp;tous les tags du fichier…</translation>
    </message>
    <message>
        <source>Delete every tag of the file, for all programs</source>
        <translation>Supprimer tous les tags du fichier, pour tous les programmes</translation>
    </message>
    <message>
        <source>&amp;Add Files…</source>
        <translation>&amp;Ajouter des fichiers…</translation>
    </message>
    <message>
        <source>Add F&amp;older…</source>
        <translation>Ajouter un &amp;dossier…</translation>
    </message>
    <message>
        <source>&amp;Revert</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>Éditio&amp;n</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Find in List</source>
        <translation>Rechercher &amp;dans la liste</translation>
    </message>
    <message>
        <source>&amp;Load Cover Art…</source>
        <translation>Charger une &amp;jaquette…</translation>
    </message>
    <message>
        <source>Look &amp;Up on the Web</source>
        <translation>Re&amp;chercher sur le Web</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>Sort by &amp;Name</source>
        <translation>Trier par &amp;nom</translation>
    </message>
    <message>
        <source>Sort by &amp;Size</source>
        <translation>&amp;Trier par taille</translation>
    </message>
    <message>
        <source>Sort by &amp;Date</source>
        <translation>Trier par &amp;date</translation>
    </message>
    <message>
        <source>&amp;Portable Tags</source>
        <translation>&amp;Tags portables</translation>
    </message>
    <message>
        <source>Open and save with the tags that other programs read</source>
        <translation>Ouvrir et enregistrer avec les tags que lisent les autres programmes</translation>
    </message>
    <message>
        <source>Restore Unsaved &amp;Edits</source>
        <translation>&amp;Restaurer les modifications non enregistrées</translation>
    </message>
    <message>
        <source>Open the file again whose edits could not be saved, and put them back</source>
        <translation>Rouvrir le fichier dont les modifications n’ont pas pu être enregistrées, et les remettre</translation>
    </message>
    <message>
        <source>&amp;Library Table</source>
        <translation>Tableau de &amp;la médiathèque</translation>
    </message>
    <message>
        <source>Show all files of the list with their tags, and edit many at once</source>
        <translation>Afficher tous les fichiers de la liste avec leurs tags, et en modifier plusieurs à la fois</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>&amp;User Guide</source>
        <translation>&amp;Guide d’utilisation</translation>
    </message>
    <message>
        <source>&amp;Keyboard</source>
        <translation>&amp;Raccourcis clavier</translation>
    </message>
    <message>
        <source>&amp;About Velmora</source>
        <translation>À propos &amp;de Velmora</translation>
    </message>
    <message>
        <source>&amp;Remember This Layout</source>
        <translation>&amp;Mémoriser cette disposition</translation>
    </message>
    <message>
        <source>Start with this size, division, column widths and sorting from now on</source>
        <translation>Démarrer désormais avec cette taille, cette répartition, ces largeurs de colonnes et ce tri</translation>
    </message>
    <message>
        <source>&amp;Forget Everything</source>
        <translation>Tout &amp;oublier</translation>
    </message>
    <message>
        <source>Remove the settings file, with the layout and the choice of portable tags</source>
        <translation>Supprimer le fichier de réglages, avec la disposition et le choix des tags portables</translation>
    </message>
</context>
<context>
    <name>MediaList</name>
    <message>
        <source>&amp;Add Files…</source>
        <translation>Ajouter de&amp;s fichiers…</translation>
    </message>
    <message>
        <source>Add files to the list</source>
        <translation>Ajouter des fichiers à la liste</translation>
    </message>
    <message>
        <source>Add F&amp;older…</source>
        <translation>Ajouter &amp;un dossier…</translation>
    </message>
    <message>
        <source>Search a folder for media files</source>
        <translation>Chercher des fichiers multimédias dans un dossier</translation>
    </message>
    <message>
        <source>Turns while folders are searched</source>
        <translation>Tourne pendant la recherche dans les dossiers</translation>
    </message>
    <message>
        <source>Search in progress</source>
        <translation>Recherche en cours</translation>
    </message>
    <message>
        <source>The folder that is being searched</source>
        <translation>Le dossier en cours de recherche</translation>
    </message>
    <message>
        <source>Sto&amp;p</source>
        <translation>Interro&amp;mpre</translation>
    </message>
    <message>
        <source>Stop the search</source>
        <translation>Interrompre la recherche</translation>
    </message>
    <message>
        <source>The media files found; type a name to find one</source>
        <translation>Les fichiers multimédias trouvés ; tapez un nom pour en chercher un</translation>
    </message>
    <message>
        <source>Media files</source>
        <translation>Fichiers multimédias</translation>
    </message>
</context>
<context>
    <name>TagForm</name>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titre :</translation>
    </message>
    <message>
        <source>The title of the film or song</source>
        <translation>Le titre du film ou du morceau</translation>
    </message>
    <message>
        <source>&amp;Year:</source>
        <translation>&amp;Année :</translation>
    </message>
    <message>
        <source>The year of release</source>
        <translation>L’année de sortie</translation>
    </message>
    <message>
        <source>Artist:</source>
        <translation>Artiste :</translation>
    </message>
    <message>
        <source>The artist of a song, the cast of a film</source>
        <translation>L’artiste d’un morceau, la distribution d’un film</translation>
    </message>
    <message>
        <source>&amp;Genre:</source>
        <translation>&amp;Genre :</translation>
    </message>
    <message>
        <source>The genre: choose one or type your own</source>
        <translation>Le genre : choisissez-en un ou saisissez le vôtre</translation>
    </message>
    <message>
        <source>Album:</source>
        <translation>Album :</translation>
    </message>
    <message>
        <source>The album of a song, the director of a film</source>
        <translation>L’album d’un morceau, la réalisation d’un film</translation>
    </message>
    <message>
        <source>Rat&amp;ing:</source>
        <translation>Class&amp;ification :</translation>
    </message>
    <message>
        <source>The parental rating of a film</source>
        <translation>La classification par âge d’un film</translation>
    </message>
    <message>
        <source>Sy&amp;nopsis:</source>
        <translation>S&amp;ynopsis :</translation>
    </message>
    <message>
        <source>What the film is about</source>
        <translation>Ce dont parle le film</translation>
    </message>
    <message>
        <source>&amp;Date:</source>
        <translation>&amp;Date :</translation>
    </message>
    <message>
        <source>The date, for information: it is not written into the file</source>
        <translation>La date, à titre indicatif : elle n’est pas écrite dans le fichier</translation>
    </message>
    <message>
        <source>&amp;Cover Art:</source>
        <translation>&amp;Jaquette :</translation>
    </message>
    <message>
        <source>The cover art; drop an image here</source>
        <translation>La jaquette ; déposez une image ici</translation>
    </message>
    <message>
        <source>&amp;Load…</source>
        <translation>&amp;Charger…</translation>
    </message>
    <message>
        <source>Load cover art from an image file</source>
        <translation>Charger une jaquette à partir d’un fichier image</translation>
    </message>
    <message>
        <source>Tri&amp;m</source>
        <translation>&amp;Rogner</translation>
    </message>
    <message>
        <source>Trim a border of one colour off the cover art</source>
        <translation>Rogner une bordure unie de la jaquette</translation>
    </message>
    <message>
        <source>Remo&amp;ve Tag</source>
        <translation>Retirer &amp;le tag</translation>
    </message>
    <message>
        <source>Forget the changes without writing them</source>
        <translation>Oublier les modifications sans les écrire</translation>
    </message>
    <message>
        <source>&amp;Revert</source>
        <translation>Réta&amp;blir</translation>
    </message>
    <message>
        <source>Read the file again and drop the changes</source>
        <translation>Relire le fichier et abandonner les modifications</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Write the changes into the file (Ctrl+S)</source>
        <translation>Écrire les modifications dans le fichier (Ctrl+S)</translation>
    </message>
    <message>
        <source>for information only</source>
        <translation>à titre indicatif</translation>
    </message>
</context>
<context>
    <name>MoviePreview</name>
    <message>
        <source>Preview:</source>
        <translation>Aperçu :</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>A preview of the file</source>
        <translation>Un aperçu du fichier</translation>
    </message>
    <message>
        <source>This file can’t be previewed.</source>
        <translation>Aperçu impossible pour ce fichier.</translation>
    </message>
    <message>
        <source>Ta&amp;ke Frame</source>
        <translation>&amp;Prendre l’image</translation>
    </message>
    <message>
        <source>Take the frame shown as cover art</source>
        <translation>Utiliser l’image affichée comme jaquette</translation>
    </message>
</context>
<context>
    <name>TagWebBrowser</name>
    <message>
        <source>Look &amp;up:</source>
        <translation>Sur le &amp;Web :</translation>
    </message>
    <message>
        <source>The site to search</source>
        <translation>Le site à interroger</translation>
    </message>
    <message>
        <source>The text to search for</source>
        <translation>Le texte à rechercher</translation>
    </message>
    <message>
        <source>Searc&amp;h</source>
        <translation>Rec&amp;hercher</translation>
    </message>
    <message>
        <source>Search the site for the text</source>
        <translation>Rechercher le texte sur le site</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>Ret&amp;our</translation>
    </message>
    <message>
        <source>Go back to the page before</source>
        <translation>Revenir à la page précédente</translation>
    </message>
    <message>
        <source>Turns while a page loads</source>
        <translation>Tourne pendant le chargement d’une page</translation>
    </message>
    <message>
        <source>Page loading</source>
        <translation>Chargement de la page</translation>
    </message>
    <message>
        <source>Fill Form</source>
        <translation>Remplir le formulaire</translation>
    </message>
    <message>
        <source>Fill the form from the page shown</source>
        <translation>Remplir le formulaire à partir de la page affichée</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Adresse :</translation>
    </message>
    <message>
        <source>The address of the page shown</source>
        <translation>L’adresse de la page affichée</translation>
    </message>
    <message>
        <source>Address of the page</source>
        <translation>Adresse de la page</translation>
    </message>
    <message>
        <source>What the form fill waits for</source>
        <translation>Ce qu’attend le remplissage du formulaire</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Fill the form without the cover (Esc)</source>
        <translation>Remplir le formulaire sans la jaquette (Échap)</translation>
    </message>
    <message>
        <source>The page</source>
        <translation>La page</translation>
    </message>
    <message>
        <source>Web page</source>
        <translation>Page Web</translation>
    </message>
    <message>
        <source>The page could not be loaded.</source>
        <translation>La page n’a pas pu être chargée.</translation>
    </message>
    <message>
        <source>Site:</source>
        <translation>Site :</translation>
    </message>
</context>
</TS>
