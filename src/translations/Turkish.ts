<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr_TR" sourcelanguage="en_US">
<context>
    <name>ActionAssignUi</name>
    <message>
        <source>BACK</source>
        <translation>GERİ</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>UYGULA</translation>
    </message>
</context>
<context>
    <name>ActionBtn</name>
    <message>
        <source>ACTION</source>
        <translation>EYLEM</translation>
    </message>
</context>
<context>
    <name>ActionWid</name>
    <message>
        <source>ACTION</source>
        <translation>EYLEM</translation>
    </message>
</context>
<context>
    <name>AdvAssignWid</name>
    <message>
        <source>CTRL LEFT</source>
        <translation>SOL CTRL</translation>
    </message>
    <message>
        <source>SHIFT LEFT</source>
        <translation>SOL SHIFT</translation>
    </message>
    <message>
        <source>ALT LEFT</source>
        <translation>SOL ALT</translation>
    </message>
    <message>
        <source>CTRL RIGHT</source>
        <translation>SAĞ CTRL</translation>
    </message>
    <message>
        <source>SHIFT RIGHT</source>
        <translation>SAĞ SHIFT</translation>
    </message>
    <message>
        <source>ALT RIGHT</source>
        <translation>ALT GR</translation>
    </message>
</context>
<context>
    <name>AppPathDlg</name>
    <message>
        <source>APPLICATION</source>
        <translation>UYGULAMA</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>KAPAT</translation>
    </message>
    <message>
        <source>PATH</source>
        <translation>YOL</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Dosya Aç</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>İPTAL</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>UYGULA</translation>
    </message>
</context>
<context>
    <name>ApplicationBtn</name>
    <message>
        <source>Open File</source>
        <translation>Dosya Aç</translation>
    </message>
</context>
<context>
    <name>AssignMenuUi</name>
    <message>
        <source>REASSIGN KEY</source>
        <translation>TUŞU YENİDEN ATA</translation>
    </message>
    <message>
        <source>CONTROLLER MAPPING MODE</source>
        <translation>KUMANDA MODU</translation>
    </message>
    <message>
        <source>DUAL ACTION MAPPING MODE</source>
        <translation>ÇİFT EYLEM MODU</translation>
    </message>
    <message>
        <source>CLEAR KEY ASSIGNMENT</source>
        <translation>TUŞ ATAMASINI SİL</translation>
    </message>
    <message>
        <source>DISABLE KEY</source>
        <translation>TUŞU DEVRE DIŞI BIRAK</translation>
    </message>
</context>
<context>
    <name>AssignWid</name>
    <message>
        <source>warning</source>
        <translation>Uyarı</translation>
    </message>
    <message>
        <source>Macro assign has reached maximum limit</source>
        <translation>Makro atamalarında üst sınıra ulaşıldı</translation>
    </message>
    <message>
        <source>Fail to find the path of the program.</source>
        <translation>Programın yolu bulunamadı.</translation>
    </message>
    <message>
        <source>Please assign it manually:</source>
        <translation>Lütfen elle belirtin:</translation>
    </message>
</context>
<context>
    <name>BackLightUi</name>
    <message>
        <source>BACKLIGHT</source>
        <translation>ARKA IŞIK</translation>
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
        <translation>BULANIKLAŞTIR</translation>
    </message>
    <message>
        <source>BRUSH SIZE</source>
        <translation>FIRÇA BOYUTU</translation>
    </message>
    <message>
        <source>BRUSH HARDNESS</source>
        <translation>FIRÇA SERTLİĞİ</translation>
    </message>
    <message>
        <source>CROP</source>
        <translation>KIRP</translation>
    </message>
    <message>
        <source>CLONE STAMP</source>
        <translation>KLON DAMGASI</translation>
    </message>
    <message>
        <source>DODGE</source>
        <translation>SOLDUR</translation>
    </message>
    <message>
        <source>EYEDROP</source>
        <translation>DAMLALIK</translation>
    </message>
    <message>
        <source>LASSO</source>
        <translation>KEMENT</translation>
    </message>
    <message>
        <source>LAUNCH PS</source>
        <translation>PS’Yİ BAŞLAT</translation>
    </message>
    <message>
        <source>MOVE</source>
        <translation>TAŞI</translation>
    </message>
    <message>
        <source>RECTANGULAR MARQUEE</source>
        <translation>DİKDÖRTGEN SEÇİM</translation>
    </message>
    <message>
        <source>MAGNIFYING</source>
        <translation>YAKINLAŞTIR</translation>
    </message>
    <message>
        <source>PEN</source>
        <translation>KALEM</translation>
    </message>
    <message>
        <source>POINTER</source>
        <translation>İŞARETÇİ</translation>
    </message>
    <message>
        <source>QUICK SELECTION</source>
        <translation>HIZLI SEÇİM</translation>
    </message>
    <message>
        <source>TEXT</source>
        <translation>METİN</translation>
    </message>
    <message>
        <source>BACKWARD</source>
        <translation>GERİYE OYNAT</translation>
    </message>
    <message>
        <source>COMPARISON</source>
        <translation>KARŞILAŞTIRMA</translation>
    </message>
    <message>
        <source>FORWARD</source>
        <translation>İLERİYE OYNAT</translation>
    </message>
    <message>
        <source>GO TO IN</source>
        <translation>GİRİŞE GİT</translation>
    </message>
    <message>
        <source>GO TO OUT</source>
        <translation>ÇIKIŞA GİT</translation>
    </message>
    <message>
        <source>HAND</source>
        <translation>EL</translation>
    </message>
    <message>
        <source>LAUNCH PR</source>
        <translation>PR’Yİ BAŞLAT</translation>
    </message>
    <message>
        <source>MARK IN</source>
        <translation>GİRİŞİ İŞARETLE</translation>
    </message>
    <message>
        <source>MARK OUT</source>
        <translation>ÇIKIŞI İŞARETLE</translation>
    </message>
    <message>
        <source>PLAY-STOP TOGGLE</source>
        <translation>OYNAT/DURDUR</translation>
    </message>
    <message>
        <source>RAZOR</source>
        <translation>JİLET</translation>
    </message>
    <message>
        <source>RIPPLE EDIT</source>
        <translation>DALGALI DÜZENLEME</translation>
    </message>
    <message>
        <source>SLIP</source>
        <translation>KAYDIR</translation>
    </message>
    <message>
        <source>STEP BACK 1 FRAME</source>
        <translation>1 KARE GERİ</translation>
    </message>
    <message>
        <source>STEP FORWARD 1 FRAME</source>
        <translation>1 KARE İLERİ</translation>
    </message>
    <message>
        <source>SELECTION</source>
        <translation>SEÇİM</translation>
    </message>
    <message>
        <source>TRACK SELECT FORWARD</source>
        <translation>İLERİYE DOĞRU İZ SEÇ</translation>
    </message>
    <message>
        <source>ARTBOARD</source>
        <translation>ÇALIŞMA YÜZEYİ</translation>
    </message>
    <message>
        <source>BRUSH OPACITY</source>
        <translation>FIRÇA OPAKLIĞI</translation>
    </message>
    <message>
        <source>DIRECT SELECTION</source>
        <translation>DOĞRUDAN SEÇİM</translation>
    </message>
    <message>
        <source>ELLIPSE</source>
        <translation>ELİPS</translation>
    </message>
    <message>
        <source>LAUNCH AI</source>
        <translation>AI’Yİ BAŞLAT</translation>
    </message>
    <message>
        <source>POLYGON</source>
        <translation>ÇOKGEN</translation>
    </message>
    <message>
        <source>ROTATE</source>
        <translation>DÖNDÜR</translation>
    </message>
    <message>
        <source>RECTANGLE</source>
        <translation>DİKDÖRTGEN</translation>
    </message>
    <message>
        <source>ROUNDED RECTANGLE</source>
        <translation>YUVARLATILMIŞ DİKDÖRTGEN</translation>
    </message>
    <message>
        <source>Play Action 1. Please assign F2 to an Action in Photoshop</source>
        <translation>Eylem 1’i oynatır. Lütfen Photoshop’ta bir eyleme F2 atayın</translation>
    </message>
    <message>
        <source>Play Action 2. Please assign F3 to an Action in Photoshop</source>
        <translation>Eylem 2’yi oynatır. Lütfen Photoshop’ta bir eyleme F3 atayın</translation>
    </message>
    <message>
        <source>Play Action 3. Please assign F4 to an Action in Photoshop</source>
        <translation>Eylem 3’ü oynatır. Lütfen Photoshop’ta bir eyleme F4 atayın</translation>
    </message>
    <message>
        <source>To use Presso(Pressure Sensitive) Blur,
please assign N to Blur Tool in Photoshop(Alt+Shift+Ctrl+K)</source>
        <translation>Presso (basınca duyarlı) bulanıklaştırma için
lütfen Photoshop’ta Bulanıklaştırma aracına N atayın (Alt+Shift+Ctrl+K)</translation>
    </message>
    <message>
        <source>COMPARISON
Please assign F2 to Comparison Tool in Premiere Pro(Ctrl+Alt+K)</source>
        <translation>KARŞILAŞTIRMA
Lütfen Premiere Pro’da karşılaştırma görünümüne F2 atayın (Ctrl+Alt+K)</translation>
    </message>
    <message>
        <source>Play Action 1. Please assign F2 to an Action in Illustrator</source>
        <translation>Eylem 1’i oynatır. Lütfen Illustrator’da bir eyleme F2 atayın</translation>
    </message>
    <message>
        <source>Play Action 2. Please assign F3 to an Action in Illustrator</source>
        <translation>Eylem 2’yi oynatır. Lütfen Illustrator’da bir eyleme F3 atayın</translation>
    </message>
    <message>
        <source>Play Action 3. Please assign F4 to an Action in Illustrator</source>
        <translation>Eylem 3’ü oynatır. Lütfen Illustrator’da bir eyleme F4 atayın</translation>
    </message>
    <message>
        <source>POLYGON
Please assign 2 to Polygon Tool in Illustrator(Alt+Shift+Ctrl+K)</source>
        <translation>ÇOKGEN
Lütfen Illustrator’da Çokgen aracına 2 atayın (Alt+Shift+Ctrl+K)</translation>
    </message>
    <message>
        <source>ROUNDED RECTANGLE
Please assign 1 to Rounded Rectangle Tool in Illustrator(Alt+Shift+Ctrl+K)</source>
        <translation>YUVARLATILMIŞ DİKDÖRTGEN
Lütfen Illustrator’da Yuvarlatılmış Dikdörtgen aracına 1 atayın (Alt+Shift+Ctrl+K)</translation>
    </message>
    <message>
        <source>UNKNOWN</source>
        <translation>BİLİNMİYOR</translation>
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
        <translation>EYLEM 1</translation>
    </message>
    <message>
        <source>ACTION 2</source>
        <translation>EYLEM 2</translation>
    </message>
    <message>
        <source>TYPE</source>
        <translation>TÜR</translation>
    </message>
</context>
<context>
    <name>DualActionDistUi</name>
    <message>
        <source>ACTIVATION DISTANCE</source>
        <translation>TETİKLEME MESAFESİ</translation>
    </message>
    <message>
        <source>TRAVEL</source>
        <translation>HAREKET MESAFESİ</translation>
    </message>
</context>
<context>
    <name>DualActionTipWid</name>
    <message>
        <source>ACTION1</source>
        <translation>EYLEM1</translation>
    </message>
    <message>
        <source>ACTION2</source>
        <translation>EYLEM2</translation>
    </message>
</context>
<context>
    <name>DualActionType</name>
    <message>
        <source>NORMAL
(ACTION1 &gt; ACTION2)</source>
        <translation>NORMAL
(EYLEM1 &gt; EYLEM2)</translation>
    </message>
    <message>
        <source>TOGGLE
(ACTION1 &gt; ACTION2 &gt; ACTION1)</source>
        <translation>GEÇİŞ
(EYLEM1 &gt; EYLEM2 &gt; EYLEM1)</translation>
    </message>
    <message>
        <source>COMBINE
(ACTION1 &gt; ACTION1 + ACTION2)</source>
        <translation>BİRLEŞİK
(EYLEM1 &gt; EYLEM1 + EYLEM2)</translation>
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
        <translation>GİRİŞ TÜRÜ</translation>
    </message>
</context>
<context>
    <name>KeyCodes</name>
    <message>
        <source>KEYBOARD</source>
        <translation>KLAVYE</translation>
    </message>
    <message>
        <source>MOUSE</source>
        <translation>FARE</translation>
    </message>
    <message>
        <source>MEDIA</source>
        <translation>MEDYA</translation>
    </message>
    <message>
        <source>MACRO</source>
        <translation>MAKRO</translation>
    </message>
    <message>
        <source>GAME CONTROLLER</source>
        <translation>OYUN KUMANDASI</translation>
    </message>
    <message>
        <source>APPLICATION</source>
        <translation>UYGULAMA</translation>
    </message>
    <message>
        <source>DUAL ACTION</source>
        <translation>ÇİFT EYLEM</translation>
    </message>
    <message>
        <source>PRESSO FUNCTIONS</source>
        <translation>PRESSO İŞLEVLERİ</translation>
    </message>
    <message>
        <source>BACKLIGHT</source>
        <translation>ARKA IŞIK</translation>
    </message>
    <message>
        <source>PROFILE</source>
        <translation>PROFİL</translation>
    </message>
    <message>
        <source>PRESET MODE</source>
        <translation>ÖN AYARLAR</translation>
    </message>
    <message>
        <source>DISABLED</source>
        <translation>DEVRE DIŞI</translation>
    </message>
    <message>
        <source>UNASSIGNED</source>
        <translation>ATANMAMIŞ</translation>
    </message>
    <message>
        <source>UNKNOWN</source>
        <translation>BİLİNMİYOR</translation>
    </message>
    <message>
        <source>OPEN TASK MANAGER</source>
        <translation>GÖREV YÖNETİCİSİNİ AÇ</translation>
    </message>
    <message>
        <source>SWITCH BETWEEN OPEN APPS</source>
        <translation>AÇIK UYGULAMALAR ARASINDA GEÇ</translation>
    </message>
    <message>
        <source>BROWSER BACKWARD</source>
        <translation>TARAYICIDA GERİ</translation>
    </message>
    <message>
        <source>BROWSER FORWARD</source>
        <translation>TARAYICIDA İLERİ</translation>
    </message>
    <message>
        <source>MOVE UP ONE SCREEN</source>
        <translation>BİR EKRAN YUKARI</translation>
    </message>
    <message>
        <source>MOVE DOWN ONE SCREEN</source>
        <translation>BİR EKRAN AŞAĞI</translation>
    </message>
    <message>
        <source>VIEW OPEN APPS</source>
        <translation>AÇIK UYGULAMALARI GÖSTER</translation>
    </message>
    <message>
        <source>COPY SELECTED ITEMS TO CLIPBOARD</source>
        <translation>SEÇİLENLERİ PANOYA KOPYALA</translation>
    </message>
    <message>
        <source>CUT SELECTED ITEMS</source>
        <translation>SEÇİLENLERİ KES</translation>
    </message>
    <message>
        <source>PASTE CONTENT FROM CLIPBOARD</source>
        <translation>PANODAN YAPIŞTIR</translation>
    </message>
    <message>
        <source>SELECT ALL CONTENT</source>
        <translation>TÜMÜNÜ SEÇ</translation>
    </message>
    <message>
        <source>UNDO AN ACTION</source>
        <translation>İŞLEMİ GERİ AL</translation>
    </message>
    <message>
        <source>REDO AN ACTION</source>
        <translation>İŞLEMİ YİNELE</translation>
    </message>
    <message>
        <source>DELETE THE SELECTED ITEM AND MOVE IT TO THE RECYCLE BIN</source>
        <translation>SEÇİLEN ÖĞEYİ GERİ DÖNÜŞÜM KUTUSUNA TAŞI</translation>
    </message>
    <message>
        <source>OPEN THE START MENU</source>
        <translation>BAŞLAT MENÜSÜNÜ AÇ</translation>
    </message>
    <message>
        <source>SWITCH THE KEYBOARD LAYOUT</source>
        <translation>KLAVYE DÜZENİNİ DEĞİŞTİR</translation>
    </message>
    <message>
        <source>CLOSE ACTIVE WINDOW</source>
        <translation>ETKİN PENCEREYİ KAPAT</translation>
    </message>
    <message>
        <source>DISABLE</source>
        <translation>DEVRE DIŞI</translation>
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
        <translation>SONRAKİ EFEKT+</translation>
    </message>
    <message>
        <source>Power Mode:Disable</source>
        <translation>Güç Modu:Kapalı</translation>
    </message>
    <message>
        <source>Power Mode:Working</source>
        <translation>Güç Modu:Çalışma</translation>
    </message>
    <message>
        <source>Power Mode:Performance</source>
        <translation>Güç Modu:Performans</translation>
    </message>
    <message>
        <source>Power Mode:Gaming</source>
        <translation>Güç Modu:Oyun</translation>
    </message>
    <message>
        <source>LED DARKER-</source>
        <translation>LED KOYU-</translation>
    </message>
    <message>
        <source>LED BRIGHTER+</source>
        <translation>LED PARLAK+</translation>
    </message>
    <message>
        <source>L TRIGGER</source>
        <translation>SOL TETİK</translation>
    </message>
    <message>
        <source>R TRIGGER</source>
        <translation>SAĞ TETİK</translation>
    </message>
    <message>
        <source>E-MAIL</source>
        <translation>E-POSTA</translation>
    </message>
    <message>
        <source>CALCULATOR</source>
        <translation>HESAP MAKİNESİ</translation>
    </message>
    <message>
        <source>PLAY/PAUSE</source>
        <translation>OYNAT/DURAKLAT</translation>
    </message>
    <message>
        <source>STOP</source>
        <translation>DURDUR</translation>
    </message>
    <message>
        <source>PREVIOUS TRACK</source>
        <translation>ÖNCEKİ PARÇA</translation>
    </message>
    <message>
        <source>NEXT TRACK</source>
        <translation>SONRAKİ PARÇA</translation>
    </message>
    <message>
        <source>VOLUME MUTE/UNMUTE</source>
        <translation>SESİ KAPAT/AÇ</translation>
    </message>
    <message>
        <source>VOLUME DOWN</source>
        <translation>SESİ KIS</translation>
    </message>
    <message>
        <source>VOLUME UP</source>
        <translation>SESİ AÇ</translation>
    </message>
    <message>
        <source>WEB BROWSER</source>
        <translation>WEB TARAYICISI</translation>
    </message>
    <message>
        <source>CALIBRATE</source>
        <translation>KALİBRE ET</translation>
    </message>
    <message>
        <source>EFFECT CYCLE-</source>
        <translation>ÖNCEKİ EFEKT-</translation>
    </message>
    <message>
        <source>SPEED DOWN LED EFFECT-</source>
        <translation>LED EFEKTİNİ YAVAŞLAT-</translation>
    </message>
    <message>
        <source>SPEED UP LED EFFECT+</source>
        <translation>LED EFEKTİNİ HIZLANDIR+</translation>
    </message>
    <message>
        <source>D PAD UP RIGHT</source>
        <translation>YÖN TUŞU SAĞ ÜST</translation>
    </message>
    <message>
        <source>D PAD DOWN RIGHT</source>
        <translation>YÖN TUŞU SAĞ ALT</translation>
    </message>
    <message>
        <source>D PAD DOWN LEFT</source>
        <translation>YÖN TUŞU SOL ALT</translation>
    </message>
    <message>
        <source>D PAD UP LEFT</source>
        <translation>YÖN TUŞU SOL ÜST</translation>
    </message>
    <message>
        <source>D PAD UP</source>
        <translation>YÖN TUŞU YUKARI</translation>
    </message>
    <message>
        <source>D PAD DOWN</source>
        <translation>YÖN TUŞU AŞAĞI</translation>
    </message>
    <message>
        <source>D PAD LEFT</source>
        <translation>YÖN TUŞU SOL</translation>
    </message>
    <message>
        <source>D PAD RIGHT</source>
        <translation>YÖN TUŞU SAĞ</translation>
    </message>
    <message>
        <source>A BUTTON</source>
        <translation>A DÜĞMESİ</translation>
    </message>
    <message>
        <source>B BUTTON</source>
        <translation>B DÜĞMESİ</translation>
    </message>
    <message>
        <source>X BUTTON</source>
        <translation>X DÜĞMESİ</translation>
    </message>
    <message>
        <source>Y BUTTON</source>
        <translation>Y DÜĞMESİ</translation>
    </message>
    <message>
        <source>L BUMPER</source>
        <translation>SOL OMUZ DÜĞMESİ</translation>
    </message>
    <message>
        <source>R BUMPER</source>
        <translation>SAĞ OMUZ DÜĞMESİ</translation>
    </message>
    <message>
        <source>GUIDE BUTTON</source>
        <translation>KILAVUZ DÜĞMESİ</translation>
    </message>
    <message>
        <source>START BUTTON</source>
        <translation>BAŞLAT DÜĞMESİ</translation>
    </message>
    <message>
        <source>HOME BUTTON</source>
        <translation>ANA EKRAN DÜĞMESİ</translation>
    </message>
    <message>
        <source>L STICK PRESS</source>
        <translation>SOL ÇUBUĞA BAS</translation>
    </message>
    <message>
        <source>R STICK PRESS</source>
        <translation>SAĞ ÇUBUĞA BAS</translation>
    </message>
    <message>
        <source>L STICK LEFT</source>
        <translation>SOL ÇUBUK SOLA</translation>
    </message>
    <message>
        <source>L STICK DOWN</source>
        <translation>SOL ÇUBUK AŞAĞI</translation>
    </message>
    <message>
        <source>R STICK LEFT</source>
        <translation>SAĞ ÇUBUK SOLA</translation>
    </message>
    <message>
        <source>R STICK DOWN</source>
        <translation>SAĞ ÇUBUK AŞAĞI</translation>
    </message>
    <message>
        <source>CURSOR UP</source>
        <translation>İMLEÇ YUKARI</translation>
    </message>
    <message>
        <source>CURSOR RIGHT</source>
        <translation>İMLEÇ SAĞA</translation>
    </message>
    <message>
        <source>CURSOR DOWN</source>
        <translation>İMLEÇ AŞAĞI</translation>
    </message>
    <message>
        <source>CURSOR LEFT</source>
        <translation>İMLEÇ SOLA</translation>
    </message>
    <message>
        <source>SCROLL UP</source>
        <translation>YUKARI KAYDIR</translation>
    </message>
    <message>
        <source>SCROLL DOWN</source>
        <translation>AŞAĞI KAYDIR</translation>
    </message>
    <message>
        <source>LEFT CLICK</source>
        <translation>SOL TIK</translation>
    </message>
    <message>
        <source>RIGHT CLICK</source>
        <translation>SAĞ TIK</translation>
    </message>
    <message>
        <source>WHEEL CLICK</source>
        <translation>TEKERLEK TIKI</translation>
    </message>
    <message>
        <source>BACKWARD</source>
        <translation>GERİ</translation>
    </message>
    <message>
        <source>FORWARD</source>
        <translation>İLERİ</translation>
    </message>
    <message>
        <source>L STICK RIGHT</source>
        <translation>SOL ÇUBUK SAĞA</translation>
    </message>
    <message>
        <source>L STICK UP</source>
        <translation>SOL ÇUBUK YUKARI</translation>
    </message>
    <message>
        <source>R STICK RIGHT</source>
        <translation>SAĞ ÇUBUK SAĞA</translation>
    </message>
    <message>
        <source>R STICK UP</source>
        <translation>SAĞ ÇUBUK YUKARI</translation>
    </message>
    <message>
        <source>SCROLL LEFT</source>
        <translation>SOLA KAYDIR</translation>
    </message>
    <message>
        <source>SCROLL RIGHT</source>
        <translation>SAĞA KAYDIR</translation>
    </message>
    <message>
        <source>PROFILE 1</source>
        <translation>PROFİL 1</translation>
    </message>
    <message>
        <source>PROFILE 2</source>
        <translation>PROFİL 2</translation>
    </message>
    <message>
        <source>PROFILE 3</source>
        <translation>PROFİL 3</translation>
    </message>
    <message>
        <source>PROFILE 4</source>
        <translation>PROFİL 4</translation>
    </message>
    <message>
        <source>PROFILE 5</source>
        <translation>PROFİL 5</translation>
    </message>
    <message>
        <source>PROFILE 6</source>
        <translation>PROFİL 6</translation>
    </message>
    <message>
        <source>PROFILE 7</source>
        <translation>PROFİL 7</translation>
    </message>
    <message>
        <source>PROFILE 8</source>
        <translation>PROFİL 8</translation>
    </message>
    <message>
        <source>PROFILE 9</source>
        <translation>PROFİL 9</translation>
    </message>
    <message>
        <source>PROFILE 10</source>
        <translation>PROFİL 10</translation>
    </message>
    <message>
        <source>PROFILE 11</source>
        <translation>PROFİL 11</translation>
    </message>
    <message>
        <source>PROFILE 12</source>
        <translation>PROFİL 12</translation>
    </message>
    <message>
        <source>PROFILE 13</source>
        <translation>PROFİL 13</translation>
    </message>
    <message>
        <source>PROFILE 14</source>
        <translation>PROFİL 14</translation>
    </message>
    <message>
        <source>PROFILE 15</source>
        <translation>PROFİL 15</translation>
    </message>
    <message>
        <source>PROFILE 16</source>
        <translation>PROFİL 16</translation>
    </message>
    <message>
        <source>PROFILE 17</source>
        <translation>PROFİL 17</translation>
    </message>
    <message>
        <source>PROFILE 18</source>
        <translation>PROFİL 18</translation>
    </message>
    <message>
        <source>PROFILE 19</source>
        <translation>PROFİL 19</translation>
    </message>
    <message>
        <source>PROFILE 20</source>
        <translation>PROFİL 20</translation>
    </message>
    <message>
        <source>PROFILE 21</source>
        <translation>PROFİL 21</translation>
    </message>
    <message>
        <source>PROFILE 22</source>
        <translation>PROFİL 22</translation>
    </message>
    <message>
        <source>PROFILE 23</source>
        <translation>PROFİL 23</translation>
    </message>
    <message>
        <source>PROFILE 24</source>
        <translation>PROFİL 24</translation>
    </message>
    <message>
        <source>PROFILE[+]</source>
        <translation>PROFİL[+]</translation>
    </message>
    <message>
        <source>PROFILE[-]</source>
        <translation>PROFİL[-]</translation>
    </message>
    <message>
        <source>PROFILE CYCLE+</source>
        <translation>SONRAKİ PROFİL+</translation>
    </message>
    <message>
        <source>PROFILE CYCLE-</source>
        <translation>ÖNCEKİ PROFİL-</translation>
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
        <translation>BİLİNMEYEN TUŞ</translation>
    </message>
</context>
<context>
    <name>KeyboardAdvWid</name>
    <message>
        <source>ALPHANUMERIC</source>
        <translation>ALFASAYISAL</translation>
    </message>
    <message>
        <source>SYMBOLS &amp;&amp; PUNCTUATION</source>
        <translation>SİMGELER &amp;&amp; NOKTALAMA</translation>
    </message>
    <message>
        <source>NAVIGATION KEYS</source>
        <translation>GEZİNME TUŞLARI</translation>
    </message>
    <message>
        <source>MODIFIER</source>
        <translation>DEĞİŞTİRİCİLER</translation>
    </message>
    <message>
        <source>FUNCTION KEYS</source>
        <translation>İŞLEV TUŞLARI</translation>
    </message>
    <message>
        <source>NUMBERPAD KEYS</source>
        <translation>SAYISAL TUŞLAR</translation>
    </message>
</context>
<context>
    <name>MacroAdvUi</name>
    <message>
        <source>USER MACROS</source>
        <translation>KULLANICI MAKROLARI</translation>
    </message>
    <message>
        <source>CREATE NEW MACRO</source>
        <translation>YENİ MAKRO OLUŞTUR</translation>
    </message>
    <message>
        <source>WINDOWS KEYBOARD SHORTCUTS</source>
        <translation>WINDOWS KLAVYE KISAYOLLARI</translation>
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
        <translation>+ YENİ MAKRO OLUŞTUR</translation>
    </message>
</context>
<context>
    <name>MediaUi</name>
    <message>
        <source>MULTIMEDIA KEYS</source>
        <translation>MULTİMEDYA TUŞLARI</translation>
    </message>
</context>
<context>
    <name>PanelWid</name>
    <message>
        <source>Keyboard</source>
        <translation>Klavye</translation>
    </message>
    <message>
        <source>Gaming</source>
        <translation>Oyun</translation>
    </message>
    <message>
        <source>Creative Application</source>
        <translation>Yaratıcı Uygulamalar</translation>
    </message>
    <message>
        <source>Standard WASD</source>
        <translation>Standart WASD</translation>
    </message>
    <message>
        <source>Standard ESDF</source>
        <translation>Standart ESDF</translation>
    </message>
    <message>
        <source>Numpad Mode</source>
        <translation>Sayısal Tuşlar</translation>
    </message>
    <message>
        <source>FPS Mode</source>
        <translation>FPS Modu</translation>
    </message>
    <message>
        <source>Driving Mode</source>
        <translation>Sürüş Modu</translation>
    </message>
    <message>
        <source>Adv. Flight Mode</source>
        <translation>Gelişmiş Uçuş</translation>
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
        <translation>ÖLÜ BÖLGE KALİBRASYONU</translation>
    </message>
</context>
<context>
    <name>PressoUi</name>
    <message>
        <source>PRESSURE</source>
        <translation>BASINÇ</translation>
    </message>
    <message>
        <source>SENSING</source>
        <translation>ALGILAMA</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>AÇIK</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>KAPALI</translation>
    </message>
</context>
<context>
    <name>ProfileUi</name>
    <message>
        <source>PROFILE</source>
        <translation>PROFİL</translation>
    </message>
</context>
<context>
    <name>ReassignDlg</name>
    <message>
        <source>KEY ASSIGNMENT</source>
        <translation>TUŞ ATAMASI</translation>
    </message>
    <message>
        <source>KEY ASSIGNMENT - VANTRIX </source>
        <translation>TUŞ ATAMASI - VANTRIX </translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>KAPAT</translation>
    </message>
    <message>
        <source>SEARCH</source>
        <translation>ARA</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>İPTAL</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>UYGULA</translation>
    </message>
    <message>
        <source>MOUSE BUTTONS</source>
        <translation>FARE DÜĞMELERİ</translation>
    </message>
    <message>
        <source>MEDIA COMMANDS</source>
        <translation>MEDYA KOMUTLARI</translation>
    </message>
    <message>
        <source>PRESSO FUNCTIONS</source>
        <translation>PRESSO İŞLEVLERİ</translation>
    </message>
    <message>
        <source>BACKLIGHT</source>
        <translation>ARKA IŞIK</translation>
    </message>
    <message>
        <source>PROFILE</source>
        <translation>PROFİL</translation>
    </message>
</context>
<context>
    <name>VantrixMapWid</name>
    <message>
        <source>SIMPLE</source>
        <translation>BASİT</translation>
    </message>
    <message>
        <source>ADVANCED</source>
        <translation>GELİŞMİŞ</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>UYGULA</translation>
    </message>
    <message>
        <source>RESET</source>
        <translation>SIFIRLA</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Sıfırla</translation>
    </message>
    <message>
        <source>Are you sure you want to reset?</source>
        <translation>Sıfırlamak istediğinizden emin misiniz?</translation>
    </message>
</context>
</TS>
