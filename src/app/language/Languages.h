#pragma once

#include <QString>
#include <array>

inline constexpr int kLanguages = 14; // 1 English … 14 Hebrew
inline constexpr int kRightToLeftLanguage = 14;
inline constexpr int kJapaneseCharset = 128;

// Font character set of language number - 1.
inline constexpr std::array<qint16, kLanguages> CharsetTable{0, 0, 0, 128, 0, 0, 0, 0, 0, 238, 238, 204, 162, 177};

// The live language; 0 and 99 mean "not chosen yet".
int Language();
void SetLanguage(int language);
qint16 LanguageCharset(); // of the live language; 0 outside 1 to 14

// The language number of the system's locale; 1 when it is none of the fourteen's.
int GetOsLang();

// The text of a message number (0 to 999) in the live language; English where the language's bank is missing; empty for
// a number without an entry. Settles a language that is not chosen yet from the system first; a language outside 1 to
// 14 gives one log line and the empty text.
QString GetLangString(int number);
// A text of one given bank without fall-back to English; empty when the bank or the number is missing.
QString GetBankString(int language, int number);

// The names that stand for the languages in lists for assistive technology, each in its own language (1 to 14).
QString LanguageName(int language);
