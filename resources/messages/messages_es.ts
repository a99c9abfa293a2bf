<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name></name>
    <message id="0">
        <source>English</source>
        <translation>Inglés</translation>
    </message>
    <message id="1">
        <source>Traditional Chinese</source>
        <translation>Chino tradicional</translation>
    </message>
    <message id="2">
        <source>Simplified Chinese</source>
        <translation>Chino simplificado</translation>
    </message>
    <message id="3">
        <source>Japanese</source>
        <translation>Japonés</translation>
    </message>
    <message id="4">
        <source>Spainish</source>
        <translation>Español</translation>
    </message>
    <message id="5">
        <source>CGI ID is full !</source>
        <translation>No quedan identificadores CGI libres.</translation>
    </message>
    <message id="6">
        <source>User Name or Password Error !</source>
        <translation>Nombre de usuario o contraseña incorrectos.</translation>
    </message>
    <message id="7">
        <source>Device Connection Error !</source>
        <translation>Error de conexión con el dispositivo.</translation>
    </message>
    <message id="8">
        <source>Device brand not supported !</source>
        <translation>Marca de dispositivo no compatible.</translation>
    </message>
    <message id="9">
        <source>Sending CGI failed !</source>
        <translation>Error al enviar el comando CGI.</translation>
    </message>
    <message id="10">
        <source>Program has been opened !</source>
        <translation>El programa ya está abierto.</translation>
    </message>
    <message id="11">
        <source>Application of Setup has been Opening . Please turn it off !</source>
        <translation>El programa de configuración está abierto. Ciérrelo.</translation>
    </message>
    <message id="12">
        <source>Database initialization ...</source>
        <translation>Inicializando la base de datos…</translation>
    </message>
    <message id="13">
        <source>Default Data to read ...</source>
        <translation>Leyendo los datos predeterminados…</translation>
    </message>
    <message id="14">
        <source>Incorrect database version ! Do you want to reset the databse now ?</source>
        <translation>Versión de base de datos incorrecta. ¿Desea restablecer la base de datos ahora?</translation>
    </message>
    <message id="15">
        <source>System will not be able to continue to work .</source>
        <translation>El sistema no puede seguir funcionando.</translation>
    </message>
    <message id="16">
        <source>Update Database ...</source>
        <translation>Actualizando la base de datos…</translation>
    </message>
    <message id="17">
        <source>Data is loading ...</source>
        <translation>Cargando datos…</translation>
    </message>
    <message id="18">
        <source>Motion Detection setting is loading...</source>
        <translation>Cargando los ajustes de detección de movimiento…</translation>
    </message>
    <message id="19">
        <source>User Data is loading...</source>
        <translation>Cargando los datos de usuarios…</translation>
    </message>
    <message id="20">
        <source>Group Data  is loading...</source>
        <translation>Cargando los datos de grupos…</translation>
    </message>
    <message id="21">
        <source>Event setting is loading...</source>
        <translation>Cargando los ajustes de eventos…</translation>
    </message>
    <message id="22">
        <source>E-Map Data is loading ...</source>
        <translation>Cargando los datos de mapas…</translation>
    </message>
    <message id="23">
        <source>Multi-Screen set up is loading ...</source>
        <translation>Cargando la configuración multipantalla…</translation>
    </message>
    <message id="24">
        <source>System component registering  ...</source>
        <translation>Registrando los componentes del sistema…</translation>
    </message>
    <message id="25">
        <source>Login Identification ...</source>
        <translation>Comprobando el inicio de sesión…</translation>
    </message>
    <message id="26">
        <source>Open Login Frame ...</source>
        <translation>Abriendo el inicio de sesión…</translation>
    </message>
    <message id="27">
        <source>Loading User's Pattern …</source>
        <translation>Cargando las vistas del usuario…</translation>
    </message>
    <message id="28">
        <source>Start Service Mode...</source>
        <translation>Iniciando el modo de servicio…</translation>
    </message>
    <message id="29">
        <source>Start Monitor Window ...</source>
        <translation>Abriendo la ventana de monitor…</translation>
    </message>
    <message id="30">
        <source>Start Auto Search …</source>
        <translation>Iniciando la búsqueda automática…</translation>
    </message>
    <message id="32">
        <source>Manual Startup</source>
        <translation>Inicio manual</translation>
    </message>
    <message id="33">
        <source>Device detect timeout !</source>
        <translation>Tiempo de detección del dispositivo agotado.</translation>
    </message>
    <message id="34">
        <source>The channel of SVR has been removed. Please re-detect the SVR!</source>
        <translation>Se ha eliminado el canal del SVR. Vuelva a detectar el SVR.</translation>
    </message>
    <message id="35">
        <source>Please enable SVR upnp port forwarding!</source>
        <translation>Active el reenvío de puertos UPnP del SVR.</translation>
    </message>
    <message id="36">
        <source>Video Wall Setting</source>
        <translation>Ajustes de videowall</translation>
    </message>
    <message id="37">
        <source>Video Wall display position setting</source>
        <translation>Ajustes de posición en el videowall</translation>
    </message>
    <message id="38">
        <source>Monitor</source>
        <translation>Monitor</translation>
    </message>
    <message id="39">
        <source>Startup assign setting</source>
        <translation>Asignación de inicio</translation>
    </message>
    <message id="40">
        <source>User</source>
        <translation>Usuario</translation>
    </message>
    <message id="41">
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message id="42">
        <source>User Field is Blank !</source>
        <translation>El campo de usuario está vacío.</translation>
    </message>
    <message id="43">
        <source>Password Field is Blank !</source>
        <translation>El campo de contraseña está vacío.</translation>
    </message>
    <message id="44">
        <source>Incorrect User Account or Password !</source>
        <translation>Cuenta de usuario o contraseña incorrectas.</translation>
    </message>
    <message id="45">
        <source>Main Viewer</source>
        <translation>Visor principal</translation>
    </message>
    <message id="46">
        <source>NVR Setting</source>
        <translation>Ajustes de NVR</translation>
    </message>
    <message id="47">
        <source>Event-Triggered Notification</source>
        <translation>Notificación por evento</translation>
    </message>
    <message id="48">
        <source>Auto Search Notice</source>
        <translation>Aviso de búsqueda automática</translation>
    </message>
    <message id="49">
        <source>Event Synchronization Manually Update</source>
        <translation>Sincronización manual de eventos</translation>
    </message>
    <message id="50">
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message id="51">
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message id="52">
        <source>Split</source>
        <translation>División</translation>
    </message>
    <message id="53">
        <source>Change Channel</source>
        <translation>Cambiar canal</translation>
    </message>
    <message id="54">
        <source>OSD Display</source>
        <translation>Mostrar OSD</translation>
    </message>
    <message id="55">
        <source>CH</source>
        <translation>Canal</translation>
    </message>
    <message id="56">
        <source>Path</source>
        <translation>Ruta</translation>
    </message>
    <message id="57">
        <source>OSD Channel</source>
        <translation>Canal en OSD</translation>
    </message>
    <message id="58">
        <source>OSD Time</source>
        <translation>Hora en OSD</translation>
    </message>
    <message id="59">
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message id="60">
        <source>Camera Event Server Setting Error!</source>
        <translation>Error en los ajustes del servidor de eventos de la cámara.</translation>
    </message>
    <message id="61">
        <source>Snapshot Error!</source>
        <translation>Error de captura.</translation>
    </message>
    <message id="62">
        <source>Event Notification is still ongoing.</source>
        <translation>Todavía se están enviando notificaciones de eventos.</translation>
    </message>
    <message id="63">
        <source>Do you want to exit and open rigging desk?</source>
        <translation>¿Desea salir y abrir Rigging Desk?</translation>
    </message>
    <message id="64">
        <source>Auto-Search Notice</source>
        <translation>Aviso de búsqueda automática</translation>
    </message>
    <message id="65">
        <source>Closing...</source>
        <translation>Cerrando…</translation>
    </message>
    <message id="66">
        <source>Devcie is Found!</source>
        <translation>Dispositivo encontrado.</translation>
    </message>
    <message id="67">
        <source>Fix display mode</source>
        <translation>Visualización fija</translation>
    </message>
    <message id="68">
        <source>Video Wall default startup setting</source>
        <translation>Inicio predeterminado del videowall</translation>
    </message>
    <message id="69">
        <source>Intelligent Overview</source>
        <translation>Resumen de analítica</translation>
    </message>
    <message id="70">
        <source>Do You Want to Save Snapshot Images ?</source>
        <translation>¿Desea guardar las imágenes capturadas?</translation>
    </message>
    <message id="71">
        <source>User Name or Password error !</source>
        <translation>Nombre de usuario o contraseña incorrectos.</translation>
    </message>
    <message id="72">
        <source>Brand not supported!</source>
        <translation>Marca no compatible.</translation>
    </message>
    <message id="73">
        <source>Camera not supported!</source>
        <translation>Cámara no compatible.</translation>
    </message>
    <message id="74">
        <source>Device connection error!</source>
        <translation>Error de conexión con el dispositivo.</translation>
    </message>
    <message id="75">
        <source>Device detection timeout!</source>
        <translation>Tiempo de detección del dispositivo agotado.</translation>
    </message>
    <message id="76">
        <source>Unable to connect to the server!</source>
        <translation>No se puede conectar con el servidor.</translation>
    </message>
    <message id="77">
        <source>Service has not connect yet!</source>
        <translation>El servicio aún no se ha conectado.</translation>
    </message>
    <message id="78">
        <source>This series of device does not allow repeat add!</source>
        <translation>Esta serie de dispositivos no se puede añadir más de una vez.</translation>
    </message>
    <message id="79">
        <source>SEQ by Channel</source>
        <translation>Secuencia por canal</translation>
    </message>
    <message id="80">
        <source>SEQ by NVR</source>
        <translation>Secuencia por NVR</translation>
    </message>
    <message id="81">
        <source>SEQ by Pattern</source>
        <translation>Secuencia por vista</translation>
    </message>
    <message id="82">
        <source>NVR List</source>
        <translation>Lista de NVR</translation>
    </message>
    <message id="83">
        <source>Dwell time</source>
        <translation>Permanencia</translation>
    </message>
    <message id="84">
        <source>SEQ function is starting, do you want to continue to start SEQ content setting, which will stop SEQ function?</source>
        <translation>La secuencia está en marcha. ¿Desea detenerla y configurar su contenido?</translation>
    </message>
    <message id="85">
        <source>Channel SEQ not available! Please select more than one channel when using this function.</source>
        <translation>La secuencia por canal no está disponible. Seleccione más de un canal para usar esta función.</translation>
    </message>
    <message id="86">
        <source>NVR SEQ not available! Please select more than one NVR when using this function.</source>
        <translation>La secuencia por NVR no está disponible. Seleccione más de un NVR para usar esta función.</translation>
    </message>
    <message id="87">
        <source>Pattern SEQ not available! Please select more than one patterns when using this function.</source>
        <translation>La secuencia por vista no está disponible. Seleccione más de una vista para usar esta función.</translation>
    </message>
    <message id="88">
        <source>Do you want to enable SEQ by Channel?</source>
        <translation>¿Desea activar la secuencia por canal?</translation>
    </message>
    <message id="89">
        <source>Do you want to enable SEQ by NVR?</source>
        <translation>¿Desea activar la secuencia por NVR?</translation>
    </message>
    <message id="90">
        <source>Do you want to enable SEQ by Pattern?</source>
        <translation>¿Desea activar la secuencia por vista?</translation>
    </message>
    <message id="91">
        <source>Camera event setting can't exceed 32!</source>
        <translation>Los eventos de cámara no pueden ser más de 32.</translation>
    </message>
    <message id="92">
        <source>Please add a NVR first!</source>
        <translation>Añada primero un NVR.</translation>
    </message>
    <message id="93">
        <source>Port number can't accept 0 or more than 65536.</source>
        <translation>El número de puerto no puede ser 0 ni mayor que 65536.</translation>
    </message>
    <message id="94">
        <source>Drive</source>
        <translation>Unidad</translation>
    </message>
    <message id="95">
        <source>Size(GB)</source>
        <translation>Tamaño (GB)</translation>
    </message>
    <message id="96">
        <source>Free(GB)</source>
        <translation>Libre (GB)</translation>
    </message>
    <message id="97">
        <source>Usage(%)</source>
        <translation>Uso (%)</translation>
    </message>
    <message id="98">
        <source>Storage Path</source>
        <translation>Ruta de almacenamiento</translation>
    </message>
    <message id="99">
        <source>Select a Path</source>
        <translation>Seleccione una ruta</translation>
    </message>
    <message id="100">
        <source>Live Monitor</source>
        <translation>Monitor en directo</translation>
    </message>
    <message id="101">
        <source>Event Monitor</source>
        <translation>Monitor de eventos</translation>
    </message>
    <message id="102">
        <source>Playback</source>
        <translation>Reproducción</translation>
    </message>
    <message id="103">
        <source>E-MAP Monitor</source>
        <translation>Monitor de mapas</translation>
    </message>
    <message id="104">
        <source>User Pattern</source>
        <translation>Vista de usuario</translation>
    </message>
    <message id="105">
        <source>Split</source>
        <translation>División</translation>
    </message>
    <message id="106">
        <source>Pattern Name</source>
        <translation>Nombre de vista</translation>
    </message>
    <message id="107">
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message id="108">
        <source>Channel Status</source>
        <translation>Estado del canal</translation>
    </message>
    <message id="109">
        <source>Network Disconnection</source>
        <translation>Desconexión de red</translation>
    </message>
    <message id="110">
        <source>Network connection</source>
        <translation>Conexión de red</translation>
    </message>
    <message id="111">
        <source>Recording</source>
        <translation>Grabación</translation>
    </message>
    <message id="112">
        <source>Event Trigger</source>
        <translation>Evento activado</translation>
    </message>
    <message id="113">
        <source>Connecting</source>
        <translation>Conectando</translation>
    </message>
    <message id="114">
        <source>Video Loss</source>
        <translation>Pérdida de vídeo</translation>
    </message>
    <message id="115">
        <source>SEQ Mode</source>
        <translation>Modo secuencia</translation>
    </message>
    <message id="116">
        <source>(Sec)</source>
        <translation>(s)</translation>
    </message>
    <message id="117">
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
    <message id="118">
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message id="119">
        <source>SEQ contents</source>
        <translation>Contenido de secuencia</translation>
    </message>
    <message id="120">
        <source>SEQ ALL</source>
        <translation>Todos en secuencia</translation>
    </message>
    <message id="121">
        <source>SEQ</source>
        <translation>Secuencia</translation>
    </message>
    <message id="122">
        <source>Pattern SEQ</source>
        <translation>Secuencia de vistas</translation>
    </message>
    <message id="123">
        <source>Service Mode</source>
        <translation>Modo de servicio</translation>
    </message>
    <message id="124">
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message id="125">
        <source>Version</source>
        <translation>Versión</translation>
    </message>
    <message id="126">
        <source>Event Info</source>
        <translation>Datos del evento</translation>
    </message>
    <message id="127">
        <source>Event</source>
        <translation>Evento</translation>
    </message>
    <message id="128">
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message id="129">
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message id="130">
        <source>System Info</source>
        <translation>Datos del sistema</translation>
    </message>
    <message id="131">
        <source>Info</source>
        <translation>Datos</translation>
    </message>
    <message id="132">
        <source>System Time:</source>
        <translation>Hora del sistema:</translation>
    </message>
    <message id="133">
        <source>Group Level:</source>
        <translation>Nivel de grupo:</translation>
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
        <translation>En modo secuencia no se puede usar la pantalla completa ni cambiar la división.</translation>
    </message>
    <message id="138">
        <source>Full screen is running. close it first!</source>
        <translation>La pantalla completa está activa. Ciérrela primero.</translation>
    </message>
    <message id="139">
        <source>Unauthorised</source>
        <translation>Sin autorización</translation>
    </message>
    <message id="140">
        <source>Select a channel first.</source>
        <translation>Seleccione primero un canal.</translation>
    </message>
    <message id="141">
        <source>Name Repeat!</source>
        <translation>El nombre ya existe.</translation>
    </message>
    <message id="142">
        <source>MENU</source>
        <translation>MENÚ</translation>
    </message>
    <message id="143">
        <source>TREE</source>
        <translation>ÁRBOL</translation>
    </message>
    <message id="144">
        <source>PATTERN</source>
        <translation>VISTA</translation>
    </message>
    <message id="145">
        <source>STATUS</source>
        <translation>ESTADO</translation>
    </message>
    <message id="146">
        <source>SEQ</source>
        <translation>SECUENCIA</translation>
    </message>
    <message id="147">
        <source>SYSTEM</source>
        <translation>SISTEMA</translation>
    </message>
    <message id="148">
        <source>CH:</source>
        <translation>Canal:</translation>
    </message>
    <message id="149">
        <source>Reconnection</source>
        <translation>Reconexión</translation>
    </message>
    <message id="150">
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message id="151">
        <source>Display Image of Motion Detection </source>
        <translation>Mostrar imagen de detección de movimiento </translation>
    </message>
    <message id="152">
        <source>Snapshot</source>
        <translation>Captura</translation>
    </message>
    <message id="153">
        <source>Preset Point Setting</source>
        <translation>Ajustes de presets</translation>
    </message>
    <message id="154">
        <source>When modify setting, the channel of pattern will be changed.</source>
        <translation>Al modificar los ajustes cambiarán los canales de las vistas.</translation>
    </message>
    <message id="155">
        <source>Snapshot fail !</source>
        <translation>No se pudo realizar la captura.</translation>
    </message>
    <message id="156">
        <source>Preset Patrol:</source>
        <translation>Ronda de presets:</translation>
    </message>
    <message id="157">
        <source>Loading Fullscreen layout data…</source>
        <translation>Cargando la disposición de pantalla completa…</translation>
    </message>
    <message id="158">
        <source>Dock</source>
        <translation>Acoplar</translation>
    </message>
    <message id="159">
        <source>Control Panel</source>
        <translation>Panel de control</translation>
    </message>
    <message id="160">
        <source>Name:</source>
        <translation>Nombre:</translation>
    </message>
    <message id="161">
        <source>Channel:</source>
        <translation>Canal:</translation>
    </message>
    <message id="162">
        <source>CH Name:</source>
        <translation>Nombre canal:</translation>
    </message>
    <message id="163">
        <source>Event Mode:</source>
        <translation>Tipo de evento:</translation>
    </message>
    <message id="164">
        <source>Event Trigger Time:</source>
        <translation>Hora del evento:</translation>
    </message>
    <message id="165">
        <source>Contact:</source>
        <translation>Contacto:</translation>
    </message>
    <message id="166">
        <source>Phone:</source>
        <translation>Teléfono:</translation>
    </message>
    <message id="167">
        <source>Play Time(SYSTEM):</source>
        <translation>Hora reprod. (sistema):</translation>
    </message>
    <message id="168">
        <source>Current Event List</source>
        <translation>Eventos actuales</translation>
    </message>
    <message id="169">
        <source>Log Event List</source>
        <translation>Eventos registrados</translation>
    </message>
    <message id="170">
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message id="171">
        <source>Search All</source>
        <translation>Buscar todo</translation>
    </message>
    <message id="172">
        <source>Search Start Time</source>
        <translation>Buscar desde</translation>
    </message>
    <message id="173">
        <source>Search by Event type</source>
        <translation>Buscar por tipo de evento</translation>
    </message>
    <message id="174">
        <source>Item</source>
        <translation>Elemento</translation>
    </message>
    <message id="175">
        <source>Event ID</source>
        <translation>ID de evento</translation>
    </message>
    <message id="176">
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message id="177">
        <source>System Time</source>
        <translation>Hora del sistema</translation>
    </message>
    <message id="178">
        <source>NO.</source>
        <translation>Núm.</translation>
    </message>
    <message id="179">
        <source>CH</source>
        <translation>Canal</translation>
    </message>
    <message id="180">
        <source>Event Mode</source>
        <translation>Tipo de evento</translation>
    </message>
    <message id="181">
        <source>Process</source>
        <translation>Proceso</translation>
    </message>
    <message id="182">
        <source>On-Line</source>
        <translation>En línea</translation>
    </message>
    <message id="183">
        <source>Channel Name</source>
        <translation>Nombre del canal</translation>
    </message>
    <message id="184">
        <source>Channel Detail</source>
        <translation>Detalle del canal</translation>
    </message>
    <message id="185">
        <source>Play Error</source>
        <translation>Error de reproducción</translation>
    </message>
    <message id="186">
        <source>Play Stop</source>
        <translation>Reproducción detenida</translation>
    </message>
    <message id="187">
        <source>Live Video</source>
        <translation>Vídeo en directo</translation>
    </message>
    <message id="188">
        <source>Live Stop</source>
        <translation>Directo detenido</translation>
    </message>
    <message id="189">
        <source>Off Line</source>
        <translation>Sin conexión</translation>
    </message>
    <message id="190">
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message id="191">
        <source>Motion</source>
        <translation>Movimiento</translation>
    </message>
    <message id="192">
        <source>Sensor</source>
        <translation>Sensor</translation>
    </message>
    <message id="193">
        <source>Return message: </source>
        <translation>Mensaje recibido: </translation>
    </message>
    <message id="194">
        <source>NVR no playback resource!</source>
        <translation>El NVR no tiene recursos de reproducción libres.</translation>
    </message>
    <message id="195">
        <source>Playback request failed!</source>
        <translation>Error en la solicitud de reproducción.</translation>
    </message>
    <message id="196">
        <source>Reset Event List</source>
        <translation>Restablecer lista</translation>
    </message>
    <message id="197">
        <source>X</source>
        <translation>X</translation>
    </message>
    <message id="198">
        <source>Return</source>
        <translation>Volver</translation>
    </message>
    <message id="199">
        <source>SEQ Duration Time</source>
        <translation>Duración de secuencia</translation>
    </message>
    <message id="200">
        <source>Playback Info</source>
        <translation>Datos reproducción</translation>
    </message>
    <message id="201">
        <source>NVR:</source>
        <translation>NVR:</translation>
    </message>
    <message id="202">
        <source>CH:</source>
        <translation>Canal:</translation>
    </message>
    <message id="203">
        <source>Speed:</source>
        <translation>Velocidad:</translation>
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
        <translation>Mié</translation>
    </message>
    <message id="208">
        <source>Thu</source>
        <translation>Jue</translation>
    </message>
    <message id="209">
        <source>Fri</source>
        <translation>Vie</translation>
    </message>
    <message id="210">
        <source>Sat</source>
        <translation>Sáb</translation>
    </message>
    <message id="211">
        <source>Event List</source>
        <translation>Lista de eventos</translation>
    </message>
    <message id="212">
        <source>Receiving recording data failed</source>
        <translation>Error al recibir los datos de grabación.</translation>
    </message>
    <message id="213">
        <source>RF</source>
        <translation>RETROCESO</translation>
    </message>
    <message id="214">
        <source>STOP</source>
        <translation>DETENER</translation>
    </message>
    <message id="215">
        <source>PLAY</source>
        <translation>REPRODUCIR</translation>
    </message>
    <message id="216">
        <source>PAUSE</source>
        <translation>PAUSA</translation>
    </message>
    <message id="217">
        <source>FF</source>
        <translation>AVANCE</translation>
    </message>
    <message id="218">
        <source>NEXT</source>
        <translation>SIGUIENTE</translation>
    </message>
    <message id="219">
        <source>No recording data can be Displayed !</source>
        <translation>No hay datos de grabación que mostrar.</translation>
    </message>
    <message id="220">
        <source>Play Stop ! Need to select new time.</source>
        <translation>Reproducción detenida. Seleccione otra hora.</translation>
    </message>
    <message id="221">
        <source>No response! you can try again or select another device !</source>
        <translation>Sin respuesta. Vuelva a intentarlo o seleccione otro dispositivo.</translation>
    </message>
    <message id="222">
        <source>Disconnection ! </source>
        <translation>Conexión perdida. </translation>
    </message>
    <message id="223">
        <source>Can not get video stream ! please select other Channel.</source>
        <translation>No se puede obtener el flujo de vídeo. Seleccione otro canal.</translation>
    </message>
    <message id="224">
        <source>No recording data.</source>
        <translation>No hay datos de grabación.</translation>
    </message>
    <message id="225">
        <source>Recording data is updating, please wait .</source>
        <translation>Actualizando los datos de grabación. Espere.</translation>
    </message>
    <message id="226">
        <source>Convert to AVI</source>
        <translation>Convertir a AVI</translation>
    </message>
    <message id="227">
        <source>Do you want to stop the conversion of avi file ?</source>
        <translation>¿Desea detener la conversión del archivo AVI?</translation>
    </message>
    <message id="228">
        <source>AVI file conversion complete! File is... </source>
        <translation>Conversión a AVI finalizada. El archivo es… </translation>
    </message>
    <message id="229">
        <source>Converting AVI file!</source>
        <translation>Convirtiendo el archivo AVI.</translation>
    </message>
    <message id="230">
        <source>AVI Conversion Fail !</source>
        <translation>Error en la conversión a AVI.</translation>
    </message>
    <message id="231">
        <source>Auto Pan:</source>
        <translation>Barrido autom.:</translation>
    </message>
    <message id="232">
        <source>Single Video</source>
        <translation>Un vídeo</translation>
    </message>
    <message id="233">
        <source>Quad Videos</source>
        <translation>Cuatro vídeos</translation>
    </message>
    <message id="234">
        <source>Nine Videos</source>
        <translation>Nueve vídeos</translation>
    </message>
    <message id="235">
        <source>No any SVD has been set, you need to add any SVD to control!</source>
        <translation>No hay ningún SVD configurado. Añada un SVD para controlarlo.</translation>
    </message>
    <message id="236">
        <source>This channel has been set to display in this screen!</source>
        <translation>Este canal ya está asignado a esta pantalla.</translation>
    </message>
    <message id="237">
        <source>Are you sure to exit SVD console monitor?</source>
        <translation>¿Seguro que desea salir del monitor de la consola SVD?</translation>
    </message>
    <message id="238">
        <source>Click here to reconnect again!</source>
        <translation>Haga clic aquí para volver a conectar.</translation>
    </message>
    <message id="239">
        <source>SVD UI is changing…</source>
        <translation>Cambiando la interfaz del SVD…</translation>
    </message>
    <message id="240">
        <source>NO.:</source>
        <translation>Núm.:</translation>
    </message>
    <message id="241">
        <source>Name:</source>
        <translation>Nombre:</translation>
    </message>
    <message id="242">
        <source>Number of Camera:</source>
        <translation>Número de cámaras:</translation>
    </message>
    <message id="243">
        <source>Event:</source>
        <translation>Evento:</translation>
    </message>
    <message id="244">
        <source>No Event</source>
        <translation>Sin eventos</translation>
    </message>
    <message id="245">
        <source>CH:</source>
        <translation>Canal:</translation>
    </message>
    <message id="246">
        <source>Up</source>
        <translation>Arriba</translation>
    </message>
    <message id="247">
        <source>Down</source>
        <translation>Abajo</translation>
    </message>
    <message id="248">
        <source>Left</source>
        <translation>Izquierda</translation>
    </message>
    <message id="249">
        <source>Right</source>
        <translation>Derecha</translation>
    </message>
    <message id="250">
        <source>Upper left</source>
        <translation>Arriba izquierda</translation>
    </message>
    <message id="251">
        <source>Upper right</source>
        <translation>Arriba derecha</translation>
    </message>
    <message id="252">
        <source>Lower left</source>
        <translation>Abajo izquierda</translation>
    </message>
    <message id="253">
        <source>Lower right</source>
        <translation>Abajo derecha</translation>
    </message>
    <message id="254">
        <source>Home</source>
        <translation>Pos. inicial</translation>
    </message>
    <message id="255">
        <source>Zoom In</source>
        <translation>Acercar</translation>
    </message>
    <message id="256">
        <source>Zoom Out</source>
        <translation>Alejar</translation>
    </message>
    <message id="257">
        <source>Focus Far</source>
        <translation>Enfoque lejos</translation>
    </message>
    <message id="258">
        <source>Focus Near</source>
        <translation>Enfoque cerca</translation>
    </message>
    <message id="259">
        <source>Auto Focus</source>
        <translation>Autoenfoque</translation>
    </message>
    <message id="260">
        <source>IRIS Auto</source>
        <translation>Iris automático</translation>
    </message>
    <message id="261">
        <source>IRIS Close</source>
        <translation>Cerrar iris</translation>
    </message>
    <message id="262">
        <source>IRIS Open</source>
        <translation>Abrir iris</translation>
    </message>
    <message id="263">
        <source>Auto Pan Left</source>
        <translation>Barrido izquierda</translation>
    </message>
    <message id="264">
        <source>Auto Pan Right</source>
        <translation>Barrido derecha</translation>
    </message>
    <message id="265">
        <source>Auto Pan Stop</source>
        <translation>Detener barrido</translation>
    </message>
    <message id="266">
        <source>Moving Rate(+)</source>
        <translation>Velocidad (+)</translation>
    </message>
    <message id="267">
        <source>Moving Rate(-)</source>
        <translation>Velocidad (-)</translation>
    </message>
    <message id="268">
        <source>Display OSD on all channels</source>
        <translation>Mostrar OSD en todos los canales</translation>
    </message>
    <message id="269">
        <source>Display OSD</source>
        <translation>Mostrar OSD</translation>
    </message>
    <message id="270">
        <source>Detail Export:</source>
        <translation>Exportar detalle:</translation>
    </message>
    <message id="271">
        <source>Valid Ch</source>
        <translation>Can. válidos</translation>
    </message>
    <message id="272">
        <source>Auto Search</source>
        <translation>Búsqueda automática</translation>
    </message>
    <message id="273">
        <source>Manual Detection</source>
        <translation>Detección manual</translation>
    </message>
    <message id="274">
        <source>NVR ID:</source>
        <translation>ID de NVR:</translation>
    </message>
    <message id="275">
        <source>IP:</source>
        <translation>IP:</translation>
    </message>
    <message id="276">
        <source>HTTP Port:</source>
        <translation>Puerto HTTP:</translation>
    </message>
    <message id="277">
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
    <message id="278">
        <source>Device Name</source>
        <translation>Nombre disp.</translation>
    </message>
    <message id="279">
        <source>All</source>
        <translation>Todos</translation>
    </message>
    <message id="280">
        <source>CHs</source>
        <translation>Canales</translation>
    </message>
    <message id="281">
        <source>Model:</source>
        <translation>Modelo:</translation>
    </message>
    <message id="282">
        <source>Max Channel:</source>
        <translation>Máx. canales:</translation>
    </message>
    <message id="283">
        <source>NVR Name:</source>
        <translation>Nombre de NVR:</translation>
    </message>
    <message id="284">
        <source>Version:</source>
        <translation>Versión:</translation>
    </message>
    <message id="285">
        <source>Valid Channel:</source>
        <translation>Canales válidos:</translation>
    </message>
    <message id="286">
        <source>Sync With NVR</source>
        <translation>Sincronizar con NVR</translation>
    </message>
    <message id="287">
        <source>Add New NVR </source>
        <translation>Añadir NVR </translation>
    </message>
    <message id="288">
        <source>NVR Search List</source>
        <translation>NVR encontrados</translation>
    </message>
    <message id="289">
        <source>NVR Detect Status</source>
        <translation>Estado detección NVR</translation>
    </message>
    <message id="290">
        <source>NVR Detail Setting</source>
        <translation>Ajustes detallados de NVR</translation>
    </message>
    <message id="291">
        <source>NVR Channel Setting</source>
        <translation>Ajustes de canales de NVR</translation>
    </message>
    <message id="292">
        <source>Preset Sequence Setting</source>
        <translation>Ajustes de secuencia de presets</translation>
    </message>
    <message id="293">
        <source>Get Capability...</source>
        <translation>Obteniendo capacidades…</translation>
    </message>
    <message id="294">
        <source>Get Channel Info...</source>
        <translation>Obteniendo datos de canales…</translation>
    </message>
    <message id="295">
        <source>Get NVR Info...</source>
        <translation>Obteniendo datos del NVR…</translation>
    </message>
    <message id="296">
        <source>Initial NVR Value...</source>
        <translation>Inicializando valores del NVR…</translation>
    </message>
    <message id="297">
        <source>Add Success!</source>
        <translation>Añadido correctamente.</translation>
    </message>
    <message id="298">
        <source>Channel List</source>
        <translation>Lista de canales</translation>
    </message>
    <message id="299">
        <source>Split:</source>
        <translation>División:</translation>
    </message>
    <message id="300">
        <source>MainViewer opened. Close it First!</source>
        <translation>El visor principal está abierto. Ciérrelo primero.</translation>
    </message>
    <message id="301">
        <source>System &amp; Setting</source>
        <translation>Sistema y ajustes</translation>
    </message>
    <message id="302">
        <source>Setting</source>
        <translation>Ajustes</translation>
    </message>
    <message id="303">
        <source>Manual Setting</source>
        <translation>Ajuste manual</translation>
    </message>
    <message id="304">
        <source>PTZ Config</source>
        <translation>Ajustes PTZ</translation>
    </message>
    <message id="305">
        <source>Motion Setting</source>
        <translation>Ajustes de movimiento</translation>
    </message>
    <message id="306">
        <source>Motion Setting</source>
        <translation>Ajustes de movimiento</translation>
    </message>
    <message id="307">
        <source>General Setting Overview</source>
        <translation>Resumen de ajustes generales</translation>
    </message>
    <message id="308">
        <source>Group/User Config</source>
        <translation>Ajustes de grupos/usuarios</translation>
    </message>
    <message id="309">
        <source>Event Handling Config</source>
        <translation>Ajustes de gestión de eventos</translation>
    </message>
    <message id="310">
        <source>E-Map Config</source>
        <translation>Ajustes de mapas</translation>
    </message>
    <message id="311">
        <source>Screen Layout Config</source>
        <translation>Ajustes de pantallas</translation>
    </message>
    <message id="312">
        <source>Event Action Overview</source>
        <translation>Resumen de acciones de eventos</translation>
    </message>
    <message id="313">
        <source>Mail Config</source>
        <translation>Ajustes de correo</translation>
    </message>
    <message id="314">
        <source>FTP Config</source>
        <translation>Ajustes de FTP</translation>
    </message>
    <message id="315">
        <source>Message Config</source>
        <translation>Ajustes de mensajes</translation>
    </message>
    <message id="316">
        <source>Sound Config</source>
        <translation>Ajustes de sonido</translation>
    </message>
    <message id="317">
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message id="318">
        <source>Main Viewer</source>
        <translation>Visor principal</translation>
    </message>
    <message id="319">
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message id="320">
        <source>Setup</source>
        <translation>Configuración</translation>
    </message>
    <message id="321">
        <source>SEQ Control</source>
        <translation>Control de secuencia</translation>
    </message>
    <message id="322">
        <source>Pattern Name:</source>
        <translation>Nombre de vista:</translation>
    </message>
    <message id="323">
        <source>Do you continue to delete this pattern?</source>
        <translation>¿Desea eliminar esta vista?</translation>
    </message>
    <message id="324">
        <source>Pattern List Overview</source>
        <translation>Resumen de vistas</translation>
    </message>
    <message id="325">
        <source>Name or Channel list need to be set!</source>
        <translation>Debe indicar el nombre o la lista de canales.</translation>
    </message>
    <message id="326">
        <source>Live Monitor SEQ and full screen can not be opened at the same time.</source>
        <translation>La secuencia en directo y la pantalla completa no se pueden abrir a la vez.</translation>
    </message>
    <message id="327">
        <source>No channel is selected!</source>
        <translation>No hay ningún canal seleccionado.</translation>
    </message>
    <message id="328">
        <source>Select time is out of data range!</source>
        <translation>La hora seleccionada está fuera del intervalo de datos.</translation>
    </message>
    <message id="329">
        <source>NVR is invalid!</source>
        <translation>El NVR no es válido.</translation>
    </message>
    <message id="330">
        <source>System Setting</source>
        <translation>Ajustes del sistema</translation>
    </message>
    <message id="331">
        <source>Application name:</source>
        <translation>Nombre de la aplicación:</translation>
    </message>
    <message id="332">
        <source>Version:</source>
        <translation>Versión:</translation>
    </message>
    <message id="333">
        <source>Language:</source>
        <translation>Idioma:</translation>
    </message>
    <message id="334">
        <source>Start Up:</source>
        <translation>Inicio:</translation>
    </message>
    <message id="335">
        <source>Event Sync Time:</source>
        <translation>Sincr. de eventos:</translation>
    </message>
    <message id="336">
        <source>Snapshot Count:</source>
        <translation>Número de capturas:</translation>
    </message>
    <message id="337">
        <source>Camera Event Server Setting</source>
        <translation>Ajustes del servidor de eventos de la cámara</translation>
    </message>
    <message id="338">
        <source>Account:</source>
        <translation>Cuenta:</translation>
    </message>
    <message id="339">
        <source>Password:</source>
        <translation>Contraseña:</translation>
    </message>
    <message id="340">
        <source>Port:</source>
        <translation>Puerto:</translation>
    </message>
    <message id="341">
        <source>System Info</source>
        <translation>Datos del sistema</translation>
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
        <translation>Nombre del equipo:</translation>
    </message>
    <message id="347">
        <source>Total space of HD:</source>
        <translation>Espacio total en disco:</translation>
    </message>
    <message id="348">
        <source>Network Connect Status:</source>
        <translation>Estado de la conexión de red:</translation>
    </message>
    <message id="349">
        <source>System Time:</source>
        <translation>Hora del sistema:</translation>
    </message>
    <message id="350">
        <source>Screen Count:</source>
        <translation>Número de pantallas:</translation>
    </message>
    <message id="351">
        <source>CPU Performance:</source>
        <translation>Rendimiento de la CPU:</translation>
    </message>
    <message id="352">
        <source>Login Windows then Auto Start up </source>
        <translation>Iniciar al abrir la sesión de Windows </translation>
    </message>
    <message id="353">
        <source>Start in background</source>
        <translation>Iniciar en segundo plano</translation>
    </message>
    <message id="354">
        <source>Minute</source>
        <translation>Minutos</translation>
    </message>
    <message id="356">
        <source>NVR is connecting, wait a moment and start again!</source>
        <translation>El NVR se está conectando. Espere un momento e inténtelo de nuevo.</translation>
    </message>
    <message id="357">
        <source>NVR is offline, please choose another NVR or confirm this NVR connection status!</source>
        <translation>El NVR está desconectado. Elija otro NVR o compruebe el estado de conexión de este.</translation>
    </message>
    <message id="358">
        <source>Output device has been removed!</source>
        <translation>Se ha retirado el dispositivo de salida.</translation>
    </message>
    <message id="359">
        <source>Password confirm inconsistency, Please check again!</source>
        <translation>Las contraseñas no coinciden. Compruébelas.</translation>
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
        <translation>Nombre</translation>
    </message>
    <message id="363">
        <source>IP</source>
        <translation>IP</translation>
    </message>
    <message id="364">
        <source>Port</source>
        <translation>Puerto</translation>
    </message>
    <message id="365">
        <source>Power</source>
        <translation>Permisos</translation>
    </message>
    <message id="366">
        <source>CH</source>
        <translation>Canal</translation>
    </message>
    <message id="367">
        <source>CH Name</source>
        <translation>Nombre canal</translation>
    </message>
    <message id="368">
        <source>CH IP</source>
        <translation>IP canal</translation>
    </message>
    <message id="369">
        <source>CH Port</source>
        <translation>Puerto canal</translation>
    </message>
    <message id="370">
        <source>CH Brand</source>
        <translation>Marca canal</translation>
    </message>
    <message id="371">
        <source>Video Format</source>
        <translation>Formato de vídeo</translation>
    </message>
    <message id="372">
        <source>Video RES</source>
        <translation>Res. vídeo</translation>
    </message>
    <message id="373">
        <source>MD Enable</source>
        <translation>Mov. activo</translation>
    </message>
    <message id="374">
        <source>MD Sen</source>
        <translation>Sens. mov.</translation>
    </message>
    <message id="375">
        <source>CH PTZ</source>
        <translation>PTZ canal</translation>
    </message>
    <message id="376">
        <source>CH audio</source>
        <translation>Audio canal</translation>
    </message>
    <message id="377">
        <source>Detect List</source>
        <translation>Lista de detección</translation>
    </message>
    <message id="378">
        <source>Advance Control </source>
        <translation>Control avanzado </translation>
    </message>
    <message id="379">
        <source>IP</source>
        <translation>IP</translation>
    </message>
    <message id="380">
        <source>Port</source>
        <translation>Puerto</translation>
    </message>
    <message id="381">
        <source>Brand</source>
        <translation>Marca</translation>
    </message>
    <message id="382">
        <source>Model</source>
        <translation>Modelo</translation>
    </message>
    <message id="383">
        <source>MAC</source>
        <translation>MAC</translation>
    </message>
    <message id="384">
        <source>Detect Time</source>
        <translation>Hora de detección</translation>
    </message>
    <message id="385">
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message id="386">
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message id="387">
        <source>Modify</source>
        <translation>Modificar</translation>
    </message>
    <message id="388">
        <source>Reconection </source>
        <translation>Reconectar </translation>
    </message>
    <message id="389">
        <source>Open Browser</source>
        <translation>Abrir navegador</translation>
    </message>
    <message id="390">
        <source>Preset Info</source>
        <translation>Datos del preset</translation>
    </message>
    <message id="391">
        <source>Sync</source>
        <translation>Sincronizar</translation>
    </message>
    <message id="392">
        <source>Edit Preset</source>
        <translation>Editar preset</translation>
    </message>
    <message id="393">
        <source>Preset No</source>
        <translation>N.º de preset</translation>
    </message>
    <message id="394">
        <source>Preset Name</source>
        <translation>Nombre del preset</translation>
    </message>
    <message id="395">
        <source>PTZ Control</source>
        <translation>Control PTZ</translation>
    </message>
    <message id="396">
        <source>Submit</source>
        <translation>Confirmar</translation>
    </message>
    <message id="397">
        <source>Motion Detect List:</source>
        <translation>Detección de movimiento:</translation>
    </message>
    <message id="398">
        <source>Sensitivity:</source>
        <translation>Sensibilidad:</translation>
    </message>
    <message id="399">
        <source>Motion Detect Setting</source>
        <translation>Ajustes de detección de movimiento</translation>
    </message>
    <message id="400">
        <source>*Use Mouse drag the Device item into Intelligent detection List.</source>
        <translation>*Arrastre el dispositivo con el ratón a la lista de detección inteligente.</translation>
    </message>
    <message id="401">
        <source>Device List:</source>
        <translation>Dispositivos:</translation>
    </message>
    <message id="402">
        <source>Trigger for Motion Detect</source>
        <translation>Activación por movimiento</translation>
    </message>
    <message id="403">
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message id="404">
        <source>Motion Enable List:</source>
        <translation>Movimiento activado en:</translation>
    </message>
    <message id="405">
        <source>Clear All</source>
        <translation>Borrar todo</translation>
    </message>
    <message id="406">
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message id="407">
        <source>High</source>
        <translation>Alta</translation>
    </message>
    <message id="408">
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message id="409">
        <source>Low</source>
        <translation>Baja</translation>
    </message>
    <message id="410">
        <source>SET</source>
        <translation>FIJAR</translation>
    </message>
    <message id="411">
        <source>User List:</source>
        <translation>Usuarios:</translation>
    </message>
    <message id="412">
        <source>Group List:</source>
        <translation>Grupos:</translation>
    </message>
    <message id="413">
        <source>Event Setting List:</source>
        <translation>Ajustes de eventos:</translation>
    </message>
    <message id="414">
        <source>EMap List:</source>
        <translation>Mapas:</translation>
    </message>
    <message id="415">
        <source>Screen List:</source>
        <translation>Pantallas:</translation>
    </message>
    <message id="416">
        <source>Account</source>
        <translation>Cuenta</translation>
    </message>
    <message id="417">
        <source>Company</source>
        <translation>Empresa</translation>
    </message>
    <message id="418">
        <source>Telephone</source>
        <translation>Teléfono</translation>
    </message>
    <message id="419">
        <source>Mail 1</source>
        <translation>Correo 1</translation>
    </message>
    <message id="420">
        <source>Mail 2</source>
        <translation>Correo 2</translation>
    </message>
    <message id="421">
        <source>Cell Phone</source>
        <translation>Móvil</translation>
    </message>
    <message id="422">
        <source>Photo Path</source>
        <translation>Ruta de la foto</translation>
    </message>
    <message id="423">
        <source>Group</source>
        <translation>Grupo</translation>
    </message>
    <message id="424">
        <source>Event</source>
        <translation>Evento</translation>
    </message>
    <message id="425">
        <source>Mail</source>
        <translation>Correo</translation>
    </message>
    <message id="426">
        <source>FTP</source>
        <translation>FTP</translation>
    </message>
    <message id="427">
        <source>Msg</source>
        <translation>Mens.</translation>
    </message>
    <message id="428">
        <source>Sound</source>
        <translation>Sonido</translation>
    </message>
    <message id="429">
        <source>Video Power</source>
        <translation>Permisos vídeo</translation>
    </message>
    <message id="430">
        <source>Playback</source>
        <translation>Reproducción</translation>
    </message>
    <message id="431">
        <source>PTZ</source>
        <translation>PTZ</translation>
    </message>
    <message id="432">
        <source>Setup</source>
        <translation>Configuración</translation>
    </message>
    <message id="433">
        <source>Map</source>
        <translation>Mapa</translation>
    </message>
    <message id="434">
        <source>Path</source>
        <translation>Ruta</translation>
    </message>
    <message id="435">
        <source>Function</source>
        <translation>Función</translation>
    </message>
    <message id="436">
        <source>Screen</source>
        <translation>Pantalla</translation>
    </message>
    <message id="437">
        <source>MainMap</source>
        <translation>Mapa principal</translation>
    </message>
    <message id="438">
        <source>FullScreen</source>
        <translation>Pantalla completa</translation>
    </message>
    <message id="439">
        <source>FullScreen2</source>
        <translation>Pantalla completa 2</translation>
    </message>
    <message id="440">
        <source>User Detail List</source>
        <translation>Detalle de usuarios</translation>
    </message>
    <message id="441">
        <source>Group List</source>
        <translation>Lista de grupos</translation>
    </message>
    <message id="442">
        <source>Add User</source>
        <translation>Añadir usuario</translation>
    </message>
    <message id="443">
        <source>Remove User</source>
        <translation>Quitar usuario</translation>
    </message>
    <message id="444">
        <source>Modify User</source>
        <translation>Modificar usuario</translation>
    </message>
    <message id="445">
        <source>Modify Group</source>
        <translation>Modificar grupo</translation>
    </message>
    <message id="446">
        <source>System Event Trigger Action</source>
        <translation>Acción asociada a evento del sistema</translation>
    </message>
    <message id="447">
        <source>NVR Event Trigger Action</source>
        <translation>Acción asociada a evento de NVR</translation>
    </message>
    <message id="448">
        <source>System Start/Stop</source>
        <translation>Inicio/parada del sistema</translation>
    </message>
    <message id="449">
        <source>Modify Setting of System</source>
        <translation>Cambio de ajustes del sistema</translation>
    </message>
    <message id="450">
        <source>Modify Setting of NVR</source>
        <translation>Cambio de ajustes de NVR</translation>
    </message>
    <message id="451">
        <source>Modify Setting of Intelligent detection</source>
        <translation>Cambio de ajustes de detección inteligente</translation>
    </message>
    <message id="452">
        <source>Modify Setting of General</source>
        <translation>Cambio de ajustes generales</translation>
    </message>
    <message id="453">
        <source>Modify Setting of Event</source>
        <translation>Cambio de ajustes de eventos</translation>
    </message>
    <message id="454">
        <source>E1:Motion Detect</source>
        <translation>E1: detección de movimiento</translation>
    </message>
    <message id="455">
        <source>Sensor Detection</source>
        <translation>Detección de sensor</translation>
    </message>
    <message id="456">
        <source>*Double Click Map to Setting</source>
        <translation>*Haga doble clic en el mapa para configurarlo</translation>
    </message>
    <message id="457">
        <source>SubMap</source>
        <translation>Submapa</translation>
    </message>
    <message id="458">
        <source>Screen Layout</source>
        <translation>Disposición de pantallas</translation>
    </message>
    <message id="459">
        <source>Mail</source>
        <translation>Correo</translation>
    </message>
    <message id="460">
        <source>FTP</source>
        <translation>FTP</translation>
    </message>
    <message id="461">
        <source>Message</source>
        <translation>Mensaje</translation>
    </message>
    <message id="462">
        <source>Sound</source>
        <translation>Sonido</translation>
    </message>
    <message id="463">
        <source>Sender E-mail Address</source>
        <translation>Correo del remitente</translation>
    </message>
    <message id="464">
        <source>Mail Server</source>
        <translation>Servidor de correo</translation>
    </message>
    <message id="465">
        <source>User</source>
        <translation>Usuario</translation>
    </message>
    <message id="466">
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message id="467">
        <source>Adressee Name</source>
        <translation>Destinatario</translation>
    </message>
    <message id="468">
        <source>Mail Addrrss</source>
        <translation>Dirección de correo</translation>
    </message>
    <message id="469">
        <source>Server IP</source>
        <translation>IP servidor</translation>
    </message>
    <message id="470">
        <source>Server Port</source>
        <translation>Puerto servidor</translation>
    </message>
    <message id="471">
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message id="472">
        <source>Sound Description</source>
        <translation>Descripción del sonido</translation>
    </message>
    <message id="473">
        <source>Sound File Path</source>
        <translation>Ruta del sonido</translation>
    </message>
    <message id="474">
        <source>Test</source>
        <translation>Probar</translation>
    </message>
    <message id="475">
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message id="476">
        <source>Mail to</source>
        <translation>Correo para</translation>
    </message>
    <message id="477">
        <source>FTP Setting</source>
        <translation>Ajustes de FTP</translation>
    </message>
    <message id="478">
        <source>Message Setting</source>
        <translation>Ajustes de mensajes</translation>
    </message>
    <message id="479">
        <source>Message</source>
        <translation>Mensaje</translation>
    </message>
    <message id="480">
        <source>Sound Setting</source>
        <translation>Ajustes de sonido</translation>
    </message>
    <message id="481">
        <source>Set HTTP Server failed! Do you want to remove all HTTP Servers?</source>
        <translation>No se pudo definir el servidor HTTP. ¿Desea quitar todos los servidores HTTP?</translation>
    </message>
    <message id="482">
        <source>The amount cannot be more than 16!</source>
        <translation>No puede haber más de 16.</translation>
    </message>
    <message id="483">
        <source>Do you want to delete the selected NVR?</source>
        <translation>¿Desea eliminar el NVR seleccionado?</translation>
    </message>
    <message id="484">
        <source>Sender name can't be empty!</source>
        <translation>El nombre del remitente no puede estar vacío.</translation>
    </message>
    <message id="485">
        <source>Mail Server can't be empty!</source>
        <translation>El servidor de correo no puede estar vacío.</translation>
    </message>
    <message id="486">
        <source>User can't be empty!</source>
        <translation>El nombre de usuario no puede estar vacío.</translation>
    </message>
    <message id="487">
        <source>Password can't be empty!</source>
        <translation>La contraseña no puede estar vacía.</translation>
    </message>
    <message id="488">
        <source>Mail Address can't be empty!</source>
        <translation>La dirección de correo no puede estar vacía.</translation>
    </message>
    <message id="489">
        <source>Test mail sent success.</source>
        <translation>Correo de prueba enviado correctamente.</translation>
    </message>
    <message id="490">
        <source>Test mail sent failed.</source>
        <translation>No se pudo enviar el correo de prueba.</translation>
    </message>
    <message id="491">
        <source>Server IP can't be empty!</source>
        <translation>La IP del servidor no puede estar vacía.</translation>
    </message>
    <message id="492">
        <source>Server Port can't be empty!</source>
        <translation>El puerto del servidor no puede estar vacío.</translation>
    </message>
    <message id="493">
        <source>Root Path can't be empty!</source>
        <translation>La ruta raíz no puede estar vacía.</translation>
    </message>
    <message id="494">
        <source>Connecting to ftp server success.</source>
        <translation>Conexión con el servidor FTP correcta.</translation>
    </message>
    <message id="495">
        <source>Connecting to ftp server failed.</source>
        <translation>No se pudo conectar con el servidor FTP.</translation>
    </message>
    <message id="496">
        <source>Message can't be empty!</source>
        <translation>El mensaje no puede estar vacío.</translation>
    </message>
    <message id="497">
        <source>Sound Description can't be empty!</source>
        <translation>La descripción del sonido no puede estar vacía.</translation>
    </message>
    <message id="498">
        <source>Sound file Path can't be empty!</source>
        <translation>La ruta del archivo de sonido no puede estar vacía.</translation>
    </message>
    <message id="499">
        <source>Preset number select first.</source>
        <translation>Seleccione primero el número de preset.</translation>
    </message>
    <message id="500">
        <source>The Preset Name has been used.</source>
        <translation>El nombre del preset ya está en uso.</translation>
    </message>
    <message id="501">
        <source>Do you want to delete the selected User?</source>
        <translation>¿Desea eliminar el usuario seleccionado?</translation>
    </message>
    <message id="502">
        <source>Can't Delete User.</source>
        <translation>No se puede eliminar el usuario.</translation>
    </message>
    <message id="503">
        <source>Already Set.</source>
        <translation>Ya está configurado.</translation>
    </message>
    <message id="504">
        <source>Intelligent setting can't exceed 16</source>
        <translation>No puede haber más de 16 canales con analítica.</translation>
    </message>
    <message id="505">
        <source>Add NVR failed! Please add again.</source>
        <translation>No se pudo añadir el NVR. Añádalo de nuevo.</translation>
    </message>
    <message id="506">
        <source>File Size can't more than 5MB</source>
        <translation>El archivo no puede superar los 5 MB.</translation>
    </message>
    <message id="507">
        <source>Save OK</source>
        <translation>Guardado.</translation>
    </message>
    <message id="508">
        <source>Exit and Open MainViewer?</source>
        <translation>¿Desea salir y abrir el visor principal?</translation>
    </message>
    <message id="509">
        <source>Do you want to exit?</source>
        <translation>¿Desea salir?</translation>
    </message>
    <message id="510">
        <source>Resolution Not Support .</source>
        <translation>Resolución no compatible.</translation>
    </message>
    <message id="511">
        <source>Do you want to Save?</source>
        <translation>¿Desea guardar?</translation>
    </message>
    <message id="512">
        <source>The Channel does not support motion detection or is no connection !</source>
        <translation>El canal no admite la detección de movimiento o no tiene conexión.</translation>
    </message>
    <message id="513">
        <source>No setting !</source>
        <translation>No hay ajustes.</translation>
    </message>
    <message id="514">
        <source>Settings have changed , Do you want to save ?</source>
        <translation>Los ajustes han cambiado. ¿Desea guardarlos?</translation>
    </message>
    <message id="515">
        <source>Not yet set of Event Action config!</source>
        <translation>Aún no se han configurado las acciones de eventos.</translation>
    </message>
    <message id="516">
        <source>Video can't connection.</source>
        <translation>No se puede establecer la conexión de vídeo.</translation>
    </message>
    <message id="517">
        <source>Submit</source>
        <translation>Confirmar</translation>
    </message>
    <message id="518">
        <source>Save Setting</source>
        <translation>Guardar ajustes</translation>
    </message>
    <message id="519">
        <source>Close this window</source>
        <translation>Cerrar esta ventana</translation>
    </message>
    <message id="520">
        <source>Preset Sequence</source>
        <translation>Secuencia de presets</translation>
    </message>
    <message id="521">
        <source>Dwell Time:</source>
        <translation>Permanencia:</translation>
    </message>
    <message id="522">
        <source>PTZ Preset</source>
        <translation>Preset PTZ</translation>
    </message>
    <message id="523">
        <source>Preset Sequence</source>
        <translation>Secuencia de presets</translation>
    </message>
    <message id="524">
        <source>Select a wave file</source>
        <translation>Seleccione un archivo WAV</translation>
    </message>
    <message id="525">
        <source>File Name: </source>
        <translation>Archivo: </translation>
    </message>
    <message id="526">
        <source>Message sent successfully!</source>
        <translation>Mensaje enviado correctamente.</translation>
    </message>
    <message id="527">
        <source>Sending Message fail!</source>
        <translation>No se pudo enviar el mensaje.</translation>
    </message>
    <message id="528">
        <source>MAX Video</source>
        <translation>Maximizar vídeo</translation>
    </message>
    <message id="529">
        <source>Enable/Disable auto switch group to display videos.</source>
        <translation>Activar o desactivar el cambio automático de grupo para mostrar vídeos.</translation>
    </message>
    <message id="530">
        <source>Enable/Disable maximum video to display.</source>
        <translation>Activar o desactivar la visualización maximizada del vídeo.</translation>
    </message>
    <message id="531">
        <source>Live Video</source>
        <translation>Vídeo en directo</translation>
    </message>
    <message id="532">
        <source>Do you want to cancel playback for NVR?</source>
        <translation>¿Desea cancelar la reproducción del NVR?</translation>
    </message>
    <message id="533">
        <source>The selected time doesn't have any recording data!</source>
        <translation>No hay datos de grabación para la hora seleccionada.</translation>
    </message>
    <message id="534">
        <source>Select channel you want to change and reset the relational data information?</source>
        <translation>¿Desea cambiar el canal seleccionado y restablecer los datos relacionados?</translation>
    </message>
    <message id="535">
        <source>This NVR cannot get group ID to playback!</source>
        <translation>No se puede obtener de este NVR el ID de grupo para la reproducción.</translation>
    </message>
    <message id="536">
        <source>Select the SVD has been disconnected, so close the panel and make sure that SVD status!</source>
        <translation>El SVD seleccionado se ha desconectado y el panel se cerrará. Compruebe el estado del SVD.</translation>
    </message>
    <message id="550">
        <source>IP Address</source>
        <translation>Dirección IP</translation>
    </message>
    <message id="551">
        <source>Http Port</source>
        <translation>Puerto HTTP</translation>
    </message>
    <message id="552">
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message id="553">
        <source>NVR Name can't be empty!</source>
        <translation>El nombre de NVR no puede estar vacío.</translation>
    </message>
    <message id="554">
        <source>IP address or hostname set incorrectly!</source>
        <translation>Dirección IP o nombre de host incorrectos.</translation>
    </message>
    <message id="555">
        <source>NVR don't exist!</source>
        <translation>El NVR no existe.</translation>
    </message>
    <message id="556">
        <source>Port set incorrectly!</source>
        <translation>Puerto incorrecto.</translation>
    </message>
    <message id="557">
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message id="558">
        <source>NVR select setting</source>
        <translation>Selección de NVR</translation>
    </message>
    <message id="559">
        <source>Pattern select setting</source>
        <translation>Selección de vistas</translation>
    </message>
    <message id="560">
        <source>All list</source>
        <translation>Lista completa</translation>
    </message>
    <message id="561">
        <source>Selected list</source>
        <translation>Seleccionados</translation>
    </message>
    <message id="562">
        <source>Select item is less than 2 items, it can not be saved!</source>
        <translation>Hay menos de 2 elementos seleccionados. No se puede guardar.</translation>
    </message>
    <message id="563">
        <source>Functions that were originally assigned on this screen will be moved to screen #1 automatically.</source>
        <translation>Las funciones asignadas a esta pantalla se moverán automáticamente a la pantalla n.º 1.</translation>
    </message>
    <message id="564">
        <source>Has not enough pattern can be selected!</source>
        <translation>No hay suficientes vistas que seleccionar.</translation>
    </message>
    <message id="565">
        <source>This screen has been assigned to Video Wall!</source>
        <translation>Esta pantalla está asignada al videowall.</translation>
    </message>
    <message id="566">
        <source>Has not enough device can be selected!</source>
        <translation>No hay suficientes dispositivos que seleccionar.</translation>
    </message>
    <message id="570">
        <source>Information</source>
        <translation>Información</translation>
    </message>
    <message id="571">
        <source>*Name</source>
        <translation>*Nombre</translation>
    </message>
    <message id="572">
        <source>*IP Address</source>
        <translation>*Dirección IP</translation>
    </message>
    <message id="573">
        <source>*Http Port</source>
        <translation>*Puerto HTTP</translation>
    </message>
    <message id="574">
        <source>*User</source>
        <translation>*Usuario</translation>
    </message>
    <message id="575">
        <source>*Password</source>
        <translation>*Contraseña</translation>
    </message>
    <message id="576">
        <source>Detect</source>
        <translation>Detectar</translation>
    </message>
    <message id="577">
        <source>Device Setting</source>
        <translation>Ajustes del dispositivo</translation>
    </message>
    <message id="578">
        <source>NO.</source>
        <translation>Núm.</translation>
    </message>
    <message id="579">
        <source>Camera name</source>
        <translation>Nombre de cámara</translation>
    </message>
    <message id="580">
        <source>Video Port</source>
        <translation>Puerto de vídeo</translation>
    </message>
    <message id="581">
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message id="582">
        <source>Resolution</source>
        <translation>Resolución</translation>
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
        <translation>Editar ajustes de cámara</translation>
    </message>
    <message id="586">
        <source>Camera No</source>
        <translation>N.º cámara</translation>
    </message>
    <message id="587">
        <source>Camera IP</source>
        <translation>IP de cámara</translation>
    </message>
    <message id="588">
        <source>Additional Camera Information</source>
        <translation>Datos adicionales de la cámara</translation>
    </message>
    <message id="589">
        <source>Min. Bitrate</source>
        <translation>Tasa de bits mín.</translation>
    </message>
    <message id="590">
        <source>Max. Bitrate</source>
        <translation>Tasa de bits máx.</translation>
    </message>
    <message id="591">
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message id="592">
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message id="593">
        <source>NVR IP can't be empty.</source>
        <translation>La IP del NVR no puede estar vacía.</translation>
    </message>
    <message id="594">
        <source>NVR Http Port can't be empty.</source>
        <translation>El puerto HTTP del NVR no puede estar vacío.</translation>
    </message>
    <message id="595">
        <source>NVR User can't be empty.</source>
        <translation>El nombre de usuario del NVR no puede estar vacío.</translation>
    </message>
    <message id="596">
        <source>NVR Password can't be empty.</source>
        <translation>La contraseña del NVR no puede estar vacía.</translation>
    </message>
    <message id="597">
        <source>Request Time Zone ERR! Please Detect again.</source>
        <translation>No se pudo obtener la zona horaria. Vuelva a detectar.</translation>
    </message>
    <message id="598">
        <source>Please Select Brand.</source>
        <translation>Seleccione la marca.</translation>
    </message>
    <message id="599">
        <source>IP Timeout.</source>
        <translation>IP sin respuesta.</translation>
    </message>
    <message id="600">
        <source>Quality</source>
        <translation>Calidad</translation>
    </message>
    <message id="601">
        <source>Bitrate</source>
        <translation>Tasa de bits</translation>
    </message>
    <message id="602">
        <source>Bitrate Mode</source>
        <translation>Modo de tasa de bits</translation>
    </message>
    <message id="603">
        <source>CH name can't be empty!</source>
        <translation>El nombre del canal no puede estar vacío.</translation>
    </message>
    <message id="604">
        <source>IP address can't be empty!</source>
        <translation>La dirección IP no puede estar vacía.</translation>
    </message>
    <message id="605">
        <source>Http Port can't be empty!</source>
        <translation>El puerto HTTP no puede estar vacío.</translation>
    </message>
    <message id="606">
        <source>User account can't be empty!</source>
        <translation>La cuenta de usuario no puede estar vacía.</translation>
    </message>
    <message id="607">
        <source>Password can't be empty!</source>
        <translation>La contraseña no puede estar vacía.</translation>
    </message>
    <message id="608">
        <source>Detection Error!</source>
        <translation>Error de detección.</translation>
    </message>
    <message id="609">
        <source>No Camera or connect failed !</source>
        <translation>No hay cámara o la conexión ha fallado.</translation>
    </message>
    <message id="610">
        <source>This firmware version of NVR is not supported , please update newer Version.</source>
        <translation>Esta versión de firmware del NVR no es compatible. Actualícela a una más reciente.</translation>
    </message>
    <message id="611">
        <source>If you press the button, data inside NVR will be changed!</source>
        <translation>Si pulsa el botón, cambiarán los datos del NVR.</translation>
    </message>
    <message id="612">
        <source>Camera Search</source>
        <translation>Búsqueda de cámaras</translation>
    </message>
    <message id="613">
        <source>Brand not Support!</source>
        <translation>Marca no compatible.</translation>
    </message>
    <message id="614">
        <source>FPS</source>
        <translation>FPS</translation>
    </message>
    <message id="615">
        <source>Video Format Error!</source>
        <translation>Error de formato de vídeo.</translation>
    </message>
    <message id="616">
        <source>Camera settings have changes, please re-detect.</source>
        <translation>Los ajustes de la cámara han cambiado. Vuelva a detectar.</translation>
    </message>
    <message id="617">
        <source>Add Camera Fail!</source>
        <translation>No se pudo añadir la cámara.</translation>
    </message>
    <message id="618">
        <source>DIS Setting</source>
        <translation>Ajustes de DIS</translation>
    </message>
    <message id="619">
        <source>Device not supported!</source>
        <translation>Dispositivo no compatible.</translation>
    </message>
    <message id="620">
        <source>This account is already set!</source>
        <translation>Esta cuenta ya está configurada.</translation>
    </message>
    <message id="621">
        <source>Do you want to continue edit preset point?</source>
        <translation>¿Desea seguir editando los presets?</translation>
    </message>
    <message id="630">
        <source>Group Name</source>
        <translation>Nombre de grupo</translation>
    </message>
    <message id="631">
        <source>Power Level</source>
        <translation>Nivel de permisos</translation>
    </message>
    <message id="632">
        <source>Function Permission</source>
        <translation>Permisos de función</translation>
    </message>
    <message id="633">
        <source>Playback</source>
        <translation>Reproducción</translation>
    </message>
    <message id="634">
        <source>PTZ Control</source>
        <translation>Control PTZ</translation>
    </message>
    <message id="635">
        <source>System Setup</source>
        <translation>Configuración del sistema</translation>
    </message>
    <message id="636">
        <source>Group Setting</source>
        <translation>Ajustes de grupo</translation>
    </message>
    <message id="640">
        <source>File Size can't more than 10MB</source>
        <translation>El archivo no puede superar los 10 MB.</translation>
    </message>
    <message id="641">
        <source>EMap Setting</source>
        <translation>Ajustes de mapas</translation>
    </message>
    <message id="642">
        <source>*Double Click Windows to change Map images.</source>
        <translation>*Haga doble clic en la ventana para cambiar la imagen del mapa.</translation>
    </message>
    <message id="643">
        <source>Select an image file</source>
        <translation>Seleccione un archivo de imagen</translation>
    </message>
    <message id="645">
        <source>User Setting</source>
        <translation>Ajustes de usuario</translation>
    </message>
    <message id="646">
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message id="647">
        <source>(Dubble Click to Setting)</source>
        <translation>(Doble clic para configurar)</translation>
    </message>
    <message id="648">
        <source>Check</source>
        <translation>Comprobar</translation>
    </message>
    <message id="649">
        <source>*User Name</source>
        <translation>*Nombre de usuario</translation>
    </message>
    <message id="650">
        <source>*Password Confirm</source>
        <translation>*Confirmar contraseña</translation>
    </message>
    <message id="651">
        <source>*:Necessary</source>
        <translation>*: obligatorio</translation>
    </message>
    <message id="652">
        <source>This name not yet use</source>
        <translation>Este nombre está libre.</translation>
    </message>
    <message id="653">
        <source>This name in use</source>
        <translation>Este nombre está en uso.</translation>
    </message>
    <message id="660">
        <source>User&amp;Password</source>
        <translation>Usuario y contraseña</translation>
    </message>
    <message id="661">
        <source>User or Password is not input!</source>
        <translation>No se ha introducido el usuario o la contraseña.</translation>
    </message>
    <message id="671">
        <source>DIS Service Setting</source>
        <translation>Ajustes del servicio DIS</translation>
    </message>
    <message id="672">
        <source>Account List</source>
        <translation>Lista de cuentas</translation>
    </message>
    <message id="673">
        <source>Do you want to remove this user?</source>
        <translation>¿Desea quitar este usuario?</translation>
    </message>
    <message id="674">
        <source>The account has reached the upper limit, for add new account you need to remove another account.</source>
        <translation>Se ha alcanzado el límite de cuentas. Para añadir una cuenta, quite antes otra.</translation>
    </message>
    <message id="675">
        <source>Object Loss</source>
        <translation>Objeto retirado</translation>
    </message>
    <message id="676">
        <source>Tripwire</source>
        <translation>Cruce de línea</translation>
    </message>
    <message id="677">
        <source>Threat</source>
        <translation>Sabotaje</translation>
    </message>
    <message id="678">
        <source>Enable</source>
        <translation>Activar</translation>
    </message>
    <message id="679">
        <source>Intelligent Setting</source>
        <translation>Ajustes de analítica</translation>
    </message>
    <message id="680">
        <source>Intelligent detection List</source>
        <translation>Lista de detección inteligente</translation>
    </message>
    <message id="681">
        <source>Object Loss Reset</source>
        <translation>Fin de objeto retirado</translation>
    </message>
    <message id="682">
        <source>Threat Detection Reset</source>
        <translation>Fin de detección de sabotaje</translation>
    </message>
    <message id="683">
        <source>Image Enhance</source>
        <translation>Mejora de imagen</translation>
    </message>
    <message id="684">
        <source>Port number can't accept more then 32767.</source>
        <translation>El número de puerto no puede ser mayor que 32767.</translation>
    </message>
    <message id="685">
        <source>Keep Ratio</source>
        <translation>Mantener proporción</translation>
    </message>
    <message id="686">
        <source>Intelligent Detection</source>
        <translation>Detección inteligente</translation>
    </message>
    <message id="687">
        <source>OSD Size</source>
        <translation>Tamaño OSD</translation>
    </message>
    <message id="688">
        <source>OSD Color</source>
        <translation>Color OSD</translation>
    </message>
    <message id="689">
        <source>Small</source>
        <translation>Pequeño</translation>
    </message>
    <message id="690">
        <source>Middle</source>
        <translation>Mediano</translation>
    </message>
    <message id="691">
        <source>Large</source>
        <translation>Grande</translation>
    </message>
    <message id="692">
        <source>FullScreen Initial</source>
        <translation>Pantalla completa inicial</translation>
    </message>
    <message id="693">
        <source>Startup Screen Layout</source>
        <translation>Pantallas al inicio</translation>
    </message>
    <message id="694">
        <source>Leave to save the screen layout.</source>
        <translation>La disposición de pantallas se guarda al salir.</translation>
    </message>
    <message id="695">
        <source>Function default start</source>
        <translation>Inicio predeterminado</translation>
    </message>
    <message id="696">
        <source>Function assign</source>
        <translation>Asignar funciones</translation>
    </message>
    <message id="697">
        <source>Pattern setting</source>
        <translation>Ajustes de vistas</translation>
    </message>
    <message id="698">
        <source>Name can't be empty.</source>
        <translation>El nombre no puede estar vacío.</translation>
    </message>
    <message id="699">
        <source>Object Counting</source>
        <translation>Recuento de objetos</translation>
    </message>
    <message id="700">
        <source>Foreign Object</source>
        <translation>Objeto abandonado</translation>
    </message>
    <message id="701">
        <source>Foreign Object Reset </source>
        <translation>Fin de objeto abandonado </translation>
    </message>
    <message id="702">
        <source>Manual Recording</source>
        <translation>Grabación manual</translation>
    </message>
    <message id="703">
        <source>Device settings have changes, please re-detect.</source>
        <translation>Los ajustes del dispositivo han cambiado. Vuelva a detectar.</translation>
    </message>
    <message id="704">
        <source>English and Digit Only</source>
        <translation>Solo letras A-Z y números</translation>
    </message>
    <message id="705">
        <source>Emap Group Assign</source>
        <translation>Grupos de mapas</translation>
    </message>
    <message id="706">
        <source>Emap Group </source>
        <translation>Grupo de mapas </translation>
    </message>
    <message id="707">
        <source>Member:</source>
        <translation>Miembros:</translation>
    </message>
    <message id="708">
        <source>Emap Position Assign</source>
        <translation>Posiciones en el mapa</translation>
    </message>
    <message id="709">
        <source>Parent</source>
        <translation>Superior</translation>
    </message>
    <message id="710">
        <source>Group Type </source>
        <translation>Tipo de grupo </translation>
    </message>
    <message id="711">
        <source>Auto Switch</source>
        <translation>Cambio automático</translation>
    </message>
    <message id="712">
        <source>Double-click back to previous group</source>
        <translation>Doble clic para volver al grupo anterior</translation>
    </message>
    <message id="713">
        <source>Drag and Drop to Move</source>
        <translation>Arrastrar y soltar para mover</translation>
    </message>
    <message id="714">
        <source>Do you want to delete the selected Emap Group?</source>
        <translation>¿Desea eliminar el grupo de mapas seleccionado?</translation>
    </message>
    <message id="715">
        <source>The amount of device will be over default value!</source>
        <translation>Se superará el número máximo de dispositivos.</translation>
    </message>
    <message id="716">
        <source>The amount of total channels will be over default value!</source>
        <translation>Se superará el número máximo de canales.</translation>
    </message>
    <message id="717">
        <source>Channel selection</source>
        <translation>Selección de canales</translation>
    </message>
    <message id="718">
        <source>Get device capability error!</source>
        <translation>Error al obtener las capacidades del dispositivo.</translation>
    </message>
    <message id="719">
        <source>This device does not has any channel.</source>
        <translation>Este dispositivo no tiene ningún canal.</translation>
    </message>
    <message id="720">
        <source>Please add channels  or  re-select the other device.</source>
        <translation>Añada canales o seleccione otro dispositivo.</translation>
    </message>
    <message id="721">
        <source>This device does not has any channel,Do you want to remove the device?</source>
        <translation>Este dispositivo no tiene ningún canal. ¿Desea quitarlo?</translation>
    </message>
    <message id="722">
        <source>Setting fail!</source>
        <translation>No se pudo aplicar el ajuste.</translation>
    </message>
    <message id="723">
        <source>Do you want to stop SEQ mode?</source>
        <translation>¿Desea detener el modo secuencia?</translation>
    </message>
    <message id="725">
        <source>Type </source>
        <translation>Tipo </translation>
    </message>
    <message id="726">
        <source>No change!</source>
        <translation>Sin cambios.</translation>
    </message>
    <message id="727">
        <source>Face Counting</source>
        <translation>Recuento de caras</translation>
    </message>
    <message id="728">
        <source>Unknown</source>
        <translation>Desconocido</translation>
    </message>
    <message id="729">
        <source>Event Export</source>
        <translation>Exportación de eventos</translation>
    </message>
    <message id="730">
        <source>System Log Export</source>
        <translation>Exportación del registro</translation>
    </message>
    <message id="731">
        <source>System Log</source>
        <translation>Registro del sistema</translation>
    </message>
    <message id="732">
        <source>NVR Select</source>
        <translation>Selección de NVR</translation>
    </message>
    <message id="733">
        <source>Condition</source>
        <translation>Condición</translation>
    </message>
    <message id="734">
        <source>Time Range:</source>
        <translation>Intervalo:</translation>
    </message>
    <message id="735">
        <source>Start Time:</source>
        <translation>Hora de inicio:</translation>
    </message>
    <message id="736">
        <source>End Time:</source>
        <translation>Hora de fin:</translation>
    </message>
    <message id="737">
        <source>Event Type:</source>
        <translation>Tipo de evento:</translation>
    </message>
    <message id="738">
        <source>User:</source>
        <translation>Usuario:</translation>
    </message>
    <message id="739">
        <source>Export Format:</source>
        <translation>Formato:</translation>
    </message>
    <message id="740">
        <source>Export</source>
        <translation>Exportación</translation>
    </message>
    <message id="741">
        <source>You must select a path to export!</source>
        <translation>Debe seleccionar una ruta de exportación.</translation>
    </message>
    <message id="742">
        <source>Start Time must less than End time!</source>
        <translation>La hora de inicio debe ser anterior a la de fin.</translation>
    </message>
    <message id="743">
        <source>No Event!</source>
        <translation>No hay eventos.</translation>
    </message>
    <message id="744">
        <source>No System Log!</source>
        <translation>El registro del sistema está vacío.</translation>
    </message>
    <message id="745">
        <source>CSV Export finish!</source>
        <translation>Exportación CSV finalizada.</translation>
    </message>
    <message id="746">
        <source>MDB Export finish!</source>
        <translation>Exportación MDB finalizada.</translation>
    </message>
    <message id="747">
        <source>Custom</source>
        <translation>Personalizado</translation>
    </message>
    <message id="748">
        <source>NVR Overview</source>
        <translation>Resumen de NVR</translation>
    </message>
    <message id="749">
        <source>Video Wall Console</source>
        <translation>Consola de videowall</translation>
    </message>
    <message id="750">
        <source>Lock Screen </source>
        <translation>Bloquear pantalla </translation>
    </message>
    <message id="751">
        <source>Unlock Screen</source>
        <translation>Desbloquear pantalla</translation>
    </message>
    <message id="752">
        <source>Video Wall</source>
        <translation>Videowall</translation>
    </message>
    <message id="753">
        <source>Pattern List</source>
        <translation>Lista de vistas</translation>
    </message>
    <message id="754">
        <source>SEQ List</source>
        <translation>Lista de secuencias</translation>
    </message>
    <message id="755">
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message id="756">
        <source>SEQ content setting</source>
        <translation>Configurar secuencia</translation>
    </message>
    <message id="757">
        <source>Max Channel</source>
        <translation>Máx. canales</translation>
    </message>
    <message id="758">
        <source>Video server</source>
        <translation>Servidor de vídeo</translation>
    </message>
    <message id="759">
        <source>Support</source>
        <translation>Compatible</translation>
    </message>
    <message id="760">
        <source>Original View</source>
        <translation>Vista original</translation>
    </message>
    <message id="761">
        <source>Broad View</source>
        <translation>Vista panorámica</translation>
    </message>
    <message id="762">
        <source>Quad View</source>
        <translation>Vista cuádruple</translation>
    </message>
    <message id="763">
        <source>Quad and Source View</source>
        <translation>Vista cuádruple y original</translation>
    </message>
    <message id="764">
        <source>Double View</source>
        <translation>Vista doble</translation>
    </message>
    <message id="765">
        <source>Triple View</source>
        <translation>Vista triple</translation>
    </message>
    <message id="766">
        <source>Digital PTZ</source>
        <translation>PTZ digital</translation>
    </message>
    <message id="767">
        <source>Lens</source>
        <translation>Objetivo</translation>
    </message>
    <message id="768">
        <source>It could not be opened, the insufficient number of available screens!</source>
        <translation>No se pudo abrir: no hay suficientes pantallas disponibles.</translation>
    </message>
    <message id="769">
        <source>It could not be opened, The Video Wall is not enabled! </source>
        <translation>No se pudo abrir: el videowall no está activado. </translation>
    </message>
    <message id="770">
        <source>The quantity of screen is not enough! Not support!</source>
        <translation>No hay suficientes pantallas. No es compatible.</translation>
    </message>
    <message id="772">
        <source>Settings have changed , Please re-open MainViewer!</source>
        <translation>Los ajustes han cambiado. Vuelva a abrir el visor principal.</translation>
    </message>
    <message id="773">
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message id="774">
        <source>Update system log with below defined condition</source>
        <translation>Actualizar el registro del sistema con las condiciones siguientes</translation>
    </message>
    <message id="775">
        <source>Transform recording index</source>
        <translation>Convertir índice de grabación</translation>
    </message>
    <message id="776">
        <source>Event Image Sync Setting</source>
        <translation>Sincr. de imágenes de eventos</translation>
    </message>
    <message id="777">
        <source>Event snapshot storage space is not enough!</source>
        <translation>No hay espacio suficiente para las capturas de eventos.</translation>
    </message>
    <message id="779">
        <source>Intelligent Mode</source>
        <translation>Modo inteligente</translation>
    </message>
    <message id="780">
        <source>Add Intelligent Setting</source>
        <translation>Añadir ajuste de analítica</translation>
    </message>
    <message id="781">
        <source>Camera Event</source>
        <translation>Evento de cámara</translation>
    </message>
    <message id="782">
        <source>ROI Setting</source>
        <translation>Ajustes de ROI</translation>
    </message>
    <message id="783">
        <source>Trigger Mode</source>
        <translation>Modo de activación</translation>
    </message>
    <message id="784">
        <source>Channel Privilege</source>
        <translation>Permisos de canal</translation>
    </message>
    <message id="785">
        <source>Group Overview</source>
        <translation>Resumen de grupos</translation>
    </message>
    <message id="786">
        <source>User Overview</source>
        <translation>Resumen de usuarios</translation>
    </message>
    <message id="787">
        <source>Event Server</source>
        <translation>Servidor de eventos</translation>
    </message>
    <message id="788">
        <source>Trigger By</source>
        <translation>Activado por</translation>
    </message>
    <message id="789">
        <source>Configuration Modify</source>
        <translation>Cambio de configuración</translation>
    </message>
    <message id="790">
        <source>Intelligent Event Trigger</source>
        <translation>Activación por analítica</translation>
    </message>
    <message id="791">
        <source>NVR Event Trigger</source>
        <translation>Activación por NVR</translation>
    </message>
    <message id="792">
        <source>Trigger Action</source>
        <translation>Acción asociada</translation>
    </message>
    <message id="793">
        <source>Addresses: (Use ',' to separate e-mails)</source>
        <translation>Direcciones: (use «,» para separar los correos)</translation>
    </message>
    <message id="794">
        <source>Content</source>
        <translation>Contenido</translation>
    </message>
    <message id="795">
        <source>Video Wall Layout</source>
        <translation>Disposición del videowall</translation>
    </message>
    <message id="796">
        <source>No Enough screen can be set!</source>
        <translation>No hay suficientes pantallas para configurar.</translation>
    </message>
    <message id="797">
        <source>SVD Management</source>
        <translation>Gestión de SVD</translation>
    </message>
    <message id="798">
        <source>SVD Detail Setting</source>
        <translation>Ajustes detallados de SVD</translation>
    </message>
    <message id="799">
        <source>SVD Layout</source>
        <translation>Disposición de SVD</translation>
    </message>
    <message id="800">
        <source>SVD ID:</source>
        <translation>ID de SVD:</translation>
    </message>
    <message id="801">
        <source>SVD Name:</source>
        <translation>Nombre de SVD:</translation>
    </message>
    <message id="802">
        <source>Display</source>
        <translation>Pantalla</translation>
    </message>
    <message id="803">
        <source>Resolution</source>
        <translation>Resolución</translation>
    </message>
    <message id="804">
        <source>Priority</source>
        <translation>Prioridad</translation>
    </message>
    <message id="805">
        <source>Default Split</source>
        <translation>División predeterminada</translation>
    </message>
    <message id="806">
        <source>Default Channel List</source>
        <translation>Canales predeterminados</translation>
    </message>
    <message id="807">
        <source>Live Stream</source>
        <translation>Flujo en directo</translation>
    </message>
    <message id="808">
        <source>Dynamic Streaming</source>
        <translation>Flujo dinámico</translation>
    </message>
    <message id="809">
        <source>Screen Default Layout</source>
        <translation>Disposición predeterminada</translation>
    </message>
    <message id="810">
        <source>Channel list</source>
        <translation>Lista de canales</translation>
    </message>
    <message id="811">
        <source>Begin</source>
        <translation>Inicio</translation>
    </message>
    <message id="812">
        <source>Previous</source>
        <translation>Anterior</translation>
    </message>
    <message id="813">
        <source>System Log Viewer</source>
        <translation>Visor del registro</translation>
    </message>
    <message id="814">
        <source>Management </source>
        <translation>Gestión </translation>
    </message>
    <message id="815">
        <source>Viewer</source>
        <translation>Visor</translation>
    </message>
    <message id="816">
        <source>Add New SVD</source>
        <translation>Añadir SVD</translation>
    </message>
    <message id="817">
        <source>Primary</source>
        <translation>Primaria</translation>
    </message>
    <message id="818">
        <source>Secondary</source>
        <translation>Secundaria</translation>
    </message>
    <message id="819">
        <source>Available</source>
        <translation>Disponible</translation>
    </message>
    <message id="820">
        <source>Not Available</source>
        <translation>No disponible</translation>
    </message>
    <message id="821">
        <source>Invalid E-mail Address!</source>
        <translation>Dirección de correo no válida.</translation>
    </message>
    <message id="822">
        <source>Invalid Value!</source>
        <translation>Valor no válido.</translation>
    </message>
    <message id="823">
        <source>Can't add repeatedly!</source>
        <translation>No se puede añadir más de una vez.</translation>
    </message>
    <message id="824">
        <source>Can't add SVD anymore!</source>
        <translation>No se pueden añadir más SVD.</translation>
    </message>
    <message id="826">
        <source>Do you want to remove this SVD?</source>
        <translation>¿Desea quitar este SVD?</translation>
    </message>
    <message id="827">
        <source>Disable this Video Wall?</source>
        <translation>¿Desea desactivar este videowall?</translation>
    </message>
    <message id="828">
        <source>Export finish!</source>
        <translation>Exportación finalizada.</translation>
    </message>
    <message id="829">
        <source>Brand:</source>
        <translation>Marca:</translation>
    </message>
    <message id="830">
        <source>Password Mask</source>
        <translation>Ocultar contraseña</translation>
    </message>
    <message id="831">
        <source>NVR Account setting</source>
        <translation>Ajustes de cuentas de NVR</translation>
    </message>
    <message id="832">
        <source>No any NVR has been selected.</source>
        <translation>No se ha seleccionado ningún NVR.</translation>
    </message>
    <message id="833">
        <source>Detect successful!</source>
        <translation>Detección correcta.</translation>
    </message>
    <message id="834">
        <source>Failed configuring camera detection on channel:</source>
        <translation>No se pudo configurar la detección en la cámara de los canales:</translation>
    </message>
    <message id="835">
        <source>Trigger action has done.</source>
        <translation>Se ha ejecutado la acción asociada.</translation>
    </message>
    <message id="836">
        <source>Event server has not set.</source>
        <translation>El servidor de eventos no está configurado.</translation>
    </message>
    <message id="837">
        <source>Privilege Setting</source>
        <translation>Ajustes de permisos</translation>
    </message>
    <message id="838">
        <source>NVR Privilege Setting</source>
        <translation>Ajustes de permisos de NVR</translation>
    </message>
    <message id="839">
        <source>SVD Console</source>
        <translation>Consola SVD</translation>
    </message>
    <message id="840">
        <source>SVD Search List</source>
        <translation>SVD encontrados</translation>
    </message>
    <message id="841">
        <source>No Monitor connect!</source>
        <translation>No hay ningún monitor conectado.</translation>
    </message>
    <message id="842">
        <source>Do you want to remove this intelligent setting?</source>
        <translation>¿Desea quitar este ajuste de analítica?</translation>
    </message>
    <message id="843">
        <source>Event snapshot doesn't work!</source>
        <translation>Las capturas de eventos no funcionan.</translation>
    </message>
    <message id="850">
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message id="851">
        <source>Intelligent</source>
        <translation>Analítica</translation>
    </message>
    <message id="852">
        <source>User and group</source>
        <translation>Usuarios y grupos</translation>
    </message>
    <message id="853">
        <source>Event handling</source>
        <translation>Gestión de eventos</translation>
    </message>
    <message id="854">
        <source>Event server</source>
        <translation>Servidor de eventos</translation>
    </message>
    <message id="855">
        <source>E-Map</source>
        <translation>Mapas</translation>
    </message>
    <message id="856">
        <source>Screen layout</source>
        <translation>Pantallas</translation>
    </message>
    <message id="857">
        <source>Startup</source>
        <translation>Inicio</translation>
    </message>
    <message id="858">
        <source>Tooling</source>
        <translation>Herramientas</translation>
    </message>
    <message id="859">
        <source>This page is not available in this version.</source>
        <translation>Esta página no está disponible en esta versión.</translation>
    </message>
    <message id="860">
        <source>Its data in the database stays as it is.</source>
        <translation>Los datos correspondientes de la base de datos se conservan sin cambios.</translation>
    </message>
    <message id="861">
        <source>No recorder yet</source>
        <translation>Aún no hay grabadores</translation>
    </message>
    <message id="862">
        <source>Enter the address of the station's first recorder to add it.</source>
        <translation>Escriba la dirección del primer grabador del puesto para añadirlo.</translation>
    </message>
    <message id="863">
        <source>Filter name, address, model…</source>
        <translation>Filtrar por nombre, dirección, modelo…</translation>
    </message>
    <message id="864">
        <source>Recorders of this station</source>
        <translation>Grabadores de este puesto</translation>
    </message>
    <message id="865">
        <source>Recorders: %1 of %2</source>
        <translation>Grabadores: %1 de %2</translation>
    </message>
    <message id="866">
        <source>Channels: %1 of %2</source>
        <translation>Canales: %1 de %2</translation>
    </message>
    <message id="867">
        <source>No recorder matches the filter.</source>
        <translation>Ningún grabador coincide con el filtro.</translation>
    </message>
    <message id="868">
        <source>Unsaved changes</source>
        <translation>Cambios sin guardar</translation>
    </message>
    <message id="870">
        <source>Switch to dark colours</source>
        <translation>Cambiar a modo oscuro</translation>
    </message>
    <message id="871">
        <source>Switch to light colours</source>
        <translation>Cambiar a modo claro</translation>
    </message>
    <message id="872">
        <source>Waiting</source>
        <translation>En espera</translation>
    </message>
    <message id="873">
        <source>Finish</source>
        <translation>Finalizar</translation>
    </message>
    <message id="874">
        <source>Done: %1 of %2</source>
        <translation>Terminados: %1 de %2</translation>
    </message>
    <message id="875">
        <source>Choose</source>
        <translation>Elegir</translation>
    </message>
    <message id="876">
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message id="877">
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message id="878">
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message id="879">
        <source>No</source>
        <translation>No</translation>
    </message>
    <message id="880">
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message id="881">
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message id="882">
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message id="884">
        <source>Enter the address of one recorder.</source>
        <translation>Escriba la dirección de un grabador.</translation>
    </message>
    <message id="885">
        <source>Leave both empty to try the known device accounts.</source>
        <translation>Deje ambos campos vacíos para probar las cuentas de dispositivo conocidas.</translation>
    </message>
    <message id="886">
        <source>About this installation</source>
        <translation>Acerca de esta instalación</translation>
    </message>
    <message id="887">
        <source>Show password</source>
        <translation>Mostrar contraseña</translation>
    </message>
    <message id="888">
        <source>Searching…</source>
        <translation>Buscando…</translation>
    </message>
    <message id="890">
        <source>Name and behaviour of this station</source>
        <translation>Nombre y comportamiento de este puesto</translation>
    </message>
    <message id="892">
        <source>Recorder slot</source>
        <translation>Posición de grabador</translation>
    </message>
    <message id="896">
        <source>Connected</source>
        <translation>Conectado</translation>
    </message>
    <message id="898">
        <source>Product:</source>
        <translation>Producto:</translation>
    </message>
    <message id="899">
        <source>Hide password</source>
        <translation>Ocultar contraseña</translation>
    </message>
    <message id="900">
        <source>Anyone who opens Rigging Desk is its administrator, because there is no user yet.</source>
        <translation>Cualquiera que abra Rigging Desk es su administrador, porque aún no hay usuarios.</translation>
    </message>
    <message id="901">
        <source>Create the first administrator</source>
        <translation>Crear el primer administrador</translation>
    </message>
    <message id="902">
        <source>Not now</source>
        <translation>Ahora no</translation>
    </message>
    <message id="903">
        <source>No user yet</source>
        <translation>Aún no hay usuarios</translation>
    </message>
    <message id="904">
        <source>Accessible cameras</source>
        <translation>Cámaras accesibles</translation>
    </message>
    <message id="905">
        <source>Who has access</source>
        <translation>Quién tiene acceso</translation>
    </message>
    <message id="906">
        <source>Filter channels…</source>
        <translation>Filtrar canales…</translation>
    </message>
    <message id="907">
        <source>Whole recorder</source>
        <translation>Grabador completo</translation>
    </message>
    <message id="908">
        <source>Live</source>
        <translation>En directo</translation>
    </message>
    <message id="909">
        <source>Live Monitor of all channels</source>
        <translation>Monitor en directo de todos los canales</translation>
    </message>
    <message id="910">
        <source>Grant</source>
        <translation>Conceder</translation>
    </message>
    <message id="911">
        <source>Withdraw</source>
        <translation>Revocar</translation>
    </message>
    <message id="912">
        <source>The other rights need Live. Space switches the selected cells; Shift+Space selects a row, Ctrl+Space a column.</source>
        <translation>Los demás permisos requieren «En directo». Espacio cambia las celdas seleccionadas; Mayús+Espacio selecciona una fila, Ctrl+Espacio una columna.</translation>
    </message>
    <message id="913">
        <source>Administrators have every right on every channel.</source>
        <translation>Los administradores tienen todos los permisos en todos los canales.</translation>
    </message>
    <message id="930">
        <source>Filter the rows found…</source>
        <translation>Filtrar las filas encontradas…</translation>
    </message>
    <message id="931">
        <source>No row matches the filter.</source>
        <translation>Ninguna fila coincide con el filtro.</translation>
    </message>
    <message id="932">
        <source>Rows found: %1</source>
        <translation>Filas encontradas: %1</translation>
    </message>
    <message id="933">
        <source>The log could not be read</source>
        <translation>No se ha podido leer el registro</translation>
    </message>
    <message id="934">
        <source>Copy rows</source>
        <translation>Copiar filas</translation>
    </message>
    <message id="935">
        <source>Open folder</source>
        <translation>Abrir carpeta</translation>
    </message>
    <message id="936">
        <source>Event export is not part of this version.</source>
        <translation>La exportación de eventos no forma parte de esta versión.</translation>
    </message>
    <message id="937">
        <source>Choose a period and search.</source>
        <translation>Elija un período y busque.</translation>
    </message>
    <message id="938">
        <source>The export failed. Existing files were not changed.</source>
        <translation>La exportación ha fallado. Los archivos existentes no se han modificado.</translation>
    </message>
    <message id="939">
        <source>First page</source>
        <translation>Primera página</translation>
    </message>
    <message id="940">
        <source>Previous page</source>
        <translation>Página anterior</translation>
    </message>
    <message id="941">
        <source>Next page</source>
        <translation>Página siguiente</translation>
    </message>
    <message id="942">
        <source>Last page</source>
        <translation>Última página</translation>
    </message>
    <message id="943">
        <source>Refresh</source>
        <translation>Actualizar</translation>
    </message>
    <message id="945">
        <source>Log in</source>
        <translation>Iniciar sesión</translation>
    </message>
    <message id="946">
        <source>The reason is in the log files.</source>
        <translation>El motivo se indica en los archivos de registro.</translation>
    </message>
    <message id="950">
        <source>Find recorders on the network.</source>
        <translation>Busque grabadores en la red.</translation>
    </message>
    <message id="951">
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message id="952">
        <source>Select all</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message id="953">
        <source>Filter the devices found</source>
        <translation>Filtrar los dispositivos encontrados</translation>
    </message>
    <message id="954">
        <source>No device has answered.</source>
        <translation>Ningún dispositivo ha respondido.</translation>
    </message>
    <message id="955">
        <source>Recorders with those selected: %1 of %2</source>
        <translation>Grabadores, selección incluida: %1 de %2</translation>
    </message>
    <message id="956">
        <source>Connection</source>
        <translation>Conexión</translation>
    </message>
    <message id="957">
        <source>Checking…</source>
        <translation>Comprobando…</translation>
    </message>
    <message id="958">
        <source>Login refused</source>
        <translation>Inicio de sesión rechazado</translation>
    </message>
    <message id="959">
        <source>No answer</source>
        <translation>Sin respuesta</translation>
    </message>
    <message id="960">
        <source>Host name not found</source>
        <translation>Nombre de host no encontrado</translation>
    </message>
    <message id="961">
        <source>Connection refused</source>
        <translation>Conexión rechazada</translation>
    </message>
    <message id="962">
        <source>Unexpected answer</source>
        <translation>Respuesta inesperada</translation>
    </message>
    <message id="963">
        <source>Stopped</source>
        <translation>Detenido</translation>
    </message>
    <message id="965">
        <source>Notice</source>
        <translation>Aviso</translation>
    </message>
    <message id="966">
        <source>No camera</source>
        <translation>Sin cámara</translation>
    </message>
    <message id="967">
        <source>Changed in the recorder</source>
        <translation>Cambiado en el grabador</translation>
    </message>
    <message id="968">
        <source>Detected</source>
        <translation>Detectado</translation>
    </message>
    <message id="969">
        <source>Unchanged</source>
        <translation>Sin cambios</translation>
    </message>
    <message id="970">
        <source>Remove the camera of channel %1 from the recorder?</source>
        <translation>¿Desea quitar del grabador la cámara del canal %1?</translation>
    </message>
    <message id="971">
        <source>Filter the cameras found</source>
        <translation>Filtrar las cámaras encontradas</translation>
    </message>
    <message id="972">
        <source>No camera was found.</source>
        <translation>No se ha encontrado ninguna cámara.</translation>
    </message>
    <message id="973">
        <source>The recorder sees no camera on its network. Search again, or enter an address.</source>
        <translation>El grabador no ve ninguna cámara en su red. Busque de nuevo o escriba una dirección.</translation>
    </message>
    <message id="974">
        <source>Cameras found: %1</source>
        <translation>Cámaras encontradas: %1</translation>
    </message>
    <message id="975">
        <source>Asking the camera…</source>
        <translation>Consultando la cámara…</translation>
    </message>
    <message id="976">
        <source>Writing to the recorder…</source>
        <translation>Escribiendo en el grabador…</translation>
    </message>
    <message id="977">
        <source>Video source</source>
        <translation>Fuente de vídeo</translation>
    </message>
    <message id="978">
        <source>Detect the camera to see its video settings.</source>
        <translation>Detecte la cámara para ver sus ajustes de vídeo.</translation>
    </message>
    <message id="979">
        <source>Fish-eye view</source>
        <translation>Vista de ojo de pez</translation>
    </message>
    <message id="980">
        <source>The camera name must not contain a double quote (").</source>
        <translation>El nombre de cámara no puede contener comillas (").</translation>
    </message>
    <message id="981">
        <source>The configuration database cannot be opened: another program holds it, or it cannot be read. Nothing has been changed. Try again?</source>
        <translation>No se puede abrir la base de datos de configuración: otro programa la tiene ocupada o no se puede leer. No se ha cambiado nada. ¿Desea intentarlo de nuevo?</translation>
    </message>
    <message id="982">
        <source>The users could not be read from the database, so nobody can log in. Close the program that holds the database and start again. The reason is in the log files.</source>
        <translation>No se pudieron leer los usuarios de la base de datos, por lo que nadie puede iniciar sesión. Cierre el programa que ocupa la base de datos y vuelva a iniciar. El motivo se indica en los archivos de registro.</translation>
    </message>
    <message id="983">
        <source>These tables of the database could not be read: %1. They stay as they are. The reason is in the log files.</source>
        <translation>No se pudieron leer estas tablas de la base de datos: %1. No se modificarán. El motivo se indica en los archivos de registro.</translation>
    </message>
    <message id="995">
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message id="1000">
        <source>Keys</source>
        <translation>Teclas</translation>
    </message>
    <message id="1001">
        <source>Show the keys</source>
        <translation>Mostrar las teclas</translation>
    </message>
    <message id="1002">
        <source>Rename or edit the selected entry</source>
        <translation>Cambiar el nombre o editar la entrada seleccionada</translation>
    </message>
    <message id="1003">
        <source>Read the page again</source>
        <translation>Volver a leer la página</translation>
    </message>
    <message id="1004">
        <source>Filter the list</source>
        <translation>Filtrar la lista</translation>
    </message>
    <message id="1005">
        <source>Go to a page</source>
        <translation>Ir a una página</translation>
    </message>
    <message id="1006">
        <source>Press the button or open the selected entry</source>
        <translation>Pulsar el botón o abrir la entrada seleccionada</translation>
    </message>
    <message id="1007">
        <source>Remove the selected entry</source>
        <translation>Quitar la entrada seleccionada</translation>
    </message>
    <message id="1008">
        <source>Cancel or close</source>
        <translation>Cancelar o cerrar</translation>
    </message>
    <message id="1030">
        <source>Added: %1 of %2</source>
        <translation>Añadidos: %1 de %2</translation>
    </message>
    <message id="1031">
        <source>Added: %1 of %2, failed: %3</source>
        <translation>Añadidos: %1 de %2, con error: %3</translation>
    </message>
    <message id="1032">
        <source>Recorders that were not added can be tried again with another login.</source>
        <translation>Puede volver a intentarlo con otro usuario y otra contraseña para los grabadores no añadidos.</translation>
    </message>
    <message id="1033">
        <source>Try again</source>
        <translation>Reintentar</translation>
    </message>
    <message id="1034">
        <source>Login</source>
        <translation>Inicio de sesión</translation>
    </message>
    <message id="1035">
        <source>Added but not saved yet: %1.
Do you want to save?</source>
        <translation>Añadidos, pero aún sin guardar: %1.
¿Desea guardarlos?</translation>
    </message>
    <message id="1036">
        <source>No recorder has been added yet. Close and lose what you entered?</source>
        <translation>Aún no se ha añadido ningún grabador. ¿Desea cerrar y perder los datos introducidos?</translation>
    </message>
    <message id="1037">
        <source>More than one recorder would have this name: %1.
Do you want to use it anyway?</source>
        <translation>Más de un grabador tendría este nombre: %1.
¿Desea usarlo de todos modos?</translation>
    </message>
    <message id="1080">
        <source>A stored password is not shown. Typing replaces it.</source>
        <translation>Una contraseña guardada no se muestra. Si escribe otra, la sustituye.</translation>
    </message>
    <message id="1081">
        <source>Choose a group</source>
        <translation>Elija un grupo</translation>
    </message>
    <message id="1082">
        <source>No account yet</source>
        <translation>Aún no hay cuentas</translation>
    </message>
    <message id="1083">
        <source>These accounts are tried on recorders whose login is not known.</source>
        <translation>Estas cuentas se prueban en los grabadores cuyo acceso no se conoce.</translation>
    </message>
    <message id="1084">
        <source>Do you want to delete the selected account?</source>
        <translation>¿Desea eliminar la cuenta seleccionada?</translation>
    </message>
    <message id="1085">
        <source>No camera is accessible</source>
        <translation>Ninguna cámara accesible</translation>
    </message>
    <message id="1086">
        <source>Access follows from the rights of the user’s group.</source>
        <translation>El acceso depende de los permisos del grupo del usuario.</translation>
    </message>
    <message id="1087">
        <source>Open the folder?</source>
        <translation>¿Abrir la carpeta?</translation>
    </message>
    <message id="1088">
        <source>Filter users…</source>
        <translation>Filtrar usuarios…</translation>
    </message>
    <message id="1089">
        <source>No user matches the filter.</source>
        <translation>Ningún usuario coincide con el filtro.</translation>
    </message>
    <message id="1110">
        <source>Rename</source>
        <translation>Cambiar nombre</translation>
    </message>
    <message id="1221">
        <source>Waiting for the picture…</source>
        <translation>Esperando la imagen…</translation>
    </message>
    <message id="1222">
        <source>No picture</source>
        <translation>Sin imagen</translation>
    </message>
    <message id="1223">
        <source>Trying again…</source>
        <translation>Intentándolo de nuevo…</translation>
    </message>
    <message id="1260">
        <source>Filter maps and cameras…</source>
        <translation>Filtrar mapas y cámaras…</translation>
    </message>
    <message id="1261">
        <source>Cut</source>
        <translation>Cortar</translation>
    </message>
    <message id="1262">
        <source>Paste</source>
        <translation>Pegar</translation>
    </message>
    <message id="1263">
        <source>Move to…</source>
        <translation>Mover a…</translation>
    </message>
    <message id="1264">
        <source>A recorder's map goes under the main map or into a group.</source>
        <translation>El mapa de un grabador va bajo el mapa principal o en un grupo.</translation>
    </message>
    <message id="1265">
        <source>A camera goes on the map of its own recorder or one of its sub-maps; on the main map it is taken off all maps.</source>
        <translation>Una cámara va en el mapa de su grabador o en uno de sus submapas; en el mapa principal no está en ninguno.</translation>
    </message>
    <message id="1266">
        <source>It is there already.</source>
        <translation>Ya está ahí.</translation>
    </message>
    <message id="1267">
        <source>Only recorders' maps and cameras can be moved.</source>
        <translation>Solo se pueden mover los mapas de los grabadores y las cámaras.</translation>
    </message>
    <message id="1268">
        <source>Move</source>
        <translation>Mover</translation>
    </message>
    <message id="1269">
        <source>Show the map's picture</source>
        <translation>Mostrar la imagen del mapa</translation>
    </message>
    <message id="1270">
        <source>No map or camera matches the filter.</source>
        <translation>Ningún mapa ni cámara coincide con el filtro.</translation>
    </message>
    <message id="1271">
        <source>Enter a name to add a group.</source>
        <translation>Escriba un nombre para añadir un grupo.</translation>
    </message>
    <message id="1272">
        <source>Enter a name to add a sub-map. The map has the name of its recorder.</source>
        <translation>Escriba un nombre para añadir un submapa. El mapa lleva el nombre del grabador.</translation>
    </message>
    <message id="1273">
        <source>Drag recorders' maps into the group.</source>
        <translation>Arrastre mapas de grabadores al grupo.</translation>
    </message>
    <message id="1274">
        <source>Drag the camera to the map of its recorder.</source>
        <translation>Arrastre la cámara al mapa de su grabador.</translation>
    </message>
    <message id="1275">
        <source>Drag cameras of its recorder to the sub-map.</source>
        <translation>Arrastre al submapa cámaras de su grabador.</translation>
    </message>
</context>
</TS>
