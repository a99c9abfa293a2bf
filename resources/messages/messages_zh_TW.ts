<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en">
<context>
    <name></name>
    <message id="0">
        <source>English</source>
        <translation>英文</translation>
    </message>
    <message id="1">
        <source>Traditional Chinese</source>
        <translation>繁體中文</translation>
    </message>
    <message id="2">
        <source>Simplified Chinese</source>
        <translation>簡體中文</translation>
    </message>
    <message id="3">
        <source>Japanese</source>
        <translation>日文</translation>
    </message>
    <message id="4">
        <source>Spainish</source>
        <translation>西班牙文</translation>
    </message>
    <message id="5">
        <source>CGI ID is full !</source>
        <translation>CGI ID 已用盡。</translation>
    </message>
    <message id="6">
        <source>User Name or Password Error !</source>
        <translation>使用者名稱或密碼錯誤。</translation>
    </message>
    <message id="7">
        <source>Device Connection Error !</source>
        <translation>裝置連線錯誤。</translation>
    </message>
    <message id="8">
        <source>Device brand not supported !</source>
        <translation>不支援此裝置廠牌。</translation>
    </message>
    <message id="9">
        <source>Sending CGI failed !</source>
        <translation>CGI 傳送失敗。</translation>
    </message>
    <message id="10">
        <source>Program has been opened !</source>
        <translation>程式已在執行中。</translation>
    </message>
    <message id="11">
        <source>Application of Setup has been Opening . Please turn it off !</source>
        <translation>設定程式正在執行，請先將其關閉。</translation>
    </message>
    <message id="12">
        <source>Database initialization ...</source>
        <translation>正在初始化資料庫…</translation>
    </message>
    <message id="13">
        <source>Default Data to read ...</source>
        <translation>正在讀取預設資料…</translation>
    </message>
    <message id="14">
        <source>Incorrect database version ! Do you want to reset the databse now ?</source>
        <translation>資料庫版本不正確。是否要立即重設資料庫？</translation>
    </message>
    <message id="15">
        <source>System will not be able to continue to work .</source>
        <translation>系統將無法繼續運作。</translation>
    </message>
    <message id="16">
        <source>Update Database ...</source>
        <translation>正在更新資料庫…</translation>
    </message>
    <message id="17">
        <source>Data is loading ...</source>
        <translation>正在載入資料…</translation>
    </message>
    <message id="18">
        <source>Motion Detection setting is loading...</source>
        <translation>正在載入位移偵測設定…</translation>
    </message>
    <message id="19">
        <source>User Data is loading...</source>
        <translation>正在載入使用者資料…</translation>
    </message>
    <message id="20">
        <source>Group Data  is loading...</source>
        <translation>正在載入群組資料…</translation>
    </message>
    <message id="21">
        <source>Event setting is loading...</source>
        <translation>正在載入事件設定…</translation>
    </message>
    <message id="22">
        <source>E-Map Data is loading ...</source>
        <translation>正在載入電子地圖資料…</translation>
    </message>
    <message id="23">
        <source>Multi-Screen set up is loading ...</source>
        <translation>正在載入多螢幕設定…</translation>
    </message>
    <message id="24">
        <source>System component registering  ...</source>
        <translation>正在註冊系統元件…</translation>
    </message>
    <message id="25">
        <source>Login Identification ...</source>
        <translation>正在驗證登入身分…</translation>
    </message>
    <message id="26">
        <source>Open Login Frame ...</source>
        <translation>正在開啟登入視窗…</translation>
    </message>
    <message id="27">
        <source>Loading User's Pattern …</source>
        <translation>正在載入使用者畫面組合…</translation>
    </message>
    <message id="28">
        <source>Start Service Mode...</source>
        <translation>正在啟動服務模式…</translation>
    </message>
    <message id="29">
        <source>Start Monitor Window ...</source>
        <translation>正在啟動監看視窗…</translation>
    </message>
    <message id="30">
        <source>Start Auto Search …</source>
        <translation>正在啟動自動搜尋…</translation>
    </message>
    <message id="32">
        <source>Manual Startup</source>
        <translation>手動啟動</translation>
    </message>
    <message id="33">
        <source>Device detect timeout !</source>
        <translation>裝置偵測逾時。</translation>
    </message>
    <message id="34">
        <source>The channel of SVR has been removed. Please re-detect the SVR!</source>
        <translation>SVR 的頻道已移除，請重新偵測 SVR。</translation>
    </message>
    <message id="35">
        <source>Please enable SVR upnp port forwarding!</source>
        <translation>請啟用 SVR 的 UPnP 連接埠轉送。</translation>
    </message>
    <message id="36">
        <source>Video Wall Setting</source>
        <translation>電視牆設定</translation>
    </message>
    <message id="37">
        <source>Video Wall display position setting</source>
        <translation>電視牆顯示位置設定</translation>
    </message>
    <message id="38">
        <source>Monitor</source>
        <translation>顯示器</translation>
    </message>
    <message id="39">
        <source>Startup assign setting</source>
        <translation>啟動指派設定</translation>
    </message>
    <message id="40">
        <source>User</source>
        <translation>使用者</translation>
    </message>
    <message id="41">
        <source>Password</source>
        <translation>密碼</translation>
    </message>
    <message id="42">
        <source>User Field is Blank !</source>
        <translation>使用者欄位為空白。</translation>
    </message>
    <message id="43">
        <source>Password Field is Blank !</source>
        <translation>密碼欄位為空白。</translation>
    </message>
    <message id="44">
        <source>Incorrect User Account or Password !</source>
        <translation>使用者帳號或密碼不正確。</translation>
    </message>
    <message id="45">
        <source>Main Viewer</source>
        <translation>主監看程式</translation>
    </message>
    <message id="46">
        <source>NVR Setting</source>
        <translation>NVR 設定</translation>
    </message>
    <message id="47">
        <source>Event-Triggered Notification</source>
        <translation>事件觸發通知</translation>
    </message>
    <message id="48">
        <source>Auto Search Notice</source>
        <translation>自動搜尋通知</translation>
    </message>
    <message id="49">
        <source>Event Synchronization Manually Update</source>
        <translation>手動更新事件同步</translation>
    </message>
    <message id="50">
        <source>About</source>
        <translation>關於</translation>
    </message>
    <message id="51">
        <source>Exit</source>
        <translation>結束</translation>
    </message>
    <message id="52">
        <source>Split</source>
        <translation>分割</translation>
    </message>
    <message id="53">
        <source>Change Channel</source>
        <translation>變更頻道</translation>
    </message>
    <message id="54">
        <source>OSD Display</source>
        <translation>OSD 顯示</translation>
    </message>
    <message id="55">
        <source>CH</source>
        <translation>頻道</translation>
    </message>
    <message id="56">
        <source>Path</source>
        <translation>路徑</translation>
    </message>
    <message id="57">
        <source>OSD Channel</source>
        <translation>OSD 頻道</translation>
    </message>
    <message id="58">
        <source>OSD Time</source>
        <translation>OSD 時間</translation>
    </message>
    <message id="59">
        <source>Save</source>
        <translation>儲存</translation>
    </message>
    <message id="60">
        <source>Camera Event Server Setting Error!</source>
        <translation>攝影機事件伺服器設定錯誤。</translation>
    </message>
    <message id="61">
        <source>Snapshot Error!</source>
        <translation>快照錯誤。</translation>
    </message>
    <message id="62">
        <source>Event Notification is still ongoing.</source>
        <translation>事件通知仍在進行中。</translation>
    </message>
    <message id="63">
        <source>Do you want to exit and open rigging desk?</source>
        <translation>是否要結束並開啟 Rigging Desk？</translation>
    </message>
    <message id="64">
        <source>Auto-Search Notice</source>
        <translation>自動搜尋通知</translation>
    </message>
    <message id="65">
        <source>Closing...</source>
        <translation>正在關閉…</translation>
    </message>
    <message id="66">
        <source>Devcie is Found!</source>
        <translation>已找到裝置。</translation>
    </message>
    <message id="67">
        <source>Fix display mode</source>
        <translation>固定顯示模式</translation>
    </message>
    <message id="68">
        <source>Video Wall default startup setting</source>
        <translation>電視牆預設啟動設定</translation>
    </message>
    <message id="69">
        <source>Intelligent Overview</source>
        <translation>智慧偵測總覽</translation>
    </message>
    <message id="70">
        <source>Do You Want to Save Snapshot Images ?</source>
        <translation>是否要儲存快照影像？</translation>
    </message>
    <message id="71">
        <source>User Name or Password error !</source>
        <translation>使用者名稱或密碼錯誤。</translation>
    </message>
    <message id="72">
        <source>Brand not supported!</source>
        <translation>不支援此廠牌。</translation>
    </message>
    <message id="73">
        <source>Camera not supported!</source>
        <translation>不支援此攝影機。</translation>
    </message>
    <message id="74">
        <source>Device connection error!</source>
        <translation>裝置連線錯誤。</translation>
    </message>
    <message id="75">
        <source>Device detection timeout!</source>
        <translation>裝置偵測逾時。</translation>
    </message>
    <message id="76">
        <source>Unable to connect to the server!</source>
        <translation>無法連線至伺服器。</translation>
    </message>
    <message id="77">
        <source>Service has not connect yet!</source>
        <translation>服務尚未連線。</translation>
    </message>
    <message id="78">
        <source>This series of device does not allow repeat add!</source>
        <translation>此系列裝置不可重複新增。</translation>
    </message>
    <message id="79">
        <source>SEQ by Channel</source>
        <translation>依頻道輪播</translation>
    </message>
    <message id="80">
        <source>SEQ by NVR</source>
        <translation>依 NVR 輪播</translation>
    </message>
    <message id="81">
        <source>SEQ by Pattern</source>
        <translation>依畫面組合輪播</translation>
    </message>
    <message id="82">
        <source>NVR List</source>
        <translation>NVR 清單</translation>
    </message>
    <message id="83">
        <source>Dwell time</source>
        <translation>停留時間</translation>
    </message>
    <message id="84">
        <source>SEQ function is starting, do you want to continue to start SEQ content setting, which will stop SEQ function?</source>
        <translation>輪播功能執行中，繼續設定輪播內容將會停止輪播功能，是否繼續？</translation>
    </message>
    <message id="85">
        <source>Channel SEQ not available! Please select more than one channel when using this function.</source>
        <translation>無法使用頻道輪播，使用此功能時請至少選擇兩個頻道。</translation>
    </message>
    <message id="86">
        <source>NVR SEQ not available! Please select more than one NVR when using this function.</source>
        <translation>無法使用 NVR 輪播，使用此功能時請至少選擇兩台 NVR。</translation>
    </message>
    <message id="87">
        <source>Pattern SEQ not available! Please select more than one patterns when using this function.</source>
        <translation>無法使用畫面組合輪播，使用此功能時請至少選擇兩個畫面組合。</translation>
    </message>
    <message id="88">
        <source>Do you want to enable SEQ by Channel?</source>
        <translation>是否要啟用「依頻道輪播」？</translation>
    </message>
    <message id="89">
        <source>Do you want to enable SEQ by NVR?</source>
        <translation>是否要啟用「依 NVR 輪播」？</translation>
    </message>
    <message id="90">
        <source>Do you want to enable SEQ by Pattern?</source>
        <translation>是否要啟用「依畫面組合輪播」？</translation>
    </message>
    <message id="91">
        <source>Camera event setting can't exceed 32!</source>
        <translation>攝影機事件設定不可超過 32 個。</translation>
    </message>
    <message id="92">
        <source>Please add a NVR first!</source>
        <translation>請先新增 NVR。</translation>
    </message>
    <message id="93">
        <source>Port number can't accept 0 or more than 65536.</source>
        <translation>連接埠號不可為 0，也不可超過 65536。</translation>
    </message>
    <message id="94">
        <source>Drive</source>
        <translation>磁碟機</translation>
    </message>
    <message id="95">
        <source>Size(GB)</source>
        <translation>容量(GB)</translation>
    </message>
    <message id="96">
        <source>Free(GB)</source>
        <translation>可用(GB)</translation>
    </message>
    <message id="97">
        <source>Usage(%)</source>
        <translation>使用率(%)</translation>
    </message>
    <message id="98">
        <source>Storage Path</source>
        <translation>儲存路徑</translation>
    </message>
    <message id="99">
        <source>Select a Path</source>
        <translation>選擇路徑</translation>
    </message>
    <message id="100">
        <source>Live Monitor</source>
        <translation>即時監看</translation>
    </message>
    <message id="101">
        <source>Event Monitor</source>
        <translation>事件監看</translation>
    </message>
    <message id="102">
        <source>Playback</source>
        <translation>回放</translation>
    </message>
    <message id="103">
        <source>E-MAP Monitor</source>
        <translation>電子地圖監看</translation>
    </message>
    <message id="104">
        <source>User Pattern</source>
        <translation>使用者畫面組合</translation>
    </message>
    <message id="105">
        <source>Split</source>
        <translation>分割</translation>
    </message>
    <message id="106">
        <source>Pattern Name</source>
        <translation>畫面組合名稱</translation>
    </message>
    <message id="107">
        <source>Status</source>
        <translation>狀態</translation>
    </message>
    <message id="108">
        <source>Channel Status</source>
        <translation>頻道狀態</translation>
    </message>
    <message id="109">
        <source>Network Disconnection</source>
        <translation>網路斷線</translation>
    </message>
    <message id="110">
        <source>Network connection</source>
        <translation>網路連線</translation>
    </message>
    <message id="111">
        <source>Recording</source>
        <translation>錄影</translation>
    </message>
    <message id="112">
        <source>Event Trigger</source>
        <translation>事件觸發</translation>
    </message>
    <message id="113">
        <source>Connecting</source>
        <translation>連線中</translation>
    </message>
    <message id="114">
        <source>Video Loss</source>
        <translation>影像遺失</translation>
    </message>
    <message id="115">
        <source>SEQ Mode</source>
        <translation>輪播模式</translation>
    </message>
    <message id="116">
        <source>(Sec)</source>
        <translation>(秒)</translation>
    </message>
    <message id="117">
        <source>Start</source>
        <translation>開始</translation>
    </message>
    <message id="118">
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message id="119">
        <source>SEQ contents</source>
        <translation>輪播內容</translation>
    </message>
    <message id="120">
        <source>SEQ ALL</source>
        <translation>全部輪播</translation>
    </message>
    <message id="121">
        <source>SEQ</source>
        <translation>輪播</translation>
    </message>
    <message id="122">
        <source>Pattern SEQ</source>
        <translation>畫面組合輪播</translation>
    </message>
    <message id="123">
        <source>Service Mode</source>
        <translation>服務模式</translation>
    </message>
    <message id="124">
        <source>Language</source>
        <translation>語言</translation>
    </message>
    <message id="125">
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message id="126">
        <source>Event Info</source>
        <translation>事件資訊</translation>
    </message>
    <message id="127">
        <source>Event</source>
        <translation>事件</translation>
    </message>
    <message id="128">
        <source>Time</source>
        <translation>時間</translation>
    </message>
    <message id="129">
        <source>Description</source>
        <translation>說明</translation>
    </message>
    <message id="130">
        <source>System Info</source>
        <translation>系統資訊</translation>
    </message>
    <message id="131">
        <source>Info</source>
        <translation>資訊</translation>
    </message>
    <message id="132">
        <source>System Time:</source>
        <translation>系統時間：</translation>
    </message>
    <message id="133">
        <source>Group Level:</source>
        <translation>群組等級：</translation>
    </message>
    <message id="134">
        <source>CPU:</source>
        <translation>CPU：</translation>
    </message>
    <message id="135">
        <source>PRESET</source>
        <translation>預設點</translation>
    </message>
    <message id="136">
        <source>Preset:</source>
        <translation>預設點：</translation>
    </message>
    <message id="137">
        <source>Unable to support full screen mode or to change split mode under SEQ mode.</source>
        <translation>輪播模式下不支援全螢幕模式，也無法變更分割模式。</translation>
    </message>
    <message id="138">
        <source>Full screen is running. close it first!</source>
        <translation>全螢幕執行中，請先將其關閉。</translation>
    </message>
    <message id="139">
        <source>Unauthorised</source>
        <translation>未授權</translation>
    </message>
    <message id="140">
        <source>Select a channel first.</source>
        <translation>請先選擇頻道。</translation>
    </message>
    <message id="141">
        <source>Name Repeat!</source>
        <translation>名稱重複。</translation>
    </message>
    <message id="142">
        <source>MENU</source>
        <translation>選單</translation>
    </message>
    <message id="143">
        <source>TREE</source>
        <translation>樹狀清單</translation>
    </message>
    <message id="144">
        <source>PATTERN</source>
        <translation>畫面組合</translation>
    </message>
    <message id="145">
        <source>STATUS</source>
        <translation>狀態</translation>
    </message>
    <message id="146">
        <source>SEQ</source>
        <translation>輪播</translation>
    </message>
    <message id="147">
        <source>SYSTEM</source>
        <translation>系統</translation>
    </message>
    <message id="148">
        <source>CH:</source>
        <translation>頻道：</translation>
    </message>
    <message id="149">
        <source>Reconnection</source>
        <translation>重新連線</translation>
    </message>
    <message id="150">
        <source>Audio</source>
        <translation>音訊</translation>
    </message>
    <message id="151">
        <source>Display Image of Motion Detection </source>
        <translation>顯示位移偵測影像 </translation>
    </message>
    <message id="152">
        <source>Snapshot</source>
        <translation>快照</translation>
    </message>
    <message id="153">
        <source>Preset Point Setting</source>
        <translation>預設點設定</translation>
    </message>
    <message id="154">
        <source>When modify setting, the channel of pattern will be changed.</source>
        <translation>修改設定後，畫面組合的頻道將會變更。</translation>
    </message>
    <message id="155">
        <source>Snapshot fail !</source>
        <translation>快照失敗。</translation>
    </message>
    <message id="156">
        <source>Preset Patrol:</source>
        <translation>預設點巡邏：</translation>
    </message>
    <message id="157">
        <source>Loading Fullscreen layout data…</source>
        <translation>正在載入全螢幕配置資料…</translation>
    </message>
    <message id="158">
        <source>Dock</source>
        <translation>停駐</translation>
    </message>
    <message id="159">
        <source>Control Panel</source>
        <translation>控制面板</translation>
    </message>
    <message id="160">
        <source>Name:</source>
        <translation>名稱：</translation>
    </message>
    <message id="161">
        <source>Channel:</source>
        <translation>頻道：</translation>
    </message>
    <message id="162">
        <source>CH Name:</source>
        <translation>頻道名稱：</translation>
    </message>
    <message id="163">
        <source>Event Mode:</source>
        <translation>事件類型：</translation>
    </message>
    <message id="164">
        <source>Event Trigger Time:</source>
        <translation>事件觸發時間：</translation>
    </message>
    <message id="165">
        <source>Contact:</source>
        <translation>聯絡人：</translation>
    </message>
    <message id="166">
        <source>Phone:</source>
        <translation>電話：</translation>
    </message>
    <message id="167">
        <source>Play Time(SYSTEM):</source>
        <translation>播放時間(系統)：</translation>
    </message>
    <message id="168">
        <source>Current Event List</source>
        <translation>目前事件清單</translation>
    </message>
    <message id="169">
        <source>Log Event List</source>
        <translation>歷史事件清單</translation>
    </message>
    <message id="170">
        <source>Search</source>
        <translation>搜尋</translation>
    </message>
    <message id="171">
        <source>Search All</source>
        <translation>全部搜尋</translation>
    </message>
    <message id="172">
        <source>Search Start Time</source>
        <translation>搜尋開始時間</translation>
    </message>
    <message id="173">
        <source>Search by Event type</source>
        <translation>依事件類型搜尋</translation>
    </message>
    <message id="174">
        <source>Item</source>
        <translation>項目</translation>
    </message>
    <message id="175">
        <source>Event ID</source>
        <translation>事件 ID</translation>
    </message>
    <message id="176">
        <source>Time</source>
        <translation>時間</translation>
    </message>
    <message id="177">
        <source>System Time</source>
        <translation>系統時間</translation>
    </message>
    <message id="178">
        <source>NO.</source>
        <translation>編號</translation>
    </message>
    <message id="179">
        <source>CH</source>
        <translation>頻道</translation>
    </message>
    <message id="180">
        <source>Event Mode</source>
        <translation>事件類型</translation>
    </message>
    <message id="181">
        <source>Process</source>
        <translation>處理</translation>
    </message>
    <message id="182">
        <source>On-Line</source>
        <translation>線上</translation>
    </message>
    <message id="183">
        <source>Channel Name</source>
        <translation>頻道名稱</translation>
    </message>
    <message id="184">
        <source>Channel Detail</source>
        <translation>頻道詳細資料</translation>
    </message>
    <message id="185">
        <source>Play Error</source>
        <translation>播放錯誤</translation>
    </message>
    <message id="186">
        <source>Play Stop</source>
        <translation>停止播放</translation>
    </message>
    <message id="187">
        <source>Live Video</source>
        <translation>即時影像</translation>
    </message>
    <message id="188">
        <source>Live Stop</source>
        <translation>停止即時影像</translation>
    </message>
    <message id="189">
        <source>Off Line</source>
        <translation>離線</translation>
    </message>
    <message id="190">
        <source>Error</source>
        <translation>錯誤</translation>
    </message>
    <message id="191">
        <source>Motion</source>
        <translation>位移偵測</translation>
    </message>
    <message id="192">
        <source>Sensor</source>
        <translation>感應器</translation>
    </message>
    <message id="193">
        <source>Return message: </source>
        <translation>傳回訊息： </translation>
    </message>
    <message id="194">
        <source>NVR no playback resource!</source>
        <translation>NVR 無可用的回放資源。</translation>
    </message>
    <message id="195">
        <source>Playback request failed!</source>
        <translation>回放要求失敗。</translation>
    </message>
    <message id="196">
        <source>Reset Event List</source>
        <translation>重設事件清單</translation>
    </message>
    <message id="197">
        <source>X</source>
        <translation>X</translation>
    </message>
    <message id="198">
        <source>Return</source>
        <translation>返回</translation>
    </message>
    <message id="199">
        <source>SEQ Duration Time</source>
        <translation>輪播持續時間</translation>
    </message>
    <message id="200">
        <source>Playback Info</source>
        <translation>回放資訊</translation>
    </message>
    <message id="201">
        <source>NVR:</source>
        <translation>NVR：</translation>
    </message>
    <message id="202">
        <source>CH:</source>
        <translation>頻道：</translation>
    </message>
    <message id="203">
        <source>Speed:</source>
        <translation>速度：</translation>
    </message>
    <message id="204">
        <source>Sun</source>
        <translation>週日</translation>
    </message>
    <message id="205">
        <source>Mon</source>
        <translation>週一</translation>
    </message>
    <message id="206">
        <source>Tue</source>
        <translation>週二</translation>
    </message>
    <message id="207">
        <source>Wed</source>
        <translation>週三</translation>
    </message>
    <message id="208">
        <source>Thu</source>
        <translation>週四</translation>
    </message>
    <message id="209">
        <source>Fri</source>
        <translation>週五</translation>
    </message>
    <message id="210">
        <source>Sat</source>
        <translation>週六</translation>
    </message>
    <message id="211">
        <source>Event List</source>
        <translation>事件清單</translation>
    </message>
    <message id="212">
        <source>Receiving recording data failed</source>
        <translation>接收錄影資料失敗。</translation>
    </message>
    <message id="213">
        <source>RF</source>
        <translation>快退</translation>
    </message>
    <message id="214">
        <source>STOP</source>
        <translation>停止</translation>
    </message>
    <message id="215">
        <source>PLAY</source>
        <translation>播放</translation>
    </message>
    <message id="216">
        <source>PAUSE</source>
        <translation>暫停</translation>
    </message>
    <message id="217">
        <source>FF</source>
        <translation>快轉</translation>
    </message>
    <message id="218">
        <source>NEXT</source>
        <translation>下一個</translation>
    </message>
    <message id="219">
        <source>No recording data can be Displayed !</source>
        <translation>沒有可顯示的錄影資料。</translation>
    </message>
    <message id="220">
        <source>Play Stop ! Need to select new time.</source>
        <translation>播放已停止，請選擇新的時間。</translation>
    </message>
    <message id="221">
        <source>No response! you can try again or select another device !</source>
        <translation>無回應，請重試或選擇其他裝置。</translation>
    </message>
    <message id="222">
        <source>Disconnection ! </source>
        <translation>已斷線。 </translation>
    </message>
    <message id="223">
        <source>Can not get video stream ! please select other Channel.</source>
        <translation>無法取得影像串流，請選擇其他頻道。</translation>
    </message>
    <message id="224">
        <source>No recording data.</source>
        <translation>沒有錄影資料。</translation>
    </message>
    <message id="225">
        <source>Recording data is updating, please wait .</source>
        <translation>正在更新錄影資料，請稍候。</translation>
    </message>
    <message id="226">
        <source>Convert to AVI</source>
        <translation>轉換為 AVI</translation>
    </message>
    <message id="227">
        <source>Do you want to stop the conversion of avi file ?</source>
        <translation>是否要停止轉換 AVI 檔案？</translation>
    </message>
    <message id="228">
        <source>AVI file conversion complete! File is... </source>
        <translation>AVI 檔案轉換完成。檔案為… </translation>
    </message>
    <message id="229">
        <source>Converting AVI file!</source>
        <translation>正在轉換 AVI 檔案。</translation>
    </message>
    <message id="230">
        <source>AVI Conversion Fail !</source>
        <translation>AVI 轉換失敗。</translation>
    </message>
    <message id="231">
        <source>Auto Pan:</source>
        <translation>自動平移：</translation>
    </message>
    <message id="232">
        <source>Single Video</source>
        <translation>單一畫面</translation>
    </message>
    <message id="233">
        <source>Quad Videos</source>
        <translation>四分割畫面</translation>
    </message>
    <message id="234">
        <source>Nine Videos</source>
        <translation>九分割畫面</translation>
    </message>
    <message id="235">
        <source>No any SVD has been set, you need to add any SVD to control!</source>
        <translation>尚未設定任何 SVD，請先新增要控制的 SVD。</translation>
    </message>
    <message id="236">
        <source>This channel has been set to display in this screen!</source>
        <translation>此頻道已設定於此螢幕顯示。</translation>
    </message>
    <message id="237">
        <source>Are you sure to exit SVD console monitor?</source>
        <translation>確定要結束 SVD 控制台監看嗎？</translation>
    </message>
    <message id="238">
        <source>Click here to reconnect again!</source>
        <translation>按一下這裡重新連線。</translation>
    </message>
    <message id="239">
        <source>SVD UI is changing…</source>
        <translation>正在切換 SVD 介面…</translation>
    </message>
    <message id="240">
        <source>NO.:</source>
        <translation>編號：</translation>
    </message>
    <message id="241">
        <source>Name:</source>
        <translation>名稱：</translation>
    </message>
    <message id="242">
        <source>Number of Camera:</source>
        <translation>攝影機數量：</translation>
    </message>
    <message id="243">
        <source>Event:</source>
        <translation>事件：</translation>
    </message>
    <message id="244">
        <source>No Event</source>
        <translation>無事件</translation>
    </message>
    <message id="245">
        <source>CH:</source>
        <translation>頻道：</translation>
    </message>
    <message id="246">
        <source>Up</source>
        <translation>上</translation>
    </message>
    <message id="247">
        <source>Down</source>
        <translation>下</translation>
    </message>
    <message id="248">
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message id="249">
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message id="250">
        <source>Upper left</source>
        <translation>左上</translation>
    </message>
    <message id="251">
        <source>Upper right</source>
        <translation>右上</translation>
    </message>
    <message id="252">
        <source>Lower left</source>
        <translation>左下</translation>
    </message>
    <message id="253">
        <source>Lower right</source>
        <translation>右下</translation>
    </message>
    <message id="254">
        <source>Home</source>
        <translation>原點</translation>
    </message>
    <message id="255">
        <source>Zoom In</source>
        <translation>放大</translation>
    </message>
    <message id="256">
        <source>Zoom Out</source>
        <translation>縮小</translation>
    </message>
    <message id="257">
        <source>Focus Far</source>
        <translation>遠距對焦</translation>
    </message>
    <message id="258">
        <source>Focus Near</source>
        <translation>近距對焦</translation>
    </message>
    <message id="259">
        <source>Auto Focus</source>
        <translation>自動對焦</translation>
    </message>
    <message id="260">
        <source>IRIS Auto</source>
        <translation>自動光圈</translation>
    </message>
    <message id="261">
        <source>IRIS Close</source>
        <translation>縮小光圈</translation>
    </message>
    <message id="262">
        <source>IRIS Open</source>
        <translation>放大光圈</translation>
    </message>
    <message id="263">
        <source>Auto Pan Left</source>
        <translation>向左自動平移</translation>
    </message>
    <message id="264">
        <source>Auto Pan Right</source>
        <translation>向右自動平移</translation>
    </message>
    <message id="265">
        <source>Auto Pan Stop</source>
        <translation>停止自動平移</translation>
    </message>
    <message id="266">
        <source>Moving Rate(+)</source>
        <translation>移動速度(+)</translation>
    </message>
    <message id="267">
        <source>Moving Rate(-)</source>
        <translation>移動速度(-)</translation>
    </message>
    <message id="268">
        <source>Display OSD on all channels</source>
        <translation>在所有頻道顯示 OSD</translation>
    </message>
    <message id="269">
        <source>Display OSD</source>
        <translation>顯示 OSD</translation>
    </message>
    <message id="270">
        <source>Detail Export:</source>
        <translation>匯出詳細資料：</translation>
    </message>
    <message id="271">
        <source>Valid Ch</source>
        <translation>有效頻道</translation>
    </message>
    <message id="272">
        <source>Auto Search</source>
        <translation>自動搜尋</translation>
    </message>
    <message id="273">
        <source>Manual Detection</source>
        <translation>手動偵測</translation>
    </message>
    <message id="274">
        <source>NVR ID:</source>
        <translation>NVR ID：</translation>
    </message>
    <message id="275">
        <source>IP:</source>
        <translation>IP：</translation>
    </message>
    <message id="276">
        <source>HTTP Port:</source>
        <translation>HTTP 連接埠：</translation>
    </message>
    <message id="277">
        <source>Next</source>
        <translation>下一步</translation>
    </message>
    <message id="278">
        <source>Device Name</source>
        <translation>裝置名稱</translation>
    </message>
    <message id="279">
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message id="280">
        <source>CHs</source>
        <translation>頻道數</translation>
    </message>
    <message id="281">
        <source>Model:</source>
        <translation>型號：</translation>
    </message>
    <message id="282">
        <source>Max Channel:</source>
        <translation>最大頻道數：</translation>
    </message>
    <message id="283">
        <source>NVR Name:</source>
        <translation>NVR 名稱：</translation>
    </message>
    <message id="284">
        <source>Version:</source>
        <translation>版本：</translation>
    </message>
    <message id="285">
        <source>Valid Channel:</source>
        <translation>有效頻道：</translation>
    </message>
    <message id="286">
        <source>Sync With NVR</source>
        <translation>與 NVR 同步</translation>
    </message>
    <message id="287">
        <source>Add New NVR </source>
        <translation>新增 NVR </translation>
    </message>
    <message id="288">
        <source>NVR Search List</source>
        <translation>NVR 搜尋清單</translation>
    </message>
    <message id="289">
        <source>NVR Detect Status</source>
        <translation>NVR 偵測狀態</translation>
    </message>
    <message id="290">
        <source>NVR Detail Setting</source>
        <translation>NVR 詳細設定</translation>
    </message>
    <message id="291">
        <source>NVR Channel Setting</source>
        <translation>NVR 頻道設定</translation>
    </message>
    <message id="292">
        <source>Preset Sequence Setting</source>
        <translation>預設點序列設定</translation>
    </message>
    <message id="293">
        <source>Get Capability...</source>
        <translation>正在取得裝置功能…</translation>
    </message>
    <message id="294">
        <source>Get Channel Info...</source>
        <translation>正在取得頻道資訊…</translation>
    </message>
    <message id="295">
        <source>Get NVR Info...</source>
        <translation>正在取得 NVR 資訊…</translation>
    </message>
    <message id="296">
        <source>Initial NVR Value...</source>
        <translation>正在初始化 NVR 參數…</translation>
    </message>
    <message id="297">
        <source>Add Success!</source>
        <translation>新增成功。</translation>
    </message>
    <message id="298">
        <source>Channel List</source>
        <translation>頻道清單</translation>
    </message>
    <message id="299">
        <source>Split:</source>
        <translation>分割：</translation>
    </message>
    <message id="300">
        <source>MainViewer opened. Close it First!</source>
        <translation>主監看程式已開啟，請先將其關閉。</translation>
    </message>
    <message id="301">
        <source>System &amp; Setting</source>
        <translation>系統與設定</translation>
    </message>
    <message id="302">
        <source>Setting</source>
        <translation>設定</translation>
    </message>
    <message id="303">
        <source>Manual Setting</source>
        <translation>手動設定</translation>
    </message>
    <message id="304">
        <source>PTZ Config</source>
        <translation>PTZ 設定</translation>
    </message>
    <message id="305">
        <source>Motion Setting</source>
        <translation>位移偵測設定</translation>
    </message>
    <message id="306">
        <source>Motion Setting</source>
        <translation>位移偵測設定</translation>
    </message>
    <message id="307">
        <source>General Setting Overview</source>
        <translation>一般設定總覽</translation>
    </message>
    <message id="308">
        <source>Group/User Config</source>
        <translation>群組/使用者設定</translation>
    </message>
    <message id="309">
        <source>Event Handling Config</source>
        <translation>事件處理設定</translation>
    </message>
    <message id="310">
        <source>E-Map Config</source>
        <translation>電子地圖設定</translation>
    </message>
    <message id="311">
        <source>Screen Layout Config</source>
        <translation>螢幕配置設定</translation>
    </message>
    <message id="312">
        <source>Event Action Overview</source>
        <translation>事件動作總覽</translation>
    </message>
    <message id="313">
        <source>Mail Config</source>
        <translation>郵件設定</translation>
    </message>
    <message id="314">
        <source>FTP Config</source>
        <translation>FTP 設定</translation>
    </message>
    <message id="315">
        <source>Message Config</source>
        <translation>訊息設定</translation>
    </message>
    <message id="316">
        <source>Sound Config</source>
        <translation>音效設定</translation>
    </message>
    <message id="317">
        <source>Save</source>
        <translation>儲存</translation>
    </message>
    <message id="318">
        <source>Main Viewer</source>
        <translation>主監看程式</translation>
    </message>
    <message id="319">
        <source>Exit</source>
        <translation>結束</translation>
    </message>
    <message id="320">
        <source>Setup</source>
        <translation>設定</translation>
    </message>
    <message id="321">
        <source>SEQ Control</source>
        <translation>輪播控制</translation>
    </message>
    <message id="322">
        <source>Pattern Name:</source>
        <translation>畫面組合名稱：</translation>
    </message>
    <message id="323">
        <source>Do you continue to delete this pattern?</source>
        <translation>是否要刪除此畫面組合？</translation>
    </message>
    <message id="324">
        <source>Pattern List Overview</source>
        <translation>畫面組合清單總覽</translation>
    </message>
    <message id="325">
        <source>Name or Channel list need to be set!</source>
        <translation>必須設定名稱或頻道清單。</translation>
    </message>
    <message id="326">
        <source>Live Monitor SEQ and full screen can not be opened at the same time.</source>
        <translation>即時監看輪播與全螢幕無法同時開啟。</translation>
    </message>
    <message id="327">
        <source>No channel is selected!</source>
        <translation>未選擇任何頻道。</translation>
    </message>
    <message id="328">
        <source>Select time is out of data range!</source>
        <translation>所選時間超出資料範圍。</translation>
    </message>
    <message id="329">
        <source>NVR is invalid!</source>
        <translation>NVR 無效。</translation>
    </message>
    <message id="330">
        <source>System Setting</source>
        <translation>系統設定</translation>
    </message>
    <message id="331">
        <source>Application name:</source>
        <translation>應用程式名稱：</translation>
    </message>
    <message id="332">
        <source>Version:</source>
        <translation>版本：</translation>
    </message>
    <message id="333">
        <source>Language:</source>
        <translation>語言：</translation>
    </message>
    <message id="334">
        <source>Start Up:</source>
        <translation>啟動設定：</translation>
    </message>
    <message id="335">
        <source>Event Sync Time:</source>
        <translation>事件同步時間：</translation>
    </message>
    <message id="336">
        <source>Snapshot Count:</source>
        <translation>快照張數：</translation>
    </message>
    <message id="337">
        <source>Camera Event Server Setting</source>
        <translation>攝影機事件伺服器設定</translation>
    </message>
    <message id="338">
        <source>Account:</source>
        <translation>帳號：</translation>
    </message>
    <message id="339">
        <source>Password:</source>
        <translation>密碼：</translation>
    </message>
    <message id="340">
        <source>Port:</source>
        <translation>連接埠：</translation>
    </message>
    <message id="341">
        <source>System Info</source>
        <translation>系統資訊</translation>
    </message>
    <message id="343">
        <source>OS:</source>
        <translation>作業系統：</translation>
    </message>
    <message id="344">
        <source>CPU:</source>
        <translation>CPU：</translation>
    </message>
    <message id="345">
        <source>RAM:</source>
        <translation>RAM：</translation>
    </message>
    <message id="346">
        <source>Computer name:</source>
        <translation>電腦名稱：</translation>
    </message>
    <message id="347">
        <source>Total space of HD:</source>
        <translation>硬碟總容量：</translation>
    </message>
    <message id="348">
        <source>Network Connect Status:</source>
        <translation>網路連線狀態：</translation>
    </message>
    <message id="349">
        <source>System Time:</source>
        <translation>系統時間：</translation>
    </message>
    <message id="350">
        <source>Screen Count:</source>
        <translation>螢幕數量：</translation>
    </message>
    <message id="351">
        <source>CPU Performance:</source>
        <translation>CPU 效能：</translation>
    </message>
    <message id="352">
        <source>Login Windows then Auto Start up </source>
        <translation>登入 Windows 後自動啟動 </translation>
    </message>
    <message id="353">
        <source>Start in background</source>
        <translation>在背景啟動</translation>
    </message>
    <message id="354">
        <source>Minute</source>
        <translation>分鐘</translation>
    </message>
    <message id="356">
        <source>NVR is connecting, wait a moment and start again!</source>
        <translation>NVR 連線中，請稍候再啟動。</translation>
    </message>
    <message id="357">
        <source>NVR is offline, please choose another NVR or confirm this NVR connection status!</source>
        <translation>NVR 離線，請選擇其他 NVR 或確認此 NVR 的連線狀態。</translation>
    </message>
    <message id="358">
        <source>Output device has been removed!</source>
        <translation>輸出裝置已移除。</translation>
    </message>
    <message id="359">
        <source>Password confirm inconsistency, Please check again!</source>
        <translation>兩次輸入的密碼不一致，請重新檢查。</translation>
    </message>
    <message id="360">
        <source>List:</source>
        <translation>清單：</translation>
    </message>
    <message id="361">
        <source>NVR</source>
        <translation>NVR</translation>
    </message>
    <message id="362">
        <source>Name</source>
        <translation>名稱</translation>
    </message>
    <message id="363">
        <source>IP</source>
        <translation>IP</translation>
    </message>
    <message id="364">
        <source>Port</source>
        <translation>連接埠</translation>
    </message>
    <message id="365">
        <source>Power</source>
        <translation>權限</translation>
    </message>
    <message id="366">
        <source>CH</source>
        <translation>頻道</translation>
    </message>
    <message id="367">
        <source>CH Name</source>
        <translation>頻道名稱</translation>
    </message>
    <message id="368">
        <source>CH IP</source>
        <translation>頻道 IP</translation>
    </message>
    <message id="369">
        <source>CH Port</source>
        <translation>頻道連接埠</translation>
    </message>
    <message id="370">
        <source>CH Brand</source>
        <translation>頻道廠牌</translation>
    </message>
    <message id="371">
        <source>Video Format</source>
        <translation>影像格式</translation>
    </message>
    <message id="372">
        <source>Video RES</source>
        <translation>影像解析度</translation>
    </message>
    <message id="373">
        <source>MD Enable</source>
        <translation>啟用位移偵測</translation>
    </message>
    <message id="374">
        <source>MD Sen</source>
        <translation>位移靈敏度</translation>
    </message>
    <message id="375">
        <source>CH PTZ</source>
        <translation>頻道 PTZ</translation>
    </message>
    <message id="376">
        <source>CH audio</source>
        <translation>頻道音訊</translation>
    </message>
    <message id="377">
        <source>Detect List</source>
        <translation>偵測清單</translation>
    </message>
    <message id="378">
        <source>Advance Control </source>
        <translation>進階控制 </translation>
    </message>
    <message id="379">
        <source>IP</source>
        <translation>IP</translation>
    </message>
    <message id="380">
        <source>Port</source>
        <translation>連接埠</translation>
    </message>
    <message id="381">
        <source>Brand</source>
        <translation>廠牌</translation>
    </message>
    <message id="382">
        <source>Model</source>
        <translation>型號</translation>
    </message>
    <message id="383">
        <source>MAC</source>
        <translation>MAC</translation>
    </message>
    <message id="384">
        <source>Detect Time</source>
        <translation>偵測時間</translation>
    </message>
    <message id="385">
        <source>Add</source>
        <translation>新增</translation>
    </message>
    <message id="386">
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message id="387">
        <source>Modify</source>
        <translation>修改</translation>
    </message>
    <message id="388">
        <source>Reconection </source>
        <translation>重新連線 </translation>
    </message>
    <message id="389">
        <source>Open Browser</source>
        <translation>開啟瀏覽器</translation>
    </message>
    <message id="390">
        <source>Preset Info</source>
        <translation>預設點資訊</translation>
    </message>
    <message id="391">
        <source>Sync</source>
        <translation>同步</translation>
    </message>
    <message id="392">
        <source>Edit Preset</source>
        <translation>編輯預設點</translation>
    </message>
    <message id="393">
        <source>Preset No</source>
        <translation>預設點編號</translation>
    </message>
    <message id="394">
        <source>Preset Name</source>
        <translation>預設點名稱</translation>
    </message>
    <message id="395">
        <source>PTZ Control</source>
        <translation>PTZ 控制</translation>
    </message>
    <message id="396">
        <source>Submit</source>
        <translation>送出</translation>
    </message>
    <message id="397">
        <source>Motion Detect List:</source>
        <translation>位移偵測清單：</translation>
    </message>
    <message id="398">
        <source>Sensitivity:</source>
        <translation>靈敏度：</translation>
    </message>
    <message id="399">
        <source>Motion Detect Setting</source>
        <translation>位移偵測設定</translation>
    </message>
    <message id="400">
        <source>*Use Mouse drag the Device item into Intelligent detection List.</source>
        <translation>*用滑鼠將裝置項目拖曳至智慧偵測清單。</translation>
    </message>
    <message id="401">
        <source>Device List:</source>
        <translation>裝置清單：</translation>
    </message>
    <message id="402">
        <source>Trigger for Motion Detect</source>
        <translation>位移偵測觸發</translation>
    </message>
    <message id="403">
        <source>Status</source>
        <translation>狀態</translation>
    </message>
    <message id="404">
        <source>Motion Enable List:</source>
        <translation>位移偵測啟用清單：</translation>
    </message>
    <message id="405">
        <source>Clear All</source>
        <translation>全部清除</translation>
    </message>
    <message id="406">
        <source>Select All</source>
        <translation>全選</translation>
    </message>
    <message id="407">
        <source>High</source>
        <translation>高</translation>
    </message>
    <message id="408">
        <source>Normal</source>
        <translation>標準</translation>
    </message>
    <message id="409">
        <source>Low</source>
        <translation>低</translation>
    </message>
    <message id="410">
        <source>SET</source>
        <translation>設定</translation>
    </message>
    <message id="411">
        <source>User List:</source>
        <translation>使用者清單：</translation>
    </message>
    <message id="412">
        <source>Group List:</source>
        <translation>群組清單：</translation>
    </message>
    <message id="413">
        <source>Event Setting List:</source>
        <translation>事件設定清單：</translation>
    </message>
    <message id="414">
        <source>EMap List:</source>
        <translation>電子地圖清單：</translation>
    </message>
    <message id="415">
        <source>Screen List:</source>
        <translation>螢幕清單：</translation>
    </message>
    <message id="416">
        <source>Account</source>
        <translation>帳號</translation>
    </message>
    <message id="417">
        <source>Company</source>
        <translation>公司</translation>
    </message>
    <message id="418">
        <source>Telephone</source>
        <translation>電話</translation>
    </message>
    <message id="419">
        <source>Mail 1</source>
        <translation>電子郵件 1</translation>
    </message>
    <message id="420">
        <source>Mail 2</source>
        <translation>電子郵件 2</translation>
    </message>
    <message id="421">
        <source>Cell Phone</source>
        <translation>手機</translation>
    </message>
    <message id="422">
        <source>Photo Path</source>
        <translation>照片路徑</translation>
    </message>
    <message id="423">
        <source>Group</source>
        <translation>群組</translation>
    </message>
    <message id="424">
        <source>Event</source>
        <translation>事件</translation>
    </message>
    <message id="425">
        <source>Mail</source>
        <translation>郵件</translation>
    </message>
    <message id="426">
        <source>FTP</source>
        <translation>FTP</translation>
    </message>
    <message id="427">
        <source>Msg</source>
        <translation>訊息</translation>
    </message>
    <message id="428">
        <source>Sound</source>
        <translation>音效</translation>
    </message>
    <message id="429">
        <source>Video Power</source>
        <translation>影像權限</translation>
    </message>
    <message id="430">
        <source>Playback</source>
        <translation>回放</translation>
    </message>
    <message id="431">
        <source>PTZ</source>
        <translation>PTZ</translation>
    </message>
    <message id="432">
        <source>Setup</source>
        <translation>設定</translation>
    </message>
    <message id="433">
        <source>Map</source>
        <translation>地圖</translation>
    </message>
    <message id="434">
        <source>Path</source>
        <translation>路徑</translation>
    </message>
    <message id="435">
        <source>Function</source>
        <translation>功能</translation>
    </message>
    <message id="436">
        <source>Screen</source>
        <translation>螢幕</translation>
    </message>
    <message id="437">
        <source>MainMap</source>
        <translation>主地圖</translation>
    </message>
    <message id="438">
        <source>FullScreen</source>
        <translation>全螢幕</translation>
    </message>
    <message id="439">
        <source>FullScreen2</source>
        <translation>全螢幕 2</translation>
    </message>
    <message id="440">
        <source>User Detail List</source>
        <translation>使用者詳細清單</translation>
    </message>
    <message id="441">
        <source>Group List</source>
        <translation>群組清單</translation>
    </message>
    <message id="442">
        <source>Add User</source>
        <translation>新增使用者</translation>
    </message>
    <message id="443">
        <source>Remove User</source>
        <translation>移除使用者</translation>
    </message>
    <message id="444">
        <source>Modify User</source>
        <translation>修改使用者</translation>
    </message>
    <message id="445">
        <source>Modify Group</source>
        <translation>修改群組</translation>
    </message>
    <message id="446">
        <source>System Event Trigger Action</source>
        <translation>系統事件觸發動作</translation>
    </message>
    <message id="447">
        <source>NVR Event Trigger Action</source>
        <translation>NVR 事件觸發動作</translation>
    </message>
    <message id="448">
        <source>System Start/Stop</source>
        <translation>系統啟動/停止</translation>
    </message>
    <message id="449">
        <source>Modify Setting of System</source>
        <translation>修改系統設定</translation>
    </message>
    <message id="450">
        <source>Modify Setting of NVR</source>
        <translation>修改 NVR 設定</translation>
    </message>
    <message id="451">
        <source>Modify Setting of Intelligent detection</source>
        <translation>修改智慧偵測設定</translation>
    </message>
    <message id="452">
        <source>Modify Setting of General</source>
        <translation>修改一般設定</translation>
    </message>
    <message id="453">
        <source>Modify Setting of Event</source>
        <translation>修改事件設定</translation>
    </message>
    <message id="454">
        <source>E1:Motion Detect</source>
        <translation>E1：位移偵測</translation>
    </message>
    <message id="455">
        <source>Sensor Detection</source>
        <translation>感應器偵測</translation>
    </message>
    <message id="456">
        <source>*Double Click Map to Setting</source>
        <translation>*按兩下地圖進行設定</translation>
    </message>
    <message id="457">
        <source>SubMap</source>
        <translation>子地圖</translation>
    </message>
    <message id="458">
        <source>Screen Layout</source>
        <translation>螢幕配置</translation>
    </message>
    <message id="459">
        <source>Mail</source>
        <translation>郵件</translation>
    </message>
    <message id="460">
        <source>FTP</source>
        <translation>FTP</translation>
    </message>
    <message id="461">
        <source>Message</source>
        <translation>訊息</translation>
    </message>
    <message id="462">
        <source>Sound</source>
        <translation>音效</translation>
    </message>
    <message id="463">
        <source>Sender E-mail Address</source>
        <translation>寄件者電子郵件地址</translation>
    </message>
    <message id="464">
        <source>Mail Server</source>
        <translation>郵件伺服器</translation>
    </message>
    <message id="465">
        <source>User</source>
        <translation>使用者</translation>
    </message>
    <message id="466">
        <source>Password</source>
        <translation>密碼</translation>
    </message>
    <message id="467">
        <source>Adressee Name</source>
        <translation>收件者姓名</translation>
    </message>
    <message id="468">
        <source>Mail Addrrss</source>
        <translation>電子郵件地址</translation>
    </message>
    <message id="469">
        <source>Server IP</source>
        <translation>伺服器 IP</translation>
    </message>
    <message id="470">
        <source>Server Port</source>
        <translation>伺服器連接埠</translation>
    </message>
    <message id="471">
        <source>Text</source>
        <translation>文字</translation>
    </message>
    <message id="472">
        <source>Sound Description</source>
        <translation>音效說明</translation>
    </message>
    <message id="473">
        <source>Sound File Path</source>
        <translation>音效檔路徑</translation>
    </message>
    <message id="474">
        <source>Test</source>
        <translation>測試</translation>
    </message>
    <message id="475">
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message id="476">
        <source>Mail to</source>
        <translation>收件者</translation>
    </message>
    <message id="477">
        <source>FTP Setting</source>
        <translation>FTP 設定</translation>
    </message>
    <message id="478">
        <source>Message Setting</source>
        <translation>訊息設定</translation>
    </message>
    <message id="479">
        <source>Message</source>
        <translation>訊息</translation>
    </message>
    <message id="480">
        <source>Sound Setting</source>
        <translation>音效設定</translation>
    </message>
    <message id="481">
        <source>Set HTTP Server failed! Do you want to remove all HTTP Servers?</source>
        <translation>設定 HTTP 伺服器失敗。是否要移除所有 HTTP 伺服器？</translation>
    </message>
    <message id="482">
        <source>The amount cannot be more than 16!</source>
        <translation>數量不可超過 16 個。</translation>
    </message>
    <message id="483">
        <source>Do you want to delete the selected NVR?</source>
        <translation>是否要刪除所選的 NVR？</translation>
    </message>
    <message id="484">
        <source>Sender name can't be empty!</source>
        <translation>寄件者名稱不可為空白。</translation>
    </message>
    <message id="485">
        <source>Mail Server can't be empty!</source>
        <translation>郵件伺服器不可為空白。</translation>
    </message>
    <message id="486">
        <source>User can't be empty!</source>
        <translation>使用者不可為空白。</translation>
    </message>
    <message id="487">
        <source>Password can't be empty!</source>
        <translation>密碼不可為空白。</translation>
    </message>
    <message id="488">
        <source>Mail Address can't be empty!</source>
        <translation>電子郵件地址不可為空白。</translation>
    </message>
    <message id="489">
        <source>Test mail sent success.</source>
        <translation>測試郵件傳送成功。</translation>
    </message>
    <message id="490">
        <source>Test mail sent failed.</source>
        <translation>測試郵件傳送失敗。</translation>
    </message>
    <message id="491">
        <source>Server IP can't be empty!</source>
        <translation>伺服器 IP 不可為空白。</translation>
    </message>
    <message id="492">
        <source>Server Port can't be empty!</source>
        <translation>伺服器連接埠不可為空白。</translation>
    </message>
    <message id="493">
        <source>Root Path can't be empty!</source>
        <translation>根目錄路徑不可為空白。</translation>
    </message>
    <message id="494">
        <source>Connecting to ftp server success.</source>
        <translation>連線至 FTP 伺服器成功。</translation>
    </message>
    <message id="495">
        <source>Connecting to ftp server failed.</source>
        <translation>連線至 FTP 伺服器失敗。</translation>
    </message>
    <message id="496">
        <source>Message can't be empty!</source>
        <translation>訊息不可為空白。</translation>
    </message>
    <message id="497">
        <source>Sound Description can't be empty!</source>
        <translation>音效說明不可為空白。</translation>
    </message>
    <message id="498">
        <source>Sound file Path can't be empty!</source>
        <translation>音效檔路徑不可為空白。</translation>
    </message>
    <message id="499">
        <source>Preset number select first.</source>
        <translation>請先選擇預設點編號。</translation>
    </message>
    <message id="500">
        <source>The Preset Name has been used.</source>
        <translation>此預設點名稱已被使用。</translation>
    </message>
    <message id="501">
        <source>Do you want to delete the selected User?</source>
        <translation>是否要刪除所選的使用者？</translation>
    </message>
    <message id="502">
        <source>Can't Delete User.</source>
        <translation>無法刪除使用者。</translation>
    </message>
    <message id="503">
        <source>Already Set.</source>
        <translation>已設定。</translation>
    </message>
    <message id="504">
        <source>Intelligent setting can't exceed 16</source>
        <translation>智慧偵測設定不可超過 16 個。</translation>
    </message>
    <message id="505">
        <source>Add NVR failed! Please add again.</source>
        <translation>新增 NVR 失敗，請重新新增。</translation>
    </message>
    <message id="506">
        <source>File Size can't more than 5MB</source>
        <translation>檔案大小不可超過 5MB。</translation>
    </message>
    <message id="507">
        <source>Save OK</source>
        <translation>儲存成功。</translation>
    </message>
    <message id="508">
        <source>Exit and Open MainViewer?</source>
        <translation>是否要結束並開啟主監看程式？</translation>
    </message>
    <message id="509">
        <source>Do you want to exit?</source>
        <translation>是否要結束？</translation>
    </message>
    <message id="510">
        <source>Resolution Not Support .</source>
        <translation>不支援此解析度。</translation>
    </message>
    <message id="511">
        <source>Do you want to Save?</source>
        <translation>是否要儲存？</translation>
    </message>
    <message id="512">
        <source>The Channel does not support motion detection or is no connection !</source>
        <translation>此頻道不支援位移偵測或未連線。</translation>
    </message>
    <message id="513">
        <source>No setting !</source>
        <translation>無設定。</translation>
    </message>
    <message id="514">
        <source>Settings have changed , Do you want to save ?</source>
        <translation>設定已變更，是否要儲存？</translation>
    </message>
    <message id="515">
        <source>Not yet set of Event Action config!</source>
        <translation>尚未設定事件動作。</translation>
    </message>
    <message id="516">
        <source>Video can't connection.</source>
        <translation>無法連線至影像。</translation>
    </message>
    <message id="517">
        <source>Submit</source>
        <translation>送出</translation>
    </message>
    <message id="518">
        <source>Save Setting</source>
        <translation>儲存設定</translation>
    </message>
    <message id="519">
        <source>Close this window</source>
        <translation>關閉此視窗</translation>
    </message>
    <message id="520">
        <source>Preset Sequence</source>
        <translation>預設點序列</translation>
    </message>
    <message id="521">
        <source>Dwell Time:</source>
        <translation>停留時間：</translation>
    </message>
    <message id="522">
        <source>PTZ Preset</source>
        <translation>PTZ 預設點</translation>
    </message>
    <message id="523">
        <source>Preset Sequence</source>
        <translation>預設點序列</translation>
    </message>
    <message id="524">
        <source>Select a wave file</source>
        <translation>選擇 WAV 音效檔</translation>
    </message>
    <message id="525">
        <source>File Name: </source>
        <translation>檔案名稱： </translation>
    </message>
    <message id="526">
        <source>Message sent successfully!</source>
        <translation>訊息傳送成功。</translation>
    </message>
    <message id="527">
        <source>Sending Message fail!</source>
        <translation>訊息傳送失敗。</translation>
    </message>
    <message id="528">
        <source>MAX Video</source>
        <translation>影像最大化</translation>
    </message>
    <message id="529">
        <source>Enable/Disable auto switch group to display videos.</source>
        <translation>啟用/停用自動切換群組以顯示影像。</translation>
    </message>
    <message id="530">
        <source>Enable/Disable maximum video to display.</source>
        <translation>啟用/停用影像最大化顯示。</translation>
    </message>
    <message id="531">
        <source>Live Video</source>
        <translation>即時影像</translation>
    </message>
    <message id="532">
        <source>Do you want to cancel playback for NVR?</source>
        <translation>是否要取消 NVR 的回放？</translation>
    </message>
    <message id="533">
        <source>The selected time doesn't have any recording data!</source>
        <translation>所選時間沒有任何錄影資料。</translation>
    </message>
    <message id="534">
        <source>Select channel you want to change and reset the relational data information?</source>
        <translation>是否要變更所選頻道並重設相關資料？</translation>
    </message>
    <message id="535">
        <source>This NVR cannot get group ID to playback!</source>
        <translation>此 NVR 無法取得回放所需的群組 ID。</translation>
    </message>
    <message id="536">
        <source>Select the SVD has been disconnected, so close the panel and make sure that SVD status!</source>
        <translation>所選的 SVD 已斷線，請關閉面板並確認 SVD 狀態。</translation>
    </message>
    <message id="550">
        <source>IP Address</source>
        <translation>IP 位址</translation>
    </message>
    <message id="551">
        <source>Http Port</source>
        <translation>HTTP 連接埠</translation>
    </message>
    <message id="552">
        <source>Add</source>
        <translation>新增</translation>
    </message>
    <message id="553">
        <source>NVR Name can't be empty!</source>
        <translation>NVR 名稱不可為空白。</translation>
    </message>
    <message id="554">
        <source>IP address or hostname set incorrectly!</source>
        <translation>IP 位址或主機名稱設定錯誤。</translation>
    </message>
    <message id="555">
        <source>NVR don't exist!</source>
        <translation>NVR 不存在。</translation>
    </message>
    <message id="556">
        <source>Port set incorrectly!</source>
        <translation>連接埠設定錯誤。</translation>
    </message>
    <message id="557">
        <source>Add</source>
        <translation>新增</translation>
    </message>
    <message id="558">
        <source>NVR select setting</source>
        <translation>NVR 選擇設定</translation>
    </message>
    <message id="559">
        <source>Pattern select setting</source>
        <translation>畫面組合選擇設定</translation>
    </message>
    <message id="560">
        <source>All list</source>
        <translation>全部清單</translation>
    </message>
    <message id="561">
        <source>Selected list</source>
        <translation>已選清單</translation>
    </message>
    <message id="562">
        <source>Select item is less than 2 items, it can not be saved!</source>
        <translation>所選項目少於 2 個，無法儲存。</translation>
    </message>
    <message id="563">
        <source>Functions that were originally assigned on this screen will be moved to screen #1 automatically.</source>
        <translation>原本指派於此螢幕的功能將自動移至螢幕 #1。</translation>
    </message>
    <message id="564">
        <source>Has not enough pattern can be selected!</source>
        <translation>可選擇的畫面組合不足。</translation>
    </message>
    <message id="565">
        <source>This screen has been assigned to Video Wall!</source>
        <translation>此螢幕已指派給電視牆。</translation>
    </message>
    <message id="566">
        <source>Has not enough device can be selected!</source>
        <translation>可選擇的裝置不足。</translation>
    </message>
    <message id="570">
        <source>Information</source>
        <translation>資訊</translation>
    </message>
    <message id="571">
        <source>*Name</source>
        <translation>*名稱</translation>
    </message>
    <message id="572">
        <source>*IP Address</source>
        <translation>*IP 位址</translation>
    </message>
    <message id="573">
        <source>*Http Port</source>
        <translation>*HTTP 連接埠</translation>
    </message>
    <message id="574">
        <source>*User</source>
        <translation>*使用者</translation>
    </message>
    <message id="575">
        <source>*Password</source>
        <translation>*密碼</translation>
    </message>
    <message id="576">
        <source>Detect</source>
        <translation>偵測</translation>
    </message>
    <message id="577">
        <source>Device Setting</source>
        <translation>裝置設定</translation>
    </message>
    <message id="578">
        <source>NO.</source>
        <translation>編號</translation>
    </message>
    <message id="579">
        <source>Camera name</source>
        <translation>攝影機名稱</translation>
    </message>
    <message id="580">
        <source>Video Port</source>
        <translation>影像連接埠</translation>
    </message>
    <message id="581">
        <source>Format</source>
        <translation>格式</translation>
    </message>
    <message id="582">
        <source>Resolution</source>
        <translation>解析度</translation>
    </message>
    <message id="583">
        <source>PTZ</source>
        <translation>PTZ</translation>
    </message>
    <message id="584">
        <source>Audio</source>
        <translation>音訊</translation>
    </message>
    <message id="585">
        <source>Edit Camera Setting</source>
        <translation>編輯攝影機設定</translation>
    </message>
    <message id="586">
        <source>Camera No</source>
        <translation>攝影機編號</translation>
    </message>
    <message id="587">
        <source>Camera IP</source>
        <translation>攝影機 IP</translation>
    </message>
    <message id="588">
        <source>Additional Camera Information</source>
        <translation>攝影機其他資訊</translation>
    </message>
    <message id="589">
        <source>Min. Bitrate</source>
        <translation>最小位元率</translation>
    </message>
    <message id="590">
        <source>Max. Bitrate</source>
        <translation>最大位元率</translation>
    </message>
    <message id="591">
        <source>Apply</source>
        <translation>套用</translation>
    </message>
    <message id="592">
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message id="593">
        <source>NVR IP can't be empty.</source>
        <translation>NVR IP 不可為空白。</translation>
    </message>
    <message id="594">
        <source>NVR Http Port can't be empty.</source>
        <translation>NVR HTTP 連接埠不可為空白。</translation>
    </message>
    <message id="595">
        <source>NVR User can't be empty.</source>
        <translation>NVR 使用者不可為空白。</translation>
    </message>
    <message id="596">
        <source>NVR Password can't be empty.</source>
        <translation>NVR 密碼不可為空白。</translation>
    </message>
    <message id="597">
        <source>Request Time Zone ERR! Please Detect again.</source>
        <translation>取得時區錯誤，請重新偵測。</translation>
    </message>
    <message id="598">
        <source>Please Select Brand.</source>
        <translation>請選擇廠牌。</translation>
    </message>
    <message id="599">
        <source>IP Timeout.</source>
        <translation>IP 連線逾時。</translation>
    </message>
    <message id="600">
        <source>Quality</source>
        <translation>畫質</translation>
    </message>
    <message id="601">
        <source>Bitrate</source>
        <translation>位元率</translation>
    </message>
    <message id="602">
        <source>Bitrate Mode</source>
        <translation>位元率模式</translation>
    </message>
    <message id="603">
        <source>CH name can't be empty!</source>
        <translation>頻道名稱不可為空白。</translation>
    </message>
    <message id="604">
        <source>IP address can't be empty!</source>
        <translation>IP 位址不可為空白。</translation>
    </message>
    <message id="605">
        <source>Http Port can't be empty!</source>
        <translation>HTTP 連接埠不可為空白。</translation>
    </message>
    <message id="606">
        <source>User account can't be empty!</source>
        <translation>使用者帳號不可為空白。</translation>
    </message>
    <message id="607">
        <source>Password can't be empty!</source>
        <translation>密碼不可為空白。</translation>
    </message>
    <message id="608">
        <source>Detection Error!</source>
        <translation>偵測錯誤。</translation>
    </message>
    <message id="609">
        <source>No Camera or connect failed !</source>
        <translation>無攝影機或連線失敗。</translation>
    </message>
    <message id="610">
        <source>This firmware version of NVR is not supported , please update newer Version.</source>
        <translation>不支援此 NVR 韌體版本，請更新至較新版本。</translation>
    </message>
    <message id="611">
        <source>If you press the button, data inside NVR will be changed!</source>
        <translation>按下此按鈕後，NVR 內的資料將會變更。</translation>
    </message>
    <message id="612">
        <source>Camera Search</source>
        <translation>攝影機搜尋</translation>
    </message>
    <message id="613">
        <source>Brand not Support!</source>
        <translation>不支援此廠牌。</translation>
    </message>
    <message id="614">
        <source>FPS</source>
        <translation>FPS</translation>
    </message>
    <message id="615">
        <source>Video Format Error!</source>
        <translation>影像格式錯誤。</translation>
    </message>
    <message id="616">
        <source>Camera settings have changes, please re-detect.</source>
        <translation>攝影機設定已變更，請重新偵測。</translation>
    </message>
    <message id="617">
        <source>Add Camera Fail!</source>
        <translation>新增攝影機失敗。</translation>
    </message>
    <message id="618">
        <source>DIS Setting</source>
        <translation>DIS 設定</translation>
    </message>
    <message id="619">
        <source>Device not supported!</source>
        <translation>不支援此裝置。</translation>
    </message>
    <message id="620">
        <source>This account is already set!</source>
        <translation>此帳號已設定。</translation>
    </message>
    <message id="621">
        <source>Do you want to continue edit preset point?</source>
        <translation>是否要繼續編輯預設點？</translation>
    </message>
    <message id="630">
        <source>Group Name</source>
        <translation>群組名稱</translation>
    </message>
    <message id="631">
        <source>Power Level</source>
        <translation>權限等級</translation>
    </message>
    <message id="632">
        <source>Function Permission</source>
        <translation>功能權限</translation>
    </message>
    <message id="633">
        <source>Playback</source>
        <translation>回放</translation>
    </message>
    <message id="634">
        <source>PTZ Control</source>
        <translation>PTZ 控制</translation>
    </message>
    <message id="635">
        <source>System Setup</source>
        <translation>系統設定</translation>
    </message>
    <message id="636">
        <source>Group Setting</source>
        <translation>群組設定</translation>
    </message>
    <message id="640">
        <source>File Size can't more than 10MB</source>
        <translation>檔案大小不可超過 10MB。</translation>
    </message>
    <message id="641">
        <source>EMap Setting</source>
        <translation>電子地圖設定</translation>
    </message>
    <message id="642">
        <source>*Double Click Windows to change Map images.</source>
        <translation>*按兩下視窗以變更地圖圖片。</translation>
    </message>
    <message id="643">
        <source>Select an image file</source>
        <translation>選擇圖片檔</translation>
    </message>
    <message id="645">
        <source>User Setting</source>
        <translation>使用者設定</translation>
    </message>
    <message id="646">
        <source>Photo</source>
        <translation>照片</translation>
    </message>
    <message id="647">
        <source>(Dubble Click to Setting)</source>
        <translation>(按兩下進行設定)</translation>
    </message>
    <message id="648">
        <source>Check</source>
        <translation>檢查</translation>
    </message>
    <message id="649">
        <source>*User Name</source>
        <translation>*使用者名稱</translation>
    </message>
    <message id="650">
        <source>*Password Confirm</source>
        <translation>*確認密碼</translation>
    </message>
    <message id="651">
        <source>*:Necessary</source>
        <translation>*：必填</translation>
    </message>
    <message id="652">
        <source>This name not yet use</source>
        <translation>此名稱可以使用。</translation>
    </message>
    <message id="653">
        <source>This name in use</source>
        <translation>此名稱已被使用。</translation>
    </message>
    <message id="660">
        <source>User&amp;Password</source>
        <translation>使用者與密碼</translation>
    </message>
    <message id="661">
        <source>User or Password is not input!</source>
        <translation>未輸入使用者或密碼。</translation>
    </message>
    <message id="671">
        <source>DIS Service Setting</source>
        <translation>DIS 服務設定</translation>
    </message>
    <message id="672">
        <source>Account List</source>
        <translation>帳號清單</translation>
    </message>
    <message id="673">
        <source>Do you want to remove this user?</source>
        <translation>是否要移除此使用者？</translation>
    </message>
    <message id="674">
        <source>The account has reached the upper limit, for add new account you need to remove another account.</source>
        <translation>帳號數已達上限，若要新增帳號，請先移除其他帳號。</translation>
    </message>
    <message id="675">
        <source>Object Loss</source>
        <translation>物品遺失</translation>
    </message>
    <message id="676">
        <source>Tripwire</source>
        <translation>警戒線</translation>
    </message>
    <message id="677">
        <source>Threat</source>
        <translation>惡意破壞</translation>
    </message>
    <message id="678">
        <source>Enable</source>
        <translation>啟用</translation>
    </message>
    <message id="679">
        <source>Intelligent Setting</source>
        <translation>智慧偵測設定</translation>
    </message>
    <message id="680">
        <source>Intelligent detection List</source>
        <translation>智慧偵測清單</translation>
    </message>
    <message id="681">
        <source>Object Loss Reset</source>
        <translation>物品遺失解除</translation>
    </message>
    <message id="682">
        <source>Threat Detection Reset</source>
        <translation>惡意破壞偵測解除</translation>
    </message>
    <message id="683">
        <source>Image Enhance</source>
        <translation>影像增強</translation>
    </message>
    <message id="684">
        <source>Port number can't accept more then 32767.</source>
        <translation>連接埠號不可超過 32767。</translation>
    </message>
    <message id="685">
        <source>Keep Ratio</source>
        <translation>維持長寬比</translation>
    </message>
    <message id="686">
        <source>Intelligent Detection</source>
        <translation>智慧偵測</translation>
    </message>
    <message id="687">
        <source>OSD Size</source>
        <translation>OSD 大小</translation>
    </message>
    <message id="688">
        <source>OSD Color</source>
        <translation>OSD 顏色</translation>
    </message>
    <message id="689">
        <source>Small</source>
        <translation>小</translation>
    </message>
    <message id="690">
        <source>Middle</source>
        <translation>中</translation>
    </message>
    <message id="691">
        <source>Large</source>
        <translation>大</translation>
    </message>
    <message id="692">
        <source>FullScreen Initial</source>
        <translation>啟動時全螢幕</translation>
    </message>
    <message id="693">
        <source>Startup Screen Layout</source>
        <translation>啟動時的螢幕配置</translation>
    </message>
    <message id="694">
        <source>Leave to save the screen layout.</source>
        <translation>離開頁面時儲存螢幕配置。</translation>
    </message>
    <message id="695">
        <source>Function default start</source>
        <translation>功能預設啟動</translation>
    </message>
    <message id="696">
        <source>Function assign</source>
        <translation>功能指派</translation>
    </message>
    <message id="697">
        <source>Pattern setting</source>
        <translation>畫面組合設定</translation>
    </message>
    <message id="698">
        <source>Name can't be empty.</source>
        <translation>名稱不可為空白。</translation>
    </message>
    <message id="699">
        <source>Object Counting</source>
        <translation>物件計數</translation>
    </message>
    <message id="700">
        <source>Foreign Object</source>
        <translation>遺留物</translation>
    </message>
    <message id="701">
        <source>Foreign Object Reset </source>
        <translation>遺留物解除 </translation>
    </message>
    <message id="702">
        <source>Manual Recording</source>
        <translation>手動錄影</translation>
    </message>
    <message id="703">
        <source>Device settings have changes, please re-detect.</source>
        <translation>裝置設定已變更，請重新偵測。</translation>
    </message>
    <message id="704">
        <source>English and Digit Only</source>
        <translation>僅限英文與數字</translation>
    </message>
    <message id="705">
        <source>Emap Group Assign</source>
        <translation>電子地圖群組指派</translation>
    </message>
    <message id="706">
        <source>Emap Group </source>
        <translation>電子地圖群組 </translation>
    </message>
    <message id="707">
        <source>Member:</source>
        <translation>成員：</translation>
    </message>
    <message id="708">
        <source>Emap Position Assign</source>
        <translation>電子地圖位置指派</translation>
    </message>
    <message id="709">
        <source>Parent</source>
        <translation>上層</translation>
    </message>
    <message id="710">
        <source>Group Type </source>
        <translation>群組類型 </translation>
    </message>
    <message id="711">
        <source>Auto Switch</source>
        <translation>自動切換</translation>
    </message>
    <message id="712">
        <source>Double-click back to previous group</source>
        <translation>按兩下返回上一個群組</translation>
    </message>
    <message id="713">
        <source>Drag and Drop to Move</source>
        <translation>拖放以移動</translation>
    </message>
    <message id="714">
        <source>Do you want to delete the selected Emap Group?</source>
        <translation>是否要刪除所選的電子地圖群組？</translation>
    </message>
    <message id="715">
        <source>The amount of device will be over default value!</source>
        <translation>裝置數量將超過上限。</translation>
    </message>
    <message id="716">
        <source>The amount of total channels will be over default value!</source>
        <translation>頻道總數將超過上限。</translation>
    </message>
    <message id="717">
        <source>Channel selection</source>
        <translation>頻道選擇</translation>
    </message>
    <message id="718">
        <source>Get device capability error!</source>
        <translation>取得裝置功能錯誤。</translation>
    </message>
    <message id="719">
        <source>This device does not has any channel.</source>
        <translation>此裝置沒有任何頻道。</translation>
    </message>
    <message id="720">
        <source>Please add channels  or  re-select the other device.</source>
        <translation>請新增頻道或重新選擇其他裝置。</translation>
    </message>
    <message id="721">
        <source>This device does not has any channel,Do you want to remove the device?</source>
        <translation>此裝置沒有任何頻道，是否要移除此裝置？</translation>
    </message>
    <message id="722">
        <source>Setting fail!</source>
        <translation>設定失敗。</translation>
    </message>
    <message id="723">
        <source>Do you want to stop SEQ mode?</source>
        <translation>是否要停止輪播模式？</translation>
    </message>
    <message id="725">
        <source>Type </source>
        <translation>類型 </translation>
    </message>
    <message id="726">
        <source>No change!</source>
        <translation>沒有變更。</translation>
    </message>
    <message id="727">
        <source>Face Counting</source>
        <translation>人臉計數</translation>
    </message>
    <message id="728">
        <source>Unknown</source>
        <translation>未知</translation>
    </message>
    <message id="729">
        <source>Event Export</source>
        <translation>事件匯出</translation>
    </message>
    <message id="730">
        <source>System Log Export</source>
        <translation>系統日誌匯出</translation>
    </message>
    <message id="731">
        <source>System Log</source>
        <translation>系統日誌</translation>
    </message>
    <message id="732">
        <source>NVR Select</source>
        <translation>選擇 NVR</translation>
    </message>
    <message id="733">
        <source>Condition</source>
        <translation>條件</translation>
    </message>
    <message id="734">
        <source>Time Range:</source>
        <translation>時間範圍：</translation>
    </message>
    <message id="735">
        <source>Start Time:</source>
        <translation>開始時間：</translation>
    </message>
    <message id="736">
        <source>End Time:</source>
        <translation>結束時間：</translation>
    </message>
    <message id="737">
        <source>Event Type:</source>
        <translation>事件類型：</translation>
    </message>
    <message id="738">
        <source>User:</source>
        <translation>使用者：</translation>
    </message>
    <message id="739">
        <source>Export Format:</source>
        <translation>匯出格式：</translation>
    </message>
    <message id="740">
        <source>Export</source>
        <translation>匯出</translation>
    </message>
    <message id="741">
        <source>You must select a path to export!</source>
        <translation>必須選擇匯出路徑。</translation>
    </message>
    <message id="742">
        <source>Start Time must less than End time!</source>
        <translation>開始時間必須早於結束時間。</translation>
    </message>
    <message id="743">
        <source>No Event!</source>
        <translation>沒有事件。</translation>
    </message>
    <message id="744">
        <source>No System Log!</source>
        <translation>沒有系統日誌。</translation>
    </message>
    <message id="745">
        <source>CSV Export finish!</source>
        <translation>CSV 匯出完成。</translation>
    </message>
    <message id="746">
        <source>MDB Export finish!</source>
        <translation>MDB 匯出完成。</translation>
    </message>
    <message id="747">
        <source>Custom</source>
        <translation>自訂</translation>
    </message>
    <message id="748">
        <source>NVR Overview</source>
        <translation>NVR 總覽</translation>
    </message>
    <message id="749">
        <source>Video Wall Console</source>
        <translation>電視牆控制台</translation>
    </message>
    <message id="750">
        <source>Lock Screen </source>
        <translation>鎖定螢幕 </translation>
    </message>
    <message id="751">
        <source>Unlock Screen</source>
        <translation>解鎖螢幕</translation>
    </message>
    <message id="752">
        <source>Video Wall</source>
        <translation>電視牆</translation>
    </message>
    <message id="753">
        <source>Pattern List</source>
        <translation>畫面組合清單</translation>
    </message>
    <message id="754">
        <source>SEQ List</source>
        <translation>輪播清單</translation>
    </message>
    <message id="755">
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message id="756">
        <source>SEQ content setting</source>
        <translation>輪播內容設定</translation>
    </message>
    <message id="757">
        <source>Max Channel</source>
        <translation>最大頻道數</translation>
    </message>
    <message id="758">
        <source>Video server</source>
        <translation>影像伺服器</translation>
    </message>
    <message id="759">
        <source>Support</source>
        <translation>支援</translation>
    </message>
    <message id="760">
        <source>Original View</source>
        <translation>原始畫面</translation>
    </message>
    <message id="761">
        <source>Broad View</source>
        <translation>廣角畫面</translation>
    </message>
    <message id="762">
        <source>Quad View</source>
        <translation>四分割畫面</translation>
    </message>
    <message id="763">
        <source>Quad and Source View</source>
        <translation>四分割與原始畫面</translation>
    </message>
    <message id="764">
        <source>Double View</source>
        <translation>雙畫面</translation>
    </message>
    <message id="765">
        <source>Triple View</source>
        <translation>三畫面</translation>
    </message>
    <message id="766">
        <source>Digital PTZ</source>
        <translation>數位 PTZ</translation>
    </message>
    <message id="767">
        <source>Lens</source>
        <translation>鏡頭</translation>
    </message>
    <message id="768">
        <source>It could not be opened, the insufficient number of available screens!</source>
        <translation>可用螢幕數量不足，無法開啟。</translation>
    </message>
    <message id="769">
        <source>It could not be opened, The Video Wall is not enabled! </source>
        <translation>電視牆未啟用，無法開啟。 </translation>
    </message>
    <message id="770">
        <source>The quantity of screen is not enough! Not support!</source>
        <translation>螢幕數量不足，不支援此功能。</translation>
    </message>
    <message id="772">
        <source>Settings have changed , Please re-open MainViewer!</source>
        <translation>設定已變更，請重新開啟主監看程式。</translation>
    </message>
    <message id="773">
        <source>Preview</source>
        <translation>預覽</translation>
    </message>
    <message id="774">
        <source>Update system log with below defined condition</source>
        <translation>依下列條件更新系統日誌</translation>
    </message>
    <message id="775">
        <source>Transform recording index</source>
        <translation>轉換錄影索引</translation>
    </message>
    <message id="776">
        <source>Event Image Sync Setting</source>
        <translation>事件影像同步設定</translation>
    </message>
    <message id="777">
        <source>Event snapshot storage space is not enough!</source>
        <translation>事件快照儲存空間不足。</translation>
    </message>
    <message id="779">
        <source>Intelligent Mode</source>
        <translation>智慧偵測模式</translation>
    </message>
    <message id="780">
        <source>Add Intelligent Setting</source>
        <translation>新增智慧偵測設定</translation>
    </message>
    <message id="781">
        <source>Camera Event</source>
        <translation>攝影機事件</translation>
    </message>
    <message id="782">
        <source>ROI Setting</source>
        <translation>ROI 設定</translation>
    </message>
    <message id="783">
        <source>Trigger Mode</source>
        <translation>觸發模式</translation>
    </message>
    <message id="784">
        <source>Channel Privilege</source>
        <translation>頻道權限</translation>
    </message>
    <message id="785">
        <source>Group Overview</source>
        <translation>群組總覽</translation>
    </message>
    <message id="786">
        <source>User Overview</source>
        <translation>使用者總覽</translation>
    </message>
    <message id="787">
        <source>Event Server</source>
        <translation>事件伺服器</translation>
    </message>
    <message id="788">
        <source>Trigger By</source>
        <translation>觸發來源</translation>
    </message>
    <message id="789">
        <source>Configuration Modify</source>
        <translation>設定變更</translation>
    </message>
    <message id="790">
        <source>Intelligent Event Trigger</source>
        <translation>智慧偵測事件觸發</translation>
    </message>
    <message id="791">
        <source>NVR Event Trigger</source>
        <translation>NVR 事件觸發</translation>
    </message>
    <message id="792">
        <source>Trigger Action</source>
        <translation>觸發動作</translation>
    </message>
    <message id="793">
        <source>Addresses: (Use ',' to separate e-mails)</source>
        <translation>地址：(請用「,」分隔電子郵件)</translation>
    </message>
    <message id="794">
        <source>Content</source>
        <translation>內容</translation>
    </message>
    <message id="795">
        <source>Video Wall Layout</source>
        <translation>電視牆配置</translation>
    </message>
    <message id="796">
        <source>No Enough screen can be set!</source>
        <translation>可設定的螢幕不足。</translation>
    </message>
    <message id="797">
        <source>SVD Management</source>
        <translation>SVD 管理</translation>
    </message>
    <message id="798">
        <source>SVD Detail Setting</source>
        <translation>SVD 詳細設定</translation>
    </message>
    <message id="799">
        <source>SVD Layout</source>
        <translation>SVD 配置</translation>
    </message>
    <message id="800">
        <source>SVD ID:</source>
        <translation>SVD ID：</translation>
    </message>
    <message id="801">
        <source>SVD Name:</source>
        <translation>SVD 名稱：</translation>
    </message>
    <message id="802">
        <source>Display</source>
        <translation>顯示輸出</translation>
    </message>
    <message id="803">
        <source>Resolution</source>
        <translation>解析度</translation>
    </message>
    <message id="804">
        <source>Priority</source>
        <translation>優先順序</translation>
    </message>
    <message id="805">
        <source>Default Split</source>
        <translation>預設分割</translation>
    </message>
    <message id="806">
        <source>Default Channel List</source>
        <translation>預設頻道清單</translation>
    </message>
    <message id="807">
        <source>Live Stream</source>
        <translation>即時串流</translation>
    </message>
    <message id="808">
        <source>Dynamic Streaming</source>
        <translation>動態串流</translation>
    </message>
    <message id="809">
        <source>Screen Default Layout</source>
        <translation>螢幕預設配置</translation>
    </message>
    <message id="810">
        <source>Channel list</source>
        <translation>頻道清單</translation>
    </message>
    <message id="811">
        <source>Begin</source>
        <translation>開始</translation>
    </message>
    <message id="812">
        <source>Previous</source>
        <translation>上一步</translation>
    </message>
    <message id="813">
        <source>System Log Viewer</source>
        <translation>系統日誌檢視器</translation>
    </message>
    <message id="814">
        <source>Management </source>
        <translation>管理 </translation>
    </message>
    <message id="815">
        <source>Viewer</source>
        <translation>檢視器</translation>
    </message>
    <message id="816">
        <source>Add New SVD</source>
        <translation>新增 SVD</translation>
    </message>
    <message id="817">
        <source>Primary</source>
        <translation>主要</translation>
    </message>
    <message id="818">
        <source>Secondary</source>
        <translation>次要</translation>
    </message>
    <message id="819">
        <source>Available</source>
        <translation>可用</translation>
    </message>
    <message id="820">
        <source>Not Available</source>
        <translation>無法使用</translation>
    </message>
    <message id="821">
        <source>Invalid E-mail Address!</source>
        <translation>電子郵件地址無效。</translation>
    </message>
    <message id="822">
        <source>Invalid Value!</source>
        <translation>數值無效。</translation>
    </message>
    <message id="823">
        <source>Can't add repeatedly!</source>
        <translation>不可重複新增。</translation>
    </message>
    <message id="824">
        <source>Can't add SVD anymore!</source>
        <translation>無法再新增 SVD。</translation>
    </message>
    <message id="826">
        <source>Do you want to remove this SVD?</source>
        <translation>是否要移除此 SVD？</translation>
    </message>
    <message id="827">
        <source>Disable this Video Wall?</source>
        <translation>是否要停用此電視牆？</translation>
    </message>
    <message id="828">
        <source>Export finish!</source>
        <translation>匯出完成。</translation>
    </message>
    <message id="829">
        <source>Brand:</source>
        <translation>廠牌：</translation>
    </message>
    <message id="830">
        <source>Password Mask</source>
        <translation>隱藏密碼</translation>
    </message>
    <message id="831">
        <source>NVR Account setting</source>
        <translation>NVR 帳號設定</translation>
    </message>
    <message id="832">
        <source>No any NVR has been selected.</source>
        <translation>未選擇任何 NVR。</translation>
    </message>
    <message id="833">
        <source>Detect successful!</source>
        <translation>偵測成功。</translation>
    </message>
    <message id="834">
        <source>Failed configuring camera detection on channel:</source>
        <translation>下列頻道的攝影機偵測設定失敗：</translation>
    </message>
    <message id="835">
        <source>Trigger action has done.</source>
        <translation>觸發動作已完成。</translation>
    </message>
    <message id="836">
        <source>Event server has not set.</source>
        <translation>尚未設定事件伺服器。</translation>
    </message>
    <message id="837">
        <source>Privilege Setting</source>
        <translation>權限設定</translation>
    </message>
    <message id="838">
        <source>NVR Privilege Setting</source>
        <translation>NVR 權限設定</translation>
    </message>
    <message id="839">
        <source>SVD Console</source>
        <translation>SVD 控制台</translation>
    </message>
    <message id="840">
        <source>SVD Search List</source>
        <translation>SVD 搜尋清單</translation>
    </message>
    <message id="841">
        <source>No Monitor connect!</source>
        <translation>未連接顯示器。</translation>
    </message>
    <message id="842">
        <source>Do you want to remove this intelligent setting?</source>
        <translation>是否要移除此智慧偵測設定？</translation>
    </message>
    <message id="843">
        <source>Event snapshot doesn't work!</source>
        <translation>事件快照無法運作。</translation>
    </message>
    <message id="850">
        <source>System</source>
        <translation>系統</translation>
    </message>
    <message id="851">
        <source>Intelligent</source>
        <translation>智慧偵測</translation>
    </message>
    <message id="852">
        <source>User and group</source>
        <translation>使用者與群組</translation>
    </message>
    <message id="853">
        <source>Event handling</source>
        <translation>事件處理</translation>
    </message>
    <message id="854">
        <source>Event server</source>
        <translation>事件伺服器</translation>
    </message>
    <message id="855">
        <source>E-Map</source>
        <translation>電子地圖</translation>
    </message>
    <message id="856">
        <source>Screen layout</source>
        <translation>螢幕配置</translation>
    </message>
    <message id="857">
        <source>Startup</source>
        <translation>啟動設定</translation>
    </message>
    <message id="858">
        <source>Tooling</source>
        <translation>工具</translation>
    </message>
    <message id="859">
        <source>This page is not available in this version.</source>
        <translation>此版本未提供此頁面。</translation>
    </message>
    <message id="860">
        <source>Its data in the database stays as it is.</source>
        <translation>資料庫中的相關資料維持不變。</translation>
    </message>
    <message id="861">
        <source>No recorder yet</source>
        <translation>尚無錄影主機</translation>
    </message>
    <message id="862">
        <source>Enter the address of the station's first recorder to add it.</source>
        <translation>輸入本監控站第一台錄影主機的位址即可新增。</translation>
    </message>
    <message id="863">
        <source>Filter name, address, model…</source>
        <translation>篩選名稱、位址、型號…</translation>
    </message>
    <message id="864">
        <source>Recorders of this station</source>
        <translation>本監控站的錄影主機</translation>
    </message>
    <message id="865">
        <source>Recorders: %1 of %2</source>
        <translation>錄影主機：%1 / %2</translation>
    </message>
    <message id="866">
        <source>Channels: %1 of %2</source>
        <translation>頻道：%1 / %2</translation>
    </message>
    <message id="867">
        <source>No recorder matches the filter.</source>
        <translation>沒有符合篩選條件的錄影主機。</translation>
    </message>
    <message id="868">
        <source>Unsaved changes</source>
        <translation>有未儲存的變更</translation>
    </message>
    <message id="870">
        <source>Switch to dark colours</source>
        <translation>切換為深色模式</translation>
    </message>
    <message id="871">
        <source>Switch to light colours</source>
        <translation>切換為淺色模式</translation>
    </message>
    <message id="872">
        <source>Waiting</source>
        <translation>等待中</translation>
    </message>
    <message id="873">
        <source>Finish</source>
        <translation>完成</translation>
    </message>
    <message id="874">
        <source>Done: %1 of %2</source>
        <translation>已完成：%1 / %2</translation>
    </message>
    <message id="875">
        <source>Choose</source>
        <translation>選擇</translation>
    </message>
    <message id="876">
        <source>Edit</source>
        <translation>編輯</translation>
    </message>
    <message id="877">
        <source>Delete</source>
        <translation>刪除</translation>
    </message>
    <message id="878">
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message id="879">
        <source>No</source>
        <translation>否</translation>
    </message>
    <message id="880">
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message id="881">
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message id="882">
        <source>Pages</source>
        <translation>頁面</translation>
    </message>
    <message id="884">
        <source>Enter the address of one recorder.</source>
        <translation>輸入一台錄影主機的位址。</translation>
    </message>
    <message id="885">
        <source>Leave both empty to try the known device accounts.</source>
        <translation>兩欄皆留空時，會嘗試已知的裝置帳號。</translation>
    </message>
    <message id="886">
        <source>About this installation</source>
        <translation>本機安裝資訊</translation>
    </message>
    <message id="887">
        <source>Show password</source>
        <translation>顯示密碼</translation>
    </message>
    <message id="888">
        <source>Searching…</source>
        <translation>正在搜尋…</translation>
    </message>
    <message id="890">
        <source>Name and behaviour of this station</source>
        <translation>本監控站的名稱與運作方式</translation>
    </message>
    <message id="892">
        <source>Recorder slot</source>
        <translation>錄影主機槽位</translation>
    </message>
    <message id="896">
        <source>Connected</source>
        <translation>已連線</translation>
    </message>
    <message id="898">
        <source>Product:</source>
        <translation>產品：</translation>
    </message>
    <message id="899">
        <source>Hide password</source>
        <translation>隱藏密碼</translation>
    </message>
    <message id="900">
        <source>Anyone who opens Rigging Desk is its administrator, because there is no user yet.</source>
        <translation>目前尚無使用者，任何開啟 Rigging Desk 的人都是管理員。</translation>
    </message>
    <message id="901">
        <source>Create the first administrator</source>
        <translation>建立第一位管理員</translation>
    </message>
    <message id="902">
        <source>Not now</source>
        <translation>稍後再說</translation>
    </message>
    <message id="903">
        <source>No user yet</source>
        <translation>尚無使用者</translation>
    </message>
    <message id="904">
        <source>Accessible cameras</source>
        <translation>可存取的攝影機</translation>
    </message>
    <message id="905">
        <source>Who has access</source>
        <translation>有權存取的使用者</translation>
    </message>
    <message id="906">
        <source>Filter channels…</source>
        <translation>篩選頻道…</translation>
    </message>
    <message id="907">
        <source>Whole recorder</source>
        <translation>整台錄影主機</translation>
    </message>
    <message id="908">
        <source>Live</source>
        <translation>即時影像</translation>
    </message>
    <message id="909">
        <source>Live Monitor of all channels</source>
        <translation>所有頻道的即時監看</translation>
    </message>
    <message id="910">
        <source>Grant</source>
        <translation>授予</translation>
    </message>
    <message id="911">
        <source>Withdraw</source>
        <translation>收回</translation>
    </message>
    <message id="912">
        <source>The other rights need Live. Space switches the selected cells; Shift+Space selects a row, Ctrl+Space a column.</source>
        <translation>其他權限都需要「即時影像」權限。按空白鍵切換所選儲存格；按 Shift+空白鍵選取整列，按 Ctrl+空白鍵選取整欄。</translation>
    </message>
    <message id="913">
        <source>Administrators have every right on every channel.</source>
        <translation>管理員對所有頻道擁有全部權限。</translation>
    </message>
    <message id="930">
        <source>Filter the rows found…</source>
        <translation>篩選找到的記錄…</translation>
    </message>
    <message id="931">
        <source>No row matches the filter.</source>
        <translation>沒有符合篩選條件的記錄。</translation>
    </message>
    <message id="932">
        <source>Rows found: %1</source>
        <translation>找到的記錄：%1</translation>
    </message>
    <message id="933">
        <source>The log could not be read</source>
        <translation>無法讀取日誌</translation>
    </message>
    <message id="934">
        <source>Copy rows</source>
        <translation>複製記錄</translation>
    </message>
    <message id="935">
        <source>Open folder</source>
        <translation>開啟資料夾</translation>
    </message>
    <message id="936">
        <source>Event export is not part of this version.</source>
        <translation>此版本不包含事件匯出。</translation>
    </message>
    <message id="937">
        <source>Choose a period and search.</source>
        <translation>請選擇時段後搜尋。</translation>
    </message>
    <message id="938">
        <source>The export failed. Existing files were not changed.</source>
        <translation>匯出失敗。現有檔案未被變更。</translation>
    </message>
    <message id="939">
        <source>First page</source>
        <translation>第一頁</translation>
    </message>
    <message id="940">
        <source>Previous page</source>
        <translation>上一頁</translation>
    </message>
    <message id="941">
        <source>Next page</source>
        <translation>下一頁</translation>
    </message>
    <message id="942">
        <source>Last page</source>
        <translation>最後一頁</translation>
    </message>
    <message id="943">
        <source>Refresh</source>
        <translation>重新整理</translation>
    </message>
    <message id="945">
        <source>Log in</source>
        <translation>登入</translation>
    </message>
    <message id="946">
        <source>The reason is in the log files.</source>
        <translation>原因請參閱日誌檔。</translation>
    </message>
    <message id="950">
        <source>Find recorders on the network.</source>
        <translation>在網路上搜尋錄影主機。</translation>
    </message>
    <message id="951">
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message id="952">
        <source>Select all</source>
        <translation>全選</translation>
    </message>
    <message id="953">
        <source>Filter the devices found</source>
        <translation>篩選找到的裝置</translation>
    </message>
    <message id="954">
        <source>No device has answered.</source>
        <translation>沒有裝置回應。</translation>
    </message>
    <message id="955">
        <source>Recorders with those selected: %1 of %2</source>
        <translation>錄影主機（含所選項目）：%1 / %2</translation>
    </message>
    <message id="956">
        <source>Connection</source>
        <translation>連線</translation>
    </message>
    <message id="957">
        <source>Checking…</source>
        <translation>檢查中…</translation>
    </message>
    <message id="958">
        <source>Login refused</source>
        <translation>登入遭拒</translation>
    </message>
    <message id="959">
        <source>No answer</source>
        <translation>沒有回應</translation>
    </message>
    <message id="960">
        <source>Host name not found</source>
        <translation>找不到主機名稱</translation>
    </message>
    <message id="961">
        <source>Connection refused</source>
        <translation>連線遭拒</translation>
    </message>
    <message id="962">
        <source>Unexpected answer</source>
        <translation>回應異常</translation>
    </message>
    <message id="963">
        <source>Stopped</source>
        <translation>已停止</translation>
    </message>
    <message id="965">
        <source>Notice</source>
        <translation>提示</translation>
    </message>
    <message id="966">
        <source>No camera</source>
        <translation>無攝影機</translation>
    </message>
    <message id="967">
        <source>Changed in the recorder</source>
        <translation>已在錄影主機中變更</translation>
    </message>
    <message id="968">
        <source>Detected</source>
        <translation>已偵測</translation>
    </message>
    <message id="969">
        <source>Unchanged</source>
        <translation>未變更</translation>
    </message>
    <message id="970">
        <source>Remove the camera of channel %1 from the recorder?</source>
        <translation>是否從錄影主機中移除頻道 %1 的攝影機？</translation>
    </message>
    <message id="971">
        <source>Filter the cameras found</source>
        <translation>篩選找到的攝影機</translation>
    </message>
    <message id="972">
        <source>No camera was found.</source>
        <translation>找不到攝影機。</translation>
    </message>
    <message id="973">
        <source>The recorder sees no camera on its network. Search again, or enter an address.</source>
        <translation>錄影主機在其網路中未發現攝影機。請重新搜尋或輸入位址。</translation>
    </message>
    <message id="974">
        <source>Cameras found: %1</source>
        <translation>找到的攝影機：%1</translation>
    </message>
    <message id="975">
        <source>Asking the camera…</source>
        <translation>正在查詢攝影機…</translation>
    </message>
    <message id="976">
        <source>Writing to the recorder…</source>
        <translation>正在寫入錄影主機…</translation>
    </message>
    <message id="977">
        <source>Video source</source>
        <translation>影像來源</translation>
    </message>
    <message id="978">
        <source>Detect the camera to see its video settings.</source>
        <translation>偵測攝影機後即可檢視其影像設定。</translation>
    </message>
    <message id="979">
        <source>Fish-eye view</source>
        <translation>魚眼檢視</translation>
    </message>
    <message id="980">
        <source>The camera name must not contain a double quote (").</source>
        <translation>攝影機名稱不可包含雙引號（"）。</translation>
    </message>
    <message id="981">
        <source>The configuration database cannot be opened: another program holds it, or it cannot be read. Nothing has been changed. Try again?</source>
        <translation>無法開啟設定資料庫：其他程式正在佔用它，或無法讀取。未做任何變更。是否重試？</translation>
    </message>
    <message id="982">
        <source>The users could not be read from the database, so nobody can log in. Close the program that holds the database and start again. The reason is in the log files.</source>
        <translation>無法從資料庫讀取使用者，因此無人可以登入。請關閉佔用資料庫的程式後重新啟動。原因請參閱日誌檔。</translation>
    </message>
    <message id="983">
        <source>These tables of the database could not be read: %1. They stay as they are. The reason is in the log files.</source>
        <translation>無法讀取資料庫的以下資料表：%1。這些資料表將維持不變。原因請參閱日誌檔。</translation>
    </message>
    <message id="995">
        <source>Export</source>
        <translation>匯出</translation>
    </message>
    <message id="1000">
        <source>Keys</source>
        <translation>快速鍵</translation>
    </message>
    <message id="1001">
        <source>Show the keys</source>
        <translation>顯示快速鍵</translation>
    </message>
    <message id="1002">
        <source>Rename or edit the selected entry</source>
        <translation>重新命名或編輯所選項目</translation>
    </message>
    <message id="1003">
        <source>Read the page again</source>
        <translation>重新讀取頁面</translation>
    </message>
    <message id="1004">
        <source>Filter the list</source>
        <translation>篩選清單</translation>
    </message>
    <message id="1005">
        <source>Go to a page</source>
        <translation>前往頁面</translation>
    </message>
    <message id="1006">
        <source>Press the button or open the selected entry</source>
        <translation>按下按鈕或開啟所選項目</translation>
    </message>
    <message id="1007">
        <source>Remove the selected entry</source>
        <translation>移除所選項目</translation>
    </message>
    <message id="1008">
        <source>Cancel or close</source>
        <translation>取消或關閉</translation>
    </message>
    <message id="1030">
        <source>Added: %1 of %2</source>
        <translation>已新增：%1 / %2</translation>
    </message>
    <message id="1031">
        <source>Added: %1 of %2, failed: %3</source>
        <translation>已新增：%1 / %2，失敗：%3</translation>
    </message>
    <message id="1032">
        <source>Recorders that were not added can be tried again with another login.</source>
        <translation>未新增的錄影主機可改用其他登入資訊重試。</translation>
    </message>
    <message id="1033">
        <source>Try again</source>
        <translation>重試</translation>
    </message>
    <message id="1034">
        <source>Login</source>
        <translation>登入</translation>
    </message>
    <message id="1035">
        <source>Added but not saved yet: %1.
Do you want to save?</source>
        <translation>已新增但尚未儲存：%1。
是否要儲存？</translation>
    </message>
    <message id="1036">
        <source>No recorder has been added yet. Close and lose what you entered?</source>
        <translation>尚未新增任何錄影主機。是否要關閉並捨棄已輸入的內容？</translation>
    </message>
    <message id="1037">
        <source>More than one recorder would have this name: %1.
Do you want to use it anyway?</source>
        <translation>將有多台錄影主機使用此名稱：%1。
是否仍要使用？</translation>
    </message>
    <message id="1080">
        <source>A stored password is not shown. Typing replaces it.</source>
        <translation>已儲存的密碼不會顯示，輸入即可取代。</translation>
    </message>
    <message id="1081">
        <source>Choose a group</source>
        <translation>請選擇群組</translation>
    </message>
    <message id="1082">
        <source>No account yet</source>
        <translation>尚無帳號</translation>
    </message>
    <message id="1083">
        <source>These accounts are tried on recorders whose login is not known.</source>
        <translation>登入資訊未知的錄影主機會逐一嘗試這些帳號。</translation>
    </message>
    <message id="1084">
        <source>Do you want to delete the selected account?</source>
        <translation>是否刪除所選帳號？</translation>
    </message>
    <message id="1085">
        <source>No camera is accessible</source>
        <translation>沒有可存取的攝影機</translation>
    </message>
    <message id="1086">
        <source>Access follows from the rights of the user’s group.</source>
        <translation>存取權限取決於使用者所屬群組的權限。</translation>
    </message>
    <message id="1087">
        <source>Open the folder?</source>
        <translation>開啟資料夾？</translation>
    </message>
    <message id="1088">
        <source>Filter users…</source>
        <translation>篩選使用者…</translation>
    </message>
    <message id="1089">
        <source>No user matches the filter.</source>
        <translation>沒有符合篩選條件的使用者。</translation>
    </message>
    <message id="1110">
        <source>Rename</source>
        <translation>重新命名</translation>
    </message>
    <message id="1221">
        <source>Waiting for the picture…</source>
        <translation>正在等待畫面…</translation>
    </message>
    <message id="1222">
        <source>No picture</source>
        <translation>無畫面</translation>
    </message>
    <message id="1223">
        <source>Trying again…</source>
        <translation>正在重試…</translation>
    </message>
    <message id="1260">
        <source>Filter maps and cameras…</source>
        <translation>篩選地圖和攝影機…</translation>
    </message>
    <message id="1261">
        <source>Cut</source>
        <translation>剪下</translation>
    </message>
    <message id="1262">
        <source>Paste</source>
        <translation>貼上</translation>
    </message>
    <message id="1263">
        <source>Move to…</source>
        <translation>移動到…</translation>
    </message>
    <message id="1264">
        <source>A recorder's map goes under the main map or into a group.</source>
        <translation>錄影主機的地圖應放在主地圖下或群組中。</translation>
    </message>
    <message id="1265">
        <source>A camera goes on the map of its own recorder or one of its sub-maps; on the main map it is taken off all maps.</source>
        <translation>攝影機應放在其錄影主機的地圖或其子地圖上；放到主地圖則從所有地圖上移除。</translation>
    </message>
    <message id="1266">
        <source>It is there already.</source>
        <translation>已經在那裡。</translation>
    </message>
    <message id="1267">
        <source>Only recorders' maps and cameras can be moved.</source>
        <translation>只能移動錄影主機的地圖和攝影機。</translation>
    </message>
    <message id="1268">
        <source>Move</source>
        <translation>移動</translation>
    </message>
    <message id="1269">
        <source>Show the map's picture</source>
        <translation>顯示地圖圖片</translation>
    </message>
    <message id="1270">
        <source>No map or camera matches the filter.</source>
        <translation>沒有符合篩選條件的地圖或攝影機。</translation>
    </message>
    <message id="1271">
        <source>Enter a name to add a group.</source>
        <translation>輸入名稱以新增群組。</translation>
    </message>
    <message id="1272">
        <source>Enter a name to add a sub-map. The map has the name of its recorder.</source>
        <translation>輸入名稱以新增子地圖。地圖使用錄影主機的名稱。</translation>
    </message>
    <message id="1273">
        <source>Drag recorders' maps into the group.</source>
        <translation>將錄影主機的地圖拖到群組中。</translation>
    </message>
    <message id="1274">
        <source>Drag the camera to the map of its recorder.</source>
        <translation>將攝影機拖到其錄影主機的地圖上。</translation>
    </message>
    <message id="1275">
        <source>Drag cameras of its recorder to the sub-map.</source>
        <translation>將其錄影主機的攝影機拖到子地圖上。</translation>
    </message>
</context>
</TS>
