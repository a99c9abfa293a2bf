<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name></name>
    <message id="0">
        <source>English</source>
        <translation>Inglese</translation>
    </message>
    <message id="1">
        <source>Traditional Chinese</source>
        <translation>Cinese tradizionale</translation>
    </message>
    <message id="2">
        <source>Simplified Chinese</source>
        <translation>Cinese semplificato</translation>
    </message>
    <message id="3">
        <source>Japanese</source>
        <translation>Giapponese</translation>
    </message>
    <message id="4">
        <source>Spainish</source>
        <translation>Spagnolo</translation>
    </message>
    <message id="5">
        <source>CGI ID is full !</source>
        <translation>Identificatori CGI esauriti.</translation>
    </message>
    <message id="6">
        <source>User Name or Password Error !</source>
        <translation>Nome utente o password errati.</translation>
    </message>
    <message id="7">
        <source>Device Connection Error !</source>
        <translation>Errore di connessione al dispositivo.</translation>
    </message>
    <message id="8">
        <source>Device brand not supported !</source>
        <translation>Marca del dispositivo non supportata.</translation>
    </message>
    <message id="9">
        <source>Sending CGI failed !</source>
        <translation>Errore nell’invio del comando CGI.</translation>
    </message>
    <message id="10">
        <source>Program has been opened !</source>
        <translation>Il programma è già aperto.</translation>
    </message>
    <message id="11">
        <source>Application of Setup has been Opening . Please turn it off !</source>
        <translation>Il programma di configurazione è aperto. Chiuderlo.</translation>
    </message>
    <message id="12">
        <source>Database initialization ...</source>
        <translation>Inizializzazione del database…</translation>
    </message>
    <message id="13">
        <source>Default Data to read ...</source>
        <translation>Lettura dei dati predefiniti…</translation>
    </message>
    <message id="14">
        <source>Incorrect database version ! Do you want to reset the databse now ?</source>
        <translation>Versione del database errata. Reimpostare il database adesso?</translation>
    </message>
    <message id="15">
        <source>System will not be able to continue to work .</source>
        <translation>Il sistema non può continuare a funzionare.</translation>
    </message>
    <message id="16">
        <source>Update Database ...</source>
        <translation>Aggiornamento del database…</translation>
    </message>
    <message id="17">
        <source>Data is loading ...</source>
        <translation>Caricamento dei dati…</translation>
    </message>
    <message id="18">
        <source>Motion Detection setting is loading...</source>
        <translation>Caricamento impostazioni rilevamento movimento…</translation>
    </message>
    <message id="19">
        <source>User Data is loading...</source>
        <translation>Caricamento dei dati utente…</translation>
    </message>
    <message id="20">
        <source>Group Data  is loading...</source>
        <translation>Caricamento dei dati dei gruppi…</translation>
    </message>
    <message id="21">
        <source>Event setting is loading...</source>
        <translation>Caricamento impostazioni eventi…</translation>
    </message>
    <message id="22">
        <source>E-Map Data is loading ...</source>
        <translation>Caricamento dei dati delle mappe…</translation>
    </message>
    <message id="23">
        <source>Multi-Screen set up is loading ...</source>
        <translation>Caricamento configurazione multischermo…</translation>
    </message>
    <message id="24">
        <source>System component registering  ...</source>
        <translation>Registrazione dei componenti di sistema…</translation>
    </message>
    <message id="25">
        <source>Login Identification ...</source>
        <translation>Verifica dell’accesso…</translation>
    </message>
    <message id="26">
        <source>Open Login Frame ...</source>
        <translation>Apertura della finestra di accesso…</translation>
    </message>
    <message id="27">
        <source>Loading User's Pattern …</source>
        <translation>Caricamento delle viste utente…</translation>
    </message>
    <message id="28">
        <source>Start Service Mode...</source>
        <translation>Avvio della modalità servizio…</translation>
    </message>
    <message id="29">
        <source>Start Monitor Window ...</source>
        <translation>Apertura della finestra monitor…</translation>
    </message>
    <message id="30">
        <source>Start Auto Search …</source>
        <translation>Avvio della ricerca automatica…</translation>
    </message>
    <message id="32">
        <source>Manual Startup</source>
        <translation>Avvio manuale</translation>
    </message>
    <message id="33">
        <source>Device detect timeout !</source>
        <translation>Tempo di rilevamento del dispositivo scaduto.</translation>
    </message>
    <message id="34">
        <source>The channel of SVR has been removed. Please re-detect the SVR!</source>
        <translation>Il canale dell’SVR è stato rimosso. Rilevare di nuovo l’SVR.</translation>
    </message>
    <message id="35">
        <source>Please enable SVR upnp port forwarding!</source>
        <translation>Attivare l’inoltro porte UPnP dell’SVR.</translation>
    </message>
    <message id="36">
        <source>Video Wall Setting</source>
        <translation>Impostazioni videowall</translation>
    </message>
    <message id="37">
        <source>Video Wall display position setting</source>
        <translation>Impostazioni posizione nel videowall</translation>
    </message>
    <message id="38">
        <source>Monitor</source>
        <translation>Monitor</translation>
    </message>
    <message id="39">
        <source>Startup assign setting</source>
        <translation>Assegnazione all’avvio</translation>
    </message>
    <message id="40">
        <source>User</source>
        <translation>Utente</translation>
    </message>
    <message id="41">
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message id="42">
        <source>User Field is Blank !</source>
        <translation>Il campo utente è vuoto.</translation>
    </message>
    <message id="43">
        <source>Password Field is Blank !</source>
        <translation>Il campo password è vuoto.</translation>
    </message>
    <message id="44">
        <source>Incorrect User Account or Password !</source>
        <translation>Account utente o password errati.</translation>
    </message>
    <message id="45">
        <source>Main Viewer</source>
        <translation>Visualizzatore principale</translation>
    </message>
    <message id="46">
        <source>NVR Setting</source>
        <translation>Impostazioni NVR</translation>
    </message>
    <message id="47">
        <source>Event-Triggered Notification</source>
        <translation>Notifica su evento</translation>
    </message>
    <message id="48">
        <source>Auto Search Notice</source>
        <translation>Avviso di ricerca automatica</translation>
    </message>
    <message id="49">
        <source>Event Synchronization Manually Update</source>
        <translation>Sincronizzazione manuale degli eventi</translation>
    </message>
    <message id="50">
        <source>About</source>
        <translation>Informazioni su</translation>
    </message>
    <message id="51">
        <source>Exit</source>
        <translation>Esci</translation>
    </message>
    <message id="52">
        <source>Split</source>
        <translation>Divisione</translation>
    </message>
    <message id="53">
        <source>Change Channel</source>
        <translation>Cambia canale</translation>
    </message>
    <message id="54">
        <source>OSD Display</source>
        <translation>Mostra OSD</translation>
    </message>
    <message id="55">
        <source>CH</source>
        <translation>Canale</translation>
    </message>
    <message id="56">
        <source>Path</source>
        <translation>Percorso</translation>
    </message>
    <message id="57">
        <source>OSD Channel</source>
        <translation>Canale in OSD</translation>
    </message>
    <message id="58">
        <source>OSD Time</source>
        <translation>Ora in OSD</translation>
    </message>
    <message id="59">
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message id="60">
        <source>Camera Event Server Setting Error!</source>
        <translation>Errore nelle impostazioni del server eventi della telecamera.</translation>
    </message>
    <message id="61">
        <source>Snapshot Error!</source>
        <translation>Errore nell’istantanea.</translation>
    </message>
    <message id="62">
        <source>Event Notification is still ongoing.</source>
        <translation>Notifica degli eventi ancora in corso.</translation>
    </message>
    <message id="63">
        <source>Do you want to exit and open rigging desk?</source>
        <translation>Uscire e aprire Rigging Desk?</translation>
    </message>
    <message id="64">
        <source>Auto-Search Notice</source>
        <translation>Avviso di ricerca automatica</translation>
    </message>
    <message id="65">
        <source>Closing...</source>
        <translation>Chiusura…</translation>
    </message>
    <message id="66">
        <source>Devcie is Found!</source>
        <translation>Dispositivo trovato.</translation>
    </message>
    <message id="67">
        <source>Fix display mode</source>
        <translation>Visualizzazione fissa</translation>
    </message>
    <message id="68">
        <source>Video Wall default startup setting</source>
        <translation>Avvio predefinito del videowall</translation>
    </message>
    <message id="69">
        <source>Intelligent Overview</source>
        <translation>Riepilogo analisi video</translation>
    </message>
    <message id="70">
        <source>Do You Want to Save Snapshot Images ?</source>
        <translation>Salvare le istantanee?</translation>
    </message>
    <message id="71">
        <source>User Name or Password error !</source>
        <translation>Nome utente o password errati.</translation>
    </message>
    <message id="72">
        <source>Brand not supported!</source>
        <translation>Marca non supportata.</translation>
    </message>
    <message id="73">
        <source>Camera not supported!</source>
        <translation>Telecamera non supportata.</translation>
    </message>
    <message id="74">
        <source>Device connection error!</source>
        <translation>Errore di connessione al dispositivo.</translation>
    </message>
    <message id="75">
        <source>Device detection timeout!</source>
        <translation>Tempo di rilevamento del dispositivo scaduto.</translation>
    </message>
    <message id="76">
        <source>Unable to connect to the server!</source>
        <translation>Impossibile connettersi al server.</translation>
    </message>
    <message id="77">
        <source>Service has not connect yet!</source>
        <translation>Il servizio non è ancora connesso.</translation>
    </message>
    <message id="78">
        <source>This series of device does not allow repeat add!</source>
        <translation>Questa serie di dispositivi non può essere aggiunta più volte.</translation>
    </message>
    <message id="79">
        <source>SEQ by Channel</source>
        <translation>Sequenza per canale</translation>
    </message>
    <message id="80">
        <source>SEQ by NVR</source>
        <translation>Sequenza per NVR</translation>
    </message>
    <message id="81">
        <source>SEQ by Pattern</source>
        <translation>Sequenza per vista</translation>
    </message>
    <message id="82">
        <source>NVR List</source>
        <translation>Elenco NVR</translation>
    </message>
    <message id="83">
        <source>Dwell time</source>
        <translation>Permanenza</translation>
    </message>
    <message id="84">
        <source>SEQ function is starting, do you want to continue to start SEQ content setting, which will stop SEQ function?</source>
        <translation>La sequenza è in esecuzione. Interromperla e passare all’impostazione del contenuto?</translation>
    </message>
    <message id="85">
        <source>Channel SEQ not available! Please select more than one channel when using this function.</source>
        <translation>Sequenza per canale non disponibile. Selezionare più di un canale per usare questa funzione.</translation>
    </message>
    <message id="86">
        <source>NVR SEQ not available! Please select more than one NVR when using this function.</source>
        <translation>Sequenza per NVR non disponibile. Selezionare più di un NVR per usare questa funzione.</translation>
    </message>
    <message id="87">
        <source>Pattern SEQ not available! Please select more than one patterns when using this function.</source>
        <translation>Sequenza per vista non disponibile. Selezionare più di una vista per usare questa funzione.</translation>
    </message>
    <message id="88">
        <source>Do you want to enable SEQ by Channel?</source>
        <translation>Attivare la sequenza per canale?</translation>
    </message>
    <message id="89">
        <source>Do you want to enable SEQ by NVR?</source>
        <translation>Attivare la sequenza per NVR?</translation>
    </message>
    <message id="90">
        <source>Do you want to enable SEQ by Pattern?</source>
        <translation>Attivare la sequenza per vista?</translation>
    </message>
    <message id="91">
        <source>Camera event setting can't exceed 32!</source>
        <translation>Gli eventi telecamera non possono essere più di 32.</translation>
    </message>
    <message id="92">
        <source>Please add a NVR first!</source>
        <translation>Aggiungere prima un NVR.</translation>
    </message>
    <message id="93">
        <source>Port number can't accept 0 or more than 65536.</source>
        <translation>Il numero di porta non può essere 0 né superiore a 65536.</translation>
    </message>
    <message id="94">
        <source>Drive</source>
        <translation>Unità</translation>
    </message>
    <message id="95">
        <source>Size(GB)</source>
        <translation>Capacità (GB)</translation>
    </message>
    <message id="96">
        <source>Free(GB)</source>
        <translation>Libero (GB)</translation>
    </message>
    <message id="97">
        <source>Usage(%)</source>
        <translation>Uso (%)</translation>
    </message>
    <message id="98">
        <source>Storage Path</source>
        <translation>Percorso archivio</translation>
    </message>
    <message id="99">
        <source>Select a Path</source>
        <translation>Selezionare un percorso</translation>
    </message>
    <message id="100">
        <source>Live Monitor</source>
        <translation>Monitor live</translation>
    </message>
    <message id="101">
        <source>Event Monitor</source>
        <translation>Monitor eventi</translation>
    </message>
    <message id="102">
        <source>Playback</source>
        <translation>Riproduzione</translation>
    </message>
    <message id="103">
        <source>E-MAP Monitor</source>
        <translation>Monitor mappe</translation>
    </message>
    <message id="104">
        <source>User Pattern</source>
        <translation>Vista utente</translation>
    </message>
    <message id="105">
        <source>Split</source>
        <translation>Divisione</translation>
    </message>
    <message id="106">
        <source>Pattern Name</source>
        <translation>Nome vista</translation>
    </message>
    <message id="107">
        <source>Status</source>
        <translation>Stato</translation>
    </message>
    <message id="108">
        <source>Channel Status</source>
        <translation>Stato canale</translation>
    </message>
    <message id="109">
        <source>Network Disconnection</source>
        <translation>Disconnessione di rete</translation>
    </message>
    <message id="110">
        <source>Network connection</source>
        <translation>Connessione di rete</translation>
    </message>
    <message id="111">
        <source>Recording</source>
        <translation>Registrazione</translation>
    </message>
    <message id="112">
        <source>Event Trigger</source>
        <translation>Evento attivato</translation>
    </message>
    <message id="113">
        <source>Connecting</source>
        <translation>In connessione</translation>
    </message>
    <message id="114">
        <source>Video Loss</source>
        <translation>Perdita video</translation>
    </message>
    <message id="115">
        <source>SEQ Mode</source>
        <translation>Modalità sequenza</translation>
    </message>
    <message id="116">
        <source>(Sec)</source>
        <translation>(s)</translation>
    </message>
    <message id="117">
        <source>Start</source>
        <translation>Avvia</translation>
    </message>
    <message id="118">
        <source>Stop</source>
        <translation>Arresta</translation>
    </message>
    <message id="119">
        <source>SEQ contents</source>
        <translation>Contenuto sequenza</translation>
    </message>
    <message id="120">
        <source>SEQ ALL</source>
        <translation>Tutti in sequenza</translation>
    </message>
    <message id="121">
        <source>SEQ</source>
        <translation>Sequenza</translation>
    </message>
    <message id="122">
        <source>Pattern SEQ</source>
        <translation>Sequenza viste</translation>
    </message>
    <message id="123">
        <source>Service Mode</source>
        <translation>Modalità servizio</translation>
    </message>
    <message id="124">
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message id="125">
        <source>Version</source>
        <translation>Versione</translation>
    </message>
    <message id="126">
        <source>Event Info</source>
        <translation>Dati evento</translation>
    </message>
    <message id="127">
        <source>Event</source>
        <translation>Evento</translation>
    </message>
    <message id="128">
        <source>Time</source>
        <translation>Ora</translation>
    </message>
    <message id="129">
        <source>Description</source>
        <translation>Descrizione</translation>
    </message>
    <message id="130">
        <source>System Info</source>
        <translation>Dati sistema</translation>
    </message>
    <message id="131">
        <source>Info</source>
        <translation>Dati</translation>
    </message>
    <message id="132">
        <source>System Time:</source>
        <translation>Ora di sistema:</translation>
    </message>
    <message id="133">
        <source>Group Level:</source>
        <translation>Livello gruppo:</translation>
    </message>
    <message id="134">
        <source>CPU:</source>
        <translation>CPU:</translation>
    </message>
    <message id="135">
        <source>PRESET</source>
        <translation>POS. PRESET</translation>
    </message>
    <message id="136">
        <source>Preset:</source>
        <translation>Pos. preset:</translation>
    </message>
    <message id="137">
        <source>Unable to support full screen mode or to change split mode under SEQ mode.</source>
        <translation>In modalità sequenza non è possibile usare lo schermo intero né cambiare la divisione.</translation>
    </message>
    <message id="138">
        <source>Full screen is running. close it first!</source>
        <translation>Lo schermo intero è attivo. Chiuderlo prima di procedere.</translation>
    </message>
    <message id="139">
        <source>Unauthorised</source>
        <translation>Non autorizzato</translation>
    </message>
    <message id="140">
        <source>Select a channel first.</source>
        <translation>Selezionare prima un canale.</translation>
    </message>
    <message id="141">
        <source>Name Repeat!</source>
        <translation>Nome già presente.</translation>
    </message>
    <message id="142">
        <source>MENU</source>
        <translation>MENU</translation>
    </message>
    <message id="143">
        <source>TREE</source>
        <translation>ALBERO</translation>
    </message>
    <message id="144">
        <source>PATTERN</source>
        <translation>VISTA</translation>
    </message>
    <message id="145">
        <source>STATUS</source>
        <translation>STATO</translation>
    </message>
    <message id="146">
        <source>SEQ</source>
        <translation>SEQUENZA</translation>
    </message>
    <message id="147">
        <source>SYSTEM</source>
        <translation>SISTEMA</translation>
    </message>
    <message id="148">
        <source>CH:</source>
        <translation>Canale:</translation>
    </message>
    <message id="149">
        <source>Reconnection</source>
        <translation>Riconnessione</translation>
    </message>
    <message id="150">
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message id="151">
        <source>Display Image of Motion Detection </source>
        <translation>Mostra immagine del rilevamento movimento </translation>
    </message>
    <message id="152">
        <source>Snapshot</source>
        <translation>Istantanea</translation>
    </message>
    <message id="153">
        <source>Preset Point Setting</source>
        <translation>Impostazione preset</translation>
    </message>
    <message id="154">
        <source>When modify setting, the channel of pattern will be changed.</source>
        <translation>Modificando le impostazioni cambieranno i canali delle viste.</translation>
    </message>
    <message id="155">
        <source>Snapshot fail !</source>
        <translation>Istantanea non riuscita.</translation>
    </message>
    <message id="156">
        <source>Preset Patrol:</source>
        <translation>Ronda preset:</translation>
    </message>
    <message id="157">
        <source>Loading Fullscreen layout data…</source>
        <translation>Caricamento disposizione a schermo intero…</translation>
    </message>
    <message id="158">
        <source>Dock</source>
        <translation>Aggancia</translation>
    </message>
    <message id="159">
        <source>Control Panel</source>
        <translation>Pannello di controllo</translation>
    </message>
    <message id="160">
        <source>Name:</source>
        <translation>Nome:</translation>
    </message>
    <message id="161">
        <source>Channel:</source>
        <translation>Canale:</translation>
    </message>
    <message id="162">
        <source>CH Name:</source>
        <translation>Nome canale:</translation>
    </message>
    <message id="163">
        <source>Event Mode:</source>
        <translation>Tipo di evento:</translation>
    </message>
    <message id="164">
        <source>Event Trigger Time:</source>
        <translation>Ora dell’evento:</translation>
    </message>
    <message id="165">
        <source>Contact:</source>
        <translation>Contatto:</translation>
    </message>
    <message id="166">
        <source>Phone:</source>
        <translation>Telefono:</translation>
    </message>
    <message id="167">
        <source>Play Time(SYSTEM):</source>
        <translation>Ora riprod. (sistema):</translation>
    </message>
    <message id="168">
        <source>Current Event List</source>
        <translation>Eventi attuali</translation>
    </message>
    <message id="169">
        <source>Log Event List</source>
        <translation>Eventi registrati</translation>
    </message>
    <message id="170">
        <source>Search</source>
        <translation>Cerca</translation>
    </message>
    <message id="171">
        <source>Search All</source>
        <translation>Cerca tutto</translation>
    </message>
    <message id="172">
        <source>Search Start Time</source>
        <translation>Cerca da</translation>
    </message>
    <message id="173">
        <source>Search by Event type</source>
        <translation>Cerca per tipo di evento</translation>
    </message>
    <message id="174">
        <source>Item</source>
        <translation>Voce</translation>
    </message>
    <message id="175">
        <source>Event ID</source>
        <translation>ID evento</translation>
    </message>
    <message id="176">
        <source>Time</source>
        <translation>Ora</translation>
    </message>
    <message id="177">
        <source>System Time</source>
        <translation>Ora di sistema</translation>
    </message>
    <message id="178">
        <source>NO.</source>
        <translation>Num.</translation>
    </message>
    <message id="179">
        <source>CH</source>
        <translation>Canale</translation>
    </message>
    <message id="180">
        <source>Event Mode</source>
        <translation>Tipo di evento</translation>
    </message>
    <message id="181">
        <source>Process</source>
        <translation>Processo</translation>
    </message>
    <message id="182">
        <source>On-Line</source>
        <translation>In linea</translation>
    </message>
    <message id="183">
        <source>Channel Name</source>
        <translation>Nome canale</translation>
    </message>
    <message id="184">
        <source>Channel Detail</source>
        <translation>Dettagli canale</translation>
    </message>
    <message id="185">
        <source>Play Error</source>
        <translation>Errore di riproduzione</translation>
    </message>
    <message id="186">
        <source>Play Stop</source>
        <translation>Riproduzione interrotta</translation>
    </message>
    <message id="187">
        <source>Live Video</source>
        <translation>Video live</translation>
    </message>
    <message id="188">
        <source>Live Stop</source>
        <translation>Live interrotto</translation>
    </message>
    <message id="189">
        <source>Off Line</source>
        <translation>Non in linea</translation>
    </message>
    <message id="190">
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message id="191">
        <source>Motion</source>
        <translation>Movimento</translation>
    </message>
    <message id="192">
        <source>Sensor</source>
        <translation>Sensore</translation>
    </message>
    <message id="193">
        <source>Return message: </source>
        <translation>Messaggio ricevuto: </translation>
    </message>
    <message id="194">
        <source>NVR no playback resource!</source>
        <translation>L’NVR non ha risorse di riproduzione libere.</translation>
    </message>
    <message id="195">
        <source>Playback request failed!</source>
        <translation>Richiesta di riproduzione non riuscita.</translation>
    </message>
    <message id="196">
        <source>Reset Event List</source>
        <translation>Reimposta elenco</translation>
    </message>
    <message id="197">
        <source>X</source>
        <translation>X</translation>
    </message>
    <message id="198">
        <source>Return</source>
        <translation>Indietro</translation>
    </message>
    <message id="199">
        <source>SEQ Duration Time</source>
        <translation>Durata sequenza</translation>
    </message>
    <message id="200">
        <source>Playback Info</source>
        <translation>Dati riproduzione</translation>
    </message>
    <message id="201">
        <source>NVR:</source>
        <translation>NVR:</translation>
    </message>
    <message id="202">
        <source>CH:</source>
        <translation>Canale:</translation>
    </message>
    <message id="203">
        <source>Speed:</source>
        <translation>Velocità:</translation>
    </message>
    <message id="204">
        <source>Sun</source>
        <translation>Dom</translation>
    </message>
    <message id="205">
        <source>Mon</source>
        <translation>Lun</translation>
    </message>
    <message id="206">
        <source>Tue</source>
        <translation>Mar</translation>
    </message>
    <message id="207">
        <source>Wed</source>
        <translation>Mer</translation>
    </message>
    <message id="208">
        <source>Thu</source>
        <translation>Gio</translation>
    </message>
    <message id="209">
        <source>Fri</source>
        <translation>Ven</translation>
    </message>
    <message id="210">
        <source>Sat</source>
        <translation>Sab</translation>
    </message>
    <message id="211">
        <source>Event List</source>
        <translation>Elenco eventi</translation>
    </message>
    <message id="212">
        <source>Receiving recording data failed</source>
        <translation>Ricezione dei dati di registrazione non riuscita.</translation>
    </message>
    <message id="213">
        <source>RF</source>
        <translation>INDIETRO</translation>
    </message>
    <message id="214">
        <source>STOP</source>
        <translation>ARRESTA</translation>
    </message>
    <message id="215">
        <source>PLAY</source>
        <translation>RIPRODUCI</translation>
    </message>
    <message id="216">
        <source>PAUSE</source>
        <translation>PAUSA</translation>
    </message>
    <message id="217">
        <source>FF</source>
        <translation>AVANTI</translation>
    </message>
    <message id="218">
        <source>NEXT</source>
        <translation>SUCCESSIVO</translation>
    </message>
    <message id="219">
        <source>No recording data can be Displayed !</source>
        <translation>Nessun dato di registrazione da visualizzare.</translation>
    </message>
    <message id="220">
        <source>Play Stop ! Need to select new time.</source>
        <translation>Riproduzione interrotta. Selezionare un’altra ora.</translation>
    </message>
    <message id="221">
        <source>No response! you can try again or select another device !</source>
        <translation>Nessuna risposta. Riprovare o selezionare un altro dispositivo.</translation>
    </message>
    <message id="222">
        <source>Disconnection ! </source>
        <translation>Connessione persa. </translation>
    </message>
    <message id="223">
        <source>Can not get video stream ! please select other Channel.</source>
        <translation>Impossibile ottenere il flusso video. Selezionare un altro canale.</translation>
    </message>
    <message id="224">
        <source>No recording data.</source>
        <translation>Nessun dato di registrazione.</translation>
    </message>
    <message id="225">
        <source>Recording data is updating, please wait .</source>
        <translation>Aggiornamento dei dati di registrazione in corso. Attendere.</translation>
    </message>
    <message id="226">
        <source>Convert to AVI</source>
        <translation>Converti in AVI</translation>
    </message>
    <message id="227">
        <source>Do you want to stop the conversion of avi file ?</source>
        <translation>Interrompere la conversione del file AVI?</translation>
    </message>
    <message id="228">
        <source>AVI file conversion complete! File is... </source>
        <translation>Conversione in AVI completata. Il file è… </translation>
    </message>
    <message id="229">
        <source>Converting AVI file!</source>
        <translation>Conversione del file AVI in corso.</translation>
    </message>
    <message id="230">
        <source>AVI Conversion Fail !</source>
        <translation>Conversione in AVI non riuscita.</translation>
    </message>
    <message id="231">
        <source>Auto Pan:</source>
        <translation>Pan automatico:</translation>
    </message>
    <message id="232">
        <source>Single Video</source>
        <translation>Un video</translation>
    </message>
    <message id="233">
        <source>Quad Videos</source>
        <translation>Quattro video</translation>
    </message>
    <message id="234">
        <source>Nine Videos</source>
        <translation>Nove video</translation>
    </message>
    <message id="235">
        <source>No any SVD has been set, you need to add any SVD to control!</source>
        <translation>Nessun SVD configurato. Aggiungere un SVD da controllare.</translation>
    </message>
    <message id="236">
        <source>This channel has been set to display in this screen!</source>
        <translation>Questo canale è già assegnato a questo schermo.</translation>
    </message>
    <message id="237">
        <source>Are you sure to exit SVD console monitor?</source>
        <translation>Uscire dal monitor della console SVD?</translation>
    </message>
    <message id="238">
        <source>Click here to reconnect again!</source>
        <translation>Fare clic qui per riconnettersi.</translation>
    </message>
    <message id="239">
        <source>SVD UI is changing…</source>
        <translation>Cambio dell’interfaccia SVD…</translation>
    </message>
    <message id="240">
        <source>NO.:</source>
        <translation>Num.:</translation>
    </message>
    <message id="241">
        <source>Name:</source>
        <translation>Nome:</translation>
    </message>
    <message id="242">
        <source>Number of Camera:</source>
        <translation>Numero di telecamere:</translation>
    </message>
    <message id="243">
        <source>Event:</source>
        <translation>Evento:</translation>
    </message>
    <message id="244">
        <source>No Event</source>
        <translation>Nessun evento</translation>
    </message>
    <message id="245">
        <source>CH:</source>
        <translation>Canale:</translation>
    </message>
    <message id="246">
        <source>Up</source>
        <translation>Su</translation>
    </message>
    <message id="247">
        <source>Down</source>
        <translation>Giù</translation>
    </message>
    <message id="248">
        <source>Left</source>
        <translation>Sinistra</translation>
    </message>
    <message id="249">
        <source>Right</source>
        <translation>Destra</translation>
    </message>
    <message id="250">
        <source>Upper left</source>
        <translation>In alto a sinistra</translation>
    </message>
    <message id="251">
        <source>Upper right</source>
        <translation>In alto a destra</translation>
    </message>
    <message id="252">
        <source>Lower left</source>
        <translation>In basso a sinistra</translation>
    </message>
    <message id="253">
        <source>Lower right</source>
        <translation>In basso a destra</translation>
    </message>
    <message id="254">
        <source>Home</source>
        <translation>Pos. iniziale</translation>
    </message>
    <message id="255">
        <source>Zoom In</source>
        <translation>Zoom avanti</translation>
    </message>
    <message id="256">
        <source>Zoom Out</source>
        <translation>Zoom indietro</translation>
    </message>
    <message id="257">
        <source>Focus Far</source>
        <translation>Fuoco lontano</translation>
    </message>
    <message id="258">
        <source>Focus Near</source>
        <translation>Fuoco vicino</translation>
    </message>
    <message id="259">
        <source>Auto Focus</source>
        <translation>Autofocus</translation>
    </message>
    <message id="260">
        <source>IRIS Auto</source>
        <translation>Iris automatico</translation>
    </message>
    <message id="261">
        <source>IRIS Close</source>
        <translation>Chiudi iris</translation>
    </message>
    <message id="262">
        <source>IRIS Open</source>
        <translation>Apri iris</translation>
    </message>
    <message id="263">
        <source>Auto Pan Left</source>
        <translation>Pan auto a sinistra</translation>
    </message>
    <message id="264">
        <source>Auto Pan Right</source>
        <translation>Pan auto a destra</translation>
    </message>
    <message id="265">
        <source>Auto Pan Stop</source>
        <translation>Arresta pan auto</translation>
    </message>
    <message id="266">
        <source>Moving Rate(+)</source>
        <translation>Velocità (+)</translation>
    </message>
    <message id="267">
        <source>Moving Rate(-)</source>
        <translation>Velocità (-)</translation>
    </message>
    <message id="268">
        <source>Display OSD on all channels</source>
        <translation>Mostra OSD su tutti i canali</translation>
    </message>
    <message id="269">
        <source>Display OSD</source>
        <translation>Mostra OSD</translation>
    </message>
    <message id="270">
        <source>Detail Export:</source>
        <translation>Esporta dettagli:</translation>
    </message>
    <message id="271">
        <source>Valid Ch</source>
        <translation>Can. validi</translation>
    </message>
    <message id="272">
        <source>Auto Search</source>
        <translation>Ricerca automatica</translation>
    </message>
    <message id="273">
        <source>Manual Detection</source>
        <translation>Rilevamento manuale</translation>
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
        <translation>Porta HTTP:</translation>
    </message>
    <message id="277">
        <source>Next</source>
        <translation>Avanti</translation>
    </message>
    <message id="278">
        <source>Device Name</source>
        <translation>Nome dispositivo</translation>
    </message>
    <message id="279">
        <source>All</source>
        <translation>Tutti</translation>
    </message>
    <message id="280">
        <source>CHs</source>
        <translation>Canali</translation>
    </message>
    <message id="281">
        <source>Model:</source>
        <translation>Modello:</translation>
    </message>
    <message id="282">
        <source>Max Channel:</source>
        <translation>N. max canali:</translation>
    </message>
    <message id="283">
        <source>NVR Name:</source>
        <translation>Nome NVR:</translation>
    </message>
    <message id="284">
        <source>Version:</source>
        <translation>Versione:</translation>
    </message>
    <message id="285">
        <source>Valid Channel:</source>
        <translation>Canali validi:</translation>
    </message>
    <message id="286">
        <source>Sync With NVR</source>
        <translation>Sincronizza con NVR</translation>
    </message>
    <message id="287">
        <source>Add New NVR </source>
        <translation>Aggiungi NVR </translation>
    </message>
    <message id="288">
        <source>NVR Search List</source>
        <translation>NVR trovati</translation>
    </message>
    <message id="289">
        <source>NVR Detect Status</source>
        <translation>Stato rilevamento NVR</translation>
    </message>
    <message id="290">
        <source>NVR Detail Setting</source>
        <translation>Impostazioni dettagliate NVR</translation>
    </message>
    <message id="291">
        <source>NVR Channel Setting</source>
        <translation>Impostazioni canali NVR</translation>
    </message>
    <message id="292">
        <source>Preset Sequence Setting</source>
        <translation>Impostazioni sequenza preset</translation>
    </message>
    <message id="293">
        <source>Get Capability...</source>
        <translation>Lettura delle funzionalità…</translation>
    </message>
    <message id="294">
        <source>Get Channel Info...</source>
        <translation>Lettura dei dati dei canali…</translation>
    </message>
    <message id="295">
        <source>Get NVR Info...</source>
        <translation>Lettura dei dati dell’NVR…</translation>
    </message>
    <message id="296">
        <source>Initial NVR Value...</source>
        <translation>Inizializzazione valori NVR…</translation>
    </message>
    <message id="297">
        <source>Add Success!</source>
        <translation>Aggiunta riuscita.</translation>
    </message>
    <message id="298">
        <source>Channel List</source>
        <translation>Elenco canali</translation>
    </message>
    <message id="299">
        <source>Split:</source>
        <translation>Divisione:</translation>
    </message>
    <message id="300">
        <source>MainViewer opened. Close it First!</source>
        <translation>Il visualizzatore principale è aperto. Chiuderlo prima di procedere.</translation>
    </message>
    <message id="301">
        <source>System &amp; Setting</source>
        <translation>Sistema e impostazioni</translation>
    </message>
    <message id="302">
        <source>Setting</source>
        <translation>Impostazioni</translation>
    </message>
    <message id="303">
        <source>Manual Setting</source>
        <translation>Impostazione manuale</translation>
    </message>
    <message id="304">
        <source>PTZ Config</source>
        <translation>Impostazioni PTZ</translation>
    </message>
    <message id="305">
        <source>Motion Setting</source>
        <translation>Impostazioni movimento</translation>
    </message>
    <message id="306">
        <source>Motion Setting</source>
        <translation>Impostazioni movimento</translation>
    </message>
    <message id="307">
        <source>General Setting Overview</source>
        <translation>Riepilogo impostazioni generali</translation>
    </message>
    <message id="308">
        <source>Group/User Config</source>
        <translation>Impostazioni gruppi/utenti</translation>
    </message>
    <message id="309">
        <source>Event Handling Config</source>
        <translation>Impostazioni gestione eventi</translation>
    </message>
    <message id="310">
        <source>E-Map Config</source>
        <translation>Impostazioni mappe</translation>
    </message>
    <message id="311">
        <source>Screen Layout Config</source>
        <translation>Impostazioni schermi</translation>
    </message>
    <message id="312">
        <source>Event Action Overview</source>
        <translation>Riepilogo azioni evento</translation>
    </message>
    <message id="313">
        <source>Mail Config</source>
        <translation>Impostazioni e-mail</translation>
    </message>
    <message id="314">
        <source>FTP Config</source>
        <translation>Impostazioni FTP</translation>
    </message>
    <message id="315">
        <source>Message Config</source>
        <translation>Impostazioni messaggi</translation>
    </message>
    <message id="316">
        <source>Sound Config</source>
        <translation>Impostazioni suoni</translation>
    </message>
    <message id="317">
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message id="318">
        <source>Main Viewer</source>
        <translation>Visualizzatore principale</translation>
    </message>
    <message id="319">
        <source>Exit</source>
        <translation>Esci</translation>
    </message>
    <message id="320">
        <source>Setup</source>
        <translation>Configurazione</translation>
    </message>
    <message id="321">
        <source>SEQ Control</source>
        <translation>Controllo sequenza</translation>
    </message>
    <message id="322">
        <source>Pattern Name:</source>
        <translation>Nome vista:</translation>
    </message>
    <message id="323">
        <source>Do you continue to delete this pattern?</source>
        <translation>Eliminare questa vista?</translation>
    </message>
    <message id="324">
        <source>Pattern List Overview</source>
        <translation>Riepilogo viste</translation>
    </message>
    <message id="325">
        <source>Name or Channel list need to be set!</source>
        <translation>Indicare il nome o l’elenco canali.</translation>
    </message>
    <message id="326">
        <source>Live Monitor SEQ and full screen can not be opened at the same time.</source>
        <translation>La sequenza live e lo schermo intero non possono essere aperti contemporaneamente.</translation>
    </message>
    <message id="327">
        <source>No channel is selected!</source>
        <translation>Nessun canale selezionato.</translation>
    </message>
    <message id="328">
        <source>Select time is out of data range!</source>
        <translation>L’ora selezionata è fuori dall’intervallo dei dati.</translation>
    </message>
    <message id="329">
        <source>NVR is invalid!</source>
        <translation>L’NVR non è valido.</translation>
    </message>
    <message id="330">
        <source>System Setting</source>
        <translation>Impostazioni di sistema</translation>
    </message>
    <message id="331">
        <source>Application name:</source>
        <translation>Nome applicazione:</translation>
    </message>
    <message id="332">
        <source>Version:</source>
        <translation>Versione:</translation>
    </message>
    <message id="333">
        <source>Language:</source>
        <translation>Lingua:</translation>
    </message>
    <message id="334">
        <source>Start Up:</source>
        <translation>Avvio:</translation>
    </message>
    <message id="335">
        <source>Event Sync Time:</source>
        <translation>Sincr. eventi:</translation>
    </message>
    <message id="336">
        <source>Snapshot Count:</source>
        <translation>Numero di istantanee:</translation>
    </message>
    <message id="337">
        <source>Camera Event Server Setting</source>
        <translation>Impostazioni server eventi della telecamera</translation>
    </message>
    <message id="338">
        <source>Account:</source>
        <translation>Account:</translation>
    </message>
    <message id="339">
        <source>Password:</source>
        <translation>Password:</translation>
    </message>
    <message id="340">
        <source>Port:</source>
        <translation>Porta:</translation>
    </message>
    <message id="341">
        <source>System Info</source>
        <translation>Dati sistema</translation>
    </message>
    <message id="343">
        <source>OS:</source>
        <translation>SO:</translation>
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
        <translation>Nome computer:</translation>
    </message>
    <message id="347">
        <source>Total space of HD:</source>
        <translation>Spazio totale su disco:</translation>
    </message>
    <message id="348">
        <source>Network Connect Status:</source>
        <translation>Stato connessione di rete:</translation>
    </message>
    <message id="349">
        <source>System Time:</source>
        <translation>Ora di sistema:</translation>
    </message>
    <message id="350">
        <source>Screen Count:</source>
        <translation>Numero di schermi:</translation>
    </message>
    <message id="351">
        <source>CPU Performance:</source>
        <translation>Prestazioni CPU:</translation>
    </message>
    <message id="352">
        <source>Login Windows then Auto Start up </source>
        <translation>Avvia all’accesso a Windows </translation>
    </message>
    <message id="353">
        <source>Start in background</source>
        <translation>Avvia in background</translation>
    </message>
    <message id="354">
        <source>Minute</source>
        <translation>Minuti</translation>
    </message>
    <message id="356">
        <source>NVR is connecting, wait a moment and start again!</source>
        <translation>Connessione all’NVR in corso. Attendere un momento e riprovare.</translation>
    </message>
    <message id="357">
        <source>NVR is offline, please choose another NVR or confirm this NVR connection status!</source>
        <translation>L’NVR non è in linea. Scegliere un altro NVR o verificare lo stato della connessione di questo.</translation>
    </message>
    <message id="358">
        <source>Output device has been removed!</source>
        <translation>Il dispositivo di uscita è stato rimosso.</translation>
    </message>
    <message id="359">
        <source>Password confirm inconsistency, Please check again!</source>
        <translation>Le password non coincidono. Verificarle.</translation>
    </message>
    <message id="360">
        <source>List:</source>
        <translation>Elenco:</translation>
    </message>
    <message id="361">
        <source>NVR</source>
        <translation>NVR</translation>
    </message>
    <message id="362">
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message id="363">
        <source>IP</source>
        <translation>IP</translation>
    </message>
    <message id="364">
        <source>Port</source>
        <translation>Porta</translation>
    </message>
    <message id="365">
        <source>Power</source>
        <translation>Privilegi</translation>
    </message>
    <message id="366">
        <source>CH</source>
        <translation>Canale</translation>
    </message>
    <message id="367">
        <source>CH Name</source>
        <translation>Nome canale</translation>
    </message>
    <message id="368">
        <source>CH IP</source>
        <translation>IP canale</translation>
    </message>
    <message id="369">
        <source>CH Port</source>
        <translation>Porta canale</translation>
    </message>
    <message id="370">
        <source>CH Brand</source>
        <translation>Marca canale</translation>
    </message>
    <message id="371">
        <source>Video Format</source>
        <translation>Formato video</translation>
    </message>
    <message id="372">
        <source>Video RES</source>
        <translation>Ris. video</translation>
    </message>
    <message id="373">
        <source>MD Enable</source>
        <translation>Mov. attivo</translation>
    </message>
    <message id="374">
        <source>MD Sen</source>
        <translation>Sens. mov.</translation>
    </message>
    <message id="375">
        <source>CH PTZ</source>
        <translation>PTZ canale</translation>
    </message>
    <message id="376">
        <source>CH audio</source>
        <translation>Audio canale</translation>
    </message>
    <message id="377">
        <source>Detect List</source>
        <translation>Elenco rilevamento</translation>
    </message>
    <message id="378">
        <source>Advance Control </source>
        <translation>Controllo avanzato </translation>
    </message>
    <message id="379">
        <source>IP</source>
        <translation>IP</translation>
    </message>
    <message id="380">
        <source>Port</source>
        <translation>Porta</translation>
    </message>
    <message id="381">
        <source>Brand</source>
        <translation>Marca</translation>
    </message>
    <message id="382">
        <source>Model</source>
        <translation>Modello</translation>
    </message>
    <message id="383">
        <source>MAC</source>
        <translation>MAC</translation>
    </message>
    <message id="384">
        <source>Detect Time</source>
        <translation>Ora rilevamento</translation>
    </message>
    <message id="385">
        <source>Add</source>
        <translation>Aggiungi</translation>
    </message>
    <message id="386">
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message id="387">
        <source>Modify</source>
        <translation>Modifica</translation>
    </message>
    <message id="388">
        <source>Reconection </source>
        <translation>Riconnetti </translation>
    </message>
    <message id="389">
        <source>Open Browser</source>
        <translation>Apri browser</translation>
    </message>
    <message id="390">
        <source>Preset Info</source>
        <translation>Dati preset</translation>
    </message>
    <message id="391">
        <source>Sync</source>
        <translation>Sincronizza</translation>
    </message>
    <message id="392">
        <source>Edit Preset</source>
        <translation>Modifica preset</translation>
    </message>
    <message id="393">
        <source>Preset No</source>
        <translation>N. preset</translation>
    </message>
    <message id="394">
        <source>Preset Name</source>
        <translation>Nome preset</translation>
    </message>
    <message id="395">
        <source>PTZ Control</source>
        <translation>Controllo PTZ</translation>
    </message>
    <message id="396">
        <source>Submit</source>
        <translation>Conferma</translation>
    </message>
    <message id="397">
        <source>Motion Detect List:</source>
        <translation>Rilevamento movimento:</translation>
    </message>
    <message id="398">
        <source>Sensitivity:</source>
        <translation>Sensibilità:</translation>
    </message>
    <message id="399">
        <source>Motion Detect Setting</source>
        <translation>Impostazioni rilevamento movimento</translation>
    </message>
    <message id="400">
        <source>*Use Mouse drag the Device item into Intelligent detection List.</source>
        <translation>*Trascinare con il mouse il dispositivo nell’elenco di rilevamento intelligente.</translation>
    </message>
    <message id="401">
        <source>Device List:</source>
        <translation>Dispositivi:</translation>
    </message>
    <message id="402">
        <source>Trigger for Motion Detect</source>
        <translation>Attivazione su movimento</translation>
    </message>
    <message id="403">
        <source>Status</source>
        <translation>Stato</translation>
    </message>
    <message id="404">
        <source>Motion Enable List:</source>
        <translation>Movimento attivo su:</translation>
    </message>
    <message id="405">
        <source>Clear All</source>
        <translation>Cancella tutto</translation>
    </message>
    <message id="406">
        <source>Select All</source>
        <translation>Seleziona tutto</translation>
    </message>
    <message id="407">
        <source>High</source>
        <translation>Alta</translation>
    </message>
    <message id="408">
        <source>Normal</source>
        <translation>Normale</translation>
    </message>
    <message id="409">
        <source>Low</source>
        <translation>Bassa</translation>
    </message>
    <message id="410">
        <source>SET</source>
        <translation>IMPOSTA</translation>
    </message>
    <message id="411">
        <source>User List:</source>
        <translation>Utenti:</translation>
    </message>
    <message id="412">
        <source>Group List:</source>
        <translation>Gruppi:</translation>
    </message>
    <message id="413">
        <source>Event Setting List:</source>
        <translation>Impostazioni eventi:</translation>
    </message>
    <message id="414">
        <source>EMap List:</source>
        <translation>Mappe:</translation>
    </message>
    <message id="415">
        <source>Screen List:</source>
        <translation>Schermi:</translation>
    </message>
    <message id="416">
        <source>Account</source>
        <translation>Account</translation>
    </message>
    <message id="417">
        <source>Company</source>
        <translation>Azienda</translation>
    </message>
    <message id="418">
        <source>Telephone</source>
        <translation>Telefono</translation>
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
        <translation>Cellulare</translation>
    </message>
    <message id="422">
        <source>Photo Path</source>
        <translation>Percorso foto</translation>
    </message>
    <message id="423">
        <source>Group</source>
        <translation>Gruppo</translation>
    </message>
    <message id="424">
        <source>Event</source>
        <translation>Evento</translation>
    </message>
    <message id="425">
        <source>Mail</source>
        <translation>E-mail</translation>
    </message>
    <message id="426">
        <source>FTP</source>
        <translation>FTP</translation>
    </message>
    <message id="427">
        <source>Msg</source>
        <translation>Mess.</translation>
    </message>
    <message id="428">
        <source>Sound</source>
        <translation>Suono</translation>
    </message>
    <message id="429">
        <source>Video Power</source>
        <translation>Privilegi video</translation>
    </message>
    <message id="430">
        <source>Playback</source>
        <translation>Riproduzione</translation>
    </message>
    <message id="431">
        <source>PTZ</source>
        <translation>PTZ</translation>
    </message>
    <message id="432">
        <source>Setup</source>
        <translation>Configurazione</translation>
    </message>
    <message id="433">
        <source>Map</source>
        <translation>Mappa</translation>
    </message>
    <message id="434">
        <source>Path</source>
        <translation>Percorso</translation>
    </message>
    <message id="435">
        <source>Function</source>
        <translation>Funzione</translation>
    </message>
    <message id="436">
        <source>Screen</source>
        <translation>Schermo</translation>
    </message>
    <message id="437">
        <source>MainMap</source>
        <translation>Mappa principale</translation>
    </message>
    <message id="438">
        <source>FullScreen</source>
        <translation>Schermo intero</translation>
    </message>
    <message id="439">
        <source>FullScreen2</source>
        <translation>Schermo intero 2</translation>
    </message>
    <message id="440">
        <source>User Detail List</source>
        <translation>Dettagli utenti</translation>
    </message>
    <message id="441">
        <source>Group List</source>
        <translation>Elenco gruppi</translation>
    </message>
    <message id="442">
        <source>Add User</source>
        <translation>Aggiungi utente</translation>
    </message>
    <message id="443">
        <source>Remove User</source>
        <translation>Rimuovi utente</translation>
    </message>
    <message id="444">
        <source>Modify User</source>
        <translation>Modifica utente</translation>
    </message>
    <message id="445">
        <source>Modify Group</source>
        <translation>Modifica gruppo</translation>
    </message>
    <message id="446">
        <source>System Event Trigger Action</source>
        <translation>Azione associata a evento di sistema</translation>
    </message>
    <message id="447">
        <source>NVR Event Trigger Action</source>
        <translation>Azione associata a evento NVR</translation>
    </message>
    <message id="448">
        <source>System Start/Stop</source>
        <translation>Avvio/arresto sistema</translation>
    </message>
    <message id="449">
        <source>Modify Setting of System</source>
        <translation>Modifica impostazioni di sistema</translation>
    </message>
    <message id="450">
        <source>Modify Setting of NVR</source>
        <translation>Modifica impostazioni NVR</translation>
    </message>
    <message id="451">
        <source>Modify Setting of Intelligent detection</source>
        <translation>Modifica impostazioni rilevamento intelligente</translation>
    </message>
    <message id="452">
        <source>Modify Setting of General</source>
        <translation>Modifica impostazioni generali</translation>
    </message>
    <message id="453">
        <source>Modify Setting of Event</source>
        <translation>Modifica impostazioni eventi</translation>
    </message>
    <message id="454">
        <source>E1:Motion Detect</source>
        <translation>E1: rilevamento movimento</translation>
    </message>
    <message id="455">
        <source>Sensor Detection</source>
        <translation>Rilevamento sensore</translation>
    </message>
    <message id="456">
        <source>*Double Click Map to Setting</source>
        <translation>*Fare doppio clic sulla mappa per configurarla</translation>
    </message>
    <message id="457">
        <source>SubMap</source>
        <translation>Sottomappa</translation>
    </message>
    <message id="458">
        <source>Screen Layout</source>
        <translation>Disposizione schermi</translation>
    </message>
    <message id="459">
        <source>Mail</source>
        <translation>E-mail</translation>
    </message>
    <message id="460">
        <source>FTP</source>
        <translation>FTP</translation>
    </message>
    <message id="461">
        <source>Message</source>
        <translation>Messaggio</translation>
    </message>
    <message id="462">
        <source>Sound</source>
        <translation>Suono</translation>
    </message>
    <message id="463">
        <source>Sender E-mail Address</source>
        <translation>E-mail mittente</translation>
    </message>
    <message id="464">
        <source>Mail Server</source>
        <translation>Server di posta</translation>
    </message>
    <message id="465">
        <source>User</source>
        <translation>Utente</translation>
    </message>
    <message id="466">
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message id="467">
        <source>Adressee Name</source>
        <translation>Destinatario</translation>
    </message>
    <message id="468">
        <source>Mail Addrrss</source>
        <translation>Indirizzo e-mail</translation>
    </message>
    <message id="469">
        <source>Server IP</source>
        <translation>IP server</translation>
    </message>
    <message id="470">
        <source>Server Port</source>
        <translation>Porta server</translation>
    </message>
    <message id="471">
        <source>Text</source>
        <translation>Testo</translation>
    </message>
    <message id="472">
        <source>Sound Description</source>
        <translation>Descrizione suono</translation>
    </message>
    <message id="473">
        <source>Sound File Path</source>
        <translation>Percorso suono</translation>
    </message>
    <message id="474">
        <source>Test</source>
        <translation>Prova</translation>
    </message>
    <message id="475">
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message id="476">
        <source>Mail to</source>
        <translation>E-mail a</translation>
    </message>
    <message id="477">
        <source>FTP Setting</source>
        <translation>Impostazioni FTP</translation>
    </message>
    <message id="478">
        <source>Message Setting</source>
        <translation>Impostazioni messaggi</translation>
    </message>
    <message id="479">
        <source>Message</source>
        <translation>Messaggio</translation>
    </message>
    <message id="480">
        <source>Sound Setting</source>
        <translation>Impostazioni suoni</translation>
    </message>
    <message id="481">
        <source>Set HTTP Server failed! Do you want to remove all HTTP Servers?</source>
        <translation>Impostazione del server HTTP non riuscita. Rimuovere tutti i server HTTP?</translation>
    </message>
    <message id="482">
        <source>The amount cannot be more than 16!</source>
        <translation>Il numero non può essere superiore a 16.</translation>
    </message>
    <message id="483">
        <source>Do you want to delete the selected NVR?</source>
        <translation>Eliminare l’NVR selezionato?</translation>
    </message>
    <message id="484">
        <source>Sender name can't be empty!</source>
        <translation>Il nome del mittente non può essere vuoto.</translation>
    </message>
    <message id="485">
        <source>Mail Server can't be empty!</source>
        <translation>Il server di posta non può essere vuoto.</translation>
    </message>
    <message id="486">
        <source>User can't be empty!</source>
        <translation>Il nome utente non può essere vuoto.</translation>
    </message>
    <message id="487">
        <source>Password can't be empty!</source>
        <translation>La password non può essere vuota.</translation>
    </message>
    <message id="488">
        <source>Mail Address can't be empty!</source>
        <translation>L’indirizzo e-mail non può essere vuoto.</translation>
    </message>
    <message id="489">
        <source>Test mail sent success.</source>
        <translation>E-mail di prova inviata correttamente.</translation>
    </message>
    <message id="490">
        <source>Test mail sent failed.</source>
        <translation>Invio dell’e-mail di prova non riuscito.</translation>
    </message>
    <message id="491">
        <source>Server IP can't be empty!</source>
        <translation>L’IP del server non può essere vuoto.</translation>
    </message>
    <message id="492">
        <source>Server Port can't be empty!</source>
        <translation>La porta del server non può essere vuota.</translation>
    </message>
    <message id="493">
        <source>Root Path can't be empty!</source>
        <translation>Il percorso radice non può essere vuoto.</translation>
    </message>
    <message id="494">
        <source>Connecting to ftp server success.</source>
        <translation>Connessione al server FTP riuscita.</translation>
    </message>
    <message id="495">
        <source>Connecting to ftp server failed.</source>
        <translation>Connessione al server FTP non riuscita.</translation>
    </message>
    <message id="496">
        <source>Message can't be empty!</source>
        <translation>Il messaggio non può essere vuoto.</translation>
    </message>
    <message id="497">
        <source>Sound Description can't be empty!</source>
        <translation>La descrizione del suono non può essere vuota.</translation>
    </message>
    <message id="498">
        <source>Sound file Path can't be empty!</source>
        <translation>Il percorso del file audio non può essere vuoto.</translation>
    </message>
    <message id="499">
        <source>Preset number select first.</source>
        <translation>Selezionare prima il numero di preset.</translation>
    </message>
    <message id="500">
        <source>The Preset Name has been used.</source>
        <translation>Il nome del preset è già in uso.</translation>
    </message>
    <message id="501">
        <source>Do you want to delete the selected User?</source>
        <translation>Eliminare l’utente selezionato?</translation>
    </message>
    <message id="502">
        <source>Can't Delete User.</source>
        <translation>Impossibile eliminare l’utente.</translation>
    </message>
    <message id="503">
        <source>Already Set.</source>
        <translation>Già impostato.</translation>
    </message>
    <message id="504">
        <source>Intelligent setting can't exceed 16</source>
        <translation>L’analisi video non può superare 16 canali.</translation>
    </message>
    <message id="505">
        <source>Add NVR failed! Please add again.</source>
        <translation>Aggiunta dell’NVR non riuscita. Aggiungerlo di nuovo.</translation>
    </message>
    <message id="506">
        <source>File Size can't more than 5MB</source>
        <translation>Il file non può superare 5 MB.</translation>
    </message>
    <message id="507">
        <source>Save OK</source>
        <translation>Salvato.</translation>
    </message>
    <message id="508">
        <source>Exit and Open MainViewer?</source>
        <translation>Uscire e aprire il visualizzatore principale?</translation>
    </message>
    <message id="509">
        <source>Do you want to exit?</source>
        <translation>Uscire dal programma?</translation>
    </message>
    <message id="510">
        <source>Resolution Not Support .</source>
        <translation>Risoluzione non supportata.</translation>
    </message>
    <message id="511">
        <source>Do you want to Save?</source>
        <translation>Salvare?</translation>
    </message>
    <message id="512">
        <source>The Channel does not support motion detection or is no connection !</source>
        <translation>Il canale non supporta il rilevamento movimento o non è connesso.</translation>
    </message>
    <message id="513">
        <source>No setting !</source>
        <translation>Nessuna impostazione.</translation>
    </message>
    <message id="514">
        <source>Settings have changed , Do you want to save ?</source>
        <translation>Le impostazioni sono cambiate. Salvarle?</translation>
    </message>
    <message id="515">
        <source>Not yet set of Event Action config!</source>
        <translation>Azioni evento non ancora configurate.</translation>
    </message>
    <message id="516">
        <source>Video can't connection.</source>
        <translation>Connessione video non riuscita.</translation>
    </message>
    <message id="517">
        <source>Submit</source>
        <translation>Conferma</translation>
    </message>
    <message id="518">
        <source>Save Setting</source>
        <translation>Salva impostazioni</translation>
    </message>
    <message id="519">
        <source>Close this window</source>
        <translation>Chiudi questa finestra</translation>
    </message>
    <message id="520">
        <source>Preset Sequence</source>
        <translation>Sequenza preset</translation>
    </message>
    <message id="521">
        <source>Dwell Time:</source>
        <translation>Permanenza:</translation>
    </message>
    <message id="522">
        <source>PTZ Preset</source>
        <translation>Preset PTZ</translation>
    </message>
    <message id="523">
        <source>Preset Sequence</source>
        <translation>Sequenza preset</translation>
    </message>
    <message id="524">
        <source>Select a wave file</source>
        <translation>Selezionare un file WAV</translation>
    </message>
    <message id="525">
        <source>File Name: </source>
        <translation>Nome file: </translation>
    </message>
    <message id="526">
        <source>Message sent successfully!</source>
        <translation>Messaggio inviato correttamente.</translation>
    </message>
    <message id="527">
        <source>Sending Message fail!</source>
        <translation>Invio del messaggio non riuscito.</translation>
    </message>
    <message id="528">
        <source>MAX Video</source>
        <translation>Video ingrandito</translation>
    </message>
    <message id="529">
        <source>Enable/Disable auto switch group to display videos.</source>
        <translation>Attiva o disattiva il cambio automatico di gruppo per visualizzare i video.</translation>
    </message>
    <message id="530">
        <source>Enable/Disable maximum video to display.</source>
        <translation>Attiva o disattiva la visualizzazione ingrandita del video.</translation>
    </message>
    <message id="531">
        <source>Live Video</source>
        <translation>Video live</translation>
    </message>
    <message id="532">
        <source>Do you want to cancel playback for NVR?</source>
        <translation>Annullare la riproduzione dell’NVR?</translation>
    </message>
    <message id="533">
        <source>The selected time doesn't have any recording data!</source>
        <translation>Nessun dato di registrazione per l’ora selezionata.</translation>
    </message>
    <message id="534">
        <source>Select channel you want to change and reset the relational data information?</source>
        <translation>Cambiare il canale selezionato e reimpostare i dati correlati?</translation>
    </message>
    <message id="535">
        <source>This NVR cannot get group ID to playback!</source>
        <translation>Impossibile ottenere da questo NVR l’ID gruppo per la riproduzione.</translation>
    </message>
    <message id="536">
        <source>Select the SVD has been disconnected, so close the panel and make sure that SVD status!</source>
        <translation>L’SVD selezionato è stato disconnesso e il pannello verrà chiuso. Verificare lo stato dell’SVD.</translation>
    </message>
    <message id="550">
        <source>IP Address</source>
        <translation>Indirizzo IP</translation>
    </message>
    <message id="551">
        <source>Http Port</source>
        <translation>Porta HTTP</translation>
    </message>
    <message id="552">
        <source>Add</source>
        <translation>Aggiungi</translation>
    </message>
    <message id="553">
        <source>NVR Name can't be empty!</source>
        <translation>Il nome dell’NVR non può essere vuoto.</translation>
    </message>
    <message id="554">
        <source>IP address or hostname set incorrectly!</source>
        <translation>Indirizzo IP o nome host errato.</translation>
    </message>
    <message id="555">
        <source>NVR don't exist!</source>
        <translation>L’NVR non esiste.</translation>
    </message>
    <message id="556">
        <source>Port set incorrectly!</source>
        <translation>Porta errata.</translation>
    </message>
    <message id="557">
        <source>Add</source>
        <translation>Aggiungi</translation>
    </message>
    <message id="558">
        <source>NVR select setting</source>
        <translation>Selezione NVR</translation>
    </message>
    <message id="559">
        <source>Pattern select setting</source>
        <translation>Selezione viste</translation>
    </message>
    <message id="560">
        <source>All list</source>
        <translation>Elenco completo</translation>
    </message>
    <message id="561">
        <source>Selected list</source>
        <translation>Selezionati</translation>
    </message>
    <message id="562">
        <source>Select item is less than 2 items, it can not be saved!</source>
        <translation>Sono selezionati meno di 2 elementi. Impossibile salvare.</translation>
    </message>
    <message id="563">
        <source>Functions that were originally assigned on this screen will be moved to screen #1 automatically.</source>
        <translation>Le funzioni assegnate a questo schermo verranno spostate automaticamente sullo schermo n. 1.</translation>
    </message>
    <message id="564">
        <source>Has not enough pattern can be selected!</source>
        <translation>Le viste selezionabili non sono sufficienti.</translation>
    </message>
    <message id="565">
        <source>This screen has been assigned to Video Wall!</source>
        <translation>Questo schermo è assegnato al videowall.</translation>
    </message>
    <message id="566">
        <source>Has not enough device can be selected!</source>
        <translation>I dispositivi selezionabili non sono sufficienti.</translation>
    </message>
    <message id="570">
        <source>Information</source>
        <translation>Informazioni</translation>
    </message>
    <message id="571">
        <source>*Name</source>
        <translation>*Nome</translation>
    </message>
    <message id="572">
        <source>*IP Address</source>
        <translation>*Indirizzo IP</translation>
    </message>
    <message id="573">
        <source>*Http Port</source>
        <translation>*Porta HTTP</translation>
    </message>
    <message id="574">
        <source>*User</source>
        <translation>*Utente</translation>
    </message>
    <message id="575">
        <source>*Password</source>
        <translation>*Password</translation>
    </message>
    <message id="576">
        <source>Detect</source>
        <translation>Rileva</translation>
    </message>
    <message id="577">
        <source>Device Setting</source>
        <translation>Impostazioni dispositivo</translation>
    </message>
    <message id="578">
        <source>NO.</source>
        <translation>Num.</translation>
    </message>
    <message id="579">
        <source>Camera name</source>
        <translation>Nome telecamera</translation>
    </message>
    <message id="580">
        <source>Video Port</source>
        <translation>Porta video</translation>
    </message>
    <message id="581">
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message id="582">
        <source>Resolution</source>
        <translation>Risoluzione</translation>
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
        <translation>Modifica telecamera</translation>
    </message>
    <message id="586">
        <source>Camera No</source>
        <translation>N. telecamera</translation>
    </message>
    <message id="587">
        <source>Camera IP</source>
        <translation>IP telecamera</translation>
    </message>
    <message id="588">
        <source>Additional Camera Information</source>
        <translation>Ulteriori dati telecamera</translation>
    </message>
    <message id="589">
        <source>Min. Bitrate</source>
        <translation>Bit rate min.</translation>
    </message>
    <message id="590">
        <source>Max. Bitrate</source>
        <translation>Bit rate max.</translation>
    </message>
    <message id="591">
        <source>Apply</source>
        <translation>Applica</translation>
    </message>
    <message id="592">
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message id="593">
        <source>NVR IP can't be empty.</source>
        <translation>L’IP dell’NVR non può essere vuoto.</translation>
    </message>
    <message id="594">
        <source>NVR Http Port can't be empty.</source>
        <translation>La porta HTTP dell’NVR non può essere vuota.</translation>
    </message>
    <message id="595">
        <source>NVR User can't be empty.</source>
        <translation>Il nome utente dell’NVR non può essere vuoto.</translation>
    </message>
    <message id="596">
        <source>NVR Password can't be empty.</source>
        <translation>La password dell’NVR non può essere vuota.</translation>
    </message>
    <message id="597">
        <source>Request Time Zone ERR! Please Detect again.</source>
        <translation>Errore nella richiesta del fuso orario. Ripetere il rilevamento.</translation>
    </message>
    <message id="598">
        <source>Please Select Brand.</source>
        <translation>Selezionare la marca.</translation>
    </message>
    <message id="599">
        <source>IP Timeout.</source>
        <translation>IP senza risposta.</translation>
    </message>
    <message id="600">
        <source>Quality</source>
        <translation>Qualità</translation>
    </message>
    <message id="601">
        <source>Bitrate</source>
        <translation>Bit rate</translation>
    </message>
    <message id="602">
        <source>Bitrate Mode</source>
        <translation>Modalità bit rate</translation>
    </message>
    <message id="603">
        <source>CH name can't be empty!</source>
        <translation>Il nome del canale non può essere vuoto.</translation>
    </message>
    <message id="604">
        <source>IP address can't be empty!</source>
        <translation>L’indirizzo IP non può essere vuoto.</translation>
    </message>
    <message id="605">
        <source>Http Port can't be empty!</source>
        <translation>La porta HTTP non può essere vuota.</translation>
    </message>
    <message id="606">
        <source>User account can't be empty!</source>
        <translation>L’account utente non può essere vuoto.</translation>
    </message>
    <message id="607">
        <source>Password can't be empty!</source>
        <translation>La password non può essere vuota.</translation>
    </message>
    <message id="608">
        <source>Detection Error!</source>
        <translation>Errore di rilevamento.</translation>
    </message>
    <message id="609">
        <source>No Camera or connect failed !</source>
        <translation>Nessuna telecamera o connessione non riuscita.</translation>
    </message>
    <message id="610">
        <source>This firmware version of NVR is not supported , please update newer Version.</source>
        <translation>Questa versione firmware dell’NVR non è supportata. Aggiornarla a una più recente.</translation>
    </message>
    <message id="611">
        <source>If you press the button, data inside NVR will be changed!</source>
        <translation>Premendo il pulsante si modificano i dati dell’NVR.</translation>
    </message>
    <message id="612">
        <source>Camera Search</source>
        <translation>Ricerca telecamere</translation>
    </message>
    <message id="613">
        <source>Brand not Support!</source>
        <translation>Marca non supportata.</translation>
    </message>
    <message id="614">
        <source>FPS</source>
        <translation>FPS</translation>
    </message>
    <message id="615">
        <source>Video Format Error!</source>
        <translation>Errore nel formato video.</translation>
    </message>
    <message id="616">
        <source>Camera settings have changes, please re-detect.</source>
        <translation>Le impostazioni della telecamera sono cambiate. Ripetere il rilevamento.</translation>
    </message>
    <message id="617">
        <source>Add Camera Fail!</source>
        <translation>Aggiunta della telecamera non riuscita.</translation>
    </message>
    <message id="618">
        <source>DIS Setting</source>
        <translation>Impostazioni DIS</translation>
    </message>
    <message id="619">
        <source>Device not supported!</source>
        <translation>Dispositivo non supportato.</translation>
    </message>
    <message id="620">
        <source>This account is already set!</source>
        <translation>Questo account è già configurato.</translation>
    </message>
    <message id="621">
        <source>Do you want to continue edit preset point?</source>
        <translation>Continuare a modificare i punti preset?</translation>
    </message>
    <message id="630">
        <source>Group Name</source>
        <translation>Nome gruppo</translation>
    </message>
    <message id="631">
        <source>Power Level</source>
        <translation>Livello privilegi</translation>
    </message>
    <message id="632">
        <source>Function Permission</source>
        <translation>Privilegi funzioni</translation>
    </message>
    <message id="633">
        <source>Playback</source>
        <translation>Riproduzione</translation>
    </message>
    <message id="634">
        <source>PTZ Control</source>
        <translation>Controllo PTZ</translation>
    </message>
    <message id="635">
        <source>System Setup</source>
        <translation>Configurazione di sistema</translation>
    </message>
    <message id="636">
        <source>Group Setting</source>
        <translation>Impostazioni gruppo</translation>
    </message>
    <message id="640">
        <source>File Size can't more than 10MB</source>
        <translation>Il file non può superare 10 MB.</translation>
    </message>
    <message id="641">
        <source>EMap Setting</source>
        <translation>Impostazioni mappe</translation>
    </message>
    <message id="642">
        <source>*Double Click Windows to change Map images.</source>
        <translation>*Fare doppio clic sulla finestra per cambiare l’immagine della mappa.</translation>
    </message>
    <message id="643">
        <source>Select an image file</source>
        <translation>Selezionare un file immagine</translation>
    </message>
    <message id="645">
        <source>User Setting</source>
        <translation>Impostazioni utente</translation>
    </message>
    <message id="646">
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message id="647">
        <source>(Dubble Click to Setting)</source>
        <translation>(Doppio clic per configurare)</translation>
    </message>
    <message id="648">
        <source>Check</source>
        <translation>Verifica</translation>
    </message>
    <message id="649">
        <source>*User Name</source>
        <translation>*Nome utente</translation>
    </message>
    <message id="650">
        <source>*Password Confirm</source>
        <translation>*Conferma password</translation>
    </message>
    <message id="651">
        <source>*:Necessary</source>
        <translation>*: obbligatorio</translation>
    </message>
    <message id="652">
        <source>This name not yet use</source>
        <translation>Questo nome è libero.</translation>
    </message>
    <message id="653">
        <source>This name in use</source>
        <translation>Questo nome è in uso.</translation>
    </message>
    <message id="660">
        <source>User&amp;Password</source>
        <translation>Utente e password</translation>
    </message>
    <message id="661">
        <source>User or Password is not input!</source>
        <translation>Utente o password non inseriti.</translation>
    </message>
    <message id="671">
        <source>DIS Service Setting</source>
        <translation>Impostazioni servizio DIS</translation>
    </message>
    <message id="672">
        <source>Account List</source>
        <translation>Elenco account</translation>
    </message>
    <message id="673">
        <source>Do you want to remove this user?</source>
        <translation>Rimuovere questo utente?</translation>
    </message>
    <message id="674">
        <source>The account has reached the upper limit, for add new account you need to remove another account.</source>
        <translation>È stato raggiunto il limite di account. Per aggiungerne uno, rimuoverne prima un altro.</translation>
    </message>
    <message id="675">
        <source>Object Loss</source>
        <translation>Oggetto rimosso</translation>
    </message>
    <message id="676">
        <source>Tripwire</source>
        <translation>Superamento linea</translation>
    </message>
    <message id="677">
        <source>Threat</source>
        <translation>Manomissione</translation>
    </message>
    <message id="678">
        <source>Enable</source>
        <translation>Attiva</translation>
    </message>
    <message id="679">
        <source>Intelligent Setting</source>
        <translation>Impostazioni analisi video</translation>
    </message>
    <message id="680">
        <source>Intelligent detection List</source>
        <translation>Elenco rilevamento intelligente</translation>
    </message>
    <message id="681">
        <source>Object Loss Reset</source>
        <translation>Fine oggetto rimosso</translation>
    </message>
    <message id="682">
        <source>Threat Detection Reset</source>
        <translation>Fine rilevamento manomissione</translation>
    </message>
    <message id="683">
        <source>Image Enhance</source>
        <translation>Miglioramento immagine</translation>
    </message>
    <message id="684">
        <source>Port number can't accept more then 32767.</source>
        <translation>Il numero di porta non può essere superiore a 32767.</translation>
    </message>
    <message id="685">
        <source>Keep Ratio</source>
        <translation>Mantieni proporzioni</translation>
    </message>
    <message id="686">
        <source>Intelligent Detection</source>
        <translation>Rilevamento intelligente</translation>
    </message>
    <message id="687">
        <source>OSD Size</source>
        <translation>Dimensione OSD</translation>
    </message>
    <message id="688">
        <source>OSD Color</source>
        <translation>Colore OSD</translation>
    </message>
    <message id="689">
        <source>Small</source>
        <translation>Piccola</translation>
    </message>
    <message id="690">
        <source>Middle</source>
        <translation>Media</translation>
    </message>
    <message id="691">
        <source>Large</source>
        <translation>Grande</translation>
    </message>
    <message id="692">
        <source>FullScreen Initial</source>
        <translation>Schermo intero iniziale</translation>
    </message>
    <message id="693">
        <source>Startup Screen Layout</source>
        <translation>Schermi all’avvio</translation>
    </message>
    <message id="694">
        <source>Leave to save the screen layout.</source>
        <translation>La disposizione degli schermi viene salvata all’uscita.</translation>
    </message>
    <message id="695">
        <source>Function default start</source>
        <translation>Avvio predefinito</translation>
    </message>
    <message id="696">
        <source>Function assign</source>
        <translation>Assegna funzioni</translation>
    </message>
    <message id="697">
        <source>Pattern setting</source>
        <translation>Impostazioni viste</translation>
    </message>
    <message id="698">
        <source>Name can't be empty.</source>
        <translation>Il nome non può essere vuoto.</translation>
    </message>
    <message id="699">
        <source>Object Counting</source>
        <translation>Conteggio oggetti</translation>
    </message>
    <message id="700">
        <source>Foreign Object</source>
        <translation>Oggetto abbandonato</translation>
    </message>
    <message id="701">
        <source>Foreign Object Reset </source>
        <translation>Fine oggetto abbandonato </translation>
    </message>
    <message id="702">
        <source>Manual Recording</source>
        <translation>Registrazione manuale</translation>
    </message>
    <message id="703">
        <source>Device settings have changes, please re-detect.</source>
        <translation>Le impostazioni del dispositivo sono cambiate. Ripetere il rilevamento.</translation>
    </message>
    <message id="704">
        <source>English and Digit Only</source>
        <translation>Solo lettere A-Z e cifre</translation>
    </message>
    <message id="705">
        <source>Emap Group Assign</source>
        <translation>Gruppi di mappe</translation>
    </message>
    <message id="706">
        <source>Emap Group </source>
        <translation>Gruppo di mappe </translation>
    </message>
    <message id="707">
        <source>Member:</source>
        <translation>Membri:</translation>
    </message>
    <message id="708">
        <source>Emap Position Assign</source>
        <translation>Posizioni sulla mappa</translation>
    </message>
    <message id="709">
        <source>Parent</source>
        <translation>Superiore</translation>
    </message>
    <message id="710">
        <source>Group Type </source>
        <translation>Tipo di gruppo </translation>
    </message>
    <message id="711">
        <source>Auto Switch</source>
        <translation>Cambio automatico</translation>
    </message>
    <message id="712">
        <source>Double-click back to previous group</source>
        <translation>Doppio clic per tornare al gruppo precedente</translation>
    </message>
    <message id="713">
        <source>Drag and Drop to Move</source>
        <translation>Trascinare per spostare</translation>
    </message>
    <message id="714">
        <source>Do you want to delete the selected Emap Group?</source>
        <translation>Eliminare il gruppo di mappe selezionato?</translation>
    </message>
    <message id="715">
        <source>The amount of device will be over default value!</source>
        <translation>Verrà superato il numero massimo di dispositivi.</translation>
    </message>
    <message id="716">
        <source>The amount of total channels will be over default value!</source>
        <translation>Verrà superato il numero massimo di canali.</translation>
    </message>
    <message id="717">
        <source>Channel selection</source>
        <translation>Selezione canali</translation>
    </message>
    <message id="718">
        <source>Get device capability error!</source>
        <translation>Errore nella lettura delle funzionalità del dispositivo.</translation>
    </message>
    <message id="719">
        <source>This device does not has any channel.</source>
        <translation>Questo dispositivo non ha canali.</translation>
    </message>
    <message id="720">
        <source>Please add channels  or  re-select the other device.</source>
        <translation>Aggiungere canali o selezionare un altro dispositivo.</translation>
    </message>
    <message id="721">
        <source>This device does not has any channel,Do you want to remove the device?</source>
        <translation>Questo dispositivo non ha canali. Rimuoverlo?</translation>
    </message>
    <message id="722">
        <source>Setting fail!</source>
        <translation>Impostazione non riuscita.</translation>
    </message>
    <message id="723">
        <source>Do you want to stop SEQ mode?</source>
        <translation>Interrompere la modalità sequenza?</translation>
    </message>
    <message id="725">
        <source>Type </source>
        <translation>Tipo </translation>
    </message>
    <message id="726">
        <source>No change!</source>
        <translation>Nessuna modifica.</translation>
    </message>
    <message id="727">
        <source>Face Counting</source>
        <translation>Conteggio volti</translation>
    </message>
    <message id="728">
        <source>Unknown</source>
        <translation>Sconosciuto</translation>
    </message>
    <message id="729">
        <source>Event Export</source>
        <translation>Esportazione eventi</translation>
    </message>
    <message id="730">
        <source>System Log Export</source>
        <translation>Esportazione log di sistema</translation>
    </message>
    <message id="731">
        <source>System Log</source>
        <translation>Log di sistema</translation>
    </message>
    <message id="732">
        <source>NVR Select</source>
        <translation>Selezione NVR</translation>
    </message>
    <message id="733">
        <source>Condition</source>
        <translation>Condizione</translation>
    </message>
    <message id="734">
        <source>Time Range:</source>
        <translation>Intervallo:</translation>
    </message>
    <message id="735">
        <source>Start Time:</source>
        <translation>Ora di inizio:</translation>
    </message>
    <message id="736">
        <source>End Time:</source>
        <translation>Ora di fine:</translation>
    </message>
    <message id="737">
        <source>Event Type:</source>
        <translation>Tipo di evento:</translation>
    </message>
    <message id="738">
        <source>User:</source>
        <translation>Utente:</translation>
    </message>
    <message id="739">
        <source>Export Format:</source>
        <translation>Formato:</translation>
    </message>
    <message id="740">
        <source>Export</source>
        <translation>Esportazione</translation>
    </message>
    <message id="741">
        <source>You must select a path to export!</source>
        <translation>Selezionare un percorso di esportazione.</translation>
    </message>
    <message id="742">
        <source>Start Time must less than End time!</source>
        <translation>L’ora di inizio deve precedere l’ora di fine.</translation>
    </message>
    <message id="743">
        <source>No Event!</source>
        <translation>Nessun evento.</translation>
    </message>
    <message id="744">
        <source>No System Log!</source>
        <translation>Il log di sistema è vuoto.</translation>
    </message>
    <message id="745">
        <source>CSV Export finish!</source>
        <translation>Esportazione CSV completata.</translation>
    </message>
    <message id="746">
        <source>MDB Export finish!</source>
        <translation>Esportazione MDB completata.</translation>
    </message>
    <message id="747">
        <source>Custom</source>
        <translation>Personalizzato</translation>
    </message>
    <message id="748">
        <source>NVR Overview</source>
        <translation>Riepilogo NVR</translation>
    </message>
    <message id="749">
        <source>Video Wall Console</source>
        <translation>Console videowall</translation>
    </message>
    <message id="750">
        <source>Lock Screen </source>
        <translation>Blocca schermo </translation>
    </message>
    <message id="751">
        <source>Unlock Screen</source>
        <translation>Sblocca schermo</translation>
    </message>
    <message id="752">
        <source>Video Wall</source>
        <translation>Videowall</translation>
    </message>
    <message id="753">
        <source>Pattern List</source>
        <translation>Elenco viste</translation>
    </message>
    <message id="754">
        <source>SEQ List</source>
        <translation>Elenco sequenze</translation>
    </message>
    <message id="755">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="756">
        <source>SEQ content setting</source>
        <translation>Imposta sequenza</translation>
    </message>
    <message id="757">
        <source>Max Channel</source>
        <translation>N. max canali</translation>
    </message>
    <message id="758">
        <source>Video server</source>
        <translation>Server video</translation>
    </message>
    <message id="759">
        <source>Support</source>
        <translation>Supportato</translation>
    </message>
    <message id="760">
        <source>Original View</source>
        <translation>Vista originale</translation>
    </message>
    <message id="761">
        <source>Broad View</source>
        <translation>Vista panoramica</translation>
    </message>
    <message id="762">
        <source>Quad View</source>
        <translation>Vista quadrupla</translation>
    </message>
    <message id="763">
        <source>Quad and Source View</source>
        <translation>Vista quadrupla e originale</translation>
    </message>
    <message id="764">
        <source>Double View</source>
        <translation>Vista doppia</translation>
    </message>
    <message id="765">
        <source>Triple View</source>
        <translation>Vista tripla</translation>
    </message>
    <message id="766">
        <source>Digital PTZ</source>
        <translation>PTZ digitale</translation>
    </message>
    <message id="767">
        <source>Lens</source>
        <translation>Obiettivo</translation>
    </message>
    <message id="768">
        <source>It could not be opened, the insufficient number of available screens!</source>
        <translation>Impossibile aprire: gli schermi disponibili non sono sufficienti.</translation>
    </message>
    <message id="769">
        <source>It could not be opened, The Video Wall is not enabled! </source>
        <translation>Impossibile aprire: il videowall non è attivato. </translation>
    </message>
    <message id="770">
        <source>The quantity of screen is not enough! Not support!</source>
        <translation>Schermi non sufficienti. Non supportato.</translation>
    </message>
    <message id="772">
        <source>Settings have changed , Please re-open MainViewer!</source>
        <translation>Le impostazioni sono cambiate. Riaprire il visualizzatore principale.</translation>
    </message>
    <message id="773">
        <source>Preview</source>
        <translation>Anteprima</translation>
    </message>
    <message id="774">
        <source>Update system log with below defined condition</source>
        <translation>Aggiorna il log di sistema con le condizioni seguenti</translation>
    </message>
    <message id="775">
        <source>Transform recording index</source>
        <translation>Converti indice di registrazione</translation>
    </message>
    <message id="776">
        <source>Event Image Sync Setting</source>
        <translation>Sincr. immagini eventi</translation>
    </message>
    <message id="777">
        <source>Event snapshot storage space is not enough!</source>
        <translation>Spazio insufficiente per le istantanee degli eventi.</translation>
    </message>
    <message id="779">
        <source>Intelligent Mode</source>
        <translation>Modalità intelligente</translation>
    </message>
    <message id="780">
        <source>Add Intelligent Setting</source>
        <translation>Aggiungi impostazione analisi</translation>
    </message>
    <message id="781">
        <source>Camera Event</source>
        <translation>Evento telecamera</translation>
    </message>
    <message id="782">
        <source>ROI Setting</source>
        <translation>Impostazioni ROI</translation>
    </message>
    <message id="783">
        <source>Trigger Mode</source>
        <translation>Modalità di attivazione</translation>
    </message>
    <message id="784">
        <source>Channel Privilege</source>
        <translation>Privilegi canale</translation>
    </message>
    <message id="785">
        <source>Group Overview</source>
        <translation>Riepilogo gruppi</translation>
    </message>
    <message id="786">
        <source>User Overview</source>
        <translation>Riepilogo utenti</translation>
    </message>
    <message id="787">
        <source>Event Server</source>
        <translation>Server eventi</translation>
    </message>
    <message id="788">
        <source>Trigger By</source>
        <translation>Attivato da</translation>
    </message>
    <message id="789">
        <source>Configuration Modify</source>
        <translation>Modifica configurazione</translation>
    </message>
    <message id="790">
        <source>Intelligent Event Trigger</source>
        <translation>Attivazione da analisi video</translation>
    </message>
    <message id="791">
        <source>NVR Event Trigger</source>
        <translation>Attivazione da NVR</translation>
    </message>
    <message id="792">
        <source>Trigger Action</source>
        <translation>Azione associata</translation>
    </message>
    <message id="793">
        <source>Addresses: (Use ',' to separate e-mails)</source>
        <translation>Indirizzi: (usare «,» per separare gli indirizzi)</translation>
    </message>
    <message id="794">
        <source>Content</source>
        <translation>Contenuto</translation>
    </message>
    <message id="795">
        <source>Video Wall Layout</source>
        <translation>Disposizione videowall</translation>
    </message>
    <message id="796">
        <source>No Enough screen can be set!</source>
        <translation>Schermi da impostare non sufficienti.</translation>
    </message>
    <message id="797">
        <source>SVD Management</source>
        <translation>Gestione SVD</translation>
    </message>
    <message id="798">
        <source>SVD Detail Setting</source>
        <translation>Impostazioni dettagliate SVD</translation>
    </message>
    <message id="799">
        <source>SVD Layout</source>
        <translation>Disposizione SVD</translation>
    </message>
    <message id="800">
        <source>SVD ID:</source>
        <translation>ID SVD:</translation>
    </message>
    <message id="801">
        <source>SVD Name:</source>
        <translation>Nome SVD:</translation>
    </message>
    <message id="802">
        <source>Display</source>
        <translation>Schermo</translation>
    </message>
    <message id="803">
        <source>Resolution</source>
        <translation>Risoluzione</translation>
    </message>
    <message id="804">
        <source>Priority</source>
        <translation>Priorità</translation>
    </message>
    <message id="805">
        <source>Default Split</source>
        <translation>Divisione predefinita</translation>
    </message>
    <message id="806">
        <source>Default Channel List</source>
        <translation>Canali predefiniti</translation>
    </message>
    <message id="807">
        <source>Live Stream</source>
        <translation>Flusso live</translation>
    </message>
    <message id="808">
        <source>Dynamic Streaming</source>
        <translation>Flusso dinamico</translation>
    </message>
    <message id="809">
        <source>Screen Default Layout</source>
        <translation>Disposizione predefinita</translation>
    </message>
    <message id="810">
        <source>Channel list</source>
        <translation>Elenco canali</translation>
    </message>
    <message id="811">
        <source>Begin</source>
        <translation>Inizio</translation>
    </message>
    <message id="812">
        <source>Previous</source>
        <translation>Precedente</translation>
    </message>
    <message id="813">
        <source>System Log Viewer</source>
        <translation>Visualizzatore log</translation>
    </message>
    <message id="814">
        <source>Management </source>
        <translation>Gestione </translation>
    </message>
    <message id="815">
        <source>Viewer</source>
        <translation>Visualizzatore</translation>
    </message>
    <message id="816">
        <source>Add New SVD</source>
        <translation>Aggiungi SVD</translation>
    </message>
    <message id="817">
        <source>Primary</source>
        <translation>Primaria</translation>
    </message>
    <message id="818">
        <source>Secondary</source>
        <translation>Secondaria</translation>
    </message>
    <message id="819">
        <source>Available</source>
        <translation>Disponibile</translation>
    </message>
    <message id="820">
        <source>Not Available</source>
        <translation>Non disponibile</translation>
    </message>
    <message id="821">
        <source>Invalid E-mail Address!</source>
        <translation>Indirizzo e-mail non valido.</translation>
    </message>
    <message id="822">
        <source>Invalid Value!</source>
        <translation>Valore non valido.</translation>
    </message>
    <message id="823">
        <source>Can't add repeatedly!</source>
        <translation>Impossibile aggiungere più volte.</translation>
    </message>
    <message id="824">
        <source>Can't add SVD anymore!</source>
        <translation>Impossibile aggiungere altri SVD.</translation>
    </message>
    <message id="826">
        <source>Do you want to remove this SVD?</source>
        <translation>Rimuovere questo SVD?</translation>
    </message>
    <message id="827">
        <source>Disable this Video Wall?</source>
        <translation>Disattivare questo videowall?</translation>
    </message>
    <message id="828">
        <source>Export finish!</source>
        <translation>Esportazione completata.</translation>
    </message>
    <message id="829">
        <source>Brand:</source>
        <translation>Marca:</translation>
    </message>
    <message id="830">
        <source>Password Mask</source>
        <translation>Nascondi password</translation>
    </message>
    <message id="831">
        <source>NVR Account setting</source>
        <translation>Impostazioni account NVR</translation>
    </message>
    <message id="832">
        <source>No any NVR has been selected.</source>
        <translation>Nessun NVR selezionato.</translation>
    </message>
    <message id="833">
        <source>Detect successful!</source>
        <translation>Rilevamento riuscito.</translation>
    </message>
    <message id="834">
        <source>Failed configuring camera detection on channel:</source>
        <translation>Configurazione del rilevamento da telecamera non riuscita sui canali:</translation>
    </message>
    <message id="835">
        <source>Trigger action has done.</source>
        <translation>Azione associata eseguita.</translation>
    </message>
    <message id="836">
        <source>Event server has not set.</source>
        <translation>Il server eventi non è impostato.</translation>
    </message>
    <message id="837">
        <source>Privilege Setting</source>
        <translation>Impostazioni privilegi</translation>
    </message>
    <message id="838">
        <source>NVR Privilege Setting</source>
        <translation>Impostazioni privilegi NVR</translation>
    </message>
    <message id="839">
        <source>SVD Console</source>
        <translation>Console SVD</translation>
    </message>
    <message id="840">
        <source>SVD Search List</source>
        <translation>SVD trovati</translation>
    </message>
    <message id="841">
        <source>No Monitor connect!</source>
        <translation>Nessun monitor collegato.</translation>
    </message>
    <message id="842">
        <source>Do you want to remove this intelligent setting?</source>
        <translation>Rimuovere questa impostazione di analisi?</translation>
    </message>
    <message id="843">
        <source>Event snapshot doesn't work!</source>
        <translation>Le istantanee degli eventi non funzionano.</translation>
    </message>
    <message id="850">
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message id="851">
        <source>Intelligent</source>
        <translation>Analisi video</translation>
    </message>
    <message id="852">
        <source>User and group</source>
        <translation>Utenti e gruppi</translation>
    </message>
    <message id="853">
        <source>Event handling</source>
        <translation>Gestione eventi</translation>
    </message>
    <message id="854">
        <source>Event server</source>
        <translation>Server eventi</translation>
    </message>
    <message id="855">
        <source>E-Map</source>
        <translation>Mappe</translation>
    </message>
    <message id="856">
        <source>Screen layout</source>
        <translation>Schermi</translation>
    </message>
    <message id="857">
        <source>Startup</source>
        <translation>Avvio</translation>
    </message>
    <message id="858">
        <source>Tooling</source>
        <translation>Strumenti</translation>
    </message>
    <message id="859">
        <source>This page is not available in this version.</source>
        <translation>Questa pagina non è disponibile in questa versione.</translation>
    </message>
    <message id="860">
        <source>Its data in the database stays as it is.</source>
        <translation>I relativi dati nel database restano invariati.</translation>
    </message>
    <message id="861">
        <source>No recorder yet</source>
        <translation>Nessun registratore</translation>
    </message>
    <message id="862">
        <source>Enter the address of the station's first recorder to add it.</source>
        <translation>Digitare l’indirizzo del primo registratore della postazione per aggiungerlo.</translation>
    </message>
    <message id="863">
        <source>Filter name, address, model…</source>
        <translation>Filtra per nome, indirizzo, modello…</translation>
    </message>
    <message id="864">
        <source>Recorders of this station</source>
        <translation>Registratori di questa postazione</translation>
    </message>
    <message id="865">
        <source>Recorders: %1 of %2</source>
        <translation>Registratori: %1 di %2</translation>
    </message>
    <message id="866">
        <source>Channels: %1 of %2</source>
        <translation>Canali: %1 di %2</translation>
    </message>
    <message id="867">
        <source>No recorder matches the filter.</source>
        <translation>Nessun registratore corrisponde al filtro.</translation>
    </message>
    <message id="868">
        <source>Unsaved changes</source>
        <translation>Modifiche non salvate</translation>
    </message>
    <message id="870">
        <source>Switch to dark colours</source>
        <translation>Passa al tema scuro</translation>
    </message>
    <message id="871">
        <source>Switch to light colours</source>
        <translation>Passa al tema chiaro</translation>
    </message>
    <message id="872">
        <source>Waiting</source>
        <translation>In attesa</translation>
    </message>
    <message id="873">
        <source>Finish</source>
        <translation>Fine</translation>
    </message>
    <message id="874">
        <source>Done: %1 of %2</source>
        <translation>Completati: %1 di %2</translation>
    </message>
    <message id="875">
        <source>Choose</source>
        <translation>Scegli</translation>
    </message>
    <message id="876">
        <source>Edit</source>
        <translation>Modifica</translation>
    </message>
    <message id="877">
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message id="878">
        <source>Yes</source>
        <translation>Sì</translation>
    </message>
    <message id="879">
        <source>No</source>
        <translation>No</translation>
    </message>
    <message id="880">
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message id="881">
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message id="882">
        <source>Pages</source>
        <translation>Pagine</translation>
    </message>
    <message id="884">
        <source>Enter the address of one recorder.</source>
        <translation>Digitare l’indirizzo di un registratore.</translation>
    </message>
    <message id="885">
        <source>Leave both empty to try the known device accounts.</source>
        <translation>Lasciare vuoti entrambi i campi per provare gli account noti dei dispositivi.</translation>
    </message>
    <message id="886">
        <source>About this installation</source>
        <translation>Informazioni su questa installazione</translation>
    </message>
    <message id="887">
        <source>Show password</source>
        <translation>Mostra password</translation>
    </message>
    <message id="888">
        <source>Searching…</source>
        <translation>Ricerca…</translation>
    </message>
    <message id="890">
        <source>Name and behaviour of this station</source>
        <translation>Nome e comportamento di questa postazione</translation>
    </message>
    <message id="892">
        <source>Recorder slot</source>
        <translation>Posizione registratore</translation>
    </message>
    <message id="896">
        <source>Connected</source>
        <translation>Connesso</translation>
    </message>
    <message id="898">
        <source>Product:</source>
        <translation>Prodotto:</translation>
    </message>
    <message id="899">
        <source>Hide password</source>
        <translation>Nascondi password</translation>
    </message>
    <message id="900">
        <source>Anyone who opens Rigging Desk is its administrator, because there is no user yet.</source>
        <translation>Chiunque apra Rigging Desk ne è l’amministratore, perché non c’è ancora alcun utente.</translation>
    </message>
    <message id="901">
        <source>Create the first administrator</source>
        <translation>Crea il primo amministratore</translation>
    </message>
    <message id="902">
        <source>Not now</source>
        <translation>Non ora</translation>
    </message>
    <message id="903">
        <source>No user yet</source>
        <translation>Nessun utente</translation>
    </message>
    <message id="904">
        <source>Accessible cameras</source>
        <translation>Telecamere accessibili</translation>
    </message>
    <message id="905">
        <source>Who has access</source>
        <translation>Chi ha accesso</translation>
    </message>
    <message id="906">
        <source>Filter channels…</source>
        <translation>Filtra i canali…</translation>
    </message>
    <message id="907">
        <source>Whole recorder</source>
        <translation>Intero registratore</translation>
    </message>
    <message id="908">
        <source>Live</source>
        <translation>Live</translation>
    </message>
    <message id="909">
        <source>Live Monitor of all channels</source>
        <translation>Monitor live di tutti i canali</translation>
    </message>
    <message id="910">
        <source>Grant</source>
        <translation>Concedi</translation>
    </message>
    <message id="911">
        <source>Withdraw</source>
        <translation>Revoca</translation>
    </message>
    <message id="912">
        <source>The other rights need Live. Space switches the selected cells; Shift+Space selects a row, Ctrl+Space a column.</source>
        <translation>Gli altri privilegi richiedono «Live». Spazio cambia le celle selezionate; Maiusc+Spazio seleziona una riga, Ctrl+Spazio una colonna.</translation>
    </message>
    <message id="913">
        <source>Administrators have every right on every channel.</source>
        <translation>Gli amministratori hanno tutti i privilegi su tutti i canali.</translation>
    </message>
    <message id="930">
        <source>Filter the rows found…</source>
        <translation>Filtra le righe trovate…</translation>
    </message>
    <message id="931">
        <source>No row matches the filter.</source>
        <translation>Nessuna riga corrisponde al filtro.</translation>
    </message>
    <message id="932">
        <source>Rows found: %1</source>
        <translation>Righe trovate: %1</translation>
    </message>
    <message id="933">
        <source>The log could not be read</source>
        <translation>Impossibile leggere il log</translation>
    </message>
    <message id="934">
        <source>Copy rows</source>
        <translation>Copia righe</translation>
    </message>
    <message id="935">
        <source>Open folder</source>
        <translation>Apri cartella</translation>
    </message>
    <message id="936">
        <source>Event export is not part of this version.</source>
        <translation>L’esportazione degli eventi non fa parte di questa versione.</translation>
    </message>
    <message id="937">
        <source>Choose a period and search.</source>
        <translation>Scegliere un periodo e cercare.</translation>
    </message>
    <message id="938">
        <source>The export failed. Existing files were not changed.</source>
        <translation>Esportazione non riuscita. I file esistenti non sono stati modificati.</translation>
    </message>
    <message id="939">
        <source>First page</source>
        <translation>Prima pagina</translation>
    </message>
    <message id="940">
        <source>Previous page</source>
        <translation>Pagina precedente</translation>
    </message>
    <message id="941">
        <source>Next page</source>
        <translation>Pagina successiva</translation>
    </message>
    <message id="942">
        <source>Last page</source>
        <translation>Ultima pagina</translation>
    </message>
    <message id="943">
        <source>Refresh</source>
        <translation>Aggiorna</translation>
    </message>
    <message id="945">
        <source>Log in</source>
        <translation>Accesso</translation>
    </message>
    <message id="946">
        <source>The reason is in the log files.</source>
        <translation>Il motivo è indicato nei file di log.</translation>
    </message>
    <message id="950">
        <source>Find recorders on the network.</source>
        <translation>Cercare i registratori in rete.</translation>
    </message>
    <message id="951">
        <source>Stop</source>
        <translation>Arresta</translation>
    </message>
    <message id="952">
        <source>Select all</source>
        <translation>Seleziona tutto</translation>
    </message>
    <message id="953">
        <source>Filter the devices found</source>
        <translation>Filtra i dispositivi trovati</translation>
    </message>
    <message id="954">
        <source>No device has answered.</source>
        <translation>Nessun dispositivo ha risposto.</translation>
    </message>
    <message id="955">
        <source>Recorders with those selected: %1 of %2</source>
        <translation>Registratori, selezione inclusa: %1 di %2</translation>
    </message>
    <message id="956">
        <source>Connection</source>
        <translation>Connessione</translation>
    </message>
    <message id="957">
        <source>Checking…</source>
        <translation>Verifica in corso…</translation>
    </message>
    <message id="958">
        <source>Login refused</source>
        <translation>Accesso rifiutato</translation>
    </message>
    <message id="959">
        <source>No answer</source>
        <translation>Nessuna risposta</translation>
    </message>
    <message id="960">
        <source>Host name not found</source>
        <translation>Nome host non trovato</translation>
    </message>
    <message id="961">
        <source>Connection refused</source>
        <translation>Connessione rifiutata</translation>
    </message>
    <message id="962">
        <source>Unexpected answer</source>
        <translation>Risposta inattesa</translation>
    </message>
    <message id="963">
        <source>Stopped</source>
        <translation>Arrestato</translation>
    </message>
    <message id="965">
        <source>Notice</source>
        <translation>Avviso</translation>
    </message>
    <message id="966">
        <source>No camera</source>
        <translation>Nessuna telecamera</translation>
    </message>
    <message id="967">
        <source>Changed in the recorder</source>
        <translation>Modificato nel registratore</translation>
    </message>
    <message id="968">
        <source>Detected</source>
        <translation>Rilevato</translation>
    </message>
    <message id="969">
        <source>Unchanged</source>
        <translation>Invariato</translation>
    </message>
    <message id="970">
        <source>Remove the camera of channel %1 from the recorder?</source>
        <translation>Rimuovere dal registratore la telecamera del canale %1?</translation>
    </message>
    <message id="971">
        <source>Filter the cameras found</source>
        <translation>Filtra le telecamere trovate</translation>
    </message>
    <message id="972">
        <source>No camera was found.</source>
        <translation>Nessuna telecamera trovata.</translation>
    </message>
    <message id="973">
        <source>The recorder sees no camera on its network. Search again, or enter an address.</source>
        <translation>Il registratore non vede telecamere nella sua rete. Ripetere la ricerca o digitare un indirizzo.</translation>
    </message>
    <message id="974">
        <source>Cameras found: %1</source>
        <translation>Telecamere trovate: %1</translation>
    </message>
    <message id="975">
        <source>Asking the camera…</source>
        <translation>Interrogazione della telecamera…</translation>
    </message>
    <message id="976">
        <source>Writing to the recorder…</source>
        <translation>Scrittura nel registratore…</translation>
    </message>
    <message id="977">
        <source>Video source</source>
        <translation>Sorgente video</translation>
    </message>
    <message id="978">
        <source>Detect the camera to see its video settings.</source>
        <translation>Rilevare la telecamera per vederne le impostazioni video.</translation>
    </message>
    <message id="979">
        <source>Fish-eye view</source>
        <translation>Vista fish-eye</translation>
    </message>
    <message id="980">
        <source>The camera name must not contain a double quote (").</source>
        <translation>Il nome della telecamera non può contenere virgolette (").</translation>
    </message>
    <message id="981">
        <source>The configuration database cannot be opened: another program holds it, or it cannot be read. Nothing has been changed. Try again?</source>
        <translation>Impossibile aprire il database di configurazione: un altro programma lo occupa oppure non è leggibile. Non è stato modificato nulla. Riprovare?</translation>
    </message>
    <message id="982">
        <source>The users could not be read from the database, so nobody can log in. Close the program that holds the database and start again. The reason is in the log files.</source>
        <translation>Impossibile leggere gli utenti dal database: nessuno può accedere. Chiudere il programma che occupa il database e riavviare. Il motivo è indicato nei file di log.</translation>
    </message>
    <message id="983">
        <source>These tables of the database could not be read: %1. They stay as they are. The reason is in the log files.</source>
        <translation>Impossibile leggere queste tabelle del database: %1. Restano invariate. Il motivo è indicato nei file di log.</translation>
    </message>
    <message id="995">
        <source>Export</source>
        <translation>Esporta</translation>
    </message>
    <message id="1000">
        <source>Keys</source>
        <translation>Tasti</translation>
    </message>
    <message id="1001">
        <source>Show the keys</source>
        <translation>Mostra i tasti</translation>
    </message>
    <message id="1002">
        <source>Rename or edit the selected entry</source>
        <translation>Rinomina o modifica la voce selezionata</translation>
    </message>
    <message id="1003">
        <source>Read the page again</source>
        <translation>Rileggi la pagina</translation>
    </message>
    <message id="1004">
        <source>Filter the list</source>
        <translation>Filtra l’elenco</translation>
    </message>
    <message id="1005">
        <source>Go to a page</source>
        <translation>Vai a una pagina</translation>
    </message>
    <message id="1006">
        <source>Press the button or open the selected entry</source>
        <translation>Premi il pulsante o apri la voce selezionata</translation>
    </message>
    <message id="1007">
        <source>Remove the selected entry</source>
        <translation>Rimuovi la voce selezionata</translation>
    </message>
    <message id="1008">
        <source>Cancel or close</source>
        <translation>Annulla o chiudi</translation>
    </message>
    <message id="1030">
        <source>Added: %1 of %2</source>
        <translation>Aggiunti: %1 di %2</translation>
    </message>
    <message id="1031">
        <source>Added: %1 of %2, failed: %3</source>
        <translation>Aggiunti: %1 di %2, non riusciti: %3</translation>
    </message>
    <message id="1032">
        <source>Recorders that were not added can be tried again with another login.</source>
        <translation>Per i registratori non aggiunti si può riprovare con altre credenziali.</translation>
    </message>
    <message id="1033">
        <source>Try again</source>
        <translation>Riprova</translation>
    </message>
    <message id="1034">
        <source>Login</source>
        <translation>Accesso</translation>
    </message>
    <message id="1035">
        <source>Added but not saved yet: %1.
Do you want to save?</source>
        <translation>Aggiunti ma non ancora salvati: %1.
Salvarli?</translation>
    </message>
    <message id="1036">
        <source>No recorder has been added yet. Close and lose what you entered?</source>
        <translation>Nessun registratore è stato ancora aggiunto. Chiudere e perdere i dati immessi?</translation>
    </message>
    <message id="1037">
        <source>More than one recorder would have this name: %1.
Do you want to use it anyway?</source>
        <translation>Più di un registratore avrebbe questo nome: %1.
Usarlo comunque?</translation>
    </message>
    <message id="1080">
        <source>A stored password is not shown. Typing replaces it.</source>
        <translation>Una password salvata non viene mostrata. Digitandone un’altra la si sostituisce.</translation>
    </message>
    <message id="1081">
        <source>Choose a group</source>
        <translation>Scegli un gruppo</translation>
    </message>
    <message id="1082">
        <source>No account yet</source>
        <translation>Nessun account</translation>
    </message>
    <message id="1083">
        <source>These accounts are tried on recorders whose login is not known.</source>
        <translation>Questi account vengono provati sui registratori di cui non si conosce l’accesso.</translation>
    </message>
    <message id="1084">
        <source>Do you want to delete the selected account?</source>
        <translation>Eliminare l’account selezionato?</translation>
    </message>
    <message id="1085">
        <source>No camera is accessible</source>
        <translation>Nessuna telecamera accessibile</translation>
    </message>
    <message id="1086">
        <source>Access follows from the rights of the user’s group.</source>
        <translation>L’accesso dipende dai diritti del gruppo dell’utente.</translation>
    </message>
    <message id="1087">
        <source>Open the folder?</source>
        <translation>Aprire la cartella?</translation>
    </message>
    <message id="1088">
        <source>Filter users…</source>
        <translation>Filtra utenti…</translation>
    </message>
    <message id="1089">
        <source>No user matches the filter.</source>
        <translation>Nessun utente corrisponde al filtro.</translation>
    </message>
    <message id="1110">
        <source>Rename</source>
        <translation>Rinomina</translation>
    </message>
    <message id="1221">
        <source>Waiting for the picture…</source>
        <translation>In attesa dell’immagine…</translation>
    </message>
    <message id="1222">
        <source>No picture</source>
        <translation>Nessuna immagine</translation>
    </message>
    <message id="1223">
        <source>Trying again…</source>
        <translation>Nuovo tentativo…</translation>
    </message>
    <message id="1260">
        <source>Filter maps and cameras…</source>
        <translation>Filtra mappe e telecamere…</translation>
    </message>
    <message id="1261">
        <source>Cut</source>
        <translation>Taglia</translation>
    </message>
    <message id="1262">
        <source>Paste</source>
        <translation>Incolla</translation>
    </message>
    <message id="1263">
        <source>Move to…</source>
        <translation>Sposta in…</translation>
    </message>
    <message id="1264">
        <source>A recorder's map goes under the main map or into a group.</source>
        <translation>La mappa di un registratore va sotto la mappa principale o in un gruppo.</translation>
    </message>
    <message id="1265">
        <source>A camera goes on the map of its own recorder or one of its sub-maps; on the main map it is taken off all maps.</source>
        <translation>Una telecamera va sulla mappa del suo registratore o su una sua sottomappa; sulla mappa principale non sta su nessuna.</translation>
    </message>
    <message id="1266">
        <source>It is there already.</source>
        <translation>È già lì.</translation>
    </message>
    <message id="1267">
        <source>Only recorders' maps and cameras can be moved.</source>
        <translation>Si possono spostare solo le mappe dei registratori e le telecamere.</translation>
    </message>
    <message id="1268">
        <source>Move</source>
        <translation>Sposta</translation>
    </message>
    <message id="1269">
        <source>Show the map's picture</source>
        <translation>Mostra l’immagine della mappa</translation>
    </message>
    <message id="1270">
        <source>No map or camera matches the filter.</source>
        <translation>Nessuna mappa o telecamera corrisponde al filtro.</translation>
    </message>
    <message id="1271">
        <source>Enter a name to add a group.</source>
        <translation>Inserire un nome per aggiungere un gruppo.</translation>
    </message>
    <message id="1272">
        <source>Enter a name to add a sub-map. The map has the name of its recorder.</source>
        <translation>Inserire un nome per aggiungere una sottomappa. La mappa ha il nome del registratore.</translation>
    </message>
    <message id="1273">
        <source>Drag recorders' maps into the group.</source>
        <translation>Trascinare nel gruppo le mappe dei registratori.</translation>
    </message>
    <message id="1274">
        <source>Drag the camera to the map of its recorder.</source>
        <translation>Trascinare la telecamera sulla mappa del suo registratore.</translation>
    </message>
    <message id="1275">
        <source>Drag cameras of its recorder to the sub-map.</source>
        <translation>Trascinare sulla sottomappa le telecamere del suo registratore.</translation>
    </message>
</context>
</TS>
