<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="da" sourcelanguage="en">
<context>
    <name></name>
    <message id="0">
        <source>English</source>
        <translation>Engelsk</translation>
    </message>
    <message id="1">
        <source>Traditional Chinese</source>
        <translation>Traditionelt kinesisk</translation>
    </message>
    <message id="2">
        <source>Simplified Chinese</source>
        <translation>Forenklet kinesisk</translation>
    </message>
    <message id="3">
        <source>Japanese</source>
        <translation>Japansk</translation>
    </message>
    <message id="4">
        <source>Spainish</source>
        <translation>Spansk</translation>
    </message>
    <message id="5">
        <source>CGI ID is full !</source>
        <translation>Der er ikke flere ledige CGI-id'er.</translation>
    </message>
    <message id="6">
        <source>User Name or Password Error !</source>
        <translation>Forkert brugernavn eller adgangskode.</translation>
    </message>
    <message id="7">
        <source>Device Connection Error !</source>
        <translation>Fejl i forbindelsen til enheden.</translation>
    </message>
    <message id="8">
        <source>Device brand not supported !</source>
        <translation>Enhedens mærke understøttes ikke.</translation>
    </message>
    <message id="9">
        <source>Sending CGI failed !</source>
        <translation>CGI-kommandoen kunne ikke sendes.</translation>
    </message>
    <message id="10">
        <source>Program has been opened !</source>
        <translation>Programmet er allerede åbent.</translation>
    </message>
    <message id="11">
        <source>Application of Setup has been Opening . Please turn it off !</source>
        <translation>Opsætningsprogrammet er åbent. Luk det først.</translation>
    </message>
    <message id="12">
        <source>Database initialization ...</source>
        <translation>Initialiserer database …</translation>
    </message>
    <message id="13">
        <source>Default Data to read ...</source>
        <translation>Læser standarddata …</translation>
    </message>
    <message id="14">
        <source>Incorrect database version ! Do you want to reset the databse now ?</source>
        <translation>Forkert databaseversion. Vil du nulstille databasen nu?</translation>
    </message>
    <message id="15">
        <source>System will not be able to continue to work .</source>
        <translation>Systemet kan ikke arbejde videre.</translation>
    </message>
    <message id="16">
        <source>Update Database ...</source>
        <translation>Opdaterer database …</translation>
    </message>
    <message id="17">
        <source>Data is loading ...</source>
        <translation>Indlæser data …</translation>
    </message>
    <message id="18">
        <source>Motion Detection setting is loading...</source>
        <translation>Indlæser indstillinger for bevægelsesdetektering …</translation>
    </message>
    <message id="19">
        <source>User Data is loading...</source>
        <translation>Indlæser brugerdata …</translation>
    </message>
    <message id="20">
        <source>Group Data  is loading...</source>
        <translation>Indlæser gruppedata …</translation>
    </message>
    <message id="21">
        <source>Event setting is loading...</source>
        <translation>Indlæser hændelsesindstillinger …</translation>
    </message>
    <message id="22">
        <source>E-Map Data is loading ...</source>
        <translation>Indlæser oversigtskort …</translation>
    </message>
    <message id="23">
        <source>Multi-Screen set up is loading ...</source>
        <translation>Indlæser opsætning af flere skærme …</translation>
    </message>
    <message id="24">
        <source>System component registering  ...</source>
        <translation>Registrerer systemkomponenter …</translation>
    </message>
    <message id="25">
        <source>Login Identification ...</source>
        <translation>Kontrollerer login …</translation>
    </message>
    <message id="26">
        <source>Open Login Frame ...</source>
        <translation>Åbner loginvindue …</translation>
    </message>
    <message id="27">
        <source>Loading User's Pattern …</source>
        <translation>Indlæser brugerens visninger …</translation>
    </message>
    <message id="28">
        <source>Start Service Mode...</source>
        <translation>Starter servicetilstand …</translation>
    </message>
    <message id="29">
        <source>Start Monitor Window ...</source>
        <translation>Starter overvågningsvindue …</translation>
    </message>
    <message id="30">
        <source>Start Auto Search …</source>
        <translation>Starter automatisk søgning …</translation>
    </message>
    <message id="32">
        <source>Manual Startup</source>
        <translation>Manuel start</translation>
    </message>
    <message id="33">
        <source>Device detect timeout !</source>
        <translation>Timeout ved detektering af enhed.</translation>
    </message>
    <message id="34">
        <source>The channel of SVR has been removed. Please re-detect the SVR!</source>
        <translation>SVR'ens kanal er blevet fjernet. Detekter SVR'en igen.</translation>
    </message>
    <message id="35">
        <source>Please enable SVR upnp port forwarding!</source>
        <translation>Aktiver UPnP-portviderestilling på SVR'en.</translation>
    </message>
    <message id="36">
        <source>Video Wall Setting</source>
        <translation>Indstillinger for videovæg</translation>
    </message>
    <message id="37">
        <source>Video Wall display position setting</source>
        <translation>Videovæggens visningsposition</translation>
    </message>
    <message id="38">
        <source>Monitor</source>
        <translation>Monitor</translation>
    </message>
    <message id="39">
        <source>Startup assign setting</source>
        <translation>Tildeling ved opstart</translation>
    </message>
    <message id="40">
        <source>User</source>
        <translation>Bruger</translation>
    </message>
    <message id="41">
        <source>Password</source>
        <translation>Adgangskode</translation>
    </message>
    <message id="42">
        <source>User Field is Blank !</source>
        <translation>Feltet Bruger er tomt.</translation>
    </message>
    <message id="43">
        <source>Password Field is Blank !</source>
        <translation>Feltet Adgangskode er tomt.</translation>
    </message>
    <message id="44">
        <source>Incorrect User Account or Password !</source>
        <translation>Forkert brugerkonto eller adgangskode.</translation>
    </message>
    <message id="45">
        <source>Main Viewer</source>
        <translation>Hovedfremviser</translation>
    </message>
    <message id="46">
        <source>NVR Setting</source>
        <translation>NVR-indstillinger</translation>
    </message>
    <message id="47">
        <source>Event-Triggered Notification</source>
        <translation>Meddelelse ved hændelse</translation>
    </message>
    <message id="48">
        <source>Auto Search Notice</source>
        <translation>Meddelelse om autosøgning</translation>
    </message>
    <message id="49">
        <source>Event Synchronization Manually Update</source>
        <translation>Opdater hændelsessynkronisering manuelt</translation>
    </message>
    <message id="50">
        <source>About</source>
        <translation>Om</translation>
    </message>
    <message id="51">
        <source>Exit</source>
        <translation>Afslut</translation>
    </message>
    <message id="52">
        <source>Split</source>
        <translation>Opdeling</translation>
    </message>
    <message id="53">
        <source>Change Channel</source>
        <translation>Skift kanal</translation>
    </message>
    <message id="54">
        <source>OSD Display</source>
        <translation>OSD-visning</translation>
    </message>
    <message id="55">
        <source>CH</source>
        <translation>Kanal</translation>
    </message>
    <message id="56">
        <source>Path</source>
        <translation>Sti</translation>
    </message>
    <message id="57">
        <source>OSD Channel</source>
        <translation>OSD-kanal</translation>
    </message>
    <message id="58">
        <source>OSD Time</source>
        <translation>OSD-tid</translation>
    </message>
    <message id="59">
        <source>Save</source>
        <translation>Gem</translation>
    </message>
    <message id="60">
        <source>Camera Event Server Setting Error!</source>
        <translation>Fejl i indstillingerne for kameraets hændelsesserver.</translation>
    </message>
    <message id="61">
        <source>Snapshot Error!</source>
        <translation>Fejl ved øjebliksbillede.</translation>
    </message>
    <message id="62">
        <source>Event Notification is still ongoing.</source>
        <translation>Der sendes stadig hændelsesmeddelelser.</translation>
    </message>
    <message id="63">
        <source>Do you want to exit and open rigging desk?</source>
        <translation>Vil du afslutte og åbne Rigging Desk?</translation>
    </message>
    <message id="64">
        <source>Auto-Search Notice</source>
        <translation>Meddelelse om autosøgning</translation>
    </message>
    <message id="65">
        <source>Closing...</source>
        <translation>Lukker …</translation>
    </message>
    <message id="66">
        <source>Devcie is Found!</source>
        <translation>Enhed fundet.</translation>
    </message>
    <message id="67">
        <source>Fix display mode</source>
        <translation>Fast visningstilstand</translation>
    </message>
    <message id="68">
        <source>Video Wall default startup setting</source>
        <translation>Standardopstart for videovæg</translation>
    </message>
    <message id="69">
        <source>Intelligent Overview</source>
        <translation>Oversigt over videoanalyse</translation>
    </message>
    <message id="70">
        <source>Do You Want to Save Snapshot Images ?</source>
        <translation>Vil du gemme øjebliksbillederne?</translation>
    </message>
    <message id="71">
        <source>User Name or Password error !</source>
        <translation>Forkert brugernavn eller adgangskode.</translation>
    </message>
    <message id="72">
        <source>Brand not supported!</source>
        <translation>Mærket understøttes ikke.</translation>
    </message>
    <message id="73">
        <source>Camera not supported!</source>
        <translation>Kameraet understøttes ikke.</translation>
    </message>
    <message id="74">
        <source>Device connection error!</source>
        <translation>Fejl i forbindelsen til enheden.</translation>
    </message>
    <message id="75">
        <source>Device detection timeout!</source>
        <translation>Timeout ved detektering af enhed.</translation>
    </message>
    <message id="76">
        <source>Unable to connect to the server!</source>
        <translation>Kan ikke oprette forbindelse til serveren.</translation>
    </message>
    <message id="77">
        <source>Service has not connect yet!</source>
        <translation>Tjenesten er ikke forbundet endnu.</translation>
    </message>
    <message id="78">
        <source>This series of device does not allow repeat add!</source>
        <translation>Enheder i denne serie kan ikke tilføjes flere gange.</translation>
    </message>
    <message id="79">
        <source>SEQ by Channel</source>
        <translation>SEQ efter kanal</translation>
    </message>
    <message id="80">
        <source>SEQ by NVR</source>
        <translation>SEQ efter NVR</translation>
    </message>
    <message id="81">
        <source>SEQ by Pattern</source>
        <translation>SEQ efter visning</translation>
    </message>
    <message id="82">
        <source>NVR List</source>
        <translation>NVR-liste</translation>
    </message>
    <message id="83">
        <source>Dwell time</source>
        <translation>Opholdstid</translation>
    </message>
    <message id="84">
        <source>SEQ function is starting, do you want to continue to start SEQ content setting, which will stop SEQ function?</source>
        <translation>SEQ kører. Hvis du åbner SEQ-indstillingerne, stoppes SEQ. Vil du fortsætte?</translation>
    </message>
    <message id="85">
        <source>Channel SEQ not available! Please select more than one channel when using this function.</source>
        <translation>Kanal-SEQ er ikke tilgængelig. Vælg mere end én kanal for at bruge funktionen.</translation>
    </message>
    <message id="86">
        <source>NVR SEQ not available! Please select more than one NVR when using this function.</source>
        <translation>NVR-SEQ er ikke tilgængelig. Vælg mere end én NVR for at bruge funktionen.</translation>
    </message>
    <message id="87">
        <source>Pattern SEQ not available! Please select more than one patterns when using this function.</source>
        <translation>Visnings-SEQ er ikke tilgængelig. Vælg mere end én visning for at bruge funktionen.</translation>
    </message>
    <message id="88">
        <source>Do you want to enable SEQ by Channel?</source>
        <translation>Vil du aktivere SEQ efter kanal?</translation>
    </message>
    <message id="89">
        <source>Do you want to enable SEQ by NVR?</source>
        <translation>Vil du aktivere SEQ efter NVR?</translation>
    </message>
    <message id="90">
        <source>Do you want to enable SEQ by Pattern?</source>
        <translation>Vil du aktivere SEQ efter visning?</translation>
    </message>
    <message id="91">
        <source>Camera event setting can't exceed 32!</source>
        <translation>Der kan højst være 32 kamerahændelser.</translation>
    </message>
    <message id="92">
        <source>Please add a NVR first!</source>
        <translation>Tilføj først en NVR.</translation>
    </message>
    <message id="93">
        <source>Port number can't accept 0 or more than 65536.</source>
        <translation>Portnummeret må ikke være 0 eller over 65536.</translation>
    </message>
    <message id="94">
        <source>Drive</source>
        <translation>Drev</translation>
    </message>
    <message id="95">
        <source>Size(GB)</source>
        <translation>Størrelse (GB)</translation>
    </message>
    <message id="96">
        <source>Free(GB)</source>
        <translation>Ledig (GB)</translation>
    </message>
    <message id="97">
        <source>Usage(%)</source>
        <translation>Brugt (%)</translation>
    </message>
    <message id="98">
        <source>Storage Path</source>
        <translation>Lagringssti</translation>
    </message>
    <message id="99">
        <source>Select a Path</source>
        <translation>Vælg en sti</translation>
    </message>
    <message id="100">
        <source>Live Monitor</source>
        <translation>Livevisning</translation>
    </message>
    <message id="101">
        <source>Event Monitor</source>
        <translation>Hændelsesvisning</translation>
    </message>
    <message id="102">
        <source>Playback</source>
        <translation>Afspilning</translation>
    </message>
    <message id="103">
        <source>E-MAP Monitor</source>
        <translation>Visning af oversigtskort</translation>
    </message>
    <message id="104">
        <source>User Pattern</source>
        <translation>Brugervisning</translation>
    </message>
    <message id="105">
        <source>Split</source>
        <translation>Opdeling</translation>
    </message>
    <message id="106">
        <source>Pattern Name</source>
        <translation>Visningsnavn</translation>
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
        <translation>Netværk afbrudt</translation>
    </message>
    <message id="110">
        <source>Network connection</source>
        <translation>Netværk forbundet</translation>
    </message>
    <message id="111">
        <source>Recording</source>
        <translation>Optagelse</translation>
    </message>
    <message id="112">
        <source>Event Trigger</source>
        <translation>Hændelse udløst</translation>
    </message>
    <message id="113">
        <source>Connecting</source>
        <translation>Forbinder</translation>
    </message>
    <message id="114">
        <source>Video Loss</source>
        <translation>Videotab</translation>
    </message>
    <message id="115">
        <source>SEQ Mode</source>
        <translation>SEQ-tilstand</translation>
    </message>
    <message id="116">
        <source>(Sec)</source>
        <translation>(sek.)</translation>
    </message>
    <message id="117">
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message id="118">
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message id="119">
        <source>SEQ contents</source>
        <translation>SEQ-indhold</translation>
    </message>
    <message id="120">
        <source>SEQ ALL</source>
        <translation>Alle i SEQ</translation>
    </message>
    <message id="121">
        <source>SEQ</source>
        <translation>SEQ</translation>
    </message>
    <message id="122">
        <source>Pattern SEQ</source>
        <translation>Visnings-SEQ</translation>
    </message>
    <message id="123">
        <source>Service Mode</source>
        <translation>Servicetilstand</translation>
    </message>
    <message id="124">
        <source>Language</source>
        <translation>Sprog</translation>
    </message>
    <message id="125">
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message id="126">
        <source>Event Info</source>
        <translation>Hændelsesinfo</translation>
    </message>
    <message id="127">
        <source>Event</source>
        <translation>Hændelse</translation>
    </message>
    <message id="128">
        <source>Time</source>
        <translation>Tid</translation>
    </message>
    <message id="129">
        <source>Description</source>
        <translation>Beskrivelse</translation>
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
        <translation>Systemtid:</translation>
    </message>
    <message id="133">
        <source>Group Level:</source>
        <translation>Gruppeniveau:</translation>
    </message>
    <message id="134">
        <source>CPU:</source>
        <translation>CPU:</translation>
    </message>
    <message id="135">
        <source>PRESET</source>
        <translation>Forvalg</translation>
    </message>
    <message id="136">
        <source>Preset:</source>
        <translation>Forvalg:</translation>
    </message>
    <message id="137">
        <source>Unable to support full screen mode or to change split mode under SEQ mode.</source>
        <translation>Fuld skærm og skift af opdeling er ikke muligt i SEQ-tilstand.</translation>
    </message>
    <message id="138">
        <source>Full screen is running. close it first!</source>
        <translation>Fuld skærm er aktiv. Luk den først.</translation>
    </message>
    <message id="139">
        <source>Unauthorised</source>
        <translation>Manglende rettighed</translation>
    </message>
    <message id="140">
        <source>Select a channel first.</source>
        <translation>Vælg først en kanal.</translation>
    </message>
    <message id="141">
        <source>Name Repeat!</source>
        <translation>Navnet findes allerede.</translation>
    </message>
    <message id="142">
        <source>MENU</source>
        <translation>Menu</translation>
    </message>
    <message id="143">
        <source>TREE</source>
        <translation>Træ</translation>
    </message>
    <message id="144">
        <source>PATTERN</source>
        <translation>Visning</translation>
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
        <translation>Genopret forbindelse</translation>
    </message>
    <message id="150">
        <source>Audio</source>
        <translation>Lyd</translation>
    </message>
    <message id="151">
        <source>Display Image of Motion Detection </source>
        <translation>Vis billede fra bevægelsesdetektering </translation>
    </message>
    <message id="152">
        <source>Snapshot</source>
        <translation>Øjebliksbillede</translation>
    </message>
    <message id="153">
        <source>Preset Point Setting</source>
        <translation>Indstilling af forvalg</translation>
    </message>
    <message id="154">
        <source>When modify setting, the channel of pattern will be changed.</source>
        <translation>Når indstillingen ændres, ændres visningens kanaler også.</translation>
    </message>
    <message id="155">
        <source>Snapshot fail !</source>
        <translation>Øjebliksbilledet mislykkedes.</translation>
    </message>
    <message id="156">
        <source>Preset Patrol:</source>
        <translation>Forvalgspatrulje:</translation>
    </message>
    <message id="157">
        <source>Loading Fullscreen layout data…</source>
        <translation>Indlæser layout for fuld skærm …</translation>
    </message>
    <message id="158">
        <source>Dock</source>
        <translation>Fastgør</translation>
    </message>
    <message id="159">
        <source>Control Panel</source>
        <translation>Kontrolpanel</translation>
    </message>
    <message id="160">
        <source>Name:</source>
        <translation>Navn:</translation>
    </message>
    <message id="161">
        <source>Channel:</source>
        <translation>Kanal:</translation>
    </message>
    <message id="162">
        <source>CH Name:</source>
        <translation>Kanalnavn:</translation>
    </message>
    <message id="163">
        <source>Event Mode:</source>
        <translation>Hændelsestype:</translation>
    </message>
    <message id="164">
        <source>Event Trigger Time:</source>
        <translation>Udløsningstid:</translation>
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
        <translation>Afspilningstid (system):</translation>
    </message>
    <message id="168">
        <source>Current Event List</source>
        <translation>Aktuelle hændelser</translation>
    </message>
    <message id="169">
        <source>Log Event List</source>
        <translation>Loggede hændelser</translation>
    </message>
    <message id="170">
        <source>Search</source>
        <translation>Søg</translation>
    </message>
    <message id="171">
        <source>Search All</source>
        <translation>Søg alle</translation>
    </message>
    <message id="172">
        <source>Search Start Time</source>
        <translation>Søg fra</translation>
    </message>
    <message id="173">
        <source>Search by Event type</source>
        <translation>Søg efter hændelsestype</translation>
    </message>
    <message id="174">
        <source>Item</source>
        <translation>Element</translation>
    </message>
    <message id="175">
        <source>Event ID</source>
        <translation>Hændelses-id</translation>
    </message>
    <message id="176">
        <source>Time</source>
        <translation>Tid</translation>
    </message>
    <message id="177">
        <source>System Time</source>
        <translation>Systemtid</translation>
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
        <translation>Hændelsestype</translation>
    </message>
    <message id="181">
        <source>Process</source>
        <translation>Behandling</translation>
    </message>
    <message id="182">
        <source>On-Line</source>
        <translation>Online</translation>
    </message>
    <message id="183">
        <source>Channel Name</source>
        <translation>Kanalnavn</translation>
    </message>
    <message id="184">
        <source>Channel Detail</source>
        <translation>Kanaldetaljer</translation>
    </message>
    <message id="185">
        <source>Play Error</source>
        <translation>Afspilningsfejl</translation>
    </message>
    <message id="186">
        <source>Play Stop</source>
        <translation>Afspilning stoppet</translation>
    </message>
    <message id="187">
        <source>Live Video</source>
        <translation>Livevideo</translation>
    </message>
    <message id="188">
        <source>Live Stop</source>
        <translation>Livevideo stoppet</translation>
    </message>
    <message id="189">
        <source>Off Line</source>
        <translation>Offline</translation>
    </message>
    <message id="190">
        <source>Error</source>
        <translation>Fejl</translation>
    </message>
    <message id="191">
        <source>Motion</source>
        <translation>Bevægelse</translation>
    </message>
    <message id="192">
        <source>Sensor</source>
        <translation>Sensor</translation>
    </message>
    <message id="193">
        <source>Return message: </source>
        <translation>Returbesked: </translation>
    </message>
    <message id="194">
        <source>NVR no playback resource!</source>
        <translation>NVR'en har ingen ledige afspilningsressourcer.</translation>
    </message>
    <message id="195">
        <source>Playback request failed!</source>
        <translation>Anmodning om afspilning mislykkedes.</translation>
    </message>
    <message id="196">
        <source>Reset Event List</source>
        <translation>Nulstil hændelsesliste</translation>
    </message>
    <message id="197">
        <source>X</source>
        <translation>X</translation>
    </message>
    <message id="198">
        <source>Return</source>
        <translation>Tilbage</translation>
    </message>
    <message id="199">
        <source>SEQ Duration Time</source>
        <translation>SEQ-varighed</translation>
    </message>
    <message id="200">
        <source>Playback Info</source>
        <translation>Afspilningsinfo</translation>
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
        <translation>Hastighed:</translation>
    </message>
    <message id="204">
        <source>Sun</source>
        <translation>Søn</translation>
    </message>
    <message id="205">
        <source>Mon</source>
        <translation>Man</translation>
    </message>
    <message id="206">
        <source>Tue</source>
        <translation>Tir</translation>
    </message>
    <message id="207">
        <source>Wed</source>
        <translation>Ons</translation>
    </message>
    <message id="208">
        <source>Thu</source>
        <translation>Tor</translation>
    </message>
    <message id="209">
        <source>Fri</source>
        <translation>Fre</translation>
    </message>
    <message id="210">
        <source>Sat</source>
        <translation>Lør</translation>
    </message>
    <message id="211">
        <source>Event List</source>
        <translation>Hændelsesliste</translation>
    </message>
    <message id="212">
        <source>Receiving recording data failed</source>
        <translation>Modtagelse af optagelsesdata mislykkedes.</translation>
    </message>
    <message id="213">
        <source>RF</source>
        <translation>Spol tilbage</translation>
    </message>
    <message id="214">
        <source>STOP</source>
        <translation>Stop</translation>
    </message>
    <message id="215">
        <source>PLAY</source>
        <translation>Afspil</translation>
    </message>
    <message id="216">
        <source>PAUSE</source>
        <translation>Pause</translation>
    </message>
    <message id="217">
        <source>FF</source>
        <translation>Spol frem</translation>
    </message>
    <message id="218">
        <source>NEXT</source>
        <translation>Næste</translation>
    </message>
    <message id="219">
        <source>No recording data can be Displayed !</source>
        <translation>Der er ingen optagelse at vise.</translation>
    </message>
    <message id="220">
        <source>Play Stop ! Need to select new time.</source>
        <translation>Afspilning stoppet. Vælg et nyt tidspunkt.</translation>
    </message>
    <message id="221">
        <source>No response! you can try again or select another device !</source>
        <translation>Intet svar. Prøv igen, eller vælg en anden enhed.</translation>
    </message>
    <message id="222">
        <source>Disconnection ! </source>
        <translation>Forbindelsen er afbrudt. </translation>
    </message>
    <message id="223">
        <source>Can not get video stream ! please select other Channel.</source>
        <translation>Kan ikke hente videostream. Vælg en anden kanal.</translation>
    </message>
    <message id="224">
        <source>No recording data.</source>
        <translation>Ingen optagelse.</translation>
    </message>
    <message id="225">
        <source>Recording data is updating, please wait .</source>
        <translation>Optagelsesdata opdateres, vent venligst.</translation>
    </message>
    <message id="226">
        <source>Convert to AVI</source>
        <translation>Konverter til AVI</translation>
    </message>
    <message id="227">
        <source>Do you want to stop the conversion of avi file ?</source>
        <translation>Vil du stoppe konverteringen af AVI-filen?</translation>
    </message>
    <message id="228">
        <source>AVI file conversion complete! File is... </source>
        <translation>AVI-filen er konverteret. Filen er … </translation>
    </message>
    <message id="229">
        <source>Converting AVI file!</source>
        <translation>Konverterer AVI-fil.</translation>
    </message>
    <message id="230">
        <source>AVI Conversion Fail !</source>
        <translation>AVI-konvertering mislykkedes.</translation>
    </message>
    <message id="231">
        <source>Auto Pan:</source>
        <translation>Autopanorering:</translation>
    </message>
    <message id="232">
        <source>Single Video</source>
        <translation>Ét billede</translation>
    </message>
    <message id="233">
        <source>Quad Videos</source>
        <translation>Fire billeder</translation>
    </message>
    <message id="234">
        <source>Nine Videos</source>
        <translation>Ni billeder</translation>
    </message>
    <message id="235">
        <source>No any SVD has been set, you need to add any SVD to control!</source>
        <translation>Der er ikke oprettet nogen SVD. Tilføj en SVD for at styre den.</translation>
    </message>
    <message id="236">
        <source>This channel has been set to display in this screen!</source>
        <translation>Denne kanal vises allerede på denne skærm.</translation>
    </message>
    <message id="237">
        <source>Are you sure to exit SVD console monitor?</source>
        <translation>Er du sikker på, at du vil afslutte SVD-konsollen?</translation>
    </message>
    <message id="238">
        <source>Click here to reconnect again!</source>
        <translation>Klik her for at genoprette forbindelsen.</translation>
    </message>
    <message id="239">
        <source>SVD UI is changing…</source>
        <translation>SVD-brugerfladen skifter …</translation>
    </message>
    <message id="240">
        <source>NO.:</source>
        <translation>Nr.:</translation>
    </message>
    <message id="241">
        <source>Name:</source>
        <translation>Navn:</translation>
    </message>
    <message id="242">
        <source>Number of Camera:</source>
        <translation>Antal kameraer:</translation>
    </message>
    <message id="243">
        <source>Event:</source>
        <translation>Hændelse:</translation>
    </message>
    <message id="244">
        <source>No Event</source>
        <translation>Ingen hændelser</translation>
    </message>
    <message id="245">
        <source>CH:</source>
        <translation>Kanal:</translation>
    </message>
    <message id="246">
        <source>Up</source>
        <translation>Op</translation>
    </message>
    <message id="247">
        <source>Down</source>
        <translation>Ned</translation>
    </message>
    <message id="248">
        <source>Left</source>
        <translation>Venstre</translation>
    </message>
    <message id="249">
        <source>Right</source>
        <translation>Højre</translation>
    </message>
    <message id="250">
        <source>Upper left</source>
        <translation>Øverst til venstre</translation>
    </message>
    <message id="251">
        <source>Upper right</source>
        <translation>Øverst til højre</translation>
    </message>
    <message id="252">
        <source>Lower left</source>
        <translation>Nederst til venstre</translation>
    </message>
    <message id="253">
        <source>Lower right</source>
        <translation>Nederst til højre</translation>
    </message>
    <message id="254">
        <source>Home</source>
        <translation>Startposition</translation>
    </message>
    <message id="255">
        <source>Zoom In</source>
        <translation>Zoom ind</translation>
    </message>
    <message id="256">
        <source>Zoom Out</source>
        <translation>Zoom ud</translation>
    </message>
    <message id="257">
        <source>Focus Far</source>
        <translation>Fokus fjern</translation>
    </message>
    <message id="258">
        <source>Focus Near</source>
        <translation>Fokus nær</translation>
    </message>
    <message id="259">
        <source>Auto Focus</source>
        <translation>Autofokus</translation>
    </message>
    <message id="260">
        <source>IRIS Auto</source>
        <translation>Auto-iris</translation>
    </message>
    <message id="261">
        <source>IRIS Close</source>
        <translation>Luk iris</translation>
    </message>
    <message id="262">
        <source>IRIS Open</source>
        <translation>Åbn iris</translation>
    </message>
    <message id="263">
        <source>Auto Pan Left</source>
        <translation>Autopanorer venstre</translation>
    </message>
    <message id="264">
        <source>Auto Pan Right</source>
        <translation>Autopanorer højre</translation>
    </message>
    <message id="265">
        <source>Auto Pan Stop</source>
        <translation>Stop autopanorering</translation>
    </message>
    <message id="266">
        <source>Moving Rate(+)</source>
        <translation>Hastighed (+)</translation>
    </message>
    <message id="267">
        <source>Moving Rate(-)</source>
        <translation>Hastighed (-)</translation>
    </message>
    <message id="268">
        <source>Display OSD on all channels</source>
        <translation>Vis OSD på alle kanaler</translation>
    </message>
    <message id="269">
        <source>Display OSD</source>
        <translation>Vis OSD</translation>
    </message>
    <message id="270">
        <source>Detail Export:</source>
        <translation>Detaljeret eksport:</translation>
    </message>
    <message id="271">
        <source>Valid Ch</source>
        <translation>Gyldige kanaler</translation>
    </message>
    <message id="272">
        <source>Auto Search</source>
        <translation>Autosøgning</translation>
    </message>
    <message id="273">
        <source>Manual Detection</source>
        <translation>Manuel detektering</translation>
    </message>
    <message id="274">
        <source>NVR ID:</source>
        <translation>NVR-id:</translation>
    </message>
    <message id="275">
        <source>IP:</source>
        <translation>IP:</translation>
    </message>
    <message id="276">
        <source>HTTP Port:</source>
        <translation>HTTP-port:</translation>
    </message>
    <message id="277">
        <source>Next</source>
        <translation>Næste</translation>
    </message>
    <message id="278">
        <source>Device Name</source>
        <translation>Enhedsnavn</translation>
    </message>
    <message id="279">
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message id="280">
        <source>CHs</source>
        <translation>Kanaler</translation>
    </message>
    <message id="281">
        <source>Model:</source>
        <translation>Model:</translation>
    </message>
    <message id="282">
        <source>Max Channel:</source>
        <translation>Maks. kanaler:</translation>
    </message>
    <message id="283">
        <source>NVR Name:</source>
        <translation>NVR-navn:</translation>
    </message>
    <message id="284">
        <source>Version:</source>
        <translation>Version:</translation>
    </message>
    <message id="285">
        <source>Valid Channel:</source>
        <translation>Gyldige kanaler:</translation>
    </message>
    <message id="286">
        <source>Sync With NVR</source>
        <translation>Synkroniser med NVR</translation>
    </message>
    <message id="287">
        <source>Add New NVR </source>
        <translation>Tilføj ny NVR </translation>
    </message>
    <message id="288">
        <source>NVR Search List</source>
        <translation>Fundne NVR'er</translation>
    </message>
    <message id="289">
        <source>NVR Detect Status</source>
        <translation>NVR-detekteringsstatus</translation>
    </message>
    <message id="290">
        <source>NVR Detail Setting</source>
        <translation>NVR-detaljer</translation>
    </message>
    <message id="291">
        <source>NVR Channel Setting</source>
        <translation>NVR-kanalindstillinger</translation>
    </message>
    <message id="292">
        <source>Preset Sequence Setting</source>
        <translation>Indstilling af forvalgssekvens</translation>
    </message>
    <message id="293">
        <source>Get Capability...</source>
        <translation>Henter funktioner …</translation>
    </message>
    <message id="294">
        <source>Get Channel Info...</source>
        <translation>Henter kanalinfo …</translation>
    </message>
    <message id="295">
        <source>Get NVR Info...</source>
        <translation>Henter NVR-info …</translation>
    </message>
    <message id="296">
        <source>Initial NVR Value...</source>
        <translation>Initialiserer NVR-værdier …</translation>
    </message>
    <message id="297">
        <source>Add Success!</source>
        <translation>Tilføjet.</translation>
    </message>
    <message id="298">
        <source>Channel List</source>
        <translation>Kanalliste</translation>
    </message>
    <message id="299">
        <source>Split:</source>
        <translation>Opdeling:</translation>
    </message>
    <message id="300">
        <source>MainViewer opened. Close it First!</source>
        <translation>Hovedfremviseren er åben. Luk den først.</translation>
    </message>
    <message id="301">
        <source>System &amp; Setting</source>
        <translation>System og indstillinger</translation>
    </message>
    <message id="302">
        <source>Setting</source>
        <translation>Indstillinger</translation>
    </message>
    <message id="303">
        <source>Manual Setting</source>
        <translation>Manuel indstilling</translation>
    </message>
    <message id="304">
        <source>PTZ Config</source>
        <translation>PTZ-konfiguration</translation>
    </message>
    <message id="305">
        <source>Motion Setting</source>
        <translation>Bevægelsesindstillinger</translation>
    </message>
    <message id="306">
        <source>Motion Setting</source>
        <translation>Bevægelsesindstillinger</translation>
    </message>
    <message id="307">
        <source>General Setting Overview</source>
        <translation>Oversigt over generelle indstillinger</translation>
    </message>
    <message id="308">
        <source>Group/User Config</source>
        <translation>Grupper/brugere</translation>
    </message>
    <message id="309">
        <source>Event Handling Config</source>
        <translation>Hændelseshåndtering</translation>
    </message>
    <message id="310">
        <source>E-Map Config</source>
        <translation>Konfiguration af oversigtskort</translation>
    </message>
    <message id="311">
        <source>Screen Layout Config</source>
        <translation>Skærmlayout</translation>
    </message>
    <message id="312">
        <source>Event Action Overview</source>
        <translation>Oversigt over hændelseshandlinger</translation>
    </message>
    <message id="313">
        <source>Mail Config</source>
        <translation>Mailkonfiguration</translation>
    </message>
    <message id="314">
        <source>FTP Config</source>
        <translation>FTP-konfiguration</translation>
    </message>
    <message id="315">
        <source>Message Config</source>
        <translation>Beskedkonfiguration</translation>
    </message>
    <message id="316">
        <source>Sound Config</source>
        <translation>Lydkonfiguration</translation>
    </message>
    <message id="317">
        <source>Save</source>
        <translation>Gem</translation>
    </message>
    <message id="318">
        <source>Main Viewer</source>
        <translation>Hovedfremviser</translation>
    </message>
    <message id="319">
        <source>Exit</source>
        <translation>Afslut</translation>
    </message>
    <message id="320">
        <source>Setup</source>
        <translation>Opsætning</translation>
    </message>
    <message id="321">
        <source>SEQ Control</source>
        <translation>SEQ-styring</translation>
    </message>
    <message id="322">
        <source>Pattern Name:</source>
        <translation>Visningsnavn:</translation>
    </message>
    <message id="323">
        <source>Do you continue to delete this pattern?</source>
        <translation>Vil du slette denne visning?</translation>
    </message>
    <message id="324">
        <source>Pattern List Overview</source>
        <translation>Oversigt over visninger</translation>
    </message>
    <message id="325">
        <source>Name or Channel list need to be set!</source>
        <translation>Navn eller kanalliste skal angives.</translation>
    </message>
    <message id="326">
        <source>Live Monitor SEQ and full screen can not be opened at the same time.</source>
        <translation>SEQ og fuld skærm i livevisningen kan ikke være åbne samtidig.</translation>
    </message>
    <message id="327">
        <source>No channel is selected!</source>
        <translation>Der er ikke valgt nogen kanal.</translation>
    </message>
    <message id="328">
        <source>Select time is out of data range!</source>
        <translation>Det valgte tidspunkt ligger uden for dataområdet.</translation>
    </message>
    <message id="329">
        <source>NVR is invalid!</source>
        <translation>NVR'en er ugyldig.</translation>
    </message>
    <message id="330">
        <source>System Setting</source>
        <translation>Systemindstillinger</translation>
    </message>
    <message id="331">
        <source>Application name:</source>
        <translation>Programnavn:</translation>
    </message>
    <message id="332">
        <source>Version:</source>
        <translation>Version:</translation>
    </message>
    <message id="333">
        <source>Language:</source>
        <translation>Sprog:</translation>
    </message>
    <message id="334">
        <source>Start Up:</source>
        <translation>Opstart:</translation>
    </message>
    <message id="335">
        <source>Event Sync Time:</source>
        <translation>Synk. af hændelser:</translation>
    </message>
    <message id="336">
        <source>Snapshot Count:</source>
        <translation>Antal øjebliksbilleder:</translation>
    </message>
    <message id="337">
        <source>Camera Event Server Setting</source>
        <translation>Indstillinger for kameraets hændelsesserver</translation>
    </message>
    <message id="338">
        <source>Account:</source>
        <translation>Konto:</translation>
    </message>
    <message id="339">
        <source>Password:</source>
        <translation>Adgangskode:</translation>
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
        <translation>OS:</translation>
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
        <translation>Computernavn:</translation>
    </message>
    <message id="347">
        <source>Total space of HD:</source>
        <translation>Samlet diskplads:</translation>
    </message>
    <message id="348">
        <source>Network Connect Status:</source>
        <translation>Netværksforbindelse:</translation>
    </message>
    <message id="349">
        <source>System Time:</source>
        <translation>Systemtid:</translation>
    </message>
    <message id="350">
        <source>Screen Count:</source>
        <translation>Antal skærme:</translation>
    </message>
    <message id="351">
        <source>CPU Performance:</source>
        <translation>CPU-belastning:</translation>
    </message>
    <message id="352">
        <source>Login Windows then Auto Start up </source>
        <translation>Start automatisk efter Windows-login </translation>
    </message>
    <message id="353">
        <source>Start in background</source>
        <translation>Start i baggrunden</translation>
    </message>
    <message id="354">
        <source>Minute</source>
        <translation>Minutter</translation>
    </message>
    <message id="356">
        <source>NVR is connecting, wait a moment and start again!</source>
        <translation>NVR'en opretter forbindelse. Vent et øjeblik, og start igen.</translation>
    </message>
    <message id="357">
        <source>NVR is offline, please choose another NVR or confirm this NVR connection status!</source>
        <translation>NVR'en er offline. Vælg en anden NVR, eller kontroller dens forbindelse.</translation>
    </message>
    <message id="358">
        <source>Output device has been removed!</source>
        <translation>Outputenheden er blevet fjernet.</translation>
    </message>
    <message id="359">
        <source>Password confirm inconsistency, Please check again!</source>
        <translation>Adgangskoderne er ikke ens. Kontroller dem igen.</translation>
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
        <translation>Navn</translation>
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
        <translation>Rettighed</translation>
    </message>
    <message id="366">
        <source>CH</source>
        <translation>Kanal</translation>
    </message>
    <message id="367">
        <source>CH Name</source>
        <translation>Kanalnavn</translation>
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
        <translation>Kanalmærke</translation>
    </message>
    <message id="371">
        <source>Video Format</source>
        <translation>Videoformat</translation>
    </message>
    <message id="372">
        <source>Video RES</source>
        <translation>Videoopløsning</translation>
    </message>
    <message id="373">
        <source>MD Enable</source>
        <translation>Bevægelse aktiv</translation>
    </message>
    <message id="374">
        <source>MD Sen</source>
        <translation>Følsomhed</translation>
    </message>
    <message id="375">
        <source>CH PTZ</source>
        <translation>Kanal-PTZ</translation>
    </message>
    <message id="376">
        <source>CH audio</source>
        <translation>Kanallyd</translation>
    </message>
    <message id="377">
        <source>Detect List</source>
        <translation>Detekteringsliste</translation>
    </message>
    <message id="378">
        <source>Advance Control </source>
        <translation>Avanceret styring </translation>
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
        <translation>Mærke</translation>
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
        <translation>Detekteringstid</translation>
    </message>
    <message id="385">
        <source>Add</source>
        <translation>Tilføj</translation>
    </message>
    <message id="386">
        <source>Remove</source>
        <translation>Fjern</translation>
    </message>
    <message id="387">
        <source>Modify</source>
        <translation>Ændr</translation>
    </message>
    <message id="388">
        <source>Reconection </source>
        <translation>Genopret forbindelse </translation>
    </message>
    <message id="389">
        <source>Open Browser</source>
        <translation>Åbn browser</translation>
    </message>
    <message id="390">
        <source>Preset Info</source>
        <translation>Forvalgsinfo</translation>
    </message>
    <message id="391">
        <source>Sync</source>
        <translation>Synkroniser</translation>
    </message>
    <message id="392">
        <source>Edit Preset</source>
        <translation>Rediger forvalg</translation>
    </message>
    <message id="393">
        <source>Preset No</source>
        <translation>Forvalgsnummer</translation>
    </message>
    <message id="394">
        <source>Preset Name</source>
        <translation>Forvalgsnavn</translation>
    </message>
    <message id="395">
        <source>PTZ Control</source>
        <translation>PTZ-styring</translation>
    </message>
    <message id="396">
        <source>Submit</source>
        <translation>Bekræft</translation>
    </message>
    <message id="397">
        <source>Motion Detect List:</source>
        <translation>Liste for bevægelsesdetektering:</translation>
    </message>
    <message id="398">
        <source>Sensitivity:</source>
        <translation>Følsomhed:</translation>
    </message>
    <message id="399">
        <source>Motion Detect Setting</source>
        <translation>Indstillinger for bevægelsesdetektering</translation>
    </message>
    <message id="400">
        <source>*Use Mouse drag the Device item into Intelligent detection List.</source>
        <translation>*Træk enheder med musen til listen for videoanalyse.</translation>
    </message>
    <message id="401">
        <source>Device List:</source>
        <translation>Enhedsliste:</translation>
    </message>
    <message id="402">
        <source>Trigger for Motion Detect</source>
        <translation>Udløsning ved bevægelse</translation>
    </message>
    <message id="403">
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message id="404">
        <source>Motion Enable List:</source>
        <translation>Aktiv bevægelsesdetektering:</translation>
    </message>
    <message id="405">
        <source>Clear All</source>
        <translation>Ryd alt</translation>
    </message>
    <message id="406">
        <source>Select All</source>
        <translation>Vælg alle</translation>
    </message>
    <message id="407">
        <source>High</source>
        <translation>Høj</translation>
    </message>
    <message id="408">
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message id="409">
        <source>Low</source>
        <translation>Lav</translation>
    </message>
    <message id="410">
        <source>SET</source>
        <translation>Indstil</translation>
    </message>
    <message id="411">
        <source>User List:</source>
        <translation>Brugerliste:</translation>
    </message>
    <message id="412">
        <source>Group List:</source>
        <translation>Gruppeliste:</translation>
    </message>
    <message id="413">
        <source>Event Setting List:</source>
        <translation>Hændelsesindstillinger:</translation>
    </message>
    <message id="414">
        <source>EMap List:</source>
        <translation>Oversigtskort:</translation>
    </message>
    <message id="415">
        <source>Screen List:</source>
        <translation>Skærmliste:</translation>
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
        <translation>Mail 1</translation>
    </message>
    <message id="420">
        <source>Mail 2</source>
        <translation>Mail 2</translation>
    </message>
    <message id="421">
        <source>Cell Phone</source>
        <translation>Mobiltelefon</translation>
    </message>
    <message id="422">
        <source>Photo Path</source>
        <translation>Fotosti</translation>
    </message>
    <message id="423">
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message id="424">
        <source>Event</source>
        <translation>Hændelse</translation>
    </message>
    <message id="425">
        <source>Mail</source>
        <translation>Mail</translation>
    </message>
    <message id="426">
        <source>FTP</source>
        <translation>FTP</translation>
    </message>
    <message id="427">
        <source>Msg</source>
        <translation>Besked</translation>
    </message>
    <message id="428">
        <source>Sound</source>
        <translation>Lyd</translation>
    </message>
    <message id="429">
        <source>Video Power</source>
        <translation>Videorettighed</translation>
    </message>
    <message id="430">
        <source>Playback</source>
        <translation>Afspilning</translation>
    </message>
    <message id="431">
        <source>PTZ</source>
        <translation>PTZ</translation>
    </message>
    <message id="432">
        <source>Setup</source>
        <translation>Opsætning</translation>
    </message>
    <message id="433">
        <source>Map</source>
        <translation>Kort</translation>
    </message>
    <message id="434">
        <source>Path</source>
        <translation>Sti</translation>
    </message>
    <message id="435">
        <source>Function</source>
        <translation>Funktion</translation>
    </message>
    <message id="436">
        <source>Screen</source>
        <translation>Skærm</translation>
    </message>
    <message id="437">
        <source>MainMap</source>
        <translation>Hovedkort</translation>
    </message>
    <message id="438">
        <source>FullScreen</source>
        <translation>Fuld skærm</translation>
    </message>
    <message id="439">
        <source>FullScreen2</source>
        <translation>Fuld skærm 2</translation>
    </message>
    <message id="440">
        <source>User Detail List</source>
        <translation>Brugerdetaljer</translation>
    </message>
    <message id="441">
        <source>Group List</source>
        <translation>Gruppeliste</translation>
    </message>
    <message id="442">
        <source>Add User</source>
        <translation>Tilføj bruger</translation>
    </message>
    <message id="443">
        <source>Remove User</source>
        <translation>Fjern bruger</translation>
    </message>
    <message id="444">
        <source>Modify User</source>
        <translation>Ændr bruger</translation>
    </message>
    <message id="445">
        <source>Modify Group</source>
        <translation>Ændr gruppe</translation>
    </message>
    <message id="446">
        <source>System Event Trigger Action</source>
        <translation>Handling ved systemhændelse</translation>
    </message>
    <message id="447">
        <source>NVR Event Trigger Action</source>
        <translation>Handling ved NVR-hændelse</translation>
    </message>
    <message id="448">
        <source>System Start/Stop</source>
        <translation>Systemstart/-stop</translation>
    </message>
    <message id="449">
        <source>Modify Setting of System</source>
        <translation>Ændring af systemindstillinger</translation>
    </message>
    <message id="450">
        <source>Modify Setting of NVR</source>
        <translation>Ændring af NVR-indstillinger</translation>
    </message>
    <message id="451">
        <source>Modify Setting of Intelligent detection</source>
        <translation>Ændring af analyseindstillinger</translation>
    </message>
    <message id="452">
        <source>Modify Setting of General</source>
        <translation>Ændring af generelle indstillinger</translation>
    </message>
    <message id="453">
        <source>Modify Setting of Event</source>
        <translation>Ændring af hændelsesindstillinger</translation>
    </message>
    <message id="454">
        <source>E1:Motion Detect</source>
        <translation>E1: Bevægelsesdetektering</translation>
    </message>
    <message id="455">
        <source>Sensor Detection</source>
        <translation>Sensordetektering</translation>
    </message>
    <message id="456">
        <source>*Double Click Map to Setting</source>
        <translation>*Dobbeltklik på kortet for at indstille</translation>
    </message>
    <message id="457">
        <source>SubMap</source>
        <translation>Underkort</translation>
    </message>
    <message id="458">
        <source>Screen Layout</source>
        <translation>Skærmlayout</translation>
    </message>
    <message id="459">
        <source>Mail</source>
        <translation>Mail</translation>
    </message>
    <message id="460">
        <source>FTP</source>
        <translation>FTP</translation>
    </message>
    <message id="461">
        <source>Message</source>
        <translation>Besked</translation>
    </message>
    <message id="462">
        <source>Sound</source>
        <translation>Lyd</translation>
    </message>
    <message id="463">
        <source>Sender E-mail Address</source>
        <translation>Afsenderens mailadresse</translation>
    </message>
    <message id="464">
        <source>Mail Server</source>
        <translation>Mailserver</translation>
    </message>
    <message id="465">
        <source>User</source>
        <translation>Bruger</translation>
    </message>
    <message id="466">
        <source>Password</source>
        <translation>Adgangskode</translation>
    </message>
    <message id="467">
        <source>Adressee Name</source>
        <translation>Modtagernavn</translation>
    </message>
    <message id="468">
        <source>Mail Addrrss</source>
        <translation>Mailadresse</translation>
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
        <translation>Tekst</translation>
    </message>
    <message id="472">
        <source>Sound Description</source>
        <translation>Lydbeskrivelse</translation>
    </message>
    <message id="473">
        <source>Sound File Path</source>
        <translation>Sti til lydfil</translation>
    </message>
    <message id="474">
        <source>Test</source>
        <translation>Test</translation>
    </message>
    <message id="475">
        <source>Cancel</source>
        <translation>Annuller</translation>
    </message>
    <message id="476">
        <source>Mail to</source>
        <translation>Mail til</translation>
    </message>
    <message id="477">
        <source>FTP Setting</source>
        <translation>FTP-indstillinger</translation>
    </message>
    <message id="478">
        <source>Message Setting</source>
        <translation>Beskedindstillinger</translation>
    </message>
    <message id="479">
        <source>Message</source>
        <translation>Besked</translation>
    </message>
    <message id="480">
        <source>Sound Setting</source>
        <translation>Lydindstillinger</translation>
    </message>
    <message id="481">
        <source>Set HTTP Server failed! Do you want to remove all HTTP Servers?</source>
        <translation>HTTP-serveren kunne ikke indstilles. Vil du fjerne alle HTTP-servere?</translation>
    </message>
    <message id="482">
        <source>The amount cannot be more than 16!</source>
        <translation>Antallet må ikke være over 16.</translation>
    </message>
    <message id="483">
        <source>Do you want to delete the selected NVR?</source>
        <translation>Vil du slette den valgte NVR?</translation>
    </message>
    <message id="484">
        <source>Sender name can't be empty!</source>
        <translation>Afsendernavnet må ikke være tomt.</translation>
    </message>
    <message id="485">
        <source>Mail Server can't be empty!</source>
        <translation>Mailserveren må ikke være tom.</translation>
    </message>
    <message id="486">
        <source>User can't be empty!</source>
        <translation>Brugernavnet må ikke være tomt.</translation>
    </message>
    <message id="487">
        <source>Password can't be empty!</source>
        <translation>Adgangskoden må ikke være tom.</translation>
    </message>
    <message id="488">
        <source>Mail Address can't be empty!</source>
        <translation>Mailadressen må ikke være tom.</translation>
    </message>
    <message id="489">
        <source>Test mail sent success.</source>
        <translation>Testmailen er sendt.</translation>
    </message>
    <message id="490">
        <source>Test mail sent failed.</source>
        <translation>Testmailen kunne ikke sendes.</translation>
    </message>
    <message id="491">
        <source>Server IP can't be empty!</source>
        <translation>Server-IP'en må ikke være tom.</translation>
    </message>
    <message id="492">
        <source>Server Port can't be empty!</source>
        <translation>Serverporten må ikke være tom.</translation>
    </message>
    <message id="493">
        <source>Root Path can't be empty!</source>
        <translation>Rodstien må ikke være tom.</translation>
    </message>
    <message id="494">
        <source>Connecting to ftp server success.</source>
        <translation>Der er forbindelse til FTP-serveren.</translation>
    </message>
    <message id="495">
        <source>Connecting to ftp server failed.</source>
        <translation>Forbindelsen til FTP-serveren mislykkedes.</translation>
    </message>
    <message id="496">
        <source>Message can't be empty!</source>
        <translation>Beskeden må ikke være tom.</translation>
    </message>
    <message id="497">
        <source>Sound Description can't be empty!</source>
        <translation>Lydbeskrivelsen må ikke være tom.</translation>
    </message>
    <message id="498">
        <source>Sound file Path can't be empty!</source>
        <translation>Stien til lydfilen må ikke være tom.</translation>
    </message>
    <message id="499">
        <source>Preset number select first.</source>
        <translation>Vælg først forvalgets nummer.</translation>
    </message>
    <message id="500">
        <source>The Preset Name has been used.</source>
        <translation>Forvalgets navn er allerede i brug.</translation>
    </message>
    <message id="501">
        <source>Do you want to delete the selected User?</source>
        <translation>Vil du slette den valgte bruger?</translation>
    </message>
    <message id="502">
        <source>Can't Delete User.</source>
        <translation>Brugeren kan ikke slettes.</translation>
    </message>
    <message id="503">
        <source>Already Set.</source>
        <translation>Allerede indstillet.</translation>
    </message>
    <message id="504">
        <source>Intelligent setting can't exceed 16</source>
        <translation>Der kan højst være 16 kanaler med videoanalyse.</translation>
    </message>
    <message id="505">
        <source>Add NVR failed! Please add again.</source>
        <translation>NVR'en kunne ikke tilføjes. Tilføj den igen.</translation>
    </message>
    <message id="506">
        <source>File Size can't more than 5MB</source>
        <translation>Filen må højst fylde 5 MB.</translation>
    </message>
    <message id="507">
        <source>Save OK</source>
        <translation>Gemt.</translation>
    </message>
    <message id="508">
        <source>Exit and Open MainViewer?</source>
        <translation>Vil du afslutte og åbne hovedfremviseren?</translation>
    </message>
    <message id="509">
        <source>Do you want to exit?</source>
        <translation>Vil du afslutte?</translation>
    </message>
    <message id="510">
        <source>Resolution Not Support .</source>
        <translation>Opløsningen understøttes ikke.</translation>
    </message>
    <message id="511">
        <source>Do you want to Save?</source>
        <translation>Vil du gemme?</translation>
    </message>
    <message id="512">
        <source>The Channel does not support motion detection or is no connection !</source>
        <translation>Kanalen understøtter ikke bevægelsesdetektering eller er ikke forbundet.</translation>
    </message>
    <message id="513">
        <source>No setting !</source>
        <translation>Ingen indstilling.</translation>
    </message>
    <message id="514">
        <source>Settings have changed , Do you want to save ?</source>
        <translation>Indstillingerne er ændret. Vil du gemme?</translation>
    </message>
    <message id="515">
        <source>Not yet set of Event Action config!</source>
        <translation>Hændelseshandlingen er ikke konfigureret endnu.</translation>
    </message>
    <message id="516">
        <source>Video can't connection.</source>
        <translation>Der kan ikke oprettes videoforbindelse.</translation>
    </message>
    <message id="517">
        <source>Submit</source>
        <translation>Bekræft</translation>
    </message>
    <message id="518">
        <source>Save Setting</source>
        <translation>Gem indstillinger</translation>
    </message>
    <message id="519">
        <source>Close this window</source>
        <translation>Luk dette vindue</translation>
    </message>
    <message id="520">
        <source>Preset Sequence</source>
        <translation>Forvalgssekvens</translation>
    </message>
    <message id="521">
        <source>Dwell Time:</source>
        <translation>Opholdstid:</translation>
    </message>
    <message id="522">
        <source>PTZ Preset</source>
        <translation>PTZ-forvalg</translation>
    </message>
    <message id="523">
        <source>Preset Sequence</source>
        <translation>Forvalgssekvens</translation>
    </message>
    <message id="524">
        <source>Select a wave file</source>
        <translation>Vælg en WAV-fil</translation>
    </message>
    <message id="525">
        <source>File Name: </source>
        <translation>Filnavn: </translation>
    </message>
    <message id="526">
        <source>Message sent successfully!</source>
        <translation>Beskeden er sendt.</translation>
    </message>
    <message id="527">
        <source>Sending Message fail!</source>
        <translation>Beskeden kunne ikke sendes.</translation>
    </message>
    <message id="528">
        <source>MAX Video</source>
        <translation>Maksimer video</translation>
    </message>
    <message id="529">
        <source>Enable/Disable auto switch group to display videos.</source>
        <translation>Slå automatisk skift af videogruppe til/fra.</translation>
    </message>
    <message id="530">
        <source>Enable/Disable maximum video to display.</source>
        <translation>Slå maksimeret videovisning til/fra.</translation>
    </message>
    <message id="531">
        <source>Live Video</source>
        <translation>Livevideo</translation>
    </message>
    <message id="532">
        <source>Do you want to cancel playback for NVR?</source>
        <translation>Vil du annullere afspilningen for NVR'en?</translation>
    </message>
    <message id="533">
        <source>The selected time doesn't have any recording data!</source>
        <translation>Der er ingen optagelse på det valgte tidspunkt.</translation>
    </message>
    <message id="534">
        <source>Select channel you want to change and reset the relational data information?</source>
        <translation>Vil du ændre den valgte kanal og nulstille de tilknyttede data?</translation>
    </message>
    <message id="535">
        <source>This NVR cannot get group ID to playback!</source>
        <translation>Denne NVR leverer ikke noget gruppe-id til afspilning.</translation>
    </message>
    <message id="536">
        <source>Select the SVD has been disconnected, so close the panel and make sure that SVD status!</source>
        <translation>Forbindelsen til den valgte SVD er afbrudt. Panelet lukkes. Kontroller SVD'ens status.</translation>
    </message>
    <message id="550">
        <source>IP Address</source>
        <translation>IP-adresse</translation>
    </message>
    <message id="551">
        <source>Http Port</source>
        <translation>HTTP-port</translation>
    </message>
    <message id="552">
        <source>Add</source>
        <translation>Tilføj</translation>
    </message>
    <message id="553">
        <source>NVR Name can't be empty!</source>
        <translation>NVR-navnet må ikke være tomt.</translation>
    </message>
    <message id="554">
        <source>IP address or hostname set incorrectly!</source>
        <translation>IP-adressen eller værtsnavnet er forkert.</translation>
    </message>
    <message id="555">
        <source>NVR don't exist!</source>
        <translation>NVR'en findes ikke.</translation>
    </message>
    <message id="556">
        <source>Port set incorrectly!</source>
        <translation>Porten er forkert.</translation>
    </message>
    <message id="557">
        <source>Add</source>
        <translation>Tilføj</translation>
    </message>
    <message id="558">
        <source>NVR select setting</source>
        <translation>Valg af NVR</translation>
    </message>
    <message id="559">
        <source>Pattern select setting</source>
        <translation>Valg af visninger</translation>
    </message>
    <message id="560">
        <source>All list</source>
        <translation>Alle</translation>
    </message>
    <message id="561">
        <source>Selected list</source>
        <translation>Valgte</translation>
    </message>
    <message id="562">
        <source>Select item is less than 2 items, it can not be saved!</source>
        <translation>Der er valgt færre end 2 elementer, så der kan ikke gemmes.</translation>
    </message>
    <message id="563">
        <source>Functions that were originally assigned on this screen will be moved to screen #1 automatically.</source>
        <translation>Funktioner, der var tildelt denne skærm, flyttes automatisk til skærm 1.</translation>
    </message>
    <message id="564">
        <source>Has not enough pattern can be selected!</source>
        <translation>Der er ikke nok visninger at vælge imellem.</translation>
    </message>
    <message id="565">
        <source>This screen has been assigned to Video Wall!</source>
        <translation>Denne skærm er tildelt videovæggen.</translation>
    </message>
    <message id="566">
        <source>Has not enough device can be selected!</source>
        <translation>Der er ikke nok enheder at vælge imellem.</translation>
    </message>
    <message id="570">
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message id="571">
        <source>*Name</source>
        <translation>*Navn</translation>
    </message>
    <message id="572">
        <source>*IP Address</source>
        <translation>*IP-adresse</translation>
    </message>
    <message id="573">
        <source>*Http Port</source>
        <translation>*HTTP-port</translation>
    </message>
    <message id="574">
        <source>*User</source>
        <translation>*Bruger</translation>
    </message>
    <message id="575">
        <source>*Password</source>
        <translation>*Adgangskode</translation>
    </message>
    <message id="576">
        <source>Detect</source>
        <translation>Detekter</translation>
    </message>
    <message id="577">
        <source>Device Setting</source>
        <translation>Enhedsindstillinger</translation>
    </message>
    <message id="578">
        <source>NO.</source>
        <translation>Nr.</translation>
    </message>
    <message id="579">
        <source>Camera name</source>
        <translation>Kameranavn</translation>
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
        <translation>Opløsning</translation>
    </message>
    <message id="583">
        <source>PTZ</source>
        <translation>PTZ</translation>
    </message>
    <message id="584">
        <source>Audio</source>
        <translation>Lyd</translation>
    </message>
    <message id="585">
        <source>Edit Camera Setting</source>
        <translation>Rediger kameraindstillinger</translation>
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
        <translation>Flere kameraoplysninger</translation>
    </message>
    <message id="589">
        <source>Min. Bitrate</source>
        <translation>Min. bithastighed</translation>
    </message>
    <message id="590">
        <source>Max. Bitrate</source>
        <translation>Maks. bithastighed</translation>
    </message>
    <message id="591">
        <source>Apply</source>
        <translation>Anvend</translation>
    </message>
    <message id="592">
        <source>Remove</source>
        <translation>Fjern</translation>
    </message>
    <message id="593">
        <source>NVR IP can't be empty.</source>
        <translation>NVR'ens IP må ikke være tom.</translation>
    </message>
    <message id="594">
        <source>NVR Http Port can't be empty.</source>
        <translation>NVR'ens HTTP-port må ikke være tom.</translation>
    </message>
    <message id="595">
        <source>NVR User can't be empty.</source>
        <translation>NVR'ens brugernavn må ikke være tomt.</translation>
    </message>
    <message id="596">
        <source>NVR Password can't be empty.</source>
        <translation>NVR'ens adgangskode må ikke være tom.</translation>
    </message>
    <message id="597">
        <source>Request Time Zone ERR! Please Detect again.</source>
        <translation>Fejl ved hentning af tidszone. Detekter igen.</translation>
    </message>
    <message id="598">
        <source>Please Select Brand.</source>
        <translation>Vælg et mærke.</translation>
    </message>
    <message id="599">
        <source>IP Timeout.</source>
        <translation>IP-timeout.</translation>
    </message>
    <message id="600">
        <source>Quality</source>
        <translation>Kvalitet</translation>
    </message>
    <message id="601">
        <source>Bitrate</source>
        <translation>Bithastighed</translation>
    </message>
    <message id="602">
        <source>Bitrate Mode</source>
        <translation>Bithastighedstilstand</translation>
    </message>
    <message id="603">
        <source>CH name can't be empty!</source>
        <translation>Kanalnavnet må ikke være tomt.</translation>
    </message>
    <message id="604">
        <source>IP address can't be empty!</source>
        <translation>IP-adressen må ikke være tom.</translation>
    </message>
    <message id="605">
        <source>Http Port can't be empty!</source>
        <translation>HTTP-porten må ikke være tom.</translation>
    </message>
    <message id="606">
        <source>User account can't be empty!</source>
        <translation>Brugerkontoen må ikke være tom.</translation>
    </message>
    <message id="607">
        <source>Password can't be empty!</source>
        <translation>Adgangskoden må ikke være tom.</translation>
    </message>
    <message id="608">
        <source>Detection Error!</source>
        <translation>Fejl ved detektering.</translation>
    </message>
    <message id="609">
        <source>No Camera or connect failed !</source>
        <translation>Intet kamera eller fejl i forbindelsen.</translation>
    </message>
    <message id="610">
        <source>This firmware version of NVR is not supported , please update newer Version.</source>
        <translation>Denne firmwareversion af NVR'en understøttes ikke. Opdater til en nyere version.</translation>
    </message>
    <message id="611">
        <source>If you press the button, data inside NVR will be changed!</source>
        <translation>Hvis du trykker på knappen, ændres dataene i NVR'en.</translation>
    </message>
    <message id="612">
        <source>Camera Search</source>
        <translation>Kamerasøgning</translation>
    </message>
    <message id="613">
        <source>Brand not Support!</source>
        <translation>Mærket understøttes ikke.</translation>
    </message>
    <message id="614">
        <source>FPS</source>
        <translation>FPS</translation>
    </message>
    <message id="615">
        <source>Video Format Error!</source>
        <translation>Fejl i videoformat.</translation>
    </message>
    <message id="616">
        <source>Camera settings have changes, please re-detect.</source>
        <translation>Kameraindstillingerne er ændret. Detekter igen.</translation>
    </message>
    <message id="617">
        <source>Add Camera Fail!</source>
        <translation>Kameraet kunne ikke tilføjes.</translation>
    </message>
    <message id="618">
        <source>DIS Setting</source>
        <translation>DIS-indstillinger</translation>
    </message>
    <message id="619">
        <source>Device not supported!</source>
        <translation>Enheden understøttes ikke.</translation>
    </message>
    <message id="620">
        <source>This account is already set!</source>
        <translation>Denne konto er allerede oprettet.</translation>
    </message>
    <message id="621">
        <source>Do you want to continue edit preset point?</source>
        <translation>Vil du fortsætte med at redigere forvalget?</translation>
    </message>
    <message id="630">
        <source>Group Name</source>
        <translation>Gruppenavn</translation>
    </message>
    <message id="631">
        <source>Power Level</source>
        <translation>Rettighedsniveau</translation>
    </message>
    <message id="632">
        <source>Function Permission</source>
        <translation>Funktionsrettigheder</translation>
    </message>
    <message id="633">
        <source>Playback</source>
        <translation>Afspilning</translation>
    </message>
    <message id="634">
        <source>PTZ Control</source>
        <translation>PTZ-styring</translation>
    </message>
    <message id="635">
        <source>System Setup</source>
        <translation>Systemopsætning</translation>
    </message>
    <message id="636">
        <source>Group Setting</source>
        <translation>Gruppeindstillinger</translation>
    </message>
    <message id="640">
        <source>File Size can't more than 10MB</source>
        <translation>Filen må højst fylde 10 MB.</translation>
    </message>
    <message id="641">
        <source>EMap Setting</source>
        <translation>Indstillinger for oversigtskort</translation>
    </message>
    <message id="642">
        <source>*Double Click Windows to change Map images.</source>
        <translation>*Dobbeltklik på vinduet for at skifte kortbillede.</translation>
    </message>
    <message id="643">
        <source>Select an image file</source>
        <translation>Vælg en billedfil</translation>
    </message>
    <message id="645">
        <source>User Setting</source>
        <translation>Brugerindstillinger</translation>
    </message>
    <message id="646">
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message id="647">
        <source>(Dubble Click to Setting)</source>
        <translation>(Dobbeltklik for at indstille)</translation>
    </message>
    <message id="648">
        <source>Check</source>
        <translation>Kontroller</translation>
    </message>
    <message id="649">
        <source>*User Name</source>
        <translation>*Brugernavn</translation>
    </message>
    <message id="650">
        <source>*Password Confirm</source>
        <translation>*Bekræft adgangskode</translation>
    </message>
    <message id="651">
        <source>*:Necessary</source>
        <translation>*: Skal udfyldes</translation>
    </message>
    <message id="652">
        <source>This name not yet use</source>
        <translation>Dette navn er ledigt.</translation>
    </message>
    <message id="653">
        <source>This name in use</source>
        <translation>Dette navn er i brug.</translation>
    </message>
    <message id="660">
        <source>User&amp;Password</source>
        <translation>Bruger og adgangskode</translation>
    </message>
    <message id="661">
        <source>User or Password is not input!</source>
        <translation>Bruger eller adgangskode er ikke indtastet.</translation>
    </message>
    <message id="671">
        <source>DIS Service Setting</source>
        <translation>Indstillinger for DIS-tjeneste</translation>
    </message>
    <message id="672">
        <source>Account List</source>
        <translation>Kontoliste</translation>
    </message>
    <message id="673">
        <source>Do you want to remove this user?</source>
        <translation>Vil du fjerne denne bruger?</translation>
    </message>
    <message id="674">
        <source>The account has reached the upper limit, for add new account you need to remove another account.</source>
        <translation>Det højeste antal konti er nået. Fjern en anden konto for at tilføje en ny.</translation>
    </message>
    <message id="675">
        <source>Object Loss</source>
        <translation>Fjernet objekt</translation>
    </message>
    <message id="676">
        <source>Tripwire</source>
        <translation>Linjekrydsning</translation>
    </message>
    <message id="677">
        <source>Threat</source>
        <translation>Sabotage</translation>
    </message>
    <message id="678">
        <source>Enable</source>
        <translation>Aktiver</translation>
    </message>
    <message id="679">
        <source>Intelligent Setting</source>
        <translation>Analyseindstillinger</translation>
    </message>
    <message id="680">
        <source>Intelligent detection List</source>
        <translation>Liste for videoanalyse</translation>
    </message>
    <message id="681">
        <source>Object Loss Reset</source>
        <translation>Fjernet objekt: ophørt</translation>
    </message>
    <message id="682">
        <source>Threat Detection Reset</source>
        <translation>Sabotagedetektering: ophørt</translation>
    </message>
    <message id="683">
        <source>Image Enhance</source>
        <translation>Billedforbedring</translation>
    </message>
    <message id="684">
        <source>Port number can't accept more then 32767.</source>
        <translation>Portnummeret må ikke være over 32767.</translation>
    </message>
    <message id="685">
        <source>Keep Ratio</source>
        <translation>Bevar billedforhold</translation>
    </message>
    <message id="686">
        <source>Intelligent Detection</source>
        <translation>Videoanalyse</translation>
    </message>
    <message id="687">
        <source>OSD Size</source>
        <translation>OSD-størrelse</translation>
    </message>
    <message id="688">
        <source>OSD Color</source>
        <translation>OSD-farve</translation>
    </message>
    <message id="689">
        <source>Small</source>
        <translation>Lille</translation>
    </message>
    <message id="690">
        <source>Middle</source>
        <translation>Mellem</translation>
    </message>
    <message id="691">
        <source>Large</source>
        <translation>Stor</translation>
    </message>
    <message id="692">
        <source>FullScreen Initial</source>
        <translation>Fuld skærm ved start</translation>
    </message>
    <message id="693">
        <source>Startup Screen Layout</source>
        <translation>Skærmlayout ved opstart</translation>
    </message>
    <message id="694">
        <source>Leave to save the screen layout.</source>
        <translation>Skærmlayoutet gemmes, når du forlader siden.</translation>
    </message>
    <message id="695">
        <source>Function default start</source>
        <translation>Standardstart af funktioner</translation>
    </message>
    <message id="696">
        <source>Function assign</source>
        <translation>Tildeling af funktioner</translation>
    </message>
    <message id="697">
        <source>Pattern setting</source>
        <translation>Visningsindstillinger</translation>
    </message>
    <message id="698">
        <source>Name can't be empty.</source>
        <translation>Navnet må ikke være tomt.</translation>
    </message>
    <message id="699">
        <source>Object Counting</source>
        <translation>Objekttælling</translation>
    </message>
    <message id="700">
        <source>Foreign Object</source>
        <translation>Efterladt objekt</translation>
    </message>
    <message id="701">
        <source>Foreign Object Reset </source>
        <translation>Efterladt objekt: ophørt </translation>
    </message>
    <message id="702">
        <source>Manual Recording</source>
        <translation>Manuel optagelse</translation>
    </message>
    <message id="703">
        <source>Device settings have changes, please re-detect.</source>
        <translation>Enhedsindstillingerne er ændret. Detekter igen.</translation>
    </message>
    <message id="704">
        <source>English and Digit Only</source>
        <translation>Kun bogstaver (A–Z) og tal</translation>
    </message>
    <message id="705">
        <source>Emap Group Assign</source>
        <translation>Tildeling af kortgrupper</translation>
    </message>
    <message id="706">
        <source>Emap Group </source>
        <translation>Kortgruppe </translation>
    </message>
    <message id="707">
        <source>Member:</source>
        <translation>Medlemmer:</translation>
    </message>
    <message id="708">
        <source>Emap Position Assign</source>
        <translation>Tildeling af kortpositioner</translation>
    </message>
    <message id="709">
        <source>Parent</source>
        <translation>Overordnet</translation>
    </message>
    <message id="710">
        <source>Group Type </source>
        <translation>Gruppetype </translation>
    </message>
    <message id="711">
        <source>Auto Switch</source>
        <translation>Autoskift</translation>
    </message>
    <message id="712">
        <source>Double-click back to previous group</source>
        <translation>Dobbeltklik for at gå til forrige gruppe</translation>
    </message>
    <message id="713">
        <source>Drag and Drop to Move</source>
        <translation>Træk og slip for at flytte</translation>
    </message>
    <message id="714">
        <source>Do you want to delete the selected Emap Group?</source>
        <translation>Vil du slette den valgte kortgruppe?</translation>
    </message>
    <message id="715">
        <source>The amount of device will be over default value!</source>
        <translation>Det tilladte antal enheder overskrides.</translation>
    </message>
    <message id="716">
        <source>The amount of total channels will be over default value!</source>
        <translation>Det tilladte samlede antal kanaler overskrides.</translation>
    </message>
    <message id="717">
        <source>Channel selection</source>
        <translation>Kanalvalg</translation>
    </message>
    <message id="718">
        <source>Get device capability error!</source>
        <translation>Fejl ved hentning af enhedens funktioner.</translation>
    </message>
    <message id="719">
        <source>This device does not has any channel.</source>
        <translation>Denne enhed har ingen kanaler.</translation>
    </message>
    <message id="720">
        <source>Please add channels  or  re-select the other device.</source>
        <translation>Tilføj kanaler, eller vælg en anden enhed.</translation>
    </message>
    <message id="721">
        <source>This device does not has any channel,Do you want to remove the device?</source>
        <translation>Denne enhed har ingen kanaler. Vil du fjerne enheden?</translation>
    </message>
    <message id="722">
        <source>Setting fail!</source>
        <translation>Indstillingen mislykkedes.</translation>
    </message>
    <message id="723">
        <source>Do you want to stop SEQ mode?</source>
        <translation>Vil du stoppe SEQ-tilstanden?</translation>
    </message>
    <message id="725">
        <source>Type </source>
        <translation>Type </translation>
    </message>
    <message id="726">
        <source>No change!</source>
        <translation>Ingen ændring.</translation>
    </message>
    <message id="727">
        <source>Face Counting</source>
        <translation>Ansigtstælling</translation>
    </message>
    <message id="728">
        <source>Unknown</source>
        <translation>Ukendt</translation>
    </message>
    <message id="729">
        <source>Event Export</source>
        <translation>Eksport af hændelser</translation>
    </message>
    <message id="730">
        <source>System Log Export</source>
        <translation>Eksport af systemlog</translation>
    </message>
    <message id="731">
        <source>System Log</source>
        <translation>Systemlog</translation>
    </message>
    <message id="732">
        <source>NVR Select</source>
        <translation>Valg af NVR</translation>
    </message>
    <message id="733">
        <source>Condition</source>
        <translation>Betingelse</translation>
    </message>
    <message id="734">
        <source>Time Range:</source>
        <translation>Tidsrum:</translation>
    </message>
    <message id="735">
        <source>Start Time:</source>
        <translation>Starttid:</translation>
    </message>
    <message id="736">
        <source>End Time:</source>
        <translation>Sluttid:</translation>
    </message>
    <message id="737">
        <source>Event Type:</source>
        <translation>Hændelsestype:</translation>
    </message>
    <message id="738">
        <source>User:</source>
        <translation>Bruger:</translation>
    </message>
    <message id="739">
        <source>Export Format:</source>
        <translation>Eksportformat:</translation>
    </message>
    <message id="740">
        <source>Export</source>
        <translation>Eksport</translation>
    </message>
    <message id="741">
        <source>You must select a path to export!</source>
        <translation>Vælg en sti til eksporten.</translation>
    </message>
    <message id="742">
        <source>Start Time must less than End time!</source>
        <translation>Starttid skal ligge før sluttid.</translation>
    </message>
    <message id="743">
        <source>No Event!</source>
        <translation>Ingen hændelser.</translation>
    </message>
    <message id="744">
        <source>No System Log!</source>
        <translation>Ingen poster i systemloggen.</translation>
    </message>
    <message id="745">
        <source>CSV Export finish!</source>
        <translation>CSV-eksport fuldført.</translation>
    </message>
    <message id="746">
        <source>MDB Export finish!</source>
        <translation>MDB-eksport fuldført.</translation>
    </message>
    <message id="747">
        <source>Custom</source>
        <translation>Tilpasset</translation>
    </message>
    <message id="748">
        <source>NVR Overview</source>
        <translation>NVR-oversigt</translation>
    </message>
    <message id="749">
        <source>Video Wall Console</source>
        <translation>Videovægkonsol</translation>
    </message>
    <message id="750">
        <source>Lock Screen </source>
        <translation>Lås skærm </translation>
    </message>
    <message id="751">
        <source>Unlock Screen</source>
        <translation>Lås skærm op</translation>
    </message>
    <message id="752">
        <source>Video Wall</source>
        <translation>Videovæg</translation>
    </message>
    <message id="753">
        <source>Pattern List</source>
        <translation>Visningsliste</translation>
    </message>
    <message id="754">
        <source>SEQ List</source>
        <translation>SEQ-liste</translation>
    </message>
    <message id="755">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="756">
        <source>SEQ content setting</source>
        <translation>Indstilling af SEQ-indhold</translation>
    </message>
    <message id="757">
        <source>Max Channel</source>
        <translation>Maks. kanaler</translation>
    </message>
    <message id="758">
        <source>Video server</source>
        <translation>Videoserver</translation>
    </message>
    <message id="759">
        <source>Support</source>
        <translation>Understøttet</translation>
    </message>
    <message id="760">
        <source>Original View</source>
        <translation>Originalvisning</translation>
    </message>
    <message id="761">
        <source>Broad View</source>
        <translation>Panoramavisning</translation>
    </message>
    <message id="762">
        <source>Quad View</source>
        <translation>Firedelt visning</translation>
    </message>
    <message id="763">
        <source>Quad and Source View</source>
        <translation>Firedelt og original visning</translation>
    </message>
    <message id="764">
        <source>Double View</source>
        <translation>Todelt visning</translation>
    </message>
    <message id="765">
        <source>Triple View</source>
        <translation>Tredelt visning</translation>
    </message>
    <message id="766">
        <source>Digital PTZ</source>
        <translation>Digital PTZ</translation>
    </message>
    <message id="767">
        <source>Lens</source>
        <translation>Objektiv</translation>
    </message>
    <message id="768">
        <source>It could not be opened, the insufficient number of available screens!</source>
        <translation>Kan ikke åbnes: Der er ikke nok ledige skærme.</translation>
    </message>
    <message id="769">
        <source>It could not be opened, The Video Wall is not enabled! </source>
        <translation>Kan ikke åbnes: Videovæggen er ikke aktiveret. </translation>
    </message>
    <message id="770">
        <source>The quantity of screen is not enough! Not support!</source>
        <translation>Der er ikke nok skærme. Understøttes ikke.</translation>
    </message>
    <message id="772">
        <source>Settings have changed , Please re-open MainViewer!</source>
        <translation>Indstillingerne er ændret. Åbn hovedfremviseren igen.</translation>
    </message>
    <message id="773">
        <source>Preview</source>
        <translation>Forhåndsvisning</translation>
    </message>
    <message id="774">
        <source>Update system log with below defined condition</source>
        <translation>Opdater systemloggen efter nedenstående betingelser</translation>
    </message>
    <message id="775">
        <source>Transform recording index</source>
        <translation>Konverter optagelsesindeks</translation>
    </message>
    <message id="776">
        <source>Event Image Sync Setting</source>
        <translation>Synkronisering af hændelsesbilleder</translation>
    </message>
    <message id="777">
        <source>Event snapshot storage space is not enough!</source>
        <translation>Der er ikke nok lagerplads til hændelsesbilleder.</translation>
    </message>
    <message id="779">
        <source>Intelligent Mode</source>
        <translation>Analysetilstand</translation>
    </message>
    <message id="780">
        <source>Add Intelligent Setting</source>
        <translation>Tilføj analyseindstilling</translation>
    </message>
    <message id="781">
        <source>Camera Event</source>
        <translation>Kamerahændelse</translation>
    </message>
    <message id="782">
        <source>ROI Setting</source>
        <translation>ROI-indstillinger</translation>
    </message>
    <message id="783">
        <source>Trigger Mode</source>
        <translation>Udløsertilstand</translation>
    </message>
    <message id="784">
        <source>Channel Privilege</source>
        <translation>Kanalrettighed</translation>
    </message>
    <message id="785">
        <source>Group Overview</source>
        <translation>Gruppeoversigt</translation>
    </message>
    <message id="786">
        <source>User Overview</source>
        <translation>Brugeroversigt</translation>
    </message>
    <message id="787">
        <source>Event Server</source>
        <translation>Hændelsesserver</translation>
    </message>
    <message id="788">
        <source>Trigger By</source>
        <translation>Udløst af</translation>
    </message>
    <message id="789">
        <source>Configuration Modify</source>
        <translation>Konfigurationsændring</translation>
    </message>
    <message id="790">
        <source>Intelligent Event Trigger</source>
        <translation>Udløst af videoanalyse</translation>
    </message>
    <message id="791">
        <source>NVR Event Trigger</source>
        <translation>Udløst af NVR-hændelse</translation>
    </message>
    <message id="792">
        <source>Trigger Action</source>
        <translation>Udløserhandling</translation>
    </message>
    <message id="793">
        <source>Addresses: (Use ',' to separate e-mails)</source>
        <translation>Adresser: (adskil mailadresser med komma)</translation>
    </message>
    <message id="794">
        <source>Content</source>
        <translation>Indhold</translation>
    </message>
    <message id="795">
        <source>Video Wall Layout</source>
        <translation>Videovæglayout</translation>
    </message>
    <message id="796">
        <source>No Enough screen can be set!</source>
        <translation>Der er ikke nok skærme at indstille.</translation>
    </message>
    <message id="797">
        <source>SVD Management</source>
        <translation>SVD-administration</translation>
    </message>
    <message id="798">
        <source>SVD Detail Setting</source>
        <translation>SVD-detaljer</translation>
    </message>
    <message id="799">
        <source>SVD Layout</source>
        <translation>SVD-layout</translation>
    </message>
    <message id="800">
        <source>SVD ID:</source>
        <translation>SVD-id:</translation>
    </message>
    <message id="801">
        <source>SVD Name:</source>
        <translation>SVD-navn:</translation>
    </message>
    <message id="802">
        <source>Display</source>
        <translation>Skærm</translation>
    </message>
    <message id="803">
        <source>Resolution</source>
        <translation>Opløsning</translation>
    </message>
    <message id="804">
        <source>Priority</source>
        <translation>Prioritet</translation>
    </message>
    <message id="805">
        <source>Default Split</source>
        <translation>Standardopdeling</translation>
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
        <translation>Dynamisk streaming</translation>
    </message>
    <message id="809">
        <source>Screen Default Layout</source>
        <translation>Standardskærmlayout</translation>
    </message>
    <message id="810">
        <source>Channel list</source>
        <translation>Kanalliste</translation>
    </message>
    <message id="811">
        <source>Begin</source>
        <translation>Begyndelse</translation>
    </message>
    <message id="812">
        <source>Previous</source>
        <translation>Forrige</translation>
    </message>
    <message id="813">
        <source>System Log Viewer</source>
        <translation>Systemlogfremviser</translation>
    </message>
    <message id="814">
        <source>Management </source>
        <translation>Administration </translation>
    </message>
    <message id="815">
        <source>Viewer</source>
        <translation>Fremviser</translation>
    </message>
    <message id="816">
        <source>Add New SVD</source>
        <translation>Tilføj ny SVD</translation>
    </message>
    <message id="817">
        <source>Primary</source>
        <translation>Primær</translation>
    </message>
    <message id="818">
        <source>Secondary</source>
        <translation>Sekundær</translation>
    </message>
    <message id="819">
        <source>Available</source>
        <translation>Tilgængelig</translation>
    </message>
    <message id="820">
        <source>Not Available</source>
        <translation>Ikke tilgængelig</translation>
    </message>
    <message id="821">
        <source>Invalid E-mail Address!</source>
        <translation>Ugyldig mailadresse.</translation>
    </message>
    <message id="822">
        <source>Invalid Value!</source>
        <translation>Ugyldig værdi.</translation>
    </message>
    <message id="823">
        <source>Can't add repeatedly!</source>
        <translation>Kan ikke tilføjes flere gange.</translation>
    </message>
    <message id="824">
        <source>Can't add SVD anymore!</source>
        <translation>Der kan ikke tilføjes flere SVD'er.</translation>
    </message>
    <message id="826">
        <source>Do you want to remove this SVD?</source>
        <translation>Vil du fjerne denne SVD?</translation>
    </message>
    <message id="827">
        <source>Disable this Video Wall?</source>
        <translation>Vil du deaktivere denne videovæg?</translation>
    </message>
    <message id="828">
        <source>Export finish!</source>
        <translation>Eksport fuldført.</translation>
    </message>
    <message id="829">
        <source>Brand:</source>
        <translation>Mærke:</translation>
    </message>
    <message id="830">
        <source>Password Mask</source>
        <translation>Skjul adgangskode</translation>
    </message>
    <message id="831">
        <source>NVR Account setting</source>
        <translation>NVR-konti</translation>
    </message>
    <message id="832">
        <source>No any NVR has been selected.</source>
        <translation>Der er ikke valgt nogen NVR.</translation>
    </message>
    <message id="833">
        <source>Detect successful!</source>
        <translation>Detektering fuldført.</translation>
    </message>
    <message id="834">
        <source>Failed configuring camera detection on channel:</source>
        <translation>Kameraets detektering kunne ikke konfigureres på kanal:</translation>
    </message>
    <message id="835">
        <source>Trigger action has done.</source>
        <translation>Udløserhandlingen er udført.</translation>
    </message>
    <message id="836">
        <source>Event server has not set.</source>
        <translation>Hændelsesserveren er ikke indstillet.</translation>
    </message>
    <message id="837">
        <source>Privilege Setting</source>
        <translation>Rettigheder</translation>
    </message>
    <message id="838">
        <source>NVR Privilege Setting</source>
        <translation>NVR-rettigheder</translation>
    </message>
    <message id="839">
        <source>SVD Console</source>
        <translation>SVD-konsol</translation>
    </message>
    <message id="840">
        <source>SVD Search List</source>
        <translation>Fundne SVD'er</translation>
    </message>
    <message id="841">
        <source>No Monitor connect!</source>
        <translation>Ingen monitor tilsluttet.</translation>
    </message>
    <message id="842">
        <source>Do you want to remove this intelligent setting?</source>
        <translation>Vil du fjerne denne analyseindstilling?</translation>
    </message>
    <message id="843">
        <source>Event snapshot doesn't work!</source>
        <translation>Øjebliksbilleder ved hændelser virker ikke.</translation>
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
        <translation>Brugere og grupper</translation>
    </message>
    <message id="853">
        <source>Event handling</source>
        <translation>Hændelser</translation>
    </message>
    <message id="854">
        <source>Event server</source>
        <translation>Hændelsesserver</translation>
    </message>
    <message id="855">
        <source>E-Map</source>
        <translation>Oversigtskort</translation>
    </message>
    <message id="856">
        <source>Screen layout</source>
        <translation>Skærmlayout</translation>
    </message>
    <message id="857">
        <source>Startup</source>
        <translation>Opstart</translation>
    </message>
    <message id="858">
        <source>Tooling</source>
        <translation>Værktøjer</translation>
    </message>
    <message id="859">
        <source>This page is not available in this version.</source>
        <translation>Denne side er ikke tilgængelig i denne version.</translation>
    </message>
    <message id="860">
        <source>Its data in the database stays as it is.</source>
        <translation>De tilhørende data i databasen forbliver uændrede.</translation>
    </message>
    <message id="861">
        <source>No recorder yet</source>
        <translation>Ingen optager endnu</translation>
    </message>
    <message id="862">
        <source>Enter the address of the station's first recorder to add it.</source>
        <translation>Indtast adressen på stationens første optager for at tilføje den.</translation>
    </message>
    <message id="863">
        <source>Filter name, address, model…</source>
        <translation>Filtrer på navn, adresse, model …</translation>
    </message>
    <message id="864">
        <source>Recorders of this station</source>
        <translation>Stationens optagere</translation>
    </message>
    <message id="865">
        <source>Recorders: %1 of %2</source>
        <translation>Optagere: %1 af %2</translation>
    </message>
    <message id="866">
        <source>Channels: %1 of %2</source>
        <translation>Kanaler: %1 af %2</translation>
    </message>
    <message id="867">
        <source>No recorder matches the filter.</source>
        <translation>Ingen optager passer til filteret.</translation>
    </message>
    <message id="868">
        <source>Unsaved changes</source>
        <translation>Ikke-gemte ændringer</translation>
    </message>
    <message id="870">
        <source>Switch to dark colours</source>
        <translation>Skift til mørkt tema</translation>
    </message>
    <message id="871">
        <source>Switch to light colours</source>
        <translation>Skift til lyst tema</translation>
    </message>
    <message id="872">
        <source>Waiting</source>
        <translation>Venter</translation>
    </message>
    <message id="873">
        <source>Finish</source>
        <translation>Udfør</translation>
    </message>
    <message id="874">
        <source>Done: %1 of %2</source>
        <translation>Udført: %1 af %2</translation>
    </message>
    <message id="875">
        <source>Choose</source>
        <translation>Vælg</translation>
    </message>
    <message id="876">
        <source>Edit</source>
        <translation>Rediger</translation>
    </message>
    <message id="877">
        <source>Delete</source>
        <translation>Slet</translation>
    </message>
    <message id="878">
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message id="879">
        <source>No</source>
        <translation>Nej</translation>
    </message>
    <message id="880">
        <source>Back</source>
        <translation>Tilbage</translation>
    </message>
    <message id="881">
        <source>Close</source>
        <translation>Luk</translation>
    </message>
    <message id="882">
        <source>Pages</source>
        <translation>Sider</translation>
    </message>
    <message id="884">
        <source>Enter the address of one recorder.</source>
        <translation>Indtast adressen på én optager.</translation>
    </message>
    <message id="885">
        <source>Leave both empty to try the known device accounts.</source>
        <translation>Lad begge stå tomme for at prøve de kendte enhedskonti.</translation>
    </message>
    <message id="886">
        <source>About this installation</source>
        <translation>Om denne installation</translation>
    </message>
    <message id="887">
        <source>Show password</source>
        <translation>Vis adgangskode</translation>
    </message>
    <message id="888">
        <source>Searching…</source>
        <translation>Søger …</translation>
    </message>
    <message id="890">
        <source>Name and behaviour of this station</source>
        <translation>Stationens navn og virkemåde</translation>
    </message>
    <message id="892">
        <source>Recorder slot</source>
        <translation>Optagerplads</translation>
    </message>
    <message id="896">
        <source>Connected</source>
        <translation>Forbundet</translation>
    </message>
    <message id="898">
        <source>Product:</source>
        <translation>Produkt:</translation>
    </message>
    <message id="899">
        <source>Hide password</source>
        <translation>Skjul adgangskode</translation>
    </message>
    <message id="900">
        <source>Anyone who opens Rigging Desk is its administrator, because there is no user yet.</source>
        <translation>Enhver, der åbner Rigging Desk, er administrator, fordi der endnu ikke er oprettet nogen bruger.</translation>
    </message>
    <message id="901">
        <source>Create the first administrator</source>
        <translation>Opret den første administrator</translation>
    </message>
    <message id="902">
        <source>Not now</source>
        <translation>Ikke nu</translation>
    </message>
    <message id="903">
        <source>No user yet</source>
        <translation>Ingen bruger endnu</translation>
    </message>
    <message id="904">
        <source>Accessible cameras</source>
        <translation>Tilgængelige kameraer</translation>
    </message>
    <message id="905">
        <source>Who has access</source>
        <translation>Hvem har adgang</translation>
    </message>
    <message id="906">
        <source>Filter channels…</source>
        <translation>Filtrer kanaler …</translation>
    </message>
    <message id="907">
        <source>Whole recorder</source>
        <translation>Hele optageren</translation>
    </message>
    <message id="908">
        <source>Live</source>
        <translation>Live</translation>
    </message>
    <message id="909">
        <source>Live Monitor of all channels</source>
        <translation>Livevisning af alle kanaler</translation>
    </message>
    <message id="910">
        <source>Grant</source>
        <translation>Tildel</translation>
    </message>
    <message id="911">
        <source>Withdraw</source>
        <translation>Fratag</translation>
    </message>
    <message id="912">
        <source>The other rights need Live. Space switches the selected cells; Shift+Space selects a row, Ctrl+Space a column.</source>
        <translation>De andre rettigheder kræver »Live«. Mellemrum skifter de markerede celler; Skift+Mellemrum markerer en række, Ctrl+Mellemrum en kolonne.</translation>
    </message>
    <message id="913">
        <source>Administrators have every right on every channel.</source>
        <translation>Administratorer har alle rettigheder på alle kanaler.</translation>
    </message>
    <message id="930">
        <source>Filter the rows found…</source>
        <translation>Filtrer de fundne rækker …</translation>
    </message>
    <message id="931">
        <source>No row matches the filter.</source>
        <translation>Ingen række passer til filteret.</translation>
    </message>
    <message id="932">
        <source>Rows found: %1</source>
        <translation>Fundne rækker: %1</translation>
    </message>
    <message id="933">
        <source>The log could not be read</source>
        <translation>Loggen kunne ikke læses</translation>
    </message>
    <message id="934">
        <source>Copy rows</source>
        <translation>Kopier rækker</translation>
    </message>
    <message id="935">
        <source>Open folder</source>
        <translation>Åbn mappe</translation>
    </message>
    <message id="936">
        <source>Event export is not part of this version.</source>
        <translation>Eksport af hændelser er ikke en del af denne version.</translation>
    </message>
    <message id="937">
        <source>Choose a period and search.</source>
        <translation>Vælg en periode, og søg.</translation>
    </message>
    <message id="938">
        <source>The export failed. Existing files were not changed.</source>
        <translation>Eksporten mislykkedes. Eksisterende filer er ikke ændret.</translation>
    </message>
    <message id="939">
        <source>First page</source>
        <translation>Første side</translation>
    </message>
    <message id="940">
        <source>Previous page</source>
        <translation>Forrige side</translation>
    </message>
    <message id="941">
        <source>Next page</source>
        <translation>Næste side</translation>
    </message>
    <message id="942">
        <source>Last page</source>
        <translation>Sidste side</translation>
    </message>
    <message id="943">
        <source>Refresh</source>
        <translation>Opdater</translation>
    </message>
    <message id="945">
        <source>Log in</source>
        <translation>Login</translation>
    </message>
    <message id="946">
        <source>The reason is in the log files.</source>
        <translation>Årsagen står i logfilerne.</translation>
    </message>
    <message id="950">
        <source>Find recorders on the network.</source>
        <translation>Find optagere på netværket.</translation>
    </message>
    <message id="951">
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message id="952">
        <source>Select all</source>
        <translation>Vælg alle</translation>
    </message>
    <message id="953">
        <source>Filter the devices found</source>
        <translation>Filtrer fundne enheder</translation>
    </message>
    <message id="954">
        <source>No device has answered.</source>
        <translation>Ingen enhed har svaret.</translation>
    </message>
    <message id="955">
        <source>Recorders with those selected: %1 of %2</source>
        <translation>Optagere inkl. de valgte: %1 af %2</translation>
    </message>
    <message id="956">
        <source>Connection</source>
        <translation>Forbindelse</translation>
    </message>
    <message id="957">
        <source>Checking…</source>
        <translation>Kontrolleres …</translation>
    </message>
    <message id="958">
        <source>Login refused</source>
        <translation>Login afvist</translation>
    </message>
    <message id="959">
        <source>No answer</source>
        <translation>Intet svar</translation>
    </message>
    <message id="960">
        <source>Host name not found</source>
        <translation>Værtsnavn ikke fundet</translation>
    </message>
    <message id="961">
        <source>Connection refused</source>
        <translation>Forbindelse afvist</translation>
    </message>
    <message id="962">
        <source>Unexpected answer</source>
        <translation>Uventet svar</translation>
    </message>
    <message id="963">
        <source>Stopped</source>
        <translation>Stoppet</translation>
    </message>
    <message id="965">
        <source>Notice</source>
        <translation>Meddelelse</translation>
    </message>
    <message id="966">
        <source>No camera</source>
        <translation>Intet kamera</translation>
    </message>
    <message id="967">
        <source>Changed in the recorder</source>
        <translation>Ændret i optageren</translation>
    </message>
    <message id="968">
        <source>Detected</source>
        <translation>Detekteret</translation>
    </message>
    <message id="969">
        <source>Unchanged</source>
        <translation>Uændret</translation>
    </message>
    <message id="970">
        <source>Remove the camera of channel %1 from the recorder?</source>
        <translation>Vil du fjerne kameraet på kanal %1 fra optageren?</translation>
    </message>
    <message id="971">
        <source>Filter the cameras found</source>
        <translation>Filtrer fundne kameraer</translation>
    </message>
    <message id="972">
        <source>No camera was found.</source>
        <translation>Intet kamera blev fundet.</translation>
    </message>
    <message id="973">
        <source>The recorder sees no camera on its network. Search again, or enter an address.</source>
        <translation>Optageren kan ikke se noget kamera på sit netværk. Søg igen, eller indtast en adresse.</translation>
    </message>
    <message id="974">
        <source>Cameras found: %1</source>
        <translation>Fundne kameraer: %1</translation>
    </message>
    <message id="975">
        <source>Asking the camera…</source>
        <translation>Forespørger kameraet …</translation>
    </message>
    <message id="976">
        <source>Writing to the recorder…</source>
        <translation>Skriver til optageren …</translation>
    </message>
    <message id="977">
        <source>Video source</source>
        <translation>Videokilde</translation>
    </message>
    <message id="978">
        <source>Detect the camera to see its video settings.</source>
        <translation>Detekter kameraet for at se dets videoindstillinger.</translation>
    </message>
    <message id="979">
        <source>Fish-eye view</source>
        <translation>Fiskeøjevisning</translation>
    </message>
    <message id="980">
        <source>The camera name must not contain a double quote (").</source>
        <translation>Kameranavnet må ikke indeholde anførselstegn (").</translation>
    </message>
    <message id="981">
        <source>The configuration database cannot be opened: another program holds it, or it cannot be read. Nothing has been changed. Try again?</source>
        <translation>Konfigurationsdatabasen kan ikke åbnes: Et andet program bruger den, eller den kan ikke læses. Intet er ændret. Vil du prøve igen?</translation>
    </message>
    <message id="982">
        <source>The users could not be read from the database, so nobody can log in. Close the program that holds the database and start again. The reason is in the log files.</source>
        <translation>Brugerne kunne ikke læses fra databasen, så ingen kan logge ind. Luk det program, der bruger databasen, og start igen. Årsagen står i logfilerne.</translation>
    </message>
    <message id="983">
        <source>These tables of the database could not be read: %1. They stay as they are. The reason is in the log files.</source>
        <translation>Disse tabeller i databasen kunne ikke læses: %1. De forbliver uændrede. Årsagen står i logfilerne.</translation>
    </message>
    <message id="995">
        <source>Export</source>
        <translation>Eksporter</translation>
    </message>
    <message id="1000">
        <source>Keys</source>
        <translation>Taster</translation>
    </message>
    <message id="1001">
        <source>Show the keys</source>
        <translation>Vis tasterne</translation>
    </message>
    <message id="1002">
        <source>Rename or edit the selected entry</source>
        <translation>Omdøb eller rediger den valgte post</translation>
    </message>
    <message id="1003">
        <source>Read the page again</source>
        <translation>Læs siden igen</translation>
    </message>
    <message id="1004">
        <source>Filter the list</source>
        <translation>Filtrer listen</translation>
    </message>
    <message id="1005">
        <source>Go to a page</source>
        <translation>Gå til en side</translation>
    </message>
    <message id="1006">
        <source>Press the button or open the selected entry</source>
        <translation>Tryk på knappen eller åbn den valgte post</translation>
    </message>
    <message id="1007">
        <source>Remove the selected entry</source>
        <translation>Fjern den valgte post</translation>
    </message>
    <message id="1008">
        <source>Cancel or close</source>
        <translation>Annuller eller luk</translation>
    </message>
    <message id="1030">
        <source>Added: %1 of %2</source>
        <translation>Tilføjet: %1 af %2</translation>
    </message>
    <message id="1031">
        <source>Added: %1 of %2, failed: %3</source>
        <translation>Tilføjet: %1 af %2, mislykket: %3</translation>
    </message>
    <message id="1032">
        <source>Recorders that were not added can be tried again with another login.</source>
        <translation>Optagere, der ikke blev tilføjet, kan prøves igen med et andet login.</translation>
    </message>
    <message id="1033">
        <source>Try again</source>
        <translation>Prøv igen</translation>
    </message>
    <message id="1034">
        <source>Login</source>
        <translation>Login</translation>
    </message>
    <message id="1035">
        <source>Added but not saved yet: %1.
Do you want to save?</source>
        <translation>Tilføjet, men endnu ikke gemt: %1.
Vil du gemme?</translation>
    </message>
    <message id="1036">
        <source>No recorder has been added yet. Close and lose what you entered?</source>
        <translation>Der er endnu ikke tilføjet nogen optager. Vil du lukke og miste det indtastede?</translation>
    </message>
    <message id="1037">
        <source>More than one recorder would have this name: %1.
Do you want to use it anyway?</source>
        <translation>Flere optagere får dette navn: %1.
Vil du bruge det alligevel?</translation>
    </message>
    <message id="1080">
        <source>A stored password is not shown. Typing replaces it.</source>
        <translation>En gemt adgangskode vises ikke. Indtastning erstatter den.</translation>
    </message>
    <message id="1081">
        <source>Choose a group</source>
        <translation>Vælg en gruppe</translation>
    </message>
    <message id="1082">
        <source>No account yet</source>
        <translation>Ingen konto endnu</translation>
    </message>
    <message id="1083">
        <source>These accounts are tried on recorders whose login is not known.</source>
        <translation>Disse konti prøves på optagere, hvis login ikke kendes.</translation>
    </message>
    <message id="1084">
        <source>Do you want to delete the selected account?</source>
        <translation>Vil du slette den valgte konto?</translation>
    </message>
    <message id="1085">
        <source>No camera is accessible</source>
        <translation>Intet kamera er tilgængeligt</translation>
    </message>
    <message id="1086">
        <source>Access follows from the rights of the user’s group.</source>
        <translation>Adgangen følger af rettighederne for brugerens gruppe.</translation>
    </message>
    <message id="1087">
        <source>Open the folder?</source>
        <translation>Vil du åbne mappen?</translation>
    </message>
    <message id="1088">
        <source>Filter users…</source>
        <translation>Filtrer brugere …</translation>
    </message>
    <message id="1089">
        <source>No user matches the filter.</source>
        <translation>Ingen bruger svarer til filteret.</translation>
    </message>
    <message id="1110">
        <source>Rename</source>
        <translation>Omdøb</translation>
    </message>
    <message id="1221">
        <source>Waiting for the picture…</source>
        <translation>Venter på billedet…</translation>
    </message>
    <message id="1222">
        <source>No picture</source>
        <translation>Intet billede</translation>
    </message>
    <message id="1223">
        <source>Trying again…</source>
        <translation>Prøver igen…</translation>
    </message>
    <message id="1260">
        <source>Filter maps and cameras…</source>
        <translation>Filtrer kort og kameraer …</translation>
    </message>
    <message id="1261">
        <source>Cut</source>
        <translation>Klip</translation>
    </message>
    <message id="1262">
        <source>Paste</source>
        <translation>Indsæt</translation>
    </message>
    <message id="1263">
        <source>Move to…</source>
        <translation>Flyt til …</translation>
    </message>
    <message id="1264">
        <source>A recorder's map goes under the main map or into a group.</source>
        <translation>En optagers kort hører til under hovedkortet eller i en gruppe.</translation>
    </message>
    <message id="1265">
        <source>A camera goes on the map of its own recorder or one of its sub-maps; on the main map it is taken off all maps.</source>
        <translation>Et kamera hører til på sin egen optagers kort eller et af dennes underkort; på hovedkortet er det ikke på noget.</translation>
    </message>
    <message id="1266">
        <source>It is there already.</source>
        <translation>Det er der allerede.</translation>
    </message>
    <message id="1267">
        <source>Only recorders' maps and cameras can be moved.</source>
        <translation>Kun optageres kort og kameraer kan flyttes.</translation>
    </message>
    <message id="1268">
        <source>Move</source>
        <translation>Flyt</translation>
    </message>
    <message id="1269">
        <source>Show the map's picture</source>
        <translation>Vis kortets billede</translation>
    </message>
    <message id="1270">
        <source>No map or camera matches the filter.</source>
        <translation>Intet kort og intet kamera passer til filteret.</translation>
    </message>
    <message id="1271">
        <source>Enter a name to add a group.</source>
        <translation>Angiv et navn for at tilføje en gruppe.</translation>
    </message>
    <message id="1272">
        <source>Enter a name to add a sub-map. The map has the name of its recorder.</source>
        <translation>Angiv et navn for at tilføje et underkort. Kortet hedder som optageren.</translation>
    </message>
    <message id="1273">
        <source>Drag recorders' maps into the group.</source>
        <translation>Træk optageres kort ind i gruppen.</translation>
    </message>
    <message id="1274">
        <source>Drag the camera to the map of its recorder.</source>
        <translation>Træk kameraet til sin optagers kort.</translation>
    </message>
    <message id="1275">
        <source>Drag cameras of its recorder to the sub-map.</source>
        <translation>Træk optagerens kameraer til underkortet.</translation>
    </message>
</context>
</TS>
