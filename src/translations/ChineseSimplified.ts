<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>ActionAssignUi</name>
    <message>
        <source>BACK</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>应用</translation>
    </message>
</context>
<context>
    <name>ActionBtn</name>
    <message>
        <source>ACTION</source>
        <translation>动作</translation>
    </message>
</context>
<context>
    <name>ActionWid</name>
    <message>
        <source>ACTION</source>
        <translation>动作</translation>
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
        <translation>应用程序</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>PATH</source>
        <translation>路径</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>打开文件</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>应用</translation>
    </message>
</context>
<context>
    <name>ApplicationBtn</name>
    <message>
        <source>Open File</source>
        <translation>打开文件</translation>
    </message>
</context>
<context>
    <name>AssignMenuUi</name>
    <message>
        <source>REASSIGN KEY</source>
        <translation>重新分配按键</translation>
    </message>
    <message>
        <source>CONTROLLER MAPPING MODE</source>
        <translation>手柄映射模式</translation>
    </message>
    <message>
        <source>DUAL ACTION MAPPING MODE</source>
        <translation>双动作映射模式</translation>
    </message>
    <message>
        <source>CLEAR KEY ASSIGNMENT</source>
        <translation>清除按键分配</translation>
    </message>
    <message>
        <source>DISABLE KEY</source>
        <translation>禁用按键</translation>
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
        <translation>已分配的宏达到上限</translation>
    </message>
    <message>
        <source>Fail to find the path of the program.</source>
        <translation>找不到程序的路径。</translation>
    </message>
    <message>
        <source>Please assign it manually:</source>
        <translation>请手动指定：</translation>
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
        <translation>画笔大小</translation>
    </message>
    <message>
        <source>BRUSH HARDNESS</source>
        <translation>画笔硬度</translation>
    </message>
    <message>
        <source>CROP</source>
        <translation>裁剪</translation>
    </message>
    <message>
        <source>CLONE STAMP</source>
        <translation>仿制图章</translation>
    </message>
    <message>
        <source>DODGE</source>
        <translation>减淡</translation>
    </message>
    <message>
        <source>EYEDROP</source>
        <translation>吸管</translation>
    </message>
    <message>
        <source>LASSO</source>
        <translation>套索</translation>
    </message>
    <message>
        <source>LAUNCH PS</source>
        <translation>启动 PS</translation>
    </message>
    <message>
        <source>MOVE</source>
        <translation>移动</translation>
    </message>
    <message>
        <source>RECTANGULAR MARQUEE</source>
        <translation>矩形选框</translation>
    </message>
    <message>
        <source>MAGNIFYING</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>PEN</source>
        <translation>钢笔</translation>
    </message>
    <message>
        <source>POINTER</source>
        <translation>指针</translation>
    </message>
    <message>
        <source>QUICK SELECTION</source>
        <translation>快速选择</translation>
    </message>
    <message>
        <source>TEXT</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>BACKWARD</source>
        <translation>倒放</translation>
    </message>
    <message>
        <source>COMPARISON</source>
        <translation>比较</translation>
    </message>
    <message>
        <source>FORWARD</source>
        <translation>正放</translation>
    </message>
    <message>
        <source>GO TO IN</source>
        <translation>转到入点</translation>
    </message>
    <message>
        <source>GO TO OUT</source>
        <translation>转到出点</translation>
    </message>
    <message>
        <source>HAND</source>
        <translation>手形</translation>
    </message>
    <message>
        <source>LAUNCH PR</source>
        <translation>启动 PR</translation>
    </message>
    <message>
        <source>MARK IN</source>
        <translation>标记入点</translation>
    </message>
    <message>
        <source>MARK OUT</source>
        <translation>标记出点</translation>
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
        <translation>波纹编辑</translation>
    </message>
    <message>
        <source>SLIP</source>
        <translation>外滑</translation>
    </message>
    <message>
        <source>STEP BACK 1 FRAME</source>
        <translation>后退 1 帧</translation>
    </message>
    <message>
        <source>STEP FORWARD 1 FRAME</source>
        <translation>前进 1 帧</translation>
    </message>
    <message>
        <source>SELECTION</source>
        <translation>选择</translation>
    </message>
    <message>
        <source>TRACK SELECT FORWARD</source>
        <translation>向前选择轨道</translation>
    </message>
    <message>
        <source>ARTBOARD</source>
        <translation>画板</translation>
    </message>
    <message>
        <source>BRUSH OPACITY</source>
        <translation>画笔不透明度</translation>
    </message>
    <message>
        <source>DIRECT SELECTION</source>
        <translation>直接选择</translation>
    </message>
    <message>
        <source>ELLIPSE</source>
        <translation>椭圆</translation>
    </message>
    <message>
        <source>LAUNCH AI</source>
        <translation>启动 AI</translation>
    </message>
    <message>
        <source>POLYGON</source>
        <translation>多边形</translation>
    </message>
    <message>
        <source>ROTATE</source>
        <translation>旋转</translation>
    </message>
    <message>
        <source>RECTANGLE</source>
        <translation>矩形</translation>
    </message>
    <message>
        <source>ROUNDED RECTANGLE</source>
        <translation>圆角矩形</translation>
    </message>
    <message>
        <source>Play Action 1. Please assign F2 to an Action in Photoshop</source>
        <translation>播放动作 1。请在 Photoshop 中将 F2 指定给一个动作</translation>
    </message>
    <message>
        <source>Play Action 2. Please assign F3 to an Action in Photoshop</source>
        <translation>播放动作 2。请在 Photoshop 中将 F3 指定给一个动作</translation>
    </message>
    <message>
        <source>Play Action 3. Please assign F4 to an Action in Photoshop</source>
        <translation>播放动作 3。请在 Photoshop 中将 F4 指定给一个动作</translation>
    </message>
    <message>
        <source>To use Presso(Pressure Sensitive) Blur,
please assign N to Blur Tool in Photoshop(Alt+Shift+Ctrl+K)</source>
        <translation>要使用 Presso（压感）模糊，
请在 Photoshop 中将 N 指定给模糊工具 (Alt+Shift+Ctrl+K)</translation>
    </message>
    <message>
        <source>COMPARISON
Please assign F2 to Comparison Tool in Premiere Pro(Ctrl+Alt+K)</source>
        <translation>比较
请在 Premiere Pro 中将 F2 指定给比较视图 (Ctrl+Alt+K)</translation>
    </message>
    <message>
        <source>Play Action 1. Please assign F2 to an Action in Illustrator</source>
        <translation>播放动作 1。请在 Illustrator 中将 F2 指定给一个动作</translation>
    </message>
    <message>
        <source>Play Action 2. Please assign F3 to an Action in Illustrator</source>
        <translation>播放动作 2。请在 Illustrator 中将 F3 指定给一个动作</translation>
    </message>
    <message>
        <source>Play Action 3. Please assign F4 to an Action in Illustrator</source>
        <translation>播放动作 3。请在 Illustrator 中将 F4 指定给一个动作</translation>
    </message>
    <message>
        <source>POLYGON
Please assign 2 to Polygon Tool in Illustrator(Alt+Shift+Ctrl+K)</source>
        <translation>多边形
请在 Illustrator 中将 2 指定给多边形工具 (Alt+Shift+Ctrl+K)</translation>
    </message>
    <message>
        <source>ROUNDED RECTANGLE
Please assign 1 to Rounded Rectangle Tool in Illustrator(Alt+Shift+Ctrl+K)</source>
        <translation>圆角矩形
请在 Illustrator 中将 1 指定给圆角矩形工具 (Alt+Shift+Ctrl+K)</translation>
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
        <translation>动作 1</translation>
    </message>
    <message>
        <source>ACTION 2</source>
        <translation>动作 2</translation>
    </message>
    <message>
        <source>TYPE</source>
        <translation>类型</translation>
    </message>
</context>
<context>
    <name>DualActionDistUi</name>
    <message>
        <source>ACTIVATION DISTANCE</source>
        <translation>触发距离</translation>
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
        <translation>动作1</translation>
    </message>
    <message>
        <source>ACTION2</source>
        <translation>动作2</translation>
    </message>
</context>
<context>
    <name>DualActionType</name>
    <message>
        <source>NORMAL
(ACTION1 &gt; ACTION2)</source>
        <translation>普通
(动作1 &gt; 动作2)</translation>
    </message>
    <message>
        <source>TOGGLE
(ACTION1 &gt; ACTION2 &gt; ACTION1)</source>
        <translation>切换
(动作1 &gt; 动作2 &gt; 动作1)</translation>
    </message>
    <message>
        <source>COMBINE
(ACTION1 &gt; ACTION1 + ACTION2)</source>
        <translation>组合
(动作1 &gt; 动作1 + 动作2)</translation>
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
        <translation>映射输入</translation>
    </message>
</context>
<context>
    <name>KeyCodes</name>
    <message>
        <source>KEYBOARD</source>
        <translation>键盘</translation>
    </message>
    <message>
        <source>MOUSE</source>
        <translation>鼠标</translation>
    </message>
    <message>
        <source>MEDIA</source>
        <translation>媒体</translation>
    </message>
    <message>
        <source>MACRO</source>
        <translation>宏</translation>
    </message>
    <message>
        <source>GAME CONTROLLER</source>
        <translation>游戏手柄</translation>
    </message>
    <message>
        <source>APPLICATION</source>
        <translation>应用程序</translation>
    </message>
    <message>
        <source>DUAL ACTION</source>
        <translation>双动作</translation>
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
        <translation>配置文件</translation>
    </message>
    <message>
        <source>PRESET MODE</source>
        <translation>预设模式</translation>
    </message>
    <message>
        <source>DISABLED</source>
        <translation>已禁用</translation>
    </message>
    <message>
        <source>UNASSIGNED</source>
        <translation>未分配</translation>
    </message>
    <message>
        <source>UNKNOWN</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>OPEN TASK MANAGER</source>
        <translation>打开任务管理器</translation>
    </message>
    <message>
        <source>SWITCH BETWEEN OPEN APPS</source>
        <translation>切换打开的应用</translation>
    </message>
    <message>
        <source>BROWSER BACKWARD</source>
        <translation>浏览器后退</translation>
    </message>
    <message>
        <source>BROWSER FORWARD</source>
        <translation>浏览器前进</translation>
    </message>
    <message>
        <source>MOVE UP ONE SCREEN</source>
        <translation>向上滚动一屏</translation>
    </message>
    <message>
        <source>MOVE DOWN ONE SCREEN</source>
        <translation>向下滚动一屏</translation>
    </message>
    <message>
        <source>VIEW OPEN APPS</source>
        <translation>查看打开的应用</translation>
    </message>
    <message>
        <source>COPY SELECTED ITEMS TO CLIPBOARD</source>
        <translation>复制所选项目到剪贴板</translation>
    </message>
    <message>
        <source>CUT SELECTED ITEMS</source>
        <translation>剪切所选项目</translation>
    </message>
    <message>
        <source>PASTE CONTENT FROM CLIPBOARD</source>
        <translation>从剪贴板粘贴</translation>
    </message>
    <message>
        <source>SELECT ALL CONTENT</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>UNDO AN ACTION</source>
        <translation>撤消操作</translation>
    </message>
    <message>
        <source>REDO AN ACTION</source>
        <translation>恢复操作</translation>
    </message>
    <message>
        <source>DELETE THE SELECTED ITEM AND MOVE IT TO THE RECYCLE BIN</source>
        <translation>删除所选项目并移到回收站</translation>
    </message>
    <message>
        <source>OPEN THE START MENU</source>
        <translation>打开开始菜单</translation>
    </message>
    <message>
        <source>SWITCH THE KEYBOARD LAYOUT</source>
        <translation>切换键盘布局</translation>
    </message>
    <message>
        <source>CLOSE ACTIVE WINDOW</source>
        <translation>关闭活动窗口</translation>
    </message>
    <message>
        <source>DISABLE</source>
        <translation>禁用</translation>
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
        <translation>下一个灯效+</translation>
    </message>
    <message>
        <source>Power Mode:Disable</source>
        <translation>电源模式:关闭</translation>
    </message>
    <message>
        <source>Power Mode:Working</source>
        <translation>电源模式:工作</translation>
    </message>
    <message>
        <source>Power Mode:Performance</source>
        <translation>电源模式:性能</translation>
    </message>
    <message>
        <source>Power Mode:Gaming</source>
        <translation>电源模式:游戏</translation>
    </message>
    <message>
        <source>LED DARKER-</source>
        <translation>LED 调暗-</translation>
    </message>
    <message>
        <source>LED BRIGHTER+</source>
        <translation>LED 调亮+</translation>
    </message>
    <message>
        <source>L TRIGGER</source>
        <translation>左扳机</translation>
    </message>
    <message>
        <source>R TRIGGER</source>
        <translation>右扳机</translation>
    </message>
    <message>
        <source>E-MAIL</source>
        <translation>电子邮件</translation>
    </message>
    <message>
        <source>CALCULATOR</source>
        <translation>计算器</translation>
    </message>
    <message>
        <source>PLAY/PAUSE</source>
        <translation>播放/暂停</translation>
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
        <translation>静音/取消静音</translation>
    </message>
    <message>
        <source>VOLUME DOWN</source>
        <translation>音量减</translation>
    </message>
    <message>
        <source>VOLUME UP</source>
        <translation>音量加</translation>
    </message>
    <message>
        <source>WEB BROWSER</source>
        <translation>网页浏览器</translation>
    </message>
    <message>
        <source>CALIBRATE</source>
        <translation>校准</translation>
    </message>
    <message>
        <source>EFFECT CYCLE-</source>
        <translation>上一个灯效-</translation>
    </message>
    <message>
        <source>SPEED DOWN LED EFFECT-</source>
        <translation>减慢 LED 灯效-</translation>
    </message>
    <message>
        <source>SPEED UP LED EFFECT+</source>
        <translation>加快 LED 灯效+</translation>
    </message>
    <message>
        <source>D PAD UP RIGHT</source>
        <translation>方向键右上</translation>
    </message>
    <message>
        <source>D PAD DOWN RIGHT</source>
        <translation>方向键右下</translation>
    </message>
    <message>
        <source>D PAD DOWN LEFT</source>
        <translation>方向键左下</translation>
    </message>
    <message>
        <source>D PAD UP LEFT</source>
        <translation>方向键左上</translation>
    </message>
    <message>
        <source>D PAD UP</source>
        <translation>方向键上</translation>
    </message>
    <message>
        <source>D PAD DOWN</source>
        <translation>方向键下</translation>
    </message>
    <message>
        <source>D PAD LEFT</source>
        <translation>方向键左</translation>
    </message>
    <message>
        <source>D PAD RIGHT</source>
        <translation>方向键右</translation>
    </message>
    <message>
        <source>A BUTTON</source>
        <translation>A 键</translation>
    </message>
    <message>
        <source>B BUTTON</source>
        <translation>B 键</translation>
    </message>
    <message>
        <source>X BUTTON</source>
        <translation>X 键</translation>
    </message>
    <message>
        <source>Y BUTTON</source>
        <translation>Y 键</translation>
    </message>
    <message>
        <source>L BUMPER</source>
        <translation>左肩键</translation>
    </message>
    <message>
        <source>R BUMPER</source>
        <translation>右肩键</translation>
    </message>
    <message>
        <source>GUIDE BUTTON</source>
        <translation>导航键</translation>
    </message>
    <message>
        <source>START BUTTON</source>
        <translation>开始键</translation>
    </message>
    <message>
        <source>HOME BUTTON</source>
        <translation>主页键</translation>
    </message>
    <message>
        <source>L STICK PRESS</source>
        <translation>按下左摇杆</translation>
    </message>
    <message>
        <source>R STICK PRESS</source>
        <translation>按下右摇杆</translation>
    </message>
    <message>
        <source>L STICK LEFT</source>
        <translation>左摇杆向左</translation>
    </message>
    <message>
        <source>L STICK DOWN</source>
        <translation>左摇杆向下</translation>
    </message>
    <message>
        <source>R STICK LEFT</source>
        <translation>右摇杆向左</translation>
    </message>
    <message>
        <source>R STICK DOWN</source>
        <translation>右摇杆向下</translation>
    </message>
    <message>
        <source>CURSOR UP</source>
        <translation>光标上移</translation>
    </message>
    <message>
        <source>CURSOR RIGHT</source>
        <translation>光标右移</translation>
    </message>
    <message>
        <source>CURSOR DOWN</source>
        <translation>光标下移</translation>
    </message>
    <message>
        <source>CURSOR LEFT</source>
        <translation>光标左移</translation>
    </message>
    <message>
        <source>SCROLL UP</source>
        <translation>向上滚动</translation>
    </message>
    <message>
        <source>SCROLL DOWN</source>
        <translation>向下滚动</translation>
    </message>
    <message>
        <source>LEFT CLICK</source>
        <translation>左键单击</translation>
    </message>
    <message>
        <source>RIGHT CLICK</source>
        <translation>右键单击</translation>
    </message>
    <message>
        <source>WHEEL CLICK</source>
        <translation>滚轮单击</translation>
    </message>
    <message>
        <source>BACKWARD</source>
        <translation>后退</translation>
    </message>
    <message>
        <source>FORWARD</source>
        <translation>前进</translation>
    </message>
    <message>
        <source>L STICK RIGHT</source>
        <translation>左摇杆向右</translation>
    </message>
    <message>
        <source>L STICK UP</source>
        <translation>左摇杆向上</translation>
    </message>
    <message>
        <source>R STICK RIGHT</source>
        <translation>右摇杆向右</translation>
    </message>
    <message>
        <source>R STICK UP</source>
        <translation>右摇杆向上</translation>
    </message>
    <message>
        <source>SCROLL LEFT</source>
        <translation>向左滚动</translation>
    </message>
    <message>
        <source>SCROLL RIGHT</source>
        <translation>向右滚动</translation>
    </message>
    <message>
        <source>PROFILE 1</source>
        <translation>配置文件 1</translation>
    </message>
    <message>
        <source>PROFILE 2</source>
        <translation>配置文件 2</translation>
    </message>
    <message>
        <source>PROFILE 3</source>
        <translation>配置文件 3</translation>
    </message>
    <message>
        <source>PROFILE 4</source>
        <translation>配置文件 4</translation>
    </message>
    <message>
        <source>PROFILE 5</source>
        <translation>配置文件 5</translation>
    </message>
    <message>
        <source>PROFILE 6</source>
        <translation>配置文件 6</translation>
    </message>
    <message>
        <source>PROFILE 7</source>
        <translation>配置文件 7</translation>
    </message>
    <message>
        <source>PROFILE 8</source>
        <translation>配置文件 8</translation>
    </message>
    <message>
        <source>PROFILE 9</source>
        <translation>配置文件 9</translation>
    </message>
    <message>
        <source>PROFILE 10</source>
        <translation>配置文件 10</translation>
    </message>
    <message>
        <source>PROFILE 11</source>
        <translation>配置文件 11</translation>
    </message>
    <message>
        <source>PROFILE 12</source>
        <translation>配置文件 12</translation>
    </message>
    <message>
        <source>PROFILE 13</source>
        <translation>配置文件 13</translation>
    </message>
    <message>
        <source>PROFILE 14</source>
        <translation>配置文件 14</translation>
    </message>
    <message>
        <source>PROFILE 15</source>
        <translation>配置文件 15</translation>
    </message>
    <message>
        <source>PROFILE 16</source>
        <translation>配置文件 16</translation>
    </message>
    <message>
        <source>PROFILE 17</source>
        <translation>配置文件 17</translation>
    </message>
    <message>
        <source>PROFILE 18</source>
        <translation>配置文件 18</translation>
    </message>
    <message>
        <source>PROFILE 19</source>
        <translation>配置文件 19</translation>
    </message>
    <message>
        <source>PROFILE 20</source>
        <translation>配置文件 20</translation>
    </message>
    <message>
        <source>PROFILE 21</source>
        <translation>配置文件 21</translation>
    </message>
    <message>
        <source>PROFILE 22</source>
        <translation>配置文件 22</translation>
    </message>
    <message>
        <source>PROFILE 23</source>
        <translation>配置文件 23</translation>
    </message>
    <message>
        <source>PROFILE 24</source>
        <translation>配置文件 24</translation>
    </message>
    <message>
        <source>PROFILE[+]</source>
        <translation>配置文件[+]</translation>
    </message>
    <message>
        <source>PROFILE[-]</source>
        <translation>配置文件[-]</translation>
    </message>
    <message>
        <source>PROFILE CYCLE+</source>
        <translation>下一个配置文件+</translation>
    </message>
    <message>
        <source>PROFILE CYCLE-</source>
        <translation>上一个配置文件-</translation>
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
        <translation>未知按键</translation>
    </message>
</context>
<context>
    <name>KeyboardAdvWid</name>
    <message>
        <source>ALPHANUMERIC</source>
        <translation>字母和数字</translation>
    </message>
    <message>
        <source>SYMBOLS &amp;&amp; PUNCTUATION</source>
        <translation>符号 &amp;&amp; 标点</translation>
    </message>
    <message>
        <source>NAVIGATION KEYS</source>
        <translation>导航键</translation>
    </message>
    <message>
        <source>MODIFIER</source>
        <translation>修饰键</translation>
    </message>
    <message>
        <source>FUNCTION KEYS</source>
        <translation>功能键</translation>
    </message>
    <message>
        <source>NUMBERPAD KEYS</source>
        <translation>数字小键盘</translation>
    </message>
</context>
<context>
    <name>MacroAdvUi</name>
    <message>
        <source>USER MACROS</source>
        <translation>用户宏</translation>
    </message>
    <message>
        <source>CREATE NEW MACRO</source>
        <translation>新建宏</translation>
    </message>
    <message>
        <source>WINDOWS KEYBOARD SHORTCUTS</source>
        <translation>WINDOWS 快捷键</translation>
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
        <translation>+ 新建宏</translation>
    </message>
</context>
<context>
    <name>MediaUi</name>
    <message>
        <source>MULTIMEDIA KEYS</source>
        <translation>多媒体键</translation>
    </message>
</context>
<context>
    <name>PanelWid</name>
    <message>
        <source>Keyboard</source>
        <translation>键盘</translation>
    </message>
    <message>
        <source>Gaming</source>
        <translation>游戏</translation>
    </message>
    <message>
        <source>Creative Application</source>
        <translation>创意应用</translation>
    </message>
    <message>
        <source>Standard WASD</source>
        <translation>标准 WASD</translation>
    </message>
    <message>
        <source>Standard ESDF</source>
        <translation>标准 ESDF</translation>
    </message>
    <message>
        <source>Numpad Mode</source>
        <translation>数字小键盘</translation>
    </message>
    <message>
        <source>FPS Mode</source>
        <translation>FPS 模式</translation>
    </message>
    <message>
        <source>Driving Mode</source>
        <translation>驾驶模式</translation>
    </message>
    <message>
        <source>Adv. Flight Mode</source>
        <translation>高级飞行模式</translation>
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
        <translation>死区校准</translation>
    </message>
</context>
<context>
    <name>PressoUi</name>
    <message>
        <source>PRESSURE</source>
        <translation>压力</translation>
    </message>
    <message>
        <source>SENSING</source>
        <translation>感应</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
</context>
<context>
    <name>ProfileUi</name>
    <message>
        <source>PROFILE</source>
        <translation>配置文件</translation>
    </message>
</context>
<context>
    <name>ReassignDlg</name>
    <message>
        <source>KEY ASSIGNMENT</source>
        <translation>按键分配</translation>
    </message>
    <message>
        <source>KEY ASSIGNMENT - VANTRIX </source>
        <translation>按键分配 - VANTRIX </translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>SEARCH</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>MOUSE BUTTONS</source>
        <translation>鼠标按键</translation>
    </message>
    <message>
        <source>MEDIA COMMANDS</source>
        <translation>媒体命令</translation>
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
        <translation>配置文件</translation>
    </message>
</context>
<context>
    <name>VantrixMapWid</name>
    <message>
        <source>SIMPLE</source>
        <translation>简单</translation>
    </message>
    <message>
        <source>ADVANCED</source>
        <translation>高级</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>RESET</source>
        <translation>重置</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
    <message>
        <source>Are you sure you want to reset?</source>
        <translation>确定要重置吗？</translation>
    </message>
</context>
</TS>
