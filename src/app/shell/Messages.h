#pragma once

// Numbers of messages that more than one window uses, by name. A text that one file alone shows may be named there.
namespace Message {

inline constexpr int kCancel = 475;
inline constexpr int kSettingsChanged = 514; // "… do you want to save?"
inline constexpr int kInformation = 570;     // the title of almost every box
inline constexpr int kOk = 755;
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

} // namespace Message
