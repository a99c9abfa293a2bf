#include "app/language/ui/ChangeLanguage.h"
#include "tests/support/DeskFixture.h"
#include "tests/walkthrough/Captions.h"
#include "tests/walkthrough/DeskWindows.h"

#include <QFontDatabase>
#include <QGlyphRun>
#include <QRawFont>
#include <QTextLayout>
#include <array>

using namespace Qt::StringLiterals;

namespace {

using CaptionTest = DeskFixture;

} // namespace

// The same character has a form of its own in each language that writes it; a fall-back of chance would give one to
// all.
TEST_F(CaptionTest, ScriptsAreWrittenInTheirOwnFaces)
{
    static constexpr std::array cases{std::pair{2, u"Noto Sans CJK TC"}, std::pair{3, u"Noto Sans CJK SC"},
                                      std::pair{4, u"Noto Sans CJK JP"}, std::pair{2, u"Noto Sans CJK TC"}};
    if (QFontDatabase::hasFamily(u"Verdana"_s))
        GTEST_SKIP() << "its fall-back is the toolkit's affair";
    QWidget window;
    for (const auto& [language, name] : cases) {
        const QString family = QString::fromUtf16(name);
        if (!QFontDatabase::hasFamily(family))
            GTEST_SKIP() << "not installed: " << family.toStdString();
        SetLanguage(language);
        ApplyLanguage(&window);
        QTextLayout layout(u"直"_s, QApplication::font());
        layout.beginLayout();
        layout.createLine();
        layout.endLayout();
        ASSERT_EQ(layout.glyphRuns().size(), 1);
        EXPECT_EQ(layout.glyphRuns().first().rawFont().familyName().toStdString(), family.toStdString());
    }
}

// Every window at its default size, in one desk that goes from language to language: what does not fit is printed.
TEST_F(CaptionTest, FitEveryWindowInEveryLanguage)
{
    qApp->setProperty("modelsUnwatched", true);
    ASSERT_TRUE(start());
    desk->resize(1280, 720);
    for (int language = 1; language <= kLanguages; ++language) {
        SetLanguage(language);
        SetBoxStyles(language == kRightToLeftLanguage);
        desk->ChangeLanguage();
        QStringList cut;
        int windows = 0;
        VisitWindows(*desk, *station, [&](const QString& name, QWidget& window) {
            ++windows;
            const QStringList lines = CutCaptions(window);
            for (const QString& line : lines)
                cut << name + u" / "_s + line;
        });
        EXPECT_GT(windows, 25);
        Driver::click(u"lbMenu_0"_s);
        desk->resize(desk->minimumSizeHint());
        for (const QString& line : CutCaptions(*desk).filter(u"optStartUp"_s))
            cut << u"narrow / "_s + line;
        desk->resize(1280, 720);
        EXPECT_LE(desk->minimumSizeHint().width(), 960) << "language " << language;
        EXPECT_LE(desk->minimumSizeHint().height(), 510) << "language " << language;
        EXPECT_TRUE(cut.isEmpty()) << "language " << language << '\n' << cut.join(u'\n').toStdString();
    }
}
