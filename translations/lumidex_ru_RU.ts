<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en_US">
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
        <translation>Нельзя изменить %1: %2</translation>
    </message>
    <message>
        <source>Cannot rename %1: %2</source>
        <translation>Нельзя переименовать %1: %2</translation>
    </message>
    <message>
        <source>Cannot rename %1 to %2: %3</source>
        <translation>Нельзя переименовать %1 в %2: %3</translation>
    </message>
    <message>
        <source>Cannot read %1: %2</source>
        <translation>Нельзя прочитать %1: %2</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>Нельзя записать %1: %2</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>нельзя записать %1: %2</translation>
    </message>
    <message>
        <source>its folder cannot be written to; change the permissions of %1</source>
        <translation>в его папку нельзя записывать; измените права %1</translation>
    </message>
    <message>
        <source>its folder lets only its owner change it; change the owner, or the permissions of %1</source>
        <translation>его папку может менять только владелец; измените владельца или права %1</translation>
    </message>
    <message>
        <source>its disk has no room for a new version of it (%1 bytes are needed, %2 are free); free space there</source>
        <translation>на его диске нет места для новой версии (нужно %1 байт, свободно %2); освободите там место</translation>
    </message>
    <message>
        <source>it is write-protected; allow writing to it, or use --force</source>
        <translation>файл защищён от записи; разрешите запись или используйте --force</translation>
    </message>
    <message>
        <source>its sidecar %1 is write-protected; allow writing to it, or use --force</source>
        <translation>его сопроводительный файл %1 защищён от записи; разрешите запись или используйте --force</translation>
    </message>
    <message>
        <source>its sidecar must be edited with it. %1; repair or move the sidecar</source>
        <translation>вместе с ним нужно изменить его сопроводительный файл. %1; исправьте или переместите сопроводительный файл</translation>
    </message>
    <message>
        <source>its sidecar %1 must be edited with it, but %2</source>
        <translation>вместе с ним нужно изменить его сопроводительный файл %1, но %2</translation>
    </message>
    <message>
        <source>it has no date to shift</source>
        <translation>нет даты, которую можно сдвинуть</translation>
    </message>
    <message>
        <source>its year would not be 1 to 9999</source>
        <translation>год вышел бы за пределы от 1 до 9999</translation>
    </message>
    <message>
        <source>its metadata cannot be changed without losing data (%1)</source>
        <translation>метаданные нельзя изменить без потерь (%1)</translation>
    </message>
    <message>
        <source>its metadata would be wrong afterwards</source>
        <translation>метаданные после этого были бы неверными</translation>
    </message>
    <message>
        <source>its EXIF data, which are kept as text, are damaged</source>
        <translation>данные EXIF, сохранённые как текст, повреждены</translation>
    </message>
    <message>
        <source>its EXIF data are damaged</source>
        <translation>данные EXIF повреждены</translation>
    </message>
    <message>
        <source>its XMP data are damaged</source>
        <translation>данные XMP повреждены</translation>
    </message>
    <message>
        <source>its TIFF directory is damaged</source>
        <translation>каталог TIFF повреждён</translation>
    </message>
    <message>
        <source>its picture format is not known</source>
        <translation>формат изображения неизвестен</translation>
    </message>
    <message>
        <source>its format cannot be edited</source>
        <translation>этот формат нельзя изменять</translation>
    </message>
    <message>
        <source>photos of the format %1 cannot be edited</source>
        <translation>фотографии формата %1 нельзя изменять</translation>
    </message>
    <message>
        <source>its picture would change</source>
        <translation>изменилось бы само изображение</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>файл пуст</translation>
    </message>
    <message>
        <source>it is damaged: %1</source>
        <translation>файл повреждён: %1</translation>
    </message>
    <message>
        <source>it is larger than 2 GiB</source>
        <translation>файл больше 2 ГиБ</translation>
    </message>
    <message>
        <source>it is larger than 4 MiB</source>
        <translation>файл больше 4 МиБ</translation>
    </message>
    <message>
        <source>it was changed while it was read</source>
        <translation>файл изменился во время чтения</translation>
    </message>
    <message>
        <source>editing it takes more memory than there is</source>
        <translation>для правки не хватает памяти</translation>
    </message>
    <message>
        <source>its JPEG data is damaged</source>
        <translation>данные JPEG повреждены</translation>
    </message>
    <message>
        <source>its JPEG data ends before the picture</source>
        <translation>данные JPEG кончаются до изображения</translation>
    </message>
    <message>
        <source>its JPEG data breaks off before the picture</source>
        <translation>данные JPEG обрываются до изображения</translation>
    </message>
    <message>
        <source>there is no room left in its EXIF block</source>
        <translation>в блоке EXIF не осталось места</translation>
    </message>
    <message>
        <source>its PNG data breaks off</source>
        <translation>данные PNG обрываются</translation>
    </message>
    <message>
        <source>its PNG data does not begin with a picture</source>
        <translation>данные PNG не начинаются с изображения</translation>
    </message>
    <message>
        <source>it has two EXIF blocks</source>
        <translation>в файле два блока EXIF</translation>
    </message>
    <message>
        <source>its WebP data breaks off</source>
        <translation>данные WebP обрываются</translation>
    </message>
    <message>
        <source>its WebP data holds no picture</source>
        <translation>в данных WebP нет изображения</translation>
    </message>
    <message>
        <source>its %1 cannot be changed in place</source>
        <translation>%1 нельзя изменить на месте</translation>
    </message>
    <message>
        <source>its date cannot be changed in its %1 data</source>
        <translation>дату нельзя изменить в данных %1</translation>
    </message>
    <message>
        <source>its %1 cannot be changed in its %2 data</source>
        <translation>%1 нельзя изменить в данных %2</translation>
    </message>
    <message>
        <source>it breaks off before its end</source>
        <translation>файл обрывается до конца</translation>
    </message>
    <message>
        <source>its text is damaged</source>
        <translation>текст повреждён</translation>
    </message>
    <message>
        <source>it has too many properties</source>
        <translation>слишком много свойств</translation>
    </message>
    <message>
        <source>%1 is unchanged: %2</source>
        <translation>%1 не изменён: %2</translation>
    </message>
    <message>
        <source>%1 was edited, but the catalogue could not be updated (%2). The next run updates it</source>
        <translation>%1 изменён, но не удалось обновить каталог (%2). Следующий запуск lumidex обновит его</translation>
    </message>
    <message>
        <source>%1 cannot be read back as what was written</source>
        <translation>%1 не читается так, как был записан</translation>
    </message>
    <message>
        <source>%1 is left as it is, because it belongs to %2</source>
        <translation>%1 оставлен как есть, так как относится к %2</translation>
    </message>
    <message>
        <source>%1 is missing for now, but its versions are kept (%2). Free space on its disk and run &quot;lumidex undo&quot; again</source>
        <translation>%1 пока отсутствует, но его версии сохранены (%2). Освободите место на его диске и снова выполните «lumidex undo»</translation>
    </message>
    <message>
        <source>%1 is left as it is: another program changed %2, where its other version was kept</source>
        <translation>%1 оставлен как есть: другая программа изменила %2, где хранилась его другая версия</translation>
    </message>
    <message>
        <source>%1 is left as it is: its disk has no room for its other version (%2 bytes). Free space there and try again</source>
        <translation>%1 оставлен как есть: на его диске нет места для другой версии (%2 байт). Освободите там место и попробуйте снова</translation>
    </message>
    <message>
        <source>%1 is left as it is: its other version is no longer kept</source>
        <translation>%1 оставлен как есть: его другая версия больше не хранится</translation>
    </message>
    <message>
        <source>%1 was changed later and is left as it is</source>
        <translation>%1 изменён позже и оставлен как есть</translation>
    </message>
    <message>
        <source>%1 no longer exists</source>
        <translation>%1 больше не существует</translation>
    </message>
    <message>
        <source>%1 cannot be reached: its disk may not be connected</source>
        <translation>%1 недоступен: возможно, его диск не подключён</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 не читается: %2</translation>
    </message>
    <message>
        <source>The undo journal %1 cannot be used: %2</source>
        <translation>Журнал отмены %1 нельзя использовать: %2</translation>
    </message>
    <message>
        <source>another program is renaming or editing photos with it; try again when that has finished</source>
        <translation>другая программа переименовывает или изменяет с ним фотографии; попробуйте снова, когда она закончит</translation>
    </message>
    <message>
        <source>no step is started without %1 MiB free for finishing and undoing it (%2)</source>
        <translation>шаг не начинается без %1 МиБ свободного места для его завершения и отмены (%2)</translation>
    </message>
    <message>
        <source>there is no room for undoing it (%1)</source>
        <translation>нет места для отмены (%1)</translation>
    </message>
    <message>
        <source>Cannot change the target of the link %1: %2</source>
        <translation>Нельзя изменить цель ссылки %1: %2</translation>
    </message>
    <message>
        <source>Cannot move %1 to the trash: %2</source>
        <translation>Нельзя переместить %1 в корзину: %2</translation>
    </message>
    <message>
        <source>no free name in the trash</source>
        <translation>в корзине нет свободного имени</translation>
    </message>
    <message>
        <source>another file has that name</source>
        <translation>это имя носит другой файл</translation>
    </message>
    <message>
        <source>another file has its former name</source>
        <translation>прежнее имя носит другой файл</translation>
    </message>
    <message>
        <source>it is on another volume</source>
        <translation>это на другом томе</translation>
    </message>
    <message>
        <source>it is no longer a file</source>
        <translation>это больше не файл</translation>
    </message>
    <message>
        <source>%1 was kept, because its photo was kept</source>
        <translation>%1 оставлен, так как оставлена его фотография</translation>
    </message>
    <message>
        <source>%1 was kept, because the photo kept in its place, %2, no longer exists</source>
        <translation>%1 оставлен, так как фотография, оставленная вместо него, %2, больше не существует</translation>
    </message>
    <message>
        <source>%1 is in the trash as %2, which cannot be reached: its disk may not be connected</source>
        <translation>%1 находится в корзине как %2, но недоступен: возможно, его диск не подключён</translation>
    </message>
    <message>
        <source>%1 may be in the trash as %2, which cannot be read: %3</source>
        <translation>%1, возможно, находится в корзине как %2, но это не читается: %3</translation>
    </message>
    <message>
        <source>%1 is no longer in the trash; another file has its name</source>
        <translation>%1 больше нет в корзине; его имя носит другой файл</translation>
    </message>
    <message>
        <source>%1 is no longer in the trash and cannot be brought back</source>
        <translation>%1 больше нет в корзине, вернуть его нельзя</translation>
    </message>
    <message>
        <source>%1 remains in the trash as %2: %3</source>
        <translation>%1 остаётся в корзине как %2: %3</translation>
    </message>
    <message>
        <source>The album &quot;%1&quot; is kept, because photos were added to it later</source>
        <translation>Альбом «%1» оставлен, так как позже в него добавлены фотографии</translation>
    </message>
    <message>
        <source>The album &quot;%1&quot; no longer exists</source>
        <translation>Альбома «%1» больше нет</translation>
    </message>
    <message>
        <source>Another album has the name &quot;%1&quot; now</source>
        <translation>Имя «%1» теперь носит другой альбом</translation>
    </message>
    <message>
        <source>%1 is kept: %2.</source>
        <translation>%1 остаётся: %2.</translation>
    </message>
    <message>
        <source>it is already in a trash</source>
        <translation>файл уже в корзине</translation>
    </message>
    <message>
        <source>it is a link to another file</source>
        <translation>это ссылка на другой файл</translation>
    </message>
    <message>
        <source>it no longer exists</source>
        <translation>файл больше не существует</translation>
    </message>
    <message>
        <source>it was changed after it was analysed</source>
        <translation>файл изменён после анализа</translation>
    </message>
    <message>
        <source>it was changed after it was compared</source>
        <translation>файл изменён после сравнения</translation>
    </message>
    <message>
        <source>it is another name of a file that is kept</source>
        <translation>это другое имя файла, который остаётся</translation>
    </message>
    <message>
        <source>it is of the same shot as %1, which is kept</source>
        <translation>это тот же снимок, что и %1, который остаётся</translation>
    </message>
    <message>
        <source>it is like others of its group, but not like the photo to keep, %1</source>
        <translation>файл похож на другие в группе, но не на оставляемую фотографию, %1</translation>
    </message>
    <message>
        <source>it has tags or albums that the photo to keep, %1, does not have</source>
        <translation>у него есть метки или альбомы, которых нет у оставляемой фотографии, %1</translation>
    </message>
    <message>
        <source>it is a raw file, and no raw file of its group is kept</source>
        <translation>это файл RAW, а в группе не остаётся ни одного файла RAW</translation>
    </message>
    <message>
        <source>its settings, %1, would be lost: the photo to keep, %2, does not have them</source>
        <translation>пропали бы его настройки, %1: у оставляемой фотографии, %2, их нет</translation>
    </message>
    <message>
        <source>the link %1 leads to it</source>
        <translation>к нему ведёт ссылка %1</translation>
    </message>
    <message>
        <source>%1, to which it belongs, is kept</source>
        <translation>%1, к которому он относится, остаётся</translation>
    </message>
    <message>
        <source>the settings in %1 were changed</source>
        <translation>настройки в %1 изменились</translation>
    </message>
    <message>
        <source>the photo to keep, %1, no longer exists</source>
        <translation>оставляемая фотография, %1, больше не существует</translation>
    </message>
    <message>
        <source>the photo to keep, %1, was changed after it was analysed</source>
        <translation>оставляемая фотография, %1, изменена после анализа</translation>
    </message>
    <message>
        <source>the photo to keep, %1, is no longer a file</source>
        <translation>оставляемая фотография, %1, больше не файл</translation>
    </message>
    <message>
        <source>the photo to keep, %1, cannot be read (%2)</source>
        <translation>оставляемая фотография, %1, не читается (%2)</translation>
    </message>
    <message>
        <source>the photo to keep, %1, is in a trash</source>
        <translation>оставляемая фотография, %1, находится в корзине</translation>
    </message>
    <message>
        <source>the photo to keep, %1, is a link to another file</source>
        <translation>оставляемая фотография, %1, — ссылка на другой файл</translation>
    </message>
    <message>
        <source>the photo to keep, %1, breaks off before the end of its picture</source>
        <translation>оставляемая фотография, %1, обрывается до конца изображения</translation>
    </message>
    <message>
        <source>the photo to keep, %1, is damaged: %2</source>
        <translation>оставляемая фотография, %1, повреждена: %2</translation>
    </message>
    <message>
        <source>Interrupted undo of &quot;%1&quot; is now complete.</source>
        <translation>Прерванная отмена «%1» теперь завершена.</translation>
    </message>
    <message>
        <source>Interrupted redo of &quot;%1&quot; is now complete.</source>
        <translation>Прерванный повтор «%1» теперь завершён.</translation>
    </message>
    <message>
        <source>Interrupted undo of &quot;%1&quot; is now complete, except for:</source>
        <translation>Прерванная отмена «%1» теперь завершена, кроме:</translation>
    </message>
    <message>
        <source>Interrupted redo of &quot;%1&quot; is now complete, except for:</source>
        <translation>Прерванный повтор «%1» теперь завершён, кроме:</translation>
    </message>
    <message>
        <source>Interrupted step &quot;%1&quot; is now complete.</source>
        <translation>Прерванный шаг «%1» теперь завершён.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was interrupted and will be finished once %2 can be reached.</source>
        <translation>Шаг «%1» был прерван и завершится, как только станет доступна папка %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was interrupted and cannot be finished (%2); the files have their former names.</source>
        <translation>Шаг «%1» был прерван, завершить его нельзя (%2); файлы носят прежние имена.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was interrupted and cannot be finished (%2), nor undone (%3).</source>
        <translation>Шаг «%1» был прерван, его нельзя ни завершить (%2), ни отменить (%3).</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was interrupted. Photos edited: %2; the others are unchanged.</source>
        <translation>Шаг «%1» был прерван. Изменено фотографий: %2; остальные не изменены.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was interrupted. Copies made: %2; run the same import to copy the rest.</source>
        <translation>Шаг «%1» был прерван. Сделано копий: %2; чтобы скопировать остальное, повторите тот же импорт.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was interrupted. Files moved: %2; the others are where they were.</source>
        <translation>Шаг «%1» был прерван. Перемещено файлов: %2; остальные там, где были.</translation>
    </message>
    <message>
        <source>Originals that this catalogue does not know were moved to %1.</source>
        <translation>Исходные файлы, которых этот каталог не знает, перемещены в %1.</translation>
    </message>
    <message>
        <source>%1 and its sidecar disagree, because only one of them was edited (%2).</source>
        <translation>%1 и его сопроводительный файл расходятся, так как изменён только один из них (%2).</translation>
    </message>
    <message>
        <source>It cannot be read</source>
        <translation>Файл не читается</translation>
    </message>
    <message>
        <source>It is a pipe or a device</source>
        <translation>Это канал или устройство</translation>
    </message>
    <message>
        <source>It is not a regular file</source>
        <translation>Это не обычный файл</translation>
    </message>
    <message>
        <source>It is empty</source>
        <translation>Файл пуст</translation>
    </message>
    <message>
        <source>It is damaged: %1</source>
        <translation>Файл повреждён: %1</translation>
    </message>
    <message>
        <source>Its picture format is not known</source>
        <translation>Формат изображения неизвестен</translation>
    </message>
    <message>
        <source>Its name is not valid text</source>
        <translation>Имя не является правильным текстом</translation>
    </message>
    <message>
        <source>It is named like a housekeeping file, but may be a picture or a video</source>
        <translation>Файл назван как служебный, но может быть изображением или видео</translation>
    </message>
    <message>
        <source>The link leads to a file that is missing</source>
        <translation>Ссылка ведёт к отсутствующему файлу</translation>
    </message>
    <message>
        <source>The link leads to a file that cannot be read</source>
        <translation>Ссылка ведёт к файлу, который не читается</translation>
    </message>
    <message>
        <source>The link leads back to itself</source>
        <translation>Ссылка ведёт к самой себе</translation>
    </message>
    <message>
        <source>The link leads to a folder that cannot be read</source>
        <translation>Ссылка ведёт к папке, которая не читается</translation>
    </message>
    <message>
        <source>The link leads back to a folder above it</source>
        <translation>Ссылка ведёт назад к папке выше</translation>
    </message>
    <message>
        <source>The link leads to a folder that was already visited</source>
        <translation>Ссылка ведёт к уже пройденной папке</translation>
    </message>
    <message>
        <source>%1 is hidden</source>
        <translation>%1 скрыт</translation>
    </message>
    <message>
        <source>%1 is not named like a photo</source>
        <translation>имя %1 не похоже на имя фотографии</translation>
    </message>
    <message>
        <source>%1 is a link to a file that is missing</source>
        <translation>%1 — ссылка на отсутствующий файл</translation>
    </message>
    <message>
        <source>it was changed while it was copied</source>
        <translation>файл изменился во время копирования</translation>
    </message>
    <message>
        <source>the copy differs from the original</source>
        <translation>копия отличается от исходного файла</translation>
    </message>
    <message>
        <source>the copy cannot be written: %1</source>
        <translation>копию нельзя записать: %1</translation>
    </message>
    <message>
        <source>the copy cannot be read back: %1</source>
        <translation>копию нельзя прочитать обратно: %1</translation>
    </message>
    <message>
        <source>the copy cannot be recorded</source>
        <translation>копию нельзя внести в каталог</translation>
    </message>
    <message>
        <source>another file got the name %1 meanwhile</source>
        <translation>имя %1 тем временем получил другой файл</translation>
    </message>
    <message>
        <source>it is identical to %1, which could not be copied</source>
        <translation>файл совпадает с %1, который не удалось скопировать</translation>
    </message>
    <message>
        <source>the import was interrupted</source>
        <translation>импорт прерван</translation>
    </message>
    <message>
        <source>It may be any of %1 photos that are missing</source>
        <translation>Это может быть любая из отсутствующих фотографий (%1)</translation>
    </message>
    <message>
        <source>It is missing, and %1 files may be it</source>
        <translation>Фотография отсутствует, подходящих файлов: %1</translation>
    </message>
    <message>
        <source>It was changed or replaced, and a file has its former content</source>
        <translation>Фотография изменена или заменена, а её прежнее содержимое есть в другом файле</translation>
    </message>
    <message>
        <source>identical files</source>
        <translation>одинаковые файлы</translation>
    </message>
    <message>
        <source>the same pixels</source>
        <translation>те же пиксели</translation>
    </message>
    <message>
        <source>the same picture, smaller</source>
        <translation>то же изображение, меньше</translation>
    </message>
    <message>
        <source>the same picture, larger</source>
        <translation>то же изображение, больше</translation>
    </message>
    <message>
        <source>the same picture, compressed again or in another format</source>
        <translation>то же изображение, сжатое заново или в другом формате</translation>
    </message>
    <message>
        <source>the same picture, mirrored</source>
        <translation>то же изображение, отражённое</translation>
    </message>
    <message>
        <source>the same picture, brighter</source>
        <translation>то же изображение, светлее</translation>
    </message>
    <message>
        <source>the same picture, darker</source>
        <translation>то же изображение, темнее</translation>
    </message>
    <message>
        <source>the same picture, with more contrast</source>
        <translation>то же изображение, контрастнее</translation>
    </message>
    <message>
        <source>the same picture, with less contrast</source>
        <translation>то же изображение, менее контрастное</translation>
    </message>
    <message>
        <source>the same picture, sharpened</source>
        <translation>то же изображение, с повышенной резкостью</translation>
    </message>
    <message>
        <source>the same picture, changed all over</source>
        <translation>то же изображение, изменённое целиком</translation>
    </message>
    <message>
        <source>the same picture, larger and with more detail</source>
        <translation>то же изображение, больше и подробнее</translation>
    </message>
    <message>
        <source>the same picture with a border or a caption</source>
        <translation>то же изображение с рамкой или подписью</translation>
    </message>
    <message>
        <source>the same picture without colours</source>
        <translation>то же изображение без цветов</translation>
    </message>
    <message>
        <source>the same picture with colours</source>
        <translation>то же изображение с цветами</translation>
    </message>
    <message>
        <source>the same picture as far as a preview shows</source>
        <translation>то же изображение, насколько видно по эскизу</translation>
    </message>
    <message>
        <source>the same picture as far as so few pixels show</source>
        <translation>то же изображение, насколько видно по столь немногим пикселям</translation>
    </message>
    <message>
        <source>the same picture as far as it shows when it is made smaller</source>
        <translation>то же изображение, насколько видно в уменьшенном виде</translation>
    </message>
    <message>
        <source>the same picture, but for something small at %1</source>
        <translation>то же изображение, кроме мелочи %1</translation>
    </message>
    <message>
        <source>nearly the same view</source>
        <translation>почти тот же вид</translation>
    </message>
    <message>
        <source>the same view, turned a little</source>
        <translation>тот же вид, слегка повёрнут</translation>
    </message>
    <message>
        <source>the same view, cropped</source>
        <translation>тот же вид, кадрирован</translation>
    </message>
    <message>
        <source>the same view with more around it</source>
        <translation>тот же вид, вокруг больше</translation>
    </message>
    <message>
        <source>the same view, brighter</source>
        <translation>тот же вид, светлее</translation>
    </message>
    <message>
        <source>the same view, darker</source>
        <translation>тот же вид, темнее</translation>
    </message>
    <message>
        <source>another plain colour</source>
        <translation>другой сплошной цвет</translation>
    </message>
    <message>
        <source>shows something else</source>
        <translation>показывает другое</translation>
    </message>
    <message>
        <source>differs in some places</source>
        <translation>местами отличается</translation>
    </message>
    <message>
        <source>differs at %1</source>
        <translation>отличается %1</translation>
    </message>
    <message>
        <source>the upper left</source>
        <translation>вверху слева</translation>
    </message>
    <message>
        <source>the top</source>
        <translation>вверху</translation>
    </message>
    <message>
        <source>the upper right</source>
        <translation>вверху справа</translation>
    </message>
    <message>
        <source>the left</source>
        <translation>слева</translation>
    </message>
    <message>
        <source>the middle</source>
        <translation>посередине</translation>
    </message>
    <message>
        <source>the right</source>
        <translation>справа</translation>
    </message>
    <message>
        <source>the lower left</source>
        <translation>внизу слева</translation>
    </message>
    <message>
        <source>the bottom</source>
        <translation>внизу</translation>
    </message>
    <message>
        <source>the lower right</source>
        <translation>внизу справа</translation>
    </message>
    <message>
        <source>it cannot be compared: %1</source>
        <translation>нельзя сравнить: %1</translation>
    </message>
    <message>
        <source>the photo to keep cannot be compared: %1</source>
        <translation>оставляемую фотографию нельзя сравнить: %1</translation>
    </message>
    <message>
        <source>it has too few pixels</source>
        <translation>слишком мало пикселей</translation>
    </message>
    <message>
        <source>it is partly transparent</source>
        <translation>частично прозрачно</translation>
    </message>
    <message>
        <source>it breaks off before the end of its picture</source>
        <translation>обрывается до конца изображения</translation>
    </message>
    <message>
        <source>it holds more behind its picture</source>
        <translation>после изображения есть ещё данные</translation>
    </message>
    <message>
        <source>of several pictures in a file only the first can be compared</source>
        <translation>из нескольких изображений в файле можно сравнить только первое</translation>
    </message>
    <message>
        <source>there is not enough memory to compare it</source>
        <translation>для сравнения не хватает памяти</translation>
    </message>
    <message>
        <source>nothing of the picture can be decoded</source>
        <translation>ничего из изображения нельзя декодировать</translation>
    </message>
    <message>
        <source>the head of the picture is damaged</source>
        <translation>начало изображения повреждено</translation>
    </message>
    <message>
        <source>a part of the picture is damaged</source>
        <translation>часть изображения повреждена</translation>
    </message>
    <message>
        <source>its content is not a picture of a known format</source>
        <translation>содержимое не является изображением известного формата</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>файл пуст</translation>
    </message>
    <message>
        <source>the system lets nobody move it; take its attribute &quot;immutable&quot; away</source>
        <translation>система никому не разрешает его перемещать; снимите атрибут «immutable»</translation>
    </message>
    <message>
        <source>has a link of the same name beside it, which would not be renamed: %1</source>
        <translation>рядом есть ссылка с тем же именем, и она не была бы переименована: %1</translation>
    </message>
    <message>
        <source>has no date</source>
        <translation>нет даты</translation>
    </message>
    <message>
        <source>has no readable date: %1</source>
        <translation>нет читаемой даты: %1</translation>
    </message>
    <message>
        <source>is given twice</source>
        <translation>указано дважды</translation>
    </message>
    <message>
        <source>%1 is a link to somewhere else, and imports do not write through links. Remove the link, then import again.</source>
        <translation>%1 — ссылка на другое место, а при импорте через ссылки ничего не записывается. Удалите ссылку и повторите импорт.</translation>
    </message>
    <message>
        <source>%1 is no file, and imports keep one there. Remove it, then import again.</source>
        <translation>%1 — не файл, а импорт хранит там файл. Удалите его и повторите импорт.</translation>
    </message>
    <message>
        <source>%1 is a second name of another file (a hard link), and imports do not write to such. Put a copy of it in its place, or remove it, then import again.</source>
        <translation>%1 — второе имя другого файла (жёсткая ссылка), а при импорте в такие файлы ничего не записывается. Замените его копией или удалите и повторите импорт.</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 — не папка.</translation>
    </message>
    <message>
        <source>There is not enough space in %1: %2 bytes are needed, %3 are free.</source>
        <translation>В %1 недостаточно места: нужно %2 байт, свободно %3.</translation>
    </message>
    <message>
        <source>would be the name of two photos: %1</source>
        <translation>стало бы именем двух фотографий: %1</translation>
    </message>
    <message>
        <source>would be the name of two files: %1</source>
        <translation>стало бы именем двух файлов: %1</translation>
    </message>
    <message>
        <source>is the name of another file: %1</source>
        <translation>— имя другого файла: %1</translation>
    </message>
    <message>
        <source>is the name of another photo or its sidecar: %1</source>
        <translation>— имя другой фотографии или её сопроводительного файла: %1</translation>
    </message>
    <message>
        <source>is the name of a photo that cannot be renamed: %1</source>
        <translation>— имя фотографии, которую нельзя переименовать: %1</translation>
    </message>
    <message>
        <source>holds a separator of folders %1</source>
        <translation>содержит разделитель папок %1</translation>
    </message>
    <message>
        <source>holds the sign for unreadable characters</source>
        <translation>содержит знак нечитаемых символов</translation>
    </message>
    <message>
        <source>holds a control character</source>
        <translation>содержит управляющий символ</translation>
    </message>
    <message>
        <source>holds the character %1</source>
        <translation>содержит символ %1</translation>
    </message>
    <message>
        <source>begins with a dot, which hides the file</source>
        <translation>начинается с точки, которая скрывает файл</translation>
    </message>
    <message>
        <source>is longer than %1 bytes</source>
        <translation>длиннее %1 байт</translation>
    </message>
    <message>
        <source>names a device of Windows</source>
        <translation>— имя устройства Windows</translation>
    </message>
    <message>
        <source>ends in a dot, which Windows drops</source>
        <translation>оканчивается точкой, которую Windows отбрасывает</translation>
    </message>
    <message>
        <source>ends in a blank, which Windows drops</source>
        <translation>оканчивается пробелом, который Windows отбрасывает</translation>
    </message>
    <message>
        <source>is not valid UTF-8</source>
        <translation>— неправильный UTF-8</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Select folder</source>
        <translation>Выбор папки</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Да</translation>
    </message>
    <message>
        <source>Yes to &amp;All</source>
        <translation>Да для &amp;всех</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Нет</translation>
    </message>
    <message>
        <source>N&amp;o to All</source>
        <translation>Н&amp;ет для всех</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Сохранить все</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Пропустить</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Прервать</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Не сохранять</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Справка</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Применить</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Сбросить</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>Восстановить значения по умолчанию</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>Albums</source>
        <translation>Альбомы</translation>
    </message>
    <message>
        <source>Proposed albums</source>
        <translation>Предлагаемые альбомы</translation>
    </message>
    <message>
        <source>Similar photos</source>
        <translation>Похожие фотографии</translation>
    </message>
    <message>
        <source>Groups by year</source>
        <translation>Группы по годам</translation>
    </message>
    <message>
        <source>No similar photos</source>
        <translation>Похожих фотографий нет</translation>
    </message>
    <message>
        <source>Groups appear here once the catalogue holds photos that are alike.</source>
        <translation>Группы появятся здесь, как только в каталоге окажутся похожие фотографии.</translation>
    </message>
    <message>
        <source>Albums by year</source>
        <translation>Альбомы по годам</translation>
    </message>
    <message>
        <source>No albums yet</source>
        <translation>Альбомов пока нет</translation>
    </message>
    <message>
        <source>Albums appear here once there are enough photos of a holiday or of a month&apos;s weekends. Scan more folders and try again.</source>
        <translation>Альбомы появятся здесь, когда наберётся достаточно фотографий праздника или выходных одного месяца. Просканируйте другие папки и попробуйте снова.</translation>
    </message>
    <message>
        <source>Unnamed album</source>
        <translation>Альбом без названия</translation>
    </message>
    <message>
        <source>Undated</source>
        <translation>Без даты</translation>
    </message>
    <message>
        <source>Accepted</source>
        <translation>Принят</translation>
    </message>
    <message>
        <source>No picture</source>
        <translation>Нет изображения</translation>
    </message>
    <message numerus="yes">
        <source>and %1 more</source>
        <translation>
            <numerusform>и ещё %1</numerusform>
            <numerusform>и ещё %1</numerusform>
            <numerusform>и ещё %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Made with Lumidex. This page holds all its pictures and needs no other file.</source>
        <translation>Создано в Lumidex. Эта страница содержит все свои изображения и не требует других файлов.</translation>
    </message>
</context>
<context>
    <name>Terminal</name>
    <message>
        <source>Drawing</source>
        <translation>Рисование</translation>
    </message>
    <message>
        <source>pictures</source>
        <comment>of so many</comment>
        <translation>изображений</translation>
    </message>
    <message>
        <source>The catalogue holds no photos yet. Run: lumidex scan DIR</source>
        <translation>В каталоге пока нет фотографий. Выполните: lumidex scan ПАПКА</translation>
    </message>
    <message numerus="yes">
        <source>All %1 photos of the catalogue were missing at the last scan. Is a disk not connected?</source>
        <translation>
            <numerusform>При последнем сканировании не нашлась ни одна фотография каталога (всего %1). Все ли диски подключены?</numerusform>
            <numerusform>При последнем сканировании не нашлась ни одна фотография каталога (всего %1). Все ли диски подключены?</numerusform>
            <numerusform>При последнем сканировании не нашлась ни одна фотография каталога (всего %1). Все ли диски подключены?</numerusform>
        </translation>
    </message>
    <message>
        <source>Interrupted.</source>
        <translation>Прервано.</translation>
    </message>
    <message>
        <source>No album was accepted.</source>
        <translation>Ни один альбом не принят.</translation>
    </message>
    <message>
        <source>The page %1 is written; it shows all chosen albums as accepted.</source>
        <translation>Страница %1 записана; все выбранные альбомы показаны на ней как принятые.</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>да</translation>
    </message>
    <message numerus="yes">
        <source>yes, %1 more now</source>
        <translation>
            <numerusform>да, теперь ещё %1</numerusform>
            <numerusform>да, теперь ещё %1</numerusform>
            <numerusform>да, теперь ещё %1</numerusform>
        </translation>
    </message>
    <message>
        <source>ALBUM</source>
        <translation>АЛЬБОМ</translation>
    </message>
    <message>
        <source>WHEN</source>
        <translation>КОГДА</translation>
    </message>
    <message>
        <source>FIRST DAY</source>
        <translation>ПЕРВЫЙ ДЕНЬ</translation>
    </message>
    <message>
        <source>LAST DAY</source>
        <translation>ПОСЛЕДНИЙ ДЕНЬ</translation>
    </message>
    <message>
        <source>PHOTOS</source>
        <translation>ФОТО</translation>
    </message>
    <message>
        <source>ACCEPTED</source>
        <translation>ПРИНЯТ</translation>
    </message>
    <message numerus="yes">
        <source>%1 (%2 photos)</source>
        <translation>
            <numerusform>%1 (%2 фотография)</numerusform>
            <numerusform>%1 (%2 фотографии)</numerusform>
            <numerusform>%1 (%2 фотографий)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Accepted %1: %2 photos.</source>
        <translation>
            <numerusform>Принят альбом %1: %2 фотография.</numerusform>
            <numerusform>Принят альбом %1: %2 фотографии.</numerusform>
            <numerusform>Принят альбом %1: %2 фотографий.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Added %1 photos to %2, which was accepted before.</source>
        <translation>
            <numerusform>Добавлена %1 фотография в принятый ранее альбом %2.</numerusform>
            <numerusform>Добавлено %1 фотографии в принятый ранее альбом %2.</numerusform>
            <numerusform>Добавлено %1 фотографий в принятый ранее альбом %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 was accepted before, and there are no photos to add.</source>
        <translation>Альбом %1 уже принят, добавлять в него нечего.</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos</source>
        <comment>albums from</comment>
        <translation>
            <numerusform>%1 фотографии</numerusform>
            <numerusform>%1 фотографий</numerusform>
            <numerusform>%1 фотографий</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 of them have no date</source>
        <comment>photos; how many</comment>
        <translation>
            <numerusform>%1, из них без даты: %2</numerusform>
            <numerusform>%1, из них без даты: %2</numerusform>
            <numerusform>%1, из них без даты: %2</numerusform>
        </translation>
    </message>
    <message>
        <source>No album has been accepted yet. &quot;lumidex albums&quot; shows proposals.</source>
        <translation>Пока не принят ни один альбом. «lumidex albums» показывает предложения.</translation>
    </message>
    <message numerus="yes">
        <source>%1 accepted albums.</source>
        <translation>
            <numerusform>%1 принятый альбом.</numerusform>
            <numerusform>%1 принятых альбома.</numerusform>
            <numerusform>%1 принятых альбомов.</numerusform>
        </translation>
    </message>
    <message>
        <source>No albums to propose from %1: an album needs 20 photos or more of one
holiday, or of the weekends of one month.</source>
        <translation>Нет альбомов, которые можно предложить из %1: для альбома нужно не менее 20 фотографий
одного праздника или выходных одного месяца.</translation>
    </message>
    <message numerus="yes">
        <source>%1 albums</source>
        <translation>
            <numerusform>%1 альбом</numerusform>
            <numerusform>%1 альбома</numerusform>
            <numerusform>%1 альбомов</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 from %2; %3 accepted.</source>
        <comment>albums, photos, how many</comment>
        <translation>
            <numerusform>%1 из %2; принят %3.</numerusform>
            <numerusform>%1 из %2; принято %3.</numerusform>
            <numerusform>%1 из %2; принято %3.</numerusform>
        </translation>
    </message>
    <message>
        <source>Calendar: %1 (from the server)</source>
        <translation>Календарь: %1 (с сервера)</translation>
    </message>
    <message>
        <source>Calendar: %1</source>
        <translation>Календарь: %1</translation>
    </message>
    <message>
        <source>The calendar has no holidays for %1.</source>
        <translation>В календаре нет праздников для %1.</translation>
    </message>
    <message>
        <source>HOLIDAY</source>
        <translation>ПРАЗДНИК</translation>
    </message>
    <message>
        <source>DAYS</source>
        <translation>ДНЕЙ</translation>
    </message>
    <message>
        <source>(no name)</source>
        <translation>(без названия)</translation>
    </message>
    <message numerus="yes">
        <source>%1 holidays for %2.</source>
        <translation>
            <numerusform>%1 праздник для %2.</numerusform>
            <numerusform>%1 праздника для %2.</numerusform>
            <numerusform>%1 праздников для %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: no mistakes found.</source>
        <translation>%1: ошибок не найдено.</translation>
    </message>
    <message>
        <source>event %1</source>
        <translation>событие %1</translation>
    </message>
    <message>
        <source>list</source>
        <comment>of the events of a language</comment>
        <translation>список</translation>
    </message>
    <message numerus="yes">
        <source>%1: %2 mistakes found.</source>
        <translation>
            <numerusform>%1: найдена %2 ошибка.</numerusform>
            <numerusform>%1: найдено %2 ошибки.</numerusform>
            <numerusform>%1: найдено %2 ошибок.</numerusform>
        </translation>
    </message>
    <message>
        <source>The calendar was not updated: %1</source>
        <translation>Календарь не обновлён: %1</translation>
    </message>
    <message>
        <source>There is no calendar.</source>
        <translation>Календаря нет.</translation>
    </message>
    <message>
        <source>Still in use: %1</source>
        <translation>По-прежнему используется: %1</translation>
    </message>
    <message>
        <source>The calendar was updated: %1</source>
        <translation>Календарь обновлён: %1</translation>
    </message>
    <message>
        <source>The calendar is up to date: %1</source>
        <translation>Календарь актуален: %1</translation>
    </message>
    <message>
        <source>The holiday calendar could not be read completely, so holidays are missing. Run: lumidex calendar check, or lumidex calendar update.</source>
        <translation>Календарь праздников не удалось прочитать полностью, поэтому часть праздников отсутствует. Выполните: lumidex calendar check или lumidex calendar update.</translation>
    </message>
    <message>
        <source>The holiday calendar %1 could not be read completely, so holidays are missing. Run: lumidex calendar check, or lumidex calendar update.</source>
        <translation>Календарь праздников %1 не удалось прочитать полностью, поэтому часть праздников отсутствует. Выполните: lumidex calendar check или lumidex calendar update.</translation>
    </message>
    <message>
        <source>unreadable</source>
        <translation>не читается</translation>
    </message>
    <message>
        <source>Volume of</source>
        <translation>Том папки</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Файлов</translation>
    </message>
    <message>
        <source>Needed</source>
        <translation>Требуется</translation>
    </message>
    <message>
        <source>Free</source>
        <comment>room on a disk</comment>
        <translation>Свободно</translation>
    </message>
    <message>
        <source>unknown</source>
        <comment>free room</comment>
        <translation>неизвестно</translation>
    </message>
    <message numerus="yes">
        <source>%1 files checked</source>
        <translation>
            <numerusform>Проверен %1 файл</numerusform>
            <numerusform>Проверено %1 файла</numerusform>
            <numerusform>Проверено %1 файлов</numerusform>
        </translation>
    </message>
    <message>
        <source>no problems found.</source>
        <translation>проблем не найдено.</translation>
    </message>
    <message>
        <source>Interrupted. Nothing was changed.</source>
        <translation>Прервано. Ничего не изменено.</translation>
    </message>
    <message>
        <source>There are no photos in the given folders.</source>
        <translation>В указанных папках нет фотографий.</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>Проба</translation>
    </message>
    <message>
        <source>photos</source>
        <comment>of so many</comment>
        <translation>фотографий</translation>
    </message>
    <message>
        <source>Editing</source>
        <translation>Правка</translation>
    </message>
    <message>
        <source>upright</source>
        <translation>прямо</translation>
    </message>
    <message>
        <source>mirrored</source>
        <translation>отражена</translation>
    </message>
    <message>
        <source>upside down</source>
        <translation>вверх ногами</translation>
    </message>
    <message>
        <source>upside down, mirrored</source>
        <translation>вверх ногами, отражена</translation>
    </message>
    <message>
        <source>turned left, mirrored</source>
        <translation>повёрнута влево, отражена</translation>
    </message>
    <message>
        <source>turned right</source>
        <translation>повёрнута вправо</translation>
    </message>
    <message>
        <source>turned right, mirrored</source>
        <translation>повёрнута вправо, отражена</translation>
    </message>
    <message>
        <source>turned left</source>
        <translation>повёрнута влево</translation>
    </message>
    <message>
        <source>no date</source>
        <translation>нет даты</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos would be edited. This was a dry run: nothing was changed.</source>
        <translation>
            <numerusform>Была бы изменена %1 фотография. Это был пробный запуск: ничего не изменено.</numerusform>
            <numerusform>Было бы изменено %1 фотографии. Это был пробный запуск: ничего не изменено.</numerusform>
            <numerusform>Было бы изменено %1 фотографий. Это был пробный запуск: ничего не изменено.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>Ничего не изменено.</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos edited; &quot;lumidex undo&quot; undoes it.</source>
        <translation>
            <numerusform>Изменена %1 фотография; «lumidex undo» отменит это.</numerusform>
            <numerusform>Изменено %1 фотографии; «lumidex undo» отменит это.</numerusform>
            <numerusform>Изменено %1 фотографий; «lumidex undo» отменит это.</numerusform>
        </translation>
    </message>
    <message>
        <source>Cannot be edited</source>
        <translation>Нельзя изменить</translation>
    </message>
    <message>
        <source>Not edited</source>
        <translation>Не изменены</translation>
    </message>
    <message>
        <source>Comparing</source>
        <translation>Сравнение</translation>
    </message>
    <message>
        <source>files</source>
        <comment>of so many</comment>
        <translation>файлов</translation>
    </message>
    <message>
        <source>Copying</source>
        <translation>Копирование</translation>
    </message>
    <message>
        <source>Interrupted. The copies made so far are complete and verified; run the same command to copy the rest.</source>
        <translation>Прервано. Сделанные копии полны и проверены; чтобы скопировать остальное, выполните ту же команду.</translation>
    </message>
    <message>
        <source>Would be copied to %1:</source>
        <translation>Было бы скопировано в %1:</translation>
    </message>
    <message>
        <source>Would be added to the catalogue without copying:</source>
        <translation>Было бы добавлено в каталог без копирования:</translation>
    </message>
    <message>
        <source>Copies of one shot would get different names:</source>
        <translation>Копии одного снимка получили бы разные имена:</translation>
    </message>
    <message>
        <source>Not copied:</source>
        <translation>Не скопированы:</translation>
    </message>
    <message>
        <source>Not added to the catalogue:</source>
        <translation>Не добавлены в каталог:</translation>
    </message>
    <message>
        <source>Skipped:</source>
        <translation>Пропущены:</translation>
    </message>
    <message numerus="yes">
        <source>and %1 more (--json lists them)</source>
        <translation>
            <numerusform>и ещё %1 (--json покажет все)</numerusform>
            <numerusform>и ещё %1 (--json покажет все)</numerusform>
            <numerusform>и ещё %1 (--json покажет все)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos are in the catalogue already.</source>
        <translation>
            <numerusform>%1 фотография уже в каталоге.</numerusform>
            <numerusform>%1 фотографии уже в каталоге.</numerusform>
            <numerusform>%1 фотографий уже в каталоге.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files were copied before.</source>
        <translation>
            <numerusform>%1 файл скопирован ранее.</numerusform>
            <numerusform>%1 файла скопировано ранее.</numerusform>
            <numerusform>%1 файлов скопировано ранее.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos occur twice in the sources.</source>
        <translation>
            <numerusform>%1 фотография повторяется в источниках.</numerusform>
            <numerusform>%1 фотографии повторяются в источниках.</numerusform>
            <numerusform>%1 фотографий повторяются в источниках.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was imported.</source>
        <translation>Ничего не импортировано.</translation>
    </message>
    <message>
        <source>Nothing would be imported.</source>
        <translation>Ничего не было бы импортировано.</translation>
    </message>
    <message numerus="yes">
        <source>%1 files (%2) would be copied</source>
        <translation>
            <numerusform>Был бы скопирован %1 файл (%2)</numerusform>
            <numerusform>Было бы скопировано %1 файла (%2)</numerusform>
            <numerusform>Было бы скопировано %1 файлов (%2)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos added without copying.</source>
        <comment>would be</comment>
        <translation>
            <numerusform>добавлена без копирования %1 фотография.</numerusform>
            <numerusform>добавлено без копирования %1 фотографии.</numerusform>
            <numerusform>добавлено без копирования %1 фотографий.</numerusform>
        </translation>
    </message>
    <message>
        <source>This was a dry run:
nothing was changed.</source>
        <translation>Это был пробный запуск:
ничего не изменено.</translation>
    </message>
    <message numerus="yes">
        <source>%1 files (%2) copied to %3 and verified.</source>
        <translation>
            <numerusform>%1 файл (%2) скопирован в %3 и проверен.</numerusform>
            <numerusform>%1 файла (%2) скопировано в %3 и проверено.</numerusform>
            <numerusform>%1 файлов (%2) скопировано в %3 и проверено.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos added to the catalogue.</source>
        <translation>
            <numerusform>В каталог добавлена %1 фотография.</numerusform>
            <numerusform>В каталог добавлено %1 фотографии.</numerusform>
            <numerusform>В каталог добавлено %1 фотографий.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files were not copied; run the same command to try again.</source>
        <translation>
            <numerusform>Не скопирован %1 файл; чтобы попробовать снова, выполните ту же команду.</numerusform>
            <numerusform>Не скопировано %1 файла; чтобы попробовать снова, выполните ту же команду.</numerusform>
            <numerusform>Не скопировано %1 файлов; чтобы попробовать снова, выполните ту же команду.</numerusform>
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
        <translation>%1 не поддерживается; используется %2.</translation>
    </message>
    <message>
        <source>%1 of %2 %3</source>
        <comment>done, all, what</comment>
        <translation>%1 из %2 %3</translation>
    </message>
    <message>
        <source>%1 of %2 %3 found so far</source>
        <comment>done, all, what</comment>
        <translation>%1 из найденных пока %2 %3</translation>
    </message>
    <message>
        <source>%1 left</source>
        <comment>minutes and seconds</comment>
        <translation>осталось %1</translation>
    </message>
    <message>
        <source>y yes</source>
        <comment>answers, all that mean it</comment>
        <translation>д да</translation>
    </message>
    <message>
        <source>Interrupted. Nothing was renamed.</source>
        <translation>Прервано. Ничего не переименовано.</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Чтение</translation>
    </message>
    <message>
        <source>Renaming</source>
        <translation>Переименование</translation>
    </message>
    <message>
        <source>Cannot be renamed:</source>
        <translation>Нельзя переименовать:</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos have no date; the times of their files are used.</source>
        <translation>
            <numerusform>У %1 фотографии нет даты; используется время её файла.</numerusform>
            <numerusform>У %1 фотографий нет даты; используется время их файлов.</numerusform>
            <numerusform>У %1 фотографий нет даты; используется время их файлов.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files have their new names already.</source>
        <translation>
            <numerusform>%1 файл уже носит новое имя.</numerusform>
            <numerusform>%1 файла уже носят новые имена.</numerusform>
            <numerusform>%1 файлов уже носят новые имена.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Nothing would be renamed: %1 of %2 photos cannot get their new names.
Add --skip-problems to rename the others.</source>
        <translation>
            <numerusform>Ничего не было бы переименовано: новое имя невозможно для %1 из %2 фотографии.
С --skip-problems будут переименованы остальные.</numerusform>
            <numerusform>Ничего не было бы переименовано: новое имя невозможно для %1 из %2 фотографий.
С --skip-problems будут переименованы остальные.</numerusform>
            <numerusform>Ничего не было бы переименовано: новое имя невозможно для %1 из %2 фотографий.
С --skip-problems будут переименованы остальные.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Nothing was renamed: %1 of %2 photos cannot get their new names.
Add --skip-problems to rename the others.</source>
        <translation>
            <numerusform>Ничего не переименовано: новое имя невозможно для %1 из %2 фотографии.
С --skip-problems будут переименованы остальные.</numerusform>
            <numerusform>Ничего не переименовано: новое имя невозможно для %1 из %2 фотографий.
С --skip-problems будут переименованы остальные.</numerusform>
            <numerusform>Ничего не переименовано: новое имя невозможно для %1 из %2 фотографий.
С --skip-problems будут переименованы остальные.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to rename.</source>
        <translation>Переименовывать нечего.</translation>
    </message>
    <message numerus="yes">
        <source>%1 would be renamed. This was a dry run: nothing was changed.</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>Было бы переименовано: %1. Это был пробный запуск: ничего не изменено.</numerusform>
            <numerusform>Было бы переименовано: %1. Это был пробный запуск: ничего не изменено.</numerusform>
            <numerusform>Было бы переименовано: %1. Это был пробный запуск: ничего не изменено.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was renamed.</source>
        <translation>Ничего не переименовано.</translation>
    </message>
    <message numerus="yes">
        <source>%1 files could not get their old names back.</source>
        <translation>
            <numerusform>Не удалось вернуть прежнее имя %1 файлу.</numerusform>
            <numerusform>Не удалось вернуть прежнее имя %1 файлам.</numerusform>
            <numerusform>Не удалось вернуть прежнее имя %1 файлам.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 renamed; &quot;lumidex undo&quot; undoes it.</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>Переименовано: %1; «lumidex undo» отменит это.</numerusform>
            <numerusform>Переименовано: %1; «lumidex undo» отменит это.</numerusform>
            <numerusform>Переименовано: %1; «lumidex undo» отменит это.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 renamed.</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>Переименовано: %1.</numerusform>
            <numerusform>Переименовано: %1.</numerusform>
            <numerusform>Переименовано: %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Проблемы</translation>
    </message>
    <message>
        <source>Report: %1</source>
        <translation>Отчёт: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 pictures could not be read; placeholders stand for them.</source>
        <translation>
            <numerusform>%1 изображение не удалось прочитать; вместо него показана заглушка.</numerusform>
            <numerusform>%1 изображения не удалось прочитать; вместо них показаны заглушки.</numerusform>
            <numerusform>%1 изображений не удалось прочитать; вместо них показаны заглушки.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Made %1 photos in %2</source>
        <translation>
            <numerusform>Создана %1 фотография в %2</numerusform>
            <numerusform>Создано %1 фотографии в %2</numerusform>
            <numerusform>Создано %1 фотографий в %2</numerusform>
        </translation>
    </message>
    <message>
        <source>not an image</source>
        <translation>не изображение</translation>
    </message>
    <message>
        <source>loop</source>
        <translation>петля</translation>
    </message>
    <message>
        <source>Not added:</source>
        <translation>Не добавлены:</translation>
    </message>
    <message numerus="yes">
        <source>%1 original</source>
        <comment>dates read</comment>
        <translation>
            <numerusform>съёмка: %1</numerusform>
            <numerusform>съёмка: %1</numerusform>
            <numerusform>съёмка: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 digitised</source>
        <comment>dates read</comment>
        <translation>
            <numerusform>оцифровка: %1</numerusform>
            <numerusform>оцифровка: %1</numerusform>
            <numerusform>оцифровка: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 file time</source>
        <comment>dates read</comment>
        <translation>
            <numerusform>время файла: %1</numerusform>
            <numerusform>время файла: %1</numerusform>
            <numerusform>время файла: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 none</source>
        <comment>dates read</comment>
        <translation>
            <numerusform>без даты: %1</numerusform>
            <numerusform>без даты: %1</numerusform>
            <numerusform>без даты: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Dates read: %1</source>
        <translation>Прочитаны даты: %1</translation>
    </message>
    <message numerus="yes">
        <source>files found</source>
        <translation>
            <numerusform>файл найден</numerusform>
            <numerusform>файла найдено</numerusform>
            <numerusform>файлов найдено</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>new</source>
        <comment>files</comment>
        <translation>
            <numerusform>новый</numerusform>
            <numerusform>новых</numerusform>
            <numerusform>новых</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>read again</source>
        <comment>files</comment>
        <translation>
            <numerusform>прочитан заново</numerusform>
            <numerusform>прочитано заново</numerusform>
            <numerusform>прочитано заново</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>changed</source>
        <comment>files</comment>
        <translation>
            <numerusform>изменён</numerusform>
            <numerusform>изменено</numerusform>
            <numerusform>изменено</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>unchanged</source>
        <comment>files</comment>
        <translation>
            <numerusform>без изменений</numerusform>
            <numerusform>без изменений</numerusform>
            <numerusform>без изменений</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>missing, now marked as lost</source>
        <comment>files</comment>
        <translation>
            <numerusform>отсутствует, помечен как утраченный</numerusform>
            <numerusform>отсутствуют, помечены как утраченные</numerusform>
            <numerusform>отсутствуют, помечены как утраченные</numerusform>
        </translation>
    </message>
    <message>
        <source>This was a dry run: nothing was stored.</source>
        <translation>Это был пробный запуск: ничего не сохранено.</translation>
    </message>
    <message>
        <source>Catalogue: %1</source>
        <translation>Каталог: %1</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>Сканирование</translation>
    </message>
    <message>
        <source>Interrupted. What was read so far is in the catalogue; run the same command to continue.</source>
        <translation>Прервано. Прочитанное сохранено в каталоге; чтобы продолжить, выполните ту же команду.</translation>
    </message>
    <message>
        <source>Analysing</source>
        <translation>Анализ</translation>
    </message>
    <message>
        <source>Grouping</source>
        <translation>Группировка</translation>
    </message>
    <message>
        <source>Measuring</source>
        <translation>Измерение</translation>
    </message>
    <message>
        <source>Interrupted. What was moved is in the trash.</source>
        <translation>Прервано. Перемещённое находится в корзине.</translation>
    </message>
    <message>
        <source>Interrupted. Run the same command to continue.</source>
        <translation>Прервано. Чтобы продолжить, выполните ту же команду.</translation>
    </message>
    <message>
        <source>Interrupted. Nothing was moved.</source>
        <translation>Прервано. Ничего не перемещено.</translation>
    </message>
    <message>
        <source>Move %1 to the trash? [y/N]</source>
        <translation>Переместить в корзину: %1? [д/Н]</translation>
    </message>
    <message>
        <source>Moving</source>
        <translation>Перемещение</translation>
    </message>
    <message>
        <source>Keep %1</source>
        <comment>a file</comment>
        <translation>Оставить: %1</translation>
    </message>
    <message>
        <source>Keep %1: %2</source>
        <comment>a file: why</comment>
        <translation>Оставить: %1 (%2)</translation>
    </message>
    <message>
        <source>%1, %2, score %3</source>
        <comment>pixels, size, number</comment>
        <translation>%1, %2, сходство %3</translation>
    </message>
    <message>
        <source>largest</source>
        <comment>photo</comment>
        <translation>самая большая</translation>
    </message>
    <message>
        <source>sharpest</source>
        <comment>photo</comment>
        <translation>самая резкая</translation>
    </message>
    <message>
        <source>has camera data</source>
        <translation>с данными камеры</translation>
    </message>
    <message>
        <source>earliest</source>
        <comment>photo</comment>
        <translation>самая ранняя</translation>
    </message>
    <message>
        <source>first by name</source>
        <translation>первая по имени</translation>
    </message>
    <message>
        <source>Not compared:</source>
        <translation>Не сравнивались:</translation>
    </message>
    <message numerus="yes">
        <source>No similar photos among %1 photos.</source>
        <translation>
            <numerusform>Среди %1 фотографии похожих нет.</numerusform>
            <numerusform>Среди %1 фотографий похожих нет.</numerusform>
            <numerusform>Среди %1 фотографий похожих нет.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 groups of similar photos</source>
        <translation>
            <numerusform>%1 группа похожих фотографий</numerusform>
            <numerusform>%1 группы похожих фотографий</numerusform>
            <numerusform>%1 групп похожих фотографий</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>among %1 photos</source>
        <translation>
            <numerusform>среди %1 фотографии</numerusform>
            <numerusform>среди %1 фотографий</numerusform>
            <numerusform>среди %1 фотографий</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos (%2) besides those to keep.</source>
        <translation>
            <numerusform>%1 фотография (%2) помимо тех, что стоит оставить.</numerusform>
            <numerusform>%1 фотографии (%2) помимо тех, что стоит оставить.</numerusform>
            <numerusform>%1 фотографий (%2) помимо тех, что стоит оставить.</numerusform>
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
        <translation>оставить</translation>
    </message>
    <message>
        <source>trash</source>
        <comment>it goes there</comment>
        <translation>корзина</translation>
    </message>
    <message>
        <source>stay</source>
        <comment>a photo does</comment>
        <translation>остаётся</translation>
    </message>
    <message numerus="yes">
        <source>Group %1, %2 photos:</source>
        <translation>
            <numerusform>Группа %1, %2 фотография:</numerusform>
            <numerusform>Группа %1, %2 фотографии:</numerusform>
            <numerusform>Группа %1, %2 фотографий:</numerusform>
        </translation>
    </message>
    <message>
        <source>PHOTO</source>
        <translation>ФОТО</translation>
    </message>
    <message>
        <source>TO ITS CENTRE</source>
        <translation>К ЕЁ ЦЕНТРУ</translation>
    </message>
    <message>
        <source>TO ITS OWN CENTRE</source>
        <translation>К СВОЕМУ ЦЕНТРУ</translation>
    </message>
    <message>
        <source>TO THE OTHER&apos;S</source>
        <translation>К ЧУЖОМУ</translation>
    </message>
    <message>
        <source>The photos score %1 against each other and are in one group.</source>
        <translation>Сходство фотографий — %1, они в одной группе.</translation>
    </message>
    <message>
        <source>The photos score %1 against each other and are in different groups.</source>
        <translation>Сходство фотографий — %1, они в разных группах.</translation>
    </message>
    <message>
        <source>A photo joins the first group whose centre scores above %1 against it. The centre is the
mean of the photos in the group at that time; later photos move it.</source>
        <translation>Фотография попадает в первую группу, сходство с центром которой превышает %1. Центр — это
среднее фотографий, которые есть в группе в этот момент; следующие фотографии сдвигают его.</translation>
    </message>
    <message>
        <source>Matching all photos again gives the same groups.</source>
        <translation>Новое сравнение всех фотографий даёт те же группы.</translation>
    </message>
    <message>
        <source>&quot;lumidex similar --anew&quot; makes all groups again.</source>
        <translation>«lumidex similar --anew» составит все группы заново.</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos</source>
        <translation>
            <numerusform>%1 фотография</numerusform>
            <numerusform>%1 фотографии</numerusform>
            <numerusform>%1 фотографий</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (%2 files)</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>%1 (%2 файл)</numerusform>
            <numerusform>%1 (%2 файла)</numerusform>
            <numerusform>%1 (%2 файлов)</numerusform>
        </translation>
    </message>
    <message>
        <source>rename %1</source>
        <comment>so many photos</comment>
        <translation>переименование: %1</translation>
    </message>
    <message>
        <source>shift dates by %1</source>
        <translation>сдвиг дат на %1</translation>
    </message>
    <message>
        <source>set dates to %1</source>
        <translation>установка даты %1</translation>
    </message>
    <message>
        <source>rotate left</source>
        <translation>поворот влево</translation>
    </message>
    <message>
        <source>rotate right</source>
        <translation>поворот вправо</translation>
    </message>
    <message>
        <source>rotate 180</source>
        <translation>поворот на 180°</translation>
    </message>
    <message>
        <source>move similar photos to the trash</source>
        <translation>перемещение похожих фотографий в корзину</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Да</translation>
    </message>
    <message>
        <source>Yes to all</source>
        <translation>Да для всех</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>No to all</source>
        <translation>Нет для всех</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Save all</source>
        <translation>Сохранить все</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Пропустить</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Прервать</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Не сохранять</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Справка</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Применить</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Сбросить</translation>
    </message>
    <message>
        <source>Restore defaults</source>
        <translation>Восстановить значения по умолчанию</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Nothing to move to the trash.</source>
        <translation>Перемещать в корзину нечего.</translation>
    </message>
    <message numerus="yes">
        <source>%1 would be moved to the trash. This was a dry run: nothing was changed.</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>В корзину было бы перемещено: %1. Это был пробный запуск: ничего не изменено.</numerusform>
            <numerusform>В корзину было бы перемещено: %1. Это был пробный запуск: ничего не изменено.</numerusform>
            <numerusform>В корзину было бы перемещено: %1. Это был пробный запуск: ничего не изменено.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was moved.</source>
        <translation>Ничего не перемещено.</translation>
    </message>
    <message numerus="yes">
        <source>%1 moved to the trash; &quot;lumidex undo&quot; brings back what is still there.</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>Перемещено в корзину: %1; «lumidex undo» вернёт то, что ещё там.</numerusform>
            <numerusform>Перемещено в корзину: %1; «lumidex undo» вернёт то, что ещё там.</numerusform>
            <numerusform>Перемещено в корзину: %1; «lumidex undo» вернёт то, что ещё там.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 moved to the trash.</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>Перемещено в корзину: %1.</numerusform>
            <numerusform>Перемещено в корзину: %1.</numerusform>
            <numerusform>Перемещено в корзину: %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>%1 файл</numerusform>
            <numerusform>%1 файла</numerusform>
            <numerusform>%1 файлов</numerusform>
        </translation>
    </message>
    <message>
        <source>Not moved:</source>
        <translation>Не перемещены:</translation>
    </message>
    <message>
        <source>Left where they are</source>
        <translation>Оставлены на месте</translation>
    </message>
    <message>
        <source>Redoing</source>
        <translation>Повтор</translation>
    </message>
    <message>
        <source>Undoing</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Interrupted. What was done so far stays done.</source>
        <translation>Прервано. Уже сделанное остаётся.</translation>
    </message>
    <message numerus="yes">
        <source>Only %1 of the %2 steps that you asked for.</source>
        <translation>
            <numerusform>Только %1 из %2 запрошенных шагов.</numerusform>
            <numerusform>Только %1 из %2 запрошенных шагов.</numerusform>
            <numerusform>Только %1 из %2 запрошенных шагов.</numerusform>
        </translation>
    </message>
    <message>
        <source>The setting %1 is invalid (%2); the default is used.</source>
        <translation>Параметр %1 недопустим (%2); используется значение по умолчанию.</translation>
    </message>
    <message>
        <source>undone</source>
        <comment>a step</comment>
        <translation>отменён</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>Отменять нечего.</translation>
    </message>
    <message>
        <source>WHAT</source>
        <translation>ЧТО</translation>
    </message>
    <message>
        <source>FILES</source>
        <translation>ФАЙЛОВ</translation>
    </message>
    <message>
        <source>KEPT</source>
        <comment>so many bytes</comment>
        <translation>ХРАНИТСЯ</translation>
    </message>
    <message>
        <source>Left as they are</source>
        <translation>Оставлены как есть</translation>
    </message>
    <message>
        <source>Nothing of &quot;%1&quot; was redone.</source>
        <translation>Из «%1» ничего не повторено.</translation>
    </message>
    <message>
        <source>Nothing of &quot;%1&quot; was undone.</source>
        <translation>Из «%1» ничего не отменено.</translation>
    </message>
    <message>
        <source>Redone: %1.</source>
        <translation>Повторено: %1.</translation>
    </message>
    <message>
        <source>Undone: %1.</source>
        <translation>Отменено: %1.</translation>
    </message>
    <message numerus="yes">
        <source>Redone: %1, except for %2 files.</source>
        <translation>
            <numerusform>Повторено: %1, кроме %2 файла.</numerusform>
            <numerusform>Повторено: %1, кроме %2 файлов.</numerusform>
            <numerusform>Повторено: %1, кроме %2 файлов.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Undone: %1, except for %2 files.</source>
        <translation>
            <numerusform>Отменено: %1, кроме %2 файла.</numerusform>
            <numerusform>Отменено: %1, кроме %2 файлов.</numerusform>
            <numerusform>Отменено: %1, кроме %2 файлов.</numerusform>
        </translation>
    </message>
    <message>
        <source>Older steps cannot be undone before this one; &quot;lumidex undo --skip&quot; skips it for good.</source>
        <translation>Более ранние шаги нельзя отменить раньше этого; «lumidex undo --skip» навсегда пропустит его.</translation>
    </message>
    <message>
        <source>There is nothing to skip.</source>
        <translation>Пропускать нечего.</translation>
    </message>
    <message>
        <source>Skipped: %1.</source>
        <translation>Пропущено: %1.</translation>
    </message>
    <message>
        <source>Its originals (%1) are kept until they exceed the limits of undo.</source>
        <translation>Исходные файлы этого шага (%1) хранятся, пока не превысят ограничения «undo».</translation>
    </message>
    <message numerus="yes">
        <source>%1 older steps cannot be undone any more.</source>
        <translation>
            <numerusform>%1 более ранний шаг больше нельзя отменить.</numerusform>
            <numerusform>%1 более ранних шага больше нельзя отменить.</numerusform>
            <numerusform>%1 более ранних шагов больше нельзя отменить.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Steps can be undone for %1 days of use, with up to %2 of originals.</source>
        <translation>
            <numerusform>Шаги можно отменить в течение %1 дня использования, исходных файлов хранится до %2.</numerusform>
            <numerusform>Шаги можно отменить в течение %1 дней использования, исходных файлов хранится до %2.</numerusform>
            <numerusform>Шаги можно отменить в течение %1 дней использования, исходных файлов хранится до %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>Повторять нечего.</translation>
    </message>
    <message>
        <source>Copies would share names with files of other shots:</source>
        <translation>Копии получили бы имена файлов других снимков:</translation>
    </message>
    <message>
        <source>file time</source>
        <comment>where a date is from</comment>
        <translation>время файла</translation>
    </message>
    <message numerus="yes">
        <source>%1 frames</source>
        <translation>
            <numerusform>%1 кадр</numerusform>
            <numerusform>%1 кадра</numerusform>
            <numerusform>%1 кадров</numerusform>
        </translation>
    </message>
    <message>
        <source>DATE</source>
        <translation>ДАТА</translation>
    </message>
    <message>
        <source>FROM</source>
        <translation>ИСТОЧНИК</translation>
    </message>
    <message>
        <source>CAMERA</source>
        <translation>КАМЕРА</translation>
    </message>
    <message>
        <source>POSITION</source>
        <translation>МЕСТО</translation>
    </message>
    <message>
        <source>PICTURE</source>
        <translation>ИЗОБРАЖЕНИЕ</translation>
    </message>
    <message>
        <source>ORIENTATION</source>
        <translation>ОРИЕНТАЦИЯ</translation>
    </message>
    <message>
        <source>SIZE</source>
        <translation>РАЗМЕР</translation>
    </message>
    <message>
        <source>Doubtful positions:</source>
        <translation>Сомнительные места:</translation>
    </message>
    <message>
        <source>Not read</source>
        <translation>Не прочитаны</translation>
    </message>
    <message>
        <source>TAKEN</source>
        <translation>СНЯТО</translation>
    </message>
    <message>
        <source>TAGS</source>
        <translation>МЕТКИ</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>ФАЙЛ</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 photos.</source>
        <comment>found, searched</comment>
        <translation>
            <numerusform>%1 из %2 фотографии.</numerusform>
            <numerusform>%1 из %2 фотографий.</numerusform>
            <numerusform>%1 из %2 фотографий.</numerusform>
        </translation>
    </message>
    <message>
        <source>Statistics are on.</source>
        <translation>Статистика включена.</translation>
    </message>
    <message>
        <source>Statistics are off.</source>
        <translation>Статистика выключена.</translation>
    </message>
    <message>
        <source>File: %1</source>
        <translation>Файл: %1</translation>
    </message>
    <message>
        <source>DAY</source>
        <translation>ДЕНЬ</translation>
    </message>
    <message>
        <source>COMMAND</source>
        <translation>КОМАНДА</translation>
    </message>
    <message>
        <source>DETAILS</source>
        <translation>ПОДРОБНОСТИ</translation>
    </message>
    <message numerus="yes">
        <source>Statistics are on; %1 lines.</source>
        <translation>
            <numerusform>Статистика включена; %1 строка.</numerusform>
            <numerusform>Статистика включена; %1 строки.</numerusform>
            <numerusform>Статистика включена; %1 строк.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Statistics are off; %1 lines.</source>
        <translation>
            <numerusform>Статистика выключена; %1 строка.</numerusform>
            <numerusform>Статистика выключена; %1 строки.</numerusform>
            <numerusform>Статистика выключена; %1 строк.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 lines of the statistics cannot be read.</source>
        <translation>
            <numerusform>Не читается %1 строка статистики.</numerusform>
            <numerusform>Не читаются %1 строки статистики.</numerusform>
            <numerusform>Не читаются %1 строк статистики.</numerusform>
        </translation>
    </message>
    <message>
        <source>The statistics are deleted.</source>
        <translation>Статистика удалена.</translation>
    </message>
    <message>
        <source>tag %1</source>
        <comment>+one -another</comment>
        <translation>метки: %1</translation>
    </message>
    <message>
        <source>No photo has the tag &quot;%1&quot;.</source>
        <translation>Метки «%1» нет ни у одной фотографии.</translation>
    </message>
    <message>
        <source>system</source>
        <comment>kind of tag</comment>
        <translation>системная</translation>
    </message>
    <message>
        <source>icon</source>
        <comment>kind of tag</comment>
        <translation>со значком</translation>
    </message>
    <message>
        <source>automatic</source>
        <comment>kind of tag</comment>
        <translation>автоматическая</translation>
    </message>
    <message>
        <source>own</source>
        <comment>kind of tag</comment>
        <translation>своя</translation>
    </message>
    <message>
        <source>No photo has a tag yet. Run: lumidex tag FILE +TAG</source>
        <translation>Меток пока нет ни у одной фотографии. Выполните: lumidex tag ФАЙЛ +МЕТКА</translation>
    </message>
    <message>
        <source>TAG</source>
        <translation>МЕТКА</translation>
    </message>
    <message>
        <source>TYPE</source>
        <translation>ТИП</translation>
    </message>
    <message>
        <source>Not in the list</source>
        <translation>Нет в списке</translation>
    </message>
    <message>
        <source>Not tagged</source>
        <translation>Метки не изменены</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos changed; &quot;lumidex undo&quot; undoes it.</source>
        <translation>
            <numerusform>Метки изменены у %1 фотографии; «lumidex undo» отменит это.</numerusform>
            <numerusform>Метки изменены у %1 фотографий; «lumidex undo» отменит это.</numerusform>
            <numerusform>Метки изменены у %1 фотографий; «lumidex undo» отменит это.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos changed.</source>
        <translation>
            <numerusform>Метки изменены у %1 фотографии.</numerusform>
            <numerusform>Метки изменены у %1 фотографий.</numerusform>
            <numerusform>Метки изменены у %1 фотографий.</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;lumidex undo&quot; undoes it.</source>
        <translation>«lumidex undo» отменит это.</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos were left out, because they have no date but the times of their files. To include them, run: lumidex albums --file-times</source>
        <translation>
            <numerusform>Пропущена %1 фотография: у неё нет другой даты, кроме времени файла. Чтобы включить её, выполните: lumidex albums --file-times</numerusform>
            <numerusform>Пропущено %1 фотографии: у них нет другой даты, кроме времени файлов. Чтобы включить их, выполните: lumidex albums --file-times</numerusform>
            <numerusform>Пропущено %1 фотографий: у них нет другой даты, кроме времени файлов. Чтобы включить их, выполните: lumidex albums --file-times</numerusform>
        </translation>
    </message>
    <message>
        <source>Refused by %1</source>
        <comment>commands</comment>
        <translation>Отклоняются (%1)</translation>
    </message>
    <message>
        <source>If all these photos are edited at once:</source>
        <translation>Если изменить все эти фотографии сразу:</translation>
    </message>
    <message>
        <source>its sidecar</source>
        <translation>её сопроводительный файл</translation>
    </message>
    <message numerus="yes">
        <source>%1 sidecars would be edited along with them.</source>
        <translation>
            <numerusform>Вместе с ними был бы изменён %1 сопроводительный файл.</numerusform>
            <numerusform>Вместе с ними было бы изменено %1 сопроводительных файла.</numerusform>
            <numerusform>Вместе с ними было бы изменено %1 сопроводительных файлов.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 sidecars edited along with them.</source>
        <translation>
            <numerusform>Вместе с ними изменён %1 сопроводительный файл.</numerusform>
            <numerusform>Вместе с ними изменено %1 сопроводительных файла.</numerusform>
            <numerusform>Вместе с ними изменено %1 сопроводительных файлов.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos edited; it cannot be undone.</source>
        <translation>
            <numerusform>Изменена %1 фотография; отменить это нельзя.</numerusform>
            <numerusform>Изменено %1 фотографии; отменить это нельзя.</numerusform>
            <numerusform>Изменено %1 фотографий; отменить это нельзя.</numerusform>
        </translation>
    </message>
    <message>
        <source>There are no photos or videos in the given folders.</source>
        <translation>В указанных папках нет ни фотографий, ни видео.</translation>
    </message>
    <message>
        <source>It is hidden</source>
        <translation>Файл скрыт</translation>
    </message>
    <message>
        <source>It is not a photo, a video or a file that belongs to one</source>
        <translation>Это не фотография и не видео, и к ним файл не относится</translation>
    </message>
    <message>
        <source>&quot;lumidex undo&quot; moves the copies of this run to the trash.</source>
        <translation>«lumidex undo» переместит копии этого запуска в корзину.</translation>
    </message>
    <message numerus="yes">
        <source>%1 files are not copied, as you chose; they stay where they are.</source>
        <translation>
            <numerusform>Как вы указали, %1 файл не копируется: он остаётся на месте.</numerusform>
            <numerusform>Как вы указали, %1 файла не копируются: они остаются на месте.</numerusform>
            <numerusform>Как вы указали, %1 файлов не копируются: они остаются на месте.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files are not copied, because they are not on removable storage; &quot;--to DIR&quot; copies them.</source>
        <translation>
            <numerusform>%1 файл не копируется, так как он находится не на съёмном носителе; «--to ПАПКА» скопирует его.</numerusform>
            <numerusform>%1 файла не копируются, так как они находятся не на съёмном носителе; «--to ПАПКА» скопирует их.</numerusform>
            <numerusform>%1 файлов не копируются, так как они находятся не на съёмном носителе; «--to ПАПКА» скопирует их.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of them are videos, which the catalogue does not hold.</source>
        <translation>
            <numerusform>Из них %1 видео, а видео в каталог не добавляются.</numerusform>
            <numerusform>Из них %1 видео, а видео в каталог не добавляются.</numerusform>
            <numerusform>Из них %1 видео, а видео в каталог не добавляются.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 housekeeping files of cameras and systems are not copied.</source>
        <translation>
            <numerusform>%1 служебный файл камер и систем не копируется.</numerusform>
            <numerusform>%1 служебных файла камер и систем не копируются.</numerusform>
            <numerusform>%1 служебных файлов камер и систем не копируются.</numerusform>
        </translation>
    </message>
    <message>
        <source>Not everything in %1 is copied: do not format or empty it yet.</source>
        <translation>Из %1 скопировано не всё: пока не форматируйте и не очищайте.</translation>
    </message>
    <message>
        <source>Copies are in %1 itself: do not format or empty it.</source>
        <translation>Копии лежат в самом %1: не форматируйте и не очищайте.</translation>
    </message>
    <message numerus="yes">
        <source>%1 steps cannot be undone any more, because more than %2 days of use have passed.</source>
        <translation>
            <numerusform>%1 шаг больше нельзя отменить: прошло более %2 дней использования.</numerusform>
            <numerusform>%1 шага больше нельзя отменить: прошло более %2 дней использования.</numerusform>
            <numerusform>%1 шагов больше нельзя отменить: прошло более %2 дней использования.</numerusform>
        </translation>
    </message>
    <message>
        <source>Links that lead to the new names:</source>
        <translation>Ссылки, ведущие к новым именам:</translation>
    </message>
    <message numerus="yes">
        <source>%1 symbolic links lead to the new names.</source>
        <translation>
            <numerusform>%1 символическая ссылка ведёт к новому имени.</numerusform>
            <numerusform>%1 символические ссылки ведут к новым именам.</numerusform>
            <numerusform>%1 символических ссылок ведут к новым именам.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 symbolic links keep their names.</source>
        <translation>
            <numerusform>%1 символическая ссылка сохраняет своё имя.</numerusform>
            <numerusform>%1 символические ссылки сохраняют свои имена.</numerusform>
            <numerusform>%1 символических ссылок сохраняют свои имена.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 and %2 more</source>
        <comment>files</comment>
        <translation>
            <numerusform>%1 и ещё %2</numerusform>
            <numerusform>%1 и ещё %2</numerusform>
            <numerusform>%1 и ещё %2</numerusform>
        </translation>
    </message>
    <message>
        <source>These may be photos that were moved, but several files or photos come into question.
The photos keep their tags and albums, the files are new:</source>
        <translation>Возможно, это перемещённые фотографии, но подходят несколько файлов или фотографий.
Фотографии сохраняют метки и альбомы, файлы считаются новыми:</translation>
    </message>
    <message numerus="yes">
        <source>%1 XMP</source>
        <comment>dates read</comment>
        <translation>
            <numerusform>XMP: %1</numerusform>
            <numerusform>XMP: %1</numerusform>
            <numerusform>XMP: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 IPTC</source>
        <comment>dates read</comment>
        <translation>
            <numerusform>IPTC: %1</numerusform>
            <numerusform>IPTC: %1</numerusform>
            <numerusform>IPTC: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>moved or renamed</source>
        <comment>files</comment>
        <translation>
            <numerusform>перемещён или переименован</numerusform>
            <numerusform>перемещены или переименованы</numerusform>
            <numerusform>перемещены или переименованы</numerusform>
        </translation>
    </message>
    <message>
        <source>Keep this one</source>
        <comment>a photo</comment>
        <translation>Оставить эту</translation>
    </message>
    <message>
        <source>Same picture</source>
        <translation>То же изображение</translation>
    </message>
    <message>
        <source>Alike</source>
        <comment>a photo</comment>
        <translation>Похожая</translation>
    </message>
    <message>
        <source>Different</source>
        <comment>a photo</comment>
        <translation>Другая</translation>
    </message>
    <message>
        <source>Could not be compared</source>
        <comment>a photo</comment>
        <translation>Не удалось сравнить</translation>
    </message>
    <message numerus="yes">
        <source>Group %1: %2 photos like %3</source>
        <translation>
            <numerusform>Группа %1: %2 фотография, похожая на %3</numerusform>
            <numerusform>Группа %1: %2 фотографии, похожие на %3</numerusform>
            <numerusform>Группа %1: %2 фотографий, похожих на %3</numerusform>
        </translation>
    </message>
    <message>
        <source>undamaged</source>
        <comment>photo</comment>
        <translation>неповреждённая</translation>
    </message>
    <message>
        <source>the camera&apos;s own file</source>
        <translation>собственный файл камеры</translation>
    </message>
    <message>
        <source>has maker notes</source>
        <translation>с заметками производителя</translation>
    </message>
    <message>
        <source>not written by another program</source>
        <translation>не записана другой программой</translation>
    </message>
    <message>
        <source>compressed less</source>
        <translation>сжата слабее</translation>
    </message>
    <message>
        <source>more bytes per pixel</source>
        <translation>больше байтов на пиксель</translation>
    </message>
    <message>
        <source>named by the camera</source>
        <translation>названа камерой</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos cannot be compared, as before; &quot;lumidex similar --not-compared&quot; lists them.</source>
        <translation>
            <numerusform>%1 фотографию по-прежнему нельзя сравнить; «lumidex similar --not-compared» покажет её.</numerusform>
            <numerusform>%1 фотографии по-прежнему нельзя сравнить; «lumidex similar --not-compared» покажет их.</numerusform>
            <numerusform>%1 фотографий по-прежнему нельзя сравнить; «lumidex similar --not-compared» покажет их.</numerusform>
        </translation>
    </message>
    <message>
        <source>They are the same picture.</source>
        <translation>Это одно и то же изображение.</translation>
    </message>
    <message>
        <source>They are alike, and not the same picture.</source>
        <translation>Они похожи, но это не одно и то же изображение.</translation>
    </message>
    <message>
        <source>They are different pictures.</source>
        <translation>Это разные изображения.</translation>
    </message>
    <message>
        <source>Their pictures could not be compared.</source>
        <translation>Их изображения не удалось сравнить.</translation>
    </message>
    <message>
        <source>same</source>
        <comment>a picture</comment>
        <translation>то же</translation>
    </message>
    <message>
        <source>alike</source>
        <comment>a picture</comment>
        <translation>похожее</translation>
    </message>
    <message>
        <source>different</source>
        <comment>a picture</comment>
        <translation>другое</translation>
    </message>
    <message>
        <source>unknown</source>
        <comment>a verdict</comment>
        <translation>неизвестно</translation>
    </message>
    <message>
        <source>GROUP</source>
        <translation>ГРУППА</translation>
    </message>
    <message>
        <source>VERDICT</source>
        <translation>ВЫВОД</translation>
    </message>
    <message>
        <source>To undo the edit, %1 of originals must be kept, but the limit is %2.</source>
        <translation>Чтобы правку можно было отменить, нужно хранить %1 исходных файлов, но ограничение — %2.</translation>
    </message>
    <message>
        <source>&quot;lumidex undo --keep-size %1&quot; raises the limit; with --no-undo nothing is kept, and the edit cannot be undone.</source>
        <translation>«lumidex undo --keep-size %1» повысит ограничение; с --no-undo ничего не сохраняется, и правку нельзя будет отменить.</translation>
    </message>
    <message numerus="yes">
        <source>To keep %1 of originals within the limit of %2, undo would have to forget %3 older steps:</source>
        <translation>
            <numerusform>Чтобы хранить %1 исходных файлов при ограничении %2, пришлось бы забыть %3 более ранний шаг:</numerusform>
            <numerusform>Чтобы хранить %1 исходных файлов при ограничении %2, пришлось бы забыть %3 более ранних шага:</numerusform>
            <numerusform>Чтобы хранить %1 исходных файлов при ограничении %2, пришлось бы забыть %3 более ранних шагов:</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>To keep %1 of originals within the limit of %2, undo forgets %3 older steps:</source>
        <translation>
            <numerusform>Чтобы хранить %1 исходных файлов при ограничении %2, забывается %3 более ранний шаг:</numerusform>
            <numerusform>Чтобы хранить %1 исходных файлов при ограничении %2, забываются %3 более ранних шага:</numerusform>
            <numerusform>Чтобы хранить %1 исходных файлов при ограничении %2, забываются %3 более ранних шагов:</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;lumidex undo --keep-size %1&quot; makes room for all of them.</source>
        <translation>«lumidex undo --keep-size %1» даст место для всех.</translation>
    </message>
    <message>
        <source>--forget-older allows it.</source>
        <translation>--forget-older разрешает это.</translation>
    </message>
    <message>
        <source>Forget them and continue? [y/N]</source>
        <translation>Забыть их и продолжить? [д/Н]</translation>
    </message>
    <message>
        <source>No originals would be kept, so the edit could not be undone.</source>
        <translation>Исходные файлы не сохранились бы, и правку нельзя было бы отменить.</translation>
    </message>
    <message>
        <source>The edit would be refused.</source>
        <translation>Правка была бы отклонена.</translation>
    </message>
    <message numerus="yes">
        <source>import %1 files to %2</source>
        <translation>
            <numerusform>импорт %1 файла в %2</numerusform>
            <numerusform>импорт %1 файлов в %2</numerusform>
            <numerusform>импорт %1 файлов в %2</numerusform>
        </translation>
    </message>
    <message>
        <source>accept album %1</source>
        <translation>принятие альбома %1</translation>
    </message>
    <message numerus="yes">
        <source>accept %1 albums</source>
        <translation>
            <numerusform>принятие %1 альбома</numerusform>
            <numerusform>принятие %1 альбомов</numerusform>
            <numerusform>принятие %1 альбомов</numerusform>
        </translation>
    </message>
    <message>
        <source>alike to %1</source>
        <comment>a photo is; a file</comment>
        <translation>похожа на %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos are alike and not the same picture; they stay unless --alike is given.</source>
        <translation>
            <numerusform>%1 фотография лишь похожа, но это не то же изображение; без --alike она остаётся.</numerusform>
            <numerusform>%1 фотографии лишь похожи, но это не то же изображение; без --alike они остаются.</numerusform>
            <numerusform>%1 фотографий лишь похожи, но это не то же изображение; без --alike они остаются.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Move %1 to the trash, %2 of which are only alike? [y/N]</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>Переместить в корзину: %1, из них лишь похожих: %2? [д/Н]</numerusform>
            <numerusform>Переместить в корзину: %1, из них лишь похожих: %2? [д/Н]</numerusform>
            <numerusform>Переместить в корзину: %1, из них лишь похожих: %2? [д/Н]</numerusform>
        </translation>
    </message>
    <message>
        <source>Undo without keeping what redo needs? [y/N]</source>
        <translation>Отменить, не сохраняя нужное для повтора? [д/Н]</translation>
    </message>
    <message numerus="yes">
        <source>%1 copies are in the trash now.</source>
        <translation>
            <numerusform>%1 копия теперь в корзине.</numerusform>
            <numerusform>%1 копии теперь в корзине.</numerusform>
            <numerusform>%1 копий теперь в корзине.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no room to keep what redo needs; &quot;lumidex undo --no-redo&quot; undoes without it.</source>
        <translation>Нет места, чтобы сохранить нужное для повтора; «lumidex undo --no-redo» отменит без этого.</translation>
    </message>
    <message numerus="yes">
        <source>Undo of &quot;%1&quot; (%2) will leave %3 files as they are, because this step changed them later:</source>
        <translation>
            <numerusform>Отмена «%1» (%2) оставит %3 файл как есть, так как этот шаг с тех пор изменил его:</numerusform>
            <numerusform>Отмена «%1» (%2) оставит %3 файла как есть, так как этот шаг с тех пор изменил их:</numerusform>
            <numerusform>Отмена «%1» (%2) оставит %3 файлов как есть, так как этот шаг с тех пор изменил их:</numerusform>
        </translation>
    </message>
    <message>
        <source>unknown</source>
        <comment>a date</comment>
        <translation>неизвестна</translation>
    </message>
    <message numerus="yes">
        <source>%1 files or folders would be refused.</source>
        <translation>
            <numerusform>был бы отклонён %1 файл или папка.</numerusform>
            <numerusform>было бы отклонено %1 файла или папки.</numerusform>
            <numerusform>было бы отклонено %1 файлов или папок.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>An import skips %1 other files (--json lists them).</source>
        <translation>
            <numerusform>При импорте пропускается ещё %1 файл (--json покажет его).</numerusform>
            <numerusform>При импорте пропускается ещё %1 файла (--json покажет их).</numerusform>
            <numerusform>При импорте пропускается ещё %1 файлов (--json покажет их).</numerusform>
        </translation>
    </message>
    <message>
        <source>Every file in %1 has a verified copy elsewhere.</source>
        <translation>У каждого файла в %1 есть проверенная копия в другом месте.</translation>
    </message>
    <message>
        <source>Every file in %1, except for housekeeping files, has a verified copy elsewhere.</source>
        <translation>У каждого файла в %1, кроме служебных, есть проверенная копия в другом месте.</translation>
    </message>
    <message>
        <source>It is safe to format.</source>
        <translation>Можно безопасно форматировать.</translation>
    </message>
    <message>
        <source>It is safe to format as far as this folder is concerned; what is outside it was not checked.</source>
        <translation>Что касается этой папки, можно безопасно форматировать; то, что вне её, не проверялось.</translation>
    </message>
    <message>
        <source>not enlarged</source>
        <translation>не увеличена</translation>
    </message>
    <message>
        <source>The disk of %1 has %2 free, but editing all photos needs %3: the last ones would not be edited.</source>
        <translation>На диске папки %1 свободно %2, но для изменения всех фотографий нужно %3: последние не были бы изменены.</translation>
    </message>
    <message numerus="yes">
        <source>The sources of %1 of them are gone or changed: do not empty the trash before you have another copy.</source>
        <translation>
            <numerusform>Для %1 из них исходный файл исчез или был изменён: не очищайте корзину, пока у вас нет другой копии.</numerusform>
            <numerusform>Для %1 из них исходные файлы исчезли или были изменены: не очищайте корзину, пока у вас нет других копий.</numerusform>
            <numerusform>Для %1 из них исходные файлы исчезли или были изменены: не очищайте корзину, пока у вас нет других копий.</numerusform>
        </translation>
    </message>
    <message>
        <source>Interrupted. The photos edited so far stay edited.</source>
        <translation>Прервано. Уже изменённые фотографии останутся изменёнными.</translation>
    </message>
    <message>
        <source>Interrupted. The photos made so far stay; delete the folder before you try again.</source>
        <translation>Прервано. Уже созданные фотографии остаются; удалите папку, прежде чем пробовать снова.</translation>
    </message>
    <message>
        <source>,</source>
        <comment>between thousands</comment>
        <translation>&#xa0;</translation>
    </message>
    <message>
        <source>.</source>
        <comment>before decimals</comment>
        <translation>,</translation>
    </message>
    <message>
        <source>%1 B</source>
        <translation>%1 Б</translation>
    </message>
    <message>
        <source>%1 KiB</source>
        <translation>%1 КиБ</translation>
    </message>
    <message>
        <source>%1 MiB</source>
        <translation>%1 МиБ</translation>
    </message>
    <message>
        <source>%1 GiB</source>
        <translation>%1 ГиБ</translation>
    </message>
    <message>
        <source>%1 TiB</source>
        <translation>%1 ТиБ</translation>
    </message>
    <message>
        <source>%1 PiB</source>
        <translation>%1 ПиБ</translation>
    </message>
    <message>
        <source>%1 EiB</source>
        <translation>%1 ЭиБ</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 photos, taken on %3.</source>
        <comment>found, searched, date</comment>
        <translation>
            <numerusform>%1 из %2 фотографии, снято %3.</numerusform>
            <numerusform>%1 из %2 фотографий, снято %3.</numerusform>
            <numerusform>%1 из %2 фотографий, снято %3.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 photos, taken from %3 to %4.</source>
        <comment>found, searched, dates</comment>
        <translation>
            <numerusform>%1 из %2 фотографии, снято с %3 по %4.</numerusform>
            <numerusform>%1 из %2 фотографий, снято с %3 по %4.</numerusform>
            <numerusform>%1 из %2 фотографий, снято с %3 по %4.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 photos, taken on %3 or later.</source>
        <comment>found, searched, date</comment>
        <translation>
            <numerusform>%1 из %2 фотографии, снято %3 или позже.</numerusform>
            <numerusform>%1 из %2 фотографий, снято %3 или позже.</numerusform>
            <numerusform>%1 из %2 фотографий, снято %3 или позже.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 photos, taken on %3 or earlier.</source>
        <comment>found, searched, date</comment>
        <translation>
            <numerusform>%1 из %2 фотографии, снято %3 или раньше.</numerusform>
            <numerusform>%1 из %2 фотографий, снято %3 или раньше.</numerusform>
            <numerusform>%1 из %2 фотографий, снято %3 или раньше.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of them (%2) are the same picture as the photo to keep; &quot;lumidex similar --trash&quot; moves them to the trash.</source>
        <translation>
            <numerusform>Из них %1 (%2) — то же изображение, что и оставляемая фотография; «lumidex similar --trash» переместит его в корзину.</numerusform>
            <numerusform>Из них %1 (%2) — то же изображение, что и оставляемая фотография; «lumidex similar --trash» переместит их в корзину.</numerusform>
            <numerusform>Из них %1 (%2) — то же изображение, что и оставляемая фотография; «lumidex similar --trash» переместит их в корзину.</numerusform>
        </translation>
    </message>
    <message>
        <source>Not the same picture as the photo to keep, only alike:</source>
        <translation>Не то же изображение, что и оставляемая фотография, а только похожие:</translation>
    </message>
    <message>
        <source>cannot be undone</source>
        <comment>a step</comment>
        <translation>больше нельзя отменить</translation>
    </message>
    <message>
        <source>running</source>
        <comment>a step</comment>
        <translation>выполняется</translation>
    </message>
    <message>
        <source>WHEN</source>
        <comment>a step</comment>
        <translation>ВРЕМЯ</translation>
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
            <numerusform>стало бы именем %1 фотографии: %2</numerusform>
            <numerusform>стало бы именем %1 фотографий: %2</numerusform>
            <numerusform>стало бы именем %1 фотографий: %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Within these limits, undo would have to forget %1 older steps:</source>
        <translation>
            <numerusform>В этих пределах пришлось бы забыть %1 более ранний шаг:</numerusform>
            <numerusform>В этих пределах пришлось бы забыть %1 более ранних шага:</numerusform>
            <numerusform>В этих пределах пришлось бы забыть %1 более ранних шагов:</numerusform>
        </translation>
    </message>
    <message>
        <source>Whether a photo goes to the trash also depends on the one that is kept of its group, and on tags, albums, settings and second names; &quot;lumidex similar --trash --dry-run&quot; tells.</source>
        <translation>Попадёт ли фотография в корзину, зависит и от того, какая из её группы остаётся, и от меток, альбомов, настроек и других имён файла; это показывает «lumidex similar --trash --dry-run».</translation>
    </message>
</context>
<context>
    <name>Zenvora::Lumidex::Utils</name>
    <message>
        <source>Attention</source>
        <translation>Внимание</translation>
    </message>
    <message>
        <source>All of the selected files do not have read permissions, they will not be added.</source>
        <translation>Нет прав на чтение ни одного из выбранных файлов; они не будут добавлены.</translation>
    </message>
    <message>
        <source>Some of the selected files do not have read permissions, they will not be added.</source>
        <translation>На чтение некоторых из выбранных файлов нет прав; они не будут добавлены.</translation>
    </message>
    <message>
        <source>Some of the selected photos are on removable storage. Would you like copy they to your hard drive?</source>
        <translation>Некоторые из выбранных фотографий находятся на съёмном носителе. Скопировать их на жёсткий диск?</translation>
    </message>
    <message>
        <source>The selected directory is temporary, select another directory.</source>
        <translation>Выбранная папка временная. Выберите другую папку.</translation>
    </message>
    <message>
        <source>Some of the selected photos are in read-only formats (for example, %1). They will be converted to JPG or PNG after applying the tool.</source>
        <translation>Некоторые из выбранных фотографий имеют формат только для чтения (например, %1). После применения инструмента они будут преобразованы в JPG или PNG.</translation>
    </message>
    <message>
        <source>The selected photo is in read-only formats (%1). It will be converted to JPG or PNG after applying the tool.</source>
        <translation>Выбранная фотография имеет формат только для чтения (%1). После применения инструмента она будет преобразована в JPG или PNG.</translation>
    </message>
    <message>
        <source>There is not enough space on the disk %1</source>
        <translation>Недостаточно места на диске %1</translation>
    </message>
    <message>
        <source>You do not have permission to edit files in this folder: %1</source>
        <translation>У вас нет прав на изменение файлов в этой папке: %1</translation>
    </message>
    <message>
        <source>You do not have permission to edit file: %1</source>
        <translation>У вас нет прав на изменение файла: %1</translation>
    </message>
    <message>
        <source>day</source>
        <translation>день</translation>
    </message>
    <message>
        <source>days</source>
        <translation>дней</translation>
    </message>
    <message>
        <source>Expired</source>
        <translation>Срок истёк</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>One day</source>
        <translation>день</translation>
    </message>
    <message>
        <source>Nominative day</source>
        <translation>день</translation>
    </message>
    <message>
        <source>Genetive day</source>
        <translation>дня</translation>
    </message>
    <message>
        <source>Plural day</source>
        <translation>дней</translation>
    </message>
    <message>
        <source>One album</source>
        <translation>альбом</translation>
    </message>
    <message>
        <source>Nominative album</source>
        <translation>альбом</translation>
    </message>
    <message>
        <source>Genetive album</source>
        <translation>альбома</translation>
    </message>
    <message>
        <source>Plural album</source>
        <translation>альбомов</translation>
    </message>
    <message>
        <source>album</source>
        <translation>альбом</translation>
    </message>
    <message>
        <source>albums</source>
        <translation>альбомов</translation>
    </message>
    <message>
        <source>One group</source>
        <translation>группа</translation>
    </message>
    <message>
        <source>Nominative group</source>
        <translation>группа</translation>
    </message>
    <message>
        <source>Genetive group</source>
        <translation>группы</translation>
    </message>
    <message>
        <source>Plural group</source>
        <translation>групп</translation>
    </message>
    <message>
        <source>group</source>
        <translation>группа</translation>
    </message>
    <message>
        <source>groups</source>
        <translation>групп</translation>
    </message>
    <message>
        <source>One photo</source>
        <translation>фотография</translation>
    </message>
    <message>
        <source>Nominative photo</source>
        <translation>фотография</translation>
    </message>
    <message>
        <source>Genetive photo</source>
        <translation>фотографии</translation>
    </message>
    <message>
        <source>Plural photo</source>
        <translation>фотографий</translation>
    </message>
    <message>
        <source>photo</source>
        <translation>фотография</translation>
    </message>
    <message>
        <source>photos</source>
        <translation>фотографий</translation>
    </message>
</context>
</TS>
