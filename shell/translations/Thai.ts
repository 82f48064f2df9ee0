<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="th_TH" sourcelanguage="en_US">
<context>
    <name>ChangesPage</name>
    <message>
        <source>PUT BACK</source>
        <translation>คืนค่า</translation>
    </message>
    <message>
        <source>PUT ALL BACK</source>
        <translation>คืนค่าทั้งหมด</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>ใช้</translation>
    </message>
    <message>
        <source>The device has %1 as it is shown.</source>
        <translation>%1 บนอุปกรณ์ตรงกับที่แสดง</translation>
    </message>
    <message>
        <source>APPLY changes one key of %1:</source>
        <translation>การใช้จะเปลี่ยนหนึ่งปุ่มของ %1:</translation>
    </message>
    <message>
        <source>APPLY changes %1 keys of %2:</source>
        <translation>การใช้จะเปลี่ยน %1 ปุ่มของ %2:</translation>
    </message>
    <message>
        <source>ON THE DEVICE: %1</source>
        <translation>บนอุปกรณ์: %1</translation>
    </message>
    <message>
        <source>Put back key %1</source>
        <translation>คืนค่าปุ่ม %1</translation>
    </message>
    <message>
        <source>Put back %1 keys</source>
        <translation>คืนค่า %1 ปุ่ม</translation>
    </message>
    <message>
        <source>KEY</source>
        <translation>ปุ่ม</translation>
    </message>
    <message>
        <source>THE DEVICE HAS</source>
        <translation>บนอุปกรณ์</translation>
    </message>
    <message>
        <source>APPLY MAKES IT</source>
        <translation>หลังจากใช้</translation>
    </message>
    <message>
        <source>FUNCTION</source>
        <translation>ฟังก์ชัน</translation>
    </message>
    <message>
        <source>Back from the device, as a macro: %1</source>
        <translation>กลับมาจากอุปกรณ์เป็นมาโคร: %1</translation>
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
        <translation>โปรไฟล์นี้</translation>
    </message>
    <message>
        <source>ALL PROFILES</source>
        <translation>ทุกโปรไฟล์</translation>
    </message>
    <message>
        <source>Nothing to look at.</source>
        <translation>ไม่มีสิ่งที่ต้องตรวจดู</translation>
    </message>
    <message>
        <source>One thing to look at.</source>
        <translation>มีหนึ่งสิ่งที่ต้องตรวจดู</translation>
    </message>
    <message>
        <source>%1 things to look at.</source>
        <translation>มี %1 สิ่งที่ต้องตรวจดู</translation>
    </message>
    <message>
        <source>%1 is on the device. %2 See CHECK.</source>
        <translation>%1 อยู่บนอุปกรณ์แล้ว %2 ดูที่ &quot;ตรวจสอบ&quot;</translation>
    </message>
    <message>
        <source>The first %1 are listed.</source>
        <translation>แสดง %1 รายการแรก</translation>
    </message>
    <message>
        <source>Go there</source>
        <translation>ไปที่นั่น</translation>
    </message>
</context>
<context>
    <name>DeviceView</name>
    <message>
        <source>ACTS BY</source>
        <translation>กำลังใช้</translation>
    </message>
    <message>
        <source>Profile that the device acts by</source>
        <translation>โปรไฟล์ที่อุปกรณ์ใช้ทำงาน</translation>
    </message>
    <message>
        <source>Depth of the chosen key in percent</source>
        <translation>ความลึกของปุ่มที่เลือกเป็นเปอร์เซ็นต์</translation>
    </message>
    <message>
        <source>WHAT THE DEVICE SENDS</source>
        <translation>สิ่งที่อุปกรณ์ส่ง</translation>
    </message>
    <message>
        <source>LET GO</source>
        <translation>ปล่อย</translation>
    </message>
    <message>
        <source>All keys come up</source>
        <translation>ปล่อยทุกปุ่ม</translation>
    </message>
    <message>
        <source>CLEAR</source>
        <translation>ล้าง</translation>
    </message>
    <message>
        <source>KEY</source>
        <translation>ปุ่ม</translation>
    </message>
    <message>
        <source>DEPTH</source>
        <translation>ความลึก</translation>
    </message>
    <message>
        <source>EVENT</source>
        <translation>เหตุการณ์</translation>
    </message>
    <message>
        <source>CODE</source>
        <translation>รหัส</translation>
    </message>
    <message>
        <source>It has what the profile holds.</source>
        <translation>ตรงกับในโปรไฟล์</translation>
    </message>
    <message>
        <source>One key differs from the profile; APPLY sends it.</source>
        <translation>มีหนึ่งปุ่มต่างจากโปรไฟล์ การใช้จะส่งปุ่มนั้น</translation>
    </message>
    <message>
        <source>%1 keys differ from the profile; APPLY sends them.</source>
        <translation>มี %1 ปุ่มต่างจากโปรไฟล์ การใช้จะส่งปุ่มเหล่านั้น</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Press a key of the pad.</source>
        <translation>กดปุ่มของอุปกรณ์</translation>
    </message>
    <message>
        <source>▼ press %1</source>
        <translation>▼ กด %1</translation>
    </message>
    <message>
        <source>▲ release %1</source>
        <translation>▲ ปล่อย %1</translation>
    </message>
    <message>
        <source>wait %1 ms</source>
        <translation>รอ %1 ms</translation>
    </message>
    <message>
        <source>switch to %1</source>
        <translation>สลับไปที่ %1</translation>
    </message>
</context>
<context>
    <name>ExportDlg</name>
    <message>
        <source>EXPORT...</source>
        <translation>ส่งออก...</translation>
    </message>
    <message>
        <source>Export profiles</source>
        <translation>ส่งออกโปรไฟล์</translation>
    </message>
    <message>
        <source>Profiles to export</source>
        <translation>โปรไฟล์ที่จะส่งออก</translation>
    </message>
    <message>
        <source>ALL</source>
        <translation>ทั้งหมด</translation>
    </message>
    <message>
        <source>NONE</source>
        <translation>ไม่เลือก</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ยกเลิก</translation>
    </message>
    <message>
        <source>Profiles to export, with their macros:</source>
        <translation>โปรไฟล์ที่จะส่งออกพร้อมมาโคร:</translation>
    </message>
    <message>
        <source>No macros go with them.</source>
        <translation>ไม่มีมาโครไปด้วย</translation>
    </message>
    <message>
        <source>Macros that go with them: %1.</source>
        <translation>มาโครที่ไปด้วย: %1</translation>
    </message>
    <message>
        <source>profiles</source>
        <translation>โปรไฟล์</translation>
    </message>
    <message>
        <source>Profiles (*.json)</source>
        <translation>โปรไฟล์ (*.json)</translation>
    </message>
    <message>
        <source>%1 was not written: %2</source>
        <translation>เขียน %1 ไม่ได้: %2</translation>
    </message>
    <message>
        <source>One profile was exported to %1.</source>
        <translation>ส่งออกหนึ่งโปรไฟล์ไปยัง %1 แล้ว</translation>
    </message>
    <message>
        <source>%1 profiles were exported to %2.</source>
        <translation>ส่งออก %1 โปรไฟล์ไปยัง %2 แล้ว</translation>
    </message>
</context>
<context>
    <name>FindBar</name>
    <message>
        <source>Find a function, key or macro</source>
        <translation>ค้นหาฟังก์ชัน ปุ่ม หรือมาโคร</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>ค้นหา</translation>
    </message>
    <message>
        <source>Keys that were found</source>
        <translation>ปุ่มที่พบ</translation>
    </message>
    <message>
        <source>No key has that.</source>
        <translation>ไม่มีปุ่มใดที่ตรงกัน</translation>
    </message>
    <message>
        <source>Keys: %1, profiles: %2.</source>
        <translation>ปุ่ม: %1 โปรไฟล์: %2</translation>
    </message>
    <message>
        <source>The first %1 are listed.</source>
        <translation>แสดง %1 รายการแรก</translation>
    </message>
</context>
<context>
    <name>HistoryPage</name>
    <message>
        <source>History</source>
        <translation>ประวัติ</translation>
    </message>
    <message>
        <source>Double-click a step, or press Enter, to go back or forth to it. The history is kept when the program is closed.</source>
        <translation>ดับเบิลคลิกที่ขั้นตอน หรือกด Enter เพื่อย้อนกลับหรือเดินหน้าไปยังขั้นตอนนั้น ประวัติจะถูกเก็บไว้เมื่อปิดโปรแกรม</translation>
    </message>
    <message>
        <source>As it was at the start</source>
        <translation>ตามที่เป็นตอนแรก</translation>
    </message>
    <message>
        <source>%1   (now)</source>
        <translation>%1   (ขณะนี้)</translation>
    </message>
    <message>
        <source>Earlier steps are listed when you go back to the oldest one here.</source>
        <translation>ขั้นตอนก่อนหน้าจะแสดงเมื่อคุณกลับไปยังขั้นตอนเก่าที่สุดที่นี่</translation>
    </message>
</context>
<context>
    <name>ImportDlg</name>
    <message>
        <source>No file is open.</source>
        <translation>ไม่มีไฟล์ที่เปิดอยู่</translation>
    </message>
    <message>
        <source>IMPORT</source>
        <translation>นำเข้า</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ยกเลิก</translation>
    </message>
    <message>
        <source>Import profiles</source>
        <translation>นำเข้าโปรไฟล์</translation>
    </message>
    <message>
        <source>OPEN...</source>
        <translation>เปิด...</translation>
    </message>
    <message>
        <source>Profiles of the file</source>
        <translation>โปรไฟล์ในไฟล์</translation>
    </message>
    <message>
        <source>PROFILE OF THE FILE</source>
        <translation>โปรไฟล์ในไฟล์</translation>
    </message>
    <message>
        <source>KEYS</source>
        <translation>ปุ่ม</translation>
    </message>
    <message>
        <source>IN PLACE OF</source>
        <translation>แทนที่</translation>
    </message>
    <message>
        <source>Profiles (*.json);;All files (*)</source>
        <translation>โปรไฟล์ (*.json);;ไฟล์ทั้งหมด (*)</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>อ่าน %1 ไม่ได้: %2</translation>
    </message>
    <message>
        <source>PROFILE %1</source>
        <translation>โปรไฟล์ %1</translation>
    </message>
    <message>
        <source>In place of</source>
        <translation>แทนที่</translation>
    </message>
    <message>
        <source>Two profiles would take the place of %1.</source>
        <translation>สองโปรไฟล์จะแทนที่ %1</translation>
    </message>
    <message>
        <source>Macros that come with them: %1.</source>
        <translation>มาโครที่มาด้วย: %1</translation>
    </message>
    <message>
        <source>One profile was imported.</source>
        <translation>นำเข้าหนึ่งโปรไฟล์แล้ว</translation>
    </message>
    <message>
        <source>%1 profiles were imported.</source>
        <translation>นำเข้า %1 โปรไฟล์แล้ว</translation>
    </message>
    <message>
        <source>The macro &quot;%1&quot; is named &quot;%2&quot; here, because there was another of its name.</source>
        <translation>มาโคร &quot;%1&quot; มีชื่อที่นี่ว่า &quot;%2&quot; เพราะมีมาโครชื่อนี้อยู่แล้ว</translation>
    </message>
    <message>
        <source>%1 was not found on this computer; its functions do nothing until it is.</source>
        <translation>ไม่พบ %1 บนคอมพิวเตอร์นี้ ฟังก์ชันของโปรแกรมจะไม่ทำงานจนกว่าจะพบ</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>ปิด</translation>
    </message>
    <message>
        <source>The macros were imported.</source>
        <translation>นำเข้ามาโครแล้ว</translation>
    </message>
</context>
<context>
    <name>KeyCombo</name>
    <message>
        <source>Key</source>
        <translation>ปุ่ม</translation>
    </message>
</context>
<context>
    <name>KeyFinder</name>
    <message>
        <source>%1 (unassigned)</source>
        <translation>%1 (ไม่ได้กำหนด)</translation>
    </message>
</context>
<context>
    <name>KeyText</name>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (เปลี่ยนแล้ว)</translation>
    </message>
    <message>
        <source>CODE %1</source>
        <translation>รหัส %1</translation>
    </message>
    <message>
        <source>%1 at %2%</source>
        <translation>%1 ที่ %2%</translation>
    </message>
</context>
<context>
    <name>KeyTitle</name>
    <message>
        <source>Key %1</source>
        <translation>ปุ่ม %1</translation>
    </message>
    <message>
        <source>Key %1 (%2)</source>
        <translation>ปุ่ม %1 (%2)</translation>
    </message>
    <message>
        <source>Keys %1 and %2</source>
        <translation>ปุ่ม %1 และ %2</translation>
    </message>
</context>
<context>
    <name>MacroEditor</name>
    <message>
        <source>RECORDING
Press keys. To finish, press Esc twice or click STOP.</source>
        <translation>กำลังบันทึก
กดปุ่มต่าง ๆ หากต้องการจบ ให้กด Esc สองครั้งหรือคลิก &quot;หยุด&quot;</translation>
    </message>
    <message>
        <source>Events of the macro</source>
        <translation>เหตุการณ์ของมาโคร</translation>
    </message>
    <message>
        <source>RECORD</source>
        <translation>บันทึก</translation>
    </message>
    <message>
        <source>Record keys at the end of the macro</source>
        <translation>บันทึกปุ่มต่อท้ายมาโคร</translation>
    </message>
    <message>
        <source>Delays of recorded keys</source>
        <translation>เวลาหน่วงของปุ่มที่บันทึก</translation>
    </message>
    <message>
        <source>delays as they were</source>
        <translation>เวลาหน่วงตามจริง</translation>
    </message>
    <message>
        <source>no delays</source>
        <translation>ไม่มีเวลาหน่วง</translation>
    </message>
    <message>
        <source>fixed delays</source>
        <translation>เวลาหน่วงคงที่</translation>
    </message>
    <message>
        <source>Fixed delay in milliseconds</source>
        <translation>เวลาหน่วงคงที่เป็นมิลลิวินาที</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>SET ALL</source>
        <translation>ตั้งทั้งหมด</translation>
    </message>
    <message>
        <source>Give all events of the macro this delay</source>
        <translation>ใช้เวลาหน่วงนี้กับทุกเหตุการณ์ของมาโคร</translation>
    </message>
    <message>
        <source>Event to add</source>
        <translation>เหตุการณ์ที่จะเพิ่ม</translation>
    </message>
    <message>
        <source>press and release</source>
        <translation>กดแล้วปล่อย</translation>
    </message>
    <message>
        <source>press</source>
        <translation>กด</translation>
    </message>
    <message>
        <source>release</source>
        <translation>ปล่อย</translation>
    </message>
    <message>
        <source>ADD</source>
        <translation>เพิ่ม</translation>
    </message>
    <message>
        <source>Move the event up (Alt+Up)</source>
        <translation>ย้ายเหตุการณ์ขึ้น (Alt+ขึ้น)</translation>
    </message>
    <message>
        <source>Move the event down (Alt+Down)</source>
        <translation>ย้ายเหตุการณ์ลง (Alt+ลง)</translation>
    </message>
    <message>
        <source>DELETE</source>
        <translation>ลบ</translation>
    </message>
    <message>
        <source>Chosen events:</source>
        <translation>เหตุการณ์ที่เลือก:</translation>
    </message>
    <message>
        <source>%1: %2 of %3 events</source>
        <translation>%1: %2 จาก %3 เหตุการณ์</translation>
    </message>
    <message>
        <source>Make a new macro, then record keys.</source>
        <translation>สร้างมาโครใหม่ แล้วบันทึกปุ่ม</translation>
    </message>
    <message>
        <source>STOP</source>
        <translation>หยุด</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a key that a macro can have.</source>
        <translation>&quot;%1&quot; ไม่ใช่ปุ่มที่มาโครมีได้</translation>
    </message>
    <message>
        <source>RECORDING: %1 of %2 events
Press keys. To finish, press Esc twice or click STOP.</source>
        <translation>กำลังบันทึก: %1 จาก %2 เหตุการณ์
กดปุ่มต่าง ๆ หากต้องการจบ ให้กด Esc สองครั้งหรือคลิก &quot;หยุด&quot;</translation>
    </message>
</context>
<context>
    <name>MacroEventDelegate</name>
    <message>
        <source>release</source>
        <translation>ปล่อย</translation>
    </message>
    <message>
        <source>press</source>
        <translation>กด</translation>
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
        <translation>%1 (รหัส %2)</translation>
    </message>
    <message>
        <source>Add events to macro %1</source>
        <translation>เพิ่มเหตุการณ์ในมาโคร %1</translation>
    </message>
    <message>
        <source>Delete events of macro %1</source>
        <translation>ลบเหตุการณ์ของมาโคร %1</translation>
    </message>
    <message>
        <source>Move an event of macro %1</source>
        <translation>ย้ายเหตุการณ์ของมาโคร %1</translation>
    </message>
    <message>
        <source>Change delays of macro %1</source>
        <translation>เปลี่ยนเวลาหน่วงของมาโคร %1</translation>
    </message>
    <message>
        <source>▼ press</source>
        <translation>▼ กด</translation>
    </message>
    <message>
        <source>▲ release</source>
        <translation>▲ ปล่อย</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>EVENT</source>
        <translation>เหตุการณ์</translation>
    </message>
    <message>
        <source>KEY</source>
        <translation>ปุ่ม</translation>
    </message>
    <message>
        <source>THEN WAIT</source>
        <translation>แล้วรอ</translation>
    </message>
    <message>
        <source>Change a delay of macro %1</source>
        <translation>เปลี่ยนเวลาหน่วงหนึ่งค่าของมาโคร %1</translation>
    </message>
    <message>
        <source>Change an event of macro %1</source>
        <translation>เปลี่ยนเหตุการณ์หนึ่งรายการของมาโคร %1</translation>
    </message>
</context>
<context>
    <name>MacroPage</name>
    <message>
        <source>BACK TO THE KEYS</source>
        <translation>กลับไปที่ปุ่ม</translation>
    </message>
    <message>
        <source>NEW</source>
        <translation>ใหม่</translation>
    </message>
    <message>
        <source>RENAME</source>
        <translation>เปลี่ยนชื่อ</translation>
    </message>
    <message>
        <source>DELETE</source>
        <translation>ลบ</translation>
    </message>
    <message>
        <source>Macros</source>
        <translation>มาโคร</translation>
    </message>
    <message>
        <source>NO.</source>
        <translation>ลำดับ</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>ชื่อ</translation>
    </message>
    <message>
        <source>EVENTS</source>
        <translation>เหตุการณ์</translation>
    </message>
    <message>
        <source>KEYS</source>
        <translation>ปุ่ม</translation>
    </message>
    <message>
        <source>NO KEY HAS IT</source>
        <translation>ไม่มีปุ่มใดใช้</translation>
    </message>
    <message>
        <source>KEYS THAT HAVE IT</source>
        <translation>ปุ่มที่ใช้</translation>
    </message>
    <message>
        <source>Go to this key</source>
        <translation>ไปที่ปุ่มนี้</translation>
    </message>
    <message>
        <source>Add macro %1</source>
        <translation>เพิ่มมาโคร %1</translation>
    </message>
    <message>
        <source>Macro</source>
        <translation>มาโคร</translation>
    </message>
    <message>
        <source>A macro needs a name.</source>
        <translation>มาโครต้องมีชื่อ</translation>
    </message>
    <message>
        <source>Rename macro %1 to %2</source>
        <translation>เปลี่ยนชื่อมาโคร %1 เป็น %2</translation>
    </message>
    <message>
        <source>There is another macro named &quot;%1&quot;.</source>
        <translation>มีมาโครอื่นชื่อ &quot;%1&quot; อยู่แล้ว</translation>
    </message>
    <message>
        <source>Delete macro %1</source>
        <translation>ลบมาโคร %1</translation>
    </message>
    <message>
        <source>Macro %1 was deleted.</source>
        <translation>ลบมาโคร %1 แล้ว</translation>
    </message>
    <message>
        <source>Macro %1 was deleted and taken off %2 keys.</source>
        <translation>ลบมาโคร %1 และนำออกจาก %2 ปุ่มแล้ว</translation>
    </message>
    <message>
        <source>Record the macro, then go back and choose it for the key.</source>
        <translation>บันทึกมาโคร แล้วกลับไปเลือกมาโครนั้นให้ปุ่ม</translation>
    </message>
    <message>
        <source>The new macro was empty and was not kept.</source>
        <translation>มาโครใหม่ว่างเปล่าจึงไม่ได้เก็บไว้</translation>
    </message>
    <message>
        <source>COPY</source>
        <translation>คัดลอก</translation>
    </message>
    <message>
        <source>Make another macro with the same events</source>
        <translation>สร้างมาโครอื่นที่มีเหตุการณ์เดียวกัน</translation>
    </message>
    <message>
        <source>Macro %1 was deleted and taken off one key.</source>
        <translation>ลบมาโคร %1 และนำออกจากหนึ่งปุ่มแล้ว</translation>
    </message>
    <message>
        <source>Move macro %1</source>
        <translation>ย้ายมาโคร %1</translation>
    </message>
</context>
<context>
    <name>MacroRecorder</name>
    <message>
        <source>A macro holds at most %1 events.</source>
        <translation>มาโครมีได้ไม่เกิน %1 เหตุการณ์</translation>
    </message>
    <message>
        <source>The pad has no code for this key.</source>
        <translation>อุปกรณ์ไม่มีรหัสสำหรับปุ่มนี้</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>MAPPING</source>
        <translation>กำหนดปุ่ม</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ไฟล์(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Settings...</source>
        <translation>การตั้งค่า(&amp;S)...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>ออก(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Profile</source>
        <translation>โปรไฟล์(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>แก้ไข(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Find Keys...</source>
        <translation>ค้นหาปุ่ม(&amp;F)...</translation>
    </message>
    <message>
        <source>Assign by &amp;Pressing Keys</source>
        <translation>กำหนดโดยการกดปุ่ม(&amp;P)</translation>
    </message>
    <message>
        <source>While a key of the pad is selected, the next key that is pressed is put on it. Off, the keyboard works the window.</source>
        <translation>ขณะที่เลือกปุ่มของอุปกรณ์ไว้ ปุ่มถัดไปที่กดจะถูกกำหนดให้ปุ่มนั้น เมื่อปิด แป้นพิมพ์จะใช้ควบคุมหน้าต่าง</translation>
    </message>
    <message>
        <source>&amp;Apply to Device</source>
        <translation>ใช้กับอุปกรณ์(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>มุมมอง(&amp;V)</translation>
    </message>
    <message>
        <source>Profile &amp;Names</source>
        <translation>ชื่อโปรไฟล์(&amp;N)</translation>
    </message>
    <message>
        <source>Everything is on the device.</source>
        <translation>ทุกอย่างอยู่บนอุปกรณ์แล้ว</translation>
    </message>
    <message>
        <source>Not on the device yet: %1.</source>
        <translation>ยังไม่อยู่บนอุปกรณ์: %1</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>เลิกทำแล้ว: %1</translation>
    </message>
    <message>
        <source>Done again: %1</source>
        <translation>ทำซ้ำแล้ว: %1</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>เลิกทำ(&amp;U) %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>เลิกทำ(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>ทำซ้ำ(&amp;R) %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>ทำซ้ำ(&amp;R)</translation>
    </message>
    <message>
        <source>Undo %1 (Ctrl+Z)</source>
        <translation>เลิกทำ %1 (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Redo %1 (Ctrl+Shift+Z)</source>
        <translation>ทำซ้ำ %1 (Ctrl+Shift+Z)</translation>
    </message>
    <message>
        <source>nothing to apply</source>
        <translation>ไม่มีสิ่งที่ต้องใช้</translation>
    </message>
    <message>
        <source>1 key to apply</source>
        <translation>มี 1 ปุ่มที่ต้องใช้</translation>
    </message>
    <message>
        <source>%1 keys to apply</source>
        <translation>มี %1 ปุ่มที่ต้องใช้</translation>
    </message>
    <message>
        <source>Device: %1   |   %2   |</source>
        <translation>อุปกรณ์: %1   |   %2   |</translation>
    </message>
    <message>
        <source>READ ONLY</source>
        <translation>อ่านอย่างเดียว</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>บันทึกแล้ว</translation>
    </message>
    <message>
        <source>NOT SAVED</source>
        <translation>ยังไม่ได้บันทึก</translation>
    </message>
    <message>
        <source>CHANGES %1</source>
        <translation>การเปลี่ยนแปลง %1</translation>
    </message>
    <message>
        <source>CHANGES</source>
        <translation>การเปลี่ยนแปลง</translation>
    </message>
    <message>
        <source>%1%2 - VANTRIX</source>
        <translation>%1%2 - VANTRIX</translation>
    </message>
    <message>
        <source> (read only)</source>
        <translation> (อ่านอย่างเดียว)</translation>
    </message>
    <message>
        <source>Click a key of the pad, then choose what it does.</source>
        <translation>คลิกปุ่มของอุปกรณ์ แล้วเลือกการทำงาน</translation>
    </message>
    <message>
        <source>CHECK %1</source>
        <translation>ตรวจสอบ %1</translation>
    </message>
    <message>
        <source>CHECK</source>
        <translation>ตรวจสอบ</translation>
    </message>
    <message>
        <source>%1 takes the next key you press. Ctrl+K, with no key selected, switches that off.</source>
        <translation>ปุ่มถัดไปที่กดจะถูกกำหนดให้ %1 กด Ctrl+K ขณะไม่ได้เลือกปุ่มเพื่อปิด</translation>
    </message>
    <message>
        <source>The changes cannot be saved and are lost with the window. Close it?</source>
        <translation>บันทึกการเปลี่ยนแปลงไม่ได้ และจะหายไปเมื่อปิดหน้าต่าง ต้องการปิดหรือไม่</translation>
    </message>
    <message>
        <source>Nothing to undo</source>
        <translation>ไม่มีอะไรให้เลิกทำ</translation>
    </message>
    <message>
        <source>Nothing to redo</source>
        <translation>ไม่มีอะไรให้ทำซ้ำ</translation>
    </message>
    <message>
        <source>Steps undone: %1</source>
        <translation>ขั้นตอนที่เลิกทำ: %1</translation>
    </message>
    <message>
        <source>Steps done again: %1</source>
        <translation>ขั้นตอนที่ทำซ้ำ: %1</translation>
    </message>
</context>
<context>
    <name>MappingView</name>
    <message>
        <source>COMPANION</source>
        <translation>ผู้ช่วย</translation>
    </message>
    <message>
        <source>%1 is on the device.</source>
        <translation>%1 อยู่บนอุปกรณ์แล้ว</translation>
    </message>
    <message>
        <source>%1 did not reach the device.</source>
        <translation>%1 ส่งไม่ถึงอุปกรณ์</translation>
    </message>
    <message>
        <source>Reset %1</source>
        <translation>รีเซ็ต %1</translation>
    </message>
    <message>
        <source>The device was reset, and %1 with it. Undo brings its keys back; the other profiles are kept here and can be applied again.</source>
        <translation>รีเซ็ตอุปกรณ์และ %1 แล้ว การเลิกทำจะนำปุ่มกลับมา โปรไฟล์อื่นยังเก็บไว้ที่นี่และใช้ได้อีกครั้ง</translation>
    </message>
    <message>
        <source>The device was reset. The profiles are kept here and can be applied again.</source>
        <translation>รีเซ็ตอุปกรณ์แล้ว โปรไฟล์ยังเก็บไว้ที่นี่และใช้ได้อีกครั้ง</translation>
    </message>
</context>
<context>
    <name>MessageBar</name>
    <message>
        <source>DISMISS</source>
        <translation>ซ่อน</translation>
    </message>
</context>
<context>
    <name>PadView</name>
    <message>
        <source>Picture of the pad</source>
        <translation>รูปอุปกรณ์</translation>
    </message>
</context>
<context>
    <name>ProfileCheck</name>
    <message>
        <source>%1 has the macro &quot;%2&quot;, which is not there any more.</source>
        <translation>%1 มีมาโคร &quot;%2&quot; ซึ่งไม่มีอยู่แล้ว</translation>
    </message>
    <message>
        <source>%1 has the macro &quot;%2&quot;, which is empty.</source>
        <translation>%1 มีมาโคร &quot;%2&quot; ซึ่งว่างเปล่า</translation>
    </message>
    <message>
        <source>%1 has a dual action without a second action.</source>
        <translation>%1 มีสองจังหวะที่ไม่มีการทำงานที่สอง</translation>
    </message>
    <message>
        <source>%1 has a dual action without a first action.</source>
        <translation>%1 มีสองจังหวะที่ไม่มีการทำงานแรก</translation>
    </message>
    <message>
        <source>%1 has a function of %2, which was not found on this computer.</source>
        <translation>%1 มีฟังก์ชันของ %2 ซึ่งไม่พบบนคอมพิวเตอร์นี้</translation>
    </message>
    <message>
        <source>%1 have functions of %2, which was not found on this computer.</source>
        <translation>%1 มีฟังก์ชันของ %2 ซึ่งไม่พบบนคอมพิวเตอร์นี้</translation>
    </message>
    <message>
        <source>%1 of %2 leads to this profile, and no key leads back.</source>
        <translation>%1 ของ %2 นำมายังโปรไฟล์นี้ แต่ไม่มีปุ่มที่นำกลับ</translation>
    </message>
    <message>
        <source>%1 do the same: %2.</source>
        <translation>%1 ทำงานเหมือนกัน: %2</translation>
    </message>
</context>
<context>
    <name>ProfileExchange</name>
    <message>
        <source>top</source>
        <translation>ต้นไฟล์</translation>
    </message>
    <message>
        <source>%1 is not an object</source>
        <translation>%1 ไม่ใช่ออบเจ็กต์</translation>
    </message>
    <message>
        <source>there is no member &quot;%1&quot; here</source>
        <translation>ไม่มีสมาชิก &quot;%1&quot; ที่นี่</translation>
    </message>
    <message>
        <source>%1 is not a list</source>
        <translation>%1 ไม่ใช่รายการ</translation>
    </message>
    <message>
        <source>%1 elements are more than %2</source>
        <translation>%1 รายการมากกว่า %2</translation>
    </message>
    <message>
        <source>%1 is not a whole number from %2 to %3</source>
        <translation>%1 ไม่ใช่จำนวนเต็มตั้งแต่ %2 ถึง %3</translation>
    </message>
    <message>
        <source>%1 is not a text</source>
        <translation>%1 ไม่ใช่ข้อความ</translation>
    </message>
    <message>
        <source>the text holds a character that cannot be stored</source>
        <translation>ข้อความมีอักขระที่บันทึกไม่ได้</translation>
    </message>
    <message>
        <source>two macros are named &quot;%1&quot;</source>
        <translation>มีมาโครสองรายการชื่อ &quot;%1&quot;</translation>
    </message>
    <message>
        <source>profile %1 is here twice</source>
        <translation>โปรไฟล์ %1 ปรากฏสองครั้ง</translation>
    </message>
    <message>
        <source>this is not a file of profiles</source>
        <translation>นี่ไม่ใช่ไฟล์โปรไฟล์</translation>
    </message>
    <message>
        <source>the file is of version %1; this program reads up to %2</source>
        <translation>ไฟล์เป็นเวอร์ชัน %1 โปรแกรมนี้อ่านได้ถึงเวอร์ชัน %2</translation>
    </message>
    <message>
        <source>a macro needs a name</source>
        <translation>มาโครต้องมีชื่อ</translation>
    </message>
    <message>
        <source>these are %1 bytes and not %2</source>
        <translation>มี %1 ไบต์ ไม่ใช่ %2</translation>
    </message>
    <message>
        <source>%1 is neither true nor false</source>
        <translation>%1 ไม่ใช่ทั้งจริงและเท็จ</translation>
    </message>
    <message>
        <source>key %1 is here twice</source>
        <translation>ปุ่ม %1 ปรากฏสองครั้ง</translation>
    </message>
    <message>
        <source>1 is not 0, 2 or 3</source>
        <translation>1 ไม่ใช่ 0, 2 หรือ 3</translation>
    </message>
    <message>
        <source>a key holds only one of app, hotKey, shortcut, extended and macro</source>
        <translation>ปุ่มหนึ่งมีได้เพียงหนึ่งใน app, hotKey, shortcut, extended และ macro</translation>
    </message>
    <message>
        <source>%1 is not an extended code</source>
        <translation>%1 ไม่ใช่รหัสส่วนขยาย</translation>
    </message>
    <message>
        <source>Import profile %1</source>
        <translation>นำเข้าโปรไฟล์ %1</translation>
    </message>
    <message>
        <source>Import %1 profiles</source>
        <translation>นำเข้า %1 โปรไฟล์</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>รายการ</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>ออบเจ็กต์</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>ไม่มีอะไร</translation>
    </message>
    <message>
        <source>line %1, column %2</source>
        <translation>บรรทัด %1 คอลัมน์ %2</translation>
    </message>
    <message>
        <source>Import macros</source>
        <translation>นำเข้ามาโคร</translation>
    </message>
</context>
<context>
    <name>ProfileList</name>
    <message>
        <source>DEVICE</source>
        <translation>อุปกรณ์</translation>
    </message>
    <message>
        <source>PROFILES</source>
        <translation>โปรไฟล์</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>โปรไฟล์</translation>
    </message>
    <message>
        <source>COPY</source>
        <translation>คัดลอก</translation>
    </message>
    <message>
        <source>Copy this profile over another one</source>
        <translation>คัดลอกโปรไฟล์นี้ทับโปรไฟล์อื่น</translation>
    </message>
    <message>
        <source>CLEAR</source>
        <translation>ล้าง</translation>
    </message>
    <message>
        <source>Take everything off the keys of this profile</source>
        <translation>นำทุกอย่างออกจากปุ่มของโปรไฟล์นี้</translation>
    </message>
    <message>
        <source>Move up (Alt+Up)</source>
        <translation>ย้ายขึ้น (Alt+ขึ้น)</translation>
    </message>
    <message>
        <source>Move down (Alt+Down)</source>
        <translation>ย้ายลง (Alt+ลง)</translation>
    </message>
    <message>
        <source>&amp;Rename...</source>
        <translation>เปลี่ยนชื่อ(&amp;R)...</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>ทำสำเนา(&amp;D)</translation>
    </message>
    <message>
        <source>Copy &amp;Over</source>
        <translation>คัดลอกทับ(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>ล้าง(&amp;C)</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>ย้ายขึ้น(&amp;U)</translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation>ย้ายลง(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Next Profile</source>
        <translation>โปรไฟล์ถัดไป(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Previous Profile</source>
        <translation>โปรไฟล์ก่อนหน้า(&amp;P)</translation>
    </message>
    <message>
        <source>shown</source>
        <translation>กำลังแสดง</translation>
    </message>
    <message>
        <source>the device acts by it</source>
        <translation>อุปกรณ์กำลังใช้</translation>
    </message>
    <message>
        <source>differs from what the device has</source>
        <translation>ต่างจากที่อยู่บนอุปกรณ์</translation>
    </message>
    <message>
        <source>All profiles are in use: choose one to copy over.</source>
        <translation>ทุกโปรไฟล์ถูกใช้อยู่: เลือกโปรไฟล์ที่จะคัดลอกทับ</translation>
    </message>
    <message>
        <source>Duplicate %1</source>
        <translation>ทำสำเนา %1</translation>
    </message>
    <message>
        <source>%1 was copied to profile %2.</source>
        <translation>คัดลอก %1 ไปยังโปรไฟล์ %2 แล้ว</translation>
    </message>
    <message>
        <source>%1  (unused)</source>
        <translation>%1  (ไม่ได้ใช้)</translation>
    </message>
    <message>
        <source>Clear %1</source>
        <translation>ล้าง %1</translation>
    </message>
    <message>
        <source>%1 was cleared. Undo brings it back.</source>
        <translation>ล้าง %1 แล้ว การเลิกทำจะนำกลับมา</translation>
    </message>
    <message>
        <source>Move %1</source>
        <translation>ย้าย %1</translation>
    </message>
    <message>
        <source>%1 has nothing on its keys.</source>
        <translation>%1 ไม่มีอะไรบนปุ่ม</translation>
    </message>
</context>
<context>
    <name>ProfileStore</name>
    <message>
        <source>%1 COPY</source>
        <translation>สำเนาของ %1</translation>
    </message>
    <message>
        <source>PROFILE %1</source>
        <translation>โปรไฟล์ %1</translation>
    </message>
</context>
<context>
    <name>SettingsDlg</name>
    <message>
        <source>Settings</source>
        <translation>การตั้งค่า</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>ภาษา(&amp;L):</translation>
    </message>
    <message>
        <source>&amp;Hot-key catalog:</source>
        <translation>แคตตาล็อกปุ่มลัด(&amp;H):</translation>
    </message>
    <message>
        <source>Hot-key catalog</source>
        <translation>แคตตาล็อกปุ่มลัด</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>ไม่พบ</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>โปรแกรม</translation>
    </message>
    <message>
        <source>Keys with &amp;macros in a profile:</source>
        <translation>ปุ่มที่มีมาโครในหนึ่งโปรไฟล์(&amp;M):</translation>
    </message>
    <message>
        <source>BROWSE</source>
        <translation>เรียกดู</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ยกเลิก</translation>
    </message>
    <message>
        <source>There is no folder %1.</source>
        <translation>ไม่มีโฟลเดอร์ %1</translation>
    </message>
    <message>
        <source>There is no program %1.</source>
        <translation>ไม่มีโปรแกรม %1</translation>
    </message>
</context>
<context>
    <name>ShellPages</name>
    <message>
        <source>CHANGES</source>
        <translation>การเปลี่ยนแปลง</translation>
    </message>
    <message>
        <source>HISTORY</source>
        <translation>ประวัติ</translation>
    </message>
    <message>
        <source>MACROS</source>
        <translation>มาโคร</translation>
    </message>
    <message>
        <source>DEVICE</source>
        <translation>อุปกรณ์</translation>
    </message>
    <message>
        <source>CHECK</source>
        <translation>ตรวจสอบ</translation>
    </message>
    <message>
        <source>Import profiles...</source>
        <translation>นำเข้าโปรไฟล์...</translation>
    </message>
    <message>
        <source>Export profiles...</source>
        <translation>ส่งออกโปรไฟล์...</translation>
    </message>
</context>
<context>
    <name>StepName</name>
    <message>
        <source>Depth of key %1: %2%</source>
        <translation>ความลึกของปุ่ม %1: %2%</translation>
    </message>
    <message>
        <source>Clear key %1</source>
        <translation>ล้างปุ่ม %1</translation>
    </message>
    <message>
        <source>Assign %1 to key %2</source>
        <translation>กำหนด %1 ให้ปุ่ม %2</translation>
    </message>
    <message numerus="yes">
        <source>Change %n key(s) in several profiles</source>
        <translation>
            <numerusform>เปลี่ยน %n ปุ่มในหลายโปรไฟล์</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear %1 keys</source>
        <translation>ล้าง %1 ปุ่ม</translation>
    </message>
    <message>
        <source>Dual actions on %1 keys</source>
        <translation>สองจังหวะบน %1 ปุ่ม</translation>
    </message>
    <message>
        <source>Change %1 keys</source>
        <translation>เปลี่ยน %1 ปุ่ม</translation>
    </message>
    <message>
        <source>Rename macro %1 to %2</source>
        <translation>เปลี่ยนชื่อมาโคร %1 เป็น %2</translation>
    </message>
    <message>
        <source>Create macro %1</source>
        <translation>สร้างมาโคร %1</translation>
    </message>
    <message>
        <source>Delete macro %1</source>
        <translation>ลบมาโคร %1</translation>
    </message>
    <message>
        <source>Move a macro</source>
        <translation>ย้ายมาโคร</translation>
    </message>
    <message>
        <source>Edit macro %1</source>
        <translation>แก้ไขมาโคร %1</translation>
    </message>
    <message>
        <source>Preset: %1</source>
        <translation>โหมดสำเร็จรูป: %1</translation>
    </message>
    <message>
        <source>Name profile %1: %2</source>
        <translation>ตั้งชื่อโปรไฟล์ %1: %2</translation>
    </message>
    <message>
        <source>Move a profile</source>
        <translation>ย้ายโปรไฟล์</translation>
    </message>
    <message>
        <source>Pressure sensing on</source>
        <translation>เปิดการตรวจจับแรงกด</translation>
    </message>
    <message>
        <source>Pressure sensing off</source>
        <translation>ปิดการตรวจจับแรงกด</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>การเปลี่ยนแปลง</translation>
    </message>
</context>
<context>
    <name>StoreKeeper</name>
    <message>
        <source>The store %1 was missing. The last good copy of it is used.</source>
        <translation>คลังข้อมูล %1 หายไป จึงใช้สำเนาที่ดีล่าสุด</translation>
    </message>
    <message>
        <source>The store %1 was written by a newer version of this program.</source>
        <translation>คลังข้อมูล %1 ถูกเขียนโดยโปรแกรมนี้เวอร์ชันที่ใหม่กว่า</translation>
    </message>
    <message>
        <source>The store %1 is damaged and cannot be read.</source>
        <translation>คลังข้อมูล %1 เสียหายและอ่านไม่ได้</translation>
    </message>
    <message>
        <source>It was left as it is.</source>
        <translation>คงไว้ตามเดิม</translation>
    </message>
    <message>
        <source>It was kept as %1.</source>
        <translation>เก็บไว้เป็น %1</translation>
    </message>
    <message>
        <source>The last good copy is used.</source>
        <translation>ใช้สำเนาที่ดีล่าสุด</translation>
    </message>
    <message>
        <source>There is no good copy of it, so everything starts empty.</source>
        <translation>ไม่มีสำเนาที่ดี จึงเริ่มต้นใหม่ทั้งหมด</translation>
    </message>
    <message>
        <source>The store %1 was brought up to date. The file of the earlier version was kept as %2.</source>
        <translation>อัปเดตคลังข้อมูล %1 แล้ว ไฟล์ของเวอร์ชันก่อนเก็บไว้เป็น %2</translation>
    </message>
    <message>
        <source>The store %1 was replaced by another file while the program was running. That file was kept as %2, and the store was written again.</source>
        <translation>คลังข้อมูล %1 ถูกแทนที่ด้วยไฟล์อื่นขณะโปรแกรมทำงาน ไฟล์นั้นเก็บไว้เป็น %2 และเขียนคลังข้อมูลใหม่แล้ว</translation>
    </message>
    <message>
        <source>The store %1 was removed while the program was running. It was written again.</source>
        <translation>คลังข้อมูล %1 ถูกลบขณะโปรแกรมทำงาน และเขียนใหม่แล้ว</translation>
    </message>
    <message>
        <source>All changes are saved again.</source>
        <translation>บันทึกการเปลี่ยนแปลงทั้งหมดได้อีกครั้งแล้ว</translation>
    </message>
    <message>
        <source>Changes are kept in memory and saved as soon as possible.</source>
        <translation>การเปลี่ยนแปลงอยู่ในหน่วยความจำและจะบันทึกโดยเร็วที่สุด</translation>
    </message>
    <message>
        <source>There is no room on the disk for the store %1.</source>
        <translation>ไม่มีที่ว่างบนดิสก์สำหรับคลังข้อมูล %1</translation>
    </message>
    <message>
        <source>Another program is using the store %1.</source>
        <translation>โปรแกรมอื่นกำลังใช้คลังข้อมูล %1</translation>
    </message>
    <message>
        <source>The store %1 cannot be written.</source>
        <translation>เขียนคลังข้อมูล %1 ไม่ได้</translation>
    </message>
    <message>
        <source>What it holds is shown as soon as it can be read.</source>
        <translation>เนื้อหาจะแสดงทันทีที่อ่านได้</translation>
    </message>
    <message>
        <source>The last good copy of it is shown until what it holds can be read.</source>
        <translation>แสดงสำเนาที่ดีล่าสุดจนกว่าจะอ่านเนื้อหาได้</translation>
    </message>
    <message>
        <source>Another window has the store %1 open.</source>
        <translation>คลังข้อมูล %1 เปิดอยู่ในหน้าต่างอื่น</translation>
    </message>
    <message>
        <source>It is shown here, but changes made here are not kept.</source>
        <translation>แสดงที่นี่ แต่การเปลี่ยนแปลงที่นี่จะไม่ถูกเก็บไว้</translation>
    </message>
    <message>
        <source>It cannot be read here, and changes made here are not kept.</source>
        <translation>อ่านที่นี่ไม่ได้ และการเปลี่ยนแปลงที่นี่จะไม่ถูกเก็บไว้</translation>
    </message>
    <message>
        <source>The copy %1 cannot be read. It was kept as %2.</source>
        <translation>อ่านสำเนา %1 ไม่ได้ จึงเก็บไว้เป็น %2</translation>
    </message>
    <message>
        <source>The store %1 on the disk was another than what was shown here when something was changed. It was kept as %2, and a new one was begun.</source>
        <translation>คลังข้อมูล %1 บนดิสก์ไม่ใช่สิ่งที่แสดงที่นี่เมื่อมีการเปลี่ยนแปลง จึงเก็บไว้เป็น %2 และเริ่มคลังใหม่</translation>
    </message>
    <message>
        <source>The store %1 is shown as it is on the disk now.</source>
        <translation>แสดงคลังข้อมูล %1 ตามที่อยู่บนดิสก์ขณะนี้</translation>
    </message>
</context>
</TS>
