<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name></name>
    <message id="0">
        <source>English</source>
        <translation>Angielski</translation>
    </message>
    <message id="1">
        <source>Traditional Chinese</source>
        <translation>Chiński tradycyjny</translation>
    </message>
    <message id="2">
        <source>Simplified Chinese</source>
        <translation>Chiński uproszczony</translation>
    </message>
    <message id="3">
        <source>Japanese</source>
        <translation>Japoński</translation>
    </message>
    <message id="4">
        <source>Spainish</source>
        <translation>Hiszpański</translation>
    </message>
    <message id="5">
        <source>CGI ID is full !</source>
        <translation>Lista identyfikatorów CGI jest pełna.</translation>
    </message>
    <message id="6">
        <source>User Name or Password Error !</source>
        <translation>Nieprawidłowa nazwa użytkownika lub hasło.</translation>
    </message>
    <message id="7">
        <source>Device Connection Error !</source>
        <translation>Błąd połączenia z urządzeniem.</translation>
    </message>
    <message id="8">
        <source>Device brand not supported !</source>
        <translation>Nieobsługiwana marka urządzenia.</translation>
    </message>
    <message id="9">
        <source>Sending CGI failed !</source>
        <translation>Wysłanie polecenia CGI nie powiodło się.</translation>
    </message>
    <message id="10">
        <source>Program has been opened !</source>
        <translation>Program jest już uruchomiony.</translation>
    </message>
    <message id="11">
        <source>Application of Setup has been Opening . Please turn it off !</source>
        <translation>Konfigurator jest już otwarty. Zamknij go.</translation>
    </message>
    <message id="12">
        <source>Database initialization ...</source>
        <translation>Inicjowanie bazy danych…</translation>
    </message>
    <message id="13">
        <source>Default Data to read ...</source>
        <translation>Wczytywanie danych domyślnych…</translation>
    </message>
    <message id="14">
        <source>Incorrect database version ! Do you want to reset the databse now ?</source>
        <translation>Nieprawidłowa wersja bazy danych. Czy zresetować teraz bazę danych?</translation>
    </message>
    <message id="15">
        <source>System will not be able to continue to work .</source>
        <translation>System nie będzie mógł kontynuować pracy.</translation>
    </message>
    <message id="16">
        <source>Update Database ...</source>
        <translation>Aktualizowanie bazy danych…</translation>
    </message>
    <message id="17">
        <source>Data is loading ...</source>
        <translation>Wczytywanie danych…</translation>
    </message>
    <message id="18">
        <source>Motion Detection setting is loading...</source>
        <translation>Wczytywanie ustawień detekcji ruchu…</translation>
    </message>
    <message id="19">
        <source>User Data is loading...</source>
        <translation>Wczytywanie danych użytkowników…</translation>
    </message>
    <message id="20">
        <source>Group Data  is loading...</source>
        <translation>Wczytywanie danych grup…</translation>
    </message>
    <message id="21">
        <source>Event setting is loading...</source>
        <translation>Wczytywanie ustawień zdarzeń…</translation>
    </message>
    <message id="22">
        <source>E-Map Data is loading ...</source>
        <translation>Wczytywanie danych e-mapy…</translation>
    </message>
    <message id="23">
        <source>Multi-Screen set up is loading ...</source>
        <translation>Wczytywanie ustawień wielu ekranów…</translation>
    </message>
    <message id="24">
        <source>System component registering  ...</source>
        <translation>Rejestrowanie składników systemu…</translation>
    </message>
    <message id="25">
        <source>Login Identification ...</source>
        <translation>Weryfikacja logowania…</translation>
    </message>
    <message id="26">
        <source>Open Login Frame ...</source>
        <translation>Otwieranie okna logowania…</translation>
    </message>
    <message id="27">
        <source>Loading User's Pattern …</source>
        <translation>Wczytywanie szablonów użytkownika…</translation>
    </message>
    <message id="28">
        <source>Start Service Mode...</source>
        <translation>Uruchamianie trybu usługi…</translation>
    </message>
    <message id="29">
        <source>Start Monitor Window ...</source>
        <translation>Uruchamianie okna monitora…</translation>
    </message>
    <message id="30">
        <source>Start Auto Search …</source>
        <translation>Uruchamianie autowyszukiwania…</translation>
    </message>
    <message id="32">
        <source>Manual Startup</source>
        <translation>Uruchamianie ręczne</translation>
    </message>
    <message id="33">
        <source>Device detect timeout !</source>
        <translation>Przekroczono czas wykrywania urządzenia.</translation>
    </message>
    <message id="34">
        <source>The channel of SVR has been removed. Please re-detect the SVR!</source>
        <translation>Kanał SVR został usunięty. Wykryj SVR ponownie.</translation>
    </message>
    <message id="35">
        <source>Please enable SVR upnp port forwarding!</source>
        <translation>Włącz przekierowanie portów UPnP w SVR.</translation>
    </message>
    <message id="36">
        <source>Video Wall Setting</source>
        <translation>Ustawienia ściany wideo</translation>
    </message>
    <message id="37">
        <source>Video Wall display position setting</source>
        <translation>Ustawienia położenia ściany wideo</translation>
    </message>
    <message id="38">
        <source>Monitor</source>
        <translation>Monitor</translation>
    </message>
    <message id="39">
        <source>Startup assign setting</source>
        <translation>Przypisanie przy uruchamianiu</translation>
    </message>
    <message id="40">
        <source>User</source>
        <translation>Użytkownik</translation>
    </message>
    <message id="41">
        <source>Password</source>
        <translation>Hasło</translation>
    </message>
    <message id="42">
        <source>User Field is Blank !</source>
        <translation>Pole użytkownika jest puste.</translation>
    </message>
    <message id="43">
        <source>Password Field is Blank !</source>
        <translation>Pole hasła jest puste.</translation>
    </message>
    <message id="44">
        <source>Incorrect User Account or Password !</source>
        <translation>Nieprawidłowe konto użytkownika lub hasło.</translation>
    </message>
    <message id="45">
        <source>Main Viewer</source>
        <translation>Podgląd główny</translation>
    </message>
    <message id="46">
        <source>NVR Setting</source>
        <translation>Ustawienia NVR</translation>
    </message>
    <message id="47">
        <source>Event-Triggered Notification</source>
        <translation>Powiadomienie o zdarzeniu</translation>
    </message>
    <message id="48">
        <source>Auto Search Notice</source>
        <translation>Komunikat autowyszukiwania</translation>
    </message>
    <message id="49">
        <source>Event Synchronization Manually Update</source>
        <translation>Ręczna aktualizacja synchronizacji zdarzeń</translation>
    </message>
    <message id="50">
        <source>About</source>
        <translation>O programie</translation>
    </message>
    <message id="51">
        <source>Exit</source>
        <translation>Wyjście</translation>
    </message>
    <message id="52">
        <source>Split</source>
        <translation>Podział</translation>
    </message>
    <message id="53">
        <source>Change Channel</source>
        <translation>Zmień kanał</translation>
    </message>
    <message id="54">
        <source>OSD Display</source>
        <translation>Wyświetlanie OSD</translation>
    </message>
    <message id="55">
        <source>CH</source>
        <translation>Kanał</translation>
    </message>
    <message id="56">
        <source>Path</source>
        <translation>Ścieżka</translation>
    </message>
    <message id="57">
        <source>OSD Channel</source>
        <translation>Kanał w OSD</translation>
    </message>
    <message id="58">
        <source>OSD Time</source>
        <translation>Czas w OSD</translation>
    </message>
    <message id="59">
        <source>Save</source>
        <translation>Zapisz</translation>
    </message>
    <message id="60">
        <source>Camera Event Server Setting Error!</source>
        <translation>Błąd ustawień serwera zdarzeń kamery.</translation>
    </message>
    <message id="61">
        <source>Snapshot Error!</source>
        <translation>Błąd migawki.</translation>
    </message>
    <message id="62">
        <source>Event Notification is still ongoing.</source>
        <translation>Nadal trwa wysyłanie powiadomień o zdarzeniach.</translation>
    </message>
    <message id="63">
        <source>Do you want to exit and open rigging desk?</source>
        <translation>Czy zakończyć i otworzyć Rigging Desk?</translation>
    </message>
    <message id="64">
        <source>Auto-Search Notice</source>
        <translation>Komunikat autowyszukiwania</translation>
    </message>
    <message id="65">
        <source>Closing...</source>
        <translation>Zamykanie…</translation>
    </message>
    <message id="66">
        <source>Devcie is Found!</source>
        <translation>Znaleziono urządzenie.</translation>
    </message>
    <message id="67">
        <source>Fix display mode</source>
        <translation>Stały tryb wyświetlania</translation>
    </message>
    <message id="68">
        <source>Video Wall default startup setting</source>
        <translation>Domyślne ustawienia uruchamiania ściany wideo</translation>
    </message>
    <message id="69">
        <source>Intelligent Overview</source>
        <translation>Przegląd analityki wideo</translation>
    </message>
    <message id="70">
        <source>Do You Want to Save Snapshot Images ?</source>
        <translation>Czy zapisać migawki?</translation>
    </message>
    <message id="71">
        <source>User Name or Password error !</source>
        <translation>Nieprawidłowa nazwa użytkownika lub hasło.</translation>
    </message>
    <message id="72">
        <source>Brand not supported!</source>
        <translation>Nieobsługiwana marka.</translation>
    </message>
    <message id="73">
        <source>Camera not supported!</source>
        <translation>Nieobsługiwana kamera.</translation>
    </message>
    <message id="74">
        <source>Device connection error!</source>
        <translation>Błąd połączenia z urządzeniem.</translation>
    </message>
    <message id="75">
        <source>Device detection timeout!</source>
        <translation>Przekroczono czas wykrywania urządzenia.</translation>
    </message>
    <message id="76">
        <source>Unable to connect to the server!</source>
        <translation>Nie można połączyć się z serwerem.</translation>
    </message>
    <message id="77">
        <source>Service has not connect yet!</source>
        <translation>Usługa nie jest jeszcze połączona.</translation>
    </message>
    <message id="78">
        <source>This series of device does not allow repeat add!</source>
        <translation>Urządzenia tej serii nie można dodać ponownie.</translation>
    </message>
    <message id="79">
        <source>SEQ by Channel</source>
        <translation>Sekwencja kanałów</translation>
    </message>
    <message id="80">
        <source>SEQ by NVR</source>
        <translation>Sekwencja NVR</translation>
    </message>
    <message id="81">
        <source>SEQ by Pattern</source>
        <translation>Sekwencja szablonów</translation>
    </message>
    <message id="82">
        <source>NVR List</source>
        <translation>Lista NVR</translation>
    </message>
    <message id="83">
        <source>Dwell time</source>
        <translation>Czas wyświetlania</translation>
    </message>
    <message id="84">
        <source>SEQ function is starting, do you want to continue to start SEQ content setting, which will stop SEQ function?</source>
        <translation>Funkcja sekwencji jest uruchomiona. Otwarcie ustawień zawartości sekwencji zatrzyma ją. Czy kontynuować?</translation>
    </message>
    <message id="85">
        <source>Channel SEQ not available! Please select more than one channel when using this function.</source>
        <translation>Sekwencja kanałów jest niedostępna. Aby użyć tej funkcji, wybierz więcej niż jeden kanał.</translation>
    </message>
    <message id="86">
        <source>NVR SEQ not available! Please select more than one NVR when using this function.</source>
        <translation>Sekwencja NVR jest niedostępna. Aby użyć tej funkcji, wybierz więcej niż jeden NVR.</translation>
    </message>
    <message id="87">
        <source>Pattern SEQ not available! Please select more than one patterns when using this function.</source>
        <translation>Sekwencja szablonów jest niedostępna. Aby użyć tej funkcji, wybierz więcej niż jeden szablon.</translation>
    </message>
    <message id="88">
        <source>Do you want to enable SEQ by Channel?</source>
        <translation>Czy włączyć sekwencję kanałów?</translation>
    </message>
    <message id="89">
        <source>Do you want to enable SEQ by NVR?</source>
        <translation>Czy włączyć sekwencję NVR?</translation>
    </message>
    <message id="90">
        <source>Do you want to enable SEQ by Pattern?</source>
        <translation>Czy włączyć sekwencję szablonów?</translation>
    </message>
    <message id="91">
        <source>Camera event setting can't exceed 32!</source>
        <translation>Liczba zdarzeń kamer nie może przekraczać 32.</translation>
    </message>
    <message id="92">
        <source>Please add a NVR first!</source>
        <translation>Najpierw dodaj NVR.</translation>
    </message>
    <message id="93">
        <source>Port number can't accept 0 or more than 65536.</source>
        <translation>Numer portu nie może wynosić 0 ani przekraczać 65536.</translation>
    </message>
    <message id="94">
        <source>Drive</source>
        <translation>Dysk</translation>
    </message>
    <message id="95">
        <source>Size(GB)</source>
        <translation>Rozmiar (GB)</translation>
    </message>
    <message id="96">
        <source>Free(GB)</source>
        <translation>Wolne (GB)</translation>
    </message>
    <message id="97">
        <source>Usage(%)</source>
        <translation>Zajętość (%)</translation>
    </message>
    <message id="98">
        <source>Storage Path</source>
        <translation>Ścieżka zapisu</translation>
    </message>
    <message id="99">
        <source>Select a Path</source>
        <translation>Wybierz ścieżkę</translation>
    </message>
    <message id="100">
        <source>Live Monitor</source>
        <translation>Podgląd na żywo</translation>
    </message>
    <message id="101">
        <source>Event Monitor</source>
        <translation>Monitor zdarzeń</translation>
    </message>
    <message id="102">
        <source>Playback</source>
        <translation>Odtwarzanie</translation>
    </message>
    <message id="103">
        <source>E-MAP Monitor</source>
        <translation>Monitor e-mapy</translation>
    </message>
    <message id="104">
        <source>User Pattern</source>
        <translation>Szablon użytkownika</translation>
    </message>
    <message id="105">
        <source>Split</source>
        <translation>Podział</translation>
    </message>
    <message id="106">
        <source>Pattern Name</source>
        <translation>Nazwa szablonu</translation>
    </message>
    <message id="107">
        <source>Status</source>
        <translation>Stan</translation>
    </message>
    <message id="108">
        <source>Channel Status</source>
        <translation>Stan kanału</translation>
    </message>
    <message id="109">
        <source>Network Disconnection</source>
        <translation>Brak połączenia z siecią</translation>
    </message>
    <message id="110">
        <source>Network connection</source>
        <translation>Połączenie sieciowe</translation>
    </message>
    <message id="111">
        <source>Recording</source>
        <translation>Nagrywanie</translation>
    </message>
    <message id="112">
        <source>Event Trigger</source>
        <translation>Wyzwolenie zdarzenia</translation>
    </message>
    <message id="113">
        <source>Connecting</source>
        <translation>Łączenie</translation>
    </message>
    <message id="114">
        <source>Video Loss</source>
        <translation>Zanik obrazu</translation>
    </message>
    <message id="115">
        <source>SEQ Mode</source>
        <translation>Tryb sekwencji</translation>
    </message>
    <message id="116">
        <source>(Sec)</source>
        <translation>(s)</translation>
    </message>
    <message id="117">
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message id="118">
        <source>Stop</source>
        <translation>Zatrzymaj</translation>
    </message>
    <message id="119">
        <source>SEQ contents</source>
        <translation>Zawartość sekwencji</translation>
    </message>
    <message id="120">
        <source>SEQ ALL</source>
        <translation>Sekwencja wszystkich</translation>
    </message>
    <message id="121">
        <source>SEQ</source>
        <translation>Sekwencja</translation>
    </message>
    <message id="122">
        <source>Pattern SEQ</source>
        <translation>Sekwencja szablonów</translation>
    </message>
    <message id="123">
        <source>Service Mode</source>
        <translation>Tryb usługi</translation>
    </message>
    <message id="124">
        <source>Language</source>
        <translation>Język</translation>
    </message>
    <message id="125">
        <source>Version</source>
        <translation>Wersja</translation>
    </message>
    <message id="126">
        <source>Event Info</source>
        <translation>Info o zdarzeniu</translation>
    </message>
    <message id="127">
        <source>Event</source>
        <translation>Zdarzenie</translation>
    </message>
    <message id="128">
        <source>Time</source>
        <translation>Czas</translation>
    </message>
    <message id="129">
        <source>Description</source>
        <translation>Opis</translation>
    </message>
    <message id="130">
        <source>System Info</source>
        <translation>Info o systemie</translation>
    </message>
    <message id="131">
        <source>Info</source>
        <translation>Info</translation>
    </message>
    <message id="132">
        <source>System Time:</source>
        <translation>Czas systemowy:</translation>
    </message>
    <message id="133">
        <source>Group Level:</source>
        <translation>Poziom grupy:</translation>
    </message>
    <message id="134">
        <source>CPU:</source>
        <translation>CPU:</translation>
    </message>
    <message id="135">
        <source>PRESET</source>
        <translation>PRESET</translation>
    </message>
    <message id="136">
        <source>Preset:</source>
        <translation>Preset:</translation>
    </message>
    <message id="137">
        <source>Unable to support full screen mode or to change split mode under SEQ mode.</source>
        <translation>W trybie sekwencji nie można włączyć pełnego ekranu ani zmienić podziału.</translation>
    </message>
    <message id="138">
        <source>Full screen is running. close it first!</source>
        <translation>Pełny ekran jest włączony. Najpierw go zamknij.</translation>
    </message>
    <message id="139">
        <source>Unauthorised</source>
        <translation>Brak uprawnień</translation>
    </message>
    <message id="140">
        <source>Select a channel first.</source>
        <translation>Najpierw wybierz kanał.</translation>
    </message>
    <message id="141">
        <source>Name Repeat!</source>
        <translation>Taka nazwa już istnieje.</translation>
    </message>
    <message id="142">
        <source>MENU</source>
        <translation>MENU</translation>
    </message>
    <message id="143">
        <source>TREE</source>
        <translation>DRZEWO</translation>
    </message>
    <message id="144">
        <source>PATTERN</source>
        <translation>SZABLON</translation>
    </message>
    <message id="145">
        <source>STATUS</source>
        <translation>STAN</translation>
    </message>
    <message id="146">
        <source>SEQ</source>
        <translation>SEKWENCJA</translation>
    </message>
    <message id="147">
        <source>SYSTEM</source>
        <translation>SYSTEM</translation>
    </message>
    <message id="148">
        <source>CH:</source>
        <translation>Kanał:</translation>
    </message>
    <message id="149">
        <source>Reconnection</source>
        <translation>Ponowne łączenie</translation>
    </message>
    <message id="150">
        <source>Audio</source>
        <translation>Dźwięk</translation>
    </message>
    <message id="151">
        <source>Display Image of Motion Detection </source>
        <translation>Pokaż obraz detekcji ruchu </translation>
    </message>
    <message id="152">
        <source>Snapshot</source>
        <translation>Migawka</translation>
    </message>
    <message id="153">
        <source>Preset Point Setting</source>
        <translation>Ustawienia presetów</translation>
    </message>
    <message id="154">
        <source>When modify setting, the channel of pattern will be changed.</source>
        <translation>Zmiana ustawień spowoduje zmianę kanałów szablonu.</translation>
    </message>
    <message id="155">
        <source>Snapshot fail !</source>
        <translation>Wykonanie migawki nie powiodło się.</translation>
    </message>
    <message id="156">
        <source>Preset Patrol:</source>
        <translation>Patrol presetów:</translation>
    </message>
    <message id="157">
        <source>Loading Fullscreen layout data…</source>
        <translation>Wczytywanie układu pełnoekranowego…</translation>
    </message>
    <message id="158">
        <source>Dock</source>
        <translation>Zadokuj</translation>
    </message>
    <message id="159">
        <source>Control Panel</source>
        <translation>Panel sterowania</translation>
    </message>
    <message id="160">
        <source>Name:</source>
        <translation>Nazwa:</translation>
    </message>
    <message id="161">
        <source>Channel:</source>
        <translation>Kanał:</translation>
    </message>
    <message id="162">
        <source>CH Name:</source>
        <translation>Nazwa kanału:</translation>
    </message>
    <message id="163">
        <source>Event Mode:</source>
        <translation>Typ zdarzenia:</translation>
    </message>
    <message id="164">
        <source>Event Trigger Time:</source>
        <translation>Czas wyzwolenia zdarzenia:</translation>
    </message>
    <message id="165">
        <source>Contact:</source>
        <translation>Kontakt:</translation>
    </message>
    <message id="166">
        <source>Phone:</source>
        <translation>Telefon:</translation>
    </message>
    <message id="167">
        <source>Play Time(SYSTEM):</source>
        <translation>Czas odtwarzania (SYSTEM):</translation>
    </message>
    <message id="168">
        <source>Current Event List</source>
        <translation>Lista bieżących zdarzeń</translation>
    </message>
    <message id="169">
        <source>Log Event List</source>
        <translation>Lista zapisanych zdarzeń</translation>
    </message>
    <message id="170">
        <source>Search</source>
        <translation>Szukaj</translation>
    </message>
    <message id="171">
        <source>Search All</source>
        <translation>Szukaj wszystkich</translation>
    </message>
    <message id="172">
        <source>Search Start Time</source>
        <translation>Początek wyszukiwania</translation>
    </message>
    <message id="173">
        <source>Search by Event type</source>
        <translation>Szukaj według typu zdarzenia</translation>
    </message>
    <message id="174">
        <source>Item</source>
        <translation>Pozycja</translation>
    </message>
    <message id="175">
        <source>Event ID</source>
        <translation>ID zdarzenia</translation>
    </message>
    <message id="176">
        <source>Time</source>
        <translation>Czas</translation>
    </message>
    <message id="177">
        <source>System Time</source>
        <translation>Czas systemowy</translation>
    </message>
    <message id="178">
        <source>NO.</source>
        <translation>Nr</translation>
    </message>
    <message id="179">
        <source>CH</source>
        <translation>Kanał</translation>
    </message>
    <message id="180">
        <source>Event Mode</source>
        <translation>Typ zdarzenia</translation>
    </message>
    <message id="181">
        <source>Process</source>
        <translation>Przetwarzanie</translation>
    </message>
    <message id="182">
        <source>On-Line</source>
        <translation>Online</translation>
    </message>
    <message id="183">
        <source>Channel Name</source>
        <translation>Nazwa kanału</translation>
    </message>
    <message id="184">
        <source>Channel Detail</source>
        <translation>Szczegóły kanału</translation>
    </message>
    <message id="185">
        <source>Play Error</source>
        <translation>Błąd odtwarzania</translation>
    </message>
    <message id="186">
        <source>Play Stop</source>
        <translation>Odtwarzanie zatrzymane</translation>
    </message>
    <message id="187">
        <source>Live Video</source>
        <translation>Wideo na żywo</translation>
    </message>
    <message id="188">
        <source>Live Stop</source>
        <translation>Podgląd zatrzymany</translation>
    </message>
    <message id="189">
        <source>Off Line</source>
        <translation>Offline</translation>
    </message>
    <message id="190">
        <source>Error</source>
        <translation>Błąd</translation>
    </message>
    <message id="191">
        <source>Motion</source>
        <translation>Ruch</translation>
    </message>
    <message id="192">
        <source>Sensor</source>
        <translation>Czujnik</translation>
    </message>
    <message id="193">
        <source>Return message: </source>
        <translation>Komunikat zwrotny: </translation>
    </message>
    <message id="194">
        <source>NVR no playback resource!</source>
        <translation>NVR nie ma zasobów do odtwarzania.</translation>
    </message>
    <message id="195">
        <source>Playback request failed!</source>
        <translation>Żądanie odtwarzania nie powiodło się.</translation>
    </message>
    <message id="196">
        <source>Reset Event List</source>
        <translation>Resetuj listę zdarzeń</translation>
    </message>
    <message id="197">
        <source>X</source>
        <translation>X</translation>
    </message>
    <message id="198">
        <source>Return</source>
        <translation>Powrót</translation>
    </message>
    <message id="199">
        <source>SEQ Duration Time</source>
        <translation>Czas trwania sekwencji</translation>
    </message>
    <message id="200">
        <source>Playback Info</source>
        <translation>Info o odtwarzaniu</translation>
    </message>
    <message id="201">
        <source>NVR:</source>
        <translation>NVR:</translation>
    </message>
    <message id="202">
        <source>CH:</source>
        <translation>Kanał:</translation>
    </message>
    <message id="203">
        <source>Speed:</source>
        <translation>Prędkość:</translation>
    </message>
    <message id="204">
        <source>Sun</source>
        <translation>Nd</translation>
    </message>
    <message id="205">
        <source>Mon</source>
        <translation>Pn</translation>
    </message>
    <message id="206">
        <source>Tue</source>
        <translation>Wt</translation>
    </message>
    <message id="207">
        <source>Wed</source>
        <translation>Śr</translation>
    </message>
    <message id="208">
        <source>Thu</source>
        <translation>Cz</translation>
    </message>
    <message id="209">
        <source>Fri</source>
        <translation>Pt</translation>
    </message>
    <message id="210">
        <source>Sat</source>
        <translation>So</translation>
    </message>
    <message id="211">
        <source>Event List</source>
        <translation>Lista zdarzeń</translation>
    </message>
    <message id="212">
        <source>Receiving recording data failed</source>
        <translation>Odbiór nagrań nie powiódł się.</translation>
    </message>
    <message id="213">
        <source>RF</source>
        <translation>WSTECZ</translation>
    </message>
    <message id="214">
        <source>STOP</source>
        <translation>ZATRZYMAJ</translation>
    </message>
    <message id="215">
        <source>PLAY</source>
        <translation>ODTWÓRZ</translation>
    </message>
    <message id="216">
        <source>PAUSE</source>
        <translation>PAUZA</translation>
    </message>
    <message id="217">
        <source>FF</source>
        <translation>NAPRZÓD</translation>
    </message>
    <message id="218">
        <source>NEXT</source>
        <translation>NASTĘPNE</translation>
    </message>
    <message id="219">
        <source>No recording data can be Displayed !</source>
        <translation>Brak nagrań do wyświetlenia.</translation>
    </message>
    <message id="220">
        <source>Play Stop ! Need to select new time.</source>
        <translation>Odtwarzanie zatrzymane. Wybierz nowy czas.</translation>
    </message>
    <message id="221">
        <source>No response! you can try again or select another device !</source>
        <translation>Brak odpowiedzi. Spróbuj ponownie lub wybierz inne urządzenie.</translation>
    </message>
    <message id="222">
        <source>Disconnection ! </source>
        <translation>Rozłączono. </translation>
    </message>
    <message id="223">
        <source>Can not get video stream ! please select other Channel.</source>
        <translation>Nie można pobrać strumienia wideo. Wybierz inny kanał.</translation>
    </message>
    <message id="224">
        <source>No recording data.</source>
        <translation>Brak nagrań.</translation>
    </message>
    <message id="225">
        <source>Recording data is updating, please wait .</source>
        <translation>Trwa aktualizacja nagrań, zaczekaj.</translation>
    </message>
    <message id="226">
        <source>Convert to AVI</source>
        <translation>Konwertuj na AVI</translation>
    </message>
    <message id="227">
        <source>Do you want to stop the conversion of avi file ?</source>
        <translation>Czy zatrzymać konwersję na AVI?</translation>
    </message>
    <message id="228">
        <source>AVI file conversion complete! File is... </source>
        <translation>Konwersja na AVI zakończona. Plik to… </translation>
    </message>
    <message id="229">
        <source>Converting AVI file!</source>
        <translation>Trwa konwersja na AVI.</translation>
    </message>
    <message id="230">
        <source>AVI Conversion Fail !</source>
        <translation>Konwersja na AVI nie powiodła się.</translation>
    </message>
    <message id="231">
        <source>Auto Pan:</source>
        <translation>Autopanorama:</translation>
    </message>
    <message id="232">
        <source>Single Video</source>
        <translation>Jeden obraz</translation>
    </message>
    <message id="233">
        <source>Quad Videos</source>
        <translation>Cztery obrazy</translation>
    </message>
    <message id="234">
        <source>Nine Videos</source>
        <translation>Dziewięć obrazów</translation>
    </message>
    <message id="235">
        <source>No any SVD has been set, you need to add any SVD to control!</source>
        <translation>Nie skonfigurowano żadnego SVD. Dodaj SVD, aby nim sterować.</translation>
    </message>
    <message id="236">
        <source>This channel has been set to display in this screen!</source>
        <translation>Ten kanał jest już wyświetlany na tym ekranie.</translation>
    </message>
    <message id="237">
        <source>Are you sure to exit SVD console monitor?</source>
        <translation>Czy na pewno zamknąć monitor konsoli SVD?</translation>
    </message>
    <message id="238">
        <source>Click here to reconnect again!</source>
        <translation>Kliknij tutaj, aby połączyć ponownie.</translation>
    </message>
    <message id="239">
        <source>SVD UI is changing…</source>
        <translation>Zmiana interfejsu SVD…</translation>
    </message>
    <message id="240">
        <source>NO.:</source>
        <translation>Nr:</translation>
    </message>
    <message id="241">
        <source>Name:</source>
        <translation>Nazwa:</translation>
    </message>
    <message id="242">
        <source>Number of Camera:</source>
        <translation>Liczba kamer:</translation>
    </message>
    <message id="243">
        <source>Event:</source>
        <translation>Zdarzenie:</translation>
    </message>
    <message id="244">
        <source>No Event</source>
        <translation>Brak zdarzeń</translation>
    </message>
    <message id="245">
        <source>CH:</source>
        <translation>Kanał:</translation>
    </message>
    <message id="246">
        <source>Up</source>
        <translation>W górę</translation>
    </message>
    <message id="247">
        <source>Down</source>
        <translation>W dół</translation>
    </message>
    <message id="248">
        <source>Left</source>
        <translation>W lewo</translation>
    </message>
    <message id="249">
        <source>Right</source>
        <translation>W prawo</translation>
    </message>
    <message id="250">
        <source>Upper left</source>
        <translation>W lewo w górę</translation>
    </message>
    <message id="251">
        <source>Upper right</source>
        <translation>W prawo w górę</translation>
    </message>
    <message id="252">
        <source>Lower left</source>
        <translation>W lewo w dół</translation>
    </message>
    <message id="253">
        <source>Lower right</source>
        <translation>W prawo w dół</translation>
    </message>
    <message id="254">
        <source>Home</source>
        <translation>Poz. bazowa</translation>
    </message>
    <message id="255">
        <source>Zoom In</source>
        <translation>Zbliż</translation>
    </message>
    <message id="256">
        <source>Zoom Out</source>
        <translation>Oddal</translation>
    </message>
    <message id="257">
        <source>Focus Far</source>
        <translation>Ostrość dalej</translation>
    </message>
    <message id="258">
        <source>Focus Near</source>
        <translation>Ostrość bliżej</translation>
    </message>
    <message id="259">
        <source>Auto Focus</source>
        <translation>Autofokus</translation>
    </message>
    <message id="260">
        <source>IRIS Auto</source>
        <translation>Autoprzysłona</translation>
    </message>
    <message id="261">
        <source>IRIS Close</source>
        <translation>Zamknij przysłonę</translation>
    </message>
    <message id="262">
        <source>IRIS Open</source>
        <translation>Otwórz przysłonę</translation>
    </message>
    <message id="263">
        <source>Auto Pan Left</source>
        <translation>Autopanorama w lewo</translation>
    </message>
    <message id="264">
        <source>Auto Pan Right</source>
        <translation>Autopanorama w prawo</translation>
    </message>
    <message id="265">
        <source>Auto Pan Stop</source>
        <translation>Zatrzymaj autopanoramę</translation>
    </message>
    <message id="266">
        <source>Moving Rate(+)</source>
        <translation>Prędkość ruchu (+)</translation>
    </message>
    <message id="267">
        <source>Moving Rate(-)</source>
        <translation>Prędkość ruchu (-)</translation>
    </message>
    <message id="268">
        <source>Display OSD on all channels</source>
        <translation>Pokaż OSD na wszystkich kanałach</translation>
    </message>
    <message id="269">
        <source>Display OSD</source>
        <translation>Pokaż OSD</translation>
    </message>
    <message id="270">
        <source>Detail Export:</source>
        <translation>Eksport szczegółów:</translation>
    </message>
    <message id="271">
        <source>Valid Ch</source>
        <translation>Aktywne kanały</translation>
    </message>
    <message id="272">
        <source>Auto Search</source>
        <translation>Autowyszukiwanie</translation>
    </message>
    <message id="273">
        <source>Manual Detection</source>
        <translation>Wykrywanie ręczne</translation>
    </message>
    <message id="274">
        <source>NVR ID:</source>
        <translation>ID NVR:</translation>
    </message>
    <message id="275">
        <source>IP:</source>
        <translation>IP:</translation>
    </message>
    <message id="276">
        <source>HTTP Port:</source>
        <translation>Port HTTP:</translation>
    </message>
    <message id="277">
        <source>Next</source>
        <translation>Dalej</translation>
    </message>
    <message id="278">
        <source>Device Name</source>
        <translation>Nazwa urządzenia</translation>
    </message>
    <message id="279">
        <source>All</source>
        <translation>Wszystkie</translation>
    </message>
    <message id="280">
        <source>CHs</source>
        <translation>Kanały</translation>
    </message>
    <message id="281">
        <source>Model:</source>
        <translation>Model:</translation>
    </message>
    <message id="282">
        <source>Max Channel:</source>
        <translation>Maks. kanałów:</translation>
    </message>
    <message id="283">
        <source>NVR Name:</source>
        <translation>Nazwa NVR:</translation>
    </message>
    <message id="284">
        <source>Version:</source>
        <translation>Wersja:</translation>
    </message>
    <message id="285">
        <source>Valid Channel:</source>
        <translation>Aktywne kanały:</translation>
    </message>
    <message id="286">
        <source>Sync With NVR</source>
        <translation>Synchronizuj z NVR</translation>
    </message>
    <message id="287">
        <source>Add New NVR </source>
        <translation>Dodaj nowy NVR </translation>
    </message>
    <message id="288">
        <source>NVR Search List</source>
        <translation>Lista znalezionych NVR</translation>
    </message>
    <message id="289">
        <source>NVR Detect Status</source>
        <translation>Stan wykrywania NVR</translation>
    </message>
    <message id="290">
        <source>NVR Detail Setting</source>
        <translation>Ustawienia szczegółowe NVR</translation>
    </message>
    <message id="291">
        <source>NVR Channel Setting</source>
        <translation>Ustawienia kanałów NVR</translation>
    </message>
    <message id="292">
        <source>Preset Sequence Setting</source>
        <translation>Ustawienia sekwencji presetów</translation>
    </message>
    <message id="293">
        <source>Get Capability...</source>
        <translation>Pobieranie możliwości…</translation>
    </message>
    <message id="294">
        <source>Get Channel Info...</source>
        <translation>Pobieranie informacji o kanałach…</translation>
    </message>
    <message id="295">
        <source>Get NVR Info...</source>
        <translation>Pobieranie informacji o NVR…</translation>
    </message>
    <message id="296">
        <source>Initial NVR Value...</source>
        <translation>Inicjowanie wartości NVR…</translation>
    </message>
    <message id="297">
        <source>Add Success!</source>
        <translation>Dodano pomyślnie.</translation>
    </message>
    <message id="298">
        <source>Channel List</source>
        <translation>Lista kanałów</translation>
    </message>
    <message id="299">
        <source>Split:</source>
        <translation>Podział:</translation>
    </message>
    <message id="300">
        <source>MainViewer opened. Close it First!</source>
        <translation>Podgląd główny jest otwarty. Najpierw go zamknij.</translation>
    </message>
    <message id="301">
        <source>System &amp; Setting</source>
        <translation>System i ustawienia</translation>
    </message>
    <message id="302">
        <source>Setting</source>
        <translation>Ustawienia</translation>
    </message>
    <message id="303">
        <source>Manual Setting</source>
        <translation>Ustawienia ręczne</translation>
    </message>
    <message id="304">
        <source>PTZ Config</source>
        <translation>Konfiguracja PTZ</translation>
    </message>
    <message id="305">
        <source>Motion Setting</source>
        <translation>Ustawienia ruchu</translation>
    </message>
    <message id="306">
        <source>Motion Setting</source>
        <translation>Ustawienia ruchu</translation>
    </message>
    <message id="307">
        <source>General Setting Overview</source>
        <translation>Przegląd ustawień ogólnych</translation>
    </message>
    <message id="308">
        <source>Group/User Config</source>
        <translation>Konfiguracja grup i użytkowników</translation>
    </message>
    <message id="309">
        <source>Event Handling Config</source>
        <translation>Konfiguracja obsługi zdarzeń</translation>
    </message>
    <message id="310">
        <source>E-Map Config</source>
        <translation>Konfiguracja e-mapy</translation>
    </message>
    <message id="311">
        <source>Screen Layout Config</source>
        <translation>Konfiguracja układu ekranów</translation>
    </message>
    <message id="312">
        <source>Event Action Overview</source>
        <translation>Przegląd akcji zdarzeń</translation>
    </message>
    <message id="313">
        <source>Mail Config</source>
        <translation>Konfiguracja poczty</translation>
    </message>
    <message id="314">
        <source>FTP Config</source>
        <translation>Konfiguracja FTP</translation>
    </message>
    <message id="315">
        <source>Message Config</source>
        <translation>Konfiguracja wiadomości</translation>
    </message>
    <message id="316">
        <source>Sound Config</source>
        <translation>Konfiguracja dźwięku</translation>
    </message>
    <message id="317">
        <source>Save</source>
        <translation>Zapisz</translation>
    </message>
    <message id="318">
        <source>Main Viewer</source>
        <translation>Podgląd główny</translation>
    </message>
    <message id="319">
        <source>Exit</source>
        <translation>Wyjście</translation>
    </message>
    <message id="320">
        <source>Setup</source>
        <translation>Konfiguracja</translation>
    </message>
    <message id="321">
        <source>SEQ Control</source>
        <translation>Sterowanie sekwencją</translation>
    </message>
    <message id="322">
        <source>Pattern Name:</source>
        <translation>Nazwa szablonu:</translation>
    </message>
    <message id="323">
        <source>Do you continue to delete this pattern?</source>
        <translation>Czy na pewno usunąć ten szablon?</translation>
    </message>
    <message id="324">
        <source>Pattern List Overview</source>
        <translation>Przegląd listy szablonów</translation>
    </message>
    <message id="325">
        <source>Name or Channel list need to be set!</source>
        <translation>Ustaw nazwę lub listę kanałów.</translation>
    </message>
    <message id="326">
        <source>Live Monitor SEQ and full screen can not be opened at the same time.</source>
        <translation>Sekwencji podglądu na żywo i pełnego ekranu nie można otworzyć jednocześnie.</translation>
    </message>
    <message id="327">
        <source>No channel is selected!</source>
        <translation>Nie wybrano kanału.</translation>
    </message>
    <message id="328">
        <source>Select time is out of data range!</source>
        <translation>Wybrany czas wykracza poza zakres danych.</translation>
    </message>
    <message id="329">
        <source>NVR is invalid!</source>
        <translation>NVR jest nieprawidłowy.</translation>
    </message>
    <message id="330">
        <source>System Setting</source>
        <translation>Ustawienia systemu</translation>
    </message>
    <message id="331">
        <source>Application name:</source>
        <translation>Nazwa aplikacji:</translation>
    </message>
    <message id="332">
        <source>Version:</source>
        <translation>Wersja:</translation>
    </message>
    <message id="333">
        <source>Language:</source>
        <translation>Język:</translation>
    </message>
    <message id="334">
        <source>Start Up:</source>
        <translation>Uruchamianie:</translation>
    </message>
    <message id="335">
        <source>Event Sync Time:</source>
        <translation>Czas synchr. zdarzeń:</translation>
    </message>
    <message id="336">
        <source>Snapshot Count:</source>
        <translation>Liczba migawek:</translation>
    </message>
    <message id="337">
        <source>Camera Event Server Setting</source>
        <translation>Ustawienia serwera zdarzeń kamery</translation>
    </message>
    <message id="338">
        <source>Account:</source>
        <translation>Konto:</translation>
    </message>
    <message id="339">
        <source>Password:</source>
        <translation>Hasło:</translation>
    </message>
    <message id="340">
        <source>Port:</source>
        <translation>Port:</translation>
    </message>
    <message id="341">
        <source>System Info</source>
        <translation>Info o systemie</translation>
    </message>
    <message id="343">
        <source>OS:</source>
        <translation>System operacyjny:</translation>
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
        <translation>Nazwa komputera:</translation>
    </message>
    <message id="347">
        <source>Total space of HD:</source>
        <translation>Pojemność dysków:</translation>
    </message>
    <message id="348">
        <source>Network Connect Status:</source>
        <translation>Stan połączenia sieciowego:</translation>
    </message>
    <message id="349">
        <source>System Time:</source>
        <translation>Czas systemowy:</translation>
    </message>
    <message id="350">
        <source>Screen Count:</source>
        <translation>Liczba ekranów:</translation>
    </message>
    <message id="351">
        <source>CPU Performance:</source>
        <translation>Obciążenie CPU:</translation>
    </message>
    <message id="352">
        <source>Login Windows then Auto Start up </source>
        <translation>Uruchamiaj po zalogowaniu do Windows </translation>
    </message>
    <message id="353">
        <source>Start in background</source>
        <translation>Uruchamiaj w tle</translation>
    </message>
    <message id="354">
        <source>Minute</source>
        <translation>min</translation>
    </message>
    <message id="356">
        <source>NVR is connecting, wait a moment and start again!</source>
        <translation>Trwa łączenie z NVR, zaczekaj chwilę i uruchom ponownie.</translation>
    </message>
    <message id="357">
        <source>NVR is offline, please choose another NVR or confirm this NVR connection status!</source>
        <translation>NVR jest offline. Wybierz inny NVR lub sprawdź stan połączenia tego NVR.</translation>
    </message>
    <message id="358">
        <source>Output device has been removed!</source>
        <translation>Urządzenie wyjściowe zostało usunięte.</translation>
    </message>
    <message id="359">
        <source>Password confirm inconsistency, Please check again!</source>
        <translation>Hasła nie są zgodne, sprawdź ponownie.</translation>
    </message>
    <message id="360">
        <source>List:</source>
        <translation>Lista:</translation>
    </message>
    <message id="361">
        <source>NVR</source>
        <translation>NVR</translation>
    </message>
    <message id="362">
        <source>Name</source>
        <translation>Nazwa</translation>
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
        <translation>Uprawnienia</translation>
    </message>
    <message id="366">
        <source>CH</source>
        <translation>Kanał</translation>
    </message>
    <message id="367">
        <source>CH Name</source>
        <translation>Nazwa kanału</translation>
    </message>
    <message id="368">
        <source>CH IP</source>
        <translation>IP kanału</translation>
    </message>
    <message id="369">
        <source>CH Port</source>
        <translation>Port kanału</translation>
    </message>
    <message id="370">
        <source>CH Brand</source>
        <translation>Marka kanału</translation>
    </message>
    <message id="371">
        <source>Video Format</source>
        <translation>Format wideo</translation>
    </message>
    <message id="372">
        <source>Video RES</source>
        <translation>Rozdz. wideo</translation>
    </message>
    <message id="373">
        <source>MD Enable</source>
        <translation>Detekcja ruchu</translation>
    </message>
    <message id="374">
        <source>MD Sen</source>
        <translation>Czułość det.</translation>
    </message>
    <message id="375">
        <source>CH PTZ</source>
        <translation>PTZ kanału</translation>
    </message>
    <message id="376">
        <source>CH audio</source>
        <translation>Dźwięk kanału</translation>
    </message>
    <message id="377">
        <source>Detect List</source>
        <translation>Lista wykrytych</translation>
    </message>
    <message id="378">
        <source>Advance Control </source>
        <translation>Zaawansowane </translation>
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
        <translation>Czas wykrycia</translation>
    </message>
    <message id="385">
        <source>Add</source>
        <translation>Dodaj</translation>
    </message>
    <message id="386">
        <source>Remove</source>
        <translation>Usuń</translation>
    </message>
    <message id="387">
        <source>Modify</source>
        <translation>Modyfikuj</translation>
    </message>
    <message id="388">
        <source>Reconection </source>
        <translation>Połącz ponownie </translation>
    </message>
    <message id="389">
        <source>Open Browser</source>
        <translation>Otwórz przeglądarkę</translation>
    </message>
    <message id="390">
        <source>Preset Info</source>
        <translation>Info o presecie</translation>
    </message>
    <message id="391">
        <source>Sync</source>
        <translation>Synchronizuj</translation>
    </message>
    <message id="392">
        <source>Edit Preset</source>
        <translation>Edytuj preset</translation>
    </message>
    <message id="393">
        <source>Preset No</source>
        <translation>Nr presetu</translation>
    </message>
    <message id="394">
        <source>Preset Name</source>
        <translation>Nazwa presetu</translation>
    </message>
    <message id="395">
        <source>PTZ Control</source>
        <translation>Sterowanie PTZ</translation>
    </message>
    <message id="396">
        <source>Submit</source>
        <translation>Zatwierdź</translation>
    </message>
    <message id="397">
        <source>Motion Detect List:</source>
        <translation>Lista detekcji ruchu:</translation>
    </message>
    <message id="398">
        <source>Sensitivity:</source>
        <translation>Czułość:</translation>
    </message>
    <message id="399">
        <source>Motion Detect Setting</source>
        <translation>Ustawienia detekcji ruchu</translation>
    </message>
    <message id="400">
        <source>*Use Mouse drag the Device item into Intelligent detection List.</source>
        <translation>*Przeciągnij myszą urządzenie na listę analityki wideo.</translation>
    </message>
    <message id="401">
        <source>Device List:</source>
        <translation>Lista urządzeń:</translation>
    </message>
    <message id="402">
        <source>Trigger for Motion Detect</source>
        <translation>Wyzwalanie detekcją ruchu</translation>
    </message>
    <message id="403">
        <source>Status</source>
        <translation>Stan</translation>
    </message>
    <message id="404">
        <source>Motion Enable List:</source>
        <translation>Włączone detekcje ruchu:</translation>
    </message>
    <message id="405">
        <source>Clear All</source>
        <translation>Wyczyść wszystko</translation>
    </message>
    <message id="406">
        <source>Select All</source>
        <translation>Zaznacz wszystko</translation>
    </message>
    <message id="407">
        <source>High</source>
        <translation>Wysoka</translation>
    </message>
    <message id="408">
        <source>Normal</source>
        <translation>Normalna</translation>
    </message>
    <message id="409">
        <source>Low</source>
        <translation>Niska</translation>
    </message>
    <message id="410">
        <source>SET</source>
        <translation>USTAW</translation>
    </message>
    <message id="411">
        <source>User List:</source>
        <translation>Lista użytkowników:</translation>
    </message>
    <message id="412">
        <source>Group List:</source>
        <translation>Lista grup:</translation>
    </message>
    <message id="413">
        <source>Event Setting List:</source>
        <translation>Lista ustawień zdarzeń:</translation>
    </message>
    <message id="414">
        <source>EMap List:</source>
        <translation>Lista e-map:</translation>
    </message>
    <message id="415">
        <source>Screen List:</source>
        <translation>Lista ekranów:</translation>
    </message>
    <message id="416">
        <source>Account</source>
        <translation>Konto</translation>
    </message>
    <message id="417">
        <source>Company</source>
        <translation>Firma</translation>
    </message>
    <message id="418">
        <source>Telephone</source>
        <translation>Telefon</translation>
    </message>
    <message id="419">
        <source>Mail 1</source>
        <translation>E-mail 1</translation>
    </message>
    <message id="420">
        <source>Mail 2</source>
        <translation>E-mail 2</translation>
    </message>
    <message id="421">
        <source>Cell Phone</source>
        <translation>Tel. komórkowy</translation>
    </message>
    <message id="422">
        <source>Photo Path</source>
        <translation>Ścieżka zdjęcia</translation>
    </message>
    <message id="423">
        <source>Group</source>
        <translation>Grupa</translation>
    </message>
    <message id="424">
        <source>Event</source>
        <translation>Zdarzenie</translation>
    </message>
    <message id="425">
        <source>Mail</source>
        <translation>Poczta</translation>
    </message>
    <message id="426">
        <source>FTP</source>
        <translation>FTP</translation>
    </message>
    <message id="427">
        <source>Msg</source>
        <translation>Wiad.</translation>
    </message>
    <message id="428">
        <source>Sound</source>
        <translation>Dźwięk</translation>
    </message>
    <message id="429">
        <source>Video Power</source>
        <translation>Uprawnienia wideo</translation>
    </message>
    <message id="430">
        <source>Playback</source>
        <translation>Odtwarzanie</translation>
    </message>
    <message id="431">
        <source>PTZ</source>
        <translation>PTZ</translation>
    </message>
    <message id="432">
        <source>Setup</source>
        <translation>Konfiguracja</translation>
    </message>
    <message id="433">
        <source>Map</source>
        <translation>Mapa</translation>
    </message>
    <message id="434">
        <source>Path</source>
        <translation>Ścieżka</translation>
    </message>
    <message id="435">
        <source>Function</source>
        <translation>Funkcja</translation>
    </message>
    <message id="436">
        <source>Screen</source>
        <translation>Ekran</translation>
    </message>
    <message id="437">
        <source>MainMap</source>
        <translation>Mapa główna</translation>
    </message>
    <message id="438">
        <source>FullScreen</source>
        <translation>Pełny ekran</translation>
    </message>
    <message id="439">
        <source>FullScreen2</source>
        <translation>Pełny ekran 2</translation>
    </message>
    <message id="440">
        <source>User Detail List</source>
        <translation>Szczegóły użytkowników</translation>
    </message>
    <message id="441">
        <source>Group List</source>
        <translation>Lista grup</translation>
    </message>
    <message id="442">
        <source>Add User</source>
        <translation>Dodaj użytkownika</translation>
    </message>
    <message id="443">
        <source>Remove User</source>
        <translation>Usuń użytkownika</translation>
    </message>
    <message id="444">
        <source>Modify User</source>
        <translation>Modyfikuj użytkownika</translation>
    </message>
    <message id="445">
        <source>Modify Group</source>
        <translation>Modyfikuj grupę</translation>
    </message>
    <message id="446">
        <source>System Event Trigger Action</source>
        <translation>Akcja wyzwalana zdarzeniem systemu</translation>
    </message>
    <message id="447">
        <source>NVR Event Trigger Action</source>
        <translation>Akcja wyzwalana zdarzeniem NVR</translation>
    </message>
    <message id="448">
        <source>System Start/Stop</source>
        <translation>Start/stop systemu</translation>
    </message>
    <message id="449">
        <source>Modify Setting of System</source>
        <translation>Zmiana ustawień systemu</translation>
    </message>
    <message id="450">
        <source>Modify Setting of NVR</source>
        <translation>Zmiana ustawień NVR</translation>
    </message>
    <message id="451">
        <source>Modify Setting of Intelligent detection</source>
        <translation>Zmiana ustawień analityki wideo</translation>
    </message>
    <message id="452">
        <source>Modify Setting of General</source>
        <translation>Zmiana ustawień ogólnych</translation>
    </message>
    <message id="453">
        <source>Modify Setting of Event</source>
        <translation>Zmiana ustawień zdarzeń</translation>
    </message>
    <message id="454">
        <source>E1:Motion Detect</source>
        <translation>E1: Detekcja ruchu</translation>
    </message>
    <message id="455">
        <source>Sensor Detection</source>
        <translation>Detekcja czujnikiem</translation>
    </message>
    <message id="456">
        <source>*Double Click Map to Setting</source>
        <translation>*Kliknij mapę dwukrotnie, aby ją skonfigurować</translation>
    </message>
    <message id="457">
        <source>SubMap</source>
        <translation>Podmapa</translation>
    </message>
    <message id="458">
        <source>Screen Layout</source>
        <translation>Układ ekranów</translation>
    </message>
    <message id="459">
        <source>Mail</source>
        <translation>Poczta</translation>
    </message>
    <message id="460">
        <source>FTP</source>
        <translation>FTP</translation>
    </message>
    <message id="461">
        <source>Message</source>
        <translation>Wiadomość</translation>
    </message>
    <message id="462">
        <source>Sound</source>
        <translation>Dźwięk</translation>
    </message>
    <message id="463">
        <source>Sender E-mail Address</source>
        <translation>Adres e-mail nadawcy</translation>
    </message>
    <message id="464">
        <source>Mail Server</source>
        <translation>Serwer poczty</translation>
    </message>
    <message id="465">
        <source>User</source>
        <translation>Użytkownik</translation>
    </message>
    <message id="466">
        <source>Password</source>
        <translation>Hasło</translation>
    </message>
    <message id="467">
        <source>Adressee Name</source>
        <translation>Nazwa adresata</translation>
    </message>
    <message id="468">
        <source>Mail Addrrss</source>
        <translation>Adres e-mail</translation>
    </message>
    <message id="469">
        <source>Server IP</source>
        <translation>IP serwera</translation>
    </message>
    <message id="470">
        <source>Server Port</source>
        <translation>Port serwera</translation>
    </message>
    <message id="471">
        <source>Text</source>
        <translation>Tekst</translation>
    </message>
    <message id="472">
        <source>Sound Description</source>
        <translation>Opis dźwięku</translation>
    </message>
    <message id="473">
        <source>Sound File Path</source>
        <translation>Ścieżka pliku dźwiękowego</translation>
    </message>
    <message id="474">
        <source>Test</source>
        <translation>Test</translation>
    </message>
    <message id="475">
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message id="476">
        <source>Mail to</source>
        <translation>Wyślij do</translation>
    </message>
    <message id="477">
        <source>FTP Setting</source>
        <translation>Ustawienia FTP</translation>
    </message>
    <message id="478">
        <source>Message Setting</source>
        <translation>Ustawienia wiadomości</translation>
    </message>
    <message id="479">
        <source>Message</source>
        <translation>Wiadomość</translation>
    </message>
    <message id="480">
        <source>Sound Setting</source>
        <translation>Ustawienia dźwięku</translation>
    </message>
    <message id="481">
        <source>Set HTTP Server failed! Do you want to remove all HTTP Servers?</source>
        <translation>Ustawienie serwera HTTP nie powiodło się. Czy usunąć wszystkie serwery HTTP?</translation>
    </message>
    <message id="482">
        <source>The amount cannot be more than 16!</source>
        <translation>Liczba nie może przekraczać 16.</translation>
    </message>
    <message id="483">
        <source>Do you want to delete the selected NVR?</source>
        <translation>Czy usunąć wybrany NVR?</translation>
    </message>
    <message id="484">
        <source>Sender name can't be empty!</source>
        <translation>Nazwa nadawcy nie może być pusta.</translation>
    </message>
    <message id="485">
        <source>Mail Server can't be empty!</source>
        <translation>Pole serwera poczty nie może być puste.</translation>
    </message>
    <message id="486">
        <source>User can't be empty!</source>
        <translation>Pole użytkownika nie może być puste.</translation>
    </message>
    <message id="487">
        <source>Password can't be empty!</source>
        <translation>Hasło nie może być puste.</translation>
    </message>
    <message id="488">
        <source>Mail Address can't be empty!</source>
        <translation>Adres e-mail nie może być pusty.</translation>
    </message>
    <message id="489">
        <source>Test mail sent success.</source>
        <translation>Testową wiadomość e-mail wysłano pomyślnie.</translation>
    </message>
    <message id="490">
        <source>Test mail sent failed.</source>
        <translation>Wysłanie testowej wiadomości e-mail nie powiodło się.</translation>
    </message>
    <message id="491">
        <source>Server IP can't be empty!</source>
        <translation>Adres IP serwera nie może być pusty.</translation>
    </message>
    <message id="492">
        <source>Server Port can't be empty!</source>
        <translation>Port serwera nie może być pusty.</translation>
    </message>
    <message id="493">
        <source>Root Path can't be empty!</source>
        <translation>Ścieżka główna nie może być pusta.</translation>
    </message>
    <message id="494">
        <source>Connecting to ftp server success.</source>
        <translation>Połączono z serwerem FTP.</translation>
    </message>
    <message id="495">
        <source>Connecting to ftp server failed.</source>
        <translation>Połączenie z serwerem FTP nie powiodło się.</translation>
    </message>
    <message id="496">
        <source>Message can't be empty!</source>
        <translation>Wiadomość nie może być pusta.</translation>
    </message>
    <message id="497">
        <source>Sound Description can't be empty!</source>
        <translation>Opis dźwięku nie może być pusty.</translation>
    </message>
    <message id="498">
        <source>Sound file Path can't be empty!</source>
        <translation>Ścieżka pliku dźwiękowego nie może być pusta.</translation>
    </message>
    <message id="499">
        <source>Preset number select first.</source>
        <translation>Najpierw wybierz numer presetu.</translation>
    </message>
    <message id="500">
        <source>The Preset Name has been used.</source>
        <translation>Ta nazwa presetu jest już używana.</translation>
    </message>
    <message id="501">
        <source>Do you want to delete the selected User?</source>
        <translation>Czy usunąć wybranego użytkownika?</translation>
    </message>
    <message id="502">
        <source>Can't Delete User.</source>
        <translation>Nie można usunąć użytkownika.</translation>
    </message>
    <message id="503">
        <source>Already Set.</source>
        <translation>Już ustawiono.</translation>
    </message>
    <message id="504">
        <source>Intelligent setting can't exceed 16</source>
        <translation>Liczba ustawień analityki wideo nie może przekraczać 16.</translation>
    </message>
    <message id="505">
        <source>Add NVR failed! Please add again.</source>
        <translation>Dodanie NVR nie powiodło się. Dodaj ponownie.</translation>
    </message>
    <message id="506">
        <source>File Size can't more than 5MB</source>
        <translation>Rozmiar pliku nie może przekraczać 5 MB.</translation>
    </message>
    <message id="507">
        <source>Save OK</source>
        <translation>Zapisano.</translation>
    </message>
    <message id="508">
        <source>Exit and Open MainViewer?</source>
        <translation>Czy zakończyć i otworzyć podgląd główny?</translation>
    </message>
    <message id="509">
        <source>Do you want to exit?</source>
        <translation>Czy zakończyć program?</translation>
    </message>
    <message id="510">
        <source>Resolution Not Support .</source>
        <translation>Rozdzielczość nie jest obsługiwana.</translation>
    </message>
    <message id="511">
        <source>Do you want to Save?</source>
        <translation>Czy zapisać?</translation>
    </message>
    <message id="512">
        <source>The Channel does not support motion detection or is no connection !</source>
        <translation>Kanał nie obsługuje detekcji ruchu lub nie jest połączony.</translation>
    </message>
    <message id="513">
        <source>No setting !</source>
        <translation>Brak ustawień.</translation>
    </message>
    <message id="514">
        <source>Settings have changed , Do you want to save ?</source>
        <translation>Ustawienia zostały zmienione. Czy je zapisać?</translation>
    </message>
    <message id="515">
        <source>Not yet set of Event Action config!</source>
        <translation>Nie skonfigurowano jeszcze akcji zdarzeń.</translation>
    </message>
    <message id="516">
        <source>Video can't connection.</source>
        <translation>Nie można nawiązać połączenia wideo.</translation>
    </message>
    <message id="517">
        <source>Submit</source>
        <translation>Zatwierdź</translation>
    </message>
    <message id="518">
        <source>Save Setting</source>
        <translation>Zapisz ustawienia</translation>
    </message>
    <message id="519">
        <source>Close this window</source>
        <translation>Zamknij to okno</translation>
    </message>
    <message id="520">
        <source>Preset Sequence</source>
        <translation>Sekwencja presetów</translation>
    </message>
    <message id="521">
        <source>Dwell Time:</source>
        <translation>Czas wyświetlania:</translation>
    </message>
    <message id="522">
        <source>PTZ Preset</source>
        <translation>Preset PTZ</translation>
    </message>
    <message id="523">
        <source>Preset Sequence</source>
        <translation>Sekwencja presetów</translation>
    </message>
    <message id="524">
        <source>Select a wave file</source>
        <translation>Wybierz plik WAV</translation>
    </message>
    <message id="525">
        <source>File Name: </source>
        <translation>Nazwa pliku: </translation>
    </message>
    <message id="526">
        <source>Message sent successfully!</source>
        <translation>Wiadomość wysłano pomyślnie.</translation>
    </message>
    <message id="527">
        <source>Sending Message fail!</source>
        <translation>Wysłanie wiadomości nie powiodło się.</translation>
    </message>
    <message id="528">
        <source>MAX Video</source>
        <translation>Maksymalizuj obraz</translation>
    </message>
    <message id="529">
        <source>Enable/Disable auto switch group to display videos.</source>
        <translation>Włącz/wyłącz automatyczne przełączanie grup wyświetlanych obrazów.</translation>
    </message>
    <message id="530">
        <source>Enable/Disable maximum video to display.</source>
        <translation>Włącz/wyłącz zmaksymalizowane wyświetlanie obrazu.</translation>
    </message>
    <message id="531">
        <source>Live Video</source>
        <translation>Wideo na żywo</translation>
    </message>
    <message id="532">
        <source>Do you want to cancel playback for NVR?</source>
        <translation>Czy anulować odtwarzanie z NVR?</translation>
    </message>
    <message id="533">
        <source>The selected time doesn't have any recording data!</source>
        <translation>Dla wybranego czasu nie ma nagrań.</translation>
    </message>
    <message id="534">
        <source>Select channel you want to change and reset the relational data information?</source>
        <translation>Czy zmienić wybrany kanał i zresetować powiązane z nim dane?</translation>
    </message>
    <message id="535">
        <source>This NVR cannot get group ID to playback!</source>
        <translation>Ten NVR nie może uzyskać identyfikatora grupy do odtwarzania.</translation>
    </message>
    <message id="536">
        <source>Select the SVD has been disconnected, so close the panel and make sure that SVD status!</source>
        <translation>Wybrany SVD został rozłączony. Zamknij panel i sprawdź stan SVD.</translation>
    </message>
    <message id="550">
        <source>IP Address</source>
        <translation>Adres IP</translation>
    </message>
    <message id="551">
        <source>Http Port</source>
        <translation>Port HTTP</translation>
    </message>
    <message id="552">
        <source>Add</source>
        <translation>Dodaj</translation>
    </message>
    <message id="553">
        <source>NVR Name can't be empty!</source>
        <translation>Nazwa NVR nie może być pusta.</translation>
    </message>
    <message id="554">
        <source>IP address or hostname set incorrectly!</source>
        <translation>Nieprawidłowy adres IP lub nazwa hosta.</translation>
    </message>
    <message id="555">
        <source>NVR don't exist!</source>
        <translation>NVR nie istnieje.</translation>
    </message>
    <message id="556">
        <source>Port set incorrectly!</source>
        <translation>Nieprawidłowy port.</translation>
    </message>
    <message id="557">
        <source>Add</source>
        <translation>Dodaj</translation>
    </message>
    <message id="558">
        <source>NVR select setting</source>
        <translation>Ustawienia wyboru NVR</translation>
    </message>
    <message id="559">
        <source>Pattern select setting</source>
        <translation>Ustawienia wyboru szablonów</translation>
    </message>
    <message id="560">
        <source>All list</source>
        <translation>Pełna lista</translation>
    </message>
    <message id="561">
        <source>Selected list</source>
        <translation>Lista wybranych</translation>
    </message>
    <message id="562">
        <source>Select item is less than 2 items, it can not be saved!</source>
        <translation>Wybrano mniej niż 2 pozycje, nie można zapisać.</translation>
    </message>
    <message id="563">
        <source>Functions that were originally assigned on this screen will be moved to screen #1 automatically.</source>
        <translation>Funkcje przypisane dotąd do tego ekranu zostaną automatycznie przeniesione na ekran nr 1.</translation>
    </message>
    <message id="564">
        <source>Has not enough pattern can be selected!</source>
        <translation>Za mało szablonów do wyboru.</translation>
    </message>
    <message id="565">
        <source>This screen has been assigned to Video Wall!</source>
        <translation>Ten ekran został przypisany do ściany wideo.</translation>
    </message>
    <message id="566">
        <source>Has not enough device can be selected!</source>
        <translation>Za mało urządzeń do wyboru.</translation>
    </message>
    <message id="570">
        <source>Information</source>
        <translation>Informacja</translation>
    </message>
    <message id="571">
        <source>*Name</source>
        <translation>*Nazwa</translation>
    </message>
    <message id="572">
        <source>*IP Address</source>
        <translation>*Adres IP</translation>
    </message>
    <message id="573">
        <source>*Http Port</source>
        <translation>*Port HTTP</translation>
    </message>
    <message id="574">
        <source>*User</source>
        <translation>*Użytkownik</translation>
    </message>
    <message id="575">
        <source>*Password</source>
        <translation>*Hasło</translation>
    </message>
    <message id="576">
        <source>Detect</source>
        <translation>Wykryj</translation>
    </message>
    <message id="577">
        <source>Device Setting</source>
        <translation>Ustawienia urządzenia</translation>
    </message>
    <message id="578">
        <source>NO.</source>
        <translation>Nr</translation>
    </message>
    <message id="579">
        <source>Camera name</source>
        <translation>Nazwa kamery</translation>
    </message>
    <message id="580">
        <source>Video Port</source>
        <translation>Port wideo</translation>
    </message>
    <message id="581">
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message id="582">
        <source>Resolution</source>
        <translation>Rozdzielczość</translation>
    </message>
    <message id="583">
        <source>PTZ</source>
        <translation>PTZ</translation>
    </message>
    <message id="584">
        <source>Audio</source>
        <translation>Dźwięk</translation>
    </message>
    <message id="585">
        <source>Edit Camera Setting</source>
        <translation>Edytuj ustawienia kamery</translation>
    </message>
    <message id="586">
        <source>Camera No</source>
        <translation>Nr kamery</translation>
    </message>
    <message id="587">
        <source>Camera IP</source>
        <translation>IP kamery</translation>
    </message>
    <message id="588">
        <source>Additional Camera Information</source>
        <translation>Dodatkowe informacje o kamerze</translation>
    </message>
    <message id="589">
        <source>Min. Bitrate</source>
        <translation>Min. przepływność</translation>
    </message>
    <message id="590">
        <source>Max. Bitrate</source>
        <translation>Maks. przepływność</translation>
    </message>
    <message id="591">
        <source>Apply</source>
        <translation>Zastosuj</translation>
    </message>
    <message id="592">
        <source>Remove</source>
        <translation>Usuń</translation>
    </message>
    <message id="593">
        <source>NVR IP can't be empty.</source>
        <translation>Adres IP NVR nie może być pusty.</translation>
    </message>
    <message id="594">
        <source>NVR Http Port can't be empty.</source>
        <translation>Port HTTP NVR nie może być pusty.</translation>
    </message>
    <message id="595">
        <source>NVR User can't be empty.</source>
        <translation>Pole użytkownika NVR nie może być puste.</translation>
    </message>
    <message id="596">
        <source>NVR Password can't be empty.</source>
        <translation>Hasło NVR nie może być puste.</translation>
    </message>
    <message id="597">
        <source>Request Time Zone ERR! Please Detect again.</source>
        <translation>Błąd odczytu strefy czasowej. Wykryj ponownie.</translation>
    </message>
    <message id="598">
        <source>Please Select Brand.</source>
        <translation>Wybierz markę.</translation>
    </message>
    <message id="599">
        <source>IP Timeout.</source>
        <translation>Przekroczono limit czasu IP.</translation>
    </message>
    <message id="600">
        <source>Quality</source>
        <translation>Jakość</translation>
    </message>
    <message id="601">
        <source>Bitrate</source>
        <translation>Przepływność</translation>
    </message>
    <message id="602">
        <source>Bitrate Mode</source>
        <translation>Tryb przepływności</translation>
    </message>
    <message id="603">
        <source>CH name can't be empty!</source>
        <translation>Nazwa kanału nie może być pusta.</translation>
    </message>
    <message id="604">
        <source>IP address can't be empty!</source>
        <translation>Adres IP nie może być pusty.</translation>
    </message>
    <message id="605">
        <source>Http Port can't be empty!</source>
        <translation>Port HTTP nie może być pusty.</translation>
    </message>
    <message id="606">
        <source>User account can't be empty!</source>
        <translation>Nazwa konta użytkownika nie może być pusta.</translation>
    </message>
    <message id="607">
        <source>Password can't be empty!</source>
        <translation>Hasło nie może być puste.</translation>
    </message>
    <message id="608">
        <source>Detection Error!</source>
        <translation>Błąd wykrywania.</translation>
    </message>
    <message id="609">
        <source>No Camera or connect failed !</source>
        <translation>Brak kamery lub połączenie nie powiodło się.</translation>
    </message>
    <message id="610">
        <source>This firmware version of NVR is not supported , please update newer Version.</source>
        <translation>Ta wersja firmware NVR nie jest obsługiwana, zaktualizuj ją do nowszej.</translation>
    </message>
    <message id="611">
        <source>If you press the button, data inside NVR will be changed!</source>
        <translation>Naciśnięcie przycisku spowoduje zmianę danych w NVR.</translation>
    </message>
    <message id="612">
        <source>Camera Search</source>
        <translation>Wyszukiwanie kamer</translation>
    </message>
    <message id="613">
        <source>Brand not Support!</source>
        <translation>Nieobsługiwana marka.</translation>
    </message>
    <message id="614">
        <source>FPS</source>
        <translation>FPS</translation>
    </message>
    <message id="615">
        <source>Video Format Error!</source>
        <translation>Błąd formatu wideo.</translation>
    </message>
    <message id="616">
        <source>Camera settings have changes, please re-detect.</source>
        <translation>Ustawienia kamery zostały zmienione, wykryj ponownie.</translation>
    </message>
    <message id="617">
        <source>Add Camera Fail!</source>
        <translation>Dodanie kamery nie powiodło się.</translation>
    </message>
    <message id="618">
        <source>DIS Setting</source>
        <translation>Ustawienia DIS</translation>
    </message>
    <message id="619">
        <source>Device not supported!</source>
        <translation>Nieobsługiwane urządzenie.</translation>
    </message>
    <message id="620">
        <source>This account is already set!</source>
        <translation>To konto już istnieje.</translation>
    </message>
    <message id="621">
        <source>Do you want to continue edit preset point?</source>
        <translation>Czy kontynuować edycję presetu?</translation>
    </message>
    <message id="630">
        <source>Group Name</source>
        <translation>Nazwa grupy</translation>
    </message>
    <message id="631">
        <source>Power Level</source>
        <translation>Poziom uprawnień</translation>
    </message>
    <message id="632">
        <source>Function Permission</source>
        <translation>Uprawnienia do funkcji</translation>
    </message>
    <message id="633">
        <source>Playback</source>
        <translation>Odtwarzanie</translation>
    </message>
    <message id="634">
        <source>PTZ Control</source>
        <translation>Sterowanie PTZ</translation>
    </message>
    <message id="635">
        <source>System Setup</source>
        <translation>Konfiguracja systemu</translation>
    </message>
    <message id="636">
        <source>Group Setting</source>
        <translation>Ustawienia grupy</translation>
    </message>
    <message id="640">
        <source>File Size can't more than 10MB</source>
        <translation>Rozmiar pliku nie może przekraczać 10 MB.</translation>
    </message>
    <message id="641">
        <source>EMap Setting</source>
        <translation>Ustawienia e-mapy</translation>
    </message>
    <message id="642">
        <source>*Double Click Windows to change Map images.</source>
        <translation>*Kliknij okno dwukrotnie, aby zmienić obraz mapy.</translation>
    </message>
    <message id="643">
        <source>Select an image file</source>
        <translation>Wybierz plik obrazu</translation>
    </message>
    <message id="645">
        <source>User Setting</source>
        <translation>Ustawienia użytkownika</translation>
    </message>
    <message id="646">
        <source>Photo</source>
        <translation>Zdjęcie</translation>
    </message>
    <message id="647">
        <source>(Dubble Click to Setting)</source>
        <translation>(Kliknij dwukrotnie, aby ustawić)</translation>
    </message>
    <message id="648">
        <source>Check</source>
        <translation>Sprawdź</translation>
    </message>
    <message id="649">
        <source>*User Name</source>
        <translation>*Nazwa użytkownika</translation>
    </message>
    <message id="650">
        <source>*Password Confirm</source>
        <translation>*Potwierdź hasło</translation>
    </message>
    <message id="651">
        <source>*:Necessary</source>
        <translation>*: wymagane</translation>
    </message>
    <message id="652">
        <source>This name not yet use</source>
        <translation>Ta nazwa nie jest jeszcze używana.</translation>
    </message>
    <message id="653">
        <source>This name in use</source>
        <translation>Ta nazwa jest już używana.</translation>
    </message>
    <message id="660">
        <source>User&amp;Password</source>
        <translation>Użytkownik i hasło</translation>
    </message>
    <message id="661">
        <source>User or Password is not input!</source>
        <translation>Nie wprowadzono użytkownika lub hasła.</translation>
    </message>
    <message id="671">
        <source>DIS Service Setting</source>
        <translation>Ustawienia usługi DIS</translation>
    </message>
    <message id="672">
        <source>Account List</source>
        <translation>Lista kont</translation>
    </message>
    <message id="673">
        <source>Do you want to remove this user?</source>
        <translation>Czy usunąć tego użytkownika?</translation>
    </message>
    <message id="674">
        <source>The account has reached the upper limit, for add new account you need to remove another account.</source>
        <translation>Osiągnięto limit liczby kont. Aby dodać nowe konto, usuń inne.</translation>
    </message>
    <message id="675">
        <source>Object Loss</source>
        <translation>Zniknięcie obiektu</translation>
    </message>
    <message id="676">
        <source>Tripwire</source>
        <translation>Przekroczenie linii</translation>
    </message>
    <message id="677">
        <source>Threat</source>
        <translation>Sabotaż</translation>
    </message>
    <message id="678">
        <source>Enable</source>
        <translation>Włącz</translation>
    </message>
    <message id="679">
        <source>Intelligent Setting</source>
        <translation>Ustawienia analityki wideo</translation>
    </message>
    <message id="680">
        <source>Intelligent detection List</source>
        <translation>Lista analityki wideo</translation>
    </message>
    <message id="681">
        <source>Object Loss Reset</source>
        <translation>Zniknięcie obiektu – koniec</translation>
    </message>
    <message id="682">
        <source>Threat Detection Reset</source>
        <translation>Detekcja sabotażu – koniec</translation>
    </message>
    <message id="683">
        <source>Image Enhance</source>
        <translation>Poprawa obrazu</translation>
    </message>
    <message id="684">
        <source>Port number can't accept more then 32767.</source>
        <translation>Numer portu nie może przekraczać 32767.</translation>
    </message>
    <message id="685">
        <source>Keep Ratio</source>
        <translation>Zachowaj proporcje</translation>
    </message>
    <message id="686">
        <source>Intelligent Detection</source>
        <translation>Analityka wideo</translation>
    </message>
    <message id="687">
        <source>OSD Size</source>
        <translation>Rozmiar OSD</translation>
    </message>
    <message id="688">
        <source>OSD Color</source>
        <translation>Kolor OSD</translation>
    </message>
    <message id="689">
        <source>Small</source>
        <translation>Mały</translation>
    </message>
    <message id="690">
        <source>Middle</source>
        <translation>Średni</translation>
    </message>
    <message id="691">
        <source>Large</source>
        <translation>Duży</translation>
    </message>
    <message id="692">
        <source>FullScreen Initial</source>
        <translation>Pełny ekran przy starcie</translation>
    </message>
    <message id="693">
        <source>Startup Screen Layout</source>
        <translation>Układ ekranów przy uruchamianiu</translation>
    </message>
    <message id="694">
        <source>Leave to save the screen layout.</source>
        <translation>Układ ekranów zostanie zapisany po opuszczeniu strony.</translation>
    </message>
    <message id="695">
        <source>Function default start</source>
        <translation>Domyślne uruchamianie funkcji</translation>
    </message>
    <message id="696">
        <source>Function assign</source>
        <translation>Przypisanie funkcji</translation>
    </message>
    <message id="697">
        <source>Pattern setting</source>
        <translation>Ustawienia szablonu</translation>
    </message>
    <message id="698">
        <source>Name can't be empty.</source>
        <translation>Nazwa nie może być pusta.</translation>
    </message>
    <message id="699">
        <source>Object Counting</source>
        <translation>Zliczanie obiektów</translation>
    </message>
    <message id="700">
        <source>Foreign Object</source>
        <translation>Pozostawiony obiekt</translation>
    </message>
    <message id="701">
        <source>Foreign Object Reset </source>
        <translation>Pozostawiony obiekt – koniec </translation>
    </message>
    <message id="702">
        <source>Manual Recording</source>
        <translation>Nagrywanie ręczne</translation>
    </message>
    <message id="703">
        <source>Device settings have changes, please re-detect.</source>
        <translation>Ustawienia urządzenia zostały zmienione, wykryj ponownie.</translation>
    </message>
    <message id="704">
        <source>English and Digit Only</source>
        <translation>Tylko litery łacińskie i cyfry</translation>
    </message>
    <message id="705">
        <source>Emap Group Assign</source>
        <translation>Przypisanie grup e-map</translation>
    </message>
    <message id="706">
        <source>Emap Group </source>
        <translation>Grupa e-map </translation>
    </message>
    <message id="707">
        <source>Member:</source>
        <translation>Elementy:</translation>
    </message>
    <message id="708">
        <source>Emap Position Assign</source>
        <translation>Przypisanie pozycji na e-mapie</translation>
    </message>
    <message id="709">
        <source>Parent</source>
        <translation>Nadrzędna</translation>
    </message>
    <message id="710">
        <source>Group Type </source>
        <translation>Typ grupy </translation>
    </message>
    <message id="711">
        <source>Auto Switch</source>
        <translation>Autoprzełączanie</translation>
    </message>
    <message id="712">
        <source>Double-click back to previous group</source>
        <translation>Kliknij dwukrotnie, aby wrócić do poprzedniej grupy</translation>
    </message>
    <message id="713">
        <source>Drag and Drop to Move</source>
        <translation>Przeciągnij, aby przenieść</translation>
    </message>
    <message id="714">
        <source>Do you want to delete the selected Emap Group?</source>
        <translation>Czy usunąć wybraną grupę e-map?</translation>
    </message>
    <message id="715">
        <source>The amount of device will be over default value!</source>
        <translation>Zostanie przekroczona dopuszczalna liczba urządzeń.</translation>
    </message>
    <message id="716">
        <source>The amount of total channels will be over default value!</source>
        <translation>Zostanie przekroczona dopuszczalna łączna liczba kanałów.</translation>
    </message>
    <message id="717">
        <source>Channel selection</source>
        <translation>Wybór kanałów</translation>
    </message>
    <message id="718">
        <source>Get device capability error!</source>
        <translation>Błąd pobierania możliwości urządzenia.</translation>
    </message>
    <message id="719">
        <source>This device does not has any channel.</source>
        <translation>To urządzenie nie ma żadnych kanałów.</translation>
    </message>
    <message id="720">
        <source>Please add channels  or  re-select the other device.</source>
        <translation>Dodaj kanały lub wybierz inne urządzenie.</translation>
    </message>
    <message id="721">
        <source>This device does not has any channel,Do you want to remove the device?</source>
        <translation>To urządzenie nie ma żadnych kanałów. Czy usunąć urządzenie?</translation>
    </message>
    <message id="722">
        <source>Setting fail!</source>
        <translation>Ustawienie nie powiodło się.</translation>
    </message>
    <message id="723">
        <source>Do you want to stop SEQ mode?</source>
        <translation>Czy zatrzymać tryb sekwencji?</translation>
    </message>
    <message id="725">
        <source>Type </source>
        <translation>Typ </translation>
    </message>
    <message id="726">
        <source>No change!</source>
        <translation>Brak zmian.</translation>
    </message>
    <message id="727">
        <source>Face Counting</source>
        <translation>Zliczanie twarzy</translation>
    </message>
    <message id="728">
        <source>Unknown</source>
        <translation>Nieznane</translation>
    </message>
    <message id="729">
        <source>Event Export</source>
        <translation>Eksport zdarzeń</translation>
    </message>
    <message id="730">
        <source>System Log Export</source>
        <translation>Eksport dziennika systemowego</translation>
    </message>
    <message id="731">
        <source>System Log</source>
        <translation>Dziennik systemowy</translation>
    </message>
    <message id="732">
        <source>NVR Select</source>
        <translation>Wybór NVR</translation>
    </message>
    <message id="733">
        <source>Condition</source>
        <translation>Warunek</translation>
    </message>
    <message id="734">
        <source>Time Range:</source>
        <translation>Zakres czasu:</translation>
    </message>
    <message id="735">
        <source>Start Time:</source>
        <translation>Czas początkowy:</translation>
    </message>
    <message id="736">
        <source>End Time:</source>
        <translation>Czas końcowy:</translation>
    </message>
    <message id="737">
        <source>Event Type:</source>
        <translation>Typ zdarzenia:</translation>
    </message>
    <message id="738">
        <source>User:</source>
        <translation>Użytkownik:</translation>
    </message>
    <message id="739">
        <source>Export Format:</source>
        <translation>Format eksportu:</translation>
    </message>
    <message id="740">
        <source>Export</source>
        <translation>Eksport</translation>
    </message>
    <message id="741">
        <source>You must select a path to export!</source>
        <translation>Wybierz ścieżkę eksportu.</translation>
    </message>
    <message id="742">
        <source>Start Time must less than End time!</source>
        <translation>Czas początkowy musi być wcześniejszy niż czas końcowy.</translation>
    </message>
    <message id="743">
        <source>No Event!</source>
        <translation>Brak zdarzeń.</translation>
    </message>
    <message id="744">
        <source>No System Log!</source>
        <translation>Brak wpisów w dzienniku systemowym.</translation>
    </message>
    <message id="745">
        <source>CSV Export finish!</source>
        <translation>Eksport CSV zakończony.</translation>
    </message>
    <message id="746">
        <source>MDB Export finish!</source>
        <translation>Eksport MDB zakończony.</translation>
    </message>
    <message id="747">
        <source>Custom</source>
        <translation>Niestandardowe</translation>
    </message>
    <message id="748">
        <source>NVR Overview</source>
        <translation>Przegląd NVR</translation>
    </message>
    <message id="749">
        <source>Video Wall Console</source>
        <translation>Konsola ściany wideo</translation>
    </message>
    <message id="750">
        <source>Lock Screen </source>
        <translation>Zablokuj ekran </translation>
    </message>
    <message id="751">
        <source>Unlock Screen</source>
        <translation>Odblokuj ekran</translation>
    </message>
    <message id="752">
        <source>Video Wall</source>
        <translation>Ściana wideo</translation>
    </message>
    <message id="753">
        <source>Pattern List</source>
        <translation>Lista szablonów</translation>
    </message>
    <message id="754">
        <source>SEQ List</source>
        <translation>Lista sekwencji</translation>
    </message>
    <message id="755">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="756">
        <source>SEQ content setting</source>
        <translation>Ustawienia zawartości sekwencji</translation>
    </message>
    <message id="757">
        <source>Max Channel</source>
        <translation>Maks. kanałów</translation>
    </message>
    <message id="758">
        <source>Video server</source>
        <translation>Serwer wideo</translation>
    </message>
    <message id="759">
        <source>Support</source>
        <translation>Obsługa</translation>
    </message>
    <message id="760">
        <source>Original View</source>
        <translation>Widok oryginalny</translation>
    </message>
    <message id="761">
        <source>Broad View</source>
        <translation>Widok szeroki</translation>
    </message>
    <message id="762">
        <source>Quad View</source>
        <translation>Widok poczwórny</translation>
    </message>
    <message id="763">
        <source>Quad and Source View</source>
        <translation>Widok poczwórny i źródłowy</translation>
    </message>
    <message id="764">
        <source>Double View</source>
        <translation>Widok podwójny</translation>
    </message>
    <message id="765">
        <source>Triple View</source>
        <translation>Widok potrójny</translation>
    </message>
    <message id="766">
        <source>Digital PTZ</source>
        <translation>Cyfrowe PTZ</translation>
    </message>
    <message id="767">
        <source>Lens</source>
        <translation>Obiektyw</translation>
    </message>
    <message id="768">
        <source>It could not be opened, the insufficient number of available screens!</source>
        <translation>Nie można otworzyć, za mało dostępnych ekranów.</translation>
    </message>
    <message id="769">
        <source>It could not be opened, The Video Wall is not enabled! </source>
        <translation>Nie można otworzyć, ściana wideo nie jest włączona. </translation>
    </message>
    <message id="770">
        <source>The quantity of screen is not enough! Not support!</source>
        <translation>Za mało ekranów. Nieobsługiwane.</translation>
    </message>
    <message id="772">
        <source>Settings have changed , Please re-open MainViewer!</source>
        <translation>Ustawienia zostały zmienione. Otwórz ponownie podgląd główny.</translation>
    </message>
    <message id="773">
        <source>Preview</source>
        <translation>Podgląd</translation>
    </message>
    <message id="774">
        <source>Update system log with below defined condition</source>
        <translation>Odśwież dziennik systemowy według poniższych warunków</translation>
    </message>
    <message id="775">
        <source>Transform recording index</source>
        <translation>Przekształć indeks nagrań</translation>
    </message>
    <message id="776">
        <source>Event Image Sync Setting</source>
        <translation>Ustawienia synchr. obrazów zdarzeń</translation>
    </message>
    <message id="777">
        <source>Event snapshot storage space is not enough!</source>
        <translation>Za mało miejsca na migawki zdarzeń.</translation>
    </message>
    <message id="779">
        <source>Intelligent Mode</source>
        <translation>Tryb analityki wideo</translation>
    </message>
    <message id="780">
        <source>Add Intelligent Setting</source>
        <translation>Dodaj ustawienie analityki wideo</translation>
    </message>
    <message id="781">
        <source>Camera Event</source>
        <translation>Zdarzenie kamery</translation>
    </message>
    <message id="782">
        <source>ROI Setting</source>
        <translation>Ustawienia ROI</translation>
    </message>
    <message id="783">
        <source>Trigger Mode</source>
        <translation>Tryb wyzwalania</translation>
    </message>
    <message id="784">
        <source>Channel Privilege</source>
        <translation>Uprawnienia kanałów</translation>
    </message>
    <message id="785">
        <source>Group Overview</source>
        <translation>Przegląd grup</translation>
    </message>
    <message id="786">
        <source>User Overview</source>
        <translation>Przegląd użytkowników</translation>
    </message>
    <message id="787">
        <source>Event Server</source>
        <translation>Serwer zdarzeń</translation>
    </message>
    <message id="788">
        <source>Trigger By</source>
        <translation>Wyzwalane przez</translation>
    </message>
    <message id="789">
        <source>Configuration Modify</source>
        <translation>Zmiana konfiguracji</translation>
    </message>
    <message id="790">
        <source>Intelligent Event Trigger</source>
        <translation>Wyzwalanie zdarzeniem analityki wideo</translation>
    </message>
    <message id="791">
        <source>NVR Event Trigger</source>
        <translation>Wyzwalanie zdarzeniem NVR</translation>
    </message>
    <message id="792">
        <source>Trigger Action</source>
        <translation>Akcja wyzwalana</translation>
    </message>
    <message id="793">
        <source>Addresses: (Use ',' to separate e-mails)</source>
        <translation>Adresy: (adresy e-mail oddziel znakiem „,”)</translation>
    </message>
    <message id="794">
        <source>Content</source>
        <translation>Treść</translation>
    </message>
    <message id="795">
        <source>Video Wall Layout</source>
        <translation>Układ ściany wideo</translation>
    </message>
    <message id="796">
        <source>No Enough screen can be set!</source>
        <translation>Za mało ekranów do ustawienia.</translation>
    </message>
    <message id="797">
        <source>SVD Management</source>
        <translation>Zarządzanie SVD</translation>
    </message>
    <message id="798">
        <source>SVD Detail Setting</source>
        <translation>Ustawienia szczegółowe SVD</translation>
    </message>
    <message id="799">
        <source>SVD Layout</source>
        <translation>Układ SVD</translation>
    </message>
    <message id="800">
        <source>SVD ID:</source>
        <translation>ID SVD:</translation>
    </message>
    <message id="801">
        <source>SVD Name:</source>
        <translation>Nazwa SVD:</translation>
    </message>
    <message id="802">
        <source>Display</source>
        <translation>Wyświetlacz</translation>
    </message>
    <message id="803">
        <source>Resolution</source>
        <translation>Rozdzielczość</translation>
    </message>
    <message id="804">
        <source>Priority</source>
        <translation>Priorytet</translation>
    </message>
    <message id="805">
        <source>Default Split</source>
        <translation>Domyślny podział</translation>
    </message>
    <message id="806">
        <source>Default Channel List</source>
        <translation>Domyślna lista kanałów</translation>
    </message>
    <message id="807">
        <source>Live Stream</source>
        <translation>Strumień na żywo</translation>
    </message>
    <message id="808">
        <source>Dynamic Streaming</source>
        <translation>Strumień dynamiczny</translation>
    </message>
    <message id="809">
        <source>Screen Default Layout</source>
        <translation>Domyślny układ ekranu</translation>
    </message>
    <message id="810">
        <source>Channel list</source>
        <translation>Lista kanałów</translation>
    </message>
    <message id="811">
        <source>Begin</source>
        <translation>Początek</translation>
    </message>
    <message id="812">
        <source>Previous</source>
        <translation>Wstecz</translation>
    </message>
    <message id="813">
        <source>System Log Viewer</source>
        <translation>Przeglądarka dziennika systemowego</translation>
    </message>
    <message id="814">
        <source>Management </source>
        <translation>Zarządzanie </translation>
    </message>
    <message id="815">
        <source>Viewer</source>
        <translation>Podgląd</translation>
    </message>
    <message id="816">
        <source>Add New SVD</source>
        <translation>Dodaj nowy SVD</translation>
    </message>
    <message id="817">
        <source>Primary</source>
        <translation>Główny</translation>
    </message>
    <message id="818">
        <source>Secondary</source>
        <translation>Pomocniczy</translation>
    </message>
    <message id="819">
        <source>Available</source>
        <translation>Dostępny</translation>
    </message>
    <message id="820">
        <source>Not Available</source>
        <translation>Niedostępny</translation>
    </message>
    <message id="821">
        <source>Invalid E-mail Address!</source>
        <translation>Nieprawidłowy adres e-mail.</translation>
    </message>
    <message id="822">
        <source>Invalid Value!</source>
        <translation>Nieprawidłowa wartość.</translation>
    </message>
    <message id="823">
        <source>Can't add repeatedly!</source>
        <translation>Nie można dodać ponownie.</translation>
    </message>
    <message id="824">
        <source>Can't add SVD anymore!</source>
        <translation>Nie można dodać więcej SVD.</translation>
    </message>
    <message id="826">
        <source>Do you want to remove this SVD?</source>
        <translation>Czy usunąć ten SVD?</translation>
    </message>
    <message id="827">
        <source>Disable this Video Wall?</source>
        <translation>Czy wyłączyć tę ścianę wideo?</translation>
    </message>
    <message id="828">
        <source>Export finish!</source>
        <translation>Eksport zakończony.</translation>
    </message>
    <message id="829">
        <source>Brand:</source>
        <translation>Marka:</translation>
    </message>
    <message id="830">
        <source>Password Mask</source>
        <translation>Maskowanie hasła</translation>
    </message>
    <message id="831">
        <source>NVR Account setting</source>
        <translation>Ustawienia konta NVR</translation>
    </message>
    <message id="832">
        <source>No any NVR has been selected.</source>
        <translation>Nie wybrano żadnego NVR.</translation>
    </message>
    <message id="833">
        <source>Detect successful!</source>
        <translation>Wykrywanie zakończone pomyślnie.</translation>
    </message>
    <message id="834">
        <source>Failed configuring camera detection on channel:</source>
        <translation>Błąd konfiguracji detekcji kamery na kanale:</translation>
    </message>
    <message id="835">
        <source>Trigger action has done.</source>
        <translation>Wykonano akcję wyzwalaną.</translation>
    </message>
    <message id="836">
        <source>Event server has not set.</source>
        <translation>Nie ustawiono serwera zdarzeń.</translation>
    </message>
    <message id="837">
        <source>Privilege Setting</source>
        <translation>Ustawienia uprawnień</translation>
    </message>
    <message id="838">
        <source>NVR Privilege Setting</source>
        <translation>Ustawienia uprawnień NVR</translation>
    </message>
    <message id="839">
        <source>SVD Console</source>
        <translation>Konsola SVD</translation>
    </message>
    <message id="840">
        <source>SVD Search List</source>
        <translation>Lista znalezionych SVD</translation>
    </message>
    <message id="841">
        <source>No Monitor connect!</source>
        <translation>Nie podłączono monitora.</translation>
    </message>
    <message id="842">
        <source>Do you want to remove this intelligent setting?</source>
        <translation>Czy usunąć to ustawienie analityki wideo?</translation>
    </message>
    <message id="843">
        <source>Event snapshot doesn't work!</source>
        <translation>Migawki zdarzeń nie działają.</translation>
    </message>
    <message id="850">
        <source>System</source>
        <translation>System</translation>
    </message>
    <message id="851">
        <source>Intelligent</source>
        <translation>Analityka wideo</translation>
    </message>
    <message id="852">
        <source>User and group</source>
        <translation>Użytkownicy i grupy</translation>
    </message>
    <message id="853">
        <source>Event handling</source>
        <translation>Obsługa zdarzeń</translation>
    </message>
    <message id="854">
        <source>Event server</source>
        <translation>Serwer zdarzeń</translation>
    </message>
    <message id="855">
        <source>E-Map</source>
        <translation>E-mapa</translation>
    </message>
    <message id="856">
        <source>Screen layout</source>
        <translation>Układ ekranów</translation>
    </message>
    <message id="857">
        <source>Startup</source>
        <translation>Uruchamianie</translation>
    </message>
    <message id="858">
        <source>Tooling</source>
        <translation>Narzędzia</translation>
    </message>
    <message id="859">
        <source>This page is not available in this version.</source>
        <translation>Ta strona nie jest dostępna w tej wersji.</translation>
    </message>
    <message id="860">
        <source>Its data in the database stays as it is.</source>
        <translation>Dane zapisane dla niej w bazie pozostają bez zmian.</translation>
    </message>
    <message id="861">
        <source>No recorder yet</source>
        <translation>Brak rejestratorów</translation>
    </message>
    <message id="862">
        <source>Enter the address of the station's first recorder to add it.</source>
        <translation>Wpisz adres pierwszego rejestratora stacji, aby go dodać.</translation>
    </message>
    <message id="863">
        <source>Filter name, address, model…</source>
        <translation>Filtruj: nazwa, adres, model…</translation>
    </message>
    <message id="864">
        <source>Recorders of this station</source>
        <translation>Rejestratory tej stacji</translation>
    </message>
    <message id="865">
        <source>Recorders: %1 of %2</source>
        <translation>Rejestratory: %1 z %2</translation>
    </message>
    <message id="866">
        <source>Channels: %1 of %2</source>
        <translation>Kanały: %1 z %2</translation>
    </message>
    <message id="867">
        <source>No recorder matches the filter.</source>
        <translation>Żaden rejestrator nie pasuje do filtra.</translation>
    </message>
    <message id="868">
        <source>Unsaved changes</source>
        <translation>Niezapisane zmiany</translation>
    </message>
    <message id="870">
        <source>Switch to dark colours</source>
        <translation>Przełącz na ciemny motyw</translation>
    </message>
    <message id="871">
        <source>Switch to light colours</source>
        <translation>Przełącz na jasny motyw</translation>
    </message>
    <message id="872">
        <source>Waiting</source>
        <translation>Oczekiwanie</translation>
    </message>
    <message id="873">
        <source>Finish</source>
        <translation>Zakończ</translation>
    </message>
    <message id="874">
        <source>Done: %1 of %2</source>
        <translation>Gotowe: %1 z %2</translation>
    </message>
    <message id="875">
        <source>Choose</source>
        <translation>Wybierz</translation>
    </message>
    <message id="876">
        <source>Edit</source>
        <translation>Edytuj</translation>
    </message>
    <message id="877">
        <source>Delete</source>
        <translation>Usuń</translation>
    </message>
    <message id="878">
        <source>Yes</source>
        <translation>Tak</translation>
    </message>
    <message id="879">
        <source>No</source>
        <translation>Nie</translation>
    </message>
    <message id="880">
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
    <message id="881">
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message id="882">
        <source>Pages</source>
        <translation>Strony</translation>
    </message>
    <message id="884">
        <source>Enter the address of one recorder.</source>
        <translation>Wpisz adres jednego rejestratora.</translation>
    </message>
    <message id="885">
        <source>Leave both empty to try the known device accounts.</source>
        <translation>Pozostaw oba pola puste, aby wypróbować znane konta urządzeń.</translation>
    </message>
    <message id="886">
        <source>About this installation</source>
        <translation>Informacje o tej instalacji</translation>
    </message>
    <message id="887">
        <source>Show password</source>
        <translation>Pokaż hasło</translation>
    </message>
    <message id="888">
        <source>Searching…</source>
        <translation>Wyszukiwanie…</translation>
    </message>
    <message id="890">
        <source>Name and behaviour of this station</source>
        <translation>Nazwa i działanie tej stacji</translation>
    </message>
    <message id="892">
        <source>Recorder slot</source>
        <translation>Miejsce rejestratora</translation>
    </message>
    <message id="896">
        <source>Connected</source>
        <translation>Połączono</translation>
    </message>
    <message id="898">
        <source>Product:</source>
        <translation>Produkt:</translation>
    </message>
    <message id="899">
        <source>Hide password</source>
        <translation>Ukryj hasło</translation>
    </message>
    <message id="900">
        <source>Anyone who opens Rigging Desk is its administrator, because there is no user yet.</source>
        <translation>Każdy, kto otworzy Rigging Desk, jest jego administratorem, ponieważ nie utworzono jeszcze żadnego użytkownika.</translation>
    </message>
    <message id="901">
        <source>Create the first administrator</source>
        <translation>Utwórz pierwszego administratora</translation>
    </message>
    <message id="902">
        <source>Not now</source>
        <translation>Nie teraz</translation>
    </message>
    <message id="903">
        <source>No user yet</source>
        <translation>Brak użytkowników</translation>
    </message>
    <message id="904">
        <source>Accessible cameras</source>
        <translation>Dostępne kamery</translation>
    </message>
    <message id="905">
        <source>Who has access</source>
        <translation>Kto ma dostęp</translation>
    </message>
    <message id="906">
        <source>Filter channels…</source>
        <translation>Filtruj kanały…</translation>
    </message>
    <message id="907">
        <source>Whole recorder</source>
        <translation>Cały rejestrator</translation>
    </message>
    <message id="908">
        <source>Live</source>
        <translation>Na żywo</translation>
    </message>
    <message id="909">
        <source>Live Monitor of all channels</source>
        <translation>Podgląd na żywo wszystkich kanałów</translation>
    </message>
    <message id="910">
        <source>Grant</source>
        <translation>Przyznaj uprawnienie</translation>
    </message>
    <message id="911">
        <source>Withdraw</source>
        <translation>Cofnij uprawnienie</translation>
    </message>
    <message id="912">
        <source>The other rights need Live. Space switches the selected cells; Shift+Space selects a row, Ctrl+Space a column.</source>
        <translation>Pozostałe uprawnienia wymagają uprawnienia „Na żywo”. Spacja przełącza zaznaczone komórki; Shift+Spacja zaznacza wiersz, Ctrl+Spacja kolumnę.</translation>
    </message>
    <message id="913">
        <source>Administrators have every right on every channel.</source>
        <translation>Administratorzy mają wszystkie uprawnienia do wszystkich kanałów.</translation>
    </message>
    <message id="930">
        <source>Filter the rows found…</source>
        <translation>Filtruj znalezione wiersze…</translation>
    </message>
    <message id="931">
        <source>No row matches the filter.</source>
        <translation>Żaden wiersz nie pasuje do filtra.</translation>
    </message>
    <message id="932">
        <source>Rows found: %1</source>
        <translation>Znalezione wiersze: %1</translation>
    </message>
    <message id="933">
        <source>The log could not be read</source>
        <translation>Nie można odczytać dziennika</translation>
    </message>
    <message id="934">
        <source>Copy rows</source>
        <translation>Kopiuj wiersze</translation>
    </message>
    <message id="935">
        <source>Open folder</source>
        <translation>Otwórz folder</translation>
    </message>
    <message id="936">
        <source>Event export is not part of this version.</source>
        <translation>Eksport zdarzeń nie wchodzi w skład tej wersji.</translation>
    </message>
    <message id="937">
        <source>Choose a period and search.</source>
        <translation>Wybierz okres i rozpocznij wyszukiwanie.</translation>
    </message>
    <message id="938">
        <source>The export failed. Existing files were not changed.</source>
        <translation>Eksport nie powiódł się. Istniejące pliki nie zostały zmienione.</translation>
    </message>
    <message id="939">
        <source>First page</source>
        <translation>Pierwsza strona</translation>
    </message>
    <message id="940">
        <source>Previous page</source>
        <translation>Poprzednia strona</translation>
    </message>
    <message id="941">
        <source>Next page</source>
        <translation>Następna strona</translation>
    </message>
    <message id="942">
        <source>Last page</source>
        <translation>Ostatnia strona</translation>
    </message>
    <message id="943">
        <source>Refresh</source>
        <translation>Odśwież</translation>
    </message>
    <message id="945">
        <source>Log in</source>
        <translation>Logowanie</translation>
    </message>
    <message id="946">
        <source>The reason is in the log files.</source>
        <translation>Przyczynę podano w plikach dziennika.</translation>
    </message>
    <message id="950">
        <source>Find recorders on the network.</source>
        <translation>Wyszukaj rejestratory w sieci.</translation>
    </message>
    <message id="951">
        <source>Stop</source>
        <translation>Zatrzymaj</translation>
    </message>
    <message id="952">
        <source>Select all</source>
        <translation>Zaznacz wszystko</translation>
    </message>
    <message id="953">
        <source>Filter the devices found</source>
        <translation>Filtruj znalezione urządzenia</translation>
    </message>
    <message id="954">
        <source>No device has answered.</source>
        <translation>Żadne urządzenie nie odpowiedziało.</translation>
    </message>
    <message id="955">
        <source>Recorders with those selected: %1 of %2</source>
        <translation>Rejestratory łącznie z wybranymi: %1 z %2</translation>
    </message>
    <message id="956">
        <source>Connection</source>
        <translation>Połączenie</translation>
    </message>
    <message id="957">
        <source>Checking…</source>
        <translation>Sprawdzanie…</translation>
    </message>
    <message id="958">
        <source>Login refused</source>
        <translation>Odmowa logowania</translation>
    </message>
    <message id="959">
        <source>No answer</source>
        <translation>Brak odpowiedzi</translation>
    </message>
    <message id="960">
        <source>Host name not found</source>
        <translation>Nie znaleziono nazwy hosta</translation>
    </message>
    <message id="961">
        <source>Connection refused</source>
        <translation>Odmowa połączenia</translation>
    </message>
    <message id="962">
        <source>Unexpected answer</source>
        <translation>Nieoczekiwana odpowiedź</translation>
    </message>
    <message id="963">
        <source>Stopped</source>
        <translation>Zatrzymano</translation>
    </message>
    <message id="965">
        <source>Notice</source>
        <translation>Uwaga</translation>
    </message>
    <message id="966">
        <source>No camera</source>
        <translation>Brak kamery</translation>
    </message>
    <message id="967">
        <source>Changed in the recorder</source>
        <translation>Zmieniono w rejestratorze</translation>
    </message>
    <message id="968">
        <source>Detected</source>
        <translation>Wykryto</translation>
    </message>
    <message id="969">
        <source>Unchanged</source>
        <translation>Bez zmian</translation>
    </message>
    <message id="970">
        <source>Remove the camera of channel %1 from the recorder?</source>
        <translation>Czy usunąć kamerę kanału %1 z rejestratora?</translation>
    </message>
    <message id="971">
        <source>Filter the cameras found</source>
        <translation>Filtruj znalezione kamery</translation>
    </message>
    <message id="972">
        <source>No camera was found.</source>
        <translation>Nie znaleziono żadnej kamery.</translation>
    </message>
    <message id="973">
        <source>The recorder sees no camera on its network. Search again, or enter an address.</source>
        <translation>Rejestrator nie widzi w swojej sieci żadnej kamery. Wyszukaj ponownie lub wpisz adres.</translation>
    </message>
    <message id="974">
        <source>Cameras found: %1</source>
        <translation>Znalezione kamery: %1</translation>
    </message>
    <message id="975">
        <source>Asking the camera…</source>
        <translation>Odpytywanie kamery…</translation>
    </message>
    <message id="976">
        <source>Writing to the recorder…</source>
        <translation>Zapisywanie w rejestratorze…</translation>
    </message>
    <message id="977">
        <source>Video source</source>
        <translation>Źródło wideo</translation>
    </message>
    <message id="978">
        <source>Detect the camera to see its video settings.</source>
        <translation>Wykryj kamerę, aby zobaczyć jej ustawienia wideo.</translation>
    </message>
    <message id="979">
        <source>Fish-eye view</source>
        <translation>Widok „rybie oko”</translation>
    </message>
    <message id="980">
        <source>The camera name must not contain a double quote (").</source>
        <translation>Nazwa kamery nie może zawierać cudzysłowu (").</translation>
    </message>
    <message id="981">
        <source>The configuration database cannot be opened: another program holds it, or it cannot be read. Nothing has been changed. Try again?</source>
        <translation>Nie można otworzyć bazy danych konfiguracji: używa jej inny program albo nie da się jej odczytać. Niczego nie zmieniono. Czy spróbować ponownie?</translation>
    </message>
    <message id="982">
        <source>The users could not be read from the database, so nobody can log in. Close the program that holds the database and start again. The reason is in the log files.</source>
        <translation>Nie udało się odczytać użytkowników z bazy danych, więc nikt nie może się zalogować. Zamknij program, który używa bazy, i uruchom ponownie. Przyczynę podano w plikach dziennika.</translation>
    </message>
    <message id="983">
        <source>These tables of the database could not be read: %1. They stay as they are. The reason is in the log files.</source>
        <translation>Nie udało się odczytać tych tabel bazy danych: %1. Pozostaną bez zmian. Przyczynę podano w plikach dziennika.</translation>
    </message>
    <message id="995">
        <source>Export</source>
        <translation>Eksportuj</translation>
    </message>
    <message id="1000">
        <source>Keys</source>
        <translation>Klawisze</translation>
    </message>
    <message id="1001">
        <source>Show the keys</source>
        <translation>Pokaż klawisze</translation>
    </message>
    <message id="1002">
        <source>Rename or edit the selected entry</source>
        <translation>Zmień nazwę lub edytuj wybraną pozycję</translation>
    </message>
    <message id="1003">
        <source>Read the page again</source>
        <translation>Odczytaj stronę ponownie</translation>
    </message>
    <message id="1004">
        <source>Filter the list</source>
        <translation>Filtruj listę</translation>
    </message>
    <message id="1005">
        <source>Go to a page</source>
        <translation>Przejdź do strony</translation>
    </message>
    <message id="1006">
        <source>Press the button or open the selected entry</source>
        <translation>Naciśnij przycisk lub otwórz wybraną pozycję</translation>
    </message>
    <message id="1007">
        <source>Remove the selected entry</source>
        <translation>Usuń wybraną pozycję</translation>
    </message>
    <message id="1008">
        <source>Cancel or close</source>
        <translation>Anuluj lub zamknij</translation>
    </message>
    <message id="1030">
        <source>Added: %1 of %2</source>
        <translation>Dodano: %1 z %2</translation>
    </message>
    <message id="1031">
        <source>Added: %1 of %2, failed: %3</source>
        <translation>Dodano: %1 z %2, niepowodzenia: %3</translation>
    </message>
    <message id="1032">
        <source>Recorders that were not added can be tried again with another login.</source>
        <translation>Rejestratory, których nie dodano, można wypróbować ponownie z innymi danymi logowania.</translation>
    </message>
    <message id="1033">
        <source>Try again</source>
        <translation>Spróbuj ponownie</translation>
    </message>
    <message id="1034">
        <source>Login</source>
        <translation>Logowanie</translation>
    </message>
    <message id="1035">
        <source>Added but not saved yet: %1.
Do you want to save?</source>
        <translation>Dodano, ale jeszcze nie zapisano: %1.
Czy zapisać?</translation>
    </message>
    <message id="1036">
        <source>No recorder has been added yet. Close and lose what you entered?</source>
        <translation>Nie dodano jeszcze żadnego rejestratora. Czy zamknąć i utracić wpisane dane?</translation>
    </message>
    <message id="1037">
        <source>More than one recorder would have this name: %1.
Do you want to use it anyway?</source>
        <translation>Więcej niż jeden rejestrator miałby tę nazwę: %1.
Czy mimo to jej użyć?</translation>
    </message>
    <message id="1080">
        <source>A stored password is not shown. Typing replaces it.</source>
        <translation>Zapisane hasło nie jest pokazywane. Wpisanie tekstu je zastąpi.</translation>
    </message>
    <message id="1081">
        <source>Choose a group</source>
        <translation>Wybierz grupę</translation>
    </message>
    <message id="1082">
        <source>No account yet</source>
        <translation>Nie ma jeszcze konta</translation>
    </message>
    <message id="1083">
        <source>These accounts are tried on recorders whose login is not known.</source>
        <translation>Te konta są próbowane na rejestratorach, których logowanie nie jest znane.</translation>
    </message>
    <message id="1084">
        <source>Do you want to delete the selected account?</source>
        <translation>Czy usunąć wybrane konto?</translation>
    </message>
    <message id="1085">
        <source>No camera is accessible</source>
        <translation>Brak dostępnych kamer</translation>
    </message>
    <message id="1086">
        <source>Access follows from the rights of the user’s group.</source>
        <translation>Dostęp wynika z uprawnień grupy użytkownika.</translation>
    </message>
    <message id="1087">
        <source>Open the folder?</source>
        <translation>Otworzyć folder?</translation>
    </message>
    <message id="1088">
        <source>Filter users…</source>
        <translation>Filtruj użytkowników…</translation>
    </message>
    <message id="1089">
        <source>No user matches the filter.</source>
        <translation>Żaden użytkownik nie pasuje do filtra.</translation>
    </message>
    <message id="1110">
        <source>Rename</source>
        <translation>Zmień nazwę</translation>
    </message>
    <message id="1221">
        <source>Waiting for the picture…</source>
        <translation>Oczekiwanie na obraz…</translation>
    </message>
    <message id="1222">
        <source>No picture</source>
        <translation>Brak obrazu</translation>
    </message>
    <message id="1223">
        <source>Trying again…</source>
        <translation>Ponowna próba…</translation>
    </message>
    <message id="1260">
        <source>Filter maps and cameras…</source>
        <translation>Filtruj mapy i kamery…</translation>
    </message>
    <message id="1261">
        <source>Cut</source>
        <translation>Wytnij</translation>
    </message>
    <message id="1262">
        <source>Paste</source>
        <translation>Wklej</translation>
    </message>
    <message id="1263">
        <source>Move to…</source>
        <translation>Przenieś do…</translation>
    </message>
    <message id="1264">
        <source>A recorder's map goes under the main map or into a group.</source>
        <translation>Mapa rejestratora należy pod mapę główną lub do grupy.</translation>
    </message>
    <message id="1265">
        <source>A camera goes on the map of its own recorder or one of its sub-maps; on the main map it is taken off all maps.</source>
        <translation>Kamera należy na mapę swojego rejestratora lub jego podmapę; na mapie głównej nie jest na żadnej.</translation>
    </message>
    <message id="1266">
        <source>It is there already.</source>
        <translation>Już tam jest.</translation>
    </message>
    <message id="1267">
        <source>Only recorders' maps and cameras can be moved.</source>
        <translation>Przenosić można tylko mapy rejestratorów i kamery.</translation>
    </message>
    <message id="1268">
        <source>Move</source>
        <translation>Przenieś</translation>
    </message>
    <message id="1269">
        <source>Show the map's picture</source>
        <translation>Pokaż obraz mapy</translation>
    </message>
    <message id="1270">
        <source>No map or camera matches the filter.</source>
        <translation>Żadna mapa ani kamera nie pasuje do filtra.</translation>
    </message>
    <message id="1271">
        <source>Enter a name to add a group.</source>
        <translation>Wpisz nazwę, aby dodać grupę.</translation>
    </message>
    <message id="1272">
        <source>Enter a name to add a sub-map. The map has the name of its recorder.</source>
        <translation>Wpisz nazwę, aby dodać podmapę. Mapa nosi nazwę rejestratora.</translation>
    </message>
    <message id="1273">
        <source>Drag recorders' maps into the group.</source>
        <translation>Przeciągnij mapy rejestratorów do grupy.</translation>
    </message>
    <message id="1274">
        <source>Drag the camera to the map of its recorder.</source>
        <translation>Przeciągnij kamerę na mapę jej rejestratora.</translation>
    </message>
    <message id="1275">
        <source>Drag cameras of its recorder to the sub-map.</source>
        <translation>Przeciągnij na podmapę kamery jej rejestratora.</translation>
    </message>
</context>
</TS>
