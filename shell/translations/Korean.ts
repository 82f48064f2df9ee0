<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en_US">
<context>
    <name>ChangesPage</name>
    <message>
        <source>PUT BACK</source>
        <translation>되돌리기</translation>
    </message>
    <message>
        <source>PUT ALL BACK</source>
        <translation>모두 되돌리기</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>적용</translation>
    </message>
    <message>
        <source>The device has %1 as it is shown.</source>
        <translation>장치에 있는 %1은(는) 표시된 것과 같습니다.</translation>
    </message>
    <message>
        <source>APPLY changes one key of %1:</source>
        <translation>적용하면 %1의 키 1개가 바뀝니다:</translation>
    </message>
    <message>
        <source>APPLY changes %1 keys of %2:</source>
        <translation>적용하면 키 %1개가 바뀝니다(%2):</translation>
    </message>
    <message>
        <source>ON THE DEVICE: %1</source>
        <translation>장치에 있는 것: %1</translation>
    </message>
    <message>
        <source>Put back key %1</source>
        <translation>키 %1 되돌리기</translation>
    </message>
    <message>
        <source>Put back %1 keys</source>
        <translation>키 %1개 되돌리기</translation>
    </message>
    <message>
        <source>KEY</source>
        <translation>키</translation>
    </message>
    <message>
        <source>THE DEVICE HAS</source>
        <translation>장치에 있는 것</translation>
    </message>
    <message>
        <source>APPLY MAKES IT</source>
        <translation>적용 후</translation>
    </message>
    <message>
        <source>FUNCTION</source>
        <translation>기능</translation>
    </message>
    <message>
        <source>Back from the device, as a macro: %1</source>
        <translation>장치에서 매크로로 되돌림: %1</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>CheckPage</name>
    <message>
        <source>THIS PROFILE</source>
        <translation>이 프로필</translation>
    </message>
    <message>
        <source>ALL PROFILES</source>
        <translation>모든 프로필</translation>
    </message>
    <message>
        <source>Nothing to look at.</source>
        <translation>확인할 것이 없습니다.</translation>
    </message>
    <message>
        <source>One thing to look at.</source>
        <translation>확인할 것이 1개 있습니다.</translation>
    </message>
    <message>
        <source>%1 things to look at.</source>
        <translation>확인할 것이 %1개 있습니다.</translation>
    </message>
    <message>
        <source>%1 is on the device. %2 See CHECK.</source>
        <translation>%1이(가) 장치에 있습니다. %2 검사를 참조하십시오.</translation>
    </message>
    <message>
        <source>The first %1 are listed.</source>
        <translation>처음 %1개만 표시합니다.</translation>
    </message>
    <message>
        <source>Go there</source>
        <translation>여기로 이동</translation>
    </message>
</context>
<context>
    <name>DeviceView</name>
    <message>
        <source>ACTS BY</source>
        <translation>작동 프로필</translation>
    </message>
    <message>
        <source>Profile that the device acts by</source>
        <translation>장치가 작동에 사용하는 프로필</translation>
    </message>
    <message>
        <source>Depth of the chosen key in percent</source>
        <translation>선택한 키의 깊이(퍼센트)</translation>
    </message>
    <message>
        <source>WHAT THE DEVICE SENDS</source>
        <translation>장치가 보내는 것</translation>
    </message>
    <message>
        <source>LET GO</source>
        <translation>놓기</translation>
    </message>
    <message>
        <source>All keys come up</source>
        <translation>모든 키를 놓기</translation>
    </message>
    <message>
        <source>CLEAR</source>
        <translation>지우기</translation>
    </message>
    <message>
        <source>KEY</source>
        <translation>키</translation>
    </message>
    <message>
        <source>DEPTH</source>
        <translation>깊이</translation>
    </message>
    <message>
        <source>EVENT</source>
        <translation>이벤트</translation>
    </message>
    <message>
        <source>CODE</source>
        <translation>코드</translation>
    </message>
    <message>
        <source>It has what the profile holds.</source>
        <translation>프로필과 같습니다.</translation>
    </message>
    <message>
        <source>One key differs from the profile; APPLY sends it.</source>
        <translation>키 1개가 프로필과 다릅니다. 적용하면 전송됩니다.</translation>
    </message>
    <message>
        <source>%1 keys differ from the profile; APPLY sends them.</source>
        <translation>키 %1개가 프로필과 다릅니다. 적용하면 전송됩니다.</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Press a key of the pad.</source>
        <translation>패드의 키를 누르십시오.</translation>
    </message>
    <message>
        <source>▼ press %1</source>
        <translation>▼ %1 누름</translation>
    </message>
    <message>
        <source>▲ release %1</source>
        <translation>▲ %1 놓음</translation>
    </message>
    <message>
        <source>wait %1 ms</source>
        <translation>%1 ms 대기</translation>
    </message>
    <message>
        <source>switch to %1</source>
        <translation>%1(으)로 전환</translation>
    </message>
</context>
<context>
    <name>ExportDlg</name>
    <message>
        <source>EXPORT...</source>
        <translation>내보내기...</translation>
    </message>
    <message>
        <source>Export profiles</source>
        <translation>프로필 내보내기</translation>
    </message>
    <message>
        <source>Profiles to export</source>
        <translation>내보낼 프로필</translation>
    </message>
    <message>
        <source>ALL</source>
        <translation>모두</translation>
    </message>
    <message>
        <source>NONE</source>
        <translation>없음</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Profiles to export, with their macros:</source>
        <translation>내보낼 프로필(매크로 포함):</translation>
    </message>
    <message>
        <source>No macros go with them.</source>
        <translation>함께 내보낼 매크로가 없습니다.</translation>
    </message>
    <message>
        <source>Macros that go with them: %1.</source>
        <translation>함께 내보낼 매크로: %1.</translation>
    </message>
    <message>
        <source>profiles</source>
        <translation>프로필</translation>
    </message>
    <message>
        <source>Profiles (*.json)</source>
        <translation>프로필 (*.json)</translation>
    </message>
    <message>
        <source>%1 was not written: %2</source>
        <translation>%1을(를) 쓰지 못했습니다: %2</translation>
    </message>
    <message>
        <source>One profile was exported to %1.</source>
        <translation>프로필 1개를 %1(으)로 내보냈습니다.</translation>
    </message>
    <message>
        <source>%1 profiles were exported to %2.</source>
        <translation>프로필 %1개를 %2(으)로 내보냈습니다.</translation>
    </message>
</context>
<context>
    <name>FindBar</name>
    <message>
        <source>Find a function, key or macro</source>
        <translation>기능, 키 또는 매크로 찾기</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>찾기</translation>
    </message>
    <message>
        <source>Keys that were found</source>
        <translation>찾은 키</translation>
    </message>
    <message>
        <source>No key has that.</source>
        <translation>해당하는 키가 없습니다.</translation>
    </message>
    <message>
        <source>Keys: %1, profiles: %2.</source>
        <translation>키: %1, 프로필: %2.</translation>
    </message>
    <message>
        <source>The first %1 are listed.</source>
        <translation>처음 %1개만 표시합니다.</translation>
    </message>
</context>
<context>
    <name>HistoryPage</name>
    <message>
        <source>History</source>
        <translation>기록</translation>
    </message>
    <message>
        <source>Double-click a step, or press Enter, to go back or forth to it. The history is kept when the program is closed.</source>
        <translation>단계를 두 번 클릭하거나 Enter 키를 누르면 그 단계로 이동합니다. 기록은 프로그램을 닫아도 남습니다.</translation>
    </message>
    <message>
        <source>As it was at the start</source>
        <translation>처음 상태</translation>
    </message>
    <message>
        <source>%1   (now)</source>
        <translation>%1   (현재)</translation>
    </message>
    <message>
        <source>Earlier steps are listed when you go back to the oldest one here.</source>
        <translation>이전 단계는 여기서 가장 오래된 단계로 돌아가면 표시됩니다.</translation>
    </message>
</context>
<context>
    <name>ImportDlg</name>
    <message>
        <source>No file is open.</source>
        <translation>열린 파일이 없습니다.</translation>
    </message>
    <message>
        <source>IMPORT</source>
        <translation>가져오기</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Import profiles</source>
        <translation>프로필 가져오기</translation>
    </message>
    <message>
        <source>OPEN...</source>
        <translation>열기...</translation>
    </message>
    <message>
        <source>Profiles of the file</source>
        <translation>파일의 프로필</translation>
    </message>
    <message>
        <source>PROFILE OF THE FILE</source>
        <translation>파일의 프로필</translation>
    </message>
    <message>
        <source>KEYS</source>
        <translation>키</translation>
    </message>
    <message>
        <source>IN PLACE OF</source>
        <translation>대체할 대상</translation>
    </message>
    <message>
        <source>Profiles (*.json);;All files (*)</source>
        <translation>프로필 (*.json);;모든 파일 (*)</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1을(를) 읽을 수 없습니다: %2</translation>
    </message>
    <message>
        <source>PROFILE %1</source>
        <translation>프로필 %1</translation>
    </message>
    <message>
        <source>In place of</source>
        <translation>대체할 대상</translation>
    </message>
    <message>
        <source>Two profiles would take the place of %1.</source>
        <translation>두 프로필이 %1 자리를 차지하게 됩니다.</translation>
    </message>
    <message>
        <source>Macros that come with them: %1.</source>
        <translation>함께 가져올 매크로: %1.</translation>
    </message>
    <message>
        <source>One profile was imported.</source>
        <translation>프로필 1개를 가져왔습니다.</translation>
    </message>
    <message>
        <source>%1 profiles were imported.</source>
        <translation>프로필 %1개를 가져왔습니다.</translation>
    </message>
    <message>
        <source>The macro &quot;%1&quot; is named &quot;%2&quot; here, because there was another of its name.</source>
        <translation>같은 이름의 매크로가 있어 매크로 &quot;%1&quot;의 이름이 여기서는 &quot;%2&quot;입니다.</translation>
    </message>
    <message>
        <source>%1 was not found on this computer; its functions do nothing until it is.</source>
        <translation>이 컴퓨터에서 %1을(를) 찾을 수 없습니다. 찾을 때까지 해당 기능은 작동하지 않습니다.</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>The macros were imported.</source>
        <translation>매크로를 가져왔습니다.</translation>
    </message>
</context>
<context>
    <name>KeyCombo</name>
    <message>
        <source>Key</source>
        <translation>키</translation>
    </message>
</context>
<context>
    <name>KeyFinder</name>
    <message>
        <source>%1 (unassigned)</source>
        <translation>%1(지정 안 됨)</translation>
    </message>
</context>
<context>
    <name>KeyText</name>
    <message>
        <source>%1 (changed)</source>
        <translation>%1(변경됨)</translation>
    </message>
    <message>
        <source>CODE %1</source>
        <translation>코드 %1</translation>
    </message>
    <message>
        <source>%1 at %2%</source>
        <translation>%1(%2%)</translation>
    </message>
</context>
<context>
    <name>KeyTitle</name>
    <message>
        <source>Key %1</source>
        <translation>키 %1</translation>
    </message>
    <message>
        <source>Key %1 (%2)</source>
        <translation>키 %1(%2)</translation>
    </message>
    <message>
        <source>Keys %1 and %2</source>
        <translation>키 %1 및 %2</translation>
    </message>
</context>
<context>
    <name>MacroEditor</name>
    <message>
        <source>RECORDING
Press keys. To finish, press Esc twice or click STOP.</source>
        <translation>기록 중
키를 누르십시오. 마치려면 Esc를 두 번 누르거나 정지를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Events of the macro</source>
        <translation>매크로의 이벤트</translation>
    </message>
    <message>
        <source>RECORD</source>
        <translation>기록</translation>
    </message>
    <message>
        <source>Record keys at the end of the macro</source>
        <translation>매크로 끝에 키 기록</translation>
    </message>
    <message>
        <source>Delays of recorded keys</source>
        <translation>기록한 키의 지연</translation>
    </message>
    <message>
        <source>delays as they were</source>
        <translation>원래 지연</translation>
    </message>
    <message>
        <source>no delays</source>
        <translation>지연 없음</translation>
    </message>
    <message>
        <source>fixed delays</source>
        <translation>고정 지연</translation>
    </message>
    <message>
        <source>Fixed delay in milliseconds</source>
        <translation>고정 지연(밀리초)</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>SET ALL</source>
        <translation>모두 설정</translation>
    </message>
    <message>
        <source>Give all events of the macro this delay</source>
        <translation>매크로의 모든 이벤트에 이 지연 지정</translation>
    </message>
    <message>
        <source>Event to add</source>
        <translation>추가할 이벤트</translation>
    </message>
    <message>
        <source>press and release</source>
        <translation>누르고 놓기</translation>
    </message>
    <message>
        <source>press</source>
        <translation>누르기</translation>
    </message>
    <message>
        <source>release</source>
        <translation>놓기</translation>
    </message>
    <message>
        <source>ADD</source>
        <translation>추가</translation>
    </message>
    <message>
        <source>Move the event up (Alt+Up)</source>
        <translation>이벤트를 위로 이동 (Alt+↑)</translation>
    </message>
    <message>
        <source>Move the event down (Alt+Down)</source>
        <translation>이벤트를 아래로 이동 (Alt+↓)</translation>
    </message>
    <message>
        <source>DELETE</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>Chosen events:</source>
        <translation>선택한 이벤트:</translation>
    </message>
    <message>
        <source>%1: %2 of %3 events</source>
        <translation>%1: 이벤트 %2/%3개</translation>
    </message>
    <message>
        <source>Make a new macro, then record keys.</source>
        <translation>새 매크로를 만든 다음 키를 기록하십시오.</translation>
    </message>
    <message>
        <source>STOP</source>
        <translation>정지</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a key that a macro can have.</source>
        <translation>&quot;%1&quot;은(는) 매크로에 쓸 수 없는 키입니다.</translation>
    </message>
    <message>
        <source>RECORDING: %1 of %2 events
Press keys. To finish, press Esc twice or click STOP.</source>
        <translation>기록 중: 이벤트 %2개 중 %1개
키를 누르십시오. 마치려면 Esc를 두 번 누르거나 정지를 클릭하십시오.</translation>
    </message>
</context>
<context>
    <name>MacroEventDelegate</name>
    <message>
        <source>release</source>
        <translation>놓기</translation>
    </message>
    <message>
        <source>press</source>
        <translation>누르기</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
</context>
<context>
    <name>MacroEventModel</name>
    <message>
        <source>%1 (code %2)</source>
        <translation>%1(코드 %2)</translation>
    </message>
    <message>
        <source>Add events to macro %1</source>
        <translation>매크로 %1에 이벤트 추가</translation>
    </message>
    <message>
        <source>Delete events of macro %1</source>
        <translation>매크로 %1의 이벤트 삭제</translation>
    </message>
    <message>
        <source>Move an event of macro %1</source>
        <translation>매크로 %1의 이벤트 이동</translation>
    </message>
    <message>
        <source>Change delays of macro %1</source>
        <translation>매크로 %1의 지연 변경</translation>
    </message>
    <message>
        <source>▼ press</source>
        <translation>▼ 누르기</translation>
    </message>
    <message>
        <source>▲ release</source>
        <translation>▲ 놓기</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>EVENT</source>
        <translation>이벤트</translation>
    </message>
    <message>
        <source>KEY</source>
        <translation>키</translation>
    </message>
    <message>
        <source>THEN WAIT</source>
        <translation>이후 대기</translation>
    </message>
    <message>
        <source>Change a delay of macro %1</source>
        <translation>매크로 %1의 지연 하나 변경</translation>
    </message>
    <message>
        <source>Change an event of macro %1</source>
        <translation>매크로 %1의 이벤트 하나 변경</translation>
    </message>
</context>
<context>
    <name>MacroPage</name>
    <message>
        <source>BACK TO THE KEYS</source>
        <translation>키로 돌아가기</translation>
    </message>
    <message>
        <source>NEW</source>
        <translation>새로 만들기</translation>
    </message>
    <message>
        <source>RENAME</source>
        <translation>이름 바꾸기</translation>
    </message>
    <message>
        <source>DELETE</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>Macros</source>
        <translation>매크로</translation>
    </message>
    <message>
        <source>NO.</source>
        <translation>번호</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>EVENTS</source>
        <translation>이벤트</translation>
    </message>
    <message>
        <source>KEYS</source>
        <translation>키</translation>
    </message>
    <message>
        <source>NO KEY HAS IT</source>
        <translation>사용하는 키 없음</translation>
    </message>
    <message>
        <source>KEYS THAT HAVE IT</source>
        <translation>사용하는 키</translation>
    </message>
    <message>
        <source>Go to this key</source>
        <translation>이 키로 이동</translation>
    </message>
    <message>
        <source>Add macro %1</source>
        <translation>매크로 %1 추가</translation>
    </message>
    <message>
        <source>Macro</source>
        <translation>매크로</translation>
    </message>
    <message>
        <source>A macro needs a name.</source>
        <translation>매크로에는 이름이 필요합니다.</translation>
    </message>
    <message>
        <source>Rename macro %1 to %2</source>
        <translation>매크로 %1의 이름을 %2(으)로 변경</translation>
    </message>
    <message>
        <source>There is another macro named &quot;%1&quot;.</source>
        <translation>이름이 &quot;%1&quot;인 다른 매크로가 있습니다.</translation>
    </message>
    <message>
        <source>Delete macro %1</source>
        <translation>매크로 %1 삭제</translation>
    </message>
    <message>
        <source>Macro %1 was deleted.</source>
        <translation>매크로 %1을(를) 삭제했습니다.</translation>
    </message>
    <message>
        <source>Macro %1 was deleted and taken off %2 keys.</source>
        <translation>매크로 %1을(를) 삭제하고 키 %2개에서 제거했습니다.</translation>
    </message>
    <message>
        <source>Record the macro, then go back and choose it for the key.</source>
        <translation>매크로를 기록한 다음 돌아가서 키에 지정하십시오.</translation>
    </message>
    <message>
        <source>The new macro was empty and was not kept.</source>
        <translation>새 매크로가 비어 있어 보관하지 않았습니다.</translation>
    </message>
    <message>
        <source>COPY</source>
        <translation>복사</translation>
    </message>
    <message>
        <source>Make another macro with the same events</source>
        <translation>같은 이벤트로 다른 매크로 만들기</translation>
    </message>
    <message>
        <source>Macro %1 was deleted and taken off one key.</source>
        <translation>매크로 %1을(를) 삭제하고 키 1개에서 제거했습니다.</translation>
    </message>
    <message>
        <source>Move macro %1</source>
        <translation>매크로 %1 이동</translation>
    </message>
</context>
<context>
    <name>MacroRecorder</name>
    <message>
        <source>A macro holds at most %1 events.</source>
        <translation>매크로의 이벤트는 최대 %1개입니다.</translation>
    </message>
    <message>
        <source>The pad has no code for this key.</source>
        <translation>패드에 이 키의 코드가 없습니다.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>MAPPING</source>
        <translation>매핑</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>파일(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Settings...</source>
        <translation>설정(&amp;S)...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>종료(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Profile</source>
        <translation>프로필(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>편집(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Find Keys...</source>
        <translation>키 찾기(&amp;F)...</translation>
    </message>
    <message>
        <source>Assign by &amp;Pressing Keys</source>
        <translation>키를 눌러 지정(&amp;P)</translation>
    </message>
    <message>
        <source>While a key of the pad is selected, the next key that is pressed is put on it. Off, the keyboard works the window.</source>
        <translation>패드의 키가 선택되어 있으면 다음에 누르는 키가 지정됩니다. 끄면 키보드로 창을 조작합니다.</translation>
    </message>
    <message>
        <source>&amp;Apply to Device</source>
        <translation>장치에 적용(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>보기(&amp;V)</translation>
    </message>
    <message>
        <source>Profile &amp;Names</source>
        <translation>프로필 이름(&amp;N)</translation>
    </message>
    <message>
        <source>Everything is on the device.</source>
        <translation>모두 장치에 있습니다.</translation>
    </message>
    <message>
        <source>Not on the device yet: %1.</source>
        <translation>아직 장치에 없음: %1.</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>실행 취소함: %1</translation>
    </message>
    <message>
        <source>Done again: %1</source>
        <translation>다시 실행함: %1</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>실행 취소(&amp;U) %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>실행 취소(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>다시 실행(&amp;R) %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>다시 실행(&amp;R)</translation>
    </message>
    <message>
        <source>Undo %1 (Ctrl+Z)</source>
        <translation>실행 취소 %1 (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Redo %1 (Ctrl+Shift+Z)</source>
        <translation>다시 실행 %1 (Ctrl+Shift+Z)</translation>
    </message>
    <message>
        <source>nothing to apply</source>
        <translation>적용할 것 없음</translation>
    </message>
    <message>
        <source>1 key to apply</source>
        <translation>적용할 키 1개</translation>
    </message>
    <message>
        <source>%1 keys to apply</source>
        <translation>적용할 키 %1개</translation>
    </message>
    <message>
        <source>Device: %1   |   %2   |</source>
        <translation>장치: %1   |   %2   |</translation>
    </message>
    <message>
        <source>READ ONLY</source>
        <translation>읽기 전용</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>저장됨</translation>
    </message>
    <message>
        <source>NOT SAVED</source>
        <translation>저장 안 됨</translation>
    </message>
    <message>
        <source>CHANGES %1</source>
        <translation>변경 %1</translation>
    </message>
    <message>
        <source>CHANGES</source>
        <translation>변경</translation>
    </message>
    <message>
        <source>%1%2 - VANTRIX</source>
        <translation>%1%2 - VANTRIX</translation>
    </message>
    <message>
        <source> (read only)</source>
        <translation> (읽기 전용)</translation>
    </message>
    <message>
        <source>Click a key of the pad, then choose what it does.</source>
        <translation>패드의 키를 클릭한 다음 기능을 선택하십시오.</translation>
    </message>
    <message>
        <source>CHECK %1</source>
        <translation>검사 %1</translation>
    </message>
    <message>
        <source>CHECK</source>
        <translation>검사</translation>
    </message>
    <message>
        <source>%1 takes the next key you press. Ctrl+K, with no key selected, switches that off.</source>
        <translation>다음에 누르는 키가 %1에 지정됩니다. 키를 선택하지 않고 Ctrl+K를 누르면 꺼집니다.</translation>
    </message>
    <message>
        <source>The changes cannot be saved and are lost with the window. Close it?</source>
        <translation>변경 내용을 저장할 수 없으며 창을 닫으면 사라집니다. 닫을까요?</translation>
    </message>
    <message>
        <source>Nothing to undo</source>
        <translation>실행 취소할 것이 없음</translation>
    </message>
    <message>
        <source>Nothing to redo</source>
        <translation>다시 실행할 것이 없음</translation>
    </message>
    <message>
        <source>Steps undone: %1</source>
        <translation>실행 취소한 단계: %1</translation>
    </message>
    <message>
        <source>Steps done again: %1</source>
        <translation>다시 실행한 단계: %1</translation>
    </message>
</context>
<context>
    <name>MappingView</name>
    <message>
        <source>COMPANION</source>
        <translation>컴패니언</translation>
    </message>
    <message>
        <source>%1 is on the device.</source>
        <translation>%1이(가) 장치에 있습니다.</translation>
    </message>
    <message>
        <source>%1 did not reach the device.</source>
        <translation>%1이(가) 장치에 도달하지 못했습니다.</translation>
    </message>
    <message>
        <source>Reset %1</source>
        <translation>%1 초기화</translation>
    </message>
    <message>
        <source>The device was reset, and %1 with it. Undo brings its keys back; the other profiles are kept here and can be applied again.</source>
        <translation>장치와 %1을(를) 초기화했습니다. 실행 취소하면 키가 복원됩니다. 다른 프로필은 여기에 남아 있으며 다시 적용할 수 있습니다.</translation>
    </message>
    <message>
        <source>The device was reset. The profiles are kept here and can be applied again.</source>
        <translation>장치를 초기화했습니다. 프로필은 여기에 남아 있으며 다시 적용할 수 있습니다.</translation>
    </message>
</context>
<context>
    <name>MessageBar</name>
    <message>
        <source>DISMISS</source>
        <translation>숨기기</translation>
    </message>
</context>
<context>
    <name>PadView</name>
    <message>
        <source>Picture of the pad</source>
        <translation>패드 그림</translation>
    </message>
</context>
<context>
    <name>ProfileCheck</name>
    <message>
        <source>%1 has the macro &quot;%2&quot;, which is not there any more.</source>
        <translation>%1의 매크로 &quot;%2&quot;이(가) 더 이상 없습니다.</translation>
    </message>
    <message>
        <source>%1 has the macro &quot;%2&quot;, which is empty.</source>
        <translation>%1의 매크로 &quot;%2&quot;이(가) 비어 있습니다.</translation>
    </message>
    <message>
        <source>%1 has a dual action without a second action.</source>
        <translation>%1의 이중 동작에 두 번째 동작이 없습니다.</translation>
    </message>
    <message>
        <source>%1 has a dual action without a first action.</source>
        <translation>%1의 이중 동작에 첫 번째 동작이 없습니다.</translation>
    </message>
    <message>
        <source>%1 has a function of %2, which was not found on this computer.</source>
        <translation>%1에 %2의 기능이 있지만 이 컴퓨터에서 찾을 수 없습니다.</translation>
    </message>
    <message>
        <source>%1 have functions of %2, which was not found on this computer.</source>
        <translation>%1에 %2의 기능이 있지만 이 컴퓨터에서 찾을 수 없습니다.</translation>
    </message>
    <message>
        <source>%1 of %2 leads to this profile, and no key leads back.</source>
        <translation>%2의 %1은(는) 이 프로필로 이동하지만 돌아가는 키가 없습니다.</translation>
    </message>
    <message>
        <source>%1 do the same: %2.</source>
        <translation>%1은(는) 같은 동작을 합니다: %2.</translation>
    </message>
</context>
<context>
    <name>ProfileExchange</name>
    <message>
        <source>top</source>
        <translation>처음</translation>
    </message>
    <message>
        <source>%1 is not an object</source>
        <translation>%1은(는) 객체가 아닙니다</translation>
    </message>
    <message>
        <source>there is no member &quot;%1&quot; here</source>
        <translation>여기에 멤버 &quot;%1&quot;이(가) 없습니다</translation>
    </message>
    <message>
        <source>%1 is not a list</source>
        <translation>%1은(는) 목록이 아닙니다</translation>
    </message>
    <message>
        <source>%1 elements are more than %2</source>
        <translation>요소 %1개는 %2개보다 많습니다</translation>
    </message>
    <message>
        <source>%1 is not a whole number from %2 to %3</source>
        <translation>%1은(는) %2에서 %3 사이의 정수가 아닙니다</translation>
    </message>
    <message>
        <source>%1 is not a text</source>
        <translation>%1은(는) 텍스트가 아닙니다</translation>
    </message>
    <message>
        <source>the text holds a character that cannot be stored</source>
        <translation>텍스트에 저장할 수 없는 문자가 있습니다</translation>
    </message>
    <message>
        <source>two macros are named &quot;%1&quot;</source>
        <translation>이름이 &quot;%1&quot;인 매크로가 두 개 있습니다</translation>
    </message>
    <message>
        <source>profile %1 is here twice</source>
        <translation>프로필 %1이(가) 두 번 나옵니다</translation>
    </message>
    <message>
        <source>this is not a file of profiles</source>
        <translation>프로필 파일이 아닙니다</translation>
    </message>
    <message>
        <source>the file is of version %1; this program reads up to %2</source>
        <translation>파일의 버전은 %1이고 이 프로그램은 %2까지 읽습니다</translation>
    </message>
    <message>
        <source>a macro needs a name</source>
        <translation>매크로에는 이름이 필요합니다</translation>
    </message>
    <message>
        <source>these are %1 bytes and not %2</source>
        <translation>%1바이트이며 %2바이트가 아닙니다</translation>
    </message>
    <message>
        <source>%1 is neither true nor false</source>
        <translation>%1은(는) 참도 거짓도 아닙니다</translation>
    </message>
    <message>
        <source>key %1 is here twice</source>
        <translation>키 %1이(가) 두 번 나옵니다</translation>
    </message>
    <message>
        <source>1 is not 0, 2 or 3</source>
        <translation>1은 0, 2, 3이 아닙니다</translation>
    </message>
    <message>
        <source>a key holds only one of app, hotKey, shortcut, extended and macro</source>
        <translation>키에는 app, hotKey, shortcut, extended, macro 중 하나만 있을 수 있습니다</translation>
    </message>
    <message>
        <source>%1 is not an extended code</source>
        <translation>%1은(는) 확장 코드가 아닙니다</translation>
    </message>
    <message>
        <source>Import profile %1</source>
        <translation>프로필 %1 가져오기</translation>
    </message>
    <message>
        <source>Import %1 profiles</source>
        <translation>프로필 %1개 가져오기</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>목록</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>객체</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>없음</translation>
    </message>
    <message>
        <source>line %1, column %2</source>
        <translation>%1행 %2열</translation>
    </message>
    <message>
        <source>Import macros</source>
        <translation>매크로 가져오기</translation>
    </message>
</context>
<context>
    <name>ProfileList</name>
    <message>
        <source>DEVICE</source>
        <translation>장치</translation>
    </message>
    <message>
        <source>PROFILES</source>
        <translation>프로필</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>프로필</translation>
    </message>
    <message>
        <source>COPY</source>
        <translation>복사</translation>
    </message>
    <message>
        <source>Copy this profile over another one</source>
        <translation>이 프로필을 다른 프로필에 덮어쓰기</translation>
    </message>
    <message>
        <source>CLEAR</source>
        <translation>지우기</translation>
    </message>
    <message>
        <source>Take everything off the keys of this profile</source>
        <translation>이 프로필의 모든 키 비우기</translation>
    </message>
    <message>
        <source>Move up (Alt+Up)</source>
        <translation>위로 이동 (Alt+↑)</translation>
    </message>
    <message>
        <source>Move down (Alt+Down)</source>
        <translation>아래로 이동 (Alt+↓)</translation>
    </message>
    <message>
        <source>&amp;Rename...</source>
        <translation>이름 바꾸기(&amp;R)...</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>복제(&amp;D)</translation>
    </message>
    <message>
        <source>Copy &amp;Over</source>
        <translation>덮어쓰기(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>지우기(&amp;C)</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>위로 이동(&amp;U)</translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation>아래로 이동(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Next Profile</source>
        <translation>다음 프로필(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Previous Profile</source>
        <translation>이전 프로필(&amp;P)</translation>
    </message>
    <message>
        <source>shown</source>
        <translation>표시 중</translation>
    </message>
    <message>
        <source>the device acts by it</source>
        <translation>장치가 사용 중</translation>
    </message>
    <message>
        <source>differs from what the device has</source>
        <translation>장치와 다름</translation>
    </message>
    <message>
        <source>All profiles are in use: choose one to copy over.</source>
        <translation>모든 프로필이 사용 중입니다. 덮어쓸 프로필을 선택하십시오.</translation>
    </message>
    <message>
        <source>Duplicate %1</source>
        <translation>%1 복제</translation>
    </message>
    <message>
        <source>%1 was copied to profile %2.</source>
        <translation>%1을(를) 프로필 %2에 복사했습니다.</translation>
    </message>
    <message>
        <source>%1  (unused)</source>
        <translation>%1  (사용 안 함)</translation>
    </message>
    <message>
        <source>Clear %1</source>
        <translation>%1 지우기</translation>
    </message>
    <message>
        <source>%1 was cleared. Undo brings it back.</source>
        <translation>%1을(를) 지웠습니다. 실행 취소하면 복원됩니다.</translation>
    </message>
    <message>
        <source>Move %1</source>
        <translation>%1 이동</translation>
    </message>
    <message>
        <source>%1 has nothing on its keys.</source>
        <translation>%1의 키에 할당된 것이 없습니다.</translation>
    </message>
</context>
<context>
    <name>ProfileStore</name>
    <message>
        <source>%1 COPY</source>
        <translation>%1 사본</translation>
    </message>
    <message>
        <source>PROFILE %1</source>
        <translation>프로필 %1</translation>
    </message>
</context>
<context>
    <name>SettingsDlg</name>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>언어(&amp;L):</translation>
    </message>
    <message>
        <source>&amp;Hot-key catalog:</source>
        <translation>단축키 목록(&amp;H):</translation>
    </message>
    <message>
        <source>Hot-key catalog</source>
        <translation>단축키 목록</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>찾을 수 없음</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>프로그램</translation>
    </message>
    <message>
        <source>Keys with &amp;macros in a profile:</source>
        <translation>프로필당 매크로 키 수(&amp;M):</translation>
    </message>
    <message>
        <source>BROWSE</source>
        <translation>찾아보기</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>There is no folder %1.</source>
        <translation>폴더 %1이(가) 없습니다.</translation>
    </message>
    <message>
        <source>There is no program %1.</source>
        <translation>프로그램 %1이(가) 없습니다.</translation>
    </message>
</context>
<context>
    <name>ShellPages</name>
    <message>
        <source>CHANGES</source>
        <translation>변경</translation>
    </message>
    <message>
        <source>HISTORY</source>
        <translation>기록</translation>
    </message>
    <message>
        <source>MACROS</source>
        <translation>매크로</translation>
    </message>
    <message>
        <source>DEVICE</source>
        <translation>장치</translation>
    </message>
    <message>
        <source>CHECK</source>
        <translation>검사</translation>
    </message>
    <message>
        <source>Import profiles...</source>
        <translation>프로필 가져오기...</translation>
    </message>
    <message>
        <source>Export profiles...</source>
        <translation>프로필 내보내기...</translation>
    </message>
</context>
<context>
    <name>StepName</name>
    <message>
        <source>Depth of key %1: %2%</source>
        <translation>키 %1의 깊이: %2%</translation>
    </message>
    <message>
        <source>Clear key %1</source>
        <translation>키 %1 지우기</translation>
    </message>
    <message>
        <source>Assign %1 to key %2</source>
        <translation>%1을(를) 키 %2에 지정</translation>
    </message>
    <message numerus="yes">
        <source>Change %n key(s) in several profiles</source>
        <translation>
            <numerusform>여러 프로필에서 키 %n개 변경</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear %1 keys</source>
        <translation>키 %1개 지우기</translation>
    </message>
    <message>
        <source>Dual actions on %1 keys</source>
        <translation>키 %1개에 이중 동작</translation>
    </message>
    <message>
        <source>Change %1 keys</source>
        <translation>키 %1개 변경</translation>
    </message>
    <message>
        <source>Rename macro %1 to %2</source>
        <translation>매크로 %1의 이름을 %2(으)로 변경</translation>
    </message>
    <message>
        <source>Create macro %1</source>
        <translation>매크로 %1 만들기</translation>
    </message>
    <message>
        <source>Delete macro %1</source>
        <translation>매크로 %1 삭제</translation>
    </message>
    <message>
        <source>Move a macro</source>
        <translation>매크로 이동</translation>
    </message>
    <message>
        <source>Edit macro %1</source>
        <translation>매크로 %1 편집</translation>
    </message>
    <message>
        <source>Preset: %1</source>
        <translation>사전 설정: %1</translation>
    </message>
    <message>
        <source>Name profile %1: %2</source>
        <translation>프로필 %1 이름: %2</translation>
    </message>
    <message>
        <source>Move a profile</source>
        <translation>프로필 이동</translation>
    </message>
    <message>
        <source>Pressure sensing on</source>
        <translation>압력 감지 켬</translation>
    </message>
    <message>
        <source>Pressure sensing off</source>
        <translation>압력 감지 끔</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>변경</translation>
    </message>
</context>
<context>
    <name>StoreKeeper</name>
    <message>
        <source>The store %1 was missing. The last good copy of it is used.</source>
        <translation>저장소 %1이(가) 없었습니다. 마지막 정상 사본을 사용합니다.</translation>
    </message>
    <message>
        <source>The store %1 was written by a newer version of this program.</source>
        <translation>저장소 %1은(는) 이 프로그램의 최신 버전에서 기록되었습니다.</translation>
    </message>
    <message>
        <source>The store %1 is damaged and cannot be read.</source>
        <translation>저장소 %1이(가) 손상되어 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>It was left as it is.</source>
        <translation>그대로 두었습니다.</translation>
    </message>
    <message>
        <source>It was kept as %1.</source>
        <translation>%1(으)로 보관했습니다.</translation>
    </message>
    <message>
        <source>The last good copy is used.</source>
        <translation>마지막 정상 사본을 사용합니다.</translation>
    </message>
    <message>
        <source>There is no good copy of it, so everything starts empty.</source>
        <translation>정상 사본이 없어 빈 상태로 시작합니다.</translation>
    </message>
    <message>
        <source>The store %1 was brought up to date. The file of the earlier version was kept as %2.</source>
        <translation>저장소 %1을(를) 업데이트했습니다. 이전 버전의 파일은 %2(으)로 보관했습니다.</translation>
    </message>
    <message>
        <source>The store %1 was replaced by another file while the program was running. That file was kept as %2, and the store was written again.</source>
        <translation>프로그램 실행 중 저장소 %1이(가) 다른 파일로 바뀌었습니다. 그 파일은 %2(으)로 보관하고 저장소를 다시 기록했습니다.</translation>
    </message>
    <message>
        <source>The store %1 was removed while the program was running. It was written again.</source>
        <translation>프로그램 실행 중 저장소 %1이(가) 삭제되었습니다. 다시 기록했습니다.</translation>
    </message>
    <message>
        <source>All changes are saved again.</source>
        <translation>모든 변경 내용이 다시 저장되었습니다.</translation>
    </message>
    <message>
        <source>Changes are kept in memory and saved as soon as possible.</source>
        <translation>변경 내용을 메모리에 유지하며 가능한 한 빨리 저장합니다.</translation>
    </message>
    <message>
        <source>There is no room on the disk for the store %1.</source>
        <translation>디스크에 저장소 %1을(를) 위한 공간이 없습니다.</translation>
    </message>
    <message>
        <source>Another program is using the store %1.</source>
        <translation>다른 프로그램이 저장소 %1을(를) 사용하고 있습니다.</translation>
    </message>
    <message>
        <source>The store %1 cannot be written.</source>
        <translation>저장소 %1에 쓸 수 없습니다.</translation>
    </message>
    <message>
        <source>What it holds is shown as soon as it can be read.</source>
        <translation>읽을 수 있게 되는 즉시 내용을 표시합니다.</translation>
    </message>
    <message>
        <source>The last good copy of it is shown until what it holds can be read.</source>
        <translation>내용을 읽을 수 있을 때까지 마지막 정상 사본을 표시합니다.</translation>
    </message>
    <message>
        <source>Another window has the store %1 open.</source>
        <translation>저장소 %1이(가) 다른 창에서 열려 있습니다.</translation>
    </message>
    <message>
        <source>It is shown here, but changes made here are not kept.</source>
        <translation>여기에 표시되지만 여기서 변경한 내용은 보존되지 않습니다.</translation>
    </message>
    <message>
        <source>It cannot be read here, and changes made here are not kept.</source>
        <translation>여기서는 읽을 수 없으며 여기서 변경한 내용은 보존되지 않습니다.</translation>
    </message>
    <message>
        <source>The copy %1 cannot be read. It was kept as %2.</source>
        <translation>사본 %1을(를) 읽을 수 없습니다. %2(으)로 보관했습니다.</translation>
    </message>
    <message>
        <source>The store %1 on the disk was another than what was shown here when something was changed. It was kept as %2, and a new one was begun.</source>
        <translation>변경이 있었을 때 디스크의 저장소 %1은(는) 여기에 표시된 것과 달랐습니다. %2(으)로 보관하고 새 저장소를 시작했습니다.</translation>
    </message>
    <message>
        <source>The store %1 is shown as it is on the disk now.</source>
        <translation>저장소 %1을(를) 지금 디스크에 있는 그대로 표시합니다.</translation>
    </message>
</context>
</TS>
