#pragma once

// Numbers of messages that more than one window uses, by name. A text that one file alone shows may be named there.
namespace Message {

inline constexpr int kConnectionError = 7;
inline constexpr int kUnauthorised = 139;
inline constexpr int kSearch = 170;
inline constexpr int kDeviceName = 278;
inline constexpr int kName = 362;
inline constexpr int kAddress = 363;
inline constexpr int kPort = 364;
inline constexpr int kChannel = 366;
inline constexpr int kChannelName = 367;
inline constexpr int kBrand = 381;
inline constexpr int kModel = 382;
inline constexpr int kAdd = 385;
inline constexpr int kRemove = 386;
inline constexpr int kModify = 387;
inline constexpr int kStatus = 403;
inline constexpr int kGroup = 423;
inline constexpr int kUser = 465;
inline constexpr int kCancel = 475;
inline constexpr int kSettingsChanged = 514; // "… do you want to save?"
inline constexpr int kAddressFault = 554;
inline constexpr int kInformation = 570; // the title of almost every box
inline constexpr int kDetectFault = 608;
inline constexpr int kDetectAgain = 616;
inline constexpr int kTooManyChannels = 716;
inline constexpr int kSettingFault = 722;
inline constexpr int kSystemLog = 731;
inline constexpr int kOk = 755;
inline constexpr int kChannelPrivilege = 784;
inline constexpr int kDetectSuccess = 833;
inline constexpr int kChannelsOf = 866;
inline constexpr int kUnsavedChanges = 868;
inline constexpr int kChoose = 875;
inline constexpr int kEdit = 876;
inline constexpr int kDelete = 877;
inline constexpr int kYes = 878;
inline constexpr int kNo = 879;
inline constexpr int kClose = 881;
inline constexpr int kSearching = 888; // "Searching…"
inline constexpr int kNoMatch = 931;   // "No row matches the filter."
inline constexpr int kStop = 951;
inline constexpr int kNotice = 965;
inline constexpr int kWriting = 976;

} // namespace Message
