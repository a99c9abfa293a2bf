<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name></name>
    <message id="0">
        <source>English</source>
        <translation>Anglais</translation>
    </message>
    <message id="1">
        <source>Traditional Chinese</source>
        <translation>Chinois traditionnel</translation>
    </message>
    <message id="2">
        <source>Simplified Chinese</source>
        <translation>Chinois simplifié</translation>
    </message>
    <message id="3">
        <source>Japanese</source>
        <translation>Japonais</translation>
    </message>
    <message id="4">
        <source>Spainish</source>
        <translation>Espagnol</translation>
    </message>
    <message id="5">
        <source>CGI ID is full !</source>
        <translation>Plus aucun identifiant CGI disponible.</translation>
    </message>
    <message id="6">
        <source>User Name or Password Error !</source>
        <translation>Nom d’utilisateur ou mot de passe incorrect.</translation>
    </message>
    <message id="7">
        <source>Device Connection Error !</source>
        <translation>Erreur de connexion à l’appareil.</translation>
    </message>
    <message id="8">
        <source>Device brand not supported !</source>
        <translation>Marque d’appareil non prise en charge.</translation>
    </message>
    <message id="9">
        <source>Sending CGI failed !</source>
        <translation>Échec de l’envoi de la commande CGI.</translation>
    </message>
    <message id="10">
        <source>Program has been opened !</source>
        <translation>Le programme est déjà ouvert.</translation>
    </message>
    <message id="11">
        <source>Application of Setup has been Opening . Please turn it off !</source>
        <translation>Le programme de configuration est ouvert. Veuillez le fermer.</translation>
    </message>
    <message id="12">
        <source>Database initialization ...</source>
        <translation>Initialisation de la base de données…</translation>
    </message>
    <message id="13">
        <source>Default Data to read ...</source>
        <translation>Lecture des données par défaut…</translation>
    </message>
    <message id="14">
        <source>Incorrect database version ! Do you want to reset the databse now ?</source>
        <translation>Version de la base de données incorrecte. Voulez-vous réinitialiser la base de données maintenant ?</translation>
    </message>
    <message id="15">
        <source>System will not be able to continue to work .</source>
        <translation>Le système ne peut pas continuer à fonctionner.</translation>
    </message>
    <message id="16">
        <source>Update Database ...</source>
        <translation>Mise à jour de la base de données…</translation>
    </message>
    <message id="17">
        <source>Data is loading ...</source>
        <translation>Chargement des données…</translation>
    </message>
    <message id="18">
        <source>Motion Detection setting is loading...</source>
        <translation>Chargement des paramètres de détection de mouvement…</translation>
    </message>
    <message id="19">
        <source>User Data is loading...</source>
        <translation>Chargement des données utilisateur…</translation>
    </message>
    <message id="20">
        <source>Group Data  is loading...</source>
        <translation>Chargement des données de groupe…</translation>
    </message>
    <message id="21">
        <source>Event setting is loading...</source>
        <translation>Chargement des paramètres d’événement…</translation>
    </message>
    <message id="22">
        <source>E-Map Data is loading ...</source>
        <translation>Chargement des données des plans…</translation>
    </message>
    <message id="23">
        <source>Multi-Screen set up is loading ...</source>
        <translation>Chargement de la configuration multi-écran…</translation>
    </message>
    <message id="24">
        <source>System component registering  ...</source>
        <translation>Enregistrement des composants système…</translation>
    </message>
    <message id="25">
        <source>Login Identification ...</source>
        <translation>Vérification de l’identité…</translation>
    </message>
    <message id="26">
        <source>Open Login Frame ...</source>
        <translation>Ouverture de la fenêtre de connexion…</translation>
    </message>
    <message id="27">
        <source>Loading User's Pattern …</source>
        <translation>Chargement des vues de l’utilisateur…</translation>
    </message>
    <message id="28">
        <source>Start Service Mode...</source>
        <translation>Démarrage du mode service…</translation>
    </message>
    <message id="29">
        <source>Start Monitor Window ...</source>
        <translation>Ouverture de la fenêtre moniteur…</translation>
    </message>
    <message id="30">
        <source>Start Auto Search …</source>
        <translation>Démarrage de la recherche automatique…</translation>
    </message>
    <message id="32">
        <source>Manual Startup</source>
        <translation>Démarrage manuel</translation>
    </message>
    <message id="33">
        <source>Device detect timeout !</source>
        <translation>Délai de détection de l’appareil dépassé.</translation>
    </message>
    <message id="34">
        <source>The channel of SVR has been removed. Please re-detect the SVR!</source>
        <translation>Le canal du SVR a été supprimé. Relancez la détection du SVR.</translation>
    </message>
    <message id="35">
        <source>Please enable SVR upnp port forwarding!</source>
        <translation>Activez la redirection de ports UPnP du SVR.</translation>
    </message>
    <message id="36">
        <source>Video Wall Setting</source>
        <translation>Paramètres du mur d’images</translation>
    </message>
    <message id="37">
        <source>Video Wall display position setting</source>
        <translation>Position sur le mur d’images</translation>
    </message>
    <message id="38">
        <source>Monitor</source>
        <translation>Moniteur</translation>
    </message>
    <message id="39">
        <source>Startup assign setting</source>
        <translation>Affectation au démarrage</translation>
    </message>
    <message id="40">
        <source>User</source>
        <translation>Utilisateur</translation>
    </message>
    <message id="41">
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message id="42">
        <source>User Field is Blank !</source>
        <translation>Le champ utilisateur est vide.</translation>
    </message>
    <message id="43">
        <source>Password Field is Blank !</source>
        <translation>Le champ mot de passe est vide.</translation>
    </message>
    <message id="44">
        <source>Incorrect User Account or Password !</source>
        <translation>Compte utilisateur ou mot de passe incorrect.</translation>
    </message>
    <message id="45">
        <source>Main Viewer</source>
        <translation>Visionneuse principale</translation>
    </message>
    <message id="46">
        <source>NVR Setting</source>
        <translation>Paramètres NVR</translation>
    </message>
    <message id="47">
        <source>Event-Triggered Notification</source>
        <translation>Notification sur événement</translation>
    </message>
    <message id="48">
        <source>Auto Search Notice</source>
        <translation>Notification de recherche automatique</translation>
    </message>
    <message id="49">
        <source>Event Synchronization Manually Update</source>
        <translation>Synchronisation manuelle des événements</translation>
    </message>
    <message id="50">
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message id="51">
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message id="52">
        <source>Split</source>
        <translation>Mosaïque</translation>
    </message>
    <message id="53">
        <source>Change Channel</source>
        <translation>Changer de canal</translation>
    </message>
    <message id="54">
        <source>OSD Display</source>
        <translation>Affichage OSD</translation>
    </message>
    <message id="55">
        <source>CH</source>
        <translation>Canal</translation>
    </message>
    <message id="56">
        <source>Path</source>
        <translation>Chemin</translation>
    </message>
    <message id="57">
        <source>OSD Channel</source>
        <translation>Canal en OSD</translation>
    </message>
    <message id="58">
        <source>OSD Time</source>
        <translation>Heure en OSD</translation>
    </message>
    <message id="59">
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message id="60">
        <source>Camera Event Server Setting Error!</source>
        <translation>Erreur de paramétrage du serveur d’événements de la caméra.</translation>
    </message>
    <message id="61">
        <source>Snapshot Error!</source>
        <translation>Erreur de capture.</translation>
    </message>
    <message id="62">
        <source>Event Notification is still ongoing.</source>
        <translation>La notification des événements est encore en cours.</translation>
    </message>
    <message id="63">
        <source>Do you want to exit and open rigging desk?</source>
        <translation>Voulez-vous quitter et ouvrir Rigging Desk ?</translation>
    </message>
    <message id="64">
        <source>Auto-Search Notice</source>
        <translation>Notification de recherche automatique</translation>
    </message>
    <message id="65">
        <source>Closing...</source>
        <translation>Fermeture…</translation>
    </message>
    <message id="66">
        <source>Devcie is Found!</source>
        <translation>Appareil trouvé.</translation>
    </message>
    <message id="67">
        <source>Fix display mode</source>
        <translation>Affichage fixe</translation>
    </message>
    <message id="68">
        <source>Video Wall default startup setting</source>
        <translation>Démarrage par défaut du mur d’images</translation>
    </message>
    <message id="69">
        <source>Intelligent Overview</source>
        <translation>Synthèse de l’analyse vidéo</translation>
    </message>
    <message id="70">
        <source>Do You Want to Save Snapshot Images ?</source>
        <translation>Voulez-vous enregistrer les captures d’image ?</translation>
    </message>
    <message id="71">
        <source>User Name or Password error !</source>
        <translation>Nom d’utilisateur ou mot de passe incorrect.</translation>
    </message>
    <message id="72">
        <source>Brand not supported!</source>
        <translation>Marque non prise en charge.</translation>
    </message>
    <message id="73">
        <source>Camera not supported!</source>
        <translation>Caméra non prise en charge.</translation>
    </message>
    <message id="74">
        <source>Device connection error!</source>
        <translation>Erreur de connexion à l’appareil.</translation>
    </message>
    <message id="75">
        <source>Device detection timeout!</source>
        <translation>Délai de détection de l’appareil dépassé.</translation>
    </message>
    <message id="76">
        <source>Unable to connect to the server!</source>
        <translation>Impossible de se connecter au serveur.</translation>
    </message>
    <message id="77">
        <source>Service has not connect yet!</source>
        <translation>Le service n’est pas encore connecté.</translation>
    </message>
    <message id="78">
        <source>This series of device does not allow repeat add!</source>
        <translation>Cette série d’appareils ne peut pas être ajoutée plusieurs fois.</translation>
    </message>
    <message id="79">
        <source>SEQ by Channel</source>
        <translation>Séquence par canal</translation>
    </message>
    <message id="80">
        <source>SEQ by NVR</source>
        <translation>Séquence par NVR</translation>
    </message>
    <message id="81">
        <source>SEQ by Pattern</source>
        <translation>Séquence par vue</translation>
    </message>
    <message id="82">
        <source>NVR List</source>
        <translation>Liste des NVR</translation>
    </message>
    <message id="83">
        <source>Dwell time</source>
        <translation>Temporisation</translation>
    </message>
    <message id="84">
        <source>SEQ function is starting, do you want to continue to start SEQ content setting, which will stop SEQ function?</source>
        <translation>La séquence est en cours. Voulez-vous l’arrêter pour en paramétrer le contenu ?</translation>
    </message>
    <message id="85">
        <source>Channel SEQ not available! Please select more than one channel when using this function.</source>
        <translation>Séquence par canal non disponible. Sélectionnez plusieurs canaux pour utiliser cette fonction.</translation>
    </message>
    <message id="86">
        <source>NVR SEQ not available! Please select more than one NVR when using this function.</source>
        <translation>Séquence par NVR non disponible. Sélectionnez plusieurs NVR pour utiliser cette fonction.</translation>
    </message>
    <message id="87">
        <source>Pattern SEQ not available! Please select more than one patterns when using this function.</source>
        <translation>Séquence par vue non disponible. Sélectionnez plusieurs vues pour utiliser cette fonction.</translation>
    </message>
    <message id="88">
        <source>Do you want to enable SEQ by Channel?</source>
        <translation>Voulez-vous activer la séquence par canal ?</translation>
    </message>
    <message id="89">
        <source>Do you want to enable SEQ by NVR?</source>
        <translation>Voulez-vous activer la séquence par NVR ?</translation>
    </message>
    <message id="90">
        <source>Do you want to enable SEQ by Pattern?</source>
        <translation>Voulez-vous activer la séquence par vue ?</translation>
    </message>
    <message id="91">
        <source>Camera event setting can't exceed 32!</source>
        <translation>Le nombre d’événements caméra ne peut pas dépasser 32.</translation>
    </message>
    <message id="92">
        <source>Please add a NVR first!</source>
        <translation>Ajoutez d’abord un NVR.</translation>
    </message>
    <message id="93">
        <source>Port number can't accept 0 or more than 65536.</source>
        <translation>Le numéro de port ne peut pas être 0 ni supérieur à 65536.</translation>
    </message>
    <message id="94">
        <source>Drive</source>
        <translation>Lecteur</translation>
    </message>
    <message id="95">
        <source>Size(GB)</source>
        <translation>Taille (Go)</translation>
    </message>
    <message id="96">
        <source>Free(GB)</source>
        <translation>Libre (Go)</translation>
    </message>
    <message id="97">
        <source>Usage(%)</source>
        <translation>Utilisé (%)</translation>
    </message>
    <message id="98">
        <source>Storage Path</source>
        <translation>Chemin de stockage</translation>
    </message>
    <message id="99">
        <source>Select a Path</source>
        <translation>Sélectionnez un chemin</translation>
    </message>
    <message id="100">
        <source>Live Monitor</source>
        <translation>Moniteur en direct</translation>
    </message>
    <message id="101">
        <source>Event Monitor</source>
        <translation>Moniteur d’événements</translation>
    </message>
    <message id="102">
        <source>Playback</source>
        <translation>Relecture</translation>
    </message>
    <message id="103">
        <source>E-MAP Monitor</source>
        <translation>Moniteur de plans</translation>
    </message>
    <message id="104">
        <source>User Pattern</source>
        <translation>Vue utilisateur</translation>
    </message>
    <message id="105">
        <source>Split</source>
        <translation>Mosaïque</translation>
    </message>
    <message id="106">
        <source>Pattern Name</source>
        <translation>Nom de la vue</translation>
    </message>
    <message id="107">
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message id="108">
        <source>Channel Status</source>
        <translation>État du canal</translation>
    </message>
    <message id="109">
        <source>Network Disconnection</source>
        <translation>Déconnexion réseau</translation>
    </message>
    <message id="110">
        <source>Network connection</source>
        <translation>Connexion réseau</translation>
    </message>
    <message id="111">
        <source>Recording</source>
        <translation>Enregistrement</translation>
    </message>
    <message id="112">
        <source>Event Trigger</source>
        <translation>Événement déclenché</translation>
    </message>
    <message id="113">
        <source>Connecting</source>
        <translation>Connexion en cours</translation>
    </message>
    <message id="114">
        <source>Video Loss</source>
        <translation>Perte vidéo</translation>
    </message>
    <message id="115">
        <source>SEQ Mode</source>
        <translation>Mode séquence</translation>
    </message>
    <message id="116">
        <source>(Sec)</source>
        <translation>(s)</translation>
    </message>
    <message id="117">
        <source>Start</source>
        <translation>Démarrer</translation>
    </message>
    <message id="118">
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message id="119">
        <source>SEQ contents</source>
        <translation>Contenu de la séquence</translation>
    </message>
    <message id="120">
        <source>SEQ ALL</source>
        <translation>Tous en séquence</translation>
    </message>
    <message id="121">
        <source>SEQ</source>
        <translation>Séquence</translation>
    </message>
    <message id="122">
        <source>Pattern SEQ</source>
        <translation>Séquence de vues</translation>
    </message>
    <message id="123">
        <source>Service Mode</source>
        <translation>Mode service</translation>
    </message>
    <message id="124">
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message id="125">
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message id="126">
        <source>Event Info</source>
        <translation>Infos événement</translation>
    </message>
    <message id="127">
        <source>Event</source>
        <translation>Événement</translation>
    </message>
    <message id="128">
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message id="129">
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message id="130">
        <source>System Info</source>
        <translation>Infos système</translation>
    </message>
    <message id="131">
        <source>Info</source>
        <translation>Infos</translation>
    </message>
    <message id="132">
        <source>System Time:</source>
        <translation>Heure système :</translation>
    </message>
    <message id="133">
        <source>Group Level:</source>
        <translation>Niveau du groupe :</translation>
    </message>
    <message id="134">
        <source>CPU:</source>
        <translation>CPU :</translation>
    </message>
    <message id="135">
        <source>PRESET</source>
        <translation>PRÉRÉGLAGE</translation>
    </message>
    <message id="136">
        <source>Preset:</source>
        <translation>Préréglage :</translation>
    </message>
    <message id="137">
        <source>Unable to support full screen mode or to change split mode under SEQ mode.</source>
        <translation>En mode séquence, le plein écran et le changement de mosaïque ne sont pas disponibles.</translation>
    </message>
    <message id="138">
        <source>Full screen is running. close it first!</source>
        <translation>Le plein écran est actif. Fermez-le d’abord.</translation>
    </message>
    <message id="139">
        <source>Unauthorised</source>
        <translation>Non autorisé</translation>
    </message>
    <message id="140">
        <source>Select a channel first.</source>
        <translation>Sélectionnez d’abord un canal.</translation>
    </message>
    <message id="141">
        <source>Name Repeat!</source>
        <translation>Ce nom existe déjà.</translation>
    </message>
    <message id="142">
        <source>MENU</source>
        <translation>MENU</translation>
    </message>
    <message id="143">
        <source>TREE</source>
        <translation>ARBRE</translation>
    </message>
    <message id="144">
        <source>PATTERN</source>
        <translation>VUE</translation>
    </message>
    <message id="145">
        <source>STATUS</source>
        <translation>ÉTAT</translation>
    </message>
    <message id="146">
        <source>SEQ</source>
        <translation>SÉQUENCE</translation>
    </message>
    <message id="147">
        <source>SYSTEM</source>
        <translation>SYSTÈME</translation>
    </message>
    <message id="148">
        <source>CH:</source>
        <translation>Canal :</translation>
    </message>
    <message id="149">
        <source>Reconnection</source>
        <translation>Reconnexion</translation>
    </message>
    <message id="150">
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message id="151">
        <source>Display Image of Motion Detection </source>
        <translation>Afficher l’image de détection de mouvement </translation>
    </message>
    <message id="152">
        <source>Snapshot</source>
        <translation>Capture</translation>
    </message>
    <message id="153">
        <source>Preset Point Setting</source>
        <translation>Points de préréglage</translation>
    </message>
    <message id="154">
        <source>When modify setting, the channel of pattern will be changed.</source>
        <translation>La modification des paramètres changera les canaux des vues.</translation>
    </message>
    <message id="155">
        <source>Snapshot fail !</source>
        <translation>Échec de la capture.</translation>
    </message>
    <message id="156">
        <source>Preset Patrol:</source>
        <translation>Ronde de préréglages :</translation>
    </message>
    <message id="157">
        <source>Loading Fullscreen layout data…</source>
        <translation>Chargement de la disposition plein écran…</translation>
    </message>
    <message id="158">
        <source>Dock</source>
        <translation>Ancrer</translation>
    </message>
    <message id="159">
        <source>Control Panel</source>
        <translation>Panneau de commande</translation>
    </message>
    <message id="160">
        <source>Name:</source>
        <translation>Nom :</translation>
    </message>
    <message id="161">
        <source>Channel:</source>
        <translation>Canal :</translation>
    </message>
    <message id="162">
        <source>CH Name:</source>
        <translation>Nom canal :</translation>
    </message>
    <message id="163">
        <source>Event Mode:</source>
        <translation>Type d’événement :</translation>
    </message>
    <message id="164">
        <source>Event Trigger Time:</source>
        <translation>Heure de l’événement :</translation>
    </message>
    <message id="165">
        <source>Contact:</source>
        <translation>Contact :</translation>
    </message>
    <message id="166">
        <source>Phone:</source>
        <translation>Téléphone :</translation>
    </message>
    <message id="167">
        <source>Play Time(SYSTEM):</source>
        <translation>Heure de lecture (système) :</translation>
    </message>
    <message id="168">
        <source>Current Event List</source>
        <translation>Événements actuels</translation>
    </message>
    <message id="169">
        <source>Log Event List</source>
        <translation>Événements journalisés</translation>
    </message>
    <message id="170">
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message id="171">
        <source>Search All</source>
        <translation>Tout rechercher</translation>
    </message>
    <message id="172">
        <source>Search Start Time</source>
        <translation>Rechercher depuis</translation>
    </message>
    <message id="173">
        <source>Search by Event type</source>
        <translation>Rechercher par type d’événement</translation>
    </message>
    <message id="174">
        <source>Item</source>
        <translation>Élément</translation>
    </message>
    <message id="175">
        <source>Event ID</source>
        <translation>ID événement</translation>
    </message>
    <message id="176">
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message id="177">
        <source>System Time</source>
        <translation>Heure système</translation>
    </message>
    <message id="178">
        <source>NO.</source>
        <translation>N°</translation>
    </message>
    <message id="179">
        <source>CH</source>
        <translation>Canal</translation>
    </message>
    <message id="180">
        <source>Event Mode</source>
        <translation>Type d’événement</translation>
    </message>
    <message id="181">
        <source>Process</source>
        <translation>Traitement</translation>
    </message>
    <message id="182">
        <source>On-Line</source>
        <translation>En ligne</translation>
    </message>
    <message id="183">
        <source>Channel Name</source>
        <translation>Nom du canal</translation>
    </message>
    <message id="184">
        <source>Channel Detail</source>
        <translation>Détail du canal</translation>
    </message>
    <message id="185">
        <source>Play Error</source>
        <translation>Erreur de lecture</translation>
    </message>
    <message id="186">
        <source>Play Stop</source>
        <translation>Lecture arrêtée</translation>
    </message>
    <message id="187">
        <source>Live Video</source>
        <translation>Vidéo en direct</translation>
    </message>
    <message id="188">
        <source>Live Stop</source>
        <translation>Direct arrêté</translation>
    </message>
    <message id="189">
        <source>Off Line</source>
        <translation>Hors ligne</translation>
    </message>
    <message id="190">
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message id="191">
        <source>Motion</source>
        <translation>Mouvement</translation>
    </message>
    <message id="192">
        <source>Sensor</source>
        <translation>Capteur</translation>
    </message>
    <message id="193">
        <source>Return message: </source>
        <translation>Message reçu : </translation>
    </message>
    <message id="194">
        <source>NVR no playback resource!</source>
        <translation>Le NVR n’a plus de ressource de relecture disponible.</translation>
    </message>
    <message id="195">
        <source>Playback request failed!</source>
        <translation>Échec de la demande de relecture.</translation>
    </message>
    <message id="196">
        <source>Reset Event List</source>
        <translation>Réinitialiser la liste</translation>
    </message>
    <message id="197">
        <source>X</source>
        <translation>X</translation>
    </message>
    <message id="198">
        <source>Return</source>
        <translation>Retour</translation>
    </message>
    <message id="199">
        <source>SEQ Duration Time</source>
        <translation>Durée de la séquence</translation>
    </message>
    <message id="200">
        <source>Playback Info</source>
        <translation>Infos de relecture</translation>
    </message>
    <message id="201">
        <source>NVR:</source>
        <translation>NVR :</translation>
    </message>
    <message id="202">
        <source>CH:</source>
        <translation>Canal :</translation>
    </message>
    <message id="203">
        <source>Speed:</source>
        <translation>Vitesse :</translation>
    </message>
    <message id="204">
        <source>Sun</source>
        <translation>Dim</translation>
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
        <translation>Jeu</translation>
    </message>
    <message id="209">
        <source>Fri</source>
        <translation>Ven</translation>
    </message>
    <message id="210">
        <source>Sat</source>
        <translation>Sam</translation>
    </message>
    <message id="211">
        <source>Event List</source>
        <translation>Liste d’événements</translation>
    </message>
    <message id="212">
        <source>Receiving recording data failed</source>
        <translation>Échec de la réception des données d’enregistrement.</translation>
    </message>
    <message id="213">
        <source>RF</source>
        <translation>RETOUR</translation>
    </message>
    <message id="214">
        <source>STOP</source>
        <translation>ARRÊTER</translation>
    </message>
    <message id="215">
        <source>PLAY</source>
        <translation>LECTURE</translation>
    </message>
    <message id="216">
        <source>PAUSE</source>
        <translation>PAUSE</translation>
    </message>
    <message id="217">
        <source>FF</source>
        <translation>AVANCE</translation>
    </message>
    <message id="218">
        <source>NEXT</source>
        <translation>SUIVANT</translation>
    </message>
    <message id="219">
        <source>No recording data can be Displayed !</source>
        <translation>Aucune donnée d’enregistrement à afficher.</translation>
    </message>
    <message id="220">
        <source>Play Stop ! Need to select new time.</source>
        <translation>Lecture arrêtée. Sélectionnez une autre heure.</translation>
    </message>
    <message id="221">
        <source>No response! you can try again or select another device !</source>
        <translation>Aucune réponse. Réessayez ou sélectionnez un autre appareil.</translation>
    </message>
    <message id="222">
        <source>Disconnection ! </source>
        <translation>Connexion perdue. </translation>
    </message>
    <message id="223">
        <source>Can not get video stream ! please select other Channel.</source>
        <translation>Impossible d’obtenir le flux vidéo. Sélectionnez un autre canal.</translation>
    </message>
    <message id="224">
        <source>No recording data.</source>
        <translation>Aucune donnée d’enregistrement.</translation>
    </message>
    <message id="225">
        <source>Recording data is updating, please wait .</source>
        <translation>Mise à jour des données d’enregistrement. Veuillez patienter.</translation>
    </message>
    <message id="226">
        <source>Convert to AVI</source>
        <translation>Convertir en AVI</translation>
    </message>
    <message id="227">
        <source>Do you want to stop the conversion of avi file ?</source>
        <translation>Voulez-vous arrêter la conversion du fichier AVI ?</translation>
    </message>
    <message id="228">
        <source>AVI file conversion complete! File is... </source>
        <translation>Conversion en AVI terminée. Le fichier est… </translation>
    </message>
    <message id="229">
        <source>Converting AVI file!</source>
        <translation>Conversion du fichier AVI en cours.</translation>
    </message>
    <message id="230">
        <source>AVI Conversion Fail !</source>
        <translation>Échec de la conversion en AVI.</translation>
    </message>
    <message id="231">
        <source>Auto Pan:</source>
        <translation>Pan auto :</translation>
    </message>
    <message id="232">
        <source>Single Video</source>
        <translation>Une vidéo</translation>
    </message>
    <message id="233">
        <source>Quad Videos</source>
        <translation>Quatre vidéos</translation>
    </message>
    <message id="234">
        <source>Nine Videos</source>
        <translation>Neuf vidéos</translation>
    </message>
    <message id="235">
        <source>No any SVD has been set, you need to add any SVD to control!</source>
        <translation>Aucun SVD n’est configuré. Ajoutez un SVD à piloter.</translation>
    </message>
    <message id="236">
        <source>This channel has been set to display in this screen!</source>
        <translation>Ce canal est déjà affecté à cet écran.</translation>
    </message>
    <message id="237">
        <source>Are you sure to exit SVD console monitor?</source>
        <translation>Voulez-vous vraiment quitter le moniteur de la console SVD ?</translation>
    </message>
    <message id="238">
        <source>Click here to reconnect again!</source>
        <translation>Cliquez ici pour vous reconnecter.</translation>
    </message>
    <message id="239">
        <source>SVD UI is changing…</source>
        <translation>Changement de l’interface du SVD…</translation>
    </message>
    <message id="240">
        <source>NO.:</source>
        <translation>N° :</translation>
    </message>
    <message id="241">
        <source>Name:</source>
        <translation>Nom :</translation>
    </message>
    <message id="242">
        <source>Number of Camera:</source>
        <translation>Nombre de caméras :</translation>
    </message>
    <message id="243">
        <source>Event:</source>
        <translation>Événement :</translation>
    </message>
    <message id="244">
        <source>No Event</source>
        <translation>Aucun événement</translation>
    </message>
    <message id="245">
        <source>CH:</source>
        <translation>Canal :</translation>
    </message>
    <message id="246">
        <source>Up</source>
        <translation>Haut</translation>
    </message>
    <message id="247">
        <source>Down</source>
        <translation>Bas</translation>
    </message>
    <message id="248">
        <source>Left</source>
        <translation>Gauche</translation>
    </message>
    <message id="249">
        <source>Right</source>
        <translation>Droite</translation>
    </message>
    <message id="250">
        <source>Upper left</source>
        <translation>Haut gauche</translation>
    </message>
    <message id="251">
        <source>Upper right</source>
        <translation>Haut droite</translation>
    </message>
    <message id="252">
        <source>Lower left</source>
        <translation>Bas gauche</translation>
    </message>
    <message id="253">
        <source>Lower right</source>
        <translation>Bas droite</translation>
    </message>
    <message id="254">
        <source>Home</source>
        <translation>Origine</translation>
    </message>
    <message id="255">
        <source>Zoom In</source>
        <translation>Zoom avant</translation>
    </message>
    <message id="256">
        <source>Zoom Out</source>
        <translation>Zoom arrière</translation>
    </message>
    <message id="257">
        <source>Focus Far</source>
        <translation>Focus loin</translation>
    </message>
    <message id="258">
        <source>Focus Near</source>
        <translation>Focus près</translation>
    </message>
    <message id="259">
        <source>Auto Focus</source>
        <translation>Autofocus</translation>
    </message>
    <message id="260">
        <source>IRIS Auto</source>
        <translation>Iris auto</translation>
    </message>
    <message id="261">
        <source>IRIS Close</source>
        <translation>Fermer l’iris</translation>
    </message>
    <message id="262">
        <source>IRIS Open</source>
        <translation>Ouvrir l’iris</translation>
    </message>
    <message id="263">
        <source>Auto Pan Left</source>
        <translation>Pan auto gauche</translation>
    </message>
    <message id="264">
        <source>Auto Pan Right</source>
        <translation>Pan auto droite</translation>
    </message>
    <message id="265">
        <source>Auto Pan Stop</source>
        <translation>Arrêter le pan auto</translation>
    </message>
    <message id="266">
        <source>Moving Rate(+)</source>
        <translation>Vitesse (+)</translation>
    </message>
    <message id="267">
        <source>Moving Rate(-)</source>
        <translation>Vitesse (-)</translation>
    </message>
    <message id="268">
        <source>Display OSD on all channels</source>
        <translation>Afficher l’OSD sur tous les canaux</translation>
    </message>
    <message id="269">
        <source>Display OSD</source>
        <translation>Afficher l’OSD</translation>
    </message>
    <message id="270">
        <source>Detail Export:</source>
        <translation>Exporter le détail :</translation>
    </message>
    <message id="271">
        <source>Valid Ch</source>
        <translation>Can. valides</translation>
    </message>
    <message id="272">
        <source>Auto Search</source>
        <translation>Recherche auto</translation>
    </message>
    <message id="273">
        <source>Manual Detection</source>
        <translation>Détection manuelle</translation>
    </message>
    <message id="274">
        <source>NVR ID:</source>
        <translation>ID NVR :</translation>
    </message>
    <message id="275">
        <source>IP:</source>
        <translation>IP :</translation>
    </message>
    <message id="276">
        <source>HTTP Port:</source>
        <translation>Port HTTP :</translation>
    </message>
    <message id="277">
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
    <message id="278">
        <source>Device Name</source>
        <translation>Nom de l’appareil</translation>
    </message>
    <message id="279">
        <source>All</source>
        <translation>Tous</translation>
    </message>
    <message id="280">
        <source>CHs</source>
        <translation>Canaux</translation>
    </message>
    <message id="281">
        <source>Model:</source>
        <translation>Modèle :</translation>
    </message>
    <message id="282">
        <source>Max Channel:</source>
        <translation>Max. canaux :</translation>
    </message>
    <message id="283">
        <source>NVR Name:</source>
        <translation>Nom du NVR :</translation>
    </message>
    <message id="284">
        <source>Version:</source>
        <translation>Version :</translation>
    </message>
    <message id="285">
        <source>Valid Channel:</source>
        <translation>Canaux valides :</translation>
    </message>
    <message id="286">
        <source>Sync With NVR</source>
        <translation>Synchroniser avec le NVR</translation>
    </message>
    <message id="287">
        <source>Add New NVR </source>
        <translation>Ajouter un NVR </translation>
    </message>
    <message id="288">
        <source>NVR Search List</source>
        <translation>NVR trouvés</translation>
    </message>
    <message id="289">
        <source>NVR Detect Status</source>
        <translation>État de détection NVR</translation>
    </message>
    <message id="290">
        <source>NVR Detail Setting</source>
        <translation>Paramètres détaillés du NVR</translation>
    </message>
    <message id="291">
        <source>NVR Channel Setting</source>
        <translation>Paramètres des canaux du NVR</translation>
    </message>
    <message id="292">
        <source>Preset Sequence Setting</source>
        <translation>Paramètres de séquence de préréglages</translation>
    </message>
    <message id="293">
        <source>Get Capability...</source>
        <translation>Lecture des capacités…</translation>
    </message>
    <message id="294">
        <source>Get Channel Info...</source>
        <translation>Lecture des infos des canaux…</translation>
    </message>
    <message id="295">
        <source>Get NVR Info...</source>
        <translation>Lecture des infos du NVR…</translation>
    </message>
    <message id="296">
        <source>Initial NVR Value...</source>
        <translation>Initialisation des valeurs du NVR…</translation>
    </message>
    <message id="297">
        <source>Add Success!</source>
        <translation>Ajout réussi.</translation>
    </message>
    <message id="298">
        <source>Channel List</source>
        <translation>Liste des canaux</translation>
    </message>
    <message id="299">
        <source>Split:</source>
        <translation>Mosaïque :</translation>
    </message>
    <message id="300">
        <source>MainViewer opened. Close it First!</source>
        <translation>La visionneuse principale est ouverte. Fermez-la d’abord.</translation>
    </message>
    <message id="301">
        <source>System &amp; Setting</source>
        <translation>Système et paramètres</translation>
    </message>
    <message id="302">
        <source>Setting</source>
        <translation>Paramètres</translation>
    </message>
    <message id="303">
        <source>Manual Setting</source>
        <translation>Paramétrage manuel</translation>
    </message>
    <message id="304">
        <source>PTZ Config</source>
        <translation>Paramètres PTZ</translation>
    </message>
    <message id="305">
        <source>Motion Setting</source>
        <translation>Paramètres de mouvement</translation>
    </message>
    <message id="306">
        <source>Motion Setting</source>
        <translation>Paramètres de mouvement</translation>
    </message>
    <message id="307">
        <source>General Setting Overview</source>
        <translation>Synthèse des paramètres généraux</translation>
    </message>
    <message id="308">
        <source>Group/User Config</source>
        <translation>Paramètres groupes/utilisateurs</translation>
    </message>
    <message id="309">
        <source>Event Handling Config</source>
        <translation>Paramètres des événements</translation>
    </message>
    <message id="310">
        <source>E-Map Config</source>
        <translation>Paramètres des plans</translation>
    </message>
    <message id="311">
        <source>Screen Layout Config</source>
        <translation>Paramètres des écrans</translation>
    </message>
    <message id="312">
        <source>Event Action Overview</source>
        <translation>Synthèse des actions sur événement</translation>
    </message>
    <message id="313">
        <source>Mail Config</source>
        <translation>Paramètres e-mail</translation>
    </message>
    <message id="314">
        <source>FTP Config</source>
        <translation>Paramètres FTP</translation>
    </message>
    <message id="315">
        <source>Message Config</source>
        <translation>Paramètres des messages</translation>
    </message>
    <message id="316">
        <source>Sound Config</source>
        <translation>Paramètres du son</translation>
    </message>
    <message id="317">
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message id="318">
        <source>Main Viewer</source>
        <translation>Visionneuse principale</translation>
    </message>
    <message id="319">
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message id="320">
        <source>Setup</source>
        <translation>Configuration</translation>
    </message>
    <message id="321">
        <source>SEQ Control</source>
        <translation>Commande de séquence</translation>
    </message>
    <message id="322">
        <source>Pattern Name:</source>
        <translation>Nom de la vue :</translation>
    </message>
    <message id="323">
        <source>Do you continue to delete this pattern?</source>
        <translation>Voulez-vous supprimer cette vue ?</translation>
    </message>
    <message id="324">
        <source>Pattern List Overview</source>
        <translation>Synthèse des vues</translation>
    </message>
    <message id="325">
        <source>Name or Channel list need to be set!</source>
        <translation>Indiquez le nom ou la liste des canaux.</translation>
    </message>
    <message id="326">
        <source>Live Monitor SEQ and full screen can not be opened at the same time.</source>
        <translation>La séquence en direct et le plein écran ne peuvent pas être ouverts en même temps.</translation>
    </message>
    <message id="327">
        <source>No channel is selected!</source>
        <translation>Aucun canal n’est sélectionné.</translation>
    </message>
    <message id="328">
        <source>Select time is out of data range!</source>
        <translation>L’heure sélectionnée est hors de la plage de données.</translation>
    </message>
    <message id="329">
        <source>NVR is invalid!</source>
        <translation>Le NVR n’est pas valide.</translation>
    </message>
    <message id="330">
        <source>System Setting</source>
        <translation>Paramètres système</translation>
    </message>
    <message id="331">
        <source>Application name:</source>
        <translation>Nom de l’application :</translation>
    </message>
    <message id="332">
        <source>Version:</source>
        <translation>Version :</translation>
    </message>
    <message id="333">
        <source>Language:</source>
        <translation>Langue :</translation>
    </message>
    <message id="334">
        <source>Start Up:</source>
        <translation>Démarrage :</translation>
    </message>
    <message id="335">
        <source>Event Sync Time:</source>
        <translation>Synchro événements :</translation>
    </message>
    <message id="336">
        <source>Snapshot Count:</source>
        <translation>Nombre de captures :</translation>
    </message>
    <message id="337">
        <source>Camera Event Server Setting</source>
        <translation>Paramètres du serveur d’événements de la caméra</translation>
    </message>
    <message id="338">
        <source>Account:</source>
        <translation>Compte :</translation>
    </message>
    <message id="339">
        <source>Password:</source>
        <translation>Mot de passe :</translation>
    </message>
    <message id="340">
        <source>Port:</source>
        <translation>Port :</translation>
    </message>
    <message id="341">
        <source>System Info</source>
        <translation>Infos système</translation>
    </message>
    <message id="343">
        <source>OS:</source>
        <translation>OS :</translation>
    </message>
    <message id="344">
        <source>CPU:</source>
        <translation>CPU :</translation>
    </message>
    <message id="345">
        <source>RAM:</source>
        <translation>RAM :</translation>
    </message>
    <message id="346">
        <source>Computer name:</source>
        <translation>Nom de l’ordinateur :</translation>
    </message>
    <message id="347">
        <source>Total space of HD:</source>
        <translation>Espace disque total :</translation>
    </message>
    <message id="348">
        <source>Network Connect Status:</source>
        <translation>État de la connexion réseau :</translation>
    </message>
    <message id="349">
        <source>System Time:</source>
        <translation>Heure système :</translation>
    </message>
    <message id="350">
        <source>Screen Count:</source>
        <translation>Nombre d’écrans :</translation>
    </message>
    <message id="351">
        <source>CPU Performance:</source>
        <translation>Performances CPU :</translation>
    </message>
    <message id="352">
        <source>Login Windows then Auto Start up </source>
        <translation>Démarrer à l’ouverture de session Windows </translation>
    </message>
    <message id="353">
        <source>Start in background</source>
        <translation>Démarrer en arrière-plan</translation>
    </message>
    <message id="354">
        <source>Minute</source>
        <translation>Minutes</translation>
    </message>
    <message id="356">
        <source>NVR is connecting, wait a moment and start again!</source>
        <translation>Connexion au NVR en cours. Patientez un instant, puis réessayez.</translation>
    </message>
    <message id="357">
        <source>NVR is offline, please choose another NVR or confirm this NVR connection status!</source>
        <translation>Le NVR est hors ligne. Choisissez un autre NVR ou vérifiez l’état de connexion de celui-ci.</translation>
    </message>
    <message id="358">
        <source>Output device has been removed!</source>
        <translation>Le périphérique de sortie a été retiré.</translation>
    </message>
    <message id="359">
        <source>Password confirm inconsistency, Please check again!</source>
        <translation>Les mots de passe ne correspondent pas. Veuillez vérifier.</translation>
    </message>
    <message id="360">
        <source>List:</source>
        <translation>Liste :</translation>
    </message>
    <message id="361">
        <source>NVR</source>
        <translation>NVR</translation>
    </message>
    <message id="362">
        <source>Name</source>
        <translation>Nom</translation>
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
        <translation>Droits</translation>
    </message>
    <message id="366">
        <source>CH</source>
        <translation>Canal</translation>
    </message>
    <message id="367">
        <source>CH Name</source>
        <translation>Nom canal</translation>
    </message>
    <message id="368">
        <source>CH IP</source>
        <translation>IP canal</translation>
    </message>
    <message id="369">
        <source>CH Port</source>
        <translation>Port canal</translation>
    </message>
    <message id="370">
        <source>CH Brand</source>
        <translation>Marque canal</translation>
    </message>
    <message id="371">
        <source>Video Format</source>
        <translation>Format vidéo</translation>
    </message>
    <message id="372">
        <source>Video RES</source>
        <translation>Rés. vidéo</translation>
    </message>
    <message id="373">
        <source>MD Enable</source>
        <translation>Mvt actif</translation>
    </message>
    <message id="374">
        <source>MD Sen</source>
        <translation>Sens. mvt</translation>
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
        <translation>Liste de détection</translation>
    </message>
    <message id="378">
        <source>Advance Control </source>
        <translation>Commande avancée </translation>
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
        <translation>Marque</translation>
    </message>
    <message id="382">
        <source>Model</source>
        <translation>Modèle</translation>
    </message>
    <message id="383">
        <source>MAC</source>
        <translation>MAC</translation>
    </message>
    <message id="384">
        <source>Detect Time</source>
        <translation>Heure détection</translation>
    </message>
    <message id="385">
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message id="386">
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message id="387">
        <source>Modify</source>
        <translation>Modifier</translation>
    </message>
    <message id="388">
        <source>Reconection </source>
        <translation>Reconnecter </translation>
    </message>
    <message id="389">
        <source>Open Browser</source>
        <translation>Ouvrir le navigateur</translation>
    </message>
    <message id="390">
        <source>Preset Info</source>
        <translation>Infos préréglage</translation>
    </message>
    <message id="391">
        <source>Sync</source>
        <translation>Synchroniser</translation>
    </message>
    <message id="392">
        <source>Edit Preset</source>
        <translation>Modifier le préréglage</translation>
    </message>
    <message id="393">
        <source>Preset No</source>
        <translation>N° préréglage</translation>
    </message>
    <message id="394">
        <source>Preset Name</source>
        <translation>Nom du préréglage</translation>
    </message>
    <message id="395">
        <source>PTZ Control</source>
        <translation>Commande PTZ</translation>
    </message>
    <message id="396">
        <source>Submit</source>
        <translation>Valider</translation>
    </message>
    <message id="397">
        <source>Motion Detect List:</source>
        <translation>Détection de mouvement :</translation>
    </message>
    <message id="398">
        <source>Sensitivity:</source>
        <translation>Sensibilité :</translation>
    </message>
    <message id="399">
        <source>Motion Detect Setting</source>
        <translation>Paramètres de détection de mouvement</translation>
    </message>
    <message id="400">
        <source>*Use Mouse drag the Device item into Intelligent detection List.</source>
        <translation>*Faites glisser l’appareil avec la souris dans la liste de détection intelligente.</translation>
    </message>
    <message id="401">
        <source>Device List:</source>
        <translation>Appareils :</translation>
    </message>
    <message id="402">
        <source>Trigger for Motion Detect</source>
        <translation>Déclenchement sur mouvement</translation>
    </message>
    <message id="403">
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message id="404">
        <source>Motion Enable List:</source>
        <translation>Mouvement actif sur :</translation>
    </message>
    <message id="405">
        <source>Clear All</source>
        <translation>Tout effacer</translation>
    </message>
    <message id="406">
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message id="407">
        <source>High</source>
        <translation>Haute</translation>
    </message>
    <message id="408">
        <source>Normal</source>
        <translation>Normale</translation>
    </message>
    <message id="409">
        <source>Low</source>
        <translation>Basse</translation>
    </message>
    <message id="410">
        <source>SET</source>
        <translation>DÉFINIR</translation>
    </message>
    <message id="411">
        <source>User List:</source>
        <translation>Utilisateurs :</translation>
    </message>
    <message id="412">
        <source>Group List:</source>
        <translation>Groupes :</translation>
    </message>
    <message id="413">
        <source>Event Setting List:</source>
        <translation>Paramètres d’événement :</translation>
    </message>
    <message id="414">
        <source>EMap List:</source>
        <translation>Plans :</translation>
    </message>
    <message id="415">
        <source>Screen List:</source>
        <translation>Écrans :</translation>
    </message>
    <message id="416">
        <source>Account</source>
        <translation>Compte</translation>
    </message>
    <message id="417">
        <source>Company</source>
        <translation>Société</translation>
    </message>
    <message id="418">
        <source>Telephone</source>
        <translation>Téléphone</translation>
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
        <translation>Portable</translation>
    </message>
    <message id="422">
        <source>Photo Path</source>
        <translation>Chemin de la photo</translation>
    </message>
    <message id="423">
        <source>Group</source>
        <translation>Groupe</translation>
    </message>
    <message id="424">
        <source>Event</source>
        <translation>Événement</translation>
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
        <translation>Son</translation>
    </message>
    <message id="429">
        <source>Video Power</source>
        <translation>Droits vidéo</translation>
    </message>
    <message id="430">
        <source>Playback</source>
        <translation>Relecture</translation>
    </message>
    <message id="431">
        <source>PTZ</source>
        <translation>PTZ</translation>
    </message>
    <message id="432">
        <source>Setup</source>
        <translation>Configuration</translation>
    </message>
    <message id="433">
        <source>Map</source>
        <translation>Plan</translation>
    </message>
    <message id="434">
        <source>Path</source>
        <translation>Chemin</translation>
    </message>
    <message id="435">
        <source>Function</source>
        <translation>Fonction</translation>
    </message>
    <message id="436">
        <source>Screen</source>
        <translation>Écran</translation>
    </message>
    <message id="437">
        <source>MainMap</source>
        <translation>Plan principal</translation>
    </message>
    <message id="438">
        <source>FullScreen</source>
        <translation>Plein écran</translation>
    </message>
    <message id="439">
        <source>FullScreen2</source>
        <translation>Plein écran 2</translation>
    </message>
    <message id="440">
        <source>User Detail List</source>
        <translation>Détail des utilisateurs</translation>
    </message>
    <message id="441">
        <source>Group List</source>
        <translation>Liste des groupes</translation>
    </message>
    <message id="442">
        <source>Add User</source>
        <translation>Ajouter un utilisateur</translation>
    </message>
    <message id="443">
        <source>Remove User</source>
        <translation>Supprimer l’utilisateur</translation>
    </message>
    <message id="444">
        <source>Modify User</source>
        <translation>Modifier l’utilisateur</translation>
    </message>
    <message id="445">
        <source>Modify Group</source>
        <translation>Modifier le groupe</translation>
    </message>
    <message id="446">
        <source>System Event Trigger Action</source>
        <translation>Action déclenchée par événement système</translation>
    </message>
    <message id="447">
        <source>NVR Event Trigger Action</source>
        <translation>Action déclenchée par événement NVR</translation>
    </message>
    <message id="448">
        <source>System Start/Stop</source>
        <translation>Démarrage/arrêt du système</translation>
    </message>
    <message id="449">
        <source>Modify Setting of System</source>
        <translation>Modification des paramètres système</translation>
    </message>
    <message id="450">
        <source>Modify Setting of NVR</source>
        <translation>Modification des paramètres NVR</translation>
    </message>
    <message id="451">
        <source>Modify Setting of Intelligent detection</source>
        <translation>Modification des paramètres de détection intelligente</translation>
    </message>
    <message id="452">
        <source>Modify Setting of General</source>
        <translation>Modification des paramètres généraux</translation>
    </message>
    <message id="453">
        <source>Modify Setting of Event</source>
        <translation>Modification des paramètres d’événement</translation>
    </message>
    <message id="454">
        <source>E1:Motion Detect</source>
        <translation>E1 : détection de mouvement</translation>
    </message>
    <message id="455">
        <source>Sensor Detection</source>
        <translation>Détection capteur</translation>
    </message>
    <message id="456">
        <source>*Double Click Map to Setting</source>
        <translation>*Double-cliquez sur le plan pour le configurer</translation>
    </message>
    <message id="457">
        <source>SubMap</source>
        <translation>Sous-plan</translation>
    </message>
    <message id="458">
        <source>Screen Layout</source>
        <translation>Disposition des écrans</translation>
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
        <translation>Message</translation>
    </message>
    <message id="462">
        <source>Sound</source>
        <translation>Son</translation>
    </message>
    <message id="463">
        <source>Sender E-mail Address</source>
        <translation>E-mail de l’expéditeur</translation>
    </message>
    <message id="464">
        <source>Mail Server</source>
        <translation>Serveur de messagerie</translation>
    </message>
    <message id="465">
        <source>User</source>
        <translation>Utilisateur</translation>
    </message>
    <message id="466">
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message id="467">
        <source>Adressee Name</source>
        <translation>Destinataire</translation>
    </message>
    <message id="468">
        <source>Mail Addrrss</source>
        <translation>Adresse e-mail</translation>
    </message>
    <message id="469">
        <source>Server IP</source>
        <translation>IP serveur</translation>
    </message>
    <message id="470">
        <source>Server Port</source>
        <translation>Port serveur</translation>
    </message>
    <message id="471">
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message id="472">
        <source>Sound Description</source>
        <translation>Description du son</translation>
    </message>
    <message id="473">
        <source>Sound File Path</source>
        <translation>Chemin du son</translation>
    </message>
    <message id="474">
        <source>Test</source>
        <translation>Tester</translation>
    </message>
    <message id="475">
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message id="476">
        <source>Mail to</source>
        <translation>E-mail à</translation>
    </message>
    <message id="477">
        <source>FTP Setting</source>
        <translation>Paramètres FTP</translation>
    </message>
    <message id="478">
        <source>Message Setting</source>
        <translation>Paramètres des messages</translation>
    </message>
    <message id="479">
        <source>Message</source>
        <translation>Message</translation>
    </message>
    <message id="480">
        <source>Sound Setting</source>
        <translation>Paramètres du son</translation>
    </message>
    <message id="481">
        <source>Set HTTP Server failed! Do you want to remove all HTTP Servers?</source>
        <translation>Échec de la définition du serveur HTTP. Voulez-vous supprimer tous les serveurs HTTP ?</translation>
    </message>
    <message id="482">
        <source>The amount cannot be more than 16!</source>
        <translation>Le nombre ne peut pas dépasser 16.</translation>
    </message>
    <message id="483">
        <source>Do you want to delete the selected NVR?</source>
        <translation>Voulez-vous supprimer le NVR sélectionné ?</translation>
    </message>
    <message id="484">
        <source>Sender name can't be empty!</source>
        <translation>Le nom de l’expéditeur ne peut pas être vide.</translation>
    </message>
    <message id="485">
        <source>Mail Server can't be empty!</source>
        <translation>Le serveur de messagerie ne peut pas être vide.</translation>
    </message>
    <message id="486">
        <source>User can't be empty!</source>
        <translation>Le nom d’utilisateur ne peut pas être vide.</translation>
    </message>
    <message id="487">
        <source>Password can't be empty!</source>
        <translation>Le mot de passe ne peut pas être vide.</translation>
    </message>
    <message id="488">
        <source>Mail Address can't be empty!</source>
        <translation>L’adresse e-mail ne peut pas être vide.</translation>
    </message>
    <message id="489">
        <source>Test mail sent success.</source>
        <translation>E-mail de test envoyé.</translation>
    </message>
    <message id="490">
        <source>Test mail sent failed.</source>
        <translation>Échec de l’envoi de l’e-mail de test.</translation>
    </message>
    <message id="491">
        <source>Server IP can't be empty!</source>
        <translation>L’IP du serveur ne peut pas être vide.</translation>
    </message>
    <message id="492">
        <source>Server Port can't be empty!</source>
        <translation>Le port du serveur ne peut pas être vide.</translation>
    </message>
    <message id="493">
        <source>Root Path can't be empty!</source>
        <translation>Le chemin racine ne peut pas être vide.</translation>
    </message>
    <message id="494">
        <source>Connecting to ftp server success.</source>
        <translation>Connexion au serveur FTP réussie.</translation>
    </message>
    <message id="495">
        <source>Connecting to ftp server failed.</source>
        <translation>Échec de la connexion au serveur FTP.</translation>
    </message>
    <message id="496">
        <source>Message can't be empty!</source>
        <translation>Le message ne peut pas être vide.</translation>
    </message>
    <message id="497">
        <source>Sound Description can't be empty!</source>
        <translation>La description du son ne peut pas être vide.</translation>
    </message>
    <message id="498">
        <source>Sound file Path can't be empty!</source>
        <translation>Le chemin du fichier son ne peut pas être vide.</translation>
    </message>
    <message id="499">
        <source>Preset number select first.</source>
        <translation>Sélectionnez d’abord le numéro de préréglage.</translation>
    </message>
    <message id="500">
        <source>The Preset Name has been used.</source>
        <translation>Ce nom de préréglage est déjà utilisé.</translation>
    </message>
    <message id="501">
        <source>Do you want to delete the selected User?</source>
        <translation>Voulez-vous supprimer l’utilisateur sélectionné ?</translation>
    </message>
    <message id="502">
        <source>Can't Delete User.</source>
        <translation>Impossible de supprimer l’utilisateur.</translation>
    </message>
    <message id="503">
        <source>Already Set.</source>
        <translation>Déjà défini.</translation>
    </message>
    <message id="504">
        <source>Intelligent setting can't exceed 16</source>
        <translation>L’analyse vidéo ne peut pas dépasser 16 canaux.</translation>
    </message>
    <message id="505">
        <source>Add NVR failed! Please add again.</source>
        <translation>Échec de l’ajout du NVR. Ajoutez-le de nouveau.</translation>
    </message>
    <message id="506">
        <source>File Size can't more than 5MB</source>
        <translation>Le fichier ne peut pas dépasser 5 Mo.</translation>
    </message>
    <message id="507">
        <source>Save OK</source>
        <translation>Enregistré.</translation>
    </message>
    <message id="508">
        <source>Exit and Open MainViewer?</source>
        <translation>Voulez-vous quitter et ouvrir la visionneuse principale ?</translation>
    </message>
    <message id="509">
        <source>Do you want to exit?</source>
        <translation>Voulez-vous quitter ?</translation>
    </message>
    <message id="510">
        <source>Resolution Not Support .</source>
        <translation>Résolution non prise en charge.</translation>
    </message>
    <message id="511">
        <source>Do you want to Save?</source>
        <translation>Voulez-vous enregistrer ?</translation>
    </message>
    <message id="512">
        <source>The Channel does not support motion detection or is no connection !</source>
        <translation>Le canal ne prend pas en charge la détection de mouvement ou n’est pas connecté.</translation>
    </message>
    <message id="513">
        <source>No setting !</source>
        <translation>Aucun paramètre.</translation>
    </message>
    <message id="514">
        <source>Settings have changed , Do you want to save ?</source>
        <translation>Les paramètres ont changé. Voulez-vous les enregistrer ?</translation>
    </message>
    <message id="515">
        <source>Not yet set of Event Action config!</source>
        <translation>Les actions sur événement ne sont pas encore configurées.</translation>
    </message>
    <message id="516">
        <source>Video can't connection.</source>
        <translation>Connexion vidéo impossible.</translation>
    </message>
    <message id="517">
        <source>Submit</source>
        <translation>Valider</translation>
    </message>
    <message id="518">
        <source>Save Setting</source>
        <translation>Enregistrer les paramètres</translation>
    </message>
    <message id="519">
        <source>Close this window</source>
        <translation>Fermer cette fenêtre</translation>
    </message>
    <message id="520">
        <source>Preset Sequence</source>
        <translation>Séquence de préréglages</translation>
    </message>
    <message id="521">
        <source>Dwell Time:</source>
        <translation>Temporisation :</translation>
    </message>
    <message id="522">
        <source>PTZ Preset</source>
        <translation>Préréglage PTZ</translation>
    </message>
    <message id="523">
        <source>Preset Sequence</source>
        <translation>Séquence de préréglages</translation>
    </message>
    <message id="524">
        <source>Select a wave file</source>
        <translation>Sélectionnez un fichier WAV</translation>
    </message>
    <message id="525">
        <source>File Name: </source>
        <translation>Fichier : </translation>
    </message>
    <message id="526">
        <source>Message sent successfully!</source>
        <translation>Message envoyé.</translation>
    </message>
    <message id="527">
        <source>Sending Message fail!</source>
        <translation>Échec de l’envoi du message.</translation>
    </message>
    <message id="528">
        <source>MAX Video</source>
        <translation>Agrandir la vidéo</translation>
    </message>
    <message id="529">
        <source>Enable/Disable auto switch group to display videos.</source>
        <translation>Activer ou désactiver le changement automatique de groupe pour afficher les vidéos.</translation>
    </message>
    <message id="530">
        <source>Enable/Disable maximum video to display.</source>
        <translation>Activer ou désactiver l’affichage agrandi de la vidéo.</translation>
    </message>
    <message id="531">
        <source>Live Video</source>
        <translation>Vidéo en direct</translation>
    </message>
    <message id="532">
        <source>Do you want to cancel playback for NVR?</source>
        <translation>Voulez-vous annuler la relecture du NVR ?</translation>
    </message>
    <message id="533">
        <source>The selected time doesn't have any recording data!</source>
        <translation>Aucune donnée d’enregistrement à l’heure sélectionnée.</translation>
    </message>
    <message id="534">
        <source>Select channel you want to change and reset the relational data information?</source>
        <translation>Voulez-vous changer le canal sélectionné et réinitialiser les données associées ?</translation>
    </message>
    <message id="535">
        <source>This NVR cannot get group ID to playback!</source>
        <translation>Impossible d’obtenir de ce NVR l’ID de groupe pour la relecture.</translation>
    </message>
    <message id="536">
        <source>Select the SVD has been disconnected, so close the panel and make sure that SVD status!</source>
        <translation>Le SVD sélectionné a été déconnecté, le panneau va se fermer. Vérifiez l’état du SVD.</translation>
    </message>
    <message id="550">
        <source>IP Address</source>
        <translation>Adresse IP</translation>
    </message>
    <message id="551">
        <source>Http Port</source>
        <translation>Port HTTP</translation>
    </message>
    <message id="552">
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message id="553">
        <source>NVR Name can't be empty!</source>
        <translation>Le nom du NVR ne peut pas être vide.</translation>
    </message>
    <message id="554">
        <source>IP address or hostname set incorrectly!</source>
        <translation>Adresse IP ou nom d’hôte incorrect.</translation>
    </message>
    <message id="555">
        <source>NVR don't exist!</source>
        <translation>Le NVR n’existe pas.</translation>
    </message>
    <message id="556">
        <source>Port set incorrectly!</source>
        <translation>Port incorrect.</translation>
    </message>
    <message id="557">
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message id="558">
        <source>NVR select setting</source>
        <translation>Sélection des NVR</translation>
    </message>
    <message id="559">
        <source>Pattern select setting</source>
        <translation>Sélection des vues</translation>
    </message>
    <message id="560">
        <source>All list</source>
        <translation>Liste complète</translation>
    </message>
    <message id="561">
        <source>Selected list</source>
        <translation>Sélection</translation>
    </message>
    <message id="562">
        <source>Select item is less than 2 items, it can not be saved!</source>
        <translation>Moins de 2 éléments sont sélectionnés. Enregistrement impossible.</translation>
    </message>
    <message id="563">
        <source>Functions that were originally assigned on this screen will be moved to screen #1 automatically.</source>
        <translation>Les fonctions affectées à cet écran seront automatiquement déplacées vers l’écran n° 1.</translation>
    </message>
    <message id="564">
        <source>Has not enough pattern can be selected!</source>
        <translation>Il n’y a pas assez de vues à sélectionner.</translation>
    </message>
    <message id="565">
        <source>This screen has been assigned to Video Wall!</source>
        <translation>Cet écran est affecté au mur d’images.</translation>
    </message>
    <message id="566">
        <source>Has not enough device can be selected!</source>
        <translation>Il n’y a pas assez d’appareils à sélectionner.</translation>
    </message>
    <message id="570">
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message id="571">
        <source>*Name</source>
        <translation>*Nom</translation>
    </message>
    <message id="572">
        <source>*IP Address</source>
        <translation>*Adresse IP</translation>
    </message>
    <message id="573">
        <source>*Http Port</source>
        <translation>*Port HTTP</translation>
    </message>
    <message id="574">
        <source>*User</source>
        <translation>*Utilisateur</translation>
    </message>
    <message id="575">
        <source>*Password</source>
        <translation>*Mot de passe</translation>
    </message>
    <message id="576">
        <source>Detect</source>
        <translation>Détecter</translation>
    </message>
    <message id="577">
        <source>Device Setting</source>
        <translation>Paramètres de l’appareil</translation>
    </message>
    <message id="578">
        <source>NO.</source>
        <translation>N°</translation>
    </message>
    <message id="579">
        <source>Camera name</source>
        <translation>Nom de la caméra</translation>
    </message>
    <message id="580">
        <source>Video Port</source>
        <translation>Port vidéo</translation>
    </message>
    <message id="581">
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message id="582">
        <source>Resolution</source>
        <translation>Résolution</translation>
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
        <translation>Modifier la caméra</translation>
    </message>
    <message id="586">
        <source>Camera No</source>
        <translation>N° caméra</translation>
    </message>
    <message id="587">
        <source>Camera IP</source>
        <translation>IP de la caméra</translation>
    </message>
    <message id="588">
        <source>Additional Camera Information</source>
        <translation>Infos complémentaires de la caméra</translation>
    </message>
    <message id="589">
        <source>Min. Bitrate</source>
        <translation>Débit min.</translation>
    </message>
    <message id="590">
        <source>Max. Bitrate</source>
        <translation>Débit max.</translation>
    </message>
    <message id="591">
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message id="592">
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message id="593">
        <source>NVR IP can't be empty.</source>
        <translation>L’IP du NVR ne peut pas être vide.</translation>
    </message>
    <message id="594">
        <source>NVR Http Port can't be empty.</source>
        <translation>Le port HTTP du NVR ne peut pas être vide.</translation>
    </message>
    <message id="595">
        <source>NVR User can't be empty.</source>
        <translation>Le nom d’utilisateur du NVR ne peut pas être vide.</translation>
    </message>
    <message id="596">
        <source>NVR Password can't be empty.</source>
        <translation>Le mot de passe du NVR ne peut pas être vide.</translation>
    </message>
    <message id="597">
        <source>Request Time Zone ERR! Please Detect again.</source>
        <translation>Erreur de lecture du fuseau horaire. Relancez la détection.</translation>
    </message>
    <message id="598">
        <source>Please Select Brand.</source>
        <translation>Sélectionnez la marque.</translation>
    </message>
    <message id="599">
        <source>IP Timeout.</source>
        <translation>IP sans réponse.</translation>
    </message>
    <message id="600">
        <source>Quality</source>
        <translation>Qualité</translation>
    </message>
    <message id="601">
        <source>Bitrate</source>
        <translation>Débit</translation>
    </message>
    <message id="602">
        <source>Bitrate Mode</source>
        <translation>Mode de débit</translation>
    </message>
    <message id="603">
        <source>CH name can't be empty!</source>
        <translation>Le nom du canal ne peut pas être vide.</translation>
    </message>
    <message id="604">
        <source>IP address can't be empty!</source>
        <translation>L’adresse IP ne peut pas être vide.</translation>
    </message>
    <message id="605">
        <source>Http Port can't be empty!</source>
        <translation>Le port HTTP ne peut pas être vide.</translation>
    </message>
    <message id="606">
        <source>User account can't be empty!</source>
        <translation>Le compte utilisateur ne peut pas être vide.</translation>
    </message>
    <message id="607">
        <source>Password can't be empty!</source>
        <translation>Le mot de passe ne peut pas être vide.</translation>
    </message>
    <message id="608">
        <source>Detection Error!</source>
        <translation>Erreur de détection.</translation>
    </message>
    <message id="609">
        <source>No Camera or connect failed !</source>
        <translation>Aucune caméra ou échec de la connexion.</translation>
    </message>
    <message id="610">
        <source>This firmware version of NVR is not supported , please update newer Version.</source>
        <translation>Cette version du micrologiciel du NVR n’est pas prise en charge. Installez une version plus récente.</translation>
    </message>
    <message id="611">
        <source>If you press the button, data inside NVR will be changed!</source>
        <translation>Si vous appuyez sur ce bouton, les données du NVR seront modifiées.</translation>
    </message>
    <message id="612">
        <source>Camera Search</source>
        <translation>Recherche de caméras</translation>
    </message>
    <message id="613">
        <source>Brand not Support!</source>
        <translation>Marque non prise en charge.</translation>
    </message>
    <message id="614">
        <source>FPS</source>
        <translation>FPS</translation>
    </message>
    <message id="615">
        <source>Video Format Error!</source>
        <translation>Erreur de format vidéo.</translation>
    </message>
    <message id="616">
        <source>Camera settings have changes, please re-detect.</source>
        <translation>Les paramètres de la caméra ont changé. Relancez la détection.</translation>
    </message>
    <message id="617">
        <source>Add Camera Fail!</source>
        <translation>Échec de l’ajout de la caméra.</translation>
    </message>
    <message id="618">
        <source>DIS Setting</source>
        <translation>Paramètres DIS</translation>
    </message>
    <message id="619">
        <source>Device not supported!</source>
        <translation>Appareil non pris en charge.</translation>
    </message>
    <message id="620">
        <source>This account is already set!</source>
        <translation>Ce compte est déjà défini.</translation>
    </message>
    <message id="621">
        <source>Do you want to continue edit preset point?</source>
        <translation>Voulez-vous continuer à modifier les préréglages ?</translation>
    </message>
    <message id="630">
        <source>Group Name</source>
        <translation>Nom du groupe</translation>
    </message>
    <message id="631">
        <source>Power Level</source>
        <translation>Niveau de droits</translation>
    </message>
    <message id="632">
        <source>Function Permission</source>
        <translation>Droits par fonction</translation>
    </message>
    <message id="633">
        <source>Playback</source>
        <translation>Relecture</translation>
    </message>
    <message id="634">
        <source>PTZ Control</source>
        <translation>Commande PTZ</translation>
    </message>
    <message id="635">
        <source>System Setup</source>
        <translation>Configuration système</translation>
    </message>
    <message id="636">
        <source>Group Setting</source>
        <translation>Paramètres du groupe</translation>
    </message>
    <message id="640">
        <source>File Size can't more than 10MB</source>
        <translation>Le fichier ne peut pas dépasser 10 Mo.</translation>
    </message>
    <message id="641">
        <source>EMap Setting</source>
        <translation>Paramètres des plans</translation>
    </message>
    <message id="642">
        <source>*Double Click Windows to change Map images.</source>
        <translation>*Double-cliquez sur la fenêtre pour changer l’image du plan.</translation>
    </message>
    <message id="643">
        <source>Select an image file</source>
        <translation>Sélectionnez un fichier image</translation>
    </message>
    <message id="645">
        <source>User Setting</source>
        <translation>Paramètres utilisateur</translation>
    </message>
    <message id="646">
        <source>Photo</source>
        <translation>Photo</translation>
    </message>
    <message id="647">
        <source>(Dubble Click to Setting)</source>
        <translation>(Double-cliquez pour configurer)</translation>
    </message>
    <message id="648">
        <source>Check</source>
        <translation>Vérifier</translation>
    </message>
    <message id="649">
        <source>*User Name</source>
        <translation>*Nom d’utilisateur</translation>
    </message>
    <message id="650">
        <source>*Password Confirm</source>
        <translation>*Confirmer le mot de passe</translation>
    </message>
    <message id="651">
        <source>*:Necessary</source>
        <translation>* : obligatoire</translation>
    </message>
    <message id="652">
        <source>This name not yet use</source>
        <translation>Ce nom est libre.</translation>
    </message>
    <message id="653">
        <source>This name in use</source>
        <translation>Ce nom est déjà utilisé.</translation>
    </message>
    <message id="660">
        <source>User&amp;Password</source>
        <translation>Utilisateur et mot de passe</translation>
    </message>
    <message id="661">
        <source>User or Password is not input!</source>
        <translation>Utilisateur ou mot de passe non saisi.</translation>
    </message>
    <message id="671">
        <source>DIS Service Setting</source>
        <translation>Paramètres du service DIS</translation>
    </message>
    <message id="672">
        <source>Account List</source>
        <translation>Liste des comptes</translation>
    </message>
    <message id="673">
        <source>Do you want to remove this user?</source>
        <translation>Voulez-vous supprimer cet utilisateur ?</translation>
    </message>
    <message id="674">
        <source>The account has reached the upper limit, for add new account you need to remove another account.</source>
        <translation>Le nombre maximal de comptes est atteint. Pour en ajouter un, supprimez d’abord un autre compte.</translation>
    </message>
    <message id="675">
        <source>Object Loss</source>
        <translation>Objet retiré</translation>
    </message>
    <message id="676">
        <source>Tripwire</source>
        <translation>Franchissement</translation>
    </message>
    <message id="677">
        <source>Threat</source>
        <translation>Sabotage</translation>
    </message>
    <message id="678">
        <source>Enable</source>
        <translation>Activer</translation>
    </message>
    <message id="679">
        <source>Intelligent Setting</source>
        <translation>Paramètres d’analyse vidéo</translation>
    </message>
    <message id="680">
        <source>Intelligent detection List</source>
        <translation>Liste de détection intelligente</translation>
    </message>
    <message id="681">
        <source>Object Loss Reset</source>
        <translation>Fin d’objet retiré</translation>
    </message>
    <message id="682">
        <source>Threat Detection Reset</source>
        <translation>Fin de détection de sabotage</translation>
    </message>
    <message id="683">
        <source>Image Enhance</source>
        <translation>Amélioration d’image</translation>
    </message>
    <message id="684">
        <source>Port number can't accept more then 32767.</source>
        <translation>Le numéro de port ne peut pas dépasser 32767.</translation>
    </message>
    <message id="685">
        <source>Keep Ratio</source>
        <translation>Proportions fixes</translation>
    </message>
    <message id="686">
        <source>Intelligent Detection</source>
        <translation>Détection intelligente</translation>
    </message>
    <message id="687">
        <source>OSD Size</source>
        <translation>Taille OSD</translation>
    </message>
    <message id="688">
        <source>OSD Color</source>
        <translation>Couleur OSD</translation>
    </message>
    <message id="689">
        <source>Small</source>
        <translation>Petite</translation>
    </message>
    <message id="690">
        <source>Middle</source>
        <translation>Moyenne</translation>
    </message>
    <message id="691">
        <source>Large</source>
        <translation>Grande</translation>
    </message>
    <message id="692">
        <source>FullScreen Initial</source>
        <translation>Plein écran initial</translation>
    </message>
    <message id="693">
        <source>Startup Screen Layout</source>
        <translation>Écrans au démarrage</translation>
    </message>
    <message id="694">
        <source>Leave to save the screen layout.</source>
        <translation>La disposition des écrans est enregistrée quand vous quittez la page.</translation>
    </message>
    <message id="695">
        <source>Function default start</source>
        <translation>Démarrage par défaut</translation>
    </message>
    <message id="696">
        <source>Function assign</source>
        <translation>Affecter les fonctions</translation>
    </message>
    <message id="697">
        <source>Pattern setting</source>
        <translation>Paramètres des vues</translation>
    </message>
    <message id="698">
        <source>Name can't be empty.</source>
        <translation>Le nom ne peut pas être vide.</translation>
    </message>
    <message id="699">
        <source>Object Counting</source>
        <translation>Comptage d’objets</translation>
    </message>
    <message id="700">
        <source>Foreign Object</source>
        <translation>Objet abandonné</translation>
    </message>
    <message id="701">
        <source>Foreign Object Reset </source>
        <translation>Fin d’objet abandonné </translation>
    </message>
    <message id="702">
        <source>Manual Recording</source>
        <translation>Enregistrement manuel</translation>
    </message>
    <message id="703">
        <source>Device settings have changes, please re-detect.</source>
        <translation>Les paramètres de l’appareil ont changé. Relancez la détection.</translation>
    </message>
    <message id="704">
        <source>English and Digit Only</source>
        <translation>Lettres A-Z et chiffres uniquement</translation>
    </message>
    <message id="705">
        <source>Emap Group Assign</source>
        <translation>Groupes de plans</translation>
    </message>
    <message id="706">
        <source>Emap Group </source>
        <translation>Groupe de plans </translation>
    </message>
    <message id="707">
        <source>Member:</source>
        <translation>Membres :</translation>
    </message>
    <message id="708">
        <source>Emap Position Assign</source>
        <translation>Positions sur plan</translation>
    </message>
    <message id="709">
        <source>Parent</source>
        <translation>Parent</translation>
    </message>
    <message id="710">
        <source>Group Type </source>
        <translation>Type de groupe </translation>
    </message>
    <message id="711">
        <source>Auto Switch</source>
        <translation>Changement auto</translation>
    </message>
    <message id="712">
        <source>Double-click back to previous group</source>
        <translation>Double-cliquez pour revenir au groupe précédent</translation>
    </message>
    <message id="713">
        <source>Drag and Drop to Move</source>
        <translation>Glisser-déposer pour déplacer</translation>
    </message>
    <message id="714">
        <source>Do you want to delete the selected Emap Group?</source>
        <translation>Voulez-vous supprimer le groupe de plans sélectionné ?</translation>
    </message>
    <message id="715">
        <source>The amount of device will be over default value!</source>
        <translation>Le nombre maximal d’appareils sera dépassé.</translation>
    </message>
    <message id="716">
        <source>The amount of total channels will be over default value!</source>
        <translation>Le nombre maximal de canaux sera dépassé.</translation>
    </message>
    <message id="717">
        <source>Channel selection</source>
        <translation>Sélection des canaux</translation>
    </message>
    <message id="718">
        <source>Get device capability error!</source>
        <translation>Erreur de lecture des capacités de l’appareil.</translation>
    </message>
    <message id="719">
        <source>This device does not has any channel.</source>
        <translation>Cet appareil ne possède aucun canal.</translation>
    </message>
    <message id="720">
        <source>Please add channels  or  re-select the other device.</source>
        <translation>Ajoutez des canaux ou sélectionnez un autre appareil.</translation>
    </message>
    <message id="721">
        <source>This device does not has any channel,Do you want to remove the device?</source>
        <translation>Cet appareil ne possède aucun canal. Voulez-vous le supprimer ?</translation>
    </message>
    <message id="722">
        <source>Setting fail!</source>
        <translation>Échec du paramétrage.</translation>
    </message>
    <message id="723">
        <source>Do you want to stop SEQ mode?</source>
        <translation>Voulez-vous arrêter le mode séquence ?</translation>
    </message>
    <message id="725">
        <source>Type </source>
        <translation>Type </translation>
    </message>
    <message id="726">
        <source>No change!</source>
        <translation>Aucun changement.</translation>
    </message>
    <message id="727">
        <source>Face Counting</source>
        <translation>Comptage de visages</translation>
    </message>
    <message id="728">
        <source>Unknown</source>
        <translation>Inconnu</translation>
    </message>
    <message id="729">
        <source>Event Export</source>
        <translation>Exportation des événements</translation>
    </message>
    <message id="730">
        <source>System Log Export</source>
        <translation>Exportation du journal</translation>
    </message>
    <message id="731">
        <source>System Log</source>
        <translation>Journal système</translation>
    </message>
    <message id="732">
        <source>NVR Select</source>
        <translation>Sélection du NVR</translation>
    </message>
    <message id="733">
        <source>Condition</source>
        <translation>Condition</translation>
    </message>
    <message id="734">
        <source>Time Range:</source>
        <translation>Période :</translation>
    </message>
    <message id="735">
        <source>Start Time:</source>
        <translation>Heure de début :</translation>
    </message>
    <message id="736">
        <source>End Time:</source>
        <translation>Heure de fin :</translation>
    </message>
    <message id="737">
        <source>Event Type:</source>
        <translation>Type d’événement :</translation>
    </message>
    <message id="738">
        <source>User:</source>
        <translation>Utilisateur :</translation>
    </message>
    <message id="739">
        <source>Export Format:</source>
        <translation>Format :</translation>
    </message>
    <message id="740">
        <source>Export</source>
        <translation>Exportation</translation>
    </message>
    <message id="741">
        <source>You must select a path to export!</source>
        <translation>Sélectionnez un chemin d’exportation.</translation>
    </message>
    <message id="742">
        <source>Start Time must less than End time!</source>
        <translation>L’heure de début doit précéder l’heure de fin.</translation>
    </message>
    <message id="743">
        <source>No Event!</source>
        <translation>Aucun événement.</translation>
    </message>
    <message id="744">
        <source>No System Log!</source>
        <translation>Le journal système est vide.</translation>
    </message>
    <message id="745">
        <source>CSV Export finish!</source>
        <translation>Exportation CSV terminée.</translation>
    </message>
    <message id="746">
        <source>MDB Export finish!</source>
        <translation>Exportation MDB terminée.</translation>
    </message>
    <message id="747">
        <source>Custom</source>
        <translation>Personnalisé</translation>
    </message>
    <message id="748">
        <source>NVR Overview</source>
        <translation>Synthèse des NVR</translation>
    </message>
    <message id="749">
        <source>Video Wall Console</source>
        <translation>Console du mur d’images</translation>
    </message>
    <message id="750">
        <source>Lock Screen </source>
        <translation>Verrouiller l’écran </translation>
    </message>
    <message id="751">
        <source>Unlock Screen</source>
        <translation>Déverrouiller l’écran</translation>
    </message>
    <message id="752">
        <source>Video Wall</source>
        <translation>Mur d’images</translation>
    </message>
    <message id="753">
        <source>Pattern List</source>
        <translation>Liste des vues</translation>
    </message>
    <message id="754">
        <source>SEQ List</source>
        <translation>Liste des séquences</translation>
    </message>
    <message id="755">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="756">
        <source>SEQ content setting</source>
        <translation>Paramétrer la séquence</translation>
    </message>
    <message id="757">
        <source>Max Channel</source>
        <translation>Max. canaux</translation>
    </message>
    <message id="758">
        <source>Video server</source>
        <translation>Serveur vidéo</translation>
    </message>
    <message id="759">
        <source>Support</source>
        <translation>Pris en charge</translation>
    </message>
    <message id="760">
        <source>Original View</source>
        <translation>Vue d’origine</translation>
    </message>
    <message id="761">
        <source>Broad View</source>
        <translation>Vue panoramique</translation>
    </message>
    <message id="762">
        <source>Quad View</source>
        <translation>Vue quadruple</translation>
    </message>
    <message id="763">
        <source>Quad and Source View</source>
        <translation>Vue quadruple et d’origine</translation>
    </message>
    <message id="764">
        <source>Double View</source>
        <translation>Vue double</translation>
    </message>
    <message id="765">
        <source>Triple View</source>
        <translation>Vue triple</translation>
    </message>
    <message id="766">
        <source>Digital PTZ</source>
        <translation>PTZ numérique</translation>
    </message>
    <message id="767">
        <source>Lens</source>
        <translation>Objectif</translation>
    </message>
    <message id="768">
        <source>It could not be opened, the insufficient number of available screens!</source>
        <translation>Ouverture impossible : le nombre d’écrans disponibles est insuffisant.</translation>
    </message>
    <message id="769">
        <source>It could not be opened, The Video Wall is not enabled! </source>
        <translation>Ouverture impossible : le mur d’images n’est pas activé. </translation>
    </message>
    <message id="770">
        <source>The quantity of screen is not enough! Not support!</source>
        <translation>Le nombre d’écrans est insuffisant. Non pris en charge.</translation>
    </message>
    <message id="772">
        <source>Settings have changed , Please re-open MainViewer!</source>
        <translation>Les paramètres ont changé. Rouvrez la visionneuse principale.</translation>
    </message>
    <message id="773">
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message id="774">
        <source>Update system log with below defined condition</source>
        <translation>Mettre à jour le journal système selon les conditions ci-dessous</translation>
    </message>
    <message id="775">
        <source>Transform recording index</source>
        <translation>Convertir l’index d’enregistrement</translation>
    </message>
    <message id="776">
        <source>Event Image Sync Setting</source>
        <translation>Synchro des images d’événement</translation>
    </message>
    <message id="777">
        <source>Event snapshot storage space is not enough!</source>
        <translation>Espace insuffisant pour les captures d’événement.</translation>
    </message>
    <message id="779">
        <source>Intelligent Mode</source>
        <translation>Mode intelligent</translation>
    </message>
    <message id="780">
        <source>Add Intelligent Setting</source>
        <translation>Ajouter un paramètre d’analyse</translation>
    </message>
    <message id="781">
        <source>Camera Event</source>
        <translation>Événement caméra</translation>
    </message>
    <message id="782">
        <source>ROI Setting</source>
        <translation>Paramètres ROI</translation>
    </message>
    <message id="783">
        <source>Trigger Mode</source>
        <translation>Mode de déclenchement</translation>
    </message>
    <message id="784">
        <source>Channel Privilege</source>
        <translation>Droits sur les canaux</translation>
    </message>
    <message id="785">
        <source>Group Overview</source>
        <translation>Synthèse des groupes</translation>
    </message>
    <message id="786">
        <source>User Overview</source>
        <translation>Synthèse des utilisateurs</translation>
    </message>
    <message id="787">
        <source>Event Server</source>
        <translation>Serveur d’événements</translation>
    </message>
    <message id="788">
        <source>Trigger By</source>
        <translation>Déclenché par</translation>
    </message>
    <message id="789">
        <source>Configuration Modify</source>
        <translation>Configuration modifiée</translation>
    </message>
    <message id="790">
        <source>Intelligent Event Trigger</source>
        <translation>Déclenchement par analyse vidéo</translation>
    </message>
    <message id="791">
        <source>NVR Event Trigger</source>
        <translation>Déclenchement par NVR</translation>
    </message>
    <message id="792">
        <source>Trigger Action</source>
        <translation>Action déclenchée</translation>
    </message>
    <message id="793">
        <source>Addresses: (Use ',' to separate e-mails)</source>
        <translation>Adresses : (utilisez « , » pour séparer les e-mails)</translation>
    </message>
    <message id="794">
        <source>Content</source>
        <translation>Contenu</translation>
    </message>
    <message id="795">
        <source>Video Wall Layout</source>
        <translation>Disposition du mur d’images</translation>
    </message>
    <message id="796">
        <source>No Enough screen can be set!</source>
        <translation>Il n’y a pas assez d’écrans à configurer.</translation>
    </message>
    <message id="797">
        <source>SVD Management</source>
        <translation>Gestion des SVD</translation>
    </message>
    <message id="798">
        <source>SVD Detail Setting</source>
        <translation>Paramètres détaillés du SVD</translation>
    </message>
    <message id="799">
        <source>SVD Layout</source>
        <translation>Disposition du SVD</translation>
    </message>
    <message id="800">
        <source>SVD ID:</source>
        <translation>ID SVD :</translation>
    </message>
    <message id="801">
        <source>SVD Name:</source>
        <translation>Nom du SVD :</translation>
    </message>
    <message id="802">
        <source>Display</source>
        <translation>Écran</translation>
    </message>
    <message id="803">
        <source>Resolution</source>
        <translation>Résolution</translation>
    </message>
    <message id="804">
        <source>Priority</source>
        <translation>Priorité</translation>
    </message>
    <message id="805">
        <source>Default Split</source>
        <translation>Mosaïque par défaut</translation>
    </message>
    <message id="806">
        <source>Default Channel List</source>
        <translation>Canaux par défaut</translation>
    </message>
    <message id="807">
        <source>Live Stream</source>
        <translation>Flux en direct</translation>
    </message>
    <message id="808">
        <source>Dynamic Streaming</source>
        <translation>Flux dynamique</translation>
    </message>
    <message id="809">
        <source>Screen Default Layout</source>
        <translation>Disposition par défaut</translation>
    </message>
    <message id="810">
        <source>Channel list</source>
        <translation>Liste des canaux</translation>
    </message>
    <message id="811">
        <source>Begin</source>
        <translation>Début</translation>
    </message>
    <message id="812">
        <source>Previous</source>
        <translation>Précédent</translation>
    </message>
    <message id="813">
        <source>System Log Viewer</source>
        <translation>Visionneuse du journal</translation>
    </message>
    <message id="814">
        <source>Management </source>
        <translation>Gestion </translation>
    </message>
    <message id="815">
        <source>Viewer</source>
        <translation>Visionneuse</translation>
    </message>
    <message id="816">
        <source>Add New SVD</source>
        <translation>Ajouter un SVD</translation>
    </message>
    <message id="817">
        <source>Primary</source>
        <translation>Primaire</translation>
    </message>
    <message id="818">
        <source>Secondary</source>
        <translation>Secondaire</translation>
    </message>
    <message id="819">
        <source>Available</source>
        <translation>Disponible</translation>
    </message>
    <message id="820">
        <source>Not Available</source>
        <translation>Non disponible</translation>
    </message>
    <message id="821">
        <source>Invalid E-mail Address!</source>
        <translation>Adresse e-mail non valide.</translation>
    </message>
    <message id="822">
        <source>Invalid Value!</source>
        <translation>Valeur non valide.</translation>
    </message>
    <message id="823">
        <source>Can't add repeatedly!</source>
        <translation>Impossible d’ajouter plusieurs fois.</translation>
    </message>
    <message id="824">
        <source>Can't add SVD anymore!</source>
        <translation>Impossible d’ajouter d’autres SVD.</translation>
    </message>
    <message id="826">
        <source>Do you want to remove this SVD?</source>
        <translation>Voulez-vous supprimer ce SVD ?</translation>
    </message>
    <message id="827">
        <source>Disable this Video Wall?</source>
        <translation>Voulez-vous désactiver ce mur d’images ?</translation>
    </message>
    <message id="828">
        <source>Export finish!</source>
        <translation>Exportation terminée.</translation>
    </message>
    <message id="829">
        <source>Brand:</source>
        <translation>Marque :</translation>
    </message>
    <message id="830">
        <source>Password Mask</source>
        <translation>Masquer le mot de passe</translation>
    </message>
    <message id="831">
        <source>NVR Account setting</source>
        <translation>Paramètres des comptes NVR</translation>
    </message>
    <message id="832">
        <source>No any NVR has been selected.</source>
        <translation>Aucun NVR n’est sélectionné.</translation>
    </message>
    <message id="833">
        <source>Detect successful!</source>
        <translation>Détection réussie.</translation>
    </message>
    <message id="834">
        <source>Failed configuring camera detection on channel:</source>
        <translation>Échec de la configuration de la détection par la caméra sur les canaux :</translation>
    </message>
    <message id="835">
        <source>Trigger action has done.</source>
        <translation>L’action déclenchée a été exécutée.</translation>
    </message>
    <message id="836">
        <source>Event server has not set.</source>
        <translation>Le serveur d’événements n’est pas configuré.</translation>
    </message>
    <message id="837">
        <source>Privilege Setting</source>
        <translation>Paramètres des droits</translation>
    </message>
    <message id="838">
        <source>NVR Privilege Setting</source>
        <translation>Paramètres des droits NVR</translation>
    </message>
    <message id="839">
        <source>SVD Console</source>
        <translation>Console SVD</translation>
    </message>
    <message id="840">
        <source>SVD Search List</source>
        <translation>SVD trouvés</translation>
    </message>
    <message id="841">
        <source>No Monitor connect!</source>
        <translation>Aucun moniteur connecté.</translation>
    </message>
    <message id="842">
        <source>Do you want to remove this intelligent setting?</source>
        <translation>Voulez-vous supprimer ce paramètre d’analyse ?</translation>
    </message>
    <message id="843">
        <source>Event snapshot doesn't work!</source>
        <translation>Les captures d’événement ne fonctionnent pas.</translation>
    </message>
    <message id="850">
        <source>System</source>
        <translation>Système</translation>
    </message>
    <message id="851">
        <source>Intelligent</source>
        <translation>Analyse vidéo</translation>
    </message>
    <message id="852">
        <source>User and group</source>
        <translation>Utilisateurs/groupes</translation>
    </message>
    <message id="853">
        <source>Event handling</source>
        <translation>Événements</translation>
    </message>
    <message id="854">
        <source>Event server</source>
        <translation>Serveur d’événements</translation>
    </message>
    <message id="855">
        <source>E-Map</source>
        <translation>Plans</translation>
    </message>
    <message id="856">
        <source>Screen layout</source>
        <translation>Écrans</translation>
    </message>
    <message id="857">
        <source>Startup</source>
        <translation>Démarrage</translation>
    </message>
    <message id="858">
        <source>Tooling</source>
        <translation>Outils</translation>
    </message>
    <message id="859">
        <source>This page is not available in this version.</source>
        <translation>Cette page n’est pas disponible dans cette version.</translation>
    </message>
    <message id="860">
        <source>Its data in the database stays as it is.</source>
        <translation>Les données correspondantes de la base restent inchangées.</translation>
    </message>
    <message id="861">
        <source>No recorder yet</source>
        <translation>Aucun enregistreur</translation>
    </message>
    <message id="862">
        <source>Enter the address of the station's first recorder to add it.</source>
        <translation>Saisissez l’adresse du premier enregistreur du poste pour l’ajouter.</translation>
    </message>
    <message id="863">
        <source>Filter name, address, model…</source>
        <translation>Filtrer par nom, adresse, modèle…</translation>
    </message>
    <message id="864">
        <source>Recorders of this station</source>
        <translation>Enregistreurs de ce poste</translation>
    </message>
    <message id="865">
        <source>Recorders: %1 of %2</source>
        <translation>Enregistreurs : %1 sur %2</translation>
    </message>
    <message id="866">
        <source>Channels: %1 of %2</source>
        <translation>Canaux : %1 sur %2</translation>
    </message>
    <message id="867">
        <source>No recorder matches the filter.</source>
        <translation>Aucun enregistreur ne correspond au filtre.</translation>
    </message>
    <message id="868">
        <source>Unsaved changes</source>
        <translation>Modifications non enregistrées</translation>
    </message>
    <message id="870">
        <source>Switch to dark colours</source>
        <translation>Passer au thème sombre</translation>
    </message>
    <message id="871">
        <source>Switch to light colours</source>
        <translation>Passer au thème clair</translation>
    </message>
    <message id="872">
        <source>Waiting</source>
        <translation>En attente</translation>
    </message>
    <message id="873">
        <source>Finish</source>
        <translation>Terminer</translation>
    </message>
    <message id="874">
        <source>Done: %1 of %2</source>
        <translation>Terminé : %1 sur %2</translation>
    </message>
    <message id="875">
        <source>Choose</source>
        <translation>Choisir</translation>
    </message>
    <message id="876">
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message id="877">
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message id="878">
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message id="879">
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message id="880">
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message id="881">
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message id="882">
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message id="884">
        <source>Enter the address of one recorder.</source>
        <translation>Saisissez l’adresse d’un enregistreur.</translation>
    </message>
    <message id="885">
        <source>Leave both empty to try the known device accounts.</source>
        <translation>Laissez les deux champs vides pour essayer les comptes d’appareil connus.</translation>
    </message>
    <message id="886">
        <source>About this installation</source>
        <translation>À propos de cette installation</translation>
    </message>
    <message id="887">
        <source>Show password</source>
        <translation>Afficher le mot de passe</translation>
    </message>
    <message id="888">
        <source>Searching…</source>
        <translation>Recherche…</translation>
    </message>
    <message id="890">
        <source>Name and behaviour of this station</source>
        <translation>Nom et comportement de ce poste</translation>
    </message>
    <message id="892">
        <source>Recorder slot</source>
        <translation>Emplacement d’enregistreur</translation>
    </message>
    <message id="896">
        <source>Connected</source>
        <translation>Connecté</translation>
    </message>
    <message id="898">
        <source>Product:</source>
        <translation>Produit :</translation>
    </message>
    <message id="899">
        <source>Hide password</source>
        <translation>Masquer le mot de passe</translation>
    </message>
    <message id="900">
        <source>Anyone who opens Rigging Desk is its administrator, because there is no user yet.</source>
        <translation>Toute personne qui ouvre Rigging Desk en est l’administrateur, car aucun utilisateur n’existe encore.</translation>
    </message>
    <message id="901">
        <source>Create the first administrator</source>
        <translation>Créer le premier administrateur</translation>
    </message>
    <message id="902">
        <source>Not now</source>
        <translation>Pas maintenant</translation>
    </message>
    <message id="903">
        <source>No user yet</source>
        <translation>Aucun utilisateur</translation>
    </message>
    <message id="904">
        <source>Accessible cameras</source>
        <translation>Caméras accessibles</translation>
    </message>
    <message id="905">
        <source>Who has access</source>
        <translation>Qui a accès</translation>
    </message>
    <message id="906">
        <source>Filter channels…</source>
        <translation>Filtrer les canaux…</translation>
    </message>
    <message id="907">
        <source>Whole recorder</source>
        <translation>Enregistreur entier</translation>
    </message>
    <message id="908">
        <source>Live</source>
        <translation>Direct</translation>
    </message>
    <message id="909">
        <source>Live Monitor of all channels</source>
        <translation>Moniteur en direct de tous les canaux</translation>
    </message>
    <message id="910">
        <source>Grant</source>
        <translation>Accorder</translation>
    </message>
    <message id="911">
        <source>Withdraw</source>
        <translation>Retirer</translation>
    </message>
    <message id="912">
        <source>The other rights need Live. Space switches the selected cells; Shift+Space selects a row, Ctrl+Space a column.</source>
        <translation>Les autres droits exigent « Direct ». Espace bascule les cellules sélectionnées ; Maj+Espace sélectionne une ligne, Ctrl+Espace une colonne.</translation>
    </message>
    <message id="913">
        <source>Administrators have every right on every channel.</source>
        <translation>Les administrateurs ont tous les droits sur tous les canaux.</translation>
    </message>
    <message id="930">
        <source>Filter the rows found…</source>
        <translation>Filtrer les lignes trouvées…</translation>
    </message>
    <message id="931">
        <source>No row matches the filter.</source>
        <translation>Aucune ligne ne correspond au filtre.</translation>
    </message>
    <message id="932">
        <source>Rows found: %1</source>
        <translation>Lignes trouvées : %1</translation>
    </message>
    <message id="933">
        <source>The log could not be read</source>
        <translation>Impossible de lire le journal</translation>
    </message>
    <message id="934">
        <source>Copy rows</source>
        <translation>Copier les lignes</translation>
    </message>
    <message id="935">
        <source>Open folder</source>
        <translation>Ouvrir le dossier</translation>
    </message>
    <message id="936">
        <source>Event export is not part of this version.</source>
        <translation>L’exportation des événements ne fait pas partie de cette version.</translation>
    </message>
    <message id="937">
        <source>Choose a period and search.</source>
        <translation>Choisissez une période et lancez la recherche.</translation>
    </message>
    <message id="938">
        <source>The export failed. Existing files were not changed.</source>
        <translation>L’exportation a échoué. Les fichiers existants n’ont pas été modifiés.</translation>
    </message>
    <message id="939">
        <source>First page</source>
        <translation>Première page</translation>
    </message>
    <message id="940">
        <source>Previous page</source>
        <translation>Page précédente</translation>
    </message>
    <message id="941">
        <source>Next page</source>
        <translation>Page suivante</translation>
    </message>
    <message id="942">
        <source>Last page</source>
        <translation>Dernière page</translation>
    </message>
    <message id="943">
        <source>Refresh</source>
        <translation>Actualiser</translation>
    </message>
    <message id="945">
        <source>Log in</source>
        <translation>Connexion</translation>
    </message>
    <message id="946">
        <source>The reason is in the log files.</source>
        <translation>La raison est indiquée dans les fichiers journaux.</translation>
    </message>
    <message id="950">
        <source>Find recorders on the network.</source>
        <translation>Recherchez les enregistreurs sur le réseau.</translation>
    </message>
    <message id="951">
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message id="952">
        <source>Select all</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message id="953">
        <source>Filter the devices found</source>
        <translation>Filtrer les appareils trouvés</translation>
    </message>
    <message id="954">
        <source>No device has answered.</source>
        <translation>Aucun appareil n’a répondu.</translation>
    </message>
    <message id="955">
        <source>Recorders with those selected: %1 of %2</source>
        <translation>Enregistreurs, sélection comprise : %1 sur %2</translation>
    </message>
    <message id="956">
        <source>Connection</source>
        <translation>Connexion</translation>
    </message>
    <message id="957">
        <source>Checking…</source>
        <translation>Vérification…</translation>
    </message>
    <message id="958">
        <source>Login refused</source>
        <translation>Identification refusée</translation>
    </message>
    <message id="959">
        <source>No answer</source>
        <translation>Pas de réponse</translation>
    </message>
    <message id="960">
        <source>Host name not found</source>
        <translation>Nom d’hôte introuvable</translation>
    </message>
    <message id="961">
        <source>Connection refused</source>
        <translation>Connexion refusée</translation>
    </message>
    <message id="962">
        <source>Unexpected answer</source>
        <translation>Réponse inattendue</translation>
    </message>
    <message id="963">
        <source>Stopped</source>
        <translation>Arrêté</translation>
    </message>
    <message id="965">
        <source>Notice</source>
        <translation>Remarque</translation>
    </message>
    <message id="966">
        <source>No camera</source>
        <translation>Aucune caméra</translation>
    </message>
    <message id="967">
        <source>Changed in the recorder</source>
        <translation>Modifié dans l’enregistreur</translation>
    </message>
    <message id="968">
        <source>Detected</source>
        <translation>Détecté</translation>
    </message>
    <message id="969">
        <source>Unchanged</source>
        <translation>Inchangé</translation>
    </message>
    <message id="970">
        <source>Remove the camera of channel %1 from the recorder?</source>
        <translation>Voulez-vous supprimer de l’enregistreur la caméra du canal %1 ?</translation>
    </message>
    <message id="971">
        <source>Filter the cameras found</source>
        <translation>Filtrer les caméras trouvées</translation>
    </message>
    <message id="972">
        <source>No camera was found.</source>
        <translation>Aucune caméra trouvée.</translation>
    </message>
    <message id="973">
        <source>The recorder sees no camera on its network. Search again, or enter an address.</source>
        <translation>L’enregistreur ne voit aucune caméra sur son réseau. Relancez la recherche ou saisissez une adresse.</translation>
    </message>
    <message id="974">
        <source>Cameras found: %1</source>
        <translation>Caméras trouvées : %1</translation>
    </message>
    <message id="975">
        <source>Asking the camera…</source>
        <translation>Interrogation de la caméra…</translation>
    </message>
    <message id="976">
        <source>Writing to the recorder…</source>
        <translation>Écriture dans l’enregistreur…</translation>
    </message>
    <message id="977">
        <source>Video source</source>
        <translation>Source vidéo</translation>
    </message>
    <message id="978">
        <source>Detect the camera to see its video settings.</source>
        <translation>Détectez la caméra pour voir ses paramètres vidéo.</translation>
    </message>
    <message id="979">
        <source>Fish-eye view</source>
        <translation>Vue fish-eye</translation>
    </message>
    <message id="980">
        <source>The camera name must not contain a double quote (").</source>
        <translation>Le nom de la caméra ne peut pas contenir de guillemet (").</translation>
    </message>
    <message id="981">
        <source>The configuration database cannot be opened: another program holds it, or it cannot be read. Nothing has been changed. Try again?</source>
        <translation>La base de données de configuration ne peut pas être ouverte : un autre programme l’occupe ou elle est illisible. Rien n’a été modifié. Voulez-vous réessayer ?</translation>
    </message>
    <message id="982">
        <source>The users could not be read from the database, so nobody can log in. Close the program that holds the database and start again. The reason is in the log files.</source>
        <translation>Les utilisateurs n’ont pas pu être lus dans la base de données ; personne ne peut donc se connecter. Fermez le programme qui occupe la base et redémarrez. La raison est indiquée dans les fichiers journaux.</translation>
    </message>
    <message id="983">
        <source>These tables of the database could not be read: %1. They stay as they are. The reason is in the log files.</source>
        <translation>Ces tables de la base de données n’ont pas pu être lues : %1. Elles restent inchangées. La raison est indiquée dans les fichiers journaux.</translation>
    </message>
    <message id="995">
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message id="1000">
        <source>Keys</source>
        <translation>Touches</translation>
    </message>
    <message id="1001">
        <source>Show the keys</source>
        <translation>Afficher les touches</translation>
    </message>
    <message id="1002">
        <source>Rename or edit the selected entry</source>
        <translation>Renommer ou modifier l’entrée sélectionnée</translation>
    </message>
    <message id="1003">
        <source>Read the page again</source>
        <translation>Relire la page</translation>
    </message>
    <message id="1004">
        <source>Filter the list</source>
        <translation>Filtrer la liste</translation>
    </message>
    <message id="1005">
        <source>Go to a page</source>
        <translation>Aller à une page</translation>
    </message>
    <message id="1006">
        <source>Press the button or open the selected entry</source>
        <translation>Activer le bouton ou ouvrir l’entrée sélectionnée</translation>
    </message>
    <message id="1007">
        <source>Remove the selected entry</source>
        <translation>Supprimer l’entrée sélectionnée</translation>
    </message>
    <message id="1008">
        <source>Cancel or close</source>
        <translation>Annuler ou fermer</translation>
    </message>
    <message id="1030">
        <source>Added: %1 of %2</source>
        <translation>Ajoutés : %1 sur %2</translation>
    </message>
    <message id="1031">
        <source>Added: %1 of %2, failed: %3</source>
        <translation>Ajoutés : %1 sur %2, échecs : %3</translation>
    </message>
    <message id="1032">
        <source>Recorders that were not added can be tried again with another login.</source>
        <translation>Vous pouvez réessayer avec d’autres identifiants pour les enregistreurs non ajoutés.</translation>
    </message>
    <message id="1033">
        <source>Try again</source>
        <translation>Réessayer</translation>
    </message>
    <message id="1034">
        <source>Login</source>
        <translation>Connexion</translation>
    </message>
    <message id="1035">
        <source>Added but not saved yet: %1.
Do you want to save?</source>
        <translation>Ajoutés, mais pas encore enregistrés : %1.
Voulez-vous les enregistrer ?</translation>
    </message>
    <message id="1036">
        <source>No recorder has been added yet. Close and lose what you entered?</source>
        <translation>Aucun enregistreur n’a encore été ajouté. Voulez-vous fermer et perdre votre saisie ?</translation>
    </message>
    <message id="1037">
        <source>More than one recorder would have this name: %1.
Do you want to use it anyway?</source>
        <translation>Plusieurs enregistreurs porteraient ce nom : %1.
Voulez-vous l’utiliser quand même ?</translation>
    </message>
    <message id="1080">
        <source>A stored password is not shown. Typing replaces it.</source>
        <translation>Un mot de passe enregistré n’est pas affiché. Toute saisie le remplace.</translation>
    </message>
    <message id="1081">
        <source>Choose a group</source>
        <translation>Choisir un groupe</translation>
    </message>
    <message id="1082">
        <source>No account yet</source>
        <translation>Aucun compte</translation>
    </message>
    <message id="1083">
        <source>These accounts are tried on recorders whose login is not known.</source>
        <translation>Ces comptes sont essayés sur les enregistreurs dont l’identifiant n’est pas connu.</translation>
    </message>
    <message id="1084">
        <source>Do you want to delete the selected account?</source>
        <translation>Voulez-vous supprimer le compte sélectionné ?</translation>
    </message>
    <message id="1085">
        <source>No camera is accessible</source>
        <translation>Aucune caméra accessible</translation>
    </message>
    <message id="1086">
        <source>Access follows from the rights of the user’s group.</source>
        <translation>L’accès dépend des droits du groupe de l’utilisateur.</translation>
    </message>
    <message id="1087">
        <source>Open the folder?</source>
        <translation>Ouvrir le dossier ?</translation>
    </message>
    <message id="1088">
        <source>Filter users…</source>
        <translation>Filtrer les utilisateurs…</translation>
    </message>
    <message id="1089">
        <source>No user matches the filter.</source>
        <translation>Aucun utilisateur ne correspond au filtre.</translation>
    </message>
    <message id="1110">
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message id="1221">
        <source>Waiting for the picture…</source>
        <translation>En attente de l’image…</translation>
    </message>
    <message id="1222">
        <source>No picture</source>
        <translation>Pas d’image</translation>
    </message>
    <message id="1223">
        <source>Trying again…</source>
        <translation>Nouvelle tentative…</translation>
    </message>
    <message id="1260">
        <source>Filter maps and cameras…</source>
        <translation>Filtrer plans et caméras…</translation>
    </message>
    <message id="1261">
        <source>Cut</source>
        <translation>Couper</translation>
    </message>
    <message id="1262">
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message id="1263">
        <source>Move to…</source>
        <translation>Déplacer vers…</translation>
    </message>
    <message id="1264">
        <source>A recorder's map goes under the main map or into a group.</source>
        <translation>Le plan d’un enregistreur va sous le plan principal ou dans un groupe.</translation>
    </message>
    <message id="1265">
        <source>A camera goes on the map of its own recorder or one of its sub-maps; on the main map it is taken off all maps.</source>
        <translation>Une caméra va sur le plan de son enregistreur ou l’un de ses sous-plans ; sur le plan principal, elle n’est sur aucun.</translation>
    </message>
    <message id="1266">
        <source>It is there already.</source>
        <translation>Il s’y trouve déjà.</translation>
    </message>
    <message id="1267">
        <source>Only recorders' maps and cameras can be moved.</source>
        <translation>Seuls les plans des enregistreurs et les caméras peuvent être déplacés.</translation>
    </message>
    <message id="1268">
        <source>Move</source>
        <translation>Déplacer</translation>
    </message>
    <message id="1269">
        <source>Show the map's picture</source>
        <translation>Afficher l’image du plan</translation>
    </message>
    <message id="1270">
        <source>No map or camera matches the filter.</source>
        <translation>Aucun plan ni caméra ne correspond au filtre.</translation>
    </message>
    <message id="1271">
        <source>Enter a name to add a group.</source>
        <translation>Saisissez un nom pour ajouter un groupe.</translation>
    </message>
    <message id="1272">
        <source>Enter a name to add a sub-map. The map has the name of its recorder.</source>
        <translation>Saisissez un nom pour ajouter un sous-plan. Le plan porte le nom de l’enregistreur.</translation>
    </message>
    <message id="1273">
        <source>Drag recorders' maps into the group.</source>
        <translation>Faites glisser des plans d’enregistreurs dans le groupe.</translation>
    </message>
    <message id="1274">
        <source>Drag the camera to the map of its recorder.</source>
        <translation>Faites glisser la caméra sur le plan de son enregistreur.</translation>
    </message>
    <message id="1275">
        <source>Drag cameras of its recorder to the sub-map.</source>
        <translation>Faites glisser des caméras de l’enregistreur sur le sous-plan.</translation>
    </message>
</context>
</TS>
