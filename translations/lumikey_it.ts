<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en">
<context>
    <name>MainWindow</name>
    <message>
        <source>Lumikey</source>
        <translation>Lumikey</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titolo</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Riduci a icona</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Backlight Status</source>
        <translation>Retroilluminazione</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Attivata</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Disattivata</translation>
    </message>
    <message>
        <source>Brightness Level</source>
        <translation>Luminosità</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminosità</translation>
    </message>
    <message>
        <source>Single Zone Fixed</source>
        <translation>Zona unica</translation>
    </message>
    <message>
        <source>Single Color Selection</source>
        <translation>Colore di tutta la tastiera</translation>
    </message>
    <message>
        <source>Disabled when Effects are selected!</source>
        <translation>Non disponibile quando è scelto un effetto!</translation>
    </message>
    <message>
        <source>Keyboard preview</source>
        <translation>Anteprima della tastiera</translation>
    </message>
    <message>
        <source>Keyboard color</source>
        <translation>Colore della tastiera</translation>
    </message>
    <message>
        <source>3 Zones Fixed</source>
        <translation>3 zone</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Sinistra</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Destra</translation>
    </message>
    <message>
        <source>Left zone preview</source>
        <translation>Anteprima della zona sinistra</translation>
    </message>
    <message>
        <source>Left zone color</source>
        <translation>Colore della zona sinistra</translation>
    </message>
    <message>
        <source>Center zone preview</source>
        <translation>Anteprima della zona centrale</translation>
    </message>
    <message>
        <source>Center zone color</source>
        <translation>Colore della zona centrale</translation>
    </message>
    <message>
        <source>Right zone preview</source>
        <translation>Anteprima della zona destra</translation>
    </message>
    <message>
        <source>Right zone color</source>
        <translation>Colore della zona destra</translation>
    </message>
    <message>
        <source>Stripe</source>
        <translation>Striscia LED</translation>
    </message>
    <message>
        <source>Touchpad Stripe LED color</source>
        <translation>Colore della striscia LED del touchpad</translation>
    </message>
    <message>
        <source>Stripe preview</source>
        <translation>Anteprima della striscia LED</translation>
    </message>
    <message>
        <source>Stripe color</source>
        <translation>Colore della striscia LED</translation>
    </message>
    <message>
        <source>Per-Key Keyboard App</source>
        <translation>App tasto per tasto</translation>
    </message>
    <message>
        <source>Per Key RGB Keyboard App</source>
        <translation>App RGB tasto per tasto</translation>
    </message>
    <message>
        <source>Per-key keyboard picture</source>
        <translation>Immagine della tastiera tasto per tasto</translation>
    </message>
    <message>
        <source>Open the per-key keyboard app</source>
        <translation>Apri l’app tasto per tasto</translation>
    </message>
    <message>
        <source> Select Keyboard Zone Color:</source>
        <translation> Scegli il colore della zona:</translation>
    </message>
    <message>
        <source>Saturation and value</source>
        <translation>Saturazione e valore</translation>
    </message>
    <message>
        <source>Selected Color:</source>
        <translation>Colore scelto:</translation>
    </message>
    <message>
        <source>Selected color</source>
        <translation>Colore scelto</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Tonalità</translation>
    </message>
    <message>
        <source>RGB:</source>
        <translation>RGB:</translation>
    </message>
    <message>
        <source>RGB color</source>
        <translation>Colore RGB</translation>
    </message>
    <message>
        <source>HEX:</source>
        <translation>HEX:</translation>
    </message>
    <message>
        <source>HEX color</source>
        <translation>Colore HEX</translation>
    </message>
    <message>
        <source>Quick Basic Colors:</source>
        <translation>Colori di base:</translation>
    </message>
    <message>
        <source>Quick basic colors</source>
        <translation>Colori di base</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nessuno</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rosso</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Bianco</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blu</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Ciano</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Viola</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Giallo</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Arancione</translation>
    </message>
    <message>
        <source>Copy Color</source>
        <translation>Copia colore</translation>
    </message>
    <message>
        <source>Paste Color</source>
        <translation>Incolla colore</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Apply Value</source>
        <translation>Applica</translation>
    </message>
    <message>
        <source>Effects:</source>
        <translation>Effetti:</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>Effetto</translation>
    </message>
    <message>
        <source>None</source>
        <comment>effect</comment>
        <translation>Nessuno</translation>
    </message>
    <message>
        <source>Breath</source>
        <translation>Respiro</translation>
    </message>
    <message>
        <source>Cycle</source>
        <translation>Ciclo</translation>
    </message>
    <message>
        <source>Dance</source>
        <translation>Danza</translation>
    </message>
    <message>
        <source>Flash</source>
        <translation>Lampeggio</translation>
    </message>
    <message>
        <source>Random Color</source>
        <translation>Colore casuale</translation>
    </message>
    <message>
        <source>Tempo</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>Onda</translation>
    </message>
    <message>
        <source>Auto turn off:</source>
        <translation>Spegnimento auto:</translation>
    </message>
    <message>
        <source>Auto turn off after</source>
        <translation>Spegnimento automatico dopo</translation>
    </message>
    <message>
        <source>5 seconds</source>
        <translation>5 secondi</translation>
    </message>
    <message>
        <source>10 seconds</source>
        <translation>10 secondi</translation>
    </message>
    <message>
        <source>30 seconds</source>
        <translation>30 secondi</translation>
    </message>
    <message>
        <source>1 minute</source>
        <translation>1 minuto</translation>
    </message>
    <message>
        <source>5 minutes</source>
        <translation>5 minuti</translation>
    </message>
    <message>
        <source>10 minutes</source>
        <translation>10 minuti</translation>
    </message>
    <message>
        <source>15 minutes</source>
        <translation>15 minuti</translation>
    </message>
    <message>
        <source>30 minutes</source>
        <translation>30 minuti</translation>
    </message>
    <message>
        <source>1 hour</source>
        <translation>1 ora</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Start with Windows</source>
        <translation>Avvia con Windows</translation>
    </message>
    <message>
        <source>Close button hides instead of closing</source>
        <translation>Il pulsante Chiudi nasconde la finestra</translation>
    </message>
    <message>
        <source>Start hidden in system tray</source>
        <translation>Avvia nell’area di notifica</translation>
    </message>
    <message>
        <source>Mouse keys will also wake auto dim</source>
        <translation>Anche i clic riaccendono la tastiera</translation>
    </message>
    <message>
        <source>User Per-Key RGB CLEVO App</source>
        <translation>App CLEVO RGB tasto per tasto</translation>
    </message>
    <message>
        <source>Enable P75x Stripe LED Control</source>
        <translation>Controlla la striscia LED (P75x)</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>Disinstalla</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>Software Version</source>
        <translation>Versione del software</translation>
    </message>
    <message>
        <source>Installed Version:</source>
        <translation>Versione installata:</translation>
    </message>
    <message>
        <source>Latest Version:</source>
        <translation>Ultima versione:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Descrizione:</translation>
    </message>
    <message>
        <source>Check for Update</source>
        <translation>Verifica aggiornamenti</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aggiorna</translation>
    </message>
    <message>
        <source>Saturation %1, value %2</source>
        <translation>Saturazione %1, valore %2</translation>
    </message>
    <message>
        <source>Select Left Keyboard Zone Color:</source>
        <translation>Scegli il colore della zona sinistra:</translation>
    </message>
    <message>
        <source>Select Center Keyboard Zone Color:</source>
        <translation>Scegli il colore della zona centrale:</translation>
    </message>
    <message>
        <source>Select Right Keyboard Zone Color:</source>
        <translation>Scegli il colore della zona destra:</translation>
    </message>
    <message>
        <source>Select Keyboard Color:</source>
        <translation>Scegli il colore della tastiera:</translation>
    </message>
    <message>
        <source>Select Stripe / LCD Lid Color:</source>
        <translation>Scegli il colore della striscia / del coperchio:</translation>
    </message>
    <message>
        <source>RGB copied</source>
        <translation>RGB copiato</translation>
    </message>
    <message>
        <source>Hex copied</source>
        <translation>Hex copiato</translation>
    </message>
    <message>
        <source>Hex # copied</source>
        <translation>Hex con # copiato</translation>
    </message>
    <message>
        <source>Hex value pasted</source>
        <translation>Valore hex incollato</translation>
    </message>
    <message>
        <source>Installed: %1</source>
        <translation>Installata: %1</translation>
    </message>
    <message>
        <source>Latest: %1</source>
        <translation>Ultima: %1</translation>
    </message>
    <message>
        <source>Control Center not installed</source>
        <translation>Control Center non è installato</translation>
    </message>
    <message>
        <source>You do not seem to be using Control Center. For this software to work we need to install a small dll for it to work. Can we install it?.
</source>
        <translation>Sembra che Control Center non sia in uso. Perché questo software funzioni occorre installare una piccola DLL. Possiamo installarla?
</translation>
    </message>
    <message>
        <source>Update Information</source>
        <translation>Aggiornamento</translation>
    </message>
    <message>
        <source>There is an update for this software! Do you want to update now?.
</source>
        <translation>È disponibile un aggiornamento di questo software! Aggiornare ora?
</translation>
    </message>
    <message>
        <source>There is an update for this software! But to be able to update we need Admin access. Do you want to run this app with admin access so that we can update it automatically?</source>
        <translation>È disponibile un aggiornamento di questo software! Per aggiornare servono però i diritti di amministratore. Eseguire l’app come amministratore per aggiornarla automaticamente?</translation>
    </message>
    <message>
        <source>Monitor</source>
        <translation>Monitor</translation>
    </message>
    <message>
        <source>To uninstall Lumikey we need admin access.
Do you allow it?
Lumikey will restart with admin access, after that you should click the uninstall button again.</source>
        <translation>Per disinstallare Lumikey servono i diritti di amministratore.
Consentire?
Lumikey si riavvierà come amministratore; dopo, fai di nuovo clic sul pulsante Disinstalla.</translation>
    </message>
    <message>
        <source>Per Key Install</source>
        <translation>Installazione tasto per tasto</translation>
    </message>
    <message>
        <source>To install the Per-Key RGB App we need Admin access, do you allow it?</source>
        <translation>Per installare l’app RGB tasto per tasto servono i diritti di amministratore. Consentire?</translation>
    </message>
    <message>
        <source>There is an update! Click the update button.</source>
        <translation>È disponibile un aggiornamento! Fai clic su Aggiorna.</translation>
    </message>
    <message>
        <source>You are running the latest version, there is no update.</source>
        <translation>Hai la versione più recente, non ci sono aggiornamenti.</translation>
    </message>
    <message>
        <source>You are running the latest version, there is no update.
</source>
        <translation>Hai la versione più recente, non ci sono aggiornamenti.
</translation>
    </message>
    <message>
        <source>Your version is newer then the official latest! Are you a beta tester?</source>
        <translation>La tua versione è più recente di quella ufficiale! Sei un beta tester?</translation>
    </message>
    <message>
        <source>Your version is newer then the official latest! You are probably a beta tester.
</source>
        <translation>La tua versione è più recente di quella ufficiale! Probabilmente sei un beta tester.
</translation>
    </message>
    <message>
        <source>Brightness Level: %1%</source>
        <translation>Luminosità: %1%</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (set by Dashport)</source>
        <translation>Luminosità: %1% (da Dashport)</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (disabled for Effects)</source>
        <translation>Luminosità: %1% (data dall’effetto)</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (Auto dim mode)</source>
        <translation>Luminosità: %1% (attenuazione auto)</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (dimming down)</source>
        <translation>Luminosità: %1% (si attenua)</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (dimmed)</source>
        <translation>Luminosità: %1% (attenuata)</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Show Interface</source>
        <translation>Mostra finestra</translation>
    </message>
    <message>
        <source>English</source>
        <extracomment>The name of your language in itself, by which the installer offers it</extracomment>
        <translation>Italiano</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Ripeti</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Taglia</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copia</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Incolla</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleziona tutto</translation>
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
        <translation>&amp;Sì</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
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
        <translation>Maiusc</translation>
    </message>
</context>
</TS>
