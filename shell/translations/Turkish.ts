<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr_TR" sourcelanguage="en_US">
<context>
    <name>ChangesPage</name>
    <message>
        <source>PUT BACK</source>
        <translation>GERİ KOY</translation>
    </message>
    <message>
        <source>PUT ALL BACK</source>
        <translation>TÜMÜNÜ GERİ KOY</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>UYGULA</translation>
    </message>
    <message>
        <source>The device has %1 as it is shown.</source>
        <translation>Cihazdaki %1 gösterildiği gibidir.</translation>
    </message>
    <message>
        <source>APPLY changes one key of %1:</source>
        <translation>UYGULA, %1 içinde bir tuşu değiştirir:</translation>
    </message>
    <message>
        <source>APPLY changes %1 keys of %2:</source>
        <translation>UYGULA, %1 tuşu değiştirir (%2):</translation>
    </message>
    <message>
        <source>ON THE DEVICE: %1</source>
        <translation>CİHAZDA: %1</translation>
    </message>
    <message>
        <source>Put back key %1</source>
        <translation>%1. tuşu geri koy</translation>
    </message>
    <message>
        <source>Put back %1 keys</source>
        <translation>%1 tuşu geri koy</translation>
    </message>
    <message>
        <source>KEY</source>
        <translation>TUŞ</translation>
    </message>
    <message>
        <source>THE DEVICE HAS</source>
        <translation>CİHAZDA</translation>
    </message>
    <message>
        <source>APPLY MAKES IT</source>
        <translation>UYGULANDIKTAN SONRA</translation>
    </message>
    <message>
        <source>FUNCTION</source>
        <translation>İŞLEV</translation>
    </message>
    <message>
        <source>Back from the device, as a macro: %1</source>
        <translation>Cihazdan makro olarak geri geldi: %1</translation>
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
        <translation>BU PROFİL</translation>
    </message>
    <message>
        <source>ALL PROFILES</source>
        <translation>TÜM PROFİLLER</translation>
    </message>
    <message>
        <source>Nothing to look at.</source>
        <translation>Bakılacak bir şey yok.</translation>
    </message>
    <message>
        <source>One thing to look at.</source>
        <translation>Bakılacak bir şey var.</translation>
    </message>
    <message>
        <source>%1 things to look at.</source>
        <translation>Bakılacak %1 şey var.</translation>
    </message>
    <message>
        <source>%1 is on the device. %2 See CHECK.</source>
        <translation>%1 cihazda. %2 DENETİM sayfasına bakın.</translation>
    </message>
    <message>
        <source>The first %1 are listed.</source>
        <translation>İlk %1 tanesi listelendi.</translation>
    </message>
    <message>
        <source>Go there</source>
        <translation>Oraya git</translation>
    </message>
</context>
<context>
    <name>DeviceView</name>
    <message>
        <source>ACTS BY</source>
        <translation>GEÇERLİ</translation>
    </message>
    <message>
        <source>Profile that the device acts by</source>
        <translation>Cihazın kullandığı profil</translation>
    </message>
    <message>
        <source>Depth of the chosen key in percent</source>
        <translation>Seçilen tuşun yüzde olarak derinliği</translation>
    </message>
    <message>
        <source>WHAT THE DEVICE SENDS</source>
        <translation>CİHAZIN GÖNDERDİĞİ</translation>
    </message>
    <message>
        <source>LET GO</source>
        <translation>BIRAK</translation>
    </message>
    <message>
        <source>All keys come up</source>
        <translation>Tüm tuşlar yukarı kalkar</translation>
    </message>
    <message>
        <source>CLEAR</source>
        <translation>TEMİZLE</translation>
    </message>
    <message>
        <source>KEY</source>
        <translation>TUŞ</translation>
    </message>
    <message>
        <source>DEPTH</source>
        <translation>DERİNLİK</translation>
    </message>
    <message>
        <source>EVENT</source>
        <translation>OLAY</translation>
    </message>
    <message>
        <source>CODE</source>
        <translation>KOD</translation>
    </message>
    <message>
        <source>It has what the profile holds.</source>
        <translation>Profildekinin aynısı.</translation>
    </message>
    <message>
        <source>One key differs from the profile; APPLY sends it.</source>
        <translation>Bir tuş profilden farklı; UYGULA onu gönderir.</translation>
    </message>
    <message>
        <source>%1 keys differ from the profile; APPLY sends them.</source>
        <translation>%1 tuş profilden farklı; UYGULA onları gönderir.</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Press a key of the pad.</source>
        <translation>Pedin bir tuşuna basın.</translation>
    </message>
    <message>
        <source>▼ press %1</source>
        <translation>▼ bas: %1</translation>
    </message>
    <message>
        <source>▲ release %1</source>
        <translation>▲ bırak: %1</translation>
    </message>
    <message>
        <source>wait %1 ms</source>
        <translation>bekle: %1 ms</translation>
    </message>
    <message>
        <source>switch to %1</source>
        <translation>geç: %1</translation>
    </message>
</context>
<context>
    <name>ExportDlg</name>
    <message>
        <source>EXPORT...</source>
        <translation>DIŞA AKTAR...</translation>
    </message>
    <message>
        <source>Export profiles</source>
        <translation>Profilleri dışa aktar</translation>
    </message>
    <message>
        <source>Profiles to export</source>
        <translation>Dışa aktarılacak profiller</translation>
    </message>
    <message>
        <source>ALL</source>
        <translation>TÜMÜ</translation>
    </message>
    <message>
        <source>NONE</source>
        <translation>HİÇBİRİ</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>İPTAL</translation>
    </message>
    <message>
        <source>Profiles to export, with their macros:</source>
        <translation>Makrolarıyla birlikte dışa aktarılacak profiller:</translation>
    </message>
    <message>
        <source>No macros go with them.</source>
        <translation>Onlarla birlikte giden makro yok.</translation>
    </message>
    <message>
        <source>Macros that go with them: %1.</source>
        <translation>Onlarla birlikte giden makrolar: %1.</translation>
    </message>
    <message>
        <source>profiles</source>
        <translation>profiller</translation>
    </message>
    <message>
        <source>Profiles (*.json)</source>
        <translation>Profiller (*.json)</translation>
    </message>
    <message>
        <source>%1 was not written: %2</source>
        <translation>%1 yazılamadı: %2</translation>
    </message>
    <message>
        <source>One profile was exported to %1.</source>
        <translation>Bir profil %1 dosyasına aktarıldı.</translation>
    </message>
    <message>
        <source>%1 profiles were exported to %2.</source>
        <translation>%1 profil %2 dosyasına aktarıldı.</translation>
    </message>
</context>
<context>
    <name>FindBar</name>
    <message>
        <source>Find a function, key or macro</source>
        <translation>İşlev, tuş veya makro bul</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Bul</translation>
    </message>
    <message>
        <source>Keys that were found</source>
        <translation>Bulunan tuşlar</translation>
    </message>
    <message>
        <source>No key has that.</source>
        <translation>Hiçbir tuşta bu yok.</translation>
    </message>
    <message>
        <source>Keys: %1, profiles: %2.</source>
        <translation>Tuş: %1, profil: %2.</translation>
    </message>
    <message>
        <source>The first %1 are listed.</source>
        <translation>İlk %1 tanesi listelendi.</translation>
    </message>
</context>
<context>
    <name>HistoryPage</name>
    <message>
        <source>History</source>
        <translation>Geçmiş</translation>
    </message>
    <message>
        <source>Double-click a step, or press Enter, to go back or forth to it. The history is kept when the program is closed.</source>
        <translation>Bir adıma gitmek için çift tıklayın veya Enter’a basın. Program kapatıldığında geçmiş korunur.</translation>
    </message>
    <message>
        <source>As it was at the start</source>
        <translation>Başlangıçtaki durum</translation>
    </message>
    <message>
        <source>%1   (now)</source>
        <translation>%1   (şimdi)</translation>
    </message>
    <message>
        <source>Earlier steps are listed when you go back to the oldest one here.</source>
        <translation>Daha önceki adımlar, buradaki en eskiye dönünce listelenir.</translation>
    </message>
</context>
<context>
    <name>ImportDlg</name>
    <message>
        <source>No file is open.</source>
        <translation>Açık dosya yok.</translation>
    </message>
    <message>
        <source>IMPORT</source>
        <translation>İÇE AKTAR</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>İPTAL</translation>
    </message>
    <message>
        <source>Import profiles</source>
        <translation>Profilleri içe aktar</translation>
    </message>
    <message>
        <source>OPEN...</source>
        <translation>AÇ...</translation>
    </message>
    <message>
        <source>Profiles of the file</source>
        <translation>Dosyadaki profiller</translation>
    </message>
    <message>
        <source>PROFILE OF THE FILE</source>
        <translation>DOSYADAKİ PROFİL</translation>
    </message>
    <message>
        <source>KEYS</source>
        <translation>TUŞLAR</translation>
    </message>
    <message>
        <source>IN PLACE OF</source>
        <translation>YERİNE GEÇTİĞİ</translation>
    </message>
    <message>
        <source>Profiles (*.json);;All files (*)</source>
        <translation>Profiller (*.json);;Tüm dosyalar (*)</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 okunamıyor: %2</translation>
    </message>
    <message>
        <source>PROFILE %1</source>
        <translation>PROFİL %1</translation>
    </message>
    <message>
        <source>In place of</source>
        <translation>Yerine geçtiği</translation>
    </message>
    <message>
        <source>Two profiles would take the place of %1.</source>
        <translation>İki profil %1 yerine geçerdi.</translation>
    </message>
    <message>
        <source>Macros that come with them: %1.</source>
        <translation>Onlarla gelen makrolar: %1.</translation>
    </message>
    <message>
        <source>One profile was imported.</source>
        <translation>Bir profil içe aktarıldı.</translation>
    </message>
    <message>
        <source>%1 profiles were imported.</source>
        <translation>%1 profil içe aktarıldı.</translation>
    </message>
    <message>
        <source>The macro &quot;%1&quot; is named &quot;%2&quot; here, because there was another of its name.</source>
        <translation>Aynı adda başka bir makro olduğu için “%1” makrosunun adı burada “%2”.</translation>
    </message>
    <message>
        <source>%1 was not found on this computer; its functions do nothing until it is.</source>
        <translation>%1 bu bilgisayarda bulunamadı; bulunana kadar işlevleri çalışmaz.</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>KAPAT</translation>
    </message>
    <message>
        <source>The macros were imported.</source>
        <translation>Makrolar içe aktarıldı.</translation>
    </message>
</context>
<context>
    <name>KeyCombo</name>
    <message>
        <source>Key</source>
        <translation>Tuş</translation>
    </message>
</context>
<context>
    <name>KeyFinder</name>
    <message>
        <source>%1 (unassigned)</source>
        <translation>%1 (atanmamış)</translation>
    </message>
</context>
<context>
    <name>KeyText</name>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (değişti)</translation>
    </message>
    <message>
        <source>CODE %1</source>
        <translation>KOD %1</translation>
    </message>
    <message>
        <source>%1 at %2%</source>
        <translation>%1 (%2%)</translation>
    </message>
</context>
<context>
    <name>KeyTitle</name>
    <message>
        <source>Key %1</source>
        <translation>Tuş %1</translation>
    </message>
    <message>
        <source>Key %1 (%2)</source>
        <translation>Tuş %1 (%2)</translation>
    </message>
    <message>
        <source>Keys %1 and %2</source>
        <translation>Tuş %1 ve %2</translation>
    </message>
</context>
<context>
    <name>MacroEditor</name>
    <message>
        <source>RECORDING
Press keys. To finish, press Esc twice or click STOP.</source>
        <translation>KAYIT
Tuşlara basın. Bitirmek için iki kez Esc’e basın veya DURDUR’u tıklayın.</translation>
    </message>
    <message>
        <source>Events of the macro</source>
        <translation>Makronun olayları</translation>
    </message>
    <message>
        <source>RECORD</source>
        <translation>KAYDET</translation>
    </message>
    <message>
        <source>Record keys at the end of the macro</source>
        <translation>Makronun sonuna tuş kaydet</translation>
    </message>
    <message>
        <source>Delays of recorded keys</source>
        <translation>Kaydedilen tuşların gecikmeleri</translation>
    </message>
    <message>
        <source>delays as they were</source>
        <translation>olduğu gibi</translation>
    </message>
    <message>
        <source>no delays</source>
        <translation>gecikmesiz</translation>
    </message>
    <message>
        <source>fixed delays</source>
        <translation>sabit gecikme</translation>
    </message>
    <message>
        <source>Fixed delay in milliseconds</source>
        <translation>Milisaniye olarak sabit gecikme</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>SET ALL</source>
        <translation>TÜMÜNE UYGULA</translation>
    </message>
    <message>
        <source>Give all events of the macro this delay</source>
        <translation>Makronun tüm olaylarına bu gecikmeyi ver</translation>
    </message>
    <message>
        <source>Event to add</source>
        <translation>Eklenecek olay</translation>
    </message>
    <message>
        <source>press and release</source>
        <translation>bas ve bırak</translation>
    </message>
    <message>
        <source>press</source>
        <translation>bas</translation>
    </message>
    <message>
        <source>release</source>
        <translation>bırak</translation>
    </message>
    <message>
        <source>ADD</source>
        <translation>EKLE</translation>
    </message>
    <message>
        <source>Move the event up (Alt+Up)</source>
        <translation>Olayı yukarı taşı (Alt+Yukarı)</translation>
    </message>
    <message>
        <source>Move the event down (Alt+Down)</source>
        <translation>Olayı aşağı taşı (Alt+Aşağı)</translation>
    </message>
    <message>
        <source>DELETE</source>
        <translation>SİL</translation>
    </message>
    <message>
        <source>Chosen events:</source>
        <translation>Seçilen olaylar:</translation>
    </message>
    <message>
        <source>%1: %2 of %3 events</source>
        <translation>%1: %2/%3 olay</translation>
    </message>
    <message>
        <source>Make a new macro, then record keys.</source>
        <translation>Yeni bir makro oluşturun, sonra tuşları kaydedin.</translation>
    </message>
    <message>
        <source>STOP</source>
        <translation>DURDUR</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a key that a macro can have.</source>
        <translation>“%1”, bir makroda olabilecek bir tuş değil.</translation>
    </message>
    <message>
        <source>RECORDING: %1 of %2 events
Press keys. To finish, press Esc twice or click STOP.</source>
        <translation>KAYIT: %1 / %2 olay
Tuşlara basın. Bitirmek için iki kez Esc’e basın veya DURDUR’u tıklayın.</translation>
    </message>
</context>
<context>
    <name>MacroEventDelegate</name>
    <message>
        <source>release</source>
        <translation>bırak</translation>
    </message>
    <message>
        <source>press</source>
        <translation>bas</translation>
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
        <translation>%1 makrosuna olay ekle</translation>
    </message>
    <message>
        <source>Delete events of macro %1</source>
        <translation>%1 makrosundan olay sil</translation>
    </message>
    <message>
        <source>Move an event of macro %1</source>
        <translation>%1 makrosunun bir olayını taşı</translation>
    </message>
    <message>
        <source>Change delays of macro %1</source>
        <translation>%1 makrosunun gecikmelerini değiştir</translation>
    </message>
    <message>
        <source>▼ press</source>
        <translation>▼ bas</translation>
    </message>
    <message>
        <source>▲ release</source>
        <translation>▲ bırak</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>EVENT</source>
        <translation>OLAY</translation>
    </message>
    <message>
        <source>KEY</source>
        <translation>TUŞ</translation>
    </message>
    <message>
        <source>THEN WAIT</source>
        <translation>SONRA BEKLE</translation>
    </message>
    <message>
        <source>Change a delay of macro %1</source>
        <translation>%1 makrosunun bir gecikmesini değiştir</translation>
    </message>
    <message>
        <source>Change an event of macro %1</source>
        <translation>%1 makrosunun bir olayını değiştir</translation>
    </message>
</context>
<context>
    <name>MacroPage</name>
    <message>
        <source>BACK TO THE KEYS</source>
        <translation>TUŞLARA DÖN</translation>
    </message>
    <message>
        <source>NEW</source>
        <translation>YENİ</translation>
    </message>
    <message>
        <source>RENAME</source>
        <translation>YENİDEN ADLANDIR</translation>
    </message>
    <message>
        <source>DELETE</source>
        <translation>SİL</translation>
    </message>
    <message>
        <source>Macros</source>
        <translation>Makrolar</translation>
    </message>
    <message>
        <source>NO.</source>
        <translation>NO.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>AD</translation>
    </message>
    <message>
        <source>EVENTS</source>
        <translation>OLAYLAR</translation>
    </message>
    <message>
        <source>KEYS</source>
        <translation>TUŞLAR</translation>
    </message>
    <message>
        <source>NO KEY HAS IT</source>
        <translation>HİÇBİR TUŞTA YOK</translation>
    </message>
    <message>
        <source>KEYS THAT HAVE IT</source>
        <translation>BULUNDUĞU TUŞLAR</translation>
    </message>
    <message>
        <source>Go to this key</source>
        <translation>Bu tuşa git</translation>
    </message>
    <message>
        <source>Add macro %1</source>
        <translation>%1 makrosunu ekle</translation>
    </message>
    <message>
        <source>Macro</source>
        <translation>Makro</translation>
    </message>
    <message>
        <source>A macro needs a name.</source>
        <translation>Makronun bir adı olmalı.</translation>
    </message>
    <message>
        <source>Rename macro %1 to %2</source>
        <translation>%1 makrosunun adını %2 yap</translation>
    </message>
    <message>
        <source>There is another macro named &quot;%1&quot;.</source>
        <translation>“%1” adında başka bir makro var.</translation>
    </message>
    <message>
        <source>Delete macro %1</source>
        <translation>%1 makrosunu sil</translation>
    </message>
    <message>
        <source>Macro %1 was deleted.</source>
        <translation>%1 makrosu silindi.</translation>
    </message>
    <message>
        <source>Macro %1 was deleted and taken off %2 keys.</source>
        <translation>%1 makrosu silindi ve %2 tuştan kaldırıldı.</translation>
    </message>
    <message>
        <source>Record the macro, then go back and choose it for the key.</source>
        <translation>Makroyu kaydedin, sonra geri dönüp tuş için seçin.</translation>
    </message>
    <message>
        <source>The new macro was empty and was not kept.</source>
        <translation>Yeni makro boştu ve saklanmadı.</translation>
    </message>
    <message>
        <source>COPY</source>
        <translation>KOPYALA</translation>
    </message>
    <message>
        <source>Make another macro with the same events</source>
        <translation>Aynı olaylarla başka bir makro oluştur</translation>
    </message>
    <message>
        <source>Macro %1 was deleted and taken off one key.</source>
        <translation>%1 makrosu silindi ve bir tuştan kaldırıldı.</translation>
    </message>
    <message>
        <source>Move macro %1</source>
        <translation>%1 makrosunu taşı</translation>
    </message>
</context>
<context>
    <name>MacroRecorder</name>
    <message>
        <source>A macro holds at most %1 events.</source>
        <translation>Bir makroda en çok %1 olay olabilir.</translation>
    </message>
    <message>
        <source>The pad has no code for this key.</source>
        <translation>Pedde bu tuşun kodu yok.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>MAPPING</source>
        <translation>EŞLEME</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Dosya</translation>
    </message>
    <message>
        <source>&amp;Settings...</source>
        <translation>&amp;Ayarlar...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Çıkış</translation>
    </message>
    <message>
        <source>&amp;Profile</source>
        <translation>&amp;Profil</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>Dü&amp;zen</translation>
    </message>
    <message>
        <source>&amp;Find Keys...</source>
        <translation>&amp;Tuş bul...</translation>
    </message>
    <message>
        <source>Assign by &amp;Pressing Keys</source>
        <translation>&amp;Tuşa basarak ata</translation>
    </message>
    <message>
        <source>While a key of the pad is selected, the next key that is pressed is put on it. Off, the keyboard works the window.</source>
        <translation>Pedin bir tuşu seçiliyken basılan ilk tuş ona atanır. Kapalıyken klavye pencereyi kullanır.</translation>
    </message>
    <message>
        <source>&amp;Apply to Device</source>
        <translation>Cihaza &amp;uygula</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Görünüm</translation>
    </message>
    <message>
        <source>Profile &amp;Names</source>
        <translation>Profil &amp;adları</translation>
    </message>
    <message>
        <source>Everything is on the device.</source>
        <translation>Her şey cihazda.</translation>
    </message>
    <message>
        <source>Not on the device yet: %1.</source>
        <translation>Henüz cihazda değil: %1.</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>Geri alındı: %1</translation>
    </message>
    <message>
        <source>Done again: %1</source>
        <translation>Yinelendi: %1</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Geri al: %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Geri al</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Yinele: %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Yinele</translation>
    </message>
    <message>
        <source>Undo %1 (Ctrl+Z)</source>
        <translation>Geri al: %1 (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Redo %1 (Ctrl+Shift+Z)</source>
        <translation>Yinele: %1 (Ctrl+Shift+Z)</translation>
    </message>
    <message>
        <source>nothing to apply</source>
        <translation>uygulanacak bir şey yok</translation>
    </message>
    <message>
        <source>1 key to apply</source>
        <translation>uygulanacak 1 tuş</translation>
    </message>
    <message>
        <source>%1 keys to apply</source>
        <translation>uygulanacak %1 tuş</translation>
    </message>
    <message>
        <source>Device: %1   |   %2   |</source>
        <translation>Cihaz: %1   |   %2   |</translation>
    </message>
    <message>
        <source>READ ONLY</source>
        <translation>SALT OKUNUR</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Kaydedildi</translation>
    </message>
    <message>
        <source>NOT SAVED</source>
        <translation>KAYDEDİLMEDİ</translation>
    </message>
    <message>
        <source>CHANGES %1</source>
        <translation>DEĞİŞİKLİKLER %1</translation>
    </message>
    <message>
        <source>CHANGES</source>
        <translation>DEĞİŞİKLİKLER</translation>
    </message>
    <message>
        <source>%1%2 - VANTRIX</source>
        <translation>%1%2 - VANTRIX</translation>
    </message>
    <message>
        <source> (read only)</source>
        <translation> (salt okunur)</translation>
    </message>
    <message>
        <source>Click a key of the pad, then choose what it does.</source>
        <translation>Pedin bir tuşunu tıklayın, sonra ne yapacağını seçin.</translation>
    </message>
    <message>
        <source>CHECK %1</source>
        <translation>DENETİM %1</translation>
    </message>
    <message>
        <source>CHECK</source>
        <translation>DENETİM</translation>
    </message>
    <message>
        <source>%1 takes the next key you press. Ctrl+K, with no key selected, switches that off.</source>
        <translation>Basacağınız ilk tuş %1 tuşuna atanır. Hiçbir tuş seçili değilken Ctrl+K bunu kapatır.</translation>
    </message>
    <message>
        <source>The changes cannot be saved and are lost with the window. Close it?</source>
        <translation>Değişiklikler kaydedilemiyor ve pencereyle birlikte kaybolacak. Kapatılsın mı?</translation>
    </message>
    <message>
        <source>Nothing to undo</source>
        <translation>Geri alınacak bir şey yok</translation>
    </message>
    <message>
        <source>Nothing to redo</source>
        <translation>Yinelenecek bir şey yok</translation>
    </message>
    <message>
        <source>Steps undone: %1</source>
        <translation>Geri alınan adımlar: %1</translation>
    </message>
    <message>
        <source>Steps done again: %1</source>
        <translation>Yinelenen adımlar: %1</translation>
    </message>
</context>
<context>
    <name>MappingView</name>
    <message>
        <source>COMPANION</source>
        <translation>YARDIMCI</translation>
    </message>
    <message>
        <source>%1 is on the device.</source>
        <translation>%1 cihazda.</translation>
    </message>
    <message>
        <source>%1 did not reach the device.</source>
        <translation>%1 cihaza ulaşmadı.</translation>
    </message>
    <message>
        <source>Reset %1</source>
        <translation>%1 profilini sıfırla</translation>
    </message>
    <message>
        <source>The device was reset, and %1 with it. Undo brings its keys back; the other profiles are kept here and can be applied again.</source>
        <translation>Cihaz ve onunla birlikte %1 sıfırlandı. Geri al, tuşlarını geri getirir; diğer profiller burada saklanır ve yeniden uygulanabilir.</translation>
    </message>
    <message>
        <source>The device was reset. The profiles are kept here and can be applied again.</source>
        <translation>Cihaz sıfırlandı. Profiller burada saklanır ve yeniden uygulanabilir.</translation>
    </message>
</context>
<context>
    <name>MessageBar</name>
    <message>
        <source>DISMISS</source>
        <translation>GİZLE</translation>
    </message>
</context>
<context>
    <name>PadView</name>
    <message>
        <source>Picture of the pad</source>
        <translation>Pedin resmi</translation>
    </message>
</context>
<context>
    <name>ProfileCheck</name>
    <message>
        <source>%1 has the macro &quot;%2&quot;, which is not there any more.</source>
        <translation>%1: “%2” makrosu artık yok.</translation>
    </message>
    <message>
        <source>%1 has the macro &quot;%2&quot;, which is empty.</source>
        <translation>%1: “%2” makrosu boş.</translation>
    </message>
    <message>
        <source>%1 has a dual action without a second action.</source>
        <translation>%1: çift eylemin ikinci eylemi yok.</translation>
    </message>
    <message>
        <source>%1 has a dual action without a first action.</source>
        <translation>%1: çift eylemin birinci eylemi yok.</translation>
    </message>
    <message>
        <source>%1 has a function of %2, which was not found on this computer.</source>
        <translation>%1: bu bilgisayarda bulunamayan %2 programının bir işlevi var.</translation>
    </message>
    <message>
        <source>%1 have functions of %2, which was not found on this computer.</source>
        <translation>%1: bu bilgisayarda bulunamayan %2 programının işlevleri var.</translation>
    </message>
    <message>
        <source>%1 of %2 leads to this profile, and no key leads back.</source>
        <translation>%1 (%2) bu profile götürür, ancak geri götüren bir tuş yok.</translation>
    </message>
    <message>
        <source>%1 do the same: %2.</source>
        <translation>%1 aynı işi yapıyor: %2.</translation>
    </message>
</context>
<context>
    <name>ProfileExchange</name>
    <message>
        <source>top</source>
        <translation>en üst</translation>
    </message>
    <message>
        <source>%1 is not an object</source>
        <translation>%1 bir nesne değil</translation>
    </message>
    <message>
        <source>there is no member &quot;%1&quot; here</source>
        <translation>burada “%1” üyesi yok</translation>
    </message>
    <message>
        <source>%1 is not a list</source>
        <translation>%1 bir liste değil</translation>
    </message>
    <message>
        <source>%1 elements are more than %2</source>
        <translation>%1 öğe, %2 sınırından fazla</translation>
    </message>
    <message>
        <source>%1 is not a whole number from %2 to %3</source>
        <translation>%1, %2 ile %3 arasında bir tam sayı değil</translation>
    </message>
    <message>
        <source>%1 is not a text</source>
        <translation>%1 bir metin değil</translation>
    </message>
    <message>
        <source>the text holds a character that cannot be stored</source>
        <translation>metinde saklanamayan bir karakter var</translation>
    </message>
    <message>
        <source>two macros are named &quot;%1&quot;</source>
        <translation>iki makronun adı “%1”</translation>
    </message>
    <message>
        <source>profile %1 is here twice</source>
        <translation>%1. profil iki kez geçiyor</translation>
    </message>
    <message>
        <source>this is not a file of profiles</source>
        <translation>bu bir profil dosyası değil</translation>
    </message>
    <message>
        <source>the file is of version %1; this program reads up to %2</source>
        <translation>dosyanın sürümü %1; bu program %2 sürümüne kadar okur</translation>
    </message>
    <message>
        <source>a macro needs a name</source>
        <translation>makronun bir adı olmalı</translation>
    </message>
    <message>
        <source>these are %1 bytes and not %2</source>
        <translation>bunlar %1 bayt, %2 değil</translation>
    </message>
    <message>
        <source>%1 is neither true nor false</source>
        <translation>%1 ne doğru ne yanlış</translation>
    </message>
    <message>
        <source>key %1 is here twice</source>
        <translation>%1. tuş iki kez geçiyor</translation>
    </message>
    <message>
        <source>1 is not 0, 2 or 3</source>
        <translation>1; 0, 2 veya 3 değil</translation>
    </message>
    <message>
        <source>a key holds only one of app, hotKey, shortcut, extended and macro</source>
        <translation>bir tuşta app, hotKey, shortcut, extended ve macro alanlarından yalnızca biri olabilir</translation>
    </message>
    <message>
        <source>%1 is not an extended code</source>
        <translation>%1 genişletilmiş bir kod değil</translation>
    </message>
    <message>
        <source>Import profile %1</source>
        <translation>%1 profilini içe aktar</translation>
    </message>
    <message>
        <source>Import %1 profiles</source>
        <translation>%1 profili içe aktar</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>bir liste</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>bir nesne</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>hiçbir şey</translation>
    </message>
    <message>
        <source>line %1, column %2</source>
        <translation>satır %1, sütun %2</translation>
    </message>
    <message>
        <source>Import macros</source>
        <translation>Makroları içe aktar</translation>
    </message>
</context>
<context>
    <name>ProfileList</name>
    <message>
        <source>DEVICE</source>
        <translation>CİHAZ</translation>
    </message>
    <message>
        <source>PROFILES</source>
        <translation>PROFİLLER</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profiller</translation>
    </message>
    <message>
        <source>COPY</source>
        <translation>KOPYALA</translation>
    </message>
    <message>
        <source>Copy this profile over another one</source>
        <translation>Bu profili başka bir profilin üzerine kopyala</translation>
    </message>
    <message>
        <source>CLEAR</source>
        <translation>TEMİZLE</translation>
    </message>
    <message>
        <source>Take everything off the keys of this profile</source>
        <translation>Bu profilin tuşlarındaki her şeyi kaldır</translation>
    </message>
    <message>
        <source>Move up (Alt+Up)</source>
        <translation>Yukarı taşı (Alt+Yukarı)</translation>
    </message>
    <message>
        <source>Move down (Alt+Down)</source>
        <translation>Aşağı taşı (Alt+Aşağı)</translation>
    </message>
    <message>
        <source>&amp;Rename...</source>
        <translation>&amp;Yeniden adlandır...</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>Ç&amp;oğalt</translation>
    </message>
    <message>
        <source>Copy &amp;Over</source>
        <translation>&amp;Üzerine kopyala</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Temizle</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Yu&amp;karı taşı</translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation>A&amp;şağı taşı</translation>
    </message>
    <message>
        <source>&amp;Next Profile</source>
        <translation>&amp;Sonraki profil</translation>
    </message>
    <message>
        <source>&amp;Previous Profile</source>
        <translation>Ö&amp;nceki profil</translation>
    </message>
    <message>
        <source>shown</source>
        <translation>gösteriliyor</translation>
    </message>
    <message>
        <source>the device acts by it</source>
        <translation>cihaz bunu kullanıyor</translation>
    </message>
    <message>
        <source>differs from what the device has</source>
        <translation>cihazdakinden farklı</translation>
    </message>
    <message>
        <source>All profiles are in use: choose one to copy over.</source>
        <translation>Tüm profiller kullanımda: üzerine yazılacak birini seçin.</translation>
    </message>
    <message>
        <source>Duplicate %1</source>
        <translation>%1 profilini çoğalt</translation>
    </message>
    <message>
        <source>%1 was copied to profile %2.</source>
        <translation>%1, profil %2 üzerine kopyalandı.</translation>
    </message>
    <message>
        <source>%1  (unused)</source>
        <translation>%1  (kullanılmıyor)</translation>
    </message>
    <message>
        <source>Clear %1</source>
        <translation>%1 profilini temizle</translation>
    </message>
    <message>
        <source>%1 was cleared. Undo brings it back.</source>
        <translation>%1 temizlendi. Geri al onu geri getirir.</translation>
    </message>
    <message>
        <source>Move %1</source>
        <translation>%1 profilini taşı</translation>
    </message>
    <message>
        <source>%1 has nothing on its keys.</source>
        <translation>%1 profilinin tuşlarında hiçbir şey yok.</translation>
    </message>
</context>
<context>
    <name>ProfileStore</name>
    <message>
        <source>%1 COPY</source>
        <translation>%1 KOPYASI</translation>
    </message>
    <message>
        <source>PROFILE %1</source>
        <translation>PROFİL %1</translation>
    </message>
</context>
<context>
    <name>SettingsDlg</name>
    <message>
        <source>Settings</source>
        <translation>Ayarlar</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Dil:</translation>
    </message>
    <message>
        <source>&amp;Hot-key catalog:</source>
        <translation>&amp;Kısayol kataloğu:</translation>
    </message>
    <message>
        <source>Hot-key catalog</source>
        <translation>Kısayol kataloğu</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>bulunamadı</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Program</translation>
    </message>
    <message>
        <source>Keys with &amp;macros in a profile:</source>
        <translation>Bir profildeki &amp;makro tuşları:</translation>
    </message>
    <message>
        <source>BROWSE</source>
        <translation>GÖZAT</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>İPTAL</translation>
    </message>
    <message>
        <source>There is no folder %1.</source>
        <translation>%1 klasörü yok.</translation>
    </message>
    <message>
        <source>There is no program %1.</source>
        <translation>%1 programı yok.</translation>
    </message>
</context>
<context>
    <name>ShellPages</name>
    <message>
        <source>CHANGES</source>
        <translation>DEĞİŞİKLİKLER</translation>
    </message>
    <message>
        <source>HISTORY</source>
        <translation>GEÇMİŞ</translation>
    </message>
    <message>
        <source>MACROS</source>
        <translation>MAKROLAR</translation>
    </message>
    <message>
        <source>DEVICE</source>
        <translation>CİHAZ</translation>
    </message>
    <message>
        <source>CHECK</source>
        <translation>DENETİM</translation>
    </message>
    <message>
        <source>Import profiles...</source>
        <translation>Profilleri içe aktar...</translation>
    </message>
    <message>
        <source>Export profiles...</source>
        <translation>Profilleri dışa aktar...</translation>
    </message>
</context>
<context>
    <name>StepName</name>
    <message>
        <source>Depth of key %1: %2%</source>
        <translation>Tuş %1 derinliği: %2%</translation>
    </message>
    <message>
        <source>Clear key %1</source>
        <translation>Tuş %1: temizle</translation>
    </message>
    <message>
        <source>Assign %1 to key %2</source>
        <translation>Ata: %1, tuş %2</translation>
    </message>
    <message numerus="yes">
        <source>Change %n key(s) in several profiles</source>
        <translation>
            <numerusform>Birden çok profilde %n tuşu değiştir</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear %1 keys</source>
        <translation>%1 tuşu temizle</translation>
    </message>
    <message>
        <source>Dual actions on %1 keys</source>
        <translation>%1 tuşta çift eylem</translation>
    </message>
    <message>
        <source>Change %1 keys</source>
        <translation>%1 tuşu değiştir</translation>
    </message>
    <message>
        <source>Rename macro %1 to %2</source>
        <translation>%1 makrosunun adını %2 yap</translation>
    </message>
    <message>
        <source>Create macro %1</source>
        <translation>%1 makrosunu oluştur</translation>
    </message>
    <message>
        <source>Delete macro %1</source>
        <translation>%1 makrosunu sil</translation>
    </message>
    <message>
        <source>Move a macro</source>
        <translation>Bir makroyu taşı</translation>
    </message>
    <message>
        <source>Edit macro %1</source>
        <translation>%1 makrosunu düzenle</translation>
    </message>
    <message>
        <source>Preset: %1</source>
        <translation>Ön ayar: %1</translation>
    </message>
    <message>
        <source>Name profile %1: %2</source>
        <translation>Profil %1 adı: %2</translation>
    </message>
    <message>
        <source>Move a profile</source>
        <translation>Bir profili taşı</translation>
    </message>
    <message>
        <source>Pressure sensing on</source>
        <translation>Basınç algılama açık</translation>
    </message>
    <message>
        <source>Pressure sensing off</source>
        <translation>Basınç algılama kapalı</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Değişiklik</translation>
    </message>
</context>
<context>
    <name>StoreKeeper</name>
    <message>
        <source>The store %1 was missing. The last good copy of it is used.</source>
        <translation>%1 deposu yoktu. Son sağlam kopyası kullanılıyor.</translation>
    </message>
    <message>
        <source>The store %1 was written by a newer version of this program.</source>
        <translation>%1 deposu bu programın daha yeni bir sürümüyle yazılmış.</translation>
    </message>
    <message>
        <source>The store %1 is damaged and cannot be read.</source>
        <translation>%1 deposu bozuk ve okunamıyor.</translation>
    </message>
    <message>
        <source>It was left as it is.</source>
        <translation>Olduğu gibi bırakıldı.</translation>
    </message>
    <message>
        <source>It was kept as %1.</source>
        <translation>%1 olarak saklandı.</translation>
    </message>
    <message>
        <source>The last good copy is used.</source>
        <translation>Son sağlam kopya kullanılıyor.</translation>
    </message>
    <message>
        <source>There is no good copy of it, so everything starts empty.</source>
        <translation>Sağlam bir kopyası yok; bu yüzden her şey boş başlıyor.</translation>
    </message>
    <message>
        <source>The store %1 was brought up to date. The file of the earlier version was kept as %2.</source>
        <translation>%1 deposu güncellendi. Önceki sürümün dosyası %2 olarak saklandı.</translation>
    </message>
    <message>
        <source>The store %1 was replaced by another file while the program was running. That file was kept as %2, and the store was written again.</source>
        <translation>%1 deposu, program çalışırken başka bir dosyayla değiştirildi. O dosya %2 olarak saklandı ve depo yeniden yazıldı.</translation>
    </message>
    <message>
        <source>The store %1 was removed while the program was running. It was written again.</source>
        <translation>%1 deposu, program çalışırken silindi. Yeniden yazıldı.</translation>
    </message>
    <message>
        <source>All changes are saved again.</source>
        <translation>Tüm değişiklikler yeniden kaydedildi.</translation>
    </message>
    <message>
        <source>Changes are kept in memory and saved as soon as possible.</source>
        <translation>Değişiklikler bellekte tutuluyor ve mümkün olur olmaz kaydedilecek.</translation>
    </message>
    <message>
        <source>There is no room on the disk for the store %1.</source>
        <translation>Diskte %1 deposu için yer yok.</translation>
    </message>
    <message>
        <source>Another program is using the store %1.</source>
        <translation>%1 deposunu başka bir program kullanıyor.</translation>
    </message>
    <message>
        <source>The store %1 cannot be written.</source>
        <translation>%1 deposu yazılamıyor.</translation>
    </message>
    <message>
        <source>What it holds is shown as soon as it can be read.</source>
        <translation>İçeriği, okunabildiği anda gösterilecek.</translation>
    </message>
    <message>
        <source>The last good copy of it is shown until what it holds can be read.</source>
        <translation>İçeriği okunabilene kadar son sağlam kopyası gösteriliyor.</translation>
    </message>
    <message>
        <source>Another window has the store %1 open.</source>
        <translation>%1 deposu başka bir pencerede açık.</translation>
    </message>
    <message>
        <source>It is shown here, but changes made here are not kept.</source>
        <translation>Burada gösteriliyor, ama burada yapılan değişiklikler saklanmıyor.</translation>
    </message>
    <message>
        <source>It cannot be read here, and changes made here are not kept.</source>
        <translation>Burada okunamıyor ve burada yapılan değişiklikler saklanmıyor.</translation>
    </message>
    <message>
        <source>The copy %1 cannot be read. It was kept as %2.</source>
        <translation>%1 kopyası okunamıyor. %2 olarak saklandı.</translation>
    </message>
    <message>
        <source>The store %1 on the disk was another than what was shown here when something was changed. It was kept as %2, and a new one was begun.</source>
        <translation>Diskteki %1 deposu, bir şey değiştirildiğinde burada gösterilenden başkaydı. %2 olarak saklandı ve yenisi başlatıldı.</translation>
    </message>
    <message>
        <source>The store %1 is shown as it is on the disk now.</source>
        <translation>%1 deposu şimdi diskte olduğu gibi gösteriliyor.</translation>
    </message>
</context>
</TS>
