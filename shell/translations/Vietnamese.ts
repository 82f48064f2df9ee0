<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="vi_VN" sourcelanguage="en_US">
<context>
    <name>ChangesPage</name>
    <message>
        <source>PUT BACK</source>
        <translation>TRẢ LẠI</translation>
    </message>
    <message>
        <source>PUT ALL BACK</source>
        <translation>TRẢ LẠI TẤT CẢ</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>ÁP DỤNG</translation>
    </message>
    <message>
        <source>The device has %1 as it is shown.</source>
        <translation>%1 trên thiết bị đúng như hiển thị.</translation>
    </message>
    <message>
        <source>APPLY changes one key of %1:</source>
        <translation>ÁP DỤNG sẽ đổi một phím của %1:</translation>
    </message>
    <message>
        <source>APPLY changes %1 keys of %2:</source>
        <translation>ÁP DỤNG sẽ đổi %1 phím của %2:</translation>
    </message>
    <message>
        <source>ON THE DEVICE: %1</source>
        <translation>TRÊN THIẾT BỊ: %1</translation>
    </message>
    <message>
        <source>Put back key %1</source>
        <translation>Trả lại phím %1</translation>
    </message>
    <message>
        <source>Put back %1 keys</source>
        <translation>Trả lại %1 phím</translation>
    </message>
    <message>
        <source>KEY</source>
        <translation>PHÍM</translation>
    </message>
    <message>
        <source>THE DEVICE HAS</source>
        <translation>TRÊN THIẾT BỊ</translation>
    </message>
    <message>
        <source>APPLY MAKES IT</source>
        <translation>SAU KHI ÁP DỤNG</translation>
    </message>
    <message>
        <source>FUNCTION</source>
        <translation>CHỨC NĂNG</translation>
    </message>
    <message>
        <source>Back from the device, as a macro: %1</source>
        <translation>Trở lại từ thiết bị, dưới dạng macro: %1</translation>
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
        <translation>HỒ SƠ NÀY</translation>
    </message>
    <message>
        <source>ALL PROFILES</source>
        <translation>TẤT CẢ HỒ SƠ</translation>
    </message>
    <message>
        <source>Nothing to look at.</source>
        <translation>Không có gì cần xem.</translation>
    </message>
    <message>
        <source>One thing to look at.</source>
        <translation>Có một điều cần xem.</translation>
    </message>
    <message>
        <source>%1 things to look at.</source>
        <translation>Có %1 điều cần xem.</translation>
    </message>
    <message>
        <source>%1 is on the device. %2 See CHECK.</source>
        <translation>%1 đã ở trên thiết bị. %2 Xem KIỂM TRA.</translation>
    </message>
    <message>
        <source>The first %1 are listed.</source>
        <translation>Chỉ liệt kê %1 mục đầu.</translation>
    </message>
    <message>
        <source>Go there</source>
        <translation>Đi tới đó</translation>
    </message>
</context>
<context>
    <name>DeviceView</name>
    <message>
        <source>ACTS BY</source>
        <translation>ĐANG DÙNG</translation>
    </message>
    <message>
        <source>Profile that the device acts by</source>
        <translation>Hồ sơ mà thiết bị đang dùng</translation>
    </message>
    <message>
        <source>Depth of the chosen key in percent</source>
        <translation>Độ sâu của phím đã chọn, tính bằng phần trăm</translation>
    </message>
    <message>
        <source>WHAT THE DEVICE SENDS</source>
        <translation>THIẾT BỊ GỬI GÌ</translation>
    </message>
    <message>
        <source>LET GO</source>
        <translation>THẢ RA</translation>
    </message>
    <message>
        <source>All keys come up</source>
        <translation>Thả tất cả các phím</translation>
    </message>
    <message>
        <source>CLEAR</source>
        <translation>XÓA</translation>
    </message>
    <message>
        <source>KEY</source>
        <translation>PHÍM</translation>
    </message>
    <message>
        <source>DEPTH</source>
        <translation>ĐỘ SÂU</translation>
    </message>
    <message>
        <source>EVENT</source>
        <translation>SỰ KIỆN</translation>
    </message>
    <message>
        <source>CODE</source>
        <translation>MÃ</translation>
    </message>
    <message>
        <source>It has what the profile holds.</source>
        <translation>Giống như trong hồ sơ.</translation>
    </message>
    <message>
        <source>One key differs from the profile; APPLY sends it.</source>
        <translation>Một phím khác với hồ sơ; ÁP DỤNG sẽ gửi phím đó.</translation>
    </message>
    <message>
        <source>%1 keys differ from the profile; APPLY sends them.</source>
        <translation>%1 phím khác với hồ sơ; ÁP DỤNG sẽ gửi chúng.</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Press a key of the pad.</source>
        <translation>Hãy nhấn một phím của thiết bị.</translation>
    </message>
    <message>
        <source>▼ press %1</source>
        <translation>▼ nhấn %1</translation>
    </message>
    <message>
        <source>▲ release %1</source>
        <translation>▲ thả %1</translation>
    </message>
    <message>
        <source>wait %1 ms</source>
        <translation>chờ %1 ms</translation>
    </message>
    <message>
        <source>switch to %1</source>
        <translation>chuyển sang %1</translation>
    </message>
</context>
<context>
    <name>ExportDlg</name>
    <message>
        <source>EXPORT...</source>
        <translation>XUẤT...</translation>
    </message>
    <message>
        <source>Export profiles</source>
        <translation>Xuất hồ sơ</translation>
    </message>
    <message>
        <source>Profiles to export</source>
        <translation>Hồ sơ cần xuất</translation>
    </message>
    <message>
        <source>ALL</source>
        <translation>TẤT CẢ</translation>
    </message>
    <message>
        <source>NONE</source>
        <translation>KHÔNG CHỌN</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>HỦY</translation>
    </message>
    <message>
        <source>Profiles to export, with their macros:</source>
        <translation>Hồ sơ cần xuất, kèm macro của chúng:</translation>
    </message>
    <message>
        <source>No macros go with them.</source>
        <translation>Không có macro nào đi kèm.</translation>
    </message>
    <message>
        <source>Macros that go with them: %1.</source>
        <translation>Macro đi kèm: %1.</translation>
    </message>
    <message>
        <source>profiles</source>
        <translation>hồ sơ</translation>
    </message>
    <message>
        <source>Profiles (*.json)</source>
        <translation>Hồ sơ (*.json)</translation>
    </message>
    <message>
        <source>%1 was not written: %2</source>
        <translation>Không ghi được %1: %2</translation>
    </message>
    <message>
        <source>One profile was exported to %1.</source>
        <translation>Đã xuất một hồ sơ sang %1.</translation>
    </message>
    <message>
        <source>%1 profiles were exported to %2.</source>
        <translation>Đã xuất %1 hồ sơ sang %2.</translation>
    </message>
</context>
<context>
    <name>FindBar</name>
    <message>
        <source>Find a function, key or macro</source>
        <translation>Tìm chức năng, phím hoặc macro</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Tìm</translation>
    </message>
    <message>
        <source>Keys that were found</source>
        <translation>Các phím tìm thấy</translation>
    </message>
    <message>
        <source>No key has that.</source>
        <translation>Không có phím nào như vậy.</translation>
    </message>
    <message>
        <source>Keys: %1, profiles: %2.</source>
        <translation>Phím: %1, hồ sơ: %2.</translation>
    </message>
    <message>
        <source>The first %1 are listed.</source>
        <translation>Chỉ liệt kê %1 mục đầu.</translation>
    </message>
</context>
<context>
    <name>HistoryPage</name>
    <message>
        <source>History</source>
        <translation>Lịch sử</translation>
    </message>
    <message>
        <source>Double-click a step, or press Enter, to go back or forth to it. The history is kept when the program is closed.</source>
        <translation>Nhấp đúp vào một bước, hoặc nhấn Enter, để lùi hoặc tiến đến bước đó. Lịch sử được giữ lại khi đóng chương trình.</translation>
    </message>
    <message>
        <source>As it was at the start</source>
        <translation>Như lúc ban đầu</translation>
    </message>
    <message>
        <source>%1   (now)</source>
        <translation>%1   (hiện tại)</translation>
    </message>
    <message>
        <source>Earlier steps are listed when you go back to the oldest one here.</source>
        <translation>Các bước trước đó sẽ hiện khi bạn quay về bước cũ nhất ở đây.</translation>
    </message>
</context>
<context>
    <name>ImportDlg</name>
    <message>
        <source>No file is open.</source>
        <translation>Chưa mở tệp nào.</translation>
    </message>
    <message>
        <source>IMPORT</source>
        <translation>NHẬP</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>HỦY</translation>
    </message>
    <message>
        <source>Import profiles</source>
        <translation>Nhập hồ sơ</translation>
    </message>
    <message>
        <source>OPEN...</source>
        <translation>MỞ...</translation>
    </message>
    <message>
        <source>Profiles of the file</source>
        <translation>Hồ sơ trong tệp</translation>
    </message>
    <message>
        <source>PROFILE OF THE FILE</source>
        <translation>HỒ SƠ TRONG TỆP</translation>
    </message>
    <message>
        <source>KEYS</source>
        <translation>PHÍM</translation>
    </message>
    <message>
        <source>IN PLACE OF</source>
        <translation>THAY CHO</translation>
    </message>
    <message>
        <source>Profiles (*.json);;All files (*)</source>
        <translation>Hồ sơ (*.json);;Tất cả tệp (*)</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>Không đọc được %1: %2</translation>
    </message>
    <message>
        <source>PROFILE %1</source>
        <translation>HỒ SƠ %1</translation>
    </message>
    <message>
        <source>In place of</source>
        <translation>Thay cho</translation>
    </message>
    <message>
        <source>Two profiles would take the place of %1.</source>
        <translation>Hai hồ sơ sẽ cùng thay cho %1.</translation>
    </message>
    <message>
        <source>Macros that come with them: %1.</source>
        <translation>Macro đi kèm: %1.</translation>
    </message>
    <message>
        <source>One profile was imported.</source>
        <translation>Đã nhập một hồ sơ.</translation>
    </message>
    <message>
        <source>%1 profiles were imported.</source>
        <translation>Đã nhập %1 hồ sơ.</translation>
    </message>
    <message>
        <source>The macro &quot;%1&quot; is named &quot;%2&quot; here, because there was another of its name.</source>
        <translation>Macro “%1” ở đây có tên là “%2”, vì đã có một macro trùng tên.</translation>
    </message>
    <message>
        <source>%1 was not found on this computer; its functions do nothing until it is.</source>
        <translation>Không tìm thấy %1 trên máy tính này; các chức năng của nó chưa hoạt động cho đến khi tìm thấy.</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>ĐÓNG</translation>
    </message>
    <message>
        <source>The macros were imported.</source>
        <translation>Đã nhập các macro.</translation>
    </message>
</context>
<context>
    <name>KeyCombo</name>
    <message>
        <source>Key</source>
        <translation>Phím</translation>
    </message>
</context>
<context>
    <name>KeyFinder</name>
    <message>
        <source>%1 (unassigned)</source>
        <translation>%1 (chưa gán)</translation>
    </message>
</context>
<context>
    <name>KeyText</name>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (đã đổi)</translation>
    </message>
    <message>
        <source>CODE %1</source>
        <translation>MÃ %1</translation>
    </message>
    <message>
        <source>%1 at %2%</source>
        <translation>%1 ở %2%</translation>
    </message>
</context>
<context>
    <name>KeyTitle</name>
    <message>
        <source>Key %1</source>
        <translation>Phím %1</translation>
    </message>
    <message>
        <source>Key %1 (%2)</source>
        <translation>Phím %1 (%2)</translation>
    </message>
    <message>
        <source>Keys %1 and %2</source>
        <translation>Phím %1 và %2</translation>
    </message>
</context>
<context>
    <name>MacroEditor</name>
    <message>
        <source>RECORDING
Press keys. To finish, press Esc twice or click STOP.</source>
        <translation>ĐANG GHI
Hãy nhấn các phím. Để kết thúc, nhấn Esc hai lần hoặc nhấp vào DỪNG.</translation>
    </message>
    <message>
        <source>Events of the macro</source>
        <translation>Các sự kiện của macro</translation>
    </message>
    <message>
        <source>RECORD</source>
        <translation>GHI</translation>
    </message>
    <message>
        <source>Record keys at the end of the macro</source>
        <translation>Ghi phím vào cuối macro</translation>
    </message>
    <message>
        <source>Delays of recorded keys</source>
        <translation>Thời gian chờ của các phím đã ghi</translation>
    </message>
    <message>
        <source>delays as they were</source>
        <translation>giữ nguyên thời gian chờ</translation>
    </message>
    <message>
        <source>no delays</source>
        <translation>không chờ</translation>
    </message>
    <message>
        <source>fixed delays</source>
        <translation>thời gian chờ cố định</translation>
    </message>
    <message>
        <source>Fixed delay in milliseconds</source>
        <translation>Thời gian chờ cố định, tính bằng mili giây</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>SET ALL</source>
        <translation>ĐẶT TẤT CẢ</translation>
    </message>
    <message>
        <source>Give all events of the macro this delay</source>
        <translation>Đặt thời gian chờ này cho mọi sự kiện của macro</translation>
    </message>
    <message>
        <source>Event to add</source>
        <translation>Sự kiện cần thêm</translation>
    </message>
    <message>
        <source>press and release</source>
        <translation>nhấn và thả</translation>
    </message>
    <message>
        <source>press</source>
        <translation>nhấn</translation>
    </message>
    <message>
        <source>release</source>
        <translation>thả</translation>
    </message>
    <message>
        <source>ADD</source>
        <translation>THÊM</translation>
    </message>
    <message>
        <source>Move the event up (Alt+Up)</source>
        <translation>Chuyển sự kiện lên (Alt+Lên)</translation>
    </message>
    <message>
        <source>Move the event down (Alt+Down)</source>
        <translation>Chuyển sự kiện xuống (Alt+Xuống)</translation>
    </message>
    <message>
        <source>DELETE</source>
        <translation>XÓA</translation>
    </message>
    <message>
        <source>Chosen events:</source>
        <translation>Các sự kiện đã chọn:</translation>
    </message>
    <message>
        <source>%1: %2 of %3 events</source>
        <translation>%1: %2 trên %3 sự kiện</translation>
    </message>
    <message>
        <source>Make a new macro, then record keys.</source>
        <translation>Hãy tạo một macro mới, rồi ghi các phím.</translation>
    </message>
    <message>
        <source>STOP</source>
        <translation>DỪNG</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a key that a macro can have.</source>
        <translation>“%1” không phải là phím mà macro có thể chứa.</translation>
    </message>
    <message>
        <source>RECORDING: %1 of %2 events
Press keys. To finish, press Esc twice or click STOP.</source>
        <translation>ĐANG GHI: %1 trên %2 sự kiện
Hãy nhấn các phím. Để kết thúc, nhấn Esc hai lần hoặc nhấp vào DỪNG.</translation>
    </message>
</context>
<context>
    <name>MacroEventDelegate</name>
    <message>
        <source>release</source>
        <translation>thả</translation>
    </message>
    <message>
        <source>press</source>
        <translation>nhấn</translation>
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
        <translation>%1 (mã %2)</translation>
    </message>
    <message>
        <source>Add events to macro %1</source>
        <translation>Thêm sự kiện vào macro %1</translation>
    </message>
    <message>
        <source>Delete events of macro %1</source>
        <translation>Xóa sự kiện của macro %1</translation>
    </message>
    <message>
        <source>Move an event of macro %1</source>
        <translation>Di chuyển một sự kiện của macro %1</translation>
    </message>
    <message>
        <source>Change delays of macro %1</source>
        <translation>Đổi thời gian chờ của macro %1</translation>
    </message>
    <message>
        <source>▼ press</source>
        <translation>▼ nhấn</translation>
    </message>
    <message>
        <source>▲ release</source>
        <translation>▲ thả</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>EVENT</source>
        <translation>SỰ KIỆN</translation>
    </message>
    <message>
        <source>KEY</source>
        <translation>PHÍM</translation>
    </message>
    <message>
        <source>THEN WAIT</source>
        <translation>SAU ĐÓ CHỜ</translation>
    </message>
    <message>
        <source>Change a delay of macro %1</source>
        <translation>Đổi một thời gian chờ của macro %1</translation>
    </message>
    <message>
        <source>Change an event of macro %1</source>
        <translation>Đổi một sự kiện của macro %1</translation>
    </message>
</context>
<context>
    <name>MacroPage</name>
    <message>
        <source>BACK TO THE KEYS</source>
        <translation>QUAY LẠI CÁC PHÍM</translation>
    </message>
    <message>
        <source>NEW</source>
        <translation>MỚI</translation>
    </message>
    <message>
        <source>RENAME</source>
        <translation>ĐỔI TÊN</translation>
    </message>
    <message>
        <source>DELETE</source>
        <translation>XÓA</translation>
    </message>
    <message>
        <source>Macros</source>
        <translation>Macro</translation>
    </message>
    <message>
        <source>NO.</source>
        <translation>SỐ</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>TÊN</translation>
    </message>
    <message>
        <source>EVENTS</source>
        <translation>SỰ KIỆN</translation>
    </message>
    <message>
        <source>KEYS</source>
        <translation>PHÍM</translation>
    </message>
    <message>
        <source>NO KEY HAS IT</source>
        <translation>KHÔNG PHÍM NÀO CÓ</translation>
    </message>
    <message>
        <source>KEYS THAT HAVE IT</source>
        <translation>CÁC PHÍM CÓ MACRO NÀY</translation>
    </message>
    <message>
        <source>Go to this key</source>
        <translation>Đi tới phím này</translation>
    </message>
    <message>
        <source>Add macro %1</source>
        <translation>Thêm macro %1</translation>
    </message>
    <message>
        <source>Macro</source>
        <translation>Macro</translation>
    </message>
    <message>
        <source>A macro needs a name.</source>
        <translation>Macro cần có tên.</translation>
    </message>
    <message>
        <source>Rename macro %1 to %2</source>
        <translation>Đổi tên macro %1 thành %2</translation>
    </message>
    <message>
        <source>There is another macro named &quot;%1&quot;.</source>
        <translation>Đã có macro khác tên là “%1”.</translation>
    </message>
    <message>
        <source>Delete macro %1</source>
        <translation>Xóa macro %1</translation>
    </message>
    <message>
        <source>Macro %1 was deleted.</source>
        <translation>Đã xóa macro %1.</translation>
    </message>
    <message>
        <source>Macro %1 was deleted and taken off %2 keys.</source>
        <translation>Đã xóa macro %1 và gỡ khỏi %2 phím.</translation>
    </message>
    <message>
        <source>Record the macro, then go back and choose it for the key.</source>
        <translation>Hãy ghi macro, rồi quay lại và chọn nó cho phím.</translation>
    </message>
    <message>
        <source>The new macro was empty and was not kept.</source>
        <translation>Macro mới còn trống nên không được giữ lại.</translation>
    </message>
    <message>
        <source>COPY</source>
        <translation>SAO CHÉP</translation>
    </message>
    <message>
        <source>Make another macro with the same events</source>
        <translation>Tạo macro khác với cùng các sự kiện</translation>
    </message>
    <message>
        <source>Macro %1 was deleted and taken off one key.</source>
        <translation>Đã xóa macro %1 và gỡ khỏi một phím.</translation>
    </message>
    <message>
        <source>Move macro %1</source>
        <translation>Di chuyển macro %1</translation>
    </message>
</context>
<context>
    <name>MacroRecorder</name>
    <message>
        <source>A macro holds at most %1 events.</source>
        <translation>Một macro có nhiều nhất %1 sự kiện.</translation>
    </message>
    <message>
        <source>The pad has no code for this key.</source>
        <translation>Thiết bị không có mã cho phím này.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>MAPPING</source>
        <translation>GÁN PHÍM</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Tệp</translation>
    </message>
    <message>
        <source>&amp;Settings...</source>
        <translation>&amp;Cài đặt...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>T&amp;hoát</translation>
    </message>
    <message>
        <source>&amp;Profile</source>
        <translation>&amp;Hồ sơ</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Sửa</translation>
    </message>
    <message>
        <source>&amp;Find Keys...</source>
        <translation>Tì&amp;m phím...</translation>
    </message>
    <message>
        <source>Assign by &amp;Pressing Keys</source>
        <translation>Gán bằng cách &amp;nhấn phím</translation>
    </message>
    <message>
        <source>While a key of the pad is selected, the next key that is pressed is put on it. Off, the keyboard works the window.</source>
        <translation>Khi một phím của thiết bị đang được chọn, phím nhấn tiếp theo sẽ được gán cho nó. Khi tắt, bàn phím điều khiển cửa sổ.</translation>
    </message>
    <message>
        <source>&amp;Apply to Device</source>
        <translation>Á&amp;p dụng cho thiết bị</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Xem</translation>
    </message>
    <message>
        <source>Profile &amp;Names</source>
        <translation>Tê&amp;n hồ sơ</translation>
    </message>
    <message>
        <source>Everything is on the device.</source>
        <translation>Mọi thứ đã ở trên thiết bị.</translation>
    </message>
    <message>
        <source>Not on the device yet: %1.</source>
        <translation>Chưa có trên thiết bị: %1.</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>Đã hoàn tác: %1</translation>
    </message>
    <message>
        <source>Done again: %1</source>
        <translation>Đã làm lại: %1</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Hoàn tác %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Hoàn tác</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Làm lại %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Làm lại</translation>
    </message>
    <message>
        <source>Undo %1 (Ctrl+Z)</source>
        <translation>Hoàn tác %1 (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Redo %1 (Ctrl+Shift+Z)</source>
        <translation>Làm lại %1 (Ctrl+Shift+Z)</translation>
    </message>
    <message>
        <source>nothing to apply</source>
        <translation>không có gì để áp dụng</translation>
    </message>
    <message>
        <source>1 key to apply</source>
        <translation>1 phím cần áp dụng</translation>
    </message>
    <message>
        <source>%1 keys to apply</source>
        <translation>%1 phím cần áp dụng</translation>
    </message>
    <message>
        <source>Device: %1   |   %2   |</source>
        <translation>Thiết bị: %1   |   %2   |</translation>
    </message>
    <message>
        <source>READ ONLY</source>
        <translation>CHỈ ĐỌC</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Đã lưu</translation>
    </message>
    <message>
        <source>NOT SAVED</source>
        <translation>CHƯA LƯU</translation>
    </message>
    <message>
        <source>CHANGES %1</source>
        <translation>THAY ĐỔI %1</translation>
    </message>
    <message>
        <source>CHANGES</source>
        <translation>THAY ĐỔI</translation>
    </message>
    <message>
        <source>%1%2 - VANTRIX</source>
        <translation>%1%2 - VANTRIX</translation>
    </message>
    <message>
        <source> (read only)</source>
        <translation> (chỉ đọc)</translation>
    </message>
    <message>
        <source>Click a key of the pad, then choose what it does.</source>
        <translation>Nhấp vào một phím của thiết bị, rồi chọn việc nó làm.</translation>
    </message>
    <message>
        <source>CHECK %1</source>
        <translation>KIỂM TRA %1</translation>
    </message>
    <message>
        <source>CHECK</source>
        <translation>KIỂM TRA</translation>
    </message>
    <message>
        <source>%1 takes the next key you press. Ctrl+K, with no key selected, switches that off.</source>
        <translation>Phím bạn nhấn tiếp theo sẽ được gán cho %1. Nhấn Ctrl+K khi không chọn phím nào để tắt.</translation>
    </message>
    <message>
        <source>The changes cannot be saved and are lost with the window. Close it?</source>
        <translation>Không thể lưu các thay đổi, chúng sẽ mất khi đóng cửa sổ. Đóng?</translation>
    </message>
    <message>
        <source>Nothing to undo</source>
        <translation>Không có gì để hoàn tác</translation>
    </message>
    <message>
        <source>Nothing to redo</source>
        <translation>Không có gì để làm lại</translation>
    </message>
    <message>
        <source>Steps undone: %1</source>
        <translation>Số bước đã hoàn tác: %1</translation>
    </message>
    <message>
        <source>Steps done again: %1</source>
        <translation>Số bước đã làm lại: %1</translation>
    </message>
</context>
<context>
    <name>MappingView</name>
    <message>
        <source>COMPANION</source>
        <translation>BẠN ĐỒNG HÀNH</translation>
    </message>
    <message>
        <source>%1 is on the device.</source>
        <translation>%1 đã ở trên thiết bị.</translation>
    </message>
    <message>
        <source>%1 did not reach the device.</source>
        <translation>%1 chưa đến được thiết bị.</translation>
    </message>
    <message>
        <source>Reset %1</source>
        <translation>Đặt lại %1</translation>
    </message>
    <message>
        <source>The device was reset, and %1 with it. Undo brings its keys back; the other profiles are kept here and can be applied again.</source>
        <translation>Đã đặt lại thiết bị và cả %1. Hoàn tác sẽ đưa các phím của nó trở lại; các hồ sơ khác vẫn được giữ ở đây và có thể áp dụng lại.</translation>
    </message>
    <message>
        <source>The device was reset. The profiles are kept here and can be applied again.</source>
        <translation>Đã đặt lại thiết bị. Các hồ sơ vẫn được giữ ở đây và có thể áp dụng lại.</translation>
    </message>
</context>
<context>
    <name>MessageBar</name>
    <message>
        <source>DISMISS</source>
        <translation>ẨN</translation>
    </message>
</context>
<context>
    <name>PadView</name>
    <message>
        <source>Picture of the pad</source>
        <translation>Hình thiết bị</translation>
    </message>
</context>
<context>
    <name>ProfileCheck</name>
    <message>
        <source>%1 has the macro &quot;%2&quot;, which is not there any more.</source>
        <translation>%1 có macro “%2”, nhưng macro này không còn nữa.</translation>
    </message>
    <message>
        <source>%1 has the macro &quot;%2&quot;, which is empty.</source>
        <translation>%1 có macro “%2”, nhưng macro này còn trống.</translation>
    </message>
    <message>
        <source>%1 has a dual action without a second action.</source>
        <translation>%1 có hành động kép thiếu hành động thứ hai.</translation>
    </message>
    <message>
        <source>%1 has a dual action without a first action.</source>
        <translation>%1 có hành động kép thiếu hành động thứ nhất.</translation>
    </message>
    <message>
        <source>%1 has a function of %2, which was not found on this computer.</source>
        <translation>%1 có chức năng của %2, nhưng không tìm thấy nó trên máy tính này.</translation>
    </message>
    <message>
        <source>%1 have functions of %2, which was not found on this computer.</source>
        <translation>%1 có các chức năng của %2, nhưng không tìm thấy nó trên máy tính này.</translation>
    </message>
    <message>
        <source>%1 of %2 leads to this profile, and no key leads back.</source>
        <translation>%1 của %2 dẫn tới hồ sơ này, nhưng không phím nào dẫn trở lại.</translation>
    </message>
    <message>
        <source>%1 do the same: %2.</source>
        <translation>%1 làm cùng một việc: %2.</translation>
    </message>
</context>
<context>
    <name>ProfileExchange</name>
    <message>
        <source>top</source>
        <translation>đầu tệp</translation>
    </message>
    <message>
        <source>%1 is not an object</source>
        <translation>%1 không phải là đối tượng</translation>
    </message>
    <message>
        <source>there is no member &quot;%1&quot; here</source>
        <translation>ở đây thiếu thành phần “%1”</translation>
    </message>
    <message>
        <source>%1 is not a list</source>
        <translation>%1 không phải là danh sách</translation>
    </message>
    <message>
        <source>%1 elements are more than %2</source>
        <translation>%1 phần tử là nhiều hơn %2</translation>
    </message>
    <message>
        <source>%1 is not a whole number from %2 to %3</source>
        <translation>%1 không phải là số nguyên từ %2 đến %3</translation>
    </message>
    <message>
        <source>%1 is not a text</source>
        <translation>%1 không phải là văn bản</translation>
    </message>
    <message>
        <source>the text holds a character that cannot be stored</source>
        <translation>văn bản có ký tự không thể lưu</translation>
    </message>
    <message>
        <source>two macros are named &quot;%1&quot;</source>
        <translation>có hai macro tên là “%1”</translation>
    </message>
    <message>
        <source>profile %1 is here twice</source>
        <translation>hồ sơ %1 xuất hiện hai lần</translation>
    </message>
    <message>
        <source>this is not a file of profiles</source>
        <translation>đây không phải là tệp hồ sơ</translation>
    </message>
    <message>
        <source>the file is of version %1; this program reads up to %2</source>
        <translation>tệp có phiên bản %1; chương trình này đọc đến phiên bản %2</translation>
    </message>
    <message>
        <source>a macro needs a name</source>
        <translation>macro cần có tên</translation>
    </message>
    <message>
        <source>these are %1 bytes and not %2</source>
        <translation>đây là %1 byte chứ không phải %2</translation>
    </message>
    <message>
        <source>%1 is neither true nor false</source>
        <translation>%1 không đúng cũng không sai</translation>
    </message>
    <message>
        <source>key %1 is here twice</source>
        <translation>phím %1 xuất hiện hai lần</translation>
    </message>
    <message>
        <source>1 is not 0, 2 or 3</source>
        <translation>1 không phải là 0, 2 hay 3</translation>
    </message>
    <message>
        <source>a key holds only one of app, hotKey, shortcut, extended and macro</source>
        <translation>một phím chỉ có một trong app, hotKey, shortcut, extended và macro</translation>
    </message>
    <message>
        <source>%1 is not an extended code</source>
        <translation>%1 không phải là mã mở rộng</translation>
    </message>
    <message>
        <source>Import profile %1</source>
        <translation>Nhập hồ sơ %1</translation>
    </message>
    <message>
        <source>Import %1 profiles</source>
        <translation>Nhập %1 hồ sơ</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>một danh sách</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>một đối tượng</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>không có gì</translation>
    </message>
    <message>
        <source>line %1, column %2</source>
        <translation>dòng %1, cột %2</translation>
    </message>
    <message>
        <source>Import macros</source>
        <translation>Nhập macro</translation>
    </message>
</context>
<context>
    <name>ProfileList</name>
    <message>
        <source>DEVICE</source>
        <translation>THIẾT BỊ</translation>
    </message>
    <message>
        <source>PROFILES</source>
        <translation>HỒ SƠ</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Hồ sơ</translation>
    </message>
    <message>
        <source>COPY</source>
        <translation>SAO CHÉP</translation>
    </message>
    <message>
        <source>Copy this profile over another one</source>
        <translation>Sao chép hồ sơ này đè lên hồ sơ khác</translation>
    </message>
    <message>
        <source>CLEAR</source>
        <translation>XÓA</translation>
    </message>
    <message>
        <source>Take everything off the keys of this profile</source>
        <translation>Gỡ mọi thứ khỏi các phím của hồ sơ này</translation>
    </message>
    <message>
        <source>Move up (Alt+Up)</source>
        <translation>Chuyển lên (Alt+Lên)</translation>
    </message>
    <message>
        <source>Move down (Alt+Down)</source>
        <translation>Chuyển xuống (Alt+Xuống)</translation>
    </message>
    <message>
        <source>&amp;Rename...</source>
        <translation>Đổi &amp;tên...</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>&amp;Nhân bản</translation>
    </message>
    <message>
        <source>Copy &amp;Over</source>
        <translation>Sao chép đ&amp;è</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Xóa</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Chuyển &amp;lên</translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation>Chuyển x&amp;uống</translation>
    </message>
    <message>
        <source>&amp;Next Profile</source>
        <translation>Hồ sơ &amp;sau</translation>
    </message>
    <message>
        <source>&amp;Previous Profile</source>
        <translation>Hồ sơ t&amp;rước</translation>
    </message>
    <message>
        <source>shown</source>
        <translation>đang hiển thị</translation>
    </message>
    <message>
        <source>the device acts by it</source>
        <translation>thiết bị đang dùng</translation>
    </message>
    <message>
        <source>differs from what the device has</source>
        <translation>khác với trên thiết bị</translation>
    </message>
    <message>
        <source>All profiles are in use: choose one to copy over.</source>
        <translation>Mọi hồ sơ đều đang được dùng: hãy chọn một hồ sơ để chép đè.</translation>
    </message>
    <message>
        <source>Duplicate %1</source>
        <translation>Nhân bản %1</translation>
    </message>
    <message>
        <source>%1 was copied to profile %2.</source>
        <translation>Đã sao chép %1 sang hồ sơ %2.</translation>
    </message>
    <message>
        <source>%1  (unused)</source>
        <translation>%1  (chưa dùng)</translation>
    </message>
    <message>
        <source>Clear %1</source>
        <translation>Xóa %1</translation>
    </message>
    <message>
        <source>%1 was cleared. Undo brings it back.</source>
        <translation>Đã xóa %1. Hoàn tác sẽ đưa nó trở lại.</translation>
    </message>
    <message>
        <source>Move %1</source>
        <translation>Di chuyển %1</translation>
    </message>
    <message>
        <source>%1 has nothing on its keys.</source>
        <translation>%1 không có gì trên các phím.</translation>
    </message>
</context>
<context>
    <name>ProfileStore</name>
    <message>
        <source>%1 COPY</source>
        <translation>BẢN SAO CỦA %1</translation>
    </message>
    <message>
        <source>PROFILE %1</source>
        <translation>HỒ SƠ %1</translation>
    </message>
</context>
<context>
    <name>SettingsDlg</name>
    <message>
        <source>Settings</source>
        <translation>Cài đặt</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Ngôn ngữ:</translation>
    </message>
    <message>
        <source>&amp;Hot-key catalog:</source>
        <translation>Danh mục phím &amp;tắt:</translation>
    </message>
    <message>
        <source>Hot-key catalog</source>
        <translation>Danh mục phím tắt</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>không tìm thấy</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Chương trình</translation>
    </message>
    <message>
        <source>Keys with &amp;macros in a profile:</source>
        <translation>Số phím &amp;macro trong một hồ sơ:</translation>
    </message>
    <message>
        <source>BROWSE</source>
        <translation>DUYỆT</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>HỦY</translation>
    </message>
    <message>
        <source>There is no folder %1.</source>
        <translation>Không có thư mục %1.</translation>
    </message>
    <message>
        <source>There is no program %1.</source>
        <translation>Không có chương trình %1.</translation>
    </message>
</context>
<context>
    <name>ShellPages</name>
    <message>
        <source>CHANGES</source>
        <translation>THAY ĐỔI</translation>
    </message>
    <message>
        <source>HISTORY</source>
        <translation>LỊCH SỬ</translation>
    </message>
    <message>
        <source>MACROS</source>
        <translation>MACRO</translation>
    </message>
    <message>
        <source>DEVICE</source>
        <translation>THIẾT BỊ</translation>
    </message>
    <message>
        <source>CHECK</source>
        <translation>KIỂM TRA</translation>
    </message>
    <message>
        <source>Import profiles...</source>
        <translation>Nhập hồ sơ...</translation>
    </message>
    <message>
        <source>Export profiles...</source>
        <translation>Xuất hồ sơ...</translation>
    </message>
</context>
<context>
    <name>StepName</name>
    <message>
        <source>Depth of key %1: %2%</source>
        <translation>Độ sâu của phím %1: %2%</translation>
    </message>
    <message>
        <source>Clear key %1</source>
        <translation>Xóa phím %1</translation>
    </message>
    <message>
        <source>Assign %1 to key %2</source>
        <translation>Gán %1 cho phím %2</translation>
    </message>
    <message numerus="yes">
        <source>Change %n key(s) in several profiles</source>
        <translation>
            <numerusform>Đổi %n phím trong nhiều hồ sơ</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear %1 keys</source>
        <translation>Xóa %1 phím</translation>
    </message>
    <message>
        <source>Dual actions on %1 keys</source>
        <translation>Hành động kép trên %1 phím</translation>
    </message>
    <message>
        <source>Change %1 keys</source>
        <translation>Đổi %1 phím</translation>
    </message>
    <message>
        <source>Rename macro %1 to %2</source>
        <translation>Đổi tên macro %1 thành %2</translation>
    </message>
    <message>
        <source>Create macro %1</source>
        <translation>Tạo macro %1</translation>
    </message>
    <message>
        <source>Delete macro %1</source>
        <translation>Xóa macro %1</translation>
    </message>
    <message>
        <source>Move a macro</source>
        <translation>Di chuyển một macro</translation>
    </message>
    <message>
        <source>Edit macro %1</source>
        <translation>Sửa macro %1</translation>
    </message>
    <message>
        <source>Preset: %1</source>
        <translation>Thiết lập sẵn: %1</translation>
    </message>
    <message>
        <source>Name profile %1: %2</source>
        <translation>Đặt tên hồ sơ %1: %2</translation>
    </message>
    <message>
        <source>Move a profile</source>
        <translation>Di chuyển một hồ sơ</translation>
    </message>
    <message>
        <source>Pressure sensing on</source>
        <translation>Bật cảm biến lực nhấn</translation>
    </message>
    <message>
        <source>Pressure sensing off</source>
        <translation>Tắt cảm biến lực nhấn</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Thay đổi</translation>
    </message>
</context>
<context>
    <name>StoreKeeper</name>
    <message>
        <source>The store %1 was missing. The last good copy of it is used.</source>
        <translation>Thiếu kho %1. Bản sao tốt gần nhất được dùng.</translation>
    </message>
    <message>
        <source>The store %1 was written by a newer version of this program.</source>
        <translation>Kho %1 do phiên bản mới hơn của chương trình này ghi.</translation>
    </message>
    <message>
        <source>The store %1 is damaged and cannot be read.</source>
        <translation>Kho %1 bị hỏng và không đọc được.</translation>
    </message>
    <message>
        <source>It was left as it is.</source>
        <translation>Kho được để nguyên.</translation>
    </message>
    <message>
        <source>It was kept as %1.</source>
        <translation>Kho được giữ lại với tên %1.</translation>
    </message>
    <message>
        <source>The last good copy is used.</source>
        <translation>Bản sao tốt gần nhất được dùng.</translation>
    </message>
    <message>
        <source>There is no good copy of it, so everything starts empty.</source>
        <translation>Không có bản sao tốt nào, nên mọi thứ bắt đầu từ trống.</translation>
    </message>
    <message>
        <source>The store %1 was brought up to date. The file of the earlier version was kept as %2.</source>
        <translation>Kho %1 đã được cập nhật. Tệp của phiên bản trước được giữ lại với tên %2.</translation>
    </message>
    <message>
        <source>The store %1 was replaced by another file while the program was running. That file was kept as %2, and the store was written again.</source>
        <translation>Kho %1 bị thay bằng tệp khác khi chương trình đang chạy. Tệp đó được giữ lại với tên %2 và kho được ghi lại.</translation>
    </message>
    <message>
        <source>The store %1 was removed while the program was running. It was written again.</source>
        <translation>Kho %1 bị xóa khi chương trình đang chạy. Kho đã được ghi lại.</translation>
    </message>
    <message>
        <source>All changes are saved again.</source>
        <translation>Mọi thay đổi đã được lưu trở lại.</translation>
    </message>
    <message>
        <source>Changes are kept in memory and saved as soon as possible.</source>
        <translation>Các thay đổi được giữ trong bộ nhớ và sẽ được lưu ngay khi có thể.</translation>
    </message>
    <message>
        <source>There is no room on the disk for the store %1.</source>
        <translation>Không còn chỗ trên đĩa cho kho %1.</translation>
    </message>
    <message>
        <source>Another program is using the store %1.</source>
        <translation>Một chương trình khác đang dùng kho %1.</translation>
    </message>
    <message>
        <source>The store %1 cannot be written.</source>
        <translation>Không ghi được kho %1.</translation>
    </message>
    <message>
        <source>What it holds is shown as soon as it can be read.</source>
        <translation>Nội dung của kho sẽ hiện ngay khi đọc được.</translation>
    </message>
    <message>
        <source>The last good copy of it is shown until what it holds can be read.</source>
        <translation>Bản sao tốt gần nhất được hiện cho đến khi đọc được nội dung của kho.</translation>
    </message>
    <message>
        <source>Another window has the store %1 open.</source>
        <translation>Kho %1 đang mở trong một cửa sổ khác.</translation>
    </message>
    <message>
        <source>It is shown here, but changes made here are not kept.</source>
        <translation>Kho được hiện ở đây, nhưng các thay đổi ở đây không được giữ lại.</translation>
    </message>
    <message>
        <source>It cannot be read here, and changes made here are not kept.</source>
        <translation>Ở đây không đọc được kho, và các thay đổi ở đây không được giữ lại.</translation>
    </message>
    <message>
        <source>The copy %1 cannot be read. It was kept as %2.</source>
        <translation>Không đọc được bản sao %1. Bản sao được giữ lại với tên %2.</translation>
    </message>
    <message>
        <source>The store %1 on the disk was another than what was shown here when something was changed. It was kept as %2, and a new one was begun.</source>
        <translation>Kho %1 trên đĩa khác với kho hiện ở đây khi có thay đổi. Kho được giữ lại với tên %2 và một kho mới đã được bắt đầu.</translation>
    </message>
    <message>
        <source>The store %1 is shown as it is on the disk now.</source>
        <translation>Kho %1 được hiện như trên đĩa lúc này.</translation>
    </message>
</context>
</TS>
