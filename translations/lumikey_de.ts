<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>MainWindow</name>
    <message>
        <source>Lumikey</source>
        <translation>Lumikey</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Backlight Status</source>
        <translation>Tastaturbeleuchtung</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Brightness Level</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Single Zone Fixed</source>
        <translation>Eine Zone</translation>
    </message>
    <message>
        <source>Single Color Selection</source>
        <translation>Farbe der ganzen Tastatur</translation>
    </message>
    <message>
        <source>Disabled when Effects are selected!</source>
        <translation>Nicht verfügbar, solange ein Effekt gewählt ist!</translation>
    </message>
    <message>
        <source>Keyboard preview</source>
        <translation>Tastaturvorschau</translation>
    </message>
    <message>
        <source>Keyboard color</source>
        <translation>Tastaturfarbe</translation>
    </message>
    <message>
        <source>3 Zones Fixed</source>
        <translation>3 Zonen</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Left zone preview</source>
        <translation>Vorschau der linken Zone</translation>
    </message>
    <message>
        <source>Left zone color</source>
        <translation>Farbe der linken Zone</translation>
    </message>
    <message>
        <source>Center zone preview</source>
        <translation>Vorschau der mittleren Zone</translation>
    </message>
    <message>
        <source>Center zone color</source>
        <translation>Farbe der mittleren Zone</translation>
    </message>
    <message>
        <source>Right zone preview</source>
        <translation>Vorschau der rechten Zone</translation>
    </message>
    <message>
        <source>Right zone color</source>
        <translation>Farbe der rechten Zone</translation>
    </message>
    <message>
        <source>Stripe</source>
        <translation>LED-Leiste</translation>
    </message>
    <message>
        <source>Touchpad Stripe LED color</source>
        <translation>Farbe der LED-Leiste am Touchpad</translation>
    </message>
    <message>
        <source>Stripe preview</source>
        <translation>Vorschau der LED-Leiste</translation>
    </message>
    <message>
        <source>Stripe color</source>
        <translation>Farbe der LED-Leiste</translation>
    </message>
    <message>
        <source>Per-Key Keyboard App</source>
        <translation>App für Einzeltasten</translation>
    </message>
    <message>
        <source>Per Key RGB Keyboard App</source>
        <translation>App für RGB-Einzeltastenbeleuchtung</translation>
    </message>
    <message>
        <source>Per-key keyboard picture</source>
        <translation>Bild der Einzeltastentastatur</translation>
    </message>
    <message>
        <source>Open the per-key keyboard app</source>
        <translation>App für Einzeltastenbeleuchtung öffnen</translation>
    </message>
    <message>
        <source> Select Keyboard Zone Color:</source>
        <translation> Farbe der Tastaturzone wählen:</translation>
    </message>
    <message>
        <source>Saturation and value</source>
        <translation>Sättigung und Hellwert</translation>
    </message>
    <message>
        <source>Selected Color:</source>
        <translation>Gewählte Farbe:</translation>
    </message>
    <message>
        <source>Selected color</source>
        <translation>Gewählte Farbe</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Farbton</translation>
    </message>
    <message>
        <source>RGB:</source>
        <translation>RGB:</translation>
    </message>
    <message>
        <source>RGB color</source>
        <translation>RGB-Farbe</translation>
    </message>
    <message>
        <source>HEX:</source>
        <translation>HEX:</translation>
    </message>
    <message>
        <source>HEX color</source>
        <translation>HEX-Farbe</translation>
    </message>
    <message>
        <source>Quick Basic Colors:</source>
        <translation>Grundfarben:</translation>
    </message>
    <message>
        <source>Quick basic colors</source>
        <translation>Grundfarben</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Weiß</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Violett</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Copy Color</source>
        <translation>Farbe kopieren</translation>
    </message>
    <message>
        <source>Paste Color</source>
        <translation>Farbe einfügen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Apply Value</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>Effects:</source>
        <translation>Effekte:</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>Effekt</translation>
    </message>
    <message>
        <source>None</source>
        <comment>effect</comment>
        <translation>Kein Effekt</translation>
    </message>
    <message>
        <source>Breath</source>
        <translation>Atmen</translation>
    </message>
    <message>
        <source>Cycle</source>
        <translation>Farbwechsel</translation>
    </message>
    <message>
        <source>Dance</source>
        <translation>Tanz</translation>
    </message>
    <message>
        <source>Flash</source>
        <translation>Blitzen</translation>
    </message>
    <message>
        <source>Random Color</source>
        <translation>Zufallsfarbe</translation>
    </message>
    <message>
        <source>Tempo</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>Welle</translation>
    </message>
    <message>
        <source>Auto turn off:</source>
        <translation>Automatisch aus nach:</translation>
    </message>
    <message>
        <source>Auto turn off after</source>
        <translation>Automatisch ausschalten nach</translation>
    </message>
    <message>
        <source>5 seconds</source>
        <translation>5 Sekunden</translation>
    </message>
    <message>
        <source>10 seconds</source>
        <translation>10 Sekunden</translation>
    </message>
    <message>
        <source>30 seconds</source>
        <translation>30 Sekunden</translation>
    </message>
    <message>
        <source>1 minute</source>
        <translation>1 Minute</translation>
    </message>
    <message>
        <source>5 minutes</source>
        <translation>5 Minuten</translation>
    </message>
    <message>
        <source>10 minutes</source>
        <translation>10 Minuten</translation>
    </message>
    <message>
        <source>15 minutes</source>
        <translation>15 Minuten</translation>
    </message>
    <message>
        <source>30 minutes</source>
        <translation>30 Minuten</translation>
    </message>
    <message>
        <source>1 hour</source>
        <translation>1 Stunde</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Start with Windows</source>
        <translation>Mit Windows starten</translation>
    </message>
    <message>
        <source>Close button hides instead of closing</source>
        <translation>Schließen blendet das Fenster nur aus</translation>
    </message>
    <message>
        <source>Start hidden in system tray</source>
        <translation>Im Infobereich starten</translation>
    </message>
    <message>
        <source>Mouse keys will also wake auto dim</source>
        <translation>Auch Maustasten wecken das Licht</translation>
    </message>
    <message>
        <source>User Per-Key RGB CLEVO App</source>
        <translation>CLEVO-App für Einzeltasten</translation>
    </message>
    <message>
        <source>Enable P75x Stripe LED Control</source>
        <translation>LED-Leiste (P75x) steuern</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>Deinstallieren</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Software Version</source>
        <translation>Softwareversion</translation>
    </message>
    <message>
        <source>Installed Version:</source>
        <translation>Installierte Version:</translation>
    </message>
    <message>
        <source>Latest Version:</source>
        <translation>Neueste Version:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Beschreibung:</translation>
    </message>
    <message>
        <source>Check for Update</source>
        <translation>Nach Update suchen</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Saturation %1, value %2</source>
        <translation>Sättigung %1, Hellwert %2</translation>
    </message>
    <message>
        <source>Select Left Keyboard Zone Color:</source>
        <translation>Farbe der linken Tastaturzone wählen:</translation>
    </message>
    <message>
        <source>Select Center Keyboard Zone Color:</source>
        <translation>Farbe der mittleren Tastaturzone wählen:</translation>
    </message>
    <message>
        <source>Select Right Keyboard Zone Color:</source>
        <translation>Farbe der rechten Tastaturzone wählen:</translation>
    </message>
    <message>
        <source>Select Keyboard Color:</source>
        <translation>Tastaturfarbe wählen:</translation>
    </message>
    <message>
        <source>Select Stripe / LCD Lid Color:</source>
        <translation>Farbe der LED-Leiste / des Deckels wählen:</translation>
    </message>
    <message>
        <source>RGB copied</source>
        <translation>RGB-Wert kopiert</translation>
    </message>
    <message>
        <source>Hex copied</source>
        <translation>Hex-Wert kopiert</translation>
    </message>
    <message>
        <source>Hex # copied</source>
        <translation>Hex-Wert mit # kopiert</translation>
    </message>
    <message>
        <source>Hex value pasted</source>
        <translation>Hex-Wert eingefügt</translation>
    </message>
    <message>
        <source>Installed: %1</source>
        <translation>Installiert: %1</translation>
    </message>
    <message>
        <source>Latest: %1</source>
        <translation>Neueste: %1</translation>
    </message>
    <message>
        <source>Control Center not installed</source>
        <translation>Control Center ist nicht installiert</translation>
    </message>
    <message>
        <source>You do not seem to be using Control Center. For this software to work we need to install a small dll for it to work. Can we install it?.
</source>
        <translation>Sie scheinen Control Center nicht zu verwenden. Damit dieses Programm funktioniert, muss eine kleine DLL installiert werden. Darf sie installiert werden?
</translation>
    </message>
    <message>
        <source>Update Information</source>
        <translation>Update-Information</translation>
    </message>
    <message>
        <source>There is an update for this software! Do you want to update now?.
</source>
        <translation>Für dieses Programm ist ein Update verfügbar! Möchten Sie jetzt aktualisieren?
</translation>
    </message>
    <message>
        <source>There is an update for this software! But to be able to update we need Admin access. Do you want to run this app with admin access so that we can update it automatically?</source>
        <translation>Für dieses Programm ist ein Update verfügbar! Zum Aktualisieren sind jedoch Administratorrechte nötig. Möchten Sie das Programm mit Administratorrechten ausführen, damit es automatisch aktualisiert werden kann?</translation>
    </message>
    <message>
        <source>Monitor</source>
        <translation>Monitor</translation>
    </message>
    <message>
        <source>To uninstall Lumikey we need admin access.
Do you allow it?
Lumikey will restart with admin access, after that you should click the uninstall button again.</source>
        <translation>Zum Deinstallieren von Lumikey sind Administratorrechte nötig.
Erlauben Sie das?
Lumikey startet mit Administratorrechten neu; klicken Sie danach noch einmal auf „Deinstallieren“.</translation>
    </message>
    <message>
        <source>Per Key Install</source>
        <translation>Installation der Einzeltasten-App</translation>
    </message>
    <message>
        <source>To install the Per-Key RGB App we need Admin access, do you allow it?</source>
        <translation>Zum Installieren der App für RGB-Einzeltasten sind Administratorrechte nötig. Erlauben Sie das?</translation>
    </message>
    <message>
        <source>There is an update! Click the update button.</source>
        <translation>Ein Update ist verfügbar! Klicken Sie auf „Aktualisieren“.</translation>
    </message>
    <message>
        <source>You are running the latest version, there is no update.</source>
        <translation>Sie verwenden die neueste Version, es gibt kein Update.</translation>
    </message>
    <message>
        <source>You are running the latest version, there is no update.
</source>
        <translation>Sie verwenden die neueste Version, es gibt kein Update.
</translation>
    </message>
    <message>
        <source>Your version is newer then the official latest! Are you a beta tester?</source>
        <translation>Ihre Version ist neuer als die neueste offizielle! Sind Sie Betatester?</translation>
    </message>
    <message>
        <source>Your version is newer then the official latest! You are probably a beta tester.
</source>
        <translation>Ihre Version ist neuer als die neueste offizielle! Sie sind wohl Betatester.
</translation>
    </message>
    <message>
        <source>Brightness Level: %1%</source>
        <translation>Helligkeit: %1&#xa0;%</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (set by Dashport)</source>
        <translation>Helligkeit: %1&#xa0;% (von Dashport gesetzt)</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (disabled for Effects)</source>
        <translation>Helligkeit: %1&#xa0;% (Effekt aktiv)</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (Auto dim mode)</source>
        <translation>Helligkeit: %1&#xa0;% (Auto-Abdunkeln)</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (dimming down)</source>
        <translation>Helligkeit: %1&#xa0;% (wird abgedunkelt)</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (dimmed)</source>
        <translation>Helligkeit: %1&#xa0;% (abgedunkelt)</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Show Interface</source>
        <translation>Fenster anzeigen</translation>
    </message>
    <message>
        <source>English</source>
        <extracomment>The name of your language in itself, by which the installer offers it</extracomment>
        <translation>Deutsch</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
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
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nein</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>Ctrl</source>
        <translation>Strg</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Umschalt</translation>
    </message>
</context>
</TS>
