<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
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
        <translation>%1 lässt sich nicht bearbeiten: %2</translation>
    </message>
    <message>
        <source>Cannot rename %1: %2</source>
        <translation>%1 lässt sich nicht umbenennen: %2</translation>
    </message>
    <message>
        <source>Cannot rename %1 to %2: %3</source>
        <translation>%1 lässt sich nicht in %2 umbenennen: %3</translation>
    </message>
    <message>
        <source>Cannot read %1: %2</source>
        <translation>%1 lässt sich nicht lesen: %2</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>%1 lässt sich nicht schreiben: %2</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>%1 lässt sich nicht schreiben: %2</translation>
    </message>
    <message>
        <source>its folder cannot be written to; change the permissions of %1</source>
        <translation>in seinen Ordner darf nicht geschrieben werden; ändern Sie die Berechtigungen von %1</translation>
    </message>
    <message>
        <source>its folder lets only its owner change it; change the owner, or the permissions of %1</source>
        <translation>in seinem Ordner darf nur der Besitzer etwas ändern; ändern Sie den Besitzer oder die Berechtigungen von %1</translation>
    </message>
    <message>
        <source>its disk has no room for a new version of it (%1 bytes are needed, %2 are free); free space there</source>
        <translation>auf seinem Laufwerk ist kein Platz für eine neue Fassung (%1 Bytes werden gebraucht, %2 sind frei); schaffen Sie dort Platz</translation>
    </message>
    <message>
        <source>it is write-protected; allow writing to it, or use --force</source>
        <translation>die Datei ist schreibgeschützt; erlauben Sie das Schreiben, oder verwenden Sie --force</translation>
    </message>
    <message>
        <source>its sidecar %1 is write-protected; allow writing to it, or use --force</source>
        <translation>die Begleitdatei %1 ist schreibgeschützt; erlauben Sie das Schreiben, oder verwenden Sie --force</translation>
    </message>
    <message>
        <source>its sidecar must be edited with it. %1; repair or move the sidecar</source>
        <translation>die Begleitdatei muss mit bearbeitet werden. %1; reparieren oder verschieben Sie die Begleitdatei</translation>
    </message>
    <message>
        <source>its sidecar %1 must be edited with it, but %2</source>
        <translation>die Begleitdatei %1 muss mit bearbeitet werden, aber %2</translation>
    </message>
    <message>
        <source>it has no date to shift</source>
        <translation>es gibt kein Datum zu verschieben</translation>
    </message>
    <message>
        <source>its year would not be 1 to 9999</source>
        <translation>das Jahr läge nicht zwischen 1 und 9999</translation>
    </message>
    <message>
        <source>its metadata cannot be changed without losing data (%1)</source>
        <translation>die Metadaten lassen sich nicht ohne Verlust ändern (%1)</translation>
    </message>
    <message>
        <source>its metadata would be wrong afterwards</source>
        <translation>die Metadaten wären danach falsch</translation>
    </message>
    <message>
        <source>its EXIF data, which are kept as text, are damaged</source>
        <translation>die EXIF-Daten, die als Text abgelegt sind, sind beschädigt</translation>
    </message>
    <message>
        <source>its EXIF data are damaged</source>
        <translation>die EXIF-Daten sind beschädigt</translation>
    </message>
    <message>
        <source>its XMP data are damaged</source>
        <translation>die XMP-Daten sind beschädigt</translation>
    </message>
    <message>
        <source>its TIFF directory is damaged</source>
        <translation>das TIFF-Verzeichnis ist beschädigt</translation>
    </message>
    <message>
        <source>its picture format is not known</source>
        <translation>das Bildformat ist unbekannt</translation>
    </message>
    <message>
        <source>its format cannot be edited</source>
        <translation>das Format lässt sich nicht bearbeiten</translation>
    </message>
    <message>
        <source>photos of the format %1 cannot be edited</source>
        <translation>Fotos im Format %1 lassen sich nicht bearbeiten</translation>
    </message>
    <message>
        <source>its picture would change</source>
        <translation>das Bild selbst würde sich ändern</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>die Datei ist leer</translation>
    </message>
    <message>
        <source>it is damaged: %1</source>
        <translation>die Datei ist beschädigt: %1</translation>
    </message>
    <message>
        <source>it is larger than 2 GiB</source>
        <translation>die Datei ist größer als 2 GiB</translation>
    </message>
    <message>
        <source>it is larger than 4 MiB</source>
        <translation>die Datei ist größer als 4 MiB</translation>
    </message>
    <message>
        <source>it was changed while it was read</source>
        <translation>die Datei wurde während des Lesens geändert</translation>
    </message>
    <message>
        <source>editing it takes more memory than there is</source>
        <translation>der Arbeitsspeicher reicht zum Bearbeiten nicht aus</translation>
    </message>
    <message>
        <source>its JPEG data is damaged</source>
        <translation>die JPEG-Daten sind beschädigt</translation>
    </message>
    <message>
        <source>its JPEG data ends before the picture</source>
        <translation>die JPEG-Daten enden vor dem Bild</translation>
    </message>
    <message>
        <source>its JPEG data breaks off before the picture</source>
        <translation>die JPEG-Daten brechen vor dem Bild ab</translation>
    </message>
    <message>
        <source>there is no room left in its EXIF block</source>
        <translation>im EXIF-Block ist kein Platz mehr</translation>
    </message>
    <message>
        <source>its PNG data breaks off</source>
        <translation>die PNG-Daten brechen ab</translation>
    </message>
    <message>
        <source>its PNG data does not begin with a picture</source>
        <translation>die PNG-Daten beginnen nicht mit einem Bild</translation>
    </message>
    <message>
        <source>it has two EXIF blocks</source>
        <translation>es gibt zwei EXIF-Blöcke</translation>
    </message>
    <message>
        <source>its WebP data breaks off</source>
        <translation>die WebP-Daten brechen ab</translation>
    </message>
    <message>
        <source>its WebP data holds no picture</source>
        <translation>die WebP-Daten enthalten kein Bild</translation>
    </message>
    <message>
        <source>its %1 cannot be changed in place</source>
        <translation>%1 lässt sich nicht an Ort und Stelle ändern</translation>
    </message>
    <message>
        <source>its date cannot be changed in its %1 data</source>
        <translation>das Datum lässt sich in den %1-Daten nicht ändern</translation>
    </message>
    <message>
        <source>its %1 cannot be changed in its %2 data</source>
        <translation>%1 lässt sich in den %2-Daten nicht ändern</translation>
    </message>
    <message>
        <source>it breaks off before its end</source>
        <translation>die Datei bricht vor ihrem Ende ab</translation>
    </message>
    <message>
        <source>its text is damaged</source>
        <translation>der Text ist beschädigt</translation>
    </message>
    <message>
        <source>it has too many properties</source>
        <translation>die Datei hat zu viele Eigenschaften</translation>
    </message>
    <message>
        <source>%1 is unchanged: %2</source>
        <translation>%1 ist unverändert: %2</translation>
    </message>
    <message>
        <source>%1 was edited, but the catalogue could not be updated (%2). The next run updates it</source>
        <translation>%1 wurde bearbeitet, aber der Katalog konnte nicht aktualisiert werden (%2). Der nächste Aufruf von lumidex holt das nach</translation>
    </message>
    <message>
        <source>%1 cannot be read back as what was written</source>
        <translation>%1 lässt sich nicht so zurücklesen, wie es geschrieben wurde</translation>
    </message>
    <message>
        <source>%1 is left as it is, because it belongs to %2</source>
        <translation>%1 bleibt unverändert, weil es zu %2 gehört</translation>
    </message>
    <message>
        <source>%1 is missing for now, but its versions are kept (%2). Free space on its disk and run &quot;lumidex undo&quot; again</source>
        <translation>%1 fehlt vorerst, aber die Fassungen sind aufbewahrt (%2). Schaffen Sie auf dem Laufwerk Platz, und rufen Sie „lumidex undo“ erneut auf</translation>
    </message>
    <message>
        <source>%1 is left as it is: another program changed %2, where its other version was kept</source>
        <translation>%1 bleibt unverändert: Ein anderes Programm hat %2 geändert, wo die andere Fassung aufbewahrt war</translation>
    </message>
    <message>
        <source>%1 is left as it is: its disk has no room for its other version (%2 bytes). Free space there and try again</source>
        <translation>%1 bleibt unverändert: Auf dem Laufwerk ist kein Platz für die andere Fassung (%2 Bytes). Schaffen Sie dort Platz, und versuchen Sie es erneut</translation>
    </message>
    <message>
        <source>%1 is left as it is: its other version is no longer kept</source>
        <translation>%1 bleibt unverändert: Die andere Fassung ist nicht mehr aufbewahrt</translation>
    </message>
    <message>
        <source>%1 was changed later and is left as it is</source>
        <translation>%1 wurde später geändert und bleibt unverändert</translation>
    </message>
    <message>
        <source>%1 no longer exists</source>
        <translation>%1 gibt es nicht mehr</translation>
    </message>
    <message>
        <source>%1 cannot be reached: its disk may not be connected</source>
        <translation>%1 ist nicht erreichbar: Vielleicht ist das Laufwerk nicht angeschlossen</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 lässt sich nicht lesen: %2</translation>
    </message>
    <message>
        <source>The undo journal %1 cannot be used: %2</source>
        <translation>Das Protokoll %1 zum Rückgängigmachen lässt sich nicht verwenden: %2</translation>
    </message>
    <message>
        <source>another program is renaming or editing photos with it; try again when that has finished</source>
        <translation>ein anderes Programm benennt damit gerade Fotos um oder bearbeitet sie; versuchen Sie es erneut, wenn es fertig ist</translation>
    </message>
    <message>
        <source>no step is started without %1 MiB free for finishing and undoing it (%2)</source>
        <translation>ohne %1 MiB freien Platz, um ihn abzuschließen und rückgängig zu machen, wird kein Schritt begonnen (%2)</translation>
    </message>
    <message>
        <source>there is no room for undoing it (%1)</source>
        <translation>es fehlt der Platz, um es rückgängig zu machen (%1)</translation>
    </message>
    <message>
        <source>Cannot change the target of the link %1: %2</source>
        <translation>Das Ziel des Links %1 lässt sich nicht ändern: %2</translation>
    </message>
    <message>
        <source>Cannot move %1 to the trash: %2</source>
        <translation>%1 lässt sich nicht in den Papierkorb verschieben: %2</translation>
    </message>
    <message>
        <source>no free name in the trash</source>
        <translation>kein freier Name im Papierkorb</translation>
    </message>
    <message>
        <source>another file has that name</source>
        <translation>eine andere Datei hat diesen Namen</translation>
    </message>
    <message>
        <source>another file has its former name</source>
        <translation>eine andere Datei hat den früheren Namen</translation>
    </message>
    <message>
        <source>it is on another volume</source>
        <translation>das Ziel liegt auf einem anderen Laufwerk</translation>
    </message>
    <message>
        <source>it is no longer a file</source>
        <translation>es ist keine Datei mehr</translation>
    </message>
    <message>
        <source>%1 was kept, because its photo was kept</source>
        <translation>%1 wurde behalten, weil das zugehörige Foto behalten wurde</translation>
    </message>
    <message>
        <source>%1 was kept, because the photo kept in its place, %2, no longer exists</source>
        <translation>%1 wurde behalten, weil es das Foto %2, das an seiner Stelle behalten wurde, nicht mehr gibt</translation>
    </message>
    <message>
        <source>%1 is in the trash as %2, which cannot be reached: its disk may not be connected</source>
        <translation>%1 liegt im Papierkorb als %2 und ist nicht erreichbar: Vielleicht ist das Laufwerk nicht angeschlossen</translation>
    </message>
    <message>
        <source>%1 may be in the trash as %2, which cannot be read: %3</source>
        <translation>%1 liegt vielleicht im Papierkorb als %2, was sich nicht lesen lässt: %3</translation>
    </message>
    <message>
        <source>%1 is no longer in the trash; another file has its name</source>
        <translation>%1 liegt nicht mehr im Papierkorb; eine andere Datei hat den Namen</translation>
    </message>
    <message>
        <source>%1 is no longer in the trash and cannot be brought back</source>
        <translation>%1 liegt nicht mehr im Papierkorb und lässt sich nicht zurückholen</translation>
    </message>
    <message>
        <source>%1 remains in the trash as %2: %3</source>
        <translation>%1 bleibt im Papierkorb als %2: %3</translation>
    </message>
    <message>
        <source>The album &quot;%1&quot; is kept, because photos were added to it later</source>
        <translation>Das Album „%1“ bleibt, weil später Fotos hinzukamen</translation>
    </message>
    <message>
        <source>The album &quot;%1&quot; no longer exists</source>
        <translation>Das Album „%1“ gibt es nicht mehr</translation>
    </message>
    <message>
        <source>Another album has the name &quot;%1&quot; now</source>
        <translation>Ein anderes Album heißt jetzt „%1“</translation>
    </message>
    <message>
        <source>%1 is kept: %2.</source>
        <translation>%1 bleibt: %2.</translation>
    </message>
    <message>
        <source>it is already in a trash</source>
        <translation>es liegt schon in einem Papierkorb</translation>
    </message>
    <message>
        <source>it is a link to another file</source>
        <translation>es ist ein Link auf eine andere Datei</translation>
    </message>
    <message>
        <source>it no longer exists</source>
        <translation>es gibt die Datei nicht mehr</translation>
    </message>
    <message>
        <source>it was changed after it was analysed</source>
        <translation>die Datei wurde nach der Analyse geändert</translation>
    </message>
    <message>
        <source>it was changed after it was compared</source>
        <translation>die Datei wurde nach dem Vergleich geändert</translation>
    </message>
    <message>
        <source>it is another name of a file that is kept</source>
        <translation>es ist ein anderer Name einer Datei, die behalten wird</translation>
    </message>
    <message>
        <source>it is of the same shot as %1, which is kept</source>
        <translation>es gehört zur selben Aufnahme wie %1, das behalten wird</translation>
    </message>
    <message>
        <source>it is like others of its group, but not like the photo to keep, %1</source>
        <translation>es ist anderen der Gruppe ähnlich, aber nicht dem Foto, das zu behalten ist, %1</translation>
    </message>
    <message>
        <source>it has tags or albums that the photo to keep, %1, does not have</source>
        <translation>es hat Schlagwörter oder Alben, die das Foto, das zu behalten ist, %1, nicht hat</translation>
    </message>
    <message>
        <source>it is a raw file, and no raw file of its group is kept</source>
        <translation>es ist eine Rohdatei, und keine Rohdatei der Gruppe wird behalten</translation>
    </message>
    <message>
        <source>its settings, %1, would be lost: the photo to keep, %2, does not have them</source>
        <translation>die Einstellungen in %1 gingen verloren: Das Foto, das zu behalten ist, %2, hat sie nicht</translation>
    </message>
    <message>
        <source>the link %1 leads to it</source>
        <translation>der Link %1 führt dorthin</translation>
    </message>
    <message>
        <source>%1, to which it belongs, is kept</source>
        <translation>%1, zu dem es gehört, wird behalten</translation>
    </message>
    <message>
        <source>the settings in %1 were changed</source>
        <translation>die Einstellungen in %1 wurden geändert</translation>
    </message>
    <message>
        <source>the photo to keep, %1, no longer exists</source>
        <translation>das Foto, das zu behalten ist, %1, gibt es nicht mehr</translation>
    </message>
    <message>
        <source>the photo to keep, %1, was changed after it was analysed</source>
        <translation>das Foto, das zu behalten ist, %1, wurde nach der Analyse geändert</translation>
    </message>
    <message>
        <source>the photo to keep, %1, is no longer a file</source>
        <translation>das Foto, das zu behalten ist, %1, ist keine Datei mehr</translation>
    </message>
    <message>
        <source>the photo to keep, %1, cannot be read (%2)</source>
        <translation>das Foto, das zu behalten ist, %1, lässt sich nicht lesen (%2)</translation>
    </message>
    <message>
        <source>the photo to keep, %1, is in a trash</source>
        <translation>das Foto, das zu behalten ist, %1, liegt in einem Papierkorb</translation>
    </message>
    <message>
        <source>the photo to keep, %1, is a link to another file</source>
        <translation>das Foto, das zu behalten ist, %1, ist ein Link auf eine andere Datei</translation>
    </message>
    <message>
        <source>the photo to keep, %1, breaks off before the end of its picture</source>
        <translation>das Foto, das zu behalten ist, %1, bricht vor dem Ende des Bildes ab</translation>
    </message>
    <message>
        <source>the photo to keep, %1, is damaged: %2</source>
        <translation>das Foto, das zu behalten ist, %1, ist beschädigt: %2</translation>
    </message>
    <message>
        <source>Interrupted undo of &quot;%1&quot; is now complete.</source>
        <translation>Das abgebrochene Rückgängigmachen von „%1“ ist jetzt abgeschlossen.</translation>
    </message>
    <message>
        <source>Interrupted redo of &quot;%1&quot; is now complete.</source>
        <translation>Das abgebrochene Wiederholen von „%1“ ist jetzt abgeschlossen.</translation>
    </message>
    <message>
        <source>Interrupted undo of &quot;%1&quot; is now complete, except for:</source>
        <translation>Das abgebrochene Rückgängigmachen von „%1“ ist jetzt abgeschlossen, außer bei:</translation>
    </message>
    <message>
        <source>Interrupted redo of &quot;%1&quot; is now complete, except for:</source>
        <translation>Das abgebrochene Wiederholen von „%1“ ist jetzt abgeschlossen, außer bei:</translation>
    </message>
    <message>
        <source>Interrupted step &quot;%1&quot; is now complete.</source>
        <translation>Der abgebrochene Schritt „%1“ ist jetzt abgeschlossen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was interrupted and will be finished once %2 can be reached.</source>
        <translation>„%1“ wurde abgebrochen und wird abgeschlossen, sobald %2 erreichbar ist.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was interrupted and cannot be finished (%2); the files have their former names.</source>
        <translation>„%1“ wurde abgebrochen und lässt sich nicht abschließen (%2); die Dateien haben ihre früheren Namen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was interrupted and cannot be finished (%2), nor undone (%3).</source>
        <translation>„%1“ wurde abgebrochen und lässt sich weder abschließen (%2) noch rückgängig machen (%3).</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was interrupted. Photos edited: %2; the others are unchanged.</source>
        <translation>„%1“ wurde abgebrochen. Bearbeitete Fotos: %2; die übrigen sind unverändert.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was interrupted. Copies made: %2; run the same import to copy the rest.</source>
        <translation>„%1“ wurde abgebrochen. Fertige Kopien: %2; wiederholen Sie den Import, um den Rest zu kopieren.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was interrupted. Files moved: %2; the others are where they were.</source>
        <translation>„%1“ wurde abgebrochen. Verschobene Dateien: %2; die übrigen sind, wo sie waren.</translation>
    </message>
    <message>
        <source>Originals that this catalogue does not know were moved to %1.</source>
        <translation>Originale, die dieser Katalog nicht kennt, wurden nach %1 verschoben.</translation>
    </message>
    <message>
        <source>%1 and its sidecar disagree, because only one of them was edited (%2).</source>
        <translation>%1 und die Begleitdatei stimmen nicht überein, weil nur eine der beiden Dateien bearbeitet wurde (%2).</translation>
    </message>
    <message>
        <source>It cannot be read</source>
        <translation>Die Datei lässt sich nicht lesen</translation>
    </message>
    <message>
        <source>It is a pipe or a device</source>
        <translation>Es ist eine Pipe oder ein Gerät</translation>
    </message>
    <message>
        <source>It is not a regular file</source>
        <translation>Es ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>It is empty</source>
        <translation>Die Datei ist leer</translation>
    </message>
    <message>
        <source>It is damaged: %1</source>
        <translation>Die Datei ist beschädigt: %1</translation>
    </message>
    <message>
        <source>Its picture format is not known</source>
        <translation>Das Bildformat ist unbekannt</translation>
    </message>
    <message>
        <source>Its name is not valid text</source>
        <translation>Der Name ist kein gültiger Text</translation>
    </message>
    <message>
        <source>It is named like a housekeeping file, but may be a picture or a video</source>
        <translation>Die Datei heißt wie eine Verwaltungsdatei, kann aber ein Bild oder ein Video sein</translation>
    </message>
    <message>
        <source>The link leads to a file that is missing</source>
        <translation>Der Link führt zu einer Datei, die fehlt</translation>
    </message>
    <message>
        <source>The link leads to a file that cannot be read</source>
        <translation>Der Link führt zu einer Datei, die sich nicht lesen lässt</translation>
    </message>
    <message>
        <source>The link leads back to itself</source>
        <translation>Der Link führt zu sich selbst zurück</translation>
    </message>
    <message>
        <source>The link leads to a folder that cannot be read</source>
        <translation>Der Link führt zu einem Ordner, der sich nicht lesen lässt</translation>
    </message>
    <message>
        <source>The link leads back to a folder above it</source>
        <translation>Der Link führt zu einem übergeordneten Ordner zurück</translation>
    </message>
    <message>
        <source>The link leads to a folder that was already visited</source>
        <translation>Der Link führt zu einem Ordner, der schon besucht wurde</translation>
    </message>
    <message>
        <source>%1 is hidden</source>
        <translation>%1 ist versteckt</translation>
    </message>
    <message>
        <source>%1 is not named like a photo</source>
        <translation>%1 heißt nicht wie ein Foto</translation>
    </message>
    <message>
        <source>%1 is a link to a file that is missing</source>
        <translation>%1 ist ein Link auf eine Datei, die fehlt</translation>
    </message>
    <message>
        <source>it was changed while it was copied</source>
        <translation>die Datei wurde während des Kopierens geändert</translation>
    </message>
    <message>
        <source>the copy differs from the original</source>
        <translation>die Kopie weicht vom Original ab</translation>
    </message>
    <message>
        <source>the copy cannot be written: %1</source>
        <translation>die Kopie lässt sich nicht schreiben: %1</translation>
    </message>
    <message>
        <source>the copy cannot be read back: %1</source>
        <translation>die Kopie lässt sich nicht zurücklesen: %1</translation>
    </message>
    <message>
        <source>the copy cannot be recorded</source>
        <translation>die Kopie lässt sich nicht verzeichnen</translation>
    </message>
    <message>
        <source>another file got the name %1 meanwhile</source>
        <translation>eine andere Datei hat inzwischen den Namen %1 bekommen</translation>
    </message>
    <message>
        <source>it is identical to %1, which could not be copied</source>
        <translation>die Datei ist identisch mit %1, das nicht kopiert werden konnte</translation>
    </message>
    <message>
        <source>the import was interrupted</source>
        <translation>der Import wurde abgebrochen</translation>
    </message>
    <message>
        <source>It may be any of %1 photos that are missing</source>
        <translation>Die Datei kann jedes von %1 fehlenden Fotos sein</translation>
    </message>
    <message>
        <source>It is missing, and %1 files may be it</source>
        <translation>Das Foto fehlt, und %1 Dateien kommen in Frage</translation>
    </message>
    <message>
        <source>It was changed or replaced, and a file has its former content</source>
        <translation>Das Foto wurde geändert oder ersetzt, und eine Datei hat seinen früheren Inhalt</translation>
    </message>
    <message>
        <source>identical files</source>
        <translation>identische Dateien</translation>
    </message>
    <message>
        <source>the same pixels</source>
        <translation>dieselben Pixel</translation>
    </message>
    <message>
        <source>the same picture, smaller</source>
        <translation>dasselbe Bild, kleiner</translation>
    </message>
    <message>
        <source>the same picture, larger</source>
        <translation>dasselbe Bild, größer</translation>
    </message>
    <message>
        <source>the same picture, compressed again or in another format</source>
        <translation>dasselbe Bild, erneut komprimiert oder in einem anderen Format</translation>
    </message>
    <message>
        <source>the same picture, mirrored</source>
        <translation>dasselbe Bild, gespiegelt</translation>
    </message>
    <message>
        <source>the same picture, brighter</source>
        <translation>dasselbe Bild, heller</translation>
    </message>
    <message>
        <source>the same picture, darker</source>
        <translation>dasselbe Bild, dunkler</translation>
    </message>
    <message>
        <source>the same picture, with more contrast</source>
        <translation>dasselbe Bild, mit mehr Kontrast</translation>
    </message>
    <message>
        <source>the same picture, with less contrast</source>
        <translation>dasselbe Bild, mit weniger Kontrast</translation>
    </message>
    <message>
        <source>the same picture, sharpened</source>
        <translation>dasselbe Bild, geschärft</translation>
    </message>
    <message>
        <source>the same picture, changed all over</source>
        <translation>dasselbe Bild, überall verändert</translation>
    </message>
    <message>
        <source>the same picture, larger and with more detail</source>
        <translation>dasselbe Bild, größer und mit mehr Einzelheiten</translation>
    </message>
    <message>
        <source>the same picture with a border or a caption</source>
        <translation>dasselbe Bild mit einem Rand oder einer Beschriftung</translation>
    </message>
    <message>
        <source>the same picture without colours</source>
        <translation>dasselbe Bild ohne Farben</translation>
    </message>
    <message>
        <source>the same picture with colours</source>
        <translation>dasselbe Bild mit Farben</translation>
    </message>
    <message>
        <source>the same picture as far as a preview shows</source>
        <translation>dasselbe Bild, soweit eine Vorschau es zeigt</translation>
    </message>
    <message>
        <source>the same picture as far as so few pixels show</source>
        <translation>dasselbe Bild, soweit so wenige Pixel es zeigen</translation>
    </message>
    <message>
        <source>the same picture as far as it shows when it is made smaller</source>
        <translation>dasselbe Bild, soweit es sich verkleinert zeigt</translation>
    </message>
    <message>
        <source>the same picture, but for something small at %1</source>
        <translation>dasselbe Bild bis auf etwas Kleines %1</translation>
    </message>
    <message>
        <source>nearly the same view</source>
        <translation>fast dieselbe Ansicht</translation>
    </message>
    <message>
        <source>the same view, turned a little</source>
        <translation>dieselbe Ansicht, leicht gedreht</translation>
    </message>
    <message>
        <source>the same view, cropped</source>
        <translation>dieselbe Ansicht, beschnitten</translation>
    </message>
    <message>
        <source>the same view with more around it</source>
        <translation>dieselbe Ansicht mit mehr ringsherum</translation>
    </message>
    <message>
        <source>the same view, brighter</source>
        <translation>dieselbe Ansicht, heller</translation>
    </message>
    <message>
        <source>the same view, darker</source>
        <translation>dieselbe Ansicht, dunkler</translation>
    </message>
    <message>
        <source>another plain colour</source>
        <translation>eine andere einheitliche Farbe</translation>
    </message>
    <message>
        <source>shows something else</source>
        <translation>zeigt etwas anderes</translation>
    </message>
    <message>
        <source>differs in some places</source>
        <translation>unterscheidet sich an einigen Stellen</translation>
    </message>
    <message>
        <source>differs at %1</source>
        <translation>unterscheidet sich %1</translation>
    </message>
    <message>
        <source>the upper left</source>
        <translation>oben links</translation>
    </message>
    <message>
        <source>the top</source>
        <translation>oben</translation>
    </message>
    <message>
        <source>the upper right</source>
        <translation>oben rechts</translation>
    </message>
    <message>
        <source>the left</source>
        <translation>links</translation>
    </message>
    <message>
        <source>the middle</source>
        <translation>in der Mitte</translation>
    </message>
    <message>
        <source>the right</source>
        <translation>rechts</translation>
    </message>
    <message>
        <source>the lower left</source>
        <translation>unten links</translation>
    </message>
    <message>
        <source>the bottom</source>
        <translation>unten</translation>
    </message>
    <message>
        <source>the lower right</source>
        <translation>unten rechts</translation>
    </message>
    <message>
        <source>it cannot be compared: %1</source>
        <translation>nicht vergleichbar: %1</translation>
    </message>
    <message>
        <source>the photo to keep cannot be compared: %1</source>
        <translation>das Foto, das zu behalten ist, lässt sich nicht vergleichen: %1</translation>
    </message>
    <message>
        <source>it has too few pixels</source>
        <translation>zu wenige Pixel</translation>
    </message>
    <message>
        <source>it is partly transparent</source>
        <translation>teilweise durchsichtig</translation>
    </message>
    <message>
        <source>it breaks off before the end of its picture</source>
        <translation>die Datei bricht vor dem Ende des Bildes ab</translation>
    </message>
    <message>
        <source>it holds more behind its picture</source>
        <translation>hinter dem Bild steht noch mehr</translation>
    </message>
    <message>
        <source>of several pictures in a file only the first can be compared</source>
        <translation>von mehreren Bildern in einer Datei lässt sich nur das erste vergleichen</translation>
    </message>
    <message>
        <source>there is not enough memory to compare it</source>
        <translation>der Arbeitsspeicher reicht zum Vergleichen nicht aus</translation>
    </message>
    <message>
        <source>nothing of the picture can be decoded</source>
        <translation>nichts vom Bild lässt sich entschlüsseln</translation>
    </message>
    <message>
        <source>the head of the picture is damaged</source>
        <translation>der Anfang des Bildes ist beschädigt</translation>
    </message>
    <message>
        <source>a part of the picture is damaged</source>
        <translation>ein Teil des Bildes ist beschädigt</translation>
    </message>
    <message>
        <source>its content is not a picture of a known format</source>
        <translation>der Inhalt ist kein Bild in einem bekannten Format</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>die Datei ist leer</translation>
    </message>
    <message>
        <source>the system lets nobody move it; take its attribute &quot;immutable&quot; away</source>
        <translation>das System lässt es von niemandem verschieben; nehmen Sie ihm das Attribut „immutable“</translation>
    </message>
    <message>
        <source>has a link of the same name beside it, which would not be renamed: %1</source>
        <translation>daneben liegt ein Link dieses Namens, der nicht mit umbenannt würde: %1</translation>
    </message>
    <message>
        <source>has no date</source>
        <translation>hat kein Datum</translation>
    </message>
    <message>
        <source>has no readable date: %1</source>
        <translation>hat kein lesbares Datum: %1</translation>
    </message>
    <message>
        <source>is given twice</source>
        <translation>ist zweimal angegeben</translation>
    </message>
    <message>
        <source>%1 is a link to somewhere else, and imports do not write through links. Remove the link, then import again.</source>
        <translation>%1 ist ein Link an eine andere Stelle, und durch Links wird beim Importieren nicht geschrieben. Entfernen Sie den Link und importieren Sie noch einmal.</translation>
    </message>
    <message>
        <source>%1 is no file, and imports keep one there. Remove it, then import again.</source>
        <translation>%1 ist keine Datei, aber der Import führt dort eine. Entfernen Sie es und importieren Sie noch einmal.</translation>
    </message>
    <message>
        <source>%1 is a second name of another file (a hard link), and imports do not write to such. Put a copy of it in its place, or remove it, then import again.</source>
        <translation>%1 ist ein zweiter Name einer anderen Datei (ein harter Link), und in solche wird beim Importieren nicht geschrieben. Ersetzen Sie ihn durch eine Kopie oder entfernen Sie ihn und importieren Sie noch einmal.</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 ist kein Ordner.</translation>
    </message>
    <message>
        <source>There is not enough space in %1: %2 bytes are needed, %3 are free.</source>
        <translation>In %1 ist nicht genug Platz: %2 Bytes werden gebraucht, %3 sind frei.</translation>
    </message>
    <message>
        <source>would be the name of two photos: %1</source>
        <translation>wäre der Name zweier Fotos: %1</translation>
    </message>
    <message>
        <source>would be the name of two files: %1</source>
        <translation>wäre der Name zweier Dateien: %1</translation>
    </message>
    <message>
        <source>is the name of another file: %1</source>
        <translation>ist der Name einer anderen Datei: %1</translation>
    </message>
    <message>
        <source>is the name of another photo or its sidecar: %1</source>
        <translation>ist der Name eines anderen Fotos oder seiner Begleitdatei: %1</translation>
    </message>
    <message>
        <source>is the name of a photo that cannot be renamed: %1</source>
        <translation>ist der Name eines Fotos, das sich nicht umbenennen lässt: %1</translation>
    </message>
    <message>
        <source>holds a separator of folders %1</source>
        <translation>enthält das Trennzeichen %1 für Ordner</translation>
    </message>
    <message>
        <source>holds the sign for unreadable characters</source>
        <translation>enthält das Zeichen für unlesbare Zeichen</translation>
    </message>
    <message>
        <source>holds a control character</source>
        <translation>enthält ein Steuerzeichen</translation>
    </message>
    <message>
        <source>holds the character %1</source>
        <translation>enthält das Zeichen %1</translation>
    </message>
    <message>
        <source>begins with a dot, which hides the file</source>
        <translation>beginnt mit einem Punkt, der die Datei verbirgt</translation>
    </message>
    <message>
        <source>is longer than %1 bytes</source>
        <translation>ist länger als %1 Bytes</translation>
    </message>
    <message>
        <source>names a device of Windows</source>
        <translation>bezeichnet ein Gerät von Windows</translation>
    </message>
    <message>
        <source>ends in a dot, which Windows drops</source>
        <translation>endet mit einem Punkt, den Windows weglässt</translation>
    </message>
    <message>
        <source>ends in a blank, which Windows drops</source>
        <translation>endet mit einem Leerzeichen, das Windows weglässt</translation>
    </message>
    <message>
        <source>is not valid UTF-8</source>
        <translation>ist kein gültiges UTF-8</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Select folder</source>
        <translation>Ordner wählen</translation>
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
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>Yes to &amp;All</source>
        <translation>Ja zu &amp;allen</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nein</translation>
    </message>
    <message>
        <source>N&amp;o to All</source>
        <translation>N&amp;ein zu allen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Alle speichern</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorieren</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Abbruch</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>Standardwerte</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>Albums</source>
        <translation>Alben</translation>
    </message>
    <message>
        <source>Proposed albums</source>
        <translation>Vorgeschlagene Alben</translation>
    </message>
    <message>
        <source>Similar photos</source>
        <translation>Ähnliche Fotos</translation>
    </message>
    <message>
        <source>Groups by year</source>
        <translation>Gruppen nach Jahr</translation>
    </message>
    <message>
        <source>No similar photos</source>
        <translation>Keine ähnlichen Fotos</translation>
    </message>
    <message>
        <source>Groups appear here once the catalogue holds photos that are alike.</source>
        <translation>Hier erscheinen Gruppen, sobald der Katalog Fotos enthält, die sich gleichen.</translation>
    </message>
    <message>
        <source>Albums by year</source>
        <translation>Alben nach Jahr</translation>
    </message>
    <message>
        <source>No albums yet</source>
        <translation>Noch keine Alben</translation>
    </message>
    <message>
        <source>Albums appear here once there are enough photos of a holiday or of a month&apos;s weekends. Scan more folders and try again.</source>
        <translation>Hier erscheinen Alben, sobald genügend Fotos eines Feiertags oder der Wochenenden eines Monats vorliegen. Lesen Sie weitere Ordner ein und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Unnamed album</source>
        <translation>Album ohne Namen</translation>
    </message>
    <message>
        <source>Undated</source>
        <translation>Ohne Datum</translation>
    </message>
    <message>
        <source>Accepted</source>
        <translation>Übernommen</translation>
    </message>
    <message>
        <source>No picture</source>
        <translation>Kein Bild</translation>
    </message>
    <message numerus="yes">
        <source>and %1 more</source>
        <translation>
            <numerusform>und %1 weiteres</numerusform>
            <numerusform>und %1 weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>Made with Lumidex. This page holds all its pictures and needs no other file.</source>
        <translation>Erstellt mit Lumidex. Diese Seite enthält alle ihre Bilder und braucht keine weiteren Dateien.</translation>
    </message>
</context>
<context>
    <name>Terminal</name>
    <message>
        <source>Drawing</source>
        <translation>Zeichne</translation>
    </message>
    <message>
        <source>pictures</source>
        <comment>of so many</comment>
        <translation>Bildern</translation>
    </message>
    <message>
        <source>The catalogue holds no photos yet. Run: lumidex scan DIR</source>
        <translation>Der Katalog enthält noch keine Fotos. Rufen Sie auf: lumidex scan ORDNER</translation>
    </message>
    <message numerus="yes">
        <source>All %1 photos of the catalogue were missing at the last scan. Is a disk not connected?</source>
        <translation>
            <numerusform>Das %1 Foto des Katalogs fehlte beim letzten Einlesen. Ist ein Laufwerk nicht angeschlossen?</numerusform>
            <numerusform>Alle %1 Fotos des Katalogs fehlten beim letzten Einlesen. Ist ein Laufwerk nicht angeschlossen?</numerusform>
        </translation>
    </message>
    <message>
        <source>Interrupted.</source>
        <translation>Abgebrochen.</translation>
    </message>
    <message>
        <source>No album was accepted.</source>
        <translation>Kein Album wurde übernommen.</translation>
    </message>
    <message>
        <source>The page %1 is written; it shows all chosen albums as accepted.</source>
        <translation>Die Seite %1 ist geschrieben; sie zeigt alle gewählten Alben als übernommen.</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message numerus="yes">
        <source>yes, %1 more now</source>
        <translation>
            <numerusform>ja, jetzt %1 mehr</numerusform>
            <numerusform>ja, jetzt %1 mehr</numerusform>
        </translation>
    </message>
    <message>
        <source>ALBUM</source>
        <translation>ALBUM</translation>
    </message>
    <message>
        <source>WHEN</source>
        <translation>WANN</translation>
    </message>
    <message>
        <source>FIRST DAY</source>
        <translation>ERSTER TAG</translation>
    </message>
    <message>
        <source>LAST DAY</source>
        <translation>LETZTER TAG</translation>
    </message>
    <message>
        <source>PHOTOS</source>
        <translation>FOTOS</translation>
    </message>
    <message>
        <source>ACCEPTED</source>
        <translation>ÜBERNOMMEN</translation>
    </message>
    <message numerus="yes">
        <source>%1 (%2 photos)</source>
        <translation>
            <numerusform>%1 (%2 Foto)</numerusform>
            <numerusform>%1 (%2 Fotos)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Accepted %1: %2 photos.</source>
        <translation>
            <numerusform>%1 übernommen: %2 Foto.</numerusform>
            <numerusform>%1 übernommen: %2 Fotos.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Added %1 photos to %2, which was accepted before.</source>
        <translation>
            <numerusform>%1 Foto zum schon übernommenen Album %2 hinzugefügt.</numerusform>
            <numerusform>%1 Fotos zum schon übernommenen Album %2 hinzugefügt.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 was accepted before, and there are no photos to add.</source>
        <translation>%1 war schon übernommen, und es gibt keine Fotos hinzuzufügen.</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos</source>
        <comment>albums from</comment>
        <translation>
            <numerusform>%1 Foto</numerusform>
            <numerusform>%1 Fotos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 of them have no date</source>
        <comment>photos; how many</comment>
        <translation>
            <numerusform>%1, davon %2 ohne Datum</numerusform>
            <numerusform>%1, davon %2 ohne Datum</numerusform>
        </translation>
    </message>
    <message>
        <source>No album has been accepted yet. &quot;lumidex albums&quot; shows proposals.</source>
        <translation>Es ist noch kein Album übernommen. „lumidex albums“ zeigt Vorschläge.</translation>
    </message>
    <message numerus="yes">
        <source>%1 accepted albums.</source>
        <translation>
            <numerusform>%1 übernommenes Album.</numerusform>
            <numerusform>%1 übernommene Alben.</numerusform>
        </translation>
    </message>
    <message>
        <source>No albums to propose from %1: an album needs 20 photos or more of one
holiday, or of the weekends of one month.</source>
        <translation>Keine Alben vorzuschlagen aus %1: Ein Album braucht mindestens 20 Fotos
eines Feiertags oder der Wochenenden eines Monats.</translation>
    </message>
    <message numerus="yes">
        <source>%1 albums</source>
        <translation>
            <numerusform>%1 Album</numerusform>
            <numerusform>%1 Alben</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 from %2; %3 accepted.</source>
        <comment>albums, photos, how many</comment>
        <translation>
            <numerusform>%1 aus %2; %3 übernommen.</numerusform>
            <numerusform>%1 aus %2; %3 übernommen.</numerusform>
        </translation>
    </message>
    <message>
        <source>Calendar: %1 (from the server)</source>
        <translation>Kalender: %1 (vom Server)</translation>
    </message>
    <message>
        <source>Calendar: %1</source>
        <translation>Kalender: %1</translation>
    </message>
    <message>
        <source>The calendar has no holidays for %1.</source>
        <translation>Der Kalender hat keine Feiertage für %1.</translation>
    </message>
    <message>
        <source>HOLIDAY</source>
        <translation>FEIERTAG</translation>
    </message>
    <message>
        <source>DAYS</source>
        <translation>TAGE</translation>
    </message>
    <message>
        <source>(no name)</source>
        <translation>(ohne Namen)</translation>
    </message>
    <message numerus="yes">
        <source>%1 holidays for %2.</source>
        <translation>
            <numerusform>%1 Feiertag für %2.</numerusform>
            <numerusform>%1 Feiertage für %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: no mistakes found.</source>
        <translation>%1: keine Fehler gefunden.</translation>
    </message>
    <message>
        <source>event %1</source>
        <translation>Ereignis %1</translation>
    </message>
    <message>
        <source>list</source>
        <comment>of the events of a language</comment>
        <translation>Liste</translation>
    </message>
    <message numerus="yes">
        <source>%1: %2 mistakes found.</source>
        <translation>
            <numerusform>%1: %2 Fehler gefunden.</numerusform>
            <numerusform>%1: %2 Fehler gefunden.</numerusform>
        </translation>
    </message>
    <message>
        <source>The calendar was not updated: %1</source>
        <translation>Der Kalender wurde nicht aktualisiert: %1</translation>
    </message>
    <message>
        <source>There is no calendar.</source>
        <translation>Es gibt keinen Kalender.</translation>
    </message>
    <message>
        <source>Still in use: %1</source>
        <translation>Weiterhin in Gebrauch: %1</translation>
    </message>
    <message>
        <source>The calendar was updated: %1</source>
        <translation>Der Kalender wurde aktualisiert: %1</translation>
    </message>
    <message>
        <source>The calendar is up to date: %1</source>
        <translation>Der Kalender ist auf dem neuesten Stand: %1</translation>
    </message>
    <message>
        <source>The holiday calendar could not be read completely, so holidays are missing. Run: lumidex calendar check, or lumidex calendar update.</source>
        <translation>Der Feiertagskalender konnte nicht vollständig gelesen werden, daher fehlen Feiertage. Rufen Sie auf: lumidex calendar check oder lumidex calendar update.</translation>
    </message>
    <message>
        <source>The holiday calendar %1 could not be read completely, so holidays are missing. Run: lumidex calendar check, or lumidex calendar update.</source>
        <translation>Der Feiertagskalender %1 konnte nicht vollständig gelesen werden, daher fehlen Feiertage. Rufen Sie auf: lumidex calendar check oder lumidex calendar update.</translation>
    </message>
    <message>
        <source>unreadable</source>
        <translation>nicht lesbar</translation>
    </message>
    <message>
        <source>Volume of</source>
        <translation>Laufwerk von</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Needed</source>
        <translation>Benötigt</translation>
    </message>
    <message>
        <source>Free</source>
        <comment>room on a disk</comment>
        <translation>Frei</translation>
    </message>
    <message>
        <source>unknown</source>
        <comment>free room</comment>
        <translation>unbekannt</translation>
    </message>
    <message numerus="yes">
        <source>%1 files checked</source>
        <translation>
            <numerusform>%1 Datei geprüft</numerusform>
            <numerusform>%1 Dateien geprüft</numerusform>
        </translation>
    </message>
    <message>
        <source>no problems found.</source>
        <translation>keine Probleme gefunden.</translation>
    </message>
    <message>
        <source>Interrupted. Nothing was changed.</source>
        <translation>Abgebrochen. Nichts wurde geändert.</translation>
    </message>
    <message>
        <source>There are no photos in the given folders.</source>
        <translation>In den angegebenen Ordnern sind keine Fotos.</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>Probiere</translation>
    </message>
    <message>
        <source>photos</source>
        <comment>of so many</comment>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Editing</source>
        <translation>Bearbeite</translation>
    </message>
    <message>
        <source>upright</source>
        <translation>aufrecht</translation>
    </message>
    <message>
        <source>mirrored</source>
        <translation>gespiegelt</translation>
    </message>
    <message>
        <source>upside down</source>
        <translation>kopfüber</translation>
    </message>
    <message>
        <source>upside down, mirrored</source>
        <translation>kopfüber, gespiegelt</translation>
    </message>
    <message>
        <source>turned left, mirrored</source>
        <translation>nach links gedreht, gespiegelt</translation>
    </message>
    <message>
        <source>turned right</source>
        <translation>nach rechts gedreht</translation>
    </message>
    <message>
        <source>turned right, mirrored</source>
        <translation>nach rechts gedreht, gespiegelt</translation>
    </message>
    <message>
        <source>turned left</source>
        <translation>nach links gedreht</translation>
    </message>
    <message>
        <source>no date</source>
        <translation>kein Datum</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos would be edited. This was a dry run: nothing was changed.</source>
        <translation>
            <numerusform>%1 Foto würde bearbeitet. Das war ein Probelauf: Nichts wurde geändert.</numerusform>
            <numerusform>%1 Fotos würden bearbeitet. Das war ein Probelauf: Nichts wurde geändert.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>Nichts wurde geändert.</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos edited; &quot;lumidex undo&quot; undoes it.</source>
        <translation>
            <numerusform>%1 Foto bearbeitet; „lumidex undo“ macht es rückgängig.</numerusform>
            <numerusform>%1 Fotos bearbeitet; „lumidex undo“ macht es rückgängig.</numerusform>
        </translation>
    </message>
    <message>
        <source>Cannot be edited</source>
        <translation>Nicht bearbeitbar</translation>
    </message>
    <message>
        <source>Not edited</source>
        <translation>Nicht bearbeitet</translation>
    </message>
    <message>
        <source>Comparing</source>
        <translation>Vergleiche</translation>
    </message>
    <message>
        <source>files</source>
        <comment>of so many</comment>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Copying</source>
        <translation>Kopiere</translation>
    </message>
    <message>
        <source>Interrupted. The copies made so far are complete and verified; run the same command to copy the rest.</source>
        <translation>Abgebrochen. Die bisherigen Kopien sind vollständig und überprüft; rufen Sie denselben Befehl auf, um den Rest zu kopieren.</translation>
    </message>
    <message>
        <source>Would be copied to %1:</source>
        <translation>Nach %1 würden kopiert:</translation>
    </message>
    <message>
        <source>Would be added to the catalogue without copying:</source>
        <translation>Würden ohne Kopieren in den Katalog aufgenommen:</translation>
    </message>
    <message>
        <source>Copies of one shot would get different names:</source>
        <translation>Kopien derselben Aufnahme bekämen verschiedene Namen:</translation>
    </message>
    <message>
        <source>Not copied:</source>
        <translation>Nicht kopiert:</translation>
    </message>
    <message>
        <source>Not added to the catalogue:</source>
        <translation>Nicht in den Katalog aufgenommen:</translation>
    </message>
    <message>
        <source>Skipped:</source>
        <translation>Übersprungen:</translation>
    </message>
    <message numerus="yes">
        <source>and %1 more (--json lists them)</source>
        <translation>
            <numerusform>und %1 weitere (--json führt sie auf)</numerusform>
            <numerusform>und %1 weitere (--json führt sie auf)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos are in the catalogue already.</source>
        <translation>
            <numerusform>%1 Foto ist bereits im Katalog.</numerusform>
            <numerusform>%1 Fotos sind bereits im Katalog.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files were copied before.</source>
        <translation>
            <numerusform>%1 Datei wurde schon früher kopiert.</numerusform>
            <numerusform>%1 Dateien wurden schon früher kopiert.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos occur twice in the sources.</source>
        <translation>
            <numerusform>%1 Foto kommt in den Quellen doppelt vor.</numerusform>
            <numerusform>%1 Fotos kommen in den Quellen doppelt vor.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was imported.</source>
        <translation>Nichts wurde importiert.</translation>
    </message>
    <message>
        <source>Nothing would be imported.</source>
        <translation>Nichts würde importiert.</translation>
    </message>
    <message numerus="yes">
        <source>%1 files (%2) would be copied</source>
        <translation>
            <numerusform>%1 Datei (%2) würde kopiert</numerusform>
            <numerusform>%1 Dateien (%2) würden kopiert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos added without copying.</source>
        <comment>would be</comment>
        <translation>
            <numerusform>%1 Foto ohne Kopieren aufgenommen.</numerusform>
            <numerusform>%1 Fotos ohne Kopieren aufgenommen.</numerusform>
        </translation>
    </message>
    <message>
        <source>This was a dry run:
nothing was changed.</source>
        <translation>Das war ein Probelauf:
Nichts wurde geändert.</translation>
    </message>
    <message numerus="yes">
        <source>%1 files (%2) copied to %3 and verified.</source>
        <translation>
            <numerusform>%1 Datei (%2) nach %3 kopiert und überprüft.</numerusform>
            <numerusform>%1 Dateien (%2) nach %3 kopiert und überprüft.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos added to the catalogue.</source>
        <translation>
            <numerusform>%1 Foto in den Katalog aufgenommen.</numerusform>
            <numerusform>%1 Fotos in den Katalog aufgenommen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files were not copied; run the same command to try again.</source>
        <translation>
            <numerusform>%1 Datei wurde nicht kopiert; rufen Sie denselben Befehl auf, um es erneut zu versuchen.</numerusform>
            <numerusform>%1 Dateien wurden nicht kopiert; rufen Sie denselben Befehl auf, um es erneut zu versuchen.</numerusform>
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
        <translation>%1 wird nicht unterstützt; %2 wird verwendet.</translation>
    </message>
    <message>
        <source>%1 of %2 %3</source>
        <comment>done, all, what</comment>
        <translation>%1 von %2 %3</translation>
    </message>
    <message>
        <source>%1 of %2 %3 found so far</source>
        <comment>done, all, what</comment>
        <translation>%1 von bisher %2 %3</translation>
    </message>
    <message>
        <source>%1 left</source>
        <comment>minutes and seconds</comment>
        <translation>noch %1</translation>
    </message>
    <message>
        <source>y yes</source>
        <comment>answers, all that mean it</comment>
        <translation>j ja</translation>
    </message>
    <message>
        <source>Interrupted. Nothing was renamed.</source>
        <translation>Abgebrochen. Nichts wurde umbenannt.</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Lese</translation>
    </message>
    <message>
        <source>Renaming</source>
        <translation>Benenne um</translation>
    </message>
    <message>
        <source>Cannot be renamed:</source>
        <translation>Nicht umbenennbar:</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos have no date; the times of their files are used.</source>
        <translation>
            <numerusform>%1 Foto hat kein Datum; die Zeit seiner Datei wird verwendet.</numerusform>
            <numerusform>%1 Fotos haben kein Datum; die Zeiten ihrer Dateien werden verwendet.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files have their new names already.</source>
        <translation>
            <numerusform>%1 Datei hat ihren neuen Namen bereits.</numerusform>
            <numerusform>%1 Dateien haben ihre neuen Namen bereits.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Nothing would be renamed: %1 of %2 photos cannot get their new names.
Add --skip-problems to rename the others.</source>
        <translation>
            <numerusform>Nichts würde umbenannt: Der neue Name ist unmöglich für %1 von %2 Foto.
Mit --skip-problems werden die übrigen umbenannt.</numerusform>
            <numerusform>Nichts würde umbenannt: Der neue Name ist unmöglich für %1 von %2 Fotos.
Mit --skip-problems werden die übrigen umbenannt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Nothing was renamed: %1 of %2 photos cannot get their new names.
Add --skip-problems to rename the others.</source>
        <translation>
            <numerusform>Nichts wurde umbenannt: Der neue Name ist unmöglich für %1 von %2 Foto.
Mit --skip-problems werden die übrigen umbenannt.</numerusform>
            <numerusform>Nichts wurde umbenannt: Der neue Name ist unmöglich für %1 von %2 Fotos.
Mit --skip-problems werden die übrigen umbenannt.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to rename.</source>
        <translation>Nichts umzubenennen.</translation>
    </message>
    <message numerus="yes">
        <source>%1 would be renamed. This was a dry run: nothing was changed.</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>%1 würde umbenannt. Das war ein Probelauf: Nichts wurde geändert.</numerusform>
            <numerusform>%1 würden umbenannt. Das war ein Probelauf: Nichts wurde geändert.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was renamed.</source>
        <translation>Nichts wurde umbenannt.</translation>
    </message>
    <message numerus="yes">
        <source>%1 files could not get their old names back.</source>
        <translation>
            <numerusform>%1 Datei konnte den alten Namen nicht zurückbekommen.</numerusform>
            <numerusform>%1 Dateien konnten den alten Namen nicht zurückbekommen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 renamed; &quot;lumidex undo&quot; undoes it.</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>%1 umbenannt; „lumidex undo“ macht es rückgängig.</numerusform>
            <numerusform>%1 umbenannt; „lumidex undo“ macht es rückgängig.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 renamed.</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>%1 umbenannt.</numerusform>
            <numerusform>%1 umbenannt.</numerusform>
        </translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Probleme</translation>
    </message>
    <message>
        <source>Report: %1</source>
        <translation>Bericht: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 pictures could not be read; placeholders stand for them.</source>
        <translation>
            <numerusform>%1 Bild konnte nicht gelesen werden; ein Platzhalter steht an seiner Stelle.</numerusform>
            <numerusform>%1 Bilder konnten nicht gelesen werden; Platzhalter stehen an ihrer Stelle.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Made %1 photos in %2</source>
        <translation>
            <numerusform>%1 Foto erzeugt in %2</numerusform>
            <numerusform>%1 Fotos erzeugt in %2</numerusform>
        </translation>
    </message>
    <message>
        <source>not an image</source>
        <translation>kein Bild</translation>
    </message>
    <message>
        <source>loop</source>
        <translation>Schleife</translation>
    </message>
    <message>
        <source>Not added:</source>
        <translation>Nicht aufgenommen:</translation>
    </message>
    <message numerus="yes">
        <source>%1 original</source>
        <comment>dates read</comment>
        <translation>
            <numerusform>%1 aus der Aufnahme</numerusform>
            <numerusform>%1 aus der Aufnahme</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 digitised</source>
        <comment>dates read</comment>
        <translation>
            <numerusform>%1 aus der Digitalisierung</numerusform>
            <numerusform>%1 aus der Digitalisierung</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 file time</source>
        <comment>dates read</comment>
        <translation>
            <numerusform>%1 aus der Dateizeit</numerusform>
            <numerusform>%1 aus der Dateizeit</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 none</source>
        <comment>dates read</comment>
        <translation>
            <numerusform>%1 ohne</numerusform>
            <numerusform>%1 ohne</numerusform>
        </translation>
    </message>
    <message>
        <source>Dates read: %1</source>
        <translation>Gelesene Datumsangaben: %1</translation>
    </message>
    <message numerus="yes">
        <source>files found</source>
        <translation>
            <numerusform>Datei gefunden</numerusform>
            <numerusform>Dateien gefunden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>new</source>
        <comment>files</comment>
        <translation>
            <numerusform>neu</numerusform>
            <numerusform>neu</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>read again</source>
        <comment>files</comment>
        <translation>
            <numerusform>erneut gelesen</numerusform>
            <numerusform>erneut gelesen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>changed</source>
        <comment>files</comment>
        <translation>
            <numerusform>geändert</numerusform>
            <numerusform>geändert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>unchanged</source>
        <comment>files</comment>
        <translation>
            <numerusform>unverändert</numerusform>
            <numerusform>unverändert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>missing, now marked as lost</source>
        <comment>files</comment>
        <translation>
            <numerusform>fehlt, jetzt als verloren markiert</numerusform>
            <numerusform>fehlen, jetzt als verloren markiert</numerusform>
        </translation>
    </message>
    <message>
        <source>This was a dry run: nothing was stored.</source>
        <translation>Das war ein Probelauf: Nichts wurde gespeichert.</translation>
    </message>
    <message>
        <source>Catalogue: %1</source>
        <translation>Katalog: %1</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>Lese ein</translation>
    </message>
    <message>
        <source>Interrupted. What was read so far is in the catalogue; run the same command to continue.</source>
        <translation>Abgebrochen. Was bisher gelesen wurde, steht im Katalog; rufen Sie denselben Befehl auf, um fortzufahren.</translation>
    </message>
    <message>
        <source>Analysing</source>
        <translation>Analysiere</translation>
    </message>
    <message>
        <source>Grouping</source>
        <translation>Gruppiere</translation>
    </message>
    <message>
        <source>Measuring</source>
        <translation>Messe</translation>
    </message>
    <message>
        <source>Interrupted. What was moved is in the trash.</source>
        <translation>Abgebrochen. Was verschoben wurde, liegt im Papierkorb.</translation>
    </message>
    <message>
        <source>Interrupted. Run the same command to continue.</source>
        <translation>Abgebrochen. Rufen Sie denselben Befehl auf, um fortzufahren.</translation>
    </message>
    <message>
        <source>Interrupted. Nothing was moved.</source>
        <translation>Abgebrochen. Nichts wurde verschoben.</translation>
    </message>
    <message>
        <source>Move %1 to the trash? [y/N]</source>
        <translation>%1 in den Papierkorb verschieben? [j/N]</translation>
    </message>
    <message>
        <source>Moving</source>
        <translation>Verschiebe</translation>
    </message>
    <message>
        <source>Keep %1</source>
        <comment>a file</comment>
        <translation>Behalten: %1</translation>
    </message>
    <message>
        <source>Keep %1: %2</source>
        <comment>a file: why</comment>
        <translation>Behalten: %1 (%2)</translation>
    </message>
    <message>
        <source>%1, %2, score %3</source>
        <comment>pixels, size, number</comment>
        <translation>%1, %2, Ähnlichkeit %3</translation>
    </message>
    <message>
        <source>largest</source>
        <comment>photo</comment>
        <translation>größtes</translation>
    </message>
    <message>
        <source>sharpest</source>
        <comment>photo</comment>
        <translation>schärfstes</translation>
    </message>
    <message>
        <source>has camera data</source>
        <translation>mit Kameradaten</translation>
    </message>
    <message>
        <source>earliest</source>
        <comment>photo</comment>
        <translation>frühestes</translation>
    </message>
    <message>
        <source>first by name</source>
        <translation>erstes dem Namen nach</translation>
    </message>
    <message>
        <source>Not compared:</source>
        <translation>Nicht verglichen:</translation>
    </message>
    <message numerus="yes">
        <source>No similar photos among %1 photos.</source>
        <translation>
            <numerusform>Keine ähnlichen Fotos unter %1 Foto.</numerusform>
            <numerusform>Keine ähnlichen Fotos unter %1 Fotos.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 groups of similar photos</source>
        <translation>
            <numerusform>%1 Gruppe ähnlicher Fotos</numerusform>
            <numerusform>%1 Gruppen ähnlicher Fotos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>among %1 photos</source>
        <translation>
            <numerusform>unter %1 Foto</numerusform>
            <numerusform>unter %1 Fotos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos (%2) besides those to keep.</source>
        <translation>
            <numerusform>%1 Foto (%2) neben denen, die zu behalten sind.</numerusform>
            <numerusform>%1 Fotos (%2) neben denen, die zu behalten sind.</numerusform>
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
        <translation>behalten</translation>
    </message>
    <message>
        <source>trash</source>
        <comment>it goes there</comment>
        <translation>Papierkorb</translation>
    </message>
    <message>
        <source>stay</source>
        <comment>a photo does</comment>
        <translation>bleibt</translation>
    </message>
    <message numerus="yes">
        <source>Group %1, %2 photos:</source>
        <translation>
            <numerusform>Gruppe %1, %2 Foto:</numerusform>
            <numerusform>Gruppe %1, %2 Fotos:</numerusform>
        </translation>
    </message>
    <message>
        <source>PHOTO</source>
        <translation>FOTO</translation>
    </message>
    <message>
        <source>TO ITS CENTRE</source>
        <translation>ZU SEINER MITTE</translation>
    </message>
    <message>
        <source>TO ITS OWN CENTRE</source>
        <translation>ZUR EIGENEN MITTE</translation>
    </message>
    <message>
        <source>TO THE OTHER&apos;S</source>
        <translation>ZUR ANDEREN</translation>
    </message>
    <message>
        <source>The photos score %1 against each other and are in one group.</source>
        <translation>Die Fotos gleichen sich zu %1 und sind in einer Gruppe.</translation>
    </message>
    <message>
        <source>The photos score %1 against each other and are in different groups.</source>
        <translation>Die Fotos gleichen sich zu %1 und sind in verschiedenen Gruppen.</translation>
    </message>
    <message>
        <source>A photo joins the first group whose centre scores above %1 against it. The centre is the
mean of the photos in the group at that time; later photos move it.</source>
        <translation>Ein Foto kommt in die erste Gruppe, deren Mitte ihm zu mehr als %1 gleicht. Die Mitte ist
das Mittel der Fotos, die zu dieser Zeit in der Gruppe sind; spätere Fotos verschieben sie.</translation>
    </message>
    <message>
        <source>Matching all photos again gives the same groups.</source>
        <translation>Ein neuer Vergleich aller Fotos ergibt dieselben Gruppen.</translation>
    </message>
    <message>
        <source>&quot;lumidex similar --anew&quot; makes all groups again.</source>
        <translation>„lumidex similar --anew“ bildet alle Gruppen neu.</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos</source>
        <translation>
            <numerusform>%1 Foto</numerusform>
            <numerusform>%1 Fotos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (%2 files)</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>%1 (%2 Datei)</numerusform>
            <numerusform>%1 (%2 Dateien)</numerusform>
        </translation>
    </message>
    <message>
        <source>rename %1</source>
        <comment>so many photos</comment>
        <translation>%1 umbenennen</translation>
    </message>
    <message>
        <source>shift dates by %1</source>
        <translation>Datumsangaben um %1 verschieben</translation>
    </message>
    <message>
        <source>set dates to %1</source>
        <translation>Datumsangaben auf den %1 setzen</translation>
    </message>
    <message>
        <source>rotate left</source>
        <translation>nach links drehen</translation>
    </message>
    <message>
        <source>rotate right</source>
        <translation>nach rechts drehen</translation>
    </message>
    <message>
        <source>rotate 180</source>
        <translation>um 180° drehen</translation>
    </message>
    <message>
        <source>move similar photos to the trash</source>
        <translation>ähnliche Fotos in den Papierkorb verschieben</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>Yes to all</source>
        <translation>Ja zu allen</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>No to all</source>
        <translation>Nein zu allen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save all</source>
        <translation>Alle speichern</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorieren</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Abbruch</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Restore defaults</source>
        <translation>Standardwerte</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Nothing to move to the trash.</source>
        <translation>Nichts in den Papierkorb zu verschieben.</translation>
    </message>
    <message numerus="yes">
        <source>%1 would be moved to the trash. This was a dry run: nothing was changed.</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>%1 würde in den Papierkorb verschoben. Das war ein Probelauf: Nichts wurde geändert.</numerusform>
            <numerusform>%1 würden in den Papierkorb verschoben. Das war ein Probelauf: Nichts wurde geändert.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was moved.</source>
        <translation>Nichts wurde verschoben.</translation>
    </message>
    <message numerus="yes">
        <source>%1 moved to the trash; &quot;lumidex undo&quot; brings back what is still there.</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>%1 in den Papierkorb verschoben; „lumidex undo“ holt zurück, was dort noch liegt.</numerusform>
            <numerusform>%1 in den Papierkorb verschoben; „lumidex undo“ holt zurück, was dort noch liegt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 moved to the trash.</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>%1 in den Papierkorb verschoben.</numerusform>
            <numerusform>%1 in den Papierkorb verschoben.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>%1 Datei</numerusform>
            <numerusform>%1 Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>Not moved:</source>
        <translation>Nicht verschoben:</translation>
    </message>
    <message>
        <source>Left where they are</source>
        <translation>An ihrem Platz gelassen</translation>
    </message>
    <message>
        <source>Redoing</source>
        <translation>Wiederhole</translation>
    </message>
    <message>
        <source>Undoing</source>
        <translation>Mache rückgängig</translation>
    </message>
    <message>
        <source>Interrupted. What was done so far stays done.</source>
        <translation>Abgebrochen. Was bisher getan wurde, bleibt getan.</translation>
    </message>
    <message numerus="yes">
        <source>Only %1 of the %2 steps that you asked for.</source>
        <translation>
            <numerusform>Nur %1 von %2 verlangten Schritten.</numerusform>
            <numerusform>Nur %1 von %2 verlangten Schritten.</numerusform>
        </translation>
    </message>
    <message>
        <source>The setting %1 is invalid (%2); the default is used.</source>
        <translation>Die Einstellung %1 ist ungültig (%2); der Standardwert wird verwendet.</translation>
    </message>
    <message>
        <source>undone</source>
        <comment>a step</comment>
        <translation>rückgängig gemacht</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>Es gibt nichts rückgängig zu machen.</translation>
    </message>
    <message>
        <source>WHAT</source>
        <translation>WAS</translation>
    </message>
    <message>
        <source>FILES</source>
        <translation>DATEIEN</translation>
    </message>
    <message>
        <source>KEPT</source>
        <comment>so many bytes</comment>
        <translation>AUFBEWAHRT</translation>
    </message>
    <message>
        <source>Left as they are</source>
        <translation>Unverändert gelassen</translation>
    </message>
    <message>
        <source>Nothing of &quot;%1&quot; was redone.</source>
        <translation>Nichts von „%1“ wurde wiederholt.</translation>
    </message>
    <message>
        <source>Nothing of &quot;%1&quot; was undone.</source>
        <translation>Nichts von „%1“ wurde rückgängig gemacht.</translation>
    </message>
    <message>
        <source>Redone: %1.</source>
        <translation>Wiederholt: %1.</translation>
    </message>
    <message>
        <source>Undone: %1.</source>
        <translation>Rückgängig gemacht: %1.</translation>
    </message>
    <message numerus="yes">
        <source>Redone: %1, except for %2 files.</source>
        <translation>
            <numerusform>Wiederholt: %1, bis auf %2 Datei.</numerusform>
            <numerusform>Wiederholt: %1, bis auf %2 Dateien.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Undone: %1, except for %2 files.</source>
        <translation>
            <numerusform>Rückgängig gemacht: %1, bis auf %2 Datei.</numerusform>
            <numerusform>Rückgängig gemacht: %1, bis auf %2 Dateien.</numerusform>
        </translation>
    </message>
    <message>
        <source>Older steps cannot be undone before this one; &quot;lumidex undo --skip&quot; skips it for good.</source>
        <translation>Ältere Schritte lassen sich nicht vor diesem rückgängig machen; „lumidex undo --skip“ überspringt ihn endgültig.</translation>
    </message>
    <message>
        <source>There is nothing to skip.</source>
        <translation>Es gibt nichts zu überspringen.</translation>
    </message>
    <message>
        <source>Skipped: %1.</source>
        <translation>Übersprungen: %1.</translation>
    </message>
    <message>
        <source>Its originals (%1) are kept until they exceed the limits of undo.</source>
        <translation>Seine Originale (%1) werden aufbewahrt, bis sie die Grenzen für „undo“ überschreiten.</translation>
    </message>
    <message numerus="yes">
        <source>%1 older steps cannot be undone any more.</source>
        <translation>
            <numerusform>%1 älterer Schritt kann nicht mehr rückgängig gemacht werden.</numerusform>
            <numerusform>%1 ältere Schritte können nicht mehr rückgängig gemacht werden.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Steps can be undone for %1 days of use, with up to %2 of originals.</source>
        <translation>
            <numerusform>Schritte lassen sich %1 Nutzungstag lang rückgängig machen, mit bis zu %2 an Originalen.</numerusform>
            <numerusform>Schritte lassen sich %1 Nutzungstage lang rückgängig machen, mit bis zu %2 an Originalen.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>Es gibt nichts zu wiederholen.</translation>
    </message>
    <message>
        <source>Copies would share names with files of other shots:</source>
        <translation>Kopien würden sich Namen mit Dateien anderer Aufnahmen teilen:</translation>
    </message>
    <message>
        <source>file time</source>
        <comment>where a date is from</comment>
        <translation>Dateizeit</translation>
    </message>
    <message numerus="yes">
        <source>%1 frames</source>
        <translation>
            <numerusform>%1 Einzelbild</numerusform>
            <numerusform>%1 Einzelbilder</numerusform>
        </translation>
    </message>
    <message>
        <source>DATE</source>
        <translation>DATUM</translation>
    </message>
    <message>
        <source>FROM</source>
        <translation>QUELLE</translation>
    </message>
    <message>
        <source>CAMERA</source>
        <translation>KAMERA</translation>
    </message>
    <message>
        <source>POSITION</source>
        <translation>POSITION</translation>
    </message>
    <message>
        <source>PICTURE</source>
        <translation>BILD</translation>
    </message>
    <message>
        <source>ORIENTATION</source>
        <translation>AUSRICHTUNG</translation>
    </message>
    <message>
        <source>SIZE</source>
        <translation>GRÖSSE</translation>
    </message>
    <message>
        <source>Doubtful positions:</source>
        <translation>Zweifelhafte Positionen:</translation>
    </message>
    <message>
        <source>Not read</source>
        <translation>Nicht gelesen</translation>
    </message>
    <message>
        <source>TAKEN</source>
        <translation>AUFGENOMMEN</translation>
    </message>
    <message>
        <source>TAGS</source>
        <translation>SCHLAGWÖRTER</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>DATEI</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 photos.</source>
        <comment>found, searched</comment>
        <translation>
            <numerusform>%1 von %2 Foto.</numerusform>
            <numerusform>%1 von %2 Fotos.</numerusform>
        </translation>
    </message>
    <message>
        <source>Statistics are on.</source>
        <translation>Die Statistik ist eingeschaltet.</translation>
    </message>
    <message>
        <source>Statistics are off.</source>
        <translation>Die Statistik ist ausgeschaltet.</translation>
    </message>
    <message>
        <source>File: %1</source>
        <translation>Datei: %1</translation>
    </message>
    <message>
        <source>DAY</source>
        <translation>TAG</translation>
    </message>
    <message>
        <source>COMMAND</source>
        <translation>BEFEHL</translation>
    </message>
    <message>
        <source>DETAILS</source>
        <translation>EINZELHEITEN</translation>
    </message>
    <message numerus="yes">
        <source>Statistics are on; %1 lines.</source>
        <translation>
            <numerusform>Die Statistik ist eingeschaltet; %1 Zeile.</numerusform>
            <numerusform>Die Statistik ist eingeschaltet; %1 Zeilen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Statistics are off; %1 lines.</source>
        <translation>
            <numerusform>Die Statistik ist ausgeschaltet; %1 Zeile.</numerusform>
            <numerusform>Die Statistik ist ausgeschaltet; %1 Zeilen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 lines of the statistics cannot be read.</source>
        <translation>
            <numerusform>%1 Zeile der Statistik ist nicht lesbar.</numerusform>
            <numerusform>%1 Zeilen der Statistik sind nicht lesbar.</numerusform>
        </translation>
    </message>
    <message>
        <source>The statistics are deleted.</source>
        <translation>Die Statistik ist gelöscht.</translation>
    </message>
    <message>
        <source>tag %1</source>
        <comment>+one -another</comment>
        <translation>Schlagwörter: %1</translation>
    </message>
    <message>
        <source>No photo has the tag &quot;%1&quot;.</source>
        <translation>Kein Foto hat das Schlagwort „%1“.</translation>
    </message>
    <message>
        <source>system</source>
        <comment>kind of tag</comment>
        <translation>System</translation>
    </message>
    <message>
        <source>icon</source>
        <comment>kind of tag</comment>
        <translation>Symbol</translation>
    </message>
    <message>
        <source>automatic</source>
        <comment>kind of tag</comment>
        <translation>automatisch</translation>
    </message>
    <message>
        <source>own</source>
        <comment>kind of tag</comment>
        <translation>eigenes</translation>
    </message>
    <message>
        <source>No photo has a tag yet. Run: lumidex tag FILE +TAG</source>
        <translation>Noch kein Foto hat ein Schlagwort. Rufen Sie auf: lumidex tag DATEI +SCHLAGWORT</translation>
    </message>
    <message>
        <source>TAG</source>
        <translation>SCHLAGWORT</translation>
    </message>
    <message>
        <source>TYPE</source>
        <translation>ART</translation>
    </message>
    <message>
        <source>Not in the list</source>
        <translation>Nicht in der Liste</translation>
    </message>
    <message>
        <source>Not tagged</source>
        <translation>Nicht verschlagwortet</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos changed; &quot;lumidex undo&quot; undoes it.</source>
        <translation>
            <numerusform>%1 Foto geändert; „lumidex undo“ macht es rückgängig.</numerusform>
            <numerusform>%1 Fotos geändert; „lumidex undo“ macht es rückgängig.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos changed.</source>
        <translation>
            <numerusform>%1 Foto geändert.</numerusform>
            <numerusform>%1 Fotos geändert.</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;lumidex undo&quot; undoes it.</source>
        <translation>„lumidex undo“ macht es rückgängig.</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos were left out, because they have no date but the times of their files. To include them, run: lumidex albums --file-times</source>
        <translation>
            <numerusform>%1 Foto wurde ausgelassen, weil es kein Datum außer der Zeit seiner Datei hat. Um es einzubeziehen, rufen Sie auf: lumidex albums --file-times</numerusform>
            <numerusform>%1 Fotos wurden ausgelassen, weil sie kein Datum außer den Zeiten ihrer Dateien haben. Um sie einzubeziehen, rufen Sie auf: lumidex albums --file-times</numerusform>
        </translation>
    </message>
    <message>
        <source>Refused by %1</source>
        <comment>commands</comment>
        <translation>Abgelehnt von %1</translation>
    </message>
    <message>
        <source>If all these photos are edited at once:</source>
        <translation>Wenn alle diese Fotos auf einmal bearbeitet werden:</translation>
    </message>
    <message>
        <source>its sidecar</source>
        <translation>seine Begleitdatei</translation>
    </message>
    <message numerus="yes">
        <source>%1 sidecars would be edited along with them.</source>
        <translation>
            <numerusform>%1 Begleitdatei würde mit ihnen bearbeitet.</numerusform>
            <numerusform>%1 Begleitdateien würden mit ihnen bearbeitet.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 sidecars edited along with them.</source>
        <translation>
            <numerusform>%1 Begleitdatei mit ihnen bearbeitet.</numerusform>
            <numerusform>%1 Begleitdateien mit ihnen bearbeitet.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos edited; it cannot be undone.</source>
        <translation>
            <numerusform>%1 Foto bearbeitet; das lässt sich nicht rückgängig machen.</numerusform>
            <numerusform>%1 Fotos bearbeitet; das lässt sich nicht rückgängig machen.</numerusform>
        </translation>
    </message>
    <message>
        <source>There are no photos or videos in the given folders.</source>
        <translation>In den angegebenen Ordnern sind keine Fotos oder Videos.</translation>
    </message>
    <message>
        <source>It is hidden</source>
        <translation>Die Datei ist versteckt</translation>
    </message>
    <message>
        <source>It is not a photo, a video or a file that belongs to one</source>
        <translation>Die Datei ist weder ein Foto noch ein Video, noch gehört sie zu einem</translation>
    </message>
    <message>
        <source>&quot;lumidex undo&quot; moves the copies of this run to the trash.</source>
        <translation>„lumidex undo“ verschiebt die Kopien dieses Laufs in den Papierkorb.</translation>
    </message>
    <message numerus="yes">
        <source>%1 files are not copied, as you chose; they stay where they are.</source>
        <translation>
            <numerusform>%1 Datei wird wie gewünscht nicht kopiert: Sie bleibt, wo sie ist.</numerusform>
            <numerusform>%1 Dateien werden wie gewünscht nicht kopiert: Sie bleiben, wo sie sind.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files are not copied, because they are not on removable storage; &quot;--to DIR&quot; copies them.</source>
        <translation>
            <numerusform>%1 Datei wird nicht kopiert, weil sie nicht auf einem Wechseldatenträger liegt; „--to ORDNER“ kopiert sie.</numerusform>
            <numerusform>%1 Dateien werden nicht kopiert, weil sie nicht auf einem Wechseldatenträger liegen; „--to ORDNER“ kopiert sie.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of them are videos, which the catalogue does not hold.</source>
        <translation>
            <numerusform>%1 davon ist ein Video, das der Katalog nicht aufnimmt.</numerusform>
            <numerusform>%1 davon sind Videos, die der Katalog nicht aufnimmt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 housekeeping files of cameras and systems are not copied.</source>
        <translation>
            <numerusform>%1 Verwaltungsdatei von Kameras und Systemen wird nicht kopiert.</numerusform>
            <numerusform>%1 Verwaltungsdateien von Kameras und Systemen werden nicht kopiert.</numerusform>
        </translation>
    </message>
    <message>
        <source>Not everything in %1 is copied: do not format or empty it yet.</source>
        <translation>Nicht alles in %1 ist kopiert: Noch nicht formatieren oder leeren!</translation>
    </message>
    <message>
        <source>Copies are in %1 itself: do not format or empty it.</source>
        <translation>Kopien liegen in %1 selbst: Nicht formatieren oder leeren!</translation>
    </message>
    <message numerus="yes">
        <source>%1 steps cannot be undone any more, because more than %2 days of use have passed.</source>
        <translation>
            <numerusform>%1 Schritt lässt sich nicht mehr rückgängig machen, weil mehr als %2 Nutzungstage vergangen sind.</numerusform>
            <numerusform>%1 Schritte lassen sich nicht mehr rückgängig machen, weil mehr als %2 Nutzungstage vergangen sind.</numerusform>
        </translation>
    </message>
    <message>
        <source>Links that lead to the new names:</source>
        <translation>Links, die zu den neuen Namen führen:</translation>
    </message>
    <message numerus="yes">
        <source>%1 symbolic links lead to the new names.</source>
        <translation>
            <numerusform>%1 symbolischer Link führt zum neuen Namen.</numerusform>
            <numerusform>%1 symbolische Links führen zu den neuen Namen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 symbolic links keep their names.</source>
        <translation>
            <numerusform>%1 symbolischer Link behält seinen Namen.</numerusform>
            <numerusform>%1 symbolische Links behalten ihre Namen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 and %2 more</source>
        <comment>files</comment>
        <translation>
            <numerusform>%1 und %2 weitere</numerusform>
            <numerusform>%1 und %2 weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>These may be photos that were moved, but several files or photos come into question.
The photos keep their tags and albums, the files are new:</source>
        <translation>Das könnten verschobene Fotos sein, aber mehrere Dateien oder Fotos kommen in Frage.
Die Fotos behalten Schlagwörter und Alben, die Dateien sind neu:</translation>
    </message>
    <message numerus="yes">
        <source>%1 XMP</source>
        <comment>dates read</comment>
        <translation>
            <numerusform>%1 aus XMP</numerusform>
            <numerusform>%1 aus XMP</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 IPTC</source>
        <comment>dates read</comment>
        <translation>
            <numerusform>%1 aus IPTC</numerusform>
            <numerusform>%1 aus IPTC</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>moved or renamed</source>
        <comment>files</comment>
        <translation>
            <numerusform>verschoben oder umbenannt</numerusform>
            <numerusform>verschoben oder umbenannt</numerusform>
        </translation>
    </message>
    <message>
        <source>Keep this one</source>
        <comment>a photo</comment>
        <translation>Dieses behalten</translation>
    </message>
    <message>
        <source>Same picture</source>
        <translation>Dasselbe Bild</translation>
    </message>
    <message>
        <source>Alike</source>
        <comment>a photo</comment>
        <translation>Ähnlich</translation>
    </message>
    <message>
        <source>Different</source>
        <comment>a photo</comment>
        <translation>Verschieden</translation>
    </message>
    <message>
        <source>Could not be compared</source>
        <comment>a photo</comment>
        <translation>Nicht vergleichbar</translation>
    </message>
    <message numerus="yes">
        <source>Group %1: %2 photos like %3</source>
        <translation>
            <numerusform>Gruppe %1: %2 Foto wie %3</numerusform>
            <numerusform>Gruppe %1: %2 Fotos wie %3</numerusform>
        </translation>
    </message>
    <message>
        <source>undamaged</source>
        <comment>photo</comment>
        <translation>unbeschädigt</translation>
    </message>
    <message>
        <source>the camera&apos;s own file</source>
        <translation>die eigene Datei der Kamera</translation>
    </message>
    <message>
        <source>has maker notes</source>
        <translation>mit Herstellernotizen</translation>
    </message>
    <message>
        <source>not written by another program</source>
        <translation>von keinem anderen Programm geschrieben</translation>
    </message>
    <message>
        <source>compressed less</source>
        <translation>weniger komprimiert</translation>
    </message>
    <message>
        <source>more bytes per pixel</source>
        <translation>mehr Bytes je Pixel</translation>
    </message>
    <message>
        <source>named by the camera</source>
        <translation>von der Kamera benannt</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos cannot be compared, as before; &quot;lumidex similar --not-compared&quot; lists them.</source>
        <translation>
            <numerusform>%1 Foto ist weiterhin nicht vergleichbar; „lumidex similar --not-compared“ führt es auf.</numerusform>
            <numerusform>%1 Fotos sind weiterhin nicht vergleichbar; „lumidex similar --not-compared“ führt sie auf.</numerusform>
        </translation>
    </message>
    <message>
        <source>They are the same picture.</source>
        <translation>Es ist dasselbe Bild.</translation>
    </message>
    <message>
        <source>They are alike, and not the same picture.</source>
        <translation>Sie sind ähnlich, aber nicht dasselbe Bild.</translation>
    </message>
    <message>
        <source>They are different pictures.</source>
        <translation>Es sind verschiedene Bilder.</translation>
    </message>
    <message>
        <source>Their pictures could not be compared.</source>
        <translation>Ihre Bilder konnten nicht verglichen werden.</translation>
    </message>
    <message>
        <source>same</source>
        <comment>a picture</comment>
        <translation>dasselbe</translation>
    </message>
    <message>
        <source>alike</source>
        <comment>a picture</comment>
        <translation>ähnlich</translation>
    </message>
    <message>
        <source>different</source>
        <comment>a picture</comment>
        <translation>verschieden</translation>
    </message>
    <message>
        <source>unknown</source>
        <comment>a verdict</comment>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>GROUP</source>
        <translation>GRUPPE</translation>
    </message>
    <message>
        <source>VERDICT</source>
        <translation>URTEIL</translation>
    </message>
    <message>
        <source>To undo the edit, %1 of originals must be kept, but the limit is %2.</source>
        <translation>Zum Rückgängigmachen müssen Originale von %1 aufbewahrt werden, aber die Grenze ist %2.</translation>
    </message>
    <message>
        <source>&quot;lumidex undo --keep-size %1&quot; raises the limit; with --no-undo nothing is kept, and the edit cannot be undone.</source>
        <translation>„lumidex undo --keep-size %1“ hebt die Grenze an; mit --no-undo wird nichts aufbewahrt, und die Bearbeitung lässt sich nicht rückgängig machen.</translation>
    </message>
    <message numerus="yes">
        <source>To keep %1 of originals within the limit of %2, undo would have to forget %3 older steps:</source>
        <translation>
            <numerusform>Um Originale von %1 innerhalb der Grenze von %2 aufzubewahren, müsste %3 älterer Schritt vergessen werden:</numerusform>
            <numerusform>Um Originale von %1 innerhalb der Grenze von %2 aufzubewahren, müssten %3 ältere Schritte vergessen werden:</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>To keep %1 of originals within the limit of %2, undo forgets %3 older steps:</source>
        <translation>
            <numerusform>Um Originale von %1 innerhalb der Grenze von %2 aufzubewahren, wird %3 älterer Schritt vergessen:</numerusform>
            <numerusform>Um Originale von %1 innerhalb der Grenze von %2 aufzubewahren, werden %3 ältere Schritte vergessen:</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;lumidex undo --keep-size %1&quot; makes room for all of them.</source>
        <translation>„lumidex undo --keep-size %1“ schafft Platz für alle.</translation>
    </message>
    <message>
        <source>--forget-older allows it.</source>
        <translation>--forget-older erlaubt es.</translation>
    </message>
    <message>
        <source>Forget them and continue? [y/N]</source>
        <translation>Diese vergessen und fortfahren? [j/N]</translation>
    </message>
    <message>
        <source>No originals would be kept, so the edit could not be undone.</source>
        <translation>Es würden keine Originale aufbewahrt, daher ließe sich die Bearbeitung nicht rückgängig machen.</translation>
    </message>
    <message>
        <source>The edit would be refused.</source>
        <translation>Die Bearbeitung würde abgelehnt.</translation>
    </message>
    <message numerus="yes">
        <source>import %1 files to %2</source>
        <translation>
            <numerusform>%1 Datei nach %2 importieren</numerusform>
            <numerusform>%1 Dateien nach %2 importieren</numerusform>
        </translation>
    </message>
    <message>
        <source>accept album %1</source>
        <translation>Album %1 übernehmen</translation>
    </message>
    <message numerus="yes">
        <source>accept %1 albums</source>
        <translation>
            <numerusform>%1 Album übernehmen</numerusform>
            <numerusform>%1 Alben übernehmen</numerusform>
        </translation>
    </message>
    <message>
        <source>alike to %1</source>
        <comment>a photo is; a file</comment>
        <translation>ähnlich wie %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos are alike and not the same picture; they stay unless --alike is given.</source>
        <translation>
            <numerusform>%1 Foto ist nur ähnlich, nicht dasselbe Bild; ohne --alike bleibt es.</numerusform>
            <numerusform>%1 Fotos sind nur ähnlich, nicht dasselbe Bild; ohne --alike bleiben sie.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Move %1 to the trash, %2 of which are only alike? [y/N]</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>%1 in den Papierkorb verschieben, davon %2 nur ähnlich? [j/N]</numerusform>
            <numerusform>%1 in den Papierkorb verschieben, davon %2 nur ähnlich? [j/N]</numerusform>
        </translation>
    </message>
    <message>
        <source>Undo without keeping what redo needs? [y/N]</source>
        <translation>Rückgängig machen, ohne aufzubewahren, was „redo“ braucht? [j/N]</translation>
    </message>
    <message numerus="yes">
        <source>%1 copies are in the trash now.</source>
        <translation>
            <numerusform>%1 Kopie ist jetzt im Papierkorb.</numerusform>
            <numerusform>%1 Kopien sind jetzt im Papierkorb.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no room to keep what redo needs; &quot;lumidex undo --no-redo&quot; undoes without it.</source>
        <translation>Es fehlt der Platz, um aufzubewahren, was „redo“ braucht; „lumidex undo --no-redo“ kommt ohne aus.</translation>
    </message>
    <message numerus="yes">
        <source>Undo of &quot;%1&quot; (%2) will leave %3 files as they are, because this step changed them later:</source>
        <translation>
            <numerusform>Das Rückgängigmachen von „%1“ (%2) wird %3 Datei lassen, wie sie ist, denn dieser Schritt hat sie seitdem geändert:</numerusform>
            <numerusform>Das Rückgängigmachen von „%1“ (%2) wird %3 Dateien lassen, wie sie sind, denn dieser Schritt hat sie seitdem geändert:</numerusform>
        </translation>
    </message>
    <message>
        <source>unknown</source>
        <comment>a date</comment>
        <translation>unbekannt</translation>
    </message>
    <message numerus="yes">
        <source>%1 files or folders would be refused.</source>
        <translation>
            <numerusform>%1 Datei oder Ordner würde abgelehnt.</numerusform>
            <numerusform>%1 Dateien oder Ordner würden abgelehnt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>An import skips %1 other files (--json lists them).</source>
        <translation>
            <numerusform>Ein Import überspringt %1 weitere Datei (--json führt sie auf).</numerusform>
            <numerusform>Ein Import überspringt %1 weitere Dateien (--json führt sie auf).</numerusform>
        </translation>
    </message>
    <message>
        <source>Every file in %1 has a verified copy elsewhere.</source>
        <translation>Jede Datei in %1 hat anderswo eine überprüfte Kopie.</translation>
    </message>
    <message>
        <source>Every file in %1, except for housekeeping files, has a verified copy elsewhere.</source>
        <translation>Jede Datei in %1 außer den Verwaltungsdateien hat anderswo eine überprüfte Kopie.</translation>
    </message>
    <message>
        <source>It is safe to format.</source>
        <translation>Es kann gefahrlos formatiert werden.</translation>
    </message>
    <message>
        <source>It is safe to format as far as this folder is concerned; what is outside it was not checked.</source>
        <translation>Was diesen Ordner betrifft, kann gefahrlos formatiert werden; was außerhalb liegt, wurde nicht geprüft.</translation>
    </message>
    <message>
        <source>not enlarged</source>
        <translation>nicht vergrößert</translation>
    </message>
    <message>
        <source>The disk of %1 has %2 free, but editing all photos needs %3: the last ones would not be edited.</source>
        <translation>Auf dem Laufwerk von %1 sind %2 frei, aber um alle Fotos zu bearbeiten, werden %3 gebraucht: Die letzten würden nicht bearbeitet.</translation>
    </message>
    <message numerus="yes">
        <source>The sources of %1 of them are gone or changed: do not empty the trash before you have another copy.</source>
        <translation>
            <numerusform>Bei %1 davon ist die Quelle verschwunden oder wurde geändert: Leeren Sie den Papierkorb nicht, bevor Sie eine andere Kopie haben.</numerusform>
            <numerusform>Bei %1 davon sind die Quellen verschwunden oder wurden geändert: Leeren Sie den Papierkorb nicht, bevor Sie andere Kopien haben.</numerusform>
        </translation>
    </message>
    <message>
        <source>Interrupted. The photos edited so far stay edited.</source>
        <translation>Abgebrochen. Die bis dahin bearbeiteten Fotos bleiben bearbeitet.</translation>
    </message>
    <message>
        <source>Interrupted. The photos made so far stay; delete the folder before you try again.</source>
        <translation>Abgebrochen. Die bisher erzeugten Fotos bleiben; löschen Sie den Ordner vor einem neuen Versuch.</translation>
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
            <numerusform>%1 von %2 Foto, aufgenommen am %3.</numerusform>
            <numerusform>%1 von %2 Fotos, aufgenommen am %3.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 photos, taken from %3 to %4.</source>
        <comment>found, searched, dates</comment>
        <translation>
            <numerusform>%1 von %2 Foto, aufgenommen vom %3 bis %4.</numerusform>
            <numerusform>%1 von %2 Fotos, aufgenommen vom %3 bis %4.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 photos, taken on %3 or later.</source>
        <comment>found, searched, date</comment>
        <translation>
            <numerusform>%1 von %2 Foto, aufgenommen am %3 oder später.</numerusform>
            <numerusform>%1 von %2 Fotos, aufgenommen am %3 oder später.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 photos, taken on %3 or earlier.</source>
        <comment>found, searched, date</comment>
        <translation>
            <numerusform>%1 von %2 Foto, aufgenommen am %3 oder früher.</numerusform>
            <numerusform>%1 von %2 Fotos, aufgenommen am %3 oder früher.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of them (%2) are the same picture as the photo to keep; &quot;lumidex similar --trash&quot; moves them to the trash.</source>
        <translation>
            <numerusform>%1 davon (%2) ist dasselbe Bild wie das Foto, das zu behalten ist; „lumidex similar --trash“ verschiebt es in den Papierkorb.</numerusform>
            <numerusform>%1 davon (%2) sind dasselbe Bild wie das Foto, das zu behalten ist; „lumidex similar --trash“ verschiebt sie in den Papierkorb.</numerusform>
        </translation>
    </message>
    <message>
        <source>Not the same picture as the photo to keep, only alike:</source>
        <translation>Nicht dasselbe Bild wie das Foto, das zu behalten ist, nur ähnlich:</translation>
    </message>
    <message>
        <source>cannot be undone</source>
        <comment>a step</comment>
        <translation>nicht rückgängig zu machen</translation>
    </message>
    <message>
        <source>running</source>
        <comment>a step</comment>
        <translation>läuft noch</translation>
    </message>
    <message>
        <source>WHEN</source>
        <comment>a step</comment>
        <translation>ZEITPUNKT</translation>
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
            <numerusform>wäre der Name von %1 Foto: %2</numerusform>
            <numerusform>wäre der Name von %1 Fotos: %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Within these limits, undo would have to forget %1 older steps:</source>
        <translation>
            <numerusform>Innerhalb dieser Grenzen müsste %1 älterer Schritt vergessen werden:</numerusform>
            <numerusform>Innerhalb dieser Grenzen müssten %1 ältere Schritte vergessen werden:</numerusform>
        </translation>
    </message>
    <message>
        <source>Whether a photo goes to the trash also depends on the one that is kept of its group, and on tags, albums, settings and second names; &quot;lumidex similar --trash --dry-run&quot; tells.</source>
        <translation>Ob ein Foto in den Papierkorb kommt, hängt auch davon ab, welches seiner Gruppe behalten wird, und von Schlagwörtern, Alben, Einstellungen und weiteren Namen der Datei; „lumidex similar --trash --dry-run“ zeigt es.</translation>
    </message>
</context>
<context>
    <name>Zenvora::Lumidex::Utils</name>
    <message>
        <source>Attention</source>
        <translation>Achtung</translation>
    </message>
    <message>
        <source>All of the selected files do not have read permissions, they will not be added.</source>
        <translation>Keine der ausgewählten Dateien darf gelesen werden; sie werden nicht hinzugefügt.</translation>
    </message>
    <message>
        <source>Some of the selected files do not have read permissions, they will not be added.</source>
        <translation>Einige der ausgewählten Dateien dürfen nicht gelesen werden; sie werden nicht hinzugefügt.</translation>
    </message>
    <message>
        <source>Some of the selected photos are on removable storage. Would you like copy they to your hard drive?</source>
        <translation>Einige der ausgewählten Fotos liegen auf einem Wechseldatenträger. Möchten Sie sie auf Ihre Festplatte kopieren?</translation>
    </message>
    <message>
        <source>The selected directory is temporary, select another directory.</source>
        <translation>Der ausgewählte Ordner ist nur vorübergehend vorhanden. Wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>Some of the selected photos are in read-only formats (for example, %1). They will be converted to JPG or PNG after applying the tool.</source>
        <translation>Einige der ausgewählten Fotos haben schreibgeschützte Formate (zum Beispiel %1). Nach Anwendung des Werkzeugs werden sie in JPG oder PNG umgewandelt.</translation>
    </message>
    <message>
        <source>The selected photo is in read-only formats (%1). It will be converted to JPG or PNG after applying the tool.</source>
        <translation>Das ausgewählte Foto hat ein schreibgeschütztes Format (%1). Nach Anwendung des Werkzeugs wird es in JPG oder PNG umgewandelt.</translation>
    </message>
    <message>
        <source>There is not enough space on the disk %1</source>
        <translation>Auf dem Laufwerk %1 ist nicht genügend Speicherplatz</translation>
    </message>
    <message>
        <source>You do not have permission to edit files in this folder: %1</source>
        <translation>Sie haben keine Berechtigung, Dateien in diesem Ordner zu bearbeiten: %1</translation>
    </message>
    <message>
        <source>You do not have permission to edit file: %1</source>
        <translation>Sie haben keine Berechtigung, diese Datei zu bearbeiten: %1</translation>
    </message>
    <message>
        <source>day</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>days</source>
        <translation>Tage</translation>
    </message>
    <message>
        <source>Expired</source>
        <translation>Abgelaufen</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>One day</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>Nominative day</source>
        <translation>Tage</translation>
    </message>
    <message>
        <source>Genetive day</source>
        <translation>Tage</translation>
    </message>
    <message>
        <source>Plural day</source>
        <translation>Tage</translation>
    </message>
    <message>
        <source>One album</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>Nominative album</source>
        <translation>Alben</translation>
    </message>
    <message>
        <source>Genetive album</source>
        <translation>Alben</translation>
    </message>
    <message>
        <source>Plural album</source>
        <translation>Alben</translation>
    </message>
    <message>
        <source>album</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>albums</source>
        <translation>Alben</translation>
    </message>
    <message>
        <source>One group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>Nominative group</source>
        <translation>Gruppen</translation>
    </message>
    <message>
        <source>Genetive group</source>
        <translation>Gruppen</translation>
    </message>
    <message>
        <source>Plural group</source>
        <translation>Gruppen</translation>
    </message>
    <message>
        <source>group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>groups</source>
        <translation>Gruppen</translation>
    </message>
    <message>
        <source>One photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Nominative photo</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Genetive photo</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Plural photo</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>photos</source>
        <translation>Fotos</translation>
    </message>
</context>
</TS>
