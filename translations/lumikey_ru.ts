<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en">
<context>
    <name>MainWindow</name>
    <message>
        <source>Lumikey</source>
        <translation>Lumikey</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Заголовок</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Свернуть</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Backlight Status</source>
        <translation>Подсветка</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Включена</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Выключена</translation>
    </message>
    <message>
        <source>Brightness Level</source>
        <translation>Яркость</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Яркость</translation>
    </message>
    <message>
        <source>Single Zone Fixed</source>
        <translation>Одна зона</translation>
    </message>
    <message>
        <source>Single Color Selection</source>
        <translation>Цвет всей клавиатуры</translation>
    </message>
    <message>
        <source>Disabled when Effects are selected!</source>
        <translation>Недоступно, пока выбран эффект!</translation>
    </message>
    <message>
        <source>Keyboard preview</source>
        <translation>Вид клавиатуры</translation>
    </message>
    <message>
        <source>Keyboard color</source>
        <translation>Цвет клавиатуры</translation>
    </message>
    <message>
        <source>3 Zones Fixed</source>
        <translation>3 зоны</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Слева</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>По центру</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Справа</translation>
    </message>
    <message>
        <source>Left zone preview</source>
        <translation>Вид левой зоны</translation>
    </message>
    <message>
        <source>Left zone color</source>
        <translation>Цвет левой зоны</translation>
    </message>
    <message>
        <source>Center zone preview</source>
        <translation>Вид центральной зоны</translation>
    </message>
    <message>
        <source>Center zone color</source>
        <translation>Цвет центральной зоны</translation>
    </message>
    <message>
        <source>Right zone preview</source>
        <translation>Вид правой зоны</translation>
    </message>
    <message>
        <source>Right zone color</source>
        <translation>Цвет правой зоны</translation>
    </message>
    <message>
        <source>Stripe</source>
        <translation>Полоса</translation>
    </message>
    <message>
        <source>Touchpad Stripe LED color</source>
        <translation>Цвет светодиодной полосы тачпада</translation>
    </message>
    <message>
        <source>Stripe preview</source>
        <translation>Вид полосы</translation>
    </message>
    <message>
        <source>Stripe color</source>
        <translation>Цвет полосы</translation>
    </message>
    <message>
        <source>Per-Key Keyboard App</source>
        <translation>Подсветка каждой клавиши</translation>
    </message>
    <message>
        <source>Per Key RGB Keyboard App</source>
        <translation>Приложение для RGB каждой клавиши</translation>
    </message>
    <message>
        <source>Per-key keyboard picture</source>
        <translation>Клавиатура с RGB каждой клавиши</translation>
    </message>
    <message>
        <source>Open the per-key keyboard app</source>
        <translation>Открыть приложение для RGB каждой клавиши</translation>
    </message>
    <message>
        <source> Select Keyboard Zone Color:</source>
        <translation> Выберите цвет зоны клавиатуры:</translation>
    </message>
    <message>
        <source>Saturation and value</source>
        <translation>Насыщенность и яркость</translation>
    </message>
    <message>
        <source>Selected Color:</source>
        <translation>Выбранный цвет:</translation>
    </message>
    <message>
        <source>Selected color</source>
        <translation>Выбранный цвет</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Оттенок</translation>
    </message>
    <message>
        <source>RGB:</source>
        <translation>RGB:</translation>
    </message>
    <message>
        <source>RGB color</source>
        <translation>Цвет RGB</translation>
    </message>
    <message>
        <source>HEX:</source>
        <translation>HEX:</translation>
    </message>
    <message>
        <source>HEX color</source>
        <translation>Цвет HEX</translation>
    </message>
    <message>
        <source>Quick Basic Colors:</source>
        <translation>Основные цвета:</translation>
    </message>
    <message>
        <source>Quick basic colors</source>
        <translation>Основные цвета</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Красный</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Белый</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Синий</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Голубой</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Фиолетовый</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Жёлтый</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Зелёный</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Оранжевый</translation>
    </message>
    <message>
        <source>Copy Color</source>
        <translation>Копировать цвет</translation>
    </message>
    <message>
        <source>Paste Color</source>
        <translation>Вставить цвет</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Apply Value</source>
        <translation>Применить</translation>
    </message>
    <message>
        <source>Effects:</source>
        <translation>Эффекты:</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>Эффект</translation>
    </message>
    <message>
        <source>None</source>
        <comment>effect</comment>
        <translation>Нет</translation>
    </message>
    <message>
        <source>Breath</source>
        <translation>Дыхание</translation>
    </message>
    <message>
        <source>Cycle</source>
        <translation>Цикл</translation>
    </message>
    <message>
        <source>Dance</source>
        <translation>Танец</translation>
    </message>
    <message>
        <source>Flash</source>
        <translation>Вспышка</translation>
    </message>
    <message>
        <source>Random Color</source>
        <translation>Случайный цвет</translation>
    </message>
    <message>
        <source>Tempo</source>
        <translation>Темп</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>Волна</translation>
    </message>
    <message>
        <source>Auto turn off:</source>
        <translation>Автовыключение:</translation>
    </message>
    <message>
        <source>Auto turn off after</source>
        <translation>Автовыключение через</translation>
    </message>
    <message>
        <source>5 seconds</source>
        <translation>5 секунд</translation>
    </message>
    <message>
        <source>10 seconds</source>
        <translation>10 секунд</translation>
    </message>
    <message>
        <source>30 seconds</source>
        <translation>30 секунд</translation>
    </message>
    <message>
        <source>1 minute</source>
        <translation>1 минуту</translation>
    </message>
    <message>
        <source>5 minutes</source>
        <translation>5 минут</translation>
    </message>
    <message>
        <source>10 minutes</source>
        <translation>10 минут</translation>
    </message>
    <message>
        <source>15 minutes</source>
        <translation>15 минут</translation>
    </message>
    <message>
        <source>30 minutes</source>
        <translation>30 минут</translation>
    </message>
    <message>
        <source>1 hour</source>
        <translation>1 час</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Параметры</translation>
    </message>
    <message>
        <source>Start with Windows</source>
        <translation>Запускать вместе с Windows</translation>
    </message>
    <message>
        <source>Close button hides instead of closing</source>
        <translation>Кнопка «Закрыть» скрывает окно</translation>
    </message>
    <message>
        <source>Start hidden in system tray</source>
        <translation>Запускать свёрнутым в трей</translation>
    </message>
    <message>
        <source>Mouse keys will also wake auto dim</source>
        <translation>Кнопки мыши тоже включают свет</translation>
    </message>
    <message>
        <source>User Per-Key RGB CLEVO App</source>
        <translation>Приложение CLEVO Per-Key RGB</translation>
    </message>
    <message>
        <source>Enable P75x Stripe LED Control</source>
        <translation>Управлять полосой (P75x)</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>About</source>
        <translation>О программе</translation>
    </message>
    <message>
        <source>Software Version</source>
        <translation>Версия программы</translation>
    </message>
    <message>
        <source>Installed Version:</source>
        <translation>Установленная версия:</translation>
    </message>
    <message>
        <source>Latest Version:</source>
        <translation>Последняя версия:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Описание:</translation>
    </message>
    <message>
        <source>Check for Update</source>
        <translation>Проверить обновления</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Обновить</translation>
    </message>
    <message>
        <source>Saturation %1, value %2</source>
        <translation>Насыщенность %1, яркость %2</translation>
    </message>
    <message>
        <source>Select Left Keyboard Zone Color:</source>
        <translation>Выберите цвет левой зоны клавиатуры:</translation>
    </message>
    <message>
        <source>Select Center Keyboard Zone Color:</source>
        <translation>Выберите цвет центральной зоны клавиатуры:</translation>
    </message>
    <message>
        <source>Select Right Keyboard Zone Color:</source>
        <translation>Выберите цвет правой зоны клавиатуры:</translation>
    </message>
    <message>
        <source>Select Keyboard Color:</source>
        <translation>Выберите цвет клавиатуры:</translation>
    </message>
    <message>
        <source>Select Stripe / LCD Lid Color:</source>
        <translation>Выберите цвет полосы / крышки:</translation>
    </message>
    <message>
        <source>RGB copied</source>
        <translation>RGB скопирован</translation>
    </message>
    <message>
        <source>Hex copied</source>
        <translation>Hex скопирован</translation>
    </message>
    <message>
        <source>Hex # copied</source>
        <translation>Hex с # скопирован</translation>
    </message>
    <message>
        <source>Hex value pasted</source>
        <translation>Значение hex вставлено</translation>
    </message>
    <message>
        <source>Installed: %1</source>
        <translation>Установлена: %1</translation>
    </message>
    <message>
        <source>Latest: %1</source>
        <translation>Последняя: %1</translation>
    </message>
    <message>
        <source>Control Center not installed</source>
        <translation>Control Center не установлен</translation>
    </message>
    <message>
        <source>You do not seem to be using Control Center. For this software to work we need to install a small dll for it to work. Can we install it?.
</source>
        <translation>Похоже, вы не используете Control Center. Для работы программы нужно установить небольшую библиотеку DLL. Установить её?
</translation>
    </message>
    <message>
        <source>Update Information</source>
        <translation>Обновление</translation>
    </message>
    <message>
        <source>There is an update for this software! Do you want to update now?.
</source>
        <translation>Доступно обновление программы! Обновить сейчас?
</translation>
    </message>
    <message>
        <source>There is an update for this software! But to be able to update we need Admin access. Do you want to run this app with admin access so that we can update it automatically?</source>
        <translation>Доступно обновление программы! Для обновления нужны права администратора. Запустить программу от имени администратора, чтобы она обновилась автоматически?</translation>
    </message>
    <message>
        <source>Monitor</source>
        <translation>Монитор</translation>
    </message>
    <message>
        <source>To uninstall Lumikey we need admin access.
Do you allow it?
Lumikey will restart with admin access, after that you should click the uninstall button again.</source>
        <translation>Для удаления Lumikey нужны права администратора.
Разрешить?
Lumikey перезапустится от имени администратора; после этого снова нажмите кнопку «Удалить».</translation>
    </message>
    <message>
        <source>Per Key Install</source>
        <translation>Установка Per-Key RGB</translation>
    </message>
    <message>
        <source>To install the Per-Key RGB App we need Admin access, do you allow it?</source>
        <translation>Для установки приложения для RGB каждой клавиши нужны права администратора. Разрешить?</translation>
    </message>
    <message>
        <source>There is an update! Click the update button.</source>
        <translation>Доступно обновление! Нажмите кнопку «Обновить».</translation>
    </message>
    <message>
        <source>You are running the latest version, there is no update.</source>
        <translation>У вас последняя версия, обновлений нет.</translation>
    </message>
    <message>
        <source>You are running the latest version, there is no update.
</source>
        <translation>У вас последняя версия, обновлений нет.
</translation>
    </message>
    <message>
        <source>Your version is newer then the official latest! Are you a beta tester?</source>
        <translation>Ваша версия новее официальной! Вы бета-тестер?</translation>
    </message>
    <message>
        <source>Your version is newer then the official latest! You are probably a beta tester.
</source>
        <translation>Ваша версия новее официальной! Вероятно, вы бета-тестер.
</translation>
    </message>
    <message>
        <source>Brightness Level: %1%</source>
        <translation>Яркость: %1&#xa0;%</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (set by Dashport)</source>
        <translation>Яркость: %1&#xa0;% (задана Dashport)</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (disabled for Effects)</source>
        <translation>Яркость: %1&#xa0;% (задана эффектом)</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (Auto dim mode)</source>
        <translation>Яркость: %1&#xa0;% (автозатемнение)</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (dimming down)</source>
        <translation>Яркость: %1&#xa0;% (затемнение)</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (dimmed)</source>
        <translation>Яркость: %1&#xa0;% (затемнено)</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Выход</translation>
    </message>
    <message>
        <source>Show Interface</source>
        <translation>Показать окно</translation>
    </message>
    <message>
        <source>English</source>
        <extracomment>The name of your language in itself, by which the installer offers it</extracomment>
        <translation>Русский</translation>
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
        <source>&amp;No</source>
        <translation>&amp;Нет</translation>
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
</context>
</TS>
