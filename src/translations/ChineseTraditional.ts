<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en_US">
<context>
    <name>ActionAssignUi</name>
    <message>
        <source>BACK</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>套用</translation>
    </message>
</context>
<context>
    <name>ActionBtn</name>
    <message>
        <source>ACTION</source>
        <translation>動作</translation>
    </message>
</context>
<context>
    <name>ActionWid</name>
    <message>
        <source>ACTION</source>
        <translation>動作</translation>
    </message>
</context>
<context>
    <name>AdvAssignWid</name>
    <message>
        <source>CTRL LEFT</source>
        <translation>左 CTRL</translation>
    </message>
    <message>
        <source>SHIFT LEFT</source>
        <translation>左 SHIFT</translation>
    </message>
    <message>
        <source>ALT LEFT</source>
        <translation>左 ALT</translation>
    </message>
    <message>
        <source>CTRL RIGHT</source>
        <translation>右 CTRL</translation>
    </message>
    <message>
        <source>SHIFT RIGHT</source>
        <translation>右 SHIFT</translation>
    </message>
    <message>
        <source>ALT RIGHT</source>
        <translation>右 ALT</translation>
    </message>
</context>
<context>
    <name>AppPathDlg</name>
    <message>
        <source>APPLICATION</source>
        <translation>應用程式</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>PATH</source>
        <translation>路徑</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>開啟檔案</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>套用</translation>
    </message>
</context>
<context>
    <name>ApplicationBtn</name>
    <message>
        <source>Open File</source>
        <translation>開啟檔案</translation>
    </message>
</context>
<context>
    <name>AssignMenuUi</name>
    <message>
        <source>REASSIGN KEY</source>
        <translation>重新指定按鍵</translation>
    </message>
    <message>
        <source>CONTROLLER MAPPING MODE</source>
        <translation>手把對應模式</translation>
    </message>
    <message>
        <source>DUAL ACTION MAPPING MODE</source>
        <translation>雙動作對應模式</translation>
    </message>
    <message>
        <source>CLEAR KEY ASSIGNMENT</source>
        <translation>清除按鍵指定</translation>
    </message>
    <message>
        <source>DISABLE KEY</source>
        <translation>停用按鍵</translation>
    </message>
</context>
<context>
    <name>AssignWid</name>
    <message>
        <source>warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Macro assign has reached maximum limit</source>
        <translation>已指定的巨集達到上限</translation>
    </message>
    <message>
        <source>Fail to find the path of the program.</source>
        <translation>找不到程式的路徑。</translation>
    </message>
    <message>
        <source>Please assign it manually:</source>
        <translation>請手動指定：</translation>
    </message>
</context>
<context>
    <name>BackLightUi</name>
    <message>
        <source>BACKLIGHT</source>
        <translation>背光</translation>
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
        <translation>模糊</translation>
    </message>
    <message>
        <source>BRUSH SIZE</source>
        <translation>筆刷大小</translation>
    </message>
    <message>
        <source>BRUSH HARDNESS</source>
        <translation>筆刷硬度</translation>
    </message>
    <message>
        <source>CROP</source>
        <translation>裁切</translation>
    </message>
    <message>
        <source>CLONE STAMP</source>
        <translation>仿製印章</translation>
    </message>
    <message>
        <source>DODGE</source>
        <translation>加亮</translation>
    </message>
    <message>
        <source>EYEDROP</source>
        <translation>滴管</translation>
    </message>
    <message>
        <source>LASSO</source>
        <translation>套索</translation>
    </message>
    <message>
        <source>LAUNCH PS</source>
        <translation>啟動 PS</translation>
    </message>
    <message>
        <source>MOVE</source>
        <translation>移動</translation>
    </message>
    <message>
        <source>RECTANGULAR MARQUEE</source>
        <translation>矩形選取畫面</translation>
    </message>
    <message>
        <source>MAGNIFYING</source>
        <translation>縮放</translation>
    </message>
    <message>
        <source>PEN</source>
        <translation>鋼筆</translation>
    </message>
    <message>
        <source>POINTER</source>
        <translation>指標</translation>
    </message>
    <message>
        <source>QUICK SELECTION</source>
        <translation>快速選取</translation>
    </message>
    <message>
        <source>TEXT</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>BACKWARD</source>
        <translation>倒轉播放</translation>
    </message>
    <message>
        <source>COMPARISON</source>
        <translation>比較</translation>
    </message>
    <message>
        <source>FORWARD</source>
        <translation>正向播放</translation>
    </message>
    <message>
        <source>GO TO IN</source>
        <translation>前往入點</translation>
    </message>
    <message>
        <source>GO TO OUT</source>
        <translation>前往出點</translation>
    </message>
    <message>
        <source>HAND</source>
        <translation>手形</translation>
    </message>
    <message>
        <source>LAUNCH PR</source>
        <translation>啟動 PR</translation>
    </message>
    <message>
        <source>MARK IN</source>
        <translation>標記入點</translation>
    </message>
    <message>
        <source>MARK OUT</source>
        <translation>標記出點</translation>
    </message>
    <message>
        <source>PLAY-STOP TOGGLE</source>
        <translation>播放/停止</translation>
    </message>
    <message>
        <source>RAZOR</source>
        <translation>剃刀</translation>
    </message>
    <message>
        <source>RIPPLE EDIT</source>
        <translation>漣漪編輯</translation>
    </message>
    <message>
        <source>SLIP</source>
        <translation>滑動</translation>
    </message>
    <message>
        <source>STEP BACK 1 FRAME</source>
        <translation>後退 1 影格</translation>
    </message>
    <message>
        <source>STEP FORWARD 1 FRAME</source>
        <translation>前進 1 影格</translation>
    </message>
    <message>
        <source>SELECTION</source>
        <translation>選取</translation>
    </message>
    <message>
        <source>TRACK SELECT FORWARD</source>
        <translation>向前選取軌道</translation>
    </message>
    <message>
        <source>ARTBOARD</source>
        <translation>工作區域</translation>
    </message>
    <message>
        <source>BRUSH OPACITY</source>
        <translation>筆刷不透明度</translation>
    </message>
    <message>
        <source>DIRECT SELECTION</source>
        <translation>直接選取</translation>
    </message>
    <message>
        <source>ELLIPSE</source>
        <translation>橢圓形</translation>
    </message>
    <message>
        <source>LAUNCH AI</source>
        <translation>啟動 AI</translation>
    </message>
    <message>
        <source>POLYGON</source>
        <translation>多邊形</translation>
    </message>
    <message>
        <source>ROTATE</source>
        <translation>旋轉</translation>
    </message>
    <message>
        <source>RECTANGLE</source>
        <translation>矩形</translation>
    </message>
    <message>
        <source>ROUNDED RECTANGLE</source>
        <translation>圓角矩形</translation>
    </message>
    <message>
        <source>Play Action 1. Please assign F2 to an Action in Photoshop</source>
        <translation>播放動作 1。請在 Photoshop 中將 F2 指定給一個動作</translation>
    </message>
    <message>
        <source>Play Action 2. Please assign F3 to an Action in Photoshop</source>
        <translation>播放動作 2。請在 Photoshop 中將 F3 指定給一個動作</translation>
    </message>
    <message>
        <source>Play Action 3. Please assign F4 to an Action in Photoshop</source>
        <translation>播放動作 3。請在 Photoshop 中將 F4 指定給一個動作</translation>
    </message>
    <message>
        <source>To use Presso(Pressure Sensitive) Blur,
please assign N to Blur Tool in Photoshop(Alt+Shift+Ctrl+K)</source>
        <translation>若要使用 Presso（壓感）模糊，
請在 Photoshop 中將 N 指定給模糊工具 (Alt+Shift+Ctrl+K)</translation>
    </message>
    <message>
        <source>COMPARISON
Please assign F2 to Comparison Tool in Premiere Pro(Ctrl+Alt+K)</source>
        <translation>比較
請在 Premiere Pro 中將 F2 指定給比較檢視 (Ctrl+Alt+K)</translation>
    </message>
    <message>
        <source>Play Action 1. Please assign F2 to an Action in Illustrator</source>
        <translation>播放動作 1。請在 Illustrator 中將 F2 指定給一個動作</translation>
    </message>
    <message>
        <source>Play Action 2. Please assign F3 to an Action in Illustrator</source>
        <translation>播放動作 2。請在 Illustrator 中將 F3 指定給一個動作</translation>
    </message>
    <message>
        <source>Play Action 3. Please assign F4 to an Action in Illustrator</source>
        <translation>播放動作 3。請在 Illustrator 中將 F4 指定給一個動作</translation>
    </message>
    <message>
        <source>POLYGON
Please assign 2 to Polygon Tool in Illustrator(Alt+Shift+Ctrl+K)</source>
        <translation>多邊形
請在 Illustrator 中將 2 指定給多邊形工具 (Alt+Shift+Ctrl+K)</translation>
    </message>
    <message>
        <source>ROUNDED RECTANGLE
Please assign 1 to Rounded Rectangle Tool in Illustrator(Alt+Shift+Ctrl+K)</source>
        <translation>圓角矩形
請在 Illustrator 中將 1 指定給圓角矩形工具 (Alt+Shift+Ctrl+K)</translation>
    </message>
    <message>
        <source>UNKNOWN</source>
        <translation>未知</translation>
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
        <translation>動作 1</translation>
    </message>
    <message>
        <source>ACTION 2</source>
        <translation>動作 2</translation>
    </message>
    <message>
        <source>TYPE</source>
        <translation>類型</translation>
    </message>
</context>
<context>
    <name>DualActionDistUi</name>
    <message>
        <source>ACTIVATION DISTANCE</source>
        <translation>觸發距離</translation>
    </message>
    <message>
        <source>TRAVEL</source>
        <translation>行程</translation>
    </message>
</context>
<context>
    <name>DualActionTipWid</name>
    <message>
        <source>ACTION1</source>
        <translation>動作1</translation>
    </message>
    <message>
        <source>ACTION2</source>
        <translation>動作2</translation>
    </message>
</context>
<context>
    <name>DualActionType</name>
    <message>
        <source>NORMAL
(ACTION1 &gt; ACTION2)</source>
        <translation>一般
(動作1 &gt; 動作2)</translation>
    </message>
    <message>
        <source>TOGGLE
(ACTION1 &gt; ACTION2 &gt; ACTION1)</source>
        <translation>切換
(動作1 &gt; 動作2 &gt; 動作1)</translation>
    </message>
    <message>
        <source>COMBINE
(ACTION1 &gt; ACTION1 + ACTION2)</source>
        <translation>組合
(動作1 &gt; 動作1 + 動作2)</translation>
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
        <translation>對應輸入</translation>
    </message>
</context>
<context>
    <name>KeyCodes</name>
    <message>
        <source>KEYBOARD</source>
        <translation>鍵盤</translation>
    </message>
    <message>
        <source>MOUSE</source>
        <translation>滑鼠</translation>
    </message>
    <message>
        <source>MEDIA</source>
        <translation>媒體</translation>
    </message>
    <message>
        <source>MACRO</source>
        <translation>巨集</translation>
    </message>
    <message>
        <source>GAME CONTROLLER</source>
        <translation>遊戲手把</translation>
    </message>
    <message>
        <source>APPLICATION</source>
        <translation>應用程式</translation>
    </message>
    <message>
        <source>DUAL ACTION</source>
        <translation>雙動作</translation>
    </message>
    <message>
        <source>PRESSO FUNCTIONS</source>
        <translation>PRESSO 功能</translation>
    </message>
    <message>
        <source>BACKLIGHT</source>
        <translation>背光</translation>
    </message>
    <message>
        <source>PROFILE</source>
        <translation>設定檔</translation>
    </message>
    <message>
        <source>PRESET MODE</source>
        <translation>預設模式</translation>
    </message>
    <message>
        <source>DISABLED</source>
        <translation>已停用</translation>
    </message>
    <message>
        <source>UNASSIGNED</source>
        <translation>未指定</translation>
    </message>
    <message>
        <source>UNKNOWN</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>OPEN TASK MANAGER</source>
        <translation>開啟工作管理員</translation>
    </message>
    <message>
        <source>SWITCH BETWEEN OPEN APPS</source>
        <translation>切換開啟的應用程式</translation>
    </message>
    <message>
        <source>BROWSER BACKWARD</source>
        <translation>瀏覽器上一頁</translation>
    </message>
    <message>
        <source>BROWSER FORWARD</source>
        <translation>瀏覽器下一頁</translation>
    </message>
    <message>
        <source>MOVE UP ONE SCREEN</source>
        <translation>向上捲動一頁</translation>
    </message>
    <message>
        <source>MOVE DOWN ONE SCREEN</source>
        <translation>向下捲動一頁</translation>
    </message>
    <message>
        <source>VIEW OPEN APPS</source>
        <translation>檢視開啟的應用程式</translation>
    </message>
    <message>
        <source>COPY SELECTED ITEMS TO CLIPBOARD</source>
        <translation>將選取項目複製到剪貼簿</translation>
    </message>
    <message>
        <source>CUT SELECTED ITEMS</source>
        <translation>剪下選取項目</translation>
    </message>
    <message>
        <source>PASTE CONTENT FROM CLIPBOARD</source>
        <translation>從剪貼簿貼上</translation>
    </message>
    <message>
        <source>SELECT ALL CONTENT</source>
        <translation>全選</translation>
    </message>
    <message>
        <source>UNDO AN ACTION</source>
        <translation>復原動作</translation>
    </message>
    <message>
        <source>REDO AN ACTION</source>
        <translation>取消復原</translation>
    </message>
    <message>
        <source>DELETE THE SELECTED ITEM AND MOVE IT TO THE RECYCLE BIN</source>
        <translation>刪除選取項目並移至資源回收筒</translation>
    </message>
    <message>
        <source>OPEN THE START MENU</source>
        <translation>開啟開始功能表</translation>
    </message>
    <message>
        <source>SWITCH THE KEYBOARD LAYOUT</source>
        <translation>切換鍵盤配置</translation>
    </message>
    <message>
        <source>CLOSE ACTIVE WINDOW</source>
        <translation>關閉使用中的視窗</translation>
    </message>
    <message>
        <source>DISABLE</source>
        <translation>停用</translation>
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
        <translation>下一個燈效+</translation>
    </message>
    <message>
        <source>Power Mode:Disable</source>
        <translation>電源模式:關閉</translation>
    </message>
    <message>
        <source>Power Mode:Working</source>
        <translation>電源模式:工作</translation>
    </message>
    <message>
        <source>Power Mode:Performance</source>
        <translation>電源模式:效能</translation>
    </message>
    <message>
        <source>Power Mode:Gaming</source>
        <translation>電源模式:遊戲</translation>
    </message>
    <message>
        <source>LED DARKER-</source>
        <translation>LED 調暗-</translation>
    </message>
    <message>
        <source>LED BRIGHTER+</source>
        <translation>LED 調亮+</translation>
    </message>
    <message>
        <source>L TRIGGER</source>
        <translation>左扳機</translation>
    </message>
    <message>
        <source>R TRIGGER</source>
        <translation>右扳機</translation>
    </message>
    <message>
        <source>E-MAIL</source>
        <translation>電子郵件</translation>
    </message>
    <message>
        <source>CALCULATOR</source>
        <translation>計算機</translation>
    </message>
    <message>
        <source>PLAY/PAUSE</source>
        <translation>播放/暫停</translation>
    </message>
    <message>
        <source>STOP</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>PREVIOUS TRACK</source>
        <translation>上一曲</translation>
    </message>
    <message>
        <source>NEXT TRACK</source>
        <translation>下一曲</translation>
    </message>
    <message>
        <source>VOLUME MUTE/UNMUTE</source>
        <translation>靜音/取消靜音</translation>
    </message>
    <message>
        <source>VOLUME DOWN</source>
        <translation>降低音量</translation>
    </message>
    <message>
        <source>VOLUME UP</source>
        <translation>提高音量</translation>
    </message>
    <message>
        <source>WEB BROWSER</source>
        <translation>網頁瀏覽器</translation>
    </message>
    <message>
        <source>CALIBRATE</source>
        <translation>校正</translation>
    </message>
    <message>
        <source>EFFECT CYCLE-</source>
        <translation>上一個燈效-</translation>
    </message>
    <message>
        <source>SPEED DOWN LED EFFECT-</source>
        <translation>減慢 LED 燈效-</translation>
    </message>
    <message>
        <source>SPEED UP LED EFFECT+</source>
        <translation>加快 LED 燈效+</translation>
    </message>
    <message>
        <source>D PAD UP RIGHT</source>
        <translation>方向鍵右上</translation>
    </message>
    <message>
        <source>D PAD DOWN RIGHT</source>
        <translation>方向鍵右下</translation>
    </message>
    <message>
        <source>D PAD DOWN LEFT</source>
        <translation>方向鍵左下</translation>
    </message>
    <message>
        <source>D PAD UP LEFT</source>
        <translation>方向鍵左上</translation>
    </message>
    <message>
        <source>D PAD UP</source>
        <translation>方向鍵上</translation>
    </message>
    <message>
        <source>D PAD DOWN</source>
        <translation>方向鍵下</translation>
    </message>
    <message>
        <source>D PAD LEFT</source>
        <translation>方向鍵左</translation>
    </message>
    <message>
        <source>D PAD RIGHT</source>
        <translation>方向鍵右</translation>
    </message>
    <message>
        <source>A BUTTON</source>
        <translation>A 鍵</translation>
    </message>
    <message>
        <source>B BUTTON</source>
        <translation>B 鍵</translation>
    </message>
    <message>
        <source>X BUTTON</source>
        <translation>X 鍵</translation>
    </message>
    <message>
        <source>Y BUTTON</source>
        <translation>Y 鍵</translation>
    </message>
    <message>
        <source>L BUMPER</source>
        <translation>左肩鍵</translation>
    </message>
    <message>
        <source>R BUMPER</source>
        <translation>右肩鍵</translation>
    </message>
    <message>
        <source>GUIDE BUTTON</source>
        <translation>導覽鍵</translation>
    </message>
    <message>
        <source>START BUTTON</source>
        <translation>開始鍵</translation>
    </message>
    <message>
        <source>HOME BUTTON</source>
        <translation>首頁鍵</translation>
    </message>
    <message>
        <source>L STICK PRESS</source>
        <translation>按下左搖桿</translation>
    </message>
    <message>
        <source>R STICK PRESS</source>
        <translation>按下右搖桿</translation>
    </message>
    <message>
        <source>L STICK LEFT</source>
        <translation>左搖桿向左</translation>
    </message>
    <message>
        <source>L STICK DOWN</source>
        <translation>左搖桿向下</translation>
    </message>
    <message>
        <source>R STICK LEFT</source>
        <translation>右搖桿向左</translation>
    </message>
    <message>
        <source>R STICK DOWN</source>
        <translation>右搖桿向下</translation>
    </message>
    <message>
        <source>CURSOR UP</source>
        <translation>游標上移</translation>
    </message>
    <message>
        <source>CURSOR RIGHT</source>
        <translation>游標右移</translation>
    </message>
    <message>
        <source>CURSOR DOWN</source>
        <translation>游標下移</translation>
    </message>
    <message>
        <source>CURSOR LEFT</source>
        <translation>游標左移</translation>
    </message>
    <message>
        <source>SCROLL UP</source>
        <translation>向上捲動</translation>
    </message>
    <message>
        <source>SCROLL DOWN</source>
        <translation>向下捲動</translation>
    </message>
    <message>
        <source>LEFT CLICK</source>
        <translation>按一下左鍵</translation>
    </message>
    <message>
        <source>RIGHT CLICK</source>
        <translation>按一下右鍵</translation>
    </message>
    <message>
        <source>WHEEL CLICK</source>
        <translation>按一下滾輪</translation>
    </message>
    <message>
        <source>BACKWARD</source>
        <translation>上一頁</translation>
    </message>
    <message>
        <source>FORWARD</source>
        <translation>下一頁</translation>
    </message>
    <message>
        <source>L STICK RIGHT</source>
        <translation>左搖桿向右</translation>
    </message>
    <message>
        <source>L STICK UP</source>
        <translation>左搖桿向上</translation>
    </message>
    <message>
        <source>R STICK RIGHT</source>
        <translation>右搖桿向右</translation>
    </message>
    <message>
        <source>R STICK UP</source>
        <translation>右搖桿向上</translation>
    </message>
    <message>
        <source>SCROLL LEFT</source>
        <translation>向左捲動</translation>
    </message>
    <message>
        <source>SCROLL RIGHT</source>
        <translation>向右捲動</translation>
    </message>
    <message>
        <source>PROFILE 1</source>
        <translation>設定檔 1</translation>
    </message>
    <message>
        <source>PROFILE 2</source>
        <translation>設定檔 2</translation>
    </message>
    <message>
        <source>PROFILE 3</source>
        <translation>設定檔 3</translation>
    </message>
    <message>
        <source>PROFILE 4</source>
        <translation>設定檔 4</translation>
    </message>
    <message>
        <source>PROFILE 5</source>
        <translation>設定檔 5</translation>
    </message>
    <message>
        <source>PROFILE 6</source>
        <translation>設定檔 6</translation>
    </message>
    <message>
        <source>PROFILE 7</source>
        <translation>設定檔 7</translation>
    </message>
    <message>
        <source>PROFILE 8</source>
        <translation>設定檔 8</translation>
    </message>
    <message>
        <source>PROFILE 9</source>
        <translation>設定檔 9</translation>
    </message>
    <message>
        <source>PROFILE 10</source>
        <translation>設定檔 10</translation>
    </message>
    <message>
        <source>PROFILE 11</source>
        <translation>設定檔 11</translation>
    </message>
    <message>
        <source>PROFILE 12</source>
        <translation>設定檔 12</translation>
    </message>
    <message>
        <source>PROFILE 13</source>
        <translation>設定檔 13</translation>
    </message>
    <message>
        <source>PROFILE 14</source>
        <translation>設定檔 14</translation>
    </message>
    <message>
        <source>PROFILE 15</source>
        <translation>設定檔 15</translation>
    </message>
    <message>
        <source>PROFILE 16</source>
        <translation>設定檔 16</translation>
    </message>
    <message>
        <source>PROFILE 17</source>
        <translation>設定檔 17</translation>
    </message>
    <message>
        <source>PROFILE 18</source>
        <translation>設定檔 18</translation>
    </message>
    <message>
        <source>PROFILE 19</source>
        <translation>設定檔 19</translation>
    </message>
    <message>
        <source>PROFILE 20</source>
        <translation>設定檔 20</translation>
    </message>
    <message>
        <source>PROFILE 21</source>
        <translation>設定檔 21</translation>
    </message>
    <message>
        <source>PROFILE 22</source>
        <translation>設定檔 22</translation>
    </message>
    <message>
        <source>PROFILE 23</source>
        <translation>設定檔 23</translation>
    </message>
    <message>
        <source>PROFILE 24</source>
        <translation>設定檔 24</translation>
    </message>
    <message>
        <source>PROFILE[+]</source>
        <translation>設定檔[+]</translation>
    </message>
    <message>
        <source>PROFILE[-]</source>
        <translation>設定檔[-]</translation>
    </message>
    <message>
        <source>PROFILE CYCLE+</source>
        <translation>下一個設定檔+</translation>
    </message>
    <message>
        <source>PROFILE CYCLE-</source>
        <translation>上一個設定檔-</translation>
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
        <translation>未知按鍵</translation>
    </message>
</context>
<context>
    <name>KeyboardAdvWid</name>
    <message>
        <source>ALPHANUMERIC</source>
        <translation>字母與數字</translation>
    </message>
    <message>
        <source>SYMBOLS &amp;&amp; PUNCTUATION</source>
        <translation>符號 &amp;&amp; 標點</translation>
    </message>
    <message>
        <source>NAVIGATION KEYS</source>
        <translation>導覽鍵</translation>
    </message>
    <message>
        <source>MODIFIER</source>
        <translation>輔助鍵</translation>
    </message>
    <message>
        <source>FUNCTION KEYS</source>
        <translation>功能鍵</translation>
    </message>
    <message>
        <source>NUMBERPAD KEYS</source>
        <translation>數字鍵盤</translation>
    </message>
</context>
<context>
    <name>MacroAdvUi</name>
    <message>
        <source>USER MACROS</source>
        <translation>使用者巨集</translation>
    </message>
    <message>
        <source>CREATE NEW MACRO</source>
        <translation>新增巨集</translation>
    </message>
    <message>
        <source>WINDOWS KEYBOARD SHORTCUTS</source>
        <translation>WINDOWS 快速鍵</translation>
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
        <translation>+ 新增巨集</translation>
    </message>
</context>
<context>
    <name>MediaUi</name>
    <message>
        <source>MULTIMEDIA KEYS</source>
        <translation>多媒體按鍵</translation>
    </message>
</context>
<context>
    <name>PanelWid</name>
    <message>
        <source>Keyboard</source>
        <translation>鍵盤</translation>
    </message>
    <message>
        <source>Gaming</source>
        <translation>遊戲</translation>
    </message>
    <message>
        <source>Creative Application</source>
        <translation>創意應用程式</translation>
    </message>
    <message>
        <source>Standard WASD</source>
        <translation>標準 WASD</translation>
    </message>
    <message>
        <source>Standard ESDF</source>
        <translation>標準 ESDF</translation>
    </message>
    <message>
        <source>Numpad Mode</source>
        <translation>數字鍵盤</translation>
    </message>
    <message>
        <source>FPS Mode</source>
        <translation>FPS 模式</translation>
    </message>
    <message>
        <source>Driving Mode</source>
        <translation>駕駛模式</translation>
    </message>
    <message>
        <source>Adv. Flight Mode</source>
        <translation>進階飛行模式</translation>
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
        <translation>死區校正</translation>
    </message>
</context>
<context>
    <name>PressoUi</name>
    <message>
        <source>PRESSURE</source>
        <translation>壓力</translation>
    </message>
    <message>
        <source>SENSING</source>
        <translation>感應</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
</context>
<context>
    <name>ProfileUi</name>
    <message>
        <source>PROFILE</source>
        <translation>設定檔</translation>
    </message>
</context>
<context>
    <name>ReassignDlg</name>
    <message>
        <source>KEY ASSIGNMENT</source>
        <translation>按鍵指定</translation>
    </message>
    <message>
        <source>KEY ASSIGNMENT - VANTRIX </source>
        <translation>按鍵指定 - VANTRIX </translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>SEARCH</source>
        <translation>搜尋</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>套用</translation>
    </message>
    <message>
        <source>MOUSE BUTTONS</source>
        <translation>滑鼠按鍵</translation>
    </message>
    <message>
        <source>MEDIA COMMANDS</source>
        <translation>媒體指令</translation>
    </message>
    <message>
        <source>PRESSO FUNCTIONS</source>
        <translation>PRESSO 功能</translation>
    </message>
    <message>
        <source>BACKLIGHT</source>
        <translation>背光</translation>
    </message>
    <message>
        <source>PROFILE</source>
        <translation>設定檔</translation>
    </message>
</context>
<context>
    <name>VantrixMapWid</name>
    <message>
        <source>SIMPLE</source>
        <translation>簡易</translation>
    </message>
    <message>
        <source>ADVANCED</source>
        <translation>進階</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>套用</translation>
    </message>
    <message>
        <source>RESET</source>
        <translation>重設</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重設</translation>
    </message>
    <message>
        <source>Are you sure you want to reset?</source>
        <translation>確定要重設嗎？</translation>
    </message>
</context>
</TS>
