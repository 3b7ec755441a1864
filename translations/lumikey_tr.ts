<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr_TR" sourcelanguage="en">
<context>
    <name>MainWindow</name>
    <message>
        <source>Lumikey</source>
        <translation>Lumikey</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Başlık</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Simge durumuna küçült</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
    <message>
        <source>Backlight Status</source>
        <translation>Arka ışık</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Açık</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Kapalı</translation>
    </message>
    <message>
        <source>Brightness Level</source>
        <translation>Parlaklık</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Parlaklık</translation>
    </message>
    <message>
        <source>Single Zone Fixed</source>
        <translation>Tek bölge</translation>
    </message>
    <message>
        <source>Single Color Selection</source>
        <translation>Tüm klavyenin rengi</translation>
    </message>
    <message>
        <source>Disabled when Effects are selected!</source>
        <translation>Efekt seçiliyken kullanılamaz!</translation>
    </message>
    <message>
        <source>Keyboard preview</source>
        <translation>Klavye önizlemesi</translation>
    </message>
    <message>
        <source>Keyboard color</source>
        <translation>Klavye rengi</translation>
    </message>
    <message>
        <source>3 Zones Fixed</source>
        <translation>3 bölge</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Sol</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Orta</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Sağ</translation>
    </message>
    <message>
        <source>Left zone preview</source>
        <translation>Sol bölge önizlemesi</translation>
    </message>
    <message>
        <source>Left zone color</source>
        <translation>Sol bölge rengi</translation>
    </message>
    <message>
        <source>Center zone preview</source>
        <translation>Orta bölge önizlemesi</translation>
    </message>
    <message>
        <source>Center zone color</source>
        <translation>Orta bölge rengi</translation>
    </message>
    <message>
        <source>Right zone preview</source>
        <translation>Sağ bölge önizlemesi</translation>
    </message>
    <message>
        <source>Right zone color</source>
        <translation>Sağ bölge rengi</translation>
    </message>
    <message>
        <source>Stripe</source>
        <translation>LED şeridi</translation>
    </message>
    <message>
        <source>Touchpad Stripe LED color</source>
        <translation>Dokunmatik yüzey LED şeridinin rengi</translation>
    </message>
    <message>
        <source>Stripe preview</source>
        <translation>LED şeridi önizlemesi</translation>
    </message>
    <message>
        <source>Stripe color</source>
        <translation>LED şeridi rengi</translation>
    </message>
    <message>
        <source>Per-Key Keyboard App</source>
        <translation>Tuş başına RGB</translation>
    </message>
    <message>
        <source>Per Key RGB Keyboard App</source>
        <translation>Tuş başına RGB uygulaması</translation>
    </message>
    <message>
        <source>Per-key keyboard picture</source>
        <translation>Tuş başına RGB klavye resmi</translation>
    </message>
    <message>
        <source>Open the per-key keyboard app</source>
        <translation>Tuş başına RGB uygulamasını aç</translation>
    </message>
    <message>
        <source> Select Keyboard Zone Color:</source>
        <translation> Klavye bölgesinin rengini seçin:</translation>
    </message>
    <message>
        <source>Saturation and value</source>
        <translation>Doygunluk ve değer</translation>
    </message>
    <message>
        <source>Selected Color:</source>
        <translation>Seçilen renk:</translation>
    </message>
    <message>
        <source>Selected color</source>
        <translation>Seçilen renk</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Ton</translation>
    </message>
    <message>
        <source>RGB:</source>
        <translation>RGB:</translation>
    </message>
    <message>
        <source>RGB color</source>
        <translation>RGB rengi</translation>
    </message>
    <message>
        <source>HEX:</source>
        <translation>HEX:</translation>
    </message>
    <message>
        <source>HEX color</source>
        <translation>HEX rengi</translation>
    </message>
    <message>
        <source>Quick Basic Colors:</source>
        <translation>Temel renkler:</translation>
    </message>
    <message>
        <source>Quick basic colors</source>
        <translation>Temel renkler</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Yok</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Kırmızı</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Beyaz</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Mavi</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Camgöbeği</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Mor</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Sarı</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Yeşil</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Turuncu</translation>
    </message>
    <message>
        <source>Copy Color</source>
        <translation>Rengi kopyala</translation>
    </message>
    <message>
        <source>Paste Color</source>
        <translation>Rengi yapıştır</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Apply Value</source>
        <translation>Uygula</translation>
    </message>
    <message>
        <source>Effects:</source>
        <translation>Efektler:</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>Efekt</translation>
    </message>
    <message>
        <source>None</source>
        <comment>effect</comment>
        <translation>Yok</translation>
    </message>
    <message>
        <source>Breath</source>
        <translation>Nefes</translation>
    </message>
    <message>
        <source>Cycle</source>
        <translation>Döngü</translation>
    </message>
    <message>
        <source>Dance</source>
        <translation>Dans</translation>
    </message>
    <message>
        <source>Flash</source>
        <translation>Flaş</translation>
    </message>
    <message>
        <source>Random Color</source>
        <translation>Rastgele renk</translation>
    </message>
    <message>
        <source>Tempo</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>Dalga</translation>
    </message>
    <message>
        <source>Auto turn off:</source>
        <translation>Otomatik kapanma:</translation>
    </message>
    <message>
        <source>Auto turn off after</source>
        <translation>Otomatik kapanma süresi</translation>
    </message>
    <message>
        <source>5 seconds</source>
        <translation>5 saniye</translation>
    </message>
    <message>
        <source>10 seconds</source>
        <translation>10 saniye</translation>
    </message>
    <message>
        <source>30 seconds</source>
        <translation>30 saniye</translation>
    </message>
    <message>
        <source>1 minute</source>
        <translation>1 dakika</translation>
    </message>
    <message>
        <source>5 minutes</source>
        <translation>5 dakika</translation>
    </message>
    <message>
        <source>10 minutes</source>
        <translation>10 dakika</translation>
    </message>
    <message>
        <source>15 minutes</source>
        <translation>15 dakika</translation>
    </message>
    <message>
        <source>30 minutes</source>
        <translation>30 dakika</translation>
    </message>
    <message>
        <source>1 hour</source>
        <translation>1 saat</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ayarlar</translation>
    </message>
    <message>
        <source>Start with Windows</source>
        <translation>Windows ile başlat</translation>
    </message>
    <message>
        <source>Close button hides instead of closing</source>
        <translation>Kapat düğmesi pencereyi gizler</translation>
    </message>
    <message>
        <source>Start hidden in system tray</source>
        <translation>Sistem tepsisinde gizli başlat</translation>
    </message>
    <message>
        <source>Mouse keys will also wake auto dim</source>
        <translation>Fare düğmeleri de ışığı açar</translation>
    </message>
    <message>
        <source>User Per-Key RGB CLEVO App</source>
        <translation>CLEVO tuş başına RGB uygulaması</translation>
    </message>
    <message>
        <source>Enable P75x Stripe LED Control</source>
        <translation>LED şeridini (P75x) denetle</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>Kaldır</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Hakkında</translation>
    </message>
    <message>
        <source>Software Version</source>
        <translation>Yazılım sürümü</translation>
    </message>
    <message>
        <source>Installed Version:</source>
        <translation>Yüklü sürüm:</translation>
    </message>
    <message>
        <source>Latest Version:</source>
        <translation>En son sürüm:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Açıklama:</translation>
    </message>
    <message>
        <source>Check for Update</source>
        <translation>Güncelleştirmeyi denetle</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Güncelleştir</translation>
    </message>
    <message>
        <source>Saturation %1, value %2</source>
        <translation>Doygunluk %1, değer %2</translation>
    </message>
    <message>
        <source>Select Left Keyboard Zone Color:</source>
        <translation>Sol klavye bölgesinin rengini seçin:</translation>
    </message>
    <message>
        <source>Select Center Keyboard Zone Color:</source>
        <translation>Orta klavye bölgesinin rengini seçin:</translation>
    </message>
    <message>
        <source>Select Right Keyboard Zone Color:</source>
        <translation>Sağ klavye bölgesinin rengini seçin:</translation>
    </message>
    <message>
        <source>Select Keyboard Color:</source>
        <translation>Klavye rengini seçin:</translation>
    </message>
    <message>
        <source>Select Stripe / LCD Lid Color:</source>
        <translation>LED şeridi / kapak rengini seçin:</translation>
    </message>
    <message>
        <source>RGB copied</source>
        <translation>RGB kopyalandı</translation>
    </message>
    <message>
        <source>Hex copied</source>
        <translation>Hex kopyalandı</translation>
    </message>
    <message>
        <source>Hex # copied</source>
        <translation># ile hex kopyalandı</translation>
    </message>
    <message>
        <source>Hex value pasted</source>
        <translation>Hex değeri yapıştırıldı</translation>
    </message>
    <message>
        <source>Installed: %1</source>
        <translation>Yüklü: %1</translation>
    </message>
    <message>
        <source>Latest: %1</source>
        <translation>En son: %1</translation>
    </message>
    <message>
        <source>Control Center not installed</source>
        <translation>Control Center yüklü değil</translation>
    </message>
    <message>
        <source>You do not seem to be using Control Center. For this software to work we need to install a small dll for it to work. Can we install it?.
</source>
        <translation>Control Center kullanmıyor görünüyorsunuz. Bu yazılımın çalışması için küçük bir DLL yüklenmesi gerekiyor. Yükleyelim mi?
</translation>
    </message>
    <message>
        <source>Update Information</source>
        <translation>Güncelleştirme</translation>
    </message>
    <message>
        <source>There is an update for this software! Do you want to update now?.
</source>
        <translation>Bu yazılım için bir güncelleştirme var! Şimdi güncelleştirmek ister misiniz?
</translation>
    </message>
    <message>
        <source>There is an update for this software! But to be able to update we need Admin access. Do you want to run this app with admin access so that we can update it automatically?</source>
        <translation>Bu yazılım için bir güncelleştirme var! Ancak güncelleştirmek için yönetici hakları gerekiyor. Otomatik güncelleştirme için uygulamayı yönetici olarak çalıştırmak ister misiniz?</translation>
    </message>
    <message>
        <source>Monitor</source>
        <translation>Monitör</translation>
    </message>
    <message>
        <source>To uninstall Lumikey we need admin access.
Do you allow it?
Lumikey will restart with admin access, after that you should click the uninstall button again.</source>
        <translation>Lumikey&apos;i kaldırmak için yönetici hakları gerekiyor.
İzin veriyor musunuz?
Lumikey yönetici olarak yeniden başlayacak; ardından Kaldır düğmesine yeniden tıklayın.</translation>
    </message>
    <message>
        <source>Per Key Install</source>
        <translation>Tuş başına RGB kurulumu</translation>
    </message>
    <message>
        <source>To install the Per-Key RGB App we need Admin access, do you allow it?</source>
        <translation>Tuş başına RGB uygulamasını yüklemek için yönetici hakları gerekiyor. İzin veriyor musunuz?</translation>
    </message>
    <message>
        <source>There is an update! Click the update button.</source>
        <translation>Bir güncelleştirme var! Güncelleştir düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>You are running the latest version, there is no update.</source>
        <translation>En son sürümü kullanıyorsunuz, güncelleştirme yok.</translation>
    </message>
    <message>
        <source>You are running the latest version, there is no update.
</source>
        <translation>En son sürümü kullanıyorsunuz, güncelleştirme yok.
</translation>
    </message>
    <message>
        <source>Your version is newer then the official latest! Are you a beta tester?</source>
        <translation>Sürümünüz resmî sürümden daha yeni! Beta test kullanıcısı mısınız?</translation>
    </message>
    <message>
        <source>Your version is newer then the official latest! You are probably a beta tester.
</source>
        <translation>Sürümünüz resmî sürümden daha yeni! Herhâlde beta test kullanıcısısınız.
</translation>
    </message>
    <message>
        <source>Brightness Level: %1%</source>
        <translation>Parlaklık: %%1</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (set by Dashport)</source>
        <translation>Parlaklık: %%1 (Dashport ayarladı)</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (disabled for Effects)</source>
        <translation>Parlaklık: %%1 (efekte bağlı)</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (Auto dim mode)</source>
        <translation>Parlaklık: %%1 (oto. karartma)</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (dimming down)</source>
        <translation>Parlaklık: %%1 (karartılıyor)</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (dimmed)</source>
        <translation>Parlaklık: %%1 (karartıldı)</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Çıkış</translation>
    </message>
    <message>
        <source>Show Interface</source>
        <translation>Pencereyi göster</translation>
    </message>
    <message>
        <source>English</source>
        <extracomment>The name of your language in itself, by which the installer offers it</extracomment>
        <translation>Türkçe</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Geri al</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Yinele</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Kes</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>K&amp;opyala</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Ya&amp;pıştır</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Sil</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tümünü seç</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Evet</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Hayır</translation>
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
