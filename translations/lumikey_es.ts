<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en">
<context>
    <name>MainWindow</name>
    <message>
        <source>Lumikey</source>
        <translation>Lumikey</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Backlight Status</source>
        <translation>Retroiluminación</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activada</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Desactivada</translation>
    </message>
    <message>
        <source>Brightness Level</source>
        <translation>Brillo</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brillo</translation>
    </message>
    <message>
        <source>Single Zone Fixed</source>
        <translation>Zona única</translation>
    </message>
    <message>
        <source>Single Color Selection</source>
        <translation>Color de todo el teclado</translation>
    </message>
    <message>
        <source>Disabled when Effects are selected!</source>
        <translation>¡No disponible mientras haya un efecto!</translation>
    </message>
    <message>
        <source>Keyboard preview</source>
        <translation>Vista previa del teclado</translation>
    </message>
    <message>
        <source>Keyboard color</source>
        <translation>Color del teclado</translation>
    </message>
    <message>
        <source>3 Zones Fixed</source>
        <translation>3 zonas</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Izquierda</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Derecha</translation>
    </message>
    <message>
        <source>Left zone preview</source>
        <translation>Vista previa de la zona izquierda</translation>
    </message>
    <message>
        <source>Left zone color</source>
        <translation>Color de la zona izquierda</translation>
    </message>
    <message>
        <source>Center zone preview</source>
        <translation>Vista previa de la zona central</translation>
    </message>
    <message>
        <source>Center zone color</source>
        <translation>Color de la zona central</translation>
    </message>
    <message>
        <source>Right zone preview</source>
        <translation>Vista previa de la zona derecha</translation>
    </message>
    <message>
        <source>Right zone color</source>
        <translation>Color de la zona derecha</translation>
    </message>
    <message>
        <source>Stripe</source>
        <translation>Tira LED</translation>
    </message>
    <message>
        <source>Touchpad Stripe LED color</source>
        <translation>Color de la tira LED del panel táctil</translation>
    </message>
    <message>
        <source>Stripe preview</source>
        <translation>Vista previa de la tira LED</translation>
    </message>
    <message>
        <source>Stripe color</source>
        <translation>Color de la tira LED</translation>
    </message>
    <message>
        <source>Per-Key Keyboard App</source>
        <translation>App tecla por tecla</translation>
    </message>
    <message>
        <source>Per Key RGB Keyboard App</source>
        <translation>App RGB tecla por tecla</translation>
    </message>
    <message>
        <source>Per-key keyboard picture</source>
        <translation>Imagen del teclado tecla por tecla</translation>
    </message>
    <message>
        <source>Open the per-key keyboard app</source>
        <translation>Abrir la app tecla por tecla</translation>
    </message>
    <message>
        <source> Select Keyboard Zone Color:</source>
        <translation> Elija el color de la zona:</translation>
    </message>
    <message>
        <source>Saturation and value</source>
        <translation>Saturación y valor</translation>
    </message>
    <message>
        <source>Selected Color:</source>
        <translation>Color elegido:</translation>
    </message>
    <message>
        <source>Selected color</source>
        <translation>Color elegido</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Tono</translation>
    </message>
    <message>
        <source>RGB:</source>
        <translation>RGB:</translation>
    </message>
    <message>
        <source>RGB color</source>
        <translation>Color RGB</translation>
    </message>
    <message>
        <source>HEX:</source>
        <translation>HEX:</translation>
    </message>
    <message>
        <source>HEX color</source>
        <translation>Color HEX</translation>
    </message>
    <message>
        <source>Quick Basic Colors:</source>
        <translation>Colores básicos:</translation>
    </message>
    <message>
        <source>Quick basic colors</source>
        <translation>Colores básicos</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rojo</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Blanco</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Azul</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cian</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Morado</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Amarillo</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Naranja</translation>
    </message>
    <message>
        <source>Copy Color</source>
        <translation>Copiar color</translation>
    </message>
    <message>
        <source>Paste Color</source>
        <translation>Pegar color</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Apply Value</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Effects:</source>
        <translation>Efectos:</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>Efecto</translation>
    </message>
    <message>
        <source>None</source>
        <comment>effect</comment>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Breath</source>
        <translation>Respiración</translation>
    </message>
    <message>
        <source>Cycle</source>
        <translation>Ciclo</translation>
    </message>
    <message>
        <source>Dance</source>
        <translation>Baile</translation>
    </message>
    <message>
        <source>Flash</source>
        <translation>Destello</translation>
    </message>
    <message>
        <source>Random Color</source>
        <translation>Color aleatorio</translation>
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
        <translation>Apagado automático:</translation>
    </message>
    <message>
        <source>Auto turn off after</source>
        <translation>Apagado automático tras</translation>
    </message>
    <message>
        <source>5 seconds</source>
        <translation>5 segundos</translation>
    </message>
    <message>
        <source>10 seconds</source>
        <translation>10 segundos</translation>
    </message>
    <message>
        <source>30 seconds</source>
        <translation>30 segundos</translation>
    </message>
    <message>
        <source>1 minute</source>
        <translation>1 minuto</translation>
    </message>
    <message>
        <source>5 minutes</source>
        <translation>5 minutos</translation>
    </message>
    <message>
        <source>10 minutes</source>
        <translation>10 minutos</translation>
    </message>
    <message>
        <source>15 minutes</source>
        <translation>15 minutos</translation>
    </message>
    <message>
        <source>30 minutes</source>
        <translation>30 minutos</translation>
    </message>
    <message>
        <source>1 hour</source>
        <translation>1 hora</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Start with Windows</source>
        <translation>Iniciar con Windows</translation>
    </message>
    <message>
        <source>Close button hides instead of closing</source>
        <translation>El botón Cerrar solo oculta la ventana</translation>
    </message>
    <message>
        <source>Start hidden in system tray</source>
        <translation>Iniciar oculto en la bandeja</translation>
    </message>
    <message>
        <source>Mouse keys will also wake auto dim</source>
        <translation>Los clics también encienden el teclado</translation>
    </message>
    <message>
        <source>User Per-Key RGB CLEVO App</source>
        <translation>App CLEVO RGB tecla por tecla</translation>
    </message>
    <message>
        <source>Enable P75x Stripe LED Control</source>
        <translation>Controlar la tira LED (P75x)</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>Desinstalar</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Software Version</source>
        <translation>Versión del software</translation>
    </message>
    <message>
        <source>Installed Version:</source>
        <translation>Versión instalada:</translation>
    </message>
    <message>
        <source>Latest Version:</source>
        <translation>Última versión:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Descripción:</translation>
    </message>
    <message>
        <source>Check for Update</source>
        <translation>Buscar actualización</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>Saturation %1, value %2</source>
        <translation>Saturación %1, valor %2</translation>
    </message>
    <message>
        <source>Select Left Keyboard Zone Color:</source>
        <translation>Elija el color de la zona izquierda:</translation>
    </message>
    <message>
        <source>Select Center Keyboard Zone Color:</source>
        <translation>Elija el color de la zona central:</translation>
    </message>
    <message>
        <source>Select Right Keyboard Zone Color:</source>
        <translation>Elija el color de la zona derecha:</translation>
    </message>
    <message>
        <source>Select Keyboard Color:</source>
        <translation>Elija el color del teclado:</translation>
    </message>
    <message>
        <source>Select Stripe / LCD Lid Color:</source>
        <translation>Elija el color de la tira o de la tapa:</translation>
    </message>
    <message>
        <source>RGB copied</source>
        <translation>RGB copiado</translation>
    </message>
    <message>
        <source>Hex copied</source>
        <translation>Hex copiado</translation>
    </message>
    <message>
        <source>Hex # copied</source>
        <translation>Hex con # copiado</translation>
    </message>
    <message>
        <source>Hex value pasted</source>
        <translation>Valor hex pegado</translation>
    </message>
    <message>
        <source>Installed: %1</source>
        <translation>Instalada: %1</translation>
    </message>
    <message>
        <source>Latest: %1</source>
        <translation>Última: %1</translation>
    </message>
    <message>
        <source>Control Center not installed</source>
        <translation>Control Center no está instalado</translation>
    </message>
    <message>
        <source>You do not seem to be using Control Center. For this software to work we need to install a small dll for it to work. Can we install it?.
</source>
        <translation>Parece que no usa Control Center. Para que este software funcione hay que instalar una pequeña DLL. ¿Podemos instalarla?
</translation>
    </message>
    <message>
        <source>Update Information</source>
        <translation>Actualización</translation>
    </message>
    <message>
        <source>There is an update for this software! Do you want to update now?.
</source>
        <translation>¡Hay una actualización de este software! ¿Desea actualizar ahora?
</translation>
    </message>
    <message>
        <source>There is an update for this software! But to be able to update we need Admin access. Do you want to run this app with admin access so that we can update it automatically?</source>
        <translation>¡Hay una actualización de este software! Para instalarla se necesitan permisos de administrador. ¿Desea ejecutar esta aplicación como administrador para que se actualice automáticamente?</translation>
    </message>
    <message>
        <source>Monitor</source>
        <translation>Monitor</translation>
    </message>
    <message>
        <source>To uninstall Lumikey we need admin access.
Do you allow it?
Lumikey will restart with admin access, after that you should click the uninstall button again.</source>
        <translation>Para desinstalar Lumikey se necesitan permisos de administrador.
¿Lo permite?
Lumikey se reiniciará con esos permisos; después vuelva a hacer clic en el botón Desinstalar.</translation>
    </message>
    <message>
        <source>Per Key Install</source>
        <translation>Instalación tecla por tecla</translation>
    </message>
    <message>
        <source>To install the Per-Key RGB App we need Admin access, do you allow it?</source>
        <translation>Para instalar la app RGB tecla por tecla se necesitan permisos de administrador. ¿Lo permite?</translation>
    </message>
    <message>
        <source>There is an update! Click the update button.</source>
        <translation>¡Hay una actualización! Haga clic en el botón Actualizar.</translation>
    </message>
    <message>
        <source>You are running the latest version, there is no update.</source>
        <translation>Tiene la última versión, no hay ninguna actualización.</translation>
    </message>
    <message>
        <source>You are running the latest version, there is no update.
</source>
        <translation>Tiene la última versión, no hay ninguna actualización.
</translation>
    </message>
    <message>
        <source>Your version is newer then the official latest! Are you a beta tester?</source>
        <translation>¡Su versión es más reciente que la oficial! ¿Es usted beta tester?</translation>
    </message>
    <message>
        <source>Your version is newer then the official latest! You are probably a beta tester.
</source>
        <translation>¡Su versión es más reciente que la oficial! Probablemente es usted beta tester.
</translation>
    </message>
    <message>
        <source>Brightness Level: %1%</source>
        <translation>Brillo: %1&#xa0;%</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (set by Dashport)</source>
        <translation>Brillo: %1&#xa0;% (fijado por Dashport)</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (disabled for Effects)</source>
        <translation>Brillo: %1&#xa0;% (desactivado por el efecto)</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (Auto dim mode)</source>
        <translation>Brillo: %1&#xa0;% (atenuación automática)</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (dimming down)</source>
        <translation>Brillo: %1&#xa0;% (atenuando)</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (dimmed)</source>
        <translation>Brillo: %1&#xa0;% (atenuado)</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Show Interface</source>
        <translation>Mostrar ventana</translation>
    </message>
    <message>
        <source>English</source>
        <extracomment>The name of your language in itself, by which the installer offers it</extracomment>
        <translation>Español</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cor&amp;tar</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Pegar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sí</translation>
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
        <translation>Mayús</translation>
    </message>
</context>
</TS>
