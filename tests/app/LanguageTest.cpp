#include "app/language/CutText.h"
#include "app/language/Languages.h"
#include "platform/clsOSInfo.h"
#include "tests/store/StoreFixture.h"

#include <QDirIterator>
#include <QLocale>
#include <QRegularExpression>
#include <QXmlStreamReader>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

using Bank = QMap<int, QString>;

constexpr int kFirstOwn = 850; // numbers below are the station's catalogue
constexpr auto kProgram = "Rigging Desk"_L1;

// A bank's texts by number, from its source file.
Bank ReadBank(const QString& file)
{
    Bank bank;
    QFile source(file);
    if (!source.open(QIODevice::ReadOnly))
        return bank;
    QXmlStreamReader xml(&source);
    int number = -1;
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement())
            continue;
        if (xml.name() == "message"_L1)
            number = xml.attributes().value("id"_L1).toInt();
        else if (xml.name() == "translation"_L1)
            bank.insert(number, xml.readElementText());
    }
    EXPECT_FALSE(xml.hasError()) << file.toStdString();
    return bank;
}

QString MessagesFolder()
{
    return QStringLiteral(DESK_MESSAGES);
}

qsizetype LeadingBlanks(const QString& text)
{
    return text.size() - QString(text).replace(QRegularExpression(u"^ +"_s), {}).size();
}
qsizetype TrailingBlanks(const QString& text)
{
    return text.size() - QString(text).replace(QRegularExpression(u" +$"_s), {}).size();
}

bool EndsAsLabel(const QString& text)
{
    const QString trimmed = text.trimmed();
    return trimmed.endsWith(u':') || trimmed.endsWith(u'：');
}

} // namespace

TEST(Banks, HoldTheSameNumbersAndKeepWhatCodeJoins)
{
    const QDir folder(MessagesFolder());
    const Bank english = ReadBank(folder.filePath(u"messages_en.ts"_s));
    const QList<int> apart{277, 856, 995}; // next step, not frame; a narrow place; the button of the noun
    ASSERT_GT(english.size(), 840);
    const QStringList files = folder.entryList({u"messages_*.ts"_s});
    EXPECT_EQ(files.size(), kLanguages);
    for (const QString& file : files) {
        const Bank bank = ReadBank(folder.filePath(file));
        const bool translated = bank != english;
        const QLocale locale(file.mid(9).chopped(3));
        QHash<QString, int> first; // number of each English text
        ASSERT_EQ(bank.keys(), english.keys()) << file.toStdString();
        for (auto it = bank.begin(); it != bank.end(); ++it) {
            const QString& text = it.value();
            const QString& original = english[it.key()];
            const std::string where = QString(file + u' ' + QString::number(it.key()) + u": "_s + text).toStdString();
            EXPECT_FALSE(text.trimmed().isEmpty()) << where;
            EXPECT_EQ(LeadingBlanks(text), LeadingBlanks(original)) << where;
            EXPECT_EQ(TrailingBlanks(text), TrailingBlanks(original)) << where;
            EXPECT_EQ(EndsAsLabel(text), EndsAsLabel(original)) << where;
            EXPECT_EQ(text.startsWith(u'*'), original.startsWith(u'*')) << where;
            EXPECT_EQ(text.contains(kProgram, Qt::CaseInsensitive), original.contains(kProgram, Qt::CaseInsensitive))
                << where;
            for (const auto* mark : {u"%1", u"%2", u"%3"})
                EXPECT_EQ(text.count(QStringView(mark)), original.count(QStringView(mark))) << where;
            EXPECT_FALSE(translated && (text.contains(u'!') || text.contains(u'！'))) << where << ", not shouted";
            if (original.endsWith(u'!') || original.endsWith(u'?')) {
                EXPECT_TRUE(text.trimmed().back().isPunct()) << where;
            }
            // A sentence that reads as in English was forgotten; names, abbreviations and shared words may.
            EXPECT_FALSE(translated && text == original && text.split(u' ', Qt::SkipEmptyParts).size() > 2) << where;
            // What is one text in English is one in every language.
            int& twin = first[original.trimmed().toLower()];
            twin = twin == 0 ? it.key() : twin;
            EXPECT_TRUE(apart.contains(it.key()) ||
                        locale.toLower(text).trimmed() == locale.toLower(bank[twin]).trimmed())
                << where << ", not as " << twin;
        }
    }
}

// A count stands apart from its word, so that one reads as well as many; each own text is on show somewhere.
TEST(Banks, OwnTextsAreUsedAndReadWithAnyCount)
{
    const QDir folder(MessagesFolder());
    const Bank english = ReadBank(folder.filePath(u"messages_en.ts"_s));
    QSet<QString> numbers;
    QDirIterator sources(folder.filePath(u"../../src"_s), {u"*.cpp"_s, u"*.h"_s, u"*.ui"_s}, QDir::Files,
                         QDirIterator::Subdirectories);
    while (sources.hasNext()) {
        QFile source(sources.next());
        ASSERT_TRUE(source.open(QIODevice::ReadOnly));
        const QStringList words = QString::fromUtf8(source.readAll()).split(QRegularExpression(u"\\D+"_s));
        numbers.unite(QSet<QString>(words.begin(), words.end()));
    }
    const QRegularExpression plural(u"%[12] [a-z]+s\\b"_s);
    for (auto it = english.lowerBound(kFirstOwn); it != english.end(); ++it) {
        EXPECT_TRUE(numbers.contains(QString::number(it.key()))) << it.key() << " is not used";
        EXPECT_FALSE(plural.match(it.value()).hasMatch()) << it.value().toStdString();
    }
}

class LanguageTest : public StoreFixture
{
protected:
    ~LanguageTest() override { SetLanguage(1); }
};

TEST_F(LanguageTest, TextsComeByNumberInTheLiveLanguage)
{
    SetLanguage(1);
    EXPECT_EQ(GetLangString(570), u"Information"_s);
    EXPECT_EQ(GetLangString(4), u"Spainish"_s);
    EXPECT_EQ(GetLangString(20), u"Group Data  is loading..."_s);
    EXPECT_EQ(GetLangString(151), u"Display Image of Motion Detection "_s);
    EXPECT_EQ(GetLangString(27), u"Loading User's Pattern …"_s);
    EXPECT_EQ(logLines("Module_Language - GetLangString"), 0);
    EXPECT_EQ(GetLangString(31), QString()) << "a gap";
    EXPECT_EQ(logLines("Module_Language - GetLangString"), 1);
    for (int language = 1; language <= kLanguages; ++language) {
        SetLanguage(language);
        EXPECT_FALSE(GetLangString(514).isEmpty()) << language;
        EXPECT_EQ(GetBankString(language, 514) == GetBankString(1, 514), language == 1);
    }
    SetLanguage(15);
    EXPECT_EQ(GetLangString(570), QString());
    EXPECT_EQ(logLines("Module_Language - GetLangString"), 2);
    SetLanguage(99);
    EXPECT_FALSE(GetLangString(570).isEmpty());
    EXPECT_EQ(Language(), GetOsLang());
    SetLanguage(4);
    EXPECT_EQ(LanguageCharset(), 128);
}

TEST(CutText, KeepsTheEndThatIsReadFirst)
{
    const auto measure = [](const QString& text) { return static_cast<int>(text.size()) * 10; };
    EXPECT_EQ(CutText(u"abcdefgh"_s, 80, false, measure), u"abcdefgh"_s) << "exactly as wide is not cut";
    EXPECT_EQ(CutText(u"abcdefgh"_s, 79, false, measure), u"abcde~"_s);
    EXPECT_EQ(CutText(u"abcdefgh"_s, 79, true, measure), u"~defgh"_s);
    EXPECT_EQ(CutText(u"abcdefgh"_s, 15, false, measure), u"~"_s);
}
