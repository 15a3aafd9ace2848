<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="uk_UA" sourcelanguage="en">
<context>
    <name>AddButton</name>
    <message>
        <source>There are no files on the clipboard</source>
        <translation>У буфері обміну немає файлів</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Додати теку</translation>
    </message>
    <message>
        <source>Add files</source>
        <translation>Додати файли</translation>
    </message>
    <message>
        <source>Add files…</source>
        <translation>Додати файли…</translation>
    </message>
    <message>
        <source>Add folder…</source>
        <translation>Додати теку…</translation>
    </message>
</context>
<context>
    <name>AllOrNothing</name>
    <message>
        <source>All or nothing</source>
        <translation>Усе або нічого</translation>
    </message>
    <message>
        <source>All or nothing: a run renames every file of the list, or none</source>
        <translation>Усе або нічого: запуск перейменовує всі файли списку або жодного</translation>
    </message>
    <message>
        <source>%1: nothing will be renamed, as %2 cannot be</source>
        <translation>%1; нічого не буде перейменовано, неможливо: %2</translation>
    </message>
    <message>
        <source>New names so far: %1 of %2. Put everything back, or keep what is done?</source>
        <translation>Нових назв поки що: %1 з %2. Повернути все чи залишити зроблене?</translation>
    </message>
    <message>
        <source>Put everything back</source>
        <translation>Повернути все</translation>
    </message>
    <message>
        <source>Keep what is done</source>
        <translation>Залишити зроблене</translation>
    </message>
    <message>
        <source>Kept</source>
        <extracomment>of the report: files that have the name already which the rules make; a number follows</extracomment>
        <translation>Без змін</translation>
    </message>
    <message>
        <source>Rename what can be</source>
        <translation>Перейменувати що можна</translation>
    </message>
    <message>
        <source>Nothing was renamed, as not every file can be.</source>
        <translation>Нічого не перейменовано, бо перейменувати можна не всі файли.</translation>
    </message>
    <message>
        <source>Nothing was renamed: one file failed, and the others have their old names again.</source>
        <translation>Нічого не перейменовано: один файл перейменувати не вдалося, решта знову має старі назви.</translation>
    </message>
    <message>
        <source>Nothing was renamed: the run was cancelled.</source>
        <translation>Нічого не перейменовано: запуск зупинено.</translation>
    </message>
    <message>
        <source>The run could not be put back as a whole; files that do not have their old names: %1</source>
        <translation>Не вдалося повернути все; файли без старих назв: %1</translation>
    </message>
    <message>
        <source>Nothing was renamed: the journal of the run cannot be written.</source>
        <translation>Нічого не перейменовано: журнал запуску неможливо записати.</translation>
    </message>
    <message>
        <source>The run is not finished yet.</source>
        <translation>Запуск ще не завершено.</translation>
    </message>
    <message>
        <source>Could not put back file &apos;%1&apos;: it is called &apos;%2&apos;</source>
        <translation>Не вдалося повернути назву файлу &apos;%1&apos;: він називається &apos;%2&apos;</translation>
    </message>
</context>
<context>
    <name>DialogNotice</name>
    <message>
        <source>Don&apos;t show this message again.</source>
        <translation>Більше не показувати це повідомлення.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрити</translation>
    </message>
    <message>
        <source>Advice</source>
        <translation>Порада</translation>
    </message>
</context>
<context>
    <name>DialogSettings</name>
    <message>
        <source>Global Settings</source>
        <translation>Глобальні налаштування</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Загальні</translation>
    </message>
    <message>
        <source>Add-ons</source>
        <translation>Доповнення</translation>
    </message>
    <message>
        <source>Localisation</source>
        <translation>Локалізація</translation>
    </message>
    <message>
        <source>Donate</source>
        <translation>Пожертвувати</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Інформація</translation>
    </message>
    <message>
        <source>Requires registry entry</source>
        <translation>Потрібен запис у реєстрі</translation>
    </message>
    <message>
        <source>Load on system start-up</source>
        <translation>Запускати разом із системою</translation>
    </message>
    <message>
        <source>Minimize on start</source>
        <translation>Згортати під час запуску</translation>
    </message>
    <message>
        <source>Disable splash screen</source>
        <translation>Вимкнути заставку під час запуску</translation>
    </message>
    <message>
        <source>Restore window layout</source>
        <translation>Відновлювати компонування вікна</translation>
    </message>
    <message>
        <source>Restore window geometry</source>
        <translation>Відновлювати розмір і розташування вікна</translation>
    </message>
    <message>
        <source>Minimize to tray icon</source>
        <translation>Згортати в трей</translation>
    </message>
    <message>
        <source>Automatically check for new version</source>
        <translation>Автоматично перевіряти наявність нової версії</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>Перевірити зараз</translation>
    </message>
    <message>
        <source>Plugins</source>
        <translation>Плагіни</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Код</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Мова</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Країна</translation>
    </message>
    <message>
        <source>Translation: Kavrondel</source>
        <translation>Переклад: Kavrondel</translation>
    </message>
    <message>
        <source>Support this project</source>
        <translation>Підтримайте цей проєкт</translation>
    </message>
    <message>
        <source>This application is freeware and will always remain free. </source>
        <translation>Ця програма безкоштовна і завжди такою залишатиметься. </translation>
    </message>
    <message>
        <source>By making a small contribution you can help us in developing, upgrading and maintaining our products.</source>
        <translation>Зробивши невеликий внесок, ви допоможете нам розробляти, оновлювати й підтримувати наші продукти.</translation>
    </message>
    <message>
        <source>Application Directory</source>
        <translation>Тека програми</translation>
    </message>
    <message>
        <source>Application Data Directory</source>
        <translation>Тека даних програми</translation>
    </message>
    <message>
        <source>Visit our website</source>
        <translation>Відвідати наш сайт</translation>
    </message>
    <message>
        <source>Send us feedback</source>
        <translation>Надіслати нам відгук</translation>
    </message>
    <message>
        <source>&lt;b style=&apos;color:#888&apos;&gt;Made by Kavrondel&lt;/b&gt;</source>
        <translation>&lt;b style=&apos;color:#888&apos;&gt;Розроблено Kavrondel&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Зберегти</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Скасувати</translation>
    </message>
    <message>
        <source>The command completed successfully.</source>
        <translation>Команду успішно виконано.</translation>
    </message>
    <message>
        <source>The command failed to execute.</source>
        <translation>Не вдалося виконати команду.</translation>
    </message>
    <message>
        <source>Make sure you have administrator rights.</source>
        <translation>Переконайтеся, що ви маєте права адміністратора.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрити</translation>
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
        <translation>Мова</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Країна</translation>
    </message>
    <message>
        <source>Automatically check for new versions</source>
        <translation>Автоматично перевіряти наявність нових версій</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Далі</translation>
    </message>
    <message>
        <source>We would like to thank you for your confidence and hope you&apos;ll enjoy this software.</source>
        <translation>Дякуємо вам за довіру й сподіваємося, що ця програма вам сподобається.</translation>
    </message>
    <message>
        <source>Discover more products from us:</source>
        <translation>Ознайомтеся з іншими нашими продуктами:</translation>
    </message>
    <message>
        <source>We are looking for native speaking translators.</source>
        <translation>Ми шукаємо перекладачів — носіїв мови.</translation>
    </message>
    <message>
        <source>Please contact us at: </source>
        <translation>Зв’яжіться з нами за адресою: </translation>
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
        <translation>Пронумерувати фотографії</translation>
    </message>
    <message>
        <source>Blanks for underscores</source>
        <translation>Пробіли замість підкреслень</translation>
    </message>
    <message>
        <source>Tidy upper and lower case</source>
        <translation>Упорядкувати великі й малі літери</translation>
    </message>
    <message>
        <source>Without camera prefixes</source>
        <translation>Без префіксів камери</translation>
    </message>
    <message>
        <source>Dates as 2024-01-31</source>
        <translation>Дати у вигляді 2024-01-31</translation>
    </message>
    <message>
        <source>Track numbers with two digits</source>
        <translation>Двозначні номери доріжок</translation>
    </message>
    <message>
        <source>&quot;Title - Artist&quot; for &quot;Artist - Title&quot;</source>
        <translation>«Назва - Виконавець» замість «Виконавець - Назва»</translation>
    </message>
</context>
<context>
    <name>ExplorerModel</name>
    <message>
        <source>Name</source>
        <translation>Назва</translation>
    </message>
</context>
<context>
    <name>Fates</name>
    <message>
        <source>the file is not there</source>
        <translation>файл не знайдено</translation>
    </message>
    <message>
        <source>the new name is empty or only dots</source>
        <translation>нова назва порожня або складається лише з крапок</translation>
    </message>
    <message>
        <source>there is no such folder</source>
        <translation>такої теки немає</translation>
    </message>
    <message>
        <source>the file system does not take the new name</source>
        <translation>файлова система не приймає нову назву</translation>
    </message>
    <message>
        <source>the new name is too long</source>
        <translation>нова назва задовга</translation>
    </message>
    <message>
        <source>nothing can be renamed in this folder</source>
        <translation>у цій теці не можна перейменовувати</translation>
    </message>
    <message>
        <source>the new name holds half a character</source>
        <translation>нова назва містить половину символу</translation>
    </message>
    <message>
        <source>the system refused</source>
        <translation>система відмовила</translation>
    </message>
    <message>
        <source>the name is taken</source>
        <translation>назва вже зайнята</translation>
    </message>
    <message>
        <source>row %1 takes the name %2</source>
        <translation>рядок %1 отримує назву %2</translation>
    </message>
    <message>
        <source>row %1 still has the name %2</source>
        <translation>рядок %1 ще має назву %2</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>Файлів: 1</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>Файлів: %1</translation>
    </message>
    <message>
        <source>1 keeps its name</source>
        <translation>без змін: 1</translation>
    </message>
    <message>
        <source>%1 keep their names</source>
        <translation>без змін: %1</translation>
    </message>
    <message>
        <source>checking…</source>
        <translation>перевірка…</translation>
    </message>
    <message>
        <source>Go to the next row in trouble (F8)</source>
        <translation>До наступного проблемного рядка (F8)</translation>
    </message>
    <message>
        <source>%1, %2 selected</source>
        <translation>%1, вибрано: %2</translation>
    </message>
    <message>
        <source>%1: %2 will be renamed, %3, %4 cannot</source>
        <translation>%1; зміниться: %2, %3, неможливо: %4</translation>
    </message>
    <message>
        <source>%1: %2 will be renamed, %3, %4 cannot, %5 unknown</source>
        <translation>%1; зміниться: %2, %3, неможливо: %4, невідомо: %5</translation>
    </message>
    <message>
        <source>Keeps its name.</source>
        <translation>Назва не змінюється.</translation>
    </message>
    <message>
        <source>Cannot be told before the run.</source>
        <translation>До перейменування передбачити неможливо.</translation>
    </message>
    <message>
        <source>Stays: %1.</source>
        <translation>Залишиться як є: %1.</translation>
    </message>
    <message>
        <source>Moves to the folder %1.</source>
        <translation>Буде переміщено до теки %1.</translation>
    </message>
    <message>
        <source>The new name leads to the folder %1.</source>
        <translation>Нова назва веде до теки %1.</translation>
    </message>
    <message>
        <source>Not renamed: %1.</source>
        <translation>Не перейменовано: %1.</translation>
    </message>
    <message>
        <source>Show details…</source>
        <translation>Показати подробиці…</translation>
    </message>
    <message>
        <source>Not Renamed</source>
        <translation>Не перейменовано</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Назва</translation>
    </message>
    <message>
        <source>New name</source>
        <translation>Нова назва</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Тека</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копіювати</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрити</translation>
    </message>
    <message>
        <source>another file has its name</source>
        <translation>його назву має інший файл</translation>
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
        <translation>Додати</translation>
    </message>
    <message>
        <source>Active Rules</source>
        <translation>Активні правила</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>Правило</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Властивості</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>Очистити список</translation>
    </message>
    <message>
        <source>File List</source>
        <translation>Список файлів</translation>
    </message>
    <message>
        <source>Name Filter</source>
        <translation>Фільтр назв</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Очистити</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Попередній перегляд</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Перейменувати</translation>
    </message>
    <message>
        <source>Show full path</source>
        <translation>Показувати повний шлях</translation>
    </message>
    <message>
        <source>Application Log</source>
        <translation>Журнал програми</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Час</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Повідомлення</translation>
    </message>
    <message>
        <source>Save logs</source>
        <translation>Зберігати журнал</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Зберігати</translation>
    </message>
    <message>
        <source>Include debug messages</source>
        <translation>Включати налагоджувальні повідомлення</translation>
    </message>
    <message>
        <source>Debug</source>
        <translation>Налагодження</translation>
    </message>
    <message>
        <source>Open log directory</source>
        <translation>Відкрити теку журналу</translation>
    </message>
    <message>
        <source>Global Settings</source>
        <translation>Глобальні налаштування</translation>
    </message>
    <message>
        <source>File Explorer</source>
        <translation>Провідник файлів</translation>
    </message>
    <message>
        <source>Please wait</source>
        <translation>Будь ласка, зачекайте</translation>
    </message>
    <message>
        <source>Acquire files</source>
        <translation>Збирання файлів</translation>
    </message>
    <message>
        <source>File renaming started</source>
        <translation>Розпочато перейменування файлів</translation>
    </message>
    <message>
        <source>Could not rename file</source>
        <translation>Не вдалося перейменувати файл</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Усього</translation>
    </message>
    <message>
        <source>Processed</source>
        <translation>Оброблено</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Не вдалося</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Звіт</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрити</translation>
    </message>
    <message>
        <source>Please support us if you like this software and want to keep our service alive.</source>
        <translation>Якщо вам подобається ця програма і ви хочете, щоб наш сервіс працював і надалі, підтримайте нас.</translation>
    </message>
    <message>
        <source>Thank you!</source>
        <translation>Дякуємо!</translation>
    </message>
    <message>
        <source>Application has been minimized.</source>
        <translation>Програму згорнуто.</translation>
    </message>
    <message>
        <source>Click the tray icon to show.</source>
        <translation>Щоб показати вікно, клацніть значок у треї.</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Непрозорість</translation>
    </message>
    <message>
        <source>Stay on Top</source>
        <translation>Поверх усіх вікон</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Перемістити вгору</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Прибрати</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Перемістити вниз</translation>
    </message>
    <message>
        <source>Undo the last run</source>
        <translation>Скасувати останній запуск</translation>
    </message>
    <message>
        <source>Undo, redo and earlier runs</source>
        <translation>Скасування, повторення та попередні запуски</translation>
    </message>
    <message>
        <source>Add files and folders</source>
        <translation>Додати файли й теки</translation>
    </message>
    <message>
        <source>Sort the files</source>
        <translation>Упорядкувати файли</translation>
    </message>
    <message>
        <source>Drop files or folders here, or press Ctrl+O</source>
        <translation>Перетягніть сюди файли або теки чи натисніть Ctrl+O</translation>
    </message>
    <message>
        <source>Choose a kind of rule above, fill in its fields and press &quot;%1&quot;</source>
        <extracomment>%1 is the text of the button &quot;Add&quot;</extracomment>
        <translation>Виберіть вище вид правила, заповніть його поля й натисніть «%1»</translation>
    </message>
</context>
<context>
    <name>Places</name>
    <message>
        <source>Home</source>
        <translation>Домашня тека</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Стільниця</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Зображення</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Музика</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Документи</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>Завантаження</translation>
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
        <translation>Тека</translation>
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
        <translation>Час очікування операції із сокетом вичерпано</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>Ви&amp;брати все</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>&amp;Збільшити</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>З&amp;меншити</translation>
    </message>
</context>
<context>
    <name>QDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Скасувати</translation>
    </message>
</context>
<context>
    <name>QDockWidget</name>
    <message>
        <source>Float</source>
        <translation>Відкріпити</translation>
    </message>
    <message>
        <source>Undocks and re-attaches the dock widget</source>
        <translation>Відкріплює і знову закріплює панель</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрити</translation>
    </message>
    <message>
        <source>Closes the dock widget</source>
        <translation>Закриває панель</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Видалити</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;Нова тека</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ві&amp;дкрити</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Перейменувати</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Зберегти</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Усі файли (*)</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Перейти до докладного вигляду</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Перейти до вигляду списку</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Створити нову теку</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Створити нову теку</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Докладний вигляд</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>&amp;Назва файлу:</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Файли</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Тип файлів:</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Вперед</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Перейти назад</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Перейти вперед</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Перейти до батьківської теки</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Вигляд списку</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Список місць і закладок</translation>
    </message>
    <message>
        <source>Look in:</source>
        <translation>Шукати в:</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Батьківська тека</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>Показувати при&amp;ховані файли</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Бічна панель</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Тека:</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 вже існує.
Замінити файл?</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
Файл не знайдено.
Перевірте назву файлу.</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Показати </translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>Ви&amp;брати</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>Теки</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Теку не знайдено.
Перевірте, чи правильно вказано назву.</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Computer</source>
        <translation>Комп’ютер</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Назва</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Розмір</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Тип</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Дата зміни</translation>
    </message>
</context>
<context>
    <name>QHttp</name>
    <message>
        <source>Connection refused</source>
        <translation>З’єднання відхилено</translation>
    </message>
    <message>
        <source>Connection closed</source>
        <translation>З’єднання закрито</translation>
    </message>
    <message>
        <source>Host %1 not found</source>
        <translation>Вузол %1 не знайдено</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Скасувати</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Повторити</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Вирізати</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Копіювати</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Вст&amp;авити</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Видалити</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Вибрати все</translation>
    </message>
</context>
<context>
    <name>QNativeSocketEngine</name>
    <message>
        <source>Host unreachable</source>
        <translation>Вузол недоступний</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>Мережа недоступна</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>Гаразд</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Так</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрити</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Повторити</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ігнорувати</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Скасувати</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Відкрити</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Зберегти</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Ні</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Прокрутити сюди</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Лівий край</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>На початок</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Правий край</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>У кінець</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>На сторінку ліворуч</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>На сторінку вгору</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>На сторінку праворуч</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>На сторінку вниз</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Прокрутити ліворуч</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Прокрутити вгору</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Прокрутити праворуч</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Прокрутити вниз</translation>
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
        <translation>Вгору</translation>
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
        <translation>&amp;Копіювати</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Копіювати &amp;адресу посилання</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Вибрати все</translation>
    </message>
</context>
<context>
    <name>RuleEdit</name>
    <message>
        <source>Apply</source>
        <translation>Застосувати</translation>
    </message>
    <message>
        <source>Put these values in the place of the rule</source>
        <translation>Поставити ці значення на місце правила</translation>
    </message>
    <message>
        <source>Leave the rule as it is</source>
        <translation>Залишити правило як є</translation>
    </message>
</context>
<context>
    <name>RuleSetDialog</name>
    <message>
        <source>Rule sets</source>
        <translation>Набори правил</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Перейменувати</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Видалити</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Імпорт…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Експорт…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрити</translation>
    </message>
</context>
<context>
    <name>RuleSetMenu</name>
    <message>
        <source>Rule sets</source>
        <translation>Набори правил</translation>
    </message>
    <message>
        <source>Save the active rules under a name, and take them up again</source>
        <translation>Зберегти активні правила під назвою та використати їх знову</translation>
    </message>
    <message>
        <source>The rules were changed since.</source>
        <translation>Відтоді правила змінилися.</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>Останні використані</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Зберегти</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Зберегти як…</translation>
    </message>
    <message>
        <source>Manage…</source>
        <translation>Керувати…</translation>
    </message>
    <message>
        <source>Open file…</source>
        <translation>Відкрити файл…</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>Приклади</translation>
    </message>
</context>
<context>
    <name>RuleSetQuestions</name>
    <message>
        <source>Close</source>
        <translation>Закрити</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Скасувати</translation>
    </message>
    <message>
        <source>Rule sets</source>
        <translation>Набори правил</translation>
    </message>
    <message>
        <source>The active rules are not saved. Replace them?</source>
        <translation>Активні правила не збережено. Замінити їх?</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Замінити</translation>
    </message>
    <message>
        <source>There is a rule set &quot;%1&quot; already. Replace it?</source>
        <translation>Набір правил «%1» уже існує. Замінити його?</translation>
    </message>
    <message>
        <source>Delete the rule set &quot;%1&quot;?</source>
        <translation>Видалити набір правил «%1»?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Видалити</translation>
    </message>
    <message>
        <source>Save rule set</source>
        <translation>Зберегти набір правил</translation>
    </message>
    <message>
        <source>Name of the rule set</source>
        <translation>Назва набору правил</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Зберегти</translation>
    </message>
    <message>
        <source>Open rule set</source>
        <translation>Відкрити набір правил</translation>
    </message>
    <message>
        <source>No rules were loaded from %1:</source>
        <translation>Правила не завантажено з файлу %1:</translation>
    </message>
    <message>
        <source>The rule set could not be saved:</source>
        <translation>Не вдалося зберегти набір правил:</translation>
    </message>
    <message>
        <source>The rule set could not be deleted:</source>
        <translation>Не вдалося видалити набір правил:</translation>
    </message>
    <message>
        <source>The rule set could not be renamed:</source>
        <translation>Не вдалося перейменувати набір правил:</translation>
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
        <translation>має бути об’єктом</translation>
    </message>
    <message>
        <source>too large</source>
        <translation>завеликий файл</translation>
    </message>
    <message>
        <source>line %1 is no JSON</source>
        <translation>рядок %1 — не JSON</translation>
    </message>
    <message>
        <source>must be a text of at most %1 characters</source>
        <translation>має бути текстом завдовжки не більше %1 символів</translation>
    </message>
    <message>
        <source>must be a name, without blanks at its ends</source>
        <translation>має бути назвою без пробілів на початку й у кінці</translation>
    </message>
    <message>
        <source>must be a whole number from %1 to %2</source>
        <translation>має бути цілим числом від %1 до %2</translation>
    </message>
    <message>
        <source>must be true or false</source>
        <translation>має бути true або false</translation>
    </message>
    <message>
        <source>must be %1</source>
        <translation>має бути %1</translation>
    </message>
    <message>
        <source>must be one of %1</source>
        <translation>має бути одним зі значень: %1</translation>
    </message>
    <message>
        <source>must be a list of at most %1 rules</source>
        <translation>має бути списком не більше ніж із %1 правил</translation>
    </message>
    <message>
        <source>a newer version of the program wrote this file</source>
        <translation>цей файл записано новішою версією програми</translation>
    </message>
    <message>
        <source>no such field is known</source>
        <translation>таке поле невідоме</translation>
    </message>
    <message>
        <source>is missing</source>
        <translation>бракує цього поля</translation>
    </message>
    <message>
        <source>is no file</source>
        <translation>це не файл</translation>
    </message>
    <message>
        <source>another rule set has this name</source>
        <translation>інший набір правил має цю назву</translation>
    </message>
    <message>
        <source>the file with the old name could not be removed</source>
        <translation>не вдалося видалити файл зі старою назвою</translation>
    </message>
</context>
<context>
    <name>Rules</name>
    <message>
        <source>Direction</source>
        <translation>Напрямок</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Від початку</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Від кінця</translation>
    </message>
    <message>
        <source>Change Case</source>
        <translation>Змінити регістр</translation>
    </message>
    <message>
        <source>Uppercase letters</source>
        <translation>Великі літери</translation>
    </message>
    <message>
        <source>Lowercase letters</source>
        <translation>Малі літери</translation>
    </message>
    <message>
        <source>Uppercase first letter of each word</source>
        <translation>Кожне слово з великої літери</translation>
    </message>
    <message>
        <source>Ignore File Extension</source>
        <translation>Ігнорувати розширення файлу</translation>
    </message>
    <message>
        <source>Enumerate</source>
        <translation>Пронумерувати</translation>
    </message>
    <message>
        <source>Start Number</source>
        <translation>Початковий номер</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Позиція</translation>
    </message>
    <message>
        <source>Leading Zeros</source>
        <translation>Нулі на початку</translation>
    </message>
    <message>
        <source>Insert Text</source>
        <translation>Вставити текст</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Текст</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Замінити</translation>
    </message>
    <message>
        <source>Replace what</source>
        <translation>Що замінити</translation>
    </message>
    <message>
        <source>Replace with</source>
        <translation>Чим замінити</translation>
    </message>
    <message>
        <source>Regular Expression</source>
        <translation>Регулярний вираз</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Обрізати</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Довжина</translation>
    </message>
    <message>
        <source>No valid pattern: it will change nothing.</source>
        <translation>Неприпустимий шаблон: він нічого не змінить.</translation>
    </message>
    <message>
        <source>This pattern would take too long: it will change nothing.</source>
        <translation>Цей шаблон забрав би забагато часу: він нічого не змінить.</translation>
    </message>
    <message>
        <source>Upper and lower case differ; as much as possible is found.</source>
        <translation>Великі й малі літери розрізняються; знаходиться якомога довший фрагмент.</translation>
    </message>
    <message>
        <source>any character</source>
        <translation>будь-який символ</translation>
    </message>
    <message>
        <source>the dot itself</source>
        <translation>сама крапка</translation>
    </message>
    <message>
        <source>one of these characters</source>
        <translation>один із цих символів</translation>
    </message>
    <message>
        <source>any other character</source>
        <translation>будь-який інший символ</translation>
    </message>
    <message>
        <source>a digit</source>
        <translation>цифра</translation>
    </message>
    <message>
        <source>a letter, a digit or _</source>
        <translation>літера, цифра або _</translation>
    </message>
    <message>
        <source>a blank</source>
        <translation>пробіл</translation>
    </message>
    <message>
        <source>any number of a, also none</source>
        <translation>скільки завгодно літер a, зокрема жодної</translation>
    </message>
    <message>
        <source>one a or more</source>
        <translation>одна літера a або більше</translation>
    </message>
    <message>
        <source>one a or none</source>
        <translation>одна літера a або жодної</translation>
    </message>
    <message>
        <source>two to four a</source>
        <translation>від двох до чотирьох літер a</translation>
    </message>
    <message>
        <source>either ab or cd</source>
        <translation>або ab, або cd</translation>
    </message>
    <message>
        <source>the beginning of the name</source>
        <translation>початок назви</translation>
    </message>
    <message>
        <source>the end of the name</source>
        <translation>кінець назви</translation>
    </message>
    <message>
        <source>a group: \1 in the new text is what it found</source>
        <translation>група: \1 у новому тексті — те, що вона знайшла</translation>
    </message>
</context>
<context>
    <name>Runs</name>
    <message>
        <source>An undo was interrupted; what it left can still be taken back</source>
        <translation>Скасування було перервано; решту ще можна повернути</translation>
    </message>
    <message>
        <source>The run of %1 was interrupted; what it renamed can be taken back</source>
        <translation>Запуск %1 було перервано; старі назви можна повернути</translation>
    </message>
    <message>
        <source>This run cannot be undone</source>
        <translation>Цей запуск не можна скасувати</translation>
    </message>
    <message>
        <source>The last renames of this run cannot be undone: %1</source>
        <translation>Останні перейменування цього запуску не можна скасувати: %1</translation>
    </message>
    <message>
        <source>%1 folders</source>
        <translation>Тек: %1</translation>
    </message>
    <message>
        <source>Take back 1 rename of %1 in %2</source>
        <translation>Повернути 1 стару назву (запуск %1, тека %2)</translation>
    </message>
    <message>
        <source>Take back %1 renames of %2 in %3</source>
        <translation>Повернути старі назви: %1 (запуск %2, тека %3)</translation>
    </message>
    <message>
        <source>Another window of the program is at this run.</source>
        <translation>Із цим запуском зараз працює інше вікно програми.</translation>
    </message>
    <message>
        <source>This run is of another machine, or of a newer version of the program.</source>
        <translation>Цей запуск зроблено на іншому комп’ютері або новішою версією програми.</translation>
    </message>
    <message>
        <source>A later run renamed some of these files. Take that one back first.</source>
        <translation>Пізніший запуск перейменував деякі з цих файлів. Спочатку скасуйте його.</translation>
    </message>
    <message>
        <source>Nothing of this run is left to be taken back.</source>
        <translation>У цьому запуску більше нічого повертати.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Скасувати</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Повторити</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрити</translation>
    </message>
    <message>
        <source>Taking back started</source>
        <translation>Повернення назв розпочато</translation>
    </message>
    <message>
        <source>Could not take back file &apos;%1&apos;: %2</source>
        <translation>Не вдалося повернути назву файлу &apos;%1&apos;: %2</translation>
    </message>
    <message>
        <source>Take back %1 renames of %2 in %3 folders</source>
        <translation>Повернути старі назви: %1 (запуск %2, тек: %3)</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Запуски</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Коли</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Перейменовано</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Тека</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Стан</translation>
    </message>
    <message>
        <source>partly taken back</source>
        <translation>скасовано частково</translation>
    </message>
    <message>
        <source>taken back</source>
        <translation>скасовано</translation>
    </message>
    <message>
        <source>complete</source>
        <translation>завершено</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>зупинено вами</translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>перервано</translation>
    </message>
    <message>
        <source>in hand</source>
        <translation>виконується</translation>
    </message>
    <message>
        <source>of another machine</source>
        <translation>з іншого комп’ютера</translation>
    </message>
    <message>
        <source>of a newer version</source>
        <translation>із новішої версії</translation>
    </message>
    <message>
        <source>unreadable</source>
        <translation>не читається</translation>
    </message>
    <message>
        <source>%1, touched by a later run</source>
        <translation>%1, змінено пізнішим запуском</translation>
    </message>
    <message>
        <source>The run of %1 renamed some of these files. Take that one back first.</source>
        <translation>Запуск %1 перейменував деякі з цих файлів. Спочатку скасуйте його.</translation>
    </message>
    <message>
        <source>Take back</source>
        <translation>Скасувати запуск</translation>
    </message>
    <message>
        <source>Show files</source>
        <translation>Показати файли</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>Забути</translation>
    </message>
    <message>
        <source>Forget all</source>
        <translation>Забути всі</translation>
    </message>
    <message>
        <source>Forget all runs? The files stay as they are, and no run can be taken back any more.</source>
        <translation>Забути всі запуски? Файли залишаться як є, і жоден запуск уже не можна буде скасувати.</translation>
    </message>
    <message>
        <source>Files of the Run of %1</source>
        <translation>Файли запуску %1</translation>
    </message>
    <message>
        <source>Old name</source>
        <translation>Стара назва</translation>
    </message>
    <message>
        <source>New name</source>
        <translation>Нова назва</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Зараз</translation>
    </message>
    <message>
        <source>has its new name</source>
        <translation>має нову назву</translation>
    </message>
    <message>
        <source>has its old name</source>
        <translation>має стару назву</translation>
    </message>
    <message>
        <source>another file is there</source>
        <translation>там інший файл</translation>
    </message>
    <message>
        <source>is not there</source>
        <translation>відсутній</translation>
    </message>
    <message>
        <source>Runs…</source>
        <translation>Запуски…</translation>
    </message>
    <message>
        <source>This run was interrupted; &quot;Runs…&quot; can finish it, too</source>
        <translation>Цей запуск було перервано; через «Запуски…» його можна й завершити</translation>
    </message>
    <message>
        <source>This run was to rename all files or none, and was interrupted. Finish it, put everything back, or leave the files as they are.</source>
        <translation>Цей запуск мав перейменувати всі файли або жодного, і його було перервано. Завершіть його, поверніть усе або залиште файли як є.</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Повернути</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Завершити</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Залишити</translation>
    </message>
    <message>
        <source>Finishing a run started</source>
        <translation>Завершення запуску розпочато</translation>
    </message>
    <message>
        <source>The run of %1 was interrupted; &quot;Runs…&quot; can finish it or put it back</source>
        <translation>Запуск %1 було перервано; через «Запуски…» можна завершити його або повернути все</translation>
    </message>
</context>
<context>
    <name>SortMenu</name>
    <message>
        <source>Name</source>
        <translation>Назва</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Шлях</translation>
    </message>
    <message>
        <source>Extension</source>
        <translation>Розширення</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Розмір</translation>
    </message>
    <message>
        <source>Time of modification</source>
        <translation>Час зміни</translation>
    </message>
    <message>
        <source>Order of adding</source>
        <translation>Порядок додавання</translation>
    </message>
    <message>
        <source>%1, ascending</source>
        <translation>%1, за зростанням</translation>
    </message>
    <message>
        <source>%1, descending</source>
        <translation>%1, за спаданням</translation>
    </message>
</context>
<context>
    <name>TrayIcon</name>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Відновити</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>Ви&amp;йти</translation>
    </message>
</context>
<context>
    <name>VersionCheck</name>
    <message>
        <source>Data transmission failure</source>
        <translation>Помилка передавання даних</translation>
    </message>
    <message>
        <source>Version check failed</source>
        <translation>Не вдалося перевірити версію</translation>
    </message>
    <message>
        <source>Error connecting to server.</source>
        <translation>Помилка з’єднання із сервером.</translation>
    </message>
    <message>
        <source>Please check manually at:</source>
        <translation>Перевірте вручну за адресою:</translation>
    </message>
    <message>
        <source>There is a new version available!</source>
        <translation>Доступна нова версія!</translation>
    </message>
    <message>
        <source>Would you like to download it now?</source>
        <translation>Бажаєте завантажити її зараз?</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Завантажити</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Пізніше</translation>
    </message>
    <message>
        <source>What&apos;s new?</source>
        <translation>Що нового?</translation>
    </message>
    <message>
        <source>Skip Version</source>
        <translation>Пропустити версію</translation>
    </message>
    <message>
        <source>You are using the latest version.</source>
        <translation>Ви використовуєте найновішу версію.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрити</translation>
    </message>
</context>
</TS>
