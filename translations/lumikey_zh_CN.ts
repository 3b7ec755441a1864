<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>MainWindow</name>
    <message>
        <source>Lumikey</source>
        <translation>Lumikey</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Backlight Status</source>
        <translation>背光状态</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>开启</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>关闭</translation>
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
        <translation>单区常亮</translation>
    </message>
    <message>
        <source>Single Color Selection</source>
        <translation>单色选择</translation>
    </message>
    <message>
        <source>Disabled when Effects are selected!</source>
        <translation>选择灯效时不可用！</translation>
    </message>
    <message>
        <source>Keyboard preview</source>
        <translation>键盘预览</translation>
    </message>
    <message>
        <source>Keyboard color</source>
        <translation>键盘颜色</translation>
    </message>
    <message>
        <source>3 Zones Fixed</source>
        <translation>三区常亮</translation>
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
        <translation>左区预览</translation>
    </message>
    <message>
        <source>Left zone color</source>
        <translation>左区颜色</translation>
    </message>
    <message>
        <source>Center zone preview</source>
        <translation>中区预览</translation>
    </message>
    <message>
        <source>Center zone color</source>
        <translation>中区颜色</translation>
    </message>
    <message>
        <source>Right zone preview</source>
        <translation>右区预览</translation>
    </message>
    <message>
        <source>Right zone color</source>
        <translation>右区颜色</translation>
    </message>
    <message>
        <source>Stripe</source>
        <translation>灯条</translation>
    </message>
    <message>
        <source>Touchpad Stripe LED color</source>
        <translation>触摸板灯条颜色</translation>
    </message>
    <message>
        <source>Stripe preview</source>
        <translation>灯条预览</translation>
    </message>
    <message>
        <source>Stripe color</source>
        <translation>灯条颜色</translation>
    </message>
    <message>
        <source>Per-Key Keyboard App</source>
        <translation>单键键盘应用</translation>
    </message>
    <message>
        <source>Per Key RGB Keyboard App</source>
        <translation>单键 RGB 键盘应用</translation>
    </message>
    <message>
        <source>Per-key keyboard picture</source>
        <translation>单键键盘图片</translation>
    </message>
    <message>
        <source>Open the per-key keyboard app</source>
        <translation>打开单键键盘应用</translation>
    </message>
    <message>
        <source> Select Keyboard Zone Color:</source>
        <translation> 选择键盘分区颜色：</translation>
    </message>
    <message>
        <source>Saturation and value</source>
        <translation>饱和度和明度</translation>
    </message>
    <message>
        <source>Selected Color:</source>
        <translation>所选颜色：</translation>
    </message>
    <message>
        <source>Selected color</source>
        <translation>所选颜色</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>色调</translation>
    </message>
    <message>
        <source>RGB:</source>
        <translation>RGB:</translation>
    </message>
    <message>
        <source>RGB color</source>
        <translation>RGB 颜色</translation>
    </message>
    <message>
        <source>HEX:</source>
        <translation>HEX:</translation>
    </message>
    <message>
        <source>HEX color</source>
        <translation>HEX 颜色</translation>
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
        <translation>无</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>红色</translation>
    </message>
    <message>
        <source>White</source>
        <translation>白色</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>蓝色</translation>
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
        <translation>黄色</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>绿色</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>橙色</translation>
    </message>
    <message>
        <source>Copy Color</source>
        <translation>复制颜色</translation>
    </message>
    <message>
        <source>Paste Color</source>
        <translation>粘贴颜色</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Apply Value</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>Effects:</source>
        <translation>灯效：</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>灯效</translation>
    </message>
    <message>
        <source>None</source>
        <comment>effect</comment>
        <translation>无</translation>
    </message>
    <message>
        <source>Breath</source>
        <translation>呼吸</translation>
    </message>
    <message>
        <source>Cycle</source>
        <translation>循环</translation>
    </message>
    <message>
        <source>Dance</source>
        <translation>舞动</translation>
    </message>
    <message>
        <source>Flash</source>
        <translation>闪烁</translation>
    </message>
    <message>
        <source>Random Color</source>
        <translation>随机颜色</translation>
    </message>
    <message>
        <source>Tempo</source>
        <translation>节拍</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>波浪</translation>
    </message>
    <message>
        <source>Auto turn off:</source>
        <translation>自动关闭：</translation>
    </message>
    <message>
        <source>Auto turn off after</source>
        <translation>自动关闭时间</translation>
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
        <translation>1 分钟</translation>
    </message>
    <message>
        <source>5 minutes</source>
        <translation>5 分钟</translation>
    </message>
    <message>
        <source>10 minutes</source>
        <translation>10 分钟</translation>
    </message>
    <message>
        <source>15 minutes</source>
        <translation>15 分钟</translation>
    </message>
    <message>
        <source>30 minutes</source>
        <translation>30 分钟</translation>
    </message>
    <message>
        <source>1 hour</source>
        <translation>1 小时</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Start with Windows</source>
        <translation>随 Windows 启动</translation>
    </message>
    <message>
        <source>Close button hides instead of closing</source>
        <translation>关闭按钮仅隐藏窗口</translation>
    </message>
    <message>
        <source>Start hidden in system tray</source>
        <translation>启动时隐藏到系统托盘</translation>
    </message>
    <message>
        <source>Mouse keys will also wake auto dim</source>
        <translation>鼠标按键也可唤醒背光</translation>
    </message>
    <message>
        <source>User Per-Key RGB CLEVO App</source>
        <translation>使用 CLEVO 单键 RGB 应用</translation>
    </message>
    <message>
        <source>Enable P75x Stripe LED Control</source>
        <translation>启用 P75x 灯条控制</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>卸载</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>Software Version</source>
        <translation>软件版本</translation>
    </message>
    <message>
        <source>Installed Version:</source>
        <translation>已安装版本：</translation>
    </message>
    <message>
        <source>Latest Version:</source>
        <translation>最新版本：</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>说明：</translation>
    </message>
    <message>
        <source>Check for Update</source>
        <translation>检查更新</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Saturation %1, value %2</source>
        <translation>饱和度 %1，明度 %2</translation>
    </message>
    <message>
        <source>Select Left Keyboard Zone Color:</source>
        <translation>选择键盘左区颜色：</translation>
    </message>
    <message>
        <source>Select Center Keyboard Zone Color:</source>
        <translation>选择键盘中区颜色：</translation>
    </message>
    <message>
        <source>Select Right Keyboard Zone Color:</source>
        <translation>选择键盘右区颜色：</translation>
    </message>
    <message>
        <source>Select Keyboard Color:</source>
        <translation>选择键盘颜色：</translation>
    </message>
    <message>
        <source>Select Stripe / LCD Lid Color:</source>
        <translation>选择灯条/屏盖颜色：</translation>
    </message>
    <message>
        <source>RGB copied</source>
        <translation>已复制 RGB</translation>
    </message>
    <message>
        <source>Hex copied</source>
        <translation>已复制 Hex</translation>
    </message>
    <message>
        <source>Hex # copied</source>
        <translation>已复制带 # 的 Hex</translation>
    </message>
    <message>
        <source>Hex value pasted</source>
        <translation>已粘贴 Hex 值</translation>
    </message>
    <message>
        <source>Installed: %1</source>
        <translation>已安装：%1</translation>
    </message>
    <message>
        <source>Latest: %1</source>
        <translation>最新：%1</translation>
    </message>
    <message>
        <source>Control Center not installed</source>
        <translation>未安装 Control Center</translation>
    </message>
    <message>
        <source>You do not seem to be using Control Center. For this software to work we need to install a small dll for it to work. Can we install it?.
</source>
        <translation>您似乎没有使用 Control Center。本软件需要安装一个小的 DLL 才能工作。可以安装吗？
</translation>
    </message>
    <message>
        <source>Update Information</source>
        <translation>更新信息</translation>
    </message>
    <message>
        <source>There is an update for this software! Do you want to update now?.
</source>
        <translation>本软件有更新！要现在更新吗？
</translation>
    </message>
    <message>
        <source>There is an update for this software! But to be able to update we need Admin access. Do you want to run this app with admin access so that we can update it automatically?</source>
        <translation>本软件有更新！但更新需要管理员权限。要以管理员身份运行本应用以便自动更新吗？</translation>
    </message>
    <message>
        <source>Monitor</source>
        <translation>监视器</translation>
    </message>
    <message>
        <source>To uninstall Lumikey we need admin access.
Do you allow it?
Lumikey will restart with admin access, after that you should click the uninstall button again.</source>
        <translation>卸载 Lumikey 需要管理员权限。
是否允许？
Lumikey 将以管理员身份重新启动，之后请再次点击“卸载”按钮。</translation>
    </message>
    <message>
        <source>Per Key Install</source>
        <translation>单键应用安装</translation>
    </message>
    <message>
        <source>To install the Per-Key RGB App we need Admin access, do you allow it?</source>
        <translation>安装单键 RGB 应用需要管理员权限，是否允许？</translation>
    </message>
    <message>
        <source>There is an update! Click the update button.</source>
        <translation>有可用更新！请点击“更新”按钮。</translation>
    </message>
    <message>
        <source>You are running the latest version, there is no update.</source>
        <translation>您使用的是最新版本，没有更新。</translation>
    </message>
    <message>
        <source>You are running the latest version, there is no update.
</source>
        <translation>您使用的是最新版本，没有更新。
</translation>
    </message>
    <message>
        <source>Your version is newer then the official latest! Are you a beta tester?</source>
        <translation>您的版本比官方最新版还新！您是测试人员吗？</translation>
    </message>
    <message>
        <source>Your version is newer then the official latest! You are probably a beta tester.
</source>
        <translation>您的版本比官方最新版还新！您可能是测试人员。
</translation>
    </message>
    <message>
        <source>Brightness Level: %1%</source>
        <translation>亮度：%1%</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (set by Dashport)</source>
        <translation>亮度：%1%（由 Dashport 设置）</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (disabled for Effects)</source>
        <translation>亮度：%1%（灯效时停用）</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (Auto dim mode)</source>
        <translation>亮度：%1%（自动调暗模式）</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (dimming down)</source>
        <translation>亮度：%1%（正在调暗）</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (dimmed)</source>
        <translation>亮度：%1%（已调暗）</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Show Interface</source>
        <translation>显示界面</translation>
    </message>
    <message>
        <source>English</source>
        <extracomment>The name of your language in itself, by which the installer offers it</extracomment>
        <translation>简体中文</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>撤消(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>恢复(&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>剪切(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>粘贴(&amp;P)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全选</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>确定</translation>
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
