<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="he" sourcelanguage="en">
<context>
    <name></name>
    <message id="0">
        <source>English</source>
        <translation>אנגלית</translation>
    </message>
    <message id="1">
        <source>Traditional Chinese</source>
        <translation>סינית מסורתית</translation>
    </message>
    <message id="2">
        <source>Simplified Chinese</source>
        <translation>סינית מפושטת</translation>
    </message>
    <message id="3">
        <source>Japanese</source>
        <translation>יפנית</translation>
    </message>
    <message id="4">
        <source>Spainish</source>
        <translation>ספרדית</translation>
    </message>
    <message id="5">
        <source>CGI ID is full !</source>
        <translation>אין מזהי CGI פנויים.</translation>
    </message>
    <message id="6">
        <source>User Name or Password Error !</source>
        <translation>שם המשתמש או הסיסמה שגויים.</translation>
    </message>
    <message id="7">
        <source>Device Connection Error !</source>
        <translation>שגיאה בחיבור להתקן.</translation>
    </message>
    <message id="8">
        <source>Device brand not supported !</source>
        <translation>יצרן ההתקן אינו נתמך.</translation>
    </message>
    <message id="9">
        <source>Sending CGI failed !</source>
        <translation>שליחת פקודת CGI נכשלה.</translation>
    </message>
    <message id="10">
        <source>Program has been opened !</source>
        <translation>התוכנית כבר פתוחה.</translation>
    </message>
    <message id="11">
        <source>Application of Setup has been Opening . Please turn it off !</source>
        <translation>תוכנית התצורה פתוחה. יש לסגור אותה תחילה.</translation>
    </message>
    <message id="12">
        <source>Database initialization ...</source>
        <translation>אתחול מסד הנתונים…</translation>
    </message>
    <message id="13">
        <source>Default Data to read ...</source>
        <translation>קריאת נתוני ברירת מחדל…</translation>
    </message>
    <message id="14">
        <source>Incorrect database version ! Do you want to reset the databse now ?</source>
        <translation>גרסת מסד הנתונים שגויה. האם לאפס את מסד הנתונים כעת?</translation>
    </message>
    <message id="15">
        <source>System will not be able to continue to work .</source>
        <translation>המערכת לא תוכל להמשיך לפעול.</translation>
    </message>
    <message id="16">
        <source>Update Database ...</source>
        <translation>עדכון מסד הנתונים…</translation>
    </message>
    <message id="17">
        <source>Data is loading ...</source>
        <translation>טעינת נתונים…</translation>
    </message>
    <message id="18">
        <source>Motion Detection setting is loading...</source>
        <translation>טעינת הגדרות זיהוי תנועה…</translation>
    </message>
    <message id="19">
        <source>User Data is loading...</source>
        <translation>טעינת נתוני משתמשים…</translation>
    </message>
    <message id="20">
        <source>Group Data  is loading...</source>
        <translation>טעינת נתוני קבוצות…</translation>
    </message>
    <message id="21">
        <source>Event setting is loading...</source>
        <translation>טעינת הגדרות אירועים…</translation>
    </message>
    <message id="22">
        <source>E-Map Data is loading ...</source>
        <translation>טעינת נתוני המפה האלקטרונית…</translation>
    </message>
    <message id="23">
        <source>Multi-Screen set up is loading ...</source>
        <translation>טעינת הגדרות ריבוי מסכים…</translation>
    </message>
    <message id="24">
        <source>System component registering  ...</source>
        <translation>רישום רכיבי מערכת…</translation>
    </message>
    <message id="25">
        <source>Login Identification ...</source>
        <translation>אימות כניסה…</translation>
    </message>
    <message id="26">
        <source>Open Login Frame ...</source>
        <translation>פתיחת חלון הכניסה…</translation>
    </message>
    <message id="27">
        <source>Loading User's Pattern …</source>
        <translation>טעינת תבניות המשתמש…</translation>
    </message>
    <message id="28">
        <source>Start Service Mode...</source>
        <translation>הפעלת מצב שירות…</translation>
    </message>
    <message id="29">
        <source>Start Monitor Window ...</source>
        <translation>הפעלת חלון הניטור…</translation>
    </message>
    <message id="30">
        <source>Start Auto Search …</source>
        <translation>התחלת חיפוש אוטומטי…</translation>
    </message>
    <message id="32">
        <source>Manual Startup</source>
        <translation>הפעלה ידנית</translation>
    </message>
    <message id="33">
        <source>Device detect timeout !</source>
        <translation>תם הזמן הקצוב לזיהוי ההתקן.</translation>
    </message>
    <message id="34">
        <source>The channel of SVR has been removed. Please re-detect the SVR!</source>
        <translation>הערוץ של ה-SVR הוסר. יש לזהות מחדש את ה-SVR.</translation>
    </message>
    <message id="35">
        <source>Please enable SVR upnp port forwarding!</source>
        <translation>יש להפעיל העברת פורטים (UPnP) ב-SVR.</translation>
    </message>
    <message id="36">
        <source>Video Wall Setting</source>
        <translation>הגדרות קיר וידאו</translation>
    </message>
    <message id="37">
        <source>Video Wall display position setting</source>
        <translation>מיקום התצוגה בקיר הווידאו</translation>
    </message>
    <message id="38">
        <source>Monitor</source>
        <translation>צג</translation>
    </message>
    <message id="39">
        <source>Startup assign setting</source>
        <translation>הקצאה בהפעלה</translation>
    </message>
    <message id="40">
        <source>User</source>
        <translation>משתמש</translation>
    </message>
    <message id="41">
        <source>Password</source>
        <translation>סיסמה</translation>
    </message>
    <message id="42">
        <source>User Field is Blank !</source>
        <translation>שדה המשתמש ריק.</translation>
    </message>
    <message id="43">
        <source>Password Field is Blank !</source>
        <translation>שדה הסיסמה ריק.</translation>
    </message>
    <message id="44">
        <source>Incorrect User Account or Password !</source>
        <translation>חשבון המשתמש או הסיסמה שגויים.</translation>
    </message>
    <message id="45">
        <source>Main Viewer</source>
        <translation>מציג ראשי</translation>
    </message>
    <message id="46">
        <source>NVR Setting</source>
        <translation>הגדרות NVR</translation>
    </message>
    <message id="47">
        <source>Event-Triggered Notification</source>
        <translation>התראה בעת אירוע</translation>
    </message>
    <message id="48">
        <source>Auto Search Notice</source>
        <translation>הודעת חיפוש אוטומטי</translation>
    </message>
    <message id="49">
        <source>Event Synchronization Manually Update</source>
        <translation>עדכון ידני של סנכרון אירועים</translation>
    </message>
    <message id="50">
        <source>About</source>
        <translation>אודות</translation>
    </message>
    <message id="51">
        <source>Exit</source>
        <translation>יציאה</translation>
    </message>
    <message id="52">
        <source>Split</source>
        <translation>חלוקה</translation>
    </message>
    <message id="53">
        <source>Change Channel</source>
        <translation>החלפת ערוץ</translation>
    </message>
    <message id="54">
        <source>OSD Display</source>
        <translation>תצוגת OSD</translation>
    </message>
    <message id="55">
        <source>CH</source>
        <translation>ערוץ</translation>
    </message>
    <message id="56">
        <source>Path</source>
        <translation>נתיב</translation>
    </message>
    <message id="57">
        <source>OSD Channel</source>
        <translation>ערוץ ב-OSD</translation>
    </message>
    <message id="58">
        <source>OSD Time</source>
        <translation>זמן ב-OSD</translation>
    </message>
    <message id="59">
        <source>Save</source>
        <translation>שמירה</translation>
    </message>
    <message id="60">
        <source>Camera Event Server Setting Error!</source>
        <translation>שגיאה בהגדרות שרת האירועים של המצלמה.</translation>
    </message>
    <message id="61">
        <source>Snapshot Error!</source>
        <translation>שגיאה בלכידת תמונה.</translation>
    </message>
    <message id="62">
        <source>Event Notification is still ongoing.</source>
        <translation>שליחת התראות האירועים עדיין נמשכת.</translation>
    </message>
    <message id="63">
        <source>Do you want to exit and open rigging desk?</source>
        <translation>האם לצאת ולפתוח את Rigging Desk?</translation>
    </message>
    <message id="64">
        <source>Auto-Search Notice</source>
        <translation>הודעת חיפוש אוטומטי</translation>
    </message>
    <message id="65">
        <source>Closing...</source>
        <translation>סגירה…</translation>
    </message>
    <message id="66">
        <source>Devcie is Found!</source>
        <translation>נמצא התקן.</translation>
    </message>
    <message id="67">
        <source>Fix display mode</source>
        <translation>מצב תצוגה קבוע</translation>
    </message>
    <message id="68">
        <source>Video Wall default startup setting</source>
        <translation>הפעלת ברירת מחדל של קיר הווידאו</translation>
    </message>
    <message id="69">
        <source>Intelligent Overview</source>
        <translation>סקירת אנליטיקה</translation>
    </message>
    <message id="70">
        <source>Do You Want to Save Snapshot Images ?</source>
        <translation>האם לשמור את התמונות שנלכדו?</translation>
    </message>
    <message id="71">
        <source>User Name or Password error !</source>
        <translation>שם המשתמש או הסיסמה שגויים.</translation>
    </message>
    <message id="72">
        <source>Brand not supported!</source>
        <translation>היצרן אינו נתמך.</translation>
    </message>
    <message id="73">
        <source>Camera not supported!</source>
        <translation>המצלמה אינה נתמכת.</translation>
    </message>
    <message id="74">
        <source>Device connection error!</source>
        <translation>שגיאה בחיבור להתקן.</translation>
    </message>
    <message id="75">
        <source>Device detection timeout!</source>
        <translation>תם הזמן הקצוב לזיהוי ההתקן.</translation>
    </message>
    <message id="76">
        <source>Unable to connect to the server!</source>
        <translation>לא ניתן להתחבר לשרת.</translation>
    </message>
    <message id="77">
        <source>Service has not connect yet!</source>
        <translation>השירות עדיין אינו מחובר.</translation>
    </message>
    <message id="78">
        <source>This series of device does not allow repeat add!</source>
        <translation>לא ניתן להוסיף התקן מסדרה זו יותר מפעם אחת.</translation>
    </message>
    <message id="79">
        <source>SEQ by Channel</source>
        <translation>סבב לפי ערוץ</translation>
    </message>
    <message id="80">
        <source>SEQ by NVR</source>
        <translation>סבב לפי NVR</translation>
    </message>
    <message id="81">
        <source>SEQ by Pattern</source>
        <translation>סבב לפי תבנית</translation>
    </message>
    <message id="82">
        <source>NVR List</source>
        <translation>רשימת NVR</translation>
    </message>
    <message id="83">
        <source>Dwell time</source>
        <translation>זמן שהייה</translation>
    </message>
    <message id="84">
        <source>SEQ function is starting, do you want to continue to start SEQ content setting, which will stop SEQ function?</source>
        <translation>הסבב פועל. פתיחת הגדרות תוכן הסבב תעצור אותו. האם להמשיך?</translation>
    </message>
    <message id="85">
        <source>Channel SEQ not available! Please select more than one channel when using this function.</source>
        <translation>סבב ערוצים אינו זמין. יש לבחור יותר מערוץ אחד כדי להשתמש באפשרות זו.</translation>
    </message>
    <message id="86">
        <source>NVR SEQ not available! Please select more than one NVR when using this function.</source>
        <translation>סבב NVR אינו זמין. יש לבחור יותר מ-NVR אחד כדי להשתמש באפשרות זו.</translation>
    </message>
    <message id="87">
        <source>Pattern SEQ not available! Please select more than one patterns when using this function.</source>
        <translation>סבב תבניות אינו זמין. יש לבחור יותר מתבנית אחת כדי להשתמש באפשרות זו.</translation>
    </message>
    <message id="88">
        <source>Do you want to enable SEQ by Channel?</source>
        <translation>האם להפעיל סבב לפי ערוץ?</translation>
    </message>
    <message id="89">
        <source>Do you want to enable SEQ by NVR?</source>
        <translation>האם להפעיל סבב לפי NVR?</translation>
    </message>
    <message id="90">
        <source>Do you want to enable SEQ by Pattern?</source>
        <translation>האם להפעיל סבב לפי תבנית?</translation>
    </message>
    <message id="91">
        <source>Camera event setting can't exceed 32!</source>
        <translation>לא ניתן להגדיר יותר מ-32 אירועי מצלמה.</translation>
    </message>
    <message id="92">
        <source>Please add a NVR first!</source>
        <translation>יש להוסיף תחילה NVR.</translation>
    </message>
    <message id="93">
        <source>Port number can't accept 0 or more than 65536.</source>
        <translation>מספר הפורט אינו יכול להיות 0 או גדול מ-65536.</translation>
    </message>
    <message id="94">
        <source>Drive</source>
        <translation>כונן</translation>
    </message>
    <message id="95">
        <source>Size(GB)</source>
        <translation>גודל (GB)</translation>
    </message>
    <message id="96">
        <source>Free(GB)</source>
        <translation>פנוי (GB)</translation>
    </message>
    <message id="97">
        <source>Usage(%)</source>
        <translation>בשימוש (%)</translation>
    </message>
    <message id="98">
        <source>Storage Path</source>
        <translation>נתיב אחסון</translation>
    </message>
    <message id="99">
        <source>Select a Path</source>
        <translation>בחירת נתיב</translation>
    </message>
    <message id="100">
        <source>Live Monitor</source>
        <translation>צפייה חיה</translation>
    </message>
    <message id="101">
        <source>Event Monitor</source>
        <translation>ניטור אירועים</translation>
    </message>
    <message id="102">
        <source>Playback</source>
        <translation>צפייה בהקלטות</translation>
    </message>
    <message id="103">
        <source>E-MAP Monitor</source>
        <translation>צפייה במפה אלקטרונית</translation>
    </message>
    <message id="104">
        <source>User Pattern</source>
        <translation>תבנית משתמש</translation>
    </message>
    <message id="105">
        <source>Split</source>
        <translation>חלוקה</translation>
    </message>
    <message id="106">
        <source>Pattern Name</source>
        <translation>שם תבנית</translation>
    </message>
    <message id="107">
        <source>Status</source>
        <translation>סטטוס</translation>
    </message>
    <message id="108">
        <source>Channel Status</source>
        <translation>סטטוס ערוץ</translation>
    </message>
    <message id="109">
        <source>Network Disconnection</source>
        <translation>ניתוק רשת</translation>
    </message>
    <message id="110">
        <source>Network connection</source>
        <translation>חיבור רשת</translation>
    </message>
    <message id="111">
        <source>Recording</source>
        <translation>הקלטה</translation>
    </message>
    <message id="112">
        <source>Event Trigger</source>
        <translation>טריגר אירוע</translation>
    </message>
    <message id="113">
        <source>Connecting</source>
        <translation>מתחבר</translation>
    </message>
    <message id="114">
        <source>Video Loss</source>
        <translation>אובדן וידאו</translation>
    </message>
    <message id="115">
        <source>SEQ Mode</source>
        <translation>מצב סבב</translation>
    </message>
    <message id="116">
        <source>(Sec)</source>
        <translation>(שנ׳)</translation>
    </message>
    <message id="117">
        <source>Start</source>
        <translation>התחלה</translation>
    </message>
    <message id="118">
        <source>Stop</source>
        <translation>עצירה</translation>
    </message>
    <message id="119">
        <source>SEQ contents</source>
        <translation>תוכן הסבב</translation>
    </message>
    <message id="120">
        <source>SEQ ALL</source>
        <translation>סבב מלא</translation>
    </message>
    <message id="121">
        <source>SEQ</source>
        <translation>סבב</translation>
    </message>
    <message id="122">
        <source>Pattern SEQ</source>
        <translation>סבב תבניות</translation>
    </message>
    <message id="123">
        <source>Service Mode</source>
        <translation>מצב שירות</translation>
    </message>
    <message id="124">
        <source>Language</source>
        <translation>שפה</translation>
    </message>
    <message id="125">
        <source>Version</source>
        <translation>גרסה</translation>
    </message>
    <message id="126">
        <source>Event Info</source>
        <translation>פרטי אירוע</translation>
    </message>
    <message id="127">
        <source>Event</source>
        <translation>אירוע</translation>
    </message>
    <message id="128">
        <source>Time</source>
        <translation>זמן</translation>
    </message>
    <message id="129">
        <source>Description</source>
        <translation>תיאור</translation>
    </message>
    <message id="130">
        <source>System Info</source>
        <translation>פרטי מערכת</translation>
    </message>
    <message id="131">
        <source>Info</source>
        <translation>פרטים</translation>
    </message>
    <message id="132">
        <source>System Time:</source>
        <translation>זמן מערכת:</translation>
    </message>
    <message id="133">
        <source>Group Level:</source>
        <translation>רמת קבוצה:</translation>
    </message>
    <message id="134">
        <source>CPU:</source>
        <translation>CPU:</translation>
    </message>
    <message id="135">
        <source>PRESET</source>
        <translation>מיקום קבוע</translation>
    </message>
    <message id="136">
        <source>Preset:</source>
        <translation>מיקום קבוע:</translation>
    </message>
    <message id="137">
        <source>Unable to support full screen mode or to change split mode under SEQ mode.</source>
        <translation>אין תמיכה במסך מלא או בשינוי חלוקה במצב סבב.</translation>
    </message>
    <message id="138">
        <source>Full screen is running. close it first!</source>
        <translation>מסך מלא פועל. יש לסגור אותו תחילה.</translation>
    </message>
    <message id="139">
        <source>Unauthorised</source>
        <translation>אין הרשאה</translation>
    </message>
    <message id="140">
        <source>Select a channel first.</source>
        <translation>יש לבחור תחילה ערוץ.</translation>
    </message>
    <message id="141">
        <source>Name Repeat!</source>
        <translation>השם כבר קיים.</translation>
    </message>
    <message id="142">
        <source>MENU</source>
        <translation>תפריט</translation>
    </message>
    <message id="143">
        <source>TREE</source>
        <translation>עץ</translation>
    </message>
    <message id="144">
        <source>PATTERN</source>
        <translation>תבנית</translation>
    </message>
    <message id="145">
        <source>STATUS</source>
        <translation>סטטוס</translation>
    </message>
    <message id="146">
        <source>SEQ</source>
        <translation>סבב</translation>
    </message>
    <message id="147">
        <source>SYSTEM</source>
        <translation>מערכת</translation>
    </message>
    <message id="148">
        <source>CH:</source>
        <translation>ערוץ:</translation>
    </message>
    <message id="149">
        <source>Reconnection</source>
        <translation>חיבור מחדש</translation>
    </message>
    <message id="150">
        <source>Audio</source>
        <translation>שמע</translation>
    </message>
    <message id="151">
        <source>Display Image of Motion Detection </source>
        <translation>הצגת תמונת זיהוי תנועה </translation>
    </message>
    <message id="152">
        <source>Snapshot</source>
        <translation>לכידת תמונה</translation>
    </message>
    <message id="153">
        <source>Preset Point Setting</source>
        <translation>הגדרת מיקום קבוע</translation>
    </message>
    <message id="154">
        <source>When modify setting, the channel of pattern will be changed.</source>
        <translation>שינוי ההגדרה ישנה גם את ערוצי התבנית.</translation>
    </message>
    <message id="155">
        <source>Snapshot fail !</source>
        <translation>לכידת התמונה נכשלה.</translation>
    </message>
    <message id="156">
        <source>Preset Patrol:</source>
        <translation>סיור מיקומים:</translation>
    </message>
    <message id="157">
        <source>Loading Fullscreen layout data…</source>
        <translation>טעינת פריסת מסך מלא…</translation>
    </message>
    <message id="158">
        <source>Dock</source>
        <translation>עגינה</translation>
    </message>
    <message id="159">
        <source>Control Panel</source>
        <translation>לוח בקרה</translation>
    </message>
    <message id="160">
        <source>Name:</source>
        <translation>שם:</translation>
    </message>
    <message id="161">
        <source>Channel:</source>
        <translation>ערוץ:</translation>
    </message>
    <message id="162">
        <source>CH Name:</source>
        <translation>שם ערוץ:</translation>
    </message>
    <message id="163">
        <source>Event Mode:</source>
        <translation>סוג אירוע:</translation>
    </message>
    <message id="164">
        <source>Event Trigger Time:</source>
        <translation>זמן הטריגר:</translation>
    </message>
    <message id="165">
        <source>Contact:</source>
        <translation>איש קשר:</translation>
    </message>
    <message id="166">
        <source>Phone:</source>
        <translation>טלפון:</translation>
    </message>
    <message id="167">
        <source>Play Time(SYSTEM):</source>
        <translation>זמן ההקלטה (מערכת):</translation>
    </message>
    <message id="168">
        <source>Current Event List</source>
        <translation>אירועים נוכחיים</translation>
    </message>
    <message id="169">
        <source>Log Event List</source>
        <translation>אירועים מהיומן</translation>
    </message>
    <message id="170">
        <source>Search</source>
        <translation>חיפוש</translation>
    </message>
    <message id="171">
        <source>Search All</source>
        <translation>חיפוש הכול</translation>
    </message>
    <message id="172">
        <source>Search Start Time</source>
        <translation>זמן תחילת החיפוש</translation>
    </message>
    <message id="173">
        <source>Search by Event type</source>
        <translation>חיפוש לפי סוג אירוע</translation>
    </message>
    <message id="174">
        <source>Item</source>
        <translation>פריט</translation>
    </message>
    <message id="175">
        <source>Event ID</source>
        <translation>מזהה אירוע</translation>
    </message>
    <message id="176">
        <source>Time</source>
        <translation>זמן</translation>
    </message>
    <message id="177">
        <source>System Time</source>
        <translation>זמן מערכת</translation>
    </message>
    <message id="178">
        <source>NO.</source>
        <translation>מס׳</translation>
    </message>
    <message id="179">
        <source>CH</source>
        <translation>ערוץ</translation>
    </message>
    <message id="180">
        <source>Event Mode</source>
        <translation>סוג אירוע</translation>
    </message>
    <message id="181">
        <source>Process</source>
        <translation>טיפול</translation>
    </message>
    <message id="182">
        <source>On-Line</source>
        <translation>מקוון</translation>
    </message>
    <message id="183">
        <source>Channel Name</source>
        <translation>שם ערוץ</translation>
    </message>
    <message id="184">
        <source>Channel Detail</source>
        <translation>פרטי ערוץ</translation>
    </message>
    <message id="185">
        <source>Play Error</source>
        <translation>שגיאה בצפייה בהקלטה</translation>
    </message>
    <message id="186">
        <source>Play Stop</source>
        <translation>הצפייה בהקלטה נעצרה</translation>
    </message>
    <message id="187">
        <source>Live Video</source>
        <translation>וידאו חי</translation>
    </message>
    <message id="188">
        <source>Live Stop</source>
        <translation>הווידאו החי נעצר</translation>
    </message>
    <message id="189">
        <source>Off Line</source>
        <translation>לא מקוון</translation>
    </message>
    <message id="190">
        <source>Error</source>
        <translation>שגיאה</translation>
    </message>
    <message id="191">
        <source>Motion</source>
        <translation>תנועה</translation>
    </message>
    <message id="192">
        <source>Sensor</source>
        <translation>חיישן</translation>
    </message>
    <message id="193">
        <source>Return message: </source>
        <translation>הודעת תגובה: </translation>
    </message>
    <message id="194">
        <source>NVR no playback resource!</source>
        <translation>אין משאבים פנויים לצפייה בהקלטות ב-NVR.</translation>
    </message>
    <message id="195">
        <source>Playback request failed!</source>
        <translation>בקשת הצפייה בהקלטות נכשלה.</translation>
    </message>
    <message id="196">
        <source>Reset Event List</source>
        <translation>איפוס רשימת אירועים</translation>
    </message>
    <message id="197">
        <source>X</source>
        <translation>X</translation>
    </message>
    <message id="198">
        <source>Return</source>
        <translation>חזרה</translation>
    </message>
    <message id="199">
        <source>SEQ Duration Time</source>
        <translation>משך הסבב</translation>
    </message>
    <message id="200">
        <source>Playback Info</source>
        <translation>פרטי צפייה בהקלטות</translation>
    </message>
    <message id="201">
        <source>NVR:</source>
        <translation>NVR:</translation>
    </message>
    <message id="202">
        <source>CH:</source>
        <translation>ערוץ:</translation>
    </message>
    <message id="203">
        <source>Speed:</source>
        <translation>מהירות:</translation>
    </message>
    <message id="204">
        <source>Sun</source>
        <translation>א׳</translation>
    </message>
    <message id="205">
        <source>Mon</source>
        <translation>ב׳</translation>
    </message>
    <message id="206">
        <source>Tue</source>
        <translation>ג׳</translation>
    </message>
    <message id="207">
        <source>Wed</source>
        <translation>ד׳</translation>
    </message>
    <message id="208">
        <source>Thu</source>
        <translation>ה׳</translation>
    </message>
    <message id="209">
        <source>Fri</source>
        <translation>ו׳</translation>
    </message>
    <message id="210">
        <source>Sat</source>
        <translation>ש׳</translation>
    </message>
    <message id="211">
        <source>Event List</source>
        <translation>רשימת אירועים</translation>
    </message>
    <message id="212">
        <source>Receiving recording data failed</source>
        <translation>קבלת נתוני ההקלטה נכשלה.</translation>
    </message>
    <message id="213">
        <source>RF</source>
        <translation>הרצה אחורה</translation>
    </message>
    <message id="214">
        <source>STOP</source>
        <translation>עצירה</translation>
    </message>
    <message id="215">
        <source>PLAY</source>
        <translation>הפעלה</translation>
    </message>
    <message id="216">
        <source>PAUSE</source>
        <translation>השהיה</translation>
    </message>
    <message id="217">
        <source>FF</source>
        <translation>הרצה קדימה</translation>
    </message>
    <message id="218">
        <source>NEXT</source>
        <translation>הבא</translation>
    </message>
    <message id="219">
        <source>No recording data can be Displayed !</source>
        <translation>אין הקלטה להצגה.</translation>
    </message>
    <message id="220">
        <source>Play Stop ! Need to select new time.</source>
        <translation>הצפייה בהקלטה נעצרה. יש לבחור זמן חדש.</translation>
    </message>
    <message id="221">
        <source>No response! you can try again or select another device !</source>
        <translation>אין תגובה. ניתן לנסות שוב או לבחור התקן אחר.</translation>
    </message>
    <message id="222">
        <source>Disconnection ! </source>
        <translation>החיבור נותק. </translation>
    </message>
    <message id="223">
        <source>Can not get video stream ! please select other Channel.</source>
        <translation>לא ניתן לקבל זרם וידאו. יש לבחור ערוץ אחר.</translation>
    </message>
    <message id="224">
        <source>No recording data.</source>
        <translation>אין הקלטה.</translation>
    </message>
    <message id="225">
        <source>Recording data is updating, please wait .</source>
        <translation>נתוני ההקלטה מתעדכנים, נא להמתין.</translation>
    </message>
    <message id="226">
        <source>Convert to AVI</source>
        <translation>המרה ל-AVI</translation>
    </message>
    <message id="227">
        <source>Do you want to stop the conversion of avi file ?</source>
        <translation>האם לעצור את ההמרה לקובץ AVI?</translation>
    </message>
    <message id="228">
        <source>AVI file conversion complete! File is... </source>
        <translation>ההמרה לקובץ AVI הושלמה. הקובץ הוא… </translation>
    </message>
    <message id="229">
        <source>Converting AVI file!</source>
        <translation>מתבצעת המרה לקובץ AVI.</translation>
    </message>
    <message id="230">
        <source>AVI Conversion Fail !</source>
        <translation>ההמרה ל-AVI נכשלה.</translation>
    </message>
    <message id="231">
        <source>Auto Pan:</source>
        <translation>צידוד אוטומטי:</translation>
    </message>
    <message id="232">
        <source>Single Video</source>
        <translation>תמונה אחת</translation>
    </message>
    <message id="233">
        <source>Quad Videos</source>
        <translation>ארבע תמונות</translation>
    </message>
    <message id="234">
        <source>Nine Videos</source>
        <translation>תשע תמונות</translation>
    </message>
    <message id="235">
        <source>No any SVD has been set, you need to add any SVD to control!</source>
        <translation>לא הוגדר אף SVD. יש להוסיף SVD כדי לשלוט בו.</translation>
    </message>
    <message id="236">
        <source>This channel has been set to display in this screen!</source>
        <translation>ערוץ זה כבר הוגדר לתצוגה במסך זה.</translation>
    </message>
    <message id="237">
        <source>Are you sure to exit SVD console monitor?</source>
        <translation>האם לצאת ממסוף ה-SVD?</translation>
    </message>
    <message id="238">
        <source>Click here to reconnect again!</source>
        <translation>יש ללחוץ כאן כדי להתחבר מחדש.</translation>
    </message>
    <message id="239">
        <source>SVD UI is changing…</source>
        <translation>ממשק ה-SVD מתחלף…</translation>
    </message>
    <message id="240">
        <source>NO.:</source>
        <translation>מס׳:</translation>
    </message>
    <message id="241">
        <source>Name:</source>
        <translation>שם:</translation>
    </message>
    <message id="242">
        <source>Number of Camera:</source>
        <translation>מספר מצלמות:</translation>
    </message>
    <message id="243">
        <source>Event:</source>
        <translation>אירוע:</translation>
    </message>
    <message id="244">
        <source>No Event</source>
        <translation>אין אירועים</translation>
    </message>
    <message id="245">
        <source>CH:</source>
        <translation>ערוץ:</translation>
    </message>
    <message id="246">
        <source>Up</source>
        <translation>למעלה</translation>
    </message>
    <message id="247">
        <source>Down</source>
        <translation>למטה</translation>
    </message>
    <message id="248">
        <source>Left</source>
        <translation>שמאלה</translation>
    </message>
    <message id="249">
        <source>Right</source>
        <translation>ימינה</translation>
    </message>
    <message id="250">
        <source>Upper left</source>
        <translation>שמאלה למעלה</translation>
    </message>
    <message id="251">
        <source>Upper right</source>
        <translation>ימינה למעלה</translation>
    </message>
    <message id="252">
        <source>Lower left</source>
        <translation>שמאלה למטה</translation>
    </message>
    <message id="253">
        <source>Lower right</source>
        <translation>ימינה למטה</translation>
    </message>
    <message id="254">
        <source>Home</source>
        <translation>עמדת בית</translation>
    </message>
    <message id="255">
        <source>Zoom In</source>
        <translation>התקרבות</translation>
    </message>
    <message id="256">
        <source>Zoom Out</source>
        <translation>התרחקות</translation>
    </message>
    <message id="257">
        <source>Focus Far</source>
        <translation>מיקוד רחוק</translation>
    </message>
    <message id="258">
        <source>Focus Near</source>
        <translation>מיקוד קרוב</translation>
    </message>
    <message id="259">
        <source>Auto Focus</source>
        <translation>מיקוד אוטומטי</translation>
    </message>
    <message id="260">
        <source>IRIS Auto</source>
        <translation>צמצם אוטומטי</translation>
    </message>
    <message id="261">
        <source>IRIS Close</source>
        <translation>סגירת צמצם</translation>
    </message>
    <message id="262">
        <source>IRIS Open</source>
        <translation>פתיחת צמצם</translation>
    </message>
    <message id="263">
        <source>Auto Pan Left</source>
        <translation>צידוד אוטומטי שמאלה</translation>
    </message>
    <message id="264">
        <source>Auto Pan Right</source>
        <translation>צידוד אוטומטי ימינה</translation>
    </message>
    <message id="265">
        <source>Auto Pan Stop</source>
        <translation>עצירת צידוד אוטומטי</translation>
    </message>
    <message id="266">
        <source>Moving Rate(+)</source>
        <translation>מהירות תנועה (+)</translation>
    </message>
    <message id="267">
        <source>Moving Rate(-)</source>
        <translation>מהירות תנועה (-)</translation>
    </message>
    <message id="268">
        <source>Display OSD on all channels</source>
        <translation>הצגת OSD בכל הערוצים</translation>
    </message>
    <message id="269">
        <source>Display OSD</source>
        <translation>הצגת OSD</translation>
    </message>
    <message id="270">
        <source>Detail Export:</source>
        <translation>ייצוא פרטים:</translation>
    </message>
    <message id="271">
        <source>Valid Ch</source>
        <translation>ערוצים תקינים</translation>
    </message>
    <message id="272">
        <source>Auto Search</source>
        <translation>חיפוש אוטומטי</translation>
    </message>
    <message id="273">
        <source>Manual Detection</source>
        <translation>זיהוי ידני</translation>
    </message>
    <message id="274">
        <source>NVR ID:</source>
        <translation>מזהה NVR:</translation>
    </message>
    <message id="275">
        <source>IP:</source>
        <translation>IP:</translation>
    </message>
    <message id="276">
        <source>HTTP Port:</source>
        <translation>פורט HTTP:</translation>
    </message>
    <message id="277">
        <source>Next</source>
        <translation>הבא</translation>
    </message>
    <message id="278">
        <source>Device Name</source>
        <translation>שם התקן</translation>
    </message>
    <message id="279">
        <source>All</source>
        <translation>הכול</translation>
    </message>
    <message id="280">
        <source>CHs</source>
        <translation>ערוצים</translation>
    </message>
    <message id="281">
        <source>Model:</source>
        <translation>דגם:</translation>
    </message>
    <message id="282">
        <source>Max Channel:</source>
        <translation>מקס׳ ערוצים:</translation>
    </message>
    <message id="283">
        <source>NVR Name:</source>
        <translation>שם NVR:</translation>
    </message>
    <message id="284">
        <source>Version:</source>
        <translation>גרסה:</translation>
    </message>
    <message id="285">
        <source>Valid Channel:</source>
        <translation>ערוצים תקינים:</translation>
    </message>
    <message id="286">
        <source>Sync With NVR</source>
        <translation>סנכרון עם NVR</translation>
    </message>
    <message id="287">
        <source>Add New NVR </source>
        <translation>הוספת NVR חדש </translation>
    </message>
    <message id="288">
        <source>NVR Search List</source>
        <translation>רשימת חיפוש NVR</translation>
    </message>
    <message id="289">
        <source>NVR Detect Status</source>
        <translation>סטטוס זיהוי NVR</translation>
    </message>
    <message id="290">
        <source>NVR Detail Setting</source>
        <translation>פרטי NVR</translation>
    </message>
    <message id="291">
        <source>NVR Channel Setting</source>
        <translation>הגדרות ערוצי NVR</translation>
    </message>
    <message id="292">
        <source>Preset Sequence Setting</source>
        <translation>הגדרת סבב מיקומים</translation>
    </message>
    <message id="293">
        <source>Get Capability...</source>
        <translation>קבלת יכולות…</translation>
    </message>
    <message id="294">
        <source>Get Channel Info...</source>
        <translation>קבלת פרטי ערוצים…</translation>
    </message>
    <message id="295">
        <source>Get NVR Info...</source>
        <translation>קבלת פרטי NVR…</translation>
    </message>
    <message id="296">
        <source>Initial NVR Value...</source>
        <translation>אתחול ערכי NVR…</translation>
    </message>
    <message id="297">
        <source>Add Success!</source>
        <translation>ההוספה הצליחה.</translation>
    </message>
    <message id="298">
        <source>Channel List</source>
        <translation>רשימת ערוצים</translation>
    </message>
    <message id="299">
        <source>Split:</source>
        <translation>חלוקה:</translation>
    </message>
    <message id="300">
        <source>MainViewer opened. Close it First!</source>
        <translation>המציג הראשי פתוח. יש לסגור אותו תחילה.</translation>
    </message>
    <message id="301">
        <source>System &amp; Setting</source>
        <translation>מערכת והגדרות</translation>
    </message>
    <message id="302">
        <source>Setting</source>
        <translation>הגדרות</translation>
    </message>
    <message id="303">
        <source>Manual Setting</source>
        <translation>הגדרה ידנית</translation>
    </message>
    <message id="304">
        <source>PTZ Config</source>
        <translation>תצורת PTZ</translation>
    </message>
    <message id="305">
        <source>Motion Setting</source>
        <translation>הגדרות תנועה</translation>
    </message>
    <message id="306">
        <source>Motion Setting</source>
        <translation>הגדרות תנועה</translation>
    </message>
    <message id="307">
        <source>General Setting Overview</source>
        <translation>סקירת הגדרות כלליות</translation>
    </message>
    <message id="308">
        <source>Group/User Config</source>
        <translation>קבוצות/משתמשים</translation>
    </message>
    <message id="309">
        <source>Event Handling Config</source>
        <translation>טיפול באירועים</translation>
    </message>
    <message id="310">
        <source>E-Map Config</source>
        <translation>תצורת מפה אלקטרונית</translation>
    </message>
    <message id="311">
        <source>Screen Layout Config</source>
        <translation>פריסת מסכים</translation>
    </message>
    <message id="312">
        <source>Event Action Overview</source>
        <translation>סקירת פעולות אירוע</translation>
    </message>
    <message id="313">
        <source>Mail Config</source>
        <translation>תצורת דוא״ל</translation>
    </message>
    <message id="314">
        <source>FTP Config</source>
        <translation>תצורת FTP</translation>
    </message>
    <message id="315">
        <source>Message Config</source>
        <translation>תצורת הודעות</translation>
    </message>
    <message id="316">
        <source>Sound Config</source>
        <translation>תצורת צליל</translation>
    </message>
    <message id="317">
        <source>Save</source>
        <translation>שמירה</translation>
    </message>
    <message id="318">
        <source>Main Viewer</source>
        <translation>מציג ראשי</translation>
    </message>
    <message id="319">
        <source>Exit</source>
        <translation>יציאה</translation>
    </message>
    <message id="320">
        <source>Setup</source>
        <translation>תצורה</translation>
    </message>
    <message id="321">
        <source>SEQ Control</source>
        <translation>בקרת סבב</translation>
    </message>
    <message id="322">
        <source>Pattern Name:</source>
        <translation>שם תבנית:</translation>
    </message>
    <message id="323">
        <source>Do you continue to delete this pattern?</source>
        <translation>האם למחוק תבנית זו?</translation>
    </message>
    <message id="324">
        <source>Pattern List Overview</source>
        <translation>סקירת תבניות</translation>
    </message>
    <message id="325">
        <source>Name or Channel list need to be set!</source>
        <translation>יש להגדיר שם או רשימת ערוצים.</translation>
    </message>
    <message id="326">
        <source>Live Monitor SEQ and full screen can not be opened at the same time.</source>
        <translation>לא ניתן לפתוח בו-זמנית סבב ומסך מלא בצפייה החיה.</translation>
    </message>
    <message id="327">
        <source>No channel is selected!</source>
        <translation>לא נבחר ערוץ.</translation>
    </message>
    <message id="328">
        <source>Select time is out of data range!</source>
        <translation>הזמן שנבחר מחוץ לטווח הנתונים.</translation>
    </message>
    <message id="329">
        <source>NVR is invalid!</source>
        <translation>ה-NVR אינו תקין.</translation>
    </message>
    <message id="330">
        <source>System Setting</source>
        <translation>הגדרות מערכת</translation>
    </message>
    <message id="331">
        <source>Application name:</source>
        <translation>שם היישום:</translation>
    </message>
    <message id="332">
        <source>Version:</source>
        <translation>גרסה:</translation>
    </message>
    <message id="333">
        <source>Language:</source>
        <translation>שפה:</translation>
    </message>
    <message id="334">
        <source>Start Up:</source>
        <translation>בהפעלה:</translation>
    </message>
    <message id="335">
        <source>Event Sync Time:</source>
        <translation>זמן סנכרון אירועים:</translation>
    </message>
    <message id="336">
        <source>Snapshot Count:</source>
        <translation>מספר תמונות:</translation>
    </message>
    <message id="337">
        <source>Camera Event Server Setting</source>
        <translation>הגדרות שרת האירועים של המצלמה</translation>
    </message>
    <message id="338">
        <source>Account:</source>
        <translation>חשבון:</translation>
    </message>
    <message id="339">
        <source>Password:</source>
        <translation>סיסמה:</translation>
    </message>
    <message id="340">
        <source>Port:</source>
        <translation>פורט:</translation>
    </message>
    <message id="341">
        <source>System Info</source>
        <translation>פרטי מערכת</translation>
    </message>
    <message id="343">
        <source>OS:</source>
        <translation>מערכת הפעלה:</translation>
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
        <translation>שם המחשב:</translation>
    </message>
    <message id="347">
        <source>Total space of HD:</source>
        <translation>נפח הדיסק הכולל:</translation>
    </message>
    <message id="348">
        <source>Network Connect Status:</source>
        <translation>סטטוס חיבור לרשת:</translation>
    </message>
    <message id="349">
        <source>System Time:</source>
        <translation>זמן מערכת:</translation>
    </message>
    <message id="350">
        <source>Screen Count:</source>
        <translation>מספר מסכים:</translation>
    </message>
    <message id="351">
        <source>CPU Performance:</source>
        <translation>עומס CPU:</translation>
    </message>
    <message id="352">
        <source>Login Windows then Auto Start up </source>
        <translation>הפעלה אוטומטית לאחר כניסה ל-Windows </translation>
    </message>
    <message id="353">
        <source>Start in background</source>
        <translation>הפעלה ברקע</translation>
    </message>
    <message id="354">
        <source>Minute</source>
        <translation>דקות</translation>
    </message>
    <message id="356">
        <source>NVR is connecting, wait a moment and start again!</source>
        <translation>ה-NVR מתחבר. יש להמתין רגע ולהתחיל שוב.</translation>
    </message>
    <message id="357">
        <source>NVR is offline, please choose another NVR or confirm this NVR connection status!</source>
        <translation>ה-NVR אינו מקוון. יש לבחור NVR אחר או לבדוק את סטטוס החיבור שלו.</translation>
    </message>
    <message id="358">
        <source>Output device has been removed!</source>
        <translation>התקן הפלט הוסר.</translation>
    </message>
    <message id="359">
        <source>Password confirm inconsistency, Please check again!</source>
        <translation>הסיסמאות אינן תואמות. יש לבדוק שוב.</translation>
    </message>
    <message id="360">
        <source>List:</source>
        <translation>רשימה:</translation>
    </message>
    <message id="361">
        <source>NVR</source>
        <translation>NVR</translation>
    </message>
    <message id="362">
        <source>Name</source>
        <translation>שם</translation>
    </message>
    <message id="363">
        <source>IP</source>
        <translation>IP</translation>
    </message>
    <message id="364">
        <source>Port</source>
        <translation>פורט</translation>
    </message>
    <message id="365">
        <source>Power</source>
        <translation>הרשאה</translation>
    </message>
    <message id="366">
        <source>CH</source>
        <translation>ערוץ</translation>
    </message>
    <message id="367">
        <source>CH Name</source>
        <translation>שם ערוץ</translation>
    </message>
    <message id="368">
        <source>CH IP</source>
        <translation>IP ערוץ</translation>
    </message>
    <message id="369">
        <source>CH Port</source>
        <translation>פורט ערוץ</translation>
    </message>
    <message id="370">
        <source>CH Brand</source>
        <translation>יצרן ערוץ</translation>
    </message>
    <message id="371">
        <source>Video Format</source>
        <translation>פורמט וידאו</translation>
    </message>
    <message id="372">
        <source>Video RES</source>
        <translation>רזולוציית וידאו</translation>
    </message>
    <message id="373">
        <source>MD Enable</source>
        <translation>זיהוי תנועה פעיל</translation>
    </message>
    <message id="374">
        <source>MD Sen</source>
        <translation>רגישות תנועה</translation>
    </message>
    <message id="375">
        <source>CH PTZ</source>
        <translation>PTZ בערוץ</translation>
    </message>
    <message id="376">
        <source>CH audio</source>
        <translation>שמע ערוץ</translation>
    </message>
    <message id="377">
        <source>Detect List</source>
        <translation>רשימת זיהוי</translation>
    </message>
    <message id="378">
        <source>Advance Control </source>
        <translation>בקרה מתקדמת </translation>
    </message>
    <message id="379">
        <source>IP</source>
        <translation>IP</translation>
    </message>
    <message id="380">
        <source>Port</source>
        <translation>פורט</translation>
    </message>
    <message id="381">
        <source>Brand</source>
        <translation>יצרן</translation>
    </message>
    <message id="382">
        <source>Model</source>
        <translation>דגם</translation>
    </message>
    <message id="383">
        <source>MAC</source>
        <translation>MAC</translation>
    </message>
    <message id="384">
        <source>Detect Time</source>
        <translation>זמן זיהוי</translation>
    </message>
    <message id="385">
        <source>Add</source>
        <translation>הוספה</translation>
    </message>
    <message id="386">
        <source>Remove</source>
        <translation>הסרה</translation>
    </message>
    <message id="387">
        <source>Modify</source>
        <translation>שינוי</translation>
    </message>
    <message id="388">
        <source>Reconection </source>
        <translation>חיבור מחדש </translation>
    </message>
    <message id="389">
        <source>Open Browser</source>
        <translation>פתיחת דפדפן</translation>
    </message>
    <message id="390">
        <source>Preset Info</source>
        <translation>פרטי מיקום קבוע</translation>
    </message>
    <message id="391">
        <source>Sync</source>
        <translation>סנכרון</translation>
    </message>
    <message id="392">
        <source>Edit Preset</source>
        <translation>עריכת מיקום</translation>
    </message>
    <message id="393">
        <source>Preset No</source>
        <translation>מספר מיקום</translation>
    </message>
    <message id="394">
        <source>Preset Name</source>
        <translation>שם מיקום</translation>
    </message>
    <message id="395">
        <source>PTZ Control</source>
        <translation>בקרת PTZ</translation>
    </message>
    <message id="396">
        <source>Submit</source>
        <translation>אישור</translation>
    </message>
    <message id="397">
        <source>Motion Detect List:</source>
        <translation>רשימת זיהוי תנועה:</translation>
    </message>
    <message id="398">
        <source>Sensitivity:</source>
        <translation>רגישות:</translation>
    </message>
    <message id="399">
        <source>Motion Detect Setting</source>
        <translation>הגדרות זיהוי תנועה</translation>
    </message>
    <message id="400">
        <source>*Use Mouse drag the Device item into Intelligent detection List.</source>
        <translation>*יש לגרור התקנים באמצעות העכבר אל רשימת האנליטיקה.</translation>
    </message>
    <message id="401">
        <source>Device List:</source>
        <translation>רשימת התקנים:</translation>
    </message>
    <message id="402">
        <source>Trigger for Motion Detect</source>
        <translation>טריגר לזיהוי תנועה</translation>
    </message>
    <message id="403">
        <source>Status</source>
        <translation>סטטוס</translation>
    </message>
    <message id="404">
        <source>Motion Enable List:</source>
        <translation>רשימת זיהוי תנועה פעיל:</translation>
    </message>
    <message id="405">
        <source>Clear All</source>
        <translation>ניקוי הכול</translation>
    </message>
    <message id="406">
        <source>Select All</source>
        <translation>בחירת הכול</translation>
    </message>
    <message id="407">
        <source>High</source>
        <translation>גבוה</translation>
    </message>
    <message id="408">
        <source>Normal</source>
        <translation>רגיל</translation>
    </message>
    <message id="409">
        <source>Low</source>
        <translation>נמוך</translation>
    </message>
    <message id="410">
        <source>SET</source>
        <translation>קביעה</translation>
    </message>
    <message id="411">
        <source>User List:</source>
        <translation>רשימת משתמשים:</translation>
    </message>
    <message id="412">
        <source>Group List:</source>
        <translation>רשימת קבוצות:</translation>
    </message>
    <message id="413">
        <source>Event Setting List:</source>
        <translation>רשימת הגדרות אירועים:</translation>
    </message>
    <message id="414">
        <source>EMap List:</source>
        <translation>רשימת מפות:</translation>
    </message>
    <message id="415">
        <source>Screen List:</source>
        <translation>רשימת מסכים:</translation>
    </message>
    <message id="416">
        <source>Account</source>
        <translation>חשבון</translation>
    </message>
    <message id="417">
        <source>Company</source>
        <translation>חברה</translation>
    </message>
    <message id="418">
        <source>Telephone</source>
        <translation>טלפון</translation>
    </message>
    <message id="419">
        <source>Mail 1</source>
        <translation>דוא״ל 1</translation>
    </message>
    <message id="420">
        <source>Mail 2</source>
        <translation>דוא״ל 2</translation>
    </message>
    <message id="421">
        <source>Cell Phone</source>
        <translation>טלפון נייד</translation>
    </message>
    <message id="422">
        <source>Photo Path</source>
        <translation>נתיב תמונה</translation>
    </message>
    <message id="423">
        <source>Group</source>
        <translation>קבוצה</translation>
    </message>
    <message id="424">
        <source>Event</source>
        <translation>אירוע</translation>
    </message>
    <message id="425">
        <source>Mail</source>
        <translation>דוא״ל</translation>
    </message>
    <message id="426">
        <source>FTP</source>
        <translation>FTP</translation>
    </message>
    <message id="427">
        <source>Msg</source>
        <translation>הודעה</translation>
    </message>
    <message id="428">
        <source>Sound</source>
        <translation>צליל</translation>
    </message>
    <message id="429">
        <source>Video Power</source>
        <translation>הרשאת וידאו</translation>
    </message>
    <message id="430">
        <source>Playback</source>
        <translation>צפייה בהקלטות</translation>
    </message>
    <message id="431">
        <source>PTZ</source>
        <translation>PTZ</translation>
    </message>
    <message id="432">
        <source>Setup</source>
        <translation>תצורה</translation>
    </message>
    <message id="433">
        <source>Map</source>
        <translation>מפה</translation>
    </message>
    <message id="434">
        <source>Path</source>
        <translation>נתיב</translation>
    </message>
    <message id="435">
        <source>Function</source>
        <translation>פונקציה</translation>
    </message>
    <message id="436">
        <source>Screen</source>
        <translation>מסך</translation>
    </message>
    <message id="437">
        <source>MainMap</source>
        <translation>מפה ראשית</translation>
    </message>
    <message id="438">
        <source>FullScreen</source>
        <translation>מסך מלא</translation>
    </message>
    <message id="439">
        <source>FullScreen2</source>
        <translation>מסך מלא 2</translation>
    </message>
    <message id="440">
        <source>User Detail List</source>
        <translation>פרטי משתמשים</translation>
    </message>
    <message id="441">
        <source>Group List</source>
        <translation>רשימת קבוצות</translation>
    </message>
    <message id="442">
        <source>Add User</source>
        <translation>הוספת משתמש</translation>
    </message>
    <message id="443">
        <source>Remove User</source>
        <translation>הסרת משתמש</translation>
    </message>
    <message id="444">
        <source>Modify User</source>
        <translation>שינוי משתמש</translation>
    </message>
    <message id="445">
        <source>Modify Group</source>
        <translation>שינוי קבוצה</translation>
    </message>
    <message id="446">
        <source>System Event Trigger Action</source>
        <translation>פעולה בעת אירוע מערכת</translation>
    </message>
    <message id="447">
        <source>NVR Event Trigger Action</source>
        <translation>פעולה בעת אירוע NVR</translation>
    </message>
    <message id="448">
        <source>System Start/Stop</source>
        <translation>הפעלה/עצירה של המערכת</translation>
    </message>
    <message id="449">
        <source>Modify Setting of System</source>
        <translation>שינוי הגדרות מערכת</translation>
    </message>
    <message id="450">
        <source>Modify Setting of NVR</source>
        <translation>שינוי הגדרות NVR</translation>
    </message>
    <message id="451">
        <source>Modify Setting of Intelligent detection</source>
        <translation>שינוי הגדרות אנליטיקה</translation>
    </message>
    <message id="452">
        <source>Modify Setting of General</source>
        <translation>שינוי הגדרות כלליות</translation>
    </message>
    <message id="453">
        <source>Modify Setting of Event</source>
        <translation>שינוי הגדרות אירועים</translation>
    </message>
    <message id="454">
        <source>E1:Motion Detect</source>
        <translation>אירוע E1: זיהוי תנועה</translation>
    </message>
    <message id="455">
        <source>Sensor Detection</source>
        <translation>זיהוי חיישן</translation>
    </message>
    <message id="456">
        <source>*Double Click Map to Setting</source>
        <translation>*להגדרה יש ללחוץ פעמיים על המפה</translation>
    </message>
    <message id="457">
        <source>SubMap</source>
        <translation>מפת משנה</translation>
    </message>
    <message id="458">
        <source>Screen Layout</source>
        <translation>פריסת מסכים</translation>
    </message>
    <message id="459">
        <source>Mail</source>
        <translation>דוא״ל</translation>
    </message>
    <message id="460">
        <source>FTP</source>
        <translation>FTP</translation>
    </message>
    <message id="461">
        <source>Message</source>
        <translation>הודעה</translation>
    </message>
    <message id="462">
        <source>Sound</source>
        <translation>צליל</translation>
    </message>
    <message id="463">
        <source>Sender E-mail Address</source>
        <translation>כתובת דוא״ל של השולח</translation>
    </message>
    <message id="464">
        <source>Mail Server</source>
        <translation>שרת דואר</translation>
    </message>
    <message id="465">
        <source>User</source>
        <translation>משתמש</translation>
    </message>
    <message id="466">
        <source>Password</source>
        <translation>סיסמה</translation>
    </message>
    <message id="467">
        <source>Adressee Name</source>
        <translation>שם הנמען</translation>
    </message>
    <message id="468">
        <source>Mail Addrrss</source>
        <translation>כתובת דוא״ל</translation>
    </message>
    <message id="469">
        <source>Server IP</source>
        <translation>IP של השרת</translation>
    </message>
    <message id="470">
        <source>Server Port</source>
        <translation>פורט השרת</translation>
    </message>
    <message id="471">
        <source>Text</source>
        <translation>טקסט</translation>
    </message>
    <message id="472">
        <source>Sound Description</source>
        <translation>תיאור צליל</translation>
    </message>
    <message id="473">
        <source>Sound File Path</source>
        <translation>נתיב קובץ צליל</translation>
    </message>
    <message id="474">
        <source>Test</source>
        <translation>בדיקה</translation>
    </message>
    <message id="475">
        <source>Cancel</source>
        <translation>ביטול</translation>
    </message>
    <message id="476">
        <source>Mail to</source>
        <translation>נמען</translation>
    </message>
    <message id="477">
        <source>FTP Setting</source>
        <translation>הגדרות FTP</translation>
    </message>
    <message id="478">
        <source>Message Setting</source>
        <translation>הגדרות הודעה</translation>
    </message>
    <message id="479">
        <source>Message</source>
        <translation>הודעה</translation>
    </message>
    <message id="480">
        <source>Sound Setting</source>
        <translation>הגדרות צליל</translation>
    </message>
    <message id="481">
        <source>Set HTTP Server failed! Do you want to remove all HTTP Servers?</source>
        <translation>הגדרת שרת HTTP נכשלה. האם להסיר את כל שרתי ה-HTTP?</translation>
    </message>
    <message id="482">
        <source>The amount cannot be more than 16!</source>
        <translation>הכמות אינה יכולה לעלות על 16.</translation>
    </message>
    <message id="483">
        <source>Do you want to delete the selected NVR?</source>
        <translation>האם למחוק את ה-NVR שנבחר?</translation>
    </message>
    <message id="484">
        <source>Sender name can't be empty!</source>
        <translation>שם השולח אינו יכול להיות ריק.</translation>
    </message>
    <message id="485">
        <source>Mail Server can't be empty!</source>
        <translation>שרת הדואר אינו יכול להיות ריק.</translation>
    </message>
    <message id="486">
        <source>User can't be empty!</source>
        <translation>שם המשתמש אינו יכול להיות ריק.</translation>
    </message>
    <message id="487">
        <source>Password can't be empty!</source>
        <translation>הסיסמה אינה יכולה להיות ריקה.</translation>
    </message>
    <message id="488">
        <source>Mail Address can't be empty!</source>
        <translation>כתובת הדוא״ל אינה יכולה להיות ריקה.</translation>
    </message>
    <message id="489">
        <source>Test mail sent success.</source>
        <translation>הודעת הבדיקה נשלחה בהצלחה.</translation>
    </message>
    <message id="490">
        <source>Test mail sent failed.</source>
        <translation>שליחת הודעת הבדיקה נכשלה.</translation>
    </message>
    <message id="491">
        <source>Server IP can't be empty!</source>
        <translation>כתובת ה-IP של השרת אינה יכולה להיות ריקה.</translation>
    </message>
    <message id="492">
        <source>Server Port can't be empty!</source>
        <translation>פורט השרת אינו יכול להיות ריק.</translation>
    </message>
    <message id="493">
        <source>Root Path can't be empty!</source>
        <translation>נתיב השורש אינו יכול להיות ריק.</translation>
    </message>
    <message id="494">
        <source>Connecting to ftp server success.</source>
        <translation>ההתחברות לשרת ה-FTP הצליחה.</translation>
    </message>
    <message id="495">
        <source>Connecting to ftp server failed.</source>
        <translation>ההתחברות לשרת ה-FTP נכשלה.</translation>
    </message>
    <message id="496">
        <source>Message can't be empty!</source>
        <translation>ההודעה אינה יכולה להיות ריקה.</translation>
    </message>
    <message id="497">
        <source>Sound Description can't be empty!</source>
        <translation>תיאור הצליל אינו יכול להיות ריק.</translation>
    </message>
    <message id="498">
        <source>Sound file Path can't be empty!</source>
        <translation>נתיב קובץ הצליל אינו יכול להיות ריק.</translation>
    </message>
    <message id="499">
        <source>Preset number select first.</source>
        <translation>יש לבחור תחילה מספר מיקום.</translation>
    </message>
    <message id="500">
        <source>The Preset Name has been used.</source>
        <translation>שם המיקום כבר בשימוש.</translation>
    </message>
    <message id="501">
        <source>Do you want to delete the selected User?</source>
        <translation>האם למחוק את המשתמש שנבחר?</translation>
    </message>
    <message id="502">
        <source>Can't Delete User.</source>
        <translation>לא ניתן למחוק את המשתמש.</translation>
    </message>
    <message id="503">
        <source>Already Set.</source>
        <translation>כבר הוגדר.</translation>
    </message>
    <message id="504">
        <source>Intelligent setting can't exceed 16</source>
        <translation>לא ניתן להוסיף יותר מ-16 הגדרות אנליטיקה.</translation>
    </message>
    <message id="505">
        <source>Add NVR failed! Please add again.</source>
        <translation>הוספת ה-NVR נכשלה. יש להוסיף שוב.</translation>
    </message>
    <message id="506">
        <source>File Size can't more than 5MB</source>
        <translation>גודל הקובץ אינו יכול לעלות על 5 MB.</translation>
    </message>
    <message id="507">
        <source>Save OK</source>
        <translation>השמירה הצליחה.</translation>
    </message>
    <message id="508">
        <source>Exit and Open MainViewer?</source>
        <translation>האם לצאת ולפתוח את המציג הראשי?</translation>
    </message>
    <message id="509">
        <source>Do you want to exit?</source>
        <translation>האם לצאת?</translation>
    </message>
    <message id="510">
        <source>Resolution Not Support .</source>
        <translation>הרזולוציה אינה נתמכת.</translation>
    </message>
    <message id="511">
        <source>Do you want to Save?</source>
        <translation>האם לשמור?</translation>
    </message>
    <message id="512">
        <source>The Channel does not support motion detection or is no connection !</source>
        <translation>הערוץ אינו תומך בזיהוי תנועה או שאינו מחובר.</translation>
    </message>
    <message id="513">
        <source>No setting !</source>
        <translation>אין הגדרות.</translation>
    </message>
    <message id="514">
        <source>Settings have changed , Do you want to save ?</source>
        <translation>ההגדרות השתנו. האם לשמור?</translation>
    </message>
    <message id="515">
        <source>Not yet set of Event Action config!</source>
        <translation>פעולת האירוע עדיין לא הוגדרה.</translation>
    </message>
    <message id="516">
        <source>Video can't connection.</source>
        <translation>לא ניתן להתחבר לווידאו.</translation>
    </message>
    <message id="517">
        <source>Submit</source>
        <translation>אישור</translation>
    </message>
    <message id="518">
        <source>Save Setting</source>
        <translation>שמירת הגדרות</translation>
    </message>
    <message id="519">
        <source>Close this window</source>
        <translation>סגירת חלון זה</translation>
    </message>
    <message id="520">
        <source>Preset Sequence</source>
        <translation>סבב מיקומים</translation>
    </message>
    <message id="521">
        <source>Dwell Time:</source>
        <translation>זמן שהייה:</translation>
    </message>
    <message id="522">
        <source>PTZ Preset</source>
        <translation>מיקום PTZ קבוע</translation>
    </message>
    <message id="523">
        <source>Preset Sequence</source>
        <translation>סבב מיקומים</translation>
    </message>
    <message id="524">
        <source>Select a wave file</source>
        <translation>בחירת קובץ WAV</translation>
    </message>
    <message id="525">
        <source>File Name: </source>
        <translation>שם קובץ: </translation>
    </message>
    <message id="526">
        <source>Message sent successfully!</source>
        <translation>ההודעה נשלחה בהצלחה.</translation>
    </message>
    <message id="527">
        <source>Sending Message fail!</source>
        <translation>שליחת ההודעה נכשלה.</translation>
    </message>
    <message id="528">
        <source>MAX Video</source>
        <translation>הגדלת וידאו</translation>
    </message>
    <message id="529">
        <source>Enable/Disable auto switch group to display videos.</source>
        <translation>הפעלה/השבתה של החלפה אוטומטית בין קבוצות להצגת וידאו.</translation>
    </message>
    <message id="530">
        <source>Enable/Disable maximum video to display.</source>
        <translation>הפעלה/השבתה של תצוגת וידאו מוגדלת.</translation>
    </message>
    <message id="531">
        <source>Live Video</source>
        <translation>וידאו חי</translation>
    </message>
    <message id="532">
        <source>Do you want to cancel playback for NVR?</source>
        <translation>האם לבטל את הצפייה בהקלטות של ה-NVR?</translation>
    </message>
    <message id="533">
        <source>The selected time doesn't have any recording data!</source>
        <translation>אין הקלטה בזמן שנבחר.</translation>
    </message>
    <message id="534">
        <source>Select channel you want to change and reset the relational data information?</source>
        <translation>האם לשנות את הערוץ שנבחר ולאפס את הנתונים הקשורים אליו?</translation>
    </message>
    <message id="535">
        <source>This NVR cannot get group ID to playback!</source>
        <translation>לא ניתן לקבל מ-NVR זה מזהה קבוצה לצפייה בהקלטות.</translation>
    </message>
    <message id="536">
        <source>Select the SVD has been disconnected, so close the panel and make sure that SVD status!</source>
        <translation>החיבור ל-SVD שנבחר נותק. יש לסגור את הלוח ולבדוק את סטטוס ה-SVD.</translation>
    </message>
    <message id="550">
        <source>IP Address</source>
        <translation>כתובת IP</translation>
    </message>
    <message id="551">
        <source>Http Port</source>
        <translation>פורט HTTP</translation>
    </message>
    <message id="552">
        <source>Add</source>
        <translation>הוספה</translation>
    </message>
    <message id="553">
        <source>NVR Name can't be empty!</source>
        <translation>שם ה-NVR אינו יכול להיות ריק.</translation>
    </message>
    <message id="554">
        <source>IP address or hostname set incorrectly!</source>
        <translation>כתובת ה-IP או שם המארח שגויים.</translation>
    </message>
    <message id="555">
        <source>NVR don't exist!</source>
        <translation>ה-NVR אינו קיים.</translation>
    </message>
    <message id="556">
        <source>Port set incorrectly!</source>
        <translation>הפורט שגוי.</translation>
    </message>
    <message id="557">
        <source>Add</source>
        <translation>הוספה</translation>
    </message>
    <message id="558">
        <source>NVR select setting</source>
        <translation>בחירת NVR</translation>
    </message>
    <message id="559">
        <source>Pattern select setting</source>
        <translation>בחירת תבניות</translation>
    </message>
    <message id="560">
        <source>All list</source>
        <translation>רשימה מלאה</translation>
    </message>
    <message id="561">
        <source>Selected list</source>
        <translation>רשימת הנבחרים</translation>
    </message>
    <message id="562">
        <source>Select item is less than 2 items, it can not be saved!</source>
        <translation>נבחרו פחות מ-2 פריטים, ולא ניתן לשמור.</translation>
    </message>
    <message id="563">
        <source>Functions that were originally assigned on this screen will be moved to screen #1 automatically.</source>
        <translation>פונקציות שהוקצו למסך זה יועברו אוטומטית למסך 1.</translation>
    </message>
    <message id="564">
        <source>Has not enough pattern can be selected!</source>
        <translation>אין מספיק תבניות לבחירה.</translation>
    </message>
    <message id="565">
        <source>This screen has been assigned to Video Wall!</source>
        <translation>מסך זה הוקצה לקיר הווידאו.</translation>
    </message>
    <message id="566">
        <source>Has not enough device can be selected!</source>
        <translation>אין מספיק התקנים לבחירה.</translation>
    </message>
    <message id="570">
        <source>Information</source>
        <translation>מידע</translation>
    </message>
    <message id="571">
        <source>*Name</source>
        <translation>*שם</translation>
    </message>
    <message id="572">
        <source>*IP Address</source>
        <translation>*כתובת IP</translation>
    </message>
    <message id="573">
        <source>*Http Port</source>
        <translation>*פורט HTTP</translation>
    </message>
    <message id="574">
        <source>*User</source>
        <translation>*משתמש</translation>
    </message>
    <message id="575">
        <source>*Password</source>
        <translation>*סיסמה</translation>
    </message>
    <message id="576">
        <source>Detect</source>
        <translation>זיהוי</translation>
    </message>
    <message id="577">
        <source>Device Setting</source>
        <translation>הגדרות התקן</translation>
    </message>
    <message id="578">
        <source>NO.</source>
        <translation>מס׳</translation>
    </message>
    <message id="579">
        <source>Camera name</source>
        <translation>שם מצלמה</translation>
    </message>
    <message id="580">
        <source>Video Port</source>
        <translation>פורט וידאו</translation>
    </message>
    <message id="581">
        <source>Format</source>
        <translation>פורמט</translation>
    </message>
    <message id="582">
        <source>Resolution</source>
        <translation>רזולוציה</translation>
    </message>
    <message id="583">
        <source>PTZ</source>
        <translation>PTZ</translation>
    </message>
    <message id="584">
        <source>Audio</source>
        <translation>שמע</translation>
    </message>
    <message id="585">
        <source>Edit Camera Setting</source>
        <translation>עריכת הגדרות מצלמה</translation>
    </message>
    <message id="586">
        <source>Camera No</source>
        <translation>מספר מצלמה</translation>
    </message>
    <message id="587">
        <source>Camera IP</source>
        <translation>IP של המצלמה</translation>
    </message>
    <message id="588">
        <source>Additional Camera Information</source>
        <translation>פרטי מצלמה נוספים</translation>
    </message>
    <message id="589">
        <source>Min. Bitrate</source>
        <translation>קצב סיביות מזערי</translation>
    </message>
    <message id="590">
        <source>Max. Bitrate</source>
        <translation>קצב סיביות מרבי</translation>
    </message>
    <message id="591">
        <source>Apply</source>
        <translation>החלה</translation>
    </message>
    <message id="592">
        <source>Remove</source>
        <translation>הסרה</translation>
    </message>
    <message id="593">
        <source>NVR IP can't be empty.</source>
        <translation>כתובת ה-IP של ה-NVR אינה יכולה להיות ריקה.</translation>
    </message>
    <message id="594">
        <source>NVR Http Port can't be empty.</source>
        <translation>פורט ה-HTTP של ה-NVR אינו יכול להיות ריק.</translation>
    </message>
    <message id="595">
        <source>NVR User can't be empty.</source>
        <translation>משתמש ה-NVR אינו יכול להיות ריק.</translation>
    </message>
    <message id="596">
        <source>NVR Password can't be empty.</source>
        <translation>סיסמת ה-NVR אינה יכולה להיות ריקה.</translation>
    </message>
    <message id="597">
        <source>Request Time Zone ERR! Please Detect again.</source>
        <translation>שגיאה בקבלת אזור הזמן. יש לזהות שוב.</translation>
    </message>
    <message id="598">
        <source>Please Select Brand.</source>
        <translation>יש לבחור יצרן.</translation>
    </message>
    <message id="599">
        <source>IP Timeout.</source>
        <translation>תם הזמן הקצוב לחיבור לכתובת ה-IP.</translation>
    </message>
    <message id="600">
        <source>Quality</source>
        <translation>איכות</translation>
    </message>
    <message id="601">
        <source>Bitrate</source>
        <translation>קצב סיביות</translation>
    </message>
    <message id="602">
        <source>Bitrate Mode</source>
        <translation>מצב קצב סיביות</translation>
    </message>
    <message id="603">
        <source>CH name can't be empty!</source>
        <translation>שם הערוץ אינו יכול להיות ריק.</translation>
    </message>
    <message id="604">
        <source>IP address can't be empty!</source>
        <translation>כתובת ה-IP אינה יכולה להיות ריקה.</translation>
    </message>
    <message id="605">
        <source>Http Port can't be empty!</source>
        <translation>פורט ה-HTTP אינו יכול להיות ריק.</translation>
    </message>
    <message id="606">
        <source>User account can't be empty!</source>
        <translation>חשבון המשתמש אינו יכול להיות ריק.</translation>
    </message>
    <message id="607">
        <source>Password can't be empty!</source>
        <translation>הסיסמה אינה יכולה להיות ריקה.</translation>
    </message>
    <message id="608">
        <source>Detection Error!</source>
        <translation>שגיאת זיהוי.</translation>
    </message>
    <message id="609">
        <source>No Camera or connect failed !</source>
        <translation>אין מצלמה או שהחיבור נכשל.</translation>
    </message>
    <message id="610">
        <source>This firmware version of NVR is not supported , please update newer Version.</source>
        <translation>גרסת קושחה זו של ה-NVR אינה נתמכת. יש לעדכן לגרסה חדשה יותר.</translation>
    </message>
    <message id="611">
        <source>If you press the button, data inside NVR will be changed!</source>
        <translation>לחיצה על הלחצן תשנה את הנתונים ב-NVR.</translation>
    </message>
    <message id="612">
        <source>Camera Search</source>
        <translation>חיפוש מצלמות</translation>
    </message>
    <message id="613">
        <source>Brand not Support!</source>
        <translation>היצרן אינו נתמך.</translation>
    </message>
    <message id="614">
        <source>FPS</source>
        <translation>FPS</translation>
    </message>
    <message id="615">
        <source>Video Format Error!</source>
        <translation>שגיאה בפורמט הווידאו.</translation>
    </message>
    <message id="616">
        <source>Camera settings have changes, please re-detect.</source>
        <translation>הגדרות המצלמה השתנו. יש לזהות מחדש.</translation>
    </message>
    <message id="617">
        <source>Add Camera Fail!</source>
        <translation>הוספת המצלמה נכשלה.</translation>
    </message>
    <message id="618">
        <source>DIS Setting</source>
        <translation>הגדרות DIS</translation>
    </message>
    <message id="619">
        <source>Device not supported!</source>
        <translation>ההתקן אינו נתמך.</translation>
    </message>
    <message id="620">
        <source>This account is already set!</source>
        <translation>חשבון זה כבר הוגדר.</translation>
    </message>
    <message id="621">
        <source>Do you want to continue edit preset point?</source>
        <translation>האם להמשיך לערוך את המיקום הקבוע?</translation>
    </message>
    <message id="630">
        <source>Group Name</source>
        <translation>שם קבוצה</translation>
    </message>
    <message id="631">
        <source>Power Level</source>
        <translation>רמת הרשאה</translation>
    </message>
    <message id="632">
        <source>Function Permission</source>
        <translation>הרשאות פונקציה</translation>
    </message>
    <message id="633">
        <source>Playback</source>
        <translation>צפייה בהקלטות</translation>
    </message>
    <message id="634">
        <source>PTZ Control</source>
        <translation>בקרת PTZ</translation>
    </message>
    <message id="635">
        <source>System Setup</source>
        <translation>תצורת מערכת</translation>
    </message>
    <message id="636">
        <source>Group Setting</source>
        <translation>הגדרות קבוצה</translation>
    </message>
    <message id="640">
        <source>File Size can't more than 10MB</source>
        <translation>גודל הקובץ אינו יכול לעלות על 10 MB.</translation>
    </message>
    <message id="641">
        <source>EMap Setting</source>
        <translation>הגדרות מפה אלקטרונית</translation>
    </message>
    <message id="642">
        <source>*Double Click Windows to change Map images.</source>
        <translation>*להחלפת תמונת המפה יש ללחוץ פעמיים על החלון.</translation>
    </message>
    <message id="643">
        <source>Select an image file</source>
        <translation>בחירת קובץ תמונה</translation>
    </message>
    <message id="645">
        <source>User Setting</source>
        <translation>הגדרות משתמש</translation>
    </message>
    <message id="646">
        <source>Photo</source>
        <translation>תמונה</translation>
    </message>
    <message id="647">
        <source>(Dubble Click to Setting)</source>
        <translation>(להגדרה יש ללחוץ פעמיים)</translation>
    </message>
    <message id="648">
        <source>Check</source>
        <translation>בדיקה</translation>
    </message>
    <message id="649">
        <source>*User Name</source>
        <translation>*שם משתמש</translation>
    </message>
    <message id="650">
        <source>*Password Confirm</source>
        <translation>*אימות סיסמה</translation>
    </message>
    <message id="651">
        <source>*:Necessary</source>
        <translation>*: שדה חובה</translation>
    </message>
    <message id="652">
        <source>This name not yet use</source>
        <translation>שם זה פנוי.</translation>
    </message>
    <message id="653">
        <source>This name in use</source>
        <translation>שם זה בשימוש.</translation>
    </message>
    <message id="660">
        <source>User&amp;Password</source>
        <translation>משתמש וסיסמה</translation>
    </message>
    <message id="661">
        <source>User or Password is not input!</source>
        <translation>לא הוזנו משתמש או סיסמה.</translation>
    </message>
    <message id="671">
        <source>DIS Service Setting</source>
        <translation>הגדרות שירות DIS</translation>
    </message>
    <message id="672">
        <source>Account List</source>
        <translation>רשימת חשבונות</translation>
    </message>
    <message id="673">
        <source>Do you want to remove this user?</source>
        <translation>האם להסיר משתמש זה?</translation>
    </message>
    <message id="674">
        <source>The account has reached the upper limit, for add new account you need to remove another account.</source>
        <translation>מספר החשבונות הגיע למגבלה. כדי להוסיף חשבון חדש יש להסיר חשבון אחר.</translation>
    </message>
    <message id="675">
        <source>Object Loss</source>
        <translation>הסרת אובייקט</translation>
    </message>
    <message id="676">
        <source>Tripwire</source>
        <translation>חציית קו</translation>
    </message>
    <message id="677">
        <source>Threat</source>
        <translation>חבלה</translation>
    </message>
    <message id="678">
        <source>Enable</source>
        <translation>הפעלה</translation>
    </message>
    <message id="679">
        <source>Intelligent Setting</source>
        <translation>הגדרות אנליטיקה</translation>
    </message>
    <message id="680">
        <source>Intelligent detection List</source>
        <translation>רשימת אנליטיקה</translation>
    </message>
    <message id="681">
        <source>Object Loss Reset</source>
        <translation>סיום הסרת אובייקט</translation>
    </message>
    <message id="682">
        <source>Threat Detection Reset</source>
        <translation>סיום זיהוי חבלה</translation>
    </message>
    <message id="683">
        <source>Image Enhance</source>
        <translation>שיפור תמונה</translation>
    </message>
    <message id="684">
        <source>Port number can't accept more then 32767.</source>
        <translation>מספר הפורט אינו יכול להיות גדול מ-32767.</translation>
    </message>
    <message id="685">
        <source>Keep Ratio</source>
        <translation>שמירת יחס תצוגה</translation>
    </message>
    <message id="686">
        <source>Intelligent Detection</source>
        <translation>אנליטיקה</translation>
    </message>
    <message id="687">
        <source>OSD Size</source>
        <translation>גודל OSD</translation>
    </message>
    <message id="688">
        <source>OSD Color</source>
        <translation>צבע OSD</translation>
    </message>
    <message id="689">
        <source>Small</source>
        <translation>קטן</translation>
    </message>
    <message id="690">
        <source>Middle</source>
        <translation>בינוני</translation>
    </message>
    <message id="691">
        <source>Large</source>
        <translation>גדול</translation>
    </message>
    <message id="692">
        <source>FullScreen Initial</source>
        <translation>מסך מלא בהפעלה</translation>
    </message>
    <message id="693">
        <source>Startup Screen Layout</source>
        <translation>פריסת מסכים בהפעלה</translation>
    </message>
    <message id="694">
        <source>Leave to save the screen layout.</source>
        <translation>ביציאה תישמר פריסת המסכים.</translation>
    </message>
    <message id="695">
        <source>Function default start</source>
        <translation>הפעלת ברירת מחדל של פונקציות</translation>
    </message>
    <message id="696">
        <source>Function assign</source>
        <translation>הקצאת פונקציות</translation>
    </message>
    <message id="697">
        <source>Pattern setting</source>
        <translation>הגדרות תבנית</translation>
    </message>
    <message id="698">
        <source>Name can't be empty.</source>
        <translation>השם אינו יכול להיות ריק.</translation>
    </message>
    <message id="699">
        <source>Object Counting</source>
        <translation>ספירת אובייקטים</translation>
    </message>
    <message id="700">
        <source>Foreign Object</source>
        <translation>אובייקט נטוש</translation>
    </message>
    <message id="701">
        <source>Foreign Object Reset </source>
        <translation>סיום אובייקט נטוש </translation>
    </message>
    <message id="702">
        <source>Manual Recording</source>
        <translation>הקלטה ידנית</translation>
    </message>
    <message id="703">
        <source>Device settings have changes, please re-detect.</source>
        <translation>הגדרות ההתקן השתנו. יש לזהות מחדש.</translation>
    </message>
    <message id="704">
        <source>English and Digit Only</source>
        <translation>אותיות באנגלית וספרות בלבד</translation>
    </message>
    <message id="705">
        <source>Emap Group Assign</source>
        <translation>הקצאת קבוצות מפות</translation>
    </message>
    <message id="706">
        <source>Emap Group </source>
        <translation>קבוצת מפות </translation>
    </message>
    <message id="707">
        <source>Member:</source>
        <translation>פריטים:</translation>
    </message>
    <message id="708">
        <source>Emap Position Assign</source>
        <translation>הקצאת מיקום במפה</translation>
    </message>
    <message id="709">
        <source>Parent</source>
        <translation>קבוצת אב</translation>
    </message>
    <message id="710">
        <source>Group Type </source>
        <translation>סוג קבוצה </translation>
    </message>
    <message id="711">
        <source>Auto Switch</source>
        <translation>החלפה אוטומטית</translation>
    </message>
    <message id="712">
        <source>Double-click back to previous group</source>
        <translation>לחיצה כפולה לחזרה לקבוצה הקודמת</translation>
    </message>
    <message id="713">
        <source>Drag and Drop to Move</source>
        <translation>גרירה ושחרור להזזה</translation>
    </message>
    <message id="714">
        <source>Do you want to delete the selected Emap Group?</source>
        <translation>האם למחוק את קבוצת המפות שנבחרה?</translation>
    </message>
    <message id="715">
        <source>The amount of device will be over default value!</source>
        <translation>כמות ההתקנים תעלה על המותר.</translation>
    </message>
    <message id="716">
        <source>The amount of total channels will be over default value!</source>
        <translation>כמות הערוצים הכוללת תעלה על המותר.</translation>
    </message>
    <message id="717">
        <source>Channel selection</source>
        <translation>בחירת ערוצים</translation>
    </message>
    <message id="718">
        <source>Get device capability error!</source>
        <translation>שגיאה בקבלת יכולות ההתקן.</translation>
    </message>
    <message id="719">
        <source>This device does not has any channel.</source>
        <translation>להתקן זה אין ערוצים.</translation>
    </message>
    <message id="720">
        <source>Please add channels  or  re-select the other device.</source>
        <translation>יש להוסיף ערוצים או לבחור התקן אחר.</translation>
    </message>
    <message id="721">
        <source>This device does not has any channel,Do you want to remove the device?</source>
        <translation>להתקן זה אין ערוצים. האם להסיר את ההתקן?</translation>
    </message>
    <message id="722">
        <source>Setting fail!</source>
        <translation>ההגדרה נכשלה.</translation>
    </message>
    <message id="723">
        <source>Do you want to stop SEQ mode?</source>
        <translation>האם לעצור את מצב הסבב?</translation>
    </message>
    <message id="725">
        <source>Type </source>
        <translation>סוג </translation>
    </message>
    <message id="726">
        <source>No change!</source>
        <translation>אין שינוי.</translation>
    </message>
    <message id="727">
        <source>Face Counting</source>
        <translation>ספירת פנים</translation>
    </message>
    <message id="728">
        <source>Unknown</source>
        <translation>לא ידוע</translation>
    </message>
    <message id="729">
        <source>Event Export</source>
        <translation>ייצוא אירועים</translation>
    </message>
    <message id="730">
        <source>System Log Export</source>
        <translation>ייצוא יומן מערכת</translation>
    </message>
    <message id="731">
        <source>System Log</source>
        <translation>יומן מערכת</translation>
    </message>
    <message id="732">
        <source>NVR Select</source>
        <translation>בחירת NVR</translation>
    </message>
    <message id="733">
        <source>Condition</source>
        <translation>תנאי</translation>
    </message>
    <message id="734">
        <source>Time Range:</source>
        <translation>טווח זמן:</translation>
    </message>
    <message id="735">
        <source>Start Time:</source>
        <translation>זמן התחלה:</translation>
    </message>
    <message id="736">
        <source>End Time:</source>
        <translation>זמן סיום:</translation>
    </message>
    <message id="737">
        <source>Event Type:</source>
        <translation>סוג אירוע:</translation>
    </message>
    <message id="738">
        <source>User:</source>
        <translation>משתמש:</translation>
    </message>
    <message id="739">
        <source>Export Format:</source>
        <translation>פורמט ייצוא:</translation>
    </message>
    <message id="740">
        <source>Export</source>
        <translation>ייצוא</translation>
    </message>
    <message id="741">
        <source>You must select a path to export!</source>
        <translation>יש לבחור נתיב לייצוא.</translation>
    </message>
    <message id="742">
        <source>Start Time must less than End time!</source>
        <translation>זמן ההתחלה חייב להיות מוקדם מזמן הסיום.</translation>
    </message>
    <message id="743">
        <source>No Event!</source>
        <translation>אין אירועים.</translation>
    </message>
    <message id="744">
        <source>No System Log!</source>
        <translation>אין רשומות ביומן המערכת.</translation>
    </message>
    <message id="745">
        <source>CSV Export finish!</source>
        <translation>הייצוא ל-CSV הסתיים.</translation>
    </message>
    <message id="746">
        <source>MDB Export finish!</source>
        <translation>הייצוא ל-MDB הסתיים.</translation>
    </message>
    <message id="747">
        <source>Custom</source>
        <translation>מותאם אישית</translation>
    </message>
    <message id="748">
        <source>NVR Overview</source>
        <translation>סקירת NVR</translation>
    </message>
    <message id="749">
        <source>Video Wall Console</source>
        <translation>מסוף קיר וידאו</translation>
    </message>
    <message id="750">
        <source>Lock Screen </source>
        <translation>נעילת מסך </translation>
    </message>
    <message id="751">
        <source>Unlock Screen</source>
        <translation>שחרור נעילת מסך</translation>
    </message>
    <message id="752">
        <source>Video Wall</source>
        <translation>קיר וידאו</translation>
    </message>
    <message id="753">
        <source>Pattern List</source>
        <translation>רשימת תבניות</translation>
    </message>
    <message id="754">
        <source>SEQ List</source>
        <translation>רשימת סבבים</translation>
    </message>
    <message id="755">
        <source>OK</source>
        <translation>אישור</translation>
    </message>
    <message id="756">
        <source>SEQ content setting</source>
        <translation>הגדרת תוכן הסבב</translation>
    </message>
    <message id="757">
        <source>Max Channel</source>
        <translation>מקס׳ ערוצים</translation>
    </message>
    <message id="758">
        <source>Video server</source>
        <translation>שרת וידאו</translation>
    </message>
    <message id="759">
        <source>Support</source>
        <translation>תמיכה</translation>
    </message>
    <message id="760">
        <source>Original View</source>
        <translation>תצוגה מקורית</translation>
    </message>
    <message id="761">
        <source>Broad View</source>
        <translation>תצוגה רחבה</translation>
    </message>
    <message id="762">
        <source>Quad View</source>
        <translation>תצוגה מרובעת</translation>
    </message>
    <message id="763">
        <source>Quad and Source View</source>
        <translation>תצוגה מרובעת ומקורית</translation>
    </message>
    <message id="764">
        <source>Double View</source>
        <translation>תצוגה כפולה</translation>
    </message>
    <message id="765">
        <source>Triple View</source>
        <translation>תצוגה משולשת</translation>
    </message>
    <message id="766">
        <source>Digital PTZ</source>
        <translation>בקרת PTZ דיגיטלית</translation>
    </message>
    <message id="767">
        <source>Lens</source>
        <translation>עדשה</translation>
    </message>
    <message id="768">
        <source>It could not be opened, the insufficient number of available screens!</source>
        <translation>לא ניתן לפתוח, אין מספיק מסכים זמינים.</translation>
    </message>
    <message id="769">
        <source>It could not be opened, The Video Wall is not enabled! </source>
        <translation>לא ניתן לפתוח, קיר הווידאו אינו מופעל. </translation>
    </message>
    <message id="770">
        <source>The quantity of screen is not enough! Not support!</source>
        <translation>אין מספיק מסכים. הפעולה אינה נתמכת.</translation>
    </message>
    <message id="772">
        <source>Settings have changed , Please re-open MainViewer!</source>
        <translation>ההגדרות השתנו. יש לפתוח מחדש את המציג הראשי.</translation>
    </message>
    <message id="773">
        <source>Preview</source>
        <translation>תצוגה מקדימה</translation>
    </message>
    <message id="774">
        <source>Update system log with below defined condition</source>
        <translation>עדכון יומן המערכת לפי התנאים שלהלן</translation>
    </message>
    <message id="775">
        <source>Transform recording index</source>
        <translation>המרת אינדקס הקלטה</translation>
    </message>
    <message id="776">
        <source>Event Image Sync Setting</source>
        <translation>הגדרת סנכרון תמונות אירוע</translation>
    </message>
    <message id="777">
        <source>Event snapshot storage space is not enough!</source>
        <translation>אין מספיק שטח אחסון לתמונות אירוע.</translation>
    </message>
    <message id="779">
        <source>Intelligent Mode</source>
        <translation>מצב אנליטיקה</translation>
    </message>
    <message id="780">
        <source>Add Intelligent Setting</source>
        <translation>הוספת הגדרת אנליטיקה</translation>
    </message>
    <message id="781">
        <source>Camera Event</source>
        <translation>אירוע מצלמה</translation>
    </message>
    <message id="782">
        <source>ROI Setting</source>
        <translation>הגדרות ROI</translation>
    </message>
    <message id="783">
        <source>Trigger Mode</source>
        <translation>מצב טריגר</translation>
    </message>
    <message id="784">
        <source>Channel Privilege</source>
        <translation>הרשאת ערוץ</translation>
    </message>
    <message id="785">
        <source>Group Overview</source>
        <translation>סקירת קבוצות</translation>
    </message>
    <message id="786">
        <source>User Overview</source>
        <translation>סקירת משתמשים</translation>
    </message>
    <message id="787">
        <source>Event Server</source>
        <translation>שרת אירועים</translation>
    </message>
    <message id="788">
        <source>Trigger By</source>
        <translation>מקור הטריגר</translation>
    </message>
    <message id="789">
        <source>Configuration Modify</source>
        <translation>שינוי תצורה</translation>
    </message>
    <message id="790">
        <source>Intelligent Event Trigger</source>
        <translation>טריגר אירוע אנליטיקה</translation>
    </message>
    <message id="791">
        <source>NVR Event Trigger</source>
        <translation>טריגר אירוע NVR</translation>
    </message>
    <message id="792">
        <source>Trigger Action</source>
        <translation>פעולת טריגר</translation>
    </message>
    <message id="793">
        <source>Addresses: (Use ',' to separate e-mails)</source>
        <translation>כתובות: (יש להפריד ביניהן בפסיקים)</translation>
    </message>
    <message id="794">
        <source>Content</source>
        <translation>תוכן</translation>
    </message>
    <message id="795">
        <source>Video Wall Layout</source>
        <translation>פריסת קיר וידאו</translation>
    </message>
    <message id="796">
        <source>No Enough screen can be set!</source>
        <translation>אין מספיק מסכים להגדרה.</translation>
    </message>
    <message id="797">
        <source>SVD Management</source>
        <translation>ניהול SVD</translation>
    </message>
    <message id="798">
        <source>SVD Detail Setting</source>
        <translation>פרטי SVD</translation>
    </message>
    <message id="799">
        <source>SVD Layout</source>
        <translation>פריסת SVD</translation>
    </message>
    <message id="800">
        <source>SVD ID:</source>
        <translation>מזהה SVD:</translation>
    </message>
    <message id="801">
        <source>SVD Name:</source>
        <translation>שם SVD:</translation>
    </message>
    <message id="802">
        <source>Display</source>
        <translation>תצוגה</translation>
    </message>
    <message id="803">
        <source>Resolution</source>
        <translation>רזולוציה</translation>
    </message>
    <message id="804">
        <source>Priority</source>
        <translation>עדיפות</translation>
    </message>
    <message id="805">
        <source>Default Split</source>
        <translation>חלוקת ברירת מחדל</translation>
    </message>
    <message id="806">
        <source>Default Channel List</source>
        <translation>רשימת ערוצי ברירת מחדל</translation>
    </message>
    <message id="807">
        <source>Live Stream</source>
        <translation>זרם חי</translation>
    </message>
    <message id="808">
        <source>Dynamic Streaming</source>
        <translation>הזרמה דינמית</translation>
    </message>
    <message id="809">
        <source>Screen Default Layout</source>
        <translation>פריסת ברירת מחדל של המסכים</translation>
    </message>
    <message id="810">
        <source>Channel list</source>
        <translation>רשימת ערוצים</translation>
    </message>
    <message id="811">
        <source>Begin</source>
        <translation>התחלה</translation>
    </message>
    <message id="812">
        <source>Previous</source>
        <translation>הקודם</translation>
    </message>
    <message id="813">
        <source>System Log Viewer</source>
        <translation>מציג יומן המערכת</translation>
    </message>
    <message id="814">
        <source>Management </source>
        <translation>ניהול </translation>
    </message>
    <message id="815">
        <source>Viewer</source>
        <translation>מציג</translation>
    </message>
    <message id="816">
        <source>Add New SVD</source>
        <translation>הוספת SVD חדש</translation>
    </message>
    <message id="817">
        <source>Primary</source>
        <translation>ראשי</translation>
    </message>
    <message id="818">
        <source>Secondary</source>
        <translation>משני</translation>
    </message>
    <message id="819">
        <source>Available</source>
        <translation>זמין</translation>
    </message>
    <message id="820">
        <source>Not Available</source>
        <translation>לא זמין</translation>
    </message>
    <message id="821">
        <source>Invalid E-mail Address!</source>
        <translation>כתובת דוא״ל לא תקינה.</translation>
    </message>
    <message id="822">
        <source>Invalid Value!</source>
        <translation>ערך לא תקין.</translation>
    </message>
    <message id="823">
        <source>Can't add repeatedly!</source>
        <translation>לא ניתן להוסיף שוב.</translation>
    </message>
    <message id="824">
        <source>Can't add SVD anymore!</source>
        <translation>לא ניתן להוסיף עוד SVD.</translation>
    </message>
    <message id="826">
        <source>Do you want to remove this SVD?</source>
        <translation>האם להסיר SVD זה?</translation>
    </message>
    <message id="827">
        <source>Disable this Video Wall?</source>
        <translation>האם להשבית קיר וידאו זה?</translation>
    </message>
    <message id="828">
        <source>Export finish!</source>
        <translation>הייצוא הסתיים.</translation>
    </message>
    <message id="829">
        <source>Brand:</source>
        <translation>יצרן:</translation>
    </message>
    <message id="830">
        <source>Password Mask</source>
        <translation>הסתרת סיסמה</translation>
    </message>
    <message id="831">
        <source>NVR Account setting</source>
        <translation>הגדרת חשבון NVR</translation>
    </message>
    <message id="832">
        <source>No any NVR has been selected.</source>
        <translation>לא נבחר NVR.</translation>
    </message>
    <message id="833">
        <source>Detect successful!</source>
        <translation>הזיהוי הצליח.</translation>
    </message>
    <message id="834">
        <source>Failed configuring camera detection on channel:</source>
        <translation>הגדרת הזיהוי של המצלמה נכשלה בערוצים:</translation>
    </message>
    <message id="835">
        <source>Trigger action has done.</source>
        <translation>פעולת הטריגר בוצעה.</translation>
    </message>
    <message id="836">
        <source>Event server has not set.</source>
        <translation>שרת האירועים לא הוגדר.</translation>
    </message>
    <message id="837">
        <source>Privilege Setting</source>
        <translation>הגדרות הרשאות</translation>
    </message>
    <message id="838">
        <source>NVR Privilege Setting</source>
        <translation>הגדרות הרשאות NVR</translation>
    </message>
    <message id="839">
        <source>SVD Console</source>
        <translation>מסוף SVD</translation>
    </message>
    <message id="840">
        <source>SVD Search List</source>
        <translation>רשימת חיפוש SVD</translation>
    </message>
    <message id="841">
        <source>No Monitor connect!</source>
        <translation>אין צג מחובר.</translation>
    </message>
    <message id="842">
        <source>Do you want to remove this intelligent setting?</source>
        <translation>האם להסיר הגדרת אנליטיקה זו?</translation>
    </message>
    <message id="843">
        <source>Event snapshot doesn't work!</source>
        <translation>לכידת תמונות אירוע אינה פועלת.</translation>
    </message>
    <message id="850">
        <source>System</source>
        <translation>מערכת</translation>
    </message>
    <message id="851">
        <source>Intelligent</source>
        <translation>אנליטיקה</translation>
    </message>
    <message id="852">
        <source>User and group</source>
        <translation>משתמשים וקבוצות</translation>
    </message>
    <message id="853">
        <source>Event handling</source>
        <translation>טיפול באירועים</translation>
    </message>
    <message id="854">
        <source>Event server</source>
        <translation>שרת אירועים</translation>
    </message>
    <message id="855">
        <source>E-Map</source>
        <translation>מפה אלקטרונית</translation>
    </message>
    <message id="856">
        <source>Screen layout</source>
        <translation>פריסת מסכים</translation>
    </message>
    <message id="857">
        <source>Startup</source>
        <translation>תצוגת פתיחה</translation>
    </message>
    <message id="858">
        <source>Tooling</source>
        <translation>כלים</translation>
    </message>
    <message id="859">
        <source>This page is not available in this version.</source>
        <translation>דף זה אינו זמין בגרסה זו.</translation>
    </message>
    <message id="860">
        <source>Its data in the database stays as it is.</source>
        <translation>הנתונים השמורים עבורו במסד הנתונים נשארים ללא שינוי.</translation>
    </message>
    <message id="861">
        <source>No recorder yet</source>
        <translation>אין עדיין מקליטים</translation>
    </message>
    <message id="862">
        <source>Enter the address of the station's first recorder to add it.</source>
        <translation>יש להקליד את כתובת המקליט הראשון של התחנה כדי להוסיף אותו.</translation>
    </message>
    <message id="863">
        <source>Filter name, address, model…</source>
        <translation>סינון לפי שם, כתובת, דגם…</translation>
    </message>
    <message id="864">
        <source>Recorders of this station</source>
        <translation>המקליטים של תחנה זו</translation>
    </message>
    <message id="865">
        <source>Recorders: %1 of %2</source>
        <translation>מקליטים: %1 מתוך %2</translation>
    </message>
    <message id="866">
        <source>Channels: %1 of %2</source>
        <translation>ערוצים: %1 מתוך %2</translation>
    </message>
    <message id="867">
        <source>No recorder matches the filter.</source>
        <translation>אין מקליט התואם למסנן.</translation>
    </message>
    <message id="868">
        <source>Unsaved changes</source>
        <translation>יש שינויים שלא נשמרו</translation>
    </message>
    <message id="870">
        <source>Switch to dark colours</source>
        <translation>מעבר לעיצוב כהה</translation>
    </message>
    <message id="871">
        <source>Switch to light colours</source>
        <translation>מעבר לעיצוב בהיר</translation>
    </message>
    <message id="872">
        <source>Waiting</source>
        <translation>ממתין</translation>
    </message>
    <message id="873">
        <source>Finish</source>
        <translation>סיום</translation>
    </message>
    <message id="874">
        <source>Done: %1 of %2</source>
        <translation>הושלמו: %1 מתוך %2</translation>
    </message>
    <message id="875">
        <source>Choose</source>
        <translation>בחירה</translation>
    </message>
    <message id="876">
        <source>Edit</source>
        <translation>עריכה</translation>
    </message>
    <message id="877">
        <source>Delete</source>
        <translation>מחיקה</translation>
    </message>
    <message id="878">
        <source>Yes</source>
        <translation>כן</translation>
    </message>
    <message id="879">
        <source>No</source>
        <translation>לא</translation>
    </message>
    <message id="880">
        <source>Back</source>
        <translation>חזרה</translation>
    </message>
    <message id="881">
        <source>Close</source>
        <translation>סגירה</translation>
    </message>
    <message id="882">
        <source>Pages</source>
        <translation>דפים</translation>
    </message>
    <message id="884">
        <source>Enter the address of one recorder.</source>
        <translation>יש להקליד כתובת של מקליט אחד.</translation>
    </message>
    <message id="885">
        <source>Leave both empty to try the known device accounts.</source>
        <translation>אפשר להשאיר את שני השדות ריקים כדי לנסות את חשבונות ההתקנים המוכרים.</translation>
    </message>
    <message id="886">
        <source>About this installation</source>
        <translation>אודות התקנה זו</translation>
    </message>
    <message id="887">
        <source>Show password</source>
        <translation>הצגת סיסמה</translation>
    </message>
    <message id="888">
        <source>Searching…</source>
        <translation>מתבצע חיפוש…</translation>
    </message>
    <message id="890">
        <source>Name and behaviour of this station</source>
        <translation>שם התחנה ואופן פעולתה</translation>
    </message>
    <message id="892">
        <source>Recorder slot</source>
        <translation>מקום למקליט</translation>
    </message>
    <message id="896">
        <source>Connected</source>
        <translation>מחובר</translation>
    </message>
    <message id="898">
        <source>Product:</source>
        <translation>מוצר:</translation>
    </message>
    <message id="899">
        <source>Hide password</source>
        <translation>הסתרת סיסמה</translation>
    </message>
    <message id="900">
        <source>Anyone who opens Rigging Desk is its administrator, because there is no user yet.</source>
        <translation>כל מי שפותח את Rigging Desk הוא מנהל המערכת, כי עדיין לא הוגדרו משתמשים.</translation>
    </message>
    <message id="901">
        <source>Create the first administrator</source>
        <translation>יצירת המנהל הראשון</translation>
    </message>
    <message id="902">
        <source>Not now</source>
        <translation>לא עכשיו</translation>
    </message>
    <message id="903">
        <source>No user yet</source>
        <translation>אין עדיין משתמשים</translation>
    </message>
    <message id="904">
        <source>Accessible cameras</source>
        <translation>מצלמות נגישות</translation>
    </message>
    <message id="905">
        <source>Who has access</source>
        <translation>למי יש גישה</translation>
    </message>
    <message id="906">
        <source>Filter channels…</source>
        <translation>סינון ערוצים…</translation>
    </message>
    <message id="907">
        <source>Whole recorder</source>
        <translation>המקליט כולו</translation>
    </message>
    <message id="908">
        <source>Live</source>
        <translation>צפייה חיה</translation>
    </message>
    <message id="909">
        <source>Live Monitor of all channels</source>
        <translation>צפייה חיה בכל הערוצים</translation>
    </message>
    <message id="910">
        <source>Grant</source>
        <translation>הענקה</translation>
    </message>
    <message id="911">
        <source>Withdraw</source>
        <translation>שלילה</translation>
    </message>
    <message id="912">
        <source>The other rights need Live. Space switches the selected cells; Shift+Space selects a row, Ctrl+Space a column.</source>
        <translation>שאר ההרשאות מחייבות ״צפייה חיה״. מקש הרווח מחליף את מצב התאים שנבחרו; Shift+רווח בוחר שורה, Ctrl+רווח בוחר עמודה.</translation>
    </message>
    <message id="913">
        <source>Administrators have every right on every channel.</source>
        <translation>למנהלים כל ההרשאות בכל הערוצים.</translation>
    </message>
    <message id="930">
        <source>Filter the rows found…</source>
        <translation>סינון השורות שנמצאו…</translation>
    </message>
    <message id="931">
        <source>No row matches the filter.</source>
        <translation>אין שורה התואמת למסנן.</translation>
    </message>
    <message id="932">
        <source>Rows found: %1</source>
        <translation>שורות שנמצאו: %1</translation>
    </message>
    <message id="933">
        <source>The log could not be read</source>
        <translation>לא ניתן לקרוא את היומן</translation>
    </message>
    <message id="934">
        <source>Copy rows</source>
        <translation>העתקת שורות</translation>
    </message>
    <message id="935">
        <source>Open folder</source>
        <translation>פתיחת תיקייה</translation>
    </message>
    <message id="936">
        <source>Event export is not part of this version.</source>
        <translation>ייצוא אירועים אינו חלק מגרסה זו.</translation>
    </message>
    <message id="937">
        <source>Choose a period and search.</source>
        <translation>יש לבחור תקופה ולחפש.</translation>
    </message>
    <message id="938">
        <source>The export failed. Existing files were not changed.</source>
        <translation>הייצוא נכשל. הקבצים הקיימים לא השתנו.</translation>
    </message>
    <message id="939">
        <source>First page</source>
        <translation>דף ראשון</translation>
    </message>
    <message id="940">
        <source>Previous page</source>
        <translation>דף קודם</translation>
    </message>
    <message id="941">
        <source>Next page</source>
        <translation>דף הבא</translation>
    </message>
    <message id="942">
        <source>Last page</source>
        <translation>דף אחרון</translation>
    </message>
    <message id="943">
        <source>Refresh</source>
        <translation>רענון</translation>
    </message>
    <message id="945">
        <source>Log in</source>
        <translation>כניסה</translation>
    </message>
    <message id="946">
        <source>The reason is in the log files.</source>
        <translation>הסיבה רשומה בקובצי היומן.</translation>
    </message>
    <message id="950">
        <source>Find recorders on the network.</source>
        <translation>חיפוש מקליטים ברשת.</translation>
    </message>
    <message id="951">
        <source>Stop</source>
        <translation>עצירה</translation>
    </message>
    <message id="952">
        <source>Select all</source>
        <translation>בחירת הכול</translation>
    </message>
    <message id="953">
        <source>Filter the devices found</source>
        <translation>סינון ההתקנים שנמצאו</translation>
    </message>
    <message id="954">
        <source>No device has answered.</source>
        <translation>אף התקן לא השיב.</translation>
    </message>
    <message id="955">
        <source>Recorders with those selected: %1 of %2</source>
        <translation>מקליטים, כולל הנבחרים: %1 מתוך %2</translation>
    </message>
    <message id="956">
        <source>Connection</source>
        <translation>חיבור</translation>
    </message>
    <message id="957">
        <source>Checking…</source>
        <translation>בבדיקה…</translation>
    </message>
    <message id="958">
        <source>Login refused</source>
        <translation>הכניסה נדחתה</translation>
    </message>
    <message id="959">
        <source>No answer</source>
        <translation>אין מענה</translation>
    </message>
    <message id="960">
        <source>Host name not found</source>
        <translation>שם המארח לא נמצא</translation>
    </message>
    <message id="961">
        <source>Connection refused</source>
        <translation>החיבור נדחה</translation>
    </message>
    <message id="962">
        <source>Unexpected answer</source>
        <translation>מענה לא צפוי</translation>
    </message>
    <message id="963">
        <source>Stopped</source>
        <translation>נעצר</translation>
    </message>
    <message id="965">
        <source>Notice</source>
        <translation>הודעה</translation>
    </message>
    <message id="966">
        <source>No camera</source>
        <translation>אין מצלמה</translation>
    </message>
    <message id="967">
        <source>Changed in the recorder</source>
        <translation>שונה במקליט</translation>
    </message>
    <message id="968">
        <source>Detected</source>
        <translation>זוהה</translation>
    </message>
    <message id="969">
        <source>Unchanged</source>
        <translation>ללא שינוי</translation>
    </message>
    <message id="970">
        <source>Remove the camera of channel %1 from the recorder?</source>
        <translation>האם להסיר מהמקליט את המצלמה של ערוץ %1?</translation>
    </message>
    <message id="971">
        <source>Filter the cameras found</source>
        <translation>סינון המצלמות שנמצאו</translation>
    </message>
    <message id="972">
        <source>No camera was found.</source>
        <translation>לא נמצאה מצלמה.</translation>
    </message>
    <message id="973">
        <source>The recorder sees no camera on its network. Search again, or enter an address.</source>
        <translation>המקליט אינו רואה מצלמות ברשת שלו. יש לחפש שוב או להקליד כתובת.</translation>
    </message>
    <message id="974">
        <source>Cameras found: %1</source>
        <translation>מצלמות שנמצאו: %1</translation>
    </message>
    <message id="975">
        <source>Asking the camera…</source>
        <translation>מתבצעת פנייה למצלמה…</translation>
    </message>
    <message id="976">
        <source>Writing to the recorder…</source>
        <translation>מתבצעת כתיבה למקליט…</translation>
    </message>
    <message id="977">
        <source>Video source</source>
        <translation>מקור וידאו</translation>
    </message>
    <message id="978">
        <source>Detect the camera to see its video settings.</source>
        <translation>יש לזהות את המצלמה כדי לראות את הגדרות הווידאו שלה.</translation>
    </message>
    <message id="979">
        <source>Fish-eye view</source>
        <translation>תצוגת עין הדג</translation>
    </message>
    <message id="980">
        <source>The camera name must not contain a double quote (").</source>
        <translation>שם המצלמה אינו יכול להכיל מירכאות (").</translation>
    </message>
    <message id="981">
        <source>The configuration database cannot be opened: another program holds it, or it cannot be read. Nothing has been changed. Try again?</source>
        <translation>לא ניתן לפתוח את מסד נתוני התצורה: תוכנית אחרת מחזיקה בו, או שלא ניתן לקרוא אותו. דבר לא השתנה. האם לנסות שוב?</translation>
    </message>
    <message id="982">
        <source>The users could not be read from the database, so nobody can log in. Close the program that holds the database and start again. The reason is in the log files.</source>
        <translation>לא ניתן היה לקרוא את המשתמשים ממסד הנתונים, ולכן איש אינו יכול להיכנס. יש לסגור את התוכנית שמחזיקה במסד הנתונים ולהפעיל מחדש. הסיבה רשומה בקובצי היומן.</translation>
    </message>
    <message id="983">
        <source>These tables of the database could not be read: %1. They stay as they are. The reason is in the log files.</source>
        <translation>לא ניתן היה לקרוא את הטבלאות האלה במסד הנתונים: %1. הן יישארו ללא שינוי. הסיבה רשומה בקובצי היומן.</translation>
    </message>
    <message id="995">
        <source>Export</source>
        <translation>ייצוא</translation>
    </message>
    <message id="1000">
        <source>Keys</source>
        <translation>מקשים</translation>
    </message>
    <message id="1001">
        <source>Show the keys</source>
        <translation>הצגת המקשים</translation>
    </message>
    <message id="1002">
        <source>Rename or edit the selected entry</source>
        <translation>שינוי שם או עריכה של הרשומה הנבחרת</translation>
    </message>
    <message id="1003">
        <source>Read the page again</source>
        <translation>קריאת הדף מחדש</translation>
    </message>
    <message id="1004">
        <source>Filter the list</source>
        <translation>סינון הרשימה</translation>
    </message>
    <message id="1005">
        <source>Go to a page</source>
        <translation>מעבר לדף</translation>
    </message>
    <message id="1006">
        <source>Press the button or open the selected entry</source>
        <translation>לחיצה על הכפתור או פתיחת הרשומה הנבחרת</translation>
    </message>
    <message id="1007">
        <source>Remove the selected entry</source>
        <translation>הסרת הרשומה הנבחרת</translation>
    </message>
    <message id="1008">
        <source>Cancel or close</source>
        <translation>ביטול או סגירה</translation>
    </message>
    <message id="1030">
        <source>Added: %1 of %2</source>
        <translation>נוספו: %1 מתוך %2</translation>
    </message>
    <message id="1031">
        <source>Added: %1 of %2, failed: %3</source>
        <translation>נוספו: %1 מתוך %2, נכשלו: %3</translation>
    </message>
    <message id="1032">
        <source>Recorders that were not added can be tried again with another login.</source>
        <translation>אפשר לנסות שוב את המקליטים שלא נוספו עם פרטי כניסה אחרים.</translation>
    </message>
    <message id="1033">
        <source>Try again</source>
        <translation>ניסיון נוסף</translation>
    </message>
    <message id="1034">
        <source>Login</source>
        <translation>כניסה</translation>
    </message>
    <message id="1035">
        <source>Added but not saved yet: %1.
Do you want to save?</source>
        <translation>נוספו אך עדיין לא נשמרו: %1.
האם לשמור?</translation>
    </message>
    <message id="1036">
        <source>No recorder has been added yet. Close and lose what you entered?</source>
        <translation>עדיין לא נוסף מקליט. האם לסגור ולאבד את מה שהוקלד?</translation>
    </message>
    <message id="1037">
        <source>More than one recorder would have this name: %1.
Do you want to use it anyway?</source>
        <translation>שם זה יהיה ליותר ממקליט אחד: %1.
האם להשתמש בו בכל זאת?</translation>
    </message>
    <message id="1080">
        <source>A stored password is not shown. Typing replaces it.</source>
        <translation>סיסמה שמורה אינה מוצגת. הקלדה מחליפה אותה.</translation>
    </message>
    <message id="1081">
        <source>Choose a group</source>
        <translation>בחירת קבוצה</translation>
    </message>
    <message id="1082">
        <source>No account yet</source>
        <translation>אין עדיין חשבון</translation>
    </message>
    <message id="1083">
        <source>These accounts are tried on recorders whose login is not known.</source>
        <translation>חשבונות אלה מנוסים במקליטים שפרטי הכניסה אליהם אינם ידועים.</translation>
    </message>
    <message id="1084">
        <source>Do you want to delete the selected account?</source>
        <translation>למחוק את החשבון שנבחר?</translation>
    </message>
    <message id="1085">
        <source>No camera is accessible</source>
        <translation>אין מצלמה נגישה</translation>
    </message>
    <message id="1086">
        <source>Access follows from the rights of the user’s group.</source>
        <translation>הגישה נקבעת לפי ההרשאות של קבוצת המשתמש.</translation>
    </message>
    <message id="1087">
        <source>Open the folder?</source>
        <translation>לפתוח את התיקייה?</translation>
    </message>
    <message id="1088">
        <source>Filter users…</source>
        <translation>סינון משתמשים…</translation>
    </message>
    <message id="1089">
        <source>No user matches the filter.</source>
        <translation>אין משתמש שתואם למסנן.</translation>
    </message>
    <message id="1110">
        <source>Rename</source>
        <translation>שינוי שם</translation>
    </message>
    <message id="1221">
        <source>Waiting for the picture…</source>
        <translation>ממתין לתמונה…</translation>
    </message>
    <message id="1222">
        <source>No picture</source>
        <translation>אין תמונה</translation>
    </message>
    <message id="1223">
        <source>Trying again…</source>
        <translation>מנסה שוב…</translation>
    </message>
    <message id="1260">
        <source>Filter maps and cameras…</source>
        <translation>סינון מפות ומצלמות…</translation>
    </message>
    <message id="1261">
        <source>Cut</source>
        <translation>גזירה</translation>
    </message>
    <message id="1262">
        <source>Paste</source>
        <translation>הדבקה</translation>
    </message>
    <message id="1263">
        <source>Move to…</source>
        <translation>העברה אל…</translation>
    </message>
    <message id="1264">
        <source>A recorder's map goes under the main map or into a group.</source>
        <translation>מפה של מקליט נמצאת תחת המפה הראשית או בקבוצה.</translation>
    </message>
    <message id="1265">
        <source>A camera goes on the map of its own recorder or one of its sub-maps; on the main map it is taken off all maps.</source>
        <translation>מצלמה נמצאת במפת המקליט שלה או באחת ממפות המשנה שלו; במפה הראשית היא מוסרת מכל המפות.</translation>
    </message>
    <message id="1266">
        <source>It is there already.</source>
        <translation>זה כבר נמצא שם.</translation>
    </message>
    <message id="1267">
        <source>Only recorders' maps and cameras can be moved.</source>
        <translation>אפשר להעביר רק מפות של מקליטים ומצלמות.</translation>
    </message>
    <message id="1268">
        <source>Move</source>
        <translation>העברה</translation>
    </message>
    <message id="1269">
        <source>Show the map's picture</source>
        <translation>הצגת תמונת המפה</translation>
    </message>
    <message id="1270">
        <source>No map or camera matches the filter.</source>
        <translation>אין מפה או מצלמה התואמת למסנן.</translation>
    </message>
    <message id="1271">
        <source>Enter a name to add a group.</source>
        <translation>הקלידו שם כדי להוסיף קבוצה.</translation>
    </message>
    <message id="1272">
        <source>Enter a name to add a sub-map. The map has the name of its recorder.</source>
        <translation>הקלידו שם כדי להוסיף מפת משנה. שם המפה הוא שם המקליט.</translation>
    </message>
    <message id="1273">
        <source>Drag recorders' maps into the group.</source>
        <translation>גררו מפות של מקליטים אל הקבוצה.</translation>
    </message>
    <message id="1274">
        <source>Drag the camera to the map of its recorder.</source>
        <translation>גררו את המצלמה אל מפת המקליט שלה.</translation>
    </message>
    <message id="1275">
        <source>Drag cameras of its recorder to the sub-map.</source>
        <translation>גררו אל מפת המשנה מצלמות של המקליט שלה.</translation>
    </message>
</context>
</TS>
