<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="th_TH" sourcelanguage="en_US">
<context>
    <name>ActionAssignUi</name>
    <message>
        <source>BACK</source>
        <translation>กลับ</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>ใช้</translation>
    </message>
</context>
<context>
    <name>ActionBtn</name>
    <message>
        <source>ACTION</source>
        <translation>การทำงาน</translation>
    </message>
</context>
<context>
    <name>ActionWid</name>
    <message>
        <source>ACTION</source>
        <translation>การทำงาน</translation>
    </message>
</context>
<context>
    <name>AdvAssignWid</name>
    <message>
        <source>CTRL LEFT</source>
        <translation>CTRL ซ้าย</translation>
    </message>
    <message>
        <source>SHIFT LEFT</source>
        <translation>SHIFT ซ้าย</translation>
    </message>
    <message>
        <source>ALT LEFT</source>
        <translation>ALT ซ้าย</translation>
    </message>
    <message>
        <source>CTRL RIGHT</source>
        <translation>CTRL ขวา</translation>
    </message>
    <message>
        <source>SHIFT RIGHT</source>
        <translation>SHIFT ขวา</translation>
    </message>
    <message>
        <source>ALT RIGHT</source>
        <translation>ALT ขวา</translation>
    </message>
</context>
<context>
    <name>AppPathDlg</name>
    <message>
        <source>APPLICATION</source>
        <translation>แอปพลิเคชัน</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>ปิด</translation>
    </message>
    <message>
        <source>PATH</source>
        <translation>เส้นทาง</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>เปิดไฟล์</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ยกเลิก</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>ใช้</translation>
    </message>
</context>
<context>
    <name>ApplicationBtn</name>
    <message>
        <source>Open File</source>
        <translation>เปิดไฟล์</translation>
    </message>
</context>
<context>
    <name>AssignMenuUi</name>
    <message>
        <source>REASSIGN KEY</source>
        <translation>กำหนดปุ่มใหม่</translation>
    </message>
    <message>
        <source>CONTROLLER MAPPING MODE</source>
        <translation>โหมดจอยเกม</translation>
    </message>
    <message>
        <source>DUAL ACTION MAPPING MODE</source>
        <translation>โหมดสองจังหวะ</translation>
    </message>
    <message>
        <source>CLEAR KEY ASSIGNMENT</source>
        <translation>ล้างการกำหนดปุ่ม</translation>
    </message>
    <message>
        <source>DISABLE KEY</source>
        <translation>ปิดใช้งานปุ่ม</translation>
    </message>
</context>
<context>
    <name>AssignWid</name>
    <message>
        <source>warning</source>
        <translation>คำเตือน</translation>
    </message>
    <message>
        <source>Macro assign has reached maximum limit</source>
        <translation>กำหนดมาโครถึงจำนวนสูงสุดแล้ว</translation>
    </message>
    <message>
        <source>Fail to find the path of the program.</source>
        <translation>ไม่พบเส้นทางของโปรแกรม</translation>
    </message>
    <message>
        <source>Please assign it manually:</source>
        <translation>โปรดกำหนดเอง:</translation>
    </message>
</context>
<context>
    <name>BackLightUi</name>
    <message>
        <source>BACKLIGHT</source>
        <translation>ไฟพื้นหลัง</translation>
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
        <translation>เบลอ</translation>
    </message>
    <message>
        <source>BRUSH SIZE</source>
        <translation>ขนาดแปรง</translation>
    </message>
    <message>
        <source>BRUSH HARDNESS</source>
        <translation>ความแข็งของแปรง</translation>
    </message>
    <message>
        <source>CROP</source>
        <translation>ครอบตัด</translation>
    </message>
    <message>
        <source>CLONE STAMP</source>
        <translation>ตราประทับโคลน</translation>
    </message>
    <message>
        <source>DODGE</source>
        <translation>ทำให้สว่าง</translation>
    </message>
    <message>
        <source>EYEDROP</source>
        <translation>หลอดดูดสี</translation>
    </message>
    <message>
        <source>LASSO</source>
        <translation>บ่วงบาศ</translation>
    </message>
    <message>
        <source>LAUNCH PS</source>
        <translation>เปิด PS</translation>
    </message>
    <message>
        <source>MOVE</source>
        <translation>ย้าย</translation>
    </message>
    <message>
        <source>RECTANGULAR MARQUEE</source>
        <translation>เลือกสี่เหลี่ยม</translation>
    </message>
    <message>
        <source>MAGNIFYING</source>
        <translation>ซูม</translation>
    </message>
    <message>
        <source>PEN</source>
        <translation>ปากกา</translation>
    </message>
    <message>
        <source>POINTER</source>
        <translation>ตัวชี้</translation>
    </message>
    <message>
        <source>QUICK SELECTION</source>
        <translation>เลือกด่วน</translation>
    </message>
    <message>
        <source>TEXT</source>
        <translation>ข้อความ</translation>
    </message>
    <message>
        <source>BACKWARD</source>
        <translation>เล่นถอยหลัง</translation>
    </message>
    <message>
        <source>COMPARISON</source>
        <translation>เปรียบเทียบ</translation>
    </message>
    <message>
        <source>FORWARD</source>
        <translation>เล่นไปข้างหน้า</translation>
    </message>
    <message>
        <source>GO TO IN</source>
        <translation>ไปยังจุดเข้า</translation>
    </message>
    <message>
        <source>GO TO OUT</source>
        <translation>ไปยังจุดออก</translation>
    </message>
    <message>
        <source>HAND</source>
        <translation>มือ</translation>
    </message>
    <message>
        <source>LAUNCH PR</source>
        <translation>เปิด PR</translation>
    </message>
    <message>
        <source>MARK IN</source>
        <translation>ทำเครื่องหมายเข้า</translation>
    </message>
    <message>
        <source>MARK OUT</source>
        <translation>ทำเครื่องหมายออก</translation>
    </message>
    <message>
        <source>PLAY-STOP TOGGLE</source>
        <translation>เล่น/หยุด</translation>
    </message>
    <message>
        <source>RAZOR</source>
        <translation>มีดโกน</translation>
    </message>
    <message>
        <source>RIPPLE EDIT</source>
        <translation>ตัดต่อแบบระลอก</translation>
    </message>
    <message>
        <source>SLIP</source>
        <translation>เลื่อนเนื้อคลิป</translation>
    </message>
    <message>
        <source>STEP BACK 1 FRAME</source>
        <translation>ถอยหลัง 1 เฟรม</translation>
    </message>
    <message>
        <source>STEP FORWARD 1 FRAME</source>
        <translation>เดินหน้า 1 เฟรม</translation>
    </message>
    <message>
        <source>SELECTION</source>
        <translation>เลือก</translation>
    </message>
    <message>
        <source>TRACK SELECT FORWARD</source>
        <translation>เลือกแทร็กไปข้างหน้า</translation>
    </message>
    <message>
        <source>ARTBOARD</source>
        <translation>อาร์ตบอร์ด</translation>
    </message>
    <message>
        <source>BRUSH OPACITY</source>
        <translation>ความทึบของแปรง</translation>
    </message>
    <message>
        <source>DIRECT SELECTION</source>
        <translation>เลือกโดยตรง</translation>
    </message>
    <message>
        <source>ELLIPSE</source>
        <translation>วงรี</translation>
    </message>
    <message>
        <source>LAUNCH AI</source>
        <translation>เปิด AI</translation>
    </message>
    <message>
        <source>POLYGON</source>
        <translation>รูปหลายเหลี่ยม</translation>
    </message>
    <message>
        <source>ROTATE</source>
        <translation>หมุน</translation>
    </message>
    <message>
        <source>RECTANGLE</source>
        <translation>สี่เหลี่ยมผืนผ้า</translation>
    </message>
    <message>
        <source>ROUNDED RECTANGLE</source>
        <translation>สี่เหลี่ยมมุมมน</translation>
    </message>
    <message>
        <source>Play Action 1. Please assign F2 to an Action in Photoshop</source>
        <translation>เล่นแอ็กชัน 1 โปรดกำหนด F2 ให้แอ็กชันใน Photoshop</translation>
    </message>
    <message>
        <source>Play Action 2. Please assign F3 to an Action in Photoshop</source>
        <translation>เล่นแอ็กชัน 2 โปรดกำหนด F3 ให้แอ็กชันใน Photoshop</translation>
    </message>
    <message>
        <source>Play Action 3. Please assign F4 to an Action in Photoshop</source>
        <translation>เล่นแอ็กชัน 3 โปรดกำหนด F4 ให้แอ็กชันใน Photoshop</translation>
    </message>
    <message>
        <source>To use Presso(Pressure Sensitive) Blur,
please assign N to Blur Tool in Photoshop(Alt+Shift+Ctrl+K)</source>
        <translation>หากต้องการใช้เบลอ Presso (ไวต่อแรงกด)
โปรดกำหนด N ให้เครื่องมือเบลอใน Photoshop (Alt+Shift+Ctrl+K)</translation>
    </message>
    <message>
        <source>COMPARISON
Please assign F2 to Comparison Tool in Premiere Pro(Ctrl+Alt+K)</source>
        <translation>เปรียบเทียบ
โปรดกำหนด F2 ให้มุมมองเปรียบเทียบใน Premiere Pro (Ctrl+Alt+K)</translation>
    </message>
    <message>
        <source>Play Action 1. Please assign F2 to an Action in Illustrator</source>
        <translation>เล่นแอ็กชัน 1 โปรดกำหนด F2 ให้แอ็กชันใน Illustrator</translation>
    </message>
    <message>
        <source>Play Action 2. Please assign F3 to an Action in Illustrator</source>
        <translation>เล่นแอ็กชัน 2 โปรดกำหนด F3 ให้แอ็กชันใน Illustrator</translation>
    </message>
    <message>
        <source>Play Action 3. Please assign F4 to an Action in Illustrator</source>
        <translation>เล่นแอ็กชัน 3 โปรดกำหนด F4 ให้แอ็กชันใน Illustrator</translation>
    </message>
    <message>
        <source>POLYGON
Please assign 2 to Polygon Tool in Illustrator(Alt+Shift+Ctrl+K)</source>
        <translation>รูปหลายเหลี่ยม
โปรดกำหนด 2 ให้เครื่องมือรูปหลายเหลี่ยมใน Illustrator (Alt+Shift+Ctrl+K)</translation>
    </message>
    <message>
        <source>ROUNDED RECTANGLE
Please assign 1 to Rounded Rectangle Tool in Illustrator(Alt+Shift+Ctrl+K)</source>
        <translation>สี่เหลี่ยมมุมมน
โปรดกำหนด 1 ให้เครื่องมือสี่เหลี่ยมมุมมนใน Illustrator (Alt+Shift+Ctrl+K)</translation>
    </message>
    <message>
        <source>UNKNOWN</source>
        <translation>ไม่รู้จัก</translation>
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
        <translation>การทำงาน 1</translation>
    </message>
    <message>
        <source>ACTION 2</source>
        <translation>การทำงาน 2</translation>
    </message>
    <message>
        <source>TYPE</source>
        <translation>ชนิด</translation>
    </message>
</context>
<context>
    <name>DualActionDistUi</name>
    <message>
        <source>ACTIVATION DISTANCE</source>
        <translation>ระยะการทำงาน</translation>
    </message>
    <message>
        <source>TRAVEL</source>
        <translation>ระยะกด</translation>
    </message>
</context>
<context>
    <name>DualActionTipWid</name>
    <message>
        <source>ACTION1</source>
        <translation>การทำงาน1</translation>
    </message>
    <message>
        <source>ACTION2</source>
        <translation>การทำงาน2</translation>
    </message>
</context>
<context>
    <name>DualActionType</name>
    <message>
        <source>NORMAL
(ACTION1 &gt; ACTION2)</source>
        <translation>ปกติ
(การทำงาน1 &gt; การทำงาน2)</translation>
    </message>
    <message>
        <source>TOGGLE
(ACTION1 &gt; ACTION2 &gt; ACTION1)</source>
        <translation>สลับ
(การทำงาน1 &gt; การทำงาน2 &gt; การทำงาน1)</translation>
    </message>
    <message>
        <source>COMBINE
(ACTION1 &gt; ACTION1 + ACTION2)</source>
        <translation>ผสม
(การทำงาน1 &gt; การทำงาน1 + การทำงาน2)</translation>
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
        <translation>ชนิดอินพุต</translation>
    </message>
</context>
<context>
    <name>KeyCodes</name>
    <message>
        <source>KEYBOARD</source>
        <translation>แป้นพิมพ์</translation>
    </message>
    <message>
        <source>MOUSE</source>
        <translation>เมาส์</translation>
    </message>
    <message>
        <source>MEDIA</source>
        <translation>มีเดีย</translation>
    </message>
    <message>
        <source>MACRO</source>
        <translation>มาโคร</translation>
    </message>
    <message>
        <source>GAME CONTROLLER</source>
        <translation>จอยเกม</translation>
    </message>
    <message>
        <source>APPLICATION</source>
        <translation>แอปพลิเคชัน</translation>
    </message>
    <message>
        <source>DUAL ACTION</source>
        <translation>สองจังหวะ</translation>
    </message>
    <message>
        <source>PRESSO FUNCTIONS</source>
        <translation>ฟังก์ชัน PRESSO</translation>
    </message>
    <message>
        <source>BACKLIGHT</source>
        <translation>ไฟพื้นหลัง</translation>
    </message>
    <message>
        <source>PROFILE</source>
        <translation>โปรไฟล์</translation>
    </message>
    <message>
        <source>PRESET MODE</source>
        <translation>โหมดสำเร็จรูป</translation>
    </message>
    <message>
        <source>DISABLED</source>
        <translation>ปิดใช้งาน</translation>
    </message>
    <message>
        <source>UNASSIGNED</source>
        <translation>ไม่ได้กำหนด</translation>
    </message>
    <message>
        <source>UNKNOWN</source>
        <translation>ไม่รู้จัก</translation>
    </message>
    <message>
        <source>OPEN TASK MANAGER</source>
        <translation>เปิดตัวจัดการงาน</translation>
    </message>
    <message>
        <source>SWITCH BETWEEN OPEN APPS</source>
        <translation>สลับระหว่างแอปที่เปิดอยู่</translation>
    </message>
    <message>
        <source>BROWSER BACKWARD</source>
        <translation>เบราว์เซอร์ย้อนกลับ</translation>
    </message>
    <message>
        <source>BROWSER FORWARD</source>
        <translation>เบราว์เซอร์ไปข้างหน้า</translation>
    </message>
    <message>
        <source>MOVE UP ONE SCREEN</source>
        <translation>เลื่อนขึ้นหนึ่งหน้าจอ</translation>
    </message>
    <message>
        <source>MOVE DOWN ONE SCREEN</source>
        <translation>เลื่อนลงหนึ่งหน้าจอ</translation>
    </message>
    <message>
        <source>VIEW OPEN APPS</source>
        <translation>ดูแอปที่เปิดอยู่</translation>
    </message>
    <message>
        <source>COPY SELECTED ITEMS TO CLIPBOARD</source>
        <translation>คัดลอกรายการที่เลือกไปยังคลิปบอร์ด</translation>
    </message>
    <message>
        <source>CUT SELECTED ITEMS</source>
        <translation>ตัดรายการที่เลือก</translation>
    </message>
    <message>
        <source>PASTE CONTENT FROM CLIPBOARD</source>
        <translation>วางจากคลิปบอร์ด</translation>
    </message>
    <message>
        <source>SELECT ALL CONTENT</source>
        <translation>เลือกทั้งหมด</translation>
    </message>
    <message>
        <source>UNDO AN ACTION</source>
        <translation>เลิกทำ</translation>
    </message>
    <message>
        <source>REDO AN ACTION</source>
        <translation>ทำซ้ำ</translation>
    </message>
    <message>
        <source>DELETE THE SELECTED ITEM AND MOVE IT TO THE RECYCLE BIN</source>
        <translation>ย้ายรายการที่เลือกไปยังถังรีไซเคิล</translation>
    </message>
    <message>
        <source>OPEN THE START MENU</source>
        <translation>เปิดเมนูเริ่ม</translation>
    </message>
    <message>
        <source>SWITCH THE KEYBOARD LAYOUT</source>
        <translation>สลับเค้าโครงแป้นพิมพ์</translation>
    </message>
    <message>
        <source>CLOSE ACTIVE WINDOW</source>
        <translation>ปิดหน้าต่างที่ใช้งานอยู่</translation>
    </message>
    <message>
        <source>DISABLE</source>
        <translation>ปิดใช้งาน</translation>
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
        <translation>เอฟเฟกต์ ถัดไป+</translation>
    </message>
    <message>
        <source>Power Mode:Disable</source>
        <translation>โหมดพลังงาน:ปิด</translation>
    </message>
    <message>
        <source>Power Mode:Working</source>
        <translation>โหมดพลังงาน:ทำงาน</translation>
    </message>
    <message>
        <source>Power Mode:Performance</source>
        <translation>โหมดพลังงาน:ประสิทธิภาพ</translation>
    </message>
    <message>
        <source>Power Mode:Gaming</source>
        <translation>โหมดพลังงาน:เล่นเกม</translation>
    </message>
    <message>
        <source>LED DARKER-</source>
        <translation>LED มืดลง-</translation>
    </message>
    <message>
        <source>LED BRIGHTER+</source>
        <translation>LED สว่างขึ้น+</translation>
    </message>
    <message>
        <source>L TRIGGER</source>
        <translation>ทริกเกอร์ซ้าย</translation>
    </message>
    <message>
        <source>R TRIGGER</source>
        <translation>ทริกเกอร์ขวา</translation>
    </message>
    <message>
        <source>E-MAIL</source>
        <translation>อีเมล</translation>
    </message>
    <message>
        <source>CALCULATOR</source>
        <translation>เครื่องคิดเลข</translation>
    </message>
    <message>
        <source>PLAY/PAUSE</source>
        <translation>เล่น/หยุดชั่วคราว</translation>
    </message>
    <message>
        <source>STOP</source>
        <translation>หยุด</translation>
    </message>
    <message>
        <source>PREVIOUS TRACK</source>
        <translation>เพลงก่อนหน้า</translation>
    </message>
    <message>
        <source>NEXT TRACK</source>
        <translation>เพลงถัดไป</translation>
    </message>
    <message>
        <source>VOLUME MUTE/UNMUTE</source>
        <translation>ปิด/เปิดเสียง</translation>
    </message>
    <message>
        <source>VOLUME DOWN</source>
        <translation>ลดเสียง</translation>
    </message>
    <message>
        <source>VOLUME UP</source>
        <translation>เพิ่มเสียง</translation>
    </message>
    <message>
        <source>WEB BROWSER</source>
        <translation>เว็บเบราว์เซอร์</translation>
    </message>
    <message>
        <source>CALIBRATE</source>
        <translation>ปรับเทียบ</translation>
    </message>
    <message>
        <source>EFFECT CYCLE-</source>
        <translation>เอฟเฟกต์ ก่อนหน้า-</translation>
    </message>
    <message>
        <source>SPEED DOWN LED EFFECT-</source>
        <translation>ลดความเร็วเอฟเฟกต์ LED-</translation>
    </message>
    <message>
        <source>SPEED UP LED EFFECT+</source>
        <translation>เพิ่มความเร็วเอฟเฟกต์ LED+</translation>
    </message>
    <message>
        <source>D PAD UP RIGHT</source>
        <translation>ปุ่มทิศทางขวาบน</translation>
    </message>
    <message>
        <source>D PAD DOWN RIGHT</source>
        <translation>ปุ่มทิศทางขวาล่าง</translation>
    </message>
    <message>
        <source>D PAD DOWN LEFT</source>
        <translation>ปุ่มทิศทางซ้ายล่าง</translation>
    </message>
    <message>
        <source>D PAD UP LEFT</source>
        <translation>ปุ่มทิศทางซ้ายบน</translation>
    </message>
    <message>
        <source>D PAD UP</source>
        <translation>ปุ่มทิศทางขึ้น</translation>
    </message>
    <message>
        <source>D PAD DOWN</source>
        <translation>ปุ่มทิศทางลง</translation>
    </message>
    <message>
        <source>D PAD LEFT</source>
        <translation>ปุ่มทิศทางซ้าย</translation>
    </message>
    <message>
        <source>D PAD RIGHT</source>
        <translation>ปุ่มทิศทางขวา</translation>
    </message>
    <message>
        <source>A BUTTON</source>
        <translation>ปุ่ม A</translation>
    </message>
    <message>
        <source>B BUTTON</source>
        <translation>ปุ่ม B</translation>
    </message>
    <message>
        <source>X BUTTON</source>
        <translation>ปุ่ม X</translation>
    </message>
    <message>
        <source>Y BUTTON</source>
        <translation>ปุ่ม Y</translation>
    </message>
    <message>
        <source>L BUMPER</source>
        <translation>บัมเปอร์ซ้าย</translation>
    </message>
    <message>
        <source>R BUMPER</source>
        <translation>บัมเปอร์ขวา</translation>
    </message>
    <message>
        <source>GUIDE BUTTON</source>
        <translation>ปุ่ม GUIDE</translation>
    </message>
    <message>
        <source>START BUTTON</source>
        <translation>ปุ่ม START</translation>
    </message>
    <message>
        <source>HOME BUTTON</source>
        <translation>ปุ่ม HOME</translation>
    </message>
    <message>
        <source>L STICK PRESS</source>
        <translation>กดก้านซ้าย</translation>
    </message>
    <message>
        <source>R STICK PRESS</source>
        <translation>กดก้านขวา</translation>
    </message>
    <message>
        <source>L STICK LEFT</source>
        <translation>ก้านซ้ายไปทางซ้าย</translation>
    </message>
    <message>
        <source>L STICK DOWN</source>
        <translation>ก้านซ้ายลง</translation>
    </message>
    <message>
        <source>R STICK LEFT</source>
        <translation>ก้านขวาไปทางซ้าย</translation>
    </message>
    <message>
        <source>R STICK DOWN</source>
        <translation>ก้านขวาลง</translation>
    </message>
    <message>
        <source>CURSOR UP</source>
        <translation>เคอร์เซอร์ขึ้น</translation>
    </message>
    <message>
        <source>CURSOR RIGHT</source>
        <translation>เคอร์เซอร์ขวา</translation>
    </message>
    <message>
        <source>CURSOR DOWN</source>
        <translation>เคอร์เซอร์ลง</translation>
    </message>
    <message>
        <source>CURSOR LEFT</source>
        <translation>เคอร์เซอร์ซ้าย</translation>
    </message>
    <message>
        <source>SCROLL UP</source>
        <translation>เลื่อนขึ้น</translation>
    </message>
    <message>
        <source>SCROLL DOWN</source>
        <translation>เลื่อนลง</translation>
    </message>
    <message>
        <source>LEFT CLICK</source>
        <translation>คลิกซ้าย</translation>
    </message>
    <message>
        <source>RIGHT CLICK</source>
        <translation>คลิกขวา</translation>
    </message>
    <message>
        <source>WHEEL CLICK</source>
        <translation>คลิกล้อ</translation>
    </message>
    <message>
        <source>BACKWARD</source>
        <translation>ย้อนกลับ</translation>
    </message>
    <message>
        <source>FORWARD</source>
        <translation>ไปข้างหน้า</translation>
    </message>
    <message>
        <source>L STICK RIGHT</source>
        <translation>ก้านซ้ายไปทางขวา</translation>
    </message>
    <message>
        <source>L STICK UP</source>
        <translation>ก้านซ้ายขึ้น</translation>
    </message>
    <message>
        <source>R STICK RIGHT</source>
        <translation>ก้านขวาไปทางขวา</translation>
    </message>
    <message>
        <source>R STICK UP</source>
        <translation>ก้านขวาขึ้น</translation>
    </message>
    <message>
        <source>SCROLL LEFT</source>
        <translation>เลื่อนซ้าย</translation>
    </message>
    <message>
        <source>SCROLL RIGHT</source>
        <translation>เลื่อนขวา</translation>
    </message>
    <message>
        <source>PROFILE 1</source>
        <translation>โปรไฟล์ 1</translation>
    </message>
    <message>
        <source>PROFILE 2</source>
        <translation>โปรไฟล์ 2</translation>
    </message>
    <message>
        <source>PROFILE 3</source>
        <translation>โปรไฟล์ 3</translation>
    </message>
    <message>
        <source>PROFILE 4</source>
        <translation>โปรไฟล์ 4</translation>
    </message>
    <message>
        <source>PROFILE 5</source>
        <translation>โปรไฟล์ 5</translation>
    </message>
    <message>
        <source>PROFILE 6</source>
        <translation>โปรไฟล์ 6</translation>
    </message>
    <message>
        <source>PROFILE 7</source>
        <translation>โปรไฟล์ 7</translation>
    </message>
    <message>
        <source>PROFILE 8</source>
        <translation>โปรไฟล์ 8</translation>
    </message>
    <message>
        <source>PROFILE 9</source>
        <translation>โปรไฟล์ 9</translation>
    </message>
    <message>
        <source>PROFILE 10</source>
        <translation>โปรไฟล์ 10</translation>
    </message>
    <message>
        <source>PROFILE 11</source>
        <translation>โปรไฟล์ 11</translation>
    </message>
    <message>
        <source>PROFILE 12</source>
        <translation>โปรไฟล์ 12</translation>
    </message>
    <message>
        <source>PROFILE 13</source>
        <translation>โปรไฟล์ 13</translation>
    </message>
    <message>
        <source>PROFILE 14</source>
        <translation>โปรไฟล์ 14</translation>
    </message>
    <message>
        <source>PROFILE 15</source>
        <translation>โปรไฟล์ 15</translation>
    </message>
    <message>
        <source>PROFILE 16</source>
        <translation>โปรไฟล์ 16</translation>
    </message>
    <message>
        <source>PROFILE 17</source>
        <translation>โปรไฟล์ 17</translation>
    </message>
    <message>
        <source>PROFILE 18</source>
        <translation>โปรไฟล์ 18</translation>
    </message>
    <message>
        <source>PROFILE 19</source>
        <translation>โปรไฟล์ 19</translation>
    </message>
    <message>
        <source>PROFILE 20</source>
        <translation>โปรไฟล์ 20</translation>
    </message>
    <message>
        <source>PROFILE 21</source>
        <translation>โปรไฟล์ 21</translation>
    </message>
    <message>
        <source>PROFILE 22</source>
        <translation>โปรไฟล์ 22</translation>
    </message>
    <message>
        <source>PROFILE 23</source>
        <translation>โปรไฟล์ 23</translation>
    </message>
    <message>
        <source>PROFILE 24</source>
        <translation>โปรไฟล์ 24</translation>
    </message>
    <message>
        <source>PROFILE[+]</source>
        <translation>โปรไฟล์[+]</translation>
    </message>
    <message>
        <source>PROFILE[-]</source>
        <translation>โปรไฟล์[-]</translation>
    </message>
    <message>
        <source>PROFILE CYCLE+</source>
        <translation>โปรไฟล์ถัดไป+</translation>
    </message>
    <message>
        <source>PROFILE CYCLE-</source>
        <translation>โปรไฟล์ก่อนหน้า-</translation>
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
        <translation>ปุ่มที่ไม่รู้จัก</translation>
    </message>
</context>
<context>
    <name>KeyboardAdvWid</name>
    <message>
        <source>ALPHANUMERIC</source>
        <translation>ตัวอักษรและตัวเลข</translation>
    </message>
    <message>
        <source>SYMBOLS &amp;&amp; PUNCTUATION</source>
        <translation>สัญลักษณ์ &amp;&amp; เครื่องหมาย</translation>
    </message>
    <message>
        <source>NAVIGATION KEYS</source>
        <translation>ปุ่มนำทาง</translation>
    </message>
    <message>
        <source>MODIFIER</source>
        <translation>ปุ่มปรับแต่ง</translation>
    </message>
    <message>
        <source>FUNCTION KEYS</source>
        <translation>ปุ่มฟังก์ชัน</translation>
    </message>
    <message>
        <source>NUMBERPAD KEYS</source>
        <translation>แป้นตัวเลข</translation>
    </message>
</context>
<context>
    <name>MacroAdvUi</name>
    <message>
        <source>USER MACROS</source>
        <translation>มาโครของผู้ใช้</translation>
    </message>
    <message>
        <source>CREATE NEW MACRO</source>
        <translation>สร้างมาโครใหม่</translation>
    </message>
    <message>
        <source>WINDOWS KEYBOARD SHORTCUTS</source>
        <translation>แป้นพิมพ์ลัด WINDOWS</translation>
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
        <translation>+ สร้างมาโครใหม่</translation>
    </message>
</context>
<context>
    <name>MediaUi</name>
    <message>
        <source>MULTIMEDIA KEYS</source>
        <translation>ปุ่มมัลติมีเดีย</translation>
    </message>
</context>
<context>
    <name>PanelWid</name>
    <message>
        <source>Keyboard</source>
        <translation>แป้นพิมพ์</translation>
    </message>
    <message>
        <source>Gaming</source>
        <translation>เล่นเกม</translation>
    </message>
    <message>
        <source>Creative Application</source>
        <translation>แอปสร้างสรรค์</translation>
    </message>
    <message>
        <source>Standard WASD</source>
        <translation>WASD มาตรฐาน</translation>
    </message>
    <message>
        <source>Standard ESDF</source>
        <translation>ESDF มาตรฐาน</translation>
    </message>
    <message>
        <source>Numpad Mode</source>
        <translation>โหมดแป้นตัวเลข</translation>
    </message>
    <message>
        <source>FPS Mode</source>
        <translation>โหมด FPS</translation>
    </message>
    <message>
        <source>Driving Mode</source>
        <translation>โหมดขับรถ</translation>
    </message>
    <message>
        <source>Adv. Flight Mode</source>
        <translation>โหมดการบินขั้นสูง</translation>
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
        <translation>ปรับเทียบระยะไม่ตอบสนอง</translation>
    </message>
</context>
<context>
    <name>PressoUi</name>
    <message>
        <source>PRESSURE</source>
        <translation>ตรวจจับ</translation>
    </message>
    <message>
        <source>SENSING</source>
        <translation>แรงกด</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>เปิด</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>ปิด</translation>
    </message>
</context>
<context>
    <name>ProfileUi</name>
    <message>
        <source>PROFILE</source>
        <translation>โปรไฟล์</translation>
    </message>
</context>
<context>
    <name>ReassignDlg</name>
    <message>
        <source>KEY ASSIGNMENT</source>
        <translation>กำหนดปุ่ม</translation>
    </message>
    <message>
        <source>KEY ASSIGNMENT - VANTRIX </source>
        <translation>กำหนดปุ่ม - VANTRIX </translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>ปิด</translation>
    </message>
    <message>
        <source>SEARCH</source>
        <translation>ค้นหา</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ยกเลิก</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>ใช้</translation>
    </message>
    <message>
        <source>MOUSE BUTTONS</source>
        <translation>ปุ่มเมาส์</translation>
    </message>
    <message>
        <source>MEDIA COMMANDS</source>
        <translation>คำสั่งมีเดีย</translation>
    </message>
    <message>
        <source>PRESSO FUNCTIONS</source>
        <translation>ฟังก์ชัน PRESSO</translation>
    </message>
    <message>
        <source>BACKLIGHT</source>
        <translation>ไฟพื้นหลัง</translation>
    </message>
    <message>
        <source>PROFILE</source>
        <translation>โปรไฟล์</translation>
    </message>
</context>
<context>
    <name>VantrixMapWid</name>
    <message>
        <source>SIMPLE</source>
        <translation>แบบง่าย</translation>
    </message>
    <message>
        <source>ADVANCED</source>
        <translation>ขั้นสูง</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>ใช้</translation>
    </message>
    <message>
        <source>RESET</source>
        <translation>รีเซ็ต</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>รีเซ็ต</translation>
    </message>
    <message>
        <source>Are you sure you want to reset?</source>
        <translation>แน่ใจหรือไม่ว่าต้องการรีเซ็ต?</translation>
    </message>
</context>
</TS>
