<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en_US">
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
            <numerusform>При последнем сканировании не нашлась ни одна фотография каталога (всего %1). Не отключён ли диск?</numerusform>
            <numerusform>При последнем сканировании не нашлась ни одна фотография каталога (всего %1). Не отключён ли диск?</numerusform>
            <numerusform>При последнем сканировании не нашлась ни одна фотография каталога (всего %1). Не отключён ли диск?</numerusform>
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
        <translation>В принятом ранее альбоме %1 менять нечего.</translation>
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
        <translation>Календарь праздников не удалось прочитать до конца, поэтому часть праздников отсутствует. Попробуйте: lumidex calendar check или lumidex calendar update.</translation>
    </message>
    <message>
        <source>The holiday calendar %1 could not be read completely, so holidays are missing. Run: lumidex calendar check, or lumidex calendar update.</source>
        <translation>Календарь праздников %1 не удалось прочитать до конца, поэтому часть праздников отсутствует. Попробуйте: lumidex calendar check или lumidex calendar update.</translation>
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
        <translation>препятствий нет.</translation>
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
        <source>Interrupted. The photos edited so far stay so.</source>
        <translation>Прервано. Уже изменённые фотографии останутся такими.</translation>
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
        <translation>Прервано. Скопированное сохранено полностью и сверено; та же команда скопирует остальное.</translation>
    </message>
    <message>
        <source>Would be copied to %1:</source>
        <translation>Было бы скопировано в %1:</translation>
    </message>
    <message>
        <source>Would be added to the catalogue without copying:</source>
        <translation>Было бы добавлено на месте:</translation>
    </message>
    <message>
        <source>Copies of one shot would get different names:</source>
        <translation>Файлы каждого из этих снимков относятся друг к другу, а свободные имена для них — нет:</translation>
    </message>
    <message>
        <source>Not copied:</source>
        <translation>Отсутствуют:</translation>
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
            <numerusform>добавлена на месте %1 фотография.</numerusform>
            <numerusform>добавлено на месте %1 фотографии.</numerusform>
            <numerusform>добавлено на месте %1 фотографий.</numerusform>
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
            <numerusform>%1 файл (%2) скопирован в %3 и сверен.</numerusform>
            <numerusform>%1 файла (%2) скопировано в %3, каждый сверен.</numerusform>
            <numerusform>%1 файлов (%2) скопировано в %3, каждый сверен.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos added to the catalogue.</source>
        <translation>
            <numerusform>%1 новая фотография в каталоге.</numerusform>
            <numerusform>%1 новые фотографии в каталоге.</numerusform>
            <numerusform>%1 новых фотографий в каталоге.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files were not copied; run the same command to try again.</source>
        <translation>
            <numerusform>Отсутствует %1 файл; та же команда попробует снова.</numerusform>
            <numerusform>Отсутствует %1 файла; та же команда попробует снова.</numerusform>
            <numerusform>Отсутствует %1 файлов; та же команда попробует снова.</numerusform>
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
        <translation>Языка %1 нет; используется %2.</translation>
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
            <numerusform>У %1 фотографии нет своей даты; используется время файла.</numerusform>
            <numerusform>У %1 фотографий нет своей даты; используется время файлов.</numerusform>
            <numerusform>У %1 фотографий нет своей даты; используется время файлов.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files have their new names already.</source>
        <translation>
            <numerusform>%1 файл уже носит своё имя.</numerusform>
            <numerusform>%1 файла уже носят свои имена.</numerusform>
            <numerusform>%1 файлов уже носят свои имена.</numerusform>
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
        <translation>Мешает</translation>
    </message>
    <message>
        <source>Report: %1</source>
        <translation>Отчёт: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 pictures could not be read; placeholders stand for them.</source>
        <translation>
            <numerusform>%1 изображение не удалось прочитать, вместо него показана заглушка.</numerusform>
            <numerusform>%1 изображения не удалось прочитать, вместо них показаны заглушки.</numerusform>
            <numerusform>%1 изображений не удалось прочитать, вместо них показаны заглушки.</numerusform>
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
        <source>Interrupted. The photos made so far stay; delete the folder before another try.</source>
        <translation>Прервано. Уже созданные фотографии остаются; удалите папку перед новой попыткой.</translation>
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
            <numerusform>исчез, помечен как утраченный</numerusform>
            <numerusform>исчезли, помечены как утраченные</numerusform>
            <numerusform>исчезли, помечены как утраченные</numerusform>
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
        <translation>Прервано. Прочитанное сохранено в каталоге; та же команда продолжит с этого места.</translation>
    </message>
    <message>
        <source>Analysing</source>
        <translation>Просмотр</translation>
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
        <translation>Прервано. Та же команда продолжит с этого места.</translation>
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
        <translation>Фотография попадает в первую группу, сходство с центром которой (средним её фотографий на тот
момент) превышало %1; следующие фотографии сдвигают центр.</translation>
    </message>
    <message>
        <source>Matching all photos again gives the same groups.</source>
        <translation>Группы таковы, какими их даёт новое сравнение всех фотографий.</translation>
    </message>
    <message>
        <source>&quot;lumidex similar --anew&quot; makes all groups again.</source>
        <translation>«lumidex similar --anew» составит группы с нуля.</translation>
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
            <numerusform>Только %1 шаг из %2 запрошенных.</numerusform>
            <numerusform>Только %1 шага из %2 запрошенных.</numerusform>
            <numerusform>Только %1 шагов из %2 запрошенных.</numerusform>
        </translation>
    </message>
    <message>
        <source>The setting %1 is invalid (%2); the default is used.</source>
        <translation>Параметр %1 не имеет смысла (%2); используется обычное ограничение.</translation>
    </message>
    <message numerus="yes">
        <source>%1 days and %2</source>
        <comment>within so many</comment>
        <translation>
            <numerusform>%1 день и %2</numerusform>
            <numerusform>%1 дня и %2</numerusform>
            <numerusform>%1 дней и %2</numerusform>
        </translation>
    </message>
    <message>
        <source>undone</source>
        <comment>a step</comment>
        <translation>отменён</translation>
    </message>
    <message>
        <source>given up</source>
        <comment>a step</comment>
        <translation>оставлен как есть</translation>
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
        <translation>Более ранние шаги ждут его; «lumidex undo --skip» навсегда оставит его как есть.</translation>
    </message>
    <message>
        <source>There is nothing to skip.</source>
        <translation>Пропускать нечего.</translation>
    </message>
    <message>
        <source>Skipped: %1.</source>
        <translation>Оставлено как есть: %1.</translation>
    </message>
    <message>
        <source>Its originals (%1) are kept until they exceed the limits of undo.</source>
        <translation>Хранимое для него (%1) останется, пока не станет слишком старым или слишком большим.</translation>
    </message>
    <message numerus="yes">
        <source>%1 older steps cannot be undone any more.</source>
        <translation>
            <numerusform>%1 более ранний шаг больше нельзя отменить.</numerusform>
            <numerusform>%1 более ранних шага больше нельзя отменить.</numerusform>
            <numerusform>%1 более ранних шагов больше нельзя отменить.</numerusform>
        </translation>
    </message>
    <message>
        <source>Steps can be undone for %1 days of use, with up to %2 of originals.</source>
        <translation>Шаги можно отменить в пределах: %1.</translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>Повторять нечего.</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>Отменять нечего.</translation>
    </message>
    <message>
        <source>Copies would share names with files of other shots:</source>
        <translation>Эти файлы относятся к другим снимкам, чем те, с чьими именами они там совпадают:</translation>
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
        <translation>ИЗ</translation>
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
        <source>%1 of %2 photos, taken %3.</source>
        <comment>found, searched, dates</comment>
        <translation>
            <numerusform>%1 из %2 фотографии, снято %3.</numerusform>
            <numerusform>%1 из %2 фотографий, снято %3.</numerusform>
            <numerusform>%1 из %2 фотографий, снято %3.</numerusform>
        </translation>
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
            <numerusform>Пропущена %1 фотография: её дата известна только по времени файла. Чтобы включить её, выполните: lumidex albums --file-times</numerusform>
            <numerusform>Пропущено %1 фотографии: их даты известны только по времени файлов. Чтобы включить их, выполните: lumidex albums --file-times</numerusform>
            <numerusform>Пропущено %1 фотографий: их даты известны только по времени файлов. Чтобы включить их, выполните: lumidex albums --file-times</numerusform>
        </translation>
    </message>
    <message>
        <source>Refused by %1</source>
        <comment>commands</comment>
        <translation>Отклоняются (%1)</translation>
    </message>
    <message>
        <source>If all these photos are edited at once:</source>
        <translation>Об изменении всех этих фотографий сразу:</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>Проверка</translation>
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
    <message numerus="yes">
        <source>%1 of %2 photos, taken %3 or later.</source>
        <comment>found, searched, date</comment>
        <translation>
            <numerusform>%1 из %2 фотографии, снято %3 или позже.</numerusform>
            <numerusform>%1 из %2 фотографий, снято %3 или позже.</numerusform>
            <numerusform>%1 из %2 фотографий, снято %3 или позже.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 photos, taken %3 or earlier.</source>
        <comment>found, searched, date</comment>
        <translation>
            <numerusform>%1 из %2 фотографии, снято %3 или раньше.</numerusform>
            <numerusform>%1 из %2 фотографий, снято %3 или раньше.</numerusform>
            <numerusform>%1 из %2 фотографий, снято %3 или раньше.</numerusform>
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
            <numerusform>%1 файл не копируется: он находится не на съёмном носителе и остаётся на месте. «--to ПАПКА» скопирует его.</numerusform>
            <numerusform>%1 файла не копируются: они находятся не на съёмном носителе и остаются на месте. «--to ПАПКА» скопирует их.</numerusform>
            <numerusform>%1 файлов не копируются: они находятся не на съёмном носителе и остаются на месте. «--to ПАПКА» скопирует их.</numerusform>
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
            <numerusform>Оставлен %1 служебный файл камер и систем.</numerusform>
            <numerusform>Оставлено %1 служебных файла камер и систем.</numerusform>
            <numerusform>Оставлено %1 служебных файлов камер и систем.</numerusform>
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
            <numerusform>%1 шаг больше нельзя отменить: число дней использования с тех пор превысило %2.</numerusform>
            <numerusform>%1 шага больше нельзя отменить: число дней использования с тех пор превысило %2.</numerusform>
            <numerusform>%1 шагов больше нельзя отменить: число дней использования с тех пор превысило %2.</numerusform>
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
        <translation>Возможно, перемещены, но определить это нельзя. Фотографии сохраняют метки и
альбомы, файлы считаются новыми:</translation>
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
        <translation>с заметкой производителя</translation>
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
    <message numerus="yes">
        <source>%1 of them (%2) are the same picture as the one to keep; &quot;lumidex similar --trash&quot; moves those to the trash.</source>
        <translation>
            <numerusform>Из них %1 (%2) — то же изображение, что и оставляемое; «lumidex similar --trash» переместит его в корзину.</numerusform>
            <numerusform>Из них %1 (%2) — то же изображение, что и оставляемое; «lumidex similar --trash» переместит их в корзину.</numerusform>
            <numerusform>Из них %1 (%2) — то же изображение, что и оставляемое; «lumidex similar --trash» переместит их в корзину.</numerusform>
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
        <translation>Чтобы это можно было отменить, нужно хранить %1 исходных файлов, а ограничение — %2.</translation>
    </message>
    <message>
        <source>&quot;lumidex undo --keep-size %1&quot; raises the limit; with --no-undo nothing is kept, and the edit cannot be undone.</source>
        <translation>«lumidex undo --keep-size %1» повысит ограничение; с --no-undo ничего не сохраняется, и отменить это будет нельзя.</translation>
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
        <translation>Ничего не было бы сохранено: отменить это было бы нельзя.</translation>
    </message>
    <message>
        <source>The edit would be refused.</source>
        <translation>Это было бы отклонено.</translation>
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
    <message>
        <source>Not the same picture as the one to keep, only alike:</source>
        <translation>Не то же изображение, что и оставляемое, а только похожие:</translation>
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
        <translation>Продолжить без того, что нужно для повтора? [д/Н]</translation>
    </message>
    <message>
        <source>goes on</source>
        <comment>a step</comment>
        <translation>выполняется</translation>
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
        <translation>Нет места, чтобы сохранить нужное для повтора; «lumidex undo --no-redo» обойдётся без этого.</translation>
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
            <numerusform>При импорте останется ещё %1 файл (--json покажет его).</numerusform>
            <numerusform>При импорте останется ещё %1 файла (--json покажет их).</numerusform>
            <numerusform>При импорте останется ещё %1 файлов (--json покажет их).</numerusform>
        </translation>
    </message>
    <message>
        <source>Every file in %1 has a verified copy elsewhere.</source>
        <translation>В %1 ничего не осталось: у каждого файла есть сверенная копия в другом месте.</translation>
    </message>
    <message>
        <source>Every file in %1, except for housekeeping files, has a verified copy elsewhere.</source>
        <translation>В %1 остались только служебные файлы: у каждого другого файла есть сверенная копия в другом месте.</translation>
    </message>
    <message>
        <source>It is safe to format.</source>
        <translation>Можно безопасно форматировать.</translation>
    </message>
    <message>
        <source>Formatting loses nothing of this folder; what is outside it was not checked.</source>
        <translation>Что касается этой папки, можно безопасно форматировать; то, что лежит рядом,
не проверялось.</translation>
    </message>
    <message>
        <source>not enlarged</source>
        <translation>не увеличена</translation>
    </message>
    <message>
        <source>The disk of %1 has %2 free, but editing all photos needs %3: the last ones would not be edited.</source>
        <translation>На диске папки %1 свободно %2, а для изменения всех фотографий нужно %3: последние остались бы как есть.</translation>
    </message>
    <message numerus="yes">
        <source>The sources of %1 of them are gone or changed: do not empty the trash before you have another copy.</source>
        <translation>
            <numerusform>Для %1 из них исходный файл исчез или был изменён: не очищайте корзину, пока у вас нет другой копии.</numerusform>
            <numerusform>Для %1 из них исходные файлы исчезли или были изменены: не очищайте корзину, пока у вас нет других копий.</numerusform>
            <numerusform>Для %1 из них исходные файлы исчезли или были изменены: не очищайте корзину, пока у вас нет других копий.</numerusform>
        </translation>
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
