<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en_US">
<context>
    <name>Causes</name>
    <message>
        <source>%1.</source>
        <translation>%1.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Cannot edit %1: %2</source>
        <translation>Impossibile modificare %1: %2</translation>
    </message>
    <message>
        <source>Cannot rename %1: %2</source>
        <translation>Impossibile rinominare %1: %2</translation>
    </message>
    <message>
        <source>Cannot rename %1 to %2: %3</source>
        <translation>Impossibile rinominare %1 in %2: %3</translation>
    </message>
    <message>
        <source>Cannot read %1: %2</source>
        <translation>Impossibile leggere %1: %2</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>Impossibile scrivere %1: %2</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>impossibile scrivere %1: %2</translation>
    </message>
    <message>
        <source>its folder cannot be written to; change the permissions of %1</source>
        <translation>non si può scrivere nella sua cartella; cambi i permessi di %1</translation>
    </message>
    <message>
        <source>its folder lets only its owner change it; change the owner, or the permissions of %1</source>
        <translation>la sua cartella consente modifiche solo al proprietario; cambi il proprietario o i permessi di %1</translation>
    </message>
    <message>
        <source>its disk has no room for a new version of it (%1 bytes are needed, %2 are free); free space there</source>
        <translation>sul suo disco non c’è spazio per una nuova versione (servono %1 byte, ne sono liberi %2); liberi spazio</translation>
    </message>
    <message>
        <source>it is write-protected; allow writing to it, or use --force</source>
        <translation>è protetto da scrittura; consenta la scrittura o usi --force</translation>
    </message>
    <message>
        <source>its sidecar %1 is write-protected; allow writing to it, or use --force</source>
        <translation>il suo file collaterale %1 è protetto da scrittura; consenta la scrittura o usi --force</translation>
    </message>
    <message>
        <source>its sidecar must be edited with it. %1; repair or move the sidecar</source>
        <translation>il suo file collaterale va modificato insieme alla foto. %1; ripari o sposti il file collaterale</translation>
    </message>
    <message>
        <source>its sidecar %1 must be edited with it, but %2</source>
        <translation>il suo file collaterale %1 va modificato insieme alla foto, ma %2</translation>
    </message>
    <message>
        <source>it has no date to shift</source>
        <translation>non ha date da spostare</translation>
    </message>
    <message>
        <source>its year would not be 1 to 9999</source>
        <translation>il suo anno non sarebbe compreso tra 1 e 9999</translation>
    </message>
    <message>
        <source>its metadata cannot be changed without losing data (%1)</source>
        <translation>i suoi metadati non si possono modificare senza perdite (%1)</translation>
    </message>
    <message>
        <source>its metadata would be wrong afterwards</source>
        <translation>i suoi metadati poi sarebbero sbagliati</translation>
    </message>
    <message>
        <source>its EXIF data, which are kept as text, are damaged</source>
        <translation>i suoi dati EXIF, conservati come testo, sono danneggiati</translation>
    </message>
    <message>
        <source>its EXIF data are damaged</source>
        <translation>i suoi dati EXIF sono danneggiati</translation>
    </message>
    <message>
        <source>its XMP data are damaged</source>
        <translation>i suoi dati XMP sono danneggiati</translation>
    </message>
    <message>
        <source>its TIFF directory is damaged</source>
        <translation>la sua directory TIFF è danneggiata</translation>
    </message>
    <message>
        <source>its picture format is not known</source>
        <translation>il suo formato d’immagine è sconosciuto</translation>
    </message>
    <message>
        <source>its format cannot be edited</source>
        <translation>il suo formato non si può modificare</translation>
    </message>
    <message>
        <source>photos of the format %1 cannot be edited</source>
        <translation>le foto in formato %1 non si possono modificare</translation>
    </message>
    <message>
        <source>its picture would change</source>
        <translation>la sua immagine cambierebbe</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>è vuoto</translation>
    </message>
    <message>
        <source>it is damaged: %1</source>
        <translation>è danneggiato: %1</translation>
    </message>
    <message>
        <source>it is larger than 2 GiB</source>
        <translation>supera 2 GiB</translation>
    </message>
    <message>
        <source>it is larger than 4 MiB</source>
        <translation>supera 4 MiB</translation>
    </message>
    <message>
        <source>it was changed while it was read</source>
        <translation>è cambiato durante la lettura</translation>
    </message>
    <message>
        <source>editing it takes more memory than there is</source>
        <translation>la modifica richiede più memoria di quanta ce ne sia</translation>
    </message>
    <message>
        <source>its JPEG data is damaged</source>
        <translation>i suoi dati JPEG sono danneggiati</translation>
    </message>
    <message>
        <source>its JPEG data ends before the picture</source>
        <translation>i suoi dati JPEG finiscono prima dell’immagine</translation>
    </message>
    <message>
        <source>its JPEG data breaks off before the picture</source>
        <translation>i suoi dati JPEG si interrompono prima dell’immagine</translation>
    </message>
    <message>
        <source>there is no room left in its EXIF block</source>
        <translation>non c’è più spazio nel suo blocco EXIF</translation>
    </message>
    <message>
        <source>its PNG data breaks off</source>
        <translation>i suoi dati PNG si interrompono</translation>
    </message>
    <message>
        <source>its PNG data does not begin with a picture</source>
        <translation>i suoi dati PNG non iniziano con un’immagine</translation>
    </message>
    <message>
        <source>it has two EXIF blocks</source>
        <translation>ha due blocchi EXIF</translation>
    </message>
    <message>
        <source>its WebP data breaks off</source>
        <translation>i suoi dati WebP si interrompono</translation>
    </message>
    <message>
        <source>its WebP data holds no picture</source>
        <translation>i suoi dati WebP non contengono immagini</translation>
    </message>
    <message>
        <source>its %1 cannot be changed in place</source>
        <translation>%1 non si può modificare sul posto</translation>
    </message>
    <message>
        <source>its date cannot be changed in its %1 data</source>
        <translation>la sua data non si può modificare nei dati %1</translation>
    </message>
    <message>
        <source>its %1 cannot be changed in its %2 data</source>
        <translation>%1 non si può modificare nei dati %2</translation>
    </message>
    <message>
        <source>it breaks off before its end</source>
        <translation>si interrompe prima della fine</translation>
    </message>
    <message>
        <source>its text is damaged</source>
        <translation>il suo testo è danneggiato</translation>
    </message>
    <message>
        <source>it has too many properties</source>
        <translation>ha troppe proprietà</translation>
    </message>
    <message>
        <source>%1 is unchanged: %2</source>
        <translation>%1 è invariato: %2</translation>
    </message>
    <message>
        <source>%1 was edited, but the catalogue could not be updated (%2). The next run updates it</source>
        <translation>%1 è stato modificato, ma non è stato possibile aggiornare il catalogo (%2). La prossima esecuzione di lumidex lo aggiorna</translation>
    </message>
    <message>
        <source>%1 cannot be read back as what was written</source>
        <translation>%1 non si rilegge come è stato scritto</translation>
    </message>
    <message>
        <source>%1 is left as it is, because it belongs to %2</source>
        <translation>%1 è lasciato com’è, perché appartiene a %2</translation>
    </message>
    <message>
        <source>%1 is missing for now, but its versions are kept (%2). Free space on its disk and run &quot;lumidex undo&quot; again</source>
        <translation>%1 per ora manca, ma le sue versioni sono conservate (%2). Liberi spazio sul suo disco ed esegua di nuovo «lumidex undo»</translation>
    </message>
    <message>
        <source>%1 is left as it is: another program changed %2, where its other version was kept</source>
        <translation>%1 è lasciato com’è: un altro programma ha modificato %2, dove era conservata l’altra versione</translation>
    </message>
    <message>
        <source>%1 is left as it is: its disk has no room for its other version (%2 bytes). Free space there and try again</source>
        <translation>%1 è lasciato com’è: sul suo disco non c’è spazio per l’altra versione (%2 byte). Liberi spazio e riprovi</translation>
    </message>
    <message>
        <source>%1 is left as it is: its other version is no longer kept</source>
        <translation>%1 è lasciato com’è: l’altra versione non è più conservata</translation>
    </message>
    <message>
        <source>%1 was changed later and is left as it is</source>
        <translation>%1 è cambiato in seguito ed è lasciato com’è</translation>
    </message>
    <message>
        <source>%1 no longer exists</source>
        <translation>%1 non esiste più</translation>
    </message>
    <message>
        <source>%1 cannot be reached: its disk may not be connected</source>
        <translation>%1 non è raggiungibile: forse il suo disco non è collegato</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 non si può leggere: %2</translation>
    </message>
    <message>
        <source>The undo journal %1 cannot be used: %2</source>
        <translation>Il registro di annullamento %1 non si può usare: %2</translation>
    </message>
    <message>
        <source>another program is renaming or editing photos with it; try again when that has finished</source>
        <translation>un altro programma lo sta usando per rinominare o modificare foto; riprovi quando ha finito</translation>
    </message>
    <message>
        <source>no step is started without %1 MiB free for finishing and undoing it (%2)</source>
        <translation>nessun passo inizia senza %1 MiB liberi per completarlo e annullarlo (%2)</translation>
    </message>
    <message>
        <source>there is no room for undoing it (%1)</source>
        <translation>non c’è spazio per annullarlo (%1)</translation>
    </message>
    <message>
        <source>Cannot change the target of the link %1: %2</source>
        <translation>Impossibile cambiare la destinazione del collegamento %1: %2</translation>
    </message>
    <message>
        <source>Cannot move %1 to the trash: %2</source>
        <translation>Impossibile spostare %1 nel cestino: %2</translation>
    </message>
    <message>
        <source>no free name in the trash</source>
        <translation>nessun nome libero nel cestino</translation>
    </message>
    <message>
        <source>another file has that name</source>
        <translation>un altro file ha quel nome</translation>
    </message>
    <message>
        <source>another file has its former name</source>
        <translation>un altro file ha il suo vecchio nome</translation>
    </message>
    <message>
        <source>it is on another volume</source>
        <translation>si trova su un altro volume</translation>
    </message>
    <message>
        <source>it is no longer a file</source>
        <translation>non è più un file</translation>
    </message>
    <message>
        <source>%1 was kept, because its photo was kept</source>
        <translation>%1 è stato tenuto, perché la sua foto è stata tenuta</translation>
    </message>
    <message>
        <source>%1 was kept, because the photo kept in its place, %2, no longer exists</source>
        <translation>%1 è stato tenuto, perché la foto tenuta al suo posto, %2, non esiste più</translation>
    </message>
    <message>
        <source>%1 is in the trash as %2, which cannot be reached: its disk may not be connected</source>
        <translation>%1 è nel cestino come %2, che non è raggiungibile: forse il suo disco non è collegato</translation>
    </message>
    <message>
        <source>%1 may be in the trash as %2, which cannot be read: %3</source>
        <translation>%1 è forse nel cestino come %2, che non si può leggere: %3</translation>
    </message>
    <message>
        <source>%1 is no longer in the trash; another file has its name</source>
        <translation>%1 non è più nel cestino; un altro file ha il suo nome</translation>
    </message>
    <message>
        <source>%1 is no longer in the trash and cannot be brought back</source>
        <translation>%1 non è più nel cestino e non si può recuperare</translation>
    </message>
    <message>
        <source>%1 remains in the trash as %2: %3</source>
        <translation>%1 resta nel cestino come %2: %3</translation>
    </message>
    <message>
        <source>The album &quot;%1&quot; is kept, because photos were added to it later</source>
        <translation>L’album «%1» è tenuto, perché in seguito sono state aggiunte foto</translation>
    </message>
    <message>
        <source>The album &quot;%1&quot; no longer exists</source>
        <translation>L’album «%1» non esiste più</translation>
    </message>
    <message>
        <source>Another album has the name &quot;%1&quot; now</source>
        <translation>Un altro album ora si chiama «%1»</translation>
    </message>
    <message>
        <source>%1 is kept: %2.</source>
        <translation>%1 è tenuto: %2.</translation>
    </message>
    <message>
        <source>it is already in a trash</source>
        <translation>è già in un cestino</translation>
    </message>
    <message>
        <source>it is a link to another file</source>
        <translation>è un collegamento a un altro file</translation>
    </message>
    <message>
        <source>it no longer exists</source>
        <translation>non esiste più</translation>
    </message>
    <message>
        <source>it was changed after it was analysed</source>
        <translation>è cambiato dopo l’analisi</translation>
    </message>
    <message>
        <source>it was changed after it was compared</source>
        <translation>è cambiato dopo il confronto</translation>
    </message>
    <message>
        <source>it is another name of a file that is kept</source>
        <translation>è un altro nome di un file che si tiene</translation>
    </message>
    <message>
        <source>it is of the same shot as %1, which is kept</source>
        <translation>è dello stesso scatto di %1, che si tiene</translation>
    </message>
    <message>
        <source>it is like others of its group, but not like the photo to keep, %1</source>
        <translation>somiglia ad altre del gruppo, ma non alla foto da tenere, %1</translation>
    </message>
    <message>
        <source>it has tags or albums that the photo to keep, %1, does not have</source>
        <translation>ha tag o album che la foto da tenere, %1, non ha</translation>
    </message>
    <message>
        <source>it is a raw file, and no raw file of its group is kept</source>
        <translation>è un file RAW, e nessun file RAW del gruppo si tiene</translation>
    </message>
    <message>
        <source>its settings, %1, would be lost: the photo to keep, %2, does not have them</source>
        <translation>le sue impostazioni, %1, andrebbero perse: la foto da tenere, %2, non le ha</translation>
    </message>
    <message>
        <source>the link %1 leads to it</source>
        <translation>il collegamento %1 porta a esso</translation>
    </message>
    <message>
        <source>%1, to which it belongs, is kept</source>
        <translation>%1, a cui appartiene, si tiene</translation>
    </message>
    <message>
        <source>the settings in %1 were changed</source>
        <translation>le impostazioni in %1 sono cambiate</translation>
    </message>
    <message>
        <source>the photo to keep, %1, no longer exists</source>
        <translation>la foto da tenere, %1, non esiste più</translation>
    </message>
    <message>
        <source>the photo to keep, %1, was changed after it was analysed</source>
        <translation>la foto da tenere, %1, è cambiata dopo l’analisi</translation>
    </message>
    <message>
        <source>the photo to keep, %1, is no longer a file</source>
        <translation>la foto da tenere, %1, non è più un file</translation>
    </message>
    <message>
        <source>the photo to keep, %1, cannot be read (%2)</source>
        <translation>la foto da tenere, %1, non si può leggere (%2)</translation>
    </message>
    <message>
        <source>the photo to keep, %1, is in a trash</source>
        <translation>la foto da tenere, %1, è in un cestino</translation>
    </message>
    <message>
        <source>the photo to keep, %1, is a link to another file</source>
        <translation>la foto da tenere, %1, è un collegamento a un altro file</translation>
    </message>
    <message>
        <source>the photo to keep, %1, breaks off before the end of its picture</source>
        <translation>la foto da tenere, %1, si interrompe prima della fine dell’immagine</translation>
    </message>
    <message>
        <source>the photo to keep, %1, is damaged: %2</source>
        <translation>la foto da tenere, %1, è danneggiata: %2</translation>
    </message>
    <message>
        <source>Interrupted undo of &quot;%1&quot; is now complete.</source>
        <translation>L’annullamento interrotto di «%1» è ora completato.</translation>
    </message>
    <message>
        <source>Interrupted redo of &quot;%1&quot; is now complete.</source>
        <translation>La ripetizione interrotta di «%1» è ora completata.</translation>
    </message>
    <message>
        <source>Interrupted undo of &quot;%1&quot; is now complete, except for:</source>
        <translation>L’annullamento interrotto di «%1» è ora completato, tranne per:</translation>
    </message>
    <message>
        <source>Interrupted redo of &quot;%1&quot; is now complete, except for:</source>
        <translation>La ripetizione interrotta di «%1» è ora completata, tranne per:</translation>
    </message>
    <message>
        <source>Interrupted step &quot;%1&quot; is now complete.</source>
        <translation>Il passo interrotto «%1» è ora completato.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was interrupted and will be finished once %2 can be reached.</source>
        <translation>«%1» è stato interrotto e sarà completato appena %2 sarà raggiungibile.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was interrupted and cannot be finished (%2); the files have their former names.</source>
        <translation>«%1» è stato interrotto e non si può completare (%2); i file hanno i loro vecchi nomi.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was interrupted and cannot be finished (%2), nor undone (%3).</source>
        <translation>«%1» è stato interrotto e non si può completare (%2) né annullare (%3).</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was interrupted. Photos edited: %2; the others are unchanged.</source>
        <translation>«%1» è stato interrotto. Foto modificate: %2; le altre sono invariate.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was interrupted. Copies made: %2; run the same import to copy the rest.</source>
        <translation>«%1» è stato interrotto. Copie fatte: %2; ripeta la stessa importazione per copiare il resto.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was interrupted. Files moved: %2; the others are where they were.</source>
        <translation>«%1» è stato interrotto. File spostati: %2; gli altri sono dov’erano.</translation>
    </message>
    <message>
        <source>Originals that this catalogue does not know were moved to %1.</source>
        <translation>Gli originali che questo catalogo non conosce sono stati spostati in %1.</translation>
    </message>
    <message>
        <source>%1 and its sidecar disagree, because only one of them was edited (%2).</source>
        <translation>%1 e il suo file collaterale non concordano, perché solo uno dei due è stato modificato (%2).</translation>
    </message>
    <message>
        <source>It cannot be read</source>
        <translation>Non si può leggere</translation>
    </message>
    <message>
        <source>It is a pipe or a device</source>
        <translation>È una pipe o un dispositivo</translation>
    </message>
    <message>
        <source>It is not a regular file</source>
        <translation>Non è un file normale</translation>
    </message>
    <message>
        <source>It is empty</source>
        <translation>È vuoto</translation>
    </message>
    <message>
        <source>It is damaged: %1</source>
        <translation>È danneggiato: %1</translation>
    </message>
    <message>
        <source>Its picture format is not known</source>
        <translation>Il suo formato d’immagine è sconosciuto</translation>
    </message>
    <message>
        <source>Its name is not valid text</source>
        <translation>Il suo nome non è un testo valido</translation>
    </message>
    <message>
        <source>It is named like a housekeeping file, but may be a picture or a video</source>
        <translation>Ha il nome di un file di servizio, ma può essere un’immagine o un video</translation>
    </message>
    <message>
        <source>The link leads to a file that is missing</source>
        <translation>Il collegamento porta a un file mancante</translation>
    </message>
    <message>
        <source>The link leads to a file that cannot be read</source>
        <translation>Il collegamento porta a un file che non si può leggere</translation>
    </message>
    <message>
        <source>The link leads back to itself</source>
        <translation>Il collegamento riporta a sé stesso</translation>
    </message>
    <message>
        <source>The link leads to a folder that cannot be read</source>
        <translation>Il collegamento porta a una cartella che non si può leggere</translation>
    </message>
    <message>
        <source>The link leads back to a folder above it</source>
        <translation>Il collegamento riporta a una cartella superiore</translation>
    </message>
    <message>
        <source>The link leads to a folder that was already visited</source>
        <translation>Il collegamento porta a una cartella già visitata</translation>
    </message>
    <message>
        <source>%1 is hidden</source>
        <translation>%1 è nascosto</translation>
    </message>
    <message>
        <source>%1 is not named like a photo</source>
        <translation>%1 non ha il nome di una foto</translation>
    </message>
    <message>
        <source>%1 is a link to a file that is missing</source>
        <translation>%1 è un collegamento a un file mancante</translation>
    </message>
    <message>
        <source>it was changed while it was copied</source>
        <translation>è cambiato durante la copia</translation>
    </message>
    <message>
        <source>the copy differs from the original</source>
        <translation>la copia è diversa dall’originale</translation>
    </message>
    <message>
        <source>the copy cannot be written: %1</source>
        <translation>non è possibile scrivere la copia: %1</translation>
    </message>
    <message>
        <source>the copy cannot be read back: %1</source>
        <translation>non è possibile rileggere la copia: %1</translation>
    </message>
    <message>
        <source>the copy cannot be recorded</source>
        <translation>non è possibile registrare la copia</translation>
    </message>
    <message>
        <source>another file got the name %1 meanwhile</source>
        <translation>nel frattempo un altro file ha preso il nome %1</translation>
    </message>
    <message>
        <source>it is identical to %1, which could not be copied</source>
        <translation>è identico a %1, che non è stato possibile copiare</translation>
    </message>
    <message>
        <source>the import was interrupted</source>
        <translation>l’importazione è stata interrotta</translation>
    </message>
    <message>
        <source>It may be any of %1 photos that are missing</source>
        <translation>Può essere una qualsiasi di %1 foto mancanti</translation>
    </message>
    <message>
        <source>It is missing, and %1 files may be it</source>
        <translation>Manca, e %1 file possono corrispondere</translation>
    </message>
    <message>
        <source>It was changed or replaced, and a file has its former content</source>
        <translation>È stata modificata o sostituita, e un file ha il suo vecchio contenuto</translation>
    </message>
    <message>
        <source>identical files</source>
        <translation>file identici</translation>
    </message>
    <message>
        <source>the same pixels</source>
        <translation>gli stessi pixel</translation>
    </message>
    <message>
        <source>the same picture, smaller</source>
        <translation>la stessa immagine, più piccola</translation>
    </message>
    <message>
        <source>the same picture, larger</source>
        <translation>la stessa immagine, più grande</translation>
    </message>
    <message>
        <source>the same picture, compressed again or in another format</source>
        <translation>la stessa immagine, compressa di nuovo o in un altro formato</translation>
    </message>
    <message>
        <source>the same picture, mirrored</source>
        <translation>la stessa immagine, specchiata</translation>
    </message>
    <message>
        <source>the same picture, brighter</source>
        <translation>la stessa immagine, più chiara</translation>
    </message>
    <message>
        <source>the same picture, darker</source>
        <translation>la stessa immagine, più scura</translation>
    </message>
    <message>
        <source>the same picture, with more contrast</source>
        <translation>la stessa immagine, con più contrasto</translation>
    </message>
    <message>
        <source>the same picture, with less contrast</source>
        <translation>la stessa immagine, con meno contrasto</translation>
    </message>
    <message>
        <source>the same picture, sharpened</source>
        <translation>la stessa immagine, più nitida</translation>
    </message>
    <message>
        <source>the same picture, changed all over</source>
        <translation>la stessa immagine, modificata ovunque</translation>
    </message>
    <message>
        <source>the same picture, larger and with more detail</source>
        <translation>la stessa immagine, più grande e più dettagliata</translation>
    </message>
    <message>
        <source>the same picture with a border or a caption</source>
        <translation>la stessa immagine con una cornice o una didascalia</translation>
    </message>
    <message>
        <source>the same picture without colours</source>
        <translation>la stessa immagine senza colori</translation>
    </message>
    <message>
        <source>the same picture with colours</source>
        <translation>la stessa immagine con i colori</translation>
    </message>
    <message>
        <source>the same picture as far as a preview shows</source>
        <translation>la stessa immagine, per quanto mostra un’anteprima</translation>
    </message>
    <message>
        <source>the same picture as far as so few pixels show</source>
        <translation>la stessa immagine, per quanto mostrano così pochi pixel</translation>
    </message>
    <message>
        <source>the same picture as far as it shows when it is made smaller</source>
        <translation>la stessa immagine, per quanto si vede riducendola</translation>
    </message>
    <message>
        <source>the same picture, but for something small at %1</source>
        <translation>la stessa immagine, tranne qualcosa di piccolo %1</translation>
    </message>
    <message>
        <source>nearly the same view</source>
        <translation>quasi la stessa veduta</translation>
    </message>
    <message>
        <source>the same view, turned a little</source>
        <translation>la stessa veduta, un po’ ruotata</translation>
    </message>
    <message>
        <source>the same view, cropped</source>
        <translation>la stessa veduta, ritagliata</translation>
    </message>
    <message>
        <source>the same view with more around it</source>
        <translation>la stessa veduta con più spazio intorno</translation>
    </message>
    <message>
        <source>the same view, brighter</source>
        <translation>la stessa veduta, più chiara</translation>
    </message>
    <message>
        <source>the same view, darker</source>
        <translation>la stessa veduta, più scura</translation>
    </message>
    <message>
        <source>another plain colour</source>
        <translation>un altro colore uniforme</translation>
    </message>
    <message>
        <source>shows something else</source>
        <translation>mostra qualcos’altro</translation>
    </message>
    <message>
        <source>differs in some places</source>
        <translation>differisce in alcuni punti</translation>
    </message>
    <message>
        <source>differs at %1</source>
        <translation>differisce %1</translation>
    </message>
    <message>
        <source>the upper left</source>
        <translation>in alto a sinistra</translation>
    </message>
    <message>
        <source>the top</source>
        <translation>in alto</translation>
    </message>
    <message>
        <source>the upper right</source>
        <translation>in alto a destra</translation>
    </message>
    <message>
        <source>the left</source>
        <translation>a sinistra</translation>
    </message>
    <message>
        <source>the middle</source>
        <translation>al centro</translation>
    </message>
    <message>
        <source>the right</source>
        <translation>a destra</translation>
    </message>
    <message>
        <source>the lower left</source>
        <translation>in basso a sinistra</translation>
    </message>
    <message>
        <source>the bottom</source>
        <translation>in basso</translation>
    </message>
    <message>
        <source>the lower right</source>
        <translation>in basso a destra</translation>
    </message>
    <message>
        <source>it cannot be compared: %1</source>
        <translation>non confrontabile: %1</translation>
    </message>
    <message>
        <source>the photo to keep cannot be compared: %1</source>
        <translation>la foto da tenere non si può confrontare: %1</translation>
    </message>
    <message>
        <source>it has too few pixels</source>
        <translation>ha troppo pochi pixel</translation>
    </message>
    <message>
        <source>it is partly transparent</source>
        <translation>è in parte trasparente</translation>
    </message>
    <message>
        <source>it breaks off before the end of its picture</source>
        <translation>si interrompe prima della fine dell’immagine</translation>
    </message>
    <message>
        <source>it holds more behind its picture</source>
        <translation>contiene altro dopo l’immagine</translation>
    </message>
    <message>
        <source>of several pictures in a file only the first can be compared</source>
        <translation>di più immagini in un file si può confrontare solo la prima</translation>
    </message>
    <message>
        <source>there is not enough memory to compare it</source>
        <translation>non c’è abbastanza memoria per confrontarla</translation>
    </message>
    <message>
        <source>nothing of the picture can be decoded</source>
        <translation>nulla dell’immagine si può decodificare</translation>
    </message>
    <message>
        <source>the head of the picture is damaged</source>
        <translation>l’inizio dell’immagine è danneggiato</translation>
    </message>
    <message>
        <source>a part of the picture is damaged</source>
        <translation>una parte dell’immagine è danneggiata</translation>
    </message>
    <message>
        <source>its content is not a picture of a known format</source>
        <translation>il suo contenuto non è un’immagine di formato conosciuto</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>il file è vuoto</translation>
    </message>
    <message>
        <source>the system lets nobody move it; take its attribute &quot;immutable&quot; away</source>
        <translation>il sistema non permette a nessuno di spostarlo; tolga l’attributo «immutable»</translation>
    </message>
    <message>
        <source>has a link of the same name beside it, which would not be renamed: %1</source>
        <translation>accanto c’è un collegamento con lo stesso nome, che non sarebbe rinominato: %1</translation>
    </message>
    <message>
        <source>has no date</source>
        <translation>non ha una data</translation>
    </message>
    <message>
        <source>has no readable date: %1</source>
        <translation>non ha una data leggibile: %1</translation>
    </message>
    <message>
        <source>is given twice</source>
        <translation>è indicato due volte</translation>
    </message>
    <message>
        <source>%1 is a link to somewhere else, and imports do not write through links. Remove the link, then import again.</source>
        <translation>%1 è un collegamento verso un altro posto, e l’importazione non scrive attraverso i collegamenti. Rimuova il collegamento e importi di nuovo.</translation>
    </message>
    <message>
        <source>%1 is no file, and imports keep one there. Remove it, then import again.</source>
        <translation>%1 non è un file, e l’importazione ne tiene uno lì. Lo rimuova e importi di nuovo.</translation>
    </message>
    <message>
        <source>%1 is a second name of another file (a hard link), and imports do not write to such. Put a copy of it in its place, or remove it, then import again.</source>
        <translation>%1 è un secondo nome di un altro file (un collegamento fisico), e l’importazione non scrive in file del genere. Metta una copia al suo posto, oppure lo rimuova, e importi di nuovo.</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 non è una cartella.</translation>
    </message>
    <message>
        <source>There is not enough space in %1: %2 bytes are needed, %3 are free.</source>
        <translation>Non c’è abbastanza spazio in %1: servono %2 byte, ne sono liberi %3.</translation>
    </message>
    <message>
        <source>would be the name of two photos: %1</source>
        <translation>sarebbe il nome di due foto: %1</translation>
    </message>
    <message>
        <source>would be the name of two files: %1</source>
        <translation>sarebbe il nome di due file: %1</translation>
    </message>
    <message>
        <source>is the name of another file: %1</source>
        <translation>è il nome di un altro file: %1</translation>
    </message>
    <message>
        <source>is the name of another photo or its sidecar: %1</source>
        <translation>è il nome di un’altra foto o del suo file collaterale: %1</translation>
    </message>
    <message>
        <source>is the name of a photo that cannot be renamed: %1</source>
        <translation>è il nome di una foto che non si può rinominare: %1</translation>
    </message>
    <message>
        <source>holds a separator of folders %1</source>
        <translation>contiene il separatore di cartelle %1</translation>
    </message>
    <message>
        <source>holds the sign for unreadable characters</source>
        <translation>contiene il segno dei caratteri illeggibili</translation>
    </message>
    <message>
        <source>holds a control character</source>
        <translation>contiene un carattere di controllo</translation>
    </message>
    <message>
        <source>holds the character %1</source>
        <translation>contiene il carattere %1</translation>
    </message>
    <message>
        <source>begins with a dot, which hides the file</source>
        <translation>inizia con un punto, che nasconde il file</translation>
    </message>
    <message>
        <source>is longer than %1 bytes</source>
        <translation>supera %1 byte</translation>
    </message>
    <message>
        <source>names a device of Windows</source>
        <translation>indica un dispositivo di Windows</translation>
    </message>
    <message>
        <source>ends in a dot, which Windows drops</source>
        <translation>finisce con un punto, che Windows toglie</translation>
    </message>
    <message>
        <source>ends in a blank, which Windows drops</source>
        <translation>finisce con uno spazio, che Windows toglie</translation>
    </message>
    <message>
        <source>is not valid UTF-8</source>
        <translation>non è UTF-8 valido</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Select folder</source>
        <translation>Seleziona cartella</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sì</translation>
    </message>
    <message>
        <source>Yes to &amp;All</source>
        <translation>Sì a &amp;tutti</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>N&amp;o to All</source>
        <translation>N&amp;o a tutti</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Salva tutto</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Apri</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Riprova</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignora</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Interrompi</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Non salvare</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Applica</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>Ripristina valori predefiniti</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>Albums</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>Proposed albums</source>
        <translation>Album proposti</translation>
    </message>
    <message>
        <source>Similar photos</source>
        <translation>Foto simili</translation>
    </message>
    <message>
        <source>Groups by year</source>
        <translation>Gruppi per anno</translation>
    </message>
    <message>
        <source>No similar photos</source>
        <translation>Nessuna foto simile</translation>
    </message>
    <message>
        <source>Groups appear here once the catalogue holds photos that are alike.</source>
        <translation>I gruppi compariranno qui non appena il catalogo conterrà foto che si somigliano.</translation>
    </message>
    <message>
        <source>Albums by year</source>
        <translation>Album per anno</translation>
    </message>
    <message>
        <source>No albums yet</source>
        <translation>Ancora nessun album</translation>
    </message>
    <message>
        <source>Albums appear here once there are enough photos of a holiday or of a month&apos;s weekends. Scan more folders and try again.</source>
        <translation>Gli album compariranno qui non appena ci saranno abbastanza foto di una festività o dei fine settimana di un mese. Esamini altre cartelle e riprovi.</translation>
    </message>
    <message>
        <source>Unnamed album</source>
        <translation>Album senza nome</translation>
    </message>
    <message>
        <source>Undated</source>
        <translation>Senza data</translation>
    </message>
    <message>
        <source>Accepted</source>
        <translation>Accettato</translation>
    </message>
    <message>
        <source>No picture</source>
        <translation>Nessuna immagine</translation>
    </message>
    <message numerus="yes">
        <source>and %1 more</source>
        <translation>
            <numerusform>e %1 altra</numerusform>
            <numerusform>e altre %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Made with Lumidex. This page holds all its pictures and needs no other file.</source>
        <translation>Creato con Lumidex. Questa pagina contiene tutte le sue immagini e non ha bisogno di altri file.</translation>
    </message>
</context>
<context>
    <name>Terminal</name>
    <message>
        <source>Drawing</source>
        <translation>Disegno</translation>
    </message>
    <message>
        <source>pictures</source>
        <comment>of so many</comment>
        <translation>immagini</translation>
    </message>
    <message>
        <source>The catalogue holds no photos yet. Run: lumidex scan DIR</source>
        <translation>Il catalogo non contiene ancora foto. Esegua: lumidex scan CARTELLA</translation>
    </message>
    <message numerus="yes">
        <source>All %1 photos of the catalogue were missing at the last scan. Is a disk not connected?</source>
        <translation>
            <numerusform>La %1 foto del catalogo mancava all’ultimo esame. C’è un disco non collegato?</numerusform>
            <numerusform>Tutte le %1 foto del catalogo mancavano all’ultimo esame. C’è un disco non collegato?</numerusform>
        </translation>
    </message>
    <message>
        <source>Interrupted.</source>
        <translation>Interrotto.</translation>
    </message>
    <message>
        <source>No album was accepted.</source>
        <translation>Nessun album è stato accettato.</translation>
    </message>
    <message>
        <source>The page %1 is written; it shows all chosen albums as accepted.</source>
        <translation>La pagina %1 è scritta; mostra come accettati tutti gli album scelti.</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>sì</translation>
    </message>
    <message numerus="yes">
        <source>yes, %1 more now</source>
        <translation>
            <numerusform>sì, ora %1 in più</numerusform>
            <numerusform>sì, ora %1 in più</numerusform>
        </translation>
    </message>
    <message>
        <source>ALBUM</source>
        <translation>ALBUM</translation>
    </message>
    <message>
        <source>WHEN</source>
        <translation>QUANDO</translation>
    </message>
    <message>
        <source>FIRST DAY</source>
        <translation>PRIMO GIORNO</translation>
    </message>
    <message>
        <source>LAST DAY</source>
        <translation>ULTIMO GIORNO</translation>
    </message>
    <message>
        <source>PHOTOS</source>
        <translation>FOTO</translation>
    </message>
    <message>
        <source>ACCEPTED</source>
        <translation>ACCETTATO</translation>
    </message>
    <message numerus="yes">
        <source>%1 (%2 photos)</source>
        <translation>
            <numerusform>%1 (%2 foto)</numerusform>
            <numerusform>%1 (%2 foto)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Accepted %1: %2 photos.</source>
        <translation>
            <numerusform>Accettato %1: %2 foto.</numerusform>
            <numerusform>Accettato %1: %2 foto.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Added %1 photos to %2, which was accepted before.</source>
        <translation>
            <numerusform>Aggiunta %1 foto a %2, già accettato.</numerusform>
            <numerusform>Aggiunte %1 foto a %2, già accettato.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 was accepted before, and there are no photos to add.</source>
        <translation>%1 era già accettato e non ci sono foto da aggiungere.</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos</source>
        <comment>albums from</comment>
        <translation>
            <numerusform>%1 foto</numerusform>
            <numerusform>%1 foto</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 of them have no date</source>
        <comment>photos; how many</comment>
        <translation>
            <numerusform>%1, di cui %2 senza data</numerusform>
            <numerusform>%1, di cui %2 senza data</numerusform>
        </translation>
    </message>
    <message>
        <source>No album has been accepted yet. &quot;lumidex albums&quot; shows proposals.</source>
        <translation>Nessun album è ancora accettato. «lumidex albums» mostra le proposte.</translation>
    </message>
    <message numerus="yes">
        <source>%1 accepted albums.</source>
        <translation>
            <numerusform>%1 album accettato.</numerusform>
            <numerusform>%1 album accettati.</numerusform>
        </translation>
    </message>
    <message>
        <source>No albums to propose from %1: an album needs 20 photos or more of one
holiday, or of the weekends of one month.</source>
        <translation>Nessun album da proporre da %1: un album richiede almeno 20 foto di una
stessa festività o dei fine settimana di un mese.</translation>
    </message>
    <message numerus="yes">
        <source>%1 albums</source>
        <translation>
            <numerusform>%1 album</numerusform>
            <numerusform>%1 album</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 from %2; %3 accepted.</source>
        <comment>albums, photos, how many</comment>
        <translation>
            <numerusform>%1 da %2; %3 accettato.</numerusform>
            <numerusform>%1 da %2; %3 accettati.</numerusform>
        </translation>
    </message>
    <message>
        <source>Calendar: %1 (from the server)</source>
        <translation>Calendario: %1 (dal server)</translation>
    </message>
    <message>
        <source>Calendar: %1</source>
        <translation>Calendario: %1</translation>
    </message>
    <message>
        <source>The calendar has no holidays for %1.</source>
        <translation>Il calendario non ha festività per %1.</translation>
    </message>
    <message>
        <source>HOLIDAY</source>
        <translation>FESTIVITÀ</translation>
    </message>
    <message>
        <source>DAYS</source>
        <translation>GIORNI</translation>
    </message>
    <message>
        <source>(no name)</source>
        <translation>(senza nome)</translation>
    </message>
    <message numerus="yes">
        <source>%1 holidays for %2.</source>
        <translation>
            <numerusform>%1 festività per %2.</numerusform>
            <numerusform>%1 festività per %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: no mistakes found.</source>
        <translation>%1: nessun errore trovato.</translation>
    </message>
    <message>
        <source>event %1</source>
        <translation>evento %1</translation>
    </message>
    <message>
        <source>list</source>
        <comment>of the events of a language</comment>
        <translation>elenco</translation>
    </message>
    <message numerus="yes">
        <source>%1: %2 mistakes found.</source>
        <translation>
            <numerusform>%1: trovato %2 errore.</numerusform>
            <numerusform>%1: trovati %2 errori.</numerusform>
        </translation>
    </message>
    <message>
        <source>The calendar was not updated: %1</source>
        <translation>Il calendario non è stato aggiornato: %1</translation>
    </message>
    <message>
        <source>There is no calendar.</source>
        <translation>Non c’è alcun calendario.</translation>
    </message>
    <message>
        <source>Still in use: %1</source>
        <translation>In uso come prima: %1</translation>
    </message>
    <message>
        <source>The calendar was updated: %1</source>
        <translation>Il calendario è stato aggiornato: %1</translation>
    </message>
    <message>
        <source>The calendar is up to date: %1</source>
        <translation>Il calendario è aggiornato: %1</translation>
    </message>
    <message>
        <source>The holiday calendar could not be read completely, so holidays are missing. Run: lumidex calendar check, or lumidex calendar update.</source>
        <translation>Non è stato possibile leggere per intero il calendario delle festività, perciò mancano delle festività. Esegua: lumidex calendar check oppure lumidex calendar update.</translation>
    </message>
    <message>
        <source>The holiday calendar %1 could not be read completely, so holidays are missing. Run: lumidex calendar check, or lumidex calendar update.</source>
        <translation>Non è stato possibile leggere per intero il calendario delle festività %1, perciò mancano delle festività. Esegua: lumidex calendar check oppure lumidex calendar update.</translation>
    </message>
    <message>
        <source>unreadable</source>
        <translation>illeggibile</translation>
    </message>
    <message>
        <source>Volume of</source>
        <translation>Volume di</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Needed</source>
        <translation>Necessari</translation>
    </message>
    <message>
        <source>Free</source>
        <comment>room on a disk</comment>
        <translation>Liberi</translation>
    </message>
    <message>
        <source>unknown</source>
        <comment>free room</comment>
        <translation>sconosciuto</translation>
    </message>
    <message numerus="yes">
        <source>%1 files checked</source>
        <translation>
            <numerusform>%1 file controllato</numerusform>
            <numerusform>%1 file controllati</numerusform>
        </translation>
    </message>
    <message>
        <source>no problems found.</source>
        <translation>nessun problema trovato.</translation>
    </message>
    <message>
        <source>Interrupted. Nothing was changed.</source>
        <translation>Interrotto. Nulla è stato modificato.</translation>
    </message>
    <message>
        <source>There are no photos in the given folders.</source>
        <translation>Non ci sono foto nelle cartelle indicate.</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>Prova</translation>
    </message>
    <message>
        <source>photos</source>
        <comment>of so many</comment>
        <translation>foto</translation>
    </message>
    <message>
        <source>Editing</source>
        <translation>Modifica</translation>
    </message>
    <message>
        <source>upright</source>
        <translation>diritta</translation>
    </message>
    <message>
        <source>mirrored</source>
        <translation>specchiata</translation>
    </message>
    <message>
        <source>upside down</source>
        <translation>capovolta</translation>
    </message>
    <message>
        <source>upside down, mirrored</source>
        <translation>capovolta, specchiata</translation>
    </message>
    <message>
        <source>turned left, mirrored</source>
        <translation>ruotata a sinistra, specchiata</translation>
    </message>
    <message>
        <source>turned right</source>
        <translation>ruotata a destra</translation>
    </message>
    <message>
        <source>turned right, mirrored</source>
        <translation>ruotata a destra, specchiata</translation>
    </message>
    <message>
        <source>turned left</source>
        <translation>ruotata a sinistra</translation>
    </message>
    <message>
        <source>no date</source>
        <translation>nessuna data</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos would be edited. This was a dry run: nothing was changed.</source>
        <translation>
            <numerusform>%1 foto sarebbe modificata. Era una prova: nulla è stato modificato.</numerusform>
            <numerusform>%1 foto sarebbero modificate. Era una prova: nulla è stato modificato.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>Nulla è stato modificato.</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos edited; &quot;lumidex undo&quot; undoes it.</source>
        <translation>
            <numerusform>%1 foto modificata; «lumidex undo» annulla la modifica.</numerusform>
            <numerusform>%1 foto modificate; «lumidex undo» annulla la modifica.</numerusform>
        </translation>
    </message>
    <message>
        <source>Cannot be edited</source>
        <translation>Non modificabili</translation>
    </message>
    <message>
        <source>Not edited</source>
        <translation>Non modificate</translation>
    </message>
    <message>
        <source>Comparing</source>
        <translation>Confronto</translation>
    </message>
    <message>
        <source>files</source>
        <comment>of so many</comment>
        <translation>file</translation>
    </message>
    <message>
        <source>Copying</source>
        <translation>Copia</translation>
    </message>
    <message>
        <source>Interrupted. The copies made so far are complete and verified; run the same command to copy the rest.</source>
        <translation>Interrotto. Le copie fatte finora sono complete e verificate; esegua di nuovo lo stesso comando per copiare il resto.</translation>
    </message>
    <message>
        <source>Would be copied to %1:</source>
        <translation>Sarebbero copiati in %1:</translation>
    </message>
    <message>
        <source>Would be added to the catalogue without copying:</source>
        <translation>Sarebbero acquisite nel catalogo senza copiarle:</translation>
    </message>
    <message>
        <source>Copies of one shot would get different names:</source>
        <translation>Le copie di uno stesso scatto avrebbero nomi diversi:</translation>
    </message>
    <message>
        <source>Not copied:</source>
        <translation>Non copiati:</translation>
    </message>
    <message>
        <source>Not added to the catalogue:</source>
        <translation>Non acquisiti nel catalogo:</translation>
    </message>
    <message>
        <source>Skipped:</source>
        <translation>Ignorati:</translation>
    </message>
    <message numerus="yes">
        <source>and %1 more (--json lists them)</source>
        <translation>
            <numerusform>e %1 altro (--json li elenca)</numerusform>
            <numerusform>e altri %1 (--json li elenca)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos are in the catalogue already.</source>
        <translation>
            <numerusform>%1 foto è già nel catalogo.</numerusform>
            <numerusform>%1 foto sono già nel catalogo.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files were copied before.</source>
        <translation>
            <numerusform>%1 file era già stato copiato.</numerusform>
            <numerusform>%1 file erano già stati copiati.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos occur twice in the sources.</source>
        <translation>
            <numerusform>%1 foto compare due volte nelle origini.</numerusform>
            <numerusform>%1 foto compaiono due volte nelle origini.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was imported.</source>
        <translation>Nulla è stato importato.</translation>
    </message>
    <message>
        <source>Nothing would be imported.</source>
        <translation>Nulla sarebbe importato.</translation>
    </message>
    <message numerus="yes">
        <source>%1 files (%2) would be copied</source>
        <translation>
            <numerusform>%1 file (%2) sarebbe copiato</numerusform>
            <numerusform>%1 file (%2) sarebbero copiati</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos added without copying.</source>
        <comment>would be</comment>
        <translation>
            <numerusform>%1 foto sarebbe acquisita senza copiarla.</numerusform>
            <numerusform>%1 foto sarebbero acquisite senza copiarle.</numerusform>
        </translation>
    </message>
    <message>
        <source>This was a dry run:
nothing was changed.</source>
        <translation>Era una prova:
nulla è stato modificato.</translation>
    </message>
    <message numerus="yes">
        <source>%1 files (%2) copied to %3 and verified.</source>
        <translation>
            <numerusform>%1 file (%2) copiato in %3 e verificato.</numerusform>
            <numerusform>%1 file (%2) copiati in %3 e verificati.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos added to the catalogue.</source>
        <translation>
            <numerusform>%1 foto acquisita nel catalogo.</numerusform>
            <numerusform>%1 foto acquisite nel catalogo.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files were not copied; run the same command to try again.</source>
        <translation>
            <numerusform>%1 file non è stato copiato; esegua di nuovo lo stesso comando per riprovare.</numerusform>
            <numerusform>%1 file non sono stati copiati; esegua di nuovo lo stesso comando per riprovare.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1:</source>
        <comment>a heading</comment>
        <translation>%1:</translation>
    </message>
    <message>
        <source>%1 is not supported; %2 is used.</source>
        <comment>languages</comment>
        <translation>%1 non è disponibile; si usa %2.</translation>
    </message>
    <message>
        <source>%1 of %2 %3</source>
        <comment>done, all, what</comment>
        <translation>%1 di %2 %3</translation>
    </message>
    <message>
        <source>%1 of %2 %3 found so far</source>
        <comment>done, all, what</comment>
        <translation>%1 di %2 %3 finora</translation>
    </message>
    <message>
        <source>%1 left</source>
        <comment>minutes and seconds</comment>
        <translation>restano %1</translation>
    </message>
    <message>
        <source>y yes</source>
        <comment>answers, all that mean it</comment>
        <translation>s sì</translation>
    </message>
    <message>
        <source>Interrupted. Nothing was renamed.</source>
        <translation>Interrotto. Nulla è stato rinominato.</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Lettura</translation>
    </message>
    <message>
        <source>Renaming</source>
        <translation>Ridenominazione</translation>
    </message>
    <message>
        <source>Cannot be renamed:</source>
        <translation>Non rinominabili:</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos have no date; the times of their files are used.</source>
        <translation>
            <numerusform>%1 foto non ha una data; si usa l’ora del suo file.</numerusform>
            <numerusform>%1 foto non hanno una data; si usa l’ora dei loro file.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files have their new names already.</source>
        <translation>
            <numerusform>%1 file ha già il suo nuovo nome.</numerusform>
            <numerusform>%1 file hanno già il loro nuovo nome.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Nothing would be renamed: %1 of %2 photos cannot get their new names.
Add --skip-problems to rename the others.</source>
        <translation>
            <numerusform>Nulla sarebbe rinominato: il nuovo nome è impossibile per %1 foto su %2.
Con --skip-problems si rinominano le altre.</numerusform>
            <numerusform>Nulla sarebbe rinominato: il nuovo nome è impossibile per %1 foto su %2.
Con --skip-problems si rinominano le altre.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Nothing was renamed: %1 of %2 photos cannot get their new names.
Add --skip-problems to rename the others.</source>
        <translation>
            <numerusform>Nulla è stato rinominato: il nuovo nome è impossibile per %1 foto su %2.
Con --skip-problems si rinominano le altre.</numerusform>
            <numerusform>Nulla è stato rinominato: il nuovo nome è impossibile per %1 foto su %2.
Con --skip-problems si rinominano le altre.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to rename.</source>
        <translation>Nulla da rinominare.</translation>
    </message>
    <message numerus="yes">
        <source>%1 would be renamed. This was a dry run: nothing was changed.</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>%1 sarebbe rinominata. Era una prova: nulla è stato modificato.</numerusform>
            <numerusform>%1 sarebbero rinominate. Era una prova: nulla è stato modificato.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was renamed.</source>
        <translation>Nulla è stato rinominato.</translation>
    </message>
    <message numerus="yes">
        <source>%1 files could not get their old names back.</source>
        <translation>
            <numerusform>Non è stato possibile ridare il vecchio nome a %1 file.</numerusform>
            <numerusform>Non è stato possibile ridare il vecchio nome a %1 file.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 renamed; &quot;lumidex undo&quot; undoes it.</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>%1 rinominata; «lumidex undo» annulla la modifica.</numerusform>
            <numerusform>%1 rinominate; «lumidex undo» annulla la modifica.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 renamed.</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>%1 rinominata.</numerusform>
            <numerusform>%1 rinominate.</numerusform>
        </translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Problemi</translation>
    </message>
    <message>
        <source>Report: %1</source>
        <translation>Rapporto: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 pictures could not be read; placeholders stand for them.</source>
        <translation>
            <numerusform>Non è stato possibile leggere %1 immagine; al suo posto c’è un segnaposto.</numerusform>
            <numerusform>Non è stato possibile leggere %1 immagini; al loro posto ci sono segnaposti.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Made %1 photos in %2</source>
        <translation>
            <numerusform>Creata %1 foto in %2</numerusform>
            <numerusform>Create %1 foto in %2</numerusform>
        </translation>
    </message>
    <message>
        <source>not an image</source>
        <translation>non è un’immagine</translation>
    </message>
    <message>
        <source>loop</source>
        <translation>ciclo</translation>
    </message>
    <message>
        <source>Not added:</source>
        <translation>Non acquisiti:</translation>
    </message>
    <message numerus="yes">
        <source>%1 original</source>
        <comment>dates read</comment>
        <translation>
            <numerusform>%1 dello scatto</numerusform>
            <numerusform>%1 dello scatto</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 digitised</source>
        <comment>dates read</comment>
        <translation>
            <numerusform>%1 della digitalizzazione</numerusform>
            <numerusform>%1 della digitalizzazione</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 file time</source>
        <comment>dates read</comment>
        <translation>
            <numerusform>%1 dall’ora del file</numerusform>
            <numerusform>%1 dall’ora del file</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 none</source>
        <comment>dates read</comment>
        <translation>
            <numerusform>%1 senza data</numerusform>
            <numerusform>%1 senza data</numerusform>
        </translation>
    </message>
    <message>
        <source>Dates read: %1</source>
        <translation>Date lette: %1</translation>
    </message>
    <message numerus="yes">
        <source>files found</source>
        <translation>
            <numerusform>file trovato</numerusform>
            <numerusform>file trovati</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>new</source>
        <comment>files</comment>
        <translation>
            <numerusform>nuovo</numerusform>
            <numerusform>nuovi</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>read again</source>
        <comment>files</comment>
        <translation>
            <numerusform>riletto</numerusform>
            <numerusform>riletti</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>changed</source>
        <comment>files</comment>
        <translation>
            <numerusform>modificato</numerusform>
            <numerusform>modificati</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>unchanged</source>
        <comment>files</comment>
        <translation>
            <numerusform>invariato</numerusform>
            <numerusform>invariati</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>missing, now marked as lost</source>
        <comment>files</comment>
        <translation>
            <numerusform>mancante, ora segnato come perduto</numerusform>
            <numerusform>mancanti, ora segnati come perduti</numerusform>
        </translation>
    </message>
    <message>
        <source>This was a dry run: nothing was stored.</source>
        <translation>Era una prova: nulla è stato salvato.</translation>
    </message>
    <message>
        <source>Catalogue: %1</source>
        <translation>Catalogo: %1</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>Esame</translation>
    </message>
    <message>
        <source>Interrupted. What was read so far is in the catalogue; run the same command to continue.</source>
        <translation>Interrotto. Ciò che è stato letto finora è nel catalogo; esegua di nuovo lo stesso comando per continuare.</translation>
    </message>
    <message>
        <source>Analysing</source>
        <translation>Analisi</translation>
    </message>
    <message>
        <source>Grouping</source>
        <translation>Raggruppamento</translation>
    </message>
    <message>
        <source>Measuring</source>
        <translation>Misura</translation>
    </message>
    <message>
        <source>Interrupted. What was moved is in the trash.</source>
        <translation>Interrotto. Ciò che è stato spostato è nel cestino.</translation>
    </message>
    <message>
        <source>Interrupted. Run the same command to continue.</source>
        <translation>Interrotto. Esegua di nuovo lo stesso comando per continuare.</translation>
    </message>
    <message>
        <source>Interrupted. Nothing was moved.</source>
        <translation>Interrotto. Nulla è stato spostato.</translation>
    </message>
    <message>
        <source>Move %1 to the trash? [y/N]</source>
        <translation>Spostare nel cestino %1? [s/N]</translation>
    </message>
    <message>
        <source>Moving</source>
        <translation>Spostamento</translation>
    </message>
    <message>
        <source>Keep %1</source>
        <comment>a file</comment>
        <translation>Da tenere: %1</translation>
    </message>
    <message>
        <source>Keep %1: %2</source>
        <comment>a file: why</comment>
        <translation>Da tenere: %1 (%2)</translation>
    </message>
    <message>
        <source>%1, %2, score %3</source>
        <comment>pixels, size, number</comment>
        <translation>%1, %2, somiglianza %3</translation>
    </message>
    <message>
        <source>largest</source>
        <comment>photo</comment>
        <translation>la più grande</translation>
    </message>
    <message>
        <source>sharpest</source>
        <comment>photo</comment>
        <translation>la più nitida</translation>
    </message>
    <message>
        <source>has camera data</source>
        <translation>con i dati della fotocamera</translation>
    </message>
    <message>
        <source>earliest</source>
        <comment>photo</comment>
        <translation>la più vecchia</translation>
    </message>
    <message>
        <source>first by name</source>
        <translation>prima per nome</translation>
    </message>
    <message>
        <source>Not compared:</source>
        <translation>Non confrontate:</translation>
    </message>
    <message numerus="yes">
        <source>No similar photos among %1 photos.</source>
        <translation>
            <numerusform>Nessuna foto simile tra %1 foto.</numerusform>
            <numerusform>Nessuna foto simile tra %1 foto.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 groups of similar photos</source>
        <translation>
            <numerusform>%1 gruppo di foto simili</numerusform>
            <numerusform>%1 gruppi di foto simili</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>among %1 photos</source>
        <translation>
            <numerusform>tra %1 foto</numerusform>
            <numerusform>tra %1 foto</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos (%2) besides those to keep.</source>
        <translation>
            <numerusform>%1 foto (%2) oltre a quelle da tenere.</numerusform>
            <numerusform>%1 foto (%2) oltre a quelle da tenere.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 %2; %3</source>
        <comment>groups of similar photos; among how many; others</comment>
        <translation>%1 %2; %3</translation>
    </message>
    <message>
        <source>keep</source>
        <comment>a photo</comment>
        <translation>tenere</translation>
    </message>
    <message>
        <source>trash</source>
        <comment>it goes there</comment>
        <translation>cestino</translation>
    </message>
    <message>
        <source>stay</source>
        <comment>a photo does</comment>
        <translation>resta</translation>
    </message>
    <message numerus="yes">
        <source>Group %1, %2 photos:</source>
        <translation>
            <numerusform>Gruppo %1, %2 foto:</numerusform>
            <numerusform>Gruppo %1, %2 foto:</numerusform>
        </translation>
    </message>
    <message>
        <source>PHOTO</source>
        <translation>FOTO</translation>
    </message>
    <message>
        <source>TO ITS CENTRE</source>
        <translation>AL SUO CENTRO</translation>
    </message>
    <message>
        <source>TO ITS OWN CENTRE</source>
        <translation>AL PROPRIO CENTRO</translation>
    </message>
    <message>
        <source>TO THE OTHER&apos;S</source>
        <translation>A QUELLO DELL’ALTRA</translation>
    </message>
    <message>
        <source>The photos score %1 against each other and are in one group.</source>
        <translation>Le foto si somigliano a %1 e sono in un unico gruppo.</translation>
    </message>
    <message>
        <source>The photos score %1 against each other and are in different groups.</source>
        <translation>Le foto si somigliano a %1 e sono in gruppi diversi.</translation>
    </message>
    <message>
        <source>A photo joins the first group whose centre scores above %1 against it. The centre is the
mean of the photos in the group at that time; later photos move it.</source>
        <translation>Una foto entra nel primo gruppo il cui centro le somiglia più di %1. Il centro è la media delle
foto che sono nel gruppo in quel momento; le foto successive lo spostano.</translation>
    </message>
    <message>
        <source>Matching all photos again gives the same groups.</source>
        <translation>Un nuovo confronto di tutte le foto dà gli stessi gruppi.</translation>
    </message>
    <message>
        <source>&quot;lumidex similar --anew&quot; makes all groups again.</source>
        <translation>«lumidex similar --anew» forma di nuovo tutti i gruppi.</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos</source>
        <translation>
            <numerusform>%1 foto</numerusform>
            <numerusform>%1 foto</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (%2 files)</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>%1 (%2 file)</numerusform>
            <numerusform>%1 (%2 file)</numerusform>
        </translation>
    </message>
    <message>
        <source>rename %1</source>
        <comment>so many photos</comment>
        <translation>rinominare %1</translation>
    </message>
    <message>
        <source>shift dates by %1</source>
        <translation>spostare le date di %1</translation>
    </message>
    <message>
        <source>set dates to %1</source>
        <translation>impostare le date al %1</translation>
    </message>
    <message>
        <source>rotate left</source>
        <translation>ruotare a sinistra</translation>
    </message>
    <message>
        <source>rotate right</source>
        <translation>ruotare a destra</translation>
    </message>
    <message>
        <source>rotate 180</source>
        <translation>ruotare di 180°</translation>
    </message>
    <message>
        <source>move similar photos to the trash</source>
        <translation>spostare foto simili nel cestino</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>Yes to all</source>
        <translation>Sì a tutti</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>No to all</source>
        <translation>No a tutti</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Save all</source>
        <translation>Salva tutto</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Apri</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Riprova</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignora</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Interrompi</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Non salvare</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Applica</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>Restore defaults</source>
        <translation>Ripristina valori predefiniti</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Nothing to move to the trash.</source>
        <translation>Nulla da spostare nel cestino.</translation>
    </message>
    <message numerus="yes">
        <source>%1 would be moved to the trash. This was a dry run: nothing was changed.</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>%1 sarebbe spostata nel cestino. Era una prova: nulla è stato modificato.</numerusform>
            <numerusform>%1 sarebbero spostate nel cestino. Era una prova: nulla è stato modificato.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was moved.</source>
        <translation>Nulla è stato spostato.</translation>
    </message>
    <message numerus="yes">
        <source>%1 moved to the trash; &quot;lumidex undo&quot; brings back what is still there.</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>%1 spostata nel cestino; «lumidex undo» recupera ciò che vi si trova ancora.</numerusform>
            <numerusform>%1 spostate nel cestino; «lumidex undo» recupera ciò che vi si trova ancora.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 moved to the trash.</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>%1 spostata nel cestino.</numerusform>
            <numerusform>%1 spostate nel cestino.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>%1 file</numerusform>
            <numerusform>%1 file</numerusform>
        </translation>
    </message>
    <message>
        <source>Not moved:</source>
        <translation>Non spostate:</translation>
    </message>
    <message>
        <source>Left where they are</source>
        <translation>Lasciati al loro posto</translation>
    </message>
    <message>
        <source>Redoing</source>
        <translation>Ripetizione</translation>
    </message>
    <message>
        <source>Undoing</source>
        <translation>Annullamento</translation>
    </message>
    <message>
        <source>Interrupted. What was done so far stays done.</source>
        <translation>Interrotto. Ciò che è stato fatto finora resta fatto.</translation>
    </message>
    <message numerus="yes">
        <source>Only %1 of the %2 steps that you asked for.</source>
        <translation>
            <numerusform>Solo %1 dei %2 passi richiesti.</numerusform>
            <numerusform>Solo %1 dei %2 passi richiesti.</numerusform>
        </translation>
    </message>
    <message>
        <source>The setting %1 is invalid (%2); the default is used.</source>
        <translation>L’impostazione %1 non è valida (%2); si usa il valore predefinito.</translation>
    </message>
    <message>
        <source>undone</source>
        <comment>a step</comment>
        <translation>annullato</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>Non c’è nulla da annullare.</translation>
    </message>
    <message>
        <source>WHAT</source>
        <translation>COSA</translation>
    </message>
    <message>
        <source>FILES</source>
        <translation>FILE</translation>
    </message>
    <message>
        <source>KEPT</source>
        <comment>so many bytes</comment>
        <translation>CONSERVATI</translation>
    </message>
    <message>
        <source>Left as they are</source>
        <translation>Lasciati come sono</translation>
    </message>
    <message>
        <source>Nothing of &quot;%1&quot; was redone.</source>
        <translation>Nulla di «%1» è stato ripetuto.</translation>
    </message>
    <message>
        <source>Nothing of &quot;%1&quot; was undone.</source>
        <translation>Nulla di «%1» è stato annullato.</translation>
    </message>
    <message>
        <source>Redone: %1.</source>
        <translation>Ripetuto: %1.</translation>
    </message>
    <message>
        <source>Undone: %1.</source>
        <translation>Annullato: %1.</translation>
    </message>
    <message numerus="yes">
        <source>Redone: %1, except for %2 files.</source>
        <translation>
            <numerusform>Ripetuto: %1, tranne %2 file.</numerusform>
            <numerusform>Ripetuto: %1, tranne %2 file.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Undone: %1, except for %2 files.</source>
        <translation>
            <numerusform>Annullato: %1, tranne %2 file.</numerusform>
            <numerusform>Annullato: %1, tranne %2 file.</numerusform>
        </translation>
    </message>
    <message>
        <source>Older steps cannot be undone before this one; &quot;lumidex undo --skip&quot; skips it for good.</source>
        <translation>I passi più vecchi non si possono annullare prima di questo; «lumidex undo --skip» lo salta definitivamente.</translation>
    </message>
    <message>
        <source>There is nothing to skip.</source>
        <translation>Non c’è nulla da saltare.</translation>
    </message>
    <message>
        <source>Skipped: %1.</source>
        <translation>Saltato: %1.</translation>
    </message>
    <message>
        <source>Its originals (%1) are kept until they exceed the limits of undo.</source>
        <translation>I suoi originali (%1) sono conservati finché non superano i limiti di «undo».</translation>
    </message>
    <message numerus="yes">
        <source>%1 older steps cannot be undone any more.</source>
        <translation>
            <numerusform>%1 passo più vecchio non si può più annullare.</numerusform>
            <numerusform>%1 passi più vecchi non si possono più annullare.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Steps can be undone for %1 days of use, with up to %2 of originals.</source>
        <translation>
            <numerusform>I passi si possono annullare per %1 giorno d’uso, con al massimo %2 di originali.</numerusform>
            <numerusform>I passi si possono annullare per %1 giorni d’uso, con al massimo %2 di originali.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>Non c’è nulla da ripetere.</translation>
    </message>
    <message>
        <source>Copies would share names with files of other shots:</source>
        <translation>Le copie condividerebbero il nome con file di altri scatti:</translation>
    </message>
    <message>
        <source>file time</source>
        <comment>where a date is from</comment>
        <translation>ora del file</translation>
    </message>
    <message numerus="yes">
        <source>%1 frames</source>
        <translation>
            <numerusform>%1 fotogramma</numerusform>
            <numerusform>%1 fotogrammi</numerusform>
        </translation>
    </message>
    <message>
        <source>DATE</source>
        <translation>DATA</translation>
    </message>
    <message>
        <source>FROM</source>
        <translation>FONTE</translation>
    </message>
    <message>
        <source>CAMERA</source>
        <translation>FOTOCAMERA</translation>
    </message>
    <message>
        <source>POSITION</source>
        <translation>POSIZIONE</translation>
    </message>
    <message>
        <source>PICTURE</source>
        <translation>IMMAGINE</translation>
    </message>
    <message>
        <source>ORIENTATION</source>
        <translation>ORIENTAMENTO</translation>
    </message>
    <message>
        <source>SIZE</source>
        <translation>DIMENSIONE</translation>
    </message>
    <message>
        <source>Doubtful positions:</source>
        <translation>Posizioni dubbie:</translation>
    </message>
    <message>
        <source>Not read</source>
        <translation>Non lette</translation>
    </message>
    <message>
        <source>TAKEN</source>
        <translation>SCATTATA</translation>
    </message>
    <message>
        <source>TAGS</source>
        <translation>TAG</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>FILE</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 photos.</source>
        <comment>found, searched</comment>
        <translation>
            <numerusform>%1 di %2 foto.</numerusform>
            <numerusform>%1 di %2 foto.</numerusform>
        </translation>
    </message>
    <message>
        <source>Statistics are on.</source>
        <translation>Le statistiche sono attive.</translation>
    </message>
    <message>
        <source>Statistics are off.</source>
        <translation>Le statistiche sono disattivate.</translation>
    </message>
    <message>
        <source>File: %1</source>
        <translation>File: %1</translation>
    </message>
    <message>
        <source>DAY</source>
        <translation>GIORNO</translation>
    </message>
    <message>
        <source>COMMAND</source>
        <translation>COMANDO</translation>
    </message>
    <message>
        <source>DETAILS</source>
        <translation>DETTAGLI</translation>
    </message>
    <message numerus="yes">
        <source>Statistics are on; %1 lines.</source>
        <translation>
            <numerusform>Le statistiche sono attive; %1 riga.</numerusform>
            <numerusform>Le statistiche sono attive; %1 righe.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Statistics are off; %1 lines.</source>
        <translation>
            <numerusform>Le statistiche sono disattivate; %1 riga.</numerusform>
            <numerusform>Le statistiche sono disattivate; %1 righe.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 lines of the statistics cannot be read.</source>
        <translation>
            <numerusform>%1 riga delle statistiche è illeggibile.</numerusform>
            <numerusform>%1 righe delle statistiche sono illeggibili.</numerusform>
        </translation>
    </message>
    <message>
        <source>The statistics are deleted.</source>
        <translation>Le statistiche sono eliminate.</translation>
    </message>
    <message>
        <source>tag %1</source>
        <comment>+one -another</comment>
        <translation>tag: %1</translation>
    </message>
    <message>
        <source>No photo has the tag &quot;%1&quot;.</source>
        <translation>Nessuna foto ha il tag «%1».</translation>
    </message>
    <message>
        <source>system</source>
        <comment>kind of tag</comment>
        <translation>sistema</translation>
    </message>
    <message>
        <source>icon</source>
        <comment>kind of tag</comment>
        <translation>icona</translation>
    </message>
    <message>
        <source>automatic</source>
        <comment>kind of tag</comment>
        <translation>automatico</translation>
    </message>
    <message>
        <source>own</source>
        <comment>kind of tag</comment>
        <translation>proprio</translation>
    </message>
    <message>
        <source>No photo has a tag yet. Run: lumidex tag FILE +TAG</source>
        <translation>Nessuna foto ha ancora un tag. Esegua: lumidex tag FILE +TAG</translation>
    </message>
    <message>
        <source>TAG</source>
        <translation>TAG</translation>
    </message>
    <message>
        <source>TYPE</source>
        <translation>TIPO</translation>
    </message>
    <message>
        <source>Not in the list</source>
        <translation>Non nell’elenco</translation>
    </message>
    <message>
        <source>Not tagged</source>
        <translation>Senza tag</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos changed; &quot;lumidex undo&quot; undoes it.</source>
        <translation>
            <numerusform>%1 foto cambiata; «lumidex undo» annulla la modifica.</numerusform>
            <numerusform>%1 foto cambiate; «lumidex undo» annulla la modifica.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos changed.</source>
        <translation>
            <numerusform>%1 foto cambiata.</numerusform>
            <numerusform>%1 foto cambiate.</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;lumidex undo&quot; undoes it.</source>
        <translation>«lumidex undo» annulla la modifica.</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos were left out, because they have no date but the times of their files. To include them, run: lumidex albums --file-times</source>
        <translation>
            <numerusform>È stata tralasciata %1 foto, perché non ha altra data che l’ora del suo file. Per includerla, esegua: lumidex albums --file-times</numerusform>
            <numerusform>Sono state tralasciate %1 foto, perché non hanno altra data che l’ora dei loro file. Per includerle, esegua: lumidex albums --file-times</numerusform>
        </translation>
    </message>
    <message>
        <source>Refused by %1</source>
        <comment>commands</comment>
        <translation>Rifiutati da %1</translation>
    </message>
    <message>
        <source>If all these photos are edited at once:</source>
        <translation>Se tutte queste foto sono modificate insieme:</translation>
    </message>
    <message>
        <source>its sidecar</source>
        <translation>il suo file collaterale</translation>
    </message>
    <message numerus="yes">
        <source>%1 sidecars would be edited along with them.</source>
        <translation>
            <numerusform>%1 file collaterale sarebbe modificato insieme a esse.</numerusform>
            <numerusform>%1 file collaterali sarebbero modificati insieme a esse.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 sidecars edited along with them.</source>
        <translation>
            <numerusform>%1 file collaterale modificato insieme a esse.</numerusform>
            <numerusform>%1 file collaterali modificati insieme a esse.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos edited; it cannot be undone.</source>
        <translation>
            <numerusform>%1 foto modificata; la modifica non si può annullare.</numerusform>
            <numerusform>%1 foto modificate; la modifica non si può annullare.</numerusform>
        </translation>
    </message>
    <message>
        <source>There are no photos or videos in the given folders.</source>
        <translation>Non ci sono foto né video nelle cartelle indicate.</translation>
    </message>
    <message>
        <source>It is hidden</source>
        <translation>È nascosto</translation>
    </message>
    <message>
        <source>It is not a photo, a video or a file that belongs to one</source>
        <translation>Non è una foto né un video, né appartiene a uno di essi</translation>
    </message>
    <message>
        <source>&quot;lumidex undo&quot; moves the copies of this run to the trash.</source>
        <translation>«lumidex undo» sposta nel cestino le copie di questa esecuzione.</translation>
    </message>
    <message numerus="yes">
        <source>%1 files are not copied, as you chose; they stay where they are.</source>
        <translation>
            <numerusform>%1 file non viene copiato, come richiesto: resta dov’è.</numerusform>
            <numerusform>%1 file non vengono copiati, come richiesto: restano dove sono.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files are not copied, because they are not on removable storage; &quot;--to DIR&quot; copies them.</source>
        <translation>
            <numerusform>%1 file non viene copiato, perché non si trova su un supporto rimovibile; «--to CARTELLA» lo copia.</numerusform>
            <numerusform>%1 file non vengono copiati, perché non si trovano su un supporto rimovibile; «--to CARTELLA» li copia.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of them are videos, which the catalogue does not hold.</source>
        <translation>
            <numerusform>%1 di essi è un video, che il catalogo non acquisisce.</numerusform>
            <numerusform>%1 di essi sono video, che il catalogo non acquisisce.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 housekeeping files of cameras and systems are not copied.</source>
        <translation>
            <numerusform>%1 file di servizio di fotocamere e sistemi non viene copiato.</numerusform>
            <numerusform>%1 file di servizio di fotocamere e sistemi non vengono copiati.</numerusform>
        </translation>
    </message>
    <message>
        <source>Not everything in %1 is copied: do not format or empty it yet.</source>
        <translation>Non tutto il contenuto di %1 è copiato: non formattare né svuotare ancora.</translation>
    </message>
    <message>
        <source>Copies are in %1 itself: do not format or empty it.</source>
        <translation>Alcune copie si trovano in %1 stesso: non formattare né svuotare.</translation>
    </message>
    <message numerus="yes">
        <source>%1 steps cannot be undone any more, because more than %2 days of use have passed.</source>
        <translation>
            <numerusform>%1 passo non si può più annullare, perché sono trascorsi più di %2 giorni d’uso.</numerusform>
            <numerusform>%1 passi non si possono più annullare, perché sono trascorsi più di %2 giorni d’uso.</numerusform>
        </translation>
    </message>
    <message>
        <source>Links that lead to the new names:</source>
        <translation>Collegamenti che portano ai nuovi nomi:</translation>
    </message>
    <message numerus="yes">
        <source>%1 symbolic links lead to the new names.</source>
        <translation>
            <numerusform>%1 collegamento simbolico porta al nuovo nome.</numerusform>
            <numerusform>%1 collegamenti simbolici portano ai nuovi nomi.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 symbolic links keep their names.</source>
        <translation>
            <numerusform>%1 collegamento simbolico mantiene il suo nome.</numerusform>
            <numerusform>%1 collegamenti simbolici mantengono i loro nomi.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 and %2 more</source>
        <comment>files</comment>
        <translation>
            <numerusform>%1 e %2 altro</numerusform>
            <numerusform>%1 e altri %2</numerusform>
        </translation>
    </message>
    <message>
        <source>These may be photos that were moved, but several files or photos come into question.
The photos keep their tags and albums, the files are new:</source>
        <translation>Possono essere foto spostate, ma ci sono più file o più foto possibili.
Le foto mantengono i loro tag e album, i file sono nuovi:</translation>
    </message>
    <message numerus="yes">
        <source>%1 XMP</source>
        <comment>dates read</comment>
        <translation>
            <numerusform>%1 dai dati XMP</numerusform>
            <numerusform>%1 dai dati XMP</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 IPTC</source>
        <comment>dates read</comment>
        <translation>
            <numerusform>%1 dai dati IPTC</numerusform>
            <numerusform>%1 dai dati IPTC</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>moved or renamed</source>
        <comment>files</comment>
        <translation>
            <numerusform>spostato o rinominato</numerusform>
            <numerusform>spostati o rinominati</numerusform>
        </translation>
    </message>
    <message>
        <source>Keep this one</source>
        <comment>a photo</comment>
        <translation>Da tenere</translation>
    </message>
    <message>
        <source>Same picture</source>
        <translation>Stessa immagine</translation>
    </message>
    <message>
        <source>Alike</source>
        <comment>a photo</comment>
        <translation>Somigliante</translation>
    </message>
    <message>
        <source>Different</source>
        <comment>a photo</comment>
        <translation>Diversa</translation>
    </message>
    <message>
        <source>Could not be compared</source>
        <comment>a photo</comment>
        <translation>Non confrontabile</translation>
    </message>
    <message numerus="yes">
        <source>Group %1: %2 photos like %3</source>
        <translation>
            <numerusform>Gruppo %1: %2 foto come %3</numerusform>
            <numerusform>Gruppo %1: %2 foto come %3</numerusform>
        </translation>
    </message>
    <message>
        <source>undamaged</source>
        <comment>photo</comment>
        <translation>integra</translation>
    </message>
    <message>
        <source>the camera&apos;s own file</source>
        <translation>il file della fotocamera stessa</translation>
    </message>
    <message>
        <source>has maker notes</source>
        <translation>con le note del produttore</translation>
    </message>
    <message>
        <source>not written by another program</source>
        <translation>non scritta da un altro programma</translation>
    </message>
    <message>
        <source>compressed less</source>
        <translation>meno compressa</translation>
    </message>
    <message>
        <source>more bytes per pixel</source>
        <translation>più byte per pixel</translation>
    </message>
    <message>
        <source>named by the camera</source>
        <translation>con il nome dato dalla fotocamera</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos cannot be compared, as before; &quot;lumidex similar --not-compared&quot; lists them.</source>
        <translation>
            <numerusform>%1 foto continua a non essere confrontabile; «lumidex similar --not-compared» la elenca.</numerusform>
            <numerusform>%1 foto continuano a non essere confrontabili; «lumidex similar --not-compared» le elenca.</numerusform>
        </translation>
    </message>
    <message>
        <source>They are the same picture.</source>
        <translation>Sono la stessa immagine.</translation>
    </message>
    <message>
        <source>They are alike, and not the same picture.</source>
        <translation>Si somigliano, ma non sono la stessa immagine.</translation>
    </message>
    <message>
        <source>They are different pictures.</source>
        <translation>Sono immagini diverse.</translation>
    </message>
    <message>
        <source>Their pictures could not be compared.</source>
        <translation>Non è stato possibile confrontare le loro immagini.</translation>
    </message>
    <message>
        <source>same</source>
        <comment>a picture</comment>
        <translation>stessa</translation>
    </message>
    <message>
        <source>alike</source>
        <comment>a picture</comment>
        <translation>somigliante</translation>
    </message>
    <message>
        <source>different</source>
        <comment>a picture</comment>
        <translation>diversa</translation>
    </message>
    <message>
        <source>unknown</source>
        <comment>a verdict</comment>
        <translation>sconosciuto</translation>
    </message>
    <message>
        <source>GROUP</source>
        <translation>GRUPPO</translation>
    </message>
    <message>
        <source>VERDICT</source>
        <translation>VERDETTO</translation>
    </message>
    <message>
        <source>To undo the edit, %1 of originals must be kept, but the limit is %2.</source>
        <translation>Per poter annullare la modifica occorre conservare %1 di originali, ma il limite è %2.</translation>
    </message>
    <message>
        <source>&quot;lumidex undo --keep-size %1&quot; raises the limit; with --no-undo nothing is kept, and the edit cannot be undone.</source>
        <translation>«lumidex undo --keep-size %1» alza il limite; con --no-undo non si conserva nulla e la modifica non si può annullare.</translation>
    </message>
    <message numerus="yes">
        <source>To keep %1 of originals within the limit of %2, undo would have to forget %3 older steps:</source>
        <translation>
            <numerusform>Per conservare %1 di originali entro il limite di %2, si dovrebbe dimenticare %3 passo più vecchio:</numerusform>
            <numerusform>Per conservare %1 di originali entro il limite di %2, si dovrebbero dimenticare %3 passi più vecchi:</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>To keep %1 of originals within the limit of %2, undo forgets %3 older steps:</source>
        <translation>
            <numerusform>Per conservare %1 di originali entro il limite di %2, si dimentica %3 passo più vecchio:</numerusform>
            <numerusform>Per conservare %1 di originali entro il limite di %2, si dimenticano %3 passi più vecchi:</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;lumidex undo --keep-size %1&quot; makes room for all of them.</source>
        <translation>«lumidex undo --keep-size %1» fa spazio per tutti.</translation>
    </message>
    <message>
        <source>--forget-older allows it.</source>
        <translation>--forget-older lo consente.</translation>
    </message>
    <message>
        <source>Forget them and continue? [y/N]</source>
        <translation>Dimenticarli e continuare? [s/N]</translation>
    </message>
    <message>
        <source>No originals would be kept, so the edit could not be undone.</source>
        <translation>Non si conserverebbero originali, quindi la modifica non si potrebbe annullare.</translation>
    </message>
    <message>
        <source>The edit would be refused.</source>
        <translation>La modifica sarebbe rifiutata.</translation>
    </message>
    <message numerus="yes">
        <source>import %1 files to %2</source>
        <translation>
            <numerusform>importare %1 file in %2</numerusform>
            <numerusform>importare %1 file in %2</numerusform>
        </translation>
    </message>
    <message>
        <source>accept album %1</source>
        <translation>accettare l’album %1</translation>
    </message>
    <message numerus="yes">
        <source>accept %1 albums</source>
        <translation>
            <numerusform>accettare %1 album</numerusform>
            <numerusform>accettare %1 album</numerusform>
        </translation>
    </message>
    <message>
        <source>alike to %1</source>
        <comment>a photo is; a file</comment>
        <translation>somiglia a %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos are alike and not the same picture; they stay unless --alike is given.</source>
        <translation>
            <numerusform>%1 foto è solo somigliante e non la stessa immagine; resta se non si indica --alike.</numerusform>
            <numerusform>%1 foto sono solo somiglianti e non la stessa immagine; restano se non si indica --alike.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Move %1 to the trash, %2 of which are only alike? [y/N]</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>Spostare nel cestino %1, di cui %2 solo somigliante? [s/N]</numerusform>
            <numerusform>Spostare nel cestino %1, di cui %2 solo somiglianti? [s/N]</numerusform>
        </translation>
    </message>
    <message>
        <source>Undo without keeping what redo needs? [y/N]</source>
        <translation>Annullare senza conservare ciò che serve per ripetere? [s/N]</translation>
    </message>
    <message numerus="yes">
        <source>%1 copies are in the trash now.</source>
        <translation>
            <numerusform>%1 copia è ora nel cestino.</numerusform>
            <numerusform>%1 copie sono ora nel cestino.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no room to keep what redo needs; &quot;lumidex undo --no-redo&quot; undoes without it.</source>
        <translation>Non c’è spazio per conservare ciò che serve per ripetere; «lumidex undo --no-redo» annulla senza conservarlo.</translation>
    </message>
    <message numerus="yes">
        <source>Undo of &quot;%1&quot; (%2) will leave %3 files as they are, because this step changed them later:</source>
        <translation>
            <numerusform>L’annullamento di «%1» (%2) lascerà %3 file com’è, perché questo passo lo ha modificato in seguito:</numerusform>
            <numerusform>L’annullamento di «%1» (%2) lascerà %3 file come sono, perché questo passo li ha modificati in seguito:</numerusform>
        </translation>
    </message>
    <message>
        <source>unknown</source>
        <comment>a date</comment>
        <translation>sconosciuta</translation>
    </message>
    <message numerus="yes">
        <source>%1 files or folders would be refused.</source>
        <translation>
            <numerusform>%1 file o cartella sarebbe rifiutato.</numerusform>
            <numerusform>%1 file o cartelle sarebbero rifiutati.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>An import skips %1 other files (--json lists them).</source>
        <translation>
            <numerusform>Un’importazione ignora %1 altro file (--json lo elenca).</numerusform>
            <numerusform>Un’importazione ignora altri %1 file (--json li elenca).</numerusform>
        </translation>
    </message>
    <message>
        <source>Every file in %1 has a verified copy elsewhere.</source>
        <translation>Ogni file in %1 ha altrove una copia verificata.</translation>
    </message>
    <message>
        <source>Every file in %1, except for housekeeping files, has a verified copy elsewhere.</source>
        <translation>Ogni file in %1, tranne i file di servizio, ha altrove una copia verificata.</translation>
    </message>
    <message>
        <source>It is safe to format.</source>
        <translation>Si può formattare senza rischi.</translation>
    </message>
    <message>
        <source>It is safe to format as far as this folder is concerned; what is outside it was not checked.</source>
        <translation>Per quanto riguarda questa cartella si può formattare senza rischi; ciò che ne sta fuori non è stato controllato.</translation>
    </message>
    <message>
        <source>not enlarged</source>
        <translation>non ingrandita</translation>
    </message>
    <message>
        <source>The disk of %1 has %2 free, but editing all photos needs %3: the last ones would not be edited.</source>
        <translation>Sul disco di %1 sono liberi %2, ma per modificare tutte le foto servono %3: le ultime non sarebbero modificate.</translation>
    </message>
    <message numerus="yes">
        <source>The sources of %1 of them are gone or changed: do not empty the trash before you have another copy.</source>
        <translation>
            <numerusform>Di %1 di esse il file di origine non c’è più o è stato modificato: non svuoti il cestino prima di avere un’altra copia.</numerusform>
            <numerusform>Di %1 di esse i file di origine non ci sono più o sono stati modificati: non svuoti il cestino prima di avere altre copie.</numerusform>
        </translation>
    </message>
    <message>
        <source>Interrupted. The photos edited so far stay edited.</source>
        <translation>Interrotto. Le foto modificate finora restano modificate.</translation>
    </message>
    <message>
        <source>Interrupted. The photos made so far stay; delete the folder before you try again.</source>
        <translation>Interrotto. Le foto create finora restano; elimini la cartella prima di riprovare.</translation>
    </message>
    <message>
        <source>,</source>
        <comment>between thousands</comment>
        <translation>.</translation>
    </message>
    <message>
        <source>.</source>
        <comment>before decimals</comment>
        <translation>,</translation>
    </message>
    <message>
        <source>%1 B</source>
        <translation>%1 B</translation>
    </message>
    <message>
        <source>%1 KiB</source>
        <translation>%1 KiB</translation>
    </message>
    <message>
        <source>%1 MiB</source>
        <translation>%1 MiB</translation>
    </message>
    <message>
        <source>%1 GiB</source>
        <translation>%1 GiB</translation>
    </message>
    <message>
        <source>%1 TiB</source>
        <translation>%1 TiB</translation>
    </message>
    <message>
        <source>%1 PiB</source>
        <translation>%1 PiB</translation>
    </message>
    <message>
        <source>%1 EiB</source>
        <translation>%1 EiB</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 photos, taken on %3.</source>
        <comment>found, searched, date</comment>
        <translation>
            <numerusform>%1 di %2 foto, scattata il %3.</numerusform>
            <numerusform>%1 di %2 foto, scattate il %3.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 photos, taken from %3 to %4.</source>
        <comment>found, searched, dates</comment>
        <translation>
            <numerusform>%1 di %2 foto, scattata dal %3 al %4.</numerusform>
            <numerusform>%1 di %2 foto, scattate dal %3 al %4.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 photos, taken on %3 or later.</source>
        <comment>found, searched, date</comment>
        <translation>
            <numerusform>%1 di %2 foto, scattata il %3 o dopo.</numerusform>
            <numerusform>%1 di %2 foto, scattate il %3 o dopo.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 photos, taken on %3 or earlier.</source>
        <comment>found, searched, date</comment>
        <translation>
            <numerusform>%1 di %2 foto, scattata il %3 o prima.</numerusform>
            <numerusform>%1 di %2 foto, scattate il %3 o prima.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of them (%2) are the same picture as the photo to keep; &quot;lumidex similar --trash&quot; moves them to the trash.</source>
        <translation>
            <numerusform>%1 di esse (%2) è la stessa immagine della foto da tenere; «lumidex similar --trash» la sposta nel cestino.</numerusform>
            <numerusform>%1 di esse (%2) sono la stessa immagine della foto da tenere; «lumidex similar --trash» le sposta nel cestino.</numerusform>
        </translation>
    </message>
    <message>
        <source>Not the same picture as the photo to keep, only alike:</source>
        <translation>Non la stessa immagine della foto da tenere, solo somiglianti:</translation>
    </message>
    <message>
        <source>cannot be undone</source>
        <comment>a step</comment>
        <translation>non più annullabile</translation>
    </message>
    <message>
        <source>running</source>
        <comment>a step</comment>
        <translation>in corso</translation>
    </message>
    <message>
        <source>WHEN</source>
        <comment>a step</comment>
        <translation>MOMENTO</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <comment>files checked; outcome</comment>
        <translation>%1; %2</translation>
    </message>
    <message>
        <source>%1, %2 %3</source>
        <comment>copies; photos added; dry run</comment>
        <translation>%1, %2 %3</translation>
    </message>
    <message numerus="yes">
        <source>would be the name of %1 photos: %2</source>
        <translation>
            <numerusform>sarebbe il nome di %1 foto: %2</numerusform>
            <numerusform>sarebbe il nome di %1 foto: %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Within these limits, undo would have to forget %1 older steps:</source>
        <translation>
            <numerusform>Entro questi limiti si dovrebbe dimenticare %1 passo più vecchio:</numerusform>
            <numerusform>Entro questi limiti si dovrebbero dimenticare %1 passi più vecchi:</numerusform>
        </translation>
    </message>
    <message>
        <source>Whether a photo goes to the trash also depends on the one that is kept of its group, and on tags, albums, settings and second names; &quot;lumidex similar --trash --dry-run&quot; tells.</source>
        <translation>Che una foto vada nel cestino dipende anche da quella che si tiene del suo gruppo, e da tag, album, impostazioni e altri nomi del file; «lumidex similar --trash --dry-run» lo mostra.</translation>
    </message>
</context>
<context>
    <name>Zenvora::Lumidex::Utils</name>
    <message>
        <source>Attention</source>
        <translation>Attenzione</translation>
    </message>
    <message>
        <source>All of the selected files do not have read permissions, they will not be added.</source>
        <translation>Nessuno dei file selezionati dispone dei permessi di lettura; non verranno aggiunti.</translation>
    </message>
    <message>
        <source>Some of the selected files do not have read permissions, they will not be added.</source>
        <translation>Alcuni dei file selezionati non dispongono dei permessi di lettura; non verranno aggiunti.</translation>
    </message>
    <message>
        <source>Some of the selected photos are on removable storage. Would you like copy they to your hard drive?</source>
        <translation>Alcune delle foto selezionate si trovano su un supporto rimovibile. Copiarle sul disco rigido?</translation>
    </message>
    <message>
        <source>The selected directory is temporary, select another directory.</source>
        <translation>La cartella selezionata è temporanea. Selezioni un’altra cartella.</translation>
    </message>
    <message>
        <source>Some of the selected photos are in read-only formats (for example, %1). They will be converted to JPG or PNG after applying the tool.</source>
        <translation>Alcune delle foto selezionate sono in formati di sola lettura (per esempio %1). Dopo l’applicazione dello strumento saranno convertite in JPG o PNG.</translation>
    </message>
    <message>
        <source>The selected photo is in read-only formats (%1). It will be converted to JPG or PNG after applying the tool.</source>
        <translation>La foto selezionata è in un formato di sola lettura (%1). Dopo l’applicazione dello strumento sarà convertita in JPG o PNG.</translation>
    </message>
    <message>
        <source>There is not enough space on the disk %1</source>
        <translation>Spazio insufficiente sul disco %1</translation>
    </message>
    <message>
        <source>You do not have permission to edit files in this folder: %1</source>
        <translation>Non dispone dei permessi per modificare i file in questa cartella: %1</translation>
    </message>
    <message>
        <source>You do not have permission to edit file: %1</source>
        <translation>Non dispone dei permessi per modificare il file: %1</translation>
    </message>
    <message>
        <source>day</source>
        <translation>giorno</translation>
    </message>
    <message>
        <source>days</source>
        <translation>giorni</translation>
    </message>
    <message>
        <source>Expired</source>
        <translation>Scaduto</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>One day</source>
        <translation>giorno</translation>
    </message>
    <message>
        <source>Nominative day</source>
        <translation>giorni</translation>
    </message>
    <message>
        <source>Genetive day</source>
        <translation>giorni</translation>
    </message>
    <message>
        <source>Plural day</source>
        <translation>giorni</translation>
    </message>
    <message>
        <source>One album</source>
        <translation>album</translation>
    </message>
    <message>
        <source>Nominative album</source>
        <translation>album</translation>
    </message>
    <message>
        <source>Genetive album</source>
        <translation>album</translation>
    </message>
    <message>
        <source>Plural album</source>
        <translation>album</translation>
    </message>
    <message>
        <source>album</source>
        <translation>album</translation>
    </message>
    <message>
        <source>albums</source>
        <translation>album</translation>
    </message>
    <message>
        <source>One group</source>
        <translation>gruppo</translation>
    </message>
    <message>
        <source>Nominative group</source>
        <translation>gruppi</translation>
    </message>
    <message>
        <source>Genetive group</source>
        <translation>gruppi</translation>
    </message>
    <message>
        <source>Plural group</source>
        <translation>gruppi</translation>
    </message>
    <message>
        <source>group</source>
        <translation>gruppo</translation>
    </message>
    <message>
        <source>groups</source>
        <translation>gruppi</translation>
    </message>
    <message>
        <source>One photo</source>
        <translation>foto</translation>
    </message>
    <message>
        <source>Nominative photo</source>
        <translation>foto</translation>
    </message>
    <message>
        <source>Genetive photo</source>
        <translation>foto</translation>
    </message>
    <message>
        <source>Plural photo</source>
        <translation>foto</translation>
    </message>
    <message>
        <source>photo</source>
        <translation>foto</translation>
    </message>
    <message>
        <source>photos</source>
        <translation>foto</translation>
    </message>
</context>
</TS>
