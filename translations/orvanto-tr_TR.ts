<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr_TR" sourcelanguage="en">
<context>
    <name>AddButton</name>
    <message>
        <source>There are no files on the clipboard</source>
        <translation>Panoda dosya yok</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Klasör ekle</translation>
    </message>
    <message>
        <source>Add files</source>
        <translation>Dosya ekle</translation>
    </message>
    <message>
        <source>Add files…</source>
        <translation>Dosya ekle…</translation>
    </message>
    <message>
        <source>Add folder…</source>
        <translation>Klasör ekle…</translation>
    </message>
</context>
<context>
    <name>AllOrNothing</name>
    <message>
        <source>All or nothing</source>
        <translation>Ya hep ya hiç</translation>
    </message>
    <message>
        <source>All or nothing: a run renames every file of the list, or none</source>
        <translation>Ya hep ya hiç: bir çalıştırma listedeki dosyaların ya tümünü yeniden adlandırır ya da hiçbirini adlandırmaz</translation>
    </message>
    <message>
        <source>%1: nothing will be renamed, as %2 cannot be</source>
        <translation>%1: hiçbiri yeniden adlandırılmayacak, %2 tanesi adlandırılamaz</translation>
    </message>
    <message>
        <source>New names so far: %1 of %2. Put everything back, or keep what is done?</source>
        <translation>Şimdiye kadarki yeni adlar: %1 / %2. Her şey eski hâline getirilsin mi, yoksa yapılanlar korunsun mu?</translation>
    </message>
    <message>
        <source>Put everything back</source>
        <translation>Her şeyi eski hâline getir</translation>
    </message>
    <message>
        <source>Keep what is done</source>
        <translation>Yapılanları koru</translation>
    </message>
    <message>
        <source>Kept</source>
        <extracomment>of the report: files that have the name already which the rules make; a number follows</extracomment>
        <translation>Korunan</translation>
    </message>
    <message>
        <source>Rename what can be</source>
        <translation>Mümkün olanları adlandır</translation>
    </message>
    <message>
        <source>Nothing was renamed, as not every file can be.</source>
        <translation>Bazı dosyalar adlandırılamadığı için hiçbiri yeniden adlandırılmadı.</translation>
    </message>
    <message>
        <source>Nothing was renamed: one file failed, and the others have their old names again.</source>
        <translation>Hiçbiri yeniden adlandırılmadı: bir dosya adlandırılamadı, ötekiler yine eski adlarını taşıyor.</translation>
    </message>
    <message>
        <source>Nothing was renamed: the run was cancelled.</source>
        <translation>Hiçbiri yeniden adlandırılmadı: çalıştırma iptal edildi.</translation>
    </message>
    <message>
        <source>The run could not be put back as a whole; files that do not have their old names: %1</source>
        <translation>Çalıştırma bütünüyle eski hâline getirilemedi; eski adını taşımayan dosyalar: %1</translation>
    </message>
    <message>
        <source>Nothing was renamed: the journal of the run cannot be written.</source>
        <translation>Hiçbiri yeniden adlandırılmadı: çalıştırmanın günlüğü yazılamıyor.</translation>
    </message>
    <message>
        <source>The run is not finished yet.</source>
        <translation>Çalıştırma henüz tamamlanmadı.</translation>
    </message>
    <message>
        <source>Could not put back file &apos;%1&apos;: it is called &apos;%2&apos;</source>
        <translation>&apos;%1&apos; dosyası eski hâline getirilemedi: adı &apos;%2&apos;</translation>
    </message>
</context>
<context>
    <name>DialogNotice</name>
    <message>
        <source>Don&apos;t show this message again.</source>
        <translation>Bu iletiyi bir daha gösterme.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
    <message>
        <source>Advice</source>
        <translation>Öneri</translation>
    </message>
</context>
<context>
    <name>DialogSettings</name>
    <message>
        <source>Global Settings</source>
        <translation>Genel Ayarlar</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Genel</translation>
    </message>
    <message>
        <source>Add-ons</source>
        <translation>Ek Bileşenler</translation>
    </message>
    <message>
        <source>Localisation</source>
        <translation>Yerelleştirme</translation>
    </message>
    <message>
        <source>Donate</source>
        <translation>Bağış Yap</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Bilgi</translation>
    </message>
    <message>
        <source>Requires registry entry</source>
        <translation>Kayıt defteri girdisi gerektirir</translation>
    </message>
    <message>
        <source>Load on system start-up</source>
        <translation>Sistem açılışında başlat</translation>
    </message>
    <message>
        <source>Minimize on start</source>
        <translation>Başlangıçta simge durumuna küçült</translation>
    </message>
    <message>
        <source>Disable splash screen</source>
        <translation>Açılış ekranını devre dışı bırak</translation>
    </message>
    <message>
        <source>Restore window layout</source>
        <translation>Pencere düzenini geri yükle</translation>
    </message>
    <message>
        <source>Restore window geometry</source>
        <translation>Pencere boyutunu ve konumunu geri yükle</translation>
    </message>
    <message>
        <source>Minimize to tray icon</source>
        <translation>Sistem tepsisi simgesine küçült</translation>
    </message>
    <message>
        <source>Automatically check for new version</source>
        <translation>Yeni sürümleri otomatik olarak denetle</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>Şimdi Denetle</translation>
    </message>
    <message>
        <source>Plugins</source>
        <translation>Eklentiler</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Kod</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Dil</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Ülke</translation>
    </message>
    <message>
        <source>Translation: Kavrondel</source>
        <translation>Çeviri: Kavrondel</translation>
    </message>
    <message>
        <source>Support this project</source>
        <translation>Bu projeyi destekleyin</translation>
    </message>
    <message>
        <source>This application is freeware and will always remain free. </source>
        <translation>Bu uygulama ücretsizdir ve her zaman ücretsiz kalacaktır. </translation>
    </message>
    <message>
        <source>By making a small contribution you can help us in developing, upgrading and maintaining our products.</source>
        <translation>Küçük bir katkıda bulunarak ürünlerimizi geliştirmemize, güncellememize ve sürdürmemize yardımcı olabilirsiniz.</translation>
    </message>
    <message>
        <source>Application Directory</source>
        <translation>Uygulama Klasörü</translation>
    </message>
    <message>
        <source>Application Data Directory</source>
        <translation>Uygulama Veri Klasörü</translation>
    </message>
    <message>
        <source>Visit our website</source>
        <translation>Web sitemizi ziyaret edin</translation>
    </message>
    <message>
        <source>Send us feedback</source>
        <translation>Bize geri bildirim gönderin</translation>
    </message>
    <message>
        <source>&lt;b style=&apos;color:#888&apos;&gt;Made by Kavrondel&lt;/b&gt;</source>
        <translation>&lt;b style=&apos;color:#888&apos;&gt;Geliştiren: Kavrondel&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Kaydet</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>The command completed successfully.</source>
        <translation>Komut başarıyla tamamlandı.</translation>
    </message>
    <message>
        <source>The command failed to execute.</source>
        <translation>Komut yürütülemedi.</translation>
    </message>
    <message>
        <source>Make sure you have administrator rights.</source>
        <translation>Yönetici haklarına sahip olduğunuzdan emin olun.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
</context>
<context>
    <name>DialogStart</name>
    <message>
        <source>Code</source>
        <translation>Kod</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Dil</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Ülke</translation>
    </message>
    <message>
        <source>Automatically check for new versions</source>
        <translation>Yeni sürümleri otomatik olarak denetle</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>İ&amp;leri</translation>
    </message>
    <message>
        <source>We would like to thank you for your confidence and hope you&apos;ll enjoy this software.</source>
        <translation>Güveniniz için teşekkür eder, bu yazılımı beğeneceğinizi umarız.</translation>
    </message>
    <message>
        <source>Discover more products from us:</source>
        <translation>Diğer ürünlerimizi keşfedin:</translation>
    </message>
    <message>
        <source>We are looking for native speaking translators.</source>
        <translation>Ana diline çeviri yapacak çevirmenler arıyoruz.</translation>
    </message>
    <message>
        <source>Please contact us at: </source>
        <translation>Lütfen bize ulaşın: </translation>
    </message>
</context>
<context>
    <name>ExampleRules</name>
    <message>
        <source>Photo</source>
        <translation>Fotoğraf</translation>
    </message>
    <message>
        <source>Number photos</source>
        <translation>Fotoğrafları numaralandır</translation>
    </message>
    <message>
        <source>Blanks for underscores</source>
        <translation>Alt çizgi yerine boşluk</translation>
    </message>
    <message>
        <source>Tidy upper and lower case</source>
        <translation>Büyük ve küçük harfleri düzenle</translation>
    </message>
    <message>
        <source>Without camera prefixes</source>
        <translation>Kamera ön ekleri olmadan</translation>
    </message>
    <message>
        <source>Dates as 2024-01-31</source>
        <translation>Tarihler 2024-01-31 biçiminde</translation>
    </message>
    <message>
        <source>Track numbers with two digits</source>
        <translation>İki basamaklı parça numaraları</translation>
    </message>
    <message>
        <source>&quot;Title - Artist&quot; for &quot;Artist - Title&quot;</source>
        <translation>“Sanatçı - Parça” yerine “Parça - Sanatçı”</translation>
    </message>
</context>
<context>
    <name>ExplorerModel</name>
    <message>
        <source>Name</source>
        <translation>Ad</translation>
    </message>
</context>
<context>
    <name>Fates</name>
    <message>
        <source>the file is not there</source>
        <translation>dosya yerinde değil</translation>
    </message>
    <message>
        <source>the new name is empty or only dots</source>
        <translation>yeni ad boş ya da yalnızca noktalardan oluşuyor</translation>
    </message>
    <message>
        <source>there is no such folder</source>
        <translation>böyle bir klasör yok</translation>
    </message>
    <message>
        <source>the file system does not take the new name</source>
        <translation>dosya sistemi yeni adı kabul etmiyor</translation>
    </message>
    <message>
        <source>the new name is too long</source>
        <translation>yeni ad çok uzun</translation>
    </message>
    <message>
        <source>nothing can be renamed in this folder</source>
        <translation>bu klasörde yeniden adlandırma yapılamıyor</translation>
    </message>
    <message>
        <source>the new name holds half a character</source>
        <translation>yeni adda yarım bir karakter var</translation>
    </message>
    <message>
        <source>the system refused</source>
        <translation>sistem reddetti</translation>
    </message>
    <message>
        <source>the name is taken</source>
        <translation>bu ad kullanılıyor</translation>
    </message>
    <message>
        <source>row %1 takes the name %2</source>
        <translation>%1. satır %2 adını alıyor</translation>
    </message>
    <message>
        <source>row %1 still has the name %2</source>
        <translation>%1. satır hâlâ %2 adını taşıyor</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 dosya</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 dosya</translation>
    </message>
    <message>
        <source>1 keeps its name</source>
        <translation>1 tanesi adını koruyor</translation>
    </message>
    <message>
        <source>%1 keep their names</source>
        <translation>%1 tanesi adını koruyor</translation>
    </message>
    <message>
        <source>checking…</source>
        <translation>denetleniyor…</translation>
    </message>
    <message>
        <source>Go to the next row in trouble (F8)</source>
        <translation>Sonraki sorunlu satıra git (F8)</translation>
    </message>
    <message>
        <source>%1, %2 selected</source>
        <translation>%1, %2 seçili</translation>
    </message>
    <message>
        <source>%1: %2 will be renamed, %3, %4 cannot</source>
        <translation>%1: %2 tanesi yeniden adlandırılacak, %3, %4 tanesi adlandırılamaz</translation>
    </message>
    <message>
        <source>%1: %2 will be renamed, %3, %4 cannot, %5 unknown</source>
        <translation>%1: %2 tanesi yeniden adlandırılacak, %3, %4 tanesi adlandırılamaz, %5 tanesi belirsiz</translation>
    </message>
    <message>
        <source>Keeps its name.</source>
        <translation>Adını koruyor.</translation>
    </message>
    <message>
        <source>Cannot be told before the run.</source>
        <translation>Yeniden adlandırmadan önce bilinemez.</translation>
    </message>
    <message>
        <source>Stays: %1.</source>
        <translation>Olduğu gibi kalıyor: %1.</translation>
    </message>
    <message>
        <source>Moves to the folder %1.</source>
        <translation>%1 klasörüne taşınacak.</translation>
    </message>
    <message>
        <source>The new name leads to the folder %1.</source>
        <translation>Yeni ad %1 klasörüne götürüyor.</translation>
    </message>
    <message>
        <source>Not renamed: %1.</source>
        <translation>Yeniden adlandırılmadı: %1.</translation>
    </message>
    <message>
        <source>Show details…</source>
        <translation>Ayrıntıları göster…</translation>
    </message>
    <message>
        <source>Not Renamed</source>
        <translation>Yeniden adlandırılmayanlar</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Ad</translation>
    </message>
    <message>
        <source>New name</source>
        <translation>Yeni ad</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Klasör</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopyala</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
    <message>
        <source>another file has its name</source>
        <translation>adını başka bir dosya taşıyor</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Rules</source>
        <translation>Kurallar</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ekle</translation>
    </message>
    <message>
        <source>Active Rules</source>
        <translation>Etkin Kurallar</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>Kural</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Özellikler</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>Listeyi temizle</translation>
    </message>
    <message>
        <source>File List</source>
        <translation>Dosya Listesi</translation>
    </message>
    <message>
        <source>Name Filter</source>
        <translation>Ad Süzgeci</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Temizle</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Önizleme</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Yeniden Adlandır</translation>
    </message>
    <message>
        <source>Show full path</source>
        <translation>Tam yolu göster</translation>
    </message>
    <message>
        <source>Application Log</source>
        <translation>Uygulama Günlüğü</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zaman</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>İleti</translation>
    </message>
    <message>
        <source>Save logs</source>
        <translation>Günlükleri kaydet</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Kaydet</translation>
    </message>
    <message>
        <source>Include debug messages</source>
        <translation>Hata ayıklama iletilerini dahil et</translation>
    </message>
    <message>
        <source>Debug</source>
        <translation>Hata Ayıklama</translation>
    </message>
    <message>
        <source>Open log directory</source>
        <translation>Günlük klasörünü aç</translation>
    </message>
    <message>
        <source>Global Settings</source>
        <translation>Genel Ayarlar</translation>
    </message>
    <message>
        <source>File Explorer</source>
        <translation>Dosya Gezgini</translation>
    </message>
    <message>
        <source>Please wait</source>
        <translation>Lütfen bekleyin</translation>
    </message>
    <message>
        <source>Acquire files</source>
        <translation>Dosyalar alınıyor</translation>
    </message>
    <message>
        <source>File renaming started</source>
        <translation>Dosyaları yeniden adlandırma işlemi başladı</translation>
    </message>
    <message>
        <source>Could not rename file</source>
        <translation>Dosya yeniden adlandırılamadı</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Toplam</translation>
    </message>
    <message>
        <source>Processed</source>
        <translation>İşlenen</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Başarısız</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Rapor</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
    <message>
        <source>Please support us if you like this software and want to keep our service alive.</source>
        <translation>Bu yazılımı beğendiyseniz ve hizmetimizin sürmesini istiyorsanız lütfen bizi destekleyin.</translation>
    </message>
    <message>
        <source>Thank you!</source>
        <translation>Teşekkür ederiz!</translation>
    </message>
    <message>
        <source>Application has been minimized.</source>
        <translation>Uygulama simge durumuna küçültüldü.</translation>
    </message>
    <message>
        <source>Click the tray icon to show.</source>
        <translation>Göstermek için tepsi simgesine tıklayın.</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opaklık</translation>
    </message>
    <message>
        <source>Stay on Top</source>
        <translation>Her Zaman Üstte</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Yukarı taşı</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Kaldır</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Aşağı taşı</translation>
    </message>
    <message>
        <source>Undo the last run</source>
        <translation>Son çalıştırmayı geri al</translation>
    </message>
    <message>
        <source>Undo, redo and earlier runs</source>
        <translation>Geri al, yinele ve önceki çalıştırmalar</translation>
    </message>
    <message>
        <source>Add files and folders</source>
        <translation>Dosya ve klasör ekle</translation>
    </message>
    <message>
        <source>Sort the files</source>
        <translation>Dosyaları sırala</translation>
    </message>
    <message>
        <source>Drop files or folders here, or press Ctrl+O</source>
        <translation>Dosyaları veya klasörleri buraya bırakın ya da Ctrl+O tuşlarına basın</translation>
    </message>
    <message>
        <source>Choose a kind of rule above, fill in its fields and press &quot;%1&quot;</source>
        <extracomment>%1 is the text of the button &quot;Add&quot;</extracomment>
        <translation>Yukarıdan bir kural türü seçin, alanlarını doldurun ve “%1” düğmesine basın</translation>
    </message>
</context>
<context>
    <name>Places</name>
    <message>
        <source>Home</source>
        <translation>Ana klasör</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Masaüstü</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Resimler</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Müzik</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Belgeler</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>İndirilenler</translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Drive</source>
        <translation>Sürücü</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Klasör</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Dosya</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>%1 dosyası</translation>
    </message>
</context>
<context>
    <name>QAbstractSocket</name>
    <message>
        <source>Socket operation timed out</source>
        <translation>Soket işlemi zaman aşımına uğradı</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Tümünü Seç</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>&amp;Artır</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>A&amp;zalt</translation>
    </message>
</context>
<context>
    <name>QDialog</name>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
</context>
<context>
    <name>QDockWidget</name>
    <message>
        <source>Float</source>
        <translation>Yüzdür</translation>
    </message>
    <message>
        <source>Undocks and re-attaches the dock widget</source>
        <translation>Paneli ayırır ve yeniden yerleştirir</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
    <message>
        <source>Closes the dock widget</source>
        <translation>Paneli kapatır</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Sil</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;Yeni klasör</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Aç</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>Y&amp;eniden adlandır</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Kaydet</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Tüm dosyalar (*)</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Geri</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Ayrıntı görünümüne geç</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Liste görünümüne geç</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Yeni klasör oluştur</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Yeni bir klasör oluştur</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Ayrıntı görünümü</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>&amp;Dosya adı:</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dosyalar</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Dosya türü:</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>İleri</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Geri git</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>İleri git</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Üst klasöre git</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Liste görünümü</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Yerler ve yer imleri listesi</translation>
    </message>
    <message>
        <source>Look in:</source>
        <translation>Konum:</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Üst klasör</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>&amp;Gizli dosyaları göster</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Kenar çubuğu</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Klasör:</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 zaten var.
Değiştirilsin mi?</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
Dosya bulunamadı.
Lütfen dosya adını denetleyin.</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Göster </translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>&amp;Seç</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>Klasörler</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Klasör bulunamadı.
Lütfen adın doğru olup olmadığını denetleyin.</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Computer</source>
        <translation>Bilgisayar</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Ad</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Boyut</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tür</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Değiştirilme tarihi</translation>
    </message>
</context>
<context>
    <name>QHttp</name>
    <message>
        <source>Connection refused</source>
        <translation>Bağlantı reddedildi</translation>
    </message>
    <message>
        <source>Connection closed</source>
        <translation>Bağlantı kapatıldı</translation>
    </message>
    <message>
        <source>Host %1 not found</source>
        <translation>%1 sunucusu bulunamadı</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Geri Al</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Yinele</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Ke&amp;s</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopyala</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Ya&amp;pıştır</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Sil</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tümünü Seç</translation>
    </message>
</context>
<context>
    <name>QNativeSocketEngine</name>
    <message>
        <source>Host unreachable</source>
        <translation>Sunucuya ulaşılamıyor</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>Ağa ulaşılamıyor</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Evet</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Yeniden Dene</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Yok Say</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Aç</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Kaydet</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Hayır</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Buraya kaydır</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Sol kenar</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>En üst</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Sağ kenar</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>En alt</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Bir sayfa sola</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Bir sayfa yukarı</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Bir sayfa sağa</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Bir sayfa aşağı</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Sola kaydır</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Yukarı kaydır</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Sağa kaydır</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Aşağı kaydır</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Shift</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Yukarı</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Aşağı</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Enter</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopyala</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>&amp;Bağlantı Adresini Kopyala</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tümünü Seç</translation>
    </message>
</context>
<context>
    <name>RuleEdit</name>
    <message>
        <source>Apply</source>
        <translation>Uygula</translation>
    </message>
    <message>
        <source>Put these values in the place of the rule</source>
        <translation>Kuralın yerine bu değerleri koy</translation>
    </message>
    <message>
        <source>Leave the rule as it is</source>
        <translation>Kuralı olduğu gibi bırak</translation>
    </message>
</context>
<context>
    <name>RuleSetDialog</name>
    <message>
        <source>Rule sets</source>
        <translation>Kural kümeleri</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Yeniden Adlandır</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Sil</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>İçe Aktar…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Dışa Aktar…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
</context>
<context>
    <name>RuleSetMenu</name>
    <message>
        <source>Rule sets</source>
        <translation>Kural kümeleri</translation>
    </message>
    <message>
        <source>Save the active rules under a name, and take them up again</source>
        <translation>Etkin kuralları bir adla kaydet ve yeniden kullan</translation>
    </message>
    <message>
        <source>The rules were changed since.</source>
        <translation>Kurallar o zamandan beri değiştirildi.</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>Son kullanılan</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Kaydet</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Farklı Kaydet…</translation>
    </message>
    <message>
        <source>Manage…</source>
        <translation>Yönet…</translation>
    </message>
    <message>
        <source>Open file…</source>
        <translation>Dosya Aç…</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>Örnekler</translation>
    </message>
</context>
<context>
    <name>RuleSetQuestions</name>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Rule sets</source>
        <translation>Kural kümeleri</translation>
    </message>
    <message>
        <source>The active rules are not saved. Replace them?</source>
        <translation>Etkin kurallar kaydedilmedi. Değiştirilsin mi?</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Değiştir</translation>
    </message>
    <message>
        <source>There is a rule set &quot;%1&quot; already. Replace it?</source>
        <translation>“%1” adlı bir kural kümesi zaten var. Değiştirilsin mi?</translation>
    </message>
    <message>
        <source>Delete the rule set &quot;%1&quot;?</source>
        <translation>“%1” kural kümesi silinsin mi?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Sil</translation>
    </message>
    <message>
        <source>Save rule set</source>
        <translation>Kural kümesini kaydet</translation>
    </message>
    <message>
        <source>Name of the rule set</source>
        <translation>Kural kümesinin adı</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Kaydet</translation>
    </message>
    <message>
        <source>Open rule set</source>
        <translation>Kural kümesi aç</translation>
    </message>
    <message>
        <source>No rules were loaded from %1:</source>
        <translation>%1 dosyasından kural yüklenmedi:</translation>
    </message>
    <message>
        <source>The rule set could not be saved:</source>
        <translation>Kural kümesi kaydedilemedi:</translation>
    </message>
    <message>
        <source>The rule set could not be deleted:</source>
        <translation>Kural kümesi silinemedi:</translation>
    </message>
    <message>
        <source>The rule set could not be renamed:</source>
        <translation>Kural kümesi yeniden adlandırılamadı:</translation>
    </message>
</context>
<context>
    <name>RuleSets</name>
    <message>
        <source>rule %1, %2</source>
        <translation>kural %1, %2</translation>
    </message>
    <message>
        <source>must be an object</source>
        <translation>bir nesne olmalıdır</translation>
    </message>
    <message>
        <source>too large</source>
        <translation>çok büyük</translation>
    </message>
    <message>
        <source>line %1 is no JSON</source>
        <translation>%1. satır JSON değil</translation>
    </message>
    <message>
        <source>must be a text of at most %1 characters</source>
        <translation>en çok %1 karakterlik bir metin olmalıdır</translation>
    </message>
    <message>
        <source>must be a name, without blanks at its ends</source>
        <translation>başında ve sonunda boşluk olmayan bir ad olmalıdır</translation>
    </message>
    <message>
        <source>must be a whole number from %1 to %2</source>
        <translation>%1 ile %2 arasında bir tam sayı olmalıdır</translation>
    </message>
    <message>
        <source>must be true or false</source>
        <translation>true ya da false olmalıdır</translation>
    </message>
    <message>
        <source>must be %1</source>
        <translation>%1 olmalıdır</translation>
    </message>
    <message>
        <source>must be one of %1</source>
        <translation>şunlardan biri olmalıdır: %1</translation>
    </message>
    <message>
        <source>must be a list of at most %1 rules</source>
        <translation>en çok %1 kurallık bir liste olmalıdır</translation>
    </message>
    <message>
        <source>a newer version of the program wrote this file</source>
        <translation>bu dosyayı programın daha yeni bir sürümü yazmış</translation>
    </message>
    <message>
        <source>no such field is known</source>
        <translation>böyle bir alan bilinmiyor</translation>
    </message>
    <message>
        <source>is missing</source>
        <translation>eksik</translation>
    </message>
    <message>
        <source>is no file</source>
        <translation>bir dosya değil</translation>
    </message>
    <message>
        <source>another rule set has this name</source>
        <translation>başka bir kural kümesinin adı bu</translation>
    </message>
    <message>
        <source>the file with the old name could not be removed</source>
        <translation>eski adlı dosya kaldırılamadı</translation>
    </message>
</context>
<context>
    <name>Rules</name>
    <message>
        <source>Direction</source>
        <translation>Yön</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Baştan</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Sondan</translation>
    </message>
    <message>
        <source>Change Case</source>
        <translation>Büyük/Küçük Harf Değiştir</translation>
    </message>
    <message>
        <source>Uppercase letters</source>
        <translation>Büyük harfler</translation>
    </message>
    <message>
        <source>Lowercase letters</source>
        <translation>Küçük harfler</translation>
    </message>
    <message>
        <source>Uppercase first letter of each word</source>
        <translation>Her sözcüğün ilk harfi büyük</translation>
    </message>
    <message>
        <source>Ignore File Extension</source>
        <translation>Dosya Uzantısını Yok Say</translation>
    </message>
    <message>
        <source>Enumerate</source>
        <translation>Numaralandır</translation>
    </message>
    <message>
        <source>Start Number</source>
        <translation>Başlangıç Numarası</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Konum</translation>
    </message>
    <message>
        <source>Leading Zeros</source>
        <translation>Baştaki Sıfırlar</translation>
    </message>
    <message>
        <source>Insert Text</source>
        <translation>Metin Ekle</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Metin</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Değiştir</translation>
    </message>
    <message>
        <source>Replace what</source>
        <translation>Aranan metin</translation>
    </message>
    <message>
        <source>Replace with</source>
        <translation>Yeni metin</translation>
    </message>
    <message>
        <source>Regular Expression</source>
        <translation>Düzenli İfade</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Kırp</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Uzunluk</translation>
    </message>
    <message>
        <source>No valid pattern: it will change nothing.</source>
        <translation>Geçerli bir desen değil: hiçbir şeyi değiştirmeyecek.</translation>
    </message>
    <message>
        <source>This pattern would take too long: it will change nothing.</source>
        <translation>Bu desen çok uzun sürer: hiçbir şeyi değiştirmeyecek.</translation>
    </message>
    <message>
        <source>Upper and lower case differ; as much as possible is found.</source>
        <translation>Büyük ve küçük harfler ayırt edilir; olabildiğince uzun bir bölüm bulunur.</translation>
    </message>
    <message>
        <source>any character</source>
        <translation>herhangi bir karakter</translation>
    </message>
    <message>
        <source>the dot itself</source>
        <translation>noktanın kendisi</translation>
    </message>
    <message>
        <source>one of these characters</source>
        <translation>bu karakterlerden biri</translation>
    </message>
    <message>
        <source>any other character</source>
        <translation>başka herhangi bir karakter</translation>
    </message>
    <message>
        <source>a digit</source>
        <translation>bir rakam</translation>
    </message>
    <message>
        <source>a letter, a digit or _</source>
        <translation>bir harf, rakam veya _</translation>
    </message>
    <message>
        <source>a blank</source>
        <translation>bir boşluk</translation>
    </message>
    <message>
        <source>any number of a, also none</source>
        <translation>herhangi bir sayıda a, hiç de olabilir</translation>
    </message>
    <message>
        <source>one a or more</source>
        <translation>bir veya daha çok a</translation>
    </message>
    <message>
        <source>one a or none</source>
        <translation>bir a ya da hiç</translation>
    </message>
    <message>
        <source>two to four a</source>
        <translation>iki ile dört arası a</translation>
    </message>
    <message>
        <source>either ab or cd</source>
        <translation>ya ab ya da cd</translation>
    </message>
    <message>
        <source>the beginning of the name</source>
        <translation>adın başı</translation>
    </message>
    <message>
        <source>the end of the name</source>
        <translation>adın sonu</translation>
    </message>
    <message>
        <source>a group: \1 in the new text is what it found</source>
        <translation>bir grup: yeni metindeki \1, onun bulduğudur</translation>
    </message>
</context>
<context>
    <name>Runs</name>
    <message>
        <source>An undo was interrupted; what it left can still be taken back</source>
        <translation>Bir geri alma işlemi yarıda kesildi; kalanlar hâlâ geri alınabilir</translation>
    </message>
    <message>
        <source>The run of %1 was interrupted; what it renamed can be taken back</source>
        <translation>%1 çalıştırması yarıda kesildi; değiştirdiği adlar geri alınabilir</translation>
    </message>
    <message>
        <source>This run cannot be undone</source>
        <translation>Bu çalıştırma geri alınamaz</translation>
    </message>
    <message>
        <source>The last renames of this run cannot be undone: %1</source>
        <translation>Bu çalıştırmanın son yeniden adlandırmaları geri alınamaz: %1</translation>
    </message>
    <message>
        <source>%1 folders</source>
        <translation>%1 klasör</translation>
    </message>
    <message>
        <source>Take back 1 rename of %1 in %2</source>
        <translation>%1 çalıştırmasında %2 içinde yapılan 1 yeniden adlandırmayı geri al</translation>
    </message>
    <message>
        <source>Take back %1 renames of %2 in %3</source>
        <translation>%2 çalıştırmasında %3 içinde yapılan %1 yeniden adlandırmayı geri al</translation>
    </message>
    <message>
        <source>Another window of the program is at this run.</source>
        <translation>Programın başka bir penceresi bu çalıştırmayla uğraşıyor.</translation>
    </message>
    <message>
        <source>This run is of another machine, or of a newer version of the program.</source>
        <translation>Bu çalıştırma başka bir bilgisayardan ya da programın daha yeni bir sürümünden.</translation>
    </message>
    <message>
        <source>A later run renamed some of these files. Take that one back first.</source>
        <translation>Daha sonraki bir çalıştırma bu dosyalardan bazılarını yeniden adlandırdı. Önce onu geri alın.</translation>
    </message>
    <message>
        <source>Nothing of this run is left to be taken back.</source>
        <translation>Bu çalıştırmadan geri alınacak bir şey kalmadı.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Geri al</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Yinele</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
    <message>
        <source>Taking back started</source>
        <translation>Geri alma başladı</translation>
    </message>
    <message>
        <source>Could not take back file &apos;%1&apos;: %2</source>
        <translation>&apos;%1&apos; dosyası geri alınamadı: %2</translation>
    </message>
    <message>
        <source>Take back %1 renames of %2 in %3 folders</source>
        <translation>%2 çalıştırmasında %3 klasörde yapılan %1 yeniden adlandırmayı geri al</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Çalıştırmalar</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Ne zaman</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Adlandırılan</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Klasör</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Durum</translation>
    </message>
    <message>
        <source>partly taken back</source>
        <translation>kısmen geri alındı</translation>
    </message>
    <message>
        <source>taken back</source>
        <translation>geri alındı</translation>
    </message>
    <message>
        <source>complete</source>
        <translation>tamamlandı</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>iptal edildi</translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>yarıda kesildi</translation>
    </message>
    <message>
        <source>in hand</source>
        <translation>sürüyor</translation>
    </message>
    <message>
        <source>of another machine</source>
        <translation>başka bir bilgisayardan</translation>
    </message>
    <message>
        <source>of a newer version</source>
        <translation>daha yeni bir sürümden</translation>
    </message>
    <message>
        <source>unreadable</source>
        <translation>okunamıyor</translation>
    </message>
    <message>
        <source>%1, touched by a later run</source>
        <translation>%1, sonraki bir çalıştırmayla değişti</translation>
    </message>
    <message>
        <source>The run of %1 renamed some of these files. Take that one back first.</source>
        <translation>%1 çalıştırması bu dosyalardan bazılarını yeniden adlandırdı. Önce onu geri alın.</translation>
    </message>
    <message>
        <source>Take back</source>
        <translation>Geri al</translation>
    </message>
    <message>
        <source>Show files</source>
        <translation>Dosyaları göster</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>Unut</translation>
    </message>
    <message>
        <source>Forget all</source>
        <translation>Tümünü unut</translation>
    </message>
    <message>
        <source>Forget all runs? The files stay as they are, and no run can be taken back any more.</source>
        <translation>Tüm çalıştırmalar unutulsun mu? Dosyalar olduğu gibi kalır ve artık hiçbir çalıştırma geri alınamaz.</translation>
    </message>
    <message>
        <source>Files of the Run of %1</source>
        <translation>%1 çalıştırmasının dosyaları</translation>
    </message>
    <message>
        <source>Old name</source>
        <translation>Eski ad</translation>
    </message>
    <message>
        <source>New name</source>
        <translation>Yeni ad</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Şimdi</translation>
    </message>
    <message>
        <source>has its new name</source>
        <translation>yeni adını taşıyor</translation>
    </message>
    <message>
        <source>has its old name</source>
        <translation>eski adını taşıyor</translation>
    </message>
    <message>
        <source>another file is there</source>
        <translation>orada başka bir dosya var</translation>
    </message>
    <message>
        <source>is not there</source>
        <translation>yerinde yok</translation>
    </message>
    <message>
        <source>Runs…</source>
        <translation>Çalıştırmalar…</translation>
    </message>
    <message>
        <source>This run was interrupted; &quot;Runs…&quot; can finish it, too</source>
        <translation>Bu çalıştırma yarıda kesildi; “Çalıştırmalar…” ile tamamlanabilir de</translation>
    </message>
    <message>
        <source>This run was to rename all files or none, and was interrupted. Finish it, put everything back, or leave the files as they are.</source>
        <translation>Bu çalıştırma dosyaların ya tümünü yeniden adlandıracak ya da hiçbirini adlandırmayacaktı, ama yarıda kesildi. Tamamlayın, her şeyi eski hâline getirin ya da dosyaları oldukları gibi bırakın.</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Eski hâline getir</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Tamamla</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Olduğu gibi bırak</translation>
    </message>
    <message>
        <source>Finishing a run started</source>
        <translation>Bir çalıştırmanın tamamlanmasına başlandı</translation>
    </message>
    <message>
        <source>The run of %1 was interrupted; &quot;Runs…&quot; can finish it or put it back</source>
        <translation>%1 çalıştırması yarıda kesildi; “Çalıştırmalar…” ile tamamlanabilir ya da her şey eski hâline getirilebilir</translation>
    </message>
</context>
<context>
    <name>SortMenu</name>
    <message>
        <source>Name</source>
        <translation>Ad</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Yol</translation>
    </message>
    <message>
        <source>Extension</source>
        <translation>Uzantı</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Boyut</translation>
    </message>
    <message>
        <source>Time of modification</source>
        <translation>Değiştirilme zamanı</translation>
    </message>
    <message>
        <source>Order of adding</source>
        <translation>Ekleme sırası</translation>
    </message>
    <message>
        <source>%1, ascending</source>
        <translation>%1, artan</translation>
    </message>
    <message>
        <source>%1, descending</source>
        <translation>%1, azalan</translation>
    </message>
</context>
<context>
    <name>TrayIcon</name>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Geri Yükle</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Çık</translation>
    </message>
</context>
<context>
    <name>VersionCheck</name>
    <message>
        <source>Data transmission failure</source>
        <translation>Veri iletim hatası</translation>
    </message>
    <message>
        <source>Version check failed</source>
        <translation>Sürüm denetlenemedi</translation>
    </message>
    <message>
        <source>Error connecting to server.</source>
        <translation>Sunucuya bağlanırken hata oluştu.</translation>
    </message>
    <message>
        <source>Please check manually at:</source>
        <translation>Lütfen buradan elle denetleyin:</translation>
    </message>
    <message>
        <source>There is a new version available!</source>
        <translation>Yeni bir sürüm var!</translation>
    </message>
    <message>
        <source>Would you like to download it now?</source>
        <translation>Şimdi indirmek ister misiniz?</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>İndir</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Daha Sonra</translation>
    </message>
    <message>
        <source>What&apos;s new?</source>
        <translation>Yenilikler neler?</translation>
    </message>
    <message>
        <source>Skip Version</source>
        <translation>Sürümü Atla</translation>
    </message>
    <message>
        <source>You are using the latest version.</source>
        <translation>En son sürümü kullanıyorsunuz.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
</context>
</TS>
