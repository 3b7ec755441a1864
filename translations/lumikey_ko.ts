<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en">
<context>
    <name>MainWindow</name>
    <message>
        <source>Lumikey</source>
        <translation>Lumikey</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>제목</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>최소화</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Backlight Status</source>
        <translation>백라이트 상태</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>켜기</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>끄기</translation>
    </message>
    <message>
        <source>Brightness Level</source>
        <translation>밝기</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>밝기</translation>
    </message>
    <message>
        <source>Single Zone Fixed</source>
        <translation>단일 영역 고정</translation>
    </message>
    <message>
        <source>Single Color Selection</source>
        <translation>단일 색 선택</translation>
    </message>
    <message>
        <source>Disabled when Effects are selected!</source>
        <translation>효과를 선택하면 사용할 수 없습니다!</translation>
    </message>
    <message>
        <source>Keyboard preview</source>
        <translation>키보드 미리 보기</translation>
    </message>
    <message>
        <source>Keyboard color</source>
        <translation>키보드 색</translation>
    </message>
    <message>
        <source>3 Zones Fixed</source>
        <translation>3개 영역 고정</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>왼쪽</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>가운데</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>오른쪽</translation>
    </message>
    <message>
        <source>Left zone preview</source>
        <translation>왼쪽 영역 미리 보기</translation>
    </message>
    <message>
        <source>Left zone color</source>
        <translation>왼쪽 영역 색</translation>
    </message>
    <message>
        <source>Center zone preview</source>
        <translation>가운데 영역 미리 보기</translation>
    </message>
    <message>
        <source>Center zone color</source>
        <translation>가운데 영역 색</translation>
    </message>
    <message>
        <source>Right zone preview</source>
        <translation>오른쪽 영역 미리 보기</translation>
    </message>
    <message>
        <source>Right zone color</source>
        <translation>오른쪽 영역 색</translation>
    </message>
    <message>
        <source>Stripe</source>
        <translation>스트라이프</translation>
    </message>
    <message>
        <source>Touchpad Stripe LED color</source>
        <translation>터치패드 스트라이프 LED 색</translation>
    </message>
    <message>
        <source>Stripe preview</source>
        <translation>스트라이프 미리 보기</translation>
    </message>
    <message>
        <source>Stripe color</source>
        <translation>스트라이프 색</translation>
    </message>
    <message>
        <source>Per-Key Keyboard App</source>
        <translation>키별 키보드 앱</translation>
    </message>
    <message>
        <source>Per Key RGB Keyboard App</source>
        <translation>키별 RGB 키보드 앱</translation>
    </message>
    <message>
        <source>Per-key keyboard picture</source>
        <translation>키별 키보드 그림</translation>
    </message>
    <message>
        <source>Open the per-key keyboard app</source>
        <translation>키별 키보드 앱 열기</translation>
    </message>
    <message>
        <source> Select Keyboard Zone Color:</source>
        <translation> 키보드 영역 색 선택:</translation>
    </message>
    <message>
        <source>Saturation and value</source>
        <translation>채도와 명도</translation>
    </message>
    <message>
        <source>Selected Color:</source>
        <translation>선택한 색:</translation>
    </message>
    <message>
        <source>Selected color</source>
        <translation>선택한 색</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>색상</translation>
    </message>
    <message>
        <source>RGB:</source>
        <translation>RGB:</translation>
    </message>
    <message>
        <source>RGB color</source>
        <translation>RGB 색</translation>
    </message>
    <message>
        <source>HEX:</source>
        <translation>HEX:</translation>
    </message>
    <message>
        <source>HEX color</source>
        <translation>HEX 색</translation>
    </message>
    <message>
        <source>Quick Basic Colors:</source>
        <translation>빠른 기본 색:</translation>
    </message>
    <message>
        <source>Quick basic colors</source>
        <translation>빠른 기본 색</translation>
    </message>
    <message>
        <source>None</source>
        <translation>없음</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>빨강</translation>
    </message>
    <message>
        <source>White</source>
        <translation>흰색</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>파랑</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>청록</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>보라</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>노랑</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>초록</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>주황</translation>
    </message>
    <message>
        <source>Copy Color</source>
        <translation>색 복사</translation>
    </message>
    <message>
        <source>Paste Color</source>
        <translation>색 붙여넣기</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Apply Value</source>
        <translation>적용</translation>
    </message>
    <message>
        <source>Effects:</source>
        <translation>효과:</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>효과</translation>
    </message>
    <message>
        <source>None</source>
        <comment>effect</comment>
        <translation>없음</translation>
    </message>
    <message>
        <source>Breath</source>
        <translation>호흡</translation>
    </message>
    <message>
        <source>Cycle</source>
        <translation>순환</translation>
    </message>
    <message>
        <source>Dance</source>
        <translation>댄스</translation>
    </message>
    <message>
        <source>Flash</source>
        <translation>깜박임</translation>
    </message>
    <message>
        <source>Random Color</source>
        <translation>임의 색</translation>
    </message>
    <message>
        <source>Tempo</source>
        <translation>템포</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>물결</translation>
    </message>
    <message>
        <source>Auto turn off:</source>
        <translation>자동 끄기:</translation>
    </message>
    <message>
        <source>Auto turn off after</source>
        <translation>자동 끄기 시간</translation>
    </message>
    <message>
        <source>5 seconds</source>
        <translation>5초</translation>
    </message>
    <message>
        <source>10 seconds</source>
        <translation>10초</translation>
    </message>
    <message>
        <source>30 seconds</source>
        <translation>30초</translation>
    </message>
    <message>
        <source>1 minute</source>
        <translation>1분</translation>
    </message>
    <message>
        <source>5 minutes</source>
        <translation>5분</translation>
    </message>
    <message>
        <source>10 minutes</source>
        <translation>10분</translation>
    </message>
    <message>
        <source>15 minutes</source>
        <translation>15분</translation>
    </message>
    <message>
        <source>30 minutes</source>
        <translation>30분</translation>
    </message>
    <message>
        <source>1 hour</source>
        <translation>1시간</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Start with Windows</source>
        <translation>Windows와 함께 시작</translation>
    </message>
    <message>
        <source>Close button hides instead of closing</source>
        <translation>닫기 단추를 누르면 창 숨기기</translation>
    </message>
    <message>
        <source>Start hidden in system tray</source>
        <translation>시스템 트레이에 숨겨서 시작</translation>
    </message>
    <message>
        <source>Mouse keys will also wake auto dim</source>
        <translation>마우스 단추로도 조명 켜기</translation>
    </message>
    <message>
        <source>User Per-Key RGB CLEVO App</source>
        <translation>CLEVO 키별 RGB 앱 사용</translation>
    </message>
    <message>
        <source>Enable P75x Stripe LED Control</source>
        <translation>P75x 스트라이프 LED 제어 사용</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>제거</translation>
    </message>
    <message>
        <source>About</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>Software Version</source>
        <translation>소프트웨어 버전</translation>
    </message>
    <message>
        <source>Installed Version:</source>
        <translation>설치된 버전:</translation>
    </message>
    <message>
        <source>Latest Version:</source>
        <translation>최신 버전:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>설명:</translation>
    </message>
    <message>
        <source>Check for Update</source>
        <translation>업데이트 확인</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>업데이트</translation>
    </message>
    <message>
        <source>Saturation %1, value %2</source>
        <translation>채도 %1, 명도 %2</translation>
    </message>
    <message>
        <source>Select Left Keyboard Zone Color:</source>
        <translation>키보드 왼쪽 영역 색 선택:</translation>
    </message>
    <message>
        <source>Select Center Keyboard Zone Color:</source>
        <translation>키보드 가운데 영역 색 선택:</translation>
    </message>
    <message>
        <source>Select Right Keyboard Zone Color:</source>
        <translation>키보드 오른쪽 영역 색 선택:</translation>
    </message>
    <message>
        <source>Select Keyboard Color:</source>
        <translation>키보드 색 선택:</translation>
    </message>
    <message>
        <source>Select Stripe / LCD Lid Color:</source>
        <translation>스트라이프 / 덮개 색 선택:</translation>
    </message>
    <message>
        <source>RGB copied</source>
        <translation>RGB를 복사했습니다</translation>
    </message>
    <message>
        <source>Hex copied</source>
        <translation>Hex를 복사했습니다</translation>
    </message>
    <message>
        <source>Hex # copied</source>
        <translation># 포함 Hex를 복사했습니다</translation>
    </message>
    <message>
        <source>Hex value pasted</source>
        <translation>Hex 값을 붙여넣었습니다</translation>
    </message>
    <message>
        <source>Installed: %1</source>
        <translation>설치됨: %1</translation>
    </message>
    <message>
        <source>Latest: %1</source>
        <translation>최신: %1</translation>
    </message>
    <message>
        <source>Control Center not installed</source>
        <translation>Control Center가 설치되어 있지 않음</translation>
    </message>
    <message>
        <source>You do not seem to be using Control Center. For this software to work we need to install a small dll for it to work. Can we install it?.
</source>
        <translation>Control Center를 사용하지 않는 것 같습니다. 이 소프트웨어가 작동하려면 작은 DLL을 설치해야 합니다. 설치할까요?
</translation>
    </message>
    <message>
        <source>Update Information</source>
        <translation>업데이트 정보</translation>
    </message>
    <message>
        <source>There is an update for this software! Do you want to update now?.
</source>
        <translation>이 소프트웨어의 업데이트가 있습니다! 지금 업데이트할까요?
</translation>
    </message>
    <message>
        <source>There is an update for this software! But to be able to update we need Admin access. Do you want to run this app with admin access so that we can update it automatically?</source>
        <translation>이 소프트웨어의 업데이트가 있습니다! 업데이트하려면 관리자 권한이 필요합니다. 자동으로 업데이트할 수 있도록 이 앱을 관리자 권한으로 실행할까요?</translation>
    </message>
    <message>
        <source>Monitor</source>
        <translation>모니터</translation>
    </message>
    <message>
        <source>To uninstall Lumikey we need admin access.
Do you allow it?
Lumikey will restart with admin access, after that you should click the uninstall button again.</source>
        <translation>Lumikey를 제거하려면 관리자 권한이 필요합니다.
허용하시겠습니까?
Lumikey가 관리자 권한으로 다시 시작되면 제거 단추를 다시 클릭하세요.</translation>
    </message>
    <message>
        <source>Per Key Install</source>
        <translation>키별 앱 설치</translation>
    </message>
    <message>
        <source>To install the Per-Key RGB App we need Admin access, do you allow it?</source>
        <translation>키별 RGB 앱을 설치하려면 관리자 권한이 필요합니다. 허용하시겠습니까?</translation>
    </message>
    <message>
        <source>There is an update! Click the update button.</source>
        <translation>업데이트가 있습니다! 업데이트 단추를 클릭하세요.</translation>
    </message>
    <message>
        <source>You are running the latest version, there is no update.</source>
        <translation>최신 버전을 사용하고 있습니다. 업데이트가 없습니다.</translation>
    </message>
    <message>
        <source>You are running the latest version, there is no update.
</source>
        <translation>최신 버전을 사용하고 있습니다. 업데이트가 없습니다.
</translation>
    </message>
    <message>
        <source>Your version is newer then the official latest! Are you a beta tester?</source>
        <translation>공식 최신 버전보다 새로운 버전입니다! 베타 테스터이신가요?</translation>
    </message>
    <message>
        <source>Your version is newer then the official latest! You are probably a beta tester.
</source>
        <translation>공식 최신 버전보다 새로운 버전입니다! 베타 테스터이신 것 같습니다.
</translation>
    </message>
    <message>
        <source>Brightness Level: %1%</source>
        <translation>밝기: %1%</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (set by Dashport)</source>
        <translation>밝기: %1% (Dashport에서 설정)</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (disabled for Effects)</source>
        <translation>밝기: %1% (효과 사용 중 조절 불가)</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (Auto dim mode)</source>
        <translation>밝기: %1% (자동 어둡게 모드)</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (dimming down)</source>
        <translation>밝기: %1% (어두워지는 중)</translation>
    </message>
    <message>
        <source>Brightness Level: %1% (dimmed)</source>
        <translation>밝기: %1% (어두워짐)</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>끝내기</translation>
    </message>
    <message>
        <source>Show Interface</source>
        <translation>인터페이스 표시</translation>
    </message>
    <message>
        <source>English</source>
        <extracomment>The name of your language in itself, by which the installer offers it</extracomment>
        <translation>한국어</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>실행 취소(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>다시 실행(&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>잘라내기(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>복사(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>붙여넣기(&amp;P)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>모두 선택</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>예(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>아니요(&amp;N)</translation>
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
