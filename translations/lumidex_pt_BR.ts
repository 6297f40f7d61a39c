<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en_US">
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
        <translation>Não é possível editar %1: %2</translation>
    </message>
    <message>
        <source>Cannot rename %1: %2</source>
        <translation>Não é possível renomear %1: %2</translation>
    </message>
    <message>
        <source>Cannot rename %1 to %2: %3</source>
        <translation>Não é possível renomear %1 para %2: %3</translation>
    </message>
    <message>
        <source>Cannot read %1: %2</source>
        <translation>Não é possível ler %1: %2</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>Não é possível gravar %1: %2</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>não é possível gravar %1: %2</translation>
    </message>
    <message>
        <source>its folder cannot be written to; change the permissions of %1</source>
        <translation>não é possível gravar na pasta dele; mude as permissões de %1</translation>
    </message>
    <message>
        <source>its folder lets only its owner change it; change the owner, or the permissions of %1</source>
        <translation>a pasta dele só aceita mudanças do proprietário; mude o proprietário ou as permissões de %1</translation>
    </message>
    <message>
        <source>its disk has no room for a new version of it (%1 bytes are needed, %2 are free); free space there</source>
        <translation>no disco dele não há espaço para uma nova versão (são necessários %1 bytes, há %2 livres); libere espaço lá</translation>
    </message>
    <message>
        <source>it is write-protected; allow writing to it, or use --force</source>
        <translation>está protegido contra gravação; permita a gravação ou use --force</translation>
    </message>
    <message>
        <source>its sidecar %1 is write-protected; allow writing to it, or use --force</source>
        <translation>o arquivo auxiliar %1 está protegido contra gravação; permita a gravação ou use --force</translation>
    </message>
    <message>
        <source>its sidecar must be edited with it. %1; repair or move the sidecar</source>
        <translation>o arquivo auxiliar precisa ser editado junto com a foto. %1; repare ou mova o arquivo auxiliar</translation>
    </message>
    <message>
        <source>its sidecar %1 must be edited with it, but %2</source>
        <translation>o arquivo auxiliar %1 precisa ser editado junto com a foto, mas %2</translation>
    </message>
    <message>
        <source>it has no date to shift</source>
        <translation>não tem data para deslocar</translation>
    </message>
    <message>
        <source>its year would not be 1 to 9999</source>
        <translation>o ano não ficaria entre 1 e 9999</translation>
    </message>
    <message>
        <source>its metadata cannot be changed without losing data (%1)</source>
        <translation>os metadados não podem ser alterados sem perda (%1)</translation>
    </message>
    <message>
        <source>its metadata would be wrong afterwards</source>
        <translation>os metadados ficariam errados depois</translation>
    </message>
    <message>
        <source>its EXIF data, which are kept as text, are damaged</source>
        <translation>os dados EXIF, guardados como texto, estão danificados</translation>
    </message>
    <message>
        <source>its EXIF data are damaged</source>
        <translation>os dados EXIF estão danificados</translation>
    </message>
    <message>
        <source>its XMP data are damaged</source>
        <translation>os dados XMP estão danificados</translation>
    </message>
    <message>
        <source>its TIFF directory is damaged</source>
        <translation>o diretório TIFF está danificado</translation>
    </message>
    <message>
        <source>its picture format is not known</source>
        <translation>o formato de imagem é desconhecido</translation>
    </message>
    <message>
        <source>its format cannot be edited</source>
        <translation>o formato não pode ser editado</translation>
    </message>
    <message>
        <source>photos of the format %1 cannot be edited</source>
        <translation>fotos no formato %1 não podem ser editadas</translation>
    </message>
    <message>
        <source>its picture would change</source>
        <translation>a imagem mudaria</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>está vazio</translation>
    </message>
    <message>
        <source>it is damaged: %1</source>
        <translation>está danificado: %1</translation>
    </message>
    <message>
        <source>it is larger than 2 GiB</source>
        <translation>é maior que 2 GiB</translation>
    </message>
    <message>
        <source>it is larger than 4 MiB</source>
        <translation>é maior que 4 MiB</translation>
    </message>
    <message>
        <source>it was changed while it was read</source>
        <translation>foi alterado durante a leitura</translation>
    </message>
    <message>
        <source>editing it takes more memory than there is</source>
        <translation>a edição precisa de mais memória do que há</translation>
    </message>
    <message>
        <source>its JPEG data is damaged</source>
        <translation>os dados JPEG estão danificados</translation>
    </message>
    <message>
        <source>its JPEG data ends before the picture</source>
        <translation>os dados JPEG terminam antes da imagem</translation>
    </message>
    <message>
        <source>its JPEG data breaks off before the picture</source>
        <translation>os dados JPEG são interrompidos antes da imagem</translation>
    </message>
    <message>
        <source>there is no room left in its EXIF block</source>
        <translation>não há mais espaço no bloco EXIF</translation>
    </message>
    <message>
        <source>its PNG data breaks off</source>
        <translation>os dados PNG são interrompidos</translation>
    </message>
    <message>
        <source>its PNG data does not begin with a picture</source>
        <translation>os dados PNG não começam com uma imagem</translation>
    </message>
    <message>
        <source>it has two EXIF blocks</source>
        <translation>há dois blocos EXIF</translation>
    </message>
    <message>
        <source>its WebP data breaks off</source>
        <translation>os dados WebP são interrompidos</translation>
    </message>
    <message>
        <source>its WebP data holds no picture</source>
        <translation>os dados WebP não contêm imagem</translation>
    </message>
    <message>
        <source>its %1 cannot be changed in place</source>
        <translation>%1 não pode ser alterado no lugar</translation>
    </message>
    <message>
        <source>its date cannot be changed in its %1 data</source>
        <translation>a data não pode ser alterada nos dados %1</translation>
    </message>
    <message>
        <source>its %1 cannot be changed in its %2 data</source>
        <translation>%1 não pode ser alterado nos dados %2</translation>
    </message>
    <message>
        <source>it breaks off before its end</source>
        <translation>é interrompido antes do fim</translation>
    </message>
    <message>
        <source>its text is damaged</source>
        <translation>o texto está danificado</translation>
    </message>
    <message>
        <source>it has too many properties</source>
        <translation>há propriedades demais</translation>
    </message>
    <message>
        <source>%1 is unchanged: %2</source>
        <translation>%1 não foi alterado: %2</translation>
    </message>
    <message>
        <source>%1 was edited, but the catalogue could not be updated (%2). The next run updates it</source>
        <translation>%1 foi editado, mas o catálogo não pôde ser atualizado (%2). A próxima execução do lumidex o atualiza</translation>
    </message>
    <message>
        <source>%1 cannot be read back as what was written</source>
        <translation>%1 não pode ser relido como foi gravado</translation>
    </message>
    <message>
        <source>%1 is left as it is, because it belongs to %2</source>
        <translation>%1 fica como está, porque pertence a %2</translation>
    </message>
    <message>
        <source>%1 is missing for now, but its versions are kept (%2). Free space on its disk and run &quot;lumidex undo&quot; again</source>
        <translation>%1 está ausente por enquanto, mas as versões estão guardadas (%2). Libere espaço no disco e execute “lumidex undo” novamente</translation>
    </message>
    <message>
        <source>%1 is left as it is: another program changed %2, where its other version was kept</source>
        <translation>%1 fica como está: outro programa alterou %2, onde a outra versão estava guardada</translation>
    </message>
    <message>
        <source>%1 is left as it is: its disk has no room for its other version (%2 bytes). Free space there and try again</source>
        <translation>%1 fica como está: no disco não há espaço para a outra versão (%2 bytes). Libere espaço lá e tente novamente</translation>
    </message>
    <message>
        <source>%1 is left as it is: its other version is no longer kept</source>
        <translation>%1 fica como está: a outra versão não está mais guardada</translation>
    </message>
    <message>
        <source>%1 was changed later and is left as it is</source>
        <translation>%1 foi alterado depois e fica como está</translation>
    </message>
    <message>
        <source>%1 no longer exists</source>
        <translation>%1 não existe mais</translation>
    </message>
    <message>
        <source>%1 cannot be reached: its disk may not be connected</source>
        <translation>%1 não está acessível: talvez o disco não esteja conectado</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 não pode ser lido: %2</translation>
    </message>
    <message>
        <source>The undo journal %1 cannot be used: %2</source>
        <translation>O registro de desfazer %1 não pode ser usado: %2</translation>
    </message>
    <message>
        <source>another program is renaming or editing photos with it; try again when that has finished</source>
        <translation>outro programa o está usando para renomear ou editar fotos; tente novamente quando ele terminar</translation>
    </message>
    <message>
        <source>no step is started without %1 MiB free for finishing and undoing it (%2)</source>
        <translation>nenhuma etapa começa sem %1 MiB livres para concluí-la e desfazê-la (%2)</translation>
    </message>
    <message>
        <source>there is no room for undoing it (%1)</source>
        <translation>não há espaço para desfazer (%1)</translation>
    </message>
    <message>
        <source>Cannot change the target of the link %1: %2</source>
        <translation>Não é possível mudar o destino do link %1: %2</translation>
    </message>
    <message>
        <source>Cannot move %1 to the trash: %2</source>
        <translation>Não é possível mover %1 para a lixeira: %2</translation>
    </message>
    <message>
        <source>no free name in the trash</source>
        <translation>nenhum nome livre na lixeira</translation>
    </message>
    <message>
        <source>another file has that name</source>
        <translation>outro arquivo tem esse nome</translation>
    </message>
    <message>
        <source>another file has its former name</source>
        <translation>outro arquivo tem o nome antigo</translation>
    </message>
    <message>
        <source>it is on another volume</source>
        <translation>está em outro volume</translation>
    </message>
    <message>
        <source>it is no longer a file</source>
        <translation>não é mais um arquivo</translation>
    </message>
    <message>
        <source>%1 was kept, because its photo was kept</source>
        <translation>%1 foi mantido, porque a foto dele foi mantida</translation>
    </message>
    <message>
        <source>%1 was kept, because the photo kept in its place, %2, no longer exists</source>
        <translation>%1 foi mantido, porque a foto mantida no lugar dele, %2, não existe mais</translation>
    </message>
    <message>
        <source>%1 is in the trash as %2, which cannot be reached: its disk may not be connected</source>
        <translation>%1 está na lixeira como %2, que não está acessível: talvez o disco não esteja conectado</translation>
    </message>
    <message>
        <source>%1 may be in the trash as %2, which cannot be read: %3</source>
        <translation>%1 talvez esteja na lixeira como %2, que não pode ser lido: %3</translation>
    </message>
    <message>
        <source>%1 is no longer in the trash; another file has its name</source>
        <translation>%1 não está mais na lixeira; outro arquivo tem o nome dele</translation>
    </message>
    <message>
        <source>%1 is no longer in the trash and cannot be brought back</source>
        <translation>%1 não está mais na lixeira e não pode ser recuperado</translation>
    </message>
    <message>
        <source>%1 remains in the trash as %2: %3</source>
        <translation>%1 permanece na lixeira como %2: %3</translation>
    </message>
    <message>
        <source>The album &quot;%1&quot; is kept, because photos were added to it later</source>
        <translation>O álbum “%1” é mantido, porque fotos foram adicionadas a ele depois</translation>
    </message>
    <message>
        <source>The album &quot;%1&quot; no longer exists</source>
        <translation>O álbum “%1” não existe mais</translation>
    </message>
    <message>
        <source>Another album has the name &quot;%1&quot; now</source>
        <translation>Outro álbum agora se chama “%1”</translation>
    </message>
    <message>
        <source>%1 is kept: %2.</source>
        <translation>%1 é mantido: %2.</translation>
    </message>
    <message>
        <source>it is already in a trash</source>
        <translation>já está em uma lixeira</translation>
    </message>
    <message>
        <source>it is a link to another file</source>
        <translation>é um link para outro arquivo</translation>
    </message>
    <message>
        <source>it no longer exists</source>
        <translation>não existe mais</translation>
    </message>
    <message>
        <source>it was changed after it was analysed</source>
        <translation>foi alterado depois da análise</translation>
    </message>
    <message>
        <source>it was changed after it was compared</source>
        <translation>foi alterado depois da comparação</translation>
    </message>
    <message>
        <source>it is another name of a file that is kept</source>
        <translation>é outro nome de um arquivo que é mantido</translation>
    </message>
    <message>
        <source>it is of the same shot as %1, which is kept</source>
        <translation>é do mesmo disparo que %1, que é mantido</translation>
    </message>
    <message>
        <source>it is like others of its group, but not like the photo to keep, %1</source>
        <translation>é parecido com outros do grupo, mas não com a foto que convém manter, %1</translation>
    </message>
    <message>
        <source>it has tags or albums that the photo to keep, %1, does not have</source>
        <translation>tem etiquetas ou álbuns que a foto que convém manter, %1, não tem</translation>
    </message>
    <message>
        <source>it is a raw file, and no raw file of its group is kept</source>
        <translation>é um arquivo RAW, e nenhum arquivo RAW do grupo é mantido</translation>
    </message>
    <message>
        <source>its settings, %1, would be lost: the photo to keep, %2, does not have them</source>
        <translation>os ajustes, %1, seriam perdidos: a foto que convém manter, %2, não os tem</translation>
    </message>
    <message>
        <source>the link %1 leads to it</source>
        <translation>o link %1 leva a ele</translation>
    </message>
    <message>
        <source>%1, to which it belongs, is kept</source>
        <translation>%1, a que pertence, é mantido</translation>
    </message>
    <message>
        <source>the settings in %1 were changed</source>
        <translation>os ajustes em %1 foram alterados</translation>
    </message>
    <message>
        <source>the photo to keep, %1, no longer exists</source>
        <translation>a foto que convém manter, %1, não existe mais</translation>
    </message>
    <message>
        <source>the photo to keep, %1, was changed after it was analysed</source>
        <translation>a foto que convém manter, %1, foi alterada depois da análise</translation>
    </message>
    <message>
        <source>the photo to keep, %1, is no longer a file</source>
        <translation>a foto que convém manter, %1, não é mais um arquivo</translation>
    </message>
    <message>
        <source>the photo to keep, %1, cannot be read (%2)</source>
        <translation>a foto que convém manter, %1, não pode ser lida (%2)</translation>
    </message>
    <message>
        <source>the photo to keep, %1, is in a trash</source>
        <translation>a foto que convém manter, %1, está em uma lixeira</translation>
    </message>
    <message>
        <source>the photo to keep, %1, is a link to another file</source>
        <translation>a foto que convém manter, %1, é um link para outro arquivo</translation>
    </message>
    <message>
        <source>the photo to keep, %1, breaks off before the end of its picture</source>
        <translation>a foto que convém manter, %1, é interrompida antes do fim da imagem</translation>
    </message>
    <message>
        <source>the photo to keep, %1, is damaged: %2</source>
        <translation>a foto que convém manter, %1, está danificada: %2</translation>
    </message>
    <message>
        <source>Interrupted undo of &quot;%1&quot; is now complete.</source>
        <translation>A ação interrompida de desfazer “%1” foi concluída agora.</translation>
    </message>
    <message>
        <source>Interrupted redo of &quot;%1&quot; is now complete.</source>
        <translation>A ação interrompida de refazer “%1” foi concluída agora.</translation>
    </message>
    <message>
        <source>Interrupted undo of &quot;%1&quot; is now complete, except for:</source>
        <translation>A ação interrompida de desfazer “%1” foi concluída agora, exceto:</translation>
    </message>
    <message>
        <source>Interrupted redo of &quot;%1&quot; is now complete, except for:</source>
        <translation>A ação interrompida de refazer “%1” foi concluída agora, exceto:</translation>
    </message>
    <message>
        <source>Interrupted step &quot;%1&quot; is now complete.</source>
        <translation>A etapa interrompida “%1” foi concluída agora.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was interrupted and will be finished once %2 can be reached.</source>
        <translation>“%1” foi interrompido e será concluído assim que %2 estiver acessível.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was interrupted and cannot be finished (%2); the files have their former names.</source>
        <translation>“%1” foi interrompido e não pode ser concluído (%2); os arquivos têm os nomes antigos.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was interrupted and cannot be finished (%2), nor undone (%3).</source>
        <translation>“%1” foi interrompido e não pode ser concluído (%2) nem desfeito (%3).</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was interrupted. Photos edited: %2; the others are unchanged.</source>
        <translation>“%1” foi interrompido. Fotos editadas: %2; as outras não foram alteradas.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was interrupted. Copies made: %2; run the same import to copy the rest.</source>
        <translation>“%1” foi interrompido. Cópias feitas: %2; repita a mesma importação para copiar o resto.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was interrupted. Files moved: %2; the others are where they were.</source>
        <translation>“%1” foi interrompido. Arquivos movidos: %2; os outros estão onde estavam.</translation>
    </message>
    <message>
        <source>Originals that this catalogue does not know were moved to %1.</source>
        <translation>Originais que este catálogo não conhece foram movidos para %1.</translation>
    </message>
    <message>
        <source>%1 and its sidecar disagree, because only one of them was edited (%2).</source>
        <translation>%1 e o arquivo auxiliar não concordam, porque só um dos dois foi editado (%2).</translation>
    </message>
    <message>
        <source>It cannot be read</source>
        <translation>Não pode ser lido</translation>
    </message>
    <message>
        <source>It is a pipe or a device</source>
        <translation>É um pipe ou um dispositivo</translation>
    </message>
    <message>
        <source>It is not a regular file</source>
        <translation>Não é um arquivo comum</translation>
    </message>
    <message>
        <source>It is empty</source>
        <translation>Está vazio</translation>
    </message>
    <message>
        <source>It is damaged: %1</source>
        <translation>Está danificado: %1</translation>
    </message>
    <message>
        <source>Its picture format is not known</source>
        <translation>O formato de imagem é desconhecido</translation>
    </message>
    <message>
        <source>Its name is not valid text</source>
        <translation>O nome não é um texto válido</translation>
    </message>
    <message>
        <source>It is named like a housekeeping file, but may be a picture or a video</source>
        <translation>Tem nome de arquivo de controle, mas pode ser uma imagem ou um vídeo</translation>
    </message>
    <message>
        <source>The link leads to a file that is missing</source>
        <translation>O link leva a um arquivo ausente</translation>
    </message>
    <message>
        <source>The link leads to a file that cannot be read</source>
        <translation>O link leva a um arquivo que não pode ser lido</translation>
    </message>
    <message>
        <source>The link leads back to itself</source>
        <translation>O link leva de volta a si mesmo</translation>
    </message>
    <message>
        <source>The link leads to a folder that cannot be read</source>
        <translation>O link leva a uma pasta que não pode ser lida</translation>
    </message>
    <message>
        <source>The link leads back to a folder above it</source>
        <translation>O link leva de volta a uma pasta superior</translation>
    </message>
    <message>
        <source>The link leads to a folder that was already visited</source>
        <translation>O link leva a uma pasta já visitada</translation>
    </message>
    <message>
        <source>%1 is hidden</source>
        <translation>%1 está oculto</translation>
    </message>
    <message>
        <source>%1 is not named like a photo</source>
        <translation>%1 não tem nome de foto</translation>
    </message>
    <message>
        <source>%1 is a link to a file that is missing</source>
        <translation>%1 é um link para um arquivo ausente</translation>
    </message>
    <message>
        <source>it was changed while it was copied</source>
        <translation>foi alterado durante a cópia</translation>
    </message>
    <message>
        <source>the copy differs from the original</source>
        <translation>a cópia difere do original</translation>
    </message>
    <message>
        <source>the copy cannot be written: %1</source>
        <translation>a cópia não pode ser gravada: %1</translation>
    </message>
    <message>
        <source>the copy cannot be read back: %1</source>
        <translation>a cópia não pode ser relida: %1</translation>
    </message>
    <message>
        <source>the copy cannot be recorded</source>
        <translation>a cópia não pode ser registrada</translation>
    </message>
    <message>
        <source>another file got the name %1 meanwhile</source>
        <translation>nesse meio-tempo outro arquivo recebeu o nome %1</translation>
    </message>
    <message>
        <source>it is identical to %1, which could not be copied</source>
        <translation>é idêntico a %1, que não pôde ser copiado</translation>
    </message>
    <message>
        <source>the import was interrupted</source>
        <translation>a importação foi interrompida</translation>
    </message>
    <message>
        <source>It may be any of %1 photos that are missing</source>
        <translation>Pode ser qualquer uma de %1 fotos ausentes</translation>
    </message>
    <message>
        <source>It is missing, and %1 files may be it</source>
        <translation>Está ausente, e %1 arquivos podem ser ela</translation>
    </message>
    <message>
        <source>It was changed or replaced, and a file has its former content</source>
        <translation>Foi alterada ou substituída, e um arquivo tem o conteúdo antigo</translation>
    </message>
    <message>
        <source>identical files</source>
        <translation>arquivos idênticos</translation>
    </message>
    <message>
        <source>the same pixels</source>
        <translation>os mesmos pixels</translation>
    </message>
    <message>
        <source>the same picture, smaller</source>
        <translation>a mesma imagem, menor</translation>
    </message>
    <message>
        <source>the same picture, larger</source>
        <translation>a mesma imagem, maior</translation>
    </message>
    <message>
        <source>the same picture, compressed again or in another format</source>
        <translation>a mesma imagem, comprimida de novo ou em outro formato</translation>
    </message>
    <message>
        <source>the same picture, mirrored</source>
        <translation>a mesma imagem, espelhada</translation>
    </message>
    <message>
        <source>the same picture, brighter</source>
        <translation>a mesma imagem, mais clara</translation>
    </message>
    <message>
        <source>the same picture, darker</source>
        <translation>a mesma imagem, mais escura</translation>
    </message>
    <message>
        <source>the same picture, with more contrast</source>
        <translation>a mesma imagem, com mais contraste</translation>
    </message>
    <message>
        <source>the same picture, with less contrast</source>
        <translation>a mesma imagem, com menos contraste</translation>
    </message>
    <message>
        <source>the same picture, sharpened</source>
        <translation>a mesma imagem, com mais nitidez</translation>
    </message>
    <message>
        <source>the same picture, changed all over</source>
        <translation>a mesma imagem, alterada por inteiro</translation>
    </message>
    <message>
        <source>the same picture, larger and with more detail</source>
        <translation>a mesma imagem, maior e com mais detalhes</translation>
    </message>
    <message>
        <source>the same picture with a border or a caption</source>
        <translation>a mesma imagem com uma borda ou uma legenda</translation>
    </message>
    <message>
        <source>the same picture without colours</source>
        <translation>a mesma imagem sem cores</translation>
    </message>
    <message>
        <source>the same picture with colours</source>
        <translation>a mesma imagem com cores</translation>
    </message>
    <message>
        <source>the same picture as far as a preview shows</source>
        <translation>a mesma imagem, até onde uma prévia mostra</translation>
    </message>
    <message>
        <source>the same picture as far as so few pixels show</source>
        <translation>a mesma imagem, até onde tão poucos pixels mostram</translation>
    </message>
    <message>
        <source>the same picture as far as it shows when it is made smaller</source>
        <translation>a mesma imagem, até onde se vê quando reduzida</translation>
    </message>
    <message>
        <source>the same picture, but for something small at %1</source>
        <translation>a mesma imagem, exceto algo pequeno %1</translation>
    </message>
    <message>
        <source>nearly the same view</source>
        <translation>quase a mesma vista</translation>
    </message>
    <message>
        <source>the same view, turned a little</source>
        <translation>a mesma vista, um pouco girada</translation>
    </message>
    <message>
        <source>the same view, cropped</source>
        <translation>a mesma vista, recortada</translation>
    </message>
    <message>
        <source>the same view with more around it</source>
        <translation>a mesma vista com mais em volta</translation>
    </message>
    <message>
        <source>the same view, brighter</source>
        <translation>a mesma vista, mais clara</translation>
    </message>
    <message>
        <source>the same view, darker</source>
        <translation>a mesma vista, mais escura</translation>
    </message>
    <message>
        <source>another plain colour</source>
        <translation>outra cor uniforme</translation>
    </message>
    <message>
        <source>shows something else</source>
        <translation>mostra outra coisa</translation>
    </message>
    <message>
        <source>differs in some places</source>
        <translation>difere em alguns lugares</translation>
    </message>
    <message>
        <source>differs at %1</source>
        <translation>difere %1</translation>
    </message>
    <message>
        <source>the upper left</source>
        <translation>no alto à esquerda</translation>
    </message>
    <message>
        <source>the top</source>
        <translation>no alto</translation>
    </message>
    <message>
        <source>the upper right</source>
        <translation>no alto à direita</translation>
    </message>
    <message>
        <source>the left</source>
        <translation>à esquerda</translation>
    </message>
    <message>
        <source>the middle</source>
        <translation>no meio</translation>
    </message>
    <message>
        <source>the right</source>
        <translation>à direita</translation>
    </message>
    <message>
        <source>the lower left</source>
        <translation>embaixo à esquerda</translation>
    </message>
    <message>
        <source>the bottom</source>
        <translation>embaixo</translation>
    </message>
    <message>
        <source>the lower right</source>
        <translation>embaixo à direita</translation>
    </message>
    <message>
        <source>it cannot be compared: %1</source>
        <translation>não pode ser comparada: %1</translation>
    </message>
    <message>
        <source>the photo to keep cannot be compared: %1</source>
        <translation>a foto que convém manter não pode ser comparada: %1</translation>
    </message>
    <message>
        <source>it has too few pixels</source>
        <translation>tem pixels de menos</translation>
    </message>
    <message>
        <source>it is partly transparent</source>
        <translation>é transparente em parte</translation>
    </message>
    <message>
        <source>it breaks off before the end of its picture</source>
        <translation>é interrompida antes do fim da imagem</translation>
    </message>
    <message>
        <source>it holds more behind its picture</source>
        <translation>contém mais dados depois da imagem</translation>
    </message>
    <message>
        <source>of several pictures in a file only the first can be compared</source>
        <translation>de várias imagens em um arquivo só a primeira pode ser comparada</translation>
    </message>
    <message>
        <source>there is not enough memory to compare it</source>
        <translation>não há memória suficiente para comparar</translation>
    </message>
    <message>
        <source>nothing of the picture can be decoded</source>
        <translation>nada da imagem pode ser decodificado</translation>
    </message>
    <message>
        <source>the head of the picture is damaged</source>
        <translation>o início da imagem está danificado</translation>
    </message>
    <message>
        <source>a part of the picture is damaged</source>
        <translation>uma parte da imagem está danificada</translation>
    </message>
    <message>
        <source>its content is not a picture of a known format</source>
        <translation>o conteúdo não é uma imagem de formato conhecido</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>o arquivo está vazio</translation>
    </message>
    <message>
        <source>the system lets nobody move it; take its attribute &quot;immutable&quot; away</source>
        <translation>o sistema não permite que ninguém o mova; remova o atributo “immutable”</translation>
    </message>
    <message>
        <source>has a link of the same name beside it, which would not be renamed: %1</source>
        <translation>ao lado há um link com o mesmo nome, que não seria renomeado: %1</translation>
    </message>
    <message>
        <source>has no date</source>
        <translation>não tem data</translation>
    </message>
    <message>
        <source>has no readable date: %1</source>
        <translation>não tem uma data legível: %1</translation>
    </message>
    <message>
        <source>is given twice</source>
        <translation>foi indicado duas vezes</translation>
    </message>
    <message>
        <source>%1 is a link to somewhere else, and imports do not write through links. Remove the link, then import again.</source>
        <translation>%1 é um link para outro lugar, e a importação não grava através de links. Remova o link e importe de novo.</translation>
    </message>
    <message>
        <source>%1 is no file, and imports keep one there. Remove it, then import again.</source>
        <translation>%1 não é um arquivo, e a importação mantém um ali. Remova-o e importe de novo.</translation>
    </message>
    <message>
        <source>%1 is a second name of another file (a hard link), and imports do not write to such. Put a copy of it in its place, or remove it, then import again.</source>
        <translation>%1 é um segundo nome de outro arquivo (um link físico), e a importação não grava em arquivos assim. Ponha uma cópia no lugar dele, ou remova-o, e importe de novo.</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 não é uma pasta.</translation>
    </message>
    <message>
        <source>There is not enough space in %1: %2 bytes are needed, %3 are free.</source>
        <translation>Não há espaço suficiente em %1: são necessários %2 bytes, há %3 livres.</translation>
    </message>
    <message>
        <source>would be the name of two photos: %1</source>
        <translation>seria o nome de duas fotos: %1</translation>
    </message>
    <message>
        <source>would be the name of two files: %1</source>
        <translation>seria o nome de dois arquivos: %1</translation>
    </message>
    <message>
        <source>is the name of another file: %1</source>
        <translation>é o nome de outro arquivo: %1</translation>
    </message>
    <message>
        <source>is the name of another photo or its sidecar: %1</source>
        <translation>é o nome de outra foto ou do arquivo auxiliar dela: %1</translation>
    </message>
    <message>
        <source>is the name of a photo that cannot be renamed: %1</source>
        <translation>é o nome de uma foto que não pode ser renomeada: %1</translation>
    </message>
    <message>
        <source>holds a separator of folders %1</source>
        <translation>contém o separador de pastas %1</translation>
    </message>
    <message>
        <source>holds the sign for unreadable characters</source>
        <translation>contém o sinal dos caracteres ilegíveis</translation>
    </message>
    <message>
        <source>holds a control character</source>
        <translation>contém um caractere de controle</translation>
    </message>
    <message>
        <source>holds the character %1</source>
        <translation>contém o caractere %1</translation>
    </message>
    <message>
        <source>begins with a dot, which hides the file</source>
        <translation>começa com um ponto, que oculta o arquivo</translation>
    </message>
    <message>
        <source>is longer than %1 bytes</source>
        <translation>tem mais de %1 bytes</translation>
    </message>
    <message>
        <source>names a device of Windows</source>
        <translation>designa um dispositivo do Windows</translation>
    </message>
    <message>
        <source>ends in a dot, which Windows drops</source>
        <translation>termina com um ponto, que o Windows descarta</translation>
    </message>
    <message>
        <source>ends in a blank, which Windows drops</source>
        <translation>termina com um espaço, que o Windows descarta</translation>
    </message>
    <message>
        <source>is not valid UTF-8</source>
        <translation>não é UTF-8 válido</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Select folder</source>
        <translation>Selecionar pasta</translation>
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
        <translation>&amp;Sim</translation>
    </message>
    <message>
        <source>Yes to &amp;All</source>
        <translation>Sim para &amp;todos</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Não</translation>
    </message>
    <message>
        <source>N&amp;o to All</source>
        <translation>Nã&amp;o para todos</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Salvar tudo</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Tentar novamente</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorar</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Abortar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Redefinir</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>Restaurar padrões</translation>
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
        <translation>Álbuns</translation>
    </message>
    <message>
        <source>Proposed albums</source>
        <translation>Álbuns propostos</translation>
    </message>
    <message>
        <source>Similar photos</source>
        <translation>Fotos semelhantes</translation>
    </message>
    <message>
        <source>Groups by year</source>
        <translation>Grupos por ano</translation>
    </message>
    <message>
        <source>No similar photos</source>
        <translation>Nenhuma foto semelhante</translation>
    </message>
    <message>
        <source>Groups appear here once the catalogue holds photos that are alike.</source>
        <translation>Os grupos aparecerão aqui assim que o catálogo tiver fotos parecidas.</translation>
    </message>
    <message>
        <source>Albums by year</source>
        <translation>Álbuns por ano</translation>
    </message>
    <message>
        <source>No albums yet</source>
        <translation>Ainda não há álbuns</translation>
    </message>
    <message>
        <source>Albums appear here once there are enough photos of a holiday or of a month&apos;s weekends. Scan more folders and try again.</source>
        <translation>Os álbuns aparecerão aqui assim que houver fotos suficientes de um feriado ou dos fins de semana de um mês. Leia mais pastas e tente novamente.</translation>
    </message>
    <message>
        <source>Unnamed album</source>
        <translation>Álbum sem nome</translation>
    </message>
    <message>
        <source>Undated</source>
        <translation>Sem data</translation>
    </message>
    <message>
        <source>Accepted</source>
        <translation>Aceito</translation>
    </message>
    <message>
        <source>No picture</source>
        <translation>Sem imagem</translation>
    </message>
    <message numerus="yes">
        <source>and %1 more</source>
        <translation>
            <numerusform>e mais %1</numerusform>
            <numerusform>e mais %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Made with Lumidex. This page holds all its pictures and needs no other file.</source>
        <translation>Feito com o Lumidex. Esta página contém todas as suas imagens e não precisa de nenhum outro arquivo.</translation>
    </message>
</context>
<context>
    <name>Terminal</name>
    <message>
        <source>Drawing</source>
        <translation>Desenhando</translation>
    </message>
    <message>
        <source>pictures</source>
        <comment>of so many</comment>
        <translation>imagens</translation>
    </message>
    <message>
        <source>The catalogue holds no photos yet. Run: lumidex scan DIR</source>
        <translation>O catálogo ainda não contém fotos. Execute: lumidex scan PASTA</translation>
    </message>
    <message numerus="yes">
        <source>All %1 photos of the catalogue were missing at the last scan. Is a disk not connected?</source>
        <translation>
            <numerusform>A %1 foto do catálogo faltava na última leitura. Há algum disco não conectado?</numerusform>
            <numerusform>Todas as %1 fotos do catálogo faltavam na última leitura. Há algum disco não conectado?</numerusform>
        </translation>
    </message>
    <message>
        <source>Interrupted.</source>
        <translation>Interrompido.</translation>
    </message>
    <message>
        <source>No album was accepted.</source>
        <translation>Nenhum álbum foi aceito.</translation>
    </message>
    <message>
        <source>The page %1 is written; it shows all chosen albums as accepted.</source>
        <translation>A página %1 foi gravada; ela mostra todos os álbuns escolhidos como aceitos.</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>sim</translation>
    </message>
    <message numerus="yes">
        <source>yes, %1 more now</source>
        <translation>
            <numerusform>sim, agora mais %1</numerusform>
            <numerusform>sim, agora mais %1</numerusform>
        </translation>
    </message>
    <message>
        <source>ALBUM</source>
        <translation>ÁLBUM</translation>
    </message>
    <message>
        <source>WHEN</source>
        <translation>QUANDO</translation>
    </message>
    <message>
        <source>FIRST DAY</source>
        <translation>PRIMEIRO DIA</translation>
    </message>
    <message>
        <source>LAST DAY</source>
        <translation>ÚLTIMO DIA</translation>
    </message>
    <message>
        <source>PHOTOS</source>
        <translation>FOTOS</translation>
    </message>
    <message>
        <source>ACCEPTED</source>
        <translation>ACEITO</translation>
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
            <numerusform>%1 aceito: %2 foto.</numerusform>
            <numerusform>%1 aceito: %2 fotos.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Added %1 photos to %2, which was accepted before.</source>
        <translation>
            <numerusform>%1 foto adicionada a %2, aceito anteriormente.</numerusform>
            <numerusform>%1 fotos adicionadas a %2, aceito anteriormente.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 was accepted before, and there are no photos to add.</source>
        <translation>%1 já estava aceito, e não há fotos a adicionar.</translation>
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
            <numerusform>%1, %2 delas sem data</numerusform>
            <numerusform>%1, %2 delas sem data</numerusform>
        </translation>
    </message>
    <message>
        <source>No album has been accepted yet. &quot;lumidex albums&quot; shows proposals.</source>
        <translation>Nenhum álbum foi aceito ainda. “lumidex albums” mostra propostas.</translation>
    </message>
    <message numerus="yes">
        <source>%1 accepted albums.</source>
        <translation>
            <numerusform>%1 álbum aceito.</numerusform>
            <numerusform>%1 álbuns aceitos.</numerusform>
        </translation>
    </message>
    <message>
        <source>No albums to propose from %1: an album needs 20 photos or more of one
holiday, or of the weekends of one month.</source>
        <translation>Nenhum álbum a propor a partir de %1: um álbum precisa de pelo menos 20 fotos
de um mesmo feriado ou dos fins de semana de um mês.</translation>
    </message>
    <message numerus="yes">
        <source>%1 albums</source>
        <translation>
            <numerusform>%1 álbum</numerusform>
            <numerusform>%1 álbuns</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 from %2; %3 accepted.</source>
        <comment>albums, photos, how many</comment>
        <translation>
            <numerusform>%1 a partir de %2; %3 aceito.</numerusform>
            <numerusform>%1 a partir de %2; %3 aceitos.</numerusform>
        </translation>
    </message>
    <message>
        <source>Calendar: %1 (from the server)</source>
        <translation>Calendário: %1 (do servidor)</translation>
    </message>
    <message>
        <source>Calendar: %1</source>
        <translation>Calendário: %1</translation>
    </message>
    <message>
        <source>The calendar has no holidays for %1.</source>
        <translation>O calendário não tem feriados para %1.</translation>
    </message>
    <message>
        <source>HOLIDAY</source>
        <translation>FERIADO</translation>
    </message>
    <message>
        <source>DAYS</source>
        <translation>DIAS</translation>
    </message>
    <message>
        <source>(no name)</source>
        <translation>(sem nome)</translation>
    </message>
    <message numerus="yes">
        <source>%1 holidays for %2.</source>
        <translation>
            <numerusform>%1 feriado para %2.</numerusform>
            <numerusform>%1 feriados para %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: no mistakes found.</source>
        <translation>%1: nenhum erro encontrado.</translation>
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
            <numerusform>%1: %2 erro encontrado.</numerusform>
            <numerusform>%1: %2 erros encontrados.</numerusform>
        </translation>
    </message>
    <message>
        <source>The calendar was not updated: %1</source>
        <translation>O calendário não foi atualizado: %1</translation>
    </message>
    <message>
        <source>There is no calendar.</source>
        <translation>Não há calendário.</translation>
    </message>
    <message>
        <source>Still in use: %1</source>
        <translation>Continua em uso: %1</translation>
    </message>
    <message>
        <source>The calendar was updated: %1</source>
        <translation>O calendário foi atualizado: %1</translation>
    </message>
    <message>
        <source>The calendar is up to date: %1</source>
        <translation>O calendário está atualizado: %1</translation>
    </message>
    <message>
        <source>The holiday calendar could not be read completely, so holidays are missing. Run: lumidex calendar check, or lumidex calendar update.</source>
        <translation>O calendário de feriados não pôde ser lido por completo, por isso faltam feriados. Execute: lumidex calendar check ou lumidex calendar update.</translation>
    </message>
    <message>
        <source>The holiday calendar %1 could not be read completely, so holidays are missing. Run: lumidex calendar check, or lumidex calendar update.</source>
        <translation>O calendário de feriados %1 não pôde ser lido por completo, por isso faltam feriados. Execute: lumidex calendar check ou lumidex calendar update.</translation>
    </message>
    <message>
        <source>unreadable</source>
        <translation>ilegível</translation>
    </message>
    <message>
        <source>Volume of</source>
        <translation>Volume de</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Arquivos</translation>
    </message>
    <message>
        <source>Needed</source>
        <translation>Necessário</translation>
    </message>
    <message>
        <source>Free</source>
        <comment>room on a disk</comment>
        <translation>Livre</translation>
    </message>
    <message>
        <source>unknown</source>
        <comment>free room</comment>
        <translation>desconhecido</translation>
    </message>
    <message numerus="yes">
        <source>%1 files checked</source>
        <translation>
            <numerusform>%1 arquivo verificado</numerusform>
            <numerusform>%1 arquivos verificados</numerusform>
        </translation>
    </message>
    <message>
        <source>no problems found.</source>
        <translation>nenhum problema encontrado.</translation>
    </message>
    <message>
        <source>Interrupted. Nothing was changed.</source>
        <translation>Interrompido. Nada foi alterado.</translation>
    </message>
    <message>
        <source>There are no photos in the given folders.</source>
        <translation>Não há fotos nas pastas indicadas.</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>Experimentando</translation>
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
        <translation>na posição normal</translation>
    </message>
    <message>
        <source>mirrored</source>
        <translation>espelhada</translation>
    </message>
    <message>
        <source>upside down</source>
        <translation>de cabeça para baixo</translation>
    </message>
    <message>
        <source>upside down, mirrored</source>
        <translation>de cabeça para baixo, espelhada</translation>
    </message>
    <message>
        <source>turned left, mirrored</source>
        <translation>girada à esquerda, espelhada</translation>
    </message>
    <message>
        <source>turned right</source>
        <translation>girada à direita</translation>
    </message>
    <message>
        <source>turned right, mirrored</source>
        <translation>girada à direita, espelhada</translation>
    </message>
    <message>
        <source>turned left</source>
        <translation>girada à esquerda</translation>
    </message>
    <message>
        <source>no date</source>
        <translation>sem data</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos would be edited. This was a dry run: nothing was changed.</source>
        <translation>
            <numerusform>%1 foto seria editada. Isto foi uma simulação: nada foi alterado.</numerusform>
            <numerusform>%1 fotos seriam editadas. Isto foi uma simulação: nada foi alterado.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>Nada foi alterado.</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos edited; &quot;lumidex undo&quot; undoes it.</source>
        <translation>
            <numerusform>%1 foto editada; “lumidex undo” desfaz isso.</numerusform>
            <numerusform>%1 fotos editadas; “lumidex undo” desfaz isso.</numerusform>
        </translation>
    </message>
    <message>
        <source>Cannot be edited</source>
        <translation>Não podem ser editadas</translation>
    </message>
    <message>
        <source>Not edited</source>
        <translation>Não editadas</translation>
    </message>
    <message>
        <source>Comparing</source>
        <translation>Comparando</translation>
    </message>
    <message>
        <source>files</source>
        <comment>of so many</comment>
        <translation>arquivos</translation>
    </message>
    <message>
        <source>Copying</source>
        <translation>Copiando</translation>
    </message>
    <message>
        <source>Interrupted. The copies made so far are complete and verified; run the same command to copy the rest.</source>
        <translation>Interrompido. As cópias feitas até agora estão completas e verificadas; execute o mesmo comando para copiar o resto.</translation>
    </message>
    <message>
        <source>Would be copied to %1:</source>
        <translation>Seriam copiados para %1:</translation>
    </message>
    <message>
        <source>Would be added to the catalogue without copying:</source>
        <translation>Seriam incluídas no catálogo sem copiar:</translation>
    </message>
    <message>
        <source>Copies of one shot would get different names:</source>
        <translation>Cópias de um mesmo disparo teriam nomes diferentes:</translation>
    </message>
    <message>
        <source>Not copied:</source>
        <translation>Não copiados:</translation>
    </message>
    <message>
        <source>Not added to the catalogue:</source>
        <translation>Não incluídos no catálogo:</translation>
    </message>
    <message>
        <source>Skipped:</source>
        <translation>Ignorados:</translation>
    </message>
    <message numerus="yes">
        <source>and %1 more (--json lists them)</source>
        <translation>
            <numerusform>e mais %1 (--json mostra todos)</numerusform>
            <numerusform>e mais %1 (--json mostra todos)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos are in the catalogue already.</source>
        <translation>
            <numerusform>%1 foto já está no catálogo.</numerusform>
            <numerusform>%1 fotos já estão no catálogo.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files were copied before.</source>
        <translation>
            <numerusform>%1 arquivo já tinha sido copiado.</numerusform>
            <numerusform>%1 arquivos já tinham sido copiados.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos occur twice in the sources.</source>
        <translation>
            <numerusform>%1 foto aparece duas vezes nas origens.</numerusform>
            <numerusform>%1 fotos aparecem duas vezes nas origens.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was imported.</source>
        <translation>Nada foi importado.</translation>
    </message>
    <message>
        <source>Nothing would be imported.</source>
        <translation>Nada seria importado.</translation>
    </message>
    <message numerus="yes">
        <source>%1 files (%2) would be copied</source>
        <translation>
            <numerusform>%1 arquivo (%2) seria copiado</numerusform>
            <numerusform>%1 arquivos (%2) seriam copiados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos added without copying.</source>
        <comment>would be</comment>
        <translation>
            <numerusform>%1 foto seria incluída sem copiar.</numerusform>
            <numerusform>%1 fotos seriam incluídas sem copiar.</numerusform>
        </translation>
    </message>
    <message>
        <source>This was a dry run:
nothing was changed.</source>
        <translation>Isto foi uma simulação:
nada foi alterado.</translation>
    </message>
    <message numerus="yes">
        <source>%1 files (%2) copied to %3 and verified.</source>
        <translation>
            <numerusform>%1 arquivo (%2) copiado para %3 e verificado.</numerusform>
            <numerusform>%1 arquivos (%2) copiados para %3 e verificados.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos added to the catalogue.</source>
        <translation>
            <numerusform>%1 foto incluída no catálogo.</numerusform>
            <numerusform>%1 fotos incluídas no catálogo.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files were not copied; run the same command to try again.</source>
        <translation>
            <numerusform>%1 arquivo não foi copiado; execute o mesmo comando para tentar novamente.</numerusform>
            <numerusform>%1 arquivos não foram copiados; execute o mesmo comando para tentar novamente.</numerusform>
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
        <translation>%1 não está disponível; %2 será usado.</translation>
    </message>
    <message>
        <source>%1 of %2 %3</source>
        <comment>done, all, what</comment>
        <translation>%1 de %2 %3</translation>
    </message>
    <message>
        <source>%1 of %2 %3 found so far</source>
        <comment>done, all, what</comment>
        <translation>%1 de %2 %3 até agora</translation>
    </message>
    <message>
        <source>%1 left</source>
        <comment>minutes and seconds</comment>
        <translation>faltam %1</translation>
    </message>
    <message>
        <source>y yes</source>
        <comment>answers, all that mean it</comment>
        <translation>s sim</translation>
    </message>
    <message>
        <source>Interrupted. Nothing was renamed.</source>
        <translation>Interrompido. Nada foi renomeado.</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Lendo</translation>
    </message>
    <message>
        <source>Renaming</source>
        <translation>Renomeando</translation>
    </message>
    <message>
        <source>Cannot be renamed:</source>
        <translation>Não podem ser renomeadas:</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos have no date; the times of their files are used.</source>
        <translation>
            <numerusform>%1 foto não tem data; a hora do arquivo é usada.</numerusform>
            <numerusform>%1 fotos não têm data; as horas dos arquivos são usadas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files have their new names already.</source>
        <translation>
            <numerusform>%1 arquivo já tem o nome novo.</numerusform>
            <numerusform>%1 arquivos já têm os nomes novos.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Nothing would be renamed: %1 of %2 photos cannot get their new names.
Add --skip-problems to rename the others.</source>
        <translation>
            <numerusform>Nada seria renomeado: o novo nome é impossível para %1 de %2 foto.
Com --skip-problems, as outras são renomeadas.</numerusform>
            <numerusform>Nada seria renomeado: o novo nome é impossível para %1 de %2 fotos.
Com --skip-problems, as outras são renomeadas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Nothing was renamed: %1 of %2 photos cannot get their new names.
Add --skip-problems to rename the others.</source>
        <translation>
            <numerusform>Nada foi renomeado: o novo nome é impossível para %1 de %2 foto.
Com --skip-problems, as outras são renomeadas.</numerusform>
            <numerusform>Nada foi renomeado: o novo nome é impossível para %1 de %2 fotos.
Com --skip-problems, as outras são renomeadas.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to rename.</source>
        <translation>Nada a renomear.</translation>
    </message>
    <message numerus="yes">
        <source>%1 would be renamed. This was a dry run: nothing was changed.</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>%1 seria renomeada. Isto foi uma simulação: nada foi alterado.</numerusform>
            <numerusform>%1 seriam renomeadas. Isto foi uma simulação: nada foi alterado.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was renamed.</source>
        <translation>Nada foi renomeado.</translation>
    </message>
    <message numerus="yes">
        <source>%1 files could not get their old names back.</source>
        <translation>
            <numerusform>Não foi possível devolver o nome antigo a %1 arquivo.</numerusform>
            <numerusform>Não foi possível devolver o nome antigo a %1 arquivos.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 renamed; &quot;lumidex undo&quot; undoes it.</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>%1 renomeada; “lumidex undo” desfaz isso.</numerusform>
            <numerusform>%1 renomeadas; “lumidex undo” desfaz isso.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 renamed.</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>%1 renomeada.</numerusform>
            <numerusform>%1 renomeadas.</numerusform>
        </translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Problemas</translation>
    </message>
    <message>
        <source>Report: %1</source>
        <translation>Relatório: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 pictures could not be read; placeholders stand for them.</source>
        <translation>
            <numerusform>%1 imagem não pôde ser lida; há um espaço reservado no lugar dela.</numerusform>
            <numerusform>%1 imagens não puderam ser lidas; há espaços reservados no lugar delas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Made %1 photos in %2</source>
        <translation>
            <numerusform>%1 foto criada em %2</numerusform>
            <numerusform>%1 fotos criadas em %2</numerusform>
        </translation>
    </message>
    <message>
        <source>not an image</source>
        <translation>não é imagem</translation>
    </message>
    <message>
        <source>loop</source>
        <translation>laço</translation>
    </message>
    <message>
        <source>Not added:</source>
        <translation>Não incluídos:</translation>
    </message>
    <message numerus="yes">
        <source>%1 original</source>
        <comment>dates read</comment>
        <translation>
            <numerusform>%1 do disparo</numerusform>
            <numerusform>%1 do disparo</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 digitised</source>
        <comment>dates read</comment>
        <translation>
            <numerusform>%1 da digitalização</numerusform>
            <numerusform>%1 da digitalização</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 file time</source>
        <comment>dates read</comment>
        <translation>
            <numerusform>%1 da hora do arquivo</numerusform>
            <numerusform>%1 da hora do arquivo</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 none</source>
        <comment>dates read</comment>
        <translation>
            <numerusform>%1 sem data</numerusform>
            <numerusform>%1 sem data</numerusform>
        </translation>
    </message>
    <message>
        <source>Dates read: %1</source>
        <translation>Datas lidas: %1</translation>
    </message>
    <message numerus="yes">
        <source>files found</source>
        <translation>
            <numerusform>arquivo encontrado</numerusform>
            <numerusform>arquivos encontrados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>new</source>
        <comment>files</comment>
        <translation>
            <numerusform>novo</numerusform>
            <numerusform>novos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>read again</source>
        <comment>files</comment>
        <translation>
            <numerusform>lido novamente</numerusform>
            <numerusform>lidos novamente</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>changed</source>
        <comment>files</comment>
        <translation>
            <numerusform>alterado</numerusform>
            <numerusform>alterados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>unchanged</source>
        <comment>files</comment>
        <translation>
            <numerusform>inalterado</numerusform>
            <numerusform>inalterados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>missing, now marked as lost</source>
        <comment>files</comment>
        <translation>
            <numerusform>ausente, agora marcado como perdido</numerusform>
            <numerusform>ausentes, agora marcados como perdidos</numerusform>
        </translation>
    </message>
    <message>
        <source>This was a dry run: nothing was stored.</source>
        <translation>Isto foi uma simulação: nada foi salvo.</translation>
    </message>
    <message>
        <source>Catalogue: %1</source>
        <translation>Catálogo: %1</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>Lendo pastas</translation>
    </message>
    <message>
        <source>Interrupted. What was read so far is in the catalogue; run the same command to continue.</source>
        <translation>Interrompido. O que foi lido até agora está no catálogo; execute o mesmo comando para continuar.</translation>
    </message>
    <message>
        <source>Analysing</source>
        <translation>Analisando</translation>
    </message>
    <message>
        <source>Grouping</source>
        <translation>Agrupando</translation>
    </message>
    <message>
        <source>Measuring</source>
        <translation>Medindo</translation>
    </message>
    <message>
        <source>Interrupted. What was moved is in the trash.</source>
        <translation>Interrompido. O que foi movido está na lixeira.</translation>
    </message>
    <message>
        <source>Interrupted. Run the same command to continue.</source>
        <translation>Interrompido. Execute o mesmo comando para continuar.</translation>
    </message>
    <message>
        <source>Interrupted. Nothing was moved.</source>
        <translation>Interrompido. Nada foi movido.</translation>
    </message>
    <message>
        <source>Move %1 to the trash? [y/N]</source>
        <translation>Mover %1 para a lixeira? [s/N]</translation>
    </message>
    <message>
        <source>Moving</source>
        <translation>Movendo</translation>
    </message>
    <message>
        <source>Keep %1</source>
        <comment>a file</comment>
        <translation>Manter %1</translation>
    </message>
    <message>
        <source>Keep %1: %2</source>
        <comment>a file: why</comment>
        <translation>Manter %1: %2</translation>
    </message>
    <message>
        <source>%1, %2, score %3</source>
        <comment>pixels, size, number</comment>
        <translation>%1, %2, semelhança %3</translation>
    </message>
    <message>
        <source>largest</source>
        <comment>photo</comment>
        <translation>a maior</translation>
    </message>
    <message>
        <source>sharpest</source>
        <comment>photo</comment>
        <translation>a mais nítida</translation>
    </message>
    <message>
        <source>has camera data</source>
        <translation>com dados da câmera</translation>
    </message>
    <message>
        <source>earliest</source>
        <comment>photo</comment>
        <translation>a mais antiga</translation>
    </message>
    <message>
        <source>first by name</source>
        <translation>a primeira pelo nome</translation>
    </message>
    <message>
        <source>Not compared:</source>
        <translation>Não comparadas:</translation>
    </message>
    <message numerus="yes">
        <source>No similar photos among %1 photos.</source>
        <translation>
            <numerusform>Nenhuma foto semelhante entre %1 foto.</numerusform>
            <numerusform>Nenhuma foto semelhante entre %1 fotos.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 groups of similar photos</source>
        <translation>
            <numerusform>%1 grupo de fotos semelhantes</numerusform>
            <numerusform>%1 grupos de fotos semelhantes</numerusform>
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
            <numerusform>%1 foto (%2) além das que convém manter.</numerusform>
            <numerusform>%1 fotos (%2) além das que convém manter.</numerusform>
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
        <translation>manter</translation>
    </message>
    <message>
        <source>trash</source>
        <comment>it goes there</comment>
        <translation>lixeira</translation>
    </message>
    <message>
        <source>stay</source>
        <comment>a photo does</comment>
        <translation>fica</translation>
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
        <translation>COM SEU CENTRO</translation>
    </message>
    <message>
        <source>TO ITS OWN CENTRE</source>
        <translation>COM O PRÓPRIO CENTRO</translation>
    </message>
    <message>
        <source>TO THE OTHER&apos;S</source>
        <translation>COM O DA OUTRA</translation>
    </message>
    <message>
        <source>The photos score %1 against each other and are in one group.</source>
        <translation>As fotos têm semelhança %1 entre si e estão em um mesmo grupo.</translation>
    </message>
    <message>
        <source>The photos score %1 against each other and are in different groups.</source>
        <translation>As fotos têm semelhança %1 entre si e estão em grupos diferentes.</translation>
    </message>
    <message>
        <source>A photo joins the first group whose centre scores above %1 against it. The centre is the
mean of the photos in the group at that time; later photos move it.</source>
        <translation>Uma foto entra no primeiro grupo com cujo centro a semelhança passa de %1. O centro é a média
das fotos que estão no grupo nesse momento; fotos posteriores o deslocam.</translation>
    </message>
    <message>
        <source>Matching all photos again gives the same groups.</source>
        <translation>Uma nova comparação de todas as fotos dá os mesmos grupos.</translation>
    </message>
    <message>
        <source>&quot;lumidex similar --anew&quot; makes all groups again.</source>
        <translation>“lumidex similar --anew” forma todos os grupos novamente.</translation>
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
            <numerusform>%1 (%2 arquivo)</numerusform>
            <numerusform>%1 (%2 arquivos)</numerusform>
        </translation>
    </message>
    <message>
        <source>rename %1</source>
        <comment>so many photos</comment>
        <translation>renomear %1</translation>
    </message>
    <message>
        <source>shift dates by %1</source>
        <translation>deslocar datas em %1</translation>
    </message>
    <message>
        <source>set dates to %1</source>
        <translation>definir as datas para %1</translation>
    </message>
    <message>
        <source>rotate left</source>
        <translation>girar à esquerda</translation>
    </message>
    <message>
        <source>rotate right</source>
        <translation>girar à direita</translation>
    </message>
    <message>
        <source>rotate 180</source>
        <translation>girar 180°</translation>
    </message>
    <message>
        <source>move similar photos to the trash</source>
        <translation>mover fotos semelhantes para a lixeira</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sim</translation>
    </message>
    <message>
        <source>Yes to all</source>
        <translation>Sim para todos</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Não</translation>
    </message>
    <message>
        <source>No to all</source>
        <translation>Não para todos</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>Save all</source>
        <translation>Salvar tudo</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Tentar novamente</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorar</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Abortar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Redefinir</translation>
    </message>
    <message>
        <source>Restore defaults</source>
        <translation>Restaurar padrões</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Nothing to move to the trash.</source>
        <translation>Nada a mover para a lixeira.</translation>
    </message>
    <message numerus="yes">
        <source>%1 would be moved to the trash. This was a dry run: nothing was changed.</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>%1 seria movida para a lixeira. Isto foi uma simulação: nada foi alterado.</numerusform>
            <numerusform>%1 seriam movidas para a lixeira. Isto foi uma simulação: nada foi alterado.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was moved.</source>
        <translation>Nada foi movido.</translation>
    </message>
    <message numerus="yes">
        <source>%1 moved to the trash; &quot;lumidex undo&quot; brings back what is still there.</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>%1 movida para a lixeira; “lumidex undo” traz de volta o que ainda estiver lá.</numerusform>
            <numerusform>%1 movidas para a lixeira; “lumidex undo” traz de volta o que ainda estiver lá.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 moved to the trash.</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>%1 movida para a lixeira.</numerusform>
            <numerusform>%1 movidas para a lixeira.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>%1 arquivo</numerusform>
            <numerusform>%1 arquivos</numerusform>
        </translation>
    </message>
    <message>
        <source>Not moved:</source>
        <translation>Não movidas:</translation>
    </message>
    <message>
        <source>Left where they are</source>
        <translation>Deixados onde estão</translation>
    </message>
    <message>
        <source>Redoing</source>
        <translation>Refazendo</translation>
    </message>
    <message>
        <source>Undoing</source>
        <translation>Desfazendo</translation>
    </message>
    <message>
        <source>Interrupted. What was done so far stays done.</source>
        <translation>Interrompido. O que foi feito até agora permanece feito.</translation>
    </message>
    <message numerus="yes">
        <source>Only %1 of the %2 steps that you asked for.</source>
        <translation>
            <numerusform>Apenas %1 das %2 etapas pedidas.</numerusform>
            <numerusform>Apenas %1 das %2 etapas pedidas.</numerusform>
        </translation>
    </message>
    <message>
        <source>The setting %1 is invalid (%2); the default is used.</source>
        <translation>A configuração %1 é inválida (%2); o valor padrão é usado.</translation>
    </message>
    <message>
        <source>undone</source>
        <comment>a step</comment>
        <translation>desfeita</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>Não há nada a desfazer.</translation>
    </message>
    <message>
        <source>WHAT</source>
        <translation>O QUÊ</translation>
    </message>
    <message>
        <source>FILES</source>
        <translation>ARQUIVOS</translation>
    </message>
    <message>
        <source>KEPT</source>
        <comment>so many bytes</comment>
        <translation>GUARDADO</translation>
    </message>
    <message>
        <source>Left as they are</source>
        <translation>Deixados como estão</translation>
    </message>
    <message>
        <source>Nothing of &quot;%1&quot; was redone.</source>
        <translation>Nada de “%1” foi refeito.</translation>
    </message>
    <message>
        <source>Nothing of &quot;%1&quot; was undone.</source>
        <translation>Nada de “%1” foi desfeito.</translation>
    </message>
    <message>
        <source>Redone: %1.</source>
        <translation>Refeito: %1.</translation>
    </message>
    <message>
        <source>Undone: %1.</source>
        <translation>Desfeito: %1.</translation>
    </message>
    <message numerus="yes">
        <source>Redone: %1, except for %2 files.</source>
        <translation>
            <numerusform>Refeito: %1, exceto %2 arquivo.</numerusform>
            <numerusform>Refeito: %1, exceto %2 arquivos.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Undone: %1, except for %2 files.</source>
        <translation>
            <numerusform>Desfeito: %1, exceto %2 arquivo.</numerusform>
            <numerusform>Desfeito: %1, exceto %2 arquivos.</numerusform>
        </translation>
    </message>
    <message>
        <source>Older steps cannot be undone before this one; &quot;lumidex undo --skip&quot; skips it for good.</source>
        <translation>Etapas mais antigas não podem ser desfeitas antes desta; “lumidex undo --skip” a pula para sempre.</translation>
    </message>
    <message>
        <source>There is nothing to skip.</source>
        <translation>Não há nada a pular.</translation>
    </message>
    <message>
        <source>Skipped: %1.</source>
        <translation>Etapa pulada: %1.</translation>
    </message>
    <message>
        <source>Its originals (%1) are kept until they exceed the limits of undo.</source>
        <translation>Os originais dela (%1) ficam guardados até passarem dos limites de “undo”.</translation>
    </message>
    <message numerus="yes">
        <source>%1 older steps cannot be undone any more.</source>
        <translation>
            <numerusform>%1 etapa mais antiga não pode mais ser desfeita.</numerusform>
            <numerusform>%1 etapas mais antigas não podem mais ser desfeitas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Steps can be undone for %1 days of use, with up to %2 of originals.</source>
        <translation>
            <numerusform>As etapas podem ser desfeitas por %1 dia de uso, com até %2 de originais.</numerusform>
            <numerusform>As etapas podem ser desfeitas por %1 dias de uso, com até %2 de originais.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>Não há nada a refazer.</translation>
    </message>
    <message>
        <source>Copies would share names with files of other shots:</source>
        <translation>Cópias teriam o mesmo nome que arquivos de outros disparos:</translation>
    </message>
    <message>
        <source>file time</source>
        <comment>where a date is from</comment>
        <translation>hora do arquivo</translation>
    </message>
    <message numerus="yes">
        <source>%1 frames</source>
        <translation>
            <numerusform>%1 quadro</numerusform>
            <numerusform>%1 quadros</numerusform>
        </translation>
    </message>
    <message>
        <source>DATE</source>
        <translation>DATA</translation>
    </message>
    <message>
        <source>FROM</source>
        <translation>ORIGEM</translation>
    </message>
    <message>
        <source>CAMERA</source>
        <translation>CÂMERA</translation>
    </message>
    <message>
        <source>POSITION</source>
        <translation>POSIÇÃO</translation>
    </message>
    <message>
        <source>PICTURE</source>
        <translation>IMAGEM</translation>
    </message>
    <message>
        <source>ORIENTATION</source>
        <translation>ORIENTAÇÃO</translation>
    </message>
    <message>
        <source>SIZE</source>
        <translation>TAMANHO</translation>
    </message>
    <message>
        <source>Doubtful positions:</source>
        <translation>Posições duvidosas:</translation>
    </message>
    <message>
        <source>Not read</source>
        <translation>Não lidas</translation>
    </message>
    <message>
        <source>TAKEN</source>
        <translation>TIRADA</translation>
    </message>
    <message>
        <source>TAGS</source>
        <translation>ETIQUETAS</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>ARQUIVO</translation>
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
        <translation>As estatísticas estão ativadas.</translation>
    </message>
    <message>
        <source>Statistics are off.</source>
        <translation>As estatísticas estão desativadas.</translation>
    </message>
    <message>
        <source>File: %1</source>
        <translation>Arquivo: %1</translation>
    </message>
    <message>
        <source>DAY</source>
        <translation>DIA</translation>
    </message>
    <message>
        <source>COMMAND</source>
        <translation>COMANDO</translation>
    </message>
    <message>
        <source>DETAILS</source>
        <translation>DETALHES</translation>
    </message>
    <message numerus="yes">
        <source>Statistics are on; %1 lines.</source>
        <translation>
            <numerusform>As estatísticas estão ativadas; %1 linha.</numerusform>
            <numerusform>As estatísticas estão ativadas; %1 linhas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Statistics are off; %1 lines.</source>
        <translation>
            <numerusform>As estatísticas estão desativadas; %1 linha.</numerusform>
            <numerusform>As estatísticas estão desativadas; %1 linhas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 lines of the statistics cannot be read.</source>
        <translation>
            <numerusform>%1 linha das estatísticas está ilegível.</numerusform>
            <numerusform>%1 linhas das estatísticas estão ilegíveis.</numerusform>
        </translation>
    </message>
    <message>
        <source>The statistics are deleted.</source>
        <translation>As estatísticas foram excluídas.</translation>
    </message>
    <message>
        <source>tag %1</source>
        <comment>+one -another</comment>
        <translation>etiquetas: %1</translation>
    </message>
    <message>
        <source>No photo has the tag &quot;%1&quot;.</source>
        <translation>Nenhuma foto tem a etiqueta “%1”.</translation>
    </message>
    <message>
        <source>system</source>
        <comment>kind of tag</comment>
        <translation>sistema</translation>
    </message>
    <message>
        <source>icon</source>
        <comment>kind of tag</comment>
        <translation>ícone</translation>
    </message>
    <message>
        <source>automatic</source>
        <comment>kind of tag</comment>
        <translation>automática</translation>
    </message>
    <message>
        <source>own</source>
        <comment>kind of tag</comment>
        <translation>própria</translation>
    </message>
    <message>
        <source>No photo has a tag yet. Run: lumidex tag FILE +TAG</source>
        <translation>Nenhuma foto tem etiqueta ainda. Execute: lumidex tag ARQUIVO +ETIQUETA</translation>
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
        <translation>Fora da lista</translation>
    </message>
    <message>
        <source>Not tagged</source>
        <translation>Não etiquetadas</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos changed; &quot;lumidex undo&quot; undoes it.</source>
        <translation>
            <numerusform>%1 foto alterada; “lumidex undo” desfaz isso.</numerusform>
            <numerusform>%1 fotos alteradas; “lumidex undo” desfaz isso.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos changed.</source>
        <translation>
            <numerusform>%1 foto alterada.</numerusform>
            <numerusform>%1 fotos alteradas.</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;lumidex undo&quot; undoes it.</source>
        <translation>“lumidex undo” desfaz isso.</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos were left out, because they have no date but the times of their files. To include them, run: lumidex albums --file-times</source>
        <translation>
            <numerusform>%1 foto foi deixada de fora, porque não tem outra data além da hora do arquivo. Para incluí-la, execute: lumidex albums --file-times</numerusform>
            <numerusform>%1 fotos foram deixadas de fora, porque não têm outra data além da hora dos arquivos. Para incluí-las, execute: lumidex albums --file-times</numerusform>
        </translation>
    </message>
    <message>
        <source>Refused by %1</source>
        <comment>commands</comment>
        <translation>Recusados por %1</translation>
    </message>
    <message>
        <source>If all these photos are edited at once:</source>
        <translation>Se todas estas fotos forem editadas de uma vez:</translation>
    </message>
    <message>
        <source>its sidecar</source>
        <translation>seu arquivo auxiliar</translation>
    </message>
    <message numerus="yes">
        <source>%1 sidecars would be edited along with them.</source>
        <translation>
            <numerusform>%1 arquivo auxiliar seria editado junto com elas.</numerusform>
            <numerusform>%1 arquivos auxiliares seriam editados junto com elas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 sidecars edited along with them.</source>
        <translation>
            <numerusform>%1 arquivo auxiliar editado junto com elas.</numerusform>
            <numerusform>%1 arquivos auxiliares editados junto com elas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos edited; it cannot be undone.</source>
        <translation>
            <numerusform>%1 foto editada; isso não pode ser desfeito.</numerusform>
            <numerusform>%1 fotos editadas; isso não pode ser desfeito.</numerusform>
        </translation>
    </message>
    <message>
        <source>There are no photos or videos in the given folders.</source>
        <translation>Não há fotos nem vídeos nas pastas indicadas.</translation>
    </message>
    <message>
        <source>It is hidden</source>
        <translation>Está oculto</translation>
    </message>
    <message>
        <source>It is not a photo, a video or a file that belongs to one</source>
        <translation>Não é foto nem vídeo, nem pertence a um deles</translation>
    </message>
    <message>
        <source>&quot;lumidex undo&quot; moves the copies of this run to the trash.</source>
        <translation>“lumidex undo” move para a lixeira as cópias desta execução.</translation>
    </message>
    <message numerus="yes">
        <source>%1 files are not copied, as you chose; they stay where they are.</source>
        <translation>
            <numerusform>%1 arquivo não é copiado, como você pediu: fica onde está.</numerusform>
            <numerusform>%1 arquivos não são copiados, como você pediu: ficam onde estão.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files are not copied, because they are not on removable storage; &quot;--to DIR&quot; copies them.</source>
        <translation>
            <numerusform>%1 arquivo não é copiado, porque não está em armazenamento removível; “--to PASTA” o copia.</numerusform>
            <numerusform>%1 arquivos não são copiados, porque não estão em armazenamento removível; “--to PASTA” os copia.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of them are videos, which the catalogue does not hold.</source>
        <translation>
            <numerusform>%1 deles é um vídeo, que o catálogo não aceita.</numerusform>
            <numerusform>%1 deles são vídeos, que o catálogo não aceita.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 housekeeping files of cameras and systems are not copied.</source>
        <translation>
            <numerusform>%1 arquivo de controle de câmeras e sistemas não é copiado.</numerusform>
            <numerusform>%1 arquivos de controle de câmeras e sistemas não são copiados.</numerusform>
        </translation>
    </message>
    <message>
        <source>Not everything in %1 is copied: do not format or empty it yet.</source>
        <translation>Nem tudo em %1 foi copiado: não formate nem esvazie ainda.</translation>
    </message>
    <message>
        <source>Copies are in %1 itself: do not format or empty it.</source>
        <translation>Há cópias no próprio %1: não formate nem esvazie.</translation>
    </message>
    <message numerus="yes">
        <source>%1 steps cannot be undone any more, because more than %2 days of use have passed.</source>
        <translation>
            <numerusform>%1 etapa não pode mais ser desfeita, porque passaram mais de %2 dias de uso.</numerusform>
            <numerusform>%1 etapas não podem mais ser desfeitas, porque passaram mais de %2 dias de uso.</numerusform>
        </translation>
    </message>
    <message>
        <source>Links that lead to the new names:</source>
        <translation>Links que levam aos novos nomes:</translation>
    </message>
    <message numerus="yes">
        <source>%1 symbolic links lead to the new names.</source>
        <translation>
            <numerusform>%1 link simbólico leva ao novo nome.</numerusform>
            <numerusform>%1 links simbólicos levam aos novos nomes.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 symbolic links keep their names.</source>
        <translation>
            <numerusform>%1 link simbólico mantém seu nome.</numerusform>
            <numerusform>%1 links simbólicos mantêm seus nomes.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 and %2 more</source>
        <comment>files</comment>
        <translation>
            <numerusform>%1 e mais %2</numerusform>
            <numerusform>%1 e mais %2</numerusform>
        </translation>
    </message>
    <message>
        <source>These may be photos that were moved, but several files or photos come into question.
The photos keep their tags and albums, the files are new:</source>
        <translation>Podem ser fotos que foram movidas, mas há vários arquivos ou fotos possíveis.
As fotos mantêm suas etiquetas e álbuns, os arquivos são novos:</translation>
    </message>
    <message numerus="yes">
        <source>%1 XMP</source>
        <comment>dates read</comment>
        <translation>
            <numerusform>%1 dos dados XMP</numerusform>
            <numerusform>%1 dos dados XMP</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 IPTC</source>
        <comment>dates read</comment>
        <translation>
            <numerusform>%1 dos dados IPTC</numerusform>
            <numerusform>%1 dos dados IPTC</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>moved or renamed</source>
        <comment>files</comment>
        <translation>
            <numerusform>movido ou renomeado</numerusform>
            <numerusform>movidos ou renomeados</numerusform>
        </translation>
    </message>
    <message>
        <source>Keep this one</source>
        <comment>a photo</comment>
        <translation>Manter esta</translation>
    </message>
    <message>
        <source>Same picture</source>
        <translation>Mesma imagem</translation>
    </message>
    <message>
        <source>Alike</source>
        <comment>a photo</comment>
        <translation>Parecida</translation>
    </message>
    <message>
        <source>Different</source>
        <comment>a photo</comment>
        <translation>Diferente</translation>
    </message>
    <message>
        <source>Could not be compared</source>
        <comment>a photo</comment>
        <translation>Não pôde ser comparada</translation>
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
        <translation>sem danos</translation>
    </message>
    <message>
        <source>the camera&apos;s own file</source>
        <translation>o arquivo da própria câmera</translation>
    </message>
    <message>
        <source>has maker notes</source>
        <translation>com notas do fabricante</translation>
    </message>
    <message>
        <source>not written by another program</source>
        <translation>não gravada por outro programa</translation>
    </message>
    <message>
        <source>compressed less</source>
        <translation>menos comprimida</translation>
    </message>
    <message>
        <source>more bytes per pixel</source>
        <translation>mais bytes por pixel</translation>
    </message>
    <message>
        <source>named by the camera</source>
        <translation>com o nome dado pela câmera</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos cannot be compared, as before; &quot;lumidex similar --not-compared&quot; lists them.</source>
        <translation>
            <numerusform>%1 foto continua sem poder ser comparada; “lumidex similar --not-compared” a mostra.</numerusform>
            <numerusform>%1 fotos continuam sem poder ser comparadas; “lumidex similar --not-compared” as mostra.</numerusform>
        </translation>
    </message>
    <message>
        <source>They are the same picture.</source>
        <translation>São a mesma imagem.</translation>
    </message>
    <message>
        <source>They are alike, and not the same picture.</source>
        <translation>São parecidas, mas não são a mesma imagem.</translation>
    </message>
    <message>
        <source>They are different pictures.</source>
        <translation>São imagens diferentes.</translation>
    </message>
    <message>
        <source>Their pictures could not be compared.</source>
        <translation>Não foi possível comparar suas imagens.</translation>
    </message>
    <message>
        <source>same</source>
        <comment>a picture</comment>
        <translation>mesma</translation>
    </message>
    <message>
        <source>alike</source>
        <comment>a picture</comment>
        <translation>parecida</translation>
    </message>
    <message>
        <source>different</source>
        <comment>a picture</comment>
        <translation>diferente</translation>
    </message>
    <message>
        <source>unknown</source>
        <comment>a verdict</comment>
        <translation>desconhecido</translation>
    </message>
    <message>
        <source>GROUP</source>
        <translation>GRUPO</translation>
    </message>
    <message>
        <source>VERDICT</source>
        <translation>VEREDITO</translation>
    </message>
    <message>
        <source>To undo the edit, %1 of originals must be kept, but the limit is %2.</source>
        <translation>Para poder desfazer a edição, é preciso guardar %1 de originais, mas o limite é %2.</translation>
    </message>
    <message>
        <source>&quot;lumidex undo --keep-size %1&quot; raises the limit; with --no-undo nothing is kept, and the edit cannot be undone.</source>
        <translation>“lumidex undo --keep-size %1” aumenta o limite; com --no-undo nada é guardado e a edição não pode ser desfeita.</translation>
    </message>
    <message numerus="yes">
        <source>To keep %1 of originals within the limit of %2, undo would have to forget %3 older steps:</source>
        <translation>
            <numerusform>Para guardar %1 de originais dentro do limite de %2, seria preciso esquecer %3 etapa mais antiga:</numerusform>
            <numerusform>Para guardar %1 de originais dentro do limite de %2, seria preciso esquecer %3 etapas mais antigas:</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>To keep %1 of originals within the limit of %2, undo forgets %3 older steps:</source>
        <translation>
            <numerusform>Para guardar %1 de originais dentro do limite de %2, esquece-se %3 etapa mais antiga:</numerusform>
            <numerusform>Para guardar %1 de originais dentro do limite de %2, esquecem-se %3 etapas mais antigas:</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;lumidex undo --keep-size %1&quot; makes room for all of them.</source>
        <translation>“lumidex undo --keep-size %1” abre espaço para todas.</translation>
    </message>
    <message>
        <source>--forget-older allows it.</source>
        <translation>--forget-older permite isso.</translation>
    </message>
    <message>
        <source>Forget them and continue? [y/N]</source>
        <translation>Esquecê-las e continuar? [s/N]</translation>
    </message>
    <message>
        <source>No originals would be kept, so the edit could not be undone.</source>
        <translation>Nenhum original seria guardado, por isso a edição não poderia ser desfeita.</translation>
    </message>
    <message>
        <source>The edit would be refused.</source>
        <translation>A edição seria recusada.</translation>
    </message>
    <message numerus="yes">
        <source>import %1 files to %2</source>
        <translation>
            <numerusform>importar %1 arquivo para %2</numerusform>
            <numerusform>importar %1 arquivos para %2</numerusform>
        </translation>
    </message>
    <message>
        <source>accept album %1</source>
        <translation>aceitar o álbum %1</translation>
    </message>
    <message numerus="yes">
        <source>accept %1 albums</source>
        <translation>
            <numerusform>aceitar %1 álbum</numerusform>
            <numerusform>aceitar %1 álbuns</numerusform>
        </translation>
    </message>
    <message>
        <source>alike to %1</source>
        <comment>a photo is; a file</comment>
        <translation>parecida com %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos are alike and not the same picture; they stay unless --alike is given.</source>
        <translation>
            <numerusform>%1 foto é só parecida e não é a mesma imagem; ela fica, a menos que se indique --alike.</numerusform>
            <numerusform>%1 fotos são só parecidas e não são a mesma imagem; elas ficam, a menos que se indique --alike.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Move %1 to the trash, %2 of which are only alike? [y/N]</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>Mover %1 para a lixeira, das quais %2 é só parecida? [s/N]</numerusform>
            <numerusform>Mover %1 para a lixeira, das quais %2 são só parecidas? [s/N]</numerusform>
        </translation>
    </message>
    <message>
        <source>Undo without keeping what redo needs? [y/N]</source>
        <translation>Desfazer sem guardar o que é preciso para refazer? [s/N]</translation>
    </message>
    <message numerus="yes">
        <source>%1 copies are in the trash now.</source>
        <translation>
            <numerusform>%1 cópia está agora na lixeira.</numerusform>
            <numerusform>%1 cópias estão agora na lixeira.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no room to keep what redo needs; &quot;lumidex undo --no-redo&quot; undoes without it.</source>
        <translation>Não há espaço para guardar o que é preciso para refazer; “lumidex undo --no-redo” desfaz sem isso.</translation>
    </message>
    <message numerus="yes">
        <source>Undo of &quot;%1&quot; (%2) will leave %3 files as they are, because this step changed them later:</source>
        <translation>
            <numerusform>Desfazer “%1” (%2) deixará %3 arquivo como está, pois esta etapa o alterou desde então:</numerusform>
            <numerusform>Desfazer “%1” (%2) deixará %3 arquivos como estão, pois esta etapa os alterou desde então:</numerusform>
        </translation>
    </message>
    <message>
        <source>unknown</source>
        <comment>a date</comment>
        <translation>desconhecida</translation>
    </message>
    <message numerus="yes">
        <source>%1 files or folders would be refused.</source>
        <translation>
            <numerusform>%1 arquivo ou pasta seria recusado.</numerusform>
            <numerusform>%1 arquivos ou pastas seriam recusados.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>An import skips %1 other files (--json lists them).</source>
        <translation>
            <numerusform>Uma importação ignora %1 outro arquivo (--json mostra qual).</numerusform>
            <numerusform>Uma importação ignora %1 outros arquivos (--json mostra todos).</numerusform>
        </translation>
    </message>
    <message>
        <source>Every file in %1 has a verified copy elsewhere.</source>
        <translation>Cada arquivo em %1 tem uma cópia verificada em outro lugar.</translation>
    </message>
    <message>
        <source>Every file in %1, except for housekeeping files, has a verified copy elsewhere.</source>
        <translation>Cada arquivo em %1, exceto os de controle, tem uma cópia verificada em outro lugar.</translation>
    </message>
    <message>
        <source>It is safe to format.</source>
        <translation>É seguro formatar.</translation>
    </message>
    <message>
        <source>It is safe to format as far as this folder is concerned; what is outside it was not checked.</source>
        <translation>No que toca a esta pasta, é seguro formatar; o que está fora dela não foi verificado.</translation>
    </message>
    <message>
        <source>not enlarged</source>
        <translation>não ampliada</translation>
    </message>
    <message>
        <source>The disk of %1 has %2 free, but editing all photos needs %3: the last ones would not be edited.</source>
        <translation>O disco de %1 tem %2 livres, mas editar todas as fotos precisa de %3: as últimas não seriam editadas.</translation>
    </message>
    <message numerus="yes">
        <source>The sources of %1 of them are gone or changed: do not empty the trash before you have another copy.</source>
        <translation>
            <numerusform>A origem de %1 delas desapareceu ou foi alterada: não esvazie a lixeira antes de ter outra cópia.</numerusform>
            <numerusform>As origens de %1 delas desapareceram ou foram alteradas: não esvazie a lixeira antes de ter outras cópias.</numerusform>
        </translation>
    </message>
    <message>
        <source>Interrupted. The photos edited so far stay edited.</source>
        <translation>Interrompido. As fotos editadas até agora permanecem editadas.</translation>
    </message>
    <message>
        <source>Interrupted. The photos made so far stay; delete the folder before you try again.</source>
        <translation>Interrompido. As fotos criadas até agora permanecem; exclua a pasta antes de tentar novamente.</translation>
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
            <numerusform>%1 de %2 foto, tirada em %3.</numerusform>
            <numerusform>%1 de %2 fotos, tiradas em %3.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 photos, taken from %3 to %4.</source>
        <comment>found, searched, dates</comment>
        <translation>
            <numerusform>%1 de %2 foto, tirada de %3 a %4.</numerusform>
            <numerusform>%1 de %2 fotos, tiradas de %3 a %4.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 photos, taken on %3 or later.</source>
        <comment>found, searched, date</comment>
        <translation>
            <numerusform>%1 de %2 foto, tirada em %3 ou depois.</numerusform>
            <numerusform>%1 de %2 fotos, tiradas em %3 ou depois.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 photos, taken on %3 or earlier.</source>
        <comment>found, searched, date</comment>
        <translation>
            <numerusform>%1 de %2 foto, tirada em %3 ou antes.</numerusform>
            <numerusform>%1 de %2 fotos, tiradas em %3 ou antes.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of them (%2) are the same picture as the photo to keep; &quot;lumidex similar --trash&quot; moves them to the trash.</source>
        <translation>
            <numerusform>%1 delas (%2) é a mesma imagem que a foto que convém manter; “lumidex similar --trash” a move para a lixeira.</numerusform>
            <numerusform>%1 delas (%2) são a mesma imagem que a foto que convém manter; “lumidex similar --trash” as move para a lixeira.</numerusform>
        </translation>
    </message>
    <message>
        <source>Not the same picture as the photo to keep, only alike:</source>
        <translation>Não são a mesma imagem que a foto que convém manter, só parecidas:</translation>
    </message>
    <message>
        <source>cannot be undone</source>
        <comment>a step</comment>
        <translation>não pode mais ser desfeita</translation>
    </message>
    <message>
        <source>running</source>
        <comment>a step</comment>
        <translation>em andamento</translation>
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
            <numerusform>seria o nome de %1 foto: %2</numerusform>
            <numerusform>seria o nome de %1 fotos: %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Within these limits, undo would have to forget %1 older steps:</source>
        <translation>
            <numerusform>Dentro destes limites, seria preciso esquecer %1 etapa mais antiga:</numerusform>
            <numerusform>Dentro destes limites, seria preciso esquecer %1 etapas mais antigas:</numerusform>
        </translation>
    </message>
    <message>
        <source>Whether a photo goes to the trash also depends on the one that is kept of its group, and on tags, albums, settings and second names; &quot;lumidex similar --trash --dry-run&quot; tells.</source>
        <translation>Se uma foto vai para a lixeira depende também da que é mantida do seu grupo, e de etiquetas, álbuns, ajustes e outros nomes do arquivo; “lumidex similar --trash --dry-run” mostra isso.</translation>
    </message>
</context>
<context>
    <name>Zenvora::Lumidex::Utils</name>
    <message>
        <source>Attention</source>
        <translation>Atenção</translation>
    </message>
    <message>
        <source>All of the selected files do not have read permissions, they will not be added.</source>
        <translation>Nenhum dos arquivos selecionados tem permissão de leitura; eles não serão adicionados.</translation>
    </message>
    <message>
        <source>Some of the selected files do not have read permissions, they will not be added.</source>
        <translation>Alguns dos arquivos selecionados não têm permissão de leitura; eles não serão adicionados.</translation>
    </message>
    <message>
        <source>Some of the selected photos are on removable storage. Would you like copy they to your hard drive?</source>
        <translation>Algumas das fotos selecionadas estão em armazenamento removível. Deseja copiá-las para o disco rígido?</translation>
    </message>
    <message>
        <source>The selected directory is temporary, select another directory.</source>
        <translation>A pasta selecionada é temporária. Selecione outra pasta.</translation>
    </message>
    <message>
        <source>Some of the selected photos are in read-only formats (for example, %1). They will be converted to JPG or PNG after applying the tool.</source>
        <translation>Algumas das fotos selecionadas estão em formatos somente leitura (por exemplo, %1). Elas serão convertidas em JPG ou PNG após a aplicação da ferramenta.</translation>
    </message>
    <message>
        <source>The selected photo is in read-only formats (%1). It will be converted to JPG or PNG after applying the tool.</source>
        <translation>A foto selecionada está em um formato somente leitura (%1). Ela será convertida em JPG ou PNG após a aplicação da ferramenta.</translation>
    </message>
    <message>
        <source>There is not enough space on the disk %1</source>
        <translation>Não há espaço suficiente no disco %1</translation>
    </message>
    <message>
        <source>You do not have permission to edit files in this folder: %1</source>
        <translation>Você não tem permissão para editar arquivos nesta pasta: %1</translation>
    </message>
    <message>
        <source>You do not have permission to edit file: %1</source>
        <translation>Você não tem permissão para editar o arquivo: %1</translation>
    </message>
    <message>
        <source>day</source>
        <translation>dia</translation>
    </message>
    <message>
        <source>days</source>
        <translation>dias</translation>
    </message>
    <message>
        <source>Expired</source>
        <translation>Expirado</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>One day</source>
        <translation>dia</translation>
    </message>
    <message>
        <source>Nominative day</source>
        <translation>dias</translation>
    </message>
    <message>
        <source>Genetive day</source>
        <translation>dias</translation>
    </message>
    <message>
        <source>Plural day</source>
        <translation>dias</translation>
    </message>
    <message>
        <source>One album</source>
        <translation>álbum</translation>
    </message>
    <message>
        <source>Nominative album</source>
        <translation>álbuns</translation>
    </message>
    <message>
        <source>Genetive album</source>
        <translation>álbuns</translation>
    </message>
    <message>
        <source>Plural album</source>
        <translation>álbuns</translation>
    </message>
    <message>
        <source>album</source>
        <translation>álbum</translation>
    </message>
    <message>
        <source>albums</source>
        <translation>álbuns</translation>
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
