<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
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
        <translation>Impossible de modifier %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Cannot rename %1: %2</source>
        <translation>Impossible de renommer %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Cannot rename %1 to %2: %3</source>
        <translation>Impossible de renommer %1 en %2&#xa0;: %3</translation>
    </message>
    <message>
        <source>Cannot read %1: %2</source>
        <translation>Impossible de lire %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>Impossible d’écrire %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>impossible d’écrire %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>its folder cannot be written to; change the permissions of %1</source>
        <translation>il est impossible d’écrire dans son dossier&#xa0;; changez les droits de %1</translation>
    </message>
    <message>
        <source>its folder lets only its owner change it; change the owner, or the permissions of %1</source>
        <translation>son dossier n’accepte de changements que de son propriétaire&#xa0;; changez le propriétaire ou les droits de %1</translation>
    </message>
    <message>
        <source>its disk has no room for a new version of it (%1 bytes are needed, %2 are free); free space there</source>
        <translation>il n’y a pas de place sur son disque pour une nouvelle version (%1 octets nécessaires, %2 libres)&#xa0;; libérez-y de la place</translation>
    </message>
    <message>
        <source>it is write-protected; allow writing to it, or use --force</source>
        <translation>il est protégé en écriture&#xa0;; autorisez l’écriture ou utilisez --force</translation>
    </message>
    <message>
        <source>its sidecar %1 is write-protected; allow writing to it, or use --force</source>
        <translation>son fichier annexe %1 est protégé en écriture&#xa0;; autorisez l’écriture ou utilisez --force</translation>
    </message>
    <message>
        <source>its sidecar must be edited with it. %1; repair or move the sidecar</source>
        <translation>son fichier annexe doit être modifié avec la photo. %1&#xa0;; réparez ou déplacez le fichier annexe</translation>
    </message>
    <message>
        <source>its sidecar %1 must be edited with it, but %2</source>
        <translation>son fichier annexe %1 doit être modifié avec la photo, mais %2</translation>
    </message>
    <message>
        <source>it has no date to shift</source>
        <translation>il n’y a pas de date à décaler</translation>
    </message>
    <message>
        <source>its year would not be 1 to 9999</source>
        <translation>son année ne serait pas comprise entre 1 et 9999</translation>
    </message>
    <message>
        <source>its metadata cannot be changed without losing data (%1)</source>
        <translation>ses métadonnées ne peuvent pas être modifiées sans perte (%1)</translation>
    </message>
    <message>
        <source>its metadata would be wrong afterwards</source>
        <translation>ses métadonnées seraient fausses ensuite</translation>
    </message>
    <message>
        <source>its EXIF data, which are kept as text, are damaged</source>
        <translation>ses données EXIF, conservées sous forme de texte, sont endommagées</translation>
    </message>
    <message>
        <source>its EXIF data are damaged</source>
        <translation>ses données EXIF sont endommagées</translation>
    </message>
    <message>
        <source>its XMP data are damaged</source>
        <translation>ses données XMP sont endommagées</translation>
    </message>
    <message>
        <source>its TIFF directory is damaged</source>
        <translation>son répertoire TIFF est endommagé</translation>
    </message>
    <message>
        <source>its picture format is not known</source>
        <translation>son format d’image est inconnu</translation>
    </message>
    <message>
        <source>its format cannot be edited</source>
        <translation>son format ne peut pas être modifié</translation>
    </message>
    <message>
        <source>photos of the format %1 cannot be edited</source>
        <translation>les photos au format %1 ne peuvent pas être modifiées</translation>
    </message>
    <message>
        <source>its picture would change</source>
        <translation>son image changerait</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>il est vide</translation>
    </message>
    <message>
        <source>it is damaged: %1</source>
        <translation>il est endommagé&#xa0;: %1</translation>
    </message>
    <message>
        <source>it is larger than 2 GiB</source>
        <translation>il dépasse 2&#xa0;Gio</translation>
    </message>
    <message>
        <source>it is larger than 4 MiB</source>
        <translation>il dépasse 4&#xa0;Mio</translation>
    </message>
    <message>
        <source>it was changed while it was read</source>
        <translation>il a changé pendant la lecture</translation>
    </message>
    <message>
        <source>editing it takes more memory than there is</source>
        <translation>la modification demande plus de mémoire qu’il n’y en a</translation>
    </message>
    <message>
        <source>its JPEG data is damaged</source>
        <translation>ses données JPEG sont endommagées</translation>
    </message>
    <message>
        <source>its JPEG data ends before the picture</source>
        <translation>ses données JPEG se terminent avant l’image</translation>
    </message>
    <message>
        <source>its JPEG data breaks off before the picture</source>
        <translation>ses données JPEG s’interrompent avant l’image</translation>
    </message>
    <message>
        <source>there is no room left in its EXIF block</source>
        <translation>il n’y a plus de place dans son bloc EXIF</translation>
    </message>
    <message>
        <source>its PNG data breaks off</source>
        <translation>ses données PNG s’interrompent</translation>
    </message>
    <message>
        <source>its PNG data does not begin with a picture</source>
        <translation>ses données PNG ne commencent pas par une image</translation>
    </message>
    <message>
        <source>it has two EXIF blocks</source>
        <translation>il a deux blocs EXIF</translation>
    </message>
    <message>
        <source>its WebP data breaks off</source>
        <translation>ses données WebP s’interrompent</translation>
    </message>
    <message>
        <source>its WebP data holds no picture</source>
        <translation>ses données WebP ne contiennent pas d’image</translation>
    </message>
    <message>
        <source>its %1 cannot be changed in place</source>
        <translation>%1 ne peut pas être modifié sur place</translation>
    </message>
    <message>
        <source>its date cannot be changed in its %1 data</source>
        <translation>sa date ne peut pas être modifiée dans ses données %1</translation>
    </message>
    <message>
        <source>its %1 cannot be changed in its %2 data</source>
        <translation>%1 ne peut pas être modifié dans ses données %2</translation>
    </message>
    <message>
        <source>it breaks off before its end</source>
        <translation>il s’interrompt avant la fin</translation>
    </message>
    <message>
        <source>its text is damaged</source>
        <translation>son texte est endommagé</translation>
    </message>
    <message>
        <source>it has too many properties</source>
        <translation>il a trop de propriétés</translation>
    </message>
    <message>
        <source>%1 is unchanged: %2</source>
        <translation>%1 est inchangé&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 was edited, but the catalogue could not be updated (%2). The next run updates it</source>
        <translation>%1 a été modifié, mais le catalogue n’a pas pu être mis à jour (%2). Le prochain lancement de lumidex s’en charge</translation>
    </message>
    <message>
        <source>%1 cannot be read back as what was written</source>
        <translation>%1 ne peut pas être relu tel qu’il a été écrit</translation>
    </message>
    <message>
        <source>%1 is left as it is, because it belongs to %2</source>
        <translation>%1 est laissé tel quel, car il accompagne %2</translation>
    </message>
    <message>
        <source>%1 is missing for now, but its versions are kept (%2). Free space on its disk and run &quot;lumidex undo&quot; again</source>
        <translation>%1 manque pour l’instant, mais ses versions sont conservées (%2). Libérez de la place sur son disque et relancez «&#xa0;lumidex undo&#xa0;»</translation>
    </message>
    <message>
        <source>%1 is left as it is: another program changed %2, where its other version was kept</source>
        <translation>%1 est laissé tel quel&#xa0;: un autre programme a modifié %2, où son autre version était conservée</translation>
    </message>
    <message>
        <source>%1 is left as it is: its disk has no room for its other version (%2 bytes). Free space there and try again</source>
        <translation>%1 est laissé tel quel&#xa0;: il n’y a pas de place sur son disque pour son autre version (%2 octets). Libérez-y de la place et réessayez</translation>
    </message>
    <message>
        <source>%1 is left as it is: its other version is no longer kept</source>
        <translation>%1 est laissé tel quel&#xa0;: son autre version n’est plus conservée</translation>
    </message>
    <message>
        <source>%1 was changed later and is left as it is</source>
        <translation>%1 a changé depuis et est laissé tel quel</translation>
    </message>
    <message>
        <source>%1 no longer exists</source>
        <translation>%1 n’existe plus</translation>
    </message>
    <message>
        <source>%1 cannot be reached: its disk may not be connected</source>
        <translation>%1 n’est pas accessible&#xa0;: son disque n’est peut-être pas connecté</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 ne peut pas être lu&#xa0;: %2</translation>
    </message>
    <message>
        <source>The undo journal %1 cannot be used: %2</source>
        <translation>Le journal d’annulation %1 ne peut pas être utilisé&#xa0;: %2</translation>
    </message>
    <message>
        <source>another program is renaming or editing photos with it; try again when that has finished</source>
        <translation>un autre programme l’utilise pour renommer ou modifier des photos&#xa0;; réessayez quand il aura terminé</translation>
    </message>
    <message>
        <source>no step is started without %1 MiB free for finishing and undoing it (%2)</source>
        <translation>aucune étape n’est commencée sans %1&#xa0;Mio libres pour la terminer et l’annuler (%2)</translation>
    </message>
    <message>
        <source>there is no room for undoing it (%1)</source>
        <translation>il n’y a pas de place pour l’annuler (%1)</translation>
    </message>
    <message>
        <source>Cannot change the target of the link %1: %2</source>
        <translation>Impossible de changer la cible du lien %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Cannot move %1 to the trash: %2</source>
        <translation>Impossible de mettre %1 à la corbeille&#xa0;: %2</translation>
    </message>
    <message>
        <source>no free name in the trash</source>
        <translation>aucun nom libre dans la corbeille</translation>
    </message>
    <message>
        <source>another file has that name</source>
        <translation>un autre fichier porte ce nom</translation>
    </message>
    <message>
        <source>another file has its former name</source>
        <translation>un autre fichier porte son ancien nom</translation>
    </message>
    <message>
        <source>it is on another volume</source>
        <translation>c’est sur un autre volume</translation>
    </message>
    <message>
        <source>it is no longer a file</source>
        <translation>ce n’est plus un fichier</translation>
    </message>
    <message>
        <source>%1 was kept, because its photo was kept</source>
        <translation>%1 a été gardé, car sa photo a été gardée</translation>
    </message>
    <message>
        <source>%1 was kept, because the photo kept in its place, %2, no longer exists</source>
        <translation>%1 a été gardé, car la photo gardée à sa place, %2, n’existe plus</translation>
    </message>
    <message>
        <source>%1 is in the trash as %2, which cannot be reached: its disk may not be connected</source>
        <translation>%1 est dans la corbeille sous %2, qui n’est pas accessible&#xa0;: son disque n’est peut-être pas connecté</translation>
    </message>
    <message>
        <source>%1 may be in the trash as %2, which cannot be read: %3</source>
        <translation>%1 est peut-être dans la corbeille sous %2, qui ne peut pas être lu&#xa0;: %3</translation>
    </message>
    <message>
        <source>%1 is no longer in the trash; another file has its name</source>
        <translation>%1 n’est plus dans la corbeille&#xa0;; un autre fichier porte son nom</translation>
    </message>
    <message>
        <source>%1 is no longer in the trash and cannot be brought back</source>
        <translation>%1 n’est plus dans la corbeille et ne peut pas être récupéré</translation>
    </message>
    <message>
        <source>%1 remains in the trash as %2: %3</source>
        <translation>%1 reste dans la corbeille sous %2&#xa0;: %3</translation>
    </message>
    <message>
        <source>The album &quot;%1&quot; is kept, because photos were added to it later</source>
        <translation>L’album «&#xa0;%1&#xa0;» est gardé, car des photos y ont été ajoutées depuis</translation>
    </message>
    <message>
        <source>The album &quot;%1&quot; no longer exists</source>
        <translation>L’album «&#xa0;%1&#xa0;» n’existe plus</translation>
    </message>
    <message>
        <source>Another album has the name &quot;%1&quot; now</source>
        <translation>Un autre album s’appelle maintenant «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>%1 is kept: %2.</source>
        <translation>%1 est gardé&#xa0;: %2.</translation>
    </message>
    <message>
        <source>it is already in a trash</source>
        <translation>il est déjà dans une corbeille</translation>
    </message>
    <message>
        <source>it is a link to another file</source>
        <translation>c’est un lien vers un autre fichier</translation>
    </message>
    <message>
        <source>it no longer exists</source>
        <translation>il n’existe plus</translation>
    </message>
    <message>
        <source>it was changed after it was analysed</source>
        <translation>il a changé après l’analyse</translation>
    </message>
    <message>
        <source>it was changed after it was compared</source>
        <translation>il a changé après la comparaison</translation>
    </message>
    <message>
        <source>it is another name of a file that is kept</source>
        <translation>c’est un autre nom d’un fichier gardé</translation>
    </message>
    <message>
        <source>it is of the same shot as %1, which is kept</source>
        <translation>il est de la même prise de vue que %1, qui est gardé</translation>
    </message>
    <message>
        <source>it is like others of its group, but not like the photo to keep, %1</source>
        <translation>il ressemble à d’autres de son groupe, mais pas à la photo à garder, %1</translation>
    </message>
    <message>
        <source>it has tags or albums that the photo to keep, %1, does not have</source>
        <translation>il a des mots-clés ou des albums que la photo à garder, %1, n’a pas</translation>
    </message>
    <message>
        <source>it is a raw file, and no raw file of its group is kept</source>
        <translation>c’est un fichier RAW, et aucun fichier RAW de son groupe n’est gardé</translation>
    </message>
    <message>
        <source>its settings, %1, would be lost: the photo to keep, %2, does not have them</source>
        <translation>ses réglages, %1, seraient perdus&#xa0;: la photo à garder, %2, ne les a pas</translation>
    </message>
    <message>
        <source>the link %1 leads to it</source>
        <translation>le lien %1 y mène</translation>
    </message>
    <message>
        <source>%1, to which it belongs, is kept</source>
        <translation>%1, qu’il accompagne, est gardé</translation>
    </message>
    <message>
        <source>the settings in %1 were changed</source>
        <translation>les réglages de %1 ont changé</translation>
    </message>
    <message>
        <source>the photo to keep, %1, no longer exists</source>
        <translation>la photo à garder, %1, n’existe plus</translation>
    </message>
    <message>
        <source>the photo to keep, %1, was changed after it was analysed</source>
        <translation>la photo à garder, %1, a changé après l’analyse</translation>
    </message>
    <message>
        <source>the photo to keep, %1, is no longer a file</source>
        <translation>la photo à garder, %1, n’est plus un fichier</translation>
    </message>
    <message>
        <source>the photo to keep, %1, cannot be read (%2)</source>
        <translation>la photo à garder, %1, ne peut pas être lue (%2)</translation>
    </message>
    <message>
        <source>the photo to keep, %1, is in a trash</source>
        <translation>la photo à garder, %1, est dans une corbeille</translation>
    </message>
    <message>
        <source>the photo to keep, %1, is a link to another file</source>
        <translation>la photo à garder, %1, est un lien vers un autre fichier</translation>
    </message>
    <message>
        <source>the photo to keep, %1, breaks off before the end of its picture</source>
        <translation>la photo à garder, %1, s’interrompt avant la fin de son image</translation>
    </message>
    <message>
        <source>the photo to keep, %1, is damaged: %2</source>
        <translation>la photo à garder, %1, est endommagée&#xa0;: %2</translation>
    </message>
    <message>
        <source>Interrupted undo of &quot;%1&quot; is now complete.</source>
        <translation>L’annulation interrompue de «&#xa0;%1&#xa0;» est maintenant terminée.</translation>
    </message>
    <message>
        <source>Interrupted redo of &quot;%1&quot; is now complete.</source>
        <translation>Le rétablissement interrompu de «&#xa0;%1&#xa0;» est maintenant terminé.</translation>
    </message>
    <message>
        <source>Interrupted undo of &quot;%1&quot; is now complete, except for:</source>
        <translation>L’annulation interrompue de «&#xa0;%1&#xa0;» est maintenant terminée, sauf pour&#xa0;:</translation>
    </message>
    <message>
        <source>Interrupted redo of &quot;%1&quot; is now complete, except for:</source>
        <translation>Le rétablissement interrompu de «&#xa0;%1&#xa0;» est maintenant terminé, sauf pour&#xa0;:</translation>
    </message>
    <message>
        <source>Interrupted step &quot;%1&quot; is now complete.</source>
        <translation>L’étape interrompue «&#xa0;%1&#xa0;» est maintenant terminée.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was interrupted and will be finished once %2 can be reached.</source>
        <translation>«&#xa0;%1&#xa0;» a été interrompu et sera terminé dès que %2 sera accessible.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was interrupted and cannot be finished (%2); the files have their former names.</source>
        <translation>«&#xa0;%1&#xa0;» a été interrompu et ne peut pas être terminé (%2)&#xa0;; les fichiers ont leurs anciens noms.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was interrupted and cannot be finished (%2), nor undone (%3).</source>
        <translation>«&#xa0;%1&#xa0;» a été interrompu et ne peut être ni terminé (%2) ni annulé (%3).</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was interrupted. Photos edited: %2; the others are unchanged.</source>
        <translation>«&#xa0;%1&#xa0;» a été interrompu. Photos modifiées&#xa0;: %2&#xa0;; les autres sont inchangées.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was interrupted. Copies made: %2; run the same import to copy the rest.</source>
        <translation>«&#xa0;%1&#xa0;» a été interrompu. Copies faites&#xa0;: %2&#xa0;; relancez la même importation pour copier le reste.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was interrupted. Files moved: %2; the others are where they were.</source>
        <translation>«&#xa0;%1&#xa0;» a été interrompu. Fichiers déplacés&#xa0;: %2&#xa0;; les autres sont là où ils étaient.</translation>
    </message>
    <message>
        <source>Originals that this catalogue does not know were moved to %1.</source>
        <translation>Les originaux que ce catalogue ne connaît pas ont été déplacés dans %1.</translation>
    </message>
    <message>
        <source>%1 and its sidecar disagree, because only one of them was edited (%2).</source>
        <translation>%1 et son fichier annexe ne concordent pas, car un seul des deux a été modifié (%2).</translation>
    </message>
    <message>
        <source>It cannot be read</source>
        <translation>Il ne peut pas être lu</translation>
    </message>
    <message>
        <source>It is a pipe or a device</source>
        <translation>C’est un tube ou un périphérique</translation>
    </message>
    <message>
        <source>It is not a regular file</source>
        <translation>Ce n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>It is empty</source>
        <translation>Il est vide</translation>
    </message>
    <message>
        <source>It is damaged: %1</source>
        <translation>Il est endommagé&#xa0;: %1</translation>
    </message>
    <message>
        <source>Its picture format is not known</source>
        <translation>Son format d’image est inconnu</translation>
    </message>
    <message>
        <source>Its name is not valid text</source>
        <translation>Son nom n’est pas un texte valable</translation>
    </message>
    <message>
        <source>It is named like a housekeeping file, but may be a picture or a video</source>
        <translation>Il porte le nom d’un fichier de gestion, mais peut être une image ou une vidéo</translation>
    </message>
    <message>
        <source>The link leads to a file that is missing</source>
        <translation>Le lien mène à un fichier manquant</translation>
    </message>
    <message>
        <source>The link leads to a file that cannot be read</source>
        <translation>Le lien mène à un fichier qui ne peut pas être lu</translation>
    </message>
    <message>
        <source>The link leads back to itself</source>
        <translation>Le lien ramène à lui-même</translation>
    </message>
    <message>
        <source>The link leads to a folder that cannot be read</source>
        <translation>Le lien mène à un dossier qui ne peut pas être lu</translation>
    </message>
    <message>
        <source>The link leads back to a folder above it</source>
        <translation>Le lien ramène à un dossier parent</translation>
    </message>
    <message>
        <source>The link leads to a folder that was already visited</source>
        <translation>Le lien mène à un dossier déjà parcouru</translation>
    </message>
    <message>
        <source>%1 is hidden</source>
        <translation>%1 est masqué</translation>
    </message>
    <message>
        <source>%1 is not named like a photo</source>
        <translation>%1 n’a pas un nom de photo</translation>
    </message>
    <message>
        <source>%1 is a link to a file that is missing</source>
        <translation>%1 est un lien vers un fichier manquant</translation>
    </message>
    <message>
        <source>it was changed while it was copied</source>
        <translation>il a changé pendant la copie</translation>
    </message>
    <message>
        <source>the copy differs from the original</source>
        <translation>la copie diffère de l’original</translation>
    </message>
    <message>
        <source>the copy cannot be written: %1</source>
        <translation>la copie ne peut pas être écrite&#xa0;: %1</translation>
    </message>
    <message>
        <source>the copy cannot be read back: %1</source>
        <translation>la copie ne peut pas être relue&#xa0;: %1</translation>
    </message>
    <message>
        <source>the copy cannot be recorded</source>
        <translation>la copie ne peut pas être enregistrée</translation>
    </message>
    <message>
        <source>another file got the name %1 meanwhile</source>
        <translation>un autre fichier a reçu entre-temps le nom %1</translation>
    </message>
    <message>
        <source>it is identical to %1, which could not be copied</source>
        <translation>il est identique à %1, qui n’a pas pu être copié</translation>
    </message>
    <message>
        <source>the import was interrupted</source>
        <translation>l’importation a été interrompue</translation>
    </message>
    <message>
        <source>It may be any of %1 photos that are missing</source>
        <translation>Ce peut être n’importe laquelle de %1 photos manquantes</translation>
    </message>
    <message>
        <source>It is missing, and %1 files may be it</source>
        <translation>Elle manque, et %1 fichiers peuvent lui correspondre</translation>
    </message>
    <message>
        <source>It was changed or replaced, and a file has its former content</source>
        <translation>Elle a été modifiée ou remplacée, et un fichier a son ancien contenu</translation>
    </message>
    <message>
        <source>identical files</source>
        <translation>fichiers identiques</translation>
    </message>
    <message>
        <source>the same pixels</source>
        <translation>les mêmes pixels</translation>
    </message>
    <message>
        <source>the same picture, smaller</source>
        <translation>la même image, plus petite</translation>
    </message>
    <message>
        <source>the same picture, larger</source>
        <translation>la même image, plus grande</translation>
    </message>
    <message>
        <source>the same picture, compressed again or in another format</source>
        <translation>la même image, compressée à nouveau ou dans un autre format</translation>
    </message>
    <message>
        <source>the same picture, mirrored</source>
        <translation>la même image, en miroir</translation>
    </message>
    <message>
        <source>the same picture, brighter</source>
        <translation>la même image, plus claire</translation>
    </message>
    <message>
        <source>the same picture, darker</source>
        <translation>la même image, plus sombre</translation>
    </message>
    <message>
        <source>the same picture, with more contrast</source>
        <translation>la même image, avec plus de contraste</translation>
    </message>
    <message>
        <source>the same picture, with less contrast</source>
        <translation>la même image, avec moins de contraste</translation>
    </message>
    <message>
        <source>the same picture, sharpened</source>
        <translation>la même image, accentuée</translation>
    </message>
    <message>
        <source>the same picture, changed all over</source>
        <translation>la même image, modifiée partout</translation>
    </message>
    <message>
        <source>the same picture, larger and with more detail</source>
        <translation>la même image, plus grande et plus détaillée</translation>
    </message>
    <message>
        <source>the same picture with a border or a caption</source>
        <translation>la même image avec un cadre ou une légende</translation>
    </message>
    <message>
        <source>the same picture without colours</source>
        <translation>la même image sans couleurs</translation>
    </message>
    <message>
        <source>the same picture with colours</source>
        <translation>la même image avec des couleurs</translation>
    </message>
    <message>
        <source>the same picture as far as a preview shows</source>
        <translation>la même image, autant qu’un aperçu le montre</translation>
    </message>
    <message>
        <source>the same picture as far as so few pixels show</source>
        <translation>la même image, autant que si peu de pixels le montrent</translation>
    </message>
    <message>
        <source>the same picture as far as it shows when it is made smaller</source>
        <translation>la même image, autant qu’on le voit une fois réduite</translation>
    </message>
    <message>
        <source>the same picture, but for something small at %1</source>
        <translation>la même image, sauf un détail %1</translation>
    </message>
    <message>
        <source>nearly the same view</source>
        <translation>presque la même vue</translation>
    </message>
    <message>
        <source>the same view, turned a little</source>
        <translation>la même vue, légèrement tournée</translation>
    </message>
    <message>
        <source>the same view, cropped</source>
        <translation>la même vue, recadrée</translation>
    </message>
    <message>
        <source>the same view with more around it</source>
        <translation>la même vue avec plus autour</translation>
    </message>
    <message>
        <source>the same view, brighter</source>
        <translation>la même vue, plus claire</translation>
    </message>
    <message>
        <source>the same view, darker</source>
        <translation>la même vue, plus sombre</translation>
    </message>
    <message>
        <source>another plain colour</source>
        <translation>une autre couleur unie</translation>
    </message>
    <message>
        <source>shows something else</source>
        <translation>montre autre chose</translation>
    </message>
    <message>
        <source>differs in some places</source>
        <translation>diffère par endroits</translation>
    </message>
    <message>
        <source>differs at %1</source>
        <translation>diffère %1</translation>
    </message>
    <message>
        <source>the upper left</source>
        <translation>en haut à gauche</translation>
    </message>
    <message>
        <source>the top</source>
        <translation>en haut</translation>
    </message>
    <message>
        <source>the upper right</source>
        <translation>en haut à droite</translation>
    </message>
    <message>
        <source>the left</source>
        <translation>à gauche</translation>
    </message>
    <message>
        <source>the middle</source>
        <translation>au milieu</translation>
    </message>
    <message>
        <source>the right</source>
        <translation>à droite</translation>
    </message>
    <message>
        <source>the lower left</source>
        <translation>en bas à gauche</translation>
    </message>
    <message>
        <source>the bottom</source>
        <translation>en bas</translation>
    </message>
    <message>
        <source>the lower right</source>
        <translation>en bas à droite</translation>
    </message>
    <message>
        <source>it cannot be compared: %1</source>
        <translation>comparaison impossible&#xa0;: %1</translation>
    </message>
    <message>
        <source>the photo to keep cannot be compared: %1</source>
        <translation>la photo à garder ne peut pas être comparée&#xa0;: %1</translation>
    </message>
    <message>
        <source>it has too few pixels</source>
        <translation>trop peu de pixels</translation>
    </message>
    <message>
        <source>it is partly transparent</source>
        <translation>en partie transparente</translation>
    </message>
    <message>
        <source>it breaks off before the end of its picture</source>
        <translation>s’interrompt avant la fin de son image</translation>
    </message>
    <message>
        <source>it holds more behind its picture</source>
        <translation>contient autre chose après son image</translation>
    </message>
    <message>
        <source>of several pictures in a file only the first can be compared</source>
        <translation>de plusieurs images dans un fichier, seule la première peut être comparée</translation>
    </message>
    <message>
        <source>there is not enough memory to compare it</source>
        <translation>pas assez de mémoire pour la comparaison</translation>
    </message>
    <message>
        <source>nothing of the picture can be decoded</source>
        <translation>rien de l’image ne peut être décodé</translation>
    </message>
    <message>
        <source>the head of the picture is damaged</source>
        <translation>le début de l’image est endommagé</translation>
    </message>
    <message>
        <source>a part of the picture is damaged</source>
        <translation>une partie de l’image est endommagée</translation>
    </message>
    <message>
        <source>its content is not a picture of a known format</source>
        <translation>son contenu n’est pas une image d’un format connu</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>le fichier est vide</translation>
    </message>
    <message>
        <source>the system lets nobody move it; take its attribute &quot;immutable&quot; away</source>
        <translation>le système ne laisse personne le déplacer ; retirez-lui l’attribut « immutable »</translation>
    </message>
    <message>
        <source>has a link of the same name beside it, which would not be renamed: %1</source>
        <translation>à côté se trouve un lien du même nom, qui ne serait pas renommé&#xa0;: %1</translation>
    </message>
    <message>
        <source>has no date</source>
        <translation>n’a pas de date</translation>
    </message>
    <message>
        <source>has no readable date: %1</source>
        <translation>n’a pas de date lisible&#xa0;: %1</translation>
    </message>
    <message>
        <source>is given twice</source>
        <translation>est indiqué deux fois</translation>
    </message>
    <message>
        <source>%1 is a link to somewhere else, and imports do not write through links. Remove the link, then import again.</source>
        <translation>%1 est un lien vers un autre endroit, et l’importation n’écrit pas à travers les liens. Supprimez le lien, puis importez de nouveau.</translation>
    </message>
    <message>
        <source>%1 is no file, and imports keep one there. Remove it, then import again.</source>
        <translation>%1 n’est pas un fichier, et l’importation en tient un à cet endroit. Supprimez-le, puis importez de nouveau.</translation>
    </message>
    <message>
        <source>%1 is a second name of another file (a hard link), and imports do not write to such. Put a copy of it in its place, or remove it, then import again.</source>
        <translation>%1 est un second nom d’un autre fichier (un lien physique), et l’importation n’écrit pas dans un tel fichier. Mettez une copie à sa place, ou supprimez-le, puis importez de nouveau.</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 n’est pas un dossier.</translation>
    </message>
    <message>
        <source>There is not enough space in %1: %2 bytes are needed, %3 are free.</source>
        <translation>Il n’y a pas assez de place dans %1&#xa0;: %2&#xa0;octets nécessaires, %3&#xa0;libres.</translation>
    </message>
    <message>
        <source>would be the name of two photos: %1</source>
        <translation>serait le nom de deux photos&#xa0;: %1</translation>
    </message>
    <message>
        <source>would be the name of two files: %1</source>
        <translation>serait le nom de deux fichiers&#xa0;: %1</translation>
    </message>
    <message>
        <source>is the name of another file: %1</source>
        <translation>est le nom d’un autre fichier&#xa0;: %1</translation>
    </message>
    <message>
        <source>is the name of another photo or its sidecar: %1</source>
        <translation>est le nom d’une autre photo ou de son fichier annexe&#xa0;: %1</translation>
    </message>
    <message>
        <source>is the name of a photo that cannot be renamed: %1</source>
        <translation>est le nom d’une photo qui ne peut pas être renommée&#xa0;: %1</translation>
    </message>
    <message>
        <source>holds a separator of folders %1</source>
        <translation>contient le séparateur de dossiers %1</translation>
    </message>
    <message>
        <source>holds the sign for unreadable characters</source>
        <translation>contient le signe des caractères illisibles</translation>
    </message>
    <message>
        <source>holds a control character</source>
        <translation>contient un caractère de contrôle</translation>
    </message>
    <message>
        <source>holds the character %1</source>
        <translation>contient le caractère %1</translation>
    </message>
    <message>
        <source>begins with a dot, which hides the file</source>
        <translation>commence par un point, qui cache le fichier</translation>
    </message>
    <message>
        <source>is longer than %1 bytes</source>
        <translation>dépasse %1&#xa0;octets</translation>
    </message>
    <message>
        <source>names a device of Windows</source>
        <translation>désigne un périphérique de Windows</translation>
    </message>
    <message>
        <source>ends in a dot, which Windows drops</source>
        <translation>se termine par un point, que Windows supprime</translation>
    </message>
    <message>
        <source>ends in a blank, which Windows drops</source>
        <translation>se termine par une espace, que Windows supprime</translation>
    </message>
    <message>
        <source>is not valid UTF-8</source>
        <translation>n’est pas de l’UTF-8 valable</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Select folder</source>
        <translation>Sélectionner un dossier</translation>
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
        <translation>&amp;Oui</translation>
    </message>
    <message>
        <source>Yes to &amp;All</source>
        <translation>Oui pour &amp;tout</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Non</translation>
    </message>
    <message>
        <source>N&amp;o to All</source>
        <translation>Non po&amp;ur tout</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Tout enregistrer</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorer</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Abandonner</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Ne pas enregistrer</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>Rétablir les valeurs par défaut</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
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
        <translation>Albums proposés</translation>
    </message>
    <message>
        <source>Similar photos</source>
        <translation>Photos similaires</translation>
    </message>
    <message>
        <source>Groups by year</source>
        <translation>Groupes par année</translation>
    </message>
    <message>
        <source>No similar photos</source>
        <translation>Aucune photo similaire</translation>
    </message>
    <message>
        <source>Groups appear here once the catalogue holds photos that are alike.</source>
        <translation>Des groupes apparaîtront ici dès que le catalogue contiendra des photos qui se ressemblent.</translation>
    </message>
    <message>
        <source>Albums by year</source>
        <translation>Albums par année</translation>
    </message>
    <message>
        <source>No albums yet</source>
        <translation>Pas encore d’albums</translation>
    </message>
    <message>
        <source>Albums appear here once there are enough photos of a holiday or of a month&apos;s weekends. Scan more folders and try again.</source>
        <translation>Des albums apparaîtront ici dès qu’il y aura assez de photos d’un jour de fête ou des week-ends d’un mois. Analysez d’autres dossiers et réessayez.</translation>
    </message>
    <message>
        <source>Unnamed album</source>
        <translation>Album sans nom</translation>
    </message>
    <message>
        <source>Undated</source>
        <translation>Sans date</translation>
    </message>
    <message>
        <source>Accepted</source>
        <translation>Accepté</translation>
    </message>
    <message>
        <source>No picture</source>
        <translation>Pas d’image</translation>
    </message>
    <message numerus="yes">
        <source>and %1 more</source>
        <translation>
            <numerusform>et %1 autre</numerusform>
            <numerusform>et %1 autres</numerusform>
        </translation>
    </message>
    <message>
        <source>Made with Lumidex. This page holds all its pictures and needs no other file.</source>
        <translation>Réalisé avec Lumidex. Cette page contient toutes ses images et ne nécessite aucun autre fichier.</translation>
    </message>
</context>
<context>
    <name>Terminal</name>
    <message>
        <source>Drawing</source>
        <translation>Dessin</translation>
    </message>
    <message>
        <source>pictures</source>
        <comment>of so many</comment>
        <translation>images</translation>
    </message>
    <message>
        <source>The catalogue holds no photos yet. Run: lumidex scan DIR</source>
        <translation>Le catalogue ne contient pas encore de photos. Lancez&#xa0;: lumidex scan DOSSIER</translation>
    </message>
    <message numerus="yes">
        <source>All %1 photos of the catalogue were missing at the last scan. Is a disk not connected?</source>
        <translation>
            <numerusform>La %1 photo du catalogue manquait lors de la dernière analyse. Un disque n’est-il pas connecté&#xa0;?</numerusform>
            <numerusform>Les %1 photos du catalogue manquaient toutes lors de la dernière analyse. Un disque n’est-il pas connecté&#xa0;?</numerusform>
        </translation>
    </message>
    <message>
        <source>Interrupted.</source>
        <translation>Interrompu.</translation>
    </message>
    <message>
        <source>No album was accepted.</source>
        <translation>Aucun album n’a été accepté.</translation>
    </message>
    <message>
        <source>The page %1 is written; it shows all chosen albums as accepted.</source>
        <translation>La page %1 est écrite&#xa0;; elle montre tous les albums choisis comme acceptés.</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>oui</translation>
    </message>
    <message numerus="yes">
        <source>yes, %1 more now</source>
        <translation>
            <numerusform>oui, %1 de plus maintenant</numerusform>
            <numerusform>oui, %1 de plus maintenant</numerusform>
        </translation>
    </message>
    <message>
        <source>ALBUM</source>
        <translation>ALBUM</translation>
    </message>
    <message>
        <source>WHEN</source>
        <translation>QUAND</translation>
    </message>
    <message>
        <source>FIRST DAY</source>
        <translation>PREMIER JOUR</translation>
    </message>
    <message>
        <source>LAST DAY</source>
        <translation>DERNIER JOUR</translation>
    </message>
    <message>
        <source>PHOTOS</source>
        <translation>PHOTOS</translation>
    </message>
    <message>
        <source>ACCEPTED</source>
        <translation>ACCEPTÉ</translation>
    </message>
    <message numerus="yes">
        <source>%1 (%2 photos)</source>
        <translation>
            <numerusform>%1 (%2 photo)</numerusform>
            <numerusform>%1 (%2 photos)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Accepted %1: %2 photos.</source>
        <translation>
            <numerusform>%1 accepté&#xa0;: %2 photo.</numerusform>
            <numerusform>%1 accepté&#xa0;: %2 photos.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Added %1 photos to %2, which was accepted before.</source>
        <translation>
            <numerusform>%1 photo ajoutée à %2, déjà accepté.</numerusform>
            <numerusform>%1 photos ajoutées à %2, déjà accepté.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 was accepted before, and there are no photos to add.</source>
        <translation>%1 était déjà accepté, et il n’y a pas de photos à ajouter.</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos</source>
        <comment>albums from</comment>
        <translation>
            <numerusform>%1 photo</numerusform>
            <numerusform>%1 photos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 of them have no date</source>
        <comment>photos; how many</comment>
        <translation>
            <numerusform>%1, dont %2 sans date</numerusform>
            <numerusform>%1, dont %2 sans date</numerusform>
        </translation>
    </message>
    <message>
        <source>No album has been accepted yet. &quot;lumidex albums&quot; shows proposals.</source>
        <translation>Aucun album n’est encore accepté. «&#xa0;lumidex albums&#xa0;» montre des propositions.</translation>
    </message>
    <message numerus="yes">
        <source>%1 accepted albums.</source>
        <translation>
            <numerusform>%1 album accepté.</numerusform>
            <numerusform>%1 albums acceptés.</numerusform>
        </translation>
    </message>
    <message>
        <source>No albums to propose from %1: an album needs 20 photos or more of one
holiday, or of the weekends of one month.</source>
        <translation>Aucun album à proposer à partir de %1&#xa0;: il faut au moins 20 photos d’un
même jour de fête ou des week-ends d’un mois.</translation>
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
            <numerusform>%1 à partir de %2&#xa0;; %3 accepté.</numerusform>
            <numerusform>%1 à partir de %2&#xa0;; %3 acceptés.</numerusform>
        </translation>
    </message>
    <message>
        <source>Calendar: %1 (from the server)</source>
        <translation>Calendrier&#xa0;: %1 (du serveur)</translation>
    </message>
    <message>
        <source>Calendar: %1</source>
        <translation>Calendrier&#xa0;: %1</translation>
    </message>
    <message>
        <source>The calendar has no holidays for %1.</source>
        <translation>Le calendrier n’a pas de jours de fête pour %1.</translation>
    </message>
    <message>
        <source>HOLIDAY</source>
        <translation>JOUR DE FÊTE</translation>
    </message>
    <message>
        <source>DAYS</source>
        <translation>JOURS</translation>
    </message>
    <message>
        <source>(no name)</source>
        <translation>(sans nom)</translation>
    </message>
    <message numerus="yes">
        <source>%1 holidays for %2.</source>
        <translation>
            <numerusform>%1 jour de fête pour %2.</numerusform>
            <numerusform>%1 jours de fête pour %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: no mistakes found.</source>
        <translation>%1&#xa0;: aucune erreur trouvée.</translation>
    </message>
    <message>
        <source>event %1</source>
        <translation>événement %1</translation>
    </message>
    <message>
        <source>list</source>
        <comment>of the events of a language</comment>
        <translation>liste</translation>
    </message>
    <message numerus="yes">
        <source>%1: %2 mistakes found.</source>
        <translation>
            <numerusform>%1&#xa0;: %2 erreur trouvée.</numerusform>
            <numerusform>%1&#xa0;: %2 erreurs trouvées.</numerusform>
        </translation>
    </message>
    <message>
        <source>The calendar was not updated: %1</source>
        <translation>Le calendrier n’a pas été mis à jour&#xa0;: %1</translation>
    </message>
    <message>
        <source>There is no calendar.</source>
        <translation>Il n’y a pas de calendrier.</translation>
    </message>
    <message>
        <source>Still in use: %1</source>
        <translation>Toujours utilisé&#xa0;: %1</translation>
    </message>
    <message>
        <source>The calendar was updated: %1</source>
        <translation>Le calendrier a été mis à jour&#xa0;: %1</translation>
    </message>
    <message>
        <source>The calendar is up to date: %1</source>
        <translation>Le calendrier est à jour&#xa0;: %1</translation>
    </message>
    <message>
        <source>The holiday calendar could not be read completely, so holidays are missing. Run: lumidex calendar check, or lumidex calendar update.</source>
        <translation>Le calendrier des fêtes n’a pas pu être lu entièrement, il manque donc des jours de fête. Lancez&#xa0;: lumidex calendar check ou lumidex calendar update.</translation>
    </message>
    <message>
        <source>The holiday calendar %1 could not be read completely, so holidays are missing. Run: lumidex calendar check, or lumidex calendar update.</source>
        <translation>Le calendrier des fêtes %1 n’a pas pu être lu entièrement, il manque donc des jours de fête. Lancez&#xa0;: lumidex calendar check ou lumidex calendar update.</translation>
    </message>
    <message>
        <source>unreadable</source>
        <translation>illisible</translation>
    </message>
    <message>
        <source>Volume of</source>
        <translation>Volume de</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Needed</source>
        <translation>Requis</translation>
    </message>
    <message>
        <source>Free</source>
        <comment>room on a disk</comment>
        <translation>Libre</translation>
    </message>
    <message>
        <source>unknown</source>
        <comment>free room</comment>
        <translation>inconnu</translation>
    </message>
    <message numerus="yes">
        <source>%1 files checked</source>
        <translation>
            <numerusform>%1 fichier vérifié</numerusform>
            <numerusform>%1 fichiers vérifiés</numerusform>
        </translation>
    </message>
    <message>
        <source>no problems found.</source>
        <translation>aucun problème trouvé.</translation>
    </message>
    <message>
        <source>Interrupted. Nothing was changed.</source>
        <translation>Interrompu. Rien n’a été modifié.</translation>
    </message>
    <message>
        <source>There are no photos in the given folders.</source>
        <translation>Il n’y a pas de photos dans les dossiers indiqués.</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>Essai</translation>
    </message>
    <message>
        <source>photos</source>
        <comment>of so many</comment>
        <translation>photos</translation>
    </message>
    <message>
        <source>Editing</source>
        <translation>Modification</translation>
    </message>
    <message>
        <source>upright</source>
        <translation>à l’endroit</translation>
    </message>
    <message>
        <source>mirrored</source>
        <translation>en miroir</translation>
    </message>
    <message>
        <source>upside down</source>
        <translation>à l’envers</translation>
    </message>
    <message>
        <source>upside down, mirrored</source>
        <translation>à l’envers, en miroir</translation>
    </message>
    <message>
        <source>turned left, mirrored</source>
        <translation>tournée à gauche, en miroir</translation>
    </message>
    <message>
        <source>turned right</source>
        <translation>tournée à droite</translation>
    </message>
    <message>
        <source>turned right, mirrored</source>
        <translation>tournée à droite, en miroir</translation>
    </message>
    <message>
        <source>turned left</source>
        <translation>tournée à gauche</translation>
    </message>
    <message>
        <source>no date</source>
        <translation>pas de date</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos would be edited. This was a dry run: nothing was changed.</source>
        <translation>
            <numerusform>%1 photo serait modifiée. C’était un essai&#xa0;: rien n’a été modifié.</numerusform>
            <numerusform>%1 photos seraient modifiées. C’était un essai&#xa0;: rien n’a été modifié.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>Rien n’a été modifié.</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos edited; &quot;lumidex undo&quot; undoes it.</source>
        <translation>
            <numerusform>%1 photo modifiée&#xa0;; «&#xa0;lumidex undo&#xa0;» l’annule.</numerusform>
            <numerusform>%1 photos modifiées&#xa0;; «&#xa0;lumidex undo&#xa0;» l’annule.</numerusform>
        </translation>
    </message>
    <message>
        <source>Cannot be edited</source>
        <translation>Impossible à modifier</translation>
    </message>
    <message>
        <source>Not edited</source>
        <translation>Non modifiées</translation>
    </message>
    <message>
        <source>Comparing</source>
        <translation>Comparaison</translation>
    </message>
    <message>
        <source>files</source>
        <comment>of so many</comment>
        <translation>fichiers</translation>
    </message>
    <message>
        <source>Copying</source>
        <translation>Copie</translation>
    </message>
    <message>
        <source>Interrupted. The copies made so far are complete and verified; run the same command to copy the rest.</source>
        <translation>Interrompu. Les copies faites jusqu’ici sont complètes et vérifiées&#xa0;; relancez la même commande pour copier le reste.</translation>
    </message>
    <message>
        <source>Would be copied to %1:</source>
        <translation>Seraient copiés dans %1&#xa0;:</translation>
    </message>
    <message>
        <source>Would be added to the catalogue without copying:</source>
        <translation>Seraient ajoutées au catalogue sans copie&#xa0;:</translation>
    </message>
    <message>
        <source>Copies of one shot would get different names:</source>
        <translation>Les copies d’une même prise de vue auraient des noms différents&#xa0;:</translation>
    </message>
    <message>
        <source>Not copied:</source>
        <translation>Non copiés&#xa0;:</translation>
    </message>
    <message>
        <source>Not added to the catalogue:</source>
        <translation>Non ajoutés au catalogue&#xa0;:</translation>
    </message>
    <message>
        <source>Skipped:</source>
        <translation>Ignorés&#xa0;:</translation>
    </message>
    <message numerus="yes">
        <source>and %1 more (--json lists them)</source>
        <translation>
            <numerusform>et %1 autre (--json en donne la liste)</numerusform>
            <numerusform>et %1 autres (--json en donne la liste)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos are in the catalogue already.</source>
        <translation>
            <numerusform>%1 photo est déjà dans le catalogue.</numerusform>
            <numerusform>%1 photos sont déjà dans le catalogue.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files were copied before.</source>
        <translation>
            <numerusform>%1 fichier avait déjà été copié.</numerusform>
            <numerusform>%1 fichiers avaient déjà été copiés.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos occur twice in the sources.</source>
        <translation>
            <numerusform>%1 photo figure deux fois dans les sources.</numerusform>
            <numerusform>%1 photos figurent deux fois dans les sources.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was imported.</source>
        <translation>Rien n’a été importé.</translation>
    </message>
    <message>
        <source>Nothing would be imported.</source>
        <translation>Rien ne serait importé.</translation>
    </message>
    <message numerus="yes">
        <source>%1 files (%2) would be copied</source>
        <translation>
            <numerusform>%1 fichier (%2) serait copié</numerusform>
            <numerusform>%1 fichiers (%2) seraient copiés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos added without copying.</source>
        <comment>would be</comment>
        <translation>
            <numerusform>%1 photo serait ajoutée sans copie.</numerusform>
            <numerusform>%1 photos seraient ajoutées sans copie.</numerusform>
        </translation>
    </message>
    <message>
        <source>This was a dry run:
nothing was changed.</source>
        <translation>C’était un essai&#xa0;:
rien n’a été modifié.</translation>
    </message>
    <message numerus="yes">
        <source>%1 files (%2) copied to %3 and verified.</source>
        <translation>
            <numerusform>%1 fichier (%2) copié dans %3 et vérifié.</numerusform>
            <numerusform>%1 fichiers (%2) copiés dans %3 et vérifiés.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos added to the catalogue.</source>
        <translation>
            <numerusform>%1 photo ajoutée au catalogue.</numerusform>
            <numerusform>%1 photos ajoutées au catalogue.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files were not copied; run the same command to try again.</source>
        <translation>
            <numerusform>%1 fichier n’a pas été copié&#xa0;; relancez la même commande pour réessayer.</numerusform>
            <numerusform>%1 fichiers n’ont pas été copiés&#xa0;; relancez la même commande pour réessayer.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1:</source>
        <comment>a heading</comment>
        <translation>%1&#xa0;:</translation>
    </message>
    <message>
        <source>%1 is not supported; %2 is used.</source>
        <comment>languages</comment>
        <translation>%1 n’est pas pris en charge&#xa0;; %2 est utilisé.</translation>
    </message>
    <message>
        <source>%1 of %2 %3</source>
        <comment>done, all, what</comment>
        <translation>%1 sur %2 %3</translation>
    </message>
    <message>
        <source>%1 of %2 %3 found so far</source>
        <comment>done, all, what</comment>
        <translation>%1 sur %2 %3 jusqu’ici</translation>
    </message>
    <message>
        <source>%1 left</source>
        <comment>minutes and seconds</comment>
        <translation>reste %1</translation>
    </message>
    <message>
        <source>y yes</source>
        <comment>answers, all that mean it</comment>
        <translation>o oui</translation>
    </message>
    <message>
        <source>Interrupted. Nothing was renamed.</source>
        <translation>Interrompu. Rien n’a été renommé.</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Lecture</translation>
    </message>
    <message>
        <source>Renaming</source>
        <translation>Renommage</translation>
    </message>
    <message>
        <source>Cannot be renamed:</source>
        <translation>Impossible à renommer&#xa0;:</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos have no date; the times of their files are used.</source>
        <translation>
            <numerusform>%1 photo n’a pas de date&#xa0;; l’heure de son fichier est utilisée.</numerusform>
            <numerusform>%1 photos n’ont pas de date&#xa0;; l’heure de leurs fichiers est utilisée.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files have their new names already.</source>
        <translation>
            <numerusform>%1 fichier a déjà son nouveau nom.</numerusform>
            <numerusform>%1 fichiers ont déjà leur nouveau nom.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Nothing would be renamed: %1 of %2 photos cannot get their new names.
Add --skip-problems to rename the others.</source>
        <translation>
            <numerusform>Rien ne serait renommé&#xa0;: le nouveau nom est impossible pour %1 photo sur %2.
Avec --skip-problems, les autres sont renommées.</numerusform>
            <numerusform>Rien ne serait renommé&#xa0;: le nouveau nom est impossible pour %1 des %2 photos.
Avec --skip-problems, les autres sont renommées.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Nothing was renamed: %1 of %2 photos cannot get their new names.
Add --skip-problems to rename the others.</source>
        <translation>
            <numerusform>Rien n’a été renommé&#xa0;: le nouveau nom est impossible pour %1 photo sur %2.
Avec --skip-problems, les autres sont renommées.</numerusform>
            <numerusform>Rien n’a été renommé&#xa0;: le nouveau nom est impossible pour %1 des %2 photos.
Avec --skip-problems, les autres sont renommées.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to rename.</source>
        <translation>Rien à renommer.</translation>
    </message>
    <message numerus="yes">
        <source>%1 would be renamed. This was a dry run: nothing was changed.</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>%1 serait renommée. C’était un essai&#xa0;: rien n’a été modifié.</numerusform>
            <numerusform>%1 seraient renommées. C’était un essai&#xa0;: rien n’a été modifié.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was renamed.</source>
        <translation>Rien n’a été renommé.</translation>
    </message>
    <message numerus="yes">
        <source>%1 files could not get their old names back.</source>
        <translation>
            <numerusform>%1 fichier n’a pas pu retrouver son ancien nom.</numerusform>
            <numerusform>%1 fichiers n’ont pas pu retrouver leur ancien nom.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 renamed; &quot;lumidex undo&quot; undoes it.</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>%1 renommée&#xa0;; «&#xa0;lumidex undo&#xa0;» l’annule.</numerusform>
            <numerusform>%1 renommées&#xa0;; «&#xa0;lumidex undo&#xa0;» l’annule.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 renamed.</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>%1 renommée.</numerusform>
            <numerusform>%1 renommées.</numerusform>
        </translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Problèmes</translation>
    </message>
    <message>
        <source>Report: %1</source>
        <translation>Rapport&#xa0;: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 pictures could not be read; placeholders stand for them.</source>
        <translation>
            <numerusform>%1 image n’a pas pu être lue&#xa0;; un emplacement vide la remplace.</numerusform>
            <numerusform>%1 images n’ont pas pu être lues&#xa0;; des emplacements vides les remplacent.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Made %1 photos in %2</source>
        <translation>
            <numerusform>%1 photo créée dans %2</numerusform>
            <numerusform>%1 photos créées dans %2</numerusform>
        </translation>
    </message>
    <message>
        <source>not an image</source>
        <translation>pas une image</translation>
    </message>
    <message>
        <source>loop</source>
        <translation>boucle</translation>
    </message>
    <message>
        <source>Not added:</source>
        <translation>Non ajoutés&#xa0;:</translation>
    </message>
    <message numerus="yes">
        <source>%1 original</source>
        <comment>dates read</comment>
        <translation>
            <numerusform>%1 de la prise de vue</numerusform>
            <numerusform>%1 de la prise de vue</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 digitised</source>
        <comment>dates read</comment>
        <translation>
            <numerusform>%1 de la numérisation</numerusform>
            <numerusform>%1 de la numérisation</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 file time</source>
        <comment>dates read</comment>
        <translation>
            <numerusform>%1 de l’heure du fichier</numerusform>
            <numerusform>%1 de l’heure du fichier</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 none</source>
        <comment>dates read</comment>
        <translation>
            <numerusform>%1 sans date</numerusform>
            <numerusform>%1 sans date</numerusform>
        </translation>
    </message>
    <message>
        <source>Dates read: %1</source>
        <translation>Dates lues&#xa0;: %1</translation>
    </message>
    <message numerus="yes">
        <source>files found</source>
        <translation>
            <numerusform>fichier trouvé</numerusform>
            <numerusform>fichiers trouvés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>new</source>
        <comment>files</comment>
        <translation>
            <numerusform>nouveau</numerusform>
            <numerusform>nouveaux</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>read again</source>
        <comment>files</comment>
        <translation>
            <numerusform>relu</numerusform>
            <numerusform>relus</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>changed</source>
        <comment>files</comment>
        <translation>
            <numerusform>modifié</numerusform>
            <numerusform>modifiés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>unchanged</source>
        <comment>files</comment>
        <translation>
            <numerusform>inchangé</numerusform>
            <numerusform>inchangés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>missing, now marked as lost</source>
        <comment>files</comment>
        <translation>
            <numerusform>manquant, désormais marqué comme perdu</numerusform>
            <numerusform>manquants, désormais marqués comme perdus</numerusform>
        </translation>
    </message>
    <message>
        <source>This was a dry run: nothing was stored.</source>
        <translation>C’était un essai&#xa0;: rien n’a été enregistré.</translation>
    </message>
    <message>
        <source>Catalogue: %1</source>
        <translation>Catalogue&#xa0;: %1</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>Analyse</translation>
    </message>
    <message>
        <source>Interrupted. What was read so far is in the catalogue; run the same command to continue.</source>
        <translation>Interrompu. Ce qui a été lu jusqu’ici est dans le catalogue&#xa0;; relancez la même commande pour continuer.</translation>
    </message>
    <message>
        <source>Analysing</source>
        <translation>Analyse</translation>
    </message>
    <message>
        <source>Grouping</source>
        <translation>Regroupement</translation>
    </message>
    <message>
        <source>Measuring</source>
        <translation>Mesure</translation>
    </message>
    <message>
        <source>Interrupted. What was moved is in the trash.</source>
        <translation>Interrompu. Ce qui a été déplacé est dans la corbeille.</translation>
    </message>
    <message>
        <source>Interrupted. Run the same command to continue.</source>
        <translation>Interrompu. Relancez la même commande pour continuer.</translation>
    </message>
    <message>
        <source>Interrupted. Nothing was moved.</source>
        <translation>Interrompu. Rien n’a été déplacé.</translation>
    </message>
    <message>
        <source>Move %1 to the trash? [y/N]</source>
        <translation>Mettre %1 à la corbeille&#xa0;? [o/N]</translation>
    </message>
    <message>
        <source>Moving</source>
        <translation>Déplacement</translation>
    </message>
    <message>
        <source>Keep %1</source>
        <comment>a file</comment>
        <translation>Garder %1</translation>
    </message>
    <message>
        <source>Keep %1: %2</source>
        <comment>a file: why</comment>
        <translation>Garder %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1, %2, score %3</source>
        <comment>pixels, size, number</comment>
        <translation>%1, %2, ressemblance %3</translation>
    </message>
    <message>
        <source>largest</source>
        <comment>photo</comment>
        <translation>la plus grande</translation>
    </message>
    <message>
        <source>sharpest</source>
        <comment>photo</comment>
        <translation>la plus nette</translation>
    </message>
    <message>
        <source>has camera data</source>
        <translation>avec les données de l’appareil</translation>
    </message>
    <message>
        <source>earliest</source>
        <comment>photo</comment>
        <translation>la plus ancienne</translation>
    </message>
    <message>
        <source>first by name</source>
        <translation>première par le nom</translation>
    </message>
    <message>
        <source>Not compared:</source>
        <translation>Non comparées&#xa0;:</translation>
    </message>
    <message numerus="yes">
        <source>No similar photos among %1 photos.</source>
        <translation>
            <numerusform>Aucune photo similaire parmi %1 photo.</numerusform>
            <numerusform>Aucune photo similaire parmi %1 photos.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 groups of similar photos</source>
        <translation>
            <numerusform>%1 groupe de photos similaires</numerusform>
            <numerusform>%1 groupes de photos similaires</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>among %1 photos</source>
        <translation>
            <numerusform>parmi %1 photo</numerusform>
            <numerusform>parmi %1 photos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos (%2) besides those to keep.</source>
        <translation>
            <numerusform>%1 photo (%2) en plus de celles à garder.</numerusform>
            <numerusform>%1 photos (%2) en plus de celles à garder.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 %2; %3</source>
        <comment>groups of similar photos; among how many; others</comment>
        <translation>%1 %2&#xa0;; %3</translation>
    </message>
    <message>
        <source>keep</source>
        <comment>a photo</comment>
        <translation>garder</translation>
    </message>
    <message>
        <source>trash</source>
        <comment>it goes there</comment>
        <translation>corbeille</translation>
    </message>
    <message>
        <source>stay</source>
        <comment>a photo does</comment>
        <translation>reste</translation>
    </message>
    <message numerus="yes">
        <source>Group %1, %2 photos:</source>
        <translation>
            <numerusform>Groupe %1, %2 photo&#xa0;:</numerusform>
            <numerusform>Groupe %1, %2 photos&#xa0;:</numerusform>
        </translation>
    </message>
    <message>
        <source>PHOTO</source>
        <translation>PHOTO</translation>
    </message>
    <message>
        <source>TO ITS CENTRE</source>
        <translation>À SON CENTRE</translation>
    </message>
    <message>
        <source>TO ITS OWN CENTRE</source>
        <translation>À SON PROPRE CENTRE</translation>
    </message>
    <message>
        <source>TO THE OTHER&apos;S</source>
        <translation>À CELUI DE L’AUTRE</translation>
    </message>
    <message>
        <source>The photos score %1 against each other and are in one group.</source>
        <translation>Les photos se ressemblent à %1 et sont dans un même groupe.</translation>
    </message>
    <message>
        <source>The photos score %1 against each other and are in different groups.</source>
        <translation>Les photos se ressemblent à %1 et sont dans des groupes différents.</translation>
    </message>
    <message>
        <source>A photo joins the first group whose centre scores above %1 against it. The centre is the
mean of the photos in the group at that time; later photos move it.</source>
        <translation>Une photo rejoint le premier groupe dont le centre lui ressemble à plus de %1. Le centre est la
moyenne des photos du groupe à ce moment-là&#xa0;; les photos suivantes le déplacent.</translation>
    </message>
    <message>
        <source>Matching all photos again gives the same groups.</source>
        <translation>Une nouvelle comparaison de toutes les photos donne les mêmes groupes.</translation>
    </message>
    <message>
        <source>&quot;lumidex similar --anew&quot; makes all groups again.</source>
        <translation>«&#xa0;lumidex similar --anew&#xa0;» refait tous les groupes.</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos</source>
        <translation>
            <numerusform>%1 photo</numerusform>
            <numerusform>%1 photos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (%2 files)</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>%1 (%2 fichier)</numerusform>
            <numerusform>%1 (%2 fichiers)</numerusform>
        </translation>
    </message>
    <message>
        <source>rename %1</source>
        <comment>so many photos</comment>
        <translation>renommer %1</translation>
    </message>
    <message>
        <source>shift dates by %1</source>
        <translation>décaler les dates de %1</translation>
    </message>
    <message>
        <source>set dates to %1</source>
        <translation>fixer les dates au %1</translation>
    </message>
    <message>
        <source>rotate left</source>
        <translation>tourner à gauche</translation>
    </message>
    <message>
        <source>rotate right</source>
        <translation>tourner à droite</translation>
    </message>
    <message>
        <source>rotate 180</source>
        <translation>tourner de 180°</translation>
    </message>
    <message>
        <source>move similar photos to the trash</source>
        <translation>mettre des photos similaires à la corbeille</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>Yes to all</source>
        <translation>Oui pour tout</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>No to all</source>
        <translation>Non pour tout</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Save all</source>
        <translation>Tout enregistrer</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorer</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Abandonner</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Ne pas enregistrer</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Restore defaults</source>
        <translation>Rétablir les valeurs par défaut</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Nothing to move to the trash.</source>
        <translation>Rien à mettre à la corbeille.</translation>
    </message>
    <message numerus="yes">
        <source>%1 would be moved to the trash. This was a dry run: nothing was changed.</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>%1 serait mise à la corbeille. C’était un essai&#xa0;: rien n’a été modifié.</numerusform>
            <numerusform>%1 seraient mises à la corbeille. C’était un essai&#xa0;: rien n’a été modifié.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was moved.</source>
        <translation>Rien n’a été déplacé.</translation>
    </message>
    <message numerus="yes">
        <source>%1 moved to the trash; &quot;lumidex undo&quot; brings back what is still there.</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>%1 mise à la corbeille&#xa0;; «&#xa0;lumidex undo&#xa0;» rapporte ce qui s’y trouve encore.</numerusform>
            <numerusform>%1 mises à la corbeille&#xa0;; «&#xa0;lumidex undo&#xa0;» rapporte ce qui s’y trouve encore.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 moved to the trash.</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>%1 mise à la corbeille.</numerusform>
            <numerusform>%1 mises à la corbeille.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>%1 fichier</numerusform>
            <numerusform>%1 fichiers</numerusform>
        </translation>
    </message>
    <message>
        <source>Not moved:</source>
        <translation>Non déplacées&#xa0;:</translation>
    </message>
    <message>
        <source>Left where they are</source>
        <translation>Laissés à leur place</translation>
    </message>
    <message>
        <source>Redoing</source>
        <translation>Rétablissement</translation>
    </message>
    <message>
        <source>Undoing</source>
        <translation>Annulation</translation>
    </message>
    <message>
        <source>Interrupted. What was done so far stays done.</source>
        <translation>Interrompu. Ce qui a été fait jusqu’ici reste fait.</translation>
    </message>
    <message numerus="yes">
        <source>Only %1 of the %2 steps that you asked for.</source>
        <translation>
            <numerusform>Seulement %1 des %2 étapes demandées.</numerusform>
            <numerusform>Seulement %1 des %2 étapes demandées.</numerusform>
        </translation>
    </message>
    <message>
        <source>The setting %1 is invalid (%2); the default is used.</source>
        <translation>Le réglage %1 n’est pas valable (%2)&#xa0;; la valeur par défaut est utilisée.</translation>
    </message>
    <message>
        <source>undone</source>
        <comment>a step</comment>
        <translation>annulée</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>Il n’y a rien à annuler.</translation>
    </message>
    <message>
        <source>WHAT</source>
        <translation>QUOI</translation>
    </message>
    <message>
        <source>FILES</source>
        <translation>FICHIERS</translation>
    </message>
    <message>
        <source>KEPT</source>
        <comment>so many bytes</comment>
        <translation>CONSERVÉ</translation>
    </message>
    <message>
        <source>Left as they are</source>
        <translation>Laissés tels quels</translation>
    </message>
    <message>
        <source>Nothing of &quot;%1&quot; was redone.</source>
        <translation>Rien de «&#xa0;%1&#xa0;» n’a été rétabli.</translation>
    </message>
    <message>
        <source>Nothing of &quot;%1&quot; was undone.</source>
        <translation>Rien de «&#xa0;%1&#xa0;» n’a été annulé.</translation>
    </message>
    <message>
        <source>Redone: %1.</source>
        <translation>Rétabli&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Undone: %1.</source>
        <translation>Annulé&#xa0;: %1.</translation>
    </message>
    <message numerus="yes">
        <source>Redone: %1, except for %2 files.</source>
        <translation>
            <numerusform>Rétabli&#xa0;: %1, sauf %2 fichier.</numerusform>
            <numerusform>Rétabli&#xa0;: %1, sauf %2 fichiers.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Undone: %1, except for %2 files.</source>
        <translation>
            <numerusform>Annulé&#xa0;: %1, sauf %2 fichier.</numerusform>
            <numerusform>Annulé&#xa0;: %1, sauf %2 fichiers.</numerusform>
        </translation>
    </message>
    <message>
        <source>Older steps cannot be undone before this one; &quot;lumidex undo --skip&quot; skips it for good.</source>
        <translation>Les étapes plus anciennes ne peuvent pas être annulées avant celle-ci&#xa0;; «&#xa0;lumidex undo --skip&#xa0;» l’ignore définitivement.</translation>
    </message>
    <message>
        <source>There is nothing to skip.</source>
        <translation>Il n’y a rien à passer.</translation>
    </message>
    <message>
        <source>Skipped: %1.</source>
        <translation>Ignoré&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Its originals (%1) are kept until they exceed the limits of undo.</source>
        <translation>Ses originaux (%1) sont conservés jusqu’à ce qu’ils dépassent les limites d’«&#xa0;undo&#xa0;».</translation>
    </message>
    <message numerus="yes">
        <source>%1 older steps cannot be undone any more.</source>
        <translation>
            <numerusform>%1 étape plus ancienne ne peut plus être annulée.</numerusform>
            <numerusform>%1 étapes plus anciennes ne peuvent plus être annulées.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Steps can be undone for %1 days of use, with up to %2 of originals.</source>
        <translation>
            <numerusform>Les étapes peuvent être annulées pendant %1 jour d’utilisation, avec au plus %2 d’originaux.</numerusform>
            <numerusform>Les étapes peuvent être annulées pendant %1 jours d’utilisation, avec au plus %2 d’originaux.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>Il n’y a rien à rétablir.</translation>
    </message>
    <message>
        <source>Copies would share names with files of other shots:</source>
        <translation>Les copies partageraient leur nom avec des fichiers d’autres prises de vue&#xa0;:</translation>
    </message>
    <message>
        <source>file time</source>
        <comment>where a date is from</comment>
        <translation>heure du fichier</translation>
    </message>
    <message numerus="yes">
        <source>%1 frames</source>
        <translation>
            <numerusform>%1 vue</numerusform>
            <numerusform>%1 vues</numerusform>
        </translation>
    </message>
    <message>
        <source>DATE</source>
        <translation>DATE</translation>
    </message>
    <message>
        <source>FROM</source>
        <translation>SOURCE</translation>
    </message>
    <message>
        <source>CAMERA</source>
        <translation>APPAREIL</translation>
    </message>
    <message>
        <source>POSITION</source>
        <translation>POSITION</translation>
    </message>
    <message>
        <source>PICTURE</source>
        <translation>IMAGE</translation>
    </message>
    <message>
        <source>ORIENTATION</source>
        <translation>ORIENTATION</translation>
    </message>
    <message>
        <source>SIZE</source>
        <translation>TAILLE</translation>
    </message>
    <message>
        <source>Doubtful positions:</source>
        <translation>Positions douteuses&#xa0;:</translation>
    </message>
    <message>
        <source>Not read</source>
        <translation>Non lues</translation>
    </message>
    <message>
        <source>TAKEN</source>
        <translation>PRISE</translation>
    </message>
    <message>
        <source>TAGS</source>
        <translation>MOTS-CLÉS</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>FICHIER</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 photos.</source>
        <comment>found, searched</comment>
        <translation>
            <numerusform>%1 sur %2 photo.</numerusform>
            <numerusform>%1 sur %2 photos.</numerusform>
        </translation>
    </message>
    <message>
        <source>Statistics are on.</source>
        <translation>Les statistiques sont activées.</translation>
    </message>
    <message>
        <source>Statistics are off.</source>
        <translation>Les statistiques sont désactivées.</translation>
    </message>
    <message>
        <source>File: %1</source>
        <translation>Fichier&#xa0;: %1</translation>
    </message>
    <message>
        <source>DAY</source>
        <translation>JOUR</translation>
    </message>
    <message>
        <source>COMMAND</source>
        <translation>COMMANDE</translation>
    </message>
    <message>
        <source>DETAILS</source>
        <translation>DÉTAILS</translation>
    </message>
    <message numerus="yes">
        <source>Statistics are on; %1 lines.</source>
        <translation>
            <numerusform>Les statistiques sont activées&#xa0;; %1 ligne.</numerusform>
            <numerusform>Les statistiques sont activées&#xa0;; %1 lignes.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Statistics are off; %1 lines.</source>
        <translation>
            <numerusform>Les statistiques sont désactivées&#xa0;; %1 ligne.</numerusform>
            <numerusform>Les statistiques sont désactivées&#xa0;; %1 lignes.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 lines of the statistics cannot be read.</source>
        <translation>
            <numerusform>%1 ligne des statistiques est illisible.</numerusform>
            <numerusform>%1 lignes des statistiques sont illisibles.</numerusform>
        </translation>
    </message>
    <message>
        <source>The statistics are deleted.</source>
        <translation>Les statistiques sont supprimées.</translation>
    </message>
    <message>
        <source>tag %1</source>
        <comment>+one -another</comment>
        <translation>mots-clés&#xa0;: %1</translation>
    </message>
    <message>
        <source>No photo has the tag &quot;%1&quot;.</source>
        <translation>Aucune photo n’a le mot-clé «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>system</source>
        <comment>kind of tag</comment>
        <translation>système</translation>
    </message>
    <message>
        <source>icon</source>
        <comment>kind of tag</comment>
        <translation>icône</translation>
    </message>
    <message>
        <source>automatic</source>
        <comment>kind of tag</comment>
        <translation>automatique</translation>
    </message>
    <message>
        <source>own</source>
        <comment>kind of tag</comment>
        <translation>personnel</translation>
    </message>
    <message>
        <source>No photo has a tag yet. Run: lumidex tag FILE +TAG</source>
        <translation>Aucune photo n’a encore de mot-clé. Lancez&#xa0;: lumidex tag FICHIER +MOT-CLÉ</translation>
    </message>
    <message>
        <source>TAG</source>
        <translation>MOT-CLÉ</translation>
    </message>
    <message>
        <source>TYPE</source>
        <translation>TYPE</translation>
    </message>
    <message>
        <source>Not in the list</source>
        <translation>Absents de la liste</translation>
    </message>
    <message>
        <source>Not tagged</source>
        <translation>Sans changement de mots-clés</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos changed; &quot;lumidex undo&quot; undoes it.</source>
        <translation>
            <numerusform>%1 photo changée&#xa0;; «&#xa0;lumidex undo&#xa0;» l’annule.</numerusform>
            <numerusform>%1 photos changées&#xa0;; «&#xa0;lumidex undo&#xa0;» l’annule.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos changed.</source>
        <translation>
            <numerusform>%1 photo changée.</numerusform>
            <numerusform>%1 photos changées.</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;lumidex undo&quot; undoes it.</source>
        <translation>«&#xa0;lumidex undo&#xa0;» l’annule.</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos were left out, because they have no date but the times of their files. To include them, run: lumidex albums --file-times</source>
        <translation>
            <numerusform>%1 photo a été laissée de côté, car elle n’a d’autre date que l’heure de son fichier. Pour l’inclure, lancez&#xa0;: lumidex albums --file-times</numerusform>
            <numerusform>%1 photos ont été laissées de côté, car elles n’ont d’autre date que l’heure de leurs fichiers. Pour les inclure, lancez&#xa0;: lumidex albums --file-times</numerusform>
        </translation>
    </message>
    <message>
        <source>Refused by %1</source>
        <comment>commands</comment>
        <translation>Refusés par %1</translation>
    </message>
    <message>
        <source>If all these photos are edited at once:</source>
        <translation>Si toutes ces photos sont modifiées à la fois&#xa0;:</translation>
    </message>
    <message>
        <source>its sidecar</source>
        <translation>son fichier annexe</translation>
    </message>
    <message numerus="yes">
        <source>%1 sidecars would be edited along with them.</source>
        <translation>
            <numerusform>%1 fichier annexe serait modifié avec elles.</numerusform>
            <numerusform>%1 fichiers annexes seraient modifiés avec elles.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 sidecars edited along with them.</source>
        <translation>
            <numerusform>%1 fichier annexe modifié avec elles.</numerusform>
            <numerusform>%1 fichiers annexes modifiés avec elles.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos edited; it cannot be undone.</source>
        <translation>
            <numerusform>%1 photo modifiée&#xa0;; cela ne peut pas être annulé.</numerusform>
            <numerusform>%1 photos modifiées&#xa0;; cela ne peut pas être annulé.</numerusform>
        </translation>
    </message>
    <message>
        <source>There are no photos or videos in the given folders.</source>
        <translation>Il n’y a pas de photos ni de vidéos dans les dossiers indiqués.</translation>
    </message>
    <message>
        <source>It is hidden</source>
        <translation>Il est masqué</translation>
    </message>
    <message>
        <source>It is not a photo, a video or a file that belongs to one</source>
        <translation>Ce n’est ni une photo ni une vidéo, ni un fichier qui s’y rattache</translation>
    </message>
    <message>
        <source>&quot;lumidex undo&quot; moves the copies of this run to the trash.</source>
        <translation>«&#xa0;lumidex undo&#xa0;» met à la corbeille les copies faites cette fois-ci.</translation>
    </message>
    <message numerus="yes">
        <source>%1 files are not copied, as you chose; they stay where they are.</source>
        <translation>
            <numerusform>%1 fichier n’est pas copié, comme demandé&#xa0;: il reste où il est.</numerusform>
            <numerusform>%1 fichiers ne sont pas copiés, comme demandé&#xa0;: ils restent où ils sont.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files are not copied, because they are not on removable storage; &quot;--to DIR&quot; copies them.</source>
        <translation>
            <numerusform>%1 fichier n’est pas copié, car il ne se trouve pas sur un support amovible&#xa0;; «&#xa0;--to DOSSIER&#xa0;» le copie.</numerusform>
            <numerusform>%1 fichiers ne sont pas copiés, car ils ne se trouvent pas sur un support amovible&#xa0;; «&#xa0;--to DOSSIER&#xa0;» les copie.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of them are videos, which the catalogue does not hold.</source>
        <translation>
            <numerusform>%1 d’entre eux est une vidéo, que le catalogue ne prend pas.</numerusform>
            <numerusform>%1 d’entre eux sont des vidéos, que le catalogue ne prend pas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 housekeeping files of cameras and systems are not copied.</source>
        <translation>
            <numerusform>%1 fichier de gestion des appareils et des systèmes n’est pas copié.</numerusform>
            <numerusform>%1 fichiers de gestion des appareils et des systèmes ne sont pas copiés.</numerusform>
        </translation>
    </message>
    <message>
        <source>Not everything in %1 is copied: do not format or empty it yet.</source>
        <translation>Le contenu de %1 n’est pas entièrement copié&#xa0;: ne pas encore formater ni vider.</translation>
    </message>
    <message>
        <source>Copies are in %1 itself: do not format or empty it.</source>
        <translation>Des copies se trouvent dans %1 même&#xa0;: ne pas formater ni vider.</translation>
    </message>
    <message numerus="yes">
        <source>%1 steps cannot be undone any more, because more than %2 days of use have passed.</source>
        <translation>
            <numerusform>%1 étape ne peut plus être annulée, car plus de %2 jours d’utilisation se sont écoulés.</numerusform>
            <numerusform>%1 étapes ne peuvent plus être annulées, car plus de %2 jours d’utilisation se sont écoulés.</numerusform>
        </translation>
    </message>
    <message>
        <source>Links that lead to the new names:</source>
        <translation>Liens qui mènent aux nouveaux noms&#xa0;:</translation>
    </message>
    <message numerus="yes">
        <source>%1 symbolic links lead to the new names.</source>
        <translation>
            <numerusform>%1 lien symbolique mène au nouveau nom.</numerusform>
            <numerusform>%1 liens symboliques mènent aux nouveaux noms.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 symbolic links keep their names.</source>
        <translation>
            <numerusform>%1 lien symbolique garde son nom.</numerusform>
            <numerusform>%1 liens symboliques gardent leur nom.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 and %2 more</source>
        <comment>files</comment>
        <translation>
            <numerusform>%1 et %2 autre</numerusform>
            <numerusform>%1 et %2 autres</numerusform>
        </translation>
    </message>
    <message>
        <source>These may be photos that were moved, but several files or photos come into question.
The photos keep their tags and albums, the files are new:</source>
        <translation>Ce sont peut-être des photos déplacées, mais plusieurs fichiers ou photos sont possibles.
Les photos gardent leurs mots-clés et leurs albums, les fichiers sont nouveaux&#xa0;:</translation>
    </message>
    <message numerus="yes">
        <source>%1 XMP</source>
        <comment>dates read</comment>
        <translation>
            <numerusform>%1 des données XMP</numerusform>
            <numerusform>%1 des données XMP</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 IPTC</source>
        <comment>dates read</comment>
        <translation>
            <numerusform>%1 des données IPTC</numerusform>
            <numerusform>%1 des données IPTC</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>moved or renamed</source>
        <comment>files</comment>
        <translation>
            <numerusform>déplacé ou renommé</numerusform>
            <numerusform>déplacés ou renommés</numerusform>
        </translation>
    </message>
    <message>
        <source>Keep this one</source>
        <comment>a photo</comment>
        <translation>Garder celle-ci</translation>
    </message>
    <message>
        <source>Same picture</source>
        <translation>Même image</translation>
    </message>
    <message>
        <source>Alike</source>
        <comment>a photo</comment>
        <translation>Ressemblante</translation>
    </message>
    <message>
        <source>Different</source>
        <comment>a photo</comment>
        <translation>Différente</translation>
    </message>
    <message>
        <source>Could not be compared</source>
        <comment>a photo</comment>
        <translation>Comparaison impossible</translation>
    </message>
    <message numerus="yes">
        <source>Group %1: %2 photos like %3</source>
        <translation>
            <numerusform>Groupe %1&#xa0;: %2 photo comme %3</numerusform>
            <numerusform>Groupe %1&#xa0;: %2 photos comme %3</numerusform>
        </translation>
    </message>
    <message>
        <source>undamaged</source>
        <comment>photo</comment>
        <translation>intacte</translation>
    </message>
    <message>
        <source>the camera&apos;s own file</source>
        <translation>le fichier même de l’appareil</translation>
    </message>
    <message>
        <source>has maker notes</source>
        <translation>avec les notes du fabricant</translation>
    </message>
    <message>
        <source>not written by another program</source>
        <translation>non écrite par un autre programme</translation>
    </message>
    <message>
        <source>compressed less</source>
        <translation>moins comprimée</translation>
    </message>
    <message>
        <source>more bytes per pixel</source>
        <translation>plus d’octets par pixel</translation>
    </message>
    <message>
        <source>named by the camera</source>
        <translation>nommée par l’appareil</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos cannot be compared, as before; &quot;lumidex similar --not-compared&quot; lists them.</source>
        <translation>
            <numerusform>%1 photo ne peut toujours pas être comparée&#xa0;; «&#xa0;lumidex similar --not-compared&#xa0;» l’indique.</numerusform>
            <numerusform>%1 photos ne peuvent toujours pas être comparées&#xa0;; «&#xa0;lumidex similar --not-compared&#xa0;» en donne la liste.</numerusform>
        </translation>
    </message>
    <message>
        <source>They are the same picture.</source>
        <translation>C’est la même image.</translation>
    </message>
    <message>
        <source>They are alike, and not the same picture.</source>
        <translation>Elles se ressemblent, mais ce n’est pas la même image.</translation>
    </message>
    <message>
        <source>They are different pictures.</source>
        <translation>Ce sont des images différentes.</translation>
    </message>
    <message>
        <source>Their pictures could not be compared.</source>
        <translation>Leurs images n’ont pas pu être comparées.</translation>
    </message>
    <message>
        <source>same</source>
        <comment>a picture</comment>
        <translation>même</translation>
    </message>
    <message>
        <source>alike</source>
        <comment>a picture</comment>
        <translation>ressemblante</translation>
    </message>
    <message>
        <source>different</source>
        <comment>a picture</comment>
        <translation>différente</translation>
    </message>
    <message>
        <source>unknown</source>
        <comment>a verdict</comment>
        <translation>inconnu</translation>
    </message>
    <message>
        <source>GROUP</source>
        <translation>GROUPE</translation>
    </message>
    <message>
        <source>VERDICT</source>
        <translation>VERDICT</translation>
    </message>
    <message>
        <source>To undo the edit, %1 of originals must be kept, but the limit is %2.</source>
        <translation>Pour pouvoir annuler la modification, il faut conserver %1 d’originaux, mais la limite est de %2.</translation>
    </message>
    <message>
        <source>&quot;lumidex undo --keep-size %1&quot; raises the limit; with --no-undo nothing is kept, and the edit cannot be undone.</source>
        <translation>«&#xa0;lumidex undo --keep-size %1&#xa0;» relève la limite&#xa0;; avec --no-undo, rien n’est conservé et la modification ne peut pas être annulée.</translation>
    </message>
    <message numerus="yes">
        <source>To keep %1 of originals within the limit of %2, undo would have to forget %3 older steps:</source>
        <translation>
            <numerusform>Pour conserver %1 d’originaux dans la limite de %2, il faudrait oublier %3 étape plus ancienne&#xa0;:</numerusform>
            <numerusform>Pour conserver %1 d’originaux dans la limite de %2, il faudrait oublier %3 étapes plus anciennes&#xa0;:</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>To keep %1 of originals within the limit of %2, undo forgets %3 older steps:</source>
        <translation>
            <numerusform>Pour conserver %1 d’originaux dans la limite de %2, %3 étape plus ancienne est oubliée&#xa0;:</numerusform>
            <numerusform>Pour conserver %1 d’originaux dans la limite de %2, %3 étapes plus anciennes sont oubliées&#xa0;:</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;lumidex undo --keep-size %1&quot; makes room for all of them.</source>
        <translation>«&#xa0;lumidex undo --keep-size %1&#xa0;» fait de la place pour toutes.</translation>
    </message>
    <message>
        <source>--forget-older allows it.</source>
        <translation>--forget-older l’autorise.</translation>
    </message>
    <message>
        <source>Forget them and continue? [y/N]</source>
        <translation>Les oublier et continuer&#xa0;? [o/N]</translation>
    </message>
    <message>
        <source>No originals would be kept, so the edit could not be undone.</source>
        <translation>Aucun original ne serait conservé, la modification ne pourrait donc pas être annulée.</translation>
    </message>
    <message>
        <source>The edit would be refused.</source>
        <translation>La modification serait refusée.</translation>
    </message>
    <message numerus="yes">
        <source>import %1 files to %2</source>
        <translation>
            <numerusform>importer %1 fichier dans %2</numerusform>
            <numerusform>importer %1 fichiers dans %2</numerusform>
        </translation>
    </message>
    <message>
        <source>accept album %1</source>
        <translation>accepter l’album %1</translation>
    </message>
    <message numerus="yes">
        <source>accept %1 albums</source>
        <translation>
            <numerusform>accepter %1 album</numerusform>
            <numerusform>accepter %1 albums</numerusform>
        </translation>
    </message>
    <message>
        <source>alike to %1</source>
        <comment>a photo is; a file</comment>
        <translation>ressemble à %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos are alike and not the same picture; they stay unless --alike is given.</source>
        <translation>
            <numerusform>%1 photo est seulement ressemblante et n’est pas la même image&#xa0;; elle reste, sauf avec --alike.</numerusform>
            <numerusform>%1 photos sont seulement ressemblantes et ne sont pas la même image&#xa0;; elles restent, sauf avec --alike.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Move %1 to the trash, %2 of which are only alike? [y/N]</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>Mettre %1 à la corbeille, dont %2 seulement ressemblante&#xa0;? [o/N]</numerusform>
            <numerusform>Mettre %1 à la corbeille, dont %2 seulement ressemblantes&#xa0;? [o/N]</numerusform>
        </translation>
    </message>
    <message>
        <source>Undo without keeping what redo needs? [y/N]</source>
        <translation>Annuler sans conserver ce qu’il faut pour rétablir&#xa0;? [o/N]</translation>
    </message>
    <message numerus="yes">
        <source>%1 copies are in the trash now.</source>
        <translation>
            <numerusform>%1 copie est maintenant dans la corbeille.</numerusform>
            <numerusform>%1 copies sont maintenant dans la corbeille.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no room to keep what redo needs; &quot;lumidex undo --no-redo&quot; undoes without it.</source>
        <translation>Il n’y a pas de place pour conserver ce qu’il faut pour rétablir&#xa0;; «&#xa0;lumidex undo --no-redo&#xa0;» annule sans cela.</translation>
    </message>
    <message numerus="yes">
        <source>Undo of &quot;%1&quot; (%2) will leave %3 files as they are, because this step changed them later:</source>
        <translation>
            <numerusform>L’annulation de «&#xa0;%1&#xa0;» (%2) laissera %3 fichier tel quel, car cette étape l’a modifié depuis&#xa0;:</numerusform>
            <numerusform>L’annulation de «&#xa0;%1&#xa0;» (%2) laissera %3 fichiers tels quels, car cette étape les a modifiés depuis&#xa0;:</numerusform>
        </translation>
    </message>
    <message>
        <source>unknown</source>
        <comment>a date</comment>
        <translation>inconnue</translation>
    </message>
    <message numerus="yes">
        <source>%1 files or folders would be refused.</source>
        <translation>
            <numerusform>%1 fichier ou dossier serait refusé.</numerusform>
            <numerusform>%1 fichiers ou dossiers seraient refusés.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>An import skips %1 other files (--json lists them).</source>
        <translation>
            <numerusform>Une importation ignore %1 autre fichier (--json l’indique).</numerusform>
            <numerusform>Une importation ignore %1 autres fichiers (--json en donne la liste).</numerusform>
        </translation>
    </message>
    <message>
        <source>Every file in %1 has a verified copy elsewhere.</source>
        <translation>Chaque fichier de %1 a ailleurs une copie vérifiée.</translation>
    </message>
    <message>
        <source>Every file in %1, except for housekeeping files, has a verified copy elsewhere.</source>
        <translation>Chaque fichier de %1, sauf les fichiers de gestion, a ailleurs une copie vérifiée.</translation>
    </message>
    <message>
        <source>It is safe to format.</source>
        <translation>Le formatage est sans risque.</translation>
    </message>
    <message>
        <source>It is safe to format as far as this folder is concerned; what is outside it was not checked.</source>
        <translation>Pour ce dossier, le formatage est sans risque&#xa0;; ce qui se trouve en dehors n’a pas été vérifié.</translation>
    </message>
    <message>
        <source>not enlarged</source>
        <translation>non agrandie</translation>
    </message>
    <message>
        <source>The disk of %1 has %2 free, but editing all photos needs %3: the last ones would not be edited.</source>
        <translation>Il reste %2 de libre sur le disque de %1, mais modifier toutes les photos demande %3&#xa0;: les dernières ne seraient pas modifiées.</translation>
    </message>
    <message numerus="yes">
        <source>The sources of %1 of them are gone or changed: do not empty the trash before you have another copy.</source>
        <translation>
            <numerusform>La source de %1 d’entre elles a disparu ou a été modifiée&#xa0;: ne videz pas la corbeille avant d’avoir une autre copie.</numerusform>
            <numerusform>Les sources de %1 d’entre elles ont disparu ou ont été modifiées&#xa0;: ne videz pas la corbeille avant d’avoir d’autres copies.</numerusform>
        </translation>
    </message>
    <message>
        <source>Interrupted. The photos edited so far stay edited.</source>
        <translation>Interrompu. Les photos modifiées jusqu’ici restent modifiées.</translation>
    </message>
    <message>
        <source>Interrupted. The photos made so far stay; delete the folder before you try again.</source>
        <translation>Interrompu. Les photos créées jusqu’ici restent&#xa0;; supprimez le dossier avant de réessayer.</translation>
    </message>
    <message>
        <source>,</source>
        <comment>between thousands</comment>
        <translation>&#x202f;</translation>
    </message>
    <message>
        <source>.</source>
        <comment>before decimals</comment>
        <translation>,</translation>
    </message>
    <message>
        <source>%1 B</source>
        <translation>%1&#xa0;o</translation>
    </message>
    <message>
        <source>%1 KiB</source>
        <translation>%1&#xa0;Kio</translation>
    </message>
    <message>
        <source>%1 MiB</source>
        <translation>%1&#xa0;Mio</translation>
    </message>
    <message>
        <source>%1 GiB</source>
        <translation>%1&#xa0;Gio</translation>
    </message>
    <message>
        <source>%1 TiB</source>
        <translation>%1&#xa0;Tio</translation>
    </message>
    <message>
        <source>%1 PiB</source>
        <translation>%1&#xa0;Pio</translation>
    </message>
    <message>
        <source>%1 EiB</source>
        <translation>%1&#xa0;Eio</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 photos, taken on %3.</source>
        <comment>found, searched, date</comment>
        <translation>
            <numerusform>%1 sur %2 photo, prise le %3.</numerusform>
            <numerusform>%1 sur %2 photos, prises le %3.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 photos, taken from %3 to %4.</source>
        <comment>found, searched, dates</comment>
        <translation>
            <numerusform>%1 sur %2 photo, prise du %3 au %4.</numerusform>
            <numerusform>%1 sur %2 photos, prises du %3 au %4.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 photos, taken on %3 or later.</source>
        <comment>found, searched, date</comment>
        <translation>
            <numerusform>%1 sur %2 photo, prise le %3 ou après.</numerusform>
            <numerusform>%1 sur %2 photos, prises le %3 ou après.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 photos, taken on %3 or earlier.</source>
        <comment>found, searched, date</comment>
        <translation>
            <numerusform>%1 sur %2 photo, prise le %3 ou avant.</numerusform>
            <numerusform>%1 sur %2 photos, prises le %3 ou avant.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of them (%2) are the same picture as the photo to keep; &quot;lumidex similar --trash&quot; moves them to the trash.</source>
        <translation>
            <numerusform>%1 d’entre elles (%2) est la même image que la photo à garder&#xa0;; «&#xa0;lumidex similar --trash&#xa0;» la met à la corbeille.</numerusform>
            <numerusform>%1 d’entre elles (%2) sont la même image que la photo à garder&#xa0;; «&#xa0;lumidex similar --trash&#xa0;» les met à la corbeille.</numerusform>
        </translation>
    </message>
    <message>
        <source>Not the same picture as the photo to keep, only alike:</source>
        <translation>Pas la même image que la photo à garder, seulement ressemblantes&#xa0;:</translation>
    </message>
    <message>
        <source>cannot be undone</source>
        <comment>a step</comment>
        <translation>ne peut plus être annulée</translation>
    </message>
    <message>
        <source>running</source>
        <comment>a step</comment>
        <translation>en cours</translation>
    </message>
    <message>
        <source>WHEN</source>
        <comment>a step</comment>
        <translation>MOMENT</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <comment>files checked; outcome</comment>
        <translation>%1&#xa0;; %2</translation>
    </message>
    <message>
        <source>%1, %2 %3</source>
        <comment>copies; photos added; dry run</comment>
        <translation>%1, %2 %3</translation>
    </message>
    <message numerus="yes">
        <source>would be the name of %1 photos: %2</source>
        <translation>
            <numerusform>serait le nom de %1&#xa0;photo&#xa0;: %2</numerusform>
            <numerusform>serait le nom de %1&#xa0;photos&#xa0;: %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Within these limits, undo would have to forget %1 older steps:</source>
        <translation>
            <numerusform>Dans ces limites, il faudrait oublier %1&#xa0;étape plus ancienne&#xa0;:</numerusform>
            <numerusform>Dans ces limites, il faudrait oublier %1&#xa0;étapes plus anciennes&#xa0;:</numerusform>
        </translation>
    </message>
    <message>
        <source>Whether a photo goes to the trash also depends on the one that is kept of its group, and on tags, albums, settings and second names; &quot;lumidex similar --trash --dry-run&quot; tells.</source>
        <translation>Qu’une photo aille à la corbeille dépend aussi de celle qui est gardée de son groupe, ainsi que des mots-clés, des albums, des réglages et des autres noms du fichier&#xa0;; «&#xa0;lumidex similar --trash --dry-run&#xa0;» le montre.</translation>
    </message>
</context>
<context>
    <name>Zenvora::Lumidex::Utils</name>
    <message>
        <source>Attention</source>
        <translation>Attention</translation>
    </message>
    <message>
        <source>All of the selected files do not have read permissions, they will not be added.</source>
        <translation>Aucun des fichiers sélectionnés n’est accessible en lecture&#xa0;; ils ne seront pas ajoutés.</translation>
    </message>
    <message>
        <source>Some of the selected files do not have read permissions, they will not be added.</source>
        <translation>Certains des fichiers sélectionnés ne sont pas accessibles en lecture&#xa0;; ils ne seront pas ajoutés.</translation>
    </message>
    <message>
        <source>Some of the selected photos are on removable storage. Would you like copy they to your hard drive?</source>
        <translation>Certaines des photos sélectionnées se trouvent sur un support amovible. Voulez-vous les copier sur votre disque dur&#xa0;?</translation>
    </message>
    <message>
        <source>The selected directory is temporary, select another directory.</source>
        <translation>Le dossier sélectionné est temporaire. Sélectionnez un autre dossier.</translation>
    </message>
    <message>
        <source>Some of the selected photos are in read-only formats (for example, %1). They will be converted to JPG or PNG after applying the tool.</source>
        <translation>Certaines des photos sélectionnées sont dans un format en lecture seule (par exemple, %1). Elles seront converties en JPG ou PNG après l’application de l’outil.</translation>
    </message>
    <message>
        <source>The selected photo is in read-only formats (%1). It will be converted to JPG or PNG after applying the tool.</source>
        <translation>La photo sélectionnée est dans un format en lecture seule (%1). Elle sera convertie en JPG ou PNG après l’application de l’outil.</translation>
    </message>
    <message>
        <source>There is not enough space on the disk %1</source>
        <translation>Il n’y a pas assez d’espace sur le disque %1</translation>
    </message>
    <message>
        <source>You do not have permission to edit files in this folder: %1</source>
        <translation>Vous n’avez pas l’autorisation de modifier les fichiers de ce dossier&#xa0;: %1</translation>
    </message>
    <message>
        <source>You do not have permission to edit file: %1</source>
        <translation>Vous n’avez pas l’autorisation de modifier ce fichier&#xa0;: %1</translation>
    </message>
    <message>
        <source>day</source>
        <translation>jour</translation>
    </message>
    <message>
        <source>days</source>
        <translation>jours</translation>
    </message>
    <message>
        <source>Expired</source>
        <translation>Expiré</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>One day</source>
        <translation>jour</translation>
    </message>
    <message>
        <source>Nominative day</source>
        <translation>jours</translation>
    </message>
    <message>
        <source>Genetive day</source>
        <translation>jours</translation>
    </message>
    <message>
        <source>Plural day</source>
        <translation>jours</translation>
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
        <translation>groupe</translation>
    </message>
    <message>
        <source>Nominative group</source>
        <translation>groupes</translation>
    </message>
    <message>
        <source>Genetive group</source>
        <translation>groupes</translation>
    </message>
    <message>
        <source>Plural group</source>
        <translation>groupes</translation>
    </message>
    <message>
        <source>group</source>
        <translation>groupe</translation>
    </message>
    <message>
        <source>groups</source>
        <translation>groupes</translation>
    </message>
    <message>
        <source>One photo</source>
        <translation>photo</translation>
    </message>
    <message>
        <source>Nominative photo</source>
        <translation>photos</translation>
    </message>
    <message>
        <source>Genetive photo</source>
        <translation>photos</translation>
    </message>
    <message>
        <source>Plural photo</source>
        <translation>photos</translation>
    </message>
    <message>
        <source>photo</source>
        <translation>photo</translation>
    </message>
    <message>
        <source>photos</source>
        <translation>photos</translation>
    </message>
</context>
</TS>
