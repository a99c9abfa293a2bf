<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name></name>
    <message id="0">
        <source>English</source>
        <translation>English</translation>
    </message>
    <message id="1">
        <source>Traditional Chinese</source>
        <translation>Traditional Chinese</translation>
    </message>
    <message id="2">
        <source>Simplified Chinese</source>
        <translation>Simplified Chinese</translation>
    </message>
    <message id="3">
        <source>Japanese</source>
        <translation>Japanese</translation>
    </message>
    <message id="4">
        <source>Spainish</source>
        <translation>Spainish</translation>
    </message>
    <message id="5">
        <source>CGI ID is full !</source>
        <translation>CGI ID is full !</translation>
    </message>
    <message id="6">
        <source>User Name or Password Error !</source>
        <translation>User Name or Password Error !</translation>
    </message>
    <message id="7">
        <source>Device Connection Error !</source>
        <translation>Device Connection Error !</translation>
    </message>
    <message id="8">
        <source>Device brand not supported !</source>
        <translation>Device brand not supported !</translation>
    </message>
    <message id="9">
        <source>Sending CGI failed !</source>
        <translation>Sending CGI failed !</translation>
    </message>
    <message id="10">
        <source>Program has been opened !</source>
        <translation>Program has been opened !</translation>
    </message>
    <message id="11">
        <source>Application of Setup has been Opening . Please turn it off !</source>
        <translation>Application of Setup has been Opening . Please turn it off !</translation>
    </message>
    <message id="12">
        <source>Database initialization ...</source>
        <translation>Database initialization ...</translation>
    </message>
    <message id="13">
        <source>Default Data to read ...</source>
        <translation>Default Data to read ...</translation>
    </message>
    <message id="14">
        <source>Incorrect database version ! Do you want to reset the databse now ?</source>
        <translation>Incorrect database version ! Do you want to reset the databse now ?</translation>
    </message>
    <message id="15">
        <source>System will not be able to continue to work .</source>
        <translation>System will not be able to continue to work .</translation>
    </message>
    <message id="16">
        <source>Update Database ...</source>
        <translation>Update Database ...</translation>
    </message>
    <message id="17">
        <source>Data is loading ...</source>
        <translation>Data is loading ...</translation>
    </message>
    <message id="18">
        <source>Motion Detection setting is loading...</source>
        <translation>Motion Detection setting is loading...</translation>
    </message>
    <message id="19">
        <source>User Data is loading...</source>
        <translation>User Data is loading...</translation>
    </message>
    <message id="20">
        <source>Group Data  is loading...</source>
        <translation>Group Data  is loading...</translation>
    </message>
    <message id="21">
        <source>Event setting is loading...</source>
        <translation>Event setting is loading...</translation>
    </message>
    <message id="22">
        <source>E-Map Data is loading ...</source>
        <translation>E-Map Data is loading ...</translation>
    </message>
    <message id="23">
        <source>Multi-Screen set up is loading ...</source>
        <translation>Multi-Screen set up is loading ...</translation>
    </message>
    <message id="24">
        <source>System component registering  ...</source>
        <translation>System component registering  ...</translation>
    </message>
    <message id="25">
        <source>Login Identification ...</source>
        <translation>Login Identification ...</translation>
    </message>
    <message id="26">
        <source>Open Login Frame ...</source>
        <translation>Open Login Frame ...</translation>
    </message>
    <message id="27">
        <source>Loading User's Pattern …</source>
        <translation>Loading User's Pattern …</translation>
    </message>
    <message id="28">
        <source>Start Service Mode...</source>
        <translation>Start Service Mode...</translation>
    </message>
    <message id="29">
        <source>Start Monitor Window ...</source>
        <translation>Start Monitor Window ...</translation>
    </message>
    <message id="30">
        <source>Start Auto Search …</source>
        <translation>Start Auto Search …</translation>
    </message>
    <message id="32">
        <source>Manual Startup</source>
        <translation>Manual Startup</translation>
    </message>
    <message id="33">
        <source>Device detect timeout !</source>
        <translation>Device detect timeout !</translation>
    </message>
    <message id="34">
        <source>The channel of SVR has been removed. Please re-detect the SVR!</source>
        <translation>The channel of SVR has been removed. Please re-detect the SVR!</translation>
    </message>
    <message id="35">
        <source>Please enable SVR upnp port forwarding!</source>
        <translation>Please enable SVR upnp port forwarding!</translation>
    </message>
    <message id="36">
        <source>Video Wall Setting</source>
        <translation>Video Wall Setting</translation>
    </message>
    <message id="37">
        <source>Video Wall display position setting</source>
        <translation>Video Wall display position setting</translation>
    </message>
    <message id="38">
        <source>Monitor</source>
        <translation>Monitor</translation>
    </message>
    <message id="39">
        <source>Startup assign setting</source>
        <translation>Startup assign setting</translation>
    </message>
    <message id="40">
        <source>User</source>
        <translation>User</translation>
    </message>
    <message id="41">
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message id="42">
        <source>User Field is Blank !</source>
        <translation>User Field is Blank !</translation>
    </message>
    <message id="43">
        <source>Password Field is Blank !</source>
        <translation>Password Field is Blank !</translation>
    </message>
    <message id="44">
        <source>Incorrect User Account or Password !</source>
        <translation>Incorrect User Account or Password !</translation>
    </message>
    <message id="45">
        <source>Main Viewer</source>
        <translation>Main Viewer</translation>
    </message>
    <message id="46">
        <source>NVR Setting</source>
        <translation>NVR Setting</translation>
    </message>
    <message id="47">
        <source>Event-Triggered Notification</source>
        <translation>Event-Triggered Notification</translation>
    </message>
    <message id="48">
        <source>Auto Search Notice</source>
        <translation>Auto Search Notice</translation>
    </message>
    <message id="49">
        <source>Event Synchronization Manually Update</source>
        <translation>Event Synchronization Manually Update</translation>
    </message>
    <message id="50">
        <source>About</source>
        <translation>About</translation>
    </message>
    <message id="51">
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message id="52">
        <source>Split</source>
        <translation>Split</translation>
    </message>
    <message id="53">
        <source>Change Channel</source>
        <translation>Change Channel</translation>
    </message>
    <message id="54">
        <source>OSD Display</source>
        <translation>OSD Display</translation>
    </message>
    <message id="55">
        <source>CH</source>
        <translation>CH</translation>
    </message>
    <message id="56">
        <source>Path</source>
        <translation>Path</translation>
    </message>
    <message id="57">
        <source>OSD Channel</source>
        <translation>OSD Channel</translation>
    </message>
    <message id="58">
        <source>OSD Time</source>
        <translation>OSD Time</translation>
    </message>
    <message id="59">
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message id="60">
        <source>Camera Event Server Setting Error!</source>
        <translation>Camera Event Server Setting Error!</translation>
    </message>
    <message id="61">
        <source>Snapshot Error!</source>
        <translation>Snapshot Error!</translation>
    </message>
    <message id="62">
        <source>Event Notification is still ongoing.</source>
        <translation>Event Notification is still ongoing.</translation>
    </message>
    <message id="63">
        <source>Do you want to exit and open rigging desk?</source>
        <translation>Do you want to exit and open rigging desk?</translation>
    </message>
    <message id="64">
        <source>Auto-Search Notice</source>
        <translation>Auto-Search Notice</translation>
    </message>
    <message id="65">
        <source>Closing...</source>
        <translation>Closing...</translation>
    </message>
    <message id="66">
        <source>Devcie is Found!</source>
        <translation>Devcie is Found!</translation>
    </message>
    <message id="67">
        <source>Fix display mode</source>
        <translation>Fix display mode</translation>
    </message>
    <message id="68">
        <source>Video Wall default startup setting</source>
        <translation>Video Wall default startup setting</translation>
    </message>
    <message id="69">
        <source>Intelligent Overview</source>
        <translation>Intelligent Overview</translation>
    </message>
    <message id="70">
        <source>Do You Want to Save Snapshot Images ?</source>
        <translation>Do You Want to Save Snapshot Images ?</translation>
    </message>
    <message id="71">
        <source>User Name or Password error !</source>
        <translation>User Name or Password error !</translation>
    </message>
    <message id="72">
        <source>Brand not supported!</source>
        <translation>Brand not supported!</translation>
    </message>
    <message id="73">
        <source>Camera not supported!</source>
        <translation>Camera not supported!</translation>
    </message>
    <message id="74">
        <source>Device connection error!</source>
        <translation>Device connection error!</translation>
    </message>
    <message id="75">
        <source>Device detection timeout!</source>
        <translation>Device detection timeout!</translation>
    </message>
    <message id="76">
        <source>Unable to connect to the server!</source>
        <translation>Unable to connect to the server!</translation>
    </message>
    <message id="77">
        <source>Service has not connect yet!</source>
        <translation>Service has not connect yet!</translation>
    </message>
    <message id="78">
        <source>This series of device does not allow repeat add!</source>
        <translation>This series of device does not allow repeat add!</translation>
    </message>
    <message id="79">
        <source>SEQ by Channel</source>
        <translation>SEQ by Channel</translation>
    </message>
    <message id="80">
        <source>SEQ by NVR</source>
        <translation>SEQ by NVR</translation>
    </message>
    <message id="81">
        <source>SEQ by Pattern</source>
        <translation>SEQ by Pattern</translation>
    </message>
    <message id="82">
        <source>NVR List</source>
        <translation>NVR List</translation>
    </message>
    <message id="83">
        <source>Dwell time</source>
        <translation>Dwell time</translation>
    </message>
    <message id="84">
        <source>SEQ function is starting, do you want to continue to start SEQ content setting, which will stop SEQ function?</source>
        <translation>SEQ function is starting, do you want to continue to start SEQ content setting, which will stop SEQ function?</translation>
    </message>
    <message id="85">
        <source>Channel SEQ not available! Please select more than one channel when using this function.</source>
        <translation>Channel SEQ not available! Please select more than one channel when using this function.</translation>
    </message>
    <message id="86">
        <source>NVR SEQ not available! Please select more than one NVR when using this function.</source>
        <translation>NVR SEQ not available! Please select more than one NVR when using this function.</translation>
    </message>
    <message id="87">
        <source>Pattern SEQ not available! Please select more than one patterns when using this function.</source>
        <translation>Pattern SEQ not available! Please select more than one patterns when using this function.</translation>
    </message>
    <message id="88">
        <source>Do you want to enable SEQ by Channel?</source>
        <translation>Do you want to enable SEQ by Channel?</translation>
    </message>
    <message id="89">
        <source>Do you want to enable SEQ by NVR?</source>
        <translation>Do you want to enable SEQ by NVR?</translation>
    </message>
    <message id="90">
        <source>Do you want to enable SEQ by Pattern?</source>
        <translation>Do you want to enable SEQ by Pattern?</translation>
    </message>
    <message id="91">
        <source>Camera event setting can't exceed 32!</source>
        <translation>Camera event setting can't exceed 32!</translation>
    </message>
    <message id="92">
        <source>Please add a NVR first!</source>
        <translation>Please add a NVR first!</translation>
    </message>
    <message id="93">
        <source>Port number can't accept 0 or more than 65536.</source>
        <translation>Port number can't accept 0 or more than 65536.</translation>
    </message>
    <message id="94">
        <source>Drive</source>
        <translation>Drive</translation>
    </message>
    <message id="95">
        <source>Size(GB)</source>
        <translation>Size(GB)</translation>
    </message>
    <message id="96">
        <source>Free(GB)</source>
        <translation>Free(GB)</translation>
    </message>
    <message id="97">
        <source>Usage(%)</source>
        <translation>Usage(%)</translation>
    </message>
    <message id="98">
        <source>Storage Path</source>
        <translation>Storage Path</translation>
    </message>
    <message id="99">
        <source>Select a Path</source>
        <translation>Select a Path</translation>
    </message>
    <message id="100">
        <source>Live Monitor</source>
        <translation>Live Monitor</translation>
    </message>
    <message id="101">
        <source>Event Monitor</source>
        <translation>Event Monitor</translation>
    </message>
    <message id="102">
        <source>Playback</source>
        <translation>Playback</translation>
    </message>
    <message id="103">
        <source>E-MAP Monitor</source>
        <translation>E-MAP Monitor</translation>
    </message>
    <message id="104">
        <source>User Pattern</source>
        <translation>User Pattern</translation>
    </message>
    <message id="105">
        <source>Split</source>
        <translation>Split</translation>
    </message>
    <message id="106">
        <source>Pattern Name</source>
        <translation>Pattern Name</translation>
    </message>
    <message id="107">
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message id="108">
        <source>Channel Status</source>
        <translation>Channel Status</translation>
    </message>
    <message id="109">
        <source>Network Disconnection</source>
        <translation>Network Disconnection</translation>
    </message>
    <message id="110">
        <source>Network connection</source>
        <translation>Network connection</translation>
    </message>
    <message id="111">
        <source>Recording</source>
        <translation>Recording</translation>
    </message>
    <message id="112">
        <source>Event Trigger</source>
        <translation>Event Trigger</translation>
    </message>
    <message id="113">
        <source>Connecting</source>
        <translation>Connecting</translation>
    </message>
    <message id="114">
        <source>Video Loss</source>
        <translation>Video Loss</translation>
    </message>
    <message id="115">
        <source>SEQ Mode</source>
        <translation>SEQ Mode</translation>
    </message>
    <message id="116">
        <source>(Sec)</source>
        <translation>(Sec)</translation>
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
        <translation>SEQ contents</translation>
    </message>
    <message id="120">
        <source>SEQ ALL</source>
        <translation>SEQ ALL</translation>
    </message>
    <message id="121">
        <source>SEQ</source>
        <translation>SEQ</translation>
    </message>
    <message id="122">
        <source>Pattern SEQ</source>
        <translation>Pattern SEQ</translation>
    </message>
    <message id="123">
        <source>Service Mode</source>
        <translation>Service Mode</translation>
    </message>
    <message id="124">
        <source>Language</source>
        <translation>Language</translation>
    </message>
    <message id="125">
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message id="126">
        <source>Event Info</source>
        <translation>Event Info</translation>
    </message>
    <message id="127">
        <source>Event</source>
        <translation>Event</translation>
    </message>
    <message id="128">
        <source>Time</source>
        <translation>Time</translation>
    </message>
    <message id="129">
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message id="130">
        <source>System Info</source>
        <translation>System Info</translation>
    </message>
    <message id="131">
        <source>Info</source>
        <translation>Info</translation>
    </message>
    <message id="132">
        <source>System Time:</source>
        <translation>System Time:</translation>
    </message>
    <message id="133">
        <source>Group Level:</source>
        <translation>Group Level:</translation>
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
        <translation>Unable to support full screen mode or to change split mode under SEQ mode.</translation>
    </message>
    <message id="138">
        <source>Full screen is running. close it first!</source>
        <translation>Full screen is running. close it first!</translation>
    </message>
    <message id="139">
        <source>Unauthorised</source>
        <translation>Unauthorised</translation>
    </message>
    <message id="140">
        <source>Select a channel first.</source>
        <translation>Select a channel first.</translation>
    </message>
    <message id="141">
        <source>Name Repeat!</source>
        <translation>Name Repeat!</translation>
    </message>
    <message id="142">
        <source>MENU</source>
        <translation>MENU</translation>
    </message>
    <message id="143">
        <source>TREE</source>
        <translation>TREE</translation>
    </message>
    <message id="144">
        <source>PATTERN</source>
        <translation>PATTERN</translation>
    </message>
    <message id="145">
        <source>STATUS</source>
        <translation>STATUS</translation>
    </message>
    <message id="146">
        <source>SEQ</source>
        <translation>SEQ</translation>
    </message>
    <message id="147">
        <source>SYSTEM</source>
        <translation>SYSTEM</translation>
    </message>
    <message id="148">
        <source>CH:</source>
        <translation>CH:</translation>
    </message>
    <message id="149">
        <source>Reconnection</source>
        <translation>Reconnection</translation>
    </message>
    <message id="150">
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message id="151">
        <source>Display Image of Motion Detection </source>
        <translation>Display Image of Motion Detection </translation>
    </message>
    <message id="152">
        <source>Snapshot</source>
        <translation>Snapshot</translation>
    </message>
    <message id="153">
        <source>Preset Point Setting</source>
        <translation>Preset Point Setting</translation>
    </message>
    <message id="154">
        <source>When modify setting, the channel of pattern will be changed.</source>
        <translation>When modify setting, the channel of pattern will be changed.</translation>
    </message>
    <message id="155">
        <source>Snapshot fail !</source>
        <translation>Snapshot fail !</translation>
    </message>
    <message id="156">
        <source>Preset Patrol:</source>
        <translation>Preset Patrol:</translation>
    </message>
    <message id="157">
        <source>Loading Fullscreen layout data…</source>
        <translation>Loading Fullscreen layout data…</translation>
    </message>
    <message id="158">
        <source>Dock</source>
        <translation>Dock</translation>
    </message>
    <message id="159">
        <source>Control Panel</source>
        <translation>Control Panel</translation>
    </message>
    <message id="160">
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message id="161">
        <source>Channel:</source>
        <translation>Channel:</translation>
    </message>
    <message id="162">
        <source>CH Name:</source>
        <translation>CH Name:</translation>
    </message>
    <message id="163">
        <source>Event Mode:</source>
        <translation>Event Mode:</translation>
    </message>
    <message id="164">
        <source>Event Trigger Time:</source>
        <translation>Event Trigger Time:</translation>
    </message>
    <message id="165">
        <source>Contact:</source>
        <translation>Contact:</translation>
    </message>
    <message id="166">
        <source>Phone:</source>
        <translation>Phone:</translation>
    </message>
    <message id="167">
        <source>Play Time(SYSTEM):</source>
        <translation>Play Time(SYSTEM):</translation>
    </message>
    <message id="168">
        <source>Current Event List</source>
        <translation>Current Event List</translation>
    </message>
    <message id="169">
        <source>Log Event List</source>
        <translation>Log Event List</translation>
    </message>
    <message id="170">
        <source>Search</source>
        <translation>Search</translation>
    </message>
    <message id="171">
        <source>Search All</source>
        <translation>Search All</translation>
    </message>
    <message id="172">
        <source>Search Start Time</source>
        <translation>Search Start Time</translation>
    </message>
    <message id="173">
        <source>Search by Event type</source>
        <translation>Search by Event type</translation>
    </message>
    <message id="174">
        <source>Item</source>
        <translation>Item</translation>
    </message>
    <message id="175">
        <source>Event ID</source>
        <translation>Event ID</translation>
    </message>
    <message id="176">
        <source>Time</source>
        <translation>Time</translation>
    </message>
    <message id="177">
        <source>System Time</source>
        <translation>System Time</translation>
    </message>
    <message id="178">
        <source>NO.</source>
        <translation>NO.</translation>
    </message>
    <message id="179">
        <source>CH</source>
        <translation>CH</translation>
    </message>
    <message id="180">
        <source>Event Mode</source>
        <translation>Event Mode</translation>
    </message>
    <message id="181">
        <source>Process</source>
        <translation>Process</translation>
    </message>
    <message id="182">
        <source>On-Line</source>
        <translation>On-Line</translation>
    </message>
    <message id="183">
        <source>Channel Name</source>
        <translation>Channel Name</translation>
    </message>
    <message id="184">
        <source>Channel Detail</source>
        <translation>Channel Detail</translation>
    </message>
    <message id="185">
        <source>Play Error</source>
        <translation>Play Error</translation>
    </message>
    <message id="186">
        <source>Play Stop</source>
        <translation>Play Stop</translation>
    </message>
    <message id="187">
        <source>Live Video</source>
        <translation>Live Video</translation>
    </message>
    <message id="188">
        <source>Live Stop</source>
        <translation>Live Stop</translation>
    </message>
    <message id="189">
        <source>Off Line</source>
        <translation>Off Line</translation>
    </message>
    <message id="190">
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message id="191">
        <source>Motion</source>
        <translation>Motion</translation>
    </message>
    <message id="192">
        <source>Sensor</source>
        <translation>Sensor</translation>
    </message>
    <message id="193">
        <source>Return message: </source>
        <translation>Return message: </translation>
    </message>
    <message id="194">
        <source>NVR no playback resource!</source>
        <translation>NVR no playback resource!</translation>
    </message>
    <message id="195">
        <source>Playback request failed!</source>
        <translation>Playback request failed!</translation>
    </message>
    <message id="196">
        <source>Reset Event List</source>
        <translation>Reset Event List</translation>
    </message>
    <message id="197">
        <source>X</source>
        <translation>X</translation>
    </message>
    <message id="198">
        <source>Return</source>
        <translation>Return</translation>
    </message>
    <message id="199">
        <source>SEQ Duration Time</source>
        <translation>SEQ Duration Time</translation>
    </message>
    <message id="200">
        <source>Playback Info</source>
        <translation>Playback Info</translation>
    </message>
    <message id="201">
        <source>NVR:</source>
        <translation>NVR:</translation>
    </message>
    <message id="202">
        <source>CH:</source>
        <translation>CH:</translation>
    </message>
    <message id="203">
        <source>Speed:</source>
        <translation>Speed:</translation>
    </message>
    <message id="204">
        <source>Sun</source>
        <translation>Sun</translation>
    </message>
    <message id="205">
        <source>Mon</source>
        <translation>Mon</translation>
    </message>
    <message id="206">
        <source>Tue</source>
        <translation>Tue</translation>
    </message>
    <message id="207">
        <source>Wed</source>
        <translation>Wed</translation>
    </message>
    <message id="208">
        <source>Thu</source>
        <translation>Thu</translation>
    </message>
    <message id="209">
        <source>Fri</source>
        <translation>Fri</translation>
    </message>
    <message id="210">
        <source>Sat</source>
        <translation>Sat</translation>
    </message>
    <message id="211">
        <source>Event List</source>
        <translation>Event List</translation>
    </message>
    <message id="212">
        <source>Receiving recording data failed</source>
        <translation>Receiving recording data failed</translation>
    </message>
    <message id="213">
        <source>RF</source>
        <translation>RF</translation>
    </message>
    <message id="214">
        <source>STOP</source>
        <translation>STOP</translation>
    </message>
    <message id="215">
        <source>PLAY</source>
        <translation>PLAY</translation>
    </message>
    <message id="216">
        <source>PAUSE</source>
        <translation>PAUSE</translation>
    </message>
    <message id="217">
        <source>FF</source>
        <translation>FF</translation>
    </message>
    <message id="218">
        <source>NEXT</source>
        <translation>NEXT</translation>
    </message>
    <message id="219">
        <source>No recording data can be Displayed !</source>
        <translation>No recording data can be Displayed !</translation>
    </message>
    <message id="220">
        <source>Play Stop ! Need to select new time.</source>
        <translation>Play Stop ! Need to select new time.</translation>
    </message>
    <message id="221">
        <source>No response! you can try again or select another device !</source>
        <translation>No response! you can try again or select another device !</translation>
    </message>
    <message id="222">
        <source>Disconnection ! </source>
        <translation>Disconnection ! </translation>
    </message>
    <message id="223">
        <source>Can not get video stream ! please select other Channel.</source>
        <translation>Can not get video stream ! please select other Channel.</translation>
    </message>
    <message id="224">
        <source>No recording data.</source>
        <translation>No recording data.</translation>
    </message>
    <message id="225">
        <source>Recording data is updating, please wait .</source>
        <translation>Recording data is updating, please wait .</translation>
    </message>
    <message id="226">
        <source>Convert to AVI</source>
        <translation>Convert to AVI</translation>
    </message>
    <message id="227">
        <source>Do you want to stop the conversion of avi file ?</source>
        <translation>Do you want to stop the conversion of avi file ?</translation>
    </message>
    <message id="228">
        <source>AVI file conversion complete! File is... </source>
        <translation>AVI file conversion complete! File is... </translation>
    </message>
    <message id="229">
        <source>Converting AVI file!</source>
        <translation>Converting AVI file!</translation>
    </message>
    <message id="230">
        <source>AVI Conversion Fail !</source>
        <translation>AVI Conversion Fail !</translation>
    </message>
    <message id="231">
        <source>Auto Pan:</source>
        <translation>Auto Pan:</translation>
    </message>
    <message id="232">
        <source>Single Video</source>
        <translation>Single Video</translation>
    </message>
    <message id="233">
        <source>Quad Videos</source>
        <translation>Quad Videos</translation>
    </message>
    <message id="234">
        <source>Nine Videos</source>
        <translation>Nine Videos</translation>
    </message>
    <message id="235">
        <source>No any SVD has been set, you need to add any SVD to control!</source>
        <translation>No any SVD has been set, you need to add any SVD to control!</translation>
    </message>
    <message id="236">
        <source>This channel has been set to display in this screen!</source>
        <translation>This channel has been set to display in this screen!</translation>
    </message>
    <message id="237">
        <source>Are you sure to exit SVD console monitor?</source>
        <translation>Are you sure to exit SVD console monitor?</translation>
    </message>
    <message id="238">
        <source>Click here to reconnect again!</source>
        <translation>Click here to reconnect again!</translation>
    </message>
    <message id="239">
        <source>SVD UI is changing…</source>
        <translation>SVD UI is changing…</translation>
    </message>
    <message id="240">
        <source>NO.:</source>
        <translation>NO.:</translation>
    </message>
    <message id="241">
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message id="242">
        <source>Number of Camera:</source>
        <translation>Number of Camera:</translation>
    </message>
    <message id="243">
        <source>Event:</source>
        <translation>Event:</translation>
    </message>
    <message id="244">
        <source>No Event</source>
        <translation>No Event</translation>
    </message>
    <message id="245">
        <source>CH:</source>
        <translation>CH:</translation>
    </message>
    <message id="246">
        <source>Up</source>
        <translation>Up</translation>
    </message>
    <message id="247">
        <source>Down</source>
        <translation>Down</translation>
    </message>
    <message id="248">
        <source>Left</source>
        <translation>Left</translation>
    </message>
    <message id="249">
        <source>Right</source>
        <translation>Right</translation>
    </message>
    <message id="250">
        <source>Upper left</source>
        <translation>Upper left</translation>
    </message>
    <message id="251">
        <source>Upper right</source>
        <translation>Upper right</translation>
    </message>
    <message id="252">
        <source>Lower left</source>
        <translation>Lower left</translation>
    </message>
    <message id="253">
        <source>Lower right</source>
        <translation>Lower right</translation>
    </message>
    <message id="254">
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message id="255">
        <source>Zoom In</source>
        <translation>Zoom In</translation>
    </message>
    <message id="256">
        <source>Zoom Out</source>
        <translation>Zoom Out</translation>
    </message>
    <message id="257">
        <source>Focus Far</source>
        <translation>Focus Far</translation>
    </message>
    <message id="258">
        <source>Focus Near</source>
        <translation>Focus Near</translation>
    </message>
    <message id="259">
        <source>Auto Focus</source>
        <translation>Auto Focus</translation>
    </message>
    <message id="260">
        <source>IRIS Auto</source>
        <translation>IRIS Auto</translation>
    </message>
    <message id="261">
        <source>IRIS Close</source>
        <translation>IRIS Close</translation>
    </message>
    <message id="262">
        <source>IRIS Open</source>
        <translation>IRIS Open</translation>
    </message>
    <message id="263">
        <source>Auto Pan Left</source>
        <translation>Auto Pan Left</translation>
    </message>
    <message id="264">
        <source>Auto Pan Right</source>
        <translation>Auto Pan Right</translation>
    </message>
    <message id="265">
        <source>Auto Pan Stop</source>
        <translation>Auto Pan Stop</translation>
    </message>
    <message id="266">
        <source>Moving Rate(+)</source>
        <translation>Moving Rate(+)</translation>
    </message>
    <message id="267">
        <source>Moving Rate(-)</source>
        <translation>Moving Rate(-)</translation>
    </message>
    <message id="268">
        <source>Display OSD on all channels</source>
        <translation>Display OSD on all channels</translation>
    </message>
    <message id="269">
        <source>Display OSD</source>
        <translation>Display OSD</translation>
    </message>
    <message id="270">
        <source>Detail Export:</source>
        <translation>Detail Export:</translation>
    </message>
    <message id="271">
        <source>Valid Ch</source>
        <translation>Valid Ch</translation>
    </message>
    <message id="272">
        <source>Auto Search</source>
        <translation>Auto Search</translation>
    </message>
    <message id="273">
        <source>Manual Detection</source>
        <translation>Manual Detection</translation>
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
        <translation>HTTP Port:</translation>
    </message>
    <message id="277">
        <source>Next</source>
        <translation>Next</translation>
    </message>
    <message id="278">
        <source>Device Name</source>
        <translation>Device Name</translation>
    </message>
    <message id="279">
        <source>All</source>
        <translation>All</translation>
    </message>
    <message id="280">
        <source>CHs</source>
        <translation>CHs</translation>
    </message>
    <message id="281">
        <source>Model:</source>
        <translation>Model:</translation>
    </message>
    <message id="282">
        <source>Max Channel:</source>
        <translation>Max Channel:</translation>
    </message>
    <message id="283">
        <source>NVR Name:</source>
        <translation>NVR Name:</translation>
    </message>
    <message id="284">
        <source>Version:</source>
        <translation>Version:</translation>
    </message>
    <message id="285">
        <source>Valid Channel:</source>
        <translation>Valid Channel:</translation>
    </message>
    <message id="286">
        <source>Sync With NVR</source>
        <translation>Sync With NVR</translation>
    </message>
    <message id="287">
        <source>Add New NVR </source>
        <translation>Add New NVR </translation>
    </message>
    <message id="288">
        <source>NVR Search List</source>
        <translation>NVR Search List</translation>
    </message>
    <message id="289">
        <source>NVR Detect Status</source>
        <translation>NVR Detect Status</translation>
    </message>
    <message id="290">
        <source>NVR Detail Setting</source>
        <translation>NVR Detail Setting</translation>
    </message>
    <message id="291">
        <source>NVR Channel Setting</source>
        <translation>NVR Channel Setting</translation>
    </message>
    <message id="292">
        <source>Preset Sequence Setting</source>
        <translation>Preset Sequence Setting</translation>
    </message>
    <message id="293">
        <source>Get Capability...</source>
        <translation>Get Capability...</translation>
    </message>
    <message id="294">
        <source>Get Channel Info...</source>
        <translation>Get Channel Info...</translation>
    </message>
    <message id="295">
        <source>Get NVR Info...</source>
        <translation>Get NVR Info...</translation>
    </message>
    <message id="296">
        <source>Initial NVR Value...</source>
        <translation>Initial NVR Value...</translation>
    </message>
    <message id="297">
        <source>Add Success!</source>
        <translation>Add Success!</translation>
    </message>
    <message id="298">
        <source>Channel List</source>
        <translation>Channel List</translation>
    </message>
    <message id="299">
        <source>Split:</source>
        <translation>Split:</translation>
    </message>
    <message id="300">
        <source>MainViewer opened. Close it First!</source>
        <translation>MainViewer opened. Close it First!</translation>
    </message>
    <message id="301">
        <source>System &amp; Setting</source>
        <translation>System &amp; Setting</translation>
    </message>
    <message id="302">
        <source>Setting</source>
        <translation>Setting</translation>
    </message>
    <message id="303">
        <source>Manual Setting</source>
        <translation>Manual Setting</translation>
    </message>
    <message id="304">
        <source>PTZ Config</source>
        <translation>PTZ Config</translation>
    </message>
    <message id="305">
        <source>Motion Setting</source>
        <translation>Motion Setting</translation>
    </message>
    <message id="306">
        <source>Motion Setting</source>
        <translation>Motion Setting</translation>
    </message>
    <message id="307">
        <source>General Setting Overview</source>
        <translation>General Setting Overview</translation>
    </message>
    <message id="308">
        <source>Group/User Config</source>
        <translation>Group/User Config</translation>
    </message>
    <message id="309">
        <source>Event Handling Config</source>
        <translation>Event Handling Config</translation>
    </message>
    <message id="310">
        <source>E-Map Config</source>
        <translation>E-Map Config</translation>
    </message>
    <message id="311">
        <source>Screen Layout Config</source>
        <translation>Screen Layout Config</translation>
    </message>
    <message id="312">
        <source>Event Action Overview</source>
        <translation>Event Action Overview</translation>
    </message>
    <message id="313">
        <source>Mail Config</source>
        <translation>Mail Config</translation>
    </message>
    <message id="314">
        <source>FTP Config</source>
        <translation>FTP Config</translation>
    </message>
    <message id="315">
        <source>Message Config</source>
        <translation>Message Config</translation>
    </message>
    <message id="316">
        <source>Sound Config</source>
        <translation>Sound Config</translation>
    </message>
    <message id="317">
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message id="318">
        <source>Main Viewer</source>
        <translation>Main Viewer</translation>
    </message>
    <message id="319">
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message id="320">
        <source>Setup</source>
        <translation>Setup</translation>
    </message>
    <message id="321">
        <source>SEQ Control</source>
        <translation>SEQ Control</translation>
    </message>
    <message id="322">
        <source>Pattern Name:</source>
        <translation>Pattern Name:</translation>
    </message>
    <message id="323">
        <source>Do you continue to delete this pattern?</source>
        <translation>Do you continue to delete this pattern?</translation>
    </message>
    <message id="324">
        <source>Pattern List Overview</source>
        <translation>Pattern List Overview</translation>
    </message>
    <message id="325">
        <source>Name or Channel list need to be set!</source>
        <translation>Name or Channel list need to be set!</translation>
    </message>
    <message id="326">
        <source>Live Monitor SEQ and full screen can not be opened at the same time.</source>
        <translation>Live Monitor SEQ and full screen can not be opened at the same time.</translation>
    </message>
    <message id="327">
        <source>No channel is selected!</source>
        <translation>No channel is selected!</translation>
    </message>
    <message id="328">
        <source>Select time is out of data range!</source>
        <translation>Select time is out of data range!</translation>
    </message>
    <message id="329">
        <source>NVR is invalid!</source>
        <translation>NVR is invalid!</translation>
    </message>
    <message id="330">
        <source>System Setting</source>
        <translation>System Setting</translation>
    </message>
    <message id="331">
        <source>Application name:</source>
        <translation>Application name:</translation>
    </message>
    <message id="332">
        <source>Version:</source>
        <translation>Version:</translation>
    </message>
    <message id="333">
        <source>Language:</source>
        <translation>Language:</translation>
    </message>
    <message id="334">
        <source>Start Up:</source>
        <translation>Start Up:</translation>
    </message>
    <message id="335">
        <source>Event Sync Time:</source>
        <translation>Event Sync Time:</translation>
    </message>
    <message id="336">
        <source>Snapshot Count:</source>
        <translation>Snapshot Count:</translation>
    </message>
    <message id="337">
        <source>Camera Event Server Setting</source>
        <translation>Camera Event Server Setting</translation>
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
        <translation>Port:</translation>
    </message>
    <message id="341">
        <source>System Info</source>
        <translation>System Info</translation>
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
        <translation>Computer name:</translation>
    </message>
    <message id="347">
        <source>Total space of HD:</source>
        <translation>Total space of HD:</translation>
    </message>
    <message id="348">
        <source>Network Connect Status:</source>
        <translation>Network Connect Status:</translation>
    </message>
    <message id="349">
        <source>System Time:</source>
        <translation>System Time:</translation>
    </message>
    <message id="350">
        <source>Screen Count:</source>
        <translation>Screen Count:</translation>
    </message>
    <message id="351">
        <source>CPU Performance:</source>
        <translation>CPU Performance:</translation>
    </message>
    <message id="352">
        <source>Login Windows then Auto Start up </source>
        <translation>Login Windows then Auto Start up </translation>
    </message>
    <message id="353">
        <source>Start in background</source>
        <translation>Start in background</translation>
    </message>
    <message id="354">
        <source>Minute</source>
        <translation>Minute</translation>
    </message>
    <message id="356">
        <source>NVR is connecting, wait a moment and start again!</source>
        <translation>NVR is connecting, wait a moment and start again!</translation>
    </message>
    <message id="357">
        <source>NVR is offline, please choose another NVR or confirm this NVR connection status!</source>
        <translation>NVR is offline, please choose another NVR or confirm this NVR connection status!</translation>
    </message>
    <message id="358">
        <source>Output device has been removed!</source>
        <translation>Output device has been removed!</translation>
    </message>
    <message id="359">
        <source>Password confirm inconsistency, Please check again!</source>
        <translation>Password confirm inconsistency, Please check again!</translation>
    </message>
    <message id="360">
        <source>List:</source>
        <translation>List:</translation>
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
        <translation>Power</translation>
    </message>
    <message id="366">
        <source>CH</source>
        <translation>CH</translation>
    </message>
    <message id="367">
        <source>CH Name</source>
        <translation>CH Name</translation>
    </message>
    <message id="368">
        <source>CH IP</source>
        <translation>CH IP</translation>
    </message>
    <message id="369">
        <source>CH Port</source>
        <translation>CH Port</translation>
    </message>
    <message id="370">
        <source>CH Brand</source>
        <translation>CH Brand</translation>
    </message>
    <message id="371">
        <source>Video Format</source>
        <translation>Video Format</translation>
    </message>
    <message id="372">
        <source>Video RES</source>
        <translation>Video RES</translation>
    </message>
    <message id="373">
        <source>MD Enable</source>
        <translation>MD Enable</translation>
    </message>
    <message id="374">
        <source>MD Sen</source>
        <translation>MD Sen</translation>
    </message>
    <message id="375">
        <source>CH PTZ</source>
        <translation>CH PTZ</translation>
    </message>
    <message id="376">
        <source>CH audio</source>
        <translation>CH audio</translation>
    </message>
    <message id="377">
        <source>Detect List</source>
        <translation>Detect List</translation>
    </message>
    <message id="378">
        <source>Advance Control </source>
        <translation>Advance Control </translation>
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
        <translation>Brand</translation>
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
        <translation>Detect Time</translation>
    </message>
    <message id="385">
        <source>Add</source>
        <translation>Add</translation>
    </message>
    <message id="386">
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message id="387">
        <source>Modify</source>
        <translation>Modify</translation>
    </message>
    <message id="388">
        <source>Reconection </source>
        <translation>Reconection </translation>
    </message>
    <message id="389">
        <source>Open Browser</source>
        <translation>Open Browser</translation>
    </message>
    <message id="390">
        <source>Preset Info</source>
        <translation>Preset Info</translation>
    </message>
    <message id="391">
        <source>Sync</source>
        <translation>Sync</translation>
    </message>
    <message id="392">
        <source>Edit Preset</source>
        <translation>Edit Preset</translation>
    </message>
    <message id="393">
        <source>Preset No</source>
        <translation>Preset No</translation>
    </message>
    <message id="394">
        <source>Preset Name</source>
        <translation>Preset Name</translation>
    </message>
    <message id="395">
        <source>PTZ Control</source>
        <translation>PTZ Control</translation>
    </message>
    <message id="396">
        <source>Submit</source>
        <translation>Submit</translation>
    </message>
    <message id="397">
        <source>Motion Detect List:</source>
        <translation>Motion Detect List:</translation>
    </message>
    <message id="398">
        <source>Sensitivity:</source>
        <translation>Sensitivity:</translation>
    </message>
    <message id="399">
        <source>Motion Detect Setting</source>
        <translation>Motion Detect Setting</translation>
    </message>
    <message id="400">
        <source>*Use Mouse drag the Device item into Intelligent detection List.</source>
        <translation>*Use Mouse drag the Device item into Intelligent detection List.</translation>
    </message>
    <message id="401">
        <source>Device List:</source>
        <translation>Device List:</translation>
    </message>
    <message id="402">
        <source>Trigger for Motion Detect</source>
        <translation>Trigger for Motion Detect</translation>
    </message>
    <message id="403">
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message id="404">
        <source>Motion Enable List:</source>
        <translation>Motion Enable List:</translation>
    </message>
    <message id="405">
        <source>Clear All</source>
        <translation>Clear All</translation>
    </message>
    <message id="406">
        <source>Select All</source>
        <translation>Select All</translation>
    </message>
    <message id="407">
        <source>High</source>
        <translation>High</translation>
    </message>
    <message id="408">
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message id="409">
        <source>Low</source>
        <translation>Low</translation>
    </message>
    <message id="410">
        <source>SET</source>
        <translation>SET</translation>
    </message>
    <message id="411">
        <source>User List:</source>
        <translation>User List:</translation>
    </message>
    <message id="412">
        <source>Group List:</source>
        <translation>Group List:</translation>
    </message>
    <message id="413">
        <source>Event Setting List:</source>
        <translation>Event Setting List:</translation>
    </message>
    <message id="414">
        <source>EMap List:</source>
        <translation>EMap List:</translation>
    </message>
    <message id="415">
        <source>Screen List:</source>
        <translation>Screen List:</translation>
    </message>
    <message id="416">
        <source>Account</source>
        <translation>Account</translation>
    </message>
    <message id="417">
        <source>Company</source>
        <translation>Company</translation>
    </message>
    <message id="418">
        <source>Telephone</source>
        <translation>Telephone</translation>
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
        <translation>Cell Phone</translation>
    </message>
    <message id="422">
        <source>Photo Path</source>
        <translation>Photo Path</translation>
    </message>
    <message id="423">
        <source>Group</source>
        <translation>Group</translation>
    </message>
    <message id="424">
        <source>Event</source>
        <translation>Event</translation>
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
        <translation>Msg</translation>
    </message>
    <message id="428">
        <source>Sound</source>
        <translation>Sound</translation>
    </message>
    <message id="429">
        <source>Video Power</source>
        <translation>Video Power</translation>
    </message>
    <message id="430">
        <source>Playback</source>
        <translation>Playback</translation>
    </message>
    <message id="431">
        <source>PTZ</source>
        <translation>PTZ</translation>
    </message>
    <message id="432">
        <source>Setup</source>
        <translation>Setup</translation>
    </message>
    <message id="433">
        <source>Map</source>
        <translation>Map</translation>
    </message>
    <message id="434">
        <source>Path</source>
        <translation>Path</translation>
    </message>
    <message id="435">
        <source>Function</source>
        <translation>Function</translation>
    </message>
    <message id="436">
        <source>Screen</source>
        <translation>Screen</translation>
    </message>
    <message id="437">
        <source>MainMap</source>
        <translation>MainMap</translation>
    </message>
    <message id="438">
        <source>FullScreen</source>
        <translation>FullScreen</translation>
    </message>
    <message id="439">
        <source>FullScreen2</source>
        <translation>FullScreen2</translation>
    </message>
    <message id="440">
        <source>User Detail List</source>
        <translation>User Detail List</translation>
    </message>
    <message id="441">
        <source>Group List</source>
        <translation>Group List</translation>
    </message>
    <message id="442">
        <source>Add User</source>
        <translation>Add User</translation>
    </message>
    <message id="443">
        <source>Remove User</source>
        <translation>Remove User</translation>
    </message>
    <message id="444">
        <source>Modify User</source>
        <translation>Modify User</translation>
    </message>
    <message id="445">
        <source>Modify Group</source>
        <translation>Modify Group</translation>
    </message>
    <message id="446">
        <source>System Event Trigger Action</source>
        <translation>System Event Trigger Action</translation>
    </message>
    <message id="447">
        <source>NVR Event Trigger Action</source>
        <translation>NVR Event Trigger Action</translation>
    </message>
    <message id="448">
        <source>System Start/Stop</source>
        <translation>System Start/Stop</translation>
    </message>
    <message id="449">
        <source>Modify Setting of System</source>
        <translation>Modify Setting of System</translation>
    </message>
    <message id="450">
        <source>Modify Setting of NVR</source>
        <translation>Modify Setting of NVR</translation>
    </message>
    <message id="451">
        <source>Modify Setting of Intelligent detection</source>
        <translation>Modify Setting of Intelligent detection</translation>
    </message>
    <message id="452">
        <source>Modify Setting of General</source>
        <translation>Modify Setting of General</translation>
    </message>
    <message id="453">
        <source>Modify Setting of Event</source>
        <translation>Modify Setting of Event</translation>
    </message>
    <message id="454">
        <source>E1:Motion Detect</source>
        <translation>E1:Motion Detect</translation>
    </message>
    <message id="455">
        <source>Sensor Detection</source>
        <translation>Sensor Detection</translation>
    </message>
    <message id="456">
        <source>*Double Click Map to Setting</source>
        <translation>*Double Click Map to Setting</translation>
    </message>
    <message id="457">
        <source>SubMap</source>
        <translation>SubMap</translation>
    </message>
    <message id="458">
        <source>Screen Layout</source>
        <translation>Screen Layout</translation>
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
        <translation>Message</translation>
    </message>
    <message id="462">
        <source>Sound</source>
        <translation>Sound</translation>
    </message>
    <message id="463">
        <source>Sender E-mail Address</source>
        <translation>Sender E-mail Address</translation>
    </message>
    <message id="464">
        <source>Mail Server</source>
        <translation>Mail Server</translation>
    </message>
    <message id="465">
        <source>User</source>
        <translation>User</translation>
    </message>
    <message id="466">
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message id="467">
        <source>Adressee Name</source>
        <translation>Adressee Name</translation>
    </message>
    <message id="468">
        <source>Mail Addrrss</source>
        <translation>Mail Addrrss</translation>
    </message>
    <message id="469">
        <source>Server IP</source>
        <translation>Server IP</translation>
    </message>
    <message id="470">
        <source>Server Port</source>
        <translation>Server Port</translation>
    </message>
    <message id="471">
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message id="472">
        <source>Sound Description</source>
        <translation>Sound Description</translation>
    </message>
    <message id="473">
        <source>Sound File Path</source>
        <translation>Sound File Path</translation>
    </message>
    <message id="474">
        <source>Test</source>
        <translation>Test</translation>
    </message>
    <message id="475">
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message id="476">
        <source>Mail to</source>
        <translation>Mail to</translation>
    </message>
    <message id="477">
        <source>FTP Setting</source>
        <translation>FTP Setting</translation>
    </message>
    <message id="478">
        <source>Message Setting</source>
        <translation>Message Setting</translation>
    </message>
    <message id="479">
        <source>Message</source>
        <translation>Message</translation>
    </message>
    <message id="480">
        <source>Sound Setting</source>
        <translation>Sound Setting</translation>
    </message>
    <message id="481">
        <source>Set HTTP Server failed! Do you want to remove all HTTP Servers?</source>
        <translation>Set HTTP Server failed! Do you want to remove all HTTP Servers?</translation>
    </message>
    <message id="482">
        <source>The amount cannot be more than 16!</source>
        <translation>The amount cannot be more than 16!</translation>
    </message>
    <message id="483">
        <source>Do you want to delete the selected NVR?</source>
        <translation>Do you want to delete the selected NVR?</translation>
    </message>
    <message id="484">
        <source>Sender name can't be empty!</source>
        <translation>Sender name can't be empty!</translation>
    </message>
    <message id="485">
        <source>Mail Server can't be empty!</source>
        <translation>Mail Server can't be empty!</translation>
    </message>
    <message id="486">
        <source>User can't be empty!</source>
        <translation>User can't be empty!</translation>
    </message>
    <message id="487">
        <source>Password can't be empty!</source>
        <translation>Password can't be empty!</translation>
    </message>
    <message id="488">
        <source>Mail Address can't be empty!</source>
        <translation>Mail Address can't be empty!</translation>
    </message>
    <message id="489">
        <source>Test mail sent success.</source>
        <translation>Test mail sent success.</translation>
    </message>
    <message id="490">
        <source>Test mail sent failed.</source>
        <translation>Test mail sent failed.</translation>
    </message>
    <message id="491">
        <source>Server IP can't be empty!</source>
        <translation>Server IP can't be empty!</translation>
    </message>
    <message id="492">
        <source>Server Port can't be empty!</source>
        <translation>Server Port can't be empty!</translation>
    </message>
    <message id="493">
        <source>Root Path can't be empty!</source>
        <translation>Root Path can't be empty!</translation>
    </message>
    <message id="494">
        <source>Connecting to ftp server success.</source>
        <translation>Connecting to ftp server success.</translation>
    </message>
    <message id="495">
        <source>Connecting to ftp server failed.</source>
        <translation>Connecting to ftp server failed.</translation>
    </message>
    <message id="496">
        <source>Message can't be empty!</source>
        <translation>Message can't be empty!</translation>
    </message>
    <message id="497">
        <source>Sound Description can't be empty!</source>
        <translation>Sound Description can't be empty!</translation>
    </message>
    <message id="498">
        <source>Sound file Path can't be empty!</source>
        <translation>Sound file Path can't be empty!</translation>
    </message>
    <message id="499">
        <source>Preset number select first.</source>
        <translation>Preset number select first.</translation>
    </message>
    <message id="500">
        <source>The Preset Name has been used.</source>
        <translation>The Preset Name has been used.</translation>
    </message>
    <message id="501">
        <source>Do you want to delete the selected User?</source>
        <translation>Do you want to delete the selected User?</translation>
    </message>
    <message id="502">
        <source>Can't Delete User.</source>
        <translation>Can't Delete User.</translation>
    </message>
    <message id="503">
        <source>Already Set.</source>
        <translation>Already Set.</translation>
    </message>
    <message id="504">
        <source>Intelligent setting can't exceed 16</source>
        <translation>Intelligent setting can't exceed 16</translation>
    </message>
    <message id="505">
        <source>Add NVR failed! Please add again.</source>
        <translation>Add NVR failed! Please add again.</translation>
    </message>
    <message id="506">
        <source>File Size can't more than 5MB</source>
        <translation>File Size can't more than 5MB</translation>
    </message>
    <message id="507">
        <source>Save OK</source>
        <translation>Save OK</translation>
    </message>
    <message id="508">
        <source>Exit and Open MainViewer?</source>
        <translation>Exit and Open MainViewer?</translation>
    </message>
    <message id="509">
        <source>Do you want to exit?</source>
        <translation>Do you want to exit?</translation>
    </message>
    <message id="510">
        <source>Resolution Not Support .</source>
        <translation>Resolution Not Support .</translation>
    </message>
    <message id="511">
        <source>Do you want to Save?</source>
        <translation>Do you want to Save?</translation>
    </message>
    <message id="512">
        <source>The Channel does not support motion detection or is no connection !</source>
        <translation>The Channel does not support motion detection or is no connection !</translation>
    </message>
    <message id="513">
        <source>No setting !</source>
        <translation>No setting !</translation>
    </message>
    <message id="514">
        <source>Settings have changed , Do you want to save ?</source>
        <translation>Settings have changed , Do you want to save ?</translation>
    </message>
    <message id="515">
        <source>Not yet set of Event Action config!</source>
        <translation>Not yet set of Event Action config!</translation>
    </message>
    <message id="516">
        <source>Video can't connection.</source>
        <translation>Video can't connection.</translation>
    </message>
    <message id="517">
        <source>Submit</source>
        <translation>Submit</translation>
    </message>
    <message id="518">
        <source>Save Setting</source>
        <translation>Save Setting</translation>
    </message>
    <message id="519">
        <source>Close this window</source>
        <translation>Close this window</translation>
    </message>
    <message id="520">
        <source>Preset Sequence</source>
        <translation>Preset Sequence</translation>
    </message>
    <message id="521">
        <source>Dwell Time:</source>
        <translation>Dwell Time:</translation>
    </message>
    <message id="522">
        <source>PTZ Preset</source>
        <translation>PTZ Preset</translation>
    </message>
    <message id="523">
        <source>Preset Sequence</source>
        <translation>Preset Sequence</translation>
    </message>
    <message id="524">
        <source>Select a wave file</source>
        <translation>Select a wave file</translation>
    </message>
    <message id="525">
        <source>File Name: </source>
        <translation>File Name: </translation>
    </message>
    <message id="526">
        <source>Message sent successfully!</source>
        <translation>Message sent successfully!</translation>
    </message>
    <message id="527">
        <source>Sending Message fail!</source>
        <translation>Sending Message fail!</translation>
    </message>
    <message id="528">
        <source>MAX Video</source>
        <translation>MAX Video</translation>
    </message>
    <message id="529">
        <source>Enable/Disable auto switch group to display videos.</source>
        <translation>Enable/Disable auto switch group to display videos.</translation>
    </message>
    <message id="530">
        <source>Enable/Disable maximum video to display.</source>
        <translation>Enable/Disable maximum video to display.</translation>
    </message>
    <message id="531">
        <source>Live Video</source>
        <translation>Live Video</translation>
    </message>
    <message id="532">
        <source>Do you want to cancel playback for NVR?</source>
        <translation>Do you want to cancel playback for NVR?</translation>
    </message>
    <message id="533">
        <source>The selected time doesn't have any recording data!</source>
        <translation>The selected time doesn't have any recording data!</translation>
    </message>
    <message id="534">
        <source>Select channel you want to change and reset the relational data information?</source>
        <translation>Select channel you want to change and reset the relational data information?</translation>
    </message>
    <message id="535">
        <source>This NVR cannot get group ID to playback!</source>
        <translation>This NVR cannot get group ID to playback!</translation>
    </message>
    <message id="536">
        <source>Select the SVD has been disconnected, so close the panel and make sure that SVD status!</source>
        <translation>Select the SVD has been disconnected, so close the panel and make sure that SVD status!</translation>
    </message>
    <message id="550">
        <source>IP Address</source>
        <translation>IP Address</translation>
    </message>
    <message id="551">
        <source>Http Port</source>
        <translation>Http Port</translation>
    </message>
    <message id="552">
        <source>Add</source>
        <translation>Add</translation>
    </message>
    <message id="553">
        <source>NVR Name can't be empty!</source>
        <translation>NVR Name can't be empty!</translation>
    </message>
    <message id="554">
        <source>IP address or hostname set incorrectly!</source>
        <translation>IP address or hostname set incorrectly!</translation>
    </message>
    <message id="555">
        <source>NVR don't exist!</source>
        <translation>NVR don't exist!</translation>
    </message>
    <message id="556">
        <source>Port set incorrectly!</source>
        <translation>Port set incorrectly!</translation>
    </message>
    <message id="557">
        <source>Add</source>
        <translation>Add</translation>
    </message>
    <message id="558">
        <source>NVR select setting</source>
        <translation>NVR select setting</translation>
    </message>
    <message id="559">
        <source>Pattern select setting</source>
        <translation>Pattern select setting</translation>
    </message>
    <message id="560">
        <source>All list</source>
        <translation>All list</translation>
    </message>
    <message id="561">
        <source>Selected list</source>
        <translation>Selected list</translation>
    </message>
    <message id="562">
        <source>Select item is less than 2 items, it can not be saved!</source>
        <translation>Select item is less than 2 items, it can not be saved!</translation>
    </message>
    <message id="563">
        <source>Functions that were originally assigned on this screen will be moved to screen #1 automatically.</source>
        <translation>Functions that were originally assigned on this screen will be moved to screen #1 automatically.</translation>
    </message>
    <message id="564">
        <source>Has not enough pattern can be selected!</source>
        <translation>Has not enough pattern can be selected!</translation>
    </message>
    <message id="565">
        <source>This screen has been assigned to Video Wall!</source>
        <translation>This screen has been assigned to Video Wall!</translation>
    </message>
    <message id="566">
        <source>Has not enough device can be selected!</source>
        <translation>Has not enough device can be selected!</translation>
    </message>
    <message id="570">
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message id="571">
        <source>*Name</source>
        <translation>*Name</translation>
    </message>
    <message id="572">
        <source>*IP Address</source>
        <translation>*IP Address</translation>
    </message>
    <message id="573">
        <source>*Http Port</source>
        <translation>*Http Port</translation>
    </message>
    <message id="574">
        <source>*User</source>
        <translation>*User</translation>
    </message>
    <message id="575">
        <source>*Password</source>
        <translation>*Password</translation>
    </message>
    <message id="576">
        <source>Detect</source>
        <translation>Detect</translation>
    </message>
    <message id="577">
        <source>Device Setting</source>
        <translation>Device Setting</translation>
    </message>
    <message id="578">
        <source>NO.</source>
        <translation>NO.</translation>
    </message>
    <message id="579">
        <source>Camera name</source>
        <translation>Camera name</translation>
    </message>
    <message id="580">
        <source>Video Port</source>
        <translation>Video Port</translation>
    </message>
    <message id="581">
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message id="582">
        <source>Resolution</source>
        <translation>Resolution</translation>
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
        <translation>Edit Camera Setting</translation>
    </message>
    <message id="586">
        <source>Camera No</source>
        <translation>Camera No</translation>
    </message>
    <message id="587">
        <source>Camera IP</source>
        <translation>Camera IP</translation>
    </message>
    <message id="588">
        <source>Additional Camera Information</source>
        <translation>Additional Camera Information</translation>
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
        <translation>Apply</translation>
    </message>
    <message id="592">
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message id="593">
        <source>NVR IP can't be empty.</source>
        <translation>NVR IP can't be empty.</translation>
    </message>
    <message id="594">
        <source>NVR Http Port can't be empty.</source>
        <translation>NVR Http Port can't be empty.</translation>
    </message>
    <message id="595">
        <source>NVR User can't be empty.</source>
        <translation>NVR User can't be empty.</translation>
    </message>
    <message id="596">
        <source>NVR Password can't be empty.</source>
        <translation>NVR Password can't be empty.</translation>
    </message>
    <message id="597">
        <source>Request Time Zone ERR! Please Detect again.</source>
        <translation>Request Time Zone ERR! Please Detect again.</translation>
    </message>
    <message id="598">
        <source>Please Select Brand.</source>
        <translation>Please Select Brand.</translation>
    </message>
    <message id="599">
        <source>IP Timeout.</source>
        <translation>IP Timeout.</translation>
    </message>
    <message id="600">
        <source>Quality</source>
        <translation>Quality</translation>
    </message>
    <message id="601">
        <source>Bitrate</source>
        <translation>Bitrate</translation>
    </message>
    <message id="602">
        <source>Bitrate Mode</source>
        <translation>Bitrate Mode</translation>
    </message>
    <message id="603">
        <source>CH name can't be empty!</source>
        <translation>CH name can't be empty!</translation>
    </message>
    <message id="604">
        <source>IP address can't be empty!</source>
        <translation>IP address can't be empty!</translation>
    </message>
    <message id="605">
        <source>Http Port can't be empty!</source>
        <translation>Http Port can't be empty!</translation>
    </message>
    <message id="606">
        <source>User account can't be empty!</source>
        <translation>User account can't be empty!</translation>
    </message>
    <message id="607">
        <source>Password can't be empty!</source>
        <translation>Password can't be empty!</translation>
    </message>
    <message id="608">
        <source>Detection Error!</source>
        <translation>Detection Error!</translation>
    </message>
    <message id="609">
        <source>No Camera or connect failed !</source>
        <translation>No Camera or connect failed !</translation>
    </message>
    <message id="610">
        <source>This firmware version of NVR is not supported , please update newer Version.</source>
        <translation>This firmware version of NVR is not supported , please update newer Version.</translation>
    </message>
    <message id="611">
        <source>If you press the button, data inside NVR will be changed!</source>
        <translation>If you press the button, data inside NVR will be changed!</translation>
    </message>
    <message id="612">
        <source>Camera Search</source>
        <translation>Camera Search</translation>
    </message>
    <message id="613">
        <source>Brand not Support!</source>
        <translation>Brand not Support!</translation>
    </message>
    <message id="614">
        <source>FPS</source>
        <translation>FPS</translation>
    </message>
    <message id="615">
        <source>Video Format Error!</source>
        <translation>Video Format Error!</translation>
    </message>
    <message id="616">
        <source>Camera settings have changes, please re-detect.</source>
        <translation>Camera settings have changes, please re-detect.</translation>
    </message>
    <message id="617">
        <source>Add Camera Fail!</source>
        <translation>Add Camera Fail!</translation>
    </message>
    <message id="618">
        <source>DIS Setting</source>
        <translation>DIS Setting</translation>
    </message>
    <message id="619">
        <source>Device not supported!</source>
        <translation>Device not supported!</translation>
    </message>
    <message id="620">
        <source>This account is already set!</source>
        <translation>This account is already set!</translation>
    </message>
    <message id="621">
        <source>Do you want to continue edit preset point?</source>
        <translation>Do you want to continue edit preset point?</translation>
    </message>
    <message id="630">
        <source>Group Name</source>
        <translation>Group Name</translation>
    </message>
    <message id="631">
        <source>Power Level</source>
        <translation>Power Level</translation>
    </message>
    <message id="632">
        <source>Function Permission</source>
        <translation>Function Permission</translation>
    </message>
    <message id="633">
        <source>Playback</source>
        <translation>Playback</translation>
    </message>
    <message id="634">
        <source>PTZ Control</source>
        <translation>PTZ Control</translation>
    </message>
    <message id="635">
        <source>System Setup</source>
        <translation>System Setup</translation>
    </message>
    <message id="636">
        <source>Group Setting</source>
        <translation>Group Setting</translation>
    </message>
    <message id="640">
        <source>File Size can't more than 10MB</source>
        <translation>File Size can't more than 10MB</translation>
    </message>
    <message id="641">
        <source>EMap Setting</source>
        <translation>EMap Setting</translation>
    </message>
    <message id="642">
        <source>*Double Click Windows to change Map images.</source>
        <translation>*Double Click Windows to change Map images.</translation>
    </message>
    <message id="643">
        <source>Select an image file</source>
        <translation>Select an image file</translation>
    </message>
    <message id="645">
        <source>User Setting</source>
        <translation>User Setting</translation>
    </message>
    <message id="646">
        <source>Photo</source>
        <translation>Photo</translation>
    </message>
    <message id="647">
        <source>(Dubble Click to Setting)</source>
        <translation>(Dubble Click to Setting)</translation>
    </message>
    <message id="648">
        <source>Check</source>
        <translation>Check</translation>
    </message>
    <message id="649">
        <source>*User Name</source>
        <translation>*User Name</translation>
    </message>
    <message id="650">
        <source>*Password Confirm</source>
        <translation>*Password Confirm</translation>
    </message>
    <message id="651">
        <source>*:Necessary</source>
        <translation>*:Necessary</translation>
    </message>
    <message id="652">
        <source>This name not yet use</source>
        <translation>This name not yet use</translation>
    </message>
    <message id="653">
        <source>This name in use</source>
        <translation>This name in use</translation>
    </message>
    <message id="660">
        <source>User&amp;Password</source>
        <translation>User&amp;Password</translation>
    </message>
    <message id="661">
        <source>User or Password is not input!</source>
        <translation>User or Password is not input!</translation>
    </message>
    <message id="671">
        <source>DIS Service Setting</source>
        <translation>DIS Service Setting</translation>
    </message>
    <message id="672">
        <source>Account List</source>
        <translation>Account List</translation>
    </message>
    <message id="673">
        <source>Do you want to remove this user?</source>
        <translation>Do you want to remove this user?</translation>
    </message>
    <message id="674">
        <source>The account has reached the upper limit, for add new account you need to remove another account.</source>
        <translation>The account has reached the upper limit, for add new account you need to remove another account.</translation>
    </message>
    <message id="675">
        <source>Object Loss</source>
        <translation>Object Loss</translation>
    </message>
    <message id="676">
        <source>Tripwire</source>
        <translation>Tripwire</translation>
    </message>
    <message id="677">
        <source>Threat</source>
        <translation>Threat</translation>
    </message>
    <message id="678">
        <source>Enable</source>
        <translation>Enable</translation>
    </message>
    <message id="679">
        <source>Intelligent Setting</source>
        <translation>Intelligent Setting</translation>
    </message>
    <message id="680">
        <source>Intelligent detection List</source>
        <translation>Intelligent detection List</translation>
    </message>
    <message id="681">
        <source>Object Loss Reset</source>
        <translation>Object Loss Reset</translation>
    </message>
    <message id="682">
        <source>Threat Detection Reset</source>
        <translation>Threat Detection Reset</translation>
    </message>
    <message id="683">
        <source>Image Enhance</source>
        <translation>Image Enhance</translation>
    </message>
    <message id="684">
        <source>Port number can't accept more then 32767.</source>
        <translation>Port number can't accept more then 32767.</translation>
    </message>
    <message id="685">
        <source>Keep Ratio</source>
        <translation>Keep Ratio</translation>
    </message>
    <message id="686">
        <source>Intelligent Detection</source>
        <translation>Intelligent Detection</translation>
    </message>
    <message id="687">
        <source>OSD Size</source>
        <translation>OSD Size</translation>
    </message>
    <message id="688">
        <source>OSD Color</source>
        <translation>OSD Color</translation>
    </message>
    <message id="689">
        <source>Small</source>
        <translation>Small</translation>
    </message>
    <message id="690">
        <source>Middle</source>
        <translation>Middle</translation>
    </message>
    <message id="691">
        <source>Large</source>
        <translation>Large</translation>
    </message>
    <message id="692">
        <source>FullScreen Initial</source>
        <translation>FullScreen Initial</translation>
    </message>
    <message id="693">
        <source>Startup Screen Layout</source>
        <translation>Startup Screen Layout</translation>
    </message>
    <message id="694">
        <source>Leave to save the screen layout.</source>
        <translation>Leave to save the screen layout.</translation>
    </message>
    <message id="695">
        <source>Function default start</source>
        <translation>Function default start</translation>
    </message>
    <message id="696">
        <source>Function assign</source>
        <translation>Function assign</translation>
    </message>
    <message id="697">
        <source>Pattern setting</source>
        <translation>Pattern setting</translation>
    </message>
    <message id="698">
        <source>Name can't be empty.</source>
        <translation>Name can't be empty.</translation>
    </message>
    <message id="699">
        <source>Object Counting</source>
        <translation>Object Counting</translation>
    </message>
    <message id="700">
        <source>Foreign Object</source>
        <translation>Foreign Object</translation>
    </message>
    <message id="701">
        <source>Foreign Object Reset </source>
        <translation>Foreign Object Reset </translation>
    </message>
    <message id="702">
        <source>Manual Recording</source>
        <translation>Manual Recording</translation>
    </message>
    <message id="703">
        <source>Device settings have changes, please re-detect.</source>
        <translation>Device settings have changes, please re-detect.</translation>
    </message>
    <message id="704">
        <source>English and Digit Only</source>
        <translation>English and Digit Only</translation>
    </message>
    <message id="705">
        <source>Emap Group Assign</source>
        <translation>Emap Group Assign</translation>
    </message>
    <message id="706">
        <source>Emap Group </source>
        <translation>Emap Group </translation>
    </message>
    <message id="707">
        <source>Member:</source>
        <translation>Member:</translation>
    </message>
    <message id="708">
        <source>Emap Position Assign</source>
        <translation>Emap Position Assign</translation>
    </message>
    <message id="709">
        <source>Parent</source>
        <translation>Parent</translation>
    </message>
    <message id="710">
        <source>Group Type </source>
        <translation>Group Type </translation>
    </message>
    <message id="711">
        <source>Auto Switch</source>
        <translation>Auto Switch</translation>
    </message>
    <message id="712">
        <source>Double-click back to previous group</source>
        <translation>Double-click back to previous group</translation>
    </message>
    <message id="713">
        <source>Drag and Drop to Move</source>
        <translation>Drag and Drop to Move</translation>
    </message>
    <message id="714">
        <source>Do you want to delete the selected Emap Group?</source>
        <translation>Do you want to delete the selected Emap Group?</translation>
    </message>
    <message id="715">
        <source>The amount of device will be over default value!</source>
        <translation>The amount of device will be over default value!</translation>
    </message>
    <message id="716">
        <source>The amount of total channels will be over default value!</source>
        <translation>The amount of total channels will be over default value!</translation>
    </message>
    <message id="717">
        <source>Channel selection</source>
        <translation>Channel selection</translation>
    </message>
    <message id="718">
        <source>Get device capability error!</source>
        <translation>Get device capability error!</translation>
    </message>
    <message id="719">
        <source>This device does not has any channel.</source>
        <translation>This device does not has any channel.</translation>
    </message>
    <message id="720">
        <source>Please add channels  or  re-select the other device.</source>
        <translation>Please add channels  or  re-select the other device.</translation>
    </message>
    <message id="721">
        <source>This device does not has any channel,Do you want to remove the device?</source>
        <translation>This device does not has any channel,Do you want to remove the device?</translation>
    </message>
    <message id="722">
        <source>Setting fail!</source>
        <translation>Setting fail!</translation>
    </message>
    <message id="723">
        <source>Do you want to stop SEQ mode?</source>
        <translation>Do you want to stop SEQ mode?</translation>
    </message>
    <message id="725">
        <source>Type </source>
        <translation>Type </translation>
    </message>
    <message id="726">
        <source>No change!</source>
        <translation>No change!</translation>
    </message>
    <message id="727">
        <source>Face Counting</source>
        <translation>Face Counting</translation>
    </message>
    <message id="728">
        <source>Unknown</source>
        <translation>Unknown</translation>
    </message>
    <message id="729">
        <source>Event Export</source>
        <translation>Event Export</translation>
    </message>
    <message id="730">
        <source>System Log Export</source>
        <translation>System Log Export</translation>
    </message>
    <message id="731">
        <source>System Log</source>
        <translation>System Log</translation>
    </message>
    <message id="732">
        <source>NVR Select</source>
        <translation>NVR Select</translation>
    </message>
    <message id="733">
        <source>Condition</source>
        <translation>Condition</translation>
    </message>
    <message id="734">
        <source>Time Range:</source>
        <translation>Time Range:</translation>
    </message>
    <message id="735">
        <source>Start Time:</source>
        <translation>Start Time:</translation>
    </message>
    <message id="736">
        <source>End Time:</source>
        <translation>End Time:</translation>
    </message>
    <message id="737">
        <source>Event Type:</source>
        <translation>Event Type:</translation>
    </message>
    <message id="738">
        <source>User:</source>
        <translation>User:</translation>
    </message>
    <message id="739">
        <source>Export Format:</source>
        <translation>Export Format:</translation>
    </message>
    <message id="740">
        <source>Export</source>
        <translation>Export</translation>
    </message>
    <message id="741">
        <source>You must select a path to export!</source>
        <translation>You must select a path to export!</translation>
    </message>
    <message id="742">
        <source>Start Time must less than End time!</source>
        <translation>Start Time must less than End time!</translation>
    </message>
    <message id="743">
        <source>No Event!</source>
        <translation>No Event!</translation>
    </message>
    <message id="744">
        <source>No System Log!</source>
        <translation>No System Log!</translation>
    </message>
    <message id="745">
        <source>CSV Export finish!</source>
        <translation>CSV Export finish!</translation>
    </message>
    <message id="746">
        <source>MDB Export finish!</source>
        <translation>MDB Export finish!</translation>
    </message>
    <message id="747">
        <source>Custom</source>
        <translation>Custom</translation>
    </message>
    <message id="748">
        <source>NVR Overview</source>
        <translation>NVR Overview</translation>
    </message>
    <message id="749">
        <source>Video Wall Console</source>
        <translation>Video Wall Console</translation>
    </message>
    <message id="750">
        <source>Lock Screen </source>
        <translation>Lock Screen </translation>
    </message>
    <message id="751">
        <source>Unlock Screen</source>
        <translation>Unlock Screen</translation>
    </message>
    <message id="752">
        <source>Video Wall</source>
        <translation>Video Wall</translation>
    </message>
    <message id="753">
        <source>Pattern List</source>
        <translation>Pattern List</translation>
    </message>
    <message id="754">
        <source>SEQ List</source>
        <translation>SEQ List</translation>
    </message>
    <message id="755">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="756">
        <source>SEQ content setting</source>
        <translation>SEQ content setting</translation>
    </message>
    <message id="757">
        <source>Max Channel</source>
        <translation>Max Channel</translation>
    </message>
    <message id="758">
        <source>Video server</source>
        <translation>Video server</translation>
    </message>
    <message id="759">
        <source>Support</source>
        <translation>Support</translation>
    </message>
    <message id="760">
        <source>Original View</source>
        <translation>Original View</translation>
    </message>
    <message id="761">
        <source>Broad View</source>
        <translation>Broad View</translation>
    </message>
    <message id="762">
        <source>Quad View</source>
        <translation>Quad View</translation>
    </message>
    <message id="763">
        <source>Quad and Source View</source>
        <translation>Quad and Source View</translation>
    </message>
    <message id="764">
        <source>Double View</source>
        <translation>Double View</translation>
    </message>
    <message id="765">
        <source>Triple View</source>
        <translation>Triple View</translation>
    </message>
    <message id="766">
        <source>Digital PTZ</source>
        <translation>Digital PTZ</translation>
    </message>
    <message id="767">
        <source>Lens</source>
        <translation>Lens</translation>
    </message>
    <message id="768">
        <source>It could not be opened, the insufficient number of available screens!</source>
        <translation>It could not be opened, the insufficient number of available screens!</translation>
    </message>
    <message id="769">
        <source>It could not be opened, The Video Wall is not enabled! </source>
        <translation>It could not be opened, The Video Wall is not enabled! </translation>
    </message>
    <message id="770">
        <source>The quantity of screen is not enough! Not support!</source>
        <translation>The quantity of screen is not enough! Not support!</translation>
    </message>
    <message id="772">
        <source>Settings have changed , Please re-open MainViewer!</source>
        <translation>Settings have changed , Please re-open MainViewer!</translation>
    </message>
    <message id="773">
        <source>Preview</source>
        <translation>Preview</translation>
    </message>
    <message id="774">
        <source>Update system log with below defined condition</source>
        <translation>Update system log with below defined condition</translation>
    </message>
    <message id="775">
        <source>Transform recording index</source>
        <translation>Transform recording index</translation>
    </message>
    <message id="776">
        <source>Event Image Sync Setting</source>
        <translation>Event Image Sync Setting</translation>
    </message>
    <message id="777">
        <source>Event snapshot storage space is not enough!</source>
        <translation>Event snapshot storage space is not enough!</translation>
    </message>
    <message id="779">
        <source>Intelligent Mode</source>
        <translation>Intelligent Mode</translation>
    </message>
    <message id="780">
        <source>Add Intelligent Setting</source>
        <translation>Add Intelligent Setting</translation>
    </message>
    <message id="781">
        <source>Camera Event</source>
        <translation>Camera Event</translation>
    </message>
    <message id="782">
        <source>ROI Setting</source>
        <translation>ROI Setting</translation>
    </message>
    <message id="783">
        <source>Trigger Mode</source>
        <translation>Trigger Mode</translation>
    </message>
    <message id="784">
        <source>Channel Privilege</source>
        <translation>Channel Privilege</translation>
    </message>
    <message id="785">
        <source>Group Overview</source>
        <translation>Group Overview</translation>
    </message>
    <message id="786">
        <source>User Overview</source>
        <translation>User Overview</translation>
    </message>
    <message id="787">
        <source>Event Server</source>
        <translation>Event Server</translation>
    </message>
    <message id="788">
        <source>Trigger By</source>
        <translation>Trigger By</translation>
    </message>
    <message id="789">
        <source>Configuration Modify</source>
        <translation>Configuration Modify</translation>
    </message>
    <message id="790">
        <source>Intelligent Event Trigger</source>
        <translation>Intelligent Event Trigger</translation>
    </message>
    <message id="791">
        <source>NVR Event Trigger</source>
        <translation>NVR Event Trigger</translation>
    </message>
    <message id="792">
        <source>Trigger Action</source>
        <translation>Trigger Action</translation>
    </message>
    <message id="793">
        <source>Addresses: (Use ',' to separate e-mails)</source>
        <translation>Addresses: (Use ',' to separate e-mails)</translation>
    </message>
    <message id="794">
        <source>Content</source>
        <translation>Content</translation>
    </message>
    <message id="795">
        <source>Video Wall Layout</source>
        <translation>Video Wall Layout</translation>
    </message>
    <message id="796">
        <source>No Enough screen can be set!</source>
        <translation>No Enough screen can be set!</translation>
    </message>
    <message id="797">
        <source>SVD Management</source>
        <translation>SVD Management</translation>
    </message>
    <message id="798">
        <source>SVD Detail Setting</source>
        <translation>SVD Detail Setting</translation>
    </message>
    <message id="799">
        <source>SVD Layout</source>
        <translation>SVD Layout</translation>
    </message>
    <message id="800">
        <source>SVD ID:</source>
        <translation>SVD ID:</translation>
    </message>
    <message id="801">
        <source>SVD Name:</source>
        <translation>SVD Name:</translation>
    </message>
    <message id="802">
        <source>Display</source>
        <translation>Display</translation>
    </message>
    <message id="803">
        <source>Resolution</source>
        <translation>Resolution</translation>
    </message>
    <message id="804">
        <source>Priority</source>
        <translation>Priority</translation>
    </message>
    <message id="805">
        <source>Default Split</source>
        <translation>Default Split</translation>
    </message>
    <message id="806">
        <source>Default Channel List</source>
        <translation>Default Channel List</translation>
    </message>
    <message id="807">
        <source>Live Stream</source>
        <translation>Live Stream</translation>
    </message>
    <message id="808">
        <source>Dynamic Streaming</source>
        <translation>Dynamic Streaming</translation>
    </message>
    <message id="809">
        <source>Screen Default Layout</source>
        <translation>Screen Default Layout</translation>
    </message>
    <message id="810">
        <source>Channel list</source>
        <translation>Channel list</translation>
    </message>
    <message id="811">
        <source>Begin</source>
        <translation>Begin</translation>
    </message>
    <message id="812">
        <source>Previous</source>
        <translation>Previous</translation>
    </message>
    <message id="813">
        <source>System Log Viewer</source>
        <translation>System Log Viewer</translation>
    </message>
    <message id="814">
        <source>Management </source>
        <translation>Management </translation>
    </message>
    <message id="815">
        <source>Viewer</source>
        <translation>Viewer</translation>
    </message>
    <message id="816">
        <source>Add New SVD</source>
        <translation>Add New SVD</translation>
    </message>
    <message id="817">
        <source>Primary</source>
        <translation>Primary</translation>
    </message>
    <message id="818">
        <source>Secondary</source>
        <translation>Secondary</translation>
    </message>
    <message id="819">
        <source>Available</source>
        <translation>Available</translation>
    </message>
    <message id="820">
        <source>Not Available</source>
        <translation>Not Available</translation>
    </message>
    <message id="821">
        <source>Invalid E-mail Address!</source>
        <translation>Invalid E-mail Address!</translation>
    </message>
    <message id="822">
        <source>Invalid Value!</source>
        <translation>Invalid Value!</translation>
    </message>
    <message id="823">
        <source>Can't add repeatedly!</source>
        <translation>Can't add repeatedly!</translation>
    </message>
    <message id="824">
        <source>Can't add SVD anymore!</source>
        <translation>Can't add SVD anymore!</translation>
    </message>
    <message id="826">
        <source>Do you want to remove this SVD?</source>
        <translation>Do you want to remove this SVD?</translation>
    </message>
    <message id="827">
        <source>Disable this Video Wall?</source>
        <translation>Disable this Video Wall?</translation>
    </message>
    <message id="828">
        <source>Export finish!</source>
        <translation>Export finish!</translation>
    </message>
    <message id="829">
        <source>Brand:</source>
        <translation>Brand:</translation>
    </message>
    <message id="830">
        <source>Password Mask</source>
        <translation>Password Mask</translation>
    </message>
    <message id="831">
        <source>NVR Account setting</source>
        <translation>NVR Account setting</translation>
    </message>
    <message id="832">
        <source>No any NVR has been selected.</source>
        <translation>No any NVR has been selected.</translation>
    </message>
    <message id="833">
        <source>Detect successful!</source>
        <translation>Detect successful!</translation>
    </message>
    <message id="834">
        <source>Failed configuring camera detection on channel:</source>
        <translation>Failed configuring camera detection on channel:</translation>
    </message>
    <message id="835">
        <source>Trigger action has done.</source>
        <translation>Trigger action has done.</translation>
    </message>
    <message id="836">
        <source>Event server has not set.</source>
        <translation>Event server has not set.</translation>
    </message>
    <message id="837">
        <source>Privilege Setting</source>
        <translation>Privilege Setting</translation>
    </message>
    <message id="838">
        <source>NVR Privilege Setting</source>
        <translation>NVR Privilege Setting</translation>
    </message>
    <message id="839">
        <source>SVD Console</source>
        <translation>SVD Console</translation>
    </message>
    <message id="840">
        <source>SVD Search List</source>
        <translation>SVD Search List</translation>
    </message>
    <message id="841">
        <source>No Monitor connect!</source>
        <translation>No Monitor connect!</translation>
    </message>
    <message id="842">
        <source>Do you want to remove this intelligent setting?</source>
        <translation>Do you want to remove this intelligent setting?</translation>
    </message>
    <message id="843">
        <source>Event snapshot doesn't work!</source>
        <translation>Event snapshot doesn't work!</translation>
    </message>
    <message id="850">
        <source>System</source>
        <translation>System</translation>
    </message>
    <message id="851">
        <source>Intelligent</source>
        <translation>Intelligent</translation>
    </message>
    <message id="852">
        <source>User and group</source>
        <translation>User and group</translation>
    </message>
    <message id="853">
        <source>Event handling</source>
        <translation>Event handling</translation>
    </message>
    <message id="854">
        <source>Event server</source>
        <translation>Event server</translation>
    </message>
    <message id="855">
        <source>E-Map</source>
        <translation>E-Map</translation>
    </message>
    <message id="856">
        <source>Screen layout</source>
        <translation>Screen layout</translation>
    </message>
    <message id="857">
        <source>Startup</source>
        <translation>Startup</translation>
    </message>
    <message id="858">
        <source>Tooling</source>
        <translation>Tooling</translation>
    </message>
    <message id="859">
        <source>This page is not available in this version.</source>
        <translation>This page is not available in this version.</translation>
    </message>
    <message id="860">
        <source>Its data in the database stays as it is.</source>
        <translation>Its data in the database stays as it is.</translation>
    </message>
    <message id="861">
        <source>No recorder yet</source>
        <translation>No recorder yet</translation>
    </message>
    <message id="862">
        <source>Enter the address of the station's first recorder to add it.</source>
        <translation>Enter the address of the station's first recorder to add it.</translation>
    </message>
    <message id="863">
        <source>Filter name, address, model…</source>
        <translation>Filter name, address, model…</translation>
    </message>
    <message id="864">
        <source>Recorders of this station</source>
        <translation>Recorders of this station</translation>
    </message>
    <message id="865">
        <source>Recorders: %1 of %2</source>
        <translation>Recorders: %1 of %2</translation>
    </message>
    <message id="866">
        <source>Channels: %1 of %2</source>
        <translation>Channels: %1 of %2</translation>
    </message>
    <message id="867">
        <source>No recorder matches the filter.</source>
        <translation>No recorder matches the filter.</translation>
    </message>
    <message id="868">
        <source>Unsaved changes</source>
        <translation>Unsaved changes</translation>
    </message>
    <message id="870">
        <source>Switch to dark colours</source>
        <translation>Switch to dark colours</translation>
    </message>
    <message id="871">
        <source>Switch to light colours</source>
        <translation>Switch to light colours</translation>
    </message>
    <message id="872">
        <source>Waiting</source>
        <translation>Waiting</translation>
    </message>
    <message id="873">
        <source>Finish</source>
        <translation>Finish</translation>
    </message>
    <message id="874">
        <source>Done: %1 of %2</source>
        <translation>Done: %1 of %2</translation>
    </message>
    <message id="875">
        <source>Choose</source>
        <translation>Choose</translation>
    </message>
    <message id="876">
        <source>Edit</source>
        <translation>Edit</translation>
    </message>
    <message id="877">
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message id="878">
        <source>Yes</source>
        <translation>Yes</translation>
    </message>
    <message id="879">
        <source>No</source>
        <translation>No</translation>
    </message>
    <message id="880">
        <source>Back</source>
        <translation>Back</translation>
    </message>
    <message id="881">
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message id="882">
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message id="884">
        <source>Enter the address of one recorder.</source>
        <translation>Enter the address of one recorder.</translation>
    </message>
    <message id="885">
        <source>Leave both empty to try the known device accounts.</source>
        <translation>Leave both empty to try the known device accounts.</translation>
    </message>
    <message id="886">
        <source>About this installation</source>
        <translation>About this installation</translation>
    </message>
    <message id="887">
        <source>Show password</source>
        <translation>Show password</translation>
    </message>
    <message id="888">
        <source>Searching…</source>
        <translation>Searching…</translation>
    </message>
    <message id="890">
        <source>Name and behaviour of this station</source>
        <translation>Name and behaviour of this station</translation>
    </message>
    <message id="892">
        <source>Recorder slot</source>
        <translation>Recorder slot</translation>
    </message>
    <message id="896">
        <source>Connected</source>
        <translation>Connected</translation>
    </message>
    <message id="898">
        <source>Product:</source>
        <translation>Product:</translation>
    </message>
    <message id="899">
        <source>Hide password</source>
        <translation>Hide password</translation>
    </message>
    <message id="900">
        <source>Anyone who opens Rigging Desk is its administrator, because there is no user yet.</source>
        <translation>Anyone who opens Rigging Desk is its administrator, because there is no user yet.</translation>
    </message>
    <message id="901">
        <source>Create the first administrator</source>
        <translation>Create the first administrator</translation>
    </message>
    <message id="902">
        <source>Not now</source>
        <translation>Not now</translation>
    </message>
    <message id="903">
        <source>No user yet</source>
        <translation>No user yet</translation>
    </message>
    <message id="904">
        <source>Accessible cameras</source>
        <translation>Accessible cameras</translation>
    </message>
    <message id="905">
        <source>Who has access</source>
        <translation>Who has access</translation>
    </message>
    <message id="906">
        <source>Filter channels…</source>
        <translation>Filter channels…</translation>
    </message>
    <message id="907">
        <source>Whole recorder</source>
        <translation>Whole recorder</translation>
    </message>
    <message id="908">
        <source>Live</source>
        <translation>Live</translation>
    </message>
    <message id="909">
        <source>Live Monitor of all channels</source>
        <translation>Live Monitor of all channels</translation>
    </message>
    <message id="910">
        <source>Grant</source>
        <translation>Grant</translation>
    </message>
    <message id="911">
        <source>Withdraw</source>
        <translation>Withdraw</translation>
    </message>
    <message id="912">
        <source>The other rights need Live. Space switches the selected cells; Shift+Space selects a row, Ctrl+Space a column.</source>
        <translation>The other rights need Live. Space switches the selected cells; Shift+Space selects a row, Ctrl+Space a column.</translation>
    </message>
    <message id="913">
        <source>Administrators have every right on every channel.</source>
        <translation>Administrators have every right on every channel.</translation>
    </message>
    <message id="930">
        <source>Filter the rows found…</source>
        <translation>Filter the rows found…</translation>
    </message>
    <message id="931">
        <source>No row matches the filter.</source>
        <translation>No row matches the filter.</translation>
    </message>
    <message id="932">
        <source>Rows found: %1</source>
        <translation>Rows found: %1</translation>
    </message>
    <message id="933">
        <source>The log could not be read</source>
        <translation>The log could not be read</translation>
    </message>
    <message id="934">
        <source>Copy rows</source>
        <translation>Copy rows</translation>
    </message>
    <message id="935">
        <source>Open folder</source>
        <translation>Open folder</translation>
    </message>
    <message id="936">
        <source>Event export is not part of this version.</source>
        <translation>Event export is not part of this version.</translation>
    </message>
    <message id="937">
        <source>Choose a period and search.</source>
        <translation>Choose a period and search.</translation>
    </message>
    <message id="938">
        <source>The export failed. Existing files were not changed.</source>
        <translation>The export failed. Existing files were not changed.</translation>
    </message>
    <message id="939">
        <source>First page</source>
        <translation>First page</translation>
    </message>
    <message id="940">
        <source>Previous page</source>
        <translation>Previous page</translation>
    </message>
    <message id="941">
        <source>Next page</source>
        <translation>Next page</translation>
    </message>
    <message id="942">
        <source>Last page</source>
        <translation>Last page</translation>
    </message>
    <message id="943">
        <source>Refresh</source>
        <translation>Refresh</translation>
    </message>
    <message id="945">
        <source>Log in</source>
        <translation>Log in</translation>
    </message>
    <message id="946">
        <source>The reason is in the log files.</source>
        <translation>The reason is in the log files.</translation>
    </message>
    <message id="950">
        <source>Find recorders on the network.</source>
        <translation>Find recorders on the network.</translation>
    </message>
    <message id="951">
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message id="952">
        <source>Select all</source>
        <translation>Select all</translation>
    </message>
    <message id="953">
        <source>Filter the devices found</source>
        <translation>Filter the devices found</translation>
    </message>
    <message id="954">
        <source>No device has answered.</source>
        <translation>No device has answered.</translation>
    </message>
    <message id="955">
        <source>Recorders with those selected: %1 of %2</source>
        <translation>Recorders with those selected: %1 of %2</translation>
    </message>
    <message id="956">
        <source>Connection</source>
        <translation>Connection</translation>
    </message>
    <message id="957">
        <source>Checking…</source>
        <translation>Checking…</translation>
    </message>
    <message id="958">
        <source>Login refused</source>
        <translation>Login refused</translation>
    </message>
    <message id="959">
        <source>No answer</source>
        <translation>No answer</translation>
    </message>
    <message id="960">
        <source>Host name not found</source>
        <translation>Host name not found</translation>
    </message>
    <message id="961">
        <source>Connection refused</source>
        <translation>Connection refused</translation>
    </message>
    <message id="962">
        <source>Unexpected answer</source>
        <translation>Unexpected answer</translation>
    </message>
    <message id="963">
        <source>Stopped</source>
        <translation>Stopped</translation>
    </message>
    <message id="965">
        <source>Notice</source>
        <translation>Notice</translation>
    </message>
    <message id="966">
        <source>No camera</source>
        <translation>No camera</translation>
    </message>
    <message id="967">
        <source>Changed in the recorder</source>
        <translation>Changed in the recorder</translation>
    </message>
    <message id="968">
        <source>Detected</source>
        <translation>Detected</translation>
    </message>
    <message id="969">
        <source>Unchanged</source>
        <translation>Unchanged</translation>
    </message>
    <message id="970">
        <source>Remove the camera of channel %1 from the recorder?</source>
        <translation>Remove the camera of channel %1 from the recorder?</translation>
    </message>
    <message id="971">
        <source>Filter the cameras found</source>
        <translation>Filter the cameras found</translation>
    </message>
    <message id="972">
        <source>No camera was found.</source>
        <translation>No camera was found.</translation>
    </message>
    <message id="973">
        <source>The recorder sees no camera on its network. Search again, or enter an address.</source>
        <translation>The recorder sees no camera on its network. Search again, or enter an address.</translation>
    </message>
    <message id="974">
        <source>Cameras found: %1</source>
        <translation>Cameras found: %1</translation>
    </message>
    <message id="975">
        <source>Asking the camera…</source>
        <translation>Asking the camera…</translation>
    </message>
    <message id="976">
        <source>Writing to the recorder…</source>
        <translation>Writing to the recorder…</translation>
    </message>
    <message id="977">
        <source>Video source</source>
        <translation>Video source</translation>
    </message>
    <message id="978">
        <source>Detect the camera to see its video settings.</source>
        <translation>Detect the camera to see its video settings.</translation>
    </message>
    <message id="979">
        <source>Fish-eye view</source>
        <translation>Fish-eye view</translation>
    </message>
    <message id="980">
        <source>The camera name must not contain a double quote (").</source>
        <translation>The camera name must not contain a double quote (").</translation>
    </message>
    <message id="981">
        <source>The configuration database cannot be opened: another program holds it, or it cannot be read. Nothing has been changed. Try again?</source>
        <translation>The configuration database cannot be opened: another program holds it, or it cannot be read. Nothing has been changed. Try again?</translation>
    </message>
    <message id="982">
        <source>The users could not be read from the database, so nobody can log in. Close the program that holds the database and start again. The reason is in the log files.</source>
        <translation>The users could not be read from the database, so nobody can log in. Close the program that holds the database and start again. The reason is in the log files.</translation>
    </message>
    <message id="983">
        <source>These tables of the database could not be read: %1. They stay as they are. The reason is in the log files.</source>
        <translation>These tables of the database could not be read: %1. They stay as they are. The reason is in the log files.</translation>
    </message>
    <message id="995">
        <source>Export</source>
        <translation>Export</translation>
    </message>
    <message id="1000">
        <source>Keys</source>
        <translation>Keys</translation>
    </message>
    <message id="1001">
        <source>Show the keys</source>
        <translation>Show the keys</translation>
    </message>
    <message id="1002">
        <source>Rename or edit the selected entry</source>
        <translation>Rename or edit the selected entry</translation>
    </message>
    <message id="1003">
        <source>Read the page again</source>
        <translation>Read the page again</translation>
    </message>
    <message id="1004">
        <source>Filter the list</source>
        <translation>Filter the list</translation>
    </message>
    <message id="1005">
        <source>Go to a page</source>
        <translation>Go to a page</translation>
    </message>
    <message id="1006">
        <source>Press the button or open the selected entry</source>
        <translation>Press the button or open the selected entry</translation>
    </message>
    <message id="1007">
        <source>Remove the selected entry</source>
        <translation>Remove the selected entry</translation>
    </message>
    <message id="1008">
        <source>Cancel or close</source>
        <translation>Cancel or close</translation>
    </message>
    <message id="1030">
        <source>Added: %1 of %2</source>
        <translation>Added: %1 of %2</translation>
    </message>
    <message id="1031">
        <source>Added: %1 of %2, failed: %3</source>
        <translation>Added: %1 of %2, failed: %3</translation>
    </message>
    <message id="1032">
        <source>Recorders that were not added can be tried again with another login.</source>
        <translation>Recorders that were not added can be tried again with another login.</translation>
    </message>
    <message id="1033">
        <source>Try again</source>
        <translation>Try again</translation>
    </message>
    <message id="1034">
        <source>Login</source>
        <translation>Login</translation>
    </message>
    <message id="1035">
        <source>Added but not saved yet: %1.
Do you want to save?</source>
        <translation>Added but not saved yet: %1.
Do you want to save?</translation>
    </message>
    <message id="1036">
        <source>No recorder has been added yet. Close and lose what you entered?</source>
        <translation>No recorder has been added yet. Close and lose what you entered?</translation>
    </message>
    <message id="1037">
        <source>More than one recorder would have this name: %1.
Do you want to use it anyway?</source>
        <translation>More than one recorder would have this name: %1.
Do you want to use it anyway?</translation>
    </message>
    <message id="1080">
        <source>A stored password is not shown. Typing replaces it.</source>
        <translation>A stored password is not shown. Typing replaces it.</translation>
    </message>
    <message id="1081">
        <source>Choose a group</source>
        <translation>Choose a group</translation>
    </message>
    <message id="1082">
        <source>No account yet</source>
        <translation>No account yet</translation>
    </message>
    <message id="1083">
        <source>These accounts are tried on recorders whose login is not known.</source>
        <translation>These accounts are tried on recorders whose login is not known.</translation>
    </message>
    <message id="1084">
        <source>Do you want to delete the selected account?</source>
        <translation>Do you want to delete the selected account?</translation>
    </message>
    <message id="1085">
        <source>No camera is accessible</source>
        <translation>No camera is accessible</translation>
    </message>
    <message id="1086">
        <source>Access follows from the rights of the user’s group.</source>
        <translation>Access follows from the rights of the user’s group.</translation>
    </message>
    <message id="1087">
        <source>Open the folder?</source>
        <translation>Open the folder?</translation>
    </message>
    <message id="1088">
        <source>Filter users…</source>
        <translation>Filter users…</translation>
    </message>
    <message id="1089">
        <source>No user matches the filter.</source>
        <translation>No user matches the filter.</translation>
    </message>
    <message id="1110">
        <source>Rename</source>
        <translation>Rename</translation>
    </message>
    <message id="1221">
        <source>Waiting for the picture…</source>
        <translation>Waiting for the picture…</translation>
    </message>
    <message id="1222">
        <source>No picture</source>
        <translation>No picture</translation>
    </message>
    <message id="1223">
        <source>Trying again…</source>
        <translation>Trying again…</translation>
    </message>
    <message id="1260">
        <source>Filter maps and cameras…</source>
        <translation>Filter maps and cameras…</translation>
    </message>
    <message id="1261">
        <source>Cut</source>
        <translation>Cut</translation>
    </message>
    <message id="1262">
        <source>Paste</source>
        <translation>Paste</translation>
    </message>
    <message id="1263">
        <source>Move to…</source>
        <translation>Move to…</translation>
    </message>
    <message id="1264">
        <source>A recorder's map goes under the main map or into a group.</source>
        <translation>A recorder's map goes under the main map or into a group.</translation>
    </message>
    <message id="1265">
        <source>A camera goes on the map of its own recorder or one of its sub-maps; on the main map it is taken off all maps.</source>
        <translation>A camera goes on the map of its own recorder or one of its sub-maps; on the main map it is taken off all maps.</translation>
    </message>
    <message id="1266">
        <source>It is there already.</source>
        <translation>It is there already.</translation>
    </message>
    <message id="1267">
        <source>Only recorders' maps and cameras can be moved.</source>
        <translation>Only recorders' maps and cameras can be moved.</translation>
    </message>
    <message id="1268">
        <source>Move</source>
        <translation>Move</translation>
    </message>
    <message id="1269">
        <source>Show the map's picture</source>
        <translation>Show the map's picture</translation>
    </message>
    <message id="1270">
        <source>No map or camera matches the filter.</source>
        <translation>No map or camera matches the filter.</translation>
    </message>
    <message id="1271">
        <source>Enter a name to add a group.</source>
        <translation>Enter a name to add a group.</translation>
    </message>
    <message id="1272">
        <source>Enter a name to add a sub-map. The map has the name of its recorder.</source>
        <translation>Enter a name to add a sub-map. The map has the name of its recorder.</translation>
    </message>
    <message id="1273">
        <source>Drag recorders' maps into the group.</source>
        <translation>Drag recorders' maps into the group.</translation>
    </message>
    <message id="1274">
        <source>Drag the camera to the map of its recorder.</source>
        <translation>Drag the camera to the map of its recorder.</translation>
    </message>
    <message id="1275">
        <source>Drag cameras of its recorder to the sub-map.</source>
        <translation>Drag cameras of its recorder to the sub-map.</translation>
    </message>
</context>
</TS>
