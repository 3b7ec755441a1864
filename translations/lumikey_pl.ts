<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL" sourcelanguage="en">
<context>
    <name>MainWindow</name>
    <message>
        <source>Lumikey</source>
        <translation>Lumikey</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Tytuł</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimalizuj</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>Backlight Status</source>
        <translation>Podświetlenie</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Włączone</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Wyłączone</translation>
    </message>
    <message>
        <source>Brightness Level</source>
        <translation>Jasność</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Jasność</translation>
    </message>
    <message>
        <source>Single Zone Fixed</source>
        <translation>Jedna strefa</translation>
    </message>
    <message>
        <source>Single Color Selection</source>
        <translation>Kolor całej klawiatury</translation>
    </message>
    <message>
        <source>Disabled when Effects are selected!</source>
        <translation>Niedostępne, gdy wybrano efekt!</translation>
    </message>
    <message>
        <source>Keyboard preview</source>
        <translation>Podgląd klawiatury</translation>
    </message>
    <message>
        <source>Keyboard color</source>
        <translation>Kolor klawiatury</translation>
    </message>
    <message>
        <source>3 Zones Fixed</source>
        <translation>3 strefy</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Lewa</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Środkowa</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Prawa</translation>
    </message>
    <message>
        <source>Left zone preview</source>
        <translation>Podgląd lewej strefy</translation>
    </message>
    <message>
        <source>Left zone color</source>
        <translation>Kolor lewej strefy</translation>
    </message>
    <message>
        <source>Center zone preview</source>
        <translation>Podgląd środkowej strefy</translation>
    </message>
    <message>
        <source>Center zone color</source>
        <translation>Kolor środkowej strefy</translation>
    </message>
    <message>
        <source>Right zone preview</source>
        <translation>Podgląd prawej strefy</translation>
    </message>
    <message>
        <source>Right zone color</source>
        <translation>Kolor prawej strefy</translation>
    </message>
    <message>
        <source>Stripe</source>
        <translation>Pasek LED</translation>
    </message>
    <message>
        <source>Touchpad Stripe LED color</source>
        <translation>Kolor paska LED touchpada</translation>
    </message>
    <message>
        <source>Stripe preview</source>
        <translation>Podgląd paska LED</translation>
    </message>
    <message>
        <source>Stripe color</source>
        <translation>Kolor paska LED</translation>
    </message>
    <message>
        <source>Per-Key Keyboard App</source>
        <translation>Aplikacja per klawisz</translation>
    </message>
    <message>
        <source>Per Key RGB Keyboard App</source>
        <translation>Aplikacja RGB dla klawiszy</translation>
    </message>
    <message>
        <source>Per-key keyboard picture</source>
        <translation>Obraz klawiatury RGB</translation>
    </message>
    <message>
        <source>Open the per-key keyboard app</source>
        <translation>Otwórz aplikację RGB dla klawiszy</translation>
    </message>
    <message>
        <source> Select Keyboard Zone Color:</source>
        <translation> Wybierz kolor strefy:</translation>
    </message>
    <message>
        <source>Saturation and value</source>
        <translation>Nasycenie i wartość</translation>
    </message>
    <message>
        <source>Selected Color:</source>
        <translation>Wybrany kolor:</translation>
    </message>
    <message>
        <source>Selected color</source>
        <translation>Wybrany kolor</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Odcień</translation>
    </message>
    <message>
        <source>RGB:</source>
        <translation>RGB:</translation>
    </message>
    <message>
        <source>RGB color</source>
        <translation>Kolor RGB</translation>
    </message>
    <message>
        <source>HEX:</source>
        <translation>HEX:</translation>
    </message>
    <message>
        <source>HEX color</source>
        <translation>Kolor HEX</translation>
    </message>
    <message>
        <source>Quick Basic Colors:</source>
        <translation>Kolory podstawowe:</translation>
    </message>
    <message>
        <source>Quick basic colors</source>
        <translation>Kolory podstawowe</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Brak</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Czerwony</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Biały</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Niebieski</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cyjan</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Fioletowy</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Żółty</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Zielony</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Pomarańczowy</translation>
    </message>
    <message>
        <source>Copy Color</source>
        <translation>Kopiuj kolor</translation>
    </message>
    <message>
        <source>Paste Color</source>
        <translation>Wklej kolor</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Apply Value</source>
        <translation>Zastosuj</translation>
    </message>
    <message>
        <source>Effects:</source>
        <translation>Efekty:</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>Efekt</translation>
    </message>
    <message>
        <source>None</source>
        <comment>effect</comment>
        <translation>Brak</translation>
    </message>
    <message>
        <source>Breath</source>
        <translation>Oddech</translation>
    </message>
    <message>
        <source>Cycle</source>
        <translation>Cykl</translation>
    </message>
    <message>
        <source>Dance</source>
        <translation>Taniec</translation>
    </message>
    <message>
        <source>Flash</source>
        <translation>Błysk</translation>
    </message>
    <message>
        <source>Random Color</source>
        <translation>Losowy kolor</translation>
    </message>
    <message>
        <source>Tempo</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>Fala</translation>
    </message>
    <message>
        <source>Auto turn off:</source>
        <translation>Wyłącz automatycznie po:</translation>
    </message>
    <message>
        <source>Auto turn off after</source>
        <translation>Wyłącz automatycznie po</translation>
    </message>
    <message>
        <source>5 seconds</source>
        <translation>5 sekund</translation>
    </message>
    <message>
        <source>10 seconds</source>
        <translation>10 sekund</translation>
    </message>
    <message>
        <source>30 seconds</source>
        <translation>30 sekund</translation>
    </message>
    <message>
        <source>1 minute</source>
        <translation>1 minuta</translation>
    </message>
    <message>
        <source>5 minutes</source>
        <translation>5 minut</translation>
    </message>
    <message>
        <source>10 minutes</source>
        <translation>10 minut</translation>
    </message>
    <message>
        <source>15 minutes</source>
        <translation>15 minut</translation>
    </message>
    <message>
        <source>30 minutes</source>
        <translation>30 minut</translation>
    </message>
    <message>
        <source>1 hour</source>
        <translation>1 godzina</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>Start with Windows</source>
        <translation>Uruchamiaj z systemem Windows</translation>
    </message>
    <message>
        <source>Close button hides instead of closing</source>
        <translation>Przycisk zamykania ukrywa okno</translation>
    </message>
    <message>
        <source>Start hidden in system tray</source>
        <translation>Uruchamiaj ukryty w zasobniku</translation>
    </message>
    <message>
        <source>Mouse keys will also wake auto dim</source>
        <translation>Przyciski myszy też wybudzają</translation>
    </message>
    <message>
        <source>User Per-Key RGB CLEVO App</source>
        <translation>Aplikacja CLEVO RGB dla klawiszy</translation>
    </message>
    <message>
        <source>Enable P75x Stripe LED Control</source>
        <translation>Steruj paskiem LED (P75x)</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>Odinstaluj</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Informacje</translation>
    </message>
    <message>
        <source>Software Version</source>
        <translation>Wersja programu</translation>
    </message>
    <message>
        <source>Installed Version:</source>
        <translation>Zainstalowana wersja:</translation>
    </message>
    <message>
        <source>Latest Version:</source>
        <translation>Najnowsza wersja:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Opis:</translation>
    </message>
    <message>
        <source>Check for Update</source>
        <translation>Sprawdź aktualizacje</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aktualizuj</translation>
    </message>
    <message>
        <source>Saturation %1, value %2</source>
        <translation>Nasycenie %1, wartość %2</translation>
    </message>
    <message>
        <source>Select Left Keyboard Zone Color:</source>
        <translation>Wybierz kolor lewej strefy klawiatury:</translation>
    </message>
    <message>
        <source>Select Center Keyboard Zone Color:</source>
        <translation>Wybierz kolor środkowej strefy klawiatury:</translation>
    </message>
    <message>
        <source>Select Right Keyboard Zone Color:</source>
        <translation>Wybierz kolor prawej strefy klawiatury:</translation>
    </message>
    <message>
        <source>Select Keyboard Color:</source>
        <translation>Wybierz kolor klawiatury:</translation>
    </message>
    <message>
        <source>Select Stripe / LCD Lid Color:</source>
        <translation>Wybierz kolor paska / pokrywy:</translation>
    </message>
    <message>
        <source>RGB copied</source>
        <translation>Skopiowano RGB</translation>
    </message>
    <message>
        <source>Hex copied</source>
        <translation>Skopiowano hex</translation>
    </message>
    <message>
        <source>Hex # copied</source>
        <translation>Skopiowano hex z #</translation>
    </message>
    <message>
        <source>Hex value pasted</source>
        <translation>Wklejono wartość hex</translation>
    </message>
    <message>
        <source>Installed: %1</source>
        <translation>Zainstalowana: %1</translation>
    </message>
    <message>
        <source>Latest: %1</source>
        <translation>Najnowsza: %1</translation>
    </message>
    <message>
        <source>Control Center not installed</source>
        <translation>Control Center nie jest zainstalowane</translation>
    </message>
    <message>
        <source>You do not seem to be using Control Center. For this software to work we need to install a small dll for it to work. Can we install it?.
</source>
        <translation>Wygląda na to, że nie używasz Control Center. Aby ten program działał, trzeba zainstalować małą bibliotekę DLL. Czy możemy ją zainstalować?
</translation>
    </message>
    <message>
        <source>Update Information</source>
        <translation>Aktualizacja</translation>
    </message>
    <message>
        <source>There is an update for this software! Do you want to update now?.
</source>
        <translation>Jest dostępna aktualizacja tego programu! Czy chcesz zaktualizować teraz?
</translation>
    </message>
    <message>
        <source>There is an update for this software! But to be able to update we need Admin access. Do you want to run this app with admin access so that we can update it automatically?</source>
        <translation>Jest dostępna aktualizacja tego programu! Do aktualizacji potrzebne są uprawnienia administratora. Czy uruchomić program jako administrator, aby zaktualizował się automatycznie?</translation>
    </message>
    <message>
        <source>Monitor</source>
        <translation>Monitor</translation>
    </message>
    <message>
        <source>To uninstall Lumikey we need admin access.
Do you allow it?
Lumikey will restart with admin access, after that you should click the uninstall button again.</source>
        <translation>Do odinstalowania Lumikey potrzebne są uprawnienia administratora.
Czy na to zezwalasz?
Lumikey uruchomi się ponownie jako administrator; wtedy jeszcze raz kliknij przycisk Odinstaluj.</translation>
    </message>
    <message>
        <source>Per Key Install</source>
        <translation>Instalacja aplikacji RGB</translation>
    </message>
    <message>
        <source>To install the Per-Key RGB App we need Admin access, do you allow it?</source>
        <translation>Do zainstalowania aplikacji RGB dla klawiszy potrzebne są uprawnienia administratora. Czy na to zezwalasz?</translation>
    </message>
    <message>
        <source>There is an update! Click the update button.</source>
        <translation>Jest dostępna aktualizacja! Kliknij przycisk Aktualizuj.</translation>
    </message>
    <message>
        <source>You are running the latest version, there is no update.</source>
        <translation>Masz najnowszą wersję, nie ma aktualizacji.</translation>
    </message>
    <message>
        <source>You are running the latest version, there is no update.
</source>
        <translation>Masz najnowszą wersję, nie ma aktualizacji.
</translation>
    </message>
    <message>
        <source>Your version is newer then the official latest! Are you a beta tester?</source>
        <translation>Twoja wersja jest nowsza od oficjalnej! Czy jesteś beta testerem?</translation>
    </message>
    <message>
        <source>Your version is newer then the official latest! You are probably a beta tester.
</source>
        <translation>Twoja wersja jest nowsza od oficjalnej! Pewnie jesteś beta testerem.
</translation>
    </message>
    <message>
        <source>Brightness Level: %1%</source>
        <translation>Jasność: %1%</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (set by Dashport)</source>
        <translation>Jasność: %1% (wg Dashport)</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (disabled for Effects)</source>
        <translation>Jasność: %1% (wg efektu)</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (Auto dim mode)</source>
        <translation>Jasność: %1% (auto-wygaszanie)</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (dimming down)</source>
        <translation>Jasność: %1% (wygaszanie)</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (dimmed)</source>
        <translation>Jasność: %1% (wygaszona)</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>Show Interface</source>
        <translation>Pokaż okno</translation>
    </message>
    <message>
        <source>English</source>
        <extracomment>The name of your language in itself, by which the installer offers it</extracomment>
        <translation>Polski</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Cofnij</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Ponów</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Wytnij</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopiuj</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Wk&amp;lej</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Zaznacz wszystko</translation>
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
        <translation>&amp;Tak</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nie</translation>
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
