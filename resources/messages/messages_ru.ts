<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name></name>
    <message id="0">
        <source>English</source>
        <translation>Английский</translation>
    </message>
    <message id="1">
        <source>Traditional Chinese</source>
        <translation>Китайский традиционный</translation>
    </message>
    <message id="2">
        <source>Simplified Chinese</source>
        <translation>Китайский упрощённый</translation>
    </message>
    <message id="3">
        <source>Japanese</source>
        <translation>Японский</translation>
    </message>
    <message id="4">
        <source>Spainish</source>
        <translation>Испанский</translation>
    </message>
    <message id="5">
        <source>CGI ID is full !</source>
        <translation>Список идентификаторов CGI заполнен.</translation>
    </message>
    <message id="6">
        <source>User Name or Password Error !</source>
        <translation>Неверное имя пользователя или пароль.</translation>
    </message>
    <message id="7">
        <source>Device Connection Error !</source>
        <translation>Ошибка подключения к устройству.</translation>
    </message>
    <message id="8">
        <source>Device brand not supported !</source>
        <translation>Марка устройства не поддерживается.</translation>
    </message>
    <message id="9">
        <source>Sending CGI failed !</source>
        <translation>Не удалось отправить команду CGI.</translation>
    </message>
    <message id="10">
        <source>Program has been opened !</source>
        <translation>Программа уже запущена.</translation>
    </message>
    <message id="11">
        <source>Application of Setup has been Opening . Please turn it off !</source>
        <translation>Конфигуратор уже открыт. Закройте его.</translation>
    </message>
    <message id="12">
        <source>Database initialization ...</source>
        <translation>Инициализация базы данных…</translation>
    </message>
    <message id="13">
        <source>Default Data to read ...</source>
        <translation>Чтение данных по умолчанию…</translation>
    </message>
    <message id="14">
        <source>Incorrect database version ! Do you want to reset the databse now ?</source>
        <translation>Неверная версия базы данных. Сбросить базу данных сейчас?</translation>
    </message>
    <message id="15">
        <source>System will not be able to continue to work .</source>
        <translation>Система не сможет продолжить работу.</translation>
    </message>
    <message id="16">
        <source>Update Database ...</source>
        <translation>Обновление базы данных…</translation>
    </message>
    <message id="17">
        <source>Data is loading ...</source>
        <translation>Загрузка данных…</translation>
    </message>
    <message id="18">
        <source>Motion Detection setting is loading...</source>
        <translation>Загрузка настроек детекции движения…</translation>
    </message>
    <message id="19">
        <source>User Data is loading...</source>
        <translation>Загрузка данных пользователей…</translation>
    </message>
    <message id="20">
        <source>Group Data  is loading...</source>
        <translation>Загрузка данных групп…</translation>
    </message>
    <message id="21">
        <source>Event setting is loading...</source>
        <translation>Загрузка настроек событий…</translation>
    </message>
    <message id="22">
        <source>E-Map Data is loading ...</source>
        <translation>Загрузка данных эл. карты…</translation>
    </message>
    <message id="23">
        <source>Multi-Screen set up is loading ...</source>
        <translation>Загрузка настроек нескольких экранов…</translation>
    </message>
    <message id="24">
        <source>System component registering  ...</source>
        <translation>Регистрация компонентов системы…</translation>
    </message>
    <message id="25">
        <source>Login Identification ...</source>
        <translation>Проверка входа…</translation>
    </message>
    <message id="26">
        <source>Open Login Frame ...</source>
        <translation>Открытие окна входа…</translation>
    </message>
    <message id="27">
        <source>Loading User's Pattern …</source>
        <translation>Загрузка шаблонов пользователя…</translation>
    </message>
    <message id="28">
        <source>Start Service Mode...</source>
        <translation>Запуск режима службы…</translation>
    </message>
    <message id="29">
        <source>Start Monitor Window ...</source>
        <translation>Запуск окна монитора…</translation>
    </message>
    <message id="30">
        <source>Start Auto Search …</source>
        <translation>Запуск автопоиска…</translation>
    </message>
    <message id="32">
        <source>Manual Startup</source>
        <translation>Ручной запуск</translation>
    </message>
    <message id="33">
        <source>Device detect timeout !</source>
        <translation>Истекло время обнаружения устройства.</translation>
    </message>
    <message id="34">
        <source>The channel of SVR has been removed. Please re-detect the SVR!</source>
        <translation>Канал SVR удалён. Выполните обнаружение SVR заново.</translation>
    </message>
    <message id="35">
        <source>Please enable SVR upnp port forwarding!</source>
        <translation>Включите перенаправление портов UPnP в SVR.</translation>
    </message>
    <message id="36">
        <source>Video Wall Setting</source>
        <translation>Настройка видеостены</translation>
    </message>
    <message id="37">
        <source>Video Wall display position setting</source>
        <translation>Настройка положения видеостены</translation>
    </message>
    <message id="38">
        <source>Monitor</source>
        <translation>Монитор</translation>
    </message>
    <message id="39">
        <source>Startup assign setting</source>
        <translation>Назначения при запуске</translation>
    </message>
    <message id="40">
        <source>User</source>
        <translation>Пользователь</translation>
    </message>
    <message id="41">
        <source>Password</source>
        <translation>Пароль</translation>
    </message>
    <message id="42">
        <source>User Field is Blank !</source>
        <translation>Поле пользователя не заполнено.</translation>
    </message>
    <message id="43">
        <source>Password Field is Blank !</source>
        <translation>Поле пароля не заполнено.</translation>
    </message>
    <message id="44">
        <source>Incorrect User Account or Password !</source>
        <translation>Неверная учётная запись или пароль.</translation>
    </message>
    <message id="45">
        <source>Main Viewer</source>
        <translation>Главное окно просмотра</translation>
    </message>
    <message id="46">
        <source>NVR Setting</source>
        <translation>Настройка NVR</translation>
    </message>
    <message id="47">
        <source>Event-Triggered Notification</source>
        <translation>Уведомление о событии</translation>
    </message>
    <message id="48">
        <source>Auto Search Notice</source>
        <translation>Уведомление автопоиска</translation>
    </message>
    <message id="49">
        <source>Event Synchronization Manually Update</source>
        <translation>Ручное обновление синхронизации событий</translation>
    </message>
    <message id="50">
        <source>About</source>
        <translation>О программе</translation>
    </message>
    <message id="51">
        <source>Exit</source>
        <translation>Выход</translation>
    </message>
    <message id="52">
        <source>Split</source>
        <translation>Раскладка</translation>
    </message>
    <message id="53">
        <source>Change Channel</source>
        <translation>Сменить канал</translation>
    </message>
    <message id="54">
        <source>OSD Display</source>
        <translation>Показ OSD</translation>
    </message>
    <message id="55">
        <source>CH</source>
        <translation>Канал</translation>
    </message>
    <message id="56">
        <source>Path</source>
        <translation>Путь</translation>
    </message>
    <message id="57">
        <source>OSD Channel</source>
        <translation>Канал в OSD</translation>
    </message>
    <message id="58">
        <source>OSD Time</source>
        <translation>Время в OSD</translation>
    </message>
    <message id="59">
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message id="60">
        <source>Camera Event Server Setting Error!</source>
        <translation>Ошибка настройки сервера событий камеры.</translation>
    </message>
    <message id="61">
        <source>Snapshot Error!</source>
        <translation>Ошибка снимка.</translation>
    </message>
    <message id="62">
        <source>Event Notification is still ongoing.</source>
        <translation>Отправка уведомлений о событиях ещё не завершена.</translation>
    </message>
    <message id="63">
        <source>Do you want to exit and open rigging desk?</source>
        <translation>Выйти и открыть Rigging Desk?</translation>
    </message>
    <message id="64">
        <source>Auto-Search Notice</source>
        <translation>Уведомление автопоиска</translation>
    </message>
    <message id="65">
        <source>Closing...</source>
        <translation>Закрытие…</translation>
    </message>
    <message id="66">
        <source>Devcie is Found!</source>
        <translation>Устройство найдено.</translation>
    </message>
    <message id="67">
        <source>Fix display mode</source>
        <translation>Фиксированный режим показа</translation>
    </message>
    <message id="68">
        <source>Video Wall default startup setting</source>
        <translation>Настройка запуска видеостены по умолчанию</translation>
    </message>
    <message id="69">
        <source>Intelligent Overview</source>
        <translation>Обзор видеоаналитики</translation>
    </message>
    <message id="70">
        <source>Do You Want to Save Snapshot Images ?</source>
        <translation>Сохранить снимки?</translation>
    </message>
    <message id="71">
        <source>User Name or Password error !</source>
        <translation>Неверное имя пользователя или пароль.</translation>
    </message>
    <message id="72">
        <source>Brand not supported!</source>
        <translation>Марка не поддерживается.</translation>
    </message>
    <message id="73">
        <source>Camera not supported!</source>
        <translation>Камера не поддерживается.</translation>
    </message>
    <message id="74">
        <source>Device connection error!</source>
        <translation>Ошибка подключения к устройству.</translation>
    </message>
    <message id="75">
        <source>Device detection timeout!</source>
        <translation>Истекло время обнаружения устройства.</translation>
    </message>
    <message id="76">
        <source>Unable to connect to the server!</source>
        <translation>Не удалось подключиться к серверу.</translation>
    </message>
    <message id="77">
        <source>Service has not connect yet!</source>
        <translation>Служба ещё не подключена.</translation>
    </message>
    <message id="78">
        <source>This series of device does not allow repeat add!</source>
        <translation>Устройства этой серии нельзя добавить повторно.</translation>
    </message>
    <message id="79">
        <source>SEQ by Channel</source>
        <translation>Листание каналов</translation>
    </message>
    <message id="80">
        <source>SEQ by NVR</source>
        <translation>Листание NVR</translation>
    </message>
    <message id="81">
        <source>SEQ by Pattern</source>
        <translation>Листание шаблонов</translation>
    </message>
    <message id="82">
        <source>NVR List</source>
        <translation>Список NVR</translation>
    </message>
    <message id="83">
        <source>Dwell time</source>
        <translation>Время показа</translation>
    </message>
    <message id="84">
        <source>SEQ function is starting, do you want to continue to start SEQ content setting, which will stop SEQ function?</source>
        <translation>Листание включено. Открытие настройки его содержимого остановит листание. Продолжить?</translation>
    </message>
    <message id="85">
        <source>Channel SEQ not available! Please select more than one channel when using this function.</source>
        <translation>Листание каналов недоступно. Чтобы использовать эту функцию, выберите более одного канала.</translation>
    </message>
    <message id="86">
        <source>NVR SEQ not available! Please select more than one NVR when using this function.</source>
        <translation>Листание NVR недоступно. Чтобы использовать эту функцию, выберите более одного NVR.</translation>
    </message>
    <message id="87">
        <source>Pattern SEQ not available! Please select more than one patterns when using this function.</source>
        <translation>Листание шаблонов недоступно. Чтобы использовать эту функцию, выберите более одного шаблона.</translation>
    </message>
    <message id="88">
        <source>Do you want to enable SEQ by Channel?</source>
        <translation>Включить листание каналов?</translation>
    </message>
    <message id="89">
        <source>Do you want to enable SEQ by NVR?</source>
        <translation>Включить листание NVR?</translation>
    </message>
    <message id="90">
        <source>Do you want to enable SEQ by Pattern?</source>
        <translation>Включить листание шаблонов?</translation>
    </message>
    <message id="91">
        <source>Camera event setting can't exceed 32!</source>
        <translation>Число настроек событий камер не может превышать 32.</translation>
    </message>
    <message id="92">
        <source>Please add a NVR first!</source>
        <translation>Сначала добавьте NVR.</translation>
    </message>
    <message id="93">
        <source>Port number can't accept 0 or more than 65536.</source>
        <translation>Номер порта не может быть равен 0 или превышать 65536.</translation>
    </message>
    <message id="94">
        <source>Drive</source>
        <translation>Диск</translation>
    </message>
    <message id="95">
        <source>Size(GB)</source>
        <translation>Размер (ГБ)</translation>
    </message>
    <message id="96">
        <source>Free(GB)</source>
        <translation>Свободно (ГБ)</translation>
    </message>
    <message id="97">
        <source>Usage(%)</source>
        <translation>Занято (%)</translation>
    </message>
    <message id="98">
        <source>Storage Path</source>
        <translation>Путь хранения</translation>
    </message>
    <message id="99">
        <source>Select a Path</source>
        <translation>Выберите путь</translation>
    </message>
    <message id="100">
        <source>Live Monitor</source>
        <translation>Онлайн-просмотр</translation>
    </message>
    <message id="101">
        <source>Event Monitor</source>
        <translation>Монитор событий</translation>
    </message>
    <message id="102">
        <source>Playback</source>
        <translation>Воспроизведение</translation>
    </message>
    <message id="103">
        <source>E-MAP Monitor</source>
        <translation>Монитор эл. карты</translation>
    </message>
    <message id="104">
        <source>User Pattern</source>
        <translation>Шаблон пользователя</translation>
    </message>
    <message id="105">
        <source>Split</source>
        <translation>Раскладка</translation>
    </message>
    <message id="106">
        <source>Pattern Name</source>
        <translation>Имя шаблона</translation>
    </message>
    <message id="107">
        <source>Status</source>
        <translation>Состояние</translation>
    </message>
    <message id="108">
        <source>Channel Status</source>
        <translation>Состояние канала</translation>
    </message>
    <message id="109">
        <source>Network Disconnection</source>
        <translation>Обрыв связи</translation>
    </message>
    <message id="110">
        <source>Network connection</source>
        <translation>Сетевое подключение</translation>
    </message>
    <message id="111">
        <source>Recording</source>
        <translation>Запись</translation>
    </message>
    <message id="112">
        <source>Event Trigger</source>
        <translation>Срабатывание события</translation>
    </message>
    <message id="113">
        <source>Connecting</source>
        <translation>Подключение</translation>
    </message>
    <message id="114">
        <source>Video Loss</source>
        <translation>Потеря видео</translation>
    </message>
    <message id="115">
        <source>SEQ Mode</source>
        <translation>Режим листания</translation>
    </message>
    <message id="116">
        <source>(Sec)</source>
        <translation>(сек)</translation>
    </message>
    <message id="117">
        <source>Start</source>
        <translation>Пуск</translation>
    </message>
    <message id="118">
        <source>Stop</source>
        <translation>Стоп</translation>
    </message>
    <message id="119">
        <source>SEQ contents</source>
        <translation>Содержимое листания</translation>
    </message>
    <message id="120">
        <source>SEQ ALL</source>
        <translation>Листание всех</translation>
    </message>
    <message id="121">
        <source>SEQ</source>
        <translation>Листание</translation>
    </message>
    <message id="122">
        <source>Pattern SEQ</source>
        <translation>Листание шаблонов</translation>
    </message>
    <message id="123">
        <source>Service Mode</source>
        <translation>Режим службы</translation>
    </message>
    <message id="124">
        <source>Language</source>
        <translation>Язык</translation>
    </message>
    <message id="125">
        <source>Version</source>
        <translation>Версия</translation>
    </message>
    <message id="126">
        <source>Event Info</source>
        <translation>Сведения о событии</translation>
    </message>
    <message id="127">
        <source>Event</source>
        <translation>Событие</translation>
    </message>
    <message id="128">
        <source>Time</source>
        <translation>Время</translation>
    </message>
    <message id="129">
        <source>Description</source>
        <translation>Описание</translation>
    </message>
    <message id="130">
        <source>System Info</source>
        <translation>О системе</translation>
    </message>
    <message id="131">
        <source>Info</source>
        <translation>Сведения</translation>
    </message>
    <message id="132">
        <source>System Time:</source>
        <translation>Системное время:</translation>
    </message>
    <message id="133">
        <source>Group Level:</source>
        <translation>Уровень группы:</translation>
    </message>
    <message id="134">
        <source>CPU:</source>
        <translation>CPU:</translation>
    </message>
    <message id="135">
        <source>PRESET</source>
        <translation>ПРЕСЕТ</translation>
    </message>
    <message id="136">
        <source>Preset:</source>
        <translation>Пресет:</translation>
    </message>
    <message id="137">
        <source>Unable to support full screen mode or to change split mode under SEQ mode.</source>
        <translation>В режиме листания нельзя включить полный экран или сменить раскладку.</translation>
    </message>
    <message id="138">
        <source>Full screen is running. close it first!</source>
        <translation>Включён полный экран. Сначала выйдите из него.</translation>
    </message>
    <message id="139">
        <source>Unauthorised</source>
        <translation>Нет прав</translation>
    </message>
    <message id="140">
        <source>Select a channel first.</source>
        <translation>Сначала выберите канал.</translation>
    </message>
    <message id="141">
        <source>Name Repeat!</source>
        <translation>Такое имя уже есть.</translation>
    </message>
    <message id="142">
        <source>MENU</source>
        <translation>МЕНЮ</translation>
    </message>
    <message id="143">
        <source>TREE</source>
        <translation>ДЕРЕВО</translation>
    </message>
    <message id="144">
        <source>PATTERN</source>
        <translation>ШАБЛОН</translation>
    </message>
    <message id="145">
        <source>STATUS</source>
        <translation>СОСТОЯНИЕ</translation>
    </message>
    <message id="146">
        <source>SEQ</source>
        <translation>ЛИСТАНИЕ</translation>
    </message>
    <message id="147">
        <source>SYSTEM</source>
        <translation>СИСТЕМА</translation>
    </message>
    <message id="148">
        <source>CH:</source>
        <translation>Канал:</translation>
    </message>
    <message id="149">
        <source>Reconnection</source>
        <translation>Повторное подключение</translation>
    </message>
    <message id="150">
        <source>Audio</source>
        <translation>Звук</translation>
    </message>
    <message id="151">
        <source>Display Image of Motion Detection </source>
        <translation>Показывать изображение детекции движения </translation>
    </message>
    <message id="152">
        <source>Snapshot</source>
        <translation>Снимок</translation>
    </message>
    <message id="153">
        <source>Preset Point Setting</source>
        <translation>Настройка пресетов</translation>
    </message>
    <message id="154">
        <source>When modify setting, the channel of pattern will be changed.</source>
        <translation>При изменении настройки каналы шаблона изменятся.</translation>
    </message>
    <message id="155">
        <source>Snapshot fail !</source>
        <translation>Не удалось сделать снимок.</translation>
    </message>
    <message id="156">
        <source>Preset Patrol:</source>
        <translation>Патруль по пресетам:</translation>
    </message>
    <message id="157">
        <source>Loading Fullscreen layout data…</source>
        <translation>Загрузка данных полноэкранной раскладки…</translation>
    </message>
    <message id="158">
        <source>Dock</source>
        <translation>Закрепить</translation>
    </message>
    <message id="159">
        <source>Control Panel</source>
        <translation>Панель управления</translation>
    </message>
    <message id="160">
        <source>Name:</source>
        <translation>Имя:</translation>
    </message>
    <message id="161">
        <source>Channel:</source>
        <translation>Канал:</translation>
    </message>
    <message id="162">
        <source>CH Name:</source>
        <translation>Имя канала:</translation>
    </message>
    <message id="163">
        <source>Event Mode:</source>
        <translation>Тип события:</translation>
    </message>
    <message id="164">
        <source>Event Trigger Time:</source>
        <translation>Время срабатывания события:</translation>
    </message>
    <message id="165">
        <source>Contact:</source>
        <translation>Контакт:</translation>
    </message>
    <message id="166">
        <source>Phone:</source>
        <translation>Телефон:</translation>
    </message>
    <message id="167">
        <source>Play Time(SYSTEM):</source>
        <translation>Время воспр. (СИСТЕМА):</translation>
    </message>
    <message id="168">
        <source>Current Event List</source>
        <translation>Список текущих событий</translation>
    </message>
    <message id="169">
        <source>Log Event List</source>
        <translation>Журнал событий</translation>
    </message>
    <message id="170">
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message id="171">
        <source>Search All</source>
        <translation>Искать все</translation>
    </message>
    <message id="172">
        <source>Search Start Time</source>
        <translation>Начало поиска</translation>
    </message>
    <message id="173">
        <source>Search by Event type</source>
        <translation>Поиск по типу события</translation>
    </message>
    <message id="174">
        <source>Item</source>
        <translation>Пункт</translation>
    </message>
    <message id="175">
        <source>Event ID</source>
        <translation>ID события</translation>
    </message>
    <message id="176">
        <source>Time</source>
        <translation>Время</translation>
    </message>
    <message id="177">
        <source>System Time</source>
        <translation>Системное время</translation>
    </message>
    <message id="178">
        <source>NO.</source>
        <translation>№</translation>
    </message>
    <message id="179">
        <source>CH</source>
        <translation>Канал</translation>
    </message>
    <message id="180">
        <source>Event Mode</source>
        <translation>Тип события</translation>
    </message>
    <message id="181">
        <source>Process</source>
        <translation>Обработка</translation>
    </message>
    <message id="182">
        <source>On-Line</source>
        <translation>В сети</translation>
    </message>
    <message id="183">
        <source>Channel Name</source>
        <translation>Имя канала</translation>
    </message>
    <message id="184">
        <source>Channel Detail</source>
        <translation>Сведения о канале</translation>
    </message>
    <message id="185">
        <source>Play Error</source>
        <translation>Ошибка воспр.</translation>
    </message>
    <message id="186">
        <source>Play Stop</source>
        <translation>Воспр. остановлено</translation>
    </message>
    <message id="187">
        <source>Live Video</source>
        <translation>Живое видео</translation>
    </message>
    <message id="188">
        <source>Live Stop</source>
        <translation>Просмотр остановлен</translation>
    </message>
    <message id="189">
        <source>Off Line</source>
        <translation>Не в сети</translation>
    </message>
    <message id="190">
        <source>Error</source>
        <translation>Ошибка</translation>
    </message>
    <message id="191">
        <source>Motion</source>
        <translation>Движение</translation>
    </message>
    <message id="192">
        <source>Sensor</source>
        <translation>Датчик</translation>
    </message>
    <message id="193">
        <source>Return message: </source>
        <translation>Ответное сообщение: </translation>
    </message>
    <message id="194">
        <source>NVR no playback resource!</source>
        <translation>У NVR нет ресурсов для воспроизведения.</translation>
    </message>
    <message id="195">
        <source>Playback request failed!</source>
        <translation>Запрос на воспроизведение не выполнен.</translation>
    </message>
    <message id="196">
        <source>Reset Event List</source>
        <translation>Сбросить список событий</translation>
    </message>
    <message id="197">
        <source>X</source>
        <translation>X</translation>
    </message>
    <message id="198">
        <source>Return</source>
        <translation>Назад</translation>
    </message>
    <message id="199">
        <source>SEQ Duration Time</source>
        <translation>Длительность листания</translation>
    </message>
    <message id="200">
        <source>Playback Info</source>
        <translation>Данные воспроизведения</translation>
    </message>
    <message id="201">
        <source>NVR:</source>
        <translation>NVR:</translation>
    </message>
    <message id="202">
        <source>CH:</source>
        <translation>Канал:</translation>
    </message>
    <message id="203">
        <source>Speed:</source>
        <translation>Скорость:</translation>
    </message>
    <message id="204">
        <source>Sun</source>
        <translation>Вс</translation>
    </message>
    <message id="205">
        <source>Mon</source>
        <translation>Пн</translation>
    </message>
    <message id="206">
        <source>Tue</source>
        <translation>Вт</translation>
    </message>
    <message id="207">
        <source>Wed</source>
        <translation>Ср</translation>
    </message>
    <message id="208">
        <source>Thu</source>
        <translation>Чт</translation>
    </message>
    <message id="209">
        <source>Fri</source>
        <translation>Пт</translation>
    </message>
    <message id="210">
        <source>Sat</source>
        <translation>Сб</translation>
    </message>
    <message id="211">
        <source>Event List</source>
        <translation>Список событий</translation>
    </message>
    <message id="212">
        <source>Receiving recording data failed</source>
        <translation>Не удалось получить записи.</translation>
    </message>
    <message id="213">
        <source>RF</source>
        <translation>НАЗАД</translation>
    </message>
    <message id="214">
        <source>STOP</source>
        <translation>СТОП</translation>
    </message>
    <message id="215">
        <source>PLAY</source>
        <translation>ПУСК</translation>
    </message>
    <message id="216">
        <source>PAUSE</source>
        <translation>ПАУЗА</translation>
    </message>
    <message id="217">
        <source>FF</source>
        <translation>ВПЕРЁД</translation>
    </message>
    <message id="218">
        <source>NEXT</source>
        <translation>ДАЛЕЕ</translation>
    </message>
    <message id="219">
        <source>No recording data can be Displayed !</source>
        <translation>Нет записей для показа.</translation>
    </message>
    <message id="220">
        <source>Play Stop ! Need to select new time.</source>
        <translation>Воспроизведение остановлено. Выберите другое время.</translation>
    </message>
    <message id="221">
        <source>No response! you can try again or select another device !</source>
        <translation>Нет ответа. Повторите попытку или выберите другое устройство.</translation>
    </message>
    <message id="222">
        <source>Disconnection ! </source>
        <translation>Связь прервана. </translation>
    </message>
    <message id="223">
        <source>Can not get video stream ! please select other Channel.</source>
        <translation>Не удаётся получить видеопоток. Выберите другой канал.</translation>
    </message>
    <message id="224">
        <source>No recording data.</source>
        <translation>Записей нет.</translation>
    </message>
    <message id="225">
        <source>Recording data is updating, please wait .</source>
        <translation>Записи обновляются, подождите.</translation>
    </message>
    <message id="226">
        <source>Convert to AVI</source>
        <translation>Преобразовать в AVI</translation>
    </message>
    <message id="227">
        <source>Do you want to stop the conversion of avi file ?</source>
        <translation>Остановить преобразование в AVI?</translation>
    </message>
    <message id="228">
        <source>AVI file conversion complete! File is... </source>
        <translation>Преобразование в AVI завершено. Файл… </translation>
    </message>
    <message id="229">
        <source>Converting AVI file!</source>
        <translation>Идёт преобразование в AVI.</translation>
    </message>
    <message id="230">
        <source>AVI Conversion Fail !</source>
        <translation>Не удалось преобразовать в AVI.</translation>
    </message>
    <message id="231">
        <source>Auto Pan:</source>
        <translation>Автопанорама:</translation>
    </message>
    <message id="232">
        <source>Single Video</source>
        <translation>Одно видео</translation>
    </message>
    <message id="233">
        <source>Quad Videos</source>
        <translation>Четыре видео</translation>
    </message>
    <message id="234">
        <source>Nine Videos</source>
        <translation>Девять видео</translation>
    </message>
    <message id="235">
        <source>No any SVD has been set, you need to add any SVD to control!</source>
        <translation>Ни один SVD не настроен. Добавьте SVD для управления.</translation>
    </message>
    <message id="236">
        <source>This channel has been set to display in this screen!</source>
        <translation>Этот канал уже выводится на этот экран.</translation>
    </message>
    <message id="237">
        <source>Are you sure to exit SVD console monitor?</source>
        <translation>Закрыть монитор консоли SVD?</translation>
    </message>
    <message id="238">
        <source>Click here to reconnect again!</source>
        <translation>Щёлкните здесь, чтобы подключиться снова.</translation>
    </message>
    <message id="239">
        <source>SVD UI is changing…</source>
        <translation>Смена интерфейса SVD…</translation>
    </message>
    <message id="240">
        <source>NO.:</source>
        <translation>№:</translation>
    </message>
    <message id="241">
        <source>Name:</source>
        <translation>Имя:</translation>
    </message>
    <message id="242">
        <source>Number of Camera:</source>
        <translation>Число камер:</translation>
    </message>
    <message id="243">
        <source>Event:</source>
        <translation>Событие:</translation>
    </message>
    <message id="244">
        <source>No Event</source>
        <translation>Нет событий</translation>
    </message>
    <message id="245">
        <source>CH:</source>
        <translation>Канал:</translation>
    </message>
    <message id="246">
        <source>Up</source>
        <translation>Вверх</translation>
    </message>
    <message id="247">
        <source>Down</source>
        <translation>Вниз</translation>
    </message>
    <message id="248">
        <source>Left</source>
        <translation>Влево</translation>
    </message>
    <message id="249">
        <source>Right</source>
        <translation>Вправо</translation>
    </message>
    <message id="250">
        <source>Upper left</source>
        <translation>Влево вверх</translation>
    </message>
    <message id="251">
        <source>Upper right</source>
        <translation>Вправо вверх</translation>
    </message>
    <message id="252">
        <source>Lower left</source>
        <translation>Влево вниз</translation>
    </message>
    <message id="253">
        <source>Lower right</source>
        <translation>Вправо вниз</translation>
    </message>
    <message id="254">
        <source>Home</source>
        <translation>Исходная</translation>
    </message>
    <message id="255">
        <source>Zoom In</source>
        <translation>Приблизить</translation>
    </message>
    <message id="256">
        <source>Zoom Out</source>
        <translation>Отдалить</translation>
    </message>
    <message id="257">
        <source>Focus Far</source>
        <translation>Фокус дальше</translation>
    </message>
    <message id="258">
        <source>Focus Near</source>
        <translation>Фокус ближе</translation>
    </message>
    <message id="259">
        <source>Auto Focus</source>
        <translation>Автофокус</translation>
    </message>
    <message id="260">
        <source>IRIS Auto</source>
        <translation>Автодиафрагма</translation>
    </message>
    <message id="261">
        <source>IRIS Close</source>
        <translation>Закрыть диафрагму</translation>
    </message>
    <message id="262">
        <source>IRIS Open</source>
        <translation>Открыть диафрагму</translation>
    </message>
    <message id="263">
        <source>Auto Pan Left</source>
        <translation>Автопанорама влево</translation>
    </message>
    <message id="264">
        <source>Auto Pan Right</source>
        <translation>Автопанорама вправо</translation>
    </message>
    <message id="265">
        <source>Auto Pan Stop</source>
        <translation>Стоп автопанорамы</translation>
    </message>
    <message id="266">
        <source>Moving Rate(+)</source>
        <translation>Скорость движения (+)</translation>
    </message>
    <message id="267">
        <source>Moving Rate(-)</source>
        <translation>Скорость движения (-)</translation>
    </message>
    <message id="268">
        <source>Display OSD on all channels</source>
        <translation>Показывать OSD на всех каналах</translation>
    </message>
    <message id="269">
        <source>Display OSD</source>
        <translation>Показывать OSD</translation>
    </message>
    <message id="270">
        <source>Detail Export:</source>
        <translation>Экспорт сведений:</translation>
    </message>
    <message id="271">
        <source>Valid Ch</source>
        <translation>Активные каналы</translation>
    </message>
    <message id="272">
        <source>Auto Search</source>
        <translation>Автопоиск</translation>
    </message>
    <message id="273">
        <source>Manual Detection</source>
        <translation>Ручное обнаружение</translation>
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
        <translation>Порт HTTP:</translation>
    </message>
    <message id="277">
        <source>Next</source>
        <translation>Далее</translation>
    </message>
    <message id="278">
        <source>Device Name</source>
        <translation>Имя устройства</translation>
    </message>
    <message id="279">
        <source>All</source>
        <translation>Все</translation>
    </message>
    <message id="280">
        <source>CHs</source>
        <translation>Каналы</translation>
    </message>
    <message id="281">
        <source>Model:</source>
        <translation>Модель:</translation>
    </message>
    <message id="282">
        <source>Max Channel:</source>
        <translation>Макс. каналов:</translation>
    </message>
    <message id="283">
        <source>NVR Name:</source>
        <translation>Имя NVR:</translation>
    </message>
    <message id="284">
        <source>Version:</source>
        <translation>Версия:</translation>
    </message>
    <message id="285">
        <source>Valid Channel:</source>
        <translation>Активные каналы:</translation>
    </message>
    <message id="286">
        <source>Sync With NVR</source>
        <translation>Синхр. с NVR</translation>
    </message>
    <message id="287">
        <source>Add New NVR </source>
        <translation>Добавить новый NVR </translation>
    </message>
    <message id="288">
        <source>NVR Search List</source>
        <translation>Список найденных NVR</translation>
    </message>
    <message id="289">
        <source>NVR Detect Status</source>
        <translation>Состояние обнаружения NVR</translation>
    </message>
    <message id="290">
        <source>NVR Detail Setting</source>
        <translation>Подробная настройка NVR</translation>
    </message>
    <message id="291">
        <source>NVR Channel Setting</source>
        <translation>Настройка каналов NVR</translation>
    </message>
    <message id="292">
        <source>Preset Sequence Setting</source>
        <translation>Настройка последовательности пресетов</translation>
    </message>
    <message id="293">
        <source>Get Capability...</source>
        <translation>Получение возможностей…</translation>
    </message>
    <message id="294">
        <source>Get Channel Info...</source>
        <translation>Получение данных каналов…</translation>
    </message>
    <message id="295">
        <source>Get NVR Info...</source>
        <translation>Получение данных NVR…</translation>
    </message>
    <message id="296">
        <source>Initial NVR Value...</source>
        <translation>Инициализация значений NVR…</translation>
    </message>
    <message id="297">
        <source>Add Success!</source>
        <translation>Успешно добавлено.</translation>
    </message>
    <message id="298">
        <source>Channel List</source>
        <translation>Список каналов</translation>
    </message>
    <message id="299">
        <source>Split:</source>
        <translation>Раскладка:</translation>
    </message>
    <message id="300">
        <source>MainViewer opened. Close it First!</source>
        <translation>Открыто главное окно просмотра. Сначала закройте его.</translation>
    </message>
    <message id="301">
        <source>System &amp; Setting</source>
        <translation>Система и настройки</translation>
    </message>
    <message id="302">
        <source>Setting</source>
        <translation>Настройки</translation>
    </message>
    <message id="303">
        <source>Manual Setting</source>
        <translation>Ручная настройка</translation>
    </message>
    <message id="304">
        <source>PTZ Config</source>
        <translation>Настройка PTZ</translation>
    </message>
    <message id="305">
        <source>Motion Setting</source>
        <translation>Настройка движения</translation>
    </message>
    <message id="306">
        <source>Motion Setting</source>
        <translation>Настройка движения</translation>
    </message>
    <message id="307">
        <source>General Setting Overview</source>
        <translation>Обзор общих настроек</translation>
    </message>
    <message id="308">
        <source>Group/User Config</source>
        <translation>Группы и пользователи</translation>
    </message>
    <message id="309">
        <source>Event Handling Config</source>
        <translation>Настройка обработки событий</translation>
    </message>
    <message id="310">
        <source>E-Map Config</source>
        <translation>Настройка эл. карты</translation>
    </message>
    <message id="311">
        <source>Screen Layout Config</source>
        <translation>Настройка компоновки экранов</translation>
    </message>
    <message id="312">
        <source>Event Action Overview</source>
        <translation>Обзор действий по событиям</translation>
    </message>
    <message id="313">
        <source>Mail Config</source>
        <translation>Настройка почты</translation>
    </message>
    <message id="314">
        <source>FTP Config</source>
        <translation>Настройка FTP</translation>
    </message>
    <message id="315">
        <source>Message Config</source>
        <translation>Настройка сообщений</translation>
    </message>
    <message id="316">
        <source>Sound Config</source>
        <translation>Настройка звука</translation>
    </message>
    <message id="317">
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message id="318">
        <source>Main Viewer</source>
        <translation>Главное окно просмотра</translation>
    </message>
    <message id="319">
        <source>Exit</source>
        <translation>Выход</translation>
    </message>
    <message id="320">
        <source>Setup</source>
        <translation>Настройка</translation>
    </message>
    <message id="321">
        <source>SEQ Control</source>
        <translation>Управление листанием</translation>
    </message>
    <message id="322">
        <source>Pattern Name:</source>
        <translation>Имя шаблона:</translation>
    </message>
    <message id="323">
        <source>Do you continue to delete this pattern?</source>
        <translation>Удалить этот шаблон?</translation>
    </message>
    <message id="324">
        <source>Pattern List Overview</source>
        <translation>Обзор списка шаблонов</translation>
    </message>
    <message id="325">
        <source>Name or Channel list need to be set!</source>
        <translation>Задайте имя или список каналов.</translation>
    </message>
    <message id="326">
        <source>Live Monitor SEQ and full screen can not be opened at the same time.</source>
        <translation>Листание онлайн-просмотра и полный экран нельзя открыть одновременно.</translation>
    </message>
    <message id="327">
        <source>No channel is selected!</source>
        <translation>Канал не выбран.</translation>
    </message>
    <message id="328">
        <source>Select time is out of data range!</source>
        <translation>Выбранное время вне диапазона данных.</translation>
    </message>
    <message id="329">
        <source>NVR is invalid!</source>
        <translation>Недопустимый NVR.</translation>
    </message>
    <message id="330">
        <source>System Setting</source>
        <translation>Настройка системы</translation>
    </message>
    <message id="331">
        <source>Application name:</source>
        <translation>Имя приложения:</translation>
    </message>
    <message id="332">
        <source>Version:</source>
        <translation>Версия:</translation>
    </message>
    <message id="333">
        <source>Language:</source>
        <translation>Язык:</translation>
    </message>
    <message id="334">
        <source>Start Up:</source>
        <translation>Запуск:</translation>
    </message>
    <message id="335">
        <source>Event Sync Time:</source>
        <translation>Время синхр. событий:</translation>
    </message>
    <message id="336">
        <source>Snapshot Count:</source>
        <translation>Число снимков:</translation>
    </message>
    <message id="337">
        <source>Camera Event Server Setting</source>
        <translation>Настройка сервера событий камеры</translation>
    </message>
    <message id="338">
        <source>Account:</source>
        <translation>Уч. запись:</translation>
    </message>
    <message id="339">
        <source>Password:</source>
        <translation>Пароль:</translation>
    </message>
    <message id="340">
        <source>Port:</source>
        <translation>Порт:</translation>
    </message>
    <message id="341">
        <source>System Info</source>
        <translation>О системе</translation>
    </message>
    <message id="343">
        <source>OS:</source>
        <translation>ОС:</translation>
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
        <translation>Имя компьютера:</translation>
    </message>
    <message id="347">
        <source>Total space of HD:</source>
        <translation>Общий объём дисков:</translation>
    </message>
    <message id="348">
        <source>Network Connect Status:</source>
        <translation>Состояние сети:</translation>
    </message>
    <message id="349">
        <source>System Time:</source>
        <translation>Системное время:</translation>
    </message>
    <message id="350">
        <source>Screen Count:</source>
        <translation>Число экранов:</translation>
    </message>
    <message id="351">
        <source>CPU Performance:</source>
        <translation>Загрузка CPU:</translation>
    </message>
    <message id="352">
        <source>Login Windows then Auto Start up </source>
        <translation>Автозапуск после входа в Windows </translation>
    </message>
    <message id="353">
        <source>Start in background</source>
        <translation>Запуск в фоновом режиме</translation>
    </message>
    <message id="354">
        <source>Minute</source>
        <translation>мин</translation>
    </message>
    <message id="356">
        <source>NVR is connecting, wait a moment and start again!</source>
        <translation>NVR подключается. Подождите немного и запустите снова.</translation>
    </message>
    <message id="357">
        <source>NVR is offline, please choose another NVR or confirm this NVR connection status!</source>
        <translation>NVR не в сети. Выберите другой NVR или проверьте подключение этого NVR.</translation>
    </message>
    <message id="358">
        <source>Output device has been removed!</source>
        <translation>Устройство вывода удалено.</translation>
    </message>
    <message id="359">
        <source>Password confirm inconsistency, Please check again!</source>
        <translation>Пароли не совпадают. Проверьте ещё раз.</translation>
    </message>
    <message id="360">
        <source>List:</source>
        <translation>Список:</translation>
    </message>
    <message id="361">
        <source>NVR</source>
        <translation>NVR</translation>
    </message>
    <message id="362">
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message id="363">
        <source>IP</source>
        <translation>IP</translation>
    </message>
    <message id="364">
        <source>Port</source>
        <translation>Порт</translation>
    </message>
    <message id="365">
        <source>Power</source>
        <translation>Права</translation>
    </message>
    <message id="366">
        <source>CH</source>
        <translation>Канал</translation>
    </message>
    <message id="367">
        <source>CH Name</source>
        <translation>Имя канала</translation>
    </message>
    <message id="368">
        <source>CH IP</source>
        <translation>IP канала</translation>
    </message>
    <message id="369">
        <source>CH Port</source>
        <translation>Порт канала</translation>
    </message>
    <message id="370">
        <source>CH Brand</source>
        <translation>Марка канала</translation>
    </message>
    <message id="371">
        <source>Video Format</source>
        <translation>Формат видео</translation>
    </message>
    <message id="372">
        <source>Video RES</source>
        <translation>Разрешение</translation>
    </message>
    <message id="373">
        <source>MD Enable</source>
        <translation>Детекция вкл.</translation>
    </message>
    <message id="374">
        <source>MD Sen</source>
        <translation>Чувств. дет.</translation>
    </message>
    <message id="375">
        <source>CH PTZ</source>
        <translation>PTZ канала</translation>
    </message>
    <message id="376">
        <source>CH audio</source>
        <translation>Звук канала</translation>
    </message>
    <message id="377">
        <source>Detect List</source>
        <translation>Список обнаруженных</translation>
    </message>
    <message id="378">
        <source>Advance Control </source>
        <translation>Дополнительно </translation>
    </message>
    <message id="379">
        <source>IP</source>
        <translation>IP</translation>
    </message>
    <message id="380">
        <source>Port</source>
        <translation>Порт</translation>
    </message>
    <message id="381">
        <source>Brand</source>
        <translation>Марка</translation>
    </message>
    <message id="382">
        <source>Model</source>
        <translation>Модель</translation>
    </message>
    <message id="383">
        <source>MAC</source>
        <translation>MAC</translation>
    </message>
    <message id="384">
        <source>Detect Time</source>
        <translation>Время обнаружения</translation>
    </message>
    <message id="385">
        <source>Add</source>
        <translation>Добавить</translation>
    </message>
    <message id="386">
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
    <message id="387">
        <source>Modify</source>
        <translation>Изменить</translation>
    </message>
    <message id="388">
        <source>Reconection </source>
        <translation>Переподключить </translation>
    </message>
    <message id="389">
        <source>Open Browser</source>
        <translation>Открыть браузер</translation>
    </message>
    <message id="390">
        <source>Preset Info</source>
        <translation>Данные пресета</translation>
    </message>
    <message id="391">
        <source>Sync</source>
        <translation>Синхр.</translation>
    </message>
    <message id="392">
        <source>Edit Preset</source>
        <translation>Правка пресета</translation>
    </message>
    <message id="393">
        <source>Preset No</source>
        <translation>№ пресета</translation>
    </message>
    <message id="394">
        <source>Preset Name</source>
        <translation>Имя пресета</translation>
    </message>
    <message id="395">
        <source>PTZ Control</source>
        <translation>Управление PTZ</translation>
    </message>
    <message id="396">
        <source>Submit</source>
        <translation>Подтвердить</translation>
    </message>
    <message id="397">
        <source>Motion Detect List:</source>
        <translation>Список детекции движения:</translation>
    </message>
    <message id="398">
        <source>Sensitivity:</source>
        <translation>Чувствительность:</translation>
    </message>
    <message id="399">
        <source>Motion Detect Setting</source>
        <translation>Настройка детекции движения</translation>
    </message>
    <message id="400">
        <source>*Use Mouse drag the Device item into Intelligent detection List.</source>
        <translation>*Перетащите устройство мышью в список видеоаналитики.</translation>
    </message>
    <message id="401">
        <source>Device List:</source>
        <translation>Список устройств:</translation>
    </message>
    <message id="402">
        <source>Trigger for Motion Detect</source>
        <translation>Срабатывание по детекции движения</translation>
    </message>
    <message id="403">
        <source>Status</source>
        <translation>Состояние</translation>
    </message>
    <message id="404">
        <source>Motion Enable List:</source>
        <translation>Каналы с детекцией движения:</translation>
    </message>
    <message id="405">
        <source>Clear All</source>
        <translation>Очистить всё</translation>
    </message>
    <message id="406">
        <source>Select All</source>
        <translation>Выбрать все</translation>
    </message>
    <message id="407">
        <source>High</source>
        <translation>Высокая</translation>
    </message>
    <message id="408">
        <source>Normal</source>
        <translation>Обычная</translation>
    </message>
    <message id="409">
        <source>Low</source>
        <translation>Низкая</translation>
    </message>
    <message id="410">
        <source>SET</source>
        <translation>ЗАДАТЬ</translation>
    </message>
    <message id="411">
        <source>User List:</source>
        <translation>Список пользователей:</translation>
    </message>
    <message id="412">
        <source>Group List:</source>
        <translation>Список групп:</translation>
    </message>
    <message id="413">
        <source>Event Setting List:</source>
        <translation>Список настроек событий:</translation>
    </message>
    <message id="414">
        <source>EMap List:</source>
        <translation>Список эл. карт:</translation>
    </message>
    <message id="415">
        <source>Screen List:</source>
        <translation>Список экранов:</translation>
    </message>
    <message id="416">
        <source>Account</source>
        <translation>Уч. запись</translation>
    </message>
    <message id="417">
        <source>Company</source>
        <translation>Организация</translation>
    </message>
    <message id="418">
        <source>Telephone</source>
        <translation>Телефон</translation>
    </message>
    <message id="419">
        <source>Mail 1</source>
        <translation>Эл. почта 1</translation>
    </message>
    <message id="420">
        <source>Mail 2</source>
        <translation>Эл. почта 2</translation>
    </message>
    <message id="421">
        <source>Cell Phone</source>
        <translation>Мобильный</translation>
    </message>
    <message id="422">
        <source>Photo Path</source>
        <translation>Путь к фото</translation>
    </message>
    <message id="423">
        <source>Group</source>
        <translation>Группа</translation>
    </message>
    <message id="424">
        <source>Event</source>
        <translation>Событие</translation>
    </message>
    <message id="425">
        <source>Mail</source>
        <translation>Почта</translation>
    </message>
    <message id="426">
        <source>FTP</source>
        <translation>FTP</translation>
    </message>
    <message id="427">
        <source>Msg</source>
        <translation>Сообщ.</translation>
    </message>
    <message id="428">
        <source>Sound</source>
        <translation>Звук</translation>
    </message>
    <message id="429">
        <source>Video Power</source>
        <translation>Права на видео</translation>
    </message>
    <message id="430">
        <source>Playback</source>
        <translation>Воспроизведение</translation>
    </message>
    <message id="431">
        <source>PTZ</source>
        <translation>PTZ</translation>
    </message>
    <message id="432">
        <source>Setup</source>
        <translation>Настройка</translation>
    </message>
    <message id="433">
        <source>Map</source>
        <translation>Карта</translation>
    </message>
    <message id="434">
        <source>Path</source>
        <translation>Путь</translation>
    </message>
    <message id="435">
        <source>Function</source>
        <translation>Функция</translation>
    </message>
    <message id="436">
        <source>Screen</source>
        <translation>Экран</translation>
    </message>
    <message id="437">
        <source>MainMap</source>
        <translation>Главная карта</translation>
    </message>
    <message id="438">
        <source>FullScreen</source>
        <translation>Полный экран</translation>
    </message>
    <message id="439">
        <source>FullScreen2</source>
        <translation>Полный экран 2</translation>
    </message>
    <message id="440">
        <source>User Detail List</source>
        <translation>Сведения о пользователях</translation>
    </message>
    <message id="441">
        <source>Group List</source>
        <translation>Список групп</translation>
    </message>
    <message id="442">
        <source>Add User</source>
        <translation>Добавить пользователя</translation>
    </message>
    <message id="443">
        <source>Remove User</source>
        <translation>Удалить пользователя</translation>
    </message>
    <message id="444">
        <source>Modify User</source>
        <translation>Изменить пользователя</translation>
    </message>
    <message id="445">
        <source>Modify Group</source>
        <translation>Изменить группу</translation>
    </message>
    <message id="446">
        <source>System Event Trigger Action</source>
        <translation>Действие по событию системы</translation>
    </message>
    <message id="447">
        <source>NVR Event Trigger Action</source>
        <translation>Действие по событию NVR</translation>
    </message>
    <message id="448">
        <source>System Start/Stop</source>
        <translation>Пуск/останов системы</translation>
    </message>
    <message id="449">
        <source>Modify Setting of System</source>
        <translation>Изменение настроек системы</translation>
    </message>
    <message id="450">
        <source>Modify Setting of NVR</source>
        <translation>Изменение настроек NVR</translation>
    </message>
    <message id="451">
        <source>Modify Setting of Intelligent detection</source>
        <translation>Изменение настроек видеоаналитики</translation>
    </message>
    <message id="452">
        <source>Modify Setting of General</source>
        <translation>Изменение общих настроек</translation>
    </message>
    <message id="453">
        <source>Modify Setting of Event</source>
        <translation>Изменение настроек событий</translation>
    </message>
    <message id="454">
        <source>E1:Motion Detect</source>
        <translation>E1: Детекция движения</translation>
    </message>
    <message id="455">
        <source>Sensor Detection</source>
        <translation>Срабатывание датчика</translation>
    </message>
    <message id="456">
        <source>*Double Click Map to Setting</source>
        <translation>*Дважды щёлкните карту для настройки</translation>
    </message>
    <message id="457">
        <source>SubMap</source>
        <translation>Подкарта</translation>
    </message>
    <message id="458">
        <source>Screen Layout</source>
        <translation>Компоновка экранов</translation>
    </message>
    <message id="459">
        <source>Mail</source>
        <translation>Почта</translation>
    </message>
    <message id="460">
        <source>FTP</source>
        <translation>FTP</translation>
    </message>
    <message id="461">
        <source>Message</source>
        <translation>Сообщение</translation>
    </message>
    <message id="462">
        <source>Sound</source>
        <translation>Звук</translation>
    </message>
    <message id="463">
        <source>Sender E-mail Address</source>
        <translation>Адрес эл. почты отправителя</translation>
    </message>
    <message id="464">
        <source>Mail Server</source>
        <translation>Почтовый сервер</translation>
    </message>
    <message id="465">
        <source>User</source>
        <translation>Пользователь</translation>
    </message>
    <message id="466">
        <source>Password</source>
        <translation>Пароль</translation>
    </message>
    <message id="467">
        <source>Adressee Name</source>
        <translation>Имя адресата</translation>
    </message>
    <message id="468">
        <source>Mail Addrrss</source>
        <translation>Адрес эл. почты</translation>
    </message>
    <message id="469">
        <source>Server IP</source>
        <translation>IP сервера</translation>
    </message>
    <message id="470">
        <source>Server Port</source>
        <translation>Порт сервера</translation>
    </message>
    <message id="471">
        <source>Text</source>
        <translation>Текст</translation>
    </message>
    <message id="472">
        <source>Sound Description</source>
        <translation>Описание звука</translation>
    </message>
    <message id="473">
        <source>Sound File Path</source>
        <translation>Путь к файлу звука</translation>
    </message>
    <message id="474">
        <source>Test</source>
        <translation>Проверка</translation>
    </message>
    <message id="475">
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message id="476">
        <source>Mail to</source>
        <translation>Кому</translation>
    </message>
    <message id="477">
        <source>FTP Setting</source>
        <translation>Настройка FTP</translation>
    </message>
    <message id="478">
        <source>Message Setting</source>
        <translation>Настройка сообщений</translation>
    </message>
    <message id="479">
        <source>Message</source>
        <translation>Сообщение</translation>
    </message>
    <message id="480">
        <source>Sound Setting</source>
        <translation>Настройка звука</translation>
    </message>
    <message id="481">
        <source>Set HTTP Server failed! Do you want to remove all HTTP Servers?</source>
        <translation>Не удалось настроить сервер HTTP. Удалить все серверы HTTP?</translation>
    </message>
    <message id="482">
        <source>The amount cannot be more than 16!</source>
        <translation>Количество не может превышать 16.</translation>
    </message>
    <message id="483">
        <source>Do you want to delete the selected NVR?</source>
        <translation>Удалить выбранный NVR?</translation>
    </message>
    <message id="484">
        <source>Sender name can't be empty!</source>
        <translation>Имя отправителя не может быть пустым.</translation>
    </message>
    <message id="485">
        <source>Mail Server can't be empty!</source>
        <translation>Поле почтового сервера не может быть пустым.</translation>
    </message>
    <message id="486">
        <source>User can't be empty!</source>
        <translation>Поле пользователя не может быть пустым.</translation>
    </message>
    <message id="487">
        <source>Password can't be empty!</source>
        <translation>Пароль не может быть пустым.</translation>
    </message>
    <message id="488">
        <source>Mail Address can't be empty!</source>
        <translation>Адрес эл. почты не может быть пустым.</translation>
    </message>
    <message id="489">
        <source>Test mail sent success.</source>
        <translation>Тестовое письмо отправлено.</translation>
    </message>
    <message id="490">
        <source>Test mail sent failed.</source>
        <translation>Не удалось отправить тестовое письмо.</translation>
    </message>
    <message id="491">
        <source>Server IP can't be empty!</source>
        <translation>IP-адрес сервера не может быть пустым.</translation>
    </message>
    <message id="492">
        <source>Server Port can't be empty!</source>
        <translation>Порт сервера не может быть пустым.</translation>
    </message>
    <message id="493">
        <source>Root Path can't be empty!</source>
        <translation>Корневой путь не может быть пустым.</translation>
    </message>
    <message id="494">
        <source>Connecting to ftp server success.</source>
        <translation>Подключение к серверу FTP выполнено.</translation>
    </message>
    <message id="495">
        <source>Connecting to ftp server failed.</source>
        <translation>Не удалось подключиться к серверу FTP.</translation>
    </message>
    <message id="496">
        <source>Message can't be empty!</source>
        <translation>Сообщение не может быть пустым.</translation>
    </message>
    <message id="497">
        <source>Sound Description can't be empty!</source>
        <translation>Описание звука не может быть пустым.</translation>
    </message>
    <message id="498">
        <source>Sound file Path can't be empty!</source>
        <translation>Путь к файлу звука не может быть пустым.</translation>
    </message>
    <message id="499">
        <source>Preset number select first.</source>
        <translation>Сначала выберите номер пресета.</translation>
    </message>
    <message id="500">
        <source>The Preset Name has been used.</source>
        <translation>Это имя пресета уже используется.</translation>
    </message>
    <message id="501">
        <source>Do you want to delete the selected User?</source>
        <translation>Удалить выбранного пользователя?</translation>
    </message>
    <message id="502">
        <source>Can't Delete User.</source>
        <translation>Невозможно удалить пользователя.</translation>
    </message>
    <message id="503">
        <source>Already Set.</source>
        <translation>Уже задано.</translation>
    </message>
    <message id="504">
        <source>Intelligent setting can't exceed 16</source>
        <translation>Число настроек видеоаналитики не может превышать 16.</translation>
    </message>
    <message id="505">
        <source>Add NVR failed! Please add again.</source>
        <translation>Не удалось добавить NVR. Добавьте ещё раз.</translation>
    </message>
    <message id="506">
        <source>File Size can't more than 5MB</source>
        <translation>Размер файла не может превышать 5 МБ.</translation>
    </message>
    <message id="507">
        <source>Save OK</source>
        <translation>Сохранено.</translation>
    </message>
    <message id="508">
        <source>Exit and Open MainViewer?</source>
        <translation>Выйти и открыть главное окно просмотра?</translation>
    </message>
    <message id="509">
        <source>Do you want to exit?</source>
        <translation>Выйти из программы?</translation>
    </message>
    <message id="510">
        <source>Resolution Not Support .</source>
        <translation>Разрешение не поддерживается.</translation>
    </message>
    <message id="511">
        <source>Do you want to Save?</source>
        <translation>Сохранить?</translation>
    </message>
    <message id="512">
        <source>The Channel does not support motion detection or is no connection !</source>
        <translation>Канал не поддерживает детекцию движения или не подключён.</translation>
    </message>
    <message id="513">
        <source>No setting !</source>
        <translation>Нет настроек.</translation>
    </message>
    <message id="514">
        <source>Settings have changed , Do you want to save ?</source>
        <translation>Настройки изменены. Сохранить?</translation>
    </message>
    <message id="515">
        <source>Not yet set of Event Action config!</source>
        <translation>Действия по событиям ещё не настроены.</translation>
    </message>
    <message id="516">
        <source>Video can't connection.</source>
        <translation>Не удаётся подключить видео.</translation>
    </message>
    <message id="517">
        <source>Submit</source>
        <translation>Подтвердить</translation>
    </message>
    <message id="518">
        <source>Save Setting</source>
        <translation>Сохранить настройки</translation>
    </message>
    <message id="519">
        <source>Close this window</source>
        <translation>Закрыть это окно</translation>
    </message>
    <message id="520">
        <source>Preset Sequence</source>
        <translation>Последовательность пресетов</translation>
    </message>
    <message id="521">
        <source>Dwell Time:</source>
        <translation>Время показа:</translation>
    </message>
    <message id="522">
        <source>PTZ Preset</source>
        <translation>Пресет PTZ</translation>
    </message>
    <message id="523">
        <source>Preset Sequence</source>
        <translation>Последовательность пресетов</translation>
    </message>
    <message id="524">
        <source>Select a wave file</source>
        <translation>Выберите файл WAV</translation>
    </message>
    <message id="525">
        <source>File Name: </source>
        <translation>Имя файла: </translation>
    </message>
    <message id="526">
        <source>Message sent successfully!</source>
        <translation>Сообщение отправлено.</translation>
    </message>
    <message id="527">
        <source>Sending Message fail!</source>
        <translation>Не удалось отправить сообщение.</translation>
    </message>
    <message id="528">
        <source>MAX Video</source>
        <translation>Развернуть видео</translation>
    </message>
    <message id="529">
        <source>Enable/Disable auto switch group to display videos.</source>
        <translation>Включить или отключить автопереключение групп показываемых видео.</translation>
    </message>
    <message id="530">
        <source>Enable/Disable maximum video to display.</source>
        <translation>Включить или отключить развёрнутый показ видео.</translation>
    </message>
    <message id="531">
        <source>Live Video</source>
        <translation>Живое видео</translation>
    </message>
    <message id="532">
        <source>Do you want to cancel playback for NVR?</source>
        <translation>Отменить воспроизведение с NVR?</translation>
    </message>
    <message id="533">
        <source>The selected time doesn't have any recording data!</source>
        <translation>За выбранное время записей нет.</translation>
    </message>
    <message id="534">
        <source>Select channel you want to change and reset the relational data information?</source>
        <translation>Сменить выбранный канал и сбросить связанные данные?</translation>
    </message>
    <message id="535">
        <source>This NVR cannot get group ID to playback!</source>
        <translation>Этот NVR не может получить ID группы для воспроизведения.</translation>
    </message>
    <message id="536">
        <source>Select the SVD has been disconnected, so close the panel and make sure that SVD status!</source>
        <translation>Выбранный SVD отключён. Закройте панель и проверьте состояние SVD.</translation>
    </message>
    <message id="550">
        <source>IP Address</source>
        <translation>IP-адрес</translation>
    </message>
    <message id="551">
        <source>Http Port</source>
        <translation>Порт HTTP</translation>
    </message>
    <message id="552">
        <source>Add</source>
        <translation>Добавить</translation>
    </message>
    <message id="553">
        <source>NVR Name can't be empty!</source>
        <translation>Имя NVR не может быть пустым.</translation>
    </message>
    <message id="554">
        <source>IP address or hostname set incorrectly!</source>
        <translation>Неверно задан IP-адрес или имя хоста.</translation>
    </message>
    <message id="555">
        <source>NVR don't exist!</source>
        <translation>NVR не существует.</translation>
    </message>
    <message id="556">
        <source>Port set incorrectly!</source>
        <translation>Неверно задан порт.</translation>
    </message>
    <message id="557">
        <source>Add</source>
        <translation>Добавить</translation>
    </message>
    <message id="558">
        <source>NVR select setting</source>
        <translation>Настройка выбора NVR</translation>
    </message>
    <message id="559">
        <source>Pattern select setting</source>
        <translation>Настройка выбора шаблонов</translation>
    </message>
    <message id="560">
        <source>All list</source>
        <translation>Полный список</translation>
    </message>
    <message id="561">
        <source>Selected list</source>
        <translation>Список выбранных</translation>
    </message>
    <message id="562">
        <source>Select item is less than 2 items, it can not be saved!</source>
        <translation>Выбрано менее 2 пунктов, сохранить невозможно.</translation>
    </message>
    <message id="563">
        <source>Functions that were originally assigned on this screen will be moved to screen #1 automatically.</source>
        <translation>Функции, назначенные этому экрану, будут автоматически перенесены на экран № 1.</translation>
    </message>
    <message id="564">
        <source>Has not enough pattern can be selected!</source>
        <translation>Недостаточно шаблонов для выбора.</translation>
    </message>
    <message id="565">
        <source>This screen has been assigned to Video Wall!</source>
        <translation>Этот экран назначен видеостене.</translation>
    </message>
    <message id="566">
        <source>Has not enough device can be selected!</source>
        <translation>Недостаточно устройств для выбора.</translation>
    </message>
    <message id="570">
        <source>Information</source>
        <translation>Информация</translation>
    </message>
    <message id="571">
        <source>*Name</source>
        <translation>*Имя</translation>
    </message>
    <message id="572">
        <source>*IP Address</source>
        <translation>*IP-адрес</translation>
    </message>
    <message id="573">
        <source>*Http Port</source>
        <translation>*Порт HTTP</translation>
    </message>
    <message id="574">
        <source>*User</source>
        <translation>*Пользователь</translation>
    </message>
    <message id="575">
        <source>*Password</source>
        <translation>*Пароль</translation>
    </message>
    <message id="576">
        <source>Detect</source>
        <translation>Обнаружить</translation>
    </message>
    <message id="577">
        <source>Device Setting</source>
        <translation>Настройка устройства</translation>
    </message>
    <message id="578">
        <source>NO.</source>
        <translation>№</translation>
    </message>
    <message id="579">
        <source>Camera name</source>
        <translation>Имя камеры</translation>
    </message>
    <message id="580">
        <source>Video Port</source>
        <translation>Видеопорт</translation>
    </message>
    <message id="581">
        <source>Format</source>
        <translation>Формат</translation>
    </message>
    <message id="582">
        <source>Resolution</source>
        <translation>Разрешение</translation>
    </message>
    <message id="583">
        <source>PTZ</source>
        <translation>PTZ</translation>
    </message>
    <message id="584">
        <source>Audio</source>
        <translation>Звук</translation>
    </message>
    <message id="585">
        <source>Edit Camera Setting</source>
        <translation>Правка настроек камеры</translation>
    </message>
    <message id="586">
        <source>Camera No</source>
        <translation>№ камеры</translation>
    </message>
    <message id="587">
        <source>Camera IP</source>
        <translation>IP камеры</translation>
    </message>
    <message id="588">
        <source>Additional Camera Information</source>
        <translation>Дополнительные сведения о камере</translation>
    </message>
    <message id="589">
        <source>Min. Bitrate</source>
        <translation>Мин. битрейт</translation>
    </message>
    <message id="590">
        <source>Max. Bitrate</source>
        <translation>Макс. битрейт</translation>
    </message>
    <message id="591">
        <source>Apply</source>
        <translation>Применить</translation>
    </message>
    <message id="592">
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
    <message id="593">
        <source>NVR IP can't be empty.</source>
        <translation>IP-адрес NVR не может быть пустым.</translation>
    </message>
    <message id="594">
        <source>NVR Http Port can't be empty.</source>
        <translation>Порт HTTP NVR не может быть пустым.</translation>
    </message>
    <message id="595">
        <source>NVR User can't be empty.</source>
        <translation>Поле пользователя NVR не может быть пустым.</translation>
    </message>
    <message id="596">
        <source>NVR Password can't be empty.</source>
        <translation>Пароль NVR не может быть пустым.</translation>
    </message>
    <message id="597">
        <source>Request Time Zone ERR! Please Detect again.</source>
        <translation>Ошибка запроса часового пояса. Повторите обнаружение.</translation>
    </message>
    <message id="598">
        <source>Please Select Brand.</source>
        <translation>Выберите марку.</translation>
    </message>
    <message id="599">
        <source>IP Timeout.</source>
        <translation>Истекло время ожидания IP.</translation>
    </message>
    <message id="600">
        <source>Quality</source>
        <translation>Качество</translation>
    </message>
    <message id="601">
        <source>Bitrate</source>
        <translation>Битрейт</translation>
    </message>
    <message id="602">
        <source>Bitrate Mode</source>
        <translation>Режим битрейта</translation>
    </message>
    <message id="603">
        <source>CH name can't be empty!</source>
        <translation>Имя канала не может быть пустым.</translation>
    </message>
    <message id="604">
        <source>IP address can't be empty!</source>
        <translation>IP-адрес не может быть пустым.</translation>
    </message>
    <message id="605">
        <source>Http Port can't be empty!</source>
        <translation>Порт HTTP не может быть пустым.</translation>
    </message>
    <message id="606">
        <source>User account can't be empty!</source>
        <translation>Имя учётной записи не может быть пустым.</translation>
    </message>
    <message id="607">
        <source>Password can't be empty!</source>
        <translation>Пароль не может быть пустым.</translation>
    </message>
    <message id="608">
        <source>Detection Error!</source>
        <translation>Ошибка обнаружения.</translation>
    </message>
    <message id="609">
        <source>No Camera or connect failed !</source>
        <translation>Нет камеры или не удалось подключиться.</translation>
    </message>
    <message id="610">
        <source>This firmware version of NVR is not supported , please update newer Version.</source>
        <translation>Эта версия прошивки NVR не поддерживается, обновите её.</translation>
    </message>
    <message id="611">
        <source>If you press the button, data inside NVR will be changed!</source>
        <translation>При нажатии этой кнопки данные в NVR изменятся.</translation>
    </message>
    <message id="612">
        <source>Camera Search</source>
        <translation>Поиск камер</translation>
    </message>
    <message id="613">
        <source>Brand not Support!</source>
        <translation>Марка не поддерживается.</translation>
    </message>
    <message id="614">
        <source>FPS</source>
        <translation>FPS</translation>
    </message>
    <message id="615">
        <source>Video Format Error!</source>
        <translation>Ошибка формата видео.</translation>
    </message>
    <message id="616">
        <source>Camera settings have changes, please re-detect.</source>
        <translation>Настройки камеры изменены, повторите обнаружение.</translation>
    </message>
    <message id="617">
        <source>Add Camera Fail!</source>
        <translation>Не удалось добавить камеру.</translation>
    </message>
    <message id="618">
        <source>DIS Setting</source>
        <translation>Настройка DIS</translation>
    </message>
    <message id="619">
        <source>Device not supported!</source>
        <translation>Устройство не поддерживается.</translation>
    </message>
    <message id="620">
        <source>This account is already set!</source>
        <translation>Эта учётная запись уже есть.</translation>
    </message>
    <message id="621">
        <source>Do you want to continue edit preset point?</source>
        <translation>Продолжить правку пресета?</translation>
    </message>
    <message id="630">
        <source>Group Name</source>
        <translation>Имя группы</translation>
    </message>
    <message id="631">
        <source>Power Level</source>
        <translation>Уровень прав</translation>
    </message>
    <message id="632">
        <source>Function Permission</source>
        <translation>Права на функции</translation>
    </message>
    <message id="633">
        <source>Playback</source>
        <translation>Воспроизведение</translation>
    </message>
    <message id="634">
        <source>PTZ Control</source>
        <translation>Управление PTZ</translation>
    </message>
    <message id="635">
        <source>System Setup</source>
        <translation>Настройка системы</translation>
    </message>
    <message id="636">
        <source>Group Setting</source>
        <translation>Настройка группы</translation>
    </message>
    <message id="640">
        <source>File Size can't more than 10MB</source>
        <translation>Размер файла не может превышать 10 МБ.</translation>
    </message>
    <message id="641">
        <source>EMap Setting</source>
        <translation>Настройка эл. карты</translation>
    </message>
    <message id="642">
        <source>*Double Click Windows to change Map images.</source>
        <translation>*Дважды щёлкните окно, чтобы сменить изображение карты.</translation>
    </message>
    <message id="643">
        <source>Select an image file</source>
        <translation>Выберите файл изображения</translation>
    </message>
    <message id="645">
        <source>User Setting</source>
        <translation>Настройка пользователя</translation>
    </message>
    <message id="646">
        <source>Photo</source>
        <translation>Фото</translation>
    </message>
    <message id="647">
        <source>(Dubble Click to Setting)</source>
        <translation>(Дважды щёлкните для настройки)</translation>
    </message>
    <message id="648">
        <source>Check</source>
        <translation>Проверить</translation>
    </message>
    <message id="649">
        <source>*User Name</source>
        <translation>*Имя пользователя</translation>
    </message>
    <message id="650">
        <source>*Password Confirm</source>
        <translation>*Подтверждение пароля</translation>
    </message>
    <message id="651">
        <source>*:Necessary</source>
        <translation>*: обязательно</translation>
    </message>
    <message id="652">
        <source>This name not yet use</source>
        <translation>Имя ещё не используется.</translation>
    </message>
    <message id="653">
        <source>This name in use</source>
        <translation>Имя уже используется.</translation>
    </message>
    <message id="660">
        <source>User&amp;Password</source>
        <translation>Пользователь и пароль</translation>
    </message>
    <message id="661">
        <source>User or Password is not input!</source>
        <translation>Не введён пользователь или пароль.</translation>
    </message>
    <message id="671">
        <source>DIS Service Setting</source>
        <translation>Настройка службы DIS</translation>
    </message>
    <message id="672">
        <source>Account List</source>
        <translation>Список учётных записей</translation>
    </message>
    <message id="673">
        <source>Do you want to remove this user?</source>
        <translation>Удалить этого пользователя?</translation>
    </message>
    <message id="674">
        <source>The account has reached the upper limit, for add new account you need to remove another account.</source>
        <translation>Достигнут предел числа учётных записей. Чтобы добавить новую, удалите другую.</translation>
    </message>
    <message id="675">
        <source>Object Loss</source>
        <translation>Пропажа предмета</translation>
    </message>
    <message id="676">
        <source>Tripwire</source>
        <translation>Пересечение линии</translation>
    </message>
    <message id="677">
        <source>Threat</source>
        <translation>Саботаж</translation>
    </message>
    <message id="678">
        <source>Enable</source>
        <translation>Включить</translation>
    </message>
    <message id="679">
        <source>Intelligent Setting</source>
        <translation>Настройка видеоаналитики</translation>
    </message>
    <message id="680">
        <source>Intelligent detection List</source>
        <translation>Список видеоаналитики</translation>
    </message>
    <message id="681">
        <source>Object Loss Reset</source>
        <translation>Пропажа предмета: окончание</translation>
    </message>
    <message id="682">
        <source>Threat Detection Reset</source>
        <translation>Детекция саботажа: окончание</translation>
    </message>
    <message id="683">
        <source>Image Enhance</source>
        <translation>Улучшение изображения</translation>
    </message>
    <message id="684">
        <source>Port number can't accept more then 32767.</source>
        <translation>Номер порта не может превышать 32767.</translation>
    </message>
    <message id="685">
        <source>Keep Ratio</source>
        <translation>Сохранять пропорции</translation>
    </message>
    <message id="686">
        <source>Intelligent Detection</source>
        <translation>Видеоаналитика</translation>
    </message>
    <message id="687">
        <source>OSD Size</source>
        <translation>Размер OSD</translation>
    </message>
    <message id="688">
        <source>OSD Color</source>
        <translation>Цвет OSD</translation>
    </message>
    <message id="689">
        <source>Small</source>
        <translation>Мелкий</translation>
    </message>
    <message id="690">
        <source>Middle</source>
        <translation>Средний</translation>
    </message>
    <message id="691">
        <source>Large</source>
        <translation>Крупный</translation>
    </message>
    <message id="692">
        <source>FullScreen Initial</source>
        <translation>Полный экран при запуске</translation>
    </message>
    <message id="693">
        <source>Startup Screen Layout</source>
        <translation>Компоновка экранов при запуске</translation>
    </message>
    <message id="694">
        <source>Leave to save the screen layout.</source>
        <translation>Компоновка экранов сохраняется при выходе со страницы.</translation>
    </message>
    <message id="695">
        <source>Function default start</source>
        <translation>Запуск функций по умолчанию</translation>
    </message>
    <message id="696">
        <source>Function assign</source>
        <translation>Назначение функций</translation>
    </message>
    <message id="697">
        <source>Pattern setting</source>
        <translation>Настройка шаблона</translation>
    </message>
    <message id="698">
        <source>Name can't be empty.</source>
        <translation>Имя не может быть пустым.</translation>
    </message>
    <message id="699">
        <source>Object Counting</source>
        <translation>Подсчёт объектов</translation>
    </message>
    <message id="700">
        <source>Foreign Object</source>
        <translation>Оставленный предмет</translation>
    </message>
    <message id="701">
        <source>Foreign Object Reset </source>
        <translation>Оставленный предмет: окончание </translation>
    </message>
    <message id="702">
        <source>Manual Recording</source>
        <translation>Ручная запись</translation>
    </message>
    <message id="703">
        <source>Device settings have changes, please re-detect.</source>
        <translation>Настройки устройства изменены, повторите обнаружение.</translation>
    </message>
    <message id="704">
        <source>English and Digit Only</source>
        <translation>Только латинские буквы и цифры</translation>
    </message>
    <message id="705">
        <source>Emap Group Assign</source>
        <translation>Назначение групп эл. карт</translation>
    </message>
    <message id="706">
        <source>Emap Group </source>
        <translation>Группа эл. карт </translation>
    </message>
    <message id="707">
        <source>Member:</source>
        <translation>Состав:</translation>
    </message>
    <message id="708">
        <source>Emap Position Assign</source>
        <translation>Размещение на эл. карте</translation>
    </message>
    <message id="709">
        <source>Parent</source>
        <translation>Родительская группа</translation>
    </message>
    <message id="710">
        <source>Group Type </source>
        <translation>Тип группы </translation>
    </message>
    <message id="711">
        <source>Auto Switch</source>
        <translation>Автопереключение</translation>
    </message>
    <message id="712">
        <source>Double-click back to previous group</source>
        <translation>Двойной щелчок — возврат к предыдущей группе</translation>
    </message>
    <message id="713">
        <source>Drag and Drop to Move</source>
        <translation>Перетащите для перемещения</translation>
    </message>
    <message id="714">
        <source>Do you want to delete the selected Emap Group?</source>
        <translation>Удалить выбранную группу эл. карт?</translation>
    </message>
    <message id="715">
        <source>The amount of device will be over default value!</source>
        <translation>Будет превышено допустимое число устройств.</translation>
    </message>
    <message id="716">
        <source>The amount of total channels will be over default value!</source>
        <translation>Будет превышено допустимое общее число каналов.</translation>
    </message>
    <message id="717">
        <source>Channel selection</source>
        <translation>Выбор каналов</translation>
    </message>
    <message id="718">
        <source>Get device capability error!</source>
        <translation>Ошибка получения возможностей устройства.</translation>
    </message>
    <message id="719">
        <source>This device does not has any channel.</source>
        <translation>У этого устройства нет каналов.</translation>
    </message>
    <message id="720">
        <source>Please add channels  or  re-select the other device.</source>
        <translation>Добавьте каналы или выберите другое устройство.</translation>
    </message>
    <message id="721">
        <source>This device does not has any channel,Do you want to remove the device?</source>
        <translation>У этого устройства нет каналов. Удалить устройство?</translation>
    </message>
    <message id="722">
        <source>Setting fail!</source>
        <translation>Не удалось настроить.</translation>
    </message>
    <message id="723">
        <source>Do you want to stop SEQ mode?</source>
        <translation>Остановить режим листания?</translation>
    </message>
    <message id="725">
        <source>Type </source>
        <translation>Тип </translation>
    </message>
    <message id="726">
        <source>No change!</source>
        <translation>Нет изменений.</translation>
    </message>
    <message id="727">
        <source>Face Counting</source>
        <translation>Подсчёт лиц</translation>
    </message>
    <message id="728">
        <source>Unknown</source>
        <translation>Неизвестно</translation>
    </message>
    <message id="729">
        <source>Event Export</source>
        <translation>Экспорт событий</translation>
    </message>
    <message id="730">
        <source>System Log Export</source>
        <translation>Экспорт системного журнала</translation>
    </message>
    <message id="731">
        <source>System Log</source>
        <translation>Системный журнал</translation>
    </message>
    <message id="732">
        <source>NVR Select</source>
        <translation>Выбор NVR</translation>
    </message>
    <message id="733">
        <source>Condition</source>
        <translation>Условие</translation>
    </message>
    <message id="734">
        <source>Time Range:</source>
        <translation>Период:</translation>
    </message>
    <message id="735">
        <source>Start Time:</source>
        <translation>Начало:</translation>
    </message>
    <message id="736">
        <source>End Time:</source>
        <translation>Конец:</translation>
    </message>
    <message id="737">
        <source>Event Type:</source>
        <translation>Тип события:</translation>
    </message>
    <message id="738">
        <source>User:</source>
        <translation>Пользователь:</translation>
    </message>
    <message id="739">
        <source>Export Format:</source>
        <translation>Формат экспорта:</translation>
    </message>
    <message id="740">
        <source>Export</source>
        <translation>Экспорт</translation>
    </message>
    <message id="741">
        <source>You must select a path to export!</source>
        <translation>Выберите путь для экспорта.</translation>
    </message>
    <message id="742">
        <source>Start Time must less than End time!</source>
        <translation>Время начала должно быть раньше времени окончания.</translation>
    </message>
    <message id="743">
        <source>No Event!</source>
        <translation>Нет событий.</translation>
    </message>
    <message id="744">
        <source>No System Log!</source>
        <translation>Системный журнал пуст.</translation>
    </message>
    <message id="745">
        <source>CSV Export finish!</source>
        <translation>Экспорт CSV завершён.</translation>
    </message>
    <message id="746">
        <source>MDB Export finish!</source>
        <translation>Экспорт MDB завершён.</translation>
    </message>
    <message id="747">
        <source>Custom</source>
        <translation>Пользовательское</translation>
    </message>
    <message id="748">
        <source>NVR Overview</source>
        <translation>Обзор NVR</translation>
    </message>
    <message id="749">
        <source>Video Wall Console</source>
        <translation>Консоль видеостены</translation>
    </message>
    <message id="750">
        <source>Lock Screen </source>
        <translation>Заблокировать экран </translation>
    </message>
    <message id="751">
        <source>Unlock Screen</source>
        <translation>Разблокировать экран</translation>
    </message>
    <message id="752">
        <source>Video Wall</source>
        <translation>Видеостена</translation>
    </message>
    <message id="753">
        <source>Pattern List</source>
        <translation>Список шаблонов</translation>
    </message>
    <message id="754">
        <source>SEQ List</source>
        <translation>Список листания</translation>
    </message>
    <message id="755">
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message id="756">
        <source>SEQ content setting</source>
        <translation>Настройка содержимого листания</translation>
    </message>
    <message id="757">
        <source>Max Channel</source>
        <translation>Макс. каналов</translation>
    </message>
    <message id="758">
        <source>Video server</source>
        <translation>Видеосервер</translation>
    </message>
    <message id="759">
        <source>Support</source>
        <translation>Поддержка</translation>
    </message>
    <message id="760">
        <source>Original View</source>
        <translation>Исходный вид</translation>
    </message>
    <message id="761">
        <source>Broad View</source>
        <translation>Широкий вид</translation>
    </message>
    <message id="762">
        <source>Quad View</source>
        <translation>Четыре вида</translation>
    </message>
    <message id="763">
        <source>Quad and Source View</source>
        <translation>Четыре вида и источник</translation>
    </message>
    <message id="764">
        <source>Double View</source>
        <translation>Два вида</translation>
    </message>
    <message id="765">
        <source>Triple View</source>
        <translation>Три вида</translation>
    </message>
    <message id="766">
        <source>Digital PTZ</source>
        <translation>Цифровое PTZ</translation>
    </message>
    <message id="767">
        <source>Lens</source>
        <translation>Объектив</translation>
    </message>
    <message id="768">
        <source>It could not be opened, the insufficient number of available screens!</source>
        <translation>Не удалось открыть, недостаточно доступных экранов.</translation>
    </message>
    <message id="769">
        <source>It could not be opened, The Video Wall is not enabled! </source>
        <translation>Не удалось открыть, видеостена не включена. </translation>
    </message>
    <message id="770">
        <source>The quantity of screen is not enough! Not support!</source>
        <translation>Недостаточно экранов. Не поддерживается.</translation>
    </message>
    <message id="772">
        <source>Settings have changed , Please re-open MainViewer!</source>
        <translation>Настройки изменены. Откройте главное окно просмотра заново.</translation>
    </message>
    <message id="773">
        <source>Preview</source>
        <translation>Предпросмотр</translation>
    </message>
    <message id="774">
        <source>Update system log with below defined condition</source>
        <translation>Обновить системный журнал по условиям ниже</translation>
    </message>
    <message id="775">
        <source>Transform recording index</source>
        <translation>Преобразовать индекс записей</translation>
    </message>
    <message id="776">
        <source>Event Image Sync Setting</source>
        <translation>Настройка синхр. снимков событий</translation>
    </message>
    <message id="777">
        <source>Event snapshot storage space is not enough!</source>
        <translation>Недостаточно места для снимков событий.</translation>
    </message>
    <message id="779">
        <source>Intelligent Mode</source>
        <translation>Режим видеоаналитики</translation>
    </message>
    <message id="780">
        <source>Add Intelligent Setting</source>
        <translation>Добавить настройку видеоаналитики</translation>
    </message>
    <message id="781">
        <source>Camera Event</source>
        <translation>Событие камеры</translation>
    </message>
    <message id="782">
        <source>ROI Setting</source>
        <translation>Настройка ROI</translation>
    </message>
    <message id="783">
        <source>Trigger Mode</source>
        <translation>Режим срабатывания</translation>
    </message>
    <message id="784">
        <source>Channel Privilege</source>
        <translation>Права на каналы</translation>
    </message>
    <message id="785">
        <source>Group Overview</source>
        <translation>Обзор групп</translation>
    </message>
    <message id="786">
        <source>User Overview</source>
        <translation>Обзор пользователей</translation>
    </message>
    <message id="787">
        <source>Event Server</source>
        <translation>Сервер событий</translation>
    </message>
    <message id="788">
        <source>Trigger By</source>
        <translation>Условие срабатывания</translation>
    </message>
    <message id="789">
        <source>Configuration Modify</source>
        <translation>Изменение конфигурации</translation>
    </message>
    <message id="790">
        <source>Intelligent Event Trigger</source>
        <translation>Срабатывание видеоаналитики</translation>
    </message>
    <message id="791">
        <source>NVR Event Trigger</source>
        <translation>Срабатывание события NVR</translation>
    </message>
    <message id="792">
        <source>Trigger Action</source>
        <translation>Действие по событию</translation>
    </message>
    <message id="793">
        <source>Addresses: (Use ',' to separate e-mails)</source>
        <translation>Адреса: (разделяйте адреса эл. почты знаком «,»)</translation>
    </message>
    <message id="794">
        <source>Content</source>
        <translation>Содержание</translation>
    </message>
    <message id="795">
        <source>Video Wall Layout</source>
        <translation>Компоновка видеостены</translation>
    </message>
    <message id="796">
        <source>No Enough screen can be set!</source>
        <translation>Недостаточно экранов для настройки.</translation>
    </message>
    <message id="797">
        <source>SVD Management</source>
        <translation>Управление SVD</translation>
    </message>
    <message id="798">
        <source>SVD Detail Setting</source>
        <translation>Подробная настройка SVD</translation>
    </message>
    <message id="799">
        <source>SVD Layout</source>
        <translation>Компоновка SVD</translation>
    </message>
    <message id="800">
        <source>SVD ID:</source>
        <translation>ID SVD:</translation>
    </message>
    <message id="801">
        <source>SVD Name:</source>
        <translation>Имя SVD:</translation>
    </message>
    <message id="802">
        <source>Display</source>
        <translation>Дисплей</translation>
    </message>
    <message id="803">
        <source>Resolution</source>
        <translation>Разрешение</translation>
    </message>
    <message id="804">
        <source>Priority</source>
        <translation>Приоритет</translation>
    </message>
    <message id="805">
        <source>Default Split</source>
        <translation>Раскладка по умолчанию</translation>
    </message>
    <message id="806">
        <source>Default Channel List</source>
        <translation>Список каналов по умолчанию</translation>
    </message>
    <message id="807">
        <source>Live Stream</source>
        <translation>Живой поток</translation>
    </message>
    <message id="808">
        <source>Dynamic Streaming</source>
        <translation>Динамический поток</translation>
    </message>
    <message id="809">
        <source>Screen Default Layout</source>
        <translation>Компоновка экрана по умолчанию</translation>
    </message>
    <message id="810">
        <source>Channel list</source>
        <translation>Список каналов</translation>
    </message>
    <message id="811">
        <source>Begin</source>
        <translation>Начало</translation>
    </message>
    <message id="812">
        <source>Previous</source>
        <translation>Назад</translation>
    </message>
    <message id="813">
        <source>System Log Viewer</source>
        <translation>Просмотр системного журнала</translation>
    </message>
    <message id="814">
        <source>Management </source>
        <translation>Управление </translation>
    </message>
    <message id="815">
        <source>Viewer</source>
        <translation>Просмотр</translation>
    </message>
    <message id="816">
        <source>Add New SVD</source>
        <translation>Добавить новый SVD</translation>
    </message>
    <message id="817">
        <source>Primary</source>
        <translation>Основной</translation>
    </message>
    <message id="818">
        <source>Secondary</source>
        <translation>Дополнительный</translation>
    </message>
    <message id="819">
        <source>Available</source>
        <translation>Доступен</translation>
    </message>
    <message id="820">
        <source>Not Available</source>
        <translation>Недоступен</translation>
    </message>
    <message id="821">
        <source>Invalid E-mail Address!</source>
        <translation>Недопустимый адрес эл. почты.</translation>
    </message>
    <message id="822">
        <source>Invalid Value!</source>
        <translation>Недопустимое значение.</translation>
    </message>
    <message id="823">
        <source>Can't add repeatedly!</source>
        <translation>Нельзя добавить повторно.</translation>
    </message>
    <message id="824">
        <source>Can't add SVD anymore!</source>
        <translation>Больше нельзя добавить SVD.</translation>
    </message>
    <message id="826">
        <source>Do you want to remove this SVD?</source>
        <translation>Удалить этот SVD?</translation>
    </message>
    <message id="827">
        <source>Disable this Video Wall?</source>
        <translation>Отключить эту видеостену?</translation>
    </message>
    <message id="828">
        <source>Export finish!</source>
        <translation>Экспорт завершён.</translation>
    </message>
    <message id="829">
        <source>Brand:</source>
        <translation>Марка:</translation>
    </message>
    <message id="830">
        <source>Password Mask</source>
        <translation>Скрывать пароль</translation>
    </message>
    <message id="831">
        <source>NVR Account setting</source>
        <translation>Уч. записи NVR</translation>
    </message>
    <message id="832">
        <source>No any NVR has been selected.</source>
        <translation>Не выбран ни один NVR.</translation>
    </message>
    <message id="833">
        <source>Detect successful!</source>
        <translation>Обнаружение выполнено.</translation>
    </message>
    <message id="834">
        <source>Failed configuring camera detection on channel:</source>
        <translation>Не удалось настроить детекцию камеры на канале:</translation>
    </message>
    <message id="835">
        <source>Trigger action has done.</source>
        <translation>Действие по событию выполнено.</translation>
    </message>
    <message id="836">
        <source>Event server has not set.</source>
        <translation>Сервер событий не настроен.</translation>
    </message>
    <message id="837">
        <source>Privilege Setting</source>
        <translation>Настройка прав</translation>
    </message>
    <message id="838">
        <source>NVR Privilege Setting</source>
        <translation>Настройка прав на NVR</translation>
    </message>
    <message id="839">
        <source>SVD Console</source>
        <translation>Консоль SVD</translation>
    </message>
    <message id="840">
        <source>SVD Search List</source>
        <translation>Список найденных SVD</translation>
    </message>
    <message id="841">
        <source>No Monitor connect!</source>
        <translation>Монитор не подключён.</translation>
    </message>
    <message id="842">
        <source>Do you want to remove this intelligent setting?</source>
        <translation>Удалить эту настройку видеоаналитики?</translation>
    </message>
    <message id="843">
        <source>Event snapshot doesn't work!</source>
        <translation>Снимки событий не работают.</translation>
    </message>
    <message id="850">
        <source>System</source>
        <translation>Система</translation>
    </message>
    <message id="851">
        <source>Intelligent</source>
        <translation>Видеоаналитика</translation>
    </message>
    <message id="852">
        <source>User and group</source>
        <translation>Пользователи и группы</translation>
    </message>
    <message id="853">
        <source>Event handling</source>
        <translation>Обработка событий</translation>
    </message>
    <message id="854">
        <source>Event server</source>
        <translation>Сервер событий</translation>
    </message>
    <message id="855">
        <source>E-Map</source>
        <translation>Эл. карта</translation>
    </message>
    <message id="856">
        <source>Screen layout</source>
        <translation>Компоновка экранов</translation>
    </message>
    <message id="857">
        <source>Startup</source>
        <translation>Запуск</translation>
    </message>
    <message id="858">
        <source>Tooling</source>
        <translation>Инструменты</translation>
    </message>
    <message id="859">
        <source>This page is not available in this version.</source>
        <translation>Эта страница недоступна в данной версии.</translation>
    </message>
    <message id="860">
        <source>Its data in the database stays as it is.</source>
        <translation>Данные этой страницы в базе данных остаются без изменений.</translation>
    </message>
    <message id="861">
        <source>No recorder yet</source>
        <translation>Регистраторов пока нет</translation>
    </message>
    <message id="862">
        <source>Enter the address of the station's first recorder to add it.</source>
        <translation>Введите адрес первого регистратора станции, чтобы добавить его.</translation>
    </message>
    <message id="863">
        <source>Filter name, address, model…</source>
        <translation>Фильтр: имя, адрес, модель…</translation>
    </message>
    <message id="864">
        <source>Recorders of this station</source>
        <translation>Регистраторы этой станции</translation>
    </message>
    <message id="865">
        <source>Recorders: %1 of %2</source>
        <translation>Регистраторы: %1 из %2</translation>
    </message>
    <message id="866">
        <source>Channels: %1 of %2</source>
        <translation>Каналы: %1 из %2</translation>
    </message>
    <message id="867">
        <source>No recorder matches the filter.</source>
        <translation>Нет регистраторов, соответствующих фильтру.</translation>
    </message>
    <message id="868">
        <source>Unsaved changes</source>
        <translation>Несохранённые изменения</translation>
    </message>
    <message id="870">
        <source>Switch to dark colours</source>
        <translation>Включить тёмную тему</translation>
    </message>
    <message id="871">
        <source>Switch to light colours</source>
        <translation>Включить светлую тему</translation>
    </message>
    <message id="872">
        <source>Waiting</source>
        <translation>Ожидание</translation>
    </message>
    <message id="873">
        <source>Finish</source>
        <translation>Готово</translation>
    </message>
    <message id="874">
        <source>Done: %1 of %2</source>
        <translation>Выполнено: %1 из %2</translation>
    </message>
    <message id="875">
        <source>Choose</source>
        <translation>Выбрать</translation>
    </message>
    <message id="876">
        <source>Edit</source>
        <translation>Изменить</translation>
    </message>
    <message id="877">
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message id="878">
        <source>Yes</source>
        <translation>Да</translation>
    </message>
    <message id="879">
        <source>No</source>
        <translation>Нет</translation>
    </message>
    <message id="880">
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message id="881">
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message id="882">
        <source>Pages</source>
        <translation>Страницы</translation>
    </message>
    <message id="884">
        <source>Enter the address of one recorder.</source>
        <translation>Введите адрес одного регистратора.</translation>
    </message>
    <message id="885">
        <source>Leave both empty to try the known device accounts.</source>
        <translation>Оставьте оба поля пустыми, чтобы опробовать известные учётные записи устройств.</translation>
    </message>
    <message id="886">
        <source>About this installation</source>
        <translation>Об этой установке</translation>
    </message>
    <message id="887">
        <source>Show password</source>
        <translation>Показать пароль</translation>
    </message>
    <message id="888">
        <source>Searching…</source>
        <translation>Поиск…</translation>
    </message>
    <message id="890">
        <source>Name and behaviour of this station</source>
        <translation>Имя и параметры этой станции</translation>
    </message>
    <message id="892">
        <source>Recorder slot</source>
        <translation>Ячейка регистратора</translation>
    </message>
    <message id="896">
        <source>Connected</source>
        <translation>Подключено</translation>
    </message>
    <message id="898">
        <source>Product:</source>
        <translation>Продукт:</translation>
    </message>
    <message id="899">
        <source>Hide password</source>
        <translation>Скрыть пароль</translation>
    </message>
    <message id="900">
        <source>Anyone who opens Rigging Desk is its administrator, because there is no user yet.</source>
        <translation>Любой, кто откроет Rigging Desk, становится администратором: пользователей пока нет.</translation>
    </message>
    <message id="901">
        <source>Create the first administrator</source>
        <translation>Создать первого администратора</translation>
    </message>
    <message id="902">
        <source>Not now</source>
        <translation>Не сейчас</translation>
    </message>
    <message id="903">
        <source>No user yet</source>
        <translation>Пользователей пока нет</translation>
    </message>
    <message id="904">
        <source>Accessible cameras</source>
        <translation>Доступные камеры</translation>
    </message>
    <message id="905">
        <source>Who has access</source>
        <translation>У кого доступ</translation>
    </message>
    <message id="906">
        <source>Filter channels…</source>
        <translation>Фильтр каналов…</translation>
    </message>
    <message id="907">
        <source>Whole recorder</source>
        <translation>Весь регистратор</translation>
    </message>
    <message id="908">
        <source>Live</source>
        <translation>Просмотр</translation>
    </message>
    <message id="909">
        <source>Live Monitor of all channels</source>
        <translation>Онлайн-просмотр всех каналов</translation>
    </message>
    <message id="910">
        <source>Grant</source>
        <translation>Предоставить</translation>
    </message>
    <message id="911">
        <source>Withdraw</source>
        <translation>Отозвать</translation>
    </message>
    <message id="912">
        <source>The other rights need Live. Space switches the selected cells; Shift+Space selects a row, Ctrl+Space a column.</source>
        <translation>Для остальных прав нужно право «Просмотр». Пробел переключает выделенные ячейки; Shift+Пробел выделяет строку, Ctrl+Пробел — столбец.</translation>
    </message>
    <message id="913">
        <source>Administrators have every right on every channel.</source>
        <translation>У администраторов есть все права на все каналы.</translation>
    </message>
    <message id="930">
        <source>Filter the rows found…</source>
        <translation>Фильтр по найденным строкам…</translation>
    </message>
    <message id="931">
        <source>No row matches the filter.</source>
        <translation>Нет строк, соответствующих фильтру.</translation>
    </message>
    <message id="932">
        <source>Rows found: %1</source>
        <translation>Найдено строк: %1</translation>
    </message>
    <message id="933">
        <source>The log could not be read</source>
        <translation>Не удалось прочитать журнал</translation>
    </message>
    <message id="934">
        <source>Copy rows</source>
        <translation>Копировать строки</translation>
    </message>
    <message id="935">
        <source>Open folder</source>
        <translation>Открыть папку</translation>
    </message>
    <message id="936">
        <source>Event export is not part of this version.</source>
        <translation>Экспорт событий не входит в эту версию.</translation>
    </message>
    <message id="937">
        <source>Choose a period and search.</source>
        <translation>Выберите период и выполните поиск.</translation>
    </message>
    <message id="938">
        <source>The export failed. Existing files were not changed.</source>
        <translation>Экспорт не удался. Существующие файлы не изменены.</translation>
    </message>
    <message id="939">
        <source>First page</source>
        <translation>Первая страница</translation>
    </message>
    <message id="940">
        <source>Previous page</source>
        <translation>Предыдущая страница</translation>
    </message>
    <message id="941">
        <source>Next page</source>
        <translation>Следующая страница</translation>
    </message>
    <message id="942">
        <source>Last page</source>
        <translation>Последняя страница</translation>
    </message>
    <message id="943">
        <source>Refresh</source>
        <translation>Обновить</translation>
    </message>
    <message id="945">
        <source>Log in</source>
        <translation>Вход</translation>
    </message>
    <message id="946">
        <source>The reason is in the log files.</source>
        <translation>Причина указана в файлах журнала.</translation>
    </message>
    <message id="950">
        <source>Find recorders on the network.</source>
        <translation>Найдите регистраторы в сети.</translation>
    </message>
    <message id="951">
        <source>Stop</source>
        <translation>Стоп</translation>
    </message>
    <message id="952">
        <source>Select all</source>
        <translation>Выбрать все</translation>
    </message>
    <message id="953">
        <source>Filter the devices found</source>
        <translation>Фильтр найденных устройств</translation>
    </message>
    <message id="954">
        <source>No device has answered.</source>
        <translation>Ни одно устройство не ответило.</translation>
    </message>
    <message id="955">
        <source>Recorders with those selected: %1 of %2</source>
        <translation>Регистраторы с учётом выбранных: %1 из %2</translation>
    </message>
    <message id="956">
        <source>Connection</source>
        <translation>Связь</translation>
    </message>
    <message id="957">
        <source>Checking…</source>
        <translation>Проверка…</translation>
    </message>
    <message id="958">
        <source>Login refused</source>
        <translation>Вход отклонён</translation>
    </message>
    <message id="959">
        <source>No answer</source>
        <translation>Нет ответа</translation>
    </message>
    <message id="960">
        <source>Host name not found</source>
        <translation>Имя хоста не найдено</translation>
    </message>
    <message id="961">
        <source>Connection refused</source>
        <translation>Соединение отклонено</translation>
    </message>
    <message id="962">
        <source>Unexpected answer</source>
        <translation>Неожиданный ответ</translation>
    </message>
    <message id="963">
        <source>Stopped</source>
        <translation>Остановлено</translation>
    </message>
    <message id="965">
        <source>Notice</source>
        <translation>Внимание</translation>
    </message>
    <message id="966">
        <source>No camera</source>
        <translation>Нет камеры</translation>
    </message>
    <message id="967">
        <source>Changed in the recorder</source>
        <translation>Изменено в регистраторе</translation>
    </message>
    <message id="968">
        <source>Detected</source>
        <translation>Обнаружено</translation>
    </message>
    <message id="969">
        <source>Unchanged</source>
        <translation>Без изменений</translation>
    </message>
    <message id="970">
        <source>Remove the camera of channel %1 from the recorder?</source>
        <translation>Удалить камеру канала %1 из регистратора?</translation>
    </message>
    <message id="971">
        <source>Filter the cameras found</source>
        <translation>Фильтр найденных камер</translation>
    </message>
    <message id="972">
        <source>No camera was found.</source>
        <translation>Камеры не найдены.</translation>
    </message>
    <message id="973">
        <source>The recorder sees no camera on its network. Search again, or enter an address.</source>
        <translation>Регистратор не видит камер в своей сети. Повторите поиск или введите адрес.</translation>
    </message>
    <message id="974">
        <source>Cameras found: %1</source>
        <translation>Найдено камер: %1</translation>
    </message>
    <message id="975">
        <source>Asking the camera…</source>
        <translation>Опрос камеры…</translation>
    </message>
    <message id="976">
        <source>Writing to the recorder…</source>
        <translation>Запись в регистратор…</translation>
    </message>
    <message id="977">
        <source>Video source</source>
        <translation>Источник видео</translation>
    </message>
    <message id="978">
        <source>Detect the camera to see its video settings.</source>
        <translation>Обнаружьте камеру, чтобы увидеть её настройки видео.</translation>
    </message>
    <message id="979">
        <source>Fish-eye view</source>
        <translation>Вид «рыбий глаз»</translation>
    </message>
    <message id="980">
        <source>The camera name must not contain a double quote (").</source>
        <translation>Имя камеры не может содержать кавычек (").</translation>
    </message>
    <message id="981">
        <source>The configuration database cannot be opened: another program holds it, or it cannot be read. Nothing has been changed. Try again?</source>
        <translation>Не удаётся открыть базу данных конфигурации: её занимает другая программа или её нельзя прочитать. Ничего не изменено. Повторить попытку?</translation>
    </message>
    <message id="982">
        <source>The users could not be read from the database, so nobody can log in. Close the program that holds the database and start again. The reason is in the log files.</source>
        <translation>Не удалось прочитать пользователей из базы данных, поэтому войти никто не может. Закройте программу, которая занимает базу, и запустите снова. Причина указана в файлах журнала.</translation>
    </message>
    <message id="983">
        <source>These tables of the database could not be read: %1. They stay as they are. The reason is in the log files.</source>
        <translation>Не удалось прочитать эти таблицы базы данных: %1. Они останутся без изменений. Причина указана в файлах журнала.</translation>
    </message>
    <message id="995">
        <source>Export</source>
        <translation>Экспортировать</translation>
    </message>
    <message id="1000">
        <source>Keys</source>
        <translation>Клавиши</translation>
    </message>
    <message id="1001">
        <source>Show the keys</source>
        <translation>Показать клавиши</translation>
    </message>
    <message id="1002">
        <source>Rename or edit the selected entry</source>
        <translation>Переименовать или изменить выбранную запись</translation>
    </message>
    <message id="1003">
        <source>Read the page again</source>
        <translation>Прочитать страницу заново</translation>
    </message>
    <message id="1004">
        <source>Filter the list</source>
        <translation>Фильтровать список</translation>
    </message>
    <message id="1005">
        <source>Go to a page</source>
        <translation>Перейти на страницу</translation>
    </message>
    <message id="1006">
        <source>Press the button or open the selected entry</source>
        <translation>Нажать кнопку или открыть выбранную запись</translation>
    </message>
    <message id="1007">
        <source>Remove the selected entry</source>
        <translation>Удалить выбранную запись</translation>
    </message>
    <message id="1008">
        <source>Cancel or close</source>
        <translation>Отменить или закрыть</translation>
    </message>
    <message id="1030">
        <source>Added: %1 of %2</source>
        <translation>Добавлено: %1 из %2</translation>
    </message>
    <message id="1031">
        <source>Added: %1 of %2, failed: %3</source>
        <translation>Добавлено: %1 из %2, с ошибкой: %3</translation>
    </message>
    <message id="1032">
        <source>Recorders that were not added can be tried again with another login.</source>
        <translation>Для недобавленных регистраторов можно повторить попытку с другими данными для входа.</translation>
    </message>
    <message id="1033">
        <source>Try again</source>
        <translation>Повторить</translation>
    </message>
    <message id="1034">
        <source>Login</source>
        <translation>Вход</translation>
    </message>
    <message id="1035">
        <source>Added but not saved yet: %1.
Do you want to save?</source>
        <translation>Добавлено, но ещё не сохранено: %1.
Сохранить?</translation>
    </message>
    <message id="1036">
        <source>No recorder has been added yet. Close and lose what you entered?</source>
        <translation>Ни один регистратор ещё не добавлен. Закрыть и потерять введённые данные?</translation>
    </message>
    <message id="1037">
        <source>More than one recorder would have this name: %1.
Do you want to use it anyway?</source>
        <translation>Это имя получат несколько регистраторов: %1.
Всё равно использовать его?</translation>
    </message>
    <message id="1080">
        <source>A stored password is not shown. Typing replaces it.</source>
        <translation>Сохранённый пароль не показывается. Введённый текст заменит его.</translation>
    </message>
    <message id="1081">
        <source>Choose a group</source>
        <translation>Выберите группу</translation>
    </message>
    <message id="1082">
        <source>No account yet</source>
        <translation>Учётных записей пока нет</translation>
    </message>
    <message id="1083">
        <source>These accounts are tried on recorders whose login is not known.</source>
        <translation>Эти учётные записи пробуются на регистраторах, вход в которые неизвестен.</translation>
    </message>
    <message id="1084">
        <source>Do you want to delete the selected account?</source>
        <translation>Удалить выбранную учётную запись?</translation>
    </message>
    <message id="1085">
        <source>No camera is accessible</source>
        <translation>Нет доступных камер</translation>
    </message>
    <message id="1086">
        <source>Access follows from the rights of the user’s group.</source>
        <translation>Доступ определяется правами группы пользователя.</translation>
    </message>
    <message id="1087">
        <source>Open the folder?</source>
        <translation>Открыть папку?</translation>
    </message>
    <message id="1088">
        <source>Filter users…</source>
        <translation>Фильтр пользователей…</translation>
    </message>
    <message id="1089">
        <source>No user matches the filter.</source>
        <translation>Нет пользователей, подходящих под фильтр.</translation>
    </message>
    <message id="1110">
        <source>Rename</source>
        <translation>Переименовать</translation>
    </message>
    <message id="1221">
        <source>Waiting for the picture…</source>
        <translation>Ожидание изображения…</translation>
    </message>
    <message id="1222">
        <source>No picture</source>
        <translation>Нет изображения</translation>
    </message>
    <message id="1223">
        <source>Trying again…</source>
        <translation>Новая попытка…</translation>
    </message>
    <message id="1260">
        <source>Filter maps and cameras…</source>
        <translation>Фильтр карт и камер…</translation>
    </message>
    <message id="1261">
        <source>Cut</source>
        <translation>Вырезать</translation>
    </message>
    <message id="1262">
        <source>Paste</source>
        <translation>Вставить</translation>
    </message>
    <message id="1263">
        <source>Move to…</source>
        <translation>Переместить в…</translation>
    </message>
    <message id="1264">
        <source>A recorder's map goes under the main map or into a group.</source>
        <translation>Карта регистратора помещается под главную карту или в группу.</translation>
    </message>
    <message id="1265">
        <source>A camera goes on the map of its own recorder or one of its sub-maps; on the main map it is taken off all maps.</source>
        <translation>Камера помещается на карту своего регистратора или его подкарту; на главной карте она снимается со всех карт.</translation>
    </message>
    <message id="1266">
        <source>It is there already.</source>
        <translation>Это уже там.</translation>
    </message>
    <message id="1267">
        <source>Only recorders' maps and cameras can be moved.</source>
        <translation>Перемещать можно только карты регистраторов и камеры.</translation>
    </message>
    <message id="1268">
        <source>Move</source>
        <translation>Переместить</translation>
    </message>
    <message id="1269">
        <source>Show the map's picture</source>
        <translation>Показать изображение карты</translation>
    </message>
    <message id="1270">
        <source>No map or camera matches the filter.</source>
        <translation>Нет карт и камер, соответствующих фильтру.</translation>
    </message>
    <message id="1271">
        <source>Enter a name to add a group.</source>
        <translation>Введите имя, чтобы добавить группу.</translation>
    </message>
    <message id="1272">
        <source>Enter a name to add a sub-map. The map has the name of its recorder.</source>
        <translation>Введите имя, чтобы добавить подкарту. Карта носит имя регистратора.</translation>
    </message>
    <message id="1273">
        <source>Drag recorders' maps into the group.</source>
        <translation>Перетащите в группу карты регистраторов.</translation>
    </message>
    <message id="1274">
        <source>Drag the camera to the map of its recorder.</source>
        <translation>Перетащите камеру на карту её регистратора.</translation>
    </message>
    <message id="1275">
        <source>Drag cameras of its recorder to the sub-map.</source>
        <translation>Перетащите на подкарту камеры её регистратора.</translation>
    </message>
</context>
</TS>
