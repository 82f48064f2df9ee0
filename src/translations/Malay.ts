<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ms_MY" sourcelanguage="en_US">
<context>
    <name>ActionAssignUi</name>
    <message>
        <source>BACK</source>
        <translation>KEMBALI</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>GUNAKAN</translation>
    </message>
</context>
<context>
    <name>ActionBtn</name>
    <message>
        <source>ACTION</source>
        <translation>TINDAKAN</translation>
    </message>
</context>
<context>
    <name>ActionWid</name>
    <message>
        <source>ACTION</source>
        <translation>TINDAKAN</translation>
    </message>
</context>
<context>
    <name>AdvAssignWid</name>
    <message>
        <source>CTRL LEFT</source>
        <translation>CTRL KIRI</translation>
    </message>
    <message>
        <source>SHIFT LEFT</source>
        <translation>SHIFT KIRI</translation>
    </message>
    <message>
        <source>ALT LEFT</source>
        <translation>ALT KIRI</translation>
    </message>
    <message>
        <source>CTRL RIGHT</source>
        <translation>CTRL KANAN</translation>
    </message>
    <message>
        <source>SHIFT RIGHT</source>
        <translation>SHIFT KANAN</translation>
    </message>
    <message>
        <source>ALT RIGHT</source>
        <translation>ALT KANAN</translation>
    </message>
</context>
<context>
    <name>AppPathDlg</name>
    <message>
        <source>APPLICATION</source>
        <translation>APLIKASI</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>TUTUP</translation>
    </message>
    <message>
        <source>PATH</source>
        <translation>LALUAN</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Buka Fail</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>BATAL</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>GUNAKAN</translation>
    </message>
</context>
<context>
    <name>ApplicationBtn</name>
    <message>
        <source>Open File</source>
        <translation>Buka Fail</translation>
    </message>
</context>
<context>
    <name>AssignMenuUi</name>
    <message>
        <source>REASSIGN KEY</source>
        <translation>TETAPKAN SEMULA KEKUNCI</translation>
    </message>
    <message>
        <source>CONTROLLER MAPPING MODE</source>
        <translation>MOD PENGAWAL</translation>
    </message>
    <message>
        <source>DUAL ACTION MAPPING MODE</source>
        <translation>MOD DWITINDAKAN</translation>
    </message>
    <message>
        <source>CLEAR KEY ASSIGNMENT</source>
        <translation>KOSONGKAN KEKUNCI</translation>
    </message>
    <message>
        <source>DISABLE KEY</source>
        <translation>LUMPUHKAN KEKUNCI</translation>
    </message>
</context>
<context>
    <name>AssignWid</name>
    <message>
        <source>warning</source>
        <translation>Amaran</translation>
    </message>
    <message>
        <source>Macro assign has reached maximum limit</source>
        <translation>Had maksimum makro yang ditetapkan telah dicapai</translation>
    </message>
    <message>
        <source>Fail to find the path of the program.</source>
        <translation>Laluan program tidak ditemui.</translation>
    </message>
    <message>
        <source>Please assign it manually:</source>
        <translation>Sila tetapkan sendiri:</translation>
    </message>
</context>
<context>
    <name>BackLightUi</name>
    <message>
        <source>BACKLIGHT</source>
        <translation>LAMPU LATAR</translation>
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
        <translation>KABUR</translation>
    </message>
    <message>
        <source>BRUSH SIZE</source>
        <translation>SAIZ BERUS</translation>
    </message>
    <message>
        <source>BRUSH HARDNESS</source>
        <translation>KEKERASAN BERUS</translation>
    </message>
    <message>
        <source>CROP</source>
        <translation>POTONG</translation>
    </message>
    <message>
        <source>CLONE STAMP</source>
        <translation>COP KLON</translation>
    </message>
    <message>
        <source>DODGE</source>
        <translation>CERAHKAN</translation>
    </message>
    <message>
        <source>EYEDROP</source>
        <translation>PENITIS</translation>
    </message>
    <message>
        <source>LASSO</source>
        <translation>LASO</translation>
    </message>
    <message>
        <source>LAUNCH PS</source>
        <translation>LANCARKAN PS</translation>
    </message>
    <message>
        <source>MOVE</source>
        <translation>ALIH</translation>
    </message>
    <message>
        <source>RECTANGULAR MARQUEE</source>
        <translation>PILIHAN SEGI EMPAT</translation>
    </message>
    <message>
        <source>MAGNIFYING</source>
        <translation>ZUM</translation>
    </message>
    <message>
        <source>PEN</source>
        <translation>PEN</translation>
    </message>
    <message>
        <source>POINTER</source>
        <translation>PENUDING</translation>
    </message>
    <message>
        <source>QUICK SELECTION</source>
        <translation>PILIHAN PANTAS</translation>
    </message>
    <message>
        <source>TEXT</source>
        <translation>TEKS</translation>
    </message>
    <message>
        <source>BACKWARD</source>
        <translation>MAIN UNDUR</translation>
    </message>
    <message>
        <source>COMPARISON</source>
        <translation>PERBANDINGAN</translation>
    </message>
    <message>
        <source>FORWARD</source>
        <translation>MAIN MAJU</translation>
    </message>
    <message>
        <source>GO TO IN</source>
        <translation>PERGI KE MASUK</translation>
    </message>
    <message>
        <source>GO TO OUT</source>
        <translation>PERGI KE KELUAR</translation>
    </message>
    <message>
        <source>HAND</source>
        <translation>TANGAN</translation>
    </message>
    <message>
        <source>LAUNCH PR</source>
        <translation>LANCARKAN PR</translation>
    </message>
    <message>
        <source>MARK IN</source>
        <translation>TANDA MASUK</translation>
    </message>
    <message>
        <source>MARK OUT</source>
        <translation>TANDA KELUAR</translation>
    </message>
    <message>
        <source>PLAY-STOP TOGGLE</source>
        <translation>MAIN/HENTI</translation>
    </message>
    <message>
        <source>RAZOR</source>
        <translation>PISAU CUKUR</translation>
    </message>
    <message>
        <source>RIPPLE EDIT</source>
        <translation>SUNTINGAN RIAK</translation>
    </message>
    <message>
        <source>SLIP</source>
        <translation>GELINCIR</translation>
    </message>
    <message>
        <source>STEP BACK 1 FRAME</source>
        <translation>UNDUR 1 BINGKAI</translation>
    </message>
    <message>
        <source>STEP FORWARD 1 FRAME</source>
        <translation>MAJU 1 BINGKAI</translation>
    </message>
    <message>
        <source>SELECTION</source>
        <translation>PILIHAN</translation>
    </message>
    <message>
        <source>TRACK SELECT FORWARD</source>
        <translation>PILIH TREK KE HADAPAN</translation>
    </message>
    <message>
        <source>ARTBOARD</source>
        <translation>PAPAN LUKISAN</translation>
    </message>
    <message>
        <source>BRUSH OPACITY</source>
        <translation>KELEGAPAN BERUS</translation>
    </message>
    <message>
        <source>DIRECT SELECTION</source>
        <translation>PILIHAN TERUS</translation>
    </message>
    <message>
        <source>ELLIPSE</source>
        <translation>ELIPS</translation>
    </message>
    <message>
        <source>LAUNCH AI</source>
        <translation>LANCARKAN AI</translation>
    </message>
    <message>
        <source>POLYGON</source>
        <translation>POLIGON</translation>
    </message>
    <message>
        <source>ROTATE</source>
        <translation>PUTAR</translation>
    </message>
    <message>
        <source>RECTANGLE</source>
        <translation>SEGI EMPAT TEPAT</translation>
    </message>
    <message>
        <source>ROUNDED RECTANGLE</source>
        <translation>SEGI EMPAT BUCU BULAT</translation>
    </message>
    <message>
        <source>Play Action 1. Please assign F2 to an Action in Photoshop</source>
        <translation>Main Tindakan 1. Sila tetapkan F2 kepada satu tindakan dalam Photoshop</translation>
    </message>
    <message>
        <source>Play Action 2. Please assign F3 to an Action in Photoshop</source>
        <translation>Main Tindakan 2. Sila tetapkan F3 kepada satu tindakan dalam Photoshop</translation>
    </message>
    <message>
        <source>Play Action 3. Please assign F4 to an Action in Photoshop</source>
        <translation>Main Tindakan 3. Sila tetapkan F4 kepada satu tindakan dalam Photoshop</translation>
    </message>
    <message>
        <source>To use Presso(Pressure Sensitive) Blur,
please assign N to Blur Tool in Photoshop(Alt+Shift+Ctrl+K)</source>
        <translation>Untuk menggunakan kabur Presso (peka tekanan),
sila tetapkan N kepada alat Kabur dalam Photoshop (Alt+Shift+Ctrl+K)</translation>
    </message>
    <message>
        <source>COMPARISON
Please assign F2 to Comparison Tool in Premiere Pro(Ctrl+Alt+K)</source>
        <translation>PERBANDINGAN
Sila tetapkan F2 kepada paparan perbandingan dalam Premiere Pro (Ctrl+Alt+K)</translation>
    </message>
    <message>
        <source>Play Action 1. Please assign F2 to an Action in Illustrator</source>
        <translation>Main Tindakan 1. Sila tetapkan F2 kepada satu tindakan dalam Illustrator</translation>
    </message>
    <message>
        <source>Play Action 2. Please assign F3 to an Action in Illustrator</source>
        <translation>Main Tindakan 2. Sila tetapkan F3 kepada satu tindakan dalam Illustrator</translation>
    </message>
    <message>
        <source>Play Action 3. Please assign F4 to an Action in Illustrator</source>
        <translation>Main Tindakan 3. Sila tetapkan F4 kepada satu tindakan dalam Illustrator</translation>
    </message>
    <message>
        <source>POLYGON
Please assign 2 to Polygon Tool in Illustrator(Alt+Shift+Ctrl+K)</source>
        <translation>POLIGON
Sila tetapkan 2 kepada alat Poligon dalam Illustrator (Alt+Shift+Ctrl+K)</translation>
    </message>
    <message>
        <source>ROUNDED RECTANGLE
Please assign 1 to Rounded Rectangle Tool in Illustrator(Alt+Shift+Ctrl+K)</source>
        <translation>SEGI EMPAT BUCU BULAT
Sila tetapkan 1 kepada alat Segi Empat Bucu Bulat dalam Illustrator (Alt+Shift+Ctrl+K)</translation>
    </message>
    <message>
        <source>UNKNOWN</source>
        <translation>TIDAK DIKETAHUI</translation>
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
        <translation>TINDAKAN 1</translation>
    </message>
    <message>
        <source>ACTION 2</source>
        <translation>TINDAKAN 2</translation>
    </message>
    <message>
        <source>TYPE</source>
        <translation>JENIS</translation>
    </message>
</context>
<context>
    <name>DualActionDistUi</name>
    <message>
        <source>ACTIVATION DISTANCE</source>
        <translation>JARAK PENGAKTIFAN</translation>
    </message>
    <message>
        <source>TRAVEL</source>
        <translation>JARAK TEKAN</translation>
    </message>
</context>
<context>
    <name>DualActionTipWid</name>
    <message>
        <source>ACTION1</source>
        <translation>TINDAKAN1</translation>
    </message>
    <message>
        <source>ACTION2</source>
        <translation>TINDAKAN2</translation>
    </message>
</context>
<context>
    <name>DualActionType</name>
    <message>
        <source>NORMAL
(ACTION1 &gt; ACTION2)</source>
        <translation>BIASA
(TINDAKAN1 &gt; TINDAKAN2)</translation>
    </message>
    <message>
        <source>TOGGLE
(ACTION1 &gt; ACTION2 &gt; ACTION1)</source>
        <translation>TOGOL
(TINDAKAN1 &gt; TINDAKAN2 &gt; TINDAKAN1)</translation>
    </message>
    <message>
        <source>COMBINE
(ACTION1 &gt; ACTION1 + ACTION2)</source>
        <translation>GABUNGAN
(TINDAKAN1 &gt; TINDAKAN1 + TINDAKAN2)</translation>
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
        <translation>JENIS INPUT</translation>
    </message>
</context>
<context>
    <name>KeyCodes</name>
    <message>
        <source>KEYBOARD</source>
        <translation>PAPAN KEKUNCI</translation>
    </message>
    <message>
        <source>MOUSE</source>
        <translation>TETIKUS</translation>
    </message>
    <message>
        <source>MEDIA</source>
        <translation>MULTIMEDIA</translation>
    </message>
    <message>
        <source>MACRO</source>
        <translation>MAKRO</translation>
    </message>
    <message>
        <source>GAME CONTROLLER</source>
        <translation>PENGAWAL PERMAINAN</translation>
    </message>
    <message>
        <source>APPLICATION</source>
        <translation>APLIKASI</translation>
    </message>
    <message>
        <source>DUAL ACTION</source>
        <translation>DWITINDAKAN</translation>
    </message>
    <message>
        <source>PRESSO FUNCTIONS</source>
        <translation>FUNGSI PRESSO</translation>
    </message>
    <message>
        <source>BACKLIGHT</source>
        <translation>LAMPU LATAR</translation>
    </message>
    <message>
        <source>PROFILE</source>
        <translation>PROFIL</translation>
    </message>
    <message>
        <source>PRESET MODE</source>
        <translation>MOD PRATETAP</translation>
    </message>
    <message>
        <source>DISABLED</source>
        <translation>DILUMPUHKAN</translation>
    </message>
    <message>
        <source>UNASSIGNED</source>
        <translation>TIDAK DITETAPKAN</translation>
    </message>
    <message>
        <source>UNKNOWN</source>
        <translation>TIDAK DIKETAHUI</translation>
    </message>
    <message>
        <source>OPEN TASK MANAGER</source>
        <translation>BUKA PENGURUS TUGAS</translation>
    </message>
    <message>
        <source>SWITCH BETWEEN OPEN APPS</source>
        <translation>TUKAR ANTARA APLIKASI TERBUKA</translation>
    </message>
    <message>
        <source>BROWSER BACKWARD</source>
        <translation>PELAYAR KE BELAKANG</translation>
    </message>
    <message>
        <source>BROWSER FORWARD</source>
        <translation>PELAYAR KE HADAPAN</translation>
    </message>
    <message>
        <source>MOVE UP ONE SCREEN</source>
        <translation>NAIK SATU SKRIN</translation>
    </message>
    <message>
        <source>MOVE DOWN ONE SCREEN</source>
        <translation>TURUN SATU SKRIN</translation>
    </message>
    <message>
        <source>VIEW OPEN APPS</source>
        <translation>LIHAT APLIKASI TERBUKA</translation>
    </message>
    <message>
        <source>COPY SELECTED ITEMS TO CLIPBOARD</source>
        <translation>SALIN ITEM DIPILIH KE PAPAN KLIP</translation>
    </message>
    <message>
        <source>CUT SELECTED ITEMS</source>
        <translation>POTONG ITEM DIPILIH</translation>
    </message>
    <message>
        <source>PASTE CONTENT FROM CLIPBOARD</source>
        <translation>TAMPAL DARI PAPAN KLIP</translation>
    </message>
    <message>
        <source>SELECT ALL CONTENT</source>
        <translation>PILIH SEMUA</translation>
    </message>
    <message>
        <source>UNDO AN ACTION</source>
        <translation>BUAT ASAL TINDAKAN</translation>
    </message>
    <message>
        <source>REDO AN ACTION</source>
        <translation>BUAT SEMULA TINDAKAN</translation>
    </message>
    <message>
        <source>DELETE THE SELECTED ITEM AND MOVE IT TO THE RECYCLE BIN</source>
        <translation>ALIH ITEM DIPILIH KE TONG KITAR SEMULA</translation>
    </message>
    <message>
        <source>OPEN THE START MENU</source>
        <translation>BUKA MENU MULA</translation>
    </message>
    <message>
        <source>SWITCH THE KEYBOARD LAYOUT</source>
        <translation>TUKAR SUSUN ATUR PAPAN KEKUNCI</translation>
    </message>
    <message>
        <source>CLOSE ACTIVE WINDOW</source>
        <translation>TUTUP TETINGKAP AKTIF</translation>
    </message>
    <message>
        <source>DISABLE</source>
        <translation>LUMPUH</translation>
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
        <translation>KESAN BERIKUT+</translation>
    </message>
    <message>
        <source>Power Mode:Disable</source>
        <translation>Mod Kuasa:Mati</translation>
    </message>
    <message>
        <source>Power Mode:Working</source>
        <translation>Mod Kuasa:Kerja</translation>
    </message>
    <message>
        <source>Power Mode:Performance</source>
        <translation>Mod Kuasa:Prestasi</translation>
    </message>
    <message>
        <source>Power Mode:Gaming</source>
        <translation>Mod Kuasa:Permainan</translation>
    </message>
    <message>
        <source>LED DARKER-</source>
        <translation>LED MALAP-</translation>
    </message>
    <message>
        <source>LED BRIGHTER+</source>
        <translation>LED CERAH+</translation>
    </message>
    <message>
        <source>L TRIGGER</source>
        <translation>PICU KIRI</translation>
    </message>
    <message>
        <source>R TRIGGER</source>
        <translation>PICU KANAN</translation>
    </message>
    <message>
        <source>E-MAIL</source>
        <translation>E-MEL</translation>
    </message>
    <message>
        <source>CALCULATOR</source>
        <translation>KALKULATOR</translation>
    </message>
    <message>
        <source>PLAY/PAUSE</source>
        <translation>MAIN/JEDA</translation>
    </message>
    <message>
        <source>STOP</source>
        <translation>HENTI</translation>
    </message>
    <message>
        <source>PREVIOUS TRACK</source>
        <translation>TREK SEBELUMNYA</translation>
    </message>
    <message>
        <source>NEXT TRACK</source>
        <translation>TREK BERIKUTNYA</translation>
    </message>
    <message>
        <source>VOLUME MUTE/UNMUTE</source>
        <translation>BISU/NYAHBISU</translation>
    </message>
    <message>
        <source>VOLUME DOWN</source>
        <translation>KURANGKAN KELANTANGAN</translation>
    </message>
    <message>
        <source>VOLUME UP</source>
        <translation>TINGKATKAN KELANTANGAN</translation>
    </message>
    <message>
        <source>WEB BROWSER</source>
        <translation>PELAYAR WEB</translation>
    </message>
    <message>
        <source>CALIBRATE</source>
        <translation>TENTUKUR</translation>
    </message>
    <message>
        <source>EFFECT CYCLE-</source>
        <translation>KESAN SEBELUM-</translation>
    </message>
    <message>
        <source>SPEED DOWN LED EFFECT-</source>
        <translation>PERLAHANKAN KESAN LED-</translation>
    </message>
    <message>
        <source>SPEED UP LED EFFECT+</source>
        <translation>PANTASKAN KESAN LED+</translation>
    </message>
    <message>
        <source>D PAD UP RIGHT</source>
        <translation>PAD ARAH KANAN ATAS</translation>
    </message>
    <message>
        <source>D PAD DOWN RIGHT</source>
        <translation>PAD ARAH KANAN BAWAH</translation>
    </message>
    <message>
        <source>D PAD DOWN LEFT</source>
        <translation>PAD ARAH KIRI BAWAH</translation>
    </message>
    <message>
        <source>D PAD UP LEFT</source>
        <translation>PAD ARAH KIRI ATAS</translation>
    </message>
    <message>
        <source>D PAD UP</source>
        <translation>PAD ARAH ATAS</translation>
    </message>
    <message>
        <source>D PAD DOWN</source>
        <translation>PAD ARAH BAWAH</translation>
    </message>
    <message>
        <source>D PAD LEFT</source>
        <translation>PAD ARAH KIRI</translation>
    </message>
    <message>
        <source>D PAD RIGHT</source>
        <translation>PAD ARAH KANAN</translation>
    </message>
    <message>
        <source>A BUTTON</source>
        <translation>BUTANG A</translation>
    </message>
    <message>
        <source>B BUTTON</source>
        <translation>BUTANG B</translation>
    </message>
    <message>
        <source>X BUTTON</source>
        <translation>BUTANG X</translation>
    </message>
    <message>
        <source>Y BUTTON</source>
        <translation>BUTANG Y</translation>
    </message>
    <message>
        <source>L BUMPER</source>
        <translation>BAMPER KIRI</translation>
    </message>
    <message>
        <source>R BUMPER</source>
        <translation>BAMPER KANAN</translation>
    </message>
    <message>
        <source>GUIDE BUTTON</source>
        <translation>BUTANG PANDUAN</translation>
    </message>
    <message>
        <source>START BUTTON</source>
        <translation>BUTANG MULA</translation>
    </message>
    <message>
        <source>HOME BUTTON</source>
        <translation>BUTANG UTAMA</translation>
    </message>
    <message>
        <source>L STICK PRESS</source>
        <translation>TEKAN KAYU KIRI</translation>
    </message>
    <message>
        <source>R STICK PRESS</source>
        <translation>TEKAN KAYU KANAN</translation>
    </message>
    <message>
        <source>L STICK LEFT</source>
        <translation>KAYU KIRI KE KIRI</translation>
    </message>
    <message>
        <source>L STICK DOWN</source>
        <translation>KAYU KIRI KE BAWAH</translation>
    </message>
    <message>
        <source>R STICK LEFT</source>
        <translation>KAYU KANAN KE KIRI</translation>
    </message>
    <message>
        <source>R STICK DOWN</source>
        <translation>KAYU KANAN KE BAWAH</translation>
    </message>
    <message>
        <source>CURSOR UP</source>
        <translation>KURSOR ATAS</translation>
    </message>
    <message>
        <source>CURSOR RIGHT</source>
        <translation>KURSOR KANAN</translation>
    </message>
    <message>
        <source>CURSOR DOWN</source>
        <translation>KURSOR BAWAH</translation>
    </message>
    <message>
        <source>CURSOR LEFT</source>
        <translation>KURSOR KIRI</translation>
    </message>
    <message>
        <source>SCROLL UP</source>
        <translation>TATAL KE ATAS</translation>
    </message>
    <message>
        <source>SCROLL DOWN</source>
        <translation>TATAL KE BAWAH</translation>
    </message>
    <message>
        <source>LEFT CLICK</source>
        <translation>KLIK KIRI</translation>
    </message>
    <message>
        <source>RIGHT CLICK</source>
        <translation>KLIK KANAN</translation>
    </message>
    <message>
        <source>WHEEL CLICK</source>
        <translation>KLIK RODA</translation>
    </message>
    <message>
        <source>BACKWARD</source>
        <translation>KE BELAKANG</translation>
    </message>
    <message>
        <source>FORWARD</source>
        <translation>KE HADAPAN</translation>
    </message>
    <message>
        <source>L STICK RIGHT</source>
        <translation>KAYU KIRI KE KANAN</translation>
    </message>
    <message>
        <source>L STICK UP</source>
        <translation>KAYU KIRI KE ATAS</translation>
    </message>
    <message>
        <source>R STICK RIGHT</source>
        <translation>KAYU KANAN KE KANAN</translation>
    </message>
    <message>
        <source>R STICK UP</source>
        <translation>KAYU KANAN KE ATAS</translation>
    </message>
    <message>
        <source>SCROLL LEFT</source>
        <translation>TATAL KE KIRI</translation>
    </message>
    <message>
        <source>SCROLL RIGHT</source>
        <translation>TATAL KE KANAN</translation>
    </message>
    <message>
        <source>PROFILE 1</source>
        <translation>PROFIL 1</translation>
    </message>
    <message>
        <source>PROFILE 2</source>
        <translation>PROFIL 2</translation>
    </message>
    <message>
        <source>PROFILE 3</source>
        <translation>PROFIL 3</translation>
    </message>
    <message>
        <source>PROFILE 4</source>
        <translation>PROFIL 4</translation>
    </message>
    <message>
        <source>PROFILE 5</source>
        <translation>PROFIL 5</translation>
    </message>
    <message>
        <source>PROFILE 6</source>
        <translation>PROFIL 6</translation>
    </message>
    <message>
        <source>PROFILE 7</source>
        <translation>PROFIL 7</translation>
    </message>
    <message>
        <source>PROFILE 8</source>
        <translation>PROFIL 8</translation>
    </message>
    <message>
        <source>PROFILE 9</source>
        <translation>PROFIL 9</translation>
    </message>
    <message>
        <source>PROFILE 10</source>
        <translation>PROFIL 10</translation>
    </message>
    <message>
        <source>PROFILE 11</source>
        <translation>PROFIL 11</translation>
    </message>
    <message>
        <source>PROFILE 12</source>
        <translation>PROFIL 12</translation>
    </message>
    <message>
        <source>PROFILE 13</source>
        <translation>PROFIL 13</translation>
    </message>
    <message>
        <source>PROFILE 14</source>
        <translation>PROFIL 14</translation>
    </message>
    <message>
        <source>PROFILE 15</source>
        <translation>PROFIL 15</translation>
    </message>
    <message>
        <source>PROFILE 16</source>
        <translation>PROFIL 16</translation>
    </message>
    <message>
        <source>PROFILE 17</source>
        <translation>PROFIL 17</translation>
    </message>
    <message>
        <source>PROFILE 18</source>
        <translation>PROFIL 18</translation>
    </message>
    <message>
        <source>PROFILE 19</source>
        <translation>PROFIL 19</translation>
    </message>
    <message>
        <source>PROFILE 20</source>
        <translation>PROFIL 20</translation>
    </message>
    <message>
        <source>PROFILE 21</source>
        <translation>PROFIL 21</translation>
    </message>
    <message>
        <source>PROFILE 22</source>
        <translation>PROFIL 22</translation>
    </message>
    <message>
        <source>PROFILE 23</source>
        <translation>PROFIL 23</translation>
    </message>
    <message>
        <source>PROFILE 24</source>
        <translation>PROFIL 24</translation>
    </message>
    <message>
        <source>PROFILE[+]</source>
        <translation>PROFIL[+]</translation>
    </message>
    <message>
        <source>PROFILE[-]</source>
        <translation>PROFIL[-]</translation>
    </message>
    <message>
        <source>PROFILE CYCLE+</source>
        <translation>PROFIL BERIKUTNYA+</translation>
    </message>
    <message>
        <source>PROFILE CYCLE-</source>
        <translation>PROFIL SEBELUMNYA-</translation>
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
        <translation>KEKUNCI TIDAK DIKETAHUI</translation>
    </message>
</context>
<context>
    <name>KeyboardAdvWid</name>
    <message>
        <source>ALPHANUMERIC</source>
        <translation>ABJAD DAN ANGKA</translation>
    </message>
    <message>
        <source>SYMBOLS &amp;&amp; PUNCTUATION</source>
        <translation>SIMBOL &amp;&amp; TANDA BACA</translation>
    </message>
    <message>
        <source>NAVIGATION KEYS</source>
        <translation>KEKUNCI NAVIGASI</translation>
    </message>
    <message>
        <source>MODIFIER</source>
        <translation>KEKUNCI PENGUBAH</translation>
    </message>
    <message>
        <source>FUNCTION KEYS</source>
        <translation>KEKUNCI FUNGSI</translation>
    </message>
    <message>
        <source>NUMBERPAD KEYS</source>
        <translation>PAD NOMBOR</translation>
    </message>
</context>
<context>
    <name>MacroAdvUi</name>
    <message>
        <source>USER MACROS</source>
        <translation>MAKRO PENGGUNA</translation>
    </message>
    <message>
        <source>CREATE NEW MACRO</source>
        <translation>CIPTA MAKRO BAHARU</translation>
    </message>
    <message>
        <source>WINDOWS KEYBOARD SHORTCUTS</source>
        <translation>PINTASAN KEKUNCI WINDOWS</translation>
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
        <translation>+ CIPTA MAKRO BAHARU</translation>
    </message>
</context>
<context>
    <name>MediaUi</name>
    <message>
        <source>MULTIMEDIA KEYS</source>
        <translation>KEKUNCI MULTIMEDIA</translation>
    </message>
</context>
<context>
    <name>PanelWid</name>
    <message>
        <source>Keyboard</source>
        <translation>Papan kekunci</translation>
    </message>
    <message>
        <source>Gaming</source>
        <translation>Permainan</translation>
    </message>
    <message>
        <source>Creative Application</source>
        <translation>Aplikasi Kreatif</translation>
    </message>
    <message>
        <source>Standard WASD</source>
        <translation>WASD Standard</translation>
    </message>
    <message>
        <source>Standard ESDF</source>
        <translation>ESDF Standard</translation>
    </message>
    <message>
        <source>Numpad Mode</source>
        <translation>Mod Pad Nombor</translation>
    </message>
    <message>
        <source>FPS Mode</source>
        <translation>Mod FPS</translation>
    </message>
    <message>
        <source>Driving Mode</source>
        <translation>Mod Memandu</translation>
    </message>
    <message>
        <source>Adv. Flight Mode</source>
        <translation>Mod Terbang Lanjutan</translation>
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
        <translation>PENENTUKURAN ZON MATI</translation>
    </message>
</context>
<context>
    <name>PressoUi</name>
    <message>
        <source>PRESSURE</source>
        <translation>PENGESAN</translation>
    </message>
    <message>
        <source>SENSING</source>
        <translation>TEKANAN</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>HIDUP</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>MATI</translation>
    </message>
</context>
<context>
    <name>ProfileUi</name>
    <message>
        <source>PROFILE</source>
        <translation>PROFIL</translation>
    </message>
</context>
<context>
    <name>ReassignDlg</name>
    <message>
        <source>KEY ASSIGNMENT</source>
        <translation>PENETAPAN KEKUNCI</translation>
    </message>
    <message>
        <source>KEY ASSIGNMENT - VANTRIX </source>
        <translation>PENETAPAN KEKUNCI - VANTRIX </translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>TUTUP</translation>
    </message>
    <message>
        <source>SEARCH</source>
        <translation>CARI</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>BATAL</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>GUNAKAN</translation>
    </message>
    <message>
        <source>MOUSE BUTTONS</source>
        <translation>BUTANG TETIKUS</translation>
    </message>
    <message>
        <source>MEDIA COMMANDS</source>
        <translation>PERINTAH MULTIMEDIA</translation>
    </message>
    <message>
        <source>PRESSO FUNCTIONS</source>
        <translation>FUNGSI PRESSO</translation>
    </message>
    <message>
        <source>BACKLIGHT</source>
        <translation>LAMPU LATAR</translation>
    </message>
    <message>
        <source>PROFILE</source>
        <translation>PROFIL</translation>
    </message>
</context>
<context>
    <name>VantrixMapWid</name>
    <message>
        <source>SIMPLE</source>
        <translation>RINGKAS</translation>
    </message>
    <message>
        <source>ADVANCED</source>
        <translation>LANJUTAN</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>GUNAKAN</translation>
    </message>
    <message>
        <source>RESET</source>
        <translation>TETAP SEMULA</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Tetap semula</translation>
    </message>
    <message>
        <source>Are you sure you want to reset?</source>
        <translation>Adakah anda pasti mahu menetapkan semula?</translation>
    </message>
</context>
</TS>
