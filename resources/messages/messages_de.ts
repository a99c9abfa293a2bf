<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name></name>
    <message id="0">
        <source>English</source>
        <translation>Englisch</translation>
    </message>
    <message id="1">
        <source>Traditional Chinese</source>
        <translation>Chinesisch (traditionell)</translation>
    </message>
    <message id="2">
        <source>Simplified Chinese</source>
        <translation>Chinesisch (vereinfacht)</translation>
    </message>
    <message id="3">
        <source>Japanese</source>
        <translation>Japanisch</translation>
    </message>
    <message id="4">
        <source>Spainish</source>
        <translation>Spanisch</translation>
    </message>
    <message id="5">
        <source>CGI ID is full !</source>
        <translation>Keine freie CGI-ID mehr.</translation>
    </message>
    <message id="6">
        <source>User Name or Password Error !</source>
        <translation>Benutzername oder Passwort falsch.</translation>
    </message>
    <message id="7">
        <source>Device Connection Error !</source>
        <translation>Verbindung zum Gerät fehlgeschlagen.</translation>
    </message>
    <message id="8">
        <source>Device brand not supported !</source>
        <translation>Gerätemarke wird nicht unterstützt.</translation>
    </message>
    <message id="9">
        <source>Sending CGI failed !</source>
        <translation>CGI-Befehl konnte nicht gesendet werden.</translation>
    </message>
    <message id="10">
        <source>Program has been opened !</source>
        <translation>Das Programm läuft bereits.</translation>
    </message>
    <message id="11">
        <source>Application of Setup has been Opening . Please turn it off !</source>
        <translation>Das Einrichtungsprogramm ist noch geöffnet. Bitte zuerst schließen.</translation>
    </message>
    <message id="12">
        <source>Database initialization ...</source>
        <translation>Datenbank wird initialisiert …</translation>
    </message>
    <message id="13">
        <source>Default Data to read ...</source>
        <translation>Standarddaten werden gelesen …</translation>
    </message>
    <message id="14">
        <source>Incorrect database version ! Do you want to reset the databse now ?</source>
        <translation>Falsche Datenbankversion. Möchten Sie die Datenbank jetzt zurücksetzen?</translation>
    </message>
    <message id="15">
        <source>System will not be able to continue to work .</source>
        <translation>Das System kann nicht weiterarbeiten.</translation>
    </message>
    <message id="16">
        <source>Update Database ...</source>
        <translation>Datenbank wird aktualisiert …</translation>
    </message>
    <message id="17">
        <source>Data is loading ...</source>
        <translation>Daten werden geladen …</translation>
    </message>
    <message id="18">
        <source>Motion Detection setting is loading...</source>
        <translation>Einstellungen der Bewegungserkennung werden geladen …</translation>
    </message>
    <message id="19">
        <source>User Data is loading...</source>
        <translation>Benutzerdaten werden geladen …</translation>
    </message>
    <message id="20">
        <source>Group Data  is loading...</source>
        <translation>Gruppendaten werden geladen …</translation>
    </message>
    <message id="21">
        <source>Event setting is loading...</source>
        <translation>Ereigniseinstellungen werden geladen …</translation>
    </message>
    <message id="22">
        <source>E-Map Data is loading ...</source>
        <translation>Lageplandaten werden geladen …</translation>
    </message>
    <message id="23">
        <source>Multi-Screen set up is loading ...</source>
        <translation>Mehrbildschirm-Einrichtung wird geladen …</translation>
    </message>
    <message id="24">
        <source>System component registering  ...</source>
        <translation>Systemkomponenten werden registriert …</translation>
    </message>
    <message id="25">
        <source>Login Identification ...</source>
        <translation>Anmeldung wird geprüft …</translation>
    </message>
    <message id="26">
        <source>Open Login Frame ...</source>
        <translation>Anmeldefenster wird geöffnet …</translation>
    </message>
    <message id="27">
        <source>Loading User's Pattern …</source>
        <translation>Ansichten des Benutzers werden geladen …</translation>
    </message>
    <message id="28">
        <source>Start Service Mode...</source>
        <translation>Servicemodus wird gestartet …</translation>
    </message>
    <message id="29">
        <source>Start Monitor Window ...</source>
        <translation>Überwachungsfenster wird gestartet …</translation>
    </message>
    <message id="30">
        <source>Start Auto Search …</source>
        <translation>Automatische Suche wird gestartet …</translation>
    </message>
    <message id="32">
        <source>Manual Startup</source>
        <translation>Manueller Start</translation>
    </message>
    <message id="33">
        <source>Device detect timeout !</source>
        <translation>Zeitüberschreitung bei der Geräteerkennung.</translation>
    </message>
    <message id="34">
        <source>The channel of SVR has been removed. Please re-detect the SVR!</source>
        <translation>Der Kanal des SVR wurde entfernt. Bitte den SVR erneut erkennen.</translation>
    </message>
    <message id="35">
        <source>Please enable SVR upnp port forwarding!</source>
        <translation>Bitte die UPnP-Portweiterleitung des SVR aktivieren.</translation>
    </message>
    <message id="36">
        <source>Video Wall Setting</source>
        <translation>Videowand-Einstellungen</translation>
    </message>
    <message id="37">
        <source>Video Wall display position setting</source>
        <translation>Anzeigeposition der Videowand</translation>
    </message>
    <message id="38">
        <source>Monitor</source>
        <translation>Monitor</translation>
    </message>
    <message id="39">
        <source>Startup assign setting</source>
        <translation>Startzuweisung</translation>
    </message>
    <message id="40">
        <source>User</source>
        <translation>Benutzer</translation>
    </message>
    <message id="41">
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message id="42">
        <source>User Field is Blank !</source>
        <translation>Das Feld „Benutzer“ ist leer.</translation>
    </message>
    <message id="43">
        <source>Password Field is Blank !</source>
        <translation>Das Feld „Passwort“ ist leer.</translation>
    </message>
    <message id="44">
        <source>Incorrect User Account or Password !</source>
        <translation>Benutzerkonto oder Passwort falsch.</translation>
    </message>
    <message id="45">
        <source>Main Viewer</source>
        <translation>Hauptanzeige</translation>
    </message>
    <message id="46">
        <source>NVR Setting</source>
        <translation>NVR-Einstellungen</translation>
    </message>
    <message id="47">
        <source>Event-Triggered Notification</source>
        <translation>Benachrichtigung bei Ereignis</translation>
    </message>
    <message id="48">
        <source>Auto Search Notice</source>
        <translation>Hinweis zur automatischen Suche</translation>
    </message>
    <message id="49">
        <source>Event Synchronization Manually Update</source>
        <translation>Ereignisabgleich manuell aktualisieren</translation>
    </message>
    <message id="50">
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message id="51">
        <source>Exit</source>
        <translation>Beenden</translation>
    </message>
    <message id="52">
        <source>Split</source>
        <translation>Aufteilung</translation>
    </message>
    <message id="53">
        <source>Change Channel</source>
        <translation>Kanal wechseln</translation>
    </message>
    <message id="54">
        <source>OSD Display</source>
        <translation>OSD-Anzeige</translation>
    </message>
    <message id="55">
        <source>CH</source>
        <translation>Kanal</translation>
    </message>
    <message id="56">
        <source>Path</source>
        <translation>Pfad</translation>
    </message>
    <message id="57">
        <source>OSD Channel</source>
        <translation>OSD-Kanal</translation>
    </message>
    <message id="58">
        <source>OSD Time</source>
        <translation>OSD-Zeit</translation>
    </message>
    <message id="59">
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message id="60">
        <source>Camera Event Server Setting Error!</source>
        <translation>Fehler bei den Kamera-Ereignisserver-Einstellungen.</translation>
    </message>
    <message id="61">
        <source>Snapshot Error!</source>
        <translation>Schnappschuss fehlgeschlagen.</translation>
    </message>
    <message id="62">
        <source>Event Notification is still ongoing.</source>
        <translation>Die Ereignisbenachrichtigung läuft noch.</translation>
    </message>
    <message id="63">
        <source>Do you want to exit and open rigging desk?</source>
        <translation>Möchten Sie beenden und Rigging Desk öffnen?</translation>
    </message>
    <message id="64">
        <source>Auto-Search Notice</source>
        <translation>Hinweis zur automatischen Suche</translation>
    </message>
    <message id="65">
        <source>Closing...</source>
        <translation>Wird beendet …</translation>
    </message>
    <message id="66">
        <source>Devcie is Found!</source>
        <translation>Gerät gefunden.</translation>
    </message>
    <message id="67">
        <source>Fix display mode</source>
        <translation>Fester Anzeigemodus</translation>
    </message>
    <message id="68">
        <source>Video Wall default startup setting</source>
        <translation>Standardstart der Videowand</translation>
    </message>
    <message id="69">
        <source>Intelligent Overview</source>
        <translation>Analyseübersicht</translation>
    </message>
    <message id="70">
        <source>Do You Want to Save Snapshot Images ?</source>
        <translation>Möchten Sie die Schnappschüsse speichern?</translation>
    </message>
    <message id="71">
        <source>User Name or Password error !</source>
        <translation>Benutzername oder Passwort falsch.</translation>
    </message>
    <message id="72">
        <source>Brand not supported!</source>
        <translation>Marke wird nicht unterstützt.</translation>
    </message>
    <message id="73">
        <source>Camera not supported!</source>
        <translation>Kamera wird nicht unterstützt.</translation>
    </message>
    <message id="74">
        <source>Device connection error!</source>
        <translation>Verbindung zum Gerät fehlgeschlagen.</translation>
    </message>
    <message id="75">
        <source>Device detection timeout!</source>
        <translation>Zeitüberschreitung bei der Geräteerkennung.</translation>
    </message>
    <message id="76">
        <source>Unable to connect to the server!</source>
        <translation>Keine Verbindung zum Server möglich.</translation>
    </message>
    <message id="77">
        <source>Service has not connect yet!</source>
        <translation>Der Dienst ist noch nicht verbunden.</translation>
    </message>
    <message id="78">
        <source>This series of device does not allow repeat add!</source>
        <translation>Geräte dieser Serie können nicht mehrfach hinzugefügt werden.</translation>
    </message>
    <message id="79">
        <source>SEQ by Channel</source>
        <translation>SEQ nach Kanal</translation>
    </message>
    <message id="80">
        <source>SEQ by NVR</source>
        <translation>SEQ nach NVR</translation>
    </message>
    <message id="81">
        <source>SEQ by Pattern</source>
        <translation>SEQ nach Ansicht</translation>
    </message>
    <message id="82">
        <source>NVR List</source>
        <translation>NVR-Liste</translation>
    </message>
    <message id="83">
        <source>Dwell time</source>
        <translation>Verweilzeit</translation>
    </message>
    <message id="84">
        <source>SEQ function is starting, do you want to continue to start SEQ content setting, which will stop SEQ function?</source>
        <translation>Die SEQ-Funktion läuft. Beim Öffnen der SEQ-Einstellungen wird sie angehalten. Möchten Sie fortfahren?</translation>
    </message>
    <message id="85">
        <source>Channel SEQ not available! Please select more than one channel when using this function.</source>
        <translation>Kanal-SEQ nicht verfügbar. Für diese Funktion bitte mehr als einen Kanal auswählen.</translation>
    </message>
    <message id="86">
        <source>NVR SEQ not available! Please select more than one NVR when using this function.</source>
        <translation>NVR-SEQ nicht verfügbar. Für diese Funktion bitte mehr als einen NVR auswählen.</translation>
    </message>
    <message id="87">
        <source>Pattern SEQ not available! Please select more than one patterns when using this function.</source>
        <translation>Ansichten-SEQ nicht verfügbar. Für diese Funktion bitte mehr als eine Ansicht auswählen.</translation>
    </message>
    <message id="88">
        <source>Do you want to enable SEQ by Channel?</source>
        <translation>Möchten Sie SEQ nach Kanal aktivieren?</translation>
    </message>
    <message id="89">
        <source>Do you want to enable SEQ by NVR?</source>
        <translation>Möchten Sie SEQ nach NVR aktivieren?</translation>
    </message>
    <message id="90">
        <source>Do you want to enable SEQ by Pattern?</source>
        <translation>Möchten Sie SEQ nach Ansicht aktivieren?</translation>
    </message>
    <message id="91">
        <source>Camera event setting can't exceed 32!</source>
        <translation>Es sind höchstens 32 Kameraereignis-Einstellungen möglich.</translation>
    </message>
    <message id="92">
        <source>Please add a NVR first!</source>
        <translation>Bitte zuerst einen NVR hinzufügen.</translation>
    </message>
    <message id="93">
        <source>Port number can't accept 0 or more than 65536.</source>
        <translation>Die Portnummer darf nicht 0 oder größer als 65536 sein.</translation>
    </message>
    <message id="94">
        <source>Drive</source>
        <translation>Laufwerk</translation>
    </message>
    <message id="95">
        <source>Size(GB)</source>
        <translation>Größe (GB)</translation>
    </message>
    <message id="96">
        <source>Free(GB)</source>
        <translation>Frei (GB)</translation>
    </message>
    <message id="97">
        <source>Usage(%)</source>
        <translation>Belegt (%)</translation>
    </message>
    <message id="98">
        <source>Storage Path</source>
        <translation>Speicherpfad</translation>
    </message>
    <message id="99">
        <source>Select a Path</source>
        <translation>Pfad auswählen</translation>
    </message>
    <message id="100">
        <source>Live Monitor</source>
        <translation>Live-Anzeige</translation>
    </message>
    <message id="101">
        <source>Event Monitor</source>
        <translation>Ereignisanzeige</translation>
    </message>
    <message id="102">
        <source>Playback</source>
        <translation>Wiedergabe</translation>
    </message>
    <message id="103">
        <source>E-MAP Monitor</source>
        <translation>Lageplananzeige</translation>
    </message>
    <message id="104">
        <source>User Pattern</source>
        <translation>Benutzeransicht</translation>
    </message>
    <message id="105">
        <source>Split</source>
        <translation>Aufteilung</translation>
    </message>
    <message id="106">
        <source>Pattern Name</source>
        <translation>Ansichtsname</translation>
    </message>
    <message id="107">
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message id="108">
        <source>Channel Status</source>
        <translation>Kanalstatus</translation>
    </message>
    <message id="109">
        <source>Network Disconnection</source>
        <translation>Netzwerk getrennt</translation>
    </message>
    <message id="110">
        <source>Network connection</source>
        <translation>Netzwerk verbunden</translation>
    </message>
    <message id="111">
        <source>Recording</source>
        <translation>Aufzeichnung</translation>
    </message>
    <message id="112">
        <source>Event Trigger</source>
        <translation>Ereignis ausgelöst</translation>
    </message>
    <message id="113">
        <source>Connecting</source>
        <translation>Wird verbunden</translation>
    </message>
    <message id="114">
        <source>Video Loss</source>
        <translation>Videoverlust</translation>
    </message>
    <message id="115">
        <source>SEQ Mode</source>
        <translation>SEQ-Modus</translation>
    </message>
    <message id="116">
        <source>(Sec)</source>
        <translation>(Sek.)</translation>
    </message>
    <message id="117">
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message id="118">
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message id="119">
        <source>SEQ contents</source>
        <translation>SEQ-Inhalt</translation>
    </message>
    <message id="120">
        <source>SEQ ALL</source>
        <translation>Alle in SEQ</translation>
    </message>
    <message id="121">
        <source>SEQ</source>
        <translation>SEQ</translation>
    </message>
    <message id="122">
        <source>Pattern SEQ</source>
        <translation>Ansichten-SEQ</translation>
    </message>
    <message id="123">
        <source>Service Mode</source>
        <translation>Servicemodus</translation>
    </message>
    <message id="124">
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message id="125">
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message id="126">
        <source>Event Info</source>
        <translation>Ereignisinfo</translation>
    </message>
    <message id="127">
        <source>Event</source>
        <translation>Ereignis</translation>
    </message>
    <message id="128">
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message id="129">
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message id="130">
        <source>System Info</source>
        <translation>Systeminfo</translation>
    </message>
    <message id="131">
        <source>Info</source>
        <translation>Info</translation>
    </message>
    <message id="132">
        <source>System Time:</source>
        <translation>Systemzeit:</translation>
    </message>
    <message id="133">
        <source>Group Level:</source>
        <translation>Gruppenstufe:</translation>
    </message>
    <message id="134">
        <source>CPU:</source>
        <translation>CPU:</translation>
    </message>
    <message id="135">
        <source>PRESET</source>
        <translation>Festposition</translation>
    </message>
    <message id="136">
        <source>Preset:</source>
        <translation>Festposition:</translation>
    </message>
    <message id="137">
        <source>Unable to support full screen mode or to change split mode under SEQ mode.</source>
        <translation>Vollbild und Wechsel der Aufteilung sind im SEQ-Modus nicht möglich.</translation>
    </message>
    <message id="138">
        <source>Full screen is running. close it first!</source>
        <translation>Das Vollbild ist aktiv. Bitte zuerst schließen.</translation>
    </message>
    <message id="139">
        <source>Unauthorised</source>
        <translation>Keine Berechtigung</translation>
    </message>
    <message id="140">
        <source>Select a channel first.</source>
        <translation>Bitte zuerst einen Kanal auswählen.</translation>
    </message>
    <message id="141">
        <source>Name Repeat!</source>
        <translation>Name bereits vorhanden.</translation>
    </message>
    <message id="142">
        <source>MENU</source>
        <translation>Menü</translation>
    </message>
    <message id="143">
        <source>TREE</source>
        <translation>Baum</translation>
    </message>
    <message id="144">
        <source>PATTERN</source>
        <translation>Ansicht</translation>
    </message>
    <message id="145">
        <source>STATUS</source>
        <translation>Status</translation>
    </message>
    <message id="146">
        <source>SEQ</source>
        <translation>SEQ</translation>
    </message>
    <message id="147">
        <source>SYSTEM</source>
        <translation>System</translation>
    </message>
    <message id="148">
        <source>CH:</source>
        <translation>Kanal:</translation>
    </message>
    <message id="149">
        <source>Reconnection</source>
        <translation>Neu verbinden</translation>
    </message>
    <message id="150">
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message id="151">
        <source>Display Image of Motion Detection </source>
        <translation>Bild der Bewegungserkennung anzeigen </translation>
    </message>
    <message id="152">
        <source>Snapshot</source>
        <translation>Schnappschuss</translation>
    </message>
    <message id="153">
        <source>Preset Point Setting</source>
        <translation>Festposition einstellen</translation>
    </message>
    <message id="154">
        <source>When modify setting, the channel of pattern will be changed.</source>
        <translation>Beim Ändern der Einstellung werden auch die Kanäle der Ansicht geändert.</translation>
    </message>
    <message id="155">
        <source>Snapshot fail !</source>
        <translation>Schnappschuss fehlgeschlagen.</translation>
    </message>
    <message id="156">
        <source>Preset Patrol:</source>
        <translation>Positionsrundgang:</translation>
    </message>
    <message id="157">
        <source>Loading Fullscreen layout data…</source>
        <translation>Vollbildaufteilung wird geladen …</translation>
    </message>
    <message id="158">
        <source>Dock</source>
        <translation>Andocken</translation>
    </message>
    <message id="159">
        <source>Control Panel</source>
        <translation>Bedienfeld</translation>
    </message>
    <message id="160">
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message id="161">
        <source>Channel:</source>
        <translation>Kanal:</translation>
    </message>
    <message id="162">
        <source>CH Name:</source>
        <translation>Kanalname:</translation>
    </message>
    <message id="163">
        <source>Event Mode:</source>
        <translation>Ereignistyp:</translation>
    </message>
    <message id="164">
        <source>Event Trigger Time:</source>
        <translation>Auslösezeit:</translation>
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
        <translation>Wiedergabezeit (System):</translation>
    </message>
    <message id="168">
        <source>Current Event List</source>
        <translation>Aktuelle Ereignisse</translation>
    </message>
    <message id="169">
        <source>Log Event List</source>
        <translation>Protokollierte Ereignisse</translation>
    </message>
    <message id="170">
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message id="171">
        <source>Search All</source>
        <translation>Alle suchen</translation>
    </message>
    <message id="172">
        <source>Search Start Time</source>
        <translation>Suchbeginn</translation>
    </message>
    <message id="173">
        <source>Search by Event type</source>
        <translation>Suche nach Ereignistyp</translation>
    </message>
    <message id="174">
        <source>Item</source>
        <translation>Eintrag</translation>
    </message>
    <message id="175">
        <source>Event ID</source>
        <translation>Ereignis-ID</translation>
    </message>
    <message id="176">
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message id="177">
        <source>System Time</source>
        <translation>Systemzeit</translation>
    </message>
    <message id="178">
        <source>NO.</source>
        <translation>Nr.</translation>
    </message>
    <message id="179">
        <source>CH</source>
        <translation>Kanal</translation>
    </message>
    <message id="180">
        <source>Event Mode</source>
        <translation>Ereignistyp</translation>
    </message>
    <message id="181">
        <source>Process</source>
        <translation>Bearbeitung</translation>
    </message>
    <message id="182">
        <source>On-Line</source>
        <translation>Online</translation>
    </message>
    <message id="183">
        <source>Channel Name</source>
        <translation>Kanalname</translation>
    </message>
    <message id="184">
        <source>Channel Detail</source>
        <translation>Kanaldetails</translation>
    </message>
    <message id="185">
        <source>Play Error</source>
        <translation>Wiedergabefehler</translation>
    </message>
    <message id="186">
        <source>Play Stop</source>
        <translation>Wiedergabe beendet</translation>
    </message>
    <message id="187">
        <source>Live Video</source>
        <translation>Livebild</translation>
    </message>
    <message id="188">
        <source>Live Stop</source>
        <translation>Livebild gestoppt</translation>
    </message>
    <message id="189">
        <source>Off Line</source>
        <translation>Offline</translation>
    </message>
    <message id="190">
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message id="191">
        <source>Motion</source>
        <translation>Bewegung</translation>
    </message>
    <message id="192">
        <source>Sensor</source>
        <translation>Sensor</translation>
    </message>
    <message id="193">
        <source>Return message: </source>
        <translation>Rückmeldung: </translation>
    </message>
    <message id="194">
        <source>NVR no playback resource!</source>
        <translation>Keine Wiedergaberessourcen am NVR frei.</translation>
    </message>
    <message id="195">
        <source>Playback request failed!</source>
        <translation>Wiedergabeanforderung fehlgeschlagen.</translation>
    </message>
    <message id="196">
        <source>Reset Event List</source>
        <translation>Ereignisliste zurücksetzen</translation>
    </message>
    <message id="197">
        <source>X</source>
        <translation>X</translation>
    </message>
    <message id="198">
        <source>Return</source>
        <translation>Zurück</translation>
    </message>
    <message id="199">
        <source>SEQ Duration Time</source>
        <translation>SEQ-Dauer</translation>
    </message>
    <message id="200">
        <source>Playback Info</source>
        <translation>Wiedergabeinfo</translation>
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
        <translation>Geschwindigkeit:</translation>
    </message>
    <message id="204">
        <source>Sun</source>
        <translation>So</translation>
    </message>
    <message id="205">
        <source>Mon</source>
        <translation>Mo</translation>
    </message>
    <message id="206">
        <source>Tue</source>
        <translation>Di</translation>
    </message>
    <message id="207">
        <source>Wed</source>
        <translation>Mi</translation>
    </message>
    <message id="208">
        <source>Thu</source>
        <translation>Do</translation>
    </message>
    <message id="209">
        <source>Fri</source>
        <translation>Fr</translation>
    </message>
    <message id="210">
        <source>Sat</source>
        <translation>Sa</translation>
    </message>
    <message id="211">
        <source>Event List</source>
        <translation>Ereignisliste</translation>
    </message>
    <message id="212">
        <source>Receiving recording data failed</source>
        <translation>Empfang der Aufzeichnungsdaten fehlgeschlagen.</translation>
    </message>
    <message id="213">
        <source>RF</source>
        <translation>Rücklauf</translation>
    </message>
    <message id="214">
        <source>STOP</source>
        <translation>Stopp</translation>
    </message>
    <message id="215">
        <source>PLAY</source>
        <translation>Wiedergabe</translation>
    </message>
    <message id="216">
        <source>PAUSE</source>
        <translation>Pause</translation>
    </message>
    <message id="217">
        <source>FF</source>
        <translation>Vorlauf</translation>
    </message>
    <message id="218">
        <source>NEXT</source>
        <translation>Weiter</translation>
    </message>
    <message id="219">
        <source>No recording data can be Displayed !</source>
        <translation>Keine Aufzeichnung zum Anzeigen vorhanden.</translation>
    </message>
    <message id="220">
        <source>Play Stop ! Need to select new time.</source>
        <translation>Wiedergabe beendet. Bitte eine neue Zeit wählen.</translation>
    </message>
    <message id="221">
        <source>No response! you can try again or select another device !</source>
        <translation>Keine Antwort. Bitte erneut versuchen oder ein anderes Gerät wählen.</translation>
    </message>
    <message id="222">
        <source>Disconnection ! </source>
        <translation>Verbindung getrennt. </translation>
    </message>
    <message id="223">
        <source>Can not get video stream ! please select other Channel.</source>
        <translation>Kein Videostream verfügbar. Bitte einen anderen Kanal auswählen.</translation>
    </message>
    <message id="224">
        <source>No recording data.</source>
        <translation>Keine Aufzeichnung vorhanden.</translation>
    </message>
    <message id="225">
        <source>Recording data is updating, please wait .</source>
        <translation>Aufzeichnungsdaten werden aktualisiert, bitte warten.</translation>
    </message>
    <message id="226">
        <source>Convert to AVI</source>
        <translation>In AVI umwandeln</translation>
    </message>
    <message id="227">
        <source>Do you want to stop the conversion of avi file ?</source>
        <translation>Möchten Sie die Umwandlung in eine AVI-Datei abbrechen?</translation>
    </message>
    <message id="228">
        <source>AVI file conversion complete! File is... </source>
        <translation>AVI-Umwandlung abgeschlossen. Datei … </translation>
    </message>
    <message id="229">
        <source>Converting AVI file!</source>
        <translation>AVI-Datei wird umgewandelt.</translation>
    </message>
    <message id="230">
        <source>AVI Conversion Fail !</source>
        <translation>AVI-Umwandlung fehlgeschlagen.</translation>
    </message>
    <message id="231">
        <source>Auto Pan:</source>
        <translation>Auto-Schwenk:</translation>
    </message>
    <message id="232">
        <source>Single Video</source>
        <translation>Ein Bild</translation>
    </message>
    <message id="233">
        <source>Quad Videos</source>
        <translation>Vier Bilder</translation>
    </message>
    <message id="234">
        <source>Nine Videos</source>
        <translation>Neun Bilder</translation>
    </message>
    <message id="235">
        <source>No any SVD has been set, you need to add any SVD to control!</source>
        <translation>Es ist kein SVD eingerichtet. Bitte zuerst einen SVD hinzufügen.</translation>
    </message>
    <message id="236">
        <source>This channel has been set to display in this screen!</source>
        <translation>Dieser Kanal wird auf diesem Bildschirm bereits angezeigt.</translation>
    </message>
    <message id="237">
        <source>Are you sure to exit SVD console monitor?</source>
        <translation>Möchten Sie die SVD-Konsole wirklich beenden?</translation>
    </message>
    <message id="238">
        <source>Click here to reconnect again!</source>
        <translation>Zum erneuten Verbinden hier klicken.</translation>
    </message>
    <message id="239">
        <source>SVD UI is changing…</source>
        <translation>SVD-Oberfläche wird umgeschaltet …</translation>
    </message>
    <message id="240">
        <source>NO.:</source>
        <translation>Nr.:</translation>
    </message>
    <message id="241">
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message id="242">
        <source>Number of Camera:</source>
        <translation>Anzahl Kameras:</translation>
    </message>
    <message id="243">
        <source>Event:</source>
        <translation>Ereignis:</translation>
    </message>
    <message id="244">
        <source>No Event</source>
        <translation>Kein Ereignis</translation>
    </message>
    <message id="245">
        <source>CH:</source>
        <translation>Kanal:</translation>
    </message>
    <message id="246">
        <source>Up</source>
        <translation>Aufwärts</translation>
    </message>
    <message id="247">
        <source>Down</source>
        <translation>Abwärts</translation>
    </message>
    <message id="248">
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message id="249">
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message id="250">
        <source>Upper left</source>
        <translation>Links oben</translation>
    </message>
    <message id="251">
        <source>Upper right</source>
        <translation>Rechts oben</translation>
    </message>
    <message id="252">
        <source>Lower left</source>
        <translation>Links unten</translation>
    </message>
    <message id="253">
        <source>Lower right</source>
        <translation>Rechts unten</translation>
    </message>
    <message id="254">
        <source>Home</source>
        <translation>Grundstellung</translation>
    </message>
    <message id="255">
        <source>Zoom In</source>
        <translation>Heranzoomen</translation>
    </message>
    <message id="256">
        <source>Zoom Out</source>
        <translation>Herauszoomen</translation>
    </message>
    <message id="257">
        <source>Focus Far</source>
        <translation>Fokus fern</translation>
    </message>
    <message id="258">
        <source>Focus Near</source>
        <translation>Fokus nah</translation>
    </message>
    <message id="259">
        <source>Auto Focus</source>
        <translation>Autofokus</translation>
    </message>
    <message id="260">
        <source>IRIS Auto</source>
        <translation>Blende auto</translation>
    </message>
    <message id="261">
        <source>IRIS Close</source>
        <translation>Blende zu</translation>
    </message>
    <message id="262">
        <source>IRIS Open</source>
        <translation>Blende auf</translation>
    </message>
    <message id="263">
        <source>Auto Pan Left</source>
        <translation>Auto-Schwenk links</translation>
    </message>
    <message id="264">
        <source>Auto Pan Right</source>
        <translation>Auto-Schwenk rechts</translation>
    </message>
    <message id="265">
        <source>Auto Pan Stop</source>
        <translation>Auto-Schwenk stopp</translation>
    </message>
    <message id="266">
        <source>Moving Rate(+)</source>
        <translation>Tempo (+)</translation>
    </message>
    <message id="267">
        <source>Moving Rate(-)</source>
        <translation>Tempo (-)</translation>
    </message>
    <message id="268">
        <source>Display OSD on all channels</source>
        <translation>OSD auf allen Kanälen anzeigen</translation>
    </message>
    <message id="269">
        <source>Display OSD</source>
        <translation>OSD anzeigen</translation>
    </message>
    <message id="270">
        <source>Detail Export:</source>
        <translation>Detailexport:</translation>
    </message>
    <message id="271">
        <source>Valid Ch</source>
        <translation>Gültige Kanäle</translation>
    </message>
    <message id="272">
        <source>Auto Search</source>
        <translation>Automatische Suche</translation>
    </message>
    <message id="273">
        <source>Manual Detection</source>
        <translation>Manuelle Erkennung</translation>
    </message>
    <message id="274">
        <source>NVR ID:</source>
        <translation>NVR-ID:</translation>
    </message>
    <message id="275">
        <source>IP:</source>
        <translation>IP:</translation>
    </message>
    <message id="276">
        <source>HTTP Port:</source>
        <translation>HTTP-Port:</translation>
    </message>
    <message id="277">
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message id="278">
        <source>Device Name</source>
        <translation>Gerätename</translation>
    </message>
    <message id="279">
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message id="280">
        <source>CHs</source>
        <translation>Kanäle</translation>
    </message>
    <message id="281">
        <source>Model:</source>
        <translation>Modell:</translation>
    </message>
    <message id="282">
        <source>Max Channel:</source>
        <translation>Max. Kanäle:</translation>
    </message>
    <message id="283">
        <source>NVR Name:</source>
        <translation>NVR-Name:</translation>
    </message>
    <message id="284">
        <source>Version:</source>
        <translation>Version:</translation>
    </message>
    <message id="285">
        <source>Valid Channel:</source>
        <translation>Gültige Kanäle:</translation>
    </message>
    <message id="286">
        <source>Sync With NVR</source>
        <translation>Mit NVR abgleichen</translation>
    </message>
    <message id="287">
        <source>Add New NVR </source>
        <translation>Neuen NVR hinzufügen </translation>
    </message>
    <message id="288">
        <source>NVR Search List</source>
        <translation>Gefundene NVR</translation>
    </message>
    <message id="289">
        <source>NVR Detect Status</source>
        <translation>NVR-Erkennungsstatus</translation>
    </message>
    <message id="290">
        <source>NVR Detail Setting</source>
        <translation>NVR-Details</translation>
    </message>
    <message id="291">
        <source>NVR Channel Setting</source>
        <translation>NVR-Kanaleinstellungen</translation>
    </message>
    <message id="292">
        <source>Preset Sequence Setting</source>
        <translation>Positionssequenz einstellen</translation>
    </message>
    <message id="293">
        <source>Get Capability...</source>
        <translation>Funktionsumfang wird abgefragt …</translation>
    </message>
    <message id="294">
        <source>Get Channel Info...</source>
        <translation>Kanaldaten werden abgefragt …</translation>
    </message>
    <message id="295">
        <source>Get NVR Info...</source>
        <translation>NVR-Daten werden abgefragt …</translation>
    </message>
    <message id="296">
        <source>Initial NVR Value...</source>
        <translation>NVR-Werte werden initialisiert …</translation>
    </message>
    <message id="297">
        <source>Add Success!</source>
        <translation>Erfolgreich hinzugefügt.</translation>
    </message>
    <message id="298">
        <source>Channel List</source>
        <translation>Kanalliste</translation>
    </message>
    <message id="299">
        <source>Split:</source>
        <translation>Aufteilung:</translation>
    </message>
    <message id="300">
        <source>MainViewer opened. Close it First!</source>
        <translation>Die Hauptanzeige ist geöffnet. Bitte zuerst schließen.</translation>
    </message>
    <message id="301">
        <source>System &amp; Setting</source>
        <translation>System und Einstellungen</translation>
    </message>
    <message id="302">
        <source>Setting</source>
        <translation>Einstellungen</translation>
    </message>
    <message id="303">
        <source>Manual Setting</source>
        <translation>Manuelle Einstellung</translation>
    </message>
    <message id="304">
        <source>PTZ Config</source>
        <translation>PTZ-Konfiguration</translation>
    </message>
    <message id="305">
        <source>Motion Setting</source>
        <translation>Bewegungseinstellungen</translation>
    </message>
    <message id="306">
        <source>Motion Setting</source>
        <translation>Bewegungseinstellungen</translation>
    </message>
    <message id="307">
        <source>General Setting Overview</source>
        <translation>Übersicht allgemeine Einstellungen</translation>
    </message>
    <message id="308">
        <source>Group/User Config</source>
        <translation>Gruppen/Benutzer</translation>
    </message>
    <message id="309">
        <source>Event Handling Config</source>
        <translation>Ereignisbehandlung</translation>
    </message>
    <message id="310">
        <source>E-Map Config</source>
        <translation>Lageplan-Konfiguration</translation>
    </message>
    <message id="311">
        <source>Screen Layout Config</source>
        <translation>Bildschirmaufteilung</translation>
    </message>
    <message id="312">
        <source>Event Action Overview</source>
        <translation>Übersicht Ereignisaktionen</translation>
    </message>
    <message id="313">
        <source>Mail Config</source>
        <translation>E-Mail-Konfiguration</translation>
    </message>
    <message id="314">
        <source>FTP Config</source>
        <translation>FTP-Konfiguration</translation>
    </message>
    <message id="315">
        <source>Message Config</source>
        <translation>Nachrichtenkonfiguration</translation>
    </message>
    <message id="316">
        <source>Sound Config</source>
        <translation>Tonkonfiguration</translation>
    </message>
    <message id="317">
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message id="318">
        <source>Main Viewer</source>
        <translation>Hauptanzeige</translation>
    </message>
    <message id="319">
        <source>Exit</source>
        <translation>Beenden</translation>
    </message>
    <message id="320">
        <source>Setup</source>
        <translation>Einrichtung</translation>
    </message>
    <message id="321">
        <source>SEQ Control</source>
        <translation>SEQ-Steuerung</translation>
    </message>
    <message id="322">
        <source>Pattern Name:</source>
        <translation>Ansichtsname:</translation>
    </message>
    <message id="323">
        <source>Do you continue to delete this pattern?</source>
        <translation>Möchten Sie diese Ansicht wirklich löschen?</translation>
    </message>
    <message id="324">
        <source>Pattern List Overview</source>
        <translation>Übersicht Ansichten</translation>
    </message>
    <message id="325">
        <source>Name or Channel list need to be set!</source>
        <translation>Name oder Kanalliste muss angegeben werden.</translation>
    </message>
    <message id="326">
        <source>Live Monitor SEQ and full screen can not be opened at the same time.</source>
        <translation>SEQ und Vollbild der Live-Anzeige können nicht gleichzeitig geöffnet sein.</translation>
    </message>
    <message id="327">
        <source>No channel is selected!</source>
        <translation>Kein Kanal ausgewählt.</translation>
    </message>
    <message id="328">
        <source>Select time is out of data range!</source>
        <translation>Die gewählte Zeit liegt außerhalb des Datenbereichs.</translation>
    </message>
    <message id="329">
        <source>NVR is invalid!</source>
        <translation>NVR ist ungültig.</translation>
    </message>
    <message id="330">
        <source>System Setting</source>
        <translation>Systemeinstellungen</translation>
    </message>
    <message id="331">
        <source>Application name:</source>
        <translation>Anwendungsname:</translation>
    </message>
    <message id="332">
        <source>Version:</source>
        <translation>Version:</translation>
    </message>
    <message id="333">
        <source>Language:</source>
        <translation>Sprache:</translation>
    </message>
    <message id="334">
        <source>Start Up:</source>
        <translation>Programmstart:</translation>
    </message>
    <message id="335">
        <source>Event Sync Time:</source>
        <translation>Ereignisabgleich:</translation>
    </message>
    <message id="336">
        <source>Snapshot Count:</source>
        <translation>Schnappschüsse:</translation>
    </message>
    <message id="337">
        <source>Camera Event Server Setting</source>
        <translation>Kamera-Ereignisserver-Einstellungen</translation>
    </message>
    <message id="338">
        <source>Account:</source>
        <translation>Konto:</translation>
    </message>
    <message id="339">
        <source>Password:</source>
        <translation>Passwort:</translation>
    </message>
    <message id="340">
        <source>Port:</source>
        <translation>Port:</translation>
    </message>
    <message id="341">
        <source>System Info</source>
        <translation>Systeminfo</translation>
    </message>
    <message id="343">
        <source>OS:</source>
        <translation>Betriebssystem:</translation>
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
        <translation>Computername:</translation>
    </message>
    <message id="347">
        <source>Total space of HD:</source>
        <translation>Festplattenkapazität:</translation>
    </message>
    <message id="348">
        <source>Network Connect Status:</source>
        <translation>Netzwerkstatus:</translation>
    </message>
    <message id="349">
        <source>System Time:</source>
        <translation>Systemzeit:</translation>
    </message>
    <message id="350">
        <source>Screen Count:</source>
        <translation>Anzahl Bildschirme:</translation>
    </message>
    <message id="351">
        <source>CPU Performance:</source>
        <translation>CPU-Auslastung:</translation>
    </message>
    <message id="352">
        <source>Login Windows then Auto Start up </source>
        <translation>Nach der Windows-Anmeldung automatisch starten </translation>
    </message>
    <message id="353">
        <source>Start in background</source>
        <translation>Im Hintergrund starten</translation>
    </message>
    <message id="354">
        <source>Minute</source>
        <translation>Minuten</translation>
    </message>
    <message id="356">
        <source>NVR is connecting, wait a moment and start again!</source>
        <translation>Der NVR verbindet sich. Bitte einen Moment warten und erneut starten.</translation>
    </message>
    <message id="357">
        <source>NVR is offline, please choose another NVR or confirm this NVR connection status!</source>
        <translation>Der NVR ist offline. Bitte einen anderen NVR wählen oder seine Verbindung prüfen.</translation>
    </message>
    <message id="358">
        <source>Output device has been removed!</source>
        <translation>Das Ausgabegerät wurde entfernt.</translation>
    </message>
    <message id="359">
        <source>Password confirm inconsistency, Please check again!</source>
        <translation>Die Passwörter stimmen nicht überein. Bitte erneut prüfen.</translation>
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
        <translation>Name</translation>
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
        <translation>Berechtigung</translation>
    </message>
    <message id="366">
        <source>CH</source>
        <translation>Kanal</translation>
    </message>
    <message id="367">
        <source>CH Name</source>
        <translation>Kanalname</translation>
    </message>
    <message id="368">
        <source>CH IP</source>
        <translation>Kanal-IP</translation>
    </message>
    <message id="369">
        <source>CH Port</source>
        <translation>Kanalport</translation>
    </message>
    <message id="370">
        <source>CH Brand</source>
        <translation>Kanalmarke</translation>
    </message>
    <message id="371">
        <source>Video Format</source>
        <translation>Videoformat</translation>
    </message>
    <message id="372">
        <source>Video RES</source>
        <translation>Videoauflösung</translation>
    </message>
    <message id="373">
        <source>MD Enable</source>
        <translation>Bewegung aktiv</translation>
    </message>
    <message id="374">
        <source>MD Sen</source>
        <translation>Empfindlichkeit</translation>
    </message>
    <message id="375">
        <source>CH PTZ</source>
        <translation>Kanal-PTZ</translation>
    </message>
    <message id="376">
        <source>CH audio</source>
        <translation>Kanalaudio</translation>
    </message>
    <message id="377">
        <source>Detect List</source>
        <translation>Erkennungsliste</translation>
    </message>
    <message id="378">
        <source>Advance Control </source>
        <translation>Erweiterte Steuerung </translation>
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
        <translation>Marke</translation>
    </message>
    <message id="382">
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message id="383">
        <source>MAC</source>
        <translation>MAC</translation>
    </message>
    <message id="384">
        <source>Detect Time</source>
        <translation>Erkennungszeit</translation>
    </message>
    <message id="385">
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message id="386">
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message id="387">
        <source>Modify</source>
        <translation>Ändern</translation>
    </message>
    <message id="388">
        <source>Reconection </source>
        <translation>Neu verbinden </translation>
    </message>
    <message id="389">
        <source>Open Browser</source>
        <translation>Browser öffnen</translation>
    </message>
    <message id="390">
        <source>Preset Info</source>
        <translation>Positionsinfo</translation>
    </message>
    <message id="391">
        <source>Sync</source>
        <translation>Abgleichen</translation>
    </message>
    <message id="392">
        <source>Edit Preset</source>
        <translation>Position bearbeiten</translation>
    </message>
    <message id="393">
        <source>Preset No</source>
        <translation>Positionsnummer</translation>
    </message>
    <message id="394">
        <source>Preset Name</source>
        <translation>Positionsname</translation>
    </message>
    <message id="395">
        <source>PTZ Control</source>
        <translation>PTZ-Steuerung</translation>
    </message>
    <message id="396">
        <source>Submit</source>
        <translation>Bestätigen</translation>
    </message>
    <message id="397">
        <source>Motion Detect List:</source>
        <translation>Liste Bewegungserkennung:</translation>
    </message>
    <message id="398">
        <source>Sensitivity:</source>
        <translation>Empfindlichkeit:</translation>
    </message>
    <message id="399">
        <source>Motion Detect Setting</source>
        <translation>Einstellungen Bewegungserkennung</translation>
    </message>
    <message id="400">
        <source>*Use Mouse drag the Device item into Intelligent detection List.</source>
        <translation>*Geräte mit der Maus in die Liste der Videoanalyse ziehen.</translation>
    </message>
    <message id="401">
        <source>Device List:</source>
        <translation>Geräteliste:</translation>
    </message>
    <message id="402">
        <source>Trigger for Motion Detect</source>
        <translation>Auslösung bei Bewegung</translation>
    </message>
    <message id="403">
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message id="404">
        <source>Motion Enable List:</source>
        <translation>Bewegungserkennung aktiv:</translation>
    </message>
    <message id="405">
        <source>Clear All</source>
        <translation>Alles löschen</translation>
    </message>
    <message id="406">
        <source>Select All</source>
        <translation>Alle auswählen</translation>
    </message>
    <message id="407">
        <source>High</source>
        <translation>Hoch</translation>
    </message>
    <message id="408">
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message id="409">
        <source>Low</source>
        <translation>Niedrig</translation>
    </message>
    <message id="410">
        <source>SET</source>
        <translation>Setzen</translation>
    </message>
    <message id="411">
        <source>User List:</source>
        <translation>Benutzerliste:</translation>
    </message>
    <message id="412">
        <source>Group List:</source>
        <translation>Gruppenliste:</translation>
    </message>
    <message id="413">
        <source>Event Setting List:</source>
        <translation>Ereigniseinstellungen:</translation>
    </message>
    <message id="414">
        <source>EMap List:</source>
        <translation>Lageplanliste:</translation>
    </message>
    <message id="415">
        <source>Screen List:</source>
        <translation>Bildschirmliste:</translation>
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
        <translation>E-Mail 1</translation>
    </message>
    <message id="420">
        <source>Mail 2</source>
        <translation>E-Mail 2</translation>
    </message>
    <message id="421">
        <source>Cell Phone</source>
        <translation>Mobiltelefon</translation>
    </message>
    <message id="422">
        <source>Photo Path</source>
        <translation>Fotopfad</translation>
    </message>
    <message id="423">
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message id="424">
        <source>Event</source>
        <translation>Ereignis</translation>
    </message>
    <message id="425">
        <source>Mail</source>
        <translation>E-Mail</translation>
    </message>
    <message id="426">
        <source>FTP</source>
        <translation>FTP</translation>
    </message>
    <message id="427">
        <source>Msg</source>
        <translation>Nachricht</translation>
    </message>
    <message id="428">
        <source>Sound</source>
        <translation>Ton</translation>
    </message>
    <message id="429">
        <source>Video Power</source>
        <translation>Videoberechtigung</translation>
    </message>
    <message id="430">
        <source>Playback</source>
        <translation>Wiedergabe</translation>
    </message>
    <message id="431">
        <source>PTZ</source>
        <translation>PTZ</translation>
    </message>
    <message id="432">
        <source>Setup</source>
        <translation>Einrichtung</translation>
    </message>
    <message id="433">
        <source>Map</source>
        <translation>Lageplan</translation>
    </message>
    <message id="434">
        <source>Path</source>
        <translation>Pfad</translation>
    </message>
    <message id="435">
        <source>Function</source>
        <translation>Funktion</translation>
    </message>
    <message id="436">
        <source>Screen</source>
        <translation>Bildschirm</translation>
    </message>
    <message id="437">
        <source>MainMap</source>
        <translation>Hauptplan</translation>
    </message>
    <message id="438">
        <source>FullScreen</source>
        <translation>Vollbild</translation>
    </message>
    <message id="439">
        <source>FullScreen2</source>
        <translation>Vollbild 2</translation>
    </message>
    <message id="440">
        <source>User Detail List</source>
        <translation>Benutzerdetails</translation>
    </message>
    <message id="441">
        <source>Group List</source>
        <translation>Gruppenliste</translation>
    </message>
    <message id="442">
        <source>Add User</source>
        <translation>Benutzer hinzufügen</translation>
    </message>
    <message id="443">
        <source>Remove User</source>
        <translation>Benutzer entfernen</translation>
    </message>
    <message id="444">
        <source>Modify User</source>
        <translation>Benutzer ändern</translation>
    </message>
    <message id="445">
        <source>Modify Group</source>
        <translation>Gruppe ändern</translation>
    </message>
    <message id="446">
        <source>System Event Trigger Action</source>
        <translation>Aktion bei Systemereignis</translation>
    </message>
    <message id="447">
        <source>NVR Event Trigger Action</source>
        <translation>Aktion bei NVR-Ereignis</translation>
    </message>
    <message id="448">
        <source>System Start/Stop</source>
        <translation>Systemstart/-stopp</translation>
    </message>
    <message id="449">
        <source>Modify Setting of System</source>
        <translation>Änderung der Systemeinstellungen</translation>
    </message>
    <message id="450">
        <source>Modify Setting of NVR</source>
        <translation>Änderung der NVR-Einstellungen</translation>
    </message>
    <message id="451">
        <source>Modify Setting of Intelligent detection</source>
        <translation>Änderung der Analyseeinstellungen</translation>
    </message>
    <message id="452">
        <source>Modify Setting of General</source>
        <translation>Änderung der allgemeinen Einstellungen</translation>
    </message>
    <message id="453">
        <source>Modify Setting of Event</source>
        <translation>Änderung der Ereigniseinstellungen</translation>
    </message>
    <message id="454">
        <source>E1:Motion Detect</source>
        <translation>E1: Bewegungserkennung</translation>
    </message>
    <message id="455">
        <source>Sensor Detection</source>
        <translation>Sensorerkennung</translation>
    </message>
    <message id="456">
        <source>*Double Click Map to Setting</source>
        <translation>*Zum Einstellen auf den Lageplan doppelklicken</translation>
    </message>
    <message id="457">
        <source>SubMap</source>
        <translation>Unterplan</translation>
    </message>
    <message id="458">
        <source>Screen Layout</source>
        <translation>Bildschirmaufteilung</translation>
    </message>
    <message id="459">
        <source>Mail</source>
        <translation>E-Mail</translation>
    </message>
    <message id="460">
        <source>FTP</source>
        <translation>FTP</translation>
    </message>
    <message id="461">
        <source>Message</source>
        <translation>Nachricht</translation>
    </message>
    <message id="462">
        <source>Sound</source>
        <translation>Ton</translation>
    </message>
    <message id="463">
        <source>Sender E-mail Address</source>
        <translation>E-Mail-Adresse des Absenders</translation>
    </message>
    <message id="464">
        <source>Mail Server</source>
        <translation>Mailserver</translation>
    </message>
    <message id="465">
        <source>User</source>
        <translation>Benutzer</translation>
    </message>
    <message id="466">
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message id="467">
        <source>Adressee Name</source>
        <translation>Empfängername</translation>
    </message>
    <message id="468">
        <source>Mail Addrrss</source>
        <translation>E-Mail-Adresse</translation>
    </message>
    <message id="469">
        <source>Server IP</source>
        <translation>Server-IP</translation>
    </message>
    <message id="470">
        <source>Server Port</source>
        <translation>Serverport</translation>
    </message>
    <message id="471">
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message id="472">
        <source>Sound Description</source>
        <translation>Tonbeschreibung</translation>
    </message>
    <message id="473">
        <source>Sound File Path</source>
        <translation>Pfad der Tondatei</translation>
    </message>
    <message id="474">
        <source>Test</source>
        <translation>Testen</translation>
    </message>
    <message id="475">
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message id="476">
        <source>Mail to</source>
        <translation>E-Mail an</translation>
    </message>
    <message id="477">
        <source>FTP Setting</source>
        <translation>FTP-Einstellungen</translation>
    </message>
    <message id="478">
        <source>Message Setting</source>
        <translation>Nachrichteneinstellungen</translation>
    </message>
    <message id="479">
        <source>Message</source>
        <translation>Nachricht</translation>
    </message>
    <message id="480">
        <source>Sound Setting</source>
        <translation>Toneinstellungen</translation>
    </message>
    <message id="481">
        <source>Set HTTP Server failed! Do you want to remove all HTTP Servers?</source>
        <translation>HTTP-Server konnte nicht eingestellt werden. Möchten Sie alle HTTP-Server entfernen?</translation>
    </message>
    <message id="482">
        <source>The amount cannot be more than 16!</source>
        <translation>Die Anzahl darf höchstens 16 betragen.</translation>
    </message>
    <message id="483">
        <source>Do you want to delete the selected NVR?</source>
        <translation>Möchten Sie den ausgewählten NVR löschen?</translation>
    </message>
    <message id="484">
        <source>Sender name can't be empty!</source>
        <translation>Der Absendername darf nicht leer sein.</translation>
    </message>
    <message id="485">
        <source>Mail Server can't be empty!</source>
        <translation>Der Mailserver darf nicht leer sein.</translation>
    </message>
    <message id="486">
        <source>User can't be empty!</source>
        <translation>Der Benutzername darf nicht leer sein.</translation>
    </message>
    <message id="487">
        <source>Password can't be empty!</source>
        <translation>Das Passwort darf nicht leer sein.</translation>
    </message>
    <message id="488">
        <source>Mail Address can't be empty!</source>
        <translation>Die E-Mail-Adresse darf nicht leer sein.</translation>
    </message>
    <message id="489">
        <source>Test mail sent success.</source>
        <translation>Test-E-Mail erfolgreich gesendet.</translation>
    </message>
    <message id="490">
        <source>Test mail sent failed.</source>
        <translation>Test-E-Mail konnte nicht gesendet werden.</translation>
    </message>
    <message id="491">
        <source>Server IP can't be empty!</source>
        <translation>Die Server-IP darf nicht leer sein.</translation>
    </message>
    <message id="492">
        <source>Server Port can't be empty!</source>
        <translation>Der Serverport darf nicht leer sein.</translation>
    </message>
    <message id="493">
        <source>Root Path can't be empty!</source>
        <translation>Der Stammpfad darf nicht leer sein.</translation>
    </message>
    <message id="494">
        <source>Connecting to ftp server success.</source>
        <translation>Verbindung zum FTP-Server erfolgreich.</translation>
    </message>
    <message id="495">
        <source>Connecting to ftp server failed.</source>
        <translation>Verbindung zum FTP-Server fehlgeschlagen.</translation>
    </message>
    <message id="496">
        <source>Message can't be empty!</source>
        <translation>Die Nachricht darf nicht leer sein.</translation>
    </message>
    <message id="497">
        <source>Sound Description can't be empty!</source>
        <translation>Die Tonbeschreibung darf nicht leer sein.</translation>
    </message>
    <message id="498">
        <source>Sound file Path can't be empty!</source>
        <translation>Der Pfad der Tondatei darf nicht leer sein.</translation>
    </message>
    <message id="499">
        <source>Preset number select first.</source>
        <translation>Bitte zuerst die Nummer der Festposition auswählen.</translation>
    </message>
    <message id="500">
        <source>The Preset Name has been used.</source>
        <translation>Der Name der Festposition ist bereits vergeben.</translation>
    </message>
    <message id="501">
        <source>Do you want to delete the selected User?</source>
        <translation>Möchten Sie den ausgewählten Benutzer löschen?</translation>
    </message>
    <message id="502">
        <source>Can't Delete User.</source>
        <translation>Der Benutzer kann nicht gelöscht werden.</translation>
    </message>
    <message id="503">
        <source>Already Set.</source>
        <translation>Bereits eingestellt.</translation>
    </message>
    <message id="504">
        <source>Intelligent setting can't exceed 16</source>
        <translation>Höchstens 16 Kanäle mit Videoanalyse möglich.</translation>
    </message>
    <message id="505">
        <source>Add NVR failed! Please add again.</source>
        <translation>NVR konnte nicht hinzugefügt werden. Bitte erneut hinzufügen.</translation>
    </message>
    <message id="506">
        <source>File Size can't more than 5MB</source>
        <translation>Die Datei darf nicht größer als 5 MB sein.</translation>
    </message>
    <message id="507">
        <source>Save OK</source>
        <translation>Gespeichert.</translation>
    </message>
    <message id="508">
        <source>Exit and Open MainViewer?</source>
        <translation>Möchten Sie beenden und die Hauptanzeige öffnen?</translation>
    </message>
    <message id="509">
        <source>Do you want to exit?</source>
        <translation>Möchten Sie das Programm beenden?</translation>
    </message>
    <message id="510">
        <source>Resolution Not Support .</source>
        <translation>Auflösung wird nicht unterstützt.</translation>
    </message>
    <message id="511">
        <source>Do you want to Save?</source>
        <translation>Möchten Sie speichern?</translation>
    </message>
    <message id="512">
        <source>The Channel does not support motion detection or is no connection !</source>
        <translation>Der Kanal unterstützt keine Bewegungserkennung oder ist nicht verbunden.</translation>
    </message>
    <message id="513">
        <source>No setting !</source>
        <translation>Keine Einstellung.</translation>
    </message>
    <message id="514">
        <source>Settings have changed , Do you want to save ?</source>
        <translation>Die Einstellungen wurden geändert. Möchten Sie speichern?</translation>
    </message>
    <message id="515">
        <source>Not yet set of Event Action config!</source>
        <translation>Die Ereignisaktion ist noch nicht konfiguriert.</translation>
    </message>
    <message id="516">
        <source>Video can't connection.</source>
        <translation>Keine Videoverbindung möglich.</translation>
    </message>
    <message id="517">
        <source>Submit</source>
        <translation>Bestätigen</translation>
    </message>
    <message id="518">
        <source>Save Setting</source>
        <translation>Einstellungen speichern</translation>
    </message>
    <message id="519">
        <source>Close this window</source>
        <translation>Dieses Fenster schließen</translation>
    </message>
    <message id="520">
        <source>Preset Sequence</source>
        <translation>Positionssequenz</translation>
    </message>
    <message id="521">
        <source>Dwell Time:</source>
        <translation>Verweilzeit:</translation>
    </message>
    <message id="522">
        <source>PTZ Preset</source>
        <translation>PTZ-Festposition</translation>
    </message>
    <message id="523">
        <source>Preset Sequence</source>
        <translation>Positionssequenz</translation>
    </message>
    <message id="524">
        <source>Select a wave file</source>
        <translation>WAV-Datei auswählen</translation>
    </message>
    <message id="525">
        <source>File Name: </source>
        <translation>Dateiname: </translation>
    </message>
    <message id="526">
        <source>Message sent successfully!</source>
        <translation>Nachricht erfolgreich gesendet.</translation>
    </message>
    <message id="527">
        <source>Sending Message fail!</source>
        <translation>Nachricht konnte nicht gesendet werden.</translation>
    </message>
    <message id="528">
        <source>MAX Video</source>
        <translation>Video maximieren</translation>
    </message>
    <message id="529">
        <source>Enable/Disable auto switch group to display videos.</source>
        <translation>Automatischen Gruppenwechsel der Videos ein-/ausschalten.</translation>
    </message>
    <message id="530">
        <source>Enable/Disable maximum video to display.</source>
        <translation>Maximierte Videoanzeige ein-/ausschalten.</translation>
    </message>
    <message id="531">
        <source>Live Video</source>
        <translation>Livebild</translation>
    </message>
    <message id="532">
        <source>Do you want to cancel playback for NVR?</source>
        <translation>Möchten Sie die Wiedergabe für den NVR abbrechen?</translation>
    </message>
    <message id="533">
        <source>The selected time doesn't have any recording data!</source>
        <translation>Zur gewählten Zeit gibt es keine Aufzeichnung.</translation>
    </message>
    <message id="534">
        <source>Select channel you want to change and reset the relational data information?</source>
        <translation>Möchten Sie den gewählten Kanal ändern und die zugehörigen Daten zurücksetzen?</translation>
    </message>
    <message id="535">
        <source>This NVR cannot get group ID to playback!</source>
        <translation>Dieser NVR liefert keine Gruppen-ID für die Wiedergabe.</translation>
    </message>
    <message id="536">
        <source>Select the SVD has been disconnected, so close the panel and make sure that SVD status!</source>
        <translation>Die Verbindung zum gewählten SVD ist getrennt. Das Bedienfeld wird geschlossen, bitte den SVD-Status prüfen.</translation>
    </message>
    <message id="550">
        <source>IP Address</source>
        <translation>IP-Adresse</translation>
    </message>
    <message id="551">
        <source>Http Port</source>
        <translation>HTTP-Port</translation>
    </message>
    <message id="552">
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message id="553">
        <source>NVR Name can't be empty!</source>
        <translation>Der NVR-Name darf nicht leer sein.</translation>
    </message>
    <message id="554">
        <source>IP address or hostname set incorrectly!</source>
        <translation>IP-Adresse oder Hostname ist falsch.</translation>
    </message>
    <message id="555">
        <source>NVR don't exist!</source>
        <translation>Der NVR existiert nicht.</translation>
    </message>
    <message id="556">
        <source>Port set incorrectly!</source>
        <translation>Der Port ist falsch.</translation>
    </message>
    <message id="557">
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message id="558">
        <source>NVR select setting</source>
        <translation>NVR-Auswahl</translation>
    </message>
    <message id="559">
        <source>Pattern select setting</source>
        <translation>Ansichtenauswahl</translation>
    </message>
    <message id="560">
        <source>All list</source>
        <translation>Alle</translation>
    </message>
    <message id="561">
        <source>Selected list</source>
        <translation>Ausgewählt</translation>
    </message>
    <message id="562">
        <source>Select item is less than 2 items, it can not be saved!</source>
        <translation>Es sind weniger als 2 Einträge ausgewählt. Speichern ist nicht möglich.</translation>
    </message>
    <message id="563">
        <source>Functions that were originally assigned on this screen will be moved to screen #1 automatically.</source>
        <translation>Die bisher diesem Bildschirm zugewiesenen Funktionen werden automatisch auf Bildschirm 1 verschoben.</translation>
    </message>
    <message id="564">
        <source>Has not enough pattern can be selected!</source>
        <translation>Nicht genügend Ansichten zur Auswahl vorhanden.</translation>
    </message>
    <message id="565">
        <source>This screen has been assigned to Video Wall!</source>
        <translation>Dieser Bildschirm ist bereits der Videowand zugewiesen.</translation>
    </message>
    <message id="566">
        <source>Has not enough device can be selected!</source>
        <translation>Nicht genügend Geräte zur Auswahl vorhanden.</translation>
    </message>
    <message id="570">
        <source>Information</source>
        <translation>Hinweis</translation>
    </message>
    <message id="571">
        <source>*Name</source>
        <translation>*Name</translation>
    </message>
    <message id="572">
        <source>*IP Address</source>
        <translation>*IP-Adresse</translation>
    </message>
    <message id="573">
        <source>*Http Port</source>
        <translation>*HTTP-Port</translation>
    </message>
    <message id="574">
        <source>*User</source>
        <translation>*Benutzer</translation>
    </message>
    <message id="575">
        <source>*Password</source>
        <translation>*Passwort</translation>
    </message>
    <message id="576">
        <source>Detect</source>
        <translation>Erkennen</translation>
    </message>
    <message id="577">
        <source>Device Setting</source>
        <translation>Geräteeinstellungen</translation>
    </message>
    <message id="578">
        <source>NO.</source>
        <translation>Nr.</translation>
    </message>
    <message id="579">
        <source>Camera name</source>
        <translation>Kameraname</translation>
    </message>
    <message id="580">
        <source>Video Port</source>
        <translation>Videoport</translation>
    </message>
    <message id="581">
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message id="582">
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message id="583">
        <source>PTZ</source>
        <translation>PTZ</translation>
    </message>
    <message id="584">
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message id="585">
        <source>Edit Camera Setting</source>
        <translation>Kameraeinstellungen bearbeiten</translation>
    </message>
    <message id="586">
        <source>Camera No</source>
        <translation>Kameranummer</translation>
    </message>
    <message id="587">
        <source>Camera IP</source>
        <translation>Kamera-IP</translation>
    </message>
    <message id="588">
        <source>Additional Camera Information</source>
        <translation>Weitere Kameradaten</translation>
    </message>
    <message id="589">
        <source>Min. Bitrate</source>
        <translation>Min. Bitrate</translation>
    </message>
    <message id="590">
        <source>Max. Bitrate</source>
        <translation>Max. Bitrate</translation>
    </message>
    <message id="591">
        <source>Apply</source>
        <translation>Übernehmen</translation>
    </message>
    <message id="592">
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message id="593">
        <source>NVR IP can't be empty.</source>
        <translation>Die IP des NVR darf nicht leer sein.</translation>
    </message>
    <message id="594">
        <source>NVR Http Port can't be empty.</source>
        <translation>Der HTTP-Port des NVR darf nicht leer sein.</translation>
    </message>
    <message id="595">
        <source>NVR User can't be empty.</source>
        <translation>Der Benutzername des NVR darf nicht leer sein.</translation>
    </message>
    <message id="596">
        <source>NVR Password can't be empty.</source>
        <translation>Das Passwort des NVR darf nicht leer sein.</translation>
    </message>
    <message id="597">
        <source>Request Time Zone ERR! Please Detect again.</source>
        <translation>Abfrage der Zeitzone fehlgeschlagen. Bitte erneut erkennen.</translation>
    </message>
    <message id="598">
        <source>Please Select Brand.</source>
        <translation>Bitte eine Marke auswählen.</translation>
    </message>
    <message id="599">
        <source>IP Timeout.</source>
        <translation>Zeitüberschreitung bei der IP.</translation>
    </message>
    <message id="600">
        <source>Quality</source>
        <translation>Qualität</translation>
    </message>
    <message id="601">
        <source>Bitrate</source>
        <translation>Bitrate</translation>
    </message>
    <message id="602">
        <source>Bitrate Mode</source>
        <translation>Bitratenmodus</translation>
    </message>
    <message id="603">
        <source>CH name can't be empty!</source>
        <translation>Der Kanalname darf nicht leer sein.</translation>
    </message>
    <message id="604">
        <source>IP address can't be empty!</source>
        <translation>Die IP-Adresse darf nicht leer sein.</translation>
    </message>
    <message id="605">
        <source>Http Port can't be empty!</source>
        <translation>Der HTTP-Port darf nicht leer sein.</translation>
    </message>
    <message id="606">
        <source>User account can't be empty!</source>
        <translation>Das Benutzerkonto darf nicht leer sein.</translation>
    </message>
    <message id="607">
        <source>Password can't be empty!</source>
        <translation>Das Passwort darf nicht leer sein.</translation>
    </message>
    <message id="608">
        <source>Detection Error!</source>
        <translation>Fehler bei der Erkennung.</translation>
    </message>
    <message id="609">
        <source>No Camera or connect failed !</source>
        <translation>Keine Kamera oder Verbindung fehlgeschlagen.</translation>
    </message>
    <message id="610">
        <source>This firmware version of NVR is not supported , please update newer Version.</source>
        <translation>Diese Firmwareversion des NVR wird nicht unterstützt. Bitte auf eine neuere Version aktualisieren.</translation>
    </message>
    <message id="611">
        <source>If you press the button, data inside NVR will be changed!</source>
        <translation>Diese Schaltfläche ändert die Daten im NVR.</translation>
    </message>
    <message id="612">
        <source>Camera Search</source>
        <translation>Kamerasuche</translation>
    </message>
    <message id="613">
        <source>Brand not Support!</source>
        <translation>Marke wird nicht unterstützt.</translation>
    </message>
    <message id="614">
        <source>FPS</source>
        <translation>FPS</translation>
    </message>
    <message id="615">
        <source>Video Format Error!</source>
        <translation>Fehler im Videoformat.</translation>
    </message>
    <message id="616">
        <source>Camera settings have changes, please re-detect.</source>
        <translation>Die Kameraeinstellungen wurden geändert. Bitte erneut erkennen.</translation>
    </message>
    <message id="617">
        <source>Add Camera Fail!</source>
        <translation>Kamera konnte nicht hinzugefügt werden.</translation>
    </message>
    <message id="618">
        <source>DIS Setting</source>
        <translation>DIS-Einstellungen</translation>
    </message>
    <message id="619">
        <source>Device not supported!</source>
        <translation>Gerät wird nicht unterstützt.</translation>
    </message>
    <message id="620">
        <source>This account is already set!</source>
        <translation>Dieses Konto ist bereits eingerichtet.</translation>
    </message>
    <message id="621">
        <source>Do you want to continue edit preset point?</source>
        <translation>Möchten Sie die Festposition weiter bearbeiten?</translation>
    </message>
    <message id="630">
        <source>Group Name</source>
        <translation>Gruppenname</translation>
    </message>
    <message id="631">
        <source>Power Level</source>
        <translation>Berechtigungsstufe</translation>
    </message>
    <message id="632">
        <source>Function Permission</source>
        <translation>Funktionsberechtigungen</translation>
    </message>
    <message id="633">
        <source>Playback</source>
        <translation>Wiedergabe</translation>
    </message>
    <message id="634">
        <source>PTZ Control</source>
        <translation>PTZ-Steuerung</translation>
    </message>
    <message id="635">
        <source>System Setup</source>
        <translation>Systemeinrichtung</translation>
    </message>
    <message id="636">
        <source>Group Setting</source>
        <translation>Gruppeneinstellungen</translation>
    </message>
    <message id="640">
        <source>File Size can't more than 10MB</source>
        <translation>Die Datei darf nicht größer als 10 MB sein.</translation>
    </message>
    <message id="641">
        <source>EMap Setting</source>
        <translation>Lageplan-Einstellungen</translation>
    </message>
    <message id="642">
        <source>*Double Click Windows to change Map images.</source>
        <translation>*Zum Wechseln des Lageplanbilds auf das Fenster doppelklicken.</translation>
    </message>
    <message id="643">
        <source>Select an image file</source>
        <translation>Bilddatei auswählen</translation>
    </message>
    <message id="645">
        <source>User Setting</source>
        <translation>Benutzereinstellungen</translation>
    </message>
    <message id="646">
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message id="647">
        <source>(Dubble Click to Setting)</source>
        <translation>(Zum Einstellen doppelklicken)</translation>
    </message>
    <message id="648">
        <source>Check</source>
        <translation>Prüfen</translation>
    </message>
    <message id="649">
        <source>*User Name</source>
        <translation>*Benutzername</translation>
    </message>
    <message id="650">
        <source>*Password Confirm</source>
        <translation>*Passwort bestätigen</translation>
    </message>
    <message id="651">
        <source>*:Necessary</source>
        <translation>*: Pflichtfeld</translation>
    </message>
    <message id="652">
        <source>This name not yet use</source>
        <translation>Dieser Name ist noch frei.</translation>
    </message>
    <message id="653">
        <source>This name in use</source>
        <translation>Dieser Name ist vergeben.</translation>
    </message>
    <message id="660">
        <source>User&amp;Password</source>
        <translation>Benutzer und Passwort</translation>
    </message>
    <message id="661">
        <source>User or Password is not input!</source>
        <translation>Benutzer oder Passwort nicht eingegeben.</translation>
    </message>
    <message id="671">
        <source>DIS Service Setting</source>
        <translation>DIS-Dienst-Einstellungen</translation>
    </message>
    <message id="672">
        <source>Account List</source>
        <translation>Kontenliste</translation>
    </message>
    <message id="673">
        <source>Do you want to remove this user?</source>
        <translation>Möchten Sie diesen Benutzer entfernen?</translation>
    </message>
    <message id="674">
        <source>The account has reached the upper limit, for add new account you need to remove another account.</source>
        <translation>Die Höchstzahl an Konten ist erreicht. Um ein neues Konto hinzuzufügen, muss ein anderes entfernt werden.</translation>
    </message>
    <message id="675">
        <source>Object Loss</source>
        <translation>Objektentfernung</translation>
    </message>
    <message id="676">
        <source>Tripwire</source>
        <translation>Linienüberquerung</translation>
    </message>
    <message id="677">
        <source>Threat</source>
        <translation>Sabotage</translation>
    </message>
    <message id="678">
        <source>Enable</source>
        <translation>Aktivieren</translation>
    </message>
    <message id="679">
        <source>Intelligent Setting</source>
        <translation>Analyseeinstellungen</translation>
    </message>
    <message id="680">
        <source>Intelligent detection List</source>
        <translation>Liste der Videoanalyse</translation>
    </message>
    <message id="681">
        <source>Object Loss Reset</source>
        <translation>Objektentfernung: Ende</translation>
    </message>
    <message id="682">
        <source>Threat Detection Reset</source>
        <translation>Sabotageerkennung: Ende</translation>
    </message>
    <message id="683">
        <source>Image Enhance</source>
        <translation>Bildverbesserung</translation>
    </message>
    <message id="684">
        <source>Port number can't accept more then 32767.</source>
        <translation>Die Portnummer darf nicht größer als 32767 sein.</translation>
    </message>
    <message id="685">
        <source>Keep Ratio</source>
        <translation>Seitenverhältnis beibehalten</translation>
    </message>
    <message id="686">
        <source>Intelligent Detection</source>
        <translation>Videoanalyse</translation>
    </message>
    <message id="687">
        <source>OSD Size</source>
        <translation>OSD-Größe</translation>
    </message>
    <message id="688">
        <source>OSD Color</source>
        <translation>OSD-Farbe</translation>
    </message>
    <message id="689">
        <source>Small</source>
        <translation>Klein</translation>
    </message>
    <message id="690">
        <source>Middle</source>
        <translation>Mittel</translation>
    </message>
    <message id="691">
        <source>Large</source>
        <translation>Groß</translation>
    </message>
    <message id="692">
        <source>FullScreen Initial</source>
        <translation>Vollbild beim Start</translation>
    </message>
    <message id="693">
        <source>Startup Screen Layout</source>
        <translation>Start-Bildschirmaufteilung</translation>
    </message>
    <message id="694">
        <source>Leave to save the screen layout.</source>
        <translation>Beim Verlassen wird die Bildschirmaufteilung gespeichert.</translation>
    </message>
    <message id="695">
        <source>Function default start</source>
        <translation>Standardstart der Funktionen</translation>
    </message>
    <message id="696">
        <source>Function assign</source>
        <translation>Funktionszuweisung</translation>
    </message>
    <message id="697">
        <source>Pattern setting</source>
        <translation>Ansichtseinstellungen</translation>
    </message>
    <message id="698">
        <source>Name can't be empty.</source>
        <translation>Der Name darf nicht leer sein.</translation>
    </message>
    <message id="699">
        <source>Object Counting</source>
        <translation>Objektzählung</translation>
    </message>
    <message id="700">
        <source>Foreign Object</source>
        <translation>Zurückgelassenes Objekt</translation>
    </message>
    <message id="701">
        <source>Foreign Object Reset </source>
        <translation>Zurückgelassenes Objekt: Ende </translation>
    </message>
    <message id="702">
        <source>Manual Recording</source>
        <translation>Manuelle Aufzeichnung</translation>
    </message>
    <message id="703">
        <source>Device settings have changes, please re-detect.</source>
        <translation>Die Geräteeinstellungen wurden geändert. Bitte erneut erkennen.</translation>
    </message>
    <message id="704">
        <source>English and Digit Only</source>
        <translation>Nur Buchstaben A–Z und Ziffern</translation>
    </message>
    <message id="705">
        <source>Emap Group Assign</source>
        <translation>Lageplangruppen zuweisen</translation>
    </message>
    <message id="706">
        <source>Emap Group </source>
        <translation>Lageplangruppe </translation>
    </message>
    <message id="707">
        <source>Member:</source>
        <translation>Mitglieder:</translation>
    </message>
    <message id="708">
        <source>Emap Position Assign</source>
        <translation>Lageplanpositionen zuweisen</translation>
    </message>
    <message id="709">
        <source>Parent</source>
        <translation>Übergeordnet</translation>
    </message>
    <message id="710">
        <source>Group Type </source>
        <translation>Gruppentyp </translation>
    </message>
    <message id="711">
        <source>Auto Switch</source>
        <translation>Automatischer Wechsel</translation>
    </message>
    <message id="712">
        <source>Double-click back to previous group</source>
        <translation>Doppelklick führt zur vorherigen Gruppe zurück</translation>
    </message>
    <message id="713">
        <source>Drag and Drop to Move</source>
        <translation>Zum Verschieben ziehen und ablegen</translation>
    </message>
    <message id="714">
        <source>Do you want to delete the selected Emap Group?</source>
        <translation>Möchten Sie die ausgewählte Lageplangruppe löschen?</translation>
    </message>
    <message id="715">
        <source>The amount of device will be over default value!</source>
        <translation>Die zulässige Anzahl an Geräten wird überschritten.</translation>
    </message>
    <message id="716">
        <source>The amount of total channels will be over default value!</source>
        <translation>Die zulässige Gesamtzahl an Kanälen wird überschritten.</translation>
    </message>
    <message id="717">
        <source>Channel selection</source>
        <translation>Kanalauswahl</translation>
    </message>
    <message id="718">
        <source>Get device capability error!</source>
        <translation>Funktionsumfang des Geräts konnte nicht abgefragt werden.</translation>
    </message>
    <message id="719">
        <source>This device does not has any channel.</source>
        <translation>Dieses Gerät hat keine Kanäle.</translation>
    </message>
    <message id="720">
        <source>Please add channels  or  re-select the other device.</source>
        <translation>Bitte Kanäle hinzufügen oder ein anderes Gerät auswählen.</translation>
    </message>
    <message id="721">
        <source>This device does not has any channel,Do you want to remove the device?</source>
        <translation>Dieses Gerät hat keine Kanäle. Möchten Sie das Gerät entfernen?</translation>
    </message>
    <message id="722">
        <source>Setting fail!</source>
        <translation>Einstellung fehlgeschlagen.</translation>
    </message>
    <message id="723">
        <source>Do you want to stop SEQ mode?</source>
        <translation>Möchten Sie den SEQ-Modus beenden?</translation>
    </message>
    <message id="725">
        <source>Type </source>
        <translation>Typ </translation>
    </message>
    <message id="726">
        <source>No change!</source>
        <translation>Keine Änderung.</translation>
    </message>
    <message id="727">
        <source>Face Counting</source>
        <translation>Gesichtszählung</translation>
    </message>
    <message id="728">
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message id="729">
        <source>Event Export</source>
        <translation>Ereignisexport</translation>
    </message>
    <message id="730">
        <source>System Log Export</source>
        <translation>Systemprotokoll-Export</translation>
    </message>
    <message id="731">
        <source>System Log</source>
        <translation>Systemprotokoll</translation>
    </message>
    <message id="732">
        <source>NVR Select</source>
        <translation>NVR-Auswahl</translation>
    </message>
    <message id="733">
        <source>Condition</source>
        <translation>Bedingung</translation>
    </message>
    <message id="734">
        <source>Time Range:</source>
        <translation>Zeitraum:</translation>
    </message>
    <message id="735">
        <source>Start Time:</source>
        <translation>Beginn:</translation>
    </message>
    <message id="736">
        <source>End Time:</source>
        <translation>Ende:</translation>
    </message>
    <message id="737">
        <source>Event Type:</source>
        <translation>Ereignistyp:</translation>
    </message>
    <message id="738">
        <source>User:</source>
        <translation>Benutzer:</translation>
    </message>
    <message id="739">
        <source>Export Format:</source>
        <translation>Exportformat:</translation>
    </message>
    <message id="740">
        <source>Export</source>
        <translation>Export</translation>
    </message>
    <message id="741">
        <source>You must select a path to export!</source>
        <translation>Bitte einen Pfad für den Export auswählen.</translation>
    </message>
    <message id="742">
        <source>Start Time must less than End time!</source>
        <translation>Der Beginn muss vor dem Ende liegen.</translation>
    </message>
    <message id="743">
        <source>No Event!</source>
        <translation>Keine Ereignisse.</translation>
    </message>
    <message id="744">
        <source>No System Log!</source>
        <translation>Keine Einträge im Systemprotokoll.</translation>
    </message>
    <message id="745">
        <source>CSV Export finish!</source>
        <translation>CSV-Export abgeschlossen.</translation>
    </message>
    <message id="746">
        <source>MDB Export finish!</source>
        <translation>MDB-Export abgeschlossen.</translation>
    </message>
    <message id="747">
        <source>Custom</source>
        <translation>Benutzerdefiniert</translation>
    </message>
    <message id="748">
        <source>NVR Overview</source>
        <translation>NVR-Übersicht</translation>
    </message>
    <message id="749">
        <source>Video Wall Console</source>
        <translation>Videowand-Konsole</translation>
    </message>
    <message id="750">
        <source>Lock Screen </source>
        <translation>Bildschirm sperren </translation>
    </message>
    <message id="751">
        <source>Unlock Screen</source>
        <translation>Bildschirm entsperren</translation>
    </message>
    <message id="752">
        <source>Video Wall</source>
        <translation>Videowand</translation>
    </message>
    <message id="753">
        <source>Pattern List</source>
        <translation>Ansichtenliste</translation>
    </message>
    <message id="754">
        <source>SEQ List</source>
        <translation>SEQ-Liste</translation>
    </message>
    <message id="755">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="756">
        <source>SEQ content setting</source>
        <translation>SEQ-Inhalt einstellen</translation>
    </message>
    <message id="757">
        <source>Max Channel</source>
        <translation>Max. Kanäle</translation>
    </message>
    <message id="758">
        <source>Video server</source>
        <translation>Videoserver</translation>
    </message>
    <message id="759">
        <source>Support</source>
        <translation>Unterstützt</translation>
    </message>
    <message id="760">
        <source>Original View</source>
        <translation>Originalansicht</translation>
    </message>
    <message id="761">
        <source>Broad View</source>
        <translation>Panoramaansicht</translation>
    </message>
    <message id="762">
        <source>Quad View</source>
        <translation>Vierfachansicht</translation>
    </message>
    <message id="763">
        <source>Quad and Source View</source>
        <translation>Vierfach- und Originalansicht</translation>
    </message>
    <message id="764">
        <source>Double View</source>
        <translation>Zweifachansicht</translation>
    </message>
    <message id="765">
        <source>Triple View</source>
        <translation>Dreifachansicht</translation>
    </message>
    <message id="766">
        <source>Digital PTZ</source>
        <translation>Digitales PTZ</translation>
    </message>
    <message id="767">
        <source>Lens</source>
        <translation>Objektiv</translation>
    </message>
    <message id="768">
        <source>It could not be opened, the insufficient number of available screens!</source>
        <translation>Öffnen nicht möglich: Es sind nicht genügend Bildschirme verfügbar.</translation>
    </message>
    <message id="769">
        <source>It could not be opened, The Video Wall is not enabled! </source>
        <translation>Öffnen nicht möglich: Die Videowand ist nicht aktiviert. </translation>
    </message>
    <message id="770">
        <source>The quantity of screen is not enough! Not support!</source>
        <translation>Nicht genügend Bildschirme. Wird nicht unterstützt.</translation>
    </message>
    <message id="772">
        <source>Settings have changed , Please re-open MainViewer!</source>
        <translation>Die Einstellungen wurden geändert. Bitte die Hauptanzeige neu öffnen.</translation>
    </message>
    <message id="773">
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message id="774">
        <source>Update system log with below defined condition</source>
        <translation>Systemprotokoll nach den folgenden Bedingungen aktualisieren</translation>
    </message>
    <message id="775">
        <source>Transform recording index</source>
        <translation>Aufzeichnungsindex umwandeln</translation>
    </message>
    <message id="776">
        <source>Event Image Sync Setting</source>
        <translation>Abgleich der Ereignisbilder</translation>
    </message>
    <message id="777">
        <source>Event snapshot storage space is not enough!</source>
        <translation>Nicht genügend Speicherplatz für Ereignisschnappschüsse.</translation>
    </message>
    <message id="779">
        <source>Intelligent Mode</source>
        <translation>Analysemodus</translation>
    </message>
    <message id="780">
        <source>Add Intelligent Setting</source>
        <translation>Analyseeinstellung hinzufügen</translation>
    </message>
    <message id="781">
        <source>Camera Event</source>
        <translation>Kameraereignis</translation>
    </message>
    <message id="782">
        <source>ROI Setting</source>
        <translation>ROI-Einstellungen</translation>
    </message>
    <message id="783">
        <source>Trigger Mode</source>
        <translation>Auslösemodus</translation>
    </message>
    <message id="784">
        <source>Channel Privilege</source>
        <translation>Kanalberechtigung</translation>
    </message>
    <message id="785">
        <source>Group Overview</source>
        <translation>Gruppenübersicht</translation>
    </message>
    <message id="786">
        <source>User Overview</source>
        <translation>Benutzerübersicht</translation>
    </message>
    <message id="787">
        <source>Event Server</source>
        <translation>Ereignisserver</translation>
    </message>
    <message id="788">
        <source>Trigger By</source>
        <translation>Ausgelöst durch</translation>
    </message>
    <message id="789">
        <source>Configuration Modify</source>
        <translation>Konfigurationsänderung</translation>
    </message>
    <message id="790">
        <source>Intelligent Event Trigger</source>
        <translation>Auslösung durch Videoanalyse</translation>
    </message>
    <message id="791">
        <source>NVR Event Trigger</source>
        <translation>Auslösung durch NVR-Ereignis</translation>
    </message>
    <message id="792">
        <source>Trigger Action</source>
        <translation>Auslöseaktion</translation>
    </message>
    <message id="793">
        <source>Addresses: (Use ',' to separate e-mails)</source>
        <translation>Adressen: (mehrere mit Komma trennen)</translation>
    </message>
    <message id="794">
        <source>Content</source>
        <translation>Inhalt</translation>
    </message>
    <message id="795">
        <source>Video Wall Layout</source>
        <translation>Videowand-Aufteilung</translation>
    </message>
    <message id="796">
        <source>No Enough screen can be set!</source>
        <translation>Nicht genügend Bildschirme zum Einrichten.</translation>
    </message>
    <message id="797">
        <source>SVD Management</source>
        <translation>SVD-Verwaltung</translation>
    </message>
    <message id="798">
        <source>SVD Detail Setting</source>
        <translation>SVD-Details</translation>
    </message>
    <message id="799">
        <source>SVD Layout</source>
        <translation>SVD-Aufteilung</translation>
    </message>
    <message id="800">
        <source>SVD ID:</source>
        <translation>SVD-ID:</translation>
    </message>
    <message id="801">
        <source>SVD Name:</source>
        <translation>SVD-Name:</translation>
    </message>
    <message id="802">
        <source>Display</source>
        <translation>Bildschirm</translation>
    </message>
    <message id="803">
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message id="804">
        <source>Priority</source>
        <translation>Priorität</translation>
    </message>
    <message id="805">
        <source>Default Split</source>
        <translation>Standardaufteilung</translation>
    </message>
    <message id="806">
        <source>Default Channel List</source>
        <translation>Standardkanalliste</translation>
    </message>
    <message id="807">
        <source>Live Stream</source>
        <translation>Livestream</translation>
    </message>
    <message id="808">
        <source>Dynamic Streaming</source>
        <translation>Dynamisches Streaming</translation>
    </message>
    <message id="809">
        <source>Screen Default Layout</source>
        <translation>Standard-Bildschirmaufteilung</translation>
    </message>
    <message id="810">
        <source>Channel list</source>
        <translation>Kanalliste</translation>
    </message>
    <message id="811">
        <source>Begin</source>
        <translation>Anfang</translation>
    </message>
    <message id="812">
        <source>Previous</source>
        <translation>Zurück</translation>
    </message>
    <message id="813">
        <source>System Log Viewer</source>
        <translation>Systemprotokoll-Anzeige</translation>
    </message>
    <message id="814">
        <source>Management </source>
        <translation>Verwaltung </translation>
    </message>
    <message id="815">
        <source>Viewer</source>
        <translation>Anzeige</translation>
    </message>
    <message id="816">
        <source>Add New SVD</source>
        <translation>Neuen SVD hinzufügen</translation>
    </message>
    <message id="817">
        <source>Primary</source>
        <translation>Primär</translation>
    </message>
    <message id="818">
        <source>Secondary</source>
        <translation>Sekundär</translation>
    </message>
    <message id="819">
        <source>Available</source>
        <translation>Verfügbar</translation>
    </message>
    <message id="820">
        <source>Not Available</source>
        <translation>Nicht verfügbar</translation>
    </message>
    <message id="821">
        <source>Invalid E-mail Address!</source>
        <translation>Ungültige E-Mail-Adresse.</translation>
    </message>
    <message id="822">
        <source>Invalid Value!</source>
        <translation>Ungültiger Wert.</translation>
    </message>
    <message id="823">
        <source>Can't add repeatedly!</source>
        <translation>Mehrfaches Hinzufügen ist nicht möglich.</translation>
    </message>
    <message id="824">
        <source>Can't add SVD anymore!</source>
        <translation>Es können keine weiteren SVD hinzugefügt werden.</translation>
    </message>
    <message id="826">
        <source>Do you want to remove this SVD?</source>
        <translation>Möchten Sie diesen SVD entfernen?</translation>
    </message>
    <message id="827">
        <source>Disable this Video Wall?</source>
        <translation>Möchten Sie diese Videowand deaktivieren?</translation>
    </message>
    <message id="828">
        <source>Export finish!</source>
        <translation>Export abgeschlossen.</translation>
    </message>
    <message id="829">
        <source>Brand:</source>
        <translation>Marke:</translation>
    </message>
    <message id="830">
        <source>Password Mask</source>
        <translation>Passwort verbergen</translation>
    </message>
    <message id="831">
        <source>NVR Account setting</source>
        <translation>NVR-Konten</translation>
    </message>
    <message id="832">
        <source>No any NVR has been selected.</source>
        <translation>Es ist kein NVR ausgewählt.</translation>
    </message>
    <message id="833">
        <source>Detect successful!</source>
        <translation>Erkennung erfolgreich.</translation>
    </message>
    <message id="834">
        <source>Failed configuring camera detection on channel:</source>
        <translation>Kameraseitige Erkennung konnte nicht konfiguriert werden. Kanal:</translation>
    </message>
    <message id="835">
        <source>Trigger action has done.</source>
        <translation>Die Auslöseaktion wurde ausgeführt.</translation>
    </message>
    <message id="836">
        <source>Event server has not set.</source>
        <translation>Der Ereignisserver ist nicht eingerichtet.</translation>
    </message>
    <message id="837">
        <source>Privilege Setting</source>
        <translation>Berechtigungen</translation>
    </message>
    <message id="838">
        <source>NVR Privilege Setting</source>
        <translation>NVR-Berechtigungen</translation>
    </message>
    <message id="839">
        <source>SVD Console</source>
        <translation>SVD-Konsole</translation>
    </message>
    <message id="840">
        <source>SVD Search List</source>
        <translation>Gefundene SVD</translation>
    </message>
    <message id="841">
        <source>No Monitor connect!</source>
        <translation>Kein Monitor angeschlossen.</translation>
    </message>
    <message id="842">
        <source>Do you want to remove this intelligent setting?</source>
        <translation>Möchten Sie diese Analyseeinstellung entfernen?</translation>
    </message>
    <message id="843">
        <source>Event snapshot doesn't work!</source>
        <translation>Ereignisschnappschüsse funktionieren nicht.</translation>
    </message>
    <message id="850">
        <source>System</source>
        <translation>System</translation>
    </message>
    <message id="851">
        <source>Intelligent</source>
        <translation>Videoanalyse</translation>
    </message>
    <message id="852">
        <source>User and group</source>
        <translation>Benutzer/Gruppen</translation>
    </message>
    <message id="853">
        <source>Event handling</source>
        <translation>Ereignisse</translation>
    </message>
    <message id="854">
        <source>Event server</source>
        <translation>Ereignisserver</translation>
    </message>
    <message id="855">
        <source>E-Map</source>
        <translation>Lageplan</translation>
    </message>
    <message id="856">
        <source>Screen layout</source>
        <translation>Bildschirme</translation>
    </message>
    <message id="857">
        <source>Startup</source>
        <translation>Start</translation>
    </message>
    <message id="858">
        <source>Tooling</source>
        <translation>Werkzeuge</translation>
    </message>
    <message id="859">
        <source>This page is not available in this version.</source>
        <translation>Diese Seite ist in dieser Version nicht verfügbar.</translation>
    </message>
    <message id="860">
        <source>Its data in the database stays as it is.</source>
        <translation>Die zugehörigen Daten in der Datenbank bleiben unverändert.</translation>
    </message>
    <message id="861">
        <source>No recorder yet</source>
        <translation>Noch kein Rekorder</translation>
    </message>
    <message id="862">
        <source>Enter the address of the station's first recorder to add it.</source>
        <translation>Zum Hinzufügen die Adresse des ersten Rekorders der Station eingeben.</translation>
    </message>
    <message id="863">
        <source>Filter name, address, model…</source>
        <translation>Nach Name, Adresse, Modell filtern …</translation>
    </message>
    <message id="864">
        <source>Recorders of this station</source>
        <translation>Rekorder dieser Station</translation>
    </message>
    <message id="865">
        <source>Recorders: %1 of %2</source>
        <translation>Rekorder: %1 von %2</translation>
    </message>
    <message id="866">
        <source>Channels: %1 of %2</source>
        <translation>Kanäle: %1 von %2</translation>
    </message>
    <message id="867">
        <source>No recorder matches the filter.</source>
        <translation>Kein Rekorder entspricht dem Filter.</translation>
    </message>
    <message id="868">
        <source>Unsaved changes</source>
        <translation>Ungespeicherte Änderungen</translation>
    </message>
    <message id="870">
        <source>Switch to dark colours</source>
        <translation>Zu dunklem Farbschema wechseln</translation>
    </message>
    <message id="871">
        <source>Switch to light colours</source>
        <translation>Zu hellem Farbschema wechseln</translation>
    </message>
    <message id="872">
        <source>Waiting</source>
        <translation>Wartet</translation>
    </message>
    <message id="873">
        <source>Finish</source>
        <translation>Fertigstellen</translation>
    </message>
    <message id="874">
        <source>Done: %1 of %2</source>
        <translation>Erledigt: %1 von %2</translation>
    </message>
    <message id="875">
        <source>Choose</source>
        <translation>Auswählen</translation>
    </message>
    <message id="876">
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message id="877">
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message id="878">
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message id="879">
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message id="880">
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message id="881">
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message id="882">
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message id="884">
        <source>Enter the address of one recorder.</source>
        <translation>Adresse eines Rekorders eingeben.</translation>
    </message>
    <message id="885">
        <source>Leave both empty to try the known device accounts.</source>
        <translation>Beide Felder leer lassen, um die bekannten Gerätekonten auszuprobieren.</translation>
    </message>
    <message id="886">
        <source>About this installation</source>
        <translation>Über diese Installation</translation>
    </message>
    <message id="887">
        <source>Show password</source>
        <translation>Passwort anzeigen</translation>
    </message>
    <message id="888">
        <source>Searching…</source>
        <translation>Suche läuft …</translation>
    </message>
    <message id="890">
        <source>Name and behaviour of this station</source>
        <translation>Name und Verhalten dieser Station</translation>
    </message>
    <message id="892">
        <source>Recorder slot</source>
        <translation>Rekorderplatz</translation>
    </message>
    <message id="896">
        <source>Connected</source>
        <translation>Verbunden</translation>
    </message>
    <message id="898">
        <source>Product:</source>
        <translation>Produkt:</translation>
    </message>
    <message id="899">
        <source>Hide password</source>
        <translation>Passwort verbergen</translation>
    </message>
    <message id="900">
        <source>Anyone who opens Rigging Desk is its administrator, because there is no user yet.</source>
        <translation>Wer Rigging Desk öffnet, ist Administrator, denn es gibt noch keinen Benutzer.</translation>
    </message>
    <message id="901">
        <source>Create the first administrator</source>
        <translation>Ersten Administrator anlegen</translation>
    </message>
    <message id="902">
        <source>Not now</source>
        <translation>Nicht jetzt</translation>
    </message>
    <message id="903">
        <source>No user yet</source>
        <translation>Noch kein Benutzer</translation>
    </message>
    <message id="904">
        <source>Accessible cameras</source>
        <translation>Zugängliche Kameras</translation>
    </message>
    <message id="905">
        <source>Who has access</source>
        <translation>Wer hat Zugriff</translation>
    </message>
    <message id="906">
        <source>Filter channels…</source>
        <translation>Kanäle filtern …</translation>
    </message>
    <message id="907">
        <source>Whole recorder</source>
        <translation>Ganzer Rekorder</translation>
    </message>
    <message id="908">
        <source>Live</source>
        <translation>Live</translation>
    </message>
    <message id="909">
        <source>Live Monitor of all channels</source>
        <translation>Live-Anzeige aller Kanäle</translation>
    </message>
    <message id="910">
        <source>Grant</source>
        <translation>Erteilen</translation>
    </message>
    <message id="911">
        <source>Withdraw</source>
        <translation>Entziehen</translation>
    </message>
    <message id="912">
        <source>The other rights need Live. Space switches the selected cells; Shift+Space selects a row, Ctrl+Space a column.</source>
        <translation>Die übrigen Berechtigungen setzen „Live“ voraus. Leertaste schaltet die ausgewählten Zellen um; Umschalt+Leertaste wählt eine Zeile aus, Strg+Leertaste eine Spalte.</translation>
    </message>
    <message id="913">
        <source>Administrators have every right on every channel.</source>
        <translation>Administratoren haben auf allen Kanälen alle Berechtigungen.</translation>
    </message>
    <message id="930">
        <source>Filter the rows found…</source>
        <translation>Gefundene Zeilen filtern …</translation>
    </message>
    <message id="931">
        <source>No row matches the filter.</source>
        <translation>Keine Zeile entspricht dem Filter.</translation>
    </message>
    <message id="932">
        <source>Rows found: %1</source>
        <translation>Gefundene Zeilen: %1</translation>
    </message>
    <message id="933">
        <source>The log could not be read</source>
        <translation>Das Protokoll konnte nicht gelesen werden</translation>
    </message>
    <message id="934">
        <source>Copy rows</source>
        <translation>Zeilen kopieren</translation>
    </message>
    <message id="935">
        <source>Open folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message id="936">
        <source>Event export is not part of this version.</source>
        <translation>Der Ereignisexport ist nicht Teil dieser Version.</translation>
    </message>
    <message id="937">
        <source>Choose a period and search.</source>
        <translation>Zeitraum wählen und suchen.</translation>
    </message>
    <message id="938">
        <source>The export failed. Existing files were not changed.</source>
        <translation>Der Export ist fehlgeschlagen. Vorhandene Dateien wurden nicht verändert.</translation>
    </message>
    <message id="939">
        <source>First page</source>
        <translation>Erste Seite</translation>
    </message>
    <message id="940">
        <source>Previous page</source>
        <translation>Vorherige Seite</translation>
    </message>
    <message id="941">
        <source>Next page</source>
        <translation>Nächste Seite</translation>
    </message>
    <message id="942">
        <source>Last page</source>
        <translation>Letzte Seite</translation>
    </message>
    <message id="943">
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
    <message id="945">
        <source>Log in</source>
        <translation>Anmeldung</translation>
    </message>
    <message id="946">
        <source>The reason is in the log files.</source>
        <translation>Die Ursache steht in den Protokolldateien.</translation>
    </message>
    <message id="950">
        <source>Find recorders on the network.</source>
        <translation>Rekorder im Netzwerk suchen.</translation>
    </message>
    <message id="951">
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message id="952">
        <source>Select all</source>
        <translation>Alle auswählen</translation>
    </message>
    <message id="953">
        <source>Filter the devices found</source>
        <translation>Gefundene Geräte filtern</translation>
    </message>
    <message id="954">
        <source>No device has answered.</source>
        <translation>Kein Gerät hat geantwortet.</translation>
    </message>
    <message id="955">
        <source>Recorders with those selected: %1 of %2</source>
        <translation>Rekorder mit der Auswahl: %1 von %2</translation>
    </message>
    <message id="956">
        <source>Connection</source>
        <translation>Verbindung</translation>
    </message>
    <message id="957">
        <source>Checking…</source>
        <translation>Wird geprüft …</translation>
    </message>
    <message id="958">
        <source>Login refused</source>
        <translation>Anmeldung abgelehnt</translation>
    </message>
    <message id="959">
        <source>No answer</source>
        <translation>Keine Antwort</translation>
    </message>
    <message id="960">
        <source>Host name not found</source>
        <translation>Hostname nicht gefunden</translation>
    </message>
    <message id="961">
        <source>Connection refused</source>
        <translation>Verbindung abgelehnt</translation>
    </message>
    <message id="962">
        <source>Unexpected answer</source>
        <translation>Unerwartete Antwort</translation>
    </message>
    <message id="963">
        <source>Stopped</source>
        <translation>Gestoppt</translation>
    </message>
    <message id="965">
        <source>Notice</source>
        <translation>Hinweis</translation>
    </message>
    <message id="966">
        <source>No camera</source>
        <translation>Keine Kamera</translation>
    </message>
    <message id="967">
        <source>Changed in the recorder</source>
        <translation>Im Rekorder geändert</translation>
    </message>
    <message id="968">
        <source>Detected</source>
        <translation>Erkannt</translation>
    </message>
    <message id="969">
        <source>Unchanged</source>
        <translation>Unverändert</translation>
    </message>
    <message id="970">
        <source>Remove the camera of channel %1 from the recorder?</source>
        <translation>Möchten Sie die Kamera von Kanal %1 aus dem Rekorder entfernen?</translation>
    </message>
    <message id="971">
        <source>Filter the cameras found</source>
        <translation>Gefundene Kameras filtern</translation>
    </message>
    <message id="972">
        <source>No camera was found.</source>
        <translation>Keine Kamera gefunden.</translation>
    </message>
    <message id="973">
        <source>The recorder sees no camera on its network. Search again, or enter an address.</source>
        <translation>Der Rekorder sieht keine Kamera in seinem Netzwerk. Bitte erneut suchen oder eine Adresse eingeben.</translation>
    </message>
    <message id="974">
        <source>Cameras found: %1</source>
        <translation>Gefundene Kameras: %1</translation>
    </message>
    <message id="975">
        <source>Asking the camera…</source>
        <translation>Kamera wird abgefragt …</translation>
    </message>
    <message id="976">
        <source>Writing to the recorder…</source>
        <translation>Wird in den Rekorder geschrieben …</translation>
    </message>
    <message id="977">
        <source>Video source</source>
        <translation>Videoquelle</translation>
    </message>
    <message id="978">
        <source>Detect the camera to see its video settings.</source>
        <translation>Kamera erkennen, um ihre Videoeinstellungen zu sehen.</translation>
    </message>
    <message id="979">
        <source>Fish-eye view</source>
        <translation>Fischaugenansicht</translation>
    </message>
    <message id="980">
        <source>The camera name must not contain a double quote (").</source>
        <translation>Der Kameraname darf kein Anführungszeichen (") enthalten.</translation>
    </message>
    <message id="981">
        <source>The configuration database cannot be opened: another program holds it, or it cannot be read. Nothing has been changed. Try again?</source>
        <translation>Die Konfigurationsdatenbank lässt sich nicht öffnen: Ein anderes Programm hält sie fest, oder sie ist nicht lesbar. Es wurde nichts verändert. Möchten Sie es noch einmal versuchen?</translation>
    </message>
    <message id="982">
        <source>The users could not be read from the database, so nobody can log in. Close the program that holds the database and start again. The reason is in the log files.</source>
        <translation>Die Benutzer konnten nicht aus der Datenbank gelesen werden; deshalb kann sich niemand anmelden. Bitte das Programm schließen, das die Datenbank festhält, und neu starten. Die Ursache steht in den Protokolldateien.</translation>
    </message>
    <message id="983">
        <source>These tables of the database could not be read: %1. They stay as they are. The reason is in the log files.</source>
        <translation>Diese Tabellen der Datenbank konnten nicht gelesen werden: %1. Sie bleiben unverändert. Die Ursache steht in den Protokolldateien.</translation>
    </message>
    <message id="995">
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message id="1000">
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message id="1001">
        <source>Show the keys</source>
        <translation>Tasten anzeigen</translation>
    </message>
    <message id="1002">
        <source>Rename or edit the selected entry</source>
        <translation>Gewählten Eintrag umbenennen oder bearbeiten</translation>
    </message>
    <message id="1003">
        <source>Read the page again</source>
        <translation>Seite neu einlesen</translation>
    </message>
    <message id="1004">
        <source>Filter the list</source>
        <translation>Liste filtern</translation>
    </message>
    <message id="1005">
        <source>Go to a page</source>
        <translation>Zu einer Seite gehen</translation>
    </message>
    <message id="1006">
        <source>Press the button or open the selected entry</source>
        <translation>Schaltfläche drücken oder gewählten Eintrag öffnen</translation>
    </message>
    <message id="1007">
        <source>Remove the selected entry</source>
        <translation>Gewählten Eintrag entfernen</translation>
    </message>
    <message id="1008">
        <source>Cancel or close</source>
        <translation>Abbrechen oder schließen</translation>
    </message>
    <message id="1030">
        <source>Added: %1 of %2</source>
        <translation>Hinzugefügt: %1 von %2</translation>
    </message>
    <message id="1031">
        <source>Added: %1 of %2, failed: %3</source>
        <translation>Hinzugefügt: %1 von %2, fehlgeschlagen: %3</translation>
    </message>
    <message id="1032">
        <source>Recorders that were not added can be tried again with another login.</source>
        <translation>Für nicht hinzugefügte Rekorder ist ein neuer Versuch mit einer anderen Anmeldung möglich.</translation>
    </message>
    <message id="1033">
        <source>Try again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message id="1034">
        <source>Login</source>
        <translation>Anmeldung</translation>
    </message>
    <message id="1035">
        <source>Added but not saved yet: %1.
Do you want to save?</source>
        <translation>Hinzugefügt, aber noch nicht gespeichert: %1.
Möchten Sie speichern?</translation>
    </message>
    <message id="1036">
        <source>No recorder has been added yet. Close and lose what you entered?</source>
        <translation>Es wurde noch kein Rekorder hinzugefügt. Möchten Sie schließen und die Eingaben verwerfen?</translation>
    </message>
    <message id="1037">
        <source>More than one recorder would have this name: %1.
Do you want to use it anyway?</source>
        <translation>Mehrere Rekorder hätten diesen Namen: %1.
Möchten Sie ihn trotzdem verwenden?</translation>
    </message>
    <message id="1080">
        <source>A stored password is not shown. Typing replaces it.</source>
        <translation>Ein gespeichertes Passwort wird nicht angezeigt. Eine Eingabe ersetzt es.</translation>
    </message>
    <message id="1081">
        <source>Choose a group</source>
        <translation>Gruppe wählen</translation>
    </message>
    <message id="1082">
        <source>No account yet</source>
        <translation>Noch kein Konto</translation>
    </message>
    <message id="1083">
        <source>These accounts are tried on recorders whose login is not known.</source>
        <translation>Diese Konten werden an Rekordern probiert, deren Anmeldung nicht bekannt ist.</translation>
    </message>
    <message id="1084">
        <source>Do you want to delete the selected account?</source>
        <translation>Möchten Sie das ausgewählte Konto löschen?</translation>
    </message>
    <message id="1085">
        <source>No camera is accessible</source>
        <translation>Keine Kamera zugänglich</translation>
    </message>
    <message id="1086">
        <source>Access follows from the rights of the user’s group.</source>
        <translation>Der Zugang folgt aus den Berechtigungen der Gruppe des Benutzers.</translation>
    </message>
    <message id="1087">
        <source>Open the folder?</source>
        <translation>Ordner öffnen?</translation>
    </message>
    <message id="1088">
        <source>Filter users…</source>
        <translation>Benutzer filtern …</translation>
    </message>
    <message id="1089">
        <source>No user matches the filter.</source>
        <translation>Kein Benutzer entspricht dem Filter.</translation>
    </message>
    <message id="1110">
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message id="1221">
        <source>Waiting for the picture…</source>
        <translation>Warten auf das Bild…</translation>
    </message>
    <message id="1222">
        <source>No picture</source>
        <translation>Kein Bild</translation>
    </message>
    <message id="1223">
        <source>Trying again…</source>
        <translation>Neuer Versuch…</translation>
    </message>
    <message id="1260">
        <source>Filter maps and cameras…</source>
        <translation>Pläne und Kameras filtern …</translation>
    </message>
    <message id="1261">
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message id="1262">
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message id="1263">
        <source>Move to…</source>
        <translation>Verschieben nach …</translation>
    </message>
    <message id="1264">
        <source>A recorder's map goes under the main map or into a group.</source>
        <translation>Der Plan eines Rekorders gehört unter den Hauptplan oder in eine Gruppe.</translation>
    </message>
    <message id="1265">
        <source>A camera goes on the map of its own recorder or one of its sub-maps; on the main map it is taken off all maps.</source>
        <translation>Eine Kamera gehört auf den Plan ihres Rekorders oder einen seiner Unterpläne; auf dem Hauptplan steht sie auf keinem.</translation>
    </message>
    <message id="1266">
        <source>It is there already.</source>
        <translation>Das ist bereits dort.</translation>
    </message>
    <message id="1267">
        <source>Only recorders' maps and cameras can be moved.</source>
        <translation>Nur Pläne von Rekordern und Kameras lassen sich verschieben.</translation>
    </message>
    <message id="1268">
        <source>Move</source>
        <translation>Verschieben</translation>
    </message>
    <message id="1269">
        <source>Show the map's picture</source>
        <translation>Bild des Plans zeigen</translation>
    </message>
    <message id="1270">
        <source>No map or camera matches the filter.</source>
        <translation>Kein Plan und keine Kamera entspricht dem Filter.</translation>
    </message>
    <message id="1271">
        <source>Enter a name to add a group.</source>
        <translation>Geben Sie einen Namen ein, um eine Gruppe hinzuzufügen.</translation>
    </message>
    <message id="1272">
        <source>Enter a name to add a sub-map. The map has the name of its recorder.</source>
        <translation>Geben Sie einen Namen ein, um einen Unterplan hinzuzufügen. Der Plan heißt wie der Rekorder.</translation>
    </message>
    <message id="1273">
        <source>Drag recorders' maps into the group.</source>
        <translation>Ziehen Sie Pläne von Rekordern in die Gruppe.</translation>
    </message>
    <message id="1274">
        <source>Drag the camera to the map of its recorder.</source>
        <translation>Ziehen Sie die Kamera auf den Plan ihres Rekorders.</translation>
    </message>
    <message id="1275">
        <source>Drag cameras of its recorder to the sub-map.</source>
        <translation>Ziehen Sie Kameras des Rekorders auf den Unterplan.</translation>
    </message>
</context>
</TS>
