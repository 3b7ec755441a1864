<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>MainWindow</name>
    <message>
        <source>Lumikey</source>
        <translation>Lumikey</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Backlight Status</source>
        <translation>Rétroéclairage</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>Brightness Level</source>
        <translation>Luminosité</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminosité</translation>
    </message>
    <message>
        <source>Single Zone Fixed</source>
        <translation>Zone unique</translation>
    </message>
    <message>
        <source>Single Color Selection</source>
        <translation>Couleur de tout le clavier</translation>
    </message>
    <message>
        <source>Disabled when Effects are selected!</source>
        <translation>Indisponible lorsqu’un effet est sélectionné&#xa0;!</translation>
    </message>
    <message>
        <source>Keyboard preview</source>
        <translation>Aperçu du clavier</translation>
    </message>
    <message>
        <source>Keyboard color</source>
        <translation>Couleur du clavier</translation>
    </message>
    <message>
        <source>3 Zones Fixed</source>
        <translation>3 zones</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Centre</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Droite</translation>
    </message>
    <message>
        <source>Left zone preview</source>
        <translation>Aperçu de la zone gauche</translation>
    </message>
    <message>
        <source>Left zone color</source>
        <translation>Couleur de la zone gauche</translation>
    </message>
    <message>
        <source>Center zone preview</source>
        <translation>Aperçu de la zone centrale</translation>
    </message>
    <message>
        <source>Center zone color</source>
        <translation>Couleur de la zone centrale</translation>
    </message>
    <message>
        <source>Right zone preview</source>
        <translation>Aperçu de la zone droite</translation>
    </message>
    <message>
        <source>Right zone color</source>
        <translation>Couleur de la zone droite</translation>
    </message>
    <message>
        <source>Stripe</source>
        <translation>Bande LED</translation>
    </message>
    <message>
        <source>Touchpad Stripe LED color</source>
        <translation>Couleur de la bande LED du pavé tactile</translation>
    </message>
    <message>
        <source>Stripe preview</source>
        <translation>Aperçu de la bande LED</translation>
    </message>
    <message>
        <source>Stripe color</source>
        <translation>Couleur de la bande LED</translation>
    </message>
    <message>
        <source>Per-Key Keyboard App</source>
        <translation>Appli touche par touche</translation>
    </message>
    <message>
        <source>Per Key RGB Keyboard App</source>
        <translation>Application RVB touche par touche</translation>
    </message>
    <message>
        <source>Per-key keyboard picture</source>
        <translation>Image du clavier touche par touche</translation>
    </message>
    <message>
        <source>Open the per-key keyboard app</source>
        <translation>Ouvrir l’application touche par touche</translation>
    </message>
    <message>
        <source> Select Keyboard Zone Color:</source>
        <translation> Couleur de la zone du clavier&#xa0;:</translation>
    </message>
    <message>
        <source>Saturation and value</source>
        <translation>Saturation et valeur</translation>
    </message>
    <message>
        <source>Selected Color:</source>
        <translation>Couleur choisie&#xa0;:</translation>
    </message>
    <message>
        <source>Selected color</source>
        <translation>Couleur choisie</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Teinte</translation>
    </message>
    <message>
        <source>RGB:</source>
        <translation>RGB:</translation>
    </message>
    <message>
        <source>RGB color</source>
        <translation>Couleur RVB</translation>
    </message>
    <message>
        <source>HEX:</source>
        <translation>HEX:</translation>
    </message>
    <message>
        <source>HEX color</source>
        <translation>Couleur HEX</translation>
    </message>
    <message>
        <source>Quick Basic Colors:</source>
        <translation>Couleurs de base&#xa0;:</translation>
    </message>
    <message>
        <source>Quick basic colors</source>
        <translation>Couleurs de base</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rouge</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Blanc</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Bleu</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Violet</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Jaune</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Vert</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Copy Color</source>
        <translation>Copier la couleur</translation>
    </message>
    <message>
        <source>Paste Color</source>
        <translation>Coller la couleur</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Apply Value</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Effects:</source>
        <translation>Effets&#xa0;:</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>Effet</translation>
    </message>
    <message>
        <source>None</source>
        <comment>effect</comment>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Breath</source>
        <translation>Respiration</translation>
    </message>
    <message>
        <source>Cycle</source>
        <translation>Cycle</translation>
    </message>
    <message>
        <source>Dance</source>
        <translation>Danse</translation>
    </message>
    <message>
        <source>Flash</source>
        <translation>Flash</translation>
    </message>
    <message>
        <source>Random Color</source>
        <translation>Couleur aléatoire</translation>
    </message>
    <message>
        <source>Tempo</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>Vague</translation>
    </message>
    <message>
        <source>Auto turn off:</source>
        <translation>Extinction auto&#xa0;:</translation>
    </message>
    <message>
        <source>Auto turn off after</source>
        <translation>Extinction automatique après</translation>
    </message>
    <message>
        <source>5 seconds</source>
        <translation>5 secondes</translation>
    </message>
    <message>
        <source>10 seconds</source>
        <translation>10 secondes</translation>
    </message>
    <message>
        <source>30 seconds</source>
        <translation>30 secondes</translation>
    </message>
    <message>
        <source>1 minute</source>
        <translation>1 minute</translation>
    </message>
    <message>
        <source>5 minutes</source>
        <translation>5 minutes</translation>
    </message>
    <message>
        <source>10 minutes</source>
        <translation>10 minutes</translation>
    </message>
    <message>
        <source>15 minutes</source>
        <translation>15 minutes</translation>
    </message>
    <message>
        <source>30 minutes</source>
        <translation>30 minutes</translation>
    </message>
    <message>
        <source>1 hour</source>
        <translation>1 heure</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Start with Windows</source>
        <translation>Démarrer avec Windows</translation>
    </message>
    <message>
        <source>Close button hides instead of closing</source>
        <translation>Fermer masque la fenêtre</translation>
    </message>
    <message>
        <source>Start hidden in system tray</source>
        <translation>Démarrer dans la barre d’état</translation>
    </message>
    <message>
        <source>Mouse keys will also wake auto dim</source>
        <translation>Les clics rallument aussi le clavier</translation>
    </message>
    <message>
        <source>User Per-Key RGB CLEVO App</source>
        <translation>Appli CLEVO RVB touche par touche</translation>
    </message>
    <message>
        <source>Enable P75x Stripe LED Control</source>
        <translation>Contrôler la bande LED (P75x)</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>Désinstaller</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Software Version</source>
        <translation>Version du logiciel</translation>
    </message>
    <message>
        <source>Installed Version:</source>
        <translation>Version installée&#xa0;:</translation>
    </message>
    <message>
        <source>Latest Version:</source>
        <translation>Dernière version&#xa0;:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Description&#xa0;:</translation>
    </message>
    <message>
        <source>Check for Update</source>
        <translation>Rechercher une mise à jour</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Mettre à jour</translation>
    </message>
    <message>
        <source>Saturation %1, value %2</source>
        <translation>Saturation %1, valeur %2</translation>
    </message>
    <message>
        <source>Select Left Keyboard Zone Color:</source>
        <translation>Couleur de la zone gauche du clavier&#xa0;:</translation>
    </message>
    <message>
        <source>Select Center Keyboard Zone Color:</source>
        <translation>Couleur de la zone centrale du clavier&#xa0;:</translation>
    </message>
    <message>
        <source>Select Right Keyboard Zone Color:</source>
        <translation>Couleur de la zone droite du clavier&#xa0;:</translation>
    </message>
    <message>
        <source>Select Keyboard Color:</source>
        <translation>Couleur du clavier&#xa0;:</translation>
    </message>
    <message>
        <source>Select Stripe / LCD Lid Color:</source>
        <translation>Couleur de la bande / du capot&#xa0;:</translation>
    </message>
    <message>
        <source>RGB copied</source>
        <translation>RVB copié</translation>
    </message>
    <message>
        <source>Hex copied</source>
        <translation>Hex copié</translation>
    </message>
    <message>
        <source>Hex # copied</source>
        <translation>Hex avec # copié</translation>
    </message>
    <message>
        <source>Hex value pasted</source>
        <translation>Valeur hex collée</translation>
    </message>
    <message>
        <source>Installed: %1</source>
        <translation>Installée&#xa0;: %1</translation>
    </message>
    <message>
        <source>Latest: %1</source>
        <translation>Dernière&#xa0;: %1</translation>
    </message>
    <message>
        <source>Control Center not installed</source>
        <translation>Control Center n’est pas installé</translation>
    </message>
    <message>
        <source>You do not seem to be using Control Center. For this software to work we need to install a small dll for it to work. Can we install it?.
</source>
        <translation>Vous ne semblez pas utiliser Control Center. Pour que ce logiciel fonctionne, une petite DLL doit être installée. Pouvons-nous l’installer&#xa0;?
</translation>
    </message>
    <message>
        <source>Update Information</source>
        <translation>Mise à jour</translation>
    </message>
    <message>
        <source>There is an update for this software! Do you want to update now?.
</source>
        <translation>Une mise à jour de ce logiciel est disponible&#xa0;! Voulez-vous l’installer maintenant&#xa0;?
</translation>
    </message>
    <message>
        <source>There is an update for this software! But to be able to update we need Admin access. Do you want to run this app with admin access so that we can update it automatically?</source>
        <translation>Une mise à jour de ce logiciel est disponible&#xa0;! Son installation exige les droits d’administrateur. Voulez-vous exécuter l’application en tant qu’administrateur pour qu’elle se mette à jour automatiquement&#xa0;?</translation>
    </message>
    <message>
        <source>Monitor</source>
        <translation>Moniteur</translation>
    </message>
    <message>
        <source>To uninstall Lumikey we need admin access.
Do you allow it?
Lumikey will restart with admin access, after that you should click the uninstall button again.</source>
        <translation>La désinstallation de Lumikey exige les droits d’administrateur.
L’autorisez-vous&#xa0;?
Lumikey redémarrera avec ces droits&#xa0;; cliquez ensuite de nouveau sur le bouton Désinstaller.</translation>
    </message>
    <message>
        <source>Per Key Install</source>
        <translation>Installation touche par touche</translation>
    </message>
    <message>
        <source>To install the Per-Key RGB App we need Admin access, do you allow it?</source>
        <translation>L’installation de l’application RVB touche par touche exige les droits d’administrateur. L’autorisez-vous&#xa0;?</translation>
    </message>
    <message>
        <source>There is an update! Click the update button.</source>
        <translation>Une mise à jour est disponible&#xa0;! Cliquez sur «&#xa0;Mettre à jour&#xa0;».</translation>
    </message>
    <message>
        <source>You are running the latest version, there is no update.</source>
        <translation>Vous utilisez la dernière version, aucune mise à jour disponible.</translation>
    </message>
    <message>
        <source>You are running the latest version, there is no update.
</source>
        <translation>Vous utilisez la dernière version, aucune mise à jour disponible.
</translation>
    </message>
    <message>
        <source>Your version is newer then the official latest! Are you a beta tester?</source>
        <translation>Votre version est plus récente que l’officielle&#xa0;! Êtes-vous bêta-testeur&#xa0;?</translation>
    </message>
    <message>
        <source>Your version is newer then the official latest! You are probably a beta tester.
</source>
        <translation>Votre version est plus récente que l’officielle&#xa0;! Vous êtes sans doute bêta-testeur.
</translation>
    </message>
    <message>
        <source>Brightness Level: %1%</source>
        <translation>Luminosité&#xa0;: %1&#xa0;%</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (set by Dashport)</source>
        <translation>Luminosité&#xa0;: %1&#xa0;% (par Dashport)</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (disabled for Effects)</source>
        <translation>Luminosité&#xa0;: %1&#xa0;% (fixée par l’effet)</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (Auto dim mode)</source>
        <translation>Luminosité&#xa0;: %1&#xa0;% (veille auto)</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (dimming down)</source>
        <translation>Luminosité&#xa0;: %1&#xa0;% (s’atténue)</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (dimmed)</source>
        <translation>Luminosité&#xa0;: %1&#xa0;% (atténuée)</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Show Interface</source>
        <translation>Afficher la fenêtre</translation>
    </message>
    <message>
        <source>English</source>
        <extracomment>The name of your language in itself, by which the installer offers it</extracomment>
        <translation>Français</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Co&amp;uper</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Co&amp;ller</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
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
        <translation>&amp;Oui</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Non</translation>
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
        <translation>Maj</translation>
    </message>
</context>
</TS>
