<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en">
<context>
    <name>BottomBar</name>
    <message>
        <source>%1, %2</source>
        <comment>files and folders</comment>
        <translation>%1, %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln item(s) a second</source>
        <translation>
            <numerusform>%Ln объект в секунду</numerusform>
            <numerusform>%Ln объекта в секунду</numerusform>
            <numerusform>%Ln объектов в секунду</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln deleted</source>
        <translation>
            <numerusform>%Ln удалённый</numerusform>
            <numerusform>%Ln удалённых</numerusform>
            <numerusform>%Ln удалённых</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) checked</source>
        <translation>
            <numerusform>Отмечен %Ln файл</numerusform>
            <numerusform>Отмечено %Ln файла</numerusform>
            <numerusform>Отмечено %Ln файлов</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing checked</source>
        <translation>Ничего не отмечено</translation>
    </message>
    <message numerus="yes">
        <source>%Ln hidden by the filter</source>
        <translation>
            <numerusform>%Ln скрыт фильтром</numerusform>
            <numerusform>%Ln скрыты фильтром</numerusform>
            <numerusform>%Ln скрыто фильтром</numerusform>
        </translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Остановить</translation>
    </message>
    <message>
        <source>Recover…</source>
        <translation>Восстановить…</translation>
    </message>
    <message>
        <source>Progress of the scan</source>
        <translation>Ход сканирования</translation>
    </message>
    <message>
        <source>%1 of %2 free at the target</source>
        <comment>needed, free</comment>
        <translation>%1 из %2 свободных</translation>
    </message>
    <message>
        <source>%1 needed, only %2 free at the target</source>
        <translation>Нужно %1, свободно только %2</translation>
    </message>
    <message>
        <source>Recover to %1. Choose another folder…</source>
        <translation>Восстановить в %1. Выбрать другую папку…</translation>
    </message>
    <message>
        <source>Choose the folder to recover to</source>
        <translation>Выбрать папку для восстановления</translation>
    </message>
</context>
<context>
    <name>Breadcrumbs</name>
    <message>
        <source>Up</source>
        <translation>Вверх</translation>
    </message>
    <message>
        <source>End the search</source>
        <translation>Завершить поиск</translation>
    </message>
    <message numerus="yes">
        <source>“%1” found in %Ln name(s)</source>
        <translation>
            <numerusform>«%1» найдено в %Ln имени</numerusform>
            <numerusform>«%1» найдено в %Ln именах</numerusform>
            <numerusform>«%1» найдено в %Ln именах</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BulkMenu</name>
    <message>
        <source>Check</source>
        <translation>Отметить</translation>
    </message>
    <message>
        <source>Check or uncheck many files (%1)</source>
        <translation>Отметить или снять отметки со многих файлов (%1)</translation>
    </message>
    <message>
        <source>Check all photos</source>
        <translation>Отметить все фото</translation>
    </message>
    <message>
        <source>Check all deleted files</source>
        <translation>Отметить все удалённые файлы</translation>
    </message>
    <message>
        <source>Check everything in “%1”</source>
        <translation>Отметить всё в «%1»</translation>
    </message>
    <message>
        <source>Check everything found</source>
        <translation>Отметить всё найденное</translation>
    </message>
    <message>
        <source>Invert the checks</source>
        <translation>Обратить отметки</translation>
    </message>
    <message>
        <source>Uncheck all</source>
        <translation>Снять все отметки</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Отменить</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Повторить</translation>
    </message>
</context>
<context>
    <name>ContentPlugin</name>
    <message>
        <source>The plug-in SDCardScanContentPlugin is not beside the program.</source>
        <translation>Рядом с программой нет модуля SDCardScanContentPlugin.</translation>
    </message>
    <message>
        <source>%1 cannot be loaded: %2</source>
        <translation>Не удаётся загрузить %1: %2</translation>
    </message>
    <message>
        <source>%1 is a plug-in of another kind: %2</source>
        <translation>%1 — модуль другого вида: %2</translation>
    </message>
</context>
<context>
    <name>FileOpener</name>
    <message>
        <source>“%1” cannot be opened: %2</source>
        <translation>Не удаётся открыть «%1»: %2</translation>
    </message>
    <message>
        <source>No program opens “%1”.</source>
        <translation>Нет программы, которая открывает «%1».</translation>
    </message>
</context>
<context>
    <name>FilterBar</name>
    <message>
        <source>Any size</source>
        <translation>Любой размер</translation>
    </message>
    <message>
        <source>Up to 1 MB</source>
        <translation>До 1 МБ</translation>
    </message>
    <message>
        <source>1 to 10 MB</source>
        <translation>От 1 до 10 МБ</translation>
    </message>
    <message>
        <source>10 to 100 MB</source>
        <translation>От 10 до 100 МБ</translation>
    </message>
    <message>
        <source>Over 100 MB</source>
        <translation>Больше 100 МБ</translation>
    </message>
    <message>
        <source>Any date</source>
        <translation>Любая дата</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>Последние 7 дней</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>Последние 30 дней</translation>
    </message>
    <message>
        <source>Last year</source>
        <translation>Последний год</translation>
    </message>
    <message>
        <source>Older than a year</source>
        <translation>Старше года</translation>
    </message>
    <message>
        <source>Any kind</source>
        <translation>Любой тип</translation>
    </message>
    <message>
        <source>Deleted only</source>
        <translation>Только удалённые</translation>
    </message>
    <message>
        <source>Show everything</source>
        <translation>Показать всё</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Тип</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Размер</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Дата</translation>
    </message>
</context>
<context>
    <name>ItemDescription</name>
    <message>
        <source>a an and at from in of on the with</source>
        <comment>Words of a search by description that say nothing alone</comment>
        <translation>и в во из с со на за от</translation>
    </message>
</context>
<context>
    <name>ItemKinds</name>
    <message>
        <source>All files</source>
        <translation>Все файлы</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Фото</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Видео</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Аудио</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Документы</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>Эл. почта</translation>
    </message>
    <message>
        <source>Databases</source>
        <translation>Базы данных</translation>
    </message>
    <message>
        <source>Web files</source>
        <translation>Веб-файлы</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>Архивы</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Прочее</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>The scan was stopped. What it found is shown.</source>
        <translation>Сканирование остановлено. Показано то, что найдено.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln thing(s) could not be read, the first: %1</source>
        <translation>
            <numerusform>Не удалось прочитать %Ln объект, первый: %1</numerusform>
            <numerusform>Не удалось прочитать %Ln объекта, первый: %1</numerusform>
            <numerusform>Не удалось прочитать %Ln объектов, первый: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The sample card has not been made. Open a folder, a disk image or a device.</source>
        <translation>Образец карты не создан. Откройте папку, образ диска или устройство.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Открыть папку</translation>
    </message>
    <message>
        <source>Open disk image</source>
        <translation>Открыть образ диска</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) checked.</source>
        <translation>
            <numerusform>Отмечен %Ln файл.</numerusform>
            <numerusform>Отмечено %Ln файла.</numerusform>
            <numerusform>Отмечено %Ln файлов.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) unchecked.</source>
        <translation>
            <numerusform>Отметка снята с %Ln файла.</numerusform>
            <numerusform>Отметки сняты с %Ln файлов.</numerusform>
            <numerusform>Отметки сняты с %Ln файлов.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln check(s) changed.</source>
        <translation>
            <numerusform>Изменена %Ln отметка.</numerusform>
            <numerusform>Изменены %Ln отметки.</numerusform>
            <numerusform>Изменено %Ln отметок.</numerusform>
        </translation>
    </message>
    <message>
        <source>The change was undone.</source>
        <translation>Изменение отменено.</translation>
    </message>
    <message>
        <source>The change was made again.</source>
        <translation>Изменение повторено.</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>Отменять нечего.</translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>Повторять нечего.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Отменить</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Повторить</translation>
    </message>
</context>
<context>
    <name>Media</name>
    <message>
        <source>There is no preview in the file.</source>
        <translation>В файле нет миниатюры.</translation>
    </message>
    <message>
        <source>There is not enough memory for this file.</source>
        <translation>Для этого файла не хватает памяти.</translation>
    </message>
    <message>
        <source>The picture is too large to be handed over.</source>
        <translation>Изображение слишком велико для передачи.</translation>
    </message>
    <message>
        <source>There is no metadata in the file.</source>
        <translation>В файле нет метаданных.</translation>
    </message>
    <message>
        <source>The picture is broken or of an unknown kind.</source>
        <translation>Изображение повреждено или его тип неизвестен.</translation>
    </message>
    <message>
        <source>The picture does not say how large it is.</source>
        <translation>В изображении не указан его размер.</translation>
    </message>
    <message>
        <source>The picture is too large: %1 × %2.</source>
        <translation>Изображение слишком велико: %1 × %2.</translation>
    </message>
    <message>
        <source>There is not enough memory for a picture of %1 × %2.</source>
        <translation>Не хватает памяти для изображения %1 × %2.</translation>
    </message>
    <message>
        <source>The video is broken: %1.</source>
        <translation>Видео повреждено: %1.</translation>
    </message>
    <message>
        <source>There is no picture in the file.</source>
        <translation>В файле нет изображения.</translation>
    </message>
    <message>
        <source>The video is broken.</source>
        <translation>Видео повреждено.</translation>
    </message>
    <message>
        <source>The video is broken or of an unknown kind: %1.</source>
        <translation>Видео повреждено или его тип неизвестен: %1.</translation>
    </message>
    <message>
        <source>No frame of the video can be decoded.</source>
        <translation>Не удаётся декодировать ни одного кадра видео.</translation>
    </message>
</context>
<context>
    <name>MediaHelper</name>
    <message>
        <source>The program quarvo-media is not beside this one: there are no thumbnails and no metadata.</source>
        <translation>Рядом с этой программой нет программы quarvo-media: миниатюр и метаданных не будет.</translation>
    </message>
    <message>
        <source>The program %1 cannot be started: %2</source>
        <translation>Не удаётся запустить программу %1: %2</translation>
    </message>
    <message>
        <source>The program %1 does not answer as it should.</source>
        <translation>Программа %1 не отвечает как положено.</translation>
    </message>
    <message>
        <source>it took too long</source>
        <translation>это заняло слишком много времени</translation>
    </message>
    <message>
        <source>the decoder crashed</source>
        <translation>декодер завершился аварийно</translation>
    </message>
    <message>
        <source>the decoder lost its way</source>
        <translation>декодер сбился</translation>
    </message>
</context>
<context>
    <name>MediaPool</name>
    <message>
        <source>The file is damaged.</source>
        <translation>Файл повреждён.</translation>
    </message>
    <message>
        <source>The file is damaged: %1.</source>
        <translation>Файл повреждён: %1.</translation>
    </message>
</context>
<context>
    <name>MessageBanner</name>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
</context>
<context>
    <name>MetadataReader</name>
    <message>
        <source>Such a file has no metadata that can be read.</source>
        <translation>В таком файле нет метаданных, которые можно прочитать.</translation>
    </message>
</context>
<context>
    <name>PictureViewer</name>
    <message>
        <source>There is no picture in such a file.</source>
        <translation>В таком файле нет изображения.</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>Загрузка…</translation>
    </message>
    <message>
        <source>This picture cannot be shown.
%1</source>
        <translation>Не удаётся показать это изображение.
%1</translation>
    </message>
    <message>
        <source>%1   %2 of %3</source>
        <translation>%1   %2 из %3</translation>
    </message>
    <message>
        <source>Previous picture</source>
        <translation>Предыдущее изображение</translation>
    </message>
    <message>
        <source>Next picture</source>
        <translation>Следующее изображение</translation>
    </message>
</context>
<context>
    <name>Recovery</name>
    <message>
        <source>There is no room left at %1.</source>
        <translation>В %1 не осталось места.</translation>
    </message>
    <message>
        <source>There is not enough room at %1: the file needs %2, %3 are free.</source>
        <translation>В %1 недостаточно места: файлу нужно %2, свободно %3.</translation>
    </message>
    <message>
        <source>The file cannot be created: %1.</source>
        <translation>Не удаётся создать файл: %1.</translation>
    </message>
    <message>
        <source>The contents end at byte %L1 of %L2.</source>
        <translation>Содержимое обрывается на байте %L1 из %L2.</translation>
    </message>
    <message>
        <source>Writing failed: %1.</source>
        <translation>Ошибка записи: %1.</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 — не папка.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created.</source>
        <translation>Не удаётся создать папку %1.</translation>
    </message>
    <message>
        <source>Nothing can be written to %1: %2.</source>
        <translation>Не удаётся записать в %1: %2.</translation>
    </message>
    <message>
        <source>The file %1 cannot be created: %2.</source>
        <translation>Не удаётся создать файл %1: %2.</translation>
    </message>
    <message>
        <source>Too many files have the name %1.</source>
        <translation>Слишком много файлов с именем %1.</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message numerus="yes">
        <source>%1 of %Ln file(s)</source>
        <translation>
            <numerusform>%1 из %Ln файла</numerusform>
            <numerusform>%1 из %Ln файлов</numerusform>
            <numerusform>%1 из %Ln файлов</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>bytes done, bytes in all</comment>
        <translation>%1 из %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) recovered to %1.</source>
        <translation>
            <numerusform>%Ln файл восстановлен в %1.</numerusform>
            <numerusform>%Ln файла восстановлено в %1.</numerusform>
            <numerusform>%Ln файлов восстановлено в %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) could not be recovered.</source>
        <translation>
            <numerusform>Не удалось восстановить %Ln файл.</numerusform>
            <numerusform>Не удалось восстановить %Ln файла.</numerusform>
            <numerusform>Не удалось восстановить %Ln файлов.</numerusform>
        </translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>Восстановление</translation>
    </message>
    <message>
        <source>Progress of the recovery</source>
        <translation>Ход восстановления</translation>
    </message>
    <message>
        <source>Files that could not be recovered</source>
        <translation>Файлы, которые не удалось восстановить</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Открыть папку</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Recovery cancelled</source>
        <translation>Восстановление отменено</translation>
    </message>
    <message>
        <source>Recovery complete</source>
        <translation>Восстановление завершено</translation>
    </message>
    <message>
        <source>Some files could not be recovered</source>
        <translation>Некоторые файлы не удалось восстановить</translation>
    </message>
    <message>
        <source>Recovering to %1</source>
        <translation>Восстановление в %1</translation>
    </message>
</context>
<context>
    <name>RecoveryFlow</name>
    <message>
        <source>Recover to</source>
        <translation>Восстановить в</translation>
    </message>
    <message>
        <source>There is nothing to recover.</source>
        <translation>Восстанавливать нечего.</translation>
    </message>
</context>
<context>
    <name>ScanSource</name>
    <message>
        <source>cancelled</source>
        <translation>отменено</translation>
    </message>
    <message>
        <source>a read past the end</source>
        <translation>чтение за пределами носителя</translation>
    </message>
    <message>
        <source>the medium ends too early</source>
        <translation>носитель кончается слишком рано</translation>
    </message>
    <message>
        <source>%1 is neither a folder nor a disk image nor a disk.</source>
        <translation>%1 — не папка, не образ диска и не диск.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>Не удаётся прочитать %1: %2.</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1: пусто.</translation>
    </message>
    <message>
        <source>%1 is too small to be a disk image.</source>
        <translation>%1: слишком мало для образа диска.</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>Не удаётся прочитать %1.</translation>
    </message>
    <message>
        <source>The card cannot be read any more.</source>
        <translation>Карта больше не читается.</translation>
    </message>
    <message>
        <source>The file&apos;s record cannot be read.</source>
        <translation>Не удаётся прочитать запись о файле.</translation>
    </message>
    <message>
        <source>The card cannot be read: %1.</source>
        <translation>Не удаётся прочитать карту: %1.</translation>
    </message>
    <message>
        <source>The file&apos;s record has changed since the scan.</source>
        <translation>Запись о файле изменилась после сканирования.</translation>
    </message>
    <message>
        <source>The contents end at byte %L1 of %L2.</source>
        <translation>Содержимое обрывается на байте %L1 из %L2.</translation>
    </message>
    <message>
        <source>The card cannot be read at byte %L1 of the file: %2.</source>
        <translation>Не удаётся прочитать карту на байте %L1 файла: %2.</translation>
    </message>
    <message>
        <source>Another deleted file was in the same place; which of the two is still there is not known.</source>
        <translation>На том же месте был другой удалённый файл; какой из двух сохранился, неизвестно.</translation>
    </message>
    <message>
        <source>A part of the contents has been overwritten by another file.</source>
        <translation>Часть содержимого перезаписана другим файлом.</translation>
    </message>
    <message>
        <source>A part of the contents has been overwritten by the newer file %1.</source>
        <translation>Часть содержимого перезаписана более новым файлом %1.</translation>
    </message>
    <message>
        <source>The list of the file&apos;s places on the card is broken.</source>
        <translation>Список мест файла на карте повреждён.</translation>
    </message>
    <message>
        <source>The contents lie past the end of the card.</source>
        <translation>Содержимое лежит за концом карты.</translation>
    </message>
    <message>
        <source>The card no longer says where the contents are.</source>
        <translation>На карте больше нет сведений о том, где содержимое.</translation>
    </message>
    <message>
        <source>The card no longer says how long the file was and where its contents are.</source>
        <translation>На карте больше нет сведений о длине файла и месте его содержимого.</translation>
    </message>
    <message>
        <source>The file could not be read.</source>
        <translation>Не удалось прочитать файл.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be read: %2.</source>
        <translation>Не удаётся прочитать папку %1: %2.</translation>
    </message>
    <message>
        <source>The folder %1 could not be read whole: %2.</source>
        <translation>Не удалось прочитать папку %1 целиком: %2.</translation>
    </message>
    <message>
        <source>%1 went away during the scan.</source>
        <translation>%1: исчезло во время сканирования.</translation>
    </message>
    <message>
        <source>The file is no longer there.</source>
        <translation>Файла больше нет.</translation>
    </message>
    <message>
        <source>The file cannot be opened.</source>
        <translation>Не удаётся открыть файл.</translation>
    </message>
    <message>
        <source>The file cannot be opened: %1.</source>
        <translation>Не удаётся открыть файл: %1.</translation>
    </message>
    <message>
        <source>%1 holds no file system that can be read (FAT, exFAT, NTFS or ext).</source>
        <translation>В %1 нет файловой системы, которую можно прочитать (FAT, exFAT, NTFS или ext).</translation>
    </message>
    <message>
        <source>Deleted files without a folder</source>
        <translation>Удалённые файлы без папки</translation>
    </message>
    <message>
        <source>Volume %1 could not be opened.</source>
        <translation>Не удалось открыть том %1.</translation>
    </message>
    <message>
        <source>The card ends before its file system does; files may be cut off.</source>
        <translation>Карта кончается раньше своей файловой системы; файлы могут быть обрезаны.</translation>
    </message>
    <message>
        <source>The card&apos;s top folder cannot be read.</source>
        <translation>Не удаётся прочитать корневую папку карты.</translation>
    </message>
    <message>
        <source>The card could not be read everywhere: %1.</source>
        <translation>Карту не удалось прочитать полностью: %1.</translation>
    </message>
    <message>
        <source>%1 does not exist.</source>
        <translation>%1 не существует.</translation>
    </message>
    <message>
        <source>Volume %1</source>
        <translation>Том %1</translation>
    </message>
    <message>
        <source>Volume %1 (%2)</source>
        <translation>Том %1 (%2)</translation>
    </message>
    <message>
        <source>The folder /%1 could not be read.</source>
        <translation>Не удалось прочитать папку /%1.</translation>
    </message>
    <message>
        <source>The folder /%1 lies too deep and was not read.</source>
        <translation>Папка /%1 лежит слишком глубоко и не прочитана.</translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>“%1” is empty.</source>
        <translation>«%1»: пусто.</translation>
    </message>
</context>
<context>
    <name>SidePanel</name>
    <message>
        <source>Card</source>
        <translation>Карта</translation>
    </message>
    <message>
        <source>By kind</source>
        <translation>По типу</translation>
    </message>
    <message>
        <source>By place</source>
        <translation>По папкам</translation>
    </message>
    <message>
        <source>Where to look</source>
        <translation>Где искать</translation>
    </message>
</context>
<context>
    <name>TargetCheck</name>
    <message>
        <source>%1 is on the card that is being recovered. Writing there could destroy what is still to be recovered. Choose a folder on another disk.</source>
        <translation>%1 находится на восстанавливаемой карте. Запись туда может уничтожить то, что ещё можно спасти. Выберите папку на другом диске.</translation>
    </message>
    <message>
        <source>%1 lies in the folder that was scanned. Choose a folder outside it.</source>
        <translation>%1 лежит в просканированной папке. Выберите папку вне её.</translation>
    </message>
    <message>
        <source>%1 is the disk image that was scanned, not a folder. Choose a folder.</source>
        <translation>%1 — просканированный образ диска, а не папка. Выберите папку.</translation>
    </message>
    <message>
        <source>There is not enough room at %1: the files need %2, only %3 are free. Choose another folder or check fewer files.</source>
        <translation>В %1 недостаточно места: файлам нужно %2, свободно только %3. Выберите другую папку или отметьте меньше файлов.</translation>
    </message>
</context>
<context>
    <name>Texts</name>
    <message numerus="yes">
        <source>%Ln file(s)</source>
        <translation>
            <numerusform>%Ln файл</numerusform>
            <numerusform>%Ln файла</numerusform>
            <numerusform>%Ln файлов</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln folder(s)</source>
        <translation>
            <numerusform>%Ln папка</numerusform>
            <numerusform>%Ln папки</numerusform>
            <numerusform>%Ln папок</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ThumbnailMaker</name>
    <message>
        <source>There is no picture in such a file.</source>
        <translation>В таком файле нет изображения.</translation>
    </message>
</context>
<context>
    <name>TopBar</name>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
    <message>
        <source>Open folder…</source>
        <translation>Открыть папку…</translation>
    </message>
    <message>
        <source>Open disk image…</source>
        <translation>Открыть образ диска…</translation>
    </message>
    <message>
        <source>Scan again</source>
        <translation>Сканировать снова</translation>
    </message>
    <message>
        <source>Stop scanning</source>
        <translation>Остановить сканирование</translation>
    </message>
    <message>
        <source>Search by name</source>
        <translation>Поиск по имени</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation>Миниатюры</translation>
    </message>
    <message>
        <source>List with details</source>
        <translation>Список с подробностями</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Список</translation>
    </message>
    <message>
        <source>Light or dark</source>
        <translation>Светлая или тёмная тема</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Открыть…</translation>
    </message>
    <message>
        <source>Source: %1</source>
        <translation>Источник: %1</translation>
    </message>
    <message>
        <source>Search by description</source>
        <translation>Поиск по описанию</translation>
    </message>
</context>
</TS>
