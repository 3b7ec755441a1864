<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="uk_UA" sourcelanguage="en">
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
        <translation>Згорнути</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрити</translation>
    </message>
    <message>
        <source>Backlight Status</source>
        <translation>Підсвічування</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Увімкнено</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Вимкнено</translation>
    </message>
    <message>
        <source>Brightness Level</source>
        <translation>Яскравість</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Яскравість</translation>
    </message>
    <message>
        <source>Single Zone Fixed</source>
        <translation>Одна зона</translation>
    </message>
    <message>
        <source>Single Color Selection</source>
        <translation>Колір усієї клавіатури</translation>
    </message>
    <message>
        <source>Disabled when Effects are selected!</source>
        <translation>Недоступно, доки вибрано ефект!</translation>
    </message>
    <message>
        <source>Keyboard preview</source>
        <translation>Вигляд клавіатури</translation>
    </message>
    <message>
        <source>Keyboard color</source>
        <translation>Колір клавіатури</translation>
    </message>
    <message>
        <source>3 Zones Fixed</source>
        <translation>3 зони</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Ліворуч</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>По центру</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Праворуч</translation>
    </message>
    <message>
        <source>Left zone preview</source>
        <translation>Вигляд лівої зони</translation>
    </message>
    <message>
        <source>Left zone color</source>
        <translation>Колір лівої зони</translation>
    </message>
    <message>
        <source>Center zone preview</source>
        <translation>Вигляд центральної зони</translation>
    </message>
    <message>
        <source>Center zone color</source>
        <translation>Колір центральної зони</translation>
    </message>
    <message>
        <source>Right zone preview</source>
        <translation>Вигляд правої зони</translation>
    </message>
    <message>
        <source>Right zone color</source>
        <translation>Колір правої зони</translation>
    </message>
    <message>
        <source>Stripe</source>
        <translation>Смуга</translation>
    </message>
    <message>
        <source>Touchpad Stripe LED color</source>
        <translation>Колір світлодіодної смуги тачпада</translation>
    </message>
    <message>
        <source>Stripe preview</source>
        <translation>Вигляд смуги</translation>
    </message>
    <message>
        <source>Stripe color</source>
        <translation>Колір смуги</translation>
    </message>
    <message>
        <source>Per-Key Keyboard App</source>
        <translation>Підсвічування клавіш</translation>
    </message>
    <message>
        <source>Per Key RGB Keyboard App</source>
        <translation>Програма RGB для кожної клавіші</translation>
    </message>
    <message>
        <source>Per-key keyboard picture</source>
        <translation>Клавіатура з RGB для кожної клавіші</translation>
    </message>
    <message>
        <source>Open the per-key keyboard app</source>
        <translation>Відкрити програму RGB для кожної клавіші</translation>
    </message>
    <message>
        <source> Select Keyboard Zone Color:</source>
        <translation> Виберіть колір зони клавіатури:</translation>
    </message>
    <message>
        <source>Saturation and value</source>
        <translation>Насиченість і яскравість</translation>
    </message>
    <message>
        <source>Selected Color:</source>
        <translation>Вибраний колір:</translation>
    </message>
    <message>
        <source>Selected color</source>
        <translation>Вибраний колір</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Відтінок</translation>
    </message>
    <message>
        <source>RGB:</source>
        <translation>RGB:</translation>
    </message>
    <message>
        <source>RGB color</source>
        <translation>Колір RGB</translation>
    </message>
    <message>
        <source>HEX:</source>
        <translation>HEX:</translation>
    </message>
    <message>
        <source>HEX color</source>
        <translation>Колір HEX</translation>
    </message>
    <message>
        <source>Quick Basic Colors:</source>
        <translation>Основні кольори:</translation>
    </message>
    <message>
        <source>Quick basic colors</source>
        <translation>Основні кольори</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Немає</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Червоний</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Білий</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Синій</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Блакитний</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Фіолетовий</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Жовтий</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Зелений</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Оранжевий</translation>
    </message>
    <message>
        <source>Copy Color</source>
        <translation>Копіювати колір</translation>
    </message>
    <message>
        <source>Paste Color</source>
        <translation>Вставити колір</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Скасувати</translation>
    </message>
    <message>
        <source>Apply Value</source>
        <translation>Застосувати</translation>
    </message>
    <message>
        <source>Effects:</source>
        <translation>Ефекти:</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>Ефект</translation>
    </message>
    <message>
        <source>None</source>
        <comment>effect</comment>
        <translation>Немає</translation>
    </message>
    <message>
        <source>Breath</source>
        <translation>Дихання</translation>
    </message>
    <message>
        <source>Cycle</source>
        <translation>Цикл</translation>
    </message>
    <message>
        <source>Dance</source>
        <translation>Танець</translation>
    </message>
    <message>
        <source>Flash</source>
        <translation>Спалах</translation>
    </message>
    <message>
        <source>Random Color</source>
        <translation>Випадковий колір</translation>
    </message>
    <message>
        <source>Tempo</source>
        <translation>Темп</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>Хвиля</translation>
    </message>
    <message>
        <source>Auto turn off:</source>
        <translation>Автовимкнення:</translation>
    </message>
    <message>
        <source>Auto turn off after</source>
        <translation>Автовимкнення через</translation>
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
        <translation>1 хвилину</translation>
    </message>
    <message>
        <source>5 minutes</source>
        <translation>5 хвилин</translation>
    </message>
    <message>
        <source>10 minutes</source>
        <translation>10 хвилин</translation>
    </message>
    <message>
        <source>15 minutes</source>
        <translation>15 хвилин</translation>
    </message>
    <message>
        <source>30 minutes</source>
        <translation>30 хвилин</translation>
    </message>
    <message>
        <source>1 hour</source>
        <translation>1 годину</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Параметри</translation>
    </message>
    <message>
        <source>Start with Windows</source>
        <translation>Запускати разом із Windows</translation>
    </message>
    <message>
        <source>Close button hides instead of closing</source>
        <translation>Кнопка «Закрити» приховує вікно</translation>
    </message>
    <message>
        <source>Start hidden in system tray</source>
        <translation>Запускати згорнутою в трей</translation>
    </message>
    <message>
        <source>Mouse keys will also wake auto dim</source>
        <translation>Кнопки миші теж вмикають світло</translation>
    </message>
    <message>
        <source>User Per-Key RGB CLEVO App</source>
        <translation>Програма CLEVO Per-Key RGB</translation>
    </message>
    <message>
        <source>Enable P75x Stripe LED Control</source>
        <translation>Керувати смугою (P75x)</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>Видалити</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Про програму</translation>
    </message>
    <message>
        <source>Software Version</source>
        <translation>Версія програми</translation>
    </message>
    <message>
        <source>Installed Version:</source>
        <translation>Установлена версія:</translation>
    </message>
    <message>
        <source>Latest Version:</source>
        <translation>Остання версія:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Опис:</translation>
    </message>
    <message>
        <source>Check for Update</source>
        <translation>Перевірити оновлення</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Оновити</translation>
    </message>
    <message>
        <source>Saturation %1, value %2</source>
        <translation>Насиченість %1, яскравість %2</translation>
    </message>
    <message>
        <source>Select Left Keyboard Zone Color:</source>
        <translation>Виберіть колір лівої зони клавіатури:</translation>
    </message>
    <message>
        <source>Select Center Keyboard Zone Color:</source>
        <translation>Виберіть колір центральної зони клавіатури:</translation>
    </message>
    <message>
        <source>Select Right Keyboard Zone Color:</source>
        <translation>Виберіть колір правої зони клавіатури:</translation>
    </message>
    <message>
        <source>Select Keyboard Color:</source>
        <translation>Виберіть колір клавіатури:</translation>
    </message>
    <message>
        <source>Select Stripe / LCD Lid Color:</source>
        <translation>Виберіть колір смуги / кришки:</translation>
    </message>
    <message>
        <source>RGB copied</source>
        <translation>RGB скопійовано</translation>
    </message>
    <message>
        <source>Hex copied</source>
        <translation>Hex скопійовано</translation>
    </message>
    <message>
        <source>Hex # copied</source>
        <translation>Hex із # скопійовано</translation>
    </message>
    <message>
        <source>Hex value pasted</source>
        <translation>Значення hex вставлено</translation>
    </message>
    <message>
        <source>Installed: %1</source>
        <translation>Установлена: %1</translation>
    </message>
    <message>
        <source>Latest: %1</source>
        <translation>Остання: %1</translation>
    </message>
    <message>
        <source>Control Center not installed</source>
        <translation>Control Center не встановлено</translation>
    </message>
    <message>
        <source>You do not seem to be using Control Center. For this software to work we need to install a small dll for it to work. Can we install it?.
</source>
        <translation>Схоже, ви не користуєтеся Control Center. Для роботи програми потрібно встановити невелику бібліотеку DLL. Установити її?
</translation>
    </message>
    <message>
        <source>Update Information</source>
        <translation>Оновлення</translation>
    </message>
    <message>
        <source>There is an update for this software! Do you want to update now?.
</source>
        <translation>Доступне оновлення програми! Оновити зараз?
</translation>
    </message>
    <message>
        <source>There is an update for this software! But to be able to update we need Admin access. Do you want to run this app with admin access so that we can update it automatically?</source>
        <translation>Доступне оновлення програми! Для оновлення потрібні права адміністратора. Запустити програму від імені адміністратора, щоб вона оновилася автоматично?</translation>
    </message>
    <message>
        <source>Monitor</source>
        <translation>Монітор</translation>
    </message>
    <message>
        <source>To uninstall Lumikey we need admin access.
Do you allow it?
Lumikey will restart with admin access, after that you should click the uninstall button again.</source>
        <translation>Для видалення Lumikey потрібні права адміністратора.
Дозволити?
Lumikey перезапуститься від імені адміністратора; після цього знову натисніть кнопку «Видалити».</translation>
    </message>
    <message>
        <source>Per Key Install</source>
        <translation>Установлення Per-Key RGB</translation>
    </message>
    <message>
        <source>To install the Per-Key RGB App we need Admin access, do you allow it?</source>
        <translation>Для встановлення програми RGB для кожної клавіші потрібні права адміністратора. Дозволити?</translation>
    </message>
    <message>
        <source>There is an update! Click the update button.</source>
        <translation>Доступне оновлення! Натисніть кнопку «Оновити».</translation>
    </message>
    <message>
        <source>You are running the latest version, there is no update.</source>
        <translation>У вас остання версія, оновлень немає.</translation>
    </message>
    <message>
        <source>You are running the latest version, there is no update.
</source>
        <translation>У вас остання версія, оновлень немає.
</translation>
    </message>
    <message>
        <source>Your version is newer then the official latest! Are you a beta tester?</source>
        <translation>Ваша версія новіша за офіційну! Ви бета-тестер?</translation>
    </message>
    <message>
        <source>Your version is newer then the official latest! You are probably a beta tester.
</source>
        <translation>Ваша версія новіша за офіційну! Мабуть, ви бета-тестер.
</translation>
    </message>
    <message>
        <source>Brightness Level: %1%</source>
        <translation>Яскравість: %1&#xa0;%</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (set by Dashport)</source>
        <translation>Яскравість: %1&#xa0;% (задана Dashport)</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (disabled for Effects)</source>
        <translation>Яскравість: %1&#xa0;% (задана ефектом)</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (Auto dim mode)</source>
        <translation>Яскравість: %1&#xa0;% (автозатемнення)</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (dimming down)</source>
        <translation>Яскравість: %1&#xa0;% (затемнення)</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (dimmed)</source>
        <translation>Яскравість: %1&#xa0;% (затемнено)</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Вихід</translation>
    </message>
    <message>
        <source>Show Interface</source>
        <translation>Показати вікно</translation>
    </message>
    <message>
        <source>English</source>
        <extracomment>The name of your language in itself, by which the installer offers it</extracomment>
        <translation>Українська</translation>
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
        <translation>Ви&amp;різати</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Копіювати</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Вставити</translation>
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
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Так</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Ні</translation>
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
