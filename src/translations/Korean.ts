<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en_US">
<context>
    <name>ActionAssignUi</name>
    <message>
        <source>BACK</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>적용</translation>
    </message>
</context>
<context>
    <name>ActionBtn</name>
    <message>
        <source>ACTION</source>
        <translation>동작</translation>
    </message>
</context>
<context>
    <name>ActionWid</name>
    <message>
        <source>ACTION</source>
        <translation>동작</translation>
    </message>
</context>
<context>
    <name>AdvAssignWid</name>
    <message>
        <source>CTRL LEFT</source>
        <translation>왼쪽 CTRL</translation>
    </message>
    <message>
        <source>SHIFT LEFT</source>
        <translation>왼쪽 SHIFT</translation>
    </message>
    <message>
        <source>ALT LEFT</source>
        <translation>왼쪽 ALT</translation>
    </message>
    <message>
        <source>CTRL RIGHT</source>
        <translation>오른쪽 CTRL</translation>
    </message>
    <message>
        <source>SHIFT RIGHT</source>
        <translation>오른쪽 SHIFT</translation>
    </message>
    <message>
        <source>ALT RIGHT</source>
        <translation>오른쪽 ALT</translation>
    </message>
</context>
<context>
    <name>AppPathDlg</name>
    <message>
        <source>APPLICATION</source>
        <translation>응용 프로그램</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>PATH</source>
        <translation>경로</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>파일 열기</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>적용</translation>
    </message>
</context>
<context>
    <name>ApplicationBtn</name>
    <message>
        <source>Open File</source>
        <translation>파일 열기</translation>
    </message>
</context>
<context>
    <name>AssignMenuUi</name>
    <message>
        <source>REASSIGN KEY</source>
        <translation>키 다시 지정</translation>
    </message>
    <message>
        <source>CONTROLLER MAPPING MODE</source>
        <translation>컨트롤러 모드</translation>
    </message>
    <message>
        <source>DUAL ACTION MAPPING MODE</source>
        <translation>이중 동작 모드</translation>
    </message>
    <message>
        <source>CLEAR KEY ASSIGNMENT</source>
        <translation>키 지정 지우기</translation>
    </message>
    <message>
        <source>DISABLE KEY</source>
        <translation>키 사용 안 함</translation>
    </message>
</context>
<context>
    <name>AssignWid</name>
    <message>
        <source>warning</source>
        <translation>경고</translation>
    </message>
    <message>
        <source>Macro assign has reached maximum limit</source>
        <translation>매크로 지정 한도에 도달했습니다</translation>
    </message>
    <message>
        <source>Fail to find the path of the program.</source>
        <translation>프로그램 경로를 찾을 수 없습니다.</translation>
    </message>
    <message>
        <source>Please assign it manually:</source>
        <translation>직접 지정해 주십시오:</translation>
    </message>
</context>
<context>
    <name>BackLightUi</name>
    <message>
        <source>BACKLIGHT</source>
        <translation>백라이트</translation>
    </message>
</context>
<context>
    <name>Common</name>
    <message>
        <source>A1</source>
        <translation>A1</translation>
    </message>
    <message>
        <source>A2</source>
        <translation>A2</translation>
    </message>
    <message>
        <source>A3</source>
        <translation>A3</translation>
    </message>
    <message>
        <source>BLUR</source>
        <translation>흐림 효과</translation>
    </message>
    <message>
        <source>BRUSH SIZE</source>
        <translation>브러시 크기</translation>
    </message>
    <message>
        <source>BRUSH HARDNESS</source>
        <translation>브러시 경도</translation>
    </message>
    <message>
        <source>CROP</source>
        <translation>자르기</translation>
    </message>
    <message>
        <source>CLONE STAMP</source>
        <translation>복제 도장</translation>
    </message>
    <message>
        <source>DODGE</source>
        <translation>닷지</translation>
    </message>
    <message>
        <source>EYEDROP</source>
        <translation>스포이드</translation>
    </message>
    <message>
        <source>LASSO</source>
        <translation>올가미</translation>
    </message>
    <message>
        <source>LAUNCH PS</source>
        <translation>PS 실행</translation>
    </message>
    <message>
        <source>MOVE</source>
        <translation>이동</translation>
    </message>
    <message>
        <source>RECTANGULAR MARQUEE</source>
        <translation>사각형 선택</translation>
    </message>
    <message>
        <source>MAGNIFYING</source>
        <translation>돋보기</translation>
    </message>
    <message>
        <source>PEN</source>
        <translation>펜</translation>
    </message>
    <message>
        <source>POINTER</source>
        <translation>포인터</translation>
    </message>
    <message>
        <source>QUICK SELECTION</source>
        <translation>빠른 선택</translation>
    </message>
    <message>
        <source>TEXT</source>
        <translation>문자</translation>
    </message>
    <message>
        <source>BACKWARD</source>
        <translation>역방향 재생</translation>
    </message>
    <message>
        <source>COMPARISON</source>
        <translation>비교</translation>
    </message>
    <message>
        <source>FORWARD</source>
        <translation>정방향 재생</translation>
    </message>
    <message>
        <source>GO TO IN</source>
        <translation>시작 지점으로</translation>
    </message>
    <message>
        <source>GO TO OUT</source>
        <translation>종료 지점으로</translation>
    </message>
    <message>
        <source>HAND</source>
        <translation>손</translation>
    </message>
    <message>
        <source>LAUNCH PR</source>
        <translation>PR 실행</translation>
    </message>
    <message>
        <source>MARK IN</source>
        <translation>시작 표시</translation>
    </message>
    <message>
        <source>MARK OUT</source>
        <translation>종료 표시</translation>
    </message>
    <message>
        <source>PLAY-STOP TOGGLE</source>
        <translation>재생/정지</translation>
    </message>
    <message>
        <source>RAZOR</source>
        <translation>자르기 도구</translation>
    </message>
    <message>
        <source>RIPPLE EDIT</source>
        <translation>잔물결 편집</translation>
    </message>
    <message>
        <source>SLIP</source>
        <translation>밀어넣기</translation>
    </message>
    <message>
        <source>STEP BACK 1 FRAME</source>
        <translation>1프레임 뒤로</translation>
    </message>
    <message>
        <source>STEP FORWARD 1 FRAME</source>
        <translation>1프레임 앞으로</translation>
    </message>
    <message>
        <source>SELECTION</source>
        <translation>선택</translation>
    </message>
    <message>
        <source>TRACK SELECT FORWARD</source>
        <translation>앞으로 트랙 선택</translation>
    </message>
    <message>
        <source>ARTBOARD</source>
        <translation>대지</translation>
    </message>
    <message>
        <source>BRUSH OPACITY</source>
        <translation>브러시 불투명도</translation>
    </message>
    <message>
        <source>DIRECT SELECTION</source>
        <translation>직접 선택</translation>
    </message>
    <message>
        <source>ELLIPSE</source>
        <translation>타원</translation>
    </message>
    <message>
        <source>LAUNCH AI</source>
        <translation>AI 실행</translation>
    </message>
    <message>
        <source>POLYGON</source>
        <translation>다각형</translation>
    </message>
    <message>
        <source>ROTATE</source>
        <translation>회전</translation>
    </message>
    <message>
        <source>RECTANGLE</source>
        <translation>사각형</translation>
    </message>
    <message>
        <source>ROUNDED RECTANGLE</source>
        <translation>둥근 사각형</translation>
    </message>
    <message>
        <source>Play Action 1. Please assign F2 to an Action in Photoshop</source>
        <translation>액션 1을 재생합니다. Photoshop에서 액션에 F2를 지정하십시오</translation>
    </message>
    <message>
        <source>Play Action 2. Please assign F3 to an Action in Photoshop</source>
        <translation>액션 2를 재생합니다. Photoshop에서 액션에 F3을 지정하십시오</translation>
    </message>
    <message>
        <source>Play Action 3. Please assign F4 to an Action in Photoshop</source>
        <translation>액션 3을 재생합니다. Photoshop에서 액션에 F4를 지정하십시오</translation>
    </message>
    <message>
        <source>To use Presso(Pressure Sensitive) Blur,
please assign N to Blur Tool in Photoshop(Alt+Shift+Ctrl+K)</source>
        <translation>Presso(압력 감지) 흐림 효과를 사용하려면
Photoshop에서 흐림 효과 도구에 N을 지정하십시오(Alt+Shift+Ctrl+K)</translation>
    </message>
    <message>
        <source>COMPARISON
Please assign F2 to Comparison Tool in Premiere Pro(Ctrl+Alt+K)</source>
        <translation>비교
Premiere Pro에서 비교 보기에 F2를 지정하십시오(Ctrl+Alt+K)</translation>
    </message>
    <message>
        <source>Play Action 1. Please assign F2 to an Action in Illustrator</source>
        <translation>액션 1을 재생합니다. Illustrator에서 액션에 F2를 지정하십시오</translation>
    </message>
    <message>
        <source>Play Action 2. Please assign F3 to an Action in Illustrator</source>
        <translation>액션 2를 재생합니다. Illustrator에서 액션에 F3을 지정하십시오</translation>
    </message>
    <message>
        <source>Play Action 3. Please assign F4 to an Action in Illustrator</source>
        <translation>액션 3을 재생합니다. Illustrator에서 액션에 F4를 지정하십시오</translation>
    </message>
    <message>
        <source>POLYGON
Please assign 2 to Polygon Tool in Illustrator(Alt+Shift+Ctrl+K)</source>
        <translation>다각형
Illustrator에서 다각형 도구에 2를 지정하십시오(Alt+Shift+Ctrl+K)</translation>
    </message>
    <message>
        <source>ROUNDED RECTANGLE
Please assign 1 to Rounded Rectangle Tool in Illustrator(Alt+Shift+Ctrl+K)</source>
        <translation>둥근 사각형
Illustrator에서 둥근 사각형 도구에 1을 지정하십시오(Alt+Shift+Ctrl+K)</translation>
    </message>
    <message>
        <source>UNKNOWN</source>
        <translation>알 수 없음</translation>
    </message>
    <message>
        <source>PHOTOSHOP</source>
        <translation>PHOTOSHOP</translation>
    </message>
    <message>
        <source>PREMIERE PRO</source>
        <translation>PREMIERE PRO</translation>
    </message>
    <message>
        <source>ILLUSTRATOR</source>
        <translation>ILLUSTRATOR</translation>
    </message>
</context>
<context>
    <name>DualActionAdvUi</name>
    <message>
        <source>ACTION 1</source>
        <translation>동작 1</translation>
    </message>
    <message>
        <source>ACTION 2</source>
        <translation>동작 2</translation>
    </message>
    <message>
        <source>TYPE</source>
        <translation>유형</translation>
    </message>
</context>
<context>
    <name>DualActionDistUi</name>
    <message>
        <source>ACTIVATION DISTANCE</source>
        <translation>작동 거리</translation>
    </message>
    <message>
        <source>TRAVEL</source>
        <translation>이동 거리</translation>
    </message>
</context>
<context>
    <name>DualActionTipWid</name>
    <message>
        <source>ACTION1</source>
        <translation>동작1</translation>
    </message>
    <message>
        <source>ACTION2</source>
        <translation>동작2</translation>
    </message>
</context>
<context>
    <name>DualActionType</name>
    <message>
        <source>NORMAL
(ACTION1 &gt; ACTION2)</source>
        <translation>일반
(동작1 &gt; 동작2)</translation>
    </message>
    <message>
        <source>TOGGLE
(ACTION1 &gt; ACTION2 &gt; ACTION1)</source>
        <translation>전환
(동작1 &gt; 동작2 &gt; 동작1)</translation>
    </message>
    <message>
        <source>COMBINE
(ACTION1 &gt; ACTION1 + ACTION2)</source>
        <translation>조합
(동작1 &gt; 동작1 + 동작2)</translation>
    </message>
</context>
<context>
    <name>GameCtrlWid</name>
    <message>
        <source>L</source>
        <translation>L</translation>
    </message>
    <message>
        <source>R</source>
        <translation>R</translation>
    </message>
</context>
<context>
    <name>InputUi</name>
    <message>
        <source>MAPPING INPUT</source>
        <translation>매핑 입력</translation>
    </message>
</context>
<context>
    <name>KeyCodes</name>
    <message>
        <source>KEYBOARD</source>
        <translation>키보드</translation>
    </message>
    <message>
        <source>MOUSE</source>
        <translation>마우스</translation>
    </message>
    <message>
        <source>MEDIA</source>
        <translation>미디어</translation>
    </message>
    <message>
        <source>MACRO</source>
        <translation>매크로</translation>
    </message>
    <message>
        <source>GAME CONTROLLER</source>
        <translation>게임 컨트롤러</translation>
    </message>
    <message>
        <source>APPLICATION</source>
        <translation>응용 프로그램</translation>
    </message>
    <message>
        <source>DUAL ACTION</source>
        <translation>이중 동작</translation>
    </message>
    <message>
        <source>PRESSO FUNCTIONS</source>
        <translation>PRESSO 기능</translation>
    </message>
    <message>
        <source>BACKLIGHT</source>
        <translation>백라이트</translation>
    </message>
    <message>
        <source>PROFILE</source>
        <translation>프로필</translation>
    </message>
    <message>
        <source>PRESET MODE</source>
        <translation>사전 설정</translation>
    </message>
    <message>
        <source>DISABLED</source>
        <translation>사용 안 함</translation>
    </message>
    <message>
        <source>UNASSIGNED</source>
        <translation>지정 안 됨</translation>
    </message>
    <message>
        <source>UNKNOWN</source>
        <translation>알 수 없음</translation>
    </message>
    <message>
        <source>OPEN TASK MANAGER</source>
        <translation>작업 관리자 열기</translation>
    </message>
    <message>
        <source>SWITCH BETWEEN OPEN APPS</source>
        <translation>열린 앱 간 전환</translation>
    </message>
    <message>
        <source>BROWSER BACKWARD</source>
        <translation>브라우저 뒤로</translation>
    </message>
    <message>
        <source>BROWSER FORWARD</source>
        <translation>브라우저 앞으로</translation>
    </message>
    <message>
        <source>MOVE UP ONE SCREEN</source>
        <translation>한 화면 위로</translation>
    </message>
    <message>
        <source>MOVE DOWN ONE SCREEN</source>
        <translation>한 화면 아래로</translation>
    </message>
    <message>
        <source>VIEW OPEN APPS</source>
        <translation>열린 앱 보기</translation>
    </message>
    <message>
        <source>COPY SELECTED ITEMS TO CLIPBOARD</source>
        <translation>선택한 항목을 클립보드에 복사</translation>
    </message>
    <message>
        <source>CUT SELECTED ITEMS</source>
        <translation>선택한 항목 잘라내기</translation>
    </message>
    <message>
        <source>PASTE CONTENT FROM CLIPBOARD</source>
        <translation>클립보드에서 붙여넣기</translation>
    </message>
    <message>
        <source>SELECT ALL CONTENT</source>
        <translation>모두 선택</translation>
    </message>
    <message>
        <source>UNDO AN ACTION</source>
        <translation>작업 실행 취소</translation>
    </message>
    <message>
        <source>REDO AN ACTION</source>
        <translation>작업 다시 실행</translation>
    </message>
    <message>
        <source>DELETE THE SELECTED ITEM AND MOVE IT TO THE RECYCLE BIN</source>
        <translation>선택한 항목을 휴지통으로 이동</translation>
    </message>
    <message>
        <source>OPEN THE START MENU</source>
        <translation>시작 메뉴 열기</translation>
    </message>
    <message>
        <source>SWITCH THE KEYBOARD LAYOUT</source>
        <translation>키보드 레이아웃 전환</translation>
    </message>
    <message>
        <source>CLOSE ACTIVE WINDOW</source>
        <translation>활성 창 닫기</translation>
    </message>
    <message>
        <source>DISABLE</source>
        <translation>사용 안 함</translation>
    </message>
    <message>
        <source>F13</source>
        <translation>F13</translation>
    </message>
    <message>
        <source>F14</source>
        <translation>F14</translation>
    </message>
    <message>
        <source>F15</source>
        <translation>F15</translation>
    </message>
    <message>
        <source>F16</source>
        <translation>F16</translation>
    </message>
    <message>
        <source>F17</source>
        <translation>F17</translation>
    </message>
    <message>
        <source>F18</source>
        <translation>F18</translation>
    </message>
    <message>
        <source>F19</source>
        <translation>F19</translation>
    </message>
    <message>
        <source>F20</source>
        <translation>F20</translation>
    </message>
    <message>
        <source>F21</source>
        <translation>F21</translation>
    </message>
    <message>
        <source>F22</source>
        <translation>F22</translation>
    </message>
    <message>
        <source>F23</source>
        <translation>F23</translation>
    </message>
    <message>
        <source>F24</source>
        <translation>F24</translation>
    </message>
    <message>
        <source>00</source>
        <translation>00</translation>
    </message>
    <message>
        <source>=</source>
        <translation>=</translation>
    </message>
    <message>
        <source>EFFECT CYCLE+</source>
        <translation>다음 효과+</translation>
    </message>
    <message>
        <source>Power Mode:Disable</source>
        <translation>전원 모드:끔</translation>
    </message>
    <message>
        <source>Power Mode:Working</source>
        <translation>전원 모드:업무</translation>
    </message>
    <message>
        <source>Power Mode:Performance</source>
        <translation>전원 모드:성능</translation>
    </message>
    <message>
        <source>Power Mode:Gaming</source>
        <translation>전원 모드:게임</translation>
    </message>
    <message>
        <source>LED DARKER-</source>
        <translation>LED 어둡게-</translation>
    </message>
    <message>
        <source>LED BRIGHTER+</source>
        <translation>LED 밝게+</translation>
    </message>
    <message>
        <source>L TRIGGER</source>
        <translation>L 트리거</translation>
    </message>
    <message>
        <source>R TRIGGER</source>
        <translation>R 트리거</translation>
    </message>
    <message>
        <source>E-MAIL</source>
        <translation>이메일</translation>
    </message>
    <message>
        <source>CALCULATOR</source>
        <translation>계산기</translation>
    </message>
    <message>
        <source>PLAY/PAUSE</source>
        <translation>재생/일시 정지</translation>
    </message>
    <message>
        <source>STOP</source>
        <translation>정지</translation>
    </message>
    <message>
        <source>PREVIOUS TRACK</source>
        <translation>이전 곡</translation>
    </message>
    <message>
        <source>NEXT TRACK</source>
        <translation>다음 곡</translation>
    </message>
    <message>
        <source>VOLUME MUTE/UNMUTE</source>
        <translation>음소거 켬/끔</translation>
    </message>
    <message>
        <source>VOLUME DOWN</source>
        <translation>볼륨 낮춤</translation>
    </message>
    <message>
        <source>VOLUME UP</source>
        <translation>볼륨 높임</translation>
    </message>
    <message>
        <source>WEB BROWSER</source>
        <translation>웹 브라우저</translation>
    </message>
    <message>
        <source>CALIBRATE</source>
        <translation>보정</translation>
    </message>
    <message>
        <source>EFFECT CYCLE-</source>
        <translation>이전 효과-</translation>
    </message>
    <message>
        <source>SPEED DOWN LED EFFECT-</source>
        <translation>LED 효과 느리게-</translation>
    </message>
    <message>
        <source>SPEED UP LED EFFECT+</source>
        <translation>LED 효과 빠르게+</translation>
    </message>
    <message>
        <source>D PAD UP RIGHT</source>
        <translation>방향 패드 오른쪽 위</translation>
    </message>
    <message>
        <source>D PAD DOWN RIGHT</source>
        <translation>방향 패드 오른쪽 아래</translation>
    </message>
    <message>
        <source>D PAD DOWN LEFT</source>
        <translation>방향 패드 왼쪽 아래</translation>
    </message>
    <message>
        <source>D PAD UP LEFT</source>
        <translation>방향 패드 왼쪽 위</translation>
    </message>
    <message>
        <source>D PAD UP</source>
        <translation>방향 패드 위</translation>
    </message>
    <message>
        <source>D PAD DOWN</source>
        <translation>방향 패드 아래</translation>
    </message>
    <message>
        <source>D PAD LEFT</source>
        <translation>방향 패드 왼쪽</translation>
    </message>
    <message>
        <source>D PAD RIGHT</source>
        <translation>방향 패드 오른쪽</translation>
    </message>
    <message>
        <source>A BUTTON</source>
        <translation>A 버튼</translation>
    </message>
    <message>
        <source>B BUTTON</source>
        <translation>B 버튼</translation>
    </message>
    <message>
        <source>X BUTTON</source>
        <translation>X 버튼</translation>
    </message>
    <message>
        <source>Y BUTTON</source>
        <translation>Y 버튼</translation>
    </message>
    <message>
        <source>L BUMPER</source>
        <translation>L 범퍼</translation>
    </message>
    <message>
        <source>R BUMPER</source>
        <translation>R 범퍼</translation>
    </message>
    <message>
        <source>GUIDE BUTTON</source>
        <translation>가이드 버튼</translation>
    </message>
    <message>
        <source>START BUTTON</source>
        <translation>시작 버튼</translation>
    </message>
    <message>
        <source>HOME BUTTON</source>
        <translation>홈 버튼</translation>
    </message>
    <message>
        <source>L STICK PRESS</source>
        <translation>L 스틱 누르기</translation>
    </message>
    <message>
        <source>R STICK PRESS</source>
        <translation>R 스틱 누르기</translation>
    </message>
    <message>
        <source>L STICK LEFT</source>
        <translation>L 스틱 왼쪽</translation>
    </message>
    <message>
        <source>L STICK DOWN</source>
        <translation>L 스틱 아래</translation>
    </message>
    <message>
        <source>R STICK LEFT</source>
        <translation>R 스틱 왼쪽</translation>
    </message>
    <message>
        <source>R STICK DOWN</source>
        <translation>R 스틱 아래</translation>
    </message>
    <message>
        <source>CURSOR UP</source>
        <translation>커서 위</translation>
    </message>
    <message>
        <source>CURSOR RIGHT</source>
        <translation>커서 오른쪽</translation>
    </message>
    <message>
        <source>CURSOR DOWN</source>
        <translation>커서 아래</translation>
    </message>
    <message>
        <source>CURSOR LEFT</source>
        <translation>커서 왼쪽</translation>
    </message>
    <message>
        <source>SCROLL UP</source>
        <translation>위로 스크롤</translation>
    </message>
    <message>
        <source>SCROLL DOWN</source>
        <translation>아래로 스크롤</translation>
    </message>
    <message>
        <source>LEFT CLICK</source>
        <translation>왼쪽 클릭</translation>
    </message>
    <message>
        <source>RIGHT CLICK</source>
        <translation>오른쪽 클릭</translation>
    </message>
    <message>
        <source>WHEEL CLICK</source>
        <translation>휠 클릭</translation>
    </message>
    <message>
        <source>BACKWARD</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>FORWARD</source>
        <translation>앞으로</translation>
    </message>
    <message>
        <source>L STICK RIGHT</source>
        <translation>L 스틱 오른쪽</translation>
    </message>
    <message>
        <source>L STICK UP</source>
        <translation>L 스틱 위</translation>
    </message>
    <message>
        <source>R STICK RIGHT</source>
        <translation>R 스틱 오른쪽</translation>
    </message>
    <message>
        <source>R STICK UP</source>
        <translation>R 스틱 위</translation>
    </message>
    <message>
        <source>SCROLL LEFT</source>
        <translation>왼쪽으로 스크롤</translation>
    </message>
    <message>
        <source>SCROLL RIGHT</source>
        <translation>오른쪽으로 스크롤</translation>
    </message>
    <message>
        <source>PROFILE 1</source>
        <translation>프로필 1</translation>
    </message>
    <message>
        <source>PROFILE 2</source>
        <translation>프로필 2</translation>
    </message>
    <message>
        <source>PROFILE 3</source>
        <translation>프로필 3</translation>
    </message>
    <message>
        <source>PROFILE 4</source>
        <translation>프로필 4</translation>
    </message>
    <message>
        <source>PROFILE 5</source>
        <translation>프로필 5</translation>
    </message>
    <message>
        <source>PROFILE 6</source>
        <translation>프로필 6</translation>
    </message>
    <message>
        <source>PROFILE 7</source>
        <translation>프로필 7</translation>
    </message>
    <message>
        <source>PROFILE 8</source>
        <translation>프로필 8</translation>
    </message>
    <message>
        <source>PROFILE 9</source>
        <translation>프로필 9</translation>
    </message>
    <message>
        <source>PROFILE 10</source>
        <translation>프로필 10</translation>
    </message>
    <message>
        <source>PROFILE 11</source>
        <translation>프로필 11</translation>
    </message>
    <message>
        <source>PROFILE 12</source>
        <translation>프로필 12</translation>
    </message>
    <message>
        <source>PROFILE 13</source>
        <translation>프로필 13</translation>
    </message>
    <message>
        <source>PROFILE 14</source>
        <translation>프로필 14</translation>
    </message>
    <message>
        <source>PROFILE 15</source>
        <translation>프로필 15</translation>
    </message>
    <message>
        <source>PROFILE 16</source>
        <translation>프로필 16</translation>
    </message>
    <message>
        <source>PROFILE 17</source>
        <translation>프로필 17</translation>
    </message>
    <message>
        <source>PROFILE 18</source>
        <translation>프로필 18</translation>
    </message>
    <message>
        <source>PROFILE 19</source>
        <translation>프로필 19</translation>
    </message>
    <message>
        <source>PROFILE 20</source>
        <translation>프로필 20</translation>
    </message>
    <message>
        <source>PROFILE 21</source>
        <translation>프로필 21</translation>
    </message>
    <message>
        <source>PROFILE 22</source>
        <translation>프로필 22</translation>
    </message>
    <message>
        <source>PROFILE 23</source>
        <translation>프로필 23</translation>
    </message>
    <message>
        <source>PROFILE 24</source>
        <translation>프로필 24</translation>
    </message>
    <message>
        <source>PROFILE[+]</source>
        <translation>프로필[+]</translation>
    </message>
    <message>
        <source>PROFILE[-]</source>
        <translation>프로필[-]</translation>
    </message>
    <message>
        <source>PROFILE CYCLE+</source>
        <translation>다음 프로필+</translation>
    </message>
    <message>
        <source>PROFILE CYCLE-</source>
        <translation>이전 프로필-</translation>
    </message>
    <message>
        <source>`</source>
        <translation>`</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>2</source>
        <translation>2</translation>
    </message>
    <message>
        <source>3</source>
        <translation>3</translation>
    </message>
    <message>
        <source>4</source>
        <translation>4</translation>
    </message>
    <message>
        <source>5</source>
        <translation>5</translation>
    </message>
    <message>
        <source>6</source>
        <translation>6</translation>
    </message>
    <message>
        <source>7</source>
        <translation>7</translation>
    </message>
    <message>
        <source>8</source>
        <translation>8</translation>
    </message>
    <message>
        <source>9</source>
        <translation>9</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <source>[</source>
        <translation>[</translation>
    </message>
    <message>
        <source>]</source>
        <translation>]</translation>
    </message>
    <message>
        <source>\</source>
        <translation>\</translation>
    </message>
    <message>
        <source>;</source>
        <translation>;</translation>
    </message>
    <message>
        <source>&apos;</source>
        <translation>&apos;</translation>
    </message>
    <message>
        <source>,</source>
        <translation>,</translation>
    </message>
    <message>
        <source>.</source>
        <translation>.</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>~</source>
        <translation>~</translation>
    </message>
    <message>
        <source>!</source>
        <translation>!</translation>
    </message>
    <message>
        <source>@</source>
        <translation>@</translation>
    </message>
    <message>
        <source>#</source>
        <translation>#</translation>
    </message>
    <message>
        <source>$</source>
        <translation>$</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>^</source>
        <translation>^</translation>
    </message>
    <message>
        <source>&amp;&amp;</source>
        <translation>&amp;&amp;</translation>
    </message>
    <message>
        <source>*</source>
        <translation>*</translation>
    </message>
    <message>
        <source>(</source>
        <translation>(</translation>
    </message>
    <message>
        <source>)</source>
        <translation>)</translation>
    </message>
    <message>
        <source>_</source>
        <translation>_</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>{</source>
        <translation>{</translation>
    </message>
    <message>
        <source>}</source>
        <translation>}</translation>
    </message>
    <message>
        <source>|</source>
        <translation>|</translation>
    </message>
    <message>
        <source>:</source>
        <translation>:</translation>
    </message>
    <message>
        <source>&quot;</source>
        <translation>&quot;</translation>
    </message>
    <message>
        <source>&lt;</source>
        <translation>&lt;</translation>
    </message>
    <message>
        <source>&gt;</source>
        <translation>&gt;</translation>
    </message>
    <message>
        <source>?</source>
        <translation>?</translation>
    </message>
    <message>
        <source>UNKNOWN KEY</source>
        <translation>알 수 없는 키</translation>
    </message>
</context>
<context>
    <name>KeyboardAdvWid</name>
    <message>
        <source>ALPHANUMERIC</source>
        <translation>영문자와 숫자</translation>
    </message>
    <message>
        <source>SYMBOLS &amp;&amp; PUNCTUATION</source>
        <translation>기호 &amp;&amp; 문장 부호</translation>
    </message>
    <message>
        <source>NAVIGATION KEYS</source>
        <translation>탐색 키</translation>
    </message>
    <message>
        <source>MODIFIER</source>
        <translation>보조 키</translation>
    </message>
    <message>
        <source>FUNCTION KEYS</source>
        <translation>기능 키</translation>
    </message>
    <message>
        <source>NUMBERPAD KEYS</source>
        <translation>숫자 키패드</translation>
    </message>
</context>
<context>
    <name>MacroAdvUi</name>
    <message>
        <source>USER MACROS</source>
        <translation>사용자 매크로</translation>
    </message>
    <message>
        <source>CREATE NEW MACRO</source>
        <translation>새 매크로 만들기</translation>
    </message>
    <message>
        <source>WINDOWS KEYBOARD SHORTCUTS</source>
        <translation>WINDOWS 키보드 단축키</translation>
    </message>
</context>
<context>
    <name>MacroAdvWid</name>
    <message>
        <source>CTRL</source>
        <translation>CTRL</translation>
    </message>
    <message>
        <source>SHIFT</source>
        <translation>SHIFT</translation>
    </message>
    <message>
        <source>ALT</source>
        <translation>ALT</translation>
    </message>
</context>
<context>
    <name>MacroUi</name>
    <message>
        <source>+ CREATE NEW MACRO</source>
        <translation>+ 새 매크로 만들기</translation>
    </message>
</context>
<context>
    <name>MediaUi</name>
    <message>
        <source>MULTIMEDIA KEYS</source>
        <translation>멀티미디어 키</translation>
    </message>
</context>
<context>
    <name>PanelWid</name>
    <message>
        <source>Keyboard</source>
        <translation>키보드</translation>
    </message>
    <message>
        <source>Gaming</source>
        <translation>게임</translation>
    </message>
    <message>
        <source>Creative Application</source>
        <translation>크리에이티브 앱</translation>
    </message>
    <message>
        <source>Standard WASD</source>
        <translation>표준 WASD</translation>
    </message>
    <message>
        <source>Standard ESDF</source>
        <translation>표준 ESDF</translation>
    </message>
    <message>
        <source>Numpad Mode</source>
        <translation>숫자 키패드</translation>
    </message>
    <message>
        <source>FPS Mode</source>
        <translation>FPS 모드</translation>
    </message>
    <message>
        <source>Driving Mode</source>
        <translation>운전 모드</translation>
    </message>
    <message>
        <source>Adv. Flight Mode</source>
        <translation>고급 비행 모드</translation>
    </message>
    <message>
        <source>Photoshop</source>
        <translation>Photoshop</translation>
    </message>
    <message>
        <source>Illustrator</source>
        <translation>Illustrator</translation>
    </message>
    <message>
        <source>Premiere Pro</source>
        <translation>Premiere Pro</translation>
    </message>
</context>
<context>
    <name>PressoFunUi</name>
    <message>
        <source>DEADZONE CALIBRATION</source>
        <translation>데드존 보정</translation>
    </message>
</context>
<context>
    <name>PressoUi</name>
    <message>
        <source>PRESSURE</source>
        <translation>압력</translation>
    </message>
    <message>
        <source>SENSING</source>
        <translation>감지</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>켬</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>끔</translation>
    </message>
</context>
<context>
    <name>ProfileUi</name>
    <message>
        <source>PROFILE</source>
        <translation>프로필</translation>
    </message>
</context>
<context>
    <name>ReassignDlg</name>
    <message>
        <source>KEY ASSIGNMENT</source>
        <translation>키 지정</translation>
    </message>
    <message>
        <source>KEY ASSIGNMENT - VANTRIX </source>
        <translation>키 지정 - VANTRIX </translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>SEARCH</source>
        <translation>검색</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>적용</translation>
    </message>
    <message>
        <source>MOUSE BUTTONS</source>
        <translation>마우스 버튼</translation>
    </message>
    <message>
        <source>MEDIA COMMANDS</source>
        <translation>미디어 명령</translation>
    </message>
    <message>
        <source>PRESSO FUNCTIONS</source>
        <translation>PRESSO 기능</translation>
    </message>
    <message>
        <source>BACKLIGHT</source>
        <translation>백라이트</translation>
    </message>
    <message>
        <source>PROFILE</source>
        <translation>프로필</translation>
    </message>
</context>
<context>
    <name>VantrixMapWid</name>
    <message>
        <source>SIMPLE</source>
        <translation>단순</translation>
    </message>
    <message>
        <source>ADVANCED</source>
        <translation>고급</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>적용</translation>
    </message>
    <message>
        <source>RESET</source>
        <translation>초기화</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>초기화</translation>
    </message>
    <message>
        <source>Are you sure you want to reset?</source>
        <translation>초기화하시겠습니까?</translation>
    </message>
</context>
</TS>
