<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr" sourcelanguage="en">
<context>
    <name></name>
    <message id="0">
        <source>English</source>
        <translation>İngilizce</translation>
    </message>
    <message id="1">
        <source>Traditional Chinese</source>
        <translation>Geleneksel Çince</translation>
    </message>
    <message id="2">
        <source>Simplified Chinese</source>
        <translation>Basitleştirilmiş Çince</translation>
    </message>
    <message id="3">
        <source>Japanese</source>
        <translation>Japonca</translation>
    </message>
    <message id="4">
        <source>Spainish</source>
        <translation>İspanyolca</translation>
    </message>
    <message id="5">
        <source>CGI ID is full !</source>
        <translation>CGI ID listesi dolu.</translation>
    </message>
    <message id="6">
        <source>User Name or Password Error !</source>
        <translation>Kullanıcı adı veya parola hatalı.</translation>
    </message>
    <message id="7">
        <source>Device Connection Error !</source>
        <translation>Cihaz bağlantı hatası.</translation>
    </message>
    <message id="8">
        <source>Device brand not supported !</source>
        <translation>Cihaz markası desteklenmiyor.</translation>
    </message>
    <message id="9">
        <source>Sending CGI failed !</source>
        <translation>CGI komutu gönderilemedi.</translation>
    </message>
    <message id="10">
        <source>Program has been opened !</source>
        <translation>Program zaten açık.</translation>
    </message>
    <message id="11">
        <source>Application of Setup has been Opening . Please turn it off !</source>
        <translation>Yapılandırma programı zaten açık. Lütfen kapatın.</translation>
    </message>
    <message id="12">
        <source>Database initialization ...</source>
        <translation>Veritabanı hazırlanıyor…</translation>
    </message>
    <message id="13">
        <source>Default Data to read ...</source>
        <translation>Varsayılan veriler okunuyor…</translation>
    </message>
    <message id="14">
        <source>Incorrect database version ! Do you want to reset the databse now ?</source>
        <translation>Veritabanı sürümü yanlış. Veritabanını şimdi sıfırlamak istiyor musunuz?</translation>
    </message>
    <message id="15">
        <source>System will not be able to continue to work .</source>
        <translation>Sistem çalışmaya devam edemeyecek.</translation>
    </message>
    <message id="16">
        <source>Update Database ...</source>
        <translation>Veritabanı güncelleniyor…</translation>
    </message>
    <message id="17">
        <source>Data is loading ...</source>
        <translation>Veriler yükleniyor…</translation>
    </message>
    <message id="18">
        <source>Motion Detection setting is loading...</source>
        <translation>Hareket algılama ayarları yükleniyor…</translation>
    </message>
    <message id="19">
        <source>User Data is loading...</source>
        <translation>Kullanıcı verileri yükleniyor…</translation>
    </message>
    <message id="20">
        <source>Group Data  is loading...</source>
        <translation>Grup verileri yükleniyor…</translation>
    </message>
    <message id="21">
        <source>Event setting is loading...</source>
        <translation>Olay ayarları yükleniyor…</translation>
    </message>
    <message id="22">
        <source>E-Map Data is loading ...</source>
        <translation>E-harita verileri yükleniyor…</translation>
    </message>
    <message id="23">
        <source>Multi-Screen set up is loading ...</source>
        <translation>Çoklu ekran ayarları yükleniyor…</translation>
    </message>
    <message id="24">
        <source>System component registering  ...</source>
        <translation>Sistem bileşenleri kaydediliyor…</translation>
    </message>
    <message id="25">
        <source>Login Identification ...</source>
        <translation>Oturum doğrulanıyor…</translation>
    </message>
    <message id="26">
        <source>Open Login Frame ...</source>
        <translation>Oturum açma penceresi açılıyor…</translation>
    </message>
    <message id="27">
        <source>Loading User's Pattern …</source>
        <translation>Kullanıcının şablonları yükleniyor…</translation>
    </message>
    <message id="28">
        <source>Start Service Mode...</source>
        <translation>Hizmet modu başlatılıyor…</translation>
    </message>
    <message id="29">
        <source>Start Monitor Window ...</source>
        <translation>Monitör penceresi başlatılıyor…</translation>
    </message>
    <message id="30">
        <source>Start Auto Search …</source>
        <translation>Otomatik arama başlatılıyor…</translation>
    </message>
    <message id="32">
        <source>Manual Startup</source>
        <translation>El ile Başlatma</translation>
    </message>
    <message id="33">
        <source>Device detect timeout !</source>
        <translation>Cihaz algılama zaman aşımına uğradı.</translation>
    </message>
    <message id="34">
        <source>The channel of SVR has been removed. Please re-detect the SVR!</source>
        <translation>SVR kanalı kaldırıldı. Lütfen SVR cihazını yeniden algılayın.</translation>
    </message>
    <message id="35">
        <source>Please enable SVR upnp port forwarding!</source>
        <translation>Lütfen SVR cihazında UPnP port yönlendirmeyi etkinleştirin.</translation>
    </message>
    <message id="36">
        <source>Video Wall Setting</source>
        <translation>Video Duvarı Ayarları</translation>
    </message>
    <message id="37">
        <source>Video Wall display position setting</source>
        <translation>Video Duvarı Konum Ayarları</translation>
    </message>
    <message id="38">
        <source>Monitor</source>
        <translation>Monitör</translation>
    </message>
    <message id="39">
        <source>Startup assign setting</source>
        <translation>Başlangıç Atama Ayarları</translation>
    </message>
    <message id="40">
        <source>User</source>
        <translation>Kullanıcı</translation>
    </message>
    <message id="41">
        <source>Password</source>
        <translation>Parola</translation>
    </message>
    <message id="42">
        <source>User Field is Blank !</source>
        <translation>Kullanıcı alanı boş.</translation>
    </message>
    <message id="43">
        <source>Password Field is Blank !</source>
        <translation>Parola alanı boş.</translation>
    </message>
    <message id="44">
        <source>Incorrect User Account or Password !</source>
        <translation>Kullanıcı hesabı veya parola yanlış.</translation>
    </message>
    <message id="45">
        <source>Main Viewer</source>
        <translation>Ana İzleyici</translation>
    </message>
    <message id="46">
        <source>NVR Setting</source>
        <translation>NVR Ayarları</translation>
    </message>
    <message id="47">
        <source>Event-Triggered Notification</source>
        <translation>Olay Tetiklemeli Bildirim</translation>
    </message>
    <message id="48">
        <source>Auto Search Notice</source>
        <translation>Otomatik Arama Bildirimi</translation>
    </message>
    <message id="49">
        <source>Event Synchronization Manually Update</source>
        <translation>Olay Eşitlemesini El ile Güncelle</translation>
    </message>
    <message id="50">
        <source>About</source>
        <translation>Hakkında</translation>
    </message>
    <message id="51">
        <source>Exit</source>
        <translation>Çıkış</translation>
    </message>
    <message id="52">
        <source>Split</source>
        <translation>Bölme</translation>
    </message>
    <message id="53">
        <source>Change Channel</source>
        <translation>Kanal Değiştir</translation>
    </message>
    <message id="54">
        <source>OSD Display</source>
        <translation>OSD Gösterimi</translation>
    </message>
    <message id="55">
        <source>CH</source>
        <translation>Kanal</translation>
    </message>
    <message id="56">
        <source>Path</source>
        <translation>Yol</translation>
    </message>
    <message id="57">
        <source>OSD Channel</source>
        <translation>OSD Kanalı</translation>
    </message>
    <message id="58">
        <source>OSD Time</source>
        <translation>OSD Saati</translation>
    </message>
    <message id="59">
        <source>Save</source>
        <translation>Kaydet</translation>
    </message>
    <message id="60">
        <source>Camera Event Server Setting Error!</source>
        <translation>Kamera olay sunucusu ayarı hatası.</translation>
    </message>
    <message id="61">
        <source>Snapshot Error!</source>
        <translation>Anlık görüntü hatası.</translation>
    </message>
    <message id="62">
        <source>Event Notification is still ongoing.</source>
        <translation>Olay bildirimi hâlâ sürüyor.</translation>
    </message>
    <message id="63">
        <source>Do you want to exit and open rigging desk?</source>
        <translation>Çıkıp Rigging Desk programını açmak istiyor musunuz?</translation>
    </message>
    <message id="64">
        <source>Auto-Search Notice</source>
        <translation>Otomatik Arama Bildirimi</translation>
    </message>
    <message id="65">
        <source>Closing...</source>
        <translation>Kapatılıyor…</translation>
    </message>
    <message id="66">
        <source>Devcie is Found!</source>
        <translation>Cihaz bulundu.</translation>
    </message>
    <message id="67">
        <source>Fix display mode</source>
        <translation>Sabit Gösterim Modu</translation>
    </message>
    <message id="68">
        <source>Video Wall default startup setting</source>
        <translation>Varsayılan Video Duvarı Başlangıç Ayarları</translation>
    </message>
    <message id="69">
        <source>Intelligent Overview</source>
        <translation>Akıllı Algılamaya Genel Bakış</translation>
    </message>
    <message id="70">
        <source>Do You Want to Save Snapshot Images ?</source>
        <translation>Anlık görüntüleri kaydetmek istiyor musunuz?</translation>
    </message>
    <message id="71">
        <source>User Name or Password error !</source>
        <translation>Kullanıcı adı veya parola hatalı.</translation>
    </message>
    <message id="72">
        <source>Brand not supported!</source>
        <translation>Marka desteklenmiyor.</translation>
    </message>
    <message id="73">
        <source>Camera not supported!</source>
        <translation>Kamera desteklenmiyor.</translation>
    </message>
    <message id="74">
        <source>Device connection error!</source>
        <translation>Cihaz bağlantı hatası.</translation>
    </message>
    <message id="75">
        <source>Device detection timeout!</source>
        <translation>Cihaz algılama zaman aşımına uğradı.</translation>
    </message>
    <message id="76">
        <source>Unable to connect to the server!</source>
        <translation>Sunucuya bağlanılamıyor.</translation>
    </message>
    <message id="77">
        <source>Service has not connect yet!</source>
        <translation>Hizmet henüz bağlanmadı.</translation>
    </message>
    <message id="78">
        <source>This series of device does not allow repeat add!</source>
        <translation>Bu seriden cihazlar yeniden eklenemez.</translation>
    </message>
    <message id="79">
        <source>SEQ by Channel</source>
        <translation>Kanala Göre Tur</translation>
    </message>
    <message id="80">
        <source>SEQ by NVR</source>
        <translation>NVR'ye Göre Tur</translation>
    </message>
    <message id="81">
        <source>SEQ by Pattern</source>
        <translation>Şablona Göre Tur</translation>
    </message>
    <message id="82">
        <source>NVR List</source>
        <translation>NVR Listesi</translation>
    </message>
    <message id="83">
        <source>Dwell time</source>
        <translation>Bekleme Süresi</translation>
    </message>
    <message id="84">
        <source>SEQ function is starting, do you want to continue to start SEQ content setting, which will stop SEQ function?</source>
        <translation>Tur işlevi çalışıyor. Tur içeriği ayarını açmak tur işlevini durduracak, devam etmek istiyor musunuz?</translation>
    </message>
    <message id="85">
        <source>Channel SEQ not available! Please select more than one channel when using this function.</source>
        <translation>Kanal turu kullanılamıyor. Bu işlev için lütfen birden fazla kanal seçin.</translation>
    </message>
    <message id="86">
        <source>NVR SEQ not available! Please select more than one NVR when using this function.</source>
        <translation>NVR turu kullanılamıyor. Bu işlev için lütfen birden fazla NVR seçin.</translation>
    </message>
    <message id="87">
        <source>Pattern SEQ not available! Please select more than one patterns when using this function.</source>
        <translation>Şablon turu kullanılamıyor. Bu işlev için lütfen birden fazla şablon seçin.</translation>
    </message>
    <message id="88">
        <source>Do you want to enable SEQ by Channel?</source>
        <translation>Kanala göre turu etkinleştirmek istiyor musunuz?</translation>
    </message>
    <message id="89">
        <source>Do you want to enable SEQ by NVR?</source>
        <translation>NVR'ye göre turu etkinleştirmek istiyor musunuz?</translation>
    </message>
    <message id="90">
        <source>Do you want to enable SEQ by Pattern?</source>
        <translation>Şablona göre turu etkinleştirmek istiyor musunuz?</translation>
    </message>
    <message id="91">
        <source>Camera event setting can't exceed 32!</source>
        <translation>Kamera olayı ayarlarının sayısı 32 değerini aşamaz.</translation>
    </message>
    <message id="92">
        <source>Please add a NVR first!</source>
        <translation>Lütfen önce bir NVR ekleyin.</translation>
    </message>
    <message id="93">
        <source>Port number can't accept 0 or more than 65536.</source>
        <translation>Port numarası 0 olamaz ve 65536 değerini aşamaz.</translation>
    </message>
    <message id="94">
        <source>Drive</source>
        <translation>Sürücü</translation>
    </message>
    <message id="95">
        <source>Size(GB)</source>
        <translation>Boyut (GB)</translation>
    </message>
    <message id="96">
        <source>Free(GB)</source>
        <translation>Boş (GB)</translation>
    </message>
    <message id="97">
        <source>Usage(%)</source>
        <translation>Kullanım (%)</translation>
    </message>
    <message id="98">
        <source>Storage Path</source>
        <translation>Depolama Yolu</translation>
    </message>
    <message id="99">
        <source>Select a Path</source>
        <translation>Yol Seçin</translation>
    </message>
    <message id="100">
        <source>Live Monitor</source>
        <translation>Canlı İzleme</translation>
    </message>
    <message id="101">
        <source>Event Monitor</source>
        <translation>Olay Monitörü</translation>
    </message>
    <message id="102">
        <source>Playback</source>
        <translation>Oynatma</translation>
    </message>
    <message id="103">
        <source>E-MAP Monitor</source>
        <translation>E-harita Monitörü</translation>
    </message>
    <message id="104">
        <source>User Pattern</source>
        <translation>Kullanıcı Şablonu</translation>
    </message>
    <message id="105">
        <source>Split</source>
        <translation>Bölme</translation>
    </message>
    <message id="106">
        <source>Pattern Name</source>
        <translation>Şablon Adı</translation>
    </message>
    <message id="107">
        <source>Status</source>
        <translation>Durum</translation>
    </message>
    <message id="108">
        <source>Channel Status</source>
        <translation>Kanal Durumu</translation>
    </message>
    <message id="109">
        <source>Network Disconnection</source>
        <translation>Ağ Bağlantısı Kesildi</translation>
    </message>
    <message id="110">
        <source>Network connection</source>
        <translation>Ağ Bağlantısı</translation>
    </message>
    <message id="111">
        <source>Recording</source>
        <translation>Kayıt</translation>
    </message>
    <message id="112">
        <source>Event Trigger</source>
        <translation>Olay Tetikleme</translation>
    </message>
    <message id="113">
        <source>Connecting</source>
        <translation>Bağlanıyor</translation>
    </message>
    <message id="114">
        <source>Video Loss</source>
        <translation>Video Kaybı</translation>
    </message>
    <message id="115">
        <source>SEQ Mode</source>
        <translation>Tur Modu</translation>
    </message>
    <message id="116">
        <source>(Sec)</source>
        <translation>(sn)</translation>
    </message>
    <message id="117">
        <source>Start</source>
        <translation>Başlat</translation>
    </message>
    <message id="118">
        <source>Stop</source>
        <translation>Durdur</translation>
    </message>
    <message id="119">
        <source>SEQ contents</source>
        <translation>Tur İçeriği</translation>
    </message>
    <message id="120">
        <source>SEQ ALL</source>
        <translation>Tümünü Turla</translation>
    </message>
    <message id="121">
        <source>SEQ</source>
        <translation>Tur</translation>
    </message>
    <message id="122">
        <source>Pattern SEQ</source>
        <translation>Şablon Turu</translation>
    </message>
    <message id="123">
        <source>Service Mode</source>
        <translation>Hizmet Modu</translation>
    </message>
    <message id="124">
        <source>Language</source>
        <translation>Dil</translation>
    </message>
    <message id="125">
        <source>Version</source>
        <translation>Sürüm</translation>
    </message>
    <message id="126">
        <source>Event Info</source>
        <translation>Olay Bilgisi</translation>
    </message>
    <message id="127">
        <source>Event</source>
        <translation>Olay</translation>
    </message>
    <message id="128">
        <source>Time</source>
        <translation>Zaman</translation>
    </message>
    <message id="129">
        <source>Description</source>
        <translation>Açıklama</translation>
    </message>
    <message id="130">
        <source>System Info</source>
        <translation>Sistem Bilgisi</translation>
    </message>
    <message id="131">
        <source>Info</source>
        <translation>Bilgi</translation>
    </message>
    <message id="132">
        <source>System Time:</source>
        <translation>Sistem Saati:</translation>
    </message>
    <message id="133">
        <source>Group Level:</source>
        <translation>Grup Düzeyi:</translation>
    </message>
    <message id="134">
        <source>CPU:</source>
        <translation>CPU:</translation>
    </message>
    <message id="135">
        <source>PRESET</source>
        <translation>ÖN AYAR</translation>
    </message>
    <message id="136">
        <source>Preset:</source>
        <translation>Ön Ayar:</translation>
    </message>
    <message id="137">
        <source>Unable to support full screen mode or to change split mode under SEQ mode.</source>
        <translation>Tur modunda tam ekran kullanılamaz ve bölme değiştirilemez.</translation>
    </message>
    <message id="138">
        <source>Full screen is running. close it first!</source>
        <translation>Tam ekran açık. Önce kapatın.</translation>
    </message>
    <message id="139">
        <source>Unauthorised</source>
        <translation>Yetkiniz yok</translation>
    </message>
    <message id="140">
        <source>Select a channel first.</source>
        <translation>Önce bir kanal seçin.</translation>
    </message>
    <message id="141">
        <source>Name Repeat!</source>
        <translation>Bu ad zaten var.</translation>
    </message>
    <message id="142">
        <source>MENU</source>
        <translation>MENÜ</translation>
    </message>
    <message id="143">
        <source>TREE</source>
        <translation>AĞAÇ</translation>
    </message>
    <message id="144">
        <source>PATTERN</source>
        <translation>ŞABLON</translation>
    </message>
    <message id="145">
        <source>STATUS</source>
        <translation>DURUM</translation>
    </message>
    <message id="146">
        <source>SEQ</source>
        <translation>TUR</translation>
    </message>
    <message id="147">
        <source>SYSTEM</source>
        <translation>SİSTEM</translation>
    </message>
    <message id="148">
        <source>CH:</source>
        <translation>Kanal:</translation>
    </message>
    <message id="149">
        <source>Reconnection</source>
        <translation>Yeniden Bağlanma</translation>
    </message>
    <message id="150">
        <source>Audio</source>
        <translation>Ses</translation>
    </message>
    <message id="151">
        <source>Display Image of Motion Detection </source>
        <translation>Hareket Algılama Görüntüsünü Göster </translation>
    </message>
    <message id="152">
        <source>Snapshot</source>
        <translation>Anlık Görüntü</translation>
    </message>
    <message id="153">
        <source>Preset Point Setting</source>
        <translation>Ön Ayar Noktası Ayarları</translation>
    </message>
    <message id="154">
        <source>When modify setting, the channel of pattern will be changed.</source>
        <translation>Ayar değiştirildiğinde şablonun kanalları değişir.</translation>
    </message>
    <message id="155">
        <source>Snapshot fail !</source>
        <translation>Anlık görüntü alınamadı.</translation>
    </message>
    <message id="156">
        <source>Preset Patrol:</source>
        <translation>Ön Ayar Devriyesi:</translation>
    </message>
    <message id="157">
        <source>Loading Fullscreen layout data…</source>
        <translation>Tam ekran düzeni verileri yükleniyor…</translation>
    </message>
    <message id="158">
        <source>Dock</source>
        <translation>Sabitle</translation>
    </message>
    <message id="159">
        <source>Control Panel</source>
        <translation>Kontrol Paneli</translation>
    </message>
    <message id="160">
        <source>Name:</source>
        <translation>Ad:</translation>
    </message>
    <message id="161">
        <source>Channel:</source>
        <translation>Kanal:</translation>
    </message>
    <message id="162">
        <source>CH Name:</source>
        <translation>Kanal Adı:</translation>
    </message>
    <message id="163">
        <source>Event Mode:</source>
        <translation>Olay Türü:</translation>
    </message>
    <message id="164">
        <source>Event Trigger Time:</source>
        <translation>Olay Tetikleme Zamanı:</translation>
    </message>
    <message id="165">
        <source>Contact:</source>
        <translation>İlgili Kişi:</translation>
    </message>
    <message id="166">
        <source>Phone:</source>
        <translation>Telefon:</translation>
    </message>
    <message id="167">
        <source>Play Time(SYSTEM):</source>
        <translation>Oynatma Zamanı (SİSTEM):</translation>
    </message>
    <message id="168">
        <source>Current Event List</source>
        <translation>Güncel Olay Listesi</translation>
    </message>
    <message id="169">
        <source>Log Event List</source>
        <translation>Kayıtlı Olay Listesi</translation>
    </message>
    <message id="170">
        <source>Search</source>
        <translation>Ara</translation>
    </message>
    <message id="171">
        <source>Search All</source>
        <translation>Tümünü Ara</translation>
    </message>
    <message id="172">
        <source>Search Start Time</source>
        <translation>Arama Başlangıcı</translation>
    </message>
    <message id="173">
        <source>Search by Event type</source>
        <translation>Olay Türüne Göre Ara</translation>
    </message>
    <message id="174">
        <source>Item</source>
        <translation>Öğe</translation>
    </message>
    <message id="175">
        <source>Event ID</source>
        <translation>Olay ID</translation>
    </message>
    <message id="176">
        <source>Time</source>
        <translation>Zaman</translation>
    </message>
    <message id="177">
        <source>System Time</source>
        <translation>Sistem Saati</translation>
    </message>
    <message id="178">
        <source>NO.</source>
        <translation>No.</translation>
    </message>
    <message id="179">
        <source>CH</source>
        <translation>Kanal</translation>
    </message>
    <message id="180">
        <source>Event Mode</source>
        <translation>Olay Türü</translation>
    </message>
    <message id="181">
        <source>Process</source>
        <translation>İşlem</translation>
    </message>
    <message id="182">
        <source>On-Line</source>
        <translation>Çevrimiçi</translation>
    </message>
    <message id="183">
        <source>Channel Name</source>
        <translation>Kanal Adı</translation>
    </message>
    <message id="184">
        <source>Channel Detail</source>
        <translation>Kanal Ayrıntısı</translation>
    </message>
    <message id="185">
        <source>Play Error</source>
        <translation>Oynatma Hatası</translation>
    </message>
    <message id="186">
        <source>Play Stop</source>
        <translation>Oynatma Durdu</translation>
    </message>
    <message id="187">
        <source>Live Video</source>
        <translation>Canlı Video</translation>
    </message>
    <message id="188">
        <source>Live Stop</source>
        <translation>Canlı Video Durdu</translation>
    </message>
    <message id="189">
        <source>Off Line</source>
        <translation>Çevrimdışı</translation>
    </message>
    <message id="190">
        <source>Error</source>
        <translation>Hata</translation>
    </message>
    <message id="191">
        <source>Motion</source>
        <translation>Hareket</translation>
    </message>
    <message id="192">
        <source>Sensor</source>
        <translation>Sensör</translation>
    </message>
    <message id="193">
        <source>Return message: </source>
        <translation>Yanıt iletisi: </translation>
    </message>
    <message id="194">
        <source>NVR no playback resource!</source>
        <translation>NVR'de oynatma kaynağı yok.</translation>
    </message>
    <message id="195">
        <source>Playback request failed!</source>
        <translation>Oynatma isteği başarısız.</translation>
    </message>
    <message id="196">
        <source>Reset Event List</source>
        <translation>Olay Listesini Sıfırla</translation>
    </message>
    <message id="197">
        <source>X</source>
        <translation>X</translation>
    </message>
    <message id="198">
        <source>Return</source>
        <translation>Geri Dön</translation>
    </message>
    <message id="199">
        <source>SEQ Duration Time</source>
        <translation>Tur Süresi</translation>
    </message>
    <message id="200">
        <source>Playback Info</source>
        <translation>Oynatma Bilgisi</translation>
    </message>
    <message id="201">
        <source>NVR:</source>
        <translation>NVR:</translation>
    </message>
    <message id="202">
        <source>CH:</source>
        <translation>Kanal:</translation>
    </message>
    <message id="203">
        <source>Speed:</source>
        <translation>Hız:</translation>
    </message>
    <message id="204">
        <source>Sun</source>
        <translation>Paz</translation>
    </message>
    <message id="205">
        <source>Mon</source>
        <translation>Pzt</translation>
    </message>
    <message id="206">
        <source>Tue</source>
        <translation>Sal</translation>
    </message>
    <message id="207">
        <source>Wed</source>
        <translation>Çar</translation>
    </message>
    <message id="208">
        <source>Thu</source>
        <translation>Per</translation>
    </message>
    <message id="209">
        <source>Fri</source>
        <translation>Cum</translation>
    </message>
    <message id="210">
        <source>Sat</source>
        <translation>Cmt</translation>
    </message>
    <message id="211">
        <source>Event List</source>
        <translation>Olay Listesi</translation>
    </message>
    <message id="212">
        <source>Receiving recording data failed</source>
        <translation>Kayıt verileri alınamadı.</translation>
    </message>
    <message id="213">
        <source>RF</source>
        <translation>GERİ</translation>
    </message>
    <message id="214">
        <source>STOP</source>
        <translation>DURDUR</translation>
    </message>
    <message id="215">
        <source>PLAY</source>
        <translation>OYNAT</translation>
    </message>
    <message id="216">
        <source>PAUSE</source>
        <translation>DURAKLAT</translation>
    </message>
    <message id="217">
        <source>FF</source>
        <translation>İLERİ</translation>
    </message>
    <message id="218">
        <source>NEXT</source>
        <translation>SONRAKİ</translation>
    </message>
    <message id="219">
        <source>No recording data can be Displayed !</source>
        <translation>Gösterilecek kayıt verisi yok.</translation>
    </message>
    <message id="220">
        <source>Play Stop ! Need to select new time.</source>
        <translation>Oynatma durdu. Yeni bir zaman seçin.</translation>
    </message>
    <message id="221">
        <source>No response! you can try again or select another device !</source>
        <translation>Yanıt yok. Yeniden deneyin veya başka bir cihaz seçin.</translation>
    </message>
    <message id="222">
        <source>Disconnection ! </source>
        <translation>Bağlantı kesildi. </translation>
    </message>
    <message id="223">
        <source>Can not get video stream ! please select other Channel.</source>
        <translation>Video akışı alınamıyor. Lütfen başka bir kanal seçin.</translation>
    </message>
    <message id="224">
        <source>No recording data.</source>
        <translation>Kayıt verisi yok.</translation>
    </message>
    <message id="225">
        <source>Recording data is updating, please wait .</source>
        <translation>Kayıt verileri güncelleniyor, lütfen bekleyin.</translation>
    </message>
    <message id="226">
        <source>Convert to AVI</source>
        <translation>AVI'ye Dönüştür</translation>
    </message>
    <message id="227">
        <source>Do you want to stop the conversion of avi file ?</source>
        <translation>AVI'ye dönüştürmeyi durdurmak istiyor musunuz?</translation>
    </message>
    <message id="228">
        <source>AVI file conversion complete! File is... </source>
        <translation>AVI'ye dönüştürme tamamlandı. Dosya… </translation>
    </message>
    <message id="229">
        <source>Converting AVI file!</source>
        <translation>AVI'ye dönüştürülüyor.</translation>
    </message>
    <message id="230">
        <source>AVI Conversion Fail !</source>
        <translation>AVI'ye dönüştürme başarısız.</translation>
    </message>
    <message id="231">
        <source>Auto Pan:</source>
        <translation>Otomatik Pan:</translation>
    </message>
    <message id="232">
        <source>Single Video</source>
        <translation>Tek Video</translation>
    </message>
    <message id="233">
        <source>Quad Videos</source>
        <translation>Dört Video</translation>
    </message>
    <message id="234">
        <source>Nine Videos</source>
        <translation>Dokuz Video</translation>
    </message>
    <message id="235">
        <source>No any SVD has been set, you need to add any SVD to control!</source>
        <translation>Hiç SVD ayarlanmamış. Kontrol etmek için bir SVD ekleyin.</translation>
    </message>
    <message id="236">
        <source>This channel has been set to display in this screen!</source>
        <translation>Bu kanal zaten bu ekranda gösterilecek şekilde ayarlanmış.</translation>
    </message>
    <message id="237">
        <source>Are you sure to exit SVD console monitor?</source>
        <translation>SVD konsolu monitöründen çıkmak istediğinizden emin misiniz?</translation>
    </message>
    <message id="238">
        <source>Click here to reconnect again!</source>
        <translation>Yeniden bağlanmak için buraya tıklayın.</translation>
    </message>
    <message id="239">
        <source>SVD UI is changing…</source>
        <translation>SVD arayüzü değiştiriliyor…</translation>
    </message>
    <message id="240">
        <source>NO.:</source>
        <translation>No.:</translation>
    </message>
    <message id="241">
        <source>Name:</source>
        <translation>Ad:</translation>
    </message>
    <message id="242">
        <source>Number of Camera:</source>
        <translation>Kamera Sayısı:</translation>
    </message>
    <message id="243">
        <source>Event:</source>
        <translation>Olay:</translation>
    </message>
    <message id="244">
        <source>No Event</source>
        <translation>Olay Yok</translation>
    </message>
    <message id="245">
        <source>CH:</source>
        <translation>Kanal:</translation>
    </message>
    <message id="246">
        <source>Up</source>
        <translation>Yukarı</translation>
    </message>
    <message id="247">
        <source>Down</source>
        <translation>Aşağı</translation>
    </message>
    <message id="248">
        <source>Left</source>
        <translation>Sola</translation>
    </message>
    <message id="249">
        <source>Right</source>
        <translation>Sağa</translation>
    </message>
    <message id="250">
        <source>Upper left</source>
        <translation>Sol Üst</translation>
    </message>
    <message id="251">
        <source>Upper right</source>
        <translation>Sağ Üst</translation>
    </message>
    <message id="252">
        <source>Lower left</source>
        <translation>Sol Alt</translation>
    </message>
    <message id="253">
        <source>Lower right</source>
        <translation>Sağ Alt</translation>
    </message>
    <message id="254">
        <source>Home</source>
        <translation>Ana Konum</translation>
    </message>
    <message id="255">
        <source>Zoom In</source>
        <translation>Yakınlaştır</translation>
    </message>
    <message id="256">
        <source>Zoom Out</source>
        <translation>Uzaklaştır</translation>
    </message>
    <message id="257">
        <source>Focus Far</source>
        <translation>Uzağa Odakla</translation>
    </message>
    <message id="258">
        <source>Focus Near</source>
        <translation>Yakına Odakla</translation>
    </message>
    <message id="259">
        <source>Auto Focus</source>
        <translation>Otomatik Odak</translation>
    </message>
    <message id="260">
        <source>IRIS Auto</source>
        <translation>Otomatik Diyafram</translation>
    </message>
    <message id="261">
        <source>IRIS Close</source>
        <translation>Diyaframı Kapat</translation>
    </message>
    <message id="262">
        <source>IRIS Open</source>
        <translation>Diyaframı Aç</translation>
    </message>
    <message id="263">
        <source>Auto Pan Left</source>
        <translation>Otomatik Pan Sola</translation>
    </message>
    <message id="264">
        <source>Auto Pan Right</source>
        <translation>Otomatik Pan Sağa</translation>
    </message>
    <message id="265">
        <source>Auto Pan Stop</source>
        <translation>Otomatik Panı Durdur</translation>
    </message>
    <message id="266">
        <source>Moving Rate(+)</source>
        <translation>Hareket Hızı (+)</translation>
    </message>
    <message id="267">
        <source>Moving Rate(-)</source>
        <translation>Hareket Hızı (-)</translation>
    </message>
    <message id="268">
        <source>Display OSD on all channels</source>
        <translation>Tüm Kanallarda OSD Göster</translation>
    </message>
    <message id="269">
        <source>Display OSD</source>
        <translation>OSD Göster</translation>
    </message>
    <message id="270">
        <source>Detail Export:</source>
        <translation>Ayrıntıları Dışa Aktar:</translation>
    </message>
    <message id="271">
        <source>Valid Ch</source>
        <translation>Geçerli Kanal</translation>
    </message>
    <message id="272">
        <source>Auto Search</source>
        <translation>Otomatik Arama</translation>
    </message>
    <message id="273">
        <source>Manual Detection</source>
        <translation>El ile Algılama</translation>
    </message>
    <message id="274">
        <source>NVR ID:</source>
        <translation>NVR ID:</translation>
    </message>
    <message id="275">
        <source>IP:</source>
        <translation>IP:</translation>
    </message>
    <message id="276">
        <source>HTTP Port:</source>
        <translation>HTTP Portu:</translation>
    </message>
    <message id="277">
        <source>Next</source>
        <translation>İleri</translation>
    </message>
    <message id="278">
        <source>Device Name</source>
        <translation>Cihaz Adı</translation>
    </message>
    <message id="279">
        <source>All</source>
        <translation>Tümü</translation>
    </message>
    <message id="280">
        <source>CHs</source>
        <translation>Kanallar</translation>
    </message>
    <message id="281">
        <source>Model:</source>
        <translation>Model:</translation>
    </message>
    <message id="282">
        <source>Max Channel:</source>
        <translation>Maks. Kanal:</translation>
    </message>
    <message id="283">
        <source>NVR Name:</source>
        <translation>NVR Adı:</translation>
    </message>
    <message id="284">
        <source>Version:</source>
        <translation>Sürüm:</translation>
    </message>
    <message id="285">
        <source>Valid Channel:</source>
        <translation>Geçerli Kanal:</translation>
    </message>
    <message id="286">
        <source>Sync With NVR</source>
        <translation>NVR ile Eşitle</translation>
    </message>
    <message id="287">
        <source>Add New NVR </source>
        <translation>Yeni NVR Ekle </translation>
    </message>
    <message id="288">
        <source>NVR Search List</source>
        <translation>NVR Arama Sonuçları</translation>
    </message>
    <message id="289">
        <source>NVR Detect Status</source>
        <translation>NVR Algılama Durumu</translation>
    </message>
    <message id="290">
        <source>NVR Detail Setting</source>
        <translation>NVR Ayrıntılı Ayarları</translation>
    </message>
    <message id="291">
        <source>NVR Channel Setting</source>
        <translation>NVR Kanal Ayarları</translation>
    </message>
    <message id="292">
        <source>Preset Sequence Setting</source>
        <translation>Ön Ayar Dizisi Ayarları</translation>
    </message>
    <message id="293">
        <source>Get Capability...</source>
        <translation>Yetenekler alınıyor…</translation>
    </message>
    <message id="294">
        <source>Get Channel Info...</source>
        <translation>Kanal bilgisi alınıyor…</translation>
    </message>
    <message id="295">
        <source>Get NVR Info...</source>
        <translation>NVR bilgisi alınıyor…</translation>
    </message>
    <message id="296">
        <source>Initial NVR Value...</source>
        <translation>NVR değerleri hazırlanıyor…</translation>
    </message>
    <message id="297">
        <source>Add Success!</source>
        <translation>Başarıyla eklendi.</translation>
    </message>
    <message id="298">
        <source>Channel List</source>
        <translation>Kanal Listesi</translation>
    </message>
    <message id="299">
        <source>Split:</source>
        <translation>Bölme:</translation>
    </message>
    <message id="300">
        <source>MainViewer opened. Close it First!</source>
        <translation>Ana izleyici açık. Önce kapatın.</translation>
    </message>
    <message id="301">
        <source>System &amp; Setting</source>
        <translation>Sistem ve Ayarlar</translation>
    </message>
    <message id="302">
        <source>Setting</source>
        <translation>Ayarlar</translation>
    </message>
    <message id="303">
        <source>Manual Setting</source>
        <translation>El ile Ayar</translation>
    </message>
    <message id="304">
        <source>PTZ Config</source>
        <translation>PTZ Ayarları</translation>
    </message>
    <message id="305">
        <source>Motion Setting</source>
        <translation>Hareket Ayarları</translation>
    </message>
    <message id="306">
        <source>Motion Setting</source>
        <translation>Hareket Ayarları</translation>
    </message>
    <message id="307">
        <source>General Setting Overview</source>
        <translation>Genel Ayarlara Bakış</translation>
    </message>
    <message id="308">
        <source>Group/User Config</source>
        <translation>Grup/Kullanıcı Ayarları</translation>
    </message>
    <message id="309">
        <source>Event Handling Config</source>
        <translation>Olay İşleme Ayarları</translation>
    </message>
    <message id="310">
        <source>E-Map Config</source>
        <translation>E-harita Ayarları</translation>
    </message>
    <message id="311">
        <source>Screen Layout Config</source>
        <translation>Ekran Düzeni Ayarları</translation>
    </message>
    <message id="312">
        <source>Event Action Overview</source>
        <translation>Olay Eylemlerine Genel Bakış</translation>
    </message>
    <message id="313">
        <source>Mail Config</source>
        <translation>E-posta Ayarları</translation>
    </message>
    <message id="314">
        <source>FTP Config</source>
        <translation>FTP Ayarları</translation>
    </message>
    <message id="315">
        <source>Message Config</source>
        <translation>İleti Ayarları</translation>
    </message>
    <message id="316">
        <source>Sound Config</source>
        <translation>Ses Ayarları</translation>
    </message>
    <message id="317">
        <source>Save</source>
        <translation>Kaydet</translation>
    </message>
    <message id="318">
        <source>Main Viewer</source>
        <translation>Ana İzleyici</translation>
    </message>
    <message id="319">
        <source>Exit</source>
        <translation>Çıkış</translation>
    </message>
    <message id="320">
        <source>Setup</source>
        <translation>Yapılandırma</translation>
    </message>
    <message id="321">
        <source>SEQ Control</source>
        <translation>Tur Kontrolü</translation>
    </message>
    <message id="322">
        <source>Pattern Name:</source>
        <translation>Şablon Adı:</translation>
    </message>
    <message id="323">
        <source>Do you continue to delete this pattern?</source>
        <translation>Bu şablonu silmek istiyor musunuz?</translation>
    </message>
    <message id="324">
        <source>Pattern List Overview</source>
        <translation>Şablon Listesine Genel Bakış</translation>
    </message>
    <message id="325">
        <source>Name or Channel list need to be set!</source>
        <translation>Ad veya kanal listesi ayarlanmalı.</translation>
    </message>
    <message id="326">
        <source>Live Monitor SEQ and full screen can not be opened at the same time.</source>
        <translation>Canlı izleme turu ile tam ekran aynı anda açılamaz.</translation>
    </message>
    <message id="327">
        <source>No channel is selected!</source>
        <translation>Kanal seçilmedi.</translation>
    </message>
    <message id="328">
        <source>Select time is out of data range!</source>
        <translation>Seçilen zaman veri aralığının dışında.</translation>
    </message>
    <message id="329">
        <source>NVR is invalid!</source>
        <translation>NVR geçersiz.</translation>
    </message>
    <message id="330">
        <source>System Setting</source>
        <translation>Sistem Ayarları</translation>
    </message>
    <message id="331">
        <source>Application name:</source>
        <translation>Uygulama Adı:</translation>
    </message>
    <message id="332">
        <source>Version:</source>
        <translation>Sürüm:</translation>
    </message>
    <message id="333">
        <source>Language:</source>
        <translation>Dil:</translation>
    </message>
    <message id="334">
        <source>Start Up:</source>
        <translation>Başlangıç:</translation>
    </message>
    <message id="335">
        <source>Event Sync Time:</source>
        <translation>Olay Eşitleme Süresi:</translation>
    </message>
    <message id="336">
        <source>Snapshot Count:</source>
        <translation>Anlık Görüntü Sayısı:</translation>
    </message>
    <message id="337">
        <source>Camera Event Server Setting</source>
        <translation>Kamera Olay Sunucusu Ayarları</translation>
    </message>
    <message id="338">
        <source>Account:</source>
        <translation>Hesap:</translation>
    </message>
    <message id="339">
        <source>Password:</source>
        <translation>Parola:</translation>
    </message>
    <message id="340">
        <source>Port:</source>
        <translation>Port:</translation>
    </message>
    <message id="341">
        <source>System Info</source>
        <translation>Sistem Bilgisi</translation>
    </message>
    <message id="343">
        <source>OS:</source>
        <translation>İşletim Sistemi:</translation>
    </message>
    <message id="344">
        <source>CPU:</source>
        <translation>CPU:</translation>
    </message>
    <message id="345">
        <source>RAM:</source>
        <translation>RAM:</translation>
    </message>
    <message id="346">
        <source>Computer name:</source>
        <translation>Bilgisayar Adı:</translation>
    </message>
    <message id="347">
        <source>Total space of HD:</source>
        <translation>Toplam Disk Alanı:</translation>
    </message>
    <message id="348">
        <source>Network Connect Status:</source>
        <translation>Ağ Bağlantısı Durumu:</translation>
    </message>
    <message id="349">
        <source>System Time:</source>
        <translation>Sistem Saati:</translation>
    </message>
    <message id="350">
        <source>Screen Count:</source>
        <translation>Ekran Sayısı:</translation>
    </message>
    <message id="351">
        <source>CPU Performance:</source>
        <translation>CPU Kullanımı:</translation>
    </message>
    <message id="352">
        <source>Login Windows then Auto Start up </source>
        <translation>Windows Oturumu Açılınca Otomatik Başlat </translation>
    </message>
    <message id="353">
        <source>Start in background</source>
        <translation>Arka Planda Başlat</translation>
    </message>
    <message id="354">
        <source>Minute</source>
        <translation>dk</translation>
    </message>
    <message id="356">
        <source>NVR is connecting, wait a moment and start again!</source>
        <translation>NVR bağlanıyor, biraz bekleyip yeniden başlatın.</translation>
    </message>
    <message id="357">
        <source>NVR is offline, please choose another NVR or confirm this NVR connection status!</source>
        <translation>NVR çevrimdışı, lütfen başka bir NVR seçin veya bu NVR'nin bağlantı durumunu kontrol edin.</translation>
    </message>
    <message id="358">
        <source>Output device has been removed!</source>
        <translation>Çıkış cihazı kaldırıldı.</translation>
    </message>
    <message id="359">
        <source>Password confirm inconsistency, Please check again!</source>
        <translation>Parolalar uyuşmuyor, lütfen yeniden kontrol edin.</translation>
    </message>
    <message id="360">
        <source>List:</source>
        <translation>Liste:</translation>
    </message>
    <message id="361">
        <source>NVR</source>
        <translation>NVR</translation>
    </message>
    <message id="362">
        <source>Name</source>
        <translation>Ad</translation>
    </message>
    <message id="363">
        <source>IP</source>
        <translation>IP</translation>
    </message>
    <message id="364">
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message id="365">
        <source>Power</source>
        <translation>Yetki</translation>
    </message>
    <message id="366">
        <source>CH</source>
        <translation>Kanal</translation>
    </message>
    <message id="367">
        <source>CH Name</source>
        <translation>Kanal Adı</translation>
    </message>
    <message id="368">
        <source>CH IP</source>
        <translation>Kanal IP</translation>
    </message>
    <message id="369">
        <source>CH Port</source>
        <translation>Kanal Portu</translation>
    </message>
    <message id="370">
        <source>CH Brand</source>
        <translation>Kanal Markası</translation>
    </message>
    <message id="371">
        <source>Video Format</source>
        <translation>Video Biçimi</translation>
    </message>
    <message id="372">
        <source>Video RES</source>
        <translation>Çözünürlük</translation>
    </message>
    <message id="373">
        <source>MD Enable</source>
        <translation>Hareket Alg.</translation>
    </message>
    <message id="374">
        <source>MD Sen</source>
        <translation>Hareket Hass.</translation>
    </message>
    <message id="375">
        <source>CH PTZ</source>
        <translation>Kanal PTZ</translation>
    </message>
    <message id="376">
        <source>CH audio</source>
        <translation>Kanal Sesi</translation>
    </message>
    <message id="377">
        <source>Detect List</source>
        <translation>Algılananlar Listesi</translation>
    </message>
    <message id="378">
        <source>Advance Control </source>
        <translation>Gelişmiş Kontrol </translation>
    </message>
    <message id="379">
        <source>IP</source>
        <translation>IP</translation>
    </message>
    <message id="380">
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message id="381">
        <source>Brand</source>
        <translation>Marka</translation>
    </message>
    <message id="382">
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message id="383">
        <source>MAC</source>
        <translation>MAC</translation>
    </message>
    <message id="384">
        <source>Detect Time</source>
        <translation>Algılama Zamanı</translation>
    </message>
    <message id="385">
        <source>Add</source>
        <translation>Ekle</translation>
    </message>
    <message id="386">
        <source>Remove</source>
        <translation>Kaldır</translation>
    </message>
    <message id="387">
        <source>Modify</source>
        <translation>Değiştir</translation>
    </message>
    <message id="388">
        <source>Reconection </source>
        <translation>Yeniden Bağlan </translation>
    </message>
    <message id="389">
        <source>Open Browser</source>
        <translation>Tarayıcıyı Aç</translation>
    </message>
    <message id="390">
        <source>Preset Info</source>
        <translation>Ön Ayar Bilgisi</translation>
    </message>
    <message id="391">
        <source>Sync</source>
        <translation>Eşitle</translation>
    </message>
    <message id="392">
        <source>Edit Preset</source>
        <translation>Ön Ayarı Düzenle</translation>
    </message>
    <message id="393">
        <source>Preset No</source>
        <translation>Ön Ayar No</translation>
    </message>
    <message id="394">
        <source>Preset Name</source>
        <translation>Ön Ayar Adı</translation>
    </message>
    <message id="395">
        <source>PTZ Control</source>
        <translation>PTZ Kontrolü</translation>
    </message>
    <message id="396">
        <source>Submit</source>
        <translation>Onayla</translation>
    </message>
    <message id="397">
        <source>Motion Detect List:</source>
        <translation>Hareket Algılama Listesi:</translation>
    </message>
    <message id="398">
        <source>Sensitivity:</source>
        <translation>Hassasiyet:</translation>
    </message>
    <message id="399">
        <source>Motion Detect Setting</source>
        <translation>Hareket Algılama Ayarları</translation>
    </message>
    <message id="400">
        <source>*Use Mouse drag the Device item into Intelligent detection List.</source>
        <translation>*Cihazı fareyle akıllı algılama listesine sürükleyin.</translation>
    </message>
    <message id="401">
        <source>Device List:</source>
        <translation>Cihaz Listesi:</translation>
    </message>
    <message id="402">
        <source>Trigger for Motion Detect</source>
        <translation>Hareket Algılama Tetiklemesi</translation>
    </message>
    <message id="403">
        <source>Status</source>
        <translation>Durum</translation>
    </message>
    <message id="404">
        <source>Motion Enable List:</source>
        <translation>Etkin Hareket Algılamalar:</translation>
    </message>
    <message id="405">
        <source>Clear All</source>
        <translation>Tümünü Temizle</translation>
    </message>
    <message id="406">
        <source>Select All</source>
        <translation>Tümünü Seç</translation>
    </message>
    <message id="407">
        <source>High</source>
        <translation>Yüksek</translation>
    </message>
    <message id="408">
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message id="409">
        <source>Low</source>
        <translation>Düşük</translation>
    </message>
    <message id="410">
        <source>SET</source>
        <translation>AYARLA</translation>
    </message>
    <message id="411">
        <source>User List:</source>
        <translation>Kullanıcı Listesi:</translation>
    </message>
    <message id="412">
        <source>Group List:</source>
        <translation>Grup Listesi:</translation>
    </message>
    <message id="413">
        <source>Event Setting List:</source>
        <translation>Olay Ayarı Listesi:</translation>
    </message>
    <message id="414">
        <source>EMap List:</source>
        <translation>E-harita Listesi:</translation>
    </message>
    <message id="415">
        <source>Screen List:</source>
        <translation>Ekran Listesi:</translation>
    </message>
    <message id="416">
        <source>Account</source>
        <translation>Hesap</translation>
    </message>
    <message id="417">
        <source>Company</source>
        <translation>Şirket</translation>
    </message>
    <message id="418">
        <source>Telephone</source>
        <translation>Telefon</translation>
    </message>
    <message id="419">
        <source>Mail 1</source>
        <translation>E-posta 1</translation>
    </message>
    <message id="420">
        <source>Mail 2</source>
        <translation>E-posta 2</translation>
    </message>
    <message id="421">
        <source>Cell Phone</source>
        <translation>Cep Telefonu</translation>
    </message>
    <message id="422">
        <source>Photo Path</source>
        <translation>Fotoğraf Yolu</translation>
    </message>
    <message id="423">
        <source>Group</source>
        <translation>Grup</translation>
    </message>
    <message id="424">
        <source>Event</source>
        <translation>Olay</translation>
    </message>
    <message id="425">
        <source>Mail</source>
        <translation>E-posta</translation>
    </message>
    <message id="426">
        <source>FTP</source>
        <translation>FTP</translation>
    </message>
    <message id="427">
        <source>Msg</source>
        <translation>İleti</translation>
    </message>
    <message id="428">
        <source>Sound</source>
        <translation>Ses</translation>
    </message>
    <message id="429">
        <source>Video Power</source>
        <translation>Video Yetkisi</translation>
    </message>
    <message id="430">
        <source>Playback</source>
        <translation>Oynatma</translation>
    </message>
    <message id="431">
        <source>PTZ</source>
        <translation>PTZ</translation>
    </message>
    <message id="432">
        <source>Setup</source>
        <translation>Yapılandırma</translation>
    </message>
    <message id="433">
        <source>Map</source>
        <translation>Harita</translation>
    </message>
    <message id="434">
        <source>Path</source>
        <translation>Yol</translation>
    </message>
    <message id="435">
        <source>Function</source>
        <translation>İşlev</translation>
    </message>
    <message id="436">
        <source>Screen</source>
        <translation>Ekran</translation>
    </message>
    <message id="437">
        <source>MainMap</source>
        <translation>Ana Harita</translation>
    </message>
    <message id="438">
        <source>FullScreen</source>
        <translation>Tam Ekran</translation>
    </message>
    <message id="439">
        <source>FullScreen2</source>
        <translation>Tam Ekran 2</translation>
    </message>
    <message id="440">
        <source>User Detail List</source>
        <translation>Kullanıcı Ayrıntı Listesi</translation>
    </message>
    <message id="441">
        <source>Group List</source>
        <translation>Grup Listesi</translation>
    </message>
    <message id="442">
        <source>Add User</source>
        <translation>Kullanıcı Ekle</translation>
    </message>
    <message id="443">
        <source>Remove User</source>
        <translation>Kullanıcıyı Kaldır</translation>
    </message>
    <message id="444">
        <source>Modify User</source>
        <translation>Kullanıcıyı Düzenle</translation>
    </message>
    <message id="445">
        <source>Modify Group</source>
        <translation>Grubu Düzenle</translation>
    </message>
    <message id="446">
        <source>System Event Trigger Action</source>
        <translation>Sistem Olayı Tetikleme Eylemi</translation>
    </message>
    <message id="447">
        <source>NVR Event Trigger Action</source>
        <translation>NVR Olayı Tetikleme Eylemi</translation>
    </message>
    <message id="448">
        <source>System Start/Stop</source>
        <translation>Sistem Başlatma/Durdurma</translation>
    </message>
    <message id="449">
        <source>Modify Setting of System</source>
        <translation>Sistem Ayarı Değişikliği</translation>
    </message>
    <message id="450">
        <source>Modify Setting of NVR</source>
        <translation>NVR Ayarı Değişikliği</translation>
    </message>
    <message id="451">
        <source>Modify Setting of Intelligent detection</source>
        <translation>Akıllı Algılama Ayarı Değişikliği</translation>
    </message>
    <message id="452">
        <source>Modify Setting of General</source>
        <translation>Genel Ayar Değişikliği</translation>
    </message>
    <message id="453">
        <source>Modify Setting of Event</source>
        <translation>Olay Ayarı Değişikliği</translation>
    </message>
    <message id="454">
        <source>E1:Motion Detect</source>
        <translation>E1: Hareket Algılama</translation>
    </message>
    <message id="455">
        <source>Sensor Detection</source>
        <translation>Sensör Algılama</translation>
    </message>
    <message id="456">
        <source>*Double Click Map to Setting</source>
        <translation>*Ayarlamak için haritaya çift tıklayın</translation>
    </message>
    <message id="457">
        <source>SubMap</source>
        <translation>Alt Harita</translation>
    </message>
    <message id="458">
        <source>Screen Layout</source>
        <translation>Ekran Düzeni</translation>
    </message>
    <message id="459">
        <source>Mail</source>
        <translation>E-posta</translation>
    </message>
    <message id="460">
        <source>FTP</source>
        <translation>FTP</translation>
    </message>
    <message id="461">
        <source>Message</source>
        <translation>İleti</translation>
    </message>
    <message id="462">
        <source>Sound</source>
        <translation>Ses</translation>
    </message>
    <message id="463">
        <source>Sender E-mail Address</source>
        <translation>Gönderen E-posta Adresi</translation>
    </message>
    <message id="464">
        <source>Mail Server</source>
        <translation>E-posta Sunucusu</translation>
    </message>
    <message id="465">
        <source>User</source>
        <translation>Kullanıcı</translation>
    </message>
    <message id="466">
        <source>Password</source>
        <translation>Parola</translation>
    </message>
    <message id="467">
        <source>Adressee Name</source>
        <translation>Alıcı Adı</translation>
    </message>
    <message id="468">
        <source>Mail Addrrss</source>
        <translation>E-posta Adresi</translation>
    </message>
    <message id="469">
        <source>Server IP</source>
        <translation>Sunucu IP</translation>
    </message>
    <message id="470">
        <source>Server Port</source>
        <translation>Sunucu Portu</translation>
    </message>
    <message id="471">
        <source>Text</source>
        <translation>Metin</translation>
    </message>
    <message id="472">
        <source>Sound Description</source>
        <translation>Ses Açıklaması</translation>
    </message>
    <message id="473">
        <source>Sound File Path</source>
        <translation>Ses Dosyası Yolu</translation>
    </message>
    <message id="474">
        <source>Test</source>
        <translation>Test Et</translation>
    </message>
    <message id="475">
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message id="476">
        <source>Mail to</source>
        <translation>Alıcı</translation>
    </message>
    <message id="477">
        <source>FTP Setting</source>
        <translation>FTP Ayarları</translation>
    </message>
    <message id="478">
        <source>Message Setting</source>
        <translation>İleti Ayarları</translation>
    </message>
    <message id="479">
        <source>Message</source>
        <translation>İleti</translation>
    </message>
    <message id="480">
        <source>Sound Setting</source>
        <translation>Ses Ayarları</translation>
    </message>
    <message id="481">
        <source>Set HTTP Server failed! Do you want to remove all HTTP Servers?</source>
        <translation>HTTP sunucusu ayarlanamadı. Tüm HTTP sunucularını kaldırmak istiyor musunuz?</translation>
    </message>
    <message id="482">
        <source>The amount cannot be more than 16!</source>
        <translation>Sayı 16 değerinden büyük olamaz.</translation>
    </message>
    <message id="483">
        <source>Do you want to delete the selected NVR?</source>
        <translation>Seçilen NVR'yi silmek istiyor musunuz?</translation>
    </message>
    <message id="484">
        <source>Sender name can't be empty!</source>
        <translation>Gönderen adı boş olamaz.</translation>
    </message>
    <message id="485">
        <source>Mail Server can't be empty!</source>
        <translation>E-posta sunucusu alanı boş olamaz.</translation>
    </message>
    <message id="486">
        <source>User can't be empty!</source>
        <translation>Kullanıcı alanı boş olamaz.</translation>
    </message>
    <message id="487">
        <source>Password can't be empty!</source>
        <translation>Parola boş olamaz.</translation>
    </message>
    <message id="488">
        <source>Mail Address can't be empty!</source>
        <translation>E-posta adresi boş olamaz.</translation>
    </message>
    <message id="489">
        <source>Test mail sent success.</source>
        <translation>Test e-postası gönderildi.</translation>
    </message>
    <message id="490">
        <source>Test mail sent failed.</source>
        <translation>Test e-postası gönderilemedi.</translation>
    </message>
    <message id="491">
        <source>Server IP can't be empty!</source>
        <translation>Sunucu IP adresi boş olamaz.</translation>
    </message>
    <message id="492">
        <source>Server Port can't be empty!</source>
        <translation>Sunucu portu boş olamaz.</translation>
    </message>
    <message id="493">
        <source>Root Path can't be empty!</source>
        <translation>Kök yolu boş olamaz.</translation>
    </message>
    <message id="494">
        <source>Connecting to ftp server success.</source>
        <translation>FTP sunucusuna bağlanıldı.</translation>
    </message>
    <message id="495">
        <source>Connecting to ftp server failed.</source>
        <translation>FTP sunucusuna bağlanılamadı.</translation>
    </message>
    <message id="496">
        <source>Message can't be empty!</source>
        <translation>İleti boş olamaz.</translation>
    </message>
    <message id="497">
        <source>Sound Description can't be empty!</source>
        <translation>Ses açıklaması boş olamaz.</translation>
    </message>
    <message id="498">
        <source>Sound file Path can't be empty!</source>
        <translation>Ses dosyası yolu boş olamaz.</translation>
    </message>
    <message id="499">
        <source>Preset number select first.</source>
        <translation>Önce ön ayar numarasını seçin.</translation>
    </message>
    <message id="500">
        <source>The Preset Name has been used.</source>
        <translation>Bu ön ayar adı zaten kullanılıyor.</translation>
    </message>
    <message id="501">
        <source>Do you want to delete the selected User?</source>
        <translation>Seçilen kullanıcıyı silmek istiyor musunuz?</translation>
    </message>
    <message id="502">
        <source>Can't Delete User.</source>
        <translation>Kullanıcı silinemez.</translation>
    </message>
    <message id="503">
        <source>Already Set.</source>
        <translation>Zaten ayarlandı.</translation>
    </message>
    <message id="504">
        <source>Intelligent setting can't exceed 16</source>
        <translation>Akıllı algılama ayarlarının sayısı 16 değerini aşamaz.</translation>
    </message>
    <message id="505">
        <source>Add NVR failed! Please add again.</source>
        <translation>NVR eklenemedi. Lütfen yeniden ekleyin.</translation>
    </message>
    <message id="506">
        <source>File Size can't more than 5MB</source>
        <translation>Dosya boyutu 5 MB'den büyük olamaz.</translation>
    </message>
    <message id="507">
        <source>Save OK</source>
        <translation>Kaydedildi.</translation>
    </message>
    <message id="508">
        <source>Exit and Open MainViewer?</source>
        <translation>Çıkıp ana izleyiciyi açmak istiyor musunuz?</translation>
    </message>
    <message id="509">
        <source>Do you want to exit?</source>
        <translation>Çıkmak istiyor musunuz?</translation>
    </message>
    <message id="510">
        <source>Resolution Not Support .</source>
        <translation>Çözünürlük desteklenmiyor.</translation>
    </message>
    <message id="511">
        <source>Do you want to Save?</source>
        <translation>Kaydetmek istiyor musunuz?</translation>
    </message>
    <message id="512">
        <source>The Channel does not support motion detection or is no connection !</source>
        <translation>Kanal hareket algılamayı desteklemiyor veya bağlı değil.</translation>
    </message>
    <message id="513">
        <source>No setting !</source>
        <translation>Ayar yok.</translation>
    </message>
    <message id="514">
        <source>Settings have changed , Do you want to save ?</source>
        <translation>Ayarlar değişti, kaydetmek istiyor musunuz?</translation>
    </message>
    <message id="515">
        <source>Not yet set of Event Action config!</source>
        <translation>Olay eylemi henüz yapılandırılmadı.</translation>
    </message>
    <message id="516">
        <source>Video can't connection.</source>
        <translation>Video bağlantısı kurulamıyor.</translation>
    </message>
    <message id="517">
        <source>Submit</source>
        <translation>Onayla</translation>
    </message>
    <message id="518">
        <source>Save Setting</source>
        <translation>Ayarları Kaydet</translation>
    </message>
    <message id="519">
        <source>Close this window</source>
        <translation>Bu Pencereyi Kapat</translation>
    </message>
    <message id="520">
        <source>Preset Sequence</source>
        <translation>Ön Ayar Dizisi</translation>
    </message>
    <message id="521">
        <source>Dwell Time:</source>
        <translation>Bekleme Süresi:</translation>
    </message>
    <message id="522">
        <source>PTZ Preset</source>
        <translation>PTZ Ön Ayarı</translation>
    </message>
    <message id="523">
        <source>Preset Sequence</source>
        <translation>Ön Ayar Dizisi</translation>
    </message>
    <message id="524">
        <source>Select a wave file</source>
        <translation>WAV Dosyası Seçin</translation>
    </message>
    <message id="525">
        <source>File Name: </source>
        <translation>Dosya Adı: </translation>
    </message>
    <message id="526">
        <source>Message sent successfully!</source>
        <translation>İleti başarıyla gönderildi.</translation>
    </message>
    <message id="527">
        <source>Sending Message fail!</source>
        <translation>İleti gönderilemedi.</translation>
    </message>
    <message id="528">
        <source>MAX Video</source>
        <translation>Videoyu Büyüt</translation>
    </message>
    <message id="529">
        <source>Enable/Disable auto switch group to display videos.</source>
        <translation>Video gösteriminde otomatik grup geçişini etkinleştirin/devre dışı bırakın.</translation>
    </message>
    <message id="530">
        <source>Enable/Disable maximum video to display.</source>
        <translation>Büyütülmüş video gösterimini etkinleştirin/devre dışı bırakın.</translation>
    </message>
    <message id="531">
        <source>Live Video</source>
        <translation>Canlı Video</translation>
    </message>
    <message id="532">
        <source>Do you want to cancel playback for NVR?</source>
        <translation>NVR oynatmasını iptal etmek istiyor musunuz?</translation>
    </message>
    <message id="533">
        <source>The selected time doesn't have any recording data!</source>
        <translation>Seçilen zamana ait kayıt verisi yok.</translation>
    </message>
    <message id="534">
        <source>Select channel you want to change and reset the relational data information?</source>
        <translation>Seçilen kanalı değiştirip ilgili verileri sıfırlamak istiyor musunuz?</translation>
    </message>
    <message id="535">
        <source>This NVR cannot get group ID to playback!</source>
        <translation>Bu NVR oynatma için grup ID'si alamıyor.</translation>
    </message>
    <message id="536">
        <source>Select the SVD has been disconnected, so close the panel and make sure that SVD status!</source>
        <translation>Seçilen SVD'nin bağlantısı kesildi. Paneli kapatıp SVD durumunu kontrol edin.</translation>
    </message>
    <message id="550">
        <source>IP Address</source>
        <translation>IP Adresi</translation>
    </message>
    <message id="551">
        <source>Http Port</source>
        <translation>HTTP Portu</translation>
    </message>
    <message id="552">
        <source>Add</source>
        <translation>Ekle</translation>
    </message>
    <message id="553">
        <source>NVR Name can't be empty!</source>
        <translation>NVR adı boş olamaz.</translation>
    </message>
    <message id="554">
        <source>IP address or hostname set incorrectly!</source>
        <translation>IP adresi veya ana bilgisayar adı yanlış ayarlanmış.</translation>
    </message>
    <message id="555">
        <source>NVR don't exist!</source>
        <translation>NVR mevcut değil.</translation>
    </message>
    <message id="556">
        <source>Port set incorrectly!</source>
        <translation>Port yanlış ayarlanmış.</translation>
    </message>
    <message id="557">
        <source>Add</source>
        <translation>Ekle</translation>
    </message>
    <message id="558">
        <source>NVR select setting</source>
        <translation>NVR Seçim Ayarları</translation>
    </message>
    <message id="559">
        <source>Pattern select setting</source>
        <translation>Şablon Seçim Ayarları</translation>
    </message>
    <message id="560">
        <source>All list</source>
        <translation>Tüm Liste</translation>
    </message>
    <message id="561">
        <source>Selected list</source>
        <translation>Seçilenler</translation>
    </message>
    <message id="562">
        <source>Select item is less than 2 items, it can not be saved!</source>
        <translation>2'den az öğe seçildi, kaydedilemez.</translation>
    </message>
    <message id="563">
        <source>Functions that were originally assigned on this screen will be moved to screen #1 automatically.</source>
        <translation>Bu ekrana atanmış işlevler otomatik olarak 1 numaralı ekrana taşınacak.</translation>
    </message>
    <message id="564">
        <source>Has not enough pattern can be selected!</source>
        <translation>Seçilebilecek yeterli şablon yok.</translation>
    </message>
    <message id="565">
        <source>This screen has been assigned to Video Wall!</source>
        <translation>Bu ekran video duvarına atanmış.</translation>
    </message>
    <message id="566">
        <source>Has not enough device can be selected!</source>
        <translation>Seçilebilecek yeterli cihaz yok.</translation>
    </message>
    <message id="570">
        <source>Information</source>
        <translation>Bilgi</translation>
    </message>
    <message id="571">
        <source>*Name</source>
        <translation>*Ad</translation>
    </message>
    <message id="572">
        <source>*IP Address</source>
        <translation>*IP Adresi</translation>
    </message>
    <message id="573">
        <source>*Http Port</source>
        <translation>*HTTP Portu</translation>
    </message>
    <message id="574">
        <source>*User</source>
        <translation>*Kullanıcı</translation>
    </message>
    <message id="575">
        <source>*Password</source>
        <translation>*Parola</translation>
    </message>
    <message id="576">
        <source>Detect</source>
        <translation>Algıla</translation>
    </message>
    <message id="577">
        <source>Device Setting</source>
        <translation>Cihaz Ayarları</translation>
    </message>
    <message id="578">
        <source>NO.</source>
        <translation>No.</translation>
    </message>
    <message id="579">
        <source>Camera name</source>
        <translation>Kamera Adı</translation>
    </message>
    <message id="580">
        <source>Video Port</source>
        <translation>Video Portu</translation>
    </message>
    <message id="581">
        <source>Format</source>
        <translation>Biçim</translation>
    </message>
    <message id="582">
        <source>Resolution</source>
        <translation>Çözünürlük</translation>
    </message>
    <message id="583">
        <source>PTZ</source>
        <translation>PTZ</translation>
    </message>
    <message id="584">
        <source>Audio</source>
        <translation>Ses</translation>
    </message>
    <message id="585">
        <source>Edit Camera Setting</source>
        <translation>Kamera Ayarını Düzenle</translation>
    </message>
    <message id="586">
        <source>Camera No</source>
        <translation>Kamera No</translation>
    </message>
    <message id="587">
        <source>Camera IP</source>
        <translation>Kamera IP</translation>
    </message>
    <message id="588">
        <source>Additional Camera Information</source>
        <translation>Ek Kamera Bilgileri</translation>
    </message>
    <message id="589">
        <source>Min. Bitrate</source>
        <translation>Min. Bit Hızı</translation>
    </message>
    <message id="590">
        <source>Max. Bitrate</source>
        <translation>Maks. Bit Hızı</translation>
    </message>
    <message id="591">
        <source>Apply</source>
        <translation>Uygula</translation>
    </message>
    <message id="592">
        <source>Remove</source>
        <translation>Kaldır</translation>
    </message>
    <message id="593">
        <source>NVR IP can't be empty.</source>
        <translation>NVR IP adresi boş olamaz.</translation>
    </message>
    <message id="594">
        <source>NVR Http Port can't be empty.</source>
        <translation>NVR HTTP portu boş olamaz.</translation>
    </message>
    <message id="595">
        <source>NVR User can't be empty.</source>
        <translation>NVR kullanıcı alanı boş olamaz.</translation>
    </message>
    <message id="596">
        <source>NVR Password can't be empty.</source>
        <translation>NVR parolası boş olamaz.</translation>
    </message>
    <message id="597">
        <source>Request Time Zone ERR! Please Detect again.</source>
        <translation>Saat dilimi isteği hatası. Lütfen yeniden algılayın.</translation>
    </message>
    <message id="598">
        <source>Please Select Brand.</source>
        <translation>Lütfen marka seçin.</translation>
    </message>
    <message id="599">
        <source>IP Timeout.</source>
        <translation>IP zaman aşımı.</translation>
    </message>
    <message id="600">
        <source>Quality</source>
        <translation>Kalite</translation>
    </message>
    <message id="601">
        <source>Bitrate</source>
        <translation>Bit Hızı</translation>
    </message>
    <message id="602">
        <source>Bitrate Mode</source>
        <translation>Bit Hızı Modu</translation>
    </message>
    <message id="603">
        <source>CH name can't be empty!</source>
        <translation>Kanal adı boş olamaz.</translation>
    </message>
    <message id="604">
        <source>IP address can't be empty!</source>
        <translation>IP adresi boş olamaz.</translation>
    </message>
    <message id="605">
        <source>Http Port can't be empty!</source>
        <translation>HTTP portu boş olamaz.</translation>
    </message>
    <message id="606">
        <source>User account can't be empty!</source>
        <translation>Kullanıcı hesabının adı boş olamaz.</translation>
    </message>
    <message id="607">
        <source>Password can't be empty!</source>
        <translation>Parola boş olamaz.</translation>
    </message>
    <message id="608">
        <source>Detection Error!</source>
        <translation>Algılama hatası.</translation>
    </message>
    <message id="609">
        <source>No Camera or connect failed !</source>
        <translation>Kamera yok veya bağlantı kurulamadı.</translation>
    </message>
    <message id="610">
        <source>This firmware version of NVR is not supported , please update newer Version.</source>
        <translation>NVR'nin bu donanım yazılımı sürümü desteklenmiyor, lütfen daha yeni bir sürüme güncelleyin.</translation>
    </message>
    <message id="611">
        <source>If you press the button, data inside NVR will be changed!</source>
        <translation>Düğmeye basarsanız NVR'deki veriler değişir.</translation>
    </message>
    <message id="612">
        <source>Camera Search</source>
        <translation>Kamera Arama</translation>
    </message>
    <message id="613">
        <source>Brand not Support!</source>
        <translation>Marka desteklenmiyor.</translation>
    </message>
    <message id="614">
        <source>FPS</source>
        <translation>FPS</translation>
    </message>
    <message id="615">
        <source>Video Format Error!</source>
        <translation>Video biçimi hatası.</translation>
    </message>
    <message id="616">
        <source>Camera settings have changes, please re-detect.</source>
        <translation>Kamera ayarları değişti, lütfen yeniden algılayın.</translation>
    </message>
    <message id="617">
        <source>Add Camera Fail!</source>
        <translation>Kamera eklenemedi.</translation>
    </message>
    <message id="618">
        <source>DIS Setting</source>
        <translation>DIS Ayarları</translation>
    </message>
    <message id="619">
        <source>Device not supported!</source>
        <translation>Cihaz desteklenmiyor.</translation>
    </message>
    <message id="620">
        <source>This account is already set!</source>
        <translation>Bu hesap zaten tanımlı.</translation>
    </message>
    <message id="621">
        <source>Do you want to continue edit preset point?</source>
        <translation>Ön ayar noktasını düzenlemeye devam etmek istiyor musunuz?</translation>
    </message>
    <message id="630">
        <source>Group Name</source>
        <translation>Grup Adı</translation>
    </message>
    <message id="631">
        <source>Power Level</source>
        <translation>Yetki Düzeyi</translation>
    </message>
    <message id="632">
        <source>Function Permission</source>
        <translation>İşlev Yetkileri</translation>
    </message>
    <message id="633">
        <source>Playback</source>
        <translation>Oynatma</translation>
    </message>
    <message id="634">
        <source>PTZ Control</source>
        <translation>PTZ Kontrolü</translation>
    </message>
    <message id="635">
        <source>System Setup</source>
        <translation>Sistem Yapılandırması</translation>
    </message>
    <message id="636">
        <source>Group Setting</source>
        <translation>Grup Ayarları</translation>
    </message>
    <message id="640">
        <source>File Size can't more than 10MB</source>
        <translation>Dosya boyutu 10 MB'den büyük olamaz.</translation>
    </message>
    <message id="641">
        <source>EMap Setting</source>
        <translation>E-harita Ayarları</translation>
    </message>
    <message id="642">
        <source>*Double Click Windows to change Map images.</source>
        <translation>*Harita görüntüsünü değiştirmek için pencereye çift tıklayın.</translation>
    </message>
    <message id="643">
        <source>Select an image file</source>
        <translation>Görüntü Dosyası Seçin</translation>
    </message>
    <message id="645">
        <source>User Setting</source>
        <translation>Kullanıcı Ayarları</translation>
    </message>
    <message id="646">
        <source>Photo</source>
        <translation>Fotoğraf</translation>
    </message>
    <message id="647">
        <source>(Dubble Click to Setting)</source>
        <translation>(Ayarlamak için çift tıklayın)</translation>
    </message>
    <message id="648">
        <source>Check</source>
        <translation>Kontrol Et</translation>
    </message>
    <message id="649">
        <source>*User Name</source>
        <translation>*Kullanıcı Adı</translation>
    </message>
    <message id="650">
        <source>*Password Confirm</source>
        <translation>*Parola Onayı</translation>
    </message>
    <message id="651">
        <source>*:Necessary</source>
        <translation>*: Zorunlu</translation>
    </message>
    <message id="652">
        <source>This name not yet use</source>
        <translation>Bu ad henüz kullanılmıyor.</translation>
    </message>
    <message id="653">
        <source>This name in use</source>
        <translation>Bu ad kullanımda.</translation>
    </message>
    <message id="660">
        <source>User&amp;Password</source>
        <translation>Kullanıcı ve Parola</translation>
    </message>
    <message id="661">
        <source>User or Password is not input!</source>
        <translation>Kullanıcı veya parola girilmedi.</translation>
    </message>
    <message id="671">
        <source>DIS Service Setting</source>
        <translation>DIS Hizmeti Ayarları</translation>
    </message>
    <message id="672">
        <source>Account List</source>
        <translation>Hesap Listesi</translation>
    </message>
    <message id="673">
        <source>Do you want to remove this user?</source>
        <translation>Bu kullanıcıyı kaldırmak istiyor musunuz?</translation>
    </message>
    <message id="674">
        <source>The account has reached the upper limit, for add new account you need to remove another account.</source>
        <translation>Hesap sayısı üst sınıra ulaştı. Yeni hesap eklemek için başka bir hesabı kaldırmanız gerekir.</translation>
    </message>
    <message id="675">
        <source>Object Loss</source>
        <translation>Nesne Kaybı</translation>
    </message>
    <message id="676">
        <source>Tripwire</source>
        <translation>Çizgi İhlali</translation>
    </message>
    <message id="677">
        <source>Threat</source>
        <translation>Sabotaj</translation>
    </message>
    <message id="678">
        <source>Enable</source>
        <translation>Etkinleştir</translation>
    </message>
    <message id="679">
        <source>Intelligent Setting</source>
        <translation>Akıllı Algılama Ayarları</translation>
    </message>
    <message id="680">
        <source>Intelligent detection List</source>
        <translation>Akıllı Algılama Listesi</translation>
    </message>
    <message id="681">
        <source>Object Loss Reset</source>
        <translation>Nesne Kaybı Sonu</translation>
    </message>
    <message id="682">
        <source>Threat Detection Reset</source>
        <translation>Sabotaj Algılama Sonu</translation>
    </message>
    <message id="683">
        <source>Image Enhance</source>
        <translation>Görüntü İyileştirme</translation>
    </message>
    <message id="684">
        <source>Port number can't accept more then 32767.</source>
        <translation>Port numarası 32767 değerinden büyük olamaz.</translation>
    </message>
    <message id="685">
        <source>Keep Ratio</source>
        <translation>Oranı Koru</translation>
    </message>
    <message id="686">
        <source>Intelligent Detection</source>
        <translation>Akıllı Algılama</translation>
    </message>
    <message id="687">
        <source>OSD Size</source>
        <translation>OSD Boyutu</translation>
    </message>
    <message id="688">
        <source>OSD Color</source>
        <translation>OSD Rengi</translation>
    </message>
    <message id="689">
        <source>Small</source>
        <translation>Küçük</translation>
    </message>
    <message id="690">
        <source>Middle</source>
        <translation>Orta</translation>
    </message>
    <message id="691">
        <source>Large</source>
        <translation>Büyük</translation>
    </message>
    <message id="692">
        <source>FullScreen Initial</source>
        <translation>Başlangıçta Tam Ekran</translation>
    </message>
    <message id="693">
        <source>Startup Screen Layout</source>
        <translation>Başlangıç Ekran Düzeni</translation>
    </message>
    <message id="694">
        <source>Leave to save the screen layout.</source>
        <translation>Ekran düzeni sayfadan çıkınca kaydedilir.</translation>
    </message>
    <message id="695">
        <source>Function default start</source>
        <translation>Varsayılan İşlev Başlangıcı</translation>
    </message>
    <message id="696">
        <source>Function assign</source>
        <translation>İşlev Atama</translation>
    </message>
    <message id="697">
        <source>Pattern setting</source>
        <translation>Şablon Ayarları</translation>
    </message>
    <message id="698">
        <source>Name can't be empty.</source>
        <translation>Ad boş olamaz.</translation>
    </message>
    <message id="699">
        <source>Object Counting</source>
        <translation>Nesne Sayma</translation>
    </message>
    <message id="700">
        <source>Foreign Object</source>
        <translation>Bırakılan Nesne</translation>
    </message>
    <message id="701">
        <source>Foreign Object Reset </source>
        <translation>Bırakılan Nesne Sonu </translation>
    </message>
    <message id="702">
        <source>Manual Recording</source>
        <translation>El ile Kayıt</translation>
    </message>
    <message id="703">
        <source>Device settings have changes, please re-detect.</source>
        <translation>Cihaz ayarları değişti, lütfen yeniden algılayın.</translation>
    </message>
    <message id="704">
        <source>English and Digit Only</source>
        <translation>Yalnızca İngilizce harf ve rakam</translation>
    </message>
    <message id="705">
        <source>Emap Group Assign</source>
        <translation>E-harita Grubu Atama</translation>
    </message>
    <message id="706">
        <source>Emap Group </source>
        <translation>E-harita Grubu </translation>
    </message>
    <message id="707">
        <source>Member:</source>
        <translation>Üyeler:</translation>
    </message>
    <message id="708">
        <source>Emap Position Assign</source>
        <translation>E-harita Konumu Atama</translation>
    </message>
    <message id="709">
        <source>Parent</source>
        <translation>Üst Öğe</translation>
    </message>
    <message id="710">
        <source>Group Type </source>
        <translation>Grup Türü </translation>
    </message>
    <message id="711">
        <source>Auto Switch</source>
        <translation>Otomatik Geçiş</translation>
    </message>
    <message id="712">
        <source>Double-click back to previous group</source>
        <translation>Önceki gruba dönmek için çift tıklayın</translation>
    </message>
    <message id="713">
        <source>Drag and Drop to Move</source>
        <translation>Taşımak için sürükleyip bırakın</translation>
    </message>
    <message id="714">
        <source>Do you want to delete the selected Emap Group?</source>
        <translation>Seçilen e-harita grubunu silmek istiyor musunuz?</translation>
    </message>
    <message id="715">
        <source>The amount of device will be over default value!</source>
        <translation>İzin verilen cihaz sayısı aşılacak.</translation>
    </message>
    <message id="716">
        <source>The amount of total channels will be over default value!</source>
        <translation>İzin verilen toplam kanal sayısı aşılacak.</translation>
    </message>
    <message id="717">
        <source>Channel selection</source>
        <translation>Kanal Seçimi</translation>
    </message>
    <message id="718">
        <source>Get device capability error!</source>
        <translation>Cihaz yetenekleri alınamadı.</translation>
    </message>
    <message id="719">
        <source>This device does not has any channel.</source>
        <translation>Bu cihazın hiç kanalı yok.</translation>
    </message>
    <message id="720">
        <source>Please add channels  or  re-select the other device.</source>
        <translation>Lütfen kanal ekleyin veya başka bir cihaz seçin.</translation>
    </message>
    <message id="721">
        <source>This device does not has any channel,Do you want to remove the device?</source>
        <translation>Bu cihazın hiç kanalı yok, cihazı kaldırmak istiyor musunuz?</translation>
    </message>
    <message id="722">
        <source>Setting fail!</source>
        <translation>Ayarlanamadı.</translation>
    </message>
    <message id="723">
        <source>Do you want to stop SEQ mode?</source>
        <translation>Tur modunu durdurmak istiyor musunuz?</translation>
    </message>
    <message id="725">
        <source>Type </source>
        <translation>Tür </translation>
    </message>
    <message id="726">
        <source>No change!</source>
        <translation>Değişiklik yok.</translation>
    </message>
    <message id="727">
        <source>Face Counting</source>
        <translation>Yüz Sayma</translation>
    </message>
    <message id="728">
        <source>Unknown</source>
        <translation>Bilinmiyor</translation>
    </message>
    <message id="729">
        <source>Event Export</source>
        <translation>Olay Dışa Aktarma</translation>
    </message>
    <message id="730">
        <source>System Log Export</source>
        <translation>Sistem Günlüğü Dışa Aktarma</translation>
    </message>
    <message id="731">
        <source>System Log</source>
        <translation>Sistem Günlüğü</translation>
    </message>
    <message id="732">
        <source>NVR Select</source>
        <translation>NVR Seçimi</translation>
    </message>
    <message id="733">
        <source>Condition</source>
        <translation>Koşul</translation>
    </message>
    <message id="734">
        <source>Time Range:</source>
        <translation>Zaman Aralığı:</translation>
    </message>
    <message id="735">
        <source>Start Time:</source>
        <translation>Başlangıç Zamanı:</translation>
    </message>
    <message id="736">
        <source>End Time:</source>
        <translation>Bitiş Zamanı:</translation>
    </message>
    <message id="737">
        <source>Event Type:</source>
        <translation>Olay Türü:</translation>
    </message>
    <message id="738">
        <source>User:</source>
        <translation>Kullanıcı:</translation>
    </message>
    <message id="739">
        <source>Export Format:</source>
        <translation>Dışa Aktarma Biçimi:</translation>
    </message>
    <message id="740">
        <source>Export</source>
        <translation>Dışa Aktarma</translation>
    </message>
    <message id="741">
        <source>You must select a path to export!</source>
        <translation>Dışa aktarmak için bir yol seçmelisiniz.</translation>
    </message>
    <message id="742">
        <source>Start Time must less than End time!</source>
        <translation>Başlangıç zamanı bitiş zamanından önce olmalı.</translation>
    </message>
    <message id="743">
        <source>No Event!</source>
        <translation>Olay yok.</translation>
    </message>
    <message id="744">
        <source>No System Log!</source>
        <translation>Sistem günlüğünde kayıt yok.</translation>
    </message>
    <message id="745">
        <source>CSV Export finish!</source>
        <translation>CSV dışa aktarma tamamlandı.</translation>
    </message>
    <message id="746">
        <source>MDB Export finish!</source>
        <translation>MDB dışa aktarma tamamlandı.</translation>
    </message>
    <message id="747">
        <source>Custom</source>
        <translation>Özel</translation>
    </message>
    <message id="748">
        <source>NVR Overview</source>
        <translation>NVR'ye Genel Bakış</translation>
    </message>
    <message id="749">
        <source>Video Wall Console</source>
        <translation>Video Duvarı Konsolu</translation>
    </message>
    <message id="750">
        <source>Lock Screen </source>
        <translation>Ekranı Kilitle </translation>
    </message>
    <message id="751">
        <source>Unlock Screen</source>
        <translation>Ekran Kilidini Aç</translation>
    </message>
    <message id="752">
        <source>Video Wall</source>
        <translation>Video Duvarı</translation>
    </message>
    <message id="753">
        <source>Pattern List</source>
        <translation>Şablon Listesi</translation>
    </message>
    <message id="754">
        <source>SEQ List</source>
        <translation>Tur Listesi</translation>
    </message>
    <message id="755">
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message id="756">
        <source>SEQ content setting</source>
        <translation>Tur İçeriği Ayarları</translation>
    </message>
    <message id="757">
        <source>Max Channel</source>
        <translation>Maks. Kanal</translation>
    </message>
    <message id="758">
        <source>Video server</source>
        <translation>Video Sunucusu</translation>
    </message>
    <message id="759">
        <source>Support</source>
        <translation>Destek</translation>
    </message>
    <message id="760">
        <source>Original View</source>
        <translation>Özgün Görünüm</translation>
    </message>
    <message id="761">
        <source>Broad View</source>
        <translation>Geniş Görünüm</translation>
    </message>
    <message id="762">
        <source>Quad View</source>
        <translation>Dörtlü Görünüm</translation>
    </message>
    <message id="763">
        <source>Quad and Source View</source>
        <translation>Dörtlü ve Kaynak Görünümü</translation>
    </message>
    <message id="764">
        <source>Double View</source>
        <translation>İkili Görünüm</translation>
    </message>
    <message id="765">
        <source>Triple View</source>
        <translation>Üçlü Görünüm</translation>
    </message>
    <message id="766">
        <source>Digital PTZ</source>
        <translation>Dijital PTZ</translation>
    </message>
    <message id="767">
        <source>Lens</source>
        <translation>Lens</translation>
    </message>
    <message id="768">
        <source>It could not be opened, the insufficient number of available screens!</source>
        <translation>Açılamadı, kullanılabilir ekran sayısı yetersiz.</translation>
    </message>
    <message id="769">
        <source>It could not be opened, The Video Wall is not enabled! </source>
        <translation>Açılamadı, video duvarı etkin değil. </translation>
    </message>
    <message id="770">
        <source>The quantity of screen is not enough! Not support!</source>
        <translation>Ekran sayısı yetersiz. Desteklenmiyor.</translation>
    </message>
    <message id="772">
        <source>Settings have changed , Please re-open MainViewer!</source>
        <translation>Ayarlar değişti, lütfen ana izleyiciyi yeniden açın.</translation>
    </message>
    <message id="773">
        <source>Preview</source>
        <translation>Önizleme</translation>
    </message>
    <message id="774">
        <source>Update system log with below defined condition</source>
        <translation>Sistem günlüğünü aşağıdaki koşula göre güncelle</translation>
    </message>
    <message id="775">
        <source>Transform recording index</source>
        <translation>Kayıt Dizinini Dönüştür</translation>
    </message>
    <message id="776">
        <source>Event Image Sync Setting</source>
        <translation>Olay Görüntüsü Eşitleme Ayarları</translation>
    </message>
    <message id="777">
        <source>Event snapshot storage space is not enough!</source>
        <translation>Olay anlık görüntüleri için depolama alanı yetersiz.</translation>
    </message>
    <message id="779">
        <source>Intelligent Mode</source>
        <translation>Akıllı Algılama Modu</translation>
    </message>
    <message id="780">
        <source>Add Intelligent Setting</source>
        <translation>Akıllı Algılama Ayarı Ekle</translation>
    </message>
    <message id="781">
        <source>Camera Event</source>
        <translation>Kamera Olayı</translation>
    </message>
    <message id="782">
        <source>ROI Setting</source>
        <translation>ROI Ayarları</translation>
    </message>
    <message id="783">
        <source>Trigger Mode</source>
        <translation>Tetikleme Modu</translation>
    </message>
    <message id="784">
        <source>Channel Privilege</source>
        <translation>Kanal Yetkisi</translation>
    </message>
    <message id="785">
        <source>Group Overview</source>
        <translation>Gruplara Genel Bakış</translation>
    </message>
    <message id="786">
        <source>User Overview</source>
        <translation>Kullanıcılara Genel Bakış</translation>
    </message>
    <message id="787">
        <source>Event Server</source>
        <translation>Olay Sunucusu</translation>
    </message>
    <message id="788">
        <source>Trigger By</source>
        <translation>Tetikleyen</translation>
    </message>
    <message id="789">
        <source>Configuration Modify</source>
        <translation>Yapılandırma Değişikliği</translation>
    </message>
    <message id="790">
        <source>Intelligent Event Trigger</source>
        <translation>Akıllı Algılama Olayı Tetikleme</translation>
    </message>
    <message id="791">
        <source>NVR Event Trigger</source>
        <translation>NVR Olayı Tetikleme</translation>
    </message>
    <message id="792">
        <source>Trigger Action</source>
        <translation>Tetikleme Eylemi</translation>
    </message>
    <message id="793">
        <source>Addresses: (Use ',' to separate e-mails)</source>
        <translation>Adresler: (e-postaları “,” ile ayırın)</translation>
    </message>
    <message id="794">
        <source>Content</source>
        <translation>İçerik</translation>
    </message>
    <message id="795">
        <source>Video Wall Layout</source>
        <translation>Video Duvarı Düzeni</translation>
    </message>
    <message id="796">
        <source>No Enough screen can be set!</source>
        <translation>Ayarlanabilecek yeterli ekran yok.</translation>
    </message>
    <message id="797">
        <source>SVD Management</source>
        <translation>SVD Yönetimi</translation>
    </message>
    <message id="798">
        <source>SVD Detail Setting</source>
        <translation>SVD Ayrıntılı Ayarları</translation>
    </message>
    <message id="799">
        <source>SVD Layout</source>
        <translation>SVD Düzeni</translation>
    </message>
    <message id="800">
        <source>SVD ID:</source>
        <translation>SVD ID:</translation>
    </message>
    <message id="801">
        <source>SVD Name:</source>
        <translation>SVD Adı:</translation>
    </message>
    <message id="802">
        <source>Display</source>
        <translation>Görüntü Çıkışı</translation>
    </message>
    <message id="803">
        <source>Resolution</source>
        <translation>Çözünürlük</translation>
    </message>
    <message id="804">
        <source>Priority</source>
        <translation>Öncelik</translation>
    </message>
    <message id="805">
        <source>Default Split</source>
        <translation>Varsayılan Bölme</translation>
    </message>
    <message id="806">
        <source>Default Channel List</source>
        <translation>Varsayılan Kanal Listesi</translation>
    </message>
    <message id="807">
        <source>Live Stream</source>
        <translation>Canlı Akış</translation>
    </message>
    <message id="808">
        <source>Dynamic Streaming</source>
        <translation>Dinamik Akış</translation>
    </message>
    <message id="809">
        <source>Screen Default Layout</source>
        <translation>Varsayılan Ekran Düzeni</translation>
    </message>
    <message id="810">
        <source>Channel list</source>
        <translation>Kanal Listesi</translation>
    </message>
    <message id="811">
        <source>Begin</source>
        <translation>Başlangıç</translation>
    </message>
    <message id="812">
        <source>Previous</source>
        <translation>Önceki</translation>
    </message>
    <message id="813">
        <source>System Log Viewer</source>
        <translation>Sistem Günlüğü İzleyicisi</translation>
    </message>
    <message id="814">
        <source>Management </source>
        <translation>Yönetim </translation>
    </message>
    <message id="815">
        <source>Viewer</source>
        <translation>İzleyici</translation>
    </message>
    <message id="816">
        <source>Add New SVD</source>
        <translation>Yeni SVD Ekle</translation>
    </message>
    <message id="817">
        <source>Primary</source>
        <translation>Birincil</translation>
    </message>
    <message id="818">
        <source>Secondary</source>
        <translation>İkincil</translation>
    </message>
    <message id="819">
        <source>Available</source>
        <translation>Kullanılabilir</translation>
    </message>
    <message id="820">
        <source>Not Available</source>
        <translation>Kullanılamaz</translation>
    </message>
    <message id="821">
        <source>Invalid E-mail Address!</source>
        <translation>Geçersiz e-posta adresi.</translation>
    </message>
    <message id="822">
        <source>Invalid Value!</source>
        <translation>Geçersiz değer.</translation>
    </message>
    <message id="823">
        <source>Can't add repeatedly!</source>
        <translation>Yeniden eklenemez.</translation>
    </message>
    <message id="824">
        <source>Can't add SVD anymore!</source>
        <translation>Artık SVD eklenemez.</translation>
    </message>
    <message id="826">
        <source>Do you want to remove this SVD?</source>
        <translation>Bu SVD'yi kaldırmak istiyor musunuz?</translation>
    </message>
    <message id="827">
        <source>Disable this Video Wall?</source>
        <translation>Bu video duvarını devre dışı bırakmak istiyor musunuz?</translation>
    </message>
    <message id="828">
        <source>Export finish!</source>
        <translation>Dışa aktarma tamamlandı.</translation>
    </message>
    <message id="829">
        <source>Brand:</source>
        <translation>Marka:</translation>
    </message>
    <message id="830">
        <source>Password Mask</source>
        <translation>Parola Maskesi</translation>
    </message>
    <message id="831">
        <source>NVR Account setting</source>
        <translation>NVR Hesabı Ayarları</translation>
    </message>
    <message id="832">
        <source>No any NVR has been selected.</source>
        <translation>Hiç NVR seçilmedi.</translation>
    </message>
    <message id="833">
        <source>Detect successful!</source>
        <translation>Algılama başarılı.</translation>
    </message>
    <message id="834">
        <source>Failed configuring camera detection on channel:</source>
        <translation>Kamera algılama şu kanalda yapılandırılamadı:</translation>
    </message>
    <message id="835">
        <source>Trigger action has done.</source>
        <translation>Tetikleme eylemi yapıldı.</translation>
    </message>
    <message id="836">
        <source>Event server has not set.</source>
        <translation>Olay sunucusu ayarlanmamış.</translation>
    </message>
    <message id="837">
        <source>Privilege Setting</source>
        <translation>Yetki Ayarları</translation>
    </message>
    <message id="838">
        <source>NVR Privilege Setting</source>
        <translation>NVR Yetki Ayarları</translation>
    </message>
    <message id="839">
        <source>SVD Console</source>
        <translation>SVD Konsolu</translation>
    </message>
    <message id="840">
        <source>SVD Search List</source>
        <translation>SVD Arama Sonuçları</translation>
    </message>
    <message id="841">
        <source>No Monitor connect!</source>
        <translation>Bağlı monitör yok.</translation>
    </message>
    <message id="842">
        <source>Do you want to remove this intelligent setting?</source>
        <translation>Bu akıllı algılama ayarını kaldırmak istiyor musunuz?</translation>
    </message>
    <message id="843">
        <source>Event snapshot doesn't work!</source>
        <translation>Olay anlık görüntüsü çalışmıyor.</translation>
    </message>
    <message id="850">
        <source>System</source>
        <translation>Sistem</translation>
    </message>
    <message id="851">
        <source>Intelligent</source>
        <translation>Akıllı Algılama</translation>
    </message>
    <message id="852">
        <source>User and group</source>
        <translation>Kullanıcı ve Grup</translation>
    </message>
    <message id="853">
        <source>Event handling</source>
        <translation>Olay İşleme</translation>
    </message>
    <message id="854">
        <source>Event server</source>
        <translation>Olay Sunucusu</translation>
    </message>
    <message id="855">
        <source>E-Map</source>
        <translation>E-harita</translation>
    </message>
    <message id="856">
        <source>Screen layout</source>
        <translation>Ekran Düzeni</translation>
    </message>
    <message id="857">
        <source>Startup</source>
        <translation>Başlangıç</translation>
    </message>
    <message id="858">
        <source>Tooling</source>
        <translation>Araçlar</translation>
    </message>
    <message id="859">
        <source>This page is not available in this version.</source>
        <translation>Bu sayfa bu sürümde kullanılamıyor.</translation>
    </message>
    <message id="860">
        <source>Its data in the database stays as it is.</source>
        <translation>Veritabanındaki bu sayfaya ait veriler olduğu gibi kalır.</translation>
    </message>
    <message id="861">
        <source>No recorder yet</source>
        <translation>Henüz kayıt cihazı yok</translation>
    </message>
    <message id="862">
        <source>Enter the address of the station's first recorder to add it.</source>
        <translation>Eklemek için istasyonun ilk kayıt cihazının adresini yazın.</translation>
    </message>
    <message id="863">
        <source>Filter name, address, model…</source>
        <translation>Filtre: ad, adres, model…</translation>
    </message>
    <message id="864">
        <source>Recorders of this station</source>
        <translation>Bu İstasyonun Kayıt Cihazları</translation>
    </message>
    <message id="865">
        <source>Recorders: %1 of %2</source>
        <translation>Kayıt cihazları: %1 / %2</translation>
    </message>
    <message id="866">
        <source>Channels: %1 of %2</source>
        <translation>Kanallar: %1 / %2</translation>
    </message>
    <message id="867">
        <source>No recorder matches the filter.</source>
        <translation>Filtreye uyan kayıt cihazı yok.</translation>
    </message>
    <message id="868">
        <source>Unsaved changes</source>
        <translation>Kaydedilmemiş değişiklikler</translation>
    </message>
    <message id="870">
        <source>Switch to dark colours</source>
        <translation>Koyu temaya geç</translation>
    </message>
    <message id="871">
        <source>Switch to light colours</source>
        <translation>Açık temaya geç</translation>
    </message>
    <message id="872">
        <source>Waiting</source>
        <translation>Bekliyor</translation>
    </message>
    <message id="873">
        <source>Finish</source>
        <translation>Bitir</translation>
    </message>
    <message id="874">
        <source>Done: %1 of %2</source>
        <translation>Tamamlanan: %1 / %2</translation>
    </message>
    <message id="875">
        <source>Choose</source>
        <translation>Seç</translation>
    </message>
    <message id="876">
        <source>Edit</source>
        <translation>Düzenle</translation>
    </message>
    <message id="877">
        <source>Delete</source>
        <translation>Sil</translation>
    </message>
    <message id="878">
        <source>Yes</source>
        <translation>Evet</translation>
    </message>
    <message id="879">
        <source>No</source>
        <translation>Hayır</translation>
    </message>
    <message id="880">
        <source>Back</source>
        <translation>Geri</translation>
    </message>
    <message id="881">
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
    <message id="882">
        <source>Pages</source>
        <translation>Sayfalar</translation>
    </message>
    <message id="884">
        <source>Enter the address of one recorder.</source>
        <translation>Bir kayıt cihazının adresini yazın.</translation>
    </message>
    <message id="885">
        <source>Leave both empty to try the known device accounts.</source>
        <translation>Bilinen cihaz hesaplarını denemek için ikisini de boş bırakın.</translation>
    </message>
    <message id="886">
        <source>About this installation</source>
        <translation>Bu Kurulum Hakkında</translation>
    </message>
    <message id="887">
        <source>Show password</source>
        <translation>Parolayı Göster</translation>
    </message>
    <message id="888">
        <source>Searching…</source>
        <translation>Aranıyor…</translation>
    </message>
    <message id="890">
        <source>Name and behaviour of this station</source>
        <translation>Bu İstasyonun Adı ve Davranışı</translation>
    </message>
    <message id="892">
        <source>Recorder slot</source>
        <translation>Kayıt Cihazı Yuvası</translation>
    </message>
    <message id="896">
        <source>Connected</source>
        <translation>Bağlı</translation>
    </message>
    <message id="898">
        <source>Product:</source>
        <translation>Ürün:</translation>
    </message>
    <message id="899">
        <source>Hide password</source>
        <translation>Parolayı Gizle</translation>
    </message>
    <message id="900">
        <source>Anyone who opens Rigging Desk is its administrator, because there is no user yet.</source>
        <translation>Henüz kullanıcı olmadığından Rigging Desk programını açan herkes yönetici olur.</translation>
    </message>
    <message id="901">
        <source>Create the first administrator</source>
        <translation>İlk Yöneticiyi Oluştur</translation>
    </message>
    <message id="902">
        <source>Not now</source>
        <translation>Şimdi Değil</translation>
    </message>
    <message id="903">
        <source>No user yet</source>
        <translation>Henüz kullanıcı yok</translation>
    </message>
    <message id="904">
        <source>Accessible cameras</source>
        <translation>Erişilebilir Kameralar</translation>
    </message>
    <message id="905">
        <source>Who has access</source>
        <translation>Erişebilenler</translation>
    </message>
    <message id="906">
        <source>Filter channels…</source>
        <translation>Kanalları filtrele…</translation>
    </message>
    <message id="907">
        <source>Whole recorder</source>
        <translation>Tüm Kayıt Cihazı</translation>
    </message>
    <message id="908">
        <source>Live</source>
        <translation>Canlı</translation>
    </message>
    <message id="909">
        <source>Live Monitor of all channels</source>
        <translation>Tüm Kanallarda Canlı İzleme</translation>
    </message>
    <message id="910">
        <source>Grant</source>
        <translation>Yetki Ver</translation>
    </message>
    <message id="911">
        <source>Withdraw</source>
        <translation>Yetkiyi Kaldır</translation>
    </message>
    <message id="912">
        <source>The other rights need Live. Space switches the selected cells; Shift+Space selects a row, Ctrl+Space a column.</source>
        <translation>Diğer yetkiler için “Canlı” yetkisi gerekir. Boşluk tuşu seçili hücreleri değiştirir; Shift+Boşluk satırı, Ctrl+Boşluk sütunu seçer.</translation>
    </message>
    <message id="913">
        <source>Administrators have every right on every channel.</source>
        <translation>Yöneticiler tüm kanallarda tüm yetkilere sahiptir.</translation>
    </message>
    <message id="930">
        <source>Filter the rows found…</source>
        <translation>Bulunan satırları filtrele…</translation>
    </message>
    <message id="931">
        <source>No row matches the filter.</source>
        <translation>Filtreye uyan satır yok.</translation>
    </message>
    <message id="932">
        <source>Rows found: %1</source>
        <translation>Bulunan satırlar: %1</translation>
    </message>
    <message id="933">
        <source>The log could not be read</source>
        <translation>Günlük okunamadı</translation>
    </message>
    <message id="934">
        <source>Copy rows</source>
        <translation>Satırları Kopyala</translation>
    </message>
    <message id="935">
        <source>Open folder</source>
        <translation>Klasörü Aç</translation>
    </message>
    <message id="936">
        <source>Event export is not part of this version.</source>
        <translation>Olay dışa aktarma bu sürümün parçası değil.</translation>
    </message>
    <message id="937">
        <source>Choose a period and search.</source>
        <translation>Bir dönem seçip arayın.</translation>
    </message>
    <message id="938">
        <source>The export failed. Existing files were not changed.</source>
        <translation>Dışa aktarma başarısız oldu. Mevcut dosyalar değiştirilmedi.</translation>
    </message>
    <message id="939">
        <source>First page</source>
        <translation>İlk Sayfa</translation>
    </message>
    <message id="940">
        <source>Previous page</source>
        <translation>Önceki Sayfa</translation>
    </message>
    <message id="941">
        <source>Next page</source>
        <translation>Sonraki Sayfa</translation>
    </message>
    <message id="942">
        <source>Last page</source>
        <translation>Son Sayfa</translation>
    </message>
    <message id="943">
        <source>Refresh</source>
        <translation>Yenile</translation>
    </message>
    <message id="945">
        <source>Log in</source>
        <translation>Oturum Açma</translation>
    </message>
    <message id="946">
        <source>The reason is in the log files.</source>
        <translation>Nedeni günlük dosyalarında yazılı.</translation>
    </message>
    <message id="950">
        <source>Find recorders on the network.</source>
        <translation>Ağdaki kayıt cihazlarını bulun.</translation>
    </message>
    <message id="951">
        <source>Stop</source>
        <translation>Durdur</translation>
    </message>
    <message id="952">
        <source>Select all</source>
        <translation>Tümünü Seç</translation>
    </message>
    <message id="953">
        <source>Filter the devices found</source>
        <translation>Bulunan cihazları filtrele</translation>
    </message>
    <message id="954">
        <source>No device has answered.</source>
        <translation>Hiçbir cihaz yanıt vermedi.</translation>
    </message>
    <message id="955">
        <source>Recorders with those selected: %1 of %2</source>
        <translation>Seçilenlerle birlikte kayıt cihazları: %1 / %2</translation>
    </message>
    <message id="956">
        <source>Connection</source>
        <translation>Bağlantı</translation>
    </message>
    <message id="957">
        <source>Checking…</source>
        <translation>Denetleniyor…</translation>
    </message>
    <message id="958">
        <source>Login refused</source>
        <translation>Oturum açma reddedildi</translation>
    </message>
    <message id="959">
        <source>No answer</source>
        <translation>Yanıt yok</translation>
    </message>
    <message id="960">
        <source>Host name not found</source>
        <translation>Ana bilgisayar adı bulunamadı</translation>
    </message>
    <message id="961">
        <source>Connection refused</source>
        <translation>Bağlantı reddedildi</translation>
    </message>
    <message id="962">
        <source>Unexpected answer</source>
        <translation>Beklenmeyen yanıt</translation>
    </message>
    <message id="963">
        <source>Stopped</source>
        <translation>Durduruldu</translation>
    </message>
    <message id="965">
        <source>Notice</source>
        <translation>Bildirim</translation>
    </message>
    <message id="966">
        <source>No camera</source>
        <translation>Kamera yok</translation>
    </message>
    <message id="967">
        <source>Changed in the recorder</source>
        <translation>Kayıt cihazında değiştirildi</translation>
    </message>
    <message id="968">
        <source>Detected</source>
        <translation>Algılandı</translation>
    </message>
    <message id="969">
        <source>Unchanged</source>
        <translation>Değişmedi</translation>
    </message>
    <message id="970">
        <source>Remove the camera of channel %1 from the recorder?</source>
        <translation>Kanal %1 kamerasını kayıt cihazından kaldırmak istiyor musunuz?</translation>
    </message>
    <message id="971">
        <source>Filter the cameras found</source>
        <translation>Bulunan kameraları filtrele</translation>
    </message>
    <message id="972">
        <source>No camera was found.</source>
        <translation>Hiç kamera bulunamadı.</translation>
    </message>
    <message id="973">
        <source>The recorder sees no camera on its network. Search again, or enter an address.</source>
        <translation>Kayıt cihazı ağında kamera görmüyor. Yeniden arayın veya bir adres yazın.</translation>
    </message>
    <message id="974">
        <source>Cameras found: %1</source>
        <translation>Bulunan kameralar: %1</translation>
    </message>
    <message id="975">
        <source>Asking the camera…</source>
        <translation>Kamera sorgulanıyor…</translation>
    </message>
    <message id="976">
        <source>Writing to the recorder…</source>
        <translation>Kayıt cihazına yazılıyor…</translation>
    </message>
    <message id="977">
        <source>Video source</source>
        <translation>Video Kaynağı</translation>
    </message>
    <message id="978">
        <source>Detect the camera to see its video settings.</source>
        <translation>Video ayarlarını görmek için kamerayı algılayın.</translation>
    </message>
    <message id="979">
        <source>Fish-eye view</source>
        <translation>Balık Gözü Görünümü</translation>
    </message>
    <message id="980">
        <source>The camera name must not contain a double quote (").</source>
        <translation>Kamera adı çift tırnak (") içeremez.</translation>
    </message>
    <message id="981">
        <source>The configuration database cannot be opened: another program holds it, or it cannot be read. Nothing has been changed. Try again?</source>
        <translation>Yapılandırma veritabanı açılamıyor: başka bir program kullanıyor ya da okunamıyor. Hiçbir şey değiştirilmedi. Yeniden denemek istiyor musunuz?</translation>
    </message>
    <message id="982">
        <source>The users could not be read from the database, so nobody can log in. Close the program that holds the database and start again. The reason is in the log files.</source>
        <translation>Kullanıcılar veritabanından okunamadı, bu nedenle kimse oturum açamaz. Veritabanını kullanan programı kapatıp yeniden başlatın. Nedeni günlük dosyalarında yazılı.</translation>
    </message>
    <message id="983">
        <source>These tables of the database could not be read: %1. They stay as they are. The reason is in the log files.</source>
        <translation>Veritabanının şu tabloları okunamadı: %1. Oldukları gibi kalacaklar. Nedeni günlük dosyalarında yazılı.</translation>
    </message>
    <message id="995">
        <source>Export</source>
        <translation>Dışa Aktar</translation>
    </message>
    <message id="1000">
        <source>Keys</source>
        <translation>Tuşlar</translation>
    </message>
    <message id="1001">
        <source>Show the keys</source>
        <translation>Tuşları göster</translation>
    </message>
    <message id="1002">
        <source>Rename or edit the selected entry</source>
        <translation>Seçili girdiyi yeniden adlandır veya düzenle</translation>
    </message>
    <message id="1003">
        <source>Read the page again</source>
        <translation>Sayfayı yeniden oku</translation>
    </message>
    <message id="1004">
        <source>Filter the list</source>
        <translation>Listeyi süz</translation>
    </message>
    <message id="1005">
        <source>Go to a page</source>
        <translation>Bir sayfaya git</translation>
    </message>
    <message id="1006">
        <source>Press the button or open the selected entry</source>
        <translation>Düğmeye bas veya seçili girdiyi aç</translation>
    </message>
    <message id="1007">
        <source>Remove the selected entry</source>
        <translation>Seçili girdiyi kaldır</translation>
    </message>
    <message id="1008">
        <source>Cancel or close</source>
        <translation>İptal et veya kapat</translation>
    </message>
    <message id="1030">
        <source>Added: %1 of %2</source>
        <translation>Eklenen: %1 / %2</translation>
    </message>
    <message id="1031">
        <source>Added: %1 of %2, failed: %3</source>
        <translation>Eklenen: %1 / %2, başarısız: %3</translation>
    </message>
    <message id="1032">
        <source>Recorders that were not added can be tried again with another login.</source>
        <translation>Eklenmeyen kayıt cihazları başka bir oturum bilgisiyle yeniden denenebilir.</translation>
    </message>
    <message id="1033">
        <source>Try again</source>
        <translation>Yeniden Dene</translation>
    </message>
    <message id="1034">
        <source>Login</source>
        <translation>Oturum Açma</translation>
    </message>
    <message id="1035">
        <source>Added but not saved yet: %1.
Do you want to save?</source>
        <translation>Eklendi ancak henüz kaydedilmedi: %1.
Kaydetmek istiyor musunuz?</translation>
    </message>
    <message id="1036">
        <source>No recorder has been added yet. Close and lose what you entered?</source>
        <translation>Henüz hiçbir kayıt cihazı eklenmedi. Kapatıp girdiklerinizi kaybetmek istiyor musunuz?</translation>
    </message>
    <message id="1037">
        <source>More than one recorder would have this name: %1.
Do you want to use it anyway?</source>
        <translation>Birden fazla kayıt cihazının adı bu olacak: %1.
Yine de kullanmak istiyor musunuz?</translation>
    </message>
    <message id="1080">
        <source>A stored password is not shown. Typing replaces it.</source>
        <translation>Kayıtlı parola gösterilmez. Yenisini yazarsanız onun yerini alır.</translation>
    </message>
    <message id="1081">
        <source>Choose a group</source>
        <translation>Bir grup seçin</translation>
    </message>
    <message id="1082">
        <source>No account yet</source>
        <translation>Henüz hesap yok</translation>
    </message>
    <message id="1083">
        <source>These accounts are tried on recorders whose login is not known.</source>
        <translation>Bu hesaplar, girişi bilinmeyen kayıt cihazlarında denenir.</translation>
    </message>
    <message id="1084">
        <source>Do you want to delete the selected account?</source>
        <translation>Seçili hesabı silmek istiyor musunuz?</translation>
    </message>
    <message id="1085">
        <source>No camera is accessible</source>
        <translation>Erişilebilir kamera yok</translation>
    </message>
    <message id="1086">
        <source>Access follows from the rights of the user’s group.</source>
        <translation>Erişim, kullanıcının grubunun haklarına bağlıdır.</translation>
    </message>
    <message id="1087">
        <source>Open the folder?</source>
        <translation>Klasör açılsın mı?</translation>
    </message>
    <message id="1088">
        <source>Filter users…</source>
        <translation>Kullanıcıları filtrele…</translation>
    </message>
    <message id="1089">
        <source>No user matches the filter.</source>
        <translation>Filtreyle eşleşen kullanıcı yok.</translation>
    </message>
    <message id="1110">
        <source>Rename</source>
        <translation>Yeniden adlandır</translation>
    </message>
    <message id="1221">
        <source>Waiting for the picture…</source>
        <translation>Görüntü bekleniyor…</translation>
    </message>
    <message id="1222">
        <source>No picture</source>
        <translation>Görüntü yok</translation>
    </message>
    <message id="1223">
        <source>Trying again…</source>
        <translation>Yeniden deneniyor…</translation>
    </message>
    <message id="1260">
        <source>Filter maps and cameras…</source>
        <translation>Haritaları ve kameraları filtrele…</translation>
    </message>
    <message id="1261">
        <source>Cut</source>
        <translation>Kes</translation>
    </message>
    <message id="1262">
        <source>Paste</source>
        <translation>Yapıştır</translation>
    </message>
    <message id="1263">
        <source>Move to…</source>
        <translation>Şuraya taşı…</translation>
    </message>
    <message id="1264">
        <source>A recorder's map goes under the main map or into a group.</source>
        <translation>Kayıt cihazının haritası ana haritanın altına ya da bir gruba konur.</translation>
    </message>
    <message id="1265">
        <source>A camera goes on the map of its own recorder or one of its sub-maps; on the main map it is taken off all maps.</source>
        <translation>Kamera kendi kayıt cihazının haritasına ya da onun alt haritasına konur; ana haritada hiçbir haritada değildir.</translation>
    </message>
    <message id="1266">
        <source>It is there already.</source>
        <translation>Zaten orada.</translation>
    </message>
    <message id="1267">
        <source>Only recorders' maps and cameras can be moved.</source>
        <translation>Yalnızca kayıt cihazlarının haritaları ve kameralar taşınabilir.</translation>
    </message>
    <message id="1268">
        <source>Move</source>
        <translation>Taşı</translation>
    </message>
    <message id="1269">
        <source>Show the map's picture</source>
        <translation>Haritanın resmini göster</translation>
    </message>
    <message id="1270">
        <source>No map or camera matches the filter.</source>
        <translation>Filtreye uyan harita ya da kamera yok.</translation>
    </message>
    <message id="1271">
        <source>Enter a name to add a group.</source>
        <translation>Grup eklemek için bir ad girin.</translation>
    </message>
    <message id="1272">
        <source>Enter a name to add a sub-map. The map has the name of its recorder.</source>
        <translation>Alt harita eklemek için bir ad girin. Haritanın adı kayıt cihazının adıdır.</translation>
    </message>
    <message id="1273">
        <source>Drag recorders' maps into the group.</source>
        <translation>Kayıt cihazlarının haritalarını gruba sürükleyin.</translation>
    </message>
    <message id="1274">
        <source>Drag the camera to the map of its recorder.</source>
        <translation>Kamerayı kayıt cihazının haritasına sürükleyin.</translation>
    </message>
    <message id="1275">
        <source>Drag cameras of its recorder to the sub-map.</source>
        <translation>Kayıt cihazının kameralarını alt haritaya sürükleyin.</translation>
    </message>
</context>
</TS>
