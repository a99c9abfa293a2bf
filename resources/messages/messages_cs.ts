<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
<context>
    <name></name>
    <message id="0">
        <source>English</source>
        <translation>Angličtina</translation>
    </message>
    <message id="1">
        <source>Traditional Chinese</source>
        <translation>Tradiční čínština</translation>
    </message>
    <message id="2">
        <source>Simplified Chinese</source>
        <translation>Zjednodušená čínština</translation>
    </message>
    <message id="3">
        <source>Japanese</source>
        <translation>Japonština</translation>
    </message>
    <message id="4">
        <source>Spainish</source>
        <translation>Španělština</translation>
    </message>
    <message id="5">
        <source>CGI ID is full !</source>
        <translation>Seznam ID CGI je plný.</translation>
    </message>
    <message id="6">
        <source>User Name or Password Error !</source>
        <translation>Chybné uživatelské jméno nebo heslo.</translation>
    </message>
    <message id="7">
        <source>Device Connection Error !</source>
        <translation>Chyba připojení k zařízení.</translation>
    </message>
    <message id="8">
        <source>Device brand not supported !</source>
        <translation>Značka zařízení není podporována.</translation>
    </message>
    <message id="9">
        <source>Sending CGI failed !</source>
        <translation>Odeslání příkazu CGI se nezdařilo.</translation>
    </message>
    <message id="10">
        <source>Program has been opened !</source>
        <translation>Program je již spuštěn.</translation>
    </message>
    <message id="11">
        <source>Application of Setup has been Opening . Please turn it off !</source>
        <translation>Konfigurátor je již otevřen. Zavřete jej.</translation>
    </message>
    <message id="12">
        <source>Database initialization ...</source>
        <translation>Inicializace databáze…</translation>
    </message>
    <message id="13">
        <source>Default Data to read ...</source>
        <translation>Načítání výchozích dat…</translation>
    </message>
    <message id="14">
        <source>Incorrect database version ! Do you want to reset the databse now ?</source>
        <translation>Nesprávná verze databáze. Chcete databázi nyní obnovit do výchozího stavu?</translation>
    </message>
    <message id="15">
        <source>System will not be able to continue to work .</source>
        <translation>Systém nebude moci pokračovat v činnosti.</translation>
    </message>
    <message id="16">
        <source>Update Database ...</source>
        <translation>Aktualizace databáze…</translation>
    </message>
    <message id="17">
        <source>Data is loading ...</source>
        <translation>Načítání dat…</translation>
    </message>
    <message id="18">
        <source>Motion Detection setting is loading...</source>
        <translation>Načítání nastavení detekce pohybu…</translation>
    </message>
    <message id="19">
        <source>User Data is loading...</source>
        <translation>Načítání dat uživatelů…</translation>
    </message>
    <message id="20">
        <source>Group Data  is loading...</source>
        <translation>Načítání dat skupin…</translation>
    </message>
    <message id="21">
        <source>Event setting is loading...</source>
        <translation>Načítání nastavení událostí…</translation>
    </message>
    <message id="22">
        <source>E-Map Data is loading ...</source>
        <translation>Načítání dat e-mapy…</translation>
    </message>
    <message id="23">
        <source>Multi-Screen set up is loading ...</source>
        <translation>Načítání nastavení více obrazovek…</translation>
    </message>
    <message id="24">
        <source>System component registering  ...</source>
        <translation>Registrace součástí systému…</translation>
    </message>
    <message id="25">
        <source>Login Identification ...</source>
        <translation>Ověřování přihlášení…</translation>
    </message>
    <message id="26">
        <source>Open Login Frame ...</source>
        <translation>Otevírání přihlašovacího okna…</translation>
    </message>
    <message id="27">
        <source>Loading User's Pattern …</source>
        <translation>Načítání šablon uživatele…</translation>
    </message>
    <message id="28">
        <source>Start Service Mode...</source>
        <translation>Spouštění režimu služby…</translation>
    </message>
    <message id="29">
        <source>Start Monitor Window ...</source>
        <translation>Spouštění okna monitoru…</translation>
    </message>
    <message id="30">
        <source>Start Auto Search …</source>
        <translation>Spouštění automatického hledání…</translation>
    </message>
    <message id="32">
        <source>Manual Startup</source>
        <translation>Ruční spuštění</translation>
    </message>
    <message id="33">
        <source>Device detect timeout !</source>
        <translation>Časový limit detekce zařízení vypršel.</translation>
    </message>
    <message id="34">
        <source>The channel of SVR has been removed. Please re-detect the SVR!</source>
        <translation>Kanál SVR byl odebrán. Detekujte SVR znovu.</translation>
    </message>
    <message id="35">
        <source>Please enable SVR upnp port forwarding!</source>
        <translation>Povolte přesměrování portů UPnP v SVR.</translation>
    </message>
    <message id="36">
        <source>Video Wall Setting</source>
        <translation>Nastavení videostěny</translation>
    </message>
    <message id="37">
        <source>Video Wall display position setting</source>
        <translation>Nastavení polohy videostěny</translation>
    </message>
    <message id="38">
        <source>Monitor</source>
        <translation>Monitor</translation>
    </message>
    <message id="39">
        <source>Startup assign setting</source>
        <translation>Přiřazení při spuštění</translation>
    </message>
    <message id="40">
        <source>User</source>
        <translation>Uživatel</translation>
    </message>
    <message id="41">
        <source>Password</source>
        <translation>Heslo</translation>
    </message>
    <message id="42">
        <source>User Field is Blank !</source>
        <translation>Pole uživatele je prázdné.</translation>
    </message>
    <message id="43">
        <source>Password Field is Blank !</source>
        <translation>Pole hesla je prázdné.</translation>
    </message>
    <message id="44">
        <source>Incorrect User Account or Password !</source>
        <translation>Nesprávný uživatelský účet nebo heslo.</translation>
    </message>
    <message id="45">
        <source>Main Viewer</source>
        <translation>Hlavní prohlížeč</translation>
    </message>
    <message id="46">
        <source>NVR Setting</source>
        <translation>Nastavení NVR</translation>
    </message>
    <message id="47">
        <source>Event-Triggered Notification</source>
        <translation>Oznámení o události</translation>
    </message>
    <message id="48">
        <source>Auto Search Notice</source>
        <translation>Oznámení automatického hledání</translation>
    </message>
    <message id="49">
        <source>Event Synchronization Manually Update</source>
        <translation>Ruční aktualizace synchronizace událostí</translation>
    </message>
    <message id="50">
        <source>About</source>
        <translation>O programu</translation>
    </message>
    <message id="51">
        <source>Exit</source>
        <translation>Konec</translation>
    </message>
    <message id="52">
        <source>Split</source>
        <translation>Dělení</translation>
    </message>
    <message id="53">
        <source>Change Channel</source>
        <translation>Změnit kanál</translation>
    </message>
    <message id="54">
        <source>OSD Display</source>
        <translation>Zobrazení OSD</translation>
    </message>
    <message id="55">
        <source>CH</source>
        <translation>Kanál</translation>
    </message>
    <message id="56">
        <source>Path</source>
        <translation>Cesta</translation>
    </message>
    <message id="57">
        <source>OSD Channel</source>
        <translation>Kanál v OSD</translation>
    </message>
    <message id="58">
        <source>OSD Time</source>
        <translation>Čas v OSD</translation>
    </message>
    <message id="59">
        <source>Save</source>
        <translation>Uložit</translation>
    </message>
    <message id="60">
        <source>Camera Event Server Setting Error!</source>
        <translation>Chyba nastavení serveru událostí kamery.</translation>
    </message>
    <message id="61">
        <source>Snapshot Error!</source>
        <translation>Chyba snímku.</translation>
    </message>
    <message id="62">
        <source>Event Notification is still ongoing.</source>
        <translation>Odesílání oznámení o událostech stále probíhá.</translation>
    </message>
    <message id="63">
        <source>Do you want to exit and open rigging desk?</source>
        <translation>Chcete skončit a otevřít Rigging Desk?</translation>
    </message>
    <message id="64">
        <source>Auto-Search Notice</source>
        <translation>Oznámení automatického hledání</translation>
    </message>
    <message id="65">
        <source>Closing...</source>
        <translation>Zavírání…</translation>
    </message>
    <message id="66">
        <source>Devcie is Found!</source>
        <translation>Zařízení nalezeno.</translation>
    </message>
    <message id="67">
        <source>Fix display mode</source>
        <translation>Pevný režim zobrazení</translation>
    </message>
    <message id="68">
        <source>Video Wall default startup setting</source>
        <translation>Výchozí nastavení spuštění videostěny</translation>
    </message>
    <message id="69">
        <source>Intelligent Overview</source>
        <translation>Přehled videoanalýzy</translation>
    </message>
    <message id="70">
        <source>Do You Want to Save Snapshot Images ?</source>
        <translation>Chcete uložit snímky?</translation>
    </message>
    <message id="71">
        <source>User Name or Password error !</source>
        <translation>Chybné uživatelské jméno nebo heslo.</translation>
    </message>
    <message id="72">
        <source>Brand not supported!</source>
        <translation>Značka není podporována.</translation>
    </message>
    <message id="73">
        <source>Camera not supported!</source>
        <translation>Kamera není podporována.</translation>
    </message>
    <message id="74">
        <source>Device connection error!</source>
        <translation>Chyba připojení k zařízení.</translation>
    </message>
    <message id="75">
        <source>Device detection timeout!</source>
        <translation>Časový limit detekce zařízení vypršel.</translation>
    </message>
    <message id="76">
        <source>Unable to connect to the server!</source>
        <translation>Nelze se připojit k serveru.</translation>
    </message>
    <message id="77">
        <source>Service has not connect yet!</source>
        <translation>Služba ještě není připojena.</translation>
    </message>
    <message id="78">
        <source>This series of device does not allow repeat add!</source>
        <translation>Zařízení této řady nelze přidat opakovaně.</translation>
    </message>
    <message id="79">
        <source>SEQ by Channel</source>
        <translation>Sekvence podle kanálu</translation>
    </message>
    <message id="80">
        <source>SEQ by NVR</source>
        <translation>Sekvence podle NVR</translation>
    </message>
    <message id="81">
        <source>SEQ by Pattern</source>
        <translation>Sekvence podle šablony</translation>
    </message>
    <message id="82">
        <source>NVR List</source>
        <translation>Seznam NVR</translation>
    </message>
    <message id="83">
        <source>Dwell time</source>
        <translation>Doba setrvání</translation>
    </message>
    <message id="84">
        <source>SEQ function is starting, do you want to continue to start SEQ content setting, which will stop SEQ function?</source>
        <translation>Funkce sekvence je spuštěna. Otevřením nastavení obsahu sekvence se zastaví. Chcete pokračovat?</translation>
    </message>
    <message id="85">
        <source>Channel SEQ not available! Please select more than one channel when using this function.</source>
        <translation>Sekvence kanálů není dostupná. K použití této funkce vyberte více než jeden kanál.</translation>
    </message>
    <message id="86">
        <source>NVR SEQ not available! Please select more than one NVR when using this function.</source>
        <translation>Sekvence NVR není dostupná. K použití této funkce vyberte více než jeden NVR.</translation>
    </message>
    <message id="87">
        <source>Pattern SEQ not available! Please select more than one patterns when using this function.</source>
        <translation>Sekvence šablon není dostupná. K použití této funkce vyberte více než jednu šablonu.</translation>
    </message>
    <message id="88">
        <source>Do you want to enable SEQ by Channel?</source>
        <translation>Chcete zapnout sekvenci podle kanálu?</translation>
    </message>
    <message id="89">
        <source>Do you want to enable SEQ by NVR?</source>
        <translation>Chcete zapnout sekvenci podle NVR?</translation>
    </message>
    <message id="90">
        <source>Do you want to enable SEQ by Pattern?</source>
        <translation>Chcete zapnout sekvenci podle šablony?</translation>
    </message>
    <message id="91">
        <source>Camera event setting can't exceed 32!</source>
        <translation>Počet nastavení událostí kamer nesmí překročit 32.</translation>
    </message>
    <message id="92">
        <source>Please add a NVR first!</source>
        <translation>Nejprve přidejte NVR.</translation>
    </message>
    <message id="93">
        <source>Port number can't accept 0 or more than 65536.</source>
        <translation>Číslo portu nesmí být 0 ani větší než 65536.</translation>
    </message>
    <message id="94">
        <source>Drive</source>
        <translation>Disk</translation>
    </message>
    <message id="95">
        <source>Size(GB)</source>
        <translation>Velikost (GB)</translation>
    </message>
    <message id="96">
        <source>Free(GB)</source>
        <translation>Volné (GB)</translation>
    </message>
    <message id="97">
        <source>Usage(%)</source>
        <translation>Využití (%)</translation>
    </message>
    <message id="98">
        <source>Storage Path</source>
        <translation>Cesta k úložišti</translation>
    </message>
    <message id="99">
        <source>Select a Path</source>
        <translation>Vyberte cestu</translation>
    </message>
    <message id="100">
        <source>Live Monitor</source>
        <translation>Živý náhled</translation>
    </message>
    <message id="101">
        <source>Event Monitor</source>
        <translation>Monitor událostí</translation>
    </message>
    <message id="102">
        <source>Playback</source>
        <translation>Přehrávání</translation>
    </message>
    <message id="103">
        <source>E-MAP Monitor</source>
        <translation>Monitor e-mapy</translation>
    </message>
    <message id="104">
        <source>User Pattern</source>
        <translation>Šablona uživatele</translation>
    </message>
    <message id="105">
        <source>Split</source>
        <translation>Dělení</translation>
    </message>
    <message id="106">
        <source>Pattern Name</source>
        <translation>Název šablony</translation>
    </message>
    <message id="107">
        <source>Status</source>
        <translation>Stav</translation>
    </message>
    <message id="108">
        <source>Channel Status</source>
        <translation>Stav kanálu</translation>
    </message>
    <message id="109">
        <source>Network Disconnection</source>
        <translation>Odpojení od sítě</translation>
    </message>
    <message id="110">
        <source>Network connection</source>
        <translation>Připojení k síti</translation>
    </message>
    <message id="111">
        <source>Recording</source>
        <translation>Záznam</translation>
    </message>
    <message id="112">
        <source>Event Trigger</source>
        <translation>Spuštění události</translation>
    </message>
    <message id="113">
        <source>Connecting</source>
        <translation>Připojování</translation>
    </message>
    <message id="114">
        <source>Video Loss</source>
        <translation>Ztráta videa</translation>
    </message>
    <message id="115">
        <source>SEQ Mode</source>
        <translation>Režim sekvence</translation>
    </message>
    <message id="116">
        <source>(Sec)</source>
        <translation>(s)</translation>
    </message>
    <message id="117">
        <source>Start</source>
        <translation>Spustit</translation>
    </message>
    <message id="118">
        <source>Stop</source>
        <translation>Zastavit</translation>
    </message>
    <message id="119">
        <source>SEQ contents</source>
        <translation>Obsah sekvence</translation>
    </message>
    <message id="120">
        <source>SEQ ALL</source>
        <translation>Sekvence všech</translation>
    </message>
    <message id="121">
        <source>SEQ</source>
        <translation>Sekvence</translation>
    </message>
    <message id="122">
        <source>Pattern SEQ</source>
        <translation>Sekvence šablon</translation>
    </message>
    <message id="123">
        <source>Service Mode</source>
        <translation>Režim služby</translation>
    </message>
    <message id="124">
        <source>Language</source>
        <translation>Jazyk</translation>
    </message>
    <message id="125">
        <source>Version</source>
        <translation>Verze</translation>
    </message>
    <message id="126">
        <source>Event Info</source>
        <translation>Info o události</translation>
    </message>
    <message id="127">
        <source>Event</source>
        <translation>Událost</translation>
    </message>
    <message id="128">
        <source>Time</source>
        <translation>Čas</translation>
    </message>
    <message id="129">
        <source>Description</source>
        <translation>Popis</translation>
    </message>
    <message id="130">
        <source>System Info</source>
        <translation>Info o systému</translation>
    </message>
    <message id="131">
        <source>Info</source>
        <translation>Info</translation>
    </message>
    <message id="132">
        <source>System Time:</source>
        <translation>Systémový čas:</translation>
    </message>
    <message id="133">
        <source>Group Level:</source>
        <translation>Úroveň skupiny:</translation>
    </message>
    <message id="134">
        <source>CPU:</source>
        <translation>CPU:</translation>
    </message>
    <message id="135">
        <source>PRESET</source>
        <translation>PREPOZICE</translation>
    </message>
    <message id="136">
        <source>Preset:</source>
        <translation>Prepozice:</translation>
    </message>
    <message id="137">
        <source>Unable to support full screen mode or to change split mode under SEQ mode.</source>
        <translation>V režimu sekvence nelze zapnout celou obrazovku ani změnit dělení.</translation>
    </message>
    <message id="138">
        <source>Full screen is running. close it first!</source>
        <translation>Celá obrazovka je zapnuta. Nejprve ji zavřete.</translation>
    </message>
    <message id="139">
        <source>Unauthorised</source>
        <translation>Bez oprávnění</translation>
    </message>
    <message id="140">
        <source>Select a channel first.</source>
        <translation>Nejprve vyberte kanál.</translation>
    </message>
    <message id="141">
        <source>Name Repeat!</source>
        <translation>Tento název již existuje.</translation>
    </message>
    <message id="142">
        <source>MENU</source>
        <translation>NABÍDKA</translation>
    </message>
    <message id="143">
        <source>TREE</source>
        <translation>STROM</translation>
    </message>
    <message id="144">
        <source>PATTERN</source>
        <translation>ŠABLONA</translation>
    </message>
    <message id="145">
        <source>STATUS</source>
        <translation>STAV</translation>
    </message>
    <message id="146">
        <source>SEQ</source>
        <translation>SEKVENCE</translation>
    </message>
    <message id="147">
        <source>SYSTEM</source>
        <translation>SYSTÉM</translation>
    </message>
    <message id="148">
        <source>CH:</source>
        <translation>Kanál:</translation>
    </message>
    <message id="149">
        <source>Reconnection</source>
        <translation>Opětovné připojení</translation>
    </message>
    <message id="150">
        <source>Audio</source>
        <translation>Zvuk</translation>
    </message>
    <message id="151">
        <source>Display Image of Motion Detection </source>
        <translation>Zobrazit obraz detekce pohybu </translation>
    </message>
    <message id="152">
        <source>Snapshot</source>
        <translation>Snímek</translation>
    </message>
    <message id="153">
        <source>Preset Point Setting</source>
        <translation>Nastavení prepozic</translation>
    </message>
    <message id="154">
        <source>When modify setting, the channel of pattern will be changed.</source>
        <translation>Změnou nastavení se změní kanály šablony.</translation>
    </message>
    <message id="155">
        <source>Snapshot fail !</source>
        <translation>Pořízení snímku se nezdařilo.</translation>
    </message>
    <message id="156">
        <source>Preset Patrol:</source>
        <translation>Patrola prepozic:</translation>
    </message>
    <message id="157">
        <source>Loading Fullscreen layout data…</source>
        <translation>Načítání rozvržení celé obrazovky…</translation>
    </message>
    <message id="158">
        <source>Dock</source>
        <translation>Ukotvit</translation>
    </message>
    <message id="159">
        <source>Control Panel</source>
        <translation>Ovládací panel</translation>
    </message>
    <message id="160">
        <source>Name:</source>
        <translation>Název:</translation>
    </message>
    <message id="161">
        <source>Channel:</source>
        <translation>Kanál:</translation>
    </message>
    <message id="162">
        <source>CH Name:</source>
        <translation>Název kanálu:</translation>
    </message>
    <message id="163">
        <source>Event Mode:</source>
        <translation>Typ události:</translation>
    </message>
    <message id="164">
        <source>Event Trigger Time:</source>
        <translation>Čas spuštění události:</translation>
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
        <translation>Čas přehrávání (SYSTÉM):</translation>
    </message>
    <message id="168">
        <source>Current Event List</source>
        <translation>Seznam aktuálních událostí</translation>
    </message>
    <message id="169">
        <source>Log Event List</source>
        <translation>Seznam zapsaných událostí</translation>
    </message>
    <message id="170">
        <source>Search</source>
        <translation>Hledat</translation>
    </message>
    <message id="171">
        <source>Search All</source>
        <translation>Hledat vše</translation>
    </message>
    <message id="172">
        <source>Search Start Time</source>
        <translation>Začátek hledání</translation>
    </message>
    <message id="173">
        <source>Search by Event type</source>
        <translation>Hledat podle typu události</translation>
    </message>
    <message id="174">
        <source>Item</source>
        <translation>Položka</translation>
    </message>
    <message id="175">
        <source>Event ID</source>
        <translation>ID události</translation>
    </message>
    <message id="176">
        <source>Time</source>
        <translation>Čas</translation>
    </message>
    <message id="177">
        <source>System Time</source>
        <translation>Systémový čas</translation>
    </message>
    <message id="178">
        <source>NO.</source>
        <translation>Č.</translation>
    </message>
    <message id="179">
        <source>CH</source>
        <translation>Kanál</translation>
    </message>
    <message id="180">
        <source>Event Mode</source>
        <translation>Typ události</translation>
    </message>
    <message id="181">
        <source>Process</source>
        <translation>Zpracování</translation>
    </message>
    <message id="182">
        <source>On-Line</source>
        <translation>Online</translation>
    </message>
    <message id="183">
        <source>Channel Name</source>
        <translation>Název kanálu</translation>
    </message>
    <message id="184">
        <source>Channel Detail</source>
        <translation>Podrobnosti kanálu</translation>
    </message>
    <message id="185">
        <source>Play Error</source>
        <translation>Chyba přehrávání</translation>
    </message>
    <message id="186">
        <source>Play Stop</source>
        <translation>Přehrávání zastaveno</translation>
    </message>
    <message id="187">
        <source>Live Video</source>
        <translation>Živé video</translation>
    </message>
    <message id="188">
        <source>Live Stop</source>
        <translation>Živé video zastaveno</translation>
    </message>
    <message id="189">
        <source>Off Line</source>
        <translation>Offline</translation>
    </message>
    <message id="190">
        <source>Error</source>
        <translation>Chyba</translation>
    </message>
    <message id="191">
        <source>Motion</source>
        <translation>Pohyb</translation>
    </message>
    <message id="192">
        <source>Sensor</source>
        <translation>Čidlo</translation>
    </message>
    <message id="193">
        <source>Return message: </source>
        <translation>Vrácená zpráva: </translation>
    </message>
    <message id="194">
        <source>NVR no playback resource!</source>
        <translation>NVR nemá prostředky k přehrávání.</translation>
    </message>
    <message id="195">
        <source>Playback request failed!</source>
        <translation>Požadavek na přehrávání se nezdařil.</translation>
    </message>
    <message id="196">
        <source>Reset Event List</source>
        <translation>Resetovat seznam událostí</translation>
    </message>
    <message id="197">
        <source>X</source>
        <translation>X</translation>
    </message>
    <message id="198">
        <source>Return</source>
        <translation>Zpět</translation>
    </message>
    <message id="199">
        <source>SEQ Duration Time</source>
        <translation>Doba trvání sekvence</translation>
    </message>
    <message id="200">
        <source>Playback Info</source>
        <translation>Info o přehrávání</translation>
    </message>
    <message id="201">
        <source>NVR:</source>
        <translation>NVR:</translation>
    </message>
    <message id="202">
        <source>CH:</source>
        <translation>Kanál:</translation>
    </message>
    <message id="203">
        <source>Speed:</source>
        <translation>Rychlost:</translation>
    </message>
    <message id="204">
        <source>Sun</source>
        <translation>Ne</translation>
    </message>
    <message id="205">
        <source>Mon</source>
        <translation>Po</translation>
    </message>
    <message id="206">
        <source>Tue</source>
        <translation>Út</translation>
    </message>
    <message id="207">
        <source>Wed</source>
        <translation>St</translation>
    </message>
    <message id="208">
        <source>Thu</source>
        <translation>Čt</translation>
    </message>
    <message id="209">
        <source>Fri</source>
        <translation>Pá</translation>
    </message>
    <message id="210">
        <source>Sat</source>
        <translation>So</translation>
    </message>
    <message id="211">
        <source>Event List</source>
        <translation>Seznam událostí</translation>
    </message>
    <message id="212">
        <source>Receiving recording data failed</source>
        <translation>Příjem záznamu se nezdařil.</translation>
    </message>
    <message id="213">
        <source>RF</source>
        <translation>VZAD</translation>
    </message>
    <message id="214">
        <source>STOP</source>
        <translation>ZASTAVIT</translation>
    </message>
    <message id="215">
        <source>PLAY</source>
        <translation>PŘEHRÁT</translation>
    </message>
    <message id="216">
        <source>PAUSE</source>
        <translation>PAUZA</translation>
    </message>
    <message id="217">
        <source>FF</source>
        <translation>VPŘED</translation>
    </message>
    <message id="218">
        <source>NEXT</source>
        <translation>DALŠÍ</translation>
    </message>
    <message id="219">
        <source>No recording data can be Displayed !</source>
        <translation>Není žádný záznam k zobrazení.</translation>
    </message>
    <message id="220">
        <source>Play Stop ! Need to select new time.</source>
        <translation>Přehrávání zastaveno. Vyberte nový čas.</translation>
    </message>
    <message id="221">
        <source>No response! you can try again or select another device !</source>
        <translation>Žádná odezva. Zkuste to znovu nebo vyberte jiné zařízení.</translation>
    </message>
    <message id="222">
        <source>Disconnection ! </source>
        <translation>Odpojeno. </translation>
    </message>
    <message id="223">
        <source>Can not get video stream ! please select other Channel.</source>
        <translation>Nelze získat videostream. Vyberte jiný kanál.</translation>
    </message>
    <message id="224">
        <source>No recording data.</source>
        <translation>Žádný záznam.</translation>
    </message>
    <message id="225">
        <source>Recording data is updating, please wait .</source>
        <translation>Záznam se aktualizuje, počkejte.</translation>
    </message>
    <message id="226">
        <source>Convert to AVI</source>
        <translation>Převést do AVI</translation>
    </message>
    <message id="227">
        <source>Do you want to stop the conversion of avi file ?</source>
        <translation>Chcete zastavit převod do AVI?</translation>
    </message>
    <message id="228">
        <source>AVI file conversion complete! File is... </source>
        <translation>Převod do AVI dokončen. Soubor je… </translation>
    </message>
    <message id="229">
        <source>Converting AVI file!</source>
        <translation>Probíhá převod do AVI.</translation>
    </message>
    <message id="230">
        <source>AVI Conversion Fail !</source>
        <translation>Převod do AVI se nezdařil.</translation>
    </message>
    <message id="231">
        <source>Auto Pan:</source>
        <translation>Autom. otáčení:</translation>
    </message>
    <message id="232">
        <source>Single Video</source>
        <translation>Jeden obraz</translation>
    </message>
    <message id="233">
        <source>Quad Videos</source>
        <translation>Čtyři obrazy</translation>
    </message>
    <message id="234">
        <source>Nine Videos</source>
        <translation>Devět obrazů</translation>
    </message>
    <message id="235">
        <source>No any SVD has been set, you need to add any SVD to control!</source>
        <translation>Není nastaven žádný SVD. Přidejte SVD, který chcete ovládat.</translation>
    </message>
    <message id="236">
        <source>This channel has been set to display in this screen!</source>
        <translation>Tento kanál je již na této obrazovce zobrazen.</translation>
    </message>
    <message id="237">
        <source>Are you sure to exit SVD console monitor?</source>
        <translation>Opravdu chcete ukončit monitor konzole SVD?</translation>
    </message>
    <message id="238">
        <source>Click here to reconnect again!</source>
        <translation>Kliknutím sem se znovu připojíte.</translation>
    </message>
    <message id="239">
        <source>SVD UI is changing…</source>
        <translation>Změna rozhraní SVD…</translation>
    </message>
    <message id="240">
        <source>NO.:</source>
        <translation>Č.:</translation>
    </message>
    <message id="241">
        <source>Name:</source>
        <translation>Název:</translation>
    </message>
    <message id="242">
        <source>Number of Camera:</source>
        <translation>Počet kamer:</translation>
    </message>
    <message id="243">
        <source>Event:</source>
        <translation>Událost:</translation>
    </message>
    <message id="244">
        <source>No Event</source>
        <translation>Žádná událost</translation>
    </message>
    <message id="245">
        <source>CH:</source>
        <translation>Kanál:</translation>
    </message>
    <message id="246">
        <source>Up</source>
        <translation>Nahoru</translation>
    </message>
    <message id="247">
        <source>Down</source>
        <translation>Dolů</translation>
    </message>
    <message id="248">
        <source>Left</source>
        <translation>Vlevo</translation>
    </message>
    <message id="249">
        <source>Right</source>
        <translation>Vpravo</translation>
    </message>
    <message id="250">
        <source>Upper left</source>
        <translation>Vlevo nahoru</translation>
    </message>
    <message id="251">
        <source>Upper right</source>
        <translation>Vpravo nahoru</translation>
    </message>
    <message id="252">
        <source>Lower left</source>
        <translation>Vlevo dolů</translation>
    </message>
    <message id="253">
        <source>Lower right</source>
        <translation>Vpravo dolů</translation>
    </message>
    <message id="254">
        <source>Home</source>
        <translation>Výchozí</translation>
    </message>
    <message id="255">
        <source>Zoom In</source>
        <translation>Přiblížit</translation>
    </message>
    <message id="256">
        <source>Zoom Out</source>
        <translation>Oddálit</translation>
    </message>
    <message id="257">
        <source>Focus Far</source>
        <translation>Ostřit dále</translation>
    </message>
    <message id="258">
        <source>Focus Near</source>
        <translation>Ostřit blíže</translation>
    </message>
    <message id="259">
        <source>Auto Focus</source>
        <translation>Autom. ostření</translation>
    </message>
    <message id="260">
        <source>IRIS Auto</source>
        <translation>Autom. clona</translation>
    </message>
    <message id="261">
        <source>IRIS Close</source>
        <translation>Zavřít clonu</translation>
    </message>
    <message id="262">
        <source>IRIS Open</source>
        <translation>Otevřít clonu</translation>
    </message>
    <message id="263">
        <source>Auto Pan Left</source>
        <translation>Autom. otáčení vlevo</translation>
    </message>
    <message id="264">
        <source>Auto Pan Right</source>
        <translation>Autom. otáčení vpravo</translation>
    </message>
    <message id="265">
        <source>Auto Pan Stop</source>
        <translation>Zastavit otáčení</translation>
    </message>
    <message id="266">
        <source>Moving Rate(+)</source>
        <translation>Rychlost pohybu (+)</translation>
    </message>
    <message id="267">
        <source>Moving Rate(-)</source>
        <translation>Rychlost pohybu (-)</translation>
    </message>
    <message id="268">
        <source>Display OSD on all channels</source>
        <translation>Zobrazit OSD na všech kanálech</translation>
    </message>
    <message id="269">
        <source>Display OSD</source>
        <translation>Zobrazit OSD</translation>
    </message>
    <message id="270">
        <source>Detail Export:</source>
        <translation>Export podrobností:</translation>
    </message>
    <message id="271">
        <source>Valid Ch</source>
        <translation>Platné kanály</translation>
    </message>
    <message id="272">
        <source>Auto Search</source>
        <translation>Autom. hledání</translation>
    </message>
    <message id="273">
        <source>Manual Detection</source>
        <translation>Ruční detekce</translation>
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
        <translation>Další</translation>
    </message>
    <message id="278">
        <source>Device Name</source>
        <translation>Název zařízení</translation>
    </message>
    <message id="279">
        <source>All</source>
        <translation>Vše</translation>
    </message>
    <message id="280">
        <source>CHs</source>
        <translation>Kanály</translation>
    </message>
    <message id="281">
        <source>Model:</source>
        <translation>Model:</translation>
    </message>
    <message id="282">
        <source>Max Channel:</source>
        <translation>Max. kanálů:</translation>
    </message>
    <message id="283">
        <source>NVR Name:</source>
        <translation>Název NVR:</translation>
    </message>
    <message id="284">
        <source>Version:</source>
        <translation>Verze:</translation>
    </message>
    <message id="285">
        <source>Valid Channel:</source>
        <translation>Platné kanály:</translation>
    </message>
    <message id="286">
        <source>Sync With NVR</source>
        <translation>Synchronizovat s NVR</translation>
    </message>
    <message id="287">
        <source>Add New NVR </source>
        <translation>Přidat nový NVR </translation>
    </message>
    <message id="288">
        <source>NVR Search List</source>
        <translation>Seznam nalezených NVR</translation>
    </message>
    <message id="289">
        <source>NVR Detect Status</source>
        <translation>Stav detekce NVR</translation>
    </message>
    <message id="290">
        <source>NVR Detail Setting</source>
        <translation>Podrobné nastavení NVR</translation>
    </message>
    <message id="291">
        <source>NVR Channel Setting</source>
        <translation>Nastavení kanálů NVR</translation>
    </message>
    <message id="292">
        <source>Preset Sequence Setting</source>
        <translation>Nastavení sekvence prepozic</translation>
    </message>
    <message id="293">
        <source>Get Capability...</source>
        <translation>Načítání podporovaných funkcí…</translation>
    </message>
    <message id="294">
        <source>Get Channel Info...</source>
        <translation>Načítání informací o kanálech…</translation>
    </message>
    <message id="295">
        <source>Get NVR Info...</source>
        <translation>Načítání informací o NVR…</translation>
    </message>
    <message id="296">
        <source>Initial NVR Value...</source>
        <translation>Inicializace hodnot NVR…</translation>
    </message>
    <message id="297">
        <source>Add Success!</source>
        <translation>Úspěšně přidáno.</translation>
    </message>
    <message id="298">
        <source>Channel List</source>
        <translation>Seznam kanálů</translation>
    </message>
    <message id="299">
        <source>Split:</source>
        <translation>Dělení:</translation>
    </message>
    <message id="300">
        <source>MainViewer opened. Close it First!</source>
        <translation>Hlavní prohlížeč je otevřen. Nejprve jej zavřete.</translation>
    </message>
    <message id="301">
        <source>System &amp; Setting</source>
        <translation>Systém a nastavení</translation>
    </message>
    <message id="302">
        <source>Setting</source>
        <translation>Nastavení</translation>
    </message>
    <message id="303">
        <source>Manual Setting</source>
        <translation>Ruční nastavení</translation>
    </message>
    <message id="304">
        <source>PTZ Config</source>
        <translation>Konfigurace PTZ</translation>
    </message>
    <message id="305">
        <source>Motion Setting</source>
        <translation>Nastavení pohybu</translation>
    </message>
    <message id="306">
        <source>Motion Setting</source>
        <translation>Nastavení pohybu</translation>
    </message>
    <message id="307">
        <source>General Setting Overview</source>
        <translation>Přehled obecných nastavení</translation>
    </message>
    <message id="308">
        <source>Group/User Config</source>
        <translation>Konfigurace skupin a uživatelů</translation>
    </message>
    <message id="309">
        <source>Event Handling Config</source>
        <translation>Konfigurace zpracování událostí</translation>
    </message>
    <message id="310">
        <source>E-Map Config</source>
        <translation>Konfigurace e-mapy</translation>
    </message>
    <message id="311">
        <source>Screen Layout Config</source>
        <translation>Konfigurace rozvržení obrazovek</translation>
    </message>
    <message id="312">
        <source>Event Action Overview</source>
        <translation>Přehled akcí událostí</translation>
    </message>
    <message id="313">
        <source>Mail Config</source>
        <translation>Konfigurace pošty</translation>
    </message>
    <message id="314">
        <source>FTP Config</source>
        <translation>Konfigurace FTP</translation>
    </message>
    <message id="315">
        <source>Message Config</source>
        <translation>Konfigurace zpráv</translation>
    </message>
    <message id="316">
        <source>Sound Config</source>
        <translation>Konfigurace zvuku</translation>
    </message>
    <message id="317">
        <source>Save</source>
        <translation>Uložit</translation>
    </message>
    <message id="318">
        <source>Main Viewer</source>
        <translation>Hlavní prohlížeč</translation>
    </message>
    <message id="319">
        <source>Exit</source>
        <translation>Konec</translation>
    </message>
    <message id="320">
        <source>Setup</source>
        <translation>Konfigurace</translation>
    </message>
    <message id="321">
        <source>SEQ Control</source>
        <translation>Ovládání sekvence</translation>
    </message>
    <message id="322">
        <source>Pattern Name:</source>
        <translation>Název šablony:</translation>
    </message>
    <message id="323">
        <source>Do you continue to delete this pattern?</source>
        <translation>Opravdu chcete smazat tuto šablonu?</translation>
    </message>
    <message id="324">
        <source>Pattern List Overview</source>
        <translation>Přehled seznamu šablon</translation>
    </message>
    <message id="325">
        <source>Name or Channel list need to be set!</source>
        <translation>Je třeba nastavit název nebo seznam kanálů.</translation>
    </message>
    <message id="326">
        <source>Live Monitor SEQ and full screen can not be opened at the same time.</source>
        <translation>Sekvenci živého náhledu a celou obrazovku nelze otevřít současně.</translation>
    </message>
    <message id="327">
        <source>No channel is selected!</source>
        <translation>Není vybrán žádný kanál.</translation>
    </message>
    <message id="328">
        <source>Select time is out of data range!</source>
        <translation>Vybraný čas je mimo rozsah dat.</translation>
    </message>
    <message id="329">
        <source>NVR is invalid!</source>
        <translation>NVR je neplatný.</translation>
    </message>
    <message id="330">
        <source>System Setting</source>
        <translation>Nastavení systému</translation>
    </message>
    <message id="331">
        <source>Application name:</source>
        <translation>Název aplikace:</translation>
    </message>
    <message id="332">
        <source>Version:</source>
        <translation>Verze:</translation>
    </message>
    <message id="333">
        <source>Language:</source>
        <translation>Jazyk:</translation>
    </message>
    <message id="334">
        <source>Start Up:</source>
        <translation>Spuštění:</translation>
    </message>
    <message id="335">
        <source>Event Sync Time:</source>
        <translation>Čas synchr. událostí:</translation>
    </message>
    <message id="336">
        <source>Snapshot Count:</source>
        <translation>Počet snímků:</translation>
    </message>
    <message id="337">
        <source>Camera Event Server Setting</source>
        <translation>Nastavení serveru událostí kamery</translation>
    </message>
    <message id="338">
        <source>Account:</source>
        <translation>Účet:</translation>
    </message>
    <message id="339">
        <source>Password:</source>
        <translation>Heslo:</translation>
    </message>
    <message id="340">
        <source>Port:</source>
        <translation>Port:</translation>
    </message>
    <message id="341">
        <source>System Info</source>
        <translation>Info o systému</translation>
    </message>
    <message id="343">
        <source>OS:</source>
        <translation>Operační systém:</translation>
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
        <translation>Název počítače:</translation>
    </message>
    <message id="347">
        <source>Total space of HD:</source>
        <translation>Kapacita disků:</translation>
    </message>
    <message id="348">
        <source>Network Connect Status:</source>
        <translation>Stav připojení k síti:</translation>
    </message>
    <message id="349">
        <source>System Time:</source>
        <translation>Systémový čas:</translation>
    </message>
    <message id="350">
        <source>Screen Count:</source>
        <translation>Počet obrazovek:</translation>
    </message>
    <message id="351">
        <source>CPU Performance:</source>
        <translation>Vytížení CPU:</translation>
    </message>
    <message id="352">
        <source>Login Windows then Auto Start up </source>
        <translation>Spustit automaticky po přihlášení do Windows </translation>
    </message>
    <message id="353">
        <source>Start in background</source>
        <translation>Spustit na pozadí</translation>
    </message>
    <message id="354">
        <source>Minute</source>
        <translation>min</translation>
    </message>
    <message id="356">
        <source>NVR is connecting, wait a moment and start again!</source>
        <translation>NVR se připojuje, chvíli počkejte a spusťte znovu.</translation>
    </message>
    <message id="357">
        <source>NVR is offline, please choose another NVR or confirm this NVR connection status!</source>
        <translation>NVR je offline, vyberte jiný NVR nebo ověřte stav jeho připojení.</translation>
    </message>
    <message id="358">
        <source>Output device has been removed!</source>
        <translation>Výstupní zařízení bylo odebráno.</translation>
    </message>
    <message id="359">
        <source>Password confirm inconsistency, Please check again!</source>
        <translation>Hesla se neshodují, zkontrolujte je.</translation>
    </message>
    <message id="360">
        <source>List:</source>
        <translation>Seznam:</translation>
    </message>
    <message id="361">
        <source>NVR</source>
        <translation>NVR</translation>
    </message>
    <message id="362">
        <source>Name</source>
        <translation>Název</translation>
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
        <translation>Oprávnění</translation>
    </message>
    <message id="366">
        <source>CH</source>
        <translation>Kanál</translation>
    </message>
    <message id="367">
        <source>CH Name</source>
        <translation>Název kanálu</translation>
    </message>
    <message id="368">
        <source>CH IP</source>
        <translation>IP kanálu</translation>
    </message>
    <message id="369">
        <source>CH Port</source>
        <translation>Port kanálu</translation>
    </message>
    <message id="370">
        <source>CH Brand</source>
        <translation>Značka kanálu</translation>
    </message>
    <message id="371">
        <source>Video Format</source>
        <translation>Formát videa</translation>
    </message>
    <message id="372">
        <source>Video RES</source>
        <translation>Rozlišení videa</translation>
    </message>
    <message id="373">
        <source>MD Enable</source>
        <translation>Detekce pohybu</translation>
    </message>
    <message id="374">
        <source>MD Sen</source>
        <translation>Citl. detekce</translation>
    </message>
    <message id="375">
        <source>CH PTZ</source>
        <translation>PTZ kanálu</translation>
    </message>
    <message id="376">
        <source>CH audio</source>
        <translation>Zvuk kanálu</translation>
    </message>
    <message id="377">
        <source>Detect List</source>
        <translation>Seznam detekovaných</translation>
    </message>
    <message id="378">
        <source>Advance Control </source>
        <translation>Rozšířené ovládání </translation>
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
        <translation>Značka</translation>
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
        <translation>Čas detekce</translation>
    </message>
    <message id="385">
        <source>Add</source>
        <translation>Přidat</translation>
    </message>
    <message id="386">
        <source>Remove</source>
        <translation>Odebrat</translation>
    </message>
    <message id="387">
        <source>Modify</source>
        <translation>Změnit</translation>
    </message>
    <message id="388">
        <source>Reconection </source>
        <translation>Znovu připojit </translation>
    </message>
    <message id="389">
        <source>Open Browser</source>
        <translation>Otevřít prohlížeč</translation>
    </message>
    <message id="390">
        <source>Preset Info</source>
        <translation>Info o prepozici</translation>
    </message>
    <message id="391">
        <source>Sync</source>
        <translation>Synchronizovat</translation>
    </message>
    <message id="392">
        <source>Edit Preset</source>
        <translation>Upravit prepozici</translation>
    </message>
    <message id="393">
        <source>Preset No</source>
        <translation>Č. prepozice</translation>
    </message>
    <message id="394">
        <source>Preset Name</source>
        <translation>Název prepozice</translation>
    </message>
    <message id="395">
        <source>PTZ Control</source>
        <translation>Ovládání PTZ</translation>
    </message>
    <message id="396">
        <source>Submit</source>
        <translation>Potvrdit</translation>
    </message>
    <message id="397">
        <source>Motion Detect List:</source>
        <translation>Seznam detekce pohybu:</translation>
    </message>
    <message id="398">
        <source>Sensitivity:</source>
        <translation>Citlivost:</translation>
    </message>
    <message id="399">
        <source>Motion Detect Setting</source>
        <translation>Nastavení detekce pohybu</translation>
    </message>
    <message id="400">
        <source>*Use Mouse drag the Device item into Intelligent detection List.</source>
        <translation>*Přetáhněte zařízení myší do seznamu videoanalýzy.</translation>
    </message>
    <message id="401">
        <source>Device List:</source>
        <translation>Seznam zařízení:</translation>
    </message>
    <message id="402">
        <source>Trigger for Motion Detect</source>
        <translation>Spouštění detekcí pohybu</translation>
    </message>
    <message id="403">
        <source>Status</source>
        <translation>Stav</translation>
    </message>
    <message id="404">
        <source>Motion Enable List:</source>
        <translation>Zapnuté detekce pohybu:</translation>
    </message>
    <message id="405">
        <source>Clear All</source>
        <translation>Vymazat vše</translation>
    </message>
    <message id="406">
        <source>Select All</source>
        <translation>Vybrat vše</translation>
    </message>
    <message id="407">
        <source>High</source>
        <translation>Vysoká</translation>
    </message>
    <message id="408">
        <source>Normal</source>
        <translation>Normální</translation>
    </message>
    <message id="409">
        <source>Low</source>
        <translation>Nízká</translation>
    </message>
    <message id="410">
        <source>SET</source>
        <translation>NASTAVIT</translation>
    </message>
    <message id="411">
        <source>User List:</source>
        <translation>Seznam uživatelů:</translation>
    </message>
    <message id="412">
        <source>Group List:</source>
        <translation>Seznam skupin:</translation>
    </message>
    <message id="413">
        <source>Event Setting List:</source>
        <translation>Seznam nastavení událostí:</translation>
    </message>
    <message id="414">
        <source>EMap List:</source>
        <translation>Seznam e-map:</translation>
    </message>
    <message id="415">
        <source>Screen List:</source>
        <translation>Seznam obrazovek:</translation>
    </message>
    <message id="416">
        <source>Account</source>
        <translation>Účet</translation>
    </message>
    <message id="417">
        <source>Company</source>
        <translation>Společnost</translation>
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
        <translation>Mobilní telefon</translation>
    </message>
    <message id="422">
        <source>Photo Path</source>
        <translation>Cesta k fotografii</translation>
    </message>
    <message id="423">
        <source>Group</source>
        <translation>Skupina</translation>
    </message>
    <message id="424">
        <source>Event</source>
        <translation>Událost</translation>
    </message>
    <message id="425">
        <source>Mail</source>
        <translation>Pošta</translation>
    </message>
    <message id="426">
        <source>FTP</source>
        <translation>FTP</translation>
    </message>
    <message id="427">
        <source>Msg</source>
        <translation>Zpráva</translation>
    </message>
    <message id="428">
        <source>Sound</source>
        <translation>Zvuk</translation>
    </message>
    <message id="429">
        <source>Video Power</source>
        <translation>Oprávnění k videu</translation>
    </message>
    <message id="430">
        <source>Playback</source>
        <translation>Přehrávání</translation>
    </message>
    <message id="431">
        <source>PTZ</source>
        <translation>PTZ</translation>
    </message>
    <message id="432">
        <source>Setup</source>
        <translation>Konfigurace</translation>
    </message>
    <message id="433">
        <source>Map</source>
        <translation>Mapa</translation>
    </message>
    <message id="434">
        <source>Path</source>
        <translation>Cesta</translation>
    </message>
    <message id="435">
        <source>Function</source>
        <translation>Funkce</translation>
    </message>
    <message id="436">
        <source>Screen</source>
        <translation>Obrazovka</translation>
    </message>
    <message id="437">
        <source>MainMap</source>
        <translation>Hlavní mapa</translation>
    </message>
    <message id="438">
        <source>FullScreen</source>
        <translation>Celá obrazovka</translation>
    </message>
    <message id="439">
        <source>FullScreen2</source>
        <translation>Celá obrazovka 2</translation>
    </message>
    <message id="440">
        <source>User Detail List</source>
        <translation>Podrobnosti uživatelů</translation>
    </message>
    <message id="441">
        <source>Group List</source>
        <translation>Seznam skupin</translation>
    </message>
    <message id="442">
        <source>Add User</source>
        <translation>Přidat uživatele</translation>
    </message>
    <message id="443">
        <source>Remove User</source>
        <translation>Odebrat uživatele</translation>
    </message>
    <message id="444">
        <source>Modify User</source>
        <translation>Upravit uživatele</translation>
    </message>
    <message id="445">
        <source>Modify Group</source>
        <translation>Upravit skupinu</translation>
    </message>
    <message id="446">
        <source>System Event Trigger Action</source>
        <translation>Akce spouštěná událostí systému</translation>
    </message>
    <message id="447">
        <source>NVR Event Trigger Action</source>
        <translation>Akce spouštěná událostí NVR</translation>
    </message>
    <message id="448">
        <source>System Start/Stop</source>
        <translation>Spuštění/zastavení systému</translation>
    </message>
    <message id="449">
        <source>Modify Setting of System</source>
        <translation>Změna nastavení systému</translation>
    </message>
    <message id="450">
        <source>Modify Setting of NVR</source>
        <translation>Změna nastavení NVR</translation>
    </message>
    <message id="451">
        <source>Modify Setting of Intelligent detection</source>
        <translation>Změna nastavení videoanalýzy</translation>
    </message>
    <message id="452">
        <source>Modify Setting of General</source>
        <translation>Změna obecných nastavení</translation>
    </message>
    <message id="453">
        <source>Modify Setting of Event</source>
        <translation>Změna nastavení událostí</translation>
    </message>
    <message id="454">
        <source>E1:Motion Detect</source>
        <translation>E1: Detekce pohybu</translation>
    </message>
    <message id="455">
        <source>Sensor Detection</source>
        <translation>Detekce čidlem</translation>
    </message>
    <message id="456">
        <source>*Double Click Map to Setting</source>
        <translation>*Mapu nastavíte dvojitým kliknutím</translation>
    </message>
    <message id="457">
        <source>SubMap</source>
        <translation>Podmapa</translation>
    </message>
    <message id="458">
        <source>Screen Layout</source>
        <translation>Rozvržení obrazovek</translation>
    </message>
    <message id="459">
        <source>Mail</source>
        <translation>Pošta</translation>
    </message>
    <message id="460">
        <source>FTP</source>
        <translation>FTP</translation>
    </message>
    <message id="461">
        <source>Message</source>
        <translation>Zpráva</translation>
    </message>
    <message id="462">
        <source>Sound</source>
        <translation>Zvuk</translation>
    </message>
    <message id="463">
        <source>Sender E-mail Address</source>
        <translation>E-mailová adresa odesílatele</translation>
    </message>
    <message id="464">
        <source>Mail Server</source>
        <translation>Poštovní server</translation>
    </message>
    <message id="465">
        <source>User</source>
        <translation>Uživatel</translation>
    </message>
    <message id="466">
        <source>Password</source>
        <translation>Heslo</translation>
    </message>
    <message id="467">
        <source>Adressee Name</source>
        <translation>Jméno adresáta</translation>
    </message>
    <message id="468">
        <source>Mail Addrrss</source>
        <translation>E-mailová adresa</translation>
    </message>
    <message id="469">
        <source>Server IP</source>
        <translation>IP serveru</translation>
    </message>
    <message id="470">
        <source>Server Port</source>
        <translation>Port serveru</translation>
    </message>
    <message id="471">
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message id="472">
        <source>Sound Description</source>
        <translation>Popis zvuku</translation>
    </message>
    <message id="473">
        <source>Sound File Path</source>
        <translation>Cesta ke zvukovému souboru</translation>
    </message>
    <message id="474">
        <source>Test</source>
        <translation>Test</translation>
    </message>
    <message id="475">
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
    <message id="476">
        <source>Mail to</source>
        <translation>Odeslat na</translation>
    </message>
    <message id="477">
        <source>FTP Setting</source>
        <translation>Nastavení FTP</translation>
    </message>
    <message id="478">
        <source>Message Setting</source>
        <translation>Nastavení zpráv</translation>
    </message>
    <message id="479">
        <source>Message</source>
        <translation>Zpráva</translation>
    </message>
    <message id="480">
        <source>Sound Setting</source>
        <translation>Nastavení zvuku</translation>
    </message>
    <message id="481">
        <source>Set HTTP Server failed! Do you want to remove all HTTP Servers?</source>
        <translation>Nastavení serveru HTTP se nezdařilo. Chcete odebrat všechny servery HTTP?</translation>
    </message>
    <message id="482">
        <source>The amount cannot be more than 16!</source>
        <translation>Počet nesmí být větší než 16.</translation>
    </message>
    <message id="483">
        <source>Do you want to delete the selected NVR?</source>
        <translation>Chcete smazat vybraný NVR?</translation>
    </message>
    <message id="484">
        <source>Sender name can't be empty!</source>
        <translation>Jméno odesílatele nesmí být prázdné.</translation>
    </message>
    <message id="485">
        <source>Mail Server can't be empty!</source>
        <translation>Pole poštovního serveru nesmí být prázdné.</translation>
    </message>
    <message id="486">
        <source>User can't be empty!</source>
        <translation>Pole uživatele nesmí být prázdné.</translation>
    </message>
    <message id="487">
        <source>Password can't be empty!</source>
        <translation>Heslo nesmí být prázdné.</translation>
    </message>
    <message id="488">
        <source>Mail Address can't be empty!</source>
        <translation>E-mailová adresa nesmí být prázdná.</translation>
    </message>
    <message id="489">
        <source>Test mail sent success.</source>
        <translation>Zkušební e-mail byl úspěšně odeslán.</translation>
    </message>
    <message id="490">
        <source>Test mail sent failed.</source>
        <translation>Odeslání zkušebního e-mailu se nezdařilo.</translation>
    </message>
    <message id="491">
        <source>Server IP can't be empty!</source>
        <translation>Adresa IP serveru nesmí být prázdná.</translation>
    </message>
    <message id="492">
        <source>Server Port can't be empty!</source>
        <translation>Port serveru nesmí být prázdný.</translation>
    </message>
    <message id="493">
        <source>Root Path can't be empty!</source>
        <translation>Kořenová cesta nesmí být prázdná.</translation>
    </message>
    <message id="494">
        <source>Connecting to ftp server success.</source>
        <translation>Připojení k serveru FTP bylo úspěšné.</translation>
    </message>
    <message id="495">
        <source>Connecting to ftp server failed.</source>
        <translation>Připojení k serveru FTP se nezdařilo.</translation>
    </message>
    <message id="496">
        <source>Message can't be empty!</source>
        <translation>Zpráva nesmí být prázdná.</translation>
    </message>
    <message id="497">
        <source>Sound Description can't be empty!</source>
        <translation>Popis zvuku nesmí být prázdný.</translation>
    </message>
    <message id="498">
        <source>Sound file Path can't be empty!</source>
        <translation>Cesta ke zvukovému souboru nesmí být prázdná.</translation>
    </message>
    <message id="499">
        <source>Preset number select first.</source>
        <translation>Nejprve vyberte číslo prepozice.</translation>
    </message>
    <message id="500">
        <source>The Preset Name has been used.</source>
        <translation>Tento název prepozice je již použit.</translation>
    </message>
    <message id="501">
        <source>Do you want to delete the selected User?</source>
        <translation>Chcete smazat vybraného uživatele?</translation>
    </message>
    <message id="502">
        <source>Can't Delete User.</source>
        <translation>Uživatele nelze smazat.</translation>
    </message>
    <message id="503">
        <source>Already Set.</source>
        <translation>Již nastaveno.</translation>
    </message>
    <message id="504">
        <source>Intelligent setting can't exceed 16</source>
        <translation>Počet nastavení videoanalýzy nesmí překročit 16.</translation>
    </message>
    <message id="505">
        <source>Add NVR failed! Please add again.</source>
        <translation>Přidání NVR se nezdařilo. Přidejte jej znovu.</translation>
    </message>
    <message id="506">
        <source>File Size can't more than 5MB</source>
        <translation>Velikost souboru nesmí překročit 5 MB.</translation>
    </message>
    <message id="507">
        <source>Save OK</source>
        <translation>Uloženo.</translation>
    </message>
    <message id="508">
        <source>Exit and Open MainViewer?</source>
        <translation>Chcete skončit a otevřít hlavní prohlížeč?</translation>
    </message>
    <message id="509">
        <source>Do you want to exit?</source>
        <translation>Chcete skončit?</translation>
    </message>
    <message id="510">
        <source>Resolution Not Support .</source>
        <translation>Rozlišení není podporováno.</translation>
    </message>
    <message id="511">
        <source>Do you want to Save?</source>
        <translation>Chcete uložit?</translation>
    </message>
    <message id="512">
        <source>The Channel does not support motion detection or is no connection !</source>
        <translation>Kanál nepodporuje detekci pohybu nebo není připojen.</translation>
    </message>
    <message id="513">
        <source>No setting !</source>
        <translation>Žádné nastavení.</translation>
    </message>
    <message id="514">
        <source>Settings have changed , Do you want to save ?</source>
        <translation>Nastavení se změnilo. Chcete je uložit?</translation>
    </message>
    <message id="515">
        <source>Not yet set of Event Action config!</source>
        <translation>Akce událostí ještě nejsou nastaveny.</translation>
    </message>
    <message id="516">
        <source>Video can't connection.</source>
        <translation>Video nelze připojit.</translation>
    </message>
    <message id="517">
        <source>Submit</source>
        <translation>Potvrdit</translation>
    </message>
    <message id="518">
        <source>Save Setting</source>
        <translation>Uložit nastavení</translation>
    </message>
    <message id="519">
        <source>Close this window</source>
        <translation>Zavřít toto okno</translation>
    </message>
    <message id="520">
        <source>Preset Sequence</source>
        <translation>Sekvence prepozic</translation>
    </message>
    <message id="521">
        <source>Dwell Time:</source>
        <translation>Doba setrvání:</translation>
    </message>
    <message id="522">
        <source>PTZ Preset</source>
        <translation>Prepozice PTZ</translation>
    </message>
    <message id="523">
        <source>Preset Sequence</source>
        <translation>Sekvence prepozic</translation>
    </message>
    <message id="524">
        <source>Select a wave file</source>
        <translation>Vyberte soubor WAV</translation>
    </message>
    <message id="525">
        <source>File Name: </source>
        <translation>Název souboru: </translation>
    </message>
    <message id="526">
        <source>Message sent successfully!</source>
        <translation>Zpráva byla úspěšně odeslána.</translation>
    </message>
    <message id="527">
        <source>Sending Message fail!</source>
        <translation>Odeslání zprávy se nezdařilo.</translation>
    </message>
    <message id="528">
        <source>MAX Video</source>
        <translation>Maximalizovat obraz</translation>
    </message>
    <message id="529">
        <source>Enable/Disable auto switch group to display videos.</source>
        <translation>Zapnout/vypnout automatické přepínání skupin zobrazených obrazů.</translation>
    </message>
    <message id="530">
        <source>Enable/Disable maximum video to display.</source>
        <translation>Zapnout/vypnout maximalizované zobrazení videa.</translation>
    </message>
    <message id="531">
        <source>Live Video</source>
        <translation>Živé video</translation>
    </message>
    <message id="532">
        <source>Do you want to cancel playback for NVR?</source>
        <translation>Chcete zrušit přehrávání z NVR?</translation>
    </message>
    <message id="533">
        <source>The selected time doesn't have any recording data!</source>
        <translation>Pro vybraný čas není žádný záznam.</translation>
    </message>
    <message id="534">
        <source>Select channel you want to change and reset the relational data information?</source>
        <translation>Chcete změnit vybraný kanál a resetovat související údaje?</translation>
    </message>
    <message id="535">
        <source>This NVR cannot get group ID to playback!</source>
        <translation>Tento NVR nemůže získat ID skupiny k přehrávání.</translation>
    </message>
    <message id="536">
        <source>Select the SVD has been disconnected, so close the panel and make sure that SVD status!</source>
        <translation>Vybraný SVD byl odpojen. Zavřete panel a ověřte stav SVD.</translation>
    </message>
    <message id="550">
        <source>IP Address</source>
        <translation>Adresa IP</translation>
    </message>
    <message id="551">
        <source>Http Port</source>
        <translation>Port HTTP</translation>
    </message>
    <message id="552">
        <source>Add</source>
        <translation>Přidat</translation>
    </message>
    <message id="553">
        <source>NVR Name can't be empty!</source>
        <translation>Název NVR nesmí být prázdný.</translation>
    </message>
    <message id="554">
        <source>IP address or hostname set incorrectly!</source>
        <translation>Nesprávná adresa IP nebo název hostitele.</translation>
    </message>
    <message id="555">
        <source>NVR don't exist!</source>
        <translation>NVR neexistuje.</translation>
    </message>
    <message id="556">
        <source>Port set incorrectly!</source>
        <translation>Nesprávně nastavený port.</translation>
    </message>
    <message id="557">
        <source>Add</source>
        <translation>Přidat</translation>
    </message>
    <message id="558">
        <source>NVR select setting</source>
        <translation>Nastavení výběru NVR</translation>
    </message>
    <message id="559">
        <source>Pattern select setting</source>
        <translation>Nastavení výběru šablon</translation>
    </message>
    <message id="560">
        <source>All list</source>
        <translation>Úplný seznam</translation>
    </message>
    <message id="561">
        <source>Selected list</source>
        <translation>Seznam vybraných</translation>
    </message>
    <message id="562">
        <source>Select item is less than 2 items, it can not be saved!</source>
        <translation>Vyberte alespoň 2 položky, jinak nelze uložit.</translation>
    </message>
    <message id="563">
        <source>Functions that were originally assigned on this screen will be moved to screen #1 automatically.</source>
        <translation>Funkce dosud přiřazené této obrazovce se automaticky přesunou na obrazovku č. 1.</translation>
    </message>
    <message id="564">
        <source>Has not enough pattern can be selected!</source>
        <translation>K výběru není dost šablon.</translation>
    </message>
    <message id="565">
        <source>This screen has been assigned to Video Wall!</source>
        <translation>Tato obrazovka byla přiřazena videostěně.</translation>
    </message>
    <message id="566">
        <source>Has not enough device can be selected!</source>
        <translation>K výběru není dost zařízení.</translation>
    </message>
    <message id="570">
        <source>Information</source>
        <translation>Informace</translation>
    </message>
    <message id="571">
        <source>*Name</source>
        <translation>*Název</translation>
    </message>
    <message id="572">
        <source>*IP Address</source>
        <translation>*Adresa IP</translation>
    </message>
    <message id="573">
        <source>*Http Port</source>
        <translation>*Port HTTP</translation>
    </message>
    <message id="574">
        <source>*User</source>
        <translation>*Uživatel</translation>
    </message>
    <message id="575">
        <source>*Password</source>
        <translation>*Heslo</translation>
    </message>
    <message id="576">
        <source>Detect</source>
        <translation>Detekovat</translation>
    </message>
    <message id="577">
        <source>Device Setting</source>
        <translation>Nastavení zařízení</translation>
    </message>
    <message id="578">
        <source>NO.</source>
        <translation>Č.</translation>
    </message>
    <message id="579">
        <source>Camera name</source>
        <translation>Název kamery</translation>
    </message>
    <message id="580">
        <source>Video Port</source>
        <translation>Port videa</translation>
    </message>
    <message id="581">
        <source>Format</source>
        <translation>Formát</translation>
    </message>
    <message id="582">
        <source>Resolution</source>
        <translation>Rozlišení</translation>
    </message>
    <message id="583">
        <source>PTZ</source>
        <translation>PTZ</translation>
    </message>
    <message id="584">
        <source>Audio</source>
        <translation>Zvuk</translation>
    </message>
    <message id="585">
        <source>Edit Camera Setting</source>
        <translation>Upravit nastavení kamery</translation>
    </message>
    <message id="586">
        <source>Camera No</source>
        <translation>Č. kamery</translation>
    </message>
    <message id="587">
        <source>Camera IP</source>
        <translation>IP kamery</translation>
    </message>
    <message id="588">
        <source>Additional Camera Information</source>
        <translation>Další informace o kameře</translation>
    </message>
    <message id="589">
        <source>Min. Bitrate</source>
        <translation>Min. datový tok</translation>
    </message>
    <message id="590">
        <source>Max. Bitrate</source>
        <translation>Max. datový tok</translation>
    </message>
    <message id="591">
        <source>Apply</source>
        <translation>Použít</translation>
    </message>
    <message id="592">
        <source>Remove</source>
        <translation>Odebrat</translation>
    </message>
    <message id="593">
        <source>NVR IP can't be empty.</source>
        <translation>Adresa IP NVR nesmí být prázdná.</translation>
    </message>
    <message id="594">
        <source>NVR Http Port can't be empty.</source>
        <translation>Port HTTP NVR nesmí být prázdný.</translation>
    </message>
    <message id="595">
        <source>NVR User can't be empty.</source>
        <translation>Pole uživatele NVR nesmí být prázdné.</translation>
    </message>
    <message id="596">
        <source>NVR Password can't be empty.</source>
        <translation>Heslo NVR nesmí být prázdné.</translation>
    </message>
    <message id="597">
        <source>Request Time Zone ERR! Please Detect again.</source>
        <translation>Chyba načtení časového pásma. Detekujte znovu.</translation>
    </message>
    <message id="598">
        <source>Please Select Brand.</source>
        <translation>Vyberte značku.</translation>
    </message>
    <message id="599">
        <source>IP Timeout.</source>
        <translation>Časový limit IP vypršel.</translation>
    </message>
    <message id="600">
        <source>Quality</source>
        <translation>Kvalita</translation>
    </message>
    <message id="601">
        <source>Bitrate</source>
        <translation>Datový tok</translation>
    </message>
    <message id="602">
        <source>Bitrate Mode</source>
        <translation>Režim datového toku</translation>
    </message>
    <message id="603">
        <source>CH name can't be empty!</source>
        <translation>Název kanálu nesmí být prázdný.</translation>
    </message>
    <message id="604">
        <source>IP address can't be empty!</source>
        <translation>Adresa IP nesmí být prázdná.</translation>
    </message>
    <message id="605">
        <source>Http Port can't be empty!</source>
        <translation>Port HTTP nesmí být prázdný.</translation>
    </message>
    <message id="606">
        <source>User account can't be empty!</source>
        <translation>Název uživatelského účtu nesmí být prázdný.</translation>
    </message>
    <message id="607">
        <source>Password can't be empty!</source>
        <translation>Heslo nesmí být prázdné.</translation>
    </message>
    <message id="608">
        <source>Detection Error!</source>
        <translation>Chyba detekce.</translation>
    </message>
    <message id="609">
        <source>No Camera or connect failed !</source>
        <translation>Kamera nenalezena nebo se připojení nezdařilo.</translation>
    </message>
    <message id="610">
        <source>This firmware version of NVR is not supported , please update newer Version.</source>
        <translation>Tato verze firmwaru NVR není podporována, aktualizujte na novější verzi.</translation>
    </message>
    <message id="611">
        <source>If you press the button, data inside NVR will be changed!</source>
        <translation>Stisknutím tlačítka se změní data v NVR.</translation>
    </message>
    <message id="612">
        <source>Camera Search</source>
        <translation>Hledání kamer</translation>
    </message>
    <message id="613">
        <source>Brand not Support!</source>
        <translation>Značka není podporována.</translation>
    </message>
    <message id="614">
        <source>FPS</source>
        <translation>FPS</translation>
    </message>
    <message id="615">
        <source>Video Format Error!</source>
        <translation>Chyba formátu videa.</translation>
    </message>
    <message id="616">
        <source>Camera settings have changes, please re-detect.</source>
        <translation>Nastavení kamery se změnilo, detekujte znovu.</translation>
    </message>
    <message id="617">
        <source>Add Camera Fail!</source>
        <translation>Přidání kamery se nezdařilo.</translation>
    </message>
    <message id="618">
        <source>DIS Setting</source>
        <translation>Nastavení DIS</translation>
    </message>
    <message id="619">
        <source>Device not supported!</source>
        <translation>Zařízení není podporováno.</translation>
    </message>
    <message id="620">
        <source>This account is already set!</source>
        <translation>Tento účet již existuje.</translation>
    </message>
    <message id="621">
        <source>Do you want to continue edit preset point?</source>
        <translation>Chcete pokračovat v úpravě prepozice?</translation>
    </message>
    <message id="630">
        <source>Group Name</source>
        <translation>Název skupiny</translation>
    </message>
    <message id="631">
        <source>Power Level</source>
        <translation>Úroveň oprávnění</translation>
    </message>
    <message id="632">
        <source>Function Permission</source>
        <translation>Oprávnění k funkcím</translation>
    </message>
    <message id="633">
        <source>Playback</source>
        <translation>Přehrávání</translation>
    </message>
    <message id="634">
        <source>PTZ Control</source>
        <translation>Ovládání PTZ</translation>
    </message>
    <message id="635">
        <source>System Setup</source>
        <translation>Konfigurace systému</translation>
    </message>
    <message id="636">
        <source>Group Setting</source>
        <translation>Nastavení skupiny</translation>
    </message>
    <message id="640">
        <source>File Size can't more than 10MB</source>
        <translation>Velikost souboru nesmí překročit 10 MB.</translation>
    </message>
    <message id="641">
        <source>EMap Setting</source>
        <translation>Nastavení e-mapy</translation>
    </message>
    <message id="642">
        <source>*Double Click Windows to change Map images.</source>
        <translation>*Dvojitým kliknutím na okno změníte obrázek mapy.</translation>
    </message>
    <message id="643">
        <source>Select an image file</source>
        <translation>Vyberte soubor obrázku</translation>
    </message>
    <message id="645">
        <source>User Setting</source>
        <translation>Nastavení uživatele</translation>
    </message>
    <message id="646">
        <source>Photo</source>
        <translation>Fotografie</translation>
    </message>
    <message id="647">
        <source>(Dubble Click to Setting)</source>
        <translation>(Nastavíte dvojitým kliknutím)</translation>
    </message>
    <message id="648">
        <source>Check</source>
        <translation>Ověřit</translation>
    </message>
    <message id="649">
        <source>*User Name</source>
        <translation>*Uživatelské jméno</translation>
    </message>
    <message id="650">
        <source>*Password Confirm</source>
        <translation>*Potvrzení hesla</translation>
    </message>
    <message id="651">
        <source>*:Necessary</source>
        <translation>*: povinné</translation>
    </message>
    <message id="652">
        <source>This name not yet use</source>
        <translation>Jméno se ještě nepoužívá.</translation>
    </message>
    <message id="653">
        <source>This name in use</source>
        <translation>Jméno se již používá.</translation>
    </message>
    <message id="660">
        <source>User&amp;Password</source>
        <translation>Uživatel a heslo</translation>
    </message>
    <message id="661">
        <source>User or Password is not input!</source>
        <translation>Není zadán uživatel nebo heslo.</translation>
    </message>
    <message id="671">
        <source>DIS Service Setting</source>
        <translation>Nastavení služby DIS</translation>
    </message>
    <message id="672">
        <source>Account List</source>
        <translation>Seznam účtů</translation>
    </message>
    <message id="673">
        <source>Do you want to remove this user?</source>
        <translation>Chcete odebrat tohoto uživatele?</translation>
    </message>
    <message id="674">
        <source>The account has reached the upper limit, for add new account you need to remove another account.</source>
        <translation>Byl dosažen maximální počet účtů. Chcete-li přidat nový účet, jiný odeberte.</translation>
    </message>
    <message id="675">
        <source>Object Loss</source>
        <translation>Zmizení objektu</translation>
    </message>
    <message id="676">
        <source>Tripwire</source>
        <translation>Překročení linie</translation>
    </message>
    <message id="677">
        <source>Threat</source>
        <translation>Sabotáž</translation>
    </message>
    <message id="678">
        <source>Enable</source>
        <translation>Povolit</translation>
    </message>
    <message id="679">
        <source>Intelligent Setting</source>
        <translation>Nastavení videoanalýzy</translation>
    </message>
    <message id="680">
        <source>Intelligent detection List</source>
        <translation>Seznam videoanalýzy</translation>
    </message>
    <message id="681">
        <source>Object Loss Reset</source>
        <translation>Zmizení objektu – konec</translation>
    </message>
    <message id="682">
        <source>Threat Detection Reset</source>
        <translation>Detekce sabotáže – konec</translation>
    </message>
    <message id="683">
        <source>Image Enhance</source>
        <translation>Vylepšení obrazu</translation>
    </message>
    <message id="684">
        <source>Port number can't accept more then 32767.</source>
        <translation>Číslo portu nesmí být větší než 32767.</translation>
    </message>
    <message id="685">
        <source>Keep Ratio</source>
        <translation>Zachovat poměr stran</translation>
    </message>
    <message id="686">
        <source>Intelligent Detection</source>
        <translation>Videoanalýza</translation>
    </message>
    <message id="687">
        <source>OSD Size</source>
        <translation>Velikost OSD</translation>
    </message>
    <message id="688">
        <source>OSD Color</source>
        <translation>Barva OSD</translation>
    </message>
    <message id="689">
        <source>Small</source>
        <translation>Malá</translation>
    </message>
    <message id="690">
        <source>Middle</source>
        <translation>Střední</translation>
    </message>
    <message id="691">
        <source>Large</source>
        <translation>Velká</translation>
    </message>
    <message id="692">
        <source>FullScreen Initial</source>
        <translation>Celá obrazovka při spuštění</translation>
    </message>
    <message id="693">
        <source>Startup Screen Layout</source>
        <translation>Rozvržení obrazovek při spuštění</translation>
    </message>
    <message id="694">
        <source>Leave to save the screen layout.</source>
        <translation>Odchodem ze stránky se rozvržení obrazovek uloží.</translation>
    </message>
    <message id="695">
        <source>Function default start</source>
        <translation>Výchozí spuštění funkcí</translation>
    </message>
    <message id="696">
        <source>Function assign</source>
        <translation>Přiřazení funkcí</translation>
    </message>
    <message id="697">
        <source>Pattern setting</source>
        <translation>Nastavení šablony</translation>
    </message>
    <message id="698">
        <source>Name can't be empty.</source>
        <translation>Název nesmí být prázdný.</translation>
    </message>
    <message id="699">
        <source>Object Counting</source>
        <translation>Počítání objektů</translation>
    </message>
    <message id="700">
        <source>Foreign Object</source>
        <translation>Odložený objekt</translation>
    </message>
    <message id="701">
        <source>Foreign Object Reset </source>
        <translation>Odložený objekt – konec </translation>
    </message>
    <message id="702">
        <source>Manual Recording</source>
        <translation>Ruční záznam</translation>
    </message>
    <message id="703">
        <source>Device settings have changes, please re-detect.</source>
        <translation>Nastavení zařízení se změnilo, detekujte znovu.</translation>
    </message>
    <message id="704">
        <source>English and Digit Only</source>
        <translation>Pouze písmena bez diakritiky a číslice</translation>
    </message>
    <message id="705">
        <source>Emap Group Assign</source>
        <translation>Přiřazení skupin e-map</translation>
    </message>
    <message id="706">
        <source>Emap Group </source>
        <translation>Skupina e-map </translation>
    </message>
    <message id="707">
        <source>Member:</source>
        <translation>Prvky:</translation>
    </message>
    <message id="708">
        <source>Emap Position Assign</source>
        <translation>Přiřazení poloh na e-mapě</translation>
    </message>
    <message id="709">
        <source>Parent</source>
        <translation>Nadřazená</translation>
    </message>
    <message id="710">
        <source>Group Type </source>
        <translation>Typ skupiny </translation>
    </message>
    <message id="711">
        <source>Auto Switch</source>
        <translation>Autom. přepínání</translation>
    </message>
    <message id="712">
        <source>Double-click back to previous group</source>
        <translation>Dvojitým kliknutím zpět na předchozí skupinu</translation>
    </message>
    <message id="713">
        <source>Drag and Drop to Move</source>
        <translation>Přesunout přetažením</translation>
    </message>
    <message id="714">
        <source>Do you want to delete the selected Emap Group?</source>
        <translation>Chcete smazat vybranou skupinu e-map?</translation>
    </message>
    <message id="715">
        <source>The amount of device will be over default value!</source>
        <translation>Bude překročen povolený počet zařízení.</translation>
    </message>
    <message id="716">
        <source>The amount of total channels will be over default value!</source>
        <translation>Bude překročen povolený celkový počet kanálů.</translation>
    </message>
    <message id="717">
        <source>Channel selection</source>
        <translation>Výběr kanálů</translation>
    </message>
    <message id="718">
        <source>Get device capability error!</source>
        <translation>Chyba načtení podporovaných funkcí zařízení.</translation>
    </message>
    <message id="719">
        <source>This device does not has any channel.</source>
        <translation>Toto zařízení nemá žádný kanál.</translation>
    </message>
    <message id="720">
        <source>Please add channels  or  re-select the other device.</source>
        <translation>Přidejte kanály nebo vyberte jiné zařízení.</translation>
    </message>
    <message id="721">
        <source>This device does not has any channel,Do you want to remove the device?</source>
        <translation>Toto zařízení nemá žádný kanál. Chcete zařízení odebrat?</translation>
    </message>
    <message id="722">
        <source>Setting fail!</source>
        <translation>Nastavení se nezdařilo.</translation>
    </message>
    <message id="723">
        <source>Do you want to stop SEQ mode?</source>
        <translation>Chcete zastavit režim sekvence?</translation>
    </message>
    <message id="725">
        <source>Type </source>
        <translation>Typ </translation>
    </message>
    <message id="726">
        <source>No change!</source>
        <translation>Žádná změna.</translation>
    </message>
    <message id="727">
        <source>Face Counting</source>
        <translation>Počítání obličejů</translation>
    </message>
    <message id="728">
        <source>Unknown</source>
        <translation>Neznámé</translation>
    </message>
    <message id="729">
        <source>Event Export</source>
        <translation>Export událostí</translation>
    </message>
    <message id="730">
        <source>System Log Export</source>
        <translation>Export systémového protokolu</translation>
    </message>
    <message id="731">
        <source>System Log</source>
        <translation>Systémový protokol</translation>
    </message>
    <message id="732">
        <source>NVR Select</source>
        <translation>Výběr NVR</translation>
    </message>
    <message id="733">
        <source>Condition</source>
        <translation>Podmínka</translation>
    </message>
    <message id="734">
        <source>Time Range:</source>
        <translation>Časový rozsah:</translation>
    </message>
    <message id="735">
        <source>Start Time:</source>
        <translation>Čas začátku:</translation>
    </message>
    <message id="736">
        <source>End Time:</source>
        <translation>Čas konce:</translation>
    </message>
    <message id="737">
        <source>Event Type:</source>
        <translation>Typ události:</translation>
    </message>
    <message id="738">
        <source>User:</source>
        <translation>Uživatel:</translation>
    </message>
    <message id="739">
        <source>Export Format:</source>
        <translation>Formát exportu:</translation>
    </message>
    <message id="740">
        <source>Export</source>
        <translation>Export</translation>
    </message>
    <message id="741">
        <source>You must select a path to export!</source>
        <translation>Vyberte cestu pro export.</translation>
    </message>
    <message id="742">
        <source>Start Time must less than End time!</source>
        <translation>Čas začátku musí předcházet času konce.</translation>
    </message>
    <message id="743">
        <source>No Event!</source>
        <translation>Žádné události.</translation>
    </message>
    <message id="744">
        <source>No System Log!</source>
        <translation>V systémovém protokolu nejsou žádné záznamy.</translation>
    </message>
    <message id="745">
        <source>CSV Export finish!</source>
        <translation>Export do CSV dokončen.</translation>
    </message>
    <message id="746">
        <source>MDB Export finish!</source>
        <translation>Export do MDB dokončen.</translation>
    </message>
    <message id="747">
        <source>Custom</source>
        <translation>Vlastní</translation>
    </message>
    <message id="748">
        <source>NVR Overview</source>
        <translation>Přehled NVR</translation>
    </message>
    <message id="749">
        <source>Video Wall Console</source>
        <translation>Konzole videostěny</translation>
    </message>
    <message id="750">
        <source>Lock Screen </source>
        <translation>Zamknout obrazovku </translation>
    </message>
    <message id="751">
        <source>Unlock Screen</source>
        <translation>Odemknout obrazovku</translation>
    </message>
    <message id="752">
        <source>Video Wall</source>
        <translation>Videostěna</translation>
    </message>
    <message id="753">
        <source>Pattern List</source>
        <translation>Seznam šablon</translation>
    </message>
    <message id="754">
        <source>SEQ List</source>
        <translation>Seznam sekvencí</translation>
    </message>
    <message id="755">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="756">
        <source>SEQ content setting</source>
        <translation>Nastavení obsahu sekvence</translation>
    </message>
    <message id="757">
        <source>Max Channel</source>
        <translation>Max. kanálů</translation>
    </message>
    <message id="758">
        <source>Video server</source>
        <translation>Videoserver</translation>
    </message>
    <message id="759">
        <source>Support</source>
        <translation>Podpora</translation>
    </message>
    <message id="760">
        <source>Original View</source>
        <translation>Původní pohled</translation>
    </message>
    <message id="761">
        <source>Broad View</source>
        <translation>Široký pohled</translation>
    </message>
    <message id="762">
        <source>Quad View</source>
        <translation>Čtyři pohledy</translation>
    </message>
    <message id="763">
        <source>Quad and Source View</source>
        <translation>Čtyři pohledy a zdroj</translation>
    </message>
    <message id="764">
        <source>Double View</source>
        <translation>Dva pohledy</translation>
    </message>
    <message id="765">
        <source>Triple View</source>
        <translation>Tři pohledy</translation>
    </message>
    <message id="766">
        <source>Digital PTZ</source>
        <translation>Digitální PTZ</translation>
    </message>
    <message id="767">
        <source>Lens</source>
        <translation>Objektiv</translation>
    </message>
    <message id="768">
        <source>It could not be opened, the insufficient number of available screens!</source>
        <translation>Nelze otevřít, není dost dostupných obrazovek.</translation>
    </message>
    <message id="769">
        <source>It could not be opened, The Video Wall is not enabled! </source>
        <translation>Nelze otevřít, videostěna není zapnuta. </translation>
    </message>
    <message id="770">
        <source>The quantity of screen is not enough! Not support!</source>
        <translation>Počet obrazovek nestačí. Není podporováno.</translation>
    </message>
    <message id="772">
        <source>Settings have changed , Please re-open MainViewer!</source>
        <translation>Nastavení se změnilo. Otevřete znovu hlavní prohlížeč.</translation>
    </message>
    <message id="773">
        <source>Preview</source>
        <translation>Náhled</translation>
    </message>
    <message id="774">
        <source>Update system log with below defined condition</source>
        <translation>Obnovit systémový protokol podle níže uvedených podmínek</translation>
    </message>
    <message id="775">
        <source>Transform recording index</source>
        <translation>Převést index záznamu</translation>
    </message>
    <message id="776">
        <source>Event Image Sync Setting</source>
        <translation>Nastavení synchronizace snímků událostí</translation>
    </message>
    <message id="777">
        <source>Event snapshot storage space is not enough!</source>
        <translation>Nedostatek místa pro snímky událostí.</translation>
    </message>
    <message id="779">
        <source>Intelligent Mode</source>
        <translation>Režim videoanalýzy</translation>
    </message>
    <message id="780">
        <source>Add Intelligent Setting</source>
        <translation>Přidat nastavení videoanalýzy</translation>
    </message>
    <message id="781">
        <source>Camera Event</source>
        <translation>Událost kamery</translation>
    </message>
    <message id="782">
        <source>ROI Setting</source>
        <translation>Nastavení ROI</translation>
    </message>
    <message id="783">
        <source>Trigger Mode</source>
        <translation>Režim spouštění</translation>
    </message>
    <message id="784">
        <source>Channel Privilege</source>
        <translation>Oprávnění ke kanálům</translation>
    </message>
    <message id="785">
        <source>Group Overview</source>
        <translation>Přehled skupin</translation>
    </message>
    <message id="786">
        <source>User Overview</source>
        <translation>Přehled uživatelů</translation>
    </message>
    <message id="787">
        <source>Event Server</source>
        <translation>Server událostí</translation>
    </message>
    <message id="788">
        <source>Trigger By</source>
        <translation>Spouštěč</translation>
    </message>
    <message id="789">
        <source>Configuration Modify</source>
        <translation>Změna konfigurace</translation>
    </message>
    <message id="790">
        <source>Intelligent Event Trigger</source>
        <translation>Spouštění událostí videoanalýzy</translation>
    </message>
    <message id="791">
        <source>NVR Event Trigger</source>
        <translation>Spouštění událostí NVR</translation>
    </message>
    <message id="792">
        <source>Trigger Action</source>
        <translation>Spouštěná akce</translation>
    </message>
    <message id="793">
        <source>Addresses: (Use ',' to separate e-mails)</source>
        <translation>Adresy: (e-maily oddělte znakem „,“)</translation>
    </message>
    <message id="794">
        <source>Content</source>
        <translation>Obsah</translation>
    </message>
    <message id="795">
        <source>Video Wall Layout</source>
        <translation>Rozvržení videostěny</translation>
    </message>
    <message id="796">
        <source>No Enough screen can be set!</source>
        <translation>Není dost obrazovek k nastavení.</translation>
    </message>
    <message id="797">
        <source>SVD Management</source>
        <translation>Správa SVD</translation>
    </message>
    <message id="798">
        <source>SVD Detail Setting</source>
        <translation>Podrobné nastavení SVD</translation>
    </message>
    <message id="799">
        <source>SVD Layout</source>
        <translation>Rozvržení SVD</translation>
    </message>
    <message id="800">
        <source>SVD ID:</source>
        <translation>ID SVD:</translation>
    </message>
    <message id="801">
        <source>SVD Name:</source>
        <translation>Název SVD:</translation>
    </message>
    <message id="802">
        <source>Display</source>
        <translation>Displej</translation>
    </message>
    <message id="803">
        <source>Resolution</source>
        <translation>Rozlišení</translation>
    </message>
    <message id="804">
        <source>Priority</source>
        <translation>Priorita</translation>
    </message>
    <message id="805">
        <source>Default Split</source>
        <translation>Výchozí dělení</translation>
    </message>
    <message id="806">
        <source>Default Channel List</source>
        <translation>Výchozí seznam kanálů</translation>
    </message>
    <message id="807">
        <source>Live Stream</source>
        <translation>Živý stream</translation>
    </message>
    <message id="808">
        <source>Dynamic Streaming</source>
        <translation>Dynamický stream</translation>
    </message>
    <message id="809">
        <source>Screen Default Layout</source>
        <translation>Výchozí rozvržení obrazovky</translation>
    </message>
    <message id="810">
        <source>Channel list</source>
        <translation>Seznam kanálů</translation>
    </message>
    <message id="811">
        <source>Begin</source>
        <translation>Začátek</translation>
    </message>
    <message id="812">
        <source>Previous</source>
        <translation>Předchozí</translation>
    </message>
    <message id="813">
        <source>System Log Viewer</source>
        <translation>Prohlížeč systémového protokolu</translation>
    </message>
    <message id="814">
        <source>Management </source>
        <translation>Správa </translation>
    </message>
    <message id="815">
        <source>Viewer</source>
        <translation>Prohlížení</translation>
    </message>
    <message id="816">
        <source>Add New SVD</source>
        <translation>Přidat nový SVD</translation>
    </message>
    <message id="817">
        <source>Primary</source>
        <translation>Primární</translation>
    </message>
    <message id="818">
        <source>Secondary</source>
        <translation>Sekundární</translation>
    </message>
    <message id="819">
        <source>Available</source>
        <translation>Dostupný</translation>
    </message>
    <message id="820">
        <source>Not Available</source>
        <translation>Nedostupný</translation>
    </message>
    <message id="821">
        <source>Invalid E-mail Address!</source>
        <translation>Neplatná e-mailová adresa.</translation>
    </message>
    <message id="822">
        <source>Invalid Value!</source>
        <translation>Neplatná hodnota.</translation>
    </message>
    <message id="823">
        <source>Can't add repeatedly!</source>
        <translation>Nelze přidat opakovaně.</translation>
    </message>
    <message id="824">
        <source>Can't add SVD anymore!</source>
        <translation>Další SVD již nelze přidat.</translation>
    </message>
    <message id="826">
        <source>Do you want to remove this SVD?</source>
        <translation>Chcete odebrat tento SVD?</translation>
    </message>
    <message id="827">
        <source>Disable this Video Wall?</source>
        <translation>Chcete tuto videostěnu vypnout?</translation>
    </message>
    <message id="828">
        <source>Export finish!</source>
        <translation>Export dokončen.</translation>
    </message>
    <message id="829">
        <source>Brand:</source>
        <translation>Značka:</translation>
    </message>
    <message id="830">
        <source>Password Mask</source>
        <translation>Maskování hesla</translation>
    </message>
    <message id="831">
        <source>NVR Account setting</source>
        <translation>Nastavení účtu NVR</translation>
    </message>
    <message id="832">
        <source>No any NVR has been selected.</source>
        <translation>Není vybrán žádný NVR.</translation>
    </message>
    <message id="833">
        <source>Detect successful!</source>
        <translation>Detekce byla úspěšná.</translation>
    </message>
    <message id="834">
        <source>Failed configuring camera detection on channel:</source>
        <translation>Chyba konfigurace detekce kamery na kanálu:</translation>
    </message>
    <message id="835">
        <source>Trigger action has done.</source>
        <translation>Spouštěná akce byla provedena.</translation>
    </message>
    <message id="836">
        <source>Event server has not set.</source>
        <translation>Server událostí není nastaven.</translation>
    </message>
    <message id="837">
        <source>Privilege Setting</source>
        <translation>Nastavení oprávnění</translation>
    </message>
    <message id="838">
        <source>NVR Privilege Setting</source>
        <translation>Nastavení oprávnění k NVR</translation>
    </message>
    <message id="839">
        <source>SVD Console</source>
        <translation>Konzole SVD</translation>
    </message>
    <message id="840">
        <source>SVD Search List</source>
        <translation>Seznam nalezených SVD</translation>
    </message>
    <message id="841">
        <source>No Monitor connect!</source>
        <translation>Není připojen žádný monitor.</translation>
    </message>
    <message id="842">
        <source>Do you want to remove this intelligent setting?</source>
        <translation>Chcete odebrat toto nastavení videoanalýzy?</translation>
    </message>
    <message id="843">
        <source>Event snapshot doesn't work!</source>
        <translation>Snímky událostí nefungují.</translation>
    </message>
    <message id="850">
        <source>System</source>
        <translation>Systém</translation>
    </message>
    <message id="851">
        <source>Intelligent</source>
        <translation>Videoanalýza</translation>
    </message>
    <message id="852">
        <source>User and group</source>
        <translation>Uživatelé a skupiny</translation>
    </message>
    <message id="853">
        <source>Event handling</source>
        <translation>Zpracování událostí</translation>
    </message>
    <message id="854">
        <source>Event server</source>
        <translation>Server událostí</translation>
    </message>
    <message id="855">
        <source>E-Map</source>
        <translation>E-mapa</translation>
    </message>
    <message id="856">
        <source>Screen layout</source>
        <translation>Rozvržení obrazovek</translation>
    </message>
    <message id="857">
        <source>Startup</source>
        <translation>Spuštění</translation>
    </message>
    <message id="858">
        <source>Tooling</source>
        <translation>Nástroje</translation>
    </message>
    <message id="859">
        <source>This page is not available in this version.</source>
        <translation>Tato stránka není v této verzi k dispozici.</translation>
    </message>
    <message id="860">
        <source>Its data in the database stays as it is.</source>
        <translation>Údaje, které pro ni databáze obsahuje, zůstávají beze změny.</translation>
    </message>
    <message id="861">
        <source>No recorder yet</source>
        <translation>Zatím žádný rekordér</translation>
    </message>
    <message id="862">
        <source>Enter the address of the station's first recorder to add it.</source>
        <translation>Zadáním adresy přidáte první rekordér stanice.</translation>
    </message>
    <message id="863">
        <source>Filter name, address, model…</source>
        <translation>Filtr: název, adresa, model…</translation>
    </message>
    <message id="864">
        <source>Recorders of this station</source>
        <translation>Rekordéry této stanice</translation>
    </message>
    <message id="865">
        <source>Recorders: %1 of %2</source>
        <translation>Rekordéry: %1 z %2</translation>
    </message>
    <message id="866">
        <source>Channels: %1 of %2</source>
        <translation>Kanály: %1 z %2</translation>
    </message>
    <message id="867">
        <source>No recorder matches the filter.</source>
        <translation>Filtru neodpovídá žádný rekordér.</translation>
    </message>
    <message id="868">
        <source>Unsaved changes</source>
        <translation>Neuložené změny</translation>
    </message>
    <message id="870">
        <source>Switch to dark colours</source>
        <translation>Přepnout na tmavý motiv</translation>
    </message>
    <message id="871">
        <source>Switch to light colours</source>
        <translation>Přepnout na světlý motiv</translation>
    </message>
    <message id="872">
        <source>Waiting</source>
        <translation>Čeká</translation>
    </message>
    <message id="873">
        <source>Finish</source>
        <translation>Dokončit</translation>
    </message>
    <message id="874">
        <source>Done: %1 of %2</source>
        <translation>Hotovo: %1 z %2</translation>
    </message>
    <message id="875">
        <source>Choose</source>
        <translation>Vybrat</translation>
    </message>
    <message id="876">
        <source>Edit</source>
        <translation>Upravit</translation>
    </message>
    <message id="877">
        <source>Delete</source>
        <translation>Smazat</translation>
    </message>
    <message id="878">
        <source>Yes</source>
        <translation>Ano</translation>
    </message>
    <message id="879">
        <source>No</source>
        <translation>Ne</translation>
    </message>
    <message id="880">
        <source>Back</source>
        <translation>Zpět</translation>
    </message>
    <message id="881">
        <source>Close</source>
        <translation>Zavřít</translation>
    </message>
    <message id="882">
        <source>Pages</source>
        <translation>Stránky</translation>
    </message>
    <message id="884">
        <source>Enter the address of one recorder.</source>
        <translation>Zadejte adresu jednoho rekordéru.</translation>
    </message>
    <message id="885">
        <source>Leave both empty to try the known device accounts.</source>
        <translation>Ponecháte-li obě pole prázdná, vyzkoušejí se známé účty zařízení.</translation>
    </message>
    <message id="886">
        <source>About this installation</source>
        <translation>O této instalaci</translation>
    </message>
    <message id="887">
        <source>Show password</source>
        <translation>Zobrazit heslo</translation>
    </message>
    <message id="888">
        <source>Searching…</source>
        <translation>Hledání…</translation>
    </message>
    <message id="890">
        <source>Name and behaviour of this station</source>
        <translation>Název a chování této stanice</translation>
    </message>
    <message id="892">
        <source>Recorder slot</source>
        <translation>Pozice rekordéru</translation>
    </message>
    <message id="896">
        <source>Connected</source>
        <translation>Připojeno</translation>
    </message>
    <message id="898">
        <source>Product:</source>
        <translation>Produkt:</translation>
    </message>
    <message id="899">
        <source>Hide password</source>
        <translation>Skrýt heslo</translation>
    </message>
    <message id="900">
        <source>Anyone who opens Rigging Desk is its administrator, because there is no user yet.</source>
        <translation>Kdokoli otevře Rigging Desk, je jeho správcem, protože zatím není založen žádný uživatel.</translation>
    </message>
    <message id="901">
        <source>Create the first administrator</source>
        <translation>Vytvořit prvního správce</translation>
    </message>
    <message id="902">
        <source>Not now</source>
        <translation>Teď ne</translation>
    </message>
    <message id="903">
        <source>No user yet</source>
        <translation>Zatím žádný uživatel</translation>
    </message>
    <message id="904">
        <source>Accessible cameras</source>
        <translation>Dostupné kamery</translation>
    </message>
    <message id="905">
        <source>Who has access</source>
        <translation>Kdo má přístup</translation>
    </message>
    <message id="906">
        <source>Filter channels…</source>
        <translation>Filtrovat kanály…</translation>
    </message>
    <message id="907">
        <source>Whole recorder</source>
        <translation>Celý rekordér</translation>
    </message>
    <message id="908">
        <source>Live</source>
        <translation>Živě</translation>
    </message>
    <message id="909">
        <source>Live Monitor of all channels</source>
        <translation>Živý náhled všech kanálů</translation>
    </message>
    <message id="910">
        <source>Grant</source>
        <translation>Udělit</translation>
    </message>
    <message id="911">
        <source>Withdraw</source>
        <translation>Odebrat</translation>
    </message>
    <message id="912">
        <source>The other rights need Live. Space switches the selected cells; Shift+Space selects a row, Ctrl+Space a column.</source>
        <translation>Ostatní oprávnění vyžadují oprávnění „Živě“. Mezerník přepíná vybrané buňky; Shift+mezerník vybere řádek, Ctrl+mezerník sloupec.</translation>
    </message>
    <message id="913">
        <source>Administrators have every right on every channel.</source>
        <translation>Správci mají ke všem kanálům všechna oprávnění.</translation>
    </message>
    <message id="930">
        <source>Filter the rows found…</source>
        <translation>Filtrovat nalezené řádky…</translation>
    </message>
    <message id="931">
        <source>No row matches the filter.</source>
        <translation>Filtru neodpovídá žádný řádek.</translation>
    </message>
    <message id="932">
        <source>Rows found: %1</source>
        <translation>Nalezené řádky: %1</translation>
    </message>
    <message id="933">
        <source>The log could not be read</source>
        <translation>Protokol nelze přečíst</translation>
    </message>
    <message id="934">
        <source>Copy rows</source>
        <translation>Kopírovat řádky</translation>
    </message>
    <message id="935">
        <source>Open folder</source>
        <translation>Otevřít složku</translation>
    </message>
    <message id="936">
        <source>Event export is not part of this version.</source>
        <translation>Export událostí není součástí této verze.</translation>
    </message>
    <message id="937">
        <source>Choose a period and search.</source>
        <translation>Zvolte období a spusťte hledání.</translation>
    </message>
    <message id="938">
        <source>The export failed. Existing files were not changed.</source>
        <translation>Export se nezdařil. Stávající soubory zůstaly beze změny.</translation>
    </message>
    <message id="939">
        <source>First page</source>
        <translation>První stránka</translation>
    </message>
    <message id="940">
        <source>Previous page</source>
        <translation>Předchozí stránka</translation>
    </message>
    <message id="941">
        <source>Next page</source>
        <translation>Další stránka</translation>
    </message>
    <message id="942">
        <source>Last page</source>
        <translation>Poslední stránka</translation>
    </message>
    <message id="943">
        <source>Refresh</source>
        <translation>Obnovit</translation>
    </message>
    <message id="945">
        <source>Log in</source>
        <translation>Přihlášení</translation>
    </message>
    <message id="946">
        <source>The reason is in the log files.</source>
        <translation>Důvod je uveden v souborech protokolu.</translation>
    </message>
    <message id="950">
        <source>Find recorders on the network.</source>
        <translation>Vyhledejte rekordéry v síti.</translation>
    </message>
    <message id="951">
        <source>Stop</source>
        <translation>Zastavit</translation>
    </message>
    <message id="952">
        <source>Select all</source>
        <translation>Vybrat vše</translation>
    </message>
    <message id="953">
        <source>Filter the devices found</source>
        <translation>Filtrovat nalezená zařízení</translation>
    </message>
    <message id="954">
        <source>No device has answered.</source>
        <translation>Žádné zařízení neodpovědělo.</translation>
    </message>
    <message id="955">
        <source>Recorders with those selected: %1 of %2</source>
        <translation>Rekordéry včetně vybraných: %1 z %2</translation>
    </message>
    <message id="956">
        <source>Connection</source>
        <translation>Spojení</translation>
    </message>
    <message id="957">
        <source>Checking…</source>
        <translation>Ověřuje se…</translation>
    </message>
    <message id="958">
        <source>Login refused</source>
        <translation>Přihlášení odmítnuto</translation>
    </message>
    <message id="959">
        <source>No answer</source>
        <translation>Neodpovídá</translation>
    </message>
    <message id="960">
        <source>Host name not found</source>
        <translation>Název hostitele nenalezen</translation>
    </message>
    <message id="961">
        <source>Connection refused</source>
        <translation>Spojení odmítnuto</translation>
    </message>
    <message id="962">
        <source>Unexpected answer</source>
        <translation>Neočekávaná odpověď</translation>
    </message>
    <message id="963">
        <source>Stopped</source>
        <translation>Zastaveno</translation>
    </message>
    <message id="965">
        <source>Notice</source>
        <translation>Upozornění</translation>
    </message>
    <message id="966">
        <source>No camera</source>
        <translation>Žádná kamera</translation>
    </message>
    <message id="967">
        <source>Changed in the recorder</source>
        <translation>Změněno v rekordéru</translation>
    </message>
    <message id="968">
        <source>Detected</source>
        <translation>Detekováno</translation>
    </message>
    <message id="969">
        <source>Unchanged</source>
        <translation>Beze změny</translation>
    </message>
    <message id="970">
        <source>Remove the camera of channel %1 from the recorder?</source>
        <translation>Chcete odebrat z rekordéru kameru kanálu %1?</translation>
    </message>
    <message id="971">
        <source>Filter the cameras found</source>
        <translation>Filtrovat nalezené kamery</translation>
    </message>
    <message id="972">
        <source>No camera was found.</source>
        <translation>Nebyla nalezena žádná kamera.</translation>
    </message>
    <message id="973">
        <source>The recorder sees no camera on its network. Search again, or enter an address.</source>
        <translation>Rekordér ve své síti nevidí žádnou kameru. Hledejte znovu nebo zadejte adresu.</translation>
    </message>
    <message id="974">
        <source>Cameras found: %1</source>
        <translation>Nalezené kamery: %1</translation>
    </message>
    <message id="975">
        <source>Asking the camera…</source>
        <translation>Dotazování kamery…</translation>
    </message>
    <message id="976">
        <source>Writing to the recorder…</source>
        <translation>Zápis do rekordéru…</translation>
    </message>
    <message id="977">
        <source>Video source</source>
        <translation>Zdroj videa</translation>
    </message>
    <message id="978">
        <source>Detect the camera to see its video settings.</source>
        <translation>Detekujte kameru, abyste viděli její nastavení videa.</translation>
    </message>
    <message id="979">
        <source>Fish-eye view</source>
        <translation>Pohled rybím okem</translation>
    </message>
    <message id="980">
        <source>The camera name must not contain a double quote (").</source>
        <translation>Název kamery nesmí obsahovat uvozovky (").</translation>
    </message>
    <message id="981">
        <source>The configuration database cannot be opened: another program holds it, or it cannot be read. Nothing has been changed. Try again?</source>
        <translation>Konfigurační databázi nelze otevřít: používá ji jiný program, nebo ji nelze přečíst. Nic se nezměnilo. Chcete to zkusit znovu?</translation>
    </message>
    <message id="982">
        <source>The users could not be read from the database, so nobody can log in. Close the program that holds the database and start again. The reason is in the log files.</source>
        <translation>Uživatele se nepodařilo přečíst z databáze, proto se nikdo nemůže přihlásit. Zavřete program, který databázi používá, a spusťte znovu. Důvod je uveden v souborech protokolu.</translation>
    </message>
    <message id="983">
        <source>These tables of the database could not be read: %1. They stay as they are. The reason is in the log files.</source>
        <translation>Tyto tabulky databáze se nepodařilo přečíst: %1. Zůstanou beze změny. Důvod je uveden v souborech protokolu.</translation>
    </message>
    <message id="995">
        <source>Export</source>
        <translation>Exportovat</translation>
    </message>
    <message id="1000">
        <source>Keys</source>
        <translation>Klávesy</translation>
    </message>
    <message id="1001">
        <source>Show the keys</source>
        <translation>Zobrazit klávesy</translation>
    </message>
    <message id="1002">
        <source>Rename or edit the selected entry</source>
        <translation>Přejmenovat nebo upravit vybranou položku</translation>
    </message>
    <message id="1003">
        <source>Read the page again</source>
        <translation>Načíst stránku znovu</translation>
    </message>
    <message id="1004">
        <source>Filter the list</source>
        <translation>Filtrovat seznam</translation>
    </message>
    <message id="1005">
        <source>Go to a page</source>
        <translation>Přejít na stránku</translation>
    </message>
    <message id="1006">
        <source>Press the button or open the selected entry</source>
        <translation>Stisknout tlačítko nebo otevřít vybranou položku</translation>
    </message>
    <message id="1007">
        <source>Remove the selected entry</source>
        <translation>Odebrat vybranou položku</translation>
    </message>
    <message id="1008">
        <source>Cancel or close</source>
        <translation>Zrušit nebo zavřít</translation>
    </message>
    <message id="1030">
        <source>Added: %1 of %2</source>
        <translation>Přidáno: %1 z %2</translation>
    </message>
    <message id="1031">
        <source>Added: %1 of %2, failed: %3</source>
        <translation>Přidáno: %1 z %2, neúspěšně: %3</translation>
    </message>
    <message id="1032">
        <source>Recorders that were not added can be tried again with another login.</source>
        <translation>Nepřidané rekordéry lze zkusit znovu s jinými přihlašovacími údaji.</translation>
    </message>
    <message id="1033">
        <source>Try again</source>
        <translation>Zkusit znovu</translation>
    </message>
    <message id="1034">
        <source>Login</source>
        <translation>Přihlášení</translation>
    </message>
    <message id="1035">
        <source>Added but not saved yet: %1.
Do you want to save?</source>
        <translation>Přidáno, ale zatím neuloženo: %1.
Chcete uložit?</translation>
    </message>
    <message id="1036">
        <source>No recorder has been added yet. Close and lose what you entered?</source>
        <translation>Zatím nebyl přidán žádný rekordér. Chcete okno zavřít a zadané údaje zahodit?</translation>
    </message>
    <message id="1037">
        <source>More than one recorder would have this name: %1.
Do you want to use it anyway?</source>
        <translation>Tento název by mělo více rekordérů: %1.
Chcete jej přesto použít?</translation>
    </message>
    <message id="1080">
        <source>A stored password is not shown. Typing replaces it.</source>
        <translation>Uložené heslo se nezobrazuje. Zadáním nového je nahradíte.</translation>
    </message>
    <message id="1081">
        <source>Choose a group</source>
        <translation>Vyberte skupinu</translation>
    </message>
    <message id="1082">
        <source>No account yet</source>
        <translation>Zatím žádný účet</translation>
    </message>
    <message id="1083">
        <source>These accounts are tried on recorders whose login is not known.</source>
        <translation>Tyto účty se zkoušejí u rekordérů, jejichž přihlášení není známo.</translation>
    </message>
    <message id="1084">
        <source>Do you want to delete the selected account?</source>
        <translation>Chcete smazat vybraný účet?</translation>
    </message>
    <message id="1085">
        <source>No camera is accessible</source>
        <translation>Není přístupná žádná kamera</translation>
    </message>
    <message id="1086">
        <source>Access follows from the rights of the user’s group.</source>
        <translation>Přístup vyplývá z oprávnění skupiny uživatele.</translation>
    </message>
    <message id="1087">
        <source>Open the folder?</source>
        <translation>Otevřít složku?</translation>
    </message>
    <message id="1088">
        <source>Filter users…</source>
        <translation>Filtrovat uživatele…</translation>
    </message>
    <message id="1089">
        <source>No user matches the filter.</source>
        <translation>Filtru neodpovídá žádný uživatel.</translation>
    </message>
    <message id="1110">
        <source>Rename</source>
        <translation>Přejmenovat</translation>
    </message>
    <message id="1221">
        <source>Waiting for the picture…</source>
        <translation>Čeká se na obraz…</translation>
    </message>
    <message id="1222">
        <source>No picture</source>
        <translation>Žádný obraz</translation>
    </message>
    <message id="1223">
        <source>Trying again…</source>
        <translation>Zkouší se znovu…</translation>
    </message>
    <message id="1260">
        <source>Filter maps and cameras…</source>
        <translation>Filtrovat mapy a kamery…</translation>
    </message>
    <message id="1261">
        <source>Cut</source>
        <translation>Vyjmout</translation>
    </message>
    <message id="1262">
        <source>Paste</source>
        <translation>Vložit</translation>
    </message>
    <message id="1263">
        <source>Move to…</source>
        <translation>Přesunout do…</translation>
    </message>
    <message id="1264">
        <source>A recorder's map goes under the main map or into a group.</source>
        <translation>Mapa rekordéru patří pod hlavní mapu nebo do skupiny.</translation>
    </message>
    <message id="1265">
        <source>A camera goes on the map of its own recorder or one of its sub-maps; on the main map it is taken off all maps.</source>
        <translation>Kamera patří na mapu svého rekordéru nebo na některou jeho podmapu; na hlavní mapě není na žádné.</translation>
    </message>
    <message id="1266">
        <source>It is there already.</source>
        <translation>Už tam je.</translation>
    </message>
    <message id="1267">
        <source>Only recorders' maps and cameras can be moved.</source>
        <translation>Přesouvat lze jen mapy rekordérů a kamery.</translation>
    </message>
    <message id="1268">
        <source>Move</source>
        <translation>Přesunout</translation>
    </message>
    <message id="1269">
        <source>Show the map's picture</source>
        <translation>Zobrazit obrázek mapy</translation>
    </message>
    <message id="1270">
        <source>No map or camera matches the filter.</source>
        <translation>Filtru neodpovídá žádná mapa ani kamera.</translation>
    </message>
    <message id="1271">
        <source>Enter a name to add a group.</source>
        <translation>Zadejte název a přidejte skupinu.</translation>
    </message>
    <message id="1272">
        <source>Enter a name to add a sub-map. The map has the name of its recorder.</source>
        <translation>Zadejte název a přidejte podmapu. Název mapy je název rekordéru.</translation>
    </message>
    <message id="1273">
        <source>Drag recorders' maps into the group.</source>
        <translation>Do skupiny se přetahují mapy rekordérů.</translation>
    </message>
    <message id="1274">
        <source>Drag the camera to the map of its recorder.</source>
        <translation>Přetáhněte kameru na mapu jejího rekordéru.</translation>
    </message>
    <message id="1275">
        <source>Drag cameras of its recorder to the sub-map.</source>
        <translation>Na podmapu se přetahují kamery jejího rekordéru.</translation>
    </message>
</context>
</TS>
