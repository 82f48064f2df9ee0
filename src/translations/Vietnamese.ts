<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="vi_VN" sourcelanguage="en_US">
<context>
    <name>ActionAssignUi</name>
    <message>
        <source>BACK</source>
        <translation>QUAY LẠI</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>ÁP DỤNG</translation>
    </message>
</context>
<context>
    <name>ActionBtn</name>
    <message>
        <source>ACTION</source>
        <translation>HÀNH ĐỘNG</translation>
    </message>
</context>
<context>
    <name>ActionWid</name>
    <message>
        <source>ACTION</source>
        <translation>HÀNH ĐỘNG</translation>
    </message>
</context>
<context>
    <name>AdvAssignWid</name>
    <message>
        <source>CTRL LEFT</source>
        <translation>CTRL TRÁI</translation>
    </message>
    <message>
        <source>SHIFT LEFT</source>
        <translation>SHIFT TRÁI</translation>
    </message>
    <message>
        <source>ALT LEFT</source>
        <translation>ALT TRÁI</translation>
    </message>
    <message>
        <source>CTRL RIGHT</source>
        <translation>CTRL PHẢI</translation>
    </message>
    <message>
        <source>SHIFT RIGHT</source>
        <translation>SHIFT PHẢI</translation>
    </message>
    <message>
        <source>ALT RIGHT</source>
        <translation>ALT PHẢI</translation>
    </message>
</context>
<context>
    <name>AppPathDlg</name>
    <message>
        <source>APPLICATION</source>
        <translation>ỨNG DỤNG</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>ĐÓNG</translation>
    </message>
    <message>
        <source>PATH</source>
        <translation>ĐƯỜNG DẪN</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Mở tệp</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>HỦY</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>ÁP DỤNG</translation>
    </message>
</context>
<context>
    <name>ApplicationBtn</name>
    <message>
        <source>Open File</source>
        <translation>Mở tệp</translation>
    </message>
</context>
<context>
    <name>AssignMenuUi</name>
    <message>
        <source>REASSIGN KEY</source>
        <translation>GÁN LẠI PHÍM</translation>
    </message>
    <message>
        <source>CONTROLLER MAPPING MODE</source>
        <translation>CHẾ ĐỘ TAY CẦM</translation>
    </message>
    <message>
        <source>DUAL ACTION MAPPING MODE</source>
        <translation>CHẾ ĐỘ HÀNH ĐỘNG KÉP</translation>
    </message>
    <message>
        <source>CLEAR KEY ASSIGNMENT</source>
        <translation>XÓA GÁN PHÍM</translation>
    </message>
    <message>
        <source>DISABLE KEY</source>
        <translation>TẮT PHÍM</translation>
    </message>
</context>
<context>
    <name>AssignWid</name>
    <message>
        <source>warning</source>
        <translation>Cảnh báo</translation>
    </message>
    <message>
        <source>Macro assign has reached maximum limit</source>
        <translation>Số macro được gán đã đạt giới hạn tối đa</translation>
    </message>
    <message>
        <source>Fail to find the path of the program.</source>
        <translation>Không tìm thấy đường dẫn của chương trình.</translation>
    </message>
    <message>
        <source>Please assign it manually:</source>
        <translation>Vui lòng tự chỉ định:</translation>
    </message>
</context>
<context>
    <name>BackLightUi</name>
    <message>
        <source>BACKLIGHT</source>
        <translation>ĐÈN NỀN</translation>
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
        <translation>LÀM MỜ</translation>
    </message>
    <message>
        <source>BRUSH SIZE</source>
        <translation>CỠ CỌ</translation>
    </message>
    <message>
        <source>BRUSH HARDNESS</source>
        <translation>ĐỘ CỨNG CỌ</translation>
    </message>
    <message>
        <source>CROP</source>
        <translation>CẮT XÉN</translation>
    </message>
    <message>
        <source>CLONE STAMP</source>
        <translation>DẤU NHÂN BẢN</translation>
    </message>
    <message>
        <source>DODGE</source>
        <translation>LÀM SÁNG</translation>
    </message>
    <message>
        <source>EYEDROP</source>
        <translation>HÚT MÀU</translation>
    </message>
    <message>
        <source>LASSO</source>
        <translation>THÒNG LỌNG</translation>
    </message>
    <message>
        <source>LAUNCH PS</source>
        <translation>MỞ PS</translation>
    </message>
    <message>
        <source>MOVE</source>
        <translation>DI CHUYỂN</translation>
    </message>
    <message>
        <source>RECTANGULAR MARQUEE</source>
        <translation>CHỌN HÌNH CHỮ NHẬT</translation>
    </message>
    <message>
        <source>MAGNIFYING</source>
        <translation>THU PHÓNG</translation>
    </message>
    <message>
        <source>PEN</source>
        <translation>BÚT</translation>
    </message>
    <message>
        <source>POINTER</source>
        <translation>CON TRỎ</translation>
    </message>
    <message>
        <source>QUICK SELECTION</source>
        <translation>CHỌN NHANH</translation>
    </message>
    <message>
        <source>TEXT</source>
        <translation>VĂN BẢN</translation>
    </message>
    <message>
        <source>BACKWARD</source>
        <translation>PHÁT LÙI</translation>
    </message>
    <message>
        <source>COMPARISON</source>
        <translation>SO SÁNH</translation>
    </message>
    <message>
        <source>FORWARD</source>
        <translation>PHÁT TỚI</translation>
    </message>
    <message>
        <source>GO TO IN</source>
        <translation>ĐẾN ĐIỂM VÀO</translation>
    </message>
    <message>
        <source>GO TO OUT</source>
        <translation>ĐẾN ĐIỂM RA</translation>
    </message>
    <message>
        <source>HAND</source>
        <translation>BÀN TAY</translation>
    </message>
    <message>
        <source>LAUNCH PR</source>
        <translation>MỞ PR</translation>
    </message>
    <message>
        <source>MARK IN</source>
        <translation>ĐÁNH DẤU VÀO</translation>
    </message>
    <message>
        <source>MARK OUT</source>
        <translation>ĐÁNH DẤU RA</translation>
    </message>
    <message>
        <source>PLAY-STOP TOGGLE</source>
        <translation>PHÁT/DỪNG</translation>
    </message>
    <message>
        <source>RAZOR</source>
        <translation>DAO CẮT</translation>
    </message>
    <message>
        <source>RIPPLE EDIT</source>
        <translation>CHỈNH GỢN SÓNG</translation>
    </message>
    <message>
        <source>SLIP</source>
        <translation>TRƯỢT</translation>
    </message>
    <message>
        <source>STEP BACK 1 FRAME</source>
        <translation>LÙI 1 KHUNG HÌNH</translation>
    </message>
    <message>
        <source>STEP FORWARD 1 FRAME</source>
        <translation>TIẾN 1 KHUNG HÌNH</translation>
    </message>
    <message>
        <source>SELECTION</source>
        <translation>LỰA CHỌN</translation>
    </message>
    <message>
        <source>TRACK SELECT FORWARD</source>
        <translation>CHỌN TRACK VỀ SAU</translation>
    </message>
    <message>
        <source>ARTBOARD</source>
        <translation>VÙNG VẼ</translation>
    </message>
    <message>
        <source>BRUSH OPACITY</source>
        <translation>ĐỘ MỜ CỌ</translation>
    </message>
    <message>
        <source>DIRECT SELECTION</source>
        <translation>CHỌN TRỰC TIẾP</translation>
    </message>
    <message>
        <source>ELLIPSE</source>
        <translation>HÌNH ELIP</translation>
    </message>
    <message>
        <source>LAUNCH AI</source>
        <translation>MỞ AI</translation>
    </message>
    <message>
        <source>POLYGON</source>
        <translation>ĐA GIÁC</translation>
    </message>
    <message>
        <source>ROTATE</source>
        <translation>XOAY</translation>
    </message>
    <message>
        <source>RECTANGLE</source>
        <translation>HÌNH CHỮ NHẬT</translation>
    </message>
    <message>
        <source>ROUNDED RECTANGLE</source>
        <translation>HÌNH CHỮ NHẬT BO GÓC</translation>
    </message>
    <message>
        <source>Play Action 1. Please assign F2 to an Action in Photoshop</source>
        <translation>Chạy thao tác 1. Vui lòng gán F2 cho một thao tác trong Photoshop</translation>
    </message>
    <message>
        <source>Play Action 2. Please assign F3 to an Action in Photoshop</source>
        <translation>Chạy thao tác 2. Vui lòng gán F3 cho một thao tác trong Photoshop</translation>
    </message>
    <message>
        <source>Play Action 3. Please assign F4 to an Action in Photoshop</source>
        <translation>Chạy thao tác 3. Vui lòng gán F4 cho một thao tác trong Photoshop</translation>
    </message>
    <message>
        <source>To use Presso(Pressure Sensitive) Blur,
please assign N to Blur Tool in Photoshop(Alt+Shift+Ctrl+K)</source>
        <translation>Để dùng làm mờ theo lực nhấn (Presso),
vui lòng gán N cho công cụ Làm mờ trong Photoshop (Alt+Shift+Ctrl+K)</translation>
    </message>
    <message>
        <source>COMPARISON
Please assign F2 to Comparison Tool in Premiere Pro(Ctrl+Alt+K)</source>
        <translation>SO SÁNH
Vui lòng gán F2 cho chế độ so sánh trong Premiere Pro (Ctrl+Alt+K)</translation>
    </message>
    <message>
        <source>Play Action 1. Please assign F2 to an Action in Illustrator</source>
        <translation>Chạy thao tác 1. Vui lòng gán F2 cho một thao tác trong Illustrator</translation>
    </message>
    <message>
        <source>Play Action 2. Please assign F3 to an Action in Illustrator</source>
        <translation>Chạy thao tác 2. Vui lòng gán F3 cho một thao tác trong Illustrator</translation>
    </message>
    <message>
        <source>Play Action 3. Please assign F4 to an Action in Illustrator</source>
        <translation>Chạy thao tác 3. Vui lòng gán F4 cho một thao tác trong Illustrator</translation>
    </message>
    <message>
        <source>POLYGON
Please assign 2 to Polygon Tool in Illustrator(Alt+Shift+Ctrl+K)</source>
        <translation>ĐA GIÁC
Vui lòng gán 2 cho công cụ Đa giác trong Illustrator (Alt+Shift+Ctrl+K)</translation>
    </message>
    <message>
        <source>ROUNDED RECTANGLE
Please assign 1 to Rounded Rectangle Tool in Illustrator(Alt+Shift+Ctrl+K)</source>
        <translation>HÌNH CHỮ NHẬT BO GÓC
Vui lòng gán 1 cho công cụ Hình chữ nhật bo góc trong Illustrator (Alt+Shift+Ctrl+K)</translation>
    </message>
    <message>
        <source>UNKNOWN</source>
        <translation>KHÔNG RÕ</translation>
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
        <translation>HÀNH ĐỘNG 1</translation>
    </message>
    <message>
        <source>ACTION 2</source>
        <translation>HÀNH ĐỘNG 2</translation>
    </message>
    <message>
        <source>TYPE</source>
        <translation>KIỂU</translation>
    </message>
</context>
<context>
    <name>DualActionDistUi</name>
    <message>
        <source>ACTIVATION DISTANCE</source>
        <translation>KHOẢNG CÁCH KÍCH HOẠT</translation>
    </message>
    <message>
        <source>TRAVEL</source>
        <translation>HÀNH TRÌNH</translation>
    </message>
</context>
<context>
    <name>DualActionTipWid</name>
    <message>
        <source>ACTION1</source>
        <translation>HÀNH ĐỘNG1</translation>
    </message>
    <message>
        <source>ACTION2</source>
        <translation>HÀNH ĐỘNG2</translation>
    </message>
</context>
<context>
    <name>DualActionType</name>
    <message>
        <source>NORMAL
(ACTION1 &gt; ACTION2)</source>
        <translation>THƯỜNG
(HÀNH ĐỘNG1 &gt; HÀNH ĐỘNG2)</translation>
    </message>
    <message>
        <source>TOGGLE
(ACTION1 &gt; ACTION2 &gt; ACTION1)</source>
        <translation>LUÂN PHIÊN
(HÀNH ĐỘNG1 &gt; HÀNH ĐỘNG2 &gt; HÀNH ĐỘNG1)</translation>
    </message>
    <message>
        <source>COMBINE
(ACTION1 &gt; ACTION1 + ACTION2)</source>
        <translation>KẾT HỢP
(HÀNH ĐỘNG1 &gt; HÀNH ĐỘNG1 + HÀNH ĐỘNG2)</translation>
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
        <translation>LOẠI ĐẦU VÀO</translation>
    </message>
</context>
<context>
    <name>KeyCodes</name>
    <message>
        <source>KEYBOARD</source>
        <translation>BÀN PHÍM</translation>
    </message>
    <message>
        <source>MOUSE</source>
        <translation>CHUỘT</translation>
    </message>
    <message>
        <source>MEDIA</source>
        <translation>ĐA PHƯƠNG TIỆN</translation>
    </message>
    <message>
        <source>MACRO</source>
        <translation>MACRO</translation>
    </message>
    <message>
        <source>GAME CONTROLLER</source>
        <translation>TAY CẦM</translation>
    </message>
    <message>
        <source>APPLICATION</source>
        <translation>ỨNG DỤNG</translation>
    </message>
    <message>
        <source>DUAL ACTION</source>
        <translation>HÀNH ĐỘNG KÉP</translation>
    </message>
    <message>
        <source>PRESSO FUNCTIONS</source>
        <translation>CHỨC NĂNG PRESSO</translation>
    </message>
    <message>
        <source>BACKLIGHT</source>
        <translation>ĐÈN NỀN</translation>
    </message>
    <message>
        <source>PROFILE</source>
        <translation>HỒ SƠ</translation>
    </message>
    <message>
        <source>PRESET MODE</source>
        <translation>THIẾT LẬP SẴN</translation>
    </message>
    <message>
        <source>DISABLED</source>
        <translation>ĐÃ TẮT</translation>
    </message>
    <message>
        <source>UNASSIGNED</source>
        <translation>CHƯA GÁN</translation>
    </message>
    <message>
        <source>UNKNOWN</source>
        <translation>KHÔNG RÕ</translation>
    </message>
    <message>
        <source>OPEN TASK MANAGER</source>
        <translation>MỞ TRÌNH QUẢN LÝ TÁC VỤ</translation>
    </message>
    <message>
        <source>SWITCH BETWEEN OPEN APPS</source>
        <translation>CHUYỂN GIỮA CÁC ỨNG DỤNG ĐANG MỞ</translation>
    </message>
    <message>
        <source>BROWSER BACKWARD</source>
        <translation>LÙI TRANG TRÌNH DUYỆT</translation>
    </message>
    <message>
        <source>BROWSER FORWARD</source>
        <translation>TIẾN TRANG TRÌNH DUYỆT</translation>
    </message>
    <message>
        <source>MOVE UP ONE SCREEN</source>
        <translation>LÊN MỘT MÀN HÌNH</translation>
    </message>
    <message>
        <source>MOVE DOWN ONE SCREEN</source>
        <translation>XUỐNG MỘT MÀN HÌNH</translation>
    </message>
    <message>
        <source>VIEW OPEN APPS</source>
        <translation>XEM CÁC ỨNG DỤNG ĐANG MỞ</translation>
    </message>
    <message>
        <source>COPY SELECTED ITEMS TO CLIPBOARD</source>
        <translation>SAO CHÉP MỤC ĐÃ CHỌN VÀO KHAY NHỚ TẠM</translation>
    </message>
    <message>
        <source>CUT SELECTED ITEMS</source>
        <translation>CẮT MỤC ĐÃ CHỌN</translation>
    </message>
    <message>
        <source>PASTE CONTENT FROM CLIPBOARD</source>
        <translation>DÁN TỪ KHAY NHỚ TẠM</translation>
    </message>
    <message>
        <source>SELECT ALL CONTENT</source>
        <translation>CHỌN TẤT CẢ</translation>
    </message>
    <message>
        <source>UNDO AN ACTION</source>
        <translation>HOÀN TÁC THAO TÁC</translation>
    </message>
    <message>
        <source>REDO AN ACTION</source>
        <translation>LÀM LẠI THAO TÁC</translation>
    </message>
    <message>
        <source>DELETE THE SELECTED ITEM AND MOVE IT TO THE RECYCLE BIN</source>
        <translation>CHUYỂN MỤC ĐÃ CHỌN VÀO THÙNG RÁC</translation>
    </message>
    <message>
        <source>OPEN THE START MENU</source>
        <translation>MỞ MENU START</translation>
    </message>
    <message>
        <source>SWITCH THE KEYBOARD LAYOUT</source>
        <translation>CHUYỂN BỐ CỤC BÀN PHÍM</translation>
    </message>
    <message>
        <source>CLOSE ACTIVE WINDOW</source>
        <translation>ĐÓNG CỬA SỔ ĐANG HOẠT ĐỘNG</translation>
    </message>
    <message>
        <source>DISABLE</source>
        <translation>TẮT</translation>
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
        <translation>HIỆU ỨNG SAU+</translation>
    </message>
    <message>
        <source>Power Mode:Disable</source>
        <translation>Chế độ nguồn:Tắt</translation>
    </message>
    <message>
        <source>Power Mode:Working</source>
        <translation>Chế độ nguồn:Làm việc</translation>
    </message>
    <message>
        <source>Power Mode:Performance</source>
        <translation>Chế độ nguồn:Hiệu năng</translation>
    </message>
    <message>
        <source>Power Mode:Gaming</source>
        <translation>Chế độ nguồn:Chơi game</translation>
    </message>
    <message>
        <source>LED DARKER-</source>
        <translation>LED TỐI-</translation>
    </message>
    <message>
        <source>LED BRIGHTER+</source>
        <translation>LED SÁNG+</translation>
    </message>
    <message>
        <source>L TRIGGER</source>
        <translation>CÒ TRÁI</translation>
    </message>
    <message>
        <source>R TRIGGER</source>
        <translation>CÒ PHẢI</translation>
    </message>
    <message>
        <source>E-MAIL</source>
        <translation>E-MAIL</translation>
    </message>
    <message>
        <source>CALCULATOR</source>
        <translation>MÁY TÍNH</translation>
    </message>
    <message>
        <source>PLAY/PAUSE</source>
        <translation>PHÁT/TẠM DỪNG</translation>
    </message>
    <message>
        <source>STOP</source>
        <translation>DỪNG</translation>
    </message>
    <message>
        <source>PREVIOUS TRACK</source>
        <translation>BÀI TRƯỚC</translation>
    </message>
    <message>
        <source>NEXT TRACK</source>
        <translation>BÀI SAU</translation>
    </message>
    <message>
        <source>VOLUME MUTE/UNMUTE</source>
        <translation>TẮT/BẬT TIẾNG</translation>
    </message>
    <message>
        <source>VOLUME DOWN</source>
        <translation>GIẢM ÂM LƯỢNG</translation>
    </message>
    <message>
        <source>VOLUME UP</source>
        <translation>TĂNG ÂM LƯỢNG</translation>
    </message>
    <message>
        <source>WEB BROWSER</source>
        <translation>TRÌNH DUYỆT WEB</translation>
    </message>
    <message>
        <source>CALIBRATE</source>
        <translation>HIỆU CHUẨN</translation>
    </message>
    <message>
        <source>EFFECT CYCLE-</source>
        <translation>HIỆU ỨNG TRƯỚC-</translation>
    </message>
    <message>
        <source>SPEED DOWN LED EFFECT-</source>
        <translation>GIẢM TỐC HIỆU ỨNG LED-</translation>
    </message>
    <message>
        <source>SPEED UP LED EFFECT+</source>
        <translation>TĂNG TỐC HIỆU ỨNG LED+</translation>
    </message>
    <message>
        <source>D PAD UP RIGHT</source>
        <translation>D-PAD LÊN PHẢI</translation>
    </message>
    <message>
        <source>D PAD DOWN RIGHT</source>
        <translation>D-PAD XUỐNG PHẢI</translation>
    </message>
    <message>
        <source>D PAD DOWN LEFT</source>
        <translation>D-PAD XUỐNG TRÁI</translation>
    </message>
    <message>
        <source>D PAD UP LEFT</source>
        <translation>D-PAD LÊN TRÁI</translation>
    </message>
    <message>
        <source>D PAD UP</source>
        <translation>D-PAD LÊN</translation>
    </message>
    <message>
        <source>D PAD DOWN</source>
        <translation>D-PAD XUỐNG</translation>
    </message>
    <message>
        <source>D PAD LEFT</source>
        <translation>D-PAD TRÁI</translation>
    </message>
    <message>
        <source>D PAD RIGHT</source>
        <translation>D-PAD PHẢI</translation>
    </message>
    <message>
        <source>A BUTTON</source>
        <translation>NÚT A</translation>
    </message>
    <message>
        <source>B BUTTON</source>
        <translation>NÚT B</translation>
    </message>
    <message>
        <source>X BUTTON</source>
        <translation>NÚT X</translation>
    </message>
    <message>
        <source>Y BUTTON</source>
        <translation>NÚT Y</translation>
    </message>
    <message>
        <source>L BUMPER</source>
        <translation>NÚT VAI TRÁI</translation>
    </message>
    <message>
        <source>R BUMPER</source>
        <translation>NÚT VAI PHẢI</translation>
    </message>
    <message>
        <source>GUIDE BUTTON</source>
        <translation>NÚT GUIDE</translation>
    </message>
    <message>
        <source>START BUTTON</source>
        <translation>NÚT START</translation>
    </message>
    <message>
        <source>HOME BUTTON</source>
        <translation>NÚT HOME</translation>
    </message>
    <message>
        <source>L STICK PRESS</source>
        <translation>NHẤN CẦN TRÁI</translation>
    </message>
    <message>
        <source>R STICK PRESS</source>
        <translation>NHẤN CẦN PHẢI</translation>
    </message>
    <message>
        <source>L STICK LEFT</source>
        <translation>CẦN TRÁI SANG TRÁI</translation>
    </message>
    <message>
        <source>L STICK DOWN</source>
        <translation>CẦN TRÁI XUỐNG</translation>
    </message>
    <message>
        <source>R STICK LEFT</source>
        <translation>CẦN PHẢI SANG TRÁI</translation>
    </message>
    <message>
        <source>R STICK DOWN</source>
        <translation>CẦN PHẢI XUỐNG</translation>
    </message>
    <message>
        <source>CURSOR UP</source>
        <translation>TRỎ LÊN</translation>
    </message>
    <message>
        <source>CURSOR RIGHT</source>
        <translation>TRỎ PHẢI</translation>
    </message>
    <message>
        <source>CURSOR DOWN</source>
        <translation>TRỎ XUỐNG</translation>
    </message>
    <message>
        <source>CURSOR LEFT</source>
        <translation>TRỎ TRÁI</translation>
    </message>
    <message>
        <source>SCROLL UP</source>
        <translation>CUỘN LÊN</translation>
    </message>
    <message>
        <source>SCROLL DOWN</source>
        <translation>CUỘN XUỐNG</translation>
    </message>
    <message>
        <source>LEFT CLICK</source>
        <translation>NHẤP TRÁI</translation>
    </message>
    <message>
        <source>RIGHT CLICK</source>
        <translation>NHẤP PHẢI</translation>
    </message>
    <message>
        <source>WHEEL CLICK</source>
        <translation>NHẤP CON LĂN</translation>
    </message>
    <message>
        <source>BACKWARD</source>
        <translation>LÙI</translation>
    </message>
    <message>
        <source>FORWARD</source>
        <translation>TIẾN</translation>
    </message>
    <message>
        <source>L STICK RIGHT</source>
        <translation>CẦN TRÁI SANG PHẢI</translation>
    </message>
    <message>
        <source>L STICK UP</source>
        <translation>CẦN TRÁI LÊN</translation>
    </message>
    <message>
        <source>R STICK RIGHT</source>
        <translation>CẦN PHẢI SANG PHẢI</translation>
    </message>
    <message>
        <source>R STICK UP</source>
        <translation>CẦN PHẢI LÊN</translation>
    </message>
    <message>
        <source>SCROLL LEFT</source>
        <translation>CUỘN TRÁI</translation>
    </message>
    <message>
        <source>SCROLL RIGHT</source>
        <translation>CUỘN PHẢI</translation>
    </message>
    <message>
        <source>PROFILE 1</source>
        <translation>HỒ SƠ 1</translation>
    </message>
    <message>
        <source>PROFILE 2</source>
        <translation>HỒ SƠ 2</translation>
    </message>
    <message>
        <source>PROFILE 3</source>
        <translation>HỒ SƠ 3</translation>
    </message>
    <message>
        <source>PROFILE 4</source>
        <translation>HỒ SƠ 4</translation>
    </message>
    <message>
        <source>PROFILE 5</source>
        <translation>HỒ SƠ 5</translation>
    </message>
    <message>
        <source>PROFILE 6</source>
        <translation>HỒ SƠ 6</translation>
    </message>
    <message>
        <source>PROFILE 7</source>
        <translation>HỒ SƠ 7</translation>
    </message>
    <message>
        <source>PROFILE 8</source>
        <translation>HỒ SƠ 8</translation>
    </message>
    <message>
        <source>PROFILE 9</source>
        <translation>HỒ SƠ 9</translation>
    </message>
    <message>
        <source>PROFILE 10</source>
        <translation>HỒ SƠ 10</translation>
    </message>
    <message>
        <source>PROFILE 11</source>
        <translation>HỒ SƠ 11</translation>
    </message>
    <message>
        <source>PROFILE 12</source>
        <translation>HỒ SƠ 12</translation>
    </message>
    <message>
        <source>PROFILE 13</source>
        <translation>HỒ SƠ 13</translation>
    </message>
    <message>
        <source>PROFILE 14</source>
        <translation>HỒ SƠ 14</translation>
    </message>
    <message>
        <source>PROFILE 15</source>
        <translation>HỒ SƠ 15</translation>
    </message>
    <message>
        <source>PROFILE 16</source>
        <translation>HỒ SƠ 16</translation>
    </message>
    <message>
        <source>PROFILE 17</source>
        <translation>HỒ SƠ 17</translation>
    </message>
    <message>
        <source>PROFILE 18</source>
        <translation>HỒ SƠ 18</translation>
    </message>
    <message>
        <source>PROFILE 19</source>
        <translation>HỒ SƠ 19</translation>
    </message>
    <message>
        <source>PROFILE 20</source>
        <translation>HỒ SƠ 20</translation>
    </message>
    <message>
        <source>PROFILE 21</source>
        <translation>HỒ SƠ 21</translation>
    </message>
    <message>
        <source>PROFILE 22</source>
        <translation>HỒ SƠ 22</translation>
    </message>
    <message>
        <source>PROFILE 23</source>
        <translation>HỒ SƠ 23</translation>
    </message>
    <message>
        <source>PROFILE 24</source>
        <translation>HỒ SƠ 24</translation>
    </message>
    <message>
        <source>PROFILE[+]</source>
        <translation>HỒ SƠ[+]</translation>
    </message>
    <message>
        <source>PROFILE[-]</source>
        <translation>HỒ SƠ[-]</translation>
    </message>
    <message>
        <source>PROFILE CYCLE+</source>
        <translation>HỒ SƠ SAU+</translation>
    </message>
    <message>
        <source>PROFILE CYCLE-</source>
        <translation>HỒ SƠ TRƯỚC-</translation>
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
        <translation>PHÍM KHÔNG RÕ</translation>
    </message>
</context>
<context>
    <name>KeyboardAdvWid</name>
    <message>
        <source>ALPHANUMERIC</source>
        <translation>CHỮ VÀ SỐ</translation>
    </message>
    <message>
        <source>SYMBOLS &amp;&amp; PUNCTUATION</source>
        <translation>KÝ HIỆU &amp;&amp; DẤU CÂU</translation>
    </message>
    <message>
        <source>NAVIGATION KEYS</source>
        <translation>PHÍM ĐIỀU HƯỚNG</translation>
    </message>
    <message>
        <source>MODIFIER</source>
        <translation>PHÍM BỔ TRỢ</translation>
    </message>
    <message>
        <source>FUNCTION KEYS</source>
        <translation>PHÍM CHỨC NĂNG</translation>
    </message>
    <message>
        <source>NUMBERPAD KEYS</source>
        <translation>BÀN PHÍM SỐ</translation>
    </message>
</context>
<context>
    <name>MacroAdvUi</name>
    <message>
        <source>USER MACROS</source>
        <translation>MACRO CỦA TÔI</translation>
    </message>
    <message>
        <source>CREATE NEW MACRO</source>
        <translation>TẠO MACRO MỚI</translation>
    </message>
    <message>
        <source>WINDOWS KEYBOARD SHORTCUTS</source>
        <translation>PHÍM TẮT WINDOWS</translation>
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
        <translation>+ TẠO MACRO MỚI</translation>
    </message>
</context>
<context>
    <name>MediaUi</name>
    <message>
        <source>MULTIMEDIA KEYS</source>
        <translation>PHÍM ĐA PHƯƠNG TIỆN</translation>
    </message>
</context>
<context>
    <name>PanelWid</name>
    <message>
        <source>Keyboard</source>
        <translation>Bàn phím</translation>
    </message>
    <message>
        <source>Gaming</source>
        <translation>Chơi game</translation>
    </message>
    <message>
        <source>Creative Application</source>
        <translation>Ứng dụng sáng tạo</translation>
    </message>
    <message>
        <source>Standard WASD</source>
        <translation>WASD chuẩn</translation>
    </message>
    <message>
        <source>Standard ESDF</source>
        <translation>ESDF chuẩn</translation>
    </message>
    <message>
        <source>Numpad Mode</source>
        <translation>Bàn phím số</translation>
    </message>
    <message>
        <source>FPS Mode</source>
        <translation>Chế độ FPS</translation>
    </message>
    <message>
        <source>Driving Mode</source>
        <translation>Chế độ lái xe</translation>
    </message>
    <message>
        <source>Adv. Flight Mode</source>
        <translation>Chế độ bay nâng cao</translation>
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
        <translation>HIỆU CHUẨN VÙNG CHẾT</translation>
    </message>
</context>
<context>
    <name>PressoUi</name>
    <message>
        <source>PRESSURE</source>
        <translation>CẢM BIẾN</translation>
    </message>
    <message>
        <source>SENSING</source>
        <translation>LỰC NHẤN</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>BẬT</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>TẮT</translation>
    </message>
</context>
<context>
    <name>ProfileUi</name>
    <message>
        <source>PROFILE</source>
        <translation>HỒ SƠ</translation>
    </message>
</context>
<context>
    <name>ReassignDlg</name>
    <message>
        <source>KEY ASSIGNMENT</source>
        <translation>GÁN PHÍM</translation>
    </message>
    <message>
        <source>KEY ASSIGNMENT - VANTRIX </source>
        <translation>GÁN PHÍM - VANTRIX </translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>ĐÓNG</translation>
    </message>
    <message>
        <source>SEARCH</source>
        <translation>TÌM KIẾM</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>HỦY</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>ÁP DỤNG</translation>
    </message>
    <message>
        <source>MOUSE BUTTONS</source>
        <translation>NÚT CHUỘT</translation>
    </message>
    <message>
        <source>MEDIA COMMANDS</source>
        <translation>LỆNH ĐA PHƯƠNG TIỆN</translation>
    </message>
    <message>
        <source>PRESSO FUNCTIONS</source>
        <translation>CHỨC NĂNG PRESSO</translation>
    </message>
    <message>
        <source>BACKLIGHT</source>
        <translation>ĐÈN NỀN</translation>
    </message>
    <message>
        <source>PROFILE</source>
        <translation>HỒ SƠ</translation>
    </message>
</context>
<context>
    <name>VantrixMapWid</name>
    <message>
        <source>SIMPLE</source>
        <translation>ĐƠN GIẢN</translation>
    </message>
    <message>
        <source>ADVANCED</source>
        <translation>NÂNG CAO</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>ÁP DỤNG</translation>
    </message>
    <message>
        <source>RESET</source>
        <translation>ĐẶT LẠI</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Đặt lại</translation>
    </message>
    <message>
        <source>Are you sure you want to reset?</source>
        <translation>Bạn có chắc muốn đặt lại không?</translation>
    </message>
</context>
</TS>
