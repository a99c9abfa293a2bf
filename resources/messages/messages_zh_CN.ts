<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name></name>
    <message id="0">
        <source>English</source>
        <translation>英语</translation>
    </message>
    <message id="1">
        <source>Traditional Chinese</source>
        <translation>繁体中文</translation>
    </message>
    <message id="2">
        <source>Simplified Chinese</source>
        <translation>简体中文</translation>
    </message>
    <message id="3">
        <source>Japanese</source>
        <translation>日语</translation>
    </message>
    <message id="4">
        <source>Spainish</source>
        <translation>西班牙语</translation>
    </message>
    <message id="5">
        <source>CGI ID is full !</source>
        <translation>CGI ID 已用完。</translation>
    </message>
    <message id="6">
        <source>User Name or Password Error !</source>
        <translation>用户名或密码错误。</translation>
    </message>
    <message id="7">
        <source>Device Connection Error !</source>
        <translation>设备连接错误。</translation>
    </message>
    <message id="8">
        <source>Device brand not supported !</source>
        <translation>不支持该设备品牌。</translation>
    </message>
    <message id="9">
        <source>Sending CGI failed !</source>
        <translation>CGI 发送失败。</translation>
    </message>
    <message id="10">
        <source>Program has been opened !</source>
        <translation>程序已在运行。</translation>
    </message>
    <message id="11">
        <source>Application of Setup has been Opening . Please turn it off !</source>
        <translation>设置程序正在运行，请先将其关闭。</translation>
    </message>
    <message id="12">
        <source>Database initialization ...</source>
        <translation>正在初始化数据库…</translation>
    </message>
    <message id="13">
        <source>Default Data to read ...</source>
        <translation>正在读取默认数据…</translation>
    </message>
    <message id="14">
        <source>Incorrect database version ! Do you want to reset the databse now ?</source>
        <translation>数据库版本不正确。是否立即重置数据库？</translation>
    </message>
    <message id="15">
        <source>System will not be able to continue to work .</source>
        <translation>系统将无法继续工作。</translation>
    </message>
    <message id="16">
        <source>Update Database ...</source>
        <translation>正在更新数据库…</translation>
    </message>
    <message id="17">
        <source>Data is loading ...</source>
        <translation>正在加载数据…</translation>
    </message>
    <message id="18">
        <source>Motion Detection setting is loading...</source>
        <translation>正在加载移动侦测设置…</translation>
    </message>
    <message id="19">
        <source>User Data is loading...</source>
        <translation>正在加载用户数据…</translation>
    </message>
    <message id="20">
        <source>Group Data  is loading...</source>
        <translation>正在加载用户组数据…</translation>
    </message>
    <message id="21">
        <source>Event setting is loading...</source>
        <translation>正在加载事件设置…</translation>
    </message>
    <message id="22">
        <source>E-Map Data is loading ...</source>
        <translation>正在加载电子地图数据…</translation>
    </message>
    <message id="23">
        <source>Multi-Screen set up is loading ...</source>
        <translation>正在加载多屏设置…</translation>
    </message>
    <message id="24">
        <source>System component registering  ...</source>
        <translation>正在注册系统组件…</translation>
    </message>
    <message id="25">
        <source>Login Identification ...</source>
        <translation>正在验证登录身份…</translation>
    </message>
    <message id="26">
        <source>Open Login Frame ...</source>
        <translation>正在打开登录窗口…</translation>
    </message>
    <message id="27">
        <source>Loading User's Pattern …</source>
        <translation>正在加载用户视图…</translation>
    </message>
    <message id="28">
        <source>Start Service Mode...</source>
        <translation>正在启动服务模式…</translation>
    </message>
    <message id="29">
        <source>Start Monitor Window ...</source>
        <translation>正在启动监控窗口…</translation>
    </message>
    <message id="30">
        <source>Start Auto Search …</source>
        <translation>正在启动自动搜索…</translation>
    </message>
    <message id="32">
        <source>Manual Startup</source>
        <translation>手动启动</translation>
    </message>
    <message id="33">
        <source>Device detect timeout !</source>
        <translation>设备检测超时。</translation>
    </message>
    <message id="34">
        <source>The channel of SVR has been removed. Please re-detect the SVR!</source>
        <translation>SVR 的通道已被移除，请重新检测 SVR。</translation>
    </message>
    <message id="35">
        <source>Please enable SVR upnp port forwarding!</source>
        <translation>请启用 SVR 的 UPnP 端口映射。</translation>
    </message>
    <message id="36">
        <source>Video Wall Setting</source>
        <translation>电视墙设置</translation>
    </message>
    <message id="37">
        <source>Video Wall display position setting</source>
        <translation>电视墙显示位置设置</translation>
    </message>
    <message id="38">
        <source>Monitor</source>
        <translation>显示器</translation>
    </message>
    <message id="39">
        <source>Startup assign setting</source>
        <translation>启动分配设置</translation>
    </message>
    <message id="40">
        <source>User</source>
        <translation>用户</translation>
    </message>
    <message id="41">
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message id="42">
        <source>User Field is Blank !</source>
        <translation>用户名为空。</translation>
    </message>
    <message id="43">
        <source>Password Field is Blank !</source>
        <translation>密码为空。</translation>
    </message>
    <message id="44">
        <source>Incorrect User Account or Password !</source>
        <translation>用户账号或密码不正确。</translation>
    </message>
    <message id="45">
        <source>Main Viewer</source>
        <translation>主监控程序</translation>
    </message>
    <message id="46">
        <source>NVR Setting</source>
        <translation>NVR 设置</translation>
    </message>
    <message id="47">
        <source>Event-Triggered Notification</source>
        <translation>事件触发通知</translation>
    </message>
    <message id="48">
        <source>Auto Search Notice</source>
        <translation>自动搜索通知</translation>
    </message>
    <message id="49">
        <source>Event Synchronization Manually Update</source>
        <translation>手动更新事件同步</translation>
    </message>
    <message id="50">
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message id="51">
        <source>Exit</source>
        <translation>退出</translation>
    </message>
    <message id="52">
        <source>Split</source>
        <translation>分割</translation>
    </message>
    <message id="53">
        <source>Change Channel</source>
        <translation>切换通道</translation>
    </message>
    <message id="54">
        <source>OSD Display</source>
        <translation>OSD 显示</translation>
    </message>
    <message id="55">
        <source>CH</source>
        <translation>通道</translation>
    </message>
    <message id="56">
        <source>Path</source>
        <translation>路径</translation>
    </message>
    <message id="57">
        <source>OSD Channel</source>
        <translation>OSD 通道</translation>
    </message>
    <message id="58">
        <source>OSD Time</source>
        <translation>OSD 时间</translation>
    </message>
    <message id="59">
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message id="60">
        <source>Camera Event Server Setting Error!</source>
        <translation>摄像机事件服务器设置错误。</translation>
    </message>
    <message id="61">
        <source>Snapshot Error!</source>
        <translation>抓图错误。</translation>
    </message>
    <message id="62">
        <source>Event Notification is still ongoing.</source>
        <translation>事件通知仍在进行中。</translation>
    </message>
    <message id="63">
        <source>Do you want to exit and open rigging desk?</source>
        <translation>是否退出并打开 Rigging Desk？</translation>
    </message>
    <message id="64">
        <source>Auto-Search Notice</source>
        <translation>自动搜索通知</translation>
    </message>
    <message id="65">
        <source>Closing...</source>
        <translation>正在关闭…</translation>
    </message>
    <message id="66">
        <source>Devcie is Found!</source>
        <translation>已找到设备。</translation>
    </message>
    <message id="67">
        <source>Fix display mode</source>
        <translation>固定显示模式</translation>
    </message>
    <message id="68">
        <source>Video Wall default startup setting</source>
        <translation>电视墙默认启动设置</translation>
    </message>
    <message id="69">
        <source>Intelligent Overview</source>
        <translation>智能侦测总览</translation>
    </message>
    <message id="70">
        <source>Do You Want to Save Snapshot Images ?</source>
        <translation>是否保存抓图？</translation>
    </message>
    <message id="71">
        <source>User Name or Password error !</source>
        <translation>用户名或密码错误。</translation>
    </message>
    <message id="72">
        <source>Brand not supported!</source>
        <translation>不支持该品牌。</translation>
    </message>
    <message id="73">
        <source>Camera not supported!</source>
        <translation>不支持该摄像机。</translation>
    </message>
    <message id="74">
        <source>Device connection error!</source>
        <translation>设备连接错误。</translation>
    </message>
    <message id="75">
        <source>Device detection timeout!</source>
        <translation>设备检测超时。</translation>
    </message>
    <message id="76">
        <source>Unable to connect to the server!</source>
        <translation>无法连接服务器。</translation>
    </message>
    <message id="77">
        <source>Service has not connect yet!</source>
        <translation>服务尚未连接。</translation>
    </message>
    <message id="78">
        <source>This series of device does not allow repeat add!</source>
        <translation>该系列设备不允许重复添加。</translation>
    </message>
    <message id="79">
        <source>SEQ by Channel</source>
        <translation>按通道轮巡</translation>
    </message>
    <message id="80">
        <source>SEQ by NVR</source>
        <translation>按 NVR 轮巡</translation>
    </message>
    <message id="81">
        <source>SEQ by Pattern</source>
        <translation>按视图轮巡</translation>
    </message>
    <message id="82">
        <source>NVR List</source>
        <translation>NVR 列表</translation>
    </message>
    <message id="83">
        <source>Dwell time</source>
        <translation>停留时间</translation>
    </message>
    <message id="84">
        <source>SEQ function is starting, do you want to continue to start SEQ content setting, which will stop SEQ function?</source>
        <translation>轮巡功能正在运行，继续设置轮巡内容将停止轮巡功能，是否继续？</translation>
    </message>
    <message id="85">
        <source>Channel SEQ not available! Please select more than one channel when using this function.</source>
        <translation>通道轮巡不可用，使用此功能时请至少选择两个通道。</translation>
    </message>
    <message id="86">
        <source>NVR SEQ not available! Please select more than one NVR when using this function.</source>
        <translation>NVR 轮巡不可用，使用此功能时请至少选择两台 NVR。</translation>
    </message>
    <message id="87">
        <source>Pattern SEQ not available! Please select more than one patterns when using this function.</source>
        <translation>视图轮巡不可用，使用此功能时请至少选择两个视图。</translation>
    </message>
    <message id="88">
        <source>Do you want to enable SEQ by Channel?</source>
        <translation>是否启用“按通道轮巡”？</translation>
    </message>
    <message id="89">
        <source>Do you want to enable SEQ by NVR?</source>
        <translation>是否启用“按 NVR 轮巡”？</translation>
    </message>
    <message id="90">
        <source>Do you want to enable SEQ by Pattern?</source>
        <translation>是否启用“按视图轮巡”？</translation>
    </message>
    <message id="91">
        <source>Camera event setting can't exceed 32!</source>
        <translation>摄像机事件设置不能超过 32 个。</translation>
    </message>
    <message id="92">
        <source>Please add a NVR first!</source>
        <translation>请先添加 NVR。</translation>
    </message>
    <message id="93">
        <source>Port number can't accept 0 or more than 65536.</source>
        <translation>端口号不能为 0，也不能超过 65536。</translation>
    </message>
    <message id="94">
        <source>Drive</source>
        <translation>驱动器</translation>
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
        <translation>存储路径</translation>
    </message>
    <message id="99">
        <source>Select a Path</source>
        <translation>选择路径</translation>
    </message>
    <message id="100">
        <source>Live Monitor</source>
        <translation>实时监控</translation>
    </message>
    <message id="101">
        <source>Event Monitor</source>
        <translation>事件监控</translation>
    </message>
    <message id="102">
        <source>Playback</source>
        <translation>回放</translation>
    </message>
    <message id="103">
        <source>E-MAP Monitor</source>
        <translation>电子地图监控</translation>
    </message>
    <message id="104">
        <source>User Pattern</source>
        <translation>用户视图</translation>
    </message>
    <message id="105">
        <source>Split</source>
        <translation>分割</translation>
    </message>
    <message id="106">
        <source>Pattern Name</source>
        <translation>视图名称</translation>
    </message>
    <message id="107">
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message id="108">
        <source>Channel Status</source>
        <translation>通道状态</translation>
    </message>
    <message id="109">
        <source>Network Disconnection</source>
        <translation>网络断开</translation>
    </message>
    <message id="110">
        <source>Network connection</source>
        <translation>网络连接</translation>
    </message>
    <message id="111">
        <source>Recording</source>
        <translation>录像</translation>
    </message>
    <message id="112">
        <source>Event Trigger</source>
        <translation>事件触发</translation>
    </message>
    <message id="113">
        <source>Connecting</source>
        <translation>正在连接</translation>
    </message>
    <message id="114">
        <source>Video Loss</source>
        <translation>视频丢失</translation>
    </message>
    <message id="115">
        <source>SEQ Mode</source>
        <translation>轮巡模式</translation>
    </message>
    <message id="116">
        <source>(Sec)</source>
        <translation>(秒)</translation>
    </message>
    <message id="117">
        <source>Start</source>
        <translation>开始</translation>
    </message>
    <message id="118">
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message id="119">
        <source>SEQ contents</source>
        <translation>轮巡内容</translation>
    </message>
    <message id="120">
        <source>SEQ ALL</source>
        <translation>全部轮巡</translation>
    </message>
    <message id="121">
        <source>SEQ</source>
        <translation>轮巡</translation>
    </message>
    <message id="122">
        <source>Pattern SEQ</source>
        <translation>视图轮巡</translation>
    </message>
    <message id="123">
        <source>Service Mode</source>
        <translation>服务模式</translation>
    </message>
    <message id="124">
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message id="125">
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message id="126">
        <source>Event Info</source>
        <translation>事件信息</translation>
    </message>
    <message id="127">
        <source>Event</source>
        <translation>事件</translation>
    </message>
    <message id="128">
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message id="129">
        <source>Description</source>
        <translation>描述</translation>
    </message>
    <message id="130">
        <source>System Info</source>
        <translation>系统信息</translation>
    </message>
    <message id="131">
        <source>Info</source>
        <translation>信息</translation>
    </message>
    <message id="132">
        <source>System Time:</source>
        <translation>系统时间：</translation>
    </message>
    <message id="133">
        <source>Group Level:</source>
        <translation>组级别：</translation>
    </message>
    <message id="134">
        <source>CPU:</source>
        <translation>CPU：</translation>
    </message>
    <message id="135">
        <source>PRESET</source>
        <translation>预置点</translation>
    </message>
    <message id="136">
        <source>Preset:</source>
        <translation>预置点：</translation>
    </message>
    <message id="137">
        <source>Unable to support full screen mode or to change split mode under SEQ mode.</source>
        <translation>轮巡模式下不支持全屏模式，也无法更改分割模式。</translation>
    </message>
    <message id="138">
        <source>Full screen is running. close it first!</source>
        <translation>全屏正在运行，请先将其关闭。</translation>
    </message>
    <message id="139">
        <source>Unauthorised</source>
        <translation>未授权</translation>
    </message>
    <message id="140">
        <source>Select a channel first.</source>
        <translation>请先选择通道。</translation>
    </message>
    <message id="141">
        <source>Name Repeat!</source>
        <translation>名称重复。</translation>
    </message>
    <message id="142">
        <source>MENU</source>
        <translation>菜单</translation>
    </message>
    <message id="143">
        <source>TREE</source>
        <translation>设备树</translation>
    </message>
    <message id="144">
        <source>PATTERN</source>
        <translation>视图</translation>
    </message>
    <message id="145">
        <source>STATUS</source>
        <translation>状态</translation>
    </message>
    <message id="146">
        <source>SEQ</source>
        <translation>轮巡</translation>
    </message>
    <message id="147">
        <source>SYSTEM</source>
        <translation>系统</translation>
    </message>
    <message id="148">
        <source>CH:</source>
        <translation>通道：</translation>
    </message>
    <message id="149">
        <source>Reconnection</source>
        <translation>重新连接</translation>
    </message>
    <message id="150">
        <source>Audio</source>
        <translation>音频</translation>
    </message>
    <message id="151">
        <source>Display Image of Motion Detection </source>
        <translation>显示移动侦测图像 </translation>
    </message>
    <message id="152">
        <source>Snapshot</source>
        <translation>抓图</translation>
    </message>
    <message id="153">
        <source>Preset Point Setting</source>
        <translation>预置点设置</translation>
    </message>
    <message id="154">
        <source>When modify setting, the channel of pattern will be changed.</source>
        <translation>修改设置后，视图的通道将会改变。</translation>
    </message>
    <message id="155">
        <source>Snapshot fail !</source>
        <translation>抓图失败。</translation>
    </message>
    <message id="156">
        <source>Preset Patrol:</source>
        <translation>预置点巡航：</translation>
    </message>
    <message id="157">
        <source>Loading Fullscreen layout data…</source>
        <translation>正在加载全屏布局数据…</translation>
    </message>
    <message id="158">
        <source>Dock</source>
        <translation>停靠</translation>
    </message>
    <message id="159">
        <source>Control Panel</source>
        <translation>控制面板</translation>
    </message>
    <message id="160">
        <source>Name:</source>
        <translation>名称：</translation>
    </message>
    <message id="161">
        <source>Channel:</source>
        <translation>通道：</translation>
    </message>
    <message id="162">
        <source>CH Name:</source>
        <translation>通道名称：</translation>
    </message>
    <message id="163">
        <source>Event Mode:</source>
        <translation>事件类型：</translation>
    </message>
    <message id="164">
        <source>Event Trigger Time:</source>
        <translation>事件触发时间：</translation>
    </message>
    <message id="165">
        <source>Contact:</source>
        <translation>联系人：</translation>
    </message>
    <message id="166">
        <source>Phone:</source>
        <translation>电话：</translation>
    </message>
    <message id="167">
        <source>Play Time(SYSTEM):</source>
        <translation>播放时间(系统)：</translation>
    </message>
    <message id="168">
        <source>Current Event List</source>
        <translation>当前事件列表</translation>
    </message>
    <message id="169">
        <source>Log Event List</source>
        <translation>历史事件列表</translation>
    </message>
    <message id="170">
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message id="171">
        <source>Search All</source>
        <translation>全部搜索</translation>
    </message>
    <message id="172">
        <source>Search Start Time</source>
        <translation>搜索开始时间</translation>
    </message>
    <message id="173">
        <source>Search by Event type</source>
        <translation>按事件类型搜索</translation>
    </message>
    <message id="174">
        <source>Item</source>
        <translation>项目</translation>
    </message>
    <message id="175">
        <source>Event ID</source>
        <translation>事件 ID</translation>
    </message>
    <message id="176">
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message id="177">
        <source>System Time</source>
        <translation>系统时间</translation>
    </message>
    <message id="178">
        <source>NO.</source>
        <translation>编号</translation>
    </message>
    <message id="179">
        <source>CH</source>
        <translation>通道</translation>
    </message>
    <message id="180">
        <source>Event Mode</source>
        <translation>事件类型</translation>
    </message>
    <message id="181">
        <source>Process</source>
        <translation>处理</translation>
    </message>
    <message id="182">
        <source>On-Line</source>
        <translation>在线</translation>
    </message>
    <message id="183">
        <source>Channel Name</source>
        <translation>通道名称</translation>
    </message>
    <message id="184">
        <source>Channel Detail</source>
        <translation>通道详情</translation>
    </message>
    <message id="185">
        <source>Play Error</source>
        <translation>播放错误</translation>
    </message>
    <message id="186">
        <source>Play Stop</source>
        <translation>停止播放</translation>
    </message>
    <message id="187">
        <source>Live Video</source>
        <translation>实时视频</translation>
    </message>
    <message id="188">
        <source>Live Stop</source>
        <translation>停止实时视频</translation>
    </message>
    <message id="189">
        <source>Off Line</source>
        <translation>离线</translation>
    </message>
    <message id="190">
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message id="191">
        <source>Motion</source>
        <translation>移动侦测</translation>
    </message>
    <message id="192">
        <source>Sensor</source>
        <translation>传感器</translation>
    </message>
    <message id="193">
        <source>Return message: </source>
        <translation>返回信息： </translation>
    </message>
    <message id="194">
        <source>NVR no playback resource!</source>
        <translation>NVR 无可用的回放资源。</translation>
    </message>
    <message id="195">
        <source>Playback request failed!</source>
        <translation>回放请求失败。</translation>
    </message>
    <message id="196">
        <source>Reset Event List</source>
        <translation>重置事件列表</translation>
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
        <translation>轮巡持续时间</translation>
    </message>
    <message id="200">
        <source>Playback Info</source>
        <translation>回放信息</translation>
    </message>
    <message id="201">
        <source>NVR:</source>
        <translation>NVR：</translation>
    </message>
    <message id="202">
        <source>CH:</source>
        <translation>通道：</translation>
    </message>
    <message id="203">
        <source>Speed:</source>
        <translation>速度：</translation>
    </message>
    <message id="204">
        <source>Sun</source>
        <translation>周日</translation>
    </message>
    <message id="205">
        <source>Mon</source>
        <translation>周一</translation>
    </message>
    <message id="206">
        <source>Tue</source>
        <translation>周二</translation>
    </message>
    <message id="207">
        <source>Wed</source>
        <translation>周三</translation>
    </message>
    <message id="208">
        <source>Thu</source>
        <translation>周四</translation>
    </message>
    <message id="209">
        <source>Fri</source>
        <translation>周五</translation>
    </message>
    <message id="210">
        <source>Sat</source>
        <translation>周六</translation>
    </message>
    <message id="211">
        <source>Event List</source>
        <translation>事件列表</translation>
    </message>
    <message id="212">
        <source>Receiving recording data failed</source>
        <translation>接收录像数据失败。</translation>
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
        <translation>暂停</translation>
    </message>
    <message id="217">
        <source>FF</source>
        <translation>快进</translation>
    </message>
    <message id="218">
        <source>NEXT</source>
        <translation>下一个</translation>
    </message>
    <message id="219">
        <source>No recording data can be Displayed !</source>
        <translation>没有可显示的录像数据。</translation>
    </message>
    <message id="220">
        <source>Play Stop ! Need to select new time.</source>
        <translation>播放已停止，请选择新的时间。</translation>
    </message>
    <message id="221">
        <source>No response! you can try again or select another device !</source>
        <translation>无响应，请重试或选择其他设备。</translation>
    </message>
    <message id="222">
        <source>Disconnection ! </source>
        <translation>连接已断开。 </translation>
    </message>
    <message id="223">
        <source>Can not get video stream ! please select other Channel.</source>
        <translation>无法获取视频流，请选择其他通道。</translation>
    </message>
    <message id="224">
        <source>No recording data.</source>
        <translation>没有录像数据。</translation>
    </message>
    <message id="225">
        <source>Recording data is updating, please wait .</source>
        <translation>正在更新录像数据，请稍候。</translation>
    </message>
    <message id="226">
        <source>Convert to AVI</source>
        <translation>转换为 AVI</translation>
    </message>
    <message id="227">
        <source>Do you want to stop the conversion of avi file ?</source>
        <translation>是否停止转换 AVI 文件？</translation>
    </message>
    <message id="228">
        <source>AVI file conversion complete! File is... </source>
        <translation>AVI 文件转换完成。文件为… </translation>
    </message>
    <message id="229">
        <source>Converting AVI file!</source>
        <translation>正在转换 AVI 文件。</translation>
    </message>
    <message id="230">
        <source>AVI Conversion Fail !</source>
        <translation>AVI 转换失败。</translation>
    </message>
    <message id="231">
        <source>Auto Pan:</source>
        <translation>自动扫描：</translation>
    </message>
    <message id="232">
        <source>Single Video</source>
        <translation>单画面</translation>
    </message>
    <message id="233">
        <source>Quad Videos</source>
        <translation>四画面</translation>
    </message>
    <message id="234">
        <source>Nine Videos</source>
        <translation>九画面</translation>
    </message>
    <message id="235">
        <source>No any SVD has been set, you need to add any SVD to control!</source>
        <translation>尚未设置任何 SVD，请先添加要控制的 SVD。</translation>
    </message>
    <message id="236">
        <source>This channel has been set to display in this screen!</source>
        <translation>该通道已设置为在此屏幕显示。</translation>
    </message>
    <message id="237">
        <source>Are you sure to exit SVD console monitor?</source>
        <translation>确定要退出 SVD 控制台监控吗？</translation>
    </message>
    <message id="238">
        <source>Click here to reconnect again!</source>
        <translation>单击此处重新连接。</translation>
    </message>
    <message id="239">
        <source>SVD UI is changing…</source>
        <translation>正在切换 SVD 界面…</translation>
    </message>
    <message id="240">
        <source>NO.:</source>
        <translation>编号：</translation>
    </message>
    <message id="241">
        <source>Name:</source>
        <translation>名称：</translation>
    </message>
    <message id="242">
        <source>Number of Camera:</source>
        <translation>摄像机数量：</translation>
    </message>
    <message id="243">
        <source>Event:</source>
        <translation>事件：</translation>
    </message>
    <message id="244">
        <source>No Event</source>
        <translation>无事件</translation>
    </message>
    <message id="245">
        <source>CH:</source>
        <translation>通道：</translation>
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
        <translation>原点</translation>
    </message>
    <message id="255">
        <source>Zoom In</source>
        <translation>放大</translation>
    </message>
    <message id="256">
        <source>Zoom Out</source>
        <translation>缩小</translation>
    </message>
    <message id="257">
        <source>Focus Far</source>
        <translation>聚焦远</translation>
    </message>
    <message id="258">
        <source>Focus Near</source>
        <translation>聚焦近</translation>
    </message>
    <message id="259">
        <source>Auto Focus</source>
        <translation>自动聚焦</translation>
    </message>
    <message id="260">
        <source>IRIS Auto</source>
        <translation>自动光圈</translation>
    </message>
    <message id="261">
        <source>IRIS Close</source>
        <translation>缩小光圈</translation>
    </message>
    <message id="262">
        <source>IRIS Open</source>
        <translation>放大光圈</translation>
    </message>
    <message id="263">
        <source>Auto Pan Left</source>
        <translation>向左自动扫描</translation>
    </message>
    <message id="264">
        <source>Auto Pan Right</source>
        <translation>向右自动扫描</translation>
    </message>
    <message id="265">
        <source>Auto Pan Stop</source>
        <translation>停止自动扫描</translation>
    </message>
    <message id="266">
        <source>Moving Rate(+)</source>
        <translation>移动速度(+)</translation>
    </message>
    <message id="267">
        <source>Moving Rate(-)</source>
        <translation>移动速度(-)</translation>
    </message>
    <message id="268">
        <source>Display OSD on all channels</source>
        <translation>在所有通道显示 OSD</translation>
    </message>
    <message id="269">
        <source>Display OSD</source>
        <translation>显示 OSD</translation>
    </message>
    <message id="270">
        <source>Detail Export:</source>
        <translation>导出详细信息：</translation>
    </message>
    <message id="271">
        <source>Valid Ch</source>
        <translation>有效通道</translation>
    </message>
    <message id="272">
        <source>Auto Search</source>
        <translation>自动搜索</translation>
    </message>
    <message id="273">
        <source>Manual Detection</source>
        <translation>手动检测</translation>
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
        <translation>HTTP 端口：</translation>
    </message>
    <message id="277">
        <source>Next</source>
        <translation>下一步</translation>
    </message>
    <message id="278">
        <source>Device Name</source>
        <translation>设备名称</translation>
    </message>
    <message id="279">
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message id="280">
        <source>CHs</source>
        <translation>通道数</translation>
    </message>
    <message id="281">
        <source>Model:</source>
        <translation>型号：</translation>
    </message>
    <message id="282">
        <source>Max Channel:</source>
        <translation>最大通道数：</translation>
    </message>
    <message id="283">
        <source>NVR Name:</source>
        <translation>NVR 名称：</translation>
    </message>
    <message id="284">
        <source>Version:</source>
        <translation>版本：</translation>
    </message>
    <message id="285">
        <source>Valid Channel:</source>
        <translation>有效通道：</translation>
    </message>
    <message id="286">
        <source>Sync With NVR</source>
        <translation>与 NVR 同步</translation>
    </message>
    <message id="287">
        <source>Add New NVR </source>
        <translation>添加新 NVR </translation>
    </message>
    <message id="288">
        <source>NVR Search List</source>
        <translation>NVR 搜索列表</translation>
    </message>
    <message id="289">
        <source>NVR Detect Status</source>
        <translation>NVR 检测状态</translation>
    </message>
    <message id="290">
        <source>NVR Detail Setting</source>
        <translation>NVR 详细设置</translation>
    </message>
    <message id="291">
        <source>NVR Channel Setting</source>
        <translation>NVR 通道设置</translation>
    </message>
    <message id="292">
        <source>Preset Sequence Setting</source>
        <translation>预置点序列设置</translation>
    </message>
    <message id="293">
        <source>Get Capability...</source>
        <translation>正在获取设备能力…</translation>
    </message>
    <message id="294">
        <source>Get Channel Info...</source>
        <translation>正在获取通道信息…</translation>
    </message>
    <message id="295">
        <source>Get NVR Info...</source>
        <translation>正在获取 NVR 信息…</translation>
    </message>
    <message id="296">
        <source>Initial NVR Value...</source>
        <translation>正在初始化 NVR 参数…</translation>
    </message>
    <message id="297">
        <source>Add Success!</source>
        <translation>添加成功。</translation>
    </message>
    <message id="298">
        <source>Channel List</source>
        <translation>通道列表</translation>
    </message>
    <message id="299">
        <source>Split:</source>
        <translation>分割：</translation>
    </message>
    <message id="300">
        <source>MainViewer opened. Close it First!</source>
        <translation>主监控程序已打开，请先将其关闭。</translation>
    </message>
    <message id="301">
        <source>System &amp; Setting</source>
        <translation>系统与设置</translation>
    </message>
    <message id="302">
        <source>Setting</source>
        <translation>设置</translation>
    </message>
    <message id="303">
        <source>Manual Setting</source>
        <translation>手动设置</translation>
    </message>
    <message id="304">
        <source>PTZ Config</source>
        <translation>PTZ 配置</translation>
    </message>
    <message id="305">
        <source>Motion Setting</source>
        <translation>移动侦测设置</translation>
    </message>
    <message id="306">
        <source>Motion Setting</source>
        <translation>移动侦测设置</translation>
    </message>
    <message id="307">
        <source>General Setting Overview</source>
        <translation>常规设置总览</translation>
    </message>
    <message id="308">
        <source>Group/User Config</source>
        <translation>用户组/用户配置</translation>
    </message>
    <message id="309">
        <source>Event Handling Config</source>
        <translation>事件处理配置</translation>
    </message>
    <message id="310">
        <source>E-Map Config</source>
        <translation>电子地图配置</translation>
    </message>
    <message id="311">
        <source>Screen Layout Config</source>
        <translation>屏幕布局配置</translation>
    </message>
    <message id="312">
        <source>Event Action Overview</source>
        <translation>事件动作总览</translation>
    </message>
    <message id="313">
        <source>Mail Config</source>
        <translation>邮件配置</translation>
    </message>
    <message id="314">
        <source>FTP Config</source>
        <translation>FTP 配置</translation>
    </message>
    <message id="315">
        <source>Message Config</source>
        <translation>消息配置</translation>
    </message>
    <message id="316">
        <source>Sound Config</source>
        <translation>声音配置</translation>
    </message>
    <message id="317">
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message id="318">
        <source>Main Viewer</source>
        <translation>主监控程序</translation>
    </message>
    <message id="319">
        <source>Exit</source>
        <translation>退出</translation>
    </message>
    <message id="320">
        <source>Setup</source>
        <translation>设置</translation>
    </message>
    <message id="321">
        <source>SEQ Control</source>
        <translation>轮巡控制</translation>
    </message>
    <message id="322">
        <source>Pattern Name:</source>
        <translation>视图名称：</translation>
    </message>
    <message id="323">
        <source>Do you continue to delete this pattern?</source>
        <translation>是否删除该视图？</translation>
    </message>
    <message id="324">
        <source>Pattern List Overview</source>
        <translation>视图列表总览</translation>
    </message>
    <message id="325">
        <source>Name or Channel list need to be set!</source>
        <translation>需要设置名称或通道列表。</translation>
    </message>
    <message id="326">
        <source>Live Monitor SEQ and full screen can not be opened at the same time.</source>
        <translation>实时监控轮巡与全屏不能同时打开。</translation>
    </message>
    <message id="327">
        <source>No channel is selected!</source>
        <translation>未选择任何通道。</translation>
    </message>
    <message id="328">
        <source>Select time is out of data range!</source>
        <translation>所选时间超出数据范围。</translation>
    </message>
    <message id="329">
        <source>NVR is invalid!</source>
        <translation>NVR 无效。</translation>
    </message>
    <message id="330">
        <source>System Setting</source>
        <translation>系统设置</translation>
    </message>
    <message id="331">
        <source>Application name:</source>
        <translation>应用程序名称：</translation>
    </message>
    <message id="332">
        <source>Version:</source>
        <translation>版本：</translation>
    </message>
    <message id="333">
        <source>Language:</source>
        <translation>语言：</translation>
    </message>
    <message id="334">
        <source>Start Up:</source>
        <translation>启动设置：</translation>
    </message>
    <message id="335">
        <source>Event Sync Time:</source>
        <translation>事件同步时间：</translation>
    </message>
    <message id="336">
        <source>Snapshot Count:</source>
        <translation>抓图张数：</translation>
    </message>
    <message id="337">
        <source>Camera Event Server Setting</source>
        <translation>摄像机事件服务器设置</translation>
    </message>
    <message id="338">
        <source>Account:</source>
        <translation>账号：</translation>
    </message>
    <message id="339">
        <source>Password:</source>
        <translation>密码：</translation>
    </message>
    <message id="340">
        <source>Port:</source>
        <translation>端口：</translation>
    </message>
    <message id="341">
        <source>System Info</source>
        <translation>系统信息</translation>
    </message>
    <message id="343">
        <source>OS:</source>
        <translation>操作系统：</translation>
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
        <translation>计算机名：</translation>
    </message>
    <message id="347">
        <source>Total space of HD:</source>
        <translation>硬盘总容量：</translation>
    </message>
    <message id="348">
        <source>Network Connect Status:</source>
        <translation>网络连接状态：</translation>
    </message>
    <message id="349">
        <source>System Time:</source>
        <translation>系统时间：</translation>
    </message>
    <message id="350">
        <source>Screen Count:</source>
        <translation>屏幕数量：</translation>
    </message>
    <message id="351">
        <source>CPU Performance:</source>
        <translation>CPU 性能：</translation>
    </message>
    <message id="352">
        <source>Login Windows then Auto Start up </source>
        <translation>登录 Windows 后自动启动 </translation>
    </message>
    <message id="353">
        <source>Start in background</source>
        <translation>在后台启动</translation>
    </message>
    <message id="354">
        <source>Minute</source>
        <translation>分钟</translation>
    </message>
    <message id="356">
        <source>NVR is connecting, wait a moment and start again!</source>
        <translation>NVR 正在连接，请稍候再启动。</translation>
    </message>
    <message id="357">
        <source>NVR is offline, please choose another NVR or confirm this NVR connection status!</source>
        <translation>NVR 离线，请选择其他 NVR 或确认该 NVR 的连接状态。</translation>
    </message>
    <message id="358">
        <source>Output device has been removed!</source>
        <translation>输出设备已移除。</translation>
    </message>
    <message id="359">
        <source>Password confirm inconsistency, Please check again!</source>
        <translation>两次输入的密码不一致，请重新检查。</translation>
    </message>
    <message id="360">
        <source>List:</source>
        <translation>列表：</translation>
    </message>
    <message id="361">
        <source>NVR</source>
        <translation>NVR</translation>
    </message>
    <message id="362">
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message id="363">
        <source>IP</source>
        <translation>IP</translation>
    </message>
    <message id="364">
        <source>Port</source>
        <translation>端口</translation>
    </message>
    <message id="365">
        <source>Power</source>
        <translation>权限</translation>
    </message>
    <message id="366">
        <source>CH</source>
        <translation>通道</translation>
    </message>
    <message id="367">
        <source>CH Name</source>
        <translation>通道名称</translation>
    </message>
    <message id="368">
        <source>CH IP</source>
        <translation>通道 IP</translation>
    </message>
    <message id="369">
        <source>CH Port</source>
        <translation>通道端口</translation>
    </message>
    <message id="370">
        <source>CH Brand</source>
        <translation>通道品牌</translation>
    </message>
    <message id="371">
        <source>Video Format</source>
        <translation>视频格式</translation>
    </message>
    <message id="372">
        <source>Video RES</source>
        <translation>视频分辨率</translation>
    </message>
    <message id="373">
        <source>MD Enable</source>
        <translation>启用移动侦测</translation>
    </message>
    <message id="374">
        <source>MD Sen</source>
        <translation>移动灵敏度</translation>
    </message>
    <message id="375">
        <source>CH PTZ</source>
        <translation>通道 PTZ</translation>
    </message>
    <message id="376">
        <source>CH audio</source>
        <translation>通道音频</translation>
    </message>
    <message id="377">
        <source>Detect List</source>
        <translation>检测列表</translation>
    </message>
    <message id="378">
        <source>Advance Control </source>
        <translation>高级控制 </translation>
    </message>
    <message id="379">
        <source>IP</source>
        <translation>IP</translation>
    </message>
    <message id="380">
        <source>Port</source>
        <translation>端口</translation>
    </message>
    <message id="381">
        <source>Brand</source>
        <translation>品牌</translation>
    </message>
    <message id="382">
        <source>Model</source>
        <translation>型号</translation>
    </message>
    <message id="383">
        <source>MAC</source>
        <translation>MAC</translation>
    </message>
    <message id="384">
        <source>Detect Time</source>
        <translation>检测时间</translation>
    </message>
    <message id="385">
        <source>Add</source>
        <translation>添加</translation>
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
        <translation>重新连接 </translation>
    </message>
    <message id="389">
        <source>Open Browser</source>
        <translation>打开浏览器</translation>
    </message>
    <message id="390">
        <source>Preset Info</source>
        <translation>预置点信息</translation>
    </message>
    <message id="391">
        <source>Sync</source>
        <translation>同步</translation>
    </message>
    <message id="392">
        <source>Edit Preset</source>
        <translation>编辑预置点</translation>
    </message>
    <message id="393">
        <source>Preset No</source>
        <translation>预置点编号</translation>
    </message>
    <message id="394">
        <source>Preset Name</source>
        <translation>预置点名称</translation>
    </message>
    <message id="395">
        <source>PTZ Control</source>
        <translation>PTZ 控制</translation>
    </message>
    <message id="396">
        <source>Submit</source>
        <translation>提交</translation>
    </message>
    <message id="397">
        <source>Motion Detect List:</source>
        <translation>移动侦测列表：</translation>
    </message>
    <message id="398">
        <source>Sensitivity:</source>
        <translation>灵敏度：</translation>
    </message>
    <message id="399">
        <source>Motion Detect Setting</source>
        <translation>移动侦测设置</translation>
    </message>
    <message id="400">
        <source>*Use Mouse drag the Device item into Intelligent detection List.</source>
        <translation>*用鼠标将设备项拖入智能侦测列表。</translation>
    </message>
    <message id="401">
        <source>Device List:</source>
        <translation>设备列表：</translation>
    </message>
    <message id="402">
        <source>Trigger for Motion Detect</source>
        <translation>移动侦测触发</translation>
    </message>
    <message id="403">
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message id="404">
        <source>Motion Enable List:</source>
        <translation>移动侦测启用列表：</translation>
    </message>
    <message id="405">
        <source>Clear All</source>
        <translation>全部清除</translation>
    </message>
    <message id="406">
        <source>Select All</source>
        <translation>全选</translation>
    </message>
    <message id="407">
        <source>High</source>
        <translation>高</translation>
    </message>
    <message id="408">
        <source>Normal</source>
        <translation>标准</translation>
    </message>
    <message id="409">
        <source>Low</source>
        <translation>低</translation>
    </message>
    <message id="410">
        <source>SET</source>
        <translation>设置</translation>
    </message>
    <message id="411">
        <source>User List:</source>
        <translation>用户列表：</translation>
    </message>
    <message id="412">
        <source>Group List:</source>
        <translation>用户组列表：</translation>
    </message>
    <message id="413">
        <source>Event Setting List:</source>
        <translation>事件设置列表：</translation>
    </message>
    <message id="414">
        <source>EMap List:</source>
        <translation>电子地图列表：</translation>
    </message>
    <message id="415">
        <source>Screen List:</source>
        <translation>屏幕列表：</translation>
    </message>
    <message id="416">
        <source>Account</source>
        <translation>账号</translation>
    </message>
    <message id="417">
        <source>Company</source>
        <translation>公司</translation>
    </message>
    <message id="418">
        <source>Telephone</source>
        <translation>电话</translation>
    </message>
    <message id="419">
        <source>Mail 1</source>
        <translation>邮箱 1</translation>
    </message>
    <message id="420">
        <source>Mail 2</source>
        <translation>邮箱 2</translation>
    </message>
    <message id="421">
        <source>Cell Phone</source>
        <translation>手机</translation>
    </message>
    <message id="422">
        <source>Photo Path</source>
        <translation>照片路径</translation>
    </message>
    <message id="423">
        <source>Group</source>
        <translation>组</translation>
    </message>
    <message id="424">
        <source>Event</source>
        <translation>事件</translation>
    </message>
    <message id="425">
        <source>Mail</source>
        <translation>邮件</translation>
    </message>
    <message id="426">
        <source>FTP</source>
        <translation>FTP</translation>
    </message>
    <message id="427">
        <source>Msg</source>
        <translation>消息</translation>
    </message>
    <message id="428">
        <source>Sound</source>
        <translation>声音</translation>
    </message>
    <message id="429">
        <source>Video Power</source>
        <translation>视频权限</translation>
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
        <translation>设置</translation>
    </message>
    <message id="433">
        <source>Map</source>
        <translation>地图</translation>
    </message>
    <message id="434">
        <source>Path</source>
        <translation>路径</translation>
    </message>
    <message id="435">
        <source>Function</source>
        <translation>功能</translation>
    </message>
    <message id="436">
        <source>Screen</source>
        <translation>屏幕</translation>
    </message>
    <message id="437">
        <source>MainMap</source>
        <translation>主地图</translation>
    </message>
    <message id="438">
        <source>FullScreen</source>
        <translation>全屏</translation>
    </message>
    <message id="439">
        <source>FullScreen2</source>
        <translation>全屏 2</translation>
    </message>
    <message id="440">
        <source>User Detail List</source>
        <translation>用户详情列表</translation>
    </message>
    <message id="441">
        <source>Group List</source>
        <translation>用户组列表</translation>
    </message>
    <message id="442">
        <source>Add User</source>
        <translation>添加用户</translation>
    </message>
    <message id="443">
        <source>Remove User</source>
        <translation>移除用户</translation>
    </message>
    <message id="444">
        <source>Modify User</source>
        <translation>修改用户</translation>
    </message>
    <message id="445">
        <source>Modify Group</source>
        <translation>修改用户组</translation>
    </message>
    <message id="446">
        <source>System Event Trigger Action</source>
        <translation>系统事件触发动作</translation>
    </message>
    <message id="447">
        <source>NVR Event Trigger Action</source>
        <translation>NVR 事件触发动作</translation>
    </message>
    <message id="448">
        <source>System Start/Stop</source>
        <translation>系统启动/停止</translation>
    </message>
    <message id="449">
        <source>Modify Setting of System</source>
        <translation>修改系统设置</translation>
    </message>
    <message id="450">
        <source>Modify Setting of NVR</source>
        <translation>修改 NVR 设置</translation>
    </message>
    <message id="451">
        <source>Modify Setting of Intelligent detection</source>
        <translation>修改智能侦测设置</translation>
    </message>
    <message id="452">
        <source>Modify Setting of General</source>
        <translation>修改常规设置</translation>
    </message>
    <message id="453">
        <source>Modify Setting of Event</source>
        <translation>修改事件设置</translation>
    </message>
    <message id="454">
        <source>E1:Motion Detect</source>
        <translation>E1：移动侦测</translation>
    </message>
    <message id="455">
        <source>Sensor Detection</source>
        <translation>传感器侦测</translation>
    </message>
    <message id="456">
        <source>*Double Click Map to Setting</source>
        <translation>*双击地图进行设置</translation>
    </message>
    <message id="457">
        <source>SubMap</source>
        <translation>子地图</translation>
    </message>
    <message id="458">
        <source>Screen Layout</source>
        <translation>屏幕布局</translation>
    </message>
    <message id="459">
        <source>Mail</source>
        <translation>邮件</translation>
    </message>
    <message id="460">
        <source>FTP</source>
        <translation>FTP</translation>
    </message>
    <message id="461">
        <source>Message</source>
        <translation>消息</translation>
    </message>
    <message id="462">
        <source>Sound</source>
        <translation>声音</translation>
    </message>
    <message id="463">
        <source>Sender E-mail Address</source>
        <translation>发件人邮箱地址</translation>
    </message>
    <message id="464">
        <source>Mail Server</source>
        <translation>邮件服务器</translation>
    </message>
    <message id="465">
        <source>User</source>
        <translation>用户</translation>
    </message>
    <message id="466">
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message id="467">
        <source>Adressee Name</source>
        <translation>收件人姓名</translation>
    </message>
    <message id="468">
        <source>Mail Addrrss</source>
        <translation>邮箱地址</translation>
    </message>
    <message id="469">
        <source>Server IP</source>
        <translation>服务器 IP</translation>
    </message>
    <message id="470">
        <source>Server Port</source>
        <translation>服务器端口</translation>
    </message>
    <message id="471">
        <source>Text</source>
        <translation>文本</translation>
    </message>
    <message id="472">
        <source>Sound Description</source>
        <translation>声音描述</translation>
    </message>
    <message id="473">
        <source>Sound File Path</source>
        <translation>声音文件路径</translation>
    </message>
    <message id="474">
        <source>Test</source>
        <translation>测试</translation>
    </message>
    <message id="475">
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message id="476">
        <source>Mail to</source>
        <translation>收件人</translation>
    </message>
    <message id="477">
        <source>FTP Setting</source>
        <translation>FTP 设置</translation>
    </message>
    <message id="478">
        <source>Message Setting</source>
        <translation>消息设置</translation>
    </message>
    <message id="479">
        <source>Message</source>
        <translation>消息</translation>
    </message>
    <message id="480">
        <source>Sound Setting</source>
        <translation>声音设置</translation>
    </message>
    <message id="481">
        <source>Set HTTP Server failed! Do you want to remove all HTTP Servers?</source>
        <translation>设置 HTTP 服务器失败。是否移除所有 HTTP 服务器？</translation>
    </message>
    <message id="482">
        <source>The amount cannot be more than 16!</source>
        <translation>数量不能超过 16 个。</translation>
    </message>
    <message id="483">
        <source>Do you want to delete the selected NVR?</source>
        <translation>是否删除所选 NVR？</translation>
    </message>
    <message id="484">
        <source>Sender name can't be empty!</source>
        <translation>发件人名称不能为空。</translation>
    </message>
    <message id="485">
        <source>Mail Server can't be empty!</source>
        <translation>邮件服务器不能为空。</translation>
    </message>
    <message id="486">
        <source>User can't be empty!</source>
        <translation>用户不能为空。</translation>
    </message>
    <message id="487">
        <source>Password can't be empty!</source>
        <translation>密码不能为空。</translation>
    </message>
    <message id="488">
        <source>Mail Address can't be empty!</source>
        <translation>邮箱地址不能为空。</translation>
    </message>
    <message id="489">
        <source>Test mail sent success.</source>
        <translation>测试邮件发送成功。</translation>
    </message>
    <message id="490">
        <source>Test mail sent failed.</source>
        <translation>测试邮件发送失败。</translation>
    </message>
    <message id="491">
        <source>Server IP can't be empty!</source>
        <translation>服务器 IP 不能为空。</translation>
    </message>
    <message id="492">
        <source>Server Port can't be empty!</source>
        <translation>服务器端口不能为空。</translation>
    </message>
    <message id="493">
        <source>Root Path can't be empty!</source>
        <translation>根路径不能为空。</translation>
    </message>
    <message id="494">
        <source>Connecting to ftp server success.</source>
        <translation>连接 FTP 服务器成功。</translation>
    </message>
    <message id="495">
        <source>Connecting to ftp server failed.</source>
        <translation>连接 FTP 服务器失败。</translation>
    </message>
    <message id="496">
        <source>Message can't be empty!</source>
        <translation>消息不能为空。</translation>
    </message>
    <message id="497">
        <source>Sound Description can't be empty!</source>
        <translation>声音描述不能为空。</translation>
    </message>
    <message id="498">
        <source>Sound file Path can't be empty!</source>
        <translation>声音文件路径不能为空。</translation>
    </message>
    <message id="499">
        <source>Preset number select first.</source>
        <translation>请先选择预置点编号。</translation>
    </message>
    <message id="500">
        <source>The Preset Name has been used.</source>
        <translation>该预置点名称已被使用。</translation>
    </message>
    <message id="501">
        <source>Do you want to delete the selected User?</source>
        <translation>是否删除所选用户？</translation>
    </message>
    <message id="502">
        <source>Can't Delete User.</source>
        <translation>无法删除用户。</translation>
    </message>
    <message id="503">
        <source>Already Set.</source>
        <translation>已设置。</translation>
    </message>
    <message id="504">
        <source>Intelligent setting can't exceed 16</source>
        <translation>智能侦测设置不能超过 16 个。</translation>
    </message>
    <message id="505">
        <source>Add NVR failed! Please add again.</source>
        <translation>添加 NVR 失败，请重新添加。</translation>
    </message>
    <message id="506">
        <source>File Size can't more than 5MB</source>
        <translation>文件大小不能超过 5MB。</translation>
    </message>
    <message id="507">
        <source>Save OK</source>
        <translation>保存成功。</translation>
    </message>
    <message id="508">
        <source>Exit and Open MainViewer?</source>
        <translation>是否退出并打开主监控程序？</translation>
    </message>
    <message id="509">
        <source>Do you want to exit?</source>
        <translation>是否退出？</translation>
    </message>
    <message id="510">
        <source>Resolution Not Support .</source>
        <translation>不支持该分辨率。</translation>
    </message>
    <message id="511">
        <source>Do you want to Save?</source>
        <translation>是否保存？</translation>
    </message>
    <message id="512">
        <source>The Channel does not support motion detection or is no connection !</source>
        <translation>该通道不支持移动侦测或未连接。</translation>
    </message>
    <message id="513">
        <source>No setting !</source>
        <translation>无设置。</translation>
    </message>
    <message id="514">
        <source>Settings have changed , Do you want to save ?</source>
        <translation>设置已更改，是否保存？</translation>
    </message>
    <message id="515">
        <source>Not yet set of Event Action config!</source>
        <translation>尚未设置事件动作。</translation>
    </message>
    <message id="516">
        <source>Video can't connection.</source>
        <translation>无法连接视频。</translation>
    </message>
    <message id="517">
        <source>Submit</source>
        <translation>提交</translation>
    </message>
    <message id="518">
        <source>Save Setting</source>
        <translation>保存设置</translation>
    </message>
    <message id="519">
        <source>Close this window</source>
        <translation>关闭此窗口</translation>
    </message>
    <message id="520">
        <source>Preset Sequence</source>
        <translation>预置点序列</translation>
    </message>
    <message id="521">
        <source>Dwell Time:</source>
        <translation>停留时间：</translation>
    </message>
    <message id="522">
        <source>PTZ Preset</source>
        <translation>PTZ 预置点</translation>
    </message>
    <message id="523">
        <source>Preset Sequence</source>
        <translation>预置点序列</translation>
    </message>
    <message id="524">
        <source>Select a wave file</source>
        <translation>选择 WAV 声音文件</translation>
    </message>
    <message id="525">
        <source>File Name: </source>
        <translation>文件名： </translation>
    </message>
    <message id="526">
        <source>Message sent successfully!</source>
        <translation>消息发送成功。</translation>
    </message>
    <message id="527">
        <source>Sending Message fail!</source>
        <translation>消息发送失败。</translation>
    </message>
    <message id="528">
        <source>MAX Video</source>
        <translation>视频最大化</translation>
    </message>
    <message id="529">
        <source>Enable/Disable auto switch group to display videos.</source>
        <translation>启用/停用自动切换分组显示视频。</translation>
    </message>
    <message id="530">
        <source>Enable/Disable maximum video to display.</source>
        <translation>启用/停用视频最大化显示。</translation>
    </message>
    <message id="531">
        <source>Live Video</source>
        <translation>实时视频</translation>
    </message>
    <message id="532">
        <source>Do you want to cancel playback for NVR?</source>
        <translation>是否取消 NVR 的回放？</translation>
    </message>
    <message id="533">
        <source>The selected time doesn't have any recording data!</source>
        <translation>所选时间没有任何录像数据。</translation>
    </message>
    <message id="534">
        <source>Select channel you want to change and reset the relational data information?</source>
        <translation>是否更改所选通道并重置相关数据？</translation>
    </message>
    <message id="535">
        <source>This NVR cannot get group ID to playback!</source>
        <translation>该 NVR 无法获取回放所需的组 ID。</translation>
    </message>
    <message id="536">
        <source>Select the SVD has been disconnected, so close the panel and make sure that SVD status!</source>
        <translation>所选 SVD 已断开连接，请关闭面板并确认 SVD 状态。</translation>
    </message>
    <message id="550">
        <source>IP Address</source>
        <translation>IP 地址</translation>
    </message>
    <message id="551">
        <source>Http Port</source>
        <translation>HTTP 端口</translation>
    </message>
    <message id="552">
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message id="553">
        <source>NVR Name can't be empty!</source>
        <translation>NVR 名称不能为空。</translation>
    </message>
    <message id="554">
        <source>IP address or hostname set incorrectly!</source>
        <translation>IP 地址或主机名设置错误。</translation>
    </message>
    <message id="555">
        <source>NVR don't exist!</source>
        <translation>NVR 不存在。</translation>
    </message>
    <message id="556">
        <source>Port set incorrectly!</source>
        <translation>端口设置错误。</translation>
    </message>
    <message id="557">
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message id="558">
        <source>NVR select setting</source>
        <translation>NVR 选择设置</translation>
    </message>
    <message id="559">
        <source>Pattern select setting</source>
        <translation>视图选择设置</translation>
    </message>
    <message id="560">
        <source>All list</source>
        <translation>全部列表</translation>
    </message>
    <message id="561">
        <source>Selected list</source>
        <translation>已选列表</translation>
    </message>
    <message id="562">
        <source>Select item is less than 2 items, it can not be saved!</source>
        <translation>所选项目少于 2 个，无法保存。</translation>
    </message>
    <message id="563">
        <source>Functions that were originally assigned on this screen will be moved to screen #1 automatically.</source>
        <translation>原先分配到该屏幕的功能将自动移至屏幕 #1。</translation>
    </message>
    <message id="564">
        <source>Has not enough pattern can be selected!</source>
        <translation>可选择的视图不足。</translation>
    </message>
    <message id="565">
        <source>This screen has been assigned to Video Wall!</source>
        <translation>该屏幕已分配给电视墙。</translation>
    </message>
    <message id="566">
        <source>Has not enough device can be selected!</source>
        <translation>可选择的设备不足。</translation>
    </message>
    <message id="570">
        <source>Information</source>
        <translation>信息</translation>
    </message>
    <message id="571">
        <source>*Name</source>
        <translation>*名称</translation>
    </message>
    <message id="572">
        <source>*IP Address</source>
        <translation>*IP 地址</translation>
    </message>
    <message id="573">
        <source>*Http Port</source>
        <translation>*HTTP 端口</translation>
    </message>
    <message id="574">
        <source>*User</source>
        <translation>*用户</translation>
    </message>
    <message id="575">
        <source>*Password</source>
        <translation>*密码</translation>
    </message>
    <message id="576">
        <source>Detect</source>
        <translation>检测</translation>
    </message>
    <message id="577">
        <source>Device Setting</source>
        <translation>设备设置</translation>
    </message>
    <message id="578">
        <source>NO.</source>
        <translation>编号</translation>
    </message>
    <message id="579">
        <source>Camera name</source>
        <translation>摄像机名称</translation>
    </message>
    <message id="580">
        <source>Video Port</source>
        <translation>视频端口</translation>
    </message>
    <message id="581">
        <source>Format</source>
        <translation>格式</translation>
    </message>
    <message id="582">
        <source>Resolution</source>
        <translation>分辨率</translation>
    </message>
    <message id="583">
        <source>PTZ</source>
        <translation>PTZ</translation>
    </message>
    <message id="584">
        <source>Audio</source>
        <translation>音频</translation>
    </message>
    <message id="585">
        <source>Edit Camera Setting</source>
        <translation>编辑摄像机设置</translation>
    </message>
    <message id="586">
        <source>Camera No</source>
        <translation>摄像机编号</translation>
    </message>
    <message id="587">
        <source>Camera IP</source>
        <translation>摄像机 IP</translation>
    </message>
    <message id="588">
        <source>Additional Camera Information</source>
        <translation>摄像机附加信息</translation>
    </message>
    <message id="589">
        <source>Min. Bitrate</source>
        <translation>最小码率</translation>
    </message>
    <message id="590">
        <source>Max. Bitrate</source>
        <translation>最大码率</translation>
    </message>
    <message id="591">
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message id="592">
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message id="593">
        <source>NVR IP can't be empty.</source>
        <translation>NVR IP 不能为空。</translation>
    </message>
    <message id="594">
        <source>NVR Http Port can't be empty.</source>
        <translation>NVR HTTP 端口不能为空。</translation>
    </message>
    <message id="595">
        <source>NVR User can't be empty.</source>
        <translation>NVR 用户不能为空。</translation>
    </message>
    <message id="596">
        <source>NVR Password can't be empty.</source>
        <translation>NVR 密码不能为空。</translation>
    </message>
    <message id="597">
        <source>Request Time Zone ERR! Please Detect again.</source>
        <translation>获取时区错误，请重新检测。</translation>
    </message>
    <message id="598">
        <source>Please Select Brand.</source>
        <translation>请选择品牌。</translation>
    </message>
    <message id="599">
        <source>IP Timeout.</source>
        <translation>IP 连接超时。</translation>
    </message>
    <message id="600">
        <source>Quality</source>
        <translation>画质</translation>
    </message>
    <message id="601">
        <source>Bitrate</source>
        <translation>码率</translation>
    </message>
    <message id="602">
        <source>Bitrate Mode</source>
        <translation>码率模式</translation>
    </message>
    <message id="603">
        <source>CH name can't be empty!</source>
        <translation>通道名称不能为空。</translation>
    </message>
    <message id="604">
        <source>IP address can't be empty!</source>
        <translation>IP 地址不能为空。</translation>
    </message>
    <message id="605">
        <source>Http Port can't be empty!</source>
        <translation>HTTP 端口不能为空。</translation>
    </message>
    <message id="606">
        <source>User account can't be empty!</source>
        <translation>用户账号不能为空。</translation>
    </message>
    <message id="607">
        <source>Password can't be empty!</source>
        <translation>密码不能为空。</translation>
    </message>
    <message id="608">
        <source>Detection Error!</source>
        <translation>检测错误。</translation>
    </message>
    <message id="609">
        <source>No Camera or connect failed !</source>
        <translation>无摄像机或连接失败。</translation>
    </message>
    <message id="610">
        <source>This firmware version of NVR is not supported , please update newer Version.</source>
        <translation>不支持该 NVR 固件版本，请更新到较新版本。</translation>
    </message>
    <message id="611">
        <source>If you press the button, data inside NVR will be changed!</source>
        <translation>按下此按钮后，NVR 内的数据将会更改。</translation>
    </message>
    <message id="612">
        <source>Camera Search</source>
        <translation>摄像机搜索</translation>
    </message>
    <message id="613">
        <source>Brand not Support!</source>
        <translation>不支持该品牌。</translation>
    </message>
    <message id="614">
        <source>FPS</source>
        <translation>FPS</translation>
    </message>
    <message id="615">
        <source>Video Format Error!</source>
        <translation>视频格式错误。</translation>
    </message>
    <message id="616">
        <source>Camera settings have changes, please re-detect.</source>
        <translation>摄像机设置已更改，请重新检测。</translation>
    </message>
    <message id="617">
        <source>Add Camera Fail!</source>
        <translation>添加摄像机失败。</translation>
    </message>
    <message id="618">
        <source>DIS Setting</source>
        <translation>DIS 设置</translation>
    </message>
    <message id="619">
        <source>Device not supported!</source>
        <translation>不支持该设备。</translation>
    </message>
    <message id="620">
        <source>This account is already set!</source>
        <translation>该账号已设置。</translation>
    </message>
    <message id="621">
        <source>Do you want to continue edit preset point?</source>
        <translation>是否继续编辑预置点？</translation>
    </message>
    <message id="630">
        <source>Group Name</source>
        <translation>组名称</translation>
    </message>
    <message id="631">
        <source>Power Level</source>
        <translation>权限级别</translation>
    </message>
    <message id="632">
        <source>Function Permission</source>
        <translation>功能权限</translation>
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
        <translation>系统设置</translation>
    </message>
    <message id="636">
        <source>Group Setting</source>
        <translation>用户组设置</translation>
    </message>
    <message id="640">
        <source>File Size can't more than 10MB</source>
        <translation>文件大小不能超过 10MB。</translation>
    </message>
    <message id="641">
        <source>EMap Setting</source>
        <translation>电子地图设置</translation>
    </message>
    <message id="642">
        <source>*Double Click Windows to change Map images.</source>
        <translation>*双击窗口可更改地图图像。</translation>
    </message>
    <message id="643">
        <source>Select an image file</source>
        <translation>选择图像文件</translation>
    </message>
    <message id="645">
        <source>User Setting</source>
        <translation>用户设置</translation>
    </message>
    <message id="646">
        <source>Photo</source>
        <translation>照片</translation>
    </message>
    <message id="647">
        <source>(Dubble Click to Setting)</source>
        <translation>(双击进行设置)</translation>
    </message>
    <message id="648">
        <source>Check</source>
        <translation>检查</translation>
    </message>
    <message id="649">
        <source>*User Name</source>
        <translation>*用户名</translation>
    </message>
    <message id="650">
        <source>*Password Confirm</source>
        <translation>*确认密码</translation>
    </message>
    <message id="651">
        <source>*:Necessary</source>
        <translation>*：必填</translation>
    </message>
    <message id="652">
        <source>This name not yet use</source>
        <translation>该名称可以使用。</translation>
    </message>
    <message id="653">
        <source>This name in use</source>
        <translation>该名称已被使用。</translation>
    </message>
    <message id="660">
        <source>User&amp;Password</source>
        <translation>用户与密码</translation>
    </message>
    <message id="661">
        <source>User or Password is not input!</source>
        <translation>未输入用户或密码。</translation>
    </message>
    <message id="671">
        <source>DIS Service Setting</source>
        <translation>DIS 服务设置</translation>
    </message>
    <message id="672">
        <source>Account List</source>
        <translation>账号列表</translation>
    </message>
    <message id="673">
        <source>Do you want to remove this user?</source>
        <translation>是否移除该用户？</translation>
    </message>
    <message id="674">
        <source>The account has reached the upper limit, for add new account you need to remove another account.</source>
        <translation>账号数已达上限，如需添加新账号，请先移除其他账号。</translation>
    </message>
    <message id="675">
        <source>Object Loss</source>
        <translation>物品丢失</translation>
    </message>
    <message id="676">
        <source>Tripwire</source>
        <translation>绊线</translation>
    </message>
    <message id="677">
        <source>Threat</source>
        <translation>恶意破坏</translation>
    </message>
    <message id="678">
        <source>Enable</source>
        <translation>启用</translation>
    </message>
    <message id="679">
        <source>Intelligent Setting</source>
        <translation>智能侦测设置</translation>
    </message>
    <message id="680">
        <source>Intelligent detection List</source>
        <translation>智能侦测列表</translation>
    </message>
    <message id="681">
        <source>Object Loss Reset</source>
        <translation>物品丢失解除</translation>
    </message>
    <message id="682">
        <source>Threat Detection Reset</source>
        <translation>恶意破坏侦测解除</translation>
    </message>
    <message id="683">
        <source>Image Enhance</source>
        <translation>图像增强</translation>
    </message>
    <message id="684">
        <source>Port number can't accept more then 32767.</source>
        <translation>端口号不能超过 32767。</translation>
    </message>
    <message id="685">
        <source>Keep Ratio</source>
        <translation>保持比例</translation>
    </message>
    <message id="686">
        <source>Intelligent Detection</source>
        <translation>智能侦测</translation>
    </message>
    <message id="687">
        <source>OSD Size</source>
        <translation>OSD 大小</translation>
    </message>
    <message id="688">
        <source>OSD Color</source>
        <translation>OSD 颜色</translation>
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
        <translation>启动时全屏</translation>
    </message>
    <message id="693">
        <source>Startup Screen Layout</source>
        <translation>启动时的屏幕布局</translation>
    </message>
    <message id="694">
        <source>Leave to save the screen layout.</source>
        <translation>离开页面时保存屏幕布局。</translation>
    </message>
    <message id="695">
        <source>Function default start</source>
        <translation>功能默认启动</translation>
    </message>
    <message id="696">
        <source>Function assign</source>
        <translation>功能分配</translation>
    </message>
    <message id="697">
        <source>Pattern setting</source>
        <translation>视图设置</translation>
    </message>
    <message id="698">
        <source>Name can't be empty.</source>
        <translation>名称不能为空。</translation>
    </message>
    <message id="699">
        <source>Object Counting</source>
        <translation>物体计数</translation>
    </message>
    <message id="700">
        <source>Foreign Object</source>
        <translation>遗留物</translation>
    </message>
    <message id="701">
        <source>Foreign Object Reset </source>
        <translation>遗留物解除 </translation>
    </message>
    <message id="702">
        <source>Manual Recording</source>
        <translation>手动录像</translation>
    </message>
    <message id="703">
        <source>Device settings have changes, please re-detect.</source>
        <translation>设备设置已更改，请重新检测。</translation>
    </message>
    <message id="704">
        <source>English and Digit Only</source>
        <translation>仅限英文和数字</translation>
    </message>
    <message id="705">
        <source>Emap Group Assign</source>
        <translation>电子地图组分配</translation>
    </message>
    <message id="706">
        <source>Emap Group </source>
        <translation>电子地图组 </translation>
    </message>
    <message id="707">
        <source>Member:</source>
        <translation>成员：</translation>
    </message>
    <message id="708">
        <source>Emap Position Assign</source>
        <translation>电子地图位置分配</translation>
    </message>
    <message id="709">
        <source>Parent</source>
        <translation>上级</translation>
    </message>
    <message id="710">
        <source>Group Type </source>
        <translation>组类型 </translation>
    </message>
    <message id="711">
        <source>Auto Switch</source>
        <translation>自动切换</translation>
    </message>
    <message id="712">
        <source>Double-click back to previous group</source>
        <translation>双击返回上一组</translation>
    </message>
    <message id="713">
        <source>Drag and Drop to Move</source>
        <translation>拖放移动</translation>
    </message>
    <message id="714">
        <source>Do you want to delete the selected Emap Group?</source>
        <translation>是否删除所选电子地图组？</translation>
    </message>
    <message id="715">
        <source>The amount of device will be over default value!</source>
        <translation>设备数量将超过上限。</translation>
    </message>
    <message id="716">
        <source>The amount of total channels will be over default value!</source>
        <translation>通道总数将超过上限。</translation>
    </message>
    <message id="717">
        <source>Channel selection</source>
        <translation>通道选择</translation>
    </message>
    <message id="718">
        <source>Get device capability error!</source>
        <translation>获取设备能力错误。</translation>
    </message>
    <message id="719">
        <source>This device does not has any channel.</source>
        <translation>该设备没有任何通道。</translation>
    </message>
    <message id="720">
        <source>Please add channels  or  re-select the other device.</source>
        <translation>请添加通道或重新选择其他设备。</translation>
    </message>
    <message id="721">
        <source>This device does not has any channel,Do you want to remove the device?</source>
        <translation>该设备没有任何通道，是否移除该设备？</translation>
    </message>
    <message id="722">
        <source>Setting fail!</source>
        <translation>设置失败。</translation>
    </message>
    <message id="723">
        <source>Do you want to stop SEQ mode?</source>
        <translation>是否停止轮巡模式？</translation>
    </message>
    <message id="725">
        <source>Type </source>
        <translation>类型 </translation>
    </message>
    <message id="726">
        <source>No change!</source>
        <translation>无更改。</translation>
    </message>
    <message id="727">
        <source>Face Counting</source>
        <translation>人脸计数</translation>
    </message>
    <message id="728">
        <source>Unknown</source>
        <translation>未知</translation>
    </message>
    <message id="729">
        <source>Event Export</source>
        <translation>事件导出</translation>
    </message>
    <message id="730">
        <source>System Log Export</source>
        <translation>系统日志导出</translation>
    </message>
    <message id="731">
        <source>System Log</source>
        <translation>系统日志</translation>
    </message>
    <message id="732">
        <source>NVR Select</source>
        <translation>选择 NVR</translation>
    </message>
    <message id="733">
        <source>Condition</source>
        <translation>条件</translation>
    </message>
    <message id="734">
        <source>Time Range:</source>
        <translation>时间范围：</translation>
    </message>
    <message id="735">
        <source>Start Time:</source>
        <translation>开始时间：</translation>
    </message>
    <message id="736">
        <source>End Time:</source>
        <translation>结束时间：</translation>
    </message>
    <message id="737">
        <source>Event Type:</source>
        <translation>事件类型：</translation>
    </message>
    <message id="738">
        <source>User:</source>
        <translation>用户：</translation>
    </message>
    <message id="739">
        <source>Export Format:</source>
        <translation>导出格式：</translation>
    </message>
    <message id="740">
        <source>Export</source>
        <translation>导出</translation>
    </message>
    <message id="741">
        <source>You must select a path to export!</source>
        <translation>必须选择导出路径。</translation>
    </message>
    <message id="742">
        <source>Start Time must less than End time!</source>
        <translation>开始时间必须早于结束时间。</translation>
    </message>
    <message id="743">
        <source>No Event!</source>
        <translation>没有事件。</translation>
    </message>
    <message id="744">
        <source>No System Log!</source>
        <translation>没有系统日志。</translation>
    </message>
    <message id="745">
        <source>CSV Export finish!</source>
        <translation>CSV 导出完成。</translation>
    </message>
    <message id="746">
        <source>MDB Export finish!</source>
        <translation>MDB 导出完成。</translation>
    </message>
    <message id="747">
        <source>Custom</source>
        <translation>自定义</translation>
    </message>
    <message id="748">
        <source>NVR Overview</source>
        <translation>NVR 总览</translation>
    </message>
    <message id="749">
        <source>Video Wall Console</source>
        <translation>电视墙控制台</translation>
    </message>
    <message id="750">
        <source>Lock Screen </source>
        <translation>锁定屏幕 </translation>
    </message>
    <message id="751">
        <source>Unlock Screen</source>
        <translation>解锁屏幕</translation>
    </message>
    <message id="752">
        <source>Video Wall</source>
        <translation>电视墙</translation>
    </message>
    <message id="753">
        <source>Pattern List</source>
        <translation>视图列表</translation>
    </message>
    <message id="754">
        <source>SEQ List</source>
        <translation>轮巡列表</translation>
    </message>
    <message id="755">
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message id="756">
        <source>SEQ content setting</source>
        <translation>轮巡内容设置</translation>
    </message>
    <message id="757">
        <source>Max Channel</source>
        <translation>最大通道数</translation>
    </message>
    <message id="758">
        <source>Video server</source>
        <translation>视频服务器</translation>
    </message>
    <message id="759">
        <source>Support</source>
        <translation>支持</translation>
    </message>
    <message id="760">
        <source>Original View</source>
        <translation>原始画面</translation>
    </message>
    <message id="761">
        <source>Broad View</source>
        <translation>广角画面</translation>
    </message>
    <message id="762">
        <source>Quad View</source>
        <translation>四画面</translation>
    </message>
    <message id="763">
        <source>Quad and Source View</source>
        <translation>四画面与原始画面</translation>
    </message>
    <message id="764">
        <source>Double View</source>
        <translation>双画面</translation>
    </message>
    <message id="765">
        <source>Triple View</source>
        <translation>三画面</translation>
    </message>
    <message id="766">
        <source>Digital PTZ</source>
        <translation>数字 PTZ</translation>
    </message>
    <message id="767">
        <source>Lens</source>
        <translation>镜头</translation>
    </message>
    <message id="768">
        <source>It could not be opened, the insufficient number of available screens!</source>
        <translation>可用屏幕数量不足，无法打开。</translation>
    </message>
    <message id="769">
        <source>It could not be opened, The Video Wall is not enabled! </source>
        <translation>电视墙未启用，无法打开。 </translation>
    </message>
    <message id="770">
        <source>The quantity of screen is not enough! Not support!</source>
        <translation>屏幕数量不足，不支持此功能。</translation>
    </message>
    <message id="772">
        <source>Settings have changed , Please re-open MainViewer!</source>
        <translation>设置已更改，请重新打开主监控程序。</translation>
    </message>
    <message id="773">
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message id="774">
        <source>Update system log with below defined condition</source>
        <translation>按下列条件更新系统日志</translation>
    </message>
    <message id="775">
        <source>Transform recording index</source>
        <translation>转换录像索引</translation>
    </message>
    <message id="776">
        <source>Event Image Sync Setting</source>
        <translation>事件图像同步设置</translation>
    </message>
    <message id="777">
        <source>Event snapshot storage space is not enough!</source>
        <translation>事件抓图存储空间不足。</translation>
    </message>
    <message id="779">
        <source>Intelligent Mode</source>
        <translation>智能侦测模式</translation>
    </message>
    <message id="780">
        <source>Add Intelligent Setting</source>
        <translation>添加智能侦测设置</translation>
    </message>
    <message id="781">
        <source>Camera Event</source>
        <translation>摄像机事件</translation>
    </message>
    <message id="782">
        <source>ROI Setting</source>
        <translation>ROI 设置</translation>
    </message>
    <message id="783">
        <source>Trigger Mode</source>
        <translation>触发模式</translation>
    </message>
    <message id="784">
        <source>Channel Privilege</source>
        <translation>通道权限</translation>
    </message>
    <message id="785">
        <source>Group Overview</source>
        <translation>用户组总览</translation>
    </message>
    <message id="786">
        <source>User Overview</source>
        <translation>用户总览</translation>
    </message>
    <message id="787">
        <source>Event Server</source>
        <translation>事件服务器</translation>
    </message>
    <message id="788">
        <source>Trigger By</source>
        <translation>触发源</translation>
    </message>
    <message id="789">
        <source>Configuration Modify</source>
        <translation>配置修改</translation>
    </message>
    <message id="790">
        <source>Intelligent Event Trigger</source>
        <translation>智能侦测事件触发</translation>
    </message>
    <message id="791">
        <source>NVR Event Trigger</source>
        <translation>NVR 事件触发</translation>
    </message>
    <message id="792">
        <source>Trigger Action</source>
        <translation>触发动作</translation>
    </message>
    <message id="793">
        <source>Addresses: (Use ',' to separate e-mails)</source>
        <translation>地址：(请用“,”分隔邮箱)</translation>
    </message>
    <message id="794">
        <source>Content</source>
        <translation>内容</translation>
    </message>
    <message id="795">
        <source>Video Wall Layout</source>
        <translation>电视墙布局</translation>
    </message>
    <message id="796">
        <source>No Enough screen can be set!</source>
        <translation>可设置的屏幕不足。</translation>
    </message>
    <message id="797">
        <source>SVD Management</source>
        <translation>SVD 管理</translation>
    </message>
    <message id="798">
        <source>SVD Detail Setting</source>
        <translation>SVD 详细设置</translation>
    </message>
    <message id="799">
        <source>SVD Layout</source>
        <translation>SVD 布局</translation>
    </message>
    <message id="800">
        <source>SVD ID:</source>
        <translation>SVD ID：</translation>
    </message>
    <message id="801">
        <source>SVD Name:</source>
        <translation>SVD 名称：</translation>
    </message>
    <message id="802">
        <source>Display</source>
        <translation>显示输出</translation>
    </message>
    <message id="803">
        <source>Resolution</source>
        <translation>分辨率</translation>
    </message>
    <message id="804">
        <source>Priority</source>
        <translation>优先级</translation>
    </message>
    <message id="805">
        <source>Default Split</source>
        <translation>默认分割</translation>
    </message>
    <message id="806">
        <source>Default Channel List</source>
        <translation>默认通道列表</translation>
    </message>
    <message id="807">
        <source>Live Stream</source>
        <translation>实时码流</translation>
    </message>
    <message id="808">
        <source>Dynamic Streaming</source>
        <translation>动态码流</translation>
    </message>
    <message id="809">
        <source>Screen Default Layout</source>
        <translation>屏幕默认布局</translation>
    </message>
    <message id="810">
        <source>Channel list</source>
        <translation>通道列表</translation>
    </message>
    <message id="811">
        <source>Begin</source>
        <translation>开始</translation>
    </message>
    <message id="812">
        <source>Previous</source>
        <translation>上一步</translation>
    </message>
    <message id="813">
        <source>System Log Viewer</source>
        <translation>系统日志查看器</translation>
    </message>
    <message id="814">
        <source>Management </source>
        <translation>管理 </translation>
    </message>
    <message id="815">
        <source>Viewer</source>
        <translation>查看器</translation>
    </message>
    <message id="816">
        <source>Add New SVD</source>
        <translation>添加新 SVD</translation>
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
        <translation>不可用</translation>
    </message>
    <message id="821">
        <source>Invalid E-mail Address!</source>
        <translation>邮箱地址无效。</translation>
    </message>
    <message id="822">
        <source>Invalid Value!</source>
        <translation>值无效。</translation>
    </message>
    <message id="823">
        <source>Can't add repeatedly!</source>
        <translation>不能重复添加。</translation>
    </message>
    <message id="824">
        <source>Can't add SVD anymore!</source>
        <translation>无法再添加 SVD。</translation>
    </message>
    <message id="826">
        <source>Do you want to remove this SVD?</source>
        <translation>是否移除该 SVD？</translation>
    </message>
    <message id="827">
        <source>Disable this Video Wall?</source>
        <translation>是否停用该电视墙？</translation>
    </message>
    <message id="828">
        <source>Export finish!</source>
        <translation>导出完成。</translation>
    </message>
    <message id="829">
        <source>Brand:</source>
        <translation>品牌：</translation>
    </message>
    <message id="830">
        <source>Password Mask</source>
        <translation>隐藏密码</translation>
    </message>
    <message id="831">
        <source>NVR Account setting</source>
        <translation>NVR 账号设置</translation>
    </message>
    <message id="832">
        <source>No any NVR has been selected.</source>
        <translation>未选择任何 NVR。</translation>
    </message>
    <message id="833">
        <source>Detect successful!</source>
        <translation>检测成功。</translation>
    </message>
    <message id="834">
        <source>Failed configuring camera detection on channel:</source>
        <translation>以下通道的摄像机侦测配置失败：</translation>
    </message>
    <message id="835">
        <source>Trigger action has done.</source>
        <translation>触发动作已完成。</translation>
    </message>
    <message id="836">
        <source>Event server has not set.</source>
        <translation>尚未设置事件服务器。</translation>
    </message>
    <message id="837">
        <source>Privilege Setting</source>
        <translation>权限设置</translation>
    </message>
    <message id="838">
        <source>NVR Privilege Setting</source>
        <translation>NVR 权限设置</translation>
    </message>
    <message id="839">
        <source>SVD Console</source>
        <translation>SVD 控制台</translation>
    </message>
    <message id="840">
        <source>SVD Search List</source>
        <translation>SVD 搜索列表</translation>
    </message>
    <message id="841">
        <source>No Monitor connect!</source>
        <translation>未连接显示器。</translation>
    </message>
    <message id="842">
        <source>Do you want to remove this intelligent setting?</source>
        <translation>是否移除该智能侦测设置？</translation>
    </message>
    <message id="843">
        <source>Event snapshot doesn't work!</source>
        <translation>事件抓图不起作用。</translation>
    </message>
    <message id="850">
        <source>System</source>
        <translation>系统</translation>
    </message>
    <message id="851">
        <source>Intelligent</source>
        <translation>智能侦测</translation>
    </message>
    <message id="852">
        <source>User and group</source>
        <translation>用户与用户组</translation>
    </message>
    <message id="853">
        <source>Event handling</source>
        <translation>事件处理</translation>
    </message>
    <message id="854">
        <source>Event server</source>
        <translation>事件服务器</translation>
    </message>
    <message id="855">
        <source>E-Map</source>
        <translation>电子地图</translation>
    </message>
    <message id="856">
        <source>Screen layout</source>
        <translation>屏幕布局</translation>
    </message>
    <message id="857">
        <source>Startup</source>
        <translation>启动设置</translation>
    </message>
    <message id="858">
        <source>Tooling</source>
        <translation>工具</translation>
    </message>
    <message id="859">
        <source>This page is not available in this version.</source>
        <translation>此版本未提供该页面。</translation>
    </message>
    <message id="860">
        <source>Its data in the database stays as it is.</source>
        <translation>数据库中的相关数据保持不变。</translation>
    </message>
    <message id="861">
        <source>No recorder yet</source>
        <translation>尚无录像机</translation>
    </message>
    <message id="862">
        <source>Enter the address of the station's first recorder to add it.</source>
        <translation>输入本监控站第一台录像机的地址即可添加。</translation>
    </message>
    <message id="863">
        <source>Filter name, address, model…</source>
        <translation>筛选名称、地址、型号…</translation>
    </message>
    <message id="864">
        <source>Recorders of this station</source>
        <translation>本监控站的录像机</translation>
    </message>
    <message id="865">
        <source>Recorders: %1 of %2</source>
        <translation>录像机：%1 / %2</translation>
    </message>
    <message id="866">
        <source>Channels: %1 of %2</source>
        <translation>通道：%1 / %2</translation>
    </message>
    <message id="867">
        <source>No recorder matches the filter.</source>
        <translation>没有符合筛选条件的录像机。</translation>
    </message>
    <message id="868">
        <source>Unsaved changes</source>
        <translation>有未保存的更改</translation>
    </message>
    <message id="870">
        <source>Switch to dark colours</source>
        <translation>切换为深色模式</translation>
    </message>
    <message id="871">
        <source>Switch to light colours</source>
        <translation>切换为浅色模式</translation>
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
        <translation>选择</translation>
    </message>
    <message id="876">
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message id="877">
        <source>Delete</source>
        <translation>删除</translation>
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
        <translation>关闭</translation>
    </message>
    <message id="882">
        <source>Pages</source>
        <translation>页面</translation>
    </message>
    <message id="884">
        <source>Enter the address of one recorder.</source>
        <translation>输入一台录像机的地址。</translation>
    </message>
    <message id="885">
        <source>Leave both empty to try the known device accounts.</source>
        <translation>两项均留空时，将尝试已知的设备账号。</translation>
    </message>
    <message id="886">
        <source>About this installation</source>
        <translation>本机安装信息</translation>
    </message>
    <message id="887">
        <source>Show password</source>
        <translation>显示密码</translation>
    </message>
    <message id="888">
        <source>Searching…</source>
        <translation>正在搜索…</translation>
    </message>
    <message id="890">
        <source>Name and behaviour of this station</source>
        <translation>本监控站的名称与运行方式</translation>
    </message>
    <message id="892">
        <source>Recorder slot</source>
        <translation>录像机槽位</translation>
    </message>
    <message id="896">
        <source>Connected</source>
        <translation>已连接</translation>
    </message>
    <message id="898">
        <source>Product:</source>
        <translation>产品：</translation>
    </message>
    <message id="899">
        <source>Hide password</source>
        <translation>隐藏密码</translation>
    </message>
    <message id="900">
        <source>Anyone who opens Rigging Desk is its administrator, because there is no user yet.</source>
        <translation>目前还没有用户，任何打开 Rigging Desk 的人都是管理员。</translation>
    </message>
    <message id="901">
        <source>Create the first administrator</source>
        <translation>创建第一位管理员</translation>
    </message>
    <message id="902">
        <source>Not now</source>
        <translation>以后再说</translation>
    </message>
    <message id="903">
        <source>No user yet</source>
        <translation>还没有用户</translation>
    </message>
    <message id="904">
        <source>Accessible cameras</source>
        <translation>可访问的摄像机</translation>
    </message>
    <message id="905">
        <source>Who has access</source>
        <translation>有权访问的用户</translation>
    </message>
    <message id="906">
        <source>Filter channels…</source>
        <translation>筛选通道…</translation>
    </message>
    <message id="907">
        <source>Whole recorder</source>
        <translation>整台录像机</translation>
    </message>
    <message id="908">
        <source>Live</source>
        <translation>实时视频</translation>
    </message>
    <message id="909">
        <source>Live Monitor of all channels</source>
        <translation>所有通道的实时监控</translation>
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
        <translation>其他权限都需要“实时视频”权限。按空格键切换所选单元格；按 Shift+空格键选择整行，按 Ctrl+空格键选择整列。</translation>
    </message>
    <message id="913">
        <source>Administrators have every right on every channel.</source>
        <translation>管理员对所有通道拥有全部权限。</translation>
    </message>
    <message id="930">
        <source>Filter the rows found…</source>
        <translation>筛选找到的记录…</translation>
    </message>
    <message id="931">
        <source>No row matches the filter.</source>
        <translation>没有符合筛选条件的记录。</translation>
    </message>
    <message id="932">
        <source>Rows found: %1</source>
        <translation>找到的记录：%1</translation>
    </message>
    <message id="933">
        <source>The log could not be read</source>
        <translation>无法读取日志</translation>
    </message>
    <message id="934">
        <source>Copy rows</source>
        <translation>复制记录</translation>
    </message>
    <message id="935">
        <source>Open folder</source>
        <translation>打开文件夹</translation>
    </message>
    <message id="936">
        <source>Event export is not part of this version.</source>
        <translation>此版本不包含事件导出。</translation>
    </message>
    <message id="937">
        <source>Choose a period and search.</source>
        <translation>请选择时段后搜索。</translation>
    </message>
    <message id="938">
        <source>The export failed. Existing files were not changed.</source>
        <translation>导出失败。现有文件未被更改。</translation>
    </message>
    <message id="939">
        <source>First page</source>
        <translation>第一页</translation>
    </message>
    <message id="940">
        <source>Previous page</source>
        <translation>上一页</translation>
    </message>
    <message id="941">
        <source>Next page</source>
        <translation>下一页</translation>
    </message>
    <message id="942">
        <source>Last page</source>
        <translation>最后一页</translation>
    </message>
    <message id="943">
        <source>Refresh</source>
        <translation>刷新</translation>
    </message>
    <message id="945">
        <source>Log in</source>
        <translation>登录</translation>
    </message>
    <message id="946">
        <source>The reason is in the log files.</source>
        <translation>原因请见日志文件。</translation>
    </message>
    <message id="950">
        <source>Find recorders on the network.</source>
        <translation>在网络上搜索录像机。</translation>
    </message>
    <message id="951">
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message id="952">
        <source>Select all</source>
        <translation>全选</translation>
    </message>
    <message id="953">
        <source>Filter the devices found</source>
        <translation>筛选找到的设备</translation>
    </message>
    <message id="954">
        <source>No device has answered.</source>
        <translation>没有设备应答。</translation>
    </message>
    <message id="955">
        <source>Recorders with those selected: %1 of %2</source>
        <translation>录像机（含所选项）：%1 / %2</translation>
    </message>
    <message id="956">
        <source>Connection</source>
        <translation>连接</translation>
    </message>
    <message id="957">
        <source>Checking…</source>
        <translation>正在检查…</translation>
    </message>
    <message id="958">
        <source>Login refused</source>
        <translation>登录被拒绝</translation>
    </message>
    <message id="959">
        <source>No answer</source>
        <translation>无应答</translation>
    </message>
    <message id="960">
        <source>Host name not found</source>
        <translation>找不到主机名</translation>
    </message>
    <message id="961">
        <source>Connection refused</source>
        <translation>连接被拒绝</translation>
    </message>
    <message id="962">
        <source>Unexpected answer</source>
        <translation>应答异常</translation>
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
        <translation>无摄像机</translation>
    </message>
    <message id="967">
        <source>Changed in the recorder</source>
        <translation>已在录像机中更改</translation>
    </message>
    <message id="968">
        <source>Detected</source>
        <translation>已检测</translation>
    </message>
    <message id="969">
        <source>Unchanged</source>
        <translation>未更改</translation>
    </message>
    <message id="970">
        <source>Remove the camera of channel %1 from the recorder?</source>
        <translation>是否从录像机中移除通道 %1 的摄像机？</translation>
    </message>
    <message id="971">
        <source>Filter the cameras found</source>
        <translation>筛选找到的摄像机</translation>
    </message>
    <message id="972">
        <source>No camera was found.</source>
        <translation>未找到摄像机。</translation>
    </message>
    <message id="973">
        <source>The recorder sees no camera on its network. Search again, or enter an address.</source>
        <translation>录像机在其网络中未发现摄像机。请重新搜索或输入地址。</translation>
    </message>
    <message id="974">
        <source>Cameras found: %1</source>
        <translation>找到的摄像机：%1</translation>
    </message>
    <message id="975">
        <source>Asking the camera…</source>
        <translation>正在查询摄像机…</translation>
    </message>
    <message id="976">
        <source>Writing to the recorder…</source>
        <translation>正在写入录像机…</translation>
    </message>
    <message id="977">
        <source>Video source</source>
        <translation>视频源</translation>
    </message>
    <message id="978">
        <source>Detect the camera to see its video settings.</source>
        <translation>检测摄像机后可查看其视频设置。</translation>
    </message>
    <message id="979">
        <source>Fish-eye view</source>
        <translation>鱼眼视图</translation>
    </message>
    <message id="980">
        <source>The camera name must not contain a double quote (").</source>
        <translation>摄像机名称不能包含双引号（"）。</translation>
    </message>
    <message id="981">
        <source>The configuration database cannot be opened: another program holds it, or it cannot be read. Nothing has been changed. Try again?</source>
        <translation>无法打开配置数据库：其他程序正在占用它，或无法读取。未做任何更改。是否重试？</translation>
    </message>
    <message id="982">
        <source>The users could not be read from the database, so nobody can log in. Close the program that holds the database and start again. The reason is in the log files.</source>
        <translation>无法从数据库读取用户，因此无人可以登录。请关闭占用数据库的程序后重新启动。原因请见日志文件。</translation>
    </message>
    <message id="983">
        <source>These tables of the database could not be read: %1. They stay as they are. The reason is in the log files.</source>
        <translation>无法读取数据库的以下表：%1。这些表将保持不变。原因请见日志文件。</translation>
    </message>
    <message id="995">
        <source>Export</source>
        <translation>导出</translation>
    </message>
    <message id="1000">
        <source>Keys</source>
        <translation>快捷键</translation>
    </message>
    <message id="1001">
        <source>Show the keys</source>
        <translation>显示快捷键</translation>
    </message>
    <message id="1002">
        <source>Rename or edit the selected entry</source>
        <translation>重命名或编辑所选条目</translation>
    </message>
    <message id="1003">
        <source>Read the page again</source>
        <translation>重新读取页面</translation>
    </message>
    <message id="1004">
        <source>Filter the list</source>
        <translation>筛选列表</translation>
    </message>
    <message id="1005">
        <source>Go to a page</source>
        <translation>转到页面</translation>
    </message>
    <message id="1006">
        <source>Press the button or open the selected entry</source>
        <translation>按下按钮或打开所选条目</translation>
    </message>
    <message id="1007">
        <source>Remove the selected entry</source>
        <translation>移除所选条目</translation>
    </message>
    <message id="1008">
        <source>Cancel or close</source>
        <translation>取消或关闭</translation>
    </message>
    <message id="1030">
        <source>Added: %1 of %2</source>
        <translation>已添加：%1 / %2</translation>
    </message>
    <message id="1031">
        <source>Added: %1 of %2, failed: %3</source>
        <translation>已添加：%1 / %2，失败：%3</translation>
    </message>
    <message id="1032">
        <source>Recorders that were not added can be tried again with another login.</source>
        <translation>未添加的录像机可以用其他登录信息重试。</translation>
    </message>
    <message id="1033">
        <source>Try again</source>
        <translation>重试</translation>
    </message>
    <message id="1034">
        <source>Login</source>
        <translation>登录</translation>
    </message>
    <message id="1035">
        <source>Added but not saved yet: %1.
Do you want to save?</source>
        <translation>已添加但尚未保存：%1。
是否保存？</translation>
    </message>
    <message id="1036">
        <source>No recorder has been added yet. Close and lose what you entered?</source>
        <translation>尚未添加任何录像机。是否关闭并放弃已输入的内容？</translation>
    </message>
    <message id="1037">
        <source>More than one recorder would have this name: %1.
Do you want to use it anyway?</source>
        <translation>将有多台录像机使用此名称：%1。
是否仍要使用？</translation>
    </message>
    <message id="1080">
        <source>A stored password is not shown. Typing replaces it.</source>
        <translation>已保存的密码不会显示，输入即可替换。</translation>
    </message>
    <message id="1081">
        <source>Choose a group</source>
        <translation>请选择组</translation>
    </message>
    <message id="1082">
        <source>No account yet</source>
        <translation>尚无账号</translation>
    </message>
    <message id="1083">
        <source>These accounts are tried on recorders whose login is not known.</source>
        <translation>登录信息未知的录像机会逐一尝试这些账号。</translation>
    </message>
    <message id="1084">
        <source>Do you want to delete the selected account?</source>
        <translation>是否删除所选账号？</translation>
    </message>
    <message id="1085">
        <source>No camera is accessible</source>
        <translation>没有可访问的摄像机</translation>
    </message>
    <message id="1086">
        <source>Access follows from the rights of the user’s group.</source>
        <translation>访问权限取决于用户所在组的权限。</translation>
    </message>
    <message id="1087">
        <source>Open the folder?</source>
        <translation>打开文件夹？</translation>
    </message>
    <message id="1088">
        <source>Filter users…</source>
        <translation>筛选用户…</translation>
    </message>
    <message id="1089">
        <source>No user matches the filter.</source>
        <translation>没有符合筛选条件的用户。</translation>
    </message>
    <message id="1110">
        <source>Rename</source>
        <translation>重命名</translation>
    </message>
    <message id="1221">
        <source>Waiting for the picture…</source>
        <translation>正在等待画面…</translation>
    </message>
    <message id="1222">
        <source>No picture</source>
        <translation>无画面</translation>
    </message>
    <message id="1223">
        <source>Trying again…</source>
        <translation>正在重试…</translation>
    </message>
    <message id="1260">
        <source>Filter maps and cameras…</source>
        <translation>筛选地图和摄像机…</translation>
    </message>
    <message id="1261">
        <source>Cut</source>
        <translation>剪切</translation>
    </message>
    <message id="1262">
        <source>Paste</source>
        <translation>粘贴</translation>
    </message>
    <message id="1263">
        <source>Move to…</source>
        <translation>移动到…</translation>
    </message>
    <message id="1264">
        <source>A recorder's map goes under the main map or into a group.</source>
        <translation>录像机的地图应放在主地图下或组中。</translation>
    </message>
    <message id="1265">
        <source>A camera goes on the map of its own recorder or one of its sub-maps; on the main map it is taken off all maps.</source>
        <translation>摄像机应放在其录像机的地图或其子地图上；放到主地图则从所有地图上移除。</translation>
    </message>
    <message id="1266">
        <source>It is there already.</source>
        <translation>已经在那里。</translation>
    </message>
    <message id="1267">
        <source>Only recorders' maps and cameras can be moved.</source>
        <translation>只能移动录像机的地图和摄像机。</translation>
    </message>
    <message id="1268">
        <source>Move</source>
        <translation>移动</translation>
    </message>
    <message id="1269">
        <source>Show the map's picture</source>
        <translation>显示地图图片</translation>
    </message>
    <message id="1270">
        <source>No map or camera matches the filter.</source>
        <translation>没有符合筛选条件的地图或摄像机。</translation>
    </message>
    <message id="1271">
        <source>Enter a name to add a group.</source>
        <translation>输入名称以添加组。</translation>
    </message>
    <message id="1272">
        <source>Enter a name to add a sub-map. The map has the name of its recorder.</source>
        <translation>输入名称以添加子地图。地图使用录像机的名称。</translation>
    </message>
    <message id="1273">
        <source>Drag recorders' maps into the group.</source>
        <translation>将录像机的地图拖到组中。</translation>
    </message>
    <message id="1274">
        <source>Drag the camera to the map of its recorder.</source>
        <translation>将摄像机拖到其录像机的地图上。</translation>
    </message>
    <message id="1275">
        <source>Drag cameras of its recorder to the sub-map.</source>
        <translation>将其录像机的摄像机拖到子地图上。</translation>
    </message>
</context>
</TS>
