<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_US">
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
        <translation>No se puede editar %1: %2</translation>
    </message>
    <message>
        <source>Cannot rename %1: %2</source>
        <translation>No se puede renombrar %1: %2</translation>
    </message>
    <message>
        <source>Cannot rename %1 to %2: %3</source>
        <translation>No se puede renombrar %1 como %2: %3</translation>
    </message>
    <message>
        <source>Cannot read %1: %2</source>
        <translation>No se puede leer %1: %2</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>No se puede escribir %1: %2</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>no se puede escribir %1: %2</translation>
    </message>
    <message>
        <source>its folder cannot be written to; change the permissions of %1</source>
        <translation>no se puede escribir en su carpeta; cambie los permisos de %1</translation>
    </message>
    <message>
        <source>its folder lets only its owner change it; change the owner, or the permissions of %1</source>
        <translation>su carpeta solo permite cambios a su propietario; cambie el propietario o los permisos de %1</translation>
    </message>
    <message>
        <source>its disk has no room for a new version of it (%1 bytes are needed, %2 are free); free space there</source>
        <translation>en su disco no hay sitio para una versión nueva (se necesitan %1 bytes y quedan %2); libere espacio allí</translation>
    </message>
    <message>
        <source>it is write-protected; allow writing to it, or use --force</source>
        <translation>está protegido contra escritura; permita la escritura o use --force</translation>
    </message>
    <message>
        <source>its sidecar %1 is write-protected; allow writing to it, or use --force</source>
        <translation>su archivo auxiliar %1 está protegido contra escritura; permita la escritura o use --force</translation>
    </message>
    <message>
        <source>its sidecar must be edited with it. %1; repair or move the sidecar</source>
        <translation>su archivo auxiliar debe editarse con la foto. %1; repare o mueva el archivo auxiliar</translation>
    </message>
    <message>
        <source>its sidecar %1 must be edited with it, but %2</source>
        <translation>su archivo auxiliar %1 debe editarse con la foto, pero %2</translation>
    </message>
    <message>
        <source>it has no date to shift</source>
        <translation>no tiene ninguna fecha que desplazar</translation>
    </message>
    <message>
        <source>its year would not be 1 to 9999</source>
        <translation>su año no estaría entre 1 y 9999</translation>
    </message>
    <message>
        <source>its metadata cannot be changed without losing data (%1)</source>
        <translation>sus metadatos no se pueden cambiar sin perder datos (%1)</translation>
    </message>
    <message>
        <source>its metadata would be wrong afterwards</source>
        <translation>sus metadatos serían incorrectos después</translation>
    </message>
    <message>
        <source>its EXIF data, which are kept as text, are damaged</source>
        <translation>sus datos EXIF, guardados como texto, están dañados</translation>
    </message>
    <message>
        <source>its EXIF data are damaged</source>
        <translation>sus datos EXIF están dañados</translation>
    </message>
    <message>
        <source>its XMP data are damaged</source>
        <translation>sus datos XMP están dañados</translation>
    </message>
    <message>
        <source>its TIFF directory is damaged</source>
        <translation>su directorio TIFF está dañado</translation>
    </message>
    <message>
        <source>its picture format is not known</source>
        <translation>su formato de imagen es desconocido</translation>
    </message>
    <message>
        <source>its format cannot be edited</source>
        <translation>su formato no se puede editar</translation>
    </message>
    <message>
        <source>photos of the format %1 cannot be edited</source>
        <translation>las fotos de formato %1 no se pueden editar</translation>
    </message>
    <message>
        <source>its picture would change</source>
        <translation>su imagen cambiaría</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>está vacío</translation>
    </message>
    <message>
        <source>it is damaged: %1</source>
        <translation>está dañado: %1</translation>
    </message>
    <message>
        <source>it is larger than 2 GiB</source>
        <translation>es mayor de 2 GiB</translation>
    </message>
    <message>
        <source>it is larger than 4 MiB</source>
        <translation>es mayor de 4 MiB</translation>
    </message>
    <message>
        <source>it was changed while it was read</source>
        <translation>cambió mientras se leía</translation>
    </message>
    <message>
        <source>editing it takes more memory than there is</source>
        <translation>editarlo requiere más memoria de la que hay</translation>
    </message>
    <message>
        <source>its JPEG data is damaged</source>
        <translation>sus datos JPEG están dañados</translation>
    </message>
    <message>
        <source>its JPEG data ends before the picture</source>
        <translation>sus datos JPEG terminan antes de la imagen</translation>
    </message>
    <message>
        <source>its JPEG data breaks off before the picture</source>
        <translation>sus datos JPEG se cortan antes de la imagen</translation>
    </message>
    <message>
        <source>there is no room left in its EXIF block</source>
        <translation>no queda sitio en su bloque EXIF</translation>
    </message>
    <message>
        <source>its PNG data breaks off</source>
        <translation>sus datos PNG se cortan</translation>
    </message>
    <message>
        <source>its PNG data does not begin with a picture</source>
        <translation>sus datos PNG no empiezan con una imagen</translation>
    </message>
    <message>
        <source>it has two EXIF blocks</source>
        <translation>tiene dos bloques EXIF</translation>
    </message>
    <message>
        <source>its WebP data breaks off</source>
        <translation>sus datos WebP se cortan</translation>
    </message>
    <message>
        <source>its WebP data holds no picture</source>
        <translation>sus datos WebP no contienen ninguna imagen</translation>
    </message>
    <message>
        <source>its %1 cannot be changed in place</source>
        <translation>su %1 no se puede cambiar en su sitio</translation>
    </message>
    <message>
        <source>its date cannot be changed in its %1 data</source>
        <translation>su fecha no se puede cambiar en sus datos %1</translation>
    </message>
    <message>
        <source>its %1 cannot be changed in its %2 data</source>
        <translation>su %1 no se puede cambiar en sus datos %2</translation>
    </message>
    <message>
        <source>it breaks off before its end</source>
        <translation>se corta antes del final</translation>
    </message>
    <message>
        <source>its text is damaged</source>
        <translation>su texto está dañado</translation>
    </message>
    <message>
        <source>it has too many properties</source>
        <translation>tiene demasiadas propiedades</translation>
    </message>
    <message>
        <source>%1 is unchanged: %2</source>
        <translation>%1 no ha cambiado: %2</translation>
    </message>
    <message>
        <source>%1 was edited, but the catalogue could not be updated (%2). The next run updates it</source>
        <translation>%1 se editó, pero no se pudo actualizar el catálogo (%2). La próxima ejecución de lumidex lo actualiza</translation>
    </message>
    <message>
        <source>%1 cannot be read back as what was written</source>
        <translation>%1 no se puede volver a leer tal como se escribió</translation>
    </message>
    <message>
        <source>%1 is left as it is, because it belongs to %2</source>
        <translation>%1 se deja como está, porque pertenece a %2</translation>
    </message>
    <message>
        <source>%1 is missing for now, but its versions are kept (%2). Free space on its disk and run &quot;lumidex undo&quot; again</source>
        <translation>%1 falta por ahora, pero sus versiones están guardadas (%2). Libere espacio en su disco y ejecute «lumidex undo» otra vez</translation>
    </message>
    <message>
        <source>%1 is left as it is: another program changed %2, where its other version was kept</source>
        <translation>%1 se deja como está: otro programa cambió %2, donde se guardaba su otra versión</translation>
    </message>
    <message>
        <source>%1 is left as it is: its disk has no room for its other version (%2 bytes). Free space there and try again</source>
        <translation>%1 se deja como está: en su disco no hay sitio para su otra versión (%2 bytes). Libere espacio allí e inténtelo de nuevo</translation>
    </message>
    <message>
        <source>%1 is left as it is: its other version is no longer kept</source>
        <translation>%1 se deja como está: su otra versión ya no está guardada</translation>
    </message>
    <message>
        <source>%1 was changed later and is left as it is</source>
        <translation>%1 cambió después y se deja como está</translation>
    </message>
    <message>
        <source>%1 no longer exists</source>
        <translation>%1 ya no existe</translation>
    </message>
    <message>
        <source>%1 cannot be reached: its disk may not be connected</source>
        <translation>no se puede acceder a %1: quizá su disco no esté conectado</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>no se puede leer %1: %2</translation>
    </message>
    <message>
        <source>The undo journal %1 cannot be used: %2</source>
        <translation>El registro de deshacer %1 no se puede usar: %2</translation>
    </message>
    <message>
        <source>another program is renaming or editing photos with it; try again when that has finished</source>
        <translation>otro programa está renombrando o editando fotos con él; inténtelo de nuevo cuando haya terminado</translation>
    </message>
    <message>
        <source>no step is started without %1 MiB free for finishing and undoing it (%2)</source>
        <translation>no se empieza ningún paso sin %1 MiB libres para terminarlo y deshacerlo (%2)</translation>
    </message>
    <message>
        <source>there is no room for undoing it (%1)</source>
        <translation>no hay sitio para deshacerlo (%1)</translation>
    </message>
    <message>
        <source>Cannot change the target of the link %1: %2</source>
        <translation>No se puede cambiar el destino del enlace %1: %2</translation>
    </message>
    <message>
        <source>Cannot move %1 to the trash: %2</source>
        <translation>No se puede mover %1 a la papelera: %2</translation>
    </message>
    <message>
        <source>no free name in the trash</source>
        <translation>no hay ningún nombre libre en la papelera</translation>
    </message>
    <message>
        <source>another file has that name</source>
        <translation>otro archivo tiene ese nombre</translation>
    </message>
    <message>
        <source>another file has its former name</source>
        <translation>otro archivo tiene su nombre anterior</translation>
    </message>
    <message>
        <source>it is on another volume</source>
        <translation>está en otro volumen</translation>
    </message>
    <message>
        <source>it is no longer a file</source>
        <translation>ya no es un archivo</translation>
    </message>
    <message>
        <source>%1 was kept, because its photo was kept</source>
        <translation>%1 se conservó, porque se conservó su foto</translation>
    </message>
    <message>
        <source>%1 was kept, because the photo kept in its place, %2, no longer exists</source>
        <translation>%1 se conservó, porque la foto conservada en su lugar, %2, ya no existe</translation>
    </message>
    <message>
        <source>%1 is in the trash as %2, which cannot be reached: its disk may not be connected</source>
        <translation>%1 está en la papelera como %2, a la que no se puede acceder: quizá su disco no esté conectado</translation>
    </message>
    <message>
        <source>%1 may be in the trash as %2, which cannot be read: %3</source>
        <translation>%1 quizá esté en la papelera como %2, que no se puede leer: %3</translation>
    </message>
    <message>
        <source>%1 is no longer in the trash; another file has its name</source>
        <translation>%1 ya no está en la papelera; otro archivo tiene su nombre</translation>
    </message>
    <message>
        <source>%1 is no longer in the trash and cannot be brought back</source>
        <translation>%1 ya no está en la papelera y no se puede recuperar</translation>
    </message>
    <message>
        <source>%1 remains in the trash as %2: %3</source>
        <translation>%1 sigue en la papelera como %2: %3</translation>
    </message>
    <message>
        <source>The album &quot;%1&quot; is kept, because photos were added to it later</source>
        <translation>El álbum «%1» se conserva, porque después se le añadieron fotos</translation>
    </message>
    <message>
        <source>The album &quot;%1&quot; no longer exists</source>
        <translation>El álbum «%1» ya no existe</translation>
    </message>
    <message>
        <source>Another album has the name &quot;%1&quot; now</source>
        <translation>Otro álbum se llama ahora «%1»</translation>
    </message>
    <message>
        <source>%1 is kept: %2.</source>
        <translation>%1 se conserva: %2.</translation>
    </message>
    <message>
        <source>it is already in a trash</source>
        <translation>ya está en una papelera</translation>
    </message>
    <message>
        <source>it is a link to another file</source>
        <translation>es un enlace a otro archivo</translation>
    </message>
    <message>
        <source>it no longer exists</source>
        <translation>ya no existe</translation>
    </message>
    <message>
        <source>it was changed after it was analysed</source>
        <translation>cambió después de analizarse</translation>
    </message>
    <message>
        <source>it was changed after it was compared</source>
        <translation>cambió después de compararse</translation>
    </message>
    <message>
        <source>it is another name of a file that is kept</source>
        <translation>es otro nombre de un archivo que se conserva</translation>
    </message>
    <message>
        <source>it is of the same shot as %1, which is kept</source>
        <translation>es de la misma toma que %1, que se conserva</translation>
    </message>
    <message>
        <source>it is like others of its group, but not like the photo to keep, %1</source>
        <translation>se parece a otras de su grupo, pero no a la foto que conviene conservar, %1</translation>
    </message>
    <message>
        <source>it has tags or albums that the photo to keep, %1, does not have</source>
        <translation>tiene etiquetas o álbumes que la foto que conviene conservar, %1, no tiene</translation>
    </message>
    <message>
        <source>it is a raw file, and no raw file of its group is kept</source>
        <translation>es un archivo RAW, y no se conserva ningún archivo RAW de su grupo</translation>
    </message>
    <message>
        <source>its settings, %1, would be lost: the photo to keep, %2, does not have them</source>
        <translation>se perderían sus ajustes, %1: la foto que conviene conservar, %2, no los tiene</translation>
    </message>
    <message>
        <source>the link %1 leads to it</source>
        <translation>el enlace %1 lleva a ella</translation>
    </message>
    <message>
        <source>%1, to which it belongs, is kept</source>
        <translation>%1, a la que pertenece, se conserva</translation>
    </message>
    <message>
        <source>the settings in %1 were changed</source>
        <translation>los ajustes de %1 han cambiado</translation>
    </message>
    <message>
        <source>the photo to keep, %1, no longer exists</source>
        <translation>la foto que conviene conservar, %1, ya no existe</translation>
    </message>
    <message>
        <source>the photo to keep, %1, was changed after it was analysed</source>
        <translation>la foto que conviene conservar, %1, cambió después de analizarse</translation>
    </message>
    <message>
        <source>the photo to keep, %1, is no longer a file</source>
        <translation>la foto que conviene conservar, %1, ya no es un archivo</translation>
    </message>
    <message>
        <source>the photo to keep, %1, cannot be read (%2)</source>
        <translation>la foto que conviene conservar, %1, no se puede leer (%2)</translation>
    </message>
    <message>
        <source>the photo to keep, %1, is in a trash</source>
        <translation>la foto que conviene conservar, %1, está en una papelera</translation>
    </message>
    <message>
        <source>the photo to keep, %1, is a link to another file</source>
        <translation>la foto que conviene conservar, %1, es un enlace a otro archivo</translation>
    </message>
    <message>
        <source>the photo to keep, %1, breaks off before the end of its picture</source>
        <translation>la foto que conviene conservar, %1, se corta antes del final de su imagen</translation>
    </message>
    <message>
        <source>the photo to keep, %1, is damaged: %2</source>
        <translation>la foto que conviene conservar, %1, está dañada: %2</translation>
    </message>
    <message>
        <source>Interrupted undo of &quot;%1&quot; is now complete.</source>
        <translation>Se ha completado ahora el deshacer interrumpido de «%1».</translation>
    </message>
    <message>
        <source>Interrupted redo of &quot;%1&quot; is now complete.</source>
        <translation>Se ha completado ahora el rehacer interrumpido de «%1».</translation>
    </message>
    <message>
        <source>Interrupted undo of &quot;%1&quot; is now complete, except for:</source>
        <translation>Se ha completado ahora el deshacer interrumpido de «%1», salvo:</translation>
    </message>
    <message>
        <source>Interrupted redo of &quot;%1&quot; is now complete, except for:</source>
        <translation>Se ha completado ahora el rehacer interrumpido de «%1», salvo:</translation>
    </message>
    <message>
        <source>Interrupted step &quot;%1&quot; is now complete.</source>
        <translation>Se ha completado ahora el paso interrumpido «%1».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was interrupted and will be finished once %2 can be reached.</source>
        <translation>«%1» se interrumpió y se terminará en cuanto se pueda acceder a %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was interrupted and cannot be finished (%2); the files have their former names.</source>
        <translation>«%1» se interrumpió y no se puede terminar (%2); los archivos tienen sus nombres anteriores.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was interrupted and cannot be finished (%2), nor undone (%3).</source>
        <translation>«%1» se interrumpió y no se puede terminar (%2) ni deshacer (%3).</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was interrupted. Photos edited: %2; the others are unchanged.</source>
        <translation>«%1» se interrumpió. Fotos editadas: %2; las demás no han cambiado.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was interrupted. Copies made: %2; run the same import to copy the rest.</source>
        <translation>«%1» se interrumpió. Copias hechas: %2; repita la misma importación para copiar el resto.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was interrupted. Files moved: %2; the others are where they were.</source>
        <translation>«%1» se interrumpió. Archivos movidos: %2; los demás están donde estaban.</translation>
    </message>
    <message>
        <source>Originals that this catalogue does not know were moved to %1.</source>
        <translation>Los originales que este catálogo no conoce se movieron a %1.</translation>
    </message>
    <message>
        <source>%1 and its sidecar disagree, because only one of them was edited (%2).</source>
        <translation>%1 y su archivo auxiliar no concuerdan, porque solo se editó uno de los dos (%2).</translation>
    </message>
    <message>
        <source>It cannot be read</source>
        <translation>No se puede leer</translation>
    </message>
    <message>
        <source>It is a pipe or a device</source>
        <translation>Es una tubería o un dispositivo</translation>
    </message>
    <message>
        <source>It is not a regular file</source>
        <translation>No es un archivo normal</translation>
    </message>
    <message>
        <source>It is empty</source>
        <translation>Está vacío</translation>
    </message>
    <message>
        <source>It is damaged: %1</source>
        <translation>Está dañado: %1</translation>
    </message>
    <message>
        <source>Its picture format is not known</source>
        <translation>Su formato de imagen es desconocido</translation>
    </message>
    <message>
        <source>Its name is not valid text</source>
        <translation>Su nombre no es un texto válido</translation>
    </message>
    <message>
        <source>It is named like a housekeeping file, but may be a picture or a video</source>
        <translation>Se llama como un archivo de gestión, pero puede ser una imagen o un vídeo</translation>
    </message>
    <message>
        <source>The link leads to a file that is missing</source>
        <translation>El enlace lleva a un archivo que falta</translation>
    </message>
    <message>
        <source>The link leads to a file that cannot be read</source>
        <translation>El enlace lleva a un archivo que no se puede leer</translation>
    </message>
    <message>
        <source>The link leads back to itself</source>
        <translation>El enlace lleva de vuelta a sí mismo</translation>
    </message>
    <message>
        <source>The link leads to a folder that cannot be read</source>
        <translation>El enlace lleva a una carpeta que no se puede leer</translation>
    </message>
    <message>
        <source>The link leads back to a folder above it</source>
        <translation>El enlace lleva de vuelta a una carpeta superior</translation>
    </message>
    <message>
        <source>The link leads to a folder that was already visited</source>
        <translation>El enlace lleva a una carpeta que ya se recorrió</translation>
    </message>
    <message>
        <source>%1 is hidden</source>
        <translation>%1 está oculto</translation>
    </message>
    <message>
        <source>%1 is not named like a photo</source>
        <translation>%1 no tiene nombre de foto</translation>
    </message>
    <message>
        <source>%1 is a link to a file that is missing</source>
        <translation>%1 es un enlace a un archivo que falta</translation>
    </message>
    <message>
        <source>it was changed while it was copied</source>
        <translation>cambió mientras se copiaba</translation>
    </message>
    <message>
        <source>the copy differs from the original</source>
        <translation>la copia difiere del original</translation>
    </message>
    <message>
        <source>the copy cannot be written: %1</source>
        <translation>no se puede escribir la copia: %1</translation>
    </message>
    <message>
        <source>the copy cannot be read back: %1</source>
        <translation>no se puede volver a leer la copia: %1</translation>
    </message>
    <message>
        <source>the copy cannot be recorded</source>
        <translation>no se puede registrar la copia</translation>
    </message>
    <message>
        <source>another file got the name %1 meanwhile</source>
        <translation>otro archivo obtuvo entretanto el nombre %1</translation>
    </message>
    <message>
        <source>it is identical to %1, which could not be copied</source>
        <translation>es idéntico a %1, que no se pudo copiar</translation>
    </message>
    <message>
        <source>the import was interrupted</source>
        <translation>se interrumpió la importación</translation>
    </message>
    <message>
        <source>It may be any of %1 photos that are missing</source>
        <translation>Puede ser cualquiera de %1 fotos que faltan</translation>
    </message>
    <message>
        <source>It is missing, and %1 files may be it</source>
        <translation>Falta, y %1 archivos pueden serlo</translation>
    </message>
    <message>
        <source>It was changed or replaced, and a file has its former content</source>
        <translation>Cambió o fue sustituida, y un archivo tiene su contenido anterior</translation>
    </message>
    <message>
        <source>identical files</source>
        <translation>archivos idénticos</translation>
    </message>
    <message>
        <source>the same pixels</source>
        <translation>los mismos píxeles</translation>
    </message>
    <message>
        <source>the same picture, smaller</source>
        <translation>la misma imagen, más pequeña</translation>
    </message>
    <message>
        <source>the same picture, larger</source>
        <translation>la misma imagen, más grande</translation>
    </message>
    <message>
        <source>the same picture, compressed again or in another format</source>
        <translation>la misma imagen, comprimida de nuevo o en otro formato</translation>
    </message>
    <message>
        <source>the same picture, mirrored</source>
        <translation>la misma imagen, reflejada</translation>
    </message>
    <message>
        <source>the same picture, brighter</source>
        <translation>la misma imagen, más clara</translation>
    </message>
    <message>
        <source>the same picture, darker</source>
        <translation>la misma imagen, más oscura</translation>
    </message>
    <message>
        <source>the same picture, with more contrast</source>
        <translation>la misma imagen, con más contraste</translation>
    </message>
    <message>
        <source>the same picture, with less contrast</source>
        <translation>la misma imagen, con menos contraste</translation>
    </message>
    <message>
        <source>the same picture, sharpened</source>
        <translation>la misma imagen, enfocada</translation>
    </message>
    <message>
        <source>the same picture, changed all over</source>
        <translation>la misma imagen, cambiada por completo</translation>
    </message>
    <message>
        <source>the same picture, larger and with more detail</source>
        <translation>la misma imagen, más grande y con más detalle</translation>
    </message>
    <message>
        <source>the same picture with a border or a caption</source>
        <translation>la misma imagen con un borde o un texto</translation>
    </message>
    <message>
        <source>the same picture without colours</source>
        <translation>la misma imagen sin colores</translation>
    </message>
    <message>
        <source>the same picture with colours</source>
        <translation>la misma imagen con colores</translation>
    </message>
    <message>
        <source>the same picture as far as a preview shows</source>
        <translation>la misma imagen, por lo que muestra una vista previa</translation>
    </message>
    <message>
        <source>the same picture as far as so few pixels show</source>
        <translation>la misma imagen, por lo que muestran tan pocos píxeles</translation>
    </message>
    <message>
        <source>the same picture as far as it shows when it is made smaller</source>
        <translation>la misma imagen, por lo que se ve al reducirla</translation>
    </message>
    <message>
        <source>the same picture, but for something small at %1</source>
        <translation>la misma imagen, salvo algo pequeño %1</translation>
    </message>
    <message>
        <source>nearly the same view</source>
        <translation>casi la misma vista</translation>
    </message>
    <message>
        <source>the same view, turned a little</source>
        <translation>la misma vista, algo girada</translation>
    </message>
    <message>
        <source>the same view, cropped</source>
        <translation>la misma vista, recortada</translation>
    </message>
    <message>
        <source>the same view with more around it</source>
        <translation>la misma vista con más alrededor</translation>
    </message>
    <message>
        <source>the same view, brighter</source>
        <translation>la misma vista, más clara</translation>
    </message>
    <message>
        <source>the same view, darker</source>
        <translation>la misma vista, más oscura</translation>
    </message>
    <message>
        <source>another plain colour</source>
        <translation>otro color liso</translation>
    </message>
    <message>
        <source>shows something else</source>
        <translation>muestra otra cosa</translation>
    </message>
    <message>
        <source>differs in some places</source>
        <translation>difiere en algunos sitios</translation>
    </message>
    <message>
        <source>differs at %1</source>
        <translation>difiere %1</translation>
    </message>
    <message>
        <source>the upper left</source>
        <translation>arriba a la izquierda</translation>
    </message>
    <message>
        <source>the top</source>
        <translation>arriba</translation>
    </message>
    <message>
        <source>the upper right</source>
        <translation>arriba a la derecha</translation>
    </message>
    <message>
        <source>the left</source>
        <translation>a la izquierda</translation>
    </message>
    <message>
        <source>the middle</source>
        <translation>en el centro</translation>
    </message>
    <message>
        <source>the right</source>
        <translation>a la derecha</translation>
    </message>
    <message>
        <source>the lower left</source>
        <translation>abajo a la izquierda</translation>
    </message>
    <message>
        <source>the bottom</source>
        <translation>abajo</translation>
    </message>
    <message>
        <source>the lower right</source>
        <translation>abajo a la derecha</translation>
    </message>
    <message>
        <source>it cannot be compared: %1</source>
        <translation>no se puede comparar: %1</translation>
    </message>
    <message>
        <source>the photo to keep cannot be compared: %1</source>
        <translation>la foto que conviene conservar no se puede comparar: %1</translation>
    </message>
    <message>
        <source>it has too few pixels</source>
        <translation>tiene muy pocos píxeles</translation>
    </message>
    <message>
        <source>it is partly transparent</source>
        <translation>es transparente en parte</translation>
    </message>
    <message>
        <source>it breaks off before the end of its picture</source>
        <translation>se corta antes del final de su imagen</translation>
    </message>
    <message>
        <source>it holds more behind its picture</source>
        <translation>contiene más datos después de su imagen</translation>
    </message>
    <message>
        <source>of several pictures in a file only the first can be compared</source>
        <translation>de varias imágenes en un archivo solo se puede comparar la primera</translation>
    </message>
    <message>
        <source>there is not enough memory to compare it</source>
        <translation>no hay suficiente memoria para compararla</translation>
    </message>
    <message>
        <source>nothing of the picture can be decoded</source>
        <translation>no se puede decodificar nada de la imagen</translation>
    </message>
    <message>
        <source>the head of the picture is damaged</source>
        <translation>el principio de la imagen está dañado</translation>
    </message>
    <message>
        <source>a part of the picture is damaged</source>
        <translation>una parte de la imagen está dañada</translation>
    </message>
    <message>
        <source>its content is not a picture of a known format</source>
        <translation>su contenido no es una imagen de formato conocido</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>el archivo está vacío</translation>
    </message>
    <message>
        <source>the system lets nobody move it; take its attribute &quot;immutable&quot; away</source>
        <translation>el sistema no deja que nadie lo mueva; quítele el atributo «immutable»</translation>
    </message>
    <message>
        <source>has a link of the same name beside it, which would not be renamed: %1</source>
        <translation>al lado hay un enlace del mismo nombre que no se renombraría: %1</translation>
    </message>
    <message>
        <source>has no date</source>
        <translation>no tiene fecha</translation>
    </message>
    <message>
        <source>has no readable date: %1</source>
        <translation>no tiene ninguna fecha legible: %1</translation>
    </message>
    <message>
        <source>is given twice</source>
        <translation>se indicó dos veces</translation>
    </message>
    <message>
        <source>%1 is a link to somewhere else, and imports do not write through links. Remove the link, then import again.</source>
        <translation>%1 es un enlace a otro lugar, y al importar no se escribe a través de enlaces. Elimine el enlace y vuelva a importar.</translation>
    </message>
    <message>
        <source>%1 is no file, and imports keep one there. Remove it, then import again.</source>
        <translation>%1 no es un archivo, y la importación guarda uno allí. Elimínelo y vuelva a importar.</translation>
    </message>
    <message>
        <source>%1 is a second name of another file (a hard link), and imports do not write to such. Put a copy of it in its place, or remove it, then import again.</source>
        <translation>%1 es un segundo nombre de otro archivo (un enlace duro), y al importar no se escribe en tales archivos. Ponga una copia en su lugar, o elimínelo, y vuelva a importar.</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 no es una carpeta.</translation>
    </message>
    <message>
        <source>There is not enough space in %1: %2 bytes are needed, %3 are free.</source>
        <translation>No hay sitio suficiente en %1: se necesitan %2 bytes y quedan %3.</translation>
    </message>
    <message>
        <source>would be the name of two photos: %1</source>
        <translation>sería el nombre de dos fotos: %1</translation>
    </message>
    <message>
        <source>would be the name of two files: %1</source>
        <translation>sería el nombre de dos archivos: %1</translation>
    </message>
    <message>
        <source>is the name of another file: %1</source>
        <translation>es el nombre de otro archivo: %1</translation>
    </message>
    <message>
        <source>is the name of another photo or its sidecar: %1</source>
        <translation>es el nombre de otra foto o de su archivo auxiliar: %1</translation>
    </message>
    <message>
        <source>is the name of a photo that cannot be renamed: %1</source>
        <translation>es el nombre de una foto que no se puede renombrar: %1</translation>
    </message>
    <message>
        <source>holds a separator of folders %1</source>
        <translation>contiene el separador de carpetas %1</translation>
    </message>
    <message>
        <source>holds the sign for unreadable characters</source>
        <translation>contiene el signo de los caracteres ilegibles</translation>
    </message>
    <message>
        <source>holds a control character</source>
        <translation>contiene un carácter de control</translation>
    </message>
    <message>
        <source>holds the character %1</source>
        <translation>contiene el carácter %1</translation>
    </message>
    <message>
        <source>begins with a dot, which hides the file</source>
        <translation>empieza por un punto, que oculta el archivo</translation>
    </message>
    <message>
        <source>is longer than %1 bytes</source>
        <translation>tiene más de %1 bytes</translation>
    </message>
    <message>
        <source>names a device of Windows</source>
        <translation>designa un dispositivo de Windows</translation>
    </message>
    <message>
        <source>ends in a dot, which Windows drops</source>
        <translation>termina en un punto, que Windows suprime</translation>
    </message>
    <message>
        <source>ends in a blank, which Windows drops</source>
        <translation>termina en un espacio, que Windows suprime</translation>
    </message>
    <message>
        <source>is not valid UTF-8</source>
        <translation>no es UTF-8 válido</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Select folder</source>
        <translation>Seleccionar carpeta</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sí</translation>
    </message>
    <message>
        <source>Yes to &amp;All</source>
        <translation>Sí a &amp;todo</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>N&amp;o to All</source>
        <translation>N&amp;o a todo</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Guardar todo</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorar</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Interrumpir</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>Restaurar valores predeterminados</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>Albums</source>
        <translation>Álbumes</translation>
    </message>
    <message>
        <source>Proposed albums</source>
        <translation>Álbumes propuestos</translation>
    </message>
    <message>
        <source>Similar photos</source>
        <translation>Fotos similares</translation>
    </message>
    <message>
        <source>Groups by year</source>
        <translation>Grupos por año</translation>
    </message>
    <message>
        <source>No similar photos</source>
        <translation>No hay fotos similares</translation>
    </message>
    <message>
        <source>Groups appear here once the catalogue holds photos that are alike.</source>
        <translation>Los grupos aparecerán aquí en cuanto el catálogo contenga fotos parecidas.</translation>
    </message>
    <message>
        <source>Albums by year</source>
        <translation>Álbumes por año</translation>
    </message>
    <message>
        <source>No albums yet</source>
        <translation>Todavía no hay álbumes</translation>
    </message>
    <message>
        <source>Albums appear here once there are enough photos of a holiday or of a month&apos;s weekends. Scan more folders and try again.</source>
        <translation>Los álbumes aparecerán aquí en cuanto haya suficientes fotos de un día festivo o de los fines de semana de un mes. Explore más carpetas e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Unnamed album</source>
        <translation>Álbum sin nombre</translation>
    </message>
    <message>
        <source>Undated</source>
        <translation>Sin fecha</translation>
    </message>
    <message>
        <source>Accepted</source>
        <translation>Aceptado</translation>
    </message>
    <message>
        <source>No picture</source>
        <translation>Sin imagen</translation>
    </message>
    <message numerus="yes">
        <source>and %1 more</source>
        <translation>
            <numerusform>y %1 más</numerusform>
            <numerusform>y %1 más</numerusform>
        </translation>
    </message>
    <message>
        <source>Made with Lumidex. This page holds all its pictures and needs no other file.</source>
        <translation>Hecho con Lumidex. Esta página contiene todas sus imágenes y no necesita ningún otro archivo.</translation>
    </message>
</context>
<context>
    <name>Terminal</name>
    <message>
        <source>Drawing</source>
        <translation>Dibujando</translation>
    </message>
    <message>
        <source>pictures</source>
        <comment>of so many</comment>
        <translation>imágenes</translation>
    </message>
    <message>
        <source>The catalogue holds no photos yet. Run: lumidex scan DIR</source>
        <translation>El catálogo todavía no contiene fotos. Ejecute: lumidex scan CARPETA</translation>
    </message>
    <message numerus="yes">
        <source>All %1 photos of the catalogue were missing at the last scan. Is a disk not connected?</source>
        <translation>
            <numerusform>La %1 foto del catálogo faltaba en la última exploración. ¿Hay algún disco sin conectar?</numerusform>
            <numerusform>Las %1 fotos del catálogo faltaban en la última exploración. ¿Hay algún disco sin conectar?</numerusform>
        </translation>
    </message>
    <message>
        <source>Interrupted.</source>
        <translation>Interrumpido.</translation>
    </message>
    <message>
        <source>No album was accepted.</source>
        <translation>No se aceptó ningún álbum.</translation>
    </message>
    <message>
        <source>The page %1 is written; it shows all chosen albums as accepted.</source>
        <translation>La página %1 está escrita; muestra como aceptados todos los álbumes elegidos.</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>sí</translation>
    </message>
    <message numerus="yes">
        <source>yes, %1 more now</source>
        <translation>
            <numerusform>sí, ahora %1 más</numerusform>
            <numerusform>sí, ahora %1 más</numerusform>
        </translation>
    </message>
    <message>
        <source>ALBUM</source>
        <translation>ÁLBUM</translation>
    </message>
    <message>
        <source>WHEN</source>
        <translation>CUÁNDO</translation>
    </message>
    <message>
        <source>FIRST DAY</source>
        <translation>PRIMER DÍA</translation>
    </message>
    <message>
        <source>LAST DAY</source>
        <translation>ÚLTIMO DÍA</translation>
    </message>
    <message>
        <source>PHOTOS</source>
        <translation>FOTOS</translation>
    </message>
    <message>
        <source>ACCEPTED</source>
        <translation>ACEPTADO</translation>
    </message>
    <message numerus="yes">
        <source>%1 (%2 photos)</source>
        <translation>
            <numerusform>%1 (%2 foto)</numerusform>
            <numerusform>%1 (%2 fotos)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Accepted %1: %2 photos.</source>
        <translation>
            <numerusform>Aceptado %1: %2 foto.</numerusform>
            <numerusform>Aceptado %1: %2 fotos.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Added %1 photos to %2, which was accepted before.</source>
        <translation>
            <numerusform>Se añadió %1 foto a %2, aceptado anteriormente.</numerusform>
            <numerusform>Se añadieron %1 fotos a %2, aceptado anteriormente.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 was accepted before, and there are no photos to add.</source>
        <translation>%1 ya estaba aceptado y no hay fotos que añadir.</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos</source>
        <comment>albums from</comment>
        <translation>
            <numerusform>%1 foto</numerusform>
            <numerusform>%1 fotos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 of them have no date</source>
        <comment>photos; how many</comment>
        <translation>
            <numerusform>%1, %2 de ellas sin fecha</numerusform>
            <numerusform>%1, %2 de ellas sin fecha</numerusform>
        </translation>
    </message>
    <message>
        <source>No album has been accepted yet. &quot;lumidex albums&quot; shows proposals.</source>
        <translation>Todavía no se ha aceptado ningún álbum. «lumidex albums» muestra propuestas.</translation>
    </message>
    <message numerus="yes">
        <source>%1 accepted albums.</source>
        <translation>
            <numerusform>%1 álbum aceptado.</numerusform>
            <numerusform>%1 álbumes aceptados.</numerusform>
        </translation>
    </message>
    <message>
        <source>No albums to propose from %1: an album needs 20 photos or more of one
holiday, or of the weekends of one month.</source>
        <translation>No hay álbumes que proponer a partir de %1: un álbum necesita al menos 20 fotos
de un mismo día festivo o de los fines de semana de un mes.</translation>
    </message>
    <message numerus="yes">
        <source>%1 albums</source>
        <translation>
            <numerusform>%1 álbum</numerusform>
            <numerusform>%1 álbumes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 from %2; %3 accepted.</source>
        <comment>albums, photos, how many</comment>
        <translation>
            <numerusform>%1 a partir de %2; %3 aceptado.</numerusform>
            <numerusform>%1 a partir de %2; %3 aceptados.</numerusform>
        </translation>
    </message>
    <message>
        <source>Calendar: %1 (from the server)</source>
        <translation>Calendario: %1 (del servidor)</translation>
    </message>
    <message>
        <source>Calendar: %1</source>
        <translation>Calendario: %1</translation>
    </message>
    <message>
        <source>The calendar has no holidays for %1.</source>
        <translation>El calendario no tiene días festivos para %1.</translation>
    </message>
    <message>
        <source>HOLIDAY</source>
        <translation>DÍA FESTIVO</translation>
    </message>
    <message>
        <source>DAYS</source>
        <translation>DÍAS</translation>
    </message>
    <message>
        <source>(no name)</source>
        <translation>(sin nombre)</translation>
    </message>
    <message numerus="yes">
        <source>%1 holidays for %2.</source>
        <translation>
            <numerusform>%1 día festivo para %2.</numerusform>
            <numerusform>%1 días festivos para %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: no mistakes found.</source>
        <translation>%1: no se encontraron errores.</translation>
    </message>
    <message>
        <source>event %1</source>
        <translation>evento %1</translation>
    </message>
    <message>
        <source>list</source>
        <comment>of the events of a language</comment>
        <translation>lista</translation>
    </message>
    <message numerus="yes">
        <source>%1: %2 mistakes found.</source>
        <translation>
            <numerusform>%1: se encontró %2 error.</numerusform>
            <numerusform>%1: se encontraron %2 errores.</numerusform>
        </translation>
    </message>
    <message>
        <source>The calendar was not updated: %1</source>
        <translation>El calendario no se actualizó: %1</translation>
    </message>
    <message>
        <source>There is no calendar.</source>
        <translation>No hay ningún calendario.</translation>
    </message>
    <message>
        <source>Still in use: %1</source>
        <translation>Sigue en uso: %1</translation>
    </message>
    <message>
        <source>The calendar was updated: %1</source>
        <translation>El calendario se actualizó: %1</translation>
    </message>
    <message>
        <source>The calendar is up to date: %1</source>
        <translation>El calendario está al día: %1</translation>
    </message>
    <message>
        <source>The holiday calendar could not be read completely, so holidays are missing. Run: lumidex calendar check, or lumidex calendar update.</source>
        <translation>El calendario de días festivos no se pudo leer por completo, por lo que faltan días festivos. Ejecute: lumidex calendar check o lumidex calendar update.</translation>
    </message>
    <message>
        <source>The holiday calendar %1 could not be read completely, so holidays are missing. Run: lumidex calendar check, or lumidex calendar update.</source>
        <translation>El calendario de días festivos %1 no se pudo leer por completo, por lo que faltan días festivos. Ejecute: lumidex calendar check o lumidex calendar update.</translation>
    </message>
    <message>
        <source>unreadable</source>
        <translation>ilegible</translation>
    </message>
    <message>
        <source>Volume of</source>
        <translation>Volumen de</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>Needed</source>
        <translation>Necesario</translation>
    </message>
    <message>
        <source>Free</source>
        <comment>room on a disk</comment>
        <translation>Libre</translation>
    </message>
    <message>
        <source>unknown</source>
        <comment>free room</comment>
        <translation>desconocido</translation>
    </message>
    <message numerus="yes">
        <source>%1 files checked</source>
        <translation>
            <numerusform>%1 archivo comprobado</numerusform>
            <numerusform>%1 archivos comprobados</numerusform>
        </translation>
    </message>
    <message>
        <source>no problems found.</source>
        <translation>no se encontraron problemas.</translation>
    </message>
    <message>
        <source>Interrupted. Nothing was changed.</source>
        <translation>Interrumpido. No se cambió nada.</translation>
    </message>
    <message>
        <source>There are no photos in the given folders.</source>
        <translation>No hay fotos en las carpetas indicadas.</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>Probando</translation>
    </message>
    <message>
        <source>photos</source>
        <comment>of so many</comment>
        <translation>fotos</translation>
    </message>
    <message>
        <source>Editing</source>
        <translation>Editando</translation>
    </message>
    <message>
        <source>upright</source>
        <translation>derecha</translation>
    </message>
    <message>
        <source>mirrored</source>
        <translation>reflejada</translation>
    </message>
    <message>
        <source>upside down</source>
        <translation>boca abajo</translation>
    </message>
    <message>
        <source>upside down, mirrored</source>
        <translation>boca abajo, reflejada</translation>
    </message>
    <message>
        <source>turned left, mirrored</source>
        <translation>girada a la izquierda, reflejada</translation>
    </message>
    <message>
        <source>turned right</source>
        <translation>girada a la derecha</translation>
    </message>
    <message>
        <source>turned right, mirrored</source>
        <translation>girada a la derecha, reflejada</translation>
    </message>
    <message>
        <source>turned left</source>
        <translation>girada a la izquierda</translation>
    </message>
    <message>
        <source>no date</source>
        <translation>sin fecha</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos would be edited. This was a dry run: nothing was changed.</source>
        <translation>
            <numerusform>Se editaría %1 foto. Era un simulacro: no se cambió nada.</numerusform>
            <numerusform>Se editarían %1 fotos. Era un simulacro: no se cambió nada.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>No se cambió nada.</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos edited; &quot;lumidex undo&quot; undoes it.</source>
        <translation>
            <numerusform>%1 foto editada; «lumidex undo» lo deshace.</numerusform>
            <numerusform>%1 fotos editadas; «lumidex undo» lo deshace.</numerusform>
        </translation>
    </message>
    <message>
        <source>Cannot be edited</source>
        <translation>No se pueden editar</translation>
    </message>
    <message>
        <source>Not edited</source>
        <translation>Sin editar</translation>
    </message>
    <message>
        <source>Comparing</source>
        <translation>Comparando</translation>
    </message>
    <message>
        <source>files</source>
        <comment>of so many</comment>
        <translation>archivos</translation>
    </message>
    <message>
        <source>Copying</source>
        <translation>Copiando</translation>
    </message>
    <message>
        <source>Interrupted. The copies made so far are complete and verified; run the same command to copy the rest.</source>
        <translation>Interrumpido. Las copias hechas hasta ahora están completas y verificadas; ejecute la misma orden para copiar el resto.</translation>
    </message>
    <message>
        <source>Would be copied to %1:</source>
        <translation>Se copiarían en %1:</translation>
    </message>
    <message>
        <source>Would be added to the catalogue without copying:</source>
        <translation>Se incorporarían al catálogo sin copiarlas:</translation>
    </message>
    <message>
        <source>Copies of one shot would get different names:</source>
        <translation>Las copias de una misma toma tendrían nombres distintos:</translation>
    </message>
    <message>
        <source>Not copied:</source>
        <translation>No copiados:</translation>
    </message>
    <message>
        <source>Not added to the catalogue:</source>
        <translation>No incorporados al catálogo:</translation>
    </message>
    <message>
        <source>Skipped:</source>
        <translation>Omitidos:</translation>
    </message>
    <message numerus="yes">
        <source>and %1 more (--json lists them)</source>
        <translation>
            <numerusform>y %1 más (--json los enumera)</numerusform>
            <numerusform>y %1 más (--json los enumera)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos are in the catalogue already.</source>
        <translation>
            <numerusform>%1 foto ya está en el catálogo.</numerusform>
            <numerusform>%1 fotos ya están en el catálogo.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files were copied before.</source>
        <translation>
            <numerusform>%1 archivo ya se copió antes.</numerusform>
            <numerusform>%1 archivos ya se copiaron antes.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos occur twice in the sources.</source>
        <translation>
            <numerusform>%1 foto está repetida en los orígenes.</numerusform>
            <numerusform>%1 fotos están repetidas en los orígenes.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was imported.</source>
        <translation>No se importó nada.</translation>
    </message>
    <message>
        <source>Nothing would be imported.</source>
        <translation>No se importaría nada.</translation>
    </message>
    <message numerus="yes">
        <source>%1 files (%2) would be copied</source>
        <translation>
            <numerusform>Se copiaría %1 archivo (%2)</numerusform>
            <numerusform>Se copiarían %1 archivos (%2)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos added without copying.</source>
        <comment>would be</comment>
        <translation>
            <numerusform>%1 foto se incorporaría sin copiarla.</numerusform>
            <numerusform>%1 fotos se incorporarían sin copiarlas.</numerusform>
        </translation>
    </message>
    <message>
        <source>This was a dry run:
nothing was changed.</source>
        <translation>Era un simulacro:
no se cambió nada.</translation>
    </message>
    <message numerus="yes">
        <source>%1 files (%2) copied to %3 and verified.</source>
        <translation>
            <numerusform>%1 archivo (%2) copiado en %3 y verificado.</numerusform>
            <numerusform>%1 archivos (%2) copiados en %3 y verificados.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos added to the catalogue.</source>
        <translation>
            <numerusform>%1 foto incorporada al catálogo.</numerusform>
            <numerusform>%1 fotos incorporadas al catálogo.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files were not copied; run the same command to try again.</source>
        <translation>
            <numerusform>%1 archivo no se copió; ejecute la misma orden para volver a intentarlo.</numerusform>
            <numerusform>%1 archivos no se copiaron; ejecute la misma orden para volver a intentarlo.</numerusform>
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
        <translation>%1 no está disponible; se usa %2.</translation>
    </message>
    <message>
        <source>%1 of %2 %3</source>
        <comment>done, all, what</comment>
        <translation>%1 de %2 %3</translation>
    </message>
    <message>
        <source>%1 of %2 %3 found so far</source>
        <comment>done, all, what</comment>
        <translation>%1 de %2 %3 hasta ahora</translation>
    </message>
    <message>
        <source>%1 left</source>
        <comment>minutes and seconds</comment>
        <translation>quedan %1</translation>
    </message>
    <message>
        <source>y yes</source>
        <comment>answers, all that mean it</comment>
        <translation>s sí</translation>
    </message>
    <message>
        <source>Interrupted. Nothing was renamed.</source>
        <translation>Interrumpido. No se renombró nada.</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Leyendo</translation>
    </message>
    <message>
        <source>Renaming</source>
        <translation>Renombrando</translation>
    </message>
    <message>
        <source>Cannot be renamed:</source>
        <translation>No se pueden renombrar:</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos have no date; the times of their files are used.</source>
        <translation>
            <numerusform>%1 foto no tiene fecha; se usa la hora de su archivo.</numerusform>
            <numerusform>%1 fotos no tienen fecha; se usan las horas de sus archivos.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files have their new names already.</source>
        <translation>
            <numerusform>%1 archivo ya tiene su nombre nuevo.</numerusform>
            <numerusform>%1 archivos ya tienen sus nombres nuevos.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Nothing would be renamed: %1 of %2 photos cannot get their new names.
Add --skip-problems to rename the others.</source>
        <translation>
            <numerusform>No se renombraría nada: el nombre nuevo es imposible para %1 de %2 foto.
Con --skip-problems se renombran las demás.</numerusform>
            <numerusform>No se renombraría nada: el nombre nuevo es imposible para %1 de %2 fotos.
Con --skip-problems se renombran las demás.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Nothing was renamed: %1 of %2 photos cannot get their new names.
Add --skip-problems to rename the others.</source>
        <translation>
            <numerusform>No se renombró nada: el nombre nuevo es imposible para %1 de %2 foto.
Con --skip-problems se renombran las demás.</numerusform>
            <numerusform>No se renombró nada: el nombre nuevo es imposible para %1 de %2 fotos.
Con --skip-problems se renombran las demás.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to rename.</source>
        <translation>No hay nada que renombrar.</translation>
    </message>
    <message numerus="yes">
        <source>%1 would be renamed. This was a dry run: nothing was changed.</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>Se renombraría %1. Era un simulacro: no se cambió nada.</numerusform>
            <numerusform>Se renombrarían %1. Era un simulacro: no se cambió nada.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was renamed.</source>
        <translation>No se renombró nada.</translation>
    </message>
    <message numerus="yes">
        <source>%1 files could not get their old names back.</source>
        <translation>
            <numerusform>A %1 archivo no se le pudo devolver el nombre antiguo.</numerusform>
            <numerusform>A %1 archivos no se les pudo devolver el nombre antiguo.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 renamed; &quot;lumidex undo&quot; undoes it.</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>Se renombró %1; «lumidex undo» lo deshace.</numerusform>
            <numerusform>Se renombraron %1; «lumidex undo» lo deshace.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 renamed.</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>Se renombró %1.</numerusform>
            <numerusform>Se renombraron %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Problemas</translation>
    </message>
    <message>
        <source>Report: %1</source>
        <translation>Informe: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 pictures could not be read; placeholders stand for them.</source>
        <translation>
            <numerusform>%1 imagen no se pudo leer; en su lugar hay un marcador.</numerusform>
            <numerusform>%1 imágenes no se pudieron leer; en su lugar hay marcadores.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Made %1 photos in %2</source>
        <translation>
            <numerusform>Creada %1 foto en %2</numerusform>
            <numerusform>Creadas %1 fotos en %2</numerusform>
        </translation>
    </message>
    <message>
        <source>not an image</source>
        <translation>no es una imagen</translation>
    </message>
    <message>
        <source>loop</source>
        <translation>bucle</translation>
    </message>
    <message>
        <source>Not added:</source>
        <translation>No incorporados:</translation>
    </message>
    <message numerus="yes">
        <source>%1 original</source>
        <comment>dates read</comment>
        <translation>
            <numerusform>%1 de la toma</numerusform>
            <numerusform>%1 de la toma</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 digitised</source>
        <comment>dates read</comment>
        <translation>
            <numerusform>%1 de la digitalización</numerusform>
            <numerusform>%1 de la digitalización</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 file time</source>
        <comment>dates read</comment>
        <translation>
            <numerusform>%1 de la hora del archivo</numerusform>
            <numerusform>%1 de la hora del archivo</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 none</source>
        <comment>dates read</comment>
        <translation>
            <numerusform>%1 sin fecha</numerusform>
            <numerusform>%1 sin fecha</numerusform>
        </translation>
    </message>
    <message>
        <source>Dates read: %1</source>
        <translation>Fechas leídas: %1</translation>
    </message>
    <message numerus="yes">
        <source>files found</source>
        <translation>
            <numerusform>archivo encontrado</numerusform>
            <numerusform>archivos encontrados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>new</source>
        <comment>files</comment>
        <translation>
            <numerusform>nuevo</numerusform>
            <numerusform>nuevos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>read again</source>
        <comment>files</comment>
        <translation>
            <numerusform>leído de nuevo</numerusform>
            <numerusform>leídos de nuevo</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>changed</source>
        <comment>files</comment>
        <translation>
            <numerusform>cambiado</numerusform>
            <numerusform>cambiados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>unchanged</source>
        <comment>files</comment>
        <translation>
            <numerusform>sin cambios</numerusform>
            <numerusform>sin cambios</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>missing, now marked as lost</source>
        <comment>files</comment>
        <translation>
            <numerusform>falta, marcado ahora como perdido</numerusform>
            <numerusform>faltan, marcados ahora como perdidos</numerusform>
        </translation>
    </message>
    <message>
        <source>This was a dry run: nothing was stored.</source>
        <translation>Era un simulacro: no se guardó nada.</translation>
    </message>
    <message>
        <source>Catalogue: %1</source>
        <translation>Catálogo: %1</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>Explorando</translation>
    </message>
    <message>
        <source>Interrupted. What was read so far is in the catalogue; run the same command to continue.</source>
        <translation>Interrumpido. Lo leído hasta ahora está en el catálogo; ejecute la misma orden para continuar.</translation>
    </message>
    <message>
        <source>Analysing</source>
        <translation>Analizando</translation>
    </message>
    <message>
        <source>Grouping</source>
        <translation>Agrupando</translation>
    </message>
    <message>
        <source>Measuring</source>
        <translation>Midiendo</translation>
    </message>
    <message>
        <source>Interrupted. What was moved is in the trash.</source>
        <translation>Interrumpido. Lo movido está en la papelera.</translation>
    </message>
    <message>
        <source>Interrupted. Run the same command to continue.</source>
        <translation>Interrumpido. Ejecute la misma orden para continuar.</translation>
    </message>
    <message>
        <source>Interrupted. Nothing was moved.</source>
        <translation>Interrumpido. No se movió nada.</translation>
    </message>
    <message>
        <source>Move %1 to the trash? [y/N]</source>
        <translation>¿Mover %1 a la papelera? [s/N]</translation>
    </message>
    <message>
        <source>Moving</source>
        <translation>Moviendo</translation>
    </message>
    <message>
        <source>Keep %1</source>
        <comment>a file</comment>
        <translation>Conservar %1</translation>
    </message>
    <message>
        <source>Keep %1: %2</source>
        <comment>a file: why</comment>
        <translation>Conservar %1: %2</translation>
    </message>
    <message>
        <source>%1, %2, score %3</source>
        <comment>pixels, size, number</comment>
        <translation>%1, %2, similitud %3</translation>
    </message>
    <message>
        <source>largest</source>
        <comment>photo</comment>
        <translation>la más grande</translation>
    </message>
    <message>
        <source>sharpest</source>
        <comment>photo</comment>
        <translation>la más nítida</translation>
    </message>
    <message>
        <source>has camera data</source>
        <translation>con datos de la cámara</translation>
    </message>
    <message>
        <source>earliest</source>
        <comment>photo</comment>
        <translation>la más antigua</translation>
    </message>
    <message>
        <source>first by name</source>
        <translation>la primera por nombre</translation>
    </message>
    <message>
        <source>Not compared:</source>
        <translation>Sin comparar:</translation>
    </message>
    <message numerus="yes">
        <source>No similar photos among %1 photos.</source>
        <translation>
            <numerusform>No hay fotos similares entre %1 foto.</numerusform>
            <numerusform>No hay fotos similares entre %1 fotos.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 groups of similar photos</source>
        <translation>
            <numerusform>%1 grupo de fotos similares</numerusform>
            <numerusform>%1 grupos de fotos similares</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>among %1 photos</source>
        <translation>
            <numerusform>entre %1 foto</numerusform>
            <numerusform>entre %1 fotos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos (%2) besides those to keep.</source>
        <translation>
            <numerusform>%1 foto (%2) además de las que conviene conservar.</numerusform>
            <numerusform>%1 fotos (%2) además de las que conviene conservar.</numerusform>
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
        <translation>conservar</translation>
    </message>
    <message>
        <source>trash</source>
        <comment>it goes there</comment>
        <translation>papelera</translation>
    </message>
    <message>
        <source>stay</source>
        <comment>a photo does</comment>
        <translation>se queda</translation>
    </message>
    <message numerus="yes">
        <source>Group %1, %2 photos:</source>
        <translation>
            <numerusform>Grupo %1, %2 foto:</numerusform>
            <numerusform>Grupo %1, %2 fotos:</numerusform>
        </translation>
    </message>
    <message>
        <source>PHOTO</source>
        <translation>FOTO</translation>
    </message>
    <message>
        <source>TO ITS CENTRE</source>
        <translation>CON SU CENTRO</translation>
    </message>
    <message>
        <source>TO ITS OWN CENTRE</source>
        <translation>CON SU PROPIO CENTRO</translation>
    </message>
    <message>
        <source>TO THE OTHER&apos;S</source>
        <translation>CON EL DE LA OTRA</translation>
    </message>
    <message>
        <source>The photos score %1 against each other and are in one group.</source>
        <translation>Las fotos tienen una similitud de %1 entre sí y están en un mismo grupo.</translation>
    </message>
    <message>
        <source>The photos score %1 against each other and are in different groups.</source>
        <translation>Las fotos tienen una similitud de %1 entre sí y están en grupos distintos.</translation>
    </message>
    <message>
        <source>A photo joins the first group whose centre scores above %1 against it. The centre is the
mean of the photos in the group at that time; later photos move it.</source>
        <translation>Una foto se une al primer grupo con cuyo centro su similitud supera %1. El centro es la media
de las fotos que hay en el grupo en ese momento; las fotos posteriores lo desplazan.</translation>
    </message>
    <message>
        <source>Matching all photos again gives the same groups.</source>
        <translation>Al comparar de nuevo todas las fotos resultan los mismos grupos.</translation>
    </message>
    <message>
        <source>&quot;lumidex similar --anew&quot; makes all groups again.</source>
        <translation>«lumidex similar --anew» vuelve a formar todos los grupos.</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos</source>
        <translation>
            <numerusform>%1 foto</numerusform>
            <numerusform>%1 fotos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (%2 files)</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>%1 (%2 archivo)</numerusform>
            <numerusform>%1 (%2 archivos)</numerusform>
        </translation>
    </message>
    <message>
        <source>rename %1</source>
        <comment>so many photos</comment>
        <translation>renombrar %1</translation>
    </message>
    <message>
        <source>shift dates by %1</source>
        <translation>desplazar fechas %1</translation>
    </message>
    <message>
        <source>set dates to %1</source>
        <translation>poner las fechas en el %1</translation>
    </message>
    <message>
        <source>rotate left</source>
        <translation>girar a la izquierda</translation>
    </message>
    <message>
        <source>rotate right</source>
        <translation>girar a la derecha</translation>
    </message>
    <message>
        <source>rotate 180</source>
        <translation>girar 180°</translation>
    </message>
    <message>
        <source>move similar photos to the trash</source>
        <translation>mover fotos similares a la papelera</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>Yes to all</source>
        <translation>Sí a todo</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>No to all</source>
        <translation>No a todo</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Save all</source>
        <translation>Guardar todo</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorar</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Interrumpir</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Restore defaults</source>
        <translation>Restaurar valores predeterminados</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Nothing to move to the trash.</source>
        <translation>No hay nada que mover a la papelera.</translation>
    </message>
    <message numerus="yes">
        <source>%1 would be moved to the trash. This was a dry run: nothing was changed.</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>Se movería a la papelera %1. Era un simulacro: no se cambió nada.</numerusform>
            <numerusform>Se moverían a la papelera %1. Era un simulacro: no se cambió nada.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was moved.</source>
        <translation>No se movió nada.</translation>
    </message>
    <message numerus="yes">
        <source>%1 moved to the trash; &quot;lumidex undo&quot; brings back what is still there.</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>Se movió a la papelera %1; «lumidex undo» recupera lo que aún esté allí.</numerusform>
            <numerusform>Se movieron a la papelera %1; «lumidex undo» recupera lo que aún esté allí.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 moved to the trash.</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>Se movió a la papelera %1.</numerusform>
            <numerusform>Se movieron a la papelera %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>%1 archivo</numerusform>
            <numerusform>%1 archivos</numerusform>
        </translation>
    </message>
    <message>
        <source>Not moved:</source>
        <translation>Sin mover:</translation>
    </message>
    <message>
        <source>Left where they are</source>
        <translation>Dejados en su lugar</translation>
    </message>
    <message>
        <source>Redoing</source>
        <translation>Rehaciendo</translation>
    </message>
    <message>
        <source>Undoing</source>
        <translation>Deshaciendo</translation>
    </message>
    <message>
        <source>Interrupted. What was done so far stays done.</source>
        <translation>Interrumpido. Lo hecho hasta ahora queda hecho.</translation>
    </message>
    <message numerus="yes">
        <source>Only %1 of the %2 steps that you asked for.</source>
        <translation>
            <numerusform>Solo %1 de los %2 pasos pedidos.</numerusform>
            <numerusform>Solo %1 de los %2 pasos pedidos.</numerusform>
        </translation>
    </message>
    <message>
        <source>The setting %1 is invalid (%2); the default is used.</source>
        <translation>El ajuste %1 no es válido (%2); se usa el valor predeterminado.</translation>
    </message>
    <message>
        <source>undone</source>
        <comment>a step</comment>
        <translation>deshecho</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>No hay nada que deshacer.</translation>
    </message>
    <message>
        <source>WHAT</source>
        <translation>QUÉ</translation>
    </message>
    <message>
        <source>FILES</source>
        <translation>ARCHIVOS</translation>
    </message>
    <message>
        <source>KEPT</source>
        <comment>so many bytes</comment>
        <translation>GUARDADO</translation>
    </message>
    <message>
        <source>Left as they are</source>
        <translation>Dejados como están</translation>
    </message>
    <message>
        <source>Nothing of &quot;%1&quot; was redone.</source>
        <translation>No se rehízo nada de «%1».</translation>
    </message>
    <message>
        <source>Nothing of &quot;%1&quot; was undone.</source>
        <translation>No se deshizo nada de «%1».</translation>
    </message>
    <message>
        <source>Redone: %1.</source>
        <translation>Rehecho: %1.</translation>
    </message>
    <message>
        <source>Undone: %1.</source>
        <translation>Deshecho: %1.</translation>
    </message>
    <message numerus="yes">
        <source>Redone: %1, except for %2 files.</source>
        <translation>
            <numerusform>Rehecho: %1, salvo %2 archivo.</numerusform>
            <numerusform>Rehecho: %1, salvo %2 archivos.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Undone: %1, except for %2 files.</source>
        <translation>
            <numerusform>Deshecho: %1, salvo %2 archivo.</numerusform>
            <numerusform>Deshecho: %1, salvo %2 archivos.</numerusform>
        </translation>
    </message>
    <message>
        <source>Older steps cannot be undone before this one; &quot;lumidex undo --skip&quot; skips it for good.</source>
        <translation>Los pasos anteriores no se pueden deshacer antes que este; «lumidex undo --skip» lo omite para siempre.</translation>
    </message>
    <message>
        <source>There is nothing to skip.</source>
        <translation>No hay nada que omitir.</translation>
    </message>
    <message>
        <source>Skipped: %1.</source>
        <translation>Omitido: %1.</translation>
    </message>
    <message>
        <source>Its originals (%1) are kept until they exceed the limits of undo.</source>
        <translation>Sus originales (%1) se guardan hasta que superen los límites de «undo».</translation>
    </message>
    <message numerus="yes">
        <source>%1 older steps cannot be undone any more.</source>
        <translation>
            <numerusform>%1 paso anterior ya no se puede deshacer.</numerusform>
            <numerusform>%1 pasos anteriores ya no se pueden deshacer.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Steps can be undone for %1 days of use, with up to %2 of originals.</source>
        <translation>
            <numerusform>Los pasos se pueden deshacer durante %1 día de uso, con hasta %2 de originales.</numerusform>
            <numerusform>Los pasos se pueden deshacer durante %1 días de uso, con hasta %2 de originales.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>No hay nada que rehacer.</translation>
    </message>
    <message>
        <source>Copies would share names with files of other shots:</source>
        <translation>Las copias compartirían nombre con archivos de otras tomas:</translation>
    </message>
    <message>
        <source>file time</source>
        <comment>where a date is from</comment>
        <translation>hora del archivo</translation>
    </message>
    <message numerus="yes">
        <source>%1 frames</source>
        <translation>
            <numerusform>%1 fotograma</numerusform>
            <numerusform>%1 fotogramas</numerusform>
        </translation>
    </message>
    <message>
        <source>DATE</source>
        <translation>FECHA</translation>
    </message>
    <message>
        <source>FROM</source>
        <translation>ORIGEN</translation>
    </message>
    <message>
        <source>CAMERA</source>
        <translation>CÁMARA</translation>
    </message>
    <message>
        <source>POSITION</source>
        <translation>POSICIÓN</translation>
    </message>
    <message>
        <source>PICTURE</source>
        <translation>IMAGEN</translation>
    </message>
    <message>
        <source>ORIENTATION</source>
        <translation>ORIENTACIÓN</translation>
    </message>
    <message>
        <source>SIZE</source>
        <translation>TAMAÑO</translation>
    </message>
    <message>
        <source>Doubtful positions:</source>
        <translation>Posiciones dudosas:</translation>
    </message>
    <message>
        <source>Not read</source>
        <translation>Sin leer</translation>
    </message>
    <message>
        <source>TAKEN</source>
        <translation>TOMADA</translation>
    </message>
    <message>
        <source>TAGS</source>
        <translation>ETIQUETAS</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>ARCHIVO</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 photos.</source>
        <comment>found, searched</comment>
        <translation>
            <numerusform>%1 de %2 foto.</numerusform>
            <numerusform>%1 de %2 fotos.</numerusform>
        </translation>
    </message>
    <message>
        <source>Statistics are on.</source>
        <translation>Las estadísticas están activadas.</translation>
    </message>
    <message>
        <source>Statistics are off.</source>
        <translation>Las estadísticas están desactivadas.</translation>
    </message>
    <message>
        <source>File: %1</source>
        <translation>Archivo: %1</translation>
    </message>
    <message>
        <source>DAY</source>
        <translation>DÍA</translation>
    </message>
    <message>
        <source>COMMAND</source>
        <translation>ORDEN</translation>
    </message>
    <message>
        <source>DETAILS</source>
        <translation>DETALLES</translation>
    </message>
    <message numerus="yes">
        <source>Statistics are on; %1 lines.</source>
        <translation>
            <numerusform>Las estadísticas están activadas; %1 línea.</numerusform>
            <numerusform>Las estadísticas están activadas; %1 líneas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Statistics are off; %1 lines.</source>
        <translation>
            <numerusform>Las estadísticas están desactivadas; %1 línea.</numerusform>
            <numerusform>Las estadísticas están desactivadas; %1 líneas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 lines of the statistics cannot be read.</source>
        <translation>
            <numerusform>No se puede leer %1 línea de las estadísticas.</numerusform>
            <numerusform>No se pueden leer %1 líneas de las estadísticas.</numerusform>
        </translation>
    </message>
    <message>
        <source>The statistics are deleted.</source>
        <translation>Las estadísticas se han borrado.</translation>
    </message>
    <message>
        <source>tag %1</source>
        <comment>+one -another</comment>
        <translation>etiquetas: %1</translation>
    </message>
    <message>
        <source>No photo has the tag &quot;%1&quot;.</source>
        <translation>Ninguna foto tiene la etiqueta «%1».</translation>
    </message>
    <message>
        <source>system</source>
        <comment>kind of tag</comment>
        <translation>sistema</translation>
    </message>
    <message>
        <source>icon</source>
        <comment>kind of tag</comment>
        <translation>icono</translation>
    </message>
    <message>
        <source>automatic</source>
        <comment>kind of tag</comment>
        <translation>automática</translation>
    </message>
    <message>
        <source>own</source>
        <comment>kind of tag</comment>
        <translation>propia</translation>
    </message>
    <message>
        <source>No photo has a tag yet. Run: lumidex tag FILE +TAG</source>
        <translation>Todavía ninguna foto tiene etiqueta. Ejecute: lumidex tag ARCHIVO +ETIQUETA</translation>
    </message>
    <message>
        <source>TAG</source>
        <translation>ETIQUETA</translation>
    </message>
    <message>
        <source>TYPE</source>
        <translation>TIPO</translation>
    </message>
    <message>
        <source>Not in the list</source>
        <translation>No están en la lista</translation>
    </message>
    <message>
        <source>Not tagged</source>
        <translation>Sin etiquetar</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos changed; &quot;lumidex undo&quot; undoes it.</source>
        <translation>
            <numerusform>%1 foto cambiada; «lumidex undo» lo deshace.</numerusform>
            <numerusform>%1 fotos cambiadas; «lumidex undo» lo deshace.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos changed.</source>
        <translation>
            <numerusform>%1 foto cambiada.</numerusform>
            <numerusform>%1 fotos cambiadas.</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;lumidex undo&quot; undoes it.</source>
        <translation>«lumidex undo» lo deshace.</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos were left out, because they have no date but the times of their files. To include them, run: lumidex albums --file-times</source>
        <translation>
            <numerusform>Se omitió %1 foto, porque no tiene más fecha que la hora de su archivo. Para incluirla, ejecute: lumidex albums --file-times</numerusform>
            <numerusform>Se omitieron %1 fotos, porque no tienen más fecha que la hora de sus archivos. Para incluirlas, ejecute: lumidex albums --file-times</numerusform>
        </translation>
    </message>
    <message>
        <source>Refused by %1</source>
        <comment>commands</comment>
        <translation>Rechazados por %1</translation>
    </message>
    <message>
        <source>If all these photos are edited at once:</source>
        <translation>Si se editan todas estas fotos a la vez:</translation>
    </message>
    <message>
        <source>its sidecar</source>
        <translation>su archivo auxiliar</translation>
    </message>
    <message numerus="yes">
        <source>%1 sidecars would be edited along with them.</source>
        <translation>
            <numerusform>Con ellas se editaría %1 archivo auxiliar.</numerusform>
            <numerusform>Con ellas se editarían %1 archivos auxiliares.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 sidecars edited along with them.</source>
        <translation>
            <numerusform>Con ellas se editó %1 archivo auxiliar.</numerusform>
            <numerusform>Con ellas se editaron %1 archivos auxiliares.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos edited; it cannot be undone.</source>
        <translation>
            <numerusform>%1 foto editada; no se puede deshacer.</numerusform>
            <numerusform>%1 fotos editadas; no se puede deshacer.</numerusform>
        </translation>
    </message>
    <message>
        <source>There are no photos or videos in the given folders.</source>
        <translation>No hay fotos ni vídeos en las carpetas indicadas.</translation>
    </message>
    <message>
        <source>It is hidden</source>
        <translation>Está oculto</translation>
    </message>
    <message>
        <source>It is not a photo, a video or a file that belongs to one</source>
        <translation>No es una foto ni un vídeo, ni pertenece a ninguno</translation>
    </message>
    <message>
        <source>&quot;lumidex undo&quot; moves the copies of this run to the trash.</source>
        <translation>«lumidex undo» mueve a la papelera las copias de esta ejecución.</translation>
    </message>
    <message numerus="yes">
        <source>%1 files are not copied, as you chose; they stay where they are.</source>
        <translation>
            <numerusform>%1 archivo no se copia, como usted indicó: se queda donde está.</numerusform>
            <numerusform>%1 archivos no se copian, como usted indicó: se quedan donde están.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files are not copied, because they are not on removable storage; &quot;--to DIR&quot; copies them.</source>
        <translation>
            <numerusform>%1 archivo no se copia, porque no está en un soporte extraíble; «--to CARPETA» lo copia.</numerusform>
            <numerusform>%1 archivos no se copian, porque no están en un soporte extraíble; «--to CARPETA» los copia.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of them are videos, which the catalogue does not hold.</source>
        <translation>
            <numerusform>%1 de ellos es un vídeo, que el catálogo no admite.</numerusform>
            <numerusform>%1 de ellos son vídeos, que el catálogo no admite.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 housekeeping files of cameras and systems are not copied.</source>
        <translation>
            <numerusform>No se copia %1 archivo de gestión de cámaras y sistemas.</numerusform>
            <numerusform>No se copian %1 archivos de gestión de cámaras y sistemas.</numerusform>
        </translation>
    </message>
    <message>
        <source>Not everything in %1 is copied: do not format or empty it yet.</source>
        <translation>No está copiado todo lo que hay en %1: no lo formatee ni lo vacíe todavía.</translation>
    </message>
    <message>
        <source>Copies are in %1 itself: do not format or empty it.</source>
        <translation>Hay copias en %1 mismo: no lo formatee ni lo vacíe.</translation>
    </message>
    <message numerus="yes">
        <source>%1 steps cannot be undone any more, because more than %2 days of use have passed.</source>
        <translation>
            <numerusform>%1 paso ya no se puede deshacer, porque han pasado más de %2 días de uso.</numerusform>
            <numerusform>%1 pasos ya no se pueden deshacer, porque han pasado más de %2 días de uso.</numerusform>
        </translation>
    </message>
    <message>
        <source>Links that lead to the new names:</source>
        <translation>Enlaces que llevan a los nombres nuevos:</translation>
    </message>
    <message numerus="yes">
        <source>%1 symbolic links lead to the new names.</source>
        <translation>
            <numerusform>%1 enlace simbólico lleva al nombre nuevo.</numerusform>
            <numerusform>%1 enlaces simbólicos llevan a los nombres nuevos.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 symbolic links keep their names.</source>
        <translation>
            <numerusform>%1 enlace simbólico conserva su nombre.</numerusform>
            <numerusform>%1 enlaces simbólicos conservan sus nombres.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 and %2 more</source>
        <comment>files</comment>
        <translation>
            <numerusform>%1 y %2 más</numerusform>
            <numerusform>%1 y %2 más</numerusform>
        </translation>
    </message>
    <message>
        <source>These may be photos that were moved, but several files or photos come into question.
The photos keep their tags and albums, the files are new:</source>
        <translation>Pueden ser fotos que se movieron, pero hay varios archivos o fotos posibles.
Las fotos conservan sus etiquetas y álbumes; los archivos son nuevos:</translation>
    </message>
    <message numerus="yes">
        <source>%1 XMP</source>
        <comment>dates read</comment>
        <translation>
            <numerusform>%1 de los datos XMP</numerusform>
            <numerusform>%1 de los datos XMP</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 IPTC</source>
        <comment>dates read</comment>
        <translation>
            <numerusform>%1 de los datos IPTC</numerusform>
            <numerusform>%1 de los datos IPTC</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>moved or renamed</source>
        <comment>files</comment>
        <translation>
            <numerusform>movido o renombrado</numerusform>
            <numerusform>movidos o renombrados</numerusform>
        </translation>
    </message>
    <message>
        <source>Keep this one</source>
        <comment>a photo</comment>
        <translation>Conservar esta</translation>
    </message>
    <message>
        <source>Same picture</source>
        <translation>Misma imagen</translation>
    </message>
    <message>
        <source>Alike</source>
        <comment>a photo</comment>
        <translation>Parecida</translation>
    </message>
    <message>
        <source>Different</source>
        <comment>a photo</comment>
        <translation>Distinta</translation>
    </message>
    <message>
        <source>Could not be compared</source>
        <comment>a photo</comment>
        <translation>No se pudo comparar</translation>
    </message>
    <message numerus="yes">
        <source>Group %1: %2 photos like %3</source>
        <translation>
            <numerusform>Grupo %1: %2 foto como %3</numerusform>
            <numerusform>Grupo %1: %2 fotos como %3</numerusform>
        </translation>
    </message>
    <message>
        <source>undamaged</source>
        <comment>photo</comment>
        <translation>sin daños</translation>
    </message>
    <message>
        <source>the camera&apos;s own file</source>
        <translation>el archivo de la propia cámara</translation>
    </message>
    <message>
        <source>has maker notes</source>
        <translation>con notas del fabricante</translation>
    </message>
    <message>
        <source>not written by another program</source>
        <translation>no escrita por otro programa</translation>
    </message>
    <message>
        <source>compressed less</source>
        <translation>menos comprimida</translation>
    </message>
    <message>
        <source>more bytes per pixel</source>
        <translation>más bytes por píxel</translation>
    </message>
    <message>
        <source>named by the camera</source>
        <translation>con el nombre dado por la cámara</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos cannot be compared, as before; &quot;lumidex similar --not-compared&quot; lists them.</source>
        <translation>
            <numerusform>%1 foto sigue sin poder compararse; «lumidex similar --not-compared» la enumera.</numerusform>
            <numerusform>%1 fotos siguen sin poder compararse; «lumidex similar --not-compared» las enumera.</numerusform>
        </translation>
    </message>
    <message>
        <source>They are the same picture.</source>
        <translation>Son la misma imagen.</translation>
    </message>
    <message>
        <source>They are alike, and not the same picture.</source>
        <translation>Son parecidas, pero no la misma imagen.</translation>
    </message>
    <message>
        <source>They are different pictures.</source>
        <translation>Son imágenes distintas.</translation>
    </message>
    <message>
        <source>Their pictures could not be compared.</source>
        <translation>No se pudieron comparar sus imágenes.</translation>
    </message>
    <message>
        <source>same</source>
        <comment>a picture</comment>
        <translation>misma</translation>
    </message>
    <message>
        <source>alike</source>
        <comment>a picture</comment>
        <translation>parecida</translation>
    </message>
    <message>
        <source>different</source>
        <comment>a picture</comment>
        <translation>distinta</translation>
    </message>
    <message>
        <source>unknown</source>
        <comment>a verdict</comment>
        <translation>desconocido</translation>
    </message>
    <message>
        <source>GROUP</source>
        <translation>GRUPO</translation>
    </message>
    <message>
        <source>VERDICT</source>
        <translation>VEREDICTO</translation>
    </message>
    <message>
        <source>To undo the edit, %1 of originals must be kept, but the limit is %2.</source>
        <translation>Para poder deshacer la edición hay que guardar %1 de originales, pero el límite es %2.</translation>
    </message>
    <message>
        <source>&quot;lumidex undo --keep-size %1&quot; raises the limit; with --no-undo nothing is kept, and the edit cannot be undone.</source>
        <translation>«lumidex undo --keep-size %1» eleva el límite; con --no-undo no se guarda nada y la edición no se puede deshacer.</translation>
    </message>
    <message numerus="yes">
        <source>To keep %1 of originals within the limit of %2, undo would have to forget %3 older steps:</source>
        <translation>
            <numerusform>Para guardar %1 de originales dentro del límite de %2, habría que olvidar %3 paso anterior:</numerusform>
            <numerusform>Para guardar %1 de originales dentro del límite de %2, habría que olvidar %3 pasos anteriores:</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>To keep %1 of originals within the limit of %2, undo forgets %3 older steps:</source>
        <translation>
            <numerusform>Para guardar %1 de originales dentro del límite de %2, se olvida %3 paso anterior:</numerusform>
            <numerusform>Para guardar %1 de originales dentro del límite de %2, se olvidan %3 pasos anteriores:</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;lumidex undo --keep-size %1&quot; makes room for all of them.</source>
        <translation>«lumidex undo --keep-size %1» hace sitio para todos.</translation>
    </message>
    <message>
        <source>--forget-older allows it.</source>
        <translation>--forget-older lo permite.</translation>
    </message>
    <message>
        <source>Forget them and continue? [y/N]</source>
        <translation>¿Olvidarlos y continuar? [s/N]</translation>
    </message>
    <message>
        <source>No originals would be kept, so the edit could not be undone.</source>
        <translation>No se guardarían originales, así que la edición no se podría deshacer.</translation>
    </message>
    <message>
        <source>The edit would be refused.</source>
        <translation>La edición se rechazaría.</translation>
    </message>
    <message numerus="yes">
        <source>import %1 files to %2</source>
        <translation>
            <numerusform>importar %1 archivo en %2</numerusform>
            <numerusform>importar %1 archivos en %2</numerusform>
        </translation>
    </message>
    <message>
        <source>accept album %1</source>
        <translation>aceptar el álbum %1</translation>
    </message>
    <message numerus="yes">
        <source>accept %1 albums</source>
        <translation>
            <numerusform>aceptar %1 álbum</numerusform>
            <numerusform>aceptar %1 álbumes</numerusform>
        </translation>
    </message>
    <message>
        <source>alike to %1</source>
        <comment>a photo is; a file</comment>
        <translation>parecida a %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos are alike and not the same picture; they stay unless --alike is given.</source>
        <translation>
            <numerusform>%1 foto es solo parecida y no la misma imagen; se queda si no se indica --alike.</numerusform>
            <numerusform>%1 fotos son solo parecidas y no la misma imagen; se quedan si no se indica --alike.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Move %1 to the trash, %2 of which are only alike? [y/N]</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>¿Mover %1 a la papelera, de las cuales %2 es solo parecida? [s/N]</numerusform>
            <numerusform>¿Mover %1 a la papelera, de las cuales %2 son solo parecidas? [s/N]</numerusform>
        </translation>
    </message>
    <message>
        <source>Undo without keeping what redo needs? [y/N]</source>
        <translation>¿Deshacer sin guardar lo que hace falta para rehacer? [s/N]</translation>
    </message>
    <message numerus="yes">
        <source>%1 copies are in the trash now.</source>
        <translation>
            <numerusform>%1 copia está ahora en la papelera.</numerusform>
            <numerusform>%1 copias están ahora en la papelera.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no room to keep what redo needs; &quot;lumidex undo --no-redo&quot; undoes without it.</source>
        <translation>No hay sitio para guardar lo que hace falta para rehacer; «lumidex undo --no-redo» deshace sin guardarlo.</translation>
    </message>
    <message numerus="yes">
        <source>Undo of &quot;%1&quot; (%2) will leave %3 files as they are, because this step changed them later:</source>
        <translation>
            <numerusform>Al deshacer «%1» (%2) quedará %3 archivo como está, porque este paso lo cambió después:</numerusform>
            <numerusform>Al deshacer «%1» (%2) quedarán %3 archivos como están, porque este paso los cambió después:</numerusform>
        </translation>
    </message>
    <message>
        <source>unknown</source>
        <comment>a date</comment>
        <translation>desconocida</translation>
    </message>
    <message numerus="yes">
        <source>%1 files or folders would be refused.</source>
        <translation>
            <numerusform>se rechazaría %1 archivo o carpeta.</numerusform>
            <numerusform>se rechazarían %1 archivos o carpetas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>An import skips %1 other files (--json lists them).</source>
        <translation>
            <numerusform>Una importación omite %1 archivo más (--json lo enumera).</numerusform>
            <numerusform>Una importación omite %1 archivos más (--json los enumera).</numerusform>
        </translation>
    </message>
    <message>
        <source>Every file in %1 has a verified copy elsewhere.</source>
        <translation>Cada archivo de %1 tiene una copia verificada en otro lugar.</translation>
    </message>
    <message>
        <source>Every file in %1, except for housekeeping files, has a verified copy elsewhere.</source>
        <translation>Cada archivo de %1, salvo los de gestión, tiene una copia verificada en otro lugar.</translation>
    </message>
    <message>
        <source>It is safe to format.</source>
        <translation>Se puede formatear sin riesgo.</translation>
    </message>
    <message>
        <source>It is safe to format as far as this folder is concerned; what is outside it was not checked.</source>
        <translation>Por lo que toca a esta carpeta, se puede formatear sin riesgo; lo que hay fuera de ella no se ha comprobado.</translation>
    </message>
    <message>
        <source>not enlarged</source>
        <translation>no ampliada</translation>
    </message>
    <message>
        <source>The disk of %1 has %2 free, but editing all photos needs %3: the last ones would not be edited.</source>
        <translation>El disco de %1 tiene %2 libres, pero editar todas las fotos requiere %3: las últimas no se editarían.</translation>
    </message>
    <message numerus="yes">
        <source>The sources of %1 of them are gone or changed: do not empty the trash before you have another copy.</source>
        <translation>
            <numerusform>El archivo de origen de %1 de ellas ha desaparecido o ha cambiado: no vacíe la papelera antes de tener otra copia.</numerusform>
            <numerusform>Los archivos de origen de %1 de ellas han desaparecido o han cambiado: no vacíe la papelera antes de tener otras copias.</numerusform>
        </translation>
    </message>
    <message>
        <source>Interrupted. The photos edited so far stay edited.</source>
        <translation>Interrumpido. Las fotos editadas hasta ahora quedan editadas.</translation>
    </message>
    <message>
        <source>Interrupted. The photos made so far stay; delete the folder before you try again.</source>
        <translation>Interrumpido. Las fotos creadas hasta ahora se conservan; borre la carpeta antes de volver a intentarlo.</translation>
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
            <numerusform>%1 de %2 foto, tomada el %3.</numerusform>
            <numerusform>%1 de %2 fotos, tomadas el %3.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 photos, taken from %3 to %4.</source>
        <comment>found, searched, dates</comment>
        <translation>
            <numerusform>%1 de %2 foto, tomada del %3 al %4.</numerusform>
            <numerusform>%1 de %2 fotos, tomadas del %3 al %4.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 photos, taken on %3 or later.</source>
        <comment>found, searched, date</comment>
        <translation>
            <numerusform>%1 de %2 foto, tomada el %3 o después.</numerusform>
            <numerusform>%1 de %2 fotos, tomadas el %3 o después.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 photos, taken on %3 or earlier.</source>
        <comment>found, searched, date</comment>
        <translation>
            <numerusform>%1 de %2 foto, tomada el %3 o antes.</numerusform>
            <numerusform>%1 de %2 fotos, tomadas el %3 o antes.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of them (%2) are the same picture as the photo to keep; &quot;lumidex similar --trash&quot; moves them to the trash.</source>
        <translation>
            <numerusform>%1 de ellas (%2) es la misma imagen que la foto que conviene conservar; «lumidex similar --trash» la mueve a la papelera.</numerusform>
            <numerusform>%1 de ellas (%2) son la misma imagen que la foto que conviene conservar; «lumidex similar --trash» las mueve a la papelera.</numerusform>
        </translation>
    </message>
    <message>
        <source>Not the same picture as the photo to keep, only alike:</source>
        <translation>No son la misma imagen que la foto que conviene conservar, solo parecidas:</translation>
    </message>
    <message>
        <source>cannot be undone</source>
        <comment>a step</comment>
        <translation>ya no se puede deshacer</translation>
    </message>
    <message>
        <source>running</source>
        <comment>a step</comment>
        <translation>en curso</translation>
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
            <numerusform>sería el nombre de %1 foto: %2</numerusform>
            <numerusform>sería el nombre de %1 fotos: %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Within these limits, undo would have to forget %1 older steps:</source>
        <translation>
            <numerusform>Dentro de estos límites, habría que olvidar %1 paso anterior:</numerusform>
            <numerusform>Dentro de estos límites, habría que olvidar %1 pasos anteriores:</numerusform>
        </translation>
    </message>
    <message>
        <source>Whether a photo goes to the trash also depends on the one that is kept of its group, and on tags, albums, settings and second names; &quot;lumidex similar --trash --dry-run&quot; tells.</source>
        <translation>Que una foto vaya a la papelera depende también de la que se conserva de su grupo, y de etiquetas, álbumes, ajustes y otros nombres del archivo; «lumidex similar --trash --dry-run» lo muestra.</translation>
    </message>
</context>
<context>
    <name>Zenvora::Lumidex::Utils</name>
    <message>
        <source>Attention</source>
        <translation>Atención</translation>
    </message>
    <message>
        <source>All of the selected files do not have read permissions, they will not be added.</source>
        <translation>Ninguno de los archivos seleccionados tiene permiso de lectura; no se añadirán.</translation>
    </message>
    <message>
        <source>Some of the selected files do not have read permissions, they will not be added.</source>
        <translation>Algunos de los archivos seleccionados no tienen permiso de lectura; no se añadirán.</translation>
    </message>
    <message>
        <source>Some of the selected photos are on removable storage. Would you like copy they to your hard drive?</source>
        <translation>Algunas de las fotos seleccionadas están en un soporte extraíble. ¿Desea copiarlas en su disco duro?</translation>
    </message>
    <message>
        <source>The selected directory is temporary, select another directory.</source>
        <translation>La carpeta seleccionada es temporal. Seleccione otra carpeta.</translation>
    </message>
    <message>
        <source>Some of the selected photos are in read-only formats (for example, %1). They will be converted to JPG or PNG after applying the tool.</source>
        <translation>Algunas de las fotos seleccionadas están en formatos de solo lectura (por ejemplo, %1). Se convertirán a JPG o PNG al aplicar la herramienta.</translation>
    </message>
    <message>
        <source>The selected photo is in read-only formats (%1). It will be converted to JPG or PNG after applying the tool.</source>
        <translation>La foto seleccionada está en un formato de solo lectura (%1). Se convertirá a JPG o PNG al aplicar la herramienta.</translation>
    </message>
    <message>
        <source>There is not enough space on the disk %1</source>
        <translation>No hay suficiente espacio en el disco %1</translation>
    </message>
    <message>
        <source>You do not have permission to edit files in this folder: %1</source>
        <translation>No tiene permiso para editar archivos en esta carpeta: %1</translation>
    </message>
    <message>
        <source>You do not have permission to edit file: %1</source>
        <translation>No tiene permiso para editar el archivo: %1</translation>
    </message>
    <message>
        <source>day</source>
        <translation>día</translation>
    </message>
    <message>
        <source>days</source>
        <translation>días</translation>
    </message>
    <message>
        <source>Expired</source>
        <translation>Caducado</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>One day</source>
        <translation>día</translation>
    </message>
    <message>
        <source>Nominative day</source>
        <translation>días</translation>
    </message>
    <message>
        <source>Genetive day</source>
        <translation>días</translation>
    </message>
    <message>
        <source>Plural day</source>
        <translation>días</translation>
    </message>
    <message>
        <source>One album</source>
        <translation>álbum</translation>
    </message>
    <message>
        <source>Nominative album</source>
        <translation>álbumes</translation>
    </message>
    <message>
        <source>Genetive album</source>
        <translation>álbumes</translation>
    </message>
    <message>
        <source>Plural album</source>
        <translation>álbumes</translation>
    </message>
    <message>
        <source>album</source>
        <translation>álbum</translation>
    </message>
    <message>
        <source>albums</source>
        <translation>álbumes</translation>
    </message>
    <message>
        <source>One group</source>
        <translation>grupo</translation>
    </message>
    <message>
        <source>Nominative group</source>
        <translation>grupos</translation>
    </message>
    <message>
        <source>Genetive group</source>
        <translation>grupos</translation>
    </message>
    <message>
        <source>Plural group</source>
        <translation>grupos</translation>
    </message>
    <message>
        <source>group</source>
        <translation>grupo</translation>
    </message>
    <message>
        <source>groups</source>
        <translation>grupos</translation>
    </message>
    <message>
        <source>One photo</source>
        <translation>foto</translation>
    </message>
    <message>
        <source>Nominative photo</source>
        <translation>fotos</translation>
    </message>
    <message>
        <source>Genetive photo</source>
        <translation>fotos</translation>
    </message>
    <message>
        <source>Plural photo</source>
        <translation>fotos</translation>
    </message>
    <message>
        <source>photo</source>
        <translation>foto</translation>
    </message>
    <message>
        <source>photos</source>
        <translation>fotos</translation>
    </message>
</context>
</TS>
