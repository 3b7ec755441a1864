<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
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
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Backlight Status</source>
        <translation>Retroiluminação</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Ativada</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Desativada</translation>
    </message>
    <message>
        <source>Brightness Level</source>
        <translation>Brilho</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brilho</translation>
    </message>
    <message>
        <source>Single Zone Fixed</source>
        <translation>Zona única</translation>
    </message>
    <message>
        <source>Single Color Selection</source>
        <translation>Cor de todo o teclado</translation>
    </message>
    <message>
        <source>Disabled when Effects are selected!</source>
        <translation>Indisponível enquanto houver um efeito!</translation>
    </message>
    <message>
        <source>Keyboard preview</source>
        <translation>Prévia do teclado</translation>
    </message>
    <message>
        <source>Keyboard color</source>
        <translation>Cor do teclado</translation>
    </message>
    <message>
        <source>3 Zones Fixed</source>
        <translation>3 zonas</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Esquerda</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Direita</translation>
    </message>
    <message>
        <source>Left zone preview</source>
        <translation>Prévia da zona esquerda</translation>
    </message>
    <message>
        <source>Left zone color</source>
        <translation>Cor da zona esquerda</translation>
    </message>
    <message>
        <source>Center zone preview</source>
        <translation>Prévia da zona central</translation>
    </message>
    <message>
        <source>Center zone color</source>
        <translation>Cor da zona central</translation>
    </message>
    <message>
        <source>Right zone preview</source>
        <translation>Prévia da zona direita</translation>
    </message>
    <message>
        <source>Right zone color</source>
        <translation>Cor da zona direita</translation>
    </message>
    <message>
        <source>Stripe</source>
        <translation>Faixa de LED</translation>
    </message>
    <message>
        <source>Touchpad Stripe LED color</source>
        <translation>Cor da faixa de LED do touchpad</translation>
    </message>
    <message>
        <source>Stripe preview</source>
        <translation>Prévia da faixa de LED</translation>
    </message>
    <message>
        <source>Stripe color</source>
        <translation>Cor da faixa de LED</translation>
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
        <translation>Imagem do teclado tecla por tecla</translation>
    </message>
    <message>
        <source>Open the per-key keyboard app</source>
        <translation>Abrir o app tecla por tecla</translation>
    </message>
    <message>
        <source> Select Keyboard Zone Color:</source>
        <translation> Escolha a cor da zona:</translation>
    </message>
    <message>
        <source>Saturation and value</source>
        <translation>Saturação e valor</translation>
    </message>
    <message>
        <source>Selected Color:</source>
        <translation>Cor escolhida:</translation>
    </message>
    <message>
        <source>Selected color</source>
        <translation>Cor escolhida</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Matiz</translation>
    </message>
    <message>
        <source>RGB:</source>
        <translation>RGB:</translation>
    </message>
    <message>
        <source>RGB color</source>
        <translation>Cor RGB</translation>
    </message>
    <message>
        <source>HEX:</source>
        <translation>HEX:</translation>
    </message>
    <message>
        <source>HEX color</source>
        <translation>Cor HEX</translation>
    </message>
    <message>
        <source>Quick Basic Colors:</source>
        <translation>Cores básicas:</translation>
    </message>
    <message>
        <source>Quick basic colors</source>
        <translation>Cores básicas</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nenhuma</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Vermelho</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Branco</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Azul</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Ciano</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Roxo</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Amarelo</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Laranja</translation>
    </message>
    <message>
        <source>Copy Color</source>
        <translation>Copiar cor</translation>
    </message>
    <message>
        <source>Paste Color</source>
        <translation>Colar cor</translation>
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
        <translation>Efeitos:</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>Efeito</translation>
    </message>
    <message>
        <source>None</source>
        <comment>effect</comment>
        <translation>Nenhum</translation>
    </message>
    <message>
        <source>Breath</source>
        <translation>Respiração</translation>
    </message>
    <message>
        <source>Cycle</source>
        <translation>Ciclo</translation>
    </message>
    <message>
        <source>Dance</source>
        <translation>Dança</translation>
    </message>
    <message>
        <source>Flash</source>
        <translation>Flash</translation>
    </message>
    <message>
        <source>Random Color</source>
        <translation>Cor aleatória</translation>
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
        <translation>Desligamento automático:</translation>
    </message>
    <message>
        <source>Auto turn off after</source>
        <translation>Desligar automaticamente após</translation>
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
        <translation>Configurações</translation>
    </message>
    <message>
        <source>Start with Windows</source>
        <translation>Iniciar com o Windows</translation>
    </message>
    <message>
        <source>Close button hides instead of closing</source>
        <translation>O botão Fechar apenas oculta a janela</translation>
    </message>
    <message>
        <source>Start hidden in system tray</source>
        <translation>Iniciar oculto na bandeja</translation>
    </message>
    <message>
        <source>Mouse keys will also wake auto dim</source>
        <translation>Cliques também acendem o teclado</translation>
    </message>
    <message>
        <source>User Per-Key RGB CLEVO App</source>
        <translation>App CLEVO RGB tecla por tecla</translation>
    </message>
    <message>
        <source>Enable P75x Stripe LED Control</source>
        <translation>Controlar a faixa de LED (P75x)</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>Desinstalar</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Sobre</translation>
    </message>
    <message>
        <source>Software Version</source>
        <translation>Versão do software</translation>
    </message>
    <message>
        <source>Installed Version:</source>
        <translation>Versão instalada:</translation>
    </message>
    <message>
        <source>Latest Version:</source>
        <translation>Versão mais recente:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Descrição:</translation>
    </message>
    <message>
        <source>Check for Update</source>
        <translation>Verificar atualização</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Atualizar</translation>
    </message>
    <message>
        <source>Saturation %1, value %2</source>
        <translation>Saturação %1, valor %2</translation>
    </message>
    <message>
        <source>Select Left Keyboard Zone Color:</source>
        <translation>Escolha a cor da zona esquerda:</translation>
    </message>
    <message>
        <source>Select Center Keyboard Zone Color:</source>
        <translation>Escolha a cor da zona central:</translation>
    </message>
    <message>
        <source>Select Right Keyboard Zone Color:</source>
        <translation>Escolha a cor da zona direita:</translation>
    </message>
    <message>
        <source>Select Keyboard Color:</source>
        <translation>Escolha a cor do teclado:</translation>
    </message>
    <message>
        <source>Select Stripe / LCD Lid Color:</source>
        <translation>Escolha a cor da faixa / da tampa:</translation>
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
        <translation>Hex com # copiado</translation>
    </message>
    <message>
        <source>Hex value pasted</source>
        <translation>Valor hex colado</translation>
    </message>
    <message>
        <source>Installed: %1</source>
        <translation>Instalada: %1</translation>
    </message>
    <message>
        <source>Latest: %1</source>
        <translation>Mais recente: %1</translation>
    </message>
    <message>
        <source>Control Center not installed</source>
        <translation>Control Center não está instalado</translation>
    </message>
    <message>
        <source>You do not seem to be using Control Center. For this software to work we need to install a small dll for it to work. Can we install it?.
</source>
        <translation>Parece que você não usa o Control Center. Para este software funcionar, é preciso instalar uma pequena DLL. Podemos instalá-la?
</translation>
    </message>
    <message>
        <source>Update Information</source>
        <translation>Atualização</translation>
    </message>
    <message>
        <source>There is an update for this software! Do you want to update now?.
</source>
        <translation>Há uma atualização deste software! Deseja atualizar agora?
</translation>
    </message>
    <message>
        <source>There is an update for this software! But to be able to update we need Admin access. Do you want to run this app with admin access so that we can update it automatically?</source>
        <translation>Há uma atualização deste software! Para atualizar, são necessários privilégios de administrador. Deseja executar este app como administrador para que ele seja atualizado automaticamente?</translation>
    </message>
    <message>
        <source>Monitor</source>
        <translation>Monitor</translation>
    </message>
    <message>
        <source>To uninstall Lumikey we need admin access.
Do you allow it?
Lumikey will restart with admin access, after that you should click the uninstall button again.</source>
        <translation>Para desinstalar o Lumikey, são necessários privilégios de administrador.
Você permite?
O Lumikey será reiniciado como administrador; depois clique de novo no botão Desinstalar.</translation>
    </message>
    <message>
        <source>Per Key Install</source>
        <translation>Instalação tecla por tecla</translation>
    </message>
    <message>
        <source>To install the Per-Key RGB App we need Admin access, do you allow it?</source>
        <translation>Para instalar o app RGB tecla por tecla, são necessários privilégios de administrador. Você permite?</translation>
    </message>
    <message>
        <source>There is an update! Click the update button.</source>
        <translation>Há uma atualização! Clique no botão Atualizar.</translation>
    </message>
    <message>
        <source>You are running the latest version, there is no update.</source>
        <translation>Você tem a versão mais recente, não há atualização.</translation>
    </message>
    <message>
        <source>You are running the latest version, there is no update.
</source>
        <translation>Você tem a versão mais recente, não há atualização.
</translation>
    </message>
    <message>
        <source>Your version is newer then the official latest! Are you a beta tester?</source>
        <translation>Sua versão é mais nova que a oficial! Você é um testador beta?</translation>
    </message>
    <message>
        <source>Your version is newer then the official latest! You are probably a beta tester.
</source>
        <translation>Sua versão é mais nova que a oficial! Você provavelmente é um testador beta.
</translation>
    </message>
    <message>
        <source>Brightness Level: %1%</source>
        <translation>Brilho: %1%</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (set by Dashport)</source>
        <translation>Brilho: %1% (definido pelo Dashport)</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (disabled for Effects)</source>
        <translation>Brilho: %1% (desativado pelo efeito)</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (Auto dim mode)</source>
        <translation>Brilho: %1% (redução automática)</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (dimming down)</source>
        <translation>Brilho: %1% (reduzindo)</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (dimmed)</source>
        <translation>Brilho: %1% (reduzido)</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>Show Interface</source>
        <translation>Mostrar janela</translation>
    </message>
    <message>
        <source>English</source>
        <extracomment>The name of your language in itself, by which the installer offers it</extracomment>
        <translation>Português (Brasil)</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Desfazer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Refazer</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Recor&amp;tar</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Co&amp;lar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Excluir</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Selecionar tudo</translation>
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
        <translation>&amp;Sim</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Não</translation>
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
