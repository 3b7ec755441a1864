<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en">
<context>
    <name>MainWindow</name>
    <message>
        <source>Lumikey</source>
        <translation>Lumikey</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>標題</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Backlight Status</source>
        <translation>背光狀態</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>開啟</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Brightness Level</source>
        <translation>亮度</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>亮度</translation>
    </message>
    <message>
        <source>Single Zone Fixed</source>
        <translation>單區恆亮</translation>
    </message>
    <message>
        <source>Single Color Selection</source>
        <translation>單色選擇</translation>
    </message>
    <message>
        <source>Disabled when Effects are selected!</source>
        <translation>選擇燈效時無法使用！</translation>
    </message>
    <message>
        <source>Keyboard preview</source>
        <translation>鍵盤預覽</translation>
    </message>
    <message>
        <source>Keyboard color</source>
        <translation>鍵盤色彩</translation>
    </message>
    <message>
        <source>3 Zones Fixed</source>
        <translation>三區恆亮</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>中</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>Left zone preview</source>
        <translation>左區預覽</translation>
    </message>
    <message>
        <source>Left zone color</source>
        <translation>左區色彩</translation>
    </message>
    <message>
        <source>Center zone preview</source>
        <translation>中區預覽</translation>
    </message>
    <message>
        <source>Center zone color</source>
        <translation>中區色彩</translation>
    </message>
    <message>
        <source>Right zone preview</source>
        <translation>右區預覽</translation>
    </message>
    <message>
        <source>Right zone color</source>
        <translation>右區色彩</translation>
    </message>
    <message>
        <source>Stripe</source>
        <translation>燈條</translation>
    </message>
    <message>
        <source>Touchpad Stripe LED color</source>
        <translation>觸控板燈條色彩</translation>
    </message>
    <message>
        <source>Stripe preview</source>
        <translation>燈條預覽</translation>
    </message>
    <message>
        <source>Stripe color</source>
        <translation>燈條色彩</translation>
    </message>
    <message>
        <source>Per-Key Keyboard App</source>
        <translation>單鍵鍵盤應用程式</translation>
    </message>
    <message>
        <source>Per Key RGB Keyboard App</source>
        <translation>單鍵 RGB 鍵盤應用程式</translation>
    </message>
    <message>
        <source>Per-key keyboard picture</source>
        <translation>單鍵鍵盤圖片</translation>
    </message>
    <message>
        <source>Open the per-key keyboard app</source>
        <translation>開啟單鍵鍵盤應用程式</translation>
    </message>
    <message>
        <source> Select Keyboard Zone Color:</source>
        <translation> 選擇鍵盤分區色彩：</translation>
    </message>
    <message>
        <source>Saturation and value</source>
        <translation>飽和度與明度</translation>
    </message>
    <message>
        <source>Selected Color:</source>
        <translation>所選色彩：</translation>
    </message>
    <message>
        <source>Selected color</source>
        <translation>所選色彩</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>色調</translation>
    </message>
    <message>
        <source>RGB:</source>
        <translation>RGB:</translation>
    </message>
    <message>
        <source>RGB color</source>
        <translation>RGB 色彩</translation>
    </message>
    <message>
        <source>HEX:</source>
        <translation>HEX:</translation>
    </message>
    <message>
        <source>HEX color</source>
        <translation>HEX 色彩</translation>
    </message>
    <message>
        <source>Quick Basic Colors:</source>
        <translation>常用基本色：</translation>
    </message>
    <message>
        <source>Quick basic colors</source>
        <translation>常用基本色</translation>
    </message>
    <message>
        <source>None</source>
        <translation>無</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>紅色</translation>
    </message>
    <message>
        <source>White</source>
        <translation>白色</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>藍色</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>青色</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>紫色</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>黃色</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>綠色</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>橙色</translation>
    </message>
    <message>
        <source>Copy Color</source>
        <translation>複製色彩</translation>
    </message>
    <message>
        <source>Paste Color</source>
        <translation>貼上色彩</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Apply Value</source>
        <translation>套用</translation>
    </message>
    <message>
        <source>Effects:</source>
        <translation>燈效：</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>燈效</translation>
    </message>
    <message>
        <source>None</source>
        <comment>effect</comment>
        <translation>無</translation>
    </message>
    <message>
        <source>Breath</source>
        <translation>呼吸</translation>
    </message>
    <message>
        <source>Cycle</source>
        <translation>循環</translation>
    </message>
    <message>
        <source>Dance</source>
        <translation>舞動</translation>
    </message>
    <message>
        <source>Flash</source>
        <translation>閃爍</translation>
    </message>
    <message>
        <source>Random Color</source>
        <translation>隨機色彩</translation>
    </message>
    <message>
        <source>Tempo</source>
        <translation>節拍</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>波浪</translation>
    </message>
    <message>
        <source>Auto turn off:</source>
        <translation>自動關閉：</translation>
    </message>
    <message>
        <source>Auto turn off after</source>
        <translation>自動關閉時間</translation>
    </message>
    <message>
        <source>5 seconds</source>
        <translation>5 秒</translation>
    </message>
    <message>
        <source>10 seconds</source>
        <translation>10 秒</translation>
    </message>
    <message>
        <source>30 seconds</source>
        <translation>30 秒</translation>
    </message>
    <message>
        <source>1 minute</source>
        <translation>1 分鐘</translation>
    </message>
    <message>
        <source>5 minutes</source>
        <translation>5 分鐘</translation>
    </message>
    <message>
        <source>10 minutes</source>
        <translation>10 分鐘</translation>
    </message>
    <message>
        <source>15 minutes</source>
        <translation>15 分鐘</translation>
    </message>
    <message>
        <source>30 minutes</source>
        <translation>30 分鐘</translation>
    </message>
    <message>
        <source>1 hour</source>
        <translation>1 小時</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Start with Windows</source>
        <translation>隨 Windows 啟動</translation>
    </message>
    <message>
        <source>Close button hides instead of closing</source>
        <translation>關閉按鈕僅隱藏視窗</translation>
    </message>
    <message>
        <source>Start hidden in system tray</source>
        <translation>啟動時隱藏到系統匣</translation>
    </message>
    <message>
        <source>Mouse keys will also wake auto dim</source>
        <translation>滑鼠按鍵也可喚醒背光</translation>
    </message>
    <message>
        <source>User Per-Key RGB CLEVO App</source>
        <translation>使用 CLEVO 單鍵 RGB 應用程式</translation>
    </message>
    <message>
        <source>Enable P75x Stripe LED Control</source>
        <translation>啟用 P75x 燈條控制</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>解除安裝</translation>
    </message>
    <message>
        <source>About</source>
        <translation>關於</translation>
    </message>
    <message>
        <source>Software Version</source>
        <translation>軟體版本</translation>
    </message>
    <message>
        <source>Installed Version:</source>
        <translation>已安裝版本：</translation>
    </message>
    <message>
        <source>Latest Version:</source>
        <translation>最新版本：</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>說明：</translation>
    </message>
    <message>
        <source>Check for Update</source>
        <translation>檢查更新</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Saturation %1, value %2</source>
        <translation>飽和度 %1，明度 %2</translation>
    </message>
    <message>
        <source>Select Left Keyboard Zone Color:</source>
        <translation>選擇鍵盤左區色彩：</translation>
    </message>
    <message>
        <source>Select Center Keyboard Zone Color:</source>
        <translation>選擇鍵盤中區色彩：</translation>
    </message>
    <message>
        <source>Select Right Keyboard Zone Color:</source>
        <translation>選擇鍵盤右區色彩：</translation>
    </message>
    <message>
        <source>Select Keyboard Color:</source>
        <translation>選擇鍵盤色彩：</translation>
    </message>
    <message>
        <source>Select Stripe / LCD Lid Color:</source>
        <translation>選擇燈條/上蓋色彩：</translation>
    </message>
    <message>
        <source>RGB copied</source>
        <translation>已複製 RGB</translation>
    </message>
    <message>
        <source>Hex copied</source>
        <translation>已複製 Hex</translation>
    </message>
    <message>
        <source>Hex # copied</source>
        <translation>已複製含 # 的 Hex</translation>
    </message>
    <message>
        <source>Hex value pasted</source>
        <translation>已貼上 Hex 值</translation>
    </message>
    <message>
        <source>Installed: %1</source>
        <translation>已安裝：%1</translation>
    </message>
    <message>
        <source>Latest: %1</source>
        <translation>最新：%1</translation>
    </message>
    <message>
        <source>Control Center not installed</source>
        <translation>未安裝 Control Center</translation>
    </message>
    <message>
        <source>You do not seem to be using Control Center. For this software to work we need to install a small dll for it to work. Can we install it?.
</source>
        <translation>您似乎沒有使用 Control Center。本軟體需要安裝一個小型 DLL 才能運作。可以安裝嗎？
</translation>
    </message>
    <message>
        <source>Update Information</source>
        <translation>更新資訊</translation>
    </message>
    <message>
        <source>There is an update for this software! Do you want to update now?.
</source>
        <translation>本軟體有更新！要立即更新嗎？
</translation>
    </message>
    <message>
        <source>There is an update for this software! But to be able to update we need Admin access. Do you want to run this app with admin access so that we can update it automatically?</source>
        <translation>本軟體有更新！但更新需要系統管理員權限。要以系統管理員身分執行本應用程式以便自動更新嗎？</translation>
    </message>
    <message>
        <source>Monitor</source>
        <translation>監視器</translation>
    </message>
    <message>
        <source>To uninstall Lumikey we need admin access.
Do you allow it?
Lumikey will restart with admin access, after that you should click the uninstall button again.</source>
        <translation>解除安裝 Lumikey 需要系統管理員權限。
是否允許？
Lumikey 將以系統管理員身分重新啟動，之後請再按一次「解除安裝」按鈕。</translation>
    </message>
    <message>
        <source>Per Key Install</source>
        <translation>單鍵應用程式安裝</translation>
    </message>
    <message>
        <source>To install the Per-Key RGB App we need Admin access, do you allow it?</source>
        <translation>安裝單鍵 RGB 應用程式需要系統管理員權限，是否允許？</translation>
    </message>
    <message>
        <source>There is an update! Click the update button.</source>
        <translation>有可用的更新！請按「更新」按鈕。</translation>
    </message>
    <message>
        <source>You are running the latest version, there is no update.</source>
        <translation>您使用的是最新版本，沒有更新。</translation>
    </message>
    <message>
        <source>You are running the latest version, there is no update.
</source>
        <translation>您使用的是最新版本，沒有更新。
</translation>
    </message>
    <message>
        <source>Your version is newer then the official latest! Are you a beta tester?</source>
        <translation>您的版本比官方最新版還新！您是測試人員嗎？</translation>
    </message>
    <message>
        <source>Your version is newer then the official latest! You are probably a beta tester.
</source>
        <translation>您的版本比官方最新版還新！您可能是測試人員。
</translation>
    </message>
    <message>
        <source>Brightness Level: %1%</source>
        <translation>亮度：%1%</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (set by Dashport)</source>
        <translation>亮度：%1%（Dashport 設定）</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (disabled for Effects)</source>
        <translation>亮度：%1%（燈效時停用）</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (Auto dim mode)</source>
        <translation>亮度：%1%（自動調暗模式）</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (dimming down)</source>
        <translation>亮度：%1%（正在調暗）</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (dimmed)</source>
        <translation>亮度：%1%（已調暗）</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>結束</translation>
    </message>
    <message>
        <source>Show Interface</source>
        <translation>顯示介面</translation>
    </message>
    <message>
        <source>English</source>
        <extracomment>The name of your language in itself, by which the installer offers it</extracomment>
        <translation>繁體中文</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>復原(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>剪下(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>複製(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>貼上(&amp;P)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>刪除</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全選</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>是(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>否(&amp;N)</translation>
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
