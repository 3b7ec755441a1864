<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>MainWindow</name>
    <message>
        <source>Lumikey</source>
        <translation>Lumikey</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Backlight Status</source>
        <translation>バックライト</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Brightness Level</source>
        <translation>明るさ</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>明るさ</translation>
    </message>
    <message>
        <source>Single Zone Fixed</source>
        <translation>単一ゾーン</translation>
    </message>
    <message>
        <source>Single Color Selection</source>
        <translation>キーボード全体の色</translation>
    </message>
    <message>
        <source>Disabled when Effects are selected!</source>
        <translation>エフェクト選択中は使用できません</translation>
    </message>
    <message>
        <source>Keyboard preview</source>
        <translation>キーボードのプレビュー</translation>
    </message>
    <message>
        <source>Keyboard color</source>
        <translation>キーボードの色</translation>
    </message>
    <message>
        <source>3 Zones Fixed</source>
        <translation>3 ゾーン</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>中央</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>Left zone preview</source>
        <translation>左ゾーンのプレビュー</translation>
    </message>
    <message>
        <source>Left zone color</source>
        <translation>左ゾーンの色</translation>
    </message>
    <message>
        <source>Center zone preview</source>
        <translation>中央ゾーンのプレビュー</translation>
    </message>
    <message>
        <source>Center zone color</source>
        <translation>中央ゾーンの色</translation>
    </message>
    <message>
        <source>Right zone preview</source>
        <translation>右ゾーンのプレビュー</translation>
    </message>
    <message>
        <source>Right zone color</source>
        <translation>右ゾーンの色</translation>
    </message>
    <message>
        <source>Stripe</source>
        <translation>ストライプ</translation>
    </message>
    <message>
        <source>Touchpad Stripe LED color</source>
        <translation>タッチパッドのストライプ LED の色</translation>
    </message>
    <message>
        <source>Stripe preview</source>
        <translation>ストライプのプレビュー</translation>
    </message>
    <message>
        <source>Stripe color</source>
        <translation>ストライプの色</translation>
    </message>
    <message>
        <source>Per-Key Keyboard App</source>
        <translation>キー別アプリ</translation>
    </message>
    <message>
        <source>Per Key RGB Keyboard App</source>
        <translation>キー別 RGB キーボードアプリ</translation>
    </message>
    <message>
        <source>Per-key keyboard picture</source>
        <translation>キー別キーボードの画像</translation>
    </message>
    <message>
        <source>Open the per-key keyboard app</source>
        <translation>キー別キーボードアプリを開く</translation>
    </message>
    <message>
        <source> Select Keyboard Zone Color:</source>
        <translation> キーボードゾーンの色を選択:</translation>
    </message>
    <message>
        <source>Saturation and value</source>
        <translation>彩度と明度</translation>
    </message>
    <message>
        <source>Selected Color:</source>
        <translation>選択した色:</translation>
    </message>
    <message>
        <source>Selected color</source>
        <translation>選択した色</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>色相</translation>
    </message>
    <message>
        <source>RGB:</source>
        <translation>RGB:</translation>
    </message>
    <message>
        <source>RGB color</source>
        <translation>RGB カラー</translation>
    </message>
    <message>
        <source>HEX:</source>
        <translation>HEX:</translation>
    </message>
    <message>
        <source>HEX color</source>
        <translation>HEX カラー</translation>
    </message>
    <message>
        <source>Quick Basic Colors:</source>
        <translation>基本色:</translation>
    </message>
    <message>
        <source>Quick basic colors</source>
        <translation>基本色</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>赤</translation>
    </message>
    <message>
        <source>White</source>
        <translation>白</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>青</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>シアン</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>紫</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>黄</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>緑</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>オレンジ</translation>
    </message>
    <message>
        <source>Copy Color</source>
        <translation>色をコピー</translation>
    </message>
    <message>
        <source>Paste Color</source>
        <translation>色を貼り付け</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Apply Value</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>Effects:</source>
        <translation>エフェクト:</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>エフェクト</translation>
    </message>
    <message>
        <source>None</source>
        <comment>effect</comment>
        <translation>なし</translation>
    </message>
    <message>
        <source>Breath</source>
        <translation>ブレス</translation>
    </message>
    <message>
        <source>Cycle</source>
        <translation>サイクル</translation>
    </message>
    <message>
        <source>Dance</source>
        <translation>ダンス</translation>
    </message>
    <message>
        <source>Flash</source>
        <translation>フラッシュ</translation>
    </message>
    <message>
        <source>Random Color</source>
        <translation>ランダムカラー</translation>
    </message>
    <message>
        <source>Tempo</source>
        <translation>テンポ</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>ウェーブ</translation>
    </message>
    <message>
        <source>Auto turn off:</source>
        <translation>自動消灯:</translation>
    </message>
    <message>
        <source>Auto turn off after</source>
        <translation>自動消灯までの時間</translation>
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
        <translation>1 分</translation>
    </message>
    <message>
        <source>5 minutes</source>
        <translation>5 分</translation>
    </message>
    <message>
        <source>10 minutes</source>
        <translation>10 分</translation>
    </message>
    <message>
        <source>15 minutes</source>
        <translation>15 分</translation>
    </message>
    <message>
        <source>30 minutes</source>
        <translation>30 分</translation>
    </message>
    <message>
        <source>1 hour</source>
        <translation>1 時間</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Start with Windows</source>
        <translation>Windows と同時に起動</translation>
    </message>
    <message>
        <source>Close button hides instead of closing</source>
        <translation>閉じるボタンでウィンドウを隠す</translation>
    </message>
    <message>
        <source>Start hidden in system tray</source>
        <translation>システムトレイに隠して起動</translation>
    </message>
    <message>
        <source>Mouse keys will also wake auto dim</source>
        <translation>マウスボタンでも点灯する</translation>
    </message>
    <message>
        <source>User Per-Key RGB CLEVO App</source>
        <translation>CLEVO のキー別 RGB アプリを使う</translation>
    </message>
    <message>
        <source>Enable P75x Stripe LED Control</source>
        <translation>P75x のストライプ LED を制御</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>アンインストール</translation>
    </message>
    <message>
        <source>About</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Software Version</source>
        <translation>ソフトウェアのバージョン</translation>
    </message>
    <message>
        <source>Installed Version:</source>
        <translation>インストール済みバージョン:</translation>
    </message>
    <message>
        <source>Latest Version:</source>
        <translation>最新バージョン:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>説明:</translation>
    </message>
    <message>
        <source>Check for Update</source>
        <translation>更新を確認</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Saturation %1, value %2</source>
        <translation>彩度 %1、明度 %2</translation>
    </message>
    <message>
        <source>Select Left Keyboard Zone Color:</source>
        <translation>キーボード左ゾーンの色を選択:</translation>
    </message>
    <message>
        <source>Select Center Keyboard Zone Color:</source>
        <translation>キーボード中央ゾーンの色を選択:</translation>
    </message>
    <message>
        <source>Select Right Keyboard Zone Color:</source>
        <translation>キーボード右ゾーンの色を選択:</translation>
    </message>
    <message>
        <source>Select Keyboard Color:</source>
        <translation>キーボードの色を選択:</translation>
    </message>
    <message>
        <source>Select Stripe / LCD Lid Color:</source>
        <translation>ストライプ / 天板の色を選択:</translation>
    </message>
    <message>
        <source>RGB copied</source>
        <translation>RGB をコピーしました</translation>
    </message>
    <message>
        <source>Hex copied</source>
        <translation>Hex をコピーしました</translation>
    </message>
    <message>
        <source>Hex # copied</source>
        <translation># 付き Hex をコピーしました</translation>
    </message>
    <message>
        <source>Hex value pasted</source>
        <translation>Hex 値を貼り付けました</translation>
    </message>
    <message>
        <source>Installed: %1</source>
        <translation>インストール済み: %1</translation>
    </message>
    <message>
        <source>Latest: %1</source>
        <translation>最新: %1</translation>
    </message>
    <message>
        <source>Control Center not installed</source>
        <translation>Control Center がインストールされていません</translation>
    </message>
    <message>
        <source>You do not seem to be using Control Center. For this software to work we need to install a small dll for it to work. Can we install it?.
</source>
        <translation>Control Center を使用していないようです。このソフトウェアの動作には小さな DLL のインストールが必要です。インストールしますか?
</translation>
    </message>
    <message>
        <source>Update Information</source>
        <translation>更新情報</translation>
    </message>
    <message>
        <source>There is an update for this software! Do you want to update now?.
</source>
        <translation>このソフトウェアの更新があります。今すぐ更新しますか?
</translation>
    </message>
    <message>
        <source>There is an update for this software! But to be able to update we need Admin access. Do you want to run this app with admin access so that we can update it automatically?</source>
        <translation>このソフトウェアの更新がありますが、更新には管理者権限が必要です。自動で更新できるように、このアプリを管理者として実行しますか?</translation>
    </message>
    <message>
        <source>Monitor</source>
        <translation>モニター</translation>
    </message>
    <message>
        <source>To uninstall Lumikey we need admin access.
Do you allow it?
Lumikey will restart with admin access, after that you should click the uninstall button again.</source>
        <translation>Lumikey のアンインストールには管理者権限が必要です。
許可しますか?
Lumikey が管理者として再起動しますので、その後もう一度アンインストールボタンをクリックしてください。</translation>
    </message>
    <message>
        <source>Per Key Install</source>
        <translation>キー別アプリのインストール</translation>
    </message>
    <message>
        <source>To install the Per-Key RGB App we need Admin access, do you allow it?</source>
        <translation>キー別 RGB アプリのインストールには管理者権限が必要です。許可しますか?</translation>
    </message>
    <message>
        <source>There is an update! Click the update button.</source>
        <translation>更新があります。更新ボタンをクリックしてください。</translation>
    </message>
    <message>
        <source>You are running the latest version, there is no update.</source>
        <translation>最新バージョンです。更新はありません。</translation>
    </message>
    <message>
        <source>You are running the latest version, there is no update.
</source>
        <translation>最新バージョンです。更新はありません。
</translation>
    </message>
    <message>
        <source>Your version is newer then the official latest! Are you a beta tester?</source>
        <translation>公式の最新版より新しいバージョンです。ベータテスターの方ですか?</translation>
    </message>
    <message>
        <source>Your version is newer then the official latest! You are probably a beta tester.
</source>
        <translation>公式の最新版より新しいバージョンです。ベータテスターの方でしょう。
</translation>
    </message>
    <message>
        <source>Brightness Level: %1%</source>
        <translation>明るさ: %1%</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (set by Dashport)</source>
        <translation>明るさ: %1% (Dashport の設定)</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (disabled for Effects)</source>
        <translation>明るさ: %1% (エフェクト中は無効)</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (Auto dim mode)</source>
        <translation>明るさ: %1% (自動減光モード)</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (dimming down)</source>
        <translation>明るさ: %1% (減光中)</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (dimmed)</source>
        <translation>明るさ: %1% (減光済み)</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Show Interface</source>
        <translation>ウィンドウを表示</translation>
    </message>
    <message>
        <source>English</source>
        <extracomment>The name of your language in itself, by which the installer offers it</extracomment>
        <translation>日本語</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>やり直し(&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>切り取り(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>貼り付け(&amp;P)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべて選択</translation>
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
        <translation>はい(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>いいえ(&amp;N)</translation>
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
