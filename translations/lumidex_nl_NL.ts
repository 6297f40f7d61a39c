<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL" sourcelanguage="en_US">
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
        <translation>%1 kan niet worden bewerkt: %2</translation>
    </message>
    <message>
        <source>Cannot rename %1: %2</source>
        <translation>%1 kan niet worden hernoemd: %2</translation>
    </message>
    <message>
        <source>Cannot rename %1 to %2: %3</source>
        <translation>%1 kan niet worden hernoemd naar %2: %3</translation>
    </message>
    <message>
        <source>Cannot read %1: %2</source>
        <translation>%1 kan niet worden gelezen: %2</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>%1 kan niet worden geschreven: %2</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>%1 kan niet worden geschreven: %2</translation>
    </message>
    <message>
        <source>its folder cannot be written to; change the permissions of %1</source>
        <translation>in de map kan niet worden geschreven; wijzig de rechten van %1</translation>
    </message>
    <message>
        <source>its folder lets only its owner change it; change the owner, or the permissions of %1</source>
        <translation>alleen de eigenaar mag in de map iets wijzigen; wijzig de eigenaar of de rechten van %1</translation>
    </message>
    <message>
        <source>its disk has no room for a new version of it (%1 bytes are needed, %2 are free); free space there</source>
        <translation>op de schijf is geen ruimte voor een nieuwe versie (%1 bytes nodig, %2 vrij); maak daar ruimte vrij</translation>
    </message>
    <message>
        <source>it is write-protected; allow writing to it, or use --force</source>
        <translation>het bestand is tegen schrijven beveiligd; sta schrijven toe of gebruik --force</translation>
    </message>
    <message>
        <source>its sidecar %1 is write-protected; allow writing to it, or use --force</source>
        <translation>het sidecarbestand %1 is tegen schrijven beveiligd; sta schrijven toe of gebruik --force</translation>
    </message>
    <message>
        <source>its sidecar must be edited with it. %1; repair or move the sidecar</source>
        <translation>het sidecarbestand moet mee worden bewerkt. %1; repareer of verplaats het sidecarbestand</translation>
    </message>
    <message>
        <source>its sidecar %1 must be edited with it, but %2</source>
        <translation>het sidecarbestand %1 moet mee worden bewerkt, maar %2</translation>
    </message>
    <message>
        <source>it has no date to shift</source>
        <translation>er is geen datum om te verschuiven</translation>
    </message>
    <message>
        <source>its year would not be 1 to 9999</source>
        <translation>het jaar zou niet tussen 1 en 9999 liggen</translation>
    </message>
    <message>
        <source>its metadata cannot be changed without losing data (%1)</source>
        <translation>de metagegevens kunnen niet zonder verlies worden gewijzigd (%1)</translation>
    </message>
    <message>
        <source>its metadata would be wrong afterwards</source>
        <translation>de metagegevens zouden daarna onjuist zijn</translation>
    </message>
    <message>
        <source>its EXIF data, which are kept as text, are damaged</source>
        <translation>de EXIF-gegevens, die als tekst zijn opgeslagen, zijn beschadigd</translation>
    </message>
    <message>
        <source>its EXIF data are damaged</source>
        <translation>de EXIF-gegevens zijn beschadigd</translation>
    </message>
    <message>
        <source>its XMP data are damaged</source>
        <translation>de XMP-gegevens zijn beschadigd</translation>
    </message>
    <message>
        <source>its TIFF directory is damaged</source>
        <translation>de TIFF-directory is beschadigd</translation>
    </message>
    <message>
        <source>its picture format is not known</source>
        <translation>het afbeeldingsformaat is onbekend</translation>
    </message>
    <message>
        <source>its format cannot be edited</source>
        <translation>het formaat kan niet worden bewerkt</translation>
    </message>
    <message>
        <source>photos of the format %1 cannot be edited</source>
        <translation>foto’s in het formaat %1 kunnen niet worden bewerkt</translation>
    </message>
    <message>
        <source>its picture would change</source>
        <translation>de afbeelding zou veranderen</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>het bestand is leeg</translation>
    </message>
    <message>
        <source>it is damaged: %1</source>
        <translation>het bestand is beschadigd: %1</translation>
    </message>
    <message>
        <source>it is larger than 2 GiB</source>
        <translation>het bestand is groter dan 2 GiB</translation>
    </message>
    <message>
        <source>it is larger than 4 MiB</source>
        <translation>het bestand is groter dan 4 MiB</translation>
    </message>
    <message>
        <source>it was changed while it was read</source>
        <translation>het bestand is tijdens het lezen gewijzigd</translation>
    </message>
    <message>
        <source>editing it takes more memory than there is</source>
        <translation>voor het bewerken is niet genoeg geheugen</translation>
    </message>
    <message>
        <source>its JPEG data is damaged</source>
        <translation>de JPEG-gegevens zijn beschadigd</translation>
    </message>
    <message>
        <source>its JPEG data ends before the picture</source>
        <translation>de JPEG-gegevens eindigen vóór de afbeelding</translation>
    </message>
    <message>
        <source>its JPEG data breaks off before the picture</source>
        <translation>de JPEG-gegevens breken vóór de afbeelding af</translation>
    </message>
    <message>
        <source>there is no room left in its EXIF block</source>
        <translation>er is geen ruimte meer in het EXIF-blok</translation>
    </message>
    <message>
        <source>its PNG data breaks off</source>
        <translation>de PNG-gegevens breken af</translation>
    </message>
    <message>
        <source>its PNG data does not begin with a picture</source>
        <translation>de PNG-gegevens beginnen niet met een afbeelding</translation>
    </message>
    <message>
        <source>it has two EXIF blocks</source>
        <translation>er zijn twee EXIF-blokken</translation>
    </message>
    <message>
        <source>its WebP data breaks off</source>
        <translation>de WebP-gegevens breken af</translation>
    </message>
    <message>
        <source>its WebP data holds no picture</source>
        <translation>de WebP-gegevens bevatten geen afbeelding</translation>
    </message>
    <message>
        <source>its %1 cannot be changed in place</source>
        <translation>%1 kan niet ter plaatse worden gewijzigd</translation>
    </message>
    <message>
        <source>its date cannot be changed in its %1 data</source>
        <translation>de datum kan niet in de %1-gegevens worden gewijzigd</translation>
    </message>
    <message>
        <source>its %1 cannot be changed in its %2 data</source>
        <translation>%1 kan niet in de %2-gegevens worden gewijzigd</translation>
    </message>
    <message>
        <source>it breaks off before its end</source>
        <translation>het bestand breekt vóór het einde af</translation>
    </message>
    <message>
        <source>its text is damaged</source>
        <translation>de tekst is beschadigd</translation>
    </message>
    <message>
        <source>it has too many properties</source>
        <translation>het bestand heeft te veel eigenschappen</translation>
    </message>
    <message>
        <source>%1 is unchanged: %2</source>
        <translation>%1 is ongewijzigd: %2</translation>
    </message>
    <message>
        <source>%1 was edited, but the catalogue could not be updated (%2). The next run updates it</source>
        <translation>%1 is bewerkt, maar de catalogus kon niet worden bijgewerkt (%2). De volgende keer werkt lumidex die bij</translation>
    </message>
    <message>
        <source>%1 cannot be read back as what was written</source>
        <translation>%1 kan niet worden teruggelezen zoals het is geschreven</translation>
    </message>
    <message>
        <source>%1 is left as it is, because it belongs to %2</source>
        <translation>%1 wordt gelaten zoals het is, omdat het bij %2 hoort</translation>
    </message>
    <message>
        <source>%1 is missing for now, but its versions are kept (%2). Free space on its disk and run &quot;lumidex undo&quot; again</source>
        <translation>%1 ontbreekt voorlopig, maar de versies zijn bewaard (%2). Maak ruimte vrij op de schijf en voer ‘lumidex undo’ opnieuw uit</translation>
    </message>
    <message>
        <source>%1 is left as it is: another program changed %2, where its other version was kept</source>
        <translation>%1 wordt gelaten zoals het is: een ander programma heeft %2 gewijzigd, waar de andere versie was bewaard</translation>
    </message>
    <message>
        <source>%1 is left as it is: its disk has no room for its other version (%2 bytes). Free space there and try again</source>
        <translation>%1 wordt gelaten zoals het is: op de schijf is geen ruimte voor de andere versie (%2 bytes). Maak daar ruimte vrij en probeer het opnieuw</translation>
    </message>
    <message>
        <source>%1 is left as it is: its other version is no longer kept</source>
        <translation>%1 wordt gelaten zoals het is: de andere versie is niet meer bewaard</translation>
    </message>
    <message>
        <source>%1 was changed later and is left as it is</source>
        <translation>%1 is later gewijzigd en wordt gelaten zoals het is</translation>
    </message>
    <message>
        <source>%1 no longer exists</source>
        <translation>%1 bestaat niet meer</translation>
    </message>
    <message>
        <source>%1 cannot be reached: its disk may not be connected</source>
        <translation>%1 is niet bereikbaar: misschien is de schijf niet aangesloten</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 kan niet worden gelezen: %2</translation>
    </message>
    <message>
        <source>The undo journal %1 cannot be used: %2</source>
        <translation>Het logboek %1 voor ongedaan maken kan niet worden gebruikt: %2</translation>
    </message>
    <message>
        <source>another program is renaming or editing photos with it; try again when that has finished</source>
        <translation>een ander programma hernoemt of bewerkt er foto’s mee; probeer het opnieuw als dat klaar is</translation>
    </message>
    <message>
        <source>no step is started without %1 MiB free for finishing and undoing it (%2)</source>
        <translation>zonder %1 MiB vrije ruimte om een stap te voltooien en ongedaan te maken wordt er geen begonnen (%2)</translation>
    </message>
    <message>
        <source>there is no room for undoing it (%1)</source>
        <translation>er is geen ruimte om het ongedaan te maken (%1)</translation>
    </message>
    <message>
        <source>Cannot change the target of the link %1: %2</source>
        <translation>Het doel van de koppeling %1 kan niet worden gewijzigd: %2</translation>
    </message>
    <message>
        <source>Cannot move %1 to the trash: %2</source>
        <translation>%1 kan niet naar de prullenbak worden verplaatst: %2</translation>
    </message>
    <message>
        <source>no free name in the trash</source>
        <translation>geen vrije naam in de prullenbak</translation>
    </message>
    <message>
        <source>another file has that name</source>
        <translation>een ander bestand heeft die naam</translation>
    </message>
    <message>
        <source>another file has its former name</source>
        <translation>een ander bestand heeft de vroegere naam</translation>
    </message>
    <message>
        <source>it is on another volume</source>
        <translation>het staat op een ander volume</translation>
    </message>
    <message>
        <source>it is no longer a file</source>
        <translation>het is geen bestand meer</translation>
    </message>
    <message>
        <source>%1 was kept, because its photo was kept</source>
        <translation>%1 is bewaard, omdat de bijbehorende foto is bewaard</translation>
    </message>
    <message>
        <source>%1 was kept, because the photo kept in its place, %2, no longer exists</source>
        <translation>%1 is bewaard, omdat de foto die in plaats ervan is bewaard, %2, niet meer bestaat</translation>
    </message>
    <message>
        <source>%1 is in the trash as %2, which cannot be reached: its disk may not be connected</source>
        <translation>%1 ligt in de prullenbak als %2, die niet bereikbaar is: misschien is de schijf niet aangesloten</translation>
    </message>
    <message>
        <source>%1 may be in the trash as %2, which cannot be read: %3</source>
        <translation>%1 ligt misschien in de prullenbak als %2, dat niet kan worden gelezen: %3</translation>
    </message>
    <message>
        <source>%1 is no longer in the trash; another file has its name</source>
        <translation>%1 ligt niet meer in de prullenbak; een ander bestand heeft de naam</translation>
    </message>
    <message>
        <source>%1 is no longer in the trash and cannot be brought back</source>
        <translation>%1 ligt niet meer in de prullenbak en kan niet worden teruggehaald</translation>
    </message>
    <message>
        <source>%1 remains in the trash as %2: %3</source>
        <translation>%1 blijft in de prullenbak als %2: %3</translation>
    </message>
    <message>
        <source>The album &quot;%1&quot; is kept, because photos were added to it later</source>
        <translation>Het album ‘%1’ blijft, omdat er later foto’s aan zijn toegevoegd</translation>
    </message>
    <message>
        <source>The album &quot;%1&quot; no longer exists</source>
        <translation>Het album ‘%1’ bestaat niet meer</translation>
    </message>
    <message>
        <source>Another album has the name &quot;%1&quot; now</source>
        <translation>Een ander album heet nu ‘%1’</translation>
    </message>
    <message>
        <source>%1 is kept: %2.</source>
        <translation>%1 blijft: %2.</translation>
    </message>
    <message>
        <source>it is already in a trash</source>
        <translation>het ligt al in een prullenbak</translation>
    </message>
    <message>
        <source>it is a link to another file</source>
        <translation>het is een koppeling naar een ander bestand</translation>
    </message>
    <message>
        <source>it no longer exists</source>
        <translation>het bestaat niet meer</translation>
    </message>
    <message>
        <source>it was changed after it was analysed</source>
        <translation>het is na de analyse gewijzigd</translation>
    </message>
    <message>
        <source>it was changed after it was compared</source>
        <translation>het is na de vergelijking gewijzigd</translation>
    </message>
    <message>
        <source>it is another name of a file that is kept</source>
        <translation>het is een andere naam van een bestand dat blijft</translation>
    </message>
    <message>
        <source>it is of the same shot as %1, which is kept</source>
        <translation>het hoort bij dezelfde opname als %1, dat blijft</translation>
    </message>
    <message>
        <source>it is like others of its group, but not like the photo to keep, %1</source>
        <translation>het lijkt op andere van de groep, maar niet op de foto om te bewaren, %1</translation>
    </message>
    <message>
        <source>it has tags or albums that the photo to keep, %1, does not have</source>
        <translation>het heeft tags of albums die de foto om te bewaren, %1, niet heeft</translation>
    </message>
    <message>
        <source>it is a raw file, and no raw file of its group is kept</source>
        <translation>het is een raw-bestand, en geen raw-bestand van de groep blijft</translation>
    </message>
    <message>
        <source>its settings, %1, would be lost: the photo to keep, %2, does not have them</source>
        <translation>de instellingen, %1, zouden verloren gaan: de foto om te bewaren, %2, heeft ze niet</translation>
    </message>
    <message>
        <source>the link %1 leads to it</source>
        <translation>de koppeling %1 leidt ernaartoe</translation>
    </message>
    <message>
        <source>%1, to which it belongs, is kept</source>
        <translation>%1, waar het bij hoort, blijft</translation>
    </message>
    <message>
        <source>the settings in %1 were changed</source>
        <translation>de instellingen in %1 zijn gewijzigd</translation>
    </message>
    <message>
        <source>the photo to keep, %1, no longer exists</source>
        <translation>de foto om te bewaren, %1, bestaat niet meer</translation>
    </message>
    <message>
        <source>the photo to keep, %1, was changed after it was analysed</source>
        <translation>de foto om te bewaren, %1, is na de analyse gewijzigd</translation>
    </message>
    <message>
        <source>the photo to keep, %1, is no longer a file</source>
        <translation>de foto om te bewaren, %1, is geen bestand meer</translation>
    </message>
    <message>
        <source>the photo to keep, %1, cannot be read (%2)</source>
        <translation>de foto om te bewaren, %1, kan niet worden gelezen (%2)</translation>
    </message>
    <message>
        <source>the photo to keep, %1, is in a trash</source>
        <translation>de foto om te bewaren, %1, ligt in een prullenbak</translation>
    </message>
    <message>
        <source>the photo to keep, %1, is a link to another file</source>
        <translation>de foto om te bewaren, %1, is een koppeling naar een ander bestand</translation>
    </message>
    <message>
        <source>the photo to keep, %1, breaks off before the end of its picture</source>
        <translation>de foto om te bewaren, %1, breekt vóór het einde van de afbeelding af</translation>
    </message>
    <message>
        <source>the photo to keep, %1, is damaged: %2</source>
        <translation>de foto om te bewaren, %1, is beschadigd: %2</translation>
    </message>
    <message>
        <source>Interrupted undo of &quot;%1&quot; is now complete.</source>
        <translation>Het afgebroken ongedaan maken van ‘%1’ is nu voltooid.</translation>
    </message>
    <message>
        <source>Interrupted redo of &quot;%1&quot; is now complete.</source>
        <translation>Het afgebroken opnieuw doen van ‘%1’ is nu voltooid.</translation>
    </message>
    <message>
        <source>Interrupted undo of &quot;%1&quot; is now complete, except for:</source>
        <translation>Het afgebroken ongedaan maken van ‘%1’ is nu voltooid, behalve voor:</translation>
    </message>
    <message>
        <source>Interrupted redo of &quot;%1&quot; is now complete, except for:</source>
        <translation>Het afgebroken opnieuw doen van ‘%1’ is nu voltooid, behalve voor:</translation>
    </message>
    <message>
        <source>Interrupted step &quot;%1&quot; is now complete.</source>
        <translation>De afgebroken stap ‘%1’ is nu voltooid.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was interrupted and will be finished once %2 can be reached.</source>
        <translation>‘%1’ is afgebroken en wordt voltooid zodra %2 bereikbaar is.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was interrupted and cannot be finished (%2); the files have their former names.</source>
        <translation>‘%1’ is afgebroken en kan niet worden voltooid (%2); de bestanden hebben hun vroegere namen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was interrupted and cannot be finished (%2), nor undone (%3).</source>
        <translation>‘%1’ is afgebroken en kan niet worden voltooid (%2) en ook niet ongedaan worden gemaakt (%3).</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was interrupted. Photos edited: %2; the others are unchanged.</source>
        <translation>‘%1’ is afgebroken. Bewerkte foto’s: %2; de andere zijn ongewijzigd.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was interrupted. Copies made: %2; run the same import to copy the rest.</source>
        <translation>‘%1’ is afgebroken. Gemaakte kopieën: %2; herhaal de import om de rest te kopiëren.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was interrupted. Files moved: %2; the others are where they were.</source>
        <translation>‘%1’ is afgebroken. Verplaatste bestanden: %2; de andere staan waar ze stonden.</translation>
    </message>
    <message>
        <source>Originals that this catalogue does not know were moved to %1.</source>
        <translation>Originelen die deze catalogus niet kent, zijn verplaatst naar %1.</translation>
    </message>
    <message>
        <source>%1 and its sidecar disagree, because only one of them was edited (%2).</source>
        <translation>%1 en het sidecarbestand komen niet overeen, omdat maar één van beide is bewerkt (%2).</translation>
    </message>
    <message>
        <source>It cannot be read</source>
        <translation>Het kan niet worden gelezen</translation>
    </message>
    <message>
        <source>It is a pipe or a device</source>
        <translation>Het is een pipe of een apparaat</translation>
    </message>
    <message>
        <source>It is not a regular file</source>
        <translation>Het is geen gewoon bestand</translation>
    </message>
    <message>
        <source>It is empty</source>
        <translation>Het is leeg</translation>
    </message>
    <message>
        <source>It is damaged: %1</source>
        <translation>Het is beschadigd: %1</translation>
    </message>
    <message>
        <source>Its picture format is not known</source>
        <translation>Het afbeeldingsformaat is onbekend</translation>
    </message>
    <message>
        <source>Its name is not valid text</source>
        <translation>De naam is geen geldige tekst</translation>
    </message>
    <message>
        <source>It is named like a housekeeping file, but may be a picture or a video</source>
        <translation>Het heeft de naam van een beheerbestand, maar kan een afbeelding of een video zijn</translation>
    </message>
    <message>
        <source>The link leads to a file that is missing</source>
        <translation>De koppeling leidt naar een bestand dat ontbreekt</translation>
    </message>
    <message>
        <source>The link leads to a file that cannot be read</source>
        <translation>De koppeling leidt naar een bestand dat niet kan worden gelezen</translation>
    </message>
    <message>
        <source>The link leads back to itself</source>
        <translation>De koppeling leidt naar zichzelf terug</translation>
    </message>
    <message>
        <source>The link leads to a folder that cannot be read</source>
        <translation>De koppeling leidt naar een map die niet kan worden gelezen</translation>
    </message>
    <message>
        <source>The link leads back to a folder above it</source>
        <translation>De koppeling leidt terug naar een bovenliggende map</translation>
    </message>
    <message>
        <source>The link leads to a folder that was already visited</source>
        <translation>De koppeling leidt naar een map die al is bezocht</translation>
    </message>
    <message>
        <source>%1 is hidden</source>
        <translation>%1 is verborgen</translation>
    </message>
    <message>
        <source>%1 is not named like a photo</source>
        <translation>%1 heeft geen naam van een foto</translation>
    </message>
    <message>
        <source>%1 is a link to a file that is missing</source>
        <translation>%1 is een koppeling naar een bestand dat ontbreekt</translation>
    </message>
    <message>
        <source>it was changed while it was copied</source>
        <translation>het is tijdens het kopiëren gewijzigd</translation>
    </message>
    <message>
        <source>the copy differs from the original</source>
        <translation>de kopie wijkt af van het origineel</translation>
    </message>
    <message>
        <source>the copy cannot be written: %1</source>
        <translation>de kopie kan niet worden geschreven: %1</translation>
    </message>
    <message>
        <source>the copy cannot be read back: %1</source>
        <translation>de kopie kan niet worden teruggelezen: %1</translation>
    </message>
    <message>
        <source>the copy cannot be recorded</source>
        <translation>de kopie kan niet worden geregistreerd</translation>
    </message>
    <message>
        <source>another file got the name %1 meanwhile</source>
        <translation>een ander bestand heeft intussen de naam %1 gekregen</translation>
    </message>
    <message>
        <source>it is identical to %1, which could not be copied</source>
        <translation>het is identiek aan %1, dat niet kon worden gekopieerd</translation>
    </message>
    <message>
        <source>the import was interrupted</source>
        <translation>de import is afgebroken</translation>
    </message>
    <message>
        <source>It may be any of %1 photos that are missing</source>
        <translation>Het kan elk van %1 ontbrekende foto’s zijn</translation>
    </message>
    <message>
        <source>It is missing, and %1 files may be it</source>
        <translation>De foto ontbreekt, en %1 bestanden kunnen het zijn</translation>
    </message>
    <message>
        <source>It was changed or replaced, and a file has its former content</source>
        <translation>De foto is gewijzigd of vervangen, en een bestand heeft de vroegere inhoud</translation>
    </message>
    <message>
        <source>identical files</source>
        <translation>identieke bestanden</translation>
    </message>
    <message>
        <source>the same pixels</source>
        <translation>dezelfde pixels</translation>
    </message>
    <message>
        <source>the same picture, smaller</source>
        <translation>dezelfde afbeelding, kleiner</translation>
    </message>
    <message>
        <source>the same picture, larger</source>
        <translation>dezelfde afbeelding, groter</translation>
    </message>
    <message>
        <source>the same picture, compressed again or in another format</source>
        <translation>dezelfde afbeelding, opnieuw gecomprimeerd of in een ander formaat</translation>
    </message>
    <message>
        <source>the same picture, mirrored</source>
        <translation>dezelfde afbeelding, gespiegeld</translation>
    </message>
    <message>
        <source>the same picture, brighter</source>
        <translation>dezelfde afbeelding, lichter</translation>
    </message>
    <message>
        <source>the same picture, darker</source>
        <translation>dezelfde afbeelding, donkerder</translation>
    </message>
    <message>
        <source>the same picture, with more contrast</source>
        <translation>dezelfde afbeelding, met meer contrast</translation>
    </message>
    <message>
        <source>the same picture, with less contrast</source>
        <translation>dezelfde afbeelding, met minder contrast</translation>
    </message>
    <message>
        <source>the same picture, sharpened</source>
        <translation>dezelfde afbeelding, verscherpt</translation>
    </message>
    <message>
        <source>the same picture, changed all over</source>
        <translation>dezelfde afbeelding, overal gewijzigd</translation>
    </message>
    <message>
        <source>the same picture, larger and with more detail</source>
        <translation>dezelfde afbeelding, groter en met meer details</translation>
    </message>
    <message>
        <source>the same picture with a border or a caption</source>
        <translation>dezelfde afbeelding met een rand of een bijschrift</translation>
    </message>
    <message>
        <source>the same picture without colours</source>
        <translation>dezelfde afbeelding zonder kleuren</translation>
    </message>
    <message>
        <source>the same picture with colours</source>
        <translation>dezelfde afbeelding met kleuren</translation>
    </message>
    <message>
        <source>the same picture as far as a preview shows</source>
        <translation>dezelfde afbeelding, voor zover een voorbeeld dat toont</translation>
    </message>
    <message>
        <source>the same picture as far as so few pixels show</source>
        <translation>dezelfde afbeelding, voor zover zo weinig pixels dat tonen</translation>
    </message>
    <message>
        <source>the same picture as far as it shows when it is made smaller</source>
        <translation>dezelfde afbeelding, voor zover dat verkleind te zien is</translation>
    </message>
    <message>
        <source>the same picture, but for something small at %1</source>
        <translation>dezelfde afbeelding, op iets kleins %1 na</translation>
    </message>
    <message>
        <source>nearly the same view</source>
        <translation>bijna hetzelfde beeld</translation>
    </message>
    <message>
        <source>the same view, turned a little</source>
        <translation>hetzelfde beeld, een beetje gedraaid</translation>
    </message>
    <message>
        <source>the same view, cropped</source>
        <translation>hetzelfde beeld, bijgesneden</translation>
    </message>
    <message>
        <source>the same view with more around it</source>
        <translation>hetzelfde beeld met meer eromheen</translation>
    </message>
    <message>
        <source>the same view, brighter</source>
        <translation>hetzelfde beeld, lichter</translation>
    </message>
    <message>
        <source>the same view, darker</source>
        <translation>hetzelfde beeld, donkerder</translation>
    </message>
    <message>
        <source>another plain colour</source>
        <translation>een andere effen kleur</translation>
    </message>
    <message>
        <source>shows something else</source>
        <translation>toont iets anders</translation>
    </message>
    <message>
        <source>differs in some places</source>
        <translation>verschilt op sommige plaatsen</translation>
    </message>
    <message>
        <source>differs at %1</source>
        <translation>verschilt %1</translation>
    </message>
    <message>
        <source>the upper left</source>
        <translation>linksboven</translation>
    </message>
    <message>
        <source>the top</source>
        <translation>bovenaan</translation>
    </message>
    <message>
        <source>the upper right</source>
        <translation>rechtsboven</translation>
    </message>
    <message>
        <source>the left</source>
        <translation>links</translation>
    </message>
    <message>
        <source>the middle</source>
        <translation>in het midden</translation>
    </message>
    <message>
        <source>the right</source>
        <translation>rechts</translation>
    </message>
    <message>
        <source>the lower left</source>
        <translation>linksonder</translation>
    </message>
    <message>
        <source>the bottom</source>
        <translation>onderaan</translation>
    </message>
    <message>
        <source>the lower right</source>
        <translation>rechtsonder</translation>
    </message>
    <message>
        <source>it cannot be compared: %1</source>
        <translation>niet te vergelijken: %1</translation>
    </message>
    <message>
        <source>the photo to keep cannot be compared: %1</source>
        <translation>de foto om te bewaren kan niet worden vergeleken: %1</translation>
    </message>
    <message>
        <source>it has too few pixels</source>
        <translation>te weinig pixels</translation>
    </message>
    <message>
        <source>it is partly transparent</source>
        <translation>gedeeltelijk doorzichtig</translation>
    </message>
    <message>
        <source>it breaks off before the end of its picture</source>
        <translation>breekt vóór het einde van de afbeelding af</translation>
    </message>
    <message>
        <source>it holds more behind its picture</source>
        <translation>bevat nog meer achter de afbeelding</translation>
    </message>
    <message>
        <source>of several pictures in a file only the first can be compared</source>
        <translation>van meer afbeeldingen in een bestand kan alleen de eerste worden vergeleken</translation>
    </message>
    <message>
        <source>there is not enough memory to compare it</source>
        <translation>er is niet genoeg geheugen om te vergelijken</translation>
    </message>
    <message>
        <source>nothing of the picture can be decoded</source>
        <translation>niets van de afbeelding kan worden gedecodeerd</translation>
    </message>
    <message>
        <source>the head of the picture is damaged</source>
        <translation>het begin van de afbeelding is beschadigd</translation>
    </message>
    <message>
        <source>a part of the picture is damaged</source>
        <translation>een deel van de afbeelding is beschadigd</translation>
    </message>
    <message>
        <source>its content is not a picture of a known format</source>
        <translation>de inhoud is geen afbeelding in een bekend formaat</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>het bestand is leeg</translation>
    </message>
    <message>
        <source>the system lets nobody move it; take its attribute &quot;immutable&quot; away</source>
        <translation>het systeem laat niemand het verplaatsen; verwijder het kenmerk ‘immutable’</translation>
    </message>
    <message>
        <source>has a link of the same name beside it, which would not be renamed: %1</source>
        <translation>ernaast staat een koppeling met dezelfde naam, die niet zou worden hernoemd: %1</translation>
    </message>
    <message>
        <source>has no date</source>
        <translation>heeft geen datum</translation>
    </message>
    <message>
        <source>has no readable date: %1</source>
        <translation>heeft geen leesbare datum: %1</translation>
    </message>
    <message>
        <source>is given twice</source>
        <translation>is twee keer opgegeven</translation>
    </message>
    <message>
        <source>%1 is a link to somewhere else, and imports do not write through links. Remove the link, then import again.</source>
        <translation>%1 is een koppeling naar een andere plaats, en bij het importeren wordt niet via koppelingen geschreven. Verwijder de koppeling en importeer opnieuw.</translation>
    </message>
    <message>
        <source>%1 is no file, and imports keep one there. Remove it, then import again.</source>
        <translation>%1 is geen bestand, en bij het importeren staat daar een bestand. Verwijder het en importeer opnieuw.</translation>
    </message>
    <message>
        <source>%1 is a second name of another file (a hard link), and imports do not write to such. Put a copy of it in its place, or remove it, then import again.</source>
        <translation>%1 is een tweede naam van een ander bestand (een harde koppeling), en daarin wordt bij het importeren niet geschreven. Zet er een kopie voor in de plaats of verwijder het, en importeer opnieuw.</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 is geen map.</translation>
    </message>
    <message>
        <source>There is not enough space in %1: %2 bytes are needed, %3 are free.</source>
        <translation>Er is niet genoeg ruimte in %1: %2 bytes nodig, %3 vrij.</translation>
    </message>
    <message>
        <source>would be the name of two photos: %1</source>
        <translation>zou de naam van twee foto’s zijn: %1</translation>
    </message>
    <message>
        <source>would be the name of two files: %1</source>
        <translation>zou de naam van twee bestanden zijn: %1</translation>
    </message>
    <message>
        <source>is the name of another file: %1</source>
        <translation>is de naam van een ander bestand: %1</translation>
    </message>
    <message>
        <source>is the name of another photo or its sidecar: %1</source>
        <translation>is de naam van een andere foto of het sidecarbestand daarvan: %1</translation>
    </message>
    <message>
        <source>is the name of a photo that cannot be renamed: %1</source>
        <translation>is de naam van een foto die niet kan worden hernoemd: %1</translation>
    </message>
    <message>
        <source>holds a separator of folders %1</source>
        <translation>bevat het scheidingsteken %1 voor mappen</translation>
    </message>
    <message>
        <source>holds the sign for unreadable characters</source>
        <translation>bevat het teken voor onleesbare tekens</translation>
    </message>
    <message>
        <source>holds a control character</source>
        <translation>bevat een stuurteken</translation>
    </message>
    <message>
        <source>holds the character %1</source>
        <translation>bevat het teken %1</translation>
    </message>
    <message>
        <source>begins with a dot, which hides the file</source>
        <translation>begint met een punt, die het bestand verbergt</translation>
    </message>
    <message>
        <source>is longer than %1 bytes</source>
        <translation>is langer dan %1 bytes</translation>
    </message>
    <message>
        <source>names a device of Windows</source>
        <translation>is de naam van een apparaat van Windows</translation>
    </message>
    <message>
        <source>ends in a dot, which Windows drops</source>
        <translation>eindigt op een punt, die Windows weglaat</translation>
    </message>
    <message>
        <source>ends in a blank, which Windows drops</source>
        <translation>eindigt op een spatie, die Windows weglaat</translation>
    </message>
    <message>
        <source>is not valid UTF-8</source>
        <translation>is geen geldige UTF-8</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Select folder</source>
        <translation>Map kiezen</translation>
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
        <translation>Ja op &amp;alles</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nee</translation>
    </message>
    <message>
        <source>N&amp;o to All</source>
        <translation>N&amp;ee op alles</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Opslaan</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Alles opslaan</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Openen</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Opnieuw proberen</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Negeren</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Afbreken</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerpen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Toepassen</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Herstellen</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>Standaardwaarden herstellen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>Albums</source>
        <translation>Albums</translation>
    </message>
    <message>
        <source>Proposed albums</source>
        <translation>Voorgestelde albums</translation>
    </message>
    <message>
        <source>Similar photos</source>
        <translation>Gelijkende foto’s</translation>
    </message>
    <message>
        <source>Groups by year</source>
        <translation>Groepen per jaar</translation>
    </message>
    <message>
        <source>No similar photos</source>
        <translation>Geen gelijkende foto’s</translation>
    </message>
    <message>
        <source>Groups appear here once the catalogue holds photos that are alike.</source>
        <translation>Hier verschijnen groepen zodra de catalogus foto’s bevat die op elkaar lijken.</translation>
    </message>
    <message>
        <source>Albums by year</source>
        <translation>Albums per jaar</translation>
    </message>
    <message>
        <source>No albums yet</source>
        <translation>Nog geen albums</translation>
    </message>
    <message>
        <source>Albums appear here once there are enough photos of a holiday or of a month&apos;s weekends. Scan more folders and try again.</source>
        <translation>Hier verschijnen albums zodra er genoeg foto’s zijn van een feestdag of van de weekenden van een maand. Lees meer mappen in en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Unnamed album</source>
        <translation>Album zonder naam</translation>
    </message>
    <message>
        <source>Undated</source>
        <translation>Zonder datum</translation>
    </message>
    <message>
        <source>Accepted</source>
        <translation>Geaccepteerd</translation>
    </message>
    <message>
        <source>No picture</source>
        <translation>Geen afbeelding</translation>
    </message>
    <message numerus="yes">
        <source>and %1 more</source>
        <translation>
            <numerusform>en nog %1</numerusform>
            <numerusform>en nog %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Made with Lumidex. This page holds all its pictures and needs no other file.</source>
        <translation>Gemaakt met Lumidex. Deze pagina bevat al haar afbeeldingen en heeft geen andere bestanden nodig.</translation>
    </message>
</context>
<context>
    <name>Terminal</name>
    <message>
        <source>Drawing</source>
        <translation>Tekenen</translation>
    </message>
    <message>
        <source>pictures</source>
        <comment>of so many</comment>
        <translation>afbeeldingen</translation>
    </message>
    <message>
        <source>The catalogue holds no photos yet. Run: lumidex scan DIR</source>
        <translation>De catalogus bevat nog geen foto’s. Voer uit: lumidex scan MAP</translation>
    </message>
    <message numerus="yes">
        <source>All %1 photos of the catalogue were missing at the last scan. Is a disk not connected?</source>
        <translation>
            <numerusform>De %1 foto van de catalogus ontbrak bij het laatste inlezen. Is er een schijf niet aangesloten?</numerusform>
            <numerusform>Alle %1 foto’s van de catalogus ontbraken bij het laatste inlezen. Is er een schijf niet aangesloten?</numerusform>
        </translation>
    </message>
    <message>
        <source>Interrupted.</source>
        <translation>Afgebroken.</translation>
    </message>
    <message>
        <source>No album was accepted.</source>
        <translation>Er is geen album geaccepteerd.</translation>
    </message>
    <message>
        <source>The page %1 is written; it shows all chosen albums as accepted.</source>
        <translation>De pagina %1 is geschreven; alle gekozen albums staan er als geaccepteerd op.</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message numerus="yes">
        <source>yes, %1 more now</source>
        <translation>
            <numerusform>ja, nu nog %1</numerusform>
            <numerusform>ja, nu nog %1</numerusform>
        </translation>
    </message>
    <message>
        <source>ALBUM</source>
        <translation>ALBUM</translation>
    </message>
    <message>
        <source>WHEN</source>
        <translation>WANNEER</translation>
    </message>
    <message>
        <source>FIRST DAY</source>
        <translation>EERSTE DAG</translation>
    </message>
    <message>
        <source>LAST DAY</source>
        <translation>LAATSTE DAG</translation>
    </message>
    <message>
        <source>PHOTOS</source>
        <translation>FOTO’S</translation>
    </message>
    <message>
        <source>ACCEPTED</source>
        <translation>GEACCEPTEERD</translation>
    </message>
    <message numerus="yes">
        <source>%1 (%2 photos)</source>
        <translation>
            <numerusform>%1 (%2 foto)</numerusform>
            <numerusform>%1 (%2 foto’s)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Accepted %1: %2 photos.</source>
        <translation>
            <numerusform>%1 geaccepteerd: %2 foto.</numerusform>
            <numerusform>%1 geaccepteerd: %2 foto’s.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Added %1 photos to %2, which was accepted before.</source>
        <translation>
            <numerusform>%1 foto toegevoegd aan het al geaccepteerde %2.</numerusform>
            <numerusform>%1 foto’s toegevoegd aan het al geaccepteerde %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 was accepted before, and there are no photos to add.</source>
        <translation>%1 was al geaccepteerd en er zijn geen foto’s om toe te voegen.</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos</source>
        <comment>albums from</comment>
        <translation>
            <numerusform>%1 foto</numerusform>
            <numerusform>%1 foto’s</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 of them have no date</source>
        <comment>photos; how many</comment>
        <translation>
            <numerusform>%1, waarvan %2 zonder datum</numerusform>
            <numerusform>%1, waarvan %2 zonder datum</numerusform>
        </translation>
    </message>
    <message>
        <source>No album has been accepted yet. &quot;lumidex albums&quot; shows proposals.</source>
        <translation>Er is nog geen album geaccepteerd. ‘lumidex albums’ toont voorstellen.</translation>
    </message>
    <message numerus="yes">
        <source>%1 accepted albums.</source>
        <translation>
            <numerusform>%1 geaccepteerd album.</numerusform>
            <numerusform>%1 geaccepteerde albums.</numerusform>
        </translation>
    </message>
    <message>
        <source>No albums to propose from %1: an album needs 20 photos or more of one
holiday, or of the weekends of one month.</source>
        <translation>Geen albums voor te stellen uit %1: een album heeft minstens 20 foto’s nodig
van één feestdag of van de weekenden van één maand.</translation>
    </message>
    <message numerus="yes">
        <source>%1 albums</source>
        <translation>
            <numerusform>%1 album</numerusform>
            <numerusform>%1 albums</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 from %2; %3 accepted.</source>
        <comment>albums, photos, how many</comment>
        <translation>
            <numerusform>%1 uit %2; %3 geaccepteerd.</numerusform>
            <numerusform>%1 uit %2; %3 geaccepteerd.</numerusform>
        </translation>
    </message>
    <message>
        <source>Calendar: %1 (from the server)</source>
        <translation>Kalender: %1 (van de server)</translation>
    </message>
    <message>
        <source>Calendar: %1</source>
        <translation>Kalender: %1</translation>
    </message>
    <message>
        <source>The calendar has no holidays for %1.</source>
        <translation>De kalender heeft geen feestdagen voor %1.</translation>
    </message>
    <message>
        <source>HOLIDAY</source>
        <translation>FEESTDAG</translation>
    </message>
    <message>
        <source>DAYS</source>
        <translation>DAGEN</translation>
    </message>
    <message>
        <source>(no name)</source>
        <translation>(zonder naam)</translation>
    </message>
    <message numerus="yes">
        <source>%1 holidays for %2.</source>
        <translation>
            <numerusform>%1 feestdag voor %2.</numerusform>
            <numerusform>%1 feestdagen voor %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: no mistakes found.</source>
        <translation>%1: geen fouten gevonden.</translation>
    </message>
    <message>
        <source>event %1</source>
        <translation>gebeurtenis %1</translation>
    </message>
    <message>
        <source>list</source>
        <comment>of the events of a language</comment>
        <translation>lijst</translation>
    </message>
    <message numerus="yes">
        <source>%1: %2 mistakes found.</source>
        <translation>
            <numerusform>%1: %2 fout gevonden.</numerusform>
            <numerusform>%1: %2 fouten gevonden.</numerusform>
        </translation>
    </message>
    <message>
        <source>The calendar was not updated: %1</source>
        <translation>De kalender is niet bijgewerkt: %1</translation>
    </message>
    <message>
        <source>There is no calendar.</source>
        <translation>Er is geen kalender.</translation>
    </message>
    <message>
        <source>Still in use: %1</source>
        <translation>Nog steeds in gebruik: %1</translation>
    </message>
    <message>
        <source>The calendar was updated: %1</source>
        <translation>De kalender is bijgewerkt: %1</translation>
    </message>
    <message>
        <source>The calendar is up to date: %1</source>
        <translation>De kalender is actueel: %1</translation>
    </message>
    <message>
        <source>The holiday calendar could not be read completely, so holidays are missing. Run: lumidex calendar check, or lumidex calendar update.</source>
        <translation>De feestdagenkalender kon niet volledig worden gelezen, dus er ontbreken feestdagen. Voer uit: lumidex calendar check of lumidex calendar update.</translation>
    </message>
    <message>
        <source>The holiday calendar %1 could not be read completely, so holidays are missing. Run: lumidex calendar check, or lumidex calendar update.</source>
        <translation>De feestdagenkalender %1 kon niet volledig worden gelezen, dus er ontbreken feestdagen. Voer uit: lumidex calendar check of lumidex calendar update.</translation>
    </message>
    <message>
        <source>unreadable</source>
        <translation>onleesbaar</translation>
    </message>
    <message>
        <source>Volume of</source>
        <translation>Volume van</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Bestanden</translation>
    </message>
    <message>
        <source>Needed</source>
        <translation>Nodig</translation>
    </message>
    <message>
        <source>Free</source>
        <comment>room on a disk</comment>
        <translation>Vrij</translation>
    </message>
    <message>
        <source>unknown</source>
        <comment>free room</comment>
        <translation>onbekend</translation>
    </message>
    <message numerus="yes">
        <source>%1 files checked</source>
        <translation>
            <numerusform>%1 bestand gecontroleerd</numerusform>
            <numerusform>%1 bestanden gecontroleerd</numerusform>
        </translation>
    </message>
    <message>
        <source>no problems found.</source>
        <translation>geen problemen gevonden.</translation>
    </message>
    <message>
        <source>Interrupted. Nothing was changed.</source>
        <translation>Afgebroken. Er is niets gewijzigd.</translation>
    </message>
    <message>
        <source>There are no photos in the given folders.</source>
        <translation>Er staan geen foto’s in de opgegeven mappen.</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>Proberen</translation>
    </message>
    <message>
        <source>photos</source>
        <comment>of so many</comment>
        <translation>foto’s</translation>
    </message>
    <message>
        <source>Editing</source>
        <translation>Bewerken</translation>
    </message>
    <message>
        <source>upright</source>
        <translation>rechtop</translation>
    </message>
    <message>
        <source>mirrored</source>
        <translation>gespiegeld</translation>
    </message>
    <message>
        <source>upside down</source>
        <translation>ondersteboven</translation>
    </message>
    <message>
        <source>upside down, mirrored</source>
        <translation>ondersteboven, gespiegeld</translation>
    </message>
    <message>
        <source>turned left, mirrored</source>
        <translation>naar links gedraaid, gespiegeld</translation>
    </message>
    <message>
        <source>turned right</source>
        <translation>naar rechts gedraaid</translation>
    </message>
    <message>
        <source>turned right, mirrored</source>
        <translation>naar rechts gedraaid, gespiegeld</translation>
    </message>
    <message>
        <source>turned left</source>
        <translation>naar links gedraaid</translation>
    </message>
    <message>
        <source>no date</source>
        <translation>geen datum</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos would be edited. This was a dry run: nothing was changed.</source>
        <translation>
            <numerusform>%1 foto zou worden bewerkt. Dit was een proef: er is niets gewijzigd.</numerusform>
            <numerusform>%1 foto’s zouden worden bewerkt. Dit was een proef: er is niets gewijzigd.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>Er is niets gewijzigd.</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos edited; &quot;lumidex undo&quot; undoes it.</source>
        <translation>
            <numerusform>%1 foto bewerkt; ‘lumidex undo’ maakt dit ongedaan.</numerusform>
            <numerusform>%1 foto’s bewerkt; ‘lumidex undo’ maakt dit ongedaan.</numerusform>
        </translation>
    </message>
    <message>
        <source>Cannot be edited</source>
        <translation>Niet te bewerken</translation>
    </message>
    <message>
        <source>Not edited</source>
        <translation>Niet bewerkt</translation>
    </message>
    <message>
        <source>Comparing</source>
        <translation>Vergelijken</translation>
    </message>
    <message>
        <source>files</source>
        <comment>of so many</comment>
        <translation>bestanden</translation>
    </message>
    <message>
        <source>Copying</source>
        <translation>Kopiëren</translation>
    </message>
    <message>
        <source>Interrupted. The copies made so far are complete and verified; run the same command to copy the rest.</source>
        <translation>Afgebroken. De tot nu toe gemaakte kopieën zijn volledig en gecontroleerd; voer dezelfde opdracht uit om de rest te kopiëren.</translation>
    </message>
    <message>
        <source>Would be copied to %1:</source>
        <translation>Zouden worden gekopieerd naar %1:</translation>
    </message>
    <message>
        <source>Would be added to the catalogue without copying:</source>
        <translation>Zouden zonder kopiëren in de catalogus worden opgenomen:</translation>
    </message>
    <message>
        <source>Copies of one shot would get different names:</source>
        <translation>Kopieën van één opname zouden verschillende namen krijgen:</translation>
    </message>
    <message>
        <source>Not copied:</source>
        <translation>Niet gekopieerd:</translation>
    </message>
    <message>
        <source>Not added to the catalogue:</source>
        <translation>Niet opgenomen in de catalogus:</translation>
    </message>
    <message>
        <source>Skipped:</source>
        <translation>Overgeslagen:</translation>
    </message>
    <message numerus="yes">
        <source>and %1 more (--json lists them)</source>
        <translation>
            <numerusform>en nog %1 (--json somt ze op)</numerusform>
            <numerusform>en nog %1 (--json somt ze op)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos are in the catalogue already.</source>
        <translation>
            <numerusform>%1 foto staat al in de catalogus.</numerusform>
            <numerusform>%1 foto’s staan al in de catalogus.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files were copied before.</source>
        <translation>
            <numerusform>%1 bestand was al eerder gekopieerd.</numerusform>
            <numerusform>%1 bestanden waren al eerder gekopieerd.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos occur twice in the sources.</source>
        <translation>
            <numerusform>%1 foto komt dubbel voor in de bronnen.</numerusform>
            <numerusform>%1 foto’s komen dubbel voor in de bronnen.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was imported.</source>
        <translation>Er is niets geïmporteerd.</translation>
    </message>
    <message>
        <source>Nothing would be imported.</source>
        <translation>Er zou niets worden geïmporteerd.</translation>
    </message>
    <message numerus="yes">
        <source>%1 files (%2) would be copied</source>
        <translation>
            <numerusform>%1 bestand (%2) zou worden gekopieerd</numerusform>
            <numerusform>%1 bestanden (%2) zouden worden gekopieerd</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos added without copying.</source>
        <comment>would be</comment>
        <translation>
            <numerusform>%1 foto zou zonder kopiëren worden opgenomen.</numerusform>
            <numerusform>%1 foto’s zouden zonder kopiëren worden opgenomen.</numerusform>
        </translation>
    </message>
    <message>
        <source>This was a dry run:
nothing was changed.</source>
        <translation>Dit was een proef:
er is niets gewijzigd.</translation>
    </message>
    <message numerus="yes">
        <source>%1 files (%2) copied to %3 and verified.</source>
        <translation>
            <numerusform>%1 bestand (%2) gekopieerd naar %3 en gecontroleerd.</numerusform>
            <numerusform>%1 bestanden (%2) gekopieerd naar %3 en gecontroleerd.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos added to the catalogue.</source>
        <translation>
            <numerusform>%1 foto opgenomen in de catalogus.</numerusform>
            <numerusform>%1 foto’s opgenomen in de catalogus.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files were not copied; run the same command to try again.</source>
        <translation>
            <numerusform>%1 bestand is niet gekopieerd; voer dezelfde opdracht uit om het opnieuw te proberen.</numerusform>
            <numerusform>%1 bestanden zijn niet gekopieerd; voer dezelfde opdracht uit om het opnieuw te proberen.</numerusform>
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
        <translation>%1 wordt niet ondersteund; %2 wordt gebruikt.</translation>
    </message>
    <message>
        <source>%1 of %2 %3</source>
        <comment>done, all, what</comment>
        <translation>%1 van %2 %3</translation>
    </message>
    <message>
        <source>%1 of %2 %3 found so far</source>
        <comment>done, all, what</comment>
        <translation>%1 van tot nu toe %2 %3</translation>
    </message>
    <message>
        <source>%1 left</source>
        <comment>minutes and seconds</comment>
        <translation>nog %1</translation>
    </message>
    <message>
        <source>y yes</source>
        <comment>answers, all that mean it</comment>
        <translation>j ja</translation>
    </message>
    <message>
        <source>Interrupted. Nothing was renamed.</source>
        <translation>Afgebroken. Er is niets hernoemd.</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Lezen</translation>
    </message>
    <message>
        <source>Renaming</source>
        <translation>Hernoemen</translation>
    </message>
    <message>
        <source>Cannot be renamed:</source>
        <translation>Niet te hernoemen:</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos have no date; the times of their files are used.</source>
        <translation>
            <numerusform>%1 foto heeft geen datum; de tijd van het bestand wordt gebruikt.</numerusform>
            <numerusform>%1 foto’s hebben geen datum; de tijden van de bestanden worden gebruikt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files have their new names already.</source>
        <translation>
            <numerusform>%1 bestand heeft zijn nieuwe naam al.</numerusform>
            <numerusform>%1 bestanden hebben hun nieuwe naam al.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Nothing would be renamed: %1 of %2 photos cannot get their new names.
Add --skip-problems to rename the others.</source>
        <translation>
            <numerusform>Er zou niets worden hernoemd: de nieuwe naam kan niet bij %1 van %2 foto.
Met --skip-problems worden de andere hernoemd.</numerusform>
            <numerusform>Er zou niets worden hernoemd: de nieuwe naam kan niet bij %1 van %2 foto’s.
Met --skip-problems worden de andere hernoemd.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Nothing was renamed: %1 of %2 photos cannot get their new names.
Add --skip-problems to rename the others.</source>
        <translation>
            <numerusform>Er is niets hernoemd: de nieuwe naam kan niet bij %1 van %2 foto.
Met --skip-problems worden de andere hernoemd.</numerusform>
            <numerusform>Er is niets hernoemd: de nieuwe naam kan niet bij %1 van %2 foto’s.
Met --skip-problems worden de andere hernoemd.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to rename.</source>
        <translation>Niets te hernoemen.</translation>
    </message>
    <message numerus="yes">
        <source>%1 would be renamed. This was a dry run: nothing was changed.</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>%1 zou worden hernoemd. Dit was een proef: er is niets gewijzigd.</numerusform>
            <numerusform>%1 zouden worden hernoemd. Dit was een proef: er is niets gewijzigd.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was renamed.</source>
        <translation>Er is niets hernoemd.</translation>
    </message>
    <message numerus="yes">
        <source>%1 files could not get their old names back.</source>
        <translation>
            <numerusform>%1 bestand kon de oude naam niet terugkrijgen.</numerusform>
            <numerusform>%1 bestanden konden de oude naam niet terugkrijgen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 renamed; &quot;lumidex undo&quot; undoes it.</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>%1 hernoemd; ‘lumidex undo’ maakt dit ongedaan.</numerusform>
            <numerusform>%1 hernoemd; ‘lumidex undo’ maakt dit ongedaan.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 renamed.</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>%1 hernoemd.</numerusform>
            <numerusform>%1 hernoemd.</numerusform>
        </translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Problemen</translation>
    </message>
    <message>
        <source>Report: %1</source>
        <translation>Rapport: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 pictures could not be read; placeholders stand for them.</source>
        <translation>
            <numerusform>%1 afbeelding kon niet worden gelezen; een leeg vak staat ervoor in de plaats.</numerusform>
            <numerusform>%1 afbeeldingen konden niet worden gelezen; lege vakken staan ervoor in de plaats.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Made %1 photos in %2</source>
        <translation>
            <numerusform>%1 foto gemaakt in %2</numerusform>
            <numerusform>%1 foto’s gemaakt in %2</numerusform>
        </translation>
    </message>
    <message>
        <source>not an image</source>
        <translation>geen afbeelding</translation>
    </message>
    <message>
        <source>loop</source>
        <translation>lus</translation>
    </message>
    <message>
        <source>Not added:</source>
        <translation>Niet opgenomen:</translation>
    </message>
    <message numerus="yes">
        <source>%1 original</source>
        <comment>dates read</comment>
        <translation>
            <numerusform>%1 van de opname</numerusform>
            <numerusform>%1 van de opname</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 digitised</source>
        <comment>dates read</comment>
        <translation>
            <numerusform>%1 van de digitalisering</numerusform>
            <numerusform>%1 van de digitalisering</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 file time</source>
        <comment>dates read</comment>
        <translation>
            <numerusform>%1 van de bestandstijd</numerusform>
            <numerusform>%1 van de bestandstijd</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 none</source>
        <comment>dates read</comment>
        <translation>
            <numerusform>%1 zonder</numerusform>
            <numerusform>%1 zonder</numerusform>
        </translation>
    </message>
    <message>
        <source>Dates read: %1</source>
        <translation>Gelezen datums: %1</translation>
    </message>
    <message numerus="yes">
        <source>files found</source>
        <translation>
            <numerusform>bestand gevonden</numerusform>
            <numerusform>bestanden gevonden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>new</source>
        <comment>files</comment>
        <translation>
            <numerusform>nieuw</numerusform>
            <numerusform>nieuw</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>read again</source>
        <comment>files</comment>
        <translation>
            <numerusform>opnieuw gelezen</numerusform>
            <numerusform>opnieuw gelezen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>changed</source>
        <comment>files</comment>
        <translation>
            <numerusform>gewijzigd</numerusform>
            <numerusform>gewijzigd</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>unchanged</source>
        <comment>files</comment>
        <translation>
            <numerusform>ongewijzigd</numerusform>
            <numerusform>ongewijzigd</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>missing, now marked as lost</source>
        <comment>files</comment>
        <translation>
            <numerusform>ontbreekt, nu als verloren gemarkeerd</numerusform>
            <numerusform>ontbreken, nu als verloren gemarkeerd</numerusform>
        </translation>
    </message>
    <message>
        <source>This was a dry run: nothing was stored.</source>
        <translation>Dit was een proef: er is niets opgeslagen.</translation>
    </message>
    <message>
        <source>Catalogue: %1</source>
        <translation>Catalogus: %1</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>Inlezen</translation>
    </message>
    <message>
        <source>Interrupted. What was read so far is in the catalogue; run the same command to continue.</source>
        <translation>Afgebroken. Wat tot nu toe is gelezen, staat in de catalogus; voer dezelfde opdracht uit om door te gaan.</translation>
    </message>
    <message>
        <source>Analysing</source>
        <translation>Analyseren</translation>
    </message>
    <message>
        <source>Grouping</source>
        <translation>Groeperen</translation>
    </message>
    <message>
        <source>Measuring</source>
        <translation>Meten</translation>
    </message>
    <message>
        <source>Interrupted. What was moved is in the trash.</source>
        <translation>Afgebroken. Wat is verplaatst, ligt in de prullenbak.</translation>
    </message>
    <message>
        <source>Interrupted. Run the same command to continue.</source>
        <translation>Afgebroken. Voer dezelfde opdracht uit om door te gaan.</translation>
    </message>
    <message>
        <source>Interrupted. Nothing was moved.</source>
        <translation>Afgebroken. Er is niets verplaatst.</translation>
    </message>
    <message>
        <source>Move %1 to the trash? [y/N]</source>
        <translation>%1 naar de prullenbak verplaatsen? [j/N]</translation>
    </message>
    <message>
        <source>Moving</source>
        <translation>Verplaatsen</translation>
    </message>
    <message>
        <source>Keep %1</source>
        <comment>a file</comment>
        <translation>Te bewaren: %1</translation>
    </message>
    <message>
        <source>Keep %1: %2</source>
        <comment>a file: why</comment>
        <translation>Te bewaren: %1 (%2)</translation>
    </message>
    <message>
        <source>%1, %2, score %3</source>
        <comment>pixels, size, number</comment>
        <translation>%1, %2, gelijkenis %3</translation>
    </message>
    <message>
        <source>largest</source>
        <comment>photo</comment>
        <translation>grootste</translation>
    </message>
    <message>
        <source>sharpest</source>
        <comment>photo</comment>
        <translation>scherpste</translation>
    </message>
    <message>
        <source>has camera data</source>
        <translation>met cameragegevens</translation>
    </message>
    <message>
        <source>earliest</source>
        <comment>photo</comment>
        <translation>oudste</translation>
    </message>
    <message>
        <source>first by name</source>
        <translation>eerste op naam</translation>
    </message>
    <message>
        <source>Not compared:</source>
        <translation>Niet vergeleken:</translation>
    </message>
    <message numerus="yes">
        <source>No similar photos among %1 photos.</source>
        <translation>
            <numerusform>Geen gelijkende foto’s onder %1 foto.</numerusform>
            <numerusform>Geen gelijkende foto’s onder %1 foto’s.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 groups of similar photos</source>
        <translation>
            <numerusform>%1 groep gelijkende foto’s</numerusform>
            <numerusform>%1 groepen gelijkende foto’s</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>among %1 photos</source>
        <translation>
            <numerusform>onder %1 foto</numerusform>
            <numerusform>onder %1 foto’s</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos (%2) besides those to keep.</source>
        <translation>
            <numerusform>%1 foto (%2) naast die om te bewaren.</numerusform>
            <numerusform>%1 foto’s (%2) naast die om te bewaren.</numerusform>
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
        <translation>bewaren</translation>
    </message>
    <message>
        <source>trash</source>
        <comment>it goes there</comment>
        <translation>prullenbak</translation>
    </message>
    <message>
        <source>stay</source>
        <comment>a photo does</comment>
        <translation>blijft</translation>
    </message>
    <message numerus="yes">
        <source>Group %1, %2 photos:</source>
        <translation>
            <numerusform>Groep %1, %2 foto:</numerusform>
            <numerusform>Groep %1, %2 foto’s:</numerusform>
        </translation>
    </message>
    <message>
        <source>PHOTO</source>
        <translation>FOTO</translation>
    </message>
    <message>
        <source>TO ITS CENTRE</source>
        <translation>MET ZIJN MIDDEN</translation>
    </message>
    <message>
        <source>TO ITS OWN CENTRE</source>
        <translation>MET HET EIGEN MIDDEN</translation>
    </message>
    <message>
        <source>TO THE OTHER&apos;S</source>
        <translation>MET HET ANDERE</translation>
    </message>
    <message>
        <source>The photos score %1 against each other and are in one group.</source>
        <translation>De foto’s lijken voor %1 op elkaar en zitten in één groep.</translation>
    </message>
    <message>
        <source>The photos score %1 against each other and are in different groups.</source>
        <translation>De foto’s lijken voor %1 op elkaar en zitten in verschillende groepen.</translation>
    </message>
    <message>
        <source>A photo joins the first group whose centre scores above %1 against it. The centre is the
mean of the photos in the group at that time; later photos move it.</source>
        <translation>Een foto komt in de eerste groep waarvan het midden er voor meer dan %1 op lijkt. Het midden is
het gemiddelde van de foto’s die dan in de groep zitten; latere foto’s verschuiven het.</translation>
    </message>
    <message>
        <source>Matching all photos again gives the same groups.</source>
        <translation>Een nieuwe vergelijking van alle foto’s geeft dezelfde groepen.</translation>
    </message>
    <message>
        <source>&quot;lumidex similar --anew&quot; makes all groups again.</source>
        <translation>‘lumidex similar --anew’ vormt alle groepen opnieuw.</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos</source>
        <translation>
            <numerusform>%1 foto</numerusform>
            <numerusform>%1 foto’s</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (%2 files)</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>%1 (%2 bestand)</numerusform>
            <numerusform>%1 (%2 bestanden)</numerusform>
        </translation>
    </message>
    <message>
        <source>rename %1</source>
        <comment>so many photos</comment>
        <translation>%1 hernoemen</translation>
    </message>
    <message>
        <source>shift dates by %1</source>
        <translation>datums %1 verschuiven</translation>
    </message>
    <message>
        <source>set dates to %1</source>
        <translation>datums op %1 zetten</translation>
    </message>
    <message>
        <source>rotate left</source>
        <translation>naar links draaien</translation>
    </message>
    <message>
        <source>rotate right</source>
        <translation>naar rechts draaien</translation>
    </message>
    <message>
        <source>rotate 180</source>
        <translation>180° draaien</translation>
    </message>
    <message>
        <source>move similar photos to the trash</source>
        <translation>gelijkende foto’s naar de prullenbak verplaatsen</translation>
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
        <translation>Ja op alles</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nee</translation>
    </message>
    <message>
        <source>No to all</source>
        <translation>Nee op alles</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Opslaan</translation>
    </message>
    <message>
        <source>Save all</source>
        <translation>Alles opslaan</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Openen</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Opnieuw proberen</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Negeren</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Afbreken</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerpen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Toepassen</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Herstellen</translation>
    </message>
    <message>
        <source>Restore defaults</source>
        <translation>Standaardwaarden herstellen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Nothing to move to the trash.</source>
        <translation>Niets naar de prullenbak te verplaatsen.</translation>
    </message>
    <message numerus="yes">
        <source>%1 would be moved to the trash. This was a dry run: nothing was changed.</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>%1 zou naar de prullenbak worden verplaatst. Dit was een proef: er is niets gewijzigd.</numerusform>
            <numerusform>%1 zouden naar de prullenbak worden verplaatst. Dit was een proef: er is niets gewijzigd.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was moved.</source>
        <translation>Er is niets verplaatst.</translation>
    </message>
    <message numerus="yes">
        <source>%1 moved to the trash; &quot;lumidex undo&quot; brings back what is still there.</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>%1 naar de prullenbak verplaatst; ‘lumidex undo’ haalt terug wat er nog ligt.</numerusform>
            <numerusform>%1 naar de prullenbak verplaatst; ‘lumidex undo’ haalt terug wat er nog ligt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 moved to the trash.</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>%1 naar de prullenbak verplaatst.</numerusform>
            <numerusform>%1 naar de prullenbak verplaatst.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>%1 bestand</numerusform>
            <numerusform>%1 bestanden</numerusform>
        </translation>
    </message>
    <message>
        <source>Not moved:</source>
        <translation>Niet verplaatst:</translation>
    </message>
    <message>
        <source>Left where they are</source>
        <translation>Op hun plaats gelaten</translation>
    </message>
    <message>
        <source>Redoing</source>
        <translation>Opnieuw uitvoeren</translation>
    </message>
    <message>
        <source>Undoing</source>
        <translation>Ongedaan maken</translation>
    </message>
    <message>
        <source>Interrupted. What was done so far stays done.</source>
        <translation>Afgebroken. Wat tot nu toe is gedaan, blijft gedaan.</translation>
    </message>
    <message numerus="yes">
        <source>Only %1 of the %2 steps that you asked for.</source>
        <translation>
            <numerusform>Slechts %1 van de %2 gevraagde stappen.</numerusform>
            <numerusform>Slechts %1 van de %2 gevraagde stappen.</numerusform>
        </translation>
    </message>
    <message>
        <source>The setting %1 is invalid (%2); the default is used.</source>
        <translation>De instelling %1 is ongeldig (%2); de standaardwaarde wordt gebruikt.</translation>
    </message>
    <message>
        <source>undone</source>
        <comment>a step</comment>
        <translation>ongedaan gemaakt</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>Er is niets ongedaan te maken.</translation>
    </message>
    <message>
        <source>WHAT</source>
        <translation>WAT</translation>
    </message>
    <message>
        <source>FILES</source>
        <translation>BESTANDEN</translation>
    </message>
    <message>
        <source>KEPT</source>
        <comment>so many bytes</comment>
        <translation>BEWAARD</translation>
    </message>
    <message>
        <source>Left as they are</source>
        <translation>Gelaten zoals ze zijn</translation>
    </message>
    <message>
        <source>Nothing of &quot;%1&quot; was redone.</source>
        <translation>Van ‘%1’ is niets opnieuw gedaan.</translation>
    </message>
    <message>
        <source>Nothing of &quot;%1&quot; was undone.</source>
        <translation>Van ‘%1’ is niets ongedaan gemaakt.</translation>
    </message>
    <message>
        <source>Redone: %1.</source>
        <translation>Opnieuw gedaan: %1.</translation>
    </message>
    <message>
        <source>Undone: %1.</source>
        <translation>Ongedaan gemaakt: %1.</translation>
    </message>
    <message numerus="yes">
        <source>Redone: %1, except for %2 files.</source>
        <translation>
            <numerusform>Opnieuw gedaan: %1, op %2 bestand na.</numerusform>
            <numerusform>Opnieuw gedaan: %1, op %2 bestanden na.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Undone: %1, except for %2 files.</source>
        <translation>
            <numerusform>Ongedaan gemaakt: %1, op %2 bestand na.</numerusform>
            <numerusform>Ongedaan gemaakt: %1, op %2 bestanden na.</numerusform>
        </translation>
    </message>
    <message>
        <source>Older steps cannot be undone before this one; &quot;lumidex undo --skip&quot; skips it for good.</source>
        <translation>Oudere stappen kunnen niet vóór deze ongedaan worden gemaakt; ‘lumidex undo --skip’ slaat deze voorgoed over.</translation>
    </message>
    <message>
        <source>There is nothing to skip.</source>
        <translation>Er is niets over te slaan.</translation>
    </message>
    <message>
        <source>Skipped: %1.</source>
        <translation>Overgeslagen: %1.</translation>
    </message>
    <message>
        <source>Its originals (%1) are kept until they exceed the limits of undo.</source>
        <translation>De originelen ervan (%1) blijven bewaard tot ze de grenzen van ‘undo’ overschrijden.</translation>
    </message>
    <message numerus="yes">
        <source>%1 older steps cannot be undone any more.</source>
        <translation>
            <numerusform>%1 oudere stap kan niet meer ongedaan worden gemaakt.</numerusform>
            <numerusform>%1 oudere stappen kunnen niet meer ongedaan worden gemaakt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Steps can be undone for %1 days of use, with up to %2 of originals.</source>
        <translation>
            <numerusform>Stappen kunnen %1 gebruiksdag lang ongedaan worden gemaakt, met hoogstens %2 aan originelen.</numerusform>
            <numerusform>Stappen kunnen %1 gebruiksdagen lang ongedaan worden gemaakt, met hoogstens %2 aan originelen.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>Er is niets opnieuw te doen.</translation>
    </message>
    <message>
        <source>Copies would share names with files of other shots:</source>
        <translation>Kopieën zouden een naam delen met bestanden van andere opnamen:</translation>
    </message>
    <message>
        <source>file time</source>
        <comment>where a date is from</comment>
        <translation>bestandstijd</translation>
    </message>
    <message numerus="yes">
        <source>%1 frames</source>
        <translation>
            <numerusform>%1 beeld</numerusform>
            <numerusform>%1 beelden</numerusform>
        </translation>
    </message>
    <message>
        <source>DATE</source>
        <translation>DATUM</translation>
    </message>
    <message>
        <source>FROM</source>
        <translation>BRON</translation>
    </message>
    <message>
        <source>CAMERA</source>
        <translation>CAMERA</translation>
    </message>
    <message>
        <source>POSITION</source>
        <translation>POSITIE</translation>
    </message>
    <message>
        <source>PICTURE</source>
        <translation>AFBEELDING</translation>
    </message>
    <message>
        <source>ORIENTATION</source>
        <translation>ORIËNTATIE</translation>
    </message>
    <message>
        <source>SIZE</source>
        <translation>GROOTTE</translation>
    </message>
    <message>
        <source>Doubtful positions:</source>
        <translation>Twijfelachtige posities:</translation>
    </message>
    <message>
        <source>Not read</source>
        <translation>Niet gelezen</translation>
    </message>
    <message>
        <source>TAKEN</source>
        <translation>GENOMEN</translation>
    </message>
    <message>
        <source>TAGS</source>
        <translation>TAGS</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>BESTAND</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 photos.</source>
        <comment>found, searched</comment>
        <translation>
            <numerusform>%1 van %2 foto.</numerusform>
            <numerusform>%1 van %2 foto’s.</numerusform>
        </translation>
    </message>
    <message>
        <source>Statistics are on.</source>
        <translation>De statistieken staan aan.</translation>
    </message>
    <message>
        <source>Statistics are off.</source>
        <translation>De statistieken staan uit.</translation>
    </message>
    <message>
        <source>File: %1</source>
        <translation>Bestand: %1</translation>
    </message>
    <message>
        <source>DAY</source>
        <translation>DAG</translation>
    </message>
    <message>
        <source>COMMAND</source>
        <translation>OPDRACHT</translation>
    </message>
    <message>
        <source>DETAILS</source>
        <translation>DETAILS</translation>
    </message>
    <message numerus="yes">
        <source>Statistics are on; %1 lines.</source>
        <translation>
            <numerusform>De statistieken staan aan; %1 regel.</numerusform>
            <numerusform>De statistieken staan aan; %1 regels.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Statistics are off; %1 lines.</source>
        <translation>
            <numerusform>De statistieken staan uit; %1 regel.</numerusform>
            <numerusform>De statistieken staan uit; %1 regels.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 lines of the statistics cannot be read.</source>
        <translation>
            <numerusform>%1 regel van de statistieken is onleesbaar.</numerusform>
            <numerusform>%1 regels van de statistieken zijn onleesbaar.</numerusform>
        </translation>
    </message>
    <message>
        <source>The statistics are deleted.</source>
        <translation>De statistieken zijn verwijderd.</translation>
    </message>
    <message>
        <source>tag %1</source>
        <comment>+one -another</comment>
        <translation>tags: %1</translation>
    </message>
    <message>
        <source>No photo has the tag &quot;%1&quot;.</source>
        <translation>Geen foto heeft de tag ‘%1’.</translation>
    </message>
    <message>
        <source>system</source>
        <comment>kind of tag</comment>
        <translation>systeem</translation>
    </message>
    <message>
        <source>icon</source>
        <comment>kind of tag</comment>
        <translation>pictogram</translation>
    </message>
    <message>
        <source>automatic</source>
        <comment>kind of tag</comment>
        <translation>automatisch</translation>
    </message>
    <message>
        <source>own</source>
        <comment>kind of tag</comment>
        <translation>eigen</translation>
    </message>
    <message>
        <source>No photo has a tag yet. Run: lumidex tag FILE +TAG</source>
        <translation>Nog geen foto heeft een tag. Voer uit: lumidex tag BESTAND +TAG</translation>
    </message>
    <message>
        <source>TAG</source>
        <translation>TAG</translation>
    </message>
    <message>
        <source>TYPE</source>
        <translation>SOORT</translation>
    </message>
    <message>
        <source>Not in the list</source>
        <translation>Niet in de lijst</translation>
    </message>
    <message>
        <source>Not tagged</source>
        <translation>Niet getagd</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos changed; &quot;lumidex undo&quot; undoes it.</source>
        <translation>
            <numerusform>%1 foto gewijzigd; ‘lumidex undo’ maakt dit ongedaan.</numerusform>
            <numerusform>%1 foto’s gewijzigd; ‘lumidex undo’ maakt dit ongedaan.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos changed.</source>
        <translation>
            <numerusform>%1 foto gewijzigd.</numerusform>
            <numerusform>%1 foto’s gewijzigd.</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;lumidex undo&quot; undoes it.</source>
        <translation>‘lumidex undo’ maakt dit ongedaan.</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos were left out, because they have no date but the times of their files. To include them, run: lumidex albums --file-times</source>
        <translation>
            <numerusform>%1 foto is weggelaten, omdat deze geen andere datum heeft dan de tijd van het bestand. Voer uit om deze op te nemen: lumidex albums --file-times</numerusform>
            <numerusform>%1 foto’s zijn weggelaten, omdat ze geen andere datum hebben dan de tijd van hun bestanden. Voer uit om ze op te nemen: lumidex albums --file-times</numerusform>
        </translation>
    </message>
    <message>
        <source>Refused by %1</source>
        <comment>commands</comment>
        <translation>Geweigerd door %1</translation>
    </message>
    <message>
        <source>If all these photos are edited at once:</source>
        <translation>Als al deze foto’s tegelijk worden bewerkt:</translation>
    </message>
    <message>
        <source>its sidecar</source>
        <translation>het sidecarbestand ervan</translation>
    </message>
    <message numerus="yes">
        <source>%1 sidecars would be edited along with them.</source>
        <translation>
            <numerusform>%1 sidecarbestand zou mee worden bewerkt.</numerusform>
            <numerusform>%1 sidecarbestanden zouden mee worden bewerkt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 sidecars edited along with them.</source>
        <translation>
            <numerusform>%1 sidecarbestand mee bewerkt.</numerusform>
            <numerusform>%1 sidecarbestanden mee bewerkt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos edited; it cannot be undone.</source>
        <translation>
            <numerusform>%1 foto bewerkt; dit kan niet ongedaan worden gemaakt.</numerusform>
            <numerusform>%1 foto’s bewerkt; dit kan niet ongedaan worden gemaakt.</numerusform>
        </translation>
    </message>
    <message>
        <source>There are no photos or videos in the given folders.</source>
        <translation>Er staan geen foto’s of video’s in de opgegeven mappen.</translation>
    </message>
    <message>
        <source>It is hidden</source>
        <translation>Het is verborgen</translation>
    </message>
    <message>
        <source>It is not a photo, a video or a file that belongs to one</source>
        <translation>Het is geen foto of video en hoort er ook niet bij</translation>
    </message>
    <message>
        <source>&quot;lumidex undo&quot; moves the copies of this run to the trash.</source>
        <translation>‘lumidex undo’ verplaatst de kopieën van deze keer naar de prullenbak.</translation>
    </message>
    <message numerus="yes">
        <source>%1 files are not copied, as you chose; they stay where they are.</source>
        <translation>
            <numerusform>%1 bestand wordt zoals gevraagd niet gekopieerd: het blijft waar het is.</numerusform>
            <numerusform>%1 bestanden worden zoals gevraagd niet gekopieerd: ze blijven waar ze zijn.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files are not copied, because they are not on removable storage; &quot;--to DIR&quot; copies them.</source>
        <translation>
            <numerusform>%1 bestand wordt niet gekopieerd, omdat het niet op verwisselbare opslag staat; ‘--to MAP’ kopieert het.</numerusform>
            <numerusform>%1 bestanden worden niet gekopieerd, omdat ze niet op verwisselbare opslag staan; ‘--to MAP’ kopieert ze.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of them are videos, which the catalogue does not hold.</source>
        <translation>
            <numerusform>%1 ervan is een video, die de catalogus niet opneemt.</numerusform>
            <numerusform>%1 ervan zijn video’s, die de catalogus niet opneemt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 housekeeping files of cameras and systems are not copied.</source>
        <translation>
            <numerusform>%1 beheerbestand van camera’s en systemen wordt niet gekopieerd.</numerusform>
            <numerusform>%1 beheerbestanden van camera’s en systemen worden niet gekopieerd.</numerusform>
        </translation>
    </message>
    <message>
        <source>Not everything in %1 is copied: do not format or empty it yet.</source>
        <translation>Niet alles uit %1 is gekopieerd: nog niet formatteren of leegmaken.</translation>
    </message>
    <message>
        <source>Copies are in %1 itself: do not format or empty it.</source>
        <translation>Er staan kopieën in %1 zelf: niet formatteren of leegmaken.</translation>
    </message>
    <message numerus="yes">
        <source>%1 steps cannot be undone any more, because more than %2 days of use have passed.</source>
        <translation>
            <numerusform>%1 stap kan niet meer ongedaan worden gemaakt, omdat meer dan %2 gebruiksdagen zijn verstreken.</numerusform>
            <numerusform>%1 stappen kunnen niet meer ongedaan worden gemaakt, omdat meer dan %2 gebruiksdagen zijn verstreken.</numerusform>
        </translation>
    </message>
    <message>
        <source>Links that lead to the new names:</source>
        <translation>Koppelingen die naar de nieuwe namen leiden:</translation>
    </message>
    <message numerus="yes">
        <source>%1 symbolic links lead to the new names.</source>
        <translation>
            <numerusform>%1 symbolische koppeling leidt naar de nieuwe naam.</numerusform>
            <numerusform>%1 symbolische koppelingen leiden naar de nieuwe namen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 symbolic links keep their names.</source>
        <translation>
            <numerusform>%1 symbolische koppeling behoudt de naam.</numerusform>
            <numerusform>%1 symbolische koppelingen behouden hun naam.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 and %2 more</source>
        <comment>files</comment>
        <translation>
            <numerusform>%1 en nog %2</numerusform>
            <numerusform>%1 en nog %2</numerusform>
        </translation>
    </message>
    <message>
        <source>These may be photos that were moved, but several files or photos come into question.
The photos keep their tags and albums, the files are new:</source>
        <translation>Dit kunnen verplaatste foto’s zijn, maar er komen meer bestanden of foto’s in aanmerking.
De foto’s houden hun tags en albums, de bestanden zijn nieuw:</translation>
    </message>
    <message numerus="yes">
        <source>%1 XMP</source>
        <comment>dates read</comment>
        <translation>
            <numerusform>%1 uit XMP</numerusform>
            <numerusform>%1 uit XMP</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 IPTC</source>
        <comment>dates read</comment>
        <translation>
            <numerusform>%1 uit IPTC</numerusform>
            <numerusform>%1 uit IPTC</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>moved or renamed</source>
        <comment>files</comment>
        <translation>
            <numerusform>verplaatst of hernoemd</numerusform>
            <numerusform>verplaatst of hernoemd</numerusform>
        </translation>
    </message>
    <message>
        <source>Keep this one</source>
        <comment>a photo</comment>
        <translation>Deze bewaren</translation>
    </message>
    <message>
        <source>Same picture</source>
        <translation>Dezelfde afbeelding</translation>
    </message>
    <message>
        <source>Alike</source>
        <comment>a photo</comment>
        <translation>Gelijkend</translation>
    </message>
    <message>
        <source>Different</source>
        <comment>a photo</comment>
        <translation>Verschillend</translation>
    </message>
    <message>
        <source>Could not be compared</source>
        <comment>a photo</comment>
        <translation>Kon niet worden vergeleken</translation>
    </message>
    <message numerus="yes">
        <source>Group %1: %2 photos like %3</source>
        <translation>
            <numerusform>Groep %1: %2 foto zoals %3</numerusform>
            <numerusform>Groep %1: %2 foto’s zoals %3</numerusform>
        </translation>
    </message>
    <message>
        <source>undamaged</source>
        <comment>photo</comment>
        <translation>onbeschadigd</translation>
    </message>
    <message>
        <source>the camera&apos;s own file</source>
        <translation>het eigen bestand van de camera</translation>
    </message>
    <message>
        <source>has maker notes</source>
        <translation>met notities van de fabrikant</translation>
    </message>
    <message>
        <source>not written by another program</source>
        <translation>niet door een ander programma geschreven</translation>
    </message>
    <message>
        <source>compressed less</source>
        <translation>minder gecomprimeerd</translation>
    </message>
    <message>
        <source>more bytes per pixel</source>
        <translation>meer bytes per pixel</translation>
    </message>
    <message>
        <source>named by the camera</source>
        <translation>met de naam van de camera</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos cannot be compared, as before; &quot;lumidex similar --not-compared&quot; lists them.</source>
        <translation>
            <numerusform>%1 foto kan nog steeds niet worden vergeleken; ‘lumidex similar --not-compared’ somt deze op.</numerusform>
            <numerusform>%1 foto’s kunnen nog steeds niet worden vergeleken; ‘lumidex similar --not-compared’ somt ze op.</numerusform>
        </translation>
    </message>
    <message>
        <source>They are the same picture.</source>
        <translation>Het is dezelfde afbeelding.</translation>
    </message>
    <message>
        <source>They are alike, and not the same picture.</source>
        <translation>Ze lijken op elkaar, maar zijn niet dezelfde afbeelding.</translation>
    </message>
    <message>
        <source>They are different pictures.</source>
        <translation>Het zijn verschillende afbeeldingen.</translation>
    </message>
    <message>
        <source>Their pictures could not be compared.</source>
        <translation>Hun afbeeldingen konden niet worden vergeleken.</translation>
    </message>
    <message>
        <source>same</source>
        <comment>a picture</comment>
        <translation>dezelfde</translation>
    </message>
    <message>
        <source>alike</source>
        <comment>a picture</comment>
        <translation>gelijkend</translation>
    </message>
    <message>
        <source>different</source>
        <comment>a picture</comment>
        <translation>verschillend</translation>
    </message>
    <message>
        <source>unknown</source>
        <comment>a verdict</comment>
        <translation>onbekend</translation>
    </message>
    <message>
        <source>GROUP</source>
        <translation>GROEP</translation>
    </message>
    <message>
        <source>VERDICT</source>
        <translation>OORDEEL</translation>
    </message>
    <message>
        <source>To undo the edit, %1 of originals must be kept, but the limit is %2.</source>
        <translation>Om de bewerking ongedaan te kunnen maken moet %1 aan originelen worden bewaard, maar de grens is %2.</translation>
    </message>
    <message>
        <source>&quot;lumidex undo --keep-size %1&quot; raises the limit; with --no-undo nothing is kept, and the edit cannot be undone.</source>
        <translation>‘lumidex undo --keep-size %1’ verhoogt de grens; met --no-undo wordt niets bewaard en kan de bewerking niet ongedaan worden gemaakt.</translation>
    </message>
    <message numerus="yes">
        <source>To keep %1 of originals within the limit of %2, undo would have to forget %3 older steps:</source>
        <translation>
            <numerusform>Om %1 aan originelen binnen de grens van %2 te bewaren, zou %3 oudere stap moeten worden vergeten:</numerusform>
            <numerusform>Om %1 aan originelen binnen de grens van %2 te bewaren, zouden %3 oudere stappen moeten worden vergeten:</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>To keep %1 of originals within the limit of %2, undo forgets %3 older steps:</source>
        <translation>
            <numerusform>Om %1 aan originelen binnen de grens van %2 te bewaren, wordt %3 oudere stap vergeten:</numerusform>
            <numerusform>Om %1 aan originelen binnen de grens van %2 te bewaren, worden %3 oudere stappen vergeten:</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;lumidex undo --keep-size %1&quot; makes room for all of them.</source>
        <translation>‘lumidex undo --keep-size %1’ maakt ruimte voor alle.</translation>
    </message>
    <message>
        <source>--forget-older allows it.</source>
        <translation>--forget-older staat dit toe.</translation>
    </message>
    <message>
        <source>Forget them and continue? [y/N]</source>
        <translation>Deze vergeten en doorgaan? [j/N]</translation>
    </message>
    <message>
        <source>No originals would be kept, so the edit could not be undone.</source>
        <translation>Er zouden geen originelen worden bewaard, dus de bewerking zou niet ongedaan kunnen worden gemaakt.</translation>
    </message>
    <message>
        <source>The edit would be refused.</source>
        <translation>De bewerking zou worden geweigerd.</translation>
    </message>
    <message numerus="yes">
        <source>import %1 files to %2</source>
        <translation>
            <numerusform>%1 bestand importeren naar %2</numerusform>
            <numerusform>%1 bestanden importeren naar %2</numerusform>
        </translation>
    </message>
    <message>
        <source>accept album %1</source>
        <translation>album %1 accepteren</translation>
    </message>
    <message numerus="yes">
        <source>accept %1 albums</source>
        <translation>
            <numerusform>%1 album accepteren</numerusform>
            <numerusform>%1 albums accepteren</numerusform>
        </translation>
    </message>
    <message>
        <source>alike to %1</source>
        <comment>a photo is; a file</comment>
        <translation>lijkt op %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos are alike and not the same picture; they stay unless --alike is given.</source>
        <translation>
            <numerusform>%1 foto is alleen gelijkend en niet dezelfde afbeelding; deze blijft, tenzij u --alike opgeeft.</numerusform>
            <numerusform>%1 foto’s zijn alleen gelijkend en niet dezelfde afbeelding; ze blijven, tenzij u --alike opgeeft.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Move %1 to the trash, %2 of which are only alike? [y/N]</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>%1 naar de prullenbak verplaatsen, waarvan %2 alleen gelijkend? [j/N]</numerusform>
            <numerusform>%1 naar de prullenbak verplaatsen, waarvan %2 alleen gelijkend? [j/N]</numerusform>
        </translation>
    </message>
    <message>
        <source>Undo without keeping what redo needs? [y/N]</source>
        <translation>Ongedaan maken zonder te bewaren wat nodig is om het opnieuw te doen? [j/N]</translation>
    </message>
    <message numerus="yes">
        <source>%1 copies are in the trash now.</source>
        <translation>
            <numerusform>%1 kopie ligt nu in de prullenbak.</numerusform>
            <numerusform>%1 kopieën liggen nu in de prullenbak.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no room to keep what redo needs; &quot;lumidex undo --no-redo&quot; undoes without it.</source>
        <translation>Er is geen ruimte om te bewaren wat nodig is om het opnieuw te doen; ‘lumidex undo --no-redo’ doet het zonder.</translation>
    </message>
    <message numerus="yes">
        <source>Undo of &quot;%1&quot; (%2) will leave %3 files as they are, because this step changed them later:</source>
        <translation>
            <numerusform>Het ongedaan maken van ‘%1’ (%2) zal %3 bestand laten zoals het is, want deze stap heeft het sindsdien gewijzigd:</numerusform>
            <numerusform>Het ongedaan maken van ‘%1’ (%2) zal %3 bestanden laten zoals ze zijn, want deze stap heeft ze sindsdien gewijzigd:</numerusform>
        </translation>
    </message>
    <message>
        <source>unknown</source>
        <comment>a date</comment>
        <translation>onbekend</translation>
    </message>
    <message numerus="yes">
        <source>%1 files or folders would be refused.</source>
        <translation>
            <numerusform>%1 bestand of map zou worden geweigerd.</numerusform>
            <numerusform>%1 bestanden of mappen zouden worden geweigerd.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>An import skips %1 other files (--json lists them).</source>
        <translation>
            <numerusform>Een import slaat %1 ander bestand over (--json somt het op).</numerusform>
            <numerusform>Een import slaat %1 andere bestanden over (--json somt ze op).</numerusform>
        </translation>
    </message>
    <message>
        <source>Every file in %1 has a verified copy elsewhere.</source>
        <translation>Elk bestand in %1 heeft elders een gecontroleerde kopie.</translation>
    </message>
    <message>
        <source>Every file in %1, except for housekeeping files, has a verified copy elsewhere.</source>
        <translation>Elk bestand in %1, behalve de beheerbestanden, heeft elders een gecontroleerde kopie.</translation>
    </message>
    <message>
        <source>It is safe to format.</source>
        <translation>Formatteren is veilig.</translation>
    </message>
    <message>
        <source>It is safe to format as far as this folder is concerned; what is outside it was not checked.</source>
        <translation>Wat deze map betreft is formatteren veilig; wat erbuiten staat, is niet gecontroleerd.</translation>
    </message>
    <message>
        <source>not enlarged</source>
        <translation>niet vergroot</translation>
    </message>
    <message>
        <source>The disk of %1 has %2 free, but editing all photos needs %3: the last ones would not be edited.</source>
        <translation>De schijf van %1 heeft %2 vrij, maar het bewerken van alle foto’s vergt %3: de laatste zouden niet worden bewerkt.</translation>
    </message>
    <message numerus="yes">
        <source>The sources of %1 of them are gone or changed: do not empty the trash before you have another copy.</source>
        <translation>
            <numerusform>Van %1 ervan is de bron verdwenen of gewijzigd: maak de prullenbak niet leeg voordat u een andere kopie hebt.</numerusform>
            <numerusform>Van %1 ervan zijn de bronnen verdwenen of gewijzigd: maak de prullenbak niet leeg voordat u andere kopieën hebt.</numerusform>
        </translation>
    </message>
    <message>
        <source>Interrupted. The photos edited so far stay edited.</source>
        <translation>Afgebroken. De tot nu toe bewerkte foto’s blijven bewerkt.</translation>
    </message>
    <message>
        <source>Interrupted. The photos made so far stay; delete the folder before you try again.</source>
        <translation>Afgebroken. De tot nu toe gemaakte foto’s blijven staan; verwijder de map voordat u het opnieuw probeert.</translation>
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
            <numerusform>%1 van %2 foto, genomen op %3.</numerusform>
            <numerusform>%1 van %2 foto’s, genomen op %3.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 photos, taken from %3 to %4.</source>
        <comment>found, searched, dates</comment>
        <translation>
            <numerusform>%1 van %2 foto, genomen van %3 tot en met %4.</numerusform>
            <numerusform>%1 van %2 foto’s, genomen van %3 tot en met %4.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 photos, taken on %3 or later.</source>
        <comment>found, searched, date</comment>
        <translation>
            <numerusform>%1 van %2 foto, genomen op %3 of later.</numerusform>
            <numerusform>%1 van %2 foto’s, genomen op %3 of later.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 photos, taken on %3 or earlier.</source>
        <comment>found, searched, date</comment>
        <translation>
            <numerusform>%1 van %2 foto, genomen op %3 of eerder.</numerusform>
            <numerusform>%1 van %2 foto’s, genomen op %3 of eerder.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of them (%2) are the same picture as the photo to keep; &quot;lumidex similar --trash&quot; moves them to the trash.</source>
        <translation>
            <numerusform>%1 ervan (%2) is dezelfde afbeelding als de foto om te bewaren; ‘lumidex similar --trash’ verplaatst deze naar de prullenbak.</numerusform>
            <numerusform>%1 ervan (%2) zijn dezelfde afbeelding als de foto om te bewaren; ‘lumidex similar --trash’ verplaatst ze naar de prullenbak.</numerusform>
        </translation>
    </message>
    <message>
        <source>Not the same picture as the photo to keep, only alike:</source>
        <translation>Niet dezelfde afbeelding als de foto om te bewaren, alleen gelijkend:</translation>
    </message>
    <message>
        <source>cannot be undone</source>
        <comment>a step</comment>
        <translation>niet meer ongedaan te maken</translation>
    </message>
    <message>
        <source>running</source>
        <comment>a step</comment>
        <translation>loopt nog</translation>
    </message>
    <message>
        <source>WHEN</source>
        <comment>a step</comment>
        <translation>TIJDSTIP</translation>
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
            <numerusform>zou de naam van %1 foto zijn: %2</numerusform>
            <numerusform>zou de naam van %1 foto’s zijn: %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Within these limits, undo would have to forget %1 older steps:</source>
        <translation>
            <numerusform>Binnen deze grenzen zou %1 oudere stap moeten worden vergeten:</numerusform>
            <numerusform>Binnen deze grenzen zouden %1 oudere stappen moeten worden vergeten:</numerusform>
        </translation>
    </message>
    <message>
        <source>Whether a photo goes to the trash also depends on the one that is kept of its group, and on tags, albums, settings and second names; &quot;lumidex similar --trash --dry-run&quot; tells.</source>
        <translation>Of een foto naar de prullenbak gaat, hangt ook af van de foto die van de groep bewaard blijft, en van tags, albums, instellingen en andere namen van het bestand; ‘lumidex similar --trash --dry-run’ toont het.</translation>
    </message>
</context>
<context>
    <name>Zenvora::Lumidex::Utils</name>
    <message>
        <source>Attention</source>
        <translation>Let op</translation>
    </message>
    <message>
        <source>All of the selected files do not have read permissions, they will not be added.</source>
        <translation>Geen van de geselecteerde bestanden heeft leesrechten; ze worden niet toegevoegd.</translation>
    </message>
    <message>
        <source>Some of the selected files do not have read permissions, they will not be added.</source>
        <translation>Sommige van de geselecteerde bestanden hebben geen leesrechten; ze worden niet toegevoegd.</translation>
    </message>
    <message>
        <source>Some of the selected photos are on removable storage. Would you like copy they to your hard drive?</source>
        <translation>Sommige van de geselecteerde foto’s staan op verwisselbare opslag. Wilt u ze naar de harde schijf kopiëren?</translation>
    </message>
    <message>
        <source>The selected directory is temporary, select another directory.</source>
        <translation>De geselecteerde map is tijdelijk. Kies een andere map.</translation>
    </message>
    <message>
        <source>Some of the selected photos are in read-only formats (for example, %1). They will be converted to JPG or PNG after applying the tool.</source>
        <translation>Sommige van de geselecteerde foto’s hebben een alleen-lezen formaat (bijvoorbeeld %1). Na toepassing van het hulpmiddel worden ze geconverteerd naar JPG of PNG.</translation>
    </message>
    <message>
        <source>The selected photo is in read-only formats (%1). It will be converted to JPG or PNG after applying the tool.</source>
        <translation>De geselecteerde foto heeft een alleen-lezen formaat (%1). Na toepassing van het hulpmiddel wordt deze geconverteerd naar JPG of PNG.</translation>
    </message>
    <message>
        <source>There is not enough space on the disk %1</source>
        <translation>Er is niet genoeg ruimte op de schijf %1</translation>
    </message>
    <message>
        <source>You do not have permission to edit files in this folder: %1</source>
        <translation>Geen toestemming om bestanden in deze map te bewerken: %1</translation>
    </message>
    <message>
        <source>You do not have permission to edit file: %1</source>
        <translation>Geen toestemming om dit bestand te bewerken: %1</translation>
    </message>
    <message>
        <source>day</source>
        <translation>dag</translation>
    </message>
    <message>
        <source>days</source>
        <translation>dagen</translation>
    </message>
    <message>
        <source>Expired</source>
        <translation>Verlopen</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>One day</source>
        <translation>dag</translation>
    </message>
    <message>
        <source>Nominative day</source>
        <translation>dagen</translation>
    </message>
    <message>
        <source>Genetive day</source>
        <translation>dagen</translation>
    </message>
    <message>
        <source>Plural day</source>
        <translation>dagen</translation>
    </message>
    <message>
        <source>One album</source>
        <translation>album</translation>
    </message>
    <message>
        <source>Nominative album</source>
        <translation>albums</translation>
    </message>
    <message>
        <source>Genetive album</source>
        <translation>albums</translation>
    </message>
    <message>
        <source>Plural album</source>
        <translation>albums</translation>
    </message>
    <message>
        <source>album</source>
        <translation>album</translation>
    </message>
    <message>
        <source>albums</source>
        <translation>albums</translation>
    </message>
    <message>
        <source>One group</source>
        <translation>groep</translation>
    </message>
    <message>
        <source>Nominative group</source>
        <translation>groepen</translation>
    </message>
    <message>
        <source>Genetive group</source>
        <translation>groepen</translation>
    </message>
    <message>
        <source>Plural group</source>
        <translation>groepen</translation>
    </message>
    <message>
        <source>group</source>
        <translation>groep</translation>
    </message>
    <message>
        <source>groups</source>
        <translation>groepen</translation>
    </message>
    <message>
        <source>One photo</source>
        <translation>foto</translation>
    </message>
    <message>
        <source>Nominative photo</source>
        <translation>foto’s</translation>
    </message>
    <message>
        <source>Genetive photo</source>
        <translation>foto’s</translation>
    </message>
    <message>
        <source>Plural photo</source>
        <translation>foto’s</translation>
    </message>
    <message>
        <source>photo</source>
        <translation>foto</translation>
    </message>
    <message>
        <source>photos</source>
        <translation>foto’s</translation>
    </message>
</context>
</TS>
