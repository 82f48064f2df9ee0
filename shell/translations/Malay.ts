<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ms_MY" sourcelanguage="en_US">
<context>
    <name>ChangesPage</name>
    <message>
        <source>PUT BACK</source>
        <translation>KEMBALIKAN</translation>
    </message>
    <message>
        <source>PUT ALL BACK</source>
        <translation>KEMBALIKAN SEMUA</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>GUNAKAN</translation>
    </message>
    <message>
        <source>The device has %1 as it is shown.</source>
        <translation>Peranti mempunyai %1 seperti yang ditunjukkan.</translation>
    </message>
    <message>
        <source>APPLY changes one key of %1:</source>
        <translation>GUNAKAN mengubah satu kekunci %1:</translation>
    </message>
    <message>
        <source>APPLY changes %1 keys of %2:</source>
        <translation>GUNAKAN mengubah %1 kekunci %2:</translation>
    </message>
    <message>
        <source>ON THE DEVICE: %1</source>
        <translation>PADA PERANTI: %1</translation>
    </message>
    <message>
        <source>Put back key %1</source>
        <translation>Kembalikan kekunci %1</translation>
    </message>
    <message>
        <source>Put back %1 keys</source>
        <translation>Kembalikan %1 kekunci</translation>
    </message>
    <message>
        <source>KEY</source>
        <translation>KEKUNCI</translation>
    </message>
    <message>
        <source>THE DEVICE HAS</source>
        <translation>PADA PERANTI</translation>
    </message>
    <message>
        <source>APPLY MAKES IT</source>
        <translation>SELEPAS GUNAKAN</translation>
    </message>
    <message>
        <source>FUNCTION</source>
        <translation>FUNGSI</translation>
    </message>
    <message>
        <source>Back from the device, as a macro: %1</source>
        <translation>Kembali daripada peranti, sebagai makro: %1</translation>
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
        <translation>PROFIL INI</translation>
    </message>
    <message>
        <source>ALL PROFILES</source>
        <translation>SEMUA PROFIL</translation>
    </message>
    <message>
        <source>Nothing to look at.</source>
        <translation>Tiada apa-apa untuk disemak.</translation>
    </message>
    <message>
        <source>One thing to look at.</source>
        <translation>Satu perkara untuk disemak.</translation>
    </message>
    <message>
        <source>%1 things to look at.</source>
        <translation>%1 perkara untuk disemak.</translation>
    </message>
    <message>
        <source>%1 is on the device. %2 See CHECK.</source>
        <translation>%1 berada pada peranti. %2 Lihat SEMAKAN.</translation>
    </message>
    <message>
        <source>The first %1 are listed.</source>
        <translation>%1 yang pertama disenaraikan.</translation>
    </message>
    <message>
        <source>Go there</source>
        <translation>Pergi ke situ</translation>
    </message>
</context>
<context>
    <name>DeviceView</name>
    <message>
        <source>ACTS BY</source>
        <translation>MENGIKUT</translation>
    </message>
    <message>
        <source>Profile that the device acts by</source>
        <translation>Profil yang digunakan oleh peranti</translation>
    </message>
    <message>
        <source>Depth of the chosen key in percent</source>
        <translation>Kedalaman kekunci yang dipilih dalam peratus</translation>
    </message>
    <message>
        <source>WHAT THE DEVICE SENDS</source>
        <translation>YANG DIHANTAR PERANTI</translation>
    </message>
    <message>
        <source>LET GO</source>
        <translation>LEPASKAN</translation>
    </message>
    <message>
        <source>All keys come up</source>
        <translation>Semua kekunci naik semula</translation>
    </message>
    <message>
        <source>CLEAR</source>
        <translation>KOSONGKAN</translation>
    </message>
    <message>
        <source>KEY</source>
        <translation>KEKUNCI</translation>
    </message>
    <message>
        <source>DEPTH</source>
        <translation>KEDALAMAN</translation>
    </message>
    <message>
        <source>EVENT</source>
        <translation>PERISTIWA</translation>
    </message>
    <message>
        <source>CODE</source>
        <translation>KOD</translation>
    </message>
    <message>
        <source>It has what the profile holds.</source>
        <translation>Sama seperti dalam profil.</translation>
    </message>
    <message>
        <source>One key differs from the profile; APPLY sends it.</source>
        <translation>Satu kekunci berbeza daripada profil; GUNAKAN menghantarnya.</translation>
    </message>
    <message>
        <source>%1 keys differ from the profile; APPLY sends them.</source>
        <translation>%1 kekunci berbeza daripada profil; GUNAKAN menghantarnya.</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Press a key of the pad.</source>
        <translation>Tekan satu kekunci pad.</translation>
    </message>
    <message>
        <source>▼ press %1</source>
        <translation>▼ tekan %1</translation>
    </message>
    <message>
        <source>▲ release %1</source>
        <translation>▲ lepas %1</translation>
    </message>
    <message>
        <source>wait %1 ms</source>
        <translation>tunggu %1 ms</translation>
    </message>
    <message>
        <source>switch to %1</source>
        <translation>tukar ke %1</translation>
    </message>
</context>
<context>
    <name>ExportDlg</name>
    <message>
        <source>EXPORT...</source>
        <translation>EKSPORT...</translation>
    </message>
    <message>
        <source>Export profiles</source>
        <translation>Eksport profil</translation>
    </message>
    <message>
        <source>Profiles to export</source>
        <translation>Profil untuk dieksport</translation>
    </message>
    <message>
        <source>ALL</source>
        <translation>SEMUA</translation>
    </message>
    <message>
        <source>NONE</source>
        <translation>TIADA</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>BATAL</translation>
    </message>
    <message>
        <source>Profiles to export, with their macros:</source>
        <translation>Profil untuk dieksport, bersama makronya:</translation>
    </message>
    <message>
        <source>No macros go with them.</source>
        <translation>Tiada makro disertakan.</translation>
    </message>
    <message>
        <source>Macros that go with them: %1.</source>
        <translation>Makro yang disertakan: %1.</translation>
    </message>
    <message>
        <source>profiles</source>
        <translation>profil</translation>
    </message>
    <message>
        <source>Profiles (*.json)</source>
        <translation>Profil (*.json)</translation>
    </message>
    <message>
        <source>%1 was not written: %2</source>
        <translation>%1 tidak ditulis: %2</translation>
    </message>
    <message>
        <source>One profile was exported to %1.</source>
        <translation>Satu profil telah dieksport ke %1.</translation>
    </message>
    <message>
        <source>%1 profiles were exported to %2.</source>
        <translation>%1 profil telah dieksport ke %2.</translation>
    </message>
</context>
<context>
    <name>FindBar</name>
    <message>
        <source>Find a function, key or macro</source>
        <translation>Cari fungsi, kekunci atau makro</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Cari</translation>
    </message>
    <message>
        <source>Keys that were found</source>
        <translation>Kekunci yang ditemui</translation>
    </message>
    <message>
        <source>No key has that.</source>
        <translation>Tiada kekunci sedemikian.</translation>
    </message>
    <message>
        <source>Keys: %1, profiles: %2.</source>
        <translation>Kekunci: %1, profil: %2.</translation>
    </message>
    <message>
        <source>The first %1 are listed.</source>
        <translation>%1 yang pertama disenaraikan.</translation>
    </message>
</context>
<context>
    <name>HistoryPage</name>
    <message>
        <source>History</source>
        <translation>Sejarah</translation>
    </message>
    <message>
        <source>Double-click a step, or press Enter, to go back or forth to it. The history is kept when the program is closed.</source>
        <translation>Klik dua kali pada satu langkah, atau tekan Enter, untuk pergi kepadanya. Sejarah disimpan apabila program ditutup.</translation>
    </message>
    <message>
        <source>As it was at the start</source>
        <translation>Seperti pada permulaan</translation>
    </message>
    <message>
        <source>%1   (now)</source>
        <translation>%1   (kini)</translation>
    </message>
    <message>
        <source>Earlier steps are listed when you go back to the oldest one here.</source>
        <translation>Langkah terdahulu disenaraikan apabila anda kembali ke yang paling lama di sini.</translation>
    </message>
</context>
<context>
    <name>ImportDlg</name>
    <message>
        <source>No file is open.</source>
        <translation>Tiada fail dibuka.</translation>
    </message>
    <message>
        <source>IMPORT</source>
        <translation>IMPORT</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>BATAL</translation>
    </message>
    <message>
        <source>Import profiles</source>
        <translation>Import profil</translation>
    </message>
    <message>
        <source>OPEN...</source>
        <translation>BUKA...</translation>
    </message>
    <message>
        <source>Profiles of the file</source>
        <translation>Profil dalam fail</translation>
    </message>
    <message>
        <source>PROFILE OF THE FILE</source>
        <translation>PROFIL DALAM FAIL</translation>
    </message>
    <message>
        <source>KEYS</source>
        <translation>KEKUNCI</translation>
    </message>
    <message>
        <source>IN PLACE OF</source>
        <translation>MENGGANTIKAN</translation>
    </message>
    <message>
        <source>Profiles (*.json);;All files (*)</source>
        <translation>Profil (*.json);;Semua fail (*)</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 tidak dapat dibaca: %2</translation>
    </message>
    <message>
        <source>PROFILE %1</source>
        <translation>PROFIL %1</translation>
    </message>
    <message>
        <source>In place of</source>
        <translation>Menggantikan</translation>
    </message>
    <message>
        <source>Two profiles would take the place of %1.</source>
        <translation>Dua profil akan menggantikan %1.</translation>
    </message>
    <message>
        <source>Macros that come with them: %1.</source>
        <translation>Makro yang disertakan: %1.</translation>
    </message>
    <message>
        <source>One profile was imported.</source>
        <translation>Satu profil telah diimport.</translation>
    </message>
    <message>
        <source>%1 profiles were imported.</source>
        <translation>%1 profil telah diimport.</translation>
    </message>
    <message>
        <source>The macro &quot;%1&quot; is named &quot;%2&quot; here, because there was another of its name.</source>
        <translation>Makro &quot;%1&quot; dinamakan &quot;%2&quot; di sini, kerana sudah ada makro dengan nama itu.</translation>
    </message>
    <message>
        <source>%1 was not found on this computer; its functions do nothing until it is.</source>
        <translation>%1 tidak ditemui pada komputer ini; fungsinya tidak berkesan sehingga ditemui.</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>TUTUP</translation>
    </message>
    <message>
        <source>The macros were imported.</source>
        <translation>Makro telah diimport.</translation>
    </message>
</context>
<context>
    <name>KeyCombo</name>
    <message>
        <source>Key</source>
        <translation>Kekunci</translation>
    </message>
</context>
<context>
    <name>KeyFinder</name>
    <message>
        <source>%1 (unassigned)</source>
        <translation>%1 (tidak ditetapkan)</translation>
    </message>
</context>
<context>
    <name>KeyText</name>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (diubah)</translation>
    </message>
    <message>
        <source>CODE %1</source>
        <translation>KOD %1</translation>
    </message>
    <message>
        <source>%1 at %2%</source>
        <translation>%1 pada %2%</translation>
    </message>
</context>
<context>
    <name>KeyTitle</name>
    <message>
        <source>Key %1</source>
        <translation>Kekunci %1</translation>
    </message>
    <message>
        <source>Key %1 (%2)</source>
        <translation>Kekunci %1 (%2)</translation>
    </message>
    <message>
        <source>Keys %1 and %2</source>
        <translation>Kekunci %1 dan %2</translation>
    </message>
</context>
<context>
    <name>MacroEditor</name>
    <message>
        <source>RECORDING
Press keys. To finish, press Esc twice or click STOP.</source>
        <translation>MERAKAM
Tekan kekunci. Untuk tamat, tekan Esc dua kali atau klik HENTI.</translation>
    </message>
    <message>
        <source>Events of the macro</source>
        <translation>Peristiwa makro</translation>
    </message>
    <message>
        <source>RECORD</source>
        <translation>RAKAM</translation>
    </message>
    <message>
        <source>Record keys at the end of the macro</source>
        <translation>Rakam kekunci di hujung makro</translation>
    </message>
    <message>
        <source>Delays of recorded keys</source>
        <translation>Lengah kekunci yang dirakam</translation>
    </message>
    <message>
        <source>delays as they were</source>
        <translation>lengah asal</translation>
    </message>
    <message>
        <source>no delays</source>
        <translation>tanpa lengah</translation>
    </message>
    <message>
        <source>fixed delays</source>
        <translation>lengah tetap</translation>
    </message>
    <message>
        <source>Fixed delay in milliseconds</source>
        <translation>Lengah tetap dalam milisaat</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>SET ALL</source>
        <translation>TETAPKAN SEMUA</translation>
    </message>
    <message>
        <source>Give all events of the macro this delay</source>
        <translation>Berikan lengah ini kepada semua peristiwa makro</translation>
    </message>
    <message>
        <source>Event to add</source>
        <translation>Peristiwa untuk ditambah</translation>
    </message>
    <message>
        <source>press and release</source>
        <translation>tekan dan lepas</translation>
    </message>
    <message>
        <source>press</source>
        <translation>tekan</translation>
    </message>
    <message>
        <source>release</source>
        <translation>lepas</translation>
    </message>
    <message>
        <source>ADD</source>
        <translation>TAMBAH</translation>
    </message>
    <message>
        <source>Move the event up (Alt+Up)</source>
        <translation>Alih peristiwa ke atas (Alt+Atas)</translation>
    </message>
    <message>
        <source>Move the event down (Alt+Down)</source>
        <translation>Alih peristiwa ke bawah (Alt+Bawah)</translation>
    </message>
    <message>
        <source>DELETE</source>
        <translation>PADAM</translation>
    </message>
    <message>
        <source>Chosen events:</source>
        <translation>Peristiwa yang dipilih:</translation>
    </message>
    <message>
        <source>%1: %2 of %3 events</source>
        <translation>%1: %2 daripada %3 peristiwa</translation>
    </message>
    <message>
        <source>Make a new macro, then record keys.</source>
        <translation>Buat makro baharu, kemudian rakam kekunci.</translation>
    </message>
    <message>
        <source>STOP</source>
        <translation>HENTI</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a key that a macro can have.</source>
        <translation>&quot;%1&quot; bukan kekunci yang boleh ada dalam makro.</translation>
    </message>
    <message>
        <source>RECORDING: %1 of %2 events
Press keys. To finish, press Esc twice or click STOP.</source>
        <translation>MERAKAM: %1 daripada %2 peristiwa
Tekan kekunci. Untuk tamat, tekan Esc dua kali atau klik HENTI.</translation>
    </message>
</context>
<context>
    <name>MacroEventDelegate</name>
    <message>
        <source>release</source>
        <translation>lepas</translation>
    </message>
    <message>
        <source>press</source>
        <translation>tekan</translation>
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
        <translation>%1 (kod %2)</translation>
    </message>
    <message>
        <source>Add events to macro %1</source>
        <translation>Tambah peristiwa pada makro %1</translation>
    </message>
    <message>
        <source>Delete events of macro %1</source>
        <translation>Padam peristiwa makro %1</translation>
    </message>
    <message>
        <source>Move an event of macro %1</source>
        <translation>Alih satu peristiwa makro %1</translation>
    </message>
    <message>
        <source>Change delays of macro %1</source>
        <translation>Ubah lengah makro %1</translation>
    </message>
    <message>
        <source>▼ press</source>
        <translation>▼ tekan</translation>
    </message>
    <message>
        <source>▲ release</source>
        <translation>▲ lepas</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>EVENT</source>
        <translation>PERISTIWA</translation>
    </message>
    <message>
        <source>KEY</source>
        <translation>KEKUNCI</translation>
    </message>
    <message>
        <source>THEN WAIT</source>
        <translation>KEMUDIAN TUNGGU</translation>
    </message>
    <message>
        <source>Change a delay of macro %1</source>
        <translation>Ubah satu lengah makro %1</translation>
    </message>
    <message>
        <source>Change an event of macro %1</source>
        <translation>Ubah satu peristiwa makro %1</translation>
    </message>
</context>
<context>
    <name>MacroPage</name>
    <message>
        <source>BACK TO THE KEYS</source>
        <translation>KEMBALI KE KEKUNCI</translation>
    </message>
    <message>
        <source>NEW</source>
        <translation>BAHARU</translation>
    </message>
    <message>
        <source>RENAME</source>
        <translation>NAMAKAN SEMULA</translation>
    </message>
    <message>
        <source>DELETE</source>
        <translation>PADAM</translation>
    </message>
    <message>
        <source>Macros</source>
        <translation>Makro</translation>
    </message>
    <message>
        <source>NO.</source>
        <translation>NO.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NAMA</translation>
    </message>
    <message>
        <source>EVENTS</source>
        <translation>PERISTIWA</translation>
    </message>
    <message>
        <source>KEYS</source>
        <translation>KEKUNCI</translation>
    </message>
    <message>
        <source>NO KEY HAS IT</source>
        <translation>TIADA KEKUNCI MEMILIKINYA</translation>
    </message>
    <message>
        <source>KEYS THAT HAVE IT</source>
        <translation>KEKUNCI YANG MEMILIKINYA</translation>
    </message>
    <message>
        <source>Go to this key</source>
        <translation>Pergi ke kekunci ini</translation>
    </message>
    <message>
        <source>Add macro %1</source>
        <translation>Tambah makro %1</translation>
    </message>
    <message>
        <source>Macro</source>
        <translation>Makro</translation>
    </message>
    <message>
        <source>A macro needs a name.</source>
        <translation>Makro memerlukan nama.</translation>
    </message>
    <message>
        <source>Rename macro %1 to %2</source>
        <translation>Namakan semula makro %1 kepada %2</translation>
    </message>
    <message>
        <source>There is another macro named &quot;%1&quot;.</source>
        <translation>Sudah ada makro lain bernama &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Delete macro %1</source>
        <translation>Padam makro %1</translation>
    </message>
    <message>
        <source>Macro %1 was deleted.</source>
        <translation>Makro %1 telah dipadam.</translation>
    </message>
    <message>
        <source>Macro %1 was deleted and taken off %2 keys.</source>
        <translation>Makro %1 telah dipadam dan ditanggalkan daripada %2 kekunci.</translation>
    </message>
    <message>
        <source>Record the macro, then go back and choose it for the key.</source>
        <translation>Rakam makro, kemudian kembali dan pilih makro itu untuk kekunci.</translation>
    </message>
    <message>
        <source>The new macro was empty and was not kept.</source>
        <translation>Makro baharu itu kosong dan tidak disimpan.</translation>
    </message>
    <message>
        <source>COPY</source>
        <translation>SALIN</translation>
    </message>
    <message>
        <source>Make another macro with the same events</source>
        <translation>Cipta makro lain dengan peristiwa yang sama</translation>
    </message>
    <message>
        <source>Macro %1 was deleted and taken off one key.</source>
        <translation>Makro %1 telah dipadam dan ditanggalkan daripada satu kekunci.</translation>
    </message>
    <message>
        <source>Move macro %1</source>
        <translation>Alih makro %1</translation>
    </message>
</context>
<context>
    <name>MacroRecorder</name>
    <message>
        <source>A macro holds at most %1 events.</source>
        <translation>Satu makro mengandungi paling banyak %1 peristiwa.</translation>
    </message>
    <message>
        <source>The pad has no code for this key.</source>
        <translation>Pad tidak mempunyai kod untuk kekunci ini.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>MAPPING</source>
        <translation>PEMETAAN</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fail</translation>
    </message>
    <message>
        <source>&amp;Settings...</source>
        <translation>&amp;Tetapan...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Keluar</translation>
    </message>
    <message>
        <source>&amp;Profile</source>
        <translation>&amp;Profil</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edit</translation>
    </message>
    <message>
        <source>&amp;Find Keys...</source>
        <translation>&amp;Cari kekunci...</translation>
    </message>
    <message>
        <source>Assign by &amp;Pressing Keys</source>
        <translation>Tetapkan dengan &amp;menekan kekunci</translation>
    </message>
    <message>
        <source>While a key of the pad is selected, the next key that is pressed is put on it. Off, the keyboard works the window.</source>
        <translation>Apabila satu kekunci pad dipilih, kekunci seterusnya yang ditekan ditetapkan padanya. Jika dimatikan, papan kekunci mengendalikan tetingkap.</translation>
    </message>
    <message>
        <source>&amp;Apply to Device</source>
        <translation>&amp;Gunakan pada peranti</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Lihat</translation>
    </message>
    <message>
        <source>Profile &amp;Names</source>
        <translation>&amp;Nama profil</translation>
    </message>
    <message>
        <source>Everything is on the device.</source>
        <translation>Semuanya berada pada peranti.</translation>
    </message>
    <message>
        <source>Not on the device yet: %1.</source>
        <translation>Belum pada peranti: %1.</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>Dibuat asal: %1</translation>
    </message>
    <message>
        <source>Done again: %1</source>
        <translation>Dibuat semula: %1</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Buat asal %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Buat asal</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>Buat &amp;semula %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>Buat &amp;semula</translation>
    </message>
    <message>
        <source>Undo %1 (Ctrl+Z)</source>
        <translation>Buat asal %1 (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Redo %1 (Ctrl+Shift+Z)</source>
        <translation>Buat semula %1 (Ctrl+Shift+Z)</translation>
    </message>
    <message>
        <source>nothing to apply</source>
        <translation>tiada untuk digunakan</translation>
    </message>
    <message>
        <source>1 key to apply</source>
        <translation>1 kekunci untuk digunakan</translation>
    </message>
    <message>
        <source>%1 keys to apply</source>
        <translation>%1 kekunci untuk digunakan</translation>
    </message>
    <message>
        <source>Device: %1   |   %2   |</source>
        <translation>Peranti: %1   |   %2   |</translation>
    </message>
    <message>
        <source>READ ONLY</source>
        <translation>BACA SAHAJA</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Disimpan</translation>
    </message>
    <message>
        <source>NOT SAVED</source>
        <translation>TIDAK DISIMPAN</translation>
    </message>
    <message>
        <source>CHANGES %1</source>
        <translation>PERUBAHAN %1</translation>
    </message>
    <message>
        <source>CHANGES</source>
        <translation>PERUBAHAN</translation>
    </message>
    <message>
        <source>%1%2 - VANTRIX</source>
        <translation>%1%2 - VANTRIX</translation>
    </message>
    <message>
        <source> (read only)</source>
        <translation> (baca sahaja)</translation>
    </message>
    <message>
        <source>Click a key of the pad, then choose what it does.</source>
        <translation>Klik satu kekunci pad, kemudian pilih fungsinya.</translation>
    </message>
    <message>
        <source>CHECK %1</source>
        <translation>SEMAKAN %1</translation>
    </message>
    <message>
        <source>CHECK</source>
        <translation>SEMAKAN</translation>
    </message>
    <message>
        <source>%1 takes the next key you press. Ctrl+K, with no key selected, switches that off.</source>
        <translation>Kekunci seterusnya yang anda tekan akan ditetapkan pada %1. Ctrl+K, tanpa kekunci dipilih, mematikannya.</translation>
    </message>
    <message>
        <source>The changes cannot be saved and are lost with the window. Close it?</source>
        <translation>Perubahan tidak dapat disimpan dan akan hilang bersama tetingkap. Tutup?</translation>
    </message>
    <message>
        <source>Nothing to undo</source>
        <translation>Tiada apa untuk dibuat asal</translation>
    </message>
    <message>
        <source>Nothing to redo</source>
        <translation>Tiada apa untuk dibuat semula</translation>
    </message>
    <message>
        <source>Steps undone: %1</source>
        <translation>Langkah dibuat asal: %1</translation>
    </message>
    <message>
        <source>Steps done again: %1</source>
        <translation>Langkah dibuat semula: %1</translation>
    </message>
</context>
<context>
    <name>MappingView</name>
    <message>
        <source>COMPANION</source>
        <translation>TEMAN</translation>
    </message>
    <message>
        <source>%1 is on the device.</source>
        <translation>%1 berada pada peranti.</translation>
    </message>
    <message>
        <source>%1 did not reach the device.</source>
        <translation>%1 tidak sampai ke peranti.</translation>
    </message>
    <message>
        <source>Reset %1</source>
        <translation>Tetap semula %1</translation>
    </message>
    <message>
        <source>The device was reset, and %1 with it. Undo brings its keys back; the other profiles are kept here and can be applied again.</source>
        <translation>Peranti telah ditetapkan semula, bersama %1. Buat asal mengembalikan kekuncinya; profil lain disimpan di sini dan boleh digunakan semula.</translation>
    </message>
    <message>
        <source>The device was reset. The profiles are kept here and can be applied again.</source>
        <translation>Peranti telah ditetapkan semula. Profil disimpan di sini dan boleh digunakan semula.</translation>
    </message>
</context>
<context>
    <name>MessageBar</name>
    <message>
        <source>DISMISS</source>
        <translation>SEMBUNYI</translation>
    </message>
</context>
<context>
    <name>PadView</name>
    <message>
        <source>Picture of the pad</source>
        <translation>Gambar pad</translation>
    </message>
</context>
<context>
    <name>ProfileCheck</name>
    <message>
        <source>%1 has the macro &quot;%2&quot;, which is not there any more.</source>
        <translation>%1 mempunyai makro &quot;%2&quot;, yang sudah tiada.</translation>
    </message>
    <message>
        <source>%1 has the macro &quot;%2&quot;, which is empty.</source>
        <translation>%1 mempunyai makro &quot;%2&quot;, yang kosong.</translation>
    </message>
    <message>
        <source>%1 has a dual action without a second action.</source>
        <translation>%1 mempunyai dwitindakan tanpa tindakan kedua.</translation>
    </message>
    <message>
        <source>%1 has a dual action without a first action.</source>
        <translation>%1 mempunyai dwitindakan tanpa tindakan pertama.</translation>
    </message>
    <message>
        <source>%1 has a function of %2, which was not found on this computer.</source>
        <translation>%1 mempunyai fungsi %2, yang tidak ditemui pada komputer ini.</translation>
    </message>
    <message>
        <source>%1 have functions of %2, which was not found on this computer.</source>
        <translation>%1 mempunyai fungsi-fungsi %2, yang tidak ditemui pada komputer ini.</translation>
    </message>
    <message>
        <source>%1 of %2 leads to this profile, and no key leads back.</source>
        <translation>%1 bagi %2 menuju ke profil ini, dan tiada kekunci untuk kembali.</translation>
    </message>
    <message>
        <source>%1 do the same: %2.</source>
        <translation>%1 melakukan perkara yang sama: %2.</translation>
    </message>
</context>
<context>
    <name>ProfileExchange</name>
    <message>
        <source>top</source>
        <translation>atas</translation>
    </message>
    <message>
        <source>%1 is not an object</source>
        <translation>%1 bukan objek</translation>
    </message>
    <message>
        <source>there is no member &quot;%1&quot; here</source>
        <translation>tiada ahli &quot;%1&quot; di sini</translation>
    </message>
    <message>
        <source>%1 is not a list</source>
        <translation>%1 bukan senarai</translation>
    </message>
    <message>
        <source>%1 elements are more than %2</source>
        <translation>%1 unsur melebihi %2</translation>
    </message>
    <message>
        <source>%1 is not a whole number from %2 to %3</source>
        <translation>%1 bukan nombor bulat dari %2 hingga %3</translation>
    </message>
    <message>
        <source>%1 is not a text</source>
        <translation>%1 bukan teks</translation>
    </message>
    <message>
        <source>the text holds a character that cannot be stored</source>
        <translation>teks mengandungi aksara yang tidak dapat disimpan</translation>
    </message>
    <message>
        <source>two macros are named &quot;%1&quot;</source>
        <translation>dua makro bernama &quot;%1&quot;</translation>
    </message>
    <message>
        <source>profile %1 is here twice</source>
        <translation>profil %1 muncul dua kali</translation>
    </message>
    <message>
        <source>this is not a file of profiles</source>
        <translation>ini bukan fail profil</translation>
    </message>
    <message>
        <source>the file is of version %1; this program reads up to %2</source>
        <translation>fail ini versi %1; program ini membaca hingga versi %2</translation>
    </message>
    <message>
        <source>a macro needs a name</source>
        <translation>makro memerlukan nama</translation>
    </message>
    <message>
        <source>these are %1 bytes and not %2</source>
        <translation>ini %1 bait dan bukan %2</translation>
    </message>
    <message>
        <source>%1 is neither true nor false</source>
        <translation>%1 bukan benar atau palsu</translation>
    </message>
    <message>
        <source>key %1 is here twice</source>
        <translation>kekunci %1 muncul dua kali</translation>
    </message>
    <message>
        <source>1 is not 0, 2 or 3</source>
        <translation>1 bukan 0, 2 atau 3</translation>
    </message>
    <message>
        <source>a key holds only one of app, hotKey, shortcut, extended and macro</source>
        <translation>satu kekunci hanya mempunyai satu daripada app, hotKey, shortcut, extended dan macro</translation>
    </message>
    <message>
        <source>%1 is not an extended code</source>
        <translation>%1 bukan kod lanjutan</translation>
    </message>
    <message>
        <source>Import profile %1</source>
        <translation>Import profil %1</translation>
    </message>
    <message>
        <source>Import %1 profiles</source>
        <translation>Import %1 profil</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>senarai</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>objek</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>tiada apa-apa</translation>
    </message>
    <message>
        <source>line %1, column %2</source>
        <translation>baris %1, lajur %2</translation>
    </message>
    <message>
        <source>Import macros</source>
        <translation>Import makro</translation>
    </message>
</context>
<context>
    <name>ProfileList</name>
    <message>
        <source>DEVICE</source>
        <translation>PERANTI</translation>
    </message>
    <message>
        <source>PROFILES</source>
        <translation>PROFIL</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>COPY</source>
        <translation>SALIN</translation>
    </message>
    <message>
        <source>Copy this profile over another one</source>
        <translation>Salin profil ini menggantikan profil lain</translation>
    </message>
    <message>
        <source>CLEAR</source>
        <translation>KOSONGKAN</translation>
    </message>
    <message>
        <source>Take everything off the keys of this profile</source>
        <translation>Tanggalkan semua daripada kekunci profil ini</translation>
    </message>
    <message>
        <source>Move up (Alt+Up)</source>
        <translation>Alih ke atas (Alt+Atas)</translation>
    </message>
    <message>
        <source>Move down (Alt+Down)</source>
        <translation>Alih ke bawah (Alt+Bawah)</translation>
    </message>
    <message>
        <source>&amp;Rename...</source>
        <translation>&amp;Namakan semula...</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>&amp;Duplikasi</translation>
    </message>
    <message>
        <source>Copy &amp;Over</source>
        <translation>Salin menggan&amp;ti</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Kosongkan</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Alih ke &amp;atas</translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation>Alih ke &amp;bawah</translation>
    </message>
    <message>
        <source>&amp;Next Profile</source>
        <translation>Profil &amp;berikutnya</translation>
    </message>
    <message>
        <source>&amp;Previous Profile</source>
        <translation>Profil &amp;sebelumnya</translation>
    </message>
    <message>
        <source>shown</source>
        <translation>dipaparkan</translation>
    </message>
    <message>
        <source>the device acts by it</source>
        <translation>digunakan oleh peranti</translation>
    </message>
    <message>
        <source>differs from what the device has</source>
        <translation>berbeza daripada yang ada pada peranti</translation>
    </message>
    <message>
        <source>All profiles are in use: choose one to copy over.</source>
        <translation>Semua profil sedang digunakan: pilih satu untuk digantikan.</translation>
    </message>
    <message>
        <source>Duplicate %1</source>
        <translation>Duplikasi %1</translation>
    </message>
    <message>
        <source>%1 was copied to profile %2.</source>
        <translation>%1 telah disalin ke profil %2.</translation>
    </message>
    <message>
        <source>%1  (unused)</source>
        <translation>%1  (tidak digunakan)</translation>
    </message>
    <message>
        <source>Clear %1</source>
        <translation>Kosongkan %1</translation>
    </message>
    <message>
        <source>%1 was cleared. Undo brings it back.</source>
        <translation>%1 telah dikosongkan. Buat asal mengembalikannya.</translation>
    </message>
    <message>
        <source>Move %1</source>
        <translation>Alih %1</translation>
    </message>
    <message>
        <source>%1 has nothing on its keys.</source>
        <translation>%1 tiada apa-apa pada kekuncinya.</translation>
    </message>
</context>
<context>
    <name>ProfileStore</name>
    <message>
        <source>%1 COPY</source>
        <translation>SALINAN %1</translation>
    </message>
    <message>
        <source>PROFILE %1</source>
        <translation>PROFIL %1</translation>
    </message>
</context>
<context>
    <name>SettingsDlg</name>
    <message>
        <source>Settings</source>
        <translation>Tetapan</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Bahasa:</translation>
    </message>
    <message>
        <source>&amp;Hot-key catalog:</source>
        <translation>Katalog &amp;pintasan:</translation>
    </message>
    <message>
        <source>Hot-key catalog</source>
        <translation>Katalog pintasan</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>tidak ditemui</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Program</translation>
    </message>
    <message>
        <source>Keys with &amp;macros in a profile:</source>
        <translation>Kekunci &amp;makro dalam satu profil:</translation>
    </message>
    <message>
        <source>BROWSE</source>
        <translation>SEMAK IMBAS</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>BATAL</translation>
    </message>
    <message>
        <source>There is no folder %1.</source>
        <translation>Tiada folder %1.</translation>
    </message>
    <message>
        <source>There is no program %1.</source>
        <translation>Tiada program %1.</translation>
    </message>
</context>
<context>
    <name>ShellPages</name>
    <message>
        <source>CHANGES</source>
        <translation>PERUBAHAN</translation>
    </message>
    <message>
        <source>HISTORY</source>
        <translation>SEJARAH</translation>
    </message>
    <message>
        <source>MACROS</source>
        <translation>MAKRO</translation>
    </message>
    <message>
        <source>DEVICE</source>
        <translation>PERANTI</translation>
    </message>
    <message>
        <source>CHECK</source>
        <translation>SEMAKAN</translation>
    </message>
    <message>
        <source>Import profiles...</source>
        <translation>Import profil...</translation>
    </message>
    <message>
        <source>Export profiles...</source>
        <translation>Eksport profil...</translation>
    </message>
</context>
<context>
    <name>StepName</name>
    <message>
        <source>Depth of key %1: %2%</source>
        <translation>Kedalaman kekunci %1: %2%</translation>
    </message>
    <message>
        <source>Clear key %1</source>
        <translation>Kosongkan kekunci %1</translation>
    </message>
    <message>
        <source>Assign %1 to key %2</source>
        <translation>Tetapkan %1 pada kekunci %2</translation>
    </message>
    <message numerus="yes">
        <source>Change %n key(s) in several profiles</source>
        <translation>
            <numerusform>Ubah %n kekunci dalam beberapa profil</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear %1 keys</source>
        <translation>Kosongkan %1 kekunci</translation>
    </message>
    <message>
        <source>Dual actions on %1 keys</source>
        <translation>Dwitindakan pada %1 kekunci</translation>
    </message>
    <message>
        <source>Change %1 keys</source>
        <translation>Ubah %1 kekunci</translation>
    </message>
    <message>
        <source>Rename macro %1 to %2</source>
        <translation>Namakan semula makro %1 kepada %2</translation>
    </message>
    <message>
        <source>Create macro %1</source>
        <translation>Cipta makro %1</translation>
    </message>
    <message>
        <source>Delete macro %1</source>
        <translation>Padam makro %1</translation>
    </message>
    <message>
        <source>Move a macro</source>
        <translation>Alih satu makro</translation>
    </message>
    <message>
        <source>Edit macro %1</source>
        <translation>Edit makro %1</translation>
    </message>
    <message>
        <source>Preset: %1</source>
        <translation>Pratetap: %1</translation>
    </message>
    <message>
        <source>Name profile %1: %2</source>
        <translation>Namakan profil %1: %2</translation>
    </message>
    <message>
        <source>Move a profile</source>
        <translation>Alih satu profil</translation>
    </message>
    <message>
        <source>Pressure sensing on</source>
        <translation>Pengesan tekanan dihidupkan</translation>
    </message>
    <message>
        <source>Pressure sensing off</source>
        <translation>Pengesan tekanan dimatikan</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Perubahan</translation>
    </message>
</context>
<context>
    <name>StoreKeeper</name>
    <message>
        <source>The store %1 was missing. The last good copy of it is used.</source>
        <translation>Storan %1 tiada. Salinan baik yang terakhir digunakan.</translation>
    </message>
    <message>
        <source>The store %1 was written by a newer version of this program.</source>
        <translation>Storan %1 ditulis oleh versi program ini yang lebih baharu.</translation>
    </message>
    <message>
        <source>The store %1 is damaged and cannot be read.</source>
        <translation>Storan %1 rosak dan tidak dapat dibaca.</translation>
    </message>
    <message>
        <source>It was left as it is.</source>
        <translation>Ia dibiarkan seadanya.</translation>
    </message>
    <message>
        <source>It was kept as %1.</source>
        <translation>Ia disimpan sebagai %1.</translation>
    </message>
    <message>
        <source>The last good copy is used.</source>
        <translation>Salinan baik yang terakhir digunakan.</translation>
    </message>
    <message>
        <source>There is no good copy of it, so everything starts empty.</source>
        <translation>Tiada salinan yang baik, jadi semuanya bermula kosong.</translation>
    </message>
    <message>
        <source>The store %1 was brought up to date. The file of the earlier version was kept as %2.</source>
        <translation>Storan %1 telah dikemas kini. Fail versi terdahulu disimpan sebagai %2.</translation>
    </message>
    <message>
        <source>The store %1 was replaced by another file while the program was running. That file was kept as %2, and the store was written again.</source>
        <translation>Storan %1 telah digantikan oleh fail lain semasa program berjalan. Fail itu disimpan sebagai %2, dan storan telah ditulis semula.</translation>
    </message>
    <message>
        <source>The store %1 was removed while the program was running. It was written again.</source>
        <translation>Storan %1 telah dibuang semasa program berjalan. Ia telah ditulis semula.</translation>
    </message>
    <message>
        <source>All changes are saved again.</source>
        <translation>Semua perubahan telah disimpan semula.</translation>
    </message>
    <message>
        <source>Changes are kept in memory and saved as soon as possible.</source>
        <translation>Perubahan disimpan dalam ingatan dan akan disimpan secepat mungkin.</translation>
    </message>
    <message>
        <source>There is no room on the disk for the store %1.</source>
        <translation>Tiada ruang pada cakera untuk storan %1.</translation>
    </message>
    <message>
        <source>Another program is using the store %1.</source>
        <translation>Program lain sedang menggunakan storan %1.</translation>
    </message>
    <message>
        <source>The store %1 cannot be written.</source>
        <translation>Storan %1 tidak dapat ditulis.</translation>
    </message>
    <message>
        <source>What it holds is shown as soon as it can be read.</source>
        <translation>Kandungannya ditunjukkan sebaik sahaja dapat dibaca.</translation>
    </message>
    <message>
        <source>The last good copy of it is shown until what it holds can be read.</source>
        <translation>Salinan baik yang terakhir ditunjukkan sehingga kandungannya dapat dibaca.</translation>
    </message>
    <message>
        <source>Another window has the store %1 open.</source>
        <translation>Storan %1 dibuka dalam tetingkap lain.</translation>
    </message>
    <message>
        <source>It is shown here, but changes made here are not kept.</source>
        <translation>Ia ditunjukkan di sini, tetapi perubahan di sini tidak disimpan.</translation>
    </message>
    <message>
        <source>It cannot be read here, and changes made here are not kept.</source>
        <translation>Ia tidak dapat dibaca di sini, dan perubahan di sini tidak disimpan.</translation>
    </message>
    <message>
        <source>The copy %1 cannot be read. It was kept as %2.</source>
        <translation>Salinan %1 tidak dapat dibaca. Ia disimpan sebagai %2.</translation>
    </message>
    <message>
        <source>The store %1 on the disk was another than what was shown here when something was changed. It was kept as %2, and a new one was begun.</source>
        <translation>Storan %1 pada cakera berbeza daripada yang ditunjukkan di sini apabila sesuatu diubah. Ia disimpan sebagai %2 dan yang baharu dimulakan.</translation>
    </message>
    <message>
        <source>The store %1 is shown as it is on the disk now.</source>
        <translation>Storan %1 ditunjukkan seperti yang ada pada cakera sekarang.</translation>
    </message>
</context>
</TS>
