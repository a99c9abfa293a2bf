<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name></name>
    <message id="0">
        <source>English</source>
        <translation>英語</translation>
    </message>
    <message id="1">
        <source>Traditional Chinese</source>
        <translation>中国語(繁体字)</translation>
    </message>
    <message id="2">
        <source>Simplified Chinese</source>
        <translation>中国語(簡体字)</translation>
    </message>
    <message id="3">
        <source>Japanese</source>
        <translation>日本語</translation>
    </message>
    <message id="4">
        <source>Spainish</source>
        <translation>スペイン語</translation>
    </message>
    <message id="5">
        <source>CGI ID is full !</source>
        <translation>CGI IDの空きがありません。</translation>
    </message>
    <message id="6">
        <source>User Name or Password Error !</source>
        <translation>ユーザー名またはパスワードが正しくありません。</translation>
    </message>
    <message id="7">
        <source>Device Connection Error !</source>
        <translation>デバイスとの接続でエラーが発生しました。</translation>
    </message>
    <message id="8">
        <source>Device brand not supported !</source>
        <translation>このデバイスのメーカーには対応していません。</translation>
    </message>
    <message id="9">
        <source>Sending CGI failed !</source>
        <translation>CGIの送信に失敗しました。</translation>
    </message>
    <message id="10">
        <source>Program has been opened !</source>
        <translation>プログラムはすでに起動しています。</translation>
    </message>
    <message id="11">
        <source>Application of Setup has been Opening . Please turn it off !</source>
        <translation>設定プログラムが起動しています。終了してください。</translation>
    </message>
    <message id="12">
        <source>Database initialization ...</source>
        <translation>データベースを初期化しています…</translation>
    </message>
    <message id="13">
        <source>Default Data to read ...</source>
        <translation>既定のデータを読み込んでいます…</translation>
    </message>
    <message id="14">
        <source>Incorrect database version ! Do you want to reset the databse now ?</source>
        <translation>データベースのバージョンが正しくありません。今すぐデータベースをリセットしますか？</translation>
    </message>
    <message id="15">
        <source>System will not be able to continue to work .</source>
        <translation>システムは動作を継続できません。</translation>
    </message>
    <message id="16">
        <source>Update Database ...</source>
        <translation>データベースを更新しています…</translation>
    </message>
    <message id="17">
        <source>Data is loading ...</source>
        <translation>データを読み込んでいます…</translation>
    </message>
    <message id="18">
        <source>Motion Detection setting is loading...</source>
        <translation>動体検知設定を読み込んでいます…</translation>
    </message>
    <message id="19">
        <source>User Data is loading...</source>
        <translation>ユーザーデータを読み込んでいます…</translation>
    </message>
    <message id="20">
        <source>Group Data  is loading...</source>
        <translation>グループデータを読み込んでいます…</translation>
    </message>
    <message id="21">
        <source>Event setting is loading...</source>
        <translation>イベント設定を読み込んでいます…</translation>
    </message>
    <message id="22">
        <source>E-Map Data is loading ...</source>
        <translation>電子マップデータを読み込んでいます…</translation>
    </message>
    <message id="23">
        <source>Multi-Screen set up is loading ...</source>
        <translation>マルチ画面設定を読み込んでいます…</translation>
    </message>
    <message id="24">
        <source>System component registering  ...</source>
        <translation>システムコンポーネントを登録しています…</translation>
    </message>
    <message id="25">
        <source>Login Identification ...</source>
        <translation>ログインを認証しています…</translation>
    </message>
    <message id="26">
        <source>Open Login Frame ...</source>
        <translation>ログイン画面を開いています…</translation>
    </message>
    <message id="27">
        <source>Loading User's Pattern …</source>
        <translation>ユーザーパターンを読み込んでいます…</translation>
    </message>
    <message id="28">
        <source>Start Service Mode...</source>
        <translation>サービスモードを開始しています…</translation>
    </message>
    <message id="29">
        <source>Start Monitor Window ...</source>
        <translation>モニターウィンドウを起動しています…</translation>
    </message>
    <message id="30">
        <source>Start Auto Search …</source>
        <translation>自動検索を開始しています…</translation>
    </message>
    <message id="32">
        <source>Manual Startup</source>
        <translation>手動起動</translation>
    </message>
    <message id="33">
        <source>Device detect timeout !</source>
        <translation>デバイスの検出がタイムアウトしました。</translation>
    </message>
    <message id="34">
        <source>The channel of SVR has been removed. Please re-detect the SVR!</source>
        <translation>SVRのチャンネルが削除されました。SVRを再検出してください。</translation>
    </message>
    <message id="35">
        <source>Please enable SVR upnp port forwarding!</source>
        <translation>SVRのUPnPポート転送を有効にしてください。</translation>
    </message>
    <message id="36">
        <source>Video Wall Setting</source>
        <translation>ビデオウォール設定</translation>
    </message>
    <message id="37">
        <source>Video Wall display position setting</source>
        <translation>ビデオウォール表示位置設定</translation>
    </message>
    <message id="38">
        <source>Monitor</source>
        <translation>モニター</translation>
    </message>
    <message id="39">
        <source>Startup assign setting</source>
        <translation>起動時の割り当て設定</translation>
    </message>
    <message id="40">
        <source>User</source>
        <translation>ユーザー</translation>
    </message>
    <message id="41">
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message id="42">
        <source>User Field is Blank !</source>
        <translation>ユーザーが入力されていません。</translation>
    </message>
    <message id="43">
        <source>Password Field is Blank !</source>
        <translation>パスワードが入力されていません。</translation>
    </message>
    <message id="44">
        <source>Incorrect User Account or Password !</source>
        <translation>ユーザーアカウントまたはパスワードが正しくありません。</translation>
    </message>
    <message id="45">
        <source>Main Viewer</source>
        <translation>メインビューアー</translation>
    </message>
    <message id="46">
        <source>NVR Setting</source>
        <translation>NVR設定</translation>
    </message>
    <message id="47">
        <source>Event-Triggered Notification</source>
        <translation>イベントトリガー通知</translation>
    </message>
    <message id="48">
        <source>Auto Search Notice</source>
        <translation>自動検索通知</translation>
    </message>
    <message id="49">
        <source>Event Synchronization Manually Update</source>
        <translation>イベント同期の手動更新</translation>
    </message>
    <message id="50">
        <source>About</source>
        <translation>バージョン情報</translation>
    </message>
    <message id="51">
        <source>Exit</source>
        <translation>終了</translation>
    </message>
    <message id="52">
        <source>Split</source>
        <translation>分割</translation>
    </message>
    <message id="53">
        <source>Change Channel</source>
        <translation>チャンネル変更</translation>
    </message>
    <message id="54">
        <source>OSD Display</source>
        <translation>OSD表示</translation>
    </message>
    <message id="55">
        <source>CH</source>
        <translation>CH</translation>
    </message>
    <message id="56">
        <source>Path</source>
        <translation>パス</translation>
    </message>
    <message id="57">
        <source>OSD Channel</source>
        <translation>OSDチャンネル</translation>
    </message>
    <message id="58">
        <source>OSD Time</source>
        <translation>OSD時刻</translation>
    </message>
    <message id="59">
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message id="60">
        <source>Camera Event Server Setting Error!</source>
        <translation>カメラのイベントサーバー設定でエラーが発生しました。</translation>
    </message>
    <message id="61">
        <source>Snapshot Error!</source>
        <translation>スナップショットでエラーが発生しました。</translation>
    </message>
    <message id="62">
        <source>Event Notification is still ongoing.</source>
        <translation>イベント通知を処理中です。</translation>
    </message>
    <message id="63">
        <source>Do you want to exit and open rigging desk?</source>
        <translation>終了してRigging Deskを開きますか？</translation>
    </message>
    <message id="64">
        <source>Auto-Search Notice</source>
        <translation>自動検索通知</translation>
    </message>
    <message id="65">
        <source>Closing...</source>
        <translation>終了しています…</translation>
    </message>
    <message id="66">
        <source>Devcie is Found!</source>
        <translation>デバイスが見つかりました。</translation>
    </message>
    <message id="67">
        <source>Fix display mode</source>
        <translation>固定表示モード</translation>
    </message>
    <message id="68">
        <source>Video Wall default startup setting</source>
        <translation>ビデオウォールの既定起動設定</translation>
    </message>
    <message id="69">
        <source>Intelligent Overview</source>
        <translation>映像解析一覧</translation>
    </message>
    <message id="70">
        <source>Do You Want to Save Snapshot Images ?</source>
        <translation>スナップショット画像を保存しますか？</translation>
    </message>
    <message id="71">
        <source>User Name or Password error !</source>
        <translation>ユーザー名またはパスワードが正しくありません。</translation>
    </message>
    <message id="72">
        <source>Brand not supported!</source>
        <translation>このメーカーには対応していません。</translation>
    </message>
    <message id="73">
        <source>Camera not supported!</source>
        <translation>このカメラには対応していません。</translation>
    </message>
    <message id="74">
        <source>Device connection error!</source>
        <translation>デバイスとの接続でエラーが発生しました。</translation>
    </message>
    <message id="75">
        <source>Device detection timeout!</source>
        <translation>デバイスの検出がタイムアウトしました。</translation>
    </message>
    <message id="76">
        <source>Unable to connect to the server!</source>
        <translation>サーバーに接続できません。</translation>
    </message>
    <message id="77">
        <source>Service has not connect yet!</source>
        <translation>サービスに接続されていません。</translation>
    </message>
    <message id="78">
        <source>This series of device does not allow repeat add!</source>
        <translation>このシリーズのデバイスは重複して追加できません。</translation>
    </message>
    <message id="79">
        <source>SEQ by Channel</source>
        <translation>チャンネル別シーケンス</translation>
    </message>
    <message id="80">
        <source>SEQ by NVR</source>
        <translation>NVR別シーケンス</translation>
    </message>
    <message id="81">
        <source>SEQ by Pattern</source>
        <translation>パターン別シーケンス</translation>
    </message>
    <message id="82">
        <source>NVR List</source>
        <translation>NVRリスト</translation>
    </message>
    <message id="83">
        <source>Dwell time</source>
        <translation>停留時間</translation>
    </message>
    <message id="84">
        <source>SEQ function is starting, do you want to continue to start SEQ content setting, which will stop SEQ function?</source>
        <translation>シーケンスを実行中です。内容の設定に進むとシーケンスは停止します。続行しますか？</translation>
    </message>
    <message id="85">
        <source>Channel SEQ not available! Please select more than one channel when using this function.</source>
        <translation>チャンネルシーケンスは使用できません。この機能を使うにはチャンネルを2つ以上選択してください。</translation>
    </message>
    <message id="86">
        <source>NVR SEQ not available! Please select more than one NVR when using this function.</source>
        <translation>NVRシーケンスは使用できません。この機能を使うにはNVRを2台以上選択してください。</translation>
    </message>
    <message id="87">
        <source>Pattern SEQ not available! Please select more than one patterns when using this function.</source>
        <translation>パターンシーケンスは使用できません。この機能を使うにはパターンを2つ以上選択してください。</translation>
    </message>
    <message id="88">
        <source>Do you want to enable SEQ by Channel?</source>
        <translation>チャンネル別シーケンスを有効にしますか？</translation>
    </message>
    <message id="89">
        <source>Do you want to enable SEQ by NVR?</source>
        <translation>NVR別シーケンスを有効にしますか？</translation>
    </message>
    <message id="90">
        <source>Do you want to enable SEQ by Pattern?</source>
        <translation>パターン別シーケンスを有効にしますか？</translation>
    </message>
    <message id="91">
        <source>Camera event setting can't exceed 32!</source>
        <translation>カメライベント設定は32件までです。</translation>
    </message>
    <message id="92">
        <source>Please add a NVR first!</source>
        <translation>先にNVRを追加してください。</translation>
    </message>
    <message id="93">
        <source>Port number can't accept 0 or more than 65536.</source>
        <translation>ポート番号に0または65536を超える値は指定できません。</translation>
    </message>
    <message id="94">
        <source>Drive</source>
        <translation>ドライブ</translation>
    </message>
    <message id="95">
        <source>Size(GB)</source>
        <translation>容量(GB)</translation>
    </message>
    <message id="96">
        <source>Free(GB)</source>
        <translation>空き(GB)</translation>
    </message>
    <message id="97">
        <source>Usage(%)</source>
        <translation>使用率(%)</translation>
    </message>
    <message id="98">
        <source>Storage Path</source>
        <translation>保存先パス</translation>
    </message>
    <message id="99">
        <source>Select a Path</source>
        <translation>パスを選択</translation>
    </message>
    <message id="100">
        <source>Live Monitor</source>
        <translation>ライブモニター</translation>
    </message>
    <message id="101">
        <source>Event Monitor</source>
        <translation>イベントモニター</translation>
    </message>
    <message id="102">
        <source>Playback</source>
        <translation>再生</translation>
    </message>
    <message id="103">
        <source>E-MAP Monitor</source>
        <translation>電子マップモニター</translation>
    </message>
    <message id="104">
        <source>User Pattern</source>
        <translation>ユーザーパターン</translation>
    </message>
    <message id="105">
        <source>Split</source>
        <translation>分割</translation>
    </message>
    <message id="106">
        <source>Pattern Name</source>
        <translation>パターン名</translation>
    </message>
    <message id="107">
        <source>Status</source>
        <translation>状態</translation>
    </message>
    <message id="108">
        <source>Channel Status</source>
        <translation>チャンネル状態</translation>
    </message>
    <message id="109">
        <source>Network Disconnection</source>
        <translation>ネットワーク切断</translation>
    </message>
    <message id="110">
        <source>Network connection</source>
        <translation>ネットワーク接続</translation>
    </message>
    <message id="111">
        <source>Recording</source>
        <translation>録画</translation>
    </message>
    <message id="112">
        <source>Event Trigger</source>
        <translation>イベントトリガー</translation>
    </message>
    <message id="113">
        <source>Connecting</source>
        <translation>接続中</translation>
    </message>
    <message id="114">
        <source>Video Loss</source>
        <translation>ビデオロス</translation>
    </message>
    <message id="115">
        <source>SEQ Mode</source>
        <translation>シーケンスモード</translation>
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
        <translation>シーケンス内容</translation>
    </message>
    <message id="120">
        <source>SEQ ALL</source>
        <translation>全シーケンス</translation>
    </message>
    <message id="121">
        <source>SEQ</source>
        <translation>シーケンス</translation>
    </message>
    <message id="122">
        <source>Pattern SEQ</source>
        <translation>パターンシーケンス</translation>
    </message>
    <message id="123">
        <source>Service Mode</source>
        <translation>サービスモード</translation>
    </message>
    <message id="124">
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message id="125">
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message id="126">
        <source>Event Info</source>
        <translation>イベント情報</translation>
    </message>
    <message id="127">
        <source>Event</source>
        <translation>イベント</translation>
    </message>
    <message id="128">
        <source>Time</source>
        <translation>日時</translation>
    </message>
    <message id="129">
        <source>Description</source>
        <translation>説明</translation>
    </message>
    <message id="130">
        <source>System Info</source>
        <translation>システム情報</translation>
    </message>
    <message id="131">
        <source>Info</source>
        <translation>情報</translation>
    </message>
    <message id="132">
        <source>System Time:</source>
        <translation>システム日時：</translation>
    </message>
    <message id="133">
        <source>Group Level:</source>
        <translation>グループレベル：</translation>
    </message>
    <message id="134">
        <source>CPU:</source>
        <translation>CPU：</translation>
    </message>
    <message id="135">
        <source>PRESET</source>
        <translation>プリセット</translation>
    </message>
    <message id="136">
        <source>Preset:</source>
        <translation>プリセット：</translation>
    </message>
    <message id="137">
        <source>Unable to support full screen mode or to change split mode under SEQ mode.</source>
        <translation>シーケンスモードでは全画面表示も分割モードの変更もできません。</translation>
    </message>
    <message id="138">
        <source>Full screen is running. close it first!</source>
        <translation>全画面表示を実行中です。先に閉じてください。</translation>
    </message>
    <message id="139">
        <source>Unauthorised</source>
        <translation>権限なし</translation>
    </message>
    <message id="140">
        <source>Select a channel first.</source>
        <translation>先にチャンネルを選択してください。</translation>
    </message>
    <message id="141">
        <source>Name Repeat!</source>
        <translation>名前が重複しています。</translation>
    </message>
    <message id="142">
        <source>MENU</source>
        <translation>メニュー</translation>
    </message>
    <message id="143">
        <source>TREE</source>
        <translation>ツリー</translation>
    </message>
    <message id="144">
        <source>PATTERN</source>
        <translation>パターン</translation>
    </message>
    <message id="145">
        <source>STATUS</source>
        <translation>状態</translation>
    </message>
    <message id="146">
        <source>SEQ</source>
        <translation>シーケンス</translation>
    </message>
    <message id="147">
        <source>SYSTEM</source>
        <translation>システム</translation>
    </message>
    <message id="148">
        <source>CH:</source>
        <translation>CH：</translation>
    </message>
    <message id="149">
        <source>Reconnection</source>
        <translation>再接続</translation>
    </message>
    <message id="150">
        <source>Audio</source>
        <translation>音声</translation>
    </message>
    <message id="151">
        <source>Display Image of Motion Detection </source>
        <translation>動体検知の映像を表示 </translation>
    </message>
    <message id="152">
        <source>Snapshot</source>
        <translation>スナップショット</translation>
    </message>
    <message id="153">
        <source>Preset Point Setting</source>
        <translation>プリセット設定</translation>
    </message>
    <message id="154">
        <source>When modify setting, the channel of pattern will be changed.</source>
        <translation>設定を変更すると、パターンのチャンネルが変わります。</translation>
    </message>
    <message id="155">
        <source>Snapshot fail !</source>
        <translation>スナップショットに失敗しました。</translation>
    </message>
    <message id="156">
        <source>Preset Patrol:</source>
        <translation>プリセット巡回：</translation>
    </message>
    <message id="157">
        <source>Loading Fullscreen layout data…</source>
        <translation>全画面レイアウトデータを読み込んでいます…</translation>
    </message>
    <message id="158">
        <source>Dock</source>
        <translation>ドッキング</translation>
    </message>
    <message id="159">
        <source>Control Panel</source>
        <translation>操作パネル</translation>
    </message>
    <message id="160">
        <source>Name:</source>
        <translation>名前：</translation>
    </message>
    <message id="161">
        <source>Channel:</source>
        <translation>チャンネル：</translation>
    </message>
    <message id="162">
        <source>CH Name:</source>
        <translation>CH名：</translation>
    </message>
    <message id="163">
        <source>Event Mode:</source>
        <translation>イベントの種類：</translation>
    </message>
    <message id="164">
        <source>Event Trigger Time:</source>
        <translation>イベント発生日時：</translation>
    </message>
    <message id="165">
        <source>Contact:</source>
        <translation>連絡先：</translation>
    </message>
    <message id="166">
        <source>Phone:</source>
        <translation>電話番号：</translation>
    </message>
    <message id="167">
        <source>Play Time(SYSTEM):</source>
        <translation>再生日時(システム)：</translation>
    </message>
    <message id="168">
        <source>Current Event List</source>
        <translation>現在のイベントリスト</translation>
    </message>
    <message id="169">
        <source>Log Event List</source>
        <translation>イベント履歴リスト</translation>
    </message>
    <message id="170">
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message id="171">
        <source>Search All</source>
        <translation>すべて検索</translation>
    </message>
    <message id="172">
        <source>Search Start Time</source>
        <translation>検索開始日時</translation>
    </message>
    <message id="173">
        <source>Search by Event type</source>
        <translation>イベントの種類で検索</translation>
    </message>
    <message id="174">
        <source>Item</source>
        <translation>項目</translation>
    </message>
    <message id="175">
        <source>Event ID</source>
        <translation>イベントID</translation>
    </message>
    <message id="176">
        <source>Time</source>
        <translation>日時</translation>
    </message>
    <message id="177">
        <source>System Time</source>
        <translation>システム日時</translation>
    </message>
    <message id="178">
        <source>NO.</source>
        <translation>No.</translation>
    </message>
    <message id="179">
        <source>CH</source>
        <translation>CH</translation>
    </message>
    <message id="180">
        <source>Event Mode</source>
        <translation>イベントの種類</translation>
    </message>
    <message id="181">
        <source>Process</source>
        <translation>処理</translation>
    </message>
    <message id="182">
        <source>On-Line</source>
        <translation>オンライン</translation>
    </message>
    <message id="183">
        <source>Channel Name</source>
        <translation>チャンネル名</translation>
    </message>
    <message id="184">
        <source>Channel Detail</source>
        <translation>チャンネル詳細</translation>
    </message>
    <message id="185">
        <source>Play Error</source>
        <translation>再生エラー</translation>
    </message>
    <message id="186">
        <source>Play Stop</source>
        <translation>再生停止</translation>
    </message>
    <message id="187">
        <source>Live Video</source>
        <translation>ライブ映像</translation>
    </message>
    <message id="188">
        <source>Live Stop</source>
        <translation>ライブ停止</translation>
    </message>
    <message id="189">
        <source>Off Line</source>
        <translation>オフライン</translation>
    </message>
    <message id="190">
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message id="191">
        <source>Motion</source>
        <translation>動体検知</translation>
    </message>
    <message id="192">
        <source>Sensor</source>
        <translation>センサー</translation>
    </message>
    <message id="193">
        <source>Return message: </source>
        <translation>応答メッセージ： </translation>
    </message>
    <message id="194">
        <source>NVR no playback resource!</source>
        <translation>NVRに再生リソースがありません。</translation>
    </message>
    <message id="195">
        <source>Playback request failed!</source>
        <translation>再生要求に失敗しました。</translation>
    </message>
    <message id="196">
        <source>Reset Event List</source>
        <translation>イベントリストをリセット</translation>
    </message>
    <message id="197">
        <source>X</source>
        <translation>X</translation>
    </message>
    <message id="198">
        <source>Return</source>
        <translation>戻る</translation>
    </message>
    <message id="199">
        <source>SEQ Duration Time</source>
        <translation>シーケンス継続時間</translation>
    </message>
    <message id="200">
        <source>Playback Info</source>
        <translation>再生情報</translation>
    </message>
    <message id="201">
        <source>NVR:</source>
        <translation>NVR：</translation>
    </message>
    <message id="202">
        <source>CH:</source>
        <translation>CH：</translation>
    </message>
    <message id="203">
        <source>Speed:</source>
        <translation>速度：</translation>
    </message>
    <message id="204">
        <source>Sun</source>
        <translation>日</translation>
    </message>
    <message id="205">
        <source>Mon</source>
        <translation>月</translation>
    </message>
    <message id="206">
        <source>Tue</source>
        <translation>火</translation>
    </message>
    <message id="207">
        <source>Wed</source>
        <translation>水</translation>
    </message>
    <message id="208">
        <source>Thu</source>
        <translation>木</translation>
    </message>
    <message id="209">
        <source>Fri</source>
        <translation>金</translation>
    </message>
    <message id="210">
        <source>Sat</source>
        <translation>土</translation>
    </message>
    <message id="211">
        <source>Event List</source>
        <translation>イベントリスト</translation>
    </message>
    <message id="212">
        <source>Receiving recording data failed</source>
        <translation>録画データの受信に失敗しました。</translation>
    </message>
    <message id="213">
        <source>RF</source>
        <translation>早戻し</translation>
    </message>
    <message id="214">
        <source>STOP</source>
        <translation>停止</translation>
    </message>
    <message id="215">
        <source>PLAY</source>
        <translation>再生</translation>
    </message>
    <message id="216">
        <source>PAUSE</source>
        <translation>一時停止</translation>
    </message>
    <message id="217">
        <source>FF</source>
        <translation>早送り</translation>
    </message>
    <message id="218">
        <source>NEXT</source>
        <translation>次へ</translation>
    </message>
    <message id="219">
        <source>No recording data can be Displayed !</source>
        <translation>表示できる録画データがありません。</translation>
    </message>
    <message id="220">
        <source>Play Stop ! Need to select new time.</source>
        <translation>再生が停止しました。別の日時を選択してください。</translation>
    </message>
    <message id="221">
        <source>No response! you can try again or select another device !</source>
        <translation>応答がありません。再試行するか、別のデバイスを選択してください。</translation>
    </message>
    <message id="222">
        <source>Disconnection ! </source>
        <translation>切断されました。 </translation>
    </message>
    <message id="223">
        <source>Can not get video stream ! please select other Channel.</source>
        <translation>映像ストリームを取得できません。別のチャンネルを選択してください。</translation>
    </message>
    <message id="224">
        <source>No recording data.</source>
        <translation>録画データがありません。</translation>
    </message>
    <message id="225">
        <source>Recording data is updating, please wait .</source>
        <translation>録画データを更新しています。お待ちください。</translation>
    </message>
    <message id="226">
        <source>Convert to AVI</source>
        <translation>AVIに変換</translation>
    </message>
    <message id="227">
        <source>Do you want to stop the conversion of avi file ?</source>
        <translation>AVIファイルの変換を停止しますか？</translation>
    </message>
    <message id="228">
        <source>AVI file conversion complete! File is... </source>
        <translation>AVIファイルの変換が完了しました。ファイルは… </translation>
    </message>
    <message id="229">
        <source>Converting AVI file!</source>
        <translation>AVIファイルを変換しています。</translation>
    </message>
    <message id="230">
        <source>AVI Conversion Fail !</source>
        <translation>AVI変換に失敗しました。</translation>
    </message>
    <message id="231">
        <source>Auto Pan:</source>
        <translation>オートパン：</translation>
    </message>
    <message id="232">
        <source>Single Video</source>
        <translation>1画面</translation>
    </message>
    <message id="233">
        <source>Quad Videos</source>
        <translation>4画面</translation>
    </message>
    <message id="234">
        <source>Nine Videos</source>
        <translation>9画面</translation>
    </message>
    <message id="235">
        <source>No any SVD has been set, you need to add any SVD to control!</source>
        <translation>SVDが設定されていません。操作するSVDを追加してください。</translation>
    </message>
    <message id="236">
        <source>This channel has been set to display in this screen!</source>
        <translation>このチャンネルはすでにこの画面に表示するよう設定されています。</translation>
    </message>
    <message id="237">
        <source>Are you sure to exit SVD console monitor?</source>
        <translation>SVDコンソールモニターを終了しますか？</translation>
    </message>
    <message id="238">
        <source>Click here to reconnect again!</source>
        <translation>ここをクリックすると再接続します。</translation>
    </message>
    <message id="239">
        <source>SVD UI is changing…</source>
        <translation>SVDの操作画面を切り替えています…</translation>
    </message>
    <message id="240">
        <source>NO.:</source>
        <translation>No.：</translation>
    </message>
    <message id="241">
        <source>Name:</source>
        <translation>名前：</translation>
    </message>
    <message id="242">
        <source>Number of Camera:</source>
        <translation>カメラ台数：</translation>
    </message>
    <message id="243">
        <source>Event:</source>
        <translation>イベント：</translation>
    </message>
    <message id="244">
        <source>No Event</source>
        <translation>イベントなし</translation>
    </message>
    <message id="245">
        <source>CH:</source>
        <translation>CH：</translation>
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
        <translation>ホーム</translation>
    </message>
    <message id="255">
        <source>Zoom In</source>
        <translation>ズームイン</translation>
    </message>
    <message id="256">
        <source>Zoom Out</source>
        <translation>ズームアウト</translation>
    </message>
    <message id="257">
        <source>Focus Far</source>
        <translation>フォーカス遠</translation>
    </message>
    <message id="258">
        <source>Focus Near</source>
        <translation>フォーカス近</translation>
    </message>
    <message id="259">
        <source>Auto Focus</source>
        <translation>オートフォーカス</translation>
    </message>
    <message id="260">
        <source>IRIS Auto</source>
        <translation>アイリス自動</translation>
    </message>
    <message id="261">
        <source>IRIS Close</source>
        <translation>アイリス閉</translation>
    </message>
    <message id="262">
        <source>IRIS Open</source>
        <translation>アイリス開</translation>
    </message>
    <message id="263">
        <source>Auto Pan Left</source>
        <translation>オートパン左</translation>
    </message>
    <message id="264">
        <source>Auto Pan Right</source>
        <translation>オートパン右</translation>
    </message>
    <message id="265">
        <source>Auto Pan Stop</source>
        <translation>オートパン停止</translation>
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
        <translation>全チャンネルにOSDを表示</translation>
    </message>
    <message id="269">
        <source>Display OSD</source>
        <translation>OSDを表示</translation>
    </message>
    <message id="270">
        <source>Detail Export:</source>
        <translation>詳細エクスポート：</translation>
    </message>
    <message id="271">
        <source>Valid Ch</source>
        <translation>有効CH</translation>
    </message>
    <message id="272">
        <source>Auto Search</source>
        <translation>自動検索</translation>
    </message>
    <message id="273">
        <source>Manual Detection</source>
        <translation>手動検出</translation>
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
        <translation>HTTPポート：</translation>
    </message>
    <message id="277">
        <source>Next</source>
        <translation>次へ</translation>
    </message>
    <message id="278">
        <source>Device Name</source>
        <translation>デバイス名</translation>
    </message>
    <message id="279">
        <source>All</source>
        <translation>すべて</translation>
    </message>
    <message id="280">
        <source>CHs</source>
        <translation>CH数</translation>
    </message>
    <message id="281">
        <source>Model:</source>
        <translation>型番：</translation>
    </message>
    <message id="282">
        <source>Max Channel:</source>
        <translation>最大CH数：</translation>
    </message>
    <message id="283">
        <source>NVR Name:</source>
        <translation>NVR名：</translation>
    </message>
    <message id="284">
        <source>Version:</source>
        <translation>バージョン：</translation>
    </message>
    <message id="285">
        <source>Valid Channel:</source>
        <translation>有効チャンネル：</translation>
    </message>
    <message id="286">
        <source>Sync With NVR</source>
        <translation>NVRと同期</translation>
    </message>
    <message id="287">
        <source>Add New NVR </source>
        <translation>NVRの新規追加 </translation>
    </message>
    <message id="288">
        <source>NVR Search List</source>
        <translation>NVR検索リスト</translation>
    </message>
    <message id="289">
        <source>NVR Detect Status</source>
        <translation>NVR検出状態</translation>
    </message>
    <message id="290">
        <source>NVR Detail Setting</source>
        <translation>NVR詳細設定</translation>
    </message>
    <message id="291">
        <source>NVR Channel Setting</source>
        <translation>NVRチャンネル設定</translation>
    </message>
    <message id="292">
        <source>Preset Sequence Setting</source>
        <translation>プリセットシーケンス設定</translation>
    </message>
    <message id="293">
        <source>Get Capability...</source>
        <translation>機能情報を取得しています…</translation>
    </message>
    <message id="294">
        <source>Get Channel Info...</source>
        <translation>チャンネル情報を取得しています…</translation>
    </message>
    <message id="295">
        <source>Get NVR Info...</source>
        <translation>NVR情報を取得しています…</translation>
    </message>
    <message id="296">
        <source>Initial NVR Value...</source>
        <translation>NVRの値を初期化しています…</translation>
    </message>
    <message id="297">
        <source>Add Success!</source>
        <translation>追加しました。</translation>
    </message>
    <message id="298">
        <source>Channel List</source>
        <translation>チャンネルリスト</translation>
    </message>
    <message id="299">
        <source>Split:</source>
        <translation>分割：</translation>
    </message>
    <message id="300">
        <source>MainViewer opened. Close it First!</source>
        <translation>メインビューアーが起動しています。先に終了してください。</translation>
    </message>
    <message id="301">
        <source>System &amp; Setting</source>
        <translation>システムと設定</translation>
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
        <translation>PTZ設定</translation>
    </message>
    <message id="305">
        <source>Motion Setting</source>
        <translation>動体検知設定</translation>
    </message>
    <message id="306">
        <source>Motion Setting</source>
        <translation>動体検知設定</translation>
    </message>
    <message id="307">
        <source>General Setting Overview</source>
        <translation>一般設定一覧</translation>
    </message>
    <message id="308">
        <source>Group/User Config</source>
        <translation>グループ/ユーザー設定</translation>
    </message>
    <message id="309">
        <source>Event Handling Config</source>
        <translation>イベント処理設定</translation>
    </message>
    <message id="310">
        <source>E-Map Config</source>
        <translation>電子マップ設定</translation>
    </message>
    <message id="311">
        <source>Screen Layout Config</source>
        <translation>画面レイアウト設定</translation>
    </message>
    <message id="312">
        <source>Event Action Overview</source>
        <translation>イベント動作一覧</translation>
    </message>
    <message id="313">
        <source>Mail Config</source>
        <translation>メール設定</translation>
    </message>
    <message id="314">
        <source>FTP Config</source>
        <translation>FTP設定</translation>
    </message>
    <message id="315">
        <source>Message Config</source>
        <translation>メッセージ設定</translation>
    </message>
    <message id="316">
        <source>Sound Config</source>
        <translation>サウンド設定</translation>
    </message>
    <message id="317">
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message id="318">
        <source>Main Viewer</source>
        <translation>メインビューアー</translation>
    </message>
    <message id="319">
        <source>Exit</source>
        <translation>終了</translation>
    </message>
    <message id="320">
        <source>Setup</source>
        <translation>設定</translation>
    </message>
    <message id="321">
        <source>SEQ Control</source>
        <translation>シーケンス操作</translation>
    </message>
    <message id="322">
        <source>Pattern Name:</source>
        <translation>パターン名：</translation>
    </message>
    <message id="323">
        <source>Do you continue to delete this pattern?</source>
        <translation>このパターンを削除しますか？</translation>
    </message>
    <message id="324">
        <source>Pattern List Overview</source>
        <translation>パターン一覧</translation>
    </message>
    <message id="325">
        <source>Name or Channel list need to be set!</source>
        <translation>名前またはチャンネルリストを設定してください。</translation>
    </message>
    <message id="326">
        <source>Live Monitor SEQ and full screen can not be opened at the same time.</source>
        <translation>ライブモニターのシーケンスと全画面は同時に開けません。</translation>
    </message>
    <message id="327">
        <source>No channel is selected!</source>
        <translation>チャンネルが選択されていません。</translation>
    </message>
    <message id="328">
        <source>Select time is out of data range!</source>
        <translation>選択した日時はデータの範囲外です。</translation>
    </message>
    <message id="329">
        <source>NVR is invalid!</source>
        <translation>NVRが無効です。</translation>
    </message>
    <message id="330">
        <source>System Setting</source>
        <translation>システム設定</translation>
    </message>
    <message id="331">
        <source>Application name:</source>
        <translation>アプリケーション名：</translation>
    </message>
    <message id="332">
        <source>Version:</source>
        <translation>バージョン：</translation>
    </message>
    <message id="333">
        <source>Language:</source>
        <translation>言語：</translation>
    </message>
    <message id="334">
        <source>Start Up:</source>
        <translation>スタートアップ：</translation>
    </message>
    <message id="335">
        <source>Event Sync Time:</source>
        <translation>イベント同期時間：</translation>
    </message>
    <message id="336">
        <source>Snapshot Count:</source>
        <translation>スナップショット枚数：</translation>
    </message>
    <message id="337">
        <source>Camera Event Server Setting</source>
        <translation>カメライベントサーバー設定</translation>
    </message>
    <message id="338">
        <source>Account:</source>
        <translation>アカウント：</translation>
    </message>
    <message id="339">
        <source>Password:</source>
        <translation>パスワード：</translation>
    </message>
    <message id="340">
        <source>Port:</source>
        <translation>ポート：</translation>
    </message>
    <message id="341">
        <source>System Info</source>
        <translation>システム情報</translation>
    </message>
    <message id="343">
        <source>OS:</source>
        <translation>OS：</translation>
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
        <translation>コンピューター名：</translation>
    </message>
    <message id="347">
        <source>Total space of HD:</source>
        <translation>ディスク総容量：</translation>
    </message>
    <message id="348">
        <source>Network Connect Status:</source>
        <translation>ネットワーク接続状態：</translation>
    </message>
    <message id="349">
        <source>System Time:</source>
        <translation>システム日時：</translation>
    </message>
    <message id="350">
        <source>Screen Count:</source>
        <translation>画面数：</translation>
    </message>
    <message id="351">
        <source>CPU Performance:</source>
        <translation>CPUパフォーマンス：</translation>
    </message>
    <message id="352">
        <source>Login Windows then Auto Start up </source>
        <translation>Windowsログイン後に自動起動 </translation>
    </message>
    <message id="353">
        <source>Start in background</source>
        <translation>バックグラウンドで起動</translation>
    </message>
    <message id="354">
        <source>Minute</source>
        <translation>分</translation>
    </message>
    <message id="356">
        <source>NVR is connecting, wait a moment and start again!</source>
        <translation>NVRに接続中です。しばらくしてから再度開始してください。</translation>
    </message>
    <message id="357">
        <source>NVR is offline, please choose another NVR or confirm this NVR connection status!</source>
        <translation>NVRがオフラインです。別のNVRを選択するか、このNVRの接続状態を確認してください。</translation>
    </message>
    <message id="358">
        <source>Output device has been removed!</source>
        <translation>出力デバイスが取り外されました。</translation>
    </message>
    <message id="359">
        <source>Password confirm inconsistency, Please check again!</source>
        <translation>確認用パスワードが一致しません。もう一度確認してください。</translation>
    </message>
    <message id="360">
        <source>List:</source>
        <translation>リスト：</translation>
    </message>
    <message id="361">
        <source>NVR</source>
        <translation>NVR</translation>
    </message>
    <message id="362">
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message id="363">
        <source>IP</source>
        <translation>IP</translation>
    </message>
    <message id="364">
        <source>Port</source>
        <translation>ポート</translation>
    </message>
    <message id="365">
        <source>Power</source>
        <translation>権限</translation>
    </message>
    <message id="366">
        <source>CH</source>
        <translation>CH</translation>
    </message>
    <message id="367">
        <source>CH Name</source>
        <translation>CH名</translation>
    </message>
    <message id="368">
        <source>CH IP</source>
        <translation>CHのIP</translation>
    </message>
    <message id="369">
        <source>CH Port</source>
        <translation>CHポート</translation>
    </message>
    <message id="370">
        <source>CH Brand</source>
        <translation>CHメーカー</translation>
    </message>
    <message id="371">
        <source>Video Format</source>
        <translation>映像フォーマット</translation>
    </message>
    <message id="372">
        <source>Video RES</source>
        <translation>映像解像度</translation>
    </message>
    <message id="373">
        <source>MD Enable</source>
        <translation>動体検知有効</translation>
    </message>
    <message id="374">
        <source>MD Sen</source>
        <translation>検知感度</translation>
    </message>
    <message id="375">
        <source>CH PTZ</source>
        <translation>CHのPTZ</translation>
    </message>
    <message id="376">
        <source>CH audio</source>
        <translation>CH音声</translation>
    </message>
    <message id="377">
        <source>Detect List</source>
        <translation>検出リスト</translation>
    </message>
    <message id="378">
        <source>Advance Control </source>
        <translation>高度な制御 </translation>
    </message>
    <message id="379">
        <source>IP</source>
        <translation>IP</translation>
    </message>
    <message id="380">
        <source>Port</source>
        <translation>ポート</translation>
    </message>
    <message id="381">
        <source>Brand</source>
        <translation>メーカー</translation>
    </message>
    <message id="382">
        <source>Model</source>
        <translation>型番</translation>
    </message>
    <message id="383">
        <source>MAC</source>
        <translation>MAC</translation>
    </message>
    <message id="384">
        <source>Detect Time</source>
        <translation>検出日時</translation>
    </message>
    <message id="385">
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message id="386">
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message id="387">
        <source>Modify</source>
        <translation>変更</translation>
    </message>
    <message id="388">
        <source>Reconection </source>
        <translation>再接続 </translation>
    </message>
    <message id="389">
        <source>Open Browser</source>
        <translation>ブラウザーを開く</translation>
    </message>
    <message id="390">
        <source>Preset Info</source>
        <translation>プリセット情報</translation>
    </message>
    <message id="391">
        <source>Sync</source>
        <translation>同期</translation>
    </message>
    <message id="392">
        <source>Edit Preset</source>
        <translation>プリセット編集</translation>
    </message>
    <message id="393">
        <source>Preset No</source>
        <translation>プリセット番号</translation>
    </message>
    <message id="394">
        <source>Preset Name</source>
        <translation>プリセット名</translation>
    </message>
    <message id="395">
        <source>PTZ Control</source>
        <translation>PTZ操作</translation>
    </message>
    <message id="396">
        <source>Submit</source>
        <translation>確定</translation>
    </message>
    <message id="397">
        <source>Motion Detect List:</source>
        <translation>動体検知リスト：</translation>
    </message>
    <message id="398">
        <source>Sensitivity:</source>
        <translation>感度：</translation>
    </message>
    <message id="399">
        <source>Motion Detect Setting</source>
        <translation>動体検知設定</translation>
    </message>
    <message id="400">
        <source>*Use Mouse drag the Device item into Intelligent detection List.</source>
        <translation>*デバイス項目をマウスで映像解析リストにドラッグします。</translation>
    </message>
    <message id="401">
        <source>Device List:</source>
        <translation>デバイスリスト：</translation>
    </message>
    <message id="402">
        <source>Trigger for Motion Detect</source>
        <translation>動体検知トリガー</translation>
    </message>
    <message id="403">
        <source>Status</source>
        <translation>状態</translation>
    </message>
    <message id="404">
        <source>Motion Enable List:</source>
        <translation>動体検知有効リスト：</translation>
    </message>
    <message id="405">
        <source>Clear All</source>
        <translation>すべてクリア</translation>
    </message>
    <message id="406">
        <source>Select All</source>
        <translation>すべて選択</translation>
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
        <translation>ユーザーリスト：</translation>
    </message>
    <message id="412">
        <source>Group List:</source>
        <translation>グループリスト：</translation>
    </message>
    <message id="413">
        <source>Event Setting List:</source>
        <translation>イベント設定リスト：</translation>
    </message>
    <message id="414">
        <source>EMap List:</source>
        <translation>電子マップリスト：</translation>
    </message>
    <message id="415">
        <source>Screen List:</source>
        <translation>画面リスト：</translation>
    </message>
    <message id="416">
        <source>Account</source>
        <translation>アカウント</translation>
    </message>
    <message id="417">
        <source>Company</source>
        <translation>会社</translation>
    </message>
    <message id="418">
        <source>Telephone</source>
        <translation>電話番号</translation>
    </message>
    <message id="419">
        <source>Mail 1</source>
        <translation>メール1</translation>
    </message>
    <message id="420">
        <source>Mail 2</source>
        <translation>メール2</translation>
    </message>
    <message id="421">
        <source>Cell Phone</source>
        <translation>携帯電話</translation>
    </message>
    <message id="422">
        <source>Photo Path</source>
        <translation>写真のパス</translation>
    </message>
    <message id="423">
        <source>Group</source>
        <translation>グループ</translation>
    </message>
    <message id="424">
        <source>Event</source>
        <translation>イベント</translation>
    </message>
    <message id="425">
        <source>Mail</source>
        <translation>メール</translation>
    </message>
    <message id="426">
        <source>FTP</source>
        <translation>FTP</translation>
    </message>
    <message id="427">
        <source>Msg</source>
        <translation>メッセージ</translation>
    </message>
    <message id="428">
        <source>Sound</source>
        <translation>サウンド</translation>
    </message>
    <message id="429">
        <source>Video Power</source>
        <translation>映像権限</translation>
    </message>
    <message id="430">
        <source>Playback</source>
        <translation>再生</translation>
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
        <translation>マップ</translation>
    </message>
    <message id="434">
        <source>Path</source>
        <translation>パス</translation>
    </message>
    <message id="435">
        <source>Function</source>
        <translation>機能</translation>
    </message>
    <message id="436">
        <source>Screen</source>
        <translation>画面</translation>
    </message>
    <message id="437">
        <source>MainMap</source>
        <translation>メインマップ</translation>
    </message>
    <message id="438">
        <source>FullScreen</source>
        <translation>全画面</translation>
    </message>
    <message id="439">
        <source>FullScreen2</source>
        <translation>全画面2</translation>
    </message>
    <message id="440">
        <source>User Detail List</source>
        <translation>ユーザー詳細リスト</translation>
    </message>
    <message id="441">
        <source>Group List</source>
        <translation>グループリスト</translation>
    </message>
    <message id="442">
        <source>Add User</source>
        <translation>ユーザー追加</translation>
    </message>
    <message id="443">
        <source>Remove User</source>
        <translation>ユーザー削除</translation>
    </message>
    <message id="444">
        <source>Modify User</source>
        <translation>ユーザー変更</translation>
    </message>
    <message id="445">
        <source>Modify Group</source>
        <translation>グループ変更</translation>
    </message>
    <message id="446">
        <source>System Event Trigger Action</source>
        <translation>システムイベントのトリガー動作</translation>
    </message>
    <message id="447">
        <source>NVR Event Trigger Action</source>
        <translation>NVRイベントのトリガー動作</translation>
    </message>
    <message id="448">
        <source>System Start/Stop</source>
        <translation>システム起動/停止</translation>
    </message>
    <message id="449">
        <source>Modify Setting of System</source>
        <translation>システム設定の変更</translation>
    </message>
    <message id="450">
        <source>Modify Setting of NVR</source>
        <translation>NVR設定の変更</translation>
    </message>
    <message id="451">
        <source>Modify Setting of Intelligent detection</source>
        <translation>映像解析設定の変更</translation>
    </message>
    <message id="452">
        <source>Modify Setting of General</source>
        <translation>一般設定の変更</translation>
    </message>
    <message id="453">
        <source>Modify Setting of Event</source>
        <translation>イベント設定の変更</translation>
    </message>
    <message id="454">
        <source>E1:Motion Detect</source>
        <translation>E1：動体検知</translation>
    </message>
    <message id="455">
        <source>Sensor Detection</source>
        <translation>センサー検知</translation>
    </message>
    <message id="456">
        <source>*Double Click Map to Setting</source>
        <translation>*マップをダブルクリックして設定</translation>
    </message>
    <message id="457">
        <source>SubMap</source>
        <translation>サブマップ</translation>
    </message>
    <message id="458">
        <source>Screen Layout</source>
        <translation>画面レイアウト</translation>
    </message>
    <message id="459">
        <source>Mail</source>
        <translation>メール</translation>
    </message>
    <message id="460">
        <source>FTP</source>
        <translation>FTP</translation>
    </message>
    <message id="461">
        <source>Message</source>
        <translation>メッセージ</translation>
    </message>
    <message id="462">
        <source>Sound</source>
        <translation>サウンド</translation>
    </message>
    <message id="463">
        <source>Sender E-mail Address</source>
        <translation>送信者メールアドレス</translation>
    </message>
    <message id="464">
        <source>Mail Server</source>
        <translation>メールサーバー</translation>
    </message>
    <message id="465">
        <source>User</source>
        <translation>ユーザー</translation>
    </message>
    <message id="466">
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message id="467">
        <source>Adressee Name</source>
        <translation>宛先名</translation>
    </message>
    <message id="468">
        <source>Mail Addrrss</source>
        <translation>メールアドレス</translation>
    </message>
    <message id="469">
        <source>Server IP</source>
        <translation>サーバーIP</translation>
    </message>
    <message id="470">
        <source>Server Port</source>
        <translation>サーバーポート</translation>
    </message>
    <message id="471">
        <source>Text</source>
        <translation>テキスト</translation>
    </message>
    <message id="472">
        <source>Sound Description</source>
        <translation>サウンドの説明</translation>
    </message>
    <message id="473">
        <source>Sound File Path</source>
        <translation>サウンドファイルのパス</translation>
    </message>
    <message id="474">
        <source>Test</source>
        <translation>テスト</translation>
    </message>
    <message id="475">
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message id="476">
        <source>Mail to</source>
        <translation>メール送信先</translation>
    </message>
    <message id="477">
        <source>FTP Setting</source>
        <translation>FTP設定</translation>
    </message>
    <message id="478">
        <source>Message Setting</source>
        <translation>メッセージ設定</translation>
    </message>
    <message id="479">
        <source>Message</source>
        <translation>メッセージ</translation>
    </message>
    <message id="480">
        <source>Sound Setting</source>
        <translation>サウンド設定</translation>
    </message>
    <message id="481">
        <source>Set HTTP Server failed! Do you want to remove all HTTP Servers?</source>
        <translation>HTTPサーバーの設定に失敗しました。すべてのHTTPサーバーを削除しますか？</translation>
    </message>
    <message id="482">
        <source>The amount cannot be more than 16!</source>
        <translation>16件を超えることはできません。</translation>
    </message>
    <message id="483">
        <source>Do you want to delete the selected NVR?</source>
        <translation>選択したNVRを削除しますか？</translation>
    </message>
    <message id="484">
        <source>Sender name can't be empty!</source>
        <translation>送信者名を入力してください。</translation>
    </message>
    <message id="485">
        <source>Mail Server can't be empty!</source>
        <translation>メールサーバーを入力してください。</translation>
    </message>
    <message id="486">
        <source>User can't be empty!</source>
        <translation>ユーザーを入力してください。</translation>
    </message>
    <message id="487">
        <source>Password can't be empty!</source>
        <translation>パスワードを入力してください。</translation>
    </message>
    <message id="488">
        <source>Mail Address can't be empty!</source>
        <translation>メールアドレスを入力してください。</translation>
    </message>
    <message id="489">
        <source>Test mail sent success.</source>
        <translation>テストメールを送信しました。</translation>
    </message>
    <message id="490">
        <source>Test mail sent failed.</source>
        <translation>テストメールの送信に失敗しました。</translation>
    </message>
    <message id="491">
        <source>Server IP can't be empty!</source>
        <translation>サーバーIPを入力してください。</translation>
    </message>
    <message id="492">
        <source>Server Port can't be empty!</source>
        <translation>サーバーポートを入力してください。</translation>
    </message>
    <message id="493">
        <source>Root Path can't be empty!</source>
        <translation>ルートパスを入力してください。</translation>
    </message>
    <message id="494">
        <source>Connecting to ftp server success.</source>
        <translation>FTPサーバーに接続しました。</translation>
    </message>
    <message id="495">
        <source>Connecting to ftp server failed.</source>
        <translation>FTPサーバーへの接続に失敗しました。</translation>
    </message>
    <message id="496">
        <source>Message can't be empty!</source>
        <translation>メッセージを入力してください。</translation>
    </message>
    <message id="497">
        <source>Sound Description can't be empty!</source>
        <translation>サウンドの説明を入力してください。</translation>
    </message>
    <message id="498">
        <source>Sound file Path can't be empty!</source>
        <translation>サウンドファイルのパスを入力してください。</translation>
    </message>
    <message id="499">
        <source>Preset number select first.</source>
        <translation>先にプリセット番号を選択してください。</translation>
    </message>
    <message id="500">
        <source>The Preset Name has been used.</source>
        <translation>このプリセット名はすでに使用されています。</translation>
    </message>
    <message id="501">
        <source>Do you want to delete the selected User?</source>
        <translation>選択したユーザーを削除しますか？</translation>
    </message>
    <message id="502">
        <source>Can't Delete User.</source>
        <translation>ユーザーを削除できません。</translation>
    </message>
    <message id="503">
        <source>Already Set.</source>
        <translation>すでに設定されています。</translation>
    </message>
    <message id="504">
        <source>Intelligent setting can't exceed 16</source>
        <translation>映像解析設定は16件までです。</translation>
    </message>
    <message id="505">
        <source>Add NVR failed! Please add again.</source>
        <translation>NVRの追加に失敗しました。もう一度追加してください。</translation>
    </message>
    <message id="506">
        <source>File Size can't more than 5MB</source>
        <translation>ファイルサイズは5MBまでです。</translation>
    </message>
    <message id="507">
        <source>Save OK</source>
        <translation>保存しました。</translation>
    </message>
    <message id="508">
        <source>Exit and Open MainViewer?</source>
        <translation>終了してメインビューアーを開きますか？</translation>
    </message>
    <message id="509">
        <source>Do you want to exit?</source>
        <translation>終了しますか？</translation>
    </message>
    <message id="510">
        <source>Resolution Not Support .</source>
        <translation>この解像度には対応していません。</translation>
    </message>
    <message id="511">
        <source>Do you want to Save?</source>
        <translation>保存しますか？</translation>
    </message>
    <message id="512">
        <source>The Channel does not support motion detection or is no connection !</source>
        <translation>このチャンネルは動体検知に対応していないか、接続されていません。</translation>
    </message>
    <message id="513">
        <source>No setting !</source>
        <translation>設定がありません。</translation>
    </message>
    <message id="514">
        <source>Settings have changed , Do you want to save ?</source>
        <translation>設定が変更されています。保存しますか？</translation>
    </message>
    <message id="515">
        <source>Not yet set of Event Action config!</source>
        <translation>イベント動作が設定されていません。</translation>
    </message>
    <message id="516">
        <source>Video can't connection.</source>
        <translation>映像に接続できません。</translation>
    </message>
    <message id="517">
        <source>Submit</source>
        <translation>確定</translation>
    </message>
    <message id="518">
        <source>Save Setting</source>
        <translation>設定を保存</translation>
    </message>
    <message id="519">
        <source>Close this window</source>
        <translation>このウィンドウを閉じる</translation>
    </message>
    <message id="520">
        <source>Preset Sequence</source>
        <translation>プリセットシーケンス</translation>
    </message>
    <message id="521">
        <source>Dwell Time:</source>
        <translation>停留時間：</translation>
    </message>
    <message id="522">
        <source>PTZ Preset</source>
        <translation>PTZプリセット</translation>
    </message>
    <message id="523">
        <source>Preset Sequence</source>
        <translation>プリセットシーケンス</translation>
    </message>
    <message id="524">
        <source>Select a wave file</source>
        <translation>WAVファイルを選択</translation>
    </message>
    <message id="525">
        <source>File Name: </source>
        <translation>ファイル名： </translation>
    </message>
    <message id="526">
        <source>Message sent successfully!</source>
        <translation>メッセージを送信しました。</translation>
    </message>
    <message id="527">
        <source>Sending Message fail!</source>
        <translation>メッセージの送信に失敗しました。</translation>
    </message>
    <message id="528">
        <source>MAX Video</source>
        <translation>映像最大化</translation>
    </message>
    <message id="529">
        <source>Enable/Disable auto switch group to display videos.</source>
        <translation>グループの自動切替による映像表示を有効/無効にします。</translation>
    </message>
    <message id="530">
        <source>Enable/Disable maximum video to display.</source>
        <translation>映像の最大化表示を有効/無効にします。</translation>
    </message>
    <message id="531">
        <source>Live Video</source>
        <translation>ライブ映像</translation>
    </message>
    <message id="532">
        <source>Do you want to cancel playback for NVR?</source>
        <translation>NVRの再生をキャンセルしますか？</translation>
    </message>
    <message id="533">
        <source>The selected time doesn't have any recording data!</source>
        <translation>選択した日時の録画データがありません。</translation>
    </message>
    <message id="534">
        <source>Select channel you want to change and reset the relational data information?</source>
        <translation>選択したチャンネルを変更し、関連データをリセットしますか？</translation>
    </message>
    <message id="535">
        <source>This NVR cannot get group ID to playback!</source>
        <translation>このNVRから再生用のグループIDを取得できません。</translation>
    </message>
    <message id="536">
        <source>Select the SVD has been disconnected, so close the panel and make sure that SVD status!</source>
        <translation>選択したSVDは切断されています。パネルを閉じてSVDの状態を確認してください。</translation>
    </message>
    <message id="550">
        <source>IP Address</source>
        <translation>IPアドレス</translation>
    </message>
    <message id="551">
        <source>Http Port</source>
        <translation>HTTPポート</translation>
    </message>
    <message id="552">
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message id="553">
        <source>NVR Name can't be empty!</source>
        <translation>NVR名を入力してください。</translation>
    </message>
    <message id="554">
        <source>IP address or hostname set incorrectly!</source>
        <translation>IPアドレスまたはホスト名の設定が正しくありません。</translation>
    </message>
    <message id="555">
        <source>NVR don't exist!</source>
        <translation>NVRが存在しません。</translation>
    </message>
    <message id="556">
        <source>Port set incorrectly!</source>
        <translation>ポートの設定が正しくありません。</translation>
    </message>
    <message id="557">
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message id="558">
        <source>NVR select setting</source>
        <translation>NVR選択設定</translation>
    </message>
    <message id="559">
        <source>Pattern select setting</source>
        <translation>パターン選択設定</translation>
    </message>
    <message id="560">
        <source>All list</source>
        <translation>全項目リスト</translation>
    </message>
    <message id="561">
        <source>Selected list</source>
        <translation>選択済みリスト</translation>
    </message>
    <message id="562">
        <source>Select item is less than 2 items, it can not be saved!</source>
        <translation>選択した項目が2件未満のため、保存できません。</translation>
    </message>
    <message id="563">
        <source>Functions that were originally assigned on this screen will be moved to screen #1 automatically.</source>
        <translation>この画面に割り当てられていた機能は、自動的に画面#1に移動します。</translation>
    </message>
    <message id="564">
        <source>Has not enough pattern can be selected!</source>
        <translation>選択できるパターンが足りません。</translation>
    </message>
    <message id="565">
        <source>This screen has been assigned to Video Wall!</source>
        <translation>この画面はすでにビデオウォールに割り当てられています。</translation>
    </message>
    <message id="566">
        <source>Has not enough device can be selected!</source>
        <translation>選択できるデバイスが足りません。</translation>
    </message>
    <message id="570">
        <source>Information</source>
        <translation>情報</translation>
    </message>
    <message id="571">
        <source>*Name</source>
        <translation>*名前</translation>
    </message>
    <message id="572">
        <source>*IP Address</source>
        <translation>*IPアドレス</translation>
    </message>
    <message id="573">
        <source>*Http Port</source>
        <translation>*HTTPポート</translation>
    </message>
    <message id="574">
        <source>*User</source>
        <translation>*ユーザー</translation>
    </message>
    <message id="575">
        <source>*Password</source>
        <translation>*パスワード</translation>
    </message>
    <message id="576">
        <source>Detect</source>
        <translation>検出</translation>
    </message>
    <message id="577">
        <source>Device Setting</source>
        <translation>デバイス設定</translation>
    </message>
    <message id="578">
        <source>NO.</source>
        <translation>No.</translation>
    </message>
    <message id="579">
        <source>Camera name</source>
        <translation>カメラ名</translation>
    </message>
    <message id="580">
        <source>Video Port</source>
        <translation>映像ポート</translation>
    </message>
    <message id="581">
        <source>Format</source>
        <translation>フォーマット</translation>
    </message>
    <message id="582">
        <source>Resolution</source>
        <translation>解像度</translation>
    </message>
    <message id="583">
        <source>PTZ</source>
        <translation>PTZ</translation>
    </message>
    <message id="584">
        <source>Audio</source>
        <translation>音声</translation>
    </message>
    <message id="585">
        <source>Edit Camera Setting</source>
        <translation>カメラ設定の編集</translation>
    </message>
    <message id="586">
        <source>Camera No</source>
        <translation>カメラ番号</translation>
    </message>
    <message id="587">
        <source>Camera IP</source>
        <translation>カメラIP</translation>
    </message>
    <message id="588">
        <source>Additional Camera Information</source>
        <translation>カメラの追加情報</translation>
    </message>
    <message id="589">
        <source>Min. Bitrate</source>
        <translation>最小ビットレート</translation>
    </message>
    <message id="590">
        <source>Max. Bitrate</source>
        <translation>最大ビットレート</translation>
    </message>
    <message id="591">
        <source>Apply</source>
        <translation>適用</translation>
    </message>
    <message id="592">
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message id="593">
        <source>NVR IP can't be empty.</source>
        <translation>NVRのIPを入力してください。</translation>
    </message>
    <message id="594">
        <source>NVR Http Port can't be empty.</source>
        <translation>NVRのHTTPポートを入力してください。</translation>
    </message>
    <message id="595">
        <source>NVR User can't be empty.</source>
        <translation>NVRのユーザーを入力してください。</translation>
    </message>
    <message id="596">
        <source>NVR Password can't be empty.</source>
        <translation>NVRのパスワードを入力してください。</translation>
    </message>
    <message id="597">
        <source>Request Time Zone ERR! Please Detect again.</source>
        <translation>タイムゾーンを取得できません。もう一度検出してください。</translation>
    </message>
    <message id="598">
        <source>Please Select Brand.</source>
        <translation>メーカーを選択してください。</translation>
    </message>
    <message id="599">
        <source>IP Timeout.</source>
        <translation>IPへの接続がタイムアウトしました。</translation>
    </message>
    <message id="600">
        <source>Quality</source>
        <translation>画質</translation>
    </message>
    <message id="601">
        <source>Bitrate</source>
        <translation>ビットレート</translation>
    </message>
    <message id="602">
        <source>Bitrate Mode</source>
        <translation>ビットレートモード</translation>
    </message>
    <message id="603">
        <source>CH name can't be empty!</source>
        <translation>CH名を入力してください。</translation>
    </message>
    <message id="604">
        <source>IP address can't be empty!</source>
        <translation>IPアドレスを入力してください。</translation>
    </message>
    <message id="605">
        <source>Http Port can't be empty!</source>
        <translation>HTTPポートを入力してください。</translation>
    </message>
    <message id="606">
        <source>User account can't be empty!</source>
        <translation>ユーザーアカウントを入力してください。</translation>
    </message>
    <message id="607">
        <source>Password can't be empty!</source>
        <translation>パスワードを入力してください。</translation>
    </message>
    <message id="608">
        <source>Detection Error!</source>
        <translation>検出中にエラーが発生しました。</translation>
    </message>
    <message id="609">
        <source>No Camera or connect failed !</source>
        <translation>カメラがないか、接続に失敗しました。</translation>
    </message>
    <message id="610">
        <source>This firmware version of NVR is not supported , please update newer Version.</source>
        <translation>このNVRのファームウェアバージョンには対応していません。新しいバージョンに更新してください。</translation>
    </message>
    <message id="611">
        <source>If you press the button, data inside NVR will be changed!</source>
        <translation>このボタンを押すと、NVR内のデータが変更されます。</translation>
    </message>
    <message id="612">
        <source>Camera Search</source>
        <translation>カメラ検索</translation>
    </message>
    <message id="613">
        <source>Brand not Support!</source>
        <translation>このメーカーには対応していません。</translation>
    </message>
    <message id="614">
        <source>FPS</source>
        <translation>FPS</translation>
    </message>
    <message id="615">
        <source>Video Format Error!</source>
        <translation>映像フォーマットが正しくありません。</translation>
    </message>
    <message id="616">
        <source>Camera settings have changes, please re-detect.</source>
        <translation>カメラ設定が変更されています。再検出してください。</translation>
    </message>
    <message id="617">
        <source>Add Camera Fail!</source>
        <translation>カメラの追加に失敗しました。</translation>
    </message>
    <message id="618">
        <source>DIS Setting</source>
        <translation>DIS設定</translation>
    </message>
    <message id="619">
        <source>Device not supported!</source>
        <translation>このデバイスには対応していません。</translation>
    </message>
    <message id="620">
        <source>This account is already set!</source>
        <translation>このアカウントはすでに設定されています。</translation>
    </message>
    <message id="621">
        <source>Do you want to continue edit preset point?</source>
        <translation>プリセットの編集を続けますか？</translation>
    </message>
    <message id="630">
        <source>Group Name</source>
        <translation>グループ名</translation>
    </message>
    <message id="631">
        <source>Power Level</source>
        <translation>権限レベル</translation>
    </message>
    <message id="632">
        <source>Function Permission</source>
        <translation>機能権限</translation>
    </message>
    <message id="633">
        <source>Playback</source>
        <translation>再生</translation>
    </message>
    <message id="634">
        <source>PTZ Control</source>
        <translation>PTZ操作</translation>
    </message>
    <message id="635">
        <source>System Setup</source>
        <translation>システム設定</translation>
    </message>
    <message id="636">
        <source>Group Setting</source>
        <translation>グループ設定</translation>
    </message>
    <message id="640">
        <source>File Size can't more than 10MB</source>
        <translation>ファイルサイズは10MBまでです。</translation>
    </message>
    <message id="641">
        <source>EMap Setting</source>
        <translation>電子マップ設定</translation>
    </message>
    <message id="642">
        <source>*Double Click Windows to change Map images.</source>
        <translation>*ウィンドウをダブルクリックするとマップ画像を変更できます。</translation>
    </message>
    <message id="643">
        <source>Select an image file</source>
        <translation>画像ファイルを選択</translation>
    </message>
    <message id="645">
        <source>User Setting</source>
        <translation>ユーザー設定</translation>
    </message>
    <message id="646">
        <source>Photo</source>
        <translation>写真</translation>
    </message>
    <message id="647">
        <source>(Dubble Click to Setting)</source>
        <translation>(ダブルクリックして設定)</translation>
    </message>
    <message id="648">
        <source>Check</source>
        <translation>確認</translation>
    </message>
    <message id="649">
        <source>*User Name</source>
        <translation>*ユーザー名</translation>
    </message>
    <message id="650">
        <source>*Password Confirm</source>
        <translation>*パスワード確認</translation>
    </message>
    <message id="651">
        <source>*:Necessary</source>
        <translation>*：必須</translation>
    </message>
    <message id="652">
        <source>This name not yet use</source>
        <translation>この名前は使用できます。</translation>
    </message>
    <message id="653">
        <source>This name in use</source>
        <translation>この名前は使用中です。</translation>
    </message>
    <message id="660">
        <source>User&amp;Password</source>
        <translation>ユーザーとパスワード</translation>
    </message>
    <message id="661">
        <source>User or Password is not input!</source>
        <translation>ユーザーまたはパスワードが入力されていません。</translation>
    </message>
    <message id="671">
        <source>DIS Service Setting</source>
        <translation>DISサービス設定</translation>
    </message>
    <message id="672">
        <source>Account List</source>
        <translation>アカウントリスト</translation>
    </message>
    <message id="673">
        <source>Do you want to remove this user?</source>
        <translation>このユーザーを削除しますか？</translation>
    </message>
    <message id="674">
        <source>The account has reached the upper limit, for add new account you need to remove another account.</source>
        <translation>アカウント数が上限に達しています。新しいアカウントを追加するには、別のアカウントを削除してください。</translation>
    </message>
    <message id="675">
        <source>Object Loss</source>
        <translation>持ち去り</translation>
    </message>
    <message id="676">
        <source>Tripwire</source>
        <translation>ラインクロス</translation>
    </message>
    <message id="677">
        <source>Threat</source>
        <translation>妨害</translation>
    </message>
    <message id="678">
        <source>Enable</source>
        <translation>有効</translation>
    </message>
    <message id="679">
        <source>Intelligent Setting</source>
        <translation>映像解析設定</translation>
    </message>
    <message id="680">
        <source>Intelligent detection List</source>
        <translation>映像解析リスト</translation>
    </message>
    <message id="681">
        <source>Object Loss Reset</source>
        <translation>持ち去り解除</translation>
    </message>
    <message id="682">
        <source>Threat Detection Reset</source>
        <translation>妨害検知解除</translation>
    </message>
    <message id="683">
        <source>Image Enhance</source>
        <translation>画像補正</translation>
    </message>
    <message id="684">
        <source>Port number can't accept more then 32767.</source>
        <translation>ポート番号に32767を超える値は指定できません。</translation>
    </message>
    <message id="685">
        <source>Keep Ratio</source>
        <translation>縦横比を維持</translation>
    </message>
    <message id="686">
        <source>Intelligent Detection</source>
        <translation>映像解析</translation>
    </message>
    <message id="687">
        <source>OSD Size</source>
        <translation>OSDサイズ</translation>
    </message>
    <message id="688">
        <source>OSD Color</source>
        <translation>OSDの色</translation>
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
        <translation>起動時の全画面</translation>
    </message>
    <message id="693">
        <source>Startup Screen Layout</source>
        <translation>起動時の画面レイアウト</translation>
    </message>
    <message id="694">
        <source>Leave to save the screen layout.</source>
        <translation>ページを離れると画面レイアウトが保存されます。</translation>
    </message>
    <message id="695">
        <source>Function default start</source>
        <translation>機能の既定起動</translation>
    </message>
    <message id="696">
        <source>Function assign</source>
        <translation>機能割り当て</translation>
    </message>
    <message id="697">
        <source>Pattern setting</source>
        <translation>パターン設定</translation>
    </message>
    <message id="698">
        <source>Name can't be empty.</source>
        <translation>名前を入力してください。</translation>
    </message>
    <message id="699">
        <source>Object Counting</source>
        <translation>物体カウント</translation>
    </message>
    <message id="700">
        <source>Foreign Object</source>
        <translation>置き去り</translation>
    </message>
    <message id="701">
        <source>Foreign Object Reset </source>
        <translation>置き去り解除 </translation>
    </message>
    <message id="702">
        <source>Manual Recording</source>
        <translation>手動録画</translation>
    </message>
    <message id="703">
        <source>Device settings have changes, please re-detect.</source>
        <translation>デバイス設定が変更されています。再検出してください。</translation>
    </message>
    <message id="704">
        <source>English and Digit Only</source>
        <translation>英数字のみ</translation>
    </message>
    <message id="705">
        <source>Emap Group Assign</source>
        <translation>電子マップグループ割り当て</translation>
    </message>
    <message id="706">
        <source>Emap Group </source>
        <translation>電子マップグループ </translation>
    </message>
    <message id="707">
        <source>Member:</source>
        <translation>メンバー：</translation>
    </message>
    <message id="708">
        <source>Emap Position Assign</source>
        <translation>電子マップ位置割り当て</translation>
    </message>
    <message id="709">
        <source>Parent</source>
        <translation>親</translation>
    </message>
    <message id="710">
        <source>Group Type </source>
        <translation>グループの種類 </translation>
    </message>
    <message id="711">
        <source>Auto Switch</source>
        <translation>自動切替</translation>
    </message>
    <message id="712">
        <source>Double-click back to previous group</source>
        <translation>ダブルクリックで前のグループに戻る</translation>
    </message>
    <message id="713">
        <source>Drag and Drop to Move</source>
        <translation>ドラッグ＆ドロップで移動</translation>
    </message>
    <message id="714">
        <source>Do you want to delete the selected Emap Group?</source>
        <translation>選択した電子マップグループを削除しますか？</translation>
    </message>
    <message id="715">
        <source>The amount of device will be over default value!</source>
        <translation>デバイス数が上限を超えます。</translation>
    </message>
    <message id="716">
        <source>The amount of total channels will be over default value!</source>
        <translation>チャンネルの総数が上限を超えます。</translation>
    </message>
    <message id="717">
        <source>Channel selection</source>
        <translation>チャンネル選択</translation>
    </message>
    <message id="718">
        <source>Get device capability error!</source>
        <translation>デバイスの機能情報を取得できません。</translation>
    </message>
    <message id="719">
        <source>This device does not has any channel.</source>
        <translation>このデバイスにはチャンネルがありません。</translation>
    </message>
    <message id="720">
        <source>Please add channels  or  re-select the other device.</source>
        <translation>チャンネルを追加するか、別のデバイスを選択し直してください。</translation>
    </message>
    <message id="721">
        <source>This device does not has any channel,Do you want to remove the device?</source>
        <translation>このデバイスにはチャンネルがありません。デバイスを削除しますか？</translation>
    </message>
    <message id="722">
        <source>Setting fail!</source>
        <translation>設定に失敗しました。</translation>
    </message>
    <message id="723">
        <source>Do you want to stop SEQ mode?</source>
        <translation>シーケンスモードを停止しますか？</translation>
    </message>
    <message id="725">
        <source>Type </source>
        <translation>種類 </translation>
    </message>
    <message id="726">
        <source>No change!</source>
        <translation>変更はありません。</translation>
    </message>
    <message id="727">
        <source>Face Counting</source>
        <translation>顔カウント</translation>
    </message>
    <message id="728">
        <source>Unknown</source>
        <translation>不明</translation>
    </message>
    <message id="729">
        <source>Event Export</source>
        <translation>イベントエクスポート</translation>
    </message>
    <message id="730">
        <source>System Log Export</source>
        <translation>システムログエクスポート</translation>
    </message>
    <message id="731">
        <source>System Log</source>
        <translation>システムログ</translation>
    </message>
    <message id="732">
        <source>NVR Select</source>
        <translation>NVR選択</translation>
    </message>
    <message id="733">
        <source>Condition</source>
        <translation>条件</translation>
    </message>
    <message id="734">
        <source>Time Range:</source>
        <translation>期間：</translation>
    </message>
    <message id="735">
        <source>Start Time:</source>
        <translation>開始日時：</translation>
    </message>
    <message id="736">
        <source>End Time:</source>
        <translation>終了日時：</translation>
    </message>
    <message id="737">
        <source>Event Type:</source>
        <translation>イベントの種類：</translation>
    </message>
    <message id="738">
        <source>User:</source>
        <translation>ユーザー：</translation>
    </message>
    <message id="739">
        <source>Export Format:</source>
        <translation>エクスポート形式：</translation>
    </message>
    <message id="740">
        <source>Export</source>
        <translation>エクスポート</translation>
    </message>
    <message id="741">
        <source>You must select a path to export!</source>
        <translation>エクスポート先のパスを選択してください。</translation>
    </message>
    <message id="742">
        <source>Start Time must less than End time!</source>
        <translation>開始日時は終了日時より前にしてください。</translation>
    </message>
    <message id="743">
        <source>No Event!</source>
        <translation>イベントがありません。</translation>
    </message>
    <message id="744">
        <source>No System Log!</source>
        <translation>システムログがありません。</translation>
    </message>
    <message id="745">
        <source>CSV Export finish!</source>
        <translation>CSVのエクスポートが完了しました。</translation>
    </message>
    <message id="746">
        <source>MDB Export finish!</source>
        <translation>MDBのエクスポートが完了しました。</translation>
    </message>
    <message id="747">
        <source>Custom</source>
        <translation>カスタム</translation>
    </message>
    <message id="748">
        <source>NVR Overview</source>
        <translation>NVR一覧</translation>
    </message>
    <message id="749">
        <source>Video Wall Console</source>
        <translation>ビデオウォールコンソール</translation>
    </message>
    <message id="750">
        <source>Lock Screen </source>
        <translation>画面をロック </translation>
    </message>
    <message id="751">
        <source>Unlock Screen</source>
        <translation>画面のロックを解除</translation>
    </message>
    <message id="752">
        <source>Video Wall</source>
        <translation>ビデオウォール</translation>
    </message>
    <message id="753">
        <source>Pattern List</source>
        <translation>パターンリスト</translation>
    </message>
    <message id="754">
        <source>SEQ List</source>
        <translation>シーケンスリスト</translation>
    </message>
    <message id="755">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="756">
        <source>SEQ content setting</source>
        <translation>シーケンス内容設定</translation>
    </message>
    <message id="757">
        <source>Max Channel</source>
        <translation>最大CH数</translation>
    </message>
    <message id="758">
        <source>Video server</source>
        <translation>ビデオサーバー</translation>
    </message>
    <message id="759">
        <source>Support</source>
        <translation>対応</translation>
    </message>
    <message id="760">
        <source>Original View</source>
        <translation>オリジナル表示</translation>
    </message>
    <message id="761">
        <source>Broad View</source>
        <translation>ワイド表示</translation>
    </message>
    <message id="762">
        <source>Quad View</source>
        <translation>4画面表示</translation>
    </message>
    <message id="763">
        <source>Quad and Source View</source>
        <translation>4画面とオリジナル表示</translation>
    </message>
    <message id="764">
        <source>Double View</source>
        <translation>2画面表示</translation>
    </message>
    <message id="765">
        <source>Triple View</source>
        <translation>3画面表示</translation>
    </message>
    <message id="766">
        <source>Digital PTZ</source>
        <translation>デジタルPTZ</translation>
    </message>
    <message id="767">
        <source>Lens</source>
        <translation>レンズ</translation>
    </message>
    <message id="768">
        <source>It could not be opened, the insufficient number of available screens!</source>
        <translation>使用できる画面の数が足りないため、開けません。</translation>
    </message>
    <message id="769">
        <source>It could not be opened, The Video Wall is not enabled! </source>
        <translation>ビデオウォールが有効になっていないため、開けません。 </translation>
    </message>
    <message id="770">
        <source>The quantity of screen is not enough! Not support!</source>
        <translation>画面数が足りないため、対応できません。</translation>
    </message>
    <message id="772">
        <source>Settings have changed , Please re-open MainViewer!</source>
        <translation>設定が変更されました。メインビューアーを開き直してください。</translation>
    </message>
    <message id="773">
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message id="774">
        <source>Update system log with below defined condition</source>
        <translation>以下の条件でシステムログを更新</translation>
    </message>
    <message id="775">
        <source>Transform recording index</source>
        <translation>録画インデックスを変換</translation>
    </message>
    <message id="776">
        <source>Event Image Sync Setting</source>
        <translation>イベント画像同期設定</translation>
    </message>
    <message id="777">
        <source>Event snapshot storage space is not enough!</source>
        <translation>イベントスナップショットの保存容量が足りません。</translation>
    </message>
    <message id="779">
        <source>Intelligent Mode</source>
        <translation>映像解析モード</translation>
    </message>
    <message id="780">
        <source>Add Intelligent Setting</source>
        <translation>映像解析設定の追加</translation>
    </message>
    <message id="781">
        <source>Camera Event</source>
        <translation>カメライベント</translation>
    </message>
    <message id="782">
        <source>ROI Setting</source>
        <translation>ROI設定</translation>
    </message>
    <message id="783">
        <source>Trigger Mode</source>
        <translation>トリガーモード</translation>
    </message>
    <message id="784">
        <source>Channel Privilege</source>
        <translation>チャンネル権限</translation>
    </message>
    <message id="785">
        <source>Group Overview</source>
        <translation>グループ一覧</translation>
    </message>
    <message id="786">
        <source>User Overview</source>
        <translation>ユーザー一覧</translation>
    </message>
    <message id="787">
        <source>Event Server</source>
        <translation>イベントサーバー</translation>
    </message>
    <message id="788">
        <source>Trigger By</source>
        <translation>トリガー元</translation>
    </message>
    <message id="789">
        <source>Configuration Modify</source>
        <translation>設定変更</translation>
    </message>
    <message id="790">
        <source>Intelligent Event Trigger</source>
        <translation>映像解析イベントトリガー</translation>
    </message>
    <message id="791">
        <source>NVR Event Trigger</source>
        <translation>NVRイベントトリガー</translation>
    </message>
    <message id="792">
        <source>Trigger Action</source>
        <translation>トリガー動作</translation>
    </message>
    <message id="793">
        <source>Addresses: (Use ',' to separate e-mails)</source>
        <translation>アドレス：(メールは「,」で区切ります)</translation>
    </message>
    <message id="794">
        <source>Content</source>
        <translation>内容</translation>
    </message>
    <message id="795">
        <source>Video Wall Layout</source>
        <translation>ビデオウォールレイアウト</translation>
    </message>
    <message id="796">
        <source>No Enough screen can be set!</source>
        <translation>設定できる画面が足りません。</translation>
    </message>
    <message id="797">
        <source>SVD Management</source>
        <translation>SVD管理</translation>
    </message>
    <message id="798">
        <source>SVD Detail Setting</source>
        <translation>SVD詳細設定</translation>
    </message>
    <message id="799">
        <source>SVD Layout</source>
        <translation>SVDレイアウト</translation>
    </message>
    <message id="800">
        <source>SVD ID:</source>
        <translation>SVD ID：</translation>
    </message>
    <message id="801">
        <source>SVD Name:</source>
        <translation>SVD名：</translation>
    </message>
    <message id="802">
        <source>Display</source>
        <translation>ディスプレイ</translation>
    </message>
    <message id="803">
        <source>Resolution</source>
        <translation>解像度</translation>
    </message>
    <message id="804">
        <source>Priority</source>
        <translation>優先順位</translation>
    </message>
    <message id="805">
        <source>Default Split</source>
        <translation>既定の分割</translation>
    </message>
    <message id="806">
        <source>Default Channel List</source>
        <translation>既定のチャンネルリスト</translation>
    </message>
    <message id="807">
        <source>Live Stream</source>
        <translation>ライブストリーム</translation>
    </message>
    <message id="808">
        <source>Dynamic Streaming</source>
        <translation>動的ストリーミング</translation>
    </message>
    <message id="809">
        <source>Screen Default Layout</source>
        <translation>画面の既定レイアウト</translation>
    </message>
    <message id="810">
        <source>Channel list</source>
        <translation>チャンネルリスト</translation>
    </message>
    <message id="811">
        <source>Begin</source>
        <translation>開始</translation>
    </message>
    <message id="812">
        <source>Previous</source>
        <translation>前へ</translation>
    </message>
    <message id="813">
        <source>System Log Viewer</source>
        <translation>システムログビューアー</translation>
    </message>
    <message id="814">
        <source>Management </source>
        <translation>管理 </translation>
    </message>
    <message id="815">
        <source>Viewer</source>
        <translation>ビューアー</translation>
    </message>
    <message id="816">
        <source>Add New SVD</source>
        <translation>SVDの新規追加</translation>
    </message>
    <message id="817">
        <source>Primary</source>
        <translation>プライマリ</translation>
    </message>
    <message id="818">
        <source>Secondary</source>
        <translation>セカンダリ</translation>
    </message>
    <message id="819">
        <source>Available</source>
        <translation>使用可</translation>
    </message>
    <message id="820">
        <source>Not Available</source>
        <translation>使用不可</translation>
    </message>
    <message id="821">
        <source>Invalid E-mail Address!</source>
        <translation>メールアドレスが無効です。</translation>
    </message>
    <message id="822">
        <source>Invalid Value!</source>
        <translation>値が無効です。</translation>
    </message>
    <message id="823">
        <source>Can't add repeatedly!</source>
        <translation>重複して追加することはできません。</translation>
    </message>
    <message id="824">
        <source>Can't add SVD anymore!</source>
        <translation>これ以上SVDを追加できません。</translation>
    </message>
    <message id="826">
        <source>Do you want to remove this SVD?</source>
        <translation>このSVDを削除しますか？</translation>
    </message>
    <message id="827">
        <source>Disable this Video Wall?</source>
        <translation>このビデオウォールを無効にしますか？</translation>
    </message>
    <message id="828">
        <source>Export finish!</source>
        <translation>エクスポートが完了しました。</translation>
    </message>
    <message id="829">
        <source>Brand:</source>
        <translation>メーカー：</translation>
    </message>
    <message id="830">
        <source>Password Mask</source>
        <translation>パスワードを隠す</translation>
    </message>
    <message id="831">
        <source>NVR Account setting</source>
        <translation>NVRアカウント設定</translation>
    </message>
    <message id="832">
        <source>No any NVR has been selected.</source>
        <translation>NVRが選択されていません。</translation>
    </message>
    <message id="833">
        <source>Detect successful!</source>
        <translation>検出に成功しました。</translation>
    </message>
    <message id="834">
        <source>Failed configuring camera detection on channel:</source>
        <translation>次のチャンネルでカメラ検知の設定に失敗しました：</translation>
    </message>
    <message id="835">
        <source>Trigger action has done.</source>
        <translation>トリガー動作を実行しました。</translation>
    </message>
    <message id="836">
        <source>Event server has not set.</source>
        <translation>イベントサーバーが設定されていません。</translation>
    </message>
    <message id="837">
        <source>Privilege Setting</source>
        <translation>権限設定</translation>
    </message>
    <message id="838">
        <source>NVR Privilege Setting</source>
        <translation>NVR権限設定</translation>
    </message>
    <message id="839">
        <source>SVD Console</source>
        <translation>SVDコンソール</translation>
    </message>
    <message id="840">
        <source>SVD Search List</source>
        <translation>SVD検索リスト</translation>
    </message>
    <message id="841">
        <source>No Monitor connect!</source>
        <translation>モニターが接続されていません。</translation>
    </message>
    <message id="842">
        <source>Do you want to remove this intelligent setting?</source>
        <translation>この映像解析設定を削除しますか？</translation>
    </message>
    <message id="843">
        <source>Event snapshot doesn't work!</source>
        <translation>イベントスナップショットが動作しません。</translation>
    </message>
    <message id="850">
        <source>System</source>
        <translation>システム</translation>
    </message>
    <message id="851">
        <source>Intelligent</source>
        <translation>映像解析</translation>
    </message>
    <message id="852">
        <source>User and group</source>
        <translation>ユーザーとグループ</translation>
    </message>
    <message id="853">
        <source>Event handling</source>
        <translation>イベント処理</translation>
    </message>
    <message id="854">
        <source>Event server</source>
        <translation>イベントサーバー</translation>
    </message>
    <message id="855">
        <source>E-Map</source>
        <translation>電子マップ</translation>
    </message>
    <message id="856">
        <source>Screen layout</source>
        <translation>画面レイアウト</translation>
    </message>
    <message id="857">
        <source>Startup</source>
        <translation>スタートアップ</translation>
    </message>
    <message id="858">
        <source>Tooling</source>
        <translation>ツール</translation>
    </message>
    <message id="859">
        <source>This page is not available in this version.</source>
        <translation>このバージョンではこのページを使用できません。</translation>
    </message>
    <message id="860">
        <source>Its data in the database stays as it is.</source>
        <translation>データベース内の関連データはそのまま残ります。</translation>
    </message>
    <message id="861">
        <source>No recorder yet</source>
        <translation>レコーダーがありません</translation>
    </message>
    <message id="862">
        <source>Enter the address of the station's first recorder to add it.</source>
        <translation>このステーションの最初のレコーダーのアドレスを入力して追加してください。</translation>
    </message>
    <message id="863">
        <source>Filter name, address, model…</source>
        <translation>名前、アドレス、型番で絞り込み…</translation>
    </message>
    <message id="864">
        <source>Recorders of this station</source>
        <translation>このステーションのレコーダー</translation>
    </message>
    <message id="865">
        <source>Recorders: %1 of %2</source>
        <translation>レコーダー：%1 / %2</translation>
    </message>
    <message id="866">
        <source>Channels: %1 of %2</source>
        <translation>チャンネル：%1 / %2</translation>
    </message>
    <message id="867">
        <source>No recorder matches the filter.</source>
        <translation>条件に一致するレコーダーがありません。</translation>
    </message>
    <message id="868">
        <source>Unsaved changes</source>
        <translation>未保存の変更あり</translation>
    </message>
    <message id="870">
        <source>Switch to dark colours</source>
        <translation>ダークモードに切り替え</translation>
    </message>
    <message id="871">
        <source>Switch to light colours</source>
        <translation>ライトモードに切り替え</translation>
    </message>
    <message id="872">
        <source>Waiting</source>
        <translation>待機中</translation>
    </message>
    <message id="873">
        <source>Finish</source>
        <translation>完了</translation>
    </message>
    <message id="874">
        <source>Done: %1 of %2</source>
        <translation>完了：%1 / %2</translation>
    </message>
    <message id="875">
        <source>Choose</source>
        <translation>選択</translation>
    </message>
    <message id="876">
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message id="877">
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message id="878">
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message id="879">
        <source>No</source>
        <translation>いいえ</translation>
    </message>
    <message id="880">
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message id="881">
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message id="882">
        <source>Pages</source>
        <translation>ページ</translation>
    </message>
    <message id="884">
        <source>Enter the address of one recorder.</source>
        <translation>レコーダーのアドレスを入力します。</translation>
    </message>
    <message id="885">
        <source>Leave both empty to try the known device accounts.</source>
        <translation>両方とも空欄にすると、既知のデバイスアカウントを試します。</translation>
    </message>
    <message id="886">
        <source>About this installation</source>
        <translation>このインストール環境の情報</translation>
    </message>
    <message id="887">
        <source>Show password</source>
        <translation>パスワードを表示</translation>
    </message>
    <message id="888">
        <source>Searching…</source>
        <translation>検索しています…</translation>
    </message>
    <message id="890">
        <source>Name and behaviour of this station</source>
        <translation>このステーションの名前と動作</translation>
    </message>
    <message id="892">
        <source>Recorder slot</source>
        <translation>レコーダースロット</translation>
    </message>
    <message id="896">
        <source>Connected</source>
        <translation>接続済み</translation>
    </message>
    <message id="898">
        <source>Product:</source>
        <translation>製品：</translation>
    </message>
    <message id="899">
        <source>Hide password</source>
        <translation>パスワードを隠す</translation>
    </message>
    <message id="900">
        <source>Anyone who opens Rigging Desk is its administrator, because there is no user yet.</source>
        <translation>ユーザーがまだ登録されていないため、Rigging Deskを開いた人は誰でも管理者になります。</translation>
    </message>
    <message id="901">
        <source>Create the first administrator</source>
        <translation>最初の管理者を作成</translation>
    </message>
    <message id="902">
        <source>Not now</source>
        <translation>後で</translation>
    </message>
    <message id="903">
        <source>No user yet</source>
        <translation>ユーザーがまだいません</translation>
    </message>
    <message id="904">
        <source>Accessible cameras</source>
        <translation>閲覧できるカメラ</translation>
    </message>
    <message id="905">
        <source>Who has access</source>
        <translation>閲覧できるユーザー</translation>
    </message>
    <message id="906">
        <source>Filter channels…</source>
        <translation>チャンネルを絞り込み…</translation>
    </message>
    <message id="907">
        <source>Whole recorder</source>
        <translation>レコーダー全体</translation>
    </message>
    <message id="908">
        <source>Live</source>
        <translation>ライブ</translation>
    </message>
    <message id="909">
        <source>Live Monitor of all channels</source>
        <translation>全チャンネルのライブモニター</translation>
    </message>
    <message id="910">
        <source>Grant</source>
        <translation>権限を付与</translation>
    </message>
    <message id="911">
        <source>Withdraw</source>
        <translation>権限を解除</translation>
    </message>
    <message id="912">
        <source>The other rights need Live. Space switches the selected cells; Shift+Space selects a row, Ctrl+Space a column.</source>
        <translation>「ライブ」は他の権限の前提です。スペースキーで選択したセルを切り替え、Shift+スペースで行、Ctrl+スペースで列を選択します。</translation>
    </message>
    <message id="913">
        <source>Administrators have every right on every channel.</source>
        <translation>管理者は全チャンネルのすべての権限を持ちます。</translation>
    </message>
    <message id="930">
        <source>Filter the rows found…</source>
        <translation>見つかった行を絞り込み…</translation>
    </message>
    <message id="931">
        <source>No row matches the filter.</source>
        <translation>条件に一致する行がありません。</translation>
    </message>
    <message id="932">
        <source>Rows found: %1</source>
        <translation>見つかった行：%1</translation>
    </message>
    <message id="933">
        <source>The log could not be read</source>
        <translation>ログを読み込めませんでした</translation>
    </message>
    <message id="934">
        <source>Copy rows</source>
        <translation>行をコピー</translation>
    </message>
    <message id="935">
        <source>Open folder</source>
        <translation>フォルダーを開く</translation>
    </message>
    <message id="936">
        <source>Event export is not part of this version.</source>
        <translation>このバージョンにはイベントのエクスポートはありません。</translation>
    </message>
    <message id="937">
        <source>Choose a period and search.</source>
        <translation>期間を選んで検索してください。</translation>
    </message>
    <message id="938">
        <source>The export failed. Existing files were not changed.</source>
        <translation>エクスポートに失敗しました。既存のファイルは変更されていません。</translation>
    </message>
    <message id="939">
        <source>First page</source>
        <translation>最初のページ</translation>
    </message>
    <message id="940">
        <source>Previous page</source>
        <translation>前のページ</translation>
    </message>
    <message id="941">
        <source>Next page</source>
        <translation>次のページ</translation>
    </message>
    <message id="942">
        <source>Last page</source>
        <translation>最後のページ</translation>
    </message>
    <message id="943">
        <source>Refresh</source>
        <translation>更新</translation>
    </message>
    <message id="945">
        <source>Log in</source>
        <translation>ログイン</translation>
    </message>
    <message id="946">
        <source>The reason is in the log files.</source>
        <translation>原因はログファイルに記録されています。</translation>
    </message>
    <message id="950">
        <source>Find recorders on the network.</source>
        <translation>ネットワーク上のレコーダーを検索します。</translation>
    </message>
    <message id="951">
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message id="952">
        <source>Select all</source>
        <translation>すべて選択</translation>
    </message>
    <message id="953">
        <source>Filter the devices found</source>
        <translation>見つかったデバイスを絞り込み</translation>
    </message>
    <message id="954">
        <source>No device has answered.</source>
        <translation>応答したデバイスはありません。</translation>
    </message>
    <message id="955">
        <source>Recorders with those selected: %1 of %2</source>
        <translation>選択分を含むレコーダー：%1 / %2</translation>
    </message>
    <message id="956">
        <source>Connection</source>
        <translation>接続</translation>
    </message>
    <message id="957">
        <source>Checking…</source>
        <translation>確認中…</translation>
    </message>
    <message id="958">
        <source>Login refused</source>
        <translation>ログイン拒否</translation>
    </message>
    <message id="959">
        <source>No answer</source>
        <translation>応答なし</translation>
    </message>
    <message id="960">
        <source>Host name not found</source>
        <translation>ホスト名が見つかりません</translation>
    </message>
    <message id="961">
        <source>Connection refused</source>
        <translation>接続拒否</translation>
    </message>
    <message id="962">
        <source>Unexpected answer</source>
        <translation>想定外の応答</translation>
    </message>
    <message id="963">
        <source>Stopped</source>
        <translation>停止しました</translation>
    </message>
    <message id="965">
        <source>Notice</source>
        <translation>お知らせ</translation>
    </message>
    <message id="966">
        <source>No camera</source>
        <translation>カメラなし</translation>
    </message>
    <message id="967">
        <source>Changed in the recorder</source>
        <translation>レコーダーで変更済み</translation>
    </message>
    <message id="968">
        <source>Detected</source>
        <translation>検出済み</translation>
    </message>
    <message id="969">
        <source>Unchanged</source>
        <translation>変更なし</translation>
    </message>
    <message id="970">
        <source>Remove the camera of channel %1 from the recorder?</source>
        <translation>チャンネル %1 のカメラをレコーダーから削除しますか？</translation>
    </message>
    <message id="971">
        <source>Filter the cameras found</source>
        <translation>見つかったカメラを絞り込み</translation>
    </message>
    <message id="972">
        <source>No camera was found.</source>
        <translation>カメラが見つかりませんでした。</translation>
    </message>
    <message id="973">
        <source>The recorder sees no camera on its network. Search again, or enter an address.</source>
        <translation>レコーダーのネットワークにカメラが見つかりません。もう一度検索するか、アドレスを入力してください。</translation>
    </message>
    <message id="974">
        <source>Cameras found: %1</source>
        <translation>見つかったカメラ：%1</translation>
    </message>
    <message id="975">
        <source>Asking the camera…</source>
        <translation>カメラに問い合わせています…</translation>
    </message>
    <message id="976">
        <source>Writing to the recorder…</source>
        <translation>レコーダーに書き込んでいます…</translation>
    </message>
    <message id="977">
        <source>Video source</source>
        <translation>映像ソース</translation>
    </message>
    <message id="978">
        <source>Detect the camera to see its video settings.</source>
        <translation>カメラを検出すると映像設定が表示されます。</translation>
    </message>
    <message id="979">
        <source>Fish-eye view</source>
        <translation>魚眼表示</translation>
    </message>
    <message id="980">
        <source>The camera name must not contain a double quote (").</source>
        <translation>カメラ名に二重引用符（"）は使用できません。</translation>
    </message>
    <message id="981">
        <source>The configuration database cannot be opened: another program holds it, or it cannot be read. Nothing has been changed. Try again?</source>
        <translation>設定データベースを開けません。ほかのプログラムが使用中か、読み取れません。何も変更されていません。もう一度試しますか？</translation>
    </message>
    <message id="982">
        <source>The users could not be read from the database, so nobody can log in. Close the program that holds the database and start again. The reason is in the log files.</source>
        <translation>データベースからユーザーを読み取れなかったため、誰もログインできません。データベースを使用しているプログラムを閉じて、もう一度起動してください。原因はログファイルに記録されています。</translation>
    </message>
    <message id="983">
        <source>These tables of the database could not be read: %1. They stay as they are. The reason is in the log files.</source>
        <translation>データベースの次のテーブルを読み取れませんでした：%1。これらは変更されません。原因はログファイルに記録されています。</translation>
    </message>
    <message id="995">
        <source>Export</source>
        <translation>エクスポート</translation>
    </message>
    <message id="1000">
        <source>Keys</source>
        <translation>キー操作</translation>
    </message>
    <message id="1001">
        <source>Show the keys</source>
        <translation>キー操作を表示</translation>
    </message>
    <message id="1002">
        <source>Rename or edit the selected entry</source>
        <translation>選択した項目の名前変更または編集</translation>
    </message>
    <message id="1003">
        <source>Read the page again</source>
        <translation>ページを再読み込み</translation>
    </message>
    <message id="1004">
        <source>Filter the list</source>
        <translation>一覧を絞り込む</translation>
    </message>
    <message id="1005">
        <source>Go to a page</source>
        <translation>ページへ移動</translation>
    </message>
    <message id="1006">
        <source>Press the button or open the selected entry</source>
        <translation>ボタンを押す、または選択した項目を開く</translation>
    </message>
    <message id="1007">
        <source>Remove the selected entry</source>
        <translation>選択した項目を削除</translation>
    </message>
    <message id="1008">
        <source>Cancel or close</source>
        <translation>キャンセルまたは閉じる</translation>
    </message>
    <message id="1030">
        <source>Added: %1 of %2</source>
        <translation>追加済み：%1 / %2</translation>
    </message>
    <message id="1031">
        <source>Added: %1 of %2, failed: %3</source>
        <translation>追加済み：%1 / %2、失敗：%3</translation>
    </message>
    <message id="1032">
        <source>Recorders that were not added can be tried again with another login.</source>
        <translation>追加されなかったレコーダーは、別のログイン情報で再試行できます。</translation>
    </message>
    <message id="1033">
        <source>Try again</source>
        <translation>再試行</translation>
    </message>
    <message id="1034">
        <source>Login</source>
        <translation>ログイン</translation>
    </message>
    <message id="1035">
        <source>Added but not saved yet: %1.
Do you want to save?</source>
        <translation>追加されましたが、まだ保存されていません：%1
保存しますか？</translation>
    </message>
    <message id="1036">
        <source>No recorder has been added yet. Close and lose what you entered?</source>
        <translation>レコーダーはまだ追加されていません。閉じて入力内容を破棄しますか？</translation>
    </message>
    <message id="1037">
        <source>More than one recorder would have this name: %1.
Do you want to use it anyway?</source>
        <translation>複数のレコーダーが同じ名前になります：%1
このまま使用しますか？</translation>
    </message>
    <message id="1080">
        <source>A stored password is not shown. Typing replaces it.</source>
        <translation>保存済みのパスワードは表示されません。入力すると置き換わります。</translation>
    </message>
    <message id="1081">
        <source>Choose a group</source>
        <translation>グループを選択してください</translation>
    </message>
    <message id="1082">
        <source>No account yet</source>
        <translation>アカウントはまだありません</translation>
    </message>
    <message id="1083">
        <source>These accounts are tried on recorders whose login is not known.</source>
        <translation>ログインが不明なレコーダーで、これらのアカウントが試されます。</translation>
    </message>
    <message id="1084">
        <source>Do you want to delete the selected account?</source>
        <translation>選択したアカウントを削除しますか？</translation>
    </message>
    <message id="1085">
        <source>No camera is accessible</source>
        <translation>アクセスできるカメラはありません</translation>
    </message>
    <message id="1086">
        <source>Access follows from the rights of the user’s group.</source>
        <translation>アクセスはユーザーのグループの権限によって決まります。</translation>
    </message>
    <message id="1087">
        <source>Open the folder?</source>
        <translation>フォルダーを開きますか？</translation>
    </message>
    <message id="1088">
        <source>Filter users…</source>
        <translation>ユーザーを絞り込み…</translation>
    </message>
    <message id="1089">
        <source>No user matches the filter.</source>
        <translation>条件に一致するユーザーはいません。</translation>
    </message>
    <message id="1110">
        <source>Rename</source>
        <translation>名前の変更</translation>
    </message>
    <message id="1221">
        <source>Waiting for the picture…</source>
        <translation>映像を待っています…</translation>
    </message>
    <message id="1222">
        <source>No picture</source>
        <translation>映像なし</translation>
    </message>
    <message id="1223">
        <source>Trying again…</source>
        <translation>再試行しています…</translation>
    </message>
    <message id="1260">
        <source>Filter maps and cameras…</source>
        <translation>マップとカメラを絞り込み…</translation>
    </message>
    <message id="1261">
        <source>Cut</source>
        <translation>切り取り</translation>
    </message>
    <message id="1262">
        <source>Paste</source>
        <translation>貼り付け</translation>
    </message>
    <message id="1263">
        <source>Move to…</source>
        <translation>移動先…</translation>
    </message>
    <message id="1264">
        <source>A recorder's map goes under the main map or into a group.</source>
        <translation>レコーダーのマップはメインマップの下かグループに置きます。</translation>
    </message>
    <message id="1265">
        <source>A camera goes on the map of its own recorder or one of its sub-maps; on the main map it is taken off all maps.</source>
        <translation>カメラは自分のレコーダーのマップかそのサブマップに置きます。メインマップに置くと、どのマップからも外れます。</translation>
    </message>
    <message id="1266">
        <source>It is there already.</source>
        <translation>すでにそこにあります。</translation>
    </message>
    <message id="1267">
        <source>Only recorders' maps and cameras can be moved.</source>
        <translation>移動できるのはレコーダーのマップとカメラだけです。</translation>
    </message>
    <message id="1268">
        <source>Move</source>
        <translation>移動</translation>
    </message>
    <message id="1269">
        <source>Show the map's picture</source>
        <translation>マップの画像を表示</translation>
    </message>
    <message id="1270">
        <source>No map or camera matches the filter.</source>
        <translation>条件に一致するマップやカメラがありません。</translation>
    </message>
    <message id="1271">
        <source>Enter a name to add a group.</source>
        <translation>名前を入力してグループを追加します。</translation>
    </message>
    <message id="1272">
        <source>Enter a name to add a sub-map. The map has the name of its recorder.</source>
        <translation>名前を入力してサブマップを追加します。マップ名はレコーダー名です。</translation>
    </message>
    <message id="1273">
        <source>Drag recorders' maps into the group.</source>
        <translation>レコーダーのマップをグループへドラッグします。</translation>
    </message>
    <message id="1274">
        <source>Drag the camera to the map of its recorder.</source>
        <translation>カメラを自分のレコーダーのマップへドラッグします。</translation>
    </message>
    <message id="1275">
        <source>Drag cameras of its recorder to the sub-map.</source>
        <translation>このレコーダーのカメラをサブマップへドラッグします。</translation>
    </message>
</context>
</TS>
