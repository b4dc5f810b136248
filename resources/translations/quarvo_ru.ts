<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en">
<context>
    <name>CommonFunction</name>
    <message>
        <source>Photo</source>
        <translation>Фото</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Видео</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Аудио</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Документы</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>Эл. почта</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Базы данных</translation>
    </message>
    <message>
        <source>Webfiles</source>
        <translation>Веб-файлы</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>Архивы</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Прочее</translation>
    </message>
    <message>
        <source>Unsaved files</source>
        <translation>Несохранённые файлы</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Игры</translation>
    </message>
    <message>
        <source>Recycle Bin</source>
        <translation>Корзина</translation>
    </message>
    <message>
        <source>File lost location</source>
        <translation>Потерянные расположения</translation>
    </message>
</context>
<context>
    <name>ElidedLabel</name>
    <message>
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
</context>
<context>
    <name>HeaderView</name>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Размер</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Тип</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Дата изменения</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Расположение</translation>
    </message>
</context>
<context>
    <name>HowToFindPicture</name>
    <message>
        <source>SD card</source>
        <translation>SD-карта</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Все файлы</translation>
    </message>
    <message>
        <source>Deleted files</source>
        <translation>Удалённые файлы</translation>
    </message>
    <message>
        <source>Search by name</source>
        <translation>Поиск по имени</translation>
    </message>
</context>
<context>
    <name>ItemDetailViewClass</name>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
</context>
<context>
    <name>QuarvoTRS</name>
    <message>
        <source>reconstructed_files_label</source>
        <extracomment>The place of files that were found by their contents and have lost their names</extracomment>
        <translation>Файлы без имён</translation>
    </message>
    <message>
        <source>time_nav_root_all_time</source>
        <extracomment>All files, arranged by date</extracomment>
        <translation>За всё время</translation>
    </message>
    <message>
        <source>time_nav_root_unknown_time</source>
        <translation>Дата неизвестна</translation>
    </message>
    <message>
        <source>SizeUnit_Bytes</source>
        <translation>байт</translation>
    </message>
    <message>
        <source>SizeUnit_KB</source>
        <translation>КБ</translation>
    </message>
    <message>
        <source>SizeUnit_MB</source>
        <translation>МБ</translation>
    </message>
    <message>
        <source>SizeUnit_GB</source>
        <translation>ГБ</translation>
    </message>
    <message>
        <source>SizeUnit_TB</source>
        <translation>ТБ</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>size</source>
        <translation>Размер</translation>
    </message>
    <message>
        <source>type</source>
        <translation>Тип</translation>
    </message>
    <message>
        <source>date_modified</source>
        <translation>Дата изменения</translation>
    </message>
    <message>
        <source>path</source>
        <extracomment>The folder that a file lay in; header of a column and title of a row</extracomment>
        <translation>Расположение</translation>
    </message>
    <message>
        <source>folder</source>
        <extracomment>The type of a folder, where a file has its extension</extracomment>
        <translation>Папка</translation>
    </message>
    <message>
        <source>file_status</source>
        <translation>Состояние</translation>
    </message>
    <message>
        <source>filter_bar_widget_existing_files</source>
        <extracomment>A status: the file is still on the card</extracomment>
        <translation>Существующий файл</translation>
    </message>
    <message>
        <source>filter_bar_widget_delete_files</source>
        <extracomment>A status: the file was deleted</extracomment>
        <translation>Удалённый файл</translation>
    </message>
    <message>
        <source>resolution</source>
        <translation>Разрешение</translation>
    </message>
    <message>
        <source>iso_speed</source>
        <translation>Чувствительность ISO</translation>
    </message>
    <message>
        <source>camera_brand</source>
        <translation>Марка камеры</translation>
    </message>
    <message>
        <source>model</source>
        <extracomment>Of a camera</extracomment>
        <translation>Модель камеры</translation>
    </message>
    <message>
        <source>white_balance</source>
        <translation>Баланс белого</translation>
    </message>
    <message>
        <source>exposure_time</source>
        <translation>Выдержка</translation>
    </message>
    <message>
        <source>focal_length</source>
        <translation>Фокусное расстояние</translation>
    </message>
    <message>
        <source>software</source>
        <translation>Программа</translation>
    </message>
    <message>
        <source>frame_rate</source>
        <translation>Частота кадров</translation>
    </message>
    <message>
        <source>bit_rate</source>
        <translation>Битрейт</translation>
    </message>
    <message>
        <source>f_number</source>
        <extracomment>Of a lens</extracomment>
        <translation>Диафрагма</translation>
    </message>
    <message>
        <source>view_in_path</source>
        <extracomment>Tooltip of the mark that leads to the file&apos;s folder</extracomment>
        <translation>Показать в папке</translation>
    </message>
    <message>
        <source>select_all</source>
        <translation>Выбрать всё</translation>
    </message>
    <message>
        <source>preview</source>
        <extracomment>A button and a menu entry</extracomment>
        <translation>Просмотр</translation>
    </message>
    <message>
        <source>recover</source>
        <extracomment>A menu entry</extracomment>
        <translation>Восстановить</translation>
    </message>
    <message>
        <source>got_it</source>
        <extracomment>Closes an explanation</extracomment>
        <translation>Понятно</translation>
    </message>
    <message>
        <source>recoverability_label</source>
        <extracomment>Stands before a level in a tooltip</extracomment>
        <translation>Шансы на восстановление</translation>
    </message>
    <message>
        <source>recoverability_label_list</source>
        <extracomment>Title of a row</extracomment>
        <translation>Шансы на восстановление</translation>
    </message>
    <message>
        <source>recoverability_high</source>
        <extracomment>A level, in a small label on a card</extracomment>
        <translation>Высокие</translation>
    </message>
    <message>
        <source>recoverability_medium</source>
        <extracomment>A level, in a small label on a card</extracomment>
        <translation>Средние</translation>
    </message>
    <message>
        <source>recoverability_assessing</source>
        <extracomment>The level is not known yet, in a small label on a card</extracomment>
        <translation>Оценка</translation>
    </message>
    <message>
        <source>scanning</source>
        <translation>Сканирование</translation>
    </message>
    <message>
        <source>scandataview_scanning_hint</source>
        <translation>Подождите, идёт быстрый поиск ваших файлов.</translation>
    </message>
    <message>
        <source>file_not_found</source>
        <translation>Файлы не найдены</translation>
    </message>
    <message>
        <source>scandataview_file_not_found_hint</source>
        <translation>Файлы этого типа не найдены. Проверьте, тот ли диск выбран для сканирования.</translation>
    </message>
    <message>
        <source>ai_tags_loading_title</source>
        <translation>Загрузка файлов…</translation>
    </message>
    <message>
        <source>ai_tags_loading_desc</source>
        <translation>Это может занять некоторое время.</translation>
    </message>
    <message>
        <source>filter_empty_title</source>
        <translation>Нет файлов, подходящих под фильтр</translation>
    </message>
    <message>
        <source>filter_empty_desc</source>
        <translation>Сканирование нашло файлы, но ни один из них не соответствует заданным фильтрам.</translation>
    </message>
    <message>
        <source>scandataview_search_no_result</source>
        <translation>К сожалению, файл не найден</translation>
    </message>
    <message>
        <source>missing_original_filenames</source>
        <extracomment>Keep the number and the link; the link&apos;s words are those of reconstructed_files_label</extracomment>
        <translation>1. Некоторые файлы потеряли исходные имена. Поищите их в разделе &lt;a href=&quot;#&quot;&gt;«Файлы без имён»&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>scandataview_search_hint_wait_scan</source>
        <extracomment>Keep the number</extracomment>
        <translation>2. Дождитесь окончания сканирования и повторите поиск.</translation>
    </message>
    <message>
        <source>scandataview_search_hint_use_filter</source>
        <extracomment>Keep the number</extracomment>
        <translation>3. Воспользуйтесь фильтром, чтобы сузить поиск.</translation>
    </message>
    <message>
        <source>ai_search_empty_title</source>
        <translation>К сожалению, ничего не найдено</translation>
    </message>
    <message>
        <source>ai_search_empty_desc</source>
        <translation>Ничего в текущих результатах не подходит под описание.</translation>
    </message>
    <message>
        <source>ai_search_empty_tip1</source>
        <translation>Опишите иначе: тип файла, дата или размер.</translation>
    </message>
    <message>
        <source>ai_search_empty_tip2</source>
        <translation>Если сканирование ещё идёт, подождите новых файлов.</translation>
    </message>
    <message>
        <source>ai_search_empty_tip3</source>
        <translation>Воспользуйтесь фильтром или поиском по имени.</translation>
    </message>
    <message>
        <source>how_to_find_in_reconstructed</source>
        <translation>Как найти файлы без имён</translation>
    </message>
    <message>
        <source>reconstructed_tip_intro</source>
        <translation>Некоторые файлы потеряли имена, и найти их по имени нельзя. Вот как найти свои файлы:</translation>
    </message>
    <message>
        <source>click_reconstructed</source>
        <translation>Откройте раздел «Файлы без имён».</translation>
    </message>
    <message>
        <source>search_dialog_text2</source>
        <translation>Выберите типы файлов, которые нужно восстановить.</translation>
    </message>
    <message>
        <source>search_dialog_text3</source>
        <translation>Просмотрите файлы, чтобы найти потерянные.</translation>
    </message>
    <message>
        <source>ai_tags_title</source>
        <translation>Сюжеты</translation>
    </message>
    <message>
        <source>ai_tags_landscape</source>
        <translation>Пейзаж</translation>
    </message>
    <message>
        <source>ai_tags_beach</source>
        <translation>Пляж</translation>
    </message>
    <message>
        <source>ai_tags_cityscape</source>
        <translation>Городской вид</translation>
    </message>
    <message>
        <source>ai_tags_hotel</source>
        <translation>Отель</translation>
    </message>
    <message>
        <source>ai_tags_aerial</source>
        <translation>Вид сверху</translation>
    </message>
    <message>
        <source>ai_tags_children</source>
        <translation>Дети</translation>
    </message>
    <message>
        <source>ai_tags_pet</source>
        <translation>Питомцы</translation>
    </message>
    <message>
        <source>ai_tags_birthday</source>
        <translation>День рождения</translation>
    </message>
    <message>
        <source>ai_tags_dinner</source>
        <translation>Ужин</translation>
    </message>
    <message>
        <source>ai_tags_performance</source>
        <translation>Выступление</translation>
    </message>
    <message>
        <source>ai_tags_exhibition</source>
        <translation>Выставка</translation>
    </message>
    <message>
        <source>ai_tags_sports</source>
        <translation>Спорт</translation>
    </message>
    <message>
        <source>ai_tags_graduation</source>
        <translation>Выпускной</translation>
    </message>
    <message>
        <source>ai_tags_wedding_dress</source>
        <translation>Свадебное платье</translation>
    </message>
    <message>
        <source>ai_tags_bouquet</source>
        <translation>Букет</translation>
    </message>
    <message>
        <source>ai_tags_food</source>
        <translation>Еда</translation>
    </message>
    <message>
        <source>ai_tags_meeting_room</source>
        <translation>Переговорная</translation>
    </message>
    <message>
        <source>ai_tags_presentation</source>
        <translation>Презентация</translation>
    </message>
    <message>
        <source>ai_tags_whiteboard</source>
        <translation>Маркерная доска</translation>
    </message>
    <message>
        <source>ai_tags_product</source>
        <translation>Товар</translation>
    </message>
    <message>
        <source>ai_tags_selfie</source>
        <translation>Селфи</translation>
    </message>
    <message>
        <source>ai_tags_group_photo</source>
        <translation>Групповое фото</translation>
    </message>
    <message>
        <source>ai_tags_id_photo</source>
        <translation>Фото на документы</translation>
    </message>
    <message>
        <source>ai_tags_paper_document</source>
        <translation>Бумажный документ</translation>
    </message>
    <message>
        <source>ai_tags_identity_document</source>
        <translation>Удостоверение личности</translation>
    </message>
    <message>
        <source>ai_tags_chat_screenshot</source>
        <translation>Снимок переписки</translation>
    </message>
</context>
<context>
    <name>SDCardContentDataWidgetClass</name>
    <message>
        <source>Select All</source>
        <translation>Выбрать всё</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>Сканирование</translation>
    </message>
    <message>
        <source>Please wait while we quickly locate your files.</source>
        <translation>Подождите, идёт быстрый поиск ваших файлов.</translation>
    </message>
    <message>
        <source>File Not Found</source>
        <translation>Файлы не найдены</translation>
    </message>
    <message>
        <source>Sorry, the file type could not be found. Please check if the correct disk is selected for scanning.</source>
        <translation>Файлы этого типа не найдены. Проверьте, тот ли диск выбран для сканирования.</translation>
    </message>
    <message>
        <source>Loading Files...</source>
        <translation>Загрузка файлов…</translation>
    </message>
    <message>
        <source>This may take a moment.</source>
        <translation>Это может занять некоторое время.</translation>
    </message>
    <message>
        <source>Nothing matches this filter...</source>
        <translation>Нет файлов, подходящих под фильтр</translation>
    </message>
    <message>
        <source>We found files in the scan, but none match the filters currently applied.</source>
        <translation>Сканирование нашло файлы, но ни один из них не соответствует заданным фильтрам.</translation>
    </message>
</context>
<context>
    <name>SearchDialog</name>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
</context>
<context>
    <name>SpokenText</name>
    <message>
        <source>Checked</source>
        <translation>Отмечено</translation>
    </message>
    <message>
        <source>Partly checked</source>
        <translation>Отмечено частично</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>Не отмечено</translation>
    </message>
    <message>
        <source>Audio file</source>
        <translation>Аудиофайл</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Видео</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Документ</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>Электронное письмо</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>База данных</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Фото</translation>
    </message>
    <message>
        <source>Web page</source>
        <translation>Веб-страница</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>Архив</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Файл</translation>
    </message>
    <message>
        <source>%1 file</source>
        <translation>Файл %1</translation>
    </message>
    <message>
        <source>items: %1</source>
        <translation>элементов: %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 из %2</translation>
    </message>
    <message>
        <source>Sorted in descending order</source>
        <translation>Сортировка по убыванию</translation>
    </message>
    <message>
        <source>Sorted in ascending order</source>
        <translation>Сортировка по возрастанию</translation>
    </message>
    <message>
        <source>Scroll bar</source>
        <translation>Полоса прокрутки</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a spoken description</comment>
        <translation>, </translation>
    </message>
</context>
</TS>
