<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en">
<context>
    <name>AddButton</name>
    <message>
        <source>There are no files on the clipboard</source>
        <translation>В буфере обмена нет файлов</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Добавить папку</translation>
    </message>
    <message>
        <source>Add files</source>
        <translation>Добавить файлы</translation>
    </message>
    <message>
        <source>Add files…</source>
        <translation>Добавить файлы…</translation>
    </message>
    <message>
        <source>Add folder…</source>
        <translation>Добавить папку…</translation>
    </message>
</context>
<context>
    <name>AllOrNothing</name>
    <message>
        <source>All or nothing</source>
        <translation>Всё или ничего</translation>
    </message>
    <message>
        <source>All or nothing: a run renames every file of the list, or none</source>
        <translation>Всё или ничего: запуск переименовывает все файлы списка или ни одного</translation>
    </message>
    <message>
        <source>%1: nothing will be renamed, as %2 cannot be</source>
        <translation>%1; ничего не будет переименовано, невозможно: %2</translation>
    </message>
    <message>
        <source>New names so far: %1 of %2. Put everything back, or keep what is done?</source>
        <translation>Новых имён пока: %1 из %2. Вернуть всё или оставить сделанное?</translation>
    </message>
    <message>
        <source>Put everything back</source>
        <translation>Вернуть всё</translation>
    </message>
    <message>
        <source>Keep what is done</source>
        <translation>Оставить сделанное</translation>
    </message>
    <message>
        <source>Kept</source>
        <extracomment>of the report: files that have the name already which the rules make; a number follows</extracomment>
        <translation>Без изменений</translation>
    </message>
    <message>
        <source>Rename what can be</source>
        <translation>Переименовать что можно</translation>
    </message>
    <message>
        <source>Nothing was renamed, as not every file can be.</source>
        <translation>Ничего не переименовано, так как переименовать можно не все файлы.</translation>
    </message>
    <message>
        <source>Nothing was renamed: one file failed, and the others have their old names again.</source>
        <translation>Ничего не переименовано: один файл переименовать не удалось, остальные снова имеют прежние имена.</translation>
    </message>
    <message>
        <source>Nothing was renamed: the run was cancelled.</source>
        <translation>Ничего не переименовано: запуск остановлен.</translation>
    </message>
    <message>
        <source>The run could not be put back as a whole; files that do not have their old names: %1</source>
        <translation>Не удалось вернуть всё; файлы без прежних имён: %1</translation>
    </message>
    <message>
        <source>Nothing was renamed: the journal of the run cannot be written.</source>
        <translation>Ничего не переименовано: журнал запуска нельзя записать.</translation>
    </message>
    <message>
        <source>The run is not finished yet.</source>
        <translation>Запуск ещё не завершён.</translation>
    </message>
    <message>
        <source>Could not put back file &apos;%1&apos;: it is called &apos;%2&apos;</source>
        <translation>Не удалось вернуть имя файлу &apos;%1&apos;: он называется &apos;%2&apos;</translation>
    </message>
</context>
<context>
    <name>DialogNotice</name>
    <message>
        <source>Don&apos;t show this message again.</source>
        <translation>Больше не показывать это сообщение.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Advice</source>
        <translation>Совет</translation>
    </message>
</context>
<context>
    <name>DialogSettings</name>
    <message>
        <source>Global Settings</source>
        <translation>Глобальные настройки</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Общие</translation>
    </message>
    <message>
        <source>Add-ons</source>
        <translation>Дополнения</translation>
    </message>
    <message>
        <source>Localisation</source>
        <translation>Локализация</translation>
    </message>
    <message>
        <source>Donate</source>
        <translation>Пожертвовать</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Информация</translation>
    </message>
    <message>
        <source>Requires registry entry</source>
        <translation>Требуется запись в реестре</translation>
    </message>
    <message>
        <source>Load on system start-up</source>
        <translation>Запускать вместе с системой</translation>
    </message>
    <message>
        <source>Minimize on start</source>
        <translation>Сворачивать при запуске</translation>
    </message>
    <message>
        <source>Disable splash screen</source>
        <translation>Отключить заставку при запуске</translation>
    </message>
    <message>
        <source>Restore window layout</source>
        <translation>Восстанавливать компоновку окна</translation>
    </message>
    <message>
        <source>Restore window geometry</source>
        <translation>Восстанавливать размер и положение окна</translation>
    </message>
    <message>
        <source>Minimize to tray icon</source>
        <translation>Сворачивать в трей</translation>
    </message>
    <message>
        <source>Automatically check for new version</source>
        <translation>Автоматически проверять наличие новой версии</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>Проверить сейчас</translation>
    </message>
    <message>
        <source>Plugins</source>
        <translation>Плагины</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Код</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Страна</translation>
    </message>
    <message>
        <source>Translation: Kavrondel</source>
        <translation>Перевод: Kavrondel</translation>
    </message>
    <message>
        <source>Support this project</source>
        <translation>Поддержите этот проект</translation>
    </message>
    <message>
        <source>This application is freeware and will always remain free. </source>
        <translation>Эта программа бесплатна и всегда останется бесплатной. </translation>
    </message>
    <message>
        <source>By making a small contribution you can help us in developing, upgrading and maintaining our products.</source>
        <translation>Сделав небольшое пожертвование, вы поможете нам разрабатывать, обновлять и поддерживать наши продукты.</translation>
    </message>
    <message>
        <source>Application Directory</source>
        <translation>Папка программы</translation>
    </message>
    <message>
        <source>Application Data Directory</source>
        <translation>Папка данных программы</translation>
    </message>
    <message>
        <source>Visit our website</source>
        <translation>Посетить наш сайт</translation>
    </message>
    <message>
        <source>Send us feedback</source>
        <translation>Отправить нам отзыв</translation>
    </message>
    <message>
        <source>&lt;b style=&apos;color:#888&apos;&gt;Made by Kavrondel&lt;/b&gt;</source>
        <translation>&lt;b style=&apos;color:#888&apos;&gt;Разработано Kavrondel&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>The command completed successfully.</source>
        <translation>Команда успешно выполнена.</translation>
    </message>
    <message>
        <source>The command failed to execute.</source>
        <translation>Не удалось выполнить команду.</translation>
    </message>
    <message>
        <source>Make sure you have administrator rights.</source>
        <translation>Убедитесь, что у вас есть права администратора.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
</context>
<context>
    <name>DialogStart</name>
    <message>
        <source>Code</source>
        <translation>Код</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Страна</translation>
    </message>
    <message>
        <source>Automatically check for new versions</source>
        <translation>Автоматически проверять наличие новых версий</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Далее</translation>
    </message>
    <message>
        <source>We would like to thank you for your confidence and hope you&apos;ll enjoy this software.</source>
        <translation>Благодарим вас за доверие и надеемся, что эта программа вам понравится.</translation>
    </message>
    <message>
        <source>Discover more products from us:</source>
        <translation>Познакомьтесь с другими нашими продуктами:</translation>
    </message>
    <message>
        <source>We are looking for native speaking translators.</source>
        <translation>Мы ищем переводчиков — носителей языка.</translation>
    </message>
    <message>
        <source>Please contact us at: </source>
        <translation>Свяжитесь с нами по адресу: </translation>
    </message>
</context>
<context>
    <name>ExampleRules</name>
    <message>
        <source>Photo</source>
        <translation>Фото</translation>
    </message>
    <message>
        <source>Number photos</source>
        <translation>Пронумеровать фотографии</translation>
    </message>
    <message>
        <source>Blanks for underscores</source>
        <translation>Пробелы вместо подчёркиваний</translation>
    </message>
    <message>
        <source>Tidy upper and lower case</source>
        <translation>Упорядочить прописные и строчные буквы</translation>
    </message>
    <message>
        <source>Without camera prefixes</source>
        <translation>Без приставок камеры</translation>
    </message>
    <message>
        <source>Dates as 2024-01-31</source>
        <translation>Даты в виде 2024-01-31</translation>
    </message>
    <message>
        <source>Track numbers with two digits</source>
        <translation>Двузначные номера дорожек</translation>
    </message>
    <message>
        <source>&quot;Title - Artist&quot; for &quot;Artist - Title&quot;</source>
        <translation>«Название - Исполнитель» вместо «Исполнитель - Название»</translation>
    </message>
</context>
<context>
    <name>ExplorerModel</name>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
</context>
<context>
    <name>Fates</name>
    <message>
        <source>the file is not there</source>
        <translation>файл не найден</translation>
    </message>
    <message>
        <source>the new name is empty or only dots</source>
        <translation>новое имя пустое или состоит только из точек</translation>
    </message>
    <message>
        <source>there is no such folder</source>
        <translation>такой папки нет</translation>
    </message>
    <message>
        <source>the file system does not take the new name</source>
        <translation>файловая система не принимает новое имя</translation>
    </message>
    <message>
        <source>the new name is too long</source>
        <translation>новое имя слишком длинное</translation>
    </message>
    <message>
        <source>nothing can be renamed in this folder</source>
        <translation>в этой папке нельзя переименовывать</translation>
    </message>
    <message>
        <source>the new name holds half a character</source>
        <translation>новое имя содержит половину символа</translation>
    </message>
    <message>
        <source>the system refused</source>
        <translation>система отказала</translation>
    </message>
    <message>
        <source>the name is taken</source>
        <translation>имя уже занято</translation>
    </message>
    <message>
        <source>row %1 takes the name %2</source>
        <translation>строка %1 получает имя %2</translation>
    </message>
    <message>
        <source>row %1 still has the name %2</source>
        <translation>строка %1 ещё занимает имя %2</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>Файлов: 1</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>Файлов: %1</translation>
    </message>
    <message>
        <source>1 keeps its name</source>
        <translation>без изменений: 1</translation>
    </message>
    <message>
        <source>%1 keep their names</source>
        <translation>без изменений: %1</translation>
    </message>
    <message>
        <source>checking…</source>
        <translation>проверка…</translation>
    </message>
    <message>
        <source>Go to the next row in trouble (F8)</source>
        <translation>К следующей проблемной строке (F8)</translation>
    </message>
    <message>
        <source>%1, %2 selected</source>
        <translation>%1, выбрано: %2</translation>
    </message>
    <message>
        <source>%1: %2 will be renamed, %3, %4 cannot</source>
        <translation>%1; изменится: %2, %3, невозможно: %4</translation>
    </message>
    <message>
        <source>%1: %2 will be renamed, %3, %4 cannot, %5 unknown</source>
        <translation>%1; изменится: %2, %3, невозможно: %4, неизвестно: %5</translation>
    </message>
    <message>
        <source>Keeps its name.</source>
        <translation>Имя остаётся прежним.</translation>
    </message>
    <message>
        <source>Cannot be told before the run.</source>
        <translation>До переименования предсказать нельзя.</translation>
    </message>
    <message>
        <source>Stays: %1.</source>
        <translation>Останется как есть: %1.</translation>
    </message>
    <message>
        <source>Moves to the folder %1.</source>
        <translation>Будет перемещён в папку %1.</translation>
    </message>
    <message>
        <source>The new name leads to the folder %1.</source>
        <translation>Новое имя ведёт в папку %1.</translation>
    </message>
    <message>
        <source>Not renamed: %1.</source>
        <translation>Не переименован: %1.</translation>
    </message>
    <message>
        <source>Show details…</source>
        <translation>Показать подробности…</translation>
    </message>
    <message>
        <source>Not Renamed</source>
        <translation>Не переименованы</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>New name</source>
        <translation>Новое имя</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Папка</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>another file has its name</source>
        <translation>его имя носит другой файл</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Rules</source>
        <translation>Правила</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Добавить</translation>
    </message>
    <message>
        <source>Active Rules</source>
        <translation>Активные правила</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>Правило</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Свойства</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>Очистить список</translation>
    </message>
    <message>
        <source>File List</source>
        <translation>Список файлов</translation>
    </message>
    <message>
        <source>Name Filter</source>
        <translation>Фильтр имён</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Очистить</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Предпросмотр</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Переименовать</translation>
    </message>
    <message>
        <source>Show full path</source>
        <translation>Показывать полный путь</translation>
    </message>
    <message>
        <source>Application Log</source>
        <translation>Журнал программы</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Время</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Сообщение</translation>
    </message>
    <message>
        <source>Save logs</source>
        <translation>Сохранять журнал</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранять</translation>
    </message>
    <message>
        <source>Include debug messages</source>
        <translation>Включать отладочные сообщения</translation>
    </message>
    <message>
        <source>Debug</source>
        <translation>Отладка</translation>
    </message>
    <message>
        <source>Open log directory</source>
        <translation>Открыть папку журнала</translation>
    </message>
    <message>
        <source>Global Settings</source>
        <translation>Глобальные настройки</translation>
    </message>
    <message>
        <source>File Explorer</source>
        <translation>Проводник</translation>
    </message>
    <message>
        <source>Please wait</source>
        <translation>Пожалуйста, подождите</translation>
    </message>
    <message>
        <source>Acquire files</source>
        <translation>Сбор файлов</translation>
    </message>
    <message>
        <source>File renaming started</source>
        <translation>Начато переименование файлов</translation>
    </message>
    <message>
        <source>Could not rename file</source>
        <translation>Не удалось переименовать файл</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Всего</translation>
    </message>
    <message>
        <source>Processed</source>
        <translation>Обработано</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Не удалось</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Отчёт</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Please support us if you like this software and want to keep our service alive.</source>
        <translation>Если вам нравится эта программа и вы хотите, чтобы наш сервис продолжал работать, поддержите нас.</translation>
    </message>
    <message>
        <source>Thank you!</source>
        <translation>Спасибо!</translation>
    </message>
    <message>
        <source>Application has been minimized.</source>
        <translation>Программа свёрнута.</translation>
    </message>
    <message>
        <source>Click the tray icon to show.</source>
        <translation>Чтобы показать окно, щёлкните значок в трее.</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Непрозрачность</translation>
    </message>
    <message>
        <source>Stay on Top</source>
        <translation>Поверх всех окон</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Переместить вверх</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Убрать</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Переместить вниз</translation>
    </message>
    <message>
        <source>Undo the last run</source>
        <translation>Отменить последний запуск</translation>
    </message>
    <message>
        <source>Undo, redo and earlier runs</source>
        <translation>Отмена, повтор и прежние запуски</translation>
    </message>
    <message>
        <source>Add files and folders</source>
        <translation>Добавить файлы и папки</translation>
    </message>
    <message>
        <source>Sort the files</source>
        <translation>Сортировать файлы</translation>
    </message>
    <message>
        <source>Drop files or folders here, or press Ctrl+O</source>
        <translation>Перетащите сюда файлы или папки либо нажмите Ctrl+O</translation>
    </message>
    <message>
        <source>Choose a kind of rule above, fill in its fields and press &quot;%1&quot;</source>
        <extracomment>%1 is the text of the button &quot;Add&quot;</extracomment>
        <translation>Выберите выше вид правила, заполните его поля и нажмите «%1»</translation>
    </message>
</context>
<context>
    <name>Places</name>
    <message>
        <source>Home</source>
        <translation>Домашняя папка</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Рабочий стол</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Изображения</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Музыка</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Документы</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>Загрузки</translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Drive</source>
        <translation>Диск</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Папка</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Файл</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>Файл %1</translation>
    </message>
</context>
<context>
    <name>QAbstractSocket</name>
    <message>
        <source>Socket operation timed out</source>
        <translation>Истекло время ожидания операции с сокетом</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>Вы&amp;делить всё</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>&amp;Увеличить</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>У&amp;меньшить</translation>
    </message>
</context>
<context>
    <name>QDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>QDockWidget</name>
    <message>
        <source>Float</source>
        <translation>Открепить</translation>
    </message>
    <message>
        <source>Undocks and re-attaches the dock widget</source>
        <translation>Открепляет и снова закрепляет панель</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Closes the dock widget</source>
        <translation>Закрывает панель</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Удалить</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;Новая папка</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Открыть</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Переименовать</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Сохранить</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Все файлы (*)</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Перейти к подробному виду</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Перейти к виду списка</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Создать новую папку</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Создать новую папку</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Подробный вид</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>&amp;Имя файла:</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Файлы</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Тип файлов:</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Вперёд</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Перейти назад</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Перейти вперёд</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Перейти в родительскую папку</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Вид списка</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Список мест и закладок</translation>
    </message>
    <message>
        <source>Look in:</source>
        <translation>Искать в:</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Родительская папка</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>Показывать &amp;скрытые файлы</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Боковая панель</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Папка:</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 уже существует.
Заменить файл?</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
Файл не найден.
Проверьте имя файла.</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Показать </translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>&amp;Выбрать</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>Папки</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Папка не найдена.
Проверьте, верно ли указано имя.</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Computer</source>
        <translation>Компьютер</translation>
    </message>
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
</context>
<context>
    <name>QHttp</name>
    <message>
        <source>Connection refused</source>
        <translation>Соединение отклонено</translation>
    </message>
    <message>
        <source>Connection closed</source>
        <translation>Соединение закрыто</translation>
    </message>
    <message>
        <source>Host %1 not found</source>
        <translation>Узел %1 не найден</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Отменить</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Повторить</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Вырезать</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Копировать</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Вст&amp;авить</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Выделить всё</translation>
    </message>
</context>
<context>
    <name>QNativeSocketEngine</name>
    <message>
        <source>Host unreachable</source>
        <translation>Узел недоступен</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>Сеть недоступна</translation>
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
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Игнорировать</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Нет</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Прокрутить сюда</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Левый край</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>В начало</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Правый край</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>В конец</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>На страницу влево</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>На страницу вверх</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>На страницу вправо</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>На страницу вниз</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Прокрутить влево</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Прокрутить вверх</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Прокрутить вправо</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Прокрутить вниз</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Shift</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Вверх</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Вниз</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Enter</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Копировать</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Копировать адрес &amp;ссылки</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Выделить всё</translation>
    </message>
</context>
<context>
    <name>RuleEdit</name>
    <message>
        <source>Apply</source>
        <translation>Применить</translation>
    </message>
    <message>
        <source>Put these values in the place of the rule</source>
        <translation>Поставить эти значения на место правила</translation>
    </message>
    <message>
        <source>Leave the rule as it is</source>
        <translation>Оставить правило как есть</translation>
    </message>
</context>
<context>
    <name>RuleSetDialog</name>
    <message>
        <source>Rule sets</source>
        <translation>Наборы правил</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Переименовать</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Импорт…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Экспорт…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
</context>
<context>
    <name>RuleSetMenu</name>
    <message>
        <source>Rule sets</source>
        <translation>Наборы правил</translation>
    </message>
    <message>
        <source>Save the active rules under a name, and take them up again</source>
        <translation>Сохранить активные правила под именем и использовать их снова</translation>
    </message>
    <message>
        <source>The rules were changed since.</source>
        <translation>С тех пор правила изменились.</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>Последние использованные</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Сохранить как…</translation>
    </message>
    <message>
        <source>Manage…</source>
        <translation>Управление…</translation>
    </message>
    <message>
        <source>Open file…</source>
        <translation>Открыть файл…</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>Примеры</translation>
    </message>
</context>
<context>
    <name>RuleSetQuestions</name>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Rule sets</source>
        <translation>Наборы правил</translation>
    </message>
    <message>
        <source>The active rules are not saved. Replace them?</source>
        <translation>Активные правила не сохранены. Заменить их?</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Заменить</translation>
    </message>
    <message>
        <source>There is a rule set &quot;%1&quot; already. Replace it?</source>
        <translation>Набор правил «%1» уже существует. Заменить его?</translation>
    </message>
    <message>
        <source>Delete the rule set &quot;%1&quot;?</source>
        <translation>Удалить набор правил «%1»?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Save rule set</source>
        <translation>Сохранить набор правил</translation>
    </message>
    <message>
        <source>Name of the rule set</source>
        <translation>Имя набора правил</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Open rule set</source>
        <translation>Открыть набор правил</translation>
    </message>
    <message>
        <source>No rules were loaded from %1:</source>
        <translation>Правила не загружены из файла %1:</translation>
    </message>
    <message>
        <source>The rule set could not be saved:</source>
        <translation>Не удалось сохранить набор правил:</translation>
    </message>
    <message>
        <source>The rule set could not be deleted:</source>
        <translation>Не удалось удалить набор правил:</translation>
    </message>
    <message>
        <source>The rule set could not be renamed:</source>
        <translation>Не удалось переименовать набор правил:</translation>
    </message>
</context>
<context>
    <name>RuleSets</name>
    <message>
        <source>rule %1, %2</source>
        <translation>правило %1, %2</translation>
    </message>
    <message>
        <source>must be an object</source>
        <translation>должно быть объектом</translation>
    </message>
    <message>
        <source>too large</source>
        <translation>слишком большой файл</translation>
    </message>
    <message>
        <source>line %1 is no JSON</source>
        <translation>строка %1 — не JSON</translation>
    </message>
    <message>
        <source>must be a text of at most %1 characters</source>
        <translation>должно быть текстом длиной не более %1 символов</translation>
    </message>
    <message>
        <source>must be a name, without blanks at its ends</source>
        <translation>должно быть именем без пробелов в начале и в конце</translation>
    </message>
    <message>
        <source>must be a whole number from %1 to %2</source>
        <translation>должно быть целым числом от %1 до %2</translation>
    </message>
    <message>
        <source>must be true or false</source>
        <translation>должно быть true или false</translation>
    </message>
    <message>
        <source>must be %1</source>
        <translation>должно быть %1</translation>
    </message>
    <message>
        <source>must be one of %1</source>
        <translation>должно быть одним из значений: %1</translation>
    </message>
    <message>
        <source>must be a list of at most %1 rules</source>
        <translation>должно быть списком не более чем из %1 правил</translation>
    </message>
    <message>
        <source>a newer version of the program wrote this file</source>
        <translation>этот файл записан более новой версией программы</translation>
    </message>
    <message>
        <source>no such field is known</source>
        <translation>такое поле неизвестно</translation>
    </message>
    <message>
        <source>is missing</source>
        <translation>отсутствует</translation>
    </message>
    <message>
        <source>is no file</source>
        <translation>это не файл</translation>
    </message>
    <message>
        <source>another rule set has this name</source>
        <translation>другой набор правил носит это имя</translation>
    </message>
    <message>
        <source>the file with the old name could not be removed</source>
        <translation>не удалось удалить файл со старым именем</translation>
    </message>
</context>
<context>
    <name>Rules</name>
    <message>
        <source>Direction</source>
        <translation>Направление</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>С начала</translation>
    </message>
    <message>
        <source>End</source>
        <translation>С конца</translation>
    </message>
    <message>
        <source>Change Case</source>
        <translation>Изменить регистр</translation>
    </message>
    <message>
        <source>Uppercase letters</source>
        <translation>Прописные буквы</translation>
    </message>
    <message>
        <source>Lowercase letters</source>
        <translation>Строчные буквы</translation>
    </message>
    <message>
        <source>Uppercase first letter of each word</source>
        <translation>Каждое слово с прописной буквы</translation>
    </message>
    <message>
        <source>Ignore File Extension</source>
        <translation>Игнорировать расширение файла</translation>
    </message>
    <message>
        <source>Enumerate</source>
        <translation>Пронумеровать</translation>
    </message>
    <message>
        <source>Start Number</source>
        <translation>Начальный номер</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Позиция</translation>
    </message>
    <message>
        <source>Leading Zeros</source>
        <translation>Ведущие нули</translation>
    </message>
    <message>
        <source>Insert Text</source>
        <translation>Вставить текст</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Текст</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Заменить</translation>
    </message>
    <message>
        <source>Replace what</source>
        <translation>Что заменить</translation>
    </message>
    <message>
        <source>Replace with</source>
        <translation>На что заменить</translation>
    </message>
    <message>
        <source>Regular Expression</source>
        <translation>Регулярное выражение</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Обрезать</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Длина</translation>
    </message>
    <message>
        <source>No valid pattern: it will change nothing.</source>
        <translation>Недопустимый шаблон: он ничего не изменит.</translation>
    </message>
    <message>
        <source>This pattern would take too long: it will change nothing.</source>
        <translation>Этот шаблон занял бы слишком много времени: он ничего не изменит.</translation>
    </message>
    <message>
        <source>Upper and lower case differ; as much as possible is found.</source>
        <translation>Прописные и строчные буквы различаются; находится как можно более длинный фрагмент.</translation>
    </message>
    <message>
        <source>any character</source>
        <translation>любой символ</translation>
    </message>
    <message>
        <source>the dot itself</source>
        <translation>сама точка</translation>
    </message>
    <message>
        <source>one of these characters</source>
        <translation>один из этих символов</translation>
    </message>
    <message>
        <source>any other character</source>
        <translation>любой другой символ</translation>
    </message>
    <message>
        <source>a digit</source>
        <translation>цифра</translation>
    </message>
    <message>
        <source>a letter, a digit or _</source>
        <translation>буква, цифра или _</translation>
    </message>
    <message>
        <source>a blank</source>
        <translation>пробел</translation>
    </message>
    <message>
        <source>any number of a, also none</source>
        <translation>сколько угодно букв a, в том числе ни одной</translation>
    </message>
    <message>
        <source>one a or more</source>
        <translation>одна буква a или больше</translation>
    </message>
    <message>
        <source>one a or none</source>
        <translation>одна буква a или ни одной</translation>
    </message>
    <message>
        <source>two to four a</source>
        <translation>от двух до четырёх букв a</translation>
    </message>
    <message>
        <source>either ab or cd</source>
        <translation>либо ab, либо cd</translation>
    </message>
    <message>
        <source>the beginning of the name</source>
        <translation>начало имени</translation>
    </message>
    <message>
        <source>the end of the name</source>
        <translation>конец имени</translation>
    </message>
    <message>
        <source>a group: \1 in the new text is what it found</source>
        <translation>группа: \1 в новом тексте — то, что она нашла</translation>
    </message>
</context>
<context>
    <name>Runs</name>
    <message>
        <source>An undo was interrupted; what it left can still be taken back</source>
        <translation>Отмена была прервана; оставшееся ещё можно вернуть</translation>
    </message>
    <message>
        <source>The run of %1 was interrupted; what it renamed can be taken back</source>
        <translation>Запуск %1 был прерван; прежние имена можно вернуть</translation>
    </message>
    <message>
        <source>This run cannot be undone</source>
        <translation>Этот запуск нельзя отменить</translation>
    </message>
    <message>
        <source>The last renames of this run cannot be undone: %1</source>
        <translation>Последние переименования этого запуска нельзя отменить: %1</translation>
    </message>
    <message>
        <source>%1 folders</source>
        <translation>Папок: %1</translation>
    </message>
    <message>
        <source>Take back 1 rename of %1 in %2</source>
        <translation>Вернуть 1 прежнее имя (запуск %1, папка %2)</translation>
    </message>
    <message>
        <source>Take back %1 renames of %2 in %3</source>
        <translation>Вернуть прежние имена: %1 (запуск %2, папка %3)</translation>
    </message>
    <message>
        <source>Another window of the program is at this run.</source>
        <translation>С этим запуском сейчас работает другое окно программы.</translation>
    </message>
    <message>
        <source>This run is of another machine, or of a newer version of the program.</source>
        <translation>Этот запуск сделан на другом компьютере или более новой версией программы.</translation>
    </message>
    <message>
        <source>A later run renamed some of these files. Take that one back first.</source>
        <translation>Более поздний запуск переименовал некоторые из этих файлов. Сначала отмените его.</translation>
    </message>
    <message>
        <source>Nothing of this run is left to be taken back.</source>
        <translation>В этом запуске больше нечего возвращать.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Отменить</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Taking back started</source>
        <translation>Возврат имён начат</translation>
    </message>
    <message>
        <source>Could not take back file &apos;%1&apos;: %2</source>
        <translation>Не удалось вернуть имя файлу &apos;%1&apos;: %2</translation>
    </message>
    <message>
        <source>Take back %1 renames of %2 in %3 folders</source>
        <translation>Вернуть прежние имена: %1 (запуск %2, папок: %3)</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Запуски</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Когда</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Переименовано</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Папка</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Состояние</translation>
    </message>
    <message>
        <source>partly taken back</source>
        <translation>отменён частично</translation>
    </message>
    <message>
        <source>taken back</source>
        <translation>отменён</translation>
    </message>
    <message>
        <source>complete</source>
        <translation>завершён</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>остановлен вами</translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>прерван</translation>
    </message>
    <message>
        <source>in hand</source>
        <translation>выполняется</translation>
    </message>
    <message>
        <source>of another machine</source>
        <translation>с другого компьютера</translation>
    </message>
    <message>
        <source>of a newer version</source>
        <translation>из более новой версии</translation>
    </message>
    <message>
        <source>unreadable</source>
        <translation>не читается</translation>
    </message>
    <message>
        <source>%1, touched by a later run</source>
        <translation>%1, затронут более поздним запуском</translation>
    </message>
    <message>
        <source>The run of %1 renamed some of these files. Take that one back first.</source>
        <translation>Запуск %1 переименовал некоторые из этих файлов. Сначала отмените его.</translation>
    </message>
    <message>
        <source>Take back</source>
        <translation>Отменить запуск</translation>
    </message>
    <message>
        <source>Show files</source>
        <translation>Показать файлы</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>Забыть</translation>
    </message>
    <message>
        <source>Forget all</source>
        <translation>Забыть все</translation>
    </message>
    <message>
        <source>Forget all runs? The files stay as they are, and no run can be taken back any more.</source>
        <translation>Забыть все запуски? Файлы останутся как есть, и ни один запуск больше нельзя будет отменить.</translation>
    </message>
    <message>
        <source>Files of the Run of %1</source>
        <translation>Файлы запуска %1</translation>
    </message>
    <message>
        <source>Old name</source>
        <translation>Старое имя</translation>
    </message>
    <message>
        <source>New name</source>
        <translation>Новое имя</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Сейчас</translation>
    </message>
    <message>
        <source>has its new name</source>
        <translation>носит новое имя</translation>
    </message>
    <message>
        <source>has its old name</source>
        <translation>носит старое имя</translation>
    </message>
    <message>
        <source>another file is there</source>
        <translation>там другой файл</translation>
    </message>
    <message>
        <source>is not there</source>
        <translation>отсутствует</translation>
    </message>
    <message>
        <source>Runs…</source>
        <translation>Запуски…</translation>
    </message>
    <message>
        <source>This run was interrupted; &quot;Runs…&quot; can finish it, too</source>
        <translation>Этот запуск был прерван; через «Запуски…» его можно и завершить</translation>
    </message>
    <message>
        <source>This run was to rename all files or none, and was interrupted. Finish it, put everything back, or leave the files as they are.</source>
        <translation>Этот запуск должен был переименовать все файлы или ни одного и был прерван. Завершите его, верните всё или оставьте файлы как есть.</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Вернуть</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Завершить</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Оставить</translation>
    </message>
    <message>
        <source>Finishing a run started</source>
        <translation>Завершение запуска начато</translation>
    </message>
    <message>
        <source>The run of %1 was interrupted; &quot;Runs…&quot; can finish it or put it back</source>
        <translation>Запуск %1 был прерван; через «Запуски…» можно завершить его или вернуть всё</translation>
    </message>
</context>
<context>
    <name>SortMenu</name>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Путь</translation>
    </message>
    <message>
        <source>Extension</source>
        <translation>Расширение</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Размер</translation>
    </message>
    <message>
        <source>Time of modification</source>
        <translation>Время изменения</translation>
    </message>
    <message>
        <source>Order of adding</source>
        <translation>Порядок добавления</translation>
    </message>
    <message>
        <source>%1, ascending</source>
        <translation>%1, по возрастанию</translation>
    </message>
    <message>
        <source>%1, descending</source>
        <translation>%1, по убыванию</translation>
    </message>
</context>
<context>
    <name>TrayIcon</name>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Восстановить</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>В&amp;ыход</translation>
    </message>
</context>
<context>
    <name>VersionCheck</name>
    <message>
        <source>Data transmission failure</source>
        <translation>Ошибка передачи данных</translation>
    </message>
    <message>
        <source>Version check failed</source>
        <translation>Не удалось проверить версию</translation>
    </message>
    <message>
        <source>Error connecting to server.</source>
        <translation>Ошибка подключения к серверу.</translation>
    </message>
    <message>
        <source>Please check manually at:</source>
        <translation>Проверьте вручную по адресу:</translation>
    </message>
    <message>
        <source>There is a new version available!</source>
        <translation>Доступна новая версия!</translation>
    </message>
    <message>
        <source>Would you like to download it now?</source>
        <translation>Хотите загрузить её сейчас?</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Загрузить</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Позже</translation>
    </message>
    <message>
        <source>What&apos;s new?</source>
        <translation>Что нового?</translation>
    </message>
    <message>
        <source>Skip Version</source>
        <translation>Пропустить версию</translation>
    </message>
    <message>
        <source>You are using the latest version.</source>
        <translation>Вы используете последнюю версию.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
</context>
</TS>
