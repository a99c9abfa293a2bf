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

// The text of a message number (0 to 1999) in the live language; English where the language's bank is missing. A number
// without an entry, or a language outside 1 to 14, gives one log line and the empty text. Settles a language that is
// not chosen yet from the system first.
QString GetLangString(int number);
// A text of one given bank without fall-back to English; empty when the bank or the number is missing.
QString GetBankString(int language, int number);

// The code of a language (1 to 14; English for every other number) as its files and its locale carry it: "de", "zh_TW".
QString LanguageCode(int language);

// Keeps the order of an address, a time, a path or an English line inside text that is read from the right; in every
// other language the text itself.
QString KeepLeftToRight(const QString& text);

// The names that stand for the languages in lists for assistive technology, each in its own language (1 to 14).
QString LanguageName(int language);
