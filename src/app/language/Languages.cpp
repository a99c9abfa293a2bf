#include "app/language/Languages.h"

#include "app/log/Module_Log.h"
#include "platform/clsOSInfo.h"
#include "support/Conversions.h"

#include <QTranslator>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

int g_language = 99;

struct LanguageInfo
{
    const char* code; // suffix of its message bank
    const char16_t* name;
};

constexpr std::array<LanguageInfo, kLanguages> kInfo{{{"en", u"English"},
                                                      {"zh_TW", u"繁體中文"},
                                                      {"zh_CN", u"简体中文"},
                                                      {"ja", u"日本語"},
                                                      {"es", u"Español"},
                                                      {"it", u"Italiano"},
                                                      {"de", u"Deutsch"},
                                                      {"da", u"Dansk"},
                                                      {"fr", u"Français"},
                                                      {"pl", u"Polski"},
                                                      {"cs", u"Čeština"},
                                                      {"ru", u"Русский"},
                                                      {"tr", u"Türkçe"},
                                                      {"he", u"עברית"}}};

struct LocaleRow
{
    int language;
    int lcid;
};

// Walked from top to bottom, the first equal id wins. German repeats the id that Italian has taken already and so is
// only ever chosen by hand.
constexpr std::array<LocaleRow, 16> kLocales{{{1, 0x409},
                                              {2, 0x404},
                                              {3, 0x804},
                                              {4, 0x411},
                                              {5, 0xc0a},
                                              {5, 0x40a},
                                              {6, 0x410},
                                              {7, 0x410},
                                              {8, 0x406},
                                              {9, 0x40c},
                                              {10, 0x415},
                                              {11, 0x405},
                                              {12, 0x419},
                                              {12, 0x819},
                                              {13, 0x41f},
                                              {14, 0x40d}}};

const QTranslator& Bank(int language)
{
    static std::array<std::unique_ptr<QTranslator>, kLanguages> banks;
    std::unique_ptr<QTranslator>& bank = banks[static_cast<std::size_t>(language - 1)];
    if (!bank) {
        bank = std::make_unique<QTranslator>();
        const QString name = LanguageCode(language);
        if (!bank->load(u":/messages/messages_"_s + name + u".qm"_s))
            LogTrap(u"Module_Language - GetLangString"_s, u"Message bank '%1' is missing"_s.arg(name));
    }
    return *bank;
}

} // namespace

int Language()
{
    return g_language;
}
void SetLanguage(int language)
{
    g_language = language;
}

qint16 LanguageCharset()
{
    if (g_language < 1 || g_language > kLanguages)
        return 0;
    return CharsetTable[static_cast<std::size_t>(g_language - 1)];
}

int GetOsLang()
{
    const int lcid = SystemDefaultLCID();
    for (const LocaleRow& row : kLocales) {
        if (row.lcid == lcid)
            return row.language;
    }
    return 1;
}

QString GetBankString(int language, int number)
{
    const QByteArray id = QByteArray::number(number);
    return Bank(language).translate("", id.constData());
}

QString GetLangString(int number)
{
    if (g_language == 99 || g_language == 0)
        g_language = GetOsLang();
    QString text;
    Trapped("Module_Language - GetLangString", [&] {
        if (g_language < 1 || g_language > kLanguages)
            throw ConversionError(u"No message bank for language %1"_s.arg(g_language));
        text = GetBankString(g_language, number);
        if (text.isEmpty() && g_language != 1)
            text = GetBankString(1, number);
        if (text.isEmpty())
            throw ConversionError(u"No message %1"_s.arg(number));
    });
    return text;
}

QString LanguageCode(int language)
{
    const bool known = language >= 1 && language <= kLanguages;
    return QString::fromLatin1(kInfo[static_cast<std::size_t>(known ? language - 1 : 0)].code);
}

QString KeepLeftToRight(const QString& text)
{
    constexpr QChar kEmbedding(0x202a);
    constexpr QChar kEnd(0x202c);
    return g_language == kRightToLeftLanguage ? QString(kEmbedding + text + kEnd) : text;
}

QString LanguageName(int language)
{
    return QString::fromUtf16(kInfo[static_cast<std::size_t>(qBound(1, language, kLanguages) - 1)].name);
}
