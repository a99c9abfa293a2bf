#pragma once

#include <QString>
#include <QStringList>
#include <set>
#include <vector>

// What a device knows and what may be written to it. Channels and presets are counted from 1 where a number of theirs
// is held; vectors are indexed from 0.
namespace simulators {

enum class Family
{
    Svr,     // CGI recorder: parameter text
    OmluPro, // XML commands, sequences and dwell by parameter text
    Txr632,  // XML commands
    Svd      // decoder: XML commands
};

// What an account may do. `group` and `securityLevel` are what a login answers with (-1: the line is left out).
struct Account
{
    QString user;
    QString password;
    int securityLevel = 7;
    int group = 0;
    bool mayWrite = true;
};

enum class AuthMode
{
    Basic, // RFC 7617
    Digest // RFC 7616 with MD5, qop "auth"
};

struct DeviceProfile
{
    Family family = Family::Txr632;
    QString name;       // what the operator called the device
    QString brand;      // maker
    QString modelName;  // as the capability reply gives it
    QString deviceType; // "SVR", "TXR500", "OmluPro", "TXR632", "SVD", …
    QString firmware;
    QString commandVersion = QStringLiteral("2.0"); // of the XML commands
    int maxChannels = 16;
    int maxHd = 0; // an "OmluPro" with 5 is a TXR632
    bool cmsSupport = true;
    bool customEventSupport = true;
    AuthMode auth = AuthMode::Basic;
    std::vector<Account> accounts;
    QByteArray lineEnd = "\n"; // of text replies
    bool discoverable = true;
};

struct SupportedSize
{
    QString size; // "1920x1080"
    int fpsLower = 1;
    int fpsUpper = 30;
    int bpsLower = 64; // kbit/s
    int bpsUpper = 8192;
};

struct SupportedFormat
{
    QString name; // "jpeg", "mpeg4", "h264"
    int qualityLower = 1;
    int qualityUpper = 10;
    bool rateControl = true;
    std::vector<SupportedSize> sizes;
};

struct StreamSettings
{
    QString format;
    QString size;
    int fps = 15;
    int quality = 5;
    int rateControl = 0; // 0 VBR, 1 CBR
    int bitrate = 2048;
    int gop = 30;
};

struct PtzCapability
{
    bool enable = false;
    bool absolute = false;
    int autoPan = 0;
    int speedLower = 1;
    int speedUpper = 10;
    int speedStep = 1;
    int moveCont = 1;
    int zoomCont = 1;
    int focusCont = 1;
    int irisCont = 1;
    int syncPreset = 1;
    int move = 8; // directions it can move in
    bool setPreset = true;
};

struct Camera
{
    QString name;
    QString ip; // empty: no camera
    int httpPort = 80;
    QString user;
    QString password;
    QString manufacturer;
    int brandCode = 1; // 20: two lenses, 55: Onvif
    QString model;
    QString mac;
    int rtspPort = 554;
    int videoSources = 1;
    int videoNumber = 1;
    bool multiStream = false; // a probe tells of MJPEG and H.264 streams under "multi."
    StreamSettings live;
    QString audioFormat;
    bool audioIn = false;
    bool audioOut = false;
    QString lensMode;
    QString leftDisplayMode;
    QString rightDisplayMode;
    QStringList lensModes;
    QStringList leftDisplayModes;
    QStringList rightDisplayModes;
    QString fishEyeModes; // "name:v1,v2,mask;…"
    QString fishEyeMode;
    std::vector<SupportedFormat> formats;
    PtzCapability ptz;
    bool supported = true; // a probe of one that is not ends with "brand not supported"
    bool usable = true;    // false: the probe lists nothing that could be shown
};

struct Preset
{
    int id = 1;
    QString name;
    bool absolute = false;
    QString pan;
    QString tilt;
    QString zoom;
    QString focus;
};

struct SequenceStep
{
    int preset = 1;
    int dwell = 5; // seconds
};

struct PtzPosition
{
    int pan = 0;
    int tilt = 0;
    int zoom = 0;
    int focus = 0;
    int iris = 0;
};

struct Channel
{
    Camera camera;
    std::vector<Preset> presets;
    std::vector<SequenceStep> sequence; // XML commands
    QString sequenceList;               // parameter text: "1,2,3"
    int dwellIndex = 0;                 // parameter text: which of the dwell times
    PtzPosition position;
    bool moving = false;  // a continuous movement goes on
    QString lens;         // "left" or "right" of the last movement
    int gotoPreset = 0;   // the last preset it was sent to
    int cameraEvents = 0; // two bits, the camera's own detection
    int customEvents = 0; // two bits, as last written under customevent_c<n>
    bool motionEnabled = false;
};

struct Action
{
    int channel = 0;
    int event = 0;
    int actionGroup = 0;
    int triggerId = 0;
    int digitalOut = 0;
    int preset = 0;
    int digitalOutId = 0;
    int digitalOutState = 0;
    int digitalOutDuration = 0;
    int presetDest = 0;
    int enable = 0;
};

struct StoredEvent
{
    qint64 time = 0; // seconds since 1970-01-01 UTC
    int channel = 1;
    int type = 0;
    int trigger = 0;
    QString name;
};

struct DecoderScreen
{
    int resolution = 0;       // 0 not connected, n is entry n - 1 of the table of resolutions
    std::vector<int> offered; // the same numbers
};

struct DecoderChannel
{
    int recorder = 0; // from 1, 0 for none
    int channel = 0;  // on that recorder, from 1
    int audio = 0;
    bool multiEnable = false;
    bool multiDynamic = false;
};

struct DeviceState
{
    QString name;
    int videoPort = 554;
    int timeZone = 28; // number in the device's table of zones
    int summerTime = 0;
    int summerTimeIndex = 0;
    std::vector<Channel> channels;
    std::vector<Camera> network; // what a camera search finds
    std::vector<Action> actions;
    std::vector<StoredEvent> events;    // oldest first
    std::set<int> refusedEventChannels; // channels that fail to take detection settings
    bool upnpMissing = false;           // event writes end with -5341
    int eventSlot = 0;                  // "svr=" of the last event write
    bool eventHttp = false;             // "httpenabled="
    std::vector<DecoderScreen> screens;
    std::vector<DecoderChannel> decoderChannels; // beside `channels`
    int eventPage = 100;                         // entries of one page of the CGI event search
};

} // namespace simulators
